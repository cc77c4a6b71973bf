#include "QCopWire.h"

#include "LineLimit.h"

#include <QtCore/QtGlobal>

namespace QCopWire {

namespace {

// A path may have megabytes.
QByteArray shortened(const QByteArray &text)
{
    constexpr qsizetype most = 100;
    return text.size() > most ? text.left(most) + "..." : text;
}

} // namespace

void traceForeign(const Heading &heading)
{
    static LineLimit lines;
    const std::optional<qint64> unsaid = lines.take(std::chrono::steady_clock::now());
    if (!unsaid)
        return;
    if (*unsaid > 0)
        qWarning("QCopChannel: %lld more were ignored since without a line", static_cast<long long>(*unsaid));
    qWarning("QCopChannel: \"%s.%s\" with \"%s\" at \"%s\" from %s is no channel message and is ignored",
             shortened(heading.interface).constData(), shortened(heading.member).constData(),
             shortened(heading.signature).constData(), shortened(heading.path).constData(),
             shortened(heading.sender).constData());
}

} // namespace QCopWire
