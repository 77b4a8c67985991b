// Arrays, lists and maps beside std::vector, std::list and std::unordered_map.
#include <VxMFCEmu/coll.h>

#include <benchmark/benchmark.h>

#include <list>
#include <numeric>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

constexpr int kCount = 10000;
constexpr std::int64_t kSum = std::int64_t{kCount} * (kCount - 1) / 2;

void check(benchmark::State& state, bool good)
{
    if (!good)
        state.SkipWithError("the content is not what was put in");
}

template <typename Array, typename Add>
void append(benchmark::State& state, const Add& add)
{
    std::int64_t last = 0;
    for (auto _ : state) {
        Array array;
        for (int i = 0; i < kCount; ++i)
            add(array, i);
        benchmark::DoNotOptimize(&array[0]);
        last = array[kCount - 1];
    }
    check(state, last == kCount - 1);
}
void ArrayAppend(benchmark::State& state)
{
    append<CArray_E<int, int>>(state, [](auto& array, int i) { array.Add(i); });
}
void ArrayAppend_raw(benchmark::State& state)
{
    append<std::vector<int>>(state, [](auto& array, int i) { array.push_back(i); });
}
BENCHMARK(ArrayAppend);
BENCHMARK(ArrayAppend_raw);

/// Reads the elements in an order that no compiler foresees.
template <typename Index, typename Array>
void sumUp(benchmark::State& state, const Array& array)
{
    std::vector<Index> order(kCount);
    for (int i = 0; i < kCount; ++i)
        order[static_cast<std::size_t>(i)] = static_cast<Index>(i * 7919 % kCount);
    std::int64_t sum = 0;
    for (auto _ : state) {
        sum = 0;
        for (const Index i : order)
            sum += array[i];
        benchmark::DoNotOptimize(sum);
    }
    check(state, sum == kSum);
}
void ArrayIndex(benchmark::State& state)
{
    CArray_E<int, int> array;
    for (int i = 0; i < kCount; ++i)
        array.Add(i);
    sumUp<INT_PTR>(state, array);
}
void ArrayIndex_raw(benchmark::State& state)
{
    std::vector<int> array(kCount);
    std::iota(array.begin(), array.end(), 0);
    sumUp<std::size_t>(state, array);
}
BENCHMARK(ArrayIndex);
BENCHMARK(ArrayIndex_raw);

void ListAdd(benchmark::State& state)
{
    for (auto _ : state) {
        CList_E<int, int> list;
        for (int i = 0; i < kCount; ++i)
            list.AddTail(i);
        check(state, list.GetTail() == kCount - 1);
    }
}
void ListAdd_raw(benchmark::State& state)
{
    for (auto _ : state) {
        std::list<int> list;
        for (int i = 0; i < kCount; ++i)
            list.push_back(i);
        check(state, list.back() == kCount - 1);
    }
}
BENCHMARK(ListAdd);
BENCHMARK(ListAdd_raw);

void ListWalk(benchmark::State& state)
{
    CList_E<int, int> list;
    for (int i = 0; i < kCount; ++i)
        list.AddTail(i);
    std::int64_t sum = 0;
    for (auto _ : state) {
        sum = 0;
        for (POSITION position = list.GetHeadPosition(); position;)
            sum += list.GetNext(position);
        benchmark::DoNotOptimize(sum);
    }
    check(state, sum == kSum);
}
void ListWalk_raw(benchmark::State& state)
{
    std::list<int> list;
    for (int i = 0; i < kCount; ++i)
        list.push_back(i);
    std::int64_t sum = 0;
    for (auto _ : state) {
        sum = 0;
        for (const int value : list)
            sum += value;
        benchmark::DoNotOptimize(sum);
    }
    check(state, sum == kSum);
}
BENCHMARK(ListWalk);
BENCHMARK(ListWalk_raw);

// Each second element is removed by its position while walking, and put back at the end.
void ListRemove(benchmark::State& state)
{
    CList_E<int, int> list;
    for (int i = 0; i < kCount; ++i)
        list.AddTail(i);
    for (auto _ : state) {
        POSITION position = list.GetHeadPosition();
        for (int i = 0; i < kCount / 2; ++i) {
            list.GetNext(position);
            const POSITION here = position;
            list.AddTail(list.GetNext(position));
            list.RemoveAt(here);
        }
    }
    check(state, list.GetCount() == kCount);
}
void ListRemove_raw(benchmark::State& state)
{
    std::list<int> list;
    for (int i = 0; i < kCount; ++i)
        list.push_back(i);
    for (auto _ : state) {
        auto position = list.begin();
        for (int i = 0; i < kCount / 2; ++i) {
            ++position;
            list.push_back(*position);
            position = list.erase(position);
        }
    }
    check(state, list.size() == kCount);
}
BENCHMARK(ListRemove);
BENCHMARK(ListRemove_raw);

// The raw rows have std::wstring keys and values, and look up with strings that are there already.
CString_E keyText(int i)
{
    CString_E text;
    text.Format(L"entry %d of the map", i);
    return text;
}
std::vector<CString_E> keys()
{
    std::vector<CString_E> result;
    for (int i = 0; i < kCount; ++i)
        result.push_back(keyText(i));
    return result;
}
std::vector<std::wstring> rawKeys()
{
    std::vector<std::wstring> result;
    for (int i = 0; i < kCount; ++i)
        result.emplace_back(keyText(i).GetString());
    return result;
}

void MapInsert(benchmark::State& state)
{
    const auto all = keys();
    for (auto _ : state) {
        CMapStringToString_E map;
        for (const CString_E& key : all)
            map.SetAt(key, key);
        check(state, map.GetCount() == kCount);
    }
}
void MapInsert_raw(benchmark::State& state)
{
    const auto all = rawKeys();
    for (auto _ : state) {
        std::unordered_map<std::wstring, std::wstring> map;
        for (const std::wstring& key : all)
            map[key] = key;
        check(state, map.size() == kCount);
    }
}
BENCHMARK(MapInsert);
BENCHMARK(MapInsert_raw);

void MapLookup(benchmark::State& state)
{
    const auto all = keys();
    CMapStringToString_E map;
    for (const CString_E& key : all)
        map.SetAt(key, key);
    CString_E value;
    for (auto _ : state) {
        for (const CString_E& key : all)
            check(state, map.Lookup(key, value));
    }
    check(state, value == all.back());
}
void MapLookup_raw(benchmark::State& state)
{
    const auto all = rawKeys();
    std::unordered_map<std::wstring, std::wstring> map;
    for (const std::wstring& key : all)
        map[key] = key;
    std::wstring value;
    for (auto _ : state) {
        for (const std::wstring& key : all) {
            const auto found = map.find(key);
            check(state, found != map.end());
            value = found->second;
        }
    }
    check(state, value == all.back());
}
BENCHMARK(MapLookup);
BENCHMARK(MapLookup_raw);

} // namespace
