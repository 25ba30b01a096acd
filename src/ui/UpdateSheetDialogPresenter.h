#pragma once

#include "core/updates/UpdateSheetPresenter.h"
#include "ui/UpdateAvailableView.h"

#include <QPointer>

// Shows the update sheet as a window of its own, one at a time: a newer finding replaces
// the sheet that is still open.
class UpdateSheetDialogPresenter final : public UpdateSheetPresenter {
public:
    ~UpdateSheetDialogPresenter() override;

    void presentUpdateAvailable(const QString &version, bool isBrewInstall) override;

    UpdateAvailableView *sheet() const { return m_sheet; }

private:
    QPointer<UpdateAvailableView> m_sheet;
};
