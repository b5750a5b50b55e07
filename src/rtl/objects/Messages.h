#pragma once

#include <QLatin1StringView>

/// The texts of the object runtime's exceptions. Placeholders are those of Format().
namespace kt {

// Lists and strings.
inline constexpr QLatin1StringView SListIndexError{"List index out of bounds (%d)"};
inline constexpr QLatin1StringView SListCapacityError{"List capacity out of bounds (%d)"};
inline constexpr QLatin1StringView SListCountError{"List count out of bounds (%d)"};
inline constexpr QLatin1StringView SDuplicateString{"String list does not allow duplicates"};
inline constexpr QLatin1StringView SSortedListError{"Operation not allowed on sorted list"};

// Objects and components.
inline constexpr QLatin1StringView SAssignError{"Cannot assign a %s to a %s"};
inline constexpr QLatin1StringView SInvalidCast{"Invalid class typecast"};
inline constexpr QLatin1StringView SObjectFreed{"An object was freed while it was in use"};
inline constexpr QLatin1StringView SDuplicateName{"A component named %s already exists"};
inline constexpr QLatin1StringView SInvalidName{"''%s'' is not a valid component name"};
inline constexpr QLatin1StringView SDuplicateClass{"A class named %s already exists"};
inline constexpr QLatin1StringView SClassNotFound{"Class %s not found"};
inline constexpr QLatin1StringView SCannotCreate{"Class %s cannot be created by name"};

// Properties.
inline constexpr QLatin1StringView SUnknownProperty{"Property %s does not exist"};
inline constexpr QLatin1StringView SReadOnlyProperty{"Property is read-only"};
inline constexpr QLatin1StringView SWriteOnlyProperty{"Property is write-only"};
inline constexpr QLatin1StringView SInvalidProperty{"Invalid property"};
inline constexpr QLatin1StringView SInvalidPropertyElement{"Invalid property element: %s"};
inline constexpr QLatin1StringView SInvalidPropertyPath{"Invalid property path"};
inline constexpr QLatin1StringView SInvalidPropertyType{"Invalid property type: %s"};
inline constexpr QLatin1StringView SInvalidPropertyValue{"Invalid property value"};
inline constexpr QLatin1StringView SRangeError{"Range check error"};

// Streams.
inline constexpr QLatin1StringView SReadError{"Stream read error"};
inline constexpr QLatin1StringView SWriteError{"Stream write error"};
inline constexpr QLatin1StringView SInvalidImage{"Invalid stream format"};
inline constexpr QLatin1StringView SPropertyException{"Error reading %s%s%s: %s"};
inline constexpr QLatin1StringView SAncestorNotFound{"Ancestor for '%s' not found"};
inline constexpr QLatin1StringView SFCreateError{"Cannot create file \"%s\". %s"};
inline constexpr QLatin1StringView SFWriteError{"Cannot write file \"%s\". %s"};
inline constexpr QLatin1StringView SFOpenError{"Cannot open file \"%s\". %s"};
inline constexpr QLatin1StringView SParseError{"%s on line %d"};
inline constexpr QLatin1StringView SIdentifierExpected{"Identifier expected"};
inline constexpr QLatin1StringView SStringExpected{"String expected"};
inline constexpr QLatin1StringView SNumberExpected{"Number expected"};
inline constexpr QLatin1StringView SCharExpected{"'%s' expected"};
inline constexpr QLatin1StringView SSymbolExpected{"%s expected"};
inline constexpr QLatin1StringView SInvalidBinary{"Invalid binary value"};
inline constexpr QLatin1StringView SInvalidString{"Invalid string constant"};
inline constexpr QLatin1StringView SInvalidCharacter{"Invalid character"};
inline constexpr QLatin1StringView SInvalidUtf8{"Invalid UTF-8 text"};
inline constexpr QLatin1StringView SInvalidUtf16{"Invalid UTF-16 text"};
inline constexpr QLatin1StringView SNestingTooDeep{"Nesting deeper than %d levels"};
inline constexpr QLatin1StringView SDataAfterForm{"Unexpected data after the end of the form"};
inline constexpr QLatin1StringView SNameTooLong{"The name '%s' is too long to be stored"};
inline constexpr QLatin1StringView SNameNotStorable{"The name '%s' cannot be stored"};
inline constexpr QLatin1StringView SNameNotText{"The name '%s' cannot be written as text"};

// Conversions.
inline constexpr QLatin1StringView SInvalidInteger{"'%s' is not a valid integer value"};
inline constexpr QLatin1StringView SInvalidFloat{"'%s' is not a valid floating point value"};
inline constexpr QLatin1StringView SInvalidCurrency{"'%s' is not a valid currency value"};
inline constexpr QLatin1StringView SInvalidBoolean{"'%s' is not a valid boolean value"};
inline constexpr QLatin1StringView SInvalidDate{"'%s' is not a valid date"};
inline constexpr QLatin1StringView SInvalidTime{"'%s' is not a valid time"};
inline constexpr QLatin1StringView SInvalidDateTime{"'%s' is not a valid date and time"};
inline constexpr QLatin1StringView SDateEncodeError{"Invalid argument to date encode"};
inline constexpr QLatin1StringView STimeEncodeError{"Invalid argument to time encode"};
inline constexpr QLatin1StringView SArgumentMissing{"No argument for format '%s'"};
inline constexpr QLatin1StringView SInvalidFormat{"Format '%s' invalid or incompatible with argument"};

// Variants.
inline constexpr QLatin1StringView SVarTypeCouldNotConvert{"Could not convert variant of type (%s) into type (%s)"};
inline constexpr QLatin1StringView SVarTypeConvertOverflow{
    "Overflow while converting variant of type (%s) into type (%s)"};

}  // namespace kt
