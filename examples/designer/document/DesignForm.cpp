#include "designer/document/DesignForm.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <map>
#include <memory>

namespace designer {

void TDesignForm::Construct() {
  TForm::Construct();
  SetDesigning(true);
  SetDesignInstance(true);
}

void TDesignForm::Notification(kt::TComponent* component, kt::TOperation operation) {
  TForm::Notification(component, operation);
  if (operation == kt::opRemove && component == FActiveLater) FActiveLater = nullptr;
}

static TDesignForm& FormOf(kt::TObject& object) { return static_cast<TDesignForm&>(object); }

kt::TPropInfo::TDefinition TDesignForm::VisibleAsValue() {
  return {.Name = QStringLiteral("Visible"),
          .Type = &kt::TypeInfoOf<bool>,
          .Access = std::make_unique<kt::TFunctionAccess<qint64>>(
              [](kt::TObject& object) { return qint64(FormOf(object).FIsVisibleLater); },
              [](kt::TObject& object, qint64 value) { FormOf(object).FIsVisibleLater = value != 0; }),
          .Default = 0,
          .Stored = {}};
}

kt::TPropInfo::TDefinition TDesignForm::ActiveControlAsValue() {
  const auto set = [](kt::TObject& object, kt::TObject* value) {
    TDesignForm& form = FormOf(object);
    form.FActiveLater = static_cast<kt::TComponent*>(value);
    if (form.FActiveLater) form.FActiveLater->FreeNotification(&form);
  };
  return {.Name = QStringLiteral("ActiveControl"),
          .Type = &kt::TypeInfoOf<kt::TWinControl>,
          .Access = std::make_unique<kt::TFunctionAccess<kt::TObject*>>(
              [](kt::TObject& object) -> kt::TObject* { return FormOf(object).FActiveLater; }, set),
          .Stored = {}};
}

const kt::TClassInfo* TDesignForm::ClassNamed(const QString& className) {
  static std::map<QString, std::unique_ptr<kt::TClassInfo>> classes;
  std::unique_ptr<kt::TClassInfo>& info = classes[className];
  if (info) return info.get();
  kt::TClassInfo::TDefinition definition;
  definition.Name = className;
  definition.Parent = kt::TForm::Class();
  definition.Properties.push_back(VisibleAsValue());
  definition.Properties.push_back(ActiveControlAsValue());
  definition.Factory = [className](kt::TObject*) -> kt::TObject* {
    return kt::Make<TDesignForm>(ClassNamed(className)).release();
  };
  info = std::make_unique<kt::TClassInfo>(std::move(definition));
  return info.get();
}

}  // namespace designer
