#include "support/test.h"

#include <cerrno>

namespace {

constexpr DWORD kAllocate = FORMAT_MESSAGE_ALLOCATE_BUFFER;

TEST(LastError, IsTheThreadsErrno)
{
    SetLastError(17);
    EXPECT_EQ(errno, 17);
    errno = 33;
    EXPECT_EQ(GetLastError(), 33U);
    std::thread([] { SetLastError(99); }).join();
    EXPECT_EQ(GetLastError(), 33U);
    SetLastError(0xFFFFFFFFU);
    EXPECT_EQ(GetLastError(), 0xFFFFFFFFU);
}

TEST(FormatMessage, IntoTheCallersBuffer)
{
    const wchar_t* const system5 = L"system error! error number: 5";
    // flags, source, id, size; length and text, null when the buffer stays as it is
    const Row<DWORD, const wchar_t*, DWORD, DWORD, DWORD, const wchar_t*> rows[] = {
        {0, nullptr, 5, 100, 29, system5},
        {0, nullptr, 5, 29, 29, system5},
        {0, nullptr, 5, 28, 27, L"system error! error number:"},
        {0, nullptr, 5, 10, 9, L"system er"},
        {0, nullptr, 5, 1, 0, L""},
        {0, nullptr, 0xFFFFFFFF, 100, 38, L"system error! error number: 4294967295"},
        {0, L"%1 stays %s", 0, 100, 11, L"%1 stays %s"},
        {0xFE00, L"abcdef", 0, 4, 3, L"abc"},
        {0, L"", 0, 4, 0, L""},
        {0, L"abc", 0, 0, 0, nullptr},
        {kAllocate, L"abc", 0, 100, 0, nullptr},
    };
    forRows(rows, [&](DWORD flags, const wchar_t* source, DWORD id, DWORD size, DWORD length,
                      const wchar_t* text) {
        std::wstring buffer(128, L'#');
        EXPECT_EQ(FormatMessage_E(flags, source, id, 0, buffer.data(), size, nullptr), length);
        EXPECT_EQ(std::wstring(buffer.data(), text ? length + 1 : 1),
                  text ? std::wstring(text) + L'\0' : std::wstring(L"#"));
        EXPECT_EQ(buffer[length + 1], L'#');
    });
    EXPECT_EQ(FormatMessage_E(0, nullptr, 1, 0, static_cast<wchar_t*>(nullptr), 9, nullptr), 0U);
}

TEST(FormatMessage, IntoANewBuffer)
{
    const std::wstring longText(3000, L'x');
    for (const auto& [source, expected] :
         {std::pair<const wchar_t*, std::wstring>{nullptr, L"system error! error number: 8"},
          {longText.c_str(), std::wstring(1023, L'x')}}) {
        wchar_t* buffer = nullptr;
        EXPECT_EQ(FormatMessage_E(kAllocate, source, 8, 0, &buffer, 2, nullptr), expected.size());
        ASSERT_NE(buffer, nullptr);
        EXPECT_EQ(buffer, expected);
        std::free(buffer);
    }
    wchar_t* untouched = nullptr;
    EXPECT_EQ(FormatMessage_E(0, nullptr, 8, 0, &untouched, 100, nullptr), 0U);
    EXPECT_EQ(untouched, nullptr);
}

} // namespace
