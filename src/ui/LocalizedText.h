#pragma once

#include <QLabel>

class LanguageManager;

// A label that shows the text of one key and follows language changes by itself.
// The text is shown as it comes from the table, as plain text.
class LocalizedText : public QLabel {
    Q_OBJECT
public:
    explicit LocalizedText(const QString &key, QWidget *parent = nullptr);
    LocalizedText(const QString &key, LanguageManager &manager, QWidget *parent = nullptr);

    QString key() const { return m_key; }
    void setKey(const QString &key);

private:
    void refresh();

    LanguageManager &m_manager;
    QString m_key;
};
