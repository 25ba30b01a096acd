#include "LoopbackAnalytics.h"
#include "core/feedback/UserPerceivedText.h"
#include "core/i18n/LanguageManager.h"
#include "ui/feedback/FeedbackTagButton.h"
#include "ui/feedback/FeedbackView.h"
#include "ui/feedback/MoodButton.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QApplication>
#include <QClipboard>
#include <QEnterEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace {

const QColor limitOrange(0xFF, 0x95, 0x00);

// English texts, a feedback server on loopback and the page over them, shown; alerts are
// recorded instead of shown and wait for dismiss().
struct Rig {
    ConsoleCapture console;
    TempSettings settings;
    FakeTimerFactory timers;
    LanguageManager language{settings.store(), timers, {}};
    LoopbackIngestion server;
    LoopbackAnalytics telemetry;
    std::unique_ptr<FeedbackView> view;
    QList<FeedbackView::Alert> alerts;
    std::function<void()> dismiss;

    explicit Rig(const QString &apiKey = QStringLiteral("key-123"))
    {
        static_cast<void>(server.listen());
        telemetry.aptabase.startPolling();
        FeedbackForm::Options options;
        options.endpointURL = QUrl(server.baseUrl() + u"/api/feedback");
        options.apiKey = apiKey;
        view = std::make_unique<FeedbackView>(options, language);
        view->setAlertPresenter([this](FeedbackView &, const FeedbackView::Alert &alert,
                                       std::function<void()> dismissed) {
            alerts.append(alert);
            dismiss = std::move(dismissed);
        });
        view->resize(560, 760);
        view->show();
        static_cast<void>(QTest::qWaitForWindowExposed(view.get()));
    }

    QPlainTextEdit *edit() const { return view->textEdit(); }
    QString text(const char *key) const { return language.localizedString(QString::fromLatin1(key)); }
    // Types `text` as one key press, the way an input method delivers an emoji.
    void type(const QString &text) const
    {
        QTest::sendKeyEvent(QTest::Click, edit(), Qt::Key_unknown, text, Qt::NoModifier);
    }
    void click(QAbstractButton *button) const { QTest::mouseClick(button, Qt::LeftButton); }
    bool counterIsOrange() const
    {
        return view->counter()->palette().color(QPalette::WindowText) == limitOrange;
    }
};

// How colourful the brightest-coloured pixels of a widget are, 0 to 255.
int mostSaturation(QWidget *widget)
{
    const QImage image = widget->grab().toImage();
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            most = qMax(most, image.pixelColor(x, y).hsvSaturation() * image.pixelColor(x, y).alpha() / 255);
    return most;
}

QPalette darkPalette()
{
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x1e, 0x1e, 0x1e));
    dark.setColor(QPalette::WindowText, QColor(0xf2, 0xf2, 0xf2));
    dark.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2a));
    dark.setColor(QPalette::AlternateBase, QColor(0x33, 0x33, 0x33));
    dark.setColor(QPalette::Text, QColor(0xf2, 0xf2, 0xf2));
    dark.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9a, 0x9a));
    dark.setColor(QPalette::Button, QColor(0x3a, 0x3a, 0x3a));
    dark.setColor(QPalette::ButtonText, QColor(0xf2, 0xf2, 0xf2));
    dark.setColor(QPalette::Highlight, QColor(0x0a, 0x84, 0xff));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x70, 0x70, 0x70));
    dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x70, 0x70, 0x70));
    return dark;
}

} // namespace

class FeedbackViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const QFontMetrics metrics(QApplication::font());
        QVERIFY2(metrics.horizontalAdvance(QStringLiteral("iiii")) < metrics.horizontalAdvance(QStringLiteral("WWWW")),
                 "no real font: screenshots would show boxes");
    }

    void typingStopsAtAThousandCharacters()
    {
        Rig rig;
        rig.edit()->setFocus();
        QTest::keyClicks(rig.edit(), QString(999, u'a'));
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("999/1000"));
        QVERIFY(!rig.counterIsOrange());
        QTest::keyClicks(rig.edit(), QStringLiteral("b"));
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("1000/1000"));
        QVERIFY(rig.counterIsOrange());
        QTest::keyClicks(rig.edit(), QStringLiteral("cd"));
        QCOMPARE(rig.edit()->toPlainText(), QString(999, u'a') + u'b');
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("1000/1000"));
        // An undo never brings back what was cut. (The text control restores the cursor of
        // the typing it takes back, one place past the end, and says so.)
        QTest::ignoreMessage(QtWarningMsg, "QTextCursor::setPosition: Position '1001' out of range");
        rig.edit()->undo();
        QVERIFY(UserPerceivedText::characterCount(rig.edit()->toPlainText()) <= 1000);
        QCOMPARE(rig.view->counter()->text(),
                 QStringLiteral("%1/1000").arg(UserPerceivedText::characterCount(rig.edit()->toPlainText())));
    }

    void emojiAndCombiningMarksCountAsOneCharacter_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("emoji") << QStringLiteral("\U0001F929");
        QTest::newRow("family") << QStringLiteral("\U0001F469\u200D\U0001F467\u200D\U0001F466");
        QTest::newRow("combining") << QStringLiteral("o\u0308\u0301");
    }
    void emojiAndCombiningMarksCountAsOneCharacter()
    {
        QFETCH(QString, unit);
        Rig rig;
        rig.edit()->setFocus();
        rig.edit()->setPlainText(unit.repeated(998));
        rig.edit()->moveCursor(QTextCursor::End);
        rig.type(unit);
        rig.type(unit);
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("1000/1000"));
        rig.type(unit);
        rig.type(QStringLiteral("z"));
        QCOMPARE(rig.edit()->toPlainText(), unit.repeated(1000));
        // A mark joins the character before it: still 1000 characters, so it stays.
        rig.type(QStringLiteral("\u0323"));
        QCOMPARE(rig.edit()->toPlainText(), unit.repeated(1000) + u"\u0323");
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("1000/1000"));
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
        QVERIFY(rig.counterIsOrange());
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
        QCOMPARE(rig.view->form().selectedTag(), FeedbackTag::issue);
        check(false);
        rig.edit()->setFocus();
        QTest::keyClicks(rig.edit(), QStringLiteral("  "));
        QTest::keyClick(rig.edit(), Qt::Key_Return);
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("3/1000"));
        check(false);
        QTest::keyClicks(rig.edit(), QStringLiteral("Crash on start"));
        check(true);
        rig.edit()->selectAll();
        QTest::keyClick(rig.edit(), Qt::Key_Delete);
        check(false);
        rig.click(rig.view->tagButton(FeedbackTag::coolApp));
        check(true);
        rig.click(rig.view->tagButton(FeedbackTag::idea));
        QTest::keyClicks(rig.edit(), QStringLiteral("Dark mode"));
        rig.click(rig.view->moodButton(1));
        check(true);

        // While the request is out the button says so and a second press does nothing.
        rig.server.hold();
        rig.click(send);
        QCOMPARE(send->text(), rig.text("feedback_sending"));
        QVERIFY(!send->icon().isNull());
        check(false);
        const QRect sendArea(send->mapTo(rig.view.get(), QPoint(0, 0)), send->size());
        QVERIFY(rig.view->grab(sendArea.adjusted(-20, -10, 10, 10))
                    .save(QCoreApplication::applicationDirPath() + u"/feedback_sending.png"));
        rig.click(send);
        QVERIFY(QTest::qWaitFor([&] { return rig.server.requests.size() == 1; }, 3000));
        QTest::qWait(100);
        QCOMPARE(rig.server.requests.size(), 1);
        rig.server.release();
        QVERIFY(QTest::qWaitFor([&] { return !rig.alerts.isEmpty(); }, 3000));

        QCOMPARE(rig.alerts.size(), 1);
        QCOMPARE(rig.alerts.first().kind, FeedbackView::AlertKind::success);
        QCOMPARE(rig.alerts.first().title, rig.text("feedback_sent_title"));
        QCOMPARE(rig.alerts.first().message, rig.text("feedback_sent_message"));
        QCOMPARE(rig.alerts.first().buttonText, rig.text("general_ok"));
        check(true);
        QCOMPARE(send->text(), rig.text("feedback_send"));
        // A fresh form behind the alert.
        QCOMPARE(rig.edit()->toPlainText(), QString());
        QCOMPARE(rig.view->counter()->text(), QStringLiteral("0/1000"));
        QVERIFY(rig.view->tagButton(FeedbackTag::coolApp)->isSelected());
        QVERIFY(!rig.view->tagButton(FeedbackTag::idea)->isSelected());
        QVERIFY(rig.view->moodButton(4)->isSelected());
        QVERIFY(!rig.view->moodButton(1)->isSelected());
        rig.dismiss();
        QVERIFY(!rig.view->form().showSuccessAlert());
    }

    void errorAlertShowsTheFixedTextOnce()
    {
        Rig rig(QString{});
        rig.click(rig.view->sendButton());
        rig.click(rig.view->sendButton());
        QCOMPARE(rig.alerts.size(), 1);
        QCOMPARE(rig.alerts.first().kind, FeedbackView::AlertKind::error);
        QCOMPARE(rig.alerts.first().title, rig.text("feedback_error_title"));
        QCOMPARE(rig.alerts.first().message, rig.text("feedback_error_message"));
        rig.dismiss();
        QVERIFY(!rig.view->form().showErrorAlert());
        rig.click(rig.view->sendButton());
        QCOMPARE(rig.alerts.size(), 2);
        QVERIFY(rig.server.requests.isEmpty());
    }

    void onlyTheChosenMoodIsInColour()
    {
        Rig rig;
        rig.click(rig.view->moodButton(2));
        QCOMPARE(rig.view->form().selectedMoodIndex(), 2);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(rig.view->moodButton(0), &enter);
        QCOMPARE(rig.view->hoveredMoodIndex(), 0);
        QVERIFY(rig.view->moodButton(0)->isHovered());
        QTest::qWait(400); // let the spring settle
        for (int i = 0; i < 5; ++i) {
            const int saturation = mostSaturation(rig.view->moodButton(i));
            if (i == 2)
                QVERIFY2(saturation > 150, qPrintable(QString::number(saturation)));
            else if (i == 0) // grey emoji, tinted circle
                QVERIFY2(saturation > 20, qPrintable(QString::number(saturation)));
            else
                QVERIFY2(saturation < 10, qPrintable(QString::number(saturation)));
        }
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(rig.view->moodButton(0), &leave);
        QCOMPARE(rig.view->hoveredMoodIndex(), std::nullopt);
    }

    void everyAppearanceIsAScreenView()
    {
        Rig rig;
        rig.view->hide();
        rig.view->show();
        int views = 0;
        for (const auto &[name, props] : rig.telemetry.flushedEvents()) {
            QCOMPARE(name, QStringLiteral("screen_view"));
            QCOMPARE(props.value(QStringLiteral("screen_name")).toString(), QStringLiteral("settings_feedback"));
            ++views;
        }
        QCOMPARE(views, 2);
    }

    void textsFollowALanguageChange()
    {
        Rig rig;
        rig.language.setCurrentLanguage(AppLanguage::german);
        rig.timers.fire(50ms);
        QCOMPARE(rig.view->tagButton(FeedbackTag::translation)->text(), rig.text("feedback_tag_translation"));
        QCOMPARE(rig.edit()->placeholderText(), rig.text("feedback_text_placeholder"));
        QCOMPARE(rig.view->sendButton()->text(), rig.text("feedback_send"));
        QVERIFY(rig.view->sendButton()->text() != QStringLiteral("Send"));
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
        rig.edit()->setPlainText(QStringLiteral("It would be lovely to see which app changed my default browser."));
        QTest::qWait(400);
        const QImage shot = rig.view->grab().toImage();
        const QString path = QCoreApplication::applicationDirPath()
                             + (dark ? u"/feedback_dark.png" : u"/feedback_light.png");
        QVERIFY(shot.save(path));
        const int background = qGray(shot.pixel(3, shot.height() - 3));
        QVERIFY2(dark ? background < 60 : background > 200, qPrintable(QString::number(background)));
        // The send row sits inside the page, not cut off below it.
        const QPoint sendCorner = rig.view->sendButton()->mapTo(rig.view.get(), rig.view->sendButton()->rect().bottomRight());
        QVERIFY(rig.view->rect().contains(sendCorner));
    }
};

QTEST_MAIN(FeedbackViewTest)
#include "tst_feedbackview.moc"
