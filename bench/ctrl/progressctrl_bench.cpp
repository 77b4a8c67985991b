// A progress bar's position in a long loop, beside the same written with Qt.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QProgressBar>

#include <benchmark/benchmark.h>

namespace {

constexpr int kEnd = 1000;

/// Calls @p setPos with one position after the other, on a bar that shows or does not.
template <typename SetPos>
void run(benchmark::State& state, QProgressBar& bar, SetPos setPos)
{
    bar.setRange(0, kEnd);
    bar.resize(300, 24);
    bar.setVisible(state.range(0) != 0);
    QCoreApplication::processEvents();
    int nPos = 0;
    for (auto _ : state)
        setPos(nPos = nPos < kEnd ? nPos + 1 : 0);
    if (bar.value() != nPos)
        state.SkipWithError("the bar shows another position");
}

void ProgressSetPos(benchmark::State& state)
{
    QProgressBar bar;
    CProgressCtrl_E control;
    control.SubclassWindow(&bar);
    run(state, bar, [&control](int nPos) { control.SetPos(nPos); });
}
BENCHMARK(ProgressSetPos)->ArgName("shown")->Arg(0)->Arg(1);

void ProgressSetPos_raw(benchmark::State& state)
{
    QProgressBar bar;
    run(state, bar, [&bar](int nPos) {
        bar.setValue(nPos);
        QCoreApplication::processEvents();
    });
}
BENCHMARK(ProgressSetPos_raw)->ArgName("shown")->Arg(0)->Arg(1);

} // namespace
