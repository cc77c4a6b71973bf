// A telephone with a modem, from outside: it dials and hangs up, counts its calls, and can be found by "auto". Its modem is
// played: it is there when EXAMPLE_MODEM names it, and every call is answered after a second. In its place stands
// whatever you speak to.
#include "handset/Backend.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/LineControl.h"
#include "handset/Status.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace {

using namespace handset;

QString modemName()
{
    return qEnvironmentVariable("EXAMPLE_MODEM");
}

class ModemHandset : public QObject, public Handset, private CallService, private CallLog, private LineControl
{
    Q_OBJECT

public:
    ModemHandset()
    {
        answered.setSingleShot(true);
        connect(&answered, &QTimer::timeout, this, [this] { move(CallPhase::Active); });
    }

    // What it has. Roles that are not here are null, and their functions answer NotAvailable.
    CallService *callService() override { return this; }
    CallLog *callLog() override { return this; }
    DataCalls *dataCalls() override { return nullptr; }
    LineControl *lineControl() override { return this; }
    void setChangeListener(const std::function<void()> &listener) override { onChange = listener; }

signals:
    /// report() is another. The host looks for a signal of this name.
    void changed();

private:
    // What the modem tells: from "dialing" over "active" to nothing.
    void move(CallPhase now)
    {
        if (now == CallPhase::Active)
            connected.start();
        if (now == CallPhase::Over && phase == CallPhase::Active) {
            lastMs = connected.elapsed();
            endedMs += lastMs;
        }
        phase = now;
        emit changed();
        if (onChange)
            onChange();
    }
    int tell(CallTime &time, qint64 ms) const
    {
        time = CallTime::fromSeconds(static_cast<quint64>(ms / 1000));
        return Success;
    }
    qint64 runningMs() const { return phase == CallPhase::Active ? connected.elapsed() : 0; }

    // CallLog and CallService: whole seconds, up to now while a call is on. What is not known is NotAvailable, no zero.
    int lastCallTime(CallTime &time) override
    {
        return tell(time, phase == CallPhase::Active ? runningMs() : lastMs);
    }
    int dialedCallsTime(CallTime &time) override { return tell(time, endedMs + runningMs()); }
    int answeredCallsTime(CallTime &time) override { return tell(time, 0); }
    int lifetimeCallsTime(CallTime &time) override { return tell(time, endedMs + runningMs()); }
    int totalCallTime(CallTime &time) override { return tell(time, endedMs + runningMs()); }
    int resetDialedCallsTime() override { return NotAvailable; }
    int resetAnsweredCallsTime() override { return NotAvailable; }
    int resetCallTime() override { return NotAvailable; }
    int resetAll() override { return NotAvailable; }
    int remainingCredit(QByteArray &) override { return NotAvailable; }
    int lastCallCost(QByteArray &) override { return NotAvailable; }
    int depositExpirationDate(Date &) override { return NotAvailable; }
    int lastDeposit(QByteArray &) override { return NotAvailable; }
    int dialedCallsCost(QByteArray &) override { return NotAvailable; }
    int answeredCallsCost(QByteArray &) override { return NotAvailable; }
    int allCallsCost(QByteArray &) override { return NotAvailable; }
    int resetDialedCallsCost() override { return NotAvailable; }
    int resetAnsweredCallsCost() override { return NotAvailable; }
    int resetAllCallsCost() override { return NotAvailable; }

    // LineControl: nothing here waits; what the modem does is told by changed().
    LineReport report() const override
    {
        LineReport now;
        now.daemon = QStringLiteral("example");
        now.hasModem = !modemName().isEmpty();
        now.modem = modemName();
        now.isRecorder = true;
        if (phase != CallPhase::Over)
            now.calls = {{QStringLiteral("1"), phase, number, runningMs()}};
        return now;
    }
    int dial(const QString &wanted) override
    {
        if (modemName().isEmpty() || phase != CallPhase::Over)
            return NotAvailable;
        number = wanted;
        answered.start(1000);
        move(CallPhase::Dialing);
        return Success;
    }
    int answer(const QString &) override { return InvalidArgument; }
    int hangUp(const QString &) override
    {
        if (phase == CallPhase::Over)
            return InvalidArgument;
        answered.stop();
        move(CallPhase::Over);
        return Success;
    }
    void setRefusalListener(const std::function<void(const QString &)> &) override {}

    QTimer answered;
    QElapsedTimer connected;
    CallPhase phase = CallPhase::Over;
    QString number;
    qint64 lastMs = 0;
    qint64 endedMs = 0;
    std::function<void()> onChange;
};

Opened openModem(const Settings &)
{
    return {std::make_shared<ModemHandset>(), {}, {}};
}

// For `--backend auto`.
bool isThere(int /*longestMs*/)
{
    return !modemName().isEmpty();
}

// For kavcallrecorder, which waits for a modem. Ours comes before the program or not at all.
Awaited awaitThere(const std::function<void()> &)
{
    return {nullptr, QStringLiteral("The example's modem does not come later.")};
}

} // namespace

KAV_HANDSET_BACKEND(openModem)
KAV_HANDSET_PRESENCE(isThere, awaitThere)

#include "ModemBackend.moc"
