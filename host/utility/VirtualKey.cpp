#include "utility/VirtualKey.h"

#include <QHash>
#include <QKeyEvent>

#include <iterator>

namespace kesto::utility::keys {

namespace {

struct KeyPair {
    int qtKey;
    std::uint16_t vk;
};

// Keys away from the keypad. Shifted symbols go to the key that carries them (US layout), so
// Ctrl+Shift+1 is stored as the "1" key whatever symbol the layout reports.
const KeyPair kMainKeys[] = {
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Clear, VK_CLEAR},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},
    {Qt::Key_Alt, VK_MENU},
    {Qt::Key_AltGr, VK_MENU},
    {Qt::Key_Pause, 0x13},
    {Qt::Key_CapsLock, 0x14},
    {Qt::Key_Kana_Lock, 0x15},
    {Qt::Key_Kanji, 0x19},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Henkan, 0x1C},
    {Qt::Key_Muhenkan, VK_NONCONVERT},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, 0x21},
    {Qt::Key_PageDown, 0x22},
    {Qt::Key_End, 0x23},
    {Qt::Key_Home, 0x24},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Select, 0x29},
    {Qt::Key_Printer, 0x2A},
    {Qt::Key_Execute, 0x2B},
    {Qt::Key_Print, 0x2C},
    {Qt::Key_SysReq, 0x2C},
    {Qt::Key_Insert, 0x2D},
    {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_Help, 0x2F},
    {Qt::Key_Exclam, '1'},
    {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},
    {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},
    {Qt::Key_Super_L, VK_LWIN},
    {Qt::Key_Meta, VK_LWIN},
    {Qt::Key_Super_R, VK_RWIN},
    {Qt::Key_Menu, VK_APPS},
    {Qt::Key_Sleep, 0x5F},
    {Qt::Key_NumLock, VK_NUMLOCK},
    {Qt::Key_ScrollLock, 0x91},
    {Qt::Key_Back, 0xA6},
    {Qt::Key_Forward, 0xA7},
    {Qt::Key_Refresh, 0xA8},
    {Qt::Key_Stop, 0xA9},
    {Qt::Key_Search, 0xAA},
    {Qt::Key_Favorites, 0xAB},
    {Qt::Key_HomePage, 0xAC},
    {Qt::Key_VolumeMute, 0xAD},
    {Qt::Key_VolumeDown, 0xAE},
    {Qt::Key_VolumeUp, 0xAF},
    {Qt::Key_MediaNext, 0xB0},
    {Qt::Key_MediaPrevious, 0xB1},
    {Qt::Key_MediaStop, 0xB2},
    {Qt::Key_MediaPlay, 0xB3},
    {Qt::Key_MediaTogglePlayPause, 0xB3},
    {Qt::Key_LaunchMail, 0xB4},
    {Qt::Key_Semicolon, VK_OEM_1},
    {Qt::Key_Colon, VK_OEM_1},
    {Qt::Key_Equal, VK_OEM_PLUS},
    {Qt::Key_Plus, VK_OEM_PLUS},
    {Qt::Key_Comma, VK_OEM_COMMA},
    {Qt::Key_Less, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS},
    {Qt::Key_Underscore, VK_OEM_MINUS},
    {Qt::Key_Period, VK_OEM_PERIOD},
    {Qt::Key_Greater, VK_OEM_PERIOD},
    {Qt::Key_Slash, VK_OEM_2},
    {Qt::Key_Question, VK_OEM_2},
    {Qt::Key_QuoteLeft, VK_OEM_3},
    {Qt::Key_AsciiTilde, VK_OEM_3},
    {Qt::Key_BracketLeft, VK_OEM_4},
    {Qt::Key_BraceLeft, VK_OEM_4},
    {Qt::Key_Backslash, VK_OEM_5},
    {Qt::Key_Bar, VK_OEM_5},
    {Qt::Key_yen, VK_OEM_5},
    {Qt::Key_BracketRight, VK_OEM_6},
    {Qt::Key_BraceRight, VK_OEM_6},
    {Qt::Key_Apostrophe, VK_OEM_7},
    {Qt::Key_QuoteDbl, VK_OEM_7},
    {Qt::Key_Eisu_toggle, VK_OEM_ATTN},
    {Qt::Key_Eisu_Shift, VK_OEM_ATTN},
    {Qt::Key_Hiragana_Katakana, 0xF2},
    {Qt::Key_Hiragana, 0xF2},
    {Qt::Key_Katakana, 0xF1},
    {Qt::Key_Zenkaku_Hankaku, 0xF4},
    {Qt::Key_Zenkaku, 0xF4},
    {Qt::Key_Hankaku, 0xF3},
};

// Keys that differ when they come from the keypad; the keypad's navigation keys (Num Lock off)
// are the same keys as the navigation block's.
const KeyPair kKeypadKeys[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},       {Qt::Key_Comma, 0x6C},
    {Qt::Key_Minus, VK_SUBTRACT},    {Qt::Key_Period, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE},
};

struct KeyName {
    std::uint16_t vk;
    const char* name; // UTF-8
};

const KeyName kKeyNames[] = {
    {VK_BACK, "Backspace"},
    {VK_TAB, "Tab"},
    {VK_CLEAR, "Clear"},
    {VK_RETURN, "Enter"},
    {VK_SHIFT, "Shift"},
    {VK_CONTROL, "Ctrl"},
    {VK_MENU, "Alt"},
    {0x13, "Pause"},
    {0x14, "CapsLock"},
    {0x15, "かな"},
    {0x19, "漢字"},
    {VK_ESCAPE, "Esc"},
    {0x1C, "変換"},
    {VK_NONCONVERT, "無変換"},
    {VK_SPACE, "Space"},
    {0x21, "PgUp"},
    {0x22, "PgDn"},
    {0x23, "End"},
    {0x24, "Home"},
    {VK_LEFT, "Left"},
    {VK_UP, "Up"},
    {VK_RIGHT, "Right"},
    {VK_DOWN, "Down"},
    {0x29, "Select"},
    {0x2A, "Print"},
    {0x2B, "Execute"},
    {0x2C, "PrtSc"},
    {0x2D, "Ins"},
    {VK_DELETE, "Del"},
    {0x2F, "Help"},
    {VK_LWIN, "LWin"},
    {VK_RWIN, "RWin"},
    {VK_APPS, "Apps"},
    {0x5F, "Sleep"},
    {VK_MULTIPLY, "Num *"},
    {VK_ADD, "Num +"},
    {0x6C, "Num Sep"},
    {VK_SUBTRACT, "Num -"},
    {VK_DECIMAL, "Num ."},
    {VK_DIVIDE, "Num /"},
    {VK_NUMLOCK, "NumLock"},
    {0x91, "ScrollLock"},
    {0xA6, "BrowserBack"},
    {0xA7, "BrowserForward"},
    {0xA8, "BrowserRefresh"},
    {0xA9, "BrowserStop"},
    {0xAA, "BrowserSearch"},
    {0xAB, "BrowserFavorites"},
    {0xAC, "BrowserHome"},
    {0xAD, "VolumeMute"},
    {0xAE, "VolumeDown"},
    {0xAF, "VolumeUp"},
    {0xB0, "MediaNext"},
    {0xB1, "MediaPrev"},
    {0xB2, "MediaStop"},
    {0xB3, "MediaPlayPause"},
    {0xB4, "Mail"},
    {VK_OEM_1, ";"},
    {VK_OEM_PLUS, "="},
    {VK_OEM_COMMA, ","},
    {VK_OEM_MINUS, "-"},
    {VK_OEM_PERIOD, "."},
    {VK_OEM_2, "/"},
    {VK_OEM_3, "`"},
    {VK_OEM_4, "["},
    {VK_OEM_5, "\\"},
    {VK_OEM_6, "]"},
    {VK_OEM_7, "'"},
    {VK_OEM_102, "OEM102"},
    {VK_PROCESSKEY, "Process"},
    {VK_OEM_ATTN, "英数"},
    {0xF1, "カタカナ"},
    {0xF2, "ひらがな"},
    {0xF3, "半角"},
    {0xF4, "全角"},
};

struct Tables {
    QHash<int, std::uint16_t> main;
    QHash<int, std::uint16_t> keypad;
    QHash<std::uint16_t, QString> names;
    QHash<QString, std::uint16_t> byName; // lower case
};

void addName(Tables& t, std::uint16_t vk, const QString& name)
{
    t.names.insert(vk, name);
    t.byName.insert(name.toLower(), vk);
}

Tables buildTables()
{
    Tables t;
    for (const KeyPair& p : kMainKeys)
        t.main.insert(p.qtKey, p.vk);
    for (int c = 0; c < 10; ++c) {
        t.main.insert(Qt::Key_0 + c, static_cast<std::uint16_t>('0' + c));
        t.keypad.insert(Qt::Key_0 + c, static_cast<std::uint16_t>(VK_NUMPAD0 + c));
        addName(t, static_cast<std::uint16_t>('0' + c), QString(QChar(u'0' + c)));
        addName(t, static_cast<std::uint16_t>(VK_NUMPAD0 + c), QStringLiteral("Num %1").arg(c));
    }
    for (int c = 0; c < 26; ++c) {
        t.main.insert(Qt::Key_A + c, static_cast<std::uint16_t>('A' + c));
        addName(t, static_cast<std::uint16_t>('A' + c), QString(QChar(u'A' + c)));
    }
    for (int f = 0; f < 24; ++f) {
        t.main.insert(Qt::Key_F1 + f, static_cast<std::uint16_t>(VK_F1 + f));
        addName(t, static_cast<std::uint16_t>(VK_F1 + f), QStringLiteral("F%1").arg(f + 1));
    }
    for (const KeyPair& p : kKeypadKeys)
        t.keypad.insert(p.qtKey, p.vk);
    for (const KeyName& n : kKeyNames)
        addName(t, n.vk, QString::fromUtf8(n.name));
    return t;
}

const Tables& tables()
{
    static const Tables t = buildTables();
    return t;
}

// Keys without a name of their own are written as their code, "0xE1".
QString codeText(std::uint16_t key)
{
    return QStringLiteral("0x") + QString::number(key, 16).toUpper().rightJustified(2, u'0');
}

struct ModifierName {
    const char* prefix;
    std::uint16_t flag;
};
const ModifierName kModifiers[] = {{"Ctrl+", FCONTROL}, {"Shift+", FSHIFT}, {"Alt+", FALT}};

std::optional<std::uint16_t> keyOfName(const QString& name)
{
    const Tables& t = tables();
    const auto it = t.byName.constFind(name.toLower());
    if (it != t.byName.constEnd())
        return it.value();
    if (name.size() == 4 && name.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive)) {
        bool ok = false;
        const uint code = name.mid(2).toUInt(&ok, 16);
        if (ok && code > 0 && code < 0xFF)
            return static_cast<std::uint16_t>(code);
    }
    return std::nullopt;
}

} // namespace

std::uint16_t virtualKeyOf(int qtKey, Qt::KeyboardModifiers modifiers)
{
    const Tables& t = tables();
    if (modifiers.testFlag(Qt::KeypadModifier)) {
        const auto it = t.keypad.constFind(qtKey);
        if (it != t.keypad.constEnd())
            return it.value();
    }
    return t.main.value(qtKey, 0);
}

std::uint16_t flagsOf(Qt::KeyboardModifiers modifiers)
{
    std::uint16_t flags = FVIRTKEY;
    if (modifiers.testFlag(Qt::ShiftModifier))
        flags |= FSHIFT;
    if (modifiers.testFlag(Qt::ControlModifier))
        flags |= FCONTROL;
    if (modifiers.testFlag(Qt::AltModifier))
        flags |= FALT;
    return flags;
}

SKeyStroke keyStrokeOf(const QKeyEvent& event)
{
    return {flagsOf(event.modifiers()), virtualKeyOf(event.key(), event.modifiers())};
}

QString keyName(std::uint16_t key)
{
    const Tables& t = tables();
    const auto it = t.names.constFind(key);
    return it != t.names.constEnd() ? it.value() : codeText(key);
}

QString keyStrokeText(std::uint16_t flags, std::uint16_t key)
{
    if (key == 0)
        return {};
    QString text;
    for (const ModifierName& m : kModifiers) {
        if (flags & m.flag)
            text += QLatin1String(m.prefix);
    }
    return text + keyName(key);
}

std::optional<SKeyStroke> parseKeyStroke(const QString& text)
{
    SKeyStroke stroke{FVIRTKEY, 0};
    QString rest = text.trimmed();
    for (bool found = true; found;) {
        found = false;
        for (const ModifierName& m : kModifiers) {
            const QLatin1String prefix(m.prefix);
            if (rest.size() > prefix.size() && rest.startsWith(prefix, Qt::CaseInsensitive)
                && !(stroke.flags & m.flag)) {
                stroke.flags |= m.flag;
                rest = rest.mid(prefix.size());
                found = true;
            }
        }
    }
    const std::optional<std::uint16_t> key = keyOfName(rest);
    if (!key)
        return std::nullopt;
    stroke.key = *key;
    return stroke;
}

} // namespace kesto::utility::keys
