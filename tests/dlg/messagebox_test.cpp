#include "support/test.h"
#include "support/xinput.h"

#include <QtTest/QTest>
#include <X11/keysym.h>

namespace {

QMessageBox* openBox() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

/// Captions of the buttons from left to right, the default one in brackets.
std::string buttonRow(const QMessageBox& box)
{
    QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    QStringList texts;
    for (const QPushButton* pButton : buttons)
        texts += (pButton->isDefault() ? "[%1]"_q : "%1"_q).arg(pButton->text().remove(u'&'));
    return texts.join(u'|').toStdString();
}

/// Runs @p act on the box that @p show opens, and closes what is still open.
template <typename Show, typename Act>
int withBox(Show show, Act act)
{
    bool acted = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QMessageBox* const pBox = openBox();
        if (!pBox || acted || !pBox->isVisible())
            return;
        acted = true;
        const QPointer<QMessageBox> guard(pBox);
        act(*pBox);
        QTimer::singleShot(300, pBox, [guard] {
            if (guard)
                guard->done(-1);
        });
    });
    poll.start(5);
    const int result = show();
    EXPECT_TRUE(acted);
    return result;
}

constexpr auto pressKey = [](int key) {
    return [key](QMessageBox& box) { QTest::keyClick(&box, static_cast<Qt::Key>(key)); };
};

int showSet(UINT type) { return MessageBox_E(nullptr, L"text", L"caption", type); }

TEST(MessageBox, ButtonsAndTheirAnswers)
{
    // Buttons from left to right, their results, that of closing the box: 0 when it stays.
    const Row<UINT, const char*, std::vector<int>, int> rows[] = {
        {MB_OK, "OK", {IDOK}, IDOK},
        {MB_OKCANCEL, "OK|Cancel", {IDOK, IDCANCEL}, IDCANCEL},
        {MB_ABORTRETRYIGNORE, "Abort|Retry|Ignore", {IDABORT, IDRETRY, IDIGNORE}, 0},
        {MB_YESNOCANCEL, "Yes|No|Cancel", {IDYES, IDNO, IDCANCEL}, IDCANCEL},
        {MB_YESNO, "Yes|No", {IDYES, IDNO}, 0},
        {MB_RETRYCANCEL, "Retry|Cancel", {IDRETRY, IDCANCEL}, IDCANCEL},
        {MB_CANCELTRYCONTINUE,
         "Cancel|Try Again|Continue",
         {IDCANCEL, IDTRYAGAIN, IDCONTINUE},
         IDCANCEL},
    };
    forRows(rows, [](UINT type, const char* buttons, const auto& results, int closeResult) {
        const auto show = [type] { return showSet(type); };
        const QStringList texts = QString::fromLatin1(buttons).split(u'|');
        for (int i = 0; i < 4; ++i) {
            const int first = i < texts.size() ? i : 0;
            const auto byReturn = [&](QMessageBox& box) {
                QStringList expected = texts;
                expected[first] = "[%1]"_q.arg(texts[first]);
                EXPECT_EQ(buttonRow(box), expected.join(u'|').toStdString());
                QTest::keyClick(&box, Qt::Key_Return);
            };
            EXPECT_EQ(withBox([&] { return showSet(type | UINT(i) * MB_DEFBUTTON2); }, byReturn),
                      results[std::size_t(first)]);
            if (i < texts.size() && texts[i] != "OK"_q && texts[i] != "Cancel"_q) {
                EXPECT_EQ(withBox(show, pressKey(texts[i][0].unicode())), results[std::size_t(i)]);
            }
        }
        const auto close = [](QMessageBox& box) { box.close(); };
        EXPECT_EQ(withBox(show, close), closeResult);
        EXPECT_EQ(withBox(show, pressKey(Qt::Key_Escape)), closeResult);
    });
}

TEST(MessageBox, RealKeys)
{
    VXTEST_NEEDS_X11();
    const auto type = [](unsigned long key) {
        return [key](QMessageBox& box) {
            if (vxtest::showAndActivate(&box))
                vxtest::typeKey(key);
        };
    };
    EXPECT_EQ(withBox([] { return showSet(MB_OKCANCEL); }, type(XK_Escape)), IDCANCEL);
    EXPECT_EQ(withBox([] { return showSet(MB_YESNO); }, type(XK_n)), IDNO);
    EXPECT_EQ(withBox([] { return showSet(MB_YESNO); }, type(XK_Escape)), 0);
}

TEST(MessageBox, TextCaptionIconAndOwner)
{
    QWidget owner;
    const Row<UINT, QMessageBox::Icon, bool> rows[] = {
        {MB_OK, QMessageBox::NoIcon, false},
        {MB_ICONHAND, QMessageBox::Critical, false},
        {MB_ICONQUESTION | MB_TASKMODAL, QMessageBox::Question, false},
        {MB_ICONEXCLAMATION | MB_TOPMOST, QMessageBox::Warning, true},
        {MB_ICONASTERISK | MB_SYSTEMMODAL, QMessageBox::Information, true},
    };
    forRows(rows, [&](UINT type, QMessageBox::Icon icon, bool onTop) {
        withBox([&] { return MessageBox_E(&owner, L"<b>%1</b>\r\n\U0001F600", L"cap", type); },
                [&](QMessageBox& box) {
                    EXPECT_EQ(box.text(), "<b>%1</b>\n\U0001F600"_q);
                    EXPECT_EQ(box.textFormat(), Qt::PlainText);
                    EXPECT_EQ(box.windowTitle(), "cap"_q);
                    EXPECT_EQ(box.icon(), icon);
                    EXPECT_EQ(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint), onTop);
                    EXPECT_EQ(box.parentWidget(), &owner);
                    EXPECT_TRUE(box.isModal());
                    box.done(0);
                });
    });
    withBox([] { return MessageBox_E(nullptr, nullptr, nullptr); },
            [](QMessageBox& box) {
                EXPECT_EQ(box.text(), QString());
                EXPECT_EQ(box.windowTitle(), "Error"_q);
                box.done(0);
            });
}

TEST(MessageBox, WhatCannotBeShownGivesZero)
{
    EXPECT_EQ(showSet(0xF), 0);
    int fromThread = -1;
    std::thread([&] { fromThread = showSet(MB_OK); }).join();
    EXPECT_EQ(fromThread, 0);
    auto* const pOwner = new QWidget;
    EXPECT_EQ(withBox([&] { return MessageBox_E(pOwner, L"t", L"c", MB_OKCANCEL); },
                      [&](QMessageBox&) { QTimer::singleShot(0, [pOwner] { delete pOwner; }); }),
              0);
}

TEST(AfxMessageBox, ShowsOverTheActiveWindow)
{
    QWidget window;
    ASSERT_TRUE(vxtest::showAndActivate(&window));
    QApplication::setApplicationDisplayName("Gauge"_q);
    const int result = withBox([] { return AfxMessageBox_E(L"Sure?", MB_YESNO); },
                               [&](QMessageBox& box) {
                                   EXPECT_EQ(box.parentWidget(), &window);
                                   EXPECT_EQ(box.windowTitle(), "Gauge"_q);
                                   EXPECT_EQ(box.icon(), QMessageBox::Question);
                                   QTest::keyClick(&box, Qt::Key_Y);
                               });
    EXPECT_EQ(result, IDYES);
    withBox([] { return AfxMessageBox_E(4711U); },
            [](QMessageBox& box) {
                EXPECT_EQ(box.text(), "#4711"_q);
                EXPECT_EQ(box.icon(), QMessageBox::Warning);
                box.done(0);
            });
}

struct Talking : CException_E
{
    using CException_E::GetErrorMessage;
    BOOL GetErrorMessage(wchar_t* lpszError, UINT nMaxError, UINT*) const override
    {
        std::wcsncpy(lpszError, L"spoken", nMaxError);
        return TRUE;
    }
};

struct Silent : CException_E
{
};

TEST(ReportError, ShowsTheMessageOrAResource)
{
    Talking talking;
    Silent silent;
    const Row<CException_E*, UINT, const char*> rows[] = {
        {&talking, 12, "spoken"},
        {&silent, 12, "#12"},
        {&silent, 0, "#61472"},
        {&_simpleUserException, 12, "CException"},
    };
    forRows(rows, [](CException_E* pException, UINT nID, const char* text) {
        const auto show = [&] { return pException->ReportError(MB_RETRYCANCEL, nID); };
        EXPECT_EQ(withBox(show,
                          [&](QMessageBox& box) {
                              EXPECT_EQ(box.text().toStdString(), text);
                              QTest::keyClick(&box, Qt::Key_R);
                          }),
                  IDRETRY);
    });
}

} // namespace
