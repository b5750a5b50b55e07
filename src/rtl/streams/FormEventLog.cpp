#include "kt/rtl/streams/FormEventLog.h"

#include <array>
#include <cmath>
#include <limits>

namespace kt {
namespace {

/// The exact value, as a mantissa and a power of two.
QString ExactText(Extended value) {
  if (std::isnan(value)) return QStringLiteral("nan");
  const QString sign = QString::fromLatin1(std::signbit(value) ? "-" : "");
  if (std::isinf(value)) return sign + QStringLiteral("inf");
  int exponent = 0;
  const Extended fraction = std::frexp(std::fabs(value), &exponent);
  const auto mantissa = quint64(std::ldexp(fraction, std::numeric_limits<Extended>::digits));
  return sign + QString::number(mantissa) + u'p' + QString::number(exponent);
}

constexpr std::array<QStringView, 4> kFloatNames{u"extended ", u"single ", u"date ", u"double "};

}  // namespace

void TFormEventLog::Line(QStringView what, QStringView detail) {
  FText.append(what);
  FText.append(detail);
  FText.append(u'\n');
}

void TFormEventLog::BeginObject(const TFormObject& object) {
  ++FObjects;
  QString flags = object.Flags.testFlag(ffInherited) ? QStringLiteral("inherited ") : QStringLiteral("object ");
  if (object.Flags.testFlag(ffInline)) flags += QStringLiteral("inline ");
  flags += object.Name.toString() + QStringLiteral(": ") + object.ClassName.toString();
  if (object.Flags.testFlag(ffChildPos)) flags += QStringLiteral(" [") + QString::number(object.ChildPos) + u']';
  Line(flags);
}

void TFormEventLog::Property(QStringView path) {
  ++FProperties;
  Line(u"property ", path);
}

void TFormEventLog::Float(TFloatKind kind, Extended value) { Line(kFloatNames[kind], ExactText(value)); }

void TFormEventLog::String(QStringView value) {
  // The length makes line breaks inside the value unambiguous.
  FText.append(QStringLiteral("string ") + QString::number(value.size()) + u' ');
  Line(value);
}

void TFormEventLog::Binary(QByteArrayView data) {
  Line(u"binary ", QString::fromLatin1(data.toByteArray().toHex().toUpper()));
}

void TFormEventLog::BeginItem(std::optional<int> index) {
  Line(u"item", index ? QStringLiteral(" [") + QString::number(*index) + u']' : QString());
}

}  // namespace kt
