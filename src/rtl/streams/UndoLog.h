#pragma once

#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/LifeTable.h"
#include "kt/rtl/streams/PropSnapshot.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <unordered_set>
#include <vector>

namespace kt {

class TCollection;
class TComponent;
class TItemsExchange;
class TPersistent;
class TStringList;
class TStrings;

/// What the objects that existed before a load had, so that they get it back when the load fails: names, values of
/// published properties (of fonts and the like in them too), lines, items, the order of children, values that
/// DefineProperties() had written before, and data kept for them. An object that a handler frees meanwhile is left out.
/// Costs nothing while nothing is remembered.
class TUndoLog {
 public:
  TUndoLog();
  ~TUndoLog();
  TUndoLog(const TUndoLog&) = delete;
  TUndoLog& operator=(const TUndoLog&) = delete;

  /// Takes down what an object and the parts in its properties have now, unless that was done already.
  void Remember(TPersistent& object);
  /// Takes down, for a load below `root`, what `object` would write under a name of its DefineProperties(); the lines
  /// of a string list as such.
  void RememberDefined(TPersistent& object, const QString& name, TComponent* root);
  /// Takes down the order of the children of `parent`.
  void RememberOrder(TComponent& parent, TComponent* root);
  /// Takes over the items that a collection had; when it raises, they stay where they are.
  void Hold(TCollection& collection, std::unique_ptr<TItemsExchange>&& formerItems);

  /// Gives everything back, the last first, and forgets it. What setters and overrides raise is reported
  /// (HandleException()).
  void WriteBack() noexcept;
  /// The load has succeeded: forgets everything and frees the items that were taken over.
  void Clear() noexcept;

 private:
  struct TFormerObject {
    TPropSnapshot Values;
    /// Of a component only.
    QString Name;
    qint32 DesignInfo;
    std::vector<TKeptData::TProperty> Kept;
  };
  struct TFormerLines {
    TLifeTable::TLife Strings;
    std::unique_ptr<TStringList> Lines;
  };
  struct TFormerItems {
    TLifeTable::TLife Collection;
    std::unique_ptr<TItemsExchange> Items;
  };
  struct TFormerOrder {
    TLifeTable::TLife Parent;
    TComponent* Root;
    std::vector<TLifeTable::TLife> Children;
  };
  struct TFormerValue {
    TLifeTable::TLife Object;
    TComponent* Root;
    /// A list of one property.
    QByteArray Properties;
  };

  void RememberLines(TStrings& strings);
  void WriteBackIdentity(TFormerObject& former);
  void WriteBackLines(TFormerLines& former);
  std::vector<TLifeTable::TLife> ChildrenOf(TComponent& parent, TComponent* root);
  bool HasOrder(const TFormerOrder& former);
  void WriteBackOrder(TFormerOrder& former);
  void WriteBackDefined(TFormerValue& former);
  void WriteBackValues() noexcept;

  TLifeTable FLives;
  std::unordered_set<quint64> FRemembered;
  std::unordered_set<quint64> FWithOrder;
  std::vector<std::unique_ptr<TFormerObject>> FObjects;
  std::vector<TFormerLines> FLines;
  std::vector<TFormerItems> FItems;
  std::vector<TFormerOrder> FOrders;
  std::vector<TFormerValue> FDefined;
};

}  // namespace kt
