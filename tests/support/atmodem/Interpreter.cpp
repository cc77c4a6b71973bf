#include "support/atmodem/Interpreter.h"

#include <algorithm>
#include <utility>

namespace atmodem {

namespace {

// Numbers of +CME ERROR.
constexpr int operationNotAllowed = 3;
constexpr int simFailure = 13;
constexpr int incorrectPassword = 16;
constexpr int simPuk2Required = 18;
constexpr int notFound = 22;
constexpr int invalidIndex = 21;

constexpr const char *technology = "7"; // LTE, as +CREG and +COPS number it
constexpr const char *plain = "129";    // a number as it was dialed
constexpr const char *ownAddress = "10.0.0.2";

QByteArray quoted(const QByteArray &text)
{
    return '"' + text + '"';
}

QByteArray sixDigits(unsigned value)
{
    return quoted(QByteArray::number(value, 16).toUpper().rightJustified(6, '0'));
}

struct Constant {
    const char *name;
    const char *lines; ///< separated by '\n'
};
/// Commands that are answered by the same lines whatever stands behind "=".
constexpr Constant constants[] = {
    {"+CGMI", "Test Makers"},
    {"+GMI", "Test Makers"},
    {"+CGMM", "AT Modem"},
    {"+GMM", "AT Modem"},
    {"+CGMR", "1.0"},
    {"+GMR", "1.0"},
    {"+CGSN", "350000000000006"},
    {"+GSN", "350000000000006"},
    {"I", "AT Modem"},
    {"+GCAP", "+GCAP: +CGSM"},
    {"+CSQ", "+CSQ: 24,99"},
    {"+CBC", "+CBC: 0,80"},
    {"+CNUM", "+CNUM: ,\"55500001\",129"},
    {"+CPAS", "+CPAS: 0"},
};

/// Answers to the forms "?" and "=?" of commands whose settings change nothing here.
struct Setting {
    const char *name;
    const char *read;
    const char *test;
};
constexpr Setting settings[] = {
    {"+CSCS", "+CSCS: \"IRA\"", "+CSCS: (\"IRA\",\"UCS2\")"},
    {"+CLIR", "+CLIR: 0,4", "+CLIR: (0-2)"},
    {"+COLP", "+COLP: 0,1", "+COLP: (0,1)"},
    {"+COLR", "+COLR: 0", ""},
    {"+CSSN", "+CSSN: 0,0", "+CSSN: (0,1),(0,1)"},
    {"+CMER", "+CMER: 3,0,0,1,0", "+CMER: (0-3),0,0,(0,1),0"},
    {"+CIND", "+CIND: 5,1,0,0", "+CIND: (\"signal\",(0-5)),(\"service\",(0,1)),(\"call\",(0,1)),(\"roam\",(0,1))"},
    {"+CMUT", "+CMUT: 0", "+CMUT: (0,1)"},
    {"+CVHU", "+CVHU: 0", "+CVHU: (0,1)"},
    {"+CGEREP", "+CGEREP: 0,0", "+CGEREP: (0-2),(0,1)"},
    {"+CTZU", "+CTZU: 0", "+CTZU: (0,1)"},
    {"+CUSD", "+CUSD: 0", "+CUSD: (0,1)"},
    {"+VTS", "", "+VTS: (0-9,*,#)"},
    {"+WS46", "12", "(12)"},
};

} // namespace

// What is not here is an error, and noted.
constexpr Interpreter::Command Interpreter::commands[] = {
    {"E", &Interpreter::basic},
    {"V", &Interpreter::basic},
    {"Q", &Interpreter::basic},
    {"X", &Interpreter::basic},
    {"Z", &Interpreter::basic},
    {"L", &Interpreter::basic},
    {"M", &Interpreter::basic},
    {"&F", &Interpreter::basic},
    {"&C", &Interpreter::basic},
    {"&D", &Interpreter::basic},
    {"S", &Interpreter::basic},
    {"", &Interpreter::basic},
    {"D", &Interpreter::dial},
    {"A", &Interpreter::accept},
    {"H", &Interpreter::hangUp},
    {"+CHUP", &Interpreter::hangUp},
    {"+CHLD", &Interpreter::hold},
    {"+CLCC", &Interpreter::listCalls},
    {"+CMEE", &Interpreter::mode},
    {"+CLIP", &Interpreter::mode},
    {"+CRC", &Interpreter::mode},
    {"+CCWA", &Interpreter::mode},
    {"+CCWE", &Interpreter::mode},
    {"+CFUN", &Interpreter::function},
    {"+CPIN", &Interpreter::pin},
    {"+CPINR", &Interpreter::pinTries},
    {"+CPWD", &Interpreter::password},
    {"+CLCK", &Interpreter::lock},
    {"+CRSM", &Interpreter::readCard},
    {"+CIMI", &Interpreter::readCard},
    {"+CCID", &Interpreter::readCard},
    {"+CSIM", &Interpreter::askCard},
    {"+CREG", &Interpreter::registration},
    {"+CGREG", &Interpreter::registration},
    {"+COPS", &Interpreter::network},
    {"+CAOC", &Interpreter::meters},
    {"+CACM", &Interpreter::accumulatedMeter},
    {"+CAMM", &Interpreter::maximum},
    {"+CPUC", &Interpreter::price},
    {"+CGATT", &Interpreter::attach},
    {"+CGDCONT", &Interpreter::defineContext},
    {"+CGACT", &Interpreter::activate},
    {"+CGPADDR", &Interpreter::address},
    {"+CGDATA", &Interpreter::enterDataMode},
};

Interpreter::Interpreter(Phone &behind, CommandLog &logOfAll, Write writeToPort)
    : phone(behind)
    , log(logOfAll)
    , write(std::move(writeToPort))
{
    phone.listeners.append(this);
}

Interpreter::~Interpreter()
{
    phone.listeners.removeOne(this);
}

void Interpreter::restart()
{
    modes = {};
    pending.clear();
    if (const int context = std::exchange(dataContext, 0))
        phone.setDataActive(context, false);
}

void Interpreter::receive(const QByteArray &bytes)
{
    if (isSilent)
        return;
    if (dataContext != 0) {
        dataBytes += bytes.size();
        return;
    }
    pending += bytes;
    for (qsizetype end = pending.indexOf('\r'); end >= 0; end = pending.indexOf('\r')) {
        const QByteArray line = pending.left(end).trimmed();
        pending.remove(0, end + 1);
        if (!line.isEmpty())
            runLine(line);
    }
}

void Interpreter::runLine(const QByteArray &line)
{
    log.commands.append(line);
    if (modes.hasEcho)
        write(line + '\r');
    if (line.size() < 2 || qstrnicmp(line.constData(), "AT", 2) != 0)
        return;
    Answer whole;
    const QList<QByteArray> parts = split(line.mid(2));
    for (const QByteArray &part : parts) {
        const Answer answer = runOne(part);
        whole.lines += answer.lines;
        whole.result = answer.result;
        whole.error = answer.error;
        if (answer.result != "OK")
            break;
    }
    reply(whole);
}

// Basic commands follow each other directly, extended ones end with a semicolon, and a dialed number takes the rest.
QList<QByteArray> Interpreter::split(const QByteArray &line)
{
    QList<QByteArray> parts;
    qsizetype at = 0;
    while (at < line.size()) {
        const char first = static_cast<char>(std::toupper(line[at]));
        qsizetype end = at + 1;
        if (first == 'D') {
            end = line.size();
        } else if (first == '+' || first == '^' || first == '%' || first == '*' || first == '$') {
            bool isQuoted = false;
            while (end < line.size() && (isQuoted || line[end] != ';'))
                isQuoted ^= line[end++] == '"';
        } else {
            if (first == '&')
                ++end;
            while (end < line.size() && (std::isdigit(line[end]) || line[end] == '=' || line[end] == '?'))
                ++end;
        }
        const QByteArray part = line.mid(at, end - at).trimmed();
        if (!part.isEmpty() && part != ";")
            parts.append(part);
        at = end + (end < line.size() && line[end] == ';' ? 1 : 0);
    }
    if (parts.isEmpty())
        parts.append(QByteArray());
    return parts;
}

Interpreter::Request Interpreter::parse(const QByteArray &command)
{
    Request request;
    if (command.startsWith('+') || command.startsWith('^')) {
        const auto mark =
            std::find_if(command.begin(), command.end(), [](char c) { return c == '=' || c == '?'; });
        const qsizetype end = mark - command.begin();
        request.name = command.left(end).toUpper();
        const QByteArray rest = command.mid(end);
        request.form = rest.isEmpty() ? Form::Execute
                       : rest == "?"  ? Form::Read
                       : rest == "=?" ? Form::Test
                                      : Form::Set;
        if (request.form != Form::Set)
            return request;
        QByteArray value;
        bool isQuoted = false;
        for (const char c : rest.mid(1)) {
            if (c == '"')
                isQuoted = !isQuoted;
            else if (c == ',' && !isQuoted)
                request.values.append(std::exchange(value, QByteArray()));
            else
                value += c;
        }
        request.values.append(value);
        return request;
    }
    request.name = command.left(command.startsWith('&') ? 2 : 1).toUpper();
    request.values.append(command.mid(request.name.size()));
    return request;
}

Interpreter::Answer Interpreter::runOne(const QByteArray &command)
{
    const Request request = parse(command);
    for (const Command &known : commands) {
        if (request.name == known.name)
            return (this->*known.run)(request);
    }
    for (const Constant &known : constants) {
        if (request.name == known.name)
            return constant(request);
    }
    for (const Setting &known : settings) {
        if (request.name == known.name)
            return accepted(request);
    }
    log.unknown.append(command);
    return plainError();
}

void Interpreter::tell(const QByteArray &line)
{
    if (dataContext == 0 && !isSilent)
        write("\r\n" + line + "\r\n");
}

void Interpreter::reply(const Answer &answer)
{
    QByteArray text;
    for (const QByteArray &line : answer.lines)
        text += "\r\n" + line + "\r\n";
    QByteArray result = answer.result;
    if (answer.error >= 0)
        result = modes.errors == 0 ? "ERROR" : "+CME ERROR: " + QByteArray::number(answer.error);
    write(text + "\r\n" + result + "\r\n");
}

void Interpreter::rang(const QByteArray &number)
{
    tell(modes.saysType ? "+CRING: VOICE" : "RING");
    if (modes.showsNumber)
        tell("+CLIP: " + quoted(number) + ',' + plain + ",,,,0");
}

void Interpreter::callWaits(const QByteArray &number)
{
    if (modes.showsWaiting)
        tell("+CCWA: " + quoted(number) + ',' + plain + ",1,,0");
}

void Interpreter::callEnded(End end)
{
    tell(end == End::Busy ? "BUSY" : "NO CARRIER");
}

void Interpreter::meterChanged(unsigned units)
{
    if (modes.reportsMeter)
        tell("+CCCM: " + sixDigits(units));
}

void Interpreter::maximumIsNear()
{
    if (modes.warns)
        tell("+CCWV");
}

void Interpreter::registrationChanged()
{
    const auto say = [this](const char *name, int how) {
        if (how == 0)
            return;
        QByteArray line = registrationLine(name, how);
        // Without the mode, which only an answer has.
        line.remove(line.indexOf(' ') + 1, 2);
        tell(line);
    };
    say("+CREG", modes.circuitRegistration);
    say("+CGREG", modes.packetRegistration);
}

void Interpreter::dataEnded(int context)
{
    if (context != dataContext)
        return;
    dataContext = 0;
    tell("NO CARRIER");
}

bool Interpreter::isRegistered() const
{
    return phone.isOn &&
           (phone.registration() == Registration::Home || phone.registration() == Registration::Roaming);
}

QByteArray Interpreter::registrationLine(const char *name, int how) const
{
    const int state = phone.isOn ? static_cast<int>(phone.registration()) : 0;
    QByteArray line = QByteArray(name) + ": " + QByteArray::number(how) + ',' + QByteArray::number(state);
    if (how == 2 && isRegistered())
        line += QByteArray(",\"00C3\",\"0000A1B2\",") + technology;
    return line;
}

Interpreter::Answer Interpreter::accessAnswer(Sim::Access access)
{
    switch (access) {
    case Sim::Access::Granted:
        return {};
    case Sim::Access::WrongPin2:
        return error(incorrectPassword);
    case Sim::Access::Pin2Blocked:
        return error(simPuk2Required);
    case Sim::Access::WrongValue:
        return error(operationNotAllowed);
    }
    return plainError();
}

Interpreter::Answer Interpreter::basic(const Request &request)
{
    if (request.name == "E")
        modes.hasEcho = request.value(0) == "1";
    return {};
}

Interpreter::Answer Interpreter::constant(const Request &request)
{
    if (request.form == Form::Test)
        return {};
    const auto *const found = std::find_if(std::begin(constants), std::end(constants),
                                           [&](const Constant &each) { return request.name == each.name; });
    return {QByteArray(found->lines).split('\n'), "OK", -1};
}

Interpreter::Answer Interpreter::accepted(const Request &request)
{
    const auto *const found = std::find_if(std::begin(settings), std::end(settings),
                                           [&](const Setting &each) { return request.name == each.name; });
    if (request.form == Form::Read && *found->read != '\0')
        return ok(found->read);
    if (request.form == Form::Test && *found->test != '\0')
        return ok(found->test);
    return {};
}

Interpreter::Answer Interpreter::dial(const Request &request)
{
    QByteArray number = request.value(0);
    if (number.startsWith('*') && number.endsWith('#') && number.contains("99")) {
        const int context = number.mid(number.lastIndexOf('*') + 1).chopped(1).toInt();
        enterData(context == 99 ? 1 : context);
        return dataContext != 0 ? Answer{{}, "CONNECT", -1} : Answer{{}, "NO CARRIER", -1};
    }
    if (!number.endsWith(';'))
        return {{}, "NO CARRIER", -1};
    number.chop(1);
    for (const char prefix : {'T', 'P', 't', 'p'}) {
        if (number.startsWith(prefix))
            number.remove(0, 1);
    }
    while (number.endsWith('i') || number.endsWith('I') || number.endsWith('g') || number.endsWith('G'))
        number.chop(1); // whether the number is shown, and the closed user group
    if (!phone.dial(number))
        return error(operationNotAllowed);
    const End end = phone.records().last().end;
    if (end == End::Running)
        return {};
    return {{}, end == End::Busy ? "BUSY" : "NO CARRIER", -1};
}

Interpreter::Answer Interpreter::accept(const Request &)
{
    return phone.accept() ? Answer{} : Answer{{}, "NO CARRIER", -1};
}

Interpreter::Answer Interpreter::hangUp(const Request &)
{
    phone.hangUpHere();
    return {};
}

Interpreter::Answer Interpreter::hold(const Request &request)
{
    if (request.form == Form::Test)
        return ok("+CHLD: (0,1,1x,2,2x,3)");
    return phone.hold(request.value(0)) ? Answer{} : error(operationNotAllowed);
}

Interpreter::Answer Interpreter::listCalls(const Request &request)
{
    Answer answer;
    if (request.form == Form::Test)
        return answer;
    for (const PhoneCall &call : phone.calls()) {
        const CallRecord &record = phone.recordOf(call);
        answer.lines.append("+CLCC: " + QByteArray::number(call.index) + ',' +
                            QByteArray::number(static_cast<int>(record.direction)) + ',' +
                            QByteArray::number(static_cast<int>(call.state)) + ",0," +
                            (call.isInConference ? "1," : "0,") + quoted(record.number) + ',' + plain);
    }
    return answer;
}

Interpreter::Answer Interpreter::mode(const Request &request)
{
    const int value = request.number(0);
    const auto show = [&](int now, const char *test) {
        if (request.form == Form::Read)
            return ok(request.name + ": " + QByteArray::number(now) + (request.name == "+CLIP" ? ",1" : ""));
        return request.form == Form::Test ? ok(request.name + ": " + test) : Answer{};
    };
    const bool isSet = request.form == Form::Set;
    if (request.name == "+CMEE") {
        if (isSet)
            modes.errors = value;
        return show(modes.errors, "(0-1)");
    }
    if (request.name == "+CCWA" && isSet && request.values.size() > 1 && request.number(1) == 2)
        return {{"+CCWA: 1,1"}, "OK", -1};
    bool Modes::*const flag = request.name == "+CLIP"   ? &Modes::showsNumber
                              : request.name == "+CRC"  ? &Modes::saysType
                              : request.name == "+CCWA" ? &Modes::showsWaiting
                                                        : &Modes::warns;
    if (isSet)
        modes.*flag = value != 0;
    return show(modes.*flag ? 1 : 0, "(0,1)");
}

Interpreter::Answer Interpreter::function(const Request &request)
{
    if (request.form == Form::Read)
        return ok(phone.isOn ? "+CFUN: 1" : "+CFUN: 4");
    if (request.form == Form::Test)
        return ok("+CFUN: (0,1,4),(0,1)");
    phone.isOn = request.number(0) == 1;
    return {};
}

// PIN1 is not asked for. What comes with a new PIN is PUK2.
Interpreter::Answer Interpreter::pin(const Request &request)
{
    if (request.form == Form::Read)
        return ok("+CPIN: READY");
    if (request.form != Form::Set)
        return {};
    if (request.values.size() == 2) {
        const Sim::Access access = phone.sim.unblockPin2(request.value(0), request.value(1));
        return access == Sim::Access::WrongPin2 ? error(incorrectPassword) : accessAnswer(access);
    }
    return error(operationNotAllowed);
}

Interpreter::Answer Interpreter::pinTries(const Request &request)
{
    if (request.form == Form::Test)
        return {};
    struct Code {
        const char *name;
        int tries;
        int most;
    };
    const Code codes[] = {{"SIM PIN", 3, 3},
                          {"SIM PUK", 10, 10},
                          {"SIM PIN2", phone.sim.pin2Tries, Sim::pin2TriesOfACard},
                          {"SIM PUK2", phone.sim.puk2Tries, Sim::puk2TriesOfACard}};
    Answer answer;
    for (const Code &code : codes) {
        const QByteArray asked = request.value(0);
        const bool isMeant = asked.isEmpty() || asked == code.name ||
                             (asked.endsWith('*') && QByteArray(code.name).startsWith(asked.chopped(1)));
        if (isMeant)
            answer.lines.append(QByteArray("+CPINR: ") + code.name + ',' + QByteArray::number(code.tries) + ',' +
                                QByteArray::number(code.most));
    }
    return answer;
}

Interpreter::Answer Interpreter::password(const Request &request)
{
    if (request.form == Form::Test)
        return ok("+CPWD: (\"SC\",8),(\"P2\",8)");
    if (request.value(0) != "P2")
        return error(operationNotAllowed);
    return accessAnswer(phone.sim.changePin2(request.value(1), request.value(2)));
}

// Nothing is locked.
Interpreter::Answer Interpreter::lock(const Request &request)
{
    if (request.form == Form::Test)
        return ok("+CLCK: (\"SC\",\"FD\",\"AO\",\"OI\",\"OX\",\"AI\",\"IR\")");
    return request.number(1) == 2 ? ok("+CLCK: 0") : error(operationNotAllowed);
}

Interpreter::Answer Interpreter::readCard(const Request &request)
{
    if (request.form == Form::Test)
        return {};
    if (request.name == "+CIMI")
        return ok(phone.sim.imsi);
    if (request.name == "+CCID")
        return ok("+CCID: " + phone.sim.iccid);
    constexpr int readBinary = 176;
    constexpr int readRecord = 178;
    constexpr int getResponse = 192;
    const auto number = static_cast<unsigned>(request.number(1));
    const CardFile *file = phone.sim.file(number);
    if (!file)
        return ok("+CRSM: 148,4");
    const auto size = static_cast<int>(file->content.size());
    switch (request.number(0)) {
    case readBinary: {
        const int offset = request.number(2) * 256 + request.number(3);
        const int length = request.number(4) == 0 ? size : request.number(4);
        return ok("+CRSM: 144,0," + quoted(file->content.mid(offset, length).toHex().toUpper()));
    }
    case readRecord: {
        const QByteArray record =
            file->content.mid((request.number(2) - 1) * file->recordLength, file->recordLength);
        return record.isEmpty() ? ok("+CRSM: 148,2") : ok("+CRSM: 144,0," + quoted(record.toHex().toUpper()));
    }
    case getResponse: {
        QByteArray header = QByteArray::fromHex("000000000000040000FFFF0102");
        header[2] = static_cast<char>(size >> 8);
        header[3] = static_cast<char>(size);
        header[4] = static_cast<char>(number >> 8);
        header[5] = static_cast<char>(number);
        header += static_cast<char>(file->recordLength > 0 ? 1 : 0);
        header += static_cast<char>(file->recordLength);
        return ok("+CRSM: 144,0," + quoted(header.toHex().toUpper()));
    }
    default:
        return ok("+CRSM: 109,0");
    }
}

// The only questions are for tries that are left: verify or unblock without a code, which costs none.
Interpreter::Answer Interpreter::askCard(const Request &request)
{
    struct Question {
        const char *bytes;
        int tries;
    };
    const Question questions[] = {{"0020000100", 3},
                                  {"002C000100", 10},
                                  {"0020008100", phone.sim.pin2Tries},
                                  {"002C008100", phone.sim.puk2Tries}};
    for (const Question &question : questions) {
        if (request.value(1) == question.bytes)
            return ok("+CSIM: 4,\"63C" + QByteArray::number(question.tries, 16).toUpper() + '"');
    }
    return ok("+CSIM: 4,\"6D00\"");
}

Interpreter::Answer Interpreter::registration(const Request &request)
{
    int &how = request.name == "+CREG" ? modes.circuitRegistration : modes.packetRegistration;
    if (request.form == Form::Set)
        how = request.number(0);
    if (request.form == Form::Test)
        return ok(request.name + ": (0-2)");
    return request.form == Form::Read ? ok(registrationLine(request.name.constData(), how)) : Answer{};
}

Interpreter::Answer Interpreter::network(const Request &request)
{
    static constexpr int numeric = 2;
    if (request.form == Form::Test)
        return ok(QByteArray("+COPS: (2,\"Test Net\",\"Test\",\"26201\",") + technology + "),,(0-4),(0-2)");
    if (request.form == Form::Set) {
        if (request.values.size() > 1)
            modes.operatorFormat = request.number(1);
        return {};
    }
    if (!isRegistered())
        return ok("+COPS: 0");
    return ok("+COPS: 0," + QByteArray::number(modes.operatorFormat) + ',' +
              (modes.operatorFormat == numeric ? "\"26201\"" : "\"Test Net\"") + ',' + technology);
}

Interpreter::Answer Interpreter::meters(const Request &request)
{
    if (request.form == Form::Test)
        return ok("+CAOC: (0-2)");
    if (request.form == Form::Read)
        return ok(modes.reportsMeter ? "+CAOC: 2" : "+CAOC: 1");
    if (request.form == Form::Set && request.number(0) != 0) {
        modes.reportsMeter = request.number(0) == 2;
        return {};
    }
    return ok("+CAOC: " + sixDigits(phone.callMeter()));
}

Interpreter::Answer Interpreter::accumulatedMeter(const Request &request)
{
    if (request.form == Form::Read && !phone.sim.isMeterReadable)
        return error(simFailure);
    if (request.form == Form::Read)
        return ok("+CACM: " + sixDigits(phone.sim.acm));
    return request.form == Form::Set ? accessAnswer(phone.sim.resetAcm(request.value(0))) : Answer{};
}

Interpreter::Answer Interpreter::maximum(const Request &request)
{
    if (request.form == Form::Read && !phone.sim.isMeterReadable)
        return error(simFailure);
    if (request.form == Form::Read)
        return ok("+CAMM: " + sixDigits(phone.sim.acmMax));
    if (request.form != Form::Set)
        return {};
    bool isNumber = false;
    const unsigned value = request.value(0).toUInt(&isNumber, 16);
    return isNumber ? accessAnswer(phone.sim.setAcmMax(value, request.value(1))) : error(operationNotAllowed);
}

Interpreter::Answer Interpreter::price(const Request &request)
{
    if (request.form == Form::Read && !phone.sim.isMeterReadable)
        return error(simFailure);
    if (request.form == Form::Read)
        return ok("+CPUC: " + quoted(phone.sim.currency) + ',' + quoted(phone.sim.price.text()));
    if (request.form != Form::Set)
        return {};
    return accessAnswer(phone.sim.setPrice(request.value(0), request.value(1), request.value(2)));
}

Interpreter::Answer Interpreter::attach(const Request &request)
{
    if (request.form == Form::Set) {
        phone.isAttached = request.number(0) == 1;
        if (!phone.isAttached)
            phone.endData();
    }
    if (request.form == Form::Test)
        return ok("+CGATT: (0,1)");
    return request.form == Form::Read ? ok(phone.isAttached ? "+CGATT: 1" : "+CGATT: 0") : Answer{};
}

Interpreter::Answer Interpreter::defineContext(const Request &request)
{
    Answer answer;
    if (request.form == Form::Test)
        return ok("+CGDCONT: (1-3),\"IP\",,,(0),(0)");
    if (request.form == Form::Read) {
        for (const auto &[number, context] : phone.contexts)
            answer.lines.append("+CGDCONT: " + QByteArray::number(number) + ',' + quoted(context.type) + ',' +
                                quoted(context.accessPoint) + ",\"\",0,0");
        return answer;
    }
    if (request.values.size() == 1) {
        phone.contexts.erase(request.number(0));
        return answer;
    }
    DataContext &context = phone.contexts[request.number(0)];
    context.type = request.value(1);
    context.accessPoint = request.value(2);
    return answer;
}

Interpreter::Answer Interpreter::activate(const Request &request)
{
    Answer answer;
    if (request.form == Form::Test)
        return ok("+CGACT: (0,1)");
    if (request.form == Form::Read) {
        for (const auto &[number, context] : phone.contexts)
            answer.lines.append("+CGACT: " + QByteArray::number(number) + (context.isActive ? ",1" : ",0"));
        return answer;
    }
    const bool isActive = request.number(0) == 1;
    if (request.values.size() == 1 && !isActive) {
        phone.endData();
        return answer;
    }
    return phone.setDataActive(request.number(1), isActive) ? answer : error(invalidIndex);
}

Interpreter::Answer Interpreter::address(const Request &request)
{
    if (request.form != Form::Set)
        return {};
    return phone.contexts.contains(request.number(0))
               ? ok("+CGPADDR: " + request.value(0) + ',' + quoted(ownAddress))
               : error(notFound);
}

void Interpreter::enterData(int context)
{
    if (phone.setDataActive(context, true))
        dataContext = context;
}

Interpreter::Answer Interpreter::enterDataMode(const Request &request)
{
    if (request.form == Form::Test)
        return ok("+CGDATA: (\"PPP\")");
    enterData(request.number(1, 1));
    return dataContext != 0 ? Answer{{}, "CONNECT", -1} : Answer{{}, "NO CARRIER", -1};
}

} // namespace atmodem
