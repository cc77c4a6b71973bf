// The telephone line as the panel and the keypad drive it.
#pragma once

#include "handset/LineControl.h"
#include "simulated/SimulatedHandset.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace host {

class Line : public QObject
{
    Q_OBJECT

public:
    using SimulatedHandset = handset::simulated::SimulatedHandset;
    using Charging = handset::calllog::Charging;

    enum class Action { Dial, DialData, RemoteAnswer, Ring, Answer, HangUp };

    static constexpr int longestNumber = 80;

    /// A simulated handset is driven whole. Of one with a LineControl what a modem does: dialing, answering, hanging up.
    /// Another one cannot be driven.
    explicit Line(std::shared_ptr<handset::Handset> handset);
    ~Line() override;

    handset::Handset &handset() const { return *owner; }
    /// Null when the handset behind is another than the simulated one.
    SimulatedHandset *simulatedHandset() const { return simulated; }
    /// Null when the line is no modem's.
    const handset::LineControl *modemLine() const { return control; }
    /// The own tariff and the prepaid account, where it is they that charge calls; null where the handset has none, or a
    /// modem's advice of charge says what calls cost.
    Charging *charging() const;
    /// A call is connected or a session runs: what is shown changes without being told.
    bool isCounting() const;

    /// The number that the next call is from or to.
    QString number() const { return nextNumber; }
    void setNumber(const QString &number);
    /// Appends what the keypad types; the first digit after a call begins a new number.
    void typeNumber(QChar digit);
    /// Takes back the last digit of a number that typeNumber() has begun; nothing after a call or setNumber().
    void takeBackDigit();

    /// What typeNumber() has begun, until a call or pressHangUpKey(); else empty.
    QString typedNumber() const { return typing ? nextNumber : QString(); }

    /// The calls that are there, the one that asks for an answer first, then the one that is being set up, or is spoken.
    QList<handset::LineCall> calls() const;
    /// Whether the line is in the state that `action` needs.
    bool permits(Action action) const;
    void perform(Action action);
    /// The green key: answers, or dials the number.
    void pressCallKey();
    /// The red key: ends a call. Without one, a number that is being typed is no longer: the next digit begins another.
    void pressHangUpKey();
    /// Adds the ready-made calls to the log.
    void addReadyMadeHistory();

    /// What is going on, for a person: "Connected 00:01:05, voice call, 5551234".
    QString describeState() const;
    /// That the end of what may be charged is near, or that the handset has ended the last call for it; else empty.
    QString chargeNotice() const;
    /// That the end of a call or a session is not in the call log yet; else empty.
    QString recordNotice() const;
    /// What the handset has told while it runs (handset::Settings::tell), a sentence a line; else empty.
    QString toldNotice() const { return told.join(QLatin1Char('\n')); }
    void addNotice(const QString &notice);
    /// Why the last operation failed; empty when it did not.
    QString failure() const { return lastFailure; }

signals:
    /// The line state, a figure, the number, a notice or the failure has changed.
    void changed();

private:
    void changeNumber(const QString &number);
    int run(Action action);
    int runOnModem(Action action);
    void finish(int status);

    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *simulated;
    handset::LineControl *control;
    QString nextNumber = QStringLiteral("5550123");
    bool typing = false;
    QStringList told;
    QString lastFailure;
};

/// "hh:mm:ss", the hours as long as they need to be.
QString clockText(qint64 seconds);

} // namespace host
