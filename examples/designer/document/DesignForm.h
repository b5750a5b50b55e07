#pragma once

#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/vcl/forms/Form.h"

#include <QString>

namespace designer {

/// The live form of a document: in design mode, under the class name that its file has, although no such class exists
/// here. Its class publishes what TForm does, with two properties as mere values: Visible, as a form being designed is
/// shown by whoever designs it, and ActiveControl, which may stand on something that nobody knows.
class TDesignForm : public kt::TForm {
 public:
  using Inherited = kt::TForm;

  /// The class of that name; made on the first call, it lives as long as the process.
  static const kt::TClassInfo* ClassNamed(const QString& className);
  const kt::TClassInfo* ClassType() const override { return FClass; }

 protected:
  explicit TDesignForm(const kt::TClassInfo* classInfo) : TForm(nullptr), FClass(classInfo) {}

  void Construct() override;
  void Notification(kt::TComponent* component, kt::TOperation operation) override;

 private:
  static kt::TPropInfo::TDefinition VisibleAsValue();
  static kt::TPropInfo::TDefinition ActiveControlAsValue();

  const kt::TClassInfo* FClass;
  bool FIsVisibleLater = false;
  kt::TComponent* FActiveLater = nullptr;
};

}  // namespace designer
