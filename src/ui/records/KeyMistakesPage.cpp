#include "ui/records/KeyMistakesPage.h"

#include "core/records/OneLine.h"
#include "ui/records/ManageLayout.h"
#include "ui/widgets/Chart.h"
#include "ui/widgets/MarkBox.h"
#include "ui/widgets/SkinButton.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

KeyMistakesPage::KeyMistakesPage(IUserRecord &store, QWidget *parent)
    : MistakesPage({u"Pic_Jianwei"_s, tr("Wrong keys"), u"UR_MISTAKEJIANWEI_BACK"_s, u"Jianwei"_s,
                    u"BTN_UR_CreateLesson_big"_s},
                   0, store, parent)
    , m_chart(new Chart(u"ChartJianwei"_s, tr("Mistakes of each key"), this))
{
    m_chart->SetPanel(false);
    m_chart->SetTextSize(8);
    m_chart->setGeometry(0, ManageLayout::headerHeight, width(),
                         ManageLayout::buttonTop - ManageLayout::headerHeight);
    QList<MarkBox *> boxes;
    for (int i = 0; i < ManageLayout::mostKeys; ++i) {
        auto *box = new MarkBox(u"ChkJianwei"_s + QString::number(i), this);
        // It reaches from the key's name below the axis to the box itself.
        const int left = ManageLayout::barLeft + i * ManageLayout::barStep;
        box->setGeometry(left - 3, ManageLayout::keyPlot.bottom() + 4, ManageLayout::bar.width() + 6, 38);
        box->SetBoxBelow();
        boxes += box;
    }
    SetBoxes(boxes, ManageLayout::mostKeys);
    PlaceFromRight({LessonButton(), DeleteButton()});
}

void KeyMistakesPage::ShowMistakes(const std::vector<MistakeRecord> &frequent, int)
{
    ChartData chart;
    chart.kind = ChartData::Kind::Bar;
    chart.valueTitle = u"Wrong number"_s;
    chart.labelTitle = u"Often wrong key"_s;
    chart.barPicture = u"Ur_histogram"_s;
    for (const MistakeRecord &record : frequent) {
        chart.labels += OneLine(record.Char, 2);
        chart.values += record.Count;
    }
    // Above the highest bar there is room for its value.
    if (!frequent.empty() && frequent.front().Count > 0)
        chart.maximum = std::ceil(frequent.front().Count * 1.1);
    const QPointF origin(m_chart->pos());
    chart.places.plot = QRectF(ManageLayout::keyPlot).translated(-origin);
    chart.places.valueTitle = QPointF(ManageLayout::keyPlot.left(), ManageLayout::headerHeight) - origin;
    chart.places.labelTitle = QPointF(ManageLayout::keyCaption) - origin;
    chart.places.slotWidth = ManageLayout::barStep;
    chart.places.barWidth = ManageLayout::bar.width();
    chart.places.firstSlot = ManageLayout::barLeft - ManageLayout::keyPlot.left() -
                             (ManageLayout::barStep - ManageLayout::bar.width()) / 2.0;
    m_chart->SetData(chart);
}
