// Drawing through a device context beside the same drawing with the painter itself.
#include <VxMFCEmu/VxMFCEmu.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <benchmark/benchmark.h>

namespace {

constexpr int kCount = 10000;
constexpr int kSide = 1000;

QImage canvas(int w = kSide, int h = kSide)
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// Draws what the functions say, kCount times each iteration, on a device context and on a painter.
template <typename Draw>
void throughDC(benchmark::State& state, Draw draw)
{
    QImage image = canvas();
    CDC_E dc(&image);
    for (auto _ : state) {
        for (int i = 0; i < kCount; ++i)
            draw(dc, i);
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}
template <typename Draw>
void throughPainter(benchmark::State& state, Draw draw)
{
    QImage image = canvas();
    QPainter painter(&image);
    for (auto _ : state) {
        for (int i = 0; i < kCount; ++i)
            draw(painter, i);
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}

void Lines(benchmark::State& state)
{
    throughDC(state, [](CDC_E& dc, int i) {
        dc.MoveTo(i % 997, i % 701);
        dc.LineTo(i % 389, i % 811);
    });
}
void Lines_raw(benchmark::State& state)
{
    throughPainter(state,
                   [](QPainter& p, int i) { p.drawLine(i % 997, i % 701, i % 389, i % 811); });
}

void Rectangles(benchmark::State& state)
{
    throughDC(state,
              [](CDC_E& dc, int i) { dc.Rectangle(i % 900, i % 701, i % 900 + 40, i % 701 + 20); });
}
void Rectangles_raw(benchmark::State& state)
{
    throughPainter(state, [](QPainter& p, int i) { p.drawRect(i % 900, i % 701, 40, 20); });
}

constexpr wchar_t kText[] = L"Sheet 12, scale 1:50";

void TextRuns(benchmark::State& state)
{
    throughDC(state, [](CDC_E& dc, int i) {
        tagRECT rect{i % 800, i % 900, i % 800 + 180, i % 900 + 20};
        dc.DrawText(kText, -1, &rect, Qt::AlignVCenter | Qt::TextSingleLine);
    });
}
void TextRuns_raw(benchmark::State& state)
{
    const QString text = VxQString(kText);
    throughPainter(state, [&text](QPainter& p, int i) {
        p.drawText(QRect(i % 800, i % 900, 180, 20), Qt::AlignVCenter | Qt::TextSingleLine, text);
        benchmark::DoNotOptimize(QFontMetrics(p.font()).height());
    });
}

void ColoredTextRuns(benchmark::State& state)
{
    throughDC(state, [](CDC_E& dc, int i) {
        tagRECT rect{i % 800, i % 900, i % 800 + 180, i % 900 + 20};
        dc.SetTextColor(RGB(200, 0, i & 255));
        dc.DrawText(kText, -1, &rect, Qt::AlignVCenter | Qt::TextSingleLine);
    });
}
void ColoredTextRuns_raw(benchmark::State& state)
{
    const QString text = VxQString(kText);
    throughPainter(state, [&text](QPainter& p, int i) {
        const QPen pen = p.pen();
        p.setPen(QColor(200, 0, i & 255));
        p.drawText(QRect(i % 800, i % 900, 180, 20), Qt::AlignVCenter | Qt::TextSingleLine, text);
        p.setPen(pen);
        benchmark::DoNotOptimize(QFontMetrics(p.font()).height());
    });
}

// A region of many rectangles, and its object.
QRegion checkers(int side)
{
    QRegion region;
    for (int y = 0; y < side; ++y) {
        QRegion row;
        for (int x = y % 2; x < side; x += 2)
            row += QRect(x * 10, y * 10, 10, 10);
        region += row;
    }
    return region;
}

void FillRegion(benchmark::State& state)
{
    QImage image = canvas();
    CDC_E dc(&image);
    CRgn_E region;
    region.Attach(new QRegion(checkers(static_cast<int>(state.range(0)))));
    CBrush_E brush(RGB(0, 128, 255));
    for (auto _ : state)
        dc.FillRgn(&region, &brush);
}
BENCHMARK(FillRegion)->Arg(1)->Arg(10)->Arg(80);
void FillRegion_raw(benchmark::State& state)
{
    QImage image = canvas();
    QPainter painter(&image);
    const QRegion region = checkers(static_cast<int>(state.range(0)));
    const QBrush brush(QColor(0, 128, 255));
    for (auto _ : state) {
        for (const QRect& rect : region)
            painter.fillRect(rect, brush);
    }
}
BENCHMARK(FillRegion_raw)->Arg(1)->Arg(10)->Arg(80);

void SelectPens(benchmark::State& state)
{
    CPen_E pens[] = {{PS_SOLID, 1, RGB(255, 0, 0)}, {PS_SOLID, 1, RGB(0, 0, 255)}};
    throughDC(state, [&pens](CDC_E& dc, int i) { dc.SelectObject(&pens[i & 1]); });
}
void SelectPens_raw(benchmark::State& state)
{
    QPen pens[] = {QPen(Qt::red), QPen(Qt::blue)};
    throughPainter(state, [&pens](QPainter& p, int i) { p.setPen(pens[i & 1]); });
}

void SelectBrushes(benchmark::State& state)
{
    CBrush_E brushes[] = {CBrush_E(RGB(255, 0, 0)), CBrush_E(RGB(0, 0, 255))};
    throughDC(state, [&brushes](CDC_E& dc, int i) { dc.SelectObject(&brushes[i & 1]); });
}
void SelectBrushes_raw(benchmark::State& state)
{
    QBrush brushes[] = {QBrush(Qt::red), QBrush(Qt::blue)};
    throughPainter(state, [&brushes](QPainter& p, int i) { p.setBrush(brushes[i & 1]); });
}

// A cell of a grid: pen and brush by pointer, a rectangle, and both back.
void Cells(benchmark::State& state)
{
    CPen_E pen(PS_SOLID, 1, RGB(255, 0, 0));
    CBrush_E brush(RGB(0, 0, 255));
    throughDC(state, [&](CDC_E& dc, int i) {
        CPen_E* const pPen = dc.SelectObject(&pen);
        CBrush_E* const pBrush = dc.SelectObject(&brush);
        dc.Rectangle(i % 900, i % 701, i % 900 + 40, i % 701 + 20);
        dc.SelectObject(pPen);
        dc.SelectObject(pBrush);
    });
}
void Cells_raw(benchmark::State& state)
{
    const QPen pen(Qt::red);
    const QBrush brush(Qt::blue);
    throughPainter(state, [&](QPainter& p, int i) {
        const QPen oldPen = p.pen();
        const QBrush oldBrush = p.brush();
        p.setPen(pen);
        p.setBrush(brush);
        p.drawRect(i % 900, i % 701, 40, 20);
        p.setPen(oldPen);
        p.setBrush(oldBrush);
    });
}

void InvertScreen(benchmark::State& state)
{
    QImage image = canvas(1920, 1080);
    CDC_E dc(&image);
    for (auto _ : state) {
        tagRECT rect{0, 0, 1920, 1080};
        dc.InvertRect(&rect);
    }
}
void InvertScreen_raw(benchmark::State& state)
{
    QImage image = canvas(1920, 1080);
    for (auto _ : state) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                image.setPixel(x, y,
                               qRgb(255 - qRed(pixel), 255 - qGreen(pixel), 255 - qBlue(pixel)));
            }
        }
    }
}

void MakeDC(benchmark::State& state)
{
    QImage image = canvas();
    for (auto _ : state) {
        CDC_E dc(&image);
        benchmark::DoNotOptimize(&dc);
    }
}
void MakeDC_raw(benchmark::State& state)
{
    QImage image = canvas();
    for (auto _ : state) {
        QPainter painter(&image);
        benchmark::DoNotOptimize(&painter);
    }
}

BENCHMARK(Lines);
BENCHMARK(Lines_raw);
BENCHMARK(Rectangles);
BENCHMARK(Rectangles_raw);
BENCHMARK(TextRuns);
BENCHMARK(TextRuns_raw);
BENCHMARK(ColoredTextRuns);
BENCHMARK(ColoredTextRuns_raw);
BENCHMARK(SelectPens);
BENCHMARK(SelectPens_raw);
BENCHMARK(SelectBrushes);
BENCHMARK(SelectBrushes_raw);
BENCHMARK(Cells);
BENCHMARK(Cells_raw);
BENCHMARK(InvertScreen);
BENCHMARK(InvertScreen_raw);
BENCHMARK(MakeDC);
BENCHMARK(MakeDC_raw);

} // namespace
