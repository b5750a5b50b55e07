#pragma once

#include "kt/rtl/streams/BinaryReader.h"
#include "kt/rtl/streams/FormEvents.h"

#include <vector>

namespace kt {

/// Turns the binary object format into events. Keeps its own stack, so deep nesting never deepens the program's.
///
/// The reader's path is kept up to date, so errors say where they are. An identifier that spells a constant is reported
/// as the constant.
class TBinaryFormParser {
 public:
  /// Both must outlive the parser. Objects, lists and collections nest at most `nestingLimit` deep together; EReadError
  /// beyond.
  TBinaryFormParser(TBinaryReader& reader, IFormSink& sink, int nestingLimit = kDefaultNestingLimit)
      : FReader(reader), FSink(sink), FNestingLimit(nestingLimit) {}

  /// The signature and the root object with everything in it; stops right behind it.
  void ParseForm();
  /// One object, its header, properties and children, without a signature.
  void ParseObject();
  /// One value with its type byte.
  void ParseValue();
  /// The items of a collection whose type byte was read, with the end of their list.
  void ParseItems();
  /// A list of properties with its end, as one item of a collection.
  void ParseProperties();

 private:
  enum TFrameKind : quint8 { fkProperties, fkChildren, fkList, fkCollection, fkItem };
  struct TFrame {
    TFrameKind Kind;
    int NextItem = 0;
  };

  void Run();
  void Step();
  void StepProperties();
  void StepChildren();
  void StepList();
  void StepCollection();
  void StepItem();
  void BeginObject();
  void Property();
  void Value();
  void Value(TValueType type);
  void SetBody();
  void IdentifierBody();
  void Push(TFrameKind kind);

  TBinaryReader& FReader;
  IFormSink& FSink;
  int FNestingLimit;
  std::vector<TFrame> FFrames;
  QString FClassName;
};

}  // namespace kt
