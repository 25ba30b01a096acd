#include "ui/panel/MenuBarView.h"

#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "ui/Shortcuts.h"
#include "ui/WindowRouter.h"
#include "ui/panel/PanelRow.h"

#include <QCoreApplication>
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

void paintText(QLabel *label, const std::optional<QColor> &colour)
{
    if (!colour) {
        label->setForegroundRole(QPalette::PlaceholderText);
        return;
    }
    label->setForegroundRole(QPalette::WindowText);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, *colour);
    label->setPalette(palette);
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
    paintText(row.title, std::nullopt);
    row.name = plainLabel();
    row.name->setFont(fontOf(font(), 18, QFont::Bold));
    row.name->setWordWrap(true);
    row.shouldBe = plainLabel();
    row.shouldBe->setFont(fontOf(font(), 11));
    row.shouldBe->setWordWrap(true);
    auto *statusLine = new QHBoxLayout;
    statusLine->setSpacing(0);
    for (int i = 0; i < 3; ++i) {
        row.line.append(plainLabel());
        row.line.last()->setFont(fontOf(font(), 14, QFont::Medium));
        statusLine->addWidget(row.line.last());
    }
    statusLine->addStretch();
    lines->addWidget(row.title);
    lines->addWidget(row.name);
    lines->addWidget(row.shouldBe);
    lines->addLayout(statusLine);
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
        paintText(label, std::nullopt);
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
    for (int i = 0; i < row.line.size(); ++i) {
        QLabel *label = row.line.at(i);
        label->setVisible(i < parts.size());
        if (i < parts.size()) {
            label->setText(parts.at(i).text);
            paintText(label, parts.at(i).colour);
        }
    }
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
