#include "kt/vcl/graphics/Picture.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Filer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/GraphicsMessages.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/graphics/KeptGraphic.h"

#include <QFileInfo>
#include <QImageReader>

namespace kt {
namespace {

std::unique_ptr<TGraphic> MakeOf(const TClassInfo* classInfo) {
  return std::unique_ptr<TGraphic>(static_cast<TGraphic*>(classInfo->CreateInstance(nullptr)));
}

const TClassInfo* ClassOfExtension(const QString& extension) {
  if (extension == QLatin1StringView("ico")) return TIcon::Class();
  const bool isKnown =
      extension == QLatin1StringView("dib") || QImageReader::supportedImageFormats().contains(extension.toLatin1());
  if (!isKnown) throw EInvalidGraphic(Format(SUnknownExtension, {extension}));
  return TBitmap::Class();
}

std::unique_ptr<TGraphic> MakeForStream(const QString& className) {
  for (const TClassInfo* known : {TBitmap::Class(), TIcon::Class()}) {
    if (known->ClassNameIs(className)) return MakeOf(known);
  }
  const TClassInfo* registered = GetClass(className);
  if (registered && registered->InheritsFrom(TGraphic::Class()) && registered->IsCreatable()) return MakeOf(registered);
  auto kept = Make<TKeptGraphic>();
  kept->SetStreamedClass(className);
  return kept;
}

}  // namespace

const TClassInfo* TPicture::Class() {
  static const TClassInfo info = TClassBuilder<TPicture>("TPicture").Creatable().Done();
  return &info;
}

void TPicture::Destruct() {
  FGraphic.reset();
  TPersistent::Destruct();
}

void TPicture::Store(std::unique_ptr<TGraphic> graphic) {
  FGraphic = std::move(graphic);
  if (FGraphic) FGraphic->OnChange = {this, &TPicture::GraphicChanged};
  GraphicChanged(this);
}

void TPicture::GraphicChanged(TObject*) {
  const TNotifyEvent handler = OnChange;
  handler(this);
}

void TPicture::SetGraphic(TGraphic* value) {
  if (value && value == FGraphic.get()) return;
  if (!value && !FGraphic) return;
  std::unique_ptr<TGraphic> copy;
  if (value) {
    copy = MakeOf(value->ClassType());
    copy->Assign(value);
  }
  Store(std::move(copy));
}

template <class T>
T& TPicture::Force() {
  if (!dynamic_cast<T*>(FGraphic.get())) Store(Make<T>());
  return static_cast<T&>(*FGraphic);
}

TBitmap& TPicture::GetBitmap() { return Force<TBitmap>(); }
void TPicture::SetBitmap(TBitmap* value) { SetGraphic(value); }
TIcon& TPicture::GetIcon() { return Force<TIcon>(); }
void TPicture::SetIcon(TIcon* value) { SetGraphic(value); }

void TPicture::LoadFromFile(const QString& fileName) {
  auto graphic = MakeOf(ClassOfExtension(QFileInfo(fileName).suffix().toLower()));
  graphic->LoadFromFile(fileName);
  Store(std::move(graphic));
}

void TPicture::SaveToFile(const QString& fileName) {
  if (FGraphic) FGraphic->SaveToFile(fileName);
}

void TPicture::Assign(TPersistent* source) {
  if (!source) return SetGraphic(nullptr);
  if (auto* picture = dynamic_cast<TPicture*>(source)) return SetGraphic(picture->GetGraphic());
  if (auto* graphic = dynamic_cast<TGraphic*>(source)) return SetGraphic(graphic);
  TPersistent::Assign(source);
}

void TPicture::AssignTo(TPersistent* dest) {
  if (!dynamic_cast<TGraphic*>(dest) || !FGraphic) return TPersistent::AssignTo(dest);
  dest->Assign(FGraphic.get());
}

/// The name of the graphic's class, its length in a byte before it, and what the graphic itself keeps in forms.
void TPicture::ReadData(const QByteArray& data) {
  const qsizetype length = data.isEmpty() ? 0 : static_cast<unsigned char>(data[0]);
  if (length == 0) return Store(nullptr);
  if (data.size() <= length) throw EInvalidGraphic(SInvalidImage.toString());
  auto graphic = MakeForStream(QString::fromLatin1(data.sliced(1, length)));
  graphic->ReadData(data.sliced(length + 1));
  Store(std::move(graphic));
}

QByteArray TPicture::WriteData() {
  const auto* kept = dynamic_cast<TKeptGraphic*>(FGraphic.get());
  const QByteArray name = (kept ? kept->GetStreamedClass() : FGraphic->ClassName()).toLatin1();
  return QByteArray(1, static_cast<char>(name.size())) + name + FGraphic->WriteData();
}

bool TPicture::Equals(TPicture& other) const {
  if (!FGraphic || !other.FGraphic) return !FGraphic && !other.FGraphic;
  return FGraphic->Equals(other.FGraphic.get());
}

void TPicture::DefineProperties(TFiler& filer) {
  TPersistent::DefineProperties(filer);
  auto* ancestor = dynamic_cast<TPicture*>(filer.GetAncestor());
  const bool hasData = FGraphic && !FGraphic->IsEmpty() && !(ancestor && Equals(*ancestor));
  filer.DefineBinaryProperty(
      u"Data", [this](const QByteArray& data) { ReadData(data); }, [this] { return WriteData(); }, hasData);
}

}  // namespace kt
