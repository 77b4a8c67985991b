// What controls give that have no widget of their class: one of each family of members.
#include "controls.h"

namespace {

using namespace vxtest;

// clang-format off
TEST(Unusable, ButtonsRangesAndDates)
{
    SYSTEMTIME time{2024, 2, 4, 29, 0, 0, 0, 0};
    forUnusable<CButton_E>({
        {BM_SETCHECK, 1, 0}, {BM_GETCHECK, 0}, {BM_GETSTATE, 0}, {BM_CLICK, 0},
        {BM_SETSTYLE, BS_AUTO3STATE, 0}, {BM_SETIMAGE, IMAGE_ICON, 0},
    });
    forUnusable<CProgressCtrl_E>({
        {PBM_SETRANGE32, 1, 2, 0}, {PBM_SETPOS, 4, 0}, {PBM_DELTAPOS, 4, 0},
        {PBM_SETMARQUEE, TRUE, 0}, {PBM_SETBARCOLOR, 0, 1, 0}, {PBM_SETSTEP, 4, 0},
        {PBM_GETSTEP, 4}, // the step waits for the widget
    });
    forUnusable<CScrollBar_E>({
        {SBM_SETPOS, 3, 0}, {SBM_ENABLE_ARROWS, 0}, {SBM_SETSCROLLINFO, 0, at(&time), 0},
        {SBM_GETSCROLLINFO, 0, at(&time), 0},
    });
    forUnusable<CSliderCtrl_E>({
        {TBM_SETRANGE, 0, 1, 0}, {TBM_GETPOS, 0}, {TBM_SETSEL, 0, 0x20001, 0}, {TBM_GETSELEND, 0},
        {TBM_SETTIC, FALSE}, {TBM_GETNUMTICS, 0}, {TBM_GETTIC, -1},
    });
    forUnusable<CDateTimeCtrl_E>({
        {DTM_SETSYSTEMTIME, GDT_VALID, at(&time), FALSE}, {DTM_SETFORMAT, 0, at(L"yy"), FALSE},
        {DTM_SETRANGE, GDTR_MIN, at(&time), FALSE}, {DTM_GETSYSTEMTIME, 0, at(&time), GDT_VALID},
        {DTM_GETRANGE, 0}, {DTM_GETMONTHCAL, 0}, {DTM_CLOSEMONTHCAL, 0},
    });
    EXPECT_EQ(time.wYear, 2024) << "left alone";
    QSplitter other;
    EXPECT_FALSE(CEdit_E().SubclassWindow(&other) || CButton_E().SubclassWindow(&other));
}

TEST(Unusable, ItemsAndTexts)
{
    forUnusable<CListBox_E>({
        {LB_ADDSTRING, -1}, {LB_GETCOUNT, -1}, {LB_SETCURSEL, -1, -1}, {LB_GETTEXT, -1},
        {LB_GETITEMDATA, -1}, {LB_RESETCONTENT, 0}, {LB_GETSELITEMS, -1}, {LB_SETSEL, TRUE, -1, -1},
        {LB_ITEMFROMPOINT, 0x1FFFF},
    });
    COMBOBOXEXITEM item{};
    forUnusable<CComboBoxEx_E>({
        {CB_ADDSTRING, -1}, {CB_GETCOUNT, -1}, {CB_GETLBTEXT, -1}, {CB_GETITEMDATA, -1},
        {CB_RESETCONTENT, 0}, {CB_GETEDITSEL, -1}, {CB_SETCUEBANNER, FALSE}, {CB_SETITEMHEIGHT, -1},
        {CB_GETDROPPEDSTATE, FALSE}, {CB_GETCOMBOBOXINFO, FALSE}, {CBEM_SETITEM, 0, at(&item), 0},
        {CBEM_GETITEM, 0, at(&item), 0}, {CBEM_INSERTITEM, 0, at(&item), -1},
    });
    wchar_t buffer[8];
    forUnusable<CEdit_E>({
        {EM_GETSEL, 0}, {EM_GETMODIFY, 0}, {EM_GETLIMITTEXT, 0}, {EM_GETMARGINS, 0},
        {EM_SETREADONLY, TRUE, FALSE}, {EM_UNDO, FALSE}, {EM_GETCUEBANNER, at(buffer), 8, FALSE},
        {EM_GETLINECOUNT, 0}, {EM_GETPASSWORDCHAR, 0}, {EM_GETLINE, 0, at(buffer), 0},
        {EM_LINELENGTH, -1}, {EM_LINEINDEX, -1}, {EM_POSFROMCHAR, -1}, {EM_CHARFROMPOS, -1},
        {EM_SETSEL, 0, -1, 0}, {EM_EMPTYUNDOBUFFER, 0},
    });
    int ends[2] = {1, 2};
    BOOL error = FALSE;
    forUnusable<CSpinButtonCtrl_E, QDateEdit>({
        {UDM_GETRANGE32, at(&ends[0]), at(&ends[1]), 0}, {UDM_SETPOS, -1},
        {UDM_GETPOS32, 0, at(&error), -1}, {UDM_SETACCEL, 1, at(ends), 0}, {UDM_GETACCEL, 1, 0},
        {UDM_SETBASE, 10, -1},
    }, [](CSpinButtonCtrl_E& spin) {
        QLineEdit edit;
        spin.SetBuddy(&edit);
        EXPECT_FALSE(edit.parent() || spin.GetBuddy());
    });
    EXPECT_TRUE(error && !(ends[0] | ends[1]));
}
// clang-format on

} // namespace
