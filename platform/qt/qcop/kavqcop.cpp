// Sends a message on a channel, or shows what comes on one, from a shell.
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QList>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;
constexpr std::chrono::milliseconds busPatience = 5s;

constexpr char helpText[] =
    "Usage: kavqcop send CHANNEL MESSAGE [--data TEXT | --data-hex HEX | --data-file FILE]\n"
    "       kavqcop listen CHANNEL [--count N]\n"
    "       kavqcop --help | --version\n"
    "\n"
    "send    sends MESSAGE with a data block (none: empty) to every subscriber of CHANNEL, in every process of\n"
    "        the session.\n"
    "listen  prints each message on CHANNEL as a line: the message, a tab, the data. Bytes other than printable\n"
    "        ASCII are printed as \\xHH, a backslash as \\\\. Ends after N messages, else when interrupted.\n"
    "\n"
    "CHANNEL, MESSAGE and TEXT are taken byte by byte. \"--\" ends the options.\n"
    "Exit status: 0 done, 1 no session bus or another failure, 2 wrong usage.\n"
    "Example: kavqcop send /KAV/phone /KAV/phone/RecentCall/Update\n";

struct Request {
    QByteArray command;
    QCString channel;
    QCString message;
    QByteArray data;
    qint64 count = 0; // 0: endless
};

// The reason goes to standard error; an empty answer of the functions below says that it did.
void complain(const char *reason, const QByteArray &detail = QByteArray())
{
    std::fprintf(stderr, "kavqcop: %s%s\n", reason, detail.constData());
}

std::optional<QByteArray> bytesOfHex(const QByteArray &hex)
{
    const auto isHexDigit = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    if (hex.size() % 2 != 0 || !std::all_of(hex.begin(), hex.end(), isHexDigit)) {
        complain("--data-hex wants pairs of hexadecimal digits, not ", hex);
        return std::nullopt;
    }
    return QByteArray::fromHex(hex);
}

// One byte more than a bus carries is enough to know. The name may have any bytes, which one of Qt's may not.
std::optional<QByteArray> bytesOfFile(const QByteArray &name)
{
    QFile file;
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        complain("cannot read ", name + ": " + std::strerror(errno));
        return std::nullopt;
    }
    QByteArray bytes;
    for (QByteArray piece("-"); !piece.isEmpty() && bytes.size() <= QCopBus::largestPart; bytes += piece)
        piece = file.read(QCopBus::largestPart + 1 - bytes.size());
    if (file.error() != QFileDevice::NoError) {
        complain("cannot read ", name + ": " + file.errorString().toLocal8Bit());
        return std::nullopt;
    }
    return bytes;
}

std::optional<QByteArray> dataOf(const QByteArray &option, const QByteArray &value)
{
    if (option == "--data-hex")
        return bytesOfHex(value);
    if (option == "--data-file")
        return bytesOfFile(value);
    return value;
}

bool isDataOption(const QByteArray &argument)
{
    return argument == "--data" || argument == "--data-hex" || argument == "--data-file";
}

// Takes the command line apart. The arguments are not Qt's, which are texts: a channel may have any bytes.
class CommandLine
{
public:
    CommandLine(int argc, char **argv)
    {
        for (int i = 1; i < argc; ++i)
            arguments.append(argv[i]);
    }

    bool asksFor(const char *option) const { return arguments.size() == 1 && arguments.first() == option; }

    std::optional<Request> request()
    {
        while (!arguments.isEmpty()) {
            if (!takeArgument())
                return std::nullopt;
        }
        return checked();
    }

private:
    bool takeArgument()
    {
        const QByteArray argument = arguments.takeFirst();
        if (optionsEnded || !argument.startsWith("--")) {
            words.append(argument);
            return true;
        }
        optionsEnded = argument == "--";
        return optionsEnded || takeOption(argument);
    }

    bool takeOption(const QByteArray &option)
    {
        if (!isDataOption(option) && option != "--count") {
            complain("unknown option ", option);
            return false;
        }
        if (arguments.isEmpty()) {
            complain("a value is missing after ", option);
            return false;
        }
        const QByteArray value = arguments.takeFirst();
        return option == "--count" ? takeCount(value) : takeData(option, value);
    }

    bool takeCount(const QByteArray &value)
    {
        bool isNumber = false;
        parsed.count = value.toLongLong(&isNumber);
        if (!isNumber || parsed.count < 1) {
            complain("--count wants a number from 1 on, not ", value);
            return false;
        }
        return true;
    }

    bool takeData(const QByteArray &option, const QByteArray &value)
    {
        if (hasData) {
            complain("there is more than one data block: ", option);
            return false;
        }
        hasData = true;
        const std::optional<QByteArray> data = dataOf(option, value);
        parsed.data = data.value_or(QByteArray());
        return data.has_value();
    }

    std::optional<Request> checked()
    {
        const QByteArray command = words.value(0);
        if (command == "send" && words.size() == 3 && parsed.count == 0)
            parsed.message = words[2];
        else if (command != "listen" || words.size() != 2 || hasData) {
            complain("wrong usage; kavqcop --help shows the right one");
            return std::nullopt;
        }
        parsed.command = command;
        parsed.channel = words[1];
        return parsed;
    }

    QList<QByteArray> arguments;
    QList<QByteArray> words;
    bool optionsEnded = false;
    bool hasData = false;
    Request parsed;
};

bool connectToBus()
{
    if (QCopBus::instance()->waitFor(busPatience))
        return true;
    complain("there is no session bus (is DBUS_SESSION_BUS_ADDRESS set?)");
    return false;
}

int send(const Request &request)
{
    if (!QCopBus::isSendable(request.channel, request.message, request.data)) {
        complain("the message is larger than a bus carries");
        return exitFailure;
    }
    if (!connectToBus())
        return exitFailure;
    if (!QCopChannel::send(request.channel, request.message, request.data) ||
        !QCopBus::instance()->sync(busPatience)) {
        complain("the session bus did not take the message");
        return exitFailure;
    }
    return EXIT_SUCCESS;
}

QByteArray escaped(const QByteArray &bytes)
{
    QByteArray text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        if (byte == '\\')
            text += "\\\\";
        else if (byte >= ' ' && byte <= '~')
            text += byte;
        else
            text += "\\x" + QByteArray(1, byte).toHex();
    }
    return text;
}

// False, and said, when nobody takes it.
bool print(const QByteArray &text)
{
    const auto length = static_cast<size_t>(text.size());
    if (std::fwrite(text.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0)
        return true;
    complain("cannot write to the standard output");
    return false;
}

// Counts down a request's messages.
class Listener
{
public:
    explicit Listener(const Request &request)
        : left(request.count)
        , channel(request.channel)
    {
        QObject::connect(&channel, &QCopChannel::received, &channel,
                         [this](const QCString &message, const QByteArray &data) { take(message, data); });
        QObject::connect(QCopBus::instance(), &QCopBus::lost, &channel, [] {
            complain("the session bus went away");
            QCoreApplication::exit(exitFailure);
        });
    }

private:
    void take(const QCString &message, const QByteArray &data)
    {
        if (done)
            return;
        if (!print(escaped(message) + '\t' + escaped(data) + '\n')) {
            end(exitFailure);
        } else if (left > 0 && --left == 0) {
            end(EXIT_SUCCESS);
        }
    }

    // What is already under way must not be printed any more.
    void end(int status)
    {
        done = true;
        QCoreApplication::exit(status);
    }

    qint64 left;
    bool done = false;
    QCopChannel channel;
};

// A reader of the output that goes is an error and not the end. And what is opened later must not get the number of a
// standard stream that was closed: in its place comes one that takes nothing.
void guardStandardStreams()
{
    std::signal(SIGPIPE, SIG_IGN);
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) == -1)
            static_cast<void>(::open("/dev/null", O_RDONLY) == stream);
    }
}

int listen(const Request &request)
{
    QCopBus::instance()->receive();
    if (!connectToBus())
        return exitFailure;
    const Listener listener(request);
    complain("listening on ", escaped(request.channel));
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    guardStandardStreams();
    CommandLine commandLine(argc, argv);
    if (commandLine.asksFor("--help"))
        return print(helpText) ? EXIT_SUCCESS : exitFailure;
    if (commandLine.asksFor("--version"))
        return print("kavqcop " KAV_VERSION "\n") ? EXIT_SUCCESS : exitFailure;
    const std::optional<Request> request = commandLine.request();
    if (!request)
        return exitUsage;
    const QCoreApplication application(argc, argv);
    return request->command == "send" ? send(*request) : listen(*request);
}
