#pragma once

#include "ui/settings/SettingsTab.h"

#include <QAbstractButton>

class LanguageManager;

// One tab of the settings window's column: the tab's symbol and title in a row. A click
// anywhere in it selects the tab; the selected one sits on a faint accent background with
// accent text. Assistive technology sees a page tab that reports whether it is selected.
class TabButton : public QAbstractButton {
    Q_OBJECT
public:
    static constexpr int symbolWidth = 20;
    static constexpr int spacing = 12;
    static constexpr int horizontalMargin = 16;
    static constexpr int verticalMargin = 10;
    static constexpr double selectedBackgroundOpacity = 0.1;

    TabButton(SettingsTab tag, LanguageManager &language, QWidget *parent = nullptr);

    SettingsTab tag() const { return m_tag; }
    // The tab's title in the language of the moment the button was made.
    QString title() const { return m_title; }
    bool isSelected() const { return m_selected; }
    // Marks the button selected when `selection` is its tab's raw value.
    void setSelection(const QString &selection);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor textColour() const;

    SettingsTab m_tag;
    QString m_title;
    bool m_selected = false;
};
