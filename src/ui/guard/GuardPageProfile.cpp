#include "ui/guard/GuardPageProfile.h"

const GuardPageProfile &GuardPageProfile::browser()
{
    static const GuardPageProfile profile{
        "browser_status_title",
        "browser_target_title",
        "browser_statistics_title",
        "browser_monitoring_title",
        "browser_event_monitoring_title",
        "browser_snooze_title",
        "globe",

        "browser_current",
        "browser_none_detected",
        "browser_refresh",
        "browser_refresh_alert_title",
        "browser_refresh_alert_message %lld",
        "browser_ok",

        "browser_no_browsers",
        "browser_select_target",
        "browser_none",
        "browser_select_description",
        "browser_bundle_id %@",
        "browser_already_default",
        "browser_set_now",
        "browser_stop",
        "browser_waiting_prompt",

        "browser_changes_detected",
        "browser_last_change",

        "browser_enable_monitoring",
        "browser_select_to_enable",
        "browser_check_interval",
        "browser_check_on_login",
        "browser_check_on_wake",
        "browser_check_on_unlock",

        "browser_snooze_duration",
        "browser_snooze_description",
        "browser_currently_snoozed",
        "browser_reset_snooze",

        {300, false},
        {200, false},
        {200, false},
        false,
    };
    return profile;
}

const GuardPageProfile &GuardPageProfile::email()
{
    static const GuardPageProfile profile{
        "email_status_title",
        "email_target_title",
        "email_statistics_title",
        "email_monitoring_title",
        "email_event_monitoring_title",
        "email_snooze_title",
        "envelope",

        "email_current",
        "email_none_detected",
        "email_refresh",
        "email_refresh_alert_title",
        "email_refresh_alert_message %lld",
        "email_ok",

        "email_no_clients",
        "email_select_target",
        "email_none",
        "email_select_description",
        "email_bundle_id %@",
        "email_already_default",
        "email_set_now",
        "email_stop",
        "email_waiting_prompt",

        "email_changes_detected",
        "email_last_change",

        "email_enable_monitoring",
        "email_select_to_enable",
        "email_check_interval",
        "email_check_on_login",
        "email_check_on_wake",
        "email_check_on_unlock",

        "email_snooze_duration",
        "email_snooze_description",
        "email_currently_snoozed",
        "email_reset_snooze",

        {250, true},
        {200, true},
        {200, true},
        true,
    };
    return profile;
}
