#pragma once

#include "ui/widgets/ChartData.h"

#include <QWidget>

/// A chart, on a white panel of its own or on what its parent paints. The value under the mouse is its
/// tooltip; all are its accessible description.
class Chart : public QWidget
{
    Q_OBJECT

public:
    Chart(const QString &objectName, const QString &accessibleName, QWidget *parent);

    void SetData(const ChartData &chart);
    /// The size of all its texts, in points at 96 dots per inch.
    void SetTextSize(qreal points);
    void SetPanel(bool panel) { m_panel = panel; }

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    ChartData m_data;
    QFont m_textFont;
    bool m_panel = true;
};
