#include "kt/vcl/extctrls/ExtCtrlsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/extctrls/Bevel.h"
#include "kt/vcl/extctrls/Image.h"
#include "kt/vcl/extctrls/PaintBox.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/extctrls/Shape.h"
#include "kt/vcl/extctrls/Timer.h"

namespace kt {

void RegisterExtCtrls() {
  RegisterClasses({
      TBevel::Class(),
      TImage::Class(),
      TPaintBox::Class(),
      TPanel::Class(),
      TShape::Class(),
      TTimer::Class(),
  });
}

}  // namespace kt
