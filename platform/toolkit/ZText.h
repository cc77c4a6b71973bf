// Texts of any length and content, made fit for one line of the display. Inside the toolkit only.
#pragma once

#include <QtCore/QString>

class QColor;
class QFont;
class QPainter;
class QRect;

namespace ZText {

/// `text` as one line: line breaks, tabs, NULs and other control characters become blanks. What no display could
/// show is cut off, so that an endless text costs no more than a long one.
QString oneLine(const QString &text);

/// How wide oneLine() of `text` is when `painter` draws it in `font`, in whole device-independent pixels.
int width(const QPainter &painter, const QFont &font, const QString &text);

/// Draws oneLine() of `text` in `font` and the painter's pen in `place`, at its left or right edge or in the middle as
/// `side` says, halfway up; cut with an ellipsis `where` it says to fit, and nothing when not even the ellipsis fits.
/// The text runs in its own direction whatever the display's, so that "12.50 EUR" stays in order.
///
/// Lines that were drawn or measured lately are kept laid out: the same captions and titles come up again and again.
void draw(QPainter &painter, const QFont &font, const QRect &place, Qt::Alignment side, const QString &text,
          Qt::TextElideMode where = Qt::ElideRight);

/// The same in a `place` that is filled with `background`. Kept as a picture: for texts that come up again and again.
void drawOn(QPainter &painter, const QColor &background, const QFont &font, const QRect &place, Qt::Alignment side,
            const QString &text);

/// `text` for a wrapped paragraph: line breaks stay (as line separators), other control characters become blanks.
QString paragraph(const QString &text);

} // namespace ZText
