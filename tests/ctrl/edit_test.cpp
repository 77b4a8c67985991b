#include "support/test.h"
#include "support/xinput.h"

#include <VxCustomUI.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <X11/keysym.h>

namespace {

constexpr tagRECT kRect{0, 0, 200, 60};
wchar_t g_buffer[8];

enum Kind
{
    MadeLine,
    FoundLine,
    CompanionLine,
    MadeText,
    FoundText,
    CompanionText
};

class Edit : public CEdit_E
{
public:
    void SetStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    LRESULT Send(UINT message, LRESULT w = 0, LPARAM l = 0)
    {
        return SendMessage(message, static_cast<WPARAM>(w), l);
    }
};

template <typename T>
LPARAM address(T* p)
{
    return reinterpret_cast<LPARAM>(p);
}

/// A step of a test: a number that it gives for a single line and for many.
using Step = Row<LRESULT (*)(Edit&), LRESULT, LRESULT>;

/// An edit control of one kind, which takes a selection without the focus.
class EditTest : public testing::TestWithParam<Kind>
{
protected:
    void SetUp() override
    {
        const Kind kind = GetParam();
        m_edit.SetStyle(ES_NOHIDESEL);
        if (kind == MadeLine || kind == MadeText)
            m_edit.Create(ES_NOHIDESEL | (isText() ? ES_MULTILINE : 0), kRect, &m_parent);
        else if (isText())
            m_edit.SubclassWindow(kind == FoundText ? new QTextEdit(&m_parent)
                                                    : new VxCUITextEdit(&m_parent));
        else
            m_edit.SubclassWindow(kind == FoundLine ? new QLineEdit(&m_parent)
                                                    : new VxCUILineEdit(&m_parent));
        ASSERT_TRUE(m_edit.GetSafeHwnd());
    }
    void TearDown() override { ClearTempObjectPool(); }

    bool isText() const { return GetParam() >= MadeText; }
    QString text()
    {
        return m_edit.GetSafeHwnd()->property(isText() ? "plainText" : "text").toString();
    }
    template <typename Steps>
    void walk(const Steps& steps)
    {
        for (std::size_t i = 0; i < std::size(steps); ++i) {
            const auto& [ask, line, lines] = steps[i];
            EXPECT_EQ(ask(m_edit), isText() ? lines : line) << "step " << i;
        }
    }

    QWidget m_parent;
    Edit m_edit;
};

} // namespace

TEST_P(EditTest, StyleAndLook)
{
    EXPECT_EQ((m_edit.GetStyle() & ES_MULTILINE) != 0, isText());
    const bool bMade = GetParam() == MadeText;
    if (const auto* const pText = qobject_cast<QTextEdit*>(m_edit.GetSafeHwnd())) {
        EXPECT_EQ(pText->lineWrapMode() == QTextEdit::NoWrap, bMade);
        EXPECT_EQ(pText->contextMenuPolicy() == Qt::NoContextMenu, bMade);
        for (const QScrollBar* pBar : {pText->verticalScrollBar(), pText->horizontalScrollBar()})
            EXPECT_NE(pBar->isEnabled(), bMade);
        EXPECT_EQ(pText->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff, bMade);
        EXPECT_EQ(pText->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff, bMade);
    }
}

TEST_P(EditTest, Selection)
{
    // Of "abcdef": by SetSel(start, end), for a single line and for many.
    const Row<int, int, DWORD, DWORD> rows[] = {
        {0, -1, MAKELONG(0, 6), MAKELONG(0, 6)},      {-1, 2, MAKELONG(6, 6), MAKELONG(6, 6)},
        {2, 4, MAKELONG(2, 4), MAKELONG(2, 4)},       {2, -1, MAKELONG(0, 2), MAKELONG(2, 6)},
        {4, 1, MAKELONG(1, 4), MAKELONG(1, 4)},       {6, 6, MAKELONG(6, 6), MAKELONG(6, 6)},
        {2, INT_MAX, MAKELONG(2, 6), MAKELONG(2, 6)}, {1, INT_MIN, MAKELONG(0, 1), MAKELONG(0, 1)},
    };
    m_edit.SetWindowText(L"abcdef");
    forRows(rows, [&](int nStart, int nEnd, DWORD line, DWORD lines) {
        m_edit.SetSel(nStart, nEnd);
        EXPECT_EQ(m_edit.GetSel(), isText() ? lines : line);
        m_edit.SetSel(1, 1);
        m_edit.Send(EM_SETSEL, nStart, nEnd);
        DWORD first = 0;
        DWORD last = 0;
        EXPECT_EQ(m_edit.Send(EM_GETSEL, address(&first), address(&last)), m_edit.GetSel());
        EXPECT_EQ(MAKELONG(first, last), isText() ? lines : line);
    });
    m_edit.SetSel(MAKELONG(1, 3));
    m_edit.ReplaceSel(L"X\x1F600");
    EXPECT_EQ(text(), "aX\U0001F600def"_q);
    m_edit.Send(EM_REPLACESEL, TRUE, 0);
    m_edit.SetStyle(0);
    m_edit.SetSel(0, -1); // without the focus
    EXPECT_EQ(m_edit.Send(EM_GETSEL), MAKELONG(4, 4));
}

TEST_P(EditTest, TextAndState)
{
    m_edit.SetWindowText(L"<b>x</b>");
    EXPECT_EQ(text(), isText() ? "x"_q : "<b>x</b>"_q);
    m_edit.SetWindowText(L"abc");
    const QSignalSpy changes(m_edit.GetSafeHwnd(),
                             isText() ? SIGNAL(textChanged()) : SIGNAL(textChanged(QString)));
    const Step steps[] = {
        {[](Edit& e) -> LRESULT { return e.SetModify(), e.GetModify(); }, 1, 1},
        {[](Edit& e) { return e.Send(EM_SETMODIFY, 0), e.Send(EM_GETMODIFY); }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.SetReadOnly(); }, 1, 1},
        {[](Edit& e) -> LRESULT { return e.GetSafeHwnd()->property("readOnly").toBool(); }, 1, 1},
        {[](Edit& e) -> LRESULT { return e.GetStyle() & ES_READONLY; }, 0x800, 0x800},
        {[](Edit& e) { return e.Send(EM_SETREADONLY, FALSE); }, 1, 1},
        {[](Edit& e) -> LRESULT { return e.CanUndo(); }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.Undo(); }, 1, 0},
        {[](Edit& e) -> LRESULT { return e.SetSel(0, -1), e.Cut(), e.LineLength(); }, 0, 0},
        {[](Edit& e) { return e.Send(EM_CANUNDO); }, 1, 1},
        {[](Edit& e) -> LRESULT { return e.Send(EM_UNDO), e.LineLength(); }, 3, 3},
        {[](Edit& e) -> LRESULT { return e.SetSel(2, 3), e.Copy(), e.SetSel(-1, 0), 0; }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.Paste(), e.SetSel(1, 2), e.LineLength(); }, 4, 4},
        {[](Edit& e) -> LRESULT { return e.SetCueBanner(L"Long hint", TRUE); }, 1, 1},
        {[](Edit& e) { return e.Send(EM_GETCUEBANNER, address(g_buffer), 8); }, 1, 1},
        {[](Edit&) -> LRESULT { return std::wcscmp(g_buffer, L"Long hi"); }, 0, 0},
        {[](Edit& e) { return e.Send(EM_SETCUEBANNER); }, 1, 1},
        {[](Edit& e) -> LRESULT { return e.GetCueBanner().GetLength(); }, 0, 0},
        {[](Edit& e) { return e.Send(EM_GETCUEBANNER, 0, 8); }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.ShowBalloonTip(L"", nullptr); }, 1, 1},
        {[](Edit& e) { return e.Send(EM_HIDEBALLOONTIP) + e.Send(EM_SHOWBALLOONTIP); }, 1, 1},
    };
    walk(steps);
    EXPECT_EQ(text(), "abcc"_q);
    const int nChanges = changes.count();
    m_edit.SetModify();
    m_edit.EmptyUndoBuffer();
    EXPECT_TRUE(!m_edit.CanUndo() && m_edit.GetModify() && m_edit.GetSel() == MAKELONG(1, 2));
    EXPECT_EQ(changes.count(), nChanges);
    m_edit.Clear();
    EXPECT_EQ(text(), ""_q);
}

TEST_P(EditTest, Lines)
{
    m_edit.SetWindowText(isText() ? L"first\nsecond\n\nlast" : L"only");
    const Step steps[] = {
        {[](Edit& e) { return e.Send(EM_GETLINECOUNT); }, 1, 4},
        {[](Edit& e) { return e.Send(EM_LINELENGTH, 1); }, 4, 18},
        {[](Edit& e) { return e.Send(EM_LINEINDEX, 1); }, -1, 6},
        {[](Edit& e) -> LRESULT { return e.LineIndex(2); }, -1, 13},
        {[](Edit& e) -> LRESULT { return e.LineIndex(4); }, -1, -1},
        {[](Edit& e) -> LRESULT { return e.LineIndex(INT_MIN); }, -1, -1},
        {[](Edit& e) -> LRESULT { return e.LineFromChar(5); }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.LineFromChar(6); }, 0, 1},
        {[](Edit& e) -> LRESULT { return e.LineFromChar(1000); }, 0, 3},
        {[](Edit& e) { return e.SetSel(-1, -1), e.Send(EM_LINEFROMCHAR, -1); }, 0, 3},
        {[](Edit& e) -> LRESULT { return e.LineIndex(); }, 0, 14},
        {[](Edit& e) -> LRESULT { return e.GetLine(0, g_buffer, 4); }, 4, 4},
        {[](Edit&) -> LRESULT { return g_buffer[3]; }, 'y', 's'},
        {[](Edit& e) -> LRESULT { return e.GetLine(2, g_buffer, 8); }, 4, 0},
        {[](Edit&) -> LRESULT { return g_buffer[0] = 3; }, 3, 3},
        {[](Edit& e) { return e.Send(EM_GETLINE, 1, address(g_buffer)); }, 3, 3},
        {[](Edit& e) { return e.Send(EM_GETLINE); }, 0, 0},
        {[](Edit& e) { return e.Send(EM_FMTLINES, TRUE); }, 0, 1},
        {[](Edit& e) -> LRESULT { return e.FmtLines(FALSE); }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.SetTabStops(16); }, 0, 1},
        {[](Edit& e) { return e.Send(EM_SETTABSTOPS, 2, 0); }, 0, 0},
    };
    walk(steps);
}

TEST_P(EditTest, PlacesAndScrolling)
{
    m_edit.MoveWindow(&kRect);
    m_parent.show();
    m_edit.SetWindowText(
        CString_E("abcdefgh"_q + (isText() ? "\nline"_q.repeated(30) : ""_q)).GetString());
    const CPoint_E first = m_edit.PosFromChar(0);
    const CPoint_E fifth = m_edit.PosFromChar(4);
    EXPECT_GT(fifth.x, first.x + 8);
    EXPECT_EQ(m_edit.CharFromPos(CPoint_E(fifth.x + 1, fifth.y + 5)), 4);
    EXPECT_EQ(m_edit.Send(EM_CHARFROMPOS, 0, MAKELPARAM(fifth.x + 1, fifth.y + 5)), 4);
    EXPECT_EQ(m_edit.Send(EM_POSFROMCHAR, 4), MAKELPARAM(fifth.x, first.y));
    const Step steps[] = {
        {[](Edit& e) { return e.Send(EM_POSFROMCHAR, 1000); }, -1, -1},
        {[](Edit& e) -> LRESULT { return e.GetFirstVisibleLine(); }, 0, 0},
        {[](Edit& e) { return e.Send(EM_LINESCROLL, 0, 10); }, 0, 1},
        {[](Edit& e) { return e.Send(EM_GETFIRSTVISIBLELINE); }, 0, 10},
        {[](Edit& e) -> LRESULT { return e.Send(EM_GETTHUMB) > 0; }, 0, 1},
        {[](Edit& e) { return e.Send(EM_SCROLL, SB_LINEUP); }, 0, MAKELONG(-1, TRUE)},
        {[](Edit& e) { return e.Send(EM_SCROLL, 99); }, 0, 0},
        {[](Edit& e) { return e.LineScroll(INT_MIN, INT_MIN), e.Send(EM_GETTHUMB); }, 0, 0},
        {[](Edit& e) -> LRESULT { return e.CharFromPos(e.PosFromChar(9)); }, 0, MAKELONG(9, 1)},
        {[](Edit& e) -> LRESULT { return e.SetMargins(7, 9), e.GetMargins(); }, 0x90007, 0x90007},
    };
    walk(steps);
    EXPECT_EQ(m_edit.PosFromChar(0).x, first.x + 7);
    m_edit.Send(EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(3, 4));
    EXPECT_EQ(m_edit.Send(EM_GETMARGINS), MAKELONG(3, 9));
    CRect_E rect;
    m_edit.GetRect(&rect);
    EXPECT_EQ(rect, CRect_E(kRect));
    rect = {3, 4, 103, 54};
    m_edit.Send(EM_SETRECT, 0, address(&rect));
    EXPECT_EQ(m_edit.GetSafeHwnd()->geometry(), QRect(3, 4, 100, 50));
    rect.right = 93;
    m_edit.SetRect(&rect);
    EXPECT_EQ(m_edit.GetSafeHwnd()->width(), 90);
    EXPECT_EQ(m_edit.Send(EM_SETRECT) + m_edit.Send(EM_GETRECT), 0);
}

TEST_P(EditTest, Limit)
{
    EXPECT_GE(m_edit.GetLimitText(), 30000U);
    m_edit.Send(EM_SETLIMITTEXT, 5);
    EXPECT_EQ(m_edit.Send(EM_GETLIMITTEXT), 5);
    QTest::keyClicks(m_edit.GetSafeHwnd(), "abcdefg"_q);
    m_edit.SetSel(1, 3);
    QGuiApplication::clipboard()->setText("wxyz"_q);
    QTest::keySequence(m_edit.GetSafeHwnd(), QKeySequence::Paste);
    EXPECT_EQ(text(), "awxde"_q);
    m_edit.LimitText();
    QTest::keyClicks(m_edit.GetSafeHwnd(), "123"_q);
    EXPECT_EQ(text(), "awx123de"_q);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EditTest,
                         testing::Values(MadeLine, FoundLine, CompanionLine, MadeText, FoundText,
                                         CompanionText));

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
        edit.Send(EM_SETPASSWORDCHAR, L'#');
        EXPECT_EQ(edit.Send(EM_GETPASSWORDCHAR), L'#');
    });
}

TEST(Edit, BoundAgainKeepsTheFormsLook)
{
    QTextEdit text;
    QLineEdit line;
    CEdit_E edit;
    for (QWidget* const pWidget : std::initializer_list<QWidget*>{&text, &text, &line}) {
        ASSERT_TRUE(edit.SubclassWindow(pWidget));
        EXPECT_EQ((edit.GetStyle() & ES_MULTILINE) != 0, pWidget == &text);
    }
    EXPECT_TRUE(text.verticalScrollBar()->isEnabled());
}

TEST(Edit, TakesItsStyleFromTheWidget)
{
    QLineEdit line;
    line.setReadOnly(true);
    line.setEchoMode(QLineEdit::Password);
    QTextEdit text;
    text.setReadOnly(true);
    CEdit_E edit;
    ASSERT_TRUE(edit.SubclassWindow(&line));
    EXPECT_EQ(edit.GetStyle() & (ES_READONLY | ES_PASSWORD), ES_READONLY | ES_PASSWORD);
    ASSERT_TRUE(edit.SubclassWindow(&text));
    EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
    text.setReadOnly(false);
    ASSERT_TRUE(edit.SubclassWindow(&text));
    EXPECT_FALSE(edit.GetStyle() & ES_READONLY);
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
    ASSERT_TRUE(pBar && vxtest::waitUntil([&] { return pBar->maximum() > 0; }));
    pBar->triggerAction(QScrollBar::SliderToMaximum);
    EXPECT_EQ(pInner->value(), pInner->maximum());
    edit.LineScroll(-3);
    EXPECT_EQ(edit.GetScrollPos(SB_VERT), pInner->value());
    EXPECT_LT(pInner->value(), pInner->maximum());
    EXPECT_EQ(edit.GetMargins(), 0U);
}

TEST(Edit, NoWidgetAndMessagesToAPlainWindow)
{
    Edit none;
    Edit destroyed;
    auto pLine = std::make_unique<QLineEdit>();
    QLabel label;
    EXPECT_TRUE(destroyed.SubclassWindow(pLine.get()) && !none.SubclassWindow(&label));
    pLine.reset();
    for (Edit* const e : {&none, &destroyed}) {
        e->SetSel(0, -1), e->SetModify(), e->SetLimitText(1), e->SetMargins(1, 1), e->Clear();
        e->ReplaceSel(L"x"), e->EmptyUndoBuffer(), e->SetWindowText(L"x"), e->LineScroll(1);
        EXPECT_FALSE(e->GetSel() || e->GetModify() || e->GetLimitText() || e->GetMargins());
        EXPECT_FALSE(e->SetReadOnly() || e->CanUndo() || e->Undo() || e->SetCueBanner(L""));
        EXPECT_FALSE(e->GetCueBanner(g_buffer, 8) || e->GetLineCount() || e->GetPasswordChar());
        EXPECT_FALSE(e->GetLine(0, g_buffer, 8) || e->ShowBalloonTip(L"", L""));
        EXPECT_TRUE(e->LineLength() == -1 && e->LineIndex(0) == -1 && e->PosFromChar(0).x == -1);
        EXPECT_EQ(e->CharFromPos({1, 1}), -1);
    }
    VxCUITextEdit text;
    text.setPlainText("a\nb"_q);
    CWnd_E plain; // of no control class itself
    ASSERT_TRUE(plain.SubclassWindow(&text));
    EXPECT_EQ(plain.SendMessage(EM_GETLINECOUNT), 2);
}

TEST(Edit, RealTyping)
{
    VXTEST_NEEDS_X11();
    QWidget window;
    CEdit_E line;
    CEdit_E text;
    ASSERT_TRUE(line.Create(WS_VISIBLE, kRect, &window));
    ASSERT_TRUE(text.Create(WS_VISIBLE | ES_MULTILINE, {0, 70, 200, 150}, &window));
    ASSERT_TRUE(vxtest::showAndActivate(&window));
    for (CEdit_E* const pEdit : {&line, &text}) {
        pEdit->SetFocus();
        for (const unsigned long key : {XK_a, XK_b, XK_Return, XK_c, XK_Left})
            vxtest::typeKey(key);
        const int nLines = pEdit == &text ? 2 : 1;
        EXPECT_TRUE(vxtest::waitUntil([&] {
            return pEdit->GetSel() == MAKELONG(nLines + 1, nLines + 1) &&
                   pEdit->LineLength() == nLines + 2;
        }));
        EXPECT_EQ(pEdit->GetLineCount(), nLines);
        EXPECT_TRUE(pEdit->GetModify() && pEdit->CanUndo());
        pEdit->SetSel(0, -1); // it has the focus
        EXPECT_EQ(pEdit->GetSel(), MAKELONG(0, nLines + 2));
    }
}
