#include "kt/vcl/menus/MenuTexts.h"

#include "kt/vcl/menus/Menu.h"

#include <algorithm>

namespace kt {

namespace {

bool AreDesigned(const TMenuItem& items) {
  const TMenu* menu = items.GetParentMenu();
  return menu && menu->HasState(csDesigning);
}

/// Where the mark stands, or -1; "&&" stands for "&" itself.
qsizetype PlaceOfMark(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[i + 1] != u'&') return i;
    ++i;
  }
  return -1;
}

/// Takes a letter that is free; false when it is not.
bool Take(QString& taken, QChar letter) {
  if (!letter.isLetterOrNumber() || taken.contains(letter.toUpper())) return false;
  taken += letter.toUpper();
  return true;
}

void MarkFirstFree(QString& text, QString& taken) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!Take(taken, text[i])) continue;
    text.insert(i, u'&');
    return;
  }
}

/// Those that have a letter keep it, in the order of the entries.
void AssignHotkeys(std::vector<TShownMenuItem>& items) {
  QString taken;
  std::vector<TShownMenuItem*> without;
  for (TShownMenuItem& item : items) {
    if (item.Item->IsLine()) continue;
    const qsizetype mark = PlaceOfMark(item.Text);
    if (mark >= 0 && Take(taken, item.Text[mark + 1])) continue;
    if (mark >= 0) item.Text.remove(mark, 1);
    without.push_back(&item);
  }
  for (TShownMenuItem* item : without) MarkFirstFree(item->Text, taken);
}

void ReduceLines(std::vector<TShownMenuItem>& items) {
  std::vector<TShownMenuItem> kept;
  for (const TShownMenuItem& item : items) {
    const bool isNeedless = item.Item->IsLine() && (kept.empty() || kept.back().Item->IsLine());
    if (!isNeedless) kept.push_back(item);
  }
  if (!kept.empty() && kept.back().Item->IsLine()) kept.pop_back();
  items = kept;
}

}  // namespace

std::vector<TShownMenuItem> ShownMenuItems(const TMenuItem& items) {
  std::vector<TShownMenuItem> shown;
  for (int i = 0; i < items.GetCount(); ++i) {
    TMenuItem* item = items.GetItems(i);
    if (item->IsVisible()) shown.push_back({item, item->GetCaption()});
  }
  if (AreDesigned(items)) return shown;
  if (items.ReducesLines()) ReduceLines(shown);
  if (items.AssignsHotkeys()) AssignHotkeys(shown);
  return shown;
}

}  // namespace kt
