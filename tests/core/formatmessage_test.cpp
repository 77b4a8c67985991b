#include "support/test.h"

namespace {

constexpr DWORD kAllocate = FORMAT_MESSAGE_ALLOCATE_BUFFER;

TEST(FormatMessage, IntoTheCallersBufferOrANewOne)
{
    const std::wstring system = L"system error! error number: 5", longText(3000, L'x');
    // flags, source, size; length and text, null when the buffer stays as it is
    const Row<DWORD, const wchar_t*, DWORD, DWORD, const wchar_t*> rows[] = {
        {0, nullptr, 29, 29, system.c_str()},
        {0, nullptr, 28, 27, L"system error! error number:"},
        {0, nullptr, 1, 0, L""},
        {0, L"%1 stays %s", 100, 11, L"%1 stays %s"},
        {0xFE00, longText.c_str(), 4, 3, L"xxx"},
        {0, L"abc", 0, 0, nullptr},
        {kAllocate, L"abc", 100, 0, nullptr}};
    for (const auto& [flags, source, size, length, text] : rows) {
        std::wstring buffer(128, L'#');
        EXPECT_EQ(FormatMessage_E(flags, source, 5, 0, buffer.data(), size, nullptr), length);
        buffer.resize(buffer.find(L'#'));
        EXPECT_EQ(buffer, text ? std::wstring(text) + L'\0' : std::wstring());

        const std::wstring whole = std::wstring(source ? source : system.c_str()).substr(0, 1023);
        wchar_t* made = nullptr;
        EXPECT_EQ(FormatMessage_E(flags & ~kAllocate, source, 5, 0, &made, 100, nullptr), 0U);
        ASSERT_EQ(made, nullptr);
        EXPECT_EQ(FormatMessage_E(kAllocate, source, 5, 0, &made, 2, nullptr), whole.size());
        EXPECT_EQ(made, whole);
        std::free(made);
    }
    EXPECT_EQ(FormatMessage_E(0, nullptr, 1, 0, static_cast<wchar_t*>(nullptr), 9, nullptr), 0U);
}

} // namespace
