/// @file datetimectrl.h
/// CDateTimeCtrl_E: a field for a date, a time or both, with a calendar that drops down.
///
/// Differs from MFC: only the date goes in and out, and there is always one (no GDT_NONE). Formats
/// show eras not at all, and "h" as the hour of 24 unless the text has "t" too. The calendar is the
/// widget's own. A control of another class and one without a widget give the failure value and
/// change nothing.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/sys/systemtime.h>
#include <VxMFCEmu/wnd/window.h>

QT_BEGIN_NAMESPACE
class QCalendarWidget;
QT_END_NAMESPACE

/// A control for a date.
class VXMFC_EXPORT CDateTimeCtrl_E : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CDateTimeCtrl_E)

    BOOL AttachDefault(QWidget* pParent) override;
    /// Turns the calendar on.
    BOOL OnAttach() override;
    using CWnd_E::Create;
    /// @{
    /// Makes the field below @p pParent, at @p rect in its coordinates, showing the present date or
    /// time as DTS_SHORTDATEFORMAT, DTS_LONGDATEFORMAT or DTS_TIMEFORMAT tells. DTS_UPDOWN leaves
    /// the calendar out.
    BOOL Create(DWORD dwStyle, const tagRECT& rect, QWidget* pParent);
    BOOL Create(DWORD dwStyle, const tagRECT& rect, CWnd_E* pParent, UINT nID);
    /// @}

    /// Sets the date; one that does not exist changes nothing. FALSE for null.
    BOOL SetTime(const _SYSTEMTIME* pTime = nullptr);
    /// Stores the year, month and day and leaves the other members alone. GDT_VALID, also for null.
    DWORD GetTime(_SYSTEMTIME* pTime) const;
    /// Shows date and time in a format of GetDateFormat() and GetTimeFormat(); null and an
    /// empty text are the short date of the locale. FALSE, changing nothing, for a format that
    /// shows neither.
    BOOL SetFormat(const wchar_t* pszFormat);
    /// Limits the dates; null is no limit on that side. FALSE, changing nothing, for a date that
    /// does not exist.
    BOOL SetRange(const _SYSTEMTIME* pMin, const _SYSTEMTIME* pMax);
    /// Stores the limits that there are, as GetTime() does, and returns which: GDTR_MIN, GDTR_MAX.
    /// Null is allowed.
    DWORD GetRange(_SYSTEMTIME* pMin, _SYSTEMTIME* pMax) const;
    /// The calendar that drops down, owned by the field; null when it shows no date or no calendar.
    QCalendarWidget* GetMonthCal() const;
    /// Closes the calendar.
    void CloseMonthCal() const;
    /// The size that shows everything; FALSE on failure.
    BOOL GetIdealSize(tagSIZE* pSize) const;

    BOOL OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
