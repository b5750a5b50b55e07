#include "kt/qobjects/ValueStrings.h"

#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {

QStringList LinesOf(TStrings& strings) {
  QStringList lines;
  for (int i = 0; i < strings.GetCount(); ++i) lines += strings.GetStrings(i);
  return lines;
}

TMemberTexts StringsTexts(const TMemberPtr& member) {
  return {.ToText =
              [member](TValueHolder& holder) {
                const auto lines = Make<TStringList>();
                for (const QString& line : member->Read(holder).toStringList()) lines->Add(line);
                return lines->GetCommaText();
              },
          .FromText =
              [member](TValueHolder& holder, const QString& text) {
                const auto lines = Make<TStringList>();
                lines->SetCommaText(text);
                const QStringList written = LinesOf(*lines);
                ChangeMember(holder.AsObject(), *member, [&](const QVariant&) { return QVariant(written); });
                return true;
              }};
}

QStringList TValueStrings::Lines() { return LinesOf(*this); }

void TValueStrings::Follow() {
  // Whoever is in the middle of changing the lines has the last word.
  if (GetUpdateCount() > 0 || FIsFollowing) return;
  const TLifeWatch self(this);
  const QStringList lines = FMember->Read(FHolder).toStringList();
  if (!self.IsAlive() || lines == Lines()) return;
  const TLiveFlag following(this, FIsFollowing);
  const TUpdateBracket bracket(*this);
  Clear();
  for (const QString& line : lines) Add(line);
}

void TValueStrings::Changed() {
  const TLifeWatch self(this);
  TStringList::Changed();
  if (!self.IsAlive() || FIsFollowing || GetUpdateCount() > 0) return;
  if (!FMember->Write) throw EPropReadOnly(SReadOnlyProperty.toString());
  const QStringList lines = Lines();
  ChangeMember(FHolder.AsObject(), *FMember, [&](const QVariant&) { return QVariant(lines); });
}

}  // namespace kt
