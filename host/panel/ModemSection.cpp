#include "host/panel/ModemSection.h"

#include "handset/AdviceOfCharge.h"
#include "handset/CallService.h"
#include "handset/Handset.h"
#include "handset/Status.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

#include <array>

namespace host {

using handset::Handset;
using handset::LineReport;
using handset::LineSession;

namespace {

struct Figures {
    const char *name;
    bool (*isThere)(Handset &handset);
};

// Over a modem without it the role answers for the phone's own setting, and the files of the SIM are not there.
bool hasAdviceOfCharge(Handset &handset)
{
    QString maximum;
    bool enabled = false;
    handset::AdviceOfCharge *const advice = handset.adviceOfCharge();
    return advice && advice->meterMaximum(maximum, enabled) == handset::Success;
}

bool hasCredit(Handset &handset)
{
    QByteArray text;
    handset::CallService *const service = handset.callService();
    return service && service->remainingCredit(text) == handset::Success;
}

constexpr std::array<Figures, 7> roles{{
    {QT_TRANSLATE_NOOP("host::ModemSection", "call times"), [](Handset &h) { return h.callLog() != nullptr; }},
    {QT_TRANSLATE_NOOP("host::ModemSection", "all calls"), [](Handset &h) { return h.callService() != nullptr; }},
    {QT_TRANSLATE_NOOP("host::ModemSection", "data calls"), [](Handset &h) { return h.dataCalls() != nullptr; }},
    {QT_TRANSLATE_NOOP("host::ModemSection", "data sessions"),
     [](Handset &h) { return h.packetData() != nullptr; }},
    {QT_TRANSLATE_NOOP("host::ModemSection", "advice of charge"), &hasAdviceOfCharge},
    {QT_TRANSLATE_NOOP("host::ModemSection", "PIN2"), [](Handset &h) { return h.simSecurity() != nullptr; }},
    {QT_TRANSLATE_NOOP("host::ModemSection", "credit"), &hasCredit},
}};

QString missingText(Handset &handset)
{
    QStringList missing;
    for (const Figures &role : roles) {
        if (!role.isThere(handset))
            missing << ModemSection::tr(role.name);
    }
    return missing.isEmpty() ? ModemSection::tr("nothing") : missing.join(QStringLiteral(", "));
}

QString sessionText(const LineSession &session)
{
    QString text = session.apn.isEmpty() ? ModemSection::tr("connected") : QString::fromLatin1(session.apn);
    if (!session.interface.isEmpty())
        text += QStringLiteral(" (%1)").arg(session.interface);
    if (session.sent && session.received)
        text += ModemSection::tr(", %1 B sent, %2 B received").arg(*session.sent).arg(*session.received);
    return text;
}

QString sessionsText(const LineReport &report)
{
    QStringList texts;
    for (const LineSession &session : report.sessions)
        texts << sessionText(session);
    return texts.isEmpty() ? ModemSection::tr("not connected") : texts.join(QLatin1Char('\n'));
}

QString orNone(const QString &text)
{
    return text.isEmpty() ? ModemSection::tr("none") : breakableWords(text);
}

} // namespace

ModemSection::ModemSection(Line &drivenLine)
    : PanelSection(tr("Modem"))
    , line(drivenLine)
    , modem(makeValue("modem", tr("Modem")))
    , network(makeValue("network", tr("Network")))
    , state(makeValue("modem state", tr("State")))
    , data(makeValue("modem data", tr("Data")))
    , charging(makeValue("charged by", tr("Charged by")))
    , recording(makeValue("recorded by", tr("Recorded by")))
    , missing(makeValue("not available", tr("Not available")))
{
    auto *form = new QFormLayout(this);
    form->setVerticalSpacing(6);
    form->addRow(tr("Modem"), modem);
    form->addRow(tr("Network"), network);
    form->addRow(tr("State"), state);
    form->addRow(tr("Data"), data);
    form->addRow(tr("Charged by"), charging);
    form->addRow(tr("Recorded by"), recording);
    form->addRow(tr("Not available"), missing);
}

void ModemSection::refresh()
{
    const LineReport report = line.modemLine()->report();
    const QString name = report.hasModem ? orNone(report.modem) : tr("none");
    modem->setText(tr("%1, through %2").arg(name, report.daemon));
    network->setText(orNone(report.network));
    state->setText(orNone(report.status));
    data->setText(breakableWords(sessionsText(report)));
    charging->setText(report.isChargedByModem ? tr("the modem's advice of charge")
                                              : tr("the tariff of this telephone"));
    recording->setText(report.isRecorder            ? tr("this window")
                       : report.isRecordedElsewhere ? tr("another process")
                                                    : tr("nobody: the call log cannot be written"));
    missing->setText(missingText(line.handset()));
}

} // namespace host
