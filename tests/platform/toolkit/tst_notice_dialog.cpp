#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZNoticeDlg.h"

#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

class TestNoticeDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyKeyClosesAClosableNotice_data();
    void everyKeyClosesAClosableNotice();
    void noKeyClosesANoticeThatIsNotClosable_data() { everyKeyClosesAClosableNotice_data(); }
    void noKeyClosesANoticeThatIsNotClosable();
    void theMakerMayDeleteItAtAnyTime_data();
    void theMakerMayDeleteItAtAnyTime();
    void theMessageIsSaidAndShownWithItsSign();
    void aLongMessageStaysOnTheDisplayAndScrolls();
    void anUnknownTypeIsAWarning();

private:
    ZNoticeDlg *open(const QString &message, bool closable);

    std::unique_ptr<ListScreen> screen;
};

void TestNoticeDialog::init()
{
    noWarnings();
    screen = std::make_unique<ListScreen>();
    screen->addRows(20);
    screen->show();
}

void TestNoticeDialog::cleanup()
{
    screen.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

ZNoticeDlg *TestNoticeDialog::open(const QString &message, bool closable)
{
    auto *dialog = new ZNoticeDlg(ZNoticeDlg::DoneNotice, QStringLiteral("Reset Calls"), message, screen.get(),
                                  nullptr, true, 0, closable);
    dialog->show();
    return dialog;
}

void TestNoticeDialog::everyKeyClosesAClosableNotice_data()
{
    addClearKeyRows();
    QTest::newRow("the Backspace key of a keyboard") << int(Qt::Key_Backspace);
    QTest::newRow("the left softkey") << int(Qt::Key_Context1);
    QTest::newRow("the select key") << int(Qt::Key_Select);
    QTest::newRow("the space bar") << int(Qt::Key_Space);
}

void TestNoticeDialog::everyKeyClosesAClosableNotice()
{
    QFETCH(int, key);
    ZNoticeDlg *dialog = open(QStringLiteral("Done."), true);
    QCOMPARE(dialog->softKey()->text(ZSoftKey::LeftKey), QStringLiteral("OK"));
    QVERIFY(dialog->softKey()->text(ZSoftKey::RightKey).isEmpty());
    Answers answers(dialog);
    pressKey(Qt::Key_Context2);
    QVERIFY(answers.given.isEmpty());
    pressKey(key);
    QCOMPARE(answers.given, QStringList(QStringLiteral("left")));
    QVERIFY(answers.wasHidden);
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestNoticeDialog::noKeyClosesANoticeThatIsNotClosable()
{
    QFETCH(int, key);
    ZNoticeDlg *dialog = open(QStringLiteral("Done."), false);
    QVERIFY(dialog->softKey()->text(ZSoftKey::LeftKey).isEmpty());
    Answers answers(dialog);
    pressKey(key);
    QTest::mouseClick(dialog->softKey()->childAt(20, 10), Qt::LeftButton);
    QVERIFY(answers.given.isEmpty());
    QVERIFY(dialog->isVisible());
}

void TestNoticeDialog::theMakerMayDeleteItAtAnyTime_data()
{
    QTest::addColumn<bool>("isAnswered");
    QTest::addColumn<bool>("inSlot");
    QTest::newRow("while it is shown") << false << false;
    QTest::newRow("after it has hidden itself") << true << false;
    QTest::newRow("by whoever is told") << true << true;
}

void TestNoticeDialog::theMakerMayDeleteItAtAnyTime()
{
    QFETCH(bool, isAnswered);
    QFETCH(bool, inSlot);
    const QPointer<ZNoticeDlg> dialog = open(QStringLiteral("Done."), true);
    Answers answers(dialog);
    if (inSlot)
        answers.then = [dialog] { delete dialog; };
    if (isAnswered)
        clickInWindow(screen.get(), Qt::Key_Select);
    delete dialog;
    settle();
    QCOMPARE(answers.given.size(), isAnswered ? 1 : 0);
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestNoticeDialog::theMessageIsSaidAndShownWithItsSign()
{
    const QString message = QStringLiteral("All costs have been reset to 0.00 units.");
    ZNoticeDlg *dialog = open(message, true);
    QCOMPARE(dialog->message(), message);
    QCOMPARE(dialog->type(), ZNoticeDlg::DoneNotice);
    QCOMPARE(dialog->header(), QStringLiteral("Reset Calls"));
    QCOMPARE(dialog->accessibleDescription(), message);
    QCOMPARE(QLatin1String(dialog->className()), QLatin1String("ZNoticeDlg"));
    const QRect box = boxOf(dialog);
    const QRect below = box.adjusted(2, ZSkinService::DialogHeaderHeight, -2, 0);
    const QImage body =
        dialog->grab(below.adjusted(0, below.height() / 2 - 2, 0, 2 - below.height() / 2)).toImage();
    const int column = firstInk(body, ZSkinService::color(ZSkinService::DialogColor));
    QVERIFY2(column >= 0 && column < 2 * ZSkinService::DialogPadding, "no sign at the leading edge");
    const QColor disc = ZSkinService::color(ZSkinService::FocusBarColor);
    QCOMPARE(body.pixelColor(column + 4, body.height() / 2), disc);
}

void TestNoticeDialog::aLongMessageStaysOnTheDisplayAndScrolls()
{
    ZNoticeDlg *dialog = open(QStringLiteral("A long text that goes on. ").repeated(60), true);
    QVERIFY(QRect(0, 0, 240, 292).contains(boxOf(dialog)));
    const QImage top = dialog->grab().toImage();
    pressKey(Qt::Key_Down);
    QVERIFY(dialog->grab().toImage() != top);
    pressKey(Qt::Key_Up);
    QCOMPARE(dialog->grab().toImage(), top);
}

void TestNoticeDialog::anUnknownTypeIsAWarning()
{
    QTest::ignoreMessage(QtWarningMsg, "ZNoticeDlg: there is no type 5");
    const ZNoticeDlg dialog(static_cast<ZNoticeDlg::Type>(5), QString(), QStringLiteral("?"), screen.get(),
                            "notice", true, 0, true);
    QCOMPARE(dialog.type(), ZNoticeDlg::DoneNotice);
    QCOMPARE(dialog.objectName(), QStringLiteral("notice"));
}

KAV_TEST_GROUP(TestNoticeDialog, QApplication);

#include "tst_notice_dialog.moc"
