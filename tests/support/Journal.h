// What happened in a test, in one order: handset operations, toolkit calls, translations.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// One list of lines for the whole process. Whoever watches something records a line when it happens, so that a test
/// can compare the order of things that different libraries do.
class Journal
{
public:
    static Journal &shared();

    void record(const QString &line);
    QStringList lines() const { return recorded; }
    /// The lines so far, and starts anew.
    QStringList take();
    /// The lines that begin with `prefix`.
    QStringList startingWith(const QString &prefix) const;
    qsizetype count(const QString &line) const { return recorded.count(line); }
    /// Forgets lines and object names.
    void clear();

    /// A muted journal records nothing: for runs of millions of calls.
    void setMuted(bool mute) { muted = mute; }

    /// What an object is called in the lines from now on.
    void nameObject(const void *object, const QString &name) { names.insert(object, name); }
    bool knows(const void *object) const { return names.contains(object); }
    /// The object's name, "null", or "unknown".
    QString nameOf(const void *object) const;

private:
    QStringList recorded;
    QHash<const void *, QString> names;
    bool muted = false;
};
