#include "qt/BusGuard.h"

#include "qt/qcop/BusAddress.h"
#include "qt/qcop/BusProbe.h"

#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <chrono>
#include <optional>

using namespace std::chrono_literals;

namespace {

using Answer = BusProbe::Answer;

constexpr std::chrono::milliseconds patience = 250ms;
constexpr char accessibilityVariable[] = "AT_SPI_BUS_ADDRESS"; // where it is set, Qt looks nowhere else

} // namespace

BusGuard::BusGuard()
{
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
