// What a screen reader takes a widget for.
#pragma once

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

namespace host {

/// From its first call on, a screen reader takes each `Widget`, a class with Q_OBJECT, for a `role`.
template <typename Widget, QAccessible::Role role>
void giveAccessibleRole()
{
    constexpr auto accessOf = [](const QString &, QObject *object) -> QAccessibleInterface * {
        auto *widget = qobject_cast<Widget *>(object);
        return widget ? new QAccessibleWidget(widget, role) : nullptr;
    };
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(accessOf), true);
}

} // namespace host
