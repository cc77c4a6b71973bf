// A broadcast to many processes, until each of them has it.
#include "bench/Groups.h"
#include "bench/PlainSignal.h"
#include "qt/QCopChannel.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <array>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr int patienceMs = 30'000;
constexpr int broadcasts = 50; // of a repetition

/// Processes that write a byte for every broadcast that they have got.
class Subscribers
{
public:
    Subscribers(const char *how, int count)
    {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return;
        const int writing = ends[1];
        for (int i = 0; i < count; ++i) {
            QProcess &process = *processes.emplace_back(std::make_unique<QProcess>());
            process.setChildProcessModifier([writing] { ::dup2(writing, STDOUT_FILENO); });
            process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kavbench_subscriber"),
                          {QString::fromLatin1(how)});
        }
        // Each is ready.
        isReady = haveWritten();
    }

    ~Subscribers()
    {
        for (const auto &process : processes)
            process->closeWriteChannel();
        for (const auto &process : processes)
            process->waitForFinished();
        ::close(ends[0]);
        ::close(ends[1]);
    }
    Subscribers(const Subscribers &) = delete;
    Subscribers &operator=(const Subscribers &) = delete;

    /// Waits for a byte from each.
    bool haveWritten()
    {
        std::array<char, 64> bytes{};
        for (std::size_t missing = processes.size(); missing > 0;) {
            pollfd readable{ends[0], POLLIN, 0};
            if (::poll(&readable, 1, patienceMs) != 1)
                return false;
            const ssize_t got = ::read(ends[0], bytes.data(), std::min(missing, bytes.size()));
            if (got <= 0)
                return false;
            missing -= static_cast<std::size_t>(got);
        }
        return true;
    }

    bool isReady = false;

private:
    std::array<int, 2> ends{-1, -1};
    std::vector<std::unique_ptr<QProcess>> processes;
};

bool sendOnChannel()
{
    return QCopChannel::send("/KAV/phone", "/KAV/phone/RecentCall/Update");
}

bool sendPlain()
{
    const QDBusMessage message = QDBusMessage::createSignal(
        QLatin1StringView(plainPath), QLatin1StringView(plainInterface), QLatin1StringView(plainMember));
    return QDBusConnection::sessionBus().send(message);
}

Side side(const char *label, const char *how, int count, bool (*send)())
{
    return {label, [=](benchmark::State &state) {
                Subscribers subscribers(how, count);
                if (!subscribers.isReady)
                    return state.SkipWithError("the subscribers do not come up");
                for (auto _ : state) {
                    if (!send() || !subscribers.haveWritten())
                        return state.SkipWithError("a subscriber does not get a broadcast");
                }
            }};
}

Comparison toSubscribers(int count)
{
    Comparison row;
    row.name = "A broadcast to " + std::to_string(count) + " processes";
    row.ours = side("channel", "channel", count, &sendOnChannel);
    row.beside = {{side("Qt D-Bus signal", "plain", count, &sendPlain)}};
    row.clock = Clock::Wall;
    row.iterations = broadcasts;
    row.countsInstructions = false;
    return row;
}

} // namespace

std::vector<Comparison> fanOutComparisons()
{
    return {toSubscribers(10), toSubscribers(50)};
}

} // namespace bench
