#include "store/StoreTestBase.h"

namespace store::test {

// What a field takes, what it then gives, or the number of the error.
class ConversionTest : public StoreTest {
protected:
    struct Case {
        QString field;
        Value written;
        Value read;
        int error = 0;
    };

    // Fields of several tables, since no table has all types.
    static QString TableOf(const QString& field) {
        if (field == u"Sifra" || field == u"Naziv") return u"Custumer"_s;
        if (field == u"Percent" || field == u"Del") return u"Tax"_s;
        return u"Invoices"_s;
    }

    void Check(const std::vector<Case>& cases) {
        for (const Case& one : cases) {
            SCOPED_TRACE(one.field.toStdString() + " = " + one.written.TextOrEmpty().toStdString());
            auto rows = store->OpenRecordset(u"SELECT * FROM "_s + TableOf(one.field));
            rows.AddNew();
            EXPECT_EQ(ErrorOf([&] { rows[one.field] = one.written; }), one.error);
            if (one.error != 0) continue;
            EXPECT_EQ(rows[one.field].Get(), one.read);
            rows.Update();
            rows.SetBookmark(rows.LastModified());
            EXPECT_EQ(rows[one.field].Get(), one.read);
            rows.Delete();
        }
    }
};

TEST_F(ConversionTest, TakesWhatAScreenWrites) {
    const Value nothing;
    Check({{u"Percent"_s, u"17.00"_s, Units(170000)},
           {u"Percent"_s, u" -1,234.5 "_s, Units(-12345000)},
           {u"Percent"_s, u"0.00005"_s, Units(0)},
           {u"Percent"_s, u"0.00015"_s, Units(2)},
           {u"Percent"_s, 17, Units(170000)},
           {u"Percent"_s, 2.675, Units(26750)},
           {u"Percent"_s, true, Units(-10000)},
           {u"Percent"_s, nothing, nothing},
           {u"Percent"_s, u""_s, {}, ConversionFailed},
           {u"Percent"_s, u"12x"_s, {}, ConversionFailed},
           {u"Percent"_s, QDate(2024, 4, 3), {}, ConversionFailed},
           {u"Percent"_s, u"922337203685477.5807"_s, Units(std::numeric_limits<qint64>::max())},
           {u"Percent"_s, u"-922337203685477.5808"_s, Units(std::numeric_limits<qint64>::min())},
           {u"Percent"_s, u"922337203685477.5808"_s, {}, values::Overflow},
           {u"Percent"_s, 1e15, {}, values::Overflow},
           {u"Sifra"_s, u"3850104003217"_s, qint64{3850104003217}},
           {u"Sifra"_s, u"9223372036854775807"_s, std::numeric_limits<qint64>::max()},
           {u"Sifra"_s, u"9223372036854775808"_s, {}, values::Overflow},
           {u"Sifra"_s, u"2.5"_s, 2},
           {u"Sifra"_s, 3.5, 4},
           {u"Sifra"_s, Units(-15000), -2},
           {u"Sifra"_s, u""_s, {}, ConversionFailed},
           {u"Sifra"_s, u"A7"_s, {}, ConversionFailed},
           {u"Naziv"_s, 7, u"7"_s},
           {u"Naziv"_s, Units(12500), u"1.25"_s},
           {u"Naziv"_s, true, u"True"_s},
           {u"Naziv"_s, QTime(8, 5, 9), Value(QTime(8, 5, 9)).ToText()},
           {u"Naziv"_s, u""_s, u""_s},
           {u"Naziv"_s, nothing, nothing},
           {u"Del"_s, true, true},
           {u"Del"_s, -1, true},
           {u"Del"_s, 0, false},
           {u"Del"_s, u"false"_s, false},
           {u"Del"_s, u"yes"_s, {}, ConversionFailed},
           {u"DateSold"_s, QDate(2024, 2, 29), QDate(2024, 2, 29)},
           {u"DateSold"_s, QDate(1, 1, 1), QDate(1, 1, 1)},
           {u"DateSold"_s, u"4/3/2024"_s, QDate(2024, 4, 3)},
           {u"DateSold"_s, QDate(), {}, ConversionFailed},
           {u"DateSold"_s, u"no date"_s, {}, ConversionFailed},
           {u"DateSold"_s, nothing, nothing},
           {u"TimeSold"_s, QTime(23, 59, 59, 999), QTime(23, 59, 59)},
           {u"TimeSold"_s, QTime(0, 0), QTime(0, 0)},
           {u"TimeSold"_s, 12, {}, ConversionFailed}});
}

TEST_F(ConversionTest, ReadsNumbersUnderADecimalComma) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    Check({{u"Percent"_s, u"17,50"_s, Units(175000)},
           {u"Percent"_s, u"1.234,5"_s, Units(12345000)},
           {u"Percent"_s, u"17.5"_s, {}, ConversionFailed},
           {u"Naziv"_s, Units(12500), u"1,25"_s},
           {u"Naziv"_s, 1.5, u"1,5"_s}});
}

TEST_F(ConversionTest, LeavesTheOtherFieldsOfAFailedOnePending) {
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.AddNew();
    taxes[u"TaxID"] = u"P"_s;
    EXPECT_EQ(ErrorOf([&] { taxes[u"Percent"] = u"abc"_s; }), ConversionFailed);
    EXPECT_EQ(taxes.EditMode(), EditState::Adding);
    taxes[u"Percent"] = u"5"_s;
    taxes.Update();
    EXPECT_EQ(Column(u"SELECT Percent FROM Tax WHERE TaxID = 'p'"_s), QStringList{u"5"_s});
}

}  // namespace store::test
