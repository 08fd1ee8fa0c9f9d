#pragma once

#include <QPixmap>
#include <functional>

class QPainter;
class QWidget;

/// What a window looks like below one of its widgets, painted once and kept. With it the widget is opaque:
/// when it changes nothing but itself is painted, and the window's own large pictures need not be held for
/// it.
class HeldGround
{
public:
    using Addition = std::function<void(QPainter &painter)>;

    /// `addition` paints over the ground what never changes on the widget, so that it is kept as well.
    explicit HeldGround(QWidget *widget, Addition addition = {});

    /// Copies the part of the ground that lies at `rect`, in pixels of the widget.
    void Paint(QPainter &painter, const QRect &rect);
    /// What the addition paints is another picture now.
    void Renew() { m_pixmap = {}; }
    /// Windows look otherwise now: all grounds are painted anew when they are needed next.
    static void RenewAll();

private:
    void Take();

    QWidget *m_widget;
    Addition m_addition;
    QPixmap m_pixmap;
    QRect m_place;
    int m_generation = 0;
};
