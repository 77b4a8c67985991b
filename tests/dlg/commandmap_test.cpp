// Commands and their state: from actions and buttons to the handlers of a message map.
#include "support/test.h"

namespace {

class CommandDlg : public CDialog_E
{
public:
    using CDialog_E::CDialog_E;

    void OnOK() override { ++oks; }
    void OnApply() { onApply(); }
    void OnZoom() { ++zooms; }
    void OnLate() { ++lates; }
    void OnPick(UINT nID) { picked.push_back(nID); }
    void OnUpdatePick(CCmdUI_E*)
    {
        ++depth;
        maxDepth = std::max(maxDepth, depth);
        onUpdatePick();
        --depth;
    }
    void OnUpdateZoom(CCmdUI_E* pCmdUI)
    {
        pCmdUI->Enable(enabled);
        ++updates;
    }

    int oks = 0, zooms = 0, lates = 0, updates = 0;
    BOOL enabled = TRUE;
    int depth = 0, maxDepth = 0;
    std::vector<UINT> picked;
    std::function<void()> onApply = [] {}, onUpdatePick = [] {};
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(CommandDlg, CDialog_E)
ON_BN_CLICKED_E(IDOK, &CommandDlg::OnZoom)
ON_BN_CLICKED_E(IDOK, &CommandDlg::OnApply)
ON_BN_CLICKED_E(1020, &CommandDlg::OnApply)
ON_COMMAND_E(1021, &CommandDlg::OnZoom)
ON_UPDATE_COMMAND_UI_E(1021, &CommandDlg::OnUpdateZoom)
ON_COMMAND_E(1022, &CommandDlg::OnLate)
ON_COMMAND_E(4711, &CommandDlg::OnLate)
ON_COMMAND_RANGE_E(1023, 1030, &CommandDlg::OnPick)
ON_UPDATE_COMMAND_UI_RANGE_E(1023, 1030, &CommandDlg::OnUpdatePick)
END_MESSAGE_MAP_E()

/// Waits for @p done in an event loop that goes idle.
bool waitIdle(const std::function<bool()>& done)
{
    return vxtest::waitUntil([&] {
        QEventLoop loop;
        QTimer::singleShot(10, &loop, &QEventLoop::quit);
        loop.exec();
        return done();
    });
}

struct CommandTest : testing::Test
{
    template <typename Object>
    Object* add(const char* name)
    {
        auto* const pObject = new Object(&m_widget);
        pObject->setObjectName(QLatin1String(name));
        return pObject;
    }
    QDialog m_widget;
    QPushButton* const m_pOk = add<QPushButton>("OK");
    QPushButton* const m_pApply = add<QPushButton>("apply");
    QAction* const m_pApplyAction = add<QAction>("apply");
    QAction* const m_pZoom = add<QAction>("zoom");
    QPushButton* const m_pZoomButton = add<QPushButton>("zoom");
    CommandDlg m_window;
    int m_applied = 0;

    CommandTest()
    {
        m_window.onApply = [this] { ++m_applied; };
        EXPECT_TRUE(m_window.SubclassWindow(&m_widget));
    }
};

TEST_F(CommandTest, ReachTheHandlers)
{
    m_pApply->click();
    EXPECT_EQ(m_applied, 1);
    m_pApplyAction->trigger();
    EXPECT_EQ(m_applied, 1) << "the button has the name too";
    m_pZoom->trigger();
    m_pZoomButton->click();
    EXPECT_EQ(m_window.zooms, 1);
    m_pOk->click();
    EXPECT_EQ(m_applied, 2) << "the last one registered";
    EXPECT_EQ(m_window.oks, 0) << "the command takes the place of OnOK()";
    m_window.Detach();
    m_pApply->click();
    EXPECT_EQ(m_applied, 2);
    m_window.SubclassWindow(&m_widget);
    m_pApply->click();
    EXPECT_EQ(m_applied, 3) << "connected once";
}

TEST_F(CommandTest, StateFollowsAtIdleTime)
{
    for (const BOOL enabled : {FALSE, TRUE}) {
        m_window.enabled = enabled;
        EXPECT_TRUE(waitIdle([&] { return m_pZoom->isEnabled() == (enabled == TRUE); }));
    }
    EXPECT_TRUE(m_pZoomButton->isEnabled());
}

TEST_F(CommandTest, WhatComesLaterIsFound)
{
    for (int round = 1; round <= 2; ++round) { // the second after the first has gone
        const QPointer<QAction> pLate(add<QAction>("late"));
        EXPECT_TRUE(waitIdle([&] {
            pLate->trigger();
            return m_window.lates >= round;
        }));
        delete pLate;
    }
}

// What menus and tool buttons of the window show may belong elsewhere.
TEST_F(CommandTest, ActionsOfOthers)
{
    QMenu menu, inner;
    menu.addMenu(&inner);
    QToolButton tool(&m_widget);
    QAction action;
    QMenuBar bar(&m_widget);
    bar.addMenu(&menu);
    inner.addAction(&action);
    action.setObjectName("first"_q);
    QAction second;
    second.setObjectName("second"_q);
    tool.setDefaultAction(&second);
    EXPECT_TRUE(waitIdle([&] {
        action.trigger();
        tool.click();
        return m_window.picked.size() >= 2;
    }));
    EXPECT_EQ(m_window.picked, (std::vector<UINT>{1023, 1024}));
}

TEST_F(CommandTest, UpdatesDoNotNest)
{
    add<QAction>("first");
    int calls = 0;
    m_window.onUpdatePick = [&calls] {
        ++calls;
        waitIdle([] { return true; });
    };
    EXPECT_TRUE(waitIdle([&] { return calls >= 2; }));
    EXPECT_EQ(m_window.maxDepth, 1);
}

TEST_F(CommandTest, AnUpdateThatThrowsIsReportedOnce)
{
    add<QAction>("first");
    int boxes = 0, calls = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&boxes] {
        QWidget* const pBox = QApplication::activeModalWidget();
        boxes += pBox && pBox->isVisible() && pBox->close();
    });
    poll.start(5);
    m_window.onUpdatePick = [&calls] {
        ++calls;
        AfxThrowMemoryException_E();
    };
    const int updates = m_window.updates;
    EXPECT_TRUE(waitIdle([&] { return boxes > 0 && m_window.updates > updates + 20; }));
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(calls, 1);
}

TEST_F(CommandTest, HandlersMayThrowAndDelete)
{
    auto* const pOther = new CommandDlg;
    auto* const pWidget = new QDialog;
    auto* const pButton = new QPushButton(pWidget);
    pButton->setObjectName("apply"_q);
    pOther->SubclassWindow(pWidget);
    QTimer poll;
    bool reported = false;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&reported] {
        QWidget* const pBox = QApplication::activeModalWidget();
        if (pBox && pBox->isVisible())
            reported = pBox->close();
    });
    poll.start(5);
    pOther->onApply = [] { AfxThrowMemoryException_E(); };
    pButton->click();
    EXPECT_TRUE(reported);
    pOther->onApply = [=] {
        const std::unique_ptr<QWidget> widget(pWidget); // what was captured goes with the window
        delete pOther;
    };
    pButton->click();
}

} // namespace
