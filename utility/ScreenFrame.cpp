#include "utility/ScreenFrame.h"

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZSoftKey.h"

#include <new>

namespace ScreenFrame {

namespace {

constexpr int lineOfRow = 0; // rows have one line
constexpr int atTheEnd = -1;

} // namespace

ZSoftKey *newSoftKey(ZKbMainWidget *screen)
{
    return new (std::nothrow) ZSoftKey(QString::fromLatin1("CST_2A"), screen, nullptr);
}

void nameBackKey(ZSoftKey *softKey, const Recipe &recipe)
{
    softKey->setText(ZSoftKey::RightKey, translated(recipe.context, "TXT_RID_SOFTKEY_BACK", "Back"),
                     ZSoftKey::DefaultTextPriority);
}

void emptyLeftKey(ZSoftKey *softKey, const Recipe &recipe)
{
    softKey->setText(ZSoftKey::LeftKey, translated(recipe.context, "", ""), ZSoftKey::DefaultTextPriority);
}

ZSoftKey *buildTitleAndSoftKey(ZKbMainWidget *screen, const Recipe &recipe)
{
    screen->setMainWidgetTitle(translated(recipe.context, recipe.title.key, recipe.title.english));
    ZSoftKey *softKey = newSoftKey(screen);
    if (!softKey)
        return nullptr;
    nameBackKey(softKey, recipe);
    emptyLeftKey(softKey, recipe);
    softKey->setClickedSlot(ZSoftKey::RightKey, screen, recipe.backMember);
    screen->setCSTWidget(softKey);
    return softKey;
}

ZListBox *newList(ZKbMainWidget *screen)
{
    QWidget *content = screen->getContentWidget(true);
    auto *list =
        new (std::nothrow) ZListBox(QString::fromLatin1("%M"), content, 0, ZSkinService::SettingListClass);
    if (list)
        list->setGeometry(QRect(0, 0, content->width(), content->height()));
    return list;
}

void connectList(ZKbMainWidget *screen, ZListBox *list, const Recipe &recipe)
{
    if (list)
        QObject::connect(list, "2selected(ZSettingItem *)", screen, "1slotSelectedItem(ZSettingItem *)");
    QObject::connect(screen, "2clearKeyClicked()", screen, recipe.backMember);
}

ZListBox *buildList(ZKbMainWidget *screen, const Recipe &recipe)
{
    ZListBox *list = newList(screen);
    connectList(screen, list, recipe);
    return list;
}

ZSettingItem *newEmptyRow(ZListBox *list)
{
    return list ? new (std::nothrow) ZSettingItem(list, QString()) : nullptr;
}

ZSettingItem *newSeparator(ZListBox *list, const QString &label)
{
    auto *row = list ? new (std::nothrow) ZSettingItem(list, QString::fromLatin1("%P")) : nullptr;
    if (row)
        row->setSeparator(label, nullptr);
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

QString sessionName(const QString &apn, const ResourceText &fallback)
{
    return apn.isEmpty() ? textFor<QObject>(fallback) : QString::fromLatin1("%1").arg(apn);
}

void showSubScreen(ZKbMainWidget *screen, ZKbMainWidget *subScreen)
{
    QObject::connect(subScreen, "2closeWgt()", screen, "1slotCloseWgt()");
    subScreen->show();
}

} // namespace ScreenFrame
