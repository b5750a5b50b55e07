#include "kt/vcl/graphics/Color.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Integers.h"
#include "kt/vcl/graphics/NamedIntegers.h"

#include <limits>

namespace kt {
namespace {

constexpr TNamedInteger kColorEntries[] = {
    {"clBlack", clBlack},
    {"clMaroon", clMaroon},
    {"clGreen", clGreen},
    {"clOlive", clOlive},
    {"clNavy", clNavy},
    {"clPurple", clPurple},
    {"clTeal", clTeal},
    {"clGray", clGray},
    {"clSilver", clSilver},
    {"clRed", clRed},
    {"clLime", clLime},
    {"clYellow", clYellow},
    {"clBlue", clBlue},
    {"clFuchsia", clFuchsia},
    {"clAqua", clAqua},
    {"clWhite", clWhite},
    {"clMoneyGreen", clMoneyGreen},
    {"clSkyBlue", clSkyBlue},
    {"clCream", clCream},
    {"clMedGray", clMedGray},
    {"clActiveBorder", clActiveBorder},
    {"clActiveCaption", clActiveCaption},
    {"clAppWorkSpace", clAppWorkSpace},
    {"clBackground", clBackground},
    {"clBtnFace", clBtnFace},
    {"clBtnHighlight", clBtnHighlight},
    {"clBtnShadow", clBtnShadow},
    {"clBtnText", clBtnText},
    {"clCaptionText", clCaptionText},
    {"clDefault", clDefault},
    {"clGradientActiveCaption", clGradientActiveCaption},
    {"clGradientInactiveCaption", clGradientInactiveCaption},
    {"clGrayText", clGrayText},
    {"clHighlight", clHighlight},
    {"clHighlightText", clHighlightText},
    {"clHotLight", clHotLight},
    {"clInactiveBorder", clInactiveBorder},
    {"clInactiveCaption", clInactiveCaption},
    {"clInactiveCaptionText", clInactiveCaptionText},
    {"clInfoBk", clInfoBk},
    {"clInfoText", clInfoText},
    {"clMenu", clMenu},
    {"clMenuBar", clMenuBar},
    {"clMenuHighlight", clMenuHighlight},
    {"clMenuText", clMenuText},
    {"clNone", clNone},
    {"clScrollBar", clScrollBar},
    {"cl3DDkShadow", cl3DDkShadow},
    {"cl3DLight", cl3DLight},
    {"clWindow", clWindow},
    {"clWindowFrame", clWindowFrame},
    {"clWindowText", clWindowText},
};
constexpr TNamedIntegers kColorNames(kColorEntries);

}  // namespace

const TTypeInfo* TTypeOf<TColor>::Info() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TColor"), otSLong, std::numeric_limits<qint32>::min(),
                                 std::numeric_limits<qint32>::max());
  return &info;
}

bool IdentToColor(QStringView ident, TColor& color) {
  const auto value = kColorNames.ValueOf(ident);
  if (value) color = static_cast<TColor>(*value);
  return value.has_value();
}

bool ColorToIdent(TColor color, QString& ident) {
  const QString name = kColorNames.NameOf(color);
  if (!name.isEmpty()) ident = name;
  return !name.isEmpty();
}

QString ColorToString(TColor color) {
  const QString name = kColorNames.NameOf(color);
  return name.isEmpty() ? Format(u"$%.8x", {static_cast<qint32>(color)}) : name;
}

TColor StringToColor(QStringView text) {
  TColor color;
  return IdentToColor(text, color) ? color : static_cast<TColor>(StrToInt(text));
}

void GetColorValues(const std::function<void(const QString&)>& proc) {
  for (const TNamedInteger& entry : kColorNames.Entries()) proc(QString::fromLatin1(entry.Name));
}

void RegisterColorNames() { kColorNames.RegisterFor(TypeInfoOf<TColor>()); }

}  // namespace kt
