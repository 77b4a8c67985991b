// To and from UTF-8 and QString, beside QString's own conversions of the same text.
#include <VxMFCEmu/text.h>

#include <benchmark/benchmark.h>

#include <clocale>
#include <cstdlib>
#include <vector>

namespace {

// ASCII, Latin and Greek, Chinese, and code points beyond 16 bits; each length in characters.
const wchar_t* const kSamples[] = {L"Circle 12.5;", L"\u00C4rger \u03B1\u03B2\u03B3 ",
                                   L"图层和实体名称选择", L"ok \U0001F600\U0001F680 "};

QString sample(const benchmark::State& state)
{
    const auto length = static_cast<std::size_t>(state.range(1));
    std::wstring text;
    while (text.size() < length)
        text += kSamples[state.range(0)];
    return QString::fromStdWString(text.substr(0, length));
}

void grid(benchmark::internal::Benchmark* bench)
{
    bench->ArgsProduct({{0, 1, 2, 3}, {12, 200, 2000}});
}

void toUtf8(benchmark::State& state)
{
    const CString_E text(sample(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(text.Utf8Ptr());
}
BENCHMARK(toUtf8)->Apply(grid);
void toUtf8_raw(benchmark::State& state)
{
    const QString text = sample(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(text.toUtf8().constData());
}
BENCHMARK(toUtf8_raw)->Apply(grid);

void fromUtf8(benchmark::State& state)
{
    const QByteArray bytes = sample(state).toUtf8();
    for (auto _ : state) {
        const CString_E text(bytes.constData());
        benchmark::DoNotOptimize(text.GetString());
    }
}
BENCHMARK(fromUtf8)->Apply(grid);
void fromUtf8_raw(benchmark::State& state)
{
    const QByteArray bytes = sample(state).toUtf8();
    for (auto _ : state)
        benchmark::DoNotOptimize(QString::fromUtf8(bytes.constData()).constData());
}
BENCHMARK(fromUtf8_raw)->Apply(grid);

void toQString(benchmark::State& state)
{
    const CString_E text(sample(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(VxQString(text).constData());
}
BENCHMARK(toQString)->Apply(grid);
void toQString_raw(benchmark::State& state)
{
    const std::wstring text = sample(state).toStdWString();
    for (auto _ : state)
        benchmark::DoNotOptimize(QString::fromStdWString(text).constData()); // fromUcs4 here
}
BENCHMARK(toQString_raw)->Apply(grid);

void fromQString(benchmark::State& state)
{
    const QString text = sample(state);
    for (auto _ : state) {
        const CString_E wide(text);
        benchmark::DoNotOptimize(wide.GetString());
    }
}
BENCHMARK(fromQString)->Apply(grid);
void fromQString_raw(benchmark::State& state)
{
    const QString text = sample(state);
    for (auto _ : state) {
        const std::wstring wide = text.toStdWString();
        benchmark::DoNotOptimize(wide.c_str());
    }
}
BENCHMARK(fromQString_raw)->Apply(grid);

// To the narrow form in locale "chs", which libc does not know.
void toNarrow(benchmark::State& state)
{
    const std::wstring text = sample(state).toStdWString();
    for (auto _ : state)
        benchmark::DoNotOptimize(WideCharToMultiByte_E(text, "chs").data());
}
BENCHMARK(toNarrow)->ArgsProduct({{0, 2}, {12, 100, 2000}});
void toNarrow_raw(benchmark::State& state)
{
    const std::wstring text = sample(state).toStdWString();
    std::vector<char> bytes(4 * text.size() + 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(std::wcstombs(bytes.data(), text.c_str(), bytes.size()));
}
BENCHMARK(toNarrow_raw)->ArgsProduct({{0, 2}, {12, 100, 2000}});

const char* const g_locale = std::setlocale(LC_CTYPE, "C.UTF-8"); // as a host's Qt sets one

} // namespace
