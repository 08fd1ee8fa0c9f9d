#pragma once

#include <QColor>

class QAbstractScrollArea;
class QGroupBox;
class QLineEdit;
class QListWidget;

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

} // namespace Public_Function
