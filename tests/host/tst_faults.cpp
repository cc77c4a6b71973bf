// Operations of the handset that fail on demand, as the phone's libraries see them.

#include "callsetup/PHONE_ENG_Setup.h"
#include "handset/AdviceOfCharge.h"
#include "host/faults/FaultyHandset.h"
#include "message/PHONE_MsgClient.h"
#include "support/Journal.h"
#include "support/ScriptedHandset.h"
#include "support/TestGroup.h"
#include "telephony/tapi.h"
#include "telephony/util.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <climits>

using namespace host;

namespace {

using handset::Handset;
using handset::operationIndex;
using handset::operationNames;
using Value = QString; // what an output holds, in words

constexpr const char *untouched = "untouched";

Value told(const TAPI_CallTime &time)
{
    return time.hours == 99 ? Value(untouched)
                            : QString("%1:%2:%3").arg(time.hours).arg(time.minutes).arg(time.seconds);
}

template <int (*query)(TAPI_CallTime *)>
int time(Handset &, Value &value)
{
    TAPI_CallTime time{99, 0, 0};
    const int status = query(&time);
    value = told(time);
    return status;
}

template <int (*query)(char *)>
int text(Handset &, Value &value)
{
    char text[TAPI_CREDIT_TEXT_SIZE] = "untouched";
    const int status = query(text);
    value = QString::fromLatin1(text);
    return status;
}

template <typename Number, int (*query)(Number *)>
int number(Handset &, Value &value)
{
    Number number = 99;
    const int status = query(&number);
    value = number == 99 ? Value(untouched) : QString::number(number);
    return status;
}

template <int (*reset)()>
int command(Handset &, Value &)
{
    return reset();
}

PHONE_ENG_Setup &engine()
{
    return *PHONE_ENG_Setup::instance();
}

/// How an operation is asked for, and what a scripted handset is told to answer and then answers.
struct Asked {
    const char *name;
    int (*ask)(Handset &handset, Value &value);
    void (*script)(Script &script, const char *operation);
    const char *answer; ///< null: the operation has no output
};

void scriptTime(Script &script, const char *operation)
{
    script.answer(operation, handset::CallTime{1, 2, 3});
}
void scriptText(Script &script, const char *operation)
{
    script.answer(operation, QByteArray("12.50"));
}
void scriptSeconds(Script &script, const char *operation)
{
    script.answer(operation, quint32{7});
}
void scriptByte(Script &script, const char *operation)
{
    script.answer(operation, quint8{2});
}
void scriptNothing(Script &, const char *) {}

int date(Handset &, Value &value)
{
    TAPI_Date date{1999, 9, 9};
    const int status = TAPI_LOG_GetDepositExpirationDate(&date);
    value =
        date.year == 1999 ? Value(untouched) : QString("%1-%2-%3").arg(date.year).arg(date.month).arg(date.day);
    return status;
}
int refreshTotals(Handset &, Value &)
{
    return PHONE_MsgClient(nullptr).getTotalByteAndConnectedDuration();
}
int resetDataCalls(Handset &, Value &)
{
    return PHONE_MsgClient(nullptr).resetTotalDuration(true);
}
int updateRule(Handset &, Value &value)
{
    unsigned char rule = 99;
    const int status = engine().getEFUpdateRule(61, rule);
    value = rule == 99 ? Value(untouched) : QString::number(rule);
    return status;
}
int meterMax(Handset &, Value &value)
{
    bool isOn = false;
    value = untouched;
    const int status = engine().getMeterMax(value, isOn);
    value += isOn ? " on" : "";
    return status;
}
int setMeterMax(Handset &, Value &)
{
    return engine().setMeterMax("5");
}
int disableCmm(Handset &, Value &)
{
    return engine().disableCMM();
}
int chargeType(Handset &, Value &value)
{
    unsigned char type = 99;
    const int status = engine().getChargeType(type);
    value = type == 99 ? Value(untouched) : QString::number(type);
    return status;
}
int setChargeType(Handset &, Value &)
{
    return engine().setChargeType(1);
}
int price(Handset &, Value &value)
{
    QString currency;
    value = untouched;
    const int status = engine().getPriceUnitCurrency(value, currency);
    value += currency;
    return status;
}
int setPrice(Handset &, Value &)
{
    return engine().setPriceUnitCurrency("0.10", "EUR");
}
int sessions(Handset &, Value &value)
{
    TAPI_GPRS_SessionInfo info{};
    info.count = 99;
    const int status = TAPI_GPRS_GetAllSessionInfo(&info);
    value = info.count == 99 ? Value(untouched) : QString("%1 %2").arg(info.count).arg(info.records[0].apn);
    return status;
}
int bytes(Handset &, Value &value)
{
    uint32_t total = 99;
    uint32_t received = 99;
    uint32_t sent = 99;
    const int status = TAPI_GPRS_GetTotalDataBytes(&total, &received, &sent);
    const bool isUntouched = total == 99 && received == 99 && sent == 99;
    value = isUntouched ? Value(untouched) : QString("%1 %2 %3").arg(total).arg(received).arg(sent);
    return status;
}
int pinStatus(Handset &, Value &value)
{
    uint32_t status = 99;
    const int answer = TAPI_SECURITY_GetAnyPinStatus(1, &status);
    value = status == 99 ? Value(untouched) : QString::number(status);
    return answer;
}
// The PIN entry waits for a person; what it asks is asked here in its place.
int triesLeft(Handset &handset, Value &value)
{
    int tries = 99;
    const int status = handset.simSecurity()->triesLeft(1, tries);
    value = tries == 99 ? Value(untouched) : QString::number(tries);
    return status;
}
int verifyPin(Handset &handset, Value &value)
{
    bool accepted = false;
    const int status = handset.simSecurity()->verifyPin(1, "1234", accepted);
    value = accepted ? Value("accepted") : Value(untouched);
    return status;
}

constexpr std::array everyOperation{
    Asked{"CallService::totalCallTime", &time<TAPI_CS_GetTotalCallTime>, &scriptTime, "1:2:3"},
    Asked{"CallService::resetCallTime", &command<TAPI_CS_ResetCallTime>, &scriptNothing, nullptr},
    Asked{"CallService::remainingCredit", &text<TAPI_CS_GetRemainCredit>, &scriptText, "12.50"},
    Asked{"CallService::lastCallCost", &text<TAPI_CS_GetLastCallCost>, &scriptText, "12.50"},
    Asked{"CallLog::lastCallTime", &time<TAPI_LOG_GetLastCallTime>, &scriptTime, "1:2:3"},
    Asked{"CallLog::dialedCallsTime", &time<TAPI_LOG_GetDialedCallsTime>, &scriptTime, "1:2:3"},
    Asked{"CallLog::answeredCallsTime", &time<TAPI_LOG_GetAnsweredCallsTime>, &scriptTime, "1:2:3"},
    Asked{"CallLog::lifetimeCallsTime", &time<TAPI_LOG_GetLifetimeCallsTime>, &scriptTime, "1:2:3"},
    Asked{"CallLog::resetDialedCallsTime", &command<TAPI_LOG_ResetDialedCallsTime>, &scriptNothing, nullptr},
    Asked{"CallLog::resetAnsweredCallsTime", &command<TAPI_LOG_ResetAnsweredCallsTime>, &scriptNothing, nullptr},
    Asked{"CallLog::resetAll", &command<TAPI_LOG_ResetAll>, &scriptNothing, nullptr},
    Asked{"CallLog::depositExpirationDate", &date,
          [](Script &script, const char *operation) {
              script.answer(operation, handset::Date{2007, 3, 9});
          },
          "2007-3-9"},
    Asked{"CallLog::lastDeposit", &text<TAPI_LOG_GetLastDeposit>, &scriptText, "12.50"},
    Asked{"CallLog::dialedCallsCost", &text<TAPI_LOG_GetDialedCallsCost>, &scriptText, "12.50"},
    Asked{"CallLog::answeredCallsCost", &text<TAPI_LOG_GetAnsweredCallsCost>, &scriptText, "12.50"},
    Asked{"CallLog::allCallsCost", &text<TAPI_LOG_GetAllCallsCost>, &scriptText, "12.50"},
    Asked{"CallLog::resetDialedCallsCost", &command<TAPI_LOG_ResetDialedCallsCost>, &scriptNothing, nullptr},
    Asked{"CallLog::resetAnsweredCallsCost", &command<TAPI_LOG_ResetAnsweredCallsCost>, &scriptNothing, nullptr},
    Asked{"CallLog::resetAllCallsCost", &command<TAPI_LOG_ResetAllCallsCost>, &scriptNothing, nullptr},
    Asked{"DataCalls::refreshTotals", &refreshTotals, &scriptNothing, nullptr},
    Asked{"DataCalls::totalDuration", &number<uint32_t, UTIL_GetTotalDuration>, &scriptSeconds, "7"},
    Asked{"DataCalls::callStatus", &number<uint8_t, UTIL_GetDataCallStaus>, &scriptByte, "2"},
    Asked{"DataCalls::resetTotalDuration", &resetDataCalls, &scriptNothing, nullptr},
    Asked{"AdviceOfCharge::updateRule", &updateRule, &scriptByte, "2"},
    Asked{"AdviceOfCharge::meterMaximum", &meterMax,
          [](Script &script, const char *operation) { script.answer(operation, QString("120.00"), true); },
          "120.00 on"},
    Asked{"AdviceOfCharge::setMeterMaximum", &setMeterMax, &scriptNothing, nullptr},
    Asked{"AdviceOfCharge::disableMeterMaximum", &disableCmm, &scriptNothing, nullptr},
    Asked{"AdviceOfCharge::chargeType", &chargeType, &scriptByte, "2"},
    Asked{"AdviceOfCharge::setChargeType", &setChargeType, &scriptNothing, nullptr},
    Asked{"AdviceOfCharge::priceAndCurrency", &price,
          [](Script &script, const char *operation) { script.answer(operation, QString("0.23"), QString("EUR")); },
          "0.23EUR"},
    Asked{"AdviceOfCharge::setPriceAndCurrency", &setPrice, &scriptNothing, nullptr},
    Asked{"PacketData::sessions", &sessions,
          [](Script &script, const char *operation) {
              script.answer(operation, handset::DataSessions{1, {handset::DataSession{4, 5, 6, {}, "internet"}}});
          },
          "1 internet"},
    Asked{"PacketData::totalDuration", &time<TAPI_GPRS_GetTotalDuration>, &scriptTime, "1:2:3"},
    Asked{"PacketData::totalBytes", &bytes,
          [](Script &script, const char *operation) {
              script.answer(operation, quint32{3}, quint32{1}, quint32{2});
          },
          "3 1 2"},
    Asked{"PacketData::resetTotalDuration", &command<TAPI_GPRS_ResetTotalDuration>, &scriptNothing, nullptr},
    Asked{"PacketData::resetTotalBytes", &command<TAPI_GPRS_ResetTotalDataBytes>, &scriptNothing, nullptr},
    Asked{"SimSecurity::pinStatus", &pinStatus, &scriptSeconds, "7"},
    Asked{"SimSecurity::triesLeft", &triesLeft,
          [](Script &script, const char *operation) { script.answer(operation, 2); }, "2"},
    Asked{"SimSecurity::verifyPin", &verifyPin,
          [](Script &script, const char *operation) { script.answer(operation, true); }, "accepted"},
};
static_assert(everyOperation.size() == operationNames.size());

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theTableNamesEveryOperationOnce();
    void oneThatFailsAnswersItsCodeAndTheOthersWork_data();
    void oneThatFailsAnswersItsCodeAndTheOthersWork();
    void allCanFailAtOnceAndWorkAgain();
    void aCodeIsAnyNumberButNothing();
    void argumentsReachTheHandset();
    void aRoleThatTheHandsetLacksStaysAway();
    void whatIsToldToTheHandsetAndByItGoesThrough();

private:
    QString ask(const Asked &asked, int expectedCode);

    std::shared_ptr<ScriptedHandset> behind;
    std::shared_ptr<FaultyHandset> installed;
};

void TestFaults::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    behind = std::make_shared<ScriptedHandset>();
    installed = std::make_shared<FaultyHandset>(behind);
    handset::install(installed);
    for (const Asked &asked : everyOperation)
        asked.script(behind->script, asked.name);
}

void TestFaults::cleanup()
{
    handset::install(nullptr);
}

// What is not as it should be; empty when the operation returns `expectedCode` as it has to.
QString TestFaults::ask(const Asked &asked, int expectedCode)
{
    Journal::shared().clear();
    Value value = untouched;
    const int code = asked.ask(*installed, value);
    const bool reached = !Journal::shared().startingWith(asked.name).isEmpty();
    const QString expectedValue = expectedCode == 0 && asked.answer ? asked.answer : untouched;
    if (code == expectedCode && reached == (expectedCode == 0) && value == expectedValue)
        return {};
    return QString("%1 answers %2, \"%3\", and %4 the telephone")
        .arg(asked.name)
        .arg(code)
        .arg(value, reached ? "reaches" : "does not reach");
}

void TestFaults::theTableNamesEveryOperationOnce()
{
    for (std::size_t index = 0; index < everyOperation.size(); ++index) {
        QCOMPARE(operationNames[index],
                 QString(everyOperation[index].name)); // every operation that there is can fail
        QCOMPARE(operationIndex(everyOperation[index].name), static_cast<int>(index));
    }
    QCOMPARE(operationIndex("CallLog::lastCallTim"), -1);
    QCOMPARE(operationIndex("calllog::lastcalltime"), -1);
    QCOMPARE(operationIndex(""), -1);
}

void TestFaults::oneThatFailsAnswersItsCodeAndTheOthersWork_data()
{
    QTest::addColumn<int>("failing");
    for (std::size_t index = 0; index < everyOperation.size(); ++index)
        QTest::newRow(everyOperation[index].name) << static_cast<int>(index);
}

void TestFaults::oneThatFailsAnswersItsCodeAndTheOthersWork()
{
    QFETCH(int, failing);
    const int code = 1000 + failing;
    const Asked &broken = everyOperation[static_cast<std::size_t>(failing)];
    installed->faults().set(operationIndex(broken.name), code);
    for (const Asked &asked : everyOperation)
        QCOMPARE(ask(asked, &asked == &broken ? code : 0), QString());
    installed->faults().set(operationIndex(broken.name), 0);
    QCOMPARE(ask(broken, 0), QString());
}

void TestFaults::allCanFailAtOnceAndWorkAgain()
{
    for (std::size_t index = 0; index < operationNames.size(); ++index)
        installed->faults().set(static_cast<int>(index), 4711);
    for (const Asked &asked : everyOperation)
        QCOMPARE(ask(asked, 4711), QString());
    installed->faults().clear();
    for (const Asked &asked : everyOperation)
        QCOMPARE(ask(asked, 0), QString());
}

void TestFaults::aCodeIsAnyNumberButNothing()
{
    const int operation = operationIndex("CallLog::resetAll");
    for (const int code : {-1, 1, INT_MIN, INT_MAX}) {
        installed->faults().set(operation, code);
        QCOMPARE(TAPI_LOG_ResetAll(), code);
        QCOMPARE(installed->faults().code(operation), code);
    }
}

void TestFaults::argumentsReachTheHandset()
{
    Journal::shared().clear();
    QCOMPARE(engine().setMeterMax("77.5"), 0);
    QCOMPARE(engine().setPriceUnitCurrency("0.10", "GBP"), 0);
    bool accepted = false;
    QCOMPARE(installed->simSecurity()->verifyPin(1, "4321", accepted), 0);
    unsigned char rule = 0;
    QCOMPARE(engine().getEFUpdateRule(64, rule), 0);
    const QStringList expected{"AdviceOfCharge::setMeterMaximum(77.5)",
                               "AdviceOfCharge::setPriceAndCurrency(0.10, GBP)", "SimSecurity::verifyPin(1, 4321)",
                               "AdviceOfCharge::updateRule(64)"};
    QCOMPARE(Journal::shared().take(), expected);
}

void TestFaults::aRoleThatTheHandsetLacksStaysAway()
{
    QVERIFY(installed->callService() && installed->callLog() && installed->dataCalls() &&
            installed->adviceOfCharge() && installed->packetData() && installed->simSecurity());
    for (const char *role : {"CallService", "CallLog", "DataCalls", "AdviceOfCharge", "PacketData", "SimSecurity"})
        behind->takeAway(role);
    QVERIFY(!installed->callService() && !installed->callLog() && !installed->dataCalls() &&
            !installed->adviceOfCharge() && !installed->packetData() && !installed->simSecurity());
    installed->faults().set(operationIndex("CallLog::resetAll"), 9);
    QCOMPARE(TAPI_LOG_ResetAll(), int{handset::NotAvailable});
}

void TestFaults::whatIsToldToTheHandsetAndByItGoesThrough()
{
    auto opened = handset::open({});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    handset::install(nullptr);
    FaultyHandset front(opened.handset);
    int changes = 0;
    front.setChangeListener([&changes] { ++changes; });
    QCOMPARE(front.callLog()->resetAll(), 0);
    QCOMPARE(changes, 1);
    front.faults().set(operationIndex("CallLog::resetAll"), 9);
    QCOMPARE(front.callLog()->resetAll(), 9);
    QCOMPARE(changes, 1);
    front.setChangeListener(nullptr);
    front.faults().clear();
    QCOMPARE(front.callLog()->resetAll(), 0);
    QCOMPARE(changes, 1);
}

KAV_TEST_GROUP(TestFaults, QCoreApplication);
#include "tst_faults.moc"
