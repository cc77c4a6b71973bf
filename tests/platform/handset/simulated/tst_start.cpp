// What opening the handset does not do.
#include "charging/CodeHash.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <dlfcn.h>

using namespace handset;
using namespace handset::test;

namespace {

int derivedHashes = 0;

} // namespace

// In front of the handset's own, which does the work: each takes milliseconds.
charging::CodeHash charging::CodeHash::of(QByteArrayView digits)
{
    using Derive = CodeHash (*)(QByteArrayView);
    static const auto derive =
        reinterpret_cast<Derive>(::dlsym(RTLD_NEXT, "_ZN7handset8charging8CodeHash2ofE14QByteArrayView"));
    ++derivedHashes;
    return derive(digits);
}

class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        derivedHashes = 0;
    }

    void aKeptCardIsReadWithoutMakingANewOne();
    void aNewCardsCodesAreMadeWhenTheyAreNeeded();
    void aNewCardsCodesAreMadeOnce();
};

void TestStart::aKeptCardIsReadWithoutMakingANewOne()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(30 * second));
    derivedHashes = 0;
    Phone phone(state.path());
    QVERIFY(phone);
    QVERIFY(phone.dialed(30 * second));
    quint32 status = 0;
    QCOMPARE(phone.handset().simSecurity()->pinStatus(SimSecurity::Pin2, status), int(Success));
    QCOMPARE(derivedHashes, 0);
}

void TestStart::aNewCardsCodesAreMadeWhenTheyAreNeeded()
{
    Phone phone;
    QVERIFY(phone.answered(30 * second)); // costs nothing
    QCOMPARE(phone.figures(), (SixFigures{30, 0, 30, 0, 30, 30}));
    QCOMPARE(derivedHashes, 0);
    bool accepted = false;
    QCOMPARE(phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "1234", accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(derivedHashes, 2);
}

void TestStart::aNewCardsCodesAreMadeOnce()
{
    const StateDir state;
    Phone phone(state.path());
    for (int call = 0; call < 3; ++call)
        QVERIFY(phone.dialed(30 * second));
    QCOMPARE(phone->charging()->topUp(QStringLiteral("100"), {2027, 3, 9}), int(Success));
    QCOMPARE(derivedHashes, 2);
    phone.close();
    bool accepted = false;
    const Phone restarted(state.path());
    QCOMPARE(restarted.handset().simSecurity()->verifyPin(SimSecurity::Pin2, "1234", accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(derivedHashes, 2);
}

KAV_TEST_GROUP(TestStart, QCoreApplication);
#include "tst_start.moc"
