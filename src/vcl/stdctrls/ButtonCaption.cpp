// The caption of TButtonControl, broken into lines where it is wanted.
#include "kt/vcl/controls/Accelerators.h"
#include "kt/vcl/stdctrls/ButtonControl.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFontMetrics>
#include <QRadioButton>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionButton>

namespace kt {

namespace {

QStyle::SubElement ContentsOf(const QAbstractButton& button) {
  if (qobject_cast<const QCheckBox*>(&button)) return QStyle::SE_CheckBoxContents;
  if (qobject_cast<const QRadioButton*>(&button)) return QStyle::SE_RadioButtonContents;
  return QStyle::SE_PushButtonContents;
}

/// How wide the caption of a button can be.
int RoomFor(const QAbstractButton& button, QSize size) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.rect = QRect(QPoint(), size);
  return button.style()->subElementRect(ContentsOf(button), &option, &button).width();
}

/// A word that is too wide by itself has a line of its own.
QString Wrapped(const QString& text, const QFontMetrics& metrics, int room) {
  QString result;
  QString line;
  for (const QString& word : text.split(u' ')) {
    const QString longer = line.isNull() ? word : line + u' ' + word;
    if (!line.isNull() && metrics.horizontalAdvance(StripHotkey(longer)) > room) {
      result += line + u'\n';
      line = word;
    } else {
      line = longer;
    }
  }
  return result + line;
}

}  // namespace

void TButtonControl::ShowCaption() {
  QAbstractButton* const button = Button();
  if (!button) return;
  const QString& text = GetText();
  const int room = FWordWrap ? RoomFor(*button, {GetWidth(), GetHeight()}) : 0;
  button->setText(FWordWrap ? Wrapped(text, button->fontMetrics(), room) : text);
}

void TButtonControl::SetWordWrap(bool value) {
  if (FWordWrap == value) return;
  FWordWrap = value;
  ShowCaption();
}

void TButtonControl::BoundsUpdated() {
  TWinControl::BoundsUpdated();
  if (FWordWrap) ShowCaption();
}

}  // namespace kt
