#pragma once

#include <QByteArray>
#include <QStringView>

namespace kt {

class TComponent;
class TPersistent;

/// What `object` writes now under one name of its DefineProperties(), as a list of properties in the binary object
/// format; empty when it has nothing to write there. `root` is the form that references count from.
QByteArray DefinedValueOf(TPersistent& object, QStringView name, TComponent* root);
/// Lets `object` read such a list.
void GiveDefinedValue(TPersistent& object, const QByteArray& properties, TComponent* root);

}  // namespace kt
