#pragma once

#include "resource.h"

#include <VxMFCEmu/VxMFCEmu.h>

/// The form controls.ui, and the slots that its connections name. The page takes the connections
/// over, to its slots of these names.
class CControlsForm : public QDialog
{
    Q_OBJECT

public:
    explicit CControlsForm(QWidget* pParent);

public Q_SLOTS:
    void OnEnChangeName() {}
    void OnCbnSelchangeSize() {}
    void OnBnClickedOrientation() {}
    void OnBnClickedFrame() {}
    void OnLbnSelchangeView() {}
    void OnDeltaposCopies() {}
    void OnHScrollWeight() {}
    void OnDatetimechangeDate() {}
};

/// One control of each class: those of the sheet are the form's, those of the output are made by
/// Create(). What the user does is written into the page's list and into the host's report.
class CControlsPage : public CDialog_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CControlsPage)

    BOOL AttachDefault(QWidget* pParent) override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange_E* pDX) override;
    void OnCancel() override;
    void OnFill();
    void OnPlot();

public Q_SLOTS:
    // Of the form, connected by their names
    void OnEnChangeName();
    void OnCbnSelchangeSize();
    void OnBnClickedOrientation();
    void OnBnClickedFrame();
    void OnLbnSelchangeView();
    void OnDeltaposCopies();
    void OnHScrollWeight();
    void OnDatetimechangeDate();
    // Connected by id
    void OnBnClickedHidden();
    void OnCbnSelchangeLineType();
    void OnDeltaposScale();
    void OnCheckLayer(QListWidgetItem* pItem);
    void OnEnChangeNotes();
    void OnHScrollPan();

    DECLARE_MESSAGE_MAP_E()

private:
    void MakeOutput();
    void ConnectOutput();
    void LayOut();
    void DrawLineTypes();
    void FillSheet();
    void FillOutput();
    CString_E State();
    void Notify(const wchar_t* lpszFormat, ...);

    CEdit_E m_wndName;
    CComboBox_E m_wndSize;
    CButton_E m_wndLandscape;
    CButton_E m_wndPortrait;
    CButton_E m_wndFrame;
    CListBox_E m_wndView;
    CSpinButtonCtrl_E m_wndCopies;
    CSliderCtrl_E m_wndWeight;
    CDateTimeCtrl_E m_wndDate;
    CStatic_E m_wndSummary;
    CButton_E m_wndPlot;

    CButton_E m_wndOutput;
    CButton_E m_wndHidden;
    CComboBoxEx_E m_wndLineType;
    CSpinButtonCtrl_E m_wndScale;
    CCheckListBox_E m_wndLayers;
    CEdit_E m_wndNotes;
    CScrollBar_E m_wndPan;
    CProgressCtrl_E m_wndProgress;
    CStatic_E m_wndCaption;
    CListBox_E m_wndNotices;
    CImageList_E m_lineTypes;
};
