#include "host/panel/Panel.h"

#include "host/panel/AccountSection.h"
#include "host/panel/CostSection.h"
#include "host/panel/FailuresSection.h"
#include "host/panel/FiguresSection.h"
#include "host/panel/LineSection.h"
#include "host/panel/ModemSection.h"
#include "host/panel/PacketSection.h"
#include "host/panel/Pin2Section.h"
#include "host/panel/RecentCallsSection.h"
#include "host/panel/SimFilesSection.h"
#include "host/panel/StateSection.h"
#include "host/panel/TariffSection.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace host {

namespace {

constexpr int tickMs = 1000;
constexpr int spacing = 10;

// All tabs are seen at once in a panel of the usual width.
class CloseTabs : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_TabBarTabHSpace ? usual * 2 / 3 : usual;
    }
};

QVBoxLayout *makeColumn(QWidget *owner)
{
    auto *column = new QVBoxLayout(owner);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

} // namespace

Panel::Panel(Line &drivenLine, const Setup &setup, QWidget *parent)
    : QWidget(parent)
    , line(drivenLine)
    , tabs(new QTabBar)
    , scrolled(new QScrollArea)
{
    QVBoxLayout *column = makeColumn(this);
    column->addWidget(keep(new LineSection(line)));
    column->addWidget(tabs);
    column->addWidget(scrolled, 1);
    auto *content = new QWidget;
    pageColumn = makeColumn(content);
    addPages(setup); // before the column is laid out: tabs that come later find no room
    pageColumn->addStretch();
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrolled->setFocusPolicy(Qt::NoFocus);
    scrolled->setWidgetResizable(true);
    scrolled->setWidget(content);
    makeRoom();
    connect(&line, &Line::changed, this, &Panel::refresh);
    connect(&tick, &QTimer::timeout, this, &Panel::refresh);
}

void Panel::addPages(const Setup &setup)
{
    auto *close = new CloseTabs;
    close->setParent(tabs);
    tabs->setStyle(close);
    tabs->setExpanding(false);
    tabs->setFocusPolicy(Qt::TabFocus);
    tabs->setAccessibleName(tr("Sides of the telephone"));
    using Sections = QList<PanelSection *>;
    addPage(tr("Calls"), [this, setup] {
        Sections inPage{new FiguresSection(line),
                        new StateSection(setup.stateDirectory, setup.notice, setup.renew)};
        if (line.modemLine())
            inPage.prepend(new ModemSection(line));
        return inPage;
    });
    addPage(tr("Charging"), [this] {
        return Sections{new TariffSection(line), new CostSection(line), new AccountSection(line)};
    });
    addPage(tr("SIM"), [this] { return Sections{new SimFilesSection(line), new Pin2Section(line)}; });
    addPage(tr("Data"), [this] { return Sections{new PacketSection(line)}; });
    addPage(tr("Recent"), [this] { return Sections{new RecentCallsSection(line)}; });
    if (setup.faults)
        addPage(tr("Failures"), [faults = setup.faults] { return Sections{new FailuresSection(*faults)}; });
    choosePage(setup.page);
    connect(tabs, &QTabBar::currentChanged, this, &Panel::showPage);
    showPage(tabs->currentIndex());
}

void Panel::addPage(const QString &title, MakeSections makeSections)
{
    pages.append({std::move(makeSections)});
    tabs->addTab(title);
}

QWidget *Panel::makePage(const Page &page)
{
    auto *widget = new QWidget;
    QVBoxLayout *inPage = makeColumn(widget);
    const QList<PanelSection *> ofPage = page.makeSections();
    for (PanelSection *section : ofPage)
        inPage->addWidget(keep(section));
    pageColumn->insertWidget(0, widget);
    return widget;
}

void Panel::showPage(int index)
{
    QWidget *&shown = pages[index].widget;
    if (!shown) {
        shown = makePage(pages[index]);
        refresh();
    }
    for (const Page &page : std::as_const(pages)) {
        if (page.widget)
            page.widget->setVisible(page.widget == shown);
    }
    if (scrolled->widget())
        makeRoom();
}

// Nothing leads to what would be cut off at the side.
void Panel::makeRoom()
{
    setMinimumWidth(Panel::sizeHint().width());
}

void Panel::choosePage(int index)
{
    tabs->setCurrentIndex(index);
}

// As high as the phone beside it, or whatever there is.
QSize Panel::sizeHint() const
{
    const QSize least = layout()->minimumSize();
    return {std::max({usualWidth, least.width(), scrolled->widget()->minimumSizeHint().width()}), least.height()};
}

PanelSection *Panel::keep(PanelSection *section)
{
    sections.append(section);
    return section;
}

void Panel::refresh()
{
    for (PanelSection *section : std::as_const(sections))
        section->refresh();
    if (!line.isCounting())
        tick.stop();
    else if (!tick.isActive())
        tick.start(tickMs);
}

// Return in a field, or a Backspace that finds nothing to take back, is not meant for the phone.
void Panel::keyPressEvent(QKeyEvent *event)
{
    QWidget::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Backspace:
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->accept();
    }
}

} // namespace host
