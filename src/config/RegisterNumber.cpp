#include "config/RegisterNumber.h"

#include "forms/MsgBox.h"
#include "forms/Program.h"
#include "values/Error.h"
#include "values/Numbers.h"

std::optional<qint16> RegisterNumber(const QString& typed, const QString& title) {
    try {
        return values::CInt16(values::Val(typed));
    } catch (const values::Error& error) {
        forms::Inform(forms::ErrorText(error), title);
        return std::nullopt;
    }
}
