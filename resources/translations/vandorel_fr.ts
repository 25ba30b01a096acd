<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source>interval_daily</source>
        <extracomment>Check interval picker (browser and mail pages): check once every 24 hours.</extracomment>
        <translation>Une fois par jour</translation>
    </message>
    <message>
        <source>interval_every_10_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Toutes les 10 minutes</translation>
    </message>
    <message>
        <source>interval_every_5_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Toutes les 5 minutes</translation>
    </message>
    <message>
        <source>interval_every_hour</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Toutes les heures</translation>
    </message>
    <message>
        <source>interval_every_minute</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Toutes les minutes</translation>
    </message>
    <message>
        <source>interval_none</source>
        <extracomment>Check interval picker (browser and mail pages): no timed checks; checks on wake, unlock and login still run.</extracomment>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>snooze_15_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>15 minutes</translation>
    </message>
    <message>
        <source>snooze_1_hour</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>snooze_30_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>30 minutes</translation>
    </message>
    <message>
        <source>snooze_4_hours</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>4 heures</translation>
    </message>
    <message>
        <source>snooze_rest_of_today</source>
        <extracomment>Snooze duration picker (browser and mail pages): snooze until midnight.</extracomment>
        <translation>Reste de la journée</translation>
    </message>
    <message>
        <source>alert_browser_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default browser no longer is the target. Arguments: 1st %@ = name of the current default browser, 2nd %@ = name of the target browser. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Un autre programme a fait de %@ votre navigateur par défaut. Votre navigateur préféré est %@. Voulez-vous le rétablir ?</translation>
    </message>
    <message>
        <source>alert_browser_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default browser.</extracomment>
        <translation>Navigateur par défaut modifié</translation>
    </message>
    <message>
        <source>alert_button_change_back</source>
        <extracomment>First button of both change alerts: makes the target the default again.</extracomment>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>alert_button_keep %@</source>
        <extracomment>Second button of both change alerts: keeps the new default and snoozes the alerts. %@ = name of the current (new) default browser or mail client.</extracomment>
        <translation>Garder %@ pour l’instant</translation>
    </message>
    <message>
        <source>alert_email_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default mail client no longer is the target. Arguments: 1st %@ = name of the current default mail client, 2nd %@ = name of the target mail client. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Un autre programme a fait de %@ votre client de messagerie par défaut. Votre client de messagerie préféré est %@. Voulez-vous le rétablir ?</translation>
    </message>
    <message>
        <source>alert_email_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default mail client.</extracomment>
        <translation>Client de messagerie par défaut modifié</translation>
    </message>
    <message>
        <source>update_available_message</source>
        <extracomment>Update sheet, message under the title. %@ = the new version number (the key has no specifier, the text must have exactly one). Inline Markdown such as **bold** is allowed.</extracomment>
        <translation>Vandorel **%@** est disponible.</translation>
    </message>
    <message>
        <source>update_available_title</source>
        <extracomment>Update sheet, title.</extracomment>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>update_brew_command_hint</source>
        <extracomment>Update sheet, Homebrew box: line above the command, which is shown after it.</extracomment>
        <translation>Pour mettre à jour, exécutez cette commande dans un terminal :</translation>
    </message>
    <message>
        <source>update_brew_hint</source>
        <extracomment>Update sheet, Homebrew box: first line, next to a mug symbol.</extracomment>
        <translation>Vandorel a été installé avec Homebrew.</translation>
    </message>
    <message>
        <source>update_copy_command</source>
        <extracomment>Update sheet: tooltip of the button that copies the update command.</extracomment>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>update_later_button</source>
        <extracomment>Update sheet: button that closes the sheet (also Escape).</extracomment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>feedback_description</source>
        <extracomment>Feedback page, heading block: description under the question.</extracomment>
        <translation>Dites-nous ce qui vous plaît, ce qui vous manque ou ce qui n’a pas fonctionné. Votre avis nous aide à améliorer Vandorel.</translation>
    </message>
    <message>
        <source>feedback_error_message</source>
        <extracomment>Feedback page: message of the error alert when sending failed.</extracomment>
        <translation>Votre avis n’a pas pu être envoyé. Vérifiez votre connexion, puis réessayez.</translation>
    </message>
    <message>
        <source>feedback_error_title</source>
        <extracomment>Feedback page: title of the error alert.</extracomment>
        <translation>Échec de l’envoi</translation>
    </message>
    <message>
        <source>feedback_question</source>
        <extracomment>Feedback page, heading block: question above the row of mood emojis.</extracomment>
        <translation>Que pensez-vous de Vandorel ?</translation>
    </message>
    <message>
        <source>feedback_send</source>
        <extracomment>Feedback page: the send button.</extracomment>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <extracomment>Feedback page: the send button while the request is under way.</extracomment>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>feedback_sent_message</source>
        <extracomment>Feedback page: message of the success alert.</extracomment>
        <translation>Merci ! Votre avis a bien été envoyé.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <extracomment>Feedback page: title of the success alert.</extracomment>
        <translation>Avis envoyé</translation>
    </message>
    <message>
        <source>feedback_tag_cool_app</source>
        <extracomment>Feedback page, category button: praise.</extracomment>
        <translation>Super appli</translation>
    </message>
    <message>
        <source>feedback_tag_idea</source>
        <extracomment>Feedback page, category button: a suggestion.</extracomment>
        <translation>Idée</translation>
    </message>
    <message>
        <source>feedback_tag_issue</source>
        <extracomment>Feedback page, category button: a bug or problem.</extracomment>
        <translation>Problème</translation>
    </message>
    <message>
        <source>feedback_tag_label</source>
        <extracomment>Feedback page: heading above the category buttons.</extracomment>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>feedback_tag_other</source>
        <extracomment>Feedback page, category button: anything else.</extracomment>
        <translation>Autre</translation>
    </message>
    <message>
        <source>feedback_tag_translation</source>
        <extracomment>Feedback page, category button: a remark about a translation.</extracomment>
        <translation>Traduction</translation>
    </message>
    <message>
        <source>feedback_text_placeholder</source>
        <extracomment>Feedback page: placeholder in the empty text box.</extracomment>
        <translation>Écrivez votre avis ici…</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <extracomment>Feedback page heading; also the feedback row of the tray panel and the feedback link of the about window.</extracomment>
        <translation>Donner votre avis</translation>
    </message>
    <message>
        <source>menu_item_about</source>
        <extracomment>Application menu item that opens the about window.</extracomment>
        <translation>À propos de Vandorel</translation>
    </message>
    <message>
        <source>menu_item_settings</source>
        <extracomment>Application menu item that opens the settings window (Ctrl+,).</extracomment>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>window_about_title</source>
        <extracomment>Title of the about window.</extracomment>
        <translation>À propos de Vandorel</translation>
    </message>
    <message>
        <source>window_settings_title</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>Paramètres de Vandorel</translation>
    </message>
    <message>
        <source>menu_about</source>
        <extracomment>Tray panel row that opens the about window.</extracomment>
        <translation>À propos</translation>
    </message>
    <message>
        <source>menu_quit</source>
        <extracomment>Tray panel row that ends the program; a shortcut sign follows it.</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <extracomment>Tray panel row that opens the settings window; a shortcut sign follows it.</extracomment>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>status_default_browser</source>
        <extracomment>Tray panel, browser status row: small caption above the name of the current default browser.</extracomment>
        <translation>Navigateur par défaut</translation>
    </message>
    <message>
        <source>status_default_email</source>
        <extracomment>Tray panel, mail status row: small caption above the name of the current default mail client.</extracomment>
        <translation>Client de messagerie par défaut</translation>
    </message>
    <message>
        <source>status_mismatch</source>
        <extracomment>Tray panel, status line: the current default is not the target (shown in orange).</extracomment>
        <translation>Écart</translation>
    </message>
    <message>
        <source>status_none</source>
        <extracomment>Tray panel: shown in place of a name when no default is known.</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>status_not_protected</source>
        <extracomment>Tray panel, status line: monitoring is off or has nothing to trigger it (shown in red).</extracomment>
        <translation>Non protégé</translation>
    </message>
    <message>
        <source>status_protected</source>
        <extracomment>Tray panel, status line: monitoring is on (shown in green).</extracomment>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>status_should_be %@</source>
        <extracomment>Tray panel, status row, shown on a mismatch. %@ = name of the target browser or mail client.</extracomment>
        <translation>Devrait être %@</translation>
    </message>
    <message>
        <source>tab_browser</source>
        <extracomment>Settings window: tab of the browser page.</extracomment>
        <translation>Navigateur</translation>
    </message>
    <message>
        <source>tab_email</source>
        <extracomment>Settings window: tab of the mail client page.</extracomment>
        <translation>Messagerie</translation>
    </message>
    <message>
        <source>tab_feedback</source>
        <extracomment>Settings window: tab of the feedback page.</extracomment>
        <translation>Avis</translation>
    </message>
    <message>
        <source>tab_general</source>
        <extracomment>Settings window: tab of the general page.</extracomment>
        <translation>Général</translation>
    </message>
    <message>
        <source>tab_log</source>
        <extracomment>Settings window: tab of the change log page.</extracomment>
        <translation>Journal</translation>
    </message>
    <message>
        <source>general_appearance</source>
        <extracomment>General page, settings: label of the light/dark picker.</extracomment>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>general_appearance_dark</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>general_appearance_light</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Clair</translation>
    </message>
    <message>
        <source>general_appearance_system</source>
        <extracomment>General page, appearance picker segment: follow the system.</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>general_buy_coffee</source>
        <extracomment>General page, support section: donation link button.</extracomment>
        <translation>Offrez-moi un café</translation>
    </message>
    <message>
        <source>general_cancel</source>
        <extracomment>General page: cancel button of the three confirmation dialogs.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>general_check_at_startup</source>
        <extracomment>General page, updates: label of the switch for an update check when the program starts.</extracomment>
        <translation>Vérifier au lancement</translation>
    </message>
    <message>
        <source>general_check_for_updates</source>
        <extracomment>General page, updates: button that checks for updates now.</extracomment>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>general_colored_icon</source>
        <extracomment>General page, settings: label of the switch that shows the tray icon in color.</extracomment>
        <translation>Icône d’état en couleur</translation>
    </message>
    <message>
        <source>general_delete_logs</source>
        <extracomment>General page, reset section: button that deletes the change log.</extracomment>
        <translation>Supprimer le journal</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_button</source>
        <extracomment>General page: destructive button of the delete-log confirmation.</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_message</source>
        <extracomment>General page: message of the delete-log confirmation.</extracomment>
        <translation>Toutes les entrées du journal des modifications seront supprimées. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_title</source>
        <extracomment>General page: title of the delete-log confirmation.</extracomment>
        <translation>Supprimer le journal des modifications ?</translation>
    </message>
    <message>
        <source>general_description</source>
        <extracomment>General page header: one-sentence description of the program.</extracomment>
        <translation>Vandorel garde en place le navigateur et le client de messagerie par défaut que vous avez choisis, et vous prévient lorsqu’un autre programme les modifie.</translation>
    </message>
    <message>
        <source>general_feature_1</source>
        <extracomment>General page, features list, item 1 (shield symbol).</extracomment>
        <translation>Garde votre navigateur et votre client de messagerie par défaut tels que vous les avez choisis</translation>
    </message>
    <message>
        <source>general_feature_2</source>
        <extracomment>General page, features list, item 2 (bell symbol).</extracomment>
        <translation>Vous prévient lorsqu’un autre programme se définit comme application par défaut</translation>
    </message>
    <message>
        <source>general_feature_3</source>
        <extracomment>General page, features list, item 3 (clock symbol).</extracomment>
        <translation>Vérifie à intervalles réguliers, après la veille, au déverrouillage et à la connexion</translation>
    </message>
    <message>
        <source>general_feature_4</source>
        <extracomment>General page, features list, item 4 (circular arrow symbol).</extracomment>
        <translation>Rétablit votre choix en un clic</translation>
    </message>
    <message>
        <source>general_feature_5</source>
        <extracomment>General page, features list, item 5 (chart symbol).</extracomment>
        <translation>Compte et consigne chaque modification</translation>
    </message>
    <message>
        <source>general_features_title</source>
        <extracomment>General page: heading of the features list.</extracomment>
        <translation>Fonctionnalités</translation>
    </message>
    <message>
        <source>general_language</source>
        <extracomment>General page, settings: label of the interface language picker.</extracomment>
        <translation>Langue</translation>
    </message>
    <message>
        <source>general_launch_at_login</source>
        <extracomment>General page, settings: label of the switch that starts the program at login.</extracomment>
        <translation>Lancer à la connexion</translation>
    </message>
    <message>
        <source>general_ok</source>
        <extracomment>OK button of the no-updates alert (general page) and of the feedback alerts.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>general_reset_counters</source>
        <extracomment>General page, reset section: button that sets both change counters to zero.</extracomment>
        <translation>Réinitialiser les compteurs</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_button</source>
        <extracomment>General page: destructive button of the reset-counters confirmation.</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_message</source>
        <extracomment>General page: message of the reset-counters confirmation.</extracomment>
        <translation>Les compteurs de modifications du navigateur et du client de messagerie par défaut seront remis à zéro.</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_title</source>
        <extracomment>General page: title of the reset-counters confirmation.</extracomment>
        <translation>Réinitialiser les compteurs ?</translation>
    </message>
    <message>
        <source>general_reset_settings</source>
        <extracomment>General page, reset section: button that restores the default settings.</extracomment>
        <translation>Réinitialiser tous les paramètres</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_button</source>
        <extracomment>General page: destructive button of the reset-settings confirmation.</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_message</source>
        <extracomment>General page: message of the reset-settings confirmation.</extracomment>
        <translation>Tous les paramètres reprennent leur valeur par défaut. Votre navigateur et votre client de messagerie préférés, les compteurs et le journal des modifications sont conservés.</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_title</source>
        <extracomment>General page: title of the reset-settings confirmation.</extracomment>
        <translation>Réinitialiser tous les paramètres ?</translation>
    </message>
    <message>
        <source>general_reset_title</source>
        <extracomment>General page: heading of the reset section.</extracomment>
        <translation>Réinitialisation</translation>
    </message>
    <message>
        <source>general_reset_update_reminder_snooze</source>
        <extracomment>General page, reset section: button that ends the snooze of update reminders, so they show again.</extracomment>
        <translation>Réactiver les rappels de mise à jour</translation>
    </message>
    <message>
        <source>general_settings_title</source>
        <extracomment>General page: heading of the settings section.</extracomment>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>general_support_description</source>
        <extracomment>General page, support section: text above the donation button.</extracomment>
        <translation>Vandorel est gratuit. S’il vous est utile, vous pouvez soutenir son développement.</translation>
    </message>
    <message>
        <source>general_support_title</source>
        <extracomment>General page: heading of the support (donation) section.</extracomment>
        <translation>Soutien</translation>
    </message>
    <message>
        <source>general_update_check_interval</source>
        <extracomment>General page, updates: label of the picker for how often to check for updates.</extracomment>
        <translation>Fréquence de vérification</translation>
    </message>
    <message>
        <source>general_updates_title</source>
        <extracomment>General page: heading of the updates section.</extracomment>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>update_interval_12h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Toutes les 12 heures</translation>
    </message>
    <message>
        <source>update_interval_6h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Toutes les 6 heures</translation>
    </message>
    <message>
        <source>update_interval_daily</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>update_interval_never</source>
        <extracomment>General page, update check interval picker: no automatic checks.</extracomment>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>update_interval_weekly</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>update_no_updates_message</source>
        <extracomment>General page: message of the alert after a manual check found no update.</extracomment>
        <translation>Vous utilisez la dernière version de Vandorel.</translation>
    </message>
    <message>
        <source>update_no_updates_title</source>
        <extracomment>General page: title of the alert after a manual check found no update.</extracomment>
        <translation>Vandorel est à jour</translation>
    </message>
    <message>
        <source>browser_already_default</source>
        <extracomment>Browser page, target box: shown in green when the selected target already is the default browser.</extracomment>
        <translation>Déjà par défaut</translation>
    </message>
    <message>
        <source>browser_bundle_id %@</source>
        <extracomment>Browser page, target box: line under the picker. %@ = application ID of the selected browser (such as org.example.App).</extracomment>
        <translation>ID de l’application : %@</translation>
    </message>
    <message>
        <source>browser_changes_detected</source>
        <extracomment>Browser page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Modifications détectées</translation>
    </message>
    <message>
        <source>browser_check_interval</source>
        <extracomment>Browser page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Fréquence de vérification</translation>
    </message>
    <message>
        <source>browser_check_on_login</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Vérifier à la connexion</translation>
    </message>
    <message>
        <source>browser_check_on_unlock</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Vérifier au déverrouillage</translation>
    </message>
    <message>
        <source>browser_check_on_wake</source>
        <extracomment>Browser page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Vérifier après la veille</translation>
    </message>
    <message>
        <source>browser_current</source>
        <extracomment>Browser page, status box: caption above the name of the current default browser.</extracomment>
        <translation>Navigateur par défaut actuel</translation>
    </message>
    <message>
        <source>browser_currently_snoozed</source>
        <extracomment>Browser page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Alertes en pause</translation>
    </message>
    <message>
        <source>browser_enable_monitoring</source>
        <extracomment>Browser page, monitoring box: switch label.</extracomment>
        <translation>Activer la surveillance</translation>
    </message>
    <message>
        <source>browser_event_monitoring_title</source>
        <extracomment>Browser page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Événements système</translation>
    </message>
    <message>
        <source>browser_last_change</source>
        <extracomment>Browser page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Dernière modification</translation>
    </message>
    <message>
        <source>browser_monitoring_title</source>
        <extracomment>Browser page: title of the monitoring box.</extracomment>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>browser_never_changed</source>
        <extracomment>Browser page, statistics box: said when no change has been detected.</extracomment>
        <translation>Aucune modification pour l'instant</translation>
    </message>
    <message>
        <source>browser_no_browsers</source>
        <extracomment>Browser page, target box: shown instead of the picker when no browser is installed.</extracomment>
        <translation>Aucun navigateur n’a été trouvé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>browser_none</source>
        <extracomment>Browser page, target picker: first entry, no target chosen.</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>browser_none_detected</source>
        <extracomment>Browser page, status box: shown when no default browser is known.</extracomment>
        <translation>Aucun détecté</translation>
    </message>
    <message>
        <source>browser_ok</source>
        <extracomment>Browser page: button of the refresh alert.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>browser_refresh</source>
        <extracomment>Browser page, status box: button that searches the installed browsers again.</extracomment>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>browser_refresh_alert_message %lld</source>
        <extracomment>Browser page: message of the refresh alert. %lld = number of browsers found (0 or more).</extracomment>
        <translation>Navigateurs trouvés : %lld</translation>
    </message>
    <message>
        <source>browser_refresh_alert_title</source>
        <extracomment>Browser page: title of the refresh alert.</extracomment>
        <translation>Liste des navigateurs actualisée</translation>
    </message>
    <message>
        <source>browser_reset_snooze</source>
        <extracomment>Browser page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Reprendre les alertes</translation>
    </message>
    <message>
        <source>browser_select_description</source>
        <extracomment>Browser page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel surveille le navigateur par défaut et vous propose de rétablir votre navigateur préféré chaque fois qu’un autre programme le modifie.</translation>
    </message>
    <message>
        <source>browser_select_target</source>
        <extracomment>Browser page, target box: label of the picker.</extracomment>
        <translation>Navigateur préféré</translation>
    </message>
    <message>
        <source>browser_select_to_enable</source>
        <extracomment>Browser page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Choisissez un navigateur préféré pour activer la surveillance.</translation>
    </message>
    <message>
        <source>browser_set_now</source>
        <extracomment>Browser page, target box: button that makes the selected target the default browser now.</extracomment>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>browser_snooze_description</source>
        <extracomment>Browser page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Si vous gardez un autre navigateur depuis l’alerte, Vandorel cesse de vous le demander pendant cette durée.</translation>
    </message>
    <message>
        <source>browser_snooze_duration</source>
        <extracomment>Browser page, snooze box: label of the duration picker.</extracomment>
        <translation>Durée de la pause</translation>
    </message>
    <message>
        <source>browser_snooze_title</source>
        <extracomment>Browser page: title of the snooze box.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>browser_statistics_title</source>
        <extracomment>Browser page: title of the statistics box.</extracomment>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>browser_status_title</source>
        <extracomment>Browser page: title of the status box.</extracomment>
        <translation>État actuel</translation>
    </message>
    <message>
        <source>browser_stop</source>
        <extracomment>Browser page, target box: small red button that cancels a running change.</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>browser_target_title</source>
        <extracomment>Browser page: title of the target box.</extracomment>
        <translation>Navigateur préféré</translation>
    </message>
    <message>
        <source>browser_waiting_prompt</source>
        <extracomment>Browser page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>En attente du système…</translation>
    </message>
    <message>
        <source>email_already_default</source>
        <extracomment>Mail page, target box: shown in green when the selected target already is the default mail client.</extracomment>
        <translation>Déjà par défaut</translation>
    </message>
    <message>
        <source>email_bundle_id %@</source>
        <extracomment>Mail page, target box: line under the picker. %@ = application ID of the selected mail client (such as org.example.App).</extracomment>
        <translation>ID de l’application : %@</translation>
    </message>
    <message>
        <source>email_changes_detected</source>
        <extracomment>Mail page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Modifications détectées</translation>
    </message>
    <message>
        <source>email_check_interval</source>
        <extracomment>Mail page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Fréquence de vérification</translation>
    </message>
    <message>
        <source>email_check_on_login</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Vérifier à la connexion</translation>
    </message>
    <message>
        <source>email_check_on_unlock</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Vérifier au déverrouillage</translation>
    </message>
    <message>
        <source>email_check_on_wake</source>
        <extracomment>Mail page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Vérifier après la veille</translation>
    </message>
    <message>
        <source>email_current</source>
        <extracomment>Mail page, status box: caption above the name of the current default mail client.</extracomment>
        <translation>Client de messagerie par défaut actuel</translation>
    </message>
    <message>
        <source>email_currently_snoozed</source>
        <extracomment>Mail page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Alertes en pause</translation>
    </message>
    <message>
        <source>email_enable_monitoring</source>
        <extracomment>Mail page, monitoring box: switch label.</extracomment>
        <translation>Activer la surveillance</translation>
    </message>
    <message>
        <source>email_event_monitoring_title</source>
        <extracomment>Mail page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Événements système</translation>
    </message>
    <message>
        <source>email_last_change</source>
        <extracomment>Mail page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Dernière modification</translation>
    </message>
    <message>
        <source>email_monitoring_title</source>
        <extracomment>Mail page: title of the monitoring box.</extracomment>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>email_never_changed</source>
        <extracomment>Mail page, statistics box: said when no change has been detected.</extracomment>
        <translation>Aucune modification pour l'instant</translation>
    </message>
    <message>
        <source>email_no_clients</source>
        <extracomment>Mail page, target box: shown instead of the picker when no mail client is installed.</extracomment>
        <translation>Aucun client de messagerie n’a été trouvé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>email_none</source>
        <extracomment>Mail page, target picker: first entry, no target chosen.</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>email_none_detected</source>
        <extracomment>Mail page, status box: shown when no default mail client is known.</extracomment>
        <translation>Aucun détecté</translation>
    </message>
    <message>
        <source>email_ok</source>
        <extracomment>Mail page: button of the refresh alert.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>email_refresh</source>
        <extracomment>Mail page, status box: button that searches the installed mail clients again.</extracomment>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>email_refresh_alert_message %lld</source>
        <extracomment>Mail page: message of the refresh alert. %lld = number of mail clients found (0 or more).</extracomment>
        <translation>Clients de messagerie trouvés : %lld</translation>
    </message>
    <message>
        <source>email_refresh_alert_title</source>
        <extracomment>Mail page: title of the refresh alert.</extracomment>
        <translation>Liste des clients de messagerie actualisée</translation>
    </message>
    <message>
        <source>email_reset_snooze</source>
        <extracomment>Mail page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Reprendre les alertes</translation>
    </message>
    <message>
        <source>email_select_description</source>
        <extracomment>Mail page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel surveille le client de messagerie par défaut et vous propose de rétablir votre client de messagerie préféré chaque fois qu’un autre programme le modifie.</translation>
    </message>
    <message>
        <source>email_select_target</source>
        <extracomment>Mail page, target box: label of the picker.</extracomment>
        <translation>Client de messagerie préféré</translation>
    </message>
    <message>
        <source>email_select_to_enable</source>
        <extracomment>Mail page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Choisissez un client de messagerie préféré pour activer la surveillance.</translation>
    </message>
    <message>
        <source>email_set_now</source>
        <extracomment>Mail page, target box: button that makes the selected target the default mail client now.</extracomment>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>email_snooze_description</source>
        <extracomment>Mail page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Si vous gardez un autre client de messagerie depuis l’alerte, Vandorel cesse de vous le demander pendant cette durée.</translation>
    </message>
    <message>
        <source>email_snooze_duration</source>
        <extracomment>Mail page, snooze box: label of the duration picker.</extracomment>
        <translation>Durée de la pause</translation>
    </message>
    <message>
        <source>email_snooze_title</source>
        <extracomment>Mail page: title of the snooze box.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>email_statistics_title</source>
        <extracomment>Mail page: title of the statistics box.</extracomment>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>email_status_title</source>
        <extracomment>Mail page: title of the status box.</extracomment>
        <translation>État actuel</translation>
    </message>
    <message>
        <source>email_stop</source>
        <extracomment>Mail page, target box: small red button that cancels a running change.</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>email_target_title</source>
        <extracomment>Mail page: title of the target box.</extracomment>
        <translation>Client de messagerie préféré</translation>
    </message>
    <message>
        <source>email_waiting_prompt</source>
        <extracomment>Mail page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>En attente du système…</translation>
    </message>
    <message>
        <source>log_clear</source>
        <extracomment>Log page toolbar: red button that deletes the whole change log (after a confirmation).</extracomment>
        <translation>Vider</translation>
    </message>
    <message>
        <source>log_clear_cancel_button</source>
        <extracomment>Log page: cancel button of the clear confirmation.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>log_clear_confirm_button</source>
        <extracomment>Log page: confirming button of the clear confirmation.</extracomment>
        <translation>Vider</translation>
    </message>
    <message>
        <source>log_clear_confirm_message</source>
        <extracomment>Log page: message of the clear confirmation.</extracomment>
        <translation>Toutes les entrées du journal des modifications seront supprimées. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>log_clear_confirm_title</source>
        <extracomment>Log page: title of the clear confirmation.</extracomment>
        <translation>Vider le journal des modifications ?</translation>
    </message>
    <message>
        <source>log_empty_description</source>
        <extracomment>Log page: explanation under the empty-state title.</extracomment>
        <translation>Les modifications de votre navigateur ou de votre client de messagerie par défaut s’afficheront ici.</translation>
    </message>
    <message>
        <source>log_empty_title</source>
        <extracomment>Log page: title of the empty state.</extracomment>
        <translation>Aucune modification pour l'instant</translation>
    </message>
    <message>
        <source>log_export</source>
        <extracomment>Log page toolbar: button that saves the log as a text file.</extracomment>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>log_export_filename</source>
        <extracomment>Log page: start of the proposed export file name; -&lt;date&gt;.txt is added. Keep it short, no slashes.</extracomment>
        <translation>Journal-Vandorel</translation>
    </message>
    <message>
        <source>log_filter_all</source>
        <extracomment>Log page filter segment: all entries.</extracomment>
        <translation>Tout</translation>
    </message>
    <message>
        <source>log_filter_browser</source>
        <extracomment>Log page filter segment: browser entries only.</extracomment>
        <translation>Navigateur</translation>
    </message>
    <message>
        <source>log_filter_email</source>
        <extracomment>Log page filter segment: mail client entries only.</extracomment>
        <translation>Messagerie</translation>
    </message>
    <message>
        <source>log_filter_label</source>
        <extracomment>Log page: accessible name of the filter control (not drawn).</extracomment>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>log_refresh</source>
        <extracomment>Log page toolbar: button that reads the log again.</extracomment>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>about_contact</source>
        <extracomment>About window: link row that writes a mail to the maker.</extracomment>
        <translation>Contact</translation>
    </message>
    <message>
        <source>about_copyright %lld</source>
        <extracomment>About window footer. %lld = the current year (an integer, written without digit grouping).</extracomment>
        <translation>Copyright © %lld</translation>
    </message>
    <message>
        <source>about_description</source>
        <extracomment>About window: short description under the version.</extracomment>
        <translation>Garde en place le navigateur et le client de messagerie par défaut que vous avez choisis.</translation>
    </message>
    <message>
        <source>about_rights</source>
        <extracomment>About window footer, under the copyright line.</extracomment>
        <translation>Tous droits réservés.</translation>
    </message>
    <message>
        <source>about_support</source>
        <extracomment>About window: link row to the donation page.</extracomment>
        <translation>Soutenir le développement</translation>
    </message>
    <message>
        <source>about_version</source>
        <extracomment>Version line of the about window and the general page. %@ = the version number, such as 1.2.0 (the key has no specifier, the text must have exactly one).</extracomment>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>about_website</source>
        <extracomment>About window: link row to the product's website.</extracomment>
        <translation>Site web</translation>
    </message>
</context>
</TS>
