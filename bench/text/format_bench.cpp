// Formatting beside swprintf, and finding the caller.
#include <VxMFCEmu/text.h>

#include <benchmark/benchmark.h>

#include <cwchar>

#include <execinfo.h>

namespace {

void format(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        CString_E s;
        ++i;
        s.Format(L"%d %s %.3f", i, L"entity", 12.75 * i);
        benchmark::DoNotOptimize(s.GetString());
    }
}
BENCHMARK(format);
void format_raw(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        wchar_t buffer[256];
        ++i;
        const int length = std::swprintf(buffer, 256, L"%d %ls %.3f", i, L"entity", 12.75 * i);
        const std::wstring s(buffer, static_cast<std::size_t>(length));
        benchmark::DoNotOptimize(s.c_str());
    }
}
BENCHMARK(format_raw);

void resourceName(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(GetMfyResourceName());
    if (GetMfyResourceName() != QLatin1String("text_bench"))
        state.SkipWithError("wrong caller");
}
BENCHMARK(resourceName);
void resourceName_raw(benchmark::State& state)
{
    void* frames[16];
    for (auto _ : state)
        benchmark::DoNotOptimize(backtrace(frames, 16));
}
BENCHMARK(resourceName_raw);

void loadString(benchmark::State& state)
{
    CString_E s;
    for (auto _ : state)
        benchmark::DoNotOptimize(s.LoadString(1));
}
BENCHMARK(loadString);

} // namespace
