#include "ktform/FormTextEdit.h"

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "ktform/FormLayout.h"
#include "ktform/FormText.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace ktform {
namespace {

constexpr char kIndent[] = "  ";

/// A text with what stands where in it.
struct TLaidOutText {
  QByteArray Text;
  TFormLayout Layout;

  QByteArray Part(qsizetype from, qsizetype to) const { return Text.mid(from, to - from); }
};

TLaidOutText LaidOut(const QByteArray& utf8) { return {utf8, FindLayout(utf8)}; }

TLaidOutText LaidOutBinary(const QByteArray& binary, bool rawStrings) {
  kt::TFormOptions options;
  options.Text.RawUtf8 = rawStrings;
  QByteArray text;
  kt::ObjectBinaryToText(binary, text, options);
  return LaidOut(text);
}

bool HasLineEnd(const QByteArray& text) { return text.contains('\n') || text.contains('\r'); }

/// Finds and makes the changes of one text.
class TFormTextEdit {
 public:
  TFormTextEdit(const TLaidOutText& original, const TLaidOutText& before, const TLaidOutText& after,
                const QByteArray& lineEnd)
      : FOriginal(original), FBefore(before), FAfter(after), FLineEnd(lineEnd) {}

  QByteArray Run() {
    if (!HasSameObjects()) return InLines(FAfter.Text);
    for (std::size_t i = 0; i < FOriginal.Layout.Objects.size(); ++i) EditObject(i);
    return Changed();
  }

 private:
  /// The bytes from `From` to `To` become `Text`.
  struct TChange {
    qsizetype From;
    qsizetype To;
    QByteArray Text;
  };

  /// The same objects in the same order; a name may have been changed.
  bool HasSameObjects() const {
    const auto& original = FOriginal.Layout.Objects;
    const auto& before = FBefore.Layout.Objects;
    const auto& after = FAfter.Layout.Objects;
    const auto isSame = [](const TObjectPlace& a, const TObjectPlace& b) {
      return kt::SameText(a.Name, b.Name) && kt::SameText(a.ClassName, b.ClassName);
    };
    return std::equal(original.begin(), original.end(), before.begin(), before.end(), isSame) &&
           before.size() == after.size();
  }

  void EditObject(std::size_t index) {
    const TObjectPlace& original = FOriginal.Layout.Objects[index];
    const TObjectPlace& before = FBefore.Layout.Objects[index];
    const TObjectPlace& after = FAfter.Layout.Objects[index];
    const QByteArray header = FAfter.Part(after.From, after.To);
    if (header != FBefore.Part(before.From, before.To)) Change(original.From, original.To, header);
    for (const TPropertyPlace& property : before.Properties)
      if (!after.FindProperty(property.Key)) Remove(original.FindProperty(property.Key));
    for (std::size_t i = 0; i < after.Properties.size(); ++i) EditProperty(index, i);
  }

  void EditProperty(std::size_t object, std::size_t index) {
    const TObjectPlace& after = FAfter.Layout.Objects[object];
    const TPropertyPlace& property = after.Properties[index];
    const TPropertyPlace* before = FBefore.Layout.Objects[object].FindProperty(property.Key);
    if (before && IsSame(*before, property)) return;
    const TPropertyPlace* original = FOriginal.Layout.Objects[object].FindProperty(property.Key);
    if (original)
      Replace(*original, property);
    else
      Insert(Anchor(FOriginal.Layout.Objects[object], after, index), property);
  }

  /// The items of a collection are compared one by one, as objects are.
  bool IsSame(const TPropertyPlace& before, const TPropertyPlace& after) const {
    return (before.IsCollection && after.IsCollection) ||
           FBefore.Part(before.ValueFrom, before.To) == FAfter.Part(after.ValueFrom, after.To);
  }

  /// A value that begins on a line of its own brings its line end along.
  void Replace(const TPropertyPlace& original, const TPropertyPlace& after) {
    const bool hasOwnLine = HasLineEnd(FOriginal.Part(original.AfterSign, original.ValueFrom)) ||
                            HasLineEnd(FAfter.Part(after.AfterSign, after.ValueFrom));
    if (hasOwnLine)
      Change(original.AfterSign, original.To, InLines(FAfter.Part(after.AfterSign, after.To)));
    else
      Change(original.ValueFrom, original.To, InLines(FAfter.Part(after.ValueFrom, after.To)));
  }

  /// What a property of `after` that the original lacks comes behind: the nearest one before it, else the header.
  static const TPropertyPlace* FindAnchor(const TObjectPlace& original, const TObjectPlace& after, std::size_t index) {
    while (index-- > 0) {
      const TPropertyPlace* anchor = original.FindProperty(after.Properties[index].Key);
      if (anchor) return anchor;
    }
    return nullptr;
  }

  struct TAnchor {
    qsizetype At;
    QByteArray Indent;
  };

  TAnchor Anchor(const TObjectPlace& original, const TObjectPlace& after, std::size_t index) const {
    const TPropertyPlace* anchor = FindAnchor(original, after, index);
    const QByteArray indent = IndentBefore(original.From) + kIndent;
    if (!anchor) return {original.To, indent};
    const bool hasOwnLine = LineStart(anchor->From) > original.From;
    return {anchor->To, hasOwnLine ? IndentBefore(anchor->From) : indent};
  }

  /// The blanks that begin the line of `at`.
  QByteArray IndentBefore(qsizetype at) const {
    const qsizetype start = LineStart(at);
    qsizetype end = start;
    while (FOriginal.Text[end] == ' ' || FOriginal.Text[end] == '\t') ++end;
    return FOriginal.Part(start, end);
  }

  qsizetype LineStart(qsizetype at) const {
    while (at > 0 && FOriginal.Text[at - 1] != '\n' && FOriginal.Text[at - 1] != '\r') --at;
    return at;
  }

  void Insert(const TAnchor& anchor, const TPropertyPlace& after) {
    Change(anchor.At, anchor.At, FLineEnd + anchor.Indent + InLines(FAfter.Part(after.From, after.To)));
  }

  /// Takes the blanks and the line end before the property too.
  void Remove(const TPropertyPlace* original) {
    if (!original) return;
    qsizetype from = original->From;
    while (QByteArrayView(" \t").contains(FOriginal.Text[from - 1])) --from;
    if (FOriginal.Text[from - 1] == '\n') --from;
    if (FOriginal.Text[from - 1] == '\r') --from;
    Change(from, original->To, QByteArray());
  }

  QByteArray InLines(QByteArray text) const { return text.replace('\n', FLineEnd); }

  void Change(qsizetype from, qsizetype to, const QByteArray& text) { FChanges.push_back({from, to, text}); }

  QByteArray Changed() {
    // What is inserted at one place keeps its order, and comes before what is removed from there.
    std::stable_sort(FChanges.begin(), FChanges.end(), [](const TChange& a, const TChange& b) {
      return std::pair(a.From, a.To) < std::pair(b.From, b.To);
    });
    QByteArray text;
    qsizetype at = 0;
    for (const TChange& change : FChanges) {
      text += FOriginal.Part(at, change.From) + change.Text;
      at = change.To;
    }
    return text + FOriginal.Text.mid(at);
  }

  const TLaidOutText& FOriginal;
  const TLaidOutText& FBefore;
  const TLaidOutText& FAfter;
  QByteArray FLineEnd;
  std::vector<TChange> FChanges;
};

bool IsAscii(const QByteArray& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return quint8(c) < 0x80; });
}

/// Where the strings do not tell, a file that is Unicode beyond doubt takes characters as they are.
bool WritesRawStrings(const TFormText& text, const TFormLayout& layout) {
  if (layout.HasRawStrings || layout.HasCodedStrings) return layout.HasRawStrings;
  return text.Encoding != teUtf8 || !IsAscii(text.Utf8);
}

}  // namespace

QByteArray EditFormText(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                        kt::TEightBitEncoding encoding) {
  const TFormText text = DecodeText(original, encoding);
  const TLaidOutText old = LaidOut(text.Utf8);
  const auto edited = [&](bool rawStrings) {
    const TLaidOutText from = LaidOutBinary(before, rawStrings);
    const TLaidOutText to = LaidOutBinary(after, rawStrings);
    return EncodeText(TFormTextEdit(old, from, to, text.LineEnd).Run(), text);
  };
  std::optional<QByteArray> file = edited(WritesRawStrings(text, old.Layout));
  if (!file) file = edited(false);
  if (!file) throw kt::EWriteError(QStringLiteral("the encoding of the file lacks a character of a name"));
  return *file;
}

}  // namespace ktform
