// The screen that a user would put together from stock Qt widgets.
#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

namespace bench {

struct ScreenTexts;

/// A title (QLabel), rows of two columns (QTreeWidget) and two keys (QPushButton), of the display's size and with the
/// list's first row chosen. Everything that makes the stock widgets quicker and does not show is done: fixed places
/// instead of layouts, rows of one height, columns of fixed widths, no column header.
class StockScreen : public QWidget
{
public:
    StockScreen(const ScreenTexts &texts, QWidget *parent);
};

/// A choice of one text (QListWidget) under a title and over two keys, all over the display of `parent` it lies in: it
/// has no window of its own, which would take longer.
class StockDialog : public QDialog
{
public:
    enum class Rows {
        AsTheyCome, ///< the list asks every row for its size
        Alike       ///< it asks the first one
    };

    StockDialog(const QString &title, const QStringList &choices, Rows rows, QWidget *parent);
};

} // namespace bench
