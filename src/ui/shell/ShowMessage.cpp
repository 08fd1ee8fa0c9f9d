#include "ui/shell/ShowMessage.h"

#include <QApplication>

namespace {

std::function<qint16(const Public_Function::Message &)> &MessageAnswerer()
{
    static std::function<qint16(const Public_Function::Message &)> answerer;
    return answerer;
}

} // namespace

void Public_Function::SetMessageAnswerer(std::function<qint16(const Message &)> answerer)
{
    MessageAnswerer() = std::move(answerer);
}

qint16 Public_Function::ShowMessage(const QString &text, const QString &caption, MessageIcon icon,
                                    MessageButtons buttons)
{
    if (MessageAnswerer())
        return MessageAnswerer()({text, caption, icon, buttons});
    QWidget *owner = QApplication::activeModalWidget();
    if (!owner)
        owner = QApplication::activeWindow();
    Dlg_MessageBox dialog(owner);
    dialog.CreateMessage(text, caption, icon, buttons);
    dialog.exec();
    return dialog.GetReturnValue() ? MessageYes : MessageNo;
}
