#include "host/panel/Controls.h"

#include "host/panel/LiveRegion.h"

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>

#include <utility>

namespace host {

namespace {

constexpr int narrowest = 40;         // the panel is
constexpr QChar placeToBreak(0x200b); // which is not seen

class WheelFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

class SpokenValue : public QAccessibleWidget
{
public:
    explicit SpokenValue(Value *shown)
        : QAccessibleWidget(shown, QAccessible::StaticText)
        , value(shown)
    {}

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Name ? value->spoken() : QAccessibleWidget::text(which);
    }

private:
    const Value *const value;
};

QAccessibleInterface *speak(const QString &, QObject *object)
{
    auto *value = qobject_cast<Value *>(object);
    return value ? new SpokenValue(value) : nullptr;
}

} // namespace

// An accessible name would be read in place of the text.
Value::Value(const char *name, const QString &itsTitle)
    : title(itsTitle)
{
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(speak), true);
    setObjectName(QString::fromLatin1(name));
}

QString Value::spoken() const
{
    QString shown = text();
    shown.remove(placeToBreak);
    if (shown.startsWith(title)) // on its own in the panel, it says itself what it is
        return shown;
    return shown.isEmpty() ? title : title + QStringLiteral(": ") + shown;
}

void Announcement::say(const QString &text, const QString &gist)
{
    setText(text);
    setVisible(!text.isEmpty());
    if (std::exchange(told, gist) == gist || !isVisible())
        return;
    LiveRegion::tell(window(), spoken());
    // Once it has its place.
    QTimer::singleShot(0, this, &Announcement::comeIntoView);
}

void Announcement::comeIntoView()
{
    QWidget *widget = this;
    while (widget && !qobject_cast<QScrollArea *>(widget))
        widget = widget->parentWidget();
    if (widget && isVisible())
        static_cast<QScrollArea *>(widget)->ensureWidgetVisible(this, 0);
}

namespace {

void prepare(Value *value)
{
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

} // namespace

QLabel *makeValue(const char *name, const QString &accessible)
{
    auto *value = new Value(name, accessible);
    prepare(value);
    return value;
}

Announcement *makeAnnouncement(const char *name, const QString &accessible)
{
    auto *announcement = new Announcement(name, accessible);
    prepare(announcement);
    announcement->hide();
    return announcement;
}

QPushButton *makeButton(const QString &text, const QString &toolTip)
{
    auto *button = new QPushButton(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QComboBox *makeChoice(const char *name, const QString &accessible, const QStringList &items)
{
    auto *choice = new QComboBox;
    choice->setObjectName(QString::fromLatin1(name));
    choice->setAccessibleName(accessible);
    choice->setAccessibleDescription(accessible); // its name is read as what is chosen
    choice->setFocusPolicy(Qt::TabFocus);
    choice->addItems(items);
    leaveWheelToPanel(choice);
    return choice;
}

QLineEdit *makeEntry(const char *name, const QString &accessible, const QString &toolTip)
{
    auto *entry = new QLineEdit;
    entry->setObjectName(QString::fromLatin1(name));
    entry->setAccessibleName(accessible);
    entry->setToolTip(toolTip);
    entry->setMinimumWidth(narrowest);
    entry->setLayoutDirection(Qt::LeftToRight);
    return entry;
}

QString plainNumber(const QString &typed)
{
    constexpr QChar arabicDecimalSeparator(0x066b);
    QString plain = typed;
    for (QChar &character : plain) {
        if (character.isDigit())
            character = QChar(u'0' + character.digitValue());
        else if (character == u',' || character == arabicDecimalSeparator)
            character = u'.';
    }
    return plain;
}

QValidator::State DecimalBox::validate(QString &text, int &place) const
{
    QString plain = plainNumber(text);
    return QDoubleSpinBox::validate(plain, place);
}

double DecimalBox::valueFromText(const QString &text) const
{
    return QDoubleSpinBox::valueFromText(plainNumber(text));
}

void leaveWheelToPanel(QWidget *control)
{
    control->installEventFilter(new WheelFilter(control));
}

QString breakableAnywhere(const QString &text)
{
    QString broken;
    for (const QChar character : text)
        broken += QString(character) + placeToBreak;
    return broken;
}

QString breakableWords(const QString &text)
{
    constexpr qsizetype longestWord = 24; // of digits, beside a label
    static const QRegularExpression longWords(QStringLiteral("\\S{%1,}").arg(longestWord + 1));
    QString broken;
    qsizetype end = 0; // of what has been taken over
    for (auto found = longWords.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch word = found.next();
        broken += text.mid(end, word.capturedStart() - end) + breakableAnywhere(word.captured());
        end = word.capturedEnd();
    }
    broken += text.mid(end);
    return broken;
}

} // namespace host
