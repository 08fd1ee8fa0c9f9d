#pragma once

#include "ui/widgets/OnScreenKeys.h"

/// The on-screen numeric keypad, called `XNumBoard1`. Only keys of the keypad itself sink on it: a digit of
/// the main keyboard does not.
class OnScreenKeypad final : public OnScreenKeys
{
    Q_OBJECT

public:
    explicit OnScreenKeypad(QWidget *parent);

    void SetSizeSwitch(bool large) override;

protected:
    int KeyCount() const override;
    QRect KeyRect(int key) const override;
    QString KeyName(int key) const override;
    QString FingerName(int key) const override;
    std::optional<AnsiStroke> StrokeFor(char32_t character) const override;
    std::optional<int> KeyFor(const KeyStroke &stroke) const override;

private:
    AnsiKeyboard::Size m_size = AnsiKeyboard::Size::Large;
};
