#include "core/guard/ProtectionStatus.h"

#include <QTest>

Q_DECLARE_METATYPE(ProtectionStatus)

class ProtectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void statusOfAGuardAndOfBoth()
    {
        const HandlerRecord a("A", "a");
        const HandlerRecord a2("A renamed", "a", QString("/elsewhere"));
        const HandlerRecord b("B", "b");
        using P = ProtectionStatus;
        QCOMPARE(Protection::statusOf(a, b, true), P::mismatch);
        QCOMPARE(Protection::statusOf(a, b, false), P::notProtected);
        QCOMPARE(Protection::statusOf(a, a2, true), P::protected_);
        QCOMPARE(Protection::statusOf(std::nullopt, b, true), P::protected_);
        QCOMPARE(Protection::statusOf(a, std::nullopt, true), P::protected_);
        QCOMPARE(Protection::statusOf(std::nullopt, std::nullopt, false), P::notProtected);
        // Across both guards, notProtected outranks mismatch.
        QCOMPARE(Protection::overall(P::mismatch, P::notProtected), P::notProtected);
        QCOMPARE(Protection::overall(P::protected_, P::mismatch), P::mismatch);
        QCOMPARE(Protection::name(P::notProtected), QString("notProtected"));
    }
};

QTEST_GUILESS_MAIN(ProtectionTest)
#include "tst_protection.moc"
