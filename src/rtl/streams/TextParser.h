#pragma once

#include "kt/rtl/conversions/EightBit.h"
#include "kt/rtl/streams/FormEvents.h"
#include "kt/rtl/streams/TextLexer.h"

#include <QByteArray>

#include <vector>

namespace kt {

struct TTextParserOptions {
  /// What text is decoded with that has no byte-order mark and is not UTF-8; `eeUtf8` makes such text an error.
  TEightBitEncoding Fallback = eeWindows1252;
  /// How deep objects, lists and collections may nest together.
  int NestingLimit = kDefaultNestingLimit;
};

/// Turns the text object format into events. Keeps its own stack, so deep nesting never deepens the program's.
///
/// Every error is an EParserError that ends with line and column: "Identifier expected on line 3, column 7".
///
/// `object` with one name alone states the class, as in `object TImage`; a class can be missing only behind a colon at
/// the end of the line, as in `object Image1:`. Sets may also hold plain integers.
class TTextParser {
 public:
  /// Throws EParserError for text that is not valid in its encoding or holds a NUL character. `sink` must outlive the
  /// parser.
  TTextParser(const QByteArray& text, IFormSink& sink, const TTextParserOptions& options = {});

  /// The root object and then the end of the text.
  void ParseForm();

  /// One object or several, one behind the other, and then the end of the text: what a clipboard holds.
  void ParseObjects();

  /// Where the object, item or property begins that was the last to begin. For sinks that tell the user.
  TTextPosition Place() const { return FLexer.PositionOf(FPlace); }

 private:
  enum TFrameKind : quint8 { fkProperties, fkChildren, fkList, fkCollection, fkItem };

  void ParseObject();
  void Step();
  void StepProperties();
  void StepChildren();
  void StepList();
  void StepCollection();
  void StepItem();
  bool IsObjectNext() const;
  void BeginObject();
  void HeaderNames(TFormObject& object);
  void EndObject();
  void Property();
  void Value();
  void SymbolValue();
  void IntegerValue();
  void FloatValue();
  void IdentifierValue();
  void SetBody();
  void SetElement();
  void Push(TFrameKind kind);
  int BracketedIndex();
  int Index();
  void Expect(char symbol);
  void ExpectIdentifier();
  [[noreturn]] void Fail(QLatin1StringView what, QStringView argument = {}) const;

  IFormSink& FSink;
  TTextLexer FLexer;
  std::vector<TFrameKind> FFrames;
  QString FName;
  QString FClassName;
  int FNestingLimit;
  qsizetype FPlace = 0;
};

}  // namespace kt
