#pragma once

#include "KTItemListEditor/monkey/MonkeyDice.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "support/ItemLists.h"

namespace kt::tests {

/// The handlers of an application that misbehaves: they throw, free items, and clear the tree that they were called
/// from.
class TMonkeyHandlers {
 public:
  explicit TMonkeyHandlers(TMonkeyDice& dice) : FDice(dice) {}

  void ListenTo(TKTItemListEditor& editor) {
    const auto validate = [this](TObject* sender, TKTItemProp* item, int) { Misbehave(sender, item); };
    editor.OnValidate = validate;
    editor.OnValidated = validate;
    editor.OnGetEditText = [this](TObject* sender, int, int, QString&) { Misbehave(sender, nullptr); };
    editor.OnSetEditText = [this](TObject* sender, int, int, const QString&) { Misbehave(sender, nullptr); };
    editor.OnGetPickList = [this](TObject* sender, const QString&, TStrings& values) {
      values.Add(FDice.AnyName());
      Misbehave(sender, nullptr);
    };
    editor.OnEditButtonClick = [this, &editor](TObject*) { Misbehave(&editor, nullptr); };
    editor.OnSelectCell = [this](TObject* sender, int, int, bool& isAllowed) {
      if (FDice.Rarely(20)) isAllowed = false;
      Misbehave(sender, nullptr);
    };
    editor.OnShowHints = [this](TObject* sender, TKTItemProp* item, QString&) { Misbehave(sender, item); };
    editor.OnDrawCell = [this](TObject*, int, int, const QRect&, TGridDrawState) {
      if (FDice.Rarely(500)) throw Exception(QStringLiteral("drawing"));
    };
    editor.OnKeyDown = [this](TObject* sender, quint16&, TShiftState) { Misbehave(sender, nullptr); };
  }
  void StopListeningTo(TKTItemListEditor& editor) {
    editor.OnValidate = {};
    editor.OnValidated = {};
    editor.OnGetEditText = {};
    editor.OnSetEditText = {};
    editor.OnGetPickList = {};
    editor.OnEditButtonClick = {};
    editor.OnSelectCell = {};
    editor.OnShowHints = {};
    editor.OnDrawCell = {};
    editor.OnKeyDown = {};
  }
  int Handled() const { return FHandled; }

  /// While items are made that are needed whole.
  bool IsQuiet = false;

 private:
  void Misbehave(TObject* sender, TKTItemProp* item) {
    if (IsQuiet) return;
    ++FHandled;
    auto& editor = dynamic_cast<TKTItemListEditor&>(*sender);
    switch (FDice.Below(150)) {
      case 0:
      case 1:
        throw Exception(QStringLiteral("refused"));
      case 2:
        delete (item ? item : editor.GetItem(FDice.Below(editor.GetItemCount() + 1)));
        return;
      case 3:
        return editor.GetItems().Clear();
      case 4:
        return editor.SetEditorMode(FDice.Below(2) != 0);
      case 5:
        return editor.FullCollapse();
      default:
        return;
    }
  }

  TMonkeyDice& FDice;
  int FHandled = 0;
};

}  // namespace kt::tests
