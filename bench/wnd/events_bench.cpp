// Events of a bound window that has no handler for them, beside the same events of a bare widget.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

#include <benchmark/benchmark.h>

namespace {

struct Resize
{
    QResizeEvent event{QSize(100, 80), QSize(90, 70)};
};
struct KeyPress
{
    QKeyEvent event{QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a")};
};
struct MouseMove
{
    QMouseEvent event{QEvent::MouseMove, QPointF(10, 10), QPointF(10, 10), QPointF(10, 10),
                      Qt::NoButton,      Qt::NoButton,    Qt::NoModifier};
};

// A window as the library makes it, in a window of its own.
QWidget* makeWidget(QWidget* parent)
{
    auto* const widget = new QWidget(parent);
    widget->setAttribute(Qt::WA_Hover);
    widget->setAttribute(Qt::WA_MouseTracking);
    return widget;
}

// What the messages that follow an event cost belongs to it, so the queue is emptied too.
template <typename Made>
void sendEvents(benchmark::State& state, QWidget* widget)
{
    constexpr int kBatch = 64;
    for (auto _ : state) {
        for (int i = 0; i < kBatch; ++i) {
            Made made;
            QCoreApplication::sendEvent(widget, &made.event);
        }
        QCoreApplication::sendPostedEvents();
    }
    state.SetItemsProcessed(state.iterations() * kBatch);
}

template <typename Made>
void Event(benchmark::State& state)
{
    QWidget top;
    QWidget* const widget = makeWidget(&top);
    CWnd_E window;
    window.SubclassWindow(widget);
    sendEvents<Made>(state, widget);
}

template <typename Made>
void Event_raw(benchmark::State& state)
{
    QWidget top;
    sendEvents<Made>(state, makeWidget(&top));
}

BENCHMARK_TEMPLATE(Event, Resize)->Name("ResizeEvent");
BENCHMARK_TEMPLATE(Event_raw, Resize)->Name("ResizeEvent_raw");
BENCHMARK_TEMPLATE(Event, KeyPress)->Name("KeyPressEvent");
BENCHMARK_TEMPLATE(Event_raw, KeyPress)->Name("KeyPressEvent_raw");
BENCHMARK_TEMPLATE(Event, MouseMove)->Name("MouseMoveEvent");
BENCHMARK_TEMPLATE(Event_raw, MouseMove)->Name("MouseMoveEvent_raw");

} // namespace
