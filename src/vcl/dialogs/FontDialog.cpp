#include "kt/vcl/dialogs/FontDialog.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QPushButton>

namespace kt {

/// Qt's dialog, and the font that it began with.
class TFontDialog::TBox : public QFontDialog {
 public:
  TBox(const QFont& font, QWidget* parent) : QFontDialog(parent) {
    // What there is no face for is shown by another one, which nobody has chosen.
    setCurrentFont(font);
    Before = currentFont();
  }

  QFont Before;
};

const TClassInfo* TFontDialog::Class() {
  using T = TFontDialog;
  static const TClassInfo info = TClassBuilder<T>("TFontDialog")
                                     .Property<&T::GetFont, &T::SetFont>("Font")
                                     .Property<&T::GetDevice, &T::SetDevice>("Device")
                                     .Default(fdScreen)
                                     .Property<&T::GetMinFontSize, &T::SetMinFontSize>("MinFontSize")
                                     .Default(0)
                                     .Property<&T::GetMaxFontSize, &T::SetMaxFontSize>("MaxFontSize")
                                     .Default(0)
                                     .Property<&T::GetOptions, &T::SetOptions>("Options")
                                     .Default(TFontDialogOptions{fdEffects})
                                     .Property<&T::OnApply>("OnApply")
                                     .Creatable()
                                     .Done();
  return &info;
}

void TFontDialog::Construct() {
  FFont = Make<TFont>();
  TCommonDialog::Construct();
}

void TFontDialog::SetMinFontSize(int value) {
  FMinFontSize = value;
  if (!HasState(csLoading) && value != 0) FOptions.Include(fdLimitSize);
}

void TFontDialog::SetMaxFontSize(int value) {
  FMaxFontSize = value;
  if (!HasState(csLoading) && value != 0) FOptions.Include(fdLimitSize);
}

QFont TFontDialog::Wanted() const {
  QFont font = QtFont(*FFont);
  // The dialog speaks of points.
  font.setPointSize(qMax(qAbs(FFont->GetSize()), 1));
  return font;
}

int TFontDialog::Limited(int size) const {
  if (!FOptions.Has(fdLimitSize)) return size;
  if (FMaxFontSize > 0) size = qMin(size, FMaxFontSize);
  return qMax(size, FMinFontSize);
}

void TFontDialog::Take(const QFont& before, const QFont& now) {
  TFontStyles style = FFont->GetStyle();
  if (!FOptions.Has(fdNoFaceSel) && now.family() != before.family()) FFont->SetName(now.family());
  if (!FOptions.Has(fdNoSizeSel)) {
    const int size = Limited(now.pointSize());
    if (now.pointSize() != before.pointSize() || size != now.pointSize()) FFont->SetSize(size);
  }
  if (!FOptions.Has(fdNoStyleSel)) {
    if (now.bold() != before.bold()) style.Put(fsBold, now.bold());
    if (now.italic() != before.italic()) style.Put(fsItalic, now.italic());
  }
  if (FOptions.Has(fdEffects)) {
    if (now.underline() != before.underline()) style.Put(fsUnderline, now.underline());
    if (now.strikeOut() != before.strikeOut()) style.Put(fsStrikeOut, now.strikeOut());
  }
  FFont->SetStyle(style);
}

void TFontDialog::Apply(TBox& box) {
  Take(box.Before, box.currentFont());
  box.Before = box.currentFont();
  const TFDApplyEvent handler = OnApply;
  handler(this, &box);
}

void TFontDialog::Listen(TBox& box) {
  auto* buttons = box.findChild<QDialogButtonBox*>();
  if (!buttons || !(OnApply || FOptions.Has(fdApplyButton))) return;
  QPushButton* apply = buttons->addButton(QDialogButtonBox::Apply);
  QObject::connect(apply, &QPushButton::clicked, &box, [ref = TObjectRef(this), &box] {
    auto* dialog = static_cast<TFontDialog*>(ref.Get());
    if (dialog) dialog->FromBox([&] { dialog->Apply(box); });
  });
}

bool TFontDialog::Execute() {
  if (IsOpen()) return false;
  auto box = std::make_unique<TBox>(Wanted(), ParentWindow());
  const TBox& shown = *box;
  const bool isListening = OnApply || FOptions.Has(fdApplyButton);
  box->setOption(QFontDialog::DontUseNativeDialog, isListening);
  box->setOption(QFontDialog::MonospacedFonts, FOptions.Has(fdFixedPitchOnly));
  box->setOption(QFontDialog::ScalableFonts, FOptions.Has(fdTrueTypeOnly) || FOptions.Has(fdScalableOnly));
  Listen(*box);
  return Run(std::move(box), [&] { Take(shown.Before, shown.currentFont()); });
}

}  // namespace kt
