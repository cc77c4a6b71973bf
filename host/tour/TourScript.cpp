#include "host/tour/TourScript.h"
#include "host/StatusText.h"

#include "handset/Operations.h"
#include "host/Latin1.h"
#include "host/ScreenTable.h"

#include <QtCore/QDate>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

namespace host::tour {

namespace {

using handset::AdviceOfCharge;
using handset::CallDirection;
using handset::CallKind;
using handset::charging::Tariff;

constexpr qint64 longestMs = qint64{100} * 365 * 24 * 3600 * 1000;
constexpr int mostRepeats = 1000;
constexpr const char *defaultNumber = "5550123";

/// What a line came to: an action, or what is wrong with it.
struct Parsed {
    std::optional<Action> action;
    QString mistake;

    static Parsed wrong(const QString &what) { return {{}, what}; }
};

template <typename T>
Parsed done(T action)
{
    return {Action(std::move(action)), {}};
}

struct KeyName {
    const char *name;
    int qtKey;
};

constexpr std::array<KeyName, 8> keyNames{{
    {"up", Qt::Key_Up},
    {"down", Qt::Key_Down},
    {"select", Qt::Key_Select},
    {"left", Qt::Key_Context1},
    {"right", Qt::Key_Context2},
    {"clear", Qt::Key_Clear},
    {"*", Qt::Key_Asterisk},
    {"#", Qt::Key_NumberSign},
}};

int keyOf(const QString &name)
{
    for (const KeyName &key : keyNames) {
        if (name == QLatin1StringView(key.name))
            return key.qtKey;
    }
    const bool isDigit = name.size() == 1 && name.front() >= u'0' && name.front() <= u'9';
    return isDigit ? Qt::Key_0 + name.front().digitValue() : 0;
}

QStringList wordsOf(const QString &text)
{
    return text.simplified().split(u' ', Qt::SkipEmptyParts);
}

Parsed parseState(const QString &rest)
{
    if (rest == QLatin1StringView("empty"))
        return done(SetState{SetState::Empty});
    if (rest == QLatin1StringView("ready-made"))
        return done(SetState{SetState::ReadyMade});
    if (rest == QLatin1StringView("kept"))
        return done(SetState{SetState::Kept});
    return Parsed::wrong(QStringLiteral("the state is \"empty\", \"ready-made\" or \"kept\""));
}

std::optional<CallKind> kindOf(const QString &word)
{
    if (word == QLatin1StringView("voice"))
        return CallKind::Voice;
    if (word == QLatin1StringView("data"))
        return CallKind::Data;
    return {};
}

std::optional<CallDirection> directionOf(const QString &word)
{
    if (word == QLatin1StringView("dialed"))
        return CallDirection::Dialed;
    if (word == QLatin1StringView("answered"))
        return CallDirection::Answered;
    return {};
}

Parsed parseCall(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    const auto direction = directionOf(words.value(0));
    const auto kind = kindOf(words.value(1));
    const qint64 duration = parseDuration(words.value(2));
    if (!direction || !kind || duration < 0 || words.size() > 4)
        return Parsed::wrong(QStringLiteral("a call is \"call dialed|answered voice|data DURATION [NUMBER]\""));
    if (direction == CallDirection::Answered && kind == CallKind::Data)
        return Parsed::wrong(QStringLiteral("data calls are dialed; the telephone answers none"));
    return done(MakeCall{*direction, *kind, duration, words.value(3, QString::fromLatin1(defaultNumber))});
}

Parsed parseDial(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    const bool isData = words.size() == 2 && words[1] == QLatin1StringView("data");
    if (words.size() != 1 && !isData)
        return Parsed::wrong(QStringLiteral("dialing is \"dial NUMBER [data]\""));
    return done(Dial{words[0], isData ? CallKind::Data : CallKind::Voice});
}

Parsed parseRing(const QString &rest)
{
    if (wordsOf(rest).size() > 1)
        return Parsed::wrong(QStringLiteral("an incoming call is \"ring [NUMBER]\""));
    return done(Ring{rest});
}

template <typename Bare>
Parsed parseBare(const QString &rest)
{
    return rest.isEmpty() ? done(Bare{}) : Parsed::wrong(QStringLiteral("nothing may follow this word"));
}

Parsed parseClock(const QString &rest)
{
    const qint64 ms = rest.startsWith(u'+') ? parseDuration(rest.mid(1)) : -1;
    if (ms < 0)
        return Parsed::wrong(QStringLiteral("the clock goes on by \"clock +1h2m3s\", \"clock +65s\""));
    return done(MoveClock{ms});
}

Parsed parseOpen(const QString &rest)
{
    const int index = screenIndex(rest);
    return index < 0 ? Parsed::wrong(QStringLiteral("there is no screen \"%1\"").arg(rest)) : done(Open{index});
}

// "down" or "down*3"; false when it is neither.
bool appendKeys(const QString &word, QList<Key> &keys)
{
    const qsizetype star = word.indexOf(u'*', 1);
    bool isNumber = true;
    const int times = star < 0 ? 1 : word.mid(star + 1).toInt(&isNumber);
    const int key = keyOf(star < 0 ? word : word.left(star));
    if (!key || !isNumber || times < 1 || times > mostRepeats)
        return false;
    keys.append(QList<Key>(times, Key{key, {}}));
    return true;
}

// What a keyboard types; false for a character that Qt's Latin-1 keys do not have.
bool appendTyped(const QString &text, QList<Key> &keys)
{
    for (const QChar character : text) {
        const char16_t code = character.toUpper().unicode();
        if (code < 0x20 || code > 0xff)
            return false;
        keys.append({static_cast<int>(code), QString(character)});
    }
    return true;
}

QString tooManyKeys()
{
    return QStringLiteral("a script presses no more than %1 keys").arg(mostKeys);
}

Parsed parsePress(const QString &rest)
{
    static const QRegularExpression form(QStringLiteral("\\G\\s*(?:\"([^\"]*)\"|([^\\s\"]+))(?=\\s|$)"));
    Press press;
    for (qsizetype at = 0; at < rest.size();) {
        const QRegularExpressionMatch match = form.match(rest, at);
        const bool isTyped = match.hasMatch() && match.hasCaptured(1);
        const QString word = match.hasMatch() ? match.captured(isTyped ? 1 : 2) : rest.mid(at).trimmed();
        const bool isKnown =
            match.hasMatch() && (isTyped ? appendTyped(word, press.keys) : appendKeys(word, press.keys));
        if (!isKnown)
            return Parsed::wrong(QStringLiteral("there is no key \"%1\"").arg(word));
        if (press.keys.size() > mostKeys)
            return Parsed::wrong(tooManyKeys());
        at = match.capturedEnd();
    }
    return press.keys.isEmpty() ? Parsed::wrong(QStringLiteral("which key?")) : done(press);
}

// --- charging and the SIM card

template <typename Value>
struct NamedValue {
    const char *name;
    Value value;
};

// Nothing for a name that the table does not have.
template <typename Value, std::size_t size>
std::optional<Value> valueOf(const std::array<NamedValue<Value>, size> &table, const QString &name)
{
    for (const NamedValue<Value> &row : table) {
        if (name == QLatin1StringView(row.name))
            return row.value;
    }
    return {};
}

constexpr std::array<NamedValue<quint8>, 3> fileNames{{
    {"acm", AdviceOfCharge::AcmFile},
    {"acmmax", AdviceOfCharge::AcmMaxFile},
    {"puct", AdviceOfCharge::PuctFile},
}};
constexpr std::array<NamedValue<quint8>, 3> ruleNames{{
    {"free", AdviceOfCharge::FreeUpdate},
    {"pin2", AdviceOfCharge::UpdateUnderPin2},
    {"never", AdviceOfCharge::NoUpdate},
}};
constexpr std::array<NamedValue<quint8>, 2> chargeTypeNames{{
    {"units", AdviceOfCharge::InUnits},
    {"currency", AdviceOfCharge::InCurrency},
}};
constexpr std::array<NamedValue<SetPin2::Kind>, 3> pin2Names{{
    {"on", SetPin2::On},
    {"off", SetPin2::Off},
    {"forgotten", SetPin2::Forgotten},
}};

bool isAmount(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]+(?:\\.[0-9]+)?$"));
    return form.match(text).hasMatch();
}

// A tariff's number: tenths, 0 to the greatest; nothing for another.
std::optional<quint16> tenthsOf(qint64 tenths)
{
    const bool fits = tenths >= 0 && tenths <= Tariff::greatestElement;
    return fits ? std::optional(static_cast<quint16>(tenths)) : std::nullopt;
}

std::optional<quint16> unitTenths(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,3})(?:\\.([0-9]))?$"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? tenthsOf(match.captured(1).toInt() * 10 + match.captured(2).toInt()) : std::nullopt;
}

std::optional<quint16> intervalTenths(const QString &text)
{
    const qint64 ms = parseDuration(text);
    return ms > 0 && ms % 100 == 0 ? tenthsOf(ms / 100) : std::nullopt;
}

// "free", "1 per 10s", "1 per 10s start 2".
std::optional<Tariff> tariffOf(const QStringList &words)
{
    Tariff tariff;
    if (words == QStringList{QStringLiteral("free")})
        return tariff;
    const bool hasStart = words.size() == 5 && words[3] == QLatin1StringView("start");
    if (!(words.size() == 3 || hasStart) || words[1] != QLatin1StringView("per"))
        return {};
    const auto units = unitTenths(words[0]);
    const auto interval = intervalTenths(words[2]);
    const auto start = unitTenths(hasStart ? words[4] : QStringLiteral("0"));
    if (!units || !interval || !start)
        return {};
    tariff.unitsPerInterval = *units;
    tariff.interval = *interval;
    tariff.unitsAtStart = *start;
    return tariff;
}

Parsed parseTariff(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    const auto direction = directionOf(words.value(0));
    const auto tariff = tariffOf(words.mid(1));
    if (!direction || !tariff)
        return Parsed::wrong(QStringLiteral("a tariff is \"tariff dialed|answered free\" or \"... UNITS per "
                                            "DURATION [start UNITS]\", to tenths: UNITS 0 to "
                                            "819.1, DURATION 100ms to 819100ms"));
    return done(SetTariff{*direction, *tariff});
}

Parsed parseTopUp(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    const QDate day = QDate::fromString(words.value(1), Qt::ISODate);
    if (words.size() != 2 || !isAmount(words[0]) || !day.isValid() || words[1].size() != 10)
        return Parsed::wrong(QStringLiteral("paying in is \"topup AMOUNT YYYY-MM-DD\""));
    return done(TopUp{
        words[0],
        {static_cast<quint16>(day.year()), static_cast<quint8>(day.month()), static_cast<quint8>(day.day())}});
}

Parsed parseChargeType(const QString &rest)
{
    const auto type = valueOf(chargeTypeNames, rest);
    return type ? done(SetChargeType{*type})
                : Parsed::wrong(QStringLiteral("the charge type is \"units\" or \"currency\""));
}

Parsed parsePrice(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    if (words.size() != 2 || !isAmount(words[0]))
        return Parsed::wrong(QStringLiteral("a price is \"price AMOUNT CURRENCY\""));
    return done(SetPrice{words[0], words[1]});
}

Parsed parseLimit(const QString &rest)
{
    if (rest == QLatin1StringView("off"))
        return done(SetLimit{});
    return isAmount(rest) ? done(SetLimit{rest})
                          : Parsed::wrong(QStringLiteral("the limit is \"limit AMOUNT\" or \"limit off\""));
}

Parsed parseRule(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    const auto file = valueOf(fileNames, words.value(0));
    const auto rule = valueOf(ruleNames, words.value(1));
    if (!file || !rule || words.size() != 2)
        return Parsed::wrong(QStringLiteral("a rule is \"rule acm|acmmax|puct free|pin2|never\""));
    return done(SetRule{*file, *rule});
}

Parsed parsePin2(const QString &rest)
{
    const auto kind = valueOf(pin2Names, rest);
    return kind ? done(SetPin2{*kind}) : Parsed::wrong(QStringLiteral("PIN2 is \"on\", \"off\" or \"forgotten\""));
}

// --- failures, packet data

Parsed parseFail(const QString &rest)
{
    if (rest == QLatin1StringView("nothing"))
        return done(Fail{});
    const QStringList words = wordsOf(rest);
    const std::optional<int> code = statusNamed(words.value(1));
    if (words.size() != 2 || !code)
        return Parsed::wrong(QStringLiteral("failing is \"fail NAME CODE\" or \"fail nothing\""));
    const int operation = handset::operationIndex(words[0].toStdString());
    if (operation < 0)
        return Parsed::wrong(QStringLiteral("there is no operation \"%1\"").arg(words[0]));
    return done(Fail{operation, *code});
}

Parsed parseSession(const QString &rest)
{
    const QStringList words = wordsOf(rest);
    if (words == QStringList{QStringLiteral("stop")})
        return done(StopSession{});
    bool isUp = false;
    bool isDown = false;
    const quint32 up = words.value(2).toUInt(&isUp);
    const quint32 down = words.value(3).toUInt(&isDown);
    if (words.size() != 4 || words[0] != QLatin1StringView("start") || !isUp || !isDown)
        return Parsed::wrong(
            QStringLiteral("a session is \"session start APN UP DOWN\", in bytes a second, and \"session stop\""));
    const std::optional<QByteArray> apn = latin1Of(words[1]);
    return apn ? done(StartSession{*apn, up, down})
               : Parsed::wrong(QStringLiteral("an access point name has no characters but those of Latin-1"));
}

// --- expectations

// Splits at "|", takes the blanks around a cell away, and takes a quoted cell as it is. Nothing for bad quotes.
class CellReader
{
public:
    explicit CellReader(const QString &line)
        : text(line)
    {}

    std::optional<QStringList> read()
    {
        QStringList cells;
        do {
            skipBlanks();
            const auto cell = peek() == u'"' ? readQuoted() : readPlain();
            if (!cell)
                return {};
            cells << *cell;
        } while (takeBar());
        return at == text.size() ? std::optional(cells) : std::nullopt;
    }

private:
    QChar peek() const { return at < text.size() ? text[at] : QChar(); }
    void skipBlanks()
    {
        while (peek().isSpace())
            ++at;
    }
    bool takeBar()
    {
        skipBlanks();
        if (peek() != u'|')
            return false;
        ++at;
        return true;
    }
    std::optional<QString> readPlain()
    {
        const qsizetype start = at;
        while (at < text.size() && text[at] != u'|')
            ++at;
        return text.mid(start, at - start).trimmed();
    }
    std::optional<QString> readQuoted()
    {
        QString cell = QStringLiteral("");
        for (++at; at < text.size() && text[at] != u'"'; ++at) {
            if (text[at] != u'\\')
                cell += text[at];
            else if (++at < text.size())
                cell += text[at] == u'n' ? QChar(u'\n') : text[at];
        }
        if (at >= text.size())
            return {};
        ++at;
        return cell;
    }

    const QString text;
    qsizetype at = 0;
};

struct FactForm {
    const char *word;
    bool numbered;
    int cells; ///< 0 none, 1 one, 2 two; -1 one or two
};

constexpr std::array<FactForm, 12> factForms{{
    {"title", false, 1},
    {"header", false, 1},
    {"message", false, 1},
    {"row", true, -1},
    {"separator", true, 1},
    {"label", true, 1},
    {"entry", false, 1},
    {"rows", false, 1},
    {"disabled", true, 0},
    {"focus", false, 1},
    {"softkeys", false, 2},
    {"line", false, 1},
}};

const FactForm *formOf(const QString &word)
{
    for (const FactForm &form : factForms) {
        if (word == QLatin1StringView(form.word))
            return &form;
    }
    return nullptr;
}

// The first word of `text`, which is cut off it.
QString takeWord(QString &text)
{
    const auto *const blank = std::find_if(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
    const qsizetype length = blank - text.cbegin();
    QString word = text.left(length);
    text = text.mid(length).trimmed();
    return word;
}

bool cellCountFits(const FactForm &form, qsizetype count)
{
    return form.cells < 0 ? count == 1 || count == 2 : count == form.cells;
}

Parsed parseCells(Expect expect, const FactForm &form, const QString &rest)
{
    const auto cells = CellReader(rest).read();
    if (!cells)
        return Parsed::wrong(QStringLiteral("a double quote is missing or too many"));
    if (form.cells != 0)
        expect.fact.cells = *cells;
    else if (!rest.isEmpty())
        return Parsed::wrong(QStringLiteral("nothing may follow the number"));
    if (!cellCountFits(form, expect.fact.cells.size()))
        return Parsed::wrong(QStringLiteral("\"%1\" does not have %2 texts between bars")
                                 .arg(expect.fact.word)
                                 .arg(expect.fact.cells.size()));
    return done(expect);
}

Parsed parseExpect(const QString &all)
{
    QString rest = all;
    Expect expect;
    expect.fact.word = takeWord(rest);
    if (expect.fact.word == QLatin1StringView("no")) {
        expect.absent = true;
        expect.fact.word = takeWord(rest);
    }
    const FactForm *form = formOf(expect.fact.word);
    if (!form)
        return Parsed::wrong(QStringLiteral("nothing on the display is called \"%1\"").arg(expect.fact.word));
    if (form->numbered) {
        bool isNumber = false;
        expect.fact.number = takeWord(rest).toInt(&isNumber);
        if (!isNumber || expect.fact.number < 0)
            return Parsed::wrong(QStringLiteral("\"%1\" needs a number").arg(expect.fact.word));
    }
    if (expect.absent)
        return rest.isEmpty() ? done(expect) : Parsed::wrong(QStringLiteral("\"no\" takes no text"));
    return parseCells(expect, *form, rest);
}

Parsed parsePhoto(const QString &rest)
{
    static const QRegularExpression fileName(QStringLiteral("^[A-Za-z0-9_][A-Za-z0-9_.-]*$"));
    if (!fileName.match(rest).hasMatch())
        return Parsed::wrong(QStringLiteral("a photograph's name is letters, digits, \"-\", \"_\" and \".\""));
    return done(Photo{rest});
}

struct Command {
    const char *word;
    Parsed (*parse)(const QString &rest);
};

constexpr std::array<Command, 22> commands{{
    {"state", &parseState},
    {"call", &parseCall},
    {"dial", &parseDial},
    {"ring", &parseRing},
    {"answer", &parseBare<Answer>},
    {"hangup", &parseBare<HangUp>},
    {"clock", &parseClock},
    {"tariff", &parseTariff},
    {"topup", &parseTopUp},
    {"chargetype", &parseChargeType},
    {"price", &parsePrice},
    {"limit", &parseLimit},
    {"rule", &parseRule},
    {"pin2", &parsePin2},
    {"fail", &parseFail},
    {"session", &parseSession},
    {"broadcast", &parseBare<Broadcast>},
    {"open", &parseOpen},
    {"press", &parsePress},
    {"expect", &parseExpect},
    {"photo", &parsePhoto},
    {"show", &parseBare<Show>},
}};
static_assert(commands.size() == std::variant_size_v<Action> - 1); // a session has two

Parsed parseLine(const QString &line)
{
    QString rest = line;
    const QString word = takeWord(rest);
    for (const Command &command : commands) {
        if (word == QLatin1StringView(command.word))
            return command.parse(rest);
    }
    return Parsed::wrong(QStringLiteral("unknown word \"%1\"").arg(word));
}

qsizetype keysOf(const Parsed &parsed)
{
    const auto *press = parsed.action ? std::get_if<Press>(&*parsed.action) : nullptr;
    return press ? press->keys.size() : 0;
}

// Of a script that is to have one line more, and so many keys with it. Empty while it may.
QString passedLimit(const Script &script, qsizetype keys)
{
    if (script.steps.size() + script.mistakes.size() >= mostSteps)
        return QStringLiteral("a script has no more than %1 steps").arg(mostSteps);
    if (keys > mostKeys)
        return tooManyKeys();
    return {};
}

// A line may have megabytes.
QString shortened(const QString &mistake)
{
    constexpr qsizetype mostBefore = 200;
    constexpr qsizetype mostBehind = 100;
    if (mistake.size() <= mostBefore + mostBehind)
        return mistake;
    return mistake.left(mostBefore) + QStringLiteral(" ... ") + mistake.right(mostBehind);
}

} // namespace

Script parseScript(const QString &name, const QString &text)
{
    Script script;
    script.name = name;
    int number = 0;
    qsizetype keys = 0;
    for (const QStringView raw : QStringView(text).tokenize(u'\n')) {
        ++number;
        const QString line = raw.trimmed().toString();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        Parsed parsed = parseLine(line);
        keys += keysOf(parsed);
        if (const QString limit = passedLimit(script, keys); !limit.isEmpty()) {
            script.mistakes << QStringLiteral("%1: %2").arg(script.place(number), limit);
            break;
        }
        if (parsed.action)
            script.steps.append({number, line, *parsed.action});
        else
            script.mistakes << QStringLiteral("%1: %2").arg(script.place(number), shortened(parsed.mistake));
    }
    return script;
}

qint64 parseDuration(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:(\\d{1,9})h)?(?:(\\d{1,9})m(?!s))?(?:(\\d{1,9})s)?(?:(\\d{1,9})ms)?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (text.isEmpty() || !match.hasMatch())
        return -1;
    const auto part = [&](int index, qint64 unitMs) { return match.captured(index).toLongLong() * unitMs; };
    const qint64 ms = part(1, 3600000) + part(2, 60000) + part(3, 1000) + part(4, 1);
    return ms <= longestMs ? ms : -1;
}

} // namespace host::tour
