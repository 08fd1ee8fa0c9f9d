#pragma once

#include <QAbstractButton>
#include <QPolygon>

/// The hot region of one tab of a drill's tab strip. The skin has drawn the tab; this only catches the mouse.
/// It takes a click that begins and ends inside it.
class DrillTab final : public QAbstractButton
{
    Q_OBJECT

public:
    /// `own`: the tab of the window itself, which leads nowhere. `corners` relative to the parent.
    DrillTab(int index, bool own, const QPolygon &corners, QWidget *parent);

protected:
    bool hitButton(const QPoint &position) const override;
    void nextCheckState() override {}
    void paintEvent(QPaintEvent *event) override;

private:
    QPolygon m_corners;
};
