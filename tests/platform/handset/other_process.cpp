// A second process for the tests.
//   handset_other_process calls DIRECTORY SEED   makes calls until it is killed; a line for each finished one
//   handset_other_process hold DIRECTORY [USER]  says "holding", and holds the directory until its input ends; as the
//                                                user with that number, or says "not permitted"
//   handset_other_process leave DIRECTORY         installs the telephone, makes a call of 9 s, and leaves main() with the
//                                                call still on the line
// A directory that cannot be opened as expected is a line "error ..." or "notice ..." and exit code 1.
#include "Clock.h"
#include "Handset.h"
#include "SimulatedTelephone.h"
#include "Status.h"

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <random>
#include <utility>

#include <grp.h>
#include <unistd.h>

using namespace handset;

namespace {

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
            return phone.hangUp() == Success && report(text, 0);
        if ((kind == 0 ? phone.answer() : phone.remoteAnswer()) != Success)
            return false;
        for (int parts = pick(4); parts > 0; --parts) {
            clock.advance(pick(100000));
            if (phone.checkpoint() != Success)
                return false;
        }
        clock.advance(pick(100000));
        const qint64 duration = phone.connectedMs();
        return phone.hangUp() == Success && report(text, duration);
    }

private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }

    // One write, so that the reader never sees a part of a line that was not finished.
    static bool report(const QString &number, qint64 duration)
    {
        const QByteArray line = number.toLatin1() + ' ' + QByteArray::number(duration) + '\n';
        return ::write(STDOUT_FILENO, line.constData(), static_cast<std::size_t>(line.size())) == line.size();
    }

    simulated::SimulatedTelephone &phone;
    ManualClock &clock;
    std::mt19937 random;
};

int makeCalls(simulated::SimulatedTelephone &phone, ManualClock &clock, unsigned seed)
{
    Caller caller(phone, clock, seed);
    // The seed comes first in the number, so that no two processes of a test use the same one.
    for (unsigned count = 0; caller.makeCall(seed * 10000 + count); ++count) {
    }
    std::printf("error a call failed\n");
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
    return makeCalls(*phone, *clock, arguments.value(3).toUInt());
}
