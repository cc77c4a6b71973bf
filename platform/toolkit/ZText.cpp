#include "ZText.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>

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

// A text in the painter's font, on one line that runs in the text's own direction.
class LaidOutLine
{
public:
    LaidOutLine(const QString &text, const QPainter &painter)
        : layout(text, painter.font(), painter.device())
    {
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        option.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.setCacheEnabled(true); // keeps the glyphs for drawing
        layout.beginLayout();
        line = layout.createLine();
        line.setLineWidth(endless);
        layout.endLayout();
    }

    qreal width() const { return line.horizontalAdvance(); }

    // Halfway up `place`, at its left, right or middle as `side` says.
    void draw(QPainter &painter, const QRect &place, Qt::Alignment side) const
    {
        const qreal free = place.width() - width();
        const qreal left = side & Qt::AlignRight ? free : side & Qt::AlignHCenter ? free / 2 : 0;
        const qreal height = line.ascent() + line.descent(); // line.height() is rounded up
        line.draw(&painter, QPointF(place.left() + left, place.top() + (place.height() - height) / 2));
    }

private:
    static constexpr qreal endless = 0x01000000;

    QTextLayout layout;
    QTextLine line;
};

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

void ZText::draw(QPainter &painter, const QRect &place, Qt::Alignment side, const QString &text,
                 Qt::TextElideMode where)
{
    const QString whole = oneLine(text);
    if (whole.isEmpty() || place.width() <= 0)
        return;
    // Measured and drawn from one layout: making the glyphs is what takes the time.
    const LaidOutLine line(whole, painter);
    if (qRound(line.width()) <= place.width()) {
        line.draw(painter, place, side);
        return;
    }
    const QString cut = painter.fontMetrics().elidedText(whole, where, place.width());
    const LaidOutLine rest(cut, painter);
    // Where nothing fits, the ellipsis comes alone, and too wide.
    if (cut.size() > 1 || qRound(rest.width()) <= place.width())
        rest.draw(painter, place, side);
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
