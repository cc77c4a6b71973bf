#include "support/Journal.h"

#include <utility>

Journal &Journal::shared()
{
    static Journal journal;
    return journal;
}

void Journal::record(const QString &line)
{
    if (!muted)
        recorded.append(line);
}

QStringList Journal::take()
{
    return std::exchange(recorded, QStringList());
}

QStringList Journal::startingWith(const QString &prefix) const
{
    QStringList found;
    for (const QString &line : recorded) {
        if (line.startsWith(prefix))
            found.append(line);
    }
    return found;
}

void Journal::clear()
{
    recorded.clear();
    names.clear();
    muted = false;
}

QString Journal::nameOf(const void *object) const
{
    return object ? names.value(object, QStringLiteral("unknown")) : QStringLiteral("null");
}
