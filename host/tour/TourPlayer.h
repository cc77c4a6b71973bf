// Plays the script of a tour on a phone without a window around it.
#pragma once

#include "host/MenuScreen.h"
#include "host/Options.h"
#include "host/ScreenHost.h"
#include "host/faults/FaultyHandset.h"
#include "host/phone/Display.h"
#include "host/tour/Photographs.h"
#include "host/tour/TourScript.h"
#include "simulated/SimulatedHandset.h"

#include <QtCore/QEventLoop>

#include <functional>
#include <memory>
#include <optional>

class QTextStream;

namespace handset {
class ManualClock;
}

namespace host::tour {

/// Does one thing a turn of the event loop and looks at the display once what it has set off is over. A dialog that
/// blocks its screen until it is answered, with an event loop of its own, is so answered by the steps that follow.
class TourPlayer : public QObject
{
    Q_OBJECT

public:
    /// `library` is loaded; the streams and it outlive the player.
    /// `isAskedToEnd` says whether interrupt() is about to be called, so that a long opening of a handset is given up.
    TourPlayer(const ScreenLibrary &library, const Options &options, QTextStream &output, QTextStream &errors,
               std::function<bool()> isAskedToEnd);
    ~TourPlayer() override;

    /// Plays `script`, which has no mistakes, and returns an ExitCode.
    int play(const Script &script);

    /// Ends the tour before its next step, as at its end: screens are closed, a running call is ended and written.
    /// play() then answers ExitInterrupted.
    void interrupt();

private:
    void perform(const SetState &action);
    void perform(const MakeCall &action);
    void perform(const Dial &action);
    void perform(const Ring &action);
    void perform(const Answer &action);
    void perform(const HangUp &action);
    void perform(const MoveClock &action);
    void perform(const SetTariff &action);
    void perform(const TopUp &action);
    void perform(const SetChargeType &action);
    void perform(const SetPrice &action);
    void perform(const SetLimit &action);
    void perform(const SetRule &action);
    void perform(const SetPin2 &action);
    void perform(const Fail &action);
    void perform(const StartSession &action);
    void perform(const StopSession &action);
    void perform(const Broadcast &action);
    void perform(const Open &action);
    void perform(const Press &) {} // its keys are moves of their own
    void perform(const Expect &action);
    void perform(const Photo &action);
    void perform(const Show &action);

    /// What is done in one turn: a step, or one of the keys it presses.
    struct Move {
        const Step *step;
        std::optional<Key> key;
    };

    bool hasDirectoryToKeep(const Script &script);
    void collectMoves(const Script &script);
    void scheduleTurn();
    void turn();
    bool isAtEnd() const;
    bool closesScreens() const;
    bool unblock();
    void act(const Move &move);
    template <typename Call>
    void drive(Call call);
    template <typename Call>
    void adviseOfCharge(Call call);
    void openHandset(const QString &directory);
    void freshDisplay();
    void look();
    void photographWhatIsMet();
    void print(const ScreenText &text);
    ScreenText read() const;
    void holdWhile(bool waits);
    void checkStatus(int status);
    void fail(const QString &expected, const QString &seen);
    void stop(int code, const QString &message);
    int finish();

    const ScreenLibrary &library;
    const Options &options;
    QTextStream &output;
    QTextStream &errors;
    std::function<bool()> isAskedToEnd;
    Photographs photographs;

    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    std::shared_ptr<FaultyHandset> installed; // in front of it
    handset::simulated::SimulatedHandset *handset = nullptr;
    Display display;
    std::unique_ptr<MenuScreen> menu;
    ScreenHost screens;

    const Script *script = nullptr;
    QList<Move> moves;
    qsizetype nextMove = 0;
    int turnsToWait = 0;
    bool handsetWaits = false; // for its daemon
    bool isHeld = false;       // the next turn, until that is over
    int loopLevel = 0;         // of the loop that the tour is played in
    QEventLoop loop;
    QString place; // of the step that is played
    ScreenText met;
    bool photographDue = false;
    int expectations = 0;
    int failures = 0;
    int stopped = 0; // the exit code that ended the tour early
};

} // namespace host::tour
