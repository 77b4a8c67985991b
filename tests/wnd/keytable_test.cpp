#include "support/test.h"

#include <climits>

namespace {

TEST(KeyTable, GivesAKeyItsVirtualKeyAndAVirtualKeyTheLowestOfItsKeys)
{
    using namespace Qt;
    // first Qt key, count, first virtual key; whether these have no lower key
    const Row<int, int, int, bool> rows[] = {
        {Key_Escape, 1, 0x1B, true},     {Key_Return, 1, 0x0D, true},
        {Key_Enter, 1, 0x0D, false},     {Key_Delete, 1, 0x2E, true},
        {Key_Left, 4, 0x25, true},       {Key_PageUp, 2, 0x21, true},
        {Key_Shift, 2, 0x10, true},      {Key_Alt, 1, 0x12, true},
        {Key_F1, 24, 0x70, true},        {Key_A, 26, 0x41, true},
        {Key_0, 2, 0x30, false},         {Key_2, 1, 0x32, true},
        {Key_ParenRight, 1, 0x30, true}, {Key_Colon, 1, 0xBA, true},
        {Key_Semicolon, 1, 0xBA, false}, {Key_BraceLeft, 3, 0xDB, false}};
    forRows(rows, [](int key, int count, int vk, bool isLowest) {
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(qt_key_to_ansi_vk(key + i), vk + i);
            EXPECT_EQ(ansi_vk_to_qt_key(vk + i) == key + i, isLowest);
        }
    });
    for (const int none : {INT_MIN, -1, 0, 255, 256, INT_MAX, int(Qt::Key_unknown)})
        EXPECT_TRUE(qt_key_to_ansi_vk(none) == -1 && ansi_vk_to_qt_key(none) == -1) << none;
}

TEST(KeyFlags, KeepWhatMessagesCanSay)
{
    EXPECT_TRUE(qt_kb_flag_2_flag(~0U) == 0x2C && qt_kb_flag_2_flag(0xF1FFFFFF) == 0);
    const Row<UINT, UINT> buttons[] = {{1, 1}, {2, 2}, {4, 0x10}, {~0U, 0x13}, {~7U, 0}};
    forRows(buttons, [](UINT qt, UINT mfc) {
        EXPECT_EQ(qt_mouse_flag_2_flag(qt), mfc);
        EXPECT_EQ(mfc_flag_2_qt_mouse_flag(mfc), Qt::MouseButtons(qt & 7));
    });
    EXPECT_TRUE(!mfc_flag_2_qt_kb_flag(~0U) && mfc_flag_2_qt_mouse_flag(~0U) == 7);
}

TEST(MapVirtualKey, IsTheCharacterItselfForPrintableCodesAndVkKeyScanTheUpperCaseForm)
{
    for (const UINT code : {0x08U, 0x09U, 0x0AU, 0x0DU, 0x20U, 0x7EU})
        EXPECT_EQ(MapVirtualKey_E(code, code % 5), code);
    for (const UINT code : {0x07U, 0x0BU, 0x1FU, 0x7FU, ~0U})
        EXPECT_EQ(MapVirtualKey_E(code, 0), 0U) << code;
    // Only the low 16 bits of a character count.
    EXPECT_TRUE(VkKeyScan_E(L'!') == 0x21 && VkKeyScan_E(L'\u00E9') == 0xC9);
    EXPECT_EQ(VkKeyScan_E(wchar_t(0x10061)), 0x41);
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
        {press, 'B', shift, FALSE}, {release, 'B', shift, FALSE}, {release, 'B', shift, TRUE}};
    repeats(release, 'Z');
    for (const auto& [type, key, modifier, repeat] : rows)
        EXPECT_EQ(repeats(type, key, modifier), repeat);
    EXPECT_FALSE(IsRepeatFilterKeyEvent(nullptr));
}

} // namespace
