// Binding, finding, destroying: windows that live, die and die inside their own handlers.
#include "support/test.h"

namespace {

constexpr CRect_E kPlace{10, 20, 110, 100};

/// Tells what happens to it, by the name of what it is told; ends nothing by itself.
class TellingWnd : public CWnd_E
{
public:
    using Act = std::function<void(const QString&)>;
    explicit TellingWnd(Act act) : m_act(std::move(act)) {}
    void OnDestroy()
    {
        m_act("destroy"_q);
        CWnd_E::OnDestroy();
    }
    void OnShowWindow(BOOL, UINT) { m_act("show"_q); }
    void OnVScroll(UINT nCode, UINT nPos, QAbstractSlider* pBar)
    {
        m_act("scroll %1 %2 %3"_q.arg(nCode).arg(nPos).arg(pBar != nullptr));
    }
    void PostNcDestroy() override { m_act("gone"_q); }

protected:
    void OnMessageMap() override;

private:
    Act m_act;
};

BEGIN_MESSAGE_MAP_E(TellingWnd, CWnd_E)
ON_WM_DESTROY_E()
ON_WM_SHOWWINDOW_E()
ON_WM_VSCROLL_E()
END_MESSAGE_MAP_E()

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

TEST(BindingTest, AWindowLeavesAForeignWidgetAloneAndForgetsADestroyedOne)
{
    CWnd_E window;
    {
        QWidget widget;
        for (int i = 0; i < 2; ++i) {
            ASSERT_TRUE(window.SubclassWindow(&widget));
            EXPECT_TRUE(window.IsExternalImpObj());
            if (i == 0)
                window.Detach();
            vxtest::deliverPosted();
        }
    }
    EXPECT_EQ(window.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(window.IsExternalImpObj());
    EXPECT_EQ(window.SendMessage(WM_APP), 0);
    EXPECT_FALSE(window.PostMessage(WM_APP) || window.DestroyWindow());
    EXPECT_FALSE(window.SubclassWindow(nullptr) || window.SubclassDlgItem("nobody", nullptr));
}

TEST(BindingTest, AnyResultOfOnCreateButZeroStopsCreation)
{
    struct RefusingWnd : CWnd_E
    {
        int OnCreate(tagCREATESTRUCTW* pCreate) override
        {
            m_nStyle = pCreate->style;
            return m_nResult;
        }
        int m_nResult = 0;
        UINT m_nStyle = 0;
    };
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
    for (int i = 0; i < 2; ++i) // bound again, it gets scroll bars of its own
        ASSERT_TRUE(window.Create(WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, kPlace, &parent));
    vxtest::deliverPosted();
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
    frame.setObjectName("CTolmMainFrame"_q);
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
    frame.setObjectName("CTolmMainFrame"_q);
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
    DisconnectIdleSlot(&widget); // which has no such slot: its other connection stays
    idleTwice();
    EXPECT_FALSE(window);
    frame.setProperty("IsTolmCmdActive", true); // no address
    const QPointer<CWnd_E> next(CWnd_E::FromHandle(&widget));
    idleTwice();
    EXPECT_FALSE(next);
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

TEST(HandleMapTest, ATemporaryObjectBoundToItsOwnHandleIsForgottenThere)
{
    QWidget widget;
    auto* const pWindow = static_cast<CWnd_E*>(afxMapHWND_E(TRUE)->FromHandle(&widget));
    ASSERT_TRUE(pWindow->SubclassWindow(&widget));
    CWnd_E::DeleteTempMap();
    EXPECT_FALSE(CWnd_E::FromHandlePermanent(&widget));

    QMenu menu;
    CMenu_E::FromHandle(&menu)->Attach(&menu, nullptr, true);
    CMenu_E::DeleteTempMap();
    EXPECT_FALSE(afxMapHMENU_E()->LookupPermanent(&menu));

    CMenu_E first;
    CMenu_E second;
    first.Attach(&menu, nullptr, true);
    second.Attach(&menu, nullptr, true);
    first.Detach();
    EXPECT_EQ(CMenu_E::FromHandle(&menu), &second);
}

TEST(DestroyTest, ParentsHearFirstAndEndLast)
{
    QStringList trace;
    TellingWnd *parent = nullptr, *child = nullptr;
    const auto mortal = [&trace](const char* name, TellingWnd*& window) {
        window = new TellingWnd([&trace, &window, name](const QString& what) {
            trace << QLatin1String(name) + u' ' + what;
            if (what == "gone"_q)
                delete window; // as MFC windows do
        });
    };
    mortal("parent", parent);
    mortal("child", child);
    parent->Create(static_cast<QWidget*>(nullptr));
    child->Create(parent->GetSafeHwnd());
    const QPointer<QWidget> widget(parent->GetSafeHwnd());
    EXPECT_TRUE(parent->DestroyWindow());
    EXPECT_EQ(trace.join(u','), "parent destroy,child destroy,child gone,parent gone"_q);
    EXPECT_FALSE(DestroyWindow_E(nullptr));
    vxtest::deliverPosted();
    EXPECT_FALSE(widget);
}

TEST(DestroyTest, DestroyingAWindowAgainInItsOwnDestructionEnds)
{
    QWidget top;
    CWnd_E parent;
    parent.Create(&top);
    QString seen;
    TellingWnd child([&](const QString& what) {
        seen += what;
        parent.DestroyWindow();
    });
    child.Create(parent.GetSafeHwnd());
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ(seen.count("destroy"_q), 1);
    EXPECT_EQ(parent.GetSafeHwnd(), nullptr);
}

TEST(DestroyTest, AWindowMayDieWhileItIsCreated)
{
    QWidget top;
    top.show();
    QPointer<TellingWnd> window;
    window = new TellingWnd([&window](const QString&) { delete window; });
    EXPECT_TRUE(window->Create(WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, &top));
    EXPECT_FALSE(window);
}

TEST(DestroyTest, AWindowMayBeDestroyedByItsOwnScrollBar)
{
    QWidget top;
    for (const bool bDelete : {false, true}) {
        QPointer<TellingWnd> window;
        window = new TellingWnd([&](const QString&) {
            bDelete ? delete window : void(DestroyWindow_E(window->GetSafeHwnd()));
        });
        window->Create(WS_VSCROLL, kPlace, &top);
        const QPointer<QScrollBar> bar(window->GetSafeHwnd()->findChild<QScrollBar*>());
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        vxtest::deliverPosted();
        EXPECT_FALSE(bar);
        delete window;
    }
}

/// Ends itself from inside a handler, once.
class SuicideWnd : public CWnd_E
{
public:
    using Way = void (*)(SuicideWnd*);
    explicit SuicideWnd(Way way) : m_way(way) {}
    LRESULT OnEnd(WPARAM, LPARAM) { return std::exchange(m_armed, false) ? (m_way(this), 1) : 0; }
    void OnKeyDown(UINT, UINT, UINT) { OnEnd(0, 0); }
    void OnLButtonDown(UINT, CPoint_E) { OnEnd(0, 0); }
    void OnSize(UINT, int, int) { OnEnd(0, 0); }

    bool m_armed = false; // Qt itself cannot bear the death of a widget that it is showing
    QWidget m_other;

protected:
    void OnMessageMap() override;

private:
    Way m_way;
};

BEGIN_MESSAGE_MAP_E(SuicideWnd, CWnd_E)
ON_MESSAGE_E(WM_APP, &SuicideWnd::OnEnd)
ON_WM_KEYDOWN_E()
ON_WM_LBUTTONDOWN_E()
ON_WM_SIZE_E()
END_MESSAGE_MAP_E()

void deleteBoth(SuicideWnd* window)
{
    delete window->GetSafeHwnd();
    delete window;
}

constexpr SuicideWnd::Way kWays[] = {
    [](SuicideWnd* window) { delete window; },
    [](SuicideWnd* window) { delete window->GetSafeHwnd(); },
    &deleteBoth,
    [](SuicideWnd* window) { window->Detach(); },
    [](SuicideWnd* window) { window->DestroyWindow(); },
    [](SuicideWnd* window) { window->SubclassWindow(&window->m_other); },
};

constexpr void (*kMessages[])(QWidget*) = {
    [](QWidget* w) { SendMessage_E(w, WM_APP); },
    [](QWidget* w) { PostMessage_E(w, WM_APP); },
    [](QWidget* w) { SendMessage_E(w, WM_KEYDOWN, 0x41); },
    [](QWidget* w) { PostMessage_E(w, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 4)); },
    [](QWidget* w) { SendMessage_E(w, WM_SIZE, 0, MAKELPARAM(60, 50)); },
    [](QWidget* w) { DestroyWindow_E(w); },
};

TEST(DestroyTest, AWindowMayDieInsideItsOwnHandler)
{
    QWidget top;
    top.show();
    for (std::size_t way = 0; way < std::size(kWays); ++way) {
        for (std::size_t how = 0; how < std::size(kMessages); ++how) {
            SCOPED_TRACE(testing::Message() << "way " << way << ", message " << how);
            const QPointer<SuicideWnd> window(new SuicideWnd(kWays[way]));
            const QPointer<QWidget> widget(new QWidget(&top));
            window->SubclassWindow(widget);
            widget->show();
            window->m_armed = true;
            kMessages[how](widget);
            vxtest::deliverPosted();
            if (how < 4 && way < 3) {
                EXPECT_EQ(window.isNull(), way != 1);
                EXPECT_EQ(widget.isNull(), way != 0);
            }
            delete window;
            delete widget;
        }
    }
}

TEST(DestroyTest, RandomEventSequencesNeverCrash)
{
    std::mt19937 random(20240229);
    const auto pick = [&random](std::size_t n) { return random() % n; };
    for (int round = 0; round < 200; ++round) {
        QWidget top;
        std::vector<QPointer<QWidget>> widgets;
        std::vector<QPointer<CWnd_E>> windows;
        for (std::size_t i = 0; i < 6; ++i) {
            QWidget* const parent = i == 0 || !widgets.back() ? &top : widgets[pick(i)].data();
            auto* const mortal = new SuicideWnd(kWays[pick(std::size(kWays))]);
            windows.emplace_back(mortal);
            windows.back()->AttachDefault(parent ? parent : &top);
            widgets.emplace_back(windows.back()->GetSafeHwnd());
            mortal->m_armed = pick(2) != 0;
        }
        for (int step = 0; step < 20; ++step) {
            const std::size_t i = pick(6);
            if (widgets[i])
                kMessages[pick(std::size(kMessages))](widgets[i]);
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
    QWidget top;
    QStringList seen;
    TellingWnd window([&seen](const QString& what) { seen << what; });
    window.Create(WS_VSCROLL, kPlace, &top);
    window.SetScrollRange(SB_VERT, 0, 50);
    EXPECT_EQ(window.SetScrollPos(SB_VERT, 7), 0);
    EXPECT_EQ(window.GetScrollPos(SB_VERT), 7);
    EXPECT_TRUE(seen.isEmpty()) << "programmatic changes are silent";
    auto* const bar = window.GetSafeHwnd()->findChild<QScrollBar*>();
    ASSERT_TRUE(bar);
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(seen.join(u','), "scroll 1 8 1,scroll 2 0 1"_q);
    window.ShowWindow(SW_SHOW);
    top.show();
    window.MoveWindow(0, 0, 200, 150);
    EXPECT_EQ(bar->geometry().right(), 199);
    EXPECT_EQ(bar->geometry().bottom(), 149);
}

TEST(EdgesTest, AMenuBarShowsTheMenusEntries)
{
    QWidget top;
    CWnd_E window;
    CMenu_E menu;
    EXPECT_FALSE(window.SetMenu(&menu)) << "no widget yet";
    window.Create(&top);
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.GetSafeHmenu()->addMenu("File"_q);
    EXPECT_EQ(CMenu_E::FromHandle(menu.GetSafeHmenu()), &menu);
    EXPECT_TRUE(window.SetMenu(&menu));
    auto* const bar = window.GetSafeHwnd()->findChild<QMenuBar*>();
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->actions().size(), 1);
    EXPECT_TRUE(window.SetMenu(static_cast<CMenu_E*>(nullptr)));
    EXPECT_FALSE(window.GetSafeHwnd()->findChild<QMenuBar*>());
}

} // namespace
