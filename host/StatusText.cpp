#include "host/StatusText.h"

#include "handset/Status.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace host {

namespace {

struct NamedStatus {
    handset::Status status;
    const char *name;
};

constexpr std::array namedStatuses{
    NamedStatus{handset::Success, "Success"},
    NamedStatus{handset::InvalidArgument, "InvalidArgument"},
    NamedStatus{handset::NotAvailable, "NotAvailable"},
    NamedStatus{handset::StorageFailed, "StorageFailed"},
    NamedStatus{handset::WrongState, "WrongState"},
    NamedStatus{handset::TextTooLong, "TextTooLong"},
    NamedStatus{handset::NotAllowed, "NotAllowed"},
    NamedStatus{handset::RecordedElsewhere, "RecordedElsewhere"},
};
static_assert(namedStatuses.size() == handset::RecordedElsewhere + 1);

// Null for a handset that answers a number of its own.
const char *reason(int status, const StatusMeaning &meaning)
{
    switch (status) {
    case handset::InvalidArgument:
        return meaning.invalidArgument;
    case handset::NotAvailable:
        return QT_TRANSLATE_NOOP("host::StatusText", "the telephone cannot do this");
    case handset::StorageFailed:
        return QT_TRANSLATE_NOOP("host::StatusText", "the call log cannot be written");
    case handset::WrongState:
        return meaning.wrongState;
    case handset::NotAllowed:
        return meaning.notAllowed;
    case handset::RecordedElsewhere:
        return QT_TRANSLATE_NOOP("host::StatusText", "another process records the calls");
    }
    return nullptr;
}

} // namespace

QString reasonText(int status, const StatusMeaning &meaning)
{
    const char *const text = reason(status, meaning);
    return text ? QCoreApplication::translate("host::StatusText", text) : QString();
}

QString refusalText(int status, const StatusMeaning &meaning)
{
    if (status == handset::Success)
        return {};
    if (const QString text = reasonText(status, meaning); !text.isEmpty())
        return QCoreApplication::translate("host::StatusText", "Not done: %1.").arg(text);
    return QCoreApplication::translate("host::StatusText", "Not done: the telephone answers %1.")
        .arg(statusName(status));
}

QString statusName(int status)
{
    const auto isIt = [&](const NamedStatus &named) { return named.status == status; };
    const auto *const found = std::find_if(namedStatuses.begin(), namedStatuses.end(), isIt);
    return found == namedStatuses.end() ? QString::number(status) : QString::fromLatin1(found->name);
}

std::optional<int> statusNamed(const QString &name)
{
    const auto isIt = [&](const NamedStatus &named) { return name == QLatin1StringView(named.name); };
    const auto *const found = std::find_if(namedStatuses.begin(), namedStatuses.end(), isIt);
    if (found != namedStatuses.end())
        return found->status;
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace host
