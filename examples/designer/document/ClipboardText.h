#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace kt {
class TComponent;
}

namespace designer {

/// The components of the form `root`, each with its children, as text objects one behind the other.
QString TextOfComponents(kt::TComponent* root, const std::vector<kt::TComponent*>& components);

/// Answers a name that no component of the form has, for an object of that class; never one of `others`.
using TNewName = std::function<QString(const QString& className, const QStringList& others)>;

/// Creates the components that `text` describes on the form, below `parent`, and answers the outermost ones. Those
/// whose names are taken get new ones, and references among them follow. Raises kt::EParserError or what kt::TReader
/// raises, with line and column; nothing has changed then.
std::vector<kt::TComponent*> PasteComponents(kt::TComponent* root, kt::TComponent* parent, const QString& text,
                                             const TNewName& newName);

}  // namespace designer
