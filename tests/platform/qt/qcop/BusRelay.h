// A way to the bus on which a word can be held back.
#pragma once

#include "qt/qcop/BusSocket.h"

#include <QtCore/QTemporaryDir>

#include <atomic>
#include <thread>

/// Passes on what a program, over one connection at a time, and the bus at `bus` say to each other. What the program
/// says from `word` on waits until release().
class BusRelay
{
public:
    BusRelay(const QString &bus, const QByteArray &word, Door kind = Door::File);
    ~BusRelay();
    Q_DISABLE_COPY_MOVE(BusRelay)

    QString address() const { return addressOf(door); }
    /// How many connections there have been.
    int callers() const { return served; }
    bool isHolding() const { return holding; }
    void release() { released = true; }
    /// From then on it takes a rest after each 64 KiB or less of the program's.
    void tire() { tired = true; }

private:
    void run();
    void serve(int program, int bus);
    bool passOn(int from, int to, bool isProgram);

    QTemporaryDir folder;
    const QByteArray heldWord;
    const QString bus;
    const int door;
    std::atomic<int> served = 0;
    std::atomic<bool> holding = false;
    std::atomic<bool> released = false;
    std::atomic<bool> tired = false;
    std::atomic<bool> ended = false;
    std::thread porter;
};
