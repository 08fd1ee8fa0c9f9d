#pragma once

#include <QAbstractButton>
#include <QPolygon>

/// The hot region of one tab of a tab strip. The skin has drawn the tab; this only catches the mouse. It
/// takes a click that begins and ends inside it.
class TabRegion final : public QAbstractButton
{
    Q_OBJECT

public:
    /// `corners` relative to the parent.
    TabRegion(const QString &objectName, const QString &accessibleName, const QPolygon &corners,
              QWidget *parent);

    /// `number` from 1: that digit together with Alt chooses the tab.
    void SetNumber(int number);
    /// Whether it is the tab of what the window shows, which leads nowhere.
    void SetOwn(bool own);

protected:
    bool hitButton(const QPoint &position) const override;
    void nextCheckState() override {}
    void paintEvent(QPaintEvent *event) override;

private:
    QPolygon m_corners;
};
