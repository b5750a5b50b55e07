#include "kt/rtl/streams/DefinedValue.h"

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"

namespace kt {

/// A writer that passes over all defined properties but one.
class TDefinedValueWriter final : public TWriter {
 public:
  TDefinedValueWriter(QStringView name, TComponent* root) : FName(name) {
    FRoot = root;
    FLookupRoot = root;
  }

  void DefineProperty(QStringView name, const TReaderProc& read, const TWriterProc& write, bool hasData) override {
    if (SameText(name, FName)) TWriter::DefineProperty(name, read, write, hasData);
  }
  void DefineBinaryProperty(QStringView name, const TReadBinaryProc& read, const TWriteBinaryProc& write,
                            bool hasData) override {
    if (SameText(name, FName)) TWriter::DefineBinaryProperty(name, read, write, hasData);
  }
  QByteArray ListOf(TPersistent& object) {
    DefineWith(object);
    if (Data().isEmpty()) return {};
    WriteListEnd();
    return Data();
  }

 private:
  QStringView FName;
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
