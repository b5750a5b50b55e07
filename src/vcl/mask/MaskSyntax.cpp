#include "kt/vcl/mask/MaskSyntax.h"

#include <algorithm>

namespace kt {

namespace {

/// The characters that stand for a cell.
struct TMaskLetter {
  char16_t Letter;
  TMaskKind Kind;
  bool IsRequired;
};
constexpr TMaskLetter kMaskLetters[] = {
    {u'L', mkLetter, true},        {u'l', mkLetter, false}, {u'A', mkAlphaNumeric, true},
    {u'a', mkAlphaNumeric, false}, {u'C', mkAny, true},     {u'c', mkAny, false},
    {u'0', mkDigit, true},         {u'9', mkDigit, false},  {u'#', mkSign, false},
};

/// Decimal digits of other scripts are none here: what is typed goes on to conversions that know these ten alone.
bool IsDigit(QChar character) { return character >= u'0' && character <= u'9'; }

}  // namespace

class TMaskSyntax::TParser {
 public:
  TParser(TMaskSyntax& syntax, const TFormatSettings& settings) : FSyntax(syntax), FSettings(settings) {}

  void Parse(QStringView mask) {
    qsizetype i = 0;
    while (i < mask.size() && mask[i] != u';') i += Take(mask.mid(i));
    if (i < mask.size()) TakeFields(mask.mid(i + 1));
  }

 private:
  /// The first characters of `rest`; answers how many.
  qsizetype Take(QStringView rest) {
    const QChar first = rest[0];
    switch (first.unicode()) {
      case u'!':
        FSyntax.FIsFilledFromRight = true;
        return 1;
      case u'>':
        FCase = mcUpper;
        return 1;
      case u'<':
        FCase = rest.size() > 1 && rest[1] == u'>' ? mcAsTyped : mcLower;
        return FCase == mcLower ? 1 : 2;
      case u'\\':
        AddLiterals(rest.size() > 1 ? rest.mid(1, 1) : rest);
        return 2;
      case u':':
        AddLiterals(FSettings.TimeSeparator);
        return 1;
      case u'/':
        AddLiterals(FSettings.DateSeparator);
        return 1;
      case u'_':
        AddLiterals(u" ");
        return 1;
      default:
        AddCell(first);
        return 1;
    }
  }

  void AddLiterals(QStringView text) {
    for (QChar character : text) FSyntax.FCells.push_back({.Literal = character});
  }

  void AddCell(QChar character) {
    const auto* letter = std::find_if(std::begin(kMaskLetters), std::end(kMaskLetters),
                                      [&](const TMaskLetter& known) { return known.Letter == character; });
    if (letter == std::end(kMaskLetters)) return AddLiterals(QStringView(&character, 1));
    FSyntax.FCells.push_back({letter->Kind, FCase, letter->IsRequired, {}});
  }

  /// What comes after the first semicolon: "[save][;blank]".
  void TakeFields(QStringView fields) {
    const qsizetype end = fields.indexOf(u';');
    FSyntax.FIsLiteralSaved = fields.left(end < 0 ? fields.size() : end) != u"0";
    if (end >= 0 && end + 1 < fields.size()) FSyntax.FBlank = fields[end + 1];
  }

  TMaskSyntax& FSyntax;
  const TFormatSettings& FSettings;
  TMaskCase FCase = mcAsTyped;
};

TMaskSyntax::TMaskSyntax(QStringView mask, const TFormatSettings& settings) { TParser(*this, settings).Parse(mask); }

bool TMaskSyntax::IsEditable(int index) const {
  return index >= 0 && index < Size() && FCells[static_cast<std::size_t>(index)].Kind != mkLiteral;
}

bool TMaskSyntax::Fits(int index, QChar character) const {
  if (!IsEditable(index) || character == FBlank) return false;
  const TMaskCell& cell = FCells[static_cast<std::size_t>(index)];
  if (Shifted(index, character) != character) return false;
  switch (cell.Kind) {
    case mkLetter:
      return character.isLetter();
    case mkAlphaNumeric:
      return character.isLetter() || IsDigit(character);
    case mkAny:
      return character.isPrint() && !character.isSurrogate();
    case mkDigit:
      return IsDigit(character);
    case mkSign:
      return IsDigit(character) || character == u'+' || character == u'-';
    case mkLiteral:
      break;
  }
  return false;
}

QChar TMaskSyntax::Shifted(int index, QChar character) const {
  if (!IsEditable(index)) return character;
  switch (FCells[static_cast<std::size_t>(index)].Case) {
    case mcUpper:
      return character.toUpper();
    case mcLower:
      return character.toLower();
    case mcAsTyped:
      break;
  }
  return character;
}

int TMaskSyntax::NextEditable(int index) const {
  for (index = std::max(index, 0); index < Size(); ++index) {
    if (IsEditable(index)) return index;
  }
  return Size();
}

int TMaskSyntax::PreviousEditable(int index) const {
  for (index = std::min(index, Size()) - 1; index >= 0; --index) {
    if (IsEditable(index)) return index;
  }
  return -1;
}

int TMaskSyntax::FieldStart(int index) const {
  while (IsEditable(index - 1)) --index;
  return index;
}

int TMaskSyntax::FieldEnd(int index) const {
  while (IsEditable(index)) ++index;
  return index;
}

int TMaskSyntax::LiteralsEnd(int index) const {
  while (index < Size() && !IsEditable(index)) ++index;
  return index;
}

}  // namespace kt
