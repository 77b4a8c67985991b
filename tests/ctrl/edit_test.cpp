#include "controls.h"
#include "support/xinput.h"

#include <VxCustomUI.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <X11/keysym.h>

namespace {

using namespace vxtest;

constexpr tagRECT kRect{0, 0, 200, 60};
wchar_t g_buffer[8];

class Edit : public CEdit_E
{
public:
    void SetStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
};

/// Calls @p check with edit controls of a single line, and of many lines when the second argument
/// says so, which take a selection without the focus.
template <typename Check>
void forKinds(const Check& check)
{
    QWidget parent;
    const Row<bool, QWidget*> kinds[] = {
        {false, nullptr}, {false, new QLineEdit(&parent)}, {false, new VxCUILineEdit(&parent)},
        {true, nullptr},  {true, new QTextEdit(&parent)},  {true, new VxCUITextEdit(&parent)},
    };
    forRows(kinds, [&](bool bText, QWidget* pFound) {
        Edit edit;
        edit.SetStyle(ES_NOHIDESEL);
        if (pFound)
            ASSERT_TRUE(edit.SubclassWindow(pFound));
        else
            ASSERT_TRUE(edit.Create(ES_NOHIDESEL | (bText ? ES_MULTILINE : 0), kRect, &parent));
        check(edit, bText);
    });
}

/// Chooses the result of a single line or the one of many.
auto chooser(bool bText)
{
    return [bText](LRESULT line, LRESULT lines) { return bText ? lines : line; };
}

QString textOf(const CEdit_E& edit, bool bText)
{
    return edit.GetSafeHwnd()->property(bText ? "plainText" : "text").toString();
}

TEST(Edit, StyleAndLook)
{
    forKinds([](Edit& edit, bool bText) {
        EXPECT_EQ((edit.GetStyle() & ES_MULTILINE) != 0, bText);
        const bool bMade = !edit.IsExternalImpObj();
        if (const auto* const pText = qobject_cast<QTextEdit*>(edit.GetSafeHwnd())) {
            EXPECT_EQ(pText->lineWrapMode() == QTextEdit::NoWrap, bMade);
            EXPECT_EQ(pText->contextMenuPolicy() == Qt::NoContextMenu, bMade);
            for (const QScrollBar* pBar :
                 {pText->verticalScrollBar(), pText->horizontalScrollBar()})
                EXPECT_NE(pBar->isEnabled(), bMade);
            EXPECT_EQ(pText->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff, bMade);
            EXPECT_EQ(pText->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff, bMade);
        }
    });
}

TEST(Edit, Selection)
{
    forKinds([](Edit& edit, bool bText) {
        edit.SetWindowText(L"123456");
        DWORD first = 0, last = 0;
        for (const Selection& row : kSelections) {
            const LRESULT set = bText ? row.lines : row.line;
            // clang-format off
            runSteps(edit, {
                {EM_SETSEL, 1, 1, 0}, {EM_SETSEL, row.nStart, row.nEnd, 0},
                {EM_GETSEL, at(&first), at(&last), set},
            });
            // clang-format on
            EXPECT_EQ(MAKELONG(first, last), set);
        }
        edit.SetSel(MAKELONG(1, 3));
        edit.ReplaceSel(L"X\x1F600");
        EXPECT_EQ(textOf(edit, bText), "1X\U0001F600456"_q);
        edit.SetStyle(0);
        edit.SetSel(0, -1); // without the focus
        EXPECT_EQ(edit.GetSel(), MAKELONG(4, 4));
    });
}

TEST(Edit, TextAndState)
{
    forKinds([](Edit& edit, bool bText) {
        const auto of = chooser(bText);
        edit.SetWindowText(L"<b>x</b>"); // Intended: markup, where there are many lines
        EXPECT_EQ(textOf(edit, bText), bText ? "x"_q : "<b>x</b>"_q);
        edit.SetWindowText(L"abc");
        const EDITBALLOONTIP tip{0, L"<", nullptr, 0};
        const QSignalSpy changes(edit.GetSafeHwnd(),
                                 bText ? SIGNAL(textChanged()) : SIGNAL(textChanged(QString)));
        // clang-format off
        runSteps(edit, {
            {EM_SETMODIFY, TRUE, 0}, {EM_GETMODIFY, TRUE}, {EM_SETMODIFY, 0}, {EM_GETMODIFY, 0},
            {EM_SETREADONLY, TRUE, TRUE}, {"readOnly", true}, {EM_SETREADONLY, TRUE},
            {"readOnly", false}, {EM_CANUNDO, FALSE}, {EM_UNDO, of(TRUE, FALSE)},
            {EM_SETSEL, 0, -1, 0}, {EM_REPLACESEL, TRUE, 0}, {EM_LINELENGTH, 0}, {EM_CANUNDO, TRUE},
            {EM_UNDO, TRUE}, {EM_LINELENGTH, 3}, {EM_SETCUEBANNER, TRUE, at(L"Long hint"), TRUE},
            {EM_GETCUEBANNER, at(g_buffer), 8, TRUE}, {g_buffer, "Long hi"_q},
            {EM_SETCUEBANNER, TRUE}, {EM_GETCUEBANNER, 0, 8, FALSE},
            {EM_SHOWBALLOONTIP, 0, at(&tip), TRUE}, {EM_SHOWBALLOONTIP, FALSE},
            {EM_HIDEBALLOONTIP, TRUE},
        });
        // clang-format on
        EXPECT_TRUE(edit.GetCueBanner().IsEmpty() && !(edit.GetStyle() & ES_READONLY));
        edit.SetSel(0, 2);
        edit.Cut();
        edit.SetSel(-1, 0);
        edit.Paste();
        edit.SetSel(0, 1);
        edit.Copy();
        edit.SetSel(-1, 0);
        edit.Paste();
        EXPECT_EQ(textOf(edit, bText), "cabc"_q);
        edit.SetSel(1, 2);
        const int nChanges = changes.count();
        edit.SetModify();
        edit.EmptyUndoBuffer();
        EXPECT_TRUE(!edit.CanUndo() && edit.GetModify() && edit.GetSel() == MAKELONG(1, 2));
        EXPECT_EQ(changes.count(), nChanges);
        edit.Clear(); // Intended: all of it
        EXPECT_EQ(textOf(edit, bText), ""_q);
    });
}

TEST(Edit, Lines)
{
    forKinds([](Edit& edit, bool bText) {
        const auto of = chooser(bText);
        edit.SetWindowText(bText ? L"first\nsecond\n\nlast" : L"only");
        wchar_t room[8] = L"\3";
        // clang-format off
        runSteps(edit, {
            {EM_GETLINECOUNT, of(1, 4)}, {EM_LINELENGTH, 1, of(4, 18)},
            {EM_LINEINDEX, 1, of(-1, 6)}, {EM_LINEINDEX, 2, of(-1, 13)}, {EM_LINEINDEX, 4, -1},
            {EM_LINEINDEX, INT_MIN, -1}, {EM_LINEFROMCHAR, 5, 0}, {EM_LINEFROMCHAR, 6, of(0, 1)},
            {EM_LINEFROMCHAR, 1000, of(0, 3)}, {EM_SETSEL, -1, -1, 0},
            {EM_LINEFROMCHAR, -1, of(0, 3)}, {EM_LINEINDEX, -1, of(0, 14)},
            {EM_GETLINE, 1, at(room), 3}, {EM_GETLINE, 0}, {EM_FMTLINES, TRUE, of(0, 1)},
            {EM_FMTLINES, FALSE}, {EM_SETTABSTOPS, 2, 0, FALSE},
        });
        // clang-format on
        EXPECT_EQ(room[2], bText ? L'c' : L'l');
        EXPECT_EQ(edit.GetLine(0, g_buffer, 4), 4);
        EXPECT_EQ(g_buffer[3], bText ? L's' : L'y') << "no end";
        EXPECT_EQ(edit.GetLine(2, g_buffer, 8), bText ? 0 : 4);
        EXPECT_EQ(edit.SetTabStops(16), bText);
    });
}

TEST(Edit, PlacesAndScrolling)
{
    forKinds([](Edit& edit, bool bText) {
        const auto of = chooser(bText);
        edit.MoveWindow(&kRect);
        edit.GetSafeHwnd()->window()->show();
        edit.ShowWindow(SW_SHOW);
        const QString lines = bText ? "\nline"_q.repeated(30) : ""_q;
        edit.SetWindowText(CString_E("abcdefgh"_q + lines).GetString());
        const CPoint_E first = edit.PosFromChar(0);
        const CPoint_E fifth = edit.PosFromChar(4);
        EXPECT_GT(fifth.x, first.x + 8);
        EXPECT_EQ(edit.CharFromPos(CPoint_E(fifth.x + 1, fifth.y + 5)), 4);
        CRect_E place(3, 4, 103, 54), got;
        // clang-format off
        runSteps(edit, {
            {EM_CHARFROMPOS, 0, MAKELPARAM(fifth.x + 1, fifth.y + 5), 4},
            {EM_POSFROMCHAR, 4, MAKELPARAM(fifth.x, first.y)}, {EM_POSFROMCHAR, 1000, -1},
            {EM_GETFIRSTVISIBLELINE, 0}, {EM_LINESCROLL, 0, 10, of(0, 1)},
            {EM_GETFIRSTVISIBLELINE, of(0, 10)}, {EM_SCROLL, SB_LINEUP, of(0, MAKELONG(-1, TRUE))},
            {EM_SCROLL, 99, 0}, {EM_LINESCROLL, INT_MIN, INT_MIN, of(0, 1)}, {EM_GETTHUMB, 0},
            {EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(7, 9), 0},
            {EM_GETMARGINS, MAKELONG(7, 9)}, {EM_GETRECT, 0, at<tagRECT>(&got), 0}, {EM_GETRECT, 0},
        });
        // clang-format on
        EXPECT_EQ(got, CRect_E(kRect));
        EXPECT_EQ(edit.CharFromPos(edit.PosFromChar(9)), of(0, MAKELONG(9, 1)));
        EXPECT_EQ(edit.PosFromChar(0).x, first.x + 7);
        // clang-format off
        runSteps(edit, {
            {EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(3, 4), 0}, {EM_GETMARGINS, MAKELONG(3, 9)},
            {EM_SETRECT, 0, at<tagRECT>(&place), 0}, {EM_SETRECT, 0},
            {"geometry", QRect(3, 4, 100, 50)},
        });
        // clang-format on
    });
}

TEST(Edit, Limit)
{
    forKinds([](Edit& edit, bool bText) {
        EXPECT_GE(edit.GetLimitText(), 30000U);
        runSteps(edit, {{EM_SETLIMITTEXT, 5, 0}, {EM_GETLIMITTEXT, 5}});
        QTest::keyClicks(edit.GetSafeHwnd(), "abcdefg"_q);
        edit.SetSel(1, 3);
        QGuiApplication::clipboard()->setText("wxyz"_q);
        QTest::keySequence(edit.GetSafeHwnd(), QKeySequence::Paste);
        EXPECT_EQ(textOf(edit, bText), "awxde"_q);
        edit.LimitText();
        QTest::keyClicks(edit.GetSafeHwnd(), "123"_q);
        EXPECT_EQ(textOf(edit, bText), "awx123de"_q);
    });
}

TEST(Edit, CharacterStyles)
{
    QWidget parent;
    const Row<DWORD, const char*, const char*> rows[] = {
        {ES_NUMBER, "1a2-", "12"}, {ES_UPPERCASE, "aB1", "AB1"}, {ES_LOWERCASE, "aB1", "ab1"},
        {ES_READONLY, "a", ""},    {ES_PASSWORD, "ab", "ab"},
    };
    forRows(rows, [&](DWORD dwStyle, const char* pszTyped, const char* pszText) {
        Edit edit;
        ASSERT_TRUE(edit.Create(dwStyle | ES_RIGHT, kRect, &parent));
        auto* const pLine = qobject_cast<QLineEdit*>(edit.GetSafeHwnd());
        QTest::keyClicks(pLine, QString::fromLatin1(pszTyped));
        EXPECT_EQ(pLine->text(), QString::fromLatin1(pszText));
        EXPECT_TRUE(pLine->alignment() & Qt::AlignRight);
        EXPECT_EQ(edit.GetPasswordChar() != 0, dwStyle == ES_PASSWORD);
        EXPECT_EQ((edit.GetStyle() & ES_READONLY) != 0, dwStyle == ES_READONLY);
        edit.SetPasswordChar(0);
        EXPECT_FALSE(edit.GetPasswordChar() || edit.GetStyle() & ES_PASSWORD);
        runSteps(edit, {{EM_SETPASSWORDCHAR, L'#', 0}, {EM_GETPASSWORDCHAR, L'#'}});
    });
}

TEST(Edit, TakesItsStyleFromTheWidget)
{
    QLineEdit line;
    line.setReadOnly(true);
    line.setEchoMode(QLineEdit::Password);
    QTextEdit text;
    text.setReadOnly(true);
    CEdit_E edit;
    const Row<QWidget*, DWORD> rows[] = {{&text, ES_MULTILINE | ES_READONLY},
                                         {&text, ES_MULTILINE},
                                         {&line, ES_READONLY | ES_PASSWORD}};
    forRows(rows, [&](QWidget* pWidget, DWORD dwStyle) {
        ASSERT_TRUE(edit.SubclassWindow(pWidget));
        EXPECT_EQ(edit.GetStyle() & (ES_MULTILINE | ES_READONLY | ES_PASSWORD), dwStyle);
        text.setReadOnly(false);
    });
    EXPECT_TRUE(text.verticalScrollBar()->isEnabled()) << "bound again, it keeps the form's look";
}

TEST(Edit, SlotsThatDeleteIt)
{
    QLineEdit line;
    line.setText("long text"_q);
    auto pEdit = std::make_unique<CEdit_E>();
    ASSERT_TRUE(pEdit->SubclassWindow(&line));
    const auto drop = QObject::connect(&line, &QLineEdit::textChanged, [&] { pEdit.reset(); });
    line.insert("!"_q);
    EXPECT_FALSE(pEdit);
    for (const bool undo : {true, false}) {
        pEdit = std::make_unique<CEdit_E>();
        ASSERT_TRUE(pEdit->SubclassWindow(&line));
        if (undo)
            EXPECT_TRUE(pEdit->Undo());
        else
            pEdit->SetLimitText(3);
        EXPECT_FALSE(pEdit);
    }
    EXPECT_EQ(line.text(), "lon"_q);
}

TEST(Edit, ScrollBarsOfTheWindow)
{
    CEdit_E edit;
    ASSERT_TRUE(edit.Create(ES_MULTILINE | WS_VSCROLL, kRect, static_cast<QWidget*>(nullptr)));
    edit.SetWindowText(L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10");
    edit.ShowWindow(SW_SHOW);
    const auto* const pInner = qobject_cast<QTextEdit*>(edit.GetSafeHwnd())->verticalScrollBar();
    auto* const pBar =
        edit.GetSafeHwnd()->findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(pBar && waitUntil([&] { return pBar->maximum() > 0; }));
    pBar->triggerAction(QScrollBar::SliderToMaximum);
    EXPECT_EQ(pInner->value(), pInner->maximum());
    edit.LineScroll(-3);
    EXPECT_EQ(edit.GetScrollPos(SB_VERT), pInner->value());
    EXPECT_LT(pInner->value(), pInner->maximum());
    EXPECT_EQ(edit.GetMargins(), 0U);
}

TEST(Edit, RealTyping)
{
    VXTEST_NEEDS_X11();
    QWidget window;
    CEdit_E line;
    CEdit_E text;
    ASSERT_TRUE(line.Create(WS_VISIBLE, kRect, &window));
    ASSERT_TRUE(text.Create(WS_VISIBLE | ES_MULTILINE, {0, 70, 200, 150}, &window));
    ASSERT_TRUE(showAndActivate(&window));
    for (CEdit_E* const pEdit : {&line, &text}) {
        pEdit->SetFocus();
        for (const unsigned long key : {XK_a, XK_b, XK_Return, XK_c, XK_Left})
            typeKey(key);
        const int nLines = pEdit == &text ? 2 : 1;
        EXPECT_TRUE(waitUntil([&] {
            return pEdit->GetSel() == MAKELONG(nLines + 1, nLines + 1) &&
                   pEdit->LineLength() == nLines + 2;
        }));
        EXPECT_EQ(pEdit->GetLineCount(), nLines);
        EXPECT_TRUE(pEdit->GetModify() && pEdit->CanUndo());
        pEdit->SetSel(0, -1); // it has the focus
        EXPECT_EQ(pEdit->GetSel(), MAKELONG(0, nLines + 2));
    }
}

} // namespace
