#include "platform/PhysicalKeys.h"

#include <Qt>
#include <algorithm>
#include <array>
#include <iterator>

namespace {

// The main block's codes are those that keyboards themselves send, on every system alike, from Escape (1) to
// the space bar (57) and Caps Lock (58); 0 where the key is not of the main block.
constexpr std::array<int, 59> MainBlock{
    0,   0,   49, 50, 51, 52, 53, 54, 55, 56,  57,  48,  189, 187, 8, // digits
    9,   81,  87, 69, 82, 84, 89, 85, 73, 79,  80,  219, 221, 13,     // Q to Enter
    162, 65,  83, 68, 70, 71, 72, 74, 75, 76,  186, 222, 192,         // A to the quote, grave accent
    160, 220, 90, 88, 67, 86, 66, 78, 77, 188, 190, 191, 161, 0,      // Shift to Shift
    164, 32,  20};

struct OutsideKey
{
    quint32 linuxCode;
    quint32 windowsCode;
    int virtualKey;
};

// Keys that came later than the main block have codes of each system's own.
constexpr OutsideKey LaterKeys[]{
    {97, 0x11D, 163}, {100, 0x138, 165}, {125, 0x15B, 91}, {126, 0x15C, 92}, {127, 0x15D, 93},
};

struct NamedKey
{
    int qtKey;
    int virtualKey;
};

constexpr NamedKey NamedKeys[]{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Space, 32},  {Qt::Key_Menu, 93},    {Qt::Key_Shift, 160},
    {Qt::Key_Control, 162}, {Qt::Key_Meta, 91},   {Qt::Key_Super_L, 91}, {Qt::Key_Super_R, 92},
    {Qt::Key_Alt, 164},     {Qt::Key_AltGr, 165},
};

#if defined(Q_OS_WIN)
constexpr bool IsWindows = true;
#else
constexpr bool IsWindows = false;
#endif

} // namespace

std::optional<int> Public_Function::VirtualKeyOfScanCode(quint32 nativeScanCode)
{
    // X and Wayland number the keys from 8 on.
    constexpr quint32 offset = IsWindows ? 0 : 8;
    if (nativeScanCode <= offset)
        return std::nullopt;
    const quint32 code = nativeScanCode - offset;
    for (const OutsideKey &key : LaterKeys) {
        if (code == (IsWindows ? key.windowsCode : key.linuxCode))
            return key.virtualKey;
    }
    if (code >= MainBlock.size() || MainBlock[code] == 0)
        return std::nullopt;
    return MainBlock[code];
}

std::optional<int> Public_Function::VirtualKeyOfQtKey(int qtKey)
{
    if ((qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9))
        return qtKey;
    const auto *found = std::find_if(std::begin(NamedKeys), std::end(NamedKeys),
                                     [qtKey](const NamedKey &key) { return key.qtKey == qtKey; });
    if (found == std::end(NamedKeys))
        return std::nullopt;
    return found->virtualKey;
}
