// The bare limit of a screen: its texts painted on an image, without a widget or a window.
#pragma once

#include <QtGui/QFont>
#include <QtGui/QImage>

namespace bench {

struct ScreenTexts;

/// An image of the display's size on which screens are painted over and over.
class BarePainting
{
public:
    BarePainting();

    /// Backgrounds, title, rows and keys. Places and fonts are fixed, and each text is laid out once.
    void paint(const ScreenTexts &texts);

    QImage image;

private:
    const QFont rowFont;
    const QFont titleFont;
    const QFont keyFont;
};

} // namespace bench
