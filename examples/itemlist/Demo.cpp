#include "Demo.h"

#include <QColorDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QVBoxLayout>

using namespace kt;

namespace {

QWidget* Titled(const QString& title, QWidget* content) {
  auto* box = new QWidget;
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel(title));
  layout->addWidget(content, 1);
  return box;
}

QString TextOf(TKTItemProp* item) {
  return item ? item->GetFullPathName() + u'=' + item->GetValue() : QStringLiteral("blank line");
}

TKTItemProp* AddPick(TKTItemProps& items, const QString& name, const QString& value, const QStringList& choices) {
  TKTItemProp* item = items.Add(name, value);
  for (const QString& choice : choices) item->GetPickList().Add(choice);
  return item;
}

/// The text may only be what a mask, or a regular expression, allows.
TKTItemProp* AddMasked(TKTItemProps& items, const QString& name, const QString& value, const QString& mask) {
  TKTItemProp* item = items.Add(name, value);
  item->SetEditMask(mask);
  return item;
}

}  // namespace

TDemo::TDemo() : FSettings(Make<TKTItemListEditor>()), FTable(Make<TKTItemListEditor>()), FLog(new QPlainTextEdit) {
  setWindowTitle(QStringLiteral("Item list editor"));
  FLog->setReadOnly(true);
  FLog->setObjectName(QStringLiteral("log"));
  FillSettings();
  FillTable();
  LogEventsOf(*FSettings, QStringLiteral("settings"));
  LogEventsOf(*FTable, QStringLiteral("table"));

  auto* across = new QSplitter(Qt::Vertical);
  across->addWidget(Titled(QStringLiteral("Items across the columns"), FTable->GetHandle()));
  across->addWidget(Titled(QStringLiteral("What the editors tell"), FLog));
  across->setSizes({150, 340});
  auto* all = new QSplitter(Qt::Horizontal);
  all->addWidget(Titled(QStringLiteral("Items down the rows"), FSettings->GetHandle()));
  all->addWidget(across);
  all->setSizes({380, 480});
  all->setContentsMargins(8, 8, 8, 8);
  setCentralWidget(all);
  resize(900, 560);
}

TDemo::~TDemo() = default;

void TDemo::FillSettings() {
  FSettings->SetPropertyOptions({propEdit, propAdd, propDelete, propUnique});
  TKTItemProps& items = FSettings->GetItems();
  items.BeginUpdate();

  TKTItemProp* text = items.AddCategory(QStringLiteral("Text"), false);
  text->GetItems()
      .Add(QStringLiteral("Caption"), QStringLiteral("Hello"))
      ->SetHint(QStringLiteral("What the user reads"));
  AddPick(text->GetItems(), QStringLiteral("Alignment"), QStringLiteral("Left"),
          {QStringLiteral("Left"), QStringLiteral("Center"), QStringLiteral("Right")});
  TKTItemProp* font = text->GetItems().Add(QStringLiteral("Font"), QStringLiteral("Sans, 10"));
  font->GetItems().Add(QStringLiteral("Name"), QStringLiteral("Sans"));
  font->GetItems().Add(QStringLiteral("Size"), QStringLiteral("10"));
  TKTItemProp* style = font->GetItems().Add(QStringLiteral("Style"), QStringLiteral("[fsBold]"));
  AddPick(style->GetItems(), QStringLiteral("fsBold"), QStringLiteral("True"),
          {QStringLiteral("False"), QStringLiteral("True")});
  AddPick(style->GetItems(), QStringLiteral("fsItalic"), QStringLiteral("False"),
          {QStringLiteral("False"), QStringLiteral("True")});

  TKTItemProp* input = items.AddCategory(QStringLiteral("Input"), false);
  AddMasked(input->GetItems(), QStringLiteral("Date"), QStringLiteral("21.11.2026"), QStringLiteral("!99.99.0000;1;_"));
  AddMasked(input->GetItems(), QStringLiteral("Telephone"), QStringLiteral("(030) 123-4567"),
            QStringLiteral("!\\(999\\) 000-0000;1;_"));
  AddMasked(input->GetItems(), QStringLiteral("Letters only"), QStringLiteral("abc"), QStringLiteral("[A-Za-z]*"))
      ->SetExpressionMask(true);
  TKTItemProp* color = input->GetItems().Add(QStringLiteral("Color"), QStringLiteral("#336699"));
  color->SetEditStyle(esEllipsis);
  color->SetOnEditButtonClick([](TObject* sender) {
    auto* item = static_cast<TKTItemProp*>(sender);
    const QColor chosen = QColorDialog::getColor(QColor(item->GetValue()));
    if (chosen.isValid()) item->SetValue(chosen.name());
  });
  input->GetItems().Add(QStringLiteral("Serial number"), QStringLiteral("0815"))->SetReadOnly(true);
  input->GetItems().Add(QStringLiteral("Not for now"), QStringLiteral("disabled"))->SetEnabled(false);
  items.EndUpdate();
}

void TDemo::FillTable() {
  FTable->SetOrientation(goHorizontal);
  FTable->SetDisplayOptions(FTable->GetDisplayOptions() + TILEDisplayOptions{doMultiColValues} -
                            TILEDisplayOptions{doAutoColResize});
  FTable->SetRowCount(4);
  FTable->SetDefaultColWidth(90);
  FTable->GetTitleCaptions().SetText(QStringLiteral("Month\nRain\nSun\nWind"));
  TKTItemProps& items = FTable->GetItems();
  items.BeginUpdate();
  items.Add(QStringLiteral("January"), QStringLiteral("42 mm\n50 h\nwest"));
  items.Add(QStringLiteral("February"), QStringLiteral("33 mm\n72 h\nsouth"));
  items.Add(QStringLiteral("March"), QStringLiteral("41 mm\n121 h\neast"));
  items.Add(QStringLiteral("April"), QStringLiteral("37 mm\n169 h\nwest"));
  items.EndUpdate();
}

void TDemo::LogEventsOf(TKTItemListEditor& editor, const QString& name) {
  editor.OnValidate = [this, name](TObject*, TKTItemProp* item, int) {
    Log(name + QStringLiteral(": OnValidate ") + TextOf(item));
  };
  editor.OnValidated = [this, name](TObject*, TKTItemProp* item, int) {
    Log(name + QStringLiteral(": OnValidated ") + TextOf(item));
  };
  editor.OnSelectCell = [this, name](TObject*, int col, int row, bool&) {
    Log(name + QStringLiteral(": OnSelectCell %1, %2").arg(col).arg(row));
  };
}

void TDemo::Log(const QString& line) { FLog->appendPlainText(line); }

void TDemo::ShowOff() {
  FSettings->FullExpand();
  FSettings->SetSelected(FSettings->GetItems().FindItemByFullPathName(QStringLiteral("Text.Alignment")));
  FSettings->SetFocus();
}
