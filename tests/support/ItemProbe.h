#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/CallOuts.h"

#include <QStringList>

/// The item model with all its overridable operations watched: each writes its name into one log and is a call-out, so
/// that tests can make it throw.
namespace kt::tests {

/// The log, and whether anything is heard at all.
struct TProbe {
  static inline QStringList Log;
  static inline bool IsOn = false;

  static void Hear(const QString& what) {
    if (!IsOn) return;
    Log += what;
    CallOut(qUtf8Printable(what.section(u'(', 0, 0).section(u'.', -1)));
  }
  /// What was heard, separated by blanks; starts anew.
  static std::string Text() { return std::exchange(Log, {}).join(u' ').toStdString(); }
};

inline QString NameOf(const TKTItemProp* item) {
  if (!item) return QStringLiteral("nil");
  return item->GetName().isEmpty() ? QStringLiteral("?") : item->GetName();
}

inline QString NameOf(TCollectionNotification action) {
  return action == cnAdded        ? QStringLiteral("cnAdded")
         : action == cnExtracting ? QStringLiteral("cnExtracting")
                                  : QStringLiteral("cnDeleting");
}

class TProbeItem : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TProbeItem>("TProbeItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  using TKTItemProp::DoValidateError;

 protected:
  explicit TProbeItem(TCollection* collection) : TKTItemProp(collection) {}

  void Hear(const QString& what) { TProbe::Hear(NameOf(this) + u'.' + what); }

  void Changing() override {
    Hear(QStringLiteral("Changing"));
    TKTItemProp::Changing();
  }
  void VisibleChanged() override {
    TKTItemProp::VisibleChanged();
    Hear(QStringLiteral("VisibleChanged"));
  }
  void MoveProp(const QString& newName) override {
    Hear(QStringLiteral("MoveProp(%1)").arg(newName));
    TKTItemProp::MoveProp(newName);
  }
  void PickListChange(TObject* sender) override {
    Hear(QStringLiteral("PickListChange"));
    TKTItemProp::PickListChange(sender);
  }
  void ItemNotify(TKTItemProp* item, TCollectionNotification action) override {
    TKTItemProp::ItemNotify(item, action);
    Hear(QStringLiteral("ItemNotify(%1,%2)").arg(NameOf(item), NameOf(action)));
  }
  void UpdateItemProp(TKTItemProp* item) override {
    TKTItemProp::UpdateItemProp(item);
    Hear(QStringLiteral("UpdateItemProp(%1)").arg(NameOf(item)));
  }
  void DoValidate() override {
    Hear(QStringLiteral("DoValidate"));
    TKTItemProp::DoValidate();
  }
  void DoValidated() override {
    Hear(QStringLiteral("DoValidated"));
    TKTItemProp::DoValidated();
  }

 public:
  void ParentFontChanged(TKTItemProp* source) override {
    Hear(QStringLiteral("ParentFontChanged(%1)").arg(NameOf(source)));
    TKTItemProp::ParentFontChanged(source);
  }
  void ParentValueFontChanged() override {
    Hear(QStringLiteral("ParentValueFontChanged"));
    TKTItemProp::ParentValueFontChanged();
  }
  void SetCategory(bool value) override {
    Hear(QStringLiteral("SetCategory"));
    TKTItemProp::SetCategory(value);
  }
  void SetReadOnly(bool value) override {
    Hear(QStringLiteral("SetReadOnly"));
    TKTItemProp::SetReadOnly(value);
  }
  void SetName(const QString& value) override {
    Hear(QStringLiteral("SetName(%1)").arg(value));
    TKTItemProp::SetName(value);
  }
};

class TProbeItems : public TKTItemProps {
 public:
  using Inherited = TKTItemProps;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TProbeItems>("TProbeItems").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  int CompareStrings(const QString& s1, const QString& s2) override {
    if (IsComparing) Hear(QStringLiteral("CompareStrings"));
    return TKTItemProps::CompareStrings(s1, s2);
  }
  /// Whether comparisons are heard.
  static inline bool IsComparing = false;

 protected:
  explicit TProbeItems(TPersistent* owner) : TKTItemProps(owner, TProbeItem::Class()) {}

  void Hear(const QString& what) {
    TProbe::Hear(u'[' + (GetParent() ? NameOf(GetParent()) : QString()) + QStringLiteral("].") + what);
  }

  void Changing() override {
    Hear(QStringLiteral("Changing"));
    TKTItemProps::Changing();
  }
  void DefaultCategoryChanged(TKTItemProp* item) override {
    Hear(QStringLiteral("DefaultCategoryChanged(%1)").arg(NameOf(item)));
    TKTItemProps::DefaultCategoryChanged(item);
  }
  void VisibleChanged(TKTItemProp* item) override {
    TKTItemProps::VisibleChanged(item);
    Hear(QStringLiteral("VisibleChanged(%1)").arg(NameOf(item)));
  }
  void Notify(TCollectionItem* item, TCollectionNotification action) override {
    if (action == cnExtracting) Hear(QStringLiteral("Leaving"));
    TKTItemProps::Notify(item, action);
    Hear(QStringLiteral("Notify(%1,%2)").arg(NameOf(static_cast<TKTItemProp*>(item)), NameOf(action)));
  }
  void Update(TCollectionItem* item) override {
    TKTItemProps::Update(item);
    Hear(QStringLiteral("Update(%1)").arg(NameOf(static_cast<TKTItemProp*>(item))));
  }
};

class TProbeEditor : public TKTItemListEditor {
 public:
  using Inherited = TKTItemListEditor;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TProbeEditor>("TProbeEditor").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  using TKTItemListEditor::DeleteRow;

  void Refresh() override {
    Hear(QStringLiteral("Refresh"));
    TKTItemListEditor::Refresh();
  }
  void Invalidate() override {
    Hear(QStringLiteral("Invalidate"));
    TKTItemListEditor::Invalidate();
  }

 protected:
  explicit TProbeEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}

  static void Hear(const QString& what) { TProbe::Hear(QStringLiteral("editor.") + what); }

  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override { return Make<TProbeItems>(owner); }
  void AdjustGridCount() override {
    Hear(QStringLiteral("AdjustGridCount"));
    TKTItemListEditor::AdjustGridCount();
  }
  bool SelectCell(int col, int row) override {
    Hear(QStringLiteral("SelectCell(%1,%2)").arg(col).arg(row));
    return TKTItemListEditor::SelectCell(col, row);
  }
  void SizeChanged(int oldColCount, int oldRowCount) override {
    TKTItemListEditor::SizeChanged(oldColCount, oldRowCount);
    Hear(QStringLiteral("SizeChanged"));
  }
};

/// Hears what `action` makes the model call; the log starts anew.
template <class F>
std::string Heard(F action) {
  TProbe::Log.clear();
  TProbe::IsOn = true;
  action();
  TProbe::IsOn = false;
  return TProbe::Text();
}

}  // namespace kt::tests
