#include "toolkit/ZPicture.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

#include <climits>
#include <cmath>

bool ZPicture::standsFor(const QPainter &painter, QSize size)
{
    const qreal pixelRatio = painter.device()->devicePixelRatio();
    // Of a widget in a scene the painter's own transformation does not tell how large it is shown.
    const QTransform toDevice = painter.deviceTransform();
    return painter.paintEngine()->type() == QPaintEngine::Raster && toDevice.type() <= QTransform::TxScale &&
           toDevice.m11() == pixelRatio && toDevice.m22() == pixelRatio && !size.isEmpty() &&
           pixelRatio == std::floor(pixelRatio);
}

QPixmap *ZPicture::make(const QPainter &painter, QSize size, const std::function<void(QPainter &)> &paint)
{
    const qreal pixelRatio = painter.device()->devicePixelRatio();
    auto *picture = new QPixmap(size * pixelRatio);
    picture->setDevicePixelRatio(pixelRatio);
    QPainter picturePainter(picture);
    paint(picturePainter);
    return picture;
}

qsizetype ZPicture::bytes(const QPixmap &picture)
{
    return qsizetype(picture.width()) * picture.height() * picture.depth() / CHAR_BIT;
}
