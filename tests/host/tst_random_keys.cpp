// Keys at random on the real window, over a telephone that has calls and sessions, fails at random, and asks for PIN2:
// nothing falls over, and nothing is left behind. scripts/random-keys presses half a million.
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "host/PhoneWindow.h"
#include "host/faults/FaultyHandset.h"
#include "host/phone/PhoneKey.h"
#include "simulated/ReadyMadeHistory.h"
#include "simulated/SimulatedHandset.h"
#include "support/Sample.h"
#include "support/TestGroup.h"
#include "toolkit/ZKbMainWidget.h"

#include <QtCore/QEventLoop>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <malloc.h>

// Of the sanitizer, where there is one: its heap is not the C library's.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

using namespace host;
using handset::simulated::SimulatedHandset;

namespace {

// In bytes; what the screens, the fonts and the database keep for later is in it.
std::size_t heapInUse()
{
    return __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes()
                                                   : mallinfo2().uordblks;
}

// What a walk may keep that it had not kept at its first tenth: letters that are drawn for the first time, pages of the
// database. A key that left 16 bytes behind would show in half a million.
constexpr std::size_t mayStay = 1 << 20;
// What each detail screen leaves behind on purpose (tests/support/leaks.supp): its meter, with its texts.
constexpr std::size_t leftByDetail = 1280;

int keyCount()
{
    const int wanted = qEnvironmentVariableIntValue("KAV_KEYS");
    return wanted > 0 ? wanted : 3'000 / sampleStride(3);
}

} // namespace

class TestRandomKeys : public QObject
{
    Q_OBJECT

private slots:
    void nothingFallsOverAndTheHeapStaysFlat();

private:
    void openWindow();
    void look();
    void pressOne();
    void changeTelephone();
    void changeLine();
    void changeCard();

    QTemporaryDir state;
    ScreenLibrary library;
    std::shared_ptr<handset::ManualClock> clock = std::make_shared<handset::ManualClock>(1'700'000'000'000);
    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *handset = nullptr;
    std::shared_ptr<FaultyHandset> installed;
    std::unique_ptr<PhoneWindow> window;
    QList<PhoneKey *> keys;
    QRandomGenerator random;
    int screensSeen = 0;
    int detailsSeen = 0;
    bool isDetailShown = false;
    int nested = 0; ///< keys in the event loop of a dialog that waits
};

void TestRandomKeys::openWindow()
{
    window = std::make_unique<PhoneWindow>(
        library, PhoneWindow::OpenedHandset{owner, state.path(), {}, &installed->faults()});
    window->show();
    window->complete();
    keys = window->findChildren<PhoneKey *>();
    for (const char *often :
         {"key Select", "key Select", "key Select", "key Down", "key Down", "key Left softkey"})
        for (int i = 0; i < 4; ++i)
            keys << window->findChild<PhoneKey *>(QLatin1StringView(often));
}

void TestRandomKeys::look()
{
    const QList<ZKbMainWidget *> screens = window->findChildren<ZKbMainWidget *>();
    screensSeen += screens.size() > 1 ? 1 : 0; // there is the menu
    const bool isDetail = std::any_of(screens.begin(), screens.end(), [](const ZKbMainWidget *screen) {
        return screen->inherits("PHONE_UI_RecentCallDataVolumesDetailView");
    });
    detailsSeen += isDetail && !isDetailShown ? 1 : 0;
    isDetailShown = isDetail;
}

void TestRandomKeys::changeLine()
{
    switch (random.bounded(6)) {
    case 0:
        handset->dial(QStringLiteral("5551234"), handset::CallKind(random.bounded(2)));
        break;
    case 1:
        handset->ring({});
        break;
    case 2:
        handset->remoteAnswer();
        handset->answer();
        break;
    case 3:
        handset->hangUp();
        break;
    case 4:
        handset->packets().startSession("internet", 100'000, 1'000'000);
        break;
    default:
        handset->packets().stopSession();
    }
}

void TestRandomKeys::changeCard()
{
    handset::simulated::SimAccess &card = handset->simCard();
    switch (random.bounded(5)) {
    case 0:
        card.setPin2Enabled(random.bounded(2) == 0);
        break;
    case 1:
        card.powerCycle();
        break;
    case 2: {
        bool accepted = false;
        card.unblockPin2("12345678", "1234", accepted);
        break;
    }
    default: {
        using Advice = handset::AdviceOfCharge;
        constexpr quint8 rules[] = {Advice::FreeUpdate, Advice::UpdateUnderPin2, Advice::UpdateUnderPin2,
                                    Advice::NoUpdate};
        constexpr quint8 files[] = {Advice::AcmFile, Advice::AcmMaxFile, Advice::PuctFile};
        card.setUpdateRule(files[random.bounded(3)], rules[random.bounded(4)]);
    }
    }
}

void TestRandomKeys::changeTelephone()
{
    Faults &faults = installed->faults();
    switch (random.bounded(4)) {
    case 0:
        faults.set(random.bounded(int(handset::operationNames.size())), random.bounded(8));
        break;
    case 1:
        faults.clear();
        break;
    case 2:
        changeCard();
        break;
    default:
        changeLine();
    }
    clock->advance(random.bounded(5'000));
    handset->checkpoint();
}

// Mostly the keys that lead somewhere: down, select, the softkeys; now and then one of the desktop's keyboard.
void TestRandomKeys::pressOne()
{
    if (random.bounded(25) == 0)
        changeTelephone();
    if (random.bounded(12) == 0) {
        constexpr Qt::Key typed[] = {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_1,  Qt::Key_Period, Qt::Key_Space,
                                     Qt::Key_Down,   Qt::Key_F1,  Qt::Key_F2, Qt::Key_A,      Qt::Key_Return};
        QWidget *const focused = QApplication::focusWidget();
        QTest::keyClick(focused ? focused : window.get(), typed[random.bounded(int(std::size(typed)))]);
        return;
    }
    PhoneKey *const key = keys[random.bounded(int(keys.size()))];
    key->click();
}

void TestRandomKeys::nothingFallsOverAndTheHeapStaysFlat()
{
    const QString problem = library.load(QStringLiteral("libkavcallmeter.so.1"));
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const handset::Opened opened = handset::open({QStringLiteral("simulated"), state.path(), clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    owner = opened.handset;
    handset = dynamic_cast<SimulatedHandset *>(owner.get());
    QVERIFY(handset);
    handset->addHistory(handset::simulated::readyMadeHistory(clock->wallMs()));
    installed = std::make_shared<FaultyHandset>(owner);
    handset::install(installed);
    const quint32 seed = std::max(1U, static_cast<quint32>(qEnvironmentVariableIntValue("KAV_SEED")));
    random.seed(seed);
    openWindow();

    const int count = keyCount();
    std::size_t early = 0;
    int pressed = 0;
    QEventLoop loop;
    const int ownLevel = QThread::currentThread()->loopLevel() + 1;
    // The next one is there before a key is pressed: that may not come back before others are.
    const std::function<void()> step = [&] {
        const bool isNested = QThread::currentThread()->loopLevel() > ownLevel;
        if (pressed >= count && !isNested)
            return loop.quit();
        QTimer::singleShot(0, this, step);
        nested += isNested ? 1 : 0;
        if (!isNested && !window->isVisible())
            openWindow();
        look();
        if (pressed == count / 10)
            early = heapInUse();
        ++pressed;
        pressOne();
    };
    QTimer::singleShot(0, this, step);
    loop.exec();
    const std::size_t late = heapInUse();
    qInfo("seed %u: %d keys, %d with a screen, %d in a dialog that waits, %d detail screens; heap %zu KiB, then "
          "%zu KiB",
          seed, pressed, screensSeen, nested, detailsSeen, early >> 10, late >> 10);
    window.reset();
    handset::install(nullptr);
    QVERIFY(screensSeen > count / 10);
    QVERIFY2(late < early + mayStay + static_cast<std::size_t>(detailsSeen) * leftByDetail,
             "something is left behind by the keys");
}

KAV_TEST_GROUP(TestRandomKeys, QApplication);
#include "tst_random_keys.moc"
