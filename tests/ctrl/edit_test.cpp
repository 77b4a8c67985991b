#include "controls.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

namespace {

using namespace vxtest;

constexpr tagRECT kRect{0, 0, 200, 60};
/// Calls @p check with edit controls of a single line and of many lines, which take a selection
/// without the focus, and with what chooses the result of the one or of the other.
template <typename Check>
void forKinds(const Check& check)
{
    QWidget parent;
    for (const bool bText : {false, true}) {
        SCOPED_TRACE(bText ? "many lines" : "a single line");
        CEdit_E edit;
        ASSERT_TRUE(edit.Create(ES_NOHIDESEL | (bText ? ES_MULTILINE : 0), kRect, &parent));
        check(edit, [bText](auto line, auto lines) { return bText ? lines : line; });
    }
}

TEST(Edit, StyleAndLook)
{
    QWidget parent;
    CEdit_E made;
    ASSERT_TRUE(made.Create(ES_MULTILINE, kRect, &parent));
    auto* const pText = qobject_cast<QTextEdit*>(made.GetSafeHwnd());
    ASSERT_TRUE(pText);
    EXPECT_EQ(pText->lineWrapMode(), QTextEdit::NoWrap);
    EXPECT_EQ(pText->contextMenuPolicy(), Qt::NoContextMenu);
    EXPECT_EQ(pText->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_FALSE(pText->horizontalScrollBar()->isEnabled());
    made.SetWindowText(L"abc");
    made.SetSel(0, -1); // nothing without the focus or ES_NOHIDESEL
    EXPECT_EQ(made.GetSel(), 0U);
    QLineEdit line;
    line.setReadOnly(true);
    line.setEchoMode(QLineEdit::Password);
    QTextEdit text;
    CEdit_E edit;
    for (const auto& [pWidget, dwStyle] : {Row<QWidget*, DWORD>{&text, ES_MULTILINE},
                                           {&text, ES_MULTILINE},
                                           {&line, ES_READONLY | ES_PASSWORD}}) {
        ASSERT_TRUE(edit.SubclassWindow(pWidget));
        EXPECT_EQ(edit.GetStyle() & (ES_MULTILINE | ES_READONLY | ES_PASSWORD), dwStyle);
    }
    EXPECT_TRUE(text.verticalScrollBar()->isEnabled()) << "bound again, it keeps the form's look";
    EXPECT_EQ(text.lineWrapMode(), QTextEdit::WidgetWidth);
}

TEST(Edit, LimitSelectionAndState)
{
    forKinds([](CEdit_E& edit, auto of) {
        runSteps(edit, {{EM_SETLIMITTEXT, 5, 0}, {EM_GETLIMITTEXT, 5}});
        QTest::keyClicks(edit.GetSafeHwnd(), "abcdefg"_q);
        edit.SetSel(1, 3);
        QGuiApplication::clipboard()->setText("wxyz"_q);
        QTest::keySequence(edit.GetSafeHwnd(), QKeySequence::Paste);
        runSteps(edit, {{"awxde"_q}});
        edit.LimitText();

        edit.SetWindowText(L"123456");
        for (const auto& [nStart, nEnd, line, lines, combo] : kSelections) {
            edit.SetSel(1, 1);
            edit.SetSel(nStart, nEnd);
            EXPECT_EQ(edit.GetSel(), of(line, lines)) << nStart;
        }
        edit.SetSel(MAKELONG(1, 3));
        edit.ReplaceSel(L"X\x1F600");
        runSteps(edit, {{"1X\U0001F600456"_q}});
        edit.SetWindowText(L"<b>x</b>"); // Intended: markup, where there are many lines
        runSteps(edit, {{of("<b>x</b>"_q, "x"_q)}});
        edit.SetWindowText(L"abc");
        DWORD last = 0;
        wchar_t cue[8] = L"";
        const EDITBALLOONTIP tip{0, L"<", nullptr, 0};
        edit.SetReadOnly();
        EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
        // clang-format off
        runSteps(edit, {
            {EM_SETMODIFY, TRUE, 0}, {EM_GETMODIFY, TRUE}, {EM_SETMODIFY, 0}, {EM_GETMODIFY, 0},
            {"readOnly", true}, {EM_SETREADONLY, TRUE}, {"readOnly", false},
            {EM_CANUNDO, FALSE}, {EM_UNDO, of(TRUE, FALSE)}, {EM_SETSEL, 0, -1, 0},
            {EM_GETSEL, 0, at(&last), MAKELONG(0, 3)}, {EM_REPLACESEL, TRUE, 0},
            {EM_LINELENGTH, 0}, {EM_CANUNDO, TRUE}, {EM_UNDO, TRUE}, {EM_LINELENGTH, 3},
            {EM_SETCUEBANNER, TRUE, at(L"Long hint"), TRUE}, {EM_GETCUEBANNER, at(cue), 8, TRUE},
            {cue, "Long hi"_q}, {EM_GETCUEBANNER, 0, 8, FALSE},
            {EM_SHOWBALLOONTIP, 0, at(&tip), TRUE}, {EM_SHOWBALLOONTIP, FALSE},
            {EM_HIDEBALLOONTIP, TRUE},
        });
        // clang-format on
        EXPECT_EQ(last, 3U);
        edit.SetSel(0, 2);
        edit.Cut();
        edit.Paste();
        edit.Paste();
        runSteps(edit, {{"ababc"_q}});
        edit.SetSel(1, 2);
        const QSignalSpy changes(edit.GetSafeHwnd(), SIGNAL(selectionChanged()));
        edit.SetModify();
        edit.EmptyUndoBuffer();
        EXPECT_TRUE(!edit.CanUndo() && edit.GetModify() && edit.GetSel() == MAKELONG(1, 2));
        EXPECT_EQ(changes.count(), 0);
        edit.Clear(); // Intended: all of it
        runSteps(edit, {{""_q}});
    });
}

TEST(Edit, LinesPlacesAndScrolling)
{
    forKinds([](CEdit_E& edit, auto of) {
        edit.SetWindowText(of(L"only", L"first\nsecond\n\nlast"));
        wchar_t room[8] = L"\3";
        const int stops[] = {8, 40};
        // clang-format off
        runSteps(edit, {
            {EM_GETLINECOUNT, of(1, 4)}, {EM_LINELENGTH, 1, of(4, 18)},
            {EM_LINEINDEX, 1, of(-1, 6)}, {EM_LINEINDEX, 4, -1}, {EM_LINEINDEX, INT_MIN, -1},
            {EM_LINEFROMCHAR, 5, 0}, {EM_LINEFROMCHAR, 6, of(0, 1)}, {EM_SETSEL, -1, -1, 0},
            {EM_LINEFROMCHAR, -1, of(0, 3)}, {EM_LINEINDEX, -1, of(0, 14)},
            {EM_GETLINE, 1, at(room), 3}, {EM_GETLINE, 0}, {EM_FMTLINES, TRUE, of(0, 1)},
            {EM_SETTABSTOPS, 2, 0, FALSE}, {EM_SETTABSTOPS, 2, at(stops), of(FALSE, TRUE)},
        });
        // clang-format on
        EXPECT_EQ(room[2], of(L'l', L'c')) << "no end";
        EXPECT_EQ(edit.SetTabStops(16), of(FALSE, TRUE));

        edit.GetSafeHwnd()->window()->show();
        edit.ShowWindow(SW_SHOW);
        const QString strLines = "\nline"_q.repeated(of(0, 30));
        edit.SetWindowText(CString_E("abcdefgh"_q + strLines).GetString());
        tagRECT place = kRect, got{};
        // clang-format off
        runSteps(edit, {
            {EM_SETRECT, 0, at(&place), 0}, {EM_SETRECT, 0}, {EM_GETRECT, 0, at(&got), 0},
            {EM_GETRECT, 0},
        });
        // clang-format on
        EXPECT_EQ(CRect_E(got), CRect_E(kRect));
        const CPoint_E first = edit.PosFromChar(0);
        const CPoint_E fifth = edit.PosFromChar(4);
        EXPECT_GT(fifth.x, first.x + 8);
        // clang-format off
        runSteps(edit, {
            {EM_CHARFROMPOS, 0, MAKELPARAM(fifth.x + 1, fifth.y + 5), 4},
            {EM_CHARFROMPOS, 0, MAKELPARAM(fifth.x - 2, fifth.y + 5), 4},
            {EM_POSFROMCHAR, 4, MAKELPARAM(fifth.x, first.y)}, {EM_POSFROMCHAR, 1000, -1},
            {EM_GETFIRSTVISIBLELINE, 0}, {EM_LINESCROLL, 0, 10, of(0, 1)},
            {EM_GETFIRSTVISIBLELINE, of(0, 10)}, {EM_SCROLL, SB_LINEUP, of(0U, MAKELONG(-1, TRUE))},
            {EM_LINESCROLL, INT_MIN, INT_MIN, of(0, 1)}, {EM_GETTHUMB, 0},
            {EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(7, 9), 0},
            {EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(3, 4), 0}, {EM_GETMARGINS, MAKELONG(3, 9)},
        });
        // clang-format on
        EXPECT_EQ(edit.CharFromPos(edit.PosFromChar(9)), of(0, 0x10009));
        EXPECT_EQ(edit.PosFromChar(0).x, first.x + 3);
    });
}

TEST(Edit, CharacterStyles)
{
    QWidget parent;
    const Row<DWORD, const char*, const char*> rows[] = {
        {ES_NUMBER, "1a2-", "12"},
        {ES_UPPERCASE, "aB1", "AB1"},
        {ES_LOWERCASE, "aB1", "ab1"},
        {ES_PASSWORD, "ab", "ab"},
    };
    forRows(rows, [&](DWORD dwStyle, const char* pszTyped, const char* pszText) {
        CEdit_E edit;
        ASSERT_TRUE(edit.Create(dwStyle | ES_RIGHT, kRect, &parent));
        auto* const pLine = qobject_cast<QLineEdit*>(edit.GetSafeHwnd());
        QTest::keyClicks(pLine, QString::fromLatin1(pszTyped));
        EXPECT_EQ(pLine->text(), QString::fromLatin1(pszText));
        EXPECT_TRUE(pLine->alignment() & Qt::AlignRight);
        EXPECT_EQ(edit.GetPasswordChar() != 0, dwStyle == ES_PASSWORD);
        edit.SetPasswordChar(0);
        EXPECT_FALSE(edit.GetPasswordChar() || edit.GetStyle() & ES_PASSWORD);
    });
}

TEST(Edit, SlotsThatDeleteIt)
{
    QLineEdit line;
    line.setText("long text"_q);
    std::unique_ptr<CEdit_E> pEdit;
    QObject::connect(&line, &QLineEdit::textChanged, [&] { pEdit.reset(); });
    const std::function<void()> changes[] = {
        [&] { line.insert("!"_q); },
        [&] { EXPECT_TRUE(pEdit->Undo()); },
        [&] { pEdit->SetLimitText(3); },
    };
    for (const auto& change : changes) {
        pEdit = std::make_unique<CEdit_E>();
        ASSERT_TRUE(pEdit->SubclassWindow(&line));
        change();
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
    EXPECT_EQ(edit.GetMargins(), 0U) << "the room of the bar is none";
}

} // namespace
