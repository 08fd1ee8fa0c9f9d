#pragma once

#include <QTextLayout>
#include <QWidget>
#include <string>
#include <vector>

/// One line of text that is typed, or typed over, character by character. It repaints only what a key
/// changes. A line wider than the box shows the part around the typing position, and only that part is laid
/// out: a line of any length costs no more per key than a short one.
///
/// Positions count characters, one outside the basic plane being one.
class TypingLine final : public QWidget
{
    Q_OBJECT

public:
    /// Black, grey, red.
    enum class Look : quint8 { Untyped, Right, Wrong };

    TypingLine(const QString &objectName, const QString &accessibleName, QWidget *parent);

    /// The display font of the program made so that no character moves when another one changes its colour.
    static QFont TextFont(int scaledPoints);
    /// How many letters "a" the box holds beside one another.
    int Columns() const;
    /// Whether the box shows all of the text at once.
    bool Fits(const std::u32string &text) const;

    /// Shows another text from its start, without a typing position. What has no look is untyped.
    void SetLine(std::u32string text, std::vector<Look> looks = {});
    /// Replaces the character at `position`, or adds one where that is the line's end.
    void SetCharacter(int position, char32_t character, Look look);
    void Truncate(int length);
    /// The place that the view follows, 0 to Length(), or -1 for none; `marked` lights the character there.
    void SetPosition(int position, bool marked);
    /// Draws a caret before the position.
    void SetCaret(bool shown);

    int Length() const { return static_cast<int>(m_text.size()); }
    QString Text() const { return QString::fromStdU32String(m_text); }
    Look LookAt(int position) const { return m_looks[static_cast<std::size_t>(position)]; }
    /// The lit position, or -1.
    int Mark() const { return m_marked ? m_position : -1; }
    /// Where a character stands in the widget, as high as it; at Length() the empty place behind the last
    /// one. Null for what is not laid out.
    QRect CellRect(int position);
    /// The part that is laid out, as it is shown.
    QString ShownText();
    /// How many characters were laid out since the widget was made.
    qint64 LaidOutSoFar() const { return m_laidOutSoFar; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void EnsureLayout();
    QList<QTextLayout::FormatRange> Colours() const;
    int ShownEnd() const { return m_first + static_cast<int>(m_offsets.size()) - 1; }
    qreal LeftOf(int position) const;
    int CellMargin() const;
    int Overhang() const;
    void UpdateCells(const QRect &cells);
    void UpdateFrom(int left);
    void UpdatePlace();
    void Follow();

    std::u32string m_text;
    std::vector<Look> m_looks;
    int m_position = -1;
    bool m_marked = false;
    bool m_caret = false;

    QTextLayout m_layout;
    int m_first = 0;            ///< the first character that is laid out
    std::vector<int> m_offsets; ///< of the characters in the layout's text, and of its end
    bool m_stale = true;
    qint64 m_laidOutSoFar = 0;
    QColor m_paper;
    QColor m_lit;
};
