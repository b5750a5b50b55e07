#pragma once

/// What of Qt is there. Components live, are read and written without any of it; only what is seen needs it. Console
/// programs have an application object that can show nothing, so that asking whether there is one is not enough.
namespace kt {

/// Whether there are fonts, a palette and a clipboard: a QGuiApplication.
bool HasGui();

/// Whether there may be windows: a QApplication.
bool HasWidgets();

}  // namespace kt
