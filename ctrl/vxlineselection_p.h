// Not part of the public interface. The selection of a line edit, as the controls count it that
// have one.
#pragma once

#include <VxMFCEmu/wnd/winstyles.h>

#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace vx::detail {

/// Gives the cursor position twice when nothing is selected, and 0 without an edit.
inline void getLineSelection(const QLineEdit* pEdit, int& nStart, int& nEnd)
{
    const bool bSelected = pEdit && pEdit->hasSelectedText();
    const int nCursor = pEdit ? pEdit->cursorPosition() : 0;
    nStart = bSelected ? pEdit->selectionStart() : nCursor;
    nEnd = bSelected ? pEdit->selectionEnd() : nCursor;
}

/// Nothing without ES_NOHIDESEL in @p dwStyle, unless the edit has the focus.
inline void setLineSelection(QLineEdit* pEdit, DWORD dwStyle, int nStart, int nEnd)
{
    if (!pEdit || (!(dwStyle & ES_NOHIDESEL) && !pEdit->hasFocus()))
        return;
    const int nLength = pEdit->text().size();
    if (nStart == -1)
        pEdit->setCursorPosition(nLength);
    else if (nStart == 0 && nEnd == -1)
        pEdit->selectAll();
    else if (nStart >= 0 && nStart <= nLength) // Intended: an end below the start selects backwards
        pEdit->setSelection(nStart, std::clamp(nEnd, -1, nLength) - nStart);
}

} // namespace vx::detail
