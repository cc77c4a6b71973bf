// Texts of any length and content, made fit for one line of the display. Inside the toolkit only.
#pragma once

#include <QtCore/QString>

class QPainter;
class QRect;

namespace ZText {

/// `text` as one line: line breaks, tabs, NULs and other control characters become blanks. What no display could
/// show is cut off, so that an endless text costs no more than a long one.
QString oneLine(const QString &text);

/// Draws oneLine() of `text` in `place`, at its left or right edge or in the middle as `side` says, halfway up; cut with
/// an ellipsis `where` it says to fit, and nothing when not even the ellipsis fits. The text runs in its own direction
/// whatever the display's, so that "12.50 EUR" stays in order.
void draw(QPainter &painter, const QRect &place, Qt::Alignment side, const QString &text,
          Qt::TextElideMode where = Qt::ElideRight);

/// `text` for a wrapped paragraph: line breaks stay (as line separators), other control characters become blanks.
QString paragraph(const QString &text);

} // namespace ZText
