#include "forms/ListView.h"
#include "player/Keys.h"
#include "screens/Tour.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr auto CoffeeWithMilk = u"3850002";

// Nothing of it is stored.
void Compose(Cashier& cashier) {
    cashier.Within(u"frmViewer"_s, [&] {
        cashier.Press(u"med{Down}{Down}"_s);
        cashier.TakePicture(u"search-product"_s);
        cashier.Press(u"{Enter}"_s);
    });
    cashier.PressAndAnswer(u"{F2}"_s);
    cashier.Press(u"{Tab}0.02"_s);
    cashier.TakePicture(u"composition"_s);
    cashier.Press(u"{F12}"_s);
}

void EditProduct(Cashier& cashier) {
    cashier.TakePicture(u"edit-product"_s);
    cashier.Within(u"frmSastav"_s, [&] { Compose(cashier); });
    cashier.Click(u"frmEditProduct"_s, u"cmdSastav"_s);
    cashier.Press(u"{F12}"_s);
}

void KeepList(Cashier& cashier) {
    auto* list = cashier.List(u"frmArtikli"_s);
    list->Select(list->Find(CoffeeWithMilk));
    cashier.TakePicture(u"products"_s);
    cashier.Within(u"frmEditProduct"_s, [&] { EditProduct(cashier); });
    cashier.PressAndAnswer(u"{F4}"_s);
    cashier.Answer(u"ProductID - Barcode: 3850002\nProduct name: Kava s mlijekom\nDo you want to delete this item?"_s,
                   false, u"delete-product"_s);
    cashier.PressAndAnswer(u"{F6}"_s);
    cashier.Press(u"{F12}"_s);
}

void AddProduct(Cashier& cashier) {
    cashier.Press(u"3850101047216{Enter}Sok od jagode 0,25 l{Enter}1.55{Enter}24{Enter}{Down}{Enter}{Down}{Enter}"_s);
    cashier.TakePicture(u"new-product"_s);
    cashier.Press(u"{Esc}{F12}"_s);
}

}  // namespace

void Tour::KeepProducts() {
    clock.Pass(3);
    cashier.Visit(u"mnuProducts"_s, u"frmArtikli"_s, [this] { KeepList(cashier); });
    cashier.Visit(u"cmdNoviArtikal"_s, u"frmNewProduct"_s, [this] { AddProduct(cashier); });

    cashier.Choose(u"cmdKliktabla"_s);
    drivers::ClickRow(cashier.List(u"frmKlikTabla"_s), 3);
    cashier.TakePicture(u"click-table"_s);
    cashier.Press(u"{F12}"_s);
}

}  // namespace screens
