#include "ui/drills/frmEn_NumPad.h"

#include "core/drills/KeypadKeys.h"
#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/widgets/OnScreenKeypad.h"
#include "ui/widgets/SkinButton.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

DrillFacts KeypadFacts()
{
    return {u"frmEn_NumPad"_s, u"Keyboard Training\\ Number Keyboard"_s, 0, 0, 154, 192};
}

/// A key of the keypad that moves or deletes instead of typing.
bool IsKeypadNavigation(const QKeyEvent &event)
{
    const KeyStroke stroke = KeyStrokeOf(event);
    if (!stroke.keypad && !KeypadKeys::KeyWithCode(stroke.keyCode))
        return false;
    switch (event.key()) {
    case Qt::Key_Insert:
    case Qt::Key_Delete:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Clear: // the 5
        return true;
    default:
        return false;
    }
}

} // namespace

frmEn_NumPad::frmEn_NumPad(Navigator &navigator, QWidget *owner)
    : KeyCapDrill(KeypadFacts(), KeypadLessonSettings(), navigator, owner)
    , XNumBoard1(new OnScreenKeypad(this))
{
    UseOnScreenKeys(XNumBoard1);
}

void frmEn_NumPad::InitLayout()
{
    KeyCapDrill::InitLayout();
    const DrillLayout &layout = Layout();
    PlaceHands(layout.origin + layout.Pick(QPoint(300, 428), QPoint(370, 538)),
               KeypadKeys::RightHandOffset(layout.mode));
    XNumBoard1->move(layout.origin + layout.Pick(QPoint(284, 205), QPoint(370, 260)));

    const SkinButton *lesson =
        AddRowButton(u"BtnSelectLesson"_s, tr("Select a &lesson"), u"BTN_SELECTLESSON"_s, 532, 680);
    const SkinButton *toStandard =
        AddRowButton(u"btnToStandardKB"_s, tr("Main &keyboard"), u"BTN_KEYBOARD_STAND"_s, 644, 830);
    connect(lesson, &SkinButton::clicked, this, &frmEn_NumPad::OnSelectLesson);
    connect(toStandard, &SkinButton::clicked, this, [this] { LeaveFor(DrillKind::KeyJunior); });
}

void frmEn_NumPad::DrillKeyDown(QKeyEvent *event)
{
    // With Shift held the keypad moves although Num Lock is on.
    if (CanType() && IsKeypadNavigation(*event) && !event->modifiers().testFlag(Qt::ShiftModifier))
        ShowHint(tr("Num Lock is off: press Num Lock"));
    KeyCapDrill::DrillKeyDown(event);
}

bool frmEn_NumPad::IsSwallowed(const QKeyEvent &event) const
{
    return IsKeypadNavigation(event);
}

KeyCapDrill::FingerHint frmEn_NumPad::HintFor(char32_t character) const
{
    const auto key = KeypadKeys::KeyFor(character);
    if (!key)
        return {};
    const Finger finger = KeypadKeys::Keys().at(*key).finger;
    return {KeypadKeys::StripOf(finger, Layout().mode), FingerTable::NameOf(finger)};
}

bool frmEn_NumPad::HasPromptKey(char32_t character) const
{
    return KeypadKeys::KeyFor(character).has_value();
}

void frmEn_NumPad::FillLessonList(DlgEn_KeyLesson &dialog) const
{
    dialog.ShowNumpadLesson();
}

void frmEn_NumPad::SaveTrainData()
{
    StoreKeyLessonPlace(KeypadLessonSettings(), Place());
}
