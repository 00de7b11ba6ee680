#pragma once

#include "store/RowBlock.h"
#include "store/dialect/Plan.h"

namespace store {

// Between the values of fields and those that an engine is given and gives back: a text in UTF-8, a whole number as it
// is, a scaled one in ten-thousandths, a date as its Julian day number, a time in seconds since midnight, yes/no as -1
// or 0. How an engine keeps them is its own affair.

// A value as a column of this type is written. Texts are read in the user's locale. What is no such value throws 3421,
// a number out of range 6; null stays null.
dialect::BoundValue ToStored(const values::Value& value, Type type);

// A cell as the field of an output column shows it; exact products of two scaled numbers become doubles.
values::Value FromStored(const RowBlock& rows, const RowBlock::Cell& cell, const dialect::OutputColumn& column);
// A value that waits to be stored, read back.
values::Value FromStored(const dialect::BoundValue& stored, Type type);

}  // namespace store
