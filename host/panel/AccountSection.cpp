#include "host/panel/AccountSection.h"

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "host/StatusText.h"
#include "host/panel/Controls.h"
#include "host/panel/CostSection.h"

#include <QtWidgets/QDateEdit>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace host {

using handset::Handset;

namespace {

constexpr StatusMeaning accountMeaning{
    QT_TRANSLATE_NOOP("host::StatusText", "an amount of at least one unit, and not more than the account holds"),
    QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
    QT_TRANSLATE_NOOP("host::StatusText", "not allowed")};

QString creditText(Handset &handset)
{
    QByteArray text;
    handset::CallService *service = handset.callService();
    if (!service || service->remainingCredit(text) != handset::Success)
        return AccountSection::tr("Nothing has been paid in.");
    return AccountSection::tr("Credit: %1").arg(withUnit(QString::fromLatin1(text), handset));
}

QString depositText(Handset &handset)
{
    QByteArray text;
    handset::Date day;
    handset::CallLog *log = handset.callLog();
    if (!log || log->lastDeposit(text) != handset::Success || log->depositExpirationDate(day) != handset::Success)
        return {};
    const QString until = QDate(day.year, day.month, day.day).toString(Qt::ISODate);
    return AccountSection::tr("Last deposit: %1, good until %2")
        .arg(withUnit(QString::fromLatin1(text), handset), until);
}

} // namespace

AccountSection::AccountSection(Line &drivenLine)
    : PanelSection(tr("Prepaid account"))
    , line(drivenLine)
    , credit(makeValue("credit", tr("Credit")))
    , deposit(makeAnnouncement("deposit", tr("Last deposit")))
    , amount(makeEntry("top-up amount", tr("Amount to pay in"), tr("In units or in the currency, as costs are")))
    , expires(new QDateEdit(QDate::currentDate().addYears(1)))
    , failure(makeAnnouncement("account failure", tr("Why nothing was paid in")))
{
    auto *column = new QVBoxLayout(this);
    column->addWidget(credit);
    column->addWidget(deposit);
    addTopUp(column);
    column->addWidget(failure);
}

void AccountSection::addTopUp(QVBoxLayout *column)
{
    expires->setObjectName(QStringLiteral("top-up day"));
    expires->setAccessibleName(tr("Good until"));
    expires->setToolTip(tr("Until when the deposit is good: year, month, day"));
    expires->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    expires->setLayoutDirection(Qt::LeftToRight); // else the day would stand first
    expires->setFocusPolicy(Qt::StrongFocus);
    leaveWheelToPanel(expires);
    amount->setText(QStringLiteral("20.00"));
    QPushButton *button = makeButton(tr("&Top up"), tr("Pays the amount in"));
    auto *row = new QHBoxLayout;
    row->addWidget(amount, 1);
    row->addWidget(new QLabel(tr("until")));
    row->addWidget(expires);
    row->addWidget(button);
    column->addLayout(row);
    connect(button, &QPushButton::clicked, this, &AccountSection::topUp);
    connect(amount, &QLineEdit::returnPressed, this, &AccountSection::topUp);
}

void AccountSection::topUp()
{
    const QDate day = expires->date();
    const handset::Date until{static_cast<quint16>(day.year()), static_cast<quint8>(day.month()),
                              static_cast<quint8>(day.day())};
    Line::Charging *charging = line.charging();
    const int status =
        charging ? charging->topUp(plainNumber(amount->text()), until) : static_cast<int>(handset::NotAvailable);
    failure->say(refusalText(status, accountMeaning));
    refresh();
}

void AccountSection::refresh()
{
    setEnabled(line.charging() != nullptr);
    if (!isEnabled()) {
        credit->setText(notCharging(line));
        deposit->say({});
        failure->say({});
        return;
    }
    credit->setText(creditText(line.handset()));
    deposit->say(depositText(line.handset()));
}

} // namespace host
