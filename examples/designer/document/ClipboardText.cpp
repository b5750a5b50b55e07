#include "designer/document/ClipboardText.h"

#include "designer/document/ComponentTree.h"
#include "designer/document/PastedNames.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/TextParser.h"
#include "kt/rtl/streams/TextWriter.h"
#include "kt/rtl/streams/Writer.h"

namespace designer {
namespace {

/// Puts new names into what was read as bytes.
void RenameKept(kt::TComponent* component, const TPastedNames& names) {
  kt::TKeptData* kept = kt::FindKeptData(component);
  if (!kept) return;
  for (kt::TKeptData::TProperty& property : kept->Properties) property.Value = names.InValue(property.Value);
}

/// Writes what `text` describes as a reader of several components takes it.
QByteArray BinaryOfObjects(const QByteArray& text, const TPastedNames& names) {
  QByteArray binary;
  kt::TBinaryWriter writer(binary);
  TRenamingWriter sink(writer, names);
  kt::TTextParser(text, sink).ParseObjects();
  writer.WriteListEnd();
  writer.Flush();
  return binary;
}

}  // namespace

QString TextOfComponents(kt::TComponent* root, const std::vector<kt::TComponent*>& components) {
  kt::TWriter writer;
  writer.WriteComponents(components, root);
  kt::TBinaryReader reader(writer.Data());
  QByteArray text;
  kt::TByteSink bytes(text);
  kt::TTextWriter sink(bytes, {.LineEnd = kt::leLf, .RawUtf8 = true});
  kt::TBinaryFormParser parser(reader, sink);
  while (!reader.EndOfList()) parser.ParseForm();
  bytes.Flush();
  return QString::fromUtf8(text);
}

std::vector<kt::TComponent*> PasteComponents(kt::TComponent* root, kt::TComponent* parent, const QString& text,
                                             const TNewName& newName) {
  const QByteArray utf8 = text.toUtf8();
  const TPastedNames names(utf8, root, newName);
  kt::TReader reader(BinaryOfObjects(utf8, names));
  reader.SetPlaceWording(PlacesInObjects(utf8, names));
  reader.UnknownClasses = kt::upKeep;
  reader.UnknownProperties = kt::upKeep;
  reader.OnReferenceName = [&names](QString& name) { name = names.InReference(name); };
  std::vector<kt::TComponent*> pasted;
  reader.ReadComponents(root, parent, [&pasted](kt::TComponent* component) { pasted.push_back(component); });
  for (kt::TComponent* component : pasted) {
    MoveToEnd(root, component);
    for (kt::TComponent* below : WithDescendants(root, component)) RenameKept(below, names);
  }
  return pasted;
}

}  // namespace designer
