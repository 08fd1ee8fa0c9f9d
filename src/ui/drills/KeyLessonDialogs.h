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

/// Lets the user choose one of the lessons that `fill` puts on the list, and loads its file with `load`; says
/// so where that fails. The file that was loaded; nothing when that failed, when it was cancelled, or when
/// `drill` was closed meanwhile.
std::optional<QString> ChooseLesson(QWidget *drill, const std::function<void(DlgEn_KeyLesson &)> &fill,
                                    const std::function<bool(const QString &)> &load);

/// Lets the user choose the sound mode; nothing when it was cancelled or
/// `drill` was closed meanwhile.
std::optional<int> ChooseSound(QWidget *drill, int mode);

} // namespace KeyLessonDialogs
