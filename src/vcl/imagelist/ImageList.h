#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/imagelist/ImageListTypes.h"

#include <QByteArray>
#include <QImage>

#include <vector>

namespace kt {

class TBitmap;
class TCanvas;
class TChangeLink;
struct TImageListData;

/// Pictures of one size, known by their number, for menus, tabs and whoever else shows some.
///
/// Form files keep them as operating systems write image lists. What is read is written back as it came until a picture
/// changes. A stream that cannot be read is kept and written back too; such a list has no pictures, and none can be
/// added, until it is cleared.
///
/// Works without display and application object.
class TCustomImageList : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetCount() const { return static_cast<int>(FImages.size()); }
  /// The size of all pictures, 16 by 16 at first. Another size takes all pictures away. Raises EInvalidOperation
  /// "Invalid image size" below 1.
  int GetWidth() const { return FSize.width(); }
  void SetWidth(int value) { SetSize(value, GetHeight()); }
  int GetHeight() const { return FSize.height(); }
  void SetHeight(int value) { SetSize(GetWidth(), value); }
  void SetSize(int width, int height);
  /// By how many pictures lists of the operating system grow; written into the stream.
  int GetAllocBy() const { return FAllocBy; }
  void SetAllocBy(int value) { FAllocBy = value; }
  /// What pictures are drawn on; clNone leaves what is there.
  TColor GetBkColor() const { return FBkColor; }
  void SetBkColor(TColor value);
  /// What the styles dsFocus and dsSelected blend pictures with: the colour of selections for clDefault, nothing for
  /// clNone.
  TColor GetBlendColor() const { return FBlendColor; }
  void SetBlendColor(TColor value);
  TDrawingStyle GetDrawingStyle() const { return FDrawingStyle; }
  void SetDrawingStyle(TDrawingStyle value);
  TImageType GetImageType() const { return FImageType; }
  void SetImageType(TImageType value);
  /// Whether pictures have a mask. Set before pictures are added.
  bool IsMasked() const { return FMasked; }
  void SetMasked(bool value) { FMasked = value; }
  /// Of a matter where lists belong to the operating system, which they do not here; kept for the forms that say it.
  bool IsShareImages() const { return FShareImages; }
  void SetShareImages(bool value) { FShareImages = value; }

  // A bitmap that is wider than a picture gives several, side by side; one that is smaller raises EInvalidOperation
  // "Invalid image size".
  /// Adds pictures and answers the index of the first. White pixels of `mask`, which may be null, are transparent.
  int Add(TBitmap* image, TBitmap* mask);
  /// Adds pictures in which a colour is transparent: that of the bitmap's own when clDefault.
  int AddMasked(TBitmap* image, TColor maskColor);
  /// Adds all pictures of a list of that size.
  void AddImages(TCustomImageList* value);
  // Those that follow raise EInvalidOperation "Invalid ImageList Index".
  void Insert(int index, TBitmap* image, TBitmap* mask);
  void InsertMasked(int index, TBitmap* image, TColor maskColor);
  void Replace(int index, TBitmap* image, TBitmap* mask);
  void ReplaceMasked(int index, TBitmap* image, TColor maskColor);
  /// -1 for all.
  void Delete(int index);
  void Move(int from, int to);
  void Clear();

  /// Copies a picture into a bitmap, on BkColor, or on white without one; false for a number that there is none for.
  bool GetBitmap(int index, TBitmap& bitmap) const;
  /// A picture with what is transparent in it; null for a number that there is none for.
  QImage GetImage(int index) const;
  /// Draws nothing for a number that there is no picture for. What is disabled is grey and pale.
  void Draw(TCanvas& canvas, int x, int y, int index, bool enabled = true);
  void Draw(TCanvas& canvas, int x, int y, int index, TDrawingStyle style, TImageType type, bool enabled);

  /// Copies pictures and their look from another list; null clears.
  void Assign(TPersistent* source) override;

  void RegisterChanges(TChangeLink& link);
  void UnRegisterChanges(TChangeLink& link);

  /// Something about the pictures has changed.
  TNotifyEvent OnChange;

 protected:
  explicit TCustomImageList(TComponent* owner = nullptr) : TComponent(owner) {}

  void Destruct() override;
  void DefineProperties(TFiler& filer) override;
  /// Tells all links and raises OnChange.
  virtual void Change();

 private:
  void CheckIndex(int index, int end) const;
  void CheckReadable() const;
  /// The pictures in a bitmap.
  std::vector<QImage> Cut(TBitmap* image, const QImage& pixels) const;
  std::vector<QImage> Cut(TBitmap* image, TBitmap* mask) const;
  std::vector<QImage> CutMasked(TBitmap* image, TColor maskColor) const;
  void InsertImages(int index, const std::vector<QImage>& images);
  void ImagesChanged();
  QImage Prepared(int index, TDrawingStyle style, TImageType type, bool enabled) const;
  void ReadData(const QByteArray& bytes);
  QByteArray WriteData() const;

  std::vector<QImage> FImages;
  std::vector<TChangeLink*> FLinks;
  /// What was read, as long as no picture has changed.
  QByteArray FKept;
  /// FKept is not understood.
  bool FIsUnreadable = false;
  QSize FSize{16, 16};
  int FAllocBy = 4;
  TColor FBkColor = clNone;
  TColor FBlendColor = clNone;
  TDrawingStyle FDrawingStyle = dsNormal;
  TImageType FImageType = itImage;
  bool FMasked = true;
  bool FShareImages = false;
};

/// The list of pictures that applications place on their forms.
class TImageList : public TCustomImageList {
 public:
  using Inherited = TCustomImageList;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TImageList(TComponent* owner = nullptr) : TCustomImageList(owner) {}
};

}  // namespace kt
