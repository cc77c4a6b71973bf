#include "e2e/Picture.h"

#include <QtGui/QColor>

#include <algorithm>
#include <cstdlib>

PictureDifference difference(const QImage &seen, const QImage &reference)
{
    PictureDifference result;
    if (seen.isNull() || seen.size() != reference.size())
        return result;
    result.sameSize = true;
    qint64 far = 0;
    qint64 sum = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QRgb a = seen.pixel(x, y);
            const QRgb b = reference.pixel(x, y);
            const int red = std::abs(qRed(a) - qRed(b));
            const int green = std::abs(qGreen(a) - qGreen(b));
            const int blue = std::abs(qBlue(a) - qBlue(b));
            sum += red + green + blue;
            far += std::max({red, green, blue}) > 48 ? 1 : 0;
        }
    }
    const double pixels = static_cast<double>(seen.width()) * seen.height();
    result.farPixels = static_cast<double>(far) / pixels;
    result.mean = static_cast<double>(sum) / (3 * pixels);
    return result;
}
