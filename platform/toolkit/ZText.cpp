#include "toolkit/ZText.h"

#include "toolkit/ZKept.h"
#include "toolkit/ZPicture.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>

#include <optional>
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

// A text on one line that runs in the text's own direction.
class LaidOutLine
{
public:
    LaidOutLine(const QString &text, const QFont &font, QPaintDevice *device)
        : layout(text, font, device)
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

    QString text() const { return layout.text(); }
    QFont font() const { return layout.font(); }
    int width() const { return qRound(line.horizontalAdvance()); }

    // Halfway up `place`, at its left, right or middle as `side` says.
    void draw(QPainter &painter, const QRect &place, Qt::Alignment side) const
    {
        const qreal free = place.width() - line.horizontalAdvance();
        const qreal left = side.testFlag(Qt::AlignRight) ? free : side.testFlag(Qt::AlignHCenter) ? free / 2 : 0;
        const qreal height = line.ascent() + line.descent(); // line.height() is rounded up
        line.draw(&painter, QPointF(place.left() + left, place.top() + (place.height() - height) / 2));
    }

private:
    static constexpr qreal endless = 0x01000000;

    QTextLayout layout;
    QTextLine line;
};

// What a line was laid out from.
struct LineKey {
    QString text;
    QFont font;
    int dpi; // of the device

    bool operator==(const LineKey &) const = default;
    friend size_t qHash(const LineKey &key, size_t seed = 0) { return qHash(key.text, seed); }
};

// A text as it is, and as it is cut for the width that it had to fit last.
class KeptLine
{
public:
    KeptLine(const QString &text, const QFont &font, QPaintDevice *device)
        : whole(text, font, device)
    {}

    int width() const { return whole.width(); }

    // What of it is drawn in `available` pixels; null where nothing fits.
    const LaidOutLine *fitting(int available, Qt::TextElideMode where)
    {
        if (whole.width() <= available)
            return &whole;
        if (cutWidth != available || cutWhere != where)
            cutTo(available, where);
        return cut ? &*cut : nullptr;
    }

private:
    void cutTo(int available, Qt::TextElideMode where)
    {
        cutWidth = available;
        cutWhere = where;
        const QString rest = QFontMetrics(whole.font()).elidedText(whole.text(), where, available);
        cut.emplace(rest, whole.font(), nullptr);
        // Where nothing fits, the ellipsis comes alone, and too wide.
        if (rest.size() <= 1 && cut->width() > available)
            cut.reset();
    }

    LaidOutLine whole;
    std::optional<LaidOutLine> cut;
    int cutWidth = -1; // while it was not cut
    Qt::TextElideMode cutWhere = Qt::ElideRight;
};

// A line costs about as much memory as so many characters, besides its own.
constexpr qsizetype charactersOfALine = 32;
constexpr qsizetype mostCharacters = 6000; // some 120 lines

// Stays until the next line is asked for.
KeptLine &lineOf(const QString &text, const QFont &font, QPaintDevice *device)
{
    static ZKept<LineKey, KeptLine> lines(mostCharacters);
    const LineKey key{text, font, device->logicalDpiY()};
    if (KeptLine *kept = lines.find(key))
        return *kept;
    return lines.keep(key, new KeptLine(ZText::oneLine(text), font, device), text.size() + charactersOfALine);
}

// Everything that a caption's look depends on.
struct CaptionLook {
    QString text;
    QFont font;
    QColor color;
    QColor background;
    Qt::Alignment side;
    QSize size;
    qreal pixelRatio; // of the device

    friend bool operator==(const CaptionLook &a, const CaptionLook &b)
    {
        return a.text == b.text && a.font == b.font && a.color == b.color && a.background == b.background &&
               a.side == b.side && a.size == b.size && qFuzzyCompare(a.pixelRatio, b.pixelRatio);
    }
    friend size_t qHash(const CaptionLook &look, size_t seed = 0) { return qHash(look.text, seed); }
};

constexpr qsizetype mostCaptionBytes = qsizetype(512) * 1024; // some 20 titles on the phone's display

QPixmap *newPicture(const QPainter &painter, const CaptionLook &look)
{
    return ZPicture::make(painter, look.size, [&look](QPainter &inside) {
        const QRect all(QPoint(0, 0), look.size);
        inside.fillRect(all, look.background);
        inside.setPen(look.color);
        ZText::draw(inside, look.font, all, look.side, look.text);
    });
}

// Stays until the next one is asked for.
const QPixmap &pictureOf(const QPainter &painter, const CaptionLook &look)
{
    static ZKept<CaptionLook, QPixmap> pictures(mostCaptionBytes);
    if (const QPixmap *kept = pictures.find(look))
        return *kept;
    QPixmap *picture = newPicture(painter, look);
    return pictures.keep(look, picture, ZPicture::bytes(*picture));
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

int ZText::width(const QPainter &painter, const QFont &font, const QString &text)
{
    return text.isEmpty() ? 0 : lineOf(text, font, painter.device()).width();
}

void ZText::draw(QPainter &painter, const QFont &font, const QRect &place, Qt::Alignment side, const QString &text,
                 Qt::TextElideMode where)
{
    if (text.isEmpty() || place.width() <= 0)
        return;
    // Measured and drawn from one layout: making the glyphs is what takes the time.
    KeptLine &kept = lineOf(text, font, painter.device());
    if (const LaidOutLine *line = kept.fitting(place.width(), where))
        line->draw(painter, place, side);
}

void ZText::drawOn(QPainter &painter, const QColor &background, const QFont &font, const QRect &place,
                   Qt::Alignment side, const QString &text)
{
    if (text.isEmpty() || place.width() <= 0)
        return;
    const QColor color = painter.pen().color();
    const CaptionLook look{
        text, font, color, background, side, place.size(), painter.device()->devicePixelRatio()};
    if (ZPicture::standsFor(painter, look.size))
        painter.drawPixmap(place.topLeft(), pictureOf(painter, look));
    else
        draw(painter, font, place, side, text);
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
