// Another process on a state directory, which does what it is told.
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QStringList>

#include <algorithm>

#include <csignal>

#include <sys/types.h>

namespace handset::test {

/// Runs handset_other_process in its mode "hold"; the words are in other_process.cpp (Obedience).
class OtherProcess
{
public:
    explicit OtherProcess(const QString &directory, const QStringList &user = {})
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/handset_other_process"),
                      QStringList{QStringLiteral("hold"), directory} + user);
    }
    ~OtherProcess() { kill(); }

    /// "holding", or why it does not.
    QByteArray firstLine()
    {
        while (!process.canReadLine() && process.waitForReadyRead(60000)) {
        }
        return process.readLine().trimmed();
    }
    /// What it answers, a line.
    QByteArray ask(const QByteArray &question)
    {
        process.write(question + '\n');
        return firstLine();
    }
    /// Whether it has that file open now.
    bool hasOpen(const QString &file) const
    {
        const QDir open(QStringLiteral("/proc/%1/fd").arg(process.processId()));
        const QFileInfoList all = open.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        return std::any_of(all.begin(), all.end(), [&](const QFileInfo &one) {
            return one.symLinkTarget() == QFileInfo(file).canonicalFilePath();
        });
    }
    /// It does nothing at all until resume(), whatever its timers say.
    void pause() const { ::kill(static_cast<pid_t>(process.processId()), SIGSTOP); }
    void resume() const { ::kill(static_cast<pid_t>(process.processId()), SIGCONT); }
    /// As a crash ends it.
    void kill()
    {
        process.kill();
        process.waitForFinished(60'000);
    }
    /// As a window that is closed.
    void close()
    {
        process.closeWriteChannel();
        process.waitForFinished(60'000);
    }

private:
    QProcess process;
};

} // namespace handset::test
