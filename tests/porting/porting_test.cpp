// What the snippets do, before as well as after they have been brought over.
#include "gaugewnd.h"
#include "optionsdlg.h"
#include "plotview.h"

#include "support/test.h"

#include <dlfcn.h>

namespace {

// Before, the sources mean what they meant for Win32 and MFC; some of it has another meaning here.
constexpr bool kAfter = PORTING_AFTER;

TEST(Porting, TheDialogExchangesItsData)
{
    COptionsDlg dialog;
    dialog.m_nSpacing = 25;
    dialog.m_bGrid = FALSE;
    QTimer poll;
    bool acted = false;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (acted || !dialog.GetSafeHwnd() || !dialog.GetSafeHwnd()->isVisible())
            return;
        acted = true;
        const auto* const pSpacing =
            dynamic_cast<QLineEdit*>(dialog.GetDlgItem(IDC_SPACING, nullptr));
        const auto* const pGrid = dynamic_cast<QCheckBox*>(dialog.GetDlgItem(IDC_GRID, nullptr));
        EXPECT_EQ(pSpacing->text(), "25"_q);
        EXPECT_FALSE(pGrid->isChecked());
        dynamic_cast<QPushButton*>(dialog.GetDlgItem(IDC_DEFAULTS, nullptr))->click();
        EXPECT_EQ(pSpacing->text(), "10"_q);
        EXPECT_TRUE(pGrid->isChecked());
        dynamic_cast<QComboBox*>(dialog.GetDlgItem(IDC_SIZE, nullptr))->setCurrentIndex(1);
        dynamic_cast<QPushButton*>(dialog.GetDlgItem(IDOK, nullptr))->click();
    });
    poll.start(5);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(std::tuple(dialog.m_nSpacing, dialog.m_bGrid, dialog.m_nSize, dialog.m_nChanges),
              std::tuple(10, TRUE, 1, 1));
}

TEST(Porting, TheMessageMapHandles)
{
    QWidget widget;
    CGaugeWnd gauge;
    ASSERT_TRUE(gauge.SubclassWindow(&widget));
    widget.setGeometry(50, 50, 200, 20);
    widget.show();
    ASSERT_TRUE(vxtest::waitUntil([&] { return gauge.m_nWidth == 200; }));
    EXPECT_EQ(gauge.SendMessage(WM_GAUGE_SETLEVEL, 40), 0);
    EXPECT_EQ(gauge.SendMessage(WM_GAUGE_SETLEVEL, 60), 40);
    gauge.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 10));
    EXPECT_EQ(gauge.m_nLevel, 25);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {20, 10});
    QCoreApplication::sendEvent(&widget, &menu);
    EXPECT_EQ(gauge.m_nLevel == 10, kAfter); // the message carries a local position
}

TEST(Porting, TheViewDraws)
{
    QWidget widget;
    widget.resize(160, 100);
    CPlotView view;
    ASSERT_TRUE(view.SubclassWindow(&widget));
    const QImage image = widget.grab().toImage();
    const QColor paper(255, 255, 255), line(192, 0, 0), fill(255, 224, 160);
    const Row<QPoint, QColor> rows[] = {
        {{2, 2}, paper}, // painted, not left to the widget
        {{10, 10}, line},
        {{35, 25}, fill},
        {{60, 30}, line},                   // the outline lies one pixel beyond the fill
        {{120, 50}, line},                  // the last point of a line is drawn
        {{150, 25}, kAfter ? paper : fill}, // an ellipse takes width and height
    };
    forRows(rows, [&](QPoint point, const QColor& color) {
        EXPECT_EQ(image.pixelColor(point).name(), color.name());
    });

    QRect text;
    for (int y = 60; y < 90; ++y) {
        for (int x = 10; x < 120; ++x)
            if (image.pixelColor(x, y).blue() > 2 * image.pixelColor(x, y).red())
                text |= QRect(x, y, 1, 1);
    }
    EXPECT_FALSE(text.isEmpty());
    EXPECT_EQ(std::abs(text.center().y() - 75) < 4, kAfter); // a text format is one of Qt's
}

TEST(Porting, ThePlugInLoads)
{
    void* const plugin = dlopen(PORTING_PLUGIN, RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(plugin) << dlerror();
    const auto call = [&](const char* name) { return dlsym(plugin, name); };
    const auto entry = reinterpret_cast<int (*)(HINSTANCE, DWORD, LPVOID)>(call("DllMain"));
    EXPECT_EQ(entry == nullptr, kAfter);
    // As the loader of Win32 does.
    EXPECT_TRUE(!entry || entry(plugin, 1, nullptr));

    ASSERT_TRUE(reinterpret_cast<BOOL (*)()>(call("GizmoOpen"))());
    const auto isShown = [] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* pWidget) {
            return pWidget->isVisible() && pWidget->windowTitle() == "Gizmo at work"_q;
        });
    };
    EXPECT_TRUE(isShown());
    reinterpret_cast<void (*)()>(call("GizmoClose"))();
    EXPECT_FALSE(isShown());

    EXPECT_TRUE(!entry || entry(plugin, 0, nullptr));
    vxtest::deliverPosted();
    EXPECT_EQ(dlclose(plugin), 0);
}

} // namespace
