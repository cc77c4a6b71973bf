// The panel: what its controls do to the simulated handset, and what it shows of it.

#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/Clock.h"
#include "handset/DataCalls.h"
#include "handset/Handset.h"
#include "handset/PacketData.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "host/PhoneWindow.h"
#include "host/faults/FaultyHandset.h"
#include "host/panel/CodeField.h"
#include "host/panel/Controls.h"
#include "host/panel/LineSection.h"
#include "host/panel/Panel.h"
#include "host/phone/PhoneKey.h"
#include "simulated/SimulatedHandset.h"
#include "support/FullDisk.h"
#include "support/LackingHandset.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTreeView>

using namespace host;
using handset::AdviceOfCharge;
using handset::CallDirection;
using handset::CallKind;
using handset::charging::Tariff;
using handset::simulated::SimulatedHandset;

namespace {

constexpr QByteArrayView rightPuk{"12345678"};
constexpr QByteArrayView rightPin{"1234"};

Tariff tariffOf(quint16 units, quint16 interval, quint16 start)
{
    Tariff tariff;
    tariff.unitsPerInterval = units;
    tariff.interval = interval;
    tariff.unitsAtStart = start;
    return tariff;
}

// A catalogue that has every text of the host's and of Qt's, but not the phone's, which have keys: each as itself
// between two marks.
class MarkingCatalogue : public QTranslator
{
public:
    static constexpr QChar begin{0x27e6};
    static constexpr QChar end{0x27e7};

    MarkingCatalogue() { QCoreApplication::installTranslator(this); }

    static QString marked(const char *text) { return begin + QString::fromUtf8(text) + end; }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QByteArrayView owner(context);
        const bool isMine = owner.startsWith("host::") || owner.startsWith("Q");
        return isMine && !QByteArrayView(source).startsWith("TXT_") ? marked(source) : QString();
    }
};

// What of `text` stands between no marks.
QString unmarkedPart(const QString &text)
{
    QString part;
    int depth = 0;
    for (const QChar character : text) {
        if (character == MarkingCatalogue::begin)
            ++depth;
        else if (character == MarkingCatalogue::end)
            --depth;
        else if (depth == 0)
            part += character;
    }
    return part;
}

// Numbers and clock texts have no letters; the names of the SIM card's files are what they are in every language.
bool isTranslated(const QString &text)
{
    QString part = unmarkedPart(text);
    for (const char *file : {"EF_ACMmax", "EF_ACM", "EF_PUCT"})
        part.remove(QLatin1StringView(file));
    return std::none_of(part.begin(), part.end(), [](QChar character) { return character.isLetter(); });
}

QStringList itemsOf(const QWidget *widget)
{
    QStringList items;
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int index = 0; index < tabs->count(); ++index)
            items << tabs->tabText(index) << tabs->tabToolTip(index);
    }
    const auto *choice = qobject_cast<const QComboBox *>(widget);
    if (choice && choice->objectName() != QLatin1StringView("operation")) { // whose names are the libraries'
        for (int index = 0; index < choice->count(); ++index)
            items << choice->itemText(index) << choice->itemData(index, Qt::ToolTipRole).toString();
    }
    return items;
}

// All that `widget` says, seen or read aloud; not what a user types into it.
QStringList textsOf(const QWidget *widget)
{
    QStringList texts{widget->toolTip(), widget->accessibleName(), widget->accessibleDescription(),
                      widget->windowTitle()};
    for (const char *property : {"title", "prefix", "suffix", "placeholderText"})
        texts << widget->property(property).toString();
    if (qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget))
        texts << widget->property("text").toString();
    if (const auto *value = qobject_cast<const Value *>(widget))
        texts << value->spoken();
    return texts + itemsOf(widget);
}

} // namespace

class TestPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void eachTabShowsItsSections();
    void aTabIsMadeWhenItIsFirstOpened();
    void theTabThatIsAskedForIsTheFirstToBeMade();
    void aTariffIsSetByItsNumbers_data();
    void aTariffIsSetByItsNumbers();
    void aTariffIsSetFreeAndBack();
    void aTariffThatChangesElsewhereIsShown();
    void whatIsBeingTypedIsNotTakenAway();
    void theChargeTypeIsSetAndShown();
    void priceAndCurrencyAreSetAndShownAsTheSimKeepsThem();
    void aNumberIsTakenAsAnyLanguageTypesIt_data();
    void aNumberIsTakenAsAnyLanguageTypesIt();
    void aPriceThatIsNoneOrThatTheSimRefusesIsToldAndForgotten();
    void theCreditLimitIsShown();
    void theAccountIsToppedUp();
    void anAmountThatIsNoneIsTold();
    void theCallCostsGoOnBySecond();
    void theEndOfTheCreditLimitIsAnnouncedAndTold();
    void theEndOfTheCreditIsAnnouncedAndTold();
    void aCallThatMayNotBeginIsExplained();
    void anEndThatCannotBeWrittenIsToldUntilItIs();
    void theFilesOfTheSimAreShownLive();
    void anUpdateRuleIsSetAndShown_data();
    void anUpdateRuleIsSetAndShown();
    void pin2IsSwitchedOffAndOn();
    void theStateOfPin2IsShownLive();
    void pin2IsEntered();
    void aWrongPin2IsToldAndCountedUntilItIsBlocked();
    void aPin2ThatIsNoneIsToldAndCostsNoTry();
    void aPowerCycleForgetsThatPin2WasEntered();
    void pin2IsUnblockedByItsPuk();
    void aWrongPukIsToldAndCounted();
    void codesThatAreNoneAreTold_data();
    void codesThatAreNoneAreTold();
    void aCodeIsMaskedAndForgotten();
    void aCodeFieldTakesDigitsAlone();
    void aSessionIsStartedAndStopped();
    void aRunningSessionGoesOnBySecond();
    void slotsAndTotalsAreShown();
    void anAccessPointNameThatIsNoneIsTold_data();
    void anAccessPointNameThatIsNoneIsTold();
    void anUpdateIsSentByHand();
    void operationsFailAndWorkAgain();
    void aFailureIsSeenOnThePhone();
    void zeroIsNoCode();
    void withoutFaultsThereIsNoPageForThem();
    void clicksLeaveTheFocusWithThePhone();
    void everyControlHasANameAndAReachableTabStop();
    void keysTypedIntoFieldsStayThere_data();
    void keysTypedIntoFieldsStayThere();
    void theWheelTurnsThePanelAndNoNumber();
    void nothingIsCutOffInANarrowPanel_data();
    void nothingIsCutOffInANarrowPanel();
    void theLineStaysWhereItIsWhileAPageIsScrolled();
    void aRefusalOutOfSightComesIntoView();
    void aLongPathIsBrokenAndPushesNothingOut();
    void aCatalogueTranslatesAllThatThePanelSays();
    void aCatalogueTranslatesWhatIsRefused();
    void aCatalogueTranslatesTheLineAndTheEndOfCharging();
    void aCatalogueTranslatesThatAnEndIsNotWritten();
    void aCatalogueTranslatesTheNamesOfTheKeys();
    void anotherHandsetThanTheSimulatedHasNothingToSet();

private:
    QStringList texts() const;
    QString untranslated() const;
    void openWindow(const std::shared_ptr<handset::Handset> &handset);
    void openEachTabOnce();
    void openHandsetIn(const QString &stateDirectory);
    static void expectSizeHintWarning();
    template <typename Control>
    Control *control(const char *name) const
    {
        auto *found = window->findChild<Control *>(QString::fromLatin1(name));
        if (!found)
            qFatal("there is no control \"%s\"", name);
        return found;
    }
    QString label(const char *name) const { return control<QLabel>(name)->text(); }
    QPushButton *buttonCalled(const QString &text) const;
    QPushButton *button(const char *text) const { return buttonCalled(QLatin1StringView(text)); }
    void click(const char *text) const { QTest::mouseClick(button(text), Qt::LeftButton); }
    void clickBox(const char *name) const;
    void choose(const char *name, int index) const;
    void enter(const char *name, const QString &text) const;
    void showTab(const char *title) const;
    QStringList failing() const;
    QString title() const;
    void connectCall() const;
    void pass(qint64 ms) const;
    handset::simulated::Charging &charging() const { return *handset->charging(); }
    handset::charging::SimCard card() const { return handset->simCard().card(); }
    handset::charging::Pin2 pin2() const { return card().pin2(); }
    bool enterPin2(const QByteArray &digits) const;

    ScreenLibrary library;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    std::shared_ptr<FaultyHandset> installed;
    SimulatedHandset *handset = nullptr;
    std::unique_ptr<PhoneWindow> window;
};

void TestPanel::initTestCase()
{
    const QString problem = library.load("libkavcallmeter.so.1");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestPanel::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    clock = std::make_shared<handset::ManualClock>(1000000);
    openHandsetIn({});
}

void TestPanel::openHandsetIn(const QString &stateDirectory)
{
    const handset::Opened opened = handset::open({"simulated", stateDirectory, clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    owner = opened.handset;
    handset = dynamic_cast<SimulatedHandset *>(owner.get());
    QVERIFY(handset);
    openWindow(owner);
}

void TestPanel::cleanup()
{
    window.reset();
    handset::install(nullptr);
    installed.reset();
    owner.reset();
}

void TestPanel::openWindow(const std::shared_ptr<handset::Handset> &behind)
{
    window.reset();
    installed = std::make_shared<FaultyHandset>(behind);
    handset::install(installed);
    window =
        std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{behind, {}, {}, &installed->faults()});
    expectSizeHintWarning();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 60'000));
    window->complete();
    openEachTabOnce();
}

// Which makes its controls.
void TestPanel::openEachTabOnce()
{
    for (int page = static_cast<int>(pageNames.size()) - 1; page >= 0; --page)
        window->choosePage(page);
}

// Qt's offscreen platform warns of every window that has a least size.
void TestPanel::expectSizeHintWarning()
{
    if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
}

QPushButton *TestPanel::buttonCalled(const QString &text) const
{
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->text().remove(u'&') == text)
            return candidate;
    }
    qFatal("there is no button \"%s\"", qPrintable(text));
}

void TestPanel::clickBox(const char *name) const
{
    auto *box = control<QCheckBox>(name);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

// By the keyboard, as its list would cover the window.
void TestPanel::choose(const char *name, int index) const
{
    auto *choice = control<QComboBox>(name);
    choice->setFocus();
    QTest::keyClick(choice, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(choice, Qt::Key_Down);
    QCOMPARE(choice->currentIndex(), index);
}

void TestPanel::enter(const char *name, const QString &text) const
{
    auto *field = control<QWidget>(name);
    field->setFocus();
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClicks(field, text);
}

void TestPanel::showTab(const char *title) const
{
    auto *tabs = window->findChild<QTabBar *>();
    for (int index = 0; index < tabs->count(); ++index) {
        if (tabs->tabText(index).remove(u'&') == QLatin1StringView(title))
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    }
    QCOMPARE(tabs->tabText(tabs->currentIndex()).remove(u'&'), QString(title));
}

QStringList TestPanel::failing() const
{
    QStringList lines;
    const auto *list = control<QListWidget>("failing");
    for (int row = 0; row < list->count(); ++row)
        lines << list->item(row)->text().remove(QChar(0x200b));
    return lines;
}

// Of the screen that has the keys.
QString TestPanel::title() const
{
    QWidget *widget = ZApplication::keyTarget();
    while (widget && !qobject_cast<ZKbMainWidget *>(widget))
        widget = widget->parentWidget();
    const auto *screen = qobject_cast<ZKbMainWidget *>(widget);
    return screen ? screen->mainWidgetTitle() : QStringLiteral("(none)");
}

void TestPanel::connectCall() const
{
    QCOMPARE(handset->dial("5550123", CallKind::Voice), 0);
    QCOMPARE(handset->remoteAnswer(), 0);
}

// Lets time pass, and the timers notice: the handset's, and the panel's that shows what it finds.
void TestPanel::pass(qint64 ms) const
{
    clock->advance(ms);
    for (const QObject *whole :
         {static_cast<const QObject *>(handset), static_cast<const QObject *>(window->findChild<Panel *>())}) {
        auto *timer = whole->findChild<QTimer *>({}, Qt::FindDirectChildrenOnly);
        if (timer && timer->isActive())
            QMetaObject::invokeMethod(timer, "timeout");
    }
}

bool TestPanel::enterPin2(const QByteArray &digits) const
{
    bool accepted = false;
    return owner->simSecurity()->verifyPin(1, digits, accepted) == handset::Success && accepted;
}

void TestPanel::eachTabShowsItsSections()
{
    const auto shown = [this] {
        QStringList titles;
        const QList<QGroupBox *> sections = window->findChildren<QGroupBox *>();
        for (const QGroupBox *section : sections) {
            if (section->isVisible())
                titles << section->title();
        }
        return titles;
    };
    const auto *tabs = window->findChild<QTabBar *>();
    QCOMPARE(tabs->count(), static_cast<int>(pageNames.size()));
    QVERIFY(tabs->isVisible());
    for (int tab = 0; tab < tabs->count(); ++tab)
        QVERIFY2(tabs->rect().contains(tabs->tabRect(tab)), qPrintable(tabs->tabText(tab)));
    QCOMPARE(shown(), (QStringList{"Line", "Call timers", "State"}));
    window->choosePage(2);
    QCOMPARE(shown(), (QStringList{"Line", "Files of the SIM card", "PIN2"}));
    window->choosePage(static_cast<int>(pageNames.size()));
    QCOMPARE(shown(), (QStringList{"Line", "Files of the SIM card", "PIN2"}));
    showTab("Charging");
    QCOMPARE(shown(), (QStringList{"Line", "Tariff", "Costs", "Prepaid account"}));
    showTab("SIM");
    QCOMPARE(shown(), (QStringList{"Line", "Files of the SIM card", "PIN2"}));
    showTab("Data");
    QCOMPARE(shown(), (QStringList{"Line", "Packet data"}));
    showTab("Recent");
    QCOMPARE(shown(), (QStringList{"Line", "Recent calls"}));
    showTab("Failures");
    QCOMPARE(shown(), (QStringList{"Line", "Failures"}));
    showTab("Calls");
    QCOMPARE(shown(), (QStringList{"Line", "Call timers", "State"}));
}

// --- charging

static QStringList madeSections(const PhoneWindow &window)
{
    QStringList titles;
    const QList<QGroupBox *> sections = window.findChildren<QGroupBox *>();
    for (const QGroupBox *section : sections)
        titles << section->title();
    return titles;
}

void TestPanel::aTabIsMadeWhenItIsFirstOpened()
{
    PhoneWindow fresh(library, PhoneWindow::OpenedHandset{owner, {}, {}});
    fresh.complete();
    QCOMPARE(madeSections(fresh), (QStringList{"Line", "Call timers", "State"}));
    fresh.choosePage(3);
    QCOMPARE(madeSections(fresh), (QStringList{"Line", "Call timers", "State", "Packet data"}));
    auto *name = fresh.findChild<QLineEdit *>("apn");
    QVERIFY(name);
    name->setText("kept");
    fresh.choosePage(0);
    fresh.choosePage(3);
    QCOMPARE(fresh.findChild<QLineEdit *>("apn"), name);
    QCOMPARE(name->text(), "kept");
}

void TestPanel::theTabThatIsAskedForIsTheFirstToBeMade()
{
    PhoneWindow fresh(library, PhoneWindow::OpenedHandset{owner, {}, {}});
    const QSize usual = fresh.sizeHint();
    fresh.choosePage(1);
    QCOMPARE(madeSections(fresh), QStringList());
    fresh.complete();
    QCOMPARE(madeSections(fresh), (QStringList{"Line", "Tariff", "Costs", "Prepaid account"}));
    QCOMPARE(fresh.findChild<QTabBar *>()->currentIndex(), 1);
    QCOMPARE(fresh.sizeHint(), usual);
}

void TestPanel::aTariffIsSetByItsNumbers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDialed");
    QTest::newRow("dialed calls") << "dialed" << true;
    QTest::newRow("answered calls") << "answered" << false;
}

void TestPanel::aTariffIsSetByItsNumbers()
{
    QFETCH(QString, name);
    QFETCH(bool, isDialed);
    const CallDirection direction = isDialed ? CallDirection::Dialed : CallDirection::Answered;
    const CallDirection other = isDialed ? CallDirection::Answered : CallDirection::Dialed;
    const Tariff untouched = charging().tariff(other);
    QCOMPARE(charging().setTariff(direction, tariffOf(10, 100, 0)), 0);
    showTab("Charging");
    const auto type = [&](const char *what, const char *text) {
        const QByteArray full = QStringLiteral("tariff %1 %2").arg(name, QLatin1StringView(what)).toLatin1();
        enter(full, text);
        QTest::keyClick(control<QDoubleSpinBox>(full), Qt::Key_Return);
    };
    type("units", "2.5");
    QCOMPARE(charging().tariff(direction), tariffOf(25, 100, 0));
    type("interval", "30");
    QCOMPARE(charging().tariff(direction), tariffOf(25, 300, 0));
    type("start", "0.7");
    QCOMPARE(charging().tariff(direction), tariffOf(25, 300, 7));
    type("units", "819.1");
    QCOMPARE(charging().tariff(direction), tariffOf(8191, 300, 7));
    QCOMPARE(charging().tariff(other), untouched);
    QCOMPARE(label("tariff failure"), "");
}

void TestPanel::aTariffIsSetFreeAndBack()
{
    showTab("Charging");
    clickBox("tariff dialed free");
    QCOMPARE(charging().tariff(CallDirection::Dialed), Tariff{});
    QVERIFY(!control<QDoubleSpinBox>("tariff dialed units")->isEnabled());
    QVERIFY(control<QCheckBox>("tariff answered free")->isChecked());
    clickBox("tariff answered free");
    QCOMPARE(charging().tariff(CallDirection::Answered), tariffOf(10, 100, 0));
    QVERIFY(control<QDoubleSpinBox>("tariff answered units")->isEnabled());
    clickBox("tariff dialed free");
    QCOMPARE(charging().tariff(CallDirection::Dialed), tariffOf(10, 100, 0));
}

void TestPanel::aTariffThatChangesElsewhereIsShown()
{
    QCOMPARE(charging().setTariff(CallDirection::Answered, tariffOf(15, 605, 3)), 0);
    QCOMPARE(control<QDoubleSpinBox>("tariff answered units")->value(), 1.5);
    QCOMPARE(control<QDoubleSpinBox>("tariff answered interval")->value(), 60.5);
    QCOMPARE(control<QDoubleSpinBox>("tariff answered start")->value(), 0.3);
    QVERIFY(!control<QCheckBox>("tariff answered free")->isChecked());
    QCOMPARE(charging().tariff(CallDirection::Answered), tariffOf(15, 605, 3)); // showing sets nothing
    QCOMPARE(charging().setTariff(CallDirection::Answered, Tariff{}), 0);
    QVERIFY(control<QCheckBox>("tariff answered free")->isChecked());
}

void TestPanel::whatIsBeingTypedIsNotTakenAway()
{
    showTab("Charging");
    enter("tariff dialed units", "37");
    enter("price", "9.9");
    control<QWidget>("tariff dialed interval")->setFocus();
    enter("tariff dialed interval", "42");
    QCOMPARE(handset->ring({}), 0); // every change is shown
    QCOMPARE(control<QDoubleSpinBox>("tariff dialed interval")->text(), "42 s");
    QCOMPARE(control<QLineEdit>("price")->text(), "9.9");
    QCOMPARE(charging().tariff(CallDirection::Dialed).interval, quint16{100});
}

void TestPanel::theChargeTypeIsSetAndShown()
{
    showTab("Charging");
    quint8 type = 99;
    choose("charge type", 1);
    QCOMPARE(owner->adviceOfCharge()->chargeType(type), 0);
    QCOMPARE(type, quint8{AdviceOfCharge::InCurrency});
    choose("charge type", 0);
    QCOMPARE(owner->adviceOfCharge()->chargeType(type), 0);
    QCOMPARE(type, quint8{AdviceOfCharge::InUnits});
    QCOMPARE(owner->adviceOfCharge()->setChargeType(AdviceOfCharge::InCurrency), 0);
    QCOMPARE(control<QComboBox>("charge type")->currentIndex(), 1);
}

void TestPanel::aNumberIsTakenAsAnyLanguageTypesIt_data()
{
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("deposit");
    QTest::newRow("with a comma") << "0,23"
                                  << "2,5"
                                  << "12,50";
    QTest::newRow("with Arabic digits and their decimal sign")
        << QString::fromUtf8("\u0660\u066b\u0662\u0663") << QString::fromUtf8("\u0662\u066b\u0665")
        << QString::fromUtf8("\u0661\u0662\u066b\u0665\u0660");
    QTest::newRow("as it is shown") << "0.23"
                                    << "2.5"
                                    << "12.50";
}

void TestPanel::aNumberIsTakenAsAnyLanguageTypesIt()
{
    QFETCH(QString, price);
    QFETCH(QString, units);
    QFETCH(QString, deposit);
    showTab("Charging");
    control<QLineEdit>("price")->setText(price);
    click("Set price");
    QString kept;
    QString currency;
    QCOMPARE(owner->adviceOfCharge()->priceAndCurrency(kept, currency), 0);
    QCOMPARE(kept, "0.23");
    auto *box = control<QDoubleSpinBox>("tariff dialed units");
    box->findChild<QLineEdit *>()->setText(units);
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(charging().tariff(CallDirection::Dialed).unitsPerInterval, quint16{25});
    QCOMPARE(box->text(), "2.5");
    control<QLineEdit>("top-up amount")->setText(deposit);
    click("Top up");
    QCOMPARE(label("account failure"), "");
    QCOMPARE(label("credit"), "Credit: 12.00 units"); // in whole units
}

void TestPanel::priceAndCurrencyAreSetAndShownAsTheSimKeepsThem()
{
    showTab("Charging");
    QString price;
    QString currency;
    enter("price", "1.23456");
    enter("currency", "GBPX"); // the fourth is not taken
    click("Set price");
    QCOMPARE(owner->adviceOfCharge()->priceAndCurrency(price, currency), 0);
    QCOMPARE(price, "1.235");
    QCOMPARE(currency, "GBP");
    QCOMPARE(control<QLineEdit>("price")->text(), "1.235");
    enter("price", "0.5");
    QTest::keyClick(control<QLineEdit>("price"), Qt::Key_Return);
    QCOMPARE(owner->adviceOfCharge()->priceAndCurrency(price, currency), 0);
    QCOMPARE(price, "0.5");
    QCOMPARE(owner->adviceOfCharge()->setPriceAndCurrency("170", "USD"), 0);
    QCOMPARE(control<QLineEdit>("price")->text(), "170");
    QCOMPARE(control<QLineEdit>("currency")->text(), "USD");
}

void TestPanel::aPriceThatIsNoneOrThatTheSimRefusesIsToldAndForgotten()
{
    showTab("Charging");
    enter("price", "much");
    click("Set price");
    QCOMPARE(label("cost failure"), "Not done: no price, or a currency of more than three characters.");
    QVERIFY(control<QLabel>("cost failure")->isVisible());
    QCOMPARE(handset->simCard().setUpdateRule(AdviceOfCharge::PuctFile, AdviceOfCharge::NoUpdate), 0);
    enter("price", "1");
    click("Set price");
    QCOMPARE(label("cost failure"), "Not done: the SIM card refuses.");
    QCOMPARE(handset->simCard().setUpdateRule(AdviceOfCharge::PuctFile, AdviceOfCharge::FreeUpdate), 0);
    click("Set price");
    QVERIFY(!control<QLabel>("cost failure")->isVisible());
}

void TestPanel::theCreditLimitIsShown()
{
    QCOMPARE(label("credit limit"), "off");
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("120"), 0);
    QCOMPARE(label("credit limit"), "120.00 units; units left: 120");
    QCOMPARE(owner->adviceOfCharge()->setPriceAndCurrency("0.23", "EUR"), 0);
    QCOMPARE(owner->adviceOfCharge()->setChargeType(AdviceOfCharge::InCurrency), 0);
    QCOMPARE(label("credit limit"), "27.60 EUR; units left: 120");
    QCOMPARE(owner->adviceOfCharge()->disableMeterMaximum(), 0);
    QCOMPARE(label("credit limit"), "off");
}

void TestPanel::theAccountIsToppedUp()
{
    showTab("Charging");
    QCOMPARE(label("credit"), "Nothing has been paid in.");
    QVERIFY(!control<QLabel>("deposit")->isVisible());
    enter("top-up amount", "50");
    control<QDateEdit>("top-up day")->setDate(QDate(2007, 3, 9));
    click("Top up");
    QVERIFY(charging().account().has_value());
    QCOMPARE(*charging().account(), (handset::simulated::Account{50, 50, {2007, 3, 9}}));
    QCOMPARE(label("credit"), "Credit: 50.00 units");
    QCOMPARE(label("deposit"), "Last deposit: 50.00 units, good until 2007-03-09");
    enter("top-up amount", "7");
    QTest::keyClick(control<QLineEdit>("top-up amount"), Qt::Key_Return);
    QCOMPARE(label("credit"), "Credit: 57.00 units");
    QCOMPARE(label("deposit"), "Last deposit: 7.00 units, good until 2007-03-09");
}

void TestPanel::anAmountThatIsNoneIsTold()
{
    showTab("Charging");
    for (const char *amount : {"", "much", "0", "99999999"}) {
        control<QLineEdit>("top-up amount")->setText(amount);
        click("Top up");
        QVERIFY2(!charging().account(), amount);
        QCOMPARE(label("account failure"),
                 "Not done: an amount of at least one unit, and not more than the account holds.");
    }
    enter("top-up amount", "1");
    click("Top up");
    QVERIFY(!control<QLabel>("account failure")->isVisible());
}

void TestPanel::theCallCostsGoOnBySecond()
{
    QCOMPARE(charging().topUp("50", {2007, 3, 9}), 0);
    connectCall();
    QCOMPARE(label("call cost"), "0.00 units");
    pass(30000);
    QTRY_COMPARE_WITH_TIMEOUT(label("call cost"), "3.00 units", 60'000);
    QTRY_COMPARE_WITH_TIMEOUT(label("credit"), "Credit: 47.00 units", 60'000);
    QCOMPARE(handset->hangUp(), 0);
    QCOMPARE(label("call cost"), "3.00 units");
}

void TestPanel::theEndOfTheCreditLimitIsAnnouncedAndTold()
{
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("6"), 0);
    QCOMPARE(charging().topUp("50", {2007, 3, 9}), 0);
    connectCall();
    clock->advance(29999);
    QCOMPARE(handset->checkpoint(), 0);
    QVERIFY(!control<QLabel>("charge notice")->isVisible());
    pass(1);
    QTRY_COMPARE_WITH_TIMEOUT(label("charge notice"), "The credit limit is reached in 30 s.", 60'000);
    QVERIFY(control<QLabel>("charge notice")->isVisible());
    pass(5000);
    QTRY_COMPARE_WITH_TIMEOUT(label("charge notice"), "The credit limit is reached in 25 s.", 60'000);
    pass(25000);
    QTRY_COMPARE_WITH_TIMEOUT(label("charge notice"),
                              "The telephone has ended the call: the credit limit is reached.", 60'000);
    QCOMPARE(label("line state"), "Idle");
    QCOMPARE(handset->ring({}), 0); // answered calls are free
    QVERIFY(!control<QLabel>("charge notice")->isVisible());
}

void TestPanel::theEndOfTheCreditIsAnnouncedAndTold()
{
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("60"), 0);
    QCOMPARE(charging().topUp("3", {2007, 3, 9}), 0);
    connectCall();
    pass(12500);
    QTRY_COMPARE_WITH_TIMEOUT(label("charge notice"), "The credit is used up in 18 s.", 60'000);
    pass(17500);
    QTRY_COMPARE_WITH_TIMEOUT(label("charge notice"), "The telephone has ended the call: the credit is used up.",
                              60'000);
}

void TestPanel::aCallThatMayNotBeginIsExplained()
{
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("1"), 0);
    connectCall();
    clock->advance(10000);
    QCOMPARE(handset->checkpoint(), 0);
    click("Dial");
    QCOMPARE(label("line failure"), "Not done: not allowed now: nothing more may be charged.");
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
}

// --- the SIM card

void TestPanel::anEndThatCannotBeWrittenIsToldUntilItIs()
{
    const QTemporaryDir state;
    openHandsetIn(state.filePath(QStringLiteral("state")));
    connectCall();
    QVERIFY(!control<QLabel>("record notice")->isVisible());
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^The call log failed: ")));
        click("Hang up");
        QCOMPARE(label("line state"), "Idle");
        QVERIFY(!control<QLabel>("line failure")->isVisible());
        QVERIFY(control<QLabel>("record notice")->isVisible());
        QCOMPARE(label("record notice"),
                 "The call log cannot be written. The end of a call or a packet-data session"
                 " is kept in memory, and written as soon as it can be.");
        showTab("Data");
        QVERIFY(control<QLabel>("record notice")->isVisible());
    }
    QCOMPARE(handset->checkpoint(), 0);
    QVERIFY(!control<QLabel>("record notice")->isVisible());
}

void TestPanel::theFilesOfTheSimAreShownLive()
{
    const QString nothing = "00 00 00  =  0 units";
    QCOMPARE(label("EF_ACM content"),
             (QStringList{nothing + "  (newest)", nothing, nothing, nothing, nothing}).join('\n'));
    QCOMPARE(label("EF_ACMmax content"), "00 00 00  =  no limit");
    QCOMPARE(label("EF_PUCT content"), "FF FF FF 00 00  =  no currency, 0 a unit");
    QCOMPARE(owner->adviceOfCharge()->setPriceAndCurrency("0.23", "EUR"), 0);
    QCOMPARE(label("EF_PUCT content"), "45 55 52 01 57  =  EUR, 0.23 a unit");
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("66051"), 0);
    QCOMPARE(label("EF_ACMmax content"), "01 02 03  =  66051 units");
    connectCall();
    pass(30000);
    QCOMPARE(handset->checkpoint(), 0);
    QTRY_VERIFY2(label("EF_ACM content").startsWith("00 00 03  =  3 units  (newest)\n" + nothing),
                 qPrintable(label("EF_ACM content")));
    pass(2540000);
    QCOMPARE(handset->checkpoint(), 0);
    QTRY_VERIFY2(label("EF_ACM content").startsWith("00 01 01  =  257 units  (newest)\n00 00 03  =  3 units\n"),
                 qPrintable(label("EF_ACM content")));
}

void TestPanel::anUpdateRuleIsSetAndShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("file");
    QTest::newRow("the call meter") << "EF_ACM" << int{AdviceOfCharge::AcmFile};
    QTest::newRow("its maximum") << "EF_ACMmax" << int{AdviceOfCharge::AcmMaxFile};
    QTest::newRow("the price") << "EF_PUCT" << int{AdviceOfCharge::PuctFile};
}

void TestPanel::anUpdateRuleIsSetAndShown()
{
    QFETCH(QString, name);
    QFETCH(int, file);
    const QByteArray choice = name.toLatin1();
    const auto number = static_cast<quint8>(file);
    const auto rule = [&] {
        quint8 answer = 99;
        return card().updateRule(number, answer) == 0 ? int{answer} : -1;
    };
    showTab("SIM");
    choose(choice, 1);
    QCOMPARE(rule(), int{AdviceOfCharge::UpdateUnderPin2});
    choose(choice, 2);
    QCOMPARE(rule(), int{AdviceOfCharge::NoUpdate});
    choose(choice, 0);
    QCOMPARE(rule(), int{AdviceOfCharge::FreeUpdate});
    QCOMPARE(handset->simCard().setUpdateRule(number, AdviceOfCharge::NoUpdate), 0);
    QCOMPARE(control<QComboBox>(choice)->currentIndex(), 2);
    QCOMPARE(handset->simCard().setUpdateRule(number, 17), 0); // no rule: anybody may
    QCOMPARE(control<QComboBox>(choice)->currentIndex(), 0);
    QCOMPARE(rule(), 17);
    for (const char *other : {"EF_ACM", "EF_ACMmax", "EF_PUCT"})
        QCOMPARE(control<QComboBox>(other)->currentIndex(), 0);
}

void TestPanel::pin2IsSwitchedOffAndOn()
{
    showTab("SIM");
    QVERIFY(control<QCheckBox>("pin2 on")->isChecked());
    clickBox("pin2 on");
    QVERIFY(!pin2().isEnabled());
    QVERIFY(label("pin2 state").startsWith("Off: nobody is asked for it."));
    clickBox("pin2 on");
    QVERIFY(pin2().isEnabled());
    QCOMPARE(handset->simCard().setPin2Enabled(false), 0);
    QVERIFY(!control<QCheckBox>("pin2 on")->isChecked());
}

void TestPanel::theStateOfPin2IsShownLive()
{
    QCOMPARE(label("pin2 state"), "On, not entered.\nTries left: PIN2 3, PUK2 10.");
    QVERIFY(!enterPin2("9999"));
    QCOMPARE(label("pin2 state"), "On, not entered.\nTries left: PIN2 2, PUK2 10.");
    QVERIFY(enterPin2("1234"));
    QCOMPARE(label("pin2 state"), "On, and entered.\nTries left: PIN2 3, PUK2 10.");
    for (int i = 0; i < 3; ++i)
        QVERIFY(!enterPin2("9999"));
    QCOMPARE(label("pin2 state"), "Blocked: only PUK2 helps.\nTries left: PIN2 0, PUK2 10.");
    bool accepted = false;
    for (int i = 0; i < 10; ++i)
        QCOMPARE(handset->simCard().unblockPin2("00000000", "1234", accepted), 0);
    QCOMPARE(label("pin2 state"), "Blocked for good.\nTries left: PIN2 0, PUK2 0.");
}

void TestPanel::pin2IsEntered()
{
    showTab("SIM");
    enter("pin2", "1234");
    click("Enter");
    QVERIFY(pin2().isVerified());
    QCOMPARE(label("pin2 outcome"), "PIN2 has been entered.");
    QVERIFY(label("pin2 state").startsWith("On, and entered."));
    click("Switch off and on");
    QVERIFY(!pin2().isVerified());
    QVERIFY(!control<QLabel>("pin2 outcome")->isVisible());
    enter("pin2", "1234");
    QTest::keyClick(control<QWidget>("pin2"), Qt::Key_Return);
    QVERIFY(pin2().isVerified());
    QCOMPARE(title(), "Recent Calls");
}

void TestPanel::aWrongPin2IsToldAndCountedUntilItIsBlocked()
{
    showTab("SIM");
    QVERIFY(enterPin2("1234"));
    for (int left = 2; left >= 0; --left) {
        enter("pin2", "9999");
        click("Enter");
        QCOMPARE(label("pin2 outcome"), "Wrong PIN2.");
        QCOMPARE(pin2().triesLeft(), left);
        QVERIFY(label("pin2 state").endsWith(QString("PIN2 %1, PUK2 10.").arg(left)));
        QVERIFY(!pin2().isVerified());
    }
    QVERIFY(label("pin2 state").startsWith("Blocked: only PUK2 helps."));
    enter("pin2", "1234");
    click("Enter");
    QCOMPARE(label("pin2 outcome"), "Not done: PIN2 is blocked.");
    QVERIFY(!pin2().isVerified());
}

void TestPanel::aPin2ThatIsNoneIsToldAndCostsNoTry()
{
    showTab("SIM");
    for (const char *digits : {"", "123"}) {
        enter("pin2", digits);
        click("Enter");
        QCOMPARE(label("pin2 outcome"), "Not done: a PIN2 has four to eight digits.");
    }
    QCOMPARE(pin2().triesLeft(), 3);
}

void TestPanel::aPowerCycleForgetsThatPin2WasEntered()
{
    QVERIFY(enterPin2("1234"));
    QVERIFY(pin2().isVerified());
    showTab("SIM");
    click("Switch off and on");
    QVERIFY(!pin2().isVerified());
    QVERIFY(label("pin2 state").startsWith("On, not entered."));
}

void TestPanel::pin2IsUnblockedByItsPuk()
{
    for (int i = 0; i < 3; ++i)
        QVERIFY(!enterPin2("9999"));
    showTab("SIM");
    enter("puk2", QString::fromLatin1(rightPuk));
    enter("new pin2", "87654321");
    click("Unblock");
    QCOMPARE(label("pin2 outcome"), "The new PIN2 counts.");
    QVERIFY(label("pin2 state").startsWith("On, and entered.\nTries left: PIN2 3"));
    QCOMPARE(handset->simCard().powerCycle(), 0);
    QVERIFY(enterPin2("87654321"));
}

void TestPanel::aWrongPukIsToldAndCounted()
{
    showTab("SIM");
    enter("puk2", "00000000");
    enter("new pin2", "4321");
    QTest::keyClick(control<QWidget>("new pin2"), Qt::Key_Return);
    QCOMPARE(label("pin2 outcome"), "Wrong PUK2.");
    QCOMPARE(pin2().pukTriesLeft(), 9);
    QVERIFY(enterPin2(rightPin.toByteArray()));
}

void TestPanel::codesThatAreNoneAreTold_data()
{
    QTest::addColumn<QString>("puk");
    QTest::addColumn<QString>("pin");
    QTest::newRow("nothing at all") << ""
                                    << "";
    QTest::newRow("a PUK of seven digits") << "1234567"
                                           << "1234";
    QTest::newRow("a PIN of three digits") << "12345678"
                                           << "123";
}

void TestPanel::codesThatAreNoneAreTold()
{
    QFETCH(QString, puk);
    QFETCH(QString, pin);
    showTab("SIM");
    enter("puk2", puk);
    enter("new pin2", pin);
    click("Unblock");
    QCOMPARE(label("pin2 outcome"), "Not done: PUK2 has eight digits, a PIN2 four to eight.");
    QCOMPARE(pin2().pukTriesLeft(), 10);
}

void TestPanel::aCodeIsMaskedAndForgotten()
{
    showTab("SIM");
    auto *puk = control<CodeField>("puk2");
    auto *pin = control<CodeField>("new pin2");
    auto *entered = control<CodeField>("pin2");
    enter("puk2", "12345678");
    enter("new pin2", "5678");
    enter("pin2", "56785678");
    QCOMPARE(puk->digits(), rightPuk);
    for (CodeField *field : {puk, pin, entered}) {
        QCOMPARE(field->text().count(u'0'), field->text().size()); // no digit that was typed
        QCOMPARE(field->displayText(), QString(field->text().size(), field->displayText().front()));
        QVERIFY(!field->displayText().contains(u'0'));
        field->selectAll();
        field->copy();
        QVERIFY(!QGuiApplication::clipboard()->text().contains("5678"));
    }
    click("Unblock");
    click("Enter");
    const QByteArray nothing(CodeField::mostDigits, '\0');
    for (const CodeField *field : {puk, pin, entered}) {
        QVERIFY(field->digits().isEmpty());
        QCOMPARE(field->text(), QString());
        QVERIFY(!field->isUndoAvailable());
        QCOMPARE(QByteArrayView(field->digits().data(), nothing.size()), QByteArrayView(nothing));
    }
}

void TestPanel::aCodeFieldTakesDigitsAlone()
{
    showTab("SIM");
    auto *field = control<CodeField>("puk2");
    enter("puk2", "1a2 -3456789");
    QCOMPARE(field->digits(), QByteArrayView("12345678")); // eight and no more
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(field->digits(), QByteArrayView("1234567"));
    QCOMPARE(field->text().size(), 7);
    QGuiApplication::clipboard()->setText("99");
    QTest::keySequence(field, QKeySequence::Paste);
    QCOMPARE(field->digits(), QByteArrayView("1234567"));
    QCOMPARE(field->text().size(), 7);
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(field, Qt::Key_Backspace);
    QVERIFY(field->digits().isEmpty());
    QCOMPARE(title(), "Recent Calls");
}

// --- packet data

void TestPanel::aSessionIsStartedAndStopped()
{
    showTab("Data");
    QVERIFY(!button("Stop session")->isEnabled());
    enter("apn", "wap.example");
    enter("sent rate", "100");
    enter("received rate", "2000");
    click("Start session");
    QVERIFY(handset->packets().isSessionRunning());
    QVERIFY(!button("Start session")->isEnabled());
    clock->advance(10000);
    click("Stop session");
    QVERIFY(!handset->packets().isSessionRunning());
    QVERIFY(button("Start session")->isEnabled());
    handset::DataSessions sessions;
    QCOMPARE(owner->packetData()->sessions(sessions), 0);
    QCOMPARE(sessions.records[0].apn, "wap.example");
    QCOMPARE(sessions.records[0].bytesSent, quint32{1000});
    QCOMPARE(sessions.records[0].bytesReceived, quint32{20000});
}

void TestPanel::aRunningSessionGoesOnBySecond()
{
    QCOMPARE(handset->packets().startSession("internet", 10, 30), 0);
    pass(61000);
    QTRY_VERIFY2(label("session 1").endsWith("00:01:01\n610 B sent, 1830 B received"),
                 qPrintable(label("session 1")));
    QCOMPARE(label("packet total"), "00:01:01, 2440 B\n610 B sent, 1830 B received");
}

void TestPanel::slotsAndTotalsAreShown()
{
    QCOMPARE(label("session 1"), "empty");
    QCOMPARE(label("packet total"), "00:00:00, 0 B\n0 B sent, 0 B received");
    for (const char *apn : {"one", "two", "three", "four"}) {
        QCOMPARE(handset->packets().startSession(apn, 1, 2), 0);
        clock->advance(5000);
        QCOMPARE(handset->packets().stopSession(), 0);
    }
    handset::DataSessions sessions;
    QCOMPARE(owner->packetData()->sessions(sessions), 0);
    for (std::size_t i = 0; i < sessions.records.size(); ++i) {
        const handset::DataSession &session = sessions.records[i];
        const QString text = QString("%1 (id %2), 00:00:05\n5 B sent, 10 B received")
                                 .arg(QString::fromLatin1(session.apn))
                                 .arg(session.id);
        QCOMPARE(label(qPrintable(QString("session %1").arg(i + 1))).remove(QChar(0x200b)), text);
    }
    QCOMPARE(label("packet total"), "00:00:20, 60 B\n20 B sent, 40 B received");
    QCOMPARE(owner->packetData()->resetTotalBytes(), 0);
    QCOMPARE(label("packet total"), "00:00:20, 0 B\n0 B sent, 0 B received");
}

void TestPanel::anAccessPointNameThatIsNoneIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("a character beyond Latin-1") << QString::fromUtf8("caf\xc3\xa9\xe2\x82\xac");
}

void TestPanel::anAccessPointNameThatIsNoneIsTold()
{
    QFETCH(QString, name);
    showTab("Data");
    control<QLineEdit>("apn")->setText(name);
    click("Start session");
    QCOMPARE(label("packet failure"), "Not done: an access point name has 1 to 101 Latin-1 characters.");
    QVERIFY(!handset->packets().isSessionRunning());
    control<QLineEdit>("apn")->setText(name.first(name.isEmpty() ? 0 : 4) + "x");
    click("Start session");
    QVERIFY(!control<QLabel>("packet failure")->isVisible());
    QVERIFY(handset->packets().isSessionRunning());
}

void TestPanel::anUpdateIsSentByHand()
{
    QVERIFY(window->openScreen(3));
    auto *list = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QVERIFY(list);
    QCOMPARE(handset->packets().startSession("internet", 1, 1), 0);
    QTRY_COMPARE_WITH_TIMEOUT(list->item(1)->title(), "internet", 60'000);
    installed->faults().set(handset::operationIndex("PacketData::sessions"), 3);
    showTab("Data");
    click("Send update");
    QTRY_COMPARE_WITH_TIMEOUT(list->item(1)->title(), "GPRS Data Session 1", 60'000);
}

// --- failures

void TestPanel::operationsFailAndWorkAgain()
{
    showTab("Failures");
    Faults &faults = installed->faults();
    QCOMPARE(control<QComboBox>("operation")->count(), static_cast<int>(handset::operationNames.size()));
    const int lastCall = handset::operationIndex("CallLog::lastCallTime");
    const int dataCalls = handset::operationIndex("DataCalls::refreshTotals");
    choose("operation", lastCall);
    enter("failure code", "17");
    click("Let it fail");
    QCOMPARE(faults.code(lastCall), 17);
    choose("operation", dataCalls);
    enter("failure code", "-2");
    click("Let it fail");
    QCOMPARE(faults.code(dataCalls), -2);
    QCOMPARE(failing(), (QStringList{"CallLog::lastCallTime: 17", "DataCalls::refreshTotals: -2"}));
    enter("failure code", "NotAllowed");
    click("Let it fail"); // another code for the same
    QCOMPARE(faults.code(dataCalls), 6);
    QCOMPARE(failing().last(), "DataCalls::refreshTotals: NotAllowed");
    enter("failure code", "4");
    QTest::keyClick(control<QSpinBox>("failure code"), Qt::Key_Return);
    QCOMPARE(control<QSpinBox>("failure code")->text(), "WrongState");
    control<QListWidget>("failing")->setCurrentRow(1);
    click("Remove");
    QCOMPARE(failing(), QStringList{"CallLog::lastCallTime: 17"});
    QCOMPARE(faults.code(dataCalls), 0);
    faults.set(dataCalls, 9); // from elsewhere
    QCOMPARE(handset->ring({}), 0);
    QCOMPARE(failing().size(), 2);
    click("Remove all");
    QCOMPARE(failing(), QStringList());
    QVERIFY(faults == Faults());
    QVERIFY(!button("Remove")->isEnabled());
    QVERIFY(!button("Remove all")->isEnabled());
}

void TestPanel::aFailureIsSeenOnThePhone()
{
    click("Add a ready-made history");
    showTab("Failures");
    choose("operation", handset::operationIndex("CallLog::lastCallTime"));
    click("Let it fail");
    QVERIFY(window->openScreen(0));
    auto *list = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QVERIFY(list);
    QCOMPARE(list->item(0)->value(), "00:00:00");
    QCOMPARE(list->item(1)->value(), "01:11:35");
    showTab("Calls");
    QCOMPARE(label("figure Last call"), "00:04:26"); // the panel asks the handset itself
}

void TestPanel::zeroIsNoCode()
{
    showTab("Failures");
    enter("failure code", "0");
    QVERIFY(!button("Let it fail")->isEnabled());
    enter("failure code", "-1");
    QVERIFY(button("Let it fail")->isEnabled());
}

void TestPanel::withoutFaultsThereIsNoPageForThem()
{
    window = std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{owner, {}, {}});
    window->complete();
    openEachTabOnce();
    QVERIFY(!window->findChild<QListWidget *>("failing"));
    QCOMPARE(window->findChild<QTabBar *>()->count(), 5);
}

// --- all of them

void TestPanel::clicksLeaveTheFocusWithThePhone()
{
    QWidget *phone = window->focusWidget();
    QVERIFY(qobject_cast<ZListBox *>(phone));
    for (const char *tab : {"Charging", "SIM", "Data", "Recent", "Failures", "Calls"}) {
        showTab(tab);
        QCOMPARE(window->focusWidget(), phone);
    }
    showTab("Charging");
    clickBox("tariff answered free");
    click("Set price");
    click("Top up");
    showTab("SIM");
    clickBox("pin2 on");
    click("Switch off and on");
    click("Unblock");
    showTab("Failures");
    click("Let it fail");
    click("Remove all");
    QCOMPARE(window->focusWidget(), phone);
    const QList<QComboBox *> choices = window->findChildren<QComboBox *>();
    for (const QComboBox *choice : choices)
        QVERIFY2(!(choice->focusPolicy() & Qt::ClickFocus), qPrintable(choice->objectName()));
}

void TestPanel::everyControlHasANameAndAReachableTabStop()
{
    int controls = 0;
    const QList<QWidget *> widgets = window->findChild<Panel *>()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const bool isPart = qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) ||
                            qobject_cast<QComboBox *>(widget->parentWidget()) ||
                            qobject_cast<QLineEdit *>(widget->parentWidget());
        const bool isControl =
            !isPart &&
            (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
             qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
             qobject_cast<const QListWidget *>(widget) || qobject_cast<const QTreeView *>(widget));
        if (!isControl)
            continue;
        ++controls;
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const QString name = button && !button->text().isEmpty() ? button->text() : widget->accessibleName();
        const bool isNumber = widget->objectName() == QLatin1StringView("number"); // its label names it
        QVERIFY2(!name.isEmpty() || isNumber, qPrintable(widget->objectName()));
        QVERIFY2(widget->focusPolicy() & Qt::TabFocus, qPrintable(name));
    }
    QVERIFY(controls >= 35);
}

void TestPanel::keysTypedIntoFieldsStayThere_data()
{
    QTest::addColumn<QByteArray>("tab");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("number to dial") << QByteArray("Calls") << QByteArray("number");
    QTest::newRow("units") << QByteArray("Charging") << QByteArray("tariff dialed units");
    QTest::newRow("price") << QByteArray("Charging") << QByteArray("price");
    QTest::newRow("day") << QByteArray("Charging") << QByteArray("top-up day");
    QTest::newRow("PUK2") << QByteArray("SIM") << QByteArray("puk2");
    QTest::newRow("code") << QByteArray("Failures") << QByteArray("failure code");
}

void TestPanel::keysTypedIntoFieldsStayThere()
{
    QFETCH(QByteArray, tab);
    QFETCH(QByteArray, name);
    showTab(tab);
    control<QWidget>(name)->setFocus();
    const auto *menu = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QVERIFY(menu);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Backspace})
        QTest::keyClick(window->windowHandle(), key);
    QCOMPARE(title(), "Recent Calls");
    QCOMPARE(menu->currentItem(), 0);
    QTest::keyClick(window->windowHandle(), Qt::Key_F1); // but the softkeys are the phone's
    QCOMPARE(title(), "Call Times");
}

void TestPanel::theWheelTurnsThePanelAndNoNumber()
{
    showTab("Charging");
    auto *units = control<QDoubleSpinBox>("tariff dialed units");
    auto *type = control<QComboBox>("charge type");
    for (QWidget *under : {static_cast<QWidget *>(units), static_cast<QWidget *>(type)}) {
        const QPointF middle(under->width() / 2.0, under->height() / 2.0);
        QWheelEvent wheel(middle, under->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(under, &wheel);
    }
    QCOMPARE(units->value(), 1.0);
    QCOMPARE(type->currentIndex(), 0);
}

void TestPanel::nothingIsCutOffInANarrowPanel_data()
{
    QTest::addColumn<QByteArray>("tab");
    for (const char *tab : {"Calls", "Charging", "SIM", "Data", "Recent", "Failures"})
        QTest::newRow(tab) << QByteArray(tab);
}

void TestPanel::nothingIsCutOffInANarrowPanel()
{
    QFETCH(QByteArray, tab);
    QCOMPARE(owner->adviceOfCharge()->setPriceAndCurrency("409500000", "WWW"), 0);
    QCOMPARE(owner->adviceOfCharge()->setChargeType(AdviceOfCharge::InCurrency), 0);
    QCOMPARE(handset->packets().startSession(QByteArray(101, 'w'), 4000000, 4000000), 0);
    clock->advance(3600000);
    QCOMPARE(handset->packets().stopSession(), 0);
    Line line(owner);
    QWidget desk;
    Panel panel(line, {QStringLiteral("/home/somebody/.local/share/kavcallmeter"), {}, &installed->faults()},
                &desk);
    panel.resize(340, 400); // so that there is a scroll bar, too
    desk.show();
    auto *tabs = panel.findChild<QTabBar *>();
    while (tabs->tabText(tabs->currentIndex()) != QString::fromLatin1(tab))
        tabs->setCurrentIndex(tabs->currentIndex() + 1);
    QCoreApplication::processEvents();
    QCOMPARE(panel.width(), 340);
    const auto *pages = panel.findChild<QScrollArea *>();
    QVERIFY2(pages->widget()->width() <= pages->viewport()->width(), "it would have to be scrolled sideways");
    QVERIFY(tabs->width() > tabs->tabRect(tabs->count() - 1).right());
    const QList<QWidget *> widgets = panel.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool needsRoom = (label && !label->wordWrap()) || qobject_cast<const QPushButton *>(widget) ||
                               qobject_cast<const QCheckBox *>(widget);
        if (needsRoom && widget->isVisible())
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(widget->objectName()));
        if (label && label->isVisible() && label->wordWrap())
            QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->objectName()));
    }
}

void TestPanel::theLineStaysWhereItIsWhileAPageIsScrolled()
{
    window->resize(704, 560);
    window->choosePage(1);
    auto *pages = window->findChild<QScrollArea *>();
    QTRY_VERIFY(pages->verticalScrollBar()->maximum() > 0);
    const auto *line = window->findChild<LineSection *>();
    const QRect whole = line->rect();
    QCOMPARE(line->visibleRegion().boundingRect(), whole);
    pages->verticalScrollBar()->setValue(pages->verticalScrollBar()->maximum());
    QCOMPARE(line->visibleRegion().boundingRect(), whole);
    QVERIFY(!pages->isAncestorOf(line));
}

void TestPanel::aRefusalOutOfSightComesIntoView()
{
    window->resize(704, 560);
    window->choosePage(1);
    auto *pages = window->findChild<QScrollArea *>();
    QTRY_VERIFY(pages->verticalScrollBar()->maximum() > 0);
    control<QLineEdit>("top-up amount")->setText("nothing");
    pages->verticalScrollBar()->setValue(0);
    const auto *failure = control<QLabel>("account failure");
    QVERIFY(failure->visibleRegion().isEmpty());
    QTest::keyClick(control<QLineEdit>("top-up amount"), Qt::Key_Return);
    QTRY_COMPARE(failure->visibleRegion().boundingRect(), failure->rect());
    QVERIFY(!failure->text().isEmpty());
}

void TestPanel::aLongPathIsBrokenAndPushesNothingOut()
{
    Line line(owner);
    QWidget desk;
    const Panel usual(line, {}, &desk);
    const Panel panel(line, {QStringLiteral("/home/") + QString(200, QLatin1Char('p')), {}, nullptr}, &desk);
    QCOMPARE(panel.sizeHint().width(), usual.sizeHint().width());
    QCOMPARE(panel.findChild<QLabel *>("state directory")->toolTip().size(), 206);
    const Panel withNotice(line, {{}, QString(200, QLatin1Char('n')), nullptr}, &desk);
    QCOMPARE(withNotice.sizeHint().width(), usual.sizeHint().width());
}

// All that the panel's pages say.
QStringList TestPanel::texts() const
{
    QStringList texts;
    const QList<QWidget *> widgets = window->findChild<Panel *>()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        texts << textsOf(widget);
    return texts;
}

QString TestPanel::untranslated() const
{
    QStringList found = texts();
    found.removeIf([](const QString &text) { return isTranslated(text); });
    return found.join(u'|');
}

void TestPanel::aCatalogueTranslatesAllThatThePanelSays()
{
    const MarkingCatalogue catalogue;
    openWindow(owner);
    QCOMPARE(untranslated(), QString());
    QVERIFY(texts().filter(MarkingCatalogue::begin).size() > 150);
    QCOMPARE(handset->packets().startSession("1", 1, 1), 0);
    QCOMPARE(charging().topUp("50", {2007, 3, 9}), 0);
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("3"), 0);
    QCOMPARE(untranslated(), QString());
    QCOMPARE(handset->simCard().setPin2Enabled(false), 0);
    QCOMPARE(untranslated(), QString());
    QCOMPARE(handset->simCard().setPin2Enabled(true), 0);
    QVERIFY(enterPin2("1234"));
    QCOMPARE(untranslated(), QString());
    for (int i = 0; i < 3; ++i)
        QVERIFY(!enterPin2("9999"));
    QCOMPARE(untranslated(), QString());
}

void TestPanel::aCatalogueTranslatesWhatIsRefused()
{
    const MarkingCatalogue catalogue;
    openWindow(owner);
    for (const char *field : {"apn", "price", "top-up amount"})
        control<QLineEdit>(field)->clear();
    for (const char *text : {"Start session", "Set price", "Top up", "Enter", "Unblock"}) {
        buttonCalled(MarkingCatalogue::marked(text))->click();
        QCOMPARE(untranslated(), QString());
    }
    for (const char *name : {"packet failure", "cost failure", "account failure", "pin2 outcome"})
        QVERIFY2(label(name).contains("Not done"), name);
    QCOMPARE(untranslated(), QString());
}

void TestPanel::aCatalogueTranslatesTheLineAndTheEndOfCharging()
{
    const MarkingCatalogue catalogue;
    openWindow(owner);
    const auto isSaid = [this](const char *name, const char *text) {
        return label(name).contains(QLatin1StringView(text)) && untranslated().isEmpty();
    };
    QCOMPARE(handset->ring({}), 0);
    QVERIFY(isSaid("line state", "number withheld"));
    QCOMPARE(handset->hangUp(), 0);
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("3"), 0);
    QCOMPARE(handset->dial("5550123", CallKind::Data), 0);
    QVERIFY(isSaid("line state", "data call"));
    QCOMPARE(handset->remoteAnswer(), 0);
    QVERIFY(isSaid("line state", "Connected 00:00:00"));
    pass(1000);
    QTRY_VERIFY_WITH_TIMEOUT(isSaid("charge notice", "The credit limit is reached in"), 60'000);
    pass(29000);
    QTRY_VERIFY_WITH_TIMEOUT(isSaid("charge notice", "has ended the call: the credit limit"), 60'000);
    QCOMPARE(owner->adviceOfCharge()->disableMeterMaximum(), 0);
    QCOMPARE(charging().topUp("3", {2007, 3, 9}), 0);
    connectCall();
    pass(1000);
    QTRY_VERIFY_WITH_TIMEOUT(isSaid("charge notice", "The credit is used up in"), 60'000);
    pass(29000);
    QTRY_VERIFY_WITH_TIMEOUT(isSaid("charge notice", "has ended the call: the credit is used up"), 60'000);
}

void TestPanel::aCatalogueTranslatesThatAnEndIsNotWritten()
{
    const MarkingCatalogue catalogue;
    const QTemporaryDir state;
    openHandsetIn(state.filePath(QStringLiteral("state")));
    QCOMPARE(handset->ring({}), 0);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^The call log failed: ")));
        QCOMPARE(handset->hangUp(), 0);
    }
    QVERIFY(label("record notice").contains(QStringLiteral("cannot be written")));
    QCOMPARE(untranslated(), QString());
}

void TestPanel::aCatalogueTranslatesTheNamesOfTheKeys()
{
    const MarkingCatalogue catalogue;
    openWindow(owner);
    const QList<PhoneKey *> keys = window->findChildren<PhoneKey *>();
    QCOMPARE(keys.size(), 20);
    for (const PhoneKey *key : keys) {
        QVERIFY2(isTranslated(key->accessibleName()), qPrintable(key->accessibleName()));
        QVERIFY2(isTranslated(key->toolTip()), qPrintable(key->toolTip()));
    }
}

void TestPanel::anotherHandsetThanTheSimulatedHasNothingToSet()
{
    openWindow(std::make_shared<LackingHandset>());
    for (const char *name : {"tariff dialed units", "price", "top-up amount", "EF_ACM", "pin2 on", "pin2", "puk2"})
        QVERIFY2(!control<QWidget>(name)->isEnabled(), name);
    QCOMPARE(label("call cost"), "not available");
    QVERIFY(control<QWidget>("operation")->isEnabled());
    QCOMPARE(label("charge notice"), "");
}

KAV_TEST_GROUP(TestPanel, QApplication);
#include "tst_panel.moc"
