#include "kt/rtl/streams/FormLayout.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/TextLexer.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kt {
namespace {

bool HasBeyondAscii(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x80; });
}

bool HasBeyondAscii(QByteArrayView bytes) {
  return std::any_of(bytes.begin(), bytes.end(), [](char c) { return quint8(c) >= 0x80; });
}

/// How often each path has come in an object that has not ended.
using TPathCounts = QHash<quint32, quint32>;

/// Goes once over the text. Collections nest no deeper than the parser allowed.
class TLayoutScan {
 public:
  TLayoutScan(const QByteArray& utf8, TFormWords& words)
      : FLexer(utf8), FBase(utf8.constData()), FWords(words), FItemWord(words.NumberOf(u"item")) {}

  TFormLayout Run() {
    FLexer.Next();
    while (FLexer.Kind() != ttEnd) Step();
    GroupProperties();
    return std::move(FLayout);
  }

 private:
  quint32 From() const { return quint32(FLexer.Raw().data() - FBase); }
  quint32 To() const { return quint32(From() + FLexer.Raw().size()); }

  /// Takes the present token and answers where it ended.
  quint32 Take() {
    const quint32 end = To();
    FLexer.Next();
    return end;
  }

  void Step() {
    if (FLexer.IsWord("end"))
      EndObject();
    else if (FLexer.IsWord("object") || FLexer.IsWord("inherited") || FLexer.IsWord("inline"))
      Object();
    else
      Property(FObject, FCounts);  // An object's properties come before its children, but may follow items.
  }

  void Object() {
    TObjectPlace object{};
    object.From = From();
    object.To = Take();
    Names(object);
    if (FLexer.IsSymbol('[')) object.To = Index();
    FCounts.clear();
    FObject = Add(object);
    FOpen.push_back(FObject);
  }

  void EndObject() {
    const quint32 end = Take();
    if (FOpen.empty()) return;
    Close(FOpen.back(), end);
    FOpen.pop_back();
  }

  quint32 Add(const TObjectPlace& object) {
    FLayout.Objects.push_back(object);
    return quint32(FLayout.Objects.size() - 1);
  }

  void Close(quint32 object, quint32 end) {
    FLayout.Objects[object].End = end;
    FLayout.Objects[object].Next = quint32(FLayout.Objects.size());
  }

  void Names(TObjectPlace& object) {
    object.Name = object.ClassName = FWords.NumberOf({});
    if (!FLexer.IsSymbol(':')) {
      object.ClassName = FWords.NumberOf(FLexer.Text());
      object.To = Take();
    }
    if (!FLexer.IsSymbol(':')) return;
    std::swap(object.Name, object.ClassName);
    object.To = Take();
    if (FLexer.IsOnNewLine() || FLexer.Kind() != ttIdentifier) return;
    object.ClassName = FWords.NumberOf(FLexer.Text());
    object.To = Take();
  }

  /// A number in brackets.
  quint32 Index() {
    Take();
    Take();
    return Take();
  }

  void Property(quint32 object, TPathCounts& counts) {
    TPropertyPlace property{};
    property.Object = object;
    property.From = From();
    property.Key.Path = Path();
    property.Key.Number = counts[property.Key.Path]++;
    property.AfterSign = Take();
    property.ValueFrom = From();
    const bool isCollection = FLexer.IsSymbol('<');
    property.FirstItem = isCollection ? quint32(FLayout.Objects.size()) : kNoPlace;
    property.To = isCollection ? Collection() : Value();
    FLayout.Properties.push_back(property);
  }

  quint32 Path() {
    FPath.resize(0);
    while (!FLexer.IsSymbol('=')) {
      FPath += FLexer.Kind() == ttIdentifier ? FLexer.Text() : QStringView(u".");
      Take();
    }
    return FWords.NumberOf(FPath);
  }

  quint32 Collection() {
    Take();
    while (!FLexer.IsSymbol('>')) Item();
    return Take();
  }

  void Item() {
    TObjectPlace item{kNoPlace, FItemWord, From(), 0, 0, 0, 0};
    item.To = Take();
    if (FLexer.IsSymbol('[')) item.To = Index();
    const quint32 object = Add(item);
    TPathCounts counts;
    while (!FLexer.IsWord("end")) Property(object, counts);
    Close(object, Take());
  }

  /// So far they came as their values ended.
  void GroupProperties() {
    std::vector<TPropertyPlace>& all = FLayout.Properties;
    std::sort(all.begin(), all.end(), [](const TPropertyPlace& a, const TPropertyPlace& b) {
      return std::pair(a.Object, a.From) < std::pair(b.Object, b.From);
    });
    quint32 next = 0;
    for (std::size_t i = 0; i < FLayout.Objects.size(); ++i) {
      FLayout.Objects[i].FirstProperty = next;
      while (next < all.size() && all[next].Object == i) ++next;
    }
  }

  /// One value with all that its brackets hold.
  quint32 Value() {
    int depth = 0;
    quint32 end = 0;
    do {
      if (FLexer.IsSymbol('(') || FLexer.IsSymbol('[')) ++depth;
      if (FLexer.IsSymbol(')') || FLexer.IsSymbol(']')) --depth;
      if (FLexer.IsSymbol('{')) FLexer.ReadHex();
      if (FLexer.Kind() == ttString) NoteString();
      end = Take();
    } while (depth > 0);
    return end;
  }

  void NoteString() {
    if (HasBeyondAscii(FLexer.Raw()))
      FLayout.HasRawStrings = true;
    else if (HasBeyondAscii(FLexer.Text()))
      FLayout.HasCodedStrings = true;
  }

  TTextLexer FLexer;
  const char* FBase;
  TFormWords& FWords;
  const quint32 FItemWord;
  TFormLayout FLayout;
  QString FPath;
  std::vector<quint32> FOpen;  ///< Objects, the innermost last.
  quint32 FObject = 0;         ///< Whose properties stand outside of collections.
  TPathCounts FCounts;         ///< Of that object.
};

QChar AsciiLower(QChar c) { return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + (u'a' - u'A')) : c; }

}  // namespace

quint32 TFormWords::NumberOf(QStringView word) {
  QString lower = word.toString();
  for (QChar& c : lower) c = AsciiLower(c);
  const auto known = FNumbers.constFind(lower);
  if (known != FNumbers.cend()) return *known;
  const auto number = quint32(FNumbers.size());
  FNumbers.insert(lower, number);
  return number;
}

std::span<const TPropertyPlace> TFormLayout::PropertiesOf(std::size_t object) const {
  const std::size_t first = Objects[object].FirstProperty;
  const std::size_t end = object + 1 < Objects.size() ? Objects[object + 1].FirstProperty : Properties.size();
  return std::span(Properties).subspan(first, end - first);
}

std::vector<quint32> TFormLayout::ChildrenOf(std::size_t object) const {
  std::vector<quint32> children;
  for (quint32 at = quint32(object) + 1; at < Objects[object].Next; at = Objects[at].Next)
    if (!Objects[at].IsItem()) children.push_back(at);
  return children;
}

std::vector<quint32> TFormLayout::ItemsOf(const TPropertyPlace& collection) const {
  std::vector<quint32> items;
  quint32 at = collection.FirstItem;
  for (; at < Objects.size() && Objects[at].From < collection.To; at = Objects[at].Next) items.push_back(at);
  return items;
}

TFormLayout FindLayout(const QByteArray& utf8, TFormWords& words) {
  if (utf8.size() > qsizetype(std::numeric_limits<quint32>::max()))
    throw EReadError(QStringLiteral("the text of the form is too long"));
  return TLayoutScan(utf8, words).Run();
}

}  // namespace kt
