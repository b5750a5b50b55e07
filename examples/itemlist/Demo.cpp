#include "Demo.h"

#include <QColorDialog>
#include <QLabel>
#include <QLocale>
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

/// The value is the colour's name, in that colour.
void ShowColor(TKTItemProp& item, const QColor& color) {
  item.SetValue(color.name());
  item.GetValueFont().SetColor(static_cast<TColor>(color.red() | color.green() << 8 | color.blue() << 16));
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
  // Margins of a splitter itself would shift what is in it where one reads from right to left.
  auto* framed = new QWidget;
  auto* layout = new QVBoxLayout(framed);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->addWidget(all);
  setCentralWidget(framed);
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
  TKTItemProp* color = input->GetItems().Add(QStringLiteral("Color"), QString());
  color->SetEditStyle(esEllipsis);
  ShowColor(*color, QColor(QStringLiteral("#336699")));
  color->SetOnEditButtonClick([this](TObject* sender) {
    auto* item = static_cast<TKTItemProp*>(sender);
    Log(QStringLiteral("settings: the item's own OnEditButtonClick ") + TextOf(item));
    const QColor chosen = QColorDialog::getColor(QColor(item->GetValue()), this);
    if (chosen.isValid()) ShowColor(*item, chosen);
  });
  input->GetItems().Add(QStringLiteral("File"), QStringLiteral("notes.txt"))->SetEditStyle(esEllipsis);
  input->GetItems().Add(QStringLiteral("Weekday"), QStringLiteral("Monday"))->SetEditStyle(esPickList);
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
  LogValidationOf(editor, name);
  LogEditingOf(editor, name);
  editor.OnSelectCell = [this, name](TObject*, int col, int row, bool&) {
    Log(name + QStringLiteral(": OnSelectCell %1, %2").arg(col).arg(row));
  };
  editor.OnShowHints = [this, name](TObject*, TKTItemProp* item, QString& hint) {
    Log(name + QStringLiteral(": OnShowHints ") + TextOf(item) + QStringLiteral(": ") + hint.simplified());
  };
}

void TDemo::LogValidationOf(TKTItemListEditor& editor, const QString& name) {
  editor.OnValidate = [this, name](TObject*, TKTItemProp* item, int) {
    Log(name + QStringLiteral(": OnValidate ") + TextOf(item));
    bool isNumber = true;
    if (item && item->GetName() == u"Size") static_cast<void>(item->GetValue().toInt(&isNumber));
    if (!isNumber) throw Exception(QStringLiteral("A size is a number"));
  };
  editor.OnValidateError = [this, name](TObject*, TKTItemProp* item, int, const Exception& error) {
    Log(name + QStringLiteral(": OnValidateError ") + TextOf(item) + QStringLiteral(": ") + error.Message());
  };
  editor.OnValidated = [this, name](TObject*, TKTItemProp* item, int) {
    Log(name + QStringLiteral(": OnValidated ") + TextOf(item));
  };
}

void TDemo::LogEditingOf(TKTItemListEditor& editor, const QString& name) {
  editor.OnSetEditText = [this, name](TObject*, int, int, const QString& text) {
    Log(name + QStringLiteral(": OnSetEditText ") + text);
  };
  editor.OnGetPickList = [this, name](TObject*, const QString& item, TStrings& values) {
    Log(name + QStringLiteral(": OnGetPickList ") + item);
    if (!item.endsWith(u"Weekday")) return;
    for (int day = 1; day <= 7; ++day) values.Add(QLocale::c().dayName(day));
  };
  editor.OnEditButtonClick = [this, name](TObject* item) {
    Log(name + QStringLiteral(": OnEditButtonClick ") + TextOf(static_cast<TKTItemProp*>(item)));
  };
}

void TDemo::Log(const QString& line) { FLog->appendPlainText(line); }

void TDemo::ShowOff() {
  FSettings->FullExpand();
  FSettings->SetSelected(FSettings->GetItems().FindItemByFullPathName(QStringLiteral("Text.Alignment")));
  FSettings->SetFocus();
}

void TDemo::SetFontSize(int points) {
  QFont own = font();
  own.setPointSize(points);
  setFont(own);
  for (TKTItemListEditor* editor : {FSettings.get(), FTable.get()}) editor->GetFont().SetSize(points);
  // Which has a font of its own, for its colour.
  FSettings->GetItems().FindItemByFullPathName(QStringLiteral("Input.Color"))->GetValueFont().SetSize(points);
}
