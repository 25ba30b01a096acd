#include "core/i18n/LanguageManager.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace std::chrono_literals;

namespace {

const QString languageKey = QStringLiteral("app_language");
const QString general = QStringLiteral("tab_general");

// The text of the "tab_general" key in a table, read without the manager.
QString tableText(const QString &code)
{
    QTranslator table;
    return table.load(u":/i18n/vandorel_" + code + u".qm")
               ? table.translate("Localizable", "tab_general")
               : QString();
}

QStringList started(const QString &code, bool found = true)
{
    return {found ? QString(u"✅ Bundle found for: " + code)
                  : QString(u"⚠️ Bundle NOT found for: " + code + u", using main bundle"),
            u"🌍 Language initialized: " + code};
}
QStringList changed(const QString &code)
{
    return {u"✅ Bundle found for: " + code, u"🌍 Language changed to: " + code};
}

// A private store, fake timers and captured console lines for one test.
struct Rig {
    TempSettings settings;
    FakeTimerFactory timers;
    ConsoleCapture console;
    std::unique_ptr<LanguageManager> make(const QStringList &preferred)
    {
        return std::make_unique<LanguageManager>(settings.store(), timers, preferred);
    }
};

} // namespace

class LanguageManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void startLanguage_data()
    {
        QTest::addColumn<QStringList>("preferred");
        QTest::addColumn<QString>("stored"); // empty: nothing stored
        QTest::addColumn<int>("language");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("system fr-CA") << QStringList{"fr-CA", "en-US"} << QString()
                                      << int(AppLanguage::french) << started("fr");
        QTest::newRow("only the first entry counts")
            << QStringList{"sv-SE", "de-DE"} << QString() << int(AppLanguage::english)
            << started("sv", false);
        QTest::newRow("empty list")
            << QStringList{} << QString() << int(AppLanguage::english) << started("en");
        QTest::newRow("stored choice wins")
            << QStringList{"fr-CA"} << "de" << int(AppLanguage::german) << started("de");
        QTest::newRow("stored text no language")
            << QStringList{"fr-CA"} << "de_AT" << int(AppLanguage::english)
            << started("de_AT", false);
    }
    void startLanguage()
    {
        QFETCH(QStringList, preferred);
        QFETCH(QString, stored);
        QFETCH(int, language);
        QFETCH(QStringList, lines);
        Rig rig;
        if (!stored.isEmpty())
            rig.settings.store().setString(languageKey, stored);
        const auto manager = rig.make(preferred);

        QCOMPARE(int(manager->currentLanguage()), language);
        QCOMPARE(rig.console.lines(), lines);
        const QString code = AppLanguage(AppLanguage::Value(language)).code();
        QCOMPARE(manager->localizedString(general), tableText(code));
        // Starting never writes the choice: the program keeps following the system.
        QCOMPARE(rig.settings.store().stringValue(languageKey),
                 stored.isEmpty() ? std::nullopt : std::optional<QString>(stored));
        QVERIFY(rig.timers.active().isEmpty());
    }

    void choosingALanguageStoresAtOnceAndSwapsTheTableLater()
    {
        const QString english = tableText("en");
        const QString german = tableText("de");
        QVERIFY(!german.isEmpty() && german != english);
        Rig rig;
        const auto manager = rig.make({});
        QSignalSpy languageSpy(manager.get(), &LanguageManager::currentLanguageChanged);
        QSignalSpy bundleSpy(manager.get(), &LanguageManager::bundleChanged);
        rig.console.take();

        manager->setCurrentLanguage(AppLanguage::german);

        QCOMPARE(languageSpy.count(), 1);
        QCOMPARE(bundleSpy.count(), 0);
        QCOMPARE(manager->currentLanguage(), AppLanguage::german);
        // On disk at once; a restart reads it as in the "stored choice wins" case.
        QCOMPARE(SettingsStore(rig.settings.path()).stringValue(languageKey), QStringLiteral("de"));
        // Until the swap the new selection shows with the old texts.
        QCOMPARE(manager->localizedString(general), english);
        QVERIFY(rig.console.lines().isEmpty());
        QCOMPARE(rig.timers.active().size(), 1);
        QCOMPARE(rig.timers.active().first()->interval(), 50ms);
        QVERIFY(!rig.timers.active().first()->isRepeating());

        QCOMPARE(rig.timers.fire(50ms), 1);
        QCOMPARE(bundleSpy.count(), 1);
        QCOMPARE(languageSpy.count(), 1);
        QCOMPARE(manager->localizedString(general), german);
        QCOMPARE(rig.console.take(), changed("de"));
    }

    void repeatedAndQuickChanges()
    {
        Rig rig;
        const auto manager = rig.make({});
        QSignalSpy bundleSpy(manager.get(), &LanguageManager::bundleChanged);
        QSignalSpy storeSpy(&rig.settings.store(), &SettingsStore::changed);
        rig.console.take();
        // The same language again runs the whole sequence again.
        for (int round = 1; round <= 2; ++round) {
            manager->setCurrentLanguage(AppLanguage::english);
            QCOMPARE(storeSpy.count(), round);
            QCOMPARE(rig.timers.fire(50ms), 1);
            QCOMPARE(bundleSpy.count(), round);
            QCOMPARE(rig.console.take(), changed("en"));
        }

        // Each pending swap reads the language current when it runs.
        manager->setCurrentLanguage(AppLanguage::german);
        manager->setCurrentLanguage(AppLanguage::french);
        QCOMPARE(rig.timers.fire(50ms), 2);
        QCOMPARE(rig.console.take(), changed("fr") + changed("fr"));
        QCOMPARE(manager->localizedString(general), tableText("fr"));
        QCOMPARE(rig.settings.store().stringValue(languageKey), QStringLiteral("fr"));
    }

    void lookupStaysInTheChosenTable()
    {
        // "xx" is a test table holding three keys only.
        Rig rig;
        rig.settings.store().setString(languageKey, QStringLiteral("xx"));
        const auto manager = rig.make({QStringLiteral("de-DE")});
        QCOMPARE(manager->currentLanguage(), AppLanguage::english);
        QCOMPARE(rig.console.lines(), started("xx"));

        QCOMPARE(manager->localizedString(general), QStringLiteral("xx-general"));
        // No fall-through to English: a key the table lacks reads as the key.
        QCOMPARE(manager->localizedString(QStringLiteral("tab_log")), QStringLiteral("tab_log"));
        QCOMPARE(manager->localizedString(QString()), QString());
        QCOMPARE(
            manager->localizedFormat(QStringLiteral("browser_bundle_id %@"), {QStringLiteral("x")}),
            QStringLiteral("browser_bundle_id x"));
        QCOMPARE(manager->localizedFormat(QStringLiteral("alert_browser_changed_message %@ %@"),
                                          {QStringLiteral("Current"), QStringLiteral("Target")}),
                 QStringLiteral("Target before Current"));
    }

    void aCLocaleNamesNoLanguage()
    {
        QVERIFY2(QLocale::system().language() == QLocale::C, "the test runner sets LC_ALL=C.UTF-8");
        QVERIFY(LanguageManager::systemPreferredLanguages().isEmpty());
    }
};

QTEST_GUILESS_MAIN(LanguageManagerTest)
#include "tst_language_manager.moc"
