#include "host/Skin.h"

#include <QtCore/QString>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace host {

namespace {

constexpr QColor darkWindow(0x2b, 0x2f, 0x34);
constexpr QColor darkButton(0x3b, 0x41, 0x48);
constexpr QColor darkBase(0x1c, 0x1f, 0x23);
constexpr QColor darkDisabledText(0xa2, 0xa8, 0xae);
constexpr QColor highlight(0x1f, 0x6c, 0xb5);

QPalette darkPalette()
{
    QPalette palette(darkButton, darkWindow);
    palette.setColor(QPalette::Base, darkBase);
    palette.setColor(QPalette::AlternateBase, darkWindow);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, darkBase);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, darkDisabledText);
    return palette;
}

} // namespace

void chooseSkin(const QString &name)
{
    if (name == QLatin1StringView("dark"))
        QApplication::setPalette(darkPalette());
    else if (name == QLatin1StringView("light"))
        QApplication::setPalette(QApplication::style()->standardPalette());
}

} // namespace host
