#include "Subjects.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/PropAccess.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <map>

namespace kt::benchmarks {
namespace {

/// The road to one element of a subject's values.
template <class V, auto Values, class T>
class TElementAccess : public TValueAccess<V> {
 public:
  explicit TElementAccess(size_t index) : TValueAccess<V>(true, true), FIndex(index) {}

  V Get(TObject& instance) const override { return V((static_cast<TSubject&>(instance).*Values)[FIndex]); }
  void Set(TObject& instance, const V& value) const override {
    (static_cast<TSubject&>(instance).*Values)[FIndex] = T(value);
  }

 private:
  size_t FIndex;
};

TPropInfo::TDefinition DefinitionOf(int number) {
  const size_t index = size_t(number) / 3;
  TPropInfo::TDefinition definition;
  definition.Name = QStringLiteral("Property%1").arg(number, 4, 10, QLatin1Char('0'));
  switch (number % 3) {
    case 0:
      definition.Type = &TypeInfoOf<int>;
      definition.Access = std::make_unique<TElementAccess<qint64, &TSubject::Numbers, int>>(index);
      definition.Default = 0;
      break;
    case 1:
      definition.Type = &TypeInfoOf<QString>;
      definition.Access = std::make_unique<TElementAccess<QString, &TSubject::Texts, QString>>(index);
      break;
    default:
      definition.Type = &TypeInfoOf<bool>;
      definition.Access = std::make_unique<TElementAccess<qint64, &TSubject::Truths, bool>>(index);
      definition.Default = 0;
  }
  return definition;
}

}  // namespace

const TClassInfo* SubjectClass(int properties) {
  static std::map<int, std::unique_ptr<TClassInfo>> classes;
  std::unique_ptr<TClassInfo>& known = classes[properties];
  if (!known) {
    TClassInfo::TDefinition definition;
    definition.Name = QStringLiteral("TSubject%1").arg(properties);
    definition.Parent = TComponent::Class();
    // Name and Tag are among them.
    for (int i = 0; i < properties - 2; ++i) definition.Properties.push_back(DefinitionOf(i));
    known = std::make_unique<TClassInfo>(std::move(definition));
  }
  return known.get();
}

std::unique_ptr<TSubject> MakeSubject(int properties) {
  auto subject = Make<TSubject>(SubjectClass(properties), properties);
  for (size_t i = 0; i < subject->Texts.size(); ++i) subject->Texts[i] = QStringLiteral("value %1").arg(i);
  return subject;
}

}  // namespace kt::benchmarks
