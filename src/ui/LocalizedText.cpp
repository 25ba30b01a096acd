#include "ui/LocalizedText.h"

#include "core/i18n/LanguageManager.h"

LocalizedText::LocalizedText(const QString &key, QWidget *parent)
    : LocalizedText(key, LanguageManager::shared(), parent)
{
}

LocalizedText::LocalizedText(const QString &key, LanguageManager &manager, QWidget *parent)
    : QLabel(parent), m_manager(manager), m_key(key)
{
    setTextFormat(Qt::PlainText);
    connect(&m_manager, &LanguageManager::currentLanguageChanged, this, &LocalizedText::refresh);
    connect(&m_manager, &LanguageManager::bundleChanged, this, &LocalizedText::refresh);
    refresh();
}

void LocalizedText::setKey(const QString &key)
{
    m_key = key;
    refresh();
}

void LocalizedText::refresh()
{
    setText(m_manager.localizedString(m_key));
}
