// What a host's plug-in does with the registry: commands, three words each. Everything happens in
// the key HKEY_CURRENT_USER\Script.
#include <VxMFCEmu/sys/registry.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

HKEY key()
{
    static const HKEY hKey = [] {
        HKEY hOpened = nullptr;
        RegCreateKey_E(HKEY_CURRENT_USER, L"Script", &hOpened);
        return hOpened;
    }();
    return hKey;
}

void setText(const std::string& name, const char* text)
{
    RegSetValueExA_E(key(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text), 0);
}

void print(const char* name)
{
    DWORD type = 0;
    BYTE data[100] = {};
    RegQueryValueExA_E(key(), name, nullptr, &type, data, nullptr);
    if (type == REG_SZ)
        std::printf("text %s\n", reinterpret_cast<const char*>(data));
    else
        std::printf("type %u, %u\n", type, data[0]);
}

// Round after round, until killed.
void churn()
{
    for (int round = 0;; ++round) {
        for (int i = 0; i < 200; ++i)
            setText("churn" + std::to_string(i), std::to_string(round).c_str());
        RegFlushKey_E(key());
        std::puts("round");
        std::fflush(stdout);
    }
}

} // namespace

extern "C" __attribute__((visibility("default"))) int runScript(int argc, char** argv)
{
    for (int i = 0; i + 2 < argc; i += 3) {
        const std::string command = argv[i];
        const char* const name = argv[i + 1];
        const int number = std::atoi(argv[i + 2]);
        const DWORD value = static_cast<DWORD>(number);
        if (command == "text")
            setText(name, argv[i + 2]);
        else if (command == "number")
            RegSetValueExA_E(key(), name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), 4);
        else if (command == "print")
            print(name);
        else if (command == "flush")
            RegFlushKey_E(key());
        else if (command == "churn")
            churn();
        for (int n = 0; command == "flushed" && n < number; ++n) {
            setText(name + std::to_string(n), name);
            RegFlushKey_E(key());
        }
    }
    return 0;
}
