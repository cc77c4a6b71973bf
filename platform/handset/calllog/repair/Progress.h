// How far a long step is.
#pragma once

#include <QtCore/QString>

#include <algorithm>
#include <functional>
#include <utility>

namespace handset::calllog {

/// Is given what is done, part of a sentence, and how far it is, 0 to 99; null for nobody.
using ProgressListener = std::function<void(const QString &step, int percent)>;

/// Nothing is told of a step that takes no time.
class Progress
{
public:
    /// `expected` is how many things are to be done, as far as that is known before.
    Progress(ProgressListener tell, QString what, qint64 expected)
        : listener(std::move(tell))
        , step(std::move(what))
        , all(expected)
    {}

    void oneIsDone()
    {
        ++done;
        if (listener && done % thingsBetween == 0)
            listener(step, static_cast<int>(std::min<qint64>(done * 100 / std::max(all, done), 99)));
    }

private:
    static constexpr qint64 thingsBetween = 50'000; ///< rows of a log: some 0.3 s

    ProgressListener listener;
    QString step;
    qint64 all;
    qint64 done = 0;
};

} // namespace handset::calllog
