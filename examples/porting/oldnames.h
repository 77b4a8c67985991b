// The names that the sources in before/ know, which are those of the library without the suffix.
// For what the library has no counterpart of, the little that these sources need.
#pragma once

#include <VxMFCEmu/VxMFCEmu.h>

#include <QtWidgets/QComboBox>

#include <memory>
#include <vector>

using CBrush = CBrush_E;
using CDC = CDC_E;
using CDataExchange = CDataExchange_E;
using CDialog = CDialog_E;
using CPen = CPen_E;
using CPoint = CPoint_E;
using CRect = CRect_E;
using CString = CString_E;
using CWnd = CWnd_E;
using AFX_EXTENSION_MODULE = AFX_EXTENSION_MODULE_E;

#define afx_msg
#define APIENTRY
#define __declspec(what) __attribute__((visibility("default")))
#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1
#define AfxInitExtensionModule AfxInitExtensionModule_E
#define AfxTermExtensionModule AfxTermExtensionModule_E

template <typename Class>
using OldQtClass = std::conditional_t<std::is_base_of_v<CDialog_E, Class>, QDialog, QWidget>;
#define DECLARE_DYNAMIC(theClass) DECLARE_DYNAMIC_E(theClass)
#define IMPLEMENT_DYNAMIC(theClass, baseClass)                                                     \
    IMPLEMENT_DYNAMIC_E(theClass, baseClass, OldQtClass<theClass>)

#define DECLARE_MESSAGE_MAP() DECLARE_MESSAGE_MAP_E()
#define BEGIN_MESSAGE_MAP(theClass, baseClass) BEGIN_MESSAGE_MAP_E(theClass, baseClass)
#define END_MESSAGE_MAP() END_MESSAGE_MAP_E()
#define ON_MESSAGE(message, memberFn) ON_MESSAGE_E(message, memberFn)
#define ON_BN_CLICKED(nID, memberFn) ON_BN_CLICKED_E(nID, memberFn)
#define ON_WM_LBUTTONDOWN() ON_WM_LBUTTONDOWN_E()
#define ON_WM_SIZE() ON_WM_SIZE_E()
// A handler that takes a window has one form, which takes a CWnd.
#define ON_WM_CONTEXTMENU()                                                                        \
    this->AddMsgMapEntry(                                                                          \
        WM_CONTEXTMENU, 39, nullptr,                                                               \
        vx::detail::eraseHandler<ThisClass_E, void(CWnd*, CPoint)>(&ThisClass_E::OnContextMenu));
// A control notifies its parent, through the message map.
#define ON_CBN_SELCHANGE(nID, memberFn)                                                            \
    if (auto* const pCombo = qobject_cast<QComboBox*>(this->GetDlgItem(nID, nullptr)))             \
        QObject::connect(pCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,            \
                         [this] { (this->*memberFn)(); });

/// A window that draws what a document holds.
class CView : public CWnd
{
protected:
    virtual void OnDraw(CDC* pDC) = 0;

private:
    void OnPaint()
    {
        CPaintDC_E dc(this);
        OnDraw(&dc);
    }
    void OnMessageMap() override
    {
        using ThisClass_E = CView;
        CWnd::OnMessageMap();
        ON_WM_PAINT_E()
    }
};

/// A window of its own, which deletes its object when it goes.
class CFrameWnd : public CWnd
{
public:
    BOOL Create(LPCTSTR, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect)
    {
        const BOOL bMade = CWnd::Create(dwStyle, rect, nullptr);
        SetWindowText(lpszWindowName);
        return bMade;
    }
    void PostNcDestroy() override { delete this; }
};

/// Belongs to its module, as long as that is loaded.
class CDynLinkLibrary : public CDynLinkLibrary_E
{
public:
    explicit CDynLinkLibrary(const AFX_EXTENSION_MODULE& state) : CDynLinkLibrary_E(state)
    {
        static std::vector<std::unique_ptr<CDynLinkLibrary>> modules;
        modules.emplace_back(this);
    }
};
