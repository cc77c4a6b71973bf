#include "StockScreen.h"

#include "ScreenTable.h"
#include "ZSkinService.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

namespace bench {

namespace {

constexpr int titleHeight = ZSkinService::TitleBarHeight;
constexpr int keyHeight = ZSkinService::SoftkeyBarHeight;
constexpr int titleColumnWidth = 150;

void addKey(const QString &text, int left, QWidget *screen)
{
    auto *key = new QPushButton(text, screen);
    key->setFocusPolicy(Qt::NoFocus);
    key->setGeometry(left, screen->height() - keyHeight, screen->width() / 2, keyHeight);
}

QTreeWidget *addList(const QList<TextRow> &rows, QWidget *screen)
{
    auto *list = new QTreeWidget(screen);
    list->setColumnCount(2);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->header()->resizeSection(0, titleColumnWidth);
    list->setGeometry(0, titleHeight, screen->width(), screen->height() - titleHeight - keyHeight);
    QList<QTreeWidgetItem *> items;
    items.reserve(rows.size());
    for (const TextRow &row : rows)
        items.append(new QTreeWidgetItem({row.title, row.value}));
    list->addTopLevelItems(items);
    return list;
}

} // namespace

StockScreen::StockScreen(const ScreenTexts &texts, QWidget *parent)
    : QWidget(parent)
{
    setFont(ZSkinService::font(ZSkinService::RowFont));
    setAutoFillBackground(true);
    resize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
    auto *title = new QLabel(texts.title, this);
    title->setGeometry(0, 0, width(), titleHeight);
    QTreeWidget *list = addList(texts.rows, this);
    addKey(texts.leftKey, 0, this);
    addKey(texts.rightKey, width() / 2, this);
    list->setCurrentItem(list->topLevelItem(0));
    list->setFocus();
}

} // namespace bench
