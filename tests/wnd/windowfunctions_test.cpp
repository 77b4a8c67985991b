#include "support/test.h"
#include "support/xinput.h"

namespace {

void setParentProperty(QWidget* pWidget, const QObject* pParent)
{
    pWidget->setProperty("parent",
                         QVariant(static_cast<qlonglong>(reinterpret_cast<qintptr>(pParent))));
}

/// A shown window with a child at (10, 20) of 30 by 40 pixels.
class WindowTest : public testing::Test
{
protected:
    WindowTest()
    {
        m_top.resize(300, 200);
        m_child->setGeometry(10, 20, 30, 40);
        vxtest::showAndActivate(&m_top);
    }

    QWidget m_top;
    QWidget* const m_child = new QWidget(&m_top);
};

} // namespace

TEST_F(WindowTest, Rectangles)
{
    CRect_E rc;
    EXPECT_TRUE(GetClientRect_E(m_child, rc));
    EXPECT_EQ(rc, CRect_E(0, 0, 30, 40));
    EXPECT_TRUE(GetWindowRect_E(m_child, rc));
    const QPoint origin = m_top.mapToGlobal(QPoint());
    EXPECT_EQ(rc, CRect_E(CPoint_E(origin.x() + 10, origin.y() + 20), CSize_E(30, 40)));
    EXPECT_TRUE(ScreenToClient_E(m_child, static_cast<LPRECT>(rc)));
    EXPECT_EQ(rc, CRect_E(0, 0, 30, 40));
    CPoint_E pt(1, 2);
    EXPECT_TRUE(ClientToScreen_E(m_child, &pt) && ScreenToClient_E(&m_top, &pt));
    EXPECT_EQ(pt, CPoint_E(11, 22));
    EXPECT_EQ(MapWindowPoints_E(&m_top, m_child, &pt, 1), static_cast<int>(MAKELONG(-10, -20)));
    EXPECT_EQ(pt, CPoint_E(1, 2));
    MapWindowPoints_E(m_child, nullptr, static_cast<LPRECT>(rc));
    EXPECT_EQ(rc.TopLeft(), CPoint_E(origin.x() + 10, origin.y() + 20));
    EXPECT_TRUE(GetWindowRect_E(&m_top, rc));
    EXPECT_EQ(rc.Size(), CSize_E(m_top.frameGeometry().width(), m_top.frameGeometry().height()));

    EXPECT_EQ(WindowFromPoint_E({origin.x() + 11, origin.y() + 21}), m_child);
    m_child->setEnabled(false);
    EXPECT_EQ(WindowFromPoint_E({origin.x() + 11, origin.y() + 21}), &m_top);
    EXPECT_EQ(GetDpiForWindow_E(m_child), static_cast<UINT>(m_top.logicalDpiX()));
    EXPECT_TRUE(GetWindowRect_E(GetDesktopWindow_E(), rc));
    EXPECT_FALSE(rc.IsRectEmpty());
}

TEST_F(WindowTest, MoveWindow)
{
    EXPECT_TRUE(MoveWindow_E(m_child, 1, 2, 3, 4, FALSE));
    EXPECT_EQ(m_child->geometry(), QRect(1, 2, 3, 4));
    EXPECT_TRUE(MoveWindow_E(m_child, CRect_E(5, 6, 15, 26)));
    EXPECT_EQ(m_child->geometry(), QRect(5, 6, 10, 20));
    EXPECT_FALSE(MoveWindow_E(m_child, nullptr) || MoveWindow_E(nullptr, CRect_E()));
}

TEST_F(WindowTest, DialogUnits)
{
    const QFontMetrics metrics(m_top.font());
    CRect_E rc(4, 8, 400, 80);
    EXPECT_TRUE(MapDialogRect_E(&m_top, rc));
    EXPECT_EQ(rc.top, metrics.height());
    EXPECT_EQ(rc.bottom, 10 * metrics.height());
    EXPECT_EQ(rc.right, 100 * rc.left);
    EXPECT_GE(rc.left, metrics.horizontalAdvance(QLatin1Char('l')));
    EXPECT_LE(rc.left, metrics.horizontalAdvance(QLatin1Char('W')));
}

TEST_F(WindowTest, SetWindowPosFlags)
{
    constexpr UINT keep = SWP_NOSIZE | SWP_NOMOVE;
    const Row<UINT, QRect, bool> rows[] = {
        {0, {1, 2, 5, 6}, true},
        {SWP_NOSIZE, {1, 2, 30, 40}, true},
        {SWP_NOMOVE, {10, 20, 5, 6}, true},
        {keep | SWP_HIDEWINDOW, {10, 20, 30, 40}, false},
        {keep | SWP_SHOWWINDOW | SWP_HIDEWINDOW, {10, 20, 30, 40}, false},
    };
    forRows(rows, [&](UINT flags, const QRect& geometry, bool visible) {
        m_child->setGeometry(10, 20, 30, 40);
        m_child->show();
        EXPECT_TRUE(SetWindowPos_E(m_child, nullptr, 1, 2, 5, 6, flags));
        EXPECT_EQ(m_child->geometry(), geometry);
        EXPECT_EQ(m_child->isVisible(), visible);
        EXPECT_EQ(IsWindowVisible_E(m_child), visible);
    });
    EXPECT_TRUE(SetWindowPos_E(m_child, nullptr, 0, 0, 0, 0, SWP_SHOWWINDOW));
    EXPECT_TRUE(m_child->isVisible());
    EXPECT_FALSE(SetWindowPos_E(nullptr, m_child, 0, 0, 0, 0, 0));
}

TEST_F(WindowTest, StackingOrder)
{
    constexpr UINT keep = SWP_NOSIZE | SWP_NOMOVE;
    auto* const pSecond = new QWidget(&m_top);
    auto* const pThird = new QWidget(&m_top);
    const Row<HWND, UINT, HWND> rows[] = {
        {m_child, keep | SWP_NOZORDER, pThird},
        {m_child, keep | SWP_NOOWNERZORDER, pThird},
        {HWND_TOP, keep, pThird},
        {m_child, keep, pSecond}, // the third goes under the first
        {HWND_TOPMOST, keep, pThird},
        {HWND_NOTOPMOST, keep, pThird},
        {HWND_BOTTOM, keep, pSecond},
    };
    new QDialog(&m_top); // a window of its own is no child to be on top
    forRows(rows, [&](HWND after, UINT flags, HWND top) {
        EXPECT_TRUE(SetWindowPos_E(pThird, after, 0, 0, 0, 0, flags));
        EXPECT_EQ(GetTopWindow_E(&m_top), top);
    });
}

TEST_F(WindowTest, ShowWindowKeepsThePlaceOfTopLevelWindows)
{
    m_top.move(60, 70);
    ASSERT_TRUE(vxtest::waitUntil([this] { return m_top.pos() == QPoint(60, 70); }));
    EXPECT_TRUE(ShowWindow_E(&m_top, SW_HIDE));
    EXPECT_FALSE(m_top.isVisible());
    m_top.move(1, 1);
    EXPECT_TRUE(ShowWindow_E(&m_top, SW_SHOWMINIMIZED)); // not one of those that do something
    EXPECT_FALSE(m_top.isVisible());
    EXPECT_TRUE(ShowWindow_E(&m_top, SW_SHOW));
    EXPECT_TRUE(m_top.isVisible());
    EXPECT_TRUE(vxtest::waitUntil([this] { return m_top.pos() == QPoint(60, 70); }));
    EXPECT_FALSE(m_top.property("lastPos").isValid());

    EXPECT_TRUE(ShowWindow_E(m_child, SW_HIDE));
    EXPECT_FALSE(m_child->property("lastPos").isValid());
    EXPECT_TRUE(ShowWindow_E(m_child, SW_SHOWNORMAL));
    EXPECT_TRUE(m_child->isVisible());
    EXPECT_FALSE(ShowWindow_E(nullptr, SW_SHOW));
}

TEST_F(WindowTest, Enabling)
{
    EXPECT_FALSE(EnableWindow_E(m_child, FALSE));
    EXPECT_FALSE(IsWindowEnabled_E(m_child));
    EXPECT_TRUE(EnableWindow_E(m_child, TRUE));
    EXPECT_FALSE(EnableWindow_E(&m_top, FALSE));
    EXPECT_FALSE(m_child->isEnabled());
    EXPECT_TRUE(IsWindowEnabled_E(m_child)); // itself it is
    EXPECT_TRUE(CloseWindow_E(&m_top));
    EXPECT_TRUE(m_top.isMinimized());
}

TEST_F(WindowTest, FocusAndCapture)
{
    auto* const pOther = new QWidget(&m_top);
    pOther->show();
    m_child->setFocus();
    ASSERT_EQ(GetFocus_E(), m_child);
    EXPECT_EQ(SetFocus_E(pOther), m_child);
    EXPECT_EQ(GetFocus_E(), pOther);
    EXPECT_TRUE(SetWindowPos_E(m_child, nullptr, 0, 0, 9, 9, SWP_NOACTIVATE));
    EXPECT_EQ(GetFocus_E(), pOther);
    EXPECT_TRUE(SetWindowPos_E(pOther, nullptr, 0, 0, 9, 9, SWP_NOACTIVATE));
    EXPECT_EQ(GetFocus_E(), nullptr);
    SetFocus_E(pOther);
    EXPECT_EQ(SetFocus_E(nullptr), nullptr);
    EXPECT_EQ(GetFocus_E(), nullptr);
    EXPECT_EQ(GetActiveWindow_E(), &m_top);
    EXPECT_EQ(SetActiveWindow_E(m_child), &m_top);

    EXPECT_EQ(SetCapture_E(m_child), nullptr);
    EXPECT_EQ(SetCapture_E(pOther), m_child);
    EXPECT_EQ(GetCapture_E(), pOther);
    EXPECT_TRUE(ReleaseCapture_E() && ReleaseCapture_E());
    EXPECT_EQ(GetCapture_E(), nullptr);
}

TEST_F(WindowTest, CursorPosition)
{
    VXTEST_NEEDS_X11();
    EXPECT_TRUE(SetCursorPos_E(33, 44));
    EXPECT_TRUE(vxtest::waitUntil([] {
        CPoint_E pt;
        return GetCursorPos_E(&pt) && pt == CPoint_E(33, 44);
    }));
    EXPECT_FALSE(GetCursorPos_E(nullptr));
}

TEST_F(WindowTest, ParentProperty)
{
    QWidget other;
    auto pGone = std::make_unique<QWidget>();
    QWidget* const pDangling = pGone.get();
    QObject noWidget;
    EXPECT_EQ(GetParent_E(m_child), &m_top);
    const Row<const QObject*, QWidget*> rows[] = {
        {&other, &other}, {nullptr, &m_top}, {&noWidget, &m_top}, {pDangling, pDangling}};
    for (const auto& [pSet, pParent] : rows) {
        setParentProperty(m_child, pSet);
        EXPECT_EQ(GetParent_E(m_child), pParent);
    }
    EXPECT_TRUE(IsWindow_E(pDangling));
    pGone.reset();
    EXPECT_FALSE(IsWindow_E(pDangling));
    EXPECT_EQ(GetParent_E(m_child), &m_top);
    EXPECT_EQ(GetParent_E(&other), nullptr);
}

TEST_F(WindowTest, SetParent)
{
    QWidget other;
    EXPECT_EQ(SetParent_E(m_child, &other), &m_top);
    EXPECT_EQ(m_child->parentWidget(), &other);
    EXPECT_EQ(m_child->pos(), QPoint(10, 20));
    EXPECT_FALSE(m_child->isHidden());
    EXPECT_FALSE(m_child->property("parent").isValid());
    setParentProperty(m_child, &other);
    EXPECT_EQ(SetParent_E(m_child, &m_top), &other);
    EXPECT_EQ(GetParent_E(m_child), &m_top);
    EXPECT_TRUE(IsChild_E(&m_top, m_child));

    auto* const pInner = new QWidget(m_child);
    EXPECT_EQ(SetParent_E(m_child, pInner), nullptr);
    EXPECT_EQ(m_child->parentWidget(), &m_top);
    EXPECT_TRUE(IsChild_E(&m_top, pInner));
    EXPECT_FALSE(IsChild_E(m_child, m_child) || IsChild_E(pInner, m_child));
    EXPECT_EQ(SetParent_E(m_child, nullptr), &m_top);
    EXPECT_TRUE(m_child->isWindow());
    EXPECT_EQ(GetParent_E(m_child), nullptr);
    delete m_child;
}

TEST(HostWindows, FoundByNameAmongTopLevelWidgets)
{
    const QString strName = "CTolmMainFrame"_q;
    EXPECT_EQ(TolmGetMainFrame(), nullptr);
    EXPECT_EQ(TolmGetViewWindow(), nullptr);
    QWidget holder;
    (new QWidget(&holder))->setObjectName(strName);
    EXPECT_EQ(TolmGetMainFrame(), nullptr);
    {
        QMainWindow frame;
        frame.setObjectName(strName);
        EXPECT_EQ(TolmGetMainFrame(), &frame);
        EXPECT_EQ(TolmGetViewWindow(), nullptr);
        auto* const pArea = new QMdiArea(&frame);
        QMdiSubWindow* const pSub = pArea->addSubWindow(new QWidget);
        frame.show();
        pSub->show();
        pArea->setActiveSubWindow(pSub);
        EXPECT_EQ(TolmGetViewWindow(), pSub);
        frame.setObjectName(strName.toLower());
        EXPECT_EQ(TolmGetMainFrame(), nullptr);
        frame.setObjectName(strName);
        EXPECT_EQ(TolmGetMainFrame(), &frame);
    }
    EXPECT_EQ(TolmGetMainFrame(), nullptr);
}

TEST(WindowFunctions, NullWindows)
{
    RECT rc{1, 2, 3, 4};
    POINT pt{1, 2};
    EXPECT_FALSE(GetWindowRect_E(nullptr, &rc) || GetClientRect_E(nullptr, &rc) ||
                 ClientToScreen_E(nullptr, &pt) || ScreenToClient_E(nullptr, &rc) ||
                 MapDialogRect_E(nullptr, &rc) || GetDpiForWindow_E(nullptr));
    EXPECT_FALSE(IsWindow_E(nullptr) || IsWindowVisible_E(nullptr) || IsWindowEnabled_E(nullptr) ||
                 EnableWindow_E(nullptr, TRUE) || CloseWindow_E(nullptr) ||
                 UpdateWindow_E(nullptr));
    EXPECT_FALSE(SetActiveWindow_E(nullptr) || SetCapture_E(nullptr) || GetParent_E(nullptr) ||
                 SetParent_E(nullptr, nullptr) || GetTopWindow_E(nullptr) ||
                 IsChild_E(nullptr, nullptr));
    EXPECT_EQ(MapWindowPoints_E(nullptr, nullptr, &pt, 1), 0);
    EXPECT_EQ(CRect_E(rc), CRect_E(1, 2, 3, 4));
}
