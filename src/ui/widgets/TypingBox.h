#pragma once

#include <QWidget>

/// The place where everything is typed: keys and what an input method commits. It lies over the typing
/// position without covering it, shows what is being composed, and keeps the candidate window of the input
/// method below itself. It holds no text: each character is told and gone. Nothing can be pasted, dropped or
/// deleted.
class TypingBox final : public QWidget
{
    Q_OBJECT

public:
    explicit TypingBox(const QString &objectName, QWidget *parent);

    enum class Composition {
        InLine, ///< behind the typing position, where nothing stands yet
        Below   ///< under the line, where the text to type stands behind the typing position
    };

    /// Moves to the left edge of `cell`, in coordinates of the parent; what is composed stays left of
    /// `rightLimit`. While nothing is composed it moves when the event loop runs again, behind the paint of
    /// what was typed.
    void PlaceAt(const QRect &cell, int rightLimit, Composition composition);
    /// Drops what is being composed.
    void CancelComposition();

    QString Preedit() const { return m_preedit; }
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// One character; several that come together are told one by one.
    void CharacterTyped(const QString &unit);
    /// Any key press, before what it does.
    void KeyPressed();
    void BackspacePressed();
    void EnterPressed();
    /// A key was let go whose press was not taken by the input method (to choose a candidate, say).
    void EnterReleased();
    void SpaceReleased();
    void FocusChanged(bool focused);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    void Tell(const QString &text);
    void Place();
    void PlaceSoon();
    QRect PreeditRect() const;

    QRect m_cell;
    int m_rightLimit = 0;
    Composition m_composition = Composition::InLine;
    QString m_preedit;
    int m_preeditCursor = 0;
    bool m_enterDown = false;
    bool m_spaceDown = false;
    bool m_placingSoon = false;
};
