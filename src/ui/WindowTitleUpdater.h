#pragma once

#include <QObject>
#include <QString>

#include <chrono>

class LanguageManager;
class QWidget;
class TimerFactory;

// Writes the text of a key as a window title, a tenth of a second after `view` appears and
// after each language change. It writes to the active window, else the first visible one,
// whichever that is then: it does not look for the window of its own view.
class WindowTitleUpdater : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds delay{100};

    WindowTitleUpdater(QWidget *view, const QString &titleKey, LanguageManager &language,
                       TimerFactory &timers);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateTitle();

    QString m_titleKey;
    LanguageManager &m_language;
    TimerFactory &m_timers;
};
