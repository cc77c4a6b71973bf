#include "Pin2Section.h"

#include "CodeField.h"
#include "Controls.h"
#include "StatusText.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

namespace host {

using handset::sim::Pin2;

namespace {

constexpr StatusMeaning meaning{
    QT_TRANSLATE_NOOP("host::StatusText", "PUK2 has eight digits, a PIN2 four to eight"),
    QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
    QT_TRANSLATE_NOOP("host::StatusText", "PUK2 is blocked, too")};

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
    , state(makeValue("pin2 state", tr("State of PIN2")))
    , isOn(new QCheckBox(tr("PIN2 is on")))
    , puk(new CodeField)
    , newPin(new CodeField)
    , outcome(makeValue("pin2 outcome", tr("What came of it")))
{
    auto *grid = new QGridLayout(this);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->addWidget(state, 0, 0, 1, 2);
    addSwitches(grid);
    addUnblocking(grid);
    grid->addWidget(outcome, 5, 0, 1, 2);
    say({});
}

void Pin2Section::addSwitches(QGridLayout *grid)
{
    isOn->setObjectName(QStringLiteral("pin2 on"));
    isOn->setAccessibleName(tr("PIN2 is on"));
    isOn->setToolTip(tr("The phone asks for it where a file is written with PIN2"));
    isOn->setFocusPolicy(Qt::TabFocus);
    QPushButton *cycle = makeButton(tr("&Switch off and on"), tr("Forgets that PIN2 has been entered"));
    grid->addWidget(isOn, 1, 0);
    grid->addWidget(cycle, 1, 1);
    connect(isOn, &QCheckBox::toggled, this, &Pin2Section::setOn);
    connect(cycle, &QPushButton::clicked, this, &Pin2Section::powerCycle);
}

void Pin2Section::addUnblocking(QGridLayout *grid)
{
    puk->setObjectName(QStringLiteral("puk2"));
    puk->setAccessibleName(tr("PUK2"));
    puk->setToolTip(tr("Eight digits"));
    newPin->setObjectName(QStringLiteral("new pin2"));
    newPin->setAccessibleName(tr("New PIN2"));
    newPin->setToolTip(tr("Four to eight digits"));
    QPushButton *button = makeButton(tr("Un&block"), tr("Sets the new PIN2 and gives all tries back"));
    grid->addWidget(new QLabel(tr("PUK2")), 2, 0);
    grid->addWidget(new QLabel(tr("New PIN2")), 2, 1);
    grid->addWidget(puk, 3, 0);
    grid->addWidget(newPin, 3, 1);
    grid->addWidget(button, 4, 1);
    connect(button, &QPushButton::clicked, this, &Pin2Section::unblock);
    connect(newPin, &CodeField::returnPressed, this, &Pin2Section::unblock);
}

void Pin2Section::say(const QString &text)
{
    tell(outcome, text);
}

void Pin2Section::setOn(bool on)
{
    say(refusalText(line.telephone()->simCard().setPin2Enabled(on), meaning));
    refresh();
}

void Pin2Section::powerCycle()
{
    say(refusalText(line.telephone()->simCard().powerCycle(), meaning));
    refresh();
}

void Pin2Section::unblock()
{
    bool accepted = false;
    const int status = line.telephone()->simCard().unblockPin2(puk->digits(), newPin->digits(), accepted);
    puk->forget();
    newPin->forget();
    if (status != 0)
        say(refusalText(status, meaning));
    else
        say(accepted ? tr("The new PIN2 counts.") : tr("Wrong PUK2."));
    refresh();
}

void Pin2Section::refresh()
{
    setEnabled(line.telephone() != nullptr);
    if (!isEnabled())
        return;
    const Pin2 &pin = line.telephone()->simCard().card().pin2();
    state->setText(stateText(pin) + u'\n' + triesText(pin));
    Quietly(isOn)->setChecked(pin.isEnabled());
}

} // namespace host
