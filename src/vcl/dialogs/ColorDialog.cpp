#include "kt/vcl/dialogs/ColorDialog.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/QtColor.h"

#include <QColorDialog>

namespace kt {

namespace {

constexpr int kCustomColors = 16;
constexpr quint32 kNone = 0xFFFFFFFF;
constexpr int kHex = 16;

QString NameOf(int index) { return QStringLiteral("Color") + QChar(u'A' + index); }

quint32 ValueOf(TStrings& colors, int index) {
  bool isNumber = false;
  const quint32 value = colors.GetValues(NameOf(index)).toUInt(&isNumber, kHex);
  return isNumber ? value : kNone;
}

}  // namespace

const TClassInfo* TColorDialog::Class() {
  using T = TColorDialog;
  static const TClassInfo info = TClassBuilder<T>("TColorDialog")
                                     .Property<&T::GetColor, &T::SetColor>("Color")
                                     .Default(clBlack)
                                     .Property<&T::GetCustomColors, &T::SetCustomColors>("CustomColors")
                                     .Property<&T::GetOptions, &T::SetOptions>("Options")
                                     .Default(TColorDialogOptions{})
                                     .Creatable()
                                     .Done();
  return &info;
}

void TColorDialog::Construct() {
  FCustomColors = Make<TStringList>();
  TCommonDialog::Construct();
}

void TColorDialog::OfferCustomColors() {
  for (int i = 0; i < qMin(kCustomColors, QColorDialog::customCount()); ++i) {
    const quint32 value = ValueOf(*FCustomColors, i);
    QColorDialog::setCustomColor(i, value == kNone ? QColor(Qt::white) : QtColor(static_cast<TColor>(value)));
  }
}

void TColorDialog::TakeCustomColors() {
  const auto colors = Make<TStringList>();
  for (int i = 0; i < qMin(kCustomColors, QColorDialog::customCount()); ++i) {
    const QColor color = QColorDialog::customColor(i);
    const bool isNone = ValueOf(*FCustomColors, i) == kNone && color == QColor(Qt::white);
    const auto value = isNone ? kNone : static_cast<quint32>(ColorOf(color));
    colors->Add(NameOf(i) + u'=' + QStringLiteral("%1").arg(value, 6, kHex, QChar(u'0')).toUpper());
  }
  FCustomColors->Assign(colors.get());
}

bool TColorDialog::Execute() {
  if (IsOpen()) return false;
  OfferCustomColors();
  auto box = std::make_unique<QColorDialog>(QtColor(FColor), ParentWindow());
  const QColorDialog& shown = *box;
  const QColor before = shown.currentColor();
  return Run(std::move(box), [&] {
    // A colour of the desktop that was left alone stays one.
    if (shown.currentColor() != before) FColor = ColorOf(shown.currentColor());
    TakeCustomColors();
  });
}

}  // namespace kt
