// The members of CWnd_E that are functions of the bound widget: each reaches its own.
#include "support/test.h"
#include "support/xinput.h"

namespace {

/// A shown window with an edit at (10, 20) and a check box.
class MembersTest : public testing::Test
{
protected:
    MembersTest()
    {
        m_topWidget.resize(300, 200);
        m_edit->setObjectName("m_edit"_q);
        m_edit->setGeometry(10, 20, 60, 40);
        m_check->setObjectName("m_check"_q);
        m_check->setGeometry(10, 100, 60, 40);
        vxtest::showAndActivate(&m_topWidget);
        m_top.SubclassWindow(&m_topWidget);
        m_child.SubclassWindow(m_edit);
    }
    ~MembersTest() override { ClearTempObjectPool(); }

    QWidget m_topWidget;
    QCheckBox* const m_check = new QCheckBox(&m_topWidget);
    QLineEdit* const m_edit = new QLineEdit(&m_topWidget);
    CWnd_E m_top, m_child;
};

} // namespace

TEST_F(MembersTest, Geometry)
{
    CPoint_E point(1, 2);
    EXPECT_TRUE(m_child.ClientToScreen(&point) && m_top.ScreenToClient(&point));
    EXPECT_EQ(point, CPoint_E(11, 22));
    m_top.MapWindowPoints(&m_child, &point, 1);
    EXPECT_EQ(point, CPoint_E(1, 2));
    CRect_E rect(0, 0, 5, 6);
    EXPECT_TRUE(m_child.ClientToScreen(static_cast<LPRECT>(rect)));
    EXPECT_TRUE(m_top.ScreenToClient(static_cast<LPRECT>(rect)));
    EXPECT_EQ(rect, CRect_E(10, 20, 15, 26));
    m_top.MapWindowPoints(&m_child, static_cast<LPRECT>(rect));
    EXPECT_EQ(rect, CRect_E(0, 0, 5, 6));
    CRect_E units(0, 0, 4, 8), same = units;
    EXPECT_EQ(m_top.MapDialogRect(units), MapDialogRect_E(&m_topWidget, same));
    EXPECT_EQ(units, same);
    EXPECT_NE(units, CRect_E(0, 0, 4, 8));
    EXPECT_TRUE(m_child.GetWindowRect(rect) && m_child.GetClientRect(units));
    EXPECT_EQ(rect.Size(), units.Size());
    EXPECT_EQ(CWnd_E::WindowFromPoint(rect.CenterPoint()), &m_child);
    EXPECT_EQ(m_child.GetDpiForWindow(), static_cast<UINT>(m_edit->logicalDpiX()));
    EXPECT_TRUE(CWnd_E::GetDesktopWindow()->GetWindowRect(rect));
    EXPECT_FALSE(rect.IsRectEmpty());

    m_child.CenterWindow();
    EXPECT_EQ(m_edit->geometry().center(), m_topWidget.rect().center());
    CWnd_E check;
    check.SubclassWindow(m_check);
    check.CenterWindow(&m_child);
    EXPECT_EQ(m_check->geometry().center(), m_edit->geometry().center());
}

TEST_F(MembersTest, FamilyFocusAndState)
{
    EXPECT_EQ(m_child.GetParent(), &m_top);
    EXPECT_EQ(m_top.GetTopWindow(), &m_child);
    EXPECT_TRUE(m_top.IsChild(&m_child));
    EXPECT_FALSE(m_child.IsChild(&m_top));
    m_child.SetFocus();
    EXPECT_EQ(CWnd_E::GetFocus(), &m_child);
    EXPECT_EQ(CWnd_E::GetActiveWindow(), &m_top);
    EXPECT_EQ(m_child.SetActiveWindow(), &m_top) << "the one before";
    m_child.SetCapture();
    EXPECT_EQ(CWnd_E::GetCapture(), &m_child);
    ReleaseCapture_E();
    EXPECT_EQ(CWnd_E::GetCapture(), nullptr);
    m_child.EnableWindow(FALSE);
    EXPECT_FALSE(m_child.IsWindowEnabled());
    EXPECT_TRUE(m_child.UpdateWindow());
    m_child.SetParent(nullptr);
    EXPECT_FALSE(m_top.IsChild(&m_child));
    m_child.SetParent(&m_top);
    EXPECT_EQ(m_edit->parentWidget(), &m_topWidget);
}

TEST_F(MembersTest, ControlsById)
{
    wchar_t text[8] = L"";
    BOOL bTranslated = FALSE;
    EXPECT_TRUE(m_top.SetDlgItemInt(1001, static_cast<UINT>(-42), TRUE));
    EXPECT_EQ(m_top.GetDlgItemInt(1001, &bTranslated, TRUE), static_cast<UINT>(-42));
    EXPECT_TRUE(bTranslated);
    EXPECT_EQ(m_top.GetDlgItemText(1001, text, 8), 3);
    EXPECT_STREQ(text, L"-42");
    m_top.CheckDlgButton(1003, BST_CHECKED);
    EXPECT_TRUE(m_check->isChecked());
    EXPECT_EQ(m_top.IsDlgButtonChecked(1003), static_cast<UINT>(BST_CHECKED));
}

TEST_F(MembersTest, ScrollBarsAlongBothEdges)
{
    int nMin = -1, nMax = -1;
    m_top.GetScrollRange(SB_HORZ, &nMin, &nMax);
    EXPECT_TRUE(nMin == 0 && nMax == 0 && m_top.GetScrollPos(SB_HORZ) == 0) << "without a bar";
    EXPECT_EQ(m_top.SetScrollPos(SB_HORZ, 3), 0);
    EXPECT_FALSE(m_top.EnableScrollBar(SB_BOTH));

    m_top.ShowScrollBar(SB_BOTH);
    m_top.SetScrollRange(SB_HORZ, 2, 30);
    m_top.GetScrollRange(SB_HORZ, &nMin, &nMax);
    EXPECT_TRUE(nMin == 2 && nMax == 30);
    const auto bars = m_topWidget.findChildren<QScrollBar*>();
    ASSERT_EQ(bars.size(), 2);
    EXPECT_FALSE(bars[0]->geometry().intersects(bars[1]->geometry())) << "the corner is nobody's";
    EXPECT_TRUE(m_top.EnableScrollBar(SB_HORZ, ESB_DISABLE_BOTH));
    EXPECT_NE(bars[0]->isEnabled(), bars[1]->isEnabled());
}

TEST_F(MembersTest, SeveralMenusStandUnderTheirTitles)
{
    CMenu_E file, edit, empty;
    ASSERT_TRUE(file.CreatePopupMenu() && edit.CreatePopupMenu());
    EXPECT_TRUE(m_top.SetMenu(QList<CMenu_E*>{&file, &empty, nullptr, &edit}));
    auto* const bar = m_topWidget.findChild<QMenuBar*>();
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->actions(), (QList<QAction*>{file.GetSafeHmenu()->menuAction(),
                                               edit.GetSafeHmenu()->menuAction()}));
    EXPECT_TRUE(m_top.SetMenu(QList<CMenu_E*>{}));
    EXPECT_EQ(m_topWidget.findChild<QMenuBar*>(), nullptr);
    EXPECT_FALSE(CWnd_E().SetMenu(QList<CMenu_E*>{&file}));
}
