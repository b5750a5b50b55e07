#include "designer/document/PastedNames.h"

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/TextParser.h"

#include <QSet>

#include <vector>

namespace designer {
namespace {

struct TPastedObject {
  QString Name;
  QString ClassName;
  /// Part of a nested form, where names count for themselves.
  bool IsNested;
};

/// Lists the objects of a text.
class TObjectList : public kt::TIdleFormSink {
 public:
  void BeginObject(const kt::TFormObject& object) override {
    FObjects.push_back({object.Name.toString(), object.ClassName.toString(), FInlineDepth > 0});
    if (FInlineDepth > 0 || object.Flags.testFlag(kt::ffInline)) ++FInlineDepth;
  }
  void EndObject() override {
    if (FInlineDepth > 0) --FInlineDepth;
  }

  const std::vector<TPastedObject>& Objects() const { return FObjects; }

 private:
  std::vector<TPastedObject> FObjects;
  int FInlineDepth = 0;
};

/// Writes one value with other identifiers.
class TIdentifierWriter : public kt::TBinaryFormWriter {
 public:
  TIdentifierWriter(kt::TBinaryWriter& writer, const TPastedNames& names) : TBinaryFormWriter(writer), FNames(names) {}

  void Identifier(QStringView name) override {
    const QString now = FNames.InReference(name.toString());
    FHasChanged |= now != name;
    TBinaryFormWriter::Identifier(now);
  }
  bool HasChanged() const { return FHasChanged; }

 private:
  const TPastedNames& FNames;
  bool FHasChanged = false;
};

/// Writes the objects once more, and looks where the text is when it comes to an offset.
class TPlaceFinder : public TRenamingWriter {
 public:
  TPlaceFinder(kt::TBinaryWriter& writer, const TPastedNames& names, qint64 offset)
      : TRenamingWriter(writer, names), FBinary(writer), FOffset(offset) {}

  kt::TTextPosition Find(const QByteArray& text) {
    kt::TTextParser parser(text, *this);
    FParser = &parser;
    parser.ParseObjects();
    return FFound;
  }

  void BeginObject(const kt::TFormObject& object) override {
    Look();
    TRenamingWriter::BeginObject(object);
  }
  void BeginItem(std::optional<int> index) override {
    Look();
    TRenamingWriter::BeginItem(index);
  }
  void Property(QStringView path) override {
    TRenamingWriter::Property(path);
    // Errors of properties have the offset of the value.
    Look();
  }

 private:
  void Look() {
    if (FBinary.Position() <= FOffset) FFound = FParser->Place();
  }

  kt::TBinaryWriter& FBinary;
  const kt::TTextParser* FParser = nullptr;
  qint64 FOffset;
  kt::TTextPosition FFound;
};

}  // namespace

TPastedNames::TPastedNames(const QByteArray& text, kt::TComponent* root, const TNewName& newName) {
  TObjectList list;
  kt::TTextParser(text, list).ParseObjects();
  QStringList all;
  for (const TPastedObject& object : list.Objects()) all.append(object.Name);
  QSet<QString> used;
  QSet<QString> known;
  for (const TPastedObject& object : list.Objects()) {
    const QString key = object.Name.toLower();
    const bool isFree = object.Name.isEmpty() || object.IsNested ||
                        (!root->FindComponent(object.Name) && key != root->GetName().toLower() && !used.contains(key));
    const QString name = isFree ? QString() : newName(object.ClassName, all);
    FNewNames.append(name);
    if (!name.isEmpty()) all.append(name);
    if (object.IsNested) continue;
    used.insert(name.isEmpty() ? key : name.toLower());
    if (!name.isEmpty() && !known.contains(key)) FByOldName.insert(key, name);
    known.insert(key);
  }
}

QString TPastedNames::InReference(const QString& name) const {
  const qsizetype dot = name.indexOf(u'.');
  const QString first = dot < 0 ? name : name.left(dot);
  const auto found = FByOldName.constFind(first.toLower());
  return found == FByOldName.cend() ? name : *found + name.mid(first.size());
}

QByteArray TPastedNames::InValue(const QByteArray& value) const {
  if (FByOldName.isEmpty()) return value;
  QByteArray result;
  kt::TBinaryWriter writer(result);
  TIdentifierWriter sink(writer, *this);
  kt::TBinaryReader reader(value);
  kt::TBinaryFormParser(reader, sink).ParseValue();
  writer.Flush();
  return sink.HasChanged() ? result : value;
}

void TRenamingWriter::BeginObject(const kt::TFormObject& object) {
  kt::TFormObject renamed = object;
  const QString name = FNames.NewNameOf(FIndex++);
  if (!name.isEmpty()) renamed.Name = name;
  TBinaryFormWriter::BeginObject(renamed);
}

kt::TPlaceWording PlacesInObjects(const QByteArray& text, const TPastedNames& names) {
  return [text, &names](const QString& what, qint64 offset, const QString& path) {
    QByteArray binary;
    kt::TBinaryWriter writer(binary);
    const kt::TTextPosition place = TPlaceFinder(writer, names, offset).Find(text);
    const QString where = kt::OnLine(what, place.Line, place.Column);
    return path.isEmpty() ? where : QStringLiteral("%1 (%2)").arg(where, path);
  };
}

}  // namespace designer
