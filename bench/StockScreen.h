// The screen that a user would put together from stock Qt widgets.
#pragma once

#include <QtWidgets/QWidget>

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

} // namespace bench
