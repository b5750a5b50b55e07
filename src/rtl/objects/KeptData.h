#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace kt {

class TComponent;
class TPersistent;

/// What a reader found in a stream for an object and could not give to it, kept so that a writer can put it back
/// unchanged.
struct TKeptData {
  struct TProperty {
    QString Path;
    /// The value in the binary object format, its type code included.
    QByteArray Value;
  };
  struct TChild {
    /// The place among all children in the stream.
    int Position;
    TComponent* Component;
  };

  /// In the order of the stream.
  std::vector<TProperty> Properties;
  /// The stand-ins for children of unknown classes, in the order of the stream.
  std::vector<TChild> Children;
  /// The stand-in below which the stream had this object, and which writes it; else null.
  TComponent* StandInParent = nullptr;
};

/// Kept data lies beside the objects, in a table of the process, because next to no object has any. An
/// object's entry goes with the object.

/// Null when nothing was kept. Never looks at the object itself, so a pointer to one that is gone only finds nothing.
TKeptData* FindKeptData(const TPersistent* object);
TKeptData& EnsureKeptData(const TPersistent* object);
void ForgetKeptData(const TPersistent* object);

}  // namespace kt
