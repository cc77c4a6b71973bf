#include "host/panel/TariffSection.h"

#include "host/StatusText.h"
#include "host/panel/Controls.h"
#include "host/panel/CostSection.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>

#include <cmath>

namespace host {

using handset::CallDirection;
using handset::charging::Tariff;

namespace {

constexpr StatusMeaning tariffMeaning{QT_TRANSLATE_NOOP("host::StatusText", "the network knows no such tariff"),
                                      QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
                                      QT_TRANSLATE_NOOP("host::StatusText", "not allowed")};
constexpr double greatest = Tariff::greatestElement / 10.0;

constexpr std::array<const char *, 4> rowTexts{QT_TRANSLATE_NOOP("host::TariffSection", "Free"),
                                               QT_TRANSLATE_NOOP("host::TariffSection", "Units"),
                                               QT_TRANSLATE_NOOP("host::TariffSection", "for each"),
                                               QT_TRANSLATE_NOOP("host::TariffSection", "at the start")};

// What a unit is charged for where a tariff is no longer free.
constexpr quint16 usualUnits = 10;
constexpr quint16 usualInterval = 100;

struct ColumnPlan {
    CallDirection direction;
    const char *title;
    const char *name;
};

constexpr std::array<ColumnPlan, 2> columnPlans{{
    {CallDirection::Dialed, QT_TRANSLATE_NOOP("host::TariffSection", "Dialed calls"), "dialed"},
    {CallDirection::Answered, QT_TRANSLATE_NOOP("host::TariffSection", "Answered calls"), "answered"},
}};

bool isFree(const Tariff &tariff)
{
    return !tariff.msUntil({}, 1);
}

quint16 tenths(const QDoubleSpinBox *box)
{
    return static_cast<quint16>(std::lround(box->value() * 10));
}

QDoubleSpinBox *makeBox(const ColumnPlan &plan, const char *what, const QString &toolTip, double least)
{
    auto *box = new DecimalBox;
    box->setObjectName(QStringLiteral("tariff %1 %2").arg(QLatin1StringView(plan.name), QLatin1StringView(what)));
    box->setAccessibleName(TariffSection::tr("%1: %2").arg(TariffSection::tr(plan.title), toolTip));
    box->setToolTip(toolTip);
    box->setDecimals(1);
    box->setRange(least, greatest);
    box->setKeyboardTracking(false);
    box->setFocusPolicy(Qt::StrongFocus);
    leaveWheelToPanel(box);
    return box;
}

} // namespace

TariffSection::TariffSection(Line &drivenLine)
    : PanelSection(tr("Tariff"))
    , line(drivenLine)
    , failure(makeAnnouncement("tariff failure", tr("Why the tariff was not set")))
{
    auto *grid = new QGridLayout(this);
    grid->setVerticalSpacing(6);
    for (std::size_t row = 0; row < rowTexts.size(); ++row)
        grid->addWidget(new QLabel(tr(rowTexts[row])), static_cast<int>(row) + 1, 0);
    for (std::size_t i = 0; i < columns.size(); ++i)
        addColumn(grid, columns[i], static_cast<int>(i));
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->addWidget(failure, static_cast<int>(rowTexts.size()) + 1, 0, 1, 3);
}

void TariffSection::addColumn(QGridLayout *grid, Column &column, int number)
{
    const ColumnPlan &plan = columnPlans[static_cast<std::size_t>(number)];
    column.direction = plan.direction;
    column.free = new QCheckBox;
    column.free->setObjectName(QStringLiteral("tariff %1 free").arg(QLatin1StringView(plan.name)));
    column.free->setAccessibleName(tr("%1 are free").arg(tr(plan.title)));
    column.free->setToolTip(tr("Nothing is charged for them"));
    column.free->setFocusPolicy(Qt::TabFocus);
    column.units = makeBox(plan, "units", tr("Units for each interval"), 0);
    column.interval = makeBox(plan, "interval", tr("Interval in seconds"), 0.1);
    column.interval->setSuffix(tr(" s"));
    column.start = makeBox(plan, "start", tr("Units when the call is connected"), 0);
    grid->addWidget(new QLabel(tr(plan.title)), 0, number + 1);
    grid->addWidget(column.free, 1, number + 1);
    grid->addWidget(column.units, 2, number + 1);
    grid->addWidget(column.interval, 3, number + 1);
    grid->addWidget(column.start, 4, number + 1);
    connect(column.free, &QCheckBox::toggled, this, [this, &column](bool on) { setFree(column, on); });
    for (QDoubleSpinBox *box : {column.units, column.interval, column.start})
        connect(box, &QDoubleSpinBox::valueChanged, this, [this, &column] { setElements(column); });
}

void TariffSection::setFree(const Column &column, bool free)
{
    Tariff tariff;
    if (!free) {
        tariff.unitsPerInterval = usualUnits;
        tariff.interval = usualInterval;
    }
    set(column, tariff);
}

void TariffSection::setElements(const Column &column)
{
    const Line::Charging *charging = line.charging();
    Tariff tariff = charging ? charging->tariff(column.direction) : Tariff();
    tariff.unitsPerInterval = tenths(column.units);
    tariff.interval = tenths(column.interval);
    tariff.unitsAtStart = tenths(column.start);
    set(column, tariff);
}

void TariffSection::set(const Column &column, const Tariff &tariff)
{
    Line::Charging *charging = line.charging();
    const int status =
        charging ? charging->setTariff(column.direction, tariff) : static_cast<int>(handset::NotAvailable);
    failure->say(refusalText(status, tariffMeaning));
    refresh();
}

void TariffSection::refresh()
{
    if (line.charging() == nullptr) {
        setEnabled(false);
        failure->say(notCharging(line));
        return;
    }
    if (!isEnabled())
        failure->say({});
    setEnabled(true);
    for (const Column &column : columns)
        show(column);
}

void TariffSection::show(const Column &column)
{
    const Tariff tariff = line.charging()->tariff(column.direction);
    const bool free = isFree(tariff);
    Quietly(column.free)->setChecked(free);
    const auto showTenths = [free](QDoubleSpinBox *box, quint16 tenths) {
        // What is being typed is not taken away.
        if (!box->hasFocus() || tenths != host::tenths(box))
            Quietly(box)->setValue(tenths / 10.0);
        box->setEnabled(!free);
    };
    showTenths(column.units, tariff.unitsPerInterval);
    showTenths(column.interval, tariff.interval);
    showTenths(column.start, tariff.unitsAtStart);
}

} // namespace host
