#include "ui/panel/PanelMenu.h"

#include "core/guard/BrowserManager.h"
#include "core/guard/EmailClientManager.h"
#include "core/i18n/LanguageManager.h"
#include "ui/Mnemonic.h"
#include "ui/panel/MenuBarView.h"
#include "ui/panel/StatusRowState.h"

namespace {

void showState(QAction *entry, const StatusRowState &state, const LanguageManager &language)
{
    entry->setText(withoutMnemonic(state.summary(language)));
    // The entry cannot be chosen, but its shield keeps its colour.
    const QPixmap shield = state.shield(32);
    QIcon icon(shield);
    icon.addPixmap(shield, QIcon::Disabled);
    entry->setIcon(icon);
}

} // namespace

PanelMenu::PanelMenu(const ViewEnvironment &environment, QWidget *parent)
    : QMenu(parent), m_env(environment)
{
    connect(m_env.browserManager, &HandlerGuard::objectWillChange, this, &PanelMenu::showStatus);
    connect(m_env.emailClientManager, &HandlerGuard::objectWillChange, this,
            &PanelMenu::showStatus);
    rebuild();
}

void PanelMenu::rebuild()
{
    clear();
    m_browserEntry = addAction(QString());
    m_emailEntry = addAction(QString());
    for (QAction *entry : {m_browserEntry, m_emailEntry})
        entry->setEnabled(false);
    addSeparator();
    const QList<MenuBarView::Command> commands = MenuBarView::commands(*m_env.router);
    for (int i = 0; i < commands.size(); ++i) {
        const MenuBarView::Command &command = commands.at(i);
        if (i == MenuBarView::quitIndex)
            addSeparator();
        QString text = withoutMnemonic(m_env.language->localizedString(command.key));
        // After a tab the shortcut shows as a label; it binds nothing.
        if (!command.shortcutLabel.isEmpty())
            text += u'\t' + command.shortcutLabel.toString(QKeySequence::NativeText);
        connect(addAction(text), &QAction::triggered, this, [run = command.run] { run(); });
    }
    showStatus();
}

void PanelMenu::showStatus()
{
    const LanguageManager &language = *m_env.language;
    showState(m_browserEntry, StatusRowState::browser(*m_env.browserManager, language), language);
    showState(m_emailEntry, StatusRowState::email(*m_env.emailClientManager, language), language);
}
