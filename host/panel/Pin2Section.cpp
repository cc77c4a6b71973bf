#include "host/panel/Pin2Section.h"

#include "handset/SimSecurity.h"
#include "host/StatusText.h"
#include "host/panel/CodeField.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

namespace host {

using handset::charging::Pin2;

namespace {

constexpr StatusMeaning pin2Meaning{
    QT_TRANSLATE_NOOP("host::StatusText", "PUK2 has eight digits, a PIN2 four to eight"),
    QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
    QT_TRANSLATE_NOOP("host::StatusText", "PUK2 is blocked, too")};

constexpr StatusMeaning meaningOfEntering{QT_TRANSLATE_NOOP("host::StatusText", "a PIN2 has four to eight digits"),
                                          QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
                                          QT_TRANSLATE_NOOP("host::StatusText", "PIN2 is blocked")};

CodeField *makeCode(const char *name, const QString &accessible, const QString &toolTip)
{
    auto *field = new CodeField;
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(accessible);
    field->setToolTip(toolTip);
    return field;
}

QString stateText(const Pin2 &pin)
{
    if (pin.pukTriesLeft() == 0 && pin.triesLeft() == 0)
        return Pin2Section::tr("Blocked for good.");
    if (pin.triesLeft() == 0)
        return Pin2Section::tr("Blocked: only PUK2 helps.");
    if (!pin.isEnabled())
        return Pin2Section::tr("Off: nobody is asked for it.");
    return pin.isVerified() ? Pin2Section::tr("On, and entered.") : Pin2Section::tr("On, not entered.");
}

QString triesText(const Pin2 &pin)
{
    return Pin2Section::tr("Tries left: PIN2 %1, PUK2 %2.").arg(pin.triesLeft()).arg(pin.pukTriesLeft());
}

} // namespace

Pin2Section::Pin2Section(Line &drivenLine)
    : PanelSection(tr("PIN2"))
    , line(drivenLine)
    , state(makeAnnouncement("pin2 state", tr("State of PIN2")))
    , isOn(new QCheckBox(tr("PIN2 is on")))
    , pin(makeCode("pin2", tr("PIN2"), tr("Four to eight digits")))
    , puk(makeCode("puk2", tr("PUK2"), tr("Eight digits")))
    , newPin(makeCode("new pin2", tr("New PIN2"), tr("Four to eight digits")))
    , outcome(makeAnnouncement("pin2 outcome", tr("What came of it")))
{
    auto *grid = new QGridLayout(this);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->addWidget(state, 0, 0, 1, 3);
    addSwitches(grid);
    addEntering(grid);
    addUnblocking(grid);
    grid->addWidget(outcome, 5, 0, 1, 3);
}

void Pin2Section::addSwitches(QGridLayout *grid)
{
    isOn->setObjectName(QStringLiteral("pin2 on"));
    isOn->setAccessibleName(tr("PIN2 is on"));
    isOn->setToolTip(tr("The phone asks for it where a file is written with PIN2"));
    isOn->setFocusPolicy(Qt::TabFocus);
    QPushButton *cycle = makeButton(tr("&Switch off and on"), tr("Forgets that PIN2 has been entered"));
    grid->addWidget(isOn, 1, 0, 1, 2);
    grid->addWidget(cycle, 1, 2);
    connect(isOn, &QCheckBox::toggled, this, &Pin2Section::setOn);
    connect(cycle, &QPushButton::clicked, this, &Pin2Section::powerCycle);
}

void Pin2Section::addEntering(QGridLayout *grid)
{
    QPushButton *button =
        makeButton(tr("&Enter"), tr("Presents PIN2 to the card, as the phone does; a wrong one costs a try"));
    grid->addWidget(new QLabel(tr("PIN2")), 2, 0);
    grid->addWidget(pin, 2, 1);
    grid->addWidget(button, 2, 2);
    connect(button, &QPushButton::clicked, this, &Pin2Section::enter);
    connect(pin, &CodeField::returnPressed, this, &Pin2Section::enter);
}

void Pin2Section::addUnblocking(QGridLayout *grid)
{
    QPushButton *button = makeButton(tr("Un&block"), tr("Sets the new PIN2 and gives all tries back"));
    grid->addWidget(new QLabel(tr("PUK2")), 3, 0);
    grid->addWidget(puk, 3, 1);
    grid->addWidget(new QLabel(tr("New PIN2")), 4, 0);
    grid->addWidget(newPin, 4, 1);
    grid->addWidget(button, 4, 2);
    connect(button, &QPushButton::clicked, this, &Pin2Section::unblock);
    connect(newPin, &CodeField::returnPressed, this, &Pin2Section::unblock);
}

void Pin2Section::say(const QString &text)
{
    outcome->say(text);
}

void Pin2Section::setOn(bool on)
{
    say(refusalText(line.simulatedHandset()->simCard().setPin2Enabled(on), pin2Meaning));
    refresh();
}

void Pin2Section::powerCycle()
{
    say(refusalText(line.simulatedHandset()->simCard().powerCycle(), pin2Meaning));
    refresh();
}

void Pin2Section::enter()
{
    bool accepted = false;
    handset::SimSecurity *security = line.handset().simSecurity();
    const QByteArrayView digits = pin->digits();
    // In their one place: no copy that nobody would overwrite.
    const auto inPlace = QByteArray::fromRawData(digits.data(), digits.size());
    const int status = security ? security->verifyPin(handset::SimSecurity::Pin2, inPlace, accepted)
                                : static_cast<int>(handset::NotAvailable);
    pin->forget();
    if (status != 0)
        say(refusalText(status, meaningOfEntering));
    else
        say(accepted ? tr("PIN2 has been entered.") : tr("Wrong PIN2."));
    refresh();
}

void Pin2Section::unblock()
{
    bool accepted = false;
    const int status = line.simulatedHandset()->simCard().unblockPin2(puk->digits(), newPin->digits(), accepted);
    puk->forget();
    newPin->forget();
    if (status != 0)
        say(refusalText(status, pin2Meaning));
    else
        say(accepted ? tr("The new PIN2 counts.") : tr("Wrong PUK2."));
    refresh();
}

void Pin2Section::refresh()
{
    setEnabled(line.simulatedHandset() != nullptr);
    if (!isEnabled())
        return;
    const Pin2 pin2 = line.simulatedHandset()->simCard().card().pin2();
    state->say(stateText(pin2) + u'\n' + triesText(pin2));
    Quietly(isOn)->setChecked(pin2.isEnabled());
}

} // namespace host
