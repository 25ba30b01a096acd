#pragma once

#include "core/i18n/AppLanguage.h"
#include "core/i18n/TextLookup.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

class QTranslator;
class SettingsStore;
class TimerFactory;

// Holds the chosen interface language and the string table ("bundle") that belongs to it,
// and looks texts up by key. A key without a text in the bundle reads as the key itself;
// there is no fall-through to English.
//
// Both properties tell their observers on every assignment, also when the value stays the
// same. Setting a language stores its code at once and swaps the bundle 50 ms later, so
// for that short while the new selection shows with the old texts.
class LanguageManager : public QObject, public TextLookup {
    Q_OBJECT
public:
    // The process-wide manager over the standard settings store, real timers and the
    // system's preferred languages. The application makes it at start; a test may put
    // another in its place.
    static LanguageManager &shared();
    static void setShared(LanguageManager *manager);

    // `preferredLanguages` stands for the system's list, most preferred first.
    LanguageManager(SettingsStore &settings, TimerFactory &timers,
                    const QStringList &preferredLanguages, QObject *parent = nullptr);

    // The system's preferred interface languages; a C or POSIX locale has none.
    static QStringList systemPreferredLanguages();
    // The first language's first two letters ("de-AT" gives "de"), or "en" for an empty list.
    static QString systemLanguageCode(const QStringList &preferredLanguages);

    // The system's list the manager was made with.
    const QStringList &preferredLanguages() const { return m_preferredLanguages; }

    // The table of a language code, or the main (English) table if there is none for it.
    // Never null. Writes a console line saying which.
    static const QTranslator *bundleForLanguage(const QString &code);
    static const QTranslator *mainBundle();

    AppLanguage currentLanguage() const { return m_currentLanguage; }
    // Runs the whole change sequence, also for the language already current.
    void setCurrentLanguage(AppLanguage language);

    const QTranslator *bundle() const { return m_bundle; }

    QString localizedString(const QString &key) const override;
    // Looks `key` up and fills in `values` (printf-style %@, %lld, positional forms).
    QString localizedFormat(const QString &key, const QVariantList &values) const;

Q_SIGNALS:
    void currentLanguageChanged();
    void bundleChanged();

private:
    void swapBundle();

    SettingsStore &m_settings;
    TimerFactory &m_timers;
    AppLanguage m_currentLanguage;
    const QTranslator *m_bundle = nullptr;
    QStringList m_preferredLanguages;
};

// Forwarding forms of LanguageManager::localizedString for code that is handed a manager.
inline QString localized(const QString &key, const LanguageManager &manager)
{
    return manager.localizedString(key);
}
inline QString localizedString(const QString &key, const LanguageManager &manager)
{
    return manager.localizedString(key);
}
