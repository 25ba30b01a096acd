<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Localizable</name>
    <message>
        <source>interval_daily</source>
        <extracomment>Check interval picker (browser and mail pages): check once every 24 hours.</extracomment>
        <translation>Una vez al día</translation>
    </message>
    <message>
        <source>interval_every_10_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Cada 10 minutos</translation>
    </message>
    <message>
        <source>interval_every_5_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Cada 5 minutos</translation>
    </message>
    <message>
        <source>interval_every_hour</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Cada hora</translation>
    </message>
    <message>
        <source>interval_every_minute</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>Cada minuto</translation>
    </message>
    <message>
        <source>interval_none</source>
        <extracomment>Check interval picker (browser and mail pages): no timed checks; checks on wake, unlock and login still run.</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>snooze_15_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>15 minutos</translation>
    </message>
    <message>
        <source>snooze_1_hour</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>snooze_30_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>30 minutos</translation>
    </message>
    <message>
        <source>snooze_4_hours</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>4 horas</translation>
    </message>
    <message>
        <source>snooze_rest_of_today</source>
        <extracomment>Snooze duration picker (browser and mail pages): snooze until midnight.</extracomment>
        <translation>Resto del día</translation>
    </message>
    <message>
        <source>alert_browser_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default browser no longer is the target. Arguments: 1st %@ = name of the current default browser, 2nd %@ = name of the target browser. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Otro programa ha convertido %@ en tu navegador predeterminado. Tu navegador preferido es %@. ¿Quieres restaurarlo?</translation>
    </message>
    <message>
        <source>alert_browser_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default browser.</extracomment>
        <translation>Cambio de navegador predeterminado</translation>
    </message>
    <message>
        <source>alert_button_change_back</source>
        <extracomment>First button of both change alerts: makes the target the default again.</extracomment>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>alert_button_keep %@</source>
        <extracomment>Second button of both change alerts: keeps the new default and snoozes the alerts. %@ = name of the current (new) default browser or mail client.</extracomment>
        <translation>Mantener %@ por ahora</translation>
    </message>
    <message>
        <source>alert_email_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default mail client no longer is the target. Arguments: 1st %@ = name of the current default mail client, 2nd %@ = name of the target mail client. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>Otro programa ha convertido %@ en tu cliente de correo predeterminado. Tu cliente de correo preferido es %@. ¿Quieres restaurarlo?</translation>
    </message>
    <message>
        <source>alert_email_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default mail client.</extracomment>
        <translation>Cambio de cliente de correo predeterminado</translation>
    </message>
    <message>
        <source>update_available_message</source>
        <extracomment>Update sheet, message under the title. %@ = the new version number (the key has no specifier, the text must have exactly one). Inline Markdown such as **bold** is allowed.</extracomment>
        <translation>Ya está disponible Vandorel **%@**.</translation>
    </message>
    <message>
        <source>update_available_title</source>
        <extracomment>Update sheet, title.</extracomment>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>update_brew_command_hint</source>
        <extracomment>Update sheet, Homebrew box: line above the command, which is shown after it.</extracomment>
        <translation>Para actualizar, ejecuta este comando en un terminal:</translation>
    </message>
    <message>
        <source>update_brew_hint</source>
        <extracomment>Update sheet, Homebrew box: first line, next to a mug symbol.</extracomment>
        <translation>Vandorel se instaló con Homebrew.</translation>
    </message>
    <message>
        <source>update_copy_command</source>
        <extracomment>Update sheet: tooltip of the button that copies the update command.</extracomment>
        <translation>Copiar comando</translation>
    </message>
    <message>
        <source>update_later_button</source>
        <extracomment>Update sheet: button that closes the sheet (also Escape).</extracomment>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>feedback_description</source>
        <extracomment>Feedback page, heading block: description under the question.</extracomment>
        <translation>Cuéntanos qué te gusta, qué echas en falta o qué ha fallado. Tus comentarios nos ayudan a mejorar Vandorel.</translation>
    </message>
    <message>
        <source>feedback_error_message</source>
        <extracomment>Feedback page: message of the error alert when sending failed.</extracomment>
        <translation>No se han podido enviar tus comentarios. Comprueba la conexión e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>feedback_error_title</source>
        <extracomment>Feedback page: title of the error alert.</extracomment>
        <translation>Error al enviar</translation>
    </message>
    <message>
        <source>feedback_question</source>
        <extracomment>Feedback page, heading block: question above the row of mood emojis.</extracomment>
        <translation>¿Qué te parece Vandorel?</translation>
    </message>
    <message>
        <source>feedback_send</source>
        <extracomment>Feedback page: the send button.</extracomment>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <extracomment>Feedback page: the send button while the request is under way.</extracomment>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>feedback_sent_message</source>
        <extracomment>Feedback page: message of the success alert.</extracomment>
        <translation>¡Gracias! Tus comentarios se han enviado.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <extracomment>Feedback page: title of the success alert.</extracomment>
        <translation>Comentarios enviados</translation>
    </message>
    <message>
        <source>feedback_tag_cool_app</source>
        <extracomment>Feedback page, category button: praise.</extracomment>
        <translation>App genial</translation>
    </message>
    <message>
        <source>feedback_tag_idea</source>
        <extracomment>Feedback page, category button: a suggestion.</extracomment>
        <translation>Idea</translation>
    </message>
    <message>
        <source>feedback_tag_issue</source>
        <extracomment>Feedback page, category button: a bug or problem.</extracomment>
        <translation>Problema</translation>
    </message>
    <message>
        <source>feedback_tag_label</source>
        <extracomment>Feedback page: heading above the category buttons.</extracomment>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>feedback_tag_other</source>
        <extracomment>Feedback page, category button: anything else.</extracomment>
        <translation>Otro</translation>
    </message>
    <message>
        <source>feedback_tag_translation</source>
        <extracomment>Feedback page, category button: a remark about a translation.</extracomment>
        <translation>Traducción</translation>
    </message>
    <message>
        <source>feedback_text_placeholder</source>
        <extracomment>Feedback page: placeholder in the empty text box.</extracomment>
        <translation>Escribe aquí tus comentarios…</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <extracomment>Feedback page heading; also the feedback row of the tray panel and the feedback link of the about window.</extracomment>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>menu_item_about</source>
        <extracomment>Application menu item that opens the about window.</extracomment>
        <translation>Acerca de Vandorel</translation>
    </message>
    <message>
        <source>menu_item_settings</source>
        <extracomment>Application menu item that opens the settings window (Ctrl+,).</extracomment>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>window_about_title</source>
        <extracomment>Title of the about window.</extracomment>
        <translation>Acerca de Vandorel</translation>
    </message>
    <message>
        <source>window_settings_title</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>Ajustes de Vandorel</translation>
    </message>
    <message>
        <source>menu_about</source>
        <extracomment>Tray panel row that opens the about window.</extracomment>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>menu_quit</source>
        <extracomment>Tray panel row that ends the program; a shortcut sign follows it.</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <extracomment>Tray panel row that opens the settings window; a shortcut sign follows it.</extracomment>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>status_default_browser</source>
        <extracomment>Tray panel, browser status row: small caption above the name of the current default browser.</extracomment>
        <translation>Navegador predeterminado</translation>
    </message>
    <message>
        <source>status_default_email</source>
        <extracomment>Tray panel, mail status row: small caption above the name of the current default mail client.</extracomment>
        <translation>Cliente de correo predeterminado</translation>
    </message>
    <message>
        <source>status_mismatch</source>
        <extracomment>Tray panel, status line: the current default is not the target (shown in orange).</extracomment>
        <translation>No coincide</translation>
    </message>
    <message>
        <source>status_none</source>
        <extracomment>Tray panel: shown in place of a name when no default is known.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>status_not_protected</source>
        <extracomment>Tray panel, status line: monitoring is off or has nothing to trigger it (shown in red).</extracomment>
        <translation>Sin protección</translation>
    </message>
    <message>
        <source>status_protected</source>
        <extracomment>Tray panel, status line: monitoring is on (shown in green).</extracomment>
        <translation>Protegido</translation>
    </message>
    <message>
        <source>status_should_be %@</source>
        <extracomment>Tray panel, status row, shown on a mismatch. %@ = name of the target browser or mail client.</extracomment>
        <translation>Debería ser %@</translation>
    </message>
    <message>
        <source>tab_browser</source>
        <extracomment>Settings window: tab of the browser page.</extracomment>
        <translation>Navegador</translation>
    </message>
    <message>
        <source>tab_email</source>
        <extracomment>Settings window: tab of the mail client page.</extracomment>
        <translation>Correo</translation>
    </message>
    <message>
        <source>tab_feedback</source>
        <extracomment>Settings window: tab of the feedback page.</extracomment>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>tab_general</source>
        <extracomment>Settings window: tab of the general page.</extracomment>
        <translation>General</translation>
    </message>
    <message>
        <source>tab_log</source>
        <extracomment>Settings window: tab of the change log page.</extracomment>
        <translation>Registro</translation>
    </message>
    <message>
        <source>general_appearance</source>
        <extracomment>General page, settings: label of the light/dark picker.</extracomment>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>general_appearance_dark</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>general_appearance_light</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>Claro</translation>
    </message>
    <message>
        <source>general_appearance_system</source>
        <extracomment>General page, appearance picker segment: follow the system.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>general_buy_coffee</source>
        <extracomment>General page, support section: donation link button.</extracomment>
        <translation>Invítame a un café</translation>
    </message>
    <message>
        <source>general_cancel</source>
        <extracomment>General page: cancel button of the three confirmation dialogs.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>general_check_at_startup</source>
        <extracomment>General page, updates: label of the switch for an update check when the program starts.</extracomment>
        <translation>Comprobar al abrir</translation>
    </message>
    <message>
        <source>general_check_for_updates</source>
        <extracomment>General page, updates: button that checks for updates now.</extracomment>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>general_colored_icon</source>
        <extracomment>General page, settings: label of the switch that shows the tray icon in color.</extracomment>
        <translation>Icono de bandeja en color</translation>
    </message>
    <message>
        <source>general_delete_logs</source>
        <extracomment>General page, reset section: button that deletes the change log.</extracomment>
        <translation>Borrar el registro de cambios</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_button</source>
        <extracomment>General page: destructive button of the delete-log confirmation.</extracomment>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_message</source>
        <extracomment>General page: message of the delete-log confirmation.</extracomment>
        <translation>Se borrarán todas las entradas del registro de cambios. Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_title</source>
        <extracomment>General page: title of the delete-log confirmation.</extracomment>
        <translation>¿Borrar el registro de cambios?</translation>
    </message>
    <message>
        <source>general_description</source>
        <extracomment>General page header: one-sentence description of the program.</extracomment>
        <translation>Vandorel mantiene el navegador y el cliente de correo predeterminados que elegiste, y te avisa cuando otro programa los cambia.</translation>
    </message>
    <message>
        <source>general_feature_1</source>
        <extracomment>General page, features list, item 1 (shield symbol).</extracomment>
        <translation>Mantiene tu navegador y tu cliente de correo predeterminados tal como los elegiste</translation>
    </message>
    <message>
        <source>general_feature_2</source>
        <extracomment>General page, features list, item 2 (bell symbol).</extracomment>
        <translation>Te avisa cuando otro programa se convierte en predeterminado</translation>
    </message>
    <message>
        <source>general_feature_3</source>
        <extracomment>General page, features list, item 3 (clock symbol).</extracomment>
        <translation>Comprueba periódicamente, tras la suspensión, al desbloquear y al iniciar sesión</translation>
    </message>
    <message>
        <source>general_feature_4</source>
        <extracomment>General page, features list, item 4 (circular arrow symbol).</extracomment>
        <translation>Restaura tu elección con un solo clic</translation>
    </message>
    <message>
        <source>general_feature_5</source>
        <extracomment>General page, features list, item 5 (chart symbol).</extracomment>
        <translation>Cuenta y registra cada cambio</translation>
    </message>
    <message>
        <source>general_features_title</source>
        <extracomment>General page: heading of the features list.</extracomment>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>general_language</source>
        <extracomment>General page, settings: label of the interface language picker.</extracomment>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>general_launch_at_login</source>
        <extracomment>General page, settings: label of the switch that starts the program at login.</extracomment>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>general_ok</source>
        <extracomment>OK button of the no-updates alert (general page) and of the feedback alerts.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>general_reset_counters</source>
        <extracomment>General page, reset section: button that sets both change counters to zero.</extracomment>
        <translation>Restablecer contadores</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_button</source>
        <extracomment>General page: destructive button of the reset-counters confirmation.</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_message</source>
        <extracomment>General page: message of the reset-counters confirmation.</extracomment>
        <translation>Los contadores de cambios del navegador y del cliente de correo predeterminados se pondrán a cero.</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_title</source>
        <extracomment>General page: title of the reset-counters confirmation.</extracomment>
        <translation>¿Restablecer los contadores?</translation>
    </message>
    <message>
        <source>general_reset_settings</source>
        <extracomment>General page, reset section: button that restores the default settings.</extracomment>
        <translation>Restablecer todos los ajustes</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_button</source>
        <extracomment>General page: destructive button of the reset-settings confirmation.</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_message</source>
        <extracomment>General page: message of the reset-settings confirmation.</extracomment>
        <translation>Todos los ajustes volverán a sus valores predeterminados. Se conservan tu navegador y tu cliente de correo preferidos, los contadores y el registro de cambios.</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_title</source>
        <extracomment>General page: title of the reset-settings confirmation.</extracomment>
        <translation>¿Restablecer todos los ajustes?</translation>
    </message>
    <message>
        <source>general_reset_title</source>
        <extracomment>General page: heading of the reset section.</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>general_reset_update_reminder_snooze</source>
        <extracomment>General page, reset section: button that ends the snooze of update reminders, so they show again.</extracomment>
        <translation>Reactivar avisos de actualización</translation>
    </message>
    <message>
        <source>general_settings_title</source>
        <extracomment>General page: heading of the settings section.</extracomment>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>general_support_description</source>
        <extracomment>General page, support section: text above the donation button.</extracomment>
        <translation>Vandorel es gratuito. Si te resulta útil, puedes apoyar su desarrollo.</translation>
    </message>
    <message>
        <source>general_support_title</source>
        <extracomment>General page: heading of the support (donation) section.</extracomment>
        <translation>Apoyo</translation>
    </message>
    <message>
        <source>general_update_check_interval</source>
        <extracomment>General page, updates: label of the picker for how often to check for updates.</extracomment>
        <translation>Frecuencia de comprobación</translation>
    </message>
    <message>
        <source>general_updates_title</source>
        <extracomment>General page: heading of the updates section.</extracomment>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>update_interval_12h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Cada 12 horas</translation>
    </message>
    <message>
        <source>update_interval_6h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Cada 6 horas</translation>
    </message>
    <message>
        <source>update_interval_daily</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>update_interval_never</source>
        <extracomment>General page, update check interval picker: no automatic checks.</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>update_interval_weekly</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>update_no_updates_message</source>
        <extracomment>General page: message of the alert after a manual check found no update.</extracomment>
        <translation>Estás usando la versión más reciente de Vandorel.</translation>
    </message>
    <message>
        <source>update_no_updates_title</source>
        <extracomment>General page: title of the alert after a manual check found no update.</extracomment>
        <translation>Vandorel está al día</translation>
    </message>
    <message>
        <source>browser_already_default</source>
        <extracomment>Browser page, target box: shown in green when the selected target already is the default browser.</extracomment>
        <translation>Ya es el predeterminado</translation>
    </message>
    <message>
        <source>browser_bundle_id %@</source>
        <extracomment>Browser page, target box: line under the picker. %@ = application ID of the selected browser (such as org.example.App).</extracomment>
        <translation>ID de la aplicación: %@</translation>
    </message>
    <message>
        <source>browser_changes_detected</source>
        <extracomment>Browser page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Cambios detectados</translation>
    </message>
    <message>
        <source>browser_check_interval</source>
        <extracomment>Browser page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Frecuencia de comprobación</translation>
    </message>
    <message>
        <source>browser_check_on_login</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Comprobar al iniciar sesión</translation>
    </message>
    <message>
        <source>browser_check_on_unlock</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>Comprobar al desbloquear</translation>
    </message>
    <message>
        <source>browser_check_on_wake</source>
        <extracomment>Browser page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Comprobar tras la suspensión</translation>
    </message>
    <message>
        <source>browser_current</source>
        <extracomment>Browser page, status box: caption above the name of the current default browser.</extracomment>
        <translation>Navegador predeterminado actual</translation>
    </message>
    <message>
        <source>browser_currently_snoozed</source>
        <extracomment>Browser page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Alertas en pausa</translation>
    </message>
    <message>
        <source>browser_enable_monitoring</source>
        <extracomment>Browser page, monitoring box: switch label.</extracomment>
        <translation>Activar la supervisión</translation>
    </message>
    <message>
        <source>browser_event_monitoring_title</source>
        <extracomment>Browser page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Eventos del sistema</translation>
    </message>
    <message>
        <source>browser_last_change</source>
        <extracomment>Browser page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Último cambio</translation>
    </message>
    <message>
        <source>browser_monitoring_title</source>
        <extracomment>Browser page: title of the monitoring box.</extracomment>
        <translation>Supervisión</translation>
    </message>
    <message>
        <source>browser_never_changed</source>
        <extracomment>Browser page, statistics box: said when no change has been detected.</extracomment>
        <translation>Aún no hay cambios</translation>
    </message>
    <message>
        <source>browser_no_browsers</source>
        <extracomment>Browser page, target box: shown instead of the picker when no browser is installed.</extracomment>
        <translation>No se ha encontrado ningún navegador en este equipo.</translation>
    </message>
    <message>
        <source>browser_none</source>
        <extracomment>Browser page, target picker: first entry, no target chosen.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>browser_none_detected</source>
        <extracomment>Browser page, status box: shown when no default browser is known.</extracomment>
        <translation>Ninguno detectado</translation>
    </message>
    <message>
        <source>browser_ok</source>
        <extracomment>Browser page: button of the refresh alert.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>browser_refresh</source>
        <extracomment>Browser page, status box: button that searches the installed browsers again.</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>browser_refresh_alert_message %lld</source>
        <extracomment>Browser page: message of the refresh alert. %lld = number of browsers found (0 or more).</extracomment>
        <translation>Navegadores encontrados: %lld</translation>
    </message>
    <message>
        <source>browser_refresh_alert_title</source>
        <extracomment>Browser page: title of the refresh alert.</extracomment>
        <translation>Lista de navegadores actualizada</translation>
    </message>
    <message>
        <source>browser_reset_snooze</source>
        <extracomment>Browser page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Quitar la pausa</translation>
    </message>
    <message>
        <source>browser_select_description</source>
        <extracomment>Browser page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel supervisa el navegador predeterminado y te ofrece restaurar tu navegador preferido cada vez que otro programa lo cambia.</translation>
    </message>
    <message>
        <source>browser_select_target</source>
        <extracomment>Browser page, target box: label of the picker.</extracomment>
        <translation>Navegador preferido</translation>
    </message>
    <message>
        <source>browser_select_to_enable</source>
        <extracomment>Browser page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Elige un navegador preferido para activar la supervisión.</translation>
    </message>
    <message>
        <source>browser_set_now</source>
        <extracomment>Browser page, target box: button that makes the selected target the default browser now.</extracomment>
        <translation>Hacer predeterminado</translation>
    </message>
    <message>
        <source>browser_snooze_description</source>
        <extracomment>Browser page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Si en la alerta decides mantener otro navegador, Vandorel deja de preguntarte durante este tiempo.</translation>
    </message>
    <message>
        <source>browser_snooze_duration</source>
        <extracomment>Browser page, snooze box: label of the duration picker.</extracomment>
        <translation>Duración de la pausa</translation>
    </message>
    <message>
        <source>browser_snooze_title</source>
        <extracomment>Browser page: title of the snooze box.</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>browser_statistics_title</source>
        <extracomment>Browser page: title of the statistics box.</extracomment>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>browser_status_title</source>
        <extracomment>Browser page: title of the status box.</extracomment>
        <translation>Estado actual</translation>
    </message>
    <message>
        <source>browser_stop</source>
        <extracomment>Browser page, target box: small red button that cancels a running change.</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>browser_target_title</source>
        <extracomment>Browser page: title of the target box.</extracomment>
        <translation>Navegador preferido</translation>
    </message>
    <message>
        <source>browser_waiting_prompt</source>
        <extracomment>Browser page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>Esperando al sistema…</translation>
    </message>
    <message>
        <source>email_already_default</source>
        <extracomment>Mail page, target box: shown in green when the selected target already is the default mail client.</extracomment>
        <translation>Ya es el predeterminado</translation>
    </message>
    <message>
        <source>email_bundle_id %@</source>
        <extracomment>Mail page, target box: line under the picker. %@ = application ID of the selected mail client (such as org.example.App).</extracomment>
        <translation>ID de la aplicación: %@</translation>
    </message>
    <message>
        <source>email_changes_detected</source>
        <extracomment>Mail page, statistics box: label before the number of detected changes.</extracomment>
        <translation>Cambios detectados</translation>
    </message>
    <message>
        <source>email_check_interval</source>
        <extracomment>Mail page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>Frecuencia de comprobación</translation>
    </message>
    <message>
        <source>email_check_on_login</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Comprobar al iniciar sesión</translation>
    </message>
    <message>
        <source>email_check_on_unlock</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>Comprobar al desbloquear</translation>
    </message>
    <message>
        <source>email_check_on_wake</source>
        <extracomment>Mail page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>Comprobar tras la suspensión</translation>
    </message>
    <message>
        <source>email_current</source>
        <extracomment>Mail page, status box: caption above the name of the current default mail client.</extracomment>
        <translation>Cliente de correo predeterminado actual</translation>
    </message>
    <message>
        <source>email_currently_snoozed</source>
        <extracomment>Mail page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>Alertas en pausa</translation>
    </message>
    <message>
        <source>email_enable_monitoring</source>
        <extracomment>Mail page, monitoring box: switch label.</extracomment>
        <translation>Activar la supervisión</translation>
    </message>
    <message>
        <source>email_event_monitoring_title</source>
        <extracomment>Mail page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>Eventos del sistema</translation>
    </message>
    <message>
        <source>email_last_change</source>
        <extracomment>Mail page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>Último cambio</translation>
    </message>
    <message>
        <source>email_monitoring_title</source>
        <extracomment>Mail page: title of the monitoring box.</extracomment>
        <translation>Supervisión</translation>
    </message>
    <message>
        <source>email_never_changed</source>
        <extracomment>Mail page, statistics box: said when no change has been detected.</extracomment>
        <translation>Aún no hay cambios</translation>
    </message>
    <message>
        <source>email_no_clients</source>
        <extracomment>Mail page, target box: shown instead of the picker when no mail client is installed.</extracomment>
        <translation>No se ha encontrado ningún cliente de correo en este equipo.</translation>
    </message>
    <message>
        <source>email_none</source>
        <extracomment>Mail page, target picker: first entry, no target chosen.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>email_none_detected</source>
        <extracomment>Mail page, status box: shown when no default mail client is known.</extracomment>
        <translation>Ninguno detectado</translation>
    </message>
    <message>
        <source>email_ok</source>
        <extracomment>Mail page: button of the refresh alert.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>email_refresh</source>
        <extracomment>Mail page, status box: button that searches the installed mail clients again.</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>email_refresh_alert_message %lld</source>
        <extracomment>Mail page: message of the refresh alert. %lld = number of mail clients found (0 or more).</extracomment>
        <translation>Clientes de correo encontrados: %lld</translation>
    </message>
    <message>
        <source>email_refresh_alert_title</source>
        <extracomment>Mail page: title of the refresh alert.</extracomment>
        <translation>Lista de clientes de correo actualizada</translation>
    </message>
    <message>
        <source>email_reset_snooze</source>
        <extracomment>Mail page, snooze box: button that ends the running snooze.</extracomment>
        <translation>Quitar la pausa</translation>
    </message>
    <message>
        <source>email_select_description</source>
        <extracomment>Mail page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel supervisa el cliente de correo predeterminado y te ofrece restaurar tu cliente de correo preferido cada vez que otro programa lo cambia.</translation>
    </message>
    <message>
        <source>email_select_target</source>
        <extracomment>Mail page, target box: label of the picker.</extracomment>
        <translation>Cliente de correo preferido</translation>
    </message>
    <message>
        <source>email_select_to_enable</source>
        <extracomment>Mail page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>Elige un cliente de correo preferido para activar la supervisión.</translation>
    </message>
    <message>
        <source>email_set_now</source>
        <extracomment>Mail page, target box: button that makes the selected target the default mail client now.</extracomment>
        <translation>Hacer predeterminado</translation>
    </message>
    <message>
        <source>email_snooze_description</source>
        <extracomment>Mail page, snooze box: explanation under the duration picker.</extracomment>
        <translation>Si en la alerta decides mantener otro cliente de correo, Vandorel deja de preguntarte durante este tiempo.</translation>
    </message>
    <message>
        <source>email_snooze_duration</source>
        <extracomment>Mail page, snooze box: label of the duration picker.</extracomment>
        <translation>Duración de la pausa</translation>
    </message>
    <message>
        <source>email_snooze_title</source>
        <extracomment>Mail page: title of the snooze box.</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>email_statistics_title</source>
        <extracomment>Mail page: title of the statistics box.</extracomment>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>email_status_title</source>
        <extracomment>Mail page: title of the status box.</extracomment>
        <translation>Estado actual</translation>
    </message>
    <message>
        <source>email_stop</source>
        <extracomment>Mail page, target box: small red button that cancels a running change.</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>email_target_title</source>
        <extracomment>Mail page: title of the target box.</extracomment>
        <translation>Cliente de correo preferido</translation>
    </message>
    <message>
        <source>email_waiting_prompt</source>
        <extracomment>Mail page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>Esperando al sistema…</translation>
    </message>
    <message>
        <source>log_clear</source>
        <extracomment>Log page toolbar: red button that deletes the whole change log (after a confirmation).</extracomment>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>log_clear_cancel_button</source>
        <extracomment>Log page: cancel button of the clear confirmation.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>log_clear_confirm_button</source>
        <extracomment>Log page: confirming button of the clear confirmation.</extracomment>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>log_clear_confirm_message</source>
        <extracomment>Log page: message of the clear confirmation.</extracomment>
        <translation>Se borrarán todas las entradas del registro de cambios. Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>log_clear_confirm_title</source>
        <extracomment>Log page: title of the clear confirmation.</extracomment>
        <translation>¿Vaciar el registro de cambios?</translation>
    </message>
    <message>
        <source>log_empty_description</source>
        <extracomment>Log page: explanation under the empty-state title.</extracomment>
        <translation>Aquí aparecerán los cambios de tu navegador o de tu cliente de correo predeterminado.</translation>
    </message>
    <message>
        <source>log_empty_title</source>
        <extracomment>Log page: title of the empty state.</extracomment>
        <translation>Aún no hay cambios</translation>
    </message>
    <message>
        <source>log_export</source>
        <extracomment>Log page toolbar: button that saves the log as a text file.</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>log_export_filename</source>
        <extracomment>Log page: start of the proposed export file name; -&lt;date&gt;.txt is added. Keep it short, no slashes.</extracomment>
        <translation>Registro-Vandorel</translation>
    </message>
    <message>
        <source>log_filter_all</source>
        <extracomment>Log page filter segment: all entries.</extracomment>
        <translation>Todo</translation>
    </message>
    <message>
        <source>log_filter_browser</source>
        <extracomment>Log page filter segment: browser entries only.</extracomment>
        <translation>Navegador</translation>
    </message>
    <message>
        <source>log_filter_email</source>
        <extracomment>Log page filter segment: mail client entries only.</extracomment>
        <translation>Correo</translation>
    </message>
    <message>
        <source>log_filter_label</source>
        <extracomment>Log page: accessible name of the filter control (not drawn).</extracomment>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>log_refresh</source>
        <extracomment>Log page toolbar: button that reads the log again.</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>about_contact</source>
        <extracomment>About window: link row that writes a mail to the maker.</extracomment>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>about_copyright %lld</source>
        <extracomment>About window footer. %lld = the current year (an integer, written without digit grouping).</extracomment>
        <translation>Copyright © %lld</translation>
    </message>
    <message>
        <source>about_description</source>
        <extracomment>About window: short description under the version.</extracomment>
        <translation>Mantiene en su sitio el navegador y el cliente de correo predeterminados que elegiste.</translation>
    </message>
    <message>
        <source>about_rights</source>
        <extracomment>About window footer, under the copyright line.</extracomment>
        <translation>Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>about_support</source>
        <extracomment>About window: link row to the donation page.</extracomment>
        <translation>Apoyar el desarrollo</translation>
    </message>
    <message>
        <source>about_version</source>
        <extracomment>Version line of the about window and the general page. %@ = the version number, such as 1.2.0 (the key has no specifier, the text must have exactly one).</extracomment>
        <translation>Versión %@</translation>
    </message>
    <message>
        <source>about_website</source>
        <extracomment>About window: link row to the product's website.</extracomment>
        <translation>Sitio web</translation>
    </message>
</context>
</TS>
