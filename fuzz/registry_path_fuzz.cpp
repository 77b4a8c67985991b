// Sub-keys, value names, types and data from outside, through the registry functions, over a store
// of their own. To be run with XDG_CONFIG_HOME naming a folder that may be written to: the library
// opens its settings before this is called.
#include <VxMFCEmu/sys/registry.h>

#include "require.h"

#include <cstdint>
#include <string>
#include <vector>

namespace {

// Takes the text up to the next zero byte off the front.
std::string nextText(std::string& rest)
{
    const std::size_t end = rest.find('\0');
    std::string text = rest.substr(0, end);
    rest.erase(0, end == std::string::npos ? end : end + 1);
    return text;
}

std::wstring widened(const std::string& text)
{
    std::wstring wide;
    for (const char ch : text)
        wide.push_back(static_cast<wchar_t>(static_cast<signed char>(ch) * 0x123));
    return wide;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    std::string rest(reinterpret_cast<const char*>(pData), size);
    const std::string subKey = nextText(rest);
    const std::string name = nextText(rest);
    const DWORD type = rest.empty() ? REG_NONE : static_cast<unsigned char>(rest[0]) % 12U;
    const std::wstring wideName = widened(name);
    std::string data = rest;
    data.append(sizeof(ULONGLONG), '\0'); // numbers are read whole
    std::wstring wideData = widened(rest);
    wideData.append(2, L'\0');

    HKEY hKey = nullptr;
    VXMFC_REQUIRE(RegCreateKeyExA_E(HKEY_CURRENT_USER, subKey.c_str(), 0, nullptr, 0, 0, nullptr,
                                    &hKey, nullptr) == ERROR_SUCCESS);
    const auto* const pNarrow = reinterpret_cast<const BYTE*>(data.data());
    const auto* const pWide = reinterpret_cast<const BYTE*>(wideData.data());
    VXMFC_REQUIRE(RegSetValueExA_E(hKey, name.c_str(), 0, type, pNarrow, 0) == ERROR_SUCCESS);
    DWORD needed = 0;
    VXMFC_REQUIRE(RegQueryValueExA_E(hKey, name.c_str(), nullptr, nullptr, nullptr, &needed) == 0);
    std::vector<BYTE> read(needed);
    VXMFC_REQUIRE(RegQueryValueExA_E(hKey, name.c_str(), nullptr, nullptr, read.data(), nullptr) ==
                  0);
    VXMFC_REQUIRE(RegSetValueExW_E(hKey, wideName.c_str(), 0, type, pWide, 0) == ERROR_SUCCESS);
    VXMFC_REQUIRE(RegQueryValueExW_E(hKey, wideName.c_str(), nullptr, nullptr, nullptr, &needed) ==
                  0);

    DWORD index = 0;
    DWORD length = 0;
    while (RegEnumKey_E(HKEY_CURRENT_USER, index, nullptr, &length) == ERROR_SUCCESS) {
        std::wstring text(length, L'\0');
        VXMFC_REQUIRE(RegEnumKey_E(HKEY_CURRENT_USER, index, text.data(), &length) ==
                      ERROR_SUCCESS);
        ++index;
    }
    RegRenameKey_E(hKey, wideName.c_str(), L"renamed");
    RegCopyTree_E(HKEY_CURRENT_USER, wideName.c_str(), hKey);
    VXMFC_REQUIRE(RegDeleteValue_E(hKey, wideName.c_str()) == ERROR_SUCCESS);
    VXMFC_REQUIRE(RegCloseKey_E(hKey) == ERROR_SUCCESS);
    VXMFC_REQUIRE(RegCloseKey_E(hKey) == ERROR_INVALID_HANDLE);
    VXMFC_REQUIRE(RegDeleteTree_E(HKEY_CURRENT_USER, nullptr) == ERROR_SUCCESS);
    return 0;
}
