#pragma once

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/conversions/Currency.h"
#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <QString>

#include <atomic>

/// Classes with every kind of published property, for tests of reflection and streams.
namespace kt::tests {

enum TSampleAlign { saNone, saTop, saBottom };
enum TSampleStyle { ssBold, ssItalic, ssUnderline };
using TSampleStyles = TSet<TSampleStyle>;

const TTypeInfo* SampleColorTypeInfo();

/// A persistent object that another one owns, as a font is.
class TSamplePart : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetSize() const { return FSize; }
  void SetSize(int value) { FSize = value; }
  const QString& GetTitle() const { return FTitle; }
  void SetTitle(const QString& value) { FTitle = value; }
  TSampleStyles GetStyle() const { return FStyle; }
  void SetStyle(TSampleStyles value) { FStyle = value; }
  void Assign(TPersistent* source) override;

 protected:
  TSamplePart() = default;

 private:
  int FSize = 8;
  QString FTitle;
  TSampleStyles FStyle;
};

class TSampleItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetCaption() const { return FCaption; }
  void SetCaption(const QString& value) {
    FCaption = value;
    Changed(false);
  }
  ~TSampleItem() override { --Alive; }
  /// How many items there are.
  static inline std::atomic<int> Alive = 0;

  TCollection& GetChildren() { return *FChildren; }
  void SetChildren(TCollection* value) { FChildren->Assign(value); }
  void Assign(TPersistent* source) override;

 protected:
  explicit TSampleItem(TCollection* collection) : TCollectionItem(collection) { ++Alive; }
  void Construct() override;

 private:
  QString FCaption;
  std::unique_ptr<TCollection> FChildren;
};

class TSampleItems : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  TSampleItem* ItemAt(int index) const { return static_cast<TSampleItem*>(GetItem(index)); }
  TSampleItem* AddItem(const QString& caption);

 protected:
  explicit TSampleItems(TPersistent* owner) : TOwnedCollection(owner, TSampleItem::Class()) {}
};

/// One published property of every kind.
class TSample : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int Whole = 0;
  quint8 Small = 0;
  int Color = 0;
  char Letter = 'A';
  QChar WideLetter = u'A';
  bool Flag = false;
  WordBool Wide = false;
  TSampleAlign Align = saNone;
  TSampleStyles Styles;
  double Ratio = 0;
  float Narrow = 0;
  Currency Price;
  double Moment = 0;
  QString Text;
  QString ShortText;
  QString WideText;
  Variant Anything;
  qint64 Big = 0;
  quint64 Huge = 0;
  TComponent* Partner = nullptr;
  TSample* Sibling = nullptr;
  IInterfaceComponentReference* Reference = nullptr;
  TNotifyEvent OnAction;
  bool IsTextStored = true;

  ~TSample() override { --Alive; }
  /// How many samples there are.
  static inline std::atomic<int> Alive = 0;

  TSamplePart& GetPart() { return *FPart; }
  void SetPart(TSamplePart* value) { FPart->Assign(value); }
  TSampleItems& GetItems() { return *FItems; }
  void SetItems(TSampleItems* value) { FItems->Assign(value); }
  int GetDouble() const { return Whole * 2; }
  bool TextIsStored() const { return IsTextStored; }
  /// Published: form files can name it.
  void HandleAction(TObject* sender) { LastSender = sender; }

  TObject* LastSender = nullptr;

 protected:
  explicit TSample(TComponent* owner = nullptr) : TComponent(owner) { ++Alive; }
  void Construct() override;
  void Notification(TComponent* component, TOperation operation) override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  TComponent* GetChildOwner() override { return nullptr; }

 private:
  std::unique_ptr<TSamplePart> FPart;
  std::unique_ptr<TSampleItems> FItems;
};

}  // namespace kt::tests

namespace kt {
template <>
struct TEnumNames<tests::TSampleAlign> {
  static constexpr char Name[] = "TSampleAlign";
  static constexpr const char* Values[] = {"saNone", "saTop", "saBottom"};
};
template <>
struct TEnumNames<tests::TSampleStyle> {
  static constexpr char Name[] = "TSampleStyle";
  static constexpr const char* Values[] = {"ssBold", "ssItalic", "ssUnderline"};
  static constexpr char SetName[] = "TSampleStyles";
};
}  // namespace kt
