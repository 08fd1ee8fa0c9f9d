#include "ui/speedtest/DlgTestResult.h"

#include "core/engine/Level.h"
#include "core/engine/TypingSession.h"
#include "core/shell/Public_Define.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/Chart.h"
#include "ui/widgets/SkinButton.h"

#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostWrongShown = 10;
constexpr int WrongShownOfMore = 9;

QString PlainNumber(float value)
{
    return QString::number(static_cast<double>(value), 'f', QLocale::FloatingPointShortest);
}

QList<double> AsDoubles(const QList<int> &numbers)
{
    return {numbers.cbegin(), numbers.cend()};
}

} // namespace

DlgTestResult::DlgTestResult(QWidget *owner)
    : SkinnedDialog(owner)
    , Label2(new QLabel(this))
    , Label3(new QLabel(this))
    , Label4(new QLabel(this))
    , m_levelLine(new QLabel(this))
    , picChart(new Chart(u"picChart"_s, tr("Chart"), this))
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("&OK"), this))
    , m_aSpeed{0}
    , m_aSpeedTime{QString()}
    , m_aWrongCount{0}
    , m_aWrongChar{QString()}
{
    setObjectName(u"DlgTestResult"_s);
    resize(600, 470);
    MakeControls();
    SkinDialog(u"Test result"_s);
    connect(BtnOk, &SkinButton::clicked, this, &DlgTestResult::accept);
    for (int i = 0; i < 2; ++i) {
        connect(optChart[static_cast<std::size_t>(i)], &QRadioButton::toggled, this, [this, i](bool chosen) {
            if (chosen)
                DrawChart(i);
        });
    }
    BtnOk->setFocus();
}

void DlgTestResult::MakeControls()
{
    const int left = 24;
    const int content = width() - 2 * left;
    int top = TitleHeight() + 14;
    int x = left;
    const std::array<QLabel *, 3> figures{Label2, Label3, Label4};
    for (std::size_t i = 0; i < figures.size(); ++i) {
        figures[i]->setObjectName(u"Label"_s + QString::number(i + 2));
        Public_Function::StyleDialogLabel(figures[i]);
        figures[i]->setGeometry(x, top, content / 3, 22);
        x += content / 3;
    }
    top += 26;
    m_levelLine->setObjectName(u"labLevel"_s);
    Public_Function::StyleDialogLabel(m_levelLine, 13, true);
    m_levelLine->setGeometry(left, top, content, 26);
    top += 26 + 8;
    const std::array<QString, 2> texts{tr("&Speed curve"), tr("&Wrong characters")};
    for (std::size_t i = 0; i < optChart.size(); ++i) {
        optChart[i] = new QRadioButton(texts[i], this);
        optChart[i]->setObjectName(u"optChart"_s + QString::number(i));
        Public_Function::StyleDialogOption(optChart[i]);
        optChart[i]->setGeometry(left + static_cast<int>(i) * 140 - 4, top, optChart[i]->sizeHint().width(),
                                 26);
    }
    top += 26 + 6;
    Public_Function::TabToChosen({optChart.cbegin(), optChart.cend()});
    picChart->setGeometry(left, top, content, height() - 58 - top);

    BtnOk->move(0, height() - 45);
    SkinOkCancel(BtnOk, nullptr, 1);
    SetDefaultButton(BtnOk);
    setTabOrder(BtnOk, optChart[0]);
    setTabOrder(optChart[0], optChart[1]);
}

bool DlgTestResult::CalChartData(const TypingSession *engine, const QString &imeName)
{
    if (!engine)
        return false;
    const SpeedCurve curve = engine->GetSpeed();
    m_aSpeed = {curve.nSpeed.cbegin(), curve.nSpeed.cend()};
    m_aSpeedTime = curve.sSpeedTime;
    m_nMaxSpeed = qMax(0, *std::max_element(m_aSpeed.cbegin(), m_aSpeed.cend()));

    const WrongCharacters wrong = engine->GetWrong();
    m_aWrongCount.clear();
    m_aWrongChar.clear();
    m_nMaxWrong = 0;
    if (wrong.any) {
        const auto all = static_cast<int>(wrong.nWrong.size());
        const int shown = all > MostWrongShown ? WrongShownOfMore : all;
        m_aWrongCount = {wrong.nWrong.cbegin(), wrong.nWrong.cbegin() + shown};
        m_aWrongChar = wrong.sWrong.mid(0, shown);
        m_nMaxWrong = m_aWrongCount.constFirst();
    }

    Label2->setText(u"Correct rate:  "_s + PlainNumber(engine->m_fLastRate));
    Label3->setText(u"Average speed: "_s + PlainNumber(engine->m_fLastAveSpeed));
    Label4->setText(u"Backspace key: "_s + QString::number(engine->m_nBackSpace));

    InputKind kind = InputKind::Other;
    if (imeName.isEmpty())
        kind = InputKind::None;
    else if (imeName.contains("Pinyin"_L1))
        kind = InputKind::Pinyin;
    m_nInputKind = static_cast<int>(kind);
    picChart->SetTextSize(Shared().LayoutWidth() >= 1024 ? 9 : 8);
    const float speed = kind == InputKind::None ? engine->m_fLastAveSpeed / 5 : engine->m_fLastAveSpeed;
    const int level = Public_Function::GetLevel(kind, speed, engine->m_fLastRate);
    m_levelLine->setText(u"Your level is:   "_s + Public_Function::GetLevelName(level));

    if (optChart[1]->isChecked())
        DrawChart(1);
    else if (optChart[0]->isChecked())
        DrawChart(0);
    return true;
}

void DlgTestResult::SelectChart(int index)
{
    optChart[index == 1 ? 1 : 0]->setChecked(true);
}

void DlgTestResult::DrawChart(int index)
{
    ChartData chart;
    if (index == 0) {
        chart.kind = ChartData::Kind::Line;
        chart.labelTitle = u"Time(S)"_s;
        chart.valueTitle = u"Typing speed(KPM)"_s;
        chart.emptyText = tr("Nothing was typed");
        chart.labels = m_aSpeedTime;
        chart.values = AsDoubles(m_aSpeed);
        chart.maximum = m_nMaxSpeed;
        picChart->setAccessibleName(tr("Speed curve"));
    } else {
        chart.kind = ChartData::Kind::Bar;
        chart.title = u"The wrong words"_s;
        chart.valueTitle = u"wrong"_s;
        chart.emptyText = tr("No character was typed wrong");
        chart.labels = m_aWrongChar;
        chart.values = AsDoubles(m_aWrongCount);
        chart.maximum = m_nMaxWrong;
        chart.color = QColor(206, 82, 70);
        picChart->setAccessibleName(tr("Wrong characters"));
    }
    picChart->SetData(chart);
}
