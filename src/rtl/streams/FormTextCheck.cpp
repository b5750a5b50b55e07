#include "kt/rtl/streams/FormTextCheck.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormHeaderText.h"
#include "kt/rtl/streams/PropertyFinder.h"
#include "kt/rtl/streams/TextParser.h"

namespace kt {
namespace {

using TPlaces = std::vector<quint32>;

bool IsForm(const QByteArray& text) {
  try {
    TIdleFormSink nowhere;
    TTextParser(text, nowhere).ParseForm();
    return true;
  } catch (const EParserError&) {
    return false;
  }
}

class TCheck {
 public:
  TCheck(const TLaidOutText& merged, const TFormVersions& versions)
      : FMerged(merged),
        FVersions(versions),
        FPairs(merged.Layout.Objects.size(), versions.After.Layout.Objects.size()),
        FIsSettled(merged.Layout.Objects.size()) {}

  bool Run() {
    FPairs.Pair(0, 0);
    // What is in an object or item comes behind it.
    for (quint32 merged = 0; merged < FMerged.Layout.Objects.size(); ++merged) {
      if (FIsSettled[merged]) continue;
      if (!FPairs.IsLeftPaired(merged) || !IsObject(merged, FPairs.RightOf[merged])) return false;
    }
    return true;
  }

 private:
  bool IsObject(quint32 merged, quint32 after) {
    if (!HasHeader(merged, after) || !HasProperties(merged, after)) return false;
    return FMerged.Layout.Objects[merged].IsItem() || HasChildren(merged, after);
  }

  bool HasHeader(quint32 merged, quint32 after) const {
    const QByteArrayView header = FMerged.Header(merged);
    const QByteArrayView wanted = FVersions.After.Header(after);
    if (!FMerged.Layout.Objects[merged].IsSameObject(FVersions.After.Layout.Objects[after])) return false;
    const quint32 before = FVersions.BeforeOf(after);
    const quint32 original = FVersions.OriginalOf(after);
    if (original == kNoPlace) return HasSameTokens(header, wanted);
    const TFormHeaderText parts(header);
    const TFormHeaderText now(wanted);
    const TFormHeaderText old(FVersions.Before.Header(before));
    const TFormHeaderText first(FVersions.Original.Header(original));
    return parts.Keyword.compare(old.Keyword == now.Keyword ? first.Keyword : now.Keyword, Qt::CaseInsensitive) == 0 &&
           HasSameTokens(parts.Index, old.Index == now.Index ? first.Index : now.Index);
  }

  bool HasProperties(quint32 merged, quint32 after) {
    const quint32 before = FVersions.BeforeOf(after);
    const quint32 original = FVersions.OriginalOf(after);
    const TPropertyFinder mergeds(FMerged.Layout.PropertiesOf(merged));
    const TPropertyFinder originals(PropertiesOf(FVersions.Original, original));
    const TPropertyFinder befores(PropertiesOf(FVersions.Before, original == kNoPlace ? kNoPlace : before));
    const TPropertyFinder afters(FVersions.After.Layout.PropertiesOf(after));
    for (const TPropertyPlace& property : FVersions.After.Layout.PropertiesOf(after))
      if (!HasProperty(property, mergeds.Find(property.Key), originals.Find(property.Key), befores.Find(property.Key)))
        return false;
    return HasNothingElse(merged, originals, befores, afters);
  }

  static std::span<const TPropertyPlace> PropertiesOf(const TLaidOutText& text, quint32 object) {
    if (object == kNoPlace) return {};
    return text.Layout.PropertiesOf(object);
  }

  bool HasProperty(const TPropertyPlace& after, const TPropertyPlace* merged, const TPropertyPlace* original,
                   const TPropertyPlace* before) {
    const bool hasItems =
        merged && original && before && merged->IsCollection() && FVersions.HasKnownItems(*original, *before, after);
    if (hasItems) return PairItems(*merged, after);
    const bool isChanged = !before || !HasSameTokens(FVersions.Before.Value(*before), FVersions.After.Value(after));
    if (!isChanged && !original) return !merged;
    if (!merged) return false;
    return HasValue(*merged, isChanged ? FVersions.After.Value(after) : FVersions.Original.Value(*original));
  }

  /// What the original has and the new version lacks is there when nothing took it away.
  bool HasNothingElse(quint32 merged, const TPropertyFinder& originals, const TPropertyFinder& befores,
                      const TPropertyFinder& afters) {
    for (const TPropertyPlace& property : FMerged.Layout.PropertiesOf(merged)) {
      if (afters.Find(property.Key)) continue;
      const TPropertyPlace* original = originals.Find(property.Key);
      if (!original || befores.Find(property.Key)) return false;
      if (!HasValue(property, FVersions.Original.Value(*original))) return false;
    }
    return true;
  }

  /// A value as a whole, items and all.
  bool HasValue(const TPropertyPlace& merged, QByteArrayView value) {
    for (quint32 i = merged.FirstItem; i < FIsSettled.size() && FMerged.Layout.Objects[i].From < merged.To; ++i)
      FIsSettled[i] = true;
    return HasSameTokens(FMerged.Value(merged), value);
  }

  bool PairItems(const TPropertyPlace& merged, const TPropertyPlace& after) {
    return Pair(FMerged.Layout.ItemsOf(merged), FVersions.After.Layout.ItemsOf(after));
  }

  bool Pair(const TPlaces& mergeds, const TPlaces& afters) {
    if (mergeds.size() != afters.size()) return false;
    for (std::size_t i = 0; i < mergeds.size(); ++i) FPairs.Pair(mergeds[i], afters[i]);
    return true;
  }

  bool HasChildren(quint32 merged, quint32 after) {
    const TPlaces children = FMerged.Layout.ChildrenOf(merged);
    TPlaces others = FVersions.After.Layout.ChildrenOf(after);
    if (!HasOrderOf(children, others)) others = InOriginalOrder(std::move(others), after);
    return Pair(children, others);
  }

  bool HasOrderOf(const TPlaces& mergeds, const TPlaces& afters) const {
    return std::ranges::equal(mergeds, afters, [this](quint32 merged, quint32 after) {
      return FMerged.Layout.Objects[merged].IsSameObject(FVersions.After.Layout.Objects[after]);
    });
  }

  /// As the siblings come where those that have a place in the original keep it, each with what is new behind it.
  TPlaces InOriginalOrder(TPlaces afters, quint32 parent) const {
    const quint32 original = FVersions.OriginalOf(parent);
    if (original == kNoPlace) return afters;
    const TPlaces originals = FVersions.Original.Layout.ChildrenOf(original);
    quint32 last = 0;
    std::vector<std::pair<quint32, quint32>> places;
    for (const quint32 after : afters) {
      const quint32 place = FVersions.OriginalOf(after);
      if (place != kNoPlace && std::ranges::binary_search(originals, place)) last = place;
      places.emplace_back(last, after);
    }
    std::ranges::stable_sort(places, {}, &std::pair<quint32, quint32>::first);
    std::ranges::transform(places, afters.begin(), &std::pair<quint32, quint32>::second);
    return afters;
  }

  const TLaidOutText& FMerged;
  const TFormVersions& FVersions;
  TSequencePairs FPairs;
  /// Objects of the merged text whose values were compared already.
  std::vector<bool> FIsSettled;
};

}  // namespace

bool IsMerged(const QByteArray& merged, const TFormVersions& versions, TFormWords& words) {
  if (!IsForm(merged)) return false;
  const TLaidOutText text = LaidOut(merged, words);
  return TCheck(text, versions).Run();
}

}  // namespace kt
