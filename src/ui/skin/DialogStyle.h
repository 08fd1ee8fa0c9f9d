#pragma once

#include <QColor>
#include <QList>

class QAbstractScrollArea;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QString;

/// The looks of dialogs where the skin has no picture. What has the keyboard focus has a dark, thicker
/// border.
namespace Public_Function {

void StyleDialogList(QListWidget *list, const QColor &background = Qt::white);
/// A box to type a line in.
void StyleDialogBox(QLineEdit *box);
/// A box to read in.
void StyleDialogPage(QAbstractScrollArea *page);
/// Option buttons in a frame.
void StyleDialogGroup(QGroupBox *group);
/// A text in the colours of the other controls; `points` at 96 dots per inch.
void StyleDialogLabel(QLabel *label, qreal points = 10, bool bold = false);
/// An option button outside a frame.
void StyleDialogOption(QRadioButton *option);
/// Tab leads into these options at the one that is chosen, also before any of them had the focus.
void TabToChosen(const QList<QRadioButton *> &options);
/// A button for which the skin has no picture.
void StyleDialogButton(QPushButton *button);
void StyleDialogScrollBar(QScrollBar *bar);
/// The style sheets of a drop-down box and of a check box; what a style sheet cannot draw, ChoiceBox and
/// TickBox add.
QString DialogChoiceStyle();
QString DialogTickStyle();

} // namespace Public_Function
