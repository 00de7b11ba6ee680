// Posting an invoice of twenty lines on a server, beside the same statements by hand.

#include "bench/Figures.h"
#include "bench/HandTill.h"
#include "bench/PostingTill.h"

namespace bench {

namespace {

constexpr int LineCount = 20;
constexpr int PostingsEach = 10;

Work Ours(const ServerShop& shop) {
    Invoices invoice(shop.Big().Products(), LineCount);
    const auto till = std::make_shared<PostingTill>(shop.FolderFor(shop.SellingAddress()), invoice.Period());
    return [till, invoice]() mutable {
        invoice.Next();
        till->Post(invoice);
        return qint64{invoice.Commits()};
    };
}

Work ByHand(const ServerShop& shop) {
    Invoices invoice(shop.Big().Products(), LineCount);
    const auto till = std::make_shared<HandTill>(shop.SellingAddress(), invoice.Period());
    return [till, invoice]() mutable {
        invoice.Next();
        return till->Post(invoice);
    };
}

}  // namespace

Figure ServerPostingFigure(const ServerShop& shop) {
    return {.name = "server: post 20 lines in a burst",
            .ours = [&shop] { return Ours(shop); },
            .yardsticks = {{"the same statements by hand in libpq", [&shop] { return ByHand(shop); }, 1.3}},
            .warmUp = 5,
            .iterations = PostingsEach};
}

}  // namespace bench
