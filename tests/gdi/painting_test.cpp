// Windows that paint themselves: WM_PAINT, WM_ERASEBKGND, WM_CTLCOLOR, drawing at other times.
#include <VxMFCEmu/VxMFCEmu.h>

#include "support/waiting.h"
#include "support/xinput.h"

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QtWidgets>

#include <gmock/gmock.h>

#include <functional>

namespace {

// What the screen shows of a widget.
QImage shown(QWidget& widget)
{
    const QPoint at = widget.mapTo(widget.window(), QPoint());
    return widget.screen()
        ->grabWindow(widget.window()->winId(), at.x(), at.y(), widget.width(), widget.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

class View : public CWnd_E
{
public:
    void OnPaint()
    {
        log += QLatin1Char('p');
        if (paint)
            paint(*this);
    }
    BOOL OnEraseBkgnd(CDC_E* pDC)
    {
        log += QLatin1Char('e');
        if (erase)
            erase(*pDC);
        return TRUE;
    }
    HBRUSH OnCtlColor(CDC_E* pDC, QWidget* pControl, UINT nCtlColor)
    {
        CWnd_E::OnCtlColor(pDC, pControl, nCtlColor); // as wizards write it
        kinds[pControl] = nCtlColor;
        if (nCtlColor == CTLCOLOR_EDIT || !answers)
            return nullptr;
        pDC->SetTextColor(RGB(255, 0, 0));
        return brush.GetSafeHandle();
    }

    std::function<void(View&)> paint;
    std::function<void(CDC_E&)> erase;
    QString log;
    bool answers = true;
    QHash<QWidget*, UINT> kinds;
    CBrush_E brush{RGB(255, 255, 0)};
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(View, CWnd_E)
ON_WM_PAINT_E()
ON_WM_ERASEBKGND_E()
ON_WM_CTLCOLOR_E()
END_MESSAGE_MAP_E()

// A window on the screen with a view in it that is not at its origin.
struct Shown
{
    QWidget top;
    View view;
    QWidget* pWidget = nullptr;

    void show()
    {
        top.setGeometry(50, 50, 200, 150);
        ASSERT_TRUE(view.Create(&top));
        pWidget = view.GetSafeHwnd();
        pWidget->setGeometry(20, 30, 100, 80);
        top.show();
        ASSERT_TRUE(vxtest::waitUntil([this] {
            return top.windowHandle()->isExposed() && view.log.contains(QLatin1Char('p'));
        }));
        view.log.clear();
    }
    void repaint()
    {
        pWidget->update();
        EXPECT_TRUE(vxtest::waitUntil([this] { return !view.log.isEmpty(); }));
    }
};

template <typename DC>
void picture(DC& dc)
{
    CPen_E pen(PS_SOLID, 3, RGB(0, 0, 255));
    CBrush_E hatch(HS_CROSS, RGB(255, 0, 0));
    CPen_E* const pPen = dc.SelectObject(&pen);
    dc.SelectObject(&hatch);
    dc.Rectangle(10, 10, 60, 40);
    dc.SelectObject(pPen);
    dc.LineTo(99, 79);
    tagRECT rect{0, 0, 30, 30};
    dc.InvertRect(&rect);
    dc.BitBlt(60, 40, 20, 20, &dc, 5, 5, SRCCOPY);
}

TEST(Painting, DrawsOnTheScreenWhatItDrawsOnAnImage)
{
    Shown s;
    s.view.erase = [](CDC_E& dc) { dc.FillSolidRect(0, 0, 100, 80, RGB(240, 255, 240)); };
    s.view.paint = [](View& view) {
        CPaintDC_E dc(&view);
        EXPECT_EQ(CRect_E(dc.m_ps.rcPaint), CRect_E(0, 0, 100, 80));
        EXPECT_EQ(dc.m_painter.device(), view.GetSafeHwnd());
        dc.SelectStockObject(BLACK_PEN);
        picture(dc);
    };
    s.show();
    s.repaint();
    EXPECT_EQ(s.view.log, QStringLiteral("ep"));
    QImage expected(100, 80, QImage::Format_RGB32);
    {
        CDC_E dc(&expected);
        s.view.erase(dc);
        picture(dc);
    }
    EXPECT_TRUE(vxtest::waitUntil([&] { return shown(*s.pWidget) == expected; }, 2000));
}

TEST(Painting, SecondContextInAPaintMessageDrawsToo)
{
    Shown s;
    s.view.paint = [](View& view) {
        CPaintDC_E dc(&view);
        dc.FillSolidRect(0, 0, 100, 80, RGB(255, 255, 255));
        CClientDC_E other(&view);
        other.FillSolidRect(10, 10, 20, 20, RGB(255, 0, 0));
    };
    s.show();
    s.repaint();
    EXPECT_TRUE(vxtest::waitUntil(
        [&] { return shown(*s.pWidget).pixelColor(15, 15) == QColor(Qt::red); }, 2000));
}

// The first one goes on after the second has ended.
TEST(Painting, SecondPainterOfAPaintMessageLeavesTheFirstAlone)
{
    Shown s;
    bool own = false; // a painter of Qt's first
    const auto second = [&](View& view) {
        CClientDC_E dc(&view);
        EXPECT_GT(dc.GetTextExtent(L"text", 4).cx, 0);
        dc.FillSolidRect(10, 10, 20, 20, RGB(255, 0, 0));
        EXPECT_TRUE(dc.m_painter.isActive());
    };
    s.view.paint = [&](View& view) {
        if (own) {
            QPainter painter(view.GetSafeHwnd());
            second(view);
            painter.fillRect(40, 10, 20, 20, Qt::blue);
        } else {
            CPaintDC_E dc(&view);
            second(view);
            second(view);
            dc.FillSolidRect(40, 10, 20, 20, RGB(0, 0, 255));
        }
    };
    s.show();
    for (const bool value : {false, true}) {
        own = value;
        s.repaint();
        s.view.log.clear();
        EXPECT_TRUE(vxtest::waitUntil(
            [&] {
                const QImage image = shown(*s.pWidget).scaled(100, 80);
                return image.pixelColor(20, 20) == QColor(Qt::red) &&
                       image.pixelColor(50, 20) == QColor(Qt::blue);
            },
            2000))
            << own;
        for (const bool rendered : {false, true}) {
            QPixmap other(100, 80);
            other.fill(Qt::white);
            if (rendered)
                s.pWidget->render(&other);
            else
                other = s.pWidget->grab();
            EXPECT_EQ(other.toImage().pixelColor(50, 20), QColor(Qt::blue)) << own << rendered;
            EXPECT_TRUE(!rendered || other.toImage().pixelColor(20, 20) == QColor(Qt::red)) << own;
        }
    }
}

// All widgets of a window share what is shown: it is not to be painted twice at once.
TEST(Painting, ContextsOfOtherWidgetsInAPaintMessage)
{
    Shown s;
    QWidget sibling(&s.top);
    sibling.setGeometry(130, 30, 40, 40);
    QWidget* pChild = nullptr;
    const auto mark = [](QWidget* pWidget) {
        CClientDC_E(pWidget).FillSolidRect(2, 2, 5, 5, RGB(255, 0, 0));
    };
    bool marking = false;
    s.view.paint = [&](View& view) {
        if (!marking)
            return;
        CPaintDC_E dc(&view);
        for (QWidget* const p : {&sibling, &s.top, pChild})
            mark(p);
        dc.FillSolidRect(50, 50, 9, 9, RGB(0, 0, 255)); // goes on
    };
    s.view.erase = [&](CDC_E&) { mark(&sibling); };
    s.show();
    pChild = new QWidget(s.pWidget);
    pChild->setGeometry(5, 5, 20, 20);
    pChild->show();
    marking = true;
    s.repaint();
    EXPECT_TRUE(vxtest::waitUntil(
        [&] {
            const QImage image = shown(s.top).scaled(s.top.size()); // whatever the scale
            return image.pixelColor(132, 32) == QColor(Qt::red) &&
                   image.pixelColor(3, 3) == QColor(Qt::red) &&
                   image.pixelColor(75, 85) == QColor(Qt::blue);
        },
        2000));
}

TEST(Painting, ClientContextReachesTheScreenAtOnce)
{
    Shown s;
    s.view.paint = [](View& view) {
        CPaintDC_E(&view).FillSolidRect(0, 0, 100, 80, RGB(0, 128, 0));
    };
    s.show();
    s.repaint();
    s.view.log.clear();
    const QImage before = shown(*s.pWidget);
    const auto rubberBand = [&] {
        CClientDC_E dc(&s.view);
        EXPECT_EQ(dc.GetPixel(5, 5), RGB(0, 128, 0)); // what is there
        CClientDC_E(&s.view).FillSolidRect(90, 70, 5, 5, RGB(1, 2, 3));
        dc.SetROP2(R2_NOT);
        dc.MoveTo(3, 3);
        dc.LineTo(80, 60);
    };
    rubberBand();
    QImage expected = before;
    {
        QPainter painter(&expected);
        painter.fillRect(90, 70, 5, 5, QColor(1, 2, 3)); // by a second one meanwhile
        painter.setCompositionMode(QPainter::RasterOp_NotDestination);
        painter.drawLine(3, 3, 80, 60);
    }
    EXPECT_EQ(shown(*s.pWidget), expected);
    rubberBand(); // takes itself away again
    QPainter(&(expected = before)).fillRect(90, 70, 5, 5, QColor(1, 2, 3));
    EXPECT_EQ(shown(*s.pWidget), expected);
    EXPECT_EQ(s.view.log, QString()); // nobody was asked to paint
    s.repaint();
    EXPECT_TRUE(vxtest::waitUntil([&] { return shown(*s.pWidget) == before; }, 2000));
    s.top.hide();
    CClientDC_E hidden(&s.view);
    EXPECT_GT(hidden.GetTextExtent(L"text", 4).cx, 0);
    hidden.LineTo(9, 9);
}

TEST(Painting, WidgetThatDiesLeavesAnInactivePainter)
{
    Shown s;
    s.show();
    bool painted = false;
    s.view.erase = [&](CDC_E& dc) {
        painted = true;
        EXPECT_TRUE(dc.m_painter.isActive());
        dc.LineTo(5, 5);
    };
    s.repaint();
    EXPECT_TRUE(painted);
    QWidget* const pChild = new QWidget(&s.top);
    pChild->setGeometry(150, 100, 30, 30);
    struct Killer : QObject
    {
        bool eventFilter(QObject* watched, QEvent* e) override
        {
            if (e->type() != QEvent::Paint)
                return false;
            CDC_E dc(static_cast<QWidget*>(watched));
            wasActive = dc.m_painter.isActive();
            Q_EMIT static_cast<QWidget*>(watched)->destroyed(watched); // as its destructor does
            isActive = dc.m_painter.isActive();
            dc.LineTo(3, 3);
            return true;
        }
        bool wasActive = false;
        bool isActive = true;
    } killer;
    pChild->installEventFilter(&killer);
    pChild->show();
    EXPECT_TRUE(vxtest::waitUntil([&] { return killer.wasActive; }));
    EXPECT_FALSE(killer.isActive);
    pChild->removeEventFilter(&killer);
}

TEST(ControlColors, AreAskedOfTheWindowAround)
{
    Shown s;
    s.show();
    auto* const pLabel = new QLabel(QStringLiteral("label"), s.pWidget);
    auto* const pBox = new QGroupBox(s.pWidget);
    auto* const pEdit = new QLineEdit(pBox);
    auto* const pButton = new QPushButton(pBox);
    pButton->setAutoFillBackground(true);
    int y = 0;
    for (QWidget* const pControl : QList<QWidget*>{pLabel, pBox, pEdit, pButton}) {
        pControl->setGeometry(5, y, 50, 30);
        pControl->show();
        y = pControl == pLabel ? 35 : y == 35 ? 0 : 15;
    }
    EXPECT_TRUE(vxtest::waitUntil([&] { return s.view.kinds.size() == 4; }));
    EXPECT_EQ(s.view.kinds[pLabel], CTLCOLOR_STATIC);
    EXPECT_EQ(s.view.kinds[pBox], CTLCOLOR_STATIC);
    EXPECT_EQ(s.view.kinds[pEdit], CTLCOLOR_EDIT);
    EXPECT_EQ(s.view.kinds[pButton], CTLCOLOR_BTN);
    EXPECT_EQ(pLabel->palette().color(QPalette::WindowText), QColor(Qt::red));
    EXPECT_EQ(pLabel->palette().color(QPalette::Window), QColor(Qt::yellow));
    s.view.brush.DeleteObject();
    s.view.brush.CreateSolidBrush(RGB(0, 255, 255));
    pLabel->update();
    EXPECT_TRUE(vxtest::waitUntil(
        [&] { return pLabel->palette().color(QPalette::Window) == QColor(Qt::cyan); }));
    // What the application sets later stays its own, as does the background that it asked for.
    EXPECT_TRUE(pLabel->autoFillBackground());
    for (QWidget* const pControl :
         {static_cast<QWidget*>(pLabel), static_cast<QWidget*>(pButton)}) {
        QPalette palette = pControl->palette();
        palette.setColor(QPalette::Highlight, Qt::darkRed);
        palette.setColor(QPalette::WindowText, Qt::darkBlue);
        pControl->setPalette(palette);
    }
    s.view.answers = false;
    pLabel->update();
    pButton->update();
    const QColor window = s.top.palette().color(QPalette::Window);
    EXPECT_TRUE(
        vxtest::waitUntil([&] { return pLabel->palette().color(QPalette::Window) == window; }));
    EXPECT_FALSE(pLabel->autoFillBackground());
    EXPECT_TRUE(pButton->autoFillBackground());
    for (QWidget* const pControl :
         {static_cast<QWidget*>(pLabel), static_cast<QWidget*>(pButton)}) {
        EXPECT_EQ(pControl->palette().color(QPalette::Highlight), QColor(Qt::darkRed));
        EXPECT_EQ(pControl->palette().color(QPalette::WindowText), QColor(Qt::darkBlue));
    }
    s.view.answers = true;
    // Sent by hand: the result is the brush, of all seven messages.
    CDC_E dc;
    for (UINT n = 0; n < CTLCOLOR_MAX; ++n) {
        LRESULT result = -1;
        EXPECT_TRUE(s.view.OnWndMsg(WM_CTLCOLORMSGBOX + n, reinterpret_cast<WPARAM>(&dc),
                                    reinterpret_cast<LPARAM>(pLabel), &result));
        EXPECT_EQ(s.view.kinds[pLabel], n);
        EXPECT_EQ(result,
                  n == CTLCOLOR_EDIT ? 0 : reinterpret_cast<LRESULT>(s.view.brush.GetSafeHandle()));
    }
}

} // namespace
