#include "ktform/Commands.h"

#include <algorithm>
#include <array>

namespace ktform {
namespace {

constexpr std::array<TCommand, 4> kCommands{{
    {"to-text", "[--crlf] [--utf8] [--encoding NAME] IN OUT", "write a form as text", RunToText},
    {"to-binary", "[--resource] [--encoding NAME] IN OUT", "write a form as binary", RunToBinary},
    {"set", "[--encoding NAME] IN OUT Path=Value...", "change properties", RunSet},
    {"check", "[--encoding NAME] FILE...", "convert each form to the other format and back, and compare", RunCheck},
}};

}  // namespace

std::span<const TCommand> Commands() { return kCommands; }

const TCommand* FindCommand(const QString& name) {
  const auto found = std::find_if(kCommands.begin(), kCommands.end(),
                                  [&](const TCommand& command) { return name == QLatin1String(command.Name); });
  return found == kCommands.end() ? nullptr : &*found;
}

bool TakeOption(QStringList& arguments, const QString& option) { return arguments.removeAll(option) > 0; }

bool AreFileNames(const QStringList& arguments, qsizetype count) {
  const bool allNames =
      std::none_of(arguments.begin(), arguments.end(), [](const QString& name) { return name.startsWith(u"--"); });
  return allNames && arguments.size() == count;
}

}  // namespace ktform
