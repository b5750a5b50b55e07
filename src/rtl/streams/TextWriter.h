#pragma once

#include "kt/rtl/streams/ByteSink.h"
#include "kt/rtl/streams/FormEvents.h"
#include "kt/rtl/streams/FormPath.h"

#include <vector>

namespace kt {

enum TFormLineEnd : quint8 { leLf, leCrLf };

struct TTextWriterOptions {
  /// LF unless asked otherwise: forms live in version control. Every reader takes both.
  TFormLineEnd LineEnd = leLf;
  /// Characters beyond ASCII as they are, in UTF-8, instead of as `#nnn`. Controls and lone surrogates are numbers all
  /// the same.
  bool RawUtf8 = false;
};

/// Writes events as canonical text, the very form in which the component framework itself writes it.
///
/// The events must follow the grammar of IFormSink; their order is only asserted. A name that text cannot hold (it
/// would not read back) is an EWriteError that names it. From 60 levels on lines are not indented further, so that the
/// size of the text stays in proportion to that of the form.
class TTextWriter : public IFormSink {
 public:
  /// `sink` must outlive the writer; flushing it is the caller's business.
  explicit TTextWriter(TByteSink& sink, const TTextWriterOptions& options = {});

  void BeginObject(const TFormObject& object) override;
  void EndObject() override;
  void Property(QStringView path) override;
  void Constant(TFormConstant value) override;
  void Integer(qint64 value) override;
  void Float(TFloatKind kind, Extended value) override;
  void Currency(qint64 tenThousandths) override;
  void String(QStringView value) override;
  void Identifier(QStringView name) override;
  void Binary(QByteArrayView data) override;
  void BeginSet() override;
  void SetElement(QStringView name) override;
  void EndSet() override;
  void BeginList() override;
  void EndList() override;
  void BeginCollection() override;
  void BeginItem(std::optional<int> index) override;
  void EndItem() override;
  void EndCollection() override;

 private:
  enum TFrameKind : quint8 { fkObject, fkList, fkCollection, fkItem };
  struct TFrame {
    TFrameKind Kind;
    int NextItem = 0;
  };

  void NewLine();
  void Indent();
  void BeginValue();
  void EndValue();
  void Name(QStringView name);
  void HexLines(QByteArrayView data);
  void Hex(QByteArrayView data);
  QStringView Piece(QStringView rest) const;
  void StringPiece(QStringView piece);
  qsizetype QuotedLength(QStringView text) const;
  void Quoted(QStringView text);
  void CharacterCode(QChar c);
  bool IsPlain(QStringView text, qsizetype at) const;
  void Close(TFrameKind kind);
  [[noreturn]] void FailName(QStringView name) const;

  TByteSink& FSink;
  TTextWriterOptions FOptions;
  std::vector<TFrame> FFrames;
  TFormPath FPath;
  qsizetype FLevel = 0;
  bool FFirstElement = true;
};

}  // namespace kt
