#pragma once

#include "kt/KTObjectInspector.h"

#include <functional>
#include <vector>

namespace designer {

/// The object inspector as the designer uses it: each edit is one step, and a member of a set is written by itself. The
/// row that has the keyboard always shows its editor, as nothing else tells which one that is.
class TDesignInspector : public kt::TKTObjectInspector {
 public:
  /// A property is about to be written.
  std::function<void()> OnWriting;
  /// A property was written; its name.
  std::function<void(const QString& name)> OnWritten;
  /// Something else has changed by way of a row; what, as a step is called.
  std::function<void(const QString& step)> OnEdited;
  /// A property could not be written, or only to some of the objects.
  std::function<void()> OnFailed;

  /// Only properties whose name has this in it have a row; all with an empty one. Regardless of case.
  void SetNameFilter(const QString& value);
  const QString& NameFilter() const { return FNameFilter; }
  /// All of these are inspected, from now on.
  void Inspect(const std::vector<kt::TObject*>& objects);

 protected:
  explicit TDesignInspector(kt::TComponent* owner = nullptr) : TKTObjectInspector(owner) {}

  void Construct() override;
  void SetProperty(kt::TKTItemProperty* item) override;
  bool SetPropertyValue(kt::TObject* instance, kt::TKTItemProperty* item, const QString& value) override;
  void AfterScan(kt::TKTItemProperty* item) override;
  void DoEnter() override;
  void KeyDown(quint16& key, kt::TShiftState shift) override;

 private:
  void AddSetMembersPreset();
  bool WriteMember(kt::TObject* instance, kt::TKTItemProperty& member, const QString& value);
  void ApplyFilter();
  bool ApplyFilter(kt::TKTItemProperties& items);

  QString FNameFilter;
};

/// The object that an item's property belongs to, on the way from an inspected object; null when it leads nowhere.
kt::TObject* HolderOf(kt::TObject* inspected, kt::TKTItemProperty& item);

}  // namespace designer
