#include "ui/drills/KeyLessonDialogs.h"

#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/drills/DlgEn_KeyTrainSetting.h"
#include "ui/shell/ShowMessage.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

QString KeyLessonDialogs::LoadFailureText()
{
    return u"Thesaurus data initialization failure\nPlease choose other courses."_s;
}

std::optional<QString> KeyLessonDialogs::ChooseLesson(QWidget *drill,
                                                      const std::function<void(DlgEn_KeyLesson &)> &fill,
                                                      const std::function<bool(const QString &)> &load)
{
    DlgEn_KeyLesson dialog(drill);
    fill(dialog);
    const QPointer<QWidget> self(drill);
    dialog.exec();
    if (!self || dialog.ReturnValue() != DialogAnswer::Confirmed)
        return std::nullopt;
    if (load(dialog.LessonFile()))
        return dialog.LessonFile();
    Public_Function::ShowMessage(LoadFailureText(), u"Quorvex"_s, MessageIcon::Information,
                                 MessageButtons::Ok);
    return std::nullopt;
}

std::optional<int> KeyLessonDialogs::ChooseSound(QWidget *drill, int mode)
{
    DlgEn_KeyTrainSetting dialog(drill);
    dialog.SetSoundEffect(mode);
    const QPointer<QWidget> self(drill);
    dialog.exec();
    if (!self || dialog.ReturnValue() != DialogAnswer::Confirmed)
        return std::nullopt;
    return dialog.SoundEffect();
}
