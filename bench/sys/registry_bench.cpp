// Registry values, beside a QSettings of the same contents.
#include "support/privatesettings.h"

#include <VxMFCEmu/sys/registry.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>
#include <QtCore/QVariant>

#include <benchmark/benchmark.h>

namespace {

constexpr int kValues = 100; // an application's

QSettings& plainSettings()
{
    static QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Plain"));
    return settings;
}

HKEY openKey()
{
    static const HKEY hKey = [] {
        HKEY hOpened = nullptr;
        RegOpenKeyExW_E(HKEY_CURRENT_USER, L"Software\\Vertex\\Settings", 0, KEY_READ, &hOpened);
        for (int i = 0; i < kValues; ++i) {
            const QString name = QStringLiteral("Value%1").arg(i);
            const DWORD number = 1;
            RegSetValueExA_E(hOpened, qPrintable(name), 0, REG_DWORD,
                             reinterpret_cast<const BYTE*>(&number), sizeof number);
            plainSettings().setValue(
                QStringLiteral("HKEY_CURRENT_USER/Software/Vertex/Settings/") + name, 1U);
        }
        return hOpened;
    }();
    return hKey;
}

const wchar_t kName[] = L"Value50";
constexpr wchar_t kText[] = L"C:\\Drawings\\Templates\\metric.dwt";
QString plainName() { return QStringLiteral("HKEY_CURRENT_USER/Software/Vertex/Settings/Value50"); }

void SetNumber(benchmark::State& state)
{
    const HKEY hKey = openKey();
    DWORD number = 0;
    for (auto _ : state) {
        ++number;
        RegSetValueExW_E(hKey, kName, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4);
    }
}
BENCHMARK(SetNumber);
void SetNumber_raw(benchmark::State& state)
{
    openKey();
    const QString name = plainName();
    uint number = 0;
    for (auto _ : state)
        plainSettings().setValue(name, ++number);
}
BENCHMARK(SetNumber_raw);

void SetText(benchmark::State& state)
{
    const HKEY hKey = openKey();
    for (auto _ : state)
        RegSetValueExW_E(hKey, kName, 0, REG_SZ, reinterpret_cast<const BYTE*>(kText),
                         sizeof kText);
}
BENCHMARK(SetText);
void SetText_raw(benchmark::State& state)
{
    openKey();
    const QString name = plainName();
    for (auto _ : state)
        plainSettings().setValue(name, QString::fromWCharArray(kText));
}
BENCHMARK(SetText_raw);

void QueryNumber(benchmark::State& state)
{
    const HKEY hKey = openKey();
    const DWORD number = 7;
    RegSetValueExW_E(hKey, kName, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4);
    DWORD read = 0;
    for (auto _ : state)
        RegQueryValueExW_E(hKey, kName, nullptr, nullptr, reinterpret_cast<BYTE*>(&read), nullptr);
    if (read != 7)
        state.SkipWithError("wrong value");
}
BENCHMARK(QueryNumber);
void QueryNumber_raw(benchmark::State& state)
{
    openKey();
    const QString name = plainName();
    plainSettings().setValue(name, 7U);
    uint read = 0;
    for (auto _ : state)
        read = plainSettings().value(name).toUInt();
    if (read != 7)
        state.SkipWithError("wrong value");
}
BENCHMARK(QueryNumber_raw);

void QueryText(benchmark::State& state)
{
    const HKEY hKey = openKey();
    RegSetValueExW_E(hKey, kName, 0, REG_SZ, reinterpret_cast<const BYTE*>(kText), sizeof kText);
    char read[64];
    DWORD size = 0;
    for (auto _ : state)
        RegQueryValueExW_E(hKey, kName, nullptr, nullptr, reinterpret_cast<BYTE*>(read), &size);
    if (size != std::size(kText))
        state.SkipWithError("wrong value");
}
BENCHMARK(QueryText);
void QueryText_raw(benchmark::State& state)
{
    openKey();
    const QString name = plainName();
    plainSettings().setValue(name, QString::fromWCharArray(kText));
    QByteArray read;
    for (auto _ : state)
        read = plainSettings().value(name).toString().toUtf8();
    if (read.size() + 1 != static_cast<int>(std::size(kText)))
        state.SkipWithError("wrong value");
}
BENCHMARK(QueryText_raw);

// All of one key's values; the time for one should not grow with their number.
void Enumerate(benchmark::State& state)
{
    const auto count = static_cast<DWORD>(state.range(0));
    for (DWORD i = 0; i < count; ++i) {
        const std::string name = std::to_string(state.range(0)) + "\\" + std::to_string(i);
        RegSetValueExA_E(HKEY_USERS, name.c_str(), 0, REG_DWORD, reinterpret_cast<BYTE*>(&i), 4);
    }
    HKEY hKey = nullptr;
    RegOpenKeyA_E(HKEY_USERS, std::to_string(state.range(0)).c_str(), &hKey);
    for (auto _ : state) {
        wchar_t name[20];
        DWORD length = 0;
        DWORD index = 0;
        while (RegEnumKey_E(hKey, index, name, &length) == ERROR_SUCCESS)
            ++index;
        if (index != count)
            state.SkipWithError("wrong count");
        RegFlushKey_E(hKey); // so that each round lists
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    RegDeleteTree_E(hKey, nullptr); // the other rows want a store of the size of their baseline's
    RegFlushKey_E(hKey);
    RegCloseKey_E(hKey);
}
BENCHMARK(Enumerate)->Arg(100)->Arg(1000)->Arg(10000);

} // namespace

int main(int argc, char** argv)
{
    vxtest::usePrivateSettings(argv);
    QCoreApplication app(argc, argv); // sets the locale, as in every host
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    RegCloseKey_E(openKey());
    return 0;
}
