#include "support/test.h"

#include <VxCustomUI.h>

namespace {

constexpr tagRECT kRect{5, 6, 105, 36};

QPixmap bluePixmap()
{
    QPixmap pixmap(8, 9);
    pixmap.fill(Qt::blue);
    return pixmap;
}

/// One that is made here, one of a form, one of the companion library.
template <typename Check>
void forLabels(Check check)
{
    CStatic_E made;
    ASSERT_TRUE(made.Create(L"", SS_LEFT, kRect, static_cast<QWidget*>(nullptr)));
    QLabel label;
    VxCUILabel companion;
    check(made);
    for (QWidget* const pWidget :
         {static_cast<QWidget*>(&label), static_cast<QWidget*>(&companion)}) {
        auto* const pStatic = qobject_cast<CStatic_E*>(CWnd_E::FromHandle(pWidget));
        ASSERT_TRUE(pStatic);
        check(*pStatic);
    }
    CWnd_E::DeleteTempMap();
}

} // namespace

TEST(Static, StyleOfWhatIsMade)
{
    CWnd_E window;
    ASSERT_TRUE(window.Create(static_cast<QWidget*>(nullptr)));
    const Row<DWORD, int, bool, int> rows[] = {
        {SS_LEFT, Qt::AlignLeft | Qt::AlignTop, true, QFrame::NoFrame},
        {SS_CENTER | SS_CENTERIMAGE, Qt::AlignCenter, true, QFrame::NoFrame},
        {SS_RIGHT, Qt::AlignRight | Qt::AlignTop, true, QFrame::NoFrame},
        {SS_LEFTNOWORDWRAP, Qt::AlignLeft | Qt::AlignTop, false, QFrame::NoFrame},
        {SS_ETCHEDHORZ, Qt::AlignLeft | Qt::AlignTop, false, QFrame::HLine},
        {SS_BITMAP | SS_CENTERIMAGE, Qt::AlignCenter, false, QFrame::NoFrame},
        {SS_SIMPLE | SS_SUNKEN, Qt::AlignLeft | Qt::AlignTop, false, QFrame::Panel},
    };
    forRows(rows, [&](DWORD dwStyle, int alignment, bool bWrap, int shape) {
        CStatic_E label;
        ASSERT_EQ(label.Create(L"Text", dwStyle, kRect, &window), 1);
        const auto* const pLabel = qobject_cast<QLabel*>(label.GetSafeHwnd());
        ASSERT_TRUE(pLabel);
        EXPECT_EQ(pLabel->text(), "Text"_q);
        EXPECT_EQ(int(pLabel->alignment()), alignment);
        EXPECT_EQ(pLabel->wordWrap(), bWrap);
        EXPECT_EQ(pLabel->frameShape(), shape);
        EXPECT_EQ(pLabel->geometry(), QRect(5, 6, 100, 30));
    });
}

TEST(Static, TextAndImages)
{
    forLabels([](CStatic_E& label) {
        const auto* const pLabel = qobject_cast<QLabel*>(label.GetSafeHwnd());
        label.SetWindowText(L"A & B");
        EXPECT_EQ(pLabel->text(), "A & B"_q);
        CString_E strText;
        label.GetWindowText(strText);
        EXPECT_STREQ(strText.GetString(), L"A & B");
        EXPECT_TRUE(label.GetBitmap().isNull());
        const QPixmap blue = bluePixmap();
        EXPECT_TRUE(label.SetBitmap(blue).isNull());
        EXPECT_EQ(label.GetBitmap().cacheKey(), blue.cacheKey());
        const QIcon icon(blue);
        label.SetIcon(icon);
        EXPECT_EQ(pLabel->windowIcon().cacheKey(), icon.cacheKey());
        EXPECT_EQ(label.GetIcon().cacheKey(), icon.cacheKey());

        QImage image = blue.toImage();
        const auto bitmap = reinterpret_cast<LPARAM>(&image);
        const auto handle = reinterpret_cast<WPARAM>(&icon);
        EXPECT_EQ(label.SendMessage(STM_SETIMAGE, IMAGE_BITMAP, bitmap), 0);
        EXPECT_EQ(label.GetBitmap().size(), QSize(8, 9));
        EXPECT_EQ(label.SendMessage(STM_GETIMAGE, IMAGE_BITMAP), bitmap);
        EXPECT_EQ(label.SendMessage(STM_SETIMAGE, IMAGE_BITMAP, 0), bitmap);
        EXPECT_EQ(label.SendMessage(STM_SETICON, handle), 0);
        EXPECT_EQ(label.SendMessage(STM_GETICON), static_cast<LRESULT>(handle));
        EXPECT_EQ(label.SendMessage(STM_SETICON), static_cast<LRESULT>(handle));
        EXPECT_EQ(label.SendMessage(EM_GETLINECOUNT), 0);
    });
}

TEST(Static, NoWidget)
{
    CStatic_E none;
    CStatic_E destroyed;
    auto pLabel = std::make_unique<QLabel>();
    ASSERT_TRUE(destroyed.SubclassWindow(pLabel.get()));
    pLabel.reset();
    QLineEdit edit;
    EXPECT_FALSE(none.SubclassWindow(&edit));
    for (CStatic_E* const pStatic : {&none, &destroyed}) {
        pStatic->SetWindowText(L"x");
        EXPECT_TRUE(pStatic->SetBitmap(bluePixmap()).isNull() && pStatic->GetBitmap().isNull());
        EXPECT_TRUE(pStatic->SetIcon(QIcon(bluePixmap())).isNull() && pStatic->GetIcon().isNull());
    }
}
