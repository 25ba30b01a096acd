#pragma once

#include "core/guard/AlertQueue.h"

#include <QMessageBox>
#include <QPointer>

// Puts the guards' alerts on screen as application-modal message boxes, one at a time,
// without blocking the caller. Escape and closing the box give the second answer.
class MessageBoxAlertPresenter final : public AlertQueue {
    Q_OBJECT
public:
    using AlertQueue::AlertQueue;
    ~MessageBoxAlertPresenter() override;

    // The box on screen, if any.
    QMessageBox *box() const { return m_box; }

protected:
    void show(const Alert &alert) override;

private:
    QPointer<QMessageBox> m_box;
};
