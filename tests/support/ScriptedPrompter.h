#pragma once

#include "Settle.h"
#include "platform/ModalPrompter.h"

#include <QList>

// Stands in for the user in front of the program's prompts: records each prompt as it goes
// on screen and answers it when the test says, either the one on screen now or, scripted
// ahead, the next ones to come up. Queueing is the real ModalPrompter's.
class ScriptedPrompter final : public ModalPrompter {
    Q_OBJECT
public:
    using ModalPrompter::ModalPrompter;

    // Prompts that went on screen, oldest first.
    const QList<ModalPrompt> &shown() const { return m_shown; }
    const ModalPrompt &last() const { return m_shown.last(); }

    // Answers the prompt on screen with its `button`-th button; false if none is up.
    bool answer(int button)
    {
        if (!isPresenting())
            return false;
        finish(button);
        return true;
    }
    // The next prompt to go on screen is answered with `button` on a later turn of the event
    // loop, as a user would; calls add up, one answer for each prompt in turn.
    void answerNext(int button) { m_script.append(button); }

    // Lets queued prompts go on screen and scripted answers come back.
    static void settle() { ::settle(); }

protected:
    void show(const ModalPrompt &prompt) override
    {
        m_shown.append(prompt);
        if (!m_script.isEmpty()) {
            const int button = m_script.takeFirst();
            QMetaObject::invokeMethod(
                this, [this, button] { answer(button); }, Qt::QueuedConnection);
        }
    }

private:
    QList<ModalPrompt> m_shown;
    QList<int> m_script;
};
