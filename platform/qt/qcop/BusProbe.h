// Whether buses answer. Not a public header.
#pragma once

#include <QtCore/QByteArray>

#include <chrono>
#include <future>

/// One question to buses, asked in a thread of its own, which is left behind where nobody takes the connection or says
/// anything.
class BusProbe
{
public:
    enum class Answer {
        Given,  ///< the bus logged this process in
        Nobody, ///< nobody is there; or a program would have to be run to get there, which nobody knows the time of
        Silence
    };
    using Clock = std::chrono::steady_clock;

    /// Asks the first of the addresses, separated by ";", at which somebody takes a connection.
    static BusProbe ofBus(const QByteArray &addresses);

    /// Asks the same of a session bus, and then whoever tells there where the accessibility bus is, and that bus, as far
    /// as Qt would.
    static BusProbe ofSession(const QByteArray &addresses);

    /// Whether the bus has answered, or has been silent for as long as its thread has waited for a word.
    bool isDone() const { return bus.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }
    /// What the bus has answered until `deadline`, which is waited for at most.
    Answer answer(Clock::time_point deadline) const { return taken(bus, deadline); }
    /// The same of what ofSession() asks after it. Nobody where it asks nothing.
    Answer accessibility(Clock::time_point deadline) const { return taken(behind, deadline); }

private:
    using Future = std::shared_future<Answer>;
    using Promise = std::promise<Answer>;

    static Answer taken(const Future &future, Clock::time_point deadline);
    static BusProbe ask(const QByteArray &addresses, bool isSession);
    static void run(const QByteArray &addresses, bool isSession, Promise bus, Promise behind);

    Future bus;
    Future behind;
};
