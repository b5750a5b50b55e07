// A form designer: opens form files, shows them alive, and edits them with the object inspector. Without a display it
// draws its window into a picture and prints the form.
#include "common/Startup.h"
#include "designer/session/Session.h"
#include "designer/window/MainWindow.h"
#include "designer/window/ShippedForms.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void DescribeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("Edits forms: shows them alive, with their components as a tree and an object inspector.\nWith "
                     "--draw, and without a display, draws the window into a picture and prints the form instead."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               QStringLiteral("a form, as text or binary; one that comes with the program if left out"),
                               QStringLiteral("[FILE]"));
  examples::AddDrawOptions(parser);
  examples::AddLookOptions(parser);
}

int Draw(designer::TMainWindow& window, const QString& picture, bool isAsked) {
  window.ShowOff();
  QApplication::processEvents();
  if (!window.grab().save(picture)) {
    std::fprintf(stderr, "designer: cannot write %s\n", qUtf8Printable(picture));
    return 1;
  }
  std::fputs(qUtf8Printable(window.Session().Document().TreeText()), stdout);
  const char* reason = isAsked ? "" : "there is no display to show a window on; ";
  std::printf("designer: %sdrawn into %s\n", reason, qUtf8Printable(picture));
  return 0;
}

/// Errors go to standard error where nobody could close a window that tells them.
void TellOnStandardError(designer::TMainWindow& window) {
  window.Questions().Tell = [](const QString& message) {
    std::fprintf(stderr, "designer: error: %s\n", qUtf8Printable(message));
  };
}

int Run(const QCommandLineParser& parser) {
  const bool isDrawn = parser.isSet(QStringLiteral("draw")) || examples::IsOutOfSight();
  designer::TMainWindow window;
  if (isDrawn) TellOnStandardError(window);
  const QString given = parser.positionalArguments().value(0);
  const QString example = given.isEmpty() ? designer::FirstForm() : QString();
  window.show();
  const bool isOpen = given.isEmpty() ? example.isEmpty() || window.OpenExample(example) : window.Open(given);
  if (!isDrawn) return QApplication::exec();
  if (!isOpen) return 1;
  const QString picture = parser.value(QStringLiteral("draw"));
  return Draw(window, picture.isEmpty() ? QStringLiteral("designer.png") : picture, !picture.isEmpty());
}

}  // namespace

int main(int argc, char** argv) {
  examples::ChoosePlatform(argc, argv);
  QApplication application(argc, argv);
  QCommandLineParser parser;
  DescribeOptions(parser);
  parser.process(application);
  examples::ApplyLooks(parser);
  return Run(parser);
}
