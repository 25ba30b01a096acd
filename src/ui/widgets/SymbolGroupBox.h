#pragma once

#include <QWidget>

class LanguageManager;
class LocalizedText;
class QGroupBox;
class QVBoxLayout;

// A titled box: a symbol and the text of a key above a framed group that holds the content.
// Screen readers see the group with the title as its name.
class SymbolGroupBox : public QWidget {
    Q_OBJECT
public:
    SymbolGroupBox(const QString &symbol, const QString &titleKey, LanguageManager &language,
                   QWidget *parent = nullptr);

    QString title() const;
    // The column inside the frame, for the box's content.
    QVBoxLayout *contentLayout() const { return m_content; }

private:
    LanguageManager &m_language;
    QString m_titleKey;
    LocalizedText *m_title;
    QGroupBox *m_box;
    QVBoxLayout *m_content;
};
