#include "ui/records/DlgHighScore.h"

#include "ui/records/TopListModel.h"
#include "ui/records/TopListView.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"
#include "ui/widgets/SkinButton.h"

#include <QHeaderView>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRect TopListPanel(20, 45, 590, 290);
constexpr int TopListHeaderTop = 55;
constexpr std::array<int, 4> TopListHeaderLeft{30, 130, 340, 530};
constexpr std::array<int, 4> TopListTextLeft{30, 130, 250, 500};
/// Of a row above its text, so that the rows stand on the stripes of the picture.
constexpr int TopListTextInset = 4;

} // namespace

DlgHighScore::DlgHighScore(QWidget *owner)
    : SkinnedDialog(owner)
    , m_entries(new TopListModel(CollectTopList(), this))
    , m_list(new TopListView(this))
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("&OK"), this))
{
    setObjectName(u"DlgHighScore"_s);
    resize(630, 390);
    SkinDialog(u"Top List "_s);
    MakeControls();
    SetDefaultButton(BtnOk);
    setTabOrder(m_list, BtnOk);
    connect(BtnOk, &SkinButton::clicked, this, &DlgHighScore::accept);
    if (m_entries->rowCount() > 0)
        m_list->ShowFirst();
    else
        BtnOk->setFocus();
}

void DlgHighScore::MakeControls()
{
    m_list->setObjectName(u"TopList"_s);
    m_list->setAccessibleName(tr("Top list"));
    m_list->setModel(m_entries);
    const int left = TopListTextLeft[0] - TopListView::CellPad;
    const int top = TopListHeaderTop + TopListView::RowHeight - TopListTextInset;
    m_list->setGeometry(left, top, TopListPanel.right() - 1 - left, TopListPanel.bottom() - 1 - top);
    for (int column = 0; column < 3; ++column) {
        const auto at = static_cast<std::size_t>(column);
        m_list->setColumnWidth(column, TopListTextLeft[at + 1] - TopListTextLeft[at]);
    }
    m_list->horizontalHeader()->setStretchLastSection(true);

    BtnOk->move(0, height() - 45);
    SkinOkCancel(BtnOk, nullptr, 1);
}

void DlgHighScore::paintEvent(QPaintEvent *event)
{
    SkinnedDialog::paintEvent(event);
    QPainter painter(this);
    const QPixmap back = SkinLibrary().Bitmap(u"HIGHSCORE_BACK"_s, devicePixelRatioF());
    if (back.isNull())
        painter.fillRect(TopListPanel, QColor(247, 248, 251));
    else
        painter.drawPixmap(TopListPanel.topLeft(), back);
    painter.setFont(Public_Function::InterfaceFont(10, true));
    painter.setPen(QColor(40, 46, 58));
    for (int column = 0; column <= TopListModel::Time; ++column) {
        const QString title = m_entries->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const QPoint at(TopListHeaderLeft[static_cast<std::size_t>(column)], TopListHeaderTop);
        Public_Function::PrintScaledText(painter, at, title);
    }
}
