// The kernel's counters of a network interface.
#pragma once

#include "live/Modem.h"

#include <QtCore/QString>

#include <optional>

namespace handset::live {

/// Reads the 64-bit statistics of network interfaces (rx_bytes and tx_bytes below /sys/class/net), which begin at 0
/// with the interface.
class InterfaceCounters
{
public:
    /// `directory` is that of the interfaces.
    explicit InterfaceCounters(QString directory = QStringLiteral("/sys/class/net"))
        : root(std::move(directory))
    {}

    /// Nothing where there is no such interface now. Each saturates at 2^63 - 1.
    std::optional<Bytes> read(const QString &interface) const;

private:
    QString root;
};

} // namespace handset::live
