#pragma once

#include "kt/rtl/streams/BinaryFormat.h"

#include <QByteArray>

#include <ostream>
#include <vector>

/// Binary forms of a TSample that want more than their size allows.
namespace kt::tests::hostile {

inline constexpr char kSignature[] = "TPF0";

inline QByteArray ShortText(const QByteArray& text) { return static_cast<char>(text.size()) + text; }

/// The start of an object without properties: its children, or a zero byte, come next.
inline QByteArray Opened(const QByteArray& name) { return ShortText("TSample") + ShortText(name) + '\0'; }

/// `levels` objects, each the only child of the one before.
inline QByteArray Nested(int levels) {
  return kSignature + Opened({}).repeated(levels) + QByteArray(1, 0).repeated(levels);
}

/// A form with one property, whose stored value is given.
inline QByteArray WithProperty(const QByteArray& name, const QByteArray& value) {
  return kSignature + ShortText("TSample") + ShortText("S") + ShortText(name) + value + QByteArray(2, 0);
}

/// A text of that kind which says that it has two thousand million characters.
inline QByteArray WithHugeText(TValueType type) {
  return WithProperty("Text", static_cast<char>(type) + QByteArray::fromHex("00943577"));
}

/// Of a class that hears no notifications: those that do hear of each other, which takes a time of its own.
inline QByteArray FiftyThousandChildren() { return (ShortText("TComponent") + QByteArray(3, 0)).repeated(50'000); }

inline QByteArray WithItems(int count) {
  const QByteArray item = static_cast<char>(vaList) + QByteArray(1, 0);
  return WithProperty("Items", static_cast<char>(vaCollection) + item.repeated(count) + '\0');
}

/// The same below `levels` objects, so that each line of its text is indented that deep.
inline QByteArray WithItemsBelow(int levels, int count) {
  const QByteArray item = static_cast<char>(vaList) + QByteArray(1, 0);
  return kSignature + Opened({}).repeated(levels) + ShortText("TSample") + ShortText({}) + ShortText("Items") +
         static_cast<char>(vaCollection) + item.repeated(count) + QByteArray(3 + levels, 0);
}

inline QByteArray WithReference(const QByteArray& path) {
  return WithProperty("Partner", static_cast<char>(vaIdent) + ShortText(path));
}

struct TNamedForm {
  const char* Name;
  QByteArray Form;
};

inline void PrintTo(const TNamedForm& form, std::ostream* out) {
  *out << form.Name << ", " << form.Form.size() << " bytes";
}

inline std::vector<TNamedForm> All() {
  const QByteArray unknown = ShortText("TNoSuch") + ShortText("Last") + QByteArray(2, 0);
  const QByteArray manyValues = static_cast<char>(vaList) + QByteArray("\2\1").repeated(50'000) + '\0';
  return {{"TenThousandLevels", Nested(10'000)},
          {"AThousandLevels", Nested(1000)},
          {"HugeString", WithHugeText(vaLString)},
          {"HugeWideString", WithHugeText(vaWString)},
          {"HugeUtf8String", WithHugeText(vaUTF8String)},
          {"HugeBinary", WithHugeText(vaBinary)},
          {"Siblings", kSignature + Opened("S") + FiftyThousandChildren() + '\0'},
          {"SiblingsAndAnUnknown", kSignature + Opened("S") + FiftyThousandChildren() + unknown + '\0'},
          {"Items", WithItems(50'000)},
          {"ItemsFarBelow", WithItemsBelow(900, 20'000)},
          {"DanglingReference", WithReference("Nobody.Nothing")},
          {"UnknownList", WithProperty("NoSuch", manyValues)},
          {"LongText", WithProperty("Text", static_cast<char>(vaLString) + QByteArray::fromHex("a0860100") +
                                                QByteArray(100'000, 'x'))}};
}

}  // namespace kt::tests::hostile
