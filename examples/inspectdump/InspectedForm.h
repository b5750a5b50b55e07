#pragma once

#include "kt/KTObjectInspector.h"
#include "kt/rtl/streams/FormConversion.h"

#include <QString>

#include <memory>

/// A form file whose components are shown by an object inspector, as text. Needs a QCoreApplication at most.
class TInspectedForm {
 public:
  /// Raises what kt::LoadComponentFromFile() raises. Classes and properties that nobody knows are kept as they are.
  explicit TInspectedForm(const QString& fileName);
  ~TInspectedForm();

  /// Lists properties below their categories.
  void SetCategories(bool value) { FInspector->SetArrangeByCategory(value); }
  /// Every component with its tree of properties, a line each: what is modified has a star before it. Line breaks in
  /// values show as \r and \n.
  QString Text();
  /// Writes a value through the inspector: `path` is the component's name, unless it is the form's own, and the path of
  /// the property. Raises kt::EPropertyError when there is nothing at that path or it is read-only, and what the
  /// property raises for a value that it does not take.
  void SetValue(const QString& path, const QString& value);
  /// Replaces the file as a whole, in its own format.
  void Save();

 private:
  void Inspect(kt::TComponent* component);
  QString TextOf(kt::TComponent* component, int level);
  kt::TComponent* TakeComponent(QString& path) const;

  QString FFileName;
  kt::TStreamOriginalFormat FFormat;
  std::unique_ptr<kt::TComponent> FForm;
  std::unique_ptr<kt::TKTObjectInspector> FInspector;
};
