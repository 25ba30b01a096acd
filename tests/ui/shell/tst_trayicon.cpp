#include "ShellWorld.h"
#include "core/settings/SettingsTable.h"
#include "ui/Appearance.h"
#include "ui/Colours.h"
#include "ui/SymbolTable.h"
#include "ui/tray/ShieldIcon.h"
#include "ui/tray/TrayIcon.h"

#include <QApplication>
#include <QPainter>
#include <QTest>

using Mode = ShellWorld::Mode;
Q_DECLARE_METATYPE(ShellWorld::Mode)
Q_DECLARE_METATYPE(ProtectionStatus)

// The tray icon: the status of each guard and of both, the picture of a status in both
// forms at every size, and what makes it drawn again.
class TrayIconTest : public QObject {
    Q_OBJECT

    static QColor solidColour(const QIcon &icon)
    {
        const QImage image = icon.pixmap(48).toImage();
        return image.pixelColor(image.width() / 2, image.height() / 8);
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setApplicationDisplayName(QStringLiteral("Vandorel")); }

    void statusOfEachGuardAndOfBoth_data()
    {
        QTest::addColumn<Mode>("browser");
        QTest::addColumn<Mode>("email");
        QTest::addColumn<ProtectionStatus>("overall");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QColor>("colour");
        using P = ProtectionStatus;
        const QString check = "checkmark.shield.fill", cross = "xmark.shield.fill",
                      warn = "exclamationmark.shield.fill";
        QTest::newRow("both protected")
            << Mode::protected_ << Mode::protected_ << P::protected_ << check << StateColour::green;
        QTest::newRow("one mismatch")
            << Mode::protected_ << Mode::mismatch << P::mismatch << warn << StateColour::orange;
        QTest::newRow("mismatch and off")
            << Mode::mismatch << Mode::notProtected << P::notProtected << cross << StateColour::red;
        QTest::newRow("off with mismatch") << Mode::notProtectedMismatch << Mode::protected_
                                           << P::notProtected << cross << StateColour::red;
    }
    void statusOfEachGuardAndOfBoth()
    {
        QFETCH(Mode, browser);
        QFETCH(Mode, email);
        ShellWorld shell;
        shell.setBrowser(browser);
        shell.setEmail(email);
        TrayIcon icon(shell.browser, shell.email, shell.language, shell.world.settings.store());
        const auto single = [](Mode mode) {
            return mode == Mode::protected_ ? ProtectionStatus::protected_
                   : mode == Mode::mismatch ? ProtectionStatus::mismatch
                                            : ProtectionStatus::notProtected;
        };
        QCOMPARE(icon.getBrowserStatus(), single(browser));
        QCOMPARE(icon.getEmailStatus(), single(email));
        QTEST(icon.getOverallStatus(), "overall");
        QTEST(icon.menuBarIcon(), "symbol");
        QTEST(icon.menuBarIconColor(), "colour");
    }

    // Each size of the icon is drawn for its pixels, never scaled from another.
    void colouredIconIsTheTintedSymbolAtEverySize()
    {
        for (const char *name :
             {"checkmark.shield.fill", "xmark.shield.fill", "exclamationmark.shield.fill"}) {
            const QString symbol = QString::fromLatin1(name);
            const QIcon icon = ShieldIcon::make(symbol, StateColour::orange);
            for (int size : ShieldIcon::sizes()) {
                for (qreal ratio : {1.0, 2.0}) {
                    const int pixels = qRound(size * ratio);
                    const QImage image = icon.pixmap(QSize(size, size), ratio).toImage();
                    QCOMPARE(image.size(), QSize(pixels, pixels));
                    QVERIFY2(
                        image == SymbolTable::tinted(symbol, StateColour::orange, pixels).toImage(),
                        qPrintable(symbol + u' ' + QString::number(pixels)));
                }
            }
        }
        // A symbol without a picture stands as the plain shield.
        QVERIFY(ShieldIcon::make(QStringLiteral("no.such.shield"), StateColour::red)
                    .pixmap(22)
                    .toImage()
                == SymbolTable::tinted(QStringLiteral("shield"), StateColour::red, 22).toImage());
    }

    void drawnAgainOnEveryChangeThatShows()
    {
        ShellWorld shell;
        shell.setBrowser(Mode::protected_);
        shell.setEmail(Mode::protected_);
        SettingsStore &settings = shell.world.settings.store();
        TrayIcon icon(shell.browser, shell.email, shell.language, settings);
        QSystemTrayIcon &tray = icon.systemTrayIcon();
        QCOMPARE(solidColour(tray.icon()), QApplication::palette().color(QPalette::WindowText));

        // The coloured form at once, without a check.
        ConsoleCapture console;
        settings.setBool(SettingsTable::showColoredMenuBarIcon.key(), true);
        QCOMPARE(solidColour(tray.icon()), StateColour::green);
        QVERIFY(console.lines().isEmpty());

        shell.setEmail(Mode::mismatch);
        QCOMPARE(solidColour(tray.icon()), StateColour::orange);
        QCOMPARE(tray.toolTip(), QString("Vandorel\nDefault browser: Protected\n"
                                         "Default mail client: Mismatch"));
        shell.switchLanguage(AppLanguage::german);
        QVERIFY(!tray.toolTip().contains(u"Default"));
        QVERIFY(tray.toolTip().startsWith(u"Vandorel\n"));

        // The plain form follows the palette.
        settings.setBool(SettingsTable::showColoredMenuBarIcon.key(), false);
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::WindowText, QColor(250, 250, 250));
        QApplication::setPalette(palette);
        QCOMPARE(solidColour(tray.icon()), QColor(250, 250, 250));
        // A look chosen in the program stays off the desktop's tray.
        Appearance::apply(AppearanceMode::dark);
        QCOMPARE(solidColour(tray.icon()), QColor(250, 250, 250));
        Appearance::apply(AppearanceMode::system);
        QApplication::setPalette(QPalette());
    }

    void saysOnceWhereThereIsNoTray()
    {
        ShellWorld shell;
        TrayIcon icon(shell.browser, shell.email, shell.language, shell.world.settings.store());
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        ConsoleCapture console;
        icon.show();
        QCOMPARE(console.lines(),
                 QStringList("⚠️ No system tray found: the icon will appear when one starts. "
                             "Open the settings with: xdg-open vandorel://settings"));
    }

    void shieldsForThePeople()
    {
        // Every status in both forms, at 22 and 44 pixels, on light and dark.
        QImage strip(6 * 56, 2 * 56, QImage::Format_ARGB32);
        strip.fill(Qt::transparent);
        QPainter painter(&strip);
        int column = 0;
        for (ProtectionStatus status : {ProtectionStatus::protected_, ProtectionStatus::mismatch,
                                        ProtectionStatus::notProtected}) {
            for (const QColor &colour : {ShieldIcon::colourFor(status), QColor(Qt::black)}) {
                for (int row = 0; row < 2; ++row) {
                    const QRect cell(column * 56, row * 56, 56, 56);
                    painter.fillRect(cell, row == 0 ? QColor(240, 240, 240) : QColor(40, 40, 40));
                    const QColor ink = colour == Qt::black && row == 1 ? QColor(Qt::white) : colour;
                    painter.drawPixmap(
                        cell.topLeft() + QPoint(6, 6),
                        ShieldIcon::make(ShieldIcon::symbolFor(status), ink).pixmap(44));
                }
                ++column;
            }
        }
        painter.end();
        QVERIFY(strip.save(QCoreApplication::applicationDirPath() + u"/tray-icons.png"));
    }
};

QTEST_MAIN(TrayIconTest)
#include "tst_trayicon.moc"
