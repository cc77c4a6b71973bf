#include "toolkit/ZMultiTap.h"

#include <QtCore/QTimerEvent>

#include <array>

namespace {

// As they are printed on the keys; 0 has the blank.
constexpr std::array<const char *, 10> characters = {" 0",   "1",    "ABC2",  "DEF3", "GHI4",
                                                     "JKL5", "MNO6", "PQRS7", "TUV8", "WXYZ9"};
static_assert(characters.size() == Qt::Key_9 - Qt::Key_0 + 1);

} // namespace

QString ZMultiTap::charactersOf(int qtKey)
{
    if (qtKey < Qt::Key_0 || qtKey > Qt::Key_9)
        return QString();
    return QString::fromLatin1(characters[static_cast<std::size_t>(qtKey - Qt::Key_0)]);
}

ZMultiTap::Tap ZMultiTap::tap(int qtKey)
{
    const QString all = charactersOf(qtKey);
    const bool again = isOpenFor(qtKey);
    turn = again ? (turn + 1) % static_cast<int>(all.size()) : 0;
    key = qtKey;
    pause.start(interval, this);
    // A key of one character has no other to offer.
    return {all.at(turn), again && all.size() > 1};
}

void ZMultiTap::end()
{
    pause.stop();
}

bool ZMultiTap::isOpenFor(int qtKey) const
{
    return pause.isActive() && key == qtKey;
}

void ZMultiTap::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == pause.timerId())
        end();
}
