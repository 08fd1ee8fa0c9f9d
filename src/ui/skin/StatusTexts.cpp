#include "ui/skin/StatusTexts.h"

#include "core/shell/Public_Define.h"
#include "ui/skin/Fonts.h"
#include "ui/widgets/ProgressBox.h"

#include <QLabel>
#include <QPainter>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A label that already shows the text is left alone, so that nothing is laid out or painted anew.
void ShowText(QLabel *label, const QString &caption, const QString &toolTip)
{
    if (label->text() != caption)
        label->setText(caption);
    if (label->toolTip() != toolTip)
        label->setToolTip(toolTip);
}

} // namespace

void Public_Function::ShowTimeText(QLabel *label, float seconds)
{
    const auto total = static_cast<qint64>(std::nearbyint(qMax(0.0F, seconds)));
    const qint64 h = total / 3600;
    const qint64 m = total % 3600 / 60;
    const qint64 s = total % 60;
    const QString caption =
        u"%1:%2:%3"_s.arg(h % 24).arg(m, 2, 10, QLatin1Char('0')).arg(s, 2, 10, QLatin1Char('0'));
    QString toolTip = u"time:"_s;
    if (h >= 1)
        toolTip += QString::number(h) + "Hour"_L1;
    if (m >= 1)
        toolTip += QString::number(m) + "minutes"_L1;
    if (s >= 1)
        toolTip += QString::number(s) + "seconds"_L1;
    ShowText(label, caption, toolTip);
}

void Public_Function::ShowSpeedText(QLabel *label, const QString &speed, bool keys)
{
    if (keys)
        ShowText(label, speed + "KPM"_L1, "per minute "_L1 + speed + " keys"_L1);
    else
        ShowText(label, speed + "WPM"_L1, "per minute  "_L1 + speed + " words"_L1);
}

void Public_Function::ShowRateText(QLabel *label, int percent)
{
    const QString text = QString::number(percent) + QLatin1Char('%');
    ShowText(label, text, text);
}

void Public_Function::ShowProgress(ProgressBox *box, int percent)
{
    box->SetPercent(percent);
}

void Public_Function::InitFontSizes(qreal dotsPerInch)
{
    constexpr std::array<int, 8> at96{24, 20, 20, 16, 32, 24, 12, 10};
    const double factor = dotsPerInch > 0 ? 96.0 / dotsPerInch : 1.0;
    for (std::size_t i = 0; i < at96.size(); ++i)
        Shared().FontSizeTable[i] = static_cast<qint16>(std::nearbyint(at96[i] * factor));
}

void Public_Function::PrintScaledText(QPainter &painter, const QPoint &position, const QString &text)
{
    painter.drawText(position + QPoint(0, painter.fontMetrics().ascent()), text);
}

void Public_Function::DrawWindowTitle(QPainter &painter, int screenMode, QString &title)
{
    constexpr auto prefix = "Quorvex -- "_L1;
    if (!title.startsWith(prefix))
        title.prepend(prefix);
    painter.setFont(InterfaceFont(screenMode == 1 ? 12 : 13, true));
    painter.setPen(Qt::white);
    PrintScaledText(painter, screenMode == 1 ? QPoint(15, 4) : QPoint(20, 6), title);
}
