#include "ui/records/OverviewPage.h"

#include "core/records/TrainingHistory.h"
#include "ui/records/ManageLayout.h"
#include "ui/skin/Fonts.h"
#include "ui/widgets/ElidedLabel.h"

using namespace Qt::Literals::StringLiterals;

OverviewPage::OverviewPage(IUserRecord &store, QWidget *parent)
    : ManagePage(u"Pic_Zonghe"_s, tr("Overview"), u"UR_ZONGHE_BACK"_s, parent)
    , m_store(store)
{
    const std::array<std::pair<QString, QString>, 4> names{{{u"labHighest"_s, tr("Highest record")},
                                                            {u"labAverage"_s, tr("Average speed")},
                                                            {u"labRate"_s, tr("Average correct rate")},
                                                            {u"labModule"_s, tr("Suggested practice")}}};
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        m_lines[i] = new ElidedLabel(names[i].first, names[i].second, this);
        m_lines[i]->setFont(Public_Function::InterfaceFont(12));
        m_lines[i]->setGeometry(ManageLayout::overviewLeft, ManageLayout::overviewTops[i],
                                ManageLayout::page.width() - 2 * ManageLayout::overviewLeft,
                                ManageLayout::overviewLine);
    }
}

void OverviewPage::Refresh()
{
    const QStringList lines = TrainingSummary(m_store);
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        m_lines[i]->SetText(lines[static_cast<qsizetype>(i)]);
}
