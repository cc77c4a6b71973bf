// The simulated telephone: a line that is driven by hand over the call log.
#pragma once

#include "CallFigures.h"
#include "CallRecorder.h"
#include "Charging.h"
#include "CheckBeside.h"
#include "PacketSessions.h"
#include "SimAccess.h"
#include "SimulatedTelephone.h"

#include <QtCore/QTimer>

namespace handset::simulated {

class SimulatedHandset final : public SimulatedTelephone
{
    Q_OBJECT

public:
    /// Neither is null.
    SimulatedHandset(std::unique_ptr<calllog::CallStore> store, std::shared_ptr<Clock> clocks);
    ~SimulatedHandset() override;

    CallService *callService() override { return &figures; }
    CallLog *callLog() override { return &figures; }
    DataCalls *dataCalls() override { return &figures; }
    AdviceOfCharge *adviceOfCharge() override { return &sim; }
    PacketData *packetData() override { return &packetSessions; }
    SimSecurity *simSecurity() override { return &sim; }

    int dial(const QString &number, CallKind kind) override;
    int remoteAnswer() override;
    int ring(const QString &number) override;
    int answer() override;
    int hangUp() override;
    int addHistory(const QList<PastCall> &calls) override;
    int checkpoint() override;
    bool owesRecord() const override;

    LineState lineState() const override { return state; }
    CallKind callKind() const override { return call.kind; }
    QString number() const override { return call.number; }
    qint64 connectedMs() const override { return recorder.connectedMs(); }

    ChargingControl &charging() override { return charges; }
    SimControl &simCard() override { return sim; }
    PacketControl &packets() override { return packetSessions; }

    /// Reads what the call log keeps beside the calls; before anything else. As ChargeMeter::load().
    int load(QStringList &notices) { return meter.load(recorder, notices); }
    /// Reads the call log at `file` through while it is in use. As CheckBeside.
    void checkBeside(const QString &file, const std::function<void(const QString &)> &tell);
    /// What the call log had to tell of its opening; else the next start tells it again.
    void noticeIsTold();

private:
    sim::Tariff tariffOf(const PastCall &of) const;
    void tick();
    void figuresChanged();
    void tellChange();
    void tellWhatIsOwed();
    void runTimer();
    bool isTimeUp() const;
    int stopCall();
    int begin(LineState begun, const PastCall &begunCall);
    int connectCall(LineState from);
    int endCall();
    void setDataCallStatus(DataCalls::CallStatus status);

    std::shared_ptr<Clock> clock;
    ChargeMeter meter;
    calllog::CallRecorder recorder;
    CallFigures figures;
    Charging charges;
    SimAccess sim;
    PacketSessions packetSessions;
    QTimer timer{this}; ///< runs while a call is connected, a session runs, or something is owed
    int ticksToCheckpoint = 0;
    bool isWriteFailing = false; ///< the last checkpoint
    bool toldOwing = false;      ///< with the last changed()
    LineState state = LineState::Idle;
    PastCall call;                               ///< on the line
    std::unique_ptr<calllog::CheckBeside> check; ///< goes before the connection that it stands beside
};

} // namespace handset::simulated
