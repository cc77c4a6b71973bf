// Why the handset did not do something, for a person.
#pragma once

#include <QtCore/QString>

#include <optional>

namespace host {

/// What the statuses that depend on it mean for a kind of operation, in English: texts for the catalogue, of the context
/// "host::StatusText".
struct StatusMeaning {
    const char *invalidArgument;
    const char *wrongState;
    const char *notAllowed;
};

/// "the line is in another state"; empty for success, and for a number that a handset has of its own.
QString reasonText(int status, const StatusMeaning &meaning);

/// "Not done: the line is in another state."; empty for success.
QString refusalText(int status, const StatusMeaning &meaning);

/// "NotAllowed", as handset/Status.h has it; the number of a status that a handset has of its own.
QString statusName(int status);

/// The status of that name, or written as a number; nothing for neither.
std::optional<int> statusNamed(const QString &name);

} // namespace host
