#include "aptabase/ConcurrentQueue.h"
#include "aptabase/DebugPrint.h"
#include "aptabase/Event.h"

#include <QTest>
#include <QThread>
#include <QTimeZone>

class TestAptabaseWire : public QObject {
    Q_OBJECT
private slots:
    void timestampIsUtcInWholeSeconds()
    {
        const QDateTime berlin(QDate(2024, 3, 10), QTime(23, 59, 59, 999),
                               QTimeZone("Europe/Berlin"));
        QCOMPARE(Event::formatTimestamp(berlin), "2024-03-10T22:59:59Z");
        const QDateTime offset(QDate(1999, 12, 31), QTime(20, 30, 0), QTimeZone(-5 * 3600));
        QCOMPARE(Event::formatTimestamp(offset), "2000-01-01T01:30:00Z");
    }

    void eventPropsAreAlwaysAnObject()
    {
        Event event;
        event.props = CodableProps();
        QCOMPARE(event.toJson()->value("props"), QJsonValue(QJsonObject()));
        event.props = {{"f", AnyCodableValue::floatValue(0.1f)},
                       {"i", AnyCodableValue::integer(-(qint64(1) << 53) - 1)}};
        const QJsonObject props = event.toJson()->value("props").toObject();
        QCOMPARE(props.value("f").toDouble(), 0.1);
        QCOMPARE(props.value("i").toInteger(), -(qint64(1) << 53) - 1);
        event.props = {
            {"inf", AnyCodableValue::floatValue(std::numeric_limits<float>::infinity())}};
        QVERIFY(!event.toJson());
    }

    void debugLinesAreQuotedAndEscaped()
    {
        QCOMPARE(DebugPrint::quoted("plain ✅"), "\"plain ✅\"");
        QCOMPARE(DebugPrint::quoted("say \"hi\" it's C:\\ \n\t\r\x01"),
                 "\"say \\\"hi\\\" it\\'s C:\\\\ \\n\\t\\r\\u{1}\"");
    }

    void queueKeepsOrderAcrossThreads()
    {
        ConcurrentQueue<int> queue;
        queue.enqueue(1);
        queue.enqueue(QList<int>{2, 3});
        QCOMPARE(queue.dequeue(), 1);
        QCOMPARE(queue.dequeue(10), (QList<int>{2, 3}));
        QCOMPARE(queue.dequeue(), std::nullopt);

        // Four writers and one reader at once: nothing lost, each writer's order kept.
        constexpr int perWriter = 20000;
        QList<QThread *> writers;
        for (int w = 0; w < 4; ++w)
            writers << QThread::create([&queue, w] {
                for (int i = 0; i < perWriter; ++i)
                    queue.enqueue(w * perWriter + i);
            });
        for (QThread *writer : writers)
            writer->start();
        QList<int> read;
        while (read.size() < 4 * perWriter)
            read += queue.dequeue(25);
        for (QThread *writer : writers) {
            writer->wait();
            delete writer;
        }
        QList<int> last(4, -1);
        for (int value : read) {
            QVERIFY(value > last[value / perWriter]);
            last[value / perWriter] = value;
        }
        QCOMPARE(queue.count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestAptabaseWire)
#include "tst_aptabase_wire.moc"
