#include "toolkit/DialogTestKit.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QRect>
#include <QtGui/QImage>

ZListBoxItem *DialogTestKit::addChoice(ZListBox *list, const QString &text, int subItem)
{
    auto *item = new ZListBoxItem(list, QString());
    item->appendSubItem(subItem, text, QString(), nullptr, 50, ZListBoxItem::HighShowPriority);
    list->insertItem(item, -1, true);
    return item;
}

void DialogTestKit::addChoices(ZListBox *list, const QStringList &texts, int subItem)
{
    for (const QString &text : texts)
        addChoice(list, text, subItem);
}

void DialogTestKit::addManyChoices(ZListBox *list)
{
    for (int i = 0; i < 194; ++i)
        addChoice(list, QStringLiteral("Choice %1").arg(i));
}

QString DialogTestKit::chosen(const ZListBox *list)
{
    const ZListItem *item = list->item(list->currentItem());
    return item ? item->title() : QString();
}

void DialogTestKit::pressKey(int key)
{
    QVERIFY(ZApplication::pressKey(key));
}

void DialogTestKit::pressKeys(const char *keys)
{
    for (; *keys; ++keys)
        pressKey(*keys); // digits, the star and the hash are their own key codes
}

void DialogTestKit::addClearKeyRows()
{
    QTest::addColumn<int>("key");
    QTest::newRow("the phone's clear key closes") << int(Qt::Key_Clear);
    QTest::newRow("the Escape key of a keyboard closes") << int(Qt::Key_Escape);
    QTest::newRow("the Back key closes") << int(Qt::Key_Back);
}

QRect DialogTestKit::boxOf(ZPopup *dialog)
{
    const QImage image = dialog->grab().toImage();
    const QRgb frame = ZSkinService::color(ZSkinService::DialogFrameColor).rgb();
    QRect box;
    for (int y = 0; y < image.height() - ZSkinService::SoftkeyBarHeight; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == frame)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

DialogTestKit::Answers::Answers(ZPopup *dialog)
    : source(dialog)
{
    connect(dialog, &ZPopup::leftSoftkeyClicked, this, [this] { note(QStringLiteral("left")); });
    connect(dialog, &ZPopup::rightSoftkeyClicked, this, [this] { note(QStringLiteral("right")); });
    connect(dialog, &ZPopup::signalCenterSelKeyPressed, this, [this] { note(QStringLiteral("select")); });
}

void DialogTestKit::Answers::note(const QString &answer)
{
    given << answer;
    wasHidden = wasHidden && !source->isVisible();
    if (then)
        then();
}

#include "moc_DialogTestKit.cpp"
