#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Font.h"

namespace kt::tests {

/// A component with a font, a colour and a cursor, for tests of streaming.
class TFontHolder : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TFontHolder>("TFontHolder")
                                       .Property<&TFontHolder::Color>("Color")
                                       .Default(clWindow)
                                       .Property<&TFontHolder::GetFont, &TFontHolder::SetFont>("Font")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TColor Color = clWindow;
  TFont& GetFont() { return *FFont; }
  void SetFont(TFont* value) { FFont->Assign(value); }

 protected:
  explicit TFontHolder(TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override {
    TComponent::Construct();
    FFont = Make<TFont>();
  }

 private:
  std::unique_ptr<TFont> FFont;
};

}  // namespace kt::tests
