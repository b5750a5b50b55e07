// What the item model costs: memory, building, expanding, looking up and sorting, by the number of items.
#include "ItemTrees.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <random>

namespace kt::benchmarks {
namespace {

TShape ShapeOf(const benchmark::State& state) { return static_cast<TShape>(state.range(0)); }
int CountOf(const benchmark::State& state) { return static_cast<int>(state.range(1)); }

void CountPerItem(benchmark::State& state) {
  state.counters["ns_per_item"] =
      benchmark::Counter(static_cast<double>(CountOf(state)) * 1e-9,
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"nested", "items"})->Unit(benchmark::kMillisecond);
  for (const int shape : {Flat, Nested}) {
    for (const int count : {1000, 10000, 100000, 1000000}) benchmark->Args({shape, count});
  }
}

/// The heap that the tree takes, with lists and texts, by item.
void BuildInOneBracket(benchmark::State& state) {
  double bytes = 0;
  for (auto step : state) {
    const double before = HeapInUse();
    TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state));
    state.PauseTiming();
    bytes = HeapInUse() - before;
    editor.reset();
    state.ResumeTiming();
  }
  state.counters["bytes_per_item"] = bytes / CountOf(state);
  CountPerItem(state);
}
BENCHMARK(BuildInOneBracket)->Apply(Sizes);

void BuildOneByOne(benchmark::State& state) {
  for (auto step : state) {
    TEditorPointer editor = Make<TKTItemListEditor>();
    FillTree(editor->GetItems(), ShapeOf(state), CountOf(state));
    state.PauseTiming();
    editor.reset();
    state.ResumeTiming();
  }
  CountPerItem(state);
}
BENCHMARK(BuildOneByOne)->Apply(Sizes);

void Destroy(benchmark::State& state) {
  for (auto step : state) {
    state.PauseTiming();
    TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state));
    state.ResumeTiming();
    editor.reset();
  }
  CountPerItem(state);
}
BENCHMARK(Destroy)->Apply(Sizes);

void FullExpandAndCollapse(benchmark::State& state) {
  const TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state));
  for (auto step : state) {
    editor->FullExpand();
    editor->FullCollapse();
  }
  // Two changes of each item.
  state.counters["ns_per_item"] = benchmark::Counter(
      2.0 * CountOf(state) * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(FullExpandAndCollapse)->Apply(Sizes);

/// The parent in the middle; in a flat tree, where there is none, the item there gets children.
TKTItemProp* ParentInTheMiddle(TKTItemListEditor& editor, TShape shape) {
  TKTItemProp* item = editor.GetItem(editor.GetItemCount() / 2);
  if (shape == Flat) {
    for (int i = 0; i < ChildrenPerParent; ++i) AddLeaf(item->GetItems(), i);
  }
  while (!item->HasItems()) item = item->GetParent();
  return item;
}

/// One parent of twenty children, in the middle of a list with all others open.
void ToggleOneParent(benchmark::State& state) {
  const bool isFlat = ShapeOf(state) == Flat;
  const TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state) - (isFlat ? ChildrenPerParent : 0));
  TKTItemProp* item = ParentInTheMiddle(*editor, ShapeOf(state));
  editor->FullExpand();
  for (auto step : state) {
    item->Collapse();
    item->Expand();
  }
}
BENCHMARK(ToggleOneParent)->Apply(Sizes)->Unit(benchmark::kMicrosecond);

std::vector<TKTItemProp*> RandomItems(TKTItemListEditor& editor) {
  std::mt19937 random(1);
  std::vector<TKTItemProp*> items(1024);
  std::generate(items.begin(), items.end(), [&] {
    return editor.GetItem(static_cast<int>(random() % static_cast<unsigned>(editor.GetItemCount())));
  });
  return items;
}

void FindPlaces(benchmark::State& state) {
  const TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state));
  editor->FullExpand();
  const std::vector<TKTItemProp*> items = RandomItems(*editor);
  size_t next = 0;
  for (auto step : state) {
    const TKTItemProp* item = items[next++ % items.size()];
    benchmark::DoNotOptimize(item->GetAbsoluteIndex());
    benchmark::DoNotOptimize(item->GetAbsoluteVIndex());
  }
}
BENCHMARK(FindPlaces)->Apply(Sizes)->Unit(benchmark::kNanosecond);

void FindRows(benchmark::State& state) {
  const TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state));
  editor->FullExpand();
  std::mt19937 random(1);
  for (auto step : state) {
    const int row = static_cast<int>(random() % static_cast<unsigned>(editor->GetVisibleItemCount()));
    benchmark::DoNotOptimize(editor->FindItemProp(1, row + 1, true));
  }
}
BENCHMARK(FindRows)->Apply(Sizes)->Unit(benchmark::kNanosecond);

/// The items that a search along the path looks at, each level from its first.
int SiblingsOnTheWay(const TKTItemProp* item) {
  int count = 0;
  for (; item; item = item->GetParent()) count += item->GetIndex() + 1;
  return count;
}

/// By name along the path.
void FindByPath(benchmark::State& state) {
  const TEditorPointer editor = MakeTree(ShapeOf(state), CountOf(state));
  QStringList paths;
  double siblings = 0;
  for (TKTItemProp* item : RandomItems(*editor)) {
    paths.append(item->GetFullPathName());
    siblings += SiblingsOnTheWay(item);
  }
  qsizetype next = 0;
  for (auto step : state) {
    benchmark::DoNotOptimize(editor->GetItems().FindItemByFullPathName(paths[next++ % paths.size()]));
  }
  state.counters["ns_per_sibling"] =
      benchmark::Counter(siblings / static_cast<double>(paths.size()) * 1e-9,
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(FindByPath)->Apply(Sizes)->Unit(benchmark::kNanosecond);

/// Changes in the middle of a flat list, each followed by a question for a row.
void InsertAndDeleteInTheMiddle(benchmark::State& state) {
  const TEditorPointer editor = MakeTree(Flat, CountOf(state));
  TKTItemProps& items = editor->GetItems();
  for (auto step : state) {
    items.Insert(items.GetCount() / 2);
    benchmark::DoNotOptimize(editor->GetVisibleItem(items.GetCount() - 1));
    items.Delete(items.GetCount() / 2);
  }
}
BENCHMARK(InsertAndDeleteInTheMiddle)
    ->ArgNames({"nested", "items"})
    ->Args({Flat, 1000})
    ->Args({Flat, 1000000})
    ->Unit(benchmark::kMicrosecond);

enum TOrder { Ordered, Reversed, Equal, Shuffled };

void Sort(benchmark::State& state) {
  const auto order = static_cast<TOrder>(state.range(0));
  const auto count = static_cast<int>(state.range(1));
  const TEditorPointer editor = Make<TKTItemListEditor>();
  TKTItemProps& items = editor->GetItems();
  std::vector<int> numbers(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) numbers[i] = order == Reversed ? count - i : order == Equal ? 0 : i;
  if (order == Shuffled) std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
  double compared = 0;
  for (auto step : state) {
    state.PauseTiming();
    items.BeginUpdate();
    items.Clear();
    for (const int number : numbers) AddLeaf(items, number);
    items.EndUpdate();
    compared = 0;
    state.ResumeTiming();
    items.CustomSort(
        [&compared](TKTItemProps& all, int first, int second) {
          ++compared;
          return all.CompareStrings(all.GetItem(first)->GetName(), all.GetItem(second)->GetName());
        },
        true);
  }
  state.counters["comparisons_per_n_log_n"] = compared / (count * std::log2(count));
}
BENCHMARK(Sort)
    ->ArgNames({"order", "items"})
    ->ArgsProduct({{Ordered, Reversed, Equal, Shuffled}, {1000, 1000000}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kt::benchmarks

int main(int argc, char** argv) {
  // The editor is a control; it needs no application object.
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
