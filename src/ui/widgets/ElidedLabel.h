#pragma once

#include <QLabel>

/// A label of one line that cuts a long text, as a path, in the middle and shows all of it as its tooltip.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    ElidedLabel(const QString &objectName, const QString &accessibleName, QWidget *parent);

    void SetText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};
