#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kt {

class TPropInfo;

/// What objects offer whose published properties are those of another system: they know more of them than reflection
/// has words for. An inspector asks them first, and shows what a getter of theirs raises in place of the value.
///
/// Every answer may do what getters do: anything, and raise.
class IPropView {
 public:
  /// What is shown of the value; nothing for the text that reflection makes of it.
  virtual std::optional<QString> PropText(const TPropInfo& property) = 0;
  /// Whether a text can be typed for the value.
  virtual bool TakesPropText(const TPropInfo& property) = 0;
  /// Writes the value that a text stands for. False for what reflection is to write. The object may be gone afterwards.
  virtual bool SetPropText(const TPropInfo& property, const QString& text) = 0;
  /// Whether there are values to choose from that the type does not name.
  virtual bool HasPropChoices(const TPropInfo& property) = 0;
  /// Their texts, in the order in which they are offered.
  virtual QStringList PropChoices(const TPropInfo& property) = 0;
  /// Whether the value is another than that of a new object; false where that is not known.
  virtual bool IsPropChanged(const TPropInfo& property) = 0;
  /// Whether there is a way back to the value before any change.
  virtual bool CanResetProp(const TPropInfo& property) = 0;
  /// Takes it; false when nothing came of it. The object may be gone afterwards.
  virtual bool ResetProp(const TPropInfo& property) = 0;

 protected:
  virtual ~IPropView() = default;
};

}  // namespace kt
