#pragma once

#include "ui/shell/Dlg_MessageBox.h"

#include <functional>

namespace Public_Function {

/// The answers of ShowMessage.
inline constexpr qint16 MessageYes = 6;
inline constexpr qint16 MessageNo = 7;

/// Shows a message over the window in front and waits for the answer: 6 after OK, Yes or Enter, 7 after No,
/// Escape or the title bar's close button.
qint16 ShowMessage(const QString &text, const QString &caption, MessageIcon icon, MessageButtons buttons);

struct Message
{
    QString text;
    QString caption;
    MessageIcon icon;
    MessageButtons buttons;
};

/// Answers messages in place of the person, for tests; empty: the person answers.
void SetMessageAnswerer(std::function<qint16(const Message &)> answerer);

} // namespace Public_Function
