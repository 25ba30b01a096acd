#include "core/i18n/LanguageManager.h"
#include "core/settings/SettingsTable.h"
#include "ui/Appearance.h"
#include "ui/feedback/FeedbackView.h"
#include "ui/settings/SettingsView.h"
#include "ui/settings/TabButton.h"

#include "PageChecks.h"
#include "Settle.h"
#include "ShellWorld.h"

#include <QAccessible>
#include <QPointer>
#include <QScrollArea>
#include <QTest>

// The settings window's frame: its fixed size, the tab column, which page shows for which
// selection, and what assistive technology sees of the tabs.
class SettingsViewTest : public QObject {
    Q_OBJECT

    struct Rig {
        ShellWorld shell;
        SettingsView view{shell.env};

        Rig()
        {
            view.show();
            static_cast<void>(QTest::qWaitForWindowExposed(&view));
        }
        QList<SettingsTab> selectedTabs() const
        {
            QList<SettingsTab> selected;
            for (SettingsTab tab : SettingsTab::allCases())
                if (view.tabButton(tab)->isSelected())
                    selected.append(tab);
            return selected;
        }
    };

    static bool close(const QColor &a, const QColor &b)
    {
        return qAbs(a.red() - b.red()) <= 2 && qAbs(a.green() - b.green()) <= 2
               && qAbs(a.blue() - b.blue()) <= 2;
    }

    static QAccessibleInterface *accessible(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(PageChecks::hasRealFont(), "no real font: screenshots would show boxes");
    }

    void frameAndTabs()
    {
        Rig rig;
        QCOMPARE(rig.view.size(), QSize(700, 550));
        QCOMPARE(rig.view.minimumSize(), rig.view.maximumSize());
        QStringList titles;
        int top = -1;
        for (SettingsTab tab : SettingsTab::allCases()) {
            TabButton *button = rig.view.tabButton(tab);
            QCOMPARE(button->width(), SettingsView::tabColumnWidth);
            QVERIFY(button->y() > top);
            top = button->y();
            titles << accessible(button)->text(QAccessible::Name);
            QCOMPARE(accessible(button)->role(), QAccessible::PageTab);
            QCOMPARE(accessible(button)->state().selected, tab == SettingsTab::general);
        }
        QCOMPARE(titles, QStringList({"General", "Browser", "Mail", "Log", "Feedback"}));
        QCOMPARE(rig.view.page()->x(), SettingsView::tabColumnWidth + 1);

        // The selected tab sits on the accent colour at a tenth, over the column's colour.
        const QImage shot = rig.view.grab().toImage();
        const QColor accent = rig.view.palette().color(QPalette::Highlight);
        const QColor base = rig.view.palette().color(QPalette::Base);
        const QColor selected =
            shot.pixelColor(rig.view.tabButton(SettingsTab::general)->pos() + QPoint(3, 3));
        QVERIFY(close(selected, QColor(qRound(0.1 * accent.red() + 0.9 * base.red()),
                                       qRound(0.1 * accent.green() + 0.9 * base.green()),
                                       qRound(0.1 * accent.blue() + 0.9 * base.blue()))));
        QCOMPARE(shot.pixelColor(rig.view.tabButton(SettingsTab::browser)->pos() + QPoint(3, 3)),
                 base);
        QVERIFY(PageChecks::saveScreenshot(rig.view, QStringLiteral("settings-general")));
    }

    void aPageIsMadeWhenItsTabIsSelectedAndDroppedAfter()
    {
        Rig rig;
        QPointer<QWidget> general = rig.view.page();
        QTest::mouseClick(rig.view.tabButton(SettingsTab::feedback), Qt::LeftButton, Qt::NoModifier,
                          QPoint(140, 5));
        QCOMPARE(rig.view.selectedTab(), QString("feedback"));
        QVERIFY(qobject_cast<FeedbackView *>(rig.view.page()));
        QCOMPARE(rig.selectedTabs(), QList<SettingsTab>{SettingsTab::feedback});
        QTRY_VERIFY(!general);
        QVERIFY(rig.view.page()->isVisible());
        QVERIFY(PageChecks::saveScreenshot(rig.view, QStringLiteral("settings-feedback")));

        // The same selection again keeps the page; pressing through the accessible action
        // selects like a click.
        QPointer<QWidget> feedback = rig.view.page();
        rig.view.setSelectedTab(QStringLiteral("feedback"));
        QCOMPARE(rig.view.page(), feedback.data());
        accessible(rig.view.tabButton(SettingsTab::log))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(rig.view.selectedTab(), QString("log"));
        QTRY_VERIFY(!feedback);
    }

    // Every page in its frame, walked by the tabs as a user does, in every language and both
    // looks: no text or tab title is cut, no page scrolls sideways, and only the general page
    // reports that it was seen. The guard pages are seen in each state of their target box
    // (set now, changing, already the default) with counters and a snooze. English, German,
    // Japanese and the language with the longest texts are saved, each page also whole.
    void everyPageInItsFrame_data()
    {
        QTest::addColumn<AppLanguage>("language");
        QTest::addColumn<QString>("look");
        for (const AppLanguage language : AppLanguage::allCases())
            for (const char *look : {"light", "dark"})
                QTest::addRow("%s %s", qPrintable(language.code()), look)
                    << language << QString::fromLatin1(look);
    }

    void everyPageInItsFrame()
    {
        QFETCH(AppLanguage, language);
        QFETCH(QString, look);
        ShellWorld shell;
        shell.world.log.logBrowserChange("Firefox ESR", "Chromium");
        shell.world.log.logEmailChange("Thunderbird", "Evolution Mail and Calendar (Flatpak, "
                                                      "user installation, development snapshot)");
        shell.world.handlers.setKnown(HandlerDatabase::Kind::mailClient, {"evolution"});
        shell.email.refresh();
        for (HandlerGuard *guard : {static_cast<HandlerGuard *>(&shell.browser),
                                    static_cast<HandlerGuard *>(&shell.email)}) {
            guard->setChangeCount(3);
            guard->setLastChange(shell.world.clock.now().addSecs(-2 * 3600));
            guard->snoozeMonitoring();
        }
        shell.switchLanguage(language);
        // The general page applies the stored look when it appears, as in the program.
        shell.env.settings->set(SettingsTable::appearanceMode, look);
        RecordingTelemetry &telemetry = shell.world.telemetry;
        telemetry.take();
        SettingsView view(shell.env);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const AppLanguage longest = PageChecks::longestLanguage(
            {"general_description", "general_feature_1", "general_feature_2", "general_feature_3",
             "general_feature_4", "general_feature_5", "general_reset_update_reminder_snooze",
             "general_support_description", "log_empty_description", "feedback_description"});
        const bool shoot = language == AppLanguage::english || language == AppLanguage::german
                           || language == AppLanguage::japanese || language == longest;
        // What is wrong with the page that shows, as one line; empty if nothing.
        const auto problems = [&](const QString &name) {
            QStringList found = PageChecks::clippedTexts(view);
            for (SettingsTab tab : SettingsTab::allCases())
                if (view.tabButton(tab)->sizeHint().width() > SettingsView::tabColumnWidth)
                    found.append(view.tabButton(tab)->title());
            if ((view.palette().color(QPalette::Window).lightness() < 128) != (look == "dark"))
                found.append(u"not in the " + look + u" look");
            for (QScrollArea *scroll : view.page()->findChildren<QScrollArea *>()) {
                if (scroll->widget()->minimumSizeHint().width() > scroll->viewport()->width())
                    found.append(QStringLiteral("scrolls sideways"));
                if (shoot && !PageChecks::saveScreenshot(*scroll->widget(), name + u"-full"))
                    found.append(QStringLiteral("whole page not saved"));
            }
            if (shoot && !PageChecks::saveScreenshot(view, name))
                found.append(QStringLiteral("not saved"));
            return found.join(u" | ");
        };
        const QList<SettingsTab> walk{SettingsTab::browser, SettingsTab::email, SettingsTab::log,
                                      SettingsTab::feedback, SettingsTab::general};
        for (SettingsTab tab : walk) {
            HandlerGuard *guard = nullptr;
            if (tab == SettingsTab::browser || tab == SettingsTab::email)
                guard = tab == SettingsTab::browser ? static_cast<HandlerGuard *>(&shell.browser)
                                                    : &shell.email;
            // A target that is not the default yet: the page offers to set it now.
            if (guard)
                guard->setTarget(*std::find_if(guard->installed().cbegin(),
                                               guard->installed().cend(),
                                               [&](const HandlerRecord &record) {
                                                   return record != guard->currentDefault();
                                               }));
            QTest::mouseClick(view.tabButton(tab), Qt::LeftButton);
            settle();
            const QStringList states =
                guard ? QStringList{"-set-now", "-changing", "-default"} : QStringList{""};
            for (const QString &state : states) {
                // The change waits on the system until the page has been seen changing.
                if (state == u"-changing") {
                    shell.world.handlers.holdWrites();
                    guard->setDefault(*guard->target());
                    shell.world.handlers.waitUntilWriting();
                } else if (state == u"-default") {
                    shell.world.handlers.releaseWrites();
                    QVERIFY(QTest::qWaitFor([&] {
                        shell.world.poll();
                        return !guard->isChanging();
                    }));
                }
                const QString name =
                    u"settings-" + language.code() + u'-' + look + u'-' + tab.rawValue() + state;
                const QString found = problems(name);
                QVERIFY2(found.isEmpty(), qPrintable(name + u": " + found));
            }
        }
        QStringList views = telemetry.calls();
        views.removeIf([](const QString &call) { return !call.startsWith(u"trackScreenView"); });
        QCOMPARE(views, QStringList({"trackScreenView(settings_general)",
                                     "trackScreenView(settings_feedback)",
                                     "trackScreenView(settings_general)"}));
        view.close();
        Appearance::apply(AppearanceMode::system);
    }

    void textThatNamesNoTabShowsTheGeneralPageWithNoTabMarked()
    {
        Rig rig;
        QPointer<QWidget> general = rig.view.page();
        rig.view.setSelectedTab(QStringLiteral("advanced"));
        QCOMPARE(rig.view.selectedTab(), QString("advanced"));
        QVERIFY(rig.selectedTabs().isEmpty());
        QVERIFY(!accessible(rig.view.tabButton(SettingsTab::general))->state().selected);
        QTRY_VERIFY(!general);
        QPointer<QWidget> fallback = rig.view.page();
        rig.view.setSelectedTab(QStringLiteral("GENERAL"));
        QCOMPARE(rig.view.page(), fallback.data());
        rig.view.setSelectedTab(QStringLiteral("general"));
        QCOMPARE(rig.selectedTabs(), QList<SettingsTab>{SettingsTab::general});
    }
};

QTEST_MAIN(SettingsViewTest)
#include "tst_settingsview.moc"
