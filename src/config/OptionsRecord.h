#pragma once

#include "core/Settings.h"
#include "core/dbModule.h"

// The row of Options that a dialog shows and saves; its fields go by the settings that they hold.
class OptionsRecord : public store::Recordset {
public:
    OptionsRecord() = default;
    static OptionsRecord OfThisRegister() {
        return OptionsRecord(OptionsStore().OpenRecordset(QStringLiteral("SELECT * FROM Options")));
    }

    using Recordset::operator[];
    store::Field operator[](const store::OptionsMember& setting) { return (*this)[store::ColumnOf(setting)]; }
    // A null counts as no.
    bool IsYes(bool store::OptionsRow::*setting) { return IsYes(store::ColumnOf(setting)); }
    bool IsYes(QStringView field) { return !(*this)[field].IsNull() && (*this)[field].YesNo(); }

    // Writes a field and lets the running setting follow at once.
    template <typename T>
    void SaveAndUse(T store::OptionsRow::*setting, const T& value) {
        TheSettings.*setting = value;
        (*this)[setting] = value;
    }

private:
    explicit OptionsRecord(Recordset&& rows) : Recordset(std::move(rows)) {}
};
