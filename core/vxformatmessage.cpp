#include <VxMFCEmu/core/lasterror.h>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

constexpr DWORD kAllocatedBytes = 4096;
constexpr DWORD kAllocatedCharacters = kAllocatedBytes / sizeof(wchar_t);

std::wstring messageText(const void* lpSource, DWORD dwMessageId)
{
    if (lpSource)
        return static_cast<const wchar_t*>(lpSource);
    return L"system error! error number: " + std::to_wstring(dwMessageId);
}

DWORD copyTerminated(wchar_t* buffer, const std::wstring& text, std::size_t limit)
{
    const std::size_t length = std::min(text.size(), limit);
    text.copy(buffer, length);
    buffer[length] = L'\0';
    return static_cast<DWORD>(length);
}

} // namespace

DWORD FormatMessage_E(DWORD dwFlags, const void* lpSource, DWORD dwMessageId, DWORD,
                      wchar_t* lpBuffer, DWORD nSize, va_list*)
{
    if ((dwFlags & FORMAT_MESSAGE_ALLOCATE_BUFFER) != 0 || !lpBuffer || nSize == 0)
        return 0;
    const std::wstring text = messageText(lpSource, dwMessageId);
    // Intended: a text of exactly nSize characters is not cut, so its terminator stands behind
    // them.
    return copyTerminated(lpBuffer, text, text.size() <= nSize ? text.size() : nSize - 1);
}

DWORD FormatMessage_E(DWORD dwFlags, const void* lpSource, DWORD dwMessageId, DWORD,
                      wchar_t** lpBuffer, DWORD, va_list*)
{
    if ((dwFlags & FORMAT_MESSAGE_ALLOCATE_BUFFER) == 0 || !lpBuffer)
        return 0;
    auto* const buffer = static_cast<wchar_t*>(std::malloc(kAllocatedBytes));
    if (!buffer)
        return 0;
    *lpBuffer = buffer;
    return copyTerminated(buffer, messageText(lpSource, dwMessageId), kAllocatedCharacters - 1);
}
