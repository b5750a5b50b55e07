// How TWinControl places its children.
#include "kt/vcl/controls/WinControl.h"

#include <algorithm>

namespace kt {

namespace {

/// Where a control stands in the row of those that keep to the same side: the outermost first.
int DistanceFromSide(const TControl* control, TAlign align) {
  switch (align) {
    case alTop:
      return control->GetTop();
    case alBottom:
      return -(control->GetTop() + control->GetHeight());
    case alLeft:
      return control->GetLeft();
    case alRight:
      return -(control->GetLeft() + control->GetWidth());
    default:
      return 0;
  }
}

/// Puts a control on its side of `rect` and takes its room away from it.
void PlaceAt(TControl* control, QRect& rect) {
  const int width = control->GetWidth();
  const int height = control->GetHeight();
  switch (control->GetAlign()) {
    case alTop:
      control->SetBounds(rect.x(), rect.y(), rect.width(), height);
      return rect.setTop(rect.y() + control->GetHeight());
    case alBottom:
      control->SetBounds(rect.x(), rect.y() + rect.height() - height, rect.width(), height);
      return rect.setHeight(rect.height() - control->GetHeight());
    case alLeft:
      control->SetBounds(rect.x(), rect.y(), width, rect.height());
      return rect.setLeft(rect.x() + control->GetWidth());
    case alRight:
      control->SetBounds(rect.x() + rect.width() - width, rect.y(), width, rect.height());
      return rect.setWidth(rect.width() - control->GetWidth());
    default:
      control->SetBounds(rect.x(), rect.y(), rect.width(), rect.height());
  }
}

}  // namespace

void TWinControl::EnableAlign() {
  if (--FAlignLevel == 0 && FAlignNeeded) Realign();
}

void TWinControl::AlignControl(TControl*) {
  if (FIsAligning || HasState(csDestroying)) return;
  if (FAlignLevel > 0 || HasState(csLoading)) {
    FAlignNeeded = true;
    return;
  }
  FAlignNeeded = false;
  FIsAligning = true;
  QRect rect = GetClientRect();
  try {
    AlignControls(rect);
  } catch (...) {
    FIsAligning = false;
    throw;
  }
  FIsAligning = false;
}

void TWinControl::AlignControls(QRect& rect) {
  AlignAnchored(rect);
  AdjustClientRect(rect);
  for (TAlign align : {alTop, alBottom, alLeft, alRight, alClient}) AlignSide(align, rect);
}

void TWinControl::AlignAnchored(const QRect& rect) {
  for (int i = 0; i < GetControlCount(); ++i) FControls[i]->ApplyAnchors(rect.size());
}

void TWinControl::RebaseAnchors() {
  for (TControl* control : FControls) control->RememberAnchorBase();
}

void TWinControl::AlignSide(TAlign align, QRect& rect) {
  std::vector<TControl*> controls;
  std::copy_if(FControls.begin(), FControls.end(), std::back_inserter(controls), [&](const TControl* control) {
    return control->GetAlign() == align && (control->IsVisible() || control->HasState(csDesigning));
  });
  std::stable_sort(controls.begin(), controls.end(), [align](const TControl* a, const TControl* b) {
    return DistanceFromSide(a, align) < DistanceFromSide(b, align);
  });
  for (TControl* control : controls) PlaceAt(control, rect);
}

void TWinControl::SetBounds(int left, int top, int width, int height) {
  const QSize before = GetClientRect().size();
  TControl::SetBounds(left, top, width, height);
  if (GetClientRect().size() != before) AlignControl(nullptr);
}

}  // namespace kt
