// Something at a bus address that is no bus.
#pragma once

#include "qt/qcop/BusSocket.h"

#include <QtCore/QTemporaryDir>

#include <atomic>
#include <thread>
#include <vector>

/// A socket at a bus address. Who connects gets no answer, is not even taken, or is turned away at once.
class FakeBus
{
public:
    enum Manner { Silent, Full, TurnsAway };

    explicit FakeBus(Manner manner, Door door = Door::File);
    ~FakeBus();
    Q_DISABLE_COPY_MOVE(FakeBus)

    QString address() const { return addressOf(socket); }
    bool isListening() const { return listening; }
    /// How many were turned away.
    int callers() const { return turnedAway; }

private:
    void turnAway();

    QTemporaryDir folder;
    const int socket;
    const bool listening;
    std::vector<int> waiting; // those who fill it
    std::atomic<int> turnedAway = 0;
    std::thread doorman;
};
