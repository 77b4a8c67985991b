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

template <typename>
struct Taker;
template <typename Result, typename... Args>
struct Taker<Result(Args...)>
{
    static AFX_PMSG_E pmf()
    {
        return vx::detail::eraseHandler<Recorder, Result(Args...)>(
            &Recorder::Take<Result, Args...>);
    }
};

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
        {{3, 4}, Taker<int(WPARAM)>::pmf(), "ffffffff8001fffe", kInt},
        {{11}, Taker<int(UINT, UINT)>::pmf(), "fffe 8001", kInt},
        {{87}, Taker<int(LPARAM)>::pmf(), "ffffffff8002fffd", kInt},
        {{14, 92}, Taker<LRESULT(WPARAM, LPARAM)>::pmf(), "ffffffff8001fffe ffffffff8002fffd", kGiven},
        {{16, 77}, Taker<void(UINT, LPARAM)>::pmf(), "8001fffe ffffffff8002fffd", 0},
        {{21}, Taker<void(WPARAM)>::pmf(), "ffffffff8001fffe", 0},
        {{31}, Taker<void(WPARAM, LPARAM)>::pmf(), "ffffffff8001fffe ffffffff8002fffd", 0},
        {{27}, Taker<void(UINT, QWidget*)>::pmf(), "8001fffe w", 0, kGiven, kW, kWindow},
        {{29}, Taker<UINT(UINT)>::pmf(), "8001fffe", kUint},
        {{44}, Taker<void(int, int)>::pmf(), "fffffffe ffff8001", 0},
        {{47, 55}, Taker<void(UINT, LPARAM)>::pmf(), "8001fffe ffffffff8002fffd", 1},
        {{49}, Taker<UINT(CPoint_E)>::pmf(), "(-3 -32766)", kUint},
        {{52}, Taker<void(LPARAM)>::pmf(), "ffffffff8002fffd", 0},
        {{56}, Taker<int(UINT, int, CPoint_E)>::pmf(), "fffe ffff8001 (65533 32770)", kUnhandled, 0},
        {{70}, Taker<int()>::pmf(), "", 0, 0},
        {{70}, Taker<int()>::pmf(), "", kUnhandled, 2},
        {{75}, Taker<UINT(LPARAM)>::pmf(), "ffffffff8002fffd", kUint},
        {{80}, Taker<UINT(UINT, UINT)>::pmf(), "8001fffe 8002fffd", kUint},
        {{83}, Taker<void(UINT, UINT)>::pmf(), "8001fffe 8002fffd", 1},
        {{85}, Taker<void(UINT, LPARAM)>::pmf(), "fffe ffffffff8002fffd", 0},
        {{90}, Taker<int(UINT, LPARAM)>::pmf(), "8001fffe ffffffff8002fffd", kInt},
        {{91}, Taker<int(UINT, UINT)>::pmf(), "8002 fffd", kInt},
        {{93}, Taker<void(QWidget*, UINT)>::pmf(), "w 8002fffd", 0, kGiven, kWindow},
        {{95}, Taker<void(UINT, CPoint_E)>::pmf(), "8001fffe (-3 -32766)", 0},
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
            EXPECT_EQ(result, row.result);
            EXPECT_EQ(m_window.m_calls.size(), 1);
            EXPECT_EQ(take(), row.args);
        }
    }
    for (unsigned long signature = 0; signature < 200; ++signature) {
        if (known.count(signature) != 0)
            continue;
        m_window.AddMsgMapEntry(WM_APP, signature, Taker<void()>::pmf(), nullptr);
        LRESULT result = kUnhandled;
        EXPECT_TRUE(dispatch(kW, kL, result) && result == 0) << signature;
    }
    EXPECT_TRUE(m_window.m_calls.isEmpty());
}

TEST_F(SignatureTest, TheFormWithWindowObjectsIsCalledLastAndItsResultCounts)
{
    m_window.AddMsgMapEntry(WM_APP, 5, Taker<int(QWidget*, UINT, UINT)>::pmf(),
                            Taker<int(CWnd_E*, UINT, UINT)>::pmf());
    LRESULT result = 0;
    EXPECT_TRUE(dispatch(kWindow, kL, result));
    EXPECT_EQ(result, kInt);
    EXPECT_EQ(take(), "w fffd 8002,E:w fffd 8002");
    m_window.AddMsgMapEntry(WM_APP, 36, nullptr, Taker<void(CWnd_E*)>::pmf());
    const auto gone = reinterpret_cast<WPARAM>(std::make_unique<QWidget>().get());
    EXPECT_TRUE(dispatch(gone, 0, result));
    EXPECT_EQ(take(), "E:") << "a window that is gone is null";
    // A null result pointer is left alone.
    EXPECT_TRUE(m_window.OnWndMsg(WM_APP, 0, 0, nullptr));
    EXPECT_FALSE(m_window.OnWndMsg(WM_APP + 1, 0, 0, nullptr));
}

} // namespace
