#pragma once

#include <QCheckBox>

/// A check box of a list of many: it is clicked anywhere, and what it stands for is painted beside its box.
class MarkBox : public QCheckBox
{
    Q_OBJECT

public:
    static constexpr int BoxSize = 13;
    /// Between the edges of the widget, where the focus shows, and the box.
    static constexpr int Margin = 3;

    MarkBox(const QString &objectName, QWidget *parent);

    /// Puts the box below the rest, in the middle, rather than at the left.
    void SetBoxBelow() { m_boxBelow = true; }
    /// What is painted beside the box, cut where it does not fit.
    void SetContent(const QString &content, qreal points);

protected:
    virtual void PaintContent(QPainter &painter);
    void paintEvent(QPaintEvent *event) override;
    bool hitButton(const QPoint &position) const override { return rect().contains(position); }

private:
    QRect BoxRect() const;

    bool m_boxBelow = false;
    QString m_content;
};
