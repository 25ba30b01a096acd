#include "core/i18n/LanguageManager.h"
#include "ui/LocalizedText.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QTest>

using namespace std::chrono_literals;

class LocalizedTextTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // A label reads its key again when the table is swapped and when it is given a new key;
    // a text is never taken for markup.
    void followsTheLanguageOnceTheTableIsSwappedAndTheKey()
    {
        ConsoleCapture console;
        TempSettings settings;
        FakeTimerFactory timers;
        LanguageManager manager(settings.store(), timers, {});
        LocalizedText label(QStringLiteral("status_not_protected"), manager);
        const QString english = label.text();
        QCOMPARE(label.textFormat(), Qt::PlainText);

        manager.setCurrentLanguage(AppLanguage::german);
        timers.fire(50ms);
        QVERIFY(label.text() != english);
        QCOMPARE(label.text(), manager.localizedString(QStringLiteral("status_not_protected")));
        label.setKey(QStringLiteral("tab_log"));
        QCOMPARE(label.text(), manager.localizedString(QStringLiteral("tab_log")));
    }
};

QTEST_MAIN(LocalizedTextTest)
#include "tst_localized_text.moc"
