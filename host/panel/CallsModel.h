// The kept calls as rows of a table, the newest first.
#pragma once

#include "host/Line.h"

#include "handset/KeptCalls.h"

#include <QtCore/QAbstractTableModel>

namespace host {

/// A row has two lines, so that it needs little width: the number over when the call began, how long it took over what
/// it has cost. Reads a page of rows when the view wants more of them, so that a long call log opens as quickly as a short one.
class CallsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Direction, Call, Amount, ColumnCount };
    static constexpr int pageSize = 100;

    /// `line` outlives the model. Empty until the first refresh().
    explicit CallsModel(Line &line, QObject *parent = nullptr);

    /// Brings the rows that have been read up to now: those that are gone go, new ones come in front of them.
    void refresh();
    /// Whether the calls could be read.
    bool isRead() const { return readStatus == 0; }
    const handset::KeptCall &callAt(int row) const { return calls.at(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    QStringList texts(const handset::KeptCall &kept, int column) const;
    QString costText(qint64 units) const;
    bool readPage(qint64 before, QList<handset::KeptCall> &page);
    bool readRest(QList<handset::KeptCall> &fresh);
    void readUnit();
    void take(const QList<handset::KeptCall> &fresh);

    Line &line;
    QList<handset::KeptCall> calls;
    bool isWhole = false; ///< none is left to be read
    int readStatus = 0;
    QString unit;
    QString price; ///< of a unit; empty where costs are in units
};

} // namespace host
