/// Runs the benchmarks that need Qt, without a display.
#include <benchmark/benchmark.h>

#include <malloc.h>

#include <QApplication>

int main(int argc, char** argv) {
    // Memory once taken stays: what the kernel does to hand out fresh pages is not the program's time.
    mallopt(M_MMAP_THRESHOLD, 32 << 20); // the most there is
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
