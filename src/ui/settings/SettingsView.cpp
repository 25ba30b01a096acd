#include "ui/settings/SettingsView.h"

#include "core/feedback/FeedbackForm.h"
#include "ui/WidgetSwap.h"
#include "ui/WindowList.h"
#include "ui/WindowRouter.h"
#include "ui/WindowTitleUpdater.h"
#include "ui/feedback/FeedbackView.h"
#include "ui/general/GeneralSettingsView.h"
#include "ui/guard/BrowserSettingsView.h"
#include "ui/guard/EmailSettingsView.h"
#include "ui/log/LogView.h"
#include "ui/settings/SettingsTabNotifier.h"
#include "ui/settings/TabButton.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QShowEvent>
#include <QVBoxLayout>

SettingsView::SettingsView(const ViewEnvironment &environment, QWidget *parent)
    : QWidget(parent), m_env(environment)
{
    setFixedSize(viewWidth, viewHeight);
    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(makeTabColumn());
    auto *divider = new QFrame;
    divider->setFrameShape(QFrame::VLine);
    divider->setFrameShadow(QFrame::Plain);
    divider->setForegroundRole(QPalette::Mid);
    divider->setFixedWidth(1);
    m_layout->addWidget(divider);
    showPage();

    new WindowTitleUpdater(this, QStringLiteral("window_settings_title"), *m_env.language,
                           *m_env.timers);
    connect(&SettingsTabNotifier::shared(), &SettingsTabNotifier::SwitchSettingsTab, this,
            [this](SettingsTab tab) { setSelectedTab(tab.rawValue()); });
}

void SettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    if (qEnvironmentVariableIsSet(WindowRouter::openTabVariable))
        setSelectedTab(qEnvironmentVariable(WindowRouter::openTabVariable));
    QMetaObject::invokeMethod(
        this,
        [] {
            if (QWidget *window = WindowList::firstSettingsWindow())
                WindowList::bringForward(window);
        },
        Qt::QueuedConnection);
}

namespace {

GuardSettingsView::Services guardPageServices(const ViewEnvironment &environment)
{
    return {*environment.language, *environment.clock, *environment.timers, *environment.prompter};
}

} // namespace

QWidget *SettingsView::makePage(SettingsTab tab, const ViewEnvironment &environment)
{
    switch (tab) {
    case SettingsTab::general:
        return new GeneralSettingsView(environment);
    case SettingsTab::browser:
        return new BrowserSettingsView(*environment.browserManager, guardPageServices(environment));
    case SettingsTab::email:
        return new EmailSettingsView(*environment.emailClientManager,
                                     guardPageServices(environment));
    case SettingsTab::log:
        return new LogView(*environment.language, *environment.log, *environment.clock,
                           *environment.timers, *environment.prompter);
    case SettingsTab::feedback:
        return new FeedbackView(FeedbackForm::defaultOptions(), *environment.language,
                                *environment.prompter, *environment.telemetry);
    }
    return new QWidget;
}

QWidget *SettingsView::makeTabColumn()
{
    auto *column = new QWidget;
    column->setFixedWidth(tabColumnWidth);
    column->setBackgroundRole(QPalette::Base);
    column->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (SettingsTab tab : SettingsTab::allCases()) {
        auto *button = new TabButton(tab, *m_env.language);
        connect(button, &TabButton::clicked, this, [this, tab] { setSelectedTab(tab.rawValue()); });
        m_tabButtons.append(button);
        layout->addWidget(button);
    }
    layout->addStretch();
    return column;
}

void SettingsView::setSelectedTab(const QString &selection)
{
    m_selectedTab = selection;
    showPage();
}

void SettingsView::showPage()
{
    for (TabButton *button : std::as_const(m_tabButtons))
        button->setSelection(m_selectedTab);
    const std::optional<SettingsTab> named = SettingsTab::fromRawValue(m_selectedTab);
    const QString pageKey = named ? named->rawValue() : QString();
    if (m_page && pageKey == m_pageKey)
        return;
    m_pageKey = pageKey;
    swapWidget(m_layout, m_page, makePage(named.value_or(SettingsTab::general), m_env), 1);
}
