#pragma once

#include <QColor>
#include <QLabel>

// One symbol of the symbol table, drawn in the text colour of the palette (so it follows a
// change to dark) or in a colour of its own.
class SymbolLabel : public QLabel {
    Q_OBJECT
public:
    SymbolLabel(const QString &symbol, int size, QWidget *parent = nullptr);

    QString symbol() const { return m_symbol; }
    // An invalid colour goes back to the palette's text colour.
    void setColour(const QColor &colour);

protected:
    void changeEvent(QEvent *event) override;

private:
    void redraw();

    QString m_symbol;
    int m_size;
    QColor m_colour;
};
