#include "kt/vcl/forms/ControlScrollBar.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/forms/ScrollingControl.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kt {

namespace {

/// Tells the control below when the pointer comes and goes.
class TBarOverControl : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Enter) GuardedCall([this] { TControlBody::PointerCameTo(*this); });
    if (event->type() == QEvent::Leave) GuardedCall([this] { TControlBody::PointerWentFrom(*this); });
    return QScrollBar::event(event);
  }
};

}  // namespace

const TClassInfo* TControlScrollBar::Class() {
  using T = TControlScrollBar;
  static const TClassInfo info = TClassBuilder<T>("TControlScrollBar")
                                     .Property<&T::GetButtonSize, &T::SetButtonSize>("ButtonSize")
                                     .Default(0)
                                     .Property<&T::GetColor, &T::SetColor>("Color")
                                     .Default(clBtnHighlight)
                                     .Property<&T::GetIncrement, &T::SetIncrement>("Increment")
                                     .Default(8)
                                     .Property<&T::GetMargin, &T::SetMargin>("Margin")
                                     .Default(0)
                                     .Property<&T::IsParentColor, &T::SetParentColor>("ParentColor")
                                     .Default(true)
                                     .Property<&T::GetPosition, &T::SetPosition>("Position")
                                     .Default(0)
                                     .Property<&T::GetRange, &T::SetRange>("Range")
                                     .Default(0)
                                     .Stored(&T::IsRangeStored)
                                     .Property<&T::IsSmooth, &T::SetSmooth>("Smooth")
                                     .Default(false)
                                     .Property<&T::GetSize, &T::SetSize>("Size")
                                     .Default(0)
                                     .Property<&T::GetStyle, &T::SetStyle>("Style")
                                     .Default(ssRegular)
                                     .Property<&T::GetThumbSize, &T::SetThumbSize>("ThumbSize")
                                     .Default(0)
                                     .Property<&T::IsTracking, &T::SetTracking>("Tracking")
                                     .Default(false)
                                     .Property<&T::IsVisible, &T::SetVisible>("Visible")
                                     .Default(true)
                                     .Done();
  return &info;
}

TControlScrollBar::~TControlScrollBar() {
  if (FBar) FBar->disconnect();
}

TPersistent* TControlScrollBar::GetOwner() { return &FControl; }

void TControlScrollBar::Assign(TPersistent* source) {
  const auto* const other = dynamic_cast<TControlScrollBar*>(source);
  if (!other) return TPersistent::Assign(source);
  FVisible = other->FVisible;
  FIncrement = other->FIncrement;
  FMargin = other->FMargin;
  FTracking = other->FTracking;
  FSmooth = other->FSmooth;
  FSize = other->FSize;
  FStyle = other->FStyle;
  FColor = other->FColor;
  FParentColor = other->FParentColor;
  FThumbSize = other->FThumbSize;
  FButtonSize = other->FButtonSize;
  const int position = other->FPosition;
  const TLifeWatch self(this);
  // With AutoScroll the range stays that of the control's own children.
  if (!FControl.IsAutoScroll()) StoreRange(other->FRange);
  if (self.IsAlive()) SetPosition(position);
}

int TControlScrollBar::GetLastPosition() const {
  const int room = IsHorizontal() ? FControl.GetClientWidth() : FControl.GetClientHeight();
  return std::max(FRange - room, 0);
}

void TControlScrollBar::SetPosition(int value) {
  // The children's places in a form are those that they have at its position.
  if (FControl.HasState(csReading)) {
    FPosition = std::max(value, 0);
    return;
  }
  value = std::clamp(value, 0, GetLastPosition());
  if (value == FPosition) return;
  const int way = std::exchange(FPosition, value) - value;
  FControl.ScrollContents(IsHorizontal() ? way : 0, IsHorizontal() ? 0 : way);
}

void TControlScrollBar::SetRange(int value) {
  const TLifeWatch self(this);
  FControl.SetAutoScroll(false);
  if (self.IsAlive()) StoreRange(value);
}

void TControlScrollBar::StoreRange(int value) {
  value = std::max(value, 0);
  if (FRange == value) return;
  FRange = value;
  FControl.ScrollBarsChanged();
}

bool TControlScrollBar::IsRangeStored() const { return !FControl.IsAutoScroll(); }

void TControlScrollBar::SetVisible(bool value) {
  if (FVisible == value) return;
  FVisible = value;
  FControl.ScrollBarsChanged();
}

void TControlScrollBar::SetIncrement(int value) {
  FIncrement = std::clamp(value, 1, 32767);
  if (FBar) FBar->setSingleStep(FIncrement);
}

void TControlScrollBar::SetMargin(int value) {
  if (FMargin == value) return;
  FMargin = value;
  FControl.ScrollBarsChanged();
}

void TControlScrollBar::SetTracking(bool value) {
  FTracking = value;
  if (FBar) FBar->setTracking(value);
}

void TControlScrollBar::SetColor(TColor value) {
  if (FColor == value) return;
  FColor = value;
  FParentColor = false;
}

void TControlScrollBar::SetParentColor(bool value) {
  FParentColor = value;
  if (value) FColor = clBtnHighlight;
}

void TControlScrollBar::ShowBar(QWidget& window, bool isShown) {
  FIsShown = isShown;
  if (isShown && !FBar) {
    FBar = new TBarOverControl(FOrientation, &window);
    FBar->setCursor(Qt::ArrowCursor);
    FBar->setTracking(FTracking);
    FBar->setSingleStep(FIncrement);
    QObject::connect(FBar, &QScrollBar::valueChanged, FBar, [this](int value) {
      // What a handler frees is still on the stack.
      const TControlBody::TInEvent running;
      GuardedCall([this, value] { SetPosition(value); });
    });
  }
  if (FBar) FBar->setVisible(isShown);
}

void TControlScrollBar::PlaceBar(const QRect& place) {
  if (!FBar) return;
  const QSignalBlocker blocker(FBar);
  FBar->setRange(0, GetLastPosition());
  FBar->setPageStep(IsHorizontal() ? FControl.GetClientWidth() : FControl.GetClientHeight());
  // A thumb that is held stays under the hand.
  if (!FBar->isSliderDown()) FBar->setValue(FPosition);
  FBar->setGeometry(place);
  FBar->setLayoutDirection(FControl.UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
}

}  // namespace kt
