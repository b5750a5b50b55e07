#include "kt/vcl/forms/Screen.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/graphics/QtCursor.h"

#include <QApplication>
#include <QFontDatabase>
#include <QScreen>

#include <utility>

namespace kt {

const TClassInfo* TScreen::Class() {
  static const TClassInfo info = TClassBuilder<TScreen>("TScreen").Done();
  return &info;
}

TScreen& Screen() {
  // Never freed: forms may leave it as long as the program lives.
  static TScreen* const screen = Make<TScreen>().release();
  return *screen;
}

TWinControl* TScreen::GetActiveControl() const { return TFocus::Current(); }

TCustomForm* TScreen::GetForms(int index) const {
  if (index < 0 || index >= GetFormCount()) throw EListError(Format(SListIndexError, {index}));
  return FForms[index];
}

void TScreen::RemoveForm(TCustomForm* form) {
  std::erase(FForms, form);
  if (FActiveForm == form) FActiveForm = nullptr;
}

void TScreen::SetCursor(TCursor value) {
  if (FCursor == value) return;
  FCursor = value;
  UpdateCursor();
}

void TScreen::ShowDragCursor(TCursor value) {
  if (FDragCursor == value) return;
  FDragCursor = value;
  UpdateCursor();
}

void TScreen::HideDragCursor() {
  if (!FDragCursor) return;
  FDragCursor.reset();
  UpdateCursor();
}

void TScreen::UpdateCursor() {
  const bool wasSet = std::exchange(FIsCursorSet, FDragCursor || FCursor != crDefault);
  if (wasSet) QGuiApplication::restoreOverrideCursor();
  if (FIsCursorSet) QGuiApplication::setOverrideCursor(QtCursorShape(FDragCursor.value_or(FCursor)));
}

QStringList TScreen::GetFonts() const {
  QStringList names = QFontDatabase::families();
  names.sort(Qt::CaseInsensitive);
  return names;
}

int TScreen::GetWidth() const { return QGuiApplication::primaryScreen()->size().width(); }

int TScreen::GetHeight() const { return QGuiApplication::primaryScreen()->size().height(); }

}  // namespace kt
