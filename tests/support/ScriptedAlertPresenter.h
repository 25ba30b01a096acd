#pragma once

#include "core/guard/AlertQueue.h"

#include <QCoreApplication>
#include <QList>

#include <optional>

// Stands in for the user in front of the alerts: records each alert as it goes on screen
// and answers when the test says, or at once with a preset answer. Queueing is the real
// AlertQueue's.
class ScriptedAlertPresenter final : public AlertQueue {
    Q_OBJECT
public:
    using AlertQueue::AlertQueue;

    // Alerts that went on screen, oldest first.
    const QList<Alert> &shown() const { return m_shown; }
    // Answers the alert on screen; false if none is up.
    bool answer(Answer answer)
    {
        if (!isPresenting())
            return false;
        finish(answer);
        return true;
    }
    // Every alert from now on is answered so as soon as it is up (on a later turn of the
    // event loop, as a user would); nothing answers them automatically.
    void setPresetAnswer(std::optional<Answer> answer) { m_preset = answer; }

    // Lets queued alerts go on screen and preset answers come back.
    static void settle()
    {
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
    }

protected:
    void show(const Alert &alert) override
    {
        m_shown.append(alert);
        if (m_preset) {
            const Answer preset = *m_preset;
            QMetaObject::invokeMethod(
                this, [this, preset] { answer(preset); }, Qt::QueuedConnection);
        }
    }

private:
    QList<Alert> m_shown;
    std::optional<Answer> m_preset;
};
