#pragma once

#include <QString>
#include <QtGlobal>

class QLabel;
class QPainter;
class QPoint;
class ProgressBox;

/// The status items that every drill and test shows in the same form, the window titles, and the font sizes.
namespace Public_Function {

/// h:mm:ss, tooltip "time:5minutes7seconds". The hour wraps at 24.
void ShowTimeText(QLabel *label, float seconds);
/// "120KPM" with `keys`, else "120WPM", with the matching tooltip.
void ShowSpeedText(QLabel *label, const QString &speed, bool keys);
/// "96%" as caption and tooltip.
void ShowRateText(QLabel *label, int percent);
/// Paints the progress bar, 0 to 100, and sets its tooltip ("40 %").
void ShowProgress(ProgressBox *box, int percent);

/// Fills `FontSizeTable` for the screen's logical dots per inch, so that the texts keep their size in pixels.
void InitFontSizes(qreal dotsPerInch);

/// Prints one line of text whose top left corner is at `position`, in the painter's font and pen.
void PrintScaledText(QPainter &painter, const QPoint &position, const QString &text);

/// Prints a full-screen window's title in white; puts "Quorvex -- " in front of `title` unless it is there.
void DrawWindowTitle(QPainter &painter, int screenMode, QString &title);

} // namespace Public_Function
