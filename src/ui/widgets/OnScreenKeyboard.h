#pragma once

#include "ui/widgets/OnScreenKeys.h"

/// The on-screen main keyboard, called `CXKeyBoard1` in every drill that has it.
class OnScreenKeyboard final : public OnScreenKeys
{
    Q_OBJECT

public:
    explicit OnScreenKeyboard(QWidget *parent);

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
