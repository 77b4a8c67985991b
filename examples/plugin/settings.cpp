#include "settings.h"

#include <QtCore/QFileInfo>

#include <dlfcn.h>

#include <cstdlib>
#include <cstring>

namespace {

struct PlacePart
{
    const wchar_t* name;
    LONG tagRECT::*member;
};
constexpr PlacePart kPlace[] = {{L"Left", &tagRECT::left},
                                {L"Top", &tagRECT::top},
                                {L"Right", &tagRECT::right},
                                {L"Bottom", &tagRECT::bottom}};

} // namespace

CTrackerSettings::CTrackerSettings()
{
    RegCreateKey_E(HKEY_CURRENT_USER, L"Software\\VxDemo\\Tracker", &m_hKey);
}

CTrackerSettings::~CTrackerSettings()
{
    RegFlushKey_E(m_hKey);
    RegCloseKey_E(m_hKey);
}

// A number that this run has written is a number; one that comes out of the file is its text.
int CTrackerSettings::Number(const wchar_t* lpszName, int nDefault) const
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    RegQueryValueExW_E(m_hKey, lpszName, nullptr, &type, nullptr, &size);
    std::vector<BYTE> data(size);
    RegQueryValueExW_E(m_hKey, lpszName, nullptr, nullptr, data.data(), nullptr);
    if (type == REG_SZ)
        return std::atoi(reinterpret_cast<const char*>(data.data()));
    int nValue = nDefault;
    if (type == REG_DWORD)
        std::memcpy(&nValue, data.data(), sizeof nValue);
    return nValue;
}

void CTrackerSettings::SetNumber(const wchar_t* lpszName, int nValue)
{
    RegSetValueExW_E(m_hKey, lpszName, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&nValue),
                     sizeof nValue);
}

bool CTrackerSettings::RestorePlace() const
{
    CRect_E place;
    for (const PlacePart& part : kPlace)
        place.*part.member = Number(part.name);
    return !place.IsRectEmpty() && MoveWindow_E(TolmGetMainFrame(), &place, TRUE);
}

void CTrackerSettings::SavePlace()
{
    CRect_E place;
    if (!GetWindowRect_E(TolmGetMainFrame(), &place))
        return;
    for (const PlacePart& part : kPlace)
        SetNumber(part.name, place.*part.member);
}

CString_E BesidePlugin(const CString_E& strName)
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void*>(&BesidePlugin), &info) == 0)
        return strName;
    const QFileInfo module(QString::fromLocal8Bit(info.dli_fname));
    return CString_E(module.absolutePath()) + L"/" + strName;
}

namespace {

CString_E ProfilePath() { return BesidePlugin(L"VxDemoPlugin.ini"); }

} // namespace

CString_E ProfileText(const wchar_t* lpszSection, const wchar_t* lpszKey,
                      const wchar_t* lpszDefault)
{
    const CString_E strPath = ProfilePath();
    // A null buffer asks for the length; the size does not protect a buffer.
    const DWORD nLength =
        GetPrivateProfileString_E(lpszSection, lpszKey, lpszDefault, nullptr, 0, strPath);
    CString_E strText;
    GetPrivateProfileString_E(lpszSection, lpszKey, lpszDefault,
                              strText.GetBuffer(static_cast<int>(nLength)), nLength + 1, strPath);
    strText.ReleaseBuffer();
    return strText;
}

int ProfileNumber(const wchar_t* lpszSection, const wchar_t* lpszKey)
{
    return GetPrivateProfileInt_E(lpszSection, lpszKey, 0, ProfilePath());
}
