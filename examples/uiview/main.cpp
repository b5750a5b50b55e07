// Opens a form of Qt's own designer, alive, beside the tree of its objects and the object inspector. Without a display
// it draws its window into a picture and prints what it lists.
#include "common/Startup.h"
#include "uiview/UiWindow.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void DescribeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(QStringLiteral(
      "Shows a Qt form (a .ui file) alive, beside the tree of its objects and an object inspector. Edits change the\n"
      "form on the screen; nothing is saved. With --draw, and without a display, draws the window into a picture and\n"
      "prints the tree of objects and the properties of the selected one instead."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               QStringLiteral("a .ui file; one that comes with the program if left out"),
                               QStringLiteral("[FILE]"));
  examples::AddDrawOptions(parser);
  parser.addOption(
      {QStringLiteral("select"), QStringLiteral("Inspect the object of this name first."), QStringLiteral("NAME")});
  examples::AddLookOptions(parser);
}

void TellOnStandardError(const QString& message) {
  std::fprintf(stderr, "uiview: error: %s\n", qUtf8Printable(message));
}

/// False for a name that the form does not have, which is told.
bool SelectGiven(uiview::TUiWindow& window, const QString& name) {
  if (name.isEmpty() || window.Select(name)) return true;
  window.Tell(QStringLiteral("%1 has no object named %2").arg(window.FileName(), name));
  return false;
}

int Draw(uiview::TUiWindow& window, const QCommandLineParser& parser) {
  for (const QString& remark : window.Remarks()) std::fprintf(stderr, "uiview: %s\n", qUtf8Printable(remark));
  if (!parser.isSet(QStringLiteral("select"))) window.ShowOff();
  QApplication::processEvents();
  std::fputs(qUtf8Printable(window.Text()), stdout);
  const QString given = parser.value(QStringLiteral("draw"));
  if (given.isEmpty()) std::puts("uiview: there is no display to show a window on");
  return examples::DrawWindow(QStringLiteral("uiview"), window, given.isEmpty() ? QStringLiteral("uiview.png") : given);
}

int Run(const QCommandLineParser& parser) {
  const bool isDrawn = parser.isSet(QStringLiteral("draw")) || examples::IsOutOfSight();
  uiview::TUiWindow window;
  if (isDrawn) window.Tell = &TellOnStandardError;
  const QString given = parser.positionalArguments().value(0);
  const QString file = given.isEmpty() ? uiview::FirstUiForm() : given;
  window.show();
  bool isOpen = file.isEmpty() || window.Open(file);
  isOpen = isOpen && SelectGiven(window, parser.value(QStringLiteral("select")));
  if (!isDrawn) return QApplication::exec();
  return isOpen ? Draw(window, parser) : 1;
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
