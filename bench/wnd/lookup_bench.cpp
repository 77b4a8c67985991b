// Finding windows and making them.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

#include <benchmark/benchmark.h>

namespace {

void FromHandlePermanent(benchmark::State& state)
{
    CWnd_E window;
    window.AttachDefault(static_cast<QWidget*>(nullptr));
    QWidget* const widget = window;
    for (auto _ : state)
        benchmark::DoNotOptimize(CWnd_E::FromHandlePermanent(widget));
}
BENCHMARK(FromHandlePermanent);

void FromHandlePermanent_raw(benchmark::State& state)
{
    CWnd_E window;
    window.AttachDefault(static_cast<QWidget*>(nullptr));
    QWidget* const widget = window;
    for (auto _ : state) {
        auto* const owner = reinterpret_cast<QObject*>(widget->property("owner").toLongLong());
        benchmark::DoNotOptimize(qobject_cast<CWnd_E*>(owner));
    }
}
BENCHMARK(FromHandlePermanent_raw);

void CreateWindow(benchmark::State& state)
{
    QWidget top;
    for (auto _ : state) {
        auto* const window = new CWnd_E;
        window->Create(&top);
        delete window;
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    if (!top.children().isEmpty())
        state.SkipWithError("widgets were left over");
}
BENCHMARK(CreateWindow);

void CreateWindow_raw(benchmark::State& state)
{
    QWidget top;
    for (auto _ : state) {
        auto* const widget = new QWidget(&top);
        widget->setAttribute(Qt::WA_Hover);
        widget->setAttribute(Qt::WA_MouseTracking);
        delete widget;
    }
}
BENCHMARK(CreateWindow_raw);

constexpr int kControls = 100;
constexpr int kFirstId = 1000;

QString nameOf(int i) { return QStringLiteral("control%1").arg(i); }

void makeControls(QWidget& top)
{
    for (int i = 0; i < kControls; ++i)
        (new QWidget(&top))->setObjectName(nameOf(i));
}

// The id map is this program's own, found from the call stack as a plug-in's is.
void GetDlgItem(benchmark::State& state)
{
    QWidget top;
    makeControls(top);
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetDlgItem_E(&top, kFirstId + i));
        i = (i + 7) % kControls;
    }
    if (!GetDlgItem_E(&top, kFirstId + 1))
        state.SkipWithError("the control was not found");
}
BENCHMARK(GetDlgItem);

void GetDlgItem_raw(benchmark::State& state)
{
    QWidget top;
    makeControls(top);
    std::vector<QString> names;
    for (int k = 0; k < kControls; ++k)
        names.push_back(nameOf(k));
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(top.findChild<QWidget*>(names[static_cast<std::size_t>(i)]));
        i = (i + 7) % kControls;
    }
}
BENCHMARK(GetDlgItem_raw);

} // namespace
