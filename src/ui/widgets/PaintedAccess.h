#pragma once

#include <QAccessible>

class QWidget;

namespace Public_Function {

/// Tells screen readers what a widget that paints itself is: a picture, a chart, a place to type... To be
/// called before the widget has a name, with which it becomes known to them. Name and description stay those
/// of the widget; the description of a progress bar begins with its percent, which are its value.
void SetAccessibleRole(QWidget *widget, QAccessible::Role role);

} // namespace Public_Function
