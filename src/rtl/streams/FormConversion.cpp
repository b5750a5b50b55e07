#include "kt/rtl/streams/FormConversion.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/streams/TextParser.h"

#include <QIODevice>

#include <algorithm>
#include <cctype>

namespace kt {
namespace {

constexpr quint8 kResourceMark = 0xFF;
constexpr qsizetype kProbeSize = 256;

void ParseText(const QByteArray& text, IFormSink& sink, const TFormOptions& options) {
  TTextParser parser(text, sink, {options.Encoding, options.NestingLimit});
  try {
    parser.ParseForm();
  } catch (const ENotStorable& error) {
    const TTextPosition place = parser.Place();
    throw EWriteError(OnLine(error.What, place.Line, place.Column));
  }
}

void ParseBinary(TBinaryReader& reader, IFormSink& sink, const TFormOptions& options) {
  reader.SetEncoding(options.Encoding);
  try {
    TBinaryFormParser(reader, sink, options.NestingLimit).ParseForm();
  } catch (const ENotStorable& error) {
    throw EWriteError(AtOffset(error.What, reader.Position(), error.Path));
  }
}

/// The form must lie within the size that the header states; what the resource holds behind it is skipped.
void ParseResource(TBinaryReader& reader, IFormSink& sink, const TFormOptions& options) {
  const qint64 size = reader.ReadResourceHeader();
  const qint64 end = reader.Position() + size;
  ParseBinary(reader, sink, options);
  PassResourceEnd(reader, end);
}

using TParse = void (*)(TBinaryReader& reader, IFormSink& sink, const TFormOptions& options);

void ParseWhole(TParse parse, const QByteArray& data, IFormSink& sink, const TFormOptions& options) {
  TBinaryReader reader(data);
  parse(reader, sink, options);
  CheckNothingBehind(data, reader.Position());
}

void ParseDevice(TParse parse, QIODevice& device, IFormSink& sink, const TFormOptions& options) {
  TBinaryReader reader(device);
  parse(reader, sink, options);
}

QString RootClassName(const QByteArray& binary) {
  TBinaryReader reader(binary);
  TFilerFlags flags;
  int childPos = 0;
  reader.ReadSignature();
  reader.ReadPrefix(flags, childPos);
  return reader.ReadShortString();
}

/// The text of the events that `feed` sends.
template <typename TFeed>
QByteArray MakeText(const TFormOptions& options, TFeed feed) {
  QByteArray text;
  TByteSink sink(text);
  TTextWriter writer(sink, options.Text);
  feed(writer);
  sink.Flush();
  return text;
}

QByteArray MakeBinary(const QByteArray& text, const TFormOptions& options) {
  QByteArray binary;
  TBinaryWriter writer(binary);
  TBinaryFormWriter sink(writer);
  ParseText(text, sink, options);
  writer.Flush();
  return binary;
}

QByteArray MakeResource(const QByteArray& text, const TFormOptions& options) {
  return WithResourceHeader(MakeBinary(text, options));
}

void WriteAll(QIODevice& device, const QByteArray& data) {
  TByteSink sink(device);
  sink.Bytes(data);
  sink.Flush();
}

bool BeginsWithObjectWord(QByteArrayView text) {
  const QByteArray start = text.first(std::min(text.size(), kProbeSize)).toByteArray().trimmed().toLower();
  for (const QByteArrayView word : {"object", "inherited", "inline"}) {
    const bool ends = start.size() <= word.size() || !std::isalnum(quint8(start[word.size()]));
    if (start.startsWith(word) && ends) return true;
  }
  return false;
}

bool BeginsWithMark(QByteArrayView data) {
  return data.startsWith("\xEF\xBB\xBF") || data.startsWith("\xFF\xFE") || data.startsWith("\xFE\xFF");
}

}  // namespace

TStreamOriginalFormat TestStreamFormat(QByteArrayView data) {
  if (data.startsWith(kFormSignature)) return sofBinary;
  if (BeginsWithMark(data) || BeginsWithObjectWord(data)) return sofText;
  return !data.isEmpty() && quint8(data.front()) == kResourceMark ? sofResource : sofUnknown;
}

TStreamOriginalFormat TestStreamFormat(QIODevice& device) { return TestStreamFormat(device.peek(kProbeSize)); }

void ObjectTextToBinary(const QByteArray& text, QByteArray& binary, const TFormOptions& options) {
  binary = MakeBinary(text, options);
}

void ObjectTextToBinary(QIODevice& text, QIODevice& binary, const TFormOptions& options) {
  WriteAll(binary, MakeBinary(ReadAll(text), options));
}

void ObjectTextToResource(const QByteArray& text, QByteArray& resource, const TFormOptions& options) {
  resource = MakeResource(text, options);
}

void ObjectTextToResource(QIODevice& text, QIODevice& resource, const TFormOptions& options) {
  WriteAll(resource, MakeResource(ReadAll(text), options));
}

void ObjectBinaryToText(const QByteArray& binary, QByteArray& text, const TFormOptions& options) {
  text = MakeText(options, [&](IFormSink& sink) { ParseWhole(ParseBinary, binary, sink, options); });
}

void ObjectBinaryToText(QIODevice& binary, QIODevice& text, const TFormOptions& options) {
  WriteAll(text, MakeText(options, [&](IFormSink& sink) { ParseDevice(ParseBinary, binary, sink, options); }));
}

void ObjectResourceToText(const QByteArray& resource, QByteArray& text, const TFormOptions& options) {
  text = MakeText(options, [&](IFormSink& sink) { ParseWhole(ParseResource, resource, sink, options); });
}

void ObjectResourceToText(QIODevice& resource, QIODevice& text, const TFormOptions& options) {
  WriteAll(text, MakeText(options, [&](IFormSink& sink) { ParseDevice(ParseResource, resource, sink, options); }));
}

QByteArray WithResourceHeader(const QByteArray& binary) {
  QByteArray resource;
  TBinaryWriter writer(resource);
  writer.WriteResourceHeader(RootClassName(binary), binary.size());
  writer.WriteRaw(binary);
  writer.Flush();
  return resource;
}

void PassResourceEnd(TBinaryReader& reader, qint64 end) {
  if (reader.Position() > end) reader.FailImage();
  reader.SkipBytes(end - reader.Position());
}

void CheckNothingBehind(const QByteArray& data, qint64 from) {
  const auto stray = std::find_if(data.begin() + from, data.end(), [](char byte) { return byte != 0; });
  if (stray != data.end()) throw EInvalidImage(AtOffset(QString(SDataAfterForm), stray - data.begin(), QString()));
}

void ReadForm(const QByteArray& form, IFormSink& sink, const TFormOptions& options) {
  switch (TestStreamFormat(form)) {
    case sofBinary:
      return ParseWhole(ParseBinary, form, sink, options);
    case sofResource:
      return ParseWhole(ParseResource, form, sink, options);
    default:
      return ParseText(form, sink, options);
  }
}

QByteArray FormToBinary(const QByteArray& form, const TFormOptions& options) {
  QByteArray binary;
  TBinaryWriter writer(binary);
  TBinaryFormWriter sink(writer);
  ReadForm(form, sink, options);
  writer.Flush();
  return binary;
}

}  // namespace kt
