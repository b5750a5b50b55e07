#include "support/ItemLists.h"

#include <sstream>

namespace kt::tests {

namespace {

void Append(std::ostream& text, TKTItemProps& items) {
  for (int i = 0; i < items.GetCount(); ++i) {
    TKTItemProp* item = items.GetItem(i);
    text << (i > 0 ? " " : "") << item->GetName().toStdString();
    if (!item->HasItems()) continue;
    text << " [";
    Append(text, item->GetItems());
    text << ']';
  }
}

void Fill(std::istream& text, TKTItemProps& items) {
  TKTItemProp* last = nullptr;
  for (std::string word; text >> word;) {
    const bool opens = word.front() == '[';
    if (opens) word.erase(0, 1);
    size_t closes = 0;
    while (word.back() == ']') {
      word.pop_back();
      ++closes;
    }
    // Back into the stream what belongs to the level below.
    if (opens) {
      std::string rest;
      std::getline(text, rest, '\0');
      int depth = 1;
      std::string inside = word + std::string(closes, ']') + rest;
      size_t end = 0;
      for (; end < inside.size() && depth > 0; ++end) depth += inside[end] == '[' ? 1 : inside[end] == ']' ? -1 : 0;
      std::istringstream below(inside.substr(0, end - 1));
      Fill(below, last->GetItems());
      std::istringstream after(inside.substr(end));
      return Fill(after, items);
    }
    last = items.Add(QString::fromStdString(word), {});
  }
}

}  // namespace

std::string Tree(TKTItemProps& items) {
  std::ostringstream text;
  Append(text, items);
  return text.str();
}

std::string Rows(const TKTCustomItemListEditor& editor) {
  std::string text;
  for (int row = 0; row < editor.GetVisibleItemCount(); ++row) {
    TKTItemProp* item = editor.GetVisibleItem(row);
    text += row > 0 ? " | " : "";
    text += item == editor.GetSelected() ? ">" : "";
    text += item->GetName().toStdString();
  }
  return text;
}

std::string Entries(const TKTCustomItemListEditor& editor) {
  std::string text;
  for (int i = 0; i < editor.GetItemCount(); ++i) {
    text += i > 0 ? " " : "";
    text += editor.GetItem(i)->GetName().toStdString();
  }
  return text;
}

namespace {

struct TWalk {
  const TKTCustomItemListEditor& Editor;
  std::string Entries;
  std::string Rows;
  int EntryCount = 0;
  int RowCount = 0;

  void Visit(TKTItemProps& items, bool isShown) {
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProp* item = items.GetItem(i);
      const std::string name = item->GetName().toStdString();
      Entries += (EntryCount++ > 0 ? " " : "") + name;
      const bool hasRow = isShown && item->IsVisibleItem();
      if (hasRow) Rows += (RowCount++ > 0 ? " | " : "") + std::string(item == Editor.GetSelected() ? ">" : "") + name;
      if (item->HasItems()) Visit(item->GetItems(), hasRow && item->IsExpanded());
    }
  }
};

TWalk Walked(const TKTCustomItemListEditor& editor) {
  TWalk walk{.Editor = editor, .Entries = {}, .Rows = {}};
  walk.Visit(editor.GetItems(), true);
  return walk;
}

}  // namespace

std::string WalkedRows(const TKTCustomItemListEditor& editor) { return Walked(editor).Rows; }

std::string WalkedEntries(const TKTCustomItemListEditor& editor) { return Walked(editor).Entries; }

int OpenBrackets(TKTItemProps& items) {
  int count = items.GetUpdateCount();
  for (int i = 0; i < items.GetCount(); ++i) {
    if (items.GetItem(i)->HasItems()) count += OpenBrackets(items.GetItem(i)->GetItems());
  }
  return count;
}

std::string TItemListTest::SelectedText() {
  const TKTItemProp* item = FEditor->GetSelected();
  return item ? item->GetName().toStdString() : "-";
}

void TItemListTest::Fill(const std::string& tree) {
  std::istringstream text(tree);
  tests::Fill(text, Items());
}

TKTItemProp& TItemListTest::Item(const QString& path) {
  TKTItemProp* item = Items().FindItemByFullPathName(path);
  if (!item) throw std::runtime_error("no item " + path.toStdString());
  return *item;
}

}  // namespace kt::tests
