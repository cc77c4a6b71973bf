#include "support/atmodem/AtModem.h"

#include <algorithm>

namespace atmodem {

Modem::Line::Line(Modem &modem, const QByteArray &abstractName)
    : port(abstractName)
    , interpreter(modem.phone, modem.log, [this](const QByteArray &bytes) { port.write(bytes); })
{
    port.received = [this](const QByteArray &bytes) { interpreter.receive(bytes); };
    port.changed = [this] { interpreter.restart(); };
}

Modem::Modem(const Ports &ports)
{
    if (ports.hasTcp)
        lines.push_back(std::make_unique<Line>(*this, QByteArray()));
    for (const QByteArray &name : ports.abstractNames)
        lines.push_back(std::make_unique<Line>(*this, name));
}

int Modem::tcpPort() const
{
    return lines.empty() ? 0 : lines.front()->port.number();
}

bool Modem::isListening() const
{
    return std::all_of(lines.begin(), lines.end(), [](const auto &line) { return line->port.isListening(); });
}

void Modem::setSilent(bool isSilent)
{
    for (const auto &line : lines)
        line->interpreter.isSilent = isSilent;
}

void Modem::unplug()
{
    for (const auto &line : lines)
        line->port.close();
    phone.losePower();
}

void Modem::plugIn()
{
    for (const auto &line : lines)
        line->port.open();
}

int Modem::connections() const
{
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [](const auto &line) { return line->port.isConnected(); }));
}

qint64 Modem::dataBytes() const
{
    qint64 bytes = 0;
    for (const auto &line : lines)
        bytes += line->interpreter.dataBytes;
    return bytes;
}

AtModem::AtModem(const Ports &ports)
{
    place.moveToThread(&thread);
    thread.start();
    QMetaObject::invokeMethod(
        &place, [&] { modem = std::make_unique<Modem>(ports); }, Qt::BlockingQueuedConnection);
}

AtModem::~AtModem()
{
    QMetaObject::invokeMethod(
        &place, [&] { modem.reset(); }, Qt::BlockingQueuedConnection);
    thread.quit();
    thread.wait();
}

int AtModem::tcpPort()
{
    return with([](const Modem &all) { return all.tcpPort(); });
}

bool AtModem::isListening()
{
    return with([](const Modem &all) { return all.isListening(); });
}

CommandLog AtModem::log()
{
    return with([](const Modem &all) { return all.log; });
}

QList<CallRecord> AtModem::records()
{
    return withPhone([](const Phone &phone) { return phone.records(); });
}

} // namespace atmodem
