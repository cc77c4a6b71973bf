#include "host/panel/CallsModel.h"

#include "charging/AmountText.h"
#include "handset/AdviceOfCharge.h"
#include "handset/Status.h"
#include "host/LeftToRight.h"
#include "host/panel/Controls.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <array>

namespace host {

using handset::AdviceOfCharge;
using handset::KeptCall;
using handset::KeptCalls;

namespace {

QString directionText(const KeptCall &kept)
{
    const bool isDialed = kept.call.direction == handset::CallDirection::Dialed;
    if (!kept.wasConnected)
        return isDialed ? CallsModel::tr("Dialed, not answered") : CallsModel::tr("Missed");
    if (kept.call.kind == handset::CallKind::Data)
        return CallsModel::tr("Data call");
    return isDialed ? CallsModel::tr("Dialed") : CallsModel::tr("Answered");
}

QString directionMark(const KeptCall &kept)
{
    const bool isDialed = kept.call.direction == handset::CallDirection::Dialed;
    const QChar arrow = isDialed ? QChar(0x2192) : QChar(0x2190);
    return kept.wasConnected ? QString(arrow) : QString(arrow) + QChar(0x00d7);
}

} // namespace

CallsModel::CallsModel(Line &drivenLine, QObject *parent)
    : QAbstractTableModel(parent)
    , line(drivenLine)
{}

int CallsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(calls.size());
}

int CallsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int{ColumnCount};
}

QString CallsModel::costText(qint64 units) const
{
    handset::charging::UnitPrice unitPrice;
    const bool isCurrency =
        !price.isEmpty() && handset::charging::UnitPrice::fromText(price, unitPrice) == handset::Success;
    QByteArray amount;
    handset::charging::amountText(static_cast<quint64>(units),
                                  isCurrency ? AdviceOfCharge::InCurrency : AdviceOfCharge::InUnits, unitPrice,
                                  amount);
    return QStringLiteral("%1 %2").arg(QString::fromLatin1(amount), unit).trimmed();
}

QStringList CallsModel::texts(const KeptCall &kept, int column) const
{
    const handset::PastCall &call = kept.call;
    switch (static_cast<Column>(column)) {
    case Direction:
        return {directionText(kept)};
    case Call:
        return {
            call.number.isEmpty() ? tr("number withheld") : leftToRight(call.number),
            leftToRight(
                QDateTime::fromMSecsSinceEpoch(call.startWallMs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")))};
    case Amount:
        return {clockText(call.durationMs / 1000), costText(call.units)};
    case ColumnCount:
        break;
    }
    return {};
}

QVariant CallsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= calls.size())
        return {};
    const KeptCall &kept = calls.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return column == Direction ? directionMark(kept) : texts(kept, column).join(QLatin1Char('\n'));
    case Qt::ToolTipRole:
        return breakableWords(texts(kept, column).join(QLatin1Char('\n')));
    case Qt::AccessibleTextRole:
        return texts(kept, column).join(QStringLiteral(", "));
    case Qt::TextAlignmentRole:
        if (column == Direction)
            return QVariant(Qt::AlignCenter);
        return QVariant((column == Amount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}

QVariant CallsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const std::array<QString, ColumnCount> names{tr("Direction"), tr("Number and time"), tr("Duration and cost")};
    const QString &name = names.at(static_cast<std::size_t>(section));
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
        return name;
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == Amount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    // The arrows say it.
    return role == Qt::DisplayRole && section != Direction ? QVariant(name) : QVariant();
}

bool CallsModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && !isWhole && !calls.isEmpty();
}

void CallsModel::fetchMore(const QModelIndex &parent)
{
    QList<KeptCall> page;
    if (!canFetchMore(parent) || !readPage(calls.last().id, page))
        return;
    isWhole = page.size() < pageSize;
    if (page.isEmpty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(page.size()) - 1);
    calls += page;
    endInsertRows();
}

bool CallsModel::readPage(qint64 before, QList<KeptCall> &page)
{
    KeptCalls *const kept = line.handset().keptCalls();
    readStatus = kept ? kept->newest(before, pageSize, page) : int{handset::Success};
    return isRead();
}

void CallsModel::readUnit()
{
    AdviceOfCharge *const advice = line.handset().adviceOfCharge();
    quint8 type = AdviceOfCharge::InUnits;
    QString currency;
    const bool isCurrency = advice && advice->chargeType(type) == handset::Success &&
                            type == AdviceOfCharge::InCurrency &&
                            advice->priceAndCurrency(price, currency) == handset::Success;
    if (!isCurrency)
        price.clear();
    unit = isCurrency ? currency : tr("units");
}

// Of the rows behind the first page none changes: they are only gone or not. `fresh` is that page, and gets them.
bool CallsModel::readRest(QList<KeptCall> &fresh)
{
    const qint64 first = calls.last().id;
    const qint64 end = fresh.last().id;
    const auto behind =
        std::find_if(calls.cbegin(), calls.cend(), [end](const KeptCall &kept) { return kept.id < end; });
    qint64 count = 0;
    readStatus = line.handset().keptCalls()->count(first, end, count);
    if (!isRead())
        return false;
    if (count == calls.cend() - behind) {
        fresh += calls.sliced(behind - calls.cbegin());
        return true;
    }
    while (count > 0) {
        QList<KeptCall> page;
        if (!readPage(fresh.last().id, page))
            return false;
        fresh += page;
        count = page.size() < pageSize ? 0 : count - page.size();
    }
    return true;
}

void CallsModel::refresh()
{
    const QString priceBefore = price;
    const QString unitBefore = unit;
    readUnit();
    QList<KeptCall> fresh;
    if (!readPage(KeptCalls::endOfTime, fresh))
        return;
    isWhole = fresh.size() < pageSize;
    if (!isWhole && calls.size() > pageSize) {
        if (!readRest(fresh))
            return;
    }
    take(fresh);
    if ((priceBefore != price || unitBefore != unit) && !calls.isEmpty())
        emit dataChanged(index(0, Amount), index(rowCount() - 1, Amount));
}

// Both lists go down by their ids: what only the old one has goes, what only the new one has comes, in its place, so that
// what is chosen and what is seen stay.
void CallsModel::take(const QList<KeptCall> &fresh)
{
    int row = 0;
    for (const KeptCall &now : fresh) {
        int end = row;
        while (end < calls.size() && calls.at(end).id > now.id)
            ++end;
        if (end > row) {
            beginRemoveRows({}, row, end - 1);
            calls.remove(row, end - row);
            endRemoveRows();
        }
        if (row == calls.size() || calls.at(row).id != now.id) {
            beginInsertRows({}, row, row);
            calls.insert(row, now);
            endInsertRows();
        } else if (calls.at(row) != now) {
            calls[row] = now;
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
        }
        ++row;
    }
    if (row == calls.size())
        return;
    beginRemoveRows({}, row, rowCount() - 1);
    calls.remove(row, calls.size() - row);
    endRemoveRows();
}

} // namespace host
