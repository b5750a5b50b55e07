#pragma once

/// Has Qt's own style draw light texts on dark ground, in the whole program.
void UseDarkPalette();
