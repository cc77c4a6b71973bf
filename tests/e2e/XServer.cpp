#include "e2e/XServer.h"

#include <QtCore/QDeadlineTimer>

namespace {

constexpr int startMilliseconds = 60'000;

} // namespace

XServer::XServer(LastClientGoes then)
{
    const QString atReset =
        then == LastClientGoes::Ends ? QStringLiteral("-terminate") : QStringLiteral("-noreset");
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("800x760x24"), QStringLiteral("-nolisten"),
                   QStringLiteral("tcp"), atReset});
    if (!process.waitForStarted(startMilliseconds)) {
        reason = QStringLiteral("Xvfb: ") + process.errorString();
        return;
    }
    const QDeadlineTimer deadline(startMilliseconds);
    QByteArray answer;
    while (!answer.endsWith('\n') && process.state() == QProcess::Running && !deadline.hasExpired()) {
        process.waitForReadyRead(1000);
        answer += process.readAllStandardOutput();
    }
    if (answer.endsWith('\n'))
        name = QLatin1Char(':') + QString::fromLatin1(answer.trimmed());
    else
        reason = QStringLiteral("Xvfb named no display");
}

XServer::~XServer()
{
    process.terminate();
    if (!process.waitForFinished(5000))
        process.kill();
    process.waitForFinished(5000);
}
