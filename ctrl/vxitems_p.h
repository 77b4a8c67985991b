// Not part of the public interface. What combo boxes and list boxes share: the texts, the data and
// the messages of their items.
#pragma once

#include "ctrl/vxcontroltable_p.h"
#include "wnd/vxtextbuffer_p.h"

#include <QtCore/QVariant>

#include <climits>

namespace vx::detail {

/// The first row from @p nFirst to before @p nEnd whose text @p matches; -1 when there is none.
template <typename TextOf, typename Matches>
int findRow(int nFirst, int nEnd, TextOf textOf, Matches matches)
{
    for (int nRow = std::max(nFirst, 0); nRow < nEnd; ++nRow) {
        if (matches(textOf(nRow)))
            return nRow;
    }
    return -1;
}

inline auto beginningWith(const wchar_t* lpszString)
{
    return [strText = VxQString(lpszString)](const QString& strItem) {
        return strItem.startsWith(strText, Qt::CaseInsensitive);
    };
}

inline auto equalTo(const wchar_t* lpszString)
{
    return [strText = VxQString(lpszString)](const QString& strItem) {
        return strItem.compare(strText, Qt::CaseInsensitive) == 0;
    };
}

/// Where to insert: -1 stands for the end; -1 for an index that no insertion can have.
constexpr int insertionRow(int nIndex, int nCount)
{
    if (nIndex == -1)
        return nCount;
    return nIndex >= 0 && nIndex <= nCount ? nIndex : -1;
}

/// Copies the whole text to a buffer that the caller made large enough.
inline int copyWhole(const QString& strText, wchar_t* lpszText)
{
    return copyTerminated(strText, lpszText, INT_MAX);
}

inline int lengthOf(const QString& strText) { return CString_E(strText).GetLength(); }

/// Item data as they are stored, signed, so that those of a form that are ints read as they were.
inline QVariant storedData(DWORD_PTR dwItemData) { return static_cast<qlonglong>(dwItemData); }
inline DWORD_PTR dataIn(const QVariant& stored)
{
    return static_cast<DWORD_PTR>(stored.toLongLong());
}
inline constexpr DWORD_PTR kNoData = static_cast<DWORD_PTR>(-1);

inline DWORD_PTR dataOf(const void* pData) { return reinterpret_cast<DWORD_PTR>(pData); }
inline void* pointerOf(DWORD_PTR dwItemData)
{
    return dwItemData == kNoData ? nullptr : reinterpret_cast<void*>(dwItemData);
}

/// A height or width that a widget can have.
constexpr int clampExtent(UINT nExtent)
{
    return static_cast<int>(std::min<UINT>(nExtent, QWIDGETSIZE_MAX));
}

/// Rows for the messages whose members have the form of the name: text in lParam, index in wParam.
template <auto Member, typename Control>
LRESULT answerText(Control& control, WPARAM, LPARAM lParam)
{
    return (control.*Member)(pointerIn<const wchar_t>(lParam));
}
template <auto Member, typename Control>
LRESULT answerIndexText(Control& control, WPARAM wParam, LPARAM lParam)
{
    return (control.*Member)(intIn(wParam), pointerIn<const wchar_t>(lParam));
}
template <auto Member, typename Control>
LRESULT answerIndex(Control& control, WPARAM wParam, LPARAM)
{
    return static_cast<LRESULT>((control.*Member)(intIn(wParam)));
}
template <auto Member, typename Control>
LRESULT answerIndexData(Control& control, WPARAM wParam, LPARAM lParam)
{
    return (control.*Member)(intIn(wParam), static_cast<DWORD_PTR>(lParam));
}
template <auto Member, typename Control>
LRESULT answerPlain(Control& control, WPARAM, LPARAM)
{
    return static_cast<LRESULT>((control.*Member)());
}

} // namespace vx::detail
