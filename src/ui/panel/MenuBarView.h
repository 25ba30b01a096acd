#pragma once

#include "ui/ViewEnvironment.h"
#include "ui/panel/StatusRowState.h"

#include <QKeySequence>
#include <QList>
#include <QWidget>

#include <functional>

class PanelRow;
class QLabel;
class QVBoxLayout;

// The panel that drops from the tray icon: the state of both guards at a glance, and the
// ways to the settings pages, the about window and quit. It changes nothing itself, and
// never closes itself. It follows the guards; a language change makes a new one.
class MenuBarView : public QWidget {
    Q_OBJECT
public:
    static constexpr int panelWidth = 280;
    static constexpr int verticalMargin = 4;
    static constexpr int iconHeight = 40;

    // A row below the status rows: its text, the shortcut it shows (a label only: it binds
    // nothing) and what it does. The tray icon's menu has the same ones.
    struct Command {
        QString key;
        QKeySequence shortcutLabel;
        std::function<void()> run;
    };
    // Settings, feedback, about and quit; a divider goes before quit.
    static QList<Command> commands(WindowRouter &router);
    static constexpr int quitIndex = 3;

    explicit MenuBarView(const ViewEnvironment &environment, QWidget *parent = nullptr);

    PanelRow *browserRow() const { return m_browserRow; }
    PanelRow *emailRow() const { return m_emailRow; }
    QList<PanelRow *> commandRows() const { return m_commandRows; }

    StatusRowState browserState() const;
    StatusRowState emailState() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    struct StatusRow;

    PanelRow *makeStatusRow(StatusRow &row);
    PanelRow *makeCommandRow(const Command &command);
    void addDivider();
    void showStatus(StatusRow &row, const StatusRowState &state);
    void showStatusRows();

    ViewEnvironment m_env;
    QVBoxLayout *m_layout = nullptr;
    PanelRow *m_browserRow = nullptr;
    PanelRow *m_emailRow = nullptr;
    QList<PanelRow *> m_commandRows;
    struct StatusRow {
        QLabel *icon = nullptr;
        QLabel *title = nullptr;
        QLabel *name = nullptr;
        QLabel *shouldBe = nullptr;
        QLabel *line = nullptr;
    };
    StatusRow m_browser;
    StatusRow m_email;
};
