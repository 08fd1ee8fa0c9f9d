#include "ui/widgets/OnScreenKeyboard.h"

#include "core/drills/FingerTable.h"

using namespace Qt::Literals::StringLiterals;

OnScreenKeyboard::OnScreenKeyboard(QWidget *parent)
    : OnScreenKeys(u"CXKeyBoard1"_s, tr("Keyboard"), parent)
{
    SetSizeSwitch(true);
}

void OnScreenKeyboard::SetSizeSwitch(bool large)
{
    m_size = large ? AnsiKeyboard::Size::Large : AnsiKeyboard::Size::Small;
    const QString suffix = large ? QString() : u"_SMALL"_s;
    SetPictures(
        {u"KEYBOARD_NORMAL"_s + suffix, u"KEYBOARD_PROMPT"_s + suffix, u"KEYBOARD_PRESSED"_s + suffix});
    resize(AnsiKeyboard::PictureSize(m_size));
}

int OnScreenKeyboard::KeyCount() const
{
    return static_cast<int>(AnsiKeyboard::Keys().size());
}

QRect OnScreenKeyboard::KeyRect(int key) const
{
    return AnsiKeyboard::KeyRect(key, m_size);
}

QString OnScreenKeyboard::KeyName(int key) const
{
    return AnsiKeyboard::Keys().at(key).name;
}

QString OnScreenKeyboard::FingerName(int key) const
{
    return FingerTable::NameOf(AnsiKeyboard::Keys().at(key).finger);
}

std::optional<AnsiStroke> OnScreenKeyboard::StrokeFor(char32_t character) const
{
    if (character > 0xFFFF)
        return std::nullopt;
    return AnsiKeyboard::StrokeFor(QChar(static_cast<char16_t>(character)));
}

std::optional<int> OnScreenKeyboard::KeyFor(const KeyStroke &stroke) const
{
    if (stroke.keypad)
        return std::nullopt;
    // What is drawn on the keys decides, so that on another layout the key that was struck and the key that
    // was asked for are compared by what they type; a character that is not drawn sinks the key in its place.
    if (const auto typed = StrokeFor(stroke.character))
        return typed->key;
    return AnsiKeyboard::KeyWithCode(stroke.keyCode);
}
