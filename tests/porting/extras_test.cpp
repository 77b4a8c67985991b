// The snippets that have no form of before.
#include "resource.h"

#include "support/test.h"

// clang-format off
//! [example]
class CGauge : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CGauge)
    DECLARE_MESSAGE_MAP_E()

    void OnLButtonDown(UINT, CPoint_E) { SetWindowText(_T("pressed")); }
    LRESULT OnRefresh(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam); }
};

IMPLEMENT_DYNCREATE_E(CGauge, CWnd_E, QWidget)

BEGIN_MESSAGE_MAP_E(CGauge, CWnd_E)
    ON_WM_LBUTTONDOWN_E()
    ON_MESSAGE_E(WM_APP + 1, &CGauge::OnRefresh)
END_MESSAGE_MAP_E()
//! [example]

//! [default widget]
class CLoadBar : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNCREATE_E(CLoadBar)

    BOOL AttachDefault(QWidget* pParent) override
    {
        return Attach(new QProgressBar(pParent), pParent, false);
    }
};

IMPLEMENT_DYNCREATE_E(CLoadBar, CWnd_E, QProgressBar)
//! [default widget]

class CBarWnd : public CWnd_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CBarWnd)

public:
    int m_nDefaults = 0;
    BOOL m_bGrid = FALSE;

protected:
//! [commands]
    void OnDefaults() { ++m_nDefaults; }
    void OnGrid() { m_bGrid = !m_bGrid; }
    void OnUpdateGrid(CCmdUI_E* pCmdUI) { pCmdUI->SetCheck(m_bGrid); }
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(CBarWnd, CWnd_E)
    ON_BN_CLICKED_E(IDC_DEFAULTS, &CBarWnd::OnDefaults)
    ON_COMMAND_E(IDC_GRID, &CBarWnd::OnGrid)
    ON_UPDATE_COMMAND_UI_E(IDC_GRID, &CBarWnd::OnUpdateGrid)
END_MESSAGE_MAP_E()
//! [commands]

IMPLEMENT_DYNAMIC_E(CBarWnd, CWnd_E, QWidget)

//! [form]
class CSizeForm : public QDialog // what uic makes of the form can be a member
{
    Q_OBJECT

public:
    explicit CSizeForm(QWidget* pParent) : QDialog(pParent)
    {
        auto* const pSize = new QComboBox(this);
        pSize->addItems({QStringLiteral("Small"), QStringLiteral("Large")});
        connect(pSize, SIGNAL(currentIndexChanged(int)), SLOT(OnSelchangeSize()));
    }

public Q_SLOTS:
    void OnSelchangeSize() {}
};

class CSizeDlg : public CDialog_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CSizeDlg)

    using CDialog_E::AttachDefault;
    BOOL AttachDefault(QWidget* pParent) override
    {
        return Attach(new CSizeForm(pParent), pParent, false);
    }

    int m_nChanges = 0;

public Q_SLOTS:
    void OnSelchangeSize() { ++m_nChanges; }
};
//! [form]

IMPLEMENT_DYNAMIC_E(CSizeDlg, CDialog_E, CSizeForm)
// clang-format on

TEST(PortingExtras, TheExampleAnswers)
{
    QWidget parent;
    CGauge gauge;
    ASSERT_TRUE(gauge.Create(&parent));
    EXPECT_EQ(gauge.SendMessage(WM_APP + 1, 7), 7);
    gauge.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON);
    CString_E strText;
    gauge.GetWindowText(strText);
    EXPECT_EQ(strText, L"pressed");
}

TEST(PortingExtras, AClassMakesItsOwnWidget)
{
    QWidget parent;
    CLoadBar bar;
    ASSERT_TRUE(bar.Create(&parent));
    EXPECT_TRUE(qobject_cast<QProgressBar*>(bar.GetSafeHwnd()));
}

TEST(PortingExtras, CommandsReachTheWindow)
{
    QWidget widget;
    QPushButton button(&widget);
    button.setObjectName("buttonDefaults"_q);
    QAction action(&widget);
    action.setObjectName("checkGrid"_q);
    action.setCheckable(true);
    CBarWnd bar;
    ASSERT_TRUE(bar.SubclassWindow(&widget));
    widget.show();
    button.click();
    EXPECT_EQ(bar.m_nDefaults, 1);
    bar.m_bGrid = TRUE;
    EXPECT_TRUE(vxtest::waitUntil([&] {
        QEventLoop loop; // which waits for events, so that the window gets its idle time
        QTimer::singleShot(10, &loop, &QEventLoop::quit);
        loop.exec();
        return action.isChecked();
    }));
    action.trigger();
    EXPECT_FALSE(bar.m_bGrid);
}

TEST(PortingExtras, TheConnectionsOfAFormMoveToTheDialog)
{
    QWidget parent;
    CSizeDlg dialog;
    ASSERT_TRUE(dialog.Create(&parent));
    dialog.GetSafeHwnd()->findChild<QComboBox*>()->setCurrentIndex(1);
    EXPECT_EQ(dialog.m_nChanges, 1);
    dialog.DestroyWindow();
}

#include "extras_test.moc"
