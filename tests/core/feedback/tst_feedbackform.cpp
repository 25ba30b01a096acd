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
        s_lines << (type == QtInfoMsg ? u"info: " : type == QtCriticalMsg ? u"error: " : u"other: ")
                       + text;
    }
    static inline QtMessageHandler s_previous = nullptr;
    static inline QStringList s_lines;
};

// German texts over a private store, a standing clock, and a feedback server on loopback
// (the ingestion server stands in for it: it records each request and answers as scripted).
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

    explicit Rig(const QString &apiKey = QStringLiteral("key-123"), std::chrono::milliseconds timeout = 20s)
    {
        language.setCurrentLanguage(AppLanguage::german);
        timers.fire(50ms);
        static_cast<void>(server.listen());
        telemetry.aptabase.startPolling();
        FeedbackForm::Options options;
        options.endpointURL = QUrl(server.baseUrl() + u"/api/feedback");
        options.apiKey = apiKey;
        options.timeout = timeout;
        options.language = &language;
        options.clock = &clock;
        form = std::make_unique<FeedbackForm>(options);
    }

    void fillIn(int mood, FeedbackTag tag, const QString &text)
    {
        form->setSelectedMoodIndex(mood);
        form->setSelectedTag(tag);
        form->setFeedbackText(text);
    }
    // Sends and waits for the answer to be judged.
    bool send()
    {
        QSignalSpy finished(form.get(), &FeedbackForm::sendFinished);
        form->sendFeedback();
        return finished.wait(5000);
    }
    QString sendingLine() const { return u"info: Sending feedback to " + server.baseUrl() + u"/api/feedback"; }
    QString errorText() const { return language.localizedString(QStringLiteral("feedback_error_message")); }
};

} // namespace

class FeedbackFormTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void statusesFrom200To299SucceedAndReset_data()
    {
        QTest::addColumn<int>("status");
        QTest::newRow("200") << 200;
        QTest::newRow("299") << 299;
    }
    void statusesFrom200To299SucceedAndReset()
    {
        QFETCH(int, status);
        Rig rig;
        rig.server.script({{status, "ignored"}});
        rig.fillIn(1, FeedbackTag::idea, QStringLiteral("  \n Dark mode, please \t\n"));
        QVERIFY(rig.send());

        QCOMPARE(rig.server.requests.size(), 1);
        const LoopbackIngestion::Request &request = rig.server.requests.first();
        QCOMPARE(request.method, "POST");
        QCOMPARE(request.path, "/api/feedback");
        QCOMPARE(request.headers.value("content-type"), "application/json");
        QCOMPARE(request.headers.value("x-api-key"), "key-123");
        const QJsonObject body = QJsonDocument::fromJson(request.body).object();
        const QJsonObject expected{
            {"mood", QStringLiteral("\U0001F615")},
            {"rating", 2},
            {"tag", "idea"},
            {"message", "Dark mode, please"},
            {"language", "de"},
            {"appVersion", QString::fromUtf8(BuildConfig::appVersion)},
            {"appBuild", QString::fromUtf8(BuildConfig::buildNumber)},
            {"osVersion", FeedbackPayload::systemVersionText()},
            {"createdAt", "2024-02-29T22:59:59Z"},
        };
        QCOMPARE(body, expected);

        QCOMPARE(rig.form->feedbackText(), QString());
        QCOMPARE(rig.form->selectedTag(), FeedbackTag::coolApp);
        QCOMPARE(rig.form->selectedMoodIndex(), 4);
        QVERIFY(rig.form->showSuccessAlert());
        QVERIFY(!rig.form->showErrorAlert());
        QVERIFY(!rig.form->isSending());
        QCOMPARE(FeedbackLog::take(),
                 QStringList({rig.sendingLine(),
                              u"info: Feedback sent successfully: status=" + QString::number(status)}));
        const auto events = rig.telemetry.flushedEvents();
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().first, "feedback_sent");
        QCOMPARE(events.first().second,
                 QJsonObject({{"tag", "idea"}, {"mood", QStringLiteral("\U0001F615")}, {"rating", 2}}));
    }

    void otherStatusesFailAndKeepTheInput_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("loggedBody");
        // An informational status carries no body.
        QTest::newRow("199") << 199 << QByteArray() << "";
        QTest::newRow("300") << 300 << QByteArray("choose") << "choose";
        QTest::newRow("404") << 404 << QByteArray("no such route") << "no such route";
        QTest::newRow("500 empty") << 500 << QByteArray() << "";
        QTest::newRow("500 not UTF-8") << 500 << QByteArray("\xff\xfe oops") << "<empty>";
    }
    void otherStatusesFailAndKeepTheInput()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, loggedBody);
        Rig rig;
        rig.server.script({{status, body}});
        rig.fillIn(0, FeedbackTag::issue, QStringLiteral(" It crashed "));
        QVERIFY(rig.send());

        QCOMPARE(rig.server.requests.size(), 1);
        QVERIFY(rig.form->showErrorAlert());
        QVERIFY(!rig.form->showSuccessAlert());
        QCOMPARE(rig.form->errorMessage(), rig.errorText());
        QCOMPARE(rig.form->feedbackText(), QStringLiteral(" It crashed "));
        QCOMPARE(rig.form->selectedTag(), FeedbackTag::issue);
        QCOMPARE(rig.form->selectedMoodIndex(), 0);
        QVERIFY(!rig.form->isSending());
        QVERIFY(rig.form->canSend());

        const QString reason =
            QStringLiteral("The operation couldn\u2019t be completed. (Feedback error %1.)").arg(status);
        QCOMPARE(FeedbackLog::take(),
                 QStringList({rig.sendingLine(),
                              QStringLiteral("error: Feedback send failed: status=%1, body=%2")
                                  .arg(status)
                                  .arg(loggedBody),
                              u"error: Feedback send exception: " + reason}));
        const auto events = rig.telemetry.flushedEvents();
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().first, "feedback_send_failed");
        QCOMPARE(events.first().second, QJsonObject({{"reason", reason}}));
    }

    void aServerThatNeverAnswersFailsAfterTheTimeOut()
    {
        Rig rig(QStringLiteral("key-123"), 400ms);
        rig.server.hold();
        rig.fillIn(2, FeedbackTag::other, QStringLiteral("Hello"));
        QSignalSpy finished(rig.form.get(), &FeedbackForm::sendFinished);
        QElapsedTimer elapsed;
        elapsed.start();
        rig.form->sendFeedback();
        QVERIFY(rig.form->isSending());
        QVERIFY(!rig.form->canSend());
        QVERIFY(QTest::qWaitFor([&] { return rig.server.requests.size() == 1; }, 2000));
        // The user may keep editing while the request is out; the request has its own copy.
        rig.form->setFeedbackText(QStringLiteral("Hello again"));
        QVERIFY(finished.wait(5000));
        QVERIFY(elapsed.elapsed() >= 400);

        QVERIFY(!rig.form->isSending());
        QVERIFY(rig.form->showErrorAlert());
        QCOMPARE(rig.form->feedbackText(), QStringLiteral("Hello again"));
        QCOMPARE(QJsonDocument::fromJson(rig.server.requests.first().body)["message"].toString(), "Hello");
        const QStringList lines = FeedbackLog::take();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(), rig.sendingLine());
        QVERIFY2(lines.last().startsWith(u"error: Feedback send exception: "), qPrintable(lines.last()));
        const auto events = rig.telemetry.flushedEvents();
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().first, "feedback_send_failed");
        QCOMPARE(u"error: Feedback send exception: " + events.first().second["reason"].toString(),
                 lines.last());
    }

    void noApiKeyShowsTheErrorWithoutRequestOrTelemetry()
    {
        Rig rig(QString{});
        QSignalSpy changed(rig.form.get(), &FeedbackForm::changed);
        rig.form->sendFeedback();
        QVERIFY(rig.form->showErrorAlert());
        QCOMPARE(rig.form->errorMessage(), rig.errorText());
        QVERIFY(!rig.form->isSending());
        QCOMPARE(FeedbackLog::take(),
                 QStringList(QStringLiteral("error: Feedback send aborted: missing FeedbackAPIKey in Info.plist")));
        QTest::qWait(100);
        QVERIFY(rig.server.requests.isEmpty());
        QVERIFY(rig.telemetry.flushedEvents().isEmpty());
    }

    void praiseGoesOutWithoutWordsButOtherTagsNeedThem()
    {
        Rig rig;
        rig.fillIn(4, FeedbackTag::issue, QStringLiteral(" \n\t "));
        QVERIFY(!rig.form->canSend());
        rig.form->sendFeedback();
        QTest::qWait(100);
        QVERIFY(rig.server.requests.isEmpty());
        QVERIFY(!rig.form->showErrorAlert() && !rig.form->isSending());
        QVERIFY(FeedbackLog::take().isEmpty());

        rig.form->setSelectedTag(FeedbackTag::coolApp);
        QVERIFY(rig.form->canSend());
        QVERIFY(rig.send());
        QCOMPARE(rig.server.requests.size(), 1);
        QCOMPARE(QJsonDocument::fromJson(rig.server.requests.first().body)["message"], "");
    }

    void textKeepsAtMostAThousandUserPerceivedCharacters_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("letter") << QStringLiteral("a");
        QTest::newRow("emoji outside the BMP") << QStringLiteral("\U0001F929");
        QTest::newRow("family joined by ZWJ") << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467");
        QTest::newRow("flag") << QStringLiteral("\U0001F1E9\U0001F1EA");
        QTest::newRow("combining marks") << QStringLiteral("e\u0301\u0323");
        QTest::newRow("line end CRLF") << QStringLiteral("\r\n");
    }
    void textKeepsAtMostAThousandUserPerceivedCharacters()
    {
        QFETCH(QString, unit);
        QCOMPARE(UserPerceivedText::characterCount(unit), 1);
        Rig rig;
        rig.form->setFeedbackText(unit.repeated(999) + u"xyz");
        QCOMPARE(rig.form->characterCount(), 1000);
        QCOMPARE(rig.form->feedbackText(), unit.repeated(999) + u"x");
        rig.form->setFeedbackText(unit.repeated(1000));
        QCOMPARE(rig.form->feedbackText(), unit.repeated(1000));
        rig.form->setFeedbackText(unit.repeated(1000) + u"\u0301");
        QCOMPARE(rig.form->characterCount(), 1000);
    }
};

QTEST_GUILESS_MAIN(FeedbackFormTest)
#include "tst_feedbackform.moc"
