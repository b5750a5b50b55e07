#pragma once

#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Samples.h"

namespace kt::tests {
/// As many members as fit no 32 bits.
enum TManyMember { manyFirst, manyLast = 39 };
}  // namespace kt::tests

namespace kt {
template <>
struct TSetStorage<tests::TManyMember> {
  using Type = quint64;
};
template <>
struct TEnumNames<tests::TManyMember> {
  static constexpr char Name[] = "TManyMember";
  static constexpr char SetName[] = "TManyMembers";
  static constexpr const char* Values[] = {"m0",  "m1",  "m2",  "m3",  "m4",  "m5",  "m6",  "m7",  "m8",  "m9",
                                           "m10", "m11", "m12", "m13", "m14", "m15", "m16", "m17", "m18", "m19",
                                           "m20", "m21", "m22", "m23", "m24", "m25", "m26", "m27", "m28", "m29",
                                           "m30", "m31", "m32", "m33", "m34", "m35", "m36", "m37", "m38", "m39"};
};
}  // namespace kt

namespace kt::tests {

/// Properties of the kinds that are rare.
class TKindsSample : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  ByteBool Byte = false;
  LongBool Long = false;
  /// Of a type that has the first two names of TSampleAlign only.
  TSampleAlign Low = saNone;
  TSet<TManyMember> Many;
  int Record = 0;
  int Kept = 0;
  bool IsKeptStored = true;

  bool KeptIsStored() const { return IsKeptStored; }
  static const TTypeInfo* LowAlignType();
  static const TTypeInfo* RecordType();

 protected:
  explicit TKindsSample(TComponent* owner = nullptr) : TComponent(owner) {}
};

inline const TTypeInfo* TKindsSample::LowAlignType() {
  static const TEnumTypeInfo info(QStringLiteral("TLowAlign"), {QStringLiteral("saNone"), QStringLiteral("saTop")},
                                  static_cast<const TEnumTypeInfo*>(TypeInfoOf<TSampleAlign>()));
  return &info;
}

inline const TTypeInfo* TKindsSample::RecordType() {
  static const TTypeInfo info(tkRecord, QStringLiteral("TPoint"));
  return &info;
}

inline const TClassInfo* TKindsSample::Class() {
  static const TClassInfo info = TClassBuilder<TKindsSample>("TKindsSample")
                                     .Property<&TKindsSample::Byte>("Byte")
                                     .Property<&TKindsSample::Long>("Long")
                                     .Property<&TKindsSample::Low>("Low", &LowAlignType)
                                     .Property<&TKindsSample::Many>("Many")
                                     .Property<&TKindsSample::Record>("Record", &RecordType)
                                     .Property<&TKindsSample::Kept>("Kept")
                                     .Default(0)
                                     .Stored(&TKindsSample::KeptIsStored)
                                     .Creatable()
                                     .Done();
  return &info;
}

}  // namespace kt::tests
