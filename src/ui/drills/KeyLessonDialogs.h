#pragma once

#include <QString>
#include <functional>
#include <optional>

class DlgEn_KeyLesson;
class QWidget;

/// What the key drills say and ask alike.
namespace KeyLessonDialogs {

/// Said of a lesson that cannot be used.
QString LoadFailureText();

/// Lets the user choose one of the lessons that `fill` puts on the list: its file. Nothing when it was
/// cancelled, or when `drill` was closed meanwhile.
std::optional<QString> ChooseLesson(QWidget *drill, const std::function<void(DlgEn_KeyLesson &)> &fill);

/// Lets the user choose the sound mode; nothing as above.
std::optional<int> ChooseSound(QWidget *drill, int mode);

} // namespace KeyLessonDialogs
