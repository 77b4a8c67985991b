// Commands and their state: from actions and buttons to the handlers of a message map.
#include "modal.h"

namespace {

class CommandDlg : public CDialog_E
{
public:
    void OnOK() override { notes += "OnOK "; }
    void OnApply() { onApply(); }
    void OnZoom() { notes += "zoom "; }
    void OnPick(UINT nID) { notes += std::to_string(nID) + ' '; }
    void OnUpdatePick(CCmdUI_E*) { onUpdatePick(); }

    std::string notes;
    std::function<void()> onApply = [this] { notes += "apply "; }, onUpdatePick = [] {};
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(CommandDlg, CDialog_E)
ON_BN_CLICKED_E(IDOK, &CommandDlg::OnZoom)
ON_BN_CLICKED_E(IDOK, &CommandDlg::OnApply)
ON_BN_CLICKED_E(1020, &CommandDlg::OnApply)
ON_COMMAND_E(1021, &CommandDlg::OnZoom)
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
    CommandTest() { m_pWindow->SubclassWindow(m_pWidget.get()); }
    template <typename Object>
    Object* add(const char* name)
    {
        auto* const pObject = new Object(m_pWidget.get());
        pObject->setObjectName(QLatin1String(name));
        return pObject;
    }
    std::unique_ptr<QDialog> m_pWidget{new QDialog};
    QPushButton* const m_pOk = add<QPushButton>("OK");
    QPushButton* const m_pApply = add<QPushButton>("apply");
    QAction* const m_pApplyAction = add<QAction>("apply");
    QAction* const m_pZoom = add<QAction>("zoom");
    std::unique_ptr<CommandDlg> m_pWindow{new CommandDlg};
};

TEST_F(CommandTest, ReachTheHandlers)
{
    m_pApply->click();
    m_pApplyAction->trigger(); // the button has the name too
    m_pZoom->trigger();
    m_pOk->click();
    EXPECT_EQ(m_pWindow->notes, "apply zoom apply ") << "the last one registered, not OnOK()";
    m_pWindow->Detach();
    m_pApply->click();
    m_pWindow->SubclassWindow(m_pWidget.get());
    m_pApply->click();
    EXPECT_EQ(m_pWindow->notes, "apply zoom apply apply ") << "connected once";
}

TEST_F(CommandTest, HandlersMayThrowAndDelete)
{
    m_pWindow->onApply = [] { AfxThrowMemoryException_E(); };
    withBox([this] { m_pApply->click(); }, closeBox);
    m_pWindow->onApply = [this] {
        const auto pWidget = std::move(m_pWidget); // what was captured goes with the window
        m_pWindow.reset();
    };
    m_pApply->click();
    EXPECT_FALSE(m_pWidget);
}

TEST_F(CommandTest, UpdatesRunAtIdleTimeOneAtATimeUntilTheyThrow)
{
    add<QAction>("first");
    int depth = 0, calls = 0;
    m_pWindow->onUpdatePick = [&] {
        EXPECT_EQ(++depth, 1);
        waitIdle([] { return true; });
        --depth;
        if (++calls == 2)
            AfxThrowMemoryException_E();
    };
    withBox([&] { EXPECT_TRUE(waitIdle([&] { return calls >= 2; })); }, closeBox);
    int rounds = 0;
    EXPECT_TRUE(waitIdle([&] { return ++rounds > 5; }));
    EXPECT_EQ(calls, 2) << "reported once";
}

// What menus and tool buttons of the window show may belong elsewhere.
TEST_F(CommandTest, WhatComesLaterAndBelongsToOthersIsFound)
{
    for (int round = 0; round < 2; ++round) { // the second after the first has gone
        QMenu menu, inner;
        menu.addMenu(&inner);
        QMenuBar bar(m_pWidget.get());
        bar.addMenu(&menu);
        QToolButton tool(m_pWidget.get());
        QAction first, second;
        first.setObjectName("first"_q);
        inner.addAction(&first);
        second.setObjectName("second"_q);
        tool.setDefaultAction(&second);
        m_pWindow->notes.clear();
        EXPECT_TRUE(waitIdle([&] {
            first.trigger();
            tool.click();
            return m_pWindow->notes.size() >= 10;
        }));
        EXPECT_EQ(m_pWindow->notes, "1023 1024 ");
    }
}

} // namespace
