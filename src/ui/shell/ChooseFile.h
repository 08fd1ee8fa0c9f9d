#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace Public_Function {

enum class FilePurpose { Open, Save };

/// Asks the person for a text file: an existing one to open, or the name of one to save to (".txt" is added
/// to a name without a suffix; the dialog asks before it overwrites). The product path, or an empty text
/// after a cancel.
QString ChooseTextFile(FilePurpose purpose, QWidget *owner);

/// Answers in place of the person, for tests, with a product path or an empty text; empty: the person
/// answers.
void SetFileAnswerer(std::function<QString(FilePurpose)> answerer);

} // namespace Public_Function
