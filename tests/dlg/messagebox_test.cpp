#include "modal.h"

#include <QtTest/QTest>
#include <X11/keysym.h>

namespace {

std::string buttonRow(const QMessageBox& box)
{
    QMap<int, QString> byPlace;
    for (const QPushButton* pButton : box.findChildren<QPushButton*>())
        byPlace[pButton->x()] = pButton->text();
    return QStringList(byPlace.values()).join(u'|').toStdString();
}

template <typename Act>
int showSet(UINT type, Act act)
{
    return withBox([type] { return MessageBox_E(nullptr, L"text", L"caption", type); }, act);
}

TEST(MessageBox, ButtonsAndTheirAnswers)
{
    VXTEST_NEEDS_X11();
    // Buttons from left to right, their results, that of Escape: 0 when it stays.
    const Row<UINT, const char*, std::vector<int>, int> rows[] = {
        {MB_OK, "OK", {IDOK}, IDOK},
        {MB_OKCANCEL, "OK|Cancel", {IDOK, IDCANCEL}, IDCANCEL},
        {MB_ABORTRETRYIGNORE, "&Abort|&Retry|&Ignore", {IDABORT, IDRETRY, IDIGNORE}, 0},
        {MB_YESNOCANCEL, "&Yes|&No|Cancel", {IDYES, IDNO, IDCANCEL}, IDCANCEL},
        {MB_YESNO, "&Yes|&No", {IDYES, IDNO}, 0},
        {MB_RETRYCANCEL, "&Retry|Cancel", {IDRETRY, IDCANCEL}, IDCANCEL},
        {MB_CANCELTRYCONTINUE,
         "Cancel|&Try Again|&Continue",
         {IDCANCEL, IDTRYAGAIN, IDCONTINUE},
         IDCANCEL},
    };
    forRows(rows, [](UINT type, const char* buttons, const auto& results, int closed) {
        for (UINT i = 0; i < 4; ++i) {
            const int byReturn = showSet(type | i * MB_DEFBUTTON2, [&](QMessageBox& box) {
                EXPECT_EQ(buttonRow(box), buttons);
                QTest::keyClick(&box, Qt::Key_Return);
            });
            EXPECT_EQ(byReturn, results[i < results.size() ? i : 0]);
        }
        EXPECT_EQ(showSet(type, [](QMessageBox&) { vxtest::typeKey(XK_Escape); }), closed);
    });
}

struct Silent : CException_E
{
};

TEST(MessageBox, WhatItShows)
{
    QWidget owner;
    QApplication::setApplicationDisplayName("Gauge"_q);
    COleDispatchException_E talking(L"spoken", 0, 0);
    Silent silent;
    using Icon = QMessageBox::Icon;
    const Row<const char*, const char*, Icon, bool, int, std::function<int()>> boxes[] = {
        {"<b>%1</b>\n\U0001F600", "cap", Icon::NoIcon, true, IDYES,
         [&] {
             return MessageBox_E(&owner, L"<b>%1</b>\r\n\U0001F600", L"cap", MB_YESNO | MB_TOPMOST);
         }},
        {"", "Error", Icon::Critical, true, IDOK,
         [&] { return MessageBox_E(&owner, nullptr, nullptr, MB_ICONHAND | MB_SYSTEMMODAL); }},
        {"#4711", "Gauge", Icon::Information, false, IDRETRY,
         [] { return AfxMessageBox_E(4711U, MB_RETRYCANCEL | MB_ICONASTERISK); }},
        {"spoken", "Gauge", Icon::Question, false, IDYES,
         [&] { return talking.ReportError(MB_YESNO, 12); }},
        {"#12", "Gauge", Icon::Warning, false, IDOK, [&] { return silent.ReportError(MB_OK, 12); }},
        {"#61472", "Gauge", Icon::Warning, false, IDOK, [&] { return silent.ReportError(); }},
    };
    const auto check = [&](auto text, auto caption, Icon icon, bool onTop, int result, auto& show) {
        ASSERT_TRUE(vxtest::showAndActivate(&owner)); // it was not active after the last box
        const int answer = withBox(show, [&](QMessageBox& box) {
            EXPECT_EQ(box.text(), QString::fromUtf8(text));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), QLatin1String(caption));
            EXPECT_EQ(box.icon(), icon);
            EXPECT_EQ(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint), onTop);
            EXPECT_EQ(box.parentWidget(), &owner);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        EXPECT_EQ(answer, result);
    };
    forRows(boxes, check);
}

TEST(MessageBox, WhatCannotBeShownGivesZero)
{
    EXPECT_EQ(MessageBox_E(nullptr, L"t", L"c", 0xF), 0);
    std::thread([] {
        EXPECT_EQ(MessageBox_E(nullptr, L"t", L"c"), 0);
        EXPECT_EQ(AfxMessageBox_E(L"t"), 0);
    }).join();
    auto* const pOwner = new QWidget;
    const auto end = [&](QMessageBox&) { QTimer::singleShot(0, [pOwner] { delete pOwner; }); };
    EXPECT_EQ(withBox([&] { return MessageBox_E(pOwner, L"t", L"c", MB_OKCANCEL); }, end), 0);
}

} // namespace
