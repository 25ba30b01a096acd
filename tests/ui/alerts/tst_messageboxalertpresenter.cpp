#include "ui/MessageBoxAlertPresenter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

// The message boxes of the change alert: what they show, how each way of dismissing one
// answers, and that a second waits until the first is gone.
class MessageBoxAlertPresenterTest : public QObject {
    Q_OBJECT

    using Answer = AlertPresenter::Answer;

    static AlertPresenter::Alert alert(const QString &name)
    {
        return {QStringLiteral("Default browser changed"),
                u"Another program has made " + name + u" your default browser.",
                QStringLiteral("Change back"), u"Keep " + name + u" for now",
                QStringLiteral("exclamationmark.shield")};
    }

    static QList<QMessageBox *> visibleBoxes()
    {
        QList<QMessageBox *> boxes;
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible())
                boxes.append(box);
        return boxes;
    }

    static QAbstractButton *button(QMessageBox *box, const QString &text)
    {
        for (QAbstractButton *b : box->buttons())
            if (b->text() == text)
                return b;
        return nullptr;
    }

private Q_SLOTS:
    void theBoxShowsTheAlertWithItsSymbol()
    {
        MessageBoxAlertPresenter presenter;
        presenter.present(alert("<b>Evil</b> & Co"), [](Answer) {});
        QVERIFY(!presenter.isPresenting()); // on screen only on a later turn
        QTRY_VERIFY(presenter.box() && presenter.box()->isVisible());
        QMessageBox *box = presenter.box();
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QCOMPARE(box->windowTitle(), QString("Default browser changed"));
        QVERIFY(box->text().contains("Default browser changed"));
        QCOMPARE(box->defaultButton()->text(), QString("Change back"));
        QCOMPARE(box->escapeButton()->text(), QString("Keep <b>Evil</b> & Co for now"));
        // Names are shown as they are, never as markup.
        auto *label = box->findChild<QLabel *>("qt_msgbox_informativelabel");
        QVERIFY(label);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(),
                 QString("Another program has made <b>Evil</b> & Co your default browser."));

        const QImage icon = box->iconPixmap().toImage();
        QVERIFY(!icon.isNull());
        int orange = 0;
        for (int y = 0; y < icon.height(); ++y)
            for (int x = 0; x < icon.width(); ++x)
                if (QColor c = icon.pixelColor(x, y);
                    c.alpha() > 200 && c.red() > 200 && c.blue() < 60)
                    ++orange;
        QVERIFY2(orange > 200, "the shield is drawn in the warning colour");

        box->grab().save(QDir::tempPath() + "/vandorel-change-alert.png");
        QTest::keyClick(box, Qt::Key_Escape);
    }

    void eachWayOfDismissingAnswers_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<Answer>("expected");
        QTest::newRow("escape") << "escape" << Answer::second;
        QTest::newRow("close") << "close" << Answer::second;
        QTest::newRow("first button") << "first" << Answer::first;
        QTest::newRow("return") << "return" << Answer::first;
    }

    void eachWayOfDismissingAnswers()
    {
        QFETCH(QString, how);
        QFETCH(Answer, expected);
        MessageBoxAlertPresenter presenter;
        QSignalSpy presenting(&presenter, &AlertPresenter::presentingChanged);
        QList<Answer> answers;
        bool presentingDuringAnswer = true;
        presenter.present(alert("Web"), [&](Answer a) {
            answers.append(a);
            presentingDuringAnswer = presenter.isPresenting();
        });
        QTRY_VERIFY(presenter.box() && presenter.box()->isVisible());
        QMessageBox *box = presenter.box();
        if (how == "escape")
            QTest::keyClick(box, Qt::Key_Escape);
        else if (how == "return")
            QTest::keyClick(box, Qt::Key_Return);
        else if (how == "close")
            box->close();
        else
            button(box, "Change back")->click();
        QTRY_COMPARE(answers.size(), 1);
        QCOMPARE(answers.first(), expected);
        QVERIFY(!presentingDuringAnswer);
        QCOMPARE(presenting.size(), 2);
        QCOMPARE(presenting.at(1).at(0).toBool(), false);
        QTRY_VERIFY(visibleBoxes().isEmpty());
    }

    void aSecondAlertWaitsForTheFirst()
    {
        MessageBoxAlertPresenter presenter;
        QStringList answered;
        presenter.present(alert("Chromium"), [&](Answer) { answered << "Chromium"; });
        presenter.present(alert("Web"), [&](Answer) { answered << "Web"; });
        QTRY_VERIFY(presenter.box() && presenter.box()->isVisible());
        QTest::qWait(50);
        QCOMPARE(visibleBoxes().size(), 1);
        QVERIFY(presenter.box()->informativeText().contains("Chromium"));

        QTest::keyClick(presenter.box(), Qt::Key_Escape);
        QTRY_VERIFY(presenter.box() && presenter.box()->informativeText().contains("Web"));
        QCOMPARE(visibleBoxes().size(), 1);
        QCOMPARE(answered, QStringList({"Chromium"}));
        QTest::keyClick(presenter.box(), Qt::Key_Escape);
        QTRY_COMPARE(answered, QStringList({"Chromium", "Web"}));
    }
};

QTEST_MAIN(MessageBoxAlertPresenterTest)
#include "tst_messageboxalertpresenter.moc"
