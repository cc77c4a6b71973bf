#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZMultiLineEdit.h"

#include <QtCore/QEvent>
#include <QtCore/QMimeData>
#include <QtCore/QPoint>
#include <QtGui/QClipboard>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>

using namespace ToolkitTestKit;

Q_DECLARE_METATYPE(std::function<void(ZMultiLineEdit *, const QString &)>)

namespace {

using WayIn = std::function<void(ZMultiLineEdit *, const QString &)>;

void typed(ZMultiLineEdit *field, const QString &text)
{
    for (QChar c : text) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QCoreApplication::sendEvent(field, &event);
    }
}

void pasted(ZMultiLineEdit *field, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    field->paste();
}

void dropped(ZMultiLineEdit *field, const QString &text)
{
    QMimeData data;
    data.setText(text);
    const QPoint place = field->cursorRect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field->viewport(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field->viewport(), &drop);
}

void composed(ZMultiLineEdit *field, const QString &text)
{
    QInputMethodEvent preedit(text, {});
    QCoreApplication::sendEvent(field, &preedit);
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QCoreApplication::sendEvent(field, &commit);
}

void put(ZMultiLineEdit *field, const QString &text)
{
    field->insertPlainText(text);
}

const QString face = QStringLiteral("\U0001F600"); // two code units

} // namespace

class TestEntryField : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { field.reset(); }

    void noWayInGetsMoreThanTheMaximum_data();
    void noWayInGetsMoreThanTheMaximum();
    void aFullFieldKeepsWhatItHas_data() { noWayInGetsMoreThanTheMaximum_data(); }
    void aFullFieldKeepsWhatItHas();
    void whatIsInTheMiddleStaysWhole_data() { noWayInGetsMoreThanTheMaximum_data(); }
    void whatIsInTheMiddleStaysWhole();
    void aSelectionMakesRoom_data();
    void aSelectionMakesRoom();
    void aCharacterOfTwoUnitsIsNeverSplit_data() { noWayInGetsMoreThanTheMaximum_data(); }
    void aCharacterOfTwoUnitsIsNeverSplit();
    void noWayInBringsALineBreak_data();
    void noWayInBringsALineBreak();
    void nothingIsKeptForUndo();
    void aLowerMaximumCutsTheEnd();
    void noMaximumTakesEverything();
    void aMaximumOfNothingTakesNothing();
    void keysOfTheDialogAreLeftToIt_data();
    void keysOfTheDialogAreLeftToIt();
    void theFieldHasANameAndAClassName();

private:
    std::unique_ptr<ZMultiLineEdit> field;
};

void TestEntryField::init()
{
    noWarnings();
    field = std::make_unique<ZMultiLineEdit>(nullptr, "entry");
    field->resize(200, 30);
    field->show();
}

void TestEntryField::noWayInGetsMoreThanTheMaximum_data()
{
    QTest::addColumn<WayIn>("enter");
    QTest::newRow("typed") << WayIn(typed);
    QTest::newRow("pasted") << WayIn(pasted);
    QTest::newRow("dropped") << WayIn(dropped);
    QTest::newRow("by an input method") << WayIn(composed);
    QTest::newRow("put in by the program") << WayIn(put);
}

void TestEntryField::noWayInGetsMoreThanTheMaximum()
{
    QFETCH(WayIn, enter);
    field->setMaxLength(3);
    QCOMPARE(field->maxLength(), 3);
    enter(field.get(), QStringLiteral("EURO"));
    QCOMPARE(field->toPlainText(), QStringLiteral("EUR"));
}

void TestEntryField::aFullFieldKeepsWhatItHas()
{
    QFETCH(WayIn, enter);
    field->setPlainText(QStringLiteral("EUR"));
    field->setMaxLength(3);
    field->moveCursor(QTextCursor::End);
    enter(field.get(), QStringLiteral("X"));
    QCOMPARE(field->toPlainText(), QStringLiteral("EUR"));
    field->moveCursor(QTextCursor::Start);
    enter(field.get(), QStringLiteral("XY"));
    QCOMPARE(field->toPlainText(), QStringLiteral("EUR"));
}

void TestEntryField::whatIsInTheMiddleStaysWhole()
{
    QFETCH(WayIn, enter);
    field->setPlainText(QStringLiteral("ac"));
    field->setMaxLength(4);
    QTextCursor middle = field->textCursor();
    middle.setPosition(1);
    field->setTextCursor(middle);
    enter(field.get(), QStringLiteral("123"));
    QCOMPARE(field->toPlainText(), QStringLiteral("a12c"));
}

// What is dropped goes where it is dropped, whatever is selected.
void TestEntryField::aSelectionMakesRoom_data()
{
    QTest::addColumn<WayIn>("enter");
    QTest::newRow("typed") << WayIn(typed);
    QTest::newRow("pasted") << WayIn(pasted);
    QTest::newRow("by an input method") << WayIn(composed);
    QTest::newRow("put in by the program") << WayIn(put);
}

void TestEntryField::aSelectionMakesRoom()
{
    QFETCH(WayIn, enter);
    field->setPlainText(QStringLiteral("EUR"));
    field->setMaxLength(3);
    field->selectAll();
    enter(field.get(), QStringLiteral("USDX"));
    QCOMPARE(field->toPlainText(), QStringLiteral("USD"));
}

void TestEntryField::aCharacterOfTwoUnitsIsNeverSplit()
{
    QFETCH(WayIn, enter);
    if (QLatin1String(QTest::currentDataTag()) == QLatin1String("typed"))
        enter = [](ZMultiLineEdit *edit, const QString &text) {
            QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, text);
            QCoreApplication::sendEvent(edit, &event);
        };
    field->setPlainText(QStringLiteral("ab"));
    field->setMaxLength(3);
    field->moveCursor(QTextCursor::End);
    enter(field.get(), face);
    QCOMPARE(field->toPlainText(), QStringLiteral("ab"));
    field->setMaxLength(4);
    field->moveCursor(QTextCursor::End);
    enter(field.get(), face);
    QCOMPARE(field->toPlainText(), QStringLiteral("ab") + face);
    field->setMaxLength(3);
    QCOMPARE(field->toPlainText(), QStringLiteral("ab"));
}

void TestEntryField::noWayInBringsALineBreak_data()
{
    QTest::addColumn<WayIn>("enter");
    QTest::newRow("pasted") << WayIn(pasted);
    QTest::newRow("dropped") << WayIn(dropped);
    QTest::newRow("by an input method") << WayIn([](ZMultiLineEdit *edit, const QString &text) {
        QInputMethodEvent commit;
        commit.setCommitString(text);
        QCoreApplication::sendEvent(edit, &commit);
    });
}

void TestEntryField::noWayInBringsALineBreak()
{
    QFETCH(WayIn, enter);
    enter(field.get(), QStringLiteral("12\n34\t5\u20296\u20287\r\n\n\u2028"));
    QCOMPARE(field->toPlainText(), QStringLiteral("12 34 5 6 7"));
    QCOMPARE(field->document()->blockCount(), 1);
}

void TestEntryField::nothingIsKeptForUndo()
{
    typed(field.get(), QStringLiteral("EUR"));
    field->undo();
    QTest::keyClick(field.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field->toPlainText(), QStringLiteral("EUR"));
    QVERIFY(!field->document()->isUndoAvailable());
}

void TestEntryField::aLowerMaximumCutsTheEnd()
{
    field->setPlainText(QStringLiteral("12345"));
    field->setMaxLength(2);
    QCOMPARE(field->toPlainText(), QStringLiteral("12"));
    field->setMaxLength(-1);
    typed(field.get(), QStringLiteral("x"));
    QCOMPARE(field->toPlainText().size(), 3);
    // The second half of a letter, without the first.
    field->setPlainText(QStringLiteral("ab") + QChar(0xDC00));
    field->setMaxLength(2);
    QCOMPARE(field->toPlainText(), QStringLiteral("ab"));
}

void TestEntryField::noMaximumTakesEverything()
{
    QCOMPARE(field->maxLength(), -1);
    const QString text(5000, QLatin1Char('7'));
    pasted(field.get(), text);
    QCOMPARE(field->toPlainText(), text);
}

void TestEntryField::aMaximumOfNothingTakesNothing()
{
    field->setMaxLength(0);
    typed(field.get(), QStringLiteral("12"));
    QVERIFY(field->toPlainText().isEmpty());
}

void TestEntryField::keysOfTheDialogAreLeftToIt_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isForDialog");
    QTest::newRow("select") << int(Qt::Key_Select) << "1" << true;
    QTest::newRow("Enter") << int(Qt::Key_Return) << "1" << true;
    QTest::newRow("the space bar types, though screens take it for select") << int(Qt::Key_Space) << "1" << false;
    QTest::newRow("the left softkey") << int(Qt::Key_Context1) << "1" << true;
    QTest::newRow("the right softkey") << int(Qt::Key_Context2) << "1" << true;
    QTest::newRow("clear") << int(Qt::Key_Clear) << "1" << true;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << "1" << true;
    QTest::newRow("Back") << int(Qt::Key_Back) << "1" << true;
    QTest::newRow("Backspace with a text") << int(Qt::Key_Backspace) << "1" << false;
    QTest::newRow("Backspace without one") << int(Qt::Key_Backspace) << "" << true;
    QTest::newRow("left moves the cursor") << int(Qt::Key_Left) << "1" << false;
}

void TestEntryField::keysOfTheDialogAreLeftToIt()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(bool, isForDialog);
    field->setPlainText(text);
    field->moveCursor(QTextCursor::End);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Space ? QStringLiteral(" ") : QString());
    event.accept();
    QCoreApplication::sendEvent(field.get(), &event);
    QCOMPARE(event.isAccepted(), !isForDialog);
    QCOMPARE(field->document()->blockCount(), 1);
}

void TestEntryField::theFieldHasANameAndAClassName()
{
    QCOMPARE(field->objectName(), QStringLiteral("entry"));
    QCOMPARE(QLatin1String(field->className()), QLatin1String("ZMultiLineEdit"));
    QVERIFY(ZMultiLineEdit(nullptr).objectName().isEmpty());
}

KAV_TEST_GROUP(TestEntryField, QApplication);

#include "tst_entry_field.moc"
