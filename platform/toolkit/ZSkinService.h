// The skin: colours, sizes and the font that every widget of the toolkit uses.
#pragma once

/// The skin's names for what a widget is. The numbers are the phone's own.
class ZSkinService
{
public:
    enum WidgetClsID {
        SettingListClass = 40, ///< the list that fills a screen
        HeadingLabelClass = 86 ///< a heading line over a list
    };
};
