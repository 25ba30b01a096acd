#include "ui/UpdateSheetDialogPresenter.h"

#include "ui/UpdateAvailableView.h"

UpdateSheetDialogPresenter::~UpdateSheetDialogPresenter()
{
    delete m_sheet;
}

void UpdateSheetDialogPresenter::presentUpdateAvailable(const QString &version, bool isBrewInstall)
{
    if (m_sheet)
        m_sheet->close();
    m_sheet = new UpdateAvailableView(version, isBrewInstall);
    m_sheet->setAttribute(Qt::WA_DeleteOnClose);
    m_sheet->show();
    m_sheet->raise();
    m_sheet->activateWindow();
}
