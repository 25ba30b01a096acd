#include "ConsoleCapture.h"
#include "FakeHandlerDatabase.h"
#include "core/guard/DefaultResolver.h"

#include <QTest>

class ResolutionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void httpsWinsHttpIsTheFallbackAndMailAsksOnlyForMailto()
    {
        FakeHandlerDatabase db;
        db.install("chromium", QString("Chromium"));
        db.install("firefox", QString("Firefox"));
        const DefaultResolver browser(GuardProfile::browser(), db);
        const DefaultResolver mail(GuardProfile::email(), db);
        QVERIFY(!browser.currentDefaultIdentifier());

        db.setHandlers("http", {"chromium"});
        QCOMPARE(browser.currentDefaultIdentifier(), QString("chromium"));
        db.setHandlers("https", {"firefox", "chromium"});
        QCOMPARE(browser.currentDefaultIdentifier(), QString("firefox"));
        QVERIFY(!mail.currentDefaultIdentifier());
        db.setHandlers("mailto", {"chromium"});
        QCOMPARE(mail.currentDefaultIdentifier(), QString("chromium"));
    }

    void aDefaultMissingFromTheListIsAppendedOnceInNameOrder()
    {
        FakeHandlerDatabase db;
        db.install("zeta", QString("Zeta"));
        db.install("alpha", QString("alpha"));
        db.install("vivaldi", QString("Vivaldi"), QString("6.1"));
        db.setHandlers("https", {"vivaldi"});
        const DefaultResolver resolver(GuardProfile::browser(), db);
        QList<HandlerRecord> installed{HandlerRecord("alpha", "alpha"),
                                       HandlerRecord("Zeta", "zeta")};

        const auto first = resolver.resolve(installed);
        QVERIFY(first);
        QCOMPARE(first->name, QString("Vivaldi"));
        QCOMPARE(first->version, QString("6.1"));
        QCOMPARE(first->path, QString("/apps/vivaldi.desktop"));
        QCOMPARE(installed.size(), 3);
        // Code-point order: every capital before every lower-case initial.
        QCOMPARE(installed.at(0).name, QString("Vivaldi"));
        QCOMPARE(installed.at(1).name, QString("Zeta"));
        QCOMPARE(installed.at(2).name, QString("alpha"));

        QCOMPARE(resolver.resolve(installed)->id, first->id);
        QCOMPARE(installed.size(), 3);
    }

    void anUnreadableOrNamelessDefaultStillGetsAName()
    {
        FakeHandlerDatabase db;
        db.setHandlers("mailto", {"gone-mail"});
        QList<HandlerRecord> installed;
        const auto current = DefaultResolver(GuardProfile::email(), db).resolve(installed);
        QVERIFY(current);
        QCOMPARE(current->name, QString("Unknown Email Client"));
        QCOMPARE(current->bundleIdentifier, QString("gone-mail"));
        QVERIFY(!current->path && !current->version);
        QVERIFY(installed.isEmpty());

        db.install("org.example.Web", std::nullopt);
        db.setHandlers("https", {"org.example.Web"});
        QCOMPARE(DefaultResolver(GuardProfile::browser(), db).resolve(installed)->name,
                 QString("org.example.Web"));
    }

    void sortingIsByCodePointsNotUtf16Units()
    {
        QList<HandlerRecord> records{HandlerRecord(QString::fromUtf8("😀 Browser"), "b"),
                                     HandlerRecord(QString::fromUtf8("Ｆull-width"), "a")};
        DefaultResolver::sortByName(records);
        QCOMPARE(records.first().bundleIdentifier, QString("a"));
    }
};

QTEST_GUILESS_MAIN(ResolutionTest)
#include "tst_resolution.moc"
