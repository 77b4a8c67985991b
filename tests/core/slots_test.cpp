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
    for (int i = 1; i <= 40; ++i)
        ASSERT_EQ(slots.AllocSlot(), i);
    slots.FreeSlot(7);
    for (int i = 41; i < 64; ++i)
        ASSERT_EQ(slots.AllocSlot(), i) << "the rover goes first";
    for (const int next : {7, 64}) // then the lowest free one
        EXPECT_EQ(slots.AllocSlot(), next);
    Value value;
    for (const int none : {0, -1, 65, 1 << 30}) {
        slots.SetValue(none, &value);
        slots.FreeSlot(none);
        EXPECT_EQ(slots.GetThreadValue(none), nullptr) << none;
    }
}

TEST(ThreadSlots, EachThreadHasItsValuesAndAModuleItsSlots)
{
    CThreadSlotData_E slots;
    const int ofA = slots.AllocSlot();
    slots.AssignInstance(&moduleA);
    const int ofB = slots.AllocSlot();
    slots.AssignInstance(&moduleB);
    const auto fill = [&] {
        EXPECT_EQ(slots.GetThreadValue(ofA), nullptr);
        slots.SetValue(ofA, new Value);
        slots.SetValue(ofB, new Value);
    };
    fill();
    std::promise<void> filled, emptied;
    std::thread other([&] {
        fill();
        filled.set_value();
        emptied.get_future().wait();
        fill(); // the record of this thread was emptied behind its back; it goes on as if new
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
    EXPECT_EQ(alive, 2) << "values stay when their thread ends";
    fill();
    slots.FreeSlot(ofA);
    EXPECT_EQ(alive, 2) << "freeing deletes those of all threads";
    slots.FreeSlot(ofB);
    EXPECT_EQ(alive, 0);
}

struct Nested : CNoTrackObject_E
{
    static CThreadLocal_E<Value> s_other;
    ~Nested() override { s_other->number = 1; }
};
CThreadLocal_E<Value> Nested::s_other;

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
    EXPECT_TRUE(!_afxThreadData && alive == 0 && !before.GetDataNA());
    // Intended: with the count at 0 already it stays there, and the table goes again.
    after->number = 2;
    AfxTlsRelease_E();
    EXPECT_TRUE(_afxTlsRef == 0 && !_afxThreadData);
    // A slot of the old table is none of the new one: the two do not share a value.
    after->number = 3;
    EXPECT_EQ(before->number, 0);
    AfxTermLocalData_E(nullptr, TRUE);
    EXPECT_EQ(alive, 0);
}

TEST(ThreadLocal, MadeOnFirstUseInEachOfManyThreads)
{
    AfxTlsRelease_E();
    {
        CThreadLocal_E<Value> shared;
        CProcessLocal_E<Value> common;
        EXPECT_ANY_THROW(static_cast<CThreadLocalObject_E&>(shared).GetData(nullptr));
        EXPECT_ANY_THROW(static_cast<CProcessLocalObject_E&>(common).GetData(nullptr));
        common->number = 5;
        std::atomic<int> waiting = 8;
        inThreads(8, [&](int i) {
            for (--waiting; waiting > 0;)
                std::this_thread::yield();
            // The first use of the table, of the object and of the thread's values, all at once.
            EXPECT_EQ(shared.GetDataNA(), nullptr) << "asking makes nothing";
            EXPECT_EQ(std::exchange(shared->number, i), 0);
            for (int round = 0; round < 300; ++round) {
                CThreadLocal_E<Value> own;
                own->number = round;
                ASSERT_EQ(shared.GetDataNA()->number, i);
                ASSERT_TRUE(own->number == round && common->number == 5);
            }
        });
        EXPECT_EQ(alive, 9);
    }
    EXPECT_EQ(alive, 0) << "deleted with their holders";
}

} // namespace
