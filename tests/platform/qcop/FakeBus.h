// Something at a bus address that is no bus.
#pragma once

#include <QtCore/QTemporaryDir>

#include <atomic>
#include <thread>

/// A socket at a bus address. Who connects gets no answer, or is turned away at once.
class FakeBus
{
public:
    enum Manner { Silent, TurnsAway };

    explicit FakeBus(Manner manner);
    ~FakeBus();
    Q_DISABLE_COPY_MOVE(FakeBus)

    QString address() const;
    bool isListening() const { return listening; }
    /// How many were turned away.
    int callers() const { return turnedAway; }

private:
    void turnAway();

    QTemporaryDir folder;
    const int socket;
    const bool listening;
    std::atomic<int> turnedAway = 0;
    std::thread doorman;
};
