#pragma once

#include "model/settingsfields.h"
#include "platform/plist.h"

#include <string>

/// The walks over a field table: between a dictionary and the struct at `record` (the struct that
/// the table describes).

/// A key with its "%d" filled by `number`.
std::string numberedKey(const char *key, unsigned number);

/// Sets every field: a missing key, or one of the wrong type, gives 0, the empty text or the empty
/// list; an integer is cut to its low 32 bits.
void readFields(std::span<const Field> fields, plist::Dictionary from, void *record);
/// Puts every field under its key; integers as signed 32-bit values.
void writeFields(std::span<const Field> fields, const void *record, plist::Dictionary to);
/// Sets the fields that have a value in the given column of the table.
void setDefaults(std::span<const Field> fields, const std::uint32_t *Field::*column, void *record);
