// kav_at_modem [--tcp] [NAME...]: the AT modem as a program. Says "tcp N" and "listening", and then obeys its standard
// input until that ends. NAMEs are abstract unix sockets.
#include "support/atmodem/Words.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>

#include <array>
#include <cstdio>

#include <unistd.h>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    atmodem::Ports ports;
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]) == "--tcp")
            ports.hasTcp = true;
        else
            ports.abstractNames.append(argv[i]);
    }
    atmodem::Modem modem(ports);
    if (!modem.isListening()) {
        std::fprintf(stderr, "kav_at_modem: a port is taken\n");
        return 1;
    }
    if (ports.hasTcp)
        std::printf("tcp %d\n", modem.tcpPort());
    std::puts("listening");
    std::fflush(stdout);

    QByteArray pending;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        std::array<char, 4096> buffer;
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count <= 0) {
            QCoreApplication::quit();
            return;
        }
        pending.append(buffer.data(), count);
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            std::puts(atmodem::obey(modem, pending.left(end).trimmed()).constData());
            std::fflush(stdout);
            pending.remove(0, end + 1);
        }
    });
    return QCoreApplication::exec();
}
