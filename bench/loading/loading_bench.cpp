// From the start of a program to its main(): with the library, and with Qt alone.
#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace {

/// What a program says on standard output, a number; 0 when it cannot be run or fails.
long run(const char* program)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return 0;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::array<char*, 2> arguments{const_cast<char*>(program), nullptr};
    pid_t process = 0;
    const int error = posix_spawn(&process, program, &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);

    std::array<char, 32> text{};
    const bool said = error == 0 && read(ends[0], text.data(), text.size() - 1) > 0;
    close(ends[0]);
    int status = 1;
    if (error == 0)
        waitpid(process, &status, 0);
    return said && status == 0 ? std::strtol(text.data(), nullptr, 10) : 0;
}

void load(benchmark::State& state, const char* program)
{
    long kib = 0;
    for ([[maybe_unused]] auto _ : state) {
        kib = run(program);
        if (kib == 0) {
            state.SkipWithError("the program failed");
            break;
        }
    }
    state.counters["KiB"] = static_cast<double>(kib);
}

void LoadLibrary(benchmark::State& state) { load(state, VXMFC_LOAD_LIBRARY); }
void LoadLibrary_raw(benchmark::State& state) { load(state, VXMFC_LOAD_QT); }

BENCHMARK(LoadLibrary)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(LoadLibrary_raw)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
