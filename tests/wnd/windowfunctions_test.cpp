// The functions of windows, through the members of CWnd_E where there is one for them.
#include "support/test.h"
#include "support/xinput.h"

namespace {

void setParentProperty(QWidget* pWidget, const QObject* pParent)
{
    pWidget->setProperty("parent",
                         QVariant(static_cast<qlonglong>(reinterpret_cast<qintptr>(pParent))));
}

constexpr UINT kKeepRect = SWP_NOSIZE | SWP_NOMOVE;

/// A shown window with a child at (10, 20) of 30 by 40 pixels.
struct WindowTest : testing::Test
{
    WindowTest()
    {
        m_widget.resize(300, 200);
        m_childWidget->setGeometry(10, 20, 30, 40);
        vxtest::showAndActivate(&m_widget);
        m_top.SubclassWindow(&m_widget);
        m_child.SubclassWindow(m_childWidget);
    }
    ~WindowTest() override { ClearTempObjectPool(); }

    QWidget m_widget;
    QWidget* const m_childWidget = new QWidget(&m_widget);
    CWnd_E m_top, m_child;
};

} // namespace

TEST_F(WindowTest, Rectangles)
{
    CRect_E rc;
    EXPECT_TRUE(m_child.GetClientRect(rc) && rc == CRect_E(0, 0, 30, 40));
    EXPECT_TRUE(m_child.GetWindowRect(rc));
    const CPoint_E origin(m_widget.mapToGlobal(QPoint()).x(), m_widget.mapToGlobal(QPoint()).y());
    EXPECT_EQ(rc, CRect_E(origin + CSize_E(10, 20), CSize_E(30, 40)));
    EXPECT_EQ(CWnd_E::WindowFromPoint(rc.TopLeft()), &m_child);
    m_child.EnableWindow(FALSE);
    EXPECT_EQ(CWnd_E::WindowFromPoint(rc.TopLeft()), &m_top);
    EXPECT_TRUE(m_child.ScreenToClient(static_cast<LPRECT>(rc)) && rc == CRect_E(0, 0, 30, 40));
    CPoint_E pt(1, 2);
    EXPECT_TRUE(m_child.ClientToScreen(&pt) && m_top.ScreenToClient(&pt) && pt == CPoint_E(11, 22));
    EXPECT_EQ(m_top.MapWindowPoints(&m_child, &pt, 1), static_cast<int>(MAKELONG(-10, -20)));
    EXPECT_EQ(pt, CPoint_E(1, 2));
    m_child.MapWindowPoints(nullptr, static_cast<LPRECT>(rc));
    EXPECT_EQ(rc.TopLeft(), origin + CSize_E(10, 20));
    EXPECT_TRUE(m_top.GetWindowRect(rc) && rc.Width() == m_widget.frameGeometry().width());
    EXPECT_TRUE(CWnd_E::GetDesktopWindow()->GetWindowRect(rc) && !rc.IsRectEmpty());
    EXPECT_EQ(m_child.GetDpiForWindow(), static_cast<UINT>(m_widget.logicalDpiX()));

    const QFontMetrics metrics(m_widget.font());
    CRect_E units(4, 8, 400, 80); // of dialogs
    EXPECT_TRUE(m_top.MapDialogRect(units));
    EXPECT_TRUE(units.top == metrics.height() && units.bottom == 10 * metrics.height());
    EXPECT_TRUE(units.right == 100 * units.left && units.left <= metrics.horizontalAdvance(u'W'));
}

TEST_F(WindowTest, MovingAndCentringAndTheFlagsOfSetWindowPos)
{
    EXPECT_TRUE(m_child.MoveWindow(CRect_E(5, 6, 15, 26)));
    EXPECT_EQ(m_childWidget->geometry(), QRect(5, 6, 10, 20));
    CWnd_E other;
    other.SubclassWindow(new QWidget(&m_widget));
    other.CenterWindow(&m_child);
    EXPECT_EQ(other.GetSafeHwnd()->geometry().center(), m_childWidget->geometry().center());
    m_child.CenterWindow();
    EXPECT_EQ(m_childWidget->geometry().center(), m_widget.rect().center());

    const Row<UINT, QRect, bool> rows[] = {
        {SWP_NOSIZE, {1, 2, 30, 40}, true},
        {SWP_NOMOVE, {10, 20, 5, 6}, true},
        {kKeepRect | SWP_SHOWWINDOW | SWP_HIDEWINDOW, {10, 20, 30, 40}, false}};
    forRows(rows, [&](UINT flags, const QRect& geometry, bool visible) {
        m_childWidget->setGeometry(10, 20, 30, 40);
        m_childWidget->show();
        EXPECT_TRUE(m_child.SetWindowPos(nullptr, 1, 2, 5, 6, flags));
        EXPECT_EQ(m_childWidget->geometry(), geometry);
        EXPECT_EQ(m_child.IsWindowVisible(), visible);
    });
    m_child.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_SHOWWINDOW);
    EXPECT_TRUE(m_childWidget->isVisible());
}

TEST_F(WindowTest, StackingOrder)
{
    auto* const pSecond = new QWidget(&m_widget);
    auto* const pThird = new QWidget(&m_widget);
    const Row<HWND, UINT, HWND> rows[] = {
        {m_childWidget, kKeepRect | SWP_NOZORDER, pThird},
        {m_childWidget, kKeepRect, pSecond}, // the third goes under the first
        {HWND_TOPMOST, kKeepRect, pThird},
        {HWND_BOTTOM, kKeepRect, pSecond},
        {HWND_TOP, kKeepRect, pSecond}};
    new QDialog(&m_widget); // a window of its own is no child to be on top
    forRows(rows, [&](HWND after, UINT flags, HWND top) {
        EXPECT_TRUE(SetWindowPos_E(pThird, after, 0, 0, 0, 0, flags));
        EXPECT_EQ(m_top.GetTopWindow()->GetSafeHwnd(), top);
    });
}

TEST_F(WindowTest, ShowingKeepsThePlaceOfTopLevelWindowsAndEnablingTellsOfTheWindowItself)
{
    const auto isBack = [this] { return m_widget.pos() == QPoint(60, 70); };
    m_widget.move(60, 70);
    ASSERT_TRUE(vxtest::waitUntil(isBack));
    EXPECT_TRUE(m_top.ShowWindow(SW_HIDE) && !m_widget.isVisible());
    m_widget.move(1, 1);
    // Minimizing is not one of those that do something.
    EXPECT_TRUE(m_top.ShowWindow(SW_SHOWMINIMIZED) && !m_widget.isVisible());
    EXPECT_TRUE(m_top.ShowWindow(SW_SHOW) && m_widget.isVisible());
    EXPECT_TRUE(vxtest::waitUntil(isBack) && m_child.ShowWindow(SW_HIDE));
    EXPECT_FALSE(m_widget.property("lastPos").isValid() ||
                 m_childWidget->property("lastPos").isValid());

    EXPECT_FALSE(m_child.EnableWindow(FALSE) || m_child.IsWindowEnabled());
    EXPECT_TRUE(m_child.EnableWindow(TRUE) && !m_top.EnableWindow(FALSE));
    EXPECT_TRUE(!m_childWidget->isEnabled() && m_child.IsWindowEnabled()) << "itself it is";
    EXPECT_TRUE(m_top.UpdateWindow() && m_top.CloseWindow() && m_widget.isMinimized());
}

TEST_F(WindowTest, FocusAndCapture)
{
    CWnd_E other;
    other.SubclassWindow(new QWidget(&m_widget));
    other.ShowWindow(SW_SHOW);
    m_childWidget->setFocus();
    EXPECT_EQ(other.SetFocus(), &m_child);
    m_child.SetWindowPos(nullptr, 0, 0, 9, 9, SWP_NOACTIVATE);
    EXPECT_EQ(CWnd_E::GetFocus(), &other);
    other.SetWindowPos(nullptr, 0, 0, 9, 9, SWP_NOACTIVATE);
    EXPECT_EQ(CWnd_E::GetFocus(), nullptr);
    other.SetFocus();
    EXPECT_FALSE(SetFocus_E(nullptr) || GetFocus_E());
    EXPECT_EQ(m_child.SetActiveWindow(), &m_top) << "the one before";

    EXPECT_EQ(m_child.SetCapture(), nullptr);
    EXPECT_EQ(other.SetCapture(), &m_child);
    EXPECT_EQ(CWnd_E::GetCapture(), &other);
    EXPECT_TRUE(ReleaseCapture_E() && ReleaseCapture_E() && !CWnd_E::GetCapture());
}

TEST_F(WindowTest, ThePropertyNamesTheParentBeforeQtUntilSetParent)
{
    QWidget other;
    auto pGone = std::make_unique<QWidget>();
    QWidget* const pDangling = pGone.get();
    QObject noWidget;
    const Row<const QObject*, QWidget*> rows[] = {
        {&other, &other}, {&noWidget, &m_widget}, {pDangling, pDangling}};
    for (const auto& [pSet, pParent] : rows) {
        setParentProperty(m_childWidget, pSet);
        EXPECT_EQ(GetParent_E(m_childWidget), pParent);
    }
    pGone.reset();
    EXPECT_TRUE(!IsWindow_E(pDangling) && m_child.GetParent() == &m_top);

    auto* const pPlain = new QWidget(&m_widget); // without the property, which binding sets
    pPlain->move(10, 20);
    pPlain->show();
    other.show();
    EXPECT_EQ(SetParent_E(pPlain, &other), &m_widget);
    EXPECT_TRUE(pPlain->parentWidget() == &other && pPlain->pos() == QPoint(10, 20));
    EXPECT_TRUE(pPlain->isVisible() && !pPlain->property("parent").isValid());
    setParentProperty(m_childWidget, &other);
    EXPECT_EQ(m_child.SetParent(&m_top)->GetSafeHwnd(), &other);

    auto* const pInner = new QWidget(m_childWidget);
    EXPECT_FALSE(SetParent_E(m_childWidget, pInner));
    EXPECT_TRUE(m_top.IsChild(&m_child) && IsChild_E(&m_widget, pInner));
    EXPECT_FALSE(m_child.IsChild(&m_child) || IsChild_E(pInner, m_childWidget));
    EXPECT_EQ(m_child.SetParent(nullptr), &m_top);
    EXPECT_TRUE(m_childWidget->isWindow() && !m_child.GetParent());
    delete m_childWidget;
}

// The view of the frame: see the tracker of the demo.
TEST(HostWindows, TheMainFrameIsTheTopLevelWidgetOfThisName)
{
    {
        QMainWindow frame;
        for (const bool isFrame : {true, false, true}) {
            frame.setObjectName(isFrame ? "CTolmMainFrame"_q : "ctolmmainframe"_q);
            EXPECT_EQ(TolmGetMainFrame(), isFrame ? &frame : nullptr);
        }
    }
    EXPECT_FALSE(TolmGetMainFrame() || TolmGetViewWindow());
}

TEST(WindowFunctions, NullWindows)
{
    RECT rc{1, 2, 3, 4};
    POINT pt{1, 2};
    EXPECT_FALSE(GetWindowRect_E(nullptr, &rc) || ClientToScreen_E(nullptr, &pt) ||
                 MapDialogRect_E(nullptr, &rc) || MoveWindow_E(nullptr, &rc) ||
                 SetWindowPos_E(nullptr, nullptr, 0, 0, 0, 0, 0) || GetCursorPos_E(nullptr));
    EXPECT_FALSE(IsWindow_E(nullptr) || IsWindowVisible_E(nullptr) ||
                 EnableWindow_E(nullptr, TRUE) || ShowWindow_E(nullptr, SW_SHOW) ||
                 SetActiveWindow_E(nullptr) || SetCapture_E(nullptr));
    EXPECT_FALSE(GetParent_E(nullptr) || SetParent_E(nullptr, nullptr) || GetTopWindow_E(nullptr) ||
                 IsChild_E(nullptr, nullptr));
    EXPECT_EQ(CRect_E(rc), CRect_E(1, 2, 3, 4));
}
