#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/vcl/graphics/Graphic.h"

#include <memory>

namespace kt {

class TBitmap;
class TIcon;

/// A place for one graphic of any kind, which it owns.
class TPicture : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The graphic, or null. Setting copies; null empties the picture.
  TGraphic* GetGraphic() const { return FGraphic.get(); }
  void SetGraphic(TGraphic* value);
  /// The graphic as a bitmap or icon. One of another kind is replaced by an empty one first. Setting copies.
  TBitmap& GetBitmap();
  void SetBitmap(TBitmap* value);
  TIcon& GetIcon();
  void SetIcon(TIcon* value);
  /// Of the graphic; 0 without one.
  int GetWidth() const { return FGraphic ? FGraphic->GetWidth() : 0; }
  int GetHeight() const { return FGraphic ? FGraphic->GetHeight() : 0; }

  /// After each change of the picture or its graphic.
  TNotifyEvent OnChange;

  /// The graphic's class follows from the extension: icons for ico, bitmaps for whatever else Qt reads. Raises
  /// EInvalidGraphic "Unknown picture file extension (.%s)", and what TGraphic::LoadFromFile() raises.
  void LoadFromFile(const QString& fileName);
  /// An empty picture writes nothing.
  void SaveToFile(const QString& fileName);

  /// Copies a picture or a graphic; null empties this one.
  void Assign(TPersistent* source) override;

 protected:
  TPicture() = default;

  void Destruct() override;
  void AssignTo(TPersistent* dest) override;
  void DefineProperties(TFiler& filer) override;

 private:
  void Store(std::unique_ptr<TGraphic> graphic);
  void GraphicChanged(TObject* sender);
  template <class T>
  T& Force();
  void ReadData(const QByteArray& data);
  QByteArray WriteData();
  bool Equals(TPicture& other) const;

  std::unique_ptr<TGraphic> FGraphic;
};

}  // namespace kt
