<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message>
        <source>interval_daily</source>
        <extracomment>Check interval picker (browser and mail pages): check once every 24 hours.</extracomment>
        <translation>Einmal am Tag</translation>
    </message>
    <message>
        <source>interval_every_10_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Alle 10 Minuten</translation>
    </message>
    <message>
        <source>interval_every_5_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Alle 5 Minuten</translation>
    </message>
    <message>
        <source>interval_every_hour</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Jede Stunde</translation>
    </message>
    <message>
        <source>interval_every_minute</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Jede Minute</translation>
    </message>
    <message>
        <source>interval_none</source>
        <extracomment>Check interval picker (browser and mail pages): no timed checks; checks on wake, unlock and login still run.</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>snooze_15_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <source>snooze_1_hour</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>snooze_30_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <source>snooze_4_hours</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>4 Stunden</translation>
    </message>
    <message>
        <source>snooze_rest_of_today</source>
        <extracomment>Snooze duration picker (browser and mail pages): snooze until midnight.</extracomment>
        <translation>Rest des Tages</translation>
    </message>
    <message>
        <source>alert_browser_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default browser no longer is the target. Arguments: 1st %@ = name of the current default browser, 2nd %@ = name of the target browser. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Ein anderes Programm hat %@ als Ihren Standardbrowser festgelegt. Ihr bevorzugter Browser ist %@. Möchten Sie ihn wieder als Standard festlegen?</translation>
    </message>
    <message>
        <source>alert_browser_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default browser.</extracomment>
        <translation>Standardbrowser geändert</translation>
    </message>
    <message>
        <source>alert_button_change_back</source>
        <extracomment>First button of both change alerts: makes the target the default again.</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>alert_button_keep %@</source>
        <extracomment>Second button of both change alerts: keeps the new default and snoozes the alerts. %@ = name of the current (new) default browser or mail client.</extracomment>
        <translation>%@ vorerst behalten</translation>
    </message>
    <message>
        <source>alert_email_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default mail client no longer is the target. Arguments: 1st %@ = name of the current default mail client, 2nd %@ = name of the target mail client. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Ein anderes Programm hat %@ als Ihr Standard-E-Mail-Programm festgelegt. Ihr bevorzugtes E-Mail-Programm ist %@. Möchten Sie es wieder als Standard festlegen?</translation>
    </message>
    <message>
        <source>alert_email_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default mail client.</extracomment>
        <translation>Standard-E-Mail-Programm geändert</translation>
    </message>
    <message>
        <source>update_available_message</source>
        <extracomment>Update sheet, message under the title. %@ = the new version number (the key has no specifier, the text must have exactly one). Inline Markdown such as **bold** is allowed.</extracomment>
        <translation>Vandorel **%@** ist verfügbar.</translation>
    </message>
    <message>
        <source>update_available_title</source>
        <extracomment>Update sheet, title.</extracomment>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>update_brew_command_hint</source>
        <extracomment>Update sheet, Homebrew box: line above the command, which is shown after it.</extracomment>
        <translation>Führen Sie zum Aktualisieren diesen Befehl in einem Terminal aus:</translation>
    </message>
    <message>
        <source>update_brew_hint</source>
        <extracomment>Update sheet, Homebrew box: first line, next to a mug symbol.</extracomment>
        <translation>Vandorel wurde mit Homebrew installiert.</translation>
    </message>
    <message>
        <source>update_copy_command</source>
        <extracomment>Update sheet: tooltip of the button that copies the update command.</extracomment>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>update_later_button</source>
        <extracomment>Update sheet: button that closes the sheet (also Escape).</extracomment>
        <translation>Später</translation>
    </message>
    <message>
        <source>feedback_description</source>
        <extracomment>Feedback page, heading block: description under the question.</extracomment>
        <translation>Sagen Sie uns, was Ihnen gefällt, was Ihnen fehlt oder was nicht funktioniert hat. Ihr Feedback hilft uns, Vandorel besser zu machen.</translation>
    </message>
    <message>
        <source>feedback_error_message</source>
        <extracomment>Feedback page: message of the error alert when sending failed.</extracomment>
        <translation>Ihr Feedback konnte nicht gesendet werden. Bitte prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>feedback_error_title</source>
        <extracomment>Feedback page: title of the error alert.</extracomment>
        <translation>Senden fehlgeschlagen</translation>
    </message>
    <message>
        <source>feedback_question</source>
        <extracomment>Feedback page, heading block: question above the row of mood emojis.</extracomment>
        <translation>Wie gefällt Ihnen Vandorel?</translation>
    </message>
    <message>
        <source>feedback_send</source>
        <extracomment>Feedback page: the send button.</extracomment>
        <translation>Senden</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <extracomment>Feedback page: the send button while the request is under way.</extracomment>
        <translation>Wird gesendet…</translation>
    </message>
    <message>
        <source>feedback_sent_message</source>
        <extracomment>Feedback page: message of the success alert.</extracomment>
        <translation>Vielen Dank! Ihr Feedback wurde gesendet.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <extracomment>Feedback page: title of the success alert.</extracomment>
        <translation>Feedback gesendet</translation>
    </message>
    <message>
        <source>feedback_tag_cool_app</source>
        <extracomment>Feedback page, category button: praise.</extracomment>
        <translation>Tolle App</translation>
    </message>
    <message>
        <source>feedback_tag_idea</source>
        <extracomment>Feedback page, category button: a suggestion.</extracomment>
        <translation>Idee</translation>
    </message>
    <message>
        <source>feedback_tag_issue</source>
        <extracomment>Feedback page, category button: a bug or problem.</extracomment>
        <translation>Problem</translation>
    </message>
    <message>
        <source>feedback_tag_label</source>
        <extracomment>Feedback page: heading above the category buttons.</extracomment>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>feedback_tag_other</source>
        <extracomment>Feedback page, category button: anything else.</extracomment>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>feedback_tag_translation</source>
        <extracomment>Feedback page, category button: a remark about a translation.</extracomment>
        <translation>Übersetzung</translation>
    </message>
    <message>
        <source>feedback_text_placeholder</source>
        <extracomment>Feedback page: placeholder in the empty text box.</extracomment>
        <translation>Schreiben Sie hier Ihr Feedback…</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <extracomment>Feedback page heading; also the feedback row of the tray panel and the feedback link of the about window.</extracomment>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>menu_item_about</source>
        <extracomment>Application menu item that opens the about window.</extracomment>
        <translation>Über Vandorel</translation>
    </message>
    <message>
        <source>menu_item_settings</source>
        <extracomment>Application menu item that opens the settings window (Ctrl+,).</extracomment>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>window_about_title</source>
        <extracomment>Title of the about window.</extracomment>
        <translation>Über Vandorel</translation>
    </message>
    <message>
        <source>window_settings_title</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>Vandorel-Einstellungen</translation>
    </message>
    <message>
        <source>menu_about</source>
        <extracomment>Tray panel row that opens the about window.</extracomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>menu_quit</source>
        <extracomment>Tray panel row that ends the program; a shortcut sign follows it.</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <extracomment>Tray panel row that opens the settings window; a shortcut sign follows it.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>status_default_browser</source>
        <extracomment>Tray panel, browser status row: small caption above the name of the current default browser.</extracomment>
        <translation>Standardbrowser</translation>
    </message>
    <message>
        <source>status_default_email</source>
        <extracomment>Tray panel, mail status row: small caption above the name of the current default mail client.</extracomment>
        <translation>Standard-E-Mail-Programm</translation>
    </message>
    <message>
        <source>status_mismatch</source>
        <extracomment>Tray panel, status line: the current default is not the target (shown in orange).</extracomment>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>status_none</source>
        <extracomment>Tray panel: shown in place of a name when no default is known.</extracomment>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>status_not_protected</source>
        <extracomment>Tray panel, status line: monitoring is off or has nothing to trigger it (shown in red).</extracomment>
        <translation>Ungeschützt</translation>
    </message>
    <message>
        <source>status_protected</source>
        <extracomment>Tray panel, status line: monitoring is on (shown in green).</extracomment>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>status_should_be %@</source>
        <extracomment>Tray panel, status row, shown on a mismatch. %@ = name of the target browser or mail client.</extracomment>
        <translation>Sollte %@ sein</translation>
    </message>
    <message>
        <source>tab_browser</source>
        <extracomment>Settings window: tab of the browser page.</extracomment>
        <translation>Browser</translation>
    </message>
    <message>
        <source>tab_email</source>
        <extracomment>Settings window: tab of the mail client page.</extracomment>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>tab_feedback</source>
        <extracomment>Settings window: tab of the feedback page.</extracomment>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>tab_general</source>
        <extracomment>Settings window: tab of the general page.</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>tab_log</source>
        <extracomment>Settings window: tab of the change log page.</extracomment>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>general_appearance</source>
        <extracomment>General page, settings: label of the light/dark picker.</extracomment>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>general_appearance_dark</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>general_appearance_light</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Hell</translation>
    </message>
    <message>
        <source>general_appearance_system</source>
        <extracomment>General page, appearance picker segment: follow the system.</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>general_buy_coffee</source>
        <extracomment>General page, support section: donation link button.</extracomment>
        <translation>Kaffee spendieren</translation>
    </message>
    <message>
        <source>general_cancel</source>
        <extracomment>General page: cancel button of the three confirmation dialogs.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>general_check_at_startup</source>
        <extracomment>General page, updates: label of the switch for an update check when the program starts.</extracomment>
        <translation>Beim Start prüfen</translation>
    </message>
    <message>
        <source>general_check_for_updates</source>
        <extracomment>General page, updates: button that checks for updates now.</extracomment>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>general_colored_icon</source>
        <extracomment>General page, settings: label of the switch that shows the tray icon in color.</extracomment>
        <translation>Farbiges Tray-Symbol</translation>
    </message>
    <message>
        <source>general_delete_logs</source>
        <extracomment>General page, reset section: button that deletes the change log.</extracomment>
        <translation>Änderungsprotokoll löschen</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_button</source>
        <extracomment>General page: destructive button of the delete-log confirmation.</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_message</source>
        <extracomment>General page: message of the delete-log confirmation.</extracomment>
        <translation>Alle Einträge des Änderungsprotokolls werden gelöscht. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_title</source>
        <extracomment>General page: title of the delete-log confirmation.</extracomment>
        <translation>Änderungsprotokoll löschen?</translation>
    </message>
    <message>
        <source>general_description</source>
        <extracomment>General page header: one-sentence description of the program.</extracomment>
        <translation>Vandorel sorgt dafür, dass Ihr Standardbrowser und Ihr Standard-E-Mail-Programm so bleiben, wie Sie sie gewählt haben, und meldet sich, wenn ein anderes Programm sie ändert.</translation>
    </message>
    <message>
        <source>general_feature_1</source>
        <extracomment>General page, features list, item 1 (shield symbol).</extracomment>
        <translation>Behält Standardbrowser und Standard-E-Mail-Programm so bei, wie Sie sie gewählt haben</translation>
    </message>
    <message>
        <source>general_feature_2</source>
        <extracomment>General page, features list, item 2 (bell symbol).</extracomment>
        <translation>Meldet sich, wenn sich ein anderes Programm zum Standard macht</translation>
    </message>
    <message>
        <source>general_feature_3</source>
        <extracomment>General page, features list, item 3 (clock symbol).</extracomment>
        <translation>Prüft regelmäßig, nach dem Ruhezustand, beim Entsperren und beim Anmelden</translation>
    </message>
    <message>
        <source>general_feature_4</source>
        <extracomment>General page, features list, item 4 (circular arrow symbol).</extracomment>
        <translation>Stellt Ihre Wahl mit einem Klick wieder her</translation>
    </message>
    <message>
        <source>general_feature_5</source>
        <extracomment>General page, features list, item 5 (chart symbol).</extracomment>
        <translation>Zählt und protokolliert jede Änderung</translation>
    </message>
    <message>
        <source>general_features_title</source>
        <extracomment>General page: heading of the features list.</extracomment>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>general_language</source>
        <extracomment>General page, settings: label of the interface language picker.</extracomment>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>general_launch_at_login</source>
        <extracomment>General page, settings: label of the switch that starts the program at login.</extracomment>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>general_ok</source>
        <extracomment>OK button of the no-updates alert (general page) and of the feedback alerts.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>general_reset_counters</source>
        <extracomment>General page, reset section: button that sets both change counters to zero.</extracomment>
        <translation>Zähler zurücksetzen</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_button</source>
        <extracomment>General page: destructive button of the reset-counters confirmation.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_message</source>
        <extracomment>General page: message of the reset-counters confirmation.</extracomment>
        <translation>Die Änderungszähler für den Standardbrowser und das Standard-E-Mail-Programm werden auf null gesetzt.</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_title</source>
        <extracomment>General page: title of the reset-counters confirmation.</extracomment>
        <translation>Zähler zurücksetzen?</translation>
    </message>
    <message>
        <source>general_reset_settings</source>
        <extracomment>General page, reset section: button that restores the default settings.</extracomment>
        <translation>Alle Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_button</source>
        <extracomment>General page: destructive button of the reset-settings confirmation.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_message</source>
        <extracomment>General page: message of the reset-settings confirmation.</extracomment>
        <translation>Alle Einstellungen erhalten wieder ihre Standardwerte. Ihr bevorzugter Browser, Ihr bevorzugtes E-Mail-Programm, die Zähler und das Änderungsprotokoll bleiben erhalten.</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_title</source>
        <extracomment>General page: title of the reset-settings confirmation.</extracomment>
        <translation>Alle Einstellungen zurücksetzen?</translation>
    </message>
    <message>
        <source>general_reset_title</source>
        <extracomment>General page: heading of the reset section.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>general_reset_update_reminder_snooze</source>
        <extracomment>General page, reset section: button that ends the snooze of update reminders, so they show again.</extracomment>
        <translation>Update-Erinnerungen zurücksetzen</translation>
    </message>
    <message>
        <source>general_settings_title</source>
        <extracomment>General page: heading of the settings section.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>general_support_description</source>
        <extracomment>General page, support section: text above the donation button.</extracomment>
        <translation>Vandorel ist kostenlos. Wenn es Ihnen nützt, können Sie die Weiterentwicklung unterstützen.</translation>
    </message>
    <message>
        <source>general_support_title</source>
        <extracomment>General page: heading of the support (donation) section.</extracomment>
        <translation>Unterstützen</translation>
    </message>
    <message>
        <source>general_update_check_interval</source>
        <extracomment>General page, updates: label of the picker for how often to check for updates.</extracomment>
        <translation>Update-Prüfintervall</translation>
    </message>
    <message>
        <source>general_updates_title</source>
        <extracomment>General page: heading of the updates section.</extracomment>
        <translation>Updates</translation>
    </message>
    <message>
        <source>update_interval_12h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Alle 12 Stunden</translation>
    </message>
    <message>
        <source>update_interval_6h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Alle 6 Stunden</translation>
    </message>
    <message>
        <source>update_interval_daily</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>update_interval_never</source>
        <extracomment>General page, update check interval picker: no automatic checks.</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>update_interval_weekly</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>update_no_updates_message</source>
        <extracomment>General page: message of the alert after a manual check found no update.</extracomment>
        <translation>Sie verwenden die neueste Version von Vandorel.</translation>
    </message>
    <message>
        <source>update_no_updates_title</source>
        <extracomment>General page: title of the alert after a manual check found no update.</extracomment>
        <translation>Vandorel ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>browser_already_default</source>
        <extracomment>Browser page, target box: shown in green when the selected target already is the default browser.</extracomment>
        <translation>Bereits Standard</translation>
    </message>
    <message>
        <source>browser_bundle_id %@</source>
        <extracomment>Browser page, target box: line under the picker. %@ = application ID of the selected browser (such as org.example.App).</extracomment>
        <translation>Anwendungs-ID: %@</translation>
    </message>
    <message>
        <source>browser_changes_detected</source>
        <extracomment>Browser page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Erkannte Änderungen</translation>
    </message>
    <message>
        <source>browser_check_interval</source>
        <extracomment>Browser page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Prüfintervall</translation>
    </message>
    <message>
        <source>browser_check_on_login</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Beim Anmelden prüfen</translation>
    </message>
    <message>
        <source>browser_check_on_unlock</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Beim Entsperren prüfen</translation>
    </message>
    <message>
        <source>browser_check_on_wake</source>
        <extracomment>Browser page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Nach dem Ruhezustand prüfen</translation>
    </message>
    <message>
        <source>browser_current</source>
        <extracomment>Browser page, status box: caption above the name of the current default browser.</extracomment>
        <translation>Aktueller Standardbrowser</translation>
    </message>
    <message>
        <source>browser_currently_snoozed</source>
        <extracomment>Browser page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Meldungen sind pausiert</translation>
    </message>
    <message>
        <source>browser_enable_monitoring</source>
        <extracomment>Browser page, monitoring box: switch label.</extracomment>
        <translation>Überwachung einschalten</translation>
    </message>
    <message>
        <source>browser_event_monitoring_title</source>
        <extracomment>Browser page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Systemereignisse</translation>
    </message>
    <message>
        <source>browser_last_change</source>
        <extracomment>Browser page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Letzte Änderung</translation>
    </message>
    <message>
        <source>browser_monitoring_title</source>
        <extracomment>Browser page: title of the monitoring box.</extracomment>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>browser_never_changed</source>
        <extracomment>Browser page, statistics box: said when no change has been detected.</extracomment>
        <translation>Noch keine Änderungen</translation>
    </message>
    <message>
        <source>browser_no_browsers</source>
        <extracomment>Browser page, target box: shown instead of the picker when no browser is installed.</extracomment>
        <translation>Auf diesem Computer wurden keine Browser gefunden.</translation>
    </message>
    <message>
        <source>browser_none</source>
        <extracomment>Browser page, target picker: first entry, no target chosen.</extracomment>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>browser_none_detected</source>
        <extracomment>Browser page, status box: shown when no default browser is known.</extracomment>
        <translation>Keiner erkannt</translation>
    </message>
    <message>
        <source>browser_ok</source>
        <extracomment>Browser page: button of the refresh alert.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>browser_refresh</source>
        <extracomment>Browser page, status box: button that searches the installed browsers again.</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>browser_refresh_alert_message %lld</source>
        <extracomment>Browser page: message of the refresh alert. %lld = number of browsers found (0 or more).</extracomment>
        <translation>Gefundene Browser: %lld</translation>
    </message>
    <message>
        <source>browser_refresh_alert_title</source>
        <extracomment>Browser page: title of the refresh alert.</extracomment>
        <translation>Browserliste aktualisiert</translation>
    </message>
    <message>
        <source>browser_reset_snooze</source>
        <extracomment>Browser page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Pause beenden</translation>
    </message>
    <message>
        <source>browser_select_description</source>
        <extracomment>Browser page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel überwacht den Standardbrowser. Ändert ein anderes Programm ihn, bietet Vandorel an, Ihren bevorzugten Browser wiederherzustellen.</translation>
    </message>
    <message>
        <source>browser_select_target</source>
        <extracomment>Browser page, target box: label of the picker.</extracomment>
        <translation>Bevorzugter Browser</translation>
    </message>
    <message>
        <source>browser_select_to_enable</source>
        <extracomment>Browser page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Wählen Sie einen bevorzugten Browser, um die Überwachung einzuschalten.</translation>
    </message>
    <message>
        <source>browser_set_now</source>
        <extracomment>Browser page, target box: button that makes the selected target the default browser now.</extracomment>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <source>browser_snooze_description</source>
        <extracomment>Browser page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Wenn Sie in der Meldung einen anderen Browser behalten, fragt Vandorel für diese Dauer nicht mehr nach.</translation>
    </message>
    <message>
        <source>browser_snooze_duration</source>
        <extracomment>Browser page, snooze box: label of the duration picker.</extracomment>
        <translation>Pausendauer</translation>
    </message>
    <message>
        <source>browser_snooze_title</source>
        <extracomment>Browser page: title of the snooze box.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>browser_statistics_title</source>
        <extracomment>Browser page: title of the statistics box.</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>browser_status_title</source>
        <extracomment>Browser page: title of the status box.</extracomment>
        <translation>Aktueller Status</translation>
    </message>
    <message>
        <source>browser_stop</source>
        <extracomment>Browser page, target box: small red button that cancels a running change.</extracomment>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>browser_target_title</source>
        <extracomment>Browser page: title of the target box.</extracomment>
        <translation>Bevorzugter Browser</translation>
    </message>
    <message>
        <source>browser_waiting_prompt</source>
        <extracomment>Browser page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>Warten auf das System…</translation>
    </message>
    <message>
        <source>email_already_default</source>
        <extracomment>Mail page, target box: shown in green when the selected target already is the default mail client.</extracomment>
        <translation>Bereits Standard</translation>
    </message>
    <message>
        <source>email_bundle_id %@</source>
        <extracomment>Mail page, target box: line under the picker. %@ = application ID of the selected mail client (such as org.example.App).</extracomment>
        <translation>Anwendungs-ID: %@</translation>
    </message>
    <message>
        <source>email_changes_detected</source>
        <extracomment>Mail page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Erkannte Änderungen</translation>
    </message>
    <message>
        <source>email_check_interval</source>
        <extracomment>Mail page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Prüfintervall</translation>
    </message>
    <message>
        <source>email_check_on_login</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Beim Anmelden prüfen</translation>
    </message>
    <message>
        <source>email_check_on_unlock</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Beim Entsperren prüfen</translation>
    </message>
    <message>
        <source>email_check_on_wake</source>
        <extracomment>Mail page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Nach dem Ruhezustand prüfen</translation>
    </message>
    <message>
        <source>email_current</source>
        <extracomment>Mail page, status box: caption above the name of the current default mail client.</extracomment>
        <translation>Aktuelles Standard-E-Mail-Programm</translation>
    </message>
    <message>
        <source>email_currently_snoozed</source>
        <extracomment>Mail page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Meldungen sind pausiert</translation>
    </message>
    <message>
        <source>email_enable_monitoring</source>
        <extracomment>Mail page, monitoring box: switch label.</extracomment>
        <translation>Überwachung einschalten</translation>
    </message>
    <message>
        <source>email_event_monitoring_title</source>
        <extracomment>Mail page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Systemereignisse</translation>
    </message>
    <message>
        <source>email_last_change</source>
        <extracomment>Mail page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Letzte Änderung</translation>
    </message>
    <message>
        <source>email_monitoring_title</source>
        <extracomment>Mail page: title of the monitoring box.</extracomment>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>email_never_changed</source>
        <extracomment>Mail page, statistics box: said when no change has been detected.</extracomment>
        <translation>Noch keine Änderungen</translation>
    </message>
    <message>
        <source>email_no_clients</source>
        <extracomment>Mail page, target box: shown instead of the picker when no mail client is installed.</extracomment>
        <translation>Auf diesem Computer wurden keine E-Mail-Programme gefunden.</translation>
    </message>
    <message>
        <source>email_none</source>
        <extracomment>Mail page, target picker: first entry, no target chosen.</extracomment>
        <translation>Keines</translation>
    </message>
    <message>
        <source>email_none_detected</source>
        <extracomment>Mail page, status box: shown when no default mail client is known.</extracomment>
        <translation>Keines erkannt</translation>
    </message>
    <message>
        <source>email_ok</source>
        <extracomment>Mail page: button of the refresh alert.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>email_refresh</source>
        <extracomment>Mail page, status box: button that searches the installed mail clients again.</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>email_refresh_alert_message %lld</source>
        <extracomment>Mail page: message of the refresh alert. %lld = number of mail clients found (0 or more).</extracomment>
        <translation>Gefundene E-Mail-Programme: %lld</translation>
    </message>
    <message>
        <source>email_refresh_alert_title</source>
        <extracomment>Mail page: title of the refresh alert.</extracomment>
        <translation>Liste der E-Mail-Programme aktualisiert</translation>
    </message>
    <message>
        <source>email_reset_snooze</source>
        <extracomment>Mail page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Pause beenden</translation>
    </message>
    <message>
        <source>email_select_description</source>
        <extracomment>Mail page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel überwacht das Standard-E-Mail-Programm. Ändert ein anderes Programm es, bietet Vandorel an, Ihr bevorzugtes E-Mail-Programm wiederherzustellen.</translation>
    </message>
    <message>
        <source>email_select_target</source>
        <extracomment>Mail page, target box: label of the picker.</extracomment>
        <translation>Bevorzugtes E-Mail-Programm</translation>
    </message>
    <message>
        <source>email_select_to_enable</source>
        <extracomment>Mail page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Wählen Sie ein bevorzugtes E-Mail-Programm, um die Überwachung einzuschalten.</translation>
    </message>
    <message>
        <source>email_set_now</source>
        <extracomment>Mail page, target box: button that makes the selected target the default mail client now.</extracomment>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <source>email_snooze_description</source>
        <extracomment>Mail page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Wenn Sie in der Meldung ein anderes E-Mail-Programm behalten, fragt Vandorel für diese Dauer nicht mehr nach.</translation>
    </message>
    <message>
        <source>email_snooze_duration</source>
        <extracomment>Mail page, snooze box: label of the duration picker.</extracomment>
        <translation>Pausendauer</translation>
    </message>
    <message>
        <source>email_snooze_title</source>
        <extracomment>Mail page: title of the snooze box.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>email_statistics_title</source>
        <extracomment>Mail page: title of the statistics box.</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>email_status_title</source>
        <extracomment>Mail page: title of the status box.</extracomment>
        <translation>Aktueller Status</translation>
    </message>
    <message>
        <source>email_stop</source>
        <extracomment>Mail page, target box: small red button that cancels a running change.</extracomment>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>email_target_title</source>
        <extracomment>Mail page: title of the target box.</extracomment>
        <translation>Bevorzugtes E-Mail-Programm</translation>
    </message>
    <message>
        <source>email_waiting_prompt</source>
        <extracomment>Mail page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>Warten auf das System…</translation>
    </message>
    <message>
        <source>log_clear</source>
        <extracomment>Log page toolbar: red button that deletes the whole change log (after a confirmation).</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>log_clear_cancel_button</source>
        <extracomment>Log page: cancel button of the clear confirmation.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>log_clear_confirm_button</source>
        <extracomment>Log page: confirming button of the clear confirmation.</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>log_clear_confirm_message</source>
        <extracomment>Log page: message of the clear confirmation.</extracomment>
        <translation>Alle Einträge des Änderungsprotokolls werden gelöscht. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>log_clear_confirm_title</source>
        <extracomment>Log page: title of the clear confirmation.</extracomment>
        <translation>Änderungsprotokoll leeren?</translation>
    </message>
    <message>
        <source>log_empty_description</source>
        <extracomment>Log page: explanation under the empty-state title.</extracomment>
        <translation>Änderungen an Ihrem Standardbrowser oder Standard-E-Mail-Programm werden hier angezeigt.</translation>
    </message>
    <message>
        <source>log_empty_title</source>
        <extracomment>Log page: title of the empty state.</extracomment>
        <translation>Noch keine Änderungen</translation>
    </message>
    <message>
        <source>log_export</source>
        <extracomment>Log page toolbar: button that saves the log as a text file.</extracomment>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>log_export_filename</source>
        <extracomment>Log page: start of the proposed export file name; -&lt;date&gt;.txt is added. Keep it short, no slashes.</extracomment>
        <translation>Vandorel-Protokoll</translation>
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
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>log_filter_label</source>
        <extracomment>Log page: accessible name of the filter control (not drawn).</extracomment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>log_refresh</source>
        <extracomment>Log page toolbar: button that reads the log again.</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>about_contact</source>
        <extracomment>About window: link row that writes a mail to the maker.</extracomment>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>about_copyright %lld</source>
        <extracomment>About window footer. %lld = the current year (an integer, written without digit grouping).</extracomment>
        <translation>Copyright © %lld</translation>
    </message>
    <message>
        <source>about_description</source>
        <extracomment>About window: short description under the version.</extracomment>
        <translation>Sorgt dafür, dass Ihr Standardbrowser und Ihr Standard-E-Mail-Programm so bleiben, wie Sie sie gewählt haben.</translation>
    </message>
    <message>
        <source>about_rights</source>
        <extracomment>About window footer, under the copyright line.</extracomment>
        <translation>Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>about_support</source>
        <extracomment>About window: link row to the donation page.</extracomment>
        <translation>Entwicklung unterstützen</translation>
    </message>
    <message>
        <source>about_version</source>
        <extracomment>Version line of the about window and the general page. %@ = the version number, such as 1.2.0 (the key has no specifier, the text must have exactly one).</extracomment>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>about_website</source>
        <extracomment>About window: link row to the product's website.</extracomment>
        <translation>Website</translation>
    </message>
</context>
</TS>
