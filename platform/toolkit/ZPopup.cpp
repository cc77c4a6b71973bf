#include "toolkit/ZPopup.h"

#include "toolkit/ZAccessible.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKeys.h"
#include "toolkit/ZLayers.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZSoftKey.h"
#include "toolkit/ZText.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <utility>

namespace {

Qt::WindowFlags windowFlagsFor(const QWidget *parent, unsigned int flags)
{
    if (parent)
        return Qt::Widget;
    // Tied to the phone's window, a dialog stays over it without an entry in the task bar.
    return Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowFlags::fromInt(flags);
}

int heightOf(const QWidget *body, int width)
{
    return body->hasHeightForWidth() ? body->heightForWidth(width) : body->sizeHint().height();
}

// Without a display there is neither a stack of windows nor a window's shape, and each request for one a warning.
bool hasWindowSystem()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

QPainterPath rounded(const QRectF &box)
{
    QPainterPath path;
    path.addRoundedRect(box, ZSkinService::DialogRadius, ZSkinService::DialogRadius);
    return path;
}

// Fills what of `box`, which has round corners, lies in `part`. Only at the corners is there anything to smooth, and
// smoothing the whole of a box takes as long as painting a screen.
void fillRounded(QPainter &painter, const QRect &box, const QRect &part, const QColor &color)
{
    constexpr int radius = ZSkinService::DialogRadius;
    const int ends = std::min(radius, box.height() / 2);
    const QRect middle = box.adjusted(0, ends, 0, -ends);
    painter.fillRect(middle & part, color);
    const QRect top(box.left(), box.top(), box.width(), ends);
    const QRect bottom(box.left(), middle.bottom() + 1, box.width(), ends);
    for (const QRect &end : {top, bottom}) {
        if (!end.intersects(part))
            continue;
        const QRect wholeArc = end == top ? end.adjusted(0, 0, 0, ends) : end.adjusted(0, -ends, 0, 0);
        painter.save();
        painter.setClipRect(end & part, Qt::IntersectClip);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(rounded(wholeArc), color);
        painter.restore();
    }
}

// Fills the edges of `box`, one pixel wide, and its first `header` pixels; what is inside is left to others.
void fillFrame(QPainter &painter, const QRect &box, int header, const QColor &color)
{
    const int end = ZSkinService::DialogRadius + 1;
    const QRect top(box.left(), box.top(), box.width(), std::max(header + 1, end));
    const QRect bottom(box.left(), box.bottom() + 1 - end, box.width(), end);
    fillRounded(painter, box, top & box, color);
    fillRounded(painter, box, bottom & box, color);
    const int sides = std::max(0, bottom.top() - top.bottom() - 1);
    painter.fillRect(box.left(), top.bottom() + 1, 1, sides, color);
    painter.fillRect(box.right(), top.bottom() + 1, 1, sides, color);
}

} // namespace

struct ZPopup::Private {
    QString header;
    bool modal = false;
    bool waitsForDisplay = false; // hidden only because the display is
    ZSoftKey *softKey = nullptr;
    QPointer<QWidget> body;
    QRect box;
    QPointer<QWidget> focusBefore;
    QPointer<QWidget> display; // what a dialog without a parent lies over
    QList<QPointer<QWidget>> watched;
    int timeout = 0;
    Answer timeoutAnswer = RightAnswer;
    QBasicTimer timer;

    int headerHeight() const { return header.isEmpty() ? 0 : ZSkinService::DialogHeaderHeight; }
    ZLayers::Kind kind() const { return modal ? ZLayers::Kind::ModalDialog : ZLayers::Kind::OpenDialog; }
};

ZPopup::ZPopup(const QString &header, QWidget *parent, const char *name, bool modal, unsigned int flags)
    : QWidget(parent, windowFlagsFor(parent, flags))
    , d(std::make_unique<Private>())
{
    ZAccessible::install();
    if (name)
        setObjectName(QString::fromLatin1(name));
    d->header = header;
    d->modal = modal;
    hide(); // not shown along with a parent that is yet to be shown
    setPalette(ZSkinService::palette());
    setFont(ZSkinService::font(ZSkinService::RowFont));
    setAttribute(Qt::WA_NoMousePropagation);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(header);
    d->softKey = new ZSoftKey(QStringLiteral("CST_2A"), this, nullptr);
    connect(d->softKey, &ZSoftKey::leftClicked, this, [this] { softkeyClicked(LeftAnswer); });
    connect(d->softKey, &ZSoftKey::rightClicked, this, [this] { softkeyClicked(RightAnswer); });
    if (parent) {
        parent->installEventFilter(this);
        coverParent();
    } else {
        setAttribute(Qt::WA_TranslucentBackground);
        resize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
    }
}

ZPopup::~ZPopup()
{
    // While it is still a dialog, so that the keys are passed on.
    hide();
    ZLayers::gone(this);
}

QString ZPopup::header() const
{
    return d->header;
}

bool ZPopup::isModalOverParent() const
{
    return d->modal;
}

void ZPopup::setSoftkeyTextLeft(const QString &text)
{
    d->softKey->setText(ZSoftKey::LeftKey, text, ZSoftKey::DefaultTextPriority);
}

void ZPopup::setSoftkeyTextRight(const QString &text)
{
    d->softKey->setText(ZSoftKey::RightKey, text, ZSoftKey::DefaultTextPriority);
}

ZSoftKey *ZPopup::softKey() const
{
    return d->softKey;
}

void ZPopup::setBody(QWidget *body)
{
    d->body = body;
    if (body && body->parentWidget() != this)
        body->setParent(this);
    layOut();
}

void ZPopup::bodySizeChanged()
{
    layOut();
}

int ZPopup::roomForBody() const
{
    const int box = height() - ZSkinService::SoftkeyBarHeight - 2 * ZSkinService::DialogMargin;
    return std::max(0, box - d->headerHeight() - 2);
}

void ZPopup::answerAfter(int milliseconds, Answer answer)
{
    d->timeout = milliseconds;
    d->timeoutAnswer = answer;
}

void ZPopup::setVisible(bool visible)
{
    d->waitsForDisplay = false;
    if (visible && isWindow())
        lieOver(ZApplication::display());
    const bool again = visible && isVisible();
    // Once it is gone it is too late: without a window manager nobody would get the keys.
    if (!visible && isWindow() && isActiveWindow() && d->display && d->display->isVisible())
        d->display->window()->activateWindow();
    QWidget::setVisible(visible);
    if (again)
        comeToFront();
    if (visible && isWindow())
        activateWindow();
}

// --- answers

void ZPopup::answer(Answer answer)
{
    // The dialog is deleted, as likely as not, by whoever is told: nothing comes after the signals.
    const QPointer<ZPopup> self(this);
    hide();
    if (!self)
        return;
    switch (answer) {
    case LeftAnswer:
        emit leftSoftkeyClicked();
        break;
    case RightAnswer:
        emit rightSoftkeyClicked();
        break;
    case SelectAnswer:
        emit signalCenterSelKeyPressed();
        break;
    }
}

void ZPopup::softkeyClicked(Answer side)
{
    const ZSoftKey::KEY_IDX key = side == RightAnswer ? ZSoftKey::RightKey : ZSoftKey::LeftKey;
    if (!d->softKey->text(key).isEmpty())
        answer(side);
}

void ZPopup::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (event->isAutoRepeat())
        return;
    const bool hasRight = !d->softKey->text(ZSoftKey::RightKey).isEmpty();
    switch (ZKeys::phoneKey(event->key())) {
    case ZKeys::PhoneKey::Select:
        if (d->softKey->isButtonEnabled(ZSoftKey::LeftKey))
            answer(LeftAnswer);
        break;
    case ZKeys::PhoneKey::LeftSoftkey:
        d->softKey->click(ZSoftKey::LeftKey);
        break;
    case ZKeys::PhoneKey::RightSoftkey:
        d->softKey->click(ZSoftKey::RightKey);
        break;
    case ZKeys::PhoneKey::Clear:
        answer(hasRight ? RightAnswer : LeftAnswer);
        break;
    case ZKeys::PhoneKey::Up:
    case ZKeys::PhoneKey::Down:
    case ZKeys::PhoneKey::None:
        break;
    }
}

void ZPopup::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}

void ZPopup::mousePressEvent(QMouseEvent *)
{
    ZLayers::takeKeys(this);
}

void ZPopup::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

bool ZPopup::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() == Qt::NoModifier && ZKeys::phoneKey(key->key()) != ZKeys::PhoneKey::None) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool ZPopup::focusNextPrevChild(bool next)
{
    if (isVisible())
        ZLayers::tabOut(this, next);
    return true;
}

// --- place

void ZPopup::showEvent(QShowEvent *event)
{
    if (event->spontaneous())
        return;
    QWidget *focus = window()->focusWidget();
    if (!isWindow() && focus && !isAncestorOf(focus) && focus != this)
        d->focusBefore = focus;
    if (d->timeout > 0)
        d->timer.start(d->timeout, this);
    comeToFront();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ZPopup::hideEvent(QHideEvent *event)
{
    if (event->spontaneous())
        return;
    d->timer.stop();
    ZLayers::gone(this);
    ZLayers::passKeysOn(this, d->focusBefore);
}

void ZPopup::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != d->timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    d->timer.stop();
    answer(d->timeoutAnswer);
}

void ZPopup::comeToFront()
{
    if (!isWindow() || hasWindowSystem())
        raise();
    ZLayers::shown(this, d->kind());
    ZLayers::takeKeys(this);
}

void ZPopup::coverParent()
{
    setGeometry(parentWidget()->rect());
    layOut();
}

// In a scene, which shows the display larger, no window could lie over it: the dialog is part of it there.
void ZPopup::lieOver(QWidget *display)
{
    if (!display || !display->window()->graphicsProxyWidget()) {
        followDisplay(display);
        return;
    }
    setParent(display, Qt::Widget);
    setAttribute(Qt::WA_TranslucentBackground, false);
    display->installEventFilter(this);
    coverParent();
}

void ZPopup::followDisplay(QWidget *display)
{
    for (const QPointer<QWidget> &widget : std::exchange(d->watched, {})) {
        if (widget)
            widget->removeEventFilter(this);
    }
    d->display = display;
    // The display moves over the desktop whenever anything around it does.
    for (QWidget *w = display; w; w = w->isWindow() ? nullptr : w->parentWidget()) {
        w->installEventFilter(this);
        d->watched.append(w);
    }
    coverDisplay();
    if (!display)
        return;
    (void)winId(); // the window exists from now on, and can be tied to the one it stays over
    windowHandle()->setTransientParent(display->window()->windowHandle());
}

void ZPopup::coverDisplay()
{
    if (d->display) {
        setGeometry(QRect(d->display->mapToGlobal(QPoint(0, 0)), d->display->size()));
    } else if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QSize size(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
        setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, screen->availableGeometry()));
    }
    layOut();
}

// Hides the dialog while its display is out of sight, and brings it back with it.
void ZPopup::showWithDisplay()
{
    const bool inSight = d->display && d->display->isVisible() && !d->display->window()->isMinimized();
    if (d->display && isVisible() && !inSight) {
        setVisible(false);
        d->waitsForDisplay = true;
    } else if (inSight && d->waitsForDisplay) {
        setVisible(true);
    }
}

bool ZPopup::eventFilter(QObject *watched, QEvent *event)
{
    const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (!isWindow()) {
        if (event->type() == QEvent::Resize && watched == parentWidget())
            coverParent();
        return false;
    }
    const bool toggled = event->type() == QEvent::Show || event->type() == QEvent::Hide ||
                         event->type() == QEvent::WindowStateChange;
    if (moved && isVisible())
        coverDisplay();
    else if (toggled)
        showWithDisplay();
    return false;
}

// --- look

void ZPopup::layOut()
{
    const int barTop = height() - ZSkinService::SoftkeyBarHeight;
    d->softKey->setGeometry(0, barTop, width(), ZSkinService::SoftkeyBarHeight);
    const QRect area = QRect(0, 0, width(), barTop)
                           .adjusted(ZSkinService::DialogMargin, ZSkinService::DialogMargin,
                                     -ZSkinService::DialogMargin, -ZSkinService::DialogMargin);
    const int wanted = d->headerHeight() + (d->body ? heightOf(d->body, area.width() - 2) : 0) + 2;
    const QSize size(area.width(), std::min(wanted, std::max(0, area.height())));
    d->box = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, area);
    if (d->body)
        d->body->setGeometry(d->box.adjusted(1, 1 + d->headerHeight(), -1, -1));
    if (!d->modal && (!isWindow() || hasWindowSystem()))
        setMask(QRegion(rounded(d->box).toFillPolygon().toPolygon()) + QRegion(d->softKey->geometry()));
    update();
}

void ZPopup::resizeEvent(QResizeEvent *)
{
    layOut();
}

void ZPopup::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (d->modal)
        painter.fillRect(rect(), ZSkinService::color(ZSkinService::BackdropColor));
    fillFrame(painter, d->box, d->headerHeight(), ZSkinService::color(ZSkinService::DialogFrameColor));
    const QRect inner = d->box.adjusted(1, 1, -1, -1);
    fillRounded(painter, inner, inner.adjusted(0, d->headerHeight(), 0, 0),
                ZSkinService::color(ZSkinService::DialogColor));
    if (d->header.isEmpty())
        return;
    painter.setPen(ZSkinService::color(ZSkinService::TitleTextColor));
    const QRect text(inner.left() + ZSkinService::DialogPadding, inner.top(),
                     inner.width() - 2 * ZSkinService::DialogPadding, d->headerHeight());
    ZText::draw(painter, ZSkinService::font(ZSkinService::TitleFont), text,
                QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading), d->header);
}
