#include "controls.h"

#include <VxCustomUI.h>

namespace {

using namespace vxtest;

TEST(Static, StyleOfWhatIsMade)
{
    CWnd_E window;
    ASSERT_TRUE(window.Create(static_cast<QWidget*>(nullptr)));
    const Row<DWORD, int, bool, int> rows[] = {
        {SS_LEFT, Qt::AlignLeft | Qt::AlignTop, true, QFrame::NoFrame},
        {SS_CENTER | SS_CENTERIMAGE, Qt::AlignCenter, true, QFrame::NoFrame},
        {SS_LEFTNOWORDWRAP, Qt::AlignLeft | Qt::AlignTop, false, QFrame::NoFrame},
        {SS_ETCHEDHORZ, Qt::AlignLeft | Qt::AlignTop, false, QFrame::HLine},
        {SS_BITMAP | SS_CENTERIMAGE, Qt::AlignCenter, false, QFrame::NoFrame},
        {SS_SIMPLE | SS_SUNKEN, Qt::AlignLeft | Qt::AlignTop, false, QFrame::Panel},
    };
    forRows(rows, [&](DWORD dwStyle, int alignment, bool bWrap, int shape) {
        CStatic_E label;
        ASSERT_EQ(label.Create(L"Text", dwStyle, kPlace, &window), 1);
        // clang-format off
        const Steps look = {
            {"text", "Text"_q}, {"alignment", alignment}, {"wordWrap", bWrap},
            {"frameShape", shape},
        };
        // clang-format on
        runSteps(label.GetSafeHwnd(), look);
    });
}

TEST(Static, TextAndImages)
{
    CStatic_E made;
    ASSERT_TRUE(made.Create(nullptr, SS_LEFT, {}, nullptr));
    QLabel label;
    VxCUILabel companion;
    for (QWidget* const pWidget : std::initializer_list<QWidget*>{made, &label, &companion}) {
        auto* const pStatic = qobject_cast<CStatic_E*>(CWnd_E::FromHandle(pWidget));
        ASSERT_TRUE(pStatic);
        pStatic->SetWindowText(L"A & B");
        CString_E strText;
        pStatic->GetWindowText(strText);
        EXPECT_STREQ(strText.GetString(), L"A & B");
        checkImages(*pStatic, STM_SETIMAGE, STM_GETIMAGE);
        EXPECT_NE(pStatic->SendMessage(STM_GETICON), 0);
        EXPECT_NE(pStatic->SendMessage(STM_SETICON), 0);
        EXPECT_EQ(pStatic->SendMessage(STM_GETICON), 0);
    }
    ClearTempObjectPool();
}

} // namespace
