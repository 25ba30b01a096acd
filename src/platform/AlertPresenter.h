#pragma once

#include <QObject>
#include <QString>

#include <functional>

// Shows modal two-button alerts, one at a time, in the order asked for. Dismissing an
// alert any other way than by its first button (Escape, closing it) is the second answer.
// One presenter serves the whole program: while any alert is up, no guard's monitoring
// tick runs.
class AlertPresenter : public QObject {
    Q_OBJECT
public:
    enum class Answer { first, second };

    struct Alert {
        QString title;
        QString text;
        QString firstButton;
        QString secondButton;
        QString symbolName; // a symbol of the program's symbol table
    };

    using QObject::QObject;

    // Queues the alert and returns; `onAnswer` runs on the main thread once it is answered.
    virtual void present(const Alert &alert, std::function<void(Answer)> onAnswer) = 0;
    // Whether an alert is on screen now.
    virtual bool isPresenting() const = 0;

Q_SIGNALS:
    // An alert went on screen (true), or one was answered and its call-back has run (false).
    void presentingChanged(bool presenting);
};
