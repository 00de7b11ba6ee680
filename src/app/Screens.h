#pragma once

class mdiORVA;

// Ties the menu entries of the main window to the screens that they open.
void TieEntries(mdiORVA& main);
