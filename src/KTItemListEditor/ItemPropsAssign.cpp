#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

class TKTItemProps::TFormerSettings {
 public:
  explicit TFormerSettings(TKTItemProps& items)
      : FItems(items), FIsAlive(&items), FSorted(items.FSorted), FDefaultCategory(items.FDefaultCategory) {
    if (!items.FCategories) return;
    FCategories = Make<TStringList>();
    FCategories->Assign(items.FCategories.get());
  }

  /// After the items have come back. Exceptions of whoever hears of the lines are reported (HandleException()).
  void PutBack() noexcept {
    GuardedCall([this] { PutCategoriesBack(); });
    if (FIsAlive.IsAlive()) GuardedCall([this] { FItems.StoreSorted(FSorted); });
    if (FIsAlive.IsAlive()) PutDefaultCategoryBack();
  }

 private:
  void PutCategoriesBack() {
    if (!FIsAlive.IsAlive() || !FItems.FCategories) return;
    // They come as they stood; sorted they are by StoreSorted().
    FItems.FCategories->SetSorted(false);
    if (FCategories) return FItems.FCategories->Assign(FCategories.get());
    FItems.FCategories->Clear();
  }
  /// It lost its flag when it was taken out.
  void PutDefaultCategoryBack() {
    if (!FDefaultCategory || FDefaultCategory->GetCollection() != &FItems) return;
    FDefaultCategory->FDefaultCategory = true;
    FItems.FDefaultCategory = FDefaultCategory.Get();
  }

  TKTItemProps& FItems;
  const TLifeWatch FIsAlive;
  const bool FSorted;
  const TItemWatch FDefaultCategory;
  std::unique_ptr<TStringList> FCategories;
};

void TKTItemProps::AssignSettings(TKTItemProps& source) {
  const TLifeWatch self(this);
  const TLifeWatch from(&source);
  // Whoever hears of the lines may have freed either.
  const auto checkLives = [&] {
    if (!self.IsAlive() || !from.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
  };
  if (source.FCategories || FCategories) GetCategories().Assign(&source.GetCategories());
  checkLives();
  StoreSorted(source.FSorted);
  checkLives();
}

void TKTItemProps::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TKTItemProps*>(source);
  if (!other || other == this) return TOwnedCollection::Assign(source);
  TFormerSettings former(*this);
  try {
    AssignSettings(*other);
    TOwnedCollection::Assign(other);
  } catch (...) {
    former.PutBack();
    throw;
  }
}

}  // namespace kt
