#include "toolkit/ToolkitTestKit.h"

#include <QtCore/QEvent>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

ListScreen::ListScreen(QWidget *parent)
    : ZKbMainWidget(parent, "test screen", 0)
    , bar(new ZSoftKey(QStringLiteral("CST_2A"), this, nullptr))
    , list(new ZListBox(QStringLiteral("%M"), getContentWidget(true), 0, ZSkinService::SettingListClass))
{
    setMainWidgetTitle(QStringLiteral("Test"));
    bar->setText(ZSoftKey::LeftKey, QStringLiteral("Options"), ZSoftKey::DefaultTextPriority);
    bar->setText(ZSoftKey::RightKey, QStringLiteral("Back"), ZSoftKey::DefaultTextPriority);
    setCSTWidget(bar);
    list->setGeometry(getContentWidget(true)->rect());
}

ZSettingItem *ListScreen::addRow(const QString &title, const QString &value)
{
    auto *item = new ZSettingItem(list, QString());
    item->appendSubItem(0, title, false, ZSettingItem::TitleRegion);
    if (!value.isNull())
        item->appendSubItem(0, value, false, ZSettingItem::ValueRegion);
    list->insertItem(item, -1, true);
    return item;
}

ZSettingItem *ListScreen::addSeparator(const QString &title)
{
    auto *item = new ZSettingItem(list, QStringLiteral("%P"));
    item->setSeparator(title, nullptr);
    list->insertItem(item, -1, true);
    return item;
}

void ListScreen::addRows(int count)
{
    for (int i = 0; i < count; ++i)
        addRow(QStringLiteral("Row %1").arg(i), QString::number(i));
}

bool ListScreen::open(int rows)
{
    addRows(rows);
    show();
    return QTest::qWaitForWindowActive(this, 60'000);
}

QString ListScreen::titles() const
{
    QStringList result;
    for (int row = 0; row < list->count(); ++row)
        result << list->item(row)->title();
    return result.join(QLatin1Char('|'));
}

void ToolkitTestKit::press(QWidget *widget, int key, bool repeated)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
    QCoreApplication::sendEvent(widget, &event);
}

void ToolkitTestKit::click(QWidget *widget, int key)
{
    const QPointer<QWidget> target = widget;
    press(target, key);
    QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier);
    if (target)
        QCoreApplication::sendEvent(target, &event);
}

void ToolkitTestKit::clickInWindow(const QWidget *widget, int key)
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    qt_handleKeyEvent(window, QEvent::KeyPress, key, Qt::NoModifier, QString(), false, 1);
    if (window)
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, Qt::NoModifier, QString(), false, 1);
}

void ToolkitTestKit::type(QWidget *widget, QChar letter)
{
    QTest::keyClick(widget, letter.toLatin1());
}

void ToolkitTestKit::settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QImage ToolkitTestKit::lookOfRow(ZListBox *list, int row)
{
    return list->viewport()->grab(list->visualRect(list->model()->index(row, 0))).toImage();
}

QPoint ToolkitTestKit::middleOfRow(const ZListBox *list, int row)
{
    return list->visualRect(list->model()->index(row, 0)).center();
}

namespace {

bool hasInk(const QImage &image, int column, QRgb background)
{
    // The line under a row is no ink.
    for (int y = 0; y < image.height() - 1; ++y) {
        if (image.pixel(column, y) != background)
            return true;
    }
    return false;
}

} // namespace

int ToolkitTestKit::firstInk(const QImage &image, const QColor &background)
{
    for (int x = 0; x < image.width(); ++x) {
        if (hasInk(image, x, background.rgb()))
            return x;
    }
    return -1;
}

int ToolkitTestKit::lastInk(const QImage &image, const QColor &background)
{
    for (int x = image.width() - 1; x >= 0; --x) {
        if (hasInk(image, x, background.rgb()))
            return x;
    }
    return -1;
}

void ToolkitTestKit::noWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

#include "moc_ToolkitTestKit.cpp"
