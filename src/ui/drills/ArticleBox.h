#pragma once

#include <QWidget>
#include <vector>

class TypingLine;

/// A white box of lines of text, which cannot be edited. For those who cannot see it, it is one text, and it
/// says which character is lit.
class ArticleBox final : public QWidget
{
    Q_OBJECT

public:
    /// `rows` lines of equal height share the box.
    ArticleBox(const QString &objectName, const QString &accessibleName, const QRect &place, int rows,
               const QFont &font, QWidget *parent);

    TypingLine *Row(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    /// The lines as they are shown, each with a line feed after it but the last.
    QString Text() const;
    /// What is to be typed next, empty when nothing in this box is.
    QString NextText() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::vector<TypingLine *> m_rows;
    QColor m_paper;
};
