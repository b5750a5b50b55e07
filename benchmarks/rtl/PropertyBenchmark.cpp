// Reading and writing an integer property through reflection, against calling its getter and setter.
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>

namespace {

/// Allocations since the start of the program.
size_t Allocations = 0;

}  // namespace

void* operator new(size_t size) {
  ++Allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, size_t) noexcept { std::free(memory); }

namespace kt {
namespace {

class TMeasured : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  // Not inlined, as the getters and setters of a library are not.
  [[gnu::noinline]] int GetWidth() const { return FWidth; }
  [[gnu::noinline]] void SetWidth(int value) { FWidth = value; }

 protected:
  TMeasured() = default;

 private:
  int FWidth = 1;
};

const TClassInfo* TMeasured::Class() {
  static const TClassInfo info = TClassBuilder<TMeasured>("TMeasured")
                                     .Property<&TMeasured::GetWidth, &TMeasured::SetWidth>("Width")
                                     .Creatable()
                                     .Done();
  return &info;
}

template <class F>
void Measure(benchmark::State& state, F operation) {
  const auto object = Make<TMeasured>();
  const TPropInfo* property = GetPropInfo(object.get(), u"Width");
  const size_t before = Allocations;
  for (auto step : state) operation(*object, property);
  state.counters["allocations"] = static_cast<double>(Allocations - before);
}

void DirectRead(benchmark::State& state) {
  Measure(state, [](TMeasured& object, const TPropInfo*) { benchmark::DoNotOptimize(object.GetWidth()); });
}
BENCHMARK(DirectRead);

void ReflectedRead(benchmark::State& state) {
  Measure(state, [](TMeasured& object, const TPropInfo* property) {
    benchmark::DoNotOptimize(GetOrdProp(&object, property));
  });
}
BENCHMARK(ReflectedRead);

void ReflectedReadByName(benchmark::State& state) {
  Measure(state, [](TMeasured& object, const TPropInfo*) { benchmark::DoNotOptimize(GetOrdProp(&object, u"Width")); });
}
BENCHMARK(ReflectedReadByName);

void DirectWrite(benchmark::State& state) {
  Measure(state, [](TMeasured& object, const TPropInfo*) {
    object.SetWidth(7);
    benchmark::ClobberMemory();
  });
}
BENCHMARK(DirectWrite);

void ReflectedWrite(benchmark::State& state) {
  Measure(state, [](TMeasured& object, const TPropInfo* property) {
    SetOrdProp(&object, property, 7);
    benchmark::ClobberMemory();
  });
}
BENCHMARK(ReflectedWrite);

}  // namespace
}  // namespace kt

BENCHMARK_MAIN();
