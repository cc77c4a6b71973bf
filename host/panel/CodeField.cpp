#include "host/panel/CodeField.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>

#include <cstring>

namespace host {

CodeField::CodeField(QWidget *parent)
    : QLineEdit(parent)
{
    setEchoMode(Password);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAcceptDrops(false);
}

CodeField::~CodeField()
{
    forget();
}

void CodeField::forget()
{
    ::explicit_bzero(kept.data(), kept.size()); // which a compiler does not leave out as nobody reads it
    used = 0;
    showMarks();
}

void CodeField::keyPressEvent(QKeyEvent *event)
{
    const bool isErasing = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (isErasing)
        takeBack();
    else if (type(event))
        showMarks();
    else if (event->text().isEmpty() || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
             event->key() == Qt::Key_Escape)
        QLineEdit::keyPressEvent(event); // keys that type nothing
}

bool CodeField::type(const QKeyEvent *event)
{
    const QString text = event->text();
    if (text.size() != 1 || text.front() < u'0' || text.front() > u'9' || used == mostDigits)
        return false;
    kept[used++] = text.front().toLatin1();
    return true;
}

void CodeField::takeBack()
{
    if (used > 0)
        kept[--used] = 0;
    showMarks();
}

void CodeField::showMarks()
{
    setText(QString(static_cast<qsizetype>(used), u'0'));
    emit digitsChanged();
}

void CodeField::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept(); // there is nothing to copy, and what is pasted would not be digits
}

void CodeField::dropEvent(QDropEvent *event)
{
    event->ignore();
}

} // namespace host
