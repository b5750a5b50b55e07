#pragma once

#include "kt/rtl/strings/Strings.h"

namespace kt {

class TKTCustomItemListEditor;

/// The items of an editor as lines "full path name=value", with the item objects beside them. The lines are those of
/// all items or, with ShowVisibleOnly, of the rows. Nothing is kept: what is read and written are the items.
class TKTItemStrings : public TStrings {
 public:
  using Inherited = TStrings;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  bool GetShowVisibleOnly() const { return FShowVisibleOnly; }
  void SetShowVisibleOnly(bool value) { FShowVisibleOnly = value; }

  int GetCount() const override;
  /// Adds the item of the path before the first "=" (or the whole text, without one) with the value behind it. The item
  /// lands where the path puts it. Raises EStringListError "List index out of bounds (%d)" for an index outside
  /// 0..GetCount().
  void Insert(int index, const QString& text) override;
  /// The object goes to the item that the path leads to.
  int AddObject(const QString& text, TObject* object) override;
  void InsertObject(int index, const QString& text, TObject* object) override;
  /// Frees the item and all below it.
  void Delete(int index) override;
  void Clear() override;
  /// The line of the item of that full path name, or -1.
  int IndexOfName(QStringView name) override;

 protected:
  explicit TKTItemStrings(TKTCustomItemListEditor& editor) : FEditor(editor) {}

  QString Get(int index) override;
  TObject* GetObject(int index) const override;
  void PutObject(int index, TObject* object) override;

 private:
  class TKTItemProp& ItemAt(int index) const;
  TKTItemProp* AddLine(int index, const QString& text);

  TKTCustomItemListEditor& FEditor;
  bool FShowVisibleOnly = false;
};

}  // namespace kt
