#include "upkeep/RibbonReader.h"

#include <array>

using values::Money;

namespace upkeep {

namespace {

constexpr QByteArrayView NumberLabel = "INVOICE No:";
constexpr QByteArrayView TaxLabel = "Tax...........";
constexpr QByteArrayView TotalLabel = "TOTAL.........";
constexpr QByteArrayView DateLabels[] = {"Date:", "Date of issue:"};
constexpr qint64 LongestLine = 4096;

// The first dd.mm.yyyy in a text.
QDate DayIn(QByteArrayView text) {
    constexpr qsizetype length = 10;
    for (qsizetype i = 0; i + length <= text.size(); ++i) {
        const QDate day = QDate::fromString(QString::fromLatin1(text.sliced(i, length)), u"dd.MM.yyyy");
        if (day.isValid()) return day;
    }
    return {};
}

// The amount at the end of a line, written with two decimals behind whatever separator.
std::optional<Money> AmountAtEndOf(QByteArrayView line) {
    constexpr qint64 unitsOfACent = Money::Scale / 100;
    QByteArray digits;
    for (const char c : line.sliced(line.lastIndexOf(' ') + 1))
        if ((c >= '0' && c <= '9') || c == '-') digits += c;
    bool isNumber = false;
    const qint64 cents = digits.toLongLong(&isNumber);
    if (!isNumber) return {};
    return Money::FromUnits(cents * unitsOfACent);
}

class Reader {
public:
    std::vector<Receipt> Read(QIODevice& ribbon) {
        std::array<char, LongestLine> buffer;
        qint64 length = 0;
        while ((length = ribbon.readLine(buffer.data(), LongestLine)) > 0)
            Take(QByteArrayView(buffer.data(), length).trimmed());
        return std::move(receipts_);
    }

    // One line after the other; what was read of receipts until now.
    void Take(QByteArrayView line) {
        for (const QByteArrayView label : DateLabels)
            if (line.startsWith(label)) day_ = DayIn(line);
        if (line.startsWith(NumberLabel)) return Begin(line.sliced(NumberLabel.size()));
        // A footer or a name may begin so as well; the total follows the tax.
        if (line.startsWith(TotalLabel) && wasTax_ && !receipts_.empty()) receipts_.back().total = AmountAtEndOf(line);
        wasTax_ = line.startsWith(TaxLabel);
    }
    const std::vector<Receipt>& Receipts() const { return receipts_; }

private:
    // The number, alone or with the day behind it.
    void Begin(QByteArrayView text) {
        const qsizetype blank = text.indexOf(' ');
        const QByteArrayView number = blank < 0 ? text : text.first(blank);
        const QDate day = DayIn(text.sliced(number.size()));
        receipts_.push_back({QString::fromLatin1(number), day.isValid() ? day : day_, {}});
        day_ = {};
    }

    std::vector<Receipt> receipts_;
    QDate day_;  // of the receipt that begins
    bool wasTax_ = false;
};

}  // namespace

std::vector<Receipt> ReadRibbon(QIODevice& ribbon) {
    return Reader().Read(ribbon);
}

QByteArray FindOnRibbon(QIODevice& ribbon, const std::function<bool(const Receipt&)>& isMeant) {
    QByteArray found;
    QByteArray text;
    Reader reader;
    int emptyLines = 0;
    const auto endReceipt = [&] {
        if (!reader.Receipts().empty() && isMeant(reader.Receipts().back())) found = text.trimmed();
        text.clear();
        reader = {};
    };
    for (QByteArray line = ribbon.readLine(LongestLine); !line.isEmpty(); line = ribbon.readLine(LongestLine)) {
        const QByteArrayView words = QByteArrayView(line).trimmed();
        emptyLines = words.isEmpty() ? emptyLines + 1 : 0;
        text += line;
        reader.Take(words);
        const bool isWhole = !reader.Receipts().empty() && reader.Receipts().back().total;
        if (emptyLines >= 2 && isWhole) endReceipt();
    }
    endReceipt();
    return found;
}

}  // namespace upkeep
