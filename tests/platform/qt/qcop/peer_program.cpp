// A process with channels of its own, led over its standard input: a command a line, an answer "= ..." to each, and
// "got ID MESSAGE DATA" for each message in between. Names and bytes are in hexadecimal digits.
#include "qt/qcop/PeerPattern.h"

#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QSocketNotifier>

#include <cstdio>

#include <sys/resource.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds busPatience = 30s;

void write(const QByteArray &line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

QByteArray bytes(const QList<QByteArray> &words, int index)
{
    return QByteArray::fromHex(words.value(index));
}

class PeerProcess
{
public:
    PeerProcess()
        : input(STDIN_FILENO, QSocketNotifier::Read)
    {
        QObject::connect(&input, &QSocketNotifier::activated, &input, [this] { read(); });
    }

    ~PeerProcess() { qDeleteAll(channels); }
    Q_DISABLE_COPY_MOVE(PeerProcess)

private:
    void read()
    {
        QByteArray piece(65536, Qt::Uninitialized);
        const ssize_t length = ::read(STDIN_FILENO, piece.data(), static_cast<size_t>(piece.size()));
        if (length <= 0) {
            input.setEnabled(false);
            QCoreApplication::quit();
            return;
        }
        pending += piece.first(length);
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            const QByteArray line = pending.first(end);
            pending.remove(0, end + 1);
            write("= " + obey(line.split(' ')));
        }
    }

    QByteArray obey(const QList<QByteArray> &words)
    {
        const QByteArray command = words.first();
        if (command == "make")
            return make(words[1].toInt(), bytes(words, 2));
        if (command == "connect")
            return yes(QCopBus::instance()->waitFor(busPatience));
        if (command == "unsubscribe") {
            delete channels.take(words[1].toInt());
            return "1";
        }
        if (command == "send")
            return yes(QCopChannel::send(bytes(words, 1), bytes(words, 2), bytes(words, 3)));
        if (command == "pattern")
            return yes(QCopChannel::send(bytes(words, 1), bytes(words, 2), peerPattern(words[3].toLongLong())));
        if (command == "burst")
            return burst(bytes(words, 1), bytes(words, 2), words[3].toInt());
        if (command == "status")
            return yes(QCopBus::instance()->isReady());
        if (command == "hold")
            return hold();
        if (command == "cycle")
            return cycle(words[1].toInt());
        return "unknown command";
    }

    static QByteArray yes(bool isTrue) { return isTrue ? "1" : "0"; }

    QByteArray make(int id, const QByteArray &channel)
    {
        auto *subscriber = new QCopChannel(channel);
        channels.insert(id, subscriber);
        QObject::connect(
            subscriber, &QCopChannel::received, subscriber, [id](const QCString &message, const QByteArray &data) {
                write("got " + QByteArray::number(id) + ' ' + message.toHex() + ' ' + peerDigest(data));
            });
        return "1";
    }

    static QByteArray burst(const QByteArray &channel, const QByteArray &prefix, int count)
    {
        bool areSent = true;
        for (int number = 0; number < count; ++number)
            areSent = QCopChannel::send(channel, prefix + QByteArray::number(number)) && areSent;
        return yes(areSent);
    }

    // Until there is more input.
    static QByteArray hold()
    {
        write("held");
        char end = 0;
        return yes(::read(STDIN_FILENO, &end, 1) == 1);
    }

    static QByteArray cycle(int count)
    {
        const long before = waits();
        for (int i = 0; i < count; ++i)
            delete new QCopChannel("/KAV/phone");
        return QByteArray::number(qlonglong(waits() - before));
    }

    // How often this thread has given up the processor of its own accord. When others take it away, that is no wait.
    static long waits()
    {
        rusage usage = {};
        if (::getrusage(RUSAGE_THREAD, &usage) != 0)
            qFatal("the waits cannot be counted");
        return usage.ru_nvcsw;
    }

    QSocketNotifier input;
    QByteArray pending;
    QHash<int, QCopChannel *> channels;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const PeerProcess process;
    return QCoreApplication::exec();
}
