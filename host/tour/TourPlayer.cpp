#include "host/tour/TourPlayer.h"

#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/Status.h"
#include "handset/UpdateBroadcast.h"
#include "host/ExitCode.h"
#include "host/ScreenTable.h"
#include "host/StatusText.h"
#include "simulated/ReadyMadeHistory.h"
#include "toolkit/ZApplication.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace host::tour {

using handset::CallDirection;
using handset::simulated::SimulatedHandset;
using LineState = SimulatedHandset::LineState;

namespace {

constexpr qint64 firstMomentMs = 1141905600000; // 2006-03-09 12:00 UTC, so that every tour sees the same dates
constexpr int settlingTurns = 3;                // a key may end a screen, which passes the keys on, which repaints

constexpr StatusMeaning tourMeaning{
    QT_TRANSLATE_NOOP("host::StatusText", "a value is out of range"),
    QT_TRANSLATE_NOOP("host::StatusText", "it is not possible now"),
    QT_TRANSLATE_NOOP("host::StatusText", "the SIM or the network does not allow it"),
};

QString lineWord(LineState state)
{
    switch (state) {
    case LineState::Idle:
        return QStringLiteral("idle");
    case LineState::Dialing:
        return QStringLiteral("dialing");
    case LineState::Ringing:
        return QStringLiteral("ringing");
    case LineState::Connected:
        break;
    }
    return QStringLiteral("connected");
}

void typeText(const Key &key)
{
    QWidget *target = ZApplication::keyTarget();
    if (!target)
        return;
    const auto shift = key.text.front().isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    QKeyEvent press(QEvent::KeyPress, key.qtKey, shift, key.text);
    QCoreApplication::sendEvent(target, &press);
}

void pressKey(const Key &key)
{
    if (key.text.isNull())
        ZApplication::pressKey(key.qtKey);
    else
        typeText(key);
}

} // namespace

TourPlayer::TourPlayer(const ScreenLibrary &pluginLibrary, const Options &tourOptions, QTextStream &transcript,
                       QTextStream &complaints, std::function<bool()> askedToEnd)
    : library(pluginLibrary)
    , options(tourOptions)
    , output(transcript)
    , errors(complaints)
    , isAskedToEnd(std::move(askedToEnd))
    , photographs(tourOptions.tourDirectory)
    , clock(std::make_shared<handset::ManualClock>(firstMomentMs))
    , screens(library, &display)
{
    QObject::connect(&screens, &ScreenHost::closed, &display, [this] {
        if (menu)
            menu->takeFocus();
    });
    QApplication::setCursorFlashTime(0); // a cursor is on every photograph of its field
    display.show();
}

TourPlayer::~TourPlayer()
{
    screens.close();
    handset::install(nullptr);
}

int TourPlayer::play(const Script &played)
{
    script = &played;
    place = QCoreApplication::applicationName();
    if (const QString problem = photographs.prepare(); !problem.isEmpty()) {
        stop(ExitNotWritten, problem);
        return stopped;
    }
    place = script->name;
    if (!hasDirectoryToKeep(played))
        return stopped;
    collectMoves(played);
    scheduleTurn();
    loopLevel = QThread::currentThread()->loopLevel() + 1;
    loop.exec();
    return finish();
}

void TourPlayer::interrupt()
{
    if (!stopped)
        stop(ExitInterrupted, QStringLiteral("The tour was ended by a signal."));
}

// Said before anything is played, as the script's mistakes are.
bool TourPlayer::hasDirectoryToKeep(const Script &played)
{
    if (options.stateGiven && !options.stateDirectory.isEmpty())
        return true;
    const auto keeps = [](const Step &step) {
        const auto *state = std::get_if<SetState>(&step.action);
        return state && state->kind == SetState::Kept;
    };
    const auto found = std::find_if(played.steps.begin(), played.steps.end(), keeps);
    if (found == played.steps.end())
        return true;
    place = played.place(found->line);
    stop(ExitBadCommandLine, QStringLiteral("The script keeps its state: option 'state' must name a directory."));
    return false;
}

void TourPlayer::collectMoves(const Script &played)
{
    static const Step emptyState{0, {}, SetState{}};
    const bool beginsWithState =
        !played.steps.isEmpty() && std::holds_alternative<SetState>(played.steps.constFirst().action);
    if (!beginsWithState)
        moves.append(Move{&emptyState, {}});
    for (const Step &step : played.steps) {
        moves.append(Move{&step, {}});
        if (const auto *press = std::get_if<Press>(&step.action)) {
            for (const Key &key : press->keys)
                moves.append(Move{&step, key});
        }
    }
}

// A timer for each turn: one that is being served does not fire again in the loop of a dialog that blocks.
void TourPlayer::scheduleTurn()
{
    QTimer::singleShot(0, this, &TourPlayer::turn);
}

void TourPlayer::turn()
{
    if (handsetWaits) {
        isHeld = true;
        return;
    }
    if (turnsToWait > 0) {
        --turnsToWait;
        scheduleTurn();
        return;
    }
    if (display.isVisible())
        look();
    if (closesScreens()) {
        photographWhatIsMet();
        if (!unblock())
            return;
    }
    if (isAtEnd()) {
        loop.quit();
        return;
    }
    const Move &move = moves[nextMove++];
    turnsToWait = settlingTurns;
    // Before it is done: the next move may be what ends it. None is to come while a handset is opened, which may let
    // events run.
    const bool opensHandset = !move.key && std::holds_alternative<SetState>(move.step->action);
    if (!opensHandset)
        scheduleTurn();
    act(move);
    if (opensHandset)
        scheduleTurn();
}

bool TourPlayer::isAtEnd() const
{
    return stopped || nextMove == moves.size();
}

// Whether the next move does.
bool TourPlayer::closesScreens() const
{
    if (isAtEnd())
        return true;
    const Step &step = *moves[nextMove].step;
    return std::holds_alternative<SetState>(step.action) || std::holds_alternative<Open>(step.action);
}

// True when no dialog blocks the screen. Such a dialog gives up when the display goes out of sight; the screen can
// be closed when it has gone on from there.
bool TourPlayer::unblock()
{
    const bool blocked = QThread::currentThread()->loopLevel() > loopLevel;
    display.setVisible(!blocked);
    if (blocked)
        scheduleTurn();
    return !blocked;
}

void TourPlayer::act(const Move &move)
{
    const bool onlyLooks =
        std::holds_alternative<Expect>(move.step->action) || std::holds_alternative<Photo>(move.step->action);
    if (!onlyLooks)
        photographWhatIsMet();
    if (stopped)
        return;
    if (move.key) {
        pressKey(*move.key);
        return;
    }
    if (move.step->line > 0)
        place = script->place(move.step->line);
    if (!onlyLooks && !move.step->source.isEmpty())
        output << move.step->source << '\n';
    std::visit([this](const auto &action) { perform(action); }, move.step->action);
}

int TourPlayer::finish()
{
    if (stopped)
        return stopped;
    output << "\n"
           << expectations - failures << " of " << expectations << " expectations met, " << photographs.count()
           << " photographs in " << options.tourDirectory << '\n';
    output.flush();
    if (output.status() != QTextStream::Ok) {
        place = QCoreApplication::applicationName();
        stop(ExitNotWritten, QStringLiteral("The text of the tour cannot be written."));
        return stopped;
    }
    return failures ? ExitExpectationFailed : ExitSuccess;
}

// --- the handset

void TourPlayer::perform(const SetState &action)
{
    openHandset(action.kind == SetState::Kept ? options.stateDirectory : QString());
    if (!owner)
        return;
    if (action.kind == SetState::ReadyMade && handset)
        checkStatus(handset->addHistory(handset::simulated::readyMadeHistory(clock->wallMs())));
    freshDisplay();
}

// The handset before it must be gone first: it may hold the same directory.
void TourPlayer::openHandset(const QString &directory)
{
    screens.close();
    handset::install(nullptr);
    handset = nullptr;
    installed.reset();
    owner.reset();
    handset::Settings settings{options.backend, directory, clock};
    settings.isGivenUp = isAskedToEnd;
    settings.tell = [this](const QString &finding) { errors << place << ": " << finding << Qt::endl; };
    settings.progress = [this](const QString &step, int percent) {
        errors << place << ": " << step << ": " << percent << " %" << Qt::endl;
    };
    const handset::Opened opened = handset::open(settings);
    if (!opened.notice.isEmpty())
        errors << place << ": " << opened.notice << Qt::endl;
    if (!opened.handset) {
        if (isAskedToEnd())
            return interrupt();
        stop(ExitNoHandset, opened.error);
        return;
    }
    owner = opened.handset;
    owner->setWaitListener([this](bool waits) { holdWhile(waits); });
    handset = dynamic_cast<handset::simulated::SimulatedHandset *>(owner.get());
    installed = std::make_shared<FaultyHandset>(owner);
    handset::install(installed);
}

// Nobody's keys are taken while the handset waits for its daemon, those of the tour neither.
void TourPlayer::holdWhile(bool waits)
{
    handsetWaits = waits;
    if (!waits && std::exchange(isHeld, false))
        scheduleTurn();
}

void TourPlayer::freshDisplay()
{
    met = {};
    menu = std::make_unique<MenuScreen>(&display);
    QObject::connect(menu.get(), &MenuScreen::chosen, &screens, &ScreenHost::open);
    menu->show();
    menu->takeFocus();
}

template <typename Call>
void TourPlayer::drive(Call call)
{
    checkStatus(handset ? call(*handset) : static_cast<int>(handset::NotAvailable));
}

template <typename Call>
void TourPlayer::adviseOfCharge(Call call)
{
    handset::AdviceOfCharge *advice = owner->adviceOfCharge();
    checkStatus(advice ? call(*advice) : static_cast<int>(handset::NotAvailable));
}

void TourPlayer::perform(const MakeCall &action)
{
    if (!handset) {
        checkStatus(handset::NotAvailable);
        return;
    }
    const bool dialed = action.direction == CallDirection::Dialed;
    checkStatus(dialed ? handset->dial(action.number, action.kind) : handset->ring(action.number));
    checkStatus(dialed ? handset->remoteAnswer() : handset->answer());
    perform(MoveClock{action.durationMs});
    if (handset->lineState() != LineState::Idle) // else the handset has ended it
        checkStatus(handset->hangUp());
}

void TourPlayer::perform(const Dial &action)
{
    drive([&](SimulatedHandset &driven) { return driven.dial(action.number, action.kind); });
}

void TourPlayer::perform(const Ring &action)
{
    drive([&](SimulatedHandset &driven) { return driven.ring(action.number); });
}

void TourPlayer::perform(const Answer &)
{
    drive([](SimulatedHandset &driven) {
        return driven.lineState() == LineState::Dialing ? driven.remoteAnswer() : driven.answer();
    });
}

void TourPlayer::perform(const HangUp &)
{
    drive([](SimulatedHandset &driven) { return driven.hangUp(); });
}

// The handset's own timers know nothing of the tour's clock.
void TourPlayer::perform(const MoveClock &action)
{
    clock->advance(action.ms);
    if (handset)
        checkStatus(handset->checkpoint());
}

void TourPlayer::perform(const SetTariff &action)
{
    drive([&](SimulatedHandset &driven) { return driven.charging()->setTariff(action.direction, action.tariff); });
}

void TourPlayer::perform(const TopUp &action)
{
    drive([&](SimulatedHandset &driven) { return driven.charging()->topUp(action.amount, action.expires); });
}

void TourPlayer::perform(const SetChargeType &action)
{
    adviseOfCharge([&](handset::AdviceOfCharge &advice) { return advice.setChargeType(action.type); });
}

void TourPlayer::perform(const SetPrice &action)
{
    adviseOfCharge([&](handset::AdviceOfCharge &advice) {
        return advice.setPriceAndCurrency(action.price, action.currency);
    });
}

void TourPlayer::perform(const SetLimit &action)
{
    adviseOfCharge([&](handset::AdviceOfCharge &advice) {
        return action.maximum.isNull() ? advice.disableMeterMaximum() : advice.setMeterMaximum(action.maximum);
    });
}

void TourPlayer::perform(const SetRule &action)
{
    drive([&](SimulatedHandset &driven) { return driven.simCard().setUpdateRule(action.file, action.rule); });
}

void TourPlayer::perform(const SetPin2 &action)
{
    drive([&](SimulatedHandset &driven) {
        return action.kind == SetPin2::Forgotten ? driven.simCard().powerCycle()
                                                 : driven.simCard().setPin2Enabled(action.kind == SetPin2::On);
    });
}

void TourPlayer::perform(const Fail &action)
{
    if (action.operation < 0)
        installed->faults().clear();
    else
        installed->faults().set(action.operation, action.code);
}

void TourPlayer::perform(const StartSession &action)
{
    drive([&](SimulatedHandset &driven) {
        return driven.packets().startSession(action.apn, action.sentPerSecond, action.receivedPerSecond);
    });
}

void TourPlayer::perform(const StopSession &)
{
    drive([](SimulatedHandset &driven) { return driven.packets().stopSession(); });
}

void TourPlayer::perform(const Broadcast &)
{
    handset::broadcastUpdate();
}

void TourPlayer::checkStatus(int status)
{
    if (status == handset::Success)
        return;
    ++expectations;
    const QString reason = reasonText(status, tourMeaning);
    const QString name = statusName(status);
    fail(QStringLiteral("the telephone does it"),
         reason.isEmpty() ? name : QStringLiteral("%1, %2").arg(name, reason));
}

// --- the phone

void TourPlayer::perform(const Open &action)
{
    screens.close();
    if (!screens.open(action.screen)) {
        const char *name = screenTable[static_cast<std::size_t>(action.screen)].name;
        fail(QStringLiteral("screen %1").arg(QLatin1StringView(name)),
             QStringLiteral("no screen from the plug-in"));
    }
}

// --- looking

ScreenText TourPlayer::read() const
{
    ScreenText text = readScreen();
    if (handset)
        text.facts.append({QStringLiteral("line"), -1, {lineWord(handset->lineState())}});
    return text;
}

void TourPlayer::look()
{
    const ScreenText now = read();
    if (now.isSameAs(met))
        return;
    met = now;
    photographDue = true;
    print(now);
}

void TourPlayer::photographWhatIsMet()
{
    if (!photographDue)
        return;
    photographDue = false;
    QString file;
    if (const QString problem = photographs.takeNumbered(display.photograph(), met.name, file); !problem.isEmpty())
        stop(ExitNotWritten, problem);
    else
        output << "  photo " << file << "\n\n";
}

void TourPlayer::perform(const Photo &action)
{
    photographDue = false;
    QString file;
    if (const QString problem = photographs.takeNamed(display.photograph(), action.name, file); !problem.isEmpty())
        stop(ExitNotWritten, problem);
    else
        output << "  photo " << file << "\n\n";
}

void TourPlayer::perform(const Show &)
{
    print(read());
}

void TourPlayer::print(const ScreenText &text)
{
    for (const Fact &fact : text.facts)
        output << "  " << fact.line() << '\n';
    output.flush();
}

void TourPlayer::perform(const Expect &action)
{
    ++expectations;
    const ScreenText now = read();
    const Fact *seen = now.find(action.fact.word, action.fact.number);
    if (action.absent ? !seen : seen && *seen == action.fact)
        return;
    const Fact named{action.fact.word, action.fact.number, {}};
    const QString nothing = QStringLiteral("no ") + named.line();
    fail(action.absent ? nothing : action.fact.line(), seen ? seen->line() : nothing);
}

void TourPlayer::fail(const QString &expected, const QString &seen)
{
    ++failures;
    output.flush();
    errors << place << ": expected: " << expected << '\n' << place << ": seen:     " << seen << Qt::endl;
}

void TourPlayer::stop(int code, const QString &message)
{
    stopped = code;
    output.flush();
    errors << place << ": " << message << Qt::endl;
}

} // namespace host::tour
