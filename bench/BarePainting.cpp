#include "bench/BarePainting.h"

#include "bench/ScreenTable.h"
#include "toolkit/ZSkinService.h"

#include <QtGui/QPainter>

namespace bench {

namespace {

constexpr int width = ZSkinService::DisplayWidth;
constexpr int height = ZSkinService::DisplayHeight;
constexpr int titleHeight = ZSkinService::TitleBarHeight;
constexpr int keyHeight = ZSkinService::SoftkeyBarHeight;
constexpr int rowHeight = ZSkinService::RowHeight;
constexpr int margin = ZSkinService::RowMargin;
constexpr int keysTop = height - keyHeight;
constexpr int left = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
constexpr int right = Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine;

void paintText(QPainter &painter, int top, int lineHeight, int flags, const QString &text)
{
    if (!text.isEmpty())
        painter.drawText(QRect(margin, top, width - 2 * margin, lineHeight), flags, text);
}

void paintRows(QPainter &painter, const QList<TextRow> &rows)
{
    int top = titleHeight;
    painter.fillRect(0, top, width, rowHeight, ZSkinService::color(ZSkinService::FocusBarColor));
    painter.setPen(ZSkinService::color(ZSkinService::FocusTextColor));
    for (const TextRow &row : rows) {
        paintText(painter, top, rowHeight, left, row.title);
        paintText(painter, top, rowHeight, right, row.value);
        painter.setPen(ZSkinService::color(ZSkinService::RowTextColor));
        top += rowHeight;
    }
}

} // namespace

BarePainting::BarePainting()
    : image(width, height, QImage::Format_RGB32)
    , rowFont(ZSkinService::font(ZSkinService::RowFont))
    , titleFont(ZSkinService::font(ZSkinService::TitleFont))
    , keyFont(ZSkinService::font(ZSkinService::SoftkeyFont))
{}

void BarePainting::paint(const ScreenTexts &texts)
{
    QPainter painter(&image);
    painter.fillRect(0, titleHeight, width, keysTop - titleHeight, ZSkinService::color(ZSkinService::ScreenColor));
    painter.fillRect(0, 0, width, titleHeight, ZSkinService::color(ZSkinService::TitleBarColor));
    painter.fillRect(0, keysTop, width, keyHeight, ZSkinService::color(ZSkinService::SoftkeyBarColor));
    painter.setFont(titleFont);
    painter.setPen(ZSkinService::color(ZSkinService::TitleTextColor));
    paintText(painter, 0, titleHeight, left, texts.title);
    painter.setFont(keyFont);
    paintText(painter, keysTop, keyHeight, left, texts.leftKey);
    paintText(painter, keysTop, keyHeight, right, texts.rightKey);
    painter.setFont(rowFont);
    paintRows(painter, texts.rows);
}

} // namespace bench
