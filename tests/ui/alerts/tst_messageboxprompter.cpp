#include "ui/MessageBoxPrompter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

// The message boxes of the program's prompts: what they show, how each way of dismissing
// one answers, and that a second waits until the first is gone.
class MessageBoxPrompterTest : public QObject {
    Q_OBJECT

    static ModalPrompt changeAlert(const QString &name)
    {
        return {QStringLiteral("Default browser changed"),
                u"Another program has made " + name + u" your default browser.",
                {QStringLiteral("Change back"), u"Keep " + name + u" for now"},
                QStringLiteral("exclamationmark.shield"),
                ModalPrompt::Style::warning,
                QStringLiteral("Warning")};
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
    void theBoxShowsThePromptWithItsSymbol()
    {
        MessageBoxPrompter prompter;
        prompter.present(changeAlert("<b>Evil</b> & Co"), [](int) {});
        QVERIFY(!prompter.isPresenting()); // on screen only on a later turn
        QTRY_VERIFY(prompter.box() && prompter.box()->isVisible());
        QMessageBox *box = prompter.box();
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QCOMPARE(box->windowTitle(), QString("Default browser changed"));
        QVERIFY(box->text().contains("Default browser changed"));
        QCOMPARE(box->defaultButton()->text(), QString("Change back"));
        // An ampersand in a name is shown as such, not taken as a shortcut mark.
        QCOMPARE(box->escapeButton()->text(), QString("Keep <b>Evil</b> && Co for now"));
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
        QVERIFY2(orange > 200, "a warning's symbol is drawn in the warning colour");
        // The symbol takes the place of the style's icon, not of the box's kind, and is named
        // for screen readers.
        QCOMPARE(box->icon(), QMessageBox::Warning);
        auto *symbol = box->findChild<QLabel *>("qt_msgboxex_icon_label");
        QVERIFY(symbol);
        QCOMPARE(symbol->accessibleName(), QString("Warning"));

        box->grab().save(QDir::tempPath() + "/vandorel-change-alert.png");
        QTest::keyClick(box, Qt::Key_Escape);
    }

    void eachWayOfDismissingAnswers_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("expected");
        QTest::addColumn<bool>("oneButton");
        QTest::newRow("escape") << "escape" << 2 << false;
        QTest::newRow("close") << "close" << 2 << false;
        QTest::newRow("first button") << "Change back" << 0 << false;
        QTest::newRow("middle button") << "Ask later" << 1 << false;
        QTest::newRow("return") << "return" << 0 << false;
        // The up-to-date message: its one button answers Escape too.
        QTest::newRow("escape, one button") << "escape" << 0 << true;
    }

    void eachWayOfDismissingAnswers()
    {
        QFETCH(QString, how);
        QFETCH(int, expected);
        QFETCH(bool, oneButton);
        MessageBoxPrompter prompter;
        QSignalSpy presenting(&prompter, &ModalPrompter::presentingChanged);
        QList<int> answers;
        bool presentingDuringAnswer = true;
        ModalPrompt prompt = changeAlert("Web");
        prompt.buttons.insert(1, QStringLiteral("Ask later"));
        if (oneButton)
            prompt.buttons = QStringList{QStringLiteral("OK")};
        prompter.present(prompt, [&](int button) {
            answers.append(button);
            presentingDuringAnswer = prompter.isPresenting();
        });
        QTRY_VERIFY(prompter.box() && prompter.box()->isVisible());
        QMessageBox *box = prompter.box();
        if (how == "escape")
            QTest::keyClick(box, Qt::Key_Escape);
        else if (how == "return")
            QTest::keyClick(box, Qt::Key_Return);
        else if (how == "close")
            box->close();
        else
            button(box, how)->click();
        QTRY_COMPARE(answers.size(), 1);
        QCOMPARE(answers.first(), expected);
        QVERIFY(!presentingDuringAnswer);
        QCOMPARE(presenting.size(), 2);
        QCOMPARE(presenting.at(1).at(0).toBool(), false);
        QTRY_VERIFY(visibleBoxes().isEmpty());
    }

    // A second prompt waits for the first. A box that goes with the window it was shown over
    // is answered as closed, and the next prompt still comes.
    void aBoxGoneWithItsWindowAnswersTheLastButton()
    {
        auto window = std::make_unique<QWidget>();
        window->show();
        QApplication::setActiveWindow(window.get());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        MessageBoxPrompter prompter;
        QList<int> answers;
        prompter.present(changeAlert("Web"), [&](int button) { answers << button; });
        prompter.present(changeAlert("Chromium"), [&](int button) { answers << button; });
        QTRY_VERIFY(prompter.box() && prompter.box()->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(visibleBoxes().size(), 1);
        QCOMPARE(prompter.box()->parentWidget(), window.get());
        window.reset();
        QCOMPARE(answers, QList<int>{1});
        QTRY_VERIFY(prompter.box() && prompter.box()->informativeText().contains("Chromium"));
        QTest::keyClick(prompter.box(), Qt::Key_Return);
        QTRY_COMPARE(answers, QList<int>({1, 0}));
    }
};

QTEST_MAIN(MessageBoxPrompterTest)
#include "tst_messageboxprompter.moc"
