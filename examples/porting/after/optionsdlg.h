#pragma once

#include "resource.h"

#include <VxMFCEmu/VxMFCEmu.h>

//! [dialog class]
class COptionsDlg : public CDialog_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(COptionsDlg)

public:
    explicit COptionsDlg(CWnd_E* pParent = nullptr);

    int m_nSpacing;
    BOOL m_bGrid;
    int m_nSize;
    int m_nChanges;

public Q_SLOTS:
    void OnSelchangeSize();

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange_E* pDX) override;

    void OnDefaults();
    DECLARE_MESSAGE_MAP_E()
};
//! [dialog class]
