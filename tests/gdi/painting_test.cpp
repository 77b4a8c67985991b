// Windows that paint themselves: WM_PAINT, WM_ERASEBKGND, WM_CTLCOLOR, drawing at other times.
#include "gdi/gditest.h"

namespace {

// What the screen shows of a widget.
QImage shown(const QWidget& widget)
{
    const QPoint at = widget.mapTo(widget.window(), QPoint());
    return widget.screen()
        ->grabWindow(widget.window()->winId(), at.x(), at.y(), widget.width(), widget.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// At these places, whatever the scale.
bool comesToShow(const QWidget& widget, const QVector<std::pair<QPoint, QColor>>& places)
{
    return vxtest::waitUntil([&] {
        const QImage image = shown(widget).scaled(widget.size());
        return std::all_of(places.begin(), places.end(), [&](const auto& place) {
            return image.pixelColor(place.first) == place.second;
        });
    });
}

struct View : CWnd_E
{
    void OnPaint()
    {
        log += QLatin1Char('p');
        paint();
    }
    BOOL OnEraseBkgnd(CDC_E* pDC)
    {
        log += QLatin1Char('e');
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

    std::function<void()> paint = [] {};
    std::function<void(CDC_E&)> erase = [](CDC_E&) {};
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
struct Painting : testing::Test
{
    Painting()
    {
        top.setGeometry(50, 50, 200, 150);
        view.Create(&top);
        pWidget = view.GetSafeHwnd();
        pWidget->setGeometry(20, 30, 100, 80);
        top.show();
        EXPECT_TRUE(vxtest::waitUntil([this] {
            return top.windowHandle()->isExposed() && view.log.contains(QLatin1Char('p'));
        }));
    }
    void repaint()
    {
        view.log.clear();
        pWidget->update();
        EXPECT_TRUE(vxtest::waitUntil([this] { return !view.log.isEmpty(); }));
    }

    QWidget top;
    View view;
    QWidget* pWidget;
};

TEST_F(Painting, DrawsOnTheScreenWhatItDrawsOnAnImage)
{
    const auto picture = [](CDC_E& dc) {
        CPen_E pen(PS_SOLID, 3, RGB(0, 0, 255));
        CBrush_E hatch(HS_CROSS, RGB(255, 0, 0));
        dc.SelectStockObject(BLACK_PEN);
        dc.LineTo(99, 79);
        dc.SelectObject(&pen);
        dc.SelectObject(&hatch);
        dc.Rectangle(10, 10, 60, 40);
        tagRECT rect{0, 0, 30, 30};
        dc.InvertRect(&rect);
        dc.BitBlt(60, 40, 20, 20, &dc, 5, 5, SRCCOPY);
    };
    view.erase = [](CDC_E& dc) { dc.FillSolidRect(0, 0, 100, 80, RGB(240, 255, 240)); };
    view.paint = [&] {
        CPaintDC_E dc(&view);
        EXPECT_EQ(CRect_E(dc.m_ps.rcPaint), CRect_E(0, 0, 100, 80));
        EXPECT_TRUE(dc.m_painter.device() == pWidget && CDC_E::FromHandle(dc.m_ps.hdc) == &dc);
        picture(dc);
    };
    repaint();
    EXPECT_EQ(view.log, "ep"_q);
    QImage expected(100, 80, QImage::Format_RGB32);
    CDC_E dc(&expected);
    view.erase(dc);
    picture(dc);
    dc.DeleteDC();
    EXPECT_TRUE(vxtest::waitUntil([&] { return shown(*pWidget) == expected; }));
}

// The first one goes on after the second has ended.
TEST_F(Painting, SecondPainterOfAPaintMessageLeavesTheFirstAlone)
{
    const auto second = [this] {
        CClientDC_E dc(&view);
        dc.FillSolidRect(10, 10, 20, 20, RGB(255, 0, 0));
    };
    const auto expectBoth = [this] {
        repaint();
        EXPECT_TRUE(comesToShow(*pWidget, {{{20, 20}, Qt::red}, {{50, 20}, Qt::blue}}));
        QImage rendered(100, 80, QImage::Format_RGB32);
        pWidget->render(&rendered);
        EXPECT_EQ(rendered.pixelColor(20, 20), QColor(Qt::red));
        EXPECT_EQ(rendered.pixelColor(50, 20), QColor(Qt::blue));
        EXPECT_EQ(pWidget->grab().toImage().pixelColor(50, 20), QColor(Qt::blue));
    };
    view.paint = [&] {
        CPaintDC_E dc(&view);
        second();
        dc.FillSolidRect(40, 10, 20, 20, RGB(0, 0, 255));
    };
    expectBoth();
    view.paint = [&] {
        QPainter painter(pWidget);
        second();
        painter.fillRect(40, 10, 20, 20, Qt::blue);
    };
    expectBoth();
}

// All widgets of a window share what is shown: it is not to be painted twice at once.
TEST_F(Painting, ContextsOfOtherWidgetsInAPaintMessage)
{
    QWidget sibling(&top);
    sibling.setGeometry(130, 30, 40, 40);
    sibling.show();
    const auto mark = [](QWidget* pAny) {
        CClientDC_E(pAny).FillSolidRect(2, 2, 5, 5, RGB(255, 0, 0));
    };
    view.erase = [&](CDC_E&) { mark(&sibling); };
    QWidget* const pChild = new QWidget(pWidget);
    pChild->setGeometry(5, 5, 20, 20);
    pChild->show();
    view.paint = [&] {
        CPaintDC_E dc(&view);
        for (QWidget* const pOther : {&sibling, &top, pChild})
            mark(pOther);
        dc.FillSolidRect(50, 50, 9, 9, RGB(0, 0, 255)); // goes on
    };
    repaint();
    EXPECT_TRUE(comesToShow(top, {{{132, 32}, Qt::red}, {{3, 3}, Qt::red}, {{75, 85}, Qt::blue}}));
}

TEST_F(Painting, ClientContextReachesTheScreenAtOnce)
{
    view.paint = [this] { CPaintDC_E(&view).FillSolidRect(0, 0, 100, 80, RGB(0, 128, 0)); };
    repaint();
    QImage expected = shown(*pWidget);
    QPainter painter(&expected);
    painter.fillRect(90, 70, 5, 5, QColor(1, 2, 3)); // by a second one meanwhile
    painter.setCompositionMode(QPainter::RasterOp_NotDestination);
    for (int round = 0; round < 2; ++round) { // the second time it takes itself away again
        {
            CClientDC_E dc(&view);
            EXPECT_EQ(dc.GetPixel(5, 5), RGB(0, 128, 0)); // what is there
            CClientDC_E(&view).FillSolidRect(90, 70, 5, 5, RGB(1, 2, 3));
            dc.SetROP2(R2_NOT);
            dc.MoveTo(3, 3);
            dc.LineTo(80, 60);
        }
        painter.drawLine(3, 3, 80, 60);
        EXPECT_EQ(shown(*pWidget), expected);
    }
    EXPECT_EQ(view.log, "ep"_q); // nobody was asked to paint again
}

TEST_F(Painting, WidgetThatDiesLeavesAnInactivePainter)
{
    struct Dying : QWidget
    {
        using QWidget::QWidget;
        void paintEvent(QPaintEvent*) override
        {
            CDC_E dc(this);
            const bool began = dc.m_painter.isActive();
            Q_EMIT destroyed(this); // as its destructor does
            ended = began && !dc.m_painter.isActive();
            dc.LineTo(3, 3);
        }
        bool ended = false;
    } dying(&top);
    dying.show();
    EXPECT_TRUE(vxtest::waitUntil([&] { return dying.ended; }));
}

TEST_F(Painting, ControlColorsAreAskedOfTheWindowAround)
{
    auto* const pLabel = new QLabel("label"_q, pWidget);
    auto* const pBox = new QGroupBox(pWidget);
    auto* const pEdit = new QLineEdit(pBox);
    auto* const pButton = new QPushButton(pBox);
    pButton->setAutoFillBackground(true);
    pBox->setGeometry(0, 35, 50, 40);
    pButton->move(0, 20);
    pLabel->show();
    pBox->show();
    const QHash<QWidget*, UINT> expected{{pLabel, CTLCOLOR_STATIC},
                                         {pBox, CTLCOLOR_STATIC},
                                         {pEdit, CTLCOLOR_EDIT},
                                         {pButton, CTLCOLOR_BTN}};
    EXPECT_TRUE(vxtest::waitUntil([&] { return view.kinds == expected; }));
    const auto colorOf = [](const QWidget* pControl, QPalette::ColorRole role) {
        return pControl->palette().color(role);
    };
    const auto labelComesToBe = [&](const QColor& color) {
        pLabel->update();
        return vxtest::waitUntil([&] { return colorOf(pLabel, QPalette::Window) == color; });
    };
    EXPECT_TRUE(labelComesToBe(Qt::yellow));
    EXPECT_EQ(colorOf(pLabel, QPalette::WindowText), QColor(Qt::red));
    EXPECT_TRUE(pLabel->autoFillBackground());
    // What the application sets later stays its own, as does the background that it asked for.
    const std::initializer_list<QWidget*> changed{pLabel, pButton};
    for (QWidget* const pControl : changed) {
        QPalette palette = pControl->palette();
        palette.setColor(QPalette::WindowText, Qt::darkBlue);
        pControl->setPalette(palette);
    }
    view.answers = false;
    pButton->update();
    EXPECT_TRUE(labelComesToBe(colorOf(&top, QPalette::Window)));
    EXPECT_TRUE(!pLabel->autoFillBackground() && pButton->autoFillBackground());
    for (QWidget* const pControl : changed)
        EXPECT_EQ(colorOf(pControl, QPalette::WindowText), QColor(Qt::darkBlue));
    view.answers = true;
    // Sent by hand: the result is the brush, of all seven messages.
    CDC_E dc;
    for (UINT n = 0; n < CTLCOLOR_MAX; ++n) {
        LRESULT result = -1;
        EXPECT_TRUE(view.OnWndMsg(WM_CTLCOLORMSGBOX + n, reinterpret_cast<WPARAM>(&dc),
                                  reinterpret_cast<LPARAM>(pLabel), &result));
        EXPECT_EQ(view.kinds[pLabel], n);
        EXPECT_EQ(result, n == CTLCOLOR_EDIT ? 0 : reinterpret_cast<LRESULT>(view.brush.m_hObject));
    }
}

} // namespace
