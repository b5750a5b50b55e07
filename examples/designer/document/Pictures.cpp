#include "designer/document/Pictures.h"

#include "designer/document/DocumentErrors.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Picture.h"
#include "kt/vcl/imagelist/ImageList.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>

namespace designer {
namespace {

/// Null for what is none, or empty.
kt::TGraphic* GraphicOf(kt::TObject* object) {
  auto* picture = dynamic_cast<kt::TPicture*>(object);
  auto* graphic = picture ? picture->GetGraphic() : dynamic_cast<kt::TGraphic*>(object);
  return graphic && !graphic->IsEmpty() ? graphic : nullptr;
}

/// Calls `see` with each published object of a component that has something to show.
template <class F>
void WithPictures(kt::TComponent* component, F see) {
  for (const kt::TPropInfo* property : component->ClassType()->Props()) {
    if (property->Kind() != kt::tkClass || !property->IsReadable()) continue;
    kt::TObject* object = kt::GetObjectProp(component, property);
    if (GraphicOf(object)) see(*object);
  }
}

/// In the middle of a picture of that size, as large as fits.
QImage Fitted(const QImage& image, QSize size) {
  const QImage scaled = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QImage fitted(size, QImage::Format_ARGB32_Premultiplied);
  fitted.fill(Qt::transparent);
  const QSize rest = size - scaled.size();
  QPainter(&fitted).drawImage(QPoint(rest.width() / 2, rest.height() / 2), scaled);
  return fitted;
}

}  // namespace

void LoadPicture(kt::TObject& picture, const QString& fileName) {
  if (auto* graphic = dynamic_cast<kt::TGraphic*>(&picture)) return graphic->LoadFromFile(fileName);
  dynamic_cast<kt::TPicture&>(picture).LoadFromFile(fileName);
}

bool HasPicture(const std::vector<kt::TComponent*>& components) {
  bool hasAny = false;
  for (kt::TComponent* component : components) WithPictures(component, [&](kt::TObject&) { hasAny = true; });
  return hasAny;
}

void ClearPictures(const std::vector<kt::TComponent*>& components) {
  for (kt::TComponent* component : components) {
    WithPictures(component, [](kt::TObject& object) { dynamic_cast<kt::TPersistent&>(object).Assign(nullptr); });
  }
}

void AddImageFile(kt::TCustomImageList& list, const QString& fileName) {
  const auto picture = kt::Make<kt::TPicture>();
  picture->LoadFromFile(fileName);
  const QImage image = picture->GetGraphic() ? picture->GetGraphic()->ToImage() : QImage();
  if (image.isNull()) throw EDocumentError(QStringLiteral("%1 has no picture").arg(QFileInfo(fileName).fileName()));
  const QSize size(list.GetWidth(), list.GetHeight());
  const bool isRow = image.height() == size.height() && image.width() % size.width() == 0;
  const auto bitmap = kt::Make<kt::TBitmap>();
  bitmap->SetImage(isRow ? image : Fitted(image, size));
  // What has no transparent places of its own gets them where its lower left colour is.
  bitmap->GetImage().hasAlphaChannel() ? list.Add(bitmap.get(), nullptr) : list.AddMasked(bitmap.get(), kt::clDefault);
}

}  // namespace designer
