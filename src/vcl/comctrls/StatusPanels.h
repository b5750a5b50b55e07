#pragma once

#include "kt/rtl/collections/Collection.h"
#include "kt/vcl/controls/ControlTypes.h"

namespace kt {

class TCustomStatusBar;

/// Who draws a panel. Panels that would be drawn by a handler show nothing: there is no event for it.
enum TStatusPanelStyle { psText, psOwnerDraw };
/// How a panel stands out from the bar.
enum TStatusPanelBevel { pbNone, pbLowered, pbRaised };

/// A section of a status bar.
class TStatusPanel : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TAlignment GetAlignment() const { return FAlignment; }
  void SetAlignment(TAlignment value) { Store(FAlignment, value); }
  TStatusPanelBevel GetBevel() const { return FBevel; }
  void SetBevel(TStatusPanelBevel value) { Store(FBevel, value); }
  /// That of the bar while ParentBiDiMode.
  TBiDiMode GetBiDiMode() const;
  void SetBiDiMode(TBiDiMode value);
  bool IsBiDiModeStored() const { return !FParentBiDiMode; }
  bool IsParentBiDiMode() const { return FParentBiDiMode; }
  void SetParentBiDiMode(bool value) { Store(FParentBiDiMode, value); }
  TStatusPanelStyle GetStyle() const { return FStyle; }
  void SetStyle(TStatusPanelStyle value) { Store(FStyle, value); }
  const QString& GetText() const { return FText; }
  void SetText(const QString& value) { Store(FText, value); }
  /// In pixels, with its border. The last panel takes what is left.
  int GetWidth() const { return FWidth; }
  void SetWidth(int value) { Store(FWidth, value); }

  /// The text.
  QString GetDisplayName() override;
  void Assign(TPersistent* source) override;

 protected:
  explicit TStatusPanel(TCollection* collection) : TCollectionItem(collection) {}

 private:
  template <class V>
  void Store(V& field, const V& value) {
    if (field == value) return;
    field = value;
    Changed(false);
  }

  QString FText;
  int FWidth = 50;
  TAlignment FAlignment = taLeftJustify;
  TStatusPanelBevel FBevel = pbLowered;
  TBiDiMode FBiDiMode = bdLeftToRight;
  TStatusPanelStyle FStyle = psText;
  bool FParentBiDiMode = true;
};

/// The sections of a status bar.
class TStatusPanels : public TCollection {
 public:
  using Inherited = TCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TStatusPanel* Add() { return static_cast<TStatusPanel*>(TCollection::Add()); }
  TStatusPanel* GetItems(int index) const { return static_cast<TStatusPanel*>(GetItem(index)); }

 protected:
  friend class TStatusPanel;

  explicit TStatusPanels(TCustomStatusBar& bar);

  TPersistent* GetOwner() override;
  void Update(TCollectionItem* item) override;

 private:
  TCustomStatusBar& FBar;
};

template <>
struct TEnumNames<TStatusPanelStyle> {
  static constexpr char Name[] = "TStatusPanelStyle";
  static constexpr const char* Values[] = {"psText", "psOwnerDraw"};
};
template <>
struct TEnumNames<TStatusPanelBevel> {
  static constexpr char Name[] = "TStatusPanelBevel";
  static constexpr const char* Values[] = {"pbNone", "pbLowered", "pbRaised"};
};

}  // namespace kt
