#include "ui/MessageBoxPrompter.h"

#include "ui/SymbolTable.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int symbolSize = 64;

QColor symbolColour(ModalPrompt::Style style)
{
    switch (style) {
    case ModalPrompt::Style::warning:
        return {0xFF, 0x95, 0x00};
    case ModalPrompt::Style::critical:
        return {0xFF, 0x3B, 0x30};
    case ModalPrompt::Style::informational:
        break;
    }
    return QApplication::palette().color(QPalette::Highlight);
}

QMessageBox::Icon standardIcon(ModalPrompt::Style style)
{
    switch (style) {
    case ModalPrompt::Style::warning:
        return QMessageBox::Warning;
    case ModalPrompt::Style::critical:
        return QMessageBox::Critical;
    case ModalPrompt::Style::informational:
        break;
    }
    return QMessageBox::Information;
}

QMessageBox::ButtonRole roleOf(qsizetype index, qsizetype count)
{
    if (index == 0)
        return QMessageBox::AcceptRole;
    return index == count - 1 ? QMessageBox::RejectRole : QMessageBox::ActionRole;
}

} // namespace

MessageBoxPrompter::~MessageBoxPrompter()
{
    disconnect(m_boxGone);
    delete m_box;
}

void MessageBoxPrompter::show(const ModalPrompt &prompt)
{
    auto *box = new QMessageBox(QApplication::activeWindow());
    box->setWindowTitle(prompt.title);
    box->setTextFormat(Qt::RichText);
    box->setText(u"<b>" + prompt.title.toHtmlEscaped() + u"</b>");
    box->setInformativeText(prompt.text);
    // Names in the text are not markup, whatever they contain.
    if (auto *informative = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        informative->setTextFormat(Qt::PlainText);
    // The style's icon is set first, so the box keeps its kind for the accessibility tools;
    // a symbol then takes its place on screen.
    box->setIcon(standardIcon(prompt.style));
    auto *icon = box->findChild<QLabel *>(QStringLiteral("qt_msgboxex_icon_label"));
    if (icon && SymbolTable::contains(prompt.symbolName)) {
        const QPixmap symbol =
            SymbolTable::tinted(prompt.symbolName, symbolColour(prompt.style), symbolSize);
        icon->setPixmap(symbol);
        box->setWindowIcon(symbol);
    }
    if (icon && !prompt.symbolDescription.isEmpty()) {
        // Screen readers read an image by its name.
        icon->setAccessibleName(prompt.symbolDescription);
        icon->setAccessibleDescription(prompt.symbolDescription);
    }
    QList<QAbstractButton *> buttons;
    for (qsizetype i = 0; i < prompt.buttons.size(); ++i) {
        // A name such as "Smith & Co" is no shortcut mark.
        QString title = prompt.buttons.at(i);
        title.replace(u'&', QLatin1StringView("&&"));
        buttons.append(box->addButton(title, roleOf(i, prompt.buttons.size())));
    }
    const int last = int(buttons.size()) - 1;
    if (!buttons.isEmpty()) {
        box->setDefaultButton(qobject_cast<QPushButton *>(buttons.first()));
        box->setEscapeButton(buttons.last());
    }
    box->setWindowModality(Qt::ApplicationModal);

    connect(box, &QDialog::finished, this, [this, box, buttons, last] {
        disconnect(m_boxGone);
        const int index = int(buttons.indexOf(box->clickedButton()));
        box->deleteLater();
        finish(index < 0 ? last : index);
    });
    // A box that goes with its window is answered as if closed.
    m_boxGone = connect(box, &QObject::destroyed, this, [this, last] { finish(last); });
    m_box = box;
    box->show();
}
