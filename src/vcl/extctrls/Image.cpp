#include "kt/vcl/extctrls/Image.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/extctrls/DesignFrame.h"
#include "kt/vcl/graphics/Bitmap.h"

#include <QLatin1StringView>

namespace kt {

namespace {

constexpr QLatin1StringView SImageNeedsBitmap{"Can only modify an image if it contains a bitmap"};

}  // namespace

const TClassInfo* TImage::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TImage> builder("TImage");
    Publish::Align(builder);
    Publish::Anchors(builder);
    builder.Property<&TImage::IsAutoSize, &TImage::SetAutoSize>("AutoSize").Default(false);
    builder.Property<&TImage::IsCenter, &TImage::SetCenter>("Center").Default(false);
    Publish::Constraints(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    builder.Property<&TImage::IsIncrementalDisplay, &TImage::SetIncrementalDisplay>("IncrementalDisplay")
        .Default(false);
    Publish::ParentShowHint(builder);
    builder.Property<&TImage::GetPicture, &TImage::SetPicture>("Picture");
    Publish::PopupMenu(builder);
    builder.Property<&TImage::IsProportional, &TImage::SetProportional>("Proportional").Default(false);
    Publish::ShowHint(builder);
    builder.Property<&TImage::IsStretch, &TImage::SetStretch>("Stretch").Default(false);
    builder.Property<&TImage::IsTransparent, &TImage::SetTransparent>("Transparent").Default(false);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TImage::Construct() {
  TGraphicControl::Construct();
  FControlStyle.Include(csReplicatable);
  FPicture = Make<TPicture>();
  FPicture->OnChange = {this, &TImage::PictureChanged};
  SetBounds(0, 0, 105, 105);
}

void TImage::Loaded() {
  TGraphicControl::Loaded();
  AdjustSize();
}

TCanvas& TImage::GetCanvas() {
  if (!FPicture->GetGraphic()) FPicture->GetBitmap().SetSize(GetWidth(), GetHeight());
  auto* const bitmap = dynamic_cast<TBitmap*>(FPicture->GetGraphic());
  if (!bitmap) throw EInvalidOperation(SImageNeedsBitmap.toString());
  return bitmap->GetCanvas();
}

void TImage::PictureChanged(TObject*) {
  // The colour that is left out is a bitmap's; what has no ground of its own anyway is left alone.
  auto* const bitmap = dynamic_cast<TBitmap*>(FPicture->GetGraphic());
  if (bitmap && bitmap->IsTransparent() != FTransparent) return bitmap->SetTransparent(FTransparent);
  AdjustSize();
  Invalidate();
}

void TImage::AdjustSize() {
  const QSize size(FPicture->GetWidth(), FPicture->GetHeight());
  if (!FAutoSize || HasState(csReading) || size.isEmpty()) return;
  const TAlign align = GetAlign();
  const bool isWidthFree = align == alNone || align == alLeft || align == alRight || align == alCustom;
  const bool isHeightFree = align == alNone || align == alTop || align == alBottom || align == alCustom;
  SetBounds(GetLeft(), GetTop(), isWidthFree ? size.width() : GetWidth(), isHeightFree ? size.height() : GetHeight());
}

QRect TImage::PictureRect() const {
  const QSize room(GetWidth(), GetHeight());
  QSize size(FPicture->GetWidth(), FPicture->GetHeight());
  const bool isTooLarge = size.width() > room.width() || size.height() > room.height();
  if (FProportional && !size.isEmpty() && (FStretch || isTooLarge)) {
    size.scale(room, Qt::KeepAspectRatio);
  } else if (FStretch) {
    size = room;
  }
  const QPoint middle((room.width() - size.width()) / 2, (room.height() - size.height()) / 2);
  return {FCenter ? middle : QPoint(0, 0), size};
}

void TImage::Paint() {
  TCanvas& canvas = TGraphicControl::GetCanvas();
  if (HasState(csDesigning)) DrawDesignFrame(canvas, GetClientRect());
  canvas.StretchDraw(PictureRect(), FPicture->GetGraphic());
}

void TImage::SetAutoSize(bool value) {
  if (FAutoSize == value) return;
  FAutoSize = value;
  AdjustSize();
}

void TImage::SetCenter(bool value) {
  if (FCenter == value) return;
  FCenter = value;
  Invalidate();
}

void TImage::SetProportional(bool value) {
  if (FProportional == value) return;
  FProportional = value;
  Invalidate();
}

void TImage::SetStretch(bool value) {
  if (FStretch == value) return;
  FStretch = value;
  Invalidate();
}

void TImage::SetTransparent(bool value) {
  if (FTransparent == value) return;
  FTransparent = value;
  PictureChanged(this);
}

}  // namespace kt
