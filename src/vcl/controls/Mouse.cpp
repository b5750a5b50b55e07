#include "kt/vcl/controls/Mouse.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/DragSession.h"

#include <QCursor>

#include <utility>

namespace kt {

const TClassInfo* TMouse::Class() {
  static const TClassInfo info = TClassBuilder<TMouse>("TMouse").Done();
  return &info;
}

TMouse& Mouse() {
  // Never freed, as what it belongs to.
  static TMouse* const mouse = Make<TMouse>().release();
  return *mouse;
}

QPoint TMouse::GetCursorPos() const {
  return TMousePlace::Innermost ? TMousePlace::Innermost->FScreenPos : QCursor::pos();
}

bool TMouse::IsDragging() const {
  const auto drag = TDragSession::Current();
  return drag && drag->HasStarted();
}

const TMousePlace* TMousePlace::Innermost = nullptr;

TMousePlace::TMousePlace(QPoint screenPos) : FScreenPos(screenPos), FOuter(std::exchange(Innermost, this)) {}

TMousePlace::~TMousePlace() { Innermost = FOuter; }

}  // namespace kt
