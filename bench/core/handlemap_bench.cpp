// A temporary object of a handle map, beside a plain object on the heap.
#include <VxMFCEmu/core.h>

#include <QtCore/QObject>

#include <benchmark/benchmark.h>

#include <cstddef>

namespace {

class Handled : public CObject_E
{
public:
    void* m_handle = nullptr;
};

void TemporaryObject(benchmark::State& state)
{
    using Traits = ConstructDestruct_E<Handled>;
    // Where the handle stands, which offsetof does not tell for a class with virtual functions.
    Handled probe;
    const auto offset = static_cast<std::size_t>(reinterpret_cast<char*>(&probe.m_handle) -
                                                 reinterpret_cast<char*>(&probe));
    CHandleMap_E map(RUNTIME_CLASS_E(CObject_E), &Traits::Construct, &Traits::Destruct, offset, 1,
                     sizeof(Handled));
    int target = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(map.FromHandle(&target));
        map.DeleteTemp();
    }
    if (static_cast<Handled*>(map.FromHandle(&target))->m_handle != &target)
        state.SkipWithError("the object does not have its handle");
}
BENCHMARK(TemporaryObject);

void TemporaryObject_raw(benchmark::State& state)
{
    for (auto _ : state) {
        auto* const object = new QObject;
        benchmark::DoNotOptimize(object);
        delete object;
    }
}
BENCHMARK(TemporaryObject_raw);

} // namespace
