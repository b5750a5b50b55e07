#pragma once

#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/dialogs/CommonDialog.h"
#include "kt/vcl/graphics/Font.h"

class QFont;
class QWidget;

namespace kt {

/// What fonts are for. Kept for the forms that say it: Qt has the same ones for all.
enum TFontDialogDevice { fdScreen, fdPrinter, fdBoth };

/// What a font dialog offers. Those that are not explained are kept, as Qt's dialog has no such thing.
enum TFontDialogOption {
  fdAnsiOnly,
  fdTrueTypeOnly,  ///< fonts of any size only
  fdEffects,       ///< takes over whether letters are underlined and struck out
  fdFixedPitchOnly,
  fdForceFontExist,
  fdNoFaceSel,  ///< does not take over the face
  fdNoOEMFonts,
  fdNoSimulations,
  fdNoSizeSel,   ///< does not take over the size
  fdNoStyleSel,  ///< does not take over bold and italic
  fdNoVectorFonts,
  fdShowHelp,
  fdWysiwyg,
  fdLimitSize,  ///< between MinFontSize and MaxFontSize
  fdScalableOnly,
  fdApplyButton
};
using TFontDialogOptions = TSet<TFontDialogOption>;

/// The user wants to see the font at work, which the dialog has already: Sender, and the window of the dialog.
struct TFDApplyEvent : TEvent<TObject*, QWidget*> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TFDApplyEvent";
};

/// Asks for a font. Its colour stays what it is: Qt's dialog has none.
class TFontDialog : public TCommonDialog {
 public:
  using Inherited = TCommonDialog;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// What is chosen at first, and what was chosen. What the user leaves alone stays, even a face that is missing here.
  TFont& GetFont() { return *FFont; }
  void SetFont(const TFont& value) { FFont->Assign(const_cast<TFont*>(&value)); }
  TFontDialogDevice GetDevice() const { return FDevice; }
  void SetDevice(TFontDialogDevice value) { FDevice = value; }
  /// In points; 0 for no limit. Setting either sets fdLimitSize, unless both are 0.
  int GetMinFontSize() const { return FMinFontSize; }
  void SetMinFontSize(int value);
  int GetMaxFontSize() const { return FMaxFontSize; }
  void SetMaxFontSize(int value);
  TFontDialogOptions GetOptions() const { return FOptions; }
  void SetOptions(TFontDialogOptions value) { FOptions = value; }

  bool Execute() override;

  /// A dialog with a handler has a button for it; one with fdApplyButton as well.
  TFDApplyEvent OnApply;

 protected:
  explicit TFontDialog(TComponent* owner = nullptr) : TCommonDialog(owner) {}

  void Construct() override;

 private:
  class TBox;

  QFont Wanted() const;
  void Listen(TBox& box);
  /// Takes over what was changed from `before`.
  void Take(const QFont& before, const QFont& now);
  void Apply(TBox& box);
  int Limited(int size) const;

  std::unique_ptr<TFont> FFont;
  int FMinFontSize = 0;
  int FMaxFontSize = 0;
  TFontDialogDevice FDevice = fdScreen;
  TFontDialogOptions FOptions = {fdEffects};
};

template <>
struct TEnumNames<TFontDialogDevice> {
  static constexpr char Name[] = "TFontDialogDevice";
  static constexpr const char* Values[] = {"fdScreen", "fdPrinter", "fdBoth"};
};
template <>
struct TEnumNames<TFontDialogOption> {
  static constexpr char Name[] = "TFontDialogOption";
  static constexpr const char* Values[] = {"fdAnsiOnly",       "fdTrueTypeOnly", "fdEffects",       "fdFixedPitchOnly",
                                           "fdForceFontExist", "fdNoFaceSel",    "fdNoOEMFonts",    "fdNoSimulations",
                                           "fdNoSizeSel",      "fdNoStyleSel",   "fdNoVectorFonts", "fdShowHelp",
                                           "fdWysiwyg",        "fdLimitSize",    "fdScalableOnly",  "fdApplyButton"};
  static constexpr char SetName[] = "TFontDialogOptions";
};

}  // namespace kt
