#include "support/test.h"

#include <future>

namespace {

std::atomic<int> alive = 0;

struct Value : CNoTrackObject_E
{
    Value() { ++alive; }
    ~Value() override { --alive; }
    int number = 0;
};

int moduleA, moduleB;

TEST(ThreadSlots, NeverZeroAndTheTableGrows)
{
    CThreadSlotData_E slots;
    for (int i = 1; i <= 100; ++i)
        ASSERT_EQ(slots.AllocSlot(), i);
    for (const int freed : {40, 7, 40})
        slots.FreeSlot(freed);
    EXPECT_EQ(slots.AllocSlot(), 101) << "the rover goes first";
    for (int i = 102; i < 128; ++i)
        slots.AllocSlot();
    EXPECT_EQ(slots.AllocSlot(), 7) << "then the lowest free one";
    EXPECT_EQ(slots.AllocSlot(), 40);
    EXPECT_EQ(slots.AllocSlot(), 128);
}

TEST(ThreadSlots, NumbersThatAreNoSlotAreIgnored)
{
    CThreadSlotData_E slots;
    slots.AllocSlot();
    Value value;
    for (const int number : {0, -1, 2, 1 << 30}) {
        slots.SetValue(number, &value);
        slots.FreeSlot(number);
        EXPECT_EQ(slots.GetThreadValue(number), nullptr) << number;
    }
}

TEST(ThreadSlots, EachThreadHasItsValueAndFreeingDeletesAll)
{
    CThreadSlotData_E slots;
    const int first = slots.AllocSlot();
    auto* const mine = new Value;
    slots.SetValue(first, mine);
    std::thread([&] {
        EXPECT_EQ(slots.GetThreadValue(first), nullptr);
        slots.SetValue(first, new Value);
        EXPECT_NE(slots.GetThreadValue(first), mine);
    }).join();
    EXPECT_EQ(alive, 2) << "values stay when their thread ends";
    int last = 0;
    while (last < 70)
        last = slots.AllocSlot();
    EXPECT_EQ(slots.GetThreadValue(last), nullptr) << "beyond the thread's values so far";
    slots.SetValue(last, new Value);
    EXPECT_EQ(slots.GetThreadValue(first), mine) << "kept when the values move";
    slots.FreeSlot(first);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(slots.GetThreadValue(first), nullptr);
    slots.FreeSlot(last);
    EXPECT_EQ(alive, 0);
}

TEST(ThreadSlots, ValuesOfAModule)
{
    CThreadSlotData_E slots;
    const int ofA = slots.AllocSlot();
    slots.AssignInstance(&moduleA);
    const int ofB = slots.AllocSlot();
    slots.AssignInstance(&moduleB);
    const auto fill = [&] {
        slots.SetValue(ofA, new Value);
        slots.SetValue(ofB, new Value);
    };
    fill();
    std::promise<void> filled, emptied;
    std::thread other([&] {
        fill();
        filled.set_value();
        emptied.get_future().wait();
        // The record of this thread was emptied behind its back; it goes on as if new.
        EXPECT_EQ(slots.GetThreadValue(ofA), nullptr);
        fill();
        slots.DeleteValues(nullptr, FALSE);
        fill();
    });
    filled.get_future().wait();
    slots.DeleteValues(&moduleA, FALSE);
    EXPECT_EQ(alive, 3) << "the calling thread's only";
    EXPECT_NE(slots.GetThreadValue(ofB), nullptr) << "the first module stays assigned";
    slots.DeleteValues(&moduleA, TRUE);
    EXPECT_EQ(alive, 2);
    slots.DeleteValues(nullptr, TRUE);
    EXPECT_EQ(alive, 0);
    emptied.set_value();
    other.join();
    EXPECT_EQ(alive, 2);
}

struct Nested : CNoTrackObject_E
{
    static CThreadLocal_E<Value> s_other;
    Nested() { ++alive; }
    ~Nested() override
    {
        s_other->number = 1;
        --alive;
    }
};
CThreadLocal_E<Value> Nested::s_other;

TEST(ThreadLocal, MadeOnFirstUseInEachThread)
{
    {
        CThreadLocal_E<Value> local;
        EXPECT_EQ(local.GetDataNA(), nullptr);
        EXPECT_EQ(alive, 0) << "asking makes nothing";
        local->number = 5;
        EXPECT_EQ(local.GetData(), local.GetDataNA());
        EXPECT_EQ(local->number, 5);
        std::thread([&] {
            EXPECT_EQ(local.GetDataNA(), nullptr);
            EXPECT_EQ(local->number, 0);
        }).join();
        EXPECT_EQ(alive, 2);
        EXPECT_ANY_THROW(static_cast<CThreadLocalObject_E&>(local).GetData(nullptr));
    }
    EXPECT_EQ(alive, 0);
}

TEST(ThreadLocal, AValueMayUseOthersWhileItDies)
{
    {
        CThreadLocal_E<Nested> local;
        local.GetData();
    }
    EXPECT_EQ(Nested::s_other->number, 1);
    CThreadLocal_E<Nested> local;
    local.GetData();
    AfxTlsRelease_E();
    EXPECT_EQ(alive, 0) << "what dies last is deleted as well";
}

TEST(ThreadLocal, TheTableComesWithTheFirstUserAndGoesWithTheLast)
{
    AfxTlsRelease_E();
    ASSERT_EQ(_afxThreadData, nullptr);
    AfxInitLocalData_E(&moduleA);
    AfxTermLocalData_E(&moduleA, TRUE);
    CThreadLocal_E<Value> before, after;
    before->number = 1;
    ASSERT_NE(_afxThreadData, nullptr);
    AfxTlsAddRef_E();
    AfxTlsAddRef_E();
    AfxTlsRelease_E();
    EXPECT_NE(_afxThreadData, nullptr);
    AfxTlsRelease_E();
    EXPECT_EQ(_afxThreadData, nullptr);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(before.GetDataNA(), nullptr);
    // Intended: with the count at 0 already it stays there, and the table goes again.
    after->number = 2;
    AfxTlsRelease_E();
    EXPECT_EQ(_afxTlsRef, 0);
    EXPECT_EQ(_afxThreadData, nullptr);
    // A slot of the old table is none of the new one: the two do not share a value.
    after->number = 3;
    EXPECT_EQ(before->number, 0);
    AfxTermLocalData_E(nullptr, TRUE);
    EXPECT_EQ(alive, 0);
}

TEST(ThreadLocal, ManyThreadsAtOnce)
{
    AfxTlsRelease_E();
    CThreadLocal_E<Value> shared;
    std::atomic<int> waiting = 8;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&, i] {
            for (--waiting; waiting > 0;)
                std::this_thread::yield();
            // The first use of the table, of the object and of the thread's values, all at once.
            shared->number = i;
            for (int round = 0; round < 300; ++round) {
                CThreadLocal_E<Value> own;
                own->number = round;
                ASSERT_EQ(shared->number, i);
                ASSERT_EQ(own->number, round);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(alive, 8);
    AfxTlsRelease_E();
    EXPECT_EQ(alive, 0);
}

TEST(ProcessLocal, MadeOnceAndDeletedWithItsHolder)
{
    {
        CProcessLocal_E<Value> local;
        EXPECT_ANY_THROW(static_cast<CProcessLocalObject_E&>(local).GetData(nullptr));
        local->number = 9;
        std::thread([&] { EXPECT_EQ(local->number, 9); }).join();
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

} // namespace
