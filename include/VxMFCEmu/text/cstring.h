/// @file cstring.h
/// The wide string of MFC sources.
///
/// A `CString_E` is a value: copies share nothing. One `wchar_t` is one code point (32 bits). A
/// null `const wchar_t*` argument counts as an empty text unless its function says otherwise.
///
/// Differs from MFC: positions are bounds-tested and throw `std::out_of_range`; narrow text is
/// UTF-8, and invalid UTF-8 throws `std::range_error`; `Trim()` knows four white-space characters
/// only. A string given to `...` (as in Format()) must be passed as `s.GetString()`.
///
/// Threads: a string is not synchronised, reading its UTF-8 form included: that fills a cache.
#pragma once

#include <VxMFCEmu/types.h>

#include <cstdarg>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

class CString_E;
class QString;

namespace vx::detail {
/// Appends both texts to @p target; when it is not empty they may lie in it.
void concatenate(CString_E& target, std::wstring_view first, std::wstring_view second);
/// The one empty text that null pointers stand for.
inline constexpr wchar_t kEmptyText[1] = {};
constexpr const wchar_t* orEmpty(const wchar_t* p) noexcept { return p ? p : kEmptyText; }
} // namespace vx::detail

/// A text of wide characters.
class VXMFC_EXPORT CString_E
{
public:
    CString_E() noexcept = default;
    /// A copy; empty for null.
    CString_E(const wchar_t* p) : m_text(vx::detail::orEmpty(p)) {}
    /// The first @p n characters of @p p, which must hold as many; empty for null and for negative
    /// n.
    CString_E(const wchar_t* p, int n) : m_text(vx::detail::orEmpty(p), p ? clampCount(n) : 0) {}
    /// @p nRepeat copies of @p ch; none when negative.
    explicit CString_E(wchar_t ch, int nRepeat = 1) : m_text(clampCount(nRepeat), ch) {}
    /// The code points of @p str; a lone surrogate becomes U+FFFD.
    CString_E(const QString& str);
    /// Decodes UTF-8; throws `std::range_error` ("wstring_convert::from_bytes") when it is invalid.
    CString_E(const char* p);
    /// @{
    /// The same text, without its conversion to UTF-8.
    CString_E(const CString_E& other) : m_text(other.m_text) {}
    CString_E(CString_E&& other) noexcept : m_text(std::move(other.m_text)) {}
    /// @}
    ~CString_E()
    {
        if (m_pUtf8) // most strings are never converted
            FreeUtf8();
    }

    /// @{
    /// Takes over a text; null is empty.
    CString_E& operator=(wchar_t ch) { return m_text.assign(1, ch), *this; }
    CString_E& operator=(const wchar_t* p) { return m_text.assign(vx::detail::orEmpty(p)), *this; }
    CString_E& operator=(const QString& str);
    /// @}
    /// @{
    /// Takes over the text, not its conversion to UTF-8.
    // The cache stays as it is: it belongs to this string, and is replaced by the next conversion.
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the text looks after it
    CString_E& operator=(const CString_E& other) { return m_text = other.m_text, *this; }
    CString_E& operator=(CString_E&& other) noexcept
    {
        return m_text = std::move(other.m_text), *this;
    }
    /// @}
    /// @{
    /// Decodes UTF-8; throws as the constructor does, leaving the text alone.
    CString_E& operator=(const char* p);
    CString_E& operator=(const unsigned char* p)
    {
        return *this = reinterpret_cast<const char*>(p);
    }
    /// @}

    /// @{
    /// Appends a text; null is empty.
    CString_E& operator+=(wchar_t ch) { return m_text.push_back(ch), *this; }
    CString_E& operator+=(const wchar_t* p) { return m_text.append(vx::detail::orEmpty(p)), *this; }
    CString_E& operator+=(const QString& str);
    CString_E& operator+=(const CString_E& other) { return m_text.append(other.m_text), *this; }
    /// @}
    /// Decodes UTF-8; throws as the constructor does.
    CString_E& operator+=(const char* p) { return *this += CString_E(p); }
    /// Appends a character.
    void AppendChar(wchar_t ch) { m_text.push_back(ch); }

    /// Number of code points.
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    /// Whether there is no character.
    bool IsEmpty() const noexcept { return m_text.empty(); }
    /// Takes the text away.
    void Empty() noexcept { m_text.clear(); }
    /// @{
    /// The terminated text; valid until the next change, owned by the string.
    const wchar_t* GetString() const noexcept { return m_text.c_str(); }
    operator const wchar_t*() const noexcept { return m_text.c_str(); }
    /// @}
    /// @{
    /// The character at @p i; throws `std::out_of_range` outside 0..length-1.
    wchar_t GetAt(int i) const { return m_text.at(static_cast<std::size_t>(i)); }
    wchar_t operator[](int i) const { return GetAt(i); }
    /// @}
    /// The same for every other type of index, which the conversions to pointers would make
    /// ambiguous.
    template <typename Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    wchar_t operator[](Index i) const
    {
        return m_text.at(static_cast<std::size_t>(i));
    }
    /// Writes a character. Intended: @p i is not checked, it must be within the text or what
    /// GetBuffer() made room for; elsewhere nothing is written.
    void SetAt(int i, wchar_t ch) noexcept
    {
        if (static_cast<std::size_t>(i) < m_text.capacity())
            m_text.data()[i] = ch;
    }

    /// @{
    /// The text in UTF-8; valid until the next conversion or change, owned by the string. Each call
    /// converts anew. Throws `std::range_error` ("wstring_convert::to_bytes") for what is no code
    /// point, leaving the earlier conversion alone.
    const char* Utf8Ptr() const;
    operator const char*() const { return Utf8Ptr(); }
    /// @}
    /// Frees the last conversion.
    void CleanUtf8Mem() noexcept { delete[] std::exchange(m_pUtf8, nullptr); }

    /// Ordinal comparison: negative, zero or positive.
    int Compare(const wchar_t* p) const { return m_text.compare(vx::detail::orEmpty(p)); }
    /// Ordinal comparison of both sides in `towlower`'s lower case.
    int CompareNoCase(const wchar_t* p) const;
    /// Compares as the user's environment locale sorts, as it was at the first use; as the C locale
    /// when that is unknown to the system.
    int Collate(const wchar_t* p) const;
    /// Collate() of both sides in `towlower`'s lower case.
    int CollateNoCase(const wchar_t* p) const;

    /// The rest from @p nFirst. Intended: a negative start counts as 0 here, unlike in the
    /// overload.
    CString_E Mid(int nFirst) const { return FromPart(nFirst < 0 ? 0 : nFirst, -1); }
    /// Up to @p nCount characters from @p nFirst. Intended: a negative start gives an empty string,
    /// a negative count the whole rest.
    CString_E Mid(int nFirst, int nCount) const { return FromPart(nFirst, nCount); }
    /// The first @p n characters; none when negative.
    CString_E Left(int n) const { return FromPart(0, n < 0 ? 0 : n); }
    /// The last @p n characters; none when negative.
    CString_E Right(int n) const
    {
        return n < 0 ? CString_E() : FromPart(n < GetLength() ? GetLength() - n : 0, -1);
    }
    /// The leading run of characters that are in @p set.
    CString_E SpanIncluding(const wchar_t* set) const;
    /// The leading run of characters that are not in @p set.
    CString_E SpanExcluding(const wchar_t* set) const;
    /// The next token at or after @p iStart, which is moved behind it; characters of @p tokens
    /// separate and are skipped in runs. When none is left, empty with iStart -1; the same for a
    /// negative start. Without separators the rest is one token.
    CString_E Tokenize(const wchar_t* tokens, int& iStart) const;

    /// Position of the first @p ch, -1 when absent.
    int Find(wchar_t ch) const { return position(m_text.find(ch)); }
    /// The same at or after @p nStart; -1 for a start outside the text.
    int Find(wchar_t ch, int nStart) const
    {
        return position(m_text.find(ch, static_cast<std::size_t>(nStart)));
    }
    /// Position of the first @p sub; -1 when absent. Intended: -1 for null and empty too.
    int Find(const wchar_t* sub) const { return Find(sub, 0); }
    /// The same at or after @p nStart; -1 for a start outside the text.
    int Find(const wchar_t* sub, int nStart) const
    {
        return sub && *sub ? position(m_text.find(sub, static_cast<std::size_t>(nStart))) : -1;
    }
    /// Position of the last @p ch, -1 when absent.
    int ReverseFind(wchar_t ch) const { return position(m_text.rfind(ch)); }
    /// Position of the first character that is in @p set; -1 when there is none, and for null.
    int FindOneOf(const wchar_t* set) const
    {
        return position(m_text.find_first_of(vx::detail::orEmpty(set)));
    }

    /// @{
    /// Change the case by `towupper` and `towlower`, in libc's current classification.
    CString_E& MakeUpper();
    CString_E& MakeLower();
    /// @}
    /// Reverses the order of the characters.
    CString_E& MakeReverse();
    /// Each returns the number of places replaced.
    int Replace(wchar_t chOld, wchar_t chNew);
    /// Left to right, without overlap; nothing is replaced when @p old is null or empty.
    int Replace(const wchar_t* old, const wchar_t* replacement);
    /// Removes every @p ch and returns their number.
    int Remove(wchar_t ch);
    /// @{
    /// Insert before @p nIndex and return the new length; an index that is negative or beyond the
    /// length throws `std::out_of_range`.
    int Insert(int nIndex, wchar_t ch);
    int Insert(int nIndex, const wchar_t* p);
    /// @}
    /// Removes up to @p nCount characters (none when negative) and returns the new length; an index
    /// that is negative or beyond the length throws `std::out_of_range`.
    int Delete(int nIndex, int nCount = 1);
    /// @{
    /// Remove space, carriage return, line feed and tab. Intended: no other white space.
    CString_E& TrimLeft() { return TrimLeft(L" \r\n\t"); }
    CString_E& TrimRight() { return TrimRight(L" \r\n\t"); }
    CString_E& Trim() { return Trim(L" \r\n\t"); }
    /// @}
    /// @{
    /// Remove @p ch.
    CString_E& TrimLeft(wchar_t ch) { return TrimLeftOf({&ch, 1}); }
    CString_E& TrimRight(wchar_t ch) { return TrimRightOf({&ch, 1}); }
    CString_E& Trim(wchar_t ch) { return TrimRight(ch).TrimLeft(ch); }
    /// @}
    /// @{
    /// Remove every character that is in @p set.
    CString_E& TrimLeft(const wchar_t* set) { return TrimLeftOf(vx::detail::orEmpty(set)); }
    CString_E& TrimRight(const wchar_t* set) { return TrimRightOf(vx::detail::orEmpty(set)); }
    CString_E& Trim(const wchar_t* set) { return TrimOf(vx::detail::orEmpty(set)); }
    /// @}

    /// Copy with each "\n" as "\r\n". Intended: the "\n" of an "\r\n" too.
    CString_E ToWinReturn() const;
    /// Copy with each "\r\n" as "\n".
    CString_E ToUnixReturn() const;
    /// Copy with each "/" as "\".
    CString_E ToWinSeperator() const;
    /// Copy with each "\" as "/".
    CString_E ToUnixSeperator() const;

    /// The writable text with room for @p nMin characters, zero behind the present ones and what
    /// was written through an earlier buffer; the length stays. Valid until the next change; call
    /// ReleaseBuffer() after writing.
    wchar_t* GetBuffer(int nMin = 0);
    /// Sets the length to @p n, new characters being zero, and returns the writable text.
    wchar_t* GetBufferSetLength(int n);
    /// Ends writing: with -1 the text ends at its first zero character, with @p n up to the present
    /// length also at n. Intended: any other n changes nothing, whatever was written.
    void ReleaseBuffer(int n = -1);

    /// Loads the text of @p nID from the calling plug-in's string table, the INI-format Qt resource
    /// ":/R/RStrings" in UTF-8, where R is GetMfyResourceName() and the key the decimal id. FALSE
    /// and empty when table or id are missing. A text with commas that is not quoted in the file is
    /// read back with ", " between its parts.
    BOOL LoadString(UINT nID);
    /// @{
    /// The same. Differs from Win32: instance and language choose nothing.
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguage);
    /// @}

    /// Replaces the text by formatted arguments, which may point into it. Conversions, C locale
    /// always: d i u o x X (of short with h, 32 bits with l and I32, 64 with ll and I64, the size
    /// of a pointer with I), f F e E g G a A of double, c and s wide, C and S narrow (UTF-8,
    /// invalid bytes as U+FFFD) unless h or l and w say narrow or wide, p as 16 upper-case
    /// hexadecimal digits, %. A null string prints "(null)", an unknown conversion itself. Width
    /// and precision end at a million. As on Windows, l means 32 bits, so that LONG and DWORD are
    /// right; a 64-bit long of this platform takes ll.
    void Format(const wchar_t* lpszFormat, ...);
    /// The same with a format from the calling plug-in's string table; empty when it is missing.
    void Format(UINT nFormatID, ...);
    /// Format() with the arguments in a list.
    void FormatV(const wchar_t* lpszFormat, va_list args);
    /// @{
    /// Append formatted arguments, which may point into the text.
    void AppendFormat(const wchar_t* lpszFormat, ...);
    void AppendFormat(UINT nFormatID, ...);
    void AppendFormatV(const wchar_t* lpszFormat, va_list args);
    /// @}

private:
    friend void vx::detail::concatenate(CString_E&, std::wstring_view, std::wstring_view);
    explicit CString_E(std::wstring&& text) noexcept : m_text(std::move(text)) {}
    CString_E(const std::wstring& text, std::size_t first, std::size_t count)
        : m_text(text, first, count)
    {
    }

    static constexpr std::size_t clampCount(int n) noexcept
    {
        return n > 0 ? static_cast<std::size_t>(n) : 0;
    }
    static constexpr int position(std::size_t found) noexcept { return static_cast<int>(found); }
    [[gnu::cold]] void FreeUtf8() noexcept;
    /// Up to @p nCount characters from @p nFirst, both taken as unsigned; empty for a start beyond.
    CString_E FromPart(int nFirst, int nCount) const
    {
        const auto first = static_cast<std::size_t>(nFirst);
        return first > m_text.size() ? CString_E()
                                     : CString_E(m_text, first, static_cast<std::size_t>(nCount));
    }
    CString_E& TrimLeftOf(std::wstring_view set);
    CString_E& TrimRightOf(std::wstring_view set);
    CString_E& TrimOf(std::wstring_view set);
    bool PointsInto(const wchar_t* p) const noexcept;
    int ReplaceInPlace(std::wstring_view old, std::wstring_view replacement, std::size_t hit);
    int ReplaceGrowing(std::wstring_view old, std::wstring_view replacement, std::size_t hit);

    std::wstring m_text;
    mutable char* m_pUtf8 = nullptr; // the last conversion, from new[]
};
static_assert(sizeof(CString_E) == 40);

inline void vx::detail::concatenate(CString_E& target, std::wstring_view first,
                                    std::wstring_view second)
{
    if (target.m_text.empty())
        target.m_text.reserve(first.size() + second.size());
    target.m_text.append(first).append(second);
}

#include <VxMFCEmu/text/cstringoperators.h>
