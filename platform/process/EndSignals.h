// The signals by which the system, a shell or a terminal asks a program to end.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

namespace process {

/// Makes sure that standard input, output and error are open: what is opened later must not get one of their numbers
/// and be printed to. In place of the missing output comes one that takes nothing. A reader of the output that goes
/// is an error when it is written to, not the end of the program.
void guardStandardStreams();

/// Listens for SIGTERM, SIGINT and SIGHUP while it is there, so that what runs is written before the program ends. The
/// second one of a kind ends the program at once, as it does without a listener. One that the program was started with
/// as ignored stays so (nohup). One object at a time, in the thread of the application object.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;

    /// Whether one has come, even if the event loop has not got to asked() yet.
    bool haveCome() const;

signals:
    /// One of them has come. Said from the event loop.
    void asked();

private:
    QSocketNotifier notifier;
};

} // namespace process
