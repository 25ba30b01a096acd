<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>Localizable</name>
    <message>
        <source>interval_daily</source>
        <extracomment>Check interval picker (browser and mail pages): check once every 24 hours.</extracomment>
        <translation>Eén keer per dag</translation>
    </message>
    <message>
        <source>interval_every_10_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Elke 10 minuten</translation>
    </message>
    <message>
        <source>interval_every_5_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Elke 5 minuten</translation>
    </message>
    <message>
        <source>interval_every_hour</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Elk uur</translation>
    </message>
    <message>
        <source>interval_every_minute</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Elke minuut</translation>
    </message>
    <message>
        <source>interval_none</source>
        <extracomment>Check interval picker (browser and mail pages): no timed checks; checks on wake, unlock and login still run.</extracomment>
        <translation>Nooit</translation>
    </message>
    <message>
        <source>snooze_15_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>15 minuten</translation>
    </message>
    <message>
        <source>snooze_1_hour</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>1 uur</translation>
    </message>
    <message>
        <source>snooze_30_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>30 minuten</translation>
    </message>
    <message>
        <source>snooze_4_hours</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>4 uur</translation>
    </message>
    <message>
        <source>snooze_rest_of_today</source>
        <extracomment>Snooze duration picker (browser and mail pages): snooze until midnight.</extracomment>
        <translation>Rest van vandaag</translation>
    </message>
    <message>
        <source>alert_browser_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default browser no longer is the target. Arguments: 1st %@ = name of the current default browser, 2nd %@ = name of the target browser. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Een ander programma heeft %@ tot je standaardbrowser gemaakt. Je voorkeursbrowser is %@. Wil je die weer als standaard instellen?</translation>
    </message>
    <message>
        <source>alert_browser_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default browser.</extracomment>
        <translation>Standaardbrowser gewijzigd</translation>
    </message>
    <message>
        <source>alert_button_change_back</source>
        <extracomment>First button of both change alerts: makes the target the default again.</extracomment>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>alert_button_keep %@</source>
        <extracomment>Second button of both change alerts: keeps the new default and snoozes the alerts. %@ = name of the current (new) default browser or mail client.</extracomment>
        <translation>%@ voorlopig houden</translation>
    </message>
    <message>
        <source>alert_email_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default mail client no longer is the target. Arguments: 1st %@ = name of the current default mail client, 2nd %@ = name of the target mail client. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Een ander programma heeft %@ tot je standaard-e-mailprogramma gemaakt. Je voorkeurs-e-mailprogramma is %@. Wil je dat weer als standaard instellen?</translation>
    </message>
    <message>
        <source>alert_email_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default mail client.</extracomment>
        <translation>Standaard-e-mailprogramma gewijzigd</translation>
    </message>
    <message>
        <source>update_available_message</source>
        <extracomment>Update sheet, message under the title. %@ = the new version number (the key has no specifier, the text must have exactly one). Inline Markdown such as **bold** is allowed.</extracomment>
        <translation>Vandorel **%@** is beschikbaar.</translation>
    </message>
    <message>
        <source>update_available_title</source>
        <extracomment>Update sheet, title.</extracomment>
        <translation>Update beschikbaar</translation>
    </message>
    <message>
        <source>update_brew_command_hint</source>
        <extracomment>Update sheet, Homebrew box: line above the command, which is shown after it.</extracomment>
        <translation>Voer deze opdracht uit in een terminal om bij te werken:</translation>
    </message>
    <message>
        <source>update_brew_hint</source>
        <extracomment>Update sheet, Homebrew box: first line, next to a mug symbol.</extracomment>
        <translation>Vandorel is geïnstalleerd met Homebrew.</translation>
    </message>
    <message>
        <source>update_copy_command</source>
        <extracomment>Update sheet: tooltip of the button that copies the update command.</extracomment>
        <translation>Opdracht kopiëren</translation>
    </message>
    <message>
        <source>update_later_button</source>
        <extracomment>Update sheet: button that closes the sheet (also Escape).</extracomment>
        <translation>Later</translation>
    </message>
    <message>
        <source>feedback_description</source>
        <extracomment>Feedback page, heading block: description under the question.</extracomment>
        <translation>Vertel ons wat je goed vindt, wat je mist of wat er misging. Met je feedback wordt Vandorel beter.</translation>
    </message>
    <message>
        <source>feedback_error_message</source>
        <extracomment>Feedback page: message of the error alert when sending failed.</extracomment>
        <translation>Je feedback kon niet worden verstuurd. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>feedback_error_title</source>
        <extracomment>Feedback page: title of the error alert.</extracomment>
        <translation>Versturen mislukt</translation>
    </message>
    <message>
        <source>feedback_question</source>
        <extracomment>Feedback page, heading block: question above the row of mood emojis.</extracomment>
        <translation>Wat vind je van Vandorel?</translation>
    </message>
    <message>
        <source>feedback_send</source>
        <extracomment>Feedback page: the send button.</extracomment>
        <translation>Versturen</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <extracomment>Feedback page: the send button while the request is under way.</extracomment>
        <translation>Versturen…</translation>
    </message>
    <message>
        <source>feedback_sent_message</source>
        <extracomment>Feedback page: message of the success alert.</extracomment>
        <translation>Bedankt! Je feedback is verstuurd.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <extracomment>Feedback page: title of the success alert.</extracomment>
        <translation>Feedback verstuurd</translation>
    </message>
    <message>
        <source>feedback_tag_cool_app</source>
        <extracomment>Feedback page, category button: praise.</extracomment>
        <translation>Toffe app</translation>
    </message>
    <message>
        <source>feedback_tag_idea</source>
        <extracomment>Feedback page, category button: a suggestion.</extracomment>
        <translation>Idee</translation>
    </message>
    <message>
        <source>feedback_tag_issue</source>
        <extracomment>Feedback page, category button: a bug or problem.</extracomment>
        <translation>Probleem</translation>
    </message>
    <message>
        <source>feedback_tag_label</source>
        <extracomment>Feedback page: heading above the category buttons.</extracomment>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>feedback_tag_other</source>
        <extracomment>Feedback page, category button: anything else.</extracomment>
        <translation>Overig</translation>
    </message>
    <message>
        <source>feedback_tag_translation</source>
        <extracomment>Feedback page, category button: a remark about a translation.</extracomment>
        <translation>Vertaling</translation>
    </message>
    <message>
        <source>feedback_text_placeholder</source>
        <extracomment>Feedback page: placeholder in the empty text box.</extracomment>
        <translation>Schrijf hier je feedback…</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <extracomment>Feedback page heading; also the feedback row of the tray panel and the feedback link of the about window.</extracomment>
        <translation>Feedback sturen</translation>
    </message>
    <message>
        <source>menu_item_about</source>
        <extracomment>Application menu item that opens the about window.</extracomment>
        <translation>Over Vandorel</translation>
    </message>
    <message>
        <source>menu_item_settings</source>
        <extracomment>Application menu item that opens the settings window (Ctrl+,).</extracomment>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>window_about_title</source>
        <extracomment>Title of the about window.</extracomment>
        <translation>Over Vandorel</translation>
    </message>
    <message>
        <source>window_settings_title</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>Vandorel-instellingen</translation>
    </message>
    <message>
        <source>menu_about</source>
        <extracomment>Tray panel row that opens the about window.</extracomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>menu_quit</source>
        <extracomment>Tray panel row that ends the program; a shortcut sign follows it.</extracomment>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <extracomment>Tray panel row that opens the settings window; a shortcut sign follows it.</extracomment>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>status_default_browser</source>
        <extracomment>Tray panel, browser status row: small caption above the name of the current default browser.</extracomment>
        <translation>Standaardbrowser</translation>
    </message>
    <message>
        <source>status_default_email</source>
        <extracomment>Tray panel, mail status row: small caption above the name of the current default mail client.</extracomment>
        <translation>Standaard-e-mailprogramma</translation>
    </message>
    <message>
        <source>status_mismatch</source>
        <extracomment>Tray panel, status line: the current default is not the target (shown in orange).</extracomment>
        <translation>Afwijking</translation>
    </message>
    <message>
        <source>status_none</source>
        <extracomment>Tray panel: shown in place of a name when no default is known.</extracomment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>status_not_protected</source>
        <extracomment>Tray panel, status line: monitoring is off or has nothing to trigger it (shown in red).</extracomment>
        <translation>Niet beschermd</translation>
    </message>
    <message>
        <source>status_protected</source>
        <extracomment>Tray panel, status line: monitoring is on (shown in green).</extracomment>
        <translation>Beschermd</translation>
    </message>
    <message>
        <source>status_should_be %@</source>
        <extracomment>Tray panel, status row, shown on a mismatch. %@ = name of the target browser or mail client.</extracomment>
        <translation>Moet %@ zijn</translation>
    </message>
    <message>
        <source>tab_browser</source>
        <extracomment>Settings window: tab of the browser page.</extracomment>
        <translation>Browser</translation>
    </message>
    <message>
        <source>tab_email</source>
        <extracomment>Settings window: tab of the mail client page.</extracomment>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>tab_feedback</source>
        <extracomment>Settings window: tab of the feedback page.</extracomment>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>tab_general</source>
        <extracomment>Settings window: tab of the general page.</extracomment>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>tab_log</source>
        <extracomment>Settings window: tab of the change log page.</extracomment>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>general_appearance</source>
        <extracomment>General page, settings: label of the light/dark picker.</extracomment>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>general_appearance_dark</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Donker</translation>
    </message>
    <message>
        <source>general_appearance_light</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Licht</translation>
    </message>
    <message>
        <source>general_appearance_system</source>
        <extracomment>General page, appearance picker segment: follow the system.</extracomment>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>general_buy_coffee</source>
        <extracomment>General page, support section: donation link button.</extracomment>
        <translation>Trakteer me op koffie</translation>
    </message>
    <message>
        <source>general_cancel</source>
        <extracomment>General page: cancel button of the three confirmation dialogs.</extracomment>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>general_check_at_startup</source>
        <extracomment>General page, updates: label of the switch for an update check when the program starts.</extracomment>
        <translation>Controleren bij het starten</translation>
    </message>
    <message>
        <source>general_check_for_updates</source>
        <extracomment>General page, updates: button that checks for updates now.</extracomment>
        <translation>Controleren op updates</translation>
    </message>
    <message>
        <source>general_colored_icon</source>
        <extracomment>General page, settings: label of the switch that shows the tray icon in color.</extracomment>
        <translation>Systeemvakpictogram in kleur</translation>
    </message>
    <message>
        <source>general_delete_logs</source>
        <extracomment>General page, reset section: button that deletes the change log.</extracomment>
        <translation>Logboek verwijderen</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_button</source>
        <extracomment>General page: destructive button of the delete-log confirmation.</extracomment>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_message</source>
        <extracomment>General page: message of the delete-log confirmation.</extracomment>
        <translation>Alle items in het logboek worden verwijderd. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_title</source>
        <extracomment>General page: title of the delete-log confirmation.</extracomment>
        <translation>Logboek verwijderen?</translation>
    </message>
    <message>
        <source>general_description</source>
        <extracomment>General page header: one-sentence description of the program.</extracomment>
        <translation>Vandorel houdt je gekozen standaardbrowser en e-mailprogramma op hun plaats en laat het je weten wanneer een ander programma ze wijzigt.</translation>
    </message>
    <message>
        <source>general_feature_1</source>
        <extracomment>General page, features list, item 1 (shield symbol).</extracomment>
        <translation>Zorgt dat je standaardbrowser en e-mailprogramma blijven zoals je ze hebt gekozen</translation>
    </message>
    <message>
        <source>general_feature_2</source>
        <extracomment>General page, features list, item 2 (bell symbol).</extracomment>
        <translation>Waarschuwt je wanneer een ander programma zich als standaard instelt</translation>
    </message>
    <message>
        <source>general_feature_3</source>
        <extracomment>General page, features list, item 3 (clock symbol).</extracomment>
        <translation>Controleert volgens schema, na de slaapstand, bij ontgrendelen en bij inloggen</translation>
    </message>
    <message>
        <source>general_feature_4</source>
        <extracomment>General page, features list, item 4 (circular arrow symbol).</extracomment>
        <translation>Zet een standaard met één klik terug</translation>
    </message>
    <message>
        <source>general_feature_5</source>
        <extracomment>General page, features list, item 5 (chart symbol).</extracomment>
        <translation>Telt elke wijziging en houdt die bij in het logboek</translation>
    </message>
    <message>
        <source>general_features_title</source>
        <extracomment>General page: heading of the features list.</extracomment>
        <translation>Functies</translation>
    </message>
    <message>
        <source>general_language</source>
        <extracomment>General page, settings: label of the interface language picker.</extracomment>
        <translation>Taal</translation>
    </message>
    <message>
        <source>general_launch_at_login</source>
        <extracomment>General page, settings: label of the switch that starts the program at login.</extracomment>
        <translation>Starten bij inloggen</translation>
    </message>
    <message>
        <source>general_ok</source>
        <extracomment>OK button of the no-updates alert (general page) and of the feedback alerts.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>general_reset_counters</source>
        <extracomment>General page, reset section: button that sets both change counters to zero.</extracomment>
        <translation>Tellers nulstellen</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_button</source>
        <extracomment>General page: destructive button of the reset-counters confirmation.</extracomment>
        <translation>Nulstellen</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_message</source>
        <extracomment>General page: message of the reset-counters confirmation.</extracomment>
        <translation>De wijzigingstellers van de standaardbrowser en het e-mailprogramma worden op nul gezet.</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_title</source>
        <extracomment>General page: title of the reset-counters confirmation.</extracomment>
        <translation>Tellers nulstellen?</translation>
    </message>
    <message>
        <source>general_reset_settings</source>
        <extracomment>General page, reset section: button that restores the default settings.</extracomment>
        <translation>Alle instellingen herstellen</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_button</source>
        <extracomment>General page: destructive button of the reset-settings confirmation.</extracomment>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_message</source>
        <extracomment>General page: message of the reset-settings confirmation.</extracomment>
        <translation>Alle instellingen krijgen weer hun standaardwaarde. Je voorkeursbrowser, je voorkeurs-e-mailprogramma, de tellers en het logboek blijven bewaard.</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_title</source>
        <extracomment>General page: title of the reset-settings confirmation.</extracomment>
        <translation>Alle instellingen herstellen?</translation>
    </message>
    <message>
        <source>general_reset_title</source>
        <extracomment>General page: heading of the reset section.</extracomment>
        <translation>Resetten</translation>
    </message>
    <message>
        <source>general_reset_update_reminder_snooze</source>
        <extracomment>General page, reset section: button that ends the snooze of update reminders, so they show again.</extracomment>
        <translation>Updateherinneringen herstellen</translation>
    </message>
    <message>
        <source>general_settings_title</source>
        <extracomment>General page: heading of the settings section.</extracomment>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>general_support_description</source>
        <extracomment>General page, support section: text above the donation button.</extracomment>
        <translation>Vandorel is gratis. Heb je er iets aan, dan kun je de verdere ontwikkeling steunen.</translation>
    </message>
    <message>
        <source>general_support_title</source>
        <extracomment>General page: heading of the support (donation) section.</extracomment>
        <translation>Steun</translation>
    </message>
    <message>
        <source>general_update_check_interval</source>
        <extracomment>General page, updates: label of the picker for how often to check for updates.</extracomment>
        <translation>Controle op updates</translation>
    </message>
    <message>
        <source>general_updates_title</source>
        <extracomment>General page: heading of the updates section.</extracomment>
        <translation>Updates</translation>
    </message>
    <message>
        <source>update_interval_12h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Elke 12 uur</translation>
    </message>
    <message>
        <source>update_interval_6h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Elke 6 uur</translation>
    </message>
    <message>
        <source>update_interval_daily</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Dagelijks</translation>
    </message>
    <message>
        <source>update_interval_never</source>
        <extracomment>General page, update check interval picker: no automatic checks.</extracomment>
        <translation>Nooit</translation>
    </message>
    <message>
        <source>update_interval_weekly</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Wekelijks</translation>
    </message>
    <message>
        <source>update_no_updates_message</source>
        <extracomment>General page: message of the alert after a manual check found no update.</extracomment>
        <translation>Je gebruikt de nieuwste versie van Vandorel.</translation>
    </message>
    <message>
        <source>update_no_updates_title</source>
        <extracomment>General page: title of the alert after a manual check found no update.</extracomment>
        <translation>Vandorel is up-to-date</translation>
    </message>
    <message>
        <source>browser_already_default</source>
        <extracomment>Browser page, target box: shown in green when the selected target already is the default browser.</extracomment>
        <translation>Al ingesteld als standaard</translation>
    </message>
    <message>
        <source>browser_bundle_id %@</source>
        <extracomment>Browser page, target box: line under the picker. %@ = application ID of the selected browser (such as org.example.App).</extracomment>
        <translation>App-ID: %@</translation>
    </message>
    <message>
        <source>browser_changes_detected</source>
        <extracomment>Browser page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Gedetecteerde wijzigingen</translation>
    </message>
    <message>
        <source>browser_check_interval</source>
        <extracomment>Browser page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Controle-interval</translation>
    </message>
    <message>
        <source>browser_check_on_login</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Controleren bij inloggen</translation>
    </message>
    <message>
        <source>browser_check_on_unlock</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Controleren bij ontgrendelen</translation>
    </message>
    <message>
        <source>browser_check_on_wake</source>
        <extracomment>Browser page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Controleren na slaapstand</translation>
    </message>
    <message>
        <source>browser_current</source>
        <extracomment>Browser page, status box: caption above the name of the current default browser.</extracomment>
        <translation>Huidige standaardbrowser</translation>
    </message>
    <message>
        <source>browser_currently_snoozed</source>
        <extracomment>Browser page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Meldingen zijn gepauzeerd</translation>
    </message>
    <message>
        <source>browser_enable_monitoring</source>
        <extracomment>Browser page, monitoring box: switch label.</extracomment>
        <translation>Bewaking inschakelen</translation>
    </message>
    <message>
        <source>browser_event_monitoring_title</source>
        <extracomment>Browser page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Systeemgebeurtenissen</translation>
    </message>
    <message>
        <source>browser_last_change</source>
        <extracomment>Browser page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Laatste wijziging</translation>
    </message>
    <message>
        <source>browser_monitoring_title</source>
        <extracomment>Browser page: title of the monitoring box.</extracomment>
        <translation>Bewaking</translation>
    </message>
    <message>
        <source>browser_never_changed</source>
        <extracomment>Browser page, statistics box: said when no change has been detected.</extracomment>
        <translation>Nog geen wijzigingen</translation>
    </message>
    <message>
        <source>browser_no_browsers</source>
        <extracomment>Browser page, target box: shown instead of the picker when no browser is installed.</extracomment>
        <translation>Er zijn geen browsers gevonden op deze computer.</translation>
    </message>
    <message>
        <source>browser_none</source>
        <extracomment>Browser page, target picker: first entry, no target chosen.</extracomment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>browser_none_detected</source>
        <extracomment>Browser page, status box: shown when no default browser is known.</extracomment>
        <translation>Geen gevonden</translation>
    </message>
    <message>
        <source>browser_ok</source>
        <extracomment>Browser page: button of the refresh alert.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>browser_refresh</source>
        <extracomment>Browser page, status box: button that searches the installed browsers again.</extracomment>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>browser_refresh_alert_message %lld</source>
        <extracomment>Browser page: message of the refresh alert. %lld = number of browsers found (0 or more).</extracomment>
        <translation>Gevonden browsers: %lld</translation>
    </message>
    <message>
        <source>browser_refresh_alert_title</source>
        <extracomment>Browser page: title of the refresh alert.</extracomment>
        <translation>Browserlijst vernieuwd</translation>
    </message>
    <message>
        <source>browser_reset_snooze</source>
        <extracomment>Browser page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Pauze beëindigen</translation>
    </message>
    <message>
        <source>browser_select_description</source>
        <extracomment>Browser page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel houdt de standaardbrowser in de gaten en biedt aan je voorkeursbrowser terug te zetten zodra een ander programma die wijzigt.</translation>
    </message>
    <message>
        <source>browser_select_target</source>
        <extracomment>Browser page, target box: label of the picker.</extracomment>
        <translation>Voorkeursbrowser</translation>
    </message>
    <message>
        <source>browser_select_to_enable</source>
        <extracomment>Browser page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Kies een voorkeursbrowser om de bewaking in te schakelen.</translation>
    </message>
    <message>
        <source>browser_set_now</source>
        <extracomment>Browser page, target box: button that makes the selected target the default browser now.</extracomment>
        <translation>Als standaard instellen</translation>
    </message>
    <message>
        <source>browser_snooze_description</source>
        <extracomment>Browser page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Kies je in de melding voor een andere browser, dan vraagt Vandorel zo lang niets meer.</translation>
    </message>
    <message>
        <source>browser_snooze_duration</source>
        <extracomment>Browser page, snooze box: label of the duration picker.</extracomment>
        <translation>Pauzeduur</translation>
    </message>
    <message>
        <source>browser_snooze_title</source>
        <extracomment>Browser page: title of the snooze box.</extracomment>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>browser_statistics_title</source>
        <extracomment>Browser page: title of the statistics box.</extracomment>
        <translation>Statistieken</translation>
    </message>
    <message>
        <source>browser_status_title</source>
        <extracomment>Browser page: title of the status box.</extracomment>
        <translation>Huidige status</translation>
    </message>
    <message>
        <source>browser_stop</source>
        <extracomment>Browser page, target box: small red button that cancels a running change.</extracomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>browser_target_title</source>
        <extracomment>Browser page: title of the target box.</extracomment>
        <translation>Voorkeursbrowser</translation>
    </message>
    <message>
        <source>browser_waiting_prompt</source>
        <extracomment>Browser page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>Wachten op het systeem…</translation>
    </message>
    <message>
        <source>email_already_default</source>
        <extracomment>Mail page, target box: shown in green when the selected target already is the default mail client.</extracomment>
        <translation>Al ingesteld als standaard</translation>
    </message>
    <message>
        <source>email_bundle_id %@</source>
        <extracomment>Mail page, target box: line under the picker. %@ = application ID of the selected mail client (such as org.example.App).</extracomment>
        <translation>App-ID: %@</translation>
    </message>
    <message>
        <source>email_changes_detected</source>
        <extracomment>Mail page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Gedetecteerde wijzigingen</translation>
    </message>
    <message>
        <source>email_check_interval</source>
        <extracomment>Mail page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Controle-interval</translation>
    </message>
    <message>
        <source>email_check_on_login</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Controleren bij inloggen</translation>
    </message>
    <message>
        <source>email_check_on_unlock</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Controleren bij ontgrendelen</translation>
    </message>
    <message>
        <source>email_check_on_wake</source>
        <extracomment>Mail page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Controleren na slaapstand</translation>
    </message>
    <message>
        <source>email_current</source>
        <extracomment>Mail page, status box: caption above the name of the current default mail client.</extracomment>
        <translation>Huidig standaard-e-mailprogramma</translation>
    </message>
    <message>
        <source>email_currently_snoozed</source>
        <extracomment>Mail page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Meldingen zijn gepauzeerd</translation>
    </message>
    <message>
        <source>email_enable_monitoring</source>
        <extracomment>Mail page, monitoring box: switch label.</extracomment>
        <translation>Bewaking inschakelen</translation>
    </message>
    <message>
        <source>email_event_monitoring_title</source>
        <extracomment>Mail page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Systeemgebeurtenissen</translation>
    </message>
    <message>
        <source>email_last_change</source>
        <extracomment>Mail page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Laatste wijziging</translation>
    </message>
    <message>
        <source>email_monitoring_title</source>
        <extracomment>Mail page: title of the monitoring box.</extracomment>
        <translation>Bewaking</translation>
    </message>
    <message>
        <source>email_never_changed</source>
        <extracomment>Mail page, statistics box: said when no change has been detected.</extracomment>
        <translation>Nog geen wijzigingen</translation>
    </message>
    <message>
        <source>email_no_clients</source>
        <extracomment>Mail page, target box: shown instead of the picker when no mail client is installed.</extracomment>
        <translation>Er zijn geen e-mailprogramma's gevonden op deze computer.</translation>
    </message>
    <message>
        <source>email_none</source>
        <extracomment>Mail page, target picker: first entry, no target chosen.</extracomment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>email_none_detected</source>
        <extracomment>Mail page, status box: shown when no default mail client is known.</extracomment>
        <translation>Geen gevonden</translation>
    </message>
    <message>
        <source>email_ok</source>
        <extracomment>Mail page: button of the refresh alert.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>email_refresh</source>
        <extracomment>Mail page, status box: button that searches the installed mail clients again.</extracomment>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>email_refresh_alert_message %lld</source>
        <extracomment>Mail page: message of the refresh alert. %lld = number of mail clients found (0 or more).</extracomment>
        <translation>Gevonden e-mailprogramma's: %lld</translation>
    </message>
    <message>
        <source>email_refresh_alert_title</source>
        <extracomment>Mail page: title of the refresh alert.</extracomment>
        <translation>Lijst met e-mailprogramma's vernieuwd</translation>
    </message>
    <message>
        <source>email_reset_snooze</source>
        <extracomment>Mail page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Pauze beëindigen</translation>
    </message>
    <message>
        <source>email_select_description</source>
        <extracomment>Mail page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel houdt het standaard-e-mailprogramma in de gaten en biedt aan je voorkeurs-e-mailprogramma terug te zetten zodra een ander programma het wijzigt.</translation>
    </message>
    <message>
        <source>email_select_target</source>
        <extracomment>Mail page, target box: label of the picker.</extracomment>
        <translation>Voorkeurs-e-mailprogramma</translation>
    </message>
    <message>
        <source>email_select_to_enable</source>
        <extracomment>Mail page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Kies een voorkeurs-e-mailprogramma om de bewaking in te schakelen.</translation>
    </message>
    <message>
        <source>email_set_now</source>
        <extracomment>Mail page, target box: button that makes the selected target the default mail client now.</extracomment>
        <translation>Als standaard instellen</translation>
    </message>
    <message>
        <source>email_snooze_description</source>
        <extracomment>Mail page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Kies je in de melding voor een ander e-mailprogramma, dan vraagt Vandorel zo lang niets meer.</translation>
    </message>
    <message>
        <source>email_snooze_duration</source>
        <extracomment>Mail page, snooze box: label of the duration picker.</extracomment>
        <translation>Pauzeduur</translation>
    </message>
    <message>
        <source>email_snooze_title</source>
        <extracomment>Mail page: title of the snooze box.</extracomment>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>email_statistics_title</source>
        <extracomment>Mail page: title of the statistics box.</extracomment>
        <translation>Statistieken</translation>
    </message>
    <message>
        <source>email_status_title</source>
        <extracomment>Mail page: title of the status box.</extracomment>
        <translation>Huidige status</translation>
    </message>
    <message>
        <source>email_stop</source>
        <extracomment>Mail page, target box: small red button that cancels a running change.</extracomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>email_target_title</source>
        <extracomment>Mail page: title of the target box.</extracomment>
        <translation>Voorkeurs-e-mailprogramma</translation>
    </message>
    <message>
        <source>email_waiting_prompt</source>
        <extracomment>Mail page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>Wachten op het systeem…</translation>
    </message>
    <message>
        <source>log_clear</source>
        <extracomment>Log page toolbar: red button that deletes the whole change log (after a confirmation).</extracomment>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>log_clear_cancel_button</source>
        <extracomment>Log page: cancel button of the clear confirmation.</extracomment>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>log_clear_confirm_button</source>
        <extracomment>Log page: confirming button of the clear confirmation.</extracomment>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>log_clear_confirm_message</source>
        <extracomment>Log page: message of the clear confirmation.</extracomment>
        <translation>Alle items in het logboek worden gewist. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>log_clear_confirm_title</source>
        <extracomment>Log page: title of the clear confirmation.</extracomment>
        <translation>Logboek wissen?</translation>
    </message>
    <message>
        <source>log_empty_description</source>
        <extracomment>Log page: explanation under the empty-state title.</extracomment>
        <translation>Wijzigingen van je standaardbrowser of e-mailprogramma verschijnen hier.</translation>
    </message>
    <message>
        <source>log_empty_title</source>
        <extracomment>Log page: title of the empty state.</extracomment>
        <translation>Nog geen wijzigingen</translation>
    </message>
    <message>
        <source>log_export</source>
        <extracomment>Log page toolbar: button that saves the log as a text file.</extracomment>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>log_export_filename</source>
        <extracomment>Log page: start of the proposed export file name; -&lt;date&gt;.txt is added. Keep it short, no slashes.</extracomment>
        <translation>Vandorel-logboek</translation>
    </message>
    <message>
        <source>log_filter_all</source>
        <extracomment>Log page filter segment: all entries.</extracomment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>log_filter_browser</source>
        <extracomment>Log page filter segment: browser entries only.</extracomment>
        <translation>Browser</translation>
    </message>
    <message>
        <source>log_filter_email</source>
        <extracomment>Log page filter segment: mail client entries only.</extracomment>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>log_filter_label</source>
        <extracomment>Log page: accessible name of the filter control (not drawn).</extracomment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>log_refresh</source>
        <extracomment>Log page toolbar: button that reads the log again.</extracomment>
        <translation>Vernieuwen</translation>
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
        <translation>Houdt je gekozen standaardbrowser en e-mailprogramma op hun plaats.</translation>
    </message>
    <message>
        <source>about_rights</source>
        <extracomment>About window footer, under the copyright line.</extracomment>
        <translation>Alle rechten voorbehouden.</translation>
    </message>
    <message>
        <source>about_support</source>
        <extracomment>About window: link row to the donation page.</extracomment>
        <translation>Ontwikkeling steunen</translation>
    </message>
    <message>
        <source>about_version</source>
        <extracomment>Version line of the about window and the general page. %@ = the version number, such as 1.2.0 (the key has no specifier, the text must have exactly one).</extracomment>
        <translation>Versie %@</translation>
    </message>
    <message>
        <source>about_website</source>
        <extracomment>About window: link row to the product's website.</extracomment>
        <translation>Website</translation>
    </message>
</context>
</TS>
