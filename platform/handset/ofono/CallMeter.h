// The advice of charge of a modem behind oFono: the SIM's meter, its maximum, the price.
#pragma once

#include "charging/UnitPrice.h"
#include "ofono/OfonoModem.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <optional>

namespace handset::ofono {

/// What the daemon says of CallMeter and of the tries of PIN2, kept fresh: by signals, and by asking for all of it when
/// the interface appears, after each write, and whenever refresh() is called, as the accumulated meter is not told.
class CallMeter : public QObject
{
    Q_OBJECT

public:
    /// How a write has ended.
    enum class Outcome {
        Written,
        Refused,   ///< a plain failure: the PIN2 was wrong, or the card has refused; tries() tell which
        Malformed, ///< the daemon has not asked the card
        NotThere,  ///< the modem has no advice of charge, or no more
        Unanswered ///< in time: silence, or the daemon was busy all the while
    };

    /// How long a write waits for the daemon, all in all; a screen that waits longer seems to stand still.
    static constexpr int usualWaitMs = 5'000;
    /// After which it is asked again while it is busy.
    static constexpr int retryMs = 100;

    /// The modem outlives this.
    explicit CallMeter(OfonoModem &owner, int longestWaitMs = usualWaitMs);

    bool isThere() const { return modem.has("CallMeter"); }
    /// The daemon has answered, with an error perhaps, what it was asked for when the interfaces appeared.
    bool isAnswered() const { return !isMeterAsked && !isSimAsked; }
    /// Units. Nothing as long as the daemon has not told them, nor while all that it tells is zeros and no currency: that is
    /// what it says of a card that it cannot read, too. So all that follow.
    std::optional<quint32> accumulated() const { return known().accumulated; }
    std::optional<quint32> maximum() const { return known().maximum; } ///< 0: none
    std::optional<charging::UnitPrice> price() const { return known().price; }
    std::optional<QString> currency() const { return known().currency; }
    /// Likewise, and whether or not there is a card behind it.
    std::optional<quint32> toldMaximum() const { return values.maximum; }
    /// That PIN2 has left.
    std::optional<int> tries() const { return pin2Tries; }
    /// Of PIN1, as the daemon names what is to be entered: "none", "pin", "puk", ...
    QString pinRequired() const { return required; }

    /// Waits for the daemon, the window being painted and nobody's input taken meanwhile; the values are fresh afterwards.
    /// One at a time: Unanswered for a second one that is begun within.
    Outcome write(const QString &property, const QVariant &value, const QByteArray &pin2);
    Outcome reset(const QByteArray &pin2);
    /// Of a write that was refused with so many tries left before it: waits until there are fewer; false when they stay.
    bool hasCostATry(int before);
    /// A series of writes has one time to wait in.
    void beginSeries();
    void endSeries() { isSeries = false; }

    /// Asks for all values; nothing waits for that.
    void refresh();

signals:
    /// A value is another, or isThere().
    void changed();
    /// A write begins, or ends, to wait for the daemon.
    void waiting(bool waits);
    /// The accumulated meter has been read: units.
    void accumulatedRead(quint32 units);
    /// The accumulated meter has been reset from here.
    void zeroed();
    /// The meter of the call that is on has been told: units.
    void currentTold(quint32 units);

private:
    struct Values {
        std::optional<quint32> accumulated;
        std::optional<quint32> maximum;
        std::optional<charging::UnitPrice> price;
        std::optional<QString> currency;

        bool isNothing() const;
    };
    using Send = std::function<QDBusPendingCall()>;

    Values known() const { return isCardKnown ? values : Values(); }
    void appearOrVanish();
    void take(const QString &name, const QVariant &value);
    void takeAll(const QVariantMap &all);
    void takeSim(const QString &name, const QVariant &value);
    void askSim();
    Outcome ask(const Send &send);
    void waitFor(const std::function<void(QObject *context, const std::function<void()> &done)> &begin);
    int leftMs() const;

    OfonoModem &modem;
    const int waitMs;
    Values values;
    bool isCardKnown = false; ///< has told, or taken, something
    std::optional<int> pin2Tries;
    QString required;
    bool isMeterAsked = false;
    bool isSimAsked = false;
    bool isWaiting = false;
    bool isSeries = false;
    qint64 deadlineMs = 0;
    std::unique_ptr<QObject> life; ///< of what is asked of this interface
    bool hadSim = false;
};

} // namespace handset::ofono
