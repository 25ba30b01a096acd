#include "ui/UpdateDialogPresenter.h"

#include "core/i18n/LanguageManager.h"
#include "ui/SymbolTable.h"
#include "ui/UpdateAvailableView.h"

#include <QMessageBox>

namespace {

const QColor upToDateGreen(0x34, 0xC7, 0x59);

void bringToFront(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

UpdateDialogPresenter::~UpdateDialogPresenter()
{
    delete m_sheet;
    delete m_noUpdateMessage;
}

void UpdateDialogPresenter::presentUpdateAvailable(const QString &version, bool isBrewInstall)
{
    if (m_sheet)
        m_sheet->close();
    m_sheet = new UpdateAvailableView(version, isBrewInstall);
    m_sheet->setAttribute(Qt::WA_DeleteOnClose);
    bringToFront(m_sheet);
}

void UpdateDialogPresenter::presentNoUpdate()
{
    if (m_noUpdateMessage)
        m_noUpdateMessage->close();
    const LanguageManager &language = LanguageManager::shared();
    auto *box = new QMessageBox;
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(language.localizedString(QStringLiteral("update_no_updates_title")));
    box->setText(language.localizedString(QStringLiteral("update_no_updates_title")));
    box->setInformativeText(language.localizedString(QStringLiteral("update_no_updates_message")));
    box->setIconPixmap(
        SymbolTable::tinted(QStringLiteral("checkmark.circle.fill"), upToDateGreen, 48));
    box->addButton(language.localizedString(QStringLiteral("general_ok")), QMessageBox::AcceptRole);
    m_noUpdateMessage = box;
    bringToFront(box);
}
