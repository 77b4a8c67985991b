#include <VxMFCEmu/core/exceptions.h>
#include <VxMFCEmu/dlg/messagebox.h>

#include "support/waiting.h"
#include "support/xinput.h"

#include <QtTest/QTest>

#include <X11/keysym.h>

#include <thread>

namespace {

QMessageBox* openBox() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

/// Captions of the buttons from left to right, the default one in brackets.
QString buttonRow(const QMessageBox& box)
{
    QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    QStringList texts;
    for (const QPushButton* pButton : buttons)
        texts += (pButton->isDefault() ? QStringLiteral("[%1]") : QStringLiteral("%1"))
                     .arg(pButton->text().remove(u'&'));
    return texts.join(u'|');
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

struct SetRow
{
    int line;
    UINT type;
    const char* buttons; // from left to right
    std::vector<int> results;
    int closeResult; // of Escape and the close button; 0 when the box stays
};

const SetRow kSets[] = {
    {__LINE__, MB_OK, "OK", {IDOK}, IDOK},
    {__LINE__, MB_OKCANCEL, "OK|Cancel", {IDOK, IDCANCEL}, IDCANCEL},
    {__LINE__, MB_ABORTRETRYIGNORE, "Abort|Retry|Ignore", {IDABORT, IDRETRY, IDIGNORE}, 0},
    {__LINE__, MB_YESNOCANCEL, "Yes|No|Cancel", {IDYES, IDNO, IDCANCEL}, IDCANCEL},
    {__LINE__, MB_YESNO, "Yes|No", {IDYES, IDNO}, 0},
    {__LINE__, MB_RETRYCANCEL, "Retry|Cancel", {IDRETRY, IDCANCEL}, IDCANCEL},
    {__LINE__,
     MB_CANCELTRYCONTINUE,
     "Cancel|Try Again|Continue",
     {IDCANCEL, IDTRYAGAIN, IDCONTINUE},
     IDCANCEL},
};

int showSet(UINT type) { return MessageBox_E(nullptr, L"text", L"caption", type); }

TEST(MessageBox, ButtonsAndTheirAnswers)
{
    for (const SetRow& row : kSets) {
        SCOPED_TRACE(row.line);
        const QStringList texts = QString::fromLatin1(row.buttons).split(u'|');
        for (int i = 0; i < 4; ++i) {
            const int first = i < texts.size() ? i : 0;
            const auto byReturn = [&](QMessageBox& box) {
                QStringList expected = texts;
                expected[first] = QStringLiteral("[%1]").arg(texts[first]);
                EXPECT_EQ(buttonRow(box).toStdString(), expected.join(u'|').toStdString());
                QTest::keyClick(&box, Qt::Key_Return);
            };
            EXPECT_EQ(
                withBox([&] { return showSet(row.type | UINT(i) * MB_DEFBUTTON2); }, byReturn),
                row.results[std::size_t(first)]);
            const bool hasKey = i < texts.size() && texts[i] != QLatin1String("OK") &&
                                texts[i] != QLatin1String("Cancel");
            if (hasKey) {
                EXPECT_EQ(
                    withBox([&] { return showSet(row.type); }, pressKey(texts[i][0].unicode())),
                    row.results[std::size_t(i)]);
            }
        }
        const auto close = [](QMessageBox& box) { box.close(); };
        EXPECT_EQ(withBox([&] { return showSet(row.type); }, close), row.closeResult);
        EXPECT_EQ(withBox([&] { return showSet(row.type); }, pressKey(Qt::Key_Escape)),
                  row.closeResult);
    }
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
    const struct
    {
        int line;
        UINT type;
        QMessageBox::Icon icon;
        bool onTop;
    } rows[] = {
        {__LINE__, MB_OK, QMessageBox::NoIcon, false},
        {__LINE__, MB_ICONHAND, QMessageBox::Critical, false},
        {__LINE__, MB_ICONQUESTION | MB_TASKMODAL, QMessageBox::Question, false},
        {__LINE__, MB_ICONEXCLAMATION | MB_TOPMOST, QMessageBox::Warning, true},
        {__LINE__, MB_ICONASTERISK | MB_SYSTEMMODAL, QMessageBox::Information, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        withBox([&] { return MessageBox_E(&owner, L"<b>%1</b>\r\n\U0001F600", L"cap", row.type); },
                [&](QMessageBox& box) {
                    EXPECT_EQ(box.text(), QStringLiteral("<b>%1</b>\n\U0001F600"));
                    EXPECT_EQ(box.textFormat(), Qt::PlainText);
                    EXPECT_EQ(box.windowTitle(), QStringLiteral("cap"));
                    EXPECT_EQ(box.icon(), row.icon);
                    EXPECT_EQ(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint), row.onTop);
                    EXPECT_EQ(box.parentWidget(), &owner);
                    EXPECT_TRUE(box.isModal());
                    box.done(0);
                });
    }
    withBox([] { return MessageBox_E(nullptr, nullptr, nullptr); },
            [](QMessageBox& box) {
                EXPECT_EQ(box.text(), QString());
                EXPECT_EQ(box.windowTitle(), QStringLiteral("Error"));
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
    QApplication::setApplicationDisplayName(QStringLiteral("Gauge"));
    const int result = withBox([] { return AfxMessageBox_E(L"Sure?", MB_YESNO); },
                               [&](QMessageBox& box) {
                                   EXPECT_EQ(box.parentWidget(), &window);
                                   EXPECT_EQ(box.windowTitle(), QStringLiteral("Gauge"));
                                   EXPECT_EQ(box.icon(), QMessageBox::Question);
                                   QTest::keyClick(&box, Qt::Key_Y);
                               });
    EXPECT_EQ(result, IDYES);
    withBox([] { return AfxMessageBox_E(4711U); },
            [](QMessageBox& box) {
                EXPECT_EQ(box.text(), QStringLiteral("#4711"));
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
    const struct
    {
        int line;
        CException_E& exception;
        UINT nMessageID;
        const char* text;
    } rows[] = {
        {__LINE__, talking, 12, "spoken"},
        {__LINE__, silent, 12, "#12"},
        {__LINE__, silent, 0, "#61472"},
        {__LINE__, _simpleUserException, 12, "CException"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(withBox([&] { return row.exception.ReportError(MB_RETRYCANCEL, row.nMessageID); },
                          [&](QMessageBox& box) {
                              EXPECT_EQ(box.text().toStdString(), row.text);
                              QTest::keyClick(&box, Qt::Key_R);
                          }),
                  IDRETRY);
    }
}

} // namespace
