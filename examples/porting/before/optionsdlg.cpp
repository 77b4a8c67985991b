#include "optionsdlg.h"

// clang-format off
//! [dialog source]
IMPLEMENT_DYNAMIC(COptionsDlg, CDialog)

BEGIN_MESSAGE_MAP(COptionsDlg, CDialog)
    ON_BN_CLICKED(IDC_DEFAULTS, &COptionsDlg::OnDefaults)
    ON_CBN_SELCHANGE(IDC_SIZE, &COptionsDlg::OnSelchangeSize)
END_MESSAGE_MAP()

COptionsDlg::COptionsDlg(CWnd* pParent)
    : CDialog(IDD_OPTIONS, pParent), m_nSpacing(10), m_bGrid(TRUE), m_nSize(0), m_nChanges(0)
{
}

void COptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
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
