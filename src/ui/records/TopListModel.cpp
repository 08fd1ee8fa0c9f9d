#include "ui/records/TopListModel.h"

#include "core/shell/Public_Define.h"
#include "ui/skin/Fonts.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

TopListModel::TopListModel(std::vector<TopListEntry> entries, QObject *parent)
    : QAbstractTableModel(parent)
    , m_entries(std::move(entries))
{
}

int TopListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int TopListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Time + 1;
}

QVariant TopListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const TopListEntry &entry = m_entries[static_cast<std::size_t>(index.row())];
    if (role == Qt::FontRole) {
        // People look for their own results first.
        const bool own = entry.userName.compare(Shared().CurrentUserName, Qt::CaseInsensitive) == 0;
        return Public_Function::InterfaceFont(10, own);
    }
    if (role == Qt::ToolTipRole && index.column() == UserName)
        return entry.userName;
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Rank:
        return QString::number(index.row() + 1);
    case UserName:
        return entry.userName;
    case Record:
        return entry.RecordText();
    default:
        return QLocale::system().toString(entry.date, QLocale::ShortFormat);
    }
}

QVariant TopListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const std::array<QString, 4> titles{u"Rank"_s, u"User name"_s, u"Record"_s, u"Time"_s};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section > Time)
        return {};
    return titles[static_cast<std::size_t>(section)];
}
