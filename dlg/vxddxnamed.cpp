// The forms of the exchange functions that name the control.
#include <VxMFCEmu/dlg/ddx.h>

#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

namespace {

QWidget* find(const CDataExchange_E* pDX, const char* pszName)
{
    return pDX ? pDX->GetDlgItem(pszName) : nullptr;
}

} // namespace

#define VXMFC_ROW(name, Value, Control)                                                            \
    void name(CDataExchange_E* pDX, const char* pszName, Value value)                              \
    {                                                                                              \
        name(pDX, qobject_cast<Control*>(find(pDX, pszName)), value);                              \
    }
#define VXMFC_ROW2(name, Value, First, Second)                                                     \
    void name(CDataExchange_E* pDX, const char* pszName, Value value)                              \
    {                                                                                              \
        QWidget* const pControl = find(pDX, pszName);                                              \
        if (auto* const pSecond = qobject_cast<Second*>(pControl))                                 \
            name(pDX, pSecond, value);                                                             \
        else                                                                                       \
            name(pDX, qobject_cast<First*>(pControl), value);                                      \
    }

// clang-format off
VXMFC_DDX_TABLE(VXMFC_ROW, VXMFC_ROW2)
// clang-format on

void DDX_Text(CDataExchange_E* pDX, const char* pszName, LPTSTR pszValue, int nMaxLen)
{
    DDX_Text(pDX, find(pDX, pszName), pszValue, nMaxLen);
}
