#include "kt/rtl/streams/FormTextMerge.h"

#include "kt/rtl/streams/FormHeaderText.h"
#include "kt/rtl/streams/PropertyFinder.h"

#include <algorithm>
#include <span>
#include <utility>

namespace kt {
namespace {

constexpr char kLevelIndent[] = "  ";

using TPlaces = std::vector<quint32>;

bool HasLineEnd(QByteArrayView text) { return text.contains('\n') || text.contains('\r'); }

/// Goes through the original from one change to the next and copies what is between them.
class TMerge {
 public:
  TMerge(const TFormVersions& versions, const QByteArray& lineEnd)
      : FVersions(versions),
        FOriginal(versions.Original),
        FBefore(versions.Before),
        FAfter(versions.After),
        FLineEnd(lineEnd),
        FStays(versions.After.Layout.Objects.size()) {}

  QByteArray Run() {
    FText.reserve(FOriginal.Text.size() + std::max<qsizetype>(0, FAfter.Text.size() - FBefore.Text.size()));
    Object(0);
    CopyTo(FOriginal.Text.size());
    return std::move(FText);
  }

 private:
  /// A property of the new version that comes behind one of the original, or behind the header.
  struct TNewProperty {
    const TPropertyPlace* Anchor;
    const TPropertyPlace* Property;
  };

  /// Objects of one parent, or items of one collection.
  struct TSiblings {
    TPlaces Originals;
    TPlaces Befores;
    TPlaces Afters;
    /// Where a first one comes in the original, and how it is indented.
    qsizetype Start;
    QByteArray Indent;
  };

  struct TStaying {
    quint32 Original;
    quint32 Place;  ///< Among the siblings of the new version.
  };

  void CopyTo(qsizetype to) {
    FText += FOriginal.View(FAt, to);
    FAt = to;
  }

  const TObjectPlace& OriginalPlace(quint32 object) const { return FOriginal.Layout.Objects[object]; }

  /// The object with all that is in it. Comes to its end.
  void Object(quint32 after) {
    const quint32 before = FVersions.BeforeOf(after);
    const quint32 original = FVersions.OriginalOf(after);
    CopyTo(OriginalPlace(original).From);
    if (FBefore.Whole(before) != FAfter.Whole(after)) {
      FText += EditHeader(FOriginal.Header(original), FBefore.Header(before), FAfter.Header(after));
      FAt = OriginalPlace(original).To;
      Properties(original, before, after);
      if (!OriginalPlace(original).IsItem()) Children(original, before, after);
    }
    CopyTo(OriginalPlace(original).End);
  }

  void Properties(quint32 original, quint32 before, quint32 after) {
    const TPropertyFinder befores(FBefore.Layout.PropertiesOf(before));
    const TPropertyFinder afters(FAfter.Layout.PropertiesOf(after));
    std::vector<TNewProperty> news = NewProperties(original, befores, after);
    auto next = news.begin();
    const auto insert = [&](const TPropertyPlace* anchor) {
      for (; next != news.end() && next->Anchor == anchor; ++next) Insert(original, *next);
    };
    insert(nullptr);
    for (const TPropertyPlace& property : FOriginal.Layout.PropertiesOf(original)) {
      Property(property, befores.Find(property.Key), afters.Find(property.Key));
      insert(&property);
    }
  }

  /// Those that the original lacks, in the order in which it gets them. Each comes behind the nearest one of those
  /// before it that the original has.
  std::vector<TNewProperty> NewProperties(quint32 original, const TPropertyFinder& befores, quint32 after) const {
    const TPropertyFinder originals(FOriginal.Layout.PropertiesOf(original));
    std::vector<TNewProperty> news;
    const TPropertyPlace* anchor = nullptr;
    for (const TPropertyPlace& property : FAfter.Layout.PropertiesOf(after)) {
      const TPropertyPlace* old = befores.Find(property.Key);
      if (const TPropertyPlace* place = originals.Find(property.Key))
        anchor = place;
      else if (!old || !IsSame(*old, property))
        news.push_back({anchor, &property});
    }
    std::ranges::stable_sort(news, {}, [](const TNewProperty& added) { return added.Anchor ? added.Anchor->From : 0; });
    return news;
  }

  bool IsSame(const TPropertyPlace& before, const TPropertyPlace& after) const {
    return HasSameTokens(FBefore.Value(before), FAfter.Value(after));
  }

  void Property(const TPropertyPlace& original, const TPropertyPlace* before, const TPropertyPlace* after) {
    if (before && !after) return Remove(original.From, original.To);
    if (before && after && FVersions.HasKnownItems(original, *before, *after))
      Items(original, *before, *after);
    else if (after && (!before || !IsSame(*before, *after)))
      Replace(original, *after);
    CopyTo(original.To);
  }

  /// Leaves out a part with the blanks and the line end before it, and the blanks behind it on its last line.
  void Remove(qsizetype from, qsizetype to) {
    const qsizetype start = FOriginal.WithLineEnd(from);
    const bool hasOwnLine = HasLineEnd(FOriginal.View(start, from));
    CopyTo(std::max(FAt, start));
    FAt = hasOwnLine ? FOriginal.WithBlanks(to) : to;
  }

  /// A value that begins on a line of its own brings its line end along.
  void Replace(const TPropertyPlace& original, const TPropertyPlace& after) {
    const bool hasOwnLine = HasLineEnd(FOriginal.View(original.AfterSign, original.ValueFrom)) ||
                            HasLineEnd(FAfter.View(after.AfterSign, after.ValueFrom));
    CopyTo(hasOwnLine ? original.AfterSign : original.ValueFrom);
    FText += Foreign(hasOwnLine ? after.AfterSign : after.ValueFrom, after.To, FOriginal.IndentBefore(original.From));
    FAt = original.To;
  }

  void Insert(quint32 object, const TNewProperty& added) {
    const TPropertyPlace* anchor = added.Anchor;
    const bool hasOwnLine = anchor && IsOnLaterLine(anchor->From, OriginalPlace(object).From);
    const QByteArray indent = hasOwnLine ? FOriginal.IndentBefore(anchor->From)
                                         : FOriginal.IndentBefore(OriginalPlace(object).From) + kLevelIndent;
    CopyTo(FOriginal.WithBlanks(FAt));
    FText += FLineEnd + indent + Foreign(added.Property->From, added.Property->To, indent);
  }

  bool IsOnLaterLine(qsizetype at, qsizetype from) const { return FOriginal.LineStart(at) > from; }

  /// A part of the new version, as it looks in lines that are indented in this way.
  QByteArray Foreign(qsizetype from, qsizetype to, const QByteArray& indent) const {
    QByteArray text = Reindented(FAfter.Part(from, to), FAfter.IndentBefore(from), indent);
    return text.replace('\n', FLineEnd);
  }

  void Items(const TPropertyPlace& original, const TPropertyPlace& before, const TPropertyPlace& after) {
    if (IsSame(before, after)) return;
    const QByteArray indent = FOriginal.IndentBefore(original.From) + kLevelIndent;
    Siblings({FOriginal.Layout.ItemsOf(original), FBefore.Layout.ItemsOf(before), FAfter.Layout.ItemsOf(after),
              original.ValueFrom + 1, indent});
  }

  void Children(quint32 original, quint32 before, quint32 after) {
    Siblings({FOriginal.Layout.ChildrenOf(original), FBefore.Layout.ChildrenOf(before), FAfter.Layout.ChildrenOf(after),
              FOriginal.BodyEnd(original), IndentOfBody(original)});
  }

  /// How the first thing in an object is indented that has a line of its own.
  QByteArray IndentOfBody(quint32 original) const {
    const TObjectPlace& object = OriginalPlace(original);
    const auto properties = FOriginal.Layout.PropertiesOf(original);
    if (!properties.empty() && IsOnLaterLine(properties.front().From, object.From))
      return FOriginal.IndentBefore(properties.front().From);
    return FOriginal.IndentBefore(object.From) + kLevelIndent;
  }

  void Siblings(const TSiblings& siblings) {
    const std::vector<TStaying> staying = Staying(siblings);
    CopyTo(std::max(FAt, siblings.Start));
    QByteArray indent = siblings.Originals.empty() ? siblings.Indent : IndentOf(siblings.Originals.front(), siblings);
    InsertFrom(0, siblings, indent);
    auto next = staying.begin();
    for (const quint32 original : siblings.Originals) {
      if (next == staying.end() || next->Original != original) {
        Remove(OriginalPlace(original).From, OriginalPlace(original).End);
        continue;
      }
      Object(siblings.Afters[next->Place]);
      indent = IndentOf(original, siblings);
      InsertFrom(next->Place + 1, siblings, indent);
      ++next;
    }
  }

  /// What comes to the new version at this place of it, until the next one that stays.
  void InsertFrom(std::size_t place, const TSiblings& siblings, const QByteArray& indent) {
    for (; place < siblings.Afters.size() && !FStays[siblings.Afters[place]]; ++place) {
      CopyTo(FOriginal.WithBlanks(FAt));
      FText += FLineEnd + indent + Chunk(siblings.Afters[place], indent);
    }
  }

  QByteArray IndentOf(quint32 original, const TSiblings& siblings) const {
    const qsizetype from = OriginalPlace(original).From;
    return IsOnLaterLine(from, siblings.Start - 1) ? FOriginal.IndentBefore(from) : siblings.Indent;
  }

  /// The siblings of the new version that stay where the original has them, in the order of the original. Where the
  /// new version changes the order, as few as possible move.
  std::vector<TStaying> Staying(const TSiblings& siblings) {
    std::vector<TStaying> candidates;
    TPlaces originals;
    TPlaces befores;
    for (quint32 i = 0; i < siblings.Afters.size(); ++i) {
      const quint32 original = FVersions.OriginalOf(siblings.Afters[i]);
      if (original == kNoPlace || !std::ranges::binary_search(siblings.Originals, original)) continue;
      candidates.push_back({original, i});
      originals.push_back(original);
      befores.push_back(FVersions.BeforeOf(siblings.Afters[i]));
    }
    const bool keepsOrder = std::ranges::is_sorted(befores);
    const std::vector<bool> rises = keepsOrder ? std::vector<bool>(originals.size(), true) : LongestRise(originals);
    std::vector<TStaying> staying;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
      if (!rises[i]) continue;
      staying.push_back(candidates[i]);
      FStays[siblings.Afters[candidates[i].Place]] = true;
    }
    std::ranges::sort(staying, {}, &TStaying::Original);
    return staying;
  }

  /// An object or item that comes to a new place: with its own lines where it has some, else with those of the new
  /// version.
  QByteArray Chunk(quint32 after, const QByteArray& indent) {
    const quint32 original = FVersions.OriginalOf(after);
    if (original == kNoPlace) return NewChunk(after, indent);
    const qsizetype from = OriginalPlace(original).From;
    const QByteArray outer = std::exchange(FText, QByteArray());
    const qsizetype outerAt = std::exchange(FAt, from);
    Object(after);
    FAt = outerAt;
    return Reindented(std::exchange(FText, outer), FOriginal.IndentBefore(from), indent);
  }

  QByteArray NewChunk(quint32 after, const QByteArray& indent) {
    const TObjectPlace& place = FAfter.Layout.Objects[after];
    if (place.IsItem() || !HasKnownObject(after)) return Foreign(place.From, place.End, indent);
    QByteArray text = Foreign(place.From, FAfter.BodyEnd(after), indent);
    const QByteArray deeper = indent + kLevelIndent;
    for (const quint32 child : FAfter.Layout.ChildrenOf(after)) text += FLineEnd + deeper + Chunk(child, deeper);
    return text + FLineEnd + indent + "end";
  }

  bool HasKnownObject(quint32 after) const {
    for (quint32 i = after + 1; i < FAfter.Layout.Objects[after].Next; ++i)
      if (FVersions.OriginalOf(i) != kNoPlace) return true;
    return false;
  }

  const TFormVersions& FVersions;
  const TLaidOutText& FOriginal;
  const TLaidOutText& FBefore;
  const TLaidOutText& FAfter;
  const QByteArray FLineEnd;
  /// Which objects and items of the new version stay among their siblings.
  std::vector<bool> FStays;
  QByteArray FText;
  qsizetype FAt = 0;  ///< What of the original is copied or left out.
};

}  // namespace

quint32 TFormVersions::OriginalOf(quint32 after) const {
  const quint32 before = ChangePairs.LeftOf[after];
  return before == kNoPlace ? kNoPlace : OriginalPairs.LeftOf[before];
}

bool TFormVersions::HasKnownItems(const TPropertyPlace& original, const TPropertyPlace& before,
                                  const TPropertyPlace& after) const {
  return original.IsCollection() && before.IsCollection() && after.IsCollection() &&
         Original.Layout.ItemsOf(original).size() == Before.Layout.ItemsOf(before).size();
}

QByteArray MergedText(const TFormVersions& versions, const QByteArray& lineEnd) {
  return TMerge(versions, lineEnd).Run();
}

}  // namespace kt
