#include "GuardPageRig.h"
#include "Screens.h"
#include "core/i18n/AppLanguage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

using namespace std::chrono_literals;

namespace {

// The page's part of the 700 x 550 settings window, beside the column of tabs.
constexpr QSize pageSize(550, 550);

// Texts and controls that show less than they need: a label without wrapping narrower than
// its text, a button or picker narrower than its least size.
QStringList clipped(const QWidget *page)
{
    QStringList found;
    for (const QLabel *label : page->findChildren<QLabel *>()) {
        if (label->isVisible() && !label->wordWrap() && label->pixmap().isNull()
            && label->width() < label->sizeHint().width())
            found.append(label->text());
    }
    for (const QWidget *control : page->findChildren<QWidget *>()) {
        const bool sized = qobject_cast<const QAbstractButton *>(control)
                           || qobject_cast<const QComboBox *>(control);
        if (sized && control->isVisible() && control->width() < control->minimumSizeHint().width())
            found.append(control->objectName());
    }
    return found;
}

} // namespace

// Both pages in their states, light and dark, in English, German and Japanese, at their
// size in the settings window: saved for a look, and checked for clipped texts and for a
// horizontal scroll bar.
class GuardPageScreensTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(Screens::hasRealFont(), "no real font: screenshots would show boxes");
        QVERIFY2(QFontDatabase::families().join(u',').contains("CJK"),
                 "no CJK font (fonts-noto-cjk): Japanese would show boxes");
        QDir().mkpath(directory());
    }

    void fitsAtTheWindowSize_data()
    {
        QTest::addColumn<bool>("mail");
        QTest::addColumn<int>("language");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("state");
        const QList<std::pair<const char *, AppLanguage::Value>> languages{
            {"en", AppLanguage::english},
            {"de", AppLanguage::german},
            {"ja", AppLanguage::japanese}};
        for (const bool mail : {false, true})
            for (const auto &[code, language] : languages)
                for (const bool dark : {false, true})
                    for (const char *state : {"set-now", "changing", "default"})
                        QTest::addRow("%s-%s-%s-%s", mail ? "email" : "browser", code,
                                      dark ? "dark" : "light", state)
                            << mail << int(language) << dark << QString::fromLatin1(state);
    }
    void fitsAtTheWindowSize()
    {
        QFETCH(bool, mail);
        QFETCH(int, language);
        QFETCH(bool, dark);
        QFETCH(QString, state);
        GuardPageRig rig;
        rig.language.setCurrentLanguage(AppLanguage(AppLanguage::Value(language)));
        rig.timers.fire(50ms);
        HandlerGuard &guard = mail ? static_cast<HandlerGuard &>(*rig.email)
                                   : static_cast<HandlerGuard &>(*rig.browser);
        // The longest state of each box: a target, counters with a last change, a snooze.
        const HandlerRecord target =
            state == u"default" ? *guard.currentDefault() : guard.installed().first();
        guard.setTarget(target);
        guard.setChangeCount(3);
        guard.setLastChange(rig.clock.now().addSecs(-2 * 3600));
        guard.snoozeMonitoring();
        if (state == u"changing")
            guard.setDefault(target);

        std::unique_ptr<GuardSettingsView> page;
        if (mail)
            page = std::make_unique<EmailSettingsView>(*rig.email, rig.services());
        else
            page = std::make_unique<BrowserSettingsView>(*rig.browser, rig.services());
        if (dark)
            page->setPalette(Screens::darkPalette());
        page->resize(pageSize);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));

        auto *scroll = page->findChild<QScrollArea *>();
        QVERIFY(!scroll->horizontalScrollBar()->isVisible());
        QTRY_VERIFY2(scroll->widget()->width() <= scroll->viewport()->width(),
                     qPrintable(QStringLiteral("%1 > %2")
                                    .arg(scroll->widget()->width())
                                    .arg(scroll->viewport()->width())));
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QVERIFY(page->grab().save(directory() + u'/' + name + u".png"));
        // The whole column, as it scrolls.
        QVERIFY(scroll->widget()->grab().save(directory() + u'/' + name + u"-full.png"));
        const QStringList cut = clipped(page.get());
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u" | ")));
        if (state == u"changing")
            QTRY_VERIFY(rig.pollTimer(guard));
    }

private:
    static QString directory() { return QCoreApplication::applicationDirPath() + u"/screens"; }
};

QTEST_MAIN(GuardPageScreensTest)
#include "tst_guardpagescreens.moc"
