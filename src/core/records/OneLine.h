#pragma once

#include <QString>

/// A text from a file as one line of at most `longest` code units and an ellipsis: a control character or a
/// line end would break the line, and laying out what nobody can see takes time.
QString OneLine(const QString &text, qsizetype longest);
