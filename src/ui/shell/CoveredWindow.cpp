#include "ui/shell/CoveredWindow.h"

#include <QBackingStore>
#include <QEvent>
#include <QWidget>
#include <QWindow>

CoveredWindow::CoveredWindow(QWidget *window)
    : m_window(window)
{
    const bool isShown = window->isVisible() && window->windowHandle();
    QBackingStore *image = isShown && !window->isActiveWindow() ? window->backingStore() : nullptr;
    if (!image)
        return;
    window->installEventFilter(this);
    window->windowHandle()->installEventFilter(this);
    // Else what is left of the image would be shown when the display asks for it.
    window->setUpdatesEnabled(false);
    image->resize(QSize(1, 1));
}

CoveredWindow::~CoveredWindow()
{
    ShowAgain();
}

bool CoveredWindow::eventFilter(QObject *watched, QEvent *event)
{
    // Where a window that counts as exposed is uncovered, Qt asks it to paint.
    const bool isUncovered = event->type() == QEvent::Expose || event->type() == QEvent::Paint;
    if (event->type() == QEvent::WindowActivate || (watched->isWindowType() && isUncovered))
        ShowAgain();
    return QObject::eventFilter(watched, event);
}

void CoveredWindow::ShowAgain()
{
    if (m_window && !m_window->updatesEnabled())
        m_window->setUpdatesEnabled(true);
}
