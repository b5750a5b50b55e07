// Handlers that free their control, a sibling or the form, at every moment that the user brings about.
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/comctrls/TrackBar.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/CheckBox.h"
#include "kt/vcl/stdctrls/ComboBox.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "kt/vcl/stdctrls/Memo.h"
#include "kt/vcl/stdctrls/RadioButton.h"
#include "kt/vcl/stdctrls/ScrollBar.h"
#include "support/WindowProbe.h"

#include <QTabBar>

#include <array>
#include <functional>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

using TFreeing = std::function<void()>;

/// A control on a form, with a handler, and what makes the user call it.
struct TMoment {
  const char* Name;
  std::function<TWinControl*(TForm&)> Make;
  std::function<void(TWinControl&, const TFreeing&)> Listen;
  std::function<void(TWinControl&)> Act;
};

template <class C>
TWinControl* Place(TForm& form) {
  auto* const control = New<C>(&form);
  control->SetParent(&form);
  return control;
}
TWinControl* PlaceList(TForm& form) {
  auto* const list = static_cast<TListBox*>(Place<TListBox>(form));
  list->GetItems().SetCommaText(QStringLiteral("a,b,c"));
  return list;
}
TWinControl* PlaceCombo(TForm& form) {
  auto* const box = static_cast<TComboBox*>(Place<TComboBox>(form));
  box->GetItems().SetCommaText(QStringLiteral("a,b,c"));
  return box;
}
TWinControl* PlacePages(TForm& form) {
  auto* const pages = static_cast<TPageControl*>(Place<TPageControl>(form));
  for (int i = 0; i < 2; ++i) {
    auto* const page = New<TTabSheet>(&form);
    page->SetCaption(QStringLiteral("page"));
    page->SetPageControl(pages);
  }
  return pages;
}

/// An event of class C that tells its sender, and perhaps more.
template <auto Event, class C>
void ListenTo(TWinControl& control, const TFreeing& free) {
  static_cast<C&>(control).*Event = [free](auto&&...) { free(); };
}

template <Qt::Key key>
void PressKey(TWinControl& control) {
  control.SetFocus();
  if (QWidget* const window = QApplication::focusWidget()) QTest::keyClick(window, key);
}
void ClickOn(TWinControl& control) { QTest::mouseClick(control.GetHandle(), Qt::LeftButton); }
void Focus(TWinControl& control) { control.SetFocus(); }
void Leave(TWinControl& control) {
  auto* const other = static_cast<TWinControl*>(control.GetParent()->GetControls(0));
  control.SetFocus();
  other->SetFocus();
}
void DropDown(TWinControl& control) { static_cast<TComboBox&>(control).SetDroppedDown(true); }
void DropDownAndUp(TWinControl& control) {
  auto& box = static_cast<TComboBox&>(control);
  box.SetDroppedDown(true);
  box.SetDroppedDown(false);
}
void ChooseTab(TWinControl& control) {
  QTabBar* const bar = control.GetHandle()->findChild<QTabBar*>();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
}

const TMoment kMoments[] = {
    {"ButtonClicked", &Place<TButton>, &ListenTo<&TControl::OnClick, TControl>, &ClickOn},
    {"ButtonPressedByKey", &Place<TButton>, &ListenTo<&TControl::OnClick, TControl>, &PressKey<Qt::Key_Space>},
    {"ButtonMouseDown", &Place<TButton>, &ListenTo<&TControl::OnMouseDown, TControl>, &ClickOn},
    {"ButtonMouseUp", &Place<TButton>, &ListenTo<&TControl::OnMouseUp, TControl>, &ClickOn},
    {"CheckBoxClicked", &Place<TCheckBox>, &ListenTo<&TControl::OnClick, TControl>, &PressKey<Qt::Key_Space>},
    {"RadioButtonClicked", &Place<TRadioButton>, &ListenTo<&TControl::OnClick, TControl>, &ClickOn},
    {"EditTyped", &Place<TEdit>, &ListenTo<&TCustomEdit::OnChange, TCustomEdit>, &PressKey<Qt::Key_A>},
    {"EditKeyDown", &Place<TEdit>, &ListenTo<&TWinControl::OnKeyDown, TWinControl>, &PressKey<Qt::Key_A>},
    {"EditKeyPress", &Place<TEdit>, &ListenTo<&TWinControl::OnKeyPress, TWinControl>, &PressKey<Qt::Key_A>},
    {"EditKeyUp", &Place<TEdit>, &ListenTo<&TWinControl::OnKeyUp, TWinControl>, &PressKey<Qt::Key_A>},
    {"EditEntered", &Place<TEdit>, &ListenTo<&TWinControl::OnEnter, TWinControl>, &Focus},
    {"EditLeft", &Place<TEdit>, &ListenTo<&TWinControl::OnExit, TWinControl>, &Leave},
    {"MemoTyped", &Place<TMemo>, &ListenTo<&TCustomEdit::OnChange, TCustomEdit>, &PressKey<Qt::Key_A>},
    {"ListBoxClicked", &PlaceList, &ListenTo<&TControl::OnClick, TControl>, &PressKey<Qt::Key_Down>},
    {"ComboBoxPicked", &PlaceCombo, &ListenTo<&TCustomComboBox::OnSelect, TCustomComboBox>, &PressKey<Qt::Key_Down>},
    {"ComboBoxTyped", &PlaceCombo, &ListenTo<&TCustomComboBox::OnChange, TCustomComboBox>, &PressKey<Qt::Key_X>},
    {"ComboBoxDropsDown", &PlaceCombo, &ListenTo<&TCustomComboBox::OnDropDown, TCustomComboBox>, &DropDown},
    {"ComboBoxClosesUp", &PlaceCombo, &ListenTo<&TCustomComboBox::OnCloseUp, TCustomComboBox>, &DropDownAndUp},
    {"ScrollBarScrolls", &Place<TScrollBar>, &ListenTo<&TScrollBar::OnScroll, TScrollBar>, &PressKey<Qt::Key_Right>},
    {"ScrollBarChanges", &Place<TScrollBar>, &ListenTo<&TScrollBar::OnChange, TScrollBar>, &PressKey<Qt::Key_Right>},
    {"TrackBarChanges", &Place<TTrackBar>, &ListenTo<&TTrackBar::OnChange, TTrackBar>, &PressKey<Qt::Key_Right>},
    {"PageControlChanging", &PlacePages, &ListenTo<&TPageControl::OnChanging, TPageControl>, &ChooseTab},
    {"PageControlChanged", &PlacePages, &ListenTo<&TPageControl::OnChange, TPageControl>, &ChooseTab},
};

enum TFreed { fSelf, fSibling, fForm };

class HandlerLifeTest : public testing::TestWithParam<std::tuple<TMoment, TFreed>> {
 protected:
  HandlerLifeTest() { FSibling = Place<TEdit>(*FForm); }
  ~HandlerLifeTest() override { QTestPrivate::qtestMouseButtons = Qt::NoButton; }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  TWinControl* FSibling;
};

TEST_P(HandlerLifeTest, FreesWhateverItLikes) {
  const auto& [moment, freed] = GetParam();
  TWinControl* const control = moment.Make(*FForm);
  control->SetBounds(10, 60, control->GetWidth(), control->GetHeight());
  FForm->Show();
  QApplication::setActiveWindow(FForm->GetHandle());
  TWindowProbe::Settle();
  FSibling->SetFocus();
  TObject* const victims[] = {control, FSibling, FForm.get()};
  const TObjectRef victim(victims[freed]);
  int calls = 0;
  moment.Listen(*control, [this, &calls, &victim, isForm = freed == fForm] {
    ++calls;
    if (!victim) return;
    isForm ? FForm.reset() : delete victim.Get();
  });
  moment.Act(*control);
  TWindowProbe::Settle();
  EXPECT_GE(calls, 1);
  EXPECT_FALSE(victim);
}

std::string NameOfMoment(const testing::TestParamInfo<std::tuple<TMoment, TFreed>>& about) {
  const std::array whom = {"FreesItself", "FreesASibling", "FreesTheForm"};
  return std::string(std::get<0>(about.param).Name) + whom[std::get<1>(about.param)];
}

INSTANTIATE_TEST_SUITE_P(Moments, HandlerLifeTest,
                         testing::Combine(testing::ValuesIn(kMoments), testing::Values(fSelf, fSibling, fForm)),
                         &NameOfMoment);

}  // namespace
}  // namespace kt
