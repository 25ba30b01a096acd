#include "core/i18n/LanguageManager.h"
#include "ui/InlineMarkdown.h"
#include "ui/UpdateAvailableView.h"
#include "ui/UpdateDialogPresenter.h"

#include "ConsoleCapture.h"
#include "FakeTimerFactory.h"
#include "TempSettings.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace std::chrono_literals;

namespace {

// English texts, fake timers, and a private store behind the shared objects.
class Rig {
public:
    Rig()
        : language(settings.store(), timers, {}) {
        SettingsStore::setStandard(&settings.store());
        LanguageManager::setShared(&language);
    }
    ~Rig() {
        LanguageManager::setShared(nullptr);
        SettingsStore::setStandard(nullptr);
    }

    std::unique_ptr<UpdateAvailableView> sheet(const QString &version, bool isBrewInstall,
                                               std::function<void()> onDismiss = {}) {
        auto view = std::make_unique<UpdateAvailableView>(version, isBrewInstall,
                                                          std::move(onDismiss), language, timers);
        view->show();
        if (!QTest::qWaitForWindowExposed(view.get()))
            return nullptr;
        return view;
    }

    ConsoleCapture console;
    TempSettings settings;
    FakeTimerFactory timers;
    LanguageManager language;
};

// Whether the icon is drawn mostly in green (the tick) rather than grey (the copy symbol).
bool showsTick(const QToolButton &button) {
    const QImage image = button.icon().pixmap(32, 32).toImage();
    int green = 0;
    int other = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 128)
                continue;
            (pixel.green() > pixel.red() + 60 ? green : other)++;
        }
    }
    return green > other;
}

void saveScreenshot(QWidget &widget, const QString &name) {
    const QString path = u"/tmp/" + name + u".png";
    QVERIFY2(widget.grab().save(path), qPrintable(path));
}

} // namespace

class UpdateAvailableViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void showsSymbolTitleMessageAndButton();
    void showsTheHomebrewBlockAndCopiesTheCommand();
    void tickClearsTwoSecondsAfterTheFirstClick();
    void followsALanguageChange();
    void escapeAndTheButtonCloseTheSheet_data();
    void escapeAndTheButtonCloseTheSheet();
    void onDismissReplacesClosing();
    void readsOnlyInlineMarkdown_data();
    void readsOnlyInlineMarkdown();
    void presenterShowsOneSheetAndTheUpToDateMessage();
};

void UpdateAvailableViewTest::showsSymbolTitleMessageAndButton() {
    Rig rig;
    auto view = rig.sheet(QStringLiteral("2.0"), false);
    QVERIFY(view);
    saveScreenshot(*view, QStringLiteral("update-sheet-plain"));

    QCOMPARE(view->width(), 440);
    QVERIFY(!view->brewSection());
    QVERIFY(view->findChildren<QToolButton *>().isEmpty());
    QCOMPARE(view->laterButton()->text(), rig.language.localizedString("update_later_button"));
    QVERIFY(view->findChildren<QLabel *>().size() >= 3); // symbol, title, message
    const QString expectedTitle = rig.language.localizedString("update_available_title");
    QVERIFY(!view->findChildren<QLabel *>(Qt::FindDirectChildrenOnly).isEmpty());
    bool titleFound = false;
    for (const QLabel *label : view->findChildren<QLabel *>())
        titleFound |= label->text() == expectedTitle && label->font().bold();
    QVERIFY(titleFound);

    // The English text puts the version in bold.
    QVERIFY(rig.language.localizedString("update_available_message").contains(u"**%@**"));
    QLabel *message = view->updateMessage();
    QCOMPARE(message->textFormat(), Qt::RichText);
    QVERIFY(message->text().contains(u"font-weight:700;\">2.0</span>"));
    QVERIFY(!message->text().contains(u"**"));

    // A version that breaks the inline reading shows as plain text.
    auto odd = rig.sheet(QStringLiteral("2.0\n# beta"), false);
    QCOMPARE(odd->updateMessage()->textFormat(), Qt::PlainText);
    QCOMPARE(odd->updateMessage()->text(),
             rig.language.localizedFormat("update_available_message", {"2.0\n# beta"}));
}

void UpdateAvailableViewTest::showsTheHomebrewBlockAndCopiesTheCommand() {
    Rig rig;
    auto view = rig.sheet(QStringLiteral("2.0"), true);
    QVERIFY(view);
    saveScreenshot(*view, QStringLiteral("update-sheet-brew"));

    QVERIFY(view->brewSection());
    auto *command = view->brewSection()->findChild<QLabel *>(QStringLiteral("brewCommand"));
    QVERIFY(command);
    QCOMPARE(command->text(), QStringLiteral("brew upgrade vandorel"));
    QVERIFY(command->textInteractionFlags() & Qt::TextSelectableByMouse);
    QVERIFY(command->font().fixedPitch() || QFontInfo(command->font()).fixedPitch());
    QCOMPARE(view->copyButton()->toolTip(), rig.language.localizedString("update_copy_command"));
    QVERIFY(!showsTick(*view->copyButton()));

    QClipboard *clipboard = QGuiApplication::clipboard();
    auto *previous = new QMimeData;
    previous->setHtml(QStringLiteral("<b>old</b>"));
    clipboard->setMimeData(previous);

    QTest::mouseClick(view->copyButton(), Qt::LeftButton);
    QCOMPARE(clipboard->text(), QStringLiteral("brew upgrade vandorel"));
    QVERIFY(!clipboard->mimeData()->hasHtml());
    QVERIFY(view->isCopied());
    QVERIFY(showsTick(*view->copyButton()));
    saveScreenshot(*view, QStringLiteral("update-sheet-brew-copied"));
}

void UpdateAvailableViewTest::tickClearsTwoSecondsAfterTheFirstClick() {
    Rig rig;
    auto view = rig.sheet(QStringLiteral("2.0"), true);
    QVERIFY(view);
    view->copyBrewCommand();
    view->copyBrewCommand();
    const QList<FakeTimer *> clearings = rig.timers.activeWithInterval(2s);
    QCOMPARE(clearings.size(), 2);

    clearings[0]->fire();
    QVERIFY(!view->isCopied());
    QVERIFY(!showsTick(*view->copyButton()));
    QVERIFY(clearings[1]->isActive()); // the second clearing is not restarted or dropped
    QCOMPARE(clearings[1]->starts(), 1);
    clearings[1]->fire();
    QVERIFY(!view->isCopied());
}

void UpdateAvailableViewTest::followsALanguageChange() {
    Rig rig;
    auto view = rig.sheet(QStringLiteral("2.0"), true);
    QVERIFY(view);
    // Marks that only a fresh lookup replaces; the tables themselves may still agree.
    view->laterButton()->setText(QStringLiteral("stale"));
    view->copyButton()->setToolTip(QStringLiteral("stale"));
    rig.language.setCurrentLanguage(AppLanguage::german);
    QCOMPARE(view->laterButton()->text(), QStringLiteral("stale"));
    rig.timers.fire(50ms);
    QCOMPARE(view->laterButton()->text(), rig.language.localizedString("update_later_button"));
    QCOMPARE(view->copyButton()->toolTip(), rig.language.localizedString("update_copy_command"));
    QVERIFY(view->updateMessage()->text().contains(u"2.0"));
}

void UpdateAvailableViewTest::escapeAndTheButtonCloseTheSheet_data() {
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("escape") << true;
    QTest::newRow("later button") << false;
}

void UpdateAvailableViewTest::escapeAndTheButtonCloseTheSheet() {
    QFETCH(bool, byEscape);
    Rig rig;
    auto view = rig.sheet(QStringLiteral("2.0"), true);
    QVERIFY(view);
    QSignalSpy rejected(view.get(), &QDialog::rejected);
    if (byEscape)
        QTest::keyClick(view.get(), Qt::Key_Escape);
    else
        QTest::mouseClick(view->laterButton(), Qt::LeftButton);
    QVERIFY(!view->isVisible());
    QCOMPARE(rejected.size(), 1);
}

void UpdateAvailableViewTest::onDismissReplacesClosing() {
    Rig rig;
    int dismissals = 0;
    auto view = rig.sheet(QStringLiteral("2.0"), false, [&dismissals] { ++dismissals; });
    QVERIFY(view);
    QTest::mouseClick(view->laterButton(), Qt::LeftButton);
    QTest::keyClick(view.get(), Qt::Key_Escape);
    QCOMPARE(dismissals, 2);
    QVERIFY(view->isVisible());
}

void UpdateAvailableViewTest::readsOnlyInlineMarkdown_data() {
    QTest::addColumn<QString>("markdown");
    QTest::addColumn<QString>("shows"); // a piece of the rich text; empty: refused

    QTest::newRow("strong") << "Vandorel **2.0** is available."
                            << "font-weight:700;\">2.0</span>";
    QTest::newRow("emphasis") << "Version *2.0*"
                              << "font-style:italic;\">2.0</span>";
    QTest::newRow("code span") << "Run `brew`"
                               << ">brew</span>";
    QTest::newRow("plain") << "Version 2.0 is out."
                           << "Version 2.0 is out.";
    QTest::newRow("html stays text") << "<b>2.0</b>"
                                     << "&lt;b&gt;2.0&lt;/b&gt;";
    QTest::newRow("heading") << "# 2.0"
                             << "";
    QTest::newRow("list") << "- 2.0"
                          << "";
    QTest::newRow("ordered list") << "1. 2.0"
                                  << "";
    QTest::newRow("quote") << "> 2.0"
                           << "";
    QTest::newRow("indented code") << "    2.0"
                                   << "";
    QTest::newRow("rule") << "---"
                          << "";
    QTest::newRow("line break") << "Vandorel\n2.0"
                                << "";
    QTest::newRow("two paragraphs") << "a\r\n\r\nb"
                                    << "";
}

void UpdateAvailableViewTest::readsOnlyInlineMarkdown() {
    QFETCH(QString, markdown);
    QFETCH(QString, shows);
    const std::optional<QString> rich = InlineMarkdown::toRichText(markdown, QApplication::font());
    QCOMPARE(rich.has_value(), !shows.isEmpty());
    if (rich)
        QVERIFY2(rich->contains(shows), qPrintable(*rich));
}

void UpdateAvailableViewTest::presenterShowsOneSheetAndTheUpToDateMessage() {
    Rig rig;
    UpdateDialogPresenter presenter;
    presenter.presentUpdateAvailable(QStringLiteral("2.0"), false);
    QPointer<UpdateAvailableView> first = presenter.sheet();
    QVERIFY(first && first->isVisible());
    QCOMPARE(first->version(), QStringLiteral("2.0"));
    QVERIFY(!first->brewSection());

    presenter.presentUpdateAvailable(QStringLiteral("2.1"), true);
    QTRY_VERIFY(!first);
    QCOMPARE(presenter.sheet()->version(), QStringLiteral("2.1"));
    QVERIFY(presenter.sheet()->brewSection());

    presenter.presentNoUpdate();
    QMessageBox *box = presenter.noUpdateMessage();
    QVERIFY(box && box->isVisible());
    QCOMPARE(box->text(), rig.language.localizedString("update_no_updates_title"));
    QCOMPARE(box->informativeText(), rig.language.localizedString("update_no_updates_message"));
    QCOMPARE(box->buttons().size(), 1);
    QCOMPARE(box->buttons()[0]->text(), rig.language.localizedString("general_ok"));
    QVERIFY(QTest::qWaitForWindowExposed(box));
    saveScreenshot(*box, QStringLiteral("update-up-to-date"));
}

QTEST_MAIN(UpdateAvailableViewTest)
#include "tst_updateavailableview.moc"
