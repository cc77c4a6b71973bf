// What the Call-Cost Setup screen asks of the toolkit and the handset, call by call, with the exact arguments
// and in the exact order; and what it does when an object cannot be made.
#include "callsetup/PHONE_ENG_Setup.h"
#include "utility/ListedCurrencies.h"
#include "utility/PHONE_UI_RecentCallCostSetupView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/AllocationFailure.h"
#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"
#include "support/ScreenClock.h"
#include "support/ToolkitRecorder.h"

#include "log/aplog.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZNoticeDlg.h"
#include "toolkit/ZPopup.h"
#include "toolkit/ZSettingItem.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

#include <cstdio>
#include <dlfcn.h>

using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallCostSetupView;

KAV_EXPOSE(CurDialog, &View::curDialog);
KAV_EXPOSE(ShowSelectDlg, &View::showSelectDlg);
KAV_EXPOSE(ShowCaptureDlg, &View::showCaptureDlg);
KAV_EXPOSE(CurCallSetType, &View::curCallSetType);
KAV_EXPOSE(Meter, &View::meter);
KAV_EXPOSE(IsSignalConnected, &QObject::isSignalConnected);

namespace {

constexpr int rowCount = 9;
constexpr int limitRow = 4;
constexpr int adjustRow = 5;
constexpr int currencyRow = 6;
constexpr int typeRow = 7;
constexpr int priceRow = 8;

constexpr const char *titles[rowCount] = {"Reset All",
                                          "Reset All Call Costs",
                                          "Reset Dialed Call Costs",
                                          "Reset Answered Call Costs",
                                          "Credit Limit",
                                          "Adjust Credit Limit",
                                          "Currency",
                                          "Currency Type",
                                          "Cost Per Minute"};
constexpr const char *firstValues[rowCount] = {nullptr, nullptr, nullptr, nullptr, "On", "", "On", "", ""};

const QString numberMethods =
    QStringLiteral("637a8c00-1098-42ca-969a-2bf163cd3c14, 2 methods 637a8c00-1098-42ca-969a-2bf163cd3c14 "
                   "637a8c00-1098-42ca-969a-2bf163cd3c15, 6, null");
const QString letterMethods = QStringLiteral(
    "637a8c00-1098-42ca-969a-2bf163cd3c12, 1 methods 637a8c00-1098-42ca-969a-2bf163cd3c12, 0, null");

// What the screen reads after every write, as init() scripts the answers.
const QStringList refreshSteps = {
    "AdviceOfCharge::chargeType",
    "AdviceOfCharge::priceAndCurrency",
    "AdviceOfCharge::meterMaximum",
    "row 4.setSubItem(0, 1, \"On\", false, 1)",
    "row 5.setEnabled(true)",
    "row 5.setSubItem(0, 1, \"100 GBP\", false, 1)",
    "AdviceOfCharge::chargeType",
    "row 6.setSubItem(0, 1, \"On\", false, 1)",
    "row 7.setEnabled(true)",
    "row 8.setEnabled(true)",
    "AdviceOfCharge::priceAndCurrency",
    "row 7.setSubItem(0, 1, \"GBP\", false, 1)",
    "row 8.setSubItem(0, 1, \"0.10 GBP\", false, 1)",
};

QStringList frameSteps(QSize content)
{
    return {
        "ZKbMainWidget(host, \"setup\", 0)",
        "screen.setMainWidgetTitle(\"Call-Cost Setup\")",
        "ZSoftKey(\"CST_2A\", screen, null)",
        "softKey.setText(1, \"Back\", 0)",
        "softKey.setText(0, \"\", 0)",
        "softKey.setClickedSlot(1, screen, \"1slotBack()\")",
        "screen.setCSTWidget(softKey)",
        "screen.getContentWidget(true)",
        "ZListBox(\"%M\", content, 0, 40)",
        QStringLiteral("list.setGeometry(0, 0, %1, %2)").arg(content.width()).arg(content.height()),
        "connect(list, \"2selected(ZSettingItem *)\", screen, \"1slotSelectedItem(ZSettingItem *)\")",
        "connect(screen, \"2clearKeyClicked()\", screen, \"1slotBack()\")",
    };
}

QStringList rowSteps()
{
    QStringList steps;
    for (int row = 0; row < rowCount; ++row) {
        const QString name = QStringLiteral("row %1").arg(row);
        steps.append("ZSettingItem(list, null)");
        steps.append(name + QStringLiteral(".appendSubItem(0, \"%1\", false, 0)").arg(titles[row]));
        if (firstValues[row])
            steps.append(name + QStringLiteral(".appendSubItem(0, \"%1\", false, 1)").arg(firstValues[row]));
        steps.append(QStringLiteral("list.insertItem(%1, -1, true)").arg(name));
    }
    return steps;
}

QStringList choiceStep(int choice, int subItem, const QString &text)
{
    const QString name = QStringLiteral("choice %1").arg(choice);
    return {"ZListBoxItem(choices, null)",
            name + QStringLiteral(".appendSubItem(%1, \"").arg(subItem) + text +
                QStringLiteral("\", \"\", null, 50, 2)"),
            QStringLiteral("choices.insertItem(%1, -1, true)").arg(name)};
}

// A choice dialog, the `number`th dialog, whose rows are made by `rowSteps`.
QStringList choiceSteps(int number, const QString &header, const QString &layout, const QStringList &rowSteps,
                        const QString &answer)
{
    const QString dialog = QStringLiteral("dialog %1").arg(number);
    const auto connection = [&](const char *signal, const QString &slot) {
        return QStringLiteral("connect(%1, \"2%2()\", screen, \"1%3()\")").arg(dialog, signal, slot);
    };
    return QStringList({QStringLiteral("ZSingleSelectDlg(\"%1\", null, screen, null, true, 0, 0)").arg(header),
                        dialog + ".getListBox()", connection("rightSoftkeyClicked", "slotClose"),
                        QStringLiteral("choices.setItemType(\"%1\")").arg(layout)}) +
           rowSteps +
           QStringList({connection("leftSoftkeyClicked", answer), connection("signalCenterSelKeyPressed", answer),
                        "choices.setSelected(0, true)", dialog + ".show()"});
}

QStringList switchSteps(const QString &header)
{
    return choiceSteps(1, header, QStringLiteral("%I%M"), choiceStep(0, 1, "On") + choiceStep(1, 1, "Off"),
                       QStringLiteral("slotSingleSelect"));
}

QStringList listSteps(int number, const QString &header, int firstChoice)
{
    QStringList rows = choiceStep(firstChoice, 0, QStringLiteral("Custom"));
    for (const ListedCurrency &currency : listedCurrencies)
        rows += choiceStep(++firstChoice, 0, QString::fromUtf8(currency.name));
    return choiceSteps(number, header, QStringLiteral("%M"), rows, QStringLiteral("slotSelect"));
}

QStringList entrySteps(int number, const QString &header, const QString &methods, const QStringList &limit,
                       const QString &right)
{
    const QString dialog = QStringLiteral("dialog %1").arg(number);
    return QStringList({QStringLiteral("ZSingleCaptureDlg(\"%1\", null, 2, screen, null, true, 0, 0)").arg(header),
                        dialog + ".setSoftkeyTextLeft(\"Save\")", dialog + ".getMultiLineEdit()",
                        QStringLiteral("setInputMethods(field, %1)").arg(methods)}) +
           limit +
           QStringList(
               {QStringLiteral("connect(%1, \"2rightSoftkeyClicked()\", screen, \"1%2()\")").arg(dialog, right),
                QStringLiteral("connect(%1, \"2leftSoftkeyClicked()\", screen, \"1slotSave()\")").arg(dialog),
                dialog + ".show()"});
}

// While it lives, the message of every trace in the long form goes into the journal, in its place among the steps.
class JournalledTraces
{
public:
    JournalledTraces()
        : previous(libaplog_to_module_ptr)
        , stream(fopencookie(this, "w", {nullptr, &JournalledTraces::write, nullptr, nullptr}))
    {
        std::setvbuf(stream, nullptr, _IONBF, 0); // a trace is one write
        libaplog_to_module_ptr = stream;
    }
    ~JournalledTraces()
    {
        libaplog_to_module_ptr = previous;
        std::fclose(stream);
    }
    Q_DISABLE_COPY_MOVE(JournalledTraces)

private:
    static ssize_t write(void *, const char *text, size_t size)
    {
        const QString trace = QString::fromLatin1(text, qsizetype(size));
        if (trace.startsWith(QLatin1Char('\n')))
            Journal::shared().record("trace " + trace.section(QLatin1Char('"'), 1, 1));
        return ssize_t(size);
    }

    FILE *previous;
    FILE *stream;
};

// Tells when a notice comes on show whether its time already runs.
class NoticeWatch : public QObject
{
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<ZNoticeDlg *>(object))
            timersThen.append(int(ScreenClock::pending().size()));
        return false;
    }

    QList<int> timersThen;
};

int enginesAsked = 0;

} // namespace

// Stands for PHONE_ENG_Setup::instance(), and goes on to it.
extern "C" PHONE_ENG_Setup *countedEngine() asm("_ZN15PHONE_ENG_Setup8instanceEv");

PHONE_ENG_Setup *countedEngine()
{
    static auto *const original =
        reinterpret_cast<PHONE_ENG_Setup *(*)()>(dlsym(RTLD_NEXT, "_ZN15PHONE_ENG_Setup8instanceEv"));
    ++enginesAsked;
    return original();
}

class TestCostSetupSteps : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theScreenIsBuiltInItsSteps_data();
    void theScreenIsBuiltInItsSteps();
    void aResetAsksNothingAndTellsInANotice_data();
    void aResetAsksNothingAndTellsInANotice();
    void anEditorIsMadeConnectedAndShown_data();
    void anEditorIsMadeConnectedAndShown();
    void customAndItsCancelLeadThereAndBack();
    void anEditorOfNoNumberHasNoRowsAndNoAnswer();
    void theLimitsSwitchRewritesItsRowAndNothingElse();
    void anAnswerIsWrittenAndReadAgain_data();
    void anAnswerIsWrittenAndReadAgain();
    void aSavedEntryGoesThenIsWrittenThenReadAgain();
    void aChoiceWithoutAListIsNotShown();
    void aChoiceThatCannotBeMadeLeavesTheEntryBeforeIt();
    void aResetTranslatesItsMessageFirst();
    void theEngineIsFetchedBeforeEveryCall();
    void theEnginesSignalsAreConnectedToNothing();
    void theMeterGoesWithTheScreen();
    void everyTraceStandsInItsPlaceAmongTheSteps_data();
    void everyTraceStandsInItsPlaceAmongTheSteps();
    void theNoticeIsOnShowBeforeItsTimeRuns();

    void withoutAMeterTheListStaysEmpty();
    void whatCannotBeMadeIsNotShown_data();
    void whatCannotBeMadeIsNotShown();

private:
    void open();
    void choose(int row);
    ZPopup *dialog() const { return view.get()->*exposed(CurDialog()); }

    std::unique_ptr<QWidget> host;
    std::unique_ptr<View> view;
};

void TestCostSetupSteps::init()
{
    PhoneTest::init();
    ToolkitRecorder::restart();
    ScreenClock::restart();
    script().answer("AdviceOfCharge::updateRule", quint8(0));
    script().answer("AdviceOfCharge::meterMaximum", QString("100"), true);
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    script().answer("SimSecurity::pinStatus", quint32(3));
    host = std::make_unique<QWidget>();
    journal.nameObject(host.get(), "host");
}

void TestCostSetupSteps::cleanup()
{
    view.reset();
    host.reset();
    PhoneTest::cleanup();
}

void TestCostSetupSteps::open()
{
    view = std::make_unique<View>(host.get(), "setup");
    host->show();
    view->show();
    journal.take();
}

// What the row does stands in the journal then.
void TestCostSetupSteps::choose(int row)
{
    ZListBox *list = PhoneScreen::list(view.get());
    list->setSelected(row, true);
    journal.take();
    PhoneScreen::press(PhoneKey::Select);
    QCOMPARE(journal.lines().value(0), QString("SimSecurity::pinStatus(1)"));
}

void TestCostSetupSteps::theScreenIsBuiltInItsSteps_data()
{
    QTest::addColumn<quint8>("rule");
    QTest::newRow("all files free") << quint8(0);
    QTest::newRow("no file may be updated") << quint8(6);
}

void TestCostSetupSteps::theScreenIsBuiltInItsSteps()
{
    QFETCH(const quint8, rule);
    script().answer("AdviceOfCharge::updateRule", rule);
    view = std::make_unique<View>(host.get(), "setup");
    QStringList steps = frameSteps(view->getContentWidget(false)->size());
    for (const int file : {61, 59, 64})
        steps.append(QStringLiteral("AdviceOfCharge::updateRule(%1)").arg(file));
    steps += rowSteps();
    for (int row = 0; rule == 6 && row < rowCount; ++row)
        steps.append(QStringLiteral("row %1.setEnabled(false)").arg(row));
    QStringList done = journal.take();
    done.removeLast(); // this test's own look at the content
    COMPARE_LINES(done, steps + refreshSteps);
}

void TestCostSetupSteps::aResetAsksNothingAndTellsInANotice_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("message");
    QTest::newRow(titles[0]) << 0 << "CallLog::resetAll"
                             << "All costs have been reset to 0.00 units.";
    QTest::newRow(titles[1]) << 1 << "CallLog::resetAllCallsCost"
                             << "All call costs have been reset to 0.00 units.";
    QTest::newRow(titles[2]) << 2 << "CallLog::resetDialedCallsCost"
                             << "Dialed call costs have been reset to 0.00 units.";
    QTest::newRow(titles[3]) << 3 << "CallLog::resetAnsweredCallsCost"
                             << "Answered call costs have been reset to 0.00 units.";
}

void TestCostSetupSteps::aResetAsksNothingAndTellsInANotice()
{
    QFETCH(const int, row);
    QFETCH(const QString, operation);
    QFETCH(const QString, message);
    open();
    choose(row);
    COMPARE_LINES(
        journal.take(),
        QStringList(
            {"SimSecurity::pinStatus(1)", operation,
             QStringLiteral("ZNoticeDlg(1, \"Reset Calls\", \"%1\", screen, null, true, 0, true)").arg(message),
             "dialog 1.show()"}));
    QCOMPARE(ScreenClock::pending(), QList<ScreenClock::Timer>({{5000, "1slotClose()"}}));
    ScreenClock::advance(5000);
    COMPARE_LINES(journal.take(), QStringList("delete dialog 1"));
}

void TestCostSetupSteps::anEditorIsMadeConnectedAndShown_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("the limit's switch") << limitRow << switchSteps("Credit Limit");
    QTest::newRow("the limit") << adjustRow
                               << entrySteps(1, "Adjust Credit Limit", numberMethods, {}, "slotClose");
    QTest::newRow("the currency's switch") << currencyRow << switchSteps("Currency");
    QTest::newRow("the currency") << typeRow << listSteps(1, "Choose Type", 0);
    QTest::newRow("the price") << priceRow << entrySteps(1, "Cost Per Minute", numberMethods, {}, "slotClose");
}

void TestCostSetupSteps::anEditorIsMadeConnectedAndShown()
{
    QFETCH(const int, row);
    QFETCH(const QStringList, steps);
    open();
    choose(row);
    COMPARE_LINES(journal.take(), QStringList("SimSecurity::pinStatus(1)") + steps);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    COMPARE_LINES(journal.take(), QStringList("delete dialog 1"));
    QVERIFY(!dialog());
}

void TestCostSetupSteps::customAndItsCancelLeadThereAndBack()
{
    open();
    choose(typeRow);
    journal.take();
    PhoneScreen::press(PhoneKey::Select);
    COMPARE_LINES(journal.take(),
                  entrySteps(2, "Currency Type", letterMethods, {"field.setMaxLength(3)"}, "slotCancel"));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    COMPARE_LINES(journal.take(), listSteps(3, "Currency Type", 194));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    COMPARE_LINES(journal.take(), QStringList("delete dialog 3"));
}

void TestCostSetupSteps::anEditorOfNoNumberHasNoRowsAndNoAnswer()
{
    open();
    view.get()->*exposed(CurCallSetType()) = 6;
    QVERIFY((view.get()->*exposed(ShowSelectDlg()))("Nothing"));
    COMPARE_LINES(
        journal.take(),
        QStringList({"ZSingleSelectDlg(\"Nothing\", null, screen, null, true, 0, 0)", "dialog 1.getListBox()",
                     "connect(dialog 1, \"2rightSoftkeyClicked()\", screen, \"1slotClose()\")",
                     "choices.setSelected(0, true)", "dialog 1.show()"}));
    QMetaObject::invokeMethod(view.get(), "slotClose");
    journal.take();
    QVERIFY((view.get()->*exposed(ShowCaptureDlg()))("Nothing"));
    QStringList done = journal.take();
    done.removeOne("dialog 2.getMultiLineEdit()"); // whether the field is asked for makes no difference
    COMPARE_LINES(done, QStringList({"ZSingleCaptureDlg(\"Nothing\", null, 2, screen, null, true, 0, 0)",
                                     "dialog 2.setSoftkeyTextLeft(\"Save\")",
                                     "connect(dialog 2, \"2leftSoftkeyClicked()\", screen, \"1slotSave()\")",
                                     "dialog 2.show()"}));
}

void TestCostSetupSteps::theLimitsSwitchRewritesItsRowAndNothingElse()
{
    open();
    choose(limitRow);
    PhoneScreen::press(PhoneKey::Down);
    journal.take();
    PhoneScreen::press(PhoneKey::Select);
    COMPARE_LINES(journal.take(),
                  QStringList({"row 4.setSubItem(0, 1, \"Off\", false, 1)", "row 5.setEnabled(false)"}));
}

void TestCostSetupSteps::anAnswerIsWrittenAndReadAgain_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("downs");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("currency on") << currencyRow << 0
                                 << QStringList({"row 6.setSubItem(0, 1, \"On\", false, 1)",
                                                 "row 7.setEnabled(true)", "row 8.setEnabled(true)",
                                                 "AdviceOfCharge::setChargeType(1)"});
    QTest::newRow("currency off") << currencyRow << 1
                                  << QStringList({"row 6.setSubItem(0, 1, \"Off\", false, 1)",
                                                  "row 7.setEnabled(false)", "row 8.setEnabled(false)",
                                                  "AdviceOfCharge::setChargeType(0)"});
    QTest::newRow("a currency") << typeRow << 1 << QStringList("AdviceOfCharge::setPriceAndCurrency(0.10, AED)");
}

void TestCostSetupSteps::anAnswerIsWrittenAndReadAgain()
{
    QFETCH(const int, row);
    QFETCH(const int, downs);
    QFETCH(const QStringList, steps);
    open();
    choose(row);
    for (int i = 0; i < downs; ++i)
        PhoneScreen::press(PhoneKey::Down);
    journal.take();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(journal.take(), steps + refreshSteps);
    QVERIFY(dialog()); // it is hidden, not deleted
}

void TestCostSetupSteps::aSavedEntryGoesThenIsWrittenThenReadAgain()
{
    open();
    for (const int row : {adjustRow, priceRow}) {
        choose(row);
        ZApplication::pressKey(Qt::Key_5);
        journal.take();
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        const QString dialogName = row == adjustRow ? QStringLiteral("dialog 1") : QStringLiteral("dialog 2");
        const QString write = row == adjustRow ? QStringLiteral("AdviceOfCharge::setMeterMaximum(5)")
                                               : QStringLiteral("AdviceOfCharge::setPriceAndCurrency(5, GBP)");
        COMPARE_LINES(journal.take(), QStringList({"delete " + dialogName, write}) + refreshSteps);
    }
}

void TestCostSetupSteps::aChoiceWithoutAListIsNotShown()
{
    open();
    choose(adjustRow);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    ToolkitRecorder::takeChoicesAway();
    for (const int row : {limitRow, currencyRow, typeRow}) {
        choose(row);
        const QStringList done = journal.take();
        QCOMPARE(done.size(), 3);
        QVERIFY(done.at(1).startsWith(QLatin1String("ZSingleSelectDlg(")));
        QVERIFY(done.at(2).endsWith(QLatin1String(".getListBox()")));
        QVERIFY(!dialog());
    }
    QVERIFY(!(view.get()->*exposed(ShowSelectDlg()))("Nothing"));
}

void TestCostSetupSteps::aChoiceThatCannotBeMadeLeavesTheEntryBeforeIt()
{
    open();
    choose(typeRow);
    PhoneScreen::press(PhoneKey::Select); // on Custom
    const ZPopup *entry = dialog();
    QVERIFY(entry);
    const AllocationFailure failure(1);
    QMetaObject::invokeMethod(view.get(), "slotCancel");
    QVERIFY(AllocationFailure::happened());
    QCOMPARE(dialog(), entry);
}

void TestCostSetupSteps::aResetTranslatesItsMessageFirst()
{
    open();
    RecordingTranslator translator;
    translator.setJournalled(true);
    choose(0);
    const QStringList done = journal.take();
    const qsizetype message = done.indexOf("translate \"TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS\"");
    const qsizetype reset = done.indexOf("CallLog::resetAll");
    const qsizetype header = done.indexOf("translate \"TXT_RID_HEADER_RESET_CALLS\"");
    QVERIFY(message > 0);
    QVERIFY(message < reset);
    QVERIFY(reset < header);
}

void TestCostSetupSteps::theEngineIsFetchedBeforeEveryCall()
{
    const auto calls = [this] { return int(journal.startingWith("AdviceOfCharge::").size()); };
    enginesAsked = 0;
    view = std::make_unique<View>(host.get(), "setup");
    QCOMPARE(enginesAsked, calls());
    host->show();
    view->show();
    for (const int row : {limitRow, currencyRow, typeRow}) {
        choose(row);
        PhoneScreen::press(PhoneKey::Down);
        enginesAsked = 0;
        journal.take();
        PhoneScreen::press(PhoneKey::Select);
        QCOMPARE(enginesAsked, calls());
    }
    for (const int row : {adjustRow, priceRow}) {
        choose(row);
        ZApplication::pressKey(Qt::Key_5);
        enginesAsked = 0;
        journal.take();
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        QCOMPARE(enginesAsked, calls());
    }
    choose(limitRow);
    PhoneScreen::press(PhoneKey::Down);
    PhoneScreen::press(PhoneKey::Select);
    enginesAsked = 0;
    journal.take();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::disableMeterMaximum"));
    QCOMPARE(enginesAsked, 1);
}

void TestCostSetupSteps::theEnginesSignalsAreConnectedToNothing()
{
    open();
    const QObject *engine = PHONE_ENG_Setup::instance();
    const QMetaObject &meta = PHONE_ENG_Setup::staticMetaObject;
    int signalCount = 0;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() != QMetaMethod::Signal)
            continue;
        ++signalCount;
        QVERIFY(!(engine->*exposed(IsSignalConnected()))(meta.method(i)));
    }
    QCOMPARE(signalCount, 3);
}

void TestCostSetupSteps::theMeterGoesWithTheScreen()
{
    open();
    const QPointer<PHONE_UI_RecentCallMeter> meter = view.get()->*exposed(Meter());
    QVERIFY(meter);
    QVERIFY(!meter->parent());
    view.reset();
    QVERIFY(!meter);
}

void TestCostSetupSteps::everyTraceStandsInItsPlaceAmongTheSteps_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("trace");
    QTest::addColumn<QString>("behind");
    QTest::newRow("the rules") << "AdviceOfCharge::updateRule(64)"
                               << "initAccessRule done for 3 EFs, each are: EFACM: 0, EFACMMAX: 0, EFPUCT: 0"
                               << "ZSettingItem(list, null)";
    QTest::newRow("a title") << "ZSettingItem(list, null)"
                             << "in makeCategoryString(), type: [0]"
                             << "row 0.appendSubItem(0, \"Reset All\", false, 0)";
    QTest::newRow("a value") << "row 4.appendSubItem(0, \"Credit Limit\", false, 0)"
                             << "in makeCategoryItem(), type: [4]"
                             << "row 4.appendSubItem(0, \"On\", false, 1)";
    QTest::newRow("the unit") << "trace PHONE_UI_RecentCallMeter::TranslateCurrency string=GBP.\\n"
                              << "showData(), the unitText: [GBP]"
                              << "AdviceOfCharge::meterMaximum";
    QTest::newRow("the limit that was read") << "AdviceOfCharge::meterMaximum"
                                             << "res: [0], preMeterMax: [100], preCMMEnable: [1]"
                                             << "trace CMMEnable: [1]";
    QTest::newRow("the limit's switch") << "trace res: [0], preMeterMax: [100], preCMMEnable: [1]"
                                        << "CMMEnable: [1]"
                                        << "row 4.setSubItem(0, 1, \"On\", false, 1)";
    QTest::newRow("the charge type that was read") << "AdviceOfCharge::chargeType"
                                                   << "res: [0], preChargeType: [1]"
                                                   << "trace ChargeType: [1]";
    QTest::newRow("the currency's switch") << "trace res: [0], preChargeType: [1]"
                                           << "ChargeType: [1]"
                                           << "row 6.setSubItem(0, 1, \"On\", false, 1)";
    QTest::newRow("the price that was read") << "AdviceOfCharge::priceAndCurrency"
                                             << "res: [0], prePricePerUnit: [0.10], preCurrencyTable: [GBP]"
                                             << "row 7.setSubItem(0, 1, \"GBP\", false, 1)";
    QTest::newRow("the row that is chosen")
        << "SimSecurity::pinStatus(1)"
        << "index: [4]"
        << "ZSingleSelectDlg(\"Credit Limit\", null, screen, null, true, 0, 0)";
    QTest::newRow("a choice") << "connect(dialog 1, \"2rightSoftkeyClicked()\", screen, \"1slotClose()\")"
                              << "curCallSetType: [2], curCallSetType: [2]"
                              << "choices.setItemType(\"%I%M\")";
    QTest::newRow("an entry") << "dialog 2.setSoftkeyTextLeft(\"Save\")"
                              << "in RCCostSetupView::showCaptureDlg(), curCallSetType: [0]"
                              << "dialog 2.getMultiLineEdit()";
    QTest::newRow("what is entered") << ""
                                     << "curText: [5], curCallSetType: [0]"
                                     << "delete dialog 2";
    QTest::newRow("what is to be written") << "trace preMeterMaxChanged: [1], preCMMEnableChanged: [0], "
                                              "preChargeTypeChanged: [0]"
                                           << "preCurrencyTableChanged: [0], prePricePerUnitChanged: [0]"
                                           << "AdviceOfCharge::setMeterMaximum(5)";
    QTest::newRow("what is written") << "AdviceOfCharge::setMeterMaximum(5)"
                                     << "result: [0]"
                                     << "AdviceOfCharge::chargeType";
}

void TestCostSetupSteps::everyTraceStandsInItsPlaceAmongTheSteps()
{
    QFETCH(const QString, before);
    QFETCH(const QString, trace);
    QFETCH(const QString, behind);
    const JournalledTraces traced;
    view = std::make_unique<View>(host.get(), "setup");
    host->show();
    view->show();
    ZListBox *list = PhoneScreen::list(view.get());
    for (const int row : {limitRow, adjustRow}) {
        list->setSelected(row, true);
        PhoneScreen::press(PhoneKey::Select);
        if (row == limitRow)
            PhoneScreen::press(PhoneKey::RightSoftkey);
    }
    ZApplication::pressKey(Qt::Key_5);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    const QStringList steps = journal.lines();
    const qsizetype at = steps.indexOf("trace " + trace);
    QVERIFY2(at >= 0, qPrintable(steps.join(QLatin1Char('\n'))));
    if (!before.isEmpty())
        QCOMPARE(steps.value(at - 1), before);
    QCOMPARE(steps.value(at + 1), behind);
}

void TestCostSetupSteps::theNoticeIsOnShowBeforeItsTimeRuns()
{
    open();
    NoticeWatch watch;
    qApp->installEventFilter(&watch);
    choose(0);
    QCOMPARE(watch.timersThen, QList<int>{0});
    QCOMPARE(ScreenClock::pending().size(), 1);
}

// --- memory that runs out

void TestCostSetupSteps::withoutAMeterTheListStaysEmpty()
{
    constexpr int meter = 3; // behind the softkey bar and the list
    {
        const AllocationFailure failure(meter);
        view = std::make_unique<View>(host.get(), "setup");
        QVERIFY(AllocationFailure::happened());
    }
    QCOMPARE(PhoneScreen::list(view.get())->count(), 0);
    QCOMPARE(view->mainWidgetTitle(), QString("Call-Cost Setup"));
    QCOMPARE(journal.startingWith("ZSettingItem"), QStringList());
    host->show();
    view->show();
    const QSignalSpy closed(view.get(), "2closeWgt()");
    for (const PhoneKey key : {PhoneKey::Select, PhoneKey::Down, PhoneKey::RightSoftkey, PhoneKey::Clear})
        PhoneScreen::press(key);
    QCOMPARE(closed.count(), 2);
}

void TestCostSetupSteps::whatCannotBeMadeIsNotShown_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < rowCount; ++row)
        QTest::newRow(titles[row]) << row;
}

void TestCostSetupSteps::whatCannotBeMadeIsNotShown()
{
    QFETCH(const int, row);
    open();
    {
        const AllocationFailure failure(1);
        choose(row);
        QVERIFY(AllocationFailure::happened());
    }
    QVERIFY(!dialog());
    QVERIFY(view->findChildren<ZPopup *>().isEmpty());
    QVERIFY(ScreenClock::pending().isEmpty());
    choose(row); // there is memory again
    QVERIFY(dialog());
    QVERIFY(dialog()->isVisible());
}

KAV_TEST_GROUP(TestCostSetupSteps, QApplication);
#include "tst_cost_setup_steps.moc"
