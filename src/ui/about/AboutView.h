#pragma once

#include <QByteArray>
#include <QUrl>
#include <QWidget>

#include <functional>

class Clock;
class LanguageManager;
class QLabel;
class RowButton;

// The whole content of the about window: who the program is, which version runs, three
// outward links and the way into the feedback page, and the copyright line of the
// present year in the user's calendar. Fixed at 450 x 390.
class AboutView : public QWidget {
    Q_OBJECT
public:
    static constexpr QSize fixedSize{450, 390};

    enum class Row { website, contact, support, feedback };

    struct Links {
        QUrl website;
        QUrl contact; // a mail link
        QUrl support;
    };
    // The addresses of the build configuration.
    static Links configuredLinks();

    // `openFeedbackSettingsTab` brings the settings window forward on the feedback page;
    // the about window stays open. `calendarLocale` names the calendar that counts the year.
    AboutView(LanguageManager &language, const Clock &clock,
              std::function<void()> openFeedbackSettingsTab, QWidget *parent = nullptr,
              const Links &links = configuredLinks(),
              const QByteArray &calendarLocale = systemCalendarLocale());

    static QByteArray systemCalendarLocale();

    RowButton *row(Row row) const;
    QLabel *copyrightLine() const { return m_copyright; }

private:
    QWidget *makeLinks();
    QWidget *makeFooter();
    void retranslate();

    LanguageManager &m_language;
    const Clock &m_clock;
    std::function<void()> m_openFeedbackSettingsTab;
    Links m_links;
    QByteArray m_calendarLocale;

    QList<RowButton *> m_rows;
    QLabel *m_copyright = nullptr;
};
