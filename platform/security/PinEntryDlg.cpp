#include "security/PinEntryDlg.h"

#include "toolkit/ZLabel.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZSoftKey.h"

#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

constexpr int padding = ZSkinService::DialogPadding;
constexpr int lineHeight = 20;
constexpr int fieldHeight = 28;
constexpr int legendGap = 6;
constexpr int legendHeight = 16;
constexpr int markSize = 9;  // of the dot that stands for a digit
constexpr int markStep = 18; // from one to the next
constexpr int cursorHeight = 16;
constexpr int cursorWidth = 2;

// A frame with a dot for each digit and a cursor behind them.
class DigitField : public QWidget
{
public:
    DigitField(const PinDigits &shownDigits, QWidget *parent)
        : QWidget(parent)
        , digits(shownDigits)
    {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), ZSkinService::color(ZSkinService::RowValueColor));
        painter.fillRect(rect().adjusted(1, 1, -1, -1), ZSkinService::color(ZSkinService::ScreenColor));
        const QColor color = ZSkinService::color(ZSkinService::RowTextColor);
        QRect mark(ZSkinService::RowMargin, (height() - markSize) / 2, markSize, markSize);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        for (std::size_t i = 0; i < digits.count(); ++i, mark.translate(markStep, 0))
            painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), mark));
        const QRect cursor(mark.left(), (height() - cursorHeight) / 2, cursorWidth, cursorHeight);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), cursor), color);
    }

private:
    const PinDigits &digits;
};

// A screen reader takes it for what it looks like.
class DigitFieldAccess : public QAccessibleWidget
{
public:
    explicit DigitFieldAccess(QWidget *field)
        : QAccessibleWidget(field, QAccessible::EditableText)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.passwordEdit = true;
        return state;
    }

    static QAccessibleInterface *of(const QString &, QObject *object)
    {
        auto *field = dynamic_cast<DigitField *>(object);
        return field ? new DigitFieldAccess(field) : nullptr;
    }

    struct Factory {
        Factory() { QAccessible::installFactory(of); }
        ~Factory() { QAccessible::removeFactory(of); }
        Q_DISABLE_COPY_MOVE(Factory)
    };
};

// The notice and the tries over the field, over what can be typed.
class EntryBody : public QWidget
{
public:
    EntryBody(const PinDigits &digits, const QString &range, QWidget *parent)
        : QWidget(parent)
        , notice(new ZLabel(QString(), this, nullptr, 0, ZSkinService::SettingListClass))
        , tries(new ZLabel(QString(), this, nullptr, 0, ZSkinService::SettingListClass))
        , field(new DigitField(digits, this))
        , legend(new ZLabel(range, this, nullptr, 0, ZSkinService::SettingListClass))
        , erase(new ZLabel(QStringLiteral("#  \u232b"), this, nullptr, 0, ZSkinService::SettingListClass))
    {
        notice->setFont(ZSkinService::font(ZSkinService::EmphasisFont));
        legend->setFont(ZSkinService::font(ZSkinService::HeadingFont));
        erase->setFont(ZSkinService::font(ZSkinService::HeadingFont));
        erase->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
        for (ZLabel *label : {notice, tries, legend, erase})
            label->setIndent(0);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int) const override
    {
        return 2 * padding + textHeight() + fieldHeight + legendGap + legendHeight;
    }

    void say(const QString &noticeText, const QString &triesText)
    {
        notice->setText(noticeText);
        tries->setText(triesText);
        layOut();
    }

    void showDigits(const PinDigits &digits)
    {
        const QString marks(static_cast<qsizetype>(digits.count()), QChar(0x2022));
        field->setAccessibleDescription(marks);
        field->update();
    }

    void nameField(const QString &name) { field->setAccessibleName(name); }

protected:
    void resizeEvent(QResizeEvent *) override { layOut(); }

private:
    static int heightOf(const ZLabel *label) { return label->text().isEmpty() ? 0 : lineHeight; }
    int textHeight() const
    {
        const int lines = heightOf(notice) + heightOf(tries);
        return lines > 0 ? lines + legendGap : 0;
    }

    void layOut()
    {
        const int textWidth = std::max(0, width() - 2 * padding);
        int top = padding;
        notice->setGeometry(padding, top, textWidth, heightOf(notice));
        tries->setGeometry(padding, top + heightOf(notice), textWidth, heightOf(tries));
        top += textHeight();
        field->setGeometry(padding, top, textWidth, fieldHeight);
        top += fieldHeight + legendGap;
        const int eraseWidth = std::min(erase->sizeHint().width(), textWidth);
        const QRect line(padding, top, textWidth, legendHeight);
        legend->setGeometry(QStyle::visualRect(layoutDirection(), line, line.adjusted(0, 0, -eraseWidth, 0)));
        erase->setGeometry(
            QStyle::visualRect(layoutDirection(), line, line.adjusted(textWidth - eraseWidth, 0, 0, 0)));
    }

    ZLabel *notice;
    ZLabel *tries;
    DigitField *field;
    ZLabel *legend;
    ZLabel *erase;
};

} // namespace

struct PinEntryDlg::Private {
    PinDigits digits;
    EntryBody *body = nullptr;
};

PinEntryDlg::PinEntryDlg(const QString &header, const QString &range, QWidget *parent)
    : ZPopup(header, parent, nullptr, true, 0)
    , d(std::make_unique<Private>())
{
    [[maybe_unused]] static const DigitFieldAccess::Factory factory;
    d->body = new EntryBody(d->digits, range, this);
    d->body->nameField(header);
    setBody(d->body);
    digitsChanged();
}

PinEntryDlg::~PinEntryDlg() = default;

void PinEntryDlg::prepare(const QString &notice, const QString &tries)
{
    const QString both =
        notice.isEmpty() || tries.isEmpty() ? notice + tries : notice + QLatin1String(". ") + tries;
    setAccessibleDescription(both);
    forgetDigits();
    d->body->say(notice, tries);
    bodySizeChanged();
}

const PinDigits &PinEntryDlg::digits() const
{
    return d->digits;
}

void PinEntryDlg::forgetDigits()
{
    d->digits.clear();
    digitsChanged();
}

void PinEntryDlg::digitsChanged()
{
    softKey()->setButtonEnable(ZSoftKey::LeftKey, d->digits.isComplete());
    d->body->showDigits(d->digits);
}

void PinEntryDlg::type(int qtKey)
{
    if (d->digits.append(static_cast<char>('0' + (qtKey - Qt::Key_0))))
        digitsChanged();
}

void PinEntryDlg::takeBack()
{
    d->digits.removeLast();
    digitsChanged();
}

void PinEntryDlg::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    event->accept();
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        if (isPlain && !event->isAutoRepeat())
            type(key);
    } else if (key == Qt::Key_NumberSign || (key == Qt::Key_Backspace && d->digits.count() > 0)) {
        takeBack();
    } else {
        ZPopup::keyPressEvent(event);
    }
}
