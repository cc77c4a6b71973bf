#include "live/InterfaceCounters.h"

#include <QtCore/QFile>

#include <algorithm>
#include <limits>

namespace handset::live {

namespace {

std::optional<qint64> numberIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    bool isNumber = false;
    const quint64 number = file.readLine(32).trimmed().toULongLong(&isNumber);
    constexpr quint64 most = std::numeric_limits<qint64>::max();
    return isNumber ? std::optional(static_cast<qint64>(std::min(number, most))) : std::nullopt;
}

} // namespace

std::optional<Bytes> InterfaceCounters::read(const QString &interface) const
{
    // A name is a directory's: one that leads elsewhere is none.
    if (interface.isEmpty() || interface.startsWith(QLatin1Char('.')) || interface.contains(QLatin1Char('/')))
        return std::nullopt;
    const QString statistics = root + QLatin1Char('/') + interface + QStringLiteral("/statistics/");
    const std::optional<qint64> sent = numberIn(statistics + QStringLiteral("tx_bytes"));
    const std::optional<qint64> received = numberIn(statistics + QStringLiteral("rx_bytes"));
    return sent && received ? std::optional(Bytes{*sent, *received}) : std::nullopt;
}

} // namespace handset::live
