#include "StockScreen.h"

#include "ScreenTable.h"
#include "ZSkinService.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
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

void addTitle(const QString &text, QWidget *screen)
{
    auto *title = new QLabel(text, screen);
    title->setGeometry(0, 0, screen->width(), titleHeight);
}

QRect listRect(const QWidget *screen)
{
    return QRect(0, titleHeight, screen->width(), screen->height() - titleHeight - keyHeight);
}

void prepare(QWidget *screen)
{
    screen->setFont(ZSkinService::font(ZSkinService::RowFont));
    screen->setAutoFillBackground(true);
    screen->resize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
}

QTreeWidget *addTree(const QList<TextRow> &rows, QWidget *screen)
{
    auto *list = new QTreeWidget(screen);
    list->setColumnCount(2);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->header()->resizeSection(0, titleColumnWidth);
    list->setGeometry(listRect(screen));
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
    prepare(this);
    addTitle(texts.title, this);
    QTreeWidget *list = addTree(texts.rows, this);
    addKey(texts.leftKey, 0, this);
    addKey(texts.rightKey, width() / 2, this);
    list->setCurrentItem(list->topLevelItem(0));
    list->setFocus();
}

StockDialog::StockDialog(const QString &title, const QStringList &choices, Rows rows, QWidget *parent)
    : QDialog(parent)
{
    setWindowFlags(Qt::Widget);
    prepare(this);
    addTitle(title, this);
    auto *list = new QListWidget(this);
    list->setUniformItemSizes(rows == Rows::Alike);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setGeometry(listRect(this));
    list->addItems(choices);
    addKey(QStringLiteral("OK"), 0, this);
    addKey(QStringLiteral("Cancel"), width() / 2, this);
    list->setCurrentRow(0);
    list->setFocus();
}

} // namespace bench
