/// @file edit.h
/// CEdit_E: an edit control of one line (`QLineEdit`) or of many (`QTextEdit`).
///
/// ES_MULTILINE chooses the widget of an edit that is made here; a text widget that a form already
/// has gives the style that bit and keeps its scroll bars, wrapping and context menu. Positions
/// count UTF-16 units, as Qt does, and one for the end of a line.
///
/// Differs from MFC: SetSel() does nothing while an edit without ES_NOHIDESEL has no focus;
/// Clear() clears the whole text; LineLength() is that of the whole text; SetRect() moves the
/// window; SetWindowText() of many lines takes a text that looks like HTML as such; lines end in
/// "\n"; SetLimitText() cuts a single line that is longer and holds back keys and pasting in many.
/// An edit of another class and one without a widget give the failure value and change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/wnd/window.h>

/// A balloon tip, as EM_SHOWBALLOONTIP brings it.
struct tagEDITBALLOONTIP
{
    DWORD cbStruct;   ///< not looked at
    LPCWSTR pszTitle; ///< first line of the tip
    LPCWSTR pszText;  ///< the other lines
    INT ttiIcon;      ///< TTI_*, not shown
};
using EDITBALLOONTIP = tagEDITBALLOONTIP;   ///< its usual name
using PEDITBALLOONTIP = tagEDITBALLOONTIP*; ///< a pointer to one

/// An edit control of one line or of many.
class VXMFC_EXPORT CEdit_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CEdit_E)

    /// Makes the widget that the style asks for. ES_CENTER, ES_RIGHT and ES_READONLY count for both
    /// kinds, ES_PASSWORD, ES_NUMBER, ES_UPPERCASE and ES_LOWERCASE for a single line.
    BOOL AttachDefault(QWidget* pParent) override;
    BOOL OnAttach() override;
    /// Takes line wrapping, the context menu and the widget's own scroll bars away from many lines
    /// that are made here.
    int OnCreate(tagCREATESTRUCTW* pCreate) override;
    using CWnd_E::Create;
    /// @{
    /// Makes the edit below @p pParent, at @p rect in its coordinates. WS_VSCROLL and WS_HSCROLL
    /// give many lines scroll bars.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    // Text

    using CWnd_E::GetWindowText;
    void SetWindowText(const wchar_t* lpszString) override;
    /// Puts a text in the place of the selection; it can always be undone.
    void ReplaceSel(LPCWSTR lpszNewText, BOOL bCanUndo = FALSE);
    /// The hint shown while the edit is empty. FALSE without a widget.
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL bDrawWhenFocused = FALSE);
    /// Copies the hint, cut to @p cchText characters with the terminator. FALSE without room.
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const;
    /// The hint.
    CString_E GetCueBanner() const;
    /// @{
    /// The longest text that the user can enter; 0 is as long as can be.
    void SetLimitText(UINT nMax);
    void LimitText(int nChars = 0) { SetLimitText(nChars > 0 ? static_cast<UINT>(nChars) : 0); }
    /// @}
    /// The longest text that the user can enter.
    UINT GetLimitText() const;
    /// Hides what is entered into a single line, 0 shows it; the widget's style draws the
    /// character.
    void SetPasswordChar(TCHAR ch);
    /// 0 while the text shows.
    TCHAR GetPasswordChar() const;

    // Selection

    /// The selection, or the cursor's position twice; 0 and 0 without a widget.
    void GetSel(int& nStartChar, int& nEndChar) const;
    /// The start in the low half and the end in the high half.
    DWORD GetSel() const;
    /// Needs the focus without ES_NOHIDESEL. Many lines: selects from a start within the text to
    /// the end, -1 being that of the text; any other start puts the cursor after the text. A single
    /// line: start -1 puts the cursor after the text, (0, -1) selects all, else `end - start`
    /// characters from the start are selected, backwards for a negative number.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    /// The same with the start in the low and the end in the high word.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);

    // State

    /// @{
    /// Whether the text counts as changed.
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    /// @}
    /// TRUE with a widget.
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    /// Whether there is a change to undo.
    BOOL CanUndo() const;
    /// Undoes the last change; FALSE for many lines without one, TRUE always for a single line.
    BOOL Undo();
    /// Makes the changes so far final.
    void EmptyUndoBuffer();
    /// Clears the whole text (intended).
    void Clear();
    /// @{
    /// Copies, cuts or pastes at the selection.
    void Copy();
    void Cut();
    void Paste();
    /// @}

    // Lines

    /// The lines as they are laid out; 1 for a single line, 0 without a widget.
    int GetLineCount() const;
    /// Length of the whole text, whatever the line (intended); -1 without a widget.
    int LineLength(int nLine = -1) const;
    /// The line of a character, -1 being that of the selection's start.
    int LineFromChar(int nIndex = -1) const;
    /// Position of the first character of a line, -1 being that of the cursor; -1 for a line that
    /// is not there.
    int LineIndex(int nLine = -1) const;
    /// Copies a line, whose number counts for many lines only, and returns its length, cut to @p
    /// nMaxLength characters. It is terminated where there is room left.
    int GetLine(int nIndex, LPWSTR lpszBuffer, int nMaxLength) const;
    /// The same; the room is read from the buffer's first 16 bits.
    int GetLine(int nIndex, LPWSTR lpszBuffer) const;
    /// The line at the top; the first visible character of a single line.
    int GetFirstVisibleLine() const;
    /// Scrolls many lines, by lines down and by average characters to the right.
    void LineScroll(int nLines, int nChars = 0);
    /// Returns @p bAddEOL for many lines, FALSE else; where lines wrap is never part of the text.
    BOOL FmtLines(BOOL bAddEOL);

    // Layout

    /// The character nearest to a point of the window: its position in the low half, its line in
    /// the high half. -1 without a widget.
    int CharFromPos(CPoint_E pt) const;
    /// Upper left corner of a character in the window; (-1, -1) for one that is not there.
    CPoint_E PosFromChar(UINT nChar) const;
    /// The rectangle of the widget, in its own coordinates.
    void GetRect(tagRECT* pRect) const;
    /// Moves the window (intended).
    void SetRect(const tagRECT* pRect);
    /// The same.
    void SetRectNP(const tagRECT* pRect) { SetRect(pRect); }
    /// Margins in pixels; EC_USEFONTINFO is the average width of a character.
    void SetMargins(UINT nLeft, UINT nRight);
    /// The left margin in the low half, the right one in the high half.
    DWORD GetMargins() const;
    /// Tab stops of many lines, each 32 dialog units; FALSE for a single line.
    void SetTabStops();
    /// @{
    /// The same at these distances, in dialog units.
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, const int* rgTabStops);
    /// @}

    /// @{
    /// Shows a tip below the edit. FALSE without a widget and for null.
    BOOL ShowBalloonTip(const tagEDITBALLOONTIP* pTip);
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = 0);
    /// @}
    /// Hides the tip.
    BOOL HideBalloonTip();

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
