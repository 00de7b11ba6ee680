#pragma once

#include "ui_frmORVAtouch.h"

// Arranges the sales screen in the height that it has, so that six lines of the invoice are in view: as designed; with
// the entry in one row over the whole width; with the line of information beside the total as well, in the place of the
// tax recapitulation. On the lowest screens the lines get lower than a finger.
class SalesLayout {
public:
    explicit SalesLayout(Ui::frmORVAtouch& ui) : ui_(ui) {}

    // To be called when the form has another size, or shows another part.
    void Arrange();

private:
    enum class Arrangement { Designed, EntryInOneRow, Low };

    void Use(Arrangement arrangement);
    bool HasRoomForLines() const;
    int RowHeight(int rows) const;

    Ui::frmORVAtouch& ui_;
    Arrangement arrangement_ = Arrangement::Designed;
    int finger_ = 0;  // as it measured when the arrangement was made
};
