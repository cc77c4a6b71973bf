// The command line.
#pragma once

#include "meter/Rows.h"
#include "meter/Table.h"

#include <QtCore/QStringList>

#include <optional>

namespace meter {

/// A figure that is not to come to this.
struct Alert {
    enum Kind { Cost, Time, Bytes } kind = Cost;
    double amount = 0;
};

struct Options {
    QString command = QStringLiteral("figures");
    QStringList words; ///< after the command
    QString stateDirectory;
    QString backend;
    Format format = Format::Table;
    bool isSure = false;
    bool watches = false;
    std::optional<int> keptDays; ///< what is begun in these last days is not deleted
    By by = By::Month;
    int cycleDay = 1;
    std::optional<Alert> alert;
};

struct CommandLine {
    std::optional<Options> options; ///< null when there is nothing more to do
    QString output;                 ///< then: for standard output
    QString error;                  ///< then: one sentence for the user
};

/// Reads `arguments`, the first of which is the program's name. Needs an application object.
CommandLine parse(QStringList arguments);

} // namespace meter
