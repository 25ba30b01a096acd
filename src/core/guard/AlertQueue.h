#pragma once

#include "platform/AlertPresenter.h"

#include <QList>

#include <functional>

// The queueing half of an alert presenter: alerts asked for while one is up wait their
// turn, and each goes on screen on a later turn of the event loop, never inside the call
// that asked for it. A subclass only puts one alert on screen and reports its answer.
class AlertQueue : public AlertPresenter {
    Q_OBJECT
public:
    using AlertPresenter::AlertPresenter;

    void present(const Alert &alert, std::function<void(Answer)> onAnswer) override;
    bool isPresenting() const override { return m_presenting; }
    // Alerts asked for and not yet on screen.
    qsizetype pendingCount() const { return m_pending.size(); }

protected:
    // Puts one alert on screen. The subclass calls finish() once it is answered.
    virtual void show(const Alert &alert) = 0;
    // Ends the alert on screen: runs its call-back, tells that none is up, and lets the
    // next one follow on a later turn.
    void finish(Answer answer);

private:
    struct Pending {
        Alert alert;
        std::function<void(Answer)> onAnswer;
    };

    void scheduleNext();
    void showNext();

    QList<Pending> m_pending;
    std::function<void(Answer)> m_onAnswer;
    bool m_presenting = false;
    bool m_nextScheduled = false;
};
