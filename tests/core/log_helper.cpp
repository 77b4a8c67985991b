// Logs as its arguments say: folders | text TEXT | rotate LOG | threads COUNT LINES | exit.
#include <VxMFCEmu/core/log.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

void logFromThreads(int threads, int lines)
{
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t, lines] {
            for (int i = 0; i < lines; ++i)
                vxLogPrintf(L"thread %d line %d %s", t, i, L"abcdefghijklmnopqrstuvwxyz");
        });
    }
    for (std::thread& worker : workers)
        worker.join();
}

/// Moves the log away between two lines.
void logAcrossRotation(const std::string& log)
{
    vxLogPrintf(L"one");
    std::rename(log.c_str(), (log + ".old").c_str());
    vxLogPrintf(L"two");
}

/// Outlives everything that main() made the library keep.
struct LastWords
{
    ~LastWords()
    {
        if (wanted)
            vxLogPrintf(L"last");
    }
    bool wanted = false;
} g_lastWords;

} // namespace

int main(int argc, char** argv)
{
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "folders")
        std::printf("%s\n%s\n", GetApplicationDirectory(nullptr).Utf8Ptr(),
                    GetMainDirectory().Utf8Ptr());
    else if (what == "text" && argc > 2)
        vxLogPrintf(L"%S", argv[2]);
    else if (what == "rotate" && argc > 2)
        logAcrossRotation(argv[2]);
    else if (what == "threads" && argc > 3)
        logFromThreads(std::atoi(argv[2]), std::atoi(argv[3]));
    else if (what == "exit") {
        vxLogPrintf(L"first");
        g_lastWords.wanted = true;
    } else
        return 1;
    return 0;
}
