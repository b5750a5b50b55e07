#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/PropInfo.h"

#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace kt {

/// A class as a value: its name, ancestor, published properties and methods, and how to make an instance. A class
/// reference is a `const TClassInfo*`.
///
/// Class infos of C++ classes are made once by TClassBuilder and live as long as the process. Others are made at run
/// time from a TDefinition, for objects whose properties come from elsewhere; their maker owns them and keeps them
/// alive while an instance or a class reference is in use.
class TClassInfo {
 public:
  /// Makes an instance in its second phase complete. `parent` is what TCreatedIn of the class says: the owner of a
  /// component (may be null: the caller owns then), the collection of an item, unused for other classes (the caller
  /// owns).
  using TFactory = std::function<TObject*(TObject* parent)>;

  /// A method that form files can name.
  struct TPublishedMethod {
    QString Name;
    std::function<TMethod(TObject*)> Bind;
  };

  struct TDefinition {
    QString Name;
    const TClassInfo* Parent = nullptr;
    std::deque<TPropInfo::TDefinition> Properties = {};
    std::vector<TPublishedMethod> Methods = {};
    /// Empty when the class cannot be created by reference (an abstract class).
    TFactory Factory = {};
  };

  explicit TClassInfo(TDefinition definition);
  TClassInfo(const TClassInfo&) = delete;
  TClassInfo& operator=(const TClassInfo&) = delete;

  const QString& ClassName() const { return FTypeInfo.Name(); }
  /// Null for TObject.
  const TClassInfo* ClassParent() const { return FParent; }
  const TTypeInfo* TypeInfo() const { return &FTypeInfo; }
  /// True for the class itself too; false for null.
  bool InheritsFrom(const TClassInfo* ancestor) const;
  /// Compares without regard to ASCII case; ancestors do not count.
  bool ClassNameIs(QStringView name) const;

  /// The published property of that name, without regard to ASCII case, of this class or its nearest ancestor that has
  /// one; null when there is none. Cost: one binary search.
  const TPropInfo* FindProp(QStringView name) const;
  /// All published properties, ancestors' first, in the order of their first publication; where a class publishes a
  /// name again, its own property stands in the place of the inherited one.
  const std::vector<const TPropInfo*>& Props() const { return FAllProps; }
  /// The same properties in the order of their names, by CompareText().
  const std::vector<const TPropInfo*>& PropsByName() const { return FAllByName; }

  bool IsCreatable() const { return bool(FFactory); }
  /// See TFactory. Raises EInvalidCast "Class %s cannot be created by name" when the class is abstract.
  TObject* CreateInstance(TObject* parent) const;

  /// The named published method bound to `instance` (an object of this class); empty when there is none.
  TMethod FindMethod(QStringView name, TObject* instance) const;
  /// The name of the published method that `method` calls on its instance, or that it is known by (NamedMethod());
  /// empty when it is neither.
  QString MethodName(const TMethod& method) const;

 private:
  void IndexProps();

  const TClassInfo* FParent;
  TClassTypeInfo FTypeInfo;
  std::deque<TPropInfo> FOwnProps;
  std::vector<const TPropInfo*> FAllProps;
  std::vector<const TPropInfo*> FAllByName;
  std::vector<TPublishedMethod> FMethods;
  TFactory FFactory;
};

}  // namespace kt
