#include "bench/ShopGoods.h"

#include <array>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

QString CodeOf(int number) {
    // Neighbours on the shelf are no neighbours in the index.
    constexpr qint64 numbers = 1'000'000'000, stride = 9973;
    QString code = u"385"_s + QString::number(number * stride % numbers).rightJustified(9, u'0');
    int sum = 0;
    for (int i = 0; i < code.size(); ++i) sum += code[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return code + QChar(u'0' + (10 - sum % 10) % 10);
}

QString NameOf(int number) {
    static const std::array what = {u"Mlijeko"_s,   u"Jogurt"_s, u"Riža"_s,          u"Brašno"_s,           u"Ulje"_s,
                                    u"Voćni sok"_s, u"Keks"_s,   u"Prašak za veš"_s, u"Papirne maramice"_s, u"Kafa"_s,
                                    u"Tjestenina"_s};
    static const std::array which = {u"domaće"_s,    u"od šumskog voća"_s, u"bijelo"_s, u"extra"_s,
                                     u"porodično"_s, u"sa lješnjakom"_s,   u"posno"_s};
    static const std::array size = {u"0,5 l"_s, u"1 kg"_s, u"250 g"_s, u"10/1"_s, u"2 l"_s};
    const auto at = static_cast<size_t>(number);
    return u"%1 %2 %3 %4"_s.arg(what[at % what.size()], which[at % which.size()], size[at % size.size()])
        .arg(number)
        .left(40);
}

}  // namespace

std::vector<Goods> MakeGoods(int count) {
    std::vector<Goods> goods;
    goods.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        const qint64 price = 3'000 + i * qint64{7919} % 200'000 / 500 * 500;
        goods.push_back({CodeOf(i), NameOf(i), i % 8 == 0 ? u"kg"_s : u"pcs"_s, price, i % 5 != 0});
    }
    return goods;
}

}  // namespace bench
