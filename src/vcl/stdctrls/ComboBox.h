#pragma once

#include "kt/rtl/strings/Strings.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "kt/vcl/stdctrls/OwnerDraw.h"

#include <memory>

class QLineEdit;

namespace kt {

/// csDropDown and csSimple take any text, the others a line of the list alone. Qt has no list that is always open:
/// csSimple looks as csDropDown does. The lines of the last two are drawn by the program.
enum TComboBoxStyle { csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable };
template <>
struct TEnumNames<TComboBoxStyle> {
  static constexpr char Name[] = "TComboBoxStyle";
  static constexpr const char* Values[] = {"csDropDown", "csSimple", "csDropDownList", "csOwnerDrawFixed",
                                           "csOwnerDrawVariable"};
};

/// A text that can be picked from a list that drops down, and typed where Style allows. Its window is Qt's combo box.
///
/// When the user picks a line, come OnCloseUp (if the list was open), OnClick and then OnSelect, or OnChange where
/// nobody hears OnSelect; when the text is typed, OnChange. What the program sets is told to nobody. The wheel picks
/// only while the keyboard is here.
class TCustomComboBox : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCustomComboBox() override;

  TComboBoxStyle GetStyle() const { return FStyle; }
  void SetStyle(TComboBoxStyle value);
  /// Whether the text need not be in the list.
  bool IsEditable() const { return FStyle == csDropDown || FStyle == csSimple; }
  bool IsOwnerDraw() const { return FStyle == csOwnerDrawFixed || FStyle == csOwnerDrawVariable; }
  /// What OnDrawItem draws on.
  TCanvas& GetCanvas();
  /// Changes between BeginUpdate() and EndUpdate() are shown once. ItemIndex stays with its line.
  TStrings& GetItems() const;
  void SetItems(TStrings& value);
  int GetItemCount() const { return GetItems().GetCount(); }
  /// The line that was picked last, or -1: also while the text is typed, unless AutoComplete has found it. What is no
  /// line is none. In a form it holds for the lines of the form, wherever those stand.
  int GetItemIndex() const { return FItemIndex; }
  void SetItemIndex(int value);
  const QString& GetText() const override { return TWinControl::GetText(); }
  /// Without an edit, picks the line that is equal but for its letters' case; what is no line picks none.
  void SetText(const QString& value) override;
  bool IsSorted() const { return FSorted; }
  void SetSorted(bool value);
  /// How many lines the open list shows without scrolling.
  int GetDropDownCount() const { return FDropDownCount; }
  void SetDropDownCount(int value);
  /// The height of a line that the program draws; others are as high as the font.
  int GetItemHeight() const { return FItemHeight; }
  void SetItemHeight(int value);
  /// The most characters that are typed; 0 for any number.
  int GetMaxLength() const { return FMaxLength; }
  void SetMaxLength(int value);
  TEditCharCase GetCharCase() const { return FCharCase; }
  void SetCharCase(TEditCharCase value);
  /// Whether the rest of a line is filled in as one types its beginning.
  bool IsAutoComplete() const { return FAutoComplete; }
  void SetAutoComplete(bool value);
  /// Whether typing opens the list: where any text can be typed, one beside it that leaves the keyboard in the text
  /// and takes AutoComplete.
  bool IsAutoDropDown() const { return FAutoDropDown; }
  void SetAutoDropDown(bool value);
  /// Kept for forms that say it: the list closes whenever a line is picked.
  bool IsAutoCloseUp() const { return FAutoCloseUp; }
  void SetAutoCloseUp(bool value) { FAutoCloseUp = value; }
  /// Whether the list is open. It opens only where the control shows, and has lines.
  bool IsDroppedDown() const;
  void SetDroppedDown(bool value);

  // The selection in the text, in characters from 0. There is none without an edit.
  int GetSelStart() const;
  void SetSelStart(int value) { Select(value, 0); }
  int GetSelLength() const;
  void SetSelLength(int value) { Select(GetSelStart(), value); }
  QString GetSelText() const;
  void SetSelText(const QString& value);
  void SelectAll();

  void AddItem(const QString& text, TObject* object) { GetItems().AddObject(text, object); }
  /// Takes the lines and the text away.
  void Clear();

  void DefaultHandler(TMessage& message) override;

  TNotifyEvent OnChange;
  TNotifyEvent OnCloseUp;
  /// For the styles that are drawn by the program. Nobody's lines are drawn plain.
  TDrawItemEvent OnDrawItem;
  /// Of csOwnerDrawVariable.
  TMeasureItemEvent OnMeasureItem;
  /// Before the list opens; the handler may still fill it.
  TNotifyEvent OnDropDown;
  TNotifyEvent OnSelect;

 protected:
  explicit TCustomComboBox(TComponent* owner = nullptr);

  void Construct() override;
  void Loaded() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  bool WindowEvent(QEvent& event) override;
  bool WantsKey(quint16 key) override;
  bool InputText(const QString& text) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  void CMFontChanged(TMessage& message) override;
  void CMColorChanged(TMessage& message) override;
  void CMBiDiModeChanged(TMessage& message) override;

  virtual void Change() { OnChange(this); }
  virtual void DropDown() { OnDropDown(this); }
  virtual void CloseUp() { OnCloseUp(this); }
  virtual void DoSelect();
  virtual void DrawItem(int index, const QRect& rect, TOwnerDrawState state);
  virtual void MeasureItem(int index, int& height) { OnMeasureItem(this, index, height); }

 private:
  class TLines;
  class TModel;
  class TView;

  TView* View() const;
  bool PaintLine(QPainter& painter, const QRect& rect, int index, TOwnerDrawState state);
  int HeightOfLine(int index);
  QLineEdit* Line() const;
  void Select(int start, int length);
  void LinesChanged();
  void LineInserted(int index);
  void LineDeleted(int index);
  /// The line that a text picks, or -1.
  int LineOf(const QString& text) const;
  void TakeTextOfLine();
  void ShowLines();
  void ShowPicked();
  void ShowStyle();
  void UpdateCompleter();
  void UpdateLimit();
  void UpdateLook();
  void UpdateDirection();
  void DropDownByUser();
  void PickedByUser(int index);
  void TextTyped();
  void RunTyping();
  void TypeCharacter(QChar character);

  std::unique_ptr<TLines> FLines;
  std::unique_ptr<TCanvas> FCanvas;
  int FItemIndex = -1;
  /// What the form that is being loaded says, or -1.
  int FLoadedIndex = -1;
  int FItemHeight = 16;
  int FDropDownCount = 8;
  int FMaxLength = 0;
  int FSelStart = 0;
  int FSelLength = 0;
  TComboBoxStyle FStyle = csDropDown;
  TEditCharCase FCharCase = ecNormal;
  bool FSorted = false;
  bool FAutoComplete = true;
  bool FAutoDropDown = false;
  bool FAutoCloseUp = false;
  bool FIsShowing = false;
  bool FIsTyping = false;
  bool FIsUpdatingLook = false;
};

/// The combo box that forms use.
class TComboBox : public TCustomComboBox {
 public:
  using Inherited = TCustomComboBox;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TComboBox(TComponent* owner = nullptr) : TCustomComboBox(owner) {}
};

}  // namespace kt
