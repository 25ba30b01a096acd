#include "ui/Appearance.h"
#include "ui/about/AboutView.h"
#include "ui/widgets/RowButton.h"

#include "PageChecks.h"
#include "ShellWorld.h"
#include "UrlCatcher.h"

#include <QAccessible>
#include <QApplication>
#include <QDesktopServices>
#include <QTest>

namespace {

const AboutView::Links links{QUrl(QStringLiteral("http://127.0.0.1:9/")),
                             QUrl(QStringLiteral("mailto:support@localhost")),
                             QUrl(QStringLiteral("http://127.0.0.1:9/donate"))};

struct Rig : ShellWorld {
    int feedbackRequests = 0;

    std::unique_ptr<AboutView> view(const QByteArray &calendar = "en_GB")
    {
        auto about = std::make_unique<AboutView>(
            language, world.clock, [this] { ++feedbackRequests; }, nullptr, links, calendar);
        about->show();
        return QTest::qWaitForWindowExposed(about.get()) ? std::move(about) : nullptr;
    }
};

} // namespace

class AboutViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(PageChecks::hasRealFont(), "no real font: screenshots would show boxes");
    }

    // The year is the user's calendar's, read from the clock whenever the texts are made.
    void countsTheYearInTheUsersCalendar()
    {
        Rig rig;
        const struct {
            QByteArray calendar;
            QString line;
        } cases[] = {
            {"en_GB", QStringLiteral("Copyright © 2026")},
            {"th_TH", QStringLiteral("Copyright © 2569")},
            {"ja_JP@calendar=japanese", QStringLiteral("Copyright © 8")},
        };
        for (const auto &expected : cases) {
            auto view = rig.view(expected.calendar);
            QCOMPARE(view->copyrightLine()->text(), expected.line);
        }
        auto view = rig.view("th_TH");
        rig.world.clock.set(QDateTime(QDate(2027, 1, 2), QTime(9, 0)));
        rig.switchLanguage(AppLanguage::chinese);
        QCOMPARE(view->copyrightLine()->text(), QStringLiteral("版权所有 © 2570"));
    }

    void linksGoOutAndFeedbackStaysInside()
    {
        Rig rig;
        UrlCatcher catcher;
        auto view = rig.view();
        QCOMPARE(view->size(), QSize(450, 390));
        QCOMPARE(view->minimumSize(), view->maximumSize());
        const AboutView::Row rows[] = {AboutView::Row::website, AboutView::Row::contact,
                                       AboutView::Row::support, AboutView::Row::feedback};
        const QStringList names{"Website", "Contact", "Support development", "Send feedback"};
        for (int i = 0; i < 4; ++i) {
            RowButton *row = view->row(rows[i]);
            QCOMPARE(row->accessibleName(), names[i]);
            QCOMPARE(QAccessible::queryAccessibleInterface(row)->role(), QAccessible::Button);
            QCOMPARE(row->cursor().shape(), Qt::PointingHandCursor);
            // The whole row takes the click, also at its far end.
            QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(row->width() - 3, row->height() / 2));
        }
        QCOMPARE(catcher.opened, (QList<QUrl>{links.website, links.contact, links.support}));
        QCOMPARE(rig.feedbackRequests, 1);
        QVERIFY(view->isVisible());
    }

    // Every language fits; English and the longest one are saved in light and dark.
    void fitsInEveryLanguage()
    {
        Rig rig;
        auto view = rig.view();
        PageChecks::forEveryLanguage(
            *view, [&](AppLanguage language) { rig.switchLanguage(language); },
            {"about_description", "about_website", "about_contact", "about_support",
             "feedback_title", "about_rights"},
            {},
            [&](const QString &suffix) {
                QVERIFY(PageChecks::saveScreenshot(*view, u"about_" + suffix));
            });
    }
};

QTEST_MAIN(AboutViewTest)
#include "tst_aboutview.moc"
