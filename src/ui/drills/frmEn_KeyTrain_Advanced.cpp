#include "ui/drills/frmEn_KeyTrain_Advanced.h"

#include "core/drills/KeyLesson.h"
#include "core/drills/KeyLessonPlace.h"
#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/drills/KeyLessonDialogs.h"
#include "ui/skin/StatusTexts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

DrillFacts SeniorFacts()
{
    return {u"frmEn_KeyTrain_Advanced"_s, u"Typing Course \\ Key Drill (Senior)"_s, 1, 1, 230, 285};
}

constexpr LineDrillPlaces SeniorPlaces{
    {{52, 100, 666, 40}, {52, 150, 666, 40}, {34, 280}, 1, 4},
    {{66, 130, 858, 50}, {66, 190, 858, 50}, {46, 356}, 0, 4},
};

} // namespace

frmEn_KeyTrain_Advanced::frmEn_KeyTrain_Advanced(Navigator &navigator, QWidget *owner)
    : LineDrill(SeniorFacts(), SeniorPlaces, navigator, owner)
{
}

bool frmEn_KeyTrain_Advanced::InitKeyData(const QString &fileName)
{
    const Public_Function::KeyLessonResult result = Public_Function::LoadKeyLesson(fileName);
    if (result.error == Public_Function::LessonError::Missing)
        return false;
    const QStringList groups = result.lesson.groups;
    Session().SetItems(static_cast<int>(groups.size()), [groups](int index) { return groups.at(index); });
    if (!groups.isEmpty() || !result.lesson.title.isEmpty())
        ShowLessonTitle(result.lesson.title);
    return !groups.isEmpty();
}

void frmEn_KeyTrain_Advanced::LoadTrainData()
{
    const KeyLessonPlace place = LoadKeyLessonPlace(MainKeyLessonSettings());
    m_lessonFile = place.lessonFile;
    SetSoundMode(place.soundMode);
    const bool loaded = InitKeyData(m_lessonFile);
    Session().BeginAt(place.itemIndex);
    if (!loaded) {
        ReportLoadFailure(KeyLessonDialogs::LoadFailureText());
        return;
    }
    UpdateStatus(true);
    ShowLine();
}

void frmEn_KeyTrain_Advanced::SelectLesson()
{
    const auto file = KeyLessonDialogs::ChooseLesson(
        this, &DlgEn_KeyLesson::ShowKeyLesson, [this](const QString &lesson) { return InitKeyData(lesson); });
    if (!file)
        return;
    m_lessonFile = *file;
    RestartLesson();
}

void frmEn_KeyTrain_Advanced::ChangeSettings()
{
    if (const auto mode = KeyLessonDialogs::ChooseSound(this, SoundMode()))
        SetSoundMode(*mode);
}

void frmEn_KeyTrain_Advanced::UpdateStatus(bool reset)
{
    LineDrill::UpdateStatus(reset);
    if (reset)
        Public_Function::ShowSpeedText(labSpeed, u"0"_s, true);
}

void frmEn_KeyTrain_Advanced::OnKeyChecked(bool right)
{
    if (!right)
        MistakeCount.Add(Session().Judged());
}

QString frmEn_KeyTrain_Advanced::InputMethodHint(const QString &name) const
{
    return u"The current input method"_s + name;
}

void frmEn_KeyTrain_Advanced::SaveTrainData()
{
    m_mistakeStore.Store(MistakeCount);
    StoreKeyLessonPlace(MainKeyLessonSettings(), {m_lessonFile, Session().CurrentItem(), SoundMode()});
}
