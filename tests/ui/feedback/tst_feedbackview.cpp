#include "core/feedback/UserPerceivedText.h"
#include "ui/feedback/FeedbackTagButton.h"
#include "ui/feedback/FeedbackView.h"
#include "ui/feedback/MoodButton.h"

#include "InstantAnimations.h"
#include "LoopbackIngestion.h"
#include "PageChecks.h"
#include "ShellWorld.h"

#include <QApplication>
#include <QClipboard>
#include <QEnterEvent>
#include <QLabel>
#include <QNetworkAccessManager>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

using namespace std::chrono_literals;

namespace {

// The network of the form, counting the requests it makes.
class CountingNetwork final : public QNetworkAccessManager {
public:
    int requests = 0;

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *data) override
    {
        ++requests;
        return QNetworkAccessManager::createRequest(operation, request, data);
    }
};

// A feedback server on loopback and the page over it, shown; alerts are recorded instead of
// shown and wait for an answer.
struct Rig : ShellWorld {
    LoopbackIngestion server;
    CountingNetwork network;
    std::unique_ptr<FeedbackView> view;

    explicit Rig(const QString &apiKey = QStringLiteral("key-123"))
    {
        FeedbackForm::Options options;
        options.endpointURL = QUrl(server.baseUrl() + u"/api/feedback");
        options.apiKey = apiKey;
        options.network = &network;
        view =
            shown(std::make_unique<FeedbackView>(options, language, world.alerts, world.telemetry),
                  {560, 760});
    }

    QPlainTextEdit *edit() const { return view->textEdit(); }
    QString counter() const { return view->counter()->text(); }
    // Types `text` as one key press, the way an input method delivers an emoji.
    void type(const QString &text) const
    {
        QTest::sendKeyEvent(QTest::Click, edit(), Qt::Key_unknown, text, Qt::NoModifier);
    }
    void click(QAbstractButton *button) const { QTest::mouseClick(button, Qt::LeftButton); }
};

// How colourful the brightest-coloured pixels of a widget are, 0 to 255.
int mostSaturation(QWidget *widget)
{
    const QImage image = widget->grab().toImage();
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            most = qMax(most, image.pixelColor(x, y).hsvSaturation()
                                  * image.pixelColor(x, y).alpha() / 255);
    return most;
}

QPalette darkPalette()
{
    QPalette dark(QColor(0x3a, 0x3a, 0x3a), QColor(0x1e, 0x1e, 0x1e));
    dark.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2a));
    dark.setColor(QPalette::Highlight, QColor(0x0a, 0x84, 0xff));
    return dark;
}

} // namespace

class FeedbackViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        InstantAnimations::install();
        QVERIFY2(PageChecks::hasRealFont(), "no real font: screenshots would show boxes");
    }

    // Counted as the user sees them: an emoji is one character (the form's own test goes
    // through the other clusters).
    void typingStopsAtAThousandCharacters()
    {
        const QString unit = QStringLiteral("\U0001F929");
        Rig rig;
        rig.edit()->setFocus();
        rig.edit()->setPlainText(unit.repeated(998));
        rig.edit()->moveCursor(QTextCursor::End);
        rig.type(unit);
        QCOMPARE(rig.counter(), QStringLiteral("999/1000"));
        rig.type(unit);
        rig.type(unit);
        rig.type(QStringLiteral("z"));
        QCOMPARE(rig.edit()->toPlainText(), unit.repeated(1000));
        QCOMPARE(rig.counter(), QStringLiteral("1000/1000"));
        // A mark joins the character before it: still 1000 characters, so it stays.
        rig.type(QStringLiteral("\u0323"));
        QCOMPARE(rig.edit()->toPlainText(), QString(unit.repeated(1000) + u"\u0323"));
        // An undo never brings back what was cut. (The text control restores the cursor of
        // the typing it takes back, one place past the end, and says so.)
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression("^QTextCursor::setPosition: Position '\\d+' out of range$"));
        rig.edit()->undo();
        rig.edit()->undo();
        const int count = UserPerceivedText::characterCount(rig.edit()->toPlainText());
        QVERIFY(count <= 1000);
        QCOMPARE(rig.counter(), QStringLiteral("%1/1000").arg(count));
    }

    void aPasteIsCutAtTheEnd()
    {
        Rig rig;
        rig.edit()->setPlainText(QStringLiteral("0123456789"));
        QTextCursor cursor = rig.edit()->textCursor();
        cursor.setPosition(5);
        rig.edit()->setTextCursor(cursor);
        QApplication::clipboard()->setText(QStringLiteral("\U0001F44D").repeated(993));
        rig.edit()->paste();
        QCOMPARE(rig.edit()->toPlainText(),
                 QStringLiteral("01234") + QStringLiteral("\U0001F44D").repeated(993) + u"56");
        QCOMPARE(rig.view->form().feedbackText(), rig.edit()->toPlainText());
    }

    void sendButtonFollowsCanSend()
    {
        Rig rig;
        QPushButton *send = rig.view->sendButton();
        const auto check = [&](bool expected) {
            QCOMPARE(rig.view->canSend(), expected);
            QCOMPARE(send->isEnabled(), expected);
        };
        check(true);
        rig.click(rig.view->tagButton(FeedbackTag::issue));
        check(false);
        rig.edit()->setFocus();
        QTest::keyClicks(rig.edit(), QStringLiteral("  "));
        QTest::keyClick(rig.edit(), Qt::Key_Return);
        check(false);
        rig.click(rig.view->tagButton(FeedbackTag::coolApp));
        check(true);
        rig.click(rig.view->tagButton(FeedbackTag::idea));
        check(false);
        QTest::keyClicks(rig.edit(), QStringLiteral("Dark mode"));
        check(true);
        rig.click(rig.view->moodButton(1));
        QCOMPARE(rig.view->form().selectedMoodIndex(), 1);

        // While the request is out the button says so and a second press does nothing.
        rig.server.hold();
        rig.click(send);
        QCOMPARE(send->text(), rig.text("feedback_sending"));
        check(false);
        rig.click(send);
        QCOMPARE(rig.network.requests, 1);
        QVERIFY(QTest::qWaitFor([&] { return rig.server.requests.size() == 1; }, 3000));
        rig.server.release();
        QVERIFY(QTest::qWaitFor([&] { return rig.world.alerts.isPresenting(); }, 3000));

        QCOMPARE(rig.world.alerts.shown().size(), 1);
        QCOMPARE(rig.world.alerts.last().style, ModalPrompt::Style::informational);
        QCOMPARE(rig.world.alerts.last().title, rig.text("feedback_sent_title"));
        check(true);
        QCOMPARE(send->text(), rig.text("feedback_send"));
        // A fresh form behind the alert.
        QCOMPARE(rig.counter(), QStringLiteral("0/1000"));
        QVERIFY(rig.view->tagButton(FeedbackTag::coolApp)->isSelected());
        QVERIFY(rig.view->moodButton(4)->isSelected() && !rig.view->moodButton(1)->isSelected());
        QVERIFY(rig.world.alerts.answer(0));
        QVERIFY(!rig.view->form().showSuccessAlert());
    }

    void errorAlertShowsTheFixedTextOnce()
    {
        Rig rig(QString{});
        rig.click(rig.view->sendButton());
        rig.click(rig.view->sendButton());
        QTRY_VERIFY(rig.world.alerts.isPresenting());
        ScriptedPrompter::settle();
        QCOMPARE(rig.world.alerts.shown().size(), 1);
        QCOMPARE(rig.world.alerts.last().style, ModalPrompt::Style::warning);
        QCOMPARE(rig.world.alerts.last().title, rig.text("feedback_error_title"));
        QCOMPARE(rig.world.alerts.last().text, rig.text("feedback_error_message"));
        QVERIFY(rig.world.alerts.answer(0));
        rig.click(rig.view->sendButton());
        QTRY_COMPARE(rig.world.alerts.shown().size(), 2);
        QVERIFY(rig.server.requests.isEmpty());
    }

    void followsALanguageChange()
    {
        Rig rig;
        rig.language.setCurrentLanguage(AppLanguage::german);
        rig.world.timers.fire(50ms);
        QCOMPARE(rig.edit()->placeholderText(), rig.text("feedback_text_placeholder"));
        QCOMPARE(rig.view->sendButton()->text(), rig.text("feedback_send"));
    }

    void rendersInLightAndDark_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void rendersInLightAndDark()
    {
        QFETCH(bool, dark);
        Rig rig;
        if (dark)
            rig.view->setPalette(darkPalette());
        rig.click(rig.view->tagButton(FeedbackTag::idea));
        rig.click(rig.view->moodButton(3));
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(rig.view->moodButton(1), &enter);
        rig.edit()->setPlainText(
            QStringLiteral("It would be lovely to see which app changed my default browser."));
        const QImage shot = rig.view->grab().toImage();
        QVERIFY(shot.save(QCoreApplication::applicationDirPath()
                          + (dark ? u"/feedback_dark.png" : u"/feedback_light.png")));
        const int background = qGray(shot.pixel(3, shot.height() - 3));
        QVERIFY2(dark ? background < 60 : background > 200,
                 qPrintable(QString::number(background)));
        // Only the chosen mood is in colour; the hovered one shows a grey emoji in a tinted circle.
        QCOMPARE(rig.view->hoveredMoodIndex(), 1);
        for (int i = 0; i < 5; ++i) {
            const int saturation = mostSaturation(rig.view->moodButton(i));
            const bool right = i == 3   ? saturation > 150
                               : i == 1 ? saturation > 20
                                        : saturation < 10;
            QVERIFY2(right, qPrintable(QStringLiteral("mood %1: %2").arg(i).arg(saturation)));
        }
        // The send row sits inside the page, not cut off below it.
        QPushButton *send = rig.view->sendButton();
        QVERIFY(rig.view->rect().contains(send->mapTo(rig.view.get(), send->rect().bottomRight())));
    }
};

QTEST_MAIN(FeedbackViewTest)
#include "tst_feedbackview.moc"
