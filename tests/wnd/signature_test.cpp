// Every signature number: how a handler's arguments are taken from a message, and its result.
#include "argtext.h"

namespace {

using namespace vxtest;

struct Recorder : CWnd_E
{
    template <typename Result, typename... Args>
    Result Take(Args... args)
    {
        m_calls << callText("", GetSafeHwnd(), args...);
        return given<Result>(m_nGive);
    }
    QStringList m_calls;
    LRESULT m_nGive = kGiven;
};

template <typename Result, typename... Args>
AFX_PMSG_E taker()
{
    return vx::detail::eraseHandler<Recorder, Result(Args...)>(&Recorder::Take<Result, Args...>);
}

constexpr WPARAM kWindow = 1; // stands for the widget's address
constexpr LRESULT kUnhandled = 4711;

struct Row
{
    std::vector<unsigned long> signatures;
    AFX_PMSG_E pmf;
    const char* args;
    LRESULT result;
    LRESULT give = kGiven;
    WPARAM wParam = kW;
    LPARAM lParam = kL;
};

struct SignatureTest : testing::Test
{
    SignatureTest() { m_window.AttachDefault(static_cast<QWidget*>(nullptr)); }
    bool dispatch(WPARAM wParam, LPARAM lParam, LRESULT& result)
    {
        const auto address = reinterpret_cast<LPARAM>(m_window.GetSafeHwnd());
        return m_window.OnWndMsg(WM_APP, wParam == kWindow ? static_cast<WPARAM>(address) : wParam,
                                 lParam == kWindow ? address : lParam, &result);
    }
    std::string take() { return std::exchange(m_window.m_calls, {}).join(u',').toStdString(); }

    Recorder m_window;
};

TEST_F(SignatureTest, KnownNumbersUnpackArgumentsAndPackResultsAndOthersCallNothing)
{
    // The numbers that no ON_WM_ macro has; the test of the macros covers the others.
    const Row rows[] = {
        // clang-format off
        {{3, 4}, taker<int, WPARAM>(), "ffffffff8001fffe", kInt},
        {{11}, taker<int, UINT, UINT>(), "fffe 8001", kInt},
        {{87}, taker<int, LPARAM>(), "ffffffff8002fffd", kInt},
        {{14, 92}, taker<LRESULT, WPARAM, LPARAM>(), "ffffffff8001fffe ffffffff8002fffd", kGiven},
        {{16, 77}, taker<void, UINT, LPARAM>(), "8001fffe ffffffff8002fffd", 0},
        {{21}, taker<void, WPARAM>(), "ffffffff8001fffe", 0},
        {{31}, taker<void, WPARAM, LPARAM>(), "ffffffff8001fffe ffffffff8002fffd", 0},
        {{27}, taker<void, UINT, QWidget*>(), "8001fffe w", 0, kGiven, kW, kWindow},
        {{29}, taker<UINT, UINT>(), "8001fffe", kUint},
        {{44}, taker<void, int, int>(), "fffffffe ffff8001", 0},
        {{47, 55}, taker<void, UINT, LPARAM>(), "8001fffe ffffffff8002fffd", 1},
        {{49}, taker<UINT, CPoint_E>(), "(-3 -32766)", kUint},
        {{52}, taker<void, LPARAM>(), "ffffffff8002fffd", 0},
        {{56}, taker<int, UINT, int, CPoint_E>(), "fffe ffff8001 (65533 32770)", kUnhandled, 0},
        {{70}, taker<int>(), "", kUnhandled, 2},
        {{75}, taker<UINT, LPARAM>(), "ffffffff8002fffd", kUint},
        {{80}, taker<UINT, UINT, UINT>(), "8001fffe 8002fffd", kUint},
        {{83}, taker<void, UINT, UINT>(), "8001fffe 8002fffd", 1},
        {{85}, taker<void, UINT, LPARAM>(), "fffe ffffffff8002fffd", 0},
        {{90}, taker<int, UINT, LPARAM>(), "8001fffe ffffffff8002fffd", kInt},
        {{91}, taker<int, UINT, UINT>(), "8002 fffd", kInt},
        {{93}, taker<void, QWidget*, UINT>(), "w 8002fffd", 0, kGiven, kWindow},
        {{95}, taker<void, UINT, CPoint_E>(), "8001fffe (-3 -32766)", 0},
        // clang-format on
    };
    std::set<unsigned long> known = {2,  5,  6,  7,  10, 12, 13, 17, 18, 19, 20, 22, 23, 24, 25,
                                     26, 28, 30, 36, 37, 38, 39, 40, 41, 42, 43, 45, 46, 48, 50,
                                     51, 53, 54, 57, 71, 72, 78, 79, 81, 82, 84, 89, 94};
    for (const Row& row : rows) {
        for (const unsigned long signature : row.signatures) {
            SCOPED_TRACE(signature);
            known.insert(signature);
            m_window.AddMsgMapEntry(WM_APP, signature, row.pmf, nullptr);
            m_window.m_nGive = row.give;
            LRESULT result = kUnhandled;
            EXPECT_EQ(dispatch(row.wParam, row.lParam, result), row.result != kUnhandled);
            EXPECT_TRUE(result == row.result && m_window.m_calls.size() == 1);
            EXPECT_EQ(take(), row.args);
        }
    }
    for (unsigned long signature = 0; signature < 200; ++signature) {
        m_window.AddMsgMapEntry(WM_APP, signature, taker<void>(), nullptr);
        LRESULT result = kUnhandled;
        EXPECT_TRUE(known.count(signature) || (dispatch(kW, kL, result) && result == 0))
            << signature;
    }
    EXPECT_TRUE(m_window.m_calls.isEmpty());
}

TEST_F(SignatureTest, TheFormWithWindowObjectsIsCalledLastAndItsResultCounts)
{
    m_window.AddMsgMapEntry(WM_APP, 5, taker<int, QWidget*, UINT, UINT>(),
                            taker<int, CWnd_E*, UINT, UINT>());
    LRESULT result = 0;
    EXPECT_TRUE(dispatch(kWindow, kL, result) && result == kInt);
    EXPECT_EQ(take(), "w fffd 8002,E:w fffd 8002");
    m_window.AddMsgMapEntry(WM_APP, 36, nullptr, taker<void, CWnd_E*>());
    auto dying = std::make_unique<QWidget>();
    const auto gone = reinterpret_cast<WPARAM>(dying.get());
    dying.reset();
    EXPECT_TRUE(dispatch(gone, 0, result));
    EXPECT_EQ(take(), "E:") << "a window that is gone is null";
    // A null result pointer is left alone.
    EXPECT_TRUE(m_window.OnWndMsg(WM_APP, 0, 0, nullptr));
    EXPECT_FALSE(m_window.OnWndMsg(WM_APP + 1, 0, 0, nullptr));
}

} // namespace
