#include "qt/BusGuard.h"

#include "qt/qcop/BusAddress.h"
#include "qt/qcop/BusProbe.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <algorithm>
#include <chrono>
#include <optional>
#include <vector>

using namespace std::chrono_literals;

namespace {

using Answer = BusProbe::Answer;

constexpr std::chrono::milliseconds patience = 250ms;
constexpr char accessibilityVariable[] = "AT_SPI_BUS_ADDRESS"; // where it is set, Qt looks nowhere else
constexpr char inputMethodVariable[] = "QT_IM_MODULE";
constexpr char inputMethod[] = "ibus"; // the one of Qt's own that has a bus of its own
constexpr char addressFileVariable[] = "IBUS_ADDRESS_FILE";
constexpr QByteArrayView addressKey("IBUS_ADDRESS=");
constexpr qint64 longestFile = 64 << 10; // bytes; some lines are usual

// Its daemon writes a file for each display. Those of others are asked, too, which costs no time.
QStringList addressFiles()
{
    if (const QString told = qEnvironmentVariable(addressFileVariable); !told.isEmpty())
        return {told};
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) +
                      QStringLiteral("/ibus/bus"));
    QStringList files;
    for (const QString &name : folder.entryList(QDir::Files)) // no pipe, which might never be written
        files << folder.filePath(name);
    return files;
}

QByteArray addressIn(const QString &name)
{
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray &line : file.read(longestFile).split('\n'))
        if (line.startsWith(addressKey))
            return line.mid(addressKey.size()).trimmed();
    return {};
}

} // namespace

BusGuard::BusGuard()
{
    askInputMethod();
    if (const QByteArray told = qgetenv(accessibilityVariable); !told.isEmpty() && told != BusAddress::none)
        toldAccessibility = std::make_unique<BusProbe>(BusProbe::ofBus(told));
    if (const QByteArray addresses = BusAddress::ofSession(); addresses != BusAddress::none)
        askSession(addresses);
}

BusGuard::~BusGuard() = default;

void BusGuard::askSession(const QByteArray &addresses)
{
    const bool isToldAccessibility = !qEnvironmentVariableIsEmpty(accessibilityVariable);
    const BusProbe probe = isToldAccessibility ? BusProbe::ofBus(addresses) : BusProbe::ofSession(addresses);
    const Answer answer = probe.answer(BusProbe::Clock::now() + patience);
    if (answer == Answer::Given && !isToldAccessibility)
        session = std::make_unique<BusProbe>(probe);
    if (answer != Answer::Given)
        BusAddress::hideSession();
    if (answer == Answer::Silence)
        giveUp("session");
}

void BusGuard::askInputMethod()
{
    if (qgetenv(inputMethodVariable) != inputMethod)
        return;
    std::vector<BusProbe> probes;
    for (const QString &file : addressFiles())
        if (const QByteArray address = addressIn(file); !address.isEmpty())
            probes.push_back(BusProbe::ofBus(address));
    const auto deadline = BusProbe::Clock::now() + patience;
    const bool isSilent = std::any_of(probes.begin(), probes.end(), [&](const BusProbe &probe) {
        return probe.answer(deadline) == Answer::Silence;
    });
    if (!isSilent)
        return;
    qunsetenv(inputMethodVariable);
    found << QStringLiteral(
        "The bus of the input method does not answer; until the program is started anew, text is "
        "typed without it.");
}

void BusGuard::guardAccessibility(const QByteArray &announced)
{
    if (!isAccessibilitySilent(announced))
        return;
    qputenv(accessibilityVariable, BusAddress::none);
    giveUp("accessibility");
}

// The one that is told is the only one that Qt looks at; else Qt needs a session bus.
bool BusGuard::isAccessibilitySilent(const QByteArray &announced) const
{
    const auto deadline = BusProbe::Clock::now() + patience;
    if (toldAccessibility)
        return toldAccessibility->answer(deadline) == Answer::Silence;
    if (!session)
        return false;
    std::optional<BusProbe> onDisplay;
    if (!announced.isEmpty())
        onDisplay = BusProbe::ofBus(announced);
    return session->accessibility(deadline) == Answer::Silence ||
           (onDisplay && onDisplay->answer(deadline) == Answer::Silence);
}

void BusGuard::giveUp(const char *bus)
{
    found << QStringLiteral(
                 "The %1 bus does not answer; until the program is started anew, accessibility tools do not "
                 "see its window.")
                 .arg(QLatin1StringView(bus));
}
