// What the rows of a list look like.
#include "support/FrameRecorder.h"
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"

#include <QtCore/QEvent>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QFontMetrics>
#include <QtGui/QImage>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPicture>
#include <QtGui/QPixmap>
#include <QtGui/QRegion>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOptionViewItem>
#include <QtWidgets/QWidget>

using namespace ToolkitTestKit;

namespace {

const QString endless = QStringLiteral("A title that is far too long for any row of this display");

QColor color(ZSkinService::ColorRole role)
{
    return ZSkinService::color(role);
}

void showSettled(ListScreen &screen)
{
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen, 60'000));
    settle();
}

int widthOf(const QString &text)
{
    return QFontMetrics(ZSkinService::font(ZSkinService::RowFont)).horizontalAdvance(text);
}

} // namespace

class TestListBoxLook : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theFocusBarIsSeenOnItsRowAndNowhereElse();
    void aValueStandsAtTheRightEdge();
    void aValueIsKeptWholeAndTheTitleMakesRoom();
    void aValueThatNeedsTheRowLeavesNoTitle();
    void aValueWiderThanTheRowIsElided();
    void aRowWithoutAValueGivesItsTitleTheWholeWidth();
    void aSeparatorIsSeenAsAHeading();
    void aDisabledRowIsGreyed();
    void aMarkedRowIsHeavier();
    void aRowRepaintsWhenItsValueIsRewritten();
    void noFrameOfAListThatIsFilledAgainIsWithoutItsRows_data();
    void noFrameOfAListThatIsFilledAgainIsWithoutItsRows();
    void aFrameThatComesAtOnceHasTheRowsAndTheScrollBar();
    void aListThatIsFilledAgainIsPaintedOnce();
    void aListThatWasFilledUnderASubScreenHasItsRowsWhenThatGoes();
    void aPhotographOfAListFilledJustNowHasItsRows();
    void aRowIsAsSharpAsTheDisplayItIsPaintedOn();
    void aTitleThatWasCutIsWholeAgainWhereItFits();
    void aRowLooksTheSameHoweverOftenItIsPainted_data();
    void aRowLooksTheSameHoweverOftenItIsPainted();
    void aTitleIsCutForTheValueThatItHasNow();
    void twoRowsAlikeButForOneThingDoNotLookAlike_data();
    void twoRowsAlikeButForOneThingDoNotLookAlike();
    void theScrollBarIsThereOnlyWhenNeeded();
    void theScrollBarCanBeDraggedFromEndToEnd();
    void aMirroredDisplayHasTheTitleOnTheRightAndTheValueOnTheLeft();
    void anIconStandsBeforeTheTitleAndNeverOutgrowsItsRow();
    void theLookDoesNotDependOnTheApplicationAround();
    void anIconThatFitsKeepsItsSize();
    void anIconWithoutRoomIsNotDrawn();
    void twoIconsDoNotLookAlike();
    void aTitleIsCutWhereTheListSays();
    void anEnlargedOrOddDisplayShowsTheSameRows_data();
    void anEnlargedOrOddDisplayShowsTheSameRows();
    void aRowIsPaintedWhereNoPictureStandsForIt_data();
    void aRowIsPaintedWhereNoPictureStandsForIt();
    void onlyTheLeftButtonDragsTheScrollBar();
};

void TestListBoxLook::init()
{
    noWarnings();
}

void TestListBoxLook::theFocusBarIsSeenOnItsRowAndNowhereElse()
{
    ListScreen screen;
    screen.addRows(4);
    screen.list->setSelected(2, true);
    for (int row = 0; row < 4; ++row) {
        const QColor expected = color(row == 2 ? ZSkinService::FocusBarColor : ZSkinService::ScreenColor);
        QCOMPARE(lookOfRow(screen.list, row).pixelColor(2, 4), expected);
    }
}

void TestListBoxLook::aValueStandsAtTheRightEdge()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QString(), QStringLiteral("00:01:05"));
    const QImage row = lookOfRow(screen.list, 1);
    const int margin = ZSkinService::RowMargin;
    const int left = firstInk(row, color(ZSkinService::ScreenColor));
    const int right = lastInk(row, color(ZSkinService::ScreenColor));
    QVERIFY(right < 240 - margin && right > 240 - margin - 4);
    QVERIFY(std::abs(left - (240 - margin - widthOf(QStringLiteral("00:01:05")))) < 4);
}

void TestListBoxLook::aValueIsKeptWholeAndTheTitleMakesRoom()
{
    ListScreen screen;
    const QString value = QStringLiteral("1042:09:59");
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("T"), value);
    screen.addRow(endless, value);
    const int start = 240 - ZSkinService::RowMargin - widthOf(value) - 1;
    const QRect right(start - ZSkinService::RowGap + 1, 0, 240 - start + ZSkinService::RowGap - 1,
                      ZSkinService::RowHeight);
    const QImage roomy = lookOfRow(screen.list, 1);
    const QImage crowded = lookOfRow(screen.list, 2);
    QCOMPARE(crowded.copy(right), roomy.copy(right));
    const QImage title = crowded.copy(0, 0, right.left(), ZSkinService::RowHeight);
    QVERIFY2(lastInk(title, color(ZSkinService::ScreenColor)) > right.left() - 20, "the title wastes room");
}

void TestListBoxLook::aValueThatNeedsTheRowLeavesNoTitle()
{
    ListScreen screen;
    QString value = QStringLiteral("9");
    while (widthOf(value + QLatin1Char('9')) < 240 - 2 * ZSkinService::RowMargin)
        value += QLatin1Char('9');
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QString(), value);
    screen.addRow(endless, value);
    QCOMPARE(lookOfRow(screen.list, 2), lookOfRow(screen.list, 1));
    QVERIFY(firstInk(lookOfRow(screen.list, 2), color(ZSkinService::ScreenColor)) < 20);
}

void TestListBoxLook::aValueWiderThanTheRowIsElided()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(endless, endless + endless);
    const QImage row = lookOfRow(screen.list, 1);
    QVERIFY(firstInk(row, color(ZSkinService::ScreenColor)) >= ZSkinService::RowMargin - 1);
    QVERIFY(lastInk(row, color(ZSkinService::ScreenColor)) < 240 - ZSkinService::RowMargin);
}

void TestListBoxLook::aRowWithoutAValueGivesItsTitleTheWholeWidth()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(endless);
    screen.addRow(endless, QString::fromLatin1(""));
    const QImage row = lookOfRow(screen.list, 1);
    QVERIFY(lastInk(row, color(ZSkinService::ScreenColor)) > 240 - ZSkinService::RowMargin - 20);
    QVERIFY(lastInk(row, color(ZSkinService::ScreenColor)) < 240 - ZSkinService::RowMargin);
    QCOMPARE(lookOfRow(screen.list, 2), row);
}

void TestListBoxLook::aSeparatorIsSeenAsAHeading()
{
    ListScreen screen;
    screen.addSeparator(QStringLiteral("Heading"));
    screen.addRow(QStringLiteral("bar"));
    QCOMPARE(lookOfRow(screen.list, 0).pixelColor(2, 4), color(ZSkinService::HeadingColor));
    QVERIFY(lastInk(lookOfRow(screen.list, 0), color(ZSkinService::HeadingColor)) > 40);
}

void TestListBoxLook::aDisabledRowIsGreyed()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    ZSettingItem *row = screen.addRow(QStringLiteral("Adjust Credit Limit"), QStringLiteral("5"));
    const auto darkest = [&](int index) {
        const QImage image = lookOfRow(screen.list, index);
        int result = 255;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height() - 1; ++y)
                result = std::min(result, qGray(image.pixel(x, y)));
        }
        return result;
    };
    const int enabled = darkest(1);
    row->setEnabled(false);
    QVERIFY2(darkest(1) > enabled + 60, "a disabled row looks like an enabled one");
    screen.list->setSelected(1, true);
    const QImage greyedUnderBar = lookOfRow(screen.list, 1);
    row->setEnabled(true);
    QVERIFY(lookOfRow(screen.list, 1) != greyedUnderBar);
}

void TestListBoxLook::aMarkedRowIsHeavier()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    ZSettingItem *row = screen.addRow(QStringLiteral("Some title"));
    const QImage plain = lookOfRow(screen.list, 1);
    row->setSubItem(0, 0, QStringLiteral("Some title"), true, ZSettingItem::TitleRegion);
    QVERIFY(lastInk(lookOfRow(screen.list, 1), color(ZSkinService::ScreenColor)) >
            lastInk(plain, color(ZSkinService::ScreenColor)));
}

void TestListBoxLook::aRowRepaintsWhenItsValueIsRewritten()
{
    struct PaintWatch : QObject {
        QRegion painted;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                painted += static_cast<QPaintEvent *>(event)->region();
            return false;
        }
    };
    ListScreen screen;
    screen.addRows(6);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen, 60'000));
    settle();
    PaintWatch watch;
    screen.list->viewport()->installEventFilter(&watch);
    auto *item = static_cast<ZSettingItem *>(screen.list->item(3));
    item->setSubItem(0, 1, QStringLiteral("77"), false, ZSettingItem::ValueRegion);
    QTRY_VERIFY_WITH_TIMEOUT(watch.painted.contains(middleOfRow(screen.list, 3)), 60'000);
}

void TestListBoxLook::noFrameOfAListThatIsFilledAgainIsWithoutItsRows_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one row") << 1;
    QTest::newRow("some rows") << 7;
    QTest::newRow("a list that scrolls") << 30;
}

void TestListBoxLook::noFrameOfAListThatIsFilledAgainIsWithoutItsRows()
{
    QFETCH(int, count);
    ListScreen screen;
    screen.addRows(count);
    showSettled(screen);
    FrameRecorder recorder(&screen);
    const QImage whole = recorder.picture();
    for (int times = 1; times <= 3; ++times) {
        screen.list->clear();
        screen.addRows(count);
        screen.update();
        QTRY_VERIFY_WITH_TIMEOUT(recorder.frames.size() >= times, 60'000);
    }
    settle();
    for (const QImage &frame : std::as_const(recorder.frames))
        QCOMPARE(frame, whole);
}

void TestListBoxLook::aFrameThatComesAtOnceHasTheRowsAndTheScrollBar()
{
    ListScreen screen;
    screen.addRows(30);
    showSettled(screen);
    FrameRecorder recorder(&screen);
    const QImage whole = recorder.picture();
    screen.list->clear();
    screen.addRows(30);
    // The window system may ask for it before any event that waits is handled.
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&screen, &request);
    QCOMPARE(recorder.frames.size(), 1);
    QCOMPARE(recorder.frames.constFirst(), whole);
}

void TestListBoxLook::aListThatIsFilledAgainIsPaintedOnce()
{
    ListScreen screen;
    screen.addRows(7);
    showSettled(screen);
    FrameRecorder recorder(&screen);
    screen.list->clear();
    screen.addRows(6);
    QTRY_VERIFY_WITH_TIMEOUT(!recorder.frames.isEmpty(), 60'000);
    settle();
    QCOMPARE(recorder.frames.size(), 1);
}

void TestListBoxLook::aListThatWasFilledUnderASubScreenHasItsRowsWhenThatGoes()
{
    ListScreen screen;
    screen.addRows(7);
    showSettled(screen);
    FrameRecorder recorder(&screen);
    const QImage whole = recorder.picture();
    auto subScreen = std::make_unique<ListScreen>(&screen);
    subScreen->show();
    settle();
    QVERIFY(recorder.picture() != whole);
    recorder.frames.clear();
    subScreen.reset();
    screen.list->clear();
    screen.addRows(7);
    QTRY_VERIFY_WITH_TIMEOUT(!recorder.frames.isEmpty(), 60'000);
    settle();
    for (const QImage &frame : std::as_const(recorder.frames))
        QCOMPARE(frame, whole);
}

// It is taken at once, before the event loop gets to do anything.
void TestListBoxLook::aPhotographOfAListFilledJustNowHasItsRows()
{
    ListScreen screen;
    screen.addRows(7);
    showSettled(screen);
    const QImage whole = screen.grab().toImage();
    screen.list->clear();
    screen.addRows(7);
    QCOMPARE(screen.grab().toImage(), whole);
}

void TestListBoxLook::aRowIsAsSharpAsTheDisplayItIsPaintedOn()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("Sharp"), QStringLiteral("00:01:05"));
    showSettled(screen);
    const auto paintedAt = [&](int pixelRatio) {
        QImage image(screen.list->viewport()->size() * pixelRatio, QImage::Format_RGB32);
        image.setDevicePixelRatio(pixelRatio);
        screen.list->viewport()->render(&image);
        return image;
    };
    const QImage plain = paintedAt(1);
    const QImage fine = paintedAt(2);
    QVERIFY2(fine.scaled(plain.size()).scaled(fine.size()).convertToFormat(QImage::Format_RGB32) != fine,
             "the row is an enlarged picture");
    QCOMPARE(paintedAt(1), plain);
    QCOMPARE(paintedAt(2), fine);
}

void TestListBoxLook::aTitleThatWasCutIsWholeAgainWhereItFits()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("A title for a wide row"));
    showSettled(screen);
    const QImage whole = lookOfRow(screen.list, 1);
    screen.list->resize(100, 100);
    settle();
    const QImage cut = lookOfRow(screen.list, 1);
    QVERIFY(lastInk(cut, color(ZSkinService::ScreenColor)) < 100 - ZSkinService::RowMargin);
    screen.list->resize(90, 100);
    settle();
    QVERIFY(lastInk(lookOfRow(screen.list, 1), color(ZSkinService::ScreenColor)) < 90 - ZSkinService::RowMargin);
    screen.list->resize(screen.getContentWidget(false)->size());
    settle();
    QCOMPARE(lookOfRow(screen.list, 1), whole);
}

void TestListBoxLook::aRowLooksTheSameHoweverOftenItIsPainted_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("a title that is whole") << QStringLiteral("Often") << Qt::LeftToRight;
    QTest::newRow("a title that is cut") << endless << Qt::LeftToRight;
    QTest::newRow("a mirrored title that is whole") << QStringLiteral("Often") << Qt::RightToLeft;
    QTest::newRow("a mirrored title that is cut") << endless << Qt::RightToLeft;
}

void TestListBoxLook::aRowLooksTheSameHoweverOftenItIsPainted()
{
    QFETCH(QString, title);
    QFETCH(Qt::LayoutDirection, direction);
    ListScreen screen;
    screen.setLayoutDirection(direction);
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(title, QStringLiteral("00:04:%1").arg(direction)); // as no other row
    showSettled(screen);
    const QImage first = lookOfRow(screen.list, 1);
    for (int times = 0; times < 3; ++times)
        QCOMPARE(lookOfRow(screen.list, 1), first);
}

void TestListBoxLook::aTitleIsCutForTheValueThatItHasNow()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    ZSettingItem *item = screen.addRow(endless, QStringLiteral("1"));
    const QImage roomy = lookOfRow(screen.list, 1);
    item->setSubItem(0, 1, QStringLiteral("1042:09:58"), false, ZSettingItem::ValueRegion);
    const int start = 240 - ZSkinService::RowMargin - widthOf(QStringLiteral("1042:09:58")) - 1;
    const QRect gap(start - ZSkinService::RowGap + 1, 0, ZSkinService::RowGap - 1, ZSkinService::RowHeight);
    QVERIFY2(lastInk(lookOfRow(screen.list, 1).copy(gap), color(ZSkinService::ScreenColor)) < 0,
             "the title runs into the value");
    item->setSubItem(0, 1, QStringLiteral("1"), false, ZSettingItem::ValueRegion);
    QCOMPARE(lookOfRow(screen.list, 1), roomy);
}

void TestListBoxLook::twoRowsAlikeButForOneThingDoNotLookAlike_data()
{
    QTest::addColumn<std::function<void(ListScreen &)>>("change");
    using Change = std::function<void(ListScreen &)>;
    const auto row = [](ListScreen &screen) { return static_cast<ZSettingItem *>(screen.list->item(1)); };
    QTest::newRow("the title") << Change([row](ListScreen &screen) {
        row(screen)->setSubItem(0, 0, QStringLiteral("Titlf"), false, ZSettingItem::TitleRegion);
    });
    QTest::newRow("the value") << Change([row](ListScreen &screen) {
        row(screen)->setSubItem(0, 1, QStringLiteral("8"), false, ZSettingItem::ValueRegion);
    });
    QTest::newRow("emphasis") << Change([row](ListScreen &screen) {
        row(screen)->setSubItem(0, 1, QStringLiteral("7"), true, ZSettingItem::ValueRegion);
    });
    QTest::newRow("disabled") << Change([row](ListScreen &screen) { row(screen)->setEnabled(false); });
    QTest::newRow("the focus bar") << Change([](ListScreen &screen) { screen.list->setSelected(1, true); });
    QTest::newRow("mirrored") << Change([](ListScreen &screen) { screen.setLayoutDirection(Qt::RightToLeft); });
    QTest::newRow("a heading") << Change(
        [row](ListScreen &screen) { row(screen)->setSeparator(QStringLiteral("Title"), nullptr); });
}

void TestListBoxLook::twoRowsAlikeButForOneThingDoNotLookAlike()
{
    QFETCH(std::function<void(ListScreen &)>, change);
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("Title"), QStringLiteral("7"));
    const QImage before = lookOfRow(screen.list, 1);
    QCOMPARE(lookOfRow(screen.list, 1), before);
    change(screen);
    QVERIFY(lookOfRow(screen.list, 1) != before);
}

void TestListBoxLook::theScrollBarIsThereOnlyWhenNeeded()
{
    ListScreen screen;
    const int fitting = screen.list->height() / ZSkinService::RowHeight;
    screen.addRows(fitting);
    screen.show();
    settle();
    QVERIFY(!screen.list->verticalScrollBar()->isVisible());
    ZSettingItem *tooMuch = screen.addRow(QStringLiteral("One more"));
    settle();
    QVERIFY(screen.list->verticalScrollBar()->isVisible());
    QVERIFY(!screen.list->horizontalScrollBar()->isVisible());
    QCOMPARE(screen.list->verticalScrollBar()->width(), ZSkinService::ScrollBarWidth);
    delete tooMuch;
    settle();
    QVERIFY(!screen.list->verticalScrollBar()->isVisible());
}

void TestListBoxLook::theScrollBarCanBeDraggedFromEndToEnd()
{
    ListScreen screen;
    screen.addRows(100);
    screen.show();
    settle();
    QScrollBar *bar = screen.list->verticalScrollBar();
    const int x = bar->width() / 2;
    const auto handleAt = [&](int y) {
        return bar->grab().toImage().pixelColor(x, y) == color(ZSkinService::ScrollHandleColor);
    };
    QVERIFY(handleAt(3));
    QVERIFY(!handleAt(bar->height() - 3));
    QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(x, 5));
    QTest::mouseMove(bar, QPoint(x, bar->height() + 50));
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(handleAt(bar->height() - 3));
    QTest::mouseMove(bar, QPoint(x, bar->height() / 2));
    QVERIFY(bar->value() > 0 && bar->value() < bar->maximum());
    QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(x, bar->height() / 2));
    const int dragged = bar->value();
    QTest::mouseMove(bar, QPoint(x, 0));
    QCOMPARE(bar->value(), dragged);
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(x, bar->height() - 2));
    QCOMPARE(bar->value(), dragged + bar->pageStep());
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(x, 1));
    QCOMPARE(bar->value(), dragged);
}

void TestListBoxLook::aMirroredDisplayHasTheTitleOnTheRightAndTheValueOnTheLeft()
{
    ListScreen screen;
    screen.setLayoutDirection(Qt::RightToLeft);
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("Title"));
    screen.addRow(QString(), QStringLiteral("1 WWWWWW"));
    const QColor background = color(ZSkinService::ScreenColor);
    QVERIFY(firstInk(lookOfRow(screen.list, 1), background) > 150);
    const QImage value = lookOfRow(screen.list, 2);
    const int left = firstInk(value, background);
    QVERIFY(lastInk(value, background) < 120);
    // After the figure comes the blank, if figure and unit keep their order.
    QVERIFY2(lastInk(value.copy(0, 0, left + 11, value.height()), background) < left + 8,
             "figure and unit change places");
    QVERIFY(lastInk(value.copy(0, 0, left + 40, value.height()), background) > left + 30);
}

void TestListBoxLook::anIconStandsBeforeTheTitleAndNeverOutgrowsItsRow()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    QPixmap huge(500, 500);
    huge.fill(Qt::red);
    auto *item = new ZSettingItem(screen.list, QString());
    item->setSeparator(QStringLiteral("Heading"), &huge);
    screen.list->insertItem(item, -1, true);
    const QImage row = lookOfRow(screen.list, 1);
    QCOMPARE(row.pixelColor(ZSkinService::RowMargin + 5, ZSkinService::RowHeight / 2), QColor(Qt::red));
    QCOMPARE(row.pixelColor(120, 2), color(ZSkinService::HeadingColor));
    QVERIFY(lastInk(row, color(ZSkinService::HeadingColor)) > 60);
    QCOMPARE(row.height(), ZSkinService::RowHeight);
}

void TestListBoxLook::theLookDoesNotDependOnTheApplicationAround()
{
    ListScreen plain;
    plain.addRows(3);
    const QImage expected = plain.grab().toImage();
    QWidget around;
    QPalette dark(Qt::black);
    around.setPalette(dark);
    QFont large = around.font();
    large.setPointSize(30);
    around.setFont(large);
    ListScreen screen(&around);
    screen.addRows(3);
    around.show();
    screen.show();
    QCOMPARE(screen.grab().toImage(), expected);
}

void TestListBoxLook::anIconThatFitsKeepsItsSize()
{
    ListScreen screen;
    QPixmap small(6, 4);
    small.fill(Qt::red);
    QPixmap high(4, ZSkinService::RowHeight * 2);
    high.fill(Qt::red);
    for (const QPixmap *icon : {&small, &high}) {
        auto *item = new ZSettingItem(screen.list, QString());
        item->setSeparator(QStringLiteral("Heading"), icon);
        screen.list->insertItem(item, -1, true);
    }
    const auto redPixels = [&](int index) {
        const QImage row = lookOfRow(screen.list, index);
        int count = 0;
        for (int x = 0; x < row.width(); ++x)
            for (int y = 0; y < row.height(); ++y)
                count += row.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        return count;
    };
    QCOMPARE(redPixels(0), 24);
    const int shrunk = redPixels(1);
    QVERIFY2(shrunk > 0 && shrunk <= 4 * ZSkinService::RowHeight, qPrintable(QString::number(shrunk)));
}

void TestListBoxLook::anIconWithoutRoomIsNotDrawn()
{
    ListScreen screen;
    QPixmap icon(6, 4);
    icon.fill(Qt::red);
    auto *item = new ZSettingItem(screen.list, QString());
    item->setSeparator(QStringLiteral("Heading"), &icon);
    screen.list->insertItem(item, -1, true);
    screen.list->resize(2 * ZSkinService::RowMargin, 100);
    settle();
    QVERIFY(lastInk(lookOfRow(screen.list, 0), color(ZSkinService::HeadingColor)) < 0);
}

void TestListBoxLook::twoIconsDoNotLookAlike()
{
    ListScreen screen;
    QList<QImage> looks;
    for (const QColor &filled : {QColor(Qt::red), QColor(Qt::blue)}) {
        QPixmap icon(8, 8);
        icon.fill(filled);
        auto *item = new ZSettingItem(screen.list, QString());
        item->setSeparator(QStringLiteral("Same"), &icon);
        screen.list->insertItem(item, -1, true);
        looks << lookOfRow(screen.list, screen.list->count() - 1);
    }
    QVERIFY(looks[0] != looks[1]);
    QCOMPARE(lookOfRow(screen.list, 0), looks[0]);
}

void TestListBoxLook::aTitleIsCutWhereTheListSays()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(endless);
    const QImage cutAtTheEnd = lookOfRow(screen.list, 1);
    screen.list->setTextElideMode(Qt::ElideLeft);
    const QImage cutAtTheBeginning = lookOfRow(screen.list, 1);
    QVERIFY(cutAtTheBeginning != cutAtTheEnd);
    screen.list->setTextElideMode(Qt::ElideRight);
    QCOMPARE(lookOfRow(screen.list, 1), cutAtTheEnd);
}

void TestListBoxLook::anEnlargedOrOddDisplayShowsTheSameRows_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<qreal>("pixelRatio");
    QTest::newRow("enlarged by the painter") << 2.0 << 1.0;
    QTest::newRow("with half pixels") << 1.0 << 1.5;
}

// Where no picture of a row stands for it, the row is painted.
void TestListBoxLook::anEnlargedOrOddDisplayShowsTheSameRows()
{
    QFETCH(qreal, scale);
    QFETCH(qreal, pixelRatio);
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("Title"), QStringLiteral("00:01:05"));
    showSettled(screen);
    const QImage plain = screen.grab().toImage();
    const qreal factor = scale * pixelRatio;
    QImage large((QSizeF(screen.size()) * factor).toSize(), QImage::Format_RGB32);
    large.setDevicePixelRatio(pixelRatio);
    QPainter painter(&large);
    painter.scale(scale, scale);
    screen.render(&painter);
    painter.end();
    const QRect row(screen.list->mapTo(&screen, QPoint(0, ZSkinService::RowHeight)),
                    QSize(screen.list->width(), ZSkinService::RowHeight - 1));
    const QImage expected = plain.copy(row);
    const QImage found = large.copy(
        QRectF(row.x() * factor, row.y() * factor, row.width() * factor, row.height() * factor).toAlignedRect());
    const auto isNear = [&](int (*ink)(const QImage &, const QColor &)) {
        const int there = ink(found, color(ZSkinService::ScreenColor));
        const int here = ink(expected, color(ZSkinService::ScreenColor));
        return here > 0 && std::abs(there - here * factor) < 4 * factor;
    };
    QVERIFY(isNear(&firstInk));
    QVERIFY(isNear(&lastInk));
}

void TestListBoxLook::aRowIsPaintedWhereNoPictureStandsForIt_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<qreal>("pixelRatio");
    QTest::addColumn<bool>("isRecorded");
    QTest::newRow("enlarged by the painter") << 2.0 << 1.0 << false;
    QTest::newRow("with half pixels") << 1.0 << 1.5 << false;
    QTest::newRow("recorded") << 1.0 << 1.0 << true;
}

void TestListBoxLook::aRowIsPaintedWhereNoPictureStandsForIt()
{
    QFETCH(qreal, scale);
    QFETCH(qreal, pixelRatio);
    QFETCH(bool, isRecorded);
    ListScreen screen;
    screen.addRow(QStringLiteral("bar"));
    screen.addRow(QStringLiteral("Title"), QStringLiteral("00:01:05"));
    showSettled(screen);
    const QImage expected = lookOfRow(screen.list, 1);
    const QModelIndex index = screen.list->model()->index(1, 0);
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(0, 0), expected.size());
    option.direction = Qt::LeftToRight;
    option.textElideMode = Qt::ElideRight;
    const qreal factor = scale * pixelRatio;
    QImage found((QSizeF(expected.size()) * factor).toSize(), QImage::Format_RGB32);
    found.setDevicePixelRatio(pixelRatio);
    QPicture record;
    QPainter painter;
    painter.begin(isRecorded ? static_cast<QPaintDevice *>(&record) : &found);
    painter.scale(scale, scale);
    screen.list->itemDelegateForIndex(index)->paint(&painter, option, index);
    painter.end();
    if (isRecorded) {
        QPainter player(&found);
        player.drawPicture(0, 0, record);
    }
    found.setDevicePixelRatio(1);
    // Without the divider below.
    const auto text = [&](const QImage &row, qreal by) {
        return row.copy(0, 0, row.width(), static_cast<int>((ZSkinService::RowHeight - 3) * by));
    };
    const int left = firstInk(text(expected, 1), color(ZSkinService::ScreenColor));
    const int right = lastInk(text(expected, 1), color(ZSkinService::ScreenColor));
    QVERIFY(std::abs(firstInk(text(found, factor), color(ZSkinService::ScreenColor)) - left * factor) <
            4 * factor);
    QVERIFY(std::abs(lastInk(text(found, factor), color(ZSkinService::ScreenColor)) - right * factor) <
            4 * factor);
}

void TestListBoxLook::onlyTheLeftButtonDragsTheScrollBar()
{
    ListScreen screen;
    screen.addRows(100);
    showSettled(screen);
    QScrollBar *const bar = screen.list->verticalScrollBar();
    QTest::mouseClick(bar, Qt::RightButton, Qt::NoModifier, QPoint(bar->width() / 2, bar->height() - 3));
    QCOMPARE(bar->value(), 0);
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, QPoint(bar->width() / 2, bar->height() - 3));
    QVERIFY(bar->value() > 0);
}

KAV_TEST_GROUP(TestListBoxLook, QApplication);
#include "tst_listbox_look.moc"
