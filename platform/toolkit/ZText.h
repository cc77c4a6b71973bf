// Texts of any length and content, made fit for one line of the display. Inside the toolkit only.
#pragma once

#include <QtCore/QString>

class QFontMetrics;

namespace ZText {

/// `text` as one line: line breaks, tabs, NULs and other control characters become blanks. What no display could
/// show is cut off, so that an endless text costs no more than a long one.
QString oneLine(const QString &text);

/// oneLine(), cut with an ellipsis at the end to fit `width` pixels; empty when not even the ellipsis fits.
QString elided(const QString &text, const QFontMetrics &metrics, int width);

/// `text` for a wrapped paragraph: line breaks stay (as line separators), other control characters become blanks.
QString paragraph(const QString &text);

} // namespace ZText
