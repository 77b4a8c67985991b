// UTF-8 into CString_E and back, beside Qt's conversions.
#include "require.h"

#include <VxMFCEmu/text.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::optional<CString_E> decoded(const char* bytes)
{
    try {
        return CString_E(bytes);
    } catch (const std::range_error&) {
        return std::nullopt;
    }
}

std::optional<std::string> encoded(const CString_E& text)
{
    try {
        return text.Utf8Ptr();
    } catch (const std::range_error&) {
        return std::nullopt;
    }
}

// Qt swallows a byte order mark at the start; a letter in front keeps it.
void checkDecoding(const std::string& bytes)
{
    const std::string guarded = '.' + bytes;
    const std::optional<CString_E> text = decoded(guarded.c_str());
    const QByteArray source = QByteArray::fromStdString(guarded);
    const QString byQt = QString::fromUtf8(source);
    // Where Qt had nothing to replace, its text gives the bytes back.
    VXMFC_REQUIRE(text.has_value() == (byQt.toUtf8() == source));
    if (text) {
        VXMFC_REQUIRE(VxQString(*text) == byQt);
        VXMFC_REQUIRE(CString_E(byQt) == *text);
        VXMFC_REQUIRE(encoded(*text) == guarded);
    }
    // Where an exception has no place, bytes that are no text are replaced.
    CString_E lossy;
    lossy.Format(L"%S", guarded.c_str());
    VXMFC_REQUIRE(lossy.GetLength() >= 1 && encoded(lossy).has_value());
    VXMFC_REQUIRE(!text || lossy == *text);
    VXMFC_REQUIRE(text || lossy.Find(L'\uFFFD') > 0);
}

void checkEncoding(const std::vector<wchar_t>& characters)
{
    std::wstring wide = L".";
    bool isText = true;
    for (const wchar_t ch : characters) {
        const auto code = static_cast<std::uint32_t>(ch);
        if (code == 0)
            continue;
        wide.push_back(ch);
        isText = isText && code <= 0x10FFFF && code - 0xD800U >= 0x800U;
    }
    const CString_E text(wide.c_str());
    const std::optional<std::string> bytes = encoded(text);
    VXMFC_REQUIRE(bytes.has_value() == isText);
    if (!bytes)
        return;
    const QString byQt = QString::fromUcs4(reinterpret_cast<const uint*>(wide.data()),
                                           static_cast<int>(wide.size()));
    VXMFC_REQUIRE(byQt.toUtf8().toStdString() == *bytes);
    VXMFC_REQUIRE(VxQString(text) == byQt);
    VXMFC_REQUIRE(decoded(bytes->c_str()) == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string bytes(data, data + size);
    bytes.resize(std::strlen(bytes.c_str()));
    checkDecoding(bytes);

    std::vector<wchar_t> characters(size / sizeof(wchar_t));
    if (!characters.empty())
        std::memcpy(characters.data(), data, characters.size() * sizeof(wchar_t));
    checkEncoding(characters);
    return 0;
}
