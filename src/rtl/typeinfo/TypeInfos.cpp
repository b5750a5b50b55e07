#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/TypeKind.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <array>

namespace kt::TypeInfos {
namespace {

const TTypeInfo* Int64(bool isSigned) {
  static const TInt64TypeInfo signedInfo(QStringLiteral("Int64"), std::numeric_limits<qint64>::min(),
                                         std::numeric_limits<qint64>::max());
  static const TInt64TypeInfo unsignedInfo(QStringLiteral("UInt64"), 0, -1);
  return isSigned ? &signedInfo : &unsignedInfo;
}

}  // namespace

const TEnumTypeInfo* Boolean() {
  static const TEnumTypeInfo info(QStringLiteral("Boolean"),
                                  QStringList{QStringLiteral("False"), QStringLiteral("True")});
  return &info;
}

const TTypeInfo* ByteBoolean() {
  static const TEnumTypeInfo info(QStringLiteral("ByteBool"), otSByte, Boolean());
  return &info;
}

const TTypeInfo* WordBoolean() {
  static const TEnumTypeInfo info(QStringLiteral("WordBool"), otSWord, Boolean());
  return &info;
}

const TTypeInfo* LongBoolean() {
  static const TEnumTypeInfo info(QStringLiteral("LongBool"), otSLong, Boolean());
  return &info;
}

const TTypeInfo* AnsiCharacter() {
  static const TOrdTypeInfo info(tkChar, QStringLiteral("Char"), otUByte, 0, 0xFF);
  return &info;
}

const TTypeInfo* WideCharacter() {
  static const TOrdTypeInfo info(tkWChar, QStringLiteral("WideChar"), otUWord, 0, 0xFFFF);
  return &info;
}

const TTypeInfo* Integer(int bytes, bool isSigned) {
  static const TOrdTypeInfo shortInt(tkInteger, QStringLiteral("Shortint"), otSByte, -0x80, 0x7F);
  static const TOrdTypeInfo byte(tkInteger, QStringLiteral("Byte"), otUByte, 0, 0xFF);
  static const TOrdTypeInfo smallInt(tkInteger, QStringLiteral("Smallint"), otSWord, -0x8000, 0x7FFF);
  static const TOrdTypeInfo word(tkInteger, QStringLiteral("Word"), otUWord, 0, 0xFFFF);
  static const TOrdTypeInfo integer(tkInteger, QStringLiteral("Integer"), otSLong, -0x80000000LL, 0x7FFFFFFF);
  static const TOrdTypeInfo cardinal(tkInteger, QStringLiteral("Cardinal"), otULong, 0, 0xFFFFFFFFLL);
  switch (bytes) {
    case 1:
      return isSigned ? &shortInt : &byte;
    case 2:
      return isSigned ? &smallInt : &word;
    case 4:
      return isSigned ? &integer : &cardinal;
    default:
      return Int64(isSigned);
  }
}

const TTypeInfo* Floating(TFloatType storage) {
  static const std::array<TFloatTypeInfo, 5> infos = {
      TFloatTypeInfo(QStringLiteral("Single"), ftSingle), TFloatTypeInfo(QStringLiteral("Double"), ftDouble),
      TFloatTypeInfo(QStringLiteral("Extended"), ftExtended), TFloatTypeInfo(QStringLiteral("Comp"), ftComp),
      TFloatTypeInfo(QStringLiteral("Currency"), ftCurr)};
  return &infos.at(storage);
}

const TTypeInfo* LongString() {
  static const TTypeInfo info(tkLString, QStringLiteral("string"));
  return &info;
}

const TTypeInfo* WideText() {
  static const TTypeInfo info(tkWString, QStringLiteral("WideString"));
  return &info;
}

const TTypeInfo* ShortText() {
  static const TShortStringTypeInfo info(QStringLiteral("ShortString"), 255);
  return &info;
}

const TTypeInfo* FileName() {
  static const TTypeInfo info(tkLString, QStringLiteral("TFileName"));
  return &info;
}

const TTypeInfo* ComponentName() {
  static const TTypeInfo info(tkLString, QStringLiteral("TComponentName"));
  return &info;
}

const TTypeInfo* VariantType() {
  static const TTypeInfo info(tkVariant, QStringLiteral("Variant"));
  return &info;
}

const TTypeInfo* DateTime() {
  static const TFloatTypeInfo info(QStringLiteral("TDateTime"), ftDouble);
  return &info;
}

const TTypeInfo* Date() {
  static const TFloatTypeInfo info(QStringLiteral("TDate"), ftDouble);
  return &info;
}

const TTypeInfo* Time() {
  static const TFloatTypeInfo info(QStringLiteral("TTime"), ftDouble);
  return &info;
}

const TTypeInfo* OfClass(const TClassInfo* classInfo) { return classInfo->TypeInfo(); }

}  // namespace kt::TypeInfos
