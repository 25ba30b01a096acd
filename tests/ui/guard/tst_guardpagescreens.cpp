#include "GuardPageRig.h"
#include "PageChecks.h"
#include "core/i18n/AppLanguage.h"
#include "core/settings/AppearanceMode.h"
#include "ui/Appearance.h"
#include "ui/settings/SettingsView.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QScrollArea>
#include <QScrollBar>

using namespace std::chrono_literals;

namespace {

// Texts that show less than they need, and pickers narrower than their least size.
QStringList clipped(const QWidget &page)
{
    QStringList found = PageChecks::clippedTexts(page);
    for (const QComboBox *picker : page.findChildren<QComboBox *>())
        if (picker->isVisibleTo(&page) && picker->width() < picker->minimumSizeHint().width())
            found.append(picker->objectName());
    return found;
}

} // namespace

// Both pages inside the settings window, in each state of the target box, in every
// language: the column fits the page's width (it scrolls only vertically) and no text is
// cut. English, German and Japanese are saved in the light and the dark look.
class GuardPageScreensTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(PageChecks::hasRealFont(), "no real font: screenshots would show boxes");
        QVERIFY2(QFontDatabase::families().join(u',').contains("CJK"),
                 "no CJK font (fonts-noto-cjk): Japanese would show boxes");
    }
    void cleanup() { Appearance::apply(AppearanceMode::system); }

    void fitsInTheSettingsWindow_data()
    {
        QTest::addColumn<bool>("mail");
        QTest::addColumn<AppLanguage>("language");
        QTest::addColumn<QString>("state");
        for (const bool mail : {false, true})
            for (const AppLanguage language : AppLanguage::allCases())
                for (const char *state : {"set-now", "changing", "default"})
                    QTest::addRow("%s-%s-%s", mail ? "email" : "browser",
                                  qPrintable(language.code()), state)
                        << mail << language << QString::fromLatin1(state);
    }
    void fitsInTheSettingsWindow()
    {
        QFETCH(bool, mail);
        QFETCH(AppLanguage, language);
        QFETCH(QString, state);
        GuardPageRig rig;
        rig.language.setCurrentLanguage(language);
        rig.world.timers.fire(50ms);
        HandlerGuard &guard = mail ? static_cast<HandlerGuard &>(rig.email)
                                   : static_cast<HandlerGuard &>(rig.browser);
        // The longest state of each box: a target, counters with a last change, a snooze.
        const HandlerRecord target =
            state == u"default" ? *guard.currentDefault() : guard.installed().first();
        guard.setTarget(target);
        guard.setChangeCount(3);
        guard.setLastChange(rig.world.clock.now().addSecs(-2 * 3600));
        guard.snoozeMonitoring();
        if (state == u"changing")
            guard.setDefault(target);

        SettingsView view(rig.env);
        view.setSelectedTab(QLatin1String(mail ? "email" : "browser"));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        auto *page = qobject_cast<GuardSettingsView *>(view.page());
        QVERIFY(mail ? qobject_cast<EmailSettingsView *>(page) != nullptr
                     : qobject_cast<BrowserSettingsView *>(page) != nullptr);
        QCOMPARE(page->size(), QSize(SettingsView::viewWidth - SettingsView::tabColumnWidth - 1,
                                     SettingsView::viewHeight));

        const auto *scroll = page->findChild<QScrollArea *>();
        settle();
        QVERIFY(!scroll->horizontalScrollBar()->isVisible());
        QVERIFY2(scroll->widget()->width() <= scroll->viewport()->width(),
                 qPrintable(QStringLiteral("%1 > %2")
                                .arg(scroll->widget()->width())
                                .arg(scroll->viewport()->width())));
        const QStringList cut = clipped(*page);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u" | ")));

        if (language == AppLanguage::english || language == AppLanguage::german
            || language == AppLanguage::japanese) {
            for (const AppearanceMode look : {AppearanceMode::light, AppearanceMode::dark}) {
                Appearance::apply(look);
                settle();
                const QString name =
                    QString::fromLatin1(QTest::currentDataTag()) + u'-' + look.rawValue();
                QVERIFY(PageChecks::saveScreenshot(view, name));
                // The whole column, as it scrolls.
                QVERIFY(PageChecks::saveScreenshot(*scroll->widget(), name + u"-full"));
            }
        }
        if (state == u"changing")
            QTRY_VERIFY(rig.pollTimer(guard));
    }
};

QTEST_MAIN(GuardPageScreensTest)
#include "tst_guardpagescreens.moc"
