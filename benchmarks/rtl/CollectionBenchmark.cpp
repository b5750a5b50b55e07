// Building and destroying a collection, appended and inserted at the front, and asking every item for its position.
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <benchmark/benchmark.h>

namespace kt {
namespace {

class TPlainCollection : public TCollection {
 protected:
  TPlainCollection() : TCollection(TCollectionItem::Class()) {}
};

void Build(benchmark::State& state, bool atFront) {
  const auto count = static_cast<int>(state.range(0));
  for (auto step : state) {
    const auto collection = Make<TPlainCollection>();
    const TUpdateBracket<TCollection> bracket(*collection);
    for (int i = 0; i < count; ++i) atFront ? collection->Insert(0) : collection->Add();
    benchmark::DoNotOptimize(collection->GetCount());
  }
  state.counters["per_item"] =
      benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BuildAndDestroy(benchmark::State& state) { Build(state, false); }
BENCHMARK(BuildAndDestroy)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void BuildFromTheFrontAndDestroy(benchmark::State& state) { Build(state, true); }
BENCHMARK(BuildFromTheFrontAndDestroy)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void AskEveryIndex(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  const auto collection = Make<TPlainCollection>();
  for (int i = 0; i < count; ++i) collection->Add();
  for (auto step : state) {
    for (int i = 0; i < count; ++i) benchmark::DoNotOptimize(collection->GetItem(i)->GetIndex());
  }
}
BENCHMARK(AskEveryIndex)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kt
