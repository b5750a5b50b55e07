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

kt::TPropInfo::TDefinition TDesignForm::VisibleAsValue() {
  const auto form = [](kt::TObject& object) -> TDesignForm& { return static_cast<TDesignForm&>(object); };
  return {.Name = QStringLiteral("Visible"),
          .Type = &kt::TypeInfoOf<bool>,
          .Access = std::make_unique<kt::TFunctionAccess<qint64>>(
              [form](kt::TObject& object) { return qint64(form(object).FIsVisibleLater); },
              [form](kt::TObject& object, qint64 value) { form(object).FIsVisibleLater = value != 0; }),
          .Default = 0,
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
  definition.Factory = [className](kt::TObject*) -> kt::TObject* {
    return kt::Make<TDesignForm>(ClassNamed(className)).release();
  };
  info = std::make_unique<kt::TClassInfo>(std::move(definition));
  return info.get();
}

}  // namespace designer
