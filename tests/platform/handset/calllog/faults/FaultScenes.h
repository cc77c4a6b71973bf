// What a call log is put through while the system's calls fail.
#pragma once

#include "handset/calllog/faults/FaultJournal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

#include <vector>

namespace handset::faults {

enum class Do {
    Dial,
    Connect,
    Advance, ///< by `amount` ms
    Checkpoint,
    HangUp,
    StartSession,
    StopSession,
    ResetDialed,
    ResetAll,
    TopUp, ///< by `amount` units
    WrongPin,
    RightPin,
    Meanwhile ///< the other process does its next part
};

struct Step {
    Do what;
    qint64 amount = 0;
};

using Steps = std::vector<Step>;
using Files = QList<QPair<QString, QByteArray>>;

struct Scene {
    QByteArray name;
    Files files;
    Steps steps;            ///< of the process whose calls fail, after it has opened the handset
    bool isDamaged = false; ///< a notice tells that the log was replaced
    /// Another process, whose calls do not fail, opens the directory, too, and does these: before the first one opens it,
    /// at Meanwhile, and when that one has ended, however.
    bool hasOther = false;
    Steps otherBefore = {};
    Steps otherMeanwhile = {};
    Steps otherAfter = {};
};

std::vector<Scene> allScenes();

bool putInto(const QString &directory, const Files &files);

/// Which call of the system is to fail, and how.
struct Fault {
    QByteArray call; ///< one of kavFaultsCalls; empty: none
    int error = 0;   ///< an errno, or of SystemFaults.h
    bool always = false;
    long nth = 0;
};

/// Plays the scene in this process, which has nothing else open, and says in the journal what it did and was told:
///   A error TEXT, A notice TEXT, A warning TEXT
///   A begin N             the step is about to be done
///   A end N STATUS X OWES the step is done; X: 1 where a PIN was accepted
///   A closing, A closed
/// B in front is the other process.
void play(const Scene &scene, const QString &directory, const Fault &fault, Journal &journal);

/// Of either process; N counts from 0 through steps, or through the other's three parts.
const Step &stepOf(const Scene &scene, char actor, int index);

} // namespace handset::faults
