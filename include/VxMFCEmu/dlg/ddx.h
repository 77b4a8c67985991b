/// @file ddx.h
/// DDX_ functions: each moves one value between a control and a variable.
///
/// Each comes in three forms, which name the control by pointer, by object name and by numeric id
/// (through the calling plug-in's id map). Without such a control, or with one of another kind,
/// nothing happens.
///
/// - DDX_Text(): the window text, which is set only when it differs; or a number as text, integers
///   in base 10, the others in the form 'g' with six digits.
/// - DDX_Check(): 0 or 1; any value but 0 checks.
/// - DDX_Radio(): index of the checked one of the radio buttons that follow the control, the first
///   of them, in the focus chain; the variable stays when none is.
/// - DDX_CBIndex(), DDX_LBIndex(): index of the current entry, -1 for none.
/// - DDX_CBString(), DDX_CBStringExact(): the current text. Differs from MFC: both look for the
///   whole text, with case.
/// - DDX_LBString(), DDX_LBStringExact(): the current entry's text, empty for none; makes the first
///   entry that starts with the value the current one, Exact one that equals it, both without case;
///   none if none fits.
/// - DDX_Scroll(), DDX_Slider(): the position.
/// - DDX_DateTimeCtrl(), DDX_MonthCalCtrl(): date and time; an invalid one leaves the control
/// alone.
///   Text is in the form it shows.
/// - DDX_Control(): binds a window that is unbound to the control, in both directions.
///
/// Differs from MFC: a number that cannot be read, or is out of its type's range, is reported with
/// one message for all types; integers may not have blanks around them. What an exchange changes
/// in a combo or list box is not notified.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/dlg/dataexchange.h>
#include <VxMFCEmu/wnd/resourceids.h>

#include <QtCore/QDateTime>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QCalendarWidget;
class QComboBox;
class QDateTimeEdit;
class QGroupBox;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QScrollBar;
class QSlider;
QT_END_NAMESPACE

class CWnd_E;

/// The functions by value type and class of control. ROW2 has two classes of control; its forms by
/// name and id take either.
#define VXMFC_DDX_TABLE(ROW, ROW2)                                                                 \
    ROW(DDX_Text, CString_E&, QWidget)                                                             \
    ROW(DDX_Text, BYTE&, QWidget)                                                                  \
    ROW(DDX_Text, short&, QWidget)                                                                 \
    ROW(DDX_Text, int&, QWidget)                                                                   \
    ROW(DDX_Text, UINT&, QWidget)                                                                  \
    ROW(DDX_Text, long&, QWidget)                                                                  \
    ROW(DDX_Text, unsigned long&, QWidget)                                                         \
    ROW(DDX_Text, LONGLONG&, QWidget)                                                              \
    ROW(DDX_Text, ULONGLONG&, QWidget)                                                             \
    ROW(DDX_Text, float&, QWidget)                                                                 \
    ROW(DDX_Text, double&, QWidget)                                                                \
    ROW2(DDX_Check, int&, QAbstractButton, QGroupBox)                                              \
    ROW(DDX_Radio, int&, QRadioButton)                                                             \
    ROW(DDX_CBIndex, int&, QComboBox)                                                              \
    ROW(DDX_LBIndex, int&, QListWidget)                                                            \
    ROW2(DDX_CBString, CString_E&, QComboBox, QLineEdit)                                           \
    ROW(DDX_CBStringExact, CString_E&, QComboBox)                                                  \
    ROW(DDX_LBString, CString_E&, QListWidget)                                                     \
    ROW(DDX_LBStringExact, CString_E&, QListWidget)                                                \
    ROW(DDX_Scroll, int&, QScrollBar)                                                              \
    ROW(DDX_Slider, int&, QSlider)                                                                 \
    ROW(DDX_DateTimeCtrl, QDateTime&, QDateTimeEdit)                                               \
    ROW(DDX_DateTimeCtrl, CString_E&, QDateTimeEdit)                                               \
    ROW(DDX_MonthCalCtrl, QDate&, QCalendarWidget)                                                 \
    ROW(DDX_Control, CWnd_E&, QWidget)

#define VXMFC_DDX_POINTER(name, Value, Control)                                                    \
    VXMFC_EXPORT void name(CDataExchange_E* pDX, Control* pControl, Value value);
// The form by id becomes part of its caller, which is how the calling plug-in is found: a call in
// tail position would otherwise leave no trace of it.
#define VXMFC_DDX_NAMED(name, Value)                                                               \
    VXMFC_EXPORT void name(CDataExchange_E* pDX, const char* pszName, Value value);                \
    [[gnu::always_inline]] inline void name(CDataExchange_E* pDX, int nIDC, Value value)           \
    {                                                                                              \
        name(pDX, ToStringId(static_cast<UINT>(nIDC)).toUtf8().constData(), value);                \
    }
#define VXMFC_DDX_ROW(name, Value, Control)                                                        \
    VXMFC_DDX_POINTER(name, Value, Control)                                                        \
    VXMFC_DDX_NAMED(name, Value)
#define VXMFC_DDX_ROW2(name, Value, First, Second)                                                 \
    VXMFC_DDX_POINTER(name, Value, First)                                                          \
    VXMFC_DDX_POINTER(name, Value, Second)                                                         \
    VXMFC_DDX_NAMED(name, Value)

// clang-format off
/// @{
/// Moves a value between a control and a variable; what it is says the page above.
VXMFC_DDX_TABLE(VXMFC_DDX_ROW, VXMFC_DDX_ROW2)
/// @}
// clang-format on

/// @{
/// The window text in a buffer of @p nMaxLen characters with the terminator; cut when it is longer.
VXMFC_EXPORT void DDX_Text(CDataExchange_E* pDX, QWidget* pControl, LPTSTR pszValue, int nMaxLen);
VXMFC_EXPORT void DDX_Text(CDataExchange_E* pDX, const char* pszName, LPTSTR pszValue, int nMaxLen);
[[gnu::always_inline]] inline void DDX_Text(CDataExchange_E* pDX, int nIDC, LPTSTR pszValue,
                                            int nMaxLen)
{
    DDX_Text(pDX, ToStringId(static_cast<UINT>(nIDC)).toUtf8().constData(), pszValue, nMaxLen);
}
/// @}
