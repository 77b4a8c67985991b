// Filling and searching combo boxes and list boxes, beside the same written with Qt.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr int kItems = 10000;
const wchar_t* const kSought = L"layer 9999";

// What both sides are given: the program's texts are wide.
const std::vector<std::wstring>& texts()
{
    static const std::vector<std::wstring> made = [] {
        std::vector<std::wstring> list;
        for (int i = 0; i < kItems; ++i)
            list.push_back(L"Layer " + std::to_wstring(i));
        return list;
    }();
    return made;
}

template <typename Control>
void fill(Control& control)
{
    for (const std::wstring& text : texts())
        benchmark::DoNotOptimize(control.AddString(text.c_str()));
}

template <typename Widget>
void fillRaw(Widget& widget)
{
    for (const std::wstring& text : texts())
        widget.addItem(QString::fromWCharArray(text.c_str()));
}

// Each run fills a control of its own, which is made and thrown away outside of the time.
template <typename Control, typename Widget>
void AddString(benchmark::State& state)
{
    texts();
    for (auto _ : state) {
        state.PauseTiming();
        auto pWidget = std::make_unique<Widget>();
        Control control;
        control.SubclassWindow(pWidget.get());
        state.ResumeTiming();
        fill(control);
        state.PauseTiming();
        if (pWidget->count() != kItems)
            state.SkipWithError("items are missing");
        pWidget.reset();
        state.ResumeTiming();
    }
}

template <typename Widget>
void AddString_raw(benchmark::State& state)
{
    texts();
    for (auto _ : state) {
        state.PauseTiming();
        auto pWidget = std::make_unique<Widget>();
        state.ResumeTiming();
        fillRaw(*pWidget);
        state.PauseTiming();
        if (pWidget->count() != kItems)
            state.SkipWithError("items are missing");
        pWidget.reset();
        state.ResumeTiming();
    }
}
BENCHMARK_TEMPLATE(AddString, CComboBox_E, QComboBox)->Name("ComboAddString10000");
BENCHMARK_TEMPLATE(AddString_raw, QComboBox)->Name("ComboAddString10000_raw");
BENCHMARK_TEMPLATE(AddString, CListBox_E, QListWidget)->Name("ListAddString10000");
BENCHMARK_TEMPLATE(AddString_raw, QListWidget)->Name("ListAddString10000_raw");

template <typename Control, typename Widget>
void FindString(benchmark::State& state)
{
    Widget widget;
    Control control;
    control.SubclassWindow(&widget);
    fill(control);
    int found = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(found = control.FindString(-1, kSought));
    if (found != kItems - 1)
        state.SkipWithError("the item was not found");
}
BENCHMARK_TEMPLATE(FindString, CComboBox_E, QComboBox)->Name("ComboFindString10000");
BENCHMARK_TEMPLATE(FindString, CListBox_E, QListWidget)->Name("ListFindString10000");

void comboFind_raw(benchmark::State& state)
{
    QComboBox combo;
    fillRaw(combo);
    const QString sought = QString::fromWCharArray(kSought);
    int found = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(found = combo.findText(sought, Qt::MatchStartsWith));
    if (found != kItems - 1)
        state.SkipWithError("the item was not found");
}
BENCHMARK(comboFind_raw)->Name("ComboFindString10000_raw");

void listFind_raw(benchmark::State& state)
{
    QListWidget list;
    fillRaw(list);
    const QString sought = QString::fromWCharArray(kSought);
    int found = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            found = list.row(list.findItems(sought, Qt::MatchStartsWith).value(0)));
    if (found != kItems - 1)
        state.SkipWithError("the item was not found");
}
BENCHMARK(listFind_raw)->Name("ListFindString10000_raw");

} // namespace
