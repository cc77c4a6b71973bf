// Thousands of random keys on the Call-Cost Setup screen, over a handset that fails and changes at random. A
// model says what a person must see, what the handset must be asked, and what it must have in the end.
#include "utility/CostSetupModel.h"
#include "utility/PHONE_UI_RecentCallCostSetupView.h"
#include "utility/PHONE_UI_RecentCallCostsView.h"

#include "support/OtherPinEntry.h"
#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/Sample.h"
#include "support/ScreenClock.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZNoticeDlg.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>

#include <functional>
#include <span>

using View = PHONE_UI_RecentCallCostSetupView;
using Host = HostedScreen<PHONE_UI_RecentCallCostsView>;
using Mood = HandsetMood;

KAV_EXPOSE(CurIndex, &View::curIndex);
KAV_EXPOSE(CurCallSetType, &View::curCallSetType);
KAV_EXPOSE(CurDialog, &View::curDialog);
KAV_EXPOSE(MeterMax, &View::preMeterMax);
KAV_EXPOSE(CMMEnable, &View::preCMMEnable);
KAV_EXPOSE(ChargeType, &View::preChargeType);
KAV_EXPOSE(CurrencyTable, &View::preCurrencyTable);
KAV_EXPOSE(PricePerUnit, &View::prePricePerUnit);
KAV_EXPOSE(MeterMaxChanged, &View::preMeterMaxChanged);
KAV_EXPOSE(CMMEnableChanged, &View::preCMMEnableChanged);
KAV_EXPOSE(ChargeTypeChanged, &View::preChargeTypeChanged);
KAV_EXPOSE(CurrencyTableChanged, &View::preCurrencyTableChanged);
KAV_EXPOSE(PricePerUnitChanged, &View::prePricePerUnitChanged);

namespace {

constexpr quint32 seeds[] = {1, 2, 20260731, 4294967295};
constexpr int keyCount = 25000; // a seed
constexpr int setupRow = 7;     // of the Call Costs screen
constexpr qsizetype longestNumber = 12;

// --- the handset

/// In its moods, with what it stores. Calls, which the walk does not look at, are a scripted handset's.
class MoodyHandset final : public handset::DecoratedHandset<MoodyHandset>
{
public:
    MoodyHandset(const Mood &handsetMood, const std::shared_ptr<ScriptedHandset> &calls)
        : DecoratedHandset(calls)
        , script(calls->script)
        , mood(handsetMood)
    {
        takeAway(QStringLiteral("DataCalls"));
        takeAway(QStringLiteral("PacketData"));
    }

    Script &script;
    ChargeSettings stored;
    std::function<void()> whenPinIsAsked; // by the PIN entry, which waits for its user afterwards

    template <typename... Arguments>
    std::optional<int> before(int operation, Arguments &...arguments)
    {
        if (operation < handset::operationIndex("AdviceOfCharge::updateRule"))
            return {};
        Script::record(operation, arguments...);
        if (operation == handset::operationIndex("SimSecurity::pinStatus") ||
            operation == handset::operationIndex("SimSecurity::verifyPin"))
            whenPinIsAsked();
        const int status = mood.status[static_cast<std::size_t>(operation)];
        if (status == 0)
            answer(arguments...);
        return status;
    }

private:
    void answer(const quint8 &file, quint8 &rule) { rule = mood.rules.value(file); }
    void answer(QString &maximum, bool &enabled)
    {
        maximum = stored.limit;
        enabled = stored.limitIsOn;
    }
    void answer(const QString &maximum)
    {
        stored.limit = maximum;
        stored.limitIsOn = true;
    }
    void answer() { stored.limitIsOn = false; }
    void answer(quint8 &type) { type = stored.chargeType; }
    void answer(const quint8 &type) { stored.chargeType = type; }
    void answer(QString &price, QString &currency)
    {
        price = stored.price;
        currency = stored.currency;
    }
    void answer(const QString &price, const QString &currency)
    {
        stored.price = price;
        stored.currency = currency;
    }
    void answer(const quint8 &, quint32 &pinStatus) { pinStatus = mood.pinStatus; }
    void answer(const quint8 &, int &tries) { tries = mood.triesLeft; }
    void answer(const quint8 &, const QByteArray &digits, bool &accepted) { accepted = digits == "1234"; }
    // Those of the roles that are not its own.
    template <typename... Arguments>
    void answer(Arguments &...)
    {
        qFatal("the scripted telephone has not answered");
    }

    const Mood &mood;
};

// --- keys, as often as a hand finds them

struct Likely {
    int key;
    int weight;
};

constexpr Likely keysOnScreen[] = {
    {Qt::Key_Up, 6},       {Qt::Key_Down, 6},  {Qt::Key_Select, 9}, {Qt::Key_Context1, 1},
    {Qt::Key_Context2, 1}, {Qt::Key_Clear, 1}, {Qt::Key_5, 1},      {Qt::Key_Period, 1},
};
constexpr Likely keysOnNotice[] = {
    {Qt::Key_Context1, 4}, {Qt::Key_Select, 4}, {Qt::Key_Clear, 3}, {Qt::Key_Context2, 1},
    {Qt::Key_Up, 1},       {Qt::Key_Down, 1},   {Qt::Key_1, 1},
};
constexpr Likely keysOnSwitch[] = {
    {Qt::Key_Up, 4},       {Qt::Key_Down, 4},     {Qt::Key_Select, 4},
    {Qt::Key_Context1, 4}, {Qt::Key_Context2, 2}, {Qt::Key_Clear, 2},
};
constexpr Likely keysOnList[] = {
    {Qt::Key_Up, 6},    {Qt::Key_Down, 8}, {Qt::Key_Select, 5}, {Qt::Key_Context1, 4}, {Qt::Key_Context2, 1},
    {Qt::Key_Clear, 1}, {Qt::Key_9, 1},    {Qt::Key_4, 1},      {Qt::Key_S, 2},
};
constexpr Likely keysOnNumber[] = {
    {Qt::Key_0, 4},          {Qt::Key_1, 2},        {Qt::Key_2, 1},      {Qt::Key_3, 1},        {Qt::Key_4, 1},
    {Qt::Key_5, 1},          {Qt::Key_6, 1},        {Qt::Key_7, 1},      {Qt::Key_8, 1},        {Qt::Key_9, 1},
    {Qt::Key_Period, 3},     {Qt::Key_Asterisk, 2}, {Qt::Key_Minus, 1},  {Qt::Key_E, 1},        {Qt::Key_A, 1},
    {Qt::Key_NumberSign, 2}, {Qt::Key_Context1, 5}, {Qt::Key_Select, 5}, {Qt::Key_Context2, 1}, {Qt::Key_Clear, 1},
    {Qt::Key_Up, 1},         {Qt::Key_Down, 1},
};
constexpr Likely keysOnCode[] = {
    {Qt::Key_0, 2},          {Qt::Key_1, 1},        {Qt::Key_2, 4},      {Qt::Key_3, 1},
    {Qt::Key_4, 1},          {Qt::Key_5, 1},        {Qt::Key_6, 1},      {Qt::Key_7, 4},
    {Qt::Key_8, 1},          {Qt::Key_9, 1},        {Qt::Key_A, 1},      {Qt::Key_E, 1},
    {Qt::Key_U, 1},          {Qt::Key_Period, 1},   {Qt::Key_Minus, 1},  {Qt::Key_Asterisk, 2},
    {Qt::Key_NumberSign, 2}, {Qt::Key_Context1, 3}, {Qt::Key_Select, 3}, {Qt::Key_Context2, 2},
    {Qt::Key_Clear, 1},      {Qt::Key_Up, 1},       {Qt::Key_Down, 1},
};
constexpr Likely keysOnLongNumber[] = {{Qt::Key_NumberSign, 1}, {Qt::Key_Context1, 1}};

std::span<const Likely> keysFor(const CostSetupModel::Popup *popup)
{
    if (!popup)
        return keysOnScreen;
    switch (popup->kind) {
    case CostSetupModel::Kind::Notice:
        return keysOnNotice;
    case CostSetupModel::Kind::Choice:
        if (popup->editor == CostSetupModel::List)
            return keysOnList;
        return keysOnSwitch;
    case CostSetupModel::Kind::Entry:
        break;
    }
    if (popup->editor == CostSetupModel::CustomEntry)
        return keysOnCode;
    if (popup->text.size() < longestNumber)
        return keysOnNumber;
    return keysOnLongNumber;
}

template <typename Items>
const auto &oneOf(QRandomGenerator &random, const Items &items)
{
    return items[size_t(random.bounded(int(std::size(items))))];
}

int likelyKey(QRandomGenerator &random, std::span<const Likely> keys)
{
    int all = 0;
    for (const Likely &likely : keys)
        all += likely.weight;
    int left = random.bounded(all);
    for (const Likely &likely : keys) {
        left -= likely.weight;
        if (left < 0)
            return likely.key;
    }
    return keys.back().key;
}

ZPopup *seen(const QList<ZPopup *> &popups)
{
    ZPopup *found = nullptr;
    for (ZPopup *popup : popups) {
        if (popup->isVisible())
            found = popup;
    }
    return found;
}

QStringList titles(const ZListBox *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->title());
    return texts;
}

QString told(const ChargeSettings &settings)
{
    return QStringLiteral("limit %1 %2, type %3, price %4 %5")
        .arg(settings.limit, settings.limitIsOn ? QStringLiteral("on") : QStringLiteral("off"))
        .arg(settings.chargeType)
        .arg(settings.price, settings.currency);
}

QString told(const CostSetupModel::Changes &changes)
{
    return QStringLiteral("limit %1, on %2, type %3, price %4, currency %5")
        .arg(changes.limit)
        .arg(changes.limitIsOn)
        .arg(changes.chargeType)
        .arg(changes.price)
        .arg(changes.currency);
}

// Each is to happen in a walk that is worth its name.
constexpr const char *worthMentioning[] = {
    "AdviceOfCharge::chargeType fails",
    "AdviceOfCharge::disableMeterMaximum fails",
    "AdviceOfCharge::meterMaximum fails",
    "AdviceOfCharge::priceAndCurrency fails",
    "AdviceOfCharge::setChargeType fails",
    "AdviceOfCharge::setMeterMaximum fails",
    "AdviceOfCharge::setPriceAndCurrency fails",
    "AdviceOfCharge::updateRule fails",
    "Back with edits to write",
    "Cancel in the custom code leads back to the list",
    "PIN2 cannot be asked, and that is said",
    "PIN2 is accepted",
    "PIN2 is not accepted",
    "a choice is cancelled",
    "a currency is chosen",
    "a currency whose name ends in a blank is chosen",
    "a custom code is saved",
    "a disabled row is selected",
    "a limit is saved",
    "a new limit drops the switched-off one",
    "a popup is left behind",
    "a price is saved",
    "a row that must not be updated comes back enabled",
    "a small number becomes 0.000",
    "an empty entry is shown again",
    "an entry is cancelled",
    "costs are reset",
    "the currency is switched",
    "the limit is switched off",
    "the limit is switched on",
    "the screen goes after Back",
    "the screen goes before its timer",
    "the screen goes with edits to write",
    "the screen goes without Back",
    "the timer closes a notice",
    "the timer closes an open editor",
    "the timer finds nothing to close",
    "the timer takes away a hidden editor",
};

} // namespace

class TestCostSetupWalk : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyKeyDoesWhatThePersonExpects_data();
    void everyKeyDoesWhatThePersonExpects();
    void theWalksMetEverythingWorthMentioning();

private:
    void open();
    void openHosted();
    void openAlone();
    void destroyScreen();
    void leaveBehind(bool hosted);

    void step();
    void pressAny();
    void pressKey(int key);
    void changeMood();
    void changeStored();
    void planPin();
    void planScriptedPin();
    void pinWasAsked();
    void answerPin();

    void did(const QString &what);
    void expectCallCosts();
    void adoptRow(int key);
    void compare();
    void compareRows();
    void comparePopups();
    void comparePopup(const CostSetupModel::Popup &expectedPopup, ZPopup *popup);
    void compareMembers();
    void tellTrail() const;

    ExpectedHandset expected;
    std::shared_ptr<MoodyHandset> handset;
    std::unique_ptr<CostSetupModel> model;
    std::unique_ptr<Host> host;
    std::unique_ptr<View> alone;
    QPointer<View> screen;
    std::unique_ptr<QSignalSpy> closed;
    QRandomGenerator random;
    std::unique_ptr<OtherPinEntry> otherPinEntry; // null for the phone's own
    QStringList trail;                            // what was done lately
    int keys = 0;
    qsizetype attempt = 0; // of the PIN entry
    bool hasWaited = false;
    QMap<QString, int> counts; // of all walks
    int walks = 0;
};

void TestCostSetupWalk::init()
{
    PhoneTest::init();
    traces.reset(); // nobody reads them here
    ScreenClock::restart();
    expected = {};
    handset = std::make_shared<MoodyHandset>(expected.mood, std::make_shared<ScriptedHandset>());
    handset->whenPinIsAsked = [this] { pinWasAsked(); };
    handset::install(handset);
    trail.clear();
    keys = 0;
}

void TestCostSetupWalk::cleanup()
{
    alone.reset();
    host.reset();
    closed.reset();
    model.reset();
    otherPinEntry.reset();
    PhoneTest::cleanup();
}

// --- the screen's lives

void TestCostSetupWalk::openAlone()
{
    journal.take();
    alone = std::make_unique<View>(nullptr, "setup");
    alone->show();
    screen = alone.get();
}

void TestCostSetupWalk::openHosted()
{
    if (!host) {
        host = std::make_unique<Host>("callCost");
        (*host)->show();
    }
    journal.take();
    PhoneScreen::chooseRow(host->get(), setupRow);
    screen = (*host)->findChild<View *>();
}

void TestCostSetupWalk::open()
{
    constexpr quint8 rules[] = {0, 0, 4, 4, 6, 5};
    for (quint8 &rule : expected.mood.rules)
        rule = oneOf(random, rules);
    did(QStringLiteral("open"));
    if (host || random.bounded(2) == 0)
        openHosted();
    else
        openAlone();
    model = std::make_unique<CostSetupModel>(expected);
    QVERIFY(screen);
    closed = std::make_unique<QSignalSpy>(screen.data(), "2closeWgt()");
    compare();
}

// Without Back: whoever has the screen deletes it.
void TestCostSetupWalk::destroyScreen()
{
    did(QStringLiteral("destroy"));
    model->destroy();
    leaveBehind(false);
    COMPARE_LINES(journal.take(), expected.calls);
    expected.calls.clear();
    QCOMPARE(told(handset->stored), told(expected.stored));
    QVERIFY(ScreenClock::pending().isEmpty());
}

void TestCostSetupWalk::leaveBehind(bool hosted)
{
    alone.reset();
    if (!hosted)
        host.reset();
    QVERIFY(!screen);
    model.reset();
}

// What the Call Costs screen asks when it comes back.
void TestCostSetupWalk::expectCallCosts()
{
    model->askUnit();
    expected.calls +=
        {"CallService::remainingCredit", "CallLog::depositExpirationDate", "CallLog::lastDeposit",
         "CallService::lastCallCost",    "CallLog::dialedCallsCost",       "CallLog::answeredCallsCost",
         "CallLog::allCallsCost"};
}

// --- what happens

void TestCostSetupWalk::did(const QString &what)
{
    trail.append(what);
    if (trail.size() > 40)
        trail.removeFirst();
}

void TestCostSetupWalk::tellTrail() const
{
    qInfo("%s, key %d; lately: %s", QTest::currentDataTag(), keys, qPrintable(trail.join(QLatin1String(", "))));
}

void TestCostSetupWalk::step()
{
    const int dice = random.bounded(1000);
    if (dice < 900) {
        pressAny();
    } else if (dice < 925) {
        changeMood();
    } else if (dice < 965) {
        const int milliseconds = random.bounded(1, 6000);
        did(QStringLiteral("%1 ms").arg(milliseconds));
        ScreenClock::advance(milliseconds);
        model->advance(milliseconds);
        compare();
    } else if (dice < 975) {
        changeStored();
    } else if (dice < 990) {
        QCoreApplication::sendPostedEvents();
        compare();
    } else {
        expected.happened("the screen is destroyed by its maker");
        destroyScreen();
        if (!QTest::currentTestFailed())
            open();
    }
}

// The rows at the list's end are reached from its beginning: now and then the bar goes there in one go.
void TestCostSetupWalk::pressAny()
{
    const CostSetupModel::Popup *popup = model->visible();
    if (popup && popup->editor == CostSetupModel::List && random.bounded(10) == 0) {
        for (int ups = random.bounded(2, 14); ups > 0 && !QTest::currentTestFailed(); --ups)
            pressKey(Qt::Key_Up);
        return;
    }
    pressKey(likelyKey(random, keysFor(popup)));
}

void TestCostSetupWalk::pressKey(int key)
{
    const CostSetupModel::Popup *popup = model->visible();
    const bool typesInList = popup && popup->editor == CostSetupModel::List && key < 0x80;
    planPin();
    did(QKeySequence(key).toString());
    expected.happened(qPrintable(QStringLiteral("key ") + QKeySequence(key).toString()));
    ++keys;
    const int closings = model->closings;
    QVERIFY(ZApplication::pressKey(key));
    model->press(key);
    if (typesInList)
        adoptRow(key);
    if (host && model->closings != closings) {
        model->destroy();
        expectCallCosts();
        leaveBehind(true);
        COMPARE_LINES(journal.take(), expected.calls);
        expected.calls.clear();
        QCOMPARE(told(handset->stored), told(expected.stored));
        if (random.bounded(3) == 0)
            host.reset();
        open();
        return;
    }
    compare();
}

// One operation at the most fails at a time, with a code of its own.
void TestCostSetupWalk::changeMood()
{
    constexpr int codes[] = {1, 3, -1, 255};
    constexpr quint32 statuses[] = {0, 1, 1, 2, 3, 3, 255};
    constexpr const char *resets[] = {"CallLog::resetAll", "CallLog::resetAllCallsCost",
                                      "CallLog::resetDialedCallsCost", "CallLog::resetAnsweredCallsCost"};
    constexpr int firstOfCharge = handset::operationIndex("AdviceOfCharge::updateRule");
    constexpr int firstBehind = handset::operationIndex("PacketData::sessions");
    Mood &mood = expected.mood;
    mood.status.fill(0);
    if (random.bounded(3) != 0)
        mood.status[size_t(firstOfCharge + random.bounded(firstBehind - firstOfCharge))] = oneOf(random, codes);
    mood.pinStatus = oneOf(random, statuses);
    mood.statusOf("SimSecurity::pinStatus") = random.bounded(8) == 0 ? oneOf(random, codes) : 0;
    mood.statusOf("SimSecurity::verifyPin") = random.bounded(8) == 0 ? oneOf(random, codes) : 0;
    mood.triesLeft = random.bounded(10) == 0 ? 0 : 3;
    for (const char *reset : resets)
        handset->script.fail(reset, random.bounded(3) == 0 ? oneOf(random, codes) : 0);
    did(QStringLiteral("another mood"));
}

// The SIM card's files are written by others as well.
void TestCostSetupWalk::changeStored()
{
    constexpr quint8 types[] = {0, 1, 1, 1, 2, 7};
    constexpr const char *currencies[] = {"", "GBP", "EUR", "OF)", "usd"};
    ChargeSettings &stored = expected.stored;
    stored.limit = QString::number(random.bounded(1000));
    stored.limitIsOn = random.bounded(3) != 0;
    stored.chargeType = oneOf(random, types);
    stored.price = QString::number(random.bounded(100)) + QLatin1String(".5");
    stored.currency = QString::fromLatin1(oneOf(random, currencies));
    handset->stored = stored;
    did(QStringLiteral("other settings"));
}

// --- PIN2

void TestCostSetupWalk::planScriptedPin()
{
    constexpr int answers[][2] = {{1, 0}, {7, 0}, {-1, 0}, {1, 3}, {0, 0}, {0, 1}};
    const auto &[result, error] = oneOf(random, answers);
    expected.nextPin.isScripted = true;
    expected.nextPin.result = result;
    expected.nextPin.error = error;
    otherPinEntry = std::make_unique<OtherPinEntry>(result, SETUP_SECURITY_PINVERIFY_ERR_E(error));
    otherPinEntry->whenCalled = [this](const OtherPinEntry::Call &call) {
        const QString place = call.parent == screen ? QString() : QStringLiteral(" over another widget");
        journal.record(
            QStringLiteral("SETUP_SECURITY_Util::verifyPin(%1, %2)").arg(call.pinType).arg(call.softkeys) + place);
        ScreenClock::advance(expected.nextPin.waits);
    };
}

void TestCostSetupWalk::planPin()
{
    const QList<QByteArray> plans[] = {{"1234"}, {"1234"}, {"9999", "1234"}, {"9999", ""}, {""}};
    expected.nextPin = {};
    otherPinEntry.reset();
    attempt = 0;
    hasWaited = false;
    expected.nextPin.waits = random.bounded(4) == 0 ? 2500 : 0;
    if (random.bounded(4) == 0)
        planScriptedPin();
    else
        expected.nextPin.attempts = oneOf(random, plans);
}

// The entry blocks: the user comes from the event loop.
void TestCostSetupWalk::pinWasAsked()
{
    if (!otherPinEntry)
        QMetaObject::invokeMethod(
            this, [this] { answerPin(); }, Qt::QueuedConnection);
}

void TestCostSetupWalk::answerPin()
{
    ZPopup *popup = screen ? seen(screen->findChildren<ZPopup *>()) : nullptr;
    const QByteArray name = popup ? popup->metaObject()->className() : "";
    if (name != "PinEntryDlg" && name != "ZMessageDlg")
        return;
    if (!std::exchange(hasWaited, true))
        ScreenClock::advance(expected.nextPin.waits);
    if (name == "ZMessageDlg") {
        expected.happened("PIN2 cannot be asked, and that is said");
        PhoneScreen::press(ZKeys::PhoneKey::LeftSoftkey);
        return;
    }
    const QByteArray digits = expected.nextPin.attempts.value(attempt++);
    for (const char digit : digits)
        ZApplication::pressKey(digit);
    PhoneScreen::press(digits.isEmpty() ? ZKeys::PhoneKey::RightSoftkey : ZKeys::PhoneKey::LeftSoftkey);
}

// --- what is to be seen

// Where a typed character leads is the toolkit's own: a row that begins with it, if there is one.
void TestCostSetupWalk::adoptRow(int key)
{
    static const QMap<int, QString> starts = {
        {Qt::Key_9, "WXYZ"}, {Qt::Key_4, "GHI"}, {Qt::Key_I, "I"}, {Qt::Key_S, "S"}};
    const auto *choice = qobject_cast<ZSingleSelectDlg *>(seen(screen->findChildren<ZPopup *>()));
    QVERIFY(choice);
    const int row = const_cast<ZSingleSelectDlg *>(choice)->getListBox()->currentItem();
    CostSetupModel::Popup *popup = model->visible();
    QVERIFY(popup);
    const QChar first = CostSetupModel::choices(popup->editor).at(row).at(0);
    QVERIFY(row == popup->row || starts.value(key).contains(first));
    popup->row = row;
}

void TestCostSetupWalk::compare()
{
    if (QTest::currentTestFailed())
        return;
    COMPARE_LINES(journal.take(), expected.calls);
    expected.calls.clear();
    QCOMPARE(told(handset->stored), told(expected.stored));
    QCOMPARE(int(closed->count()), model->closings);
    QList<ScreenClock::Timer> timers;
    for (const int left : std::as_const(model->timers))
        timers.append({left, "1slotClose()"});
    QCOMPARE(ScreenClock::pending(), timers);
    compareRows();
    comparePopups();
    compareMembers();
}

void TestCostSetupWalk::compareRows()
{
    const ZListBox *list = PhoneScreen::list(screen);
    QCOMPARE(list->count(), int(model->rows.size()));
    for (int row = 0; row < list->count(); ++row) {
        const CostSetupModel::Row &expectedRow = model->rows[size_t(row)];
        QCOMPARE(list->item(row)->title(), expectedRow.title);
        QCOMPARE(list->item(row)->value(), expectedRow.value);
        QCOMPARE(list->item(row)->enabled(), expectedRow.isEnabled);
    }
    QCOMPARE(list->currentItem(), model->bar);
}

void TestCostSetupWalk::comparePopups()
{
    const auto popups = screen->findChildren<ZPopup *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(size_t(popups.size()), model->popups.size());
    ZPopup *popup = seen(popups);
    const CostSetupModel::Popup *expectedPopup = model->visible();
    QCOMPARE(bool(popup), bool(expectedPopup));
    if (popup)
        comparePopup(*expectedPopup, popup);
}

void TestCostSetupWalk::comparePopup(const CostSetupModel::Popup &expectedPopup, ZPopup *popup)
{
    QCOMPARE(popup->header(), expectedPopup.header);
    QString left;
    QString right;
    switch (expectedPopup.kind) {
    case CostSetupModel::Kind::Notice: {
        const auto *notice = qobject_cast<ZNoticeDlg *>(popup);
        QVERIFY(notice);
        QCOMPARE(notice->message(), expectedPopup.text);
        left = QStringLiteral("OK");
        break;
    }
    case CostSetupModel::Kind::Choice: {
        auto *choice = qobject_cast<ZSingleSelectDlg *>(popup);
        QVERIFY(choice);
        COMPARE_LINES(titles(choice->getListBox()), CostSetupModel::choices(expectedPopup.editor));
        QCOMPARE(choice->getListBox()->currentItem(), expectedPopup.row);
        left = QStringLiteral("Select");
        right = QStringLiteral("Cancel");
        break;
    }
    case CostSetupModel::Kind::Entry: {
        auto *entry = qobject_cast<ZSingleCaptureDlg *>(popup);
        QVERIFY(entry);
        QCOMPARE(entry->getMultiLineEdit()->toPlainText(), expectedPopup.text);
        left = QStringLiteral("Save");
        right = QStringLiteral("Cancel");
        break;
    }
    }
    QCOMPARE(popup->softKey()->text(ZSoftKey::LeftKey), left);
    QCOMPARE(popup->softKey()->text(ZSoftKey::RightKey), right);
}

void TestCostSetupWalk::compareMembers()
{
    const View &view = *screen;
    QCOMPARE(view.*exposed(CurIndex()), model->lastIndex);
    QCOMPARE(view.*exposed(CurCallSetType()), model->lastEditor);
    const ZPopup *current = view.*exposed(CurDialog());
    QCOMPARE(bool(current), bool(model->current));
    if (current) {
        QCOMPARE(current->header(), model->current->header);
        QCOMPARE(current->isVisible(), model->current->isVisible);
    }
    const ChargeSettings edited = {view.*exposed(MeterMax()), view.*exposed(CMMEnable()),
                                   view.*exposed(ChargeType()), view.*exposed(PricePerUnit()),
                                   view.*exposed(CurrencyTable())};
    QCOMPARE(told(edited), told(model->edited));
    const CostSetupModel::Changes changes = {
        view.*exposed(MeterMaxChanged()), view.*exposed(CMMEnableChanged()), view.*exposed(ChargeTypeChanged()),
        view.*exposed(CurrencyTableChanged()), view.*exposed(PricePerUnitChanged())};
    QCOMPARE(told(changes), told(model->changes));
}

// --- the walk

void TestCostSetupWalk::everyKeyDoesWhatThePersonExpects_data()
{
    QTest::addColumn<quint32>("seed");
    for (std::size_t i = 0; i < std::size(seeds); i += std::size_t(sampleStride(int(std::size(seeds)))))
        QTest::addRow("seed %u", seeds[i]) << seeds[i];
}

void TestCostSetupWalk::everyKeyDoesWhatThePersonExpects()
{
    QFETCH(const quint32, seed);
    const TraceSink noTraces;
    random = QRandomGenerator(seed);
    QElapsedTimer time;
    time.start();
    changeStored();
    open();
    while (keys < keyCount / sampleStride(2) && !QTest::currentTestFailed())
        step();
    if (QTest::currentTestFailed()) {
        tellTrail();
        return;
    }
    destroyScreen();
    ++walks;
    QStringList counted;
    for (auto it = expected.counts.cbegin(); it != expected.counts.cend(); ++it) {
        counts[it.key()] += it.value();
        counted.append(QStringLiteral("%1: %2").arg(it.key()).arg(it.value()));
    }
    qInfo("%d keys in %lld ms; %s", keys, time.elapsed(), qPrintable(counted.join(QLatin1String("; "))));
}

void TestCostSetupWalk::theWalksMetEverythingWorthMentioning()
{
    if (walks < int(std::size(seeds)))
        QSKIP("not all walks were taken, or they failed");
    for (const char *what : worthMentioning)
        QVERIFY2(counts.value(QString::fromLatin1(what)) > 0, what);
}

KAV_TEST_GROUP(TestCostSetupWalk, QApplication);
#include "tst_cost_setup_walk.moc"
