#include "ui/records/RecordRow.h"

#include "core/records/TrainingHistory.h"
#include "ui/records/ManageLayout.h"
#include "ui/skin/Fonts.h"

#include <QLocale>
#include <QPainter>

namespace {

/// From a place on the page to one in the row, whose box is at its place with the margin before it.
constexpr int InRow(int pageLeft)
{
    return pageLeft - ManageLayout::rowBoxLeft + MarkBox::Margin;
}

} // namespace

RecordRow::RecordRow(const QString &objectName, QWidget *parent)
    : MarkBox(objectName, parent)
{
    setFont(Public_Function::InterfaceFont(9));
}

void RecordRow::ShowRecord(int number, const TrainingRecord &record)
{
    m_number = QString::number(number);
    m_text = TrainingRecordText(record);
    m_date = QLocale::system().toString(record.Date, QLocale::ShortFormat);
    setAccessibleName(m_number + u' ' + m_text + u' ' + m_date);
    const int room = ManageLayout::rowDateLeft - ManageLayout::rowTextLeft;
    setToolTip(fontMetrics().horizontalAdvance(m_text) > room ? m_text : QString());
    update();
}

void RecordRow::PaintContent(QPainter &painter)
{
    constexpr int gap = 6;
    const auto cell = [this](int left, int right) { return QRect(InRow(left), 0, right - left, height()); };
    const auto print = [&painter](const QRect &place, const QString &text) {
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    };
    painter.setPen(QColor(40, 46, 58));
    print(cell(ManageLayout::rowTextLeft, ManageLayout::rowDateLeft - gap), m_text);
    print(cell(ManageLayout::rowDateLeft, ManageLayout::rowRight - gap), m_date);

    // Numbers of many digits are small rather than cut.
    const QRect numberCell = cell(ManageLayout::rowNumberLeft, ManageLayout::rowTextLeft - 2);
    const int width = fontMetrics().horizontalAdvance(m_number);
    if (width > numberCell.width()) {
        QFont small = font();
        small.setPixelSize(small.pixelSize() * numberCell.width() / width);
        painter.setFont(small);
    }
    painter.setPen(QColor(90, 98, 116));
    painter.drawText(numberCell, Qt::AlignLeft | Qt::AlignVCenter, m_number);
}
