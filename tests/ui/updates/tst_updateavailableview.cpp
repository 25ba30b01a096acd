#include "ui/InlineMarkdown.h"
#include "ui/UpdateAvailableView.h"
#include "ui/UpdateSheetDialogPresenter.h"

#include "PageChecks.h"
#include "ShellWorld.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace std::chrono_literals;

namespace {

// English texts over fake timers, with the shared language set.
struct Rig : ShellWorld {
    ConsoleCapture console;
    FakeTimerFactory &timers = world.timers;

    std::unique_ptr<UpdateAvailableView> sheet(const QString &version, bool isBrewInstall,
                                               std::function<void()> onDismiss = {})
    {
        auto view = std::make_unique<UpdateAvailableView>(version, isBrewInstall,
                                                          std::move(onDismiss), language, timers);
        view->show();
        return QTest::qWaitForWindowExposed(view.get()) ? std::move(view) : nullptr;
    }
};

// Whether the copy button shows the green tick rather than the grey copy symbol.
bool showsTick(const QToolButton &button)
{
    const QImage image = button.icon().pixmap(32, 32).toImage();
    int balance = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() >= 128)
                balance += pixel.green() > pixel.red() + 60 ? 1 : -1;
        }
    }
    return balance > 0;
}

} // namespace

class UpdateAvailableViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void showsTitleMessageAndButtonOnly()
    {
        Rig rig;
        auto view = rig.sheet(QStringLiteral("2.0"), false);
        QVERIFY(view);
        QVERIFY(PageChecks::saveScreenshot(*view, QStringLiteral("update-sheet-plain")));
        QVERIFY(!view->brewSection());
        QVERIFY(view->findChildren<QToolButton *>().isEmpty());
        QCOMPARE(view->windowTitle(), rig.text("update_available_title"));
        QCOMPARE(view->laterButton()->text(), rig.text("update_later_button"));

        // The English text puts the version in bold; a version that breaks the inline reading
        // shows the formatted text as it is.
        QCOMPARE(view->updateMessage()->textFormat(), Qt::RichText);
        QVERIFY(view->updateMessage()->text().contains(u"font-weight:700;\">2.0</span>"));
        auto odd = rig.sheet(QStringLiteral("2.0\n# beta"), false);
        QCOMPARE(odd->updateMessage()->textFormat(), Qt::PlainText);
        QCOMPARE(odd->updateMessage()->text(),
                 rig.language.localizedFormat("update_available_message", {"2.0\n# beta"}));
    }

    void copiesTheHomebrewCommand()
    {
        Rig rig;
        auto view = rig.sheet(QStringLiteral("2.0"), true);
        QVERIFY(view && view->brewSection());
        QVERIFY(PageChecks::saveScreenshot(*view, QStringLiteral("update-sheet-brew")));
        auto *command = view->brewSection()->findChild<QLabel *>(QStringLiteral("brewCommand"));
        QCOMPARE(command->text(), QStringLiteral("brew upgrade vandorel"));
        QVERIFY(command->textInteractionFlags() & Qt::TextSelectableByMouse);
        QVERIFY(!showsTick(*view->copyButton()));

        QClipboard *clipboard = QGuiApplication::clipboard();
        auto *previous = new QMimeData;
        previous->setHtml(QStringLiteral("<b>old</b>"));
        clipboard->setMimeData(previous);
        QTest::mouseClick(view->copyButton(), Qt::LeftButton);
        QCOMPARE(clipboard->mimeData()->formats(), QStringList{"text/plain"});
        QCOMPARE(clipboard->text(), QStringLiteral("brew upgrade vandorel"));
        QVERIFY(view->isCopied() && showsTick(*view->copyButton()));
        QVERIFY(PageChecks::saveScreenshot(*view, QStringLiteral("update-sheet-brew-copied")));

        // The tick clears two seconds after the first click, whatever came after it.
        view->copyBrewCommand();
        const QList<FakeTimer *> clearings = rig.timers.activeWithInterval(2s);
        QCOMPARE(clearings.size(), 2);
        clearings[0]->fire();
        QVERIFY(!view->isCopied() && !showsTick(*view->copyButton()));
        QCOMPARE(clearings[1]->starts(), 1); // the second clearing is neither restarted nor dropped
        QVERIFY(clearings[1]->isActive());
    }

    void escapeAndTheButtonDismiss()
    {
        Rig rig;
        for (bool byEscape : {true, false}) {
            auto view = rig.sheet(QStringLiteral("2.0"), true);
            byEscape ? QTest::keyClick(view.get(), Qt::Key_Escape)
                     : QTest::mouseClick(view->laterButton(), Qt::LeftButton);
            QVERIFY(!view->isVisible());
            QCOMPARE(view->result(), int(QDialog::Rejected));
        }

        // A given dismissal action replaces the closing.
        int dismissals = 0;
        auto view = rig.sheet(QStringLiteral("2.0"), false, [&dismissals] { ++dismissals; });
        QTest::mouseClick(view->laterButton(), Qt::LeftButton);
        QTest::keyClick(view.get(), Qt::Key_Escape);
        QCOMPARE(dismissals, 2);
        QVERIFY(view->isVisible());
    }

    void readsOnlyInlineMarkdown()
    {
        const auto rich = [](const QString &markdown) {
            const auto text = InlineMarkdown::toRichText(markdown, QApplication::font());
            return text.value_or(u"refused"_qs);
        };
        QVERIFY(rich("<b>2.0</b>").contains(u"&lt;b&gt;2.0&lt;/b&gt;"));
        for (const char *block : {"# 2.0", "1. 2.0", "Vandorel\n2.0"})
            QCOMPARE(rich(block), u"refused"_qs);
    }

    void aNewerFindingReplacesTheSheet()
    {
        Rig rig;
        UpdateSheetDialogPresenter presenter;
        presenter.presentUpdateAvailable(QStringLiteral("2.0"), false);
        QPointer<UpdateAvailableView> first = presenter.sheet();
        QVERIFY(first && first->isVisible() && !first->brewSection());
        presenter.presentUpdateAvailable(QStringLiteral("2.1"), true);
        QTRY_VERIFY(!first);
        QCOMPARE(presenter.sheet()->version(), QStringLiteral("2.1"));
        QVERIFY(presenter.sheet()->brewSection());
    }
};

QTEST_MAIN(UpdateAvailableViewTest)
#include "tst_updateavailableview.moc"
