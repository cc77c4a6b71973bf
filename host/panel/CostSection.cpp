#include "host/panel/CostSection.h"

#include "handset/AdviceOfCharge.h"
#include "handset/CallService.h"
#include "host/StatusText.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace host {

using handset::AdviceOfCharge;
using handset::Handset;

namespace {

constexpr StatusMeaning costMeaning{
    QT_TRANSLATE_NOOP("host::StatusText", "no price, or a currency of more than three characters"),
    QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
    QT_TRANSLATE_NOOP("host::StatusText", "the SIM card refuses")};

// What the user has begun to type is not taken away.
void showText(QLineEdit *entry, const QString &text)
{
    if (entry->isModified() || entry->text() == text)
        return;
    entry->setText(text);
}

QString lastCallCost(Handset &handset)
{
    QByteArray text;
    handset::CallService *service = handset.callService();
    const bool isTold = service && service->lastCallCost(text) == handset::Success;
    return isTold ? withUnit(QString::fromLatin1(text), handset) : CostSection::tr("not available");
}

} // namespace

QString withUnit(const QString &amount, Handset &handset)
{
    quint8 type = 0;
    QString price;
    QString currency;
    AdviceOfCharge *advice = handset.adviceOfCharge();
    const bool isCurrency = advice && advice->chargeType(type) == handset::Success &&
                            type == AdviceOfCharge::InCurrency &&
                            advice->priceAndCurrency(price, currency) == handset::Success;
    return QStringLiteral("%1 %2").arg(amount, isCurrency ? currency : CostSection::tr("units")).trimmed();
}

CostSection::CostSection(Line &drivenLine)
    : PanelSection(tr("Costs"))
    , line(drivenLine)
    , type(makeChoice("charge type", tr("Costs are in"), {tr("units"), tr("the currency")}))
    , price(makeEntry("price", tr("Price of a unit"), tr("The price of a unit, as 0.23")))
    , currency(makeEntry("currency", tr("Currency"), tr("The currency's code, at most three characters")))
    , limit(makeValue("credit limit", tr("Credit limit")))
    , callLabel(new QLabel)
    , callCost(makeValue("call cost", tr("Cost of the call")))
    , failure(makeAnnouncement("cost failure", tr("Why the costs were not set")))
{
    auto *grid = new QGridLayout(this);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->addWidget(new QLabel(tr("Costs are in")), 0, 0);
    grid->addWidget(type, 0, 1, 1, 3);
    addPrice(grid, 1);
    grid->addWidget(new QLabel(tr("Credit limit")), 2, 0);
    grid->addWidget(limit, 2, 1, 1, 3);
    grid->addWidget(callLabel, 3, 0);
    grid->addWidget(callCost, 3, 1, 1, 3);
    grid->addWidget(failure, 4, 0, 1, 4);
    connect(type, &QComboBox::activated, this, &CostSection::setType);
}

void CostSection::addPrice(QGridLayout *grid, int row)
{
    QPushButton *set = makeButton(tr("Set &price"), tr("Writes price and currency to the SIM card"));
    currency->setMaxLength(3);
    currency->setFixedWidth(52);
    grid->addWidget(new QLabel(tr("Price of a unit")), row, 0);
    grid->addWidget(price, row, 1);
    grid->addWidget(currency, row, 2);
    grid->addWidget(set, row, 3);
    connect(set, &QPushButton::clicked, this, &CostSection::setPrice);
    for (QLineEdit *entry : {price, currency})
        connect(entry, &QLineEdit::returnPressed, this, &CostSection::setPrice);
}

void CostSection::setType(int chosen)
{
    AdviceOfCharge *advice = line.handset().adviceOfCharge();
    const auto chargeType = static_cast<quint8>(chosen);
    failure->say(
        refusalText(advice ? advice->setChargeType(chargeType) : int{handset::NotAvailable}, costMeaning));
    refresh();
}

void CostSection::setPrice()
{
    AdviceOfCharge *advice = line.handset().adviceOfCharge();
    const int status = advice ? advice->setPriceAndCurrency(plainNumber(price->text()), currency->text())
                              : static_cast<int>(handset::NotAvailable);
    failure->say(refusalText(status, costMeaning));
    if (status == handset::Success) {
        price->setModified(false); // what the SIM could keep is shown from now on
        currency->setModified(false);
    }
    refresh();
}

void CostSection::refresh()
{
    Handset &handset = line.handset();
    setEnabled(handset.adviceOfCharge() != nullptr);
    if (isEnabled())
        showSettings(handset);
    const Line::SimulatedHandset *simulated = line.simulatedHandset();
    const bool running = simulated && simulated->lineState() == Line::SimulatedHandset::LineState::Connected;
    callLabel->setText(running ? tr("This call") : tr("Last call"));
    callCost->setText(lastCallCost(handset));
}

void CostSection::showSettings(Handset &handset)
{
    AdviceOfCharge &advice = *handset.adviceOfCharge();
    quint8 chargeType = AdviceOfCharge::InUnits;
    QString unitPrice;
    QString code;
    if (advice.chargeType(chargeType) == handset::Success)
        type->setCurrentIndex(chargeType);
    if (advice.priceAndCurrency(unitPrice, code) == handset::Success) {
        showText(price, unitPrice);
        showText(currency, code);
    }
    limit->setText(limitText(handset));
}

QString CostSection::limitText(Handset &handset) const
{
    QString maximum;
    bool isOn = false;
    if (handset.adviceOfCharge()->meterMaximum(maximum, isOn) != handset::Success)
        return tr("not available");
    if (!isOn)
        return tr("off");
    const Line::SimulatedHandset *simulated = line.simulatedHandset();
    const auto left = simulated ? line.simulatedHandset()->simCard().card().unitsLeft() : std::nullopt;
    const QString text = withUnit(maximum, handset);
    return left ? tr("%1; units left: %2").arg(text).arg(*left) : text;
}

QString notCharging(const Line &line)
{
    return line.modemLine() ? CostSection::tr("The modem's advice of charge says what calls cost.")
                            : CostSection::tr("This telephone charges no calls by itself.");
}

} // namespace host
