#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt::tests {

/// A component with a published string list.
class TLinesHolder : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TLinesHolder>("TLinesHolder")
                                       .Property<&TLinesHolder::GetLines, &TLinesHolder::SetLines>("Lines")
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TStrings& GetLines() { return *FLines; }
  void SetLines(TStrings& value) { FLines->Assign(&value); }

 protected:
  explicit TLinesHolder(TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override {
    FLines = Make<TStringList>();
    TComponent::Construct();
  }

 private:
  std::unique_ptr<TStringList> FLines;
};

}  // namespace kt::tests
