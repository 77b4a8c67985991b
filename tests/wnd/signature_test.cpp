// Signature numbers: how a handler's arguments are taken from a message, and its result.
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

constexpr LRESULT kUnhandled = 4711;

struct SignatureTest : testing::Test
{
    SignatureTest() { m_window.AttachDefault(static_cast<QWidget*>(nullptr)); }
    /// What a message gives whose entry has this number and these handlers.
    LRESULT send(unsigned long signature, AFX_PMSG_E pmf, AFX_PMSG_E pmfE = nullptr,
                 const QWidget* wParam = nullptr)
    {
        m_window.AddMsgMapEntry(WM_APP, signature, pmf, pmfE);
        LRESULT result = 0;
        const WPARAM w = wParam ? reinterpret_cast<WPARAM>(wParam) : kW;
        return m_window.OnWndMsg(WM_APP, w, kL, &result) ? result : kUnhandled;
    }
    std::string take() { return std::exchange(m_window.m_calls, {}).join(u',').toStdString(); }

    Recorder m_window;
};

// Of the numbers that no ON_WM_ macro has; the test of the macros covers the others.
TEST_F(SignatureTest, KnownNumbersUnpackArgumentsAndPackResultsAndOthersCallNothing)
{
    const Row<unsigned long, AFX_PMSG_E, const char*, LRESULT> rows[] = {
        {3, taker<int, WPARAM>(), "ffffffff8001fffe", kInt},
        {14, taker<LRESULT, WPARAM, LPARAM>(), "ffffffff8001fffe ffffffff8002fffd", kGiven},
        {29, taker<UINT, UINT>(), "8001fffe", kUint},
        {44, taker<void, int, int>(), "fffffffe ffff8001", 0},
        {47, taker<void, UINT, LPARAM>(), "8001fffe ffffffff8002fffd", 1},
        {49, taker<UINT, CPoint_E>(), "(-3 -32766)", kUint},
        {83, taker<void, UINT, UINT>(), "8001fffe 8002fffd", 1},
        {91, taker<int, UINT, UINT>(), "8002 fffd", kInt}};
    for (const auto& [signature, pmf, args, result] : rows) {
        EXPECT_EQ(send(signature, pmf), result) << signature;
        EXPECT_EQ(take(), args);
    }
    // Intended: these two are left to the widget for one of their results.
    EXPECT_EQ(send(70, taker<int>()), kUnhandled);
    m_window.m_nGive = 0;
    EXPECT_EQ(send(70, taker<int>()), 0);
    EXPECT_EQ(send(56, taker<int, UINT, int, CPoint_E>()), kUnhandled);
    take();
    for (const unsigned long signature : {0UL, 1UL, 86UL, 96UL, ~0UL})
        EXPECT_EQ(send(signature, taker<void>()), 0) << signature;
    EXPECT_EQ(take(), "");
}

TEST_F(SignatureTest, TheFormWithWindowObjectsIsCalledLastAndItsResultCounts)
{
    EXPECT_EQ(send(5, taker<int, QWidget*, UINT, UINT>(), taker<int, CWnd_E*, UINT, UINT>(),
                   m_window.GetSafeHwnd()),
              kInt);
    EXPECT_EQ(take(), "w fffd 8002,E:w fffd 8002");
    auto dying = std::make_unique<QWidget>();
    const QWidget* const gone = dying.get();
    dying.reset();
    send(36, nullptr, taker<void, CWnd_E*>(), gone);
    EXPECT_EQ(take(), "E:") << "a window that is gone is null";
    EXPECT_TRUE(m_window.OnWndMsg(WM_APP, 0, 0, nullptr)) << "a null result is left alone";
}

} // namespace
