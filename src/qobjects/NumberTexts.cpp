#include "kt/qobjects/NumberTexts.h"

#include <QMetaType>

#include <limits>

namespace kt {

namespace {

template <class T>
QString ShortestText(T number) {
  QString text;
  for (int digits = std::numeric_limits<T>::digits10; digits <= std::numeric_limits<T>::max_digits10; ++digits) {
    text = QString::number(static_cast<double>(number), 'g', digits);
    if (static_cast<T>(text.toDouble()) == number) break;
  }
  return text;
}

QString TextOfNumber(const QVariant& value) {
  return value.metaType().id() == QMetaType::Float ? ExactText(value.toFloat()) : ExactText(value.toDouble());
}

/// What is no number in this form, reflection has a look at.
bool WriteNumberText(TValueHolder& holder, const TValueMember& member, const QString& text) {
  bool isNumber = false;
  const double number = text.trimmed().toDouble(&isNumber);
  if (!isNumber) return false;
  ChangeMember(holder.AsObject(), member, [&](const QVariant&) {
    return member.Type.id() == QMetaType::Float ? QVariant(static_cast<float>(number)) : QVariant(number);
  });
  return true;
}

}  // namespace

QString ExactText(double number) { return ShortestText(number); }

QString ExactText(float number) { return ShortestText(number); }

TMemberTexts NumberTexts(const TMemberPtr& member) {
  return {.ToText = [member](TValueHolder& holder) { return TextOfNumber(member->Read(holder)); },
          .FromText = [member](TValueHolder& holder,
                               const QString& text) { return WriteNumberText(holder, *member, text); }};
}

}  // namespace kt
