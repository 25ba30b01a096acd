#pragma once

#include <QAbstractButton>
#include <QColor>

class QHBoxLayout;
class QLabel;
class SymbolLabel;

// A button drawn as a row: a leading symbol in a box 20 wide, the text, free space, and an
// optional widget at the far end. The whole row takes the click and shows the pointing hand.
// A tint gives it a background of that colour that strengthens while the pointer is over it.
// Screen readers see a push button named by the row's text.
class RowButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit RowButton(const QString &symbol, QWidget *parent = nullptr);

    void setRowText(const QString &text);
    // Symbol and text in this colour; an invalid one draws them as the palette's link.
    void setForeground(const QColor &colour);
    // An invalid colour: no background.
    void setTint(const QColor &colour);
    void setTrailingWidget(QWidget *widget);
    // A small symbol at the far end in the secondary colour.
    void setTrailingSymbol(const QString &symbol);
    bool isHovered() const { return m_hovered; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void applyColours();

    SymbolLabel *m_symbol;
    QLabel *m_text;
    SymbolLabel *m_trailingSymbol = nullptr;
    QHBoxLayout *m_layout;
    QColor m_foreground;
    QColor m_tint;
    bool m_hovered = false;
};
