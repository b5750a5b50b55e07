#include "kt/rtl/streams/BinaryFormParser.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"

namespace kt {

void TBinaryFormParser::ParseForm() {
  FReader.ReadSignature();
  ParseObject();
}

void TBinaryFormParser::ParseObject() {
  FFrames.clear();
  BeginObject();
  Run();
}

void TBinaryFormParser::ParseValue() {
  FFrames.clear();
  Value();
  Run();
}

void TBinaryFormParser::ParseItems() {
  FFrames.clear();
  Push(fkCollection);
  FSink.BeginCollection();
  Run();
}

void TBinaryFormParser::ParseProperties() {
  FFrames.clear();
  Push(fkItem);
  FSink.BeginItem(std::nullopt);
  Run();
}

void TBinaryFormParser::Run() {
  while (!FFrames.empty()) Step();
}

void TBinaryFormParser::Step() {
  switch (FFrames.back().Kind) {
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

void TBinaryFormParser::Push(TFrameKind kind) {
  if (FFrames.size() >= std::size_t(FNestingLimit)) {
    const QString what = MessageAbout(SNestingTooDeep, QString::number(FNestingLimit));
    throw EReadError(FReader.AtPlace(what, FReader.Position()));
  }
  FFrames.push_back({kind});
}

void TBinaryFormParser::BeginObject() {
  TFormObject object;
  FReader.ReadPrefix(object.Flags, object.ChildPos);
  FClassName.resize(0);
  FClassName.append(FReader.TakeName());
  object.ClassName = FClassName;
  object.Name = FReader.TakeName();
  Push(fkProperties);
  FReader.Path().EnterObject(object.Name, object.ClassName);
  FSink.BeginObject(object);
}

void TBinaryFormParser::Property() {
  const QStringView name = FReader.TakeName();
  FReader.Path().SetProperty(name);
  FSink.Property(name);
  Value();
}

void TBinaryFormParser::StepProperties() {
  if (!FReader.EndOfList()) return Property();
  FReader.ReadListEnd();
  FReader.Path().SetProperty({});
  FFrames.back().Kind = fkChildren;
}

void TBinaryFormParser::StepChildren() {
  if (!FReader.EndOfList()) return BeginObject();
  FReader.ReadListEnd();
  FFrames.pop_back();
  FSink.EndObject();
  FReader.Path().Leave();
}

void TBinaryFormParser::StepList() {
  if (!FReader.EndOfList()) return Value();
  FReader.ReadListEnd();
  FFrames.pop_back();
  FSink.EndList();
}

void TBinaryFormParser::StepCollection() {
  if (FReader.EndOfList()) {
    FReader.ReadListEnd();
    FFrames.pop_back();
    return FSink.EndCollection();
  }
  std::optional<int> index;
  if (FReader.NextValue() != vaList) index = FReader.ReadInteger();
  FReader.ReadListBegin();
  FReader.Path().EnterItem(FFrames.back().NextItem++);
  Push(fkItem);
  FSink.BeginItem(index);
}

void TBinaryFormParser::StepItem() {
  if (!FReader.EndOfList()) return Property();
  FReader.ReadListEnd();
  FFrames.pop_back();
  FReader.Path().Leave();
  FSink.EndItem();
}

void TBinaryFormParser::Value() { Value(FReader.ReadValue()); }

void TBinaryFormParser::Value(TValueType type) {
  switch (type) {
    case vaNull:
      return FSink.Constant(fcNull);
    case vaNil:
      return FSink.Constant(fcNil);
    case vaFalse:
      return FSink.Constant(fcFalse);
    case vaTrue:
      return FSink.Constant(fcTrue);
    case vaInt8:
    case vaInt16:
    case vaInt32:
    case vaInt64:
      return FSink.Integer(FReader.TakeInteger(type));
    case vaExtended:
      return FSink.Float(fkExtended, FReader.TakeFloat(type));
    case vaSingle:
      return FSink.Float(fkSingle, FReader.TakeFloat(type));
    case vaDate:
      return FSink.Float(fkDate, FReader.TakeFloat(type));
    case vaDouble:
      return FSink.Float(fkDouble, FReader.TakeFloat(type));
    case vaCurrency:
      return FSink.Currency(FReader.TakeCurrency());
    case vaString:
    case vaLString:
    case vaWString:
    case vaUTF8String:
      return FSink.String(FReader.TakeString(type));
    case vaIdent:
      return IdentifierBody();
    case vaBinary:
      return FSink.Binary(FReader.TakeBinary());
    case vaSet:
      return SetBody();
    case vaList:
      Push(fkList);
      return FSink.BeginList();
    case vaCollection:
      Push(fkCollection);
      return FSink.BeginCollection();
  }
}

void TBinaryFormParser::IdentifierBody() {
  const QStringView name = FReader.TakeName();
  if (const auto constant = FindFormConstant(name)) return FSink.Constant(*constant);
  FSink.Identifier(name);
}

void TBinaryFormParser::SetBody() {
  FSink.BeginSet();
  for (QStringView name = FReader.TakeName(); !name.isEmpty(); name = FReader.TakeName()) FSink.SetElement(name);
  FSink.EndSet();
}

}  // namespace kt
