#include "support/test.h"

#include <dlfcn.h>

namespace {

class Plugin
{
public:
    explicit Plugin(const char* file)
        : m_handle(dlopen((std::string(TEXT_PLUGIN_DIR) + file).c_str(), RTLD_NOW | RTLD_LOCAL))
    {
        EXPECT_TRUE(m_handle) << dlerror();
    }
    Q_DISABLE_COPY_MOVE(Plugin)
    ~Plugin() { EXPECT_EQ(dlclose(m_handle), 0); }

    template <typename Function>
    Function* find(const char* name) const
    {
        return reinterpret_cast<Function*>(dlsym(m_handle, name));
    }
    QString name() const
    {
        QString result;
        find<void(QString*)>("pluginName")(&result);
        return result;
    }

private:
    void* m_handle;
};

QString s_seen;
int lookFromHost()
{
    s_seen = GetMfyResourceName();
    return s_seen.size();
}

TEST(ResourceName, IsThatOfTheModuleWhichCalls)
{
    const Plugin gizmo("libGizmo.so.2");
    EXPECT_EQ(gizmo.name(), QLatin1String("Gizmo"));
    gizmo.find<int(int (*)())>("pluginCallBack")(&lookFromHost);
    EXPECT_EQ(s_seen, QLatin1String("text_test"));
    QString inThread;
    std::thread([&] { inThread = gizmo.name(); }).join();
    EXPECT_EQ(inThread, QLatin1String("Gizmo"));
}

TEST(ResourceName, IsNotMistakenWhenAnotherPluginTakesThePlaceOfAnUnloadedOne)
{
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Plugin("libGizmo.so.2").name(), QLatin1String("Gizmo"));
        EXPECT_EQ(Plugin("libSprocket.so").name(), QLatin1String("Sprocket"));
    }
}

TEST(ResourceName, KnowsTheThreeLibraries)
{
    for (const char* name : {"VxMFCEmu", "libVxMFCEmu", "VxArxEmu", "VxCustomUI"})
        EXPECT_TRUE(isCurrentLibrary(QLatin1String(name))) << name;
    for (const char* name : {"", "lib", "vxmfcemu", "LibVxMFCEmu", "VxMFCEmu2", "VxMFC"})
        EXPECT_FALSE(isCurrentLibrary(QLatin1String(name))) << name;
}

TEST(LoadString, ReadsTheCallersTable)
{
    CString_E text;
    EXPECT_TRUE(text.LoadString(101));
    EXPECT_EQ(text, L"Host");

    const Plugin gizmo("libGizmo.so.2");
    auto* const load = gizmo.find<BOOL(CString_E*, UINT)>("pluginLoad");
    constexpr Row<UINT, BOOL, const wchar_t*> kRows[] = {{101, TRUE, L"Gizmo, ready"},
                                                         {102, TRUE, L"图层 \"%s\""},
                                                         {103, TRUE, L"one, two, three"},
                                                         {105, TRUE, L""},
                                                         {999, FALSE, L""}};
    forRows(kRows, [&](UINT id, BOOL found, const wchar_t* loaded) {
        text = L"old";
        EXPECT_EQ(load(&text, id), found);
        EXPECT_EQ(text, loaded);
    });
    EXPECT_EQ(gizmo.find<int(CString_E*, UINT)>("pluginFormat")(&text, 104), 17);
    EXPECT_EQ(text, L"3 of nine4 of ten");
}

} // namespace
