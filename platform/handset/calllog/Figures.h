// The telephone's roles that are answered from recorded calls.
#pragma once

#include "CallLog.h"
#include "CallRecorder.h"
#include "CallService.h"
#include "DataCalls.h"

namespace handset::calllog {

/// Whole seconds of what the recorder has in milliseconds, the fraction cut off. What calls cost is the backend's to
/// tell.
class Figures : public CallLog, public CallService, public DataCalls
{
public:
    /// `recorder` outlives this.
    explicit Figures(CallRecorder &callRecorder)
        : recorder(callRecorder)
    {}

    int lastCallTime(CallTime &time) override;
    int dialedCallsTime(CallTime &time) override;
    int answeredCallsTime(CallTime &time) override;
    int lifetimeCallsTime(CallTime &time) override;
    int resetDialedCallsTime() override;
    int resetAnsweredCallsTime() override;

    int totalCallTime(CallTime &time) override;
    int resetCallTime() override;

    int refreshTotals() override;
    int totalDuration(quint32 &seconds) override;
    int callStatus(quint8 &status) override;
    int resetTotalDuration() override;

private:
    int reset(Counter counter);
    int seconds(Counter counter, quint64 &value) const;
    int time(Counter counter, CallTime &value) const;

    CallRecorder &recorder;
};

} // namespace handset::calllog
