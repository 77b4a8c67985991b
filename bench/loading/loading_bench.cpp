// From the start of a program to its main(), with the library and with Qt alone: the processor's
// time, which other programs of the machine have no part in.
#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace {

struct Run
{
    long number;    ///< what the program said on standard output; 0 when it cannot be run or fails
    double seconds; ///< what it used
};

double secondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

Run run(const char* program)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return {};
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
    rusage used{};
    if (error == 0)
        wait4(process, &status, 0, &used);
    return {said && status == 0 ? std::strtol(text.data(), nullptr, 10) : 0,
            secondsOf(used.ru_utime) + secondsOf(used.ru_stime)};
}

void load(benchmark::State& state, const char* program)
{
    long kib = 0;
    for ([[maybe_unused]] auto _ : state) {
        const Run last = run(program);
        kib = last.number;
        if (kib == 0) {
            state.SkipWithError("the program failed");
            break;
        }
        state.SetIterationTime(last.seconds);
    }
    state.counters["KiB"] = static_cast<double>(kib);
}

void LoadLibrary(benchmark::State& state) { load(state, VXMFC_LOAD_LIBRARY); }
void LoadLibrary_raw(benchmark::State& state) { load(state, VXMFC_LOAD_QT); }

BENCHMARK(LoadLibrary)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(LoadLibrary_raw)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
