#include "ui/MessageBoxAlertPresenter.h"

#include "ui/SymbolTable.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace {

const QColor warningOrange(0xFF, 0x95, 0x00);
constexpr int symbolSize = 64;

} // namespace

MessageBoxAlertPresenter::~MessageBoxAlertPresenter()
{
    delete m_box;
}

void MessageBoxAlertPresenter::show(const Alert &alert)
{
    auto *box = new QMessageBox;
    box->setWindowTitle(alert.title);
    box->setTextFormat(Qt::RichText);
    box->setText(u"<b>" + alert.title.toHtmlEscaped() + u"</b>");
    box->setInformativeText(alert.text);
    // Handler names are not markup, whatever they contain.
    if (auto *informative = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        informative->setTextFormat(Qt::PlainText);
    const QPixmap symbol = SymbolTable::tinted(alert.symbolName, warningOrange, symbolSize);
    box->setIconPixmap(symbol);
    box->setWindowIcon(symbol);
    QPushButton *first = box->addButton(alert.firstButton, QMessageBox::AcceptRole);
    QPushButton *second = box->addButton(alert.secondButton, QMessageBox::RejectRole);
    box->setDefaultButton(first);
    box->setEscapeButton(second);
    box->setWindowModality(Qt::ApplicationModal);

    connect(box, &QDialog::finished, this, [this, box, first] {
        const Answer answer = box->clickedButton() == first ? Answer::first : Answer::second;
        box->deleteLater();
        finish(answer);
    });
    m_box = box;
    box->show();
}
