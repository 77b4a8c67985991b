// Reading one value of a profile file, beside settings opened on the file for it.
#include <VxMFCEmu/sys.h>

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cwchar>

namespace {

constexpr DWORD kRoom = 100;

const QString& profileName()
{
    static const QTemporaryDir folder;
    static const QString name = [] {
        QString path = folder.filePath(QStringLiteral("profile.ini"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            for (int i = 0; i < 100; ++i)
                file.write(QStringLiteral("[S%1]\nName=value %1\nSize=%1\n").arg(i).toUtf8());
        }
        return path;
    }();
    return name;
}

void check(benchmark::State& state, const wchar_t* value)
{
    if (std::wcscmp(value, L"value 50") != 0)
        state.SkipWithError("wrong value");
}

void getProfileString(benchmark::State& state)
{
    const std::wstring name = profileName().toStdWString();
    wchar_t value[kRoom] = L"";
    for (auto _ : state) {
        GetPrivateProfileString_E(L"S50", L"Name", L"", value, kRoom, name.c_str());
        benchmark::DoNotOptimize(value);
    }
    check(state, value);
}
BENCHMARK(getProfileString);
void getProfileString_raw(benchmark::State& state)
{
    const QString name = profileName();
    wchar_t value[kRoom] = L"";
    for (auto _ : state) {
        QSettings settings(name, QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        const QString text =
            settings.value(QStringLiteral("S50/Name"), QStringLiteral("")).toString();
        value[text.toWCharArray(value)] = L'\0';
        benchmark::DoNotOptimize(value);
    }
    check(state, value);
}
BENCHMARK(getProfileString_raw);

} // namespace
