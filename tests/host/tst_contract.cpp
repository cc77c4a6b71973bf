// What the host owes to a screen of the plug-in: shown once made, given back once, never from inside its signal.

#include "host/ScreenHost.h"
#include "host/ScreenLibrary.h"
#include "host/doubles/RecordingPlugin.h"
#include "host/phone/Display.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"

#include <QtCore/QLibrary>
#include <QtCore/QRegularExpression>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

using namespace host;

class TestContract : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aScreenIsMadeInTheDisplayAndShown();
    void theScreenIsDestroyedOnceAndAfterItsSignal();
    void aSecondSignalOfALeavingScreenChangesNothing();
    void aSecondSignalDoesNotReachTheNextScreen();
    void onlyOneScreenIsOpenAtATime();
    void closingGivesTheScreenBackAtOnce();
    void theEndOfTheHostGivesTheScreenBack();
    void aScreenThatIsGoneIsNotDestroyed();
    void anIndexOutsideTheTableOpensNothing();
    void theNextScreenOpensWhenOneHasClosed();

private:
    void press(int key) { QVERIFY(ZApplication::pressKey(key)); }

    ScreenLibrary library;
    QStringList *calls = nullptr;
    std::unique_ptr<host::Display> display;
    std::unique_ptr<ScreenHost> screens;
};

void TestContract::initTestCase()
{
    const QString plugin = QStringLiteral(KAV_DOUBLES "/librecording.so");
    const QString problem = library.load(plugin);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    auto *recorded = reinterpret_cast<RecordedCalls *>(QLibrary::resolve(plugin, "recordedCalls"));
    QVERIFY(recorded);
    calls = recorded();
}

void TestContract::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    screens.reset();
    display = std::make_unique<host::Display>();
    screens = std::make_unique<ScreenHost>(library, display.get());
    display->show();
    calls->clear();
}

void TestContract::aScreenIsMadeInTheDisplayAndShown()
{
    QVERIFY(screens->open(0));
    QCOMPARE(*calls, (QStringList{"create callTime in a parent", "show"}));
    QCOMPARE(screens->screen()->parentWidget(), display.get());
    QVERIFY(screens->screen()->isVisible());
    QCOMPARE(screens->screen()->geometry(), QRect(0, 0, 240, 320));
}

void TestContract::theScreenIsDestroyedOnceAndAfterItsSignal()
{
    QSignalSpy closed(screens.get(), &ScreenHost::closed);
    QVERIFY(screens->open(0));
    calls->clear();
    press(Qt::Key_Context2);
    QCOMPARE(*calls, (QStringList{"emit", "emitted"}));
    QTRY_COMPARE_WITH_TIMEOUT(*calls, (QStringList{"emit", "emitted", "destroy callTime", "deleted"}), 60'000);
    QCOMPARE(closed.size(), 1);
    QVERIFY(!screens->screen());
}

void TestContract::aSecondSignalOfALeavingScreenChangesNothing()
{
    QSignalSpy closed(screens.get(), &ScreenHost::closed);
    QVERIFY(screens->open(0));
    press(Qt::Key_Clear); // the double emits twice
    QTRY_VERIFY_WITH_TIMEOUT(calls->contains("deleted"), 60'000);
    QCoreApplication::processEvents();
    QCOMPARE(calls->count("emit"), 2);
    QCOMPARE(calls->count("destroy callTime"), 1);
    QCOMPARE(closed.size(), 1);
}

void TestContract::aSecondSignalDoesNotReachTheNextScreen()
{
    connect(screens.get(), &ScreenHost::closed, screens.get(), [this] { screens->open(0); });
    QVERIFY(screens->open(0));
    press(Qt::Key_Clear);
    QTRY_COMPARE_WITH_TIMEOUT(calls->count("create callTime in a parent"), 2, 60'000);
    QCoreApplication::processEvents();
    QCOMPARE(calls->count("destroy callTime"), 1);
    QVERIFY(screens->screen());
    screens->disconnect();
}

void TestContract::onlyOneScreenIsOpenAtATime()
{
    QVERIFY(screens->open(0));
    QVERIFY(!screens->open(0));
    QCOMPARE(calls->count("create callTime in a parent"), 1);
}

void TestContract::closingGivesTheScreenBackAtOnce()
{
    QVERIFY(screens->open(0));
    screens->close();
    QCOMPARE(calls->mid(2), (QStringList{"destroy callTime", "deleted"}));
    screens->close();
    QCOMPARE(calls->count("destroy callTime"), 1);
}

void TestContract::theEndOfTheHostGivesTheScreenBack()
{
    QVERIFY(screens->open(0));
    press(Qt::Key_Context2); // and the signal is still under way
    screens.reset();
    QCoreApplication::processEvents();
    QCOMPARE(calls->mid(2), (QStringList{"emit", "emitted", "destroy callTime", "deleted"}));
}

void TestContract::aScreenThatIsGoneIsNotDestroyed()
{
    QVERIFY(screens->open(0));
    delete screens->screen();
    screens->close();
    QCOMPARE(calls->mid(2), QStringList{"deleted"});
}

void TestContract::anIndexOutsideTheTableOpensNothing()
{
    QVERIFY(!screens->open(-1));
    QVERIFY(!screens->open(static_cast<int>(screenTable.size())));
    QCOMPARE(*calls, QStringList());
}

void TestContract::theNextScreenOpensWhenOneHasClosed()
{
    for (int time = 1; time <= 3; ++time) {
        QVERIFY(screens->open(0));
        press(Qt::Key_Context2);
        QTRY_VERIFY_WITH_TIMEOUT(!screens->screen(), 60'000);
        QCOMPARE(calls->count("deleted"), time);
    }
    QCOMPARE(calls->count("deleted while emitting"), 0);
}

KAV_TEST_GROUP(TestContract, QApplication);
#include "tst_contract.moc"
