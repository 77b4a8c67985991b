// log_helper TEXT LOG: logs the text and folders, moves the log away, and logs from many threads.
#include <VxMFCEmu/core/log.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace {

/// Outlives everything that main() made the library keep.
struct LastWords
{
    ~LastWords() { vxLogPrintf(L"last"); }
} g_lastWords;

} // namespace

int main(int, char** argv)
{
    vxLogPrintf(L"%S", argv[1]);
    vxLogPrintf(L"%s", GetApplicationDirectory(nullptr).GetString());
    vxLogPrintf(L"%s", GetMainDirectory().GetString());
    std::rename(argv[2], (std::string(argv[2]) + ".old").c_str());
    std::vector<std::thread> workers;
    for (int t = 0; t < 8; ++t) {
        workers.emplace_back([t] {
            for (int i = 0; i < 100; ++i)
                vxLogPrintf(L"thread %d line %d %s", t, i, L"abcdefghijklmnopqrstuvwxyz");
        });
    }
    for (std::thread& worker : workers)
        worker.join();
}
