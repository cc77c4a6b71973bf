// The skin: colours, sizes and the fonts that every widget of the toolkit uses.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QPalette>

/// The skin's names for what a widget is, and the look itself. All sizes are device-independent pixels.
class ZSkinService
{
public:
    /// The numbers are the phone's own.
    enum WidgetClsID : int {
        SettingListClass = 40, ///< the list that fills a screen
        HeadingLabelClass = 86 ///< a heading line over a list
    };

    enum ColorRole {
        ScreenColor,
        TitleBarColor,
        TitleTextColor,
        AccentColor,
        RowTextColor,
        RowValueColor,
        DisabledTextColor,
        DividerColor,
        FocusBarColor,
        FocusTextColor,
        FocusDisabledTextColor,
        HeadingColor,
        HeadingTextColor,
        SoftkeyBarColor,
        SoftkeyTextColor,
        SoftkeyDisabledTextColor,
        SoftkeyPressedColor,
        DialogColor,
        DialogFrameColor,
        BackdropColor,
        ScrollGrooveColor,
        ScrollHandleColor
    };

    enum FontRole { RowFont, EmphasisFont, TitleFont, HeadingFont, SoftkeyFont };

    static constexpr int DisplayWidth = 240;
    static constexpr int DisplayHeight = 320;
    static constexpr int TitleBarHeight = 28;
    static constexpr int AccentHeight = 2; ///< the line at the foot of the title bar, part of its height
    static constexpr int SoftkeyBarHeight = 28;
    static constexpr int RowHeight = 24;
    static constexpr int RowMargin = 8; ///< left and right of a row, a title, a caption
    static constexpr int RowGap = 8;    ///< between a row's title and its value, its icon and its title
    static constexpr int ScrollBarWidth = 7;
    static constexpr int DialogMargin = 10;  ///< between a dialog's box and the edges it may reach
    static constexpr int DialogPadding = 12; ///< between a dialog's box and its text
    static constexpr int DialogRadius = 6;
    static constexpr int DialogHeaderHeight = 28;
    static_assert((DisplayHeight - TitleBarHeight - SoftkeyBarHeight) % RowHeight == 0, "no half row at the foot");

    /// Of the dark skin where the application's palette was dark when a colour was first asked for.
    static QColor color(ColorRole role);
    static QFont font(FontRole role);
    /// What screens and dialogs set as their own, for themselves and the widgets in them.
    static QPalette palette();
};
