#include <VxMFCEmu/text/cstring.h>
#include <VxMFCEmu/wnd/controlmessages.h>
#include <VxMFCEmu/wnd/wincodes.h>
#include <VxMFCEmu/wnd/windowtext.h>

#include <QtWidgets/QtWidgets>

#include <gtest/gtest.h>

#include <memory>

namespace {

template <typename Widget>
Widget* named(QWidget* pParent, const char* name)
{
    auto* const pWidget = new Widget(pParent);
    pWidget->setObjectName(QString::fromLatin1(name));
    return pWidget;
}

} // namespace

TEST(WindowText, WhatTheTextIs)
{
    const auto pCombo = std::make_shared<QComboBox>();
    pCombo->setEditable(true);
    struct
    {
        int line;
        std::shared_ptr<QWidget> pWidget;
        const char* property;
    } const rows[] = {
        {__LINE__, std::make_shared<QWidget>(), "windowTitle"},
        {__LINE__, std::make_shared<QDialog>(), "windowTitle"},
        {__LINE__, std::make_shared<QPushButton>(), "text"},
        {__LINE__, std::make_shared<QLineEdit>(), "text"},
        {__LINE__, std::make_shared<QLabel>(), "text"},
        {__LINE__, std::make_shared<QGroupBox>(), "title"},
        {__LINE__, std::make_shared<QTextEdit>(), "plainText"},
        {__LINE__, std::make_shared<QPlainTextEdit>(), "plainText"},
        {__LINE__, pCombo, "currentText"},
    };
    for (const auto& [line, pWidget, property] : rows) {
        SCOPED_TRACE(line);
        EXPECT_TRUE(SetWindowText_E(pWidget.get(), L"<b>&x\x1F600"));
        EXPECT_EQ(pWidget->property(property), QString::fromUtf8("<b>&x\xF0\x9F\x98\x80"));
        EXPECT_EQ(GetWindowTextLength_E(pWidget.get()), 6);
        CString_E strText;
        EXPECT_EQ(GetWindowText_E(pWidget.get(), strText), 6);
        EXPECT_EQ(strText.Compare(L"<b>&x\x1F600"), 0);
        EXPECT_TRUE(SetWindowText_E(pWidget.get(), nullptr));
        EXPECT_EQ(GetWindowTextLength_E(pWidget.get()), 0);
    }
}

TEST(WindowText, FixedComboAndSpinBox)
{
    QComboBox combo;
    combo.addItems({QStringLiteral("one"), QStringLiteral("two")});
    EXPECT_FALSE(SetWindowText_E(&combo, L"two"));
    EXPECT_EQ(GetWindowTextLength_E(&combo), 3);
    EXPECT_EQ(combo.currentIndex(), 0);
    QSpinBox spin;
    EXPECT_TRUE(SetWindowText_E(&spin, L"42"));
    EXPECT_EQ(spin.value(), 42);
}

TEST(WindowText, Buffers)
{
    QWidget widget;
    widget.setWindowTitle(QStringLiteral("abcdef"));
    struct
    {
        int line, room, length;
        const wchar_t* text;
    } const rows[] = {
        {__LINE__, 10, 6, L"abcdef"}, {__LINE__, 7, 6, L"abcdef"}, {__LINE__, 6, 5, L"abcde"},
        {__LINE__, 1, 0, L""},        {__LINE__, 0, 0, L"#"},      {__LINE__, -1, 0, L"#"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        wchar_t buffer[10] = L"#";
        EXPECT_EQ(GetWindowText_E(&widget, buffer, row.room), row.length);
        EXPECT_STREQ(buffer, row.text);
    }
    CString_E strText(L"old");
    EXPECT_EQ(GetWindowText_E(nullptr, strText), 0);
    EXPECT_TRUE(strText.IsEmpty());
    EXPECT_EQ(GetWindowText_E(&widget, nullptr, 5), 0);
    EXPECT_FALSE(SetWindowText_E(nullptr, L"x") || GetWindowTextLength_E(nullptr));
}

TEST(DialogItems, Numbers)
{
    QWidget dialog;
    auto* const pEdit = named<QLineEdit>(&dialog, "m_edit");
    struct
    {
        int line;
        const wchar_t* text;
        BOOL isSigned;
        UINT value;
        BOOL translated;
    } const rows[] = {
        {__LINE__, L"12", TRUE, 12, TRUE},
        {__LINE__, L" \t-12 mm", TRUE, static_cast<UINT>(-12), TRUE},
        {__LINE__, L"-12", FALSE, 0, FALSE},
        {__LINE__, L"4294967295", FALSE, 4294967295U, TRUE},
        {__LINE__, L"4294967296", FALSE, 0, FALSE},
        {__LINE__, L"2147483648", TRUE, 0, FALSE},
        {__LINE__, L"-2147483648", TRUE, 0x80000000U, TRUE},
        {__LINE__, L"99999999999999999999999", TRUE, 0, FALSE},
        {__LINE__, L"", TRUE, 0, FALSE},
        {__LINE__, L"-", TRUE, 0, FALSE},
        {__LINE__, L"x1", TRUE, 0, FALSE},
        {__LINE__, L"0", TRUE, 0, TRUE},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_TRUE(SetDlgItemText_E(&dialog, 1001, row.text));
        BOOL translated = 2;
        EXPECT_EQ(GetDlgItemInt_E(&dialog, 1001, &translated, row.isSigned), row.value);
        EXPECT_EQ(translated, row.translated);
    }
    EXPECT_TRUE(SetDlgItemInt_E(&dialog, 1001, static_cast<UINT>(-7)));
    EXPECT_EQ(pEdit->text(), QStringLiteral("-7"));
    EXPECT_TRUE(SetDlgItemInt_E(&dialog, 1001, static_cast<UINT>(-7), FALSE));
    wchar_t buffer[6];
    EXPECT_EQ(GetDlgItemText_E(&dialog, 1001, buffer, 6), 5);
    EXPECT_STREQ(buffer, L"42949");
    BOOL translated = TRUE;
    EXPECT_EQ(GetDlgItemInt_E(&dialog, 1002, &translated), 0U);
    EXPECT_FALSE(translated || SetDlgItemInt_E(&dialog, 1002, 1) ||
                 SetDlgItemText_E(nullptr, 1001, L"x"));
}

TEST(DialogItems, Checks)
{
    QWidget dialog;
    auto* const pCheck = named<QCheckBox>(&dialog, "m_check");
    auto* const pThree = named<QCheckBox>(&dialog, "m_tristate");
    named<QWidget>(&dialog, "m_edit");
    pThree->setTristate(true);
    int clicks = 0;
    QObject::connect(pCheck, &QCheckBox::clicked, [&clicks] { ++clicks; });
    struct
    {
        int line, id;
        UINT check, checked;
        BOOL done;
    } const rows[] = {
        {__LINE__, 1003, BST_CHECKED, BST_CHECKED, TRUE},
        {__LINE__, 1003, BST_UNCHECKED, BST_UNCHECKED, TRUE},
        {__LINE__, 1003, BST_INDETERMINATE, BST_CHECKED, TRUE},
        {__LINE__, 1004, BST_INDETERMINATE, BST_INDETERMINATE, TRUE},
        {__LINE__, 1004, BST_CHECKED, BST_CHECKED, TRUE},
        {__LINE__, 1004, BST_UNCHECKED, BST_UNCHECKED, TRUE},
        {__LINE__, 1001, BST_CHECKED, BST_UNCHECKED, FALSE}, // no button
        {__LINE__, 77, BST_CHECKED, BST_UNCHECKED, FALSE},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(CheckDlgButton_E(&dialog, row.id, row.check), row.done);
        EXPECT_EQ(IsDlgButtonChecked_E(&dialog, row.id), row.checked);
    }
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(IsDlgButtonChecked_E(nullptr, 1003), UINT{BST_UNCHECKED});
}

TEST(DialogItems, RadioButtons)
{
    QWidget dialog;
    QRadioButton* const buttons[] = {named<QRadioButton>(&dialog, "m_radioA"),
                                     named<QRadioButton>(&dialog, "m_radioB"),
                                     named<QRadioButton>(&dialog, "m_radioC")};
    const auto checked = [&buttons] {
        QString which;
        for (const QRadioButton* pButton : buttons)
            which += QLatin1Char(pButton->isChecked() ? '1' : '0');
        return which;
    };
    EXPECT_TRUE(CheckRadioButton_E(&dialog, 1010, 1012, 1011));
    EXPECT_EQ(checked(), QStringLiteral("010"));
    EXPECT_TRUE(CheckRadioButton_E(&dialog, 0, -1, 1012));
    EXPECT_EQ(checked(), QStringLiteral("001"));
    EXPECT_TRUE(CheckDlgButton_E(&dialog, 1012, BST_UNCHECKED));
    EXPECT_EQ(checked(), QStringLiteral("000"));
    EXPECT_TRUE(buttons[2]->autoExclusive());
    EXPECT_FALSE(CheckRadioButton_E(nullptr, 1010, 1012, 1011));
}

TEST(Controls, TextLimit)
{
    QLineEdit edit;
    EXPECT_TRUE(SetEditLimitText_E(&edit, 3));
    edit.insert(QStringLiteral("abcdef"));
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
    EXPECT_TRUE(SetEditLimitText_E(&edit, 0));
    edit.setText(QString(40000, QLatin1Char('x')));
    EXPECT_EQ(edit.text().size(), 40000);
    QComboBox combo;
    EXPECT_FALSE(SetEditLimitText_E(&combo, 3));
    combo.setEditable(true);
    EXPECT_TRUE(SetEditLimitText_E(&combo, 3));
    EXPECT_EQ(combo.lineEdit()->maxLength(), 3);
    EXPECT_FALSE(SetEditLimitText_E(nullptr, 3));
}

TEST(Controls, ScrollBars)
{
    QScrollArea area;
    QWidget plain;
    auto* const pBar = new QScrollBar(Qt::Vertical, &plain);
    struct
    {
        int line;
        HWND window;
        UINT bars, arrows;
        BOOL changed;
        bool horizontal, vertical, own; // enabled afterwards
    } const rows[] = {
        {__LINE__, &area, SB_HORZ, ESB_DISABLE_BOTH, TRUE, false, true, true},
        {__LINE__, &area, SB_HORZ, ESB_DISABLE_BOTH, FALSE, false, true, true},
        {__LINE__, &area, SB_VERT, ESB_DISABLE_LTUP, FALSE, false, true, true},
        {__LINE__, &area, SB_BOTH, ESB_DISABLE_BOTH, TRUE, false, false, true},
        {__LINE__, &area, SB_BOTH, ESB_ENABLE_BOTH, TRUE, true, true, true},
        {__LINE__, &area, SB_CTL, ESB_DISABLE_BOTH, FALSE, true, true, true},
        {__LINE__, &plain, SB_HORZ, ESB_DISABLE_BOTH, FALSE, true, true, true},
        {__LINE__, &plain, SB_BOTH, ESB_DISABLE_BOTH, TRUE, true, true, false},
        {__LINE__, pBar, SB_CTL, ESB_ENABLE_BOTH, TRUE, true, true, true},
        {__LINE__, nullptr, SB_BOTH, ESB_DISABLE_BOTH, FALSE, true, true, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(EnableScrollBar_E(row.window, row.bars, row.arrows), row.changed);
        EXPECT_EQ(area.horizontalScrollBar()->isEnabled(), row.horizontal);
        EXPECT_EQ(area.verticalScrollBar()->isEnabled(), row.vertical);
        EXPECT_EQ(pBar->isEnabled(), row.own);
    }
}
