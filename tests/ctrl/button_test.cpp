// Buttons and static controls: their styles, their checks and their images.
#include "controls.h"

#include <QtTest/QSignalSpy>

namespace {

using namespace vxtest;

/// Images by member and by the messages that set one and ask for it.
template <typename Control>
void checkImages(Control& control, UINT set, UINT get)
{
    QImage image(12, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QIcon icon(QPixmap::fromImage(image));
    EXPECT_TRUE(control.SetBitmap(icon.pixmap(12, 10)).isNull());
    EXPECT_EQ(control.GetBitmap().size(), image.size());
    runSteps(control, {{set, IMAGE_BITMAP, at(&image), 0}, {get, IMAGE_BITMAP, at(&image)}});
    EXPECT_EQ(control.GetBitmap().toImage().pixelColor(3, 3), QColor(Qt::red));
    runSteps(control, {{set, IMAGE_BITMAP, at(&image)}, {get, IMAGE_BITMAP, 0}});
    EXPECT_TRUE(control.GetBitmap().isNull());
    runSteps(control, {{set, IMAGE_ICON, at(&icon), 0}, {get, IMAGE_ICON, at(&icon)}});
    EXPECT_EQ(control.GetIcon().cacheKey(), icon.cacheKey());
    runSteps(control, {{set, IMAGE_ENHMETAFILE, at(&image), 0}});
}

TEST(Button, StyleAndCheckOfMadeAndFoundButtons)
{
    CWnd_E window;
    ASSERT_TRUE(window.Create(static_cast<QWidget*>(nullptr)));
    QWidget* const pParent = window;
    auto* const pThree = new QCheckBox(pParent);
    pThree->setTristate(true);
    // What the form has; the style asked for, the widget's class and style, and what SetCheck() of
    // 1, 2, 3, -1 and 0 leaves, one after the other.
    const Row<QWidget*, DWORD, const char*, DWORD, const char*> rows[] = {
        {nullptr, BS_DEFPUSHBUTTON | BS_FLAT, "QPushButton", 0x8001, "00000"},
        {nullptr, BS_CHECKBOX, "QCheckBox", 3, "11110"},
        {nullptr, BS_AUTO3STATE, "QCheckBox", 6, "12220"},
        {nullptr, BS_RADIOBUTTON, "QRadioButton", 4, "11111"},
        {nullptr, BS_AUTORADIOBUTTON, "QRadioButton", 9, "11111"},
        {nullptr, BS_GROUPBOX, "QGroupBox", 7, "00000"},
        {pThree, 0, "QCheckBox", BS_AUTOCHECKBOX, "11110"},
        {new QRadioButton(pParent), 0, "QRadioButton", BS_RADIOBUTTON, "11111"},
        {new QGroupBox(pParent), 0, "QGroupBox", BS_GROUPBOX, "00000"},
        {new QToolButton(pParent), 0, "QToolButton", 0, "00000"},
    };
    forRows(rows, [&](QWidget* pFound, DWORD dwStyle, const char* pszClass, DWORD set,
                      const char* pszStates) {
        CButton_E made;
        ASSERT_TRUE(pFound || made.Create(L"", dwStyle, kPlace, &window, 0xFFFF) == 1);
        QWidget* const pWidget = pFound ? pFound : made;
        auto* const pButton = qobject_cast<CButton_E*>(CWnd_E::FromHandle(pWidget));
        ASSERT_TRUE(pButton);
        EXPECT_STREQ(pWidget->metaObject()->className(), pszClass);
        EXPECT_EQ(pButton->GetButtonStyle(), set);
        EXPECT_EQ(pWidget->property("flat").toBool(), set == 0x8001);
        for (const int nSet : {1, 2, 3, -1, 0})
            runSteps(pWidget, {{BM_SETCHECK, nSet, 0}, {BM_GETCHECK, *pszStates++ - '0'}});
    });
    CButton_E found;
    ASSERT_TRUE(found.SubclassWindow(pThree));
    found.SetButtonStyle(BS_AUTO3STATE);
    found.SetCheck(2);
    EXPECT_EQ(pThree->checkState(), Qt::PartiallyChecked);
    found.SendMessage(BM_SETSTYLE, BS_RADIOBUTTON | BS_LEFTTEXT);
    EXPECT_EQ(found.GetButtonStyle(), BS_AUTO3STATE | BS_LEFTTEXT);
    ClearTempObjectPool();
}

TEST(Button, ClicksAndImages)
{
    CButton_E box;
    ASSERT_TRUE(box.Create(L"&Go", BS_AUTOCHECKBOX, kPlace, static_cast<QWidget*>(nullptr)));
    EXPECT_EQ(box.GetSafeHwnd()->property("text"), "&Go"_q);
    const QSignalSpy clicks(box.GetSafeHwnd(), SIGNAL(clicked()));
    runSteps(box, {{BM_SETCHECK, 1, 0}, {BM_CLICK, 0}, {BM_GETCHECK, 0}});
    EXPECT_EQ(clicks.count(), 1) << "none of what is set";
    checkImages(box, BM_SETIMAGE, BM_GETIMAGE);
    tagSIZE size{};
    EXPECT_TRUE(box.GetIdealSize(&size) && size.cx > 0 && !box.GetIdealSize(nullptr));
}

TEST(Static, StyleOfWhatIsMade)
{
    CWnd_E window;
    ASSERT_TRUE(window.Create(static_cast<QWidget*>(nullptr)));
    const Row<DWORD, int, bool, int> rows[] = {
        {SS_LEFT, Qt::AlignLeft | Qt::AlignTop, true, QFrame::NoFrame},
        {SS_CENTER | SS_CENTERIMAGE, Qt::AlignCenter, true, QFrame::NoFrame},
        {SS_ETCHEDHORZ, Qt::AlignLeft | Qt::AlignTop, false, QFrame::HLine},
        {SS_BITMAP | SS_CENTERIMAGE, Qt::AlignCenter, false, QFrame::NoFrame},
        {SS_SIMPLE | SS_SUNKEN, Qt::AlignLeft | Qt::AlignTop, false, QFrame::Panel},
    };
    forRows(rows, [&](DWORD dwStyle, int alignment, bool bWrap, int shape) {
        CStatic_E label;
        ASSERT_EQ(label.Create(L"Text", dwStyle, kPlace, &window), 1);
        const auto* const pLabel = qobject_cast<QLabel*>(label.GetSafeHwnd());
        EXPECT_EQ(pLabel->text(), "Text"_q);
        EXPECT_EQ(int(pLabel->alignment()), alignment);
        EXPECT_EQ(std::pair(pLabel->wordWrap(), int(pLabel->frameShape())),
                  std::pair(bWrap, shape));
    });
}

TEST(Static, Images)
{
    CStatic_E label;
    ASSERT_TRUE(label.Create(nullptr, SS_LEFT, {}, nullptr));
    checkImages(label, STM_SETIMAGE, STM_GETIMAGE);
    EXPECT_NE(label.SendMessage(STM_GETICON), 0);
    EXPECT_NE(label.SendMessage(STM_SETICON), 0);
    EXPECT_EQ(label.SendMessage(STM_GETICON), 0);
}

} // namespace
