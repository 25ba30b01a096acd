#include "core/i18n/LanguageManager.h"
#include "ui/LocalizedText.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QTest>
#include <QTranslator>

using namespace std::chrono_literals;

namespace {

QString tableText(const QString &code, const char *key)
{
    QTranslator table;
    return table.load(u":/i18n/vandorel_" + code + u".qm") ? table.translate("Localizable", key)
                                                           : QString();
}

} // namespace

class LocalizedTextTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void followsTheLanguageOnceTheTableIsSwappedAndTheKey()
    {
        ConsoleCapture console;
        TempSettings settings;
        FakeTimerFactory timers;
        LanguageManager manager(settings.store(), timers, {});
        LocalizedText label(QStringLiteral("status_not_protected"), manager);

        const QString english = tableText("en", "status_not_protected");
        const QString german = tableText("de", "status_not_protected");
        QVERIFY(!german.isEmpty() && german != english);
        QCOMPARE(label.text(), english);
        QCOMPARE(label.textFormat(), Qt::PlainText);

        manager.setCurrentLanguage(AppLanguage::german);
        QCOMPARE(label.text(), english);
        timers.fire(50ms);
        QCOMPARE(label.text(), german);

        label.setKey(QStringLiteral("no_such_key"));
        QCOMPARE(label.text(), QStringLiteral("no_such_key"));
        label.setKey(QStringLiteral("tab_log"));
        QCOMPARE(label.text(), tableText("de", "tab_log"));
    }
};

QTEST_MAIN(LocalizedTextTest)
#include "tst_localized_text.moc"
