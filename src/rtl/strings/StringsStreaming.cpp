// How a string list is streamed: as one list of strings under the name "Strings".
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/Strings.h"

namespace kt {
namespace {

void ReadLines(TStrings& strings, TReader& reader) {
  reader.ReadListBegin();
  const TUpdateBracket bracket(strings);
  strings.Clear();
  while (!reader.EndOfList()) strings.Add(reader.ReadString());
  reader.ReadListEnd();
}

void WriteLines(TStrings& strings, TWriter& writer) {
  writer.WriteListBegin();
  for (int i = 0; i < strings.GetCount(); ++i) writer.WriteString(strings.GetStrings(i));
  writer.WriteListEnd();
}

}  // namespace

void TStrings::DefineProperties(TFiler& filer) {
  auto* inherited = dynamic_cast<TStrings*>(filer.GetAncestor());
  const bool hasData = inherited ? !Equals(*inherited) : GetCount() > 0;
  filer.DefineProperty(
      u"Strings", [this](TReader& reader) { ReadLines(*this, reader); },
      [this](TWriter& writer) { WriteLines(*this, writer); }, hasData);
}

}  // namespace kt
