#include "toolkit/ZKeypadInput.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

ZKeypadInput::ZKeypadInput(QWidget *field, Kind inputKind)
    : QObject(field)
    , target(field)
    , kind(inputKind)
{
    field->installEventFilter(this);
    field->updateGeometry(); // what is around the field may have something to show now
}

ZKeypadInput *ZKeypadInput::of(const QWidget *field)
{
    return field->findChild<ZKeypadInput *>(QString(), Qt::FindDirectChildrenOnly);
}

void ZKeypadInput::remove(QWidget *field)
{
    delete of(field);
}

QString ZKeypadInput::indicator() const
{
    switch (kind) {
    case Kind::Decimal:
        return QStringLiteral("123");
    case Kind::Letters:
        return upperCase ? QStringLiteral("ABC") : QStringLiteral("abc");
    }
    return QString();
}

QString ZKeypadInput::legend() const
{
    const QString erase = QStringLiteral("#  \u232b");
    switch (kind) {
    case Kind::Decimal:
        return QStringLiteral("*  .    ") + erase;
    case Kind::Letters:
        return (upperCase ? QStringLiteral("*  abc    ") : QStringLiteral("*  ABC    ")) + erase;
    }
    return QString();
}

bool ZKeypadInput::eventFilter(QObject *, QEvent *event)
{
    return event->type() == QEvent::KeyPress && keyPressed(static_cast<const QKeyEvent *>(event));
}

// Answers whether the key is typed already.
bool ZKeypadInput::keyPressed(const QKeyEvent *event)
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (!multiTap.isOpenFor(event->key()))
        multiTap.end();
    if (event->key() == Qt::Key_NumberSign) {
        takeBack();
        return true;
    }
    switch (kind) {
    case Kind::Decimal:
        return decimalKey(event->key());
    case Kind::Letters:
        return letterKey(event);
    }
    return false;
}

bool ZKeypadInput::decimalKey(int qtKey)
{
    if (qtKey == Qt::Key_Asterisk && text().contains(QLatin1Char('.')))
        return true;
    if (qtKey != Qt::Key_Asterisk && qtKey != Qt::Key_Comma)
        return false;
    type(QStringLiteral("."), false);
    return true;
}

bool ZKeypadInput::letterKey(const QKeyEvent *event)
{
    if (event->key() == Qt::Key_Asterisk) {
        if (event->isAutoRepeat())
            return true;
        upperCase = !upperCase;
        emit indicatorChanged();
        return true;
    }
    if (ZMultiTap::charactersOf(event->key()).isEmpty())
        return false;
    if (event->isAutoRepeat())
        holdKey(event->key());
    else
        tapKey(event->key());
    return true;
}

void ZKeypadInput::tapKey(int qtKey)
{
    if (cursor() != cursorAfterTap)
        multiTap.end(); // the cursor was put elsewhere
    const ZMultiTap::Tap tap = multiTap.tap(qtKey);
    const QChar character = upperCase ? tap.character : tap.character.toLower();
    if (!type(character, tap.isAnother))
        multiTap.end(); // there was no room for it, so there is nothing to change
    cursorAfterTap = cursor();
}

void ZKeypadInput::holdKey(int qtKey)
{
    if (!multiTap.isOpenFor(qtKey))
        return;
    type(ZMultiTap::charactersOf(qtKey).back(), true);
    multiTap.end();
}

void ZKeypadInput::takeBack()
{
    if (text().isEmpty())
        return; // the key that does it would leave an empty field
    QKeyEvent backspace(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &backspace);
}

QString ZKeypadInput::text() const
{
    return target->inputMethodQuery(Qt::ImSurroundingText).toString();
}

int ZKeypadInput::cursor() const
{
    return target->inputMethodQuery(Qt::ImCursorPosition).toInt();
}

// Answers whether the field took them.
bool ZKeypadInput::type(const QString &characters, bool insteadOfLast)
{
    const QString before = text();
    QInputMethodEvent commit;
    commit.setCommitString(characters, insteadOfLast ? -1 : 0, insteadOfLast ? 1 : 0);
    QCoreApplication::sendEvent(target, &commit);
    return text() != before;
}
