#include "ui/speedtest/DlgTestSetting.h"

#include "ui/skin/DialogStyle.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TickBox.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SettingRow = 26;

template <std::size_t Count>
std::optional<int> CheckedIndex(const std::array<QRadioButton *, Count> &options)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (options[i]->isChecked())
            return static_cast<int>(i);
    }
    return std::nullopt;
}

template <std::size_t Count>
void CheckIndex(const std::array<QRadioButton *, Count> &options, int index)
{
    options[static_cast<std::size_t>(qBound(0, index, static_cast<int>(Count) - 1))]->setChecked(true);
}

} // namespace

DlgTestSetting::DlgTestSetting(QWidget *owner)
    : SkinnedDialog(owner)
    , m_displayGroup(new QGroupBox(tr("Display"), this))
    , chkComp(new TickBox(u"chkComp"_s, tr("&Keep the text and the typing apart"), m_displayGroup))
    , m_endGroup(new QGroupBox(tr("End of the test"), this))
    , txtMinutes(new QLineEdit(m_endGroup))
    , chkKeySound(new TickBox(u"chkKeySound"_s, tr("Key sou&nd"), this))
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("&OK"), this))
    , BtnCancel(new SkinButton(u"BtnCancel"_s, tr("&Cancel"), this))
{
    setObjectName(u"DlgTestSetting"_s);
    resize(440, 392);
    MakeControls();
    SkinDialog(u"Test setting"_s);
    m_displayGroup->setEnabled(false);
    m_endGroup->setEnabled(false);
    optNewLine[0]->setChecked(true);
    connect(chkComp, &TickBox::toggled, this, &DlgTestSetting::ChooseComparison);
    connect(optOverType[1], &QRadioButton::toggled, this, &DlgTestSetting::ChooseEnd);
    connect(BtnOk, &SkinButton::clicked, this, &DlgTestSetting::accept);
    connect(BtnCancel, &SkinButton::clicked, this, &DlgTestSetting::reject);
    optNewLine[0]->setFocus();
}

void DlgTestSetting::MakeControls()
{
    const int left = 20;
    const int content = width() - 2 * left;
    int top = TitleHeight() + 10;
    const auto addRow = [&](QGroupBox *group, const QString &name, const auto &texts, auto &options, int y) {
        const int column = (content - 20) / 3;
        for (std::size_t i = 0; i < options.size(); ++i) {
            options[i] = new QRadioButton(texts[i], group);
            options[i]->setObjectName(name + QString::number(i));
            Public_Function::StyleDialogOption(options[i]);
            options[i]->move(12 + static_cast<int>(i) * column, y);
            options[i]->resize(qMin(options[i]->sizeHint().width(), column - 4), SettingRow);
        }
    };
    const auto placeGroup = [&](QGroupBox *group, int high) {
        group->setGeometry(left, top, content, high);
        Public_Function::StyleDialogGroup(group);
        top += high + 10;
    };

    auto *lineGroup = new QGroupBox(tr("At the end of a line"), this);
    addRow(lineGroup, u"optNewLine"_s,
           std::array<QString, 3>{tr("&Go on at once"), tr("Press &Enter"), tr("Press &Space")}, optNewLine,
           24);
    placeGroup(lineGroup, 62);

    chkComp->move(12, 24);
    chkComp->resize(chkComp->sizeHint().width(), SettingRow);
    addRow(m_displayGroup, u"optComp"_s,
           std::array<QString, 3>{tr("&Line by line"), tr("S&ide by side"), tr("Typed o&ver")}, optComp, 54);
    placeGroup(m_displayGroup, 92);

    addRow(m_endGroup, u"optOverType"_s, std::array<QString, 2>{tr("&With the text"), tr("&Time limit")},
           optOverType, 24);
    const int limit = optOverType[1]->geometry().right() + 6;
    txtMinutes->setObjectName(u"txtMinutes"_s);
    txtMinutes->setAccessibleName(tr("Time limit in minutes"));
    txtMinutes->setGeometry(limit, 24, 46, SettingRow);
    txtMinutes->setEnabled(false);
    txtMinutes->setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9]*[.,]?[0-9]*"_s), txtMinutes));
    Public_Function::StyleDialogBox(txtMinutes);
    auto *minutes = new QLabel(tr("minutes"), m_endGroup);
    Public_Function::StyleDialogLabel(minutes);
    minutes->setGeometry(limit + 54, 24, 70, SettingRow);
    placeGroup(m_endGroup, 62);

    chkKeySound->move(left + 12, top);
    chkKeySound->resize(chkKeySound->sizeHint().width(), SettingRow);

    Public_Function::TabToChosen({optNewLine.cbegin(), optNewLine.cend()});
    Public_Function::TabToChosen({optComp.cbegin(), optComp.cend()});
    Public_Function::TabToChosen({optOverType.cbegin(), optOverType.cend()});

    BtnOk->move(0, height() - 45);
    BtnCancel->move(0, height() - 45);
    SkinOkCancel(BtnOk, BtnCancel, 0);
    SetDefaultButton(BtnOk);
    const std::array<QWidget *, 13> order{
        optNewLine[0],  optNewLine[1],  optNewLine[2], chkComp,     optComp[0], optComp[1], optComp[2],
        optOverType[0], optOverType[1], txtMinutes,    chkKeySound, BtnOk,      BtnCancel};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void DlgTestSetting::SetNewLine(int rule)
{
    CheckIndex(optNewLine, rule);
    optNewLine[static_cast<std::size_t>(NewLine())]->setFocus();
}

int DlgTestSetting::NewLine() const
{
    return CheckedIndex(optNewLine).value_or(0);
}

void DlgTestSetting::SetDisplayMode(int mode)
{
    m_displayGroup->setEnabled(true);
    chkComp->setChecked(true);
    CheckIndex(optComp, mode);
}

std::optional<int> DlgTestSetting::DisplayMode() const
{
    return CheckedIndex(optComp);
}

void DlgTestSetting::ChooseComparison(bool separate)
{
    optComp[0]->setEnabled(separate);
    optComp[1]->setEnabled(separate);
    if (!separate)
        optComp[2]->setChecked(true);
}

void DlgTestSetting::SetEndOption(int overType, int limitMinutes)
{
    m_endGroup->setEnabled(true);
    CheckIndex(optOverType, overType);
    if (overType == 1)
        txtMinutes->setText(QString::number(limitMinutes));
    ChooseEnd();
}

std::optional<int> DlgTestSetting::EndOption() const
{
    return CheckedIndex(optOverType);
}

void DlgTestSetting::ChooseEnd()
{
    txtMinutes->setEnabled(optOverType[1]->isChecked());
}

QString DlgTestSetting::MinutesText() const
{
    return txtMinutes->text();
}

std::optional<int> DlgTestSetting::Minutes() const
{
    bool isNumber = false;
    const double minutes = MinutesText().left(3).replace(u',', u'.').toDouble(&isNumber);
    const double rounded = std::nearbyint(minutes);
    if (!isNumber || !(rounded >= 1))
        return std::nullopt;
    return static_cast<int>(rounded);
}

void DlgTestSetting::SetKeySound(bool on)
{
    chkKeySound->setChecked(on);
}

bool DlgTestSetting::KeySound() const
{
    return chkKeySound->isChecked();
}

void DlgTestSetting::accept()
{
    m_nRetVal = true;
    SkinnedDialog::accept();
}

void DlgTestSetting::reject()
{
    m_nRetVal = false;
    SkinnedDialog::reject();
}
