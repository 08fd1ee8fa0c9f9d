#pragma once

#include "ui/widgets/HeldPicture.h"

#include <QPoint>
#include <QWidget>
#include <memory>

class CharacterGlyphs;

/// How key caps look; all caps of a row share one.
struct KeyCapLook
{
    std::shared_ptr<CharacterGlyphs> glyphs;
    QPoint characterOrigin; ///< left end of the printed character's base line in the cap
    HeldPicture normal{QStringLiteral("ICON_KEY_NORMAL")};
    HeldPicture on{QStringLiteral("ICON_KEY_ON")};
};

/// One key to type, drawn as a key cap with its character in capitals.
class KeyCap : public QWidget
{
    Q_OBJECT

public:
    enum class State { Waiting, Expected, Typed };

    /// `look` must outlive the cap.
    KeyCap(int index, KeyCapLook &look, QWidget *parent);

    void Show(char32_t character, State state);
    void SetState(State state);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void DescribeState();

    KeyCapLook &m_look;
    char32_t m_character = 0;
    State m_state = State::Waiting;
};
