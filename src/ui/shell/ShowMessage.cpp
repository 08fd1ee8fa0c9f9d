#include "ui/shell/ShowMessage.h"

#include <QApplication>

namespace {

std::function<qint16(const Public_Function::Message &)> &MessageAnswerer()
{
    static std::function<qint16(const Public_Function::Message &)> answerer;
    return answerer;
}

/// A window in front of `owner` that it owns, or null.
QWidget *WindowOver(const QWidget *owner)
{
    const QWidgetList children = owner->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        const bool isDialogOrWindow = child->windowType() == Qt::Dialog || child->windowType() == Qt::Window;
        if (isDialogOrWindow && child->isVisible())
            return child;
    }
    return nullptr;
}

/// The window in front. Just after one was shown or closed the desktop has not said yet which is active: the
/// one that it last named may be covered, and a message that belonged to it would be covered too.
QWidget *FrontWindow()
{
    QWidget *front = QApplication::activeModalWidget();
    if (!front)
        front = QApplication::activeWindow();
    if (!front) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->isVisible() && !window->parentWidget() && window->windowType() == Qt::Window)
                front = window;
        }
    }
    while (QWidget *over = front ? WindowOver(front) : nullptr)
        front = over;
    return front;
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
    Dlg_MessageBox dialog(FrontWindow());
    dialog.CreateMessage(text, caption, icon, buttons);
    dialog.exec();
    return dialog.GetReturnValue() ? MessageYes : MessageNo;
}
