#include "host/phone/Keypad.h"

#include "host/AccessibleRole.h"
#include "host/phone/PhoneKey.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZPopup.h"

#include <QtWidgets/QGridLayout>

#include <array>

namespace host {

namespace {

using Legend = PhoneKey::Legend;

struct KeyPlan {
    int row;
    int column;
    int rowSpan;
    int qtKey; ///< what the screen gets
    Legend legend;
    const char *text;
    const char *letters;
    const char *name; ///< for tests; translated, for screen readers and tool tips
};

constexpr int callKey = Qt::Key_Call;
constexpr int hangUpKey = Qt::Key_Hangup;

constexpr std::array<KeyPlan, 20> keys{{
    {0, 0, 2, Qt::Key_Context1, Legend::Bar, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Left softkey")},
    {0, 1, 1, Qt::Key_Up, Legend::ArrowUp, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Up")},
    {0, 2, 2, Qt::Key_Context2, Legend::Bar, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Right softkey")},
    {1, 1, 1, Qt::Key_Select, Legend::Ring, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Select")},
    {2, 0, 2, callKey, Legend::Call, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Call")},
    {2, 2, 2, hangUpKey, Legend::HangUp, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Hang up")},
    {2, 1, 1, Qt::Key_Down, Legend::ArrowDown, "", "", QT_TRANSLATE_NOOP("host::Keypad", "Down")},
    {3, 1, 1, Qt::Key_Clear, Legend::Text, "C", "", QT_TRANSLATE_NOOP("host::Keypad", "Clear")},
    {4, 0, 1, Qt::Key_1, Legend::Text, "1", "", "1"},
    {4, 1, 1, Qt::Key_2, Legend::Text, "2", "abc", "2"},
    {4, 2, 1, Qt::Key_3, Legend::Text, "3", "def", "3"},
    {5, 0, 1, Qt::Key_4, Legend::Text, "4", "ghi", "4"},
    {5, 1, 1, Qt::Key_5, Legend::Text, "5", "jkl", "5"},
    {5, 2, 1, Qt::Key_6, Legend::Text, "6", "mno", "6"},
    {6, 0, 1, Qt::Key_7, Legend::Text, "7", "pqrs", "7"},
    {6, 1, 1, Qt::Key_8, Legend::Text, "8", "tuv", "8"},
    {6, 2, 1, Qt::Key_9, Legend::Text, "9", "wxyz", "9"},
    {7, 0, 1, Qt::Key_Asterisk, Legend::Text, "*", "", QT_TRANSLATE_NOOP("host::Keypad", "Star")},
    {7, 1, 1, Qt::Key_0, Legend::Text, "0", "", "0"},
    {7, 2, 1, Qt::Key_NumberSign, Legend::Text, "#", "", QT_TRANSLATE_NOOP("host::Keypad", "Hash")},
}};

PhoneKey *makeKey(const KeyPlan &plan, QWidget *parent)
{
    auto *key =
        new PhoneKey(plan.legend, QString::fromLatin1(plan.text), QString::fromLatin1(plan.letters), parent);
    key->setObjectName(QStringLiteral("key ") + QLatin1StringView(plan.name));
    const QString name = Keypad::tr(plan.name);
    key->setAccessibleName(name);
    if (plan.legend != Legend::Text || plan.qtKey == Qt::Key_Clear)
        key->setToolTip(name);
    return key;
}

bool isNumberKey(int qtKey)
{
    return (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || qtKey == Qt::Key_Asterisk || qtKey == Qt::Key_NumberSign;
}

bool dialogHasKeys()
{
    QWidget *widget = ZApplication::keyTarget();
    while (widget && !qobject_cast<ZPopup *>(widget))
        widget = widget->parentWidget();
    return widget != nullptr;
}

} // namespace

Keypad::Keypad(QWidget *parent)
    : QWidget(parent)
{
    giveAccessibleRole<Keypad, QAccessible::Grouping>();
    setAccessibleName(tr("Keypad"));
    // A phone's keys are where they are in every language, as are the captions of the softkeys above them.
    setLayoutDirection(Qt::LeftToRight);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(5);
    for (const KeyPlan &plan : keys) {
        PhoneKey *key = makeKey(plan, this);
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        grid->addWidget(key, plan.row, plan.column, plan.rowSpan, 1);
        connect(key, &PhoneKey::clicked, this, [this, qtKey = plan.qtKey] { press(qtKey); });
    }
}

int Keypad::keyOf(int qtKey)
{
    switch (qtKey) {
    case callKey:
    case Qt::Key_F3:
        return callKey;
    case hangUpKey:
    case Qt::Key_F4:
        return hangUpKey;
    }
    return isNumberKey(qtKey) ? qtKey : 0;
}

void Keypad::press(int qtKey)
{
    if (qtKey == callKey) {
        emit callPressed();
    } else if (qtKey == hangUpKey) {
        emit hangUpPressed();
    } else {
        const bool isNumber = isNumberKey(qtKey) && !dialogHasKeys();
        ZApplication::pressKey(qtKey);
        if (isNumber)
            emit numberTyped(QChar(static_cast<char16_t>(qtKey)));
    }
}

void Keypad::tellTyped(int qtKey)
{
    if (isNumberKey(qtKey) && !dialogHasKeys())
        emit numberTyped(QChar(static_cast<char16_t>(qtKey)));
}

} // namespace host
