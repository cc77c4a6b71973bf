#include "toolkit/ZSingleCaptureDlg.h"

#include "qt/translation.h"
#include "toolkit/ZKeypadInput.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZText.h"
#include "toolkit/ZTextPane.h"

#include <QtCore/QEvent>
#include <QtCore/qlogging.h>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr int padding = ZSkinService::DialogPadding;
constexpr int legendHeight = 16;
constexpr int legendGap = 6; // between the field and the legend

// The message, if there is one, over the field, over what the phone's keys do.
class CaptureBody : public QWidget
{
public:
    CaptureBody(const QString &text, QWidget *parent, std::function<void()> sizeChanged)
        : QWidget(parent)
        , tellSize(std::move(sizeChanged))
        , message(text.isEmpty() ? nullptr : new ZTextPane(text, this))
        , edit(new ZMultiLineEdit(this))
    {}

    ZMultiLineEdit *field() const { return edit; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        return fieldTop(width) + edit->sizeHint().height() + legendRoom() + padding + 1;
    }

protected:
    bool event(QEvent *event) override
    {
        // The field has another height, or an input method now.
        if (event->type() == QEvent::LayoutRequest) {
            tellSize();
            layOut();
        }
        return QWidget::event(event);
    }

    void resizeEvent(QResizeEvent *) override { layOut(); }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(edit->geometry().adjusted(-1, -1, 1, 1),
                         ZSkinService::color(ZSkinService::RowValueColor));
        painter.fillRect(edit->geometry(), ZSkinService::color(ZSkinService::ScreenColor));
        const ZKeypadInput *input = ZKeypadInput::of(edit);
        if (!input)
            return;
        const QRect line(edit->x(), edit->geometry().bottom() + 1 + legendGap, edit->width(), legendHeight);
        const QFont font = ZSkinService::font(ZSkinService::HeadingFont);
        painter.setPen(ZSkinService::color(ZSkinService::HeadingTextColor));
        ZText::draw(painter, font, line, QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft),
                    input->indicator());
        ZText::draw(painter, font, line, QStyle::visualAlignment(layoutDirection(), Qt::AlignRight),
                    input->legend());
    }

private:
    int messageHeight(int width) const { return message ? message->heightForWidth(width) : 0; }
    // The message has a padding of its own.
    int fieldTop(int width) const { return message ? messageHeight(width) : padding; }
    int legendRoom() const { return ZKeypadInput::of(edit) ? legendGap + legendHeight : 0; }

    // Where there is not room for all, the message gives way.
    void layOut()
    {
        const int fieldHeight = edit->sizeHint().height();
        const int below = fieldHeight + legendRoom() + padding + 1;
        const int top = std::clamp(height() - below, 0, fieldTop(width()));
        if (message)
            message->setGeometry(0, 0, width(), top);
        edit->setGeometry(padding, top + 1, std::max(0, width() - 2 * padding), fieldHeight);
        if (ZKeypadInput *input = ZKeypadInput::of(edit))
            connect(input, &ZKeypadInput::indicatorChanged, this, &CaptureBody::showIndicator,
                    Qt::UniqueConnection);
        showIndicator();
    }

    void showIndicator()
    {
        const ZKeypadInput *input = ZKeypadInput::of(edit);
        const QString indicator = input ? input->indicator() : QString();
        if (edit->accessibleDescription() != indicator)
            edit->setAccessibleDescription(indicator);
        update();
    }

    std::function<void()> tellSize;
    ZTextPane *message;
    ZMultiLineEdit *edit;
};

} // namespace

struct ZSingleCaptureDlg::Private {
    ZMultiLineEdit *field = nullptr;
};

ZSingleCaptureDlg::ZSingleCaptureDlg(const QString &header, const QString &message, CaptureDlgType type,
                                     QWidget *parent, const char *name, bool modal, unsigned int flags,
                                     int timeout)
    : ZPopup(header, parent, name, modal, flags)
    , d(std::make_unique<Private>())
{
    if (type != TextCaptureDlg)
        qWarning("ZSingleCaptureDlg: there is no type %d", static_cast<int>(type));
    setSoftkeyTextLeft(translatedFor<ZSingleCaptureDlg>("TXT_RID_SOFTKEY_OK", "OK"));
    setSoftkeyTextRight(translatedFor<ZSingleCaptureDlg>("TXT_RID_SOFTKEY_CANCEL", "Cancel"));
    setAccessibleDescription(message);
    answerAfter(timeout, RightAnswer);
    auto *body = new CaptureBody(message, this, [this] { bodySizeChanged(); });
    d->field = body->field();
    d->field->setAccessibleName(header);
    setBody(body);
}

ZSingleCaptureDlg::~ZSingleCaptureDlg() = default;

ZMultiLineEdit *ZSingleCaptureDlg::getMultiLineEdit()
{
    return d->field;
}

QString ZSingleCaptureDlg::getResultText()
{
    QString text = d->field->toPlainText();
    while (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text;
}

void ZSingleCaptureDlg::setVisible(bool visible)
{
    if (visible)
        bodySizeChanged();
    ZPopup::setVisible(visible);
}
