#pragma once

#include "ui/ViewEnvironment.h"
#include "ui/settings/SettingsTab.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class TabButton;

// The settings window's content: a column of tabs on the left, a divider, and the page of
// the selected tab. Exactly 700 x 550. The selection is text on purpose: routing hands in
// whatever it was given, and a text that names no tab shows the general page with no tab
// marked. A page is made when its tab is selected and dropped when another is.
//
// Each time it appears it takes the tab that routing left in OPEN_TAB, if any, and brings
// the settings window forward; while it lives it follows SwitchSettingsTab.
class SettingsView : public QWidget {
    Q_OBJECT
public:
    static constexpr int viewWidth = 700;
    static constexpr int viewHeight = 550;
    static constexpr int tabColumnWidth = 150;

    explicit SettingsView(const ViewEnvironment &environment, QWidget *parent = nullptr);

    QString selectedTab() const { return m_selectedTab; }
    void setSelectedTab(const QString &selection);

    QWidget *page() const { return m_page; }
    TabButton *tabButton(SettingsTab tab) const { return m_tabButtons.value(int(tab)); }

    // The page of `tab`: the one place where pages are made.
    static QWidget *makePage(SettingsTab tab, const ViewEnvironment &environment);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeTabColumn();
    void showPage();

    ViewEnvironment m_env;
    QString m_selectedTab = SettingsTab(SettingsTab::general).rawValue();
    QList<TabButton *> m_tabButtons;
    QHBoxLayout *m_layout = nullptr;
    QPointer<QWidget> m_page;
    // The tab the page was made for; empty for the general page shown for any text that
    // names no tab.
    QString m_pageKey;
};
