// Copying and pasting the object of the selected property.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/ControlMessages.h"

namespace kt::tests {
namespace {

/// A component that writes down the messages it gets.
class TClipboardSample : public TSample {
 public:
  QList<quint32> Messages;
  void Dispatch(TMessage& message) override { Messages += message.Msg; }

 protected:
  TClipboardSample() = default;
};

/// So does an item of a collection.
class TClipboardItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TClipboardItem>("TClipboardItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  QList<quint32> Messages;
  void Dispatch(TMessage& message) override { Messages += message.Msg; }

 protected:
  explicit TClipboardItem(TCollection* collection) : TCollectionItem(collection) {}
};

class TClipboardHolder : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TClipboardHolder>("TClipboardHolder")
                                       .Property<&TClipboardHolder::GetItems, &TClipboardHolder::SetItems>("Items")
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TCollection& GetItems() { return *FItems; }
  void SetItems(TCollection* value) { FItems->Assign(value); }

 protected:
  explicit TClipboardHolder(TComponent* owner = nullptr) : TComponent(owner) {}

 private:
  std::unique_ptr<TOwnedCollection> FItems = Make<TOwnedCollection>(nullptr, TClipboardItem::Class());
};

using InspectorClipboardTest = TInspectorWindowTest;

TEST_F(InspectorClipboardTest, CopyingGoesToTheCurrentObjectAndPastingToAll) {
  const auto first = Make<TClipboardSample>();
  const auto second = Make<TClipboardSample>();
  FSample->Partner = first.get();
  FOther->Partner = second.get();
  Show({FSample.get(), FOther.get()});
  Select("Partner");
  FInspector->CopyToClipboard();
  EXPECT_EQ(QList<quint32>{WM_COPY}, first->Messages);
  EXPECT_EQ(QList<quint32>(), second->Messages);
  FInspector->PasteFromClipboard();
  EXPECT_EQ((QList<quint32>{WM_COPY, WM_PASTE}), first->Messages);
  EXPECT_EQ(QList<quint32>{WM_PASTE}, second->Messages);
  Select("Whole");
  FInspector->CopyToClipboard();
  FInspector->PasteFromClipboard();
  EXPECT_EQ(2, first->Messages.size());
}

TEST_F(InspectorClipboardTest, WithSeveralColumnsTheObjectOfTheCurrentOneIsCopied) {
  const auto first = Make<TClipboardSample>();
  const auto second = Make<TClipboardSample>();
  FSample->Partner = first.get();
  FOther->Partner = second.get();
  UseSeveralColumns();
  Show({FSample.get(), FOther.get()});
  Select("Partner");
  FInspector->SetCol(2);
  FInspector->CopyToClipboard();
  EXPECT_EQ(QList<quint32>(), first->Messages);
  EXPECT_EQ(QList<quint32>{WM_COPY}, second->Messages);
}

TEST_F(InspectorClipboardTest, AnElementOfACollectionIsAnObjectToo) {
  const auto holder = Make<TClipboardHolder>();
  holder->GetItems().Add();
  auto* second = static_cast<TClipboardItem*>(holder->GetItems().Add());
  FInspector->SetInplaceCollections(true);
  Show({holder.get()});
  Select("Items.Items[1]");
  FInspector->CopyToClipboard();
  FInspector->PasteFromClipboard();
  EXPECT_EQ((QList<quint32>{WM_COPY, WM_PASTE}), second->Messages);
  EXPECT_TRUE(static_cast<TClipboardItem*>(holder->GetItems().GetItem(0))->Messages.isEmpty());
}

TEST_F(InspectorClipboardTest, WithNothingSelectedNothingHappens) {
  Show({});
  ASSERT_EQ(nullptr, FInspector->GetSelected());
  int scans = 0;
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty*) { ++scans; };
  FInspector->CopyToClipboard();
  FInspector->PasteFromClipboard();
  Deliver();
  EXPECT_EQ(0, scans);
}

TEST_F(InspectorClipboardTest, AfterPastingTheTreeIsBuiltAnew) {
  Show({FSample.get()});
  Select("Part");
  int scans = 0;
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty* item) { scans += item ? 0 : 1; };
  FInspector->CopyToClipboard();
  Deliver();
  EXPECT_EQ(0, scans);
  FInspector->PasteFromClipboard();
  EXPECT_EQ(0, scans);
  Deliver();
  EXPECT_EQ(1, scans);
}

}  // namespace
}  // namespace kt::tests
