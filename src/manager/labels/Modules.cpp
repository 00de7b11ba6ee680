#include "manager/labels/Modules.h"

#include <zint.h>

#include <memory>

using upkeep::Barcode;

namespace manager {

namespace {

constexpr int BitsOfByte = 8;

}  // namespace

Modules ModulesOf(Barcode kind, const QString& code) {
    if (kind == Barcode::None) return {};
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    if (!symbol) return {};
    const bool isEan = kind != Barcode::Code128;
    symbol->symbology = isEan ? BARCODE_EANX : BARCODE_CODE128;
    // The library sets the check digit of an EAN itself.
    const QByteArray data = (isEan ? code.chopped(1) : code).toLatin1();
    if (ZBarcode_Encode(symbol.get(), reinterpret_cast<const uchar*>(data.constData()),
                        static_cast<int>(data.size())) >= ZINT_ERROR)
        return {};
    Modules modules;
    modules.quietLeft = modules.quietRight = 10;
    if (kind == Barcode::Ean13) modules.quietLeft = 11, modules.quietRight = 7;
    if (kind == Barcode::Ean8) modules.quietLeft = modules.quietRight = 7;
    for (int i = 0; i < symbol->width; ++i)
        modules.black.push_back((symbol->encoded_data[0][i / BitsOfByte] >> (i % BitsOfByte) & 1) != 0);
    return modules;
}

}  // namespace manager
