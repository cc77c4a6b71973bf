// Photographs held against references.
#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

/// How far two pictures are apart. Anti-aliasing may shift a little from one build of the font library to the next;
/// a wrong digit changes more pixels far more.
struct PictureDifference {
    bool sameSize = false;
    double farPixels = 1; ///< share of pixels of which a channel is off by more than 48 of 255
    double mean = 255;    ///< mean difference of a channel, 0 to 255

    bool isSmall() const { return sameSize && farPixels <= 0.0002 && mean <= 0.5; }
};

PictureDifference difference(const QImage &seen, const QImage &reference);
