#include "core/i18n/LanguageManager.h"

LanguageManager &LanguageManager::shared()
{
    static LanguageManager *instance = new LanguageManager;
    return *instance;
}

QString LanguageManager::localizedString(const QString &key) const
{
    // No string tables are loaded yet: every key reads as itself.
    return key;
}
