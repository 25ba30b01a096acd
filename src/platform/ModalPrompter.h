#pragma once

#include "platform/ModalPrompt.h"

#include <QList>
#include <QObject>

#include <functional>

// Shows modal prompts one at a time, in the order asked for. Each goes on screen on a later
// turn of the event loop, never inside the call that asked for it; one asked for while
// another is up waits its turn. One prompter serves the whole program, so while any prompt
// is up the guards hold their monitoring ticks back. A subclass only puts one prompt on
// screen and reports the button that answered it.
class ModalPrompter : public QObject {
    Q_OBJECT
public:
    using Answer = std::function<void(int button)>;
    using Compose = std::function<ModalPrompt()>;

    using QObject::QObject;

    // Queues the prompt and returns; `onAnswer` runs on the main thread with the index of the
    // button that answered it.
    void present(const ModalPrompt &prompt, Answer onAnswer);
    // As above, but the prompt is composed only as it goes on screen, so its texts are
    // those of that moment (the language may change while it waits its turn).
    void present(Compose compose, Answer onAnswer);
    // Whether a prompt is on screen now.
    bool isPresenting() const { return m_presenting; }
    // Prompts asked for and not yet on screen.
    qsizetype pendingCount() const { return m_pending.size(); }

Q_SIGNALS:
    // A prompt went on screen (true), or one was answered and its call-back has run (false).
    void presentingChanged(bool presenting);

protected:
    // Puts one prompt on screen. The subclass calls finish() once it is answered.
    virtual void show(const ModalPrompt &prompt) = 0;
    // Ends the prompt on screen: runs its call-back, tells that none is up, and lets the
    // next one follow on a later turn. Does nothing when none is up.
    void finish(int button);

private:
    struct Pending {
        Compose compose;
        Answer onAnswer;
    };

    void scheduleNext();
    void showNext();

    QList<Pending> m_pending;
    Answer m_onAnswer;
    bool m_presenting = false;
    bool m_nextScheduled = false;
};
