// What a view of 400 x 800 pixels costs: ours, those of Qt, and the least that is possible.
#include "EditorView.h"
#include "FloorView.h"
#include "TreeViews.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <chrono>

namespace kt::benchmarks {
namespace {

TScene SceneOf(const benchmark::State& state) { return {static_cast<int>(state.range(0)), state.range(1) != 0}; }

template <class TView>
void Repaint(benchmark::State& state) {
  TView view(SceneOf(state));
  for (auto step : state) view.Repaint();
  state.counters["rows"] = view.RowsInView();
}

/// One row down and one row up again, in turn.
template <class TView>
void Scroll(benchmark::State& state) {
  TView view(SceneOf(state));
  int offset = 0;
  for (auto step : state) {
    offset = 1 - offset;
    view.ScrollTo(offset);
    PaintPending();
  }
}

template <class TView>
void SetOne(benchmark::State& state) {
  TView view(SceneOf(state));
  bool isOdd = false;
  for (auto step : state) {
    isOdd = !isOdd;
    view.SetOne(NewValue(isOdd));
    PaintPending();
  }
}

/// Only the expansion counts, not the collapse that goes before the next one.
template <class TView>
void Expand(benchmark::State& state) {
  using TClock = std::chrono::steady_clock;
  TView view(SceneOf(state));
  for (auto step : state) {
    const auto start = TClock::now();
    view.Expand(true);
    PaintPending();
    state.SetIterationTime(std::chrono::duration<double>(TClock::now() - start).count());
    view.Expand(false);
    PaintPending();
  }
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"rows", "middle"})->Unit(benchmark::kMicrosecond);
  benchmark->ArgsProduct({{1000, 100000, 1000000}, {0}})->Args({1000000, 1});
}
void TimedSizes(benchmark::internal::Benchmark* benchmark) {
  Sizes(benchmark);
  benchmark->UseManualTime();
}

#define KT_FOR_EACH_VIEW(what, sizes)                    \
  BENCHMARK_TEMPLATE(what, TEditorView)->Apply(sizes);   \
  BENCHMARK_TEMPLATE(what, TFloorView)->Apply(sizes);    \
  BENCHMARK_TEMPLATE(what, TTreeViewView)->Apply(sizes); \
  BENCHMARK_TEMPLATE(what, TTreeWidgetView)->Apply(sizes)

KT_FOR_EACH_VIEW(Repaint, Sizes);
KT_FOR_EACH_VIEW(Scroll, Sizes);
KT_FOR_EACH_VIEW(SetOne, Sizes);
KT_FOR_EACH_VIEW(Expand, TimedSizes);

}  // namespace
}  // namespace kt::benchmarks

int main(int argc, char** argv) {
  // Without a window system: its way to the screen is not what is compared.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
