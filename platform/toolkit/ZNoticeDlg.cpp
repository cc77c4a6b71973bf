#include "toolkit/ZNoticeDlg.h"

#include "qt/translation.h"
#include "toolkit/ZKeys.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZTextPane.h"

#include <QtCore/qlogging.h>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

constexpr int padding = ZSkinService::DialogPadding;
constexpr int signSize = 28;

// A check mark on a disc, in a square of 28 pixels.
constexpr QPointF checkMark[] = {QPointF(7.5, 14.5), QPointF(12.0, 19.0), QPointF(20.5, 9.5)};
constexpr qreal checkMarkWidth = 2.8;

// The sign at the leading edge, the text in what is left.
class NoticeBody : public QWidget
{
public:
    NoticeBody(const QString &message, QWidget *parent)
        : QWidget(parent)
        , text(new ZTextPane(message, this))
    {}

    ZTextPane *pane() const { return text; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        return std::max(text->heightForWidth(textWidth(width)), signSize + 2 * padding);
    }

protected:
    void resizeEvent(QResizeEvent *) override
    {
        const int paneHeight = std::min(text->heightForWidth(textWidth(width())), height());
        const QRect pane(width() - textWidth(width()), (height() - paneHeight) / 2, textWidth(width()),
                         paneHeight);
        text->setGeometry(QStyle::visualRect(layoutDirection(), rect(), pane));
    }

    void paintEvent(QPaintEvent *) override
    {
        const QRect sign(padding, (height() - signSize) / 2, signSize, signSize);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(QStyle::visualRect(layoutDirection(), rect(), sign).topLeft());
        painter.setPen(Qt::NoPen);
        painter.setBrush(ZSkinService::color(ZSkinService::FocusBarColor));
        painter.drawEllipse(0, 0, signSize, signSize);
        painter.setPen(QPen(ZSkinService::color(ZSkinService::FocusTextColor), checkMarkWidth, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(checkMark, static_cast<int>(std::size(checkMark)));
    }

private:
    // The text pane has a padding of its own.
    static int textWidth(int width) { return std::max(0, width - signSize - padding); }

    ZTextPane *text;
};

} // namespace

struct ZNoticeDlg::Private {
    Type type;
    QString message;
    bool closable;
    ZTextPane *text = nullptr;
};

ZNoticeDlg::ZNoticeDlg(Type type, const QString &header, const QString &message, QWidget *parent, const char *name,
                       bool modal, unsigned int flags, bool closable)
    : ZPopup(header, parent, name, modal, flags)
    , d(std::make_unique<Private>(Private{type, message, closable}))
{
    if (type != DoneNotice) {
        qWarning("ZNoticeDlg: there is no type %d", static_cast<int>(type));
        d->type = DoneNotice;
    }
    if (closable)
        setSoftkeyTextLeft(translatedFor<ZNoticeDlg>("TXT_RID_SOFTKEY_OK", "OK"));
    setAccessibleDescription(message);
    auto *body = new NoticeBody(message, this);
    d->text = body->pane();
    setBody(body);
}

ZNoticeDlg::~ZNoticeDlg() = default;

QString ZNoticeDlg::message() const
{
    return d->message;
}

ZNoticeDlg::Type ZNoticeDlg::type() const
{
    return d->type;
}

void ZNoticeDlg::keyPressEvent(QKeyEvent *event)
{
    if (d->text->scrollByKey(event->key()) || !d->closable)
        event->accept();
    else
        ZPopup::keyPressEvent(event);
}
