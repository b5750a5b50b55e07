#pragma once

#include "kt/rtl/collections/Duplicates.h"
#include "kt/rtl/strings/StringLines.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/Event.h"

#include <functional>

namespace kt {

class TStringList;

/// Compares two lines of a list by their indices: negative, 0 or positive.
using TStringListSortCompare = std::function<int(TStringList* list, int first, int second)>;

/// A list of lines in memory, optionally sorted, that tells when it changes.
///
/// Every change calls Changing() before and Changed() after it; both raise their event unless the list is in an update
/// bracket, whose ends call them once instead. An exception of OnChanging prevents the change; one of OnChange comes
/// after it. A handler that changes the list from within OnChanging gets the interrupted operation checked again. One
/// of OnChange may free the list, except while Sorted or CaseSensitive is being set.
///
/// Sorting is stable: lines that compare equal keep their order. It takes n log n comparisons at most, for any input.
/// While Sorted, Add() finds the place, equal lines going by Duplicates; the operations that name a place raise
/// EStringListError "Operation not allowed on sorted list".
class TStringList : public TStrings {
 public:
  using Inherited = TStrings;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int Add(const QString& text) override { return AddObject(text, nullptr); }
  /// In a sorted list that has an equal line: dupIgnore returns that line's index and changes nothing, dupError raises
  /// EStringListError "String list does not allow duplicates", dupAccept inserts before it.
  int AddObject(const QString& text, TObject* object) override;
  void Insert(int index, const QString& text) override { InsertObject(index, text, nullptr); }
  void InsertObject(int index, const QString& text, TObject* object) override;
  void Delete(int index) override;
  /// Says nothing when the list is empty.
  void Clear() override;
  /// Allowed in a sorted list too, which is out of order then.
  void Exchange(int first, int second) override;
  void Move(int from, int to) override;
  /// By binary search in a sorted list: the first of equal lines, or -1.
  int IndexOf(QStringView text) override;
  /// Searches a sorted list. `index` becomes that of the first equal line or, with the answer false, of the place for
  /// one.
  virtual bool Find(QStringView text, int& index) const;
  /// By CompareStrings(). Nothing happens in a sorted list.
  virtual void Sort();
  /// The list keeps its order while `compare` runs, and for good when it throws. Nothing happens in a sorted list.
  virtual void CustomSort(const TStringListSortCompare& compare);

  int GetCount() const override { return FLines.Count(); }
  int GetCapacity() const override { return FLines.Capacity(); }
  /// Raises EStringListError "List capacity out of bounds (%d)" below the count.
  void SetCapacity(int value) override;
  bool GetSorted() const { return FSorted; }
  /// Sorts when set. The list counts as sorted only after OnChange of that sorting, and not when that raises.
  void SetSorted(bool value);
  /// Only for lines that a sorted list gets from now on.
  TDuplicates GetDuplicates() const { return FDuplicates; }
  void SetDuplicates(TDuplicates value) { FDuplicates = value; }
  bool GetCaseSensitive() const { return FCaseSensitive; }
  /// Sorts a sorted list anew. The list is not Sorted any longer if an event of that sorting raises.
  void SetCaseSensitive(bool value);
  /// Bytes held besides this object and the texts of the lines.
  size_t HeapSize() const { return FLines.HeapSize(); }

 private:
  // First: they fit behind the base's last member.
  bool FSorted = false;
  bool FCaseSensitive = false;
  TDuplicates FDuplicates = dupIgnore;
  TStringLines FLines;

 public:
  TNotifyEvent OnChange;
  TNotifyEvent OnChanging;

 protected:
  TStringList() = default;

  QString Get(int index) override;
  void Put(int index, const QString& text) override;
  TObject* GetObject(int index) const override;
  void PutObject(int index, TObject* object) override;
  void SetUpdateState(bool updating) override;
  /// With regard to case when CaseSensitive.
  int CompareStrings(QStringView a, QStringView b) const override;
  virtual void Changing();
  virtual void Changed();
  /// Every new line comes through here; the index is in range.
  virtual void InsertItem(int index, const QString& text, TObject* object);

 private:
  void CheckIndex(int index) const;
  void CheckNotSorted() const;
};

}  // namespace kt
