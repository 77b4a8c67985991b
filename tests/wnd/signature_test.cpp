// Every signature number: how a handler's arguments are taken from a message, and its result.
#include <VxMFCEmu/VxMFCEmu.h>

#include <gtest/gtest.h>

namespace {

QString text(WPARAM v) { return QString::number(v, 16); }
QString text(UINT v) { return QString::number(v, 16); }
QString text(LPARAM v) { return QString::number(v); }
QString text(int v) { return QString::number(v); }
QString text(QWidget* v) { return v ? v->objectName() : QStringLiteral("null"); }
QString text(CWnd_E* v) { return QStringLiteral("E:") + text(v ? v->GetSafeHwnd() : nullptr); }
QString text(CPoint_E v) { return QStringLiteral("(%1 %2)").arg(v.x).arg(v.y); }

class Recorder : public CWnd_E
{
public:
    template <typename Result, typename... Args>
    Result Take(Args... args)
    {
        m_calls << QStringList({text(args)...}).join(QLatin1Char(' '));
        if constexpr (!std::is_void_v<Result>)
            return static_cast<Result>(m_nGive);
    }
    QStringList m_calls;
    LRESULT m_nGive = 0;
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

constexpr WPARAM kW = 0xFFFFFFFF8001FFFE;
constexpr LPARAM kL = static_cast<LPARAM>(0xFFFFFFFF8002FFFD);
constexpr WPARAM kWindow = 1; // stands for the widget's address
constexpr LRESULT kUnhandled = 4711;

struct Row
{
    int line;
    std::vector<unsigned long> signatures;
    AFX_PMSG_E pmf;
    WPARAM wParam;
    LPARAM lParam;
    const char* args;
    LRESULT give;
    LRESULT expected;
};

const std::vector<Row>& rows()
{
    using Q = QWidget*;
    using P = CPoint_E;
    constexpr LRESULT big = 0x123456789ABCDEF0;
    static const std::vector<Row> table = {
        // clang-format off
        {__LINE__, {2, 3, 28, 4}, Taker<int(WPARAM)>::pmf(), kW, kL, "ffffffff8001fffe", -5, -5},
        {__LINE__, {5, 12}, Taker<int(Q, UINT, UINT)>::pmf(), kWindow, kL, "w fffd 8002", -5, -5},
        {__LINE__, {6}, Taker<int(Q, LPARAM)>::pmf(), kWindow, kL, "w -2147287043", 7, 7},
        {__LINE__, {7, 13, 87}, Taker<int(LPARAM)>::pmf(), kW, kL, "-2147287043", -1, -1},
        {__LINE__, {10}, Taker<int(UINT, Q, UINT)>::pmf(), kW, kWindow, "fffe w 8001", -2, -2},
        {__LINE__, {11}, Taker<int(UINT, UINT)>::pmf(), kW, kL, "fffe 8001", 3, 3},
        {__LINE__, {14, 92}, Taker<LRESULT(WPARAM, LPARAM)>::pmf(), kW, kL, "ffffffff8001fffe -2147287043", big, big},
        {__LINE__, {16, 46, 51, 77, 84}, Taker<void(UINT, LPARAM)>::pmf(), kW, kL, "8001fffe -2147287043", 9, 0},
        {__LINE__, {17, 21}, Taker<void(WPARAM)>::pmf(), kW, kL, "ffffffff8001fffe", 9, 0},
        {__LINE__, {18, 31}, Taker<void(WPARAM, LPARAM)>::pmf(), kW, kL, "ffffffff8001fffe -2147287043", 9, 0},
        {__LINE__, {19}, Taker<void()>::pmf(), kW, kL, "", 9, 0},
        {__LINE__, {20}, Taker<void(UINT)>::pmf(), kW, kL, "8001fffe", 9, 0},
        {__LINE__, {22}, Taker<void(UINT, UINT)>::pmf(), kW, kL, "8001fffe 8002fffd", 9, 0},
        {__LINE__, {23}, Taker<void(UINT, UINT)>::pmf(), kW, kL, "fffe 8001", 9, 0},
        {__LINE__, {24}, Taker<void(UINT, UINT)>::pmf(), kW, kL, "fffd 8002", 9, 0},
        {__LINE__, {25, 26}, Taker<void(UINT, UINT, UINT)>::pmf(), kW, kL, "8001fffe fffd 8002", 9, 0},
        {__LINE__, {27}, Taker<void(UINT, Q)>::pmf(), kW, kWindow, "8001fffe w", 9, 0},
        {__LINE__, {29}, Taker<UINT(UINT)>::pmf(), kW, kL, "8001fffe", 0xFFFFFFFF, 0xFFFFFFFF},
        {__LINE__, {30}, Taker<int()>::pmf(), kW, kL, "", -4, -4},
        {__LINE__, {36}, Taker<void(Q)>::pmf(), kWindow, kL, "w", 9, 0},
        {__LINE__, {37}, Taker<void(Q)>::pmf(), kW, kWindow, "w", 9, 0},
        {__LINE__, {38}, Taker<void(Q, UINT, UINT)>::pmf(), kWindow, kL, "w fffd 8002", 9, 0},
        {__LINE__, {39}, Taker<void(Q, P)>::pmf(), kWindow, kL, "w (-3 -32766)", 9, 0},
        {__LINE__, {40}, Taker<void(Q, LPARAM)>::pmf(), kWindow, kL, "w -2147287043", 9, 0},
        {__LINE__, {41, 89}, Taker<LRESULT()>::pmf(), kW, kL, "", big, big},
        {__LINE__, {42}, Taker<void(UINT, Q, UINT)>::pmf(), kW, kWindow, "fffe w 8001", 9, 0},
        {__LINE__, {43}, Taker<void(int, int, Q)>::pmf(), kW, kWindow, "-2 -32767 w", 9, 0},
        {__LINE__, {44}, Taker<void(int, int)>::pmf(), kW, kL, "-2 -32767", 9, 0},
        {__LINE__, {45, 52}, Taker<void(LPARAM)>::pmf(), kW, kL, "-2147287043", 9, 0},
        {__LINE__, {47, 55}, Taker<void(UINT, LPARAM)>::pmf(), kW, kL, "8001fffe -2147287043", 9, 1},
        {__LINE__, {48}, Taker<int(UINT, LPARAM)>::pmf(), kW, kL, "8001fffe -2147287043", -6, -6},
        {__LINE__, {49}, Taker<UINT(P)>::pmf(), kW, kL, "(-3 -32766)", 0xFFFFFFFE, 0xFFFFFFFE},
        {__LINE__, {50}, Taker<UINT()>::pmf(), kW, kL, "", 0xFFFFFFFE, 0xFFFFFFFE},
        {__LINE__, {53}, Taker<void(UINT, UINT, LPARAM)>::pmf(), kW, kL, "fffe 8001 -2147287043", 9, 0},
        {__LINE__, {54, 95}, Taker<void(UINT, P)>::pmf(), kW, kL, "8001fffe (-3 -32766)", 9, 0},
        {__LINE__, {56}, Taker<int(UINT, int, P)>::pmf(), kW, kL, "fffe -32767 (65533 32770)", 2, 2},
        {__LINE__, {56}, Taker<int(UINT, int, P)>::pmf(), kW, kL, "fffe -32767 (65533 32770)", 0, kUnhandled},
        {__LINE__, {57}, Taker<void(UINT, int, P)>::pmf(), kW, kL, "fffe -32767 (65533 32770)", 9, 0},
        {__LINE__, {70}, Taker<int()>::pmf(), kW, kL, "", 0, 0},
        {__LINE__, {70}, Taker<int()>::pmf(), kW, kL, "", 2, kUnhandled},
        {__LINE__, {71}, Taker<LRESULT(P)>::pmf(), kW, kL, "(-3 -32766)", big, big},
        {__LINE__, {72}, Taker<UINT(Q, UINT)>::pmf(), kWindow, kL, "w 8002fffd", 0xFFFFFFFE, 0xFFFFFFFE},
        {__LINE__, {75}, Taker<UINT(LPARAM)>::pmf(), kW, kL, "-2147287043", 0xFFFFFFFE, 0xFFFFFFFE},
        {__LINE__, {78}, Taker<void(Q, UINT, UINT, UINT)>::pmf(), kWindow, kL, "w 2 8000 fffd", 9, 1},
        {__LINE__, {79}, Taker<void(UINT, LPARAM)>::pmf(), kW, kL, "fe -2147287043", 9, 0},
        {__LINE__, {80}, Taker<UINT(UINT, UINT)>::pmf(), kW, kL, "8001fffe 8002fffd", 0xFFFFFFFE, 0xFFFFFFFE},
        {__LINE__, {81}, Taker<void(UINT, UINT, P)>::pmf(), kW, kL, "fffe 8001 (65533 32770)", 9, 1},
        {__LINE__, {82}, Taker<void(int, UINT, P)>::pmf(), kW, kL, "-2 8001 (65533 32770)", 9, 1},
        {__LINE__, {83}, Taker<void(UINT, UINT)>::pmf(), kW, kL, "8001fffe 8002fffd", 9, 1},
        {__LINE__, {85}, Taker<void(UINT, LPARAM)>::pmf(), kW, kL, "fffe -2147287043", 9, 0},
        {__LINE__, {90}, Taker<int(UINT, LPARAM)>::pmf(), kW, kL, "8001fffe -2147287043", -8, -8},
        {__LINE__, {91}, Taker<int(UINT, UINT)>::pmf(), kW, kL, "8002 fffd", -8, -8},
        {__LINE__, {93}, Taker<void(Q, UINT)>::pmf(), kWindow, kL, "w 8002fffd", 9, 0},
        {__LINE__, {94}, Taker<UINT(UINT, LPARAM)>::pmf(), kW, kL, "8001fffe -2147287043", 0xFFFFFFFE, 0xFFFFFFFE},
        // clang-format on
    };
    return table;
}

class SignatureTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_window.AttachDefault(static_cast<QWidget*>(nullptr));
        m_window.GetSafeHwnd()->setObjectName(QStringLiteral("w"));
    }
    WPARAM address() const { return reinterpret_cast<WPARAM>(m_window.GetSafeHwnd()); }
    bool dispatch(WPARAM wParam, LPARAM lParam, LRESULT& result)
    {
        return m_window.OnWndMsg(WM_APP, wParam == kWindow ? address() : wParam,
                                 lParam == kWindow ? static_cast<LPARAM>(address()) : lParam,
                                 &result);
    }

    Recorder m_window;
};

TEST_F(SignatureTest, UnpacksArgumentsAndPacksResults)
{
    for (const Row& row : rows()) {
        for (const unsigned long signature : row.signatures) {
            SCOPED_TRACE(testing::Message()
                         << "row of line " << row.line << ", signature " << signature);
            m_window.AddMsgMapEntry(WM_APP, signature, row.pmf, nullptr);
            m_window.m_calls.clear();
            m_window.m_nGive = row.give;
            LRESULT result = kUnhandled;
            EXPECT_EQ(dispatch(row.wParam, row.lParam, result), row.expected != kUnhandled);
            EXPECT_EQ(result, row.expected);
            EXPECT_EQ(m_window.m_calls, QStringList(QLatin1String(row.args)));
        }
    }
}

TEST_F(SignatureTest, NumbersWithoutARowHandleTheMessageAndCallNothing)
{
    std::set<unsigned long> known;
    for (const Row& row : rows())
        known.insert(row.signatures.begin(), row.signatures.end());
    for (unsigned long signature = 0; signature < 200; ++signature) {
        if (known.count(signature))
            continue;
        m_window.AddMsgMapEntry(WM_APP, signature, Taker<void()>::pmf(), nullptr);
        LRESULT result = kUnhandled;
        EXPECT_TRUE(dispatch(kW, kL, result)) << signature;
        EXPECT_EQ(result, 0) << signature;
    }
    EXPECT_TRUE(m_window.m_calls.isEmpty());
}

TEST_F(SignatureTest, TheFormWithWindowObjectsIsCalledLastAndItsResultCounts)
{
    m_window.AddMsgMapEntry(WM_APP, 5, Taker<int(QWidget*, UINT, UINT)>::pmf(),
                            Taker<int(CWnd_E*, UINT, UINT)>::pmf());
    m_window.m_nGive = -3;
    LRESULT result = 0;
    EXPECT_TRUE(dispatch(kWindow, kL, result));
    EXPECT_EQ(result, -3);
    EXPECT_EQ(m_window.m_calls,
              QStringList({QStringLiteral("w fffd 8002"), QStringLiteral("E:w fffd 8002")}));
}

TEST_F(SignatureTest, ANullResultPointerIsLeftAlone)
{
    m_window.AddMsgMapEntry(WM_APP, 30, Taker<int()>::pmf(), nullptr);
    EXPECT_TRUE(m_window.OnWndMsg(WM_APP, 0, 0, nullptr));
    EXPECT_FALSE(m_window.OnWndMsg(WM_APP + 1, 0, 0, nullptr));
}

TEST_F(SignatureTest, AWindowThatIsGoneIsNullForTheFormWithWindowObjects)
{
    auto widget = std::make_unique<QWidget>();
    const auto address = reinterpret_cast<WPARAM>(widget.get());
    widget.reset();
    m_window.AddMsgMapEntry(WM_APP, 36, nullptr, Taker<void(CWnd_E*)>::pmf());
    LRESULT result = kUnhandled;
    EXPECT_TRUE(dispatch(address, 0, result));
    EXPECT_EQ(m_window.m_calls, QStringList(QStringLiteral("E:null")));
}

} // namespace
