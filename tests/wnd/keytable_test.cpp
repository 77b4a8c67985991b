#include "support/test.h"

#include <climits>
#include <cstdlib>
#include <string_view>

namespace {

using KeyMap = std::map<int, int>;

/// The virtual key of each Qt key.
KeyMap expectedKeys()
{
    using namespace Qt;
    // Keys whose virtual keys follow each other.
    const std::pair<int, std::vector<int>> runs[] = {
        {0x08, {Key_Backspace, Key_Tab}},
        {0x0C, {Key_Clear, Key_Return}},
        {0x0D, {Key_Enter}},
        {0x10, {Key_Shift, Key_Control, Key_Alt, Key_Pause, Key_CapsLock}},
        {0x1B, {Key_Escape}},
        {0x21,
         {Key_PageUp, Key_PageDown, Key_End, Key_Home, Key_Left, Key_Up, Key_Right, Key_Down,
          Key_Select, Key_Print, Key_Execute, Key_Printer, Key_Insert, Key_Delete, Key_Help}},
        {0x6A, {Key_multiply}},
        {0x90, {Key_NumLock, Key_ScrollLock}},
        {0xAD, {Key_VolumeMute, Key_VolumeDown, Key_VolumeUp}},
        {0xB2, {Key_MediaStop, Key_MediaPlay}}};
    // The Qt code of a printable key is its character.
    const std::pair<int, std::string_view> characters[] = {
        {0x20, " "},          {0x30, "0123456789"},
        {0x30, ")!@#$%^&*("}, {0x41, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
        {0xBA, ";+,-./`"},    {0xBA, ":=<_>?~"},
        {0xDB, "[\\]'"},      {0xDB, "{|}\""}};
    KeyMap map;
    const auto add = [&map](const auto& rows) {
        for (auto [vk, keys] : rows)
            for (const int key : keys)
                map.emplace(key, vk++);
    };
    add(runs);
    add(characters);
    for (int i = 0; i < 24; ++i)
        map.emplace(Key_F1 + i, 0x70 + i);
    return map;
}

TEST(KeyTable, GivesEveryKeyItsVirtualKeyAndEveryVirtualKeyTheLowestOfItsKeys)
{
    KeyMap expected = expectedKeys(), lowest; // the lowest key of each virtual key
    ASSERT_EQ(expected.size(), 127U);
    const auto valueIn = [](KeyMap& map, int key) { return map.count(key) ? map[key] : -1; };
    for (int key = -1; key < 0x01020100; key += key == 0x400 ? 0x00FFFC00 : 1)
        EXPECT_EQ(qt_key_to_ansi_vk(key), valueIn(expected, key)) << key;
    for (const auto& [key, vk] : expected)
        lowest.emplace(vk, key);
    for (int vk = -2; vk < 600; ++vk)
        EXPECT_EQ(ansi_vk_to_qt_key(vk), valueIn(lowest, vk)) << vk;
    for (const int none : {INT_MIN, INT_MAX, int(Qt::Key_unknown)})
        EXPECT_TRUE(qt_key_to_ansi_vk(none) == -1 && ansi_vk_to_qt_key(none) == -1);
}

TEST(KeyFlags, KeepWhatMessagesCanSay)
{
    const Row<UINT, UINT> modifiers[] = {
        {0x02000000, 4}, {0x04000000, 8}, {0x08000000, 0x20}, {0xFFFFFFFF, 0x2C}, {0xF1FFFFFF, 0}};
    forRows(modifiers, [](UINT qt, UINT mfc) { EXPECT_EQ(qt_kb_flag_2_flag(qt), mfc); });
    const Row<UINT, UINT> buttons[] = {
        {1, 1}, {2, 2}, {4, 0x10}, {0xFFFFFFFF, 0x13}, {0xFFFFFFF8, 0}};
    forRows(buttons, [](UINT qt, UINT mfc) {
        EXPECT_EQ(qt_mouse_flag_2_flag(qt), mfc);
        EXPECT_EQ(mfc_flag_2_qt_mouse_flag(mfc), Qt::MouseButtons(qt & 7));
    });
    EXPECT_TRUE(!mfc_flag_2_qt_kb_flag(~0U) && mfc_flag_2_qt_mouse_flag(~0U) == 7);
}

TEST(MapVirtualKey, IsTheCharacterItselfForPrintableCodesAndVkKeyScanTheUpperCaseForm)
{
    const std::set<UINT> controls = {0x08, 0x09, 0x0A, 0x0D};
    for (UINT code = 0; code < 1000; ++code) {
        const bool printable = (code >= 0x20 && code < 0x7F) || controls.count(code);
        EXPECT_EQ(MapVirtualKey_E(code, code % 5), printable ? code : 0U) << code;
    }
    EXPECT_EQ(MapVirtualKey_E(0xFFFFFFFFU, 0), 0U);
    // Only the low 16 bits of a character count.
    const Row<wchar_t, short> rows[] = {{L'a', 0x41}, {L'A', 0x41},      {L'1', 0x31},
                                        {L'!', 0x21}, {L'\u00E9', 0xC9}, {0x10061, 0x41}};
    forRows(rows, [](wchar_t c, short vk) { EXPECT_EQ(VkKeyScan_E(c), vk); });
}

constexpr auto press = QEvent::KeyPress, release = QEvent::KeyRelease;

BOOL repeats(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    static int count = 0; // no two events have the same text
    QKeyEvent e(type, key, modifiers, QString::number(++count));
    return IsRepeatFilterKeyEvent(&e);
}

TEST(RepeatFilter, ReportsAKeyHeldDownOnce)
{
    const auto none = Qt::NoModifier, shift = Qt::ShiftModifier;
    const Row<QEvent::Type, int, Qt::KeyboardModifier, BOOL> rows[] = {
        {press, 'A', none, FALSE},  {press, 'A', none, TRUE},     {press, 'A', shift, FALSE},
        {press, 'B', shift, FALSE}, {release, 'B', shift, FALSE}, {release, 'B', shift, TRUE},
        {press, 'B', shift, FALSE}};
    repeats(release, 'Z');
    for (const auto& [type, key, modifier, repeat] : rows) {
        EXPECT_EQ(repeats(type, key, modifier), repeat);
        EXPECT_FALSE(IsRepeatFilterKeyEvent(nullptr));
    }
}

TEST(RepeatFilterDeathTest, BeginsWithAPressOfTheUnknownKey)
{
    // A process of its own, in which no key has been seen yet.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(std::_Exit(repeats(press, 0x1FFFFFF) ? 42 : 1), testing::ExitedWithCode(42), "");
    EXPECT_EXIT(std::_Exit(repeats(release, 0x1FFFFFF) ? 1 : 42), testing::ExitedWithCode(42), "");
}

} // namespace
