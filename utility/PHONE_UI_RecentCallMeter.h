// The model behind every call-meter screen.
#pragma once

#include "qt/classname.h"

#include <QtCore/QObject>
#include <QtCore/QString>

struct TAPI_CallTime;

/// Turns the handset's counters into texts that are ready to show, and passes resets on. Every getter asks the
/// handset afresh; a failed query gives a neutral text, never an error. Each screen makes an instance of its own
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
    /// Zeroes all counters of the handset's call log in one operation; a failure is traced.
    void resetAll();

    /// Amounts as the handset's own text, without a unit; "0.00" when the query fails.
    QString getCreditAvailable();
    /// year:month:day without padding; "2000/00/00" when the query fails.
    QString getExpirationDate();
    QString getLastDeposit();
    QString getLastCallCost();
    QString getDialedCallsCost();
    QString getAnsweredCallsCost();
    QString getAllCallsCost();

    /// Zero the matching cost; a failure is traced.
    void resetAllCallCosts();
    void resetDialedCallCosts();
    void resetAnsweredCallCosts();

    /// Ask the handset once and keep the texts for the accessors below; a failed query leaves the defaults
    /// ("00:00:00", "0 B", a null access point name), never the figures of an earlier one.
    void getRDT();
    void getADT();
    void getRDV();
    void getADV();

    /// Times and access point names of the three most recent data sessions, as getRDT() left them.
    QString getRDT_Session1();
    QString getRDT_Session2();
    QString getRDT_Session3();
    QString getRDT_Session1_Apn();
    QString getRDT_Session2_Apn();
    QString getRDT_Session3_Apn();
    /// The time of all data sessions, as getADT() left it; the text that is kept is padded in place.
    QString getADT_Sessions();

    /// Volumes ("%1 B") and access point names of the three most recent data sessions, as getRDV() left them.
    QString getRDV_Session1_Sent();
    QString getRDV_Session1_Received();
    QString getRDV_Session1_Total();
    QString getRDV_Session2_Sent();
    QString getRDV_Session2_Received();
    QString getRDV_Session2_Total();
    QString getRDV_Session3_Sent();
    QString getRDV_Session3_Received();
    QString getRDV_Session3_Total();
    QString getRDV_Session1_Apn();
    QString getRDV_Session2_Apn();
    QString getRDV_Session3_Apn();
    /// Volumes of all data sessions, as getADV() left them.
    QString getADV_Sessions_Sent();
    QString getADV_Sessions_Received();
    QString getADV_Sessions_Total();

    /// Zero the counters of all data sessions; a failure of the volume's is traced, one of the timer's is not.
    void resetAllDataSessionsTimer();
    void resetAllDataSessionsVolume();

    /// The display text of a currency code, or of "units"; a code that is not known comes back as it is.
    QString TranslateCurrency(QString code);
    /// The display text of the unit that costs are counted in; null when the settings cannot be read.
    QString getCurrencyUnit();

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
