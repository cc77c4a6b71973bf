#include "support/ScreenReader.h"

#include <algorithm>

namespace {

struct Telling {
    QAccessible::Event what;
    QAccessibleInterface *element;
    QString name;
};

bool isListening = false;

QList<Telling> &tellings()
{
    static QList<Telling> list;
    return list;
}

// A scroll bar is moved by the keys of what it stands beside.
bool isForAPerson(QAccessibleInterface *element)
{
    const QAccessible::State state = element->state();
    switch (element->role()) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::Dialog:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Notification:
    case QAccessible::PageTab:
    case QAccessible::PageTabList:
    case QAccessible::Pane:
    case QAccessible::SpinBox:
    case QAccessible::Window:
        return true;
    default:
        return element->role() != QAccessible::ScrollBar &&
               (state.focusable || state.editable || state.selectable);
    }
}

} // namespace

bool QAccessible::isActive()
{
    return isListening;
}

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    QAccessibleInterface *element = isListening ? event->accessibleInterface() : nullptr;
    if (element)
        tellings() << Telling{event->type(), element, element->text(QAccessible::Name)};
}

namespace ScreenReader {

Listening::Listening()
{
    forget();
    isListening = true;
}

Listening::~Listening()
{
    isListening = false;
}

void forget()
{
    tellings().clear();
}

int count(QAccessible::Event what, QAccessibleInterface *element)
{
    return static_cast<int>(std::count_if(tellings().cbegin(), tellings().cend(), [&](const Telling &telling) {
        return telling.what == what && telling.element == element;
    }));
}

QStringList namesTold(QAccessible::Event what)
{
    QStringList names;
    for (const Telling &telling : std::as_const(tellings())) {
        if (telling.what == what)
            names << telling.name;
    }
    return names;
}

QAccessibleInterface *lastFocus()
{
    const auto isFocus = [](const Telling &telling) { return telling.what == QAccessible::Focus; };
    const auto last = std::find_if(tellings().crbegin(), tellings().crend(), isFocus);
    return last == tellings().crend() ? nullptr : last->element;
}

QAccessibleInterface *told(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString name(const QAccessibleInterface *element)
{
    return element->text(QAccessible::Name);
}

bool canBePressed(QAccessibleInterface *element)
{
    QAccessibleActionInterface *actions = element->actionInterface();
    return actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction());
}

void press(QAccessibleInterface *element)
{
    element->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QList<QAccessibleInterface *> shownFrom(QAccessibleInterface *element)
{
    QList<QAccessibleInterface *> shown;
    if (!element->state().invisible)
        shown << element;
    for (int index = 0; index < element->childCount(); ++index) {
        if (QAccessibleInterface *child = element->child(index))
            shown << shownFrom(child);
    }
    return shown;
}

QStringList namesShownFrom(QAccessibleInterface *element)
{
    QStringList names;
    for (const QAccessibleInterface *shown : shownFrom(element)) {
        if (!name(shown).isEmpty())
            names << name(shown);
    }
    return names;
}

QString faultsFrom(QAccessibleInterface *element)
{
    QString faults;
    const QString who = QStringLiteral("%1 (role %2)").arg(name(element)).arg(element->role());
    if (!element->state().invisible && isForAPerson(element) && name(element).isEmpty())
        faults += who + QStringLiteral(" has no name\n");
    for (int index = 0; index < element->childCount(); ++index) {
        QAccessibleInterface *child = element->child(index);
        if (!child || !child->isValid())
            faults += QStringLiteral("%1 has no child %2\n").arg(who).arg(index);
        else if (child->parent() != element || element->indexOfChild(child) != index)
            faults += QStringLiteral("%1 does not know child %2, %3\n").arg(who).arg(index).arg(name(child));
        else
            faults += faultsFrom(child);
    }
    return faults;
}

} // namespace ScreenReader
