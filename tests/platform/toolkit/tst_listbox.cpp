// The list: rows, ownership, the focus bar, keys and pointer, what is reported.
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZListBoxItem.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QModelIndex>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QSize>
#include <QtGui/QAccessible>
#include <QtGui/QAccessibleInterface>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QWidget>

#include <array>
#include <ctime>

using namespace ToolkitTestKit;

namespace {

constexpr auto Title = ZSettingItem::TitleRegion;
constexpr auto Value = ZSettingItem::ValueRegion;

int livingItems = 0;

class CountedItem : public ZSettingItem
{
public:
    explicit CountedItem(ZListBox *list)
        : ZSettingItem(list, QString())
    {
        ++livingItems;
    }
    ~CountedItem() override { --livingItems; }
};

// The rows that a model reports as changed, in order.
class ChangedRows : public QObject
{
public:
    explicit ChangedRows(QAbstractItemModel *model)
    {
        connect(model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &from, const QModelIndex &to) {
                    for (int row = from.row(); row <= to.row(); ++row)
                        rows << row;
                });
        connect(model, &QAbstractItemModel::modelReset, this, [this] { rows << -1; });
        connect(model, &QAbstractItemModel::layoutChanged, this, [this] { rows << -2; });
    }

    QList<int> rows;
};

// Of the processor: however busy the machine is, it is this thread's own.
qint64 nanosecondsOfThread()
{
    timespec spent{};
    return ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent) == 0 ? spent.tv_sec * 1'000'000'000LL + spent.tv_nsec
                                                                 : -1;
}

qint64 nanosecondsToFill(int count)
{
    const qint64 begun = nanosecondsOfThread();
    ListScreen screen;
    for (int i = 0; i < count; ++i) {
        ZSettingItem *item = screen.addRow(QStringLiteral("Row"));
        if (screen.list->index(item) != i)
            return -1;
    }
    return nanosecondsOfThread() - begun;
}

} // namespace

class TestListBox : public QObject
{
    Q_OBJECT

private slots:
    void aDelegateOfAHostPaintsTheRows();
    void flagsAreThoseOfAWindow();
    void aControlCharacterIsNotTyped();
    void init();

    void rowsAreKeptInTheOrderOfTheirInsertion();
    void aRowCanBePutBeforeAnotherAndAllRowsKnowTheirPlace();
    void anIndexThatIsNotThereGivesNoRow();
    void whatCannotBeInsertedIsRefusedWithAWarning();
    void theListDeletesAllItemsMadeOnItInsertedOrNot();
    void theModelHasRowsAndNothingBelowThem();
    void textsOfTheSamePlaceStandBesideEachOther();
    void theScrollBarMovesOnlyByItsHandle();
    void aDeletedItemTakesItsRowAlong();
    void anItemThatOutlivesItsListKnowsOfNone();
    void clearDeletesTheRowsAndLeavesTheListUsable();
    void aListFilledAgainHasTheBarWhereItWas();
    void aShorterListFilledAgainHasTheBarOnItsFirstRow();
    void aListFilledAgainAfterAKeyHasTheBarOnItsFirstRow();
    void aListFilledAgainUnderThePointerReportsTheChoice();
    void anotherRowUnderThePointerIsNotReported();
    void subItemsMakeTitleAndValue();
    void aSubItemThatHasNoPlaceIsRefusedWithAWarning();
    void plainItemsKeepTheirTextsByNumber();
    void anItemWithoutALayoutOfItsOwnHasTheLists();
    void aRewrittenValueIsReportedForItsRowOnly();
    void rewritingTheSameTextIsReportedToo();
    void whatAScreenReaderSaysIsTitleAndValue();
    void theFirstRowThatCanBeChosenGetsTheFocusBar();
    void setSelectedMovesAndTakesAwayTheBarAndIgnoresBadRows();
    void upAndDownPassOverSeparatorsAndGoOnAtTheOtherEnd();
    void aHeldKeyStopsAtTheEnd();
    void pageAndEndKeysMoveTheBar_data();
    void pageAndEndKeysMoveTheBar();
    void aTypedLetterMovesToTheNextRowThatBeginsWithIt();
    void theHeadingsOverARowComeIntoViewWithIt();
    void keysOnAListWithoutChoosableRowsAreHarmless();
    void theBarLeavesARowThatBecomesASeparator();
    void choosingIsReportedOnce_data();
    void choosingIsReportedOnce();
    void aHeldSelectKeyChoosesOnce();
    void aDisabledRowIsReportedAndSaysThatItIsDisabled();
    void aSeparatorIsNeverReported();
    void aRowOfAnotherKindIsReportedWithoutASettingItem();
    void aPointerReleasedOnAnotherRowChoosesNothing();
    void onlyTheMainButtonChooses();
    void whoeverHearsOfAChoiceMayDoAnything_data();
    void whoeverHearsOfAChoiceMayDoAnything();
    void aListRebuiltInTheFirstReportDoesNotReportTheNewRow();
    void textsOfAnyLengthAndContentDoNoHarm();
    void theCostOfFillingGrowsWithTheNumberOfRowsOnly();
    void randomInsertionsAndDeletionsAgreeWithAPlainList();
};

void TestListBox::init()
{
    noWarnings();
}

void TestListBox::rowsAreKeptInTheOrderOfTheirInsertion()
{
    ListScreen screen;
    ZSettingItem *a = screen.addRow(QStringLiteral("A"));
    ZSettingItem *b = screen.addRow(QStringLiteral("B"));
    QCOMPARE(screen.list->count(), 2);
    QCOMPARE(screen.list->item(0), a);
    QCOMPARE(screen.list->item(1), b);
    QCOMPARE(screen.list->index(a), 0);
    QCOMPARE(screen.list->index(b), 1);
    QCOMPARE(screen.list->model()->rowCount(), 2);
}

void TestListBox::aRowCanBePutBeforeAnotherAndAllRowsKnowTheirPlace()
{
    ListScreen screen;
    screen.addRows(3);
    for (const int place : {0, 2, 4, 100, -5}) {
        auto *item = new ZSettingItem(screen.list, QString());
        item->appendSubItem(0, QStringLiteral("at %1").arg(place), false, Title);
        screen.list->insertItem(item, place, place > 1);
    }
    QCOMPARE(screen.titles(), QStringLiteral("at 0|Row 0|at 2|Row 1|at 4|Row 2|at 100|at -5"));
    for (int row = 0; row < screen.list->count(); ++row)
        QCOMPARE(screen.list->index(screen.list->item(row)), row);
    QVERIFY2(screen.list->isSelected(1), "the bar does not stay on its row");
}

void TestListBox::anIndexThatIsNotThereGivesNoRow()
{
    ListScreen screen;
    ListScreen other;
    screen.addRows(2);
    QVERIFY(!screen.list->item(-1));
    QVERIFY(!screen.list->item(2));
    QCOMPARE(screen.list->index(nullptr), -1);
    QCOMPARE(screen.list->index(other.addRow(QStringLiteral("X"))), -1);
    QCOMPARE(screen.list->index(new ZSettingItem(screen.list, QString())), -1);
}

void TestListBox::whatCannotBeInsertedIsRefusedWithAWarning()
{
    ListScreen screen;
    ListScreen other;
    ZSettingItem *a = screen.addRow(QStringLiteral("A"));
    ZSettingItem ownerless(nullptr, QString());
    ownerless.appendSubItem(0, QStringLiteral("nobody's"), false, Title);
    const auto refused = [](const char *why) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(why)));
    };
    refused("^ZListBox::insertItem: the item was not made on this list$");
    screen.list->insertItem(nullptr, -1, true);
    refused("^ZListBox::insertItem: the item was not made on this list$");
    screen.list->insertItem(&ownerless, -1, true);
    refused("^ZListBox::insertItem: the item was not made on this list$");
    other.list->insertItem(a, -1, true);
    refused("^ZListBox::insertItem: the item is in the list already$");
    screen.list->insertItem(a, 0, true);
    QCOMPARE(screen.titles(), QStringLiteral("A"));
    QCOMPARE(other.list->count(), 0);
    QVERIFY(!ownerless.listBox());
}

void TestListBox::theListDeletesAllItemsMadeOnItInsertedOrNot()
{
    livingItems = 0;
    {
        ListScreen screen;
        for (int i = 0; i < 20; ++i) {
            auto *item = new CountedItem(screen.list);
            if (i % 2)
                screen.list->insertItem(item, -1, true);
        }
        QCOMPARE(livingItems, 20);
        screen.list->clear();
        QCOMPARE(livingItems, 10);
    }
    QCOMPARE(livingItems, 0);
}

void TestListBox::theModelHasRowsAndNothingBelowThem()
{
    ListScreen screen;
    screen.addRows(2);
    const QAbstractItemModel *const model = screen.list->model();
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->rowCount(model->index(0, 0)), 0);
    QVERIFY(!model->data(QModelIndex(), Qt::DisplayRole).isValid());
}

void TestListBox::textsOfTheSamePlaceStandBesideEachOther()
{
    ListScreen screen;
    ZSettingItem *item = screen.addRow(QStringLiteral("Credit"), QStringLiteral("12.50"));
    item->appendSubItem(0, QStringLiteral("EUR"), false, Value);
    item->appendSubItem(0, QStringLiteral("left"), false, Title);
    QCOMPARE(item->value(), QStringLiteral("12.50 EUR"));
    QCOMPARE(item->title(), QStringLiteral("Credit left"));
}

void TestListBox::theScrollBarMovesOnlyByItsHandle()
{
    ListScreen screen;
    screen.addRows(40);
    screen.show();
    QScrollBar *const bar = screen.list->verticalScrollBar();
    const QPoint foot(bar->width() / 2, bar->height() - 2);
    QTest::mousePress(bar, Qt::LeftButton, {}, foot); // a page on
    const int page = bar->value();
    QVERIFY(page > 0);
    QMouseEvent dragged(QEvent::MouseMove, QPointF(foot.x(), 1), bar->mapToGlobal(QPointF(foot.x(), 1)),
                        Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &dragged);
    QCOMPARE(bar->value(), page);
    QTest::mouseRelease(bar, Qt::LeftButton, {}, foot);
    // With nothing to scroll the handle fills it.
    bar->setPageStep(0);
    bar->setRange(0, 0);
    const QImage full = bar->grab().toImage();
    QCOMPARE(full.pixel(full.width() / 2, 4), full.pixel(full.width() / 2, full.height() - 5));
}

void TestListBox::aDeletedItemTakesItsRowAlong()
{
    ListScreen screen;
    screen.addRows(4);
    screen.list->setSelected(1, true);
    ZListItem *gone = screen.list->item(1);
    delete gone;
    QCOMPARE(screen.titles(), QStringLiteral("Row 0|Row 2|Row 3"));
    QCOMPARE(screen.list->index(gone), -1);
    QCOMPARE(screen.list->currentItem(), 1);
    delete screen.list->item(2);
    QCOMPARE(screen.list->currentItem(), 1);
    delete screen.list->item(1);
    QCOMPARE(screen.list->currentItem(), 0);
    delete screen.list->item(0);
    QCOMPARE(screen.list->currentItem(), -1);
    delete new ZSettingItem(screen.list, QString());
    QCOMPARE(screen.list->count(), 0);
}

void TestListBox::anItemThatOutlivesItsListKnowsOfNone()
{
    // An item's own destructor runs while the list goes.
    struct Asking : ZSettingItem {
        Asking(ZListBox *list, bool *hadList)
            : ZSettingItem(list, QString())
            , answer(hadList)
        {}
        ~Asking() override
        {
            setEnabled(false);
            *answer = listBox() != nullptr;
        }
        bool *answer;
    };
    bool hadList = true;
    {
        ListScreen screen;
        screen.list->insertItem(new Asking(screen.list, &hadList), -1, true);
    }
    QVERIFY(!hadList);
}

void TestListBox::clearDeletesTheRowsAndLeavesTheListUsable()
{
    ListScreen screen;
    screen.addRows(30);
    screen.show();
    screen.list->setSelected(25, true);
    screen.list->clear();
    QCOMPARE(screen.list->count(), 0);
    QCOMPARE(screen.list->currentItem(), -1);
    screen.list->clear();
    screen.addRows(2);
    QCOMPARE(screen.titles(), QStringLiteral("Row 0|Row 1"));
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestListBox::aListFilledAgainHasTheBarWhereItWas()
{
    ListScreen screen;
    screen.addRows(30);
    screen.show();
    for (const int bar : {25, 0, 29}) {
        screen.list->setSelected(bar, true);
        screen.list->clear();
        screen.addRows(30);
        QCOMPARE(screen.list->currentItem(), bar);
        QVERIFY(screen.list->viewport()->rect().contains(screen.list->visualRect(screen.list->currentIndex())));
    }
}

void TestListBox::aShorterListFilledAgainHasTheBarOnItsFirstRow()
{
    ListScreen screen;
    screen.addRows(30);
    screen.list->setSelected(3, true);
    screen.list->clear();
    screen.addRows(3);
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestListBox::aListFilledAgainAfterAKeyHasTheBarOnItsFirstRow()
{
    ListScreen screen;
    screen.addRows(5);
    screen.show();
    screen.list->setSelected(3, true);
    screen.list->clear();
    QTest::keyClick(screen.list, Qt::Key_Down);
    screen.addRows(5);
    QCOMPARE(screen.list->currentItem(), 0);
    screen.list->setSelected(3, true);
    screen.list->clear();
    screen.addRows(2);
    screen.list->setSelected(1, true);
    screen.addRows(3);
    QCOMPARE(screen.list->currentItem(), 1);
}

void TestListBox::aListFilledAgainUnderThePointerReportsTheChoice()
{
    ListScreen screen;
    screen.addRows(5);
    screen.show();
    QSignalSpy spy(screen.list, SIGNAL(selected(ZSettingItem *)));
    const QPoint third = screen.list->visualRect(screen.list->model()->index(2, 0)).center();
    QTest::mousePress(screen.list->viewport(), Qt::LeftButton, {}, third);
    for (int i = 0; i < 3; ++i) {
        screen.list->clear();
        screen.addRows(5);
    }
    QTest::mouseRelease(screen.list->viewport(), Qt::LeftButton, {}, third);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().value<ZSettingItem *>(), screen.list->item(2));
    screen.list->clear();
    screen.addRows(5);
    QTest::mouseRelease(screen.list->viewport(), Qt::LeftButton, {}, third);
    QCOMPARE(spy.count(), 1);
}

void TestListBox::anotherRowUnderThePointerIsNotReported()
{
    ListScreen screen;
    screen.addRows(5);
    screen.show();
    QSignalSpy spy(screen.list, SIGNAL(selected(ZSettingItem *)));
    const QPoint third = screen.list->visualRect(screen.list->model()->index(2, 0)).center();
    QTest::mousePress(screen.list->viewport(), Qt::LeftButton, {}, third);
    screen.list->clear();
    for (const char *title : {"Row 1", "Row 2", "Row 3"})
        screen.addRow(QString::fromLatin1(title));
    QTest::mouseRelease(screen.list->viewport(), Qt::LeftButton, {}, third);
    QCOMPARE(spy.count(), 0);
}

void TestListBox::subItemsMakeTitleAndValue()
{
    ListScreen screen;
    auto *item = new ZSettingItem(screen.list, QString());
    QVERIFY(item->title().isNull());
    QVERIFY(item->value().isNull());
    item->appendSubItem(0, QStringLiteral("Credit"), false, Title);
    QVERIFY(item->value().isNull());
    item->setSubItem(0, 1, QStringLiteral("12.50 EUR "), false, Value);
    QCOMPARE(item->subItemCount(), 2);
    QCOMPARE(item->title(), QStringLiteral("Credit"));
    QCOMPARE(item->value(), QStringLiteral("12.50 EUR "));
    item->setSubItem(0, 1, QStringLiteral("0.00"), true, Value);
    QCOMPARE(item->subItemText(1), QStringLiteral("0.00"));
    QVERIFY(item->isMarked());
    QCOMPARE(item->subItemText(0), QStringLiteral("Credit"));
    QVERIFY(item->subItemText(2).isNull());
    QVERIFY(item->subItemText(-1).isNull());
}

void TestListBox::aSubItemThatHasNoPlaceIsRefusedWithAWarning()
{
    ListScreen screen;
    ZSettingItem *item = screen.addRow(QStringLiteral("Title"), QStringLiteral("Value"));
    const auto refused = [] {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ZSettingItem::.*there is no")));
    };
    refused();
    item->setSubItem(0, 3, QStringLiteral("x"), false, Value);
    refused();
    item->setSubItem(0, -1, QStringLiteral("x"), false, Value);
    refused();
    item->setSubItem(1, 1, QStringLiteral("x"), false, Value);
    refused();
    item->setSubItem(0, 1, QStringLiteral("x"), false, static_cast<ZSettingItem::SettingItemRegion>(2));
    refused();
    item->appendSubItem(1, QStringLiteral("x"), false, Title);
    QCOMPARE(item->subItemCount(), 2);
    QCOMPARE(item->title(), QStringLiteral("Title"));
    QCOMPARE(item->value(), QStringLiteral("Value"));
}

void TestListBox::plainItemsKeepTheirTextsByNumber()
{
    ListScreen screen;
    auto *item = new ZListBoxItem(screen.list, QString());
    QPixmap icon(8, 8);
    item->appendSubItem(0, QString(), QString(), &icon, 50, ZListBoxItem::HighShowPriority);
    item->appendSubItem(1, QStringLiteral("On"), QString(), nullptr, 50, ZListBoxItem::HighShowPriority);
    screen.list->insertItem(item, -1, true);
    QCOMPARE(item->getSubItemText(0, 1, false), QStringLiteral("On"));
    QVERIFY(item->getSubItemText(0, 0, false).isEmpty());
    QVERIFY(item->getSubItemText(0, 2, false).isNull());
    QVERIFY(item->getSubItemText(1, 1, false).isNull());
    QCOMPARE(item->title(), QStringLiteral("On"));
    QCOMPARE(item->icon().size(), QSize(8, 8));
    QTest::ignoreMessage(QtWarningMsg, "ZListBoxItem::appendSubItem: there is no sub-item -1");
    item->appendSubItem(-1, QStringLiteral("x"), QString(), nullptr, 50, ZListBoxItem::LowShowPriority);
    item->setSeparator(QStringLiteral("Heading"), nullptr);
    QCOMPARE(item->title(), QStringLiteral("Heading"));
    QVERIFY(item->icon().isNull());
}

void TestListBox::anItemWithoutALayoutOfItsOwnHasTheLists()
{
    ListScreen screen;
    const ZSettingItem own(screen.list, QStringLiteral("%P"));
    const ZSettingItem none(screen.list, QString());
    QCOMPARE(own.type(), QStringLiteral("%P"));
    QVERIFY(own.isSeparator());
    QCOMPARE(none.type(), QStringLiteral("%M"));
    QVERIFY(!none.isSeparator());
    screen.list->setItemType(QStringLiteral("%I%M"));
    QCOMPARE(none.type(), QStringLiteral("%I%M"));
}

void TestListBox::aRewrittenValueIsReportedForItsRowOnly()
{
    ListScreen screen;
    screen.addRows(6);
    ChangedRows changed(screen.list->model());
    for (const int row : {3, 0, 5})
        static_cast<ZSettingItem *>(screen.list->item(row))->setSubItem(0, 1, QStringLiteral("new"), false, Value);
    QCOMPARE(changed.rows, QList<int>({3, 0, 5}));
    QCOMPARE(screen.list->model()->index(3, 0).data(ZListBox::ValueRole).toString(), QStringLiteral("new"));
    QCOMPARE(screen.list->model()->index(4, 0).data(ZListBox::ValueRole).toString(), QStringLiteral("4"));
    changed.rows.clear();
    screen.list->item(2)->setEnabled(false);
    screen.list->item(2)->setEnabled(false);
    QCOMPARE(changed.rows, QList<int>({2}));
}

void TestListBox::rewritingTheSameTextIsReportedToo()
{
    ListScreen screen;
    screen.addRows(2);
    ChangedRows changed(screen.list->model());
    auto *item = static_cast<ZSettingItem *>(screen.list->item(1));
    item->setSubItem(0, 1, item->value(), false, Value);
    QCOMPARE(changed.rows, QList<int>({1}));
}

void TestListBox::whatAScreenReaderSaysIsTitleAndValue()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("Last Call"), QStringLiteral("00:01:05"));
    screen.addRow(QStringLiteral("Call Cost Setup"));
    screen.addSeparator(QStringLiteral("All Data Sessions"));
    const auto spoken = [&](int row) {
        return screen.list->model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
    };
    QCOMPARE(spoken(0), QStringLiteral("Last Call, 00:01:05"));
    QCOMPARE(spoken(1), QStringLiteral("Call Cost Setup"));
    QCOMPARE(spoken(2), QStringLiteral("All Data Sessions"));
    QVERIFY(screen.list->model()->index(2, 0).data(ZListBox::SeparatorRole).toBool());
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(screen.list);
    QVERIFY(accessible);
    QCOMPARE(accessible->childCount(), 3);
    QCOMPARE(accessible->child(0)->text(QAccessible::Name), QStringLiteral("Last Call, 00:01:05"));
}

void TestListBox::theFirstRowThatCanBeChosenGetsTheFocusBar()
{
    ListScreen screen;
    QCOMPARE(screen.list->currentItem(), -1);
    screen.addSeparator(QStringLiteral("Heading"));
    QCOMPARE(screen.list->currentItem(), -1);
    screen.addRow(QStringLiteral("A"))->setEnabled(false);
    screen.addRow(QStringLiteral("B"));
    QCOMPARE(screen.list->currentItem(), 1);
    QVERIFY(screen.list->isSelected(1));
    QVERIFY(!screen.list->isSelected(0));
    QVERIFY(!screen.list->isSelected(-1));
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    QCOMPARE(screen.list->currentItem(), 1);
}

void TestListBox::setSelectedMovesAndTakesAwayTheBarAndIgnoresBadRows()
{
    ListScreen screen;
    screen.addRows(3);
    screen.addSeparator(QStringLiteral("Heading"));
    screen.list->setSelected(2, true);
    QCOMPARE(screen.list->currentItem(), 2);
    for (const int bad : {-1, 3, 4, 1000}) {
        screen.list->setSelected(bad, true);
        screen.list->setSelected(bad, false);
        QCOMPARE(screen.list->currentItem(), 2);
    }
    screen.list->setSelected(1, false);
    QCOMPARE(screen.list->currentItem(), 2);
    screen.list->setSelected(2, false);
    QCOMPARE(screen.list->currentItem(), -1);
    QVERIFY(!screen.list->isSelected(-1));
    click(screen.list, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestListBox::upAndDownPassOverSeparatorsAndGoOnAtTheOtherEnd()
{
    ListScreen screen;
    screen.addSeparator(QStringLiteral("Heading"));
    screen.addSeparator(QStringLiteral("Heading"));
    screen.addRow(QStringLiteral("2"));
    screen.addSeparator(QStringLiteral("Heading"));
    screen.addRow(QStringLiteral("4"));
    screen.addRow(QStringLiteral("5"))->setEnabled(false);
    screen.addSeparator(QStringLiteral("Heading"));
    QList<int> way;
    for (int i = 0; i < 4; ++i) {
        click(screen.list, Qt::Key_Down);
        way << screen.list->currentItem();
    }
    QCOMPARE(way, QList<int>({4, 5, 2, 4}));
    way.clear();
    for (int i = 0; i < 4; ++i) {
        click(screen.list, Qt::Key_Up);
        way << screen.list->currentItem();
    }
    QCOMPARE(way, QList<int>({2, 5, 4, 2}));
}

void TestListBox::aHeldKeyStopsAtTheEnd()
{
    ListScreen screen;
    screen.addRows(5);
    press(screen.list, Qt::Key_Down);
    for (int i = 0; i < 20; ++i)
        press(screen.list, Qt::Key_Down, true);
    QCOMPARE(screen.list->currentItem(), 4);
    press(screen.list, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 0);
    press(screen.list, Qt::Key_Up, true);
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestListBox::pageAndEndKeysMoveTheBar_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");
    // 11 rows are in sight; row 0 and row 39 are separators.
    QTest::newRow("a page down") << 1 << int(Qt::Key_PageDown) << 11;
    QTest::newRow("a page down near the end") << 35 << int(Qt::Key_PageDown) << 38;
    QTest::newRow("a page up") << 20 << int(Qt::Key_PageUp) << 10;
    QTest::newRow("a page up near the start") << 4 << int(Qt::Key_PageUp) << 1;
    QTest::newRow("home") << 20 << int(Qt::Key_Home) << 1;
    QTest::newRow("end") << 20 << int(Qt::Key_End) << 38;
}

void TestListBox::pageAndEndKeysMoveTheBar()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, to);
    ListScreen screen;
    screen.addSeparator(QStringLiteral("First"));
    screen.addRows(38);
    screen.addSeparator(QStringLiteral("Last"));
    screen.show();
    screen.list->setSelected(from, true);
    click(screen.list, key);
    QCOMPARE(screen.list->currentItem(), to);
    const QRect seen = screen.list->visualRect(screen.list->currentIndex());
    QVERIFY(screen.list->viewport()->rect().contains(seen));
}

void TestListBox::aTypedLetterMovesToTheNextRowThatBeginsWithIt()
{
    ListScreen screen;
    for (const char *title : {"Andorra", "Belgium", "Bhutan", "Chad"})
        screen.addRow(QLatin1String(title));
    screen.addSeparator(QStringLiteral("Denmark"));
    QApplication::setKeyboardInputInterval(100'000);
    type(screen.list, QLatin1Char('b'));
    QCOMPARE(screen.list->currentItem(), 1);
    type(screen.list, QLatin1Char('h'));
    QCOMPARE(screen.list->currentItem(), 2);
    for (const auto &[letter, row] : {std::pair('a', 0), std::pair('d', 2)}) {
        screen.list->keyboardSearch(QString()); // as after a pause, but for the bar
        screen.list->setSelected(2, true);
        type(screen.list, QLatin1Char(letter));
        QCOMPARE(screen.list->currentItem(), row);
    }
}

void TestListBox::theHeadingsOverARowComeIntoViewWithIt()
{
    ListScreen screen;
    screen.addSeparator(QStringLiteral("First"));
    screen.addSeparator(QStringLiteral("Second"));
    screen.addRows(30);
    screen.show();
    settle();
    click(screen.list, Qt::Key_End);
    QVERIFY(screen.list->verticalScrollBar()->value() > 0);
    click(screen.list, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 2);
    QCOMPARE(screen.list->verticalScrollBar()->value(), 0);
}

void TestListBox::keysOnAListWithoutChoosableRowsAreHarmless()
{
    ListScreen screen;
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    screen.show();
    for (int round = 0; round < 2; ++round) {
        for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
                               Qt::Key_End, Qt::Key_Select, Qt::Key_B})
            click(screen.list, key);
        QCOMPARE(screen.list->currentItem(), -1);
        screen.addSeparator(QStringLiteral("Heading"));
    }
    QCOMPARE(chosen.count(), 0);
}

void TestListBox::theBarLeavesARowThatBecomesASeparator()
{
    ListScreen screen;
    screen.addRows(3);
    screen.list->setSelected(2, true);
    screen.list->item(2)->setSeparator(QStringLiteral("Heading"), nullptr);
    QCOMPARE(screen.list->currentItem(), 1);
    screen.list->item(1)->setSeparator(QStringLiteral("Heading"), nullptr);
    screen.list->item(0)->setSeparator(QStringLiteral("Heading"), nullptr);
    QCOMPARE(screen.list->currentItem(), -1);
}

void TestListBox::choosingIsReportedOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("by the select key") << int(Qt::Key_Select);
    QTest::newRow("by return") << int(Qt::Key_Return);
    QTest::newRow("by enter") << int(Qt::Key_Enter);
    QTest::newRow("by space") << int(Qt::Key_Space);
    QTest::newRow("by the pointer") << 0;
}

void TestListBox::choosingIsReportedOnce()
{
    QFETCH(int, key);
    ListScreen screen;
    screen.addRows(4);
    screen.show();
    QList<int> selected;
    QList<int> chosen;
    connect(screen.list, &ZListBox::selected, this,
            [&](ZSettingItem *item) { selected << screen.list->index(item); });
    connect(screen.list, &ZListBox::itemChosen, this,
            [&](ZListItem *item) { chosen << screen.list->index(item); });
    if (key) {
        screen.list->setSelected(2, true);
        click(screen.list, key);
    } else {
        QTest::mouseClick(screen.list->viewport(), Qt::LeftButton, {}, middleOfRow(screen.list, 2));
    }
    QCOMPARE(selected, QList<int>({2}));
    QCOMPARE(chosen, QList<int>({2}));
    QCOMPARE(screen.list->currentItem(), 2);
}

void TestListBox::aHeldSelectKeyChoosesOnce()
{
    ListScreen screen;
    screen.addRows(2);
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    press(screen.list, Qt::Key_Select);
    for (int i = 0; i < 5; ++i)
        press(screen.list, Qt::Key_Select, true);
    QCOMPARE(chosen.count(), 1);
}

void TestListBox::aDisabledRowIsReportedAndSaysThatItIsDisabled()
{
    ListScreen screen;
    screen.addRows(2);
    screen.list->item(1)->setEnabled(false);
    QVERIFY(!screen.list->model()->index(1, 0).data(ZListBox::EnabledRole).toBool());
    QList<bool> enabled;
    connect(screen.list, &ZListBox::selected, this, [&](ZSettingItem *item) { enabled << item->enabled(); });
    click(screen.list, Qt::Key_Down);
    click(screen.list, Qt::Key_Select);
    screen.list->item(1)->setEnabled(true);
    click(screen.list, Qt::Key_Select);
    QCOMPARE(enabled, QList<bool>({false, true}));
}

void TestListBox::aSeparatorIsNeverReported()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("A"));
    screen.addSeparator(QStringLiteral("Heading"));
    screen.show();
    QSignalSpy selected(screen.list, &ZListBox::selected);
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    QTest::mouseClick(screen.list->viewport(), Qt::LeftButton, {}, middleOfRow(screen.list, 1));
    QTest::mouseDClick(screen.list->viewport(), Qt::LeftButton, {}, middleOfRow(screen.list, 1));
    QCOMPARE(selected.count() + chosen.count(), 0);
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestListBox::aRowOfAnotherKindIsReportedWithoutASettingItem()
{
    ListScreen screen;
    auto *item = new ZListBoxItem(screen.list, QString());
    item->appendSubItem(0, QStringLiteral("Custom"), QString(), nullptr, 50, ZListBoxItem::HighShowPriority);
    screen.list->insertItem(item, -1, true);
    QSignalSpy selected(screen.list, &ZListBox::selected);
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    click(screen.list, Qt::Key_Select);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(selected.count(), 0);
}

void TestListBox::aPointerReleasedOnAnotherRowChoosesNothing()
{
    ListScreen screen;
    screen.addRows(4);
    screen.show();
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    QWidget *viewport = screen.list->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, middleOfRow(screen.list, 1));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, middleOfRow(screen.list, 2));
    QTest::mouseClick(viewport, Qt::LeftButton, {}, QPoint(100, 200));
    QCOMPARE(chosen.count(), 0);
    QTest::mousePress(viewport, Qt::LeftButton, {}, middleOfRow(screen.list, 1));
    screen.list->clear();
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, middleOfRow(screen.list, 1));
    QCOMPARE(chosen.count(), 0);
}

void TestListBox::onlyTheMainButtonChooses()
{
    ListScreen screen;
    screen.addRows(4);
    screen.show();
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    QTest::mouseClick(screen.list->viewport(), Qt::RightButton, {}, middleOfRow(screen.list, 1));
    QTest::mouseClick(screen.list->viewport(), Qt::MiddleButton, {}, middleOfRow(screen.list, 1));
    QCOMPARE(chosen.count(), 0);
}

void TestListBox::whoeverHearsOfAChoiceMayDoAnything_data()
{
    QTest::addColumn<int>("deed");
    QTest::addColumn<bool>("byKey");
    const std::array<const char *, 5> deeds = {"clear the list", "rebuild the list", "delete the row",
                                               "delete the list", "delete the screen"};
    for (int deed = 0; deed < static_cast<int>(deeds.size()); ++deed) {
        QTest::addRow("%s, chosen by key", deeds[static_cast<std::size_t>(deed)]) << deed << true;
        QTest::addRow("%s, chosen by the pointer", deeds[static_cast<std::size_t>(deed)]) << deed << false;
    }
}

void TestListBox::whoeverHearsOfAChoiceMayDoAnything()
{
    QFETCH(int, deed);
    QFETCH(bool, byKey);
    QPointer<ListScreen> screen = new ListScreen;
    screen->addRows(4);
    screen->show();
    QVERIFY(QTest::qWaitForWindowActive(screen, 60'000));
    int reports = 0;
    connect(screen->list, &ZListBox::selected, this, [&](ZSettingItem *item) {
        ++reports;
        if (deed < 2)
            screen->list->clear();
        if (deed == 1)
            screen->addRows(7);
        if (deed == 2)
            delete item;
        if (deed == 3)
            delete screen->list;
        if (deed == 4)
            delete screen;
    });
    const QPoint middle = screen->list->viewport()->mapTo(screen, middleOfRow(screen->list, 0));
    if (byKey)
        clickInWindow(screen, Qt::Key_Select);
    else
        QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, {}, middle);
    settle();
    QCOMPARE(reports, 1);
    QCOMPARE(screen.isNull(), deed == 4);
    if (deed < 3)
        QCOMPARE(screen->list->count(), deed == 0 ? 0 : deed == 1 ? 7 : 3);
    delete screen;
}

void TestListBox::aListRebuiltInTheFirstReportDoesNotReportTheNewRow()
{
    ListScreen screen;
    screen.addRows(1);
    QSignalSpy selected(screen.list, &ZListBox::selected);
    connect(screen.list, &ZListBox::itemChosen, this, [&] {
        screen.list->clear();
        screen.addRows(1);
    });
    for (int i = 0; i < 50; ++i)
        click(screen.list, Qt::Key_Select);
    QCOMPARE(selected.count(), 0);
}

void TestListBox::textsOfAnyLengthAndContentDoNoHarm()
{
    ListScreen screen;
    const QString endless(100'000, QLatin1Char('W'));
    QString odd = QStringLiteral("a\nb\tc\r") + QChar(0) + QChar(QChar::ParagraphSeparator) + QChar(0xd800);
    for (int i = 0; i < 600; ++i)
        odd += QString::fromUtf8("\xf0\x9f\x93\x9e");
    screen.addRow(endless, endless);
    screen.addRow(odd, odd);
    screen.addRow(QString(), QString());
    screen.addSeparator(endless);
    screen.addSeparator(odd);
    screen.show();
    QVERIFY(!screen.grab().isNull());
    const ZListItem *row = screen.list->item(0);
    QCOMPARE(row->title(), endless);
    QCOMPARE(row->value(), endless);
    QCOMPARE(screen.list->item(1)->title(), odd);
    for (int i = 0; i < screen.list->count(); ++i)
        QCOMPARE(screen.list->visualRect(screen.list->model()->index(i, 0)).size(),
                 QSize(240, ZSkinService::RowHeight));
}

void TestListBox::theCostOfFillingGrowsWithTheNumberOfRowsOnly()
{
    // The best of several, as other work empties the processor's caches: ten times the rows, a hundred times the work
    // if every row were looked for.
    qint64 few = std::numeric_limits<qint64>::max();
    qint64 many = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 3; ++i) {
        few = std::min(few, nanosecondsToFill(2'000));
        many = std::min(many, nanosecondsToFill(20'000));
    }
    QVERIFY(few > 0 && many > 0);
    QVERIFY2(many < 35 * few, qPrintable(QStringLiteral("%1 ns against %2 ns").arg(many).arg(few)));
}

void TestListBox::randomInsertionsAndDeletionsAgreeWithAPlainList()
{
    ListScreen screen;
    screen.show();
    QRandomGenerator random(20'240);
    QList<ZListItem *> model;
    for (int step = 0; step < 3'000; ++step) {
        const int place = random.bounded(static_cast<int>(model.size()) + 1);
        if (random.bounded(5) < 3 || model.isEmpty()) {
            auto *item = new ZSettingItem(screen.list, random.bounded(4) ? QString() : QStringLiteral("%P"));
            screen.list->insertItem(item, place, true);
            model.insert(place, item);
        } else {
            delete model.takeAt(place % model.size());
        }
        QCOMPARE(screen.list->count(), model.size());
        const int probe = random.bounded(static_cast<int>(model.size()) + 1);
        QCOMPARE(screen.list->item(probe), model.value(probe));
        QCOMPARE(screen.list->index(model.value(probe)), probe < model.size() ? probe : -1);
        const ZListItem *current = screen.list->item(screen.list->currentItem());
        const bool choosable =
            std::any_of(model.cbegin(), model.cend(), [](auto *row) { return !row->isSeparator(); });
        QCOMPARE(current != nullptr, choosable);
        QVERIFY(!current || !current->isSeparator());
        if (step % 100 == 0)
            settle();
    }
}

void TestListBox::aDelegateOfAHostPaintsTheRows()
{
    class Red : public QStyledItemDelegate
    {
    public:
        using QStyledItemDelegate::QStyledItemDelegate;
        void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &) const override
        {
            painter->fillRect(option.rect, Qt::red);
        }
    };
    ListScreen screen;
    screen.addRows(2);
    screen.list->setItemDelegate(new Red(screen.list));
    QCOMPARE(lookOfRow(screen.list, 1).pixelColor(20, 4), QColor(Qt::red));
}

void TestListBox::flagsAreThoseOfAWindow()
{
    QWidget parent;
    const ZListBox inside(QStringLiteral("%I"), &parent, 0, ZSkinService::SettingListClass);
    const ZListBox window(QStringLiteral("%I"), &parent, Qt::Tool, ZSkinService::SettingListClass);
    QVERIFY(!inside.isWindow());
    QVERIFY(window.isWindow());
}

void TestListBox::aControlCharacterIsNotTyped()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\x07"));
    QCoreApplication::sendEvent(screen.list, &press);
    QCOMPARE(screen.list->currentItem(), 0);
}

KAV_TEST_GROUP(TestListBox, QApplication);
#include "tst_listbox.moc"
