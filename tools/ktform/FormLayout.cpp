#include "ktform/FormLayout.h"

#include "kt/rtl/streams/TextLexer.h"

#include <algorithm>

namespace ktform {
namespace {

bool HasBeyondAscii(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x80; });
}

bool HasBeyondAscii(QByteArrayView bytes) {
  return std::any_of(bytes.begin(), bytes.end(), [](char c) { return quint8(c) >= 0x80; });
}

/// Goes once over the text. Collections nest no deeper than the parser allowed.
class TLayoutScan {
 public:
  explicit TLayoutScan(const QByteArray& utf8) : FLexer(utf8), FBase(utf8.constData()) {}

  TFormLayout Run() {
    FLexer.Next();
    while (FLexer.Kind() != kt::ttEnd) Step();
    return std::move(FLayout);
  }

 private:
  qsizetype From() const { return FLexer.Raw().data() - FBase; }
  qsizetype To() const { return From() + FLexer.Raw().size(); }

  /// Takes the present token and answers where it ended.
  qsizetype Take() {
    const qsizetype end = To();
    FLexer.Next();
    return end;
  }

  void Step() {
    if (FLexer.IsWord("end"))
      Take();
    else if (FLexer.IsWord("object") || FLexer.IsWord("inherited") || FLexer.IsWord("inline"))
      Object();
    else
      Property(FObject);  // An object's properties come before its children, but may follow items.
  }

  void Object() {
    TObjectPlace object;
    object.From = From();
    object.To = Take();
    Names(object);
    if (FLexer.IsSymbol('[')) object.To = Index();
    FObject = FLayout.Objects.size();
    FLayout.Objects.push_back(std::move(object));
  }

  void Names(TObjectPlace& object) {
    if (!FLexer.IsSymbol(':')) {
      object.ClassName = FLexer.Text().toString();
      object.To = Take();
    }
    if (!FLexer.IsSymbol(':')) return;
    object.Name.swap(object.ClassName);
    object.To = Take();
    if (FLexer.IsOnNewLine() || FLexer.Kind() != kt::ttIdentifier) return;
    object.ClassName = FLexer.Text().toString();
    object.To = Take();
  }

  /// A number in brackets.
  qsizetype Index() {
    Take();
    Take();
    return Take();
  }

  void Property(std::size_t owner) {
    TPropertyPlace property;
    property.From = From();
    QString path;
    while (!FLexer.IsSymbol('=')) {
      path += FLexer.Kind() == kt::ttIdentifier ? FLexer.Text() : QStringView(u".");
      Take();
    }
    property.Key = KeyOf(FLayout.Objects[owner], path.toLower());
    property.AfterSign = Take();
    property.ValueFrom = From();
    property.IsCollection = FLexer.IsSymbol('<');
    property.To = property.IsCollection ? Collection(property.Key) : Value();
    Add(FLayout.Objects[owner], std::move(property));
  }

  static QString KeyOf(TObjectPlace& object, const QString& path) {
    return path + u'#' + QString::number(object.CountOfPath[path]++);
  }

  static void Add(TObjectPlace& object, TPropertyPlace property) {
    object.IndexOfKey.insert(property.Key, qsizetype(object.Properties.size()));
    object.Properties.push_back(std::move(property));
  }

  qsizetype Collection(const QString& key) {
    Take();
    while (!FLexer.IsSymbol('>')) Item(key);
    return Take();
  }

  void Item(const QString& collection) {
    const std::size_t index = FLayout.Objects.size();
    TObjectPlace item;
    item.Name = collection;
    item.ClassName = QStringLiteral("item");
    item.From = From();
    item.To = Take();
    if (FLexer.IsSymbol('[')) item.To = Index();
    FLayout.Objects.push_back(std::move(item));
    while (!FLexer.IsWord("end")) Property(index);
    Take();
  }

  /// One value with all that its brackets hold.
  qsizetype Value() {
    int depth = 0;
    qsizetype end = 0;
    do {
      if (FLexer.IsSymbol('(') || FLexer.IsSymbol('[')) ++depth;
      if (FLexer.IsSymbol(')') || FLexer.IsSymbol(']')) --depth;
      if (FLexer.IsSymbol('{')) FLexer.ReadHex();
      if (FLexer.Kind() == kt::ttString) NoteString();
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

  kt::TTextLexer FLexer;
  const char* FBase;
  TFormLayout FLayout;
  std::size_t FObject = 0;  ///< Whose properties stand outside of collections.
};

}  // namespace

const TPropertyPlace* TObjectPlace::FindProperty(const QString& key) const {
  const auto found = IndexOfKey.constFind(key);
  return found == IndexOfKey.cend() ? nullptr : &Properties[std::size_t(*found)];
}

TFormLayout FindLayout(const QByteArray& utf8) { return TLayoutScan(utf8).Run(); }

}  // namespace ktform
