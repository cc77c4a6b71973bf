#include "ScreenFrame.h"

#include "ZKbMainWidget.h"
#include "ZSoftKey.h"

#include <new>

namespace ScreenFrame {

namespace {

constexpr int lineOfRow = 0; // rows have one line
constexpr int atTheEnd = -1;

void fillSoftKey(ZSoftKey *softKey, ZKbMainWidget *screen, const Recipe &recipe)
{
    softKey->setText(ZSoftKey::RightKey, translated(recipe.context, "TXT_RID_SOFTKEY_BACK", "Back"),
                     ZSoftKey::DefaultTextPriority);
    softKey->setText(ZSoftKey::LeftKey, translated(recipe.context, "", ""), ZSoftKey::DefaultTextPriority);
    softKey->setClickedSlot(ZSoftKey::RightKey, screen, recipe.backMember);
    screen->setCSTWidget(softKey);
}

} // namespace

ZSoftKey *buildTitleAndSoftKey(ZKbMainWidget *screen, const Recipe &recipe)
{
    screen->setMainWidgetTitle(translated(recipe.context, recipe.title.key, recipe.title.english));
    auto *softKey = new (std::nothrow) ZSoftKey(QString::fromLatin1("CST_2A"), screen, nullptr);
    if (softKey)
        fillSoftKey(softKey, screen, recipe);
    return softKey;
}

ZListBox *buildList(ZKbMainWidget *screen, const Recipe &recipe)
{
    QWidget *content = screen->getContentWidget(true);
    auto *list =
        new (std::nothrow) ZListBox(QString::fromLatin1("%M"), content, 0, ZSkinService::SettingListClass);
    if (list) {
        list->setGeometry(QRect(0, 0, content->width(), content->height()));
        QObject::connect(list, "2selected(ZSettingItem *)", screen, "1slotSelectedItem(ZSettingItem *)");
    }
    QObject::connect(screen, "2clearKeyClicked()", screen, recipe.backMember);
    return list;
}

ZSettingItem *newRow(ZListBox *list, const QString &title)
{
    auto *row = list ? new (std::nothrow) ZSettingItem(list, QString()) : nullptr;
    if (row)
        row->appendSubItem(lineOfRow, title, false, ZSettingItem::TitleRegion);
    return row;
}

void appendValue(ZSettingItem *row, const QString &value)
{
    row->appendSubItem(lineOfRow, value, false, ZSettingItem::ValueRegion);
}

void appendRow(ZListBox *list, ZSettingItem *row)
{
    list->insertItem(row, atTheEnd, true);
}

ZMessageDlg *newDialog(ZKbMainWidget *screen, const QString &header, const QString &message,
                       ZMessageDlg::MessageDlgType type, const char *leftSlot, const char *rightSlot)
{
    auto *dialog = new (std::nothrow) ZMessageDlg(header, message, type, 0, screen, nullptr, true, 0);
    if (dialog && leftSlot)
        QObject::connect(dialog, "2leftSoftkeyClicked()", screen, leftSlot);
    if (dialog && rightSlot)
        QObject::connect(dialog, "2rightSoftkeyClicked()", screen, rightSlot);
    return dialog;
}

} // namespace ScreenFrame
