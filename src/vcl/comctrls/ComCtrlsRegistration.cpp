#include "kt/vcl/comctrls/ComCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/ProgressBar.h"
#include "kt/vcl/comctrls/StatusBar.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/comctrls/TrackBar.h"

namespace kt {

void RegisterComCtrls() {
  RegisterClasses({
      TPageControl::Class(),
      TProgressBar::Class(),
      TStatusBar::Class(),
      TTabSheet::Class(),
      TTrackBar::Class(),
  });
}

}  // namespace kt
