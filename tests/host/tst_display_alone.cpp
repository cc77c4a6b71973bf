// The window of a phone: its display alone, worked by touch.
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "host/PhoneWindow.h"
#include "host/panel/Panel.h"
#include "host/phone/Keypad.h"
#include "simulated/SimulatedHandset.h"
#include "support/ScreenReader.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QPointingDevice>
#include <QtTest/QTest>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QScroller>

#include <memory>

using namespace host;
using handset::simulated::SimulatedHandset;

namespace {

constexpr int touchPatienceMs = 60'000;

// A screen with more rows than the display has room for.
class LongScreen : public ZKbMainWidget
{
public:
    LongScreen()
        : ZKbMainWidget(ZApplication::display(), "long", 0)
        , list(new ZListBox(QStringLiteral("%M"), getContentWidget(true), 0, ZSkinService::SettingListClass))
    {
        list->setGeometry(getContentWidget(true)->rect());
        for (int row = 0; row < 40; ++row) {
            auto *item = new ZSettingItem(list, QString());
            item->appendSubItem(0, QStringLiteral("Row %1").arg(row), false, ZSettingItem::TitleRegion);
            list->insertItem(item, -1, true);
        }
        connect(list, &ZListBox::selected, this, [this](ZSettingItem *item) { chosen << item->title(); });
        show();
    }

    ZListBox *list;
    QStringList chosen;
};

} // namespace

class TestDisplayAlone : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { finger.reset(); }
    void init();
    void cleanup();
    void theDisplayFillsTheWindowInItsProportions_data();
    void theDisplayFillsTheWindowInItsProportions();
    void aTapOpensARowAndSoftkeysAreTaps();
    void aListFollowsTheFingerAndATapChooses();
    void aFingerThatStopsAListChoosesNothing();
    void keysWorkTheDisplayOnce();
    void aDialogWithoutAParentIsPartOfTheDisplay();
    void callsAreMadeAndEndedByTouch();
    void whatIsRefusedIsSaidOnTheDisplay();
    void howFarALongOpeningIsIsShownBelowTheDisplay();
    void aScreenReaderFindsTheRows();

private:
    void make(PhoneWindow::OpenHandset opening);
    static void expectLeastSize();
    void show();
    QPoint placeOf(const QWidget *widget, QPoint place) const;
    QPoint placeOfRow(const ZListBox *list, int row) const;
    void tap(QPoint place);
    void drag(QPoint from, int byPx);
    QString title() const;
    QStringList toldOfCalls() const;

    ScreenLibrary library;
    std::unique_ptr<QPointingDevice> finger;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *handset = nullptr;
    std::unique_ptr<PhoneWindow> window;
};

void TestDisplayAlone::initTestCase()
{
    const QString problem = library.load("libkavcallmeter.so.1");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    finger.reset(QTest::createTouchDevice());
}

void TestDisplayAlone::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    clock = std::make_shared<handset::ManualClock>(1000000);
    const handset::Opened opened = handset::open({"simulated", {}, clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    owner = opened.handset;
    handset = dynamic_cast<SimulatedHandset *>(owner.get());
    QVERIFY(handset);
    handset::install(owner);
    make([this] { return PhoneWindow::OpenedHandset{owner, {}, {}}; });
    show();
    QVERIFY(window->complete());
}

void TestDisplayAlone::cleanup()
{
    window.reset();
    handset::install(nullptr);
    owner.reset();
}

void TestDisplayAlone::make(PhoneWindow::OpenHandset opening)
{
    window.reset();
    window = std::make_unique<PhoneWindow>(library, std::move(opening), PhoneWindow::Form::DisplayAlone);
}

// Qt's offscreen platform warns of every least size that a window gets.
void TestDisplayAlone::expectLeastSize()
{
    if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
}

void TestDisplayAlone::show()
{
    expectLeastSize();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), touchPatienceMs));
}

// Where a place of the display's is in the window.
QPoint TestDisplayAlone::placeOf(const QWidget *widget, QPoint place) const
{
    const auto *view = window->findChild<QGraphicsView *>();
    return view->mapTo(window.get(), view->mapFromScene(widget->mapTo(ZApplication::display(), place)));
}

QPoint TestDisplayAlone::placeOfRow(const ZListBox *list, int row) const
{
    return placeOf(list->viewport(), list->visualRect(list->model()->index(row, 0)).center());
}

void TestDisplayAlone::tap(QPoint place)
{
    QTest::touchEvent(window->windowHandle(), finger.get()).press(0, place);
    QTest::touchEvent(window->windowHandle(), finger.get()).release(0, place);
}

// Slowly enough for the list to stop where it is let go.
void TestDisplayAlone::drag(QPoint from, int byPx)
{
    QTest::touchEvent(window->windowHandle(), finger.get()).press(0, from);
    for (int step = 1; step <= 10; ++step)
        QTest::touchEvent(window->windowHandle(), finger.get()).move(0, from + QPoint(0, byPx * step / 10));
    QTest::touchEvent(window->windowHandle(), finger.get()).release(0, from + QPoint(0, byPx));
}

QString TestDisplayAlone::title() const
{
    QWidget *widget = ZApplication::keyTarget();
    while (widget && !qobject_cast<ZKbMainWidget *>(widget))
        widget = widget->parentWidget();
    const auto *screen = qobject_cast<ZKbMainWidget *>(widget);
    return screen ? screen->mainWidgetTitle() : QStringLiteral("(none)");
}

QStringList TestDisplayAlone::toldOfCalls() const
{
    QStringList texts;
    const auto *notice = ZApplication::display()->findChild<QWidget *>("call notice");
    for (const QLabel *label : notice->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts << label->text().remove(QChar(0x200b)); // a place to break the line
    }
    return texts;
}

void TestDisplayAlone::theDisplayFillsTheWindowInItsProportions_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("shown");
    QTest::newRow("the smallest phone") << QSize(360, 640) << QRect(0, 80, 360, 480);
    QTest::newRow("a tall phone") << QSize(480, 1000) << QRect(0, 180, 480, 640);
    QTest::newRow("on its side") << QSize(640, 480) << QRect(140, 0, 360, 480);
    QTest::newRow("as large as it is") << QSize(240, 320) << QRect(0, 0, 240, 320);
}

void TestDisplayAlone::theDisplayFillsTheWindowInItsProportions()
{
    QFETCH(QSize, size);
    QFETCH(QRect, shown);
    QVERIFY(!window->findChild<Panel *>());
    window->resize(size);
    QCOMPARE(placeOf(ZApplication::display(), {0, 0}), shown.topLeft());
    QCOMPARE(placeOf(ZApplication::display(), {240, 320}), shown.bottomRight() + QPoint(1, 1));
    const QImage picture = window->grab().toImage();
    QCOMPARE(picture.size(), size);
    const QColor bar = ZSkinService::color(ZSkinService::TitleBarColor);
    for (const QPoint corner : {shown.topLeft(), shown.topRight(), shown.bottomLeft(), shown.bottomRight()})
        QCOMPARE(picture.pixelColor(corner), bar);
    if (shown.top() > 0)
        QCOMPARE(picture.pixelColor(shown.topLeft() - QPoint(0, 1)), QColor(Qt::black));
    if (shown.left() > 0)
        QCOMPARE(picture.pixelColor(shown.topLeft() - QPoint(1, 0)), QColor(Qt::black));
}

void TestDisplayAlone::aTapOpensARowAndSoftkeysAreTaps()
{
    const auto *menu = ZApplication::display()->findChild<ZListBox *>();
    for (int row = 0; row < menu->count(); ++row) {
        tap(placeOfRow(menu, row));
        QCOMPARE(title(), menu->item(row)->title());
        tap(placeOf(ZApplication::display(), {220, 310})); // "Back"
        QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", touchPatienceMs);
    }
    tap(placeOf(ZApplication::display(), {220, 310})); // "Exit"
    QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), touchPatienceMs);
}

void TestDisplayAlone::aListFollowsTheFingerAndATapChooses()
{
    LongScreen screen;
    const QPoint sixthRow = placeOfRow(screen.list, 6);
    drag(sixthRow, -150); // 100 pixels of the display
    QTRY_COMPARE_WITH_TIMEOUT(QScroller::scroller(screen.list)->state(), QScroller::Inactive, touchPatienceMs);
    QVERIFY(screen.list->verticalScrollBar()->value() > 50);
    QCOMPARE(screen.list->currentItem(), 0);
    QCOMPARE(screen.chosen, QStringList());
    const QModelIndex under = screen.list->indexAt(screen.list->viewport()->rect().center());
    tap(placeOfRow(screen.list, under.row()));
    QCOMPARE(screen.chosen, QStringList(under.data().toString()));
    drag(sixthRow, 2000);
    QTRY_COMPARE_WITH_TIMEOUT(screen.list->verticalScrollBar()->value(), 0, touchPatienceMs);
}

void TestDisplayAlone::aFingerThatStopsAListChoosesNothing()
{
    LongScreen screen;
    const QPoint sixthRow = placeOfRow(screen.list, 6);
    QScroller *scroller = QScroller::scroller(screen.list);
    drag(sixthRow, -150);
    scroller->scrollTo(QPointF(0, 600), 600'000); // goes on for longer than the test
    QTRY_COMPARE_WITH_TIMEOUT(scroller->state(), QScroller::Scrolling, touchPatienceMs);
    tap(sixthRow);
    QCOMPARE(screen.chosen, QStringList());
    QVERIFY(scroller->state() != QScroller::Scrolling);
    tap(sixthRow);
    QCOMPARE(screen.chosen.size(), 1);
}

void TestDisplayAlone::keysWorkTheDisplayOnce()
{
    const auto *menu = ZApplication::display()->findChild<ZListBox *>();
    QTest::keyClick(window->windowHandle(), Qt::Key_Down);
    QCOMPARE(menu->currentItem(), 1);
    QTest::keyClick(window->windowHandle(), Qt::Key_F1);
    QCOMPARE(title(), "Call Costs");
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", touchPatienceMs);
    for (const Qt::Key digit : {Qt::Key_5, Qt::Key_5, Qt::Key_7})
        QTest::keyClick(window->windowHandle(), digit);
    QCOMPARE(toldOfCalls(), QStringList({"Number to dial", "557"}));
    QTest::keyClick(window->windowHandle(), Qt::Key_Backspace);
    QTest::keyClick(window->windowHandle(), Qt::Key_F3);
    QCOMPARE(handset->number(), "55");
    QTest::keyClick(window->windowHandle(), Qt::Key_F4);
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
}

void TestDisplayAlone::aDialogWithoutAParentIsPartOfTheDisplay()
{
    ZMessageDlg dialog({}, "Not now.", ZMessageDlg::InformationDlg, 0, nullptr, nullptr, true, 0);
    for (int time = 0; time < 2; ++time) {
        dialog.show();
        QVERIFY(!dialog.isWindow());
        QCOMPARE(dialog.geometry(), ZApplication::display()->rect());
        QCOMPARE(ZApplication::keyTarget()->window(), ZApplication::display()->window());
        tap(placeOf(ZApplication::display(), {20, 310})); // "OK"
        QVERIFY(!dialog.isVisible());
        QCOMPARE(title(), "Recent Calls");
    }
    dialog.show();
    QTest::keyClick(window->windowHandle(), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QTest::keyClick(window->windowHandle(), Qt::Key_Down); // the menu has the keys again
    QCOMPARE(ZApplication::display()->findChild<ZListBox *>()->currentItem(), 1);
}

void TestDisplayAlone::callsAreMadeAndEndedByTouch()
{
    const auto buttonFor = [](const char *name) -> QWidget * {
        const auto *notice = ZApplication::display()->findChild<QWidget *>("call notice");
        for (QAbstractButton *key : notice->findChildren<QAbstractButton *>()) {
            if (key->accessibleName() == QLatin1StringView(name))
                return key;
        }
        return nullptr;
    };
    const auto touchKey = [&](const char *name) {
        QCoreApplication::processEvents(); // lays out what has appeared
        QWidget *key = buttonFor(name);
        QVERIFY(key && key->isVisible());
        tap(placeOf(key, key->rect().center()));
    };
    QVERIFY(!buttonFor("Call")->isVisible() && !buttonFor("Hang up")->isVisible());
    QCOMPARE(handset->ring("5551234"), 0);
    QCOMPARE(toldOfCalls(), QStringList({"Incoming call", "5551234"}));
    touchKey("Call");
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Connected);
    QVERIFY(!buttonFor("Call")->isVisible());
    touchKey("Hang up");
    QCOMPARE(toldOfCalls().first(), "Call ended");
    touchKey("Hang up"); // read
    QCOMPARE(toldOfCalls(), QStringList());
}

void TestDisplayAlone::whatIsRefusedIsSaidOnTheDisplay()
{
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("1"), 0);
    QCOMPARE(handset->charging()->setTariff(handset::CallDirection::Dialed, {10, 10}), 0);
    QCOMPARE(handset->dial("5550123", handset::CallKind::Voice), 0);
    QCOMPARE(handset->remoteAnswer(), 0);
    clock->advance(60'000);
    QTRY_COMPARE_WITH_TIMEOUT(handset->lineState(), SimulatedHandset::LineState::Idle, touchPatienceMs);
    QTest::keyClick(window->windowHandle(), Qt::Key_F3);
    QVERIFY2(toldOfCalls().last().contains("Not done: not allowed now: nothing more may be charged."),
             qPrintable(toldOfCalls().join(u',')));
}

void TestDisplayAlone::howFarALongOpeningIsIsShownBelowTheDisplay()
{
    handset::Settings settings;
    bool wasSeen = false;
    make([&]() -> std::optional<PhoneWindow::OpenedHandset> {
        settings.progress("Checking the call log", 40);
        const auto *bar = window->findChild<QProgressBar *>();
        wasSeen = bar && bar->isVisible() && bar->value() == 40 &&
                  bar->mapTo(window.get(), QPoint()).y() > placeOf(ZApplication::display(), {0, 320}).y() - 2;
        return PhoneWindow::OpenedHandset{owner, {}, {}};
    });
    window->listen(settings);
    expectLeastSize(); // with the bar, and again without it
    expectLeastSize();
    show();
    QTRY_VERIFY_WITH_TIMEOUT(window->complete(), touchPatienceMs);
    QVERIFY(wasSeen);
    QVERIFY(!window->findChild<QProgressBar *>());
}

void TestDisplayAlone::aScreenReaderFindsTheRows()
{
    using namespace ScreenReader;
    const Listening listening;
    QAccessibleInterface *top = told(window.get());
    QCOMPARE(faultsFrom(top), QString());
    const QStringList names = namesShownFrom(top);
    for (const char *name : {"Display of the phone", "Call Times", "Data Volumes", "Open", "Exit"})
        QVERIFY2(names.contains(QLatin1StringView(name)), qPrintable(names.join(u',')));
}

KAV_TEST_GROUP(TestDisplayAlone, QApplication);
#include "tst_display_alone.moc"
