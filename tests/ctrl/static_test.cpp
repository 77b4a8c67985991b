#include "support/test.h"

#include <VxCustomUI.h>

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
        ASSERT_EQ(label.Create(L"Text", dwStyle, {5, 6, 105, 36}, &window), 1);
        const auto* const pLabel = qobject_cast<QLabel*>(label.GetSafeHwnd());
        ASSERT_TRUE(pLabel);
        EXPECT_EQ(pLabel->text(), "Text"_q);
        EXPECT_EQ(int(pLabel->alignment()), alignment);
        EXPECT_EQ(pLabel->wordWrap(), bWrap);
        EXPECT_EQ(pLabel->frameShape(), shape);
    });
}

TEST(Static, TextAndImages)
{
    QPixmap blue(8, 9);
    blue.fill(Qt::blue);
    const QIcon icon(blue);
    QImage image = blue.toImage();
    const auto bitmap = reinterpret_cast<LPARAM>(&image);
    const auto handle = reinterpret_cast<WPARAM>(&icon);
    CStatic_E made;
    ASSERT_TRUE(made.Create(nullptr, SS_LEFT, {}, nullptr));
    QLabel label;
    VxCUILabel companion;
    for (QWidget* const pWidget : std::initializer_list<QWidget*>{made, &label, &companion}) {
        auto* const pStatic = qobject_cast<CStatic_E*>(CWnd_E::FromHandle(pWidget));
        ASSERT_TRUE(pStatic);
        pStatic->SetWindowText(L"A & B");
        EXPECT_EQ(qobject_cast<QLabel*>(pWidget)->text(), "A & B"_q);
        CString_E strText;
        pStatic->GetWindowText(strText);
        EXPECT_STREQ(strText.GetString(), L"A & B");
        EXPECT_TRUE(pStatic->SetBitmap(blue).isNull());
        EXPECT_EQ(pStatic->GetBitmap().cacheKey(), blue.cacheKey());
        pStatic->SetIcon(icon);
        EXPECT_EQ(pWidget->windowIcon().cacheKey(), icon.cacheKey());
        EXPECT_EQ(pStatic->GetIcon().cacheKey(), icon.cacheKey());
        EXPECT_EQ(pStatic->SendMessage(STM_SETIMAGE, IMAGE_BITMAP, bitmap), 0);
        EXPECT_EQ(pStatic->SendMessage(STM_GETIMAGE, IMAGE_BITMAP), bitmap);
        EXPECT_EQ(pStatic->SendMessage(STM_SETICON, handle), 0);
        EXPECT_EQ(pStatic->SendMessage(STM_GETICON), static_cast<LRESULT>(handle));
        EXPECT_EQ(pStatic->SendMessage(STM_SETIMAGE, IMAGE_ENHMETAFILE, bitmap), 0);
    }
    ClearTempObjectPool();

    CStatic_E destroyed;
    auto pLabel = std::make_unique<QLabel>();
    EXPECT_TRUE(destroyed.SubclassWindow(pLabel.get()));
    pLabel.reset();
    EXPECT_TRUE(destroyed.SetBitmap(blue).isNull() && destroyed.GetBitmap().isNull());
    EXPECT_TRUE(destroyed.SetIcon(icon).isNull() && destroyed.GetIcon().isNull());
    QLineEdit edit;
    EXPECT_FALSE(destroyed.SubclassWindow(&edit));
}
