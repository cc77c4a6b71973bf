// The frame that a host sees: entry points, title, softkeys, list, the way out.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>

using handset::CallTime;
using ZKeys::PhoneKey;
using CallTimes = HostedScreen<PHONE_UI_RecentCallTimesView>;

namespace {

QString described(const QMetaMethod &method)
{
    const char *kind = method.methodType() == QMetaMethod::Signal ? "signal " : "slot ";
    return QLatin1String(kind) + QString::fromLatin1(method.methodSignature());
}

} // namespace

class TestScreenFrame : public PhoneTest
{
    Q_OBJECT

private slots:
    void createFillsTheScreenButDoesNotShowIt();
    void parentAndNameArePassedOn_data();
    void parentAndNameArePassedOn();
    void destroyIgnoresNull();
    void destroyDeletesTheScreenAndAllInIt();
    void theScreenCanBeDeletedThroughItsBase();
    void aParentTakesTheScreenWithIt();

    void classAndMetaObjectAreThoseOfTheScreen();
    void signalsAndSlotsStandInTheirOrder();
    void everySlotIsPrivateAndTheSignalPublic();

    void theTitleIsShown();
    void theRightSoftkeySaysBackAndTheLeftNothing();
    void theListFillsTheContentArea();
    void theContentAreaIsBetweenTitleAndSoftkeys();

    void aKeyThatLeavesEmitsCloseWidgetOnceAndDoesNothingElse_data();
    void aKeyThatLeavesEmitsCloseWidgetOnceAndDoesNothingElse();
    void aClickOnBackEmitsCloseWidgetOnce();
    void otherKeysDoNotLeave_data();
    void otherKeysDoNotLeave();
    void aHostMayDestroyTheScreenAfterTheSignal();
};

void TestScreenFrame::createFillsTheScreenButDoesNotShowIt()
{
    const CallTimes screen("callTime");
    QVERIFY(screen.get());
    QVERIFY(screen->isHidden());
    QCOMPARE(PhoneScreen::rows(screen.get()).size(), 6);

    QWidget host;
    host.show();
    const CallTimes inside("callTime", &host);
    QVERIFY(inside->isHidden());
}

void TestScreenFrame::parentAndNameArePassedOn_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("a parent and a name") << true << QByteArray("callTime");
    QTest::newRow("no parent") << false << QByteArray("callTime");
    QTest::newRow("a null name") << true << QByteArray();
    QTest::newRow("a name beyond ASCII") << false
                                         << QByteArray("dur\xe9"
                                                       "e");
}

void TestScreenFrame::parentAndNameArePassedOn()
{
    QFETCH(const bool, withParent);
    QFETCH(const QByteArray, name);
    QWidget host;
    QWidget *parent = withParent ? &host : nullptr;
    const CallTimes screen("callTime", parent, name.isNull() ? nullptr : name.constData());
    QCOMPARE(screen->parentWidget(), parent);
    QCOMPARE(screen->objectName(), QString::fromLatin1(name));
    QCOMPARE(screen->isWindow(), !withParent);
}

void TestScreenFrame::destroyIgnoresNull()
{
    PluginLibrary plugin;
    const auto destroy = plugin.function<void(PHONE_UI_RecentCallTimesView *)>("destroy_callTime");
    QVERIFY(destroy);
    destroy(nullptr);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
}

void TestScreenFrame::destroyDeletesTheScreenAndAllInIt()
{
    CallTimes screen("callTime");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 1);
    const QList<QObject *> children = screen->findChildren<QObject *>();
    QList<QPointer<QObject>> watched(children.begin(), children.end());
    watched.append(screen.get());
    QVERIFY(watched.size() > 6);
    journal.clear();
    traces->take();
    screen.destroy();
    for (const QPointer<QObject> &object : std::as_const(watched))
        QVERIFY2(!object, object ? object->metaObject()->className() : "");
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
}

void TestScreenFrame::theScreenCanBeDeletedThroughItsBase()
{
    script().answer("DataCalls::callStatus", quint8{1});
    PluginLibrary plugin;
    const auto create =
        plugin.function<PHONE_UI_RecentCallTimesView *(QWidget *, const char *)>("create_callTime");
    PHONE_UI_RecentCallTimesView *screen = create(nullptr, nullptr);
    screen->show();
    PhoneScreen::chooseRow(screen, 3);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    // The notice has no parent: only the screen's own destructor knows of it.
    const QPointer<QObject> notice(PhoneScreen::shownDialog());
    QVERIFY(notice);
    QObject *base = screen;
    delete base;
    QVERIFY(!notice);
}

void TestScreenFrame::aParentTakesTheScreenWithIt()
{
    PluginLibrary plugin;
    const auto create =
        plugin.function<PHONE_UI_RecentCallTimesView *(QWidget *, const char *)>("create_callTime");
    auto host = std::make_unique<QWidget>();
    const QPointer<QObject> screen(create(host.get(), nullptr));
    host.reset();
    QVERIFY(!screen);
}

void TestScreenFrame::classAndMetaObjectAreThoseOfTheScreen()
{
    const CallTimes screen("callTime");
    const ZKbMainWidget *base = screen.get();
    QCOMPARE(base->className(), "PHONE_UI_RecentCallTimesView");
    QCOMPARE(base->metaObject()->className(), "PHONE_UI_RecentCallTimesView");
    QCOMPARE(base->metaObject()->superClass()->className(), "ZKbMainWidget");
    QCOMPARE(base->metaObject()->propertyCount(), base->metaObject()->superClass()->propertyCount());
    QCOMPARE(base->metaObject()->enumeratorOffset(), base->metaObject()->enumeratorCount());
}

void TestScreenFrame::signalsAndSlotsStandInTheirOrder()
{
    const CallTimes screen("callTime");
    const QMetaObject *meta = screen->metaObject();
    QStringList own;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        own.append(described(meta->method(i)));
    COMPARE_LINES(own, QStringList({"signal closeWidget()", "slot slotNo()", "slot slotYes()",
                                    "slot slotSelectedItem(ZSettingItem*)"}));
}

void TestScreenFrame::everySlotIsPrivateAndTheSignalPublic()
{
    const CallTimes screen("callTime");
    const QMetaObject *meta = screen->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const bool isSignal = meta->method(i).methodType() == QMetaMethod::Signal;
        QCOMPARE(meta->method(i).access(), isSignal ? QMetaMethod::Public : QMetaMethod::Private);
    }
}

void TestScreenFrame::theTitleIsShown()
{
    const CallTimes screen("callTime");
    QCOMPARE(screen->mainWidgetTitle(), QString("Call Times"));
}

void TestScreenFrame::theRightSoftkeySaysBackAndTheLeftNothing()
{
    const CallTimes screen("callTime");
    QCOMPARE(PhoneScreen::softkey(screen.get(), ZSoftKey::RightKey), QString("Back"));
    QCOMPARE(PhoneScreen::softkey(screen.get(), ZSoftKey::LeftKey), QString());
}

void TestScreenFrame::theListFillsTheContentArea()
{
    const CallTimes screen("callTime");
    const QWidget *content = screen->getContentWidget(false);
    QVERIFY(content);
    const ZListBox *list = PhoneScreen::list(screen.get());
    QCOMPARE(list->parentWidget(), content);
    QCOMPARE(list->geometry(), QRect(QPoint(0, 0), content->size()));
    screen->show();
    QCOMPARE(list->geometry(), QRect(QPoint(0, 0), content->size()));
}

void TestScreenFrame::theContentAreaIsBetweenTitleAndSoftkeys()
{
    const CallTimes screen("callTime");
    screen->show();
    QCOMPARE(screen->size(), QSize(240, 320));
    const QRect content = screen->getContentWidget(false)->geometry();
    const QRect softkeys = screen->cstWidget()->geometry();
    QCOMPARE(content.left(), 0);
    QCOMPARE(content.width(), 240);
    QVERIFY(content.top() > 0);
    QCOMPARE(content.bottom() + 1, softkeys.top());
    QCOMPARE(softkeys.bottom() + 1, 320);
}

void TestScreenFrame::aKeyThatLeavesEmitsCloseWidgetOnceAndDoesNothingElse_data()
{
    QTest::addColumn<int>("key");
    for (const ZKeys::Binding &binding : ZKeys::bindings) {
        if (binding.phoneKey == PhoneKey::RightSoftkey || binding.phoneKey == PhoneKey::Clear)
            QTest::newRow(QKeySequence(binding.key).toString().toLatin1().constData()) << int(binding.key);
    }
}

void TestScreenFrame::aKeyThatLeavesEmitsCloseWidgetOnceAndDoesNothingElse()
{
    QFETCH(const int, key);
    const CallTimes screen("callTime");
    screen->show();
    // A row has been chosen before: any slot that ran by mistake would reset it.
    PhoneScreen::chooseRow(screen.get(), 1);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    const QPointer<QObject> alive(screen.get());
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    const QStringList rows = PhoneScreen::rows(screen.get());
    journal.clear();
    traces->take();
    QVERIFY(ZApplication::pressKey(key));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(closed.count(), 1);
    QVERIFY(alive);
    QVERIFY(screen->isVisible());
    QCOMPARE(PhoneScreen::rows(screen.get()), rows);
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
    QVERIFY(ZApplication::pressKey(key));
    QCOMPARE(closed.count(), 2);
}

void TestScreenFrame::aClickOnBackEmitsCloseWidgetOnce()
{
    const CallTimes screen("callTime");
    screen->show();
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    const auto buttons = screen->cstWidget()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(closed.count(), 1);
}

void TestScreenFrame::otherKeysDoNotLeave_data()
{
    QTest::addColumn<int>("key");
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Select, Qt::Key_Return, Qt::Key_Context1,
                              Qt::Key_F1, Qt::Key_1, Qt::Key_Asterisk, Qt::Key_Left, Qt::Key_Right, Qt::Key_Tab})
        QTest::newRow(QKeySequence(key).toString().toLatin1().constData()) << int(key);
}

void TestScreenFrame::otherKeysDoNotLeave()
{
    QFETCH(const int, key);
    const CallTimes screen("callTime");
    screen->show();
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    journal.clear();
    QVERIFY(ZApplication::pressKey(key));
    QCOMPARE(closed.count(), 0);
    QCOMPARE(journal.lines(), QStringList());
}

void TestScreenFrame::aHostMayDestroyTheScreenAfterTheSignal()
{
    CallTimes screen("callTime");
    screen->show();
    const QPointer<QObject> alive(screen.get());
    // Not from inside the signal's emission: what the signal deletes later destroys the screen.
    auto *farewell = new QObject;
    connect(screen.get(), SIGNAL(closeWidget()), farewell, SLOT(deleteLater()));
    connect(farewell, &QObject::destroyed, this, [&] { screen.destroy(); });
    PhoneScreen::press(PhoneKey::Clear);
    QVERIFY(alive);
    QTRY_VERIFY_WITH_TIMEOUT(!alive, 60'000);
}

KAV_TEST_GROUP(TestScreenFrame, QApplication);
#include "tst_screen_frame.moc"
