// A second process for the tests.
//   handset_other_process calls DIRECTORY SEED   makes calls until it is killed; a line for each finished one
//   handset_other_process sessions DIRECTORY SEED
//                                                has packet-data sessions until it is killed; a line for each
//                                                checkpoint, and one that begins with '=' for each end
//   handset_other_process hold DIRECTORY [USER]  says "holding", and holds the directory until its input ends; as the
//                                                user with that number, or says "not permitted"
//   handset_other_process leave DIRECTORY        installs the telephone, makes a call of 9 s, and leaves main()
//                                                with the call still on the line
//   handset_other_process leave-session DIRECTORY
//                                                the same with a packet-data session, which begins when the session
//                                                bus is there to tell of it
// A directory that cannot be opened as expected is a line "error ..." or "notice ..." and exit code 1.
#include "Clock.h"
#include "Handset.h"
#include "SimulatedTelephone.h"
#include "Status.h"
#include "qcop/QCopBus.h"

#include <QtCore/QCoreApplication>

#include <chrono>
#include <cstdio>
#include <random>
#include <utility>

#include <grp.h>
#include <unistd.h>

using namespace handset;

namespace {

int pick(std::mt19937 &random, int count)
{
    return std::uniform_int_distribution<int>(0, count - 1)(random);
}

// One write, so that the reader never sees a part of a line that was not finished.
bool report(const QByteArray &what, qint64 duration)
{
    const QByteArray line = what + ' ' + QByteArray::number(duration) + '\n';
    return ::write(STDOUT_FILENO, line.constData(), static_cast<std::size_t>(line.size())) == line.size();
}

class Caller
{
public:
    Caller(simulated::SimulatedTelephone &telephone, ManualClock &manual, unsigned seed)
        : phone(telephone)
        , clock(manual)
        , random(seed)
    {}

    bool makeCall(unsigned number)
    {
        const QString text = QString::number(number);
        const int kind = pick(3);
        if ((kind == 0 ? phone.ring(text) : phone.dial(text, kind == 1 ? CallKind::Voice : CallKind::Data)) !=
            Success)
            return false;
        if (pick(5) == 0) // nobody answers
            return phone.hangUp() == Success && report(text.toLatin1(), 0);
        if ((kind == 0 ? phone.answer() : phone.remoteAnswer()) != Success)
            return false;
        for (int parts = pick(4); parts > 0; --parts) {
            clock.advance(pick(100000));
            if (phone.checkpoint() != Success)
                return false;
        }
        clock.advance(pick(100000));
        const qint64 duration = phone.connectedMs();
        return phone.hangUp() == Success && report(text.toLatin1(), duration);
    }

private:
    int pick(int count) { return ::pick(random, count); }

    simulated::SimulatedTelephone &phone;
    ManualClock &clock;
    std::mt19937 random;
};

int makeCalls(simulated::SimulatedTelephone &phone, ManualClock &clock, unsigned seed)
{
    if (!phone.charging().account() &&
        phone.charging().topUp(QStringLiteral("16000000"), {2030, 1, 1}) != Success) {
        std::printf("error a deposit failed\n");
        return 1;
    }
    Caller caller(phone, clock, seed);
    // The seed comes first in the number, so that no two processes of a test use the same one.
    for (unsigned count = 0; caller.makeCall(seed * 10000 + count); ++count) {
    }
    std::printf("error a call failed\n");
    return 1;
}

// The rates are in the access point's name, so that the reader can tell what a duration comes to.
bool makeSession(simulated::SimulatedTelephone &phone, ManualClock &clock, std::mt19937 &random, unsigned number)
{
    const int sent = pick(random, 1'000'000);
    const int received = pick(random, 1'000'000);
    const QByteArray apn =
        QByteArray::number(number) + '-' + QByteArray::number(sent) + '-' + QByteArray::number(received);
    if (phone.packets().startSession(apn, static_cast<quint32>(sent), static_cast<quint32>(received)) != Success)
        return false;
    qint64 duration = 0;
    const auto pass = [&] {
        const int ms = pick(random, 5000);
        clock.advance(ms);
        duration += ms;
    };
    for (int parts = pick(random, 6); parts > 0; --parts) {
        pass();
        if (phone.checkpoint() != Success || !report(apn, duration))
            return false;
    }
    pass();
    return phone.packets().stopSession() == Success && report('=' + apn, duration);
}

int makeSessions(simulated::SimulatedTelephone &phone, ManualClock &clock, unsigned seed)
{
    std::mt19937 random(seed);
    for (unsigned count = 0; makeSession(phone, clock, random, seed * 10000 + count); ++count) {
    }
    std::printf("error a session failed\n");
    return 1;
}

int hold()
{
    std::printf("holding\n");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}

// Root's rights over files go with it.
bool become(uid_t user)
{
    const bool leavesGroups =
        ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 && ::setresgid(user, user, user) == 0);
    return leavesGroups && ::setresuid(user, user, user) == 0;
}

int leave(const Opened opened, simulated::SimulatedTelephone &phone, ManualClock &clock)
{
    install(opened.handset);
    if (phone.dial(QStringLiteral("9"), CallKind::Voice) != Success || phone.remoteAnswer() != Success)
        return 1;
    clock.advance(9000);
    return 0;
}

int leaveSession(const Opened opened, simulated::SimulatedTelephone &phone, ManualClock &clock)
{
    using namespace std::chrono_literals;
    if (!QCopBus::instance()->waitFor(60s))
        return 1;
    install(opened.handset);
    if (phone.packets().startSession("x", 1, 2) != Success)
        return 1;
    clock.advance(9000);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("hold") && arguments.size() > 3 && !become(arguments[3].toUInt())) {
        std::printf("not permitted\n");
        return 1;
    }
    const auto clock = std::make_shared<ManualClock>(0);
    Settings settings;
    settings.stateDirectory = arguments.value(2);
    settings.clock = clock;
    Opened opened = open(settings);
    auto *phone = dynamic_cast<simulated::SimulatedTelephone *>(opened.handset.get());
    if (!phone || !opened.notice.isEmpty()) {
        std::printf("%s %s\n", phone ? "notice" : "error", qUtf8Printable(phone ? opened.notice : opened.error));
        return 1;
    }
    if (arguments.value(1) == QLatin1String("hold"))
        return hold();
    if (arguments.value(1) == QLatin1String("leave"))
        return leave(std::exchange(opened, {}), *phone, *clock);
    if (arguments.value(1) == QLatin1String("leave-session"))
        return leaveSession(std::exchange(opened, {}), *phone, *clock);
    if (arguments.value(1) == QLatin1String("sessions"))
        return makeSessions(*phone, *clock, arguments.value(3).toUInt());
    return makeCalls(*phone, *clock, arguments.value(3).toUInt());
}
