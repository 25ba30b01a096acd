#include "core/i18n/AppLanguage.h"
#include "core/support/TextFormat.h"

#include <QHash>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <algorithm>

namespace {

// One key the interface looks up and the format specifiers its text must hold, in the order
// the caller passes the arguments ("%@" for text, "%lld" for integers).
struct CatalogueEntry {
    QString key;
    QStringList specifiers;
};

// Grouped by where the texts show: intervals and snoozes, change alerts, update sheet,
// feedback page, application menu and windows, tray panel, settings tabs, general page,
// what only the browser or the mail page shows, log page, about window.
const char keyList[] =
    "interval_daily;interval_every_10_minutes;interval_every_5_minutes;interval_every_hour;"
    "interval_every_minute;interval_none;snooze_15_minutes;snooze_1_hour;snooze_30_minutes;"
    "snooze_4_hours;snooze_rest_of_today;alert_browser_changed_message %@ %@;"
    "alert_browser_changed_title;alert_button_change_back;alert_button_keep %@;"
    "alert_email_changed_message %@ %@;alert_email_changed_title;update_available_message;"
    "update_available_title;update_brew_command_hint;update_brew_hint;update_copy_command;"
    "update_later_button;feedback_description;feedback_error_message;feedback_error_title;"
    "feedback_question;feedback_send;feedback_sending;feedback_sent_message;feedback_sent_title;"
    "feedback_tag_cool_app;feedback_tag_idea;feedback_tag_issue;feedback_tag_label;"
    "feedback_tag_other;feedback_tag_translation;feedback_text_placeholder;feedback_title;"
    "menu_item_about;menu_item_settings;window_about_title;window_settings_title;menu_about;"
    "menu_quit;menu_settings;status_default_browser;status_default_email;status_mismatch;"
    "status_none;status_not_protected;status_protected;status_should_be %@;tab_browser;tab_email;"
    "tab_feedback;tab_general;tab_log;general_appearance;general_appearance_dark;"
    "general_appearance_light;general_appearance_system;general_buy_coffee;general_cancel;"
    "general_check_at_startup;general_check_for_updates;general_colored_icon;general_delete_logs;"
    "general_delete_logs_confirm_button;general_delete_logs_confirm_message;"
    "general_delete_logs_confirm_title;general_description;general_feature_1;general_feature_2;"
    "general_feature_3;general_feature_4;general_feature_5;general_features_title;"
    "general_language;general_launch_at_login;general_ok;general_reset_counters;"
    "general_reset_counters_confirm_button;general_reset_counters_confirm_message;"
    "general_reset_counters_confirm_title;general_reset_settings;"
    "general_reset_settings_confirm_button;general_reset_settings_confirm_message;"
    "general_reset_settings_confirm_title;general_reset_title;"
    "general_reset_update_reminder_snooze;general_settings_title;general_support_description;"
    "general_support_title;general_update_check_interval;general_updates_title;"
    "update_interval_12h;update_interval_6h;update_interval_daily;update_interval_never;"
    "update_interval_weekly;update_no_updates_message;update_no_updates_title;browser_no_browsers;"
    "email_no_clients;log_clear;log_clear_cancel_button;log_clear_confirm_button;"
    "log_clear_confirm_message;log_clear_confirm_title;log_empty_description;log_empty_title;"
    "log_export;log_export_filename;log_filter_all;log_filter_browser;log_filter_email;"
    "log_filter_label;log_refresh;about_contact;about_copyright %lld;about_description;"
    "about_rights;about_support;about_version;about_website;";

// The texts of the browser page, each also on the mail page with "email_" for "browser_".
const char guardPageKeys[] =
    "already_default;bundle_id %@;changes_detected;check_interval;check_on_login;check_on_unlock;"
    "check_on_wake;current;currently_snoozed;enable_monitoring;event_monitoring_title;last_change;"
    "monitoring_title;never_changed;none;none_detected;ok;refresh;refresh_alert_message %lld;"
    "refresh_alert_title;reset_snooze;select_description;select_target;select_to_enable;set_now;"
    "snooze_description;snooze_duration;snooze_title;statistics_title;status_title;stop;"
    "target_title;waiting_prompt;";

// The specifiers of a text in order of appearance, positional forms reduced to their
// conversion ("%2$@" reads as "%@"); "%%" is no specifier.
QStringList specifiersIn(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("%(%|(?:[0-9]+\\$)?(@|lld|llu|ld|lu|d|i|u))"));
    QStringList found;
    for (auto it = pattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.captured(1) != u"%")
            found.append(u'%' + match.captured(2));
    }
    return found;
}

// Every key the interface looks up: the string tables are checked against it.
const QList<CatalogueEntry> &catalogue()
{
    static const QList<CatalogueEntry> all = [] {
        QList<CatalogueEntry> entries;
        QStringList keys = QString::fromUtf8(keyList).split(u';', Qt::SkipEmptyParts);
        for (const QString &key : QString::fromUtf8(guardPageKeys).split(u';', Qt::SkipEmptyParts))
            keys << u"browser_" + key << u"email_" + key;
        for (const QString &key : keys) {
            // Two texts show a version their key does not name.
            const bool hidden = key == u"about_version" || key == u"update_available_message";
            entries.append({key, hidden ? QStringList{QStringLiteral("%@")} : specifiersIn(key)});
        }
        return entries;
    }();
    return all;
}

// The texts of a language's table as built into the program, by key; empty if there is none.
QHash<QString, QString> compiledTexts(const QString &code)
{
    QTranslator table;
    QHash<QString, QString> texts;
    if (table.load(u":/i18n/vandorel_" + code + u".qm"))
        for (const CatalogueEntry &entry : catalogue())
            texts.insert(entry.key, table.translate("Localizable", entry.key.toUtf8().constData()));
    return texts;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

// Formats the text with distinct numbers: a positional specifier numbered wrong, or mixed
// with plain ones, shows some argument twice or not at all.
bool showsEachArgumentOnce(const QString &text, qsizetype argumentCount)
{
    QVariantList values;
    for (qsizetype i = 1; i <= argumentCount; ++i)
        values.append(qint64(970000 + i));
    const QString formatted = TextFormat::format(text, values);
    return std::all_of(values.cbegin(), values.cend(), [&](const QVariant &value) {
        return formatted.count(value.toString()) == 1;
    });
}

} // namespace

class StringTablesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tableCoversTheCatalogue_data()
    {
        QTest::addColumn<QString>("code");
        for (const AppLanguage language : AppLanguage::allCases())
            QTest::newRow(qPrintable(language.code())) << language.code();
    }
    void tableCoversTheCatalogue()
    {
        QFETCH(QString, code);
        const QHash<QString, QString> texts = compiledTexts(code);
        QVERIFY2(!texts.isEmpty(), "no table built in");
        QStringList problems;
        for (const CatalogueEntry &entry : catalogue()) {
            const QString text = texts.value(entry.key);
            if (text.trimmed().isEmpty() || text == entry.key) {
                problems.append(u"missing, empty or the key: " + entry.key);
                continue;
            }
            const QStringList specifiers = specifiersIn(text);
            if (sorted(specifiers) != sorted(entry.specifiers))
                problems.append(
                    QStringLiteral("specifiers '%1' instead of '%2': %3")
                        .arg(specifiers.join(u' '), entry.specifiers.join(u' '), entry.key));
            if (!showsEachArgumentOnce(text, entry.specifiers.size()))
                problems.append(u"an argument shows not exactly once: " + entry.key);
            if (text.count(QStringLiteral("**")) % 2 != 0)
                problems.append(u"unbalanced **: " + entry.key);
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u"\n")));
    }

    // The French word for snooze is "pause", never "sourdine", in every key that names it.
    void frenchSaysPauseForSnooze()
    {
        const QHash<QString, QString> french = compiledTexts(QStringLiteral("fr"));
        for (auto it = french.cbegin(); it != french.cend(); ++it) {
            QVERIFY2(!it.value().contains(u"sourdine", Qt::CaseInsensitive), qPrintable(it.key()));
            if (it.key().endsWith(u"_snooze_title") || it.key().endsWith(u"_currently_snoozed"))
                QVERIFY2(it.value().contains(u"pause", Qt::CaseInsensitive), qPrintable(it.key()));
        }
    }
};

QTEST_GUILESS_MAIN(StringTablesTest)
#include "tst_string_tables.moc"
