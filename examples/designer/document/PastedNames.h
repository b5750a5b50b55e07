#pragma once

#include "designer/document/ClipboardText.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormErrors.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

namespace designer {

/// What the objects of a text are called when they come to a form where some of their names are taken.
class TPastedNames {
 public:
  /// Raises kt::EParserError when the text is no sequence of objects.
  TPastedNames(const QByteArray& text, kt::TComponent* root, const TNewName& newName);

  /// The name of the object that is the `index`-th of the text, counted from 0; empty when it keeps its own.
  QString NewNameOf(qsizetype index) const { return FNewNames[index]; }
  /// A reference, perhaps a dotted one, to an object of the text that has a new name; others stay.
  QString InReference(const QString& name) const;
  /// A value of an unknown property in the binary format, with the new names in the places of the old ones.
  QByteArray InValue(const QByteArray& value) const;

 private:
  QStringList FNewNames;
  /// By the former name in lower case; of several the first.
  QHash<QString, QString> FByOldName;
};

/// Writes objects with their new names.
class TRenamingWriter : public kt::TBinaryFormWriter {
 public:
  TRenamingWriter(kt::TBinaryWriter& writer, const TPastedNames& names) : TBinaryFormWriter(writer), FNames(names) {}

  void BeginObject(const kt::TFormObject& object) override;

 private:
  const TPastedNames& FNames;
  qsizetype FIndex = 0;
};

/// How errors of what TRenamingWriter wrote tell their place in the text. `names` must outlive the wording.
kt::TPlaceWording PlacesInObjects(const QByteArray& text, const TPastedNames& names);

}  // namespace designer
