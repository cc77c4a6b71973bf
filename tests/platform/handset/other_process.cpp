// A second process for the tests.
//   handset_other_process share DIRECTORY SEED CLOCK
//                                                makes calls and packet-data sessions while it records, asks, resets and
//                                                sets while another does, by the clock in that file, until it is
//                                                killed; a line for each that is finished, one that begins with '~'
//                                                for each checkpoint, and three kinds for resets (resetOnce)
//   handset_other_process hold DIRECTORY [USER]  says "holding", and does what the lines say that it reads (Obedience)
//                                                until its input ends; as the user with that number, or says "not
//                                                permitted"
//   handset_other_process leave DIRECTORY        installs the handset, makes a call of 9 s, and leaves main()
//                                                with the call still on the line
//   handset_other_process leave-session DIRECTORY
//                                                the same with a packet-data session, which begins when the session
//                                                bus is there to tell of it
// A directory that cannot be opened as expected is a line "error ..." or "notice ..." and exit code 1.
#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/SharedClock.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"
#include "simulated/SimulatedHandset.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <chrono>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <memory>
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

// Nothing is owed when it returns.
bool isOver(simulated::SimulatedHandset &phone, int status)
{
    while (phone.owesRecord() && phone.checkpoint() != Success) {
    }
    return status == Success;
}

bool makeCall(simulated::SimulatedHandset &phone, test::SharedClock &clock, std::mt19937 &random, unsigned number)
{
    const QString text = QString::number(number);
    const bool isDialed = pick(random, 2) == 0;
    const int begun =
        isDialed ? phone.dial(text, pick(random, 3) == 0 ? CallKind::Data : CallKind::Voice) : phone.ring(text);
    const bool nobodyAnswers = pick(random, 5) == 0;
    if (begun != Success || nobodyAnswers || (isDialed ? phone.remoteAnswer() : phone.answer()) != Success)
        return isOver(phone, phone.hangUp()) && (!nobodyAnswers || begun != Success || report(text.toLatin1(), 0));
    for (int parts = pick(random, 5); parts > 0; --parts) {
        clock.advance(pick(random, 5000));
        if (phone.checkpoint() == Success)
            report('~' + text.toLatin1(), phone.connectedMs());
    }
    clock.advance(pick(random, 5000));
    const qint64 duration = phone.connectedMs();
    return isOver(phone, phone.hangUp()) && report(text.toLatin1(), duration);
}

// The rates are in the access point's name, so that the reader can tell what a duration comes to.
bool makeSession(simulated::SimulatedHandset &phone, test::SharedClock &clock, std::mt19937 &random,
                 unsigned number)
{
    const int sent = pick(random, 1'000'000);
    const int received = pick(random, 1'000'000);
    const QByteArray apn =
        QByteArray::number(number) + '-' + QByteArray::number(sent) + '-' + QByteArray::number(received);
    if (phone.packets().startSession(apn, static_cast<quint32>(sent), static_cast<quint32>(received)) != Success)
        return true; // the log is in use
    qint64 duration = 0;
    const auto pass = [&] {
        const int ms = pick(random, 5000);
        clock.advance(ms);
        duration += ms;
    };
    for (int parts = pick(random, 5); parts > 0; --parts) {
        pass();
        if (phone.checkpoint() == Success)
            report('~' + apn, duration);
    }
    pass();
    return isOver(phone, phone.packets().stopSession()) && report(apn, duration);
}

// A log that is in use may be busy for a second: that is no failure.
bool isAnswer(int status)
{
    return status == Success || status == StorageFailed;
}

// A line with the clock before it, '<' and the name in front, and one after it: '>' where it has reset, '=' where not.
template <typename Reset>
int resetOnce(const QByteArray &name, const test::SharedClock &clock, Reset reset)
{
    report('<' + name, clock.monotonicMs());
    const int status = reset();
    report((status == Success ? '>' : '=') + name, clock.monotonicMs());
    return status;
}

int share(Handset &handset, simulated::SimulatedHandset &phone, test::SharedClock &clock, unsigned seed)
{
    std::mt19937 random(seed);
    CallTime time;
    QByteArray text;
    for (unsigned count = 0;; ++count) {
        // Others want to write, too: SQLite gives up after a second.
        ::usleep(static_cast<useconds_t>(pick(random, 5000)));
        if (!phone.isRecording()) // looks whether another still does
            QMetaObject::invokeMethod(phone.findChild<QTimer *>(), "timeout");
        if (phone.isRecording()) {
            // The seed comes first in the number, so that no two processes of a test use the same one.
            const unsigned number = seed * 10000 + count;
            const bool isPaid = phone.charging()->account() ||
                                phone.charging()->topUp(QStringLiteral("16000000"), {2030, 1, 1}) == Success;
            const auto make = pick(random, 3) == 0 ? makeSession : makeCall;
            if (isPaid && !make(phone, clock, random, number))
                return 1;
            continue;
        }
        int status = Success;
        switch (pick(random, 6)) {
        case 0:
            status = resetOnce("time", clock, [&] { return handset.callLog()->resetDialedCallsTime(); });
            break;
        case 1:
            status = handset.adviceOfCharge()->setMeterMaximum(QString::number(16'000'000 + pick(random, 9)));
            break;
        case 2:
            status = resetOnce("cost", clock, [&] { return handset.callLog()->resetDialedCallsCost(); });
            break;
        case 3:
            status = handset.callLog()->allCallsCost(text);
            break;
        default:
            status = handset.callLog()->lastCallTime(time);
        }
        if (!isAnswer(status))
            return 1;
    }
}

/// What a test asks this process to do, a line each, and the answers, a line each.
class Obedience
{
public:
    Obedience(std::shared_ptr<Handset> handset, simulated::SimulatedHandset &driven, ManualClock &moved)
        : opened(std::move(handset))
        , roles(*opened)
        , phone(driven)
        , clock(moved)
    {
        QObject::connect(&phone, &simulated::SimulatedHandset::changed, &phone, [this] { ++changes; });
    }

    QString answer(const QString &line)
    {
        const QStringList words = line.split(QLatin1Char(' '));
        const QString word = words.value(1);
        const std::initializer_list<std::pair<const char *, std::function<QString()>>> commands{
            {"recording", [&] { return phone.isRecording() ? QStringLiteral("yes") : QStringLiteral("no"); }},
            {"advance", [&] { return clock.advance(word.toLongLong()), QString::number(0); }},
            {"wall", [&] { return clock.setWallMs(word.toLongLong()), QString::number(0); }},
            {"reboot", [&] { return clock.reboot(word.toLongLong()), QString::number(0); }},
            {"times", [&] { return times(); }},
            {"costs", [&] { return costs(); }},
            {"sessions", [&] { return sessions(); }},
            {"line", [&] { return QStringLiteral("%1 %2").arg(int(phone.lineState())).arg(phone.connectedMs()); }},
            {"dial", [&] { return number(phone.dial(word, CallKind::Voice)); }},
            {"dial-data", [&] { return number(phone.dial(word, CallKind::Data)); }},
            {"connect", [&] { return number(phone.remoteAnswer()); }},
            {"hang-up", [&] { return number(phone.hangUp()); }},
            {"checkpoint", [&] { return number(phone.checkpoint()); }},
            {"start-session", [&] { return number(phone.packets().startSession("x", 10, 20)); }},
            {"reset-dialed", [&] { return number(roles.callLog()->resetDialedCallsTime()); }},
            {"reset-all", [&] { return number(roles.callLog()->resetAll()); }},
            {"reset-bytes", [&] { return number(roles.packetData()->resetTotalBytes()); }},
            {"limit", [&] { return number(roles.adviceOfCharge()->setMeterMaximum(word)); }},
            {"guard", [&] { return number(phone.simCard().setUpdateRule(59, 4)); }},
            {"pay",
             [&] {
                 return number(phone.charging()->topUp(word, {2030, 1, 1}));
             }},
            {"pin", [&] { return pin(word); }},
            {"pin-status", [&] { return pinStatus(); }},
            {"install", [&] { return installOnBus(); }},
            {"follows",
             [&] { return number(QCoreApplication::instance()->findChildren<QCopChannel *>().size()); }},
            {"changes", [&] { return number(std::exchange(changes, 0)); }},
        };
        for (const auto &[name, command] : commands)
            if (words.constFirst() == QLatin1String(name))
                return command();
        return QStringLiteral("what?");
    }

private:
    static QString number(qint64 value) { return QString::number(value); }
    static QString inSeconds(const CallTime &time)
    {
        return number((qint64{time.hours} * 60 + time.minutes) * 60 + time.seconds);
    }
    QString times()
    {
        QStringList told;
        CallTime time;
        CallLog &log = *roles.callLog();
        for (const auto ask : {&CallLog::lastCallTime, &CallLog::dialedCallsTime, &CallLog::answeredCallsTime,
                               &CallLog::lifetimeCallsTime})
            told << ((log.*ask)(time) == Success ? inSeconds(time) : QStringLiteral("?"));
        return told.join(QLatin1Char(' '));
    }
    QString costs()
    {
        QByteArray last;
        QByteArray all;
        QByteArray credit("none");
        if (roles.callService()->lastCallCost(last) != Success || roles.callLog()->allCallsCost(all) != Success)
            return QStringLiteral("?");
        roles.callService()->remainingCredit(credit);
        return QString::fromLatin1(last + ' ' + all + ' ' + credit);
    }
    QString sessions()
    {
        DataSessions all;
        CallTime time;
        quint32 total = 0;
        quint32 received = 0;
        quint32 sent = 0;
        PacketData &packets = *roles.packetData();
        if (packets.sessions(all) != Success || packets.totalDuration(time) != Success ||
            packets.totalBytes(total, received, sent) != Success)
            return QStringLiteral("?");
        return QStringLiteral("%1 %2 %3 %4")
            .arg(all.count)
            .arg(inSeconds(all.records[0].duration), inSeconds(time))
            .arg(total);
    }
    QString pin(const QString &digits)
    {
        bool accepted = false;
        const int status = roles.simSecurity()->verifyPin(SimSecurity::Pin2, digits.toLatin1(), accepted);
        return QStringLiteral("%1 %2").arg(status).arg(int(accepted));
    }
    QString pinStatus()
    {
        quint32 status = 0;
        int tries = 0;
        const bool told = roles.simSecurity()->pinStatus(SimSecurity::Pin2, status) == Success &&
                          roles.simSecurity()->triesLeft(SimSecurity::Pin2, tries) == Success;
        return told ? QStringLiteral("%1 %2").arg(status).arg(tries) : QStringLiteral("?");
    }

    // Where changes are announced, and where those of others are followed a little later.
    QString installOnBus()
    {
        QCopBus::instance()->receive();
        const bool isThere = QCopBus::instance()->waitFor(std::chrono::minutes(1));
        install(opened);
        return isThere ? number(0) : QStringLiteral("no bus");
    }

    std::shared_ptr<Handset> opened;
    Handset &roles;
    simulated::SimulatedHandset &phone;
    ManualClock &clock;
    int changes = 0; ///< that were signalled since it was asked last
};

// With an event loop of its own, as a window has it, until there is nothing more to read.
int hold(const Opened opened, simulated::SimulatedHandset &phone, ManualClock &clock)
{
    Obedience obedience(opened.handset, phone, clock);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QByteArray unread;
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
        QByteArray bytes(4096, Qt::Uninitialized);
        const ssize_t length = ::read(STDIN_FILENO, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (length <= 0)
            return QCoreApplication::quit();
        unread += bytes.first(length);
        for (qsizetype end = unread.indexOf('\n'); end >= 0; end = unread.indexOf('\n')) {
            std::printf("%s\n", qUtf8Printable(obedience.answer(QString::fromUtf8(unread.first(end)))));
            unread.remove(0, end + 1);
        }
        std::fflush(stdout);
    });
    std::printf("holding\n");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

// Root's rights over files go with it.
bool become(uid_t user)
{
    const bool leavesGroups =
        ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 && ::setresgid(user, user, user) == 0);
    return leavesGroups && ::setresuid(user, user, user) == 0;
}

int leave(const Opened opened, simulated::SimulatedHandset &phone, ManualClock &clock)
{
    install(opened.handset);
    if (phone.dial(QStringLiteral("9"), CallKind::Voice) != Success || phone.remoteAnswer() != Success)
        return 1;
    clock.advance(9000);
    return 0;
}

int leaveSession(const Opened opened, simulated::SimulatedHandset &phone, ManualClock &clock)
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
    const auto shared = std::make_shared<test::SharedClock>(arguments.value(4));
    const bool isShared = arguments.value(1) == QLatin1String("share");
    Settings settings;
    settings.stateDirectory = arguments.value(2);
    settings.clock = isShared ? std::shared_ptr<Clock>(shared) : clock;
    Opened opened = open(settings);
    auto *phone = dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get());
    if (!phone || !opened.notice.isEmpty()) {
        std::printf("%s %s\n", phone ? "notice" : "error", qUtf8Printable(phone ? opened.notice : opened.error));
        return 1;
    }
    if (isShared)
        return share(*opened.handset, *phone, *shared, arguments.value(3).toUInt());
    if (arguments.value(1) == QLatin1String("hold"))
        return hold(std::exchange(opened, {}), *phone, *clock);
    if (arguments.value(1) == QLatin1String("leave"))
        return leave(std::exchange(opened, {}), *phone, *clock);
    return leaveSession(std::exchange(opened, {}), *phone, *clock);
}
