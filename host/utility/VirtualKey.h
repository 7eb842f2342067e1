#pragma once

#include <QString>
#include <Qt>

#include <cstdint>
#include <optional>

class QKeyEvent;

// Keys in the stored form of shortcuts: the Win32 accelerator pair of a flags word and a
// virtual-key code. Qt key events are mapped through one table (from key() and modifiers(),
// since platforms without Windows give no virtual-key code of their own).
namespace kesto::utility::keys {

enum EAccelFlag : std::uint16_t {
    FVIRTKEY = 0x01,
    FSHIFT = 0x04,
    FCONTROL = 0x08,
    FALT = 0x10,
};
constexpr std::uint16_t kAccelFlagMask = FVIRTKEY | FSHIFT | FCONTROL | FALT;

// Virtual-key codes the program refers to by name.
enum EVirtualKey : std::uint16_t {
    VK_BACK = 0x08,
    VK_TAB = 0x09,
    VK_CLEAR = 0x0C,
    VK_RETURN = 0x0D,
    VK_SHIFT = 0x10,
    VK_CONTROL = 0x11,
    VK_MENU = 0x12,
    VK_ESCAPE = 0x1B,
    VK_NONCONVERT = 0x1D,
    VK_SPACE = 0x20,
    VK_LEFT = 0x25,
    VK_UP = 0x26,
    VK_RIGHT = 0x27,
    VK_DOWN = 0x28,
    VK_DELETE = 0x2E,
    VK_LWIN = 0x5B,
    VK_RWIN = 0x5C,
    VK_APPS = 0x5D,
    VK_NUMPAD0 = 0x60,
    VK_MULTIPLY = 0x6A,
    VK_ADD = 0x6B,
    VK_SUBTRACT = 0x6D,
    VK_DECIMAL = 0x6E,
    VK_DIVIDE = 0x6F,
    VK_F1 = 0x70,
    VK_F10 = 0x79,
    VK_F24 = 0x87,
    VK_NUMLOCK = 0x90,
    VK_OEM_1 = 0xBA,
    VK_OEM_PLUS = 0xBB,
    VK_OEM_COMMA = 0xBC,
    VK_OEM_MINUS = 0xBD,
    VK_OEM_PERIOD = 0xBE,
    VK_OEM_2 = 0xBF,
    VK_OEM_3 = 0xC0,
    VK_OEM_4 = 0xDB,
    VK_OEM_5 = 0xDC,
    VK_OEM_6 = 0xDD,
    VK_OEM_7 = 0xDE,
    VK_OEM_102 = 0xE2,
    VK_PROCESSKEY = 0xE5,
    VK_OEM_ATTN = 0xF0,
};

// A key with its modifiers, as stored.
struct SKeyStroke {
    std::uint16_t flags = 0;
    std::uint16_t key = 0; // 0: no key
    bool operator==(const SKeyStroke& other) const = default;
};

// The virtual-key code of a Qt key; 0 for keys that have none. Shifted symbols map to the key
// that carries them on a US keyboard (Key_Exclam is the "1" key), keypad keys to their own codes.
std::uint16_t virtualKeyOf(int qtKey, Qt::KeyboardModifiers modifiers);
std::uint16_t flagsOf(Qt::KeyboardModifiers modifiers);
SKeyStroke keyStrokeOf(const QKeyEvent& event);

// "Ctrl+Shift+S", "F5", "Alt+Del", "Num 7": one text per flags/key pair, read back by parse.
QString keyStrokeText(std::uint16_t flags, std::uint16_t key);
QString keyName(std::uint16_t key);
std::optional<SKeyStroke> parseKeyStroke(const QString& text);

} // namespace kesto::utility::keys
