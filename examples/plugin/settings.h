#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

#include <vector>

/// How the user wants plots to be shown.
struct PlotLook
{
    static constexpr int nMinSpacing = 5;
    static constexpr int nMaxSpacing = 100;

    CString_E strTitle; ///< none when empty
    int nPaper = 0;     ///< 0 graphite, 1 blueprint, 2 black
    BOOL bGrid = FALSE;
    int nSpacing = 20; ///< of the grid, in mm
    BOOL bLabels = TRUE;
    int nLines = 0; ///< 0 fine, 1 medium, 2 bold
};

/// What the plug-in remembers from run to run: values in the registry, below
/// HKEY_CURRENT_USER\Software\VxDemo\Tracker.
class CTrackerSettings
{
public:
    CTrackerSettings();
    ~CTrackerSettings();
    Q_DISABLE_COPY_MOVE(CTrackerSettings)

    int Number(const wchar_t* lpszName, int nDefault = 0) const;
    void SetNumber(const wchar_t* lpszName, int nValue);
    CString_E Text(const wchar_t* lpszName) const;
    void SetText(const wchar_t* lpszName, const CString_E& strValue);

    /// The defaults for what was never set.
    PlotLook Look() const;
    void SetLook(const PlotLook& look);

    /// Moves the host's window to where it was at the last call of SavePlace(); false when there
    /// was none.
    bool RestorePlace() const;
    void SavePlace();

private:
    std::vector<BYTE> Data(const wchar_t* lpszName, DWORD& dwType) const;

    HKEY m_hKey = nullptr;
};

/// Where the user's plot is kept: beside the settings.
CString_E DocumentPath();

/// The path of a file that lies beside the plug-in.
CString_E BesidePlugin(const CString_E& strName);

/// A text of the profile file that lies beside the plug-in.
CString_E ProfileText(const wchar_t* lpszSection, const wchar_t* lpszKey,
                      const wchar_t* lpszDefault);
/// A number of it; 0 when there is none.
int ProfileNumber(const wchar_t* lpszSection, const wchar_t* lpszKey);
