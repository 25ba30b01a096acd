#include "PrivateBuses.h"

#include "platform/freedesktop/DBusUrlHandOver.h"

#include <QTest>

#include <future>

using Result = UrlHandOver::Result;

// URLs handed from a later copy to the running one over a private session bus.
class DBusUrlHandOverTest : public QObject {
    Q_OBJECT

    static inline const QString appId = "io.kestrane.vandorel";
    std::unique_ptr<PrivateBuses> m_buses;

    // A later copy's call, made on its own connection and thread as another process would,
    // while this thread serves the running copy.
    static Result handOverFromLaterCopy(const QString &url)
    {
        std::future<Result> result = std::async(std::launch::async, [url] {
            const QString name = "later copy";
            Result answer;
            {
                DBusUrlHandOver later(
                    appId, QDBusConnection::connectToBus(QDBusConnection::SessionBus, name));
                answer = later.handOver(url);
            }
            QDBusConnection::disconnectFromBus(name);
            return answer;
        });
        const bool answered = QTest::qWaitFor(
            [&] { return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready; },
            20000);
        return answered ? result.get() : Result::unreachable;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_buses = std::make_unique<PrivateBuses>();
        QVERIFY(m_buses->isRunning());
    }

    void theRunningCopyAnswersWhetherItKnewTheUrl()
    {
        QCOMPARE(handOverFromLaterCopy("vandorel://settings"), Result::unreachable);

        QStringList asked;
        {
            DBusUrlHandOver running(appId);
            QCOMPARE(running.objectPath(), QString("/io/kestrane/vandorel"));
            QVERIFY(running.listen([&asked](const QString &url) {
                asked << url;
                return url.startsWith(u"vandorel://");
            }));
            QCOMPARE(handOverFromLaterCopy("vandorel://settings"), Result::opened);
            QCOMPARE(handOverFromLaterCopy("https://example.org/"), Result::refused);

            // Only one copy holds the name.
            const QString name = "second listener";
            {
                DBusUrlHandOver second(
                    appId, QDBusConnection::connectToBus(QDBusConnection::SessionBus, name));
                QVERIFY(!second.listen([](const QString &) { return true; }));
            }
            QDBusConnection::disconnectFromBus(name);
            QCOMPARE(handOverFromLaterCopy("vandorel://about"), Result::opened);
        }
        QCOMPARE(asked,
                 QStringList({"vandorel://settings", "https://example.org/", "vandorel://about"}));
        // Gone with its owner.
        QCOMPARE(handOverFromLaterCopy("vandorel://about"), Result::unreachable);
    }
};

QTEST_GUILESS_MAIN(DBusUrlHandOverTest)
#include "tst_dbusurlhandover.moc"
