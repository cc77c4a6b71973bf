#include "host/panel/FiguresSection.h"

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/Handset.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <optional>

namespace host {

namespace {

using handset::CallTime;
using handset::Handset;
using Figure = std::optional<qint64>; // whole seconds; nothing where the handset has none

Figure secondsOf(int status, const CallTime &time)
{
    if (status != 0)
        return {};
    return qint64{time.hours} * 3600 + qint64{time.minutes} * 60 + time.seconds;
}

template <int (handset::CallLog::*query)(CallTime &)>
Figure fromCallLog(Handset &handset)
{
    CallTime time;
    handset::CallLog *log = handset.callLog();
    return log ? secondsOf((log->*query)(time), time) : Figure();
}

Figure allCalls(Handset &handset)
{
    CallTime time;
    handset::CallService *service = handset.callService();
    return service ? secondsOf(service->totalCallTime(time), time) : Figure();
}

Figure dataCalls(Handset &handset)
{
    handset::DataCalls *calls = handset.dataCalls();
    quint32 seconds = 0;
    if (!calls || calls->refreshTotals() != 0 || calls->totalDuration(seconds) != 0)
        return {};
    return qint64{seconds};
}

struct FigureRow {
    const char *label;
    Figure (*query)(Handset &handset);
};

constexpr std::array<FigureRow, 6> figures{{
    {QT_TRANSLATE_NOOP("host::FiguresSection", "Last call"), &fromCallLog<&handset::CallLog::lastCallTime>},
    {QT_TRANSLATE_NOOP("host::FiguresSection", "Dialed calls"), &fromCallLog<&handset::CallLog::dialedCallsTime>},
    {QT_TRANSLATE_NOOP("host::FiguresSection", "Answered calls"),
     &fromCallLog<&handset::CallLog::answeredCallsTime>},
    {QT_TRANSLATE_NOOP("host::FiguresSection", "Data calls"), &dataCalls},
    {QT_TRANSLATE_NOOP("host::FiguresSection", "All calls"), &allCalls},
    {QT_TRANSLATE_NOOP("host::FiguresSection", "Lifetime calls"),
     &fromCallLog<&handset::CallLog::lifetimeCallsTime>},
}};

} // namespace

FiguresSection::FiguresSection(Line &drivenLine)
    : PanelSection(tr("Call timers"))
    , line(drivenLine)
    , addHistory(new QPushButton(tr("Add a &ready-made history")))
{
    auto *form = new QFormLayout(this);
    form->setVerticalSpacing(6);
    for (std::size_t index = 0; index < figures.size(); ++index) {
        const QByteArray name = QByteArray("figure ") + figures[index].label;
        auto *value = new Value(name.constData(), tr(figures[index].label));
        value->setAlignment(Qt::AlignRight);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(tr(figures[index].label), value);
        values[index] = value;
    }
    addHistory->setToolTip(tr("Adds a dozen calls of the last days to the call log"));
    addHistory->setFocusPolicy(Qt::TabFocus);
    connect(addHistory, &QPushButton::clicked, &line, &Line::addReadyMadeHistory);
    auto *spacer = new QWidget;
    spacer->setFixedHeight(2);
    form->addRow(spacer);
    form->addRow(addHistory);
}

void FiguresSection::refresh()
{
    for (std::size_t index = 0; index < figures.size(); ++index) {
        const Figure seconds = figures[index].query(line.handset());
        values[index]->setText(seconds ? clockText(*seconds) : tr("not available"));
    }
    addHistory->setEnabled(line.simulatedHandset() != nullptr);
    addHistory->setVisible(!line.modemLine());
}

} // namespace host
