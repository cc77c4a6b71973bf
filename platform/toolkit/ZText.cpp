#include "ZText.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>

#include <utility>

namespace {

// No display is as wide as this many characters.
constexpr qsizetype longestLine = 1000;

constexpr QChar ellipsis(0x2026);
constexpr QChar zeroWidthSpace(0x200b);

bool breaksLine(QChar c)
{
    return c == QLatin1Char('\n') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control || breaksLine(c);
}

QString shortened(const QString &text)
{
    if (text.size() <= longestLine)
        return text;
    const bool splitsPair = text.at(longestLine - 1).isHighSurrogate();
    return text.left(splitsPair ? longestLine - 1 : longestLine) + ellipsis;
}

} // namespace

QString ZText::oneLine(const QString &text)
{
    QString line = shortened(text);
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (isControl(line.at(i)))
            line[i] = QLatin1Char(' ');
    }
    return line;
}

QString ZText::elided(const QString &text, const QFontMetrics &metrics, int width, Qt::TextElideMode where)
{
    QString line = oneLine(text);
    if (line.isEmpty() || width <= 0)
        return QString();
    if (metrics.horizontalAdvance(line) <= width)
        return line; // as nearly always; eliding would measure it once more
    const QString cut = metrics.elidedText(line, where, width);
    // Where nothing fits, the ellipsis comes alone, and too wide.
    return cut.size() <= 1 && metrics.horizontalAdvance(cut) > width ? QString() : cut;
}

void ZText::draw(QPainter &painter, const QRect &place, Qt::Alignment side, const QString &text,
                 Qt::TextElideMode where)
{
    const QString line = elided(text, painter.fontMetrics(), place.width(), where);
    if (line.isEmpty())
        return;
    painter.setLayoutDirection(line.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment alignment = side | Qt::AlignAbsolute | Qt::AlignVCenter;
    painter.drawText(place, static_cast<int>(alignment) | Qt::TextSingleLine, line);
}

QString ZText::paragraph(const QString &text)
{
    QString plain = text;
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QString result;
    result.reserve(plain.size());
    qsizetype wordLength = 0;
    for (const QChar c : std::as_const(plain)) {
        // Breaking lines takes a time that grows with the square of the longest word.
        if (++wordLength > longestLine && !c.isLowSurrogate()) {
            result += zeroWidthSpace;
            wordLength = 0;
        }
        const bool breaks = breaksLine(c) || c == QLatin1Char('\r');
        const QChar shown = breaks ? QChar(QChar::LineSeparator) : isControl(c) ? QChar(QLatin1Char(' ')) : c;
        if (shown.isSpace())
            wordLength = 0;
        result += shown;
    }
    return result;
}
