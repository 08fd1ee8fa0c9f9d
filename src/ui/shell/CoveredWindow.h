#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Lets go of the image of a window that another one covers, unless it is the active one: megabytes that
/// nobody sees. The window paints nothing until it shows again, gets the focus or this ends, and then all of
/// itself.
class CoveredWindow final : public QObject
{
public:
    explicit CoveredWindow(QWidget *window);
    ~CoveredWindow() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ShowAgain();

    QPointer<QWidget> m_window;
};
