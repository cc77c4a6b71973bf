#include "support/PhoneScreen.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZMessageDlg.h"

#include <QtWidgets/QApplication>

#include <algorithm>

namespace {

QString row(const QString &title, const QString &value)
{
    return title + QLatin1Char('|') + value;
}

} // namespace

void PhoneScreen::press(ZKeys::PhoneKey key)
{
    const auto *binding = std::find_if(ZKeys::bindings.begin(), ZKeys::bindings.end(),
                                       [key](const ZKeys::Binding &b) { return b.phoneKey == key; });
    if (binding == ZKeys::bindings.end() || !ZApplication::pressKey(binding->key))
        qFatal("phone key %d reached nobody", static_cast<int>(key));
}

void PhoneScreen::chooseRow(const ZKbMainWidget *screen, int row)
{
    const ZListBox *rows = list(screen);
    for (int steps = rows->count(); steps > 0 && rows->currentItem() != row; --steps)
        press(rows->currentItem() < row ? ZKeys::PhoneKey::Down : ZKeys::PhoneKey::Up);
    if (rows->currentItem() != row)
        qFatal("row %d cannot be reached by keys", row);
    press(ZKeys::PhoneKey::Select);
}

ZListBox *PhoneScreen::list(const ZKbMainWidget *screen)
{
    const auto lists = screen->findChildren<ZListBox *>();
    for (ZListBox *list : lists) {
        const QWidget *owner = list->parentWidget();
        while (owner && !qobject_cast<const ZKbMainWidget *>(owner))
            owner = owner->parentWidget();
        if (owner == screen)
            return list;
    }
    return nullptr;
}

QStringList PhoneScreen::rows(const ZKbMainWidget *screen)
{
    QStringList texts;
    const ZListBox *items = list(screen);
    for (int i = 0; items && i < items->count(); ++i)
        texts.append(row(items->item(i)->title(), items->item(i)->value()));
    return texts;
}

QStringList PhoneScreen::shownRows(const ZKbMainWidget *screen)
{
    QStringList texts;
    const ZListBox *view = list(screen);
    for (int i = 0; view && i < view->model()->rowCount(); ++i) {
        const QModelIndex index = view->model()->index(i, 0);
        texts.append(row(index.data(Qt::DisplayRole).toString(), index.data(ZListBox::ValueRole).toString()));
    }
    return texts;
}

QString PhoneScreen::value(const ZKbMainWidget *screen, int row)
{
    const ZListItem *item = list(screen)->item(row);
    return item ? item->value() : QString();
}

QString PhoneScreen::softkey(const ZKbMainWidget *screen, ZSoftKey::KEY_IDX key)
{
    const auto *bar = qobject_cast<const ZSoftKey *>(screen->cstWidget());
    return bar ? bar->text(key) : QString();
}

QList<ZMessageDlg *> PhoneScreen::shownDialogs()
{
    QList<ZMessageDlg *> shown;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *dialog = qobject_cast<ZMessageDlg *>(widget);
        if (dialog && dialog->isVisible())
            shown.append(dialog);
    }
    return shown;
}

ZMessageDlg *PhoneScreen::shownDialog()
{
    const QList<ZMessageDlg *> shown = shownDialogs();
    return shown.size() == 1 ? shown.first() : nullptr;
}
