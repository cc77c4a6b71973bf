#include "host/MenuScreen.h"

#include "host/ScreenTable.h"
#include "qt/translation.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZSoftKey.h"

namespace host {

namespace {

QString text(const char *key, const char *english)
{
    return translatedFor<MenuScreen>(key, english);
}

} // namespace

MenuScreen::MenuScreen(QWidget *parent)
    : ZKbMainWidget(parent, "menu", 0)
    , softKey(new ZSoftKey(QStringLiteral("CST_2A"), this, nullptr))
    , list(new ZListBox(QStringLiteral("%M"), getContentWidget(true), 0, ZSkinService::SettingListClass))
{
    setMainWidgetTitle(text("TXT_RID_HEADER_RECENT_CALLS", "Recent Calls"));
    softKey->setText(ZSoftKey::LeftKey, text("TXT_RID_SOFTKEY_OPEN", "Open"), ZSoftKey::DefaultTextPriority);
    softKey->setText(ZSoftKey::RightKey, text("TXT_RID_SOFTKEY_EXIT", "Exit"), ZSoftKey::DefaultTextPriority);
    softKey->setClickedSlot(ZSoftKey::LeftKey, this, SLOT(chooseFocused()));
    softKey->setClickedSlot(ZSoftKey::RightKey, this, SIGNAL(exitRequested()));
    setCSTWidget(softKey);
    list->setGeometry(getContentWidget(true)->rect());
    connect(list, &ZListBox::selected, this, &MenuScreen::chooseItem);
    fillList();
}

void MenuScreen::fillList()
{
    for (const ScreenEntry &entry : screenTable) {
        auto *item = new ZSettingItem(list, QString());
        item->appendSubItem(0, text(entry.key, entry.english), false, ZSettingItem::TitleRegion);
        list->insertItem(item, -1, true);
    }
}

int MenuScreen::rowsHeight() const
{
    return list->count() * ZSkinService::RowHeight;
}

void MenuScreen::takeFocus()
{
    list->setFocus();
}

void MenuScreen::chooseItem(ZSettingItem *item)
{
    emit chosen(list->index(item));
}

void MenuScreen::chooseFocused()
{
    if (list->currentItem() >= 0)
        emit chosen(list->currentItem());
}

} // namespace host
