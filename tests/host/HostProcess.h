// The built program, started as a user starts it.
#pragma once

#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

struct HostResult {
    int code = -1; ///< -1 when it crashed or did not end
    QString output;
    QString errors;
};

/// Offscreen, in a home of its own under `home`.
QProcessEnvironment hostEnvironment(const QString &home);

/// Runs the program to its end. What it prints goes to `outputFile` where one is named.
HostResult runHost(const QStringList &arguments, const QProcessEnvironment &environment,
                   const QString &outputFile = {});
