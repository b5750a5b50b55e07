#include "designer/palette/PaletteTable.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/forms/Form.h"

#include <QSet>

#include <iterator>

namespace designer {

using namespace kt;

namespace {

struct TListedGroup {
  const char* Title;
  /// The names of the classes, with blanks between.
  const char* Names;
};

constexpr TListedGroup kGroups[] = {
    {"Standard",
     "TMainMenu TPopupMenu TLabel TEdit TMemo TButton TCheckBox TRadioButton TListBox TComboBox TScrollBar TGroupBox "
     "TRadioGroup TPanel TActionList"},
    {"Additional",
     "TBitBtn TSpeedButton TMaskEdit TStringGrid TDrawGrid TImage TShape TBevel TScrollBox TCheckListBox TSplitter "
     "TStaticText TLabeledEdit TColorBox TKTItemListEditor TKTObjectInspector"},
    {"Common controls",
     "TTabControl TPageControl TImageList TRichEdit TTrackBar TProgressBar TUpDown THotKey TDateTimePicker "
     "TMonthCalendar TTreeView TListView THeaderControl TStatusBar TToolBar TCoolBar"},
    {"System", "TTimer TPaintBox TApplicationEvents"},
    {"Dialogs",
     "TOpenDialog TSaveDialog TOpenPictureDialog TSavePictureDialog TFontDialog TColorDialog TPrintDialog "
     "TPrinterSetupDialog TFindDialog TReplaceDialog"},
};

/// What is nothing by itself: stands only on, or in, something of its own kind.
constexpr const char* kParts[] = {"TComponent", "TMenuItem", "TAction", "TTabSheet", "TFrame", "TToolButton"};

bool IsOffered(const TClassInfo* info) {
  return info && info->IsCreatable() && info->InheritsFrom(TComponent::Class()) &&
         !info->InheritsFrom(TCustomForm::Class());
}

TPaletteGroup GroupOf(const TListedGroup& listed, QSet<QString>& named) {
  TPaletteGroup group{QString::fromLatin1(listed.Title), {}};
  for (const QString& name : QString::fromLatin1(listed.Names).split(u' ')) {
    named.insert(name);
    const TClassInfo* info = GetClass(name);
    if (IsOffered(info)) group.Classes.push_back(info);
  }
  return group;
}

TPaletteGroup GroupOfOthers(const QSet<QString>& named) {
  TPaletteGroup group{QStringLiteral("Others"), {}};
  for (const TClassInfo* info : RegisteredClasses()) {
    if (IsOffered(info) && !named.contains(info->ClassName())) group.Classes.push_back(info);
  }
  return group;
}

}  // namespace

std::vector<TPaletteGroup> PaletteGroups() {
  QSet<QString> named(std::begin(kParts), std::end(kParts));
  std::vector<TPaletteGroup> groups;
  for (const TListedGroup& listed : kGroups) groups.push_back(GroupOf(listed, named));
  groups.push_back(GroupOfOthers(named));
  std::erase_if(groups, [](const TPaletteGroup& group) { return group.Classes.empty(); });
  return groups;
}

}  // namespace designer
