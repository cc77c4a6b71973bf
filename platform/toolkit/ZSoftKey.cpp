#include "toolkit/ZSoftKey.h"

#include "toolkit/ZAccessible.h"
#include "toolkit/ZKeys.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZText.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaMethod>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>

#include <array>
#include <map>

namespace {

constexpr int keyCount = 2;

bool isKey(ZSoftKey::KEY_IDX key)
{
    return key == ZSoftKey::LeftKey || key == ZSoftKey::RightKey;
}

bool isKeyOrWarn(ZSoftKey::KEY_IDX key, const char *operation)
{
    if (!isKey(key))
        qWarning("ZSoftKey::%s: there is no key %d", operation, static_cast<int>(key));
    return isKey(key);
}

// The caption is not the button's own text, in which an ampersand would name a shortcut.
class CaptionButton : public QAbstractButton
{
public:
    CaptionButton(QWidget *parent, Qt::Alignment side)
        : QAbstractButton(parent)
        , alignment(side)
    {
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override
    {
        return QSize(ZSkinService::DisplayWidth / keyCount, ZSkinService::SoftkeyBarHeight);
    }

    QString caption() const { return captions.empty() ? QString() : captions.crbegin()->second; }

    void setCaption(const QString &caption, int priority)
    {
        if (caption.isEmpty())
            captions.erase(priority);
        else
            captions[priority] = caption;
        const QString before = accessibleName();
        if (before != this->caption()) {
            setAccessibleName(this->caption());
            if (before.isEmpty())
                ZAccessible::keyAppeared(this);
            else if (accessibleName().isEmpty())
                ZAccessible::keyVanished(this);
        }
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QString text = caption();
        if (text.isEmpty())
            return;
        QPainter painter(this);
        const QColor background =
            ZSkinService::color(isDown() ? ZSkinService::SoftkeyPressedColor : ZSkinService::SoftkeyBarColor);
        if (isDown())
            painter.fillRect(rect(), background);
        painter.setPen(ZSkinService::color(isEnabled() ? ZSkinService::SoftkeyTextColor
                                                       : ZSkinService::SoftkeyDisabledTextColor));
        const QRect inner = rect().adjusted(ZSkinService::RowMargin, 0, -ZSkinService::RowMargin, 0);
        ZText::drawOn(painter, background, ZSkinService::font(ZSkinService::SoftkeyFont), inner, alignment, text);
    }

private:
    const Qt::Alignment alignment;
    std::map<int, QString> captions; // by priority
};

// Whether `receiver` has `member`, given as "2closeWidget()" or "1slotBack()", and it wants no arguments.
bool hasMember(const QObject *receiver, const char *member)
{
    const bool isSignal = member[0] == '0' + QSIGNAL_CODE;
    if (!isSignal && member[0] != '0' + QSLOT_CODE)
        return false;
    const QByteArray signature = QMetaObject::normalizedSignature(member + 1);
    const QMetaObject *meta = receiver->metaObject();
    const int index = isSignal ? meta->indexOfSignal(signature) : meta->indexOfSlot(signature);
    return index >= 0 && QMetaObject::checkConnectArgs("leftClicked()", signature);
}

} // namespace

struct ZSoftKey::Private {
    std::array<CaptionButton *, keyCount> buttons = {};
    std::array<QMetaObject::Connection, keyCount> connections;

    CaptionButton *button(KEY_IDX key) const { return buttons[static_cast<std::size_t>(key)]; }
};

ZSoftKey::ZSoftKey(const QString &layout, QWidget *parent, QWidget *target)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    ZAccessible::install();
    if (layout != QLatin1String("CST_2A"))
        qWarning() << "ZSoftKey: unknown layout" << layout << "taken as CST_2A";
    d->buttons = {new CaptionButton(this, Qt::AlignLeft), new CaptionButton(this, Qt::AlignRight)};
    connect(d->button(LeftKey), &QAbstractButton::clicked, this, [this] { click(LeftKey); });
    connect(d->button(RightKey), &QAbstractButton::clicked, this, [this] { click(RightKey); });
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    resize(ZSkinService::DisplayWidth, ZSkinService::SoftkeyBarHeight);
    layOut();
    if (target && target != parent)
        target->installEventFilter(this);
}

ZSoftKey::~ZSoftKey() = default;

void ZSoftKey::setText(KEY_IDX key, const QString &text, TEXT_PRIORITY priority)
{
    if (isKeyOrWarn(key, "setText"))
        d->button(key)->setCaption(text, static_cast<int>(priority));
}

QString ZSoftKey::text(KEY_IDX key) const
{
    return isKeyOrWarn(key, "text") ? d->button(key)->caption() : QString();
}

void ZSoftKey::setClickedSlot(KEY_IDX key, const QObject *receiver, const char *member)
{
    if (!isKeyOrWarn(key, "setClickedSlot"))
        return;
    QMetaObject::Connection fresh;
    if (receiver && member) {
        if (!hasMember(receiver, member)) {
            qWarning("ZSoftKey::setClickedSlot: %s has no member \"%s\"", receiver->metaObject()->className(),
                     member);
            return;
        }
        fresh = connect(this, key == LeftKey ? SIGNAL(leftClicked()) : SIGNAL(rightClicked()), receiver, member);
        if (!fresh)
            return;
    }
    QMetaObject::Connection &current = d->connections[static_cast<std::size_t>(key)];
    disconnect(current);
    current = fresh;
}

void ZSoftKey::setButtonEnable(KEY_IDX key, bool enable)
{
    if (isKeyOrWarn(key, "setButtonEnable"))
        d->button(key)->setEnabled(enable);
}

bool ZSoftKey::isButtonEnabled(KEY_IDX key) const
{
    return isKeyOrWarn(key, "isButtonEnabled") && d->button(key)->isEnabled();
}

void ZSoftKey::click(KEY_IDX key)
{
    if (!isKeyOrWarn(key, "click") || !d->button(key)->isEnabled())
        return;
    if (key == LeftKey)
        emit leftClicked();
    else
        emit rightClicked();
}

bool ZSoftKey::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *press = static_cast<QKeyEvent *>(event);
    const ZKeys::PhoneKey phoneKey = ZKeys::phoneKey(press->key());
    if (phoneKey != ZKeys::PhoneKey::LeftSoftkey && phoneKey != ZKeys::PhoneKey::RightSoftkey)
        return false;
    if (!press->isAutoRepeat())
        click(phoneKey == ZKeys::PhoneKey::LeftSoftkey ? LeftKey : RightKey);
    return true;
}

void ZSoftKey::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), ZSkinService::color(ZSkinService::SoftkeyBarColor));
}

void ZSoftKey::resizeEvent(QResizeEvent *)
{
    layOut();
}

void ZSoftKey::layOut()
{
    // The phone's keys stay where they are in a right-to-left language, and so do their captions.
    const int half = width() / keyCount;
    d->button(LeftKey)->setGeometry(0, 0, half, height());
    d->button(RightKey)->setGeometry(half, 0, width() - half, height());
}
