#include "platform/PhysicalKeys.h"

#include <Qt>
#include <algorithm>
#include <array>
#include <iterator>

namespace {

// The codes of the main block and of the keypad are those that keyboards themselves send, on every system
// alike, from Escape (1) to the keypad's decimal key (83); 0 where the key is of neither. They are the
// keypad's own also while Num Lock is off.
constexpr std::array<int, 84> MainBlock{
    0,   0,   49,  50,  51,  52,  53,  54,  55, 56,  57,  48,  189, 187, 8, // digits
    9,   81,  87,  69,  82,  84,  89,  85,  73, 79,  80,  219, 221, 13,     // Q to Enter
    162, 65,  83,  68,  70,  71,  72,  74,  75, 76,  186, 222, 192,         // A to the quote, grave accent
    160, 220, 90,  88,  67,  86,  66,  78,  77, 188, 190, 191, 161, 106,    // Shift to Shift, keypad *
    164, 32,  20,  0,   0,   0,   0,   0,   0,  0,   0,   0,   0,   0,   0, // to Scroll Lock
    103, 104, 105, 109, 100, 101, 102, 107, 97, 98,  99,  96,  110};        // keypad 7 to the decimal key

struct OutsideKey
{
    quint32 linuxCode;
    quint32 windowsCode;
    int virtualKey;
};

// Keys that came later than the main block have codes of each system's own.
constexpr OutsideKey LaterKeys[]{
    {97, 0x11D, 163}, {98, 0x135, 111}, {100, 0x138, 165},
    {125, 0x15B, 91}, {126, 0x15C, 92}, {127, 0x15D, 93},
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
