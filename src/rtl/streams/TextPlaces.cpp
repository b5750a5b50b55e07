#include "kt/rtl/streams/TextPlaces.h"

#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/TextParser.h"

namespace kt {
namespace {

/// Writes the binary form once more, and looks where the text is when it comes to an offset.
class TPlaceFinder final : public TBinaryFormWriter {
 public:
  TPlaceFinder(TBinaryWriter& writer, qint64 offset) : TBinaryFormWriter(writer), FBinary(writer), FOffset(offset) {}

  TTextPosition Find(const QByteArray& text, TEightBitEncoding encoding) {
    TTextParser parser(text, *this, {encoding});
    FParser = &parser;
    parser.ParseForm();
    return FFound;
  }

  void BeginObject(const TFormObject& object) override {
    Look();
    TBinaryFormWriter::BeginObject(object);
  }
  void BeginItem(std::optional<int> index) override {
    Look();
    TBinaryFormWriter::BeginItem(index);
  }
  void Property(QStringView path) override {
    TBinaryFormWriter::Property(path);
    // Errors of properties have the offset of the value.
    Look();
  }

 private:
  void Look() {
    if (FBinary.Position() <= FOffset) FFound = FParser->Place();
  }

  TBinaryWriter& FBinary;
  const TTextParser* FParser = nullptr;
  qint64 FOffset;
  TTextPosition FFound;
};

}  // namespace

TTextPosition FindPlaceInText(const QByteArray& text, qint64 offset, TEightBitEncoding encoding) {
  QByteArray binary;
  TBinaryWriter writer(binary);
  return TPlaceFinder(writer, offset).Find(text, encoding);
}

TPlaceWording PlacesInText(const QByteArray& text, TEightBitEncoding encoding) {
  return [text, encoding](const QString& what, qint64 offset, const QString& path) {
    const TTextPosition place = FindPlaceInText(text, offset, encoding);
    const QString where = OnLine(what, place.Line, place.Column);
    return path.isEmpty() ? where : where + QStringLiteral(" (") + path + u')';
  };
}

}  // namespace kt
