// The screens as a competent developer writes them with Qt: a list view with a model and a delegate.
#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

class QListView;

namespace bench {

struct ScreenTexts;

/// A title (QLabel), rows of a title and a value (QListView with a model and a delegate that paints both) and two keys
/// (QPushButton), of the display's size and with the first row chosen. Everything that makes it quick and does not
/// show is done: fixed places instead of layouts, rows of one height that nobody measures, all set before it is shown.
class ListScreen : public QWidget
{
public:
    ListScreen(const ScreenTexts &texts, QWidget *parent);

    /// What it says, as its widgets and the model have it.
    ScreenTexts texts() const;

private:
    QListView *list;
};

/// A choice of one text with the same list under a title and over two keys, all over the display of `parent` that it
/// lies in: it has no window of its own, which would take longer.
class ListDialog : public QDialog
{
public:
    ListDialog(const QString &title, const QStringList &choices, QWidget *parent);

    /// As the list has them.
    QStringList choices() const;

private:
    QListView *list;
};

} // namespace bench
