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
  if (FCursor != crDefault) QGuiApplication::restoreOverrideCursor();
  FCursor = value;
  if (FCursor != crDefault) QGuiApplication::setOverrideCursor(QtCursorShape(value));
}

QStringList TScreen::GetFonts() const {
  QStringList names = QFontDatabase::families();
  names.sort(Qt::CaseInsensitive);
  return names;
}

int TScreen::GetWidth() const { return QGuiApplication::primaryScreen()->size().width(); }

int TScreen::GetHeight() const { return QGuiApplication::primaryScreen()->size().height(); }

}  // namespace kt
