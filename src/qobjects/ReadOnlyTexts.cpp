// What is shown of values that have no text to be edited.
#include "kt/qobjects/NumberTexts.h"
#include "kt/qobjects/ValueTexts.h"

#include <QBitmap>
#include <QIcon>
#include <QImage>
#include <QMetaType>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QStringList>

#include <initializer_list>
#include <optional>

namespace kt {

namespace {

QString SizeText(QSize size) { return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()); }

bool IsNullPointer(const QVariant& value) {
  constexpr QMetaType::TypeFlags pointers =
      QMetaType::IsPointer | QMetaType::PointerToQObject | QMetaType::PointerToGadget;
  const bool isPointer = (value.metaType().flags() & pointers) != 0;
  return isPointer && !*static_cast<void* const*>(value.constData());
}

QString SizesText(const QIcon& icon) {
  QStringList sizes;
  for (const QSize size : icon.availableSizes()) sizes += SizeText(size);
  return sizes.join(QStringLiteral(", "));
}

/// By its name where it has one, else by its sizes.
QString IconText(const QVariant& value) {
  const auto icon = value.value<QIcon>();
  if (icon.isNull()) return {};
  if (!icon.name().isEmpty()) return icon.name();
  const QString sizes = SizesText(icon);
  return sizes.isEmpty() ? QStringLiteral("(QIcon)") : sizes;
}

/// Lists of numbers: "1, 2".
QString Joined(std::initializer_list<double> numbers) {
  QStringList texts;
  for (const double number : numbers) texts += ExactText(number);
  return texts.join(QStringLiteral(", "));
}

/// So deep do values in lists go that are shown.
constexpr int kDeepestValue = 8;

QString TextAtDepth(const QVariant& value, int depth);

QString ListText(const QVariant& value, int depth) {
  QStringList texts;
  for (const QVariant& element : value.toList()) texts += TextAtDepth(element, depth + 1);
  return u'[' + texts.join(QStringLiteral(", ")) + u']';
}

template <class T>
QString MapText(const T& map, int depth) {
  QStringList texts;
  for (auto entry = map.begin(); entry != map.end(); ++entry) {
    texts += entry.key() + QStringLiteral(": ") + TextAtDepth(entry.value(), depth + 1);
  }
  // Those of hashes come in no order of their own.
  texts.sort();
  return u'{' + texts.join(QStringLiteral(", ")) + u'}';
}

/// What a value made of values shows of them; nothing for others.
std::optional<QString> MembersText(const QVariant& value, int depth) {
  switch (value.metaType().id()) {
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
      return ListText(value, depth);
    case QMetaType::QVariantMap:
      return MapText(value.toMap(), depth);
    case QMetaType::QVariantHash:
      return MapText(value.toHash(), depth);
    case QMetaType::QSize:
      return SizeText(value.toSize());
    case QMetaType::QSizeF:
      return Joined({value.toSizeF().width(), value.toSizeF().height()});
    case QMetaType::QPoint:
    case QMetaType::QPointF:
      return Joined({value.toPointF().x(), value.toPointF().y()});
    case QMetaType::QRect:
    case QMetaType::QRectF: {
      const QRectF rect = value.toRectF();
      return Joined({rect.x(), rect.y(), rect.width(), rect.height()});
    }
    default:
      return std::nullopt;
  }
}

/// What a picture looks like; nothing for what is none. Each copy of Qt's own icons is another one.
QImage LookOf(const QVariant& value) {
  constexpr QSize kProbe(16, 16);
  switch (value.metaType().id()) {
    case QMetaType::QIcon:
      return value.value<QIcon>().pixmap(kProbe).toImage();
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
      return value.value<QPixmap>().toImage();
    default:
      return {};
  }
}

}  // namespace

QString ReadOnlyText(const QVariant& value) { return TextAtDepth(value, 0); }

namespace {

QString TextAtDepth(const QVariant& value, int depth) {
  if (!value.isValid() || IsNullPointer(value)) return {};
  const QMetaType type = value.metaType();
  if (const TTextForm* form = FindTextForm(type)) return form->ToText(value);
  switch (type.id()) {
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
      return SizeText(value.value<QPixmap>().size());
    case QMetaType::QImage:
      return SizeText(value.value<QImage>().size());
    case QMetaType::QIcon:
      return IconText(value);
    default:
      break;
  }
  const std::optional<QString> members = depth < kDeepestValue ? MembersText(value, depth) : std::nullopt;
  if (members) return *members;
  if (type.id() == QMetaType::Double || type.id() == QMetaType::Float) return ExactText(value.toDouble());
  const bool isPlain = type.id() < QMetaType::QString && type.id() != QMetaType::UnknownType;
  if (depth > 0 && isPlain) return value.toString();
  const QMetaType text = QMetaType::fromType<QString>();
  if (QMetaType::hasRegisteredConverterFunction(type, text)) return value.toString();
  return u'(' + QString::fromUtf8(type.name()) + u')';
}

}  // namespace

bool LooksSame(const QVariant& a, const QVariant& b) {
  if (a.metaType() != b.metaType()) return false;
  if (!a.isValid() || a.metaType().isEqualityComparable()) return a == b;
  return ReadOnlyText(a) == ReadOnlyText(b) && LookOf(a) == LookOf(b);
}

}  // namespace kt
