#include "KTItemListEditor/monkey/MonkeyChecks.h"
#include "KTItemListEditor/monkey/MonkeyHandlers.h"
#include "KTItemListEditor/monkey/MonkeyHands.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

namespace kt::tests {
namespace {

/// Two editors beside each other, one of either orientation, and a button. A monkey has keyboard and mouse, changes
/// what it finds, and takes the window away; the handlers are those of an application that misbehaves.
class TMonkey {
 public:
  explicit TMonkey(unsigned seed) : FDice(seed) {
    Application().OnException = [this](TObject*, const Exception&) { ++FErrors; };
    for (const auto& editor : FEditors) {
      Fill(editor->GetItems(), 12, 0);
      FHandlers.ListenTo(*editor);
    }
    FEditors[1]->SetOrientation(goHorizontal);
    MakeWindow();
  }
  ~TMonkey() {
    FHands.ReleaseButtons();
    Application().OnException = nullptr;
    for (const auto& editor : FEditors) FHandlers.StopListeningTo(*editor);
  }

  void Step() {
    FEditor = FEditors[static_cast<size_t>(FDice.Below(2))].get();
    const int what = FDice.Below(100);
    try {
      if (what < 40) {
        FHands.Key(*FEditor);
      } else if (what < 65) {
        FHands.Mouse(*FEditor);
      } else if (what < 70) {
        FHands.Wheel(*FEditor);
      } else if (what < 75) {
        Around();
      } else {
        Change();
      }
      Top().GetCount() > 40 ? Top().Clear() : Refill();
    } catch (const Exception&) {
      ++FErrors;
    }
    TWindowProbe::Settle();
  }

  /// Empty while all is in order. A step that raised an error may leave a grid behind its items, but only till it is
  /// asked to follow them.
  std::string Complaint() {
    const QScopedValueRollback quiet(FHandlers.IsQuiet, true);
    if (std::exchange(FKnownErrors, FErrors) != FErrors) {
      for (const auto& editor : FEditors) editor->Refresh();
    }
    for (const auto& editor : FEditors) {
      const std::string found = TMonkeyChecks::ComplaintOf(*editor);
      if (!found.empty()) return (editor == FEditors[0] ? "vertical: " : "horizontal: ") + found;
    }
    return {};
  }
  int Errors() const { return FErrors; }
  int Handled() const { return FHandlers.Handled(); }

 private:
  TKTItemProps& Top() { return FEditor->GetItems(); }
  TKTItemProp* AnyItem() { return FEditor->GetItem(FDice.Below(FEditor->GetItemCount() + 1)); }

  /// Around the editors, which live on without a window when it goes.
  void MakeWindow() {
    FHands.ReleaseButtons();
    FWindow = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(FWindow.get());
    for (const auto& editor : FEditors) layout->addWidget(editor->GetHandle(), 1);
    layout->addWidget(new QPushButton(QStringLiteral("Elsewhere")));
    FWindow->resize(700, 260);
    FWindow->show();
    QApplication::setActiveWindow(FWindow.get());
    TWindowProbe::Settle();
  }
  void LoseWindow() {
    FWindow.reset();
    TWindowProbe::Settle();
    MakeWindow();
  }

  void Fill(TKTItemProps& items, int count, int level) {
    for (int i = 0; i < count; ++i) {
      TKTItemProp* item = items.Add(FDice.AnyName(), FDice.AnyName());
      if (level < 2 && FDice.Rarely(3)) Fill(item->GetItems(), 3, level + 1);
      Style(*item);
    }
  }
  void Refill() {
    if (FEditor->GetItemCount() > 0 || FDice.Below(2) == 0) return;
    const QScopedValueRollback quiet(FHandlers.IsQuiet, true);
    Fill(Top(), 8, 0);
  }
  void StyleQuietly(TKTItemProp& item) {
    const QScopedValueRollback quiet(FHandlers.IsQuiet, true);
    Style(item);
  }
  void Style(TKTItemProp& item) {
    switch (FDice.Below(6)) {
      case 0:
        for (int i = 0; i < 12; ++i) item.GetPickList().Add(FDice.AnyName());
        return item.SetEditStyle(esPickList);
      case 1:
        return item.SetEditStyle(esEllipsis);
      case 2:
        return item.SetEditMask(QStringLiteral("(00) a;0;_"));
      case 3:
        item.SetExpressionMask(true);
        return item.SetEditMask(QStringLiteral("[a-c]*"));
      default:
        return item.SetEditStyle(esSimple);
    }
  }

  void Around() {
    switch (FDice.Below(8)) {
      case 0:
        return LoseWindow();
      case 1:
      case 2:
        return FWindow->resize(200 + FDice.Below(600), 40 + FDice.Below(300));
      case 3:
      case 4:
        return FWindow->findChild<QPushButton*>()->setFocus();
      case 5:
        return FEditor->SetFocus();
      default:
        return FEditor->SetVisible(!FEditor->IsVisible() || FDice.Rarely(3));
    }
  }

  void Change() {
    TKTItemProp* const item = AnyItem();
    switch (item ? FDice.Below(24) : FDice.Below(8)) {
      case 0:
        return static_cast<void>(Top().Add(FDice.AnyName(), FDice.AnyName()));
      case 1:
        return FEditor->SetOrientation(FEditor->GetOrientation() == goVertical ? goHorizontal : goVertical);
      case 2:
        return FEditor->SetDisplayOptions(TILEDisplayOptions::FromBits(static_cast<quint32>(FDice.Below(32))));
      case 3:
        return FEditor->SetPropertyOptions(TILEPropOptions::FromBits(static_cast<quint32>(FDice.Below(16))));
      case 4:
        return Options();
      case 5:
        return static_cast<void>(FEditor->InsertItem(FDice.AnyName(), FDice.AnyName(), FDice.Below(2) != 0));
      case 6:
        return FEditor->SetBiDiMode(FDice.Below(2) ? bdRightToLeft : bdLeftToRight);
      case 7:
        return FEditor->GetFont().SetHeight(-8 - FDice.Below(16));
      case 8:
        delete item;
        return;
      case 9:
        return item->SetValue(FDice.AnyName());
      case 10:
        return item->SetName(FDice.AnyName());
      case 11:
        return item->SetVisible(!item->GetVisible());
      case 12:
        return item->SetReadOnly(!item->GetReadOnly());
      case 13:
        return item->SetEnabled(!item->GetEnabled());
      case 14:
        return StyleQuietly(*item);
      case 15:
        return static_cast<void>(item->GetItems().Add(FDice.AnyName(), FDice.AnyName()));
      case 16:
        return FEditor->SetSelected(item);
      case 17:
        return item->SetIndex(FDice.Below(item->GetCollection()->GetCount()));
      case 18:
        return Top().SetSorted(FDice.Below(2) != 0);
      case 19:
        return FEditor->FullExpand();
      case 20:
        return FEditor->DeleteItem(FEditor->GetCol(), FEditor->GetRow());
      case 21:
        return item->GetFont().SetHeight(-8 - FDice.Below(16));
      case 22:
        return item->GetValueFont().SetStyle(FDice.Below(2) ? TFontStyles{fsBold} : TFontStyles{});
      default:
        return item->SetExpanded(!item->IsExpanded());
    }
  }
  void Options() {
    static constexpr std::array kOptions = {goTabs,      goRowSelect, goRangeSelect, goEditing,   goAlwaysShowEditor,
                                            goRowMoving, goColMoving, goColSizing,   goRowSizing, goThumbTracking};
    const TGridOption option = FDice.OneOf(kOptions);
    TGridOptions options = FEditor->GetOptions();
    options.Put(option, !options.Has(option) || (option == goEditing && !FDice.Rarely(3)));
    FEditor->SetOptions(options);
  }

  TMonkeyDice FDice;
  TMonkeyHandlers FHandlers{FDice};
  TMonkeyHands FHands{FDice};
  std::unique_ptr<QWidget> FWindow;
  std::array<std::unique_ptr<TKTItemListEditor>, 2> FEditors = {Make<TKTItemListEditor>(), Make<TKTItemListEditor>()};
  TKTItemListEditor* FEditor = FEditors[0].get();
  int FErrors = 0;
  int FKnownErrors = 0;
};

class ItemListEditorMonkeyTest : public testing::TestWithParam<unsigned> {};

/// KT_MONKEY_STEPS asks for a longer run.
TEST_P(ItemListEditorMonkeyTest, NothingItDoesBreaksTheEditors) {
  TMonkey monkey(GetParam());
  bool isAsked = false;
  const int steps = qEnvironmentVariableIntValue("KT_MONKEY_STEPS", &isAsked);
  for (int step = 0; step < (isAsked ? steps : 2000); ++step) {
    SCOPED_TRACE(testing::Message() << "step " << step);
    monkey.Step();
    ASSERT_EQ("", monkey.Complaint());
  }
  EXPECT_GT(monkey.Errors(), 0);
  EXPECT_GT(monkey.Handled(), 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ItemListEditorMonkeyTest, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace kt::tests
