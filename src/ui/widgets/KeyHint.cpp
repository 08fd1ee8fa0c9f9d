#include "ui/widgets/KeyHint.h"

#include <QAbstractButton>

using namespace Qt::Literals::StringLiterals;

void Public_Function::ShowKey(QAbstractButton *button)
{
    ShowKey(button, button->shortcut().toString(QKeySequence::NativeText));
}

void Public_Function::ShowKey(QAbstractButton *button, const QString &key)
{
    const QString name = button->accessibleName();
    button->setToolTip(key.isEmpty() ? name : u"%1 (%2)"_s.arg(name, key));
    button->setAccessibleDescription(key);
}
