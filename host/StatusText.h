// Why the handset did not do something, for a person.
#pragma once

#include <QtCore/QString>

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

} // namespace host
