#include "kt/rtl/streams/FormPath.h"

#include "kt/rtl/streams/FormErrors.h"

namespace kt {
namespace {

/// Of a path with more levels than anybody builds so many are shown at either end.
constexpr std::size_t kShownLevels = 16;

/// Assignment that keeps the capacity: the path changes with each property, allocating each time would cost more than
/// parsing.
void Store(QString& target, QStringView text) {
  target.resize(0);
  target.append(text);
}

}  // namespace

TFormPath::TLevel& TFormPath::Push() {
  if (FDepth == FLevels.size()) FLevels.emplace_back();
  TLevel& level = FLevels[FDepth++];
  level.Property.resize(0);
  return level;
}

void TFormPath::EnterObject(QStringView name, QStringView className) {
  if (FDepth > 0) FLevels[FDepth - 1].Property.resize(0);
  TLevel& level = Push();
  level.Item = -1;
  Store(level.Name, name.isEmpty() ? className : name);
}

void TFormPath::EnterItem(int index) { Push().Item = index; }

void TFormPath::Leave() {
  if (FDepth > 0) --FDepth;
}

void TFormPath::SetProperty(QStringView name) {
  if (FDepth > 0) Store(FLevels[FDepth - 1].Property, name);
}

QString TFormPath::ToString() const {
  QString path;
  const auto append = [&path](const QString& part) {
    if (part.isEmpty()) return;
    if (!path.isEmpty()) path += u'.';
    path += ShownName(part);
  };
  for (std::size_t i = 0; i < FDepth; ++i) {
    if (FDepth > 2 * kShownLevels && i == kShownLevels) {
      path += QStringLiteral("...");
      i = FDepth - kShownLevels;
    }
    const TLevel& level = FLevels[i];
    if (level.Item < 0)
      append(level.Name);
    else
      path += u'[' + QString::number(level.Item) + u']';
    append(level.Property);
  }
  return path;
}

}  // namespace kt
