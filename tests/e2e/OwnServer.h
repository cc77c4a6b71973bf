// What the groups of tests on an X server have in common.
#pragma once

#include "e2e/XServer.h"

#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>

/// The application object of a group: on an X server of its own, which the programs that it starts find, too.
class ApplicationOnItsOwnServer
{
public:
    ApplicationOnItsOwnServer(int &argc, char **argv)
    {
        if (server.display().isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(server.error()));
            std::exit(1);
        }
        qputenv("DISPLAY", server.display().toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
        application = std::make_unique<QApplication>(argc, argv);
    }

private:
    const XServer server;
    std::unique_ptr<QApplication> application;
};
