#include "ui/widgets/KeyStroke.h"

#include "platform/PhysicalKeys.h"

#include <QKeyEvent>

KeyStroke KeyStrokeOf(const QKeyEvent &event)
{
    KeyStroke stroke;
    stroke.keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    stroke.id = event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
    auto keyCode = Public_Function::VirtualKeyOfScanCode(event.nativeScanCode());
    if (!keyCode)
        keyCode = Public_Function::VirtualKeyOfQtKey(event.key());
    stroke.keyCode = keyCode.value_or(0);
    if (const std::u32string typed = TypedCharacters(event); !typed.empty())
        stroke.character = typed.front();
    return stroke;
}

std::u32string TypedCharacters(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Some systems report AltGr, which types characters, as Ctrl and Alt together.
    const bool altGr = held == (Qt::ControlModifier | Qt::AltModifier);
    if (held && !altGr)
        return {};
    std::u32string typed;
    for (const char32_t character : event.text().toStdU32String()) {
        const bool control = character < U' ' || character == 0x7F;
        const bool typing = character == U'\b' || character == U'\t' || character == U'\r' || character == 27;
        if (!control || (typing && !altGr))
            typed += character;
    }
    return typed;
}
