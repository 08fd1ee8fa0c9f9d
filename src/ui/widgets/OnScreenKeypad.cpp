#include "ui/widgets/OnScreenKeypad.h"

#include "core/drills/KeypadKeys.h"

using namespace Qt::Literals::StringLiterals;

OnScreenKeypad::OnScreenKeypad(QWidget *parent)
    : OnScreenKeys(u"XNumBoard1"_s, tr("Numeric keypad"), parent)
{
    SetSizeSwitch(true);
}

void OnScreenKeypad::SetSizeSwitch(bool large)
{
    m_size = large ? KeypadKeys::Size::Large : KeypadKeys::Size::Small;
    const auto name = [large](const QString &state) {
        return u"KEYPAD_"_s + state + (large ? QString() : u"_SMALL"_s);
    };
    SetPictures({name(u"NORMAL"_s), name(u"PROMPT"_s), name(u"PRESSED"_s)});
    resize(KeypadKeys::PictureSize(m_size));
}

int OnScreenKeypad::KeyCount() const
{
    return static_cast<int>(KeypadKeys::Keys().size());
}

QRect OnScreenKeypad::KeyRect(int key) const
{
    return KeypadKeys::KeyRect(key, m_size);
}

QString OnScreenKeypad::KeyName(int key) const
{
    return KeypadKeys::Keys().at(key).name;
}

QString OnScreenKeypad::FingerName(int key) const
{
    return FingerTable::NameOf(KeypadKeys::Keys().at(key).finger);
}

std::optional<AnsiStroke> OnScreenKeypad::StrokeFor(char32_t character) const
{
    const auto key = KeypadKeys::KeyFor(character);
    return key ? std::optional(AnsiStroke{*key, std::nullopt}) : std::nullopt;
}

std::optional<int> OnScreenKeypad::KeyFor(const KeyStroke &stroke) const
{
    // The place says whose key it is; where the window system gives none, its word that it is the keypad's.
    if (const auto key = KeypadKeys::KeyWithCode(stroke.keyCode))
        return key;
    return stroke.keypad ? KeypadKeys::KeyFor(stroke.character) : std::nullopt;
}
