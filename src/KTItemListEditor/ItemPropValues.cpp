#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Make.h"

namespace kt {

namespace {

bool IsSingleLine(const QString& text) {
  for (const QChar c : text) {
    if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c.isNull()) return false;
  }
  return true;
}

/// A line of its own, where null stands for no line.
QString AsLine(const QString& text) { return text.isNull() ? QStringLiteral("") : text; }

}  // namespace

std::unique_ptr<TKTItemPropValueStrings> TKTItemProp::MakeValues() {
  auto values = Make<TKTItemPropValueStrings>(*this);
  if (!FSingleValue.isNull()) values->Add(FSingleValue);
  return values;
}

TKTItemPropValueStrings& TKTItemProp::GetValues() {
  if (FValues) return *FValues;
  auto values = MakeValues();
  values->OnChange = {this, &TKTItemProp::ValuesChanged};
  FSingleValue = QString();
  FValues = std::move(values);
  return *FValues;
}

void TKTItemProp::SetValues(TStrings& value) { GetValues().Assign(&value); }

void TKTItemProp::ValuesChanged(TObject*) {
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && IsVisible()) editor->InvalidateValues(*this);
  Changed(false);
}

QString TKTItemProp::GetValuesText() {
  if (FValues) return FValues->GetText();
  return FSingleValue.isNull() ? QString() : FSingleValue + QLatin1StringView("\r\n");
}

void TKTItemProp::SetValuesText(const QString& value) {
  if (FValues || !IsSingleLine(value)) return GetValues().SetText(value);
  FSingleValue = value.isEmpty() ? QString() : value;
  ValuesChanged(nullptr);
}

QString TKTItemProp::GetValueLine(int index) {
  const TKTCustomItemListEditor* editor = GetEditor();
  // One line where there is one value column; everything else is the list's to decide.
  if (FValues || index != 0 || !editor || editor->GetValueCount() != 1) return GetValues().GetStrings(index);
  FSingleValue = AsLine(FSingleValue);
  return FSingleValue;
}

void TKTItemProp::SetValueLine(int index, const QString& value) {
  const TKTCustomItemListEditor* editor = GetEditor();
  if (FValues || index != 0 || !editor || editor->GetValueCount() != 1) return GetValues().SetStrings(index, value);
  const bool isSame = FSingleValue == value;
  FSingleValue = AsLine(isSame ? FSingleValue : value);
  if (!isSame) ValuesChanged(nullptr);
}

QString TKTItemProp::GetValue() {
  const TKTCustomItemListEditor* editor = GetEditor();
  if (editor && editor->IsSelectedValue(*this)) return GetValueLine(editor->GetCurrentValueIndex());
  return TrimRight(GetValuesText());
}

void TKTItemProp::SetValue(const QString& value) {
  const TKTCustomItemListEditor* editor = GetEditor();
  if (editor && editor->IsSelectedValue(*this)) {
    SetValueLine(editor->GetCurrentValueIndex(), value);
  } else {
    SetValuesText(value);
  }
}

bool TKTItemProp::IsValuesEmpty() { return Trim(GetValuesText()).isEmpty(); }

}  // namespace kt
