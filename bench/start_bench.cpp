/// From the start of the process to the main window with its data, still hidden: how long the user waits at the least.
/// The benchmark starts itself as a child, which does what the program does and then says that it is ready.
#include <benchmark/benchmark.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>

#include "big_table.h"
#include "platform/qt/program.h"
#include "platform/windows/quit.h"
#include "settings/globals.h"
#include "shell/app.h"

namespace {

using namespace tallyvane;

constexpr const char* childMark = "--child";

/// The child: starts as main() does, and writes a byte when the window has its data.
int beProgram(int& argc, char** argv) {
    QtProgram program(argc, argv, {0, 0, 746, 518});
    App app;
    program.run([&] {
        app.Event_Open();
        const char ready = app.windows().main->ListBox1.ListCount() == 10'000 ? 1 : 0;
        if (::write(STDOUT_FILENO, &ready, 1) == 1)
            Quit(0);
    });
    return 0;
}

void start_to_hidden_window(benchmark::State& state) {
    bench::settleFolder(bench::bigFile(10'000));
    ::setenv("XDG_DATA_HOME", SpecialFolder::ApplicationData->AbsolutePath().c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    for (auto _ : state) {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0)
            return state.SkipWithError("no pipe");
        const auto start = std::chrono::steady_clock::now();
        const pid_t child = ::fork();
        if (child == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::execl("/proc/self/exe", "start_bench", childMark, nullptr);
            ::_exit(1);
        }
        ::close(ends[1]);
        char ready = 0;
        const bool answered = ::read(ends[0], &ready, 1) == 1 && ready == 1;
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        ::close(ends[0]);
        ::waitpid(child, nullptr, 0);
        if (!answered)
            return state.SkipWithError("the program did not come up with its 10,000 days");
    }
}
BENCHMARK(start_to_hidden_window)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], childMark) == 0)
        return beProgram(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
