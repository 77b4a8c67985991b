// What timers and idle time cost: ticks, passes over many windows, temporary wrappers.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <benchmark/benchmark.h>

#include <deque>

namespace {

class CTickWnd : public CWnd_E
{
public:
    void OnTimer(UINT_PTR id) { m_nSum += id; }
    UINT_PTR m_nSum = 0;

protected:
    void OnMessageMap() override
    {
        using ThisClass_E = CTickWnd;
        CWnd_E::OnMessageMap();
        ON_WM_TIMER_E()
    }
};

void tick(QTimer* timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

void TimerTick(benchmark::State& state)
{
    CTickWnd window;
    window.AttachDefault(static_cast<QWidget*>(nullptr));
    window.SetTimer(1, 1000000);
    auto* const timer = window.GetSafeHwnd()->findChild<QTimer*>();
    for (auto _ : state)
        tick(timer);
    if (window.m_nSum != static_cast<UINT_PTR>(state.iterations()))
        state.SkipWithError("ticks were lost");
    window.KillTimer(1);
}
BENCHMARK(TimerTick);

void TimerTick_raw(benchmark::State& state)
{
    QTimer timer;
    UINT_PTR sum = 0;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&sum] { ++sum; });
    timer.start(1000000);
    for (auto _ : state)
        tick(&timer);
    if (sum != static_cast<UINT_PTR>(state.iterations()))
        state.SkipWithError("ticks were lost");
}
BENCHMARK(TimerTick_raw);

// One pass over windows to whose idle signal nothing is connected.
void IdlePass(benchmark::State& state)
{
    QWidget top;
    std::deque<CWnd_E> windows(static_cast<std::size_t>(state.range(0)));
    for (CWnd_E& window : windows)
        window.Create(&top);
    int passes = 0;
    QObject::connect(&windows.back(), &CWnd_E::updateCmdUi, &top, [&passes] { ++passes; });
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    for (auto _ : state)
        QMetaObject::invokeMethod(dispatcher, "aboutToBlock", Qt::DirectConnection);
    if (passes != state.iterations())
        state.SkipWithError("a window was left out");
}
BENCHMARK(IdlePass)->Arg(10000)->Unit(benchmark::kMicrosecond);

void IdlePass_raw(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    std::deque<QObject> receivers(count);
    std::size_t calls = 0;
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    for (QObject& receiver : receivers)
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &receiver,
                         [&calls] { ++calls; });
    for (auto _ : state)
        QMetaObject::invokeMethod(dispatcher, "aboutToBlock", Qt::DirectConnection);
    if (calls != count * static_cast<std::size_t>(state.iterations()))
        state.SkipWithError("a receiver was left out");
}
BENCHMARK(IdlePass_raw)->Arg(10000)->Unit(benchmark::kMicrosecond);

constexpr int kWrappers = 1000;

void TemporaryWrapper(benchmark::State& state)
{
    QWidget top;
    std::vector<QWidget*> widgets;
    for (int i = 0; i < kWrappers; ++i)
        widgets.push_back(new QWidget(&top));
    for (auto _ : state) {
        for (QWidget* const widget : widgets)
            benchmark::DoNotOptimize(CWnd_E::FromHandle(widget));
        ClearTempObjectPool();
    }
    if (CWnd_E::FromHandlePermanent(widgets.front()))
        state.SkipWithError("a wrapper was left over");
    state.SetItemsProcessed(state.iterations() * kWrappers);
}
BENCHMARK(TemporaryWrapper)->Unit(benchmark::kMicrosecond);

void TemporaryWrapper_raw(benchmark::State& state)
{
    std::vector<QObject*> objects(kWrappers);
    for (auto _ : state) {
        for (QObject*& object : objects)
            object = new QObject;
        for (QObject* const object : objects)
            delete object;
    }
    state.SetItemsProcessed(state.iterations() * kWrappers);
}
BENCHMARK(TemporaryWrapper_raw)->Unit(benchmark::kMicrosecond);

// What a wrapper owes its widget, by hand: it sees the events, hears of the end and can be found.
void TemporaryBinding(benchmark::State& state) { TemporaryWrapper(state); }
BENCHMARK(TemporaryBinding)->Unit(benchmark::kMicrosecond);

void TemporaryBinding_raw(benchmark::State& state)
{
    QWidget top;
    std::vector<QWidget*> widgets;
    for (int i = 0; i < kWrappers; ++i)
        widgets.push_back(new QWidget(&top));
    std::vector<QObject*> objects(kWrappers);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kWrappers; ++i) {
            auto* const object = objects[i] = new QObject;
            widgets[i]->installEventFilter(object);
            QObject::connect(widgets[i], &QObject::destroyed, object, &QObject::deleteLater);
            widgets[i]->setProperty("owner", QVariant::fromValue(object));
        }
        for (std::size_t i = 0; i < kWrappers; ++i) {
            widgets[i]->setProperty("owner", QVariant());
            delete objects[i];
        }
    }
    state.SetItemsProcessed(state.iterations() * kWrappers);
}
BENCHMARK(TemporaryBinding_raw)->Unit(benchmark::kMicrosecond);

} // namespace
