// The script of a tour: what to do, what to see.
#pragma once

#include "charging/Tariff.h"
#include "handset/AdviceOfCharge.h"
#include "handset/Call.h"
#include "handset/Date.h"
#include "host/tour/ScreenText.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <variant>

namespace host::tour {

struct SetState {
    enum Kind { Empty, ReadyMade, Kept } kind = Empty;
};
struct MakeCall {
    handset::CallDirection direction = handset::CallDirection::Dialed;
    handset::CallKind kind = handset::CallKind::Voice;
    qint64 durationMs = 0;
    QString number;
};
struct Dial {
    QString number;
    handset::CallKind kind = handset::CallKind::Voice;
};
struct Ring {
    QString number; ///< empty is withheld
};
struct Answer {
};
struct HangUp {
};
struct MoveClock {
    qint64 ms = 0;
};
struct SetTariff {
    handset::CallDirection direction = handset::CallDirection::Dialed;
    handset::charging::Tariff tariff;
};
struct TopUp {
    QString amount;
    handset::Date expires;
};
struct SetChargeType {
    quint8 type = handset::AdviceOfCharge::InUnits;
};
struct SetPrice {
    QString price;
    QString currency;
};
struct SetLimit {
    QString maximum; ///< null is none
};
struct SetRule {
    quint8 file = handset::AdviceOfCharge::AcmFile;
    quint8 rule = handset::AdviceOfCharge::FreeUpdate;
};
struct SetPin2 {
    enum Kind { On, Off, Forgotten } kind = On;
};
struct Fail {
    int operation = -1; ///< row of handset::operationNames; -1: all work again
    int code = 0;       ///< 0: the operation works again
};
struct StartSession {
    QByteArray apn;
    quint32 sentPerSecond = 0;
    quint32 receivedPerSecond = 0;
};
struct StopSession {
};
struct Broadcast {
};
struct Open {
    int screen = 0; ///< row of the screen table
};
/// A key of the phone, or one of a keyboard, which types a text.
struct Key {
    int qtKey = 0;
    QString text; ///< null for a key of the phone

    friend bool operator==(const Key &, const Key &) = default;
};
struct Press {
    QList<Key> keys;
};
struct Expect {
    Fact fact;
    bool absent = false; ///< the fact must not be there
};
struct Photo {
    QString name; ///< file name without its ending
};
struct Show {
};

using Action = std::variant<SetState, MakeCall, Dial, Ring, Answer, HangUp, MoveClock, SetTariff, TopUp,
                            SetChargeType, SetPrice, SetLimit, SetRule, SetPin2, Fail, StartSession, StopSession,
                            Broadcast, Open, Press, Expect, Photo, Show>;

struct Step {
    int line = 0;   ///< in the script, from 1
    QString source; ///< as written, for the transcript
    Action action;
};

struct Script {
    QString name; ///< how messages call it: as given on the command line, the shipped one "tour.tour"
    QList<Step> steps;
    QStringList mistakes; ///< "name:line: what is wrong", one for each line that is not understood

    /// "name:line"
    QString place(int line) const { return QStringLiteral("%1:%2").arg(name).arg(line); }
};

/// What a script may hold: so many steps, and so many keys in all of them together. A tour of that size runs for hours.
inline constexpr int mostSteps = 20'000;
inline constexpr int mostKeys = 200'000;

/// Reads the text of a script. Every line is looked at, so that all mistakes are told at once; from the first line on
/// that is one step too many, or has a key too many, nothing more is.
Script parseScript(const QString &name, const QString &text);

/// "1h2m3s", "65s", "250ms" in milliseconds, 0 or more; -1 when it is no duration or more than 100 years.
qint64 parseDuration(const QString &text);

} // namespace host::tour
