// The softkey bar.
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZKeys.h"

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

using namespace ToolkitTestKit;

namespace {

constexpr auto Priority = ZSoftKey::DefaultTextPriority;

// The two captions as a screen reader finds them, left to right.
QStringList spoken(const ZSoftKey &bar)
{
    QStringList names;
    const auto keys = bar.findChildren<QAbstractButton *>();
    for (const QAbstractButton *key : keys)
        names << key->accessibleName();
    return names;
}

} // namespace

class TestSoftKey : public QObject
{
    Q_OBJECT

public slots:
    void answer() { ++answers; }
    void deleteOwner() { delete owner; }

private slots:
    void init();

    void captionsCanBeReadWholeByProgramAndScreenReader();
    void aCaptionOfAnyLengthAndContentIsShownOnOneLine();
    void theTextOfTheHighestPriorityIsShownUntilItIsWithdrawn();
    void eachKeyAnswersToThePointerOnItsOwnHalf();
    void theKeysStayWhereTheyAreInEveryReadingDirection();
    void aPointerReleasedBesideTheBarDoesNotCount();
    void aKeyWithoutACaptionStillAnswers();
    void aKeyReportsToASlotOrToASignalGivenAsText();
    void aNewConnectionReplacesTheEarlierOne();
    void nullDisconnects();
    void aMemberThatIsNotThereIsRefusedAndTheKeyKeepsItsConnection_data();
    void aMemberThatIsNotThereIsRefusedAndTheKeyKeepsItsConnection();
    void aKeyThatDoesNotExistIsRefusedWithAWarning();
    void aDisabledKeyAnswersToNothingAndLooksDisabled();
    void anUnknownLayoutIsTakenAsTheTwoKeyOne();
    void theSoftkeysOfAnotherTargetAreServed();
    void clickingDoesNotMoveTheFocus();
    void whoeverAnswersMayDeleteTheBarsOwner_data();
    void whoeverAnswersMayDeleteTheBarsOwner();

private:
    int answers = 0;
    QPointer<QWidget> owner;
};

void TestSoftKey::init()
{
    noWarnings();
    answers = 0;
}

void TestSoftKey::captionsCanBeReadWholeByProgramAndScreenReader()
{
    ZSoftKey bar(QStringLiteral("CST_2A"), nullptr, nullptr);
    QCOMPARE(spoken(bar), QStringList({QString(), QString()}));
    bar.setText(ZSoftKey::LeftKey, QStringLiteral("A caption that is wider than half of the display"), Priority);
    bar.setText(ZSoftKey::RightKey, QStringLiteral("Back & forth"), Priority);
    QCOMPARE(bar.text(ZSoftKey::LeftKey), QStringLiteral("A caption that is wider than half of the display"));
    QCOMPARE(bar.text(ZSoftKey::RightKey), QStringLiteral("Back & forth"));
    QCOMPARE(spoken(bar), QStringList({bar.text(ZSoftKey::LeftKey), bar.text(ZSoftKey::RightKey)}));
}

void TestSoftKey::aCaptionOfAnyLengthAndContentIsShownOnOneLine()
{
    ListScreen screen;
    const QString endless = QString(100'000, QLatin1Char('w')) + QLatin1Char('\n') + QChar(0);
    screen.bar->setText(ZSoftKey::LeftKey, endless, Priority);
    screen.bar->setText(ZSoftKey::RightKey, QString(), Priority);
    QCOMPARE(screen.bar->text(ZSoftKey::LeftKey), endless);
    const QImage image = screen.bar->grab().toImage();
    const QColor background = ZSkinService::color(ZSkinService::SoftkeyBarColor);
    QVERIFY(lastInk(image, background) > image.width() / 4);
    QVERIFY2(lastInk(image, background) < image.width() / 2, "the left caption runs into the right half");
}

void TestSoftKey::theTextOfTheHighestPriorityIsShownUntilItIsWithdrawn()
{
    ZSoftKey bar(QStringLiteral("CST_2A"), nullptr, nullptr);
    const auto high = static_cast<ZSoftKey::TEXT_PRIORITY>(1);
    bar.setText(ZSoftKey::LeftKey, QStringLiteral("urgent"), high);
    bar.setText(ZSoftKey::LeftKey, QStringLiteral("plain"), Priority);
    QCOMPARE(bar.text(ZSoftKey::LeftKey), QStringLiteral("urgent"));
    bar.setText(ZSoftKey::LeftKey, QString(), high);
    QCOMPARE(bar.text(ZSoftKey::LeftKey), QStringLiteral("plain"));
}

void TestSoftKey::eachKeyAnswersToThePointerOnItsOwnHalf()
{
    ListScreen screen;
    screen.show();
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    QCOMPARE(left.count(), 1);
    QCOMPARE(right.count(), 0);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QCOMPARE(left.count(), 1);
    QCOMPARE(right.count(), 1);
}

// They stand over keys of the phone, which do not move either.
void TestSoftKey::theKeysStayWhereTheyAreInEveryReadingDirection()
{
    ListScreen screen;
    screen.show();
    const QImage before = screen.bar->grab().toImage();
    screen.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(screen.bar->grab().toImage(), before);
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QWidget *under = screen.bar->childAt(QPoint(10, 10));
    QVERIFY(under);
    QTest::mouseClick(under, Qt::LeftButton);
    QCOMPARE(left.size(), 1);
}

void TestSoftKey::aPointerReleasedBesideTheBarDoesNotCount()
{
    ListScreen screen;
    screen.show();
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    QTest::mousePress(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QTest::mouseRelease(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 200));
    QCOMPARE(right.count(), 0);
}

void TestSoftKey::aKeyWithoutACaptionStillAnswers()
{
    ListScreen screen;
    screen.bar->setText(ZSoftKey::LeftKey, QString(), Priority);
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(left.count(), 1);
}

void TestSoftKey::aKeyReportsToASlotOrToASignalGivenAsText()
{
    ListScreen screen;
    QSignalSpy closing(&screen, &ListScreen::closeWidget);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, &screen, "2closeWidget()");
    screen.bar->setClickedSlot(ZSoftKey::LeftKey, this, SLOT(answer()));
    click(&screen, Qt::Key_Context2);
    QCOMPARE(closing.count(), 1);
    QCOMPARE(answers, 0);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(closing.count(), 1);
    QCOMPARE(answers, 1);
}

void TestSoftKey::aNewConnectionReplacesTheEarlierOne()
{
    ListScreen screen;
    QSignalSpy closing(&screen, &ListScreen::closeWidget);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, "1answer()");
    screen.bar->setClickedSlot(ZSoftKey::RightKey, &screen, "2closeWidget()");
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(answers, 0);
    QCOMPARE(closing.count(), 1);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, &screen, "2closeWidget()");
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(closing.count(), 2);
}

void TestSoftKey::nullDisconnects()
{
    ListScreen screen;
    screen.bar->setClickedSlot(ZSoftKey::LeftKey, this, "1answer()");
    screen.bar->setClickedSlot(ZSoftKey::LeftKey, nullptr, nullptr);
    screen.bar->click(ZSoftKey::LeftKey);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, "1answer()");
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, nullptr);
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(answers, 0);
}

void TestSoftKey::aMemberThatIsNotThereIsRefusedAndTheKeyKeepsItsConnection_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::newRow("no such slot") << QByteArray("1noSuchSlot()");
    QTest::newRow("no such signal") << QByteArray("2noSuchSignal()");
    QTest::newRow("a signal's code before a slot") << QByteArray("2answer()");
    QTest::newRow("no code") << QByteArray("answer()");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("a code alone") << QByteArray("1");
    QTest::newRow("a member that wants an argument") << QByteArray("2objectNameChanged(QString)");
}

void TestSoftKey::aMemberThatIsNotThereIsRefusedAndTheKeyKeepsItsConnection()
{
    QFETCH(QByteArray, member);
    ListScreen screen;
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, "1answer()");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ZSoftKey::setClickedSlot: ")));
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, member.constData());
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(answers, 1);
}

void TestSoftKey::aKeyThatDoesNotExistIsRefusedWithAWarning()
{
    ZSoftKey bar(QStringLiteral("CST_2A"), nullptr, nullptr);
    QSignalSpy left(&bar, &ZSoftKey::leftClicked);
    QSignalSpy right(&bar, &ZSoftKey::rightClicked);
    for (const int number : {-1, 2, 1000}) {
        const auto key = static_cast<ZSoftKey::KEY_IDX>(number);
        for (const char *operation :
             {"setText", "text", "setClickedSlot", "setButtonEnable", "isButtonEnabled", "click"})
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("^ZSoftKey::%1: there is no key %2")
                                                        .arg(QLatin1String(operation))
                                                        .arg(number)));
        bar.setText(key, QStringLiteral("x"), Priority);
        QVERIFY(bar.text(key).isNull());
        bar.setClickedSlot(key, this, "1answer()");
        bar.setButtonEnable(key, true);
        QVERIFY(!bar.isButtonEnabled(key));
        bar.click(key);
    }
    QCOMPARE(spoken(bar), QStringList({QString(), QString()}));
    QCOMPARE(left.count() + right.count() + answers, 0);
}

void TestSoftKey::aDisabledKeyAnswersToNothingAndLooksDisabled()
{
    ListScreen screen;
    screen.show();
    const QImage before = screen.bar->grab().toImage();
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    screen.bar->setButtonEnable(ZSoftKey::LeftKey, false);
    QVERIFY(!screen.bar->isButtonEnabled(ZSoftKey::LeftKey));
    QVERIFY(screen.bar->isButtonEnabled(ZSoftKey::RightKey));
    click(&screen, Qt::Key_Context1);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    screen.bar->click(ZSoftKey::LeftKey);
    QCOMPARE(left.count(), 0);
    QVERIFY(screen.bar->grab().toImage() != before);
    screen.bar->setButtonEnable(ZSoftKey::LeftKey, true);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(left.count(), 1);
}

void TestSoftKey::anUnknownLayoutIsTakenAsTheTwoKeyOne()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown layout \"CST_3B\"")));
    ZSoftKey bar(QStringLiteral("CST_3B"), nullptr, nullptr);
    QCOMPARE(spoken(bar).size(), 2);
}

void TestSoftKey::theSoftkeysOfAnotherTargetAreServed()
{
    QWidget target;
    auto *bar = new ZSoftKey(QStringLiteral("CST_2A"), nullptr, &target);
    QSignalSpy left(bar, &ZSoftKey::leftClicked);
    QSignalSpy right(bar, &ZSoftKey::rightClicked);
    press(&target, Qt::Key_Context1);
    press(&target, Qt::Key_F2);
    press(&target, Qt::Key_F2, true);
    press(&target, Qt::Key_A);
    QCOMPARE(left.count(), 1);
    QCOMPARE(right.count(), 1);
    delete bar;
    press(&target, Qt::Key_Context1);
}

void TestSoftKey::clickingDoesNotMoveTheFocus()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    QVERIFY(screen.list->hasFocus());
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QVERIFY(screen.list->hasFocus());
}

void TestSoftKey::whoeverAnswersMayDeleteTheBarsOwner_data()
{
    QTest::addColumn<int>("by");
    QTest::newRow("by key") << 0;
    QTest::newRow("by a key through the window system") << 1;
    QTest::newRow("by the pointer") << 2;
}

void TestSoftKey::whoeverAnswersMayDeleteTheBarsOwner()
{
    QFETCH(int, by);
    auto *screen = new ListScreen;
    owner = screen;
    screen->addRows(3);
    screen->bar->setClickedSlot(ZSoftKey::RightKey, this, "1deleteOwner()");
    screen->show();
    QVERIFY(QTest::qWaitForWindowActive(screen, 60'000));
    if (by == 0)
        press(screen->list, Qt::Key_Context2);
    else if (by == 1)
        clickInWindow(screen, Qt::Key_Context2);
    else
        QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    settle();
    QVERIFY(!owner);
}

KAV_TEST_GROUP(TestSoftKey, QApplication);
#include "tst_softkey.moc"
