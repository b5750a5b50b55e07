#include "kt/rtl/streams/FormPairs.h"

#include <QHash>

#include <algorithm>
#include <tuple>

namespace kt {
namespace {

using TPlaces = std::vector<quint32>;

/// Sorted by name and class; those with the same keep their order.
TPlaces SortedByName(const TFormLayout& layout, TPlaces objects) {
  std::stable_sort(objects.begin(), objects.end(), [&layout](quint32 a, quint32 b) {
    const TObjectPlace& first = layout.Objects[a];
    const TObjectPlace& second = layout.Objects[b];
    return std::tie(first.Name, first.ClassName) < std::tie(second.Name, second.ClassName);
  });
  return objects;
}

/// `guess` is where it probably is.
const TPropertyPlace* FindProperty(std::span<const TPropertyPlace> properties, const TPropertyKey& key,
                                   std::size_t guess) {
  if (guess < properties.size() && properties[guess].Key == key) return &properties[guess];
  const auto found = std::ranges::find(properties, key, &TPropertyPlace::Key);
  return found == properties.end() ? nullptr : &*found;
}

/// Calls `take` with the collections of two objects that are the same property.
template <class F>
void ForEachCollection(const TFormLayout& left, quint32 leftObject, const TFormLayout& right, quint32 rightObject,
                       F take) {
  const auto others = right.PropertiesOf(rightObject);
  const auto properties = left.PropertiesOf(leftObject);
  for (std::size_t i = 0; i < properties.size(); ++i) {
    if (!properties[i].IsCollection()) continue;
    const TPropertyPlace* other = FindProperty(others, properties[i].Key, i);
    if (other && other->IsCollection()) take(properties[i], *other);
  }
}

class TSameForm {
 public:
  TSameForm(const TLaidOutText& left, const TLaidOutText& right, TSequencePairs& pairs)
      : FLeft(left.Layout), FRight(right.Layout), FPairs(pairs) {}

  bool Run() {
    if (!FLeft.Objects.front().IsSameObject(FRight.Objects.front())) return false;
    FPairs.Pair(0, 0);
    // What is in an object or item comes behind it.
    for (quint32 i = 0; i < FLeft.Objects.size(); ++i) {
      if (!FPairs.IsLeftPaired(i)) continue;
      const quint32 other = FPairs.RightOf[i];
      ForEachCollection(FLeft, i, FRight, other, [this](const auto& a, const auto& b) { PairItems(a, b); });
      if (!FLeft.Objects[i].IsItem() && !PairChildren(i, other)) return false;
    }
    return true;
  }

 private:
  void PairItems(const TPropertyPlace& left, const TPropertyPlace& right) {
    const TPlaces items = FLeft.ItemsOf(left);
    const TPlaces others = FRight.ItemsOf(right);
    if (items.size() != others.size()) return;
    for (std::size_t i = 0; i < items.size(); ++i) FPairs.Pair(items[i], others[i]);
  }

  bool PairChildren(quint32 left, quint32 right) {
    const TPlaces children = SortedByName(FLeft, FLeft.ChildrenOf(left));
    const TPlaces others = SortedByName(FRight, FRight.ChildrenOf(right));
    if (children.size() != others.size()) return false;
    for (std::size_t i = 0; i < children.size(); ++i) {
      if (!FLeft.Objects[children[i]].IsSameObject(FRight.Objects[others[i]])) return false;
      FPairs.Pair(children[i], others[i]);
    }
    return true;
  }

  const TFormLayout& FLeft;
  const TFormLayout& FRight;
  TSequencePairs& FPairs;
};

/// A number for what an item says; the blanks that begin its lines do not count.
quint64 HashOfText(QByteArrayView text) {
  quint64 number = 14695981039346656037ULL;
  bool isIndent = false;
  for (const char c : text) {
    if (isIndent && c == ' ') continue;
    isIndent = c == '\n';
    number = (number ^ quint8(c)) * 1099511628211ULL;
  }
  return number;
}

class TVersions {
 public:
  TVersions(const TLaidOutText& before, const TLaidOutText& after)
      : FBefore(before),
        FAfter(after),
        FPairs(before.Layout.Objects.size(), after.Layout.Objects.size()),
        FIsDone(after.Layout.Objects.size()) {}

  TSequencePairs Run() {
    FPairs.Pair(0, 0);
    PairContents();
    PairByName();
    PairContents();
    for (quint32 after = 0; after < FIsDone.size(); ++after) {
      if (!FPairs.IsRightPaired(after)) continue;
      PairContentsOf(after);
      if (!FAfter.Layout.Objects[after].IsItem()) PairRenamed(FPairs.LeftOf[after], after);
    }
    return std::move(FPairs);
  }

 private:
  /// What is in an object or item comes behind it.
  void PairContents() {
    for (quint32 after = 0; after < FIsDone.size(); ++after)
      if (FPairs.IsRightPaired(after)) PairContentsOf(after);
  }

  void PairContentsOf(quint32 after) {
    if (FIsDone[after]) return;
    FIsDone[after] = true;
    const quint32 before = FPairs.LeftOf[after];
    ForEachCollection(FBefore.Layout, before, FAfter.Layout, after,
                      [this](const auto& a, const auto& b) { PairItems(a, b); });
    if (!FAfter.Layout.Objects[after].IsItem()) PairChildren(before, after);
  }

  void PairItems(const TPropertyPlace& before, const TPropertyPlace& after) {
    const TPlaces items = FBefore.Layout.ItemsOf(before);
    const TPlaces others = FAfter.Layout.ItemsOf(after);
    TSequencePairs pairs = PairEqual(NumbersOf(FBefore, items), NumbersOf(FAfter, others));
    PairNeighbours(pairs, [](quint32, quint32) { return true; });
    Take(pairs, items, others);
  }

  static std::vector<quint64> NumbersOf(const TLaidOutText& text, const TPlaces& items) {
    std::vector<quint64> numbers;
    numbers.reserve(items.size());
    for (const quint32 item : items) numbers.push_back(HashOfText(text.Whole(item)));
    return numbers;
  }

  void Take(const TSequencePairs& pairs, const TPlaces& befores, const TPlaces& afters) {
    for (std::size_t i = 0; i < befores.size(); ++i)
      if (pairs.IsLeftPaired(quint32(i))) FPairs.Pair(befores[i], afters[pairs.RightOf[i]]);
  }

  /// Those that are alone.
  TPlaces AloneBefore(TPlaces objects) const {
    std::erase_if(objects, [this](quint32 object) { return FPairs.IsLeftPaired(object); });
    return objects;
  }
  TPlaces AloneAfter(TPlaces objects) const {
    std::erase_if(objects, [this](quint32 object) { return FPairs.IsRightPaired(object); });
    return objects;
  }

  static quint64 KeyOf(const TObjectPlace& object) { return quint64(object.Name) << 32 | object.ClassName; }

  static std::vector<quint64> KeysOf(const TFormLayout& layout, const TPlaces& objects) {
    std::vector<quint64> keys;
    keys.reserve(objects.size());
    for (const quint32 object : objects) keys.push_back(KeyOf(layout.Objects[object]));
    return keys;
  }

  void PairChildren(quint32 before, quint32 after) {
    const TPlaces children = AloneBefore(FBefore.Layout.ChildrenOf(before));
    const TPlaces others = AloneAfter(FAfter.Layout.ChildrenOf(after));
    Take(PairEqual(KeysOf(FBefore.Layout, children), KeysOf(FAfter.Layout, others)), children, others);
  }

  /// Objects that are alone, by name and class; kNoPlace for what is not unique.
  using TByName = QHash<quint64, quint32>;
  static TByName ByName(const TLaidOutText& text, const TPlaces& partners) {
    TByName byName;
    for (quint32 i = 0; i < partners.size(); ++i) {
      const TObjectPlace& object = text.Layout.Objects[i];
      if (partners[i] != kNoPlace || object.IsItem() || !HasName(text, i)) continue;
      const auto known = byName.find(KeyOf(object));
      if (known == byName.end()) {
        byName.insert(KeyOf(object), i);
      } else {
        *known = kNoPlace;
      }
    }
    return byName;
  }

  static bool HasName(const TLaidOutText& text, quint32 object) { return text.Header(object).contains(": "); }

  void PairByName() {
    const TByName befores = ByName(FBefore, FPairs.RightOf);
    if (befores.isEmpty()) return;
    const TByName afters = ByName(FAfter, FPairs.LeftOf);
    for (auto after = afters.begin(); after != afters.end(); ++after) {
      const quint32 before = befores.value(after.key(), kNoPlace);
      if (before != kNoPlace && *after != kNoPlace) FPairs.Pair(before, *after);
    }
  }

  /// Objects of one class whose neighbours before are the same.
  void PairRenamed(quint32 before, quint32 after) {
    const TPlaces children = FBefore.Layout.ChildrenOf(before);
    const TPlaces others = FAfter.Layout.ChildrenOf(after);
    if (AloneBefore(children).empty() || AloneAfter(others).empty()) return;
    // One that has gone elsewhere, or comes from there, is beside nobody here.
    const TPlaces here = Staying(children, FPairs.RightOf, others);
    const TPlaces there = Staying(others, FPairs.LeftOf, children);
    TSequencePairs pairs(here.size(), there.size());
    for (quint32 i = 0; i < here.size(); ++i)
      if (FPairs.IsLeftPaired(here[i])) pairs.Pair(i, PlaceIn(there, FPairs.RightOf[here[i]]));
    PairNeighbours(pairs, [&](quint32 child, quint32 other) {
      return FBefore.Layout.Objects[here[child]].ClassName == FAfter.Layout.Objects[there[other]].ClassName;
    });
    Take(pairs, here, there);
  }

  /// Those of `objects` that are alone or whose partners are among `others`.
  static TPlaces Staying(const TPlaces& objects, const TPlaces& partners, const TPlaces& others) {
    TPlaces staying;
    for (const quint32 object : objects)
      if (partners[object] == kNoPlace || std::ranges::binary_search(others, partners[object]))
        staying.push_back(object);
    return staying;
  }

  static quint32 PlaceIn(const TPlaces& objects, quint32 object) {
    return quint32(std::ranges::lower_bound(objects, object) - objects.begin());
  }

  const TLaidOutText& FBefore;
  const TLaidOutText& FAfter;
  TSequencePairs FPairs;
  std::vector<bool> FIsDone;
};

}  // namespace

bool PairSameForm(const TLaidOutText& left, const TLaidOutText& right, TSequencePairs& pairs) {
  return TSameForm(left, right, pairs).Run();
}

TSequencePairs PairVersions(const TLaidOutText& before, const TLaidOutText& after) {
  return TVersions(before, after).Run();
}

}  // namespace kt
