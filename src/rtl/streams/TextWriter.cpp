#include "kt/rtl/streams/TextWriter.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/FormNumbers.h"
#include "kt/rtl/streams/TextLexer.h"

#include <algorithm>
#include <cstring>

namespace kt {
namespace {

/// Units of a string on one line.
constexpr qsizetype kPieceLength = 64;
/// Bytes of binary data on one line; fewer stay on the property's own line.
constexpr qsizetype kBytesPerLine = 32;
constexpr qsizetype kIndent = 2;
/// The level from which lines are not indented further.
constexpr qsizetype kDeepestIndent = 60;
/// The first character that RawUtf8 leaves alone; the C1 controls below it are numbers always.
constexpr char16_t kFirstRaw = 0xA0;

bool IsNumberElement(QStringView name) {
  bool ok = false;
  const qlonglong value = name.toLongLong(&ok);
  return ok && name == QString::number(value);
}

/// True for a word that means something else where a property may stand.
bool IsKeyword(QStringView path, bool inItem) {
  if (inItem) return path.compare(u"end", Qt::CaseInsensitive) == 0;
  for (const QStringView word : {u"end", u"object", u"inherited", u"inline"})
    if (path.compare(word, Qt::CaseInsensitive) == 0) return true;
  return false;
}

/// Breaks a line in an editor although it is no line end of the format.
bool IsUnicodeLineBreak(char16_t c) { return c == 0x2028 || c == 0x2029; }

}  // namespace

TTextWriter::TTextWriter(TByteSink& sink, const TTextWriterOptions& options) : FSink(sink), FOptions(options) {}

void TTextWriter::FailName(QStringView name) const {
  const QString message = MessageAbout(SNameNotText, ShownName(name));
  const QString path = FPath.ToString();
  throw ENotStorable(message, path, path.isEmpty() ? message : message + QStringLiteral(" (") + path + u')');
}

void TTextWriter::NewLine() {
  if (FOptions.LineEnd == leCrLf) FSink.Byte('\r');
  FSink.Byte('\n');
}

void TTextWriter::Indent() {
  const qsizetype count = std::min(FLevel, kDeepestIndent) * kIndent;
  std::memset(FSink.Reserve(count), ' ', std::size_t(count));
  FSink.Commit(count);
}

void TTextWriter::Name(QStringView name) {
  const qsizetype size = name.size();
  char* to = FSink.Reserve(size);
  char16_t seen = 0;
  for (qsizetype i = 0; i < size; ++i) {
    const char16_t c = name[i].unicode();
    seen |= c;
    to[i] = char(c);
  }
  if (seen < 0x80) return FSink.Commit(size);
  FSink.Bytes(name.toUtf8());
}

void TTextWriter::BeginObject(const TFormObject& object) {
  FPath.EnterObject(object.Name, object.ClassName);
  for (const QStringView name : {object.Name, object.ClassName})
    if (!name.isEmpty() && !IsFormIdentifier(name)) FailName(name);
  Indent();
  FSink.Bytes(object.Flags.testFlag(ffInherited) ? "inherited "
              : object.Flags.testFlag(ffInline)  ? "inline "
                                                 : "object ");
  Name(object.Name);
  if (object.ClassName.isEmpty())
    FSink.Byte(':');
  else if (!object.Name.isEmpty())
    FSink.Bytes(": ");
  Name(object.ClassName);
  if (object.Flags.testFlag(ffChildPos)) FSink.Bytes(" [" + QByteArray::number(object.ChildPos) + ']');
  NewLine();
  FFrames.push_back({fkObject});
  ++FLevel;
}

void TTextWriter::EndObject() {
  Close(fkObject);
  FPath.Leave();
  Indent();
  FSink.Bytes("end");
  NewLine();
}

void TTextWriter::Close(TFrameKind kind) {
  Q_ASSERT(!FFrames.empty() && FFrames.back().Kind == kind);
  Q_UNUSED(kind);
  FFrames.pop_back();
  --FLevel;
}

void TTextWriter::Property(QStringView path) {
  FPath.SetProperty(path);
  if (!IsFormIdentifier(path) || IsKeyword(path, !FFrames.empty() && FFrames.back().Kind == fkItem)) FailName(path);
  Indent();
  Name(path);
  FSink.Bytes(" = ");
}

/// An entry of a list has a line of its own.
void TTextWriter::BeginValue() {
  if (FFrames.empty() || FFrames.back().Kind != fkList) return;
  NewLine();
  Indent();
}

/// The value of a property ends its line.
void TTextWriter::EndValue() {
  if (FFrames.empty() || FFrames.back().Kind != fkList) NewLine();
}

void TTextWriter::Constant(TFormConstant value) {
  BeginValue();
  Name(FormConstantName(value));
  EndValue();
}

void TTextWriter::Integer(qint64 value) {
  BeginValue();
  FSink.Bytes(QByteArray::number(value));
  EndValue();
}

void TTextWriter::Float(TFloatKind kind, Extended value) {
  BeginValue();
  FSink.Bytes(FloatToFormText(kind, value));
  EndValue();
}

void TTextWriter::Currency(qint64 tenThousandths) {
  BeginValue();
  FSink.Bytes(QByteArray::number(tenThousandths) + 'c');
  EndValue();
}

void TTextWriter::Identifier(QStringView name) {
  if (!IsFormIdentifier(name)) FailName(name);
  BeginValue();
  Name(name);
  EndValue();
}

void TTextWriter::BeginSet() {
  BeginValue();
  FSink.Byte('[');
  FFirstElement = true;
}

void TTextWriter::SetElement(QStringView name) {
  if (!IsFormIdentifier(name) && !IsNumberElement(name)) FailName(name);
  if (!FFirstElement) FSink.Bytes(", ");
  FFirstElement = false;
  Name(name);
}

void TTextWriter::EndSet() {
  FSink.Byte(']');
  EndValue();
}

void TTextWriter::BeginList() {
  BeginValue();
  FSink.Byte('(');
  FFrames.push_back({fkList});
  ++FLevel;
}

void TTextWriter::EndList() {
  Close(fkList);
  FSink.Byte(')');
  EndValue();
}

void TTextWriter::BeginCollection() {
  BeginValue();
  FSink.Byte('<');
  FFrames.push_back({fkCollection});
  ++FLevel;
}

void TTextWriter::BeginItem(std::optional<int> index) {
  Q_ASSERT(!FFrames.empty() && FFrames.back().Kind == fkCollection);
  FPath.EnterItem(FFrames.back().NextItem++);
  NewLine();
  Indent();
  FSink.Bytes("item");
  if (index) FSink.Bytes(" [" + QByteArray::number(*index) + ']');
  NewLine();
  FFrames.push_back({fkItem});
  ++FLevel;
}

void TTextWriter::EndItem() {
  Close(fkItem);
  FPath.Leave();
  Indent();
  FSink.Bytes("end");
}

void TTextWriter::EndCollection() {
  Close(fkCollection);
  FSink.Byte('>');
  EndValue();
}

void TTextWriter::Hex(QByteArrayView data) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  char* to = FSink.Reserve(data.size() * 2);
  for (const char byte : data) {
    *to++ = kDigits[quint8(byte) >> 4];
    *to++ = kDigits[quint8(byte) & 0xF];
  }
  FSink.Commit(data.size() * 2);
}

void TTextWriter::HexLines(QByteArrayView data) {
  ++FLevel;
  for (qsizetype at = 0; at < data.size(); at += kBytesPerLine) {
    NewLine();
    Indent();
    Hex(data.sliced(at, std::min(kBytesPerLine, data.size() - at)));
  }
  --FLevel;
}

void TTextWriter::Binary(QByteArrayView data) {
  BeginValue();
  FSink.Byte('{');
  if (data.size() >= kBytesPerLine)
    HexLines(data);
  else
    Hex(data);
  FSink.Byte('}');
  EndValue();
}

QStringView TTextWriter::Piece(QStringView rest) const {
  qsizetype size = std::min(kPieceLength, rest.size());
  // A character written raw cannot be cut in two.
  const bool cuts = size < rest.size() && rest[size - 1].isHighSurrogate() && rest[size].isLowSurrogate();
  if (cuts && FOptions.RawUtf8) ++size;
  return rest.left(size);
}

void TTextWriter::String(QStringView value) {
  BeginValue();
  if (value.size() <= kPieceLength) {
    StringPiece(value);
    return EndValue();
  }
  ++FLevel;
  for (QStringView rest = value; !rest.isEmpty();) {
    const QStringView piece = Piece(rest);
    rest = rest.sliced(piece.size());
    NewLine();
    Indent();
    StringPiece(piece);
    if (!rest.isEmpty()) FSink.Bytes(" +");
  }
  --FLevel;
  EndValue();
}

void TTextWriter::StringPiece(QStringView piece) {
  if (piece.isEmpty()) return FSink.Bytes("''");
  while (!piece.isEmpty()) {
    const qsizetype length = QuotedLength(piece);
    if (length > 0)
      Quoted(piece.left(length));
    else
      CharacterCode(piece.front());
    piece = piece.sliced(std::max<qsizetype>(length, 1));
  }
}

/// How many units from the front may stand between quotes.
qsizetype TTextWriter::QuotedLength(QStringView text) const {
  qsizetype at = 0;
  while (at < text.size() && IsPlain(text, at)) at += text[at].isHighSurrogate() ? 2 : 1;
  return at;
}

bool TTextWriter::IsPlain(QStringView text, qsizetype at) const {
  const char16_t c = text[at].unicode();
  if (c < 0x7F) return c >= ' ' && c != '\'';
  if (!FOptions.RawUtf8 || c < kFirstRaw || IsUnicodeLineBreak(c)) return false;
  if (!QChar::isSurrogate(c)) return true;
  return QChar::isHighSurrogate(c) && at + 1 < text.size() && text[at + 1].isLowSurrogate();
}

void TTextWriter::Quoted(QStringView text) {
  FSink.Byte('\'');
  Name(text);
  FSink.Byte('\'');
}

void TTextWriter::CharacterCode(QChar c) { FSink.Bytes('#' + QByteArray::number(c.unicode())); }

}  // namespace kt
