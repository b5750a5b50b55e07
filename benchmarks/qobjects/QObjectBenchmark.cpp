// What it costs to inspect Qt's own objects.
#include "kt/KTObjectInspector.h"
#include "kt/QObjects.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"

#include <QApplication>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWidget>

#include <benchmark/benchmark.h>

namespace kt::benchmarks {
namespace {

/// That many children, each with a name and with one child of its own.
std::unique_ptr<QObject> MakeTree(int count) {
  auto root = std::make_unique<QObject>();
  for (int i = 0; i < count; ++i) {
    auto* child = new QObject(root.get());
    child->setObjectName(QStringLiteral("child%1").arg(i));
    new QObject(child);
  }
  return root;
}

/// The first call for a tree, which makes components of all in it.
void ComponentOfWideTree(benchmark::State& state) {
  for (auto step : state) {
    state.PauseTiming();
    auto root = MakeTree(static_cast<int>(state.range(0)));
    state.ResumeTiming();
    benchmark::DoNotOptimize(ComponentOf(root.get()));
    state.PauseTiming();
    root.reset();
    QApplication::processEvents();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * (2 * state.range(0) + 1));
}

/// Making and destroying the same objects with nobody looking.
void BareWideTree(benchmark::State& state) {
  for (auto step : state) MakeTree(static_cast<int>(state.range(0)));
}

/// Destroying a tree with its components.
void DestroyWideTree(benchmark::State& state) {
  for (auto step : state) {
    state.PauseTiming();
    auto root = MakeTree(static_cast<int>(state.range(0)));
    ComponentOf(root.get());
    state.ResumeTiming();
    root.reset();
    state.PauseTiming();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

template <class T>
void ScanWidget(benchmark::State& state) {
  T widget;
  const auto inspector = Make<TKTObjectInspector>();
  inspector->GetObjects().Add(ComponentOf(&widget));
  QApplication::processEvents();
  for (auto step : state) inspector->Rescan();
  state.counters["items"] = inspector->GetItemCount();
}

template <class T>
void RefreshWidget(benchmark::State& state) {
  T widget;
  const auto inspector = Make<TKTObjectInspector>();
  inspector->GetObjects().Add(ComponentOf(&widget));
  QApplication::processEvents();
  for (auto step : state) inspector->RefreshProperties();
}

void Storm(QSlider& slider, int count) {
  for (int i = 1; i <= count; ++i) slider.setValue(i & 63);
}

/// Changes that signals tell of, until they are painted.
void NotifyStorm(benchmark::State& state) {
  QSlider slider;
  QWidget window;
  const auto inspector = Make<TKTObjectInspector>();
  window.setLayout(new QVBoxLayout);
  window.layout()->addWidget(inspector->GetHandle());
  window.resize(400, 800);
  window.show();
  inspector->GetObjects().Add(ComponentOf(&slider));
  QApplication::processEvents();
  for (auto step : state) {
    Storm(slider, static_cast<int>(state.range(0)));
    QApplication::processEvents();
  }
}

/// The same changes with nobody listening.
void BareStorm(benchmark::State& state) {
  QSlider slider;
  for (auto step : state) {
    Storm(slider, static_cast<int>(state.range(0)));
    QApplication::processEvents();
  }
}

BENCHMARK(ComponentOfWideTree)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(DestroyWideTree)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareWideTree)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(ScanWidget<QPushButton>)->Unit(benchmark::kMicrosecond);
BENCHMARK(ScanWidget<QTreeWidget>)->Unit(benchmark::kMicrosecond);
BENCHMARK(RefreshWidget<QPushButton>)->Unit(benchmark::kMicrosecond);
BENCHMARK(NotifyStorm)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BareStorm)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kt::benchmarks

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
