#include "bench/ListScreen.h"

#include "bench/ScreenTable.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QAbstractListModel>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyledItemDelegate>

#include <utility>

namespace bench {

namespace {

constexpr int titleHeight = ZSkinService::TitleBarHeight;
constexpr int keyHeight = ZSkinService::SoftkeyBarHeight;
constexpr int margin = ZSkinService::RowMargin;
constexpr int valueRole = Qt::UserRole;

class Model final : public QAbstractListModel
{
public:
    Model(QList<TextRow> textRows, QObject *parent)
        : QAbstractListModel(parent)
        , rows(std::move(textRows))
    {}

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return rows.at(index.row()).title;
        return role == valueRole ? rows.at(index.row()).value : QVariant();
    }

private:
    const QList<TextRow> rows;
};

class Delegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool isChosen = option.state & QStyle::State_Selected;
        if (isChosen)
            painter->fillRect(option.rect, option.palette.highlight());
        painter->setPen(option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text));
        paintTexts(painter, option, index.data(Qt::DisplayRole).toString(), index.data(valueRole).toString());
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {0, ZSkinService::RowHeight};
    }

private:
    // A value is whole; the title gets what it leaves, and is cut where that is too little.
    static void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QString &title,
                           const QString &value)
    {
        constexpr int line = Qt::AlignVCenter | Qt::TextSingleLine;
        QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        if (!value.isEmpty()) {
            painter->drawText(room, Qt::AlignRight | line, value);
            room.setRight(room.right() - option.fontMetrics.horizontalAdvance(value) - ZSkinService::RowGap);
        }
        painter->drawText(room, Qt::AlignLeft | line,
                          option.fontMetrics.elidedText(title, Qt::ElideRight, room.width()));
    }
};

void addKey(const QString &text, int left, QWidget *screen)
{
    auto *key = new QPushButton(text, screen);
    key->setFlat(true);
    key->setFocusPolicy(Qt::NoFocus);
    key->setGeometry(left, screen->height() - keyHeight, screen->width() / 2, keyHeight);
}

void prepare(QWidget *screen)
{
    screen->setFont(ZSkinService::font(ZSkinService::RowFont));
    screen->setAutoFillBackground(true);
    screen->resize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
}

QListView *addParts(const QString &title, const QList<TextRow> &rows, const QString &leftKey,
                    const QString &rightKey, QWidget *screen)
{
    prepare(screen);
    auto *label = new QLabel(title, screen);
    label->setGeometry(0, 0, screen->width(), titleHeight);
    auto *list = new QListView(screen);
    list->setFrameShape(QFrame::NoFrame);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    list->setItemDelegate(new Delegate(list));
    list->setModel(new Model(rows, list));
    list->setGeometry(0, titleHeight, screen->width(), screen->height() - titleHeight - keyHeight);
    list->setCurrentIndex(list->model()->index(0, 0));
    addKey(leftKey, 0, screen);
    addKey(rightKey, screen->width() / 2, screen);
    list->setFocus();
    return list;
}

QList<TextRow> withoutValues(const QStringList &titles)
{
    QList<TextRow> rows;
    rows.reserve(titles.size());
    for (const QString &title : titles)
        rows.append({title, QString()});
    return rows;
}

QList<TextRow> rowsOf(const QListView *list)
{
    QList<TextRow> rows;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        rows.append({index.data(Qt::DisplayRole).toString(), index.data(valueRole).toString()});
    }
    return rows;
}

} // namespace

ListScreen::ListScreen(const ScreenTexts &texts, QWidget *parent)
    : QWidget(parent)
    , list(addParts(texts.title, texts.rows, texts.leftKey, texts.rightKey, this))
{}

ScreenTexts ListScreen::texts() const
{
    const QList<QPushButton *> keys = findChildren<QPushButton *>();
    return {findChild<QLabel *>()->text(), keys.at(0)->text(), keys.at(1)->text(), rowsOf(list)};
}

ListDialog::ListDialog(const QString &title, const QStringList &choices, QWidget *parent)
    : QDialog(parent)
{
    setWindowFlags(Qt::Widget);
    list = addParts(title, withoutValues(choices), QStringLiteral("OK"), QStringLiteral("Cancel"), this);
}

QStringList ListDialog::choices() const
{
    QStringList all;
    for (const TextRow &row : rowsOf(list))
        all.append(row.title);
    return all;
}

} // namespace bench
