#include "StatusText.h"

#include "Status.h"

namespace host {

namespace {

// Null for a telephone that answers a number of its own.
const char *reason(int status, const StatusMeaning &meaning)
{
    switch (status) {
    case handset::InvalidArgument:
        return meaning.invalidArgument;
    case handset::NotAvailable:
        return "the telephone cannot do this";
    case handset::StorageFailed:
        return "the call log cannot be written";
    case handset::WrongState:
        return meaning.wrongState;
    case handset::NotAllowed:
        return meaning.notAllowed;
    }
    return nullptr;
}

} // namespace

QString refusalText(int status, const StatusMeaning &meaning)
{
    if (status == handset::Success)
        return {};
    if (const char *text = reason(status, meaning))
        return QStringLiteral("Not done: %1.").arg(QLatin1StringView(text));
    return QStringLiteral("Not done: the telephone answers %1.").arg(status);
}

} // namespace host
