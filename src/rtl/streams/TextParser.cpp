#include "kt/rtl/streams/TextParser.h"

#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/FormNumbers.h"
#include "kt/rtl/streams/TextEncoding.h"

#include <limits>

namespace kt {

TTextParser::TTextParser(const QByteArray& text, IFormSink& sink, const TTextParserOptions& options)
    : FSink(sink), FLexer(DecodeFormText(text, options.Fallback)), FNestingLimit(options.NestingLimit) {}

void TTextParser::Fail(QLatin1StringView what, QStringView argument) const {
  FLexer.Fail(MessageAbout(what, argument));
}

void TTextParser::Expect(char symbol) {
  if (!FLexer.IsSymbol(symbol)) Fail(SCharExpected, QString(QLatin1Char(symbol)));
  FLexer.Next();
}

void TTextParser::ExpectIdentifier() {
  if (FLexer.Kind() != ttIdentifier) Fail(SIdentifierExpected);
}

void TTextParser::Push(TFrameKind kind) {
  if (FFrames.size() >= std::size_t(FNestingLimit)) Fail(SNestingTooDeep, QString::number(FNestingLimit));
  FFrames.push_back(kind);
}

void TTextParser::ParseForm() {
  FLexer.Next();
  ParseObject();
  if (FLexer.Kind() != ttEnd) Fail(SDataAfterForm);
}

void TTextParser::ParseObjects() {
  FLexer.Next();
  do {
    ParseObject();
  } while (FLexer.Kind() != ttEnd);
}

void TTextParser::ParseObject() {
  FFrames.clear();
  if (!IsObjectNext()) Fail(SSymbolExpected, u"OBJECT");
  BeginObject();
  while (!FFrames.empty()) Step();
}

void TTextParser::Step() {
  switch (FFrames.back()) {
    case fkProperties:
      return StepProperties();
    case fkChildren:
      return StepChildren();
    case fkList:
      return StepList();
    case fkCollection:
      return StepCollection();
    case fkItem:
      return StepItem();
  }
}

bool TTextParser::IsObjectNext() const {
  return FLexer.IsWord("object") || FLexer.IsWord("inherited") || FLexer.IsWord("inline");
}

void TTextParser::BeginObject() {
  FPlace = FLexer.Offset();
  TFormObject object;
  object.Flags.setFlag(ffInherited, FLexer.IsWord("inherited"));
  object.Flags.setFlag(ffInline, FLexer.IsWord("inline"));
  Push(fkProperties);
  FLexer.Next();
  HeaderNames(object);
  if (FLexer.IsSymbol('[')) {
    object.Flags.setFlag(ffChildPos);
    object.ChildPos = BracketedIndex();
  }
  FSink.BeginObject(object);
}

void TTextParser::HeaderNames(TFormObject& object) {
  FName.resize(0);
  FClassName.resize(0);
  if (!FLexer.IsSymbol(':')) {
    ExpectIdentifier();
    FClassName.append(FLexer.Text());
    FLexer.Next();
  }
  if (FLexer.IsSymbol(':')) {
    FName.swap(FClassName);
    FLexer.Next();
    // Nothing behind the colon on its line: an object without a class.
    const bool missing = FLexer.IsOnNewLine() || FLexer.Kind() == ttEnd || FLexer.IsSymbol('[');
    if (!missing) {
      ExpectIdentifier();
      FClassName.append(FLexer.Text());
      FLexer.Next();
    }
  }
  object.Name = FName;
  object.ClassName = FClassName;
}

int TTextParser::BracketedIndex() {
  Expect('[');
  const int index = Index();
  Expect(']');
  return index;
}

int TTextParser::Index() {
  if (FLexer.Kind() != ttInteger) Fail(SNumberExpected);
  const auto value = ParseFormInteger(FLexer.Digits());
  const bool fits = value && *value >= std::numeric_limits<int>::min() && *value <= std::numeric_limits<int>::max();
  if (!fits) Fail(SInvalidInteger, QString::fromLatin1(FLexer.Raw()));
  FLexer.Next();
  return int(*value);
}

void TTextParser::StepProperties() {
  if (FLexer.IsWord("end")) return EndObject();
  if (!IsObjectNext()) return Property();
  FFrames.back() = fkChildren;
  BeginObject();
}

void TTextParser::StepChildren() {
  if (FLexer.IsWord("end")) return EndObject();
  if (!IsObjectNext()) Fail(SSymbolExpected, u"END");
  BeginObject();
}

void TTextParser::EndObject() {
  FLexer.Next();
  FFrames.pop_back();
  FSink.EndObject();
}

void TTextParser::StepList() {
  if (!FLexer.IsSymbol(')')) return Value();
  FLexer.Next();
  FFrames.pop_back();
  FSink.EndList();
}

void TTextParser::StepCollection() {
  if (FLexer.IsSymbol('>')) {
    FLexer.Next();
    FFrames.pop_back();
    return FSink.EndCollection();
  }
  if (!FLexer.IsWord("item")) Fail(SSymbolExpected, u"ITEM");
  FPlace = FLexer.Offset();
  Push(fkItem);
  FLexer.Next();
  std::optional<int> index;
  if (FLexer.IsSymbol('[')) index = BracketedIndex();
  FSink.BeginItem(index);
}

void TTextParser::StepItem() {
  if (!FLexer.IsWord("end")) return Property();
  FLexer.Next();
  FFrames.pop_back();
  FSink.EndItem();
}

void TTextParser::Property() {
  ExpectIdentifier();
  FPlace = FLexer.Offset();
  FName.resize(0);
  FName.append(FLexer.Text());
  FLexer.Next();
  // Parts that touch their dots are one token; these stand apart.
  while (FLexer.IsSymbol('.')) {
    FLexer.Next();
    ExpectIdentifier();
    FName.append(u'.');
    FName.append(FLexer.Text());
    FLexer.Next();
  }
  if (!FLexer.IsSymbol('=')) Fail(SCharExpected, u"=");
  FSink.Property(FName);
  FLexer.Next();
  Value();
}

void TTextParser::Value() {
  switch (FLexer.Kind()) {
    case ttInteger:
      return IntegerValue();
    case ttFloat:
      return FloatValue();
    case ttIdentifier:
      return IdentifierValue();
    case ttSymbol:
      return SymbolValue();
    case ttString:
      FSink.String(FLexer.Text());
      return FLexer.Next();
    case ttEnd:
      Fail(SInvalidPropertyValue);
  }
}

void TTextParser::IntegerValue() {
  const auto value = ParseFormInteger(FLexer.Digits());
  if (!value) Fail(SInvalidInteger, QString::fromLatin1(FLexer.Raw()));
  FSink.Integer(*value);
  FLexer.Next();
}

void TTextParser::FloatValue() {
  if (FLexer.Suffix() == 'c') {
    const auto money = ParseFormCurrency(FLexer.Digits());
    if (!money) Fail(SInvalidCurrency, QString::fromLatin1(FLexer.Raw()));
    FSink.Currency(*money);
    return FLexer.Next();
  }
  const TFloatKind kind = FloatKindOfSuffix(FLexer.Suffix());
  const auto value = ParseFormFloat(FLexer.Digits(), kind);
  if (!value) Fail(SInvalidFloat, QString::fromLatin1(FLexer.Raw()));
  FSink.Float(kind, *value);
  FLexer.Next();
}

void TTextParser::IdentifierValue() {
  if (const auto constant = FindFormConstant(FLexer.Text()))
    FSink.Constant(*constant);
  else
    FSink.Identifier(FLexer.Text());
  FLexer.Next();
}

void TTextParser::SymbolValue() {
  switch (*FLexer.Raw().data()) {
    case '[':
      return SetBody();
    case '(':
      Push(fkList);
      FSink.BeginList();
      return FLexer.Next();
    case '<':
      Push(fkCollection);
      FSink.BeginCollection();
      return FLexer.Next();
    case '{':
      FSink.Binary(FLexer.ReadHex());
      return FLexer.Next();
    default:
      Fail(SInvalidPropertyValue);
  }
}

void TTextParser::SetElement() {
  // Sets of numbers have elements without names.
  if (FLexer.Kind() == ttInteger) {
    const auto value = ParseFormInteger(FLexer.Digits());
    if (!value) Fail(SInvalidInteger, QString::fromLatin1(FLexer.Raw()));
    FSink.SetElement(QString::number(*value));
  } else {
    ExpectIdentifier();
    FSink.SetElement(FLexer.Text());
  }
  FLexer.Next();
}

void TTextParser::SetBody() {
  FLexer.Next();
  FSink.BeginSet();
  while (!FLexer.IsSymbol(']')) {
    SetElement();
    if (FLexer.IsSymbol(']')) break;
    Expect(',');
  }
  FSink.EndSet();
  FLexer.Next();
}

}  // namespace kt
