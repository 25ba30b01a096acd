#include "LoopbackAnalytics.h"
#include "core/feedback/FeedbackForm.h"
#include "core/feedback/UserPerceivedText.h"
#include "core/i18n/LanguageManager.h"

#include "BuildConfig.h"
#include "ConsoleCapture.h"
#include "FakeClock.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

using namespace std::chrono_literals;

namespace {

// The lines logged under the "Feedback" category while it lives, as "level: text".
class FeedbackLog {
public:
    FeedbackLog() { s_previous = qInstallMessageHandler(&FeedbackLog::handle); }
    ~FeedbackLog() { qInstallMessageHandler(s_previous); }
    static QStringList take() { return std::exchange(s_lines, {}); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (qstrcmp(context.category, "Feedback") != 0)
            return s_previous(type, context, text);
        s_lines << (type == QtInfoMsg ? u"info: " : u"error: ") + text;
    }
    static inline QtMessageHandler s_previous = nullptr;
    static inline QStringList s_lines;
};

// German texts, a standing clock, and a feedback server on loopback (the ingestion server
// stands in for it: it records each request and answers as scripted).
struct Rig {
    ConsoleCapture console;
    TempSettings settings;
    FakeTimerFactory timers;
    LanguageManager language{settings.store(), timers, {}};
    FakeClock clock{QDateTime(QDate(2024, 2, 29), QTime(23, 59, 59, 987), QTimeZone(3600))};
    LoopbackIngestion server;
    LoopbackAnalytics telemetry;
    FeedbackLog log;
    std::unique_ptr<FeedbackForm> form;

    explicit Rig(const QString &apiKey = QStringLiteral("key-123"),
                 std::chrono::milliseconds timeout = 20s)
    {
        language.setCurrentLanguage(AppLanguage::german);
        timers.fire(50ms);
        telemetry.aptabase.startPolling();
        FeedbackForm::Options options;
        options.endpointURL = QUrl(server.baseUrl() + u"/api/feedback");
        options.apiKey = apiKey;
        options.timeout = timeout;
        options.language = &language;
        options.clock = &clock;
        form = std::make_unique<FeedbackForm>(options);
    }

    // Fills the form in, sends it and waits for the answer to be judged.
    bool send(int mood, FeedbackTag tag, const QString &text)
    {
        form->setSelectedMoodIndex(mood);
        form->setSelectedTag(tag);
        form->setFeedbackText(text);
        QSignalSpy finished(form.get(), &FeedbackForm::sendFinished);
        form->sendFeedback();
        return finished.wait(5000);
    }
    QString sendingLine() const
    {
        return u"info: Sending feedback to " + server.baseUrl() + u"/api/feedback";
    }
    // The form's text, tag and mood, and which of its alerts and sending are on.
    QString state() const
    {
        QStringList on;
        for (const auto &[flag, name] : {std::pair(form->showSuccessAlert(), "success"),
                                         {form->showErrorAlert(), "error"},
                                         {form->isSending(), "sending"}})
            if (flag)
                on << QString::fromLatin1(name);
        return QStringLiteral("%1|%2|%3|%4")
            .arg(form->feedbackText(), form->selectedTag().rawValue())
            .arg(form->selectedMoodIndex())
            .arg(on.join(u' '));
    }
};

} // namespace

class FeedbackFormTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyStatusIsJudged_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("loggedBody"); // empty: the send succeeds
        QTest::newRow("200") << 200 << QByteArray("ignored") << QString();
        QTest::newRow("299") << 299 << QByteArray("ignored") << QString();
        QTest::newRow("199, which carries no body") << 199 << QByteArray() << "";
        QTest::newRow("300") << 300 << QByteArray("choose") << "choose";
        QTest::newRow("500 not UTF-8") << 500 << QByteArray("\xff\xfe oops") << "<empty>";
    }
    void everyStatusIsJudged()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, loggedBody);
        const bool succeeds = loggedBody.isNull();
        Rig rig;
        rig.server.script({{status, body}});
        const QString text = QStringLiteral("  \n Dark mode, please \t\n");
        QVERIFY(rig.send(1, FeedbackTag::idea, text));

        QCOMPARE(rig.server.requests.size(), 1);
        const LoopbackIngestion::Request &request = rig.server.requests.first();
        QCOMPARE(request.method, "POST");
        QCOMPARE(request.path, "/api/feedback");
        QCOMPARE(request.headers.value("content-type"), "application/json");
        QCOMPARE(request.headers.value("x-api-key"), "key-123");
        const QJsonObject expected{{"mood", QStringLiteral("\U0001F615")},
                                   {"rating", 2},
                                   {"tag", "idea"},
                                   {"message", "Dark mode, please"},
                                   {"language", "de"},
                                   {"appVersion", QString::fromUtf8(BuildConfig::appVersion)},
                                   {"appBuild", QString::fromUtf8(BuildConfig::buildNumber)},
                                   {"osVersion", FeedbackPayload::systemVersionText()},
                                   {"createdAt", "2024-02-29T22:59:59Z"}};
        QCOMPARE(QJsonDocument::fromJson(request.body).object(), expected);
        QVERIFY(rig.form->canSend());

        const QString reason =
            QStringLiteral("The operation couldn\u2019t be completed. (Feedback error %1.)")
                .arg(status);
        using Events = QList<QPair<QString, QJsonObject>>;
        if (succeeds) {
            QCOMPARE(rig.state(), "|coolApp|4|success");
            QCOMPARE(FeedbackLog::take(),
                     QStringList({rig.sendingLine(), u"info: Feedback sent successfully: status="
                                                         + QString::number(status)}));
            QCOMPARE(rig.telemetry.flushedEvents(),
                     (Events{{"feedback_sent",
                              {{"tag", "idea"}, {"mood", expected["mood"]}, {"rating", 2}}}}));
        } else {
            QCOMPARE(rig.state(), QString(text + u"|idea|1|error"));
            QCOMPARE(rig.form->errorMessage(),
                     rig.language.localizedString(QStringLiteral("feedback_error_message")));
            QCOMPARE(FeedbackLog::take(),
                     QStringList({rig.sendingLine(),
                                  QStringLiteral("error: Feedback send failed: status=%1, body=%2")
                                      .arg(status)
                                      .arg(loggedBody),
                                  u"error: Feedback send exception: " + reason}));
            QCOMPARE(rig.telemetry.flushedEvents(),
                     (Events{{"feedback_send_failed", {{"reason", reason}}}}));
        }
    }

    void aServerThatNeverAnswersFailsAfterTheTimeOut()
    {
        Rig rig(QStringLiteral("key-123"), 400ms);
        rig.server.hold();
        rig.form->setFeedbackText(QStringLiteral("Hello"));
        QSignalSpy finished(rig.form.get(), &FeedbackForm::sendFinished);
        QElapsedTimer elapsed;
        elapsed.start();
        rig.form->sendFeedback();
        QVERIFY(rig.form->isSending() && !rig.form->canSend());
        QVERIFY(QTest::qWaitFor([&] { return rig.server.requests.size() == 1; }, 2000));
        // The user may keep editing while the request is out; the request has its own copy.
        rig.form->setFeedbackText(QStringLiteral("Hello again"));
        QVERIFY(finished.wait(5000));
        QVERIFY(elapsed.elapsed() >= 400);

        QCOMPARE(rig.state(), "Hello again|coolApp|4|error");
        QCOMPARE(QJsonDocument::fromJson(rig.server.requests.first().body)["message"], "Hello");
        const auto events = rig.telemetry.flushedEvents();
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().first, "feedback_send_failed");
        const QString reason = events.first().second["reason"].toString();
        QCOMPARE(FeedbackLog::take(),
                 QStringList({rig.sendingLine(), u"error: Feedback send exception: " + reason}));
    }

    // One press, one request: a connection dropped before any answer, or an answer that is
    // no HTTP, fails the send; it is never sent again behind the user's back.
    void aBrokenConnectionIsOneRequestAndAFailure_data()
    {
        QTest::addColumn<int>("status");
        QTest::newRow("reset") << 0;
        QTest::newRow("not HTTP") << -1;
    }
    void aBrokenConnectionIsOneRequestAndAFailure()
    {
        QFETCH(int, status);
        Rig rig;
        rig.server.script({{status}});
        QVERIFY(rig.send(2, FeedbackTag::coolApp, QString()));
        QCOMPARE(rig.server.requests.size(), 1);
        QCOMPARE(rig.state(), "|coolApp|2|error");
        const auto events = rig.telemetry.flushedEvents();
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().first, "feedback_send_failed");
    }

    // A send outlives the form that started it (the page is rebuilt when left or when the
    // language changes): it is still judged, logged and counted.
    void aSendOutlivesItsForm()
    {
        Rig rig;
        rig.server.hold();
        rig.form->setFeedbackText(QStringLiteral("Bye"));
        rig.form->sendFeedback();
        QTRY_COMPARE(rig.server.requests.size(), 1);
        rig.form.reset();
        rig.server.release();
        QStringList lines;
        QTRY_VERIFY((lines += FeedbackLog::take(),
                     lines.contains("info: Feedback sent successfully: status=200")));
        const auto events = rig.telemetry.flushedEvents();
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().first, "feedback_sent");
    }

    void noApiKeyShowsTheErrorWithoutRequestOrTelemetry()
    {
        Rig rig(QString{});
        rig.form->sendFeedback();
        QCOMPARE(rig.state(), "|coolApp|4|error");
        QCOMPARE(rig.form->errorMessage(),
                 rig.language.localizedString(QStringLiteral("feedback_error_message")));
        QCOMPARE(FeedbackLog::take(),
                 QStringList(QStringLiteral(
                     "error: Feedback send aborted: missing FeedbackAPIKey in Info.plist")));
        QVERIFY(!rig.form->isSending()); // no request went out
        QVERIFY(rig.telemetry.flushedEvents().isEmpty());
    }

    void textKeepsAtMostAThousandUserPerceivedCharacters()
    {
        // A family joined by zero-width joiners: one character of eight UTF-16 units.
        const QString unit = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467");
        QCOMPARE(UserPerceivedText::characterCount(unit), 1);
        Rig rig;
        rig.form->setFeedbackText(unit.repeated(999) + u"xyz");
        QCOMPARE(rig.form->characterCount(), 1000);
        QCOMPARE(rig.form->feedbackText(), QString(unit.repeated(999) + u"x"));
        rig.form->setFeedbackText(unit.repeated(1000) + u"\u0301");
        QCOMPARE(rig.form->characterCount(), 1000);
    }
};

QTEST_GUILESS_MAIN(FeedbackFormTest)
#include "tst_feedbackform.moc"
