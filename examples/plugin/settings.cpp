#include "settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <dlfcn.h>

#include <algorithm>
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

struct LookPart
{
    const wchar_t* name;
    int PlotLook::*member;
    int least, most;
};
constexpr LookPart kLook[] = {
    {L"Paper", &PlotLook::nPaper, 0, 2},
    {L"Grid", &PlotLook::bGrid, FALSE, TRUE},
    {L"Spacing", &PlotLook::nSpacing, PlotLook::nMinSpacing, PlotLook::nMaxSpacing},
    {L"Labels", &PlotLook::bLabels, FALSE, TRUE},
    {L"Lines", &PlotLook::nLines, 0, 2}};

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

std::vector<BYTE> CTrackerSettings::Data(const wchar_t* lpszName, DWORD& dwType) const
{
    DWORD size = 0;
    dwType = REG_NONE;
    RegQueryValueExW_E(m_hKey, lpszName, nullptr, &dwType, nullptr, &size);
    std::vector<BYTE> data(size);
    RegQueryValueExW_E(m_hKey, lpszName, nullptr, nullptr, data.data(), nullptr);
    return data;
}

// A number that this run has written is a number; one that comes out of the file is its text.
int CTrackerSettings::Number(const wchar_t* lpszName, int nDefault) const
{
    DWORD type = REG_NONE;
    const std::vector<BYTE> data = Data(lpszName, type);
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

CString_E CTrackerSettings::Text(const wchar_t* lpszName) const
{
    DWORD type = REG_NONE;
    const std::vector<BYTE> data = Data(lpszName, type);
    return type == REG_SZ ? CString_E(reinterpret_cast<const char*>(data.data())) : CString_E();
}

void CTrackerSettings::SetText(const wchar_t* lpszName, const CString_E& strValue)
{
    const auto size = static_cast<DWORD>(strValue.GetLength() + 1) * sizeof(wchar_t);
    RegSetValueExW_E(m_hKey, lpszName, 0, REG_SZ,
                     reinterpret_cast<const BYTE*>(strValue.GetString()), static_cast<DWORD>(size));
}

PlotLook CTrackerSettings::Look() const
{
    PlotLook look;
    look.strTitle = Text(L"Title");
    for (const LookPart& part : kLook) {
        int& value = look.*part.member;
        value = std::clamp(Number(part.name, value), part.least, part.most);
    }
    return look;
}

void CTrackerSettings::SetLook(const PlotLook& look)
{
    SetText(L"Title", look.strTitle);
    for (const LookPart& part : kLook)
        SetNumber(part.name, look.*part.member);
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

CString_E DocumentPath()
{
    const QString strFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QDir().mkpath(strFolder);
    return CString_E(strFolder) + L"/VxDemo.plot";
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
