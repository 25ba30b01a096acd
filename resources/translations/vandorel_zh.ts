<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh">
<context>
    <name>Localizable</name>
    <message>
        <source>interval_daily</source>
        <extracomment>Check interval picker (browser and mail pages): check once every 24 hours.</extracomment>
        <translation>每天一次</translation>
    </message>
    <message>
        <source>interval_every_10_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>每 10 分钟</translation>
    </message>
    <message>
        <source>interval_every_5_minutes</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>每 5 分钟</translation>
    </message>
    <message>
        <source>interval_every_hour</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>每小时</translation>
    </message>
    <message>
        <source>interval_every_minute</source>
        <extracomment>Check interval picker (browser and mail pages).</extracomment>
        <translation>每分钟</translation>
    </message>
    <message>
        <source>interval_none</source>
        <extracomment>Check interval picker (browser and mail pages): no timed checks; checks on wake, unlock and login still run.</extracomment>
        <translation>从不</translation>
    </message>
    <message>
        <source>snooze_15_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>15 分钟</translation>
    </message>
    <message>
        <source>snooze_1_hour</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>snooze_30_minutes</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>30 分钟</translation>
    </message>
    <message>
        <source>snooze_4_hours</source>
        <extracomment>Snooze duration picker (browser and mail pages).</extracomment>
        <translation>4 小时</translation>
    </message>
    <message>
        <source>snooze_rest_of_today</source>
        <extracomment>Snooze duration picker (browser and mail pages): snooze until midnight.</extracomment>
        <translation>今天剩余时间</translation>
    </message>
    <message>
        <source>alert_browser_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default browser no longer is the target. Arguments: 1st %@ = name of the current default browser, 2nd %@ = name of the target browser. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>另一个程序已将 %@ 设为你的默认浏览器。你的首选浏览器是 %@。要改回来吗？</translation>
    </message>
    <message>
        <source>alert_browser_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default browser.</extracomment>
        <translation>默认浏览器已更改</translation>
    </message>
    <message>
        <source>alert_button_change_back</source>
        <extracomment>First button of both change alerts: makes the target the default again.</extracomment>
        <translation>改回</translation>
    </message>
    <message>
        <source>alert_button_keep %@</source>
        <extracomment>Second button of both change alerts: keeps the new default and snoozes the alerts. %@ = name of the current (new) default browser or mail client.</extracomment>
        <translation>暂时保留 %@</translation>
    </message>
    <message>
        <source>alert_email_changed_message %@ %@</source>
        <extracomment>Body of the alert shown when the default mail client no longer is the target. Arguments: 1st %@ = name of the current default mail client, 2nd %@ = name of the target mail client. Use %1$@ and %2$@ if your language needs another order.</extracomment>
        <translation>另一个程序已将 %@ 设为你的默认邮件客户端。你的首选邮件客户端是 %@。要改回来吗？</translation>
    </message>
    <message>
        <source>alert_email_changed_title</source>
        <extracomment>Title of the alert shown when another program has changed the default mail client.</extracomment>
        <translation>默认邮件客户端已更改</translation>
    </message>
    <message>
        <source>update_available_message</source>
        <extracomment>Update sheet, message under the title. %@ = the new version number (the key has no specifier, the text must have exactly one). Inline Markdown such as **bold** is allowed.</extracomment>
        <translation>Vandorel **%@** 现已可用。</translation>
    </message>
    <message>
        <source>update_available_title</source>
        <extracomment>Update sheet, title.</extracomment>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>update_brew_command_hint</source>
        <extracomment>Update sheet, Homebrew box: line above the command, which is shown after it.</extracomment>
        <translation>在终端中运行以下命令即可更新：</translation>
    </message>
    <message>
        <source>update_brew_hint</source>
        <extracomment>Update sheet, Homebrew box: first line, next to a mug symbol.</extracomment>
        <translation>Vandorel 是通过 Homebrew 安装的。</translation>
    </message>
    <message>
        <source>update_copy_command</source>
        <extracomment>Update sheet: tooltip of the button that copies the update command.</extracomment>
        <translation>复制命令</translation>
    </message>
    <message>
        <source>update_later_button</source>
        <extracomment>Update sheet: button that closes the sheet (also Escape).</extracomment>
        <translation>稍后</translation>
    </message>
    <message>
        <source>feedback_description</source>
        <extracomment>Feedback page, heading block: description under the question.</extracomment>
        <translation>告诉我们你喜欢什么、还缺少什么，或者遇到了什么问题。你的反馈能让 Vandorel 变得更好。</translation>
    </message>
    <message>
        <source>feedback_error_message</source>
        <extracomment>Feedback page: message of the error alert when sending failed.</extracomment>
        <translation>你的反馈未能发送。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>feedback_error_title</source>
        <extracomment>Feedback page: title of the error alert.</extracomment>
        <translation>发送失败</translation>
    </message>
    <message>
        <source>feedback_question</source>
        <extracomment>Feedback page, heading block: question above the row of mood emojis.</extracomment>
        <translation>你觉得 Vandorel 怎么样？</translation>
    </message>
    <message>
        <source>feedback_send</source>
        <extracomment>Feedback page: the send button.</extracomment>
        <translation>发送</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <extracomment>Feedback page: the send button while the request is under way.</extracomment>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>feedback_sent_message</source>
        <extracomment>Feedback page: message of the success alert.</extracomment>
        <translation>谢谢！你的反馈已发送。</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <extracomment>Feedback page: title of the success alert.</extracomment>
        <translation>反馈已发送</translation>
    </message>
    <message>
        <source>feedback_tag_cool_app</source>
        <extracomment>Feedback page, category button: praise.</extracomment>
        <translation>应用很棒</translation>
    </message>
    <message>
        <source>feedback_tag_idea</source>
        <extracomment>Feedback page, category button: a suggestion.</extracomment>
        <translation>建议</translation>
    </message>
    <message>
        <source>feedback_tag_issue</source>
        <extracomment>Feedback page, category button: a bug or problem.</extracomment>
        <translation>问题</translation>
    </message>
    <message>
        <source>feedback_tag_label</source>
        <extracomment>Feedback page: heading above the category buttons.</extracomment>
        <translation>类别</translation>
    </message>
    <message>
        <source>feedback_tag_other</source>
        <extracomment>Feedback page, category button: anything else.</extracomment>
        <translation>其他</translation>
    </message>
    <message>
        <source>feedback_tag_translation</source>
        <extracomment>Feedback page, category button: a remark about a translation.</extracomment>
        <translation>翻译</translation>
    </message>
    <message>
        <source>feedback_text_placeholder</source>
        <extracomment>Feedback page: placeholder in the empty text box.</extracomment>
        <translation>在这里写下你的反馈…</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <extracomment>Feedback page heading; also the feedback row of the tray panel and the feedback link of the about window.</extracomment>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>menu_item_about</source>
        <extracomment>Application menu item that opens the about window.</extracomment>
        <translation>关于 Vandorel</translation>
    </message>
    <message>
        <source>menu_item_settings</source>
        <extracomment>Application menu item that opens the settings window (Ctrl+,).</extracomment>
        <translation>设置…</translation>
    </message>
    <message>
        <source>window_about_title</source>
        <extracomment>Title of the about window.</extracomment>
        <translation>关于 Vandorel</translation>
    </message>
    <message>
        <source>window_settings_title</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>Vandorel 设置</translation>
    </message>
    <message>
        <source>menu_about</source>
        <extracomment>Tray panel row that opens the about window.</extracomment>
        <translation>关于</translation>
    </message>
    <message>
        <source>menu_quit</source>
        <extracomment>Tray panel row that ends the program; a shortcut sign follows it.</extracomment>
        <translation>退出</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <extracomment>Tray panel row that opens the settings window; a shortcut sign follows it.</extracomment>
        <translation>设置</translation>
    </message>
    <message>
        <source>status_default_browser</source>
        <extracomment>Tray panel, browser status row: small caption above the name of the current default browser.</extracomment>
        <translation>默认浏览器</translation>
    </message>
    <message>
        <source>status_default_email</source>
        <extracomment>Tray panel, mail status row: small caption above the name of the current default mail client.</extracomment>
        <translation>默认邮件客户端</translation>
    </message>
    <message>
        <source>status_mismatch</source>
        <extracomment>Tray panel, status line: the current default is not the target (shown in orange).</extracomment>
        <translation>不一致</translation>
    </message>
    <message>
        <source>status_none</source>
        <extracomment>Tray panel: shown in place of a name when no default is known.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>status_not_protected</source>
        <extracomment>Tray panel, status line: monitoring is off or has nothing to trigger it (shown in red).</extracomment>
        <translation>未受保护</translation>
    </message>
    <message>
        <source>status_protected</source>
        <extracomment>Tray panel, status line: monitoring is on (shown in green).</extracomment>
        <translation>受保护</translation>
    </message>
    <message>
        <source>status_should_be %@</source>
        <extracomment>Tray panel, status row, shown on a mismatch. %@ = name of the target browser or mail client.</extracomment>
        <translation>应为 %@</translation>
    </message>
    <message>
        <source>tab_browser</source>
        <extracomment>Settings window: tab of the browser page.</extracomment>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>tab_email</source>
        <extracomment>Settings window: tab of the mail client page.</extracomment>
        <translation>邮件</translation>
    </message>
    <message>
        <source>tab_feedback</source>
        <extracomment>Settings window: tab of the feedback page.</extracomment>
        <translation>反馈</translation>
    </message>
    <message>
        <source>tab_general</source>
        <extracomment>Settings window: tab of the general page.</extracomment>
        <translation>通用</translation>
    </message>
    <message>
        <source>tab_log</source>
        <extracomment>Settings window: tab of the change log page.</extracomment>
        <translation>日志</translation>
    </message>
    <message>
        <source>general_appearance</source>
        <extracomment>General page, settings: label of the light/dark picker.</extracomment>
        <translation>外观</translation>
    </message>
    <message>
        <source>general_appearance_dark</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>深色</translation>
    </message>
    <message>
        <source>general_appearance_light</source>
        <extracomment>General page, appearance picker segment.</extracomment>
        <translation>浅色</translation>
    </message>
    <message>
        <source>general_appearance_system</source>
        <extracomment>General page, appearance picker segment: follow the system.</extracomment>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>general_buy_coffee</source>
        <extracomment>General page, support section: donation link button.</extracomment>
        <translation>请我喝杯咖啡</translation>
    </message>
    <message>
        <source>general_cancel</source>
        <extracomment>General page: cancel button of the three confirmation dialogs.</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>general_check_at_startup</source>
        <extracomment>General page, updates: label of the switch for an update check when the program starts.</extracomment>
        <translation>启动时检查</translation>
    </message>
    <message>
        <source>general_check_for_updates</source>
        <extracomment>General page, updates: button that checks for updates now.</extracomment>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>general_colored_icon</source>
        <extracomment>General page, settings: label of the switch that shows the tray icon in color.</extracomment>
        <translation>彩色托盘图标</translation>
    </message>
    <message>
        <source>general_delete_logs</source>
        <extracomment>General page, reset section: button that deletes the change log.</extracomment>
        <translation>删除更改日志</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_button</source>
        <extracomment>General page: destructive button of the delete-log confirmation.</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_message</source>
        <extracomment>General page: message of the delete-log confirmation.</extracomment>
        <translation>更改日志中的所有条目都将被删除。此操作无法撤销。</translation>
    </message>
    <message>
        <source>general_delete_logs_confirm_title</source>
        <extracomment>General page: title of the delete-log confirmation.</extracomment>
        <translation>要删除更改日志吗？</translation>
    </message>
    <message>
        <source>general_description</source>
        <extracomment>General page header: one-sentence description of the program.</extracomment>
        <translation>Vandorel 让你选定的默认浏览器和邮件客户端保持不变，并在其他程序更改它们时提醒你。</translation>
    </message>
    <message>
        <source>general_feature_1</source>
        <extracomment>General page, features list, item 1 (shield symbol).</extracomment>
        <translation>让默认浏览器和邮件客户端始终如你所选</translation>
    </message>
    <message>
        <source>general_feature_2</source>
        <extracomment>General page, features list, item 2 (bell symbol).</extracomment>
        <translation>其他程序接管默认程序时提醒你</translation>
    </message>
    <message>
        <source>general_feature_3</source>
        <extracomment>General page, features list, item 3 (clock symbol).</extracomment>
        <translation>定时检查，唤醒、解锁和登录时也会检查</translation>
    </message>
    <message>
        <source>general_feature_4</source>
        <extracomment>General page, features list, item 4 (circular arrow symbol).</extracomment>
        <translation>一键改回默认程序</translation>
    </message>
    <message>
        <source>general_feature_5</source>
        <extracomment>General page, features list, item 5 (chart symbol).</extracomment>
        <translation>统计并记录每一次更改</translation>
    </message>
    <message>
        <source>general_features_title</source>
        <extracomment>General page: heading of the features list.</extracomment>
        <translation>功能</translation>
    </message>
    <message>
        <source>general_language</source>
        <extracomment>General page, settings: label of the interface language picker.</extracomment>
        <translation>语言</translation>
    </message>
    <message>
        <source>general_launch_at_login</source>
        <extracomment>General page, settings: label of the switch that starts the program at login.</extracomment>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>general_ok</source>
        <extracomment>OK button of the no-updates alert (general page) and of the feedback alerts.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>general_reset_counters</source>
        <extracomment>General page, reset section: button that sets both change counters to zero.</extracomment>
        <translation>重置计数</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_button</source>
        <extracomment>General page: destructive button of the reset-counters confirmation.</extracomment>
        <translation>重置</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_message</source>
        <extracomment>General page: message of the reset-counters confirmation.</extracomment>
        <translation>默认浏览器和邮件客户端的更改计数将归零。</translation>
    </message>
    <message>
        <source>general_reset_counters_confirm_title</source>
        <extracomment>General page: title of the reset-counters confirmation.</extracomment>
        <translation>要重置计数吗？</translation>
    </message>
    <message>
        <source>general_reset_settings</source>
        <extracomment>General page, reset section: button that restores the default settings.</extracomment>
        <translation>重置所有设置</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_button</source>
        <extracomment>General page: destructive button of the reset-settings confirmation.</extracomment>
        <translation>重置</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_message</source>
        <extracomment>General page: message of the reset-settings confirmation.</extracomment>
        <translation>所有设置都将恢复为默认值。你的首选程序、计数和更改日志将保持不变。</translation>
    </message>
    <message>
        <source>general_reset_settings_confirm_title</source>
        <extracomment>General page: title of the reset-settings confirmation.</extracomment>
        <translation>要重置所有设置吗？</translation>
    </message>
    <message>
        <source>general_reset_title</source>
        <extracomment>General page: heading of the reset section.</extracomment>
        <translation>重置</translation>
    </message>
    <message>
        <source>general_reset_update_reminder_snooze</source>
        <extracomment>General page, reset section: button that ends the snooze of update reminders, so they show again.</extracomment>
        <translation>恢复更新提醒</translation>
    </message>
    <message>
        <source>general_settings_title</source>
        <extracomment>General page: heading of the settings section.</extracomment>
        <translation>设置</translation>
    </message>
    <message>
        <source>general_support_description</source>
        <extracomment>General page, support section: text above the donation button.</extracomment>
        <translation>Vandorel 是免费的。如果它对你有帮助，欢迎支持它的开发。</translation>
    </message>
    <message>
        <source>general_support_title</source>
        <extracomment>General page: heading of the support (donation) section.</extracomment>
        <translation>支持</translation>
    </message>
    <message>
        <source>general_update_check_interval</source>
        <extracomment>General page, updates: label of the picker for how often to check for updates.</extracomment>
        <translation>更新检查间隔</translation>
    </message>
    <message>
        <source>general_updates_title</source>
        <extracomment>General page: heading of the updates section.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>update_interval_12h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>每 12 小时</translation>
    </message>
    <message>
        <source>update_interval_6h</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>每 6 小时</translation>
    </message>
    <message>
        <source>update_interval_daily</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>每天</translation>
    </message>
    <message>
        <source>update_interval_never</source>
        <extracomment>General page, update check interval picker: no automatic checks.</extracomment>
        <translation>从不</translation>
    </message>
    <message>
        <source>update_interval_weekly</source>
        <extracomment>General page, update check interval picker.</extracomment>
        <translation>每周</translation>
    </message>
    <message>
        <source>update_no_updates_message</source>
        <extracomment>General page: message of the alert after a manual check found no update.</extracomment>
        <translation>你正在使用最新版本的 Vandorel。</translation>
    </message>
    <message>
        <source>update_no_updates_title</source>
        <extracomment>General page: title of the alert after a manual check found no update.</extracomment>
        <translation>Vandorel 已是最新版本</translation>
    </message>
    <message>
        <source>browser_already_default</source>
        <extracomment>Browser page, target box: shown in green when the selected target already is the default browser.</extracomment>
        <translation>已是默认浏览器</translation>
    </message>
    <message>
        <source>browser_bundle_id %@</source>
        <extracomment>Browser page, target box: line under the picker. %@ = application ID of the selected browser (such as org.example.App).</extracomment>
        <translation>应用 ID：%@</translation>
    </message>
    <message>
        <source>browser_changes_detected</source>
        <extracomment>Browser page, statistics box: label before the number of detected changes.</extracomment>
        <translation>检测到的更改</translation>
    </message>
    <message>
        <source>browser_check_interval</source>
        <extracomment>Browser page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>检查间隔</translation>
    </message>
    <message>
        <source>browser_check_on_login</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>登录时检查</translation>
    </message>
    <message>
        <source>browser_check_on_unlock</source>
        <extracomment>Browser page, system events box: switch label.</extracomment>
        <translation>屏幕解锁时检查</translation>
    </message>
    <message>
        <source>browser_check_on_wake</source>
        <extracomment>Browser page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>从睡眠中唤醒后检查</translation>
    </message>
    <message>
        <source>browser_current</source>
        <extracomment>Browser page, status box: caption above the name of the current default browser.</extracomment>
        <translation>当前默认浏览器</translation>
    </message>
    <message>
        <source>browser_currently_snoozed</source>
        <extracomment>Browser page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>提醒已暂停</translation>
    </message>
    <message>
        <source>browser_enable_monitoring</source>
        <extracomment>Browser page, monitoring box: switch label.</extracomment>
        <translation>启用监控</translation>
    </message>
    <message>
        <source>browser_event_monitoring_title</source>
        <extracomment>Browser page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>系统事件</translation>
    </message>
    <message>
        <source>browser_last_change</source>
        <extracomment>Browser page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>上次更改</translation>
    </message>
    <message>
        <source>browser_monitoring_title</source>
        <extracomment>Browser page: title of the monitoring box.</extracomment>
        <translation>监控</translation>
    </message>
    <message>
        <source>browser_never_changed</source>
        <extracomment>Browser page, statistics box: said when no change has been detected.</extracomment>
        <translation>尚无更改</translation>
    </message>
    <message>
        <source>browser_no_browsers</source>
        <extracomment>Browser page, target box: shown instead of the picker when no browser is installed.</extracomment>
        <translation>在这台电脑上没有找到浏览器。</translation>
    </message>
    <message>
        <source>browser_none</source>
        <extracomment>Browser page, target picker: first entry, no target chosen.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>browser_none_detected</source>
        <extracomment>Browser page, status box: shown when no default browser is known.</extracomment>
        <translation>未检测到</translation>
    </message>
    <message>
        <source>browser_ok</source>
        <extracomment>Browser page: button of the refresh alert.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>browser_refresh</source>
        <extracomment>Browser page, status box: button that searches the installed browsers again.</extracomment>
        <translation>刷新</translation>
    </message>
    <message>
        <source>browser_refresh_alert_message %lld</source>
        <extracomment>Browser page: message of the refresh alert. %lld = number of browsers found (0 or more).</extracomment>
        <translation>共找到 %lld 个浏览器。</translation>
    </message>
    <message>
        <source>browser_refresh_alert_title</source>
        <extracomment>Browser page: title of the refresh alert.</extracomment>
        <translation>浏览器列表已刷新</translation>
    </message>
    <message>
        <source>browser_reset_snooze</source>
        <extracomment>Browser page, snooze box: button that ends the running snooze.</extracomment>
        <translation>结束暂停提醒</translation>
    </message>
    <message>
        <source>browser_select_description</source>
        <extracomment>Browser page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel 会监控默认浏览器，每当其他程序更改它时，都会提议改回你的首选浏览器。</translation>
    </message>
    <message>
        <source>browser_select_target</source>
        <extracomment>Browser page, target box: label of the picker.</extracomment>
        <translation>首选浏览器</translation>
    </message>
    <message>
        <source>browser_select_to_enable</source>
        <extracomment>Browser page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>请选择首选浏览器以启用监控。</translation>
    </message>
    <message>
        <source>browser_set_now</source>
        <extracomment>Browser page, target box: button that makes the selected target the default browser now.</extracomment>
        <translation>设为默认</translation>
    </message>
    <message>
        <source>browser_snooze_description</source>
        <extracomment>Browser page, snooze box: explanation under the duration picker.</extracomment>
        <translation>如果你在提醒中保留了其他浏览器，Vandorel 会在这段时间内不再询问。</translation>
    </message>
    <message>
        <source>browser_snooze_duration</source>
        <extracomment>Browser page, snooze box: label of the duration picker.</extracomment>
        <translation>暂停提醒时长</translation>
    </message>
    <message>
        <source>browser_snooze_title</source>
        <extracomment>Browser page: title of the snooze box.</extracomment>
        <translation>暂停提醒</translation>
    </message>
    <message>
        <source>browser_statistics_title</source>
        <extracomment>Browser page: title of the statistics box.</extracomment>
        <translation>统计</translation>
    </message>
    <message>
        <source>browser_status_title</source>
        <extracomment>Browser page: title of the status box.</extracomment>
        <translation>当前状态</translation>
    </message>
    <message>
        <source>browser_stop</source>
        <extracomment>Browser page, target box: small red button that cancels a running change.</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>browser_target_title</source>
        <extracomment>Browser page: title of the target box.</extracomment>
        <translation>首选浏览器</translation>
    </message>
    <message>
        <source>browser_waiting_prompt</source>
        <extracomment>Browser page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>正在等待系统…</translation>
    </message>
    <message>
        <source>email_already_default</source>
        <extracomment>Mail page, target box: shown in green when the selected target already is the default mail client.</extracomment>
        <translation>已是默认邮件客户端</translation>
    </message>
    <message>
        <source>email_bundle_id %@</source>
        <extracomment>Mail page, target box: line under the picker. %@ = application ID of the selected mail client (such as org.example.App).</extracomment>
        <translation>应用 ID：%@</translation>
    </message>
    <message>
        <source>email_changes_detected</source>
        <extracomment>Mail page, statistics box: label before the number of detected changes.</extracomment>
        <translation>检测到的更改</translation>
    </message>
    <message>
        <source>email_check_interval</source>
        <extracomment>Mail page, monitoring box: label of the picker for how often to check.</extracomment>
        <translation>检查间隔</translation>
    </message>
    <message>
        <source>email_check_on_login</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>登录时检查</translation>
    </message>
    <message>
        <source>email_check_on_unlock</source>
        <extracomment>Mail page, system events box: switch label.</extracomment>
        <translation>屏幕解锁时检查</translation>
    </message>
    <message>
        <source>email_check_on_wake</source>
        <extracomment>Mail page, system events box: switch label (the computer wakes from sleep).</extracomment>
        <translation>从睡眠中唤醒后检查</translation>
    </message>
    <message>
        <source>email_current</source>
        <extracomment>Mail page, status box: caption above the name of the current default mail client.</extracomment>
        <translation>当前默认邮件客户端</translation>
    </message>
    <message>
        <source>email_currently_snoozed</source>
        <extracomment>Mail page, snooze box: shown in orange while a snooze runs.</extracomment>
        <translation>提醒已暂停</translation>
    </message>
    <message>
        <source>email_enable_monitoring</source>
        <extracomment>Mail page, monitoring box: switch label.</extracomment>
        <translation>启用监控</translation>
    </message>
    <message>
        <source>email_event_monitoring_title</source>
        <extracomment>Mail page: title of the box with the check-on-login/sleep/unlock switches.</extracomment>
        <translation>系统事件</translation>
    </message>
    <message>
        <source>email_last_change</source>
        <extracomment>Mail page, statistics box: label before the date of the last detected change.</extracomment>
        <translation>上次更改</translation>
    </message>
    <message>
        <source>email_monitoring_title</source>
        <extracomment>Mail page: title of the monitoring box.</extracomment>
        <translation>监控</translation>
    </message>
    <message>
        <source>email_never_changed</source>
        <extracomment>Mail page, statistics box: said when no change has been detected.</extracomment>
        <translation>尚无更改</translation>
    </message>
    <message>
        <source>email_no_clients</source>
        <extracomment>Mail page, target box: shown instead of the picker when no mail client is installed.</extracomment>
        <translation>在这台电脑上没有找到邮件客户端。</translation>
    </message>
    <message>
        <source>email_none</source>
        <extracomment>Mail page, target picker: first entry, no target chosen.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>email_none_detected</source>
        <extracomment>Mail page, status box: shown when no default mail client is known.</extracomment>
        <translation>未检测到</translation>
    </message>
    <message>
        <source>email_ok</source>
        <extracomment>Mail page: button of the refresh alert.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>email_refresh</source>
        <extracomment>Mail page, status box: button that searches the installed mail clients again.</extracomment>
        <translation>刷新</translation>
    </message>
    <message>
        <source>email_refresh_alert_message %lld</source>
        <extracomment>Mail page: message of the refresh alert. %lld = number of mail clients found (0 or more).</extracomment>
        <translation>共找到 %lld 个邮件客户端。</translation>
    </message>
    <message>
        <source>email_refresh_alert_title</source>
        <extracomment>Mail page: title of the refresh alert.</extracomment>
        <translation>邮件客户端列表已刷新</translation>
    </message>
    <message>
        <source>email_reset_snooze</source>
        <extracomment>Mail page, snooze box: button that ends the running snooze.</extracomment>
        <translation>结束暂停提醒</translation>
    </message>
    <message>
        <source>email_select_description</source>
        <extracomment>Mail page, target box: explanation at the bottom.</extracomment>
        <translation>Vandorel 会监控默认邮件客户端，每当其他程序更改它时，都会提议改回你的首选邮件客户端。</translation>
    </message>
    <message>
        <source>email_select_target</source>
        <extracomment>Mail page, target box: label of the picker.</extracomment>
        <translation>首选邮件客户端</translation>
    </message>
    <message>
        <source>email_select_to_enable</source>
        <extracomment>Mail page, monitoring box: hint in orange while no target is chosen.</extracomment>
        <translation>请选择首选邮件客户端以启用监控。</translation>
    </message>
    <message>
        <source>email_set_now</source>
        <extracomment>Mail page, target box: button that makes the selected target the default mail client now.</extracomment>
        <translation>设为默认</translation>
    </message>
    <message>
        <source>email_snooze_description</source>
        <extracomment>Mail page, snooze box: explanation under the duration picker.</extracomment>
        <translation>如果你在提醒中保留了其他邮件客户端，Vandorel 会在这段时间内不再询问。</translation>
    </message>
    <message>
        <source>email_snooze_duration</source>
        <extracomment>Mail page, snooze box: label of the duration picker.</extracomment>
        <translation>暂停提醒时长</translation>
    </message>
    <message>
        <source>email_snooze_title</source>
        <extracomment>Mail page: title of the snooze box.</extracomment>
        <translation>暂停提醒</translation>
    </message>
    <message>
        <source>email_statistics_title</source>
        <extracomment>Mail page: title of the statistics box.</extracomment>
        <translation>统计</translation>
    </message>
    <message>
        <source>email_status_title</source>
        <extracomment>Mail page: title of the status box.</extracomment>
        <translation>当前状态</translation>
    </message>
    <message>
        <source>email_stop</source>
        <extracomment>Mail page, target box: small red button that cancels a running change.</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>email_target_title</source>
        <extracomment>Mail page: title of the target box.</extracomment>
        <translation>首选邮件客户端</translation>
    </message>
    <message>
        <source>email_waiting_prompt</source>
        <extracomment>Mail page, target box: shown with a spinner while the change of the default is under way.</extracomment>
        <translation>正在等待系统…</translation>
    </message>
    <message>
        <source>log_clear</source>
        <extracomment>Log page toolbar: red button that deletes the whole change log (after a confirmation).</extracomment>
        <translation>清除</translation>
    </message>
    <message>
        <source>log_clear_cancel_button</source>
        <extracomment>Log page: cancel button of the clear confirmation.</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>log_clear_confirm_button</source>
        <extracomment>Log page: confirming button of the clear confirmation.</extracomment>
        <translation>清除</translation>
    </message>
    <message>
        <source>log_clear_confirm_message</source>
        <extracomment>Log page: message of the clear confirmation.</extracomment>
        <translation>更改日志中的所有条目都将被删除。此操作无法撤销。</translation>
    </message>
    <message>
        <source>log_clear_confirm_title</source>
        <extracomment>Log page: title of the clear confirmation.</extracomment>
        <translation>要清除更改日志吗？</translation>
    </message>
    <message>
        <source>log_empty_description</source>
        <extracomment>Log page: explanation under the empty-state title.</extracomment>
        <translation>默认浏览器或邮件客户端的更改会显示在这里。</translation>
    </message>
    <message>
        <source>log_empty_title</source>
        <extracomment>Log page: title of the empty state.</extracomment>
        <translation>尚无更改</translation>
    </message>
    <message>
        <source>log_export</source>
        <extracomment>Log page toolbar: button that saves the log as a text file.</extracomment>
        <translation>导出</translation>
    </message>
    <message>
        <source>log_export_filename</source>
        <extracomment>Log page: start of the proposed export file name; -&lt;date&gt;.txt is added. Keep it short, no slashes.</extracomment>
        <translation>Vandorel-日志</translation>
    </message>
    <message>
        <source>log_filter_all</source>
        <extracomment>Log page filter segment: all entries.</extracomment>
        <translation>全部</translation>
    </message>
    <message>
        <source>log_filter_browser</source>
        <extracomment>Log page filter segment: browser entries only.</extracomment>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>log_filter_email</source>
        <extracomment>Log page filter segment: mail client entries only.</extracomment>
        <translation>邮件</translation>
    </message>
    <message>
        <source>log_filter_label</source>
        <extracomment>Log page: accessible name of the filter control (not drawn).</extracomment>
        <translation>筛选</translation>
    </message>
    <message>
        <source>log_refresh</source>
        <extracomment>Log page toolbar: button that reads the log again.</extracomment>
        <translation>刷新</translation>
    </message>
    <message>
        <source>about_contact</source>
        <extracomment>About window: link row that writes a mail to the maker.</extracomment>
        <translation>联系我们</translation>
    </message>
    <message>
        <source>about_copyright %lld</source>
        <extracomment>About window footer. %lld = the current year (an integer, written without digit grouping).</extracomment>
        <translation>版权所有 © %lld</translation>
    </message>
    <message>
        <source>about_description</source>
        <extracomment>About window: short description under the version.</extracomment>
        <translation>让你选定的默认浏览器和邮件客户端保持不变。</translation>
    </message>
    <message>
        <source>about_rights</source>
        <extracomment>About window footer, under the copyright line.</extracomment>
        <translation>保留所有权利。</translation>
    </message>
    <message>
        <source>about_support</source>
        <extracomment>About window: link row to the donation page.</extracomment>
        <translation>支持开发</translation>
    </message>
    <message>
        <source>about_version</source>
        <extracomment>Version line of the about window and the general page. %@ = the version number, such as 1.2.0 (the key has no specifier, the text must have exactly one).</extracomment>
        <translation>版本 %@</translation>
    </message>
    <message>
        <source>about_website</source>
        <extracomment>About window: link row to the product's website.</extracomment>
        <translation>网站</translation>
    </message>
</context>
</TS>
