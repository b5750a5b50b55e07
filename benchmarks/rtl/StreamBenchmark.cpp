// Reading, writing, converting, loading and saving a form file of about 10 MB, as text and as binary; what makes or
// destroys objects also with a tenth of them. Speeds are per byte of the form named.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace kt {
namespace {

constexpr int kMegabyte = 1000 * 1000;

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

/// A binary form of about that many bytes.
QByteArray BinaryForm(int size) {
  const qsizetype sample = WriteComponentToBinary(MakeForm(1000).get()).size();
  return WriteComponentToBinary(MakeForm(static_cast<int>(qint64(size) * 1000 / sample)).get());
}

const QByteArray& BinaryForm() {
  static const QByteArray form = BinaryForm(10 * kMegabyte);
  return form;
}

const QByteArray& TextForm() {
  static const QByteArray form = [] {
    const qsizetype binaryShare = 1000 * BinaryForm(kMegabyte).size() / TextOf(BinaryForm(kMegabyte)).size();
    return TextOf(BinaryForm(static_cast<int>(10 * kMegabyte * binaryShare / 1000)));
  }();
  return form;
}

/// The events of a form, to be sent again. Knows those that the form of this benchmark has.
class TRecordedForm : public TIdleFormSink {
 public:
  void BeginObject(const TFormObject& object) override {
    FEvents.push_back({ekBegin, object.Name.toString(), object.ClassName.toString()});
  }
  void EndObject() override { FEvents.push_back({ekEnd}); }
  void Property(QStringView path) override { FEvents.push_back({ekProperty, path.toString()}); }
  void Constant(TFormConstant value) override { FEvents.push_back({ekConstant, {}, {}, value}); }
  void Integer(qint64 value) override { FEvents.push_back({ekInteger, {}, {}, value}); }
  void String(QStringView value) override { FEvents.push_back({ekString, value.toString()}); }

  void SendTo(IFormSink& sink) const {
    for (const TEvent& event : FEvents) Send(event, sink);
  }

 private:
  enum TEventKind { ekBegin, ekEnd, ekProperty, ekConstant, ekInteger, ekString };
  struct TEvent {
    TEventKind Kind;
    QString Text = {};
    QString ClassName = {};
    qint64 Value = 0;
  };

  static void Send(const TEvent& event, IFormSink& sink) {
    switch (event.Kind) {
      case ekBegin:
        return sink.BeginObject({{}, event.ClassName, event.Text});
      case ekEnd:
        return sink.EndObject();
      case ekProperty:
        return sink.Property(event.Text);
      case ekConstant:
        return sink.Constant(static_cast<TFormConstant>(event.Value));
      case ekInteger:
        return sink.Integer(event.Value);
      case ekString:
        return sink.String(event.Text);
    }
  }

  std::vector<TEvent> FEvents;
};

void CountBytes(benchmark::State& state, qsizetype size) {
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * size);
}

void ReadText(benchmark::State& state) {
  const QByteArray& form = TextForm();
  TIdleFormSink nowhere;
  for (auto step : state) ReadForm(form, nowhere);
  CountBytes(state, form.size());
}
BENCHMARK(ReadText)->Unit(benchmark::kMillisecond);

void ReadBinary(benchmark::State& state) {
  const QByteArray& form = BinaryForm();
  TIdleFormSink nowhere;
  for (auto step : state) ReadForm(form, nowhere);
  CountBytes(state, form.size());
}
BENCHMARK(ReadBinary)->Unit(benchmark::kMillisecond);

void WriteText(benchmark::State& state) {
  TRecordedForm form;
  ReadForm(TextForm(), form);
  QByteArray text;
  for (auto step : state) {
    text = QByteArray();
    TByteSink bytes(text);
    TTextWriter writer(bytes);
    form.SendTo(writer);
    bytes.Flush();
  }
  if (text != TextForm()) state.SkipWithError("not the same text");
  CountBytes(state, text.size());
}
BENCHMARK(WriteText)->Unit(benchmark::kMillisecond);

void WriteBinary(benchmark::State& state) {
  TRecordedForm form;
  ReadForm(BinaryForm(), form);
  QByteArray binary;
  for (auto step : state) {
    binary = QByteArray();
    TBinaryWriter bytes(binary);
    TBinaryFormWriter writer(bytes);
    form.SendTo(writer);
    bytes.Flush();
  }
  if (binary != BinaryForm()) state.SkipWithError("not the same form");
  CountBytes(state, binary.size());
}
BENCHMARK(WriteBinary)->Unit(benchmark::kMillisecond);

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
  const QByteArray binary = BinaryForm(static_cast<int>(state.range(0)));
  for (auto step : state) {
    std::unique_ptr<TComponent> form = ReadComponentFromBinary(binary);
    state.PauseTiming();
    form.reset();
    state.ResumeTiming();
  }
  UnRegisterClass(TWidgetLike::Class());
  CountBytes(state, binary.size());
}
BENCHMARK(LoadObjects)->Arg(kMegabyte)->Arg(10 * kMegabyte)->Unit(benchmark::kMillisecond);

/// Into stand-ins for components of unknown classes.
void LoadStandIns(benchmark::State& state) {
  const QByteArray binary = BinaryForm(static_cast<int>(state.range(0)));
  for (auto step : state) {
    TReader reader(binary);
    reader.UnknownClasses = upKeep;
    std::unique_ptr<TComponent> form(reader.ReadRootComponent(nullptr));
    state.PauseTiming();
    form.reset();
    state.ResumeTiming();
  }
  CountBytes(state, binary.size());
}
BENCHMARK(LoadStandIns)->Arg(kMegabyte)->Arg(10 * kMegabyte)->Unit(benchmark::kMillisecond);

void SaveObjects(benchmark::State& state) {
  RegisterClass(TWidgetLike::Class());
  const std::unique_ptr<TComponent> form = ReadComponentFromBinary(BinaryForm(static_cast<int>(state.range(0))));
  qsizetype size = 0;
  for (auto step : state) size = WriteComponentToBinary(form.get()).size();
  UnRegisterClass(TWidgetLike::Class());
  CountBytes(state, size);
}
BENCHMARK(SaveObjects)->Arg(kMegabyte)->Arg(10 * kMegabyte)->Unit(benchmark::kMillisecond);

void DestroyObjects(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  for (auto step : state) {
    state.PauseTiming();
    auto form = MakeForm(count);
    state.ResumeTiming();
    form.reset();
  }
}
BENCHMARK(DestroyObjects)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kt
