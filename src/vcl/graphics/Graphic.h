#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/Event.h"

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QString>

class QIODevice;

namespace kt {

class TCanvas;

/// A picture of some kind: a bitmap, an icon. Belongs to whoever made it; tells its changes.
class TGraphic : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  virtual bool IsEmpty() const = 0;
  /// In pixels; 0 when empty.
  virtual int GetWidth() const = 0;
  virtual void SetWidth(int value) = 0;
  virtual int GetHeight() const = 0;
  virtual void SetHeight(int value) = 0;
  /// Whether the background shows through.
  virtual bool IsTransparent() const { return FTransparent; }
  virtual void SetTransparent(bool value);
  /// Set by each change, and by nobody else but its owner, who clears it when the graphic is saved.
  bool IsModified() const { return FModified; }
  void SetModified(bool value);

  /// After each change.
  TNotifyEvent OnChange;

  /// Replaces the picture by one in the format of the class. Raises EFOpenError for a file that cannot be read and
  /// EInvalidGraphic for one that has no picture of this kind; the old one stays then.
  void LoadFromFile(const QString& fileName);
  virtual void LoadFromStream(QIODevice& stream) = 0;
  /// Writes the whole file or leaves the old one alone. Raises EFCreateError.
  virtual void SaveToFile(const QString& fileName);
  virtual void SaveToStream(QIODevice& stream) = 0;

  /// True when both are of one class and have one content.
  bool Equals(TGraphic* other);
  /// The picture as pixels; null when it is empty or cannot be shown.
  virtual QImage ToImage() const = 0;
  /// Draws the picture stretched to `rect`; TCanvas::Draw() calls it.
  virtual void DrawOn(TCanvas& canvas, const QRect& rect) = 0;

  /// The content as form files keep it.
  virtual void ReadData(const QByteArray& data);
  virtual QByteArray WriteData();

 protected:
  TGraphic() = default;

  /// Notes the change and raises OnChange.
  virtual void Changed();
  void DefineProperties(TFiler& filer) override;
  /// Takes over from `source` whether the background shows through, without telling it.
  void CopyTransparency(const TGraphic& source) { FTransparent = source.FTransparent; }
  /// Draws pixels stretched to `rect`; on a mirrored canvas they change sides and are not mirrored themselves.
  static void DrawImageOn(TCanvas& canvas, const QRect& rect, const QImage& image);

 private:
  bool FTransparent = false;
  bool FModified = false;
};

}  // namespace kt
