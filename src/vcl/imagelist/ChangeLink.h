#pragma once

#include "kt/rtl/objects/Object.h"
#include "kt/rtl/typeinfo/Event.h"

#include <memory>

namespace kt {

class TCustomImageList;

/// What connects somebody who shows pictures with the image list that they are from. It belongs to the one who shows
/// them and leaves the list when either of them dies.
class TChangeLink : public TObject {
 public:
  using Inherited = TObject;

  /// The list that is followed, or null.
  TCustomImageList* GetSender() const { return FSender; }
  /// The pictures have changed, or the list has gone, and then there is no sender any more.
  virtual void Change();

  /// The sender is the list, or null when it has gone.
  TNotifyEvent OnChange;

 protected:
  friend class TCustomImageList;

  TChangeLink() = default;

  void Destruct() override;

 private:
  TCustomImageList* FSender = nullptr;
};

/// Has `link`, made when it is needed, follow `images`, or nobody when that is null. `changed` is called from then on.
void FollowImages(std::unique_ptr<TChangeLink>& link, TCustomImageList* images, const TNotifyEvent& changed);
/// The list that a link follows; null without link.
TCustomImageList* ImagesOf(const std::unique_ptr<TChangeLink>& link);

}  // namespace kt
