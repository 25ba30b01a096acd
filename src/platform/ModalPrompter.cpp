#include "platform/ModalPrompter.h"

#include <QMetaObject>

#include <utility>

void ModalPrompter::present(const ModalPrompt &prompt, Answer onAnswer)
{
    present([prompt] { return prompt; }, std::move(onAnswer));
}

void ModalPrompter::present(Compose compose, Answer onAnswer)
{
    m_pending.append({std::move(compose), std::move(onAnswer)});
    if (!m_presenting)
        scheduleNext();
}

void ModalPrompter::finish(int button)
{
    if (!m_presenting)
        return;
    m_presenting = false;
    const Answer onAnswer = std::exchange(m_onAnswer, {});
    if (onAnswer)
        onAnswer(button);
    Q_EMIT presentingChanged(false);
    if (!m_presenting && !m_pending.isEmpty())
        scheduleNext();
}

void ModalPrompter::scheduleNext()
{
    if (m_nextScheduled)
        return;
    m_nextScheduled = true;
    QMetaObject::invokeMethod(this, &ModalPrompter::showNext, Qt::QueuedConnection);
}

void ModalPrompter::showNext()
{
    m_nextScheduled = false;
    if (m_presenting || m_pending.isEmpty())
        return;
    Pending next = m_pending.takeFirst();
    m_onAnswer = std::move(next.onAnswer);
    m_presenting = true;
    Q_EMIT presentingChanged(true);
    show(next.compose());
}
