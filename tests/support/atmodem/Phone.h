// What stands behind the AT commands: a phone with a SIM card, a network, calls and data contexts. A test plays the
// network and the people at the other end.
#pragma once

#include "support/atmodem/Sim.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QTimer>

#include <map>

namespace atmodem {

/// States have the numbers that +CLCC gives them.
enum class CallState { Active = 0, Held = 1, Dialing = 2, Alerting = 3, Incoming = 4, Waiting = 5 };
enum class Direction { Dialed = 0, Received = 1 };
enum class End { Running, HungUpHere, HungUpThere, Busy, NoCarrier, MaximumReached };

/// What the phone itself knows of a call. Times are milliseconds of the boot clock, -1 for what has not happened.
struct CallRecord {
    Direction direction = Direction::Dialed;
    QByteArray number;
    qint64 begunMs = -1;
    qint64 connectedMs = -1;
    qint64 endedMs = -1;
    unsigned units = 0;
    End end = End::Running;

    /// How long the two were connected, up to now for a running call; 0 when they never were.
    qint64 durationMs() const;
};

struct PhoneCall {
    int index = 0; ///< as +CLCC and +CHLD number it, from 1
    CallState state = CallState::Dialing;
    bool isInConference = false;
    qsizetype record = 0;
};

/// What becomes of a dialed call.
enum class Dialed {
    Led,       ///< the test says, after "alerting"
    Answered,  ///< it is answered at once
    Busy,      ///< dialing is answered with "BUSY"
    NoCarrier, ///< dialing is answered with "NO CARRIER": the network refuses it
};

/// As +CREG numbers it.
enum class Registration { None = 0, Home = 1, Searching = 2, Denied = 3, Roaming = 5 };

struct DataContext {
    QByteArray type = "IP";
    QByteArray accessPoint;
    bool isActive = false;
};

/// What a port with a daemon behind it is told of without having asked.
class PhoneListener
{
public:
    virtual ~PhoneListener() = default;
    virtual void rang(const QByteArray &number) = 0;
    virtual void callWaits(const QByteArray &number) = 0;
    virtual void callEnded(End end) = 0;
    virtual void meterChanged(unsigned units) = 0;
    virtual void maximumIsNear() = 0;
    virtual void registrationChanged() = 0;
    virtual void dataEnded(int context) = 0;
};

class Phone
{
public:
    Phone();

    // What the test says: the other side and the network.
    /// Somebody calls; the call waits when there is another.
    void ring(const QByteArray &number);
    /// The dialed call is answered. False when there is none.
    bool answer();
    /// The other side of the newest call that is not held hangs up, or gives up ringing. False when there is none.
    bool hangUpThere();
    /// Likewise, of the call with this number.
    bool hangUpThere(const QByteArray &number);
    /// All that are there, held ones too.
    void hangUpAllThere();
    /// The dialed call meets a busy line, or the network ends it. False when there is none.
    bool refuse(End how);
    /// Charges units to the newest connected call, and to the card. Ends it when the card's maximum is reached.
    bool tick(unsigned units);
    void setRegistration(Registration state);
    /// The network ends all data contexts.
    void endData();
    /// All calls and data contexts end, and the phone is off.
    void losePower();

    // What the owner of the phone does, by AT commands.
    /// False when the network or the card's maximum do not allow it. A call that is refused at once is a record.
    bool dial(const QByteArray &number);
    /// Takes the incoming call. False when none rings.
    bool accept();
    /// Ends what rings, is dialed or is active, not what is held or waits. False when there is none.
    bool hangUpHere();
    /// As +CHLD; false when it does not apply.
    bool hold(const QByteArray &how);
    bool setDataActive(int context, bool isActive);

    QList<PhoneCall> calls() const { return callList; }
    const CallRecord &recordOf(const PhoneCall &call) const { return recordList[call.record]; }
    /// Of all calls since the start, in their order.
    QList<CallRecord> records() const { return recordList; }
    Registration registration() const { return registrationState; }
    /// The meter of the current call, or of the last one.
    unsigned callMeter() const { return currentUnits; }

    Sim sim;
    Dialed dialed = Dialed::Led;
    bool isOn = false;         ///< as +CFUN says
    bool isAttached = true;    ///< to packet data
    bool isMeterPushed = true; ///< false: the network is between two of its reports, which may lie 10 s apart
    unsigned warningUnits = 3; ///< so many before the maximum, the phone warns
    std::map<int, DataContext> contexts;
    QList<PhoneListener *> listeners; ///< not owned

private:
    PhoneCall *find(std::initializer_list<CallState> states);
    PhoneCall &add(Direction direction, const QByteArray &number, CallState state);
    void connect(PhoneCall &call);
    void finish(int index, End end);
    void endSilently(int index, End end);
    bool finishAll(std::initializer_list<CallState> states, End end);
    bool holdActive();
    bool swapOrAccept();
    bool separate(int index);
    void ringAgain();
    void goOnDialing();

    QList<PhoneCall> callList;
    QList<CallRecord> recordList;
    Registration registrationState = Registration::Home;
    unsigned currentUnits = 0;
    bool hasWarned = false;
    QTimer ringing;
};

} // namespace atmodem
