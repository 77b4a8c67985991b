#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

/// What the plug-in remembers from run to run: numbers in the registry, below
/// HKEY_CURRENT_USER\Software\VxDemo\Tracker.
class CTrackerSettings
{
public:
    CTrackerSettings();
    ~CTrackerSettings();
    Q_DISABLE_COPY_MOVE(CTrackerSettings)

    int Number(const wchar_t* lpszName, int nDefault = 0) const;
    void SetNumber(const wchar_t* lpszName, int nValue);

    /// Moves the host's window to where it was at the last call of SavePlace(); false when there
    /// was none.
    bool RestorePlace() const;
    void SavePlace();

private:
    HKEY m_hKey = nullptr;
};

/// The path of a file that lies beside the plug-in.
CString_E BesidePlugin(const CString_E& strName);

/// A text of the profile file that lies beside the plug-in.
CString_E ProfileText(const wchar_t* lpszSection, const wchar_t* lpszKey,
                      const wchar_t* lpszDefault);
/// A number of it; 0 when there is none.
int ProfileNumber(const wchar_t* lpszSection, const wchar_t* lpszKey);
