// What controls give that have no widget of their class: one of each family of members.
#include "controls.h"

namespace {

using namespace vxtest;

// clang-format off
TEST(Unusable, ButtonsAndRanges)
{
    const auto noImages = [](auto& control) {
        EXPECT_TRUE(control.SetBitmap(QPixmap(1, 1)).isNull() && control.GetBitmap().isNull());
        EXPECT_TRUE(control.SetIcon(QIcon()).isNull() && control.GetIcon().isNull());
    };
    tagRECT rect{1, 2, 3, 4};
    SYSTEMTIME times[2] = {{2024, 2, 4, 29, 0, 0, 0, 0}, {2024, 3, 4, 29, 0, 0, 0, 0}};
    forUnusable<CStatic_E>({{STM_GETICON, 0}}, noImages);
    forUnusable<CButton_E>({
        {BM_SETCHECK, 1, 0}, {BM_GETCHECK, 0}, {BM_SETSTATE, 1, 0}, {BM_GETSTATE, 0}, {BM_CLICK, 0},
        {BM_SETSTYLE, BS_AUTO3STATE, 0},
    }, noImages);
    forUnusable<CProgressCtrl_E>({
        {PBM_SETRANGE32, 1, 2, 0}, {PBM_GETRANGE, TRUE, at(&rect), 0}, {PBM_SETPOS, 4, 0},
        {PBM_GETPOS, 0}, {PBM_DELTAPOS, 4, 0}, {PBM_SETMARQUEE, TRUE, 0},
        {PBM_SETBARCOLOR, 0, 1, 0}, {PBM_SETSTEP, 4, 0},
        {PBM_GETSTEP, 4}, // the step waits for the widget
    });
    forUnusable<CScrollBar_E>({
        {SBM_SETPOS, 3, 0}, {SBM_GETPOS, 0}, {SBM_ENABLE_ARROWS, 0},
        {SBM_SETSCROLLINFO, 0, at(times), 0}, {SBM_GETSCROLLINFO, 0, at(times), 0},
    });
    forUnusable<CSliderCtrl_E>({
        {TBM_SETRANGE, 0, 1, 0}, {TBM_GETRANGEMAX, 0}, {TBM_SETPOS, 0, 3, 0}, {TBM_GETPOS, 0},
        {TBM_SETSEL, 0, 0x20001, 0}, {TBM_GETSELEND, 0}, {TBM_CLEARTICS, 0},
        {TBM_SETLINESIZE, 0, 3, 0}, {TBM_SETTIC, FALSE}, {TBM_GETNUMTICS, 0}, {TBM_GETTIC, -1},
        {TBM_GETTHUMBRECT, 0, at(&rect), 0},
    });
    EXPECT_EQ(rect.left | rect.top | rect.right | rect.bottom, 0);
    forUnusable<CDateTimeCtrl_E>({
        {DTM_SETSYSTEMTIME, GDT_VALID, at(times), FALSE}, {DTM_SETFORMAT, 0, at(L"yy"), FALSE},
        {DTM_SETRANGE, GDTR_MIN, at(times), FALSE}, {DTM_GETIDEALSIZE, 0, at(&rect), FALSE},
        {DTM_GETSYSTEMTIME, 0, at(times), GDT_VALID}, {DTM_GETRANGE, 0, at(times), 0},
        {DTM_GETMONTHCAL, 0}, {DTM_CLOSEMONTHCAL, 0},
    });
    EXPECT_EQ(times[0].wYear, 2024) << "left alone";
    QSplitter other;
    EXPECT_FALSE(CEdit_E().SubclassWindow(&other) || CButton_E().SubclassWindow(&other) ||
                 CStatic_E().SubclassWindow(&other));
}

TEST(Unusable, Items)
{
    forUnusable<CListBox_E>({
        {LB_ADDSTRING, -1}, {LB_DELETESTRING, -1}, {LB_GETCOUNT, -1}, {LB_SETCURSEL, -1, -1},
        {LB_GETTEXT, -1}, {LB_FINDSTRING, -1}, {LB_GETITEMDATA, -1}, {LB_GETTOPINDEX, -1},
        {LB_RESETCONTENT, 0}, {LB_GETSELCOUNT, -1}, {LB_GETSELITEMS, -1}, {LB_SETSEL, TRUE, -1, -1},
        {LB_ITEMFROMPOINT, 0x1FFFF},
    });
    forUnusable<CCheckListBox_E>({}, [](CCheckListBox_E& list) {
        list.SetCheckStyle(BS_3STATE);
        EXPECT_TRUE(list.GetCheck(0) == 2 && list.GetCheckStyle() == 0);
    });
    forUnusable<CComboBox_E>({
        {CB_ADDSTRING, -1}, {CB_DELETESTRING, -1}, {CB_GETCOUNT, -1}, {CB_SETCURSEL, -1},
        {CB_GETLBTEXT, -1}, {CB_FINDSTRING, -1}, {CB_GETITEMDATA, -1}, {CB_SETITEMDATA, -1},
        {CB_RESETCONTENT, 0}, {CB_GETEDITSEL, -1}, {CB_SETCUEBANNER, FALSE}, {CB_SETITEMHEIGHT, -1},
        {CB_GETDROPPEDWIDTH, -1}, {CB_GETDROPPEDSTATE, FALSE}, {CB_GETCOMBOBOXINFO, FALSE},
    }, [](CComboBox_E& box) {
        EXPECT_TRUE(!box.GetEditBox() && !box.GetItemDataPtr(0) && box.LimitText(9) == -1);
        box.SetWindowText(L"a");
        box.Cut();
    });
    COMBOBOXEXITEM item{};
    forUnusable<CComboBoxEx_E>({
        {CBEM_SETITEM, 0, at(&item), 0}, {CBEM_GETITEM, 0, at(&item), 0},
        {CBEM_INSERTITEM, 0, at(&item), -1},
    });
}

TEST(Unusable, Texts)
{
    wchar_t buffer[8];
    forUnusable<CEdit_E>({
        {EM_GETSEL, 0}, {EM_SETMODIFY, TRUE, 0}, {EM_GETMODIFY, 0}, {EM_SETLIMITTEXT, 1, 0},
        {EM_GETLIMITTEXT, 0}, {EM_GETMARGINS, 0}, {EM_SETREADONLY, TRUE, FALSE}, {EM_UNDO, FALSE},
        {EM_GETCUEBANNER, at(buffer), 8, FALSE}, {EM_GETLINECOUNT, 0}, {EM_GETPASSWORDCHAR, 0},
        {EM_GETLINE, 0, at(buffer), 0}, {EM_LINELENGTH, -1}, {EM_LINEINDEX, -1},
        {EM_POSFROMCHAR, -1}, {EM_CHARFROMPOS, -1}, {EM_SETSEL, 0, -1, 0}, {EM_SETMARGINS, 3, 1, 0},
        {EM_EMPTYUNDOBUFFER, 0},
    }, [](CEdit_E& edit) { EXPECT_FALSE(edit.ShowBalloonTip(L"", L"")); });
    int ends[2] = {1, 2};
    BOOL error = FALSE;
    forUnusable<CSpinButtonCtrl_E, QDateEdit>({
        {UDM_SETRANGE, 0, 2, 0}, {UDM_GETRANGE32, at(&ends[0]), at(&ends[1]), 0}, {UDM_SETPOS, -1},
        {UDM_GETPOS32, 0, at(&error), -1}, {UDM_SETACCEL, 1, at(ends), 0}, {UDM_GETACCEL, 1, 0},
        {UDM_SETBASE, 10, -1},
    }, [&](CSpinButtonCtrl_E& spin) {
        int nStart = 1, nEnd = 2;
        QLineEdit edit;
        spin.SetBuddy(&edit);
        EXPECT_FALSE(edit.parent());
        spin.SetSel(0, -1);
        spin.GetSel(nStart, nEnd);
        EXPECT_EQ(nStart | nEnd | spin.GetDecimals() | ends[0] | ends[1], 0);
        nStart = 1;
        spin.GetRange(nStart, nEnd);
        EXPECT_EQ(nStart | nEnd, 0);
        CString_E text = L"left over";
        spin.SetWindowText(L"5");
        spin.GetWindowText(text);
        EXPECT_TRUE(error && text.IsEmpty() && !spin.GetBuddy());
    });
}
// clang-format on

} // namespace
