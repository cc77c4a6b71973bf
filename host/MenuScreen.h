// The first screen: what the recent-calls application has to show.
#pragma once

#include "toolkit/ZKbMainWidget.h"

class ZListBox;
class ZSettingItem;
class ZSoftKey;

namespace host {

class MenuScreen : public ZKbMainWidget
{
    Q_OBJECT

public:
    /// One row for each row of the screen table.
    explicit MenuScreen(QWidget *parent);

    /// What the rows take of the content; below them there is nothing.
    int rowsHeight() const;
    /// Gives the keys to the list.
    void takeFocus();

signals:
    /// Row `index` of the screen table was chosen.
    void chosen(int index);
    /// The right softkey: the user has enough of the application. The clear key does nothing here, so that a press
    /// too many does not end it.
    void exitRequested();

private slots:
    void chooseItem(ZSettingItem *item);
    void chooseFocused();

private:
    void fillList();

    ZSoftKey *softKey;
    ZListBox *list;
};

} // namespace host
