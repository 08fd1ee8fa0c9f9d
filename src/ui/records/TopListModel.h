#pragma once

#include "core/records/TopList.h"

#include <QAbstractTableModel>

/// The top list as a table: rank, user name, record and date. Rows are made into texts only when they are
/// shown.
class TopListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Rank, UserName, Record, Time };

    TopListModel(std::vector<TopListEntry> entries, QObject *parent);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<TopListEntry> m_entries;
};
