/// @file vxqstring.h
/// The `QString` made of wide text: the one way in which wide text enters Qt.
///
/// The conversion is that of `QString::fromUcs4` of the whole text; null is empty.
#pragma once

#include <VxMFCEmu/text/cstring.h>

#include <QtCore/QString>

/// A `QString` made of wide text.
class VXMFC_EXPORT VxQString : public QString
{
public:
    /// @{
    /// Converts; null is empty.
    VxQString(const wchar_t* p) : QString(fromWide(p)) {}
    VxQString(const CString_E& str) : QString(fromWide(str)) {}
    /// @}

    /// @{
    /// Converts and takes over or appends; null is empty.
    VxQString& operator=(const wchar_t* p) { return assign(fromWide(p)); }
    VxQString& operator=(const CString_E& str) { return assign(fromWide(str)); }
    VxQString& operator+=(const wchar_t* p) { return append(fromWide(p)), *this; }
    VxQString& operator+=(const CString_E& str) { return append(fromWide(str)), *this; }
    /// @}

private:
    static QString fromWide(const wchar_t* p);
    static QString fromWide(const CString_E& str);
    VxQString& assign(QString&& str) { return swap(str), *this; }
};
