#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <memory>
#include <vector>

namespace kt::benchmarks {

/// A component whose class is made at run time, with as many published properties as are asked for: a third each are
/// numbers, texts and truth values, all stored in the object.
class TSubject : public TComponent {
 public:
  using Inherited = TComponent;

  const TClassInfo* ClassType() const override { return FClass; }

  std::vector<int> Numbers;
  std::vector<QString> Texts;
  std::vector<bool> Truths;

 protected:
  TSubject(const TClassInfo* ownClass, int properties)
      : Numbers(size_t(properties) / 3 + 1),
        Texts(size_t(properties) / 3 + 1),
        Truths(size_t(properties) / 3 + 1),
        FClass(ownClass) {}

 private:
  const TClassInfo* FClass;
};

/// The class with that many properties; lives as long as the process.
const TClassInfo* SubjectClass(int properties);
std::unique_ptr<TSubject> MakeSubject(int properties);

}  // namespace kt::benchmarks
