// The call-setup engine: one operation of the handset each, its status passed on, outputs written on success only.
#include "callsetup/PHONE_ENG_Setup.h"
#include "support/PhoneTest.h"

#include "handset/Handset.h"
#include "handset/Status.h"

#include <QtCore/QMetaMethod>
#include <QtTest/QSignalSpy>

#include <array>

namespace {

/// Whatever the operations write.
struct Outputs {
    unsigned char byte = 77;
    QString first = QStringLiteral("first");
    QString second = QStringLiteral("second");
    bool flag = true;

    friend bool operator==(const Outputs &, const Outputs &) = default;
};

struct Operation {
    const char *name;
    const char *asked; ///< what the journal has of it
    const char *role;  ///< how it is scripted
    bool isWrite;
    int (*run)(Outputs &outputs);
};

PHONE_ENG_Setup &engine()
{
    return *PHONE_ENG_Setup::instance();
}

constexpr std::array operations{
    Operation{"getEFUpdateRule", "AdviceOfCharge::updateRule(61)", "AdviceOfCharge::updateRule", false,
              [](Outputs &o) { return engine().getEFUpdateRule(61, o.byte); }},
    Operation{"getMeterMax", "AdviceOfCharge::meterMaximum", "AdviceOfCharge::meterMaximum", false,
              [](Outputs &o) { return engine().getMeterMax(o.first, o.flag); }},
    Operation{"setMeterMax", "AdviceOfCharge::setMeterMaximum(12.5)", "AdviceOfCharge::setMeterMaximum", true,
              [](Outputs &) { return engine().setMeterMax(QStringLiteral("12.5")); }},
    Operation{"disableCMM", "AdviceOfCharge::disableMeterMaximum", "AdviceOfCharge::disableMeterMaximum", true,
              [](Outputs &) { return engine().disableCMM(); }},
    Operation{"getChargeType", "AdviceOfCharge::chargeType", "AdviceOfCharge::chargeType", false,
              [](Outputs &o) { return engine().getChargeType(o.byte); }},
    Operation{"setChargeType", "AdviceOfCharge::setChargeType(1)", "AdviceOfCharge::setChargeType", true,
              [](Outputs &) { return engine().setChargeType(1); }},
    Operation{"getPriceUnitCurrency", "AdviceOfCharge::priceAndCurrency", "AdviceOfCharge::priceAndCurrency",
              false, [](Outputs &o) { return engine().getPriceUnitCurrency(o.first, o.second); }},
    Operation{
        "setPriceUnitCurrency", "AdviceOfCharge::setPriceAndCurrency(0.5, EUR)",
        "AdviceOfCharge::setPriceAndCurrency", true,
        [](Outputs &) { return engine().setPriceUnitCurrency(QStringLiteral("0.5"), QStringLiteral("EUR")); }},
};

} // namespace

class TestEngine : public PhoneTest
{
    Q_OBJECT

private slots:
    void thereIsOneEngine();
    void itsMetaObjectIsThePhones();
    void anOperationAsksTheHandsetOnce_data() { everyOperation(); }
    void anOperationAsksTheHandsetOnce();
    void whatTheHandsetAnswersIsPassedOn();
    void aFailedOperationPassesItsCodeOnAndWritesNothing_data() { everyOperation(); }
    void aFailedOperationPassesItsCodeOnAndWritesNothing();
    void withoutTheRoleNothingIsAvailable_data() { everyOperation(); }
    void withoutTheRoleNothingIsAvailable();
    void withoutAHandsetNothingIsAvailable_data() { everyOperation(); }
    void withoutAHandsetNothingIsAvailable();
    void aWriteThatCannotBeStoredIsSignalled_data() { everyOperation(); }
    void aWriteThatCannotBeStoredIsSignalled();
    void aWriteThatTheSimRefusesIsSignalled_data() { everyOperation(); }
    void aWriteThatTheSimRefusesIsSignalled();
    void anyOtherOutcomeIsNotSignalled_data() { everyOperation(); }
    void anyOtherOutcomeIsNotSignalled();
    void callForwardingIsReportedOn();

private:
    static void everyOperation();
    static void isSignalled(const Operation &operation, int status, const char *signal, const char *other);
};

void TestEngine::everyOperation()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < operations.size(); ++i)
        QTest::newRow(operations[i].name) << static_cast<int>(i);
}

#define KAV_FETCH_OPERATION                                                                                       \
    QFETCH(const int, index);                                                                                     \
    const Operation &operation = operations[static_cast<std::size_t>(index)]

void TestEngine::thereIsOneEngine()
{
    QVERIFY(PHONE_ENG_Setup::instance());
    QCOMPARE(PHONE_ENG_Setup::instance(), PHONE_ENG_Setup::instance());
}

void TestEngine::itsMetaObjectIsThePhones()
{
    const QMetaObject &meta = PHONE_ENG_Setup::staticMetaObject;
    QCOMPARE(meta.className(), "PHONE_ENG_Setup");
    QCOMPARE(engine().className(), "PHONE_ENG_Setup");
    QCOMPARE(meta.superClass()->className(), "QObject");
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(methods,
             (QStringList{QStringLiteral("flashFull()"), QStringLiteral("sigSetupOpertionNotAllowed()"),
                          QStringLiteral("updateCallForwardingFlag()"), QStringLiteral("updateCFFlag()")}));
}

void TestEngine::anOperationAsksTheHandsetOnce()
{
    KAV_FETCH_OPERATION;
    Outputs outputs;
    QCOMPARE(operation.run(outputs), int(handset::Success));
    QCOMPARE(journal.lines(), QStringList{QString::fromLatin1(operation.asked)});
}

void TestEngine::whatTheHandsetAnswersIsPassedOn()
{
    script().answer("AdviceOfCharge::updateRule", quint8{4});
    script().answer("AdviceOfCharge::meterMaximum", QStringLiteral("120.00"), false);
    script().answer("AdviceOfCharge::chargeType", quint8{200});
    script().answer("AdviceOfCharge::priceAndCurrency", QStringLiteral("0.25"), QStringLiteral("AED"));
    unsigned char rule = 0;
    QCOMPARE(engine().getEFUpdateRule(59, rule), 0);
    QCOMPARE(int(rule), 4);
    QString maximum;
    bool enabled = true;
    QCOMPARE(engine().getMeterMax(maximum, enabled), 0);
    QCOMPARE(maximum, QStringLiteral("120.00"));
    QVERIFY(!enabled);
    unsigned char type = 0;
    QCOMPARE(engine().getChargeType(type), 0);
    QCOMPARE(int(type), 200);
    QString price;
    QString currency;
    QCOMPARE(engine().getPriceUnitCurrency(price, currency), 0);
    QCOMPARE(price, QStringLiteral("0.25"));
    QCOMPARE(currency, QStringLiteral("AED"));
}

void TestEngine::aFailedOperationPassesItsCodeOnAndWritesNothing()
{
    KAV_FETCH_OPERATION;
    for (const int status : {1, 2, 5, -7, 99}) {
        script().fail(operation.role, status);
        Outputs outputs;
        QCOMPARE(operation.run(outputs), status);
        QCOMPARE(outputs, Outputs());
    }
}

void TestEngine::withoutTheRoleNothingIsAvailable()
{
    KAV_FETCH_OPERATION;
    (*handset)->takeAway(QStringLiteral("AdviceOfCharge"));
    Outputs outputs;
    QCOMPARE(operation.run(outputs), int(handset::NotAvailable));
    QCOMPARE(outputs, Outputs());
    QVERIFY(journal.lines().isEmpty());
}

void TestEngine::withoutAHandsetNothingIsAvailable()
{
    KAV_FETCH_OPERATION;
    handset::install(nullptr);
    Outputs outputs;
    QCOMPARE(operation.run(outputs), int(handset::NotAvailable));
    QCOMPARE(outputs, Outputs());
}

void TestEngine::isSignalled(const Operation &operation, int status, const char *signal, const char *other)
{
    const QSignalSpy spy(&engine(), signal);
    const QSignalSpy silent(&engine(), other);
    Outputs outputs;
    QCOMPARE(operation.run(outputs), status);
    QCOMPARE(spy.count(), operation.isWrite ? 1 : 0);
    QCOMPARE(silent.count(), 0);
}

void TestEngine::aWriteThatCannotBeStoredIsSignalled()
{
    KAV_FETCH_OPERATION;
    script().fail(operation.role, handset::StorageFailed);
    isSignalled(operation, handset::StorageFailed, SIGNAL(flashFull()), SIGNAL(sigSetupOpertionNotAllowed()));
}

void TestEngine::aWriteThatTheSimRefusesIsSignalled()
{
    KAV_FETCH_OPERATION;
    script().fail(operation.role, handset::NotAllowed);
    isSignalled(operation, handset::NotAllowed, SIGNAL(sigSetupOpertionNotAllowed()), SIGNAL(flashFull()));
}

void TestEngine::anyOtherOutcomeIsNotSignalled()
{
    KAV_FETCH_OPERATION;
    const QSignalSpy full(&engine(), SIGNAL(flashFull()));
    const QSignalSpy refused(&engine(), SIGNAL(sigSetupOpertionNotAllowed()));
    for (const int status : {0, 1, 2, 4, 5, 99}) {
        script().fail(operation.role, status);
        Outputs outputs;
        QCOMPARE(operation.run(outputs), status);
    }
    QCOMPARE(full.count() + refused.count(), 0);
}

void TestEngine::callForwardingIsReportedOn()
{
    const QSignalSpy spy(&engine(), SIGNAL(updateCallForwardingFlag()));
    QVERIFY(QMetaObject::invokeMethod(&engine(), "updateCFFlag"));
    QCOMPARE(spy.count(), 1);
    QVERIFY(journal.lines().isEmpty());
}

KAV_TEST_GROUP(TestEngine, QApplication);
#include "tst_engine.moc"
