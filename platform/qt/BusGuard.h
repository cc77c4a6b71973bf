// Qt, and D-Bus buses that do not answer.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <memory>

class BusProbe;

/// Keeps Qt from buses that take a connection and then say nothing, a halted daemon's for instance. Qt waits for such a
/// bus without end, for the session bus and that of the input method when the application object is made (themes), and
/// for the accessibility bus when the first widget is. A program with windows has one guard, made in main() before its application object.
class BusGuard
{
public:
    /// Asks the session bus, and waits for it a quarter of a second at most. Where it does not answer, Qt is told that
    /// there is none; channels (QCopChannel) go on looking for it. The same for the bus of the input method that
    /// QT_IM_MODULE asks for: where that is silent, Qt takes its own. While the process has no other thread.
    BusGuard();
    ~BusGuard();
    BusGuard(const BusGuard &) = delete;
    BusGuard &operator=(const BusGuard &) = delete;

    /// Looks whether the accessibility bus answers, too, and waits a quarter of a second at most. Where it does not, Qt is
    /// told an address at which there is none. To be called once, before the first widget is made. `announced` is the
    /// address that the root window of the X display has for that bus, empty where there is no such window.
    void guardAccessibility(const QByteArray &announced);

    /// What does not answer, a sentence each; empty where all is well or there is no bus.
    const QStringList &notices() const { return found; }

private:
    void askSession(const QByteArray &addresses);
    void askInputMethod();
    bool isAccessibilitySilent(const QByteArray &announced) const;
    void giveUp(const char *bus);

    std::unique_ptr<BusProbe> session;           // where it answers
    std::unique_ptr<BusProbe> toldAccessibility; // where one is told by the environment
    QStringList found;
};
