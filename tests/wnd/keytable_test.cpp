#include <VxMFCEmu/wnd/input.h>

#include <QtGui/QKeyEvent>

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <map>
#include <set>

namespace {

using KeyMap = std::map<int, int>; // Qt key -> virtual key

// The Qt code of a printable key is its character.
void addCharacters(KeyMap& map, const char* characters, int vk, int step)
{
    for (const char* c = characters; *c; ++c, vk += step)
        map.emplace(*c, vk);
}

KeyMap expectedKeys()
{
    KeyMap map{{Qt::Key_Backspace, 0x08},  {Qt::Key_Tab, 0x09},        {Qt::Key_Clear, 0x0C},
               {Qt::Key_Return, 0x0D},     {Qt::Key_Enter, 0x0D},      {Qt::Key_Shift, 0x10},
               {Qt::Key_Control, 0x11},    {Qt::Key_Alt, 0x12},        {Qt::Key_Pause, 0x13},
               {Qt::Key_CapsLock, 0x14},   {Qt::Key_Escape, 0x1B},     {Qt::Key_PageUp, 0x21},
               {Qt::Key_PageDown, 0x22},   {Qt::Key_End, 0x23},        {Qt::Key_Home, 0x24},
               {Qt::Key_Left, 0x25},       {Qt::Key_Up, 0x26},         {Qt::Key_Right, 0x27},
               {Qt::Key_Down, 0x28},       {Qt::Key_Select, 0x29},     {Qt::Key_Print, 0x2A},
               {Qt::Key_Execute, 0x2B},    {Qt::Key_Printer, 0x2C},    {Qt::Key_Insert, 0x2D},
               {Qt::Key_Delete, 0x2E},     {Qt::Key_Help, 0x2F},       {Qt::Key_multiply, 0x6A},
               {Qt::Key_NumLock, 0x90},    {Qt::Key_ScrollLock, 0x91}, {Qt::Key_VolumeMute, 0xAD},
               {Qt::Key_VolumeDown, 0xAE}, {Qt::Key_VolumeUp, 0xAF},   {Qt::Key_MediaStop, 0xB2},
               {Qt::Key_MediaPlay, 0xB3}};
    addCharacters(map, " ", 0x20, 0);
    addCharacters(map, "0123456789", 0x30, 1);
    addCharacters(map, ")!@#$%^&*(", 0x30, 1);
    addCharacters(map, "ABCDEFGHIJKLMNOPQRSTUVWXYZ", 0x41, 1);
    const char* const shared[] = {";:", "+=", ",<", "-_", ".>", "/?", "`~"};
    for (int i = 0; i < 7; ++i)
        addCharacters(map, shared[i], 0xBA + i, 0);
    const char* const brackets[] = {"[{", "\\|", "]}", "'\""};
    for (int i = 0; i < 4; ++i)
        addCharacters(map, brackets[i], 0xDB + i, 0);
    for (int i = 0; i < 24; ++i)
        map.emplace(Qt::Key_F1 + i, 0x70 + i);
    return map;
}

TEST(KeyTable, GivesEveryKeyItsVirtualKeyAndOthersNone)
{
    const KeyMap expected = expectedKeys();
    ASSERT_EQ(expected.size(), 127U);
    const auto check = [&expected](int key) {
        const auto it = expected.find(key);
        EXPECT_EQ(qt_key_to_ansi_vk(key), it == expected.end() ? -1 : it->second) << key;
    };
    for (int key = -1; key < 0x400; ++key)
        check(key);
    for (int key = 0x01000000; key < 0x01020100; ++key)
        check(key);
    for (int key : {INT_MIN, INT_MAX, int(Qt::Key_unknown)})
        check(key);
}

TEST(KeyTable, GivesEveryVirtualKeyTheLowestOfItsKeys)
{
    std::map<int, int> lowest;
    for (const auto& [key, vk] : expectedKeys())
        lowest.emplace(vk, key);
    for (int vk = -2; vk < 600; ++vk) {
        const auto it = lowest.find(vk);
        EXPECT_EQ(ansi_vk_to_qt_key(vk), it == lowest.end() ? -1 : it->second) << vk;
    }
    EXPECT_EQ(ansi_vk_to_qt_key(INT_MIN), -1);
    EXPECT_EQ(ansi_vk_to_qt_key(INT_MAX), -1);
    EXPECT_EQ(ansi_vk_to_qt_key(0x30), 0x29); // ")", not "0"
}

TEST(KeyFlags, KeepWhatMessagesCanSay)
{
    EXPECT_EQ(qt_kb_flag_2_flag(0), 0U);
    EXPECT_EQ(qt_kb_flag_2_flag(0x02000000), 0x4U);
    EXPECT_EQ(qt_kb_flag_2_flag(0x04000000), 0x8U);
    EXPECT_EQ(qt_kb_flag_2_flag(0x08000000), 0x20U);
    EXPECT_EQ(qt_kb_flag_2_flag(0xFFFFFFFF), 0x2CU);
    EXPECT_EQ(qt_kb_flag_2_flag(0xF1FFFFFF), 0U);
    EXPECT_EQ(qt_mouse_flag_2_flag(1), 0x1U);
    EXPECT_EQ(qt_mouse_flag_2_flag(2), 0x2U);
    EXPECT_EQ(qt_mouse_flag_2_flag(4), 0x10U);
    EXPECT_EQ(qt_mouse_flag_2_flag(0xFFFFFFFF), 0x13U);
    EXPECT_EQ(qt_mouse_flag_2_flag(0xFFFFFFF8), 0U);
    EXPECT_EQ(mfc_flag_2_qt_kb_flag(0xFFFFFFFF), Qt::NoModifier);
    EXPECT_EQ(mfc_flag_2_qt_mouse_flag(0xFFFFFFFF),
              Qt::LeftButton | Qt::RightButton | Qt::MiddleButton);
    for (UINT buttons = 0; buttons < 8; ++buttons)
        EXPECT_EQ(mfc_flag_2_qt_mouse_flag(qt_mouse_flag_2_flag(buttons)),
                  Qt::MouseButtons(buttons));
}

TEST(MapVirtualKey, IsTheCharacterItselfForPrintableCodes)
{
    const std::set<UINT> controls = {0x08, 0x09, 0x0A, 0x0D};
    for (UINT code = 0; code < 1000; ++code) {
        const bool printable = (code >= 0x20 && code < 0x7F) || controls.count(code);
        EXPECT_EQ(MapVirtualKey_E(code, code % 5), printable ? code : 0U) << code;
    }
    EXPECT_EQ(MapVirtualKey_E(0xFFFFFFFFU, 0), 0U);
}

TEST(VkKeyScan, IsTheUpperCaseForm)
{
    EXPECT_EQ(VkKeyScan_E(L'a'), 0x41);
    EXPECT_EQ(VkKeyScan_E(L'A'), 0x41);
    EXPECT_EQ(VkKeyScan_E(L'1'), 0x31);
    EXPECT_EQ(VkKeyScan_E(L'!'), 0x21);
    EXPECT_EQ(VkKeyScan_E(L'\u00E9'), 0xC9);
    EXPECT_EQ(VkKeyScan_E(static_cast<wchar_t>(0x10061)), 0x41); // the low 16 bits count
}

BOOL repeats(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             const QString& text = QString())
{
    QKeyEvent e(type, key, modifiers, text);
    return IsRepeatFilterKeyEvent(&e);
}

TEST(RepeatFilter, ReportsAKeyHeldDownOnce)
{
    repeats(QEvent::KeyRelease, Qt::Key_Z);
    EXPECT_FALSE(repeats(QEvent::KeyPress, Qt::Key_A));
    EXPECT_TRUE(repeats(QEvent::KeyPress, Qt::Key_A));
    EXPECT_TRUE(repeats(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a")));
    EXPECT_FALSE(IsRepeatFilterKeyEvent(nullptr));
    EXPECT_TRUE(repeats(QEvent::KeyPress, Qt::Key_A));
    EXPECT_FALSE(repeats(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier));
    EXPECT_FALSE(repeats(QEvent::KeyPress, Qt::Key_B, Qt::ShiftModifier));
    EXPECT_FALSE(repeats(QEvent::KeyRelease, Qt::Key_B, Qt::ShiftModifier));
    EXPECT_TRUE(repeats(QEvent::KeyRelease, Qt::Key_B, Qt::ShiftModifier));
    EXPECT_FALSE(repeats(QEvent::KeyPress, Qt::Key_B, Qt::ShiftModifier));
}

TEST(RepeatFilterDeathTest, BeginsWithAPressOfTheUnknownKey)
{
    // A process of its own, in which no key has been seen yet.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(std::_Exit(repeats(QEvent::KeyPress, 0x1FFFFFF) ? 42 : 1),
                testing::ExitedWithCode(42), "");
    EXPECT_EXIT(std::_Exit(repeats(QEvent::KeyRelease, 0x1FFFFFF) ? 1 : 42),
                testing::ExitedWithCode(42), "");
}

} // namespace
