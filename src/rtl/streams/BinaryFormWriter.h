#pragma once

#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/FormEvents.h"

#include <vector>

namespace kt {

/// Writes events in the binary object format. The events must follow the grammar of IFormSink; what they bring is
/// checked, their order only by assertions. A signature is written before the first object.
class TBinaryFormWriter : public IFormSink {
 public:
  /// `writer` must outlive this sink; flushing it is the caller's business.
  explicit TBinaryFormWriter(TBinaryWriter& writer) : FWriter(writer) {}

  void BeginObject(const TFormObject& object) override;
  void EndObject() override;
  void Property(QStringView path) override;
  void Constant(TFormConstant value) override;
  void Integer(qint64 value) override;
  void Float(TFloatKind kind, Extended value) override;
  void Currency(qint64 tenThousandths) override;
  void String(QStringView value) override;
  void Identifier(QStringView name) override;
  void Binary(QByteArrayView data) override;
  void BeginSet() override;
  void SetElement(QStringView name) override;
  void EndSet() override;
  void BeginList() override;
  void EndList() override;
  void BeginCollection() override;
  void BeginItem(std::optional<int> index) override;
  void EndItem() override;
  void EndCollection() override;

 private:
  /// What is open; an object with children has its properties closed already.
  enum TFrameKind : quint8 { fkProperties, fkChildren, fkList, fkCollection, fkItem };
  struct TFrame {
    TFrameKind Kind;
    int NextItem = 0;
  };
  void Close(TFrameKind kind);

  TBinaryWriter& FWriter;
  std::vector<TFrame> FFrames;
};

}  // namespace kt
