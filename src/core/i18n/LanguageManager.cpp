#include "core/i18n/LanguageManager.h"

#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "core/support/TextFormat.h"
#include "foundation/Console.h"
#include "foundation/QtTimerFactory.h"

#include <QFile>
#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <chrono>

namespace {

constexpr char tableContext[] = "Localizable";
constexpr std::chrono::milliseconds bundleSwapDelay{50};

QString tablePath(const QString &code)
{
    return QStringLiteral(":/i18n/vandorel_%1.qm").arg(code);
}

// Loads the table at exactly this path (QTranslator::load would also try shortened
// names, so "de_AT" would find the "de" table). Tables live for the whole run.
const QTranslator *loadTable(const QString &path)
{
    if (!QFile::exists(path))
        return nullptr;
    auto *translator = new QTranslator;
    if (!translator->load(path)) {
        delete translator;
        return nullptr;
    }
    return translator;
}

QHash<QString, const QTranslator *> &loadedTables()
{
    static auto *tables = new QHash<QString, const QTranslator *>;
    return *tables;
}

const QTranslator *tableFor(const QString &code)
{
    QHash<QString, const QTranslator *> &tables = loadedTables();
    const auto found = tables.constFind(code);
    if (found != tables.constEnd())
        return found.value();
    const QTranslator *table = loadTable(tablePath(code));
    if (table)
        tables.insert(code, table);
    return table;
}

LanguageManager *&sharedSlot()
{
    static LanguageManager *manager = nullptr;
    return manager;
}

} // namespace

LanguageManager &LanguageManager::shared()
{
    LanguageManager *&manager = sharedSlot();
    if (!manager) {
        static QtTimerFactory timers;
        manager =
            new LanguageManager(SettingsStore::standard(), timers, systemPreferredLanguages());
    }
    return *manager;
}

void LanguageManager::setShared(LanguageManager *manager)
{
    sharedSlot() = manager;
}

LanguageManager::LanguageManager(SettingsStore &settings, TimerFactory &timers,
                                 const QStringList &preferredLanguages, QObject *parent)
    : QObject(parent), m_settings(settings), m_timers(timers),
      m_preferredLanguages(preferredLanguages)
{
    const QString startCode = m_settings.value(SettingsTable::appLanguage)
                                  .value_or(systemLanguageCode(preferredLanguages));
    m_currentLanguage = AppLanguage::fromRawValue(startCode).value_or(AppLanguage::english);
    // The table of the start code itself: for a code outside the ten that is the main
    // table, while the selection reads English.
    m_bundle = bundleForLanguage(startCode);
    Console::line(QStringLiteral("🌍 Language initialized: ") + startCode);
}

QStringList LanguageManager::systemPreferredLanguages()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return {};
    return system.uiLanguages();
}

QString LanguageManager::systemLanguageCode(const QStringList &preferredLanguages)
{
    return preferredLanguages.isEmpty() ? QStringLiteral("en") : preferredLanguages.first().left(2);
}

const QTranslator *LanguageManager::mainBundle()
{
    static const QTranslator *main = [] {
        const QTranslator *english = tableFor(QStringLiteral("en"));
        // Without an embedded English table every key reads as itself.
        return english ? english : new QTranslator;
    }();
    return main;
}

const QTranslator *LanguageManager::bundleForLanguage(const QString &code)
{
    if (const QTranslator *table = tableFor(code)) {
        Console::line(QStringLiteral("✅ Bundle found for: ") + code);
        return table;
    }
    Console::line(QStringLiteral("⚠️ Bundle NOT found for: ") + code
                  + QStringLiteral(", using main bundle"));
    return mainBundle();
}

void LanguageManager::setCurrentLanguage(AppLanguage language)
{
    m_currentLanguage = language;
    m_settings.set(SettingsTable::appLanguage, language.code());
    Q_EMIT currentLanguageChanged();
    m_timers.singleShot(bundleSwapDelay, this, [this] { swapBundle(); });
}

void LanguageManager::swapBundle()
{
    m_bundle = bundleForLanguage(m_currentLanguage.code());
    Q_EMIT bundleChanged();
    Console::line(QStringLiteral("🌍 Language changed to: ") + m_currentLanguage.code());
}

QString LanguageManager::localizedString(const QString &key) const
{
    const QString text = m_bundle->translate(tableContext, key.toUtf8().constData());
    return text.isEmpty() ? key : text;
}

QString LanguageManager::localizedFormat(const QString &key, const QVariantList &values) const
{
    return TextFormat::format(localizedString(key), values);
}
