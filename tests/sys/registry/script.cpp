// What a host's plug-in does with the registry: commands, three words each. Everything happens in
// the key HKEY_CURRENT_USER\Script.
#include <VxMFCEmu/sys/registry.h>

#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" __attribute__((visibility("default"))) int runScript(int argc, char** argv)
{
    HKEY hKey = nullptr;
    RegCreateKey_E(HKEY_CURRENT_USER, L"Script", &hKey);
    const auto set = [hKey](const std::string& name, DWORD type, const void* data) {
        RegSetValueExA_E(hKey, name.c_str(), 0, type, static_cast<const BYTE*>(data), 0);
    };
    for (int i = 0; i + 2 < argc; i += 3) {
        const std::string command = argv[i];
        const std::string name = argv[i + 1];
        const int number = std::atoi(argv[i + 2]);
        if (command == "text") {
            set(name, REG_SZ, argv[i + 2]);
        } else if (command == "number") {
            set(name, REG_DWORD, &number);
        } else if (command == "print") {
            DWORD type = 0;
            BYTE data[100] = {};
            RegQueryValueExA_E(hKey, name.c_str(), nullptr, &type, data, nullptr);
            std::printf("%u: %s\n", type, reinterpret_cast<char*>(data));
        }
        for (int round = 0; command == "rounds" && round < number; ++round) {
            for (int n = 0; n < 100; ++n)
                set(name + std::to_string(n), REG_SZ, std::to_string(round).c_str());
            RegFlushKey_E(hKey);
            std::puts("round");
            std::fflush(stdout);
        }
    }
    return 0;
}
