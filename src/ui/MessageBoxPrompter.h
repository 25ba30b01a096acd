#pragma once

#include "platform/ModalPrompter.h"

#include <QMessageBox>
#include <QPointer>

// Puts the program's prompts on screen as application-modal message boxes, one at a time,
// without blocking the caller, over the window that is active when each goes up.
class MessageBoxPrompter final : public ModalPrompter {
    Q_OBJECT
public:
    using ModalPrompter::ModalPrompter;
    ~MessageBoxPrompter() override;

    // The box on screen, if any.
    QMessageBox *box() const { return m_box; }

protected:
    void show(const ModalPrompt &prompt) override;

private:
    QPointer<QMessageBox> m_box;
    QMetaObject::Connection m_boxGone;
};
