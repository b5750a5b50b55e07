#include "kt/rtl/streams/DefinedValue.h"

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"

#include <utility>

namespace kt {

/// A writer that passes over all defined properties but one.
class TDefinedValueWriter final : public TWriter {
 public:
  TDefinedValueWriter(QStringView name, TComponent* root) : FName(name) {
    FRoot = root;
    FLookupRoot = root;
  }

  void DefineProperty(QStringView name, const TReaderProc& read, const TWriterProc& write, bool hasData) override {
    if (!FIsInside && !SameText(name, FName)) return;
    // What stands inside the value, as the lines of an item's list, belongs to it.
    const bool outer = std::exchange(FIsInside, true);
    TWriter::DefineProperty(name, read, write, hasData);
    FIsInside = outer;
  }
  void DefineBinaryProperty(QStringView name, const TReadBinaryProc& read, const TWriteBinaryProc& write,
                            bool hasData) override {
    if (FIsInside || SameText(name, FName)) TWriter::DefineBinaryProperty(name, read, write, hasData);
  }
  QByteArray ListOf(TPersistent& object) {
    DefineWith(object);
    if (Data().isEmpty()) return {};
    WriteListEnd();
    return Data();
  }

 private:
  QStringView FName;
  bool FIsInside = false;
};

QByteArray DefinedValueOf(TPersistent& object, QStringView name, TComponent* root) {
  return TDefinedValueWriter(name, root).ListOf(object);
}

void GiveDefinedValue(TPersistent& object, const QByteArray& properties, TComponent* root) {
  TReader reader(properties);
  reader.SetRoot(root);
  reader.ReadProperties(object);
}

}  // namespace kt
