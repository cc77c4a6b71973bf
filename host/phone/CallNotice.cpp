#include "host/phone/CallNotice.h"

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "host/AccessibleRole.h"
#include "host/LeftToRight.h"
#include "host/Line.h"
#include "host/panel/Controls.h"
#include "host/panel/CostSection.h"
#include "host/phone/Keypad.h"
#include "host/phone/PhoneKey.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace host {

using handset::CallPhase;
using handset::CallTime;
using handset::LineCall;

namespace {

constexpr int noticeTickMs = 1000;
constexpr int largePixels = 20;
constexpr int usualPixels = 13;
constexpr int smallPixels = 12;

QFont skinFont(int pixelSize, bool bold)
{
    QFont font = ZSkinService::font(bold ? ZSkinService::EmphasisFont : ZSkinService::RowFont);
    font.setPixelSize(pixelSize);
    return font;
}

bool isConnected(const LineCall &call)
{
    return call.phase == CallPhase::Active || call.phase == CallPhase::Held;
}

QString phaseWord(CallPhase phase)
{
    switch (phase) {
    case CallPhase::Dialing:
    case CallPhase::Alerting:
        return CallNotice::tr("Dialing");
    case CallPhase::Incoming:
        return CallNotice::tr("Incoming call");
    case CallPhase::Waiting:
        return CallNotice::tr("Call waiting");
    case CallPhase::Held:
        return CallNotice::tr("On hold");
    case CallPhase::Active:
    case CallPhase::Over:
        break;
    }
    return CallNotice::tr("Connected");
}

QString numberText(const LineCall &call)
{
    return call.number.isEmpty() ? CallNotice::tr("Number withheld") : call.number;
}

// As the call log counts it; as it was seen where there is none.
QString clockOfLastCall(handset::Handset &handset, const LineCall &seen)
{
    CallTime time;
    handset::CallLog *log = handset.callLog();
    if (!log || log->lastCallTime(time) != handset::Success)
        return clockText(seen.connectedMs / 1000);
    return clockText(qint64{time.hours} * 3600 + qint64{time.minutes} * 60 + time.seconds);
}

QString costOfLastCall(handset::Handset &handset)
{
    QByteArray text;
    handset::CallService *service = handset.callService();
    const bool isTold = service && service->lastCallCost(text) == handset::Success;
    return isTold ? withUnit(QString::fromLatin1(text), handset) : QString();
}

} // namespace

CallNotice::CallNotice(const Line &told, QWidget *place, int rows, Extent toTell)
    : QFrame(place)
    , line(told)
    , rowsHeight(rows)
    , extent(toTell)
{
    giveAccessibleRole<CallNotice, QAccessible::Grouping>();
    setAccessibleName(tr("Call"));
    setObjectName(QStringLiteral("call notice"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(ZSkinService::RowMargin, 6, ZSkinService::RowMargin, 6);
    column->setSpacing(2);
    state = addLabel("call state", usualPixels, true);
    number = addLabel("call number", largePixels, true);
    clock = addLabel("call clock", largePixels, false);
    cost = addLabel("call cost so far", usualPixels, false);
    others = addLabel("other calls", smallPixels, false);
    notice = addLabel("call warning", smallPixels, true);
    if (extent == Extent::WithKeysAndAllNotices)
        addKeys();
    place->installEventFilter(this);
    connect(&line, &Line::changed, this, &CallNotice::refresh);
    connect(&tick, &QTimer::timeout, this, &CallNotice::refresh);
    refresh();
}

QLabel *CallNotice::addLabel(const char *name, int pixelSize, bool bold)
{
    auto *label = new QLabel(this);
    label->setObjectName(QLatin1StringView(name));
    label->setFont(skinFont(pixelSize, bold));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    layout()->addWidget(label);
    return label;
}

void CallNotice::addKeys()
{
    auto *keys = new QHBoxLayout;
    const auto add = [&](PhoneKey::Legend legend, const QString &name, Qt::Key key) {
        auto *button = new PhoneKey(legend, {}, {}, this);
        button->setAccessibleName(name);
        button->setMinimumHeight(ZSkinService::SoftkeyBarHeight);
        connect(button, &PhoneKey::clicked, this, [this, key] { emit keyClicked(key); });
        keys->addWidget(button);
        return button;
    };
    callKey = add(PhoneKey::Legend::Call, Keypad::tr("Call"), Qt::Key_Call);
    hangUpKey = add(PhoneKey::Legend::HangUp, Keypad::tr("Hang up"), Qt::Key_Hangup);
    qobject_cast<QVBoxLayout *>(layout())->addLayout(keys);
}

void CallNotice::dismiss()
{
    over.reset();
    refresh();
}

void CallNotice::refresh()
{
    const QList<LineCall> calls = line.calls();
    follow(calls);
    Told told = describe(calls);
    if (extent == Extent::WithKeysAndAllNotices) {
        QStringList notices{told.notice, line.failure(), line.recordNotice(), line.toldNotice()};
        notices.removeAll(QString());
        told.notice = notices.join(u'\n');
    }
    say(told);
    if (calls.isEmpty() || !line.isCounting())
        tick.stop();
    else if (!tick.isActive())
        tick.start(noticeTickMs);
}

void CallNotice::follow(const QList<LineCall> &calls)
{
    if (!calls.isEmpty()) {
        latest = calls.constFirst();
        over.reset();
        return;
    }
    if (latest)
        over = std::exchange(latest, std::nullopt);
    if (!line.typedNumber().isEmpty())
        over.reset();
}

CallNotice::Told CallNotice::describe(const QList<LineCall> &calls) const
{
    if (!calls.isEmpty())
        return describeCalls(calls);
    if (over)
        return describeEnd();
    Told told;
    told.number = line.typedNumber();
    if (!told.number.isEmpty())
        told.state = tr("Number to dial");
    return told;
}

CallNotice::Told CallNotice::describeCalls(const QList<LineCall> &calls) const
{
    const LineCall &call = calls.constFirst();
    Told told;
    told.state = phaseWord(call.phase);
    told.number = numberText(call);
    if (isConnected(call)) {
        told.clock = clockText(call.connectedMs / 1000);
        told.cost = costOfLastCall(line.handset());
    }
    QStringList beside;
    for (const LineCall &other : calls.mid(1))
        beside << phaseWord(other.phase) + QStringLiteral(", ") + leftToRight(numberText(other));
    if (!line.typedNumber().isEmpty())
        beside << leftToRight(line.typedNumber());
    told.others = beside.join(u'\n');
    told.notice = line.chargeNotice();
    return told;
}

CallNotice::Told CallNotice::describeEnd() const
{
    Told told;
    told.number = numberText(*over);
    told.notice = line.chargeNotice();
    told.state = isConnected(*over) ? tr("Call ended") : tr("Not answered");
    if (isConnected(*over)) {
        told.clock = clockOfLastCall(line.handset(), *over);
        told.cost = costOfLastCall(line.handset());
    }
    return told;
}

void CallNotice::say(const Told &told)
{
    const std::initializer_list<std::pair<QLabel *, QString>> texts{{state, told.state},
                                                                    {clock, told.clock},
                                                                    {cost, told.cost},
                                                                    {others, breakableAnywhere(told.others)},
                                                                    {notice, told.notice}};
    for (const auto &[label, text] : texts) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
    sayNumber(told.number);
    if (callKey) {
        const bool isTyped = !line.typedNumber().isEmpty();
        callKey->setVisible(line.permits(Line::Action::Answer) || (isTyped && line.permits(Line::Action::Dial)));
        hangUpKey->setVisible(!told.state.isEmpty());
    }
    setVisible(!told.state.isEmpty() || !told.notice.isEmpty());
    takePlace();
}

// As large as fits into a line; a longer number is broken, with its first digits left out where it is too long for that.
void CallNotice::sayNumber(const QString &text)
{
    const int width = parentWidget()->width() - 2 * ZSkinService::RowMargin;
    const auto fits = [&](int pixels) {
        return QFontMetrics(skinFont(pixels, true)).horizontalAdvance(text) <= width;
    };
    const bool isLong = !fits(usualPixels);
    number->setFont(skinFont(fits(largePixels) ? largePixels : isLong ? smallPixels : usualPixels, !isLong));
    number->setText(isLong ? breakableAnywhere(text) : leftToRight(text));
    number->setVisible(!text.isEmpty());
}

void CallNotice::takePlace()
{
    const QRect whole = parentWidget()->rect();
    const int wanted = layout()->totalHeightForWidth(whole.width());
    const int height = std::min(wanted, whole.height() - rowsHeight);
    setGeometry(0, whole.height() - height, whole.width(), height);
}

bool CallNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        takePlace();
    return QFrame::eventFilter(watched, event);
}

void CallNotice::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), ZSkinService::color(ZSkinService::HeadingColor));
    painter.fillRect(0, 0, width(), ZSkinService::AccentHeight, ZSkinService::color(ZSkinService::AccentColor));
}

} // namespace host
