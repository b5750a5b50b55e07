#pragma once

#include <QUuid>

namespace kt {

class TComponent;

/// The root of the interfaces. A reference to an interface does not own the object behind it.
class IInterface {
 protected:
  virtual ~IInterface() = default;
};

/// How an interface reference leads to the component that implements it.
class IInterfaceComponentReference : public IInterface {
 public:
  static constexpr QUuid Guid{0xE28B1858, 0xEC86, 0x4559, 0x8F, 0xCD, 0x6B, 0x4F, 0x82, 0x41, 0x51, 0xED};
  static constexpr char TypeName[] = "IInterfaceComponentReference";

  virtual TComponent* GetComponent() = 0;

 protected:
  ~IInterfaceComponentReference() override = default;
};

/// The component behind an interface reference; null when the object is no component (or the reference is null).
inline TComponent* ComponentBehind(IInterface* reference) {
  auto* component = dynamic_cast<IInterfaceComponentReference*>(reference);
  return component ? component->GetComponent() : nullptr;
}

}  // namespace kt
