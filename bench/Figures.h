#pragma once

#include "bench/BusyTill.h"
#include "bench/Harness.h"
#include "bench/ServerShop.h"
#include "bench/Shop.h"

namespace bench {

// The figures, one file each. To add one, write its file beside these and name it in main.

Figure LookupFigure(const Shop& shop);
Figure WalkFigure(const Shop& shop);
// Writes to the copy of the shop in `till`.
Figure PostingFigure(const Shop& shop, const QString& till);
Figure TaxReportFigure(const Shop& shop);
Figure OpeningFigure(const Shop& big, const Shop& small);
Figure StartupFigure(const QString& till);
Figure TouchTableFigure(const BusyTill& till);
// Writes the texts of the preview into the till's folder.
Figure PreviewFigure(const BusyTill& till);
Figure RegisterListsFigure(const BusyTill& till);
Figure ProductListFigure(const BusyTill& till);
Figure FirstFoundFigure(const BusyTill& till, bool anywhere);
// How long a key, or the rows that it brings in, keep the window from answering; the load of the machine counts.
Figure HoldFigure(const BusyTill& till, bool anywhere);
Figure AllFoundFigure(const BusyTill& till, bool anywhere);
// These two write to the till.
Figure PlacementFigure(const BusyTill& till);
Figure RecipeFigure(const BusyTill& till);
// The store on a server. These write to it, but for the reading ones.
Figure ServerLookupFigure(const ServerShop& shop);
Figure ServerTaxReportFigure(const ServerShop& shop);
Figure ServerOpeningFigure(const ServerShop& shop);
Figure ServerPostingFigure(const ServerShop& shop);
// Several registers at once: the time divided by the invoices that all of them posted.
Figure RegistersFigure(const ServerShop& shop, int count, double seconds);
// Every report over a day, a month and all days of a shop.
std::vector<Figure> ReportFigures(const LateShop& shop);

// Memory of the till in `till` after so many posted invoices, beside that of an empty window; prints its lines. False
// when one of the programs failed.
bool PrintMemory(const QString& till, int invoices);
// What a server costs that is two milliseconds away; prints a line. False when it cannot be measured.
bool PrintFarServer(const ServerShop& shop);
// What the list of all invoices takes, and how it can be left; prints a line. False when the program failed.
bool PrintAllInvoices(const LateShop& shop);

}  // namespace bench
