// What the program kav_at_modem is told on its standard input, a line each.
#pragma once

#include "support/atmodem/AtModem.h"

#include <QtCore/QByteArray>

namespace atmodem {

/// Obeys one line, such as "ring 5551234". The answer: "ok", lines of figures that end with "ok", or "no" and why not.
QByteArray obey(Modem &modem, const QByteArray &line);

} // namespace atmodem
