// What somebody who has the installed package does with it: describes a class, streams an object, uses a collection.
#include <cstdio>
#include <kt/rtl/Collections.h>
#include <kt/rtl/Objects.h>
#include <kt/rtl/Streams.h>
#include <kt/rtl/TypInfo.h>

class TLamp : public kt::TCollectionItem {
 public:
  using Inherited = kt::TCollectionItem;
  static const kt::TClassInfo* Class();
  const kt::TClassInfo* ClassType() const override { return Class(); }
  int Watts = 60;

 protected:
  explicit TLamp(kt::TCollection* collection) : TCollectionItem(collection) {}
};

class TRoom : public kt::TComponent {
 public:
  using Inherited = kt::TComponent;
  static const kt::TClassInfo* Class();
  const kt::TClassInfo* ClassType() const override { return Class(); }
  kt::TCollection& GetLamps() { return *FLamps; }
  void SetLamps(kt::TCollection* value) { FLamps->Assign(value); }

 protected:
  explicit TRoom(kt::TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override {
    FLamps = kt::Make<kt::TOwnedCollection>(this, TLamp::Class());
    TComponent::Construct();
  }

 private:
  std::unique_ptr<kt::TCollection> FLamps;
};

const kt::TClassInfo* TLamp::Class() {
  static const kt::TClassInfo info =
      kt::TClassBuilder<TLamp>("TLamp").Property<&TLamp::Watts>("Watts").Default(60).Creatable().Done();
  return &info;
}

const kt::TClassInfo* TRoom::Class() {
  static const kt::TClassInfo info =
      kt::TClassBuilder<TRoom>("TRoom").Property<&TRoom::GetLamps, &TRoom::SetLamps>("Lamps").Creatable().Done();
  return &info;
}

int main() {
  kt::RegisterClass(TRoom::Class());
  const auto room = kt::Make<TRoom>();
  room->SetName(QStringLiteral("Hall"));
  room->GetLamps().Add();
  kt::SetOrdProp(room->GetLamps().Add(), u"Watts", 75);
  const auto copy = kt::ReadComponentFromBinary(kt::WriteComponentToBinary(room.get()));
  QByteArray text;
  kt::ObjectBinaryToText(kt::WriteComponentToBinary(copy.get()), text);
  std::fputs(text.replace("\r\n", "\n").constData(), stdout);
  try {
    QByteArray binary;
    kt::ObjectTextToBinary("object B: TButton\nend\n", binary);
    kt::ReadComponentFromBinary(binary);
  } catch (const kt::EFilerError& error) {
    std::puts(error.what());
  }
  return 0;
}
