#include "core/records/OneLine.h"

#include <algorithm>

QString OneLine(const QString &text, qsizetype longest)
{
    QString line = text.left(longest);
    if (line.size() < text.size()) {
        if (!line.isEmpty() && line.back().isHighSurrogate())
            line.chop(1);
        line += u'…';
    }
    std::replace_if(
        line.begin(), line.end(),
        [](QChar c) {
            const QChar::Category kind = c.category();
            return kind == QChar::Other_Control || kind == QChar::Separator_Line ||
                   kind == QChar::Separator_Paragraph;
        },
        QChar(u' '));
    return line;
}
