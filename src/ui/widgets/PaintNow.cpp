#include "ui/widgets/PaintNow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <thread>

void Public_Function::PaintNow(QWidget *widget)
{
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(widget->window(), &request);
    // The display server may be waiting for this processor.
    std::this_thread::yield();
}
