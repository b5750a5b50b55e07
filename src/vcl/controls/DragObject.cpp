#include "kt/vcl/controls/DragObject.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Control.h"

namespace kt {

const TClassInfo* TDragObject::Class() {
  static const TClassInfo info = TClassBuilder<TDragObject>("TDragObject").Done();
  return &info;
}

const TClassInfo* TDragObjectEx::Class() {
  static const TClassInfo info = TClassBuilder<TDragObjectEx>("TDragObjectEx").Done();
  return &info;
}

const TClassInfo* TBaseDragControlObject::Class() {
  static const TClassInfo info = TClassBuilder<TBaseDragControlObject>("TBaseDragControlObject").Done();
  return &info;
}

const TClassInfo* TDragControlObject::Class() {
  static const TClassInfo info = TClassBuilder<TDragControlObject>("TDragControlObject").Done();
  return &info;
}

const TClassInfo* TDragControlObjectEx::Class() {
  static const TClassInfo info = TClassBuilder<TDragControlObjectEx>("TDragControlObjectEx").Done();
  return &info;
}

void TDragObject::Assign(TDragObject* source) {
  if (!source) return;
  FDragTarget = source->FDragTarget;
  FDragPos = source->FDragPos;
  FDragTargetPos = source->FDragTargetPos;
}

TControl* TDragObject::GetDragTarget() const { return static_cast<TControl*>(FDragTarget.Get()); }

TCursor TDragObject::GetDragCursor(bool accepted, int, int) { return accepted ? crDrag : crNoDrop; }

void TDragObject::Finished(TObject*, int, int, bool) {}

TBaseDragControlObject::TBaseDragControlObject(TControl& control) : FControl(&control) {}

void TBaseDragControlObject::Assign(TDragObject* source) {
  TDragObject::Assign(source);
  if (const auto* other = dynamic_cast<TBaseDragControlObject*>(source)) FControl = other->FControl;
}

TControl* TBaseDragControlObject::GetControl() const { return static_cast<TControl*>(FControl.Get()); }

void TBaseDragControlObject::EndDrag(TObject* target, int x, int y) {
  if (TControl* control = GetControl()) control->DoEndDrag(target, x, y);
}

void TBaseDragControlObject::Finished(TObject* target, int x, int y, bool accepted) {
  if (accepted) return EndDrag(target, x, y);
  const TLifeWatch self(this);
  if (TControl* control = GetControl()) control->DragCanceled();
  if (self.IsAlive()) EndDrag(nullptr, x, y);
}

TCursor TDragControlObject::GetDragCursor(bool accepted, int x, int y) {
  const TControl* control = GetControl();
  return accepted && control ? control->GetDragCursor() : TBaseDragControlObject::GetDragCursor(accepted, x, y);
}

}  // namespace kt
