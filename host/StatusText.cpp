#include "host/StatusText.h"

#include "handset/Status.h"

#include <QtCore/QCoreApplication>

namespace host {

namespace {

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
    return QCoreApplication::translate("host::StatusText", "Not done: the telephone answers %1.").arg(status);
}

} // namespace host
