#include "ui/drills/frmEn_KeyTrain_Basic.h"

#include "core/drills/FallibleKeyLesson.h"
#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/drills/KeyLessonDialogs.h"
#include "ui/widgets/OnScreenKeyboard.h"
#include "ui/widgets/SkinButton.h"

using namespace Qt::Literals::StringLiterals;

namespace {

DrillFacts JuniorFacts()
{
    return {u"frmEn_KeyTrain_Basic"_s, u"Typing Course \\ Key Drill (Junior)"_s, 0, 0, 154, 192};
}

} // namespace

frmEn_KeyTrain_Basic::frmEn_KeyTrain_Basic(Navigator &navigator, QWidget *owner)
    : KeyCapDrill(JuniorFacts(), MainKeyLessonSettings(), navigator, owner)
    , CXKeyBoard1(new OnScreenKeyboard(this))
{
    UseOnScreenKeys(CXKeyBoard1);
    CXKeyBoard1->SetDisplayOption(0);
}

void frmEn_KeyTrain_Basic::InitLayout()
{
    KeyCapDrill::InitLayout();
    const DrillLayout &layout = Layout();
    PlaceHands(layout.origin + layout.Pick(QPoint(180, 428), QPoint(196, 538)), 0);
    CXKeyBoard1->move(layout.origin + layout.Pick(QPoint(34, 203), QPoint(46, 260)));

    const SkinButton *lesson =
        AddRowButton(u"BtnSelectLesson"_s, tr("Select a &lesson"), u"BTN_SELECTLESSON"_s, 460, 600);
    const SkinButton *toNumpad =
        AddRowButton(u"btnToNumpad"_s, tr("Numeric &keypad"), u"BTN_KEYBOARD_NUMBER"_s, 560, 720);
    const SkinButton *setting = AddRowButton(u"BtnSetting"_s, tr("&Settings"), u"BTN_OPERATION"_s, 660, 840);
    connect(lesson, &SkinButton::clicked, this, &frmEn_KeyTrain_Basic::OnSelectLesson);
    connect(toNumpad, &SkinButton::clicked, this, [this] { LeaveFor(DrillKind::Numpad); });
    connect(setting, &SkinButton::clicked, this, &frmEn_KeyTrain_Basic::OnSetting);
}

KeyCapDrill::FingerHint frmEn_KeyTrain_Basic::HintFor(char32_t character) const
{
    const auto finger = FingerTable::FingerFor(character);
    if (!finger)
        return {};
    return {FingerTable::StripOf(*finger, Layout().mode), FingerTable::NameOf(*finger)};
}

void frmEn_KeyTrain_Basic::FillLessonList(DlgEn_KeyLesson &dialog) const
{
    dialog.ShowKeyLesson();
}

void frmEn_KeyTrain_Basic::OnKeyChecked(bool right)
{
    KeyCapDrill::OnKeyChecked(right);
    if (!right)
        MistakeCount.Add(Session().CurrentCharacter());
}

void frmEn_KeyTrain_Basic::ChangeSettings()
{
    if (const auto mode = KeyLessonDialogs::ChooseSound(this, SoundMode()))
        SetSoundMode(*mode);
}

void frmEn_KeyTrain_Basic::SaveTrainData()
{
    m_mistakeStore.Store(MistakeCount);
    Public_Function::WriteFallibleKeyLesson(MistakeCount.MistakeString());
    StoreKeyLessonPlace(MainKeyLessonSettings(), Place());
}
