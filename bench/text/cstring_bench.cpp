// The string operations beside those of std::wstring.
#include <VxMFCEmu/text.h>

#include <benchmark/benchmark.h>

namespace {

std::wstring sampleText(std::size_t length)
{
    std::wstring text;
    while (text.size() < length)
        text += L"layer/entity-42;";
    text.resize(length);
    return text;
}

void appendText(benchmark::State& state)
{
    for (auto _ : state) {
        CString_E s;
        for (int i = 0; i < 16; ++i)
            s += L"layer";
        benchmark::DoNotOptimize(s.GetString());
    }
}
BENCHMARK(appendText);
void appendText_raw(benchmark::State& state)
{
    for (auto _ : state) {
        std::wstring s;
        for (int i = 0; i < 16; ++i)
            s += L"layer";
        benchmark::DoNotOptimize(s.c_str());
    }
}
BENCHMARK(appendText_raw);

void appendChar(benchmark::State& state)
{
    for (auto _ : state) {
        CString_E s;
        for (wchar_t ch = L'a'; ch <= L'z'; ++ch)
            s += ch;
        benchmark::DoNotOptimize(s.GetString());
    }
}
BENCHMARK(appendChar);
void appendChar_raw(benchmark::State& state)
{
    for (auto _ : state) {
        std::wstring s;
        for (wchar_t ch = L'a'; ch <= L'z'; ++ch)
            s += ch;
        benchmark::DoNotOptimize(s.c_str());
    }
}
BENCHMARK(appendChar_raw);

void compareText(benchmark::State& state)
{
    const std::wstring other = sampleText(static_cast<std::size_t>(state.range(0)));
    const CString_E s(other.c_str());
    for (auto _ : state) {
        benchmark::DoNotOptimize(s == other.c_str());
        benchmark::DoNotOptimize(s.Compare(other.c_str()));
    }
}
BENCHMARK(compareText)->Arg(16)->Arg(256);
void compareText_raw(benchmark::State& state)
{
    const std::wstring other = sampleText(static_cast<std::size_t>(state.range(0)));
    const std::wstring s = other;
    for (auto _ : state) {
        benchmark::DoNotOptimize(s == other.c_str());
        benchmark::DoNotOptimize(s.compare(other.c_str()));
    }
}
BENCHMARK(compareText_raw)->Arg(16)->Arg(256);

void findText(benchmark::State& state)
{
    const std::wstring text = sampleText(static_cast<std::size_t>(state.range(0))) + L"needle";
    const CString_E s(text.c_str());
    for (auto _ : state)
        benchmark::DoNotOptimize(s.Find(L"needle"));
    if (s.Find(L"needle") != state.range(0))
        state.SkipWithError("not found");
}
BENCHMARK(findText)->Arg(16)->Arg(256);
void findText_raw(benchmark::State& state)
{
    const std::wstring s = sampleText(static_cast<std::size_t>(state.range(0))) + L"needle";
    for (auto _ : state)
        benchmark::DoNotOptimize(s.find(L"needle"));
}
BENCHMARK(findText_raw)->Arg(16)->Arg(256);

const wchar_t* replacementOf(const benchmark::State& state)
{
    return state.range(1) == 0 ? L"-" : state.range(1) == 1 ? L"ENTITY" : L"subentity";
}

void replaceText(benchmark::State& state)
{
    const CString_E text(sampleText(static_cast<std::size_t>(state.range(0))).c_str());
    for (auto _ : state) {
        CString_E s(text);
        benchmark::DoNotOptimize(s.Replace(L"entity", replacementOf(state)));
        benchmark::DoNotOptimize(s.GetString());
    }
}
BENCHMARK(replaceText)->ArgsProduct({{16, 256}, {0, 1, 2}});
int replaceAll(std::wstring& s, const wchar_t* old, const wchar_t* replacement)
{
    const std::wstring_view from = old;
    const std::wstring_view to = replacement;
    int count = 0;
    for (std::size_t at = 0; (at = s.find(from, at)) != std::wstring::npos; at += to.size()) {
        s.replace(at, from.size(), to);
        ++count;
    }
    return count;
}
void replaceText_raw(benchmark::State& state)
{
    const std::wstring text = sampleText(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        std::wstring s(text);
        benchmark::DoNotOptimize(replaceAll(s, L"entity", replacementOf(state)));
        benchmark::DoNotOptimize(s.c_str());
    }
}
BENCHMARK(replaceText_raw)->ArgsProduct({{16, 256}, {0, 1, 2}});

void mid(benchmark::State& state)
{
    const CString_E text(sampleText(256).c_str());
    for (auto _ : state) {
        const CString_E part = text.Mid(16, static_cast<int>(state.range(0)));
        benchmark::DoNotOptimize(part.GetString());
    }
}
BENCHMARK(mid)->Arg(3)->Arg(100);
void mid_raw(benchmark::State& state)
{
    const std::wstring text = sampleText(256);
    for (auto _ : state) {
        const std::wstring part = text.substr(16, static_cast<std::size_t>(state.range(0)));
        benchmark::DoNotOptimize(part.c_str());
    }
}
BENCHMARK(mid_raw)->Arg(3)->Arg(100);

} // namespace
