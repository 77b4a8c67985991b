#pragma once

#include "oldnames.h"
#include "resource.h"

//! [dialog class]
class COptionsDlg : public CDialog
{
    DECLARE_DYNAMIC(COptionsDlg)

public:
    COptionsDlg(CWnd* pParent = NULL);

    int m_nSpacing;
    BOOL m_bGrid;
    int m_nSize;
    int m_nChanges;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);

    afx_msg void OnDefaults();
    afx_msg void OnSelchangeSize();
    DECLARE_MESSAGE_MAP()
};
//! [dialog class]
