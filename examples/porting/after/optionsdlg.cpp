#include "optionsdlg.h"

// clang-format off
//! [dialog source]
IMPLEMENT_DYNAMIC_E(COptionsDlg, CDialog_E, QDialog)

BEGIN_MESSAGE_MAP_E(COptionsDlg, CDialog_E)
    ON_BN_CLICKED_E(IDC_DEFAULTS, &COptionsDlg::OnDefaults)
END_MESSAGE_MAP_E()

COptionsDlg::COptionsDlg(CWnd_E* pParent)
    : CDialog_E(IDD_OPTIONS, pParent), m_nSpacing(10), m_bGrid(TRUE), m_nSize(0), m_nChanges(0)
{
}

BOOL COptionsDlg::OnInitDialog()
{
    Connect(IDC_SIZE, SIGNAL(currentIndexChanged(int)), this, SLOT(OnSelchangeSize()), GetSafeHwnd());
    return CDialog_E::OnInitDialog();
}

void COptionsDlg::DoDataExchange(CDataExchange_E* pDX)
{
    CDialog_E::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_SPACING, m_nSpacing);
    DDV_MinMaxInt(pDX, m_nSpacing, 5, 100);
    DDX_Check(pDX, IDC_GRID, m_bGrid);
    DDX_CBIndex(pDX, IDC_SIZE, m_nSize);
}

void COptionsDlg::OnDefaults()
{
    SetDlgItemInt(IDC_SPACING, 10);
    CheckDlgButton(IDC_GRID, BST_CHECKED);
}

void COptionsDlg::OnSelchangeSize()
{
    ++m_nChanges;
}
//! [dialog source]
