#include "support/test.h"

namespace {

/// A bound dialog and what is in it.
struct DialogItems : testing::Test
{
    DialogItems() { m_window.SubclassWindow(&m_dialog); }
    template <typename Widget>
    Widget* add(const QString& name)
    {
        auto* const pWidget = new Widget(&m_dialog);
        pWidget->setObjectName(name);
        return pWidget;
    }

    QWidget m_dialog;
    CWnd_E m_window;
};

} // namespace

TEST(WindowText, WhatTheTextIs)
{
    const auto pCombo = std::make_shared<QComboBox>();
    pCombo->setEditable(true);
    const Row<std::shared_ptr<QWidget>, const char*> rows[] = {
        {std::make_shared<QWidget>(), "windowTitle"},
        {std::make_shared<QPushButton>(), "text"},
        {std::make_shared<QLabel>(), "text"},
        {std::make_shared<QGroupBox>(), "title"},
        {std::make_shared<QTextEdit>(), "plainText"},
        {std::make_shared<QPlainTextEdit>(), "plainText"},
        {pCombo, "currentText"}};
    forRows(rows, [&](const std::shared_ptr<QWidget>& pWidget, const char* property) {
        EXPECT_TRUE(SetWindowText_E(pWidget.get(), L"<b>&x\x1F600"));
        EXPECT_EQ(pWidget->property(property), "<b>&x\U0001F600"_q);
        CString_E strText;
        EXPECT_EQ(GetWindowText_E(pWidget.get(), strText), 6);
        EXPECT_STREQ(strText, L"<b>&x\x1F600");
        EXPECT_EQ(GetWindowTextLength_E(pWidget.get()), 6);
        EXPECT_TRUE(SetWindowText_E(pWidget.get(), nullptr) &&
                    !GetWindowTextLength_E(pWidget.get()));
    });
}

// Combo boxes and spin boxes of whole numbers: see the tests of the messages of these controls.
TEST(WindowText, SpinBoxesHavePlainNumbers)
{
    QDoubleSpinBox decimal;
    decimal.setRange(-1e9, 1e9);
    decimal.setPrefix("x = "_q);
    decimal.setLocale(QLocale::German);
    QDateEdit date(QDate(2024, 5, 6));
    date.setDisplayFormat("yyyy-MM-dd"_q);
    const Row<QWidget*, const wchar_t*, const wchar_t*> rows[] = {
        {&decimal, L"1234.5", L"1234.50"},
        {&decimal, L"nan", L"0.00"}, // Intended: what is no number
        {&date, L"2025-01-02", L"2025-01-02"}};
    forRows(rows, [](QWidget* pWidget, const wchar_t* set, const wchar_t* got) {
        EXPECT_TRUE(SetWindowText_E(pWidget, set));
        CString_E strText;
        EXPECT_EQ(GetWindowText_E(pWidget, strText), GetWindowTextLength_E(pWidget));
        EXPECT_STREQ(strText, got);
    });
}

TEST_F(DialogItems, Buffers)
{
    m_dialog.setWindowTitle("abcdef"_q);
    const Row<int, int, const wchar_t*> rows[] = {
        {7, 6, L"abcdef"}, {6, 5, L"abcde"}, {1, 0, L""}, {0, 0, L"#"}, {-1, 0, L"#"}};
    for (const auto& [room, length, text] : rows) {
        wchar_t buffer[10] = L"#";
        EXPECT_EQ(m_window.GetWindowText(buffer, room), length);
        EXPECT_STREQ(buffer, text) << room;
    }
    CString_E strText(L"old");
    EXPECT_TRUE(GetWindowText_E(nullptr, strText) == 0 && strText.IsEmpty());
    EXPECT_FALSE(GetWindowText_E(&m_dialog, nullptr, 5) || SetWindowText_E(nullptr, L"x") ||
                 GetWindowTextLength_E(nullptr));
}

TEST_F(DialogItems, Numbers)
{
    const auto* const pEdit = add<QLineEdit>("m_edit"_q);
    const Row<BOOL, const wchar_t*, UINT, BOOL> rows[] = {
        {TRUE, L" \t-12 mm", ~11U, TRUE},  {TRUE, L"-2147483648", 0x80000000U, TRUE},
        {TRUE, L"2147483648", 0, FALSE},   {TRUE, L"-", 0, FALSE},
        {FALSE, L"4294967295", ~0U, TRUE}, {FALSE, L"-12", 0, FALSE}};
    BOOL translated = 2;
    forRows(rows, [&](BOOL isSigned, const wchar_t* text, UINT value, BOOL isNumber) {
        EXPECT_TRUE(m_window.SetDlgItemText(1001, text));
        EXPECT_EQ(m_window.GetDlgItemInt(1001, &translated, isSigned), value);
        EXPECT_EQ(translated, isNumber);
    });
    EXPECT_TRUE(m_window.SetDlgItemInt(1001, ~6U) && pEdit->text() == "-7"_q);
    EXPECT_TRUE(m_window.SetDlgItemInt(1001, ~6U, FALSE));
    wchar_t buffer[6];
    EXPECT_EQ(m_window.GetDlgItemText(1001, buffer, 6), 5);
    EXPECT_STREQ(buffer, L"42949");
    EXPECT_FALSE(GetDlgItemInt_E(&m_dialog, 1002) || SetDlgItemInt_E(&m_dialog, 1002, 1) ||
                 SetDlgItemText_E(nullptr, 1001, L"x"));
}

TEST_F(DialogItems, ChecksAndRadioButtons)
{
    int clicks = 0;
    QObject::connect(add<QCheckBox>("m_check"_q), &QCheckBox::clicked, [&clicks] { ++clicks; });
    add<QCheckBox>("m_tristate"_q)->setTristate(true);
    add<QWidget>("m_edit"_q);
    constexpr UINT off = BST_UNCHECKED, on = BST_CHECKED, half = BST_INDETERMINATE;
    const Row<int, UINT, UINT, BOOL> rows[] = {{1003, half, on, TRUE},
                                               {1003, off, off, TRUE},
                                               {1004, half, half, TRUE},
                                               {1001, on, off, FALSE}};
    forRows(rows, [this](int id, UINT check, UINT checked, BOOL done) {
        EXPECT_EQ(CheckDlgButton_E(&m_dialog, id, check), done);
        EXPECT_EQ(m_window.IsDlgButtonChecked(id), checked);
    });
    EXPECT_EQ(clicks, 0);

    for (const char* const name : {"m_radioA", "m_radioB", "m_radioC"})
        add<QRadioButton>(QString::fromLatin1(name));
    const auto checked = [this] {
        const auto is = [this](int id) { return m_window.IsDlgButtonChecked(id); };
        return "%1%2%3"_q.arg(is(1010)).arg(is(1011)).arg(is(1012));
    };
    m_window.CheckRadioButton(1010, 1012, 1011);
    EXPECT_EQ(checked(), "010"_q);
    EXPECT_TRUE(CheckRadioButton_E(&m_dialog, 0, -1, 1012));
    EXPECT_EQ(checked(), "001"_q);
    m_window.CheckDlgButton(1012, BST_UNCHECKED);
    EXPECT_EQ(checked(), "000"_q);
    EXPECT_TRUE(m_dialog.findChild<QRadioButton*>("m_radioC"_q)->autoExclusive());
    EXPECT_FALSE(CheckRadioButton_E(nullptr, 1010, 1012, 1011) || IsDlgButtonChecked_E(nullptr, 1));
}

TEST(Controls, ScrollBars)
{
    QScrollArea area;
    QWidget plain;
    auto* const pBar = new QScrollBar(Qt::Vertical, &plain);
    // the last two: whether the bars of the area are enabled then
    const Row<UINT, UINT, BOOL, bool, bool> rows[] = {
        {SB_HORZ, ESB_DISABLE_BOTH, TRUE, false, true},
        {SB_VERT, ESB_DISABLE_LTUP, FALSE, false, true},
        {SB_BOTH, ESB_DISABLE_BOTH, TRUE, false, false},
        {SB_BOTH, ESB_DISABLE_BOTH, FALSE, false, false}};
    forRows(rows, [&](UINT bars, UINT arrows, BOOL changed, bool horizontal, bool vertical) {
        EXPECT_EQ(EnableScrollBar_E(&area, bars, arrows), changed);
        EXPECT_EQ(area.horizontalScrollBar()->isEnabled(), horizontal);
        EXPECT_EQ(area.verticalScrollBar()->isEnabled(), vertical);
    });
    EXPECT_FALSE(EnableScrollBar_E(&plain, SB_HORZ, ESB_DISABLE_BOTH) ||
                 EnableScrollBar_E(nullptr, SB_BOTH, ESB_DISABLE_BOTH));
    EXPECT_TRUE(EnableScrollBar_E(&plain, SB_BOTH, ESB_DISABLE_BOTH) && !pBar->isEnabled());
    EXPECT_TRUE(EnableScrollBar_E(pBar, SB_CTL, ESB_ENABLE_BOTH) && pBar->isEnabled());
}
