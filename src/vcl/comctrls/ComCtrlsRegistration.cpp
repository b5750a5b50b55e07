#include "kt/vcl/comctrls/ComCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/comctrls/ProgressBar.h"
#include "kt/vcl/comctrls/TrackBar.h"

namespace kt {

void RegisterComCtrls() {
  RegisterClasses({
      TProgressBar::Class(),
      TTrackBar::Class(),
  });
}

}  // namespace kt
