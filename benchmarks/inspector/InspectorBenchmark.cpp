// What an object inspector costs, beside the bare reading of the same values by reflection.
#include "Subjects.h"
#include "kt/KTObjectInspector.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

#include <benchmark/benchmark.h>

namespace kt::benchmarks {
namespace {

/// An inspector in a window, as a program shows it.
struct TShownInspector {
  TShownInspector() {
    Window.setLayout(new QVBoxLayout);
    Window.layout()->addWidget(Inspector->GetHandle());
    Window.resize(400, 800);
    Window.show();
    QApplication::processEvents();
  }

  std::unique_ptr<TKTObjectInspector> Inspector = Make<TKTObjectInspector>();
  QWidget Window;
};

std::vector<std::unique_ptr<TSubject>> MakeSubjects(int count, int properties) {
  std::vector<std::unique_ptr<TSubject>> subjects;
  for (int i = 0; i < count; ++i) subjects.push_back(MakeSubject(properties));
  return subjects;
}

void Inspect(TKTObjectInspector& inspector, const std::vector<std::unique_ptr<TSubject>>& subjects) {
  TKTInspectorObjects& objects = inspector.GetObjects();
  objects.BeginUpdate();
  objects.Clear();
  for (const auto& subject : subjects) objects.Add(subject.get());
  objects.EndUpdate();
}

/// From assigning the object to the painted tree.
void SwitchObject(benchmark::State& state) {
  TShownInspector shown;
  const auto subjects = MakeSubjects(2, static_cast<int>(state.range(0)));
  size_t next = 0;
  for (auto step : state) {
    shown.Inspector->SetInspectedComponent(subjects[next++ % 2].get());
    QApplication::processEvents();
  }
}

/// The same for many objects: from assigning them all to the painted tree of what they share.
void SwitchObjects(benchmark::State& state) {
  TShownInspector shown;
  const int count = static_cast<int>(state.range(0));
  const int properties = static_cast<int>(state.range(1));
  const std::vector<std::unique_ptr<TSubject>> sets[] = {MakeSubjects(count, properties),
                                                         MakeSubjects(count, properties)};
  size_t next = 0;
  for (auto step : state) {
    Inspect(*shown.Inspector, sets[next++ % 2]);
    QApplication::processEvents();
  }
}

/// One object, without a window.
void Scan(benchmark::State& state) {
  const auto inspector = Make<TKTObjectInspector>();
  const auto subjects = MakeSubjects(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  Inspect(*inspector, subjects);
  for (auto step : state) inspector->Rescan();
}

/// The same values by reflection alone: each property of each object, found by name and made a text.
void ReadBare(benchmark::State& state) {
  const auto subjects = MakeSubjects(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  for (auto step : state) {
    for (const TPropInfo* property : GetPropList(subjects[0]->ClassType())) {
      for (const auto& subject : subjects) {
        const TPropInfo* own = GetPropInfo(subject.get(), property->Name());
        benchmark::DoNotOptimize(VarToStr(GetPropValue(subject.get(), own)));
      }
    }
  }
}

void Refresh(benchmark::State& state) {
  const auto inspector = Make<TKTObjectInspector>();
  const auto subjects = MakeSubjects(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  Inspect(*inspector, subjects);
  inspector->Rescan();
  for (auto step : state) inspector->RefreshProperties();
}

/// One edit, written to all objects, and everything that follows.
void WriteToAll(benchmark::State& state) {
  const auto inspector = Make<TKTObjectInspector>();
  const auto subjects = MakeSubjects(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  Inspect(*inspector, subjects);
  // The scan that has been asked for, which would take the item away later.
  QApplication::processEvents();
  TKTItemProperty* item = inspector->GetItems().FindItemByFullPathName(QStringLiteral("Property0000"));
  int value = 0;
  for (auto step : state) {
    item->SetValueLine(0, QString::number(++value));
    item->Validate();
    QApplication::processEvents();
  }
}

BENCHMARK(SwitchObject)->ArgName("properties")->Arg(30)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(SwitchObjects)
    ->ArgNames({"objects", "properties"})
    ->ArgsProduct({{10, 100, 1000}, {60}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadBare)
    ->ArgNames({"objects", "properties"})
    ->ArgsProduct({{1}, {30, 100, 1000}})
    ->ArgsProduct({{10, 100, 1000}, {60}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Scan)
    ->ArgNames({"objects", "properties"})
    ->ArgsProduct({{1}, {30, 100, 1000}})
    ->ArgsProduct({{10, 100, 1000}, {60}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Refresh)
    ->ArgNames({"objects", "properties"})
    ->ArgsProduct({{1}, {30, 100, 1000}})
    ->ArgsProduct({{1000}, {60}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteToAll)->ArgNames({"objects", "properties"})->Args({1000, 60})->Unit(benchmark::kMicrosecond);

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
