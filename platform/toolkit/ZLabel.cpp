#include "toolkit/ZLabel.h"

#include "toolkit/ZText.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

ZLabel::ZLabel(const QString &text, QWidget *parent, const char *name, unsigned int flags,
               ZSkinService::WidgetClsID skinClass)
    : QLabel(parent, Qt::WindowFlags::fromInt(flags))
    , isHeading(skinClass == ZSkinService::HeadingLabelClass)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setTextFormat(Qt::PlainText);
    setText(text);
    setFont(ZSkinService::font(isHeading ? ZSkinService::HeadingFont : ZSkinService::RowFont));
    setMargin(0);
    setIndent(ZSkinService::RowMargin);
}

ZLabel::~ZLabel() = default;

void ZLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (isHeading)
        painter.fillRect(rect(), ZSkinService::color(ZSkinService::HeadingColor));
    painter.setPen(ZSkinService::color(!isEnabled() ? ZSkinService::DisabledTextColor
                                       : isHeading  ? ZSkinService::HeadingTextColor
                                                    : ZSkinService::RowTextColor));
    const QRect line = rect().adjusted(indent(), 0, -indent(), 0);
    ZText::draw(painter, font(), line, QStyle::visualAlignment(layoutDirection(), alignment()), text());
}
