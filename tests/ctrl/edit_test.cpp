#include "support/test.h"
#include "support/xinput.h"

#include <VxCustomUI.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <X11/keysym.h>

namespace {

constexpr tagRECT kRect{0, 0, 200, 60};

enum class Kind
{
    MadeLine,
    FoundLine,
    CompanionLine,
    MadeText,
    FoundText,
    CompanionText
};

/// An edit control of one kind, which takes a selection without the focus.
class EditTest : public testing::TestWithParam<Kind>
{
protected:
    class Edit : public CEdit_E
    {
    public:
        void SetStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    };

    void SetUp() override
    {
        const Kind kind = GetParam();
        if (kind == Kind::MadeLine || kind == Kind::MadeText) {
            const DWORD type = kind == Kind::MadeText ? ES_MULTILINE : 0;
            ASSERT_TRUE(m_edit.Create(ES_NOHIDESEL | type, kRect, &m_parent));
            return;
        }
        m_edit.SetStyle(ES_NOHIDESEL);
        ASSERT_TRUE(m_edit.SubclassWindow(
            kind == Kind::FoundLine       ? new QLineEdit(&m_parent)
            : kind == Kind::CompanionLine ? new VxCUILineEdit(&m_parent)
            : kind == Kind::FoundText     ? static_cast<QWidget*>(new QTextEdit(&m_parent))
                                          : new VxCUITextEdit(&m_parent)));
    }

    bool isText() const { return GetParam() >= Kind::MadeText; }
    QString text()
    {
        return m_edit.GetSafeHwnd()->property(isText() ? "plainText" : "text").toString();
    }
    QString selection()
    {
        int nStart = -1;
        int nEnd = -1;
        m_edit.GetSel(nStart, nEnd);
        return "%1-%2"_q.arg(nStart).arg(nEnd);
    }
    QString line(int nLine, int nRoom)
    {
        std::wstring buffer(20, L'#');
        const int nLength = m_edit.GetLine(nLine, buffer.data(), nRoom);
        return "%1:"_q.arg(nLength) + QString::fromStdWString(buffer.substr(0, 8));
    }

    QWidget m_parent;
    Edit m_edit;
};

} // namespace

TEST_P(EditTest, StyleAndLook)
{
    EXPECT_EQ((m_edit.GetStyle() & ES_MULTILINE) != 0, isText());
    const auto* const pText = qobject_cast<QTextEdit*>(m_edit.GetSafeHwnd());
    if (!pText)
        return;
    const bool bMade = GetParam() == Kind::MadeText;
    EXPECT_EQ(pText->lineWrapMode() == QTextEdit::NoWrap, bMade);
    EXPECT_EQ(pText->contextMenuPolicy() == Qt::NoContextMenu, bMade);
    EXPECT_NE(pText->verticalScrollBar()->isEnabled(), bMade);
    EXPECT_EQ(pText->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff, bMade);
    EXPECT_EQ(pText->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff, bMade);
}

TEST_P(EditTest, Selection)
{
    // Of "abcdef": by SetSel(start, end), for a single line and for many.
    const Row<int, int, const char*, const char*> rows[] = {
        {0, -1, "0-6", "0-6"},      {-1, 2, "6-6", "6-6"},      {2, 4, "2-4", "2-4"},
        {3, 3, "3-3", "3-3"},       {2, -1, "0-2", "2-6"},      {4, 1, "1-4", "1-4"},
        {2, 99, "2-6", "2-6"},      {6, 6, "6-6", "6-6"},       {0, -9, "0-0", "0-0"},
        {2, INT_MAX, "2-6", "2-6"}, {1, INT_MIN, "0-1", "0-1"},
    };
    forRows(rows, [&](int nStart, int nEnd, const char* pszLine, const char* pszText) {
        const QString expected = QString::fromLatin1(isText() ? pszText : pszLine);
        m_edit.SetWindowText(L"abcdef");
        m_edit.SetSel(nStart, nEnd);
        EXPECT_EQ(selection(), expected);
        m_edit.SetSel(1, 1);
        m_edit.SendMessage(EM_SETSEL, static_cast<WPARAM>(nStart), nEnd);
        DWORD first = 0;
        DWORD last = 0;
        const LRESULT both = m_edit.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                                                reinterpret_cast<LPARAM>(&last));
        EXPECT_EQ("%1-%2"_q.arg(first).arg(last), expected);
        EXPECT_EQ(both, static_cast<LRESULT>(MAKELONG(first, last)));
        EXPECT_EQ(m_edit.GetSel(), MAKELONG(first, last));
    });
    m_edit.SetSel(MAKELONG(1, 3));
    m_edit.ReplaceSel(L"X\x1F600");
    EXPECT_EQ(text(), "aX\U0001F600def"_q);
    m_edit.SendMessage(EM_REPLACESEL, TRUE, 0);
    m_edit.SetStyle(0);
    m_edit.SetSel(0, -1); // without the focus
    EXPECT_EQ(selection(), "4-4"_q);
    EXPECT_EQ(m_edit.SendMessage(EM_GETSEL), static_cast<LRESULT>(MAKELONG(4, 4)));
}

TEST_P(EditTest, TextAndState)
{
    m_edit.SetWindowText(L"<b>x</b>");
    EXPECT_EQ(text(), isText() ? "x"_q : "<b>x</b>"_q);
    m_edit.SetWindowText(nullptr);
    EXPECT_EQ(m_edit.LineLength(3), 0);
    m_edit.SetModify(TRUE);
    EXPECT_TRUE(m_edit.GetModify());
    m_edit.SendMessage(EM_SETMODIFY, FALSE);
    EXPECT_FALSE(m_edit.SendMessage(EM_GETMODIFY));
    EXPECT_EQ(m_edit.SetReadOnly(), 1);
    EXPECT_TRUE(m_edit.GetSafeHwnd()->property("readOnly").toBool());
    EXPECT_TRUE(m_edit.GetStyle() & ES_READONLY);
    EXPECT_EQ(m_edit.SendMessage(EM_SETREADONLY, FALSE), 1);
    EXPECT_FALSE(m_edit.GetStyle() & ES_READONLY);

    m_edit.SetWindowText(L"abc");
    EXPECT_FALSE(m_edit.CanUndo());
    EXPECT_EQ(m_edit.Undo(), !isText());
    m_edit.SetSel(0, -1);
    m_edit.Cut();
    EXPECT_EQ(text(), ""_q);
    EXPECT_TRUE(m_edit.SendMessage(EM_CANUNDO));
    EXPECT_TRUE(m_edit.SendMessage(EM_UNDO));
    EXPECT_EQ(text(), "abc"_q);
    m_edit.SetSel(2, 3);
    m_edit.Copy();
    m_edit.SetSel(-1, -1);
    m_edit.Paste();
    EXPECT_EQ(text(), "abcc"_q);
    m_edit.SetSel(1, 2);
    m_edit.SetModify();
    const QSignalSpy changes(m_edit.GetSafeHwnd(),
                             isText() ? SIGNAL(textChanged()) : SIGNAL(textChanged(QString)));
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_EQ(selection(), "1-2"_q);
    m_edit.Clear();
    EXPECT_EQ(text(), ""_q);

    EXPECT_TRUE(m_edit.SetCueBanner(L"Hint", TRUE));
    wchar_t buffer[4] = {};
    EXPECT_TRUE(m_edit.SendMessage(EM_GETCUEBANNER, reinterpret_cast<WPARAM>(buffer), 4));
    EXPECT_STREQ(buffer, L"Hin");
    EXPECT_TRUE(m_edit.SendMessage(EM_SETCUEBANNER));
    EXPECT_TRUE(m_edit.GetCueBanner().IsEmpty());
    EXPECT_FALSE(m_edit.GetCueBanner(nullptr, 5) || m_edit.GetCueBanner(buffer, 0));
    EXPECT_TRUE(m_edit.ShowBalloonTip(L"Title", nullptr) && m_edit.HideBalloonTip());
    EXPECT_FALSE(m_edit.SendMessage(EM_SHOWBALLOONTIP));
}

TEST_P(EditTest, Lines)
{
    m_edit.SetWindowText(isText() ? L"first\nsecond\n\nlast" : L"only");
    // number: start, line and its text of four characters
    const Row<int, int, const char*> many[] = {
        {0, 0, "4:firs####"}, {1, 6, "4:seco####"}, {2, 13, "0:"}, {3, 14, "4:last####"}};
    const Row<int, int, const char*> one[] = {{0, 0, "4:only####"}};
    const auto check = [&](int nLine, int nStart, const char* pszText) {
        EXPECT_EQ(m_edit.LineIndex(nLine), nStart);
        EXPECT_EQ(m_edit.LineFromChar(nStart), nLine);
        EXPECT_EQ(line(nLine, 4).left(10), QString::fromLatin1(pszText) +
                                               QString(nStart == 13, QChar(0)) +
                                               (nStart == 13 ? "#######"_q : ""_q));
    };
    if (isText())
        forRows(many, check);
    else
        forRows(one, check);
    const int nLines = isText() ? 4 : 1;
    EXPECT_EQ(m_edit.SendMessage(EM_GETLINECOUNT), nLines);
    EXPECT_EQ(m_edit.SendMessage(EM_LINELENGTH, 1), isText() ? 18 : 4);
    m_edit.SetSel(-1, -1);
    EXPECT_EQ(m_edit.SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(-1)), nLines - 1);
    EXPECT_EQ(m_edit.LineFromChar(1000), nLines - 1);
    EXPECT_EQ(m_edit.LineIndex(), isText() ? 14 : 0);
    for (const int nLine : {nLines, -2, INT_MAX, INT_MIN})
        EXPECT_EQ(m_edit.LineIndex(nLine), -1);
    EXPECT_EQ(line(0, 8).left(8), (isText() ? "5:first"_q : "4:only"_q) + QString(1, QChar(0)) +
                                      (isText() ? ""_q : "#"_q));
    wchar_t buffer[20] = {3};
    EXPECT_EQ(m_edit.SendMessage(EM_GETLINE, 0, reinterpret_cast<LPARAM>(buffer)), 3);
    EXPECT_EQ(m_edit.SendMessage(EM_GETLINE), 0);
    EXPECT_EQ(m_edit.FmtLines(TRUE), isText());
    const int nStop = 16;
    EXPECT_EQ(m_edit.SetTabStops(nStop), isText());
    EXPECT_EQ(m_edit.SendMessage(EM_SETTABSTOPS, 0, 0), isText());
    EXPECT_FALSE(m_edit.SendMessage(EM_SETTABSTOPS, 2, 0) || m_edit.SetTabStops(-1, &nStop));
}

TEST_P(EditTest, PlacesAndScrolling)
{
    m_edit.MoveWindow(&kRect);
    m_edit.GetSafeHwnd()->ensurePolished();
    QString text = "abcdefgh"_q;
    for (int i = 0; isText() && i < 30; ++i)
        text += "\nline"_q;
    m_edit.SetWindowText(CString_E(text).GetString());
    QTest::qWait(0); // layout
    const CPoint_E first = m_edit.PosFromChar(0);
    const CPoint_E fifth = m_edit.PosFromChar(4);
    EXPECT_GT(fifth.x, first.x + 8);
    EXPECT_EQ(fifth.y, first.y);
    EXPECT_EQ(m_edit.CharFromPos(CPoint_E(fifth.x + 1, fifth.y + 5)), 4);
    EXPECT_EQ(m_edit.SendMessage(EM_POSFROMCHAR, 4),
              static_cast<LRESULT>(MAKELPARAM(fifth.x, fifth.y)));
    EXPECT_EQ(m_edit.SendMessage(EM_POSFROMCHAR, 1000), -1);
    m_edit.SetMargins(7, 9);
    EXPECT_EQ(m_edit.GetMargins(), MAKELONG(7, 9));
    EXPECT_EQ(m_edit.PosFromChar(0).x, first.x + 7);
    m_edit.SendMessage(EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(3, 4));
    EXPECT_EQ(m_edit.SendMessage(EM_GETMARGINS), static_cast<LRESULT>(MAKELONG(3, 9)));
    m_edit.SendMessage(EM_SETMARGINS, EC_USEFONTINFO);
    EXPECT_GT(LOWORD(m_edit.GetMargins()), 3);

    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 0);
    EXPECT_EQ(m_edit.SendMessage(EM_LINESCROLL, 0, 10), isText());
    EXPECT_EQ(m_edit.GetFirstVisibleLine() >= 9, isText());
    EXPECT_EQ(m_edit.SendMessage(EM_GETTHUMB) > 0, isText());
    m_edit.LineScroll(INT_MIN, INT_MIN);
    EXPECT_EQ(m_edit.SendMessage(EM_SCROLL, SB_LINEDOWN), isText() ? MAKELONG(1, TRUE) : 0);
    EXPECT_EQ(m_edit.SendMessage(EM_SCROLL, 99), FALSE);
    if (isText()) {
        const CPoint_E second = m_edit.PosFromChar(9);
        EXPECT_EQ(m_edit.CharFromPos(CPoint_E(second.x + 1, second.y + 3)),
                  static_cast<int>(MAKELONG(9, 1)));
    }
    CRect_E rect;
    m_edit.GetRect(&rect);
    EXPECT_EQ(rect, CRect_E(kRect));
    const CRect_E place(3, 4, 103, 54);
    m_edit.SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&place));
    EXPECT_EQ(m_edit.GetSafeHwnd()->geometry(), QRect(3, 4, 100, 50));
    m_edit.SetRectNP(nullptr);
    m_edit.GetRect(nullptr);
}

TEST_P(EditTest, Limit)
{
    EXPECT_GE(m_edit.GetLimitText(), 30000U);
    m_edit.SetLimitText(5);
    EXPECT_EQ(m_edit.SendMessage(EM_GETLIMITTEXT), 5);
    QTest::keyClicks(m_edit.GetSafeHwnd(), "abcdefg"_q);
    EXPECT_EQ(text(), "abcde"_q);
    m_edit.SetSel(1, 3);
    QGuiApplication::clipboard()->setText("wxyz"_q);
    QTest::keySequence(m_edit.GetSafeHwnd(), QKeySequence::Paste);
    EXPECT_EQ(text(), "awxde"_q);
    m_edit.LimitText();
    QTest::keyClicks(m_edit.GetSafeHwnd(), "123"_q);
    EXPECT_EQ(text(), "awx123de"_q);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EditTest,
                         testing::Values(Kind::MadeLine, Kind::FoundLine, Kind::CompanionLine,
                                         Kind::MadeText, Kind::FoundText, Kind::CompanionText));

TEST(Edit, CharacterStyles)
{
    QWidget parent;
    const Row<DWORD, const char*, const char*> rows[] = {
        {ES_NUMBER, "1a2-", "12"}, {ES_UPPERCASE, "aB1", "AB1"}, {ES_LOWERCASE, "aB1", "ab1"},
        {ES_READONLY, "a", ""},    {ES_PASSWORD, "ab", "ab"},
    };
    forRows(rows, [&](DWORD dwStyle, const char* pszTyped, const char* pszText) {
        CEdit_E edit;
        ASSERT_TRUE(edit.Create(dwStyle | ES_RIGHT, kRect, &parent));
        auto* const pLine = qobject_cast<QLineEdit*>(edit.GetSafeHwnd());
        ASSERT_TRUE(pLine);
        QTest::keyClicks(pLine, QString::fromLatin1(pszTyped));
        EXPECT_EQ(pLine->text(), QString::fromLatin1(pszText));
        EXPECT_TRUE(pLine->alignment() & Qt::AlignRight);
        EXPECT_EQ(edit.GetPasswordChar() != 0, dwStyle == ES_PASSWORD);
        edit.SendMessage(EM_SETPASSWORDCHAR, L'#');
        EXPECT_EQ(edit.SendMessage(EM_GETPASSWORDCHAR), L'#');
        edit.SetPasswordChar(0);
        EXPECT_EQ(pLine->echoMode(), QLineEdit::Normal);
    });
}

TEST(Edit, BoundAgainKeepsTheFormsLook)
{
    QTextEdit text;
    QLineEdit line;
    CEdit_E edit;
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(edit.SubclassWindow(&text));
        EXPECT_TRUE(edit.GetStyle() & ES_MULTILINE);
    }
    EXPECT_TRUE(text.verticalScrollBar()->isEnabled());
    ASSERT_TRUE(edit.SubclassWindow(&line));
    EXPECT_FALSE(edit.GetStyle() & ES_MULTILINE);
}

TEST(Edit, ScrollBarsOfTheWindow)
{
    CEdit_E edit;
    ASSERT_TRUE(edit.Create(ES_MULTILINE | WS_VSCROLL, kRect, static_cast<QWidget*>(nullptr)));
    auto* const pText = qobject_cast<QTextEdit*>(edit.GetSafeHwnd());
    edit.SetWindowText(L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10");
    edit.ShowWindow(SW_SHOW);
    const auto nMax = [pText] { return pText->verticalScrollBar()->maximum(); };
    ASSERT_TRUE(vxtest::waitUntil([&] { return nMax() > 0; }));
    int nLow = 0;
    int nHigh = 0;
    edit.GetScrollRange(SB_VERT, &nLow, &nHigh);
    EXPECT_EQ(nHigh, nMax());
    edit.SetScrollPos(SB_VERT, nMax());
    EXPECT_EQ(pText->verticalScrollBar()->value(), nMax());
    edit.LineScroll(-1);
    EXPECT_EQ(edit.GetScrollPos(SB_VERT), pText->verticalScrollBar()->value());
    EXPECT_EQ(edit.GetMargins(), 0U);
}

TEST(Edit, NoWidgetAndMessagesToUnboundWidgets)
{
    CEdit_E none;
    CEdit_E destroyed;
    auto pLine = std::make_unique<QLineEdit>();
    ASSERT_TRUE(destroyed.SubclassWindow(pLine.get()));
    pLine.reset();
    QLabel label;
    EXPECT_FALSE(none.SubclassWindow(&label));
    for (CEdit_E* const pEdit : {&none, &destroyed}) {
        int nStart = 7;
        int nEnd = 7;
        pEdit->SetSel(0, -1);
        pEdit->GetSel(nStart, nEnd);
        EXPECT_EQ(nStart + nEnd, 0);
        pEdit->ReplaceSel(L"x");
        pEdit->SetWindowText(L"x");
        pEdit->SetModify();
        pEdit->Clear();
        pEdit->EmptyUndoBuffer();
        pEdit->LineScroll(1);
        pEdit->SetMargins(1, 1);
        pEdit->SetLimitText(1);
        wchar_t buffer[4] = {};
        EXPECT_FALSE(pEdit->GetModify() || pEdit->SetReadOnly() || pEdit->CanUndo() ||
                     pEdit->Undo());
        EXPECT_FALSE(pEdit->SetCueBanner(L"") || pEdit->GetCueBanner(buffer, 4));
        EXPECT_FALSE(pEdit->GetLineCount() || pEdit->GetLine(0, buffer, 4) ||
                     pEdit->GetLimitText());
        EXPECT_FALSE(pEdit->GetPasswordChar() || pEdit->GetMargins() ||
                     pEdit->ShowBalloonTip(L"", L""));
        EXPECT_EQ(pEdit->LineLength(), -1);
        EXPECT_EQ(pEdit->LineIndex(0), -1);
        EXPECT_EQ(pEdit->CharFromPos({1, 1}), -1);
        EXPECT_EQ(pEdit->PosFromChar(0), CPoint_E(-1, -1));
    }
    VxCUITextEdit text;
    text.setPlainText("a\nb"_q);
    EXPECT_EQ(SendMessage_E(&text, EM_GETLINECOUNT, 0, 0), 2);
    EXPECT_EQ(SendMessage_E(&label, EM_GETLINECOUNT, 0, 0), 0);
}

TEST(Edit, RealTyping)
{
    VXTEST_NEEDS_X11();
    QWidget window;
    window.resize(220, 160);
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
        EXPECT_TRUE(vxtest::waitUntil([&] { return LOWORD(pEdit->GetSel()) == nLines + 1; }));
        EXPECT_EQ(pEdit->LineLength(), nLines + 2);
        EXPECT_EQ(pEdit->GetLineCount(), nLines);
        EXPECT_TRUE(pEdit->GetModify() && pEdit->CanUndo());
        pEdit->SetSel(0, -1); // it has the focus
        EXPECT_EQ(pEdit->GetSel(), MAKELONG(0, nLines + 2));
    }
}
