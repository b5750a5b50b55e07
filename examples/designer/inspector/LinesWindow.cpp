#include "designer/inspector/LinesWindow.h"

#include "designer/inspector/DesignInspector.h"
#include "designer/inspector/ValuePresets.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace designer {

using namespace kt;

TLinesWindow::TLinesWindow(const QString& title, const QStringList& lines, QWidget* parent)
    : QDialog(parent), FEdit(new QPlainTextEdit(lines.join(u'\n'))) {
  setWindowTitle(title);
  auto* layout = new QVBoxLayout(this);
  auto* label = new QLabel(QStringLiteral("&Lines:"));
  label->setBuddy(FEdit);
  layout->addWidget(label);
  layout->addWidget(FEdit);
  FEdit->setTabChangesFocus(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  resize(360, 260);
}

QStringList TLinesWindow::Lines() const {
  const QString text = FEdit->toPlainText();
  return text.isEmpty() ? QStringList() : text.split(u'\n');
}

bool TLinesWindow::IsChanged() const { return FEdit->document()->isModified(); }

namespace {

/// Line by line: in a text an empty last line would be none.
void PutLines(TStrings& strings, const QStringList& lines) {
  const TUpdateBracket bracket(strings);
  strings.Clear();
  for (const QString& line : lines) strings.Add(line);
}

QStringList LinesOf(TStrings& strings) {
  QStringList lines;
  for (int i = 0; i < strings.GetCount(); ++i) lines.append(strings.GetStrings(i));
  return lines;
}

TStrings* StringsOf(TObject* inspected, TKTItemProperty& item) {
  TObject* holder = inspected ? HolderOf(inspected, item) : nullptr;
  return holder ? dynamic_cast<TStrings*>(GetObjectProp(holder, item.GetRealPropName())) : nullptr;
}

void SetLines(TDesignInspector& inspector, TKTItemProperty& item, const QStringList& lines) {
  if (inspector.OnWriting) inspector.OnWriting();
  const TKTInspectorObjects& objects = inspector.GetObjects();
  for (int i = 0; i < objects.GetCount(); ++i) {
    TStrings* strings = StringsOf(objects.GetItem(i)->GetObjects(), item);
    if (strings) PutLines(*strings, lines);
  }
  if (inspector.OnWritten) inspector.OnWritten(item.GetName());
  inspector.InvalidateScan();
}

void EditLines(TDesignInspector& inspector, TKTItemProperty& item) {
  const TKTInspectorObjects& objects = inspector.GetObjects();
  TStrings* first = objects.GetCount() > 0 ? StringsOf(objects.GetItem(0)->GetObjects(), item) : nullptr;
  if (!first) return;
  const QString path = item.GetFullPathName();
  TLinesWindow window(path, LinesOf(*first), inspector.GetHandle()->window());
  if (window.exec() != QDialog::Accepted || !window.IsChanged()) return;
  // A scan may have made the items anew meanwhile.
  TKTItemProperty* present = inspector.GetItems().FindItemByFullPathName(path);
  if (present) SetLines(inspector, *present, window.Lines());
}

}  // namespace

void AddLinesButton(TDesignInspector& inspector) {
  TKTPropertyPreset* preset = inspector.GetPresets().Add();
  preset->SetName(QStringLiteral("Lines"));
  preset->GetTypeNames().Add(QStringLiteral("TStrings"));
  preset->SetTypeKinds({tkClass});
  preset->SetEditStyle(esEllipsis);
  preset->OnEditButtonClick = [&inspector](TObject* sender) {
    if (auto* item = dynamic_cast<TKTItemProperty*>(sender)) EditLines(inspector, *item);
  };
  preset->SetMatchTypes({mtPropertyType});
  preset->SetActions({pftEditStyle});
}

}  // namespace designer
