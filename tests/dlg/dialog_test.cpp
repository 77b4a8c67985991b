// Dialogs under real keys and clicks: how they begin, what ends them, what they survive.
#include "modal.h"

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

    BOOL OnInitDialog() override { return CDialog_E::OnInitDialog() && note("init ", onInit); }
    void OnOK() override { note("ok ", onOK); }
    void OnCancel() override { note("cancel ", onCancel); }
    void PostNcDestroy() override { notes += "gone"; }
    void DoDataExchange(CDataExchange_E* pDX) override { onExchange(pDX); }
    LRESULT OnUser(WPARAM, LPARAM) { return onOK(), 0; }

    std::string notes;
    std::function<BOOL()> onInit = [] { return TRUE; };
    std::function<void()> onOK = [this] { CDialog_E::OnOK(); };
    std::function<void()> onCancel = [this] { CDialog_E::OnCancel(); };
    std::function<void(CDataExchange_E*)> onExchange = [](CDataExchange_E*) {};

private:
    template <typename Result>
    Result note(const char* what, std::function<Result()> run) // a copy, which outlives the dialog
    {
        notes += what;
        return run();
    }
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
    const auto window = [&] { return dialog.GetSafeHwnd(); };
    const auto work = [&](QWidget&) {
        QTimer::singleShot(20000, &dialog, [&dialog] { dialog.EndDialog(99); });
        act();
    };
    return runAndWork([&] { return dialog.DoModal(); }, window, work);
}

// Its own buttons and keys the demo is worked with.
TEST(Dialog, EndsAboveAnotherAndByItsCloseButton)
{
    VXTEST_NEEDS_X11();
    NotingDlg outer(kSettings), inner(kSettings, &outer);
    const int result = runModal(outer, [&] {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        const auto close = [&] { vxtest::closeWindow(inner.GetSafeHwnd()->winId()); };
        EXPECT_EQ(runModal(inner, close), IDCANCEL);
        EXPECT_EQ(inner.notes, "init cancel gone");
        ASSERT_TRUE(vxtest::showAndActivate(outer));
        vxtest::typeKey(XK_Return);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(outer.notes, "init ok gone");
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST(Dialog, EndsAndDeletionsWhileItRuns)
{
    auto* const pParent = new QWidget;
    CWnd_E parent;
    parent.SubclassWindow(pParent);
    auto* const pDialog = new NotingDlg(kSettings, &parent);
    QPointer<QWidget> pTorn;
    const auto endHidden = [=] {
        pDialog->GetSafeHwnd()->setAttribute(Qt::WA_WState_Hidden); // as Qt sees it
        pDialog->EndDialog(7);
    };
    const auto tear = [&] { // comes through the event loop, not through the library
        pTorn = pDialog->GetSafeHwnd();
        throw 1;
    };
    {
#if defined(__SANITIZE_ADDRESS__)
        const __lsan::ScopedDisabler qtLeaksTheTornLoop;
#endif
        EXPECT_THROW(runModal(*pDialog, tear), int);
    }
    EXPECT_FALSE(pDialog->GetSafeHwnd());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(vxtest::waitUntil([&] { return !pTorn; })) << "deleted without its loop";
    EXPECT_EQ(runModal(*pDialog, [=] { delete pDialog->GetSafeHwnd(); }), IDCANCEL);
    EXPECT_EQ(runModal(*pDialog, [=] { pDialog->EndDialog(0); }), IDCANCEL);
    EXPECT_EQ(runModal(*pDialog, endHidden), 7);
    EXPECT_EQ(runModal(*pDialog, [=] { delete pParent; }), IDCANCEL);
    pDialog->EndDialog(7);
    EXPECT_TRUE(pDialog->PreTranslateMessage(nullptr));
    EXPECT_FALSE(pDialog->OnCmdMsg(1, 2, nullptr, nullptr));
    EXPECT_EQ(runModal(*pDialog, [=] { delete pDialog; }), IDCANCEL);
}

TEST(Dialog, ModelessIsShownByItsStyleAndStaysUntilDestroyed)
{
    NotingDlg dialog;
    dialog.onCancel = [] {};
    ASSERT_TRUE(dialog.Create(kSettings));
    EXPECT_FALSE(dialog.GetSafeHwnd()->close()) << "refused";
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.onCancel = [&] { dialog.EndDialog(IDCANCEL); };
    EXPECT_TRUE(dialog.GetSafeHwnd()->close());
    ASSERT_TRUE(dialog.GetSafeHwnd()) << "hidden, not destroyed";
    dialog.onCancel = [&] { dialog.DestroyWindow(); };
    dialog.ShowWindow(SW_SHOW);
    dialog.GetSafeHwnd()->close();
    EXPECT_EQ(dialog.notes, "init cancel cancel cancel gone");
}

TEST(Dialog, EmbeddedDialogLeavesEnterAndEscapeToItsParent)
{
    VXTEST_NEEDS_X11();
    NotingDlg outer(kSettings), page;
    int clicks = 0;
    const int result = runModal(outer, [&] {
        ASSERT_TRUE(page.Create(L"none"));
        auto* const pEdit = new QLineEdit(page);
        auto* const pDefault = new QPushButton(page);
        pDefault->setDefault(true);
        QObject::connect(pDefault, &QPushButton::clicked, pDefault, [&] { ++clicks; });
        outer.GetSafeHwnd()->layout()->addWidget(page); // no longer a window of its own
        page.ShowWindow(SW_SHOW);
        ASSERT_TRUE(vxtest::showAndActivate(outer));
        pEdit->setFocus();
        outer.onOK = [&] { ++clicks; };
        outer.onCancel = [&] { outer.EndDialog(page.IsWindowVisible() ? 5 : 6); };
        for (const auto key : std::initializer_list<unsigned long>{XK_Return, XK_KP_Enter}) {
            clicks = 0;
            vxtest::typeKey(key);
            EXPECT_TRUE(vxtest::waitUntil([&] { return clicks > 0; }));
            EXPECT_EQ(clicks, 1) << "one default button takes it";
        }
        vxtest::typeKey(XK_Escape);
    });
    EXPECT_EQ(result, 5) << "the page does not hide itself";
    EXPECT_EQ(page.notes, "init gone");
}

TEST(Dialog, FailuresOfInitialisationAndExchange)
{
    auto* const pGone = new NotingDlg(kSettings);
    pGone->onInit = [pGone] { return delete pGone, TRUE; };
    EXPECT_FALSE(pGone->Create(static_cast<QWidget*>(nullptr)));
    const std::function<void()> rows[] = {
        [] { AfxThrowUserException_E(); },
        [] { throw std::runtime_error("init"); },
        [] { CDataExchange_E(nullptr, TRUE).Fail(); },
    };
    for (const auto& fail : rows) {
        NotingDlg dialog(kSettings);
        dialog.onInit = [&] { return fail(), TRUE; };
        EXPECT_FALSE(dialog.Create(kSettings));
        EXPECT_FALSE(dialog.GetSafeHwnd());
        dialog.onInit = [] { return FALSE; };
        EXPECT_EQ(dialog.DoModal(), IDABORT);
        dialog.onInit = [] { return TRUE; };
        const auto good = std::exchange(dialog.onExchange, [&](auto*) { fail(); });
        EXPECT_EQ(dialog.DoModal(), IDABORT);
        const auto bad = std::exchange(dialog.onExchange, good);
        const int result = runModal(dialog, [&] {
            dialog.onExchange = bad;
            dialog.accept();
            EXPECT_TRUE(dialog.IsWindowVisible());
            dialog.EndDialog(7);
        });
        EXPECT_EQ(result, 7);
        EXPECT_EQ(dialog.notes, "init init init ok gone");
    }
    EXPECT_TRUE(CWnd_E().UpdateData(TRUE));
}

NotingDlg* g_pTimed = nullptr;

void inTimer(NotingDlg& dialog)
{
    g_pTimed = &dialog;
    dialog.SetTimer(77, 1, [](QWidget* pWidget, UINT, UINT_PTR id, DWORD) {
        KillTimer_E(pWidget, id);
        std::exchange(g_pTimed, nullptr)->onOK();
    });
    EXPECT_TRUE(vxtest::waitUntil([] { return !g_pTimed; }));
}

TEST(Dialog, ExceptionsOfHandlers)
{
    const std::function<void(NotingDlg&)> rows[] = {
        [](NotingDlg& dialog) { dialog.accept(); },
        [](NotingDlg& dialog) { dialog.SendMessage(WM_APP); },
        inTimer,
    };
    for (const auto& raise : rows) {
        NotingDlg dialog(kSettings);
        dialog.onOK = [] { AfxThrowMemoryException_E(); };
        const int result = runModal(dialog, [&] {
            withBox([&] { raise(dialog); }, closeBox);
            EXPECT_TRUE(dialog.IsWindowVisible()) << "reported, not ended";
            dialog.EndDialog(7);
        });
        EXPECT_EQ(result, 7);
        dialog.onOK = [] { throw 1; };
        EXPECT_THROW(runModal(dialog, [&] { raise(dialog); }), int);
        EXPECT_FALSE(dialog.GetSafeHwnd());
        EXPECT_FALSE(QApplication::overrideCursor());
        EXPECT_THROW(dialog.accept(), int) << "outside of DoModal nothing holds it";
    }
}

TEST(Dialog, FormsOfThePlugIn)
{
    CDialog_E panel, broken, none;
    ASSERT_TRUE(panel.Create(L"panel"));
    EXPECT_EQ(panel.GetSafeHwnd()->windowTitle(), "A panel"_q);
    EXPECT_FALSE(panel.IsWindowVisible()) << "its style shows nothing";
    EXPECT_TRUE(qobject_cast<VxCUILineEdit*>(panel.GetChildWidget("text")));
    EXPECT_FALSE(panel.GetChildWidget("text")->isEnabled()) << "its style";
    EXPECT_FALSE(broken.Create(101U));
    ASSERT_TRUE(none.Create(L"no such form"));
    EXPECT_TRUE(none.GetSafeHwnd()->children().isEmpty());
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
