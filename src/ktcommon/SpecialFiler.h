#pragma once

namespace kt {

class TCollection;
class TReader;
class TWriter;

/// Streams collections whose items are of several classes, descendants of the collection's item class. Other streaming
/// of collections makes every item one of the item class.
///
/// The value is a collection of the object formats, binary and text, whose items begin with a property "ClassName":
///
///   HPresets = <
///     item
///       ClassName = 'TColorPreset'
///       Active = False
///     end>
class TGSpecialFiler {
 public:
  TGSpecialFiler() = delete;

  /// Replaces the items of `collection` by those of the next value, in one update bracket. A class is the collection's
  /// item class or a registered one. Raises EClassNotFound "Class %s not found" for others, EReadError for a class that
  /// is no descendant of the item class and for a value of another shape, and passes on what reading the items raises.
  /// The former items come back then, the same objects with their ids. A load of a form that fails goes on to give its
  /// objects back what they had, and makes these items anew.
  static void ReadCollection(TReader& reader, TCollection& collection);
  /// Writes all items with their published and defined properties, as one value.
  static void WriteCollection(TWriter& writer, TCollection& collection);
};

}  // namespace kt
