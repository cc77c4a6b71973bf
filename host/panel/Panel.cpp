#include "Panel.h"

#include "FiguresSection.h"
#include "LineSection.h"
#include "StateSection.h"

#include <QtWidgets/QVBoxLayout>

namespace host {

namespace {

constexpr int tickMs = 1000;
constexpr int contentWidth = 340;

} // namespace

Panel::Panel(Line &drivenLine, const QString &stateDirectory, const QString &notice, QWidget *parent)
    : QScrollArea(parent)
    , line(drivenLine)
    , sections{new LineSection(line), new FiguresSection(line), new StateSection(stateDirectory, notice)}
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(14);
    for (PanelSection *section : sections)
        column->addWidget(section);
    column->addStretch();
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setMinimumWidth(contentWidth);
    setWidget(content);
    connect(&line, &Line::changed, this, &Panel::refresh);
    connect(&tick, &QTimer::timeout, this, &Panel::refresh);
    refresh();
}

void Panel::refresh()
{
    for (PanelSection *section : sections)
        section->refresh();
    const Line::Telephone *telephone = line.telephone();
    const bool counting = telephone && telephone->lineState() == Line::Telephone::LineState::Connected;
    if (counting && !tick.isActive())
        tick.start(tickMs);
    else if (!counting)
        tick.stop();
}

} // namespace host
