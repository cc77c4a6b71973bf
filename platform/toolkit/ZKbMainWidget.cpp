#include "toolkit/ZKbMainWidget.h"

#include "toolkit/ZAccessible.h"
#include "toolkit/ZKeys.h"
#include "toolkit/ZLayers.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZSoftKey.h"
#include "toolkit/ZText.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

// More than any window manager shows of a window's title.
constexpr qsizetype longestWindowTitle = 256;

QRect contentRect(QSize screen)
{
    const int height = screen.height() - ZSkinService::TitleBarHeight - ZSkinService::SoftkeyBarHeight;
    return QRect(0, ZSkinService::TitleBarHeight, screen.width(), std::max(0, height));
}

QRect softkeyRect(QSize screen)
{
    const int top = screen.height() - ZSkinService::SoftkeyBarHeight;
    return QRect(0, top, screen.width(), ZSkinService::SoftkeyBarHeight);
}

// Resizes `parent` to `rect`, and those of its children with it that filled it exactly.
void setGeometryWithFillers(QWidget *parent, const QRect &rect)
{
    const QRect before(QPoint(0, 0), parent->size());
    parent->setGeometry(rect);
    const auto children = parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (!child->isWindow() && child->geometry() == before)
            child->resize(rect.size());
    }
}

bool isPlainPhoneKey(const QKeyEvent *event)
{
    return event->modifiers() == Qt::NoModifier && ZKeys::phoneKey(event->key()) != ZKeys::PhoneKey::None;
}

} // namespace

struct ZKbMainWidget::Private {
    QString title;
    QPointer<QWidget> bar;
    QPointer<QWidget> content;
};

ZKbMainWidget::ZKbMainWidget(QWidget *parent, const char *name, unsigned int flags)
    : QWidget(parent, Qt::WindowFlags::fromInt(flags))
    , d(std::make_unique<Private>())
{
    ZAccessible::install();
    if (name)
        setObjectName(QString::fromLatin1(name));
    if (parent)
        hide(); // not shown along with a parent that is yet to be shown
    setPalette(ZSkinService::palette());
    setFont(ZSkinService::font(ZSkinService::RowFont));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoMousePropagation);
    const auto *outer = isWindow() ? nullptr : qobject_cast<ZKbMainWidget *>(parent);
    resize(outer ? outer->size() : ZKbMainWidget::sizeHint());
}

ZKbMainWidget::~ZKbMainWidget()
{
    // While it is still a screen: dialogs and sub-screens inside it go first, and the keys with them.
    hide();
    ZLayers::gone(this);
}

void ZKbMainWidget::setMainWidgetTitle(const QString &title)
{
    d->title = title;
    setAccessibleName(title);
    if (isWindow())
        setWindowTitle(title.left(longestWindowTitle));
    update(0, 0, width(), ZSkinService::TitleBarHeight);
}

QString ZKbMainWidget::mainWidgetTitle() const
{
    return d->title;
}

void ZKbMainWidget::setCSTWidget(QWidget *bar)
{
    if (d->bar && d->bar != bar)
        d->bar->hide();
    d->bar = bar;
    if (!bar)
        return;
    if (bar->parentWidget() != this)
        bar->setParent(this);
    bar->setGeometry(softkeyRect(size()));
    bar->show();
}

QWidget *ZKbMainWidget::cstWidget() const
{
    return d->bar;
}

QWidget *ZKbMainWidget::getContentWidget(bool create)
{
    if (!d->content && create) {
        d->content = new QWidget(this);
        d->content->setGeometry(contentRect(size()));
        d->content->show();
    }
    return d->content;
}

bool ZKbMainWidget::close(bool alsoDelete)
{
    const bool closed = QWidget::close();
    if (closed && alsoDelete)
        deleteLater();
    return closed;
}

void ZKbMainWidget::setVisible(bool visible)
{
    const bool again = visible && isVisible();
    QWidget::setVisible(visible);
    if (again)
        comeToFront();
}

QSize ZKbMainWidget::sizeHint() const
{
    return QSize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
}

bool ZKbMainWidget::event(QEvent *event)
{
    // The phone's keys are the phone's, even where the window around it has shortcuts of the same name.
    if (event->type() == QEvent::ShortcutOverride && isPlainPhoneKey(static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void ZKbMainWidget::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (event->isAutoRepeat())
        return;
    auto *softKey = qobject_cast<ZSoftKey *>(d->bar.data());
    // Whoever answers may delete the screen: nothing comes after the answers below.
    switch (ZKeys::phoneKey(event->key())) {
    case ZKeys::PhoneKey::LeftSoftkey:
        if (softKey)
            softKey->click(ZSoftKey::LeftKey);
        break;
    case ZKeys::PhoneKey::RightSoftkey:
        if (softKey)
            softKey->click(ZSoftKey::RightKey);
        break;
    case ZKeys::PhoneKey::Clear:
        emit clearKeyClicked();
        break;
    case ZKeys::PhoneKey::Up:
    case ZKeys::PhoneKey::Down:
    case ZKeys::PhoneKey::Select:
    case ZKeys::PhoneKey::None:
        break;
    }
}

void ZKbMainWidget::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}

void ZKbMainWidget::mousePressEvent(QMouseEvent *)
{
    ZLayers::takeKeys(this);
}

void ZKbMainWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), ZSkinService::color(ZSkinService::ScreenColor));
    const QRect bar(0, 0, width(), ZSkinService::TitleBarHeight);
    const QColor barColor = ZSkinService::color(ZSkinService::TitleBarColor);
    painter.fillRect(bar, barColor);
    painter.fillRect(bar.adjusted(0, bar.height() - ZSkinService::AccentHeight, 0, 0),
                     ZSkinService::color(ZSkinService::AccentColor));
    if (!d->bar)
        painter.fillRect(softkeyRect(size()), ZSkinService::color(ZSkinService::SoftkeyBarColor));
    painter.setPen(ZSkinService::color(ZSkinService::TitleTextColor));
    const QRect text =
        bar.adjusted(ZSkinService::RowMargin, 0, -ZSkinService::RowMargin, -ZSkinService::AccentHeight);
    ZText::drawOn(painter, barColor, ZSkinService::font(ZSkinService::TitleFont), text,
                  QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading), d->title);
}

void ZKbMainWidget::resizeEvent(QResizeEvent *event)
{
    layOut();
    const auto inside = findChildren<ZKbMainWidget *>(Qt::FindDirectChildrenOnly);
    for (ZKbMainWidget *screen : inside) {
        if (!screen->isWindow() && screen->size() == event->oldSize())
            screen->resize(size());
    }
}

void ZKbMainWidget::layOut()
{
    if (d->content)
        setGeometryWithFillers(d->content, contentRect(size()));
    if (d->bar)
        d->bar->setGeometry(softkeyRect(size()));
}

void ZKbMainWidget::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        comeToFront();
}

void ZKbMainWidget::hideEvent(QHideEvent *event)
{
    if (event->spontaneous())
        return;
    ZLayers::gone(this);
    ZLayers::passKeysOn(this, nullptr);
}

bool ZKbMainWidget::focusNextPrevChild(bool next)
{
    if (isVisible())
        ZLayers::tabOut(this, next);
    return true;
}

void ZKbMainWidget::comeToFront()
{
    if (!isWindow())
        raise();
    ZLayers::shown(this, ZLayers::Kind::Screen);
    ZLayers::takeKeys(this);
}
