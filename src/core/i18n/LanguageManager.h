#pragma once

#include <QObject>
#include <QString>

// Looks texts up by key in the chosen interface language. A key without a text reads as
// the key itself.
class LanguageManager : public QObject {
    Q_OBJECT
public:
    static LanguageManager &shared();

    QString localizedString(const QString &key) const;

private:
    LanguageManager() = default;
};
