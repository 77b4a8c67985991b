#include "settingsdialog.h"

IMPLEMENT_DYNAMIC_E(CSettingsDialog, CDialog_E, QDialog)

BEGIN_MESSAGE_MAP_E(CSettingsDialog, CDialog_E)
ON_BN_CLICKED_E(IDC_GRID, &CSettingsDialog::OnGrid)
ON_BN_CLICKED_E(IDC_DEFAULTS, &CSettingsDialog::OnDefaults)
END_MESSAGE_MAP_E()

BOOL CSettingsDialog::OnInitDialog()
{
    if (!CDialog_E::OnInitDialog())
        return FALSE;
    OnGrid();
    return TRUE;
}

void CSettingsDialog::DoDataExchange(CDataExchange_E* pDX)
{
    CDialog_E::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_TITLE, m_look.strTitle);
    DDV_MaxChars(pDX, m_look.strTitle, 24);
    DDX_CBIndex(pDX, IDC_PAPER, m_look.nPaper);
    DDX_Check(pDX, IDC_GRID, m_look.bGrid);
    // Without a grid its spacing is disabled, whatever is in there.
    if (m_look.bGrid || !pDX->m_bSaveAndValidate) {
        DDX_Text(pDX, IDC_SPACING, m_look.nSpacing);
        DDV_MinMaxInt(pDX, m_look.nSpacing, PlotLook::nMinSpacing, PlotLook::nMaxSpacing);
    }
    DDX_Check(pDX, IDC_LABELS, m_look.bLabels);
    DDX_Radio(pDX, IDC_FINE, m_look.nLines);
}

void CSettingsDialog::OnGrid()
{
    GetDlgItem(IDC_SPACING)->EnableWindow(IsDlgButtonChecked(IDC_GRID) == BST_CHECKED);
}

void CSettingsDialog::OnDefaults()
{
    m_look = PlotLook();
    UpdateData(FALSE);
    OnGrid();
}
