// kavbench_sender, the other process of the broadcasts that are measured. A line on its input is what to send and how
// often, "channel 1" or "plain 10000"; it says "ready" when it is on the bus, and ends with its input.
#include "bench/PlainSignal.h"
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

using namespace std::chrono_literals;

// The number of the message, so that the other side sees what is missing.
QByteArray numbered(int number)
{
    return QByteArray::number(number);
}

void sendOnChannel(int number)
{
    QCopChannel::send("/KAV/phone", "/KAV/phone/RecentCall/Update", numbered(number));
}

void sendPlain(int number)
{
    QDBusMessage message =
        QDBusMessage::createSignal(QLatin1StringView(bench::plainPath), QLatin1StringView(bench::plainInterface),
                                   QLatin1StringView(bench::plainMember));
    message << numbered(number);
    QDBusConnection::sessionBus().send(message);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCopBus *bus = QCopBus::instance();
    if (!bus->waitFor(5s) || !QDBusConnection::sessionBus().isConnected())
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    char how[16] = "";
    int count = 0;
    while (std::scanf("%15s %d", how, &count) == 2) {
        const bool onChannel = std::strcmp(how, "channel") == 0;
        for (int number = 0; number < count; ++number)
            onChannel ? sendOnChannel(number) : sendPlain(number);
        bus->sync(60s);
    }
    return 0;
}
