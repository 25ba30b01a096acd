#include "core/guard/CheckInterval.h"
#include "core/guard/SnoozeDuration.h"
#include "core/i18n/LanguageManager.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QLocale>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace std::chrono_literals;

namespace {

const QString languageKey = QStringLiteral("app_language");

// The text a table holds for a key, read without the manager.
QString tableText(const QString &code, const char *key)
{
    QTranslator table;
    if (!table.load(u":/i18n/vandorel_" + code + u".qm"))
        return {};
    return table.translate("Localizable", key);
}

QString found(const QString &code) { return u"✅ Bundle found for: " + code; }
QString notFound(const QString &code) {
    return u"⚠️ Bundle NOT found for: " + code + u", using main bundle";
}
QString initialized(const QString &code) { return u"🌍 Language initialized: " + code; }
QString changedTo(const QString &code) { return u"🌍 Language changed to: " + code; }

} // namespace

class LanguageManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void startLanguage_data();
    void startLanguage();
    void codeOutsideTheTenUsesTheMainTable();
    void choosingALanguageStoresAtOnceAndSwapsTheTableLater();
    void settingTheSameLanguageAgainRepeatsTheSequence();
    void quickChangesEndInTheLastChoice();
    void lookupStaysInTheChosenTable();
    void displayNamesFollowTheSharedManager();
    void systemListOfACLocaleIsEmpty();
    void languagesRoundTripByCode();

private:
    std::unique_ptr<LanguageManager> make(const QStringList &preferred)
    {
        return std::make_unique<LanguageManager>(m_settings->store(), m_timers, preferred);
    }

    std::unique_ptr<TempSettings> m_settings;
    FakeTimerFactory m_timers;
    std::unique_ptr<ConsoleCapture> m_console;
};

void LanguageManagerTest::init()
{
    m_settings = std::make_unique<TempSettings>();
    m_console = std::make_unique<ConsoleCapture>();
}

void LanguageManagerTest::cleanup()
{
    m_console.reset();
    m_settings.reset();
}

void LanguageManagerTest::startLanguage_data()
{
    QTest::addColumn<QStringList>("preferred");
    QTest::addColumn<QString>("stored"); // empty: nothing stored
    QTest::addColumn<int>("language");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("system fr-CA, en-US")
        << QStringList{"fr-CA", "en-US"} << QString() << int(AppLanguage::french)
        << QStringList{found("fr"), initialized("fr")};
    QTest::newRow("system pt-BR") << QStringList{"pt-BR"} << QString()
                                  << int(AppLanguage::portuguese)
                                  << QStringList{found("pt"), initialized("pt")};
    QTest::newRow("system zh-Hans-CN")
        << QStringList{"zh-Hans-CN"} << QString() << int(AppLanguage::chinese)
        << QStringList{found("zh"), initialized("zh")};
    QTest::newRow("system sv-SE") << QStringList{"sv-SE"} << QString() << int(AppLanguage::english)
                                  << QStringList{notFound("sv"), initialized("sv")};
    QTest::newRow("only the first entry counts") << QStringList{"sv-SE", "de-DE"} << QString()
                                                 << int(AppLanguage::english)
                                                 << QStringList{notFound("sv"), initialized("sv")};
    QTest::newRow("empty list") << QStringList{} << QString() << int(AppLanguage::english)
                                << QStringList{found("en"), initialized("en")};
    QTest::newRow("stored choice wins") << QStringList{"fr-CA"} << "de" << int(AppLanguage::german)
                                        << QStringList{found("de"), initialized("de")};
    QTest::newRow("stored text no language")
        << QStringList{"fr-CA"} << "klingon" << int(AppLanguage::english)
        << QStringList{notFound("klingon"), initialized("klingon")};
    QTest::newRow("stored regional code is not shortened")
        << QStringList{} << "de_AT" << int(AppLanguage::english)
        << QStringList{notFound("de_AT"), initialized("de_AT")};
}

void LanguageManagerTest::startLanguage()
{
    QFETCH(QStringList, preferred);
    QFETCH(QString, stored);
    QFETCH(int, language);
    QFETCH(QStringList, lines);

    if (!stored.isEmpty())
        m_settings->store().setString(languageKey, stored);
    const auto manager = make(preferred);

    QCOMPARE(int(manager->currentLanguage()), language);
    QCOMPARE(m_console->lines(), lines);
    // Starting never writes the choice: the program keeps following the system.
    QCOMPARE(m_settings->store().stringValue(languageKey),
             stored.isEmpty() ? std::nullopt : std::optional<QString>(stored));
    QVERIFY(m_timers.active().isEmpty());
}

void LanguageManagerTest::codeOutsideTheTenUsesTheMainTable()
{
    const auto manager = make({QStringLiteral("sv-SE")});
    QCOMPARE(manager->bundle(), LanguageManager::mainBundle());
    QCOMPARE(manager->localizedString(QStringLiteral("tab_general")),
             tableText("en", "tab_general"));
    QVERIFY(manager->localizedString(QStringLiteral("tab_general")) != u"tab_general");
}

void LanguageManagerTest::choosingALanguageStoresAtOnceAndSwapsTheTableLater()
{
    const QString english = tableText("en", "tab_general");
    const QString german = tableText("de", "tab_general");
    QVERIFY(!german.isEmpty());
    QVERIFY(german != english);

    auto manager = make({});
    const QTranslator *englishTable = manager->bundle();
    QSignalSpy languageSpy(manager.get(), &LanguageManager::currentLanguageChanged);
    QSignalSpy bundleSpy(manager.get(), &LanguageManager::bundleChanged);
    m_console->take();

    manager->setCurrentLanguage(AppLanguage::german);

    QCOMPARE(languageSpy.count(), 1);
    QCOMPARE(bundleSpy.count(), 0);
    QCOMPARE(manager->currentLanguage(), AppLanguage::german);
    QCOMPARE(SettingsStore(m_settings->path()).stringValue(languageKey), QStringLiteral("de"));
    // Until the swap the new selection shows with the old texts.
    QCOMPARE(manager->bundle(), englishTable);
    QCOMPARE(manager->localizedString(QStringLiteral("tab_general")), english);
    QVERIFY(m_console->lines().isEmpty());
    QCOMPARE(m_timers.active().size(), 1);
    QCOMPARE(m_timers.active().first()->interval(), 50ms);
    QVERIFY(!m_timers.active().first()->isRepeating());

    QCOMPARE(m_timers.fire(50ms), 1);

    QCOMPARE(bundleSpy.count(), 1);
    QCOMPARE(languageSpy.count(), 1);
    QCOMPARE(manager->localizedString(QStringLiteral("tab_general")), german);
    QCOMPARE(m_console->take(), (QStringList{found("de"), changedTo("de")}));
    QVERIFY(m_timers.active().isEmpty());

    // A restart reads the choice before looking at the system.
    manager.reset();
    SettingsStore reopened(m_settings->path());
    LanguageManager restarted(reopened, m_timers, {QStringLiteral("fr-CA")});
    QCOMPARE(restarted.currentLanguage(), AppLanguage::german);
    QCOMPARE(restarted.localizedString(QStringLiteral("tab_general")), german);
    QCOMPARE(m_console->take(), (QStringList{found("de"), initialized("de")}));
}

void LanguageManagerTest::settingTheSameLanguageAgainRepeatsTheSequence()
{
    const auto manager = make({});
    QSignalSpy languageSpy(manager.get(), &LanguageManager::currentLanguageChanged);
    QSignalSpy bundleSpy(manager.get(), &LanguageManager::bundleChanged);
    QSignalSpy storeSpy(&m_settings->store(), &SettingsStore::changed);
    m_console->take();

    for (int round = 1; round <= 2; ++round) {
        manager->setCurrentLanguage(AppLanguage::english);
        QCOMPARE(languageSpy.count(), round);
        QCOMPARE(storeSpy.count(), round);
        QCOMPARE(storeSpy.last().first().toString(), languageKey);
        QCOMPARE(m_settings->store().stringValue(languageKey), QStringLiteral("en"));
        QCOMPARE(m_timers.fire(50ms), 1);
        QCOMPARE(bundleSpy.count(), round);
        QCOMPARE(m_console->take(), (QStringList{found("en"), changedTo("en")}));
    }
}

void LanguageManagerTest::quickChangesEndInTheLastChoice()
{
    const auto manager = make({});
    m_console->take();
    manager->setCurrentLanguage(AppLanguage::german);
    manager->setCurrentLanguage(AppLanguage::french);
    QCOMPARE(m_timers.activeWithInterval(50ms).size(), 2);

    QCOMPARE(m_timers.fire(50ms), 2);

    // Each task reads the language current when it runs.
    QCOMPARE(m_console->take(),
             (QStringList{found("fr"), changedTo("fr"), found("fr"), changedTo("fr")}));
    QCOMPARE(manager->localizedString(QStringLiteral("tab_general")),
             tableText("fr", "tab_general"));
    QCOMPARE(m_settings->store().stringValue(languageKey), QStringLiteral("fr"));
}

void LanguageManagerTest::lookupStaysInTheChosenTable()
{
    // "xx" is a test table holding three keys only.
    m_settings->store().setString(languageKey, QStringLiteral("xx"));
    const auto manager = make({QStringLiteral("de-DE")});
    QCOMPARE(manager->currentLanguage(), AppLanguage::english);
    QCOMPARE(m_console->lines(), (QStringList{found("xx"), initialized("xx")}));

    QCOMPARE(manager->localizedString(QStringLiteral("tab_general")), QStringLiteral("xx-general"));
    // No fall-through to English: a key the table lacks reads as the key.
    QCOMPARE(manager->localizedString(QStringLiteral("tab_log")), QStringLiteral("tab_log"));
    QCOMPARE(manager->localizedString(QStringLiteral("no_such_key")),
             QStringLiteral("no_such_key"));
    QCOMPARE(manager->localizedString(QString()), QString());

    QCOMPARE(
        manager->localizedFormat(QStringLiteral("browser_bundle_id %@"), {QStringLiteral("x")}),
        QStringLiteral("browser_bundle_id x"));
    QCOMPARE(manager->localizedFormat(QStringLiteral("status_should_be %@"),
                                      {QStringLiteral("Firefox")}),
             QStringLiteral("xx Firefox expected"));
    QCOMPARE(manager->localizedFormat(QStringLiteral("alert_browser_changed_message %@ %@"),
                                      {QStringLiteral("Current"), QStringLiteral("Target")}),
             QStringLiteral("Target before Current"));

    QCOMPARE(localized(QStringLiteral("tab_general"), *manager), QStringLiteral("xx-general"));
    QCOMPARE(localizedString(QStringLiteral("tab_log"), *manager), QStringLiteral("tab_log"));
}

void LanguageManagerTest::displayNamesFollowTheSharedManager()
{
    const auto manager = make({});
    LanguageManager::setShared(manager.get());
    const auto restore = qScopeGuard([] { LanguageManager::setShared(nullptr); });

    const QString englishInterval = tableText("en", "interval_every_10_minutes");
    const QString englishSnooze = tableText("en", "snooze_rest_of_today");
    QVERIFY(!englishInterval.isEmpty() && !englishSnooze.isEmpty());
    QCOMPARE(CheckInterval(CheckInterval::tenMinutes).displayName(), englishInterval);
    QCOMPARE(SnoozeDuration(SnoozeDuration::today).displayName(), englishSnooze);

    manager->setCurrentLanguage(AppLanguage::german);
    m_timers.fire(50ms);

    const QString germanInterval = tableText("de", "interval_every_10_minutes");
    QVERIFY(!germanInterval.isEmpty());
    QCOMPARE(CheckInterval(CheckInterval::tenMinutes).displayName(), germanInterval);
    QCOMPARE(SnoozeDuration(SnoozeDuration::today).displayName(),
             tableText("de", "snooze_rest_of_today"));
    QVERIFY(germanInterval != englishInterval);
}

void LanguageManagerTest::systemListOfACLocaleIsEmpty()
{
    if (QLocale::system().language() != QLocale::C)
        QSKIP("the test runner sets a C locale (LC_ALL=C.UTF-8)");
    QVERIFY(LanguageManager::systemPreferredLanguages().isEmpty());
}

void LanguageManagerTest::languagesRoundTripByCode()
{
    const QList<AppLanguage> all = AppLanguage::allCases();
    QCOMPARE(all.size(), 10);
    QCOMPARE(all.first(), AppLanguage::english);
    QCOMPARE(all.last(), AppLanguage::portuguese);
    QSet<QString> names;
    for (const AppLanguage language : all) {
        QCOMPARE(language.code().size(), 2);
        QCOMPARE(AppLanguage::fromRawValue(language.code()), std::optional<AppLanguage>(language));
        names.insert(language.displayName());
    }
    QCOMPARE(names.size(), 10);
    QCOMPARE(AppLanguage(AppLanguage::chinese).displayName(), QStringLiteral("中文"));
    QVERIFY(!AppLanguage::fromRawValue(QStringLiteral("EN")));
    QVERIFY(!AppLanguage::fromRawValue(QStringLiteral("en-US")));
    QVERIFY(!AppLanguage::fromRawValue(QString()));
}

QTEST_GUILESS_MAIN(LanguageManagerTest)
#include "tst_language_manager.moc"
