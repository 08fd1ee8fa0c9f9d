#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

class CharacterGlyphs;

/// One line of text that is typed, or typed over, character by character. It repaints only what a key
/// changes. A line wider than the box shows the part around the typing position, and only that part is
/// placed: a line of any length costs no more per key than a short one.
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
    /// one. Null for what is not placed.
    QRect CellRect(int position);
    /// The part that is placed, as it is shown.
    QString ShownText();
    /// How many characters were placed since the widget was made.
    qint64 PlacedSoFar() const { return m_placedSoFar; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void TakeFont();
    void PlaceCharacters();
    void PlaceAdded();
    char32_t CharacterAt(int position) const { return m_text[static_cast<std::size_t>(position)]; }
    int ShownEnd() const { return m_first + static_cast<int>(m_lefts.size()) - 1; }
    /// Of a shown character, or of the end of the shown part.
    qreal LeftOf(int position) const { return m_lefts[static_cast<std::size_t>(position - m_first)]; }
    QRect TextRect(int position);
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

    std::shared_ptr<CharacterGlyphs> m_glyphs;
    int m_letterWidth = 0;
    int m_ascent = 0;
    int m_descent = 0;
    int m_first = 0;               ///< the first character that is placed
    std::vector<qreal> m_lefts{0}; ///< left ends of the placed characters, and the right end of the last one
    bool m_stale = true;
    qint64 m_placedSoFar = 0;
    QRect m_painted;      ///< by the last key
    QBasicTimer m_settle; ///< runs out when the display has shown it
    QColor m_paper;
    QColor m_lit;
};
