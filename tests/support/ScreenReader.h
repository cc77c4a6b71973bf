// A screen reader as a test is one.
#pragma once

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtGui/QAccessible>

/// What is told, and how it is read. Qt's platform for tests knows no screen readers: this stands in front of what Qt and
/// the product tell one (QAccessible::isActive() and QAccessible::updateAccessibility()).
namespace ScreenReader {

/// While it lives, somebody listens; what was told before is forgotten.
class Listening
{
public:
    Listening();
    ~Listening();
    Q_DISABLE_COPY_MOVE(Listening)
};

/// Forgets what has been told so far.
void forget();
/// How often `what` was told of `element`.
int count(QAccessible::Event what, QAccessibleInterface *element);
/// What the elements were called of which `what` was told, at that time and in that order.
QStringList namesTold(QAccessible::Event what);
/// Where the focus was told to be last; null for nowhere.
QAccessibleInterface *lastFocus();

/// What a screen reader gets of a widget.
QAccessibleInterface *told(QObject *object);
QString name(const QAccessibleInterface *element);
bool canBePressed(QAccessibleInterface *element);
/// Asks for what the element does.
void press(QAccessibleInterface *element);

/// Every element on show, from `element` down.
QList<QAccessibleInterface *> shownFrom(QAccessibleInterface *element);
/// The names of those that have one.
QStringList namesShownFrom(QAccessibleInterface *element);
/// What is wrong with the elements from `element` down, a line each: a place among the others that does not fit, or, on
/// show and for a person to do something with, no name. Empty where nothing is.
QString faultsFrom(QAccessibleInterface *element);

} // namespace ScreenReader
