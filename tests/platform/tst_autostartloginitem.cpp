#include "ProgramRun.h"
#include "platform/freedesktop/AutostartLoginItem.h"
#include "platform/freedesktop/DesktopEntry.h"

#include "XdgTree.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace {

const QString appId = "io.kestrane.vandorel";
const QString entryFile = "config/autostart/io.kestrane.vandorel.desktop";

// desktop-file-validate's verdict: empty when it accepts the file, else what it said.
QString validatorComplaints(const QString &path)
{
    const ProgramRun validate = runProgram("desktop-file-validate", {path}, 30000, true);
    if (validate.exitCode < 0)
        return "desktop-file-validate did not run";
    return validate.succeeded() && validate.out.isEmpty() ? QString() : validate.text();
}

void setMode(const QString &path, QFileDevice::Permissions mode)
{
    QVERIFY(QFile::setPermissions(path, mode));
}

const auto readOnlyFolder = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
const auto writableFolder = readOnlyFolder | QFileDevice::WriteOwner;

} // namespace

class TestAutostartLoginItem : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void writesReadsAndRemovesTheEntry()
    {
        XdgTree tree;
        const QString binary = tree.stub("vandorel");
        AutostartLoginItem item(appId, binary);
        QCOMPARE(item.entryPath(), tree.path(entryFile));
        QVERIFY(!item.isEnabled());

        QCOMPARE(item.registerItem(), std::nullopt);
        QVERIFY(item.isEnabled());
        QCOMPARE(validatorComplaints(item.entryPath()), QString());
        const auto entry = DesktopEntry::read(item.entryPath());
        QVERIFY(entry && entry->isLaunchable());
        QCOMPARE(entry->exec(), binary + " --login");
        QCOMPARE(QFileInfo(tree.path("config/autostart")).isDir(), true);

        // Registering again is harmless; a desktop's own switch (Hidden=true) turns it off,
        // and registering turns it on again.
        QCOMPARE(item.registerItem(), std::nullopt);
        tree.write(entryFile, tree.read(entryFile) + "Hidden=true\n");
        QVERIFY(!item.isEnabled());
        QCOMPARE(item.registerItem(), std::nullopt);
        QVERIFY(item.isEnabled());

        QCOMPARE(item.unregisterItem(), std::nullopt);
        QVERIFY(!QFileInfo::exists(item.entryPath()));
        QVERIFY(!item.isEnabled());
        QCOMPARE(item.unregisterItem(), std::nullopt);
    }

    void quotesAnExecutablePathThatNeedsIt()
    {
        XdgTree tree;
        const QString binary = tree.path("My Apps/van\"dor$el\\`x`/vandorel");
        AutostartLoginItem item(appId, binary);
        QCOMPARE(item.registerItem(), std::nullopt);
        QCOMPARE(validatorComplaints(item.entryPath()), QString());
        QCOMPARE(DesktopEntry::read(item.entryPath())->execProgram(), binary);
        QCOMPARE(AutostartLoginItem::execArgument("/opt/50%/v"), "/opt/50%%/v");
        QCOMPARE(AutostartLoginItem::execArgument("/opt/a b\\c"), "\"/opt/a b\\\\\\\\c\"");
    }

    void failsWithTheReasonAndChangesNothing()
    {
        XdgTree tree;
        AutostartLoginItem item(appId, tree.stub("vandorel"));
        const QString folder = tree.path("config/autostart");

        // A read-only folder: nothing is written, and an entry already there stays.
        QVERIFY(QDir().mkpath(folder));
        setMode(folder, readOnlyFolder);
        QCOMPARE(item.registerItem(), folder + ": Permission denied");
        QVERIFY(!QFileInfo::exists(item.entryPath()));
        setMode(folder, writableFolder);
        QCOMPARE(item.registerItem(), std::nullopt);
        setMode(folder, readOnlyFolder);
        QCOMPARE(item.unregisterItem(), folder + ": Permission denied");
        QVERIFY(item.isEnabled());
        setMode(folder, writableFolder);

        // Things in the way: a file where the folder belongs, a folder where the entry does.
        QVERIFY(QFile::remove(item.entryPath()));
        QVERIFY(QDir(folder).mkdir(QFileInfo(item.entryPath()).fileName()));
        QCOMPARE(item.registerItem(), item.entryPath() + ": Is a directory");
        QVERIFY(QDir(folder).removeRecursively());
        tree.write("config/autostart", "not a folder");
        QCOMPARE(item.registerItem(), folder + ": Not a directory");
        QVERIFY(!item.isEnabled());
    }
};

QTEST_GUILESS_MAIN(TestAutostartLoginItem)
#include "tst_autostartloginitem.moc"
