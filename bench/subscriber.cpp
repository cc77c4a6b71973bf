// kavbench_subscriber, one of the processes that a broadcast is for. Its argument is how it comes, "channel" or "plain".
// It writes a byte when it is subscribed, one for every broadcast, and ends with its input.
#include "bench/PlainSignal.h"
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>

#include <chrono>
#include <memory>

#include <unistd.h>

namespace {

using namespace std::chrono_literals;

class Subscriber final : public QObject
{
    Q_OBJECT

public:
    bool subscribeToChannel()
    {
        channel = std::make_unique<QCopChannel>(QCString("/KAV/phone"));
        connect(channel.get(), SIGNAL(received(QCString, QByteArray)), this, SLOT(take()));
        return QCopBus::instance()->waitFor(5s);
    }

    bool subscribeToPlain()
    {
        return QDBusConnection::sessionBus().connect(QString(), QLatin1StringView(bench::plainPath),
                                                     QLatin1StringView(bench::plainInterface),
                                                     QLatin1StringView(bench::plainMember), this, SLOT(take()));
    }

public slots:
    void take()
    {
        if (::write(STDOUT_FILENO, "+", 1) != 1)
            QCoreApplication::exit(1);
    }

private:
    std::unique_ptr<QCopChannel> channel;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Subscriber subscriber;
    const bool isPlain = QCoreApplication::arguments().value(1) == QLatin1StringView("plain");
    if (!(isPlain ? subscriber.subscribeToPlain() : subscriber.subscribeToChannel()))
        return 1;
    // The bus has acknowledged the subscription when it answers.
    QDBusConnection::sessionBus().interface()->call(QStringLiteral("GetId"));
    subscriber.take();
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    return QCoreApplication::exec();
}

#include "subscriber.moc"
