// Random edits of random forms: the edited text says what the changed form says, and keeps every line of what nobody
// touched.
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormTextEdit.h"
#include "kt/rtl/streams/LaidOutText.h"
#include "support/ModelRun.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>

namespace kt {
namespace {

using tests::ModelSeed;
using tests::TModelRun;
using tests::TStepRandom;

/// An object of the form, with collection items that are one number each.
struct TEditedNode {
  int Id;
  QByteArray Name;  ///< Empty for one without a name.
  QByteArray ClassName;
  std::map<QByteArray, int> Properties;
  std::vector<int> Items;
  std::vector<std::shared_ptr<TEditedNode>> Children;
};
using TNodePtr = std::shared_ptr<TEditedNode>;

QByteArray NumberText(int number) { return QByteArray::number(number); }

/// The header and properties, as no writer writes them.
QByteArray OwnText(const TEditedNode& node, const QByteArray& indent) {
  QByteArray text = indent + "object  " + node.Name + (node.Name.isEmpty() ? "" : " : ") + node.ClassName + "\n";
  for (const auto& [name, value] : node.Properties)
    text += indent + "\t" + name + "=" + NumberText(value) + (value % 3 == 0 ? "  " : "") + "\n";
  if (node.Items.empty()) return text;
  text += indent + "\tItems=<";
  for (const int item : node.Items) text += "\n" + indent + "\t\titem V=" + NumberText(item) + " end";
  return text + ">\n";
}

QByteArray FormText(const TEditedNode& node, const QByteArray& indent = {}) {
  QByteArray text = OwnText(node, indent);
  for (const TNodePtr& child : node.Children) text += FormText(*child, indent + "\t");
  return text + indent + "end\n";
}

TNodePtr Copy(const TEditedNode& node) {
  auto copy = std::make_shared<TEditedNode>(node);
  for (TNodePtr& child : copy->Children) child = Copy(*child);
  return copy;
}

QByteArray BinaryOfText(const QByteArray& text) {
  QByteArray binary;
  ObjectTextToBinary(text, binary);
  return binary;
}

/// A form as one text in which the order of properties does not show.
QByteArray Sorted(const QByteArray& form) {
  TFormWords words;
  const TLaidOutText text = LaidOutBinary(BinaryOfText(form), false, words);
  QByteArray sorted;
  for (quint32 i = 0; i < text.Layout.Objects.size(); ++i) {
    if (text.Layout.Objects[i].IsItem()) continue;
    sorted += text.IndentBefore(text.Layout.Objects[i].From) + text.Header(i).toByteArray() + "\n";
    QByteArrayList properties;
    for (const TPropertyPlace& property : text.Layout.PropertiesOf(i))
      properties += text.Part(property.From, property.To);
    std::ranges::sort(properties);
    sorted += properties.join('\n') + "\n";
  }
  return sorted;
}

class TTextEditMachine {
 public:
  TTextEditMachine() {
    TStepRandom random(7);
    FRoot = MakeNode("Root", "TRoot");
    for (int i = 0; i < 25; ++i) AddTo(*Any(random), random);
    FOriginal = Copy(*FRoot);
    FText = FormText(*FOriginal);
    FTouched.clear();
    FMoved.clear();
  }

  void Step(quint32 number) {
    TStepRandom random(number);
    TEditedNode& node = *Any(random);
    switch (random.Below(10)) {
      case 0:
      case 1:
        return Change(node, random);
      case 2:
        return RemoveProperty(node, random);
      case 3:
        return Rename(node);
      case 4:
        return AddTo(node, random);
      case 5:
        return Delete(node);
      case 6:
      case 7:
        return Move(node, *Any(random), random);
      default:
        return ChangeItems(node, random);
    }
  }

  QString Fault() const {
    const QByteArray after = FormText(*FRoot);
    const QByteArray edited = EditFormText(FText, BinaryOfText(FText), BinaryOfText(after));
    if (Sorted(edited) != Sorted(after)) return Told("says something else", edited, after);
    return LostLines(*FRoot, {}, true, edited);
  }

  QString StepText() const { return FStepText; }

 private:
  static QString Told(const char* what, const QByteArray& edited, const QByteArray& after) {
    return QStringLiteral("%1:\n%2\ninstead of\n%3").arg(QLatin1StringView(what), edited, after);
  }

  /// `isHere`: nothing above has been moved or has become another object.
  QString LostLines(const TEditedNode& node, const QByteArray& indent, bool isHere, const QByteArray& edited) const {
    const bool isKept = !FTouched.contains(node.Id) && !node.Name.isEmpty();
    isHere = isHere && !FMoved.contains(node.Id);
    if (isKept && isHere && !edited.contains(OwnText(node, indent))) return Told("lost", edited, OwnText(node, indent));
    if (isKept && !edited.contains("object  " + node.Name + " : " + node.ClassName + "\n"))
      return Told("wrote anew", edited, node.Name);
    for (const TNodePtr& child : node.Children) {
      const QString lost = LostLines(*child, indent + "\t", isHere, edited);
      if (!lost.isEmpty()) return lost;
    }
    return {};
  }

  TNodePtr MakeNode(const QByteArray& name, const QByteArray& className) {
    return std::make_shared<TEditedNode>(TEditedNode{FNextId++, name, className, {}, {}, {}});
  }

  static void Collect(TEditedNode& node, std::vector<TEditedNode*>& all) {
    all.push_back(&node);
    for (const TNodePtr& child : node.Children) Collect(*child, all);
  }

  TEditedNode* Any(TStepRandom& random) {
    std::vector<TEditedNode*> all;
    Collect(*FRoot, all);
    return all[size_t(random.Below(int(all.size())))];
  }

  TEditedNode* ParentOf(const TEditedNode& node) {
    std::vector<TEditedNode*> all;
    Collect(*FRoot, all);
    const auto holds = [&node](const TEditedNode* parent) {
      return std::ranges::any_of(parent->Children, [&node](const TNodePtr& child) { return child.get() == &node; });
    };
    const auto found = std::ranges::find_if(all, holds);
    return found == all.end() ? nullptr : *found;
  }

  static int AnyPlace(size_t count, TStepRandom& random) { return random.Below(int(count) + 1); }

  void AddTo(TEditedNode& node, TStepRandom& random) {
    const bool hasName = random.Below(6) != 0;
    TNodePtr child = MakeNode(hasName ? "N" + NumberText(FNextId) : QByteArray(), "T" + NumberText(random.Below(4)));
    for (int i = random.Below(4); i > 0; --i) child->Properties["P" + NumberText(random.Below(5))] = FNextValue++;
    for (int i = random.Below(5) - 2; i > 0; --i) child->Items.push_back(FNextValue++);
    FTouched.insert(child->Id);
    FStepText = QStringLiteral("add %1 to %2").arg(child->Id).arg(node.Id);
    node.Children.insert(node.Children.begin() + AnyPlace(node.Children.size(), random), child);
  }

  void Change(TEditedNode& node, TStepRandom& random) {
    FTouched.insert(node.Id);
    FStepText = QStringLiteral("change %1").arg(node.Id);
    node.Properties["P" + NumberText(random.Below(5))] = FNextValue++;
  }

  void RemoveProperty(TEditedNode& node, TStepRandom& random) {
    if (node.Properties.empty()) return;
    FTouched.insert(node.Id);
    FStepText = QStringLiteral("remove a property of %1").arg(node.Id);
    node.Properties.erase(std::next(node.Properties.begin(), random.Below(int(node.Properties.size()))));
  }

  void Rename(TEditedNode& node) {
    FTouched.insert(node.Id);
    // Others of its class may be taken for it, and what is in it for what has moved.
    TouchAll(ParentOf(node) ? *ParentOf(node) : node);
    FStepText = QStringLiteral("rename %1").arg(node.Id);
    if (!node.Name.isEmpty()) node.Name = "R" + NumberText(FNextValue++);
  }

  void TouchAll(TEditedNode& node) {
    std::vector<TEditedNode*> all;
    Collect(node, all);
    for (const TEditedNode* one : all) FMoved.insert(one->Id);
  }

  void Delete(TEditedNode& node) {
    TEditedNode* parent = ParentOf(node);
    if (!parent) return;
    FStepText = QStringLiteral("delete %1").arg(node.Id);
    std::erase_if(parent->Children, [&node](const TNodePtr& child) { return child.get() == &node; });
  }

  void Move(TEditedNode& node, TEditedNode& to, TStepRandom& random) {
    TEditedNode* parent = ParentOf(node);
    std::vector<TEditedNode*> below;
    Collect(node, below);
    if (!parent || std::ranges::find(below, &to) != below.end()) return;
    FMoved.insert(node.Id);
    FStepText = QStringLiteral("move %1 to %2").arg(node.Id).arg(to.Id);
    const auto at = std::ranges::find_if(parent->Children, [&](const TNodePtr& child) { return child.get() == &node; });
    const TNodePtr moved = *at;
    parent->Children.erase(at);
    to.Children.insert(to.Children.begin() + AnyPlace(to.Children.size(), random), moved);
  }

  void ChangeItems(TEditedNode& node, TStepRandom& random) {
    FTouched.insert(node.Id);
    FStepText = QStringLiteral("change the items of %1").arg(node.Id);
    std::vector<int>& items = node.Items;
    const auto at = items.begin() + random.Below(int(items.size()) + 1);
    const int what = items.empty() || at == items.end() ? 0 : random.Below(4);
    if (what == 0)
      items.insert(at, FNextValue++);
    else if (what == 1)
      items.erase(at);
    else if (what == 2)
      *at = FNextValue++;
    else
      std::rotate(items.begin(), at, items.end());
  }

  int FNextId = 0;
  int FNextValue = 1;
  TNodePtr FRoot;
  TNodePtr FOriginal;
  QByteArray FText;
  std::set<int> FTouched;
  std::set<int> FMoved;
  QString FStepText;
};

TEST(FormTextEditModelTest, RandomEditsChangeWhatTheySayAndNothingElse) {
  for (quint32 seed = 1; seed <= 12; ++seed)
    TModelRun(
        ModelSeed(seed), [] { return std::make_unique<TTextEditMachine>(); }, 5000)
        .Run(40);
}

}  // namespace
}  // namespace kt
