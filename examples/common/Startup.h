#pragma once

#include <QString>

class QCommandLineParser;
class QWidget;

/// What every example does around its window.
namespace examples {

/// Before there is an application object, as Qt reads its environment then: without a display, and with --draw, windows
/// are made out of sight; --scale sets how many pixels of the screen one of a window takes.
void ChoosePlatform(int argc, char** argv);
/// Whether windows are out of sight.
bool IsOutOfSight();

/// The options --dark, --rtl and --points.
void AddLookOptions(QCommandLineParser& parser);
void ApplyLooks(const QCommandLineParser& parser);
/// The options --draw and --scale.
void AddDrawOptions(QCommandLineParser& parser);

/// Draws the window into a file and says so on standard output, or on standard error why not; the program's exit code.
int DrawWindow(const QString& program, QWidget& window, const QString& picture);

}  // namespace examples
