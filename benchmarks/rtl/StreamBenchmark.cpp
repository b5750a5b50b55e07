// Converting, loading and saving a form file of about 10 MB, as text and as binary. Speeds are per byte of the form
// named.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <benchmark/benchmark.h>

namespace kt {
namespace {

constexpr qsizetype WantedSize = 10 * 1000 * 1000;

/// A component like those of everyday forms.
class TWidgetLike : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int Left = 0;
  int Top = 0;
  int Width = 0;
  bool Visible = true;
  QString Caption;
  QString Hint;

 protected:
  explicit TWidgetLike(TComponent* owner = nullptr) : TComponent(owner) {}
  void GetChildren(const TGetChildProc& proc, TComponent* root) override {
    for (int i = 0; root == this && i < GetComponentCount(); ++i) proc(GetComponents(i));
  }
};

const TClassInfo* TWidgetLike::Class() {
  static const TClassInfo info = TClassBuilder<TWidgetLike>("TWidgetLike")
                                     .Property<&TWidgetLike::Left>("Left")
                                     .Property<&TWidgetLike::Top>("Top")
                                     .Property<&TWidgetLike::Width>("Width")
                                     .Property<&TWidgetLike::Visible>("Visible")
                                     .Default(true)
                                     .Property<&TWidgetLike::Caption>("Caption")
                                     .Property<&TWidgetLike::Hint>("Hint")
                                     .Creatable()
                                     .Done();
  return &info;
}

/// A form of that many widgets.
std::unique_ptr<TWidgetLike> MakeForm(int count) {
  auto form = Make<TWidgetLike>();
  form->SetName(QStringLiteral("Form1"));
  for (int i = 0; i < count; ++i) {
    auto* widget = New<TWidgetLike>(form.get());
    widget->SetName(QStringLiteral("Widget%1").arg(i));
    widget->Left = i % 640;
    widget->Top = i % 480;
    widget->Width = 75;
    widget->Visible = i % 3 != 0;
    widget->Caption = QStringLiteral("Caption of widget %1").arg(i);
    widget->Hint = QStringLiteral("What the widget with the number %1 is good for").arg(i);
  }
  return form;
}

QByteArray TextOf(const QByteArray& binary) {
  QByteArray text;
  ObjectBinaryToText(binary, text);
  return text;
}

const QByteArray& BinaryForm() {
  static const QByteArray form = [] {
    const qsizetype sample = WriteComponentToBinary(MakeForm(1000).get()).size();
    return WriteComponentToBinary(MakeForm(static_cast<int>(WantedSize * 1000 / sample)).get());
  }();
  return form;
}

const QByteArray& TextForm() {
  static const QByteArray form = [] {
    const qsizetype sample = TextOf(WriteComponentToBinary(MakeForm(1000).get())).size();
    return TextOf(WriteComponentToBinary(MakeForm(static_cast<int>(WantedSize * 1000 / sample)).get()));
  }();
  return form;
}

void CountBytes(benchmark::State& state, qsizetype size) {
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * size);
}

void ReadText(benchmark::State& state) {
  TIdleFormSink nowhere;
  for (auto step : state) ReadForm(TextForm(), nowhere);
  CountBytes(state, TextForm().size());
}
BENCHMARK(ReadText)->Unit(benchmark::kMillisecond);

void ReadBinary(benchmark::State& state) {
  TIdleFormSink nowhere;
  for (auto step : state) ReadForm(BinaryForm(), nowhere);
  CountBytes(state, BinaryForm().size());
}
BENCHMARK(ReadBinary)->Unit(benchmark::kMillisecond);

void TextToBinary(benchmark::State& state) {
  for (auto step : state) {
    QByteArray binary;
    ObjectTextToBinary(TextForm(), binary);
    benchmark::DoNotOptimize(binary.size());
  }
  CountBytes(state, TextForm().size());
}
BENCHMARK(TextToBinary)->Unit(benchmark::kMillisecond);

void BinaryToText(benchmark::State& state) {
  qsizetype size = 0;
  for (auto step : state) {
    size = TextOf(BinaryForm()).size();
    benchmark::DoNotOptimize(size);
  }
  CountBytes(state, size);
}
BENCHMARK(BinaryToText)->Unit(benchmark::kMillisecond);

/// Into live objects, which are destroyed outside the measured time.
void LoadObjects(benchmark::State& state) {
  RegisterClass(TWidgetLike::Class());
  for (auto step : state) {
    std::unique_ptr<TComponent> form = ReadComponentFromBinary(BinaryForm());
    state.PauseTiming();
    form.reset();
    state.ResumeTiming();
  }
  UnRegisterClass(TWidgetLike::Class());
  CountBytes(state, BinaryForm().size());
}
BENCHMARK(LoadObjects)->Unit(benchmark::kMillisecond);

/// Into stand-ins for components of unknown classes.
void LoadStandIns(benchmark::State& state) {
  for (auto step : state) {
    TReader reader(BinaryForm());
    reader.UnknownClasses = upKeep;
    std::unique_ptr<TComponent> form(reader.ReadRootComponent(nullptr));
    state.PauseTiming();
    form.reset();
    state.ResumeTiming();
  }
  CountBytes(state, BinaryForm().size());
}
BENCHMARK(LoadStandIns)->Unit(benchmark::kMillisecond);

void SaveObjects(benchmark::State& state) {
  RegisterClass(TWidgetLike::Class());
  const std::unique_ptr<TComponent> form = ReadComponentFromBinary(BinaryForm());
  for (auto step : state) benchmark::DoNotOptimize(WriteComponentToBinary(form.get()).size());
  UnRegisterClass(TWidgetLike::Class());
  CountBytes(state, BinaryForm().size());
}
BENCHMARK(SaveObjects)->Unit(benchmark::kMillisecond);

/// Destroying a form in proportion to its size.
void DestroyObjects(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  for (auto step : state) {
    state.PauseTiming();
    auto form = MakeForm(count);
    state.ResumeTiming();
    form.reset();
  }
}
BENCHMARK(DestroyObjects)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kt
