#include "ktform/FormTextEdit.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "ktform/FormLayout.h"
#include "ktform/FormText.h"

#include <algorithm>
#include <optional>
#include <span>
#include <tuple>
#include <utility>
#include <vector>

namespace ktform {
namespace {

constexpr char kIndent[] = "  ";

/// A text with what stands where in it.
struct TLaidOutText {
  QByteArray Text;
  TFormLayout Layout;

  QByteArrayView View(qsizetype from, qsizetype to) const { return QByteArrayView(Text).sliced(from, to - from); }
  QByteArray Part(qsizetype from, qsizetype to) const { return View(from, to).toByteArray(); }
  QByteArrayView Value(const TPropertyPlace& property) const { return View(property.ValueFrom, property.To); }
};

TLaidOutText LaidOut(const QByteArray& utf8, TFormWords& words) { return {utf8, FindLayout(utf8, words)}; }

TLaidOutText LaidOutBinary(const QByteArray& binary, bool rawStrings, TFormWords& words) {
  kt::TFormOptions options;
  options.Text.RawUtf8 = rawStrings;
  QByteArray text;
  kt::ObjectBinaryToText(binary, text, options);
  text.squeeze();
  return LaidOut(text, words);
}

/// Finds the properties of one object by their keys.
class TPropertyFinder {
 public:
  explicit TPropertyFinder(std::span<const TPropertyPlace> properties) {
    FSorted.reserve(properties.size());
    for (const TPropertyPlace& property : properties) FSorted.push_back(&property);
    std::ranges::sort(FSorted, {}, KeyOf);
  }

  /// Null when the object has no such property.
  const TPropertyPlace* Find(const TPropertyKey& key) const {
    const auto found = std::ranges::lower_bound(FSorted, key, {}, KeyOf);
    return found != FSorted.end() && KeyOf(*found) == key ? *found : nullptr;
  }

 private:
  static const TPropertyKey& KeyOf(const TPropertyPlace* property) { return property->Key; }

  std::vector<const TPropertyPlace*> FSorted;
};

bool HasLineEnd(QByteArrayView text) { return text.contains('\n') || text.contains('\r'); }

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
      return std::tie(a.Name, a.Number, a.ClassName) == std::tie(b.Name, b.Number, b.ClassName);
    };
    return std::equal(original.begin(), original.end(), before.begin(), before.end(), isSame) &&
           before.size() == after.size();
  }

  void EditObject(std::size_t index) {
    const TObjectPlace& original = FOriginal.Layout.Objects[index];
    const TObjectPlace& before = FBefore.Layout.Objects[index];
    const TObjectPlace& after = FAfter.Layout.Objects[index];
    const QByteArrayView header = FAfter.View(after.From, after.To);
    if (header != FBefore.View(before.From, before.To)) Change(original.From, original.To, header.toByteArray());
    if (!HasSameProperties(index)) EditProperties(index);
  }

  bool HasSameProperties(std::size_t index) const {
    return std::ranges::equal(FBefore.Layout.PropertiesOf(index), FAfter.Layout.PropertiesOf(index),
                              [this](const TPropertyPlace& before, const TPropertyPlace& after) {
                                return before.Key == after.Key && IsSame(before, after);
                              });
  }

  void EditProperties(std::size_t index) {
    const TObjectPlace& object = FOriginal.Layout.Objects[index];
    const TPropertyFinder original(FOriginal.Layout.PropertiesOf(index));
    const TPropertyFinder before(FBefore.Layout.PropertiesOf(index));
    const std::span<const TPropertyPlace> properties = FAfter.Layout.PropertiesOf(index);
    const TPropertyFinder after(properties);
    for (const TPropertyPlace& property : FBefore.Layout.PropertiesOf(index))
      if (!after.Find(property.Key)) Remove(original.Find(property.Key));
    for (std::size_t i = 0; i < properties.size(); ++i) {
      const TPropertyPlace& property = properties[i];
      const TPropertyPlace* old = before.Find(property.Key);
      if (old && IsSame(*old, property)) continue;
      if (const TPropertyPlace* place = original.Find(property.Key))
        Replace(*place, property);
      else
        Insert(Anchor(object, FindAnchor(original, properties.first(i))), property);
    }
  }

  /// The items of a collection are compared one by one, as objects are.
  bool IsSame(const TPropertyPlace& before, const TPropertyPlace& after) const {
    return (before.IsCollection && after.IsCollection) || FBefore.Value(before) == FAfter.Value(after);
  }

  /// A value that begins on a line of its own brings its line end along.
  void Replace(const TPropertyPlace& original, const TPropertyPlace& after) {
    const bool hasOwnLine = HasLineEnd(FOriginal.View(original.AfterSign, original.ValueFrom)) ||
                            HasLineEnd(FAfter.View(after.AfterSign, after.ValueFrom));
    if (hasOwnLine)
      Change(original.AfterSign, original.To, InLines(FAfter.Part(after.AfterSign, after.To)));
    else
      Change(original.ValueFrom, original.To, InLines(FAfter.Part(after.ValueFrom, after.To)));
  }

  /// What a property that the original lacks comes behind: the nearest one of those before it, else the header.
  static const TPropertyPlace* FindAnchor(const TPropertyFinder& original, std::span<const TPropertyPlace> before) {
    for (auto property = before.rbegin(); property != before.rend(); ++property)
      if (const TPropertyPlace* anchor = original.Find(property->Key)) return anchor;
    return nullptr;
  }

  struct TAnchor {
    qsizetype At;
    QByteArray Indent;
  };

  TAnchor Anchor(const TObjectPlace& object, const TPropertyPlace* anchor) const {
    const QByteArray indent = IndentBefore(object.From) + kIndent;
    if (!anchor) return {object.To, indent};
    const bool hasOwnLine = LineStart(anchor->From) > object.From;
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
  TFormWords words;
  const TLaidOutText old = LaidOut(text.Utf8, words);
  const auto edited = [&](bool rawStrings) {
    const TLaidOutText from = LaidOutBinary(before, rawStrings, words);
    const TLaidOutText to = LaidOutBinary(after, rawStrings, words);
    return EncodeText(TFormTextEdit(old, from, to, text.LineEnd).Run(), text);
  };
  std::optional<QByteArray> file = edited(WritesRawStrings(text, old.Layout));
  if (!file) file = edited(false);
  if (!file) throw kt::EWriteError(QStringLiteral("the encoding of the file lacks a character of a name"));
  return *file;
}

}  // namespace ktform
