// What it costs to recognise a capture and to read its figures.
#include "history/reading.h"

#include "app/recognition.h"
#include "history/screens.h"
#include "sample.h"

#include <benchmark/benchmark.h>

namespace plotvue {

namespace {

MonthlyFigures read(TextView capture, int months)
{
    const Acceptance acceptance = accept(frmProduct, capture);
    return readMonths(frmProduct, capture, acceptance.identifier, months, frmProduct.types[0]);
}

void recogniseProduct(benchmark::State& state)
{
    const Text capture = productCapture();
    for (auto _ : state)
        benchmark::DoNotOptimize(recognise(capture));
}
BENCHMARK(recogniseProduct);

void recogniseNothing(benchmark::State& state)
{
    const Text text(static_cast<std::size_t>(state.range(0)), u'x');
    for (auto _ : state)
        benchmark::DoNotOptimize(recognise(text));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(recogniseNothing)->RangeMultiplier(16)->Range(1 << 10, 1 << 22)->Complexity();

void readProduct(benchmark::State& state)
{
    const Text capture = productCapture();
    for (auto _ : state)
        benchmark::DoNotOptimize(read(capture, static_cast<int>(state.range(0))));
}
BENCHMARK(readProduct)->Arg(13)->Arg(25);

void recogniseAndReadProduct(benchmark::State& state)
{
    const Text capture = productCapture();
    for (auto _ : state) {
        benchmark::DoNotOptimize(recognise(capture));
        benchmark::DoNotOptimize(read(capture, static_cast<int>(state.range(0))));
    }
}
BENCHMARK(recogniseAndReadProduct)->Arg(13)->Arg(25);

} // namespace

} // namespace plotvue
