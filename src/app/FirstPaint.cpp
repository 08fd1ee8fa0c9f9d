#include "app/FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <utility>

namespace {

constexpr std::chrono::milliseconds Patience{500};

} // namespace

FirstPaint::FirstPaint(QObject *window, std::function<void()> then)
    : m_then(std::move(then))
{
    window->installEventFilter(this);
    QTimer::singleShot(Patience, this, [this] { Finish(); });
}

bool FirstPaint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // What was painted reaches the screen before the event loop's next turn.
        QTimer::singleShot(0, this, [this] { Finish(); });
    }
    return false;
}

void FirstPaint::Finish()
{
    if (const auto then = std::exchange(m_then, nullptr))
        then();
}
