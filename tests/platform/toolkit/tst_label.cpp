#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZLabel.h"

#include <QtGui/QAccessible>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdlib>

using namespace ToolkitTestKit;

class TestLabel : public QObject
{
    Q_OBJECT

private slots:
    void init() { noWarnings(); }

    void theWholeTextCanBeReadBack_data();
    void theWholeTextCanBeReadBack();
    void aLongTextEndsWithinTheLabel();
    void markupAndAmpersandsAreText();
    void aHeadingHasItsOwnGround();
    void aMirroredLabelBeginsAtTheRight();
    void aTextInTheMiddleHasAsMuchGroundOnEitherSide();
    void aLabelTooNarrowForATextShowsNone_data();
    void aLabelTooNarrowForATextShowsNone();
    void aDisabledLabelIsGreyed();
    void anEnlargedLabelHasTheSameText();
};

void TestLabel::theWholeTextCanBeReadBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a heading") << QStringLiteral("Current Data Session");
    QTest::newRow("longer than the display") << QStringLiteral("internet.operator.example").repeated(50);
    QTest::newRow("several lines") << QStringLiteral("one\ntwo");
    QTest::newRow("markup") << QStringLiteral("<b>bold</b> & more");
}

void TestLabel::theWholeTextCanBeReadBack()
{
    QFETCH(QString, text);
    QWidget parent;
    ZLabel label(text, &parent, "name", 0, ZSkinService::HeadingLabelClass);
    label.setGeometry(0, 10, 240, 20);
    QCOMPARE(label.text(), text);
    QCOMPARE(label.objectName(), QStringLiteral("name"));
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(QLatin1String(label.className()), QLatin1String("ZLabel"));
    QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), text);
    QVERIFY(!label.grab().isNull());
}

void TestLabel::aLongTextEndsWithinTheLabel()
{
    QWidget parent;
    parent.setPalette(ZSkinService::palette());
    ZLabel label(QStringLiteral("W").repeated(90), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    label.setGeometry(0, 0, 240, 20);
    const QColor ground = ZSkinService::color(ZSkinService::HeadingColor);
    const QImage image = label.grab().toImage();
    QVERIFY(firstInk(image, ground) >= ZSkinService::RowMargin);
    QVERIFY(lastInk(image, ground) < 240 - ZSkinService::RowMargin);
    QVERIFY(lastInk(image, ground) > 200);
}

void TestLabel::markupAndAmpersandsAreText()
{
    QWidget parent;
    ZLabel marked(QStringLiteral("<b>x</b>&y"), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    ZLabel plain(QStringLiteral("x"), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    for (ZLabel *label : {&marked, &plain})
        label->setGeometry(0, 0, 240, 20);
    const QColor ground = ZSkinService::color(ZSkinService::HeadingColor);
    QVERIFY(lastInk(marked.grab().toImage(), ground) > 3 * lastInk(plain.grab().toImage(), ground));
}

void TestLabel::aHeadingHasItsOwnGround()
{
    QWidget parent;
    parent.setPalette(ZSkinService::palette());
    ZLabel heading(QString(), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    ZLabel line(QString(), &parent, nullptr, 0, ZSkinService::SettingListClass);
    QCOMPARE(heading.grab().toImage().pixelColor(0, 0), ZSkinService::color(ZSkinService::HeadingColor));
    QCOMPARE(line.grab().toImage().pixelColor(0, 0), ZSkinService::color(ZSkinService::ScreenColor));
}

void TestLabel::aMirroredLabelBeginsAtTheRight()
{
    QWidget parent;
    parent.setLayoutDirection(Qt::RightToLeft);
    ZLabel label(QStringLiteral("x"), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    label.setGeometry(0, 0, 240, 20);
    QVERIFY(firstInk(label.grab().toImage(), ZSkinService::color(ZSkinService::HeadingColor)) > 200);
}

void TestLabel::aTextInTheMiddleHasAsMuchGroundOnEitherSide()
{
    QWidget parent;
    ZLabel label(QStringLiteral("xox"), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    label.setGeometry(0, 0, 240, 20);
    label.setAlignment(Qt::AlignHCenter);
    const QColor ground = ZSkinService::color(ZSkinService::HeadingColor);
    const QImage image = label.grab().toImage();
    QVERIFY(std::abs(firstInk(image, ground) - (239 - lastInk(image, ground))) <= 2);
}

void TestLabel::aLabelTooNarrowForATextShowsNone_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("no room between the margins") << 2 * ZSkinService::RowMargin;
    QTest::newRow("less than the margins") << ZSkinService::RowMargin;
    QTest::newRow("less than an ellipsis") << 2 * ZSkinService::RowMargin + 2;
}

void TestLabel::aLabelTooNarrowForATextShowsNone()
{
    QFETCH(int, width);
    QWidget parent;
    ZLabel label(QStringLiteral("WWW"), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    label.setGeometry(0, 0, width, 20);
    QVERIFY(lastInk(label.grab().toImage(), ZSkinService::color(ZSkinService::HeadingColor)) < 0);
    label.setGeometry(0, 0, 240, 20);
    QVERIFY(lastInk(label.grab().toImage(), ZSkinService::color(ZSkinService::HeadingColor)) > 0);
}

void TestLabel::aDisabledLabelIsGreyed()
{
    QWidget parent;
    ZLabel label(QStringLiteral("xox"), &parent, nullptr, 0, ZSkinService::SettingListClass);
    label.setGeometry(0, 0, 240, 20);
    const QImage enabled = label.grab().toImage();
    label.setEnabled(false);
    const QImage disabled = label.grab().toImage();
    QVERIFY(disabled != enabled);
    QVERIFY(lastInk(disabled, disabled.pixelColor(239, 0)) > 0);
}

void TestLabel::anEnlargedLabelHasTheSameText()
{
    QWidget parent;
    ZLabel label(QStringLiteral("xox"), &parent, nullptr, 0, ZSkinService::HeadingLabelClass);
    label.setGeometry(0, 0, 240, 20);
    const QColor ground = ZSkinService::color(ZSkinService::HeadingColor);
    const int plain = lastInk(label.grab().toImage(), ground);
    QImage large(480, 40, QImage::Format_RGB32);
    QPainter painter(&large);
    painter.scale(2, 2);
    label.render(&painter);
    painter.end();
    QVERIFY(std::abs(lastInk(large, ground) - 2 * plain) < 6);
}

KAV_TEST_GROUP(TestLabel, QApplication);

#include "tst_label.moc"
