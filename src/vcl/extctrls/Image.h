#pragma once

#include "kt/vcl/controls/GraphicControl.h"
#include "kt/vcl/graphics/Picture.h"

namespace kt {

/// A picture on a form: in its own size at the corner or in the middle, or stretched.
class TImage : public TGraphicControl {
 public:
  using Inherited = TGraphicControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Setting copies. The control takes OnChange of the picture.
  TPicture& GetPicture() { return *FPicture; }
  void SetPicture(TPicture* value) { FPicture->Assign(value); }
  /// For drawing into the bitmap of the picture; an empty picture gets one of the control's size first. Raises
  /// EInvalidOperation "Can only modify an image if it contains a bitmap" for other pictures.
  TCanvas& GetCanvas();

  /// Whether the control is as large as the picture, except where its alignment says.
  bool IsAutoSize() const { return FAutoSize; }
  void SetAutoSize(bool value);
  bool IsCenter() const { return FCenter; }
  void SetCenter(bool value);
  /// Of no effect: pictures are there when they are loaded. Kept for the forms that say it.
  bool IsIncrementalDisplay() const { return FIncrementalDisplay; }
  void SetIncrementalDisplay(bool value) { FIncrementalDisplay = value; }
  /// Whether the picture keeps its shape when it is stretched, and becomes smaller where it does not fit.
  bool IsProportional() const { return FProportional; }
  void SetProportional(bool value);
  bool IsStretch() const { return FStretch; }
  void SetStretch(bool value);
  /// Whether one colour of a bitmap is left out; see TBitmap.
  bool IsTransparent() const { return FTransparent; }
  void SetTransparent(bool value);

 protected:
  explicit TImage(TComponent* owner = nullptr) : TGraphicControl(owner) {}

  void Construct() override;
  void Loaded() override;
  void Paint() override;

 private:
  void PictureChanged(TObject* sender);
  void AdjustSize();
  QRect PictureRect() const;

  std::unique_ptr<TPicture> FPicture;
  bool FAutoSize = false;
  bool FCenter = false;
  bool FIncrementalDisplay = false;
  bool FProportional = false;
  bool FStretch = false;
  bool FTransparent = false;
};

}  // namespace kt
