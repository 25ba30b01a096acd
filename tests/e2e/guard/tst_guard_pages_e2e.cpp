#include "GuardPageRig.h"
#include "ui/widgets/BusySpinner.h"

#include <QComboBox>
#include <QPushButton>

using namespace std::chrono_literals;

// A guard page over the real freedesktop handler database: choosing a target and pressing
// Set now changes the default as gio reads it; the page waits with a spinner while the
// change is watched and shows the green row once the guard sees the new default.
class GuardPagesEndToEndTest : public QObject {
    Q_OBJECT

    static QString defaultFor(const QString &scheme)
    {
        return XdgTree::gioMime(u"x-scheme-handler/" + scheme).defaultId;
    }

private Q_SLOTS:
    void setNowChangesTheDefault_data()
    {
        QTest::addColumn<bool>("mail");
        QTest::addColumn<QStringList>("schemes");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("target");
        QTest::newRow("browser") << false << QStringList{"http", "https"} << "Firefox"
                                 << "Chromium";
        QTest::newRow("mail") << true << QStringList{"mailto"} << "Thunderbird"
                              << "Mailspring";
    }
    void setNowChangesTheDefault()
    {
        QFETCH(bool, mail);
        QFETCH(QStringList, schemes);
        QFETCH(QString, before);
        QFETCH(QString, target);
        GuardPageRig rig;
        const std::unique_ptr<GuardSettingsView> page =
            mail ? std::unique_ptr<GuardSettingsView>(rig.emailPage()) : rig.browserPage();
        HandlerGuard &guard = mail ? static_cast<HandlerGuard &>(rig.email)
                                   : static_cast<HandlerGuard &>(rig.browser);
        for (const QString &scheme : schemes)
            QCOMPARE(defaultFor(scheme), before.toLower() + u".desktop");

        QVERIFY(choose(control<QComboBox>(page.get(), "targetPicker"), target));
        QTest::mouseClick(control<QPushButton>(page.get(), "setNowButton"), Qt::LeftButton);
        QVERIFY(shows(page.get(), "changing"));
        QVERIFY(page->findChild<BusySpinner *>()->isSpinning());
        QTRY_VERIFY(rig.pollTimer(guard));
        const QString id = target.toLower();
        for (const QString &scheme : schemes)
            QCOMPARE(defaultFor(scheme), id + u".desktop");
        // Still waiting until the next poll sees it.
        QVERIFY(shows(page.get(), "changing"));
        rig.pollTimer(guard)->fire();
        QCOMPARE(guard.currentDefault()->bundleIdentifier, id);
        QVERIFY(shows(page.get(), "alreadyDefault"));
        QVERIFY(!shows(page.get(), "changing"));
        QVERIFY(!shows(page.get(), "setNowButton"));
        QCOMPARE(guard.changeCount(), 1);
        QVERIFY(!page->findChild<BusySpinner *>()->isSpinning());
    }
};

QTEST_MAIN(GuardPagesEndToEndTest)
#include "tst_guard_pages_e2e.moc"
