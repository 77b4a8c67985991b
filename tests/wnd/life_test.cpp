// Binding, finding, destroying: windows that live, die and die inside their own handlers.
#include "support/test.h"

namespace {

constexpr CRect_E kPlace{10, 20, 110, 100};

/// Tells what happens to it, by the name of what it is told; ends nothing by itself.
struct TellingWnd : CWnd_E
{
    explicit TellingWnd(std::function<void(const QString&)> act) : m_act(std::move(act)) {}
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
    void OnMessageMap() override;

    const std::function<void(const QString&)> m_act;
};

BEGIN_MESSAGE_MAP_E(TellingWnd, CWnd_E)
ON_WM_DESTROY_E()
ON_WM_SHOWWINDOW_E()
ON_WM_VSCROLL_E()
END_MESSAGE_MAP_E()

TEST(BindingTest, AWindowOwnsTheWidgetItMade)
{
    QWidget top;
    CWnd_E window;
    EXPECT_TRUE(window.Create(WS_CHILD, nullptr) && !window.GetSafeHwnd()->parentWidget());
    QMainWindow frame; // the host's, for windows without parent
    frame.setObjectName("CTolmMainFrame"_q);
    for (QWidget* const parent : {&top, static_cast<QWidget*>(nullptr)}) {
        EXPECT_TRUE(parent ? window.Create(parent) : window.Create(WS_CHILD, parent));
        const QPointer<QWidget> widget(window.GetSafeHwnd());
        EXPECT_EQ(widget->parentWidget(), parent ? parent : &frame);
        EXPECT_TRUE(widget->testAttribute(Qt::WA_Hover) && widget->hasMouseTracking());
        EXPECT_TRUE(!window.IsExternalImpObj() && CWnd_E::FromHandlePermanent(widget) == &window);
        window.Detach();
        EXPECT_FALSE(window.GetSafeHwnd() || CWnd_E::FromHandlePermanent(widget));
        EXPECT_TRUE(widget) << "deleted by the event loop, not at once";
        vxtest::deliverPosted();
        EXPECT_FALSE(widget);
    }
}

TEST(BindingTest, AWindowLeavesAForeignWidgetAloneAndForgetsADestroyedOne)
{
    CWnd_E window;
    {
        QWidget widget;
        const auto* const combo = new QComboBox(new QWidget(&widget));
        window.SubclassWindow(&widget);
        window.Detach();
        vxtest::deliverPosted();
        EXPECT_TRUE(window.SubclassWindow(&widget) && window.IsExternalImpObj());
        EXPECT_EQ(combo->view()->textElideMode(), Qt::ElideNone);
    }
    EXPECT_FALSE(window.GetSafeHwnd() || window.IsExternalImpObj() || window.SendMessage(WM_APP) ||
                 window.PostMessage(WM_APP) || window.DestroyWindow());
    EXPECT_FALSE(window.SubclassWindow(nullptr) || window.SubclassDlgItem("nobody", nullptr));
}

TEST(BindingTest, AnyResultOfOnCreateButZeroStopsCreation)
{
    struct RefusingWnd : CWnd_E
    {
        int OnCreate(tagCREATESTRUCTW* pCreate) override { return int(pCreate->style); }
    };
    QWidget parent;
    RefusingWnd window;
    EXPECT_FALSE(window.Create(1, &parent) || window.GetSafeHwnd());
    vxtest::deliverPosted();
    EXPECT_TRUE(parent.children().isEmpty() && window.Create(0, &parent));
}

TEST(FromHandleTest, ATemporaryWindowLivesUntilThePoolIsCleared)
{
    QWidget widget;
    EXPECT_FALSE(CWnd_E::FromHandle(nullptr) || CWnd_E::FromHandlePermanent(&widget));
    const QPointer<CWnd_E> window(CWnd_E::FromHandle(&widget));
    EXPECT_TRUE(window->IsTemporary() && CWnd_E::FromHandle(&widget) == window);
    // A permanent window takes the widget over and keeps it when the temporary one goes.
    CWnd_E permanent;
    permanent.SubclassWindow(&widget);
    ClearTempObjectPool();
    EXPECT_TRUE(!window && CWnd_E::FromHandle(&widget) == &permanent);
}

TEST(FromHandleTest, IdleTimeClearsThePoolUnlessAHostCommandRuns)
{
    using IsActive = bool (*)();
    QMainWindow frame;
    frame.setObjectName("CTolmMainFrame"_q);
    QWidget widget;
    int idles = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &widget, [&idles] { ++idles; });
    DisconnectIdleSlot(&widget); // which has no such slot: its other connection stays
    for (const IsActive isActive :
         {IsActive([] { return true; }), IsActive([] { return false; }), IsActive()}) {
        const auto address = static_cast<qulonglong>(reinterpret_cast<quintptr>(isActive));
        frame.setProperty("IsTolmCmdActive", isActive ? QVariant(address) : QVariant(true));
        const QPointer<CWnd_E> window(CWnd_E::FromHandle(&widget));
        QTimer tick;
        tick.start(1);
        idles = 0;
        while (idles < 2)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_EQ(!window.isNull(), isActive && isActive());
    }
}

TEST(FromHandleTest, ATemporaryObjectBoundToItsOwnHandleIsForgottenThere)
{
    QWidget widget;
    CHandleMap_E* const pMap = afxMapHWND_E(TRUE);
    EXPECT_TRUE(static_cast<CWnd_E*>(pMap->FromHandle(&widget))->SubclassWindow(&widget));
    CWnd_E::DeleteTempMap();
    EXPECT_FALSE(pMap->LookupTemporary(&widget) || CWnd_E::FromHandlePermanent(&widget));

    QMenu menu;
    CMenu_E::FromHandle(&menu)->Attach(&menu, nullptr, true);
    CMenu_E::DeleteTempMap();
    EXPECT_FALSE(afxMapHMENU_E()->LookupPermanent(&menu));
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
    EXPECT_TRUE(parent->DestroyWindow() && !DestroyWindow_E(nullptr));
    EXPECT_EQ(trace.join(u','), "parent destroy,child destroy,child gone,parent gone"_q);
    vxtest::deliverPosted();
    EXPECT_FALSE(widget);

    // Destroying again what is being destroyed ends.
    CWnd_E again;
    again.Create(static_cast<QWidget*>(nullptr));
    TellingWnd inner([&](const QString&) { again.DestroyWindow(); });
    inner.Create(again.GetSafeHwnd());
    EXPECT_TRUE(again.DestroyWindow() && !again.GetSafeHwnd());
}

// A press that still reached it would be remembered by Qt, and crash it when the next window hides.
TEST(DestroyTest, TheNativeWindowGoesAtOnceButOnlyThatOfAnOwnedWidget)
{
    QWidget foreign;
    for (const bool bOwned : {true, false}) {
        CWnd_E window;
        EXPECT_TRUE(bOwned ? window.Create(WS_POPUP, nullptr) : window.SubclassWindow(&foreign));
        window.ShowWindow(SW_SHOW);
        const QPointer<QWidget> widget(window.GetSafeHwnd());
        EXPECT_TRUE(widget->windowHandle()->handle());
        EXPECT_TRUE(window.DestroyWindow());
        ASSERT_TRUE(widget);
        EXPECT_EQ(widget->windowHandle()->handle() != nullptr, !bOwned);
    }
}

TEST(DestroyTest, AWindowMayDieWhileItIsCreatedAndThroughItsOwnScrollBar)
{
    QWidget top;
    top.show();
    QPointer<TellingWnd> window;
    window = new TellingWnd([&window](const QString&) { delete window; });
    EXPECT_TRUE(window->Create(WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, &top));
    EXPECT_FALSE(window);
    for (const bool bDelete : {false, true}) {
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

/// Ends itself from inside a handler.
struct SuicideWnd : CWnd_E
{
    using Way = void (*)(SuicideWnd*);
    explicit SuicideWnd(Way way) : m_way(way) {}
    LRESULT OnEnd(WPARAM, LPARAM)
    {
        m_way(this);
        return 0;
    }
    void OnKeyDown(UINT, UINT, UINT) { m_way(this); }
    void OnLButtonDown(UINT, CPoint_E) { m_way(this); }
    void OnMessageMap() override;

    const Way m_way;
    QWidget m_other;
};

BEGIN_MESSAGE_MAP_E(SuicideWnd, CWnd_E)
ON_MESSAGE_E(WM_APP, &SuicideWnd::OnEnd)
ON_WM_KEYDOWN_E()
ON_WM_LBUTTONDOWN_E()
END_MESSAGE_MAP_E()

constexpr SuicideWnd::Way kWays[] = {
    [](SuicideWnd* window) { delete window; },
    [](SuicideWnd* window) { delete window->GetSafeHwnd(); },
    [](SuicideWnd* window) {
        delete window->GetSafeHwnd();
        delete window;
    },
    [](SuicideWnd* window) { window->Detach(); },
    [](SuicideWnd* window) { window->DestroyWindow(); },
    [](SuicideWnd* window) { window->SubclassWindow(&window->m_other); },
};

constexpr void (*kMessages[])(QWidget*) = {
    [](QWidget* w) { SendMessage_E(w, WM_APP); },
    [](QWidget* w) { PostMessage_E(w, WM_APP); },
    [](QWidget* w) { SendMessage_E(w, WM_KEYDOWN, 0x41); },
    [](QWidget* w) { PostMessage_E(w, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 4)); },
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
            kMessages[how](widget);
            vxtest::deliverPosted();
            EXPECT_TRUE(way > 2 || (!window == (way != 1) && !widget == (way != 0)));
            delete window;
            delete widget;
        }
    }
}

TEST(EdgesTest, ScrollBarsLieAlongTheEdgesAndTellTheirWindow)
{
    QWidget top;
    QStringList seen;
    TellingWnd window([&seen](const QString& what) { seen << what; });
    window.Create(&top);
    EXPECT_FALSE(window.SetScrollPos(SB_HORZ, 3) || window.EnableScrollBar(SB_BOTH)) << "no bar";
    for (int i = 0; i < 2; ++i) // bound again, it gets scroll bars of its own
        window.Create(WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, kPlace, &top);
    const QWidget* const widget = window.GetSafeHwnd();
    EXPECT_EQ(widget->geometry(), QRect(10, 20, 100, 80));
    const auto bars = widget->findChildren<QScrollBar*>();
    ASSERT_EQ(bars.size(), 2); // the vertical one is made first

    seen.clear();
    int low = -1, high = -1;
    window.SetScrollRange(SB_VERT, 2, 50);
    window.GetScrollRange(SB_VERT, &low, &high);
    EXPECT_TRUE(low == 2 && high == 50 && window.SetScrollPos(SB_VERT, 7) == 2);
    EXPECT_TRUE(window.GetScrollPos(SB_VERT) == 7 && seen.isEmpty())
        << "programmatic changes are silent";
    bars[0]->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    bars[0]->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(seen.join(u','), "scroll 1 8 1,scroll 2 2 1"_q);
    EXPECT_TRUE(window.EnableScrollBar(SB_HORZ, ESB_DISABLE_BOTH));
    EXPECT_TRUE(bars[0]->isEnabled() && !bars[1]->isEnabled());
    top.show();
    window.MoveWindow(0, 0, 200, 150);
    const int width = bars[0]->sizeHint().width(), height = bars[1]->sizeHint().height();
    EXPECT_EQ(bars[0]->geometry(), QRect(200 - width, 0, width, 150 - height));
    EXPECT_EQ(bars[1]->geometry(), QRect(0, 150 - height, 200 - width, height));
    window.SendMessage(WM_DESTROY);
    EXPECT_TRUE(widget->findChildren<QScrollBar*>().isEmpty());
}

TEST(EdgesTest, AMenuBarShowsTheEntriesOfAMenuOrSeveralMenusUnderTheirTitles)
{
    QWidget top;
    CWnd_E window;
    CMenu_E file, edit, empty;
    const auto bar = [&window] { return window.GetSafeHwnd()->findChild<QMenuBar*>(); };
    const QList<CMenu_E*> menus{&file, &empty, nullptr, &edit};
    EXPECT_FALSE(window.SetMenu(&file)) << "no widget yet";
    window.Create(&top);
    file.CreatePopupMenu();
    edit.CreatePopupMenu();
    QMenu* const recent = file.GetSafeHmenu()->addMenu("Recent"_q);
    EXPECT_TRUE(window.SetMenu(&file));
    EXPECT_EQ(bar()->actions(), QList<QAction*>{recent->menuAction()});
    EXPECT_TRUE(window.SetMenu(menus));
    EXPECT_EQ(bar()->actions(), (QList<QAction*>{file.GetSafeHmenu()->menuAction(),
                                                 edit.GetSafeHmenu()->menuAction()}));
    EXPECT_TRUE(window.SetMenu(static_cast<CMenu_E*>(nullptr)) && !bar());
    EXPECT_TRUE(window.SetMenu(menus) && window.SetMenu(QList<CMenu_E*>{}) && !bar());
    window.SetMenu(&file);
    window.SendMessage(WM_DESTROY);
    EXPECT_FALSE(bar());
}

} // namespace
