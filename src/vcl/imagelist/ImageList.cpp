#include "kt/vcl/imagelist/ImageList.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/Filer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/imagelist/ChangeLink.h"
#include "kt/vcl/imagelist/ImageListStream.h"

#include <QLatin1StringView>

#include <algorithm>
#include <utility>

namespace kt {

namespace {

constexpr QLatin1StringView SInvalidImageSize{"Invalid image size"};
constexpr QLatin1StringView SImageIndexError{"Invalid ImageList Index"};
constexpr QLatin1StringView SInvalidImageList{"Invalid ImageList"};

}  // namespace

const TClassInfo* TCustomImageList::Class() {
  static const TClassInfo info = TClassBuilder<TCustomImageList>("TCustomImageList").Done();
  return &info;
}

const TClassInfo* TImageList::Class() {
  using T = TImageList;
  static const TClassInfo info = TClassBuilder<T>("TImageList")
                                     .Property<&T::GetAllocBy, &T::SetAllocBy>("AllocBy")
                                     .Default(4)
                                     .Property<&T::GetBlendColor, &T::SetBlendColor>("BlendColor")
                                     .Default(clNone)
                                     .Property<&T::GetBkColor, &T::SetBkColor>("BkColor")
                                     .Default(clNone)
                                     .Property<&T::GetDrawingStyle, &T::SetDrawingStyle>("DrawingStyle")
                                     .Default(dsNormal)
                                     .Property<&T::GetHeight, &T::SetHeight>("Height")
                                     .Default(16)
                                     .Property<&T::GetImageType, &T::SetImageType>("ImageType")
                                     .Default(itImage)
                                     .Property<&T::IsMasked, &T::SetMasked>("Masked")
                                     .Default(true)
                                     .Property<&T::IsShareImages, &T::SetShareImages>("ShareImages")
                                     .Default(false)
                                     .Property<&T::GetWidth, &T::SetWidth>("Width")
                                     .Default(16)
                                     .Property<&T::OnChange>("OnChange")
                                     .Creatable()
                                     .Done();
  return &info;
}

void TCustomImageList::Destruct() {
  Destroying();
  while (!FLinks.empty()) {
    TChangeLink* link = FLinks.back();
    UnRegisterChanges(*link);
    GuardedCall([link] { link->Change(); });
  }
  TComponent::Destruct();
}

// Links.

void TCustomImageList::RegisterChanges(TChangeLink& link) {
  if (link.FSender) link.FSender->UnRegisterChanges(link);
  FLinks.push_back(&link);
  link.FSender = this;
}

void TCustomImageList::UnRegisterChanges(TChangeLink& link) {
  if (std::erase(FLinks, &link) > 0) link.FSender = nullptr;
}

void TCustomImageList::Change() {
  const TLifeWatch self(this);
  // Whoever is told may free others, or the list.
  for (TChangeLink* link : std::vector<TChangeLink*>(FLinks)) {
    if (!self.IsAlive()) return;
    if (std::find(FLinks.begin(), FLinks.end(), link) != FLinks.end()) link->Change();
  }
  if (self.IsAlive()) OnChange(this);
}

void TCustomImageList::ImagesChanged() {
  FKept.clear();
  FIsUnreadable = false;
  Change();
}

// Looks.

void TCustomImageList::SetSize(int width, int height) {
  if (width < 1 || height < 1) throw EInvalidOperation(SInvalidImageSize);
  if (FSize == QSize(width, height)) return;
  FSize = {width, height};
  FImages.clear();
  ImagesChanged();
}

void TCustomImageList::SetBkColor(TColor value) {
  if (std::exchange(FBkColor, value) != value) Change();
}

void TCustomImageList::SetBlendColor(TColor value) {
  if (std::exchange(FBlendColor, value) != value) Change();
}

void TCustomImageList::SetDrawingStyle(TDrawingStyle value) {
  if (std::exchange(FDrawingStyle, value) != value) Change();
}

void TCustomImageList::SetImageType(TImageType value) {
  if (std::exchange(FImageType, value) != value) Change();
}

// Pictures.

void TCustomImageList::CheckIndex(int index, int end) const {
  if (index < 0 || index >= end) throw EInvalidOperation(SImageIndexError);
}

void TCustomImageList::CheckReadable() const {
  if (FIsUnreadable) throw EInvalidOperation(SInvalidImageList);
}

std::vector<QImage> TCustomImageList::Cut(TBitmap* image, const QImage& pixels) const {
  if (!image || pixels.width() < GetWidth() || pixels.height() < GetHeight()) {
    throw EInvalidOperation(SInvalidImageSize);
  }
  std::vector<QImage> images;
  for (int x = 0; x + GetWidth() <= pixels.width(); x += GetWidth()) {
    images.push_back(pixels.copy(QRect({x, 0}, FSize)).convertToFormat(QImage::Format_ARGB32));
  }
  return images;
}

std::vector<QImage> TCustomImageList::Cut(TBitmap* image, TBitmap* mask) const {
  if (!image || !mask || mask->IsEmpty()) return Cut(image, image ? image->GetImage() : QImage());
  QImage pixels = image->GetImage().convertToFormat(QImage::Format_ARGB32);
  const QImage masked = mask->GetImage().convertToFormat(QImage::Format_RGB32);
  if (masked.width() < pixels.width() || masked.height() < pixels.height()) {
    throw EInvalidOperation(SInvalidImageSize);
  }
  for (int y = 0; y < pixels.height(); ++y) {
    for (int x = 0; x < pixels.width(); ++x) {
      if (qGray(masked.pixel(x, y)) >= 128) pixels.setPixel(x, y, 0);
    }
  }
  return Cut(image, pixels);
}

std::vector<QImage> TCustomImageList::CutMasked(TBitmap* image, TColor maskColor) const {
  if (!image || maskColor == clNone) return Cut(image, nullptr);
  const QRgb hidden = QtColor(maskColor == clDefault ? image->GetTransparentColor() : maskColor).rgb() & RGB_MASK;
  QImage pixels = image->GetImage().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < pixels.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(pixels.scanLine(y));
    const auto isHidden = [hidden](QRgb pixel) { return (pixel & RGB_MASK) == hidden; };
    std::replace_if(line, line + pixels.width(), isHidden, QRgb{0});
  }
  return Cut(image, pixels);
}

void TCustomImageList::InsertImages(int index, const std::vector<QImage>& images) {
  CheckReadable();
  FImages.insert(FImages.begin() + index, images.begin(), images.end());
  ImagesChanged();
}

int TCustomImageList::Add(TBitmap* image, TBitmap* mask) {
  const int index = GetCount();
  InsertImages(index, Cut(image, mask));
  return index;
}

int TCustomImageList::AddMasked(TBitmap* image, TColor maskColor) {
  const int index = GetCount();
  InsertImages(index, CutMasked(image, maskColor));
  return index;
}

void TCustomImageList::AddImages(TCustomImageList* value) {
  if (!value || value->FImages.empty()) return;
  if (value->FSize != FSize) throw EInvalidOperation(SInvalidImageSize);
  InsertImages(GetCount(), std::vector<QImage>(value->FImages));
}

void TCustomImageList::Insert(int index, TBitmap* image, TBitmap* mask) {
  CheckIndex(index, GetCount() + 1);
  InsertImages(index, Cut(image, mask));
}

void TCustomImageList::InsertMasked(int index, TBitmap* image, TColor maskColor) {
  CheckIndex(index, GetCount() + 1);
  InsertImages(index, CutMasked(image, maskColor));
}

void TCustomImageList::Replace(int index, TBitmap* image, TBitmap* mask) {
  CheckIndex(index, GetCount());
  FImages[index] = Cut(image, mask).front();
  ImagesChanged();
}

void TCustomImageList::ReplaceMasked(int index, TBitmap* image, TColor maskColor) {
  CheckIndex(index, GetCount());
  FImages[index] = CutMasked(image, maskColor).front();
  ImagesChanged();
}

void TCustomImageList::Delete(int index) {
  if (index == -1) return Clear();
  CheckIndex(index, GetCount());
  FImages.erase(FImages.begin() + index);
  ImagesChanged();
}

void TCustomImageList::Move(int from, int to) {
  CheckIndex(from, GetCount());
  CheckIndex(to, GetCount());
  if (from == to) return;
  const QImage image = FImages[from];
  FImages.erase(FImages.begin() + from);
  FImages.insert(FImages.begin() + to, image);
  ImagesChanged();
}

void TCustomImageList::Clear() {
  if (FImages.empty() && FKept.isEmpty()) return;
  FImages.clear();
  ImagesChanged();
}

QImage TCustomImageList::GetImage(int index) const {
  return index >= 0 && index < GetCount() ? FImages[index] : QImage();
}

void TCustomImageList::Assign(TPersistent* source) {
  if (!source) return Clear();
  auto* other = dynamic_cast<TCustomImageList*>(source);
  if (!other) return TComponent::Assign(source);
  if (other == this) return;
  FImages = other->FImages;
  FSize = other->FSize;
  FAllocBy = other->FAllocBy;
  FMasked = other->FMasked;
  FBkColor = other->FBkColor;
  FBlendColor = other->FBlendColor;
  FDrawingStyle = other->FDrawingStyle;
  FImageType = other->FImageType;
  FKept = other->FKept;
  FIsUnreadable = other->FIsUnreadable;
  Change();
}

// Streams.

void TCustomImageList::DefineProperties(TFiler& filer) {
  TComponent::DefineProperties(filer);
  const auto* ancestor = dynamic_cast<TCustomImageList*>(filer.GetAncestor());
  QByteArray data = WriteData();
  const bool hasData = ancestor ? ancestor->WriteData() != data : !data.isEmpty();
  filer.DefineBinaryProperty(
      u"Bitmap", [this](const QByteArray& bytes) { ReadData(bytes); }, [data] { return data; }, hasData);
}

void TCustomImageList::ReadData(const QByteArray& bytes) {
  auto data = ReadImageListStream(bytes);
  FIsUnreadable = !data && !bytes.isEmpty();
  FImages.clear();
  if (data) {
    FSize = data->Size;
    FImages = std::move(data->Images);
  }
  FKept = bytes;
  Change();
}

QByteArray TCustomImageList::WriteData() const {
  if (!FKept.isEmpty() || FImages.empty()) return FKept;
  return WriteImageListStream({FSize, FAllocBy, FMasked, FImages});
}

}  // namespace kt
