// An AT modem for tests: a scripted phone with a network, on a TCP port for ofonod and on abstract unix sockets for
// ModemManager.
#pragma once

#include "support/atmodem/Interpreter.h"
#include "support/atmodem/Phone.h"
#include "support/atmodem/Port.h"

#include <QtCore/QList>
#include <QtCore/QThread>

#include <memory>
#include <type_traits>

namespace atmodem {

/// Which ports the modem has.
struct Ports {
    bool hasTcp = false;
    QList<QByteArray> abstractNames;
};

/// All of it, in one thread: the ports share the phone.
class Modem
{
public:
    explicit Modem(const Ports &ports);

    int tcpPort() const;
    bool isListening() const;
    /// The modem takes in what it is told and neither answers nor reports, and goes back to answering. What it took in
    /// meanwhile stays unanswered.
    void setSilent(bool isSilent);
    /// All connections are cut, and nobody can connect until it is plugged in again. Calls end as they do when the
    /// power goes; figures of the card stay.
    void unplug();
    void plugIn();
    /// How many ports somebody has connected to.
    int connections() const;
    /// Bytes that came in on data connections.
    qint64 dataBytes() const;

    Phone phone;
    CommandLog log;

private:
    struct Line {
        Port port;
        Interpreter interpreter;
        Line(Modem &modem, const QByteArray &abstractName);
    };
    std::vector<std::unique_ptr<Line>> lines;
};

/// The modem in a thread of its own, so that a test may wait for a daemon that waits for the modem.
class AtModem
{
public:
    explicit AtModem(const Ports &ports);
    ~AtModem();
    Q_DISABLE_COPY_MOVE(AtModem)

    /// Runs `work` in the modem's thread and waits for what it returns, which must be a copy.
    template <typename Work>
    auto with(Work work)
    {
        using Result = std::invoke_result_t<Work, Modem &>;
        if constexpr (std::is_void_v<Result>) {
            QMetaObject::invokeMethod(
                &place, [&] { work(*modem); }, Qt::BlockingQueuedConnection);
        } else {
            Result result{};
            QMetaObject::invokeMethod(
                &place, [&] { result = work(*modem); }, Qt::BlockingQueuedConnection);
            return result;
        }
    }
    /// Likewise with the phone alone.
    template <typename Work>
    auto withPhone(Work work)
    {
        return with([&](Modem &all) { return work(all.phone); });
    }

    int tcpPort();
    bool isListening();
    /// What it was asked so far.
    CommandLog log();
    QList<CallRecord> records();

private:
    QThread thread;
    QObject place; ///< lives in the thread
    std::unique_ptr<Modem> modem;
};

} // namespace atmodem
