#include "platform/freedesktop/FreedesktopDeviceFacts.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// The machine's model and the system's version as analytics report them.
class DeviceFactsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void osVersionHasThreeIntegers()
    {
        QCOMPARE(DeviceFacts::paddedVersion("12"), "12.0.0");
        QCOMPARE(DeviceFacts::paddedVersion("22.04"), "22.4.0");
        QCOMPARE(DeviceFacts::paddedVersion("1.2.3.4"), "1.2.3");
        QCOMPARE(DeviceFacts::paddedVersion("n/a"), "0.0.0");
    }

    void deviceModelFallsBackInOrder()
    {
        QTemporaryDir dir;
        const FreedesktopDeviceFacts facts({dir.filePath("product_name"), dir.filePath("model")});
        const auto write = [&dir](const char *name, const QByteArray &bytes) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(bytes);
        };
        qunsetenv("SIMULATOR_MODEL_IDENTIFIER");
        QVERIFY(!facts.deviceModel().isEmpty()); // uname's machine
        qputenv("SIMULATOR_MODEL_IDENTIFIER", "Sim1,1");
        QCOMPARE(facts.deviceModel(), "Sim1,1");

        write("model", QByteArray("Raspberry Pi 4 Model B Rev 1.4\0", 31));
        QCOMPARE(facts.deviceModel(), "Raspberry Pi 4 Model B Rev 1.4");
        write("product_name", "\n"); // blank: the next source
        QCOMPARE(facts.deviceModel(), "Raspberry Pi 4 Model B Rev 1.4");
        write("product_name", "Latitude 7440\n");
        QCOMPARE(facts.deviceModel(), "Latitude 7440");
        qunsetenv("SIMULATOR_MODEL_IDENTIFIER");
    }
};

QTEST_GUILESS_MAIN(DeviceFactsTest)
#include "tst_devicefacts.moc"
