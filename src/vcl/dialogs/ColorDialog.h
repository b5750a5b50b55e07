#pragma once

#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/dialogs/CommonDialog.h"
#include "kt/vcl/graphics/Color.h"

namespace kt {

/// What a colour dialog offers. Kept for the forms that say it: Qt's dialog always has all.
enum TColorDialogOption { cdFullOpen, cdPreventFullOpen, cdShowHelp, cdSolidColor, cdAnyColor };
using TColorDialogOptions = TSet<TColorDialogOption>;

/// Asks for a colour.
class TColorDialog : public TCommonDialog {
 public:
  using Inherited = TCommonDialog;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TColor GetColor() const { return FColor; }
  void SetColor(TColor value) { FColor = value; }
  /// The sixteen colours that the user has mixed: "ColorA=FF8000" to "ColorP=FFFFFFFF", hexadecimal as TColor is;
  /// FFFFFFFF stands for none. Names that are missing count as none.
  TStrings& GetCustomColors() { return *FCustomColors; }
  void SetCustomColors(const TStrings& value) { FCustomColors->Assign(const_cast<TStrings*>(&value)); }
  TColorDialogOptions GetOptions() const { return FOptions; }
  void SetOptions(TColorDialogOptions value) { FOptions = value; }

  bool Execute() override;

 protected:
  explicit TColorDialog(TComponent* owner = nullptr) : TCommonDialog(owner) {}

  void Construct() override;

 private:
  void OfferCustomColors();
  void TakeCustomColors();

  std::unique_ptr<TStringList> FCustomColors;
  TColor FColor = clBlack;
  TColorDialogOptions FOptions;
};

template <>
struct TEnumNames<TColorDialogOption> {
  static constexpr char Name[] = "TColorDialogOption";
  static constexpr const char* Values[] = {"cdFullOpen", "cdPreventFullOpen", "cdShowHelp", "cdSolidColor",
                                           "cdAnyColor"};
  static constexpr char SetName[] = "TColorDialogOptions";
};

}  // namespace kt
