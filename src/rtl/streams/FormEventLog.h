#pragma once

#include "kt/rtl/streams/FormEvents.h"

#include <QString>

#include <vector>

namespace kt {

/// Writes down every event of a form, one line each. Two forms are equal, in structure and to the last bit of each
/// value, exactly if their logs are equal (all not-a-numbers count as one). It also counts.
class TFormEventLog : public IFormSink {
 public:
  const QString& Text() const { return FText; }
  int ObjectCount() const { return FObjects; }
  /// Properties of objects and of collection items.
  int PropertyCount() const { return FProperties; }

  void BeginObject(const TFormObject& object) override;
  void EndObject() override { Line(u"end object"); }
  void Property(QStringView path) override;
  void Constant(TFormConstant value) override { Line(u"constant ", FormConstantName(value)); }
  void Integer(qint64 value) override { Line(u"integer ", QString::number(value)); }
  void Float(TFloatKind kind, Extended value) override;
  void Currency(qint64 value) override { Line(u"currency ", QString::number(value)); }
  void String(QStringView value) override;
  void Identifier(QStringView name) override { Line(u"identifier ", name); }
  void Binary(QByteArrayView data) override;
  void BeginSet() override { Line(u"set"); }
  void SetElement(QStringView name) override { Line(u"element ", name); }
  void EndSet() override { Line(u"end set"); }
  void BeginList() override { Line(u"list"); }
  void EndList() override { Line(u"end list"); }
  void BeginCollection() override { Line(u"collection"); }
  void BeginItem(std::optional<int> index) override;
  void EndItem() override { Line(u"end item"); }
  void EndCollection() override { Line(u"end collection"); }

 private:
  void Line(QStringView what, QStringView detail = {});

  QString FText;
  int FObjects = 0;
  int FProperties = 0;
};

}  // namespace kt
