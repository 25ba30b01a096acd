#pragma once

#include <QAbstractButton>

class QLabel;
class SymbolLabel;

// One row of the about page's links: a leading symbol, the text, and an outward arrow at
// the far end. The whole row takes the click; the pointer turns into a pointing hand over it.
class LinkRow : public QAbstractButton {
    Q_OBJECT
public:
    explicit LinkRow(const QString &symbol, QWidget *parent = nullptr);

    // Also the row's accessible name.
    void setRowText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyColours();

    SymbolLabel *m_symbol;
    QLabel *m_text;
    SymbolLabel *m_arrow;
};
