#include "support/atmodem/Words.h"

namespace atmodem {

namespace {

struct Word {
    const char *word;
    QByteArray (*run)(Modem &modem, const QByteArray &value);
};

QByteArray said(bool isDone)
{
    return isDone ? "ok" : "no: no such call";
}

QByteArray listOf(const QList<QByteArray> &lines)
{
    QByteArray text;
    for (const QByteArray &line : lines)
        text += line + '\n';
    return text + "ok";
}

QByteArray recordLines(Modem &modem, const QByteArray &)
{
    QList<QByteArray> lines;
    const QList<CallRecord> records = modem.phone.records();
    for (const CallRecord &record : records) {
        lines.append((record.direction == Direction::Dialed ? "dialed " : "received ") + record.number + ' ' +
                     QByteArray::number(record.begunMs) + ' ' + QByteArray::number(record.connectedMs) + ' ' +
                     QByteArray::number(record.endedMs) + ' ' + QByteArray::number(record.units));
    }
    return listOf(lines);
}

QByteArray registerAs(Modem &modem, Registration state)
{
    modem.phone.setRegistration(state);
    return "ok";
}

QByteArray letDialed(Modem &modem, Dialed what)
{
    modem.phone.dialed = what;
    return "ok";
}

constexpr Word words[] = {
    {"ring",
     [](Modem &m, const QByteArray &number) {
         m.phone.ring(number);
         return QByteArray("ok");
     }},
    {"answer", [](Modem &m, const QByteArray &) { return said(m.phone.answer()); }},
    {"busy", [](Modem &m, const QByteArray &) { return said(m.phone.refuse(End::Busy)); }},
    {"no-carrier", [](Modem &m, const QByteArray &) { return said(m.phone.refuse(End::NoCarrier)); }},
    {"remote-hangup",
     [](Modem &m, const QByteArray &number) {
         return said(number.isEmpty() ? m.phone.hangUpThere() : m.phone.hangUpThere(number));
     }},
    {"dialed-are-led", [](Modem &m, const QByteArray &) { return letDialed(m, Dialed::Led); }},
    {"dialed-are-answered", [](Modem &m, const QByteArray &) { return letDialed(m, Dialed::Answered); }},
    {"dialed-are-busy", [](Modem &m, const QByteArray &) { return letDialed(m, Dialed::Busy); }},
    {"dialed-are-refused", [](Modem &m, const QByteArray &) { return letDialed(m, Dialed::NoCarrier); }},
    {"tick-meter", [](Modem &m, const QByteArray &units) { return said(m.phone.tick(units.toUInt())); }},
    {"drop-registration", [](Modem &m, const QByteArray &) { return registerAs(m, Registration::Searching); }},
    {"register", [](Modem &m, const QByteArray &) { return registerAs(m, Registration::Home); }},
    {"roam", [](Modem &m, const QByteArray &) { return registerAs(m, Registration::Roaming); }},
    {"end-data",
     [](Modem &m, const QByteArray &) {
         m.phone.endData();
         return QByteArray("ok");
     }},
    {"silent",
     [](Modem &m, const QByteArray &) {
         m.setSilent(true);
         return QByteArray("ok");
     }},
    {"speak",
     [](Modem &m, const QByteArray &) {
         m.setSilent(false);
         return QByteArray("ok");
     }},
    {"unplug",
     [](Modem &m, const QByteArray &) {
         m.unplug();
         return QByteArray("ok");
     }},
    {"plug-in",
     [](Modem &m, const QByteArray &) {
         m.plugIn();
         return QByteArray("ok");
     }},
    {"records", recordLines},
    {"commands", [](Modem &m, const QByteArray &) { return listOf(m.log.commands); }},
    {"unknown", [](Modem &m, const QByteArray &) { return listOf(m.log.unknown); }},
};

} // namespace

QByteArray obey(Modem &modem, const QByteArray &line)
{
    const qsizetype blank = line.indexOf(' ');
    const QByteArray name = blank < 0 ? line : line.left(blank);
    for (const Word &word : words) {
        if (name == word.word)
            return word.run(modem, blank < 0 ? QByteArray() : line.mid(blank + 1).trimmed());
    }
    return "no: no such word";
}

} // namespace atmodem
