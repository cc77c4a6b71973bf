// The model behind every call-meter screen.
#pragma once

#include "classname.h"

#include <QtCore/QObject>
#include <QtCore/QString>

struct TAPI_CallTime;

/// Turns the telephone's counters into texts that are ready to show, and passes resets on. Every getter asks the
/// telephone afresh; a failed query gives a neutral text, never an error. Each screen makes an instance of its own
/// and deletes it. GUI thread only.
class PHONE_UI_RecentCallMeter : public QObject
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    PHONE_UI_RecentCallMeter();
    virtual ~PHONE_UI_RecentCallMeter();

    /// Times as hours:minutes:seconds, two digits each, hours from 100 on without any padding; "00:00:00" when the
    /// query fails.
    QString getLastCallTimes();
    QString getDialedCallsTimes();
    QString getAnsweredCallsTimes();
    QString getAllCallsTimes();
    QString getLifeTimeCallsTimes();

    /// Zero the matching counter; a failure is not reported.
    void resetDialedCallsTimer();
    void resetAnsweredCallsTimer();
    void resetAllCallsTimer();
    /// Zeroes all counters of the telephone's call log in one operation; a failure is traced.
    void resetAll();

private:
    struct DataTimeSession {
        quint8 sessionId; // set by the refresh that fills the record
        QString apn;
        QString time;
    };
    struct DataVolumeSession {
        quint8 sessionId; // set by the refresh that fills the record
        QString apn;
        QString sent;
        QString received;
        QString total;
    };
    struct DataVolumes {
        QString sent;
        QString received;
        QString total;
    };
    static constexpr int sessionCount = 3; // the platform keeps the three most recent data sessions

    QString callTimeText(int result, const TAPI_CallTime &time);
    QString formatTimeString(QString &text);

    DataTimeSession recentDataTimes[sessionCount];
    QString allDataTime;
    DataVolumeSession recentDataVolumes[sessionCount];
    DataVolumes allDataVolumes;
};
