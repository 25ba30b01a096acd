#include "ui/panel/MenuBarView.h"

#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "ui/Shortcuts.h"
#include "ui/WindowRouter.h"
#include "ui/panel/PanelRow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int rowMargin = 12;
constexpr int iconGap = 16;
constexpr int lineGap = 2;

QFont fontOf(const QFont &base, int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont font = base;
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

void makeSecondary(QLabel *label)
{
    label->setForegroundRole(QPalette::PlaceholderText);
}

// The parts in their colours, as one text that wraps where it must: after a part, never
// inside one.
QString richLine(const QList<StatusRowState::Part> &parts, const QColor &secondary)
{
    QString html;
    for (const StatusRowState::Part &part : parts) {
        QString text = part.text.trimmed().toHtmlEscaped().replace(u' ', u'\u00A0');
        if (part.text.startsWith(u' '))
            text.prepend(u'\u00A0');
        if (part.text.endsWith(u' '))
            text.append(u' ');
        html += QStringLiteral("<span style='color:%1'>%2</span>")
                    .arg(part.colour.value_or(secondary).name(QColor::HexArgb), text);
    }
    return html;
}

QLabel *plainLabel(const QString &text = {})
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

QList<MenuBarView::Command> MenuBarView::commands(WindowRouter &router)
{
    return {
        {QStringLiteral("menu_settings"), preferencesShortcut(),
         [&router] { router.openSettingsTab(SettingsTab::general); }},
        {QStringLiteral("feedback_title"),
         {},
         [&router] { router.openSettingsTab(SettingsTab::feedback); }},
        {QStringLiteral("menu_about"),
         {},
         [&router] { router.openWindow(QStringLiteral("about")); }},
        {QStringLiteral("menu_quit"), quitShortcut(), [] { QCoreApplication::quit(); }},
    };
}

MenuBarView::MenuBarView(const ViewEnvironment &environment, QWidget *parent)
    : QWidget(parent), m_env(environment)
{
    setFixedWidth(panelWidth);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, verticalMargin, 0, verticalMargin);
    m_layout->setSpacing(0);

    m_browserRow = makeStatusRow(m_browser);
    connect(m_browserRow, &PanelRow::clicked, this,
            [this] { m_env.router->openSettingsTab(SettingsTab::browser); });
    addDivider();
    m_emailRow = makeStatusRow(m_email);
    connect(m_emailRow, &PanelRow::clicked, this,
            [this] { m_env.router->openSettingsTab(SettingsTab::email); });
    addDivider();
    const QList<Command> rows = commands(*m_env.router);
    for (int i = 0; i < rows.size(); ++i) {
        if (i == quitIndex)
            addDivider();
        m_commandRows.append(makeCommandRow(rows.at(i)));
    }

    connect(m_env.browserManager, &HandlerGuard::objectWillChange, this,
            &MenuBarView::showStatusRows);
    connect(m_env.emailClientManager, &HandlerGuard::objectWillChange, this,
            &MenuBarView::showStatusRows);
    showStatusRows();
}

StatusRowState MenuBarView::browserState() const
{
    return StatusRowState::browser(*m_env.browserManager, *m_env.language);
}

StatusRowState MenuBarView::emailState() const
{
    return StatusRowState::email(*m_env.emailClientManager, *m_env.language);
}

PanelRow *MenuBarView::makeStatusRow(StatusRow &row)
{
    auto *button = new PanelRow(QMargins(rowMargin, 8, rowMargin, 8));
    button->contentLayout()->setSpacing(iconGap);
    row.icon = new QLabel;
    row.icon->setFixedSize(iconHeight, iconHeight);
    button->addContent(row.icon);
    button->contentLayout()->setAlignment(row.icon, Qt::AlignTop);

    auto *column = new QWidget;
    auto *lines = new QVBoxLayout(column);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(lineGap);
    row.title = plainLabel();
    row.title->setFont(fontOf(font(), 11));
    makeSecondary(row.title);
    row.name = plainLabel();
    row.name->setFont(fontOf(font(), 18, QFont::Bold));
    row.name->setWordWrap(true);
    row.shouldBe = plainLabel();
    row.shouldBe->setFont(fontOf(font(), 11));
    row.shouldBe->setWordWrap(true);
    row.line = new QLabel;
    row.line->setTextFormat(Qt::RichText);
    row.line->setWordWrap(true);
    row.line->setFont(fontOf(font(), 14, QFont::Medium));
    lines->addWidget(row.title);
    lines->addWidget(row.name);
    lines->addWidget(row.shouldBe);
    lines->addWidget(row.line);
    button->addContent(column, 1);
    m_layout->addWidget(button);
    return button;
}

PanelRow *MenuBarView::makeCommandRow(const Command &command)
{
    auto *button = new PanelRow(QMargins(rowMargin, 6, rowMargin, 6));
    button->contentLayout()->setSpacing(0);
    const QString text = m_env.language->localizedString(command.key);
    button->addContent(plainLabel(text));
    QString name = text;
    if (!command.shortcutLabel.isEmpty()) {
        const QString shortcut = command.shortcutLabel.toString(QKeySequence::NativeText);
        auto *label = plainLabel(u' ' + shortcut);
        makeSecondary(label);
        button->addContent(label);
        name += u' ' + shortcut;
    }
    button->contentLayout()->addStretch();
    button->setAccessibleName(name);
    connect(button, &PanelRow::clicked, this, [run = command.run] { run(); });
    m_layout->addWidget(button);
    return button;
}

void MenuBarView::addDivider()
{
    auto *divider = new QFrame;
    divider->setFrameShape(QFrame::HLine);
    divider->setFrameShadow(QFrame::Plain);
    divider->setForegroundRole(QPalette::Midlight);
    auto *holder = new QWidget;
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(rowMargin, 4, rowMargin, 4);
    layout->addWidget(divider);
    m_layout->addWidget(holder);
}

void MenuBarView::showStatus(StatusRow &row, const StatusRowState &state)
{
    const qreal ratio = devicePixelRatioF();
    QPixmap shield = state.shield(qRound(iconHeight * ratio));
    shield.setDevicePixelRatio(ratio);
    row.icon->setPixmap(shield);
    row.title->setText(state.title);
    row.name->setText(state.name);
    const std::optional<QString> shouldBe = state.shouldBe(*m_env.language);
    row.shouldBe->setText(shouldBe.value_or(QString()));
    row.shouldBe->setVisible(shouldBe.has_value());
    const QList<StatusRowState::Part> parts =
        StatusRowState::statusLine(state.isMismatch, state.isProtected, *m_env.language);
    row.line->setText(richLine(parts, palette().color(QPalette::PlaceholderText)));
}

void MenuBarView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showStatusRows();
}

void MenuBarView::showStatusRows()
{
    const StatusRowState browser = browserState();
    const StatusRowState email = emailState();
    showStatus(m_browser, browser);
    showStatus(m_email, email);
    m_browserRow->setAccessibleName(browser.summary(*m_env.language));
    m_emailRow->setAccessibleName(email.summary(*m_env.language));
}
