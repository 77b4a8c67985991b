/// @file filefind.h
/// Looking for files by name.
///
/// The last part of a name may have the wildcards of Win32, which match without regard to case:
/// "*" any characters, "?" one character or, before a dot and at the end, none; "*.*" matches every
/// name, "*." those without an extension, and "name.*" also "name" itself. A name without wildcards
/// is looked for without regard to case too. Names may be separated by "/" or "\".
///
/// Found are files and folders, "." and ".." among them, in the order of their names without regard
/// to case. The names are those at the beginning of the search; what vanishes meanwhile is left
/// out.
///
/// Differs from Win32: there are no short names that could match; the folder part is
/// case-sensitive. A name that is not UTF-8 is given with U+FFFD for its wrong bytes, and no file
/// is found by that name.
///
/// Threads: a search is used by one thread at a time.
#pragma once

#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/core/object.h>
#include <VxMFCEmu/text/cstring.h>

#include <ctime>

/// A search: FindFile(), and FindNextFile() for each file, the first as well.
/// @code
/// for (BOOL bMore = finder.FindFile(L"/plots/*.plt"); bMore;) {
///     bMore = finder.FindNextFile();
///     Load(finder.GetFilePath());
/// }
/// @endcode
/// Until FindNextFile() has been called, names are empty, numbers 0 and answers FALSE.
class VXMFC_EXPORT CFileFind_E : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CFileFind_E)

    CFileFind_E();
    /// Ends the search.
    ~CFileFind_E() override;

    /// Begins a search, ending an earlier one; null looks for all files of the current folder.
    /// FALSE, with the last error set, when nothing is found. The second argument is ignored.
    virtual BOOL FindFile(const wchar_t* pstrName = nullptr, DWORD dwUnused = 0);
    /// Goes to the next file. TRUE when more follow it; FALSE when it is the last one, with the
    /// last error ERROR_NO_MORE_FILES, and without a search.
    virtual BOOL FindNextFile();
    /// Ends the search.
    void Close();

    /// The size in bytes; 0 for a folder.
    ULONGLONG GetLength() const;
    /// Name of the file without its folder.
    virtual CString_E GetFileName() const;
    /// The same without the extension.
    virtual CString_E GetFileTitle() const;
    /// The absolute path.
    virtual CString_E GetFilePath() const;
    /// The path as a URL, "file://" before it.
    virtual CString_E GetFileURL() const;
    /// The folder that is searched, with "/" at its end.
    virtual CString_E GetRoot() const;

    /// @{
    /// Stores a time, in units of 100 nanoseconds since 1601 or in seconds since 1970; FALSE
    /// without a file and for null.
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(std::time_t& refTime) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(std::time_t& refTime) const;
    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastWriteTime(std::time_t& refTime) const;
    /// @}

    /// Whether the file has one of the attributes (`FILE_ATTRIBUTE_*`).
    virtual BOOL MatchesMask(DWORD dwMask) const;
    /// Whether it is "." or "..".
    virtual BOOL IsDots() const;
    /// @{
    /// Whether the file has the attribute; fileattributes.h tells which ones there are.
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }
    /// @}

private:
    HANDLE m_hContext = nullptr;
    WIN32_FIND_DATA m_found = {};
    WIN32_FIND_DATA m_next = {};
    CString_E m_strRoot;
    bool m_bFound = false;
    bool m_bMore = false;
};
