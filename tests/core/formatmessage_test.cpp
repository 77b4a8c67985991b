#include "support/test.h"

namespace {

TEST(FormatMessage, IntoTheCallersBuffer)
{
    // source, size; length and text, null when the buffer stays as it is
    const Row<const wchar_t*, DWORD, DWORD, const wchar_t*> rows[] = {
        {nullptr, 29, 29, L"system error! error number: 5"},
        {nullptr, 28, 27, L"system error! error number:"},
        {L"%1 stays %s", 100, 11, L"%1 stays %s"},
        {L"abc", 0, 0, nullptr}};
    for (const auto& [source, size, length, text] : rows) {
        std::wstring buffer(128, L'#');
        EXPECT_EQ(FormatMessage_E(0, source, 5, 0, buffer.data(), size, nullptr), length);
        buffer.resize(buffer.find(L'#'));
        EXPECT_EQ(buffer, text ? std::wstring(text) + L'\0' : std::wstring());
    }
}

TEST(FormatMessage, IntoANewBuffer)
{
    const std::wstring longText(3000, L'x');
    wchar_t* made = nullptr;
    EXPECT_EQ(FormatMessage_E(0, L"abc", 5, 0, &made, 100, nullptr), 0U) << "without the flag";
    const DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER;
    EXPECT_EQ(FormatMessage_E(flags, longText.c_str(), 5, 0, &made, 2, nullptr), 1023U);
    EXPECT_EQ(made, longText.substr(0, 1023));
    std::free(made);
}

} // namespace
