#pragma once

#include <QString>

namespace upkeep {

// The bars by which a code is printed.
enum class Barcode { None, Ean13, Ean8, Code128 };

// An EAN where the last of 13 or 8 digits is the check digit of the others, else Code 128; none where it could not
// carry the code, which are printable characters of ASCII.
Barcode BarcodeOf(const QString& code);

// The last of these digits is what the others ask for, weighed 3 and 1 in turns from the right.
bool EndsWithCheckDigit(QStringView digits);

}  // namespace upkeep
