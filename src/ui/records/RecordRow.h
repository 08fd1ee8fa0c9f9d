#pragma once

#include "ui/widgets/MarkBox.h"

struct TrainingRecord;

/// A record in the list of its group: number, text and date beside the box.
class RecordRow final : public MarkBox
{
    Q_OBJECT

public:
    RecordRow(const QString &objectName, QWidget *parent);

    /// `number` counts the group's records from 1.
    void ShowRecord(int number, const TrainingRecord &record);

protected:
    void PaintContent(QPainter &painter) override;

private:
    QString m_number;
    QString m_text;
    QString m_date;
};
