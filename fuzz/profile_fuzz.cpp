// The readers and writers of profile files, on a file made of the input. The input is a section, a
// key and a value, each up to a line end, and then the file.
#include "inputfile.h"
#include "inputreader.h"

#include <VxMFCEmu/sys/profile.h>
#include <VxMFCEmu/text.h>

#include <algorithm>
#include <vector>

namespace {

// What only looks as if it were terminated is found by the address sanitizer.
using Buffer = std::vector<wchar_t>;

CString_E wide(const std::string& text) { return CString_E(QString::fromUtf8(text.c_str())); }

struct Fuzzed
{
    CString_E section;
    CString_E key;
    CString_E value;
    CString_E file;
};

CString_E stringOf(const Fuzzed& f)
{
    const DWORD length = GetPrivateProfileString_E(f.section, f.key, f.value, nullptr, 0, f.file);
    Buffer buffer(length + 1, L'\xABCD'); // UTF-16 units are as many as characters, or more
    VXMFC_REQUIRE(GetPrivateProfileString_E(f.section, f.key, f.value, buffer.data(), 0, f.file) ==
                  length);
    return CString_E(buffer.data());
}

void readString(const Fuzzed& f)
{
    const CString_E text = stringOf(f);
    const INT number = GetPrivateProfileInt_E(f.section, f.key, 7, f.file);
    VXMFC_REQUIRE(number == VxQString(text).toInt() || number == 7);
}

std::wstring sectionOf(const Fuzzed& f)
{
    const DWORD length = GetPrivateProfileSection_E(f.section, nullptr, ~0U, f.file);
    Buffer buffer(length);
    VXMFC_REQUIRE(GetPrivateProfileSection_E(f.section, buffer.data(), length, f.file) == length);
    VXMFC_REQUIRE(length == 0 || buffer.back() == L'\r');
    return {buffer.begin(), buffer.end()};
}

void readLists(const Fuzzed& f)
{
    const std::wstring whole = sectionOf(f);
    const auto small = static_cast<DWORD>(whole.size() / 2);
    Buffer lines(whole.size());
    const DWORD result = GetPrivateProfileSection_E(f.section, lines.data(), small, f.file);
    VXMFC_REQUIRE(result == (whole.empty() ? 0 : small - 2));
    VXMFC_REQUIRE(std::equal(whole.begin(), whole.begin() + small, lines.begin()));

    const DWORD length = GetPrivateProfileSectionNames_E(nullptr, ~0U, f.file);
    Buffer names(length);
    VXMFC_REQUIRE(GetPrivateProfileSectionNames_E(names.data(), length, f.file) == length);
    VXMFC_REQUIRE(length == 0 || names.back() == L'\0');
}

void writeStruct(const Fuzzed& f, const std::string& bytes)
{
    const auto size = static_cast<UINT>(bytes.size());
    VXMFC_REQUIRE(WritePrivateProfileStruct_E(f.section, L"bytes", bytes.data(), size, f.file));
    std::string read(size + 3, '?');
    const BOOL found =
        GetPrivateProfileStruct_E(f.section, L"bytes", read.data(), size + 3, f.file);
    VXMFC_REQUIRE(found == (size != 0));
    VXMFC_REQUIRE(read == (found ? bytes + std::string(3, '\0') : std::string(3, '?')));
}

// A name of letters is a name as it is; QSettings has rules of its own for others.
bool isPlain(const CString_E& name)
{
    const std::wstring_view text(name.GetString(), static_cast<std::size_t>(name.GetLength()));
    return !text.empty() && std::all_of(text.begin(), text.end(), [](wchar_t ch) {
        return (ch >= L'a' && ch <= L'z') || (ch >= 0x4E00 && ch < 0x9FFF);
    });
}

void write(const Fuzzed& f)
{
    VXMFC_REQUIRE(WritePrivateProfileString_E(f.section, f.key, f.value, f.file));
    if (isPlain(f.section) && isPlain(f.key)) {
        Fuzzed other = f;
        other.value = L"default";
        VXMFC_REQUIRE(stringOf(other) == f.value);
    }
    VXMFC_REQUIRE(WritePrivateProfileSection_E(f.section, f.value, f.file));
    VXMFC_REQUIRE(WritePrivateProfileSection_E(f.key, sectionOf(f).c_str(), f.file));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    // QSettings says so for each empty key.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view whole(reinterpret_cast<const char*>(data), size);
    if (whole.find("@Variant") != std::string_view::npos)
        return 0; // Qt's reader of its binary streams allocates what a stream says
    InputReader input(data, size);
    Fuzzed f;
    f.section = wide(input.takeUntil('\n'));
    f.key = wide(input.takeUntil('\n'));
    f.value = wide(input.takeUntil('\n'));
    const std::string content = input.takeRest();
    const InputFile file(QByteArray::fromStdString(content));
    f.file = CString_E(file.name());

    readString(f);
    readLists(f);
    write(f);
    writeStruct(f, content);
    return 0;
}
