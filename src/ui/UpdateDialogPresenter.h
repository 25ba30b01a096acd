#pragma once

#include "core/updates/UpdatePresenter.h"
#include "ui/UpdateAvailableView.h"

#include <QMessageBox>
#include <QPointer>

// Shows the own updater's findings as windows: the update sheet, or a message box saying
// that this copy is up to date. One of each at a time; a newer finding replaces the old.
class UpdateDialogPresenter final : public UpdatePresenter {
public:
    ~UpdateDialogPresenter() override;

    void presentUpdateAvailable(const QString &version, bool isBrewInstall) override;
    void presentNoUpdate() override;

    UpdateAvailableView *sheet() const { return m_sheet; }
    QMessageBox *noUpdateMessage() const { return m_noUpdateMessage; }

private:
    QPointer<UpdateAvailableView> m_sheet;
    QPointer<QMessageBox> m_noUpdateMessage;
};
