// Dialogs under real keys and clicks: how they begin, what ends them, what they survive.
#include "support/test.h"
#include "support/xinput.h"

#include <VxCustomUI.h>
#include <X11/keysym.h>

#if defined(__SANITIZE_ADDRESS__)
#    include <sanitizer/lsan_interface.h>
#endif

namespace {

/// Notes what happens to it and does what the test says.
class NotingDlg : public CDialog_E
{
public:
    using CDialog_E::CDialog_E;

    BOOL OnInitDialog() override
    {
        note("init");
        return CDialog_E::OnInitDialog() && (!onInit || onInit());
    }
    void OnOK() override
    {
        note("ok");
        onOK ? onOK() : CDialog_E::OnOK();
    }
    void OnCancel() override
    {
        note("cancel");
        onCancel ? onCancel() : CDialog_E::OnCancel();
    }
    void PostNcDestroy() override { note("gone"); }
    void DoDataExchange(CDataExchange_E* pDX) override
    {
        if (onExchange)
            onExchange(pDX);
    }
    LRESULT OnUser(WPARAM, LPARAM) { return onUser(), 0; }

    QLineEdit* edit(const char* name = "text") const
    {
        return qobject_cast<QLineEdit*>(GetChildWidget(name));
    }

    std::string notes;
    std::function<BOOL()> onInit;
    std::function<void()> onOK, onCancel, onUser;
    std::function<void(CDataExchange_E*)> onExchange;

private:
    void note(const char* what) { notes += notes.empty() ? what : std::string(" ") + what; }
    DECLARE_MESSAGE_MAP_E()
};

BEGIN_MESSAGE_MAP_E(NotingDlg, CDialog_E)
ON_MESSAGE_E(WM_APP, &NotingDlg::OnUser)
END_MESSAGE_MAP_E()

constexpr UINT kSettings = 100;

/// DoModal(), with @p act called when the dialog is shown; what is still open a while later ends
/// with 99.
template <typename Act>
int runModal(CDialog_E& dialog, Act act)
{
    bool acted = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget* const pWidget = acted ? nullptr : dialog.GetSafeHwnd(); // it may be gone by then
        if (!pWidget || !pWidget->isVisible())
            return;
        acted = true;
        const QPointer<CDialog_E> guard(&dialog);
        QTimer::singleShot(20000, pWidget, [guard] { guard ? guard->EndDialog(99) : void(); });
        act();
    });
    poll.start(5);
    const int result = dialog.DoModal();
    EXPECT_TRUE(acted);
    return result;
}

void click(QWidget* pWidget)
{
    vxtest::movePointer(pWidget, pWidget->rect().center());
    vxtest::clickButton(1);
}

/// Runs @p run, which opens a message box, and @p act on the box.
template <typename Run, typename Act>
void withBox(Run run, Act act)
{
    bool acted = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (acted || !pBox || !pBox->isVisible())
            return;
        acted = true;
        QTimer::singleShot(2000, pBox, [pBox] { pBox->done(0); });
        act(*pBox);
    });
    poll.start(5);
    run();
    EXPECT_TRUE(acted);
}

TEST(Dialog, KeysClicksAndTheCloseButton)
{
    VXTEST_NEEDS_X11();
    using Act = std::function<void(NotingDlg&)>;
    const auto key = [](unsigned long keysym) {
        return [keysym](NotingDlg&) { vxtest::typeKey(keysym); };
    };
    const auto button = [](const char* name) {
        return [name](NotingDlg& dialog) { click(dialog.GetChildWidget(name)); };
    };
    const Row<const char*, Act, int, const char*> rows[] = {
        {"Escape", key(XK_Escape), IDCANCEL, "init cancel gone"},
        {"Enter", key(XK_Return), IDOK, "init ok gone"},
        {"OK", button("OK"), IDOK, "init ok gone"},
        {"Cancel", button("Cancel"), IDCANCEL, "init cancel gone"},
        {"close button", [](auto& dialog) { vxtest::closeWindow(dialog.GetSafeHwnd()->winId()); },
         IDCANCEL, "init cancel gone"},
    };
    for (const auto& [name, act, result, notes] : rows) {
        SCOPED_TRACE(name);
        NotingDlg dialog(kSettings);
        EXPECT_EQ(runModal(dialog,
                           [&, &act = act] {
                               ASSERT_TRUE(vxtest::showAndActivate(dialog.GetSafeHwnd()));
                               EXPECT_TRUE(dialog.GetSafeHwnd()->isModal());
                               EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
                               act(dialog);
                           }),
                  result);
        EXPECT_EQ(dialog.notes, notes);
        EXPECT_FALSE(dialog.GetSafeHwnd());
        EXPECT_FALSE(QApplication::overrideCursor());
    }
}

TEST(Dialog, ResultsOfEndDialog)
{
    const Row<int, int> rows[] = {{IDOK, IDOK}, {IDCANCEL, IDCANCEL}, {0, IDCANCEL},
                                  {7, 7},       {IDABORT, IDABORT},   {-1, -1}};
    forRows(rows, [](int ended, int result) {
        CDialog_E dialog;
        EXPECT_EQ(runModal(dialog, [&] { dialog.EndDialog(ended); }), result);
    });
    CDialog_E hidden;
    EXPECT_EQ(runModal(hidden,
                       [&] {
                           hidden.GetSafeHwnd()->setAttribute(Qt::WA_WState_Hidden);
                           hidden.EndDialog(7);
                       }),
              7)
        << "one that Qt takes for hidden ends too";
    hidden.EndDialog(7);
    EXPECT_TRUE(hidden.PreTranslateMessage(nullptr));
    EXPECT_FALSE(hidden.OnCmdMsg(1, 2, nullptr, nullptr));
}

TEST(Dialog, InvalidInputShowsItsMessageAndLeavesTheDialogOpen)
{
    VXTEST_NEEDS_X11();
    NotingDlg dialog(kSettings);
    int value = 5;
    dialog.onExchange = [&](CDataExchange_E* pDX) {
        DDX_Text(pDX, 1006, value);
        DDV_MinMaxInt(pDX, value, 1, 10);
    };
    const int result = runModal(dialog, [&] {
        ASSERT_TRUE(vxtest::showAndActivate(dialog.GetSafeHwnd()));
        QLineEdit* const pEdit = dialog.edit("line");
        const Row<const char*, const char*> rows[] = {{"x", "请输入正确的数值！"},
                                                      {"11", "请填入一个1和10之间的整数。"}};
        forRows(rows, [&](const char* text, const char* message) {
            pEdit->setText(QLatin1String(text));
            dialog.edit()->setFocus();
            const auto fail = [&] {
                EXPECT_FALSE(dialog.UpdateData());
                EXPECT_FALSE(dialog.UpdateData());
                vxtest::deliverPosted();
            };
            withBox(fail, [&](QMessageBox& box) {
                EXPECT_EQ(box.text(), QString::fromUtf8(message));
                EXPECT_EQ(box.windowTitle(), QString());
                ASSERT_TRUE(vxtest::showAndActivate(&box));
                vxtest::typeKey(XK_Return);
            });
            vxtest::deliverPosted();
            EXPECT_EQ(QApplication::activeModalWidget(), dialog) << "one box for both failures";
            EXPECT_TRUE(vxtest::showAndActivate(dialog));
            EXPECT_TRUE(pEdit->hasFocus());
            EXPECT_EQ(pEdit->selectedText(), pEdit->text());
        });
        vxtest::typeKey(XK_7); // in place of what is selected
        vxtest::typeKey(XK_Return);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(value, 7);
}

TEST(Dialog, NestedDialogsEndFromTheInside)
{
    VXTEST_NEEDS_X11();
    NotingDlg outer(kSettings);
    NotingDlg inner(kSettings, &outer);
    EXPECT_EQ(runModal(outer,
                       [&] {
                           NotingDlg second(kSettings, &outer);
                           EXPECT_EQ(runModal(second,
                                              [&] {
                                                  QWidget* const pWidget = second;
                                                  EXPECT_EQ(pWidget->parentWidget(), outer);
                                                  vxtest::showAndActivate(pWidget);
                                                  vxtest::typeKey(XK_Escape);
                                              }),
                                     IDCANCEL);
                           ASSERT_TRUE(vxtest::showAndActivate(outer));
                           vxtest::typeKey(XK_Return);
                       }),
              IDOK);
    EXPECT_EQ(outer.notes, "init ok gone");
}

TEST(Dialog, ModelessIsShownByItsStyleAndStaysUntilDestroyed)
{
    VXTEST_NEEDS_X11();
    NotingDlg dialog;
    ASSERT_TRUE(dialog.Create(kSettings));
    EXPECT_TRUE(dialog.IsWindowVisible());
    ASSERT_TRUE(vxtest::showAndActivate(dialog));
    vxtest::typeKey(XK_Escape);
    EXPECT_TRUE(vxtest::waitUntil([&] { return !dialog.IsWindowVisible(); }));
    EXPECT_TRUE(dialog.GetSafeHwnd()) << "hidden, not destroyed";
    dialog.onCancel = [&] { dialog.DestroyWindow(); };
    dialog.ShowWindow(SW_SHOW);
    vxtest::closeWindow(dialog.GetSafeHwnd()->winId());
    EXPECT_TRUE(vxtest::waitUntil([&] { return !dialog.GetSafeHwnd(); }));
    EXPECT_EQ(dialog.notes, "init cancel cancel gone");
}

TEST(Dialog, CloseButtonCanBeRefused)
{
    NotingDlg dialog(kSettings);
    dialog.onCancel = [] {};
    ASSERT_TRUE(dialog.Create(L"settings"));
    EXPECT_FALSE(dialog.GetSafeHwnd()->close());
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST(Dialog, EmbeddedDialogLeavesEscapeToItsParent)
{
    VXTEST_NEEDS_X11();
    NotingDlg outer(kSettings);
    NotingDlg page;
    int clicks = 0;
    const int result = runModal(outer, [&] {
        ASSERT_TRUE(page.Create(L"none", &outer));
        auto* const pEdit = new QLineEdit(page);
        outer.GetSafeHwnd()->layout()->addWidget(page);
        page.ShowWindow(SW_SHOW);
        ASSERT_TRUE(vxtest::showAndActivate(outer));
        pEdit->setFocus();
        outer.onCancel = [&] {
            EXPECT_TRUE(page.IsWindowVisible());
            outer.EndDialog(5);
        };
        auto* const pDefault = new QPushButton(page);
        pDefault->setDefault(true);
        pDefault->show();
        QObject::connect(pDefault, &QPushButton::clicked, pDefault, [&] { ++clicks; });
        outer.onOK = [&] { ++clicks; };
        vxtest::typeKey(XK_Return);
        ASSERT_TRUE(vxtest::waitUntil([&] { return clicks > 0; }));
        vxtest::typeKey(XK_Escape);
    });
    EXPECT_EQ(result, 5);
    EXPECT_EQ(clicks, 1) << "one default button takes Enter";
    EXPECT_EQ(page.notes, "init gone");
    EXPECT_EQ(outer.notes.substr(outer.notes.size() - 11), "cancel gone");
}

TEST(Dialog, SurvivesDeletionWhileItRuns)
{
    NotingDlg kept(kSettings);
    EXPECT_EQ(runModal(kept, [&] { delete kept.GetSafeHwnd(); }), IDCANCEL);
    EXPECT_FALSE(kept.GetSafeHwnd());
    EXPECT_EQ(runModal(kept, [&] { kept.EndDialog(7); }), 7) << "it can run again";

    const QPointer<NotingDlg> deleted(new NotingDlg(kSettings));
    EXPECT_EQ(runModal(*deleted, [&] { delete deleted; }), IDCANCEL);
    EXPECT_FALSE(deleted);

    NotingDlg child(kSettings);
    auto* const pParent = new QWidget;
    CWnd_E parent;
    parent.SubclassWindow(pParent);
    NotingDlg orphan(kSettings, &parent);
    EXPECT_EQ(runModal(orphan, [&] { delete pParent; }), IDCANCEL);
}

TEST(Dialog, RefusedInitialisation)
{
    const Row<const char*, std::function<BOOL()>> rows[] = {
        {"FALSE", [] { return FALSE; }},
        {"MFC exception", [] { return AfxThrowUserException_E(), TRUE; }},
        {"exception", []() -> BOOL { throw std::runtime_error("init"); }},
    };
    auto* const pGone = new NotingDlg(kSettings);
    pGone->onInit = [pGone] {
        const auto keep = std::move(pGone->onInit); // what runs outlives its dialog
        return delete pGone, TRUE;
    };
    EXPECT_FALSE(pGone->Create(static_cast<QWidget*>(nullptr)));
    for (const auto& [name, onInit] : rows) {
        SCOPED_TRACE(name);
        NotingDlg dialog(kSettings);
        dialog.onInit = onInit;
        EXPECT_EQ(dialog.DoModal(), IDABORT);
        EXPECT_FALSE(dialog.Create(kSettings));
        EXPECT_FALSE(dialog.GetSafeHwnd());
        EXPECT_EQ(dialog.notes, "init init");
    }
    NotingDlg failing;
    failing.onExchange = [](CDataExchange_E* pDX) { pDX->Fail(L"loading shows no message"); };
    EXPECT_EQ(failing.DoModal(), IDABORT);
}

TEST(Dialog, ExchangeThatThrowsIsAFailure)
{
    const std::function<void(CDataExchange_E*)> rows[] = {
        [](CDataExchange_E*) { AfxThrowMemoryException_E(); },
        [](CDataExchange_E*) { throw std::runtime_error("exchange"); },
        [](CDataExchange_E* pDX) { pDX->Fail(); },
    };
    for (const auto& onExchange : rows) {
        NotingDlg dialog(kSettings);
        EXPECT_EQ(runModal(dialog,
                           [&] {
                               dialog.onExchange = onExchange;
                               EXPECT_FALSE(dialog.UpdateData());
                               dialog.accept();
                               EXPECT_TRUE(dialog.IsWindowVisible());
                               dialog.onExchange = nullptr;
                               dialog.accept();
                           }),
                  IDOK);
    }
    CWnd_E plain;
    EXPECT_TRUE(plain.UpdateData(TRUE));
}

std::function<void()> g_onTimer;

TEST(Dialog, ExceptionsOfHandlers)
{
    using Raise = std::function<void(NotingDlg&, const std::function<void()>&)>;
    const Row<const char*, Raise> rows[] = {
        {"slot", [](NotingDlg& d, auto& handler) { d.onOK = handler, d.accept(); }},
        {"message", [](NotingDlg& d, auto& handler) { d.onUser = handler, d.SendMessage(WM_APP); }},
        {"timer",
         [](NotingDlg& d, auto& handler) {
             g_onTimer = handler;
             d.SetTimer(77, 1, [](QWidget* w, UINT, UINT_PTR id, DWORD) {
                 KillTimer_E(w, id);
                 std::exchange(g_onTimer, nullptr)();
             });
             EXPECT_TRUE(vxtest::waitUntil([] { return !g_onTimer; }));
         }},
    };
    for (const auto& [name, raise] : rows) {
        SCOPED_TRACE(name);
        NotingDlg dialog(kSettings);
        EXPECT_EQ(runModal(dialog,
                           [&] {
                               withBox([&] { raise(dialog, [] { AfxThrowMemoryException_E(); }); },
                                       [](QMessageBox& box) { box.done(0); });
                               EXPECT_TRUE(dialog.IsWindowVisible()) << "reported, not ended";
                               dialog.EndDialog(7);
                           }),
                  7);
        EXPECT_THROW(
            runModal(dialog, [&] { raise(dialog, [] { throw std::runtime_error("handler"); }); }),
            std::runtime_error);
        EXPECT_FALSE(dialog.GetSafeHwnd());
        EXPECT_FALSE(QApplication::overrideCursor());
        dialog.onOK = [] { throw 1; };
        EXPECT_THROW(dialog.accept(), int) << "outside of DoModal nothing holds it";
    }
}

// Thrown in a slot that the library does not call, it comes through the event loop.
TEST(Dialog, AnExceptionTearsItOutOfItsLoop)
{
#if defined(__SANITIZE_ADDRESS__)
    const __lsan::ScopedDisabler qtLeaksTheLoop;
#endif
    NotingDlg dialog(kSettings);
    QPointer<QWidget> pTorn;
    EXPECT_THROW(runModal(dialog,
                          [&] {
                              pTorn = dialog.GetSafeHwnd();
                              throw 1;
                          }),
                 int);
    EXPECT_FALSE(dialog.GetSafeHwnd());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(vxtest::waitUntil([&] { return !pTorn; })) << "deleted without its loop";
    EXPECT_EQ(runModal(dialog, [&] { dialog.EndDialog(7); }), 7);
}

TEST(Dialog, FormsOfThePlugIn)
{
    CDialog_E byId(kSettings);
    ASSERT_TRUE(byId.CWnd_E::Create(static_cast<QWidget*>(nullptr)));
    EXPECT_EQ(byId.GetSafeHwnd()->windowTitle(), "Settings"_q);
    EXPECT_EQ(byId.GetSafeHwnd()->windowModality(), Qt::ApplicationModal) << "its style";
    EXPECT_FALSE(byId.IsWindowVisible()) << "shown by its style when it is made modeless only";

    CDialog_E panel;
    ASSERT_TRUE(panel.Create(L"panel"));
    EXPECT_EQ(panel.GetSafeHwnd()->windowTitle(), "A panel"_q);
    EXPECT_TRUE(qobject_cast<VxCUILineEdit*>(panel.GetChildWidget("text")));
    EXPECT_FALSE(panel.GetChildWidget("text")->isEnabled()) << "its style";

    CDialog_E broken;
    EXPECT_FALSE(broken.Create(101U));
    for (const wchar_t* name : {L"no such form", L"", static_cast<const wchar_t*>(nullptr)}) {
        CDialog_E empty;
        ASSERT_TRUE(empty.Create(name));
        EXPECT_TRUE(empty.GetSafeHwnd()->children().isEmpty());
    }
}

TEST(Dialog, ATemporaryWrapperLeavesAForeignDialogAsItIs)
{
    QDialog foreign;
    QPushButton button(&foreign);
    button.setObjectName("OK"_q);
    QObject::connect(&button, SIGNAL(clicked()), &foreign, SLOT(accept()));
    EXPECT_TRUE(qobject_cast<CDialog_E*>(CWnd_E::FromHandle(&foreign)));
    ClearTempObjectPool();
    foreign.show();
    button.click();
    EXPECT_EQ(foreign.result(), QDialog::Accepted);
}

} // namespace
