// Sending and posting messages, beside custom events through an event filter.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

#include <benchmark/benchmark.h>

#include <functional>
#include <map>

namespace {

constexpr UINT kMessage = WM_APP + 15;

class CCounterWnd : public CWnd_E
{
public:
    LRESULT OnCount(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(m_nCount += wParam); }
    WPARAM Count() const { return m_nCount; }

protected:
    void OnMessageMap() override
    {
        using ThisClass_E = CCounterWnd;
        CWnd_E::OnMessageMap();
        for (UINT i = 0; i < 27; ++i)
            ON_MESSAGE_E(WM_APP + i, &CCounterWnd::OnCount)
    }

private:
    WPARAM m_nCount = 0;
};

// The same by hand: a custom event, a filter, a map.
class CountEvent : public QEvent
{
public:
    CountEvent(UINT nMessage, WPARAM nWParam)
        : QEvent(QEvent::User), message(nMessage), wParam(nWParam)
    {
    }
    UINT message;
    WPARAM wParam;
    LRESULT result = 0;
};

class CountFilter : public QObject
{
public:
    CountFilter()
    {
        for (UINT i = 0; i < 30; ++i)
            m_handlers[WM_APP + i] = &CountFilter::onCount;
    }
    bool eventFilter(QObject* watched, QEvent* e) override
    {
        if (e->type() != QEvent::User)
            return QObject::eventFilter(watched, e);
        auto& event = static_cast<CountEvent&>(*e);
        const auto it = m_handlers.find(event.message);
        if (it == m_handlers.end())
            return false;
        event.result = (this->*it->second)(event.wParam);
        return true;
    }
    WPARAM count = 0;

private:
    LRESULT onCount(WPARAM wParam) { return static_cast<LRESULT>(count += wParam); }
    std::map<UINT, LRESULT (CountFilter::*)(WPARAM)> m_handlers;
};

void SendMessage(benchmark::State& state)
{
    CCounterWnd window;
    window.AttachDefault(static_cast<QWidget*>(nullptr));
    for (auto _ : state)
        benchmark::DoNotOptimize(SendMessage_E(window, kMessage, 1, 0));
    if (window.Count() != static_cast<WPARAM>(state.iterations()))
        state.SkipWithError("messages were lost");
}
BENCHMARK(SendMessage);

void SendMessage_raw(benchmark::State& state)
{
    QWidget widget;
    CountFilter filter;
    widget.installEventFilter(&filter);
    for (auto _ : state) {
        CountEvent event(kMessage, 1);
        QCoreApplication::sendEvent(&widget, &event);
        benchmark::DoNotOptimize(event.result);
    }
    if (filter.count != static_cast<WPARAM>(state.iterations()))
        state.SkipWithError("events were lost");
}
BENCHMARK(SendMessage_raw);

constexpr int kBatch = 100;

void PostMessage(benchmark::State& state)
{
    CCounterWnd window;
    window.AttachDefault(static_cast<QWidget*>(nullptr));
    for (auto _ : state) {
        for (int i = 0; i < kBatch; ++i)
            PostMessage_E(window, kMessage, 1, 0);
        QCoreApplication::sendPostedEvents();
    }
    if (window.Count() != static_cast<WPARAM>(state.iterations() * kBatch))
        state.SkipWithError("messages were lost");
    state.SetItemsProcessed(state.iterations() * kBatch);
}
BENCHMARK(PostMessage);

void PostMessage_raw(benchmark::State& state)
{
    QWidget widget;
    CountFilter filter;
    widget.installEventFilter(&filter);
    for (auto _ : state) {
        for (int i = 0; i < kBatch; ++i)
            QCoreApplication::postEvent(&widget, new CountEvent(kMessage, 1));
        QCoreApplication::sendPostedEvents();
    }
    if (filter.count != static_cast<WPARAM>(state.iterations() * kBatch))
        state.SkipWithError("events were lost");
    state.SetItemsProcessed(state.iterations() * kBatch);
}
BENCHMARK(PostMessage_raw);

} // namespace
