#include "host/panel/RecentCallsSection.h"

#include "handset/Status.h"
#include "host/StatusText.h"
#include "host/panel/CallsModel.h"
#include "host/panel/Controls.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>

namespace host {

namespace {

constexpr int rowsShown = 7;

constexpr StatusMeaning callsMeaning{QT_TRANSLATE_NOOP("host::StatusText", "the call is not kept any more"),
                                     QT_TRANSLATE_NOOP("host::StatusText", "the call is still running"),
                                     QT_TRANSLATE_NOOP("host::StatusText", "not possible now")};

} // namespace

RecentCallsSection::RecentCallsSection(Line &drivenLine)
    : PanelSection(tr("Recent calls"))
    , line(drivenLine)
    , calls(new CallsModel(drivenLine, this))
    , table(new QTreeView)
    , removeButton(makeButton(tr("&Delete"), tr("Deletes the chosen call; the totals stay")))
    , removeAllButton(makeButton(tr("Delete a&ll ..."), tr("Deletes every call that is over; the totals stay")))
    , failure(makeAnnouncement("recent calls failure", tr("Why the calls were not read or deleted")))
{
    prepareTable();
    auto *grid = new QGridLayout(this);
    grid->addWidget(table, 0, 0, 1, 2);
    grid->addWidget(removeButton, 1, 0);
    grid->addWidget(removeAllButton, 1, 1);
    grid->addWidget(failure, 2, 0, 1, 2);
    connect(removeButton, &QPushButton::clicked, this, &RecentCallsSection::removeChosen);
    connect(removeAllButton, &QPushButton::clicked, this, &RecentCallsSection::askToRemoveAll);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecentCallsSection::showButtons);
    auto *deleteKey = new QShortcut(QKeySequence::Delete, table, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &RecentCallsSection::removeChosen);
}

void RecentCallsSection::prepareTable()
{
    table->setObjectName(QStringLiteral("recent calls"));
    table->setAccessibleName(tr("Recent calls"));
    table->setModel(calls);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setFocusPolicy(Qt::TabFocus);
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true); // so that no row is looked at which is not seen
    table->setAllColumnsShowFocus(true);
    table->setAlternatingRowColors(true);
    table->setMinimumHeight(rowsShown * (2 * table->fontMetrics().height() + 4));
    QHeaderView *columns = table->header();
    columns->setStretchLastSection(false);
    columns->setMinimumSectionSize(table->fontMetrics().horizontalAdvance(QStringLiteral("00")) + 8);
    columns->setResizeContentsPrecision(0); // what is seen, too
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(CallsModel::Call, QHeaderView::Stretch);
}

void RecentCallsSection::refresh()
{
    const bool isKept = line.handset().keptCalls() != nullptr;
    setEnabled(isKept);
    calls->refresh();
    failure->say(calls->isRead() ? refused : tr("The call log cannot be read."));
    showButtons();
}

void RecentCallsSection::showButtons()
{
    const QModelIndexList chosen = table->selectionModel()->selectedRows();
    removeButton->setEnabled(!chosen.isEmpty() && !calls->callAt(chosen.first().row()).isRunning);
    removeAllButton->setEnabled(calls->rowCount() > 0);
}

void RecentCallsSection::removeChosen()
{
    const QModelIndexList chosen = table->selectionModel()->selectedRows();
    if (chosen.isEmpty())
        return;
    const int row = chosen.first().row();
    told(line.handset().keptCalls()->remove(calls->callAt(row).id));
    if (calls->rowCount() > 0)
        table->setCurrentIndex(calls->index(std::min(row, calls->rowCount() - 1), 0));
}

void RecentCallsSection::askToRemoveAll()
{
    auto *question = new QMessageBox(QMessageBox::Question, tr("Recent calls"),
                                     tr("Delete all calls that are over? The totals stay as they are."),
                                     QMessageBox::Cancel, window());
    question->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton *yes = question->addButton(tr("&Delete all"), QMessageBox::DestructiveRole);
    question->setDefaultButton(QMessageBox::Cancel);
    connect(yes, &QPushButton::clicked, this, &RecentCallsSection::removeAll);
    question->open();
}

void RecentCallsSection::removeAll()
{
    qint64 count = 0;
    told(line.handset().keptCalls()->removeBefore(handset::KeptCalls::endOfTime, count));
}

void RecentCallsSection::told(int status)
{
    refused = refusalText(status, callsMeaning);
    refresh();
}

} // namespace host
