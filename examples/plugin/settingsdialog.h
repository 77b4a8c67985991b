#pragma once

#include "resource.h"
#include "settings.h"

/// Asks how plots are to be shown. Its form is settings.ui, found through the id map.
class CSettingsDialog : public CDialog_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CSettingsDialog)

    explicit CSettingsDialog(CWnd_E* pParent) : CDialog_E(IDD_SETTINGS, pParent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange_E* pDX) override;
    void OnGrid();
    void OnDefaults();

    PlotLook m_look; ///< to be set before DoModal(); the user's choice after IDOK

    DECLARE_MESSAGE_MAP_E()
};
