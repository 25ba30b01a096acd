#include "ShellWorld.h"
#include "ui/Appearance.h"
#include "ui/Colours.h"
#include "ui/panel/MenuBarView.h"
#include "ui/panel/PanelMenu.h"
#include "ui/panel/PanelPopup.h"
#include "ui/panel/PanelRow.h"

#include "PageChecks.h"

#include <QAccessible>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocumentFragment>

using Mode = ShellWorld::Mode;
Q_DECLARE_METATYPE(ShellWorld::Mode)

// The tray panel: the status rows' tables, what the rows show in each state and language,
// where their clicks lead, the same rows as the icon's menu, and where the panel opens.
class PanelTest : public QObject {
    Q_OBJECT

    // The visible texts of a status row, top to bottom.
    static QStringList texts(PanelRow *row)
    {
        QStringList lines;
        const auto labels = row->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->isVisibleTo(row) && !label->text().isEmpty())
                lines << QTextDocumentFragment::fromHtml(label->text()).toPlainText();
        }
        return lines;
    }
    // The colours of the status line's texts, in order.
    static QList<QColor> lineColours(PanelRow *row)
    {
        QList<QColor> colours;
        const auto labels = row->findChildren<QLabel *>();
        static const QRegularExpression colour(QStringLiteral("color:(#[0-9a-f]{8})"));
        for (QLabel *label : labels) {
            for (auto it = colour.globalMatch(label->text()); it.hasNext();)
                colours << QColor(it.next().captured(1));
        }
        return colours;
    }
    // The colour in the middle of the row's shield.
    static QColor shieldColour(PanelRow *row)
    {
        const QImage image = row->findChildren<QLabel *>().first()->pixmap().toImage();
        return image.pixelColor(image.width() / 2, image.height() / 8);
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setApplicationDisplayName(QStringLiteral("Vandorel")); }

    // A protected row keeps its check mark through a mismatch (the colour tells it, below);
    // the tray icon is the one that changes shape.
    void aRowsShieldShowsOnlyWhetherItIsProtected()
    {
        QCOMPARE(StatusRowState::getIconName(true, true), "checkmark.shield.fill");
        QCOMPARE(StatusRowState::getIconName(false, true), "xmark.shield.fill");
    }

    void rowsInEachState_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<QStringList>("browserTexts");
        QTest::addColumn<QList<QColor>>("colours");
        QTest::addColumn<QColor>("shield");
        const QColor secondary = QPalette().color(QPalette::PlaceholderText);
        QTest::newRow("protected")
            << Mode::protected_ << QStringList{"Default browser", "Firefox", "Protected"}
            << QList<QColor>{StateColour::green} << StateColour::green;
        QTest::newRow("mismatch") << Mode::mismatch
                                  << QStringList{"Default browser", "Firefox", "Should be Chromium",
                                                 "Mismatch ・ Protected"}
                                  << QList<QColor>{StateColour::orange, secondary,
                                                   StateColour::green}
                                  << StateColour::orange;
        QTest::newRow("off") << Mode::notProtected
                             << QStringList{"Default browser", "Firefox", "Not protected"}
                             << QList<QColor>{StateColour::red} << StateColour::red;
        QTest::newRow("off, mismatch")
            << Mode::notProtectedMismatch
            << QStringList{"Default browser", "Firefox", "Should be Chromium",
                           "Not protected ・ Mismatch"}
            << QList<QColor>{StateColour::red, secondary, StateColour::orange} << StateColour::red;
    }
    void rowsInEachState()
    {
        QFETCH(Mode, mode);
        ShellWorld shell;
        shell.setBrowser(Mode::protected_);
        MenuBarView view(shell.env);
        view.show();
        // The panel follows the guard as it changes.
        shell.setBrowser(mode);
        QTEST(texts(view.browserRow()), "browserTexts");
        QTEST(lineColours(view.browserRow()), "colours");
        QTEST(shieldColour(view.browserRow()), "shield");
        QCOMPARE(view.width(), MenuBarView::panelWidth);
        QCOMPARE(view.browserRow()->y(), MenuBarView::verticalMargin);
        QVERIFY(PageChecks::saveScreenshot(
            view, u"panel-" + QString(QTest::currentDataTag()).replace(", ", "-")));
    }

    void aRowWithoutCurrentDefaultOrTarget()
    {
        ShellWorld shell;
        shell.world.handlers.setHandlers("mailto", {});
        shell.email.updateCurrentDefault();
        shell.setEmail(Mode::mismatch);
        MenuBarView view(shell.env);
        // No current default: "None", and no mismatch though a target is set.
        QCOMPARE(texts(view.emailRow()), QStringList({"Default mail client", "None", "Protected"}));
        // A current default with no target: no mismatch either.
        shell.world.mailDefault("thunderbird");
        shell.email.setTargetDefaultEmailClient(std::nullopt);
        shell.email.updateCurrentDefault();
        QCOMPARE(texts(view.emailRow()),
                 QStringList({"Default mail client", "Thunderbird", "Protected"}));
    }

    void nothingIsCutInTheLanguageWithTheLongestTexts()
    {
        ShellWorld shell;
        shell.setBrowser(Mode::notProtectedMismatch);
        shell.setEmail(Mode::mismatch);
        const AppLanguage longest = PageChecks::longestLanguage(
            {"status_default_browser", "status_default_email", "status_should_be %@",
             "status_not_protected", "status_mismatch", "menu_settings", "feedback_title",
             "menu_about", "menu_quit"});
        shell.switchLanguage(longest);
        MenuBarView view(shell.env);
        view.show();
        const QStringList clipped = PageChecks::clippedTexts(view);
        QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(u" | ")));
        QCOMPARE(view.width(), MenuBarView::panelWidth);
        QVERIFY(PageChecks::saveScreenshot(view, u"panel-longest-" + longest.code()));
        view.setPalette(Appearance::darkPalette());
        QVERIFY(PageChecks::saveScreenshot(view, u"panel-longest-dark-" + longest.code()));
    }

    void rowsLeadToTheirPlaces()
    {
        ShellWorld shell;
        MenuBarView view(shell.env);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QList<PanelRow *> commands = view.commandRows();
        QCOMPARE(commands.size(), 4);
        QStringList names;
        for (PanelRow *row : commands) {
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(row);
            QCOMPARE(accessible->role(), QAccessible::Button);
            names << accessible->text(QAccessible::Name);
            QCOMPARE(row->cursor().shape(), Qt::PointingHandCursor);
        }
        QCOMPARE(names, QStringList({"Settings Ctrl+,", "Send feedback", "About", "Quit Ctrl+Q"}));
        QCOMPARE(QAccessible::queryAccessibleInterface(view.emailRow())->text(QAccessible::Name),
                 QString("Default mail client: Thunderbird — Protected"));

        // A click anywhere in a row, also on its texts, takes it: the tab it asks for.
        const auto tabOf = [](PanelRow *row, QPoint at) {
            QTest::mouseClick(row, Qt::LeftButton, Qt::NoModifier, at);
            return qgetenv(WindowRouter::openTabVariable);
        };
        QCOMPARE(tabOf(view.emailRow(), QPoint(view.emailRow()->width() - 3, 3)), "email");
        QCOMPARE(tabOf(view.browserRow(), view.browserRow()->rect().center()), "browser");
        QCOMPARE(tabOf(commands.at(1), QPoint(5, 5)), "feedback");
        QCOMPARE(tabOf(commands.at(0), QPoint(5, 5)), "general");
        tabOf(commands.at(2), QPoint(5, 5));
        QCOMPARE(shell.openedWindows,
                 QStringList({"settings", "settings", "settings", "settings", "about"}));
        shell.world.timers.fire(WindowRouter::openTabLifetime);
    }

    void theIconsMenuHasTheSameRows()
    {
        ShellWorld shell;
        shell.setBrowser(Mode::mismatch);
        shell.setEmail(Mode::notProtected);
        PanelMenu menu(shell.env);
        QStringList texts;
        QList<bool> enabled;
        for (QAction *action : menu.actions()) {
            texts << action->text();
            enabled << action->isEnabled();
        }
        QCOMPARE(texts,
                 QStringList({"Default browser: Firefox, Should be Chromium — "
                              "Mismatch ・ Protected",
                              "Default mail client: Thunderbird — Not protected", "",
                              "Settings\tCtrl+,", "Send feedback", "About", "", "Quit\tCtrl+Q"}));
        QCOMPARE(enabled.mid(0, 2), QList<bool>({false, false}));
        shell.setEmail(Mode::protected_);
        QCOMPARE(menu.emailEntry()->text(),
                 QString("Default mail client: Thunderbird — Protected"));
        menu.actions().at(5)->trigger();
        QCOMPARE(shell.openedWindows, QStringList("about"));

        // An "&" in a name shows as it is, and takes no key.
        shell.world.handlers.install("fire-ice", QStringLiteral("Fire & Ice"));
        shell.world.browsersDefault("fire-ice");
        shell.browser.updateCurrentDefaultBrowser();
        QVERIFY(menu.browserEntry()->text().startsWith(u"Default browser: Fire && Ice,"));
    }

    void wherePanelOpens()
    {
        const QSize panel(280, 300);
        const QRect screen(0, 0, 1280, 800);
        struct Row {
            QRect icon;
            QPoint pointer;
            QPoint corner;
        };
        const QList<Row> rows = {
            // Under an icon at the top, centred on it.
            {QRect(600, 0, 32, 32), {}, QPoint(475, 32)},
            // Kept inside the screen at its right edge.
            {QRect(1248, 0, 32, 32), {}, QPoint(1000, 32)},
            // Above an icon at the bottom.
            {QRect(10, 776, 24, 24), {}, QPoint(0, 476)},
            // No icon geometry: at the pointer, above it in the lower half.
            {QRect(), QPoint(300, 100), QPoint(300, 100)},
            {QRect(), QPoint(1200, 790), QPoint(1000, 490)},
        };
        for (const Row &row : rows)
            QCOMPARE(PanelPopup::placement(panel, row.icon, row.pointer, screen), row.corner);
    }
};

QTEST_MAIN(PanelTest)
#include "tst_panel.moc"
