// How far a long step is.
#pragma once

#include <QtCore/QString>

#include <algorithm>
#include <functional>
#include <utility>

namespace handset::calllog {

/// Is given what is done, part of a sentence, and how far it is in percent; null for nobody.
using ProgressListener = std::function<void(const QString &step, int percent)>;

/// One step. Nothing is told of one that takes no time; of any other 0 to 99 as it goes on, and 100 at its end.
class Progress
{
public:
    // How many things are done between two times that the listener is told: some 0.3 s on a phone.
    static constexpr qint64 rows = 50'000;
    static constexpr qint64 bytes = 4 << 20;

    /// `expected` is how many things are to be done, as far as that is known before.
    Progress(ProgressListener tell, QString what, qint64 expected, qint64 thingsBetween = rows)
        : listener(std::move(tell))
        , step(std::move(what))
        , all(expected)
        , between(thingsBetween)
    {}

    /// For a step that does much before its first thing.
    void begin()
    {
        if (all >= between)
            say(0);
    }
    void oneIsDone() { add(1); }
    void add(qint64 things)
    {
        const qint64 before = done / between;
        done += things;
        if (done / between > before)
            say(static_cast<int>(std::min<qint64>(done * 100 / std::max(all, done), 99)));
    }
    void finish()
    {
        if (isTold)
            say(100);
    }

    /// Another step, over the things of this one that are still to be done.
    Progress overTheRest(const QString &what) const { return {listener, what, all - done, between}; }

private:
    void say(int percent)
    {
        isTold = true;
        if (listener)
            listener(step, percent);
    }

    ProgressListener listener;
    QString step;
    qint64 all;
    qint64 between;
    qint64 done = 0;
    bool isTold = false;
};

} // namespace handset::calllog
