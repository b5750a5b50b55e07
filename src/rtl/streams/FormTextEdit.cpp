#include "kt/rtl/streams/FormTextEdit.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormHeaderText.h"
#include "kt/rtl/streams/FormText.h"
#include "kt/rtl/streams/FormTextCheck.h"
#include "kt/rtl/streams/FormTextMerge.h"
#include "kt/rtl/streams/TextParser.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

namespace kt {
namespace {

bool IsAsciiText(const QByteArray& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return quint8(c) < 0x80; });
}

/// Where the strings do not tell, a file that is Unicode beyond doubt takes characters as they are.
bool WritesRawStrings(const TFormText& text, const TFormLayout& layout) {
  if (layout.HasRawStrings || layout.HasCodedStrings) return layout.HasRawStrings;
  return text.Encoding != teUtf8 || !IsAsciiText(text.Utf8);
}

/// A form written without its ancestor does not tell any more that it has one: `keyword` does.
TLaidOutText Written(const QByteArray& binary, bool rawStrings, QByteArrayView keyword, TFormWords& words) {
  TLaidOutText text = LaidOutBinary(binary, rawStrings, words);
  const QByteArrayView own = TFormHeaderText(text.Header(0)).Keyword;
  if (own.compare(keyword, Qt::CaseInsensitive) == 0) return text;
  return LaidOut(keyword.toByteArray() + text.Text.mid(own.size()), words);
}

/// What the texts of a form say after their changes.
QByteArray Edited(const TFormText& manner, const TLaidOutText& original, const TLaidOutText& before,
                  const TLaidOutText& after, TFormWords& words) {
  const auto anew = [&] { return QByteArray(after.Text).replace('\n', manner.LineEnd); };
  TFormVersions versions{original, before, after,
                         TSequencePairs(original.Layout.Objects.size(), before.Layout.Objects.size()),
                         TSequencePairs(0, 0)};
  if (!PairSameForm(original, before, versions.OriginalPairs)) return anew();
  versions.ChangePairs = PairVersions(before, after);
  QByteArray merged = MergedText(versions, manner.LineEnd);
  return IsMerged(merged, versions, words) ? merged : anew();
}

/// A binary form with the changes, and else as it was.
QByteArray EditBinaryForm(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                          TEightBitEncoding encoding) {
  TFormOptions options;
  options.Encoding = encoding;
  QByteArray text;
  ObjectBinaryToText(original, text, options);
  QByteArray binary;
  ObjectTextToBinary(EditFormText(text, before, after), binary);
  return binary;
}

}  // namespace

QByteArray EditFormText(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                        TEightBitEncoding encoding) {
  if (before == after) return original;
  // Where everything stands is looked for in what is known to be a form.
  TIdleFormSink nowhere;
  TTextParser(original, nowhere, {encoding}).ParseForm();
  const TFormText text = DecodeText(original, encoding);
  TFormWords words;
  const TLaidOutText old = LaidOut(text.Utf8, words);
  const QByteArrayView keyword = TFormHeaderText(old.Header(0)).Keyword;
  const auto edited = [&](bool rawStrings) {
    const TLaidOutText from = Written(before, rawStrings, keyword, words);
    const TLaidOutText to = Written(after, rawStrings, keyword, words);
    return EncodeText(Edited(text, old, from, to, words), text);
  };
  std::optional<QByteArray> file = edited(WritesRawStrings(text, old.Layout));
  if (!file) file = edited(false);
  if (!file) throw EWriteError(QStringLiteral("the encoding of the file lacks a character of a name"));
  return *file;
}

QByteArray EditFormFile(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                        TEightBitEncoding encoding) {
  const TStreamOriginalFormat format = TestStreamFormat(original);
  if (format != sofBinary && format != sofResource) return EditFormText(original, before, after, encoding);
  if (before == after) return original;
  TBinaryReader reader(original);
  reader.SetEncoding(encoding);
  const bool isResource = reader.IsAtResourceHeader();
  const qint64 oldSize = isResource ? reader.ReadResourceHeader() : 0;
  QByteArray result = original.first(reader.Position());
  TIdleFormSink nowhere;
  TBinaryFormParser(reader, nowhere).ParseForm();
  const QByteArray oldForm = original.sliced(result.size(), reader.Position() - result.size());
  const QByteArray form = EditBinaryForm(oldForm, before, after, encoding);
  if (isResource) {
    const auto size = static_cast<quint32>(oldSize - oldForm.size() + form.size());
    qToLittleEndian(size, result.data() + result.size() - sizeof(size));
  }
  return result + form + original.sliced(reader.Position());
}

}  // namespace kt
