#include "kt/vcl/imagelist/ImageListRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/imagelist/ImageList.h"

namespace kt {

void RegisterImageLists() { RegisterClasses({TImageList::Class()}); }

}  // namespace kt
