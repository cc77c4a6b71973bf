// What the tests of the handset share.
#pragma once

#include "handset/Clock.h"
#include "handset/Handset.h"
#include "simulated/SimulatedHandset.h"

#include <QtCore/QList>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

namespace handset::test {

inline constexpr qint64 second = 1000;
inline constexpr qint64 minute = 60 * second;
inline constexpr qint64 hour = 60 * minute;

/// For what is in use by others on purpose: what is proved is that it is not waited for for ever.
inline constexpr Patience hardlyAny{300, 10};

/// What the six queries answer, in whole seconds.
struct SixFigures {
    quint64 last = 0;
    quint64 dialed = 0;
    quint64 answered = 0;
    quint64 data = 0;
    quint64 all = 0;
    quint64 lifetime = 0;

    friend bool operator==(const SixFigures &, const SixFigures &) = default;
};

/// For QCOMPARE.
char *toString(const SixFigures &figures);

/// A failed query is a failed test. Without the role of data calls their figure is 0.
SixFigures figuresOf(Handset &handset);

/// What the handset tells of its packet-data sessions, "id apn seconds sent received" for each used slot, from the
/// first on. A failed query, and an unused slot that is not empty, are failed tests.
QStringList sessionsOf(Handset &handset);
/// Of all sessions: "seconds sent received total".
QString sessionTotalsOf(Handset &handset);

/// A boot clock that goes wherever it is set, also back.
class LooseClock final : public Clock
{
public:
    qint64 monotonicMs() const override { return monotonic; }
    qint64 wallMs() const override { return 0; }
    qint64 monotonic = 0;
};

/// A row of the call log.
struct LoggedCall {
    qint64 id = 0;
    int kind = 0;
    int direction = 0;
    QString number;
    qint64 startedMs = 0;
    qint64 durationMs = 0;
    int state = 0;
};

/// A state directory, removed with the object.
class StateDir
{
public:
    enum Place {
        Anywhere, ///< where writing is quick
        OnDisk    ///< on the disk that has the test program
    };

    explicit StateDir(Place place = Anywhere);

    QString path() const { return temporary.filePath(QStringLiteral("state")); }
    QString file(const QString &name) const { return path() + QLatin1Char('/') + name; }
    QString database() const { return file(QStringLiteral("calllog.db")); }
    /// Beside path(), for copies.
    QString sibling(const QString &name) const { return temporary.filePath(name); }
    /// Of the files in path(), sorted, without the locks.
    QStringList names() const;

private:
    QTemporaryDir temporary;
};

/// Opens the simulated handset and drives it.
class Phone
{
public:
    /// A null clock makes a ManualClock of its own.
    explicit Phone(const QString &stateDirectory = {}, std::shared_ptr<ManualClock> shared = nullptr,
                   std::function<void(const QString &)> tell = {}, Patience patience = {});

    explicit operator bool() const { return simulation; }
    simulated::SimulatedHandset *operator->() const { return simulation; }
    Handset &handset() const { return *opened.handset; }
    SixFigures figures() const { return figuresOf(*opened.handset); }
    CallLog &log() const { return *opened.handset->callLog(); }
    CallService &service() const { return *opened.handset->callService(); }
    DataCalls &data() const { return *opened.handset->dataCalls(); }
    PacketData &packets() const { return *opened.handset->packetData(); }
    QStringList sessions() const { return sessionsOf(*opened.handset); }
    QString sessionTotals() const { return sessionTotalsOf(*opened.handset); }

    /// Calls from dialing or ringing to the end; false when anything failed.
    bool dialed(qint64 ms, CallKind kind = CallKind::Voice, const QString &number = QStringLiteral("1234"));
    bool answered(qint64 ms, const QString &number = QStringLiteral("5678"));
    /// The call is connected, and goes on.
    bool dial(CallKind kind = CallKind::Voice, const QString &number = QStringLiteral("1234"));
    bool answer(const QString &number = QStringLiteral("5678"));

    /// A session from its beginning to its end; false when anything failed.
    bool session(qint64 ms, const QByteArray &apn = "internet", quint32 sentPerSecond = 0,
                 quint32 receivedPerSecond = 0);

    void close();

    std::shared_ptr<ManualClock> clock;
    QList<QPair<QString, int>> progress; ///< what was told while it opened
    Opened opened;

private:
    simulated::SimulatedHandset *simulation = nullptr;
};

/// Looks into a database file through a connection of its own.
class LogFile
{
public:
    explicit LogFile(const QString &file);
    ~LogFile();

    QVariant value(const QString &select) const;
    QList<LoggedCall> calls() const;
    /// "id apn ms sent received state" for each row.
    QStringList sessions() const;
    /// "ms sent received".
    QString sessionTotals() const;
    bool run(const QString &statement) const;

private:
    QString name;
};

/// Gives a closed log the tables of an earlier version, 3 at least; what only the later one has is lost.
bool takeBackTo(const QString &database, int version);

/// Null when it cannot be read.
QByteArray readFile(const QString &path);
bool writeFile(const QString &path, const QByteArray &content);

/// Copies a database and what is recorded beside it, as a crash would leave them. The directory is made.
bool copyState(const QString &fromDirectory, const QString &toDirectory);

} // namespace handset::test
