// The phone's message client, as far as circuit-switched data calls go.
#pragma once

#include "qt/classname.h"

#include <QtCore/QObject>

/// Asks the handset about data calls. Every operation returns 0 on success, otherwise a number of
/// handset/Status.h or the backend's own; without a handset that is NotAvailable (2). GUI thread only.
class PHONE_MsgClient : public QObject
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `parent` owns the client and may be null; `name` (Latin-1, may be null) is its object name.
    explicit PHONE_MsgClient(QObject *parent, const char *name = nullptr);
    ~PHONE_MsgClient() override;

    /// Brings the handset's data-call total up to date with a running call; UTIL_GetTotalDuration() reports it.
    int getTotalByteAndConnectedDuration();
    /// Zeroes the data-call total when `confirmed`; false asks for nothing and succeeds.
    int resetTotalDuration(bool confirmed);
};
