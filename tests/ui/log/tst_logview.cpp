#include "ui/Appearance.h"
#include "ui/log/ChangeLogEntryRow.h"
#include "ui/log/LogView.h"
#include "ui/widgets/RelativeTimeLabel.h"
#include "ui/widgets/SegmentedControl.h"
#include "ui/widgets/SymbolLabel.h"

#include "ShellWorld.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;

namespace {

// A page the size the settings window gives it, over a log of its own.
struct Rig : ShellWorld {
    ConsoleCapture console;
    std::unique_ptr<LogView> view;

    // Records `count` changes, one a minute, alternating browser and mail from a browser one.
    void record(int count, bool mailToo = true)
    {
        for (int i = 0; i < count; ++i) {
            if (i % 2 == 0 || !mailToo)
                world.log.logBrowserChange(QStringLiteral("Firefox"),
                                           u"Browser " + QString::number(i));
            else
                world.log.logEmailChange(QStringLiteral("Thunderbird"),
                                         u"Mail " + QString::number(i));
            world.clock.advance(60);
        }
    }
    LogView &show()
    {
        view = shown(std::make_unique<LogView>(language, world.log, world.clock, world.timers,
                                               world.alerts));
        return *view;
    }
    QStringList shownMessages() const
    {
        QStringList messages;
        for (ChangeLogEntryRow *row : view->rows())
            messages.append(row->messageLabel()->text());
        return messages;
    }
};

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// Accepts the export dialog of the page with `path`, or cancels it for an empty path.
void answerExport(LogView &view, const QString &path)
{
    QFileDialog *dialog = view.exportDialog();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    if (path.isEmpty()) {
        dialog->reject();
        return;
    }
    dialog->selectFile(path);
    static_cast<QDialog *>(dialog)->accept();
}

} // namespace

class LogViewTest : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void filtersTheCopyAndShowsTheEmptyState()
    {
        Rig rig;
        rig.record(2, false);
        LogView &view = rig.show();
        QCOMPARE(rig.shownMessages(), (QStringList{"Browser changed from Firefox to Browser 1",
                                                   "Browser changed from Firefox to Browser 0"}));
        ChangeLogEntryRow *newest = view.rows().first();
        QCOMPARE(newest->symbol()->symbol(), QStringLiteral("globe"));
        QCOMPARE(newest->relativeTime()->text(), QStringLiteral("1 minute ago"));

        // The filter reads no store: a record logged meanwhile shows only after Refresh.
        rig.world.log.logEmailChange(QStringLiteral("Thunderbird"), QStringLiteral("Evolution"));
        view.setFilterType(LogView::LogFilterType::email);
        QVERIFY(view.emptyState() && view.rows().isEmpty());
        QTest::mouseClick(view.refreshButton(), Qt::LeftButton);
        QCOMPARE(rig.shownMessages(),
                 QStringList{"Email client changed from Thunderbird to Evolution"});
        QCOMPARE(view.rows().first()->symbol()->symbol(), QStringLiteral("envelope"));
        QTest::mouseClick(view.filterControl()->segment(0), Qt::LeftButton);
        QCOMPARE(view.rows().size(), 3);

        // The relative time keeps itself current; the message stays as it was stored.
        settle();
        rig.world.clock.advance(3600);
        QVERIFY(!rig.world.timers.active().isEmpty());
        for (FakeTimer *timer : rig.world.timers.active())
            timer->fire();
        QCOMPARE(view.rows().last()->relativeTime()->text(), QStringLiteral("1 hour ago"));
        rig.language.setCurrentLanguage(AppLanguage::german);
        rig.world.timers.fire(50ms);
        QCOMPARE(view.refreshButton()->text(), QStringLiteral("Aktualisieren"));
        QCOMPARE(view.rows().first()->messageLabel()->text(),
                 QStringLiteral("Email client changed from Thunderbird to Evolution"));

        // An empty log, and showing the page again reads it again.
        rig.world.log.clearAllLogs();
        view.hide();
        view.show();
        QVERIFY(view.emptyState());
        QVERIFY(view.emptyState()->isVisible());
    }

    void buildsLongListsAsTheyScroll()
    {
        Rig rig;
        rig.record(120);
        LogView &view = rig.show();
        QCOMPARE(view.rows().size(), 50);
        QScrollBar *bar = view.findChild<QScrollArea *>()->verticalScrollBar();
        settle();
        bar->setValue(bar->maximum());
        QCOMPARE(view.rows().size(), 100);
        settle();
        bar->setValue(bar->maximum());
        QCOMPARE(view.rows().size(), 120);
        QCOMPARE(view.rows().last()->messageLabel()->text(),
                 QStringLiteral("Browser changed from Firefox to Browser 0"));
    }

    void exportsWhatTheFilterShows()
    {
        Rig rig;
        QTemporaryDir folder;
        LogView &view = rig.show();
        // An empty log writes an empty file.
        view.exportLogs();
        QCOMPARE(view.exportDialog()->selectedFiles().first().section(u'/', -1),
                 QStringLiteral("Vandorel-Log-3-14-2026.txt"));
        QCOMPARE(view.exportDialog()->mimeTypeFilters(), QStringList{"text/plain"});
        answerExport(view, folder.filePath(QStringLiteral("empty.txt")));
        QCOMPARE(fileBytes(folder.filePath(QStringLiteral("empty.txt"))), QByteArray());

        rig.record(3);
        QTest::mouseClick(view.refreshButton(), Qt::LeftButton);
        const QList<ChangeLogEntry> all = rig.world.log.getAllLogs();

        // The filter as it stands when the dialog is accepted; a cancel writes nothing.
        QTest::mouseClick(view.exportButton(), Qt::LeftButton);
        view.setFilterType(LogView::LogFilterType::browser);
        answerExport(view, folder.filePath(QStringLiteral("browser.txt")));
        QCOMPARE(fileBytes(folder.filePath(QStringLiteral("browser.txt"))),
                 all[0].description().toUtf8() + "\n\n" + all[2].description().toUtf8());
        view.setFilterType(LogView::LogFilterType::email);
        view.exportLogs();
        answerExport(view, folder.filePath(QStringLiteral("mail.txt")));
        QCOMPARE(fileBytes(folder.filePath(QStringLiteral("mail.txt"))),
                 all[1].description().toUtf8());
        view.exportLogs();
        answerExport(view, QString());
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 3);

        // A place that cannot be written is passed over in silence.
        rig.console.take();
        view.exportLogs();
        answerExport(view, folder.filePath(QStringLiteral("missing/folder/log.txt")));
        QVERIFY(rig.console.lines().isEmpty());
        QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("missing/folder/log.txt"))));
    }

    void clearsBothKindsOnlyWhenConfirmed()
    {
        Rig rig;
        rig.record(3);
        LogView &view = rig.show();
        view.setFilterType(LogView::LogFilterType::browser);

        rig.world.alerts.answerNext(1);
        QTest::mouseClick(view.clearButton(), Qt::LeftButton);
        settle();
        const ModalPrompt &asked = rig.world.alerts.last();
        QCOMPARE(asked.title, rig.text("log_clear_confirm_title"));
        QCOMPARE(asked.buttons, (QStringList{rig.text("log_clear_confirm_button"),
                                             rig.text("log_clear_cancel_button")}));
        QCOMPARE(asked.style, ModalPrompt::Style::warning);
        QCOMPARE(rig.world.log.getAllLogs().size(), 3);
        QCOMPARE(view.rows().size(), 2);

        rig.world.alerts.answerNext(0);
        view.clearLogs();
        settle();
        QVERIFY(rig.world.log.getAllLogs().isEmpty());
        QVERIFY(view.emptyState());
    }

    void controlsAreNamedAndNeverDisabled()
    {
        Rig rig;
        LogView &view = rig.show();
        QCOMPARE(view.filterControl()->accessibleName(), rig.text("log_filter_label"));
        QCOMPARE(QAccessible::queryAccessibleInterface(view.filterControl()->segment(2))
                     ->text(QAccessible::Name),
                 rig.text("log_filter_email"));
        for (QPushButton *button : {view.refreshButton(), view.exportButton(), view.clearButton()})
            QVERIFY(button->isEnabled());
    }
};

QTEST_MAIN(LogViewTest)
#include "tst_logview.moc"
