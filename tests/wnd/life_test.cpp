// Binding, finding, destroying: windows that live, die and die inside their own handlers.
#include <VxMFCEmu/VxMFCEmu.h>

#include "support/waiting.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollBar>

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

TEST(BindingTest, AWindowOwnsTheWidgetItMade)
{
    QWidget parent;
    CWnd_E window;
    ASSERT_TRUE(window.Create(&parent));
    const QPointer<QWidget> widget(window.GetSafeHwnd());
    EXPECT_FALSE(window.IsExternalImpObj());
    EXPECT_TRUE(widget->testAttribute(Qt::WA_Hover));
    EXPECT_TRUE(widget->testAttribute(Qt::WA_MouseTracking));
    EXPECT_EQ(CWnd_E::FromHandlePermanent(widget), &window);
    EXPECT_EQ(GetParent_E(widget), &parent);
    window.Detach();
    EXPECT_FALSE(window.GetSafeHwnd());
    EXPECT_EQ(CWnd_E::FromHandlePermanent(widget), nullptr);
    EXPECT_TRUE(widget) << "deleted by the event loop, not at once";
    vxtest::deliverPosted();
    EXPECT_FALSE(widget);
}

TEST(BindingTest, AWindowLeavesAForeignWidgetAlone)
{
    QWidget widget;
    {
        CWnd_E window;
        ASSERT_TRUE(window.SubclassWindow(&widget));
        EXPECT_TRUE(window.IsExternalImpObj());
    }
    vxtest::deliverPosted();
    EXPECT_FALSE(widget.property("owner").isValid());
    EXPECT_FALSE(widget.property("parent").isValid());
    CWnd_E window;
    EXPECT_FALSE(window.SubclassWindow(nullptr));
    EXPECT_FALSE(window.SubclassDlgItem("nobody", nullptr));
}

TEST(BindingTest, AWidgetDestroyedByQtIsForgotten)
{
    CWnd_E window;
    {
        QWidget widget;
        window.SubclassWindow(&widget);
    }
    EXPECT_EQ(window.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(window.IsExternalImpObj());
    EXPECT_EQ(window.SendMessage(WM_APP), 0);
    EXPECT_FALSE(window.PostMessage(WM_APP));
    EXPECT_FALSE(window.DestroyWindow());
}

class RefusingWnd : public CWnd_E
{
public:
    int OnCreate(tagCREATESTRUCTW* pCreate) override
    {
        m_nStyle = pCreate->style;
        return m_nResult;
    }
    int m_nResult = 0;
    UINT m_nStyle = 0;
};

TEST(BindingTest, AnyResultOfOnCreateButZeroStopsCreation)
{
    for (const int nResult : {-1, 1, 7}) {
        QWidget parent;
        RefusingWnd window;
        window.m_nResult = nResult;
        EXPECT_FALSE(window.Create(WS_CHILD | WS_VSCROLL, &parent));
        EXPECT_EQ(window.m_nStyle, WS_CHILD | WS_VSCROLL);
        EXPECT_EQ(window.GetSafeHwnd(), nullptr);
        vxtest::deliverPosted();
        EXPECT_TRUE(parent.children().isEmpty());
    }
}

TEST(BindingTest, StyleWordsPlaceShowAndScroll)
{
    QWidget parent;
    CWnd_E window;
    ASSERT_TRUE(
        window.Create(WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, CRect_E(10, 20, 110, 100), &parent));
    EXPECT_EQ(window.GetSafeHwnd()->geometry(), QRect(10, 20, 100, 80));
    EXPECT_FALSE(window.GetSafeHwnd()->isHidden());
    EXPECT_EQ(window.GetSafeHwnd()->findChildren<QScrollBar*>().size(), 2);
    window.SendMessage(WM_DESTROY);
    vxtest::deliverPosted();
    EXPECT_TRUE(window.GetSafeHwnd()->findChildren<QScrollBar*>().isEmpty());
}

TEST(BindingTest, AWindowWithoutParentGoesToTheHostsMainFrame)
{
    CWnd_E orphan;
    ASSERT_TRUE(orphan.Create(WS_CHILD, nullptr));
    EXPECT_EQ(orphan.GetSafeHwnd()->parentWidget(), nullptr);
    QMainWindow frame;
    frame.setObjectName(QStringLiteral("CTolmMainFrame"));
    CWnd_E window;
    ASSERT_TRUE(window.Create(WS_CHILD, nullptr));
    EXPECT_EQ(window.GetSafeHwnd()->parentWidget(), &frame);
    window.Detach();
    vxtest::deliverPosted();
}

TEST(BindingTest, ComboBoxesBelowAWindowDoNotElide)
{
    QWidget form;
    auto* const combo = new QComboBox(new QWidget(&form));
    CWnd_E window;
    window.SubclassWindow(&form);
    EXPECT_EQ(combo->view()->textElideMode(), Qt::ElideNone);
}

TEST(FromHandleTest, ATemporaryWindowLivesUntilThePoolIsCleared)
{
    QWidget widget;
    EXPECT_EQ(CWnd_E::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CWnd_E::FromHandlePermanent(&widget), nullptr);
    const QPointer<CWnd_E> window(CWnd_E::FromHandle(&widget));
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->IsTemporary());
    EXPECT_TRUE(window->IsExternalImpObj());
    EXPECT_EQ(CWnd_E::FromHandle(&widget), window.data());
    // A permanent window takes the widget over and keeps it when the temporary one goes.
    CWnd_E permanent;
    permanent.SubclassWindow(&widget);
    ClearTempObjectPool();
    EXPECT_FALSE(window);
    EXPECT_EQ(CWnd_E::FromHandle(&widget), &permanent);
}

TEST(FromHandleTest, IdleTimeClearsThePoolUnlessAHostCommandRuns)
{
    static bool running;
    running = true;
    bool (*const isRunning)() = [] { return running; };
    QMainWindow frame;
    frame.setObjectName(QStringLiteral("CTolmMainFrame"));
    frame.setProperty("IsTolmCmdActive",
                      static_cast<qulonglong>(reinterpret_cast<quintptr>(isRunning)));
    QWidget widget;
    const QPointer<CWnd_E> window(CWnd_E::FromHandle(&widget));
    int idles = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &widget, [&idles] { ++idles; });
    const auto idleTwice = [&] {
        const int start = idles;
        QTimer tick;
        tick.start(1);
        while (idles < start + 2)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    };
    idleTwice();
    EXPECT_TRUE(window);
    running = false;
    idleTwice();
    EXPECT_FALSE(window);
}

TEST(HandleMapTest, TheWindowMapMakesWindowsOverAHandle)
{
    QWidget widget;
    CHandleMap_E* const pMap = afxMapHWND_E(TRUE);
    auto* const pWindow = static_cast<CWnd_E*>(pMap->FromHandle(&widget));
    EXPECT_EQ(pWindow->GetSafeHwnd(), &widget);
    EXPECT_EQ(pMap->FromHandle(&widget), pWindow);
    CWnd_E::DeleteTempMap();
    EXPECT_EQ(pMap->LookupTemporary(&widget), nullptr);
}

/// Notes WM_DESTROY and WM_NCDESTROY, and ends itself as MFC windows do.
class DyingWnd : public CWnd_E
{
public:
    DyingWnd(QStringList& trace, const char* name) : m_trace(trace), m_name(QLatin1String(name)) {}
    ~DyingWnd() override { m_trace << m_name + QLatin1String(" gone"); }
    void OnDestroy()
    {
        m_trace << m_name + QLatin1String(" destroy");
        CWnd_E::OnDestroy();
    }
    void PostNcDestroy() override { delete this; }

protected:
    void OnMessageMap() override;

private:
    QStringList& m_trace;
    QString m_name;
};

BEGIN_MESSAGE_MAP_E(DyingWnd, CWnd_E)
ON_WM_DESTROY_E()
END_MESSAGE_MAP_E()

TEST(DestroyTest, ParentsHearFirstAndEndLast)
{
    QStringList trace;
    auto* const parent = new DyingWnd(trace, "parent");
    auto* const child = new DyingWnd(trace, "child");
    parent->Create(static_cast<QWidget*>(nullptr));
    child->Create(parent->GetSafeHwnd());
    const QPointer<QWidget> widget(parent->GetSafeHwnd());
    EXPECT_TRUE(parent->DestroyWindow());
    EXPECT_EQ(trace.join(QLatin1String(", ")),
              QStringLiteral("parent destroy, child destroy, child gone, parent gone"));
    EXPECT_FALSE(DestroyWindow_E(nullptr));
    vxtest::deliverPosted();
    EXPECT_FALSE(widget);
}

/// Does one thing when it is destroyed, shown or scrolled.
class ActingWnd : public CWnd_E
{
public:
    explicit ActingWnd(std::function<void()> act) : m_act(std::move(act)) {}
    void OnDestroy()
    {
        ++m_destroyed;
        CWnd_E::OnDestroy();
        m_act();
    }
    void OnShowWindow(BOOL, UINT) { m_act(); }
    void OnVScroll(UINT, UINT, QAbstractSlider*) { m_act(); }
    int m_destroyed = 0;

protected:
    void OnMessageMap() override;

private:
    std::function<void()> m_act;
};

BEGIN_MESSAGE_MAP_E(ActingWnd, CWnd_E)
ON_WM_DESTROY_E()
ON_WM_SHOWWINDOW_E()
ON_WM_VSCROLL_E()
END_MESSAGE_MAP_E()

TEST(DestroyTest, DestroyingAWindowAgainInItsOwnDestructionEnds)
{
    QWidget top;
    CWnd_E parent;
    parent.Create(&top);
    ActingWnd child([&parent] { parent.DestroyWindow(); });
    child.Create(parent.GetSafeHwnd());
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ(child.m_destroyed, 1);
    EXPECT_EQ(parent.GetSafeHwnd(), nullptr);
}

TEST(DestroyTest, AWindowMayDieWhileItIsCreated)
{
    QWidget top;
    top.show();
    QPointer<ActingWnd> window;
    window = new ActingWnd([&window] { delete window; });
    EXPECT_TRUE(window->Create(WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, &top));
    EXPECT_FALSE(window);
}

TEST(DestroyTest, AWindowMayBeDestroyedByItsOwnScrollBar)
{
    QWidget top;
    for (const bool bDelete : {false, true}) {
        QPointer<ActingWnd> window;
        window = new ActingWnd(
            [&] { bDelete ? delete window : void(DestroyWindow_E(window->GetSafeHwnd())); });
        window->Create(WS_VSCROLL, CRect_E(0, 0, 100, 80), &top);
        const QPointer<QScrollBar> bar(window->GetSafeHwnd()->findChild<QScrollBar*>());
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        vxtest::deliverPosted();
        EXPECT_FALSE(bar);
        delete window;
    }
}

/// Ends the window in one of several ways from inside a handler.
class SuicideWnd : public CWnd_E
{
public:
    enum Way
    {
        DeleteWindow,
        DeleteWidget,
        DeleteBoth,
        DetachOnly,
        Destroy,
        Rebind,
        WayCount
    };
    explicit SuicideWnd(int way) : m_way(way) {}
    LRESULT OnEnd(WPARAM, LPARAM)
    {
        if (!std::exchange(m_armed, false))
            return 0;
        QWidget* const widget = GetSafeHwnd();
        switch (m_way) {
        case DeleteWindow:
            delete this;
            break;
        case DeleteWidget:
            delete widget;
            break;
        case DeleteBoth:
            delete widget;
            delete this;
            break;
        case DetachOnly:
            Detach();
            break;
        case Destroy:
            DestroyWindow();
            break;
        default:
            SubclassWindow(&m_other);
            break;
        }
        return 1;
    }
    void OnKeyDown(UINT, UINT, UINT) { OnEnd(0, 0); }
    void OnLButtonDown(UINT, CPoint_E) { OnEnd(0, 0); }
    void OnSize(UINT, int, int) { OnEnd(0, 0); }

protected:
    void OnMessageMap() override;

public:
    bool m_armed = false; // Qt itself cannot bear the death of a widget that it is showing

private:
    int m_way;
    QWidget m_other;
};

BEGIN_MESSAGE_MAP_E(SuicideWnd, CWnd_E)
ON_MESSAGE_E(WM_APP, &SuicideWnd::OnEnd)
ON_WM_KEYDOWN_E()
ON_WM_LBUTTONDOWN_E()
ON_WM_SIZE_E()
END_MESSAGE_MAP_E()

void deliver(int how, QWidget* widget)
{
    switch (how) {
    case 0:
        SendMessage_E(widget, WM_APP);
        break;
    case 1:
        PostMessage_E(widget, WM_APP);
        break;
    case 2:
        SendMessage_E(widget, WM_KEYDOWN, 0x41);
        break;
    case 3:
        PostMessage_E(widget, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 4));
        break;
    case 4:
        SendMessage_E(widget, WM_SIZE, 0, MAKELPARAM(60, 50));
        break;
    default:
        DestroyWindow_E(widget);
        break;
    }
}

TEST(DestroyTest, AWindowMayDieInsideItsOwnHandler)
{
    QWidget top;
    top.show();
    for (int way = 0; way < SuicideWnd::WayCount; ++way) {
        for (int how = 0; how < 6; ++how) {
            SCOPED_TRACE(testing::Message() << "way " << way << ", message " << how);
            const QPointer<SuicideWnd> window(new SuicideWnd(way));
            const QPointer<QWidget> widget(new QWidget(&top));
            window->SubclassWindow(widget);
            widget->show();
            window->m_armed = true;
            deliver(how, widget);
            vxtest::deliverPosted();
            if (how < 4 && way <= SuicideWnd::DeleteBoth) {
                EXPECT_EQ(window.isNull(), way != SuicideWnd::DeleteWidget);
                EXPECT_EQ(widget.isNull(), way != SuicideWnd::DeleteWindow);
            }
            delete window;
            delete widget;
        }
    }
}

TEST(DestroyTest, RandomEventSequencesNeverCrash)
{
    std::mt19937 random(20240229);
    const auto pick = [&random](int n) {
        return static_cast<int>(random() % static_cast<unsigned>(n));
    };
    for (int round = 0; round < 200; ++round) {
        QWidget top;
        std::vector<QPointer<QWidget>> widgets;
        std::vector<QPointer<CWnd_E>> windows;
        for (int i = 0; i < 6; ++i) {
            QWidget* const parent = i == 0 || !widgets.back()
                                        ? &top
                                        : widgets[static_cast<std::size_t>(pick(i))].data();
            auto* const mortal = new SuicideWnd(pick(SuicideWnd::WayCount));
            windows.emplace_back(mortal);
            windows.back()->AttachDefault(parent ? parent : &top);
            widgets.emplace_back(windows.back()->GetSafeHwnd());
            mortal->m_armed = pick(2) != 0;
        }
        for (int step = 0; step < 20; ++step) {
            const auto i = static_cast<std::size_t>(pick(6));
            if (widgets[i])
                deliver(pick(6), widgets[i]);
            if (windows[i] && pick(8) == 0)
                windows[i]->PostEvent(new VxWinMsgEvent(WM_APP, 0, 0), Qt::NormalEventPriority,
                                      true);
            if (pick(10) == 0)
                delete widgets[i];
            if (pick(4) == 0)
                vxtest::deliverPosted();
        }
        for (const QPointer<CWnd_E>& window : windows)
            delete window;
        vxtest::deliverPosted();
    }
    SUCCEED();
}

TEST(DestroyTest, TenThousandWindowsComeAndGo)
{
    QWidget top;
    std::vector<std::unique_ptr<CWnd_E>> windows;
    for (int i = 0; i < 10000; ++i) {
        windows.push_back(std::make_unique<CWnd_E>());
        ASSERT_TRUE(windows.back()->Create(&top));
    }
    EXPECT_EQ(top.children().size(), 10000);
    for (std::size_t i = 0; i < windows.size(); i += 2)
        windows[i]->DestroyWindow();
    windows.clear();
    vxtest::deliverPosted();
    EXPECT_TRUE(top.children().isEmpty());
}

TEST(EdgesTest, AScrollBarTellsItsWindow)
{
    class ScrollWnd : public CWnd_E
    {
    public:
        void OnVScroll(UINT nCode, UINT nPos, QAbstractSlider* pBar)
        {
            m_seen << QStringLiteral("%1 %2 %3").arg(nCode).arg(nPos).arg(pBar != nullptr);
        }
        QStringList m_seen;

    protected:
        void OnMessageMap() override
        {
            using ThisClass_E = ScrollWnd;
            CWnd_E::OnMessageMap();
            ON_WM_VSCROLL_E()
        }
    };
    QWidget top;
    ScrollWnd window;
    window.Create(WS_VSCROLL, CRect_E(0, 0, 100, 80), &top);
    window.SetScrollRange(SB_VERT, 0, 50);
    EXPECT_EQ(window.SetScrollPos(SB_VERT, 7), 0);
    EXPECT_EQ(window.GetScrollPos(SB_VERT), 7);
    EXPECT_TRUE(window.m_seen.isEmpty()) << "programmatic changes are silent";
    auto* const bar = window.GetSafeHwnd()->findChild<QScrollBar*>();
    ASSERT_TRUE(bar);
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(window.m_seen, QStringList({QStringLiteral("1 8 1"), QStringLiteral("2 0 1")}));
    window.ShowWindow(SW_SHOW);
    top.show();
    window.MoveWindow(0, 0, 200, 150);
    EXPECT_EQ(bar->geometry().right(), 199);
    EXPECT_EQ(bar->geometry().bottom(), 149);
}

TEST(EdgesTest, AWindowBoundAgainGetsScrollBarsOfItsOwn)
{
    QWidget top;
    CWnd_E window;
    for (int i = 0; i < 2; ++i)
        window.Create(WS_VSCROLL, CRect_E(0, 0, 100, 80), &top);
    vxtest::deliverPosted();
    EXPECT_EQ(window.GetSafeHwnd()->findChildren<QScrollBar*>().size(), 1);
}

TEST(EdgesTest, AMenuBarShowsTheMenusEntries)
{
    QWidget top;
    CWnd_E window;
    CMenu_E menu;
    EXPECT_FALSE(window.SetMenu(&menu)) << "no widget yet";
    window.Create(&top);
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.GetSafeHmenu()->addMenu(QStringLiteral("File"));
    EXPECT_EQ(CMenu_E::FromHandle(menu.GetSafeHmenu()), &menu);
    EXPECT_TRUE(window.SetMenu(&menu));
    auto* const bar = window.GetSafeHwnd()->findChild<QMenuBar*>();
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->actions().size(), 1);
    EXPECT_TRUE(window.SetMenu(static_cast<CMenu_E*>(nullptr)));
    EXPECT_FALSE(window.GetSafeHwnd()->findChild<QMenuBar*>());
}

} // namespace
