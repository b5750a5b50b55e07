#pragma once

#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/typeinfo/PropListener.h"

#include <set>
#include <unordered_map>
#include <utility>

namespace kt {

/// Listens to those of the objects in an inspector's tree that tell when their properties change, and has just the
/// items of these read again. However often they change until control is back at the event queue, each is read once. A
/// value that the user is typing is left alone, and so are the rows while text is typed: what has changed meanwhile is
/// read, or listed, when the user has typed to an end.
class TKTCustomObjectInspector::TPropertyWatch final : public IPropListener {
 public:
  explicit TPropertyWatch(TKTCustomObjectInspector& inspector) : FInspector(inspector) {}
  ~TPropertyWatch() override;
  TPropertyWatch(const TPropertyWatch&) = delete;
  TPropertyWatch& operator=(const TPropertyWatch&) = delete;

  void PropChanged(TObject* object, const QString& name) override;
  void PropListChanged(TObject* object) override;

  /// A scan begins; what it does not enter until EndScan() is not listened to any longer.
  void BeginScan();
  /// The properties of `object` are listed in `level`.
  void Enter(TObject* object, TKTItemProperties& level);
  void EndScan();
  /// Reads again what has changed. False when an item leads nowhere any more. The inspector may be gone afterwards.
  bool Refresh();
  /// Leaves it to the scan that follows.
  void Discard();
  /// The user may have typed to an end: has what was put off done.
  void Resume();

 private:
  struct TWatched {
    TObjectRef Object;
    TObjectRef Level;
    bool IsEntered = false;
  };
  using TChange = std::pair<const TObject*, QString>;

  void Post();
  TKTItemProperty* ItemOf(const TChange& change) const;
  static void StopListening(TPropertyWatch& self, const TWatched& watched);

  TKTCustomObjectInspector& FInspector;
  std::unordered_map<const TObject*, TWatched> FWatched;
  std::set<TChange> FChanges;
  bool FIsPosted = false;
  /// A scan that was put off.
  bool FIsScanWanted = false;
};

}  // namespace kt
