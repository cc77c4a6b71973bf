#include "toolkit/ZSkinService.h"

#include <QtGui/QGuiApplication>

#include <algorithm>
#include <array>

namespace {

struct ColorEntry {
    ZSkinService::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr std::array<ColorEntry, 22> colorTable = {{
    {ZSkinService::ScreenColor, 0xffffffff, 0xff14181d},
    {ZSkinService::TitleBarColor, 0xff1d3550, 0xff1d3550},
    {ZSkinService::TitleTextColor, 0xffffffff, 0xffffffff},
    {ZSkinService::AccentColor, 0xff4da3e8, 0xff4da3e8},
    {ZSkinService::RowTextColor, 0xff1b2530, 0xffe6ebf0},
    {ZSkinService::RowValueColor, 0xff1a5a96, 0xff8fc3f2},
    {ZSkinService::DisabledTextColor, 0xff8a929b, 0xff8a929b},
    {ZSkinService::DividerColor, 0xffe3e8ee, 0xff2a323b},
    {ZSkinService::FocusBarColor, 0xff1f6cb5, 0xff1f6cb5},
    {ZSkinService::FocusTextColor, 0xffffffff, 0xffffffff},
    {ZSkinService::FocusDisabledTextColor, 0xffb9d2ea, 0xffe6f0fa},
    {ZSkinService::HeadingColor, 0xffe4ebf3, 0xff26303b},
    {ZSkinService::HeadingTextColor, 0xff33485e, 0xffb9c9da},
    {ZSkinService::SoftkeyBarColor, 0xff1d3550, 0xff1d3550},
    {ZSkinService::SoftkeyTextColor, 0xffffffff, 0xffffffff},
    {ZSkinService::SoftkeyDisabledTextColor, 0xff7c8fa3, 0xff9fb2c6},
    {ZSkinService::SoftkeyPressedColor, 0xff37618d, 0xff37618d},
    {ZSkinService::DialogColor, 0xffffffff, 0xff1d232a},
    {ZSkinService::DialogFrameColor, 0xff1d3550, 0xff4d6f93},
    {ZSkinService::BackdropColor, 0x8c0a121c, 0xa0000000},
    {ZSkinService::ScrollGrooveColor, 0xffeef2f6, 0xff232a32},
    {ZSkinService::ScrollHandleColor, 0xff8fa6bd, 0xff5f7690},
}};

constexpr bool inRoleOrder()
{
    for (std::size_t i = 0; i < colorTable.size(); ++i) {
        if (colorTable[i].role != static_cast<ZSkinService::ColorRole>(i))
            return false;
    }
    return colorTable.back().role == ZSkinService::ScrollHandleColor;
}
static_assert(inRoleOrder(), "a colour for every role, in the roles' order");

bool isDesktopDark()
{
    constexpr int middle = 128;
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) &&
           QGuiApplication::palette().color(QPalette::Window).lightness() < middle;
}

struct FontEntry {
    ZSkinService::FontRole role;
    int pixelSize;
    bool bold;
};

constexpr std::array<FontEntry, 5> fontTable = {{
    {ZSkinService::RowFont, 13, false},
    {ZSkinService::EmphasisFont, 13, true},
    {ZSkinService::TitleFont, 14, true},
    {ZSkinService::HeadingFont, 12, true},
    {ZSkinService::SoftkeyFont, 13, true},
}};
static_assert(fontTable.back().role == ZSkinService::SoftkeyFont &&
              fontTable.size() == ZSkinService::SoftkeyFont + 1);

// Made once: every screen sets the palette, and every text has a font. Copies share what is found for it.
std::array<QFont, fontTable.size()> makeFonts()
{
    std::array<QFont, fontTable.size()> fonts;
    std::transform(fontTable.begin(), fontTable.end(), fonts.begin(), [](const FontEntry &entry) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(entry.pixelSize);
        font.setBold(entry.bold);
        return font;
    });
    return fonts;
}

QPalette makePalette()
{
    using Skin = ZSkinService;
    const auto color = &Skin::color;
    QPalette palette(color(Skin::RowTextColor), color(Skin::ScreenColor), color(Skin::DividerColor),
                     color(Skin::HeadingTextColor), color(Skin::DisabledTextColor), color(Skin::RowTextColor),
                     color(Skin::ScreenColor), color(Skin::ScreenColor), color(Skin::ScreenColor));
    palette.setColor(QPalette::Highlight, color(Skin::FocusBarColor));
    palette.setColor(QPalette::HighlightedText, color(Skin::FocusTextColor));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, color(Skin::DisabledTextColor));
    palette.setColor(QPalette::Disabled, QPalette::Text, color(Skin::DisabledTextColor));
    return palette;
}

} // namespace

QColor ZSkinService::color(ColorRole role)
{
    static const bool isDark = isDesktopDark();
    const ColorEntry &entry = colorTable[static_cast<std::size_t>(role)];
    return QColor::fromRgba(isDark ? entry.dark : entry.light);
}

QFont ZSkinService::font(FontRole role)
{
    static const std::array<QFont, fontTable.size()> fonts = makeFonts();
    return fonts[static_cast<std::size_t>(role)];
}

QPalette ZSkinService::palette()
{
    static const QPalette palette = makePalette();
    return palette;
}
