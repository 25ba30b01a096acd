#include "core/guard/AlertQueue.h"

#include <QMetaObject>

#include <utility>

void AlertQueue::present(const Alert &alert, std::function<void(Answer)> onAnswer)
{
    m_pending.append({alert, std::move(onAnswer)});
    if (!m_presenting)
        scheduleNext();
}

void AlertQueue::finish(Answer answer)
{
    if (!m_presenting)
        return;
    m_presenting = false;
    const auto onAnswer = std::exchange(m_onAnswer, {});
    if (onAnswer)
        onAnswer(answer);
    Q_EMIT presentingChanged(false);
    if (!m_presenting && !m_pending.isEmpty())
        scheduleNext();
}

void AlertQueue::scheduleNext()
{
    if (m_nextScheduled)
        return;
    m_nextScheduled = true;
    QMetaObject::invokeMethod(this, &AlertQueue::showNext, Qt::QueuedConnection);
}

void AlertQueue::showNext()
{
    m_nextScheduled = false;
    if (m_presenting || m_pending.isEmpty())
        return;
    Pending next = m_pending.takeFirst();
    m_onAnswer = std::move(next.onAnswer);
    m_presenting = true;
    Q_EMIT presentingChanged(true);
    show(next.alert);
}
