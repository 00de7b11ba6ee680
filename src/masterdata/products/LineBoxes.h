#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <vector>

#include "forms/ListView.h"
#include "store/Recordset.h"

// The boxes in which a line is entered, on the till and in a composition: from a code to its product, from a quantity
// to what it comes to. The screens say when, what they take for a quantity, and which errors they pass over.
class LineBoxes {
public:
    LineBoxes() = default;
    // The boxes have the same names on both screens; the till has the product's ID besides.
    template <typename Ui>
    explicit LineBoxes(const Ui& ui)
        : code_(ui.txtProdCode),
          quantity_(ui.txtQuantity),
          description_(ui.txtDescription),
          taxPercent_(ui.txtTaxPercent),
          unitPrice_(ui.txtUnitPrice),
          price_(ui.txtPrice),
          taxAmount_(ui.txtTaxAmount),
          addItem_(ui.cmdAddItem),
          shown_{{ui.txtSupply, u"Qty"},
                 {ui.txtDescription, u"ProdDescription"},
                 {ui.txtTaxPercent, u"TaxPercent", true},
                 {ui.txtUnitPrice, u"UnitPrice", true},
                 {ui.txtUnit, u"Unit"},
                 {ui.txtTaxID, u"TaxID"}} {
        if constexpr (requires { ui.txtID; }) shown_.push_back({ui.txtID, u"ID"});
    }

    // The product of a code, at its end where there is none.
    static store::Recordset Find(const QString& code);
    // All of the product but a quantity, which the screen sets.
    void Show(store::Recordset& product) const;
    // Shows the product of the code; false when there is none, and the boxes are empty. They are so, too, when a
    // server did not answer.
    bool LookUp();
    // Whether the server did not answer, so that it is not known what the code stands for.
    bool IsUnanswered() const { return isUnanswered_; }

    // Whether code, quantity and product are there; the button follows.
    bool IsComplete() const;
    void ToggleAddButton() const;
    // Whether the quantity is a number for a product. Where it is none its box is emptied, and the next to be filled
    // has the focus.
    bool HasQuantity() const;

    void ShowAmount() const;
    void ShowTax() const;
    // For the next line.
    void StartAnew() const;

    // One product has one line, however its code was typed: the store does not tell cases apart either. -1 without one.
    int RowIn(const forms::ListView& lines) const;

private:
    struct Shown {
        QLineEdit* box;
        QStringView field;
        bool isFigure = false;  // "0.00"
    };
    void Empty() const;
    bool ShowFound() const;

    QLineEdit* code_ = nullptr;
    QLineEdit* quantity_ = nullptr;
    QLineEdit* description_ = nullptr;
    QLineEdit* taxPercent_ = nullptr;
    QLineEdit* unitPrice_ = nullptr;
    QLineEdit* price_ = nullptr;
    QLineEdit* taxAmount_ = nullptr;
    QPushButton* addItem_ = nullptr;
    std::vector<Shown> shown_;
    bool isUnanswered_ = false;
};
