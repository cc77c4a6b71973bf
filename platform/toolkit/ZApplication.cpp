#include "toolkit/ZApplication.h"

#include "toolkit/ZKeypadInput.h"
#include "toolkit/ZLayers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtCore/QUuid>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>

namespace {

// The phone's input methods.
constexpr QUuid letterMethod(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x12);
constexpr QUuid numberMethod(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x14);
constexpr QUuid symbolMethod(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x15);
constexpr std::array<QUuid, 3> knownMethods = {letterMethod, numberMethod, symbolMethod};

struct KeypadMethod {
    QUuid method;
    int mode;
    ZKeypadInput::Kind kind;
    Qt::InputMethodHints hints;
};

// Hints for what else types on a touch screen; none of them is to keep letters out.
constexpr std::array<KeypadMethod, 2> keypadMethods = {{
    {numberMethod, 6, ZKeypadInput::Kind::Decimal, Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText},
    {letterMethod, 0, ZKeypadInput::Kind::Letters, Qt::ImhPreferUppercase | Qt::ImhNoPredictiveText},
}};
static_assert(keypadMethods.size() == 2 && keypadMethods.back().mode == 0);

QPointer<QWidget> &chosenDisplay()
{
    static QPointer<QWidget> display;
    return display;
}

QString typedText(int qtKey)
{
    const bool printable = qtKey >= Qt::Key_Space && qtKey <= Qt::Key_AsciiTilde;
    return printable ? QString(QChar(static_cast<char16_t>(qtKey))).toLower() : QString();
}

} // namespace

void ZApplication::setDisplay(QWidget *display)
{
    chosenDisplay() = display;
}

QWidget *ZApplication::display()
{
    return chosenDisplay() ? chosenDisplay().data() : ZLayers::outermostScreen();
}

QWidget *ZApplication::keyTarget()
{
    QWidget *layer = ZLayers::top(nullptr);
    return layer ? ZLayers::keyTarget(layer) : nullptr;
}

bool ZApplication::pressKey(int qtKey)
{
    const QPointer<QWidget> target = keyTarget();
    if (!target)
        return false;
    const QString text = typedText(qtKey);
    QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &press);
    if (target) {
        QKeyEvent release(QEvent::KeyRelease, qtKey, Qt::NoModifier, text);
        QCoreApplication::sendEvent(target, &release);
    }
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the hint is passed by value on the phone
void ZApplication::setInputMethods(QWidget *field, QUuid const &defaultMethod,
                                   QValueList<QUuid> const &allowedMethods, int mode, QString hint)
{
    if (!field) {
        qWarning("ZApplication::setInputMethods: there is no field");
        return;
    }
    for (const QUuid &method : allowedMethods) {
        if (std::find(knownMethods.begin(), knownMethods.end(), method) == knownMethods.end())
            qWarning() << "ZApplication::setInputMethods: unknown method" << method;
    }
    ZKeypadInput::remove(field);
    field->setInputMethodHints(Qt::ImhNone);
    if (!hint.isNull())
        field->setProperty("placeholderText", hint);
    const auto known = std::find_if(keypadMethods.begin(), keypadMethods.end(), [&](const KeypadMethod &entry) {
        return entry.method == defaultMethod && entry.mode == mode;
    });
    if (known != keypadMethods.end()) {
        field->setInputMethodHints(known->hints);
        new ZKeypadInput(field, known->kind);
    } else if (defaultMethod != symbolMethod) {
        qWarning() << "ZApplication::setInputMethods: unknown method" << defaultMethod << "of mode" << mode;
    }
}
