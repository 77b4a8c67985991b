#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    QApplication app(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
