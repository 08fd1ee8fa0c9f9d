#include "ui/records/PageTab.h"

#include <QKeyEvent>

void PageTab::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();
    else
        SkinButton::keyPressEvent(event);
}
