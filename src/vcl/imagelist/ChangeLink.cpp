#include "kt/vcl/imagelist/ChangeLink.h"

#include "kt/rtl/objects/Make.h"
#include "kt/vcl/imagelist/ImageList.h"

namespace kt {

void TChangeLink::Destruct() {
  if (FSender) FSender->UnRegisterChanges(*this);
  TObject::Destruct();
}

void TChangeLink::Change() {
  // A copy: the handler may free the link.
  const TNotifyEvent handler = OnChange;
  handler(FSender);
}

void FollowImages(std::unique_ptr<TChangeLink>& link, TCustomImageList* images, const TNotifyEvent& changed) {
  if (!link) link = Make<TChangeLink>();
  link->OnChange = changed;
  if (link->GetSender()) link->GetSender()->UnRegisterChanges(*link);
  if (images) images->RegisterChanges(*link);
}

TCustomImageList* ImagesOf(const std::unique_ptr<TChangeLink>& link) { return link ? link->GetSender() : nullptr; }

}  // namespace kt
