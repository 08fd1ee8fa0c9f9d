#pragma once

#include "core/drills/FingerTable.h"
#include "ui/widgets/HeldGround.h"
#include "ui/widgets/HeldPicture.h"

#include <QWidget>

/// The picture of the hands, with the strip of the finger to use lit.
class HandsPicture : public QWidget
{
    Q_OBJECT

public:
    explicit HandsPicture(QWidget *parent);

    /// Shows the pictures only from this column on, in pixels: the right hand alone. Strips keep their
    /// offsets into the whole picture.
    void SetBaseOffset(int baseOffset);

    /// Lights a strip instead of the one before; an empty strip lights none. `finger` is what a person calls
    /// it, empty for none.
    void SetActiveFinger(const FingerStrip &strip, const QString &finger);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect StripRect() const;
    void PaintUnlit(QPainter &painter);

    FingerStrip m_strip;
    int m_baseOffset = 0;
    HeldGround m_unlit;
    HeldPicture m_plain{QStringLiteral("HAND_CLEAR")};
    HeldPicture m_lit{QStringLiteral("HAND_ON")};
};
