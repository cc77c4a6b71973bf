#ifndef KAV_HOST_LEFT_TO_RIGHT_H
#define KAV_HOST_LEFT_TO_RIGHT_H

#include <QtCore/QString>
#include <QtGui/QGuiApplication>

namespace host {

/// `text`, a number or a time, as it stands within a text that is read from right to left: isolated, so that its signs
/// stay at their ends ("+49 30" and not "30 49+"). Unchanged where the application is read from left to right.
inline QString leftToRight(const QString &text)
{
    if (!QGuiApplication::isRightToLeft() || text.isEmpty())
        return text;
    return QChar(0x2066) + text + QChar(0x2069); // LEFT-TO-RIGHT ISOLATE, POP DIRECTIONAL ISOLATE
}

} // namespace host

#endif
