#pragma once

#include "ui/widgets/HeldGround.h"
#include "ui/widgets/HeldPicture.h"

#include <QWidget>

/// The progress bar picture: the empty bar with the filled part over it. Its size is the picture's.
class ProgressBox : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressBox(QWidget *parent);

    void SetPercent(int percent);
    int Percent() const { return m_percent; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_percent = 0;
    HeldGround m_ground{this};
    HeldPicture m_empty{QStringLiteral("PROGRESSBAR_BLUE")};
    HeldPicture m_full{QStringLiteral("PROGRESSBAR_GREEN")};
};
