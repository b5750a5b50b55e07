// Pictures: a button that asks for a file.
#include "designer/document/Pictures.h"
#include "designer/inspector/DesignInspector.h"
#include "designer/inspector/ValuePresets.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace designer {

using namespace kt;

namespace {

void LoadInto(TDesignInspector& inspector, TKTItemProperty& item, const QString& fileName) {
  if (inspector.OnWriting) inspector.OnWriting();
  try {
    const TKTInspectorObjects& objects = inspector.GetObjects();
    for (int i = 0; i < objects.GetCount(); ++i) {
      TObject* holder = HolderOf(objects.GetItem(i)->GetObjects(), item);
      TObject* picture = holder ? GetObjectProp(holder, item.GetRealPropName()) : nullptr;
      if (picture) LoadPicture(*picture, fileName);
    }
  } catch (...) {
    if (inspector.OnFailed) inspector.OnFailed();
    throw;
  }
  if (inspector.OnWritten) inspector.OnWritten(item.GetName());
  inspector.InvalidateScan();
}

void AskAndLoad(TDesignInspector& inspector, TKTItemProperty& item, const std::function<QString()>& ask) {
  const QString path = item.GetFullPathName();
  const QString fileName = ask();
  if (fileName.isEmpty()) return;
  // A scan may have made the items anew meanwhile.
  TKTItemProperty* present = inspector.GetItems().FindItemByFullPathName(path);
  if (present) LoadInto(inspector, *present, fileName);
}

}  // namespace

void AddPictureButton(TDesignInspector& inspector, const std::function<QString()>& ask) {
  TKTPropertyPreset* preset = inspector.GetPresets().Add();
  preset->SetName(QStringLiteral("Pictures"));
  preset->GetTypeNames().Add(QStringLiteral("TPicture"));
  preset->GetTypeNames().Add(QStringLiteral("TGraphic"));
  preset->SetTypeKinds({tkClass});
  preset->SetEditStyle(esEllipsis);
  preset->OnEditButtonClick = [&inspector, ask](TObject* sender) {
    if (auto* item = dynamic_cast<TKTItemProperty*>(sender)) AskAndLoad(inspector, *item, ask);
  };
  preset->SetMatchTypes({mtPropertyType});
  preset->SetActions({pftEditStyle});
}

}  // namespace designer
