#include "support/test.h"

namespace {

int handleA, handleB;

TEST(ModuleState, OneOfEachInTheProcess)
{
    std::thread([] { EXPECT_EQ(AfxGetModuleThreadState_E(), &gdiThreadState); }).join();
    EXPECT_FALSE(AfxGetStaticModuleState_E() || AfxGetResourceHandle_E()) << "not used";
}

TEST(ModuleState, MapsAreMadeOnRequest)
{
    CHandleMap_E* const kept = std::exchange(gdiThreadState.m_pmapHGDIOBJ, nullptr);
    EXPECT_EQ(afxMapHGDIOBJ_E(FALSE), nullptr);
    CHandleMap_E* const made = afxMapHGDIOBJ_E(TRUE);
    EXPECT_TRUE(made && afxMapHGDIOBJ_E(FALSE) == made && afxMapHGDIOBJ_E(TRUE) == made);
    delete std::exchange(gdiThreadState.m_pmapHGDIOBJ, kept);
}

struct ToolTip final : VxToolTip
{
    void DestroyToolTipCtrl() override { ++destroyed; }
    int destroyed = 0;
};

TEST(ModuleState, TheThreadStateDestroysWhatItOwns)
{
    ToolTip toolTip;
    {
        AFX_MODULE_THREAD_STATE_E state;
        state.m_pToolTip = &toolTip;
        state.m_pLastInfo = static_cast<tagTOOLINFOW*>(LocalAlloc_E(LPTR, 16));
    }
    EXPECT_EQ(toolTip.destroyed, 1);
}

TEST(ExtensionModule, InitialisedOnceThenItsSlotsAreAssigned)
{
    AFX_EXTENSION_MODULE_E state{};
    CThreadLocal_E<CNoTrackObject_E> local;
    local.GetData();
    AfxTermExtensionModule_E(state);
    EXPECT_EQ(AfxInitExtensionModule_E(state, &handleA), TRUE);
    EXPECT_TRUE(state.bInitialized && !state.pFirstSharedClass && state.hModule == &handleA &&
                state.hResource == &handleA);
    AfxTermExtensionModule_E(state, FALSE);
    EXPECT_NE(local.GetDataNA(), nullptr) << "the slot belongs to no module yet";
    EXPECT_EQ(AfxInitExtensionModule_E(state, &handleA), TRUE);
    std::thread([&] { AfxTermExtensionModule_E(state, FALSE); }).join();
    EXPECT_EQ(local.GetDataNA(), nullptr) << "of every thread, whatever the argument";
}

TEST(DynLinkLibrary, KeepsTheModuleOnly)
{
    const AFX_EXTENSION_MODULE_E state{TRUE, &handleA, &handleB, nullptr, nullptr};
    const CDynLinkLibrary_E library(state, TRUE);
    EXPECT_TRUE(library.m_hModule == &handleA && !library.m_hResource);
    // Intended: without a meta object of its own it cannot be told from its base.
    EXPECT_TRUE(CCmdTarget_E().IsKindOf(RUNTIME_CLASS_E(CDynLinkLibrary_E)));
}

} // namespace
