#pragma once

#include "ui/ViewEnvironment.h"

#include <QMenu>

class QAction;

// The panel's rows as the tray icon's menu, for tray hosts that only ever show a menu: the
// two status rows as entries that cannot be chosen, then the panel's commands.
class PanelMenu : public QMenu {
    Q_OBJECT
public:
    explicit PanelMenu(const ViewEnvironment &environment, QWidget *parent = nullptr);

    // Makes the entries afresh in the current language.
    void rebuild();

    QAction *browserEntry() const { return m_browserEntry; }
    QAction *emailEntry() const { return m_emailEntry; }

private:
    void showStatus();

    ViewEnvironment m_env;
    QAction *m_browserEntry = nullptr;
    QAction *m_emailEntry = nullptr;
};
