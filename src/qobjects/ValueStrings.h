#pragma once

#include "kt/qobjects/MemberAccess.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

/// A list of texts of Qt's as the framework's string list. Follows the value whenever it is asked for, and writes each
/// change back with the whole list.
class TValueStrings : public TStringList {
 public:
  using Inherited = TStringList;

  static const TClassInfo* Class() { return TStringList::Class(); }

  /// Takes the lines that the value has now. A getter may free the list.
  void Follow();
  QStringList Lines();

 protected:
  TValueStrings(TValueHolder& holder, TMemberPtr member) : FHolder(holder), FMember(std::move(member)) {}

  void Changed() override;

 private:
  TValueHolder& FHolder;
  TMemberPtr FMember;
  bool FIsFollowing = false;
};

/// The lines of any string list.
QStringList LinesOf(TStrings& strings);

/// Lists of texts as one text: with commas between, and quotes where they are needed.
TMemberTexts StringsTexts(const TMemberPtr& member);

}  // namespace kt
