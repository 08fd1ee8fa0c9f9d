#pragma once

#include <QObject>
#include <functional>

/// Calls something once, when a window has been painted for the first time; also when that does not come in
/// time, as for a window that lies below others.
class FirstPaint : public QObject
{
public:
    FirstPaint(QObject *window, std::function<void()> then);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Finish();

    std::function<void()> m_then;
};
