// An inspector attached to the windows of a running program that knows nothing of it. Without a display it draws itself
// into a picture, and prints what it lists.
#include "Attachment.h"
#include "OrdinaryWindow.h"
#include "common/Startup.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void DescribeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("Shows an ordinary window, and an inspector attached to it: F8 and a click pick what to inspect, "
                     "Shift+click adds,\n"
                     "Esc ends; Ctrl+Shift+click picks at any time, also in open menus and dialogs. Ctrl+Shift+I opens "
                     "the inspector.\n"
                     "What stands behind a modal dialog is picked in the tree. With --draw, and without a display, "
                     "draws the inspector\n"
                     "into a picture and prints what it lists instead."));
  parser.addHelpOption();
  examples::AddDrawOptions(parser);
  examples::AddLookOptions(parser);
}

int Draw(TInspectorWindow& window, QString picture) {
  if (picture.isEmpty()) picture = QStringLiteral("qtattach.png");
  QApplication::processEvents();
  std::fputs(qUtf8Printable(window.Pane().Text()), stdout);
  return examples::DrawWindow(QStringLiteral("qtattach"), window, picture);
}

}  // namespace

int main(int argc, char** argv) {
  examples::ChoosePlatform(argc, argv);
  QApplication application(argc, argv);
  QCommandLineParser parser;
  DescribeOptions(parser);
  parser.process(application);
  examples::ApplyLooks(parser);
  TOrdinaryWindow ordinary;
  TAttachment attachment;
  TInspectorWindow& window = attachment.Window();
  ordinary.show();
  window.Come();
  window.move(ordinary.frameGeometry().topRight() + QPoint(24, 0));
  window.Pane().Selection().Select(ordinary.findChild<QWidget*>(QStringLiteral("SignIn")));
  const bool isDrawn = parser.isSet(QStringLiteral("draw")) || examples::IsOutOfSight();
  return isDrawn ? Draw(window, parser.value(QStringLiteral("draw"))) : QApplication::exec();
}
