// Pictures of what was painted, shown instead of painting it again. Inside the toolkit only.
#pragma once

#include <QtGui/QPixmap>

#include <functional>

class QPainter;

namespace ZPicture {

/// Whether a picture of `size` on `painter` looks as what was painted into it would: on a screen of its own
/// resolution, not on paper, not scaled.
bool standsFor(const QPainter &painter, QSize size);

/// What `paint` paints on a picture of `size`, in device-independent pixels, for what `painter` paints on. It must
/// paint every pixel. The caller owns the picture.
QPixmap *make(const QPainter &painter, QSize size, const std::function<void(QPainter &)> &paint);

qsizetype bytes(const QPixmap &picture);

} // namespace ZPicture
