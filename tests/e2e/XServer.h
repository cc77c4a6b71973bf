// An X server of the test's own.
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>

/// Starts Xvfb on a display number that it picks itself, 800 x 760 pixels, without a window manager; ends it when
/// destroyed.
class XServer
{
public:
    enum class LastClientGoes { Stays, Ends };

    explicit XServer(LastClientGoes then = LastClientGoes::Stays);
    ~XServer();

    /// ":7", or empty when the server did not start; error() says why.
    QString display() const { return name; }
    QString error() const { return reason; }

private:
    QProcess process;
    QString name;
    QString reason;
};
