<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>BackupPage</name>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>&amp;Back up now</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choose…</translation>
    </message>
    <message>
        <source>The till makes one at each End Report and when it is first started on a day. Kept are the newest of each of the last</source>
        <translation>The till makes one at each End Report and when it is first started on a day. Kept is the newest of each of the last</translation>
    </message>
    <message>
        <source>Days of which one is kept</source>
        <translation>Days of which one backup is kept</translation>
    </message>
    <message>
        <source> days</source>
        <translation> days</translation>
    </message>
    <message>
        <source>Weeks of which one is kept</source>
        <translation>Weeks of which one backup is kept</translation>
    </message>
    <message>
        <source> weeks</source>
        <translation> weeks</translation>
    </message>
    <message>
        <source>Months of which one is kept</source>
        <translation>Months of which one backup is kept</translation>
    </message>
    <message>
        <source> months</source>
        <translation> months</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Restore…</source>
        <translation>&amp;Restore…</translation>
    </message>
</context>
<context>
    <name>ClickTable</name>
    <message>
        <source>The click table has no tab %1.</source>
        <translation>The click table has no tab %1.</translation>
    </message>
    <message>
        <source>The click table has no button %1.</source>
        <translation>The click table has no button %1.</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>The store is not open.</source>
        <translation>The store is not open.</translation>
    </message>
    <message>
        <source>Waiting for the server of the store, or for another register that is writing there.</source>
        <translation>Waiting for the server of the store, or for another register that is writing there.</translation>
    </message>
    <message>
        <source>Waiting for another register, which is writing to the store.</source>
        <translation>Waiting for another register, which is writing to the store.</translation>
    </message>
    <message>
        <source>A text does not fit its line.</source>
        <translation>A text does not fit its line.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only %4.</source>
        <extracomment>%4: the words that it may be, &quot;yes or no&quot;</extracomment>
        <translation>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only %4.</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between two words that a setting may be, with its blanks</extracomment>
        <translation> or </translation>
    </message>
    <message>
        <source>velton.ini, line %1: there is no %2 in [%3].</source>
        <translation>velton.ini, line %1: there is no %2 in [%3].</translation>
    </message>
    <message>
        <source>The setting %1 can&apos;t be used. %2</source>
        <translation>The setting %1 can&apos;t be used. %2</translation>
    </message>
    <message>
        <source>The program that makes it can&apos;t be started.</source>
        <translation>The program that makes it can&apos;t be started.</translation>
    </message>
</context>
<context>
    <name>CustomerEntry</name>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Address:</translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation>Ident.:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Phone:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Owner:</translation>
    </message>
    <message>
        <source>Bank accounts:</source>
        <translation>Bank accounts:</translation>
    </message>
    <message>
        <source>The rate approved rebates or rate margins for suppliers:</source>
        <translation>Rebate approved, or the margin of a supplier:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Change password!</source>
        <extracomment>the customer&apos;s ID is taken</extracomment>
        <translation>A customer with this ID exists already. Change the ID.</translation>
    </message>
</context>
<context>
    <name>DrawerPage</name>
    <message>
        <source>Drawer</source>
        <translation>Drawer</translation>
    </message>
    <message>
        <source>Count of the drawer</source>
        <translation>Count of the drawer</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>&amp;Keep the count</source>
        <translation>&amp;Keep the count</translation>
    </message>
    <message>
        <source>&amp;Empty</source>
        <translation>&amp;Empty</translation>
    </message>
    <message>
        <source>Begins anew</source>
        <translation>Begins anew</translation>
    </message>
    <message>
        <source>&amp;Notes and coins</source>
        <translation>&amp;Notes and coins</translation>
    </message>
    <message>
        <source>Which there are of this currency</source>
        <translation>Which there are of this currency</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>P&amp;ut in:</source>
        <translation>P&amp;ut in:</translation>
    </message>
    <message>
        <source>Taken &amp;out:</source>
        <translation>Taken &amp;out:</translation>
    </message>
    <message>
        <source>Should be there:</source>
        <translation>Should be there:</translation>
    </message>
    <message>
        <source>Counted:</source>
        <translation>Counted:</translation>
    </message>
    <message>
        <source>&amp;Remark:</source>
        <translation>&amp;Remark:</translation>
    </message>
    <message>
        <source>Earlier counts</source>
        <translation>Earlier counts</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>Prints the chosen count</source>
        <translation>Prints the chosen count</translation>
    </message>
    <message>
        <source>Per&amp;iod:</source>
        <translation>Per&amp;iod:</translation>
    </message>
    <message>
        <source>Whose sales the drawer is counted for</source>
        <translation>Whose sales the drawer is counted for</translation>
    </message>
    <message>
        <source>Sold in cash:</source>
        <translation>Sold in cash:</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>Fill in all required fields.</source>
        <translation>Fill in all required fields.</translation>
    </message>
</context>
<context>
    <name>FiscalEntry</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>GoodsChoice</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Group:</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>&amp;Tax:</translation>
    </message>
    <message>
        <source>Goods found</source>
        <translation>Goods found</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>Add all sho&amp;wn</source>
        <translation>Add all sho&amp;wn</translation>
    </message>
    <message>
        <source>Goods chosen</source>
        <translation>Goods chosen</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies:</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Remove a&amp;ll</translation>
    </message>
</context>
<context>
    <name>GoodsPage</name>
    <message>
        <source>Goods</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>Choose a &amp;file…</source>
        <translation>Choose a &amp;file…</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>No file is chosen.</translation>
    </message>
    <message>
        <source>Export g&amp;oods…</source>
        <translation>Export g&amp;oods…</translation>
    </message>
    <message>
        <source>Export cus&amp;tomers…</source>
        <translation>Export cus&amp;tomers…</translation>
    </message>
    <message>
        <source>What the file would do</source>
        <translation>What the file would do</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Write</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>Take &amp;back…</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Show:</translation>
    </message>
    <message>
        <source>How it is rea&amp;d</source>
        <translation>How it is rea&amp;d</translation>
    </message>
</context>
<context>
    <name>HeadingStep</name>
    <message>
        <source>These lines head each receipt.</source>
        <translation>These lines head each receipt.</translation>
    </message>
    <message>
        <source>Na&amp;me of the shop:</source>
        <translation>Na&amp;me of the shop:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Address:</translation>
    </message>
    <message>
        <source>&amp;Identification:</source>
        <translation>&amp;Identification:</translation>
    </message>
    <message>
        <source>&amp;Telephone:</source>
        <translation>&amp;Telephone:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Currency:</translation>
    </message>
    <message>
        <source>Sho&amp;wn as layout:</source>
        <translation>Sho&amp;wn as layout:</translation>
    </message>
    <message>
        <source>How a receipt looks</source>
        <translation>How a receipt looks</translation>
    </message>
</context>
<context>
    <name>HealthPage</name>
    <message>
        <source>Health</source>
        <translation>Health</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>What was found</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Look again</translation>
    </message>
    <message>
        <source>Report for whoever &amp;helps…</source>
        <translation>Report for whoever &amp;helps…</translation>
    </message>
</context>
<context>
    <name>ImportChoices</name>
    <message>
        <source>How the file is written</source>
        <translation>How the file is written</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Encoding:</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>Se&amp;parator:</translation>
    </message>
    <message>
        <source>Dec&amp;imals:</source>
        <translation>Dec&amp;imals:</translation>
    </message>
    <message>
        <source>Which column is what</source>
        <translation>Which column is what</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Code:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>P&amp;rice:</source>
        <translation>P&amp;rice:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>&amp;Quantity:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unit:</translation>
    </message>
    <message>
        <source>Ta&amp;x:</source>
        <translation>Ta&amp;x:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Group:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Picture:</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>What is to be done</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Rows:</translation>
    </message>
    <message>
        <source>Leave prices as they are</source>
        <translation>Leave prices as they are</translation>
    </message>
    <message>
        <source>Leave quantities as they are</source>
        <translation>Leave quantities as they are</translation>
    </message>
    <message>
        <source>New goods whose row says none</source>
        <translation>New goods whose row says none</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unit:</translation>
    </message>
    <message>
        <source>Tax:</source>
        <translation>Tax:</translation>
    </message>
</context>
<context>
    <name>InvoicesView</name>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Receipt</translation>
    </message>
    <message>
        <source>Show &amp;receipt</source>
        <translation>Show &amp;receipt</translation>
    </message>
    <message>
        <source>&amp;Back to the list</source>
        <translation>&amp;Back to the list</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
</context>
<context>
    <name>LabelChoice</name>
    <message>
        <source>S&amp;heet:</source>
        <translation>S&amp;heet:</translation>
    </message>
    <message>
        <source>Start at la&amp;bel:</source>
        <translation>Start at la&amp;bel:</translation>
    </message>
    <message>
        <source>Printer&apos;s d&amp;ots:</source>
        <translation>Printer&apos;s d&amp;ots:</translation>
    </message>
    <message>
        <source>Width, mm:</source>
        <translation>Width, mm:</translation>
    </message>
    <message>
        <source>Height, mm:</source>
        <translation>Height, mm:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>Side by side:</translation>
    </message>
    <message>
        <source>One below other:</source>
        <translation>One below other:</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>From the left:</translation>
    </message>
    <message>
        <source>From the top:</source>
        <translation>From the top:</translation>
    </message>
    <message>
        <source>Gap beside:</source>
        <translation>Gap beside:</translation>
    </message>
    <message>
        <source>Gap below:</source>
        <translation>Gap below:</translation>
    </message>
    <message>
        <source>A sheet that is used already: press its first free label in the picture.</source>
        <translation>A sheet that is used already: press its first free label in the picture.</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Page before</source>
        <translation>Page before</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>How it will be printed</translation>
    </message>
</context>
<context>
    <name>LabelsPage</name>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parts</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>&amp;Print labels</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF...</source>
        <translation>Sa&amp;ve as PDF...</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>The screens of the till and what it prints can each have a language of their own. Names of goods, and what stands at the head of the receipt, stay as you wrote them.</source>
        <translation>The screens of the till and what it prints can each have a language of their own. Names of goods, and what stands at the head of the receipt, stay as you wrote them.</translation>
    </message>
    <message>
        <source>On the &amp;screens</source>
        <translation>On the &amp;screens</translation>
    </message>
    <message>
        <source>On &amp;paper: receipts, reports and their previews</source>
        <translation>On &amp;paper: receipts, reports and their previews</translation>
    </message>
    <message>
        <source>A receipt in the language of paper</source>
        <translation>A receipt in the language of paper</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Keep</translation>
    </message>
</context>
<context>
    <name>ListReport</name>
    <message>
        <source>D A T E</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>TIME PERIOD</source>
        <translation>TIME PERIOD</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>To:</translation>
    </message>
    <message>
        <source>Show period</source>
        <translation>Show period</translation>
    </message>
    <message>
        <source>Total by</source>
        <translation>Total by</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Print</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Save</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Report (*.txt)</translation>
    </message>
    <message>
        <source>List does not contain any item.Change date.</source>
        <translation>The list is empty. Choose other days.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Save as</translation>
    </message>
</context>
<context>
    <name>ManagerLogin</name>
    <message>
        <source>VELTON Manager</source>
        <translation>VELTON Manager</translation>
    </message>
    <message>
        <source>The name and password of a user of level 3:</source>
        <translation>The name and password of a user of level 3:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;User:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>&amp;Log in</source>
        <translation>&amp;Log in</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
</context>
<context>
    <name>ManagerWindow</name>
    <message>
        <source>VELTON Manager</source>
        <translation>VELTON Manager</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>MasterdataWords</name>
    <message>
        <source>The row was deleted after this list was read.</source>
        <translation>The row was deleted after this list was read.</translation>
    </message>
</context>
<context>
    <name>NotesAndCoins</name>
    <message>
        <source>Notes and coins</source>
        <translation>Notes and coins</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Today</translation>
    </message>
    <message>
        <source>&amp;7 days</source>
        <translation>&amp;7 days</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>The last seven days</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Month</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>This month</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Year</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>This year</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>All days of the shop</source>
        <translation>All days of the shop</translation>
    </message>
    <message>
        <source>&amp;Own days</source>
        <translation>&amp;Own days</translation>
    </message>
    <message>
        <source>From one day to another</source>
        <translation>From one day to another</translation>
    </message>
    <message>
        <source>As ta&amp;bles</source>
        <translation>As ta&amp;bles</translation>
    </message>
    <message>
        <source>The figures of the charts as tables</source>
        <translation>The figures of the charts as tables</translation>
    </message>
    <message>
        <source>P&amp;DF</source>
        <translation>P&amp;DF</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Save as PDF</translation>
    </message>
    <message>
        <source>&amp;CSV</source>
        <translation>&amp;CSV</translation>
    </message>
    <message>
        <source>Save the figures for a spreadsheet</source>
        <translation>Save the figures for a spreadsheet</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;From:</translation>
    </message>
    <message>
        <source>&amp;Until:</source>
        <translation>&amp;Until:</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Show</translation>
    </message>
    <message>
        <source>Takings</source>
        <translation>Takings</translation>
    </message>
    <message>
        <source>By hour and weekday</source>
        <translation>By hour and weekday</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>By ta&amp;kings</source>
        <translation>By ta&amp;kings</translation>
    </message>
    <message>
        <source>By pi&amp;eces</source>
        <translation>By pi&amp;eces</translation>
    </message>
    <message>
        <source>Sold best</source>
        <translation>Sold best</translation>
    </message>
    <message>
        <source>In stock and sold least</source>
        <translation>In stock and sold least</translation>
    </message>
    <message>
        <source>Runs out at the present pace</source>
        <translation>Runs out at the present pace</translation>
    </message>
    <message>
        <source>Groups of the touch table</source>
        <translation>Groups of the touch table</translation>
    </message>
    <message>
        <source>Cashiers</source>
        <translation>Cashiers</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>How far it has read</source>
        <translation>How far it has read</translation>
    </message>
    <message>
        <source>Esc - Stop</source>
        <translation>Esc - Stop</translation>
    </message>
    <message>
        <source>Shows what was read until now</source>
        <translation>Shows what was read until now</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>INVOICE No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>INVOICE No:%1</translation>
    </message>
    <message>
        <source>   Price Quantit TaxRat     TAX   Amount</source>
        <extracomment>40 columns, all to the right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>   Price Quantit TaxRat     TAX   Amount</translation>
    </message>
    <message>
        <source>ProductID  Product description          </source>
        <extracomment>40 columns: code and description, one blank between them</extracomment>
        <translation>Code       Product description          </translation>
    </message>
    <message>
        <source>Product              Price Quant  Amount</source>
        <extracomment>40 columns: product 18, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Product              Price Quant  Amount</translation>
    </message>
    <message>
        <source>No Product description                  </source>
        <extracomment>40 columns: number and description, one blank between them</extracomment>
        <translation>No Product description                  </translation>
    </message>
    <message>
        <source>No Product           Price Quant  Amount</source>
        <extracomment>40 columns: number 3, product 15, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>No Product           Price Quant  Amount</translation>
    </message>
    <message>
        <source>No Product name                    Unit Quantit Price    Amount     Tax   Amount</source>
        <extracomment>80 columns: number and name 35, and to the right unit 4, quantity 8, price 8, amount 8, tax 8, amount 9</extracomment>
        <translation>No Product name                    Unit Quantit Price    Amount     Tax   Amount</translation>
    </message>
    <message>
        <source>                                                 outTax   outTax         withTax</source>
        <extracomment>80 columns, below the line before: price and first amount &quot;without tax&quot;, last amount &quot;with tax&quot;</extracomment>
        <translation>                                                 w/oTax   w/oTax         withTax</translation>
    </message>
    <message>
        <source>No Product description          </source>
        <extracomment>32 columns: number and description, one blank between them</extracomment>
        <translation>No Product description          </translation>
    </message>
    <message>
        <source>     Price  Quantity      Amount</source>
        <extracomment>32 columns, all to the right: price 9, quantity 10, amount 13</extracomment>
        <translation>     Price  Quantity      Amount</translation>
    </message>
    <message>
        <source>Product      Price Quant  Amount</source>
        <extracomment>32 columns: product 10, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Product      Price Quant  Amount</translation>
    </message>
    <message>
        <source>Date of issue:%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Date of issue:%1</translation>
    </message>
    <message>
        <source>Delivery date :%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Delivery date:%1</translation>
    </message>
    <message>
        <source>Custumer:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s name</extracomment>
        <translation>Customer:%1</translation>
    </message>
    <message>
        <source>ID:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s identification number</extracomment>
        <translation>ID:%1</translation>
    </message>
    <message>
        <source>Date:%1</source>
        <extracomment>at most 12 columns without %1, date and time</extracomment>
        <translation>Date:%1</translation>
    </message>
    <message>
        <source>Subtotal......%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>Subtotal......%1: </translation>
    </message>
    <message>
        <source>Tax...........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>Tax...........%1: </translation>
    </message>
    <message>
        <source>TOTAL.........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>TOTAL.........%1: </translation>
    </message>
    <message>
        <source>Taxes          </source>
        <extracomment>15 columns</extracomment>
        <translation>Taxes          </translation>
    </message>
    <message>
        <source>Rate     Amount</source>
        <extracomment>15 columns: rate 6, and to the right amount 9</extracomment>
        <translation>Rate     Amount</translation>
    </message>
    <message>
        <source> TOTAL:%1</source>
        <extracomment>at most 7 columns without %1, the sum of the taxes</extracomment>
        <translation> TOTAL:%1</translation>
    </message>
    <message>
        <source>Cashier:%1</source>
        <extracomment>at most 12 columns without %1, the cashier&apos;s name</extracomment>
        <translation>Cashier:%1</translation>
    </message>
    <message>
        <source>Invoice No%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Invoice No%1</translation>
    </message>
    <message>
        <source>Invoice No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Invoice No:%1</translation>
    </message>
    <message>
        <source>Milk 1 l</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Milk 1 l</translation>
    </message>
    <message>
        <source>pcs</source>
        <extracomment>at most 3 columns, its unit: pieces</extracomment>
        <translation>pcs</translation>
    </message>
    <message>
        <source>Apples, red</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Apples, red</translation>
    </message>
    <message>
        <source>Business hours of cash register</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Business hours of the register</translation>
    </message>
    <message>
        <source>CR  DateFrom  DateTo  TimeFrom    TimeTo</source>
        <extracomment>40 columns: register 4, the days of login and log-off 8 each, their times 10 and 9</extracomment>
        <translation>Rg  FromDay   ToDay   TimeFrom    TimeTo</translation>
    </message>
    <message>
        <source>to </source>
        <extracomment>at most 3 columns, between the numbers of a day&apos;s first and last invoice</extracomment>
        <translation>to </translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>from %1 to %2</translation>
    </message>
    <message>
        <source>INVOICES REPORT</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>INVOICES REPORT</translation>
    </message>
    <message>
        <source>Invoices report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Invoices by day for the period</translation>
    </message>
    <message>
        <source> DATE      InvoiceFrom InvoiceTo        </source>
        <extracomment>40 columns: day 11, first invoice 12, last invoice 17</extracomment>
        <translation> DATE      First inv.  Last invoice     </translation>
    </message>
    <message>
        <source>Total wout Tax       TAX   Total withTAX</source>
        <extracomment>40 columns, to the right: amount without tax 14, tax 10, amount with tax 16</extracomment>
        <translation>Total w/o tax        TAX  Total with tax</translation>
    </message>
    <message>
        <source>TOTAL  :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>TOTAL  :  </translation>
    </message>
    <message>
        <source>                         Product list - List of goods           date:</source>
        <extracomment>at most 80 columns</extracomment>
        <translation>                         Stock list - list of goods             date:</translation>
    </message>
    <message>
        <source>No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount</source>
        <extracomment>78 columns: number 5, name 30, code 14, unit 3, price 7, quantity 8, amount 11</extracomment>
        <translation>No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount</translation>
    </message>
    <message>
        <source>TOTAL with Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>TOTAL with tax: %1</translation>
    </message>
    <message>
        <source>TAX: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>TAX: %1</translation>
    </message>
    <message>
        <source>TOTAL without Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>TOTAL without tax: %1</translation>
    </message>
    <message>
        <source>Invoices </source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Invoices </translation>
    </message>
    <message>
        <source>InNo Cashie    Date       Time    Amount</source>
        <extracomment>40 columns: number 5, cashier 8, date 9, time 9, amount 9</extracomment>
        <translation>InNo Cashier   Date       Time    Amount</translation>
    </message>
    <message>
        <source>TOTAL: </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>TOTAL: </translation>
    </message>
    <message>
        <source>Sale by Cashier</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Sales by cashier</translation>
    </message>
    <message>
        <source>CId Cashier           Date         Total</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, date 9, total 11</extracomment>
        <translation>CId Cashier           Date         Total</translation>
    </message>
    <message>
        <source>TOTAL : </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>TOTAL : </translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Sales by product</translation>
    </message>
    <message>
        <source>Rb Product Name          Unit Qua Amount</source>
        <extracomment>40 columns: code 3, name 24, unit 3, quantity 3, amount 7</extracomment>
        <translation>No Product name          Unit Qua Amount</translation>
    </message>
    <message>
        <source>Taxes report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Tax report for the period</translation>
    </message>
    <message>
        <source>Id and type TAX       Rate[%]    Date   </source>
        <extracomment>40 columns: ID and name of the tax 22, rate 7, date 11</extracomment>
        <translation>ID and kind of tax    Rate[%]    Date   </translation>
    </message>
    <message>
        <source>             Base          TAX     Total</source>
        <extracomment>40 columns, to the right: base 20, tax 10, total 10</extracomment>
        <translation>             Base          TAX     Total</translation>
    </message>
    <message>
        <source>TOTAL :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>TOTAL :  </translation>
    </message>
    <message>
        <source>Quantity of items in stock</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Stock of goods</translation>
    </message>
    <message>
        <source>No Product Name      Unit Quanti  Amount</source>
        <extracomment>40 columns: code 3, name 20, unit 3, quantity 6, amount 8</extracomment>
        <translation>No Product name      Unit Quanti  Amount</translation>
    </message>
    <message>
        <source>Tax report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Tax report for the period</translation>
    </message>
    <message>
        <source>Date           Amount      TAX     Total</source>
        <extracomment>40 columns: date 10, amount without tax 10, tax 10, total 10</extracomment>
        <translation>Date           Amount      TAX     Total</translation>
    </message>
    <message>
        <source>Tax report by invoices for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Tax report by invoices for the period</translation>
    </message>
    <message>
        <source>InvNo    Date          Time             </source>
        <extracomment>40 columns: number 8, date 12, time 20</extracomment>
        <translation>InvNo    Date          Time             </translation>
    </message>
    <message>
        <source>               Amount      TAX     Total</source>
        <extracomment>40 columns, to the right: amount without tax 20, tax 10, total 10</extracomment>
        <translation>               Amount      TAX     Total</translation>
    </message>
    <message>
        <source>End Report No: %1</source>
        <extracomment>at most 34 columns without %1, the number</extracomment>
        <translation>End Report No: %1</translation>
    </message>
    <message>
        <source>Currently</source>
        <extracomment>at most 39 columns</extracomment>
        <translation>Now</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>CASH REGISTERS</translation>
    </message>
    <message>
        <source>CRNo   Date   TimeFrom            Amount</source>
        <extracomment>40 columns: register 6, date 9, the period&apos;s begin 9, its end 8, amount 7</extracomment>
        <translation>RegNo  Date   TimeFrom            Amount</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>CASHIERS</translation>
    </message>
    <message>
        <source>CId Cashier                       Amount</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, amount 20</extracomment>
        <translation>CId Cashier                       Amount</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>PRODUCTS</translation>
    </message>
    <message>
        <source>Id  ProductName          Unit Qua Amount</source>
        <extracomment>40 columns: code 4, name 23, unit 3, quantity 3, amount 7</extracomment>
        <translation>Id  Product name         Unit Qua Amount</translation>
    </message>
    <message>
        <source>End Reports</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>End Reports</translation>
    </message>
    <message>
        <source>CR End  Date    TimeFr   TimeTo   Amount</source>
        <extracomment>40 columns: register 3, period 4, date 9, its begin 9, its end 8, amount 7</extracomment>
        <translation>Rg End  Date    TimeFr   TimeTo   Amount</translation>
    </message>
    <message>
        <source>EndNo Date and time of end        Amount</source>
        <extracomment>40 columns: number 6, date 9, time 9, amount 16</extracomment>
        <translation>EndNo Date and time of end        Amount</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>from %1 to %2</translation>
    </message>
    <message>
        <source>Printed:%1 %2</source>
        <extracomment>at most 15 columns without %1 and %2, date and time</extracomment>
        <translation>Printed:%1 %2</translation>
    </message>
</context>
<context>
    <name>PasswordEntry</name>
    <message>
        <source>Different passwords!</source>
        <translation>The passwords differ.</translation>
    </message>
    <message>
        <source>Different passwords</source>
        <translation>The passwords differ</translation>
    </message>
</context>
<context>
    <name>PasswordStep</name>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;User:</translation>
    </message>
    <message>
        <source>New &amp;password:</source>
        <translation>New &amp;password:</translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation>The same &amp;again:</translation>
    </message>
    <message>
        <source>Show the pass&amp;words</source>
        <translation>Show the pass&amp;words</translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Choose a day in the calendar, or two days and &quot;%1&quot;.</source>
        <translation>Choose a day in the calendar, or two days and &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>There is nothing on these days.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>from %1 to %2</translation>
    </message>
</context>
<context>
    <name>PortPanel</name>
    <message>
        <source>A device, tcp: with address and port, or file: with a name; empty is the usual device</source>
        <translation>A device, tcp: with address and port, or file: with a name; empty is the usual device</translation>
    </message>
    <message>
        <source>Ask it for paper, cover and errors before it prints</source>
        <translation>Ask it for paper, cover and errors before it prints</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Test page</translation>
    </message>
    <message>
        <source>Open the drawer</source>
        <translation>Open the drawer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>How is it?</source>
        <translation>How is it?</translation>
    </message>
</context>
<context>
    <name>PriceListChoice</name>
    <message>
        <source>All goods i&amp;n the shop</source>
        <translation>All goods i&amp;n the shop</translation>
    </message>
    <message>
        <source>The goods chosen onl&amp;y</source>
        <translation>The goods chosen onl&amp;y</translation>
    </message>
    <message>
        <source>The list follows the groups of the touch table; what has no button comes last.</source>
        <translation>The list follows the groups of the touch table; what has no button comes last.</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Page before</source>
        <translation>Page before</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>How it will be printed</translation>
    </message>
</context>
<context>
    <name>PricesPage</name>
    <message>
        <source>Prices</source>
        <translation>Prices</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>What would change</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>&amp;What:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Percent:</translation>
    </message>
    <message>
        <source>&amp;Ending:</source>
        <translation>&amp;Ending:</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Look</translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation>W&amp;rite</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>Take &amp;back…</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>&amp;Tax:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Group:</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
    <message>
        <source>What is tried here goes to the printer as it is chosen here; the till takes it once it is saved, from the next receipt on.</source>
        <translation>What is tried here goes to the printer as it is chosen here; the till takes it once it is saved, from the next receipt on.</translation>
    </message>
    <message>
        <source>&amp;Receipts go to:</source>
        <translation>&amp;Receipts go to:</translation>
    </message>
    <message>
        <source>Re&amp;ports go to:</source>
        <translation>Re&amp;ports go to:</translation>
    </message>
    <message>
        <source>&amp;Commands:</source>
        <translation>&amp;Commands:</translation>
    </message>
    <message>
        <source>C&amp;ut the paper behind a receipt</source>
        <translation>C&amp;ut the paper behind a receipt</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Look for printers again</source>
        <translation>&amp;Look for printers again</translation>
    </message>
    <message>
        <source>&amp;Test the page printer</source>
        <translation>&amp;Test the page printer</translation>
    </message>
</context>
<context>
    <name>ProductEntry</name>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Code - bar code</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unit:</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Tax rate</translation>
    </message>
    <message>
        <source>Tax percent</source>
        <translation>Tax percent</translation>
    </message>
    <message>
        <source>Thumbnail (icon)</source>
        <translation>Thumbnail (icon)</translation>
    </message>
    <message>
        <source>Insert icon</source>
        <translation>Insert icon</translation>
    </message>
    <message>
        <source>Izaberi ikonu za artikl</source>
        <translation>Choose an icon for the product</translation>
    </message>
    <message>
        <source>Delete icon</source>
        <translation>Delete icon</translation>
    </message>
    <message>
        <source>Obrisi ikonu za artikl</source>
        <translation>Delete the product&apos;s icon</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Price without tax</translation>
    </message>
    <message>
        <source>Second price with Tax</source>
        <translation>Second price with tax</translation>
    </message>
    <message>
        <source>Second price without Tax</source>
        <translation>Second price without tax</translation>
    </message>
    <message>
        <source>Bitmaps</source>
        <translation>Bitmaps</translation>
    </message>
    <message>
        <source>GIF Images</source>
        <translation>GIF images</translation>
    </message>
    <message>
        <source>JPEG Images</source>
        <translation>JPEG images</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>File not found</translation>
    </message>
    <message>
        <source>Price must be numeric.</source>
        <translation>The price must be a number.</translation>
    </message>
    <message>
        <source>Product with this code-barcode already exists.Change ProductID!</source>
        <translation>A product with this code exists already. Change the code.</translation>
    </message>
    <message>
        <source>The file %1 holds no picture that can be shown.</source>
        <translation>The file %1 holds no picture that can be shown.</translation>
    </message>
</context>
<context>
    <name>ReceiptWords</name>
    <message>
        <source>X report is done.</source>
        <translation>The X report is done.</translation>
    </message>
    <message>
        <source>Z report - daily report is done.</source>
        <translation>The Z report (daily report) is done.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Tax %</source>
        <translation>Tax %</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has no paper.</source>
        <translation>The printer on LPT%1 has no paper.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has its cover open.</source>
        <translation>The printer on LPT%1 has its cover open.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 is offline or has an error.</source>
        <translation>The printer on LPT%1 is offline or has an error.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 does not answer.</source>
        <translation>The printer on LPT%1 does not answer.</translation>
    </message>
    <message>
        <source>Nothing is printed yet.

Yes: look at it again. No: print all the same.</source>
        <translation>Nothing is printed yet.

Yes: look at it again. No: print all the same.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Cannot read %1: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>Cannot save %1: %2.</translation>
    </message>
    <message>
        <source>Cannot delete %1: %2.</source>
        <translation>Cannot delete %1: %2.</translation>
    </message>
</context>
<context>
    <name>RegisterStep</name>
    <message>
        <source>Scanner &amp;first</source>
        <translation>Scanner &amp;first</translation>
    </message>
    <message>
        <source>What is sold by the piece goes on the invoice as soon as it is scanned. Without it the cursor waits at the quantity.</source>
        <translation>What is sold by the piece goes on the invoice as soon as it is scanned. Without it the cursor waits at the quantity.</translation>
    </message>
    <message>
        <source>&amp;Customer line</source>
        <translation>&amp;Customer line</translation>
    </message>
    <message>
        <source>The sales screen has two boxes for the customer, and the receipt shows what was written there.</source>
        <translation>The sales screen has two boxes for the customer, and the receipt shows what was written there.</translation>
    </message>
    <message>
        <source>Next &amp;invoice by itself</source>
        <translation>Next &amp;invoice by itself</translation>
    </message>
    <message>
        <source>When an invoice is posted or given up, the next one opens at once.</source>
        <translation>When an invoice is posted or given up, the next one opens at once.</translation>
    </message>
    <message>
        <source>&amp;Offer the End Report</source>
        <translation>&amp;Offer the End Report</translation>
    </message>
    <message>
        <source>Whoever ends the till is asked whether to make the End Report.</source>
        <translation>Whoever ends the till is asked whether to make the End Report.</translation>
    </message>
    <message>
        <source>&amp;Blank lines after a receipt:</source>
        <translation>&amp;Blank lines after a receipt:</translation>
    </message>
    <message>
        <source>So that the paper tears below the last line</source>
        <translation>So that the paper tears below the last line</translation>
    </message>
    <message>
        <source>Fisc&amp;al file:</source>
        <translation>Fisc&amp;al file:</translation>
    </message>
    <message>
        <source>The till takes these settings when it starts.</source>
        <translation>The till takes these settings when it starts.</translation>
    </message>
</context>
<context>
    <name>ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation>Reports</translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation>&amp;Report</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;From</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;To</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Show</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>The report</translation>
    </message>
    <message>
        <source>Sa&amp;ve as table…</source>
        <translation>Sa&amp;ve as table…</translation>
    </message>
</context>
<context>
    <name>RestoreForm</name>
    <message>
        <source>Restore a backup</source>
        <translation>Restore a backup</translation>
    </message>
    <message>
        <source>The days of the shop and of the backup</source>
        <translation>The days of the shop and of the backup</translation>
    </message>
    <message>
        <source>Close the till, and all others of this shop, before you go on.</source>
        <translation>Close the till, and all others of this shop, before you go on.</translation>
    </message>
    <message>
        <source>&amp;Replace the shop by the backup</source>
        <translation>&amp;Replace the shop by the backup</translation>
    </message>
    <message>
        <source>&amp;Leave it as it is</source>
        <translation>&amp;Leave it as it is</translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message>
        <source>End Report is done?</source>
        <translation>Is the End Report done?</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <translation>End Report %1 %2</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Do you want to make the End Report?</translation>
    </message>
    <message>
        <source>End Report? YES or NO</source>
        <translation>End Report? Yes or no</translation>
    </message>
    <message>
        <source>Close the program?</source>
        <translation>Close the program?</translation>
    </message>
    <message>
        <source>END OF WORK</source>
        <translation>END OF WORK</translation>
    </message>
</context>
<context>
    <name>SearchBlock</name>
    <message>
        <source>F11-All</source>
        <translation>F11-All</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation>Search in:</translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation>Text to look for:</translation>
    </message>
    <message>
        <source>any &amp;where in the text</source>
        <translation>any&amp;where in the text</translation>
    </message>
    <message>
        <source>from the &amp;beginning</source>
        <translation>from the &amp;beginning</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Nothing is found.</source>
        <translation>Nothing was found.</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>Set-up</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Next step</source>
        <translation>&amp;Next step</translation>
    </message>
    <message>
        <source>Each step can be left out, and done again at any time. To sell, close this window and start VELTON.</source>
        <translation>Each step can be left out, and done again at any time. To sell, close this window and start VELTON.</translation>
    </message>
</context>
<context>
    <name>SupportForm</name>
    <message>
        <source>Report for whoever helps</source>
        <translation>Report for whoever helps</translation>
    </message>
    <message>
        <source>This is all that the file holds: no names, no sales, no passwords. Read it through, then save it and send it to whoever helps you.</source>
        <translation>This is all that the file holds: no names, no sales, no passwords. Read it through, then save it and send it to whoever helps you.</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>The report</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Save…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
</context>
<context>
    <name>SupportWords</name>
    <message>
        <source>This is not a text in RTF.</source>
        <translation>This is not a text in RTF.</translation>
    </message>
    <message>
        <source>The groups of the text are nested too deeply.</source>
        <translation>The groups of the text are nested too deeply.</translation>
    </message>
    <message>
        <source>The text closes more groups than it opens.</source>
        <translation>The text closes more groups than it opens.</translation>
    </message>
    <message>
        <source>The end of the text is missing.</source>
        <translation>The end of the text is missing.</translation>
    </message>
</context>
<context>
    <name>TableList</name>
    <message>
        <source>Double click for edit.</source>
        <translation>Double click to edit.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-New</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Edit</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Delete</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
</context>
<context>
    <name>TaxEntry</name>
    <message>
        <source>TaxID:</source>
        <translation>Tax ID:</translation>
    </message>
    <message>
        <source>Type of tax:</source>
        <translation>Kind of tax:</translation>
    </message>
    <message>
        <source>Tax rate:</source>
        <translation>Tax rate:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Tax rate must be numeric.</source>
        <translation>The tax rate must be a number.</translation>
    </message>
</context>
<context>
    <name>TaxesStep</name>
    <message>
        <source>Each product belongs to one tax. Products keep the rate that they were saved with.</source>
        <translation>Each product belongs to one tax. Products keep the rate that they were saved with.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Code:</translation>
    </message>
    <message>
        <source>&amp;Rate in percent:</source>
        <translation>&amp;Rate in percent:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>Ne&amp;w</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Remo&amp;ve</translation>
    </message>
</context>
<context>
    <name>TextPreview</name>
    <message>
        <source>F5-Print</source>
        <translation>F5-Print</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Save</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Delete</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Report (*.txt)</translation>
    </message>
</context>
<context>
    <name>TillsPage</name>
    <message>
        <source>Several tills</source>
        <translation>Several tills</translation>
    </message>
    <message>
        <source>Tills on several machines share one shop when it lies on a PostgreSQL server. Whoever looks after the server tells you what belongs into the boxes.</source>
        <translation>Tills on several machines share one shop when it lies on a PostgreSQL server. Whoever looks after the server tells you what belongs into the boxes.</translation>
    </message>
    <message>
        <source>&amp;Server</source>
        <translation>&amp;Server</translation>
    </message>
    <message>
        <source>such as 192.168.1.10</source>
        <translation>such as 192.168.1.10</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;Database</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;User</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Password</translation>
    </message>
    <message>
        <source>as kept before</source>
        <translation>as kept before</translation>
    </message>
    <message>
        <source>&amp;Name of the shop there</source>
        <translation>&amp;Name of the shop there</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>&amp;Encryption</translation>
    </message>
    <message>
        <source>&amp;Look at the server</source>
        <translation>&amp;Look at the server</translation>
    </message>
    <message>
        <source>&amp;Move this shop there</source>
        <translation>&amp;Move this shop there</translation>
    </message>
    <message>
        <source>&amp;Join the shop there</source>
        <translation>&amp;Join the shop there</translation>
    </message>
    <message>
        <source>&amp;Back into this folder…</source>
        <translation>&amp;Back into this folder…</translation>
    </message>
    <message>
        <source>The pictures on touch buttons lie in the folder of each register. Carry them from one to the other by a stick or a share.</source>
        <translation>The pictures on touch buttons lie in the folder of each register. Carry them from one to the other by a stick or a share.</translation>
    </message>
    <message>
        <source>&amp;Take pictures from…</source>
        <translation>&amp;Take pictures from…</translation>
    </message>
    <message>
        <source>&amp;Copy pictures to…</source>
        <translation>&amp;Copy pictures to…</translation>
    </message>
</context>
<context>
    <name>ToolWords</name>
    <message>
        <source>A copy goes into a file, not to the standard output.</source>
        <translation>A copy goes into a file, not to the standard output.</translation>
    </message>
    <message>
        <source>Both stores are sound.</source>
        <translation>Both stores are sound.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no day; write 2026-11-30.</source>
        <translation>&apos;%1&apos; is not a day; write it like 2026-11-30.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; divides nothing that could be read.</source>
        <translation>&apos;%1&apos; is not a separator that a table can be read with.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form COLUMN=FIELD.</source>
        <translation>&apos;%1&apos; is not of the form COLUMN=FIELD.</translation>
    </message>
    <message>
        <source>%1, separator %2, decimals behind %3; %4</source>
        <translation>%1, separator %2, decimal sign %3; %4</translation>
    </message>
    <message>
        <source>an unknown sign</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>1 row is refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>1 row is refused, so nothing is written; --skip-refused writes the others.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows are refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>
            <numerusform>%n row is refused, so nothing is written; --skip-refused writes the others.</numerusform>
            <numerusform>%n rows are refused, so nothing is written; --skip-refused writes the others.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Written: %1 new, %2 changed.</translation>
    </message>
    <message>
        <source>Sold meanwhile, and taken off: %1</source>
        <translation>Sold meanwhile, and taken off: %1</translation>
    </message>
    <message>
        <source>%1 is taken back: %2 restored, %3 removed, %4 notes.</source>
        <translation>%1 is taken back: %2 restored, %3 removed, %4 notes.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE.</source>
        <translation>&apos;%1&apos; is not of the form FIELD=VALUE.</translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation>The field &apos;%1&apos; is there twice.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>line %1</translation>
    </message>
    <message>
        <source>%1 (velton-store --help tells more)</source>
        <translation>%1 (velton-store --help tells more)</translation>
    </message>
    <message>
        <source>Moved %1 rows of %2 tables and compared %3 days of sales.</source>
        <translation>Moved %1 rows of %2 tables and compared %3 days of sales.</translation>
    </message>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>The old store is kept as %1.</translation>
    </message>
    <message>
        <source>Cannot write the output: %1</source>
        <translation>Cannot write the output: %1</translation>
    </message>
    <message>
        <source>No folder for backups is named here, nor by velton.ini in its section [backup].</source>
        <translation>No folder for backups is named here, nor in the section [backup] of velton.ini.</translation>
    </message>
    <message>
        <source>Made %1: %2 invoices, %3 bytes.</source>
        <translation>Made %1: %2 invoices, %3 bytes.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there.</source>
        <translation>The folder for backups, %1, is not there.</translation>
    </message>
    <message>
        <source>Restored %1 invoices of %2 days.</source>
        <translation>Restored %1 invoices of %2 days.</translation>
    </message>
    <message>
        <source>What was replaced is kept in %1.</source>
        <translation>What was replaced is kept in %1.</translation>
    </message>
    <message>
        <source>%1: %2 invoices, %3 become %4, %5</source>
        <translation>%1: %2 invoices, %3 become %4, %5</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>The old store could not be put aside, and no till may work on it any more. %1</translation>
    </message>
</context>
<context>
    <name>TouchButton</name>
    <message>
        <source>Free</source>
        <extracomment>a button without a product</extracomment>
        <translation>Free</translation>
    </message>
</context>
<context>
    <name>UnitsStep</name>
    <message>
        <source>The till counts one piece of pcs at each scan, and asks for the quantity of every other unit. A short name can be changed until a product has it.</source>
        <translation>The till counts one piece of pcs at each scan, and asks for the quantity of every other unit. A short name can be changed until a product has it.</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>S&amp;hort name:</source>
        <translation>S&amp;hort name:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>Ne&amp;w</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Remo&amp;ve</translation>
    </message>
</context>
<context>
    <name>UserEntry</name>
    <message>
        <source>UserID:</source>
        <translation>User ID:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>User name:</translation>
    </message>
    <message>
        <source>Access Level:</source>
        <translation>Access level:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Confirm Pass:</source>
        <translation>Confirm password:</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>Workplace:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>User with this UserID or a UserName already exists.Change Username!</source>
        <translation>A user with this ID or name exists already. Change the name.</translation>
    </message>
</context>
<context>
    <name>UsersStep</name>
    <message>
        <source>Level 1 sells, level 2 also makes the End Report, level 3 does everything.</source>
        <translation>Level 1 sells, level 2 also makes the End Report, level 3 does everything.</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Users</translation>
    </message>
    <message>
        <source>N&amp;umber:</source>
        <translation>N&amp;umber:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>&amp;Level:</source>
        <translation>&amp;Level:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>Ne&amp;w</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Remo&amp;ve</translation>
    </message>
</context>
<context>
    <name>forms</name>
    <message>
        <source>The screen that shows %1 is closed.</source>
        <translation>The screen that shows %1 is closed.</translation>
    </message>
    <message>
        <source>%1 has no control %2.</source>
        <translation>%1 has no control %2.</translation>
    </message>
</context>
<context>
    <name>forms::KeypadPanel</name>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>forms::ListView</name>
    <message>
        <source>No row of the list is selected.</source>
        <translation>No row of the list is selected.</translation>
    </message>
</context>
<context>
    <name>forms::LongWork</name>
    <message>
        <source>This takes a while ...</source>
        <translation>This takes a while ...</translation>
    </message>
    <message>
        <source>ESC-Leave</source>
        <translation>ESC-Leave</translation>
    </message>
</context>
<context>
    <name>forms::ScanGuard</name>
    <message>
        <source>Not taken: %1</source>
        <translation>Not taken: %1</translation>
    </message>
</context>
<context>
    <name>forms::TextView</name>
    <message>
        <source>Cannot write a file: %1</source>
        <translation>Cannot write a file: %1</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About program</source>
        <translation>About the program</translation>
    </message>
    <message>
        <source>The till of one small shop: invoices, stock, receipts and reports.</source>
        <translation>The till of one small shop: invoices, stock, receipts and reports.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>frmActivity</name>
    <message>
        <source>Business hours of cash register</source>
        <translation>Business hours of the register</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Reg.</translation>
    </message>
    <message>
        <source>DateFrom</source>
        <translation>From day</translation>
    </message>
    <message>
        <source>DateTo</source>
        <translation>To day</translation>
    </message>
    <message>
        <source>Time login</source>
        <translation>Login time</translation>
    </message>
    <message>
        <source>Time logoff</source>
        <translation>Log-off time</translation>
    </message>
    <message>
        <source>List haven&apos;t any item.Change date.</source>
        <translation>The list is empty. Choose other days.</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Delete</translation>
    </message>
    <message>
        <source>Delete all list</source>
        <translation>Delete the whole list</translation>
    </message>
    <message>
        <source>Log can&apos;t be deleted.</source>
        <translation>The log can&apos;t be deleted.</translation>
    </message>
</context>
<context>
    <name>frmArtikli</name>
    <message>
        <source>Products</source>
        <translation>Products</translation>
    </message>
    <message>
        <source>Double click for edit.</source>
        <translation>Double click to edit.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-New</translation>
    </message>
    <message>
        <source>Add new product</source>
        <translation>Add a new product</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Edit</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Delete</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Code - bar code</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Tax rate</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Price without tax</translation>
    </message>
    <message>
        <source>Second Price</source>
        <translation>Second price</translation>
    </message>
    <message>
        <source>Second Price without Tax</source>
        <translation>Second price without tax</translation>
    </message>
    <message>
        <source>ProductID - Barcode: %1
Product name: %2
Do you want to delete this item?</source>
        <translation>Code - bar code: %1
Product name: %2
Do you want to delete this product?</translation>
    </message>
    <message>
        <source>Product deleted.</source>
        <translation>The product is deleted.</translation>
    </message>
</context>
<context>
    <name>frmChangePassword</name>
    <message>
        <source>Izmjena lozinke</source>
        <translation>Change of password</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>User:</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>New password</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Confirm password</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation>The password is changed.</translation>
    </message>
    <message>
        <source>User with this code or a name already exists.Change name!</source>
        <translation>A user with this ID or name exists already. Change the name.</translation>
    </message>
</context>
<context>
    <name>frmChangeUser</name>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>LOGIN</source>
        <translation>LOGIN</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;User:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Nonexistent user.</source>
        <translation>There is no such user.</translation>
    </message>
    <message>
        <source>Wrong password.</source>
        <translation>Wrong password.</translation>
    </message>
</context>
<context>
    <name>frmDepozit</name>
    <message>
        <source>Deposit - payment </source>
        <translation>Deposit - pay in </translation>
    </message>
    <message>
        <source>Deposit payment - only for fiscal printers</source>
        <translation>Deposit paid in - only for fiscal printers</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>only for fiscal printers</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Amount:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Register the deposit - F12</translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation>The deposit must be a number.</translation>
    </message>
    <message>
        <source>Paid deposit.</source>
        <translation>The deposit is paid in.</translation>
    </message>
</context>
<context>
    <name>frmDepozitIsplata</name>
    <message>
        <source>Deposit payout</source>
        <translation>Deposit - pay out</translation>
    </message>
    <message>
        <source>Deposit payout - only for fiscal printers</source>
        <translation>Deposit paid out - only for fiscal printers</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>only for fiscal printers</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Amount:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Register the deposit - F12</translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation>The deposit must be a number.</translation>
    </message>
    <message>
        <source>Deposit payout.</source>
        <translation>The deposit is paid out.</translation>
    </message>
</context>
<context>
    <name>frmEditKupac</name>
    <message>
        <source>Edit custumer - supplier</source>
        <translation>Edit customer - supplier</translation>
    </message>
    <message>
        <source>Identification:</source>
        <translation>Identification:</translation>
    </message>
</context>
<context>
    <name>frmEditProduct</name>
    <message>
        <source>Edit product</source>
        <translation>Edit product</translation>
    </message>
    <message>
        <source>F4-Structure</source>
        <extracomment>shows the composition</extracomment>
        <translation>F4-Composition</translation>
    </message>
    <message>
        <source>Select a thumbnail - icon</source>
        <translation>Choose a small picture (icon)</translation>
    </message>
    <message>
        <source>All images</source>
        <translation>All pictures</translation>
    </message>
    <message>
        <source>File with such name does not exist!</source>
        <translation>There is no file of this name.</translation>
    </message>
</context>
<context>
    <name>frmEditTax</name>
    <message>
        <source>Edit Tax</source>
        <translation>Edit tax</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!</source>
        <translation>A tax with this ID or name exists already. Change the ID or the name.</translation>
    </message>
</context>
<context>
    <name>frmEditUser</name>
    <message>
        <source>Edit User</source>
        <translation>Edit user</translation>
    </message>
</context>
<context>
    <name>frmFirma</name>
    <message>
        <source>My details - My firm</source>
        <translation>My company</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Ident</source>
        <translation>Ident.</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Bank account</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Address can&apos;t be empty.</source>
        <translation>The address can&apos;t be empty.</translation>
    </message>
    <message>
        <source>Data modified.</source>
        <translation>The data are changed.</translation>
    </message>
</context>
<context>
    <name>frmFiskalniPeriodicniIzvjestaj</name>
    <message>
        <source>Periodic report for fiscal printer</source>
        <translation>Periodic report of the fiscal printer</translation>
    </message>
    <message>
        <source>Choose time period</source>
        <translation>Choose the period</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>To:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Periodic report is done.</source>
        <translation>The periodic report is done.</translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>The help text is damaged: %1</source>
        <translation>The help text is damaged: %1</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>The help text is not there.

It should be in this file:
%1</source>
        <translation>The help text is not there.

It should be in this file:
%1</translation>
    </message>
    <message>
        <source>The help text cannot be read: %1

It is in this file:
%2</source>
        <translation>The help text cannot be read: %1

It is in this file:
%2</translation>
    </message>
    <message>
        <source>The help text cannot be read: it is too long.

It is in this file:
%1</source>
        <translation>The help text cannot be read: it is too long.

It is in this file:
%1</translation>
    </message>
</context>
<context>
    <name>frmIzvjestajKIF</name>
    <message>
        <source>Invoices for tax report</source>
        <translation>Tax book of invoices</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>invoices</translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <translation>from %1 to %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>InvoiceFrom</source>
        <translation>First invoice</translation>
    </message>
    <message>
        <source>InvoiceTo</source>
        <translation>Last invoice</translation>
    </message>
    <message>
        <source>Total without Tax</source>
        <translation>Total without tax</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Total with Tax</source>
        <translation>Total with tax</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Base:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>TAX:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
</context>
<context>
    <name>frmKlikTabla</name>
    <message>
        <source>CLICK TABLE edit</source>
        <translation>TOUCH TABLE</translation>
    </message>
    <message>
        <source>input new card name</source>
        <extracomment>card: a tab of the touch table</extracomment>
        <translation>Name of the tab</translation>
    </message>
    <message>
        <source>F5-Change name of category</source>
        <translation>F5-Change name of tab</translation>
    </message>
    <message>
        <source>F4-Automatic</source>
        <translation>F4-Automatic</translation>
    </message>
    <message>
        <source>F3-Refresh</source>
        <translation>F3-Refresh</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>search in:</source>
        <translation>Search in:</translation>
    </message>
    <message>
        <source>Search product:</source>
        <translation>Search product:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>anywhere in the text</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>from the beginning</translation>
    </message>
    <message>
        <source>Tab name can&apos;t be empty.</source>
        <translation>The name of the tab can&apos;t be empty.</translation>
    </message>
    <message>
        <source>Old settings will be lost,
Klick Table will be set automatic</source>
        <translation>The present table will be lost,
and the touch table will be filled by itself.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>No current row.</translation>
    </message>
</context>
<context>
    <name>frmKupci</name>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Customers - Suppliers</translation>
    </message>
    <message>
        <source>&amp;Custumer - supplier</source>
        <translation>&amp;Customer - supplier</translation>
    </message>
    <message>
        <source>Dvoklik izaberi kupca</source>
        <translation>A double click chooses the customer</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-New</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Edit</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Delete</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation>Search in:</translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation>Text to look for:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>anywhere in the text</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>from the beginning</translation>
    </message>
    <message>
        <source>CustumerID</source>
        <translation>Customer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Ident</source>
        <translation>Ident.</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Rate rebate/margin</source>
        <translation>Rebate/margin</translation>
    </message>
    <message>
        <source>Custumer: %1
Do you want to delete the customer?</source>
        <translation>Customer: %1
Do you want to delete the customer?</translation>
    </message>
    <message>
        <source>Custumer deleted.</source>
        <translation>The customer is deleted.</translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>VELTON - LOGIN</source>
        <translation>VELTON - LOGIN</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>User name:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Broj prijava:</source>
        <translation>Login No.:</translation>
    </message>
    <message>
        <source>Check date and time</source>
        <translation>Check date and time</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Time:</translation>
    </message>
    <message>
        <source>Provjerite datum i vrijeme ako nisu ispravni prekinite pokretanje programa i popravite datum i vrijeme</source>
        <translation>Check date and time. If they are wrong, stop the start of the program and set the clock right.</translation>
    </message>
    <message>
        <source>60 secunds for login</source>
        <translation>60 seconds to log in</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>choose user</source>
        <translation>Choose the user</translation>
    </message>
    <message>
        <source>Program VELTON already run.</source>
        <translation>VELTON runs already.</translation>
    </message>
    <message>
        <source>VELTON already works.</source>
        <translation>VELTON runs already.</translation>
    </message>
    <message>
        <source>Wrong password.Login not allowed.</source>
        <translation>Wrong password. Login refused.</translation>
    </message>
</context>
<context>
    <name>frmMSGinvoice</name>
    <message>
        <source>CHANGE</source>
        <translation>CHANGE</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>CASH</source>
        <translation>CASH</translation>
    </message>
    <message>
        <source>Thank you!!!</source>
        <translation>Thank you!</translation>
    </message>
    <message>
        <source>OK </source>
        <translation>OK </translation>
    </message>
    <message>
        <source>The amount is less than the invoice amount.</source>
        <translation>The amount is less than the total of the invoice.</translation>
    </message>
</context>
<context>
    <name>frmMreza</name>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Network - several PCs on one store</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1. Path of the server</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>Enter the full path to the folder where the store is</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2. Number of the cash register</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Enter the number of the cash register (1-19)</translation>
    </message>
    <message>
        <source>For server a number greater than 20</source>
        <translation>For the server a number greater than 20</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Close</translation>
    </message>
</context>
<context>
    <name>frmNewKupac</name>
    <message>
        <source>New custumer - supplier</source>
        <translation>New customer - supplier</translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation>Ident.:</translation>
    </message>
</context>
<context>
    <name>frmNewProduct</name>
    <message>
        <source>New product</source>
        <translation>New product</translation>
    </message>
    <message>
        <source>ESC-Delete</source>
        <translation>Esc-Delete</translation>
    </message>
    <message>
        <source>Choose image - icon</source>
        <translation>Choose a picture (icon)</translation>
    </message>
    <message>
        <source>Sve slike</source>
        <translation>All pictures</translation>
    </message>
    <message>
        <source>File not exist!</source>
        <translation>There is no such file.</translation>
    </message>
    <message>
        <source>The new product is added.</source>
        <translation>The new product is added.</translation>
    </message>
</context>
<context>
    <name>frmNewTax</name>
    <message>
        <source>New Tax</source>
        <translation>New tax</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!!</source>
        <translation>A tax with this ID or name exists already. Change the ID or the name.</translation>
    </message>
    <message>
        <source>A new type of tax is added.</source>
        <translation>The new tax is added.</translation>
    </message>
</context>
<context>
    <name>frmNewUser</name>
    <message>
        <source>New User</source>
        <translation>New user</translation>
    </message>
    <message>
        <source>New user added.</source>
        <translation>The new user is added.</translation>
    </message>
</context>
<context>
    <name>frmORVAtouch</name>
    <message>
        <source>INVOICE No:</source>
        <translation>INVOICE No.:</translation>
    </message>
    <message>
        <source>ili broj:</source>
        <translation>or number:</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>ProductID-BarCode:</source>
        <translation>Code - bar code:</translation>
    </message>
    <message>
        <source>Product name:</source>
        <translation>Product name:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Quantity:</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>ADD on INVOICE</source>
        <translation>ADD TO INVOICE</translation>
    </message>
    <message>
        <source>Custumer:</source>
        <translation>Customer:</translation>
    </message>
    <message>
        <source>Custumer name,address...</source>
        <translation>Customer&apos;s name, address...</translation>
    </message>
    <message>
        <source>Custumer Ident</source>
        <translation>Customer&apos;s ident.</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Click to delete, right click to change the quantity</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Last line</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-New</translation>
    </message>
    <message>
        <source>Esc-Delete</source>
        <translation>Esc-Delete</translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation>F2-Search</translation>
    </message>
    <message>
        <source>F6-Cashier</source>
        <translation>F6-Cashier</translation>
    </message>
    <message>
        <source>F7-Sign off</source>
        <translation>F7-Log off</translation>
    </message>
    <message>
        <source>F8-Ribbon</source>
        <translation>F8-Ribbon</translation>
    </message>
    <message>
        <source>F9-Refresh</source>
        <translation>F9-Refresh</translation>
    </message>
    <message>
        <source>REFRESH CLICK TABLE</source>
        <translation>REFRESH TOUCH TABLE</translation>
    </message>
    <message>
        <source>F10-Invoices</source>
        <translation>F10-Invoices</translation>
    </message>
    <message>
        <source>F12-End</source>
        <translation>F12-End</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>Choose cashier.</source>
        <translation>Choose the cashier.</translation>
    </message>
    <message>
        <source>You did not enter a single item on the invoice.</source>
        <translation>There is nothing on the invoice yet.</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>New invoice</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Print</translation>
    </message>
    <message>
        <source>Do you want cancel the invoice?</source>
        <translation>Do you want to cancel the invoice?</translation>
    </message>
    <message>
        <source>Product has meanwhile been deleted or does not exist.</source>
        <translation>The product does not exist, or has been deleted meanwhile.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist.</source>
        <translation>There is no product with this code.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist</source>
        <translation>There is no product with this code</translation>
    </message>
    <message>
        <source>Illogical quantity. </source>
        <translation>Such a quantity makes no sense. </translation>
    </message>
    <message>
        <source>CHANGE QUANTITY</source>
        <translation>CHANGE OF QUANTITY</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation>Lines: %1   Pieces: %2</translation>
    </message>
    <message>
        <source>Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.</source>
        <translation>Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.</translation>
    </message>
    <message>
        <source>Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.</source>
        <translation>Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.</translation>
    </message>
    <message>
        <source>The stock of %1 can&apos;t be written yet. %2</source>
        <translation>The stock of %1 can&apos;t be written yet. %2</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>1.Program</source>
        <translation>1. Program</translation>
    </message>
    <message>
        <source>1.Printer for invoices</source>
        <translation>1. Printer for invoices</translation>
    </message>
    <message>
        <source>POS printer LPT1</source>
        <translation>Printer LPT1</translation>
    </message>
    <message>
        <source>POS printer LPT2</source>
        <translation>Printer LPT2</translation>
    </message>
    <message>
        <source>windows printer</source>
        <translation>page printer</translation>
    </message>
    <message>
        <source>Set win printer</source>
        <translation>Set page printer</translation>
    </message>
    <message>
        <source>2. POS Printer emulalation</source>
        <translation>2. Receipt printer&apos;s language</translation>
    </message>
    <message>
        <source>Epson emulation</source>
        <translation>Epson</translation>
    </message>
    <message>
        <source>Star emulation</source>
        <translation>Star</translation>
    </message>
    <message>
        <source>cutter POS printer</source>
        <translation>printer has a cutter</translation>
    </message>
    <message>
        <source>3.Printer for reports</source>
        <translation>3. Printer for reports</translation>
    </message>
    <message>
        <source>POS printer na LPT1</source>
        <translation>Printer on LPT1</translation>
    </message>
    <message>
        <source>POS printer na LPT2</source>
        <translation>Printer on LPT2</translation>
    </message>
    <message>
        <source>POS Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>standard monitor</source>
        <translation>standard monitor</translation>
    </message>
    <message>
        <source>touch monitor</source>
        <translation>touch monitor</translation>
    </message>
    <message>
        <source>4.Currency</source>
        <translation>4. Currency</translation>
    </message>
    <message>
        <source>currency sign max 3 char</source>
        <translation>sign of the currency, 3 characters at most</translation>
    </message>
    <message>
        <source>5.Show amount in cash register on main form</source>
        <translation>5. Show the takings in the main window</translation>
    </message>
    <message>
        <source>show amount in cash register on main form</source>
        <translation>show the takings in the main window</translation>
    </message>
    <message>
        <source>6.Ask password when change cashier</source>
        <translation>6. Ask for the password when the cashier changes</translation>
    </message>
    <message>
        <source>ask for password </source>
        <translation>ask for the password </translation>
    </message>
    <message>
        <source>7.Change</source>
        <extracomment>the money that the customer gets back</extracomment>
        <translation>7. Change</translation>
    </message>
    <message>
        <source>request to input and display paid cash and change</source>
        <translation>ask for the cash paid and show the change</translation>
    </message>
    <message>
        <source>8.Show all products in Search</source>
        <translation>8. Show all products in the search</translation>
    </message>
    <message>
        <source>show all products in search when open form</source>
        <translation>show all products when the search opens</translation>
    </message>
    <message>
        <source>9.Make printed invoices ribbon on HDD</source>
        <translation>9. Ribbon of printed invoices on the disk</translation>
    </message>
    <message>
        <source>printed invoices ribbon on HDD</source>
        <translation>ribbon of printed invoices on the disk</translation>
    </message>
    <message>
        <source>filename</source>
        <translation>file name</translation>
    </message>
    <message>
        <source>10.Print only on fiscal printer</source>
        <translation>10. Print only on the fiscal printer</translation>
    </message>
    <message>
        <source>print only on fiscal printer</source>
        <translation>print only on the fiscal printer</translation>
    </message>
    <message>
        <source>filename fiscal printer</source>
        <translation>file of the fiscal printer</translation>
    </message>
    <message>
        <source>New invoice automatic</source>
        <translation>New invoice by itself</translation>
    </message>
    <message>
        <source>new invoice automatic</source>
        <translation>new invoice by itself</translation>
    </message>
    <message>
        <source>default option 1-Yes</source>
        <translation>usually 1 - Yes</translation>
    </message>
    <message>
        <source>Show window with display for custumer</source>
        <translation>Show the window for the customer&apos;s display</translation>
    </message>
    <message>
        <source>show window with display for custumer</source>
        <translation>show the window for the customer&apos;s display</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>not used</translation>
    </message>
    <message>
        <source>2.Invoice</source>
        <translation>2. Invoice</translation>
    </message>
    <message>
        <source>1.Invoice heading</source>
        <translation>1. Heading of the invoice</translation>
    </message>
    <message>
        <source>My Firm Name</source>
        <translation>Company name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Firm Ident</source>
        <translation>Company ID</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Store Place</source>
        <translation>Place of sale</translation>
    </message>
    <message>
        <source>2.Change invoice No.</source>
        <translation>2. Change the number of the invoice</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>enter a new invoice no and click go</source>
        <translation>enter the new number and press Go</translation>
    </message>
    <message>
        <source>5.Cashier</source>
        <translation>5. Cashier</translation>
    </message>
    <message>
        <source>print cashier on invoice</source>
        <translation>print the cashier on the invoice</translation>
    </message>
    <message>
        <source>6.Footer text on invoice</source>
        <translation>6. Text at the foot of the invoice</translation>
    </message>
    <message>
        <source>3.Invoice details</source>
        <translation>3. Items of the invoice</translation>
    </message>
    <message>
        <source>1.Printing items on the invoice</source>
        <translation>1. How items are printed on the invoice</translation>
    </message>
    <message>
        <source>ProductID and ProductName                     Price Quantit  TRate     Tax  Amount</source>
        <extracomment>82 columns, all but the product aligned right: product 43, price 8, quantity 8, tax rate 7, tax 8, amount 8</extracomment>
        <translation>Code and product name                         Price Quantit  TRate     Tax  Amount</translation>
    </message>
    <message>
        <source>40 char</source>
        <translation>40 columns</translation>
    </message>
    <message>
        <source>Product Name         Price Quanti Amount</source>
        <extracomment>40 columns, all but the product aligned right: product 18, price 8, quantity 7, amount 7</extracomment>
        <translation>Product Name         Price Quanti Amount</translation>
    </message>
    <message>
        <source>   Price Quantit  TRate     Tax   Amount</source>
        <extracomment>40 columns, all aligned right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>   Price Quantit  TRate     Tax   Amount</translation>
    </message>
    <message>
        <source>No Product Name      Price Quant  Amount</source>
        <extracomment>40 columns, figures aligned right: number 3, product 15, price 8, quantity 6, amount 8</extracomment>
        <translation>No Product Name      Price Quant  Amount</translation>
    </message>
    <message>
        <source>A4 print</source>
        <translation>A4 page</translation>
    </message>
    <message>
        <source>80 char</source>
        <translation>80 columns</translation>
    </message>
    <message>
        <source>   Price Quantity      Amount</source>
        <extracomment>29 columns, all aligned right: price 8, quantity 9, amount 12</extracomment>
        <translation>   Price Quantity      Amount</translation>
    </message>
    <message>
        <source>32 char</source>
        <translation>32 columns</translation>
    </message>
    <message>
        <source>ProductName Price Quant Amount</source>
        <extracomment>30 columns, all but the product aligned right: product 11, price 6, quantity 6, amount 7</extracomment>
        <translation>Product     Price Quant Amount</translation>
    </message>
    <message>
        <source>2.Recapitulation taxes </source>
        <translation>2. Recapitulation of taxes </translation>
    </message>
    <message>
        <source>recapitulation by Tax Rates           Rate    Amount</source>
        <extracomment>52 columns, figures aligned right: what it is 33, rate 9, amount 10</extracomment>
        <translation>recapitulation by tax rates           Rate    Amount</translation>
    </message>
    <message>
        <source>without recapitulation print only Tax Total</source>
        <translation>no recapitulation, the total of the tax only</translation>
    </message>
    <message>
        <source>4.Network</source>
        <translation>4. Network</translation>
    </message>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Network - several PCs on one store</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1. Path of the server</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>Enter the full path to the folder where the store is</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2. Number of the cash register</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Enter the number of the cash register (1-19)</translation>
    </message>
    <message>
        <source>za samo kontrolne funkcije broj veći od 20</source>
        <translation>for control only a number greater than 20</translation>
    </message>
    <message>
        <source>F5-Sacuvaj</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>Sacuvaj promjene</source>
        <translation>Save the changes</translation>
    </message>
    <message>
        <source>F1-Upute</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>Upute za rad</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>F12-Zatvori</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation>The number of the invoice must be a number.</translation>
    </message>
    <message>
        <source>Invoice No changed.</source>
        <translation>The number of the invoice is changed.</translation>
    </message>
    <message>
        <source>The main window does not show the sales screen.</source>
        <translation>The main window does not show the sales screen.</translation>
    </message>
    <message>
        <source>Changes are saved.</source>
        <translation>Changes are saved.</translation>
    </message>
</context>
<context>
    <name>frmPopisRobe</name>
    <message>
        <source>Product list - List of goods</source>
        <translation>Stock list - list of goods</translation>
    </message>
    <message>
        <source>Sifra-BarKod</source>
        <translation>Code - bar code</translation>
    </message>
    <message>
        <source>Naziv</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>JM</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Kolicina</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Cijena</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Vrijednost</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>TOTAL with Tax:</source>
        <translation>TOTAL with tax:</translation>
    </message>
    <message>
        <source>TOTAL without Tax:</source>
        <translation>TOTAL without tax:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>TAX:</translation>
    </message>
    <message>
        <source>Sacuvaj kao</source>
        <translation>Save as</translation>
    </message>
</context>
<context>
    <name>frmRacPRG</name>
    <message>
        <source>Invoices - print, view, save</source>
        <translation>Invoices - print, view, save</translation>
    </message>
    <message>
        <source>INVOICE No:</source>
        <translation>INVOICE No.:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>Tax :</source>
        <translation>Tax :</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Print</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Save</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Save to a stick, disk...</translation>
    </message>
    <message>
        <source>F7-Print all</source>
        <translation>F7-Print all</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Delete</translation>
    </message>
    <message>
        <source>Brise arhivirano radno vrijeme</source>
        <translation>Deletes the archived business hours</translation>
    </message>
    <message>
        <source>Prethodni</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Sljedeci</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Zadnji</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>Zatvori prozor</source>
        <translation>Close the window</translation>
    </message>
    <message>
        <source>Review Invoice</source>
        <translation>Invoice review</translation>
    </message>
    <message>
        <source>Currently there is no single invoice</source>
        <translation>There is no invoice yet</translation>
    </message>
</context>
<context>
    <name>frmRacunPregled</name>
    <message>
        <source>Print preview</source>
        <translation>Print preview</translation>
    </message>
</context>
<context>
    <name>frmRacuni</name>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Invoice No.</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>InvoiceID</source>
        <translation>Invoice ID</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
    <message>
        <source>F4-Print list invoices</source>
        <translation>F4-Print list of invoices</translation>
    </message>
    <message>
        <source>F6 -Print selected invoice</source>
        <translation>F6-Print chosen invoice</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
</context>
<context>
    <name>frmReklamiranjeRacuna</name>
    <message>
        <source>Withdrawal invoice - only fiscal printer</source>
        <translation>Withdrawal of an invoice - only fiscal printer</translation>
    </message>
    <message>
        <source>NOTE: There must be registered sales with enough money in the fiscal device to be able to execute this command</source>
        <translation>NOTE: the fiscal device must have registered sales with enough money for this command</translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation>Invoice No.:</translation>
    </message>
    <message>
        <source>Withdraw invoice - F12</source>
        <translation>Withdraw invoice - F12</translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation>The number of the invoice must be a number.</translation>
    </message>
    <message>
        <source>Invoice withdraw.</source>
        <translation>The invoice is withdrawn.</translation>
    </message>
</context>
<context>
    <name>frmSales</name>
    <message>
        <source>Sale by Cashier</source>
        <translation>Sales by cashier</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>cashier</source>
        <translation>cashier</translation>
    </message>
    <message>
        <source>CashierID</source>
        <translation>Cashier ID</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation>TOTAL :</translation>
    </message>
</context>
<context>
    <name>frmSalesProducts</name>
    <message>
        <source>Sale by Products</source>
        <translation>Sales by product</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation>TOTAL :</translation>
    </message>
</context>
<context>
    <name>frmSalesTax</name>
    <message>
        <source>TAX Report</source>
        <translation>Tax report</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>tax rate</source>
        <translation>tax rate</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Tax type</source>
        <translation>Kind of tax</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Tax rate</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Osnovica</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Iznos poreza</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Iznos sa porezom-PDVom</source>
        <translation>Amount with tax</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Base:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>TAX:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
</context>
<context>
    <name>frmSastav</name>
    <message>
        <source>Product composition</source>
        <translation>Product composition</translation>
    </message>
    <message>
        <source>Product composition for:</source>
        <translation>Product composition for:</translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Code - bar code</translation>
    </message>
    <message>
        <source>Product Name:</source>
        <translation>Product name:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Quantity:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unit:</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Tax rate</translation>
    </message>
    <message>
        <source>AMOUNT :</source>
        <translation>AMOUNT :</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation>F2-Search</translation>
    </message>
    <message>
        <source>[F2] - Choose product</source>
        <translation>[F2] - Choose product</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Click to delete, right click to change the quantity</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Save</translation>
    </message>
    <message>
        <source>F5-Delete</source>
        <translation>F5-Delete</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>A composition is opened from the screen of its product.</source>
        <translation>A composition is opened from the screen of its product.</translation>
    </message>
    <message>
        <source>Product with this code-barcode does not exist.</source>
        <translation>There is no product with this code.</translation>
    </message>
    <message>
        <source>You did not enter a single item in the composition.</source>
        <translation>There is nothing in the composition yet.</translation>
    </message>
</context>
<context>
    <name>frmStanjeArtikala</name>
    <message>
        <source>Quantity of items in stock</source>
        <translation>Stock of goods</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
    <message>
        <source>List does not contain any item.</source>
        <translation>The list is empty.</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Refresh</translation>
    </message>
</context>
<context>
    <name>frmTax</name>
    <message>
        <source>Tax protected from deletion, but you can modify the data.</source>
        <translation>The tax is protected from deletion, but its data can be changed.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Tax rate [%]</source>
        <translation>Tax rate [%]</translation>
    </message>
    <message>
        <source>Tax name</source>
        <translation>Name of the tax</translation>
    </message>
    <message>
        <source>Tax deleted.</source>
        <translation>The tax is deleted.</translation>
    </message>
    <message>
        <source>TaxID: %1
Tax name: %2
Are you sure you want to delete this type of tax?</source>
        <translation>Tax ID: %1
Name of the tax: %2
Do you want to delete this tax?</translation>
    </message>
</context>
<context>
    <name>frmTaxbyInvoice</name>
    <message>
        <source>TAX Report by Invoices</source>
        <translation>Tax report by invoices</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>invoices</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Invoice No.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Amount without Tax</source>
        <translation>Amount without tax</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Amount with Tax</source>
        <translation>Amount with tax</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Base:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>TAX:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
</context>
<context>
    <name>frmTrakaRacuna</name>
    <message>
        <source>Printed Invoices</source>
        <translation>Printed invoices</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Save to a stick, disk...</translation>
    </message>
</context>
<context>
    <name>frmTrenutnoStanjeKasa</name>
    <message>
        <source>Currently - End Report</source>
        <translation>Now - End Report</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>Lists shows currently balance from last done End Report</source>
        <translation>The lists show how things stand since the last End Report</translation>
    </message>
    <message>
        <source>Date and time last End Report</source>
        <translation>Date and time of the last End Report</translation>
    </message>
    <message>
        <source>Register state</source>
        <translation>Register state</translation>
    </message>
    <message>
        <source>1 - CASH REGISTERS</source>
        <translation>1 - CASH REGISTERS</translation>
    </message>
    <message>
        <source>2 - CASHIERS</source>
        <translation>2 - CASHIERS</translation>
    </message>
    <message>
        <source>3 - INVOICES</source>
        <translation>3 - INVOICES</translation>
    </message>
    <message>
        <source>4 - PRODUCTS</source>
        <translation>4 - PRODUCTS</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <translation>CASH REGISTERS</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>TAX:</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CRs:</source>
        <translation>TOTAL OF ALL REGISTERS:</translation>
    </message>
    <message>
        <source>END REPORT do</source>
        <translation>Make END REPORT</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Refresh</translation>
    </message>
    <message>
        <source>F5-Print all</source>
        <translation>F5-Print all</translation>
    </message>
    <message>
        <source>F4-Print </source>
        <translation>F4-Print </translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>CASH REGISTER No.</source>
        <translation>REGISTER No.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>AMOUNT</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <translation>CASHIERS</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CASHIERS:</source>
        <translation>TOTAL OF ALL CASHIERS:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>INVOICES</source>
        <translation>INVOICES</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL INVOICES:</source>
        <translation>TOTAL OF ALL INVOICES:</translation>
    </message>
    <message>
        <source>CR No.</source>
        <translation>Reg. No.</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>Invoice No.</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>PRODUCTS</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL PRODUCTS:</source>
        <translation>TOTAL OF ALL PRODUCTS:</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>End Report</source>
        <translation>End Report</translation>
    </message>
    <message>
        <source>End Report No:</source>
        <translation>End Report No.:</translation>
    </message>
    <message>
        <source>Lists show balance for selected End Report.</source>
        <translation>The lists show the chosen End Report.</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Do you want to make the End Report?</translation>
    </message>
    <message>
        <source>End Report is done.</source>
        <translation>The End Report is done.</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <extracomment>%1 and %2 are date and time</extracomment>
        <translation>End Report %1 %2</translation>
    </message>
</context>
<context>
    <name>frmUsers</name>
    <message>
        <source>User - Cashier</source>
        <translation>Users - cashiers</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>User ID</translation>
    </message>
    <message>
        <source>UserName</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>Access Level</source>
        <translation>Access level</translation>
    </message>
    <message>
        <source>Cashier protected from deletion, but you can modify the data.</source>
        <translation>The cashier is protected from deletion, but the data can be changed.</translation>
    </message>
    <message>
        <source>User deleted.</source>
        <translation>The user is deleted.</translation>
    </message>
    <message>
        <source>User Cashier: %1
Password: %2
Are you sure you want to delete this user?</source>
        <translation>User: %1
Password: %2
Do you want to delete this user?</translation>
    </message>
</context>
<context>
    <name>frmViewer</name>
    <message>
        <source>Search Product</source>
        <translation>Search of products</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
    <message>
        <source>ProductID-BarCode</source>
        <translation>Code - bar code</translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation>Product name</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Tax rate</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Type what you look for, or press F11 for all.</source>
        <translation>Type what you look for, or press F11 for all.</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Nothing was found.</translation>
    </message>
</context>
<context>
    <name>frmWinPrinter</name>
    <message>
        <source>Windows printer</source>
        <translation>Page printer</translation>
    </message>
    <message>
        <source>Font list</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Font size</translation>
    </message>
    <message>
        <source>9 - default</source>
        <translation>9 - usual</translation>
    </message>
    <message>
        <source>Dimensions of paper</source>
        <translation>Size of the paper</translation>
    </message>
    <message>
        <source>Podesi sirinu i duzinu umetnutog papira</source>
        <translation>Set the width and length of the paper put in</translation>
    </message>
    <message>
        <source>currently selected font</source>
        <translation>font chosen now</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Save</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Help</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Close</translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled</name>
    <message>
        <source>End Reports review</source>
        <translation>Review of End Reports</translation>
    </message>
    <message>
        <source>end report</source>
        <translation>end report</translation>
    </message>
    <message>
        <source>cash register</source>
        <translation>cash register</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Reg.</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>End No. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Time to</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled1</name>
    <message>
        <source>End Reports review</source>
        <translation>Review of End Reports</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>End No. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>TOTAL:</translation>
    </message>
    <message>
        <source>F5-Print review</source>
        <translation>F5-Print review</translation>
    </message>
</context>
<context>
    <name>manager::BackupPage</name>
    <message>
        <source>Made</source>
        <translation>Made</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Last day</translation>
    </message>
    <message>
        <source>Its takings</source>
        <translation>Its takings</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>No folder has been chosen yet, and the till makes no backups. Choose one on a second disk, on a stick or in the network.</source>
        <translation>No folder has been chosen yet, and the till makes no backups. Choose one on a second disk, on a stick or in the network.</translation>
    </message>
    <message>
        <source>Backups go to %1, on the same disk as the shop: if it breaks, both are lost.</source>
        <translation>Backups go to %1, on the same disk as the shop: if it breaks, both are lost.</translation>
    </message>
    <message>
        <source>Backups go to %1.</source>
        <translation>Backups go to %1.</translation>
    </message>
    <message>
        <source>%1.
The try of %2 failed: %3</source>
        <translation>%1.
The try of %2 failed: %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Checked, of %1</source>
        <translation>Checked, of %1</translation>
    </message>
    <message>
        <source>The folder for backups</source>
        <translation>The folder for backups</translation>
    </message>
    <message>
        <source>This backup can&apos;t be restored: %1</source>
        <translation>This backup can&apos;t be restored: %1</translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation>Nothing was restored. %1</translation>
    </message>
    <message>
        <source>The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.</source>
        <translation>The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.</translation>
    </message>
    <message>
        <source>There are no backups yet.</source>
        <translation>There are no backups yet.</translation>
    </message>
    <message>
        <source>The register is being backed up.</source>
        <translation>The register is being backed up.</translation>
    </message>
    <message>
        <source>The shop and the backup are being compared.</source>
        <translation>The shop and the backup are being compared.</translation>
    </message>
    <message>
        <source>The backup is being brought back.</source>
        <translation>The backup is being restored.</translation>
    </message>
    <message>
        <source>The folder of the backups is being read.</source>
        <translation>The folder of the backups is being read.</translation>
    </message>
    <message>
        <source>The folder was not read to its end.</source>
        <translation>The folder was not read to its end.</translation>
    </message>
</context>
<context>
    <name>manager::BackupWords</name>
    <message>
        <source>No backup yet</source>
        <translation>No backup yet</translation>
    </message>
    <message>
        <source>Last good backup: %1, %2, in %3</source>
        <translation>Last good backup: %1, %2, in %3</translation>
    </message>
</context>
<context>
    <name>manager::ColumnChart</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, before %3</source>
        <translation>%1: %2, before %3</translation>
    </message>
</context>
<context>
    <name>manager::DrawerPage</name>
    <message>
        <source>Count</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Should be</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Counted</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>Nothing was counted yet. Count the drawer on the page before and keep the count.</source>
        <translation>Nothing was counted yet. Count the drawer on the page before and keep the count.</translation>
    </message>
    <message>
        <source>Counts can&apos;t be kept or shown. %1</source>
        <translation>Counts can&apos;t be kept or shown. %1</translation>
    </message>
    <message>
        <source>Which notes and coins %1 has is not known yet. Press &quot;Notes and coins&quot; and type them.</source>
        <translation>Which notes and coins %1 has is not known yet. Press &quot;Notes and coins&quot; and type them.</translation>
    </message>
    <message>
        <source>Pieces of %1</source>
        <translation>Pieces of %1</translation>
    </message>
    <message>
        <source>Too much in the drawer</source>
        <translation>Too much in the drawer</translation>
    </message>
    <message>
        <source>Missing in the drawer</source>
        <translation>Missing in the drawer</translation>
    </message>
    <message>
        <source>This is no number of pieces and no amount.</source>
        <translation>This is no number of pieces and no amount.</translation>
    </message>
    <message>
        <source>Something was sold, or an End Report was made, since this page came up. The count is not kept: look at the difference again.</source>
        <translation>Something was sold, or an End Report was made, since this page came up. The count is not kept: look at the difference again.</translation>
    </message>
    <message>
        <source>Count %1 is kept.</source>
        <translation>Count %1 is kept.</translation>
    </message>
    <message>
        <source>Count %1 is printed.</source>
        <translation>Count %1 is printed.</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Since the last End Report</translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation>End Report %1 of %2</translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation>End Report %1</translation>
    </message>
    <message>
        <source>By</source>
        <translation>By</translation>
    </message>
    <message>
        <source>End Report</source>
        <translation>End Report</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Found</translation>
    </message>
</context>
<context>
    <name>manager::DrawerText</name>
    <message>
        <source>Count %1 of the drawer, in %2</source>
        <translation>Count %1 of the drawer, in %2</translation>
    </message>
    <message>
        <source>Counted by %1</source>
        <translation>Counted by %1</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Counted</translation>
    </message>
    <message>
        <source>Sold in cash</source>
        <translation>Sold in cash</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Put in</translation>
    </message>
    <message>
        <source>Taken out</source>
        <translation>Taken out</translation>
    </message>
    <message>
        <source>Should be there</source>
        <translation>Should be there</translation>
    </message>
    <message>
        <source>DIFFERENCE</source>
        <translation>DIFFERENCE</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Since the last End Report</translation>
    </message>
    <message>
        <source>For End Report %1</source>
        <translation>For End Report %1</translation>
    </message>
</context>
<context>
    <name>manager::GoodsChoice</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>There are no such goods.</source>
        <translation>There are no such goods.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Add goods from the left.</source>
        <translation>Add goods from the left.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Without a button</source>
        <translation>Without a button</translation>
    </message>
    <message numerus="yes">
        <source>Found: %n</source>
        <translation>
            <numerusform>Found: %n</numerusform>
            <numerusform>Found: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::GoodsPage</name>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>What</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changes</translation>
    </message>
    <message>
        <source>Choose a table of goods that a spreadsheet saved as CSV.</source>
        <translation>Choose a table of goods that a spreadsheet saved as CSV.</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>all rows</translation>
    </message>
    <message>
        <source>Choose a table of goods</source>
        <translation>Choose a table of goods</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.txt *.tsv)</source>
        <translation>Tables as text (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Say which column is the code of the goods.</source>
        <translation>Say which column is the code of the goods.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Export goods</source>
        <translation>Export goods</translation>
    </message>
    <message>
        <source>Export customers</source>
        <translation>Export customers</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx);;Table as text (*.csv)</source>
        <translation>Workbook (*.xlsx);;Table as text (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Written: %1</translation>
    </message>
    <message>
        <source>all but unchanged</source>
        <translation>all but unchanged</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Nothing would change.</translation>
    </message>
    <message>
        <source>There are no such rows.</source>
        <translation>There are no such rows.</translation>
    </message>
</context>
<context>
    <name>manager::GoodsWriting</name>
    <message>
        <source>Write %1 new and %2 changed goods?</source>
        <translation>Write %1 new and %2 changed goods?</translation>
    </message>
    <message>
        <source>Refused rows stay out of it: %1.</source>
        <translation>Refused rows stay out of it: %1.</translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Written: %1 new, %2 changed.</translation>
    </message>
    <message>
        <source>Sold since the look, and taken off the new quantity too: %1.</source>
        <translation>Sold since the look, and taken off the new quantity too: %1.</translation>
    </message>
    <message>
        <source>Taken back: %1 restored, %2 removed.</source>
        <translation>Taken back: %1 restored, %2 removed.</translation>
    </message>
    <message>
        <source>So it is with %1 more.</source>
        <translation>So it is with %1 more.</translation>
    </message>
    <message>
        <source>Write %1 changed goods?</source>
        <translation>Write %1 changed goods?</translation>
    </message>
    <message>
        <source>Written: %1 changed.</source>
        <translation>Written: %1 changed.</translation>
    </message>
    <message>
        <source>Take back &apos;%1&apos; of %2? Goods that were new go, and others get their old values back. What was sold since stays sold.</source>
        <translation>Take back &apos;%1&apos; of %2? Goods that were new go, and others get their old values back. What was sold since stays sold.</translation>
    </message>
</context>
<context>
    <name>manager::HeadingStep</name>
    <message>
        <source>%1, %2 columns</source>
        <translation>%1, %2 columns</translation>
    </message>
    <message>
        <source>The shop needs a name.</source>
        <translation>The shop needs a name.</translation>
    </message>
    <message>
        <source>The longest line has %1 columns; paper has 32, 40 or 80.</source>
        <translation>The longest line has %1 columns; paper has 32, 40 or 80.</translation>
    </message>
</context>
<context>
    <name>manager::HealthPage</name>
    <message>
        <source>✓  Good</source>
        <translation>✓  Good</translation>
    </message>
    <message>
        <source>✖  Damage</source>
        <translation>✖  Damage</translation>
    </message>
    <message>
        <source>!  Note</source>
        <translation>!  Note</translation>
    </message>
    <message>
        <source>–  Fact</source>
        <translation>–  Fact</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>What was found</translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation>Nothing was looked at yet.</translation>
    </message>
    <message>
        <source>The shop is looked over.</source>
        <translation>The shop is looked over.</translation>
    </message>
    <message>
        <source>The look was left before its end.</source>
        <translation>The look was left before its end.</translation>
    </message>
    <message>
        <source>The look can&apos;t be ended. %1</source>
        <translation>The look can&apos;t be ended. %1</translation>
    </message>
    <message>
        <source>The shop is being looked at ...</source>
        <translation>The shop is being looked at ...</translation>
    </message>
    <message>
        <source>Something is damaged. Read what to do before you go on selling.</source>
        <translation>Something is damaged. Read what to do before you go on selling.</translation>
    </message>
    <message numerus="yes">
        <source>Nothing is damaged. Notes of what does not fit together: %n.</source>
        <translation>
            <numerusform>Nothing is damaged. Notes of what does not fit together: %n.</numerusform>
            <numerusform>Nothing is damaged. Notes of what does not fit together: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>All is well.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>There is nothing to do.</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>What to do: %1</translation>
    </message>
    <message>
        <source>The report is made.</source>
        <translation>The report is made.</translation>
    </message>
</context>
<context>
    <name>manager::HeatMap</name>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
</context>
<context>
    <name>manager::ImportChoices</name>
    <message>
        <source>(none)</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>Semicolon ;</source>
        <translation>Semicolon ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Comma ,</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>Point .</source>
        <translation>Point .</translation>
    </message>
    <message>
        <source>New and known goods</source>
        <translation>New and known goods</translation>
    </message>
    <message>
        <source>Only new goods</source>
        <translation>Only new goods</translation>
    </message>
    <message>
        <source>Only known goods</source>
        <translation>Only known goods</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Column %1</translation>
    </message>
</context>
<context>
    <name>manager::InvoicesView</name>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>There are no invoices behind this figure.</source>
        <translation>There are no invoices behind this figure.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
</context>
<context>
    <name>manager::Label</name>
    <message>
        <source>1 l = %1 %2</source>
        <translation>1 l = %1 %2</translation>
    </message>
    <message>
        <source>1 kg = %1 %2</source>
        <translation>1 kg = %1 %2</translation>
    </message>
    <message>
        <source>per %1</source>
        <translation>per %1</translation>
    </message>
</context>
<context>
    <name>manager::LabelChoice</name>
    <message>
        <source>Nothing to print yet</source>
        <translation>Nothing to print yet</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>%1 x %2 mm, one at a time</source>
        <translation>%1 x %2 mm, one at a time</translation>
    </message>
    <message>
        <source>%1 x %2 mm, %3 on A4</source>
        <translation>%1 x %2 mm, %3 on A4</translation>
    </message>
    <message>
        <source>Own size on A4</source>
        <translation>Own size on A4</translation>
    </message>
    <message>
        <source>Own size, one at a time</source>
        <translation>Own size, one at a time</translation>
    </message>
    <message>
        <source>600 an inch, office printer</source>
        <translation>600 an inch, office printer</translation>
    </message>
    <message>
        <source>300 an inch, label printer</source>
        <translation>300 an inch, label printer</translation>
    </message>
    <message>
        <source>203 an inch, label printer</source>
        <translation>203 an inch, label printer</translation>
    </message>
</context>
<context>
    <name>manager::LabelsPage</name>
    <message>
        <source>1 Goods</source>
        <translation>1 Goods</translation>
    </message>
    <message>
        <source>2 Labels</source>
        <translation>2 Labels</translation>
    </message>
    <message>
        <source>Price list</source>
        <translation>Price list</translation>
    </message>
    <message>
        <source>&amp;Print price list</source>
        <translation>&amp;Print price list</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>&amp;Print labels</translation>
    </message>
    <message numerus="yes">
        <source>Pages: %n</source>
        <translation>
            <numerusform>Pages: %n</numerusform>
            <numerusform>Pages: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels: %n</source>
        <translation>
            <numerusform>Labels: %n</numerusform>
            <numerusform>Labels: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</source>
        <translation>
            <numerusform>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</numerusform>
            <numerusform>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</source>
        <translation>
            <numerusform>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</numerusform>
            <numerusform>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Chosen goods that are no longer there: %n</source>
        <translation>
            <numerusform>Chosen goods that are no longer there: %n</numerusform>
            <numerusform>Chosen goods that are no longer there: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose some goods first.</source>
        <translation>Choose some goods first.</translation>
    </message>
    <message numerus="yes">
        <source>Printed. Pages: %n.</source>
        <translation>
            <numerusform>Printed. Pages: %n.</numerusform>
            <numerusform>Printed. Pages: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saved as %1. Pages: %n.</source>
        <translation>
            <numerusform>Saved as %1. Pages: %n.</numerusform>
            <numerusform>Saved as %1. Pages: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Save as PDF</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
</context>
<context>
    <name>manager::LanguagePage</name>
    <message>
        <source>As delivered</source>
        <translation>As delivered</translation>
    </message>
    <message>
        <source>It is kept. The till and this program have it from their next start.</source>
        <translation>It is kept. The till and this program have it from their next start.</translation>
    </message>
</context>
<context>
    <name>manager::ManagerLogin</name>
    <message>
        <source>This name and password are not those of a user of level 3.</source>
        <translation>This name and password are not those of a user of level 3.</translation>
    </message>
</context>
<context>
    <name>manager::ManagerWindow</name>
    <message>
        <source>%1   –   %2   –   %3</source>
        <translation>%1   –   %2   –   %3</translation>
    </message>
</context>
<context>
    <name>manager::NotesAndCoins</name>
    <message>
        <source>What the notes and coins of %1 are worth, with a blank between two:</source>
        <translation>What the notes and coins of %1 are worth, with a blank between two:</translation>
    </message>
</context>
<context>
    <name>manager::OverviewCharts</name>
    <message>
        <source>7 days before</source>
        <translation>7 days before</translation>
    </message>
    <message>
        <source>Month before</source>
        <translation>Month before</translation>
    </message>
    <message>
        <source>Year before</source>
        <translation>Year before</translation>
    </message>
    <message>
        <source>Days before</source>
        <translation>Days before</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>gone</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 day</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 days</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Taken</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Weekday</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Pieces</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Tax amount</source>
        <translation>Tax amount</translation>
    </message>
    <message>
        <source>With tax</source>
        <translation>With tax</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>In stock</source>
        <translation>In stock</translation>
    </message>
    <message>
        <source>Goes a day</source>
        <translation>Goes a day</translation>
    </message>
    <message>
        <source>Lasts days</source>
        <translation>Lasts days</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
</context>
<context>
    <name>manager::OverviewPage</name>
    <message>
        <source>Nothing was sold on these days.</source>
        <translation>Nothing was sold on these days.</translation>
    </message>
    <message>
        <source>No goods are in stock. Enter what you have on the page of the goods.</source>
        <translation>No goods are in stock. Enter what you have on the page of the goods.</translation>
    </message>
    <message>
        <source>Nothing was sold in the last four weeks, so nothing runs out.</source>
        <translation>Nothing was sold in the last four weeks, so nothing runs out.</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>The first day is after the last one.</translation>
    </message>
    <message>
        <source>Not on the touch table</source>
        <translation>Not on the touch table</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Reading ...</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>Reading back from %1 ...</source>
        <translation>Reading back from %1 ...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2  (%3)</source>
        <translation>%1: %2  (%3)</translation>
    </message>
    <message>
        <source>Today, %1 %2</source>
        <translation>Today, %1 %2</translation>
    </message>
    <message>
        <source>A week ago</source>
        <translation>A week ago</translation>
    </message>
    <message>
        <source>Mean of the last %1</source>
        <translation>Mean of the last %1</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Until %1</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Chosen: %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 invoice</translation>
    </message>
    <message>
        <source>%1 invoices, %2 each</source>
        <translation>%1 invoices, %2 each</translation>
    </message>
    <message>
        <source>Read back to %1; what is older was left out.</source>
        <translation>Read back to %1; what is older was left out.</translation>
    </message>
    <message>
        <source>The reading was left.</source>
        <translation>The reading was left.</translation>
    </message>
    <message>
        <source>Overview of %1, printed on %2, amounts in %3</source>
        <translation>Overview of %1, printed on %2, amounts in %3</translation>
    </message>
    <message>
        <source>The overview is printed.</source>
        <translation>The overview is printed.</translation>
    </message>
    <message>
        <source>Save the overview</source>
        <translation>Save the overview</translation>
    </message>
    <message>
        <source>Document (*.pdf)</source>
        <translation>Document (*.pdf)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Saved as %1.</translation>
    </message>
    <message>
        <source>Save the figures</source>
        <translation>Save the figures</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Table (*.csv)</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Taken</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Tax in it</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
</context>
<context>
    <name>manager::PageOfBoxes</name>
    <message>
        <source>Save what was changed?</source>
        <translation>Save what was changed?</translation>
    </message>
</context>
<context>
    <name>manager::Pages</name>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Reports</translation>
    </message>
    <message>
        <source>Drawer</source>
        <translation>Drawer</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Prices</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Set-up</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Health</translation>
    </message>
    <message>
        <source>Several tills</source>
        <translation>Several tills</translation>
    </message>
</context>
<context>
    <name>manager::PasswordStep</name>
    <message>
        <source>Choose a password that not everybody knows.</source>
        <translation>Choose a password that not everybody knows.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>The two passwords are not the same.</translation>
    </message>
    <message>
        <source>This user is gone.</source>
        <translation>This user is gone.</translation>
    </message>
    <message>
        <source>%1 still has the password that every shop is delivered with: %2.</source>
        <translation>%1 still has the password that every shop is delivered with: %2.</translation>
    </message>
</context>
<context>
    <name>manager::PortPanel</name>
    <message>
        <source>It is ready, as far as it tells.</source>
        <translation>It is ready, as far as it tells.</translation>
    </message>
    <message>
        <source>It has no paper.</source>
        <translation>It has no paper.</translation>
    </message>
    <message>
        <source>Its cover is open.</source>
        <translation>Its cover is open.</translation>
    </message>
    <message>
        <source>It is offline or has an error.</source>
        <translation>It is offline or has an error.</translation>
    </message>
    <message>
        <source>It does not answer. Many printers never do; then leave the box above empty.</source>
        <translation>It does not answer. Many printers never do; then leave the box above empty.</translation>
    </message>
    <message>
        <source>Port &amp;%1:</source>
        <translation>Port &amp;%1:</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>Working…</translation>
    </message>
    <message>
        <source>VELTON Manager, port %1</source>
        <translation>VELTON Manager, port %1</translation>
    </message>
    <message>
        <source>This line is bold, if the printer can.</source>
        <translation>This line is bold, if the printer can.</translation>
    </message>
    <message>
        <source>A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are wrong want another code page in the printer.</source>
        <translation>A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are wrong want another code page in the printer.</translation>
    </message>
    <message>
        <source>The drawer was told to open.</source>
        <translation>The drawer was told to open.</translation>
    </message>
    <message>
        <source>The printer was told to cut.</source>
        <translation>The printer was told to cut.</translation>
    </message>
    <message>
        <source>File %1</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>File %1 in the folder of the register</source>
        <translation>File %1 in the folder of the register</translation>
    </message>
    <message>
        <source>Printer on the network at %1</source>
        <translation>Printer on the network at %1</translation>
    </message>
    <message>
        <source>The usual device</source>
        <translation>The usual device</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Device %1</translation>
    </message>
</context>
<context>
    <name>manager::PriceList</name>
    <message>
        <source>Other goods</source>
        <translation>Other goods</translation>
    </message>
    <message>
        <source>Price list</source>
        <translation>Price list</translation>
    </message>
    <message>
        <source>%1, prices in %2</source>
        <translation>%1, prices in %2</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continued)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
</context>
<context>
    <name>manager::PricesPage</name>
    <message>
        <source>Say what is to change, and press Look.</source>
        <translation>Say what is to change, and press Look.</translation>
    </message>
    <message>
        <source>Prices by percent</source>
        <translation>Prices by percent</translation>
    </message>
    <message>
        <source>Tax rates</source>
        <translation>Tax rates</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>After</source>
        <translation>After</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Why not</translation>
    </message>
    <message>
        <source>to the cent</source>
        <translation>to the cent</translation>
    </message>
    <message>
        <source>by 0.05</source>
        <translation>by 0.05</translation>
    </message>
    <message>
        <source>by 0.10</source>
        <translation>by 0.10</translation>
    </message>
    <message>
        <source>at .99</source>
        <translation>at .99</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Goods keep the rate that their tax had when they were entered. Those with another rate get that of now. Prices hold the tax and stay.</source>
        <translation>Goods keep the rate that their tax had when they were entered. Those with another rate get that of now. Prices hold the tax and stay.</translation>
    </message>
    <message>
        <source>Below zero the goods get cheaper. Of two prices as near the higher one is taken.</source>
        <translation>Below zero the goods get cheaper. Of two prices as near the higher one is taken.</translation>
    </message>
    <message>
        <source>Prices by %1 %</source>
        <translation>Prices by %1 %</translation>
    </message>
    <message>
        <source>The percent has to be a number above -100, up to 1000, with at most two decimals.</source>
        <translation>The percent has to be a number above -100, up to 1000, with at most two decimals.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Nothing would change.</translation>
    </message>
    <message>
        <source>%1 changed, %2 unchanged, %3 refused</source>
        <translation>%1 changed, %2 unchanged, %3 refused</translation>
    </message>
    <message>
        <source>all</source>
        <translation>all</translation>
    </message>
</context>
<context>
    <name>manager::PrintersPage</name>
    <message>
        <source>Port 1</source>
        <translation>Port 1</translation>
    </message>
    <message>
        <source>Port 2</source>
        <translation>Port 2</translation>
    </message>
    <message>
        <source>The page printer</source>
        <translation>The page printer</translation>
    </message>
    <message>
        <source>Epson (ESC/POS)</source>
        <translation>Epson (ESC/POS)</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Star</translation>
    </message>
    <message>
        <source>No page printer: each page becomes a PDF in printouts.</source>
        <translation>No page printer: each page becomes a PDF in printouts.</translation>
    </message>
    <message>
        <source>Page printer: %1</source>
        <translation>Page printer: %1</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Saved.</translation>
    </message>
    <message>
        <source>A test page was sent.</source>
        <translation>A test page was sent.</translation>
    </message>
</context>
<context>
    <name>manager::RankList</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>manager::RegisterStep</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Goods by their number (form 1)</source>
        <translation>Goods by their number (form 1)</translation>
    </message>
    <message>
        <source>Goods by their code (form 2)</source>
        <translation>Goods by their code (form 2)</translation>
    </message>
</context>
<context>
    <name>manager::ReportsPage</name>
    <message>
        <source>Choose a report and its days, then &quot;Show&quot;.</source>
        <translation>Choose a report and its days, then &quot;Show&quot;.</translation>
    </message>
    <message>
        <source>The first day lies behind the last.</source>
        <translation>The first day lies behind the last.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>There is nothing on these days.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Table as text (*.csv);;Workbook (*.xlsx)</source>
        <translation>Table as text (*.csv);;Workbook (*.xlsx)</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) are saved as %1.</source>
        <translation>
            <numerusform>%n row are saved as %1.</numerusform>
            <numerusform>%n rows are saved as %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::RestoreForm</name>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Invoices now</source>
        <translation>Invoices now</translation>
    </message>
    <message>
        <source>Takings now</source>
        <translation>Takings now</translation>
    </message>
    <message>
        <source>Invoices there</source>
        <translation>Invoices there</translation>
    </message>
    <message>
        <source>Takings there</source>
        <translation>Takings there</translation>
    </message>
    <message>
        <source>Neither the shop nor the backup has sold anything yet.</source>
        <translation>Neither the shop nor the backup has sold anything yet.</translation>
    </message>
    <message>
        <source>The backup of %1, with %2 invoices. Takings are in %3.</source>
        <translation>The backup of %1, with %2 invoices. Takings are in %3.</translation>
    </message>
    <message>
        <source>The shop can&apos;t be read: %1</source>
        <translation>The shop can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>All days are the same in the shop and in the backup.</source>
        <translation>All days are the same in the shop and in the backup.</translation>
    </message>
    <message>
        <source>Days that differ: %1. They stand first. What the shop has now and the backup has not will be gone from it; all that is replaced is kept in a folder beside it.</source>
        <translation>Days that differ: %1. They stand first. What the shop has now and the backup has not will be gone from it; all that is replaced is kept in a folder beside it.</translation>
    </message>
    <message>
        <source>without a day</source>
        <translation>without a day</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>differs</translation>
    </message>
</context>
<context>
    <name>manager::SaveAs</name>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 is there already. Replace it?</translation>
    </message>
</context>
<context>
    <name>manager::SetupPage</name>
    <message>
        <source>1 Receipt</source>
        <translation>1 Receipt</translation>
    </message>
    <message>
        <source>2 Taxes</source>
        <translation>2 Taxes</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Saved.</translation>
    </message>
    <message>
        <source>3 Units</source>
        <translation>3 Units</translation>
    </message>
    <message>
        <source>4 Password</source>
        <translation>4 Password</translation>
    </message>
    <message>
        <source>5 Users</source>
        <translation>5 Users</translation>
    </message>
    <message>
        <source>6 Register</source>
        <translation>6 Register</translation>
    </message>
</context>
<context>
    <name>manager::SupportForm</name>
    <message>
        <source>Save the report</source>
        <translation>Save the report</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>The report is saved as %1.</source>
        <translation>The report is saved as %1.</translation>
    </message>
</context>
<context>
    <name>manager::TaxesStep</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Rate in percent</source>
        <translation>Rate in percent</translation>
    </message>
    <message>
        <source>There is a tax with this code or this name already.</source>
        <translation>There is a tax with this code or this name already.</translation>
    </message>
    <message>
        <source>This tax can&apos;t be removed, but its name and rate can be changed.</source>
        <translation>This tax can&apos;t be removed, but its name and rate can be changed.</translation>
    </message>
    <message>
        <source>Remove the tax &quot;%1&quot;?</source>
        <translation>Remove the tax &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The tax needs a code, such as P.</source>
        <translation>The tax needs a code, such as P.</translation>
    </message>
    <message>
        <source>The tax needs a name.</source>
        <translation>The tax needs a name.</translation>
    </message>
    <message>
        <source>The rate is a number of percent, from 0 to less than 100.</source>
        <translation>The rate is a number of percent, from 0 to less than 100.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) belong to this tax.</source>
        <translation>
            <numerusform>%n product belongs to this tax.</numerusform>
            <numerusform>%n products belong to this tax.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::TillsPage</name>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>The old store is kept as %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Always</translation>
    </message>
    <message>
        <source>Always, and the certificate is checked</source>
        <translation>Always, and the certificate is checked</translation>
    </message>
    <message>
        <source>Where the server offers it</source>
        <translation>Where the server offers it</translation>
    </message>
    <message>
        <source>The shop lies on the server %1. Tills on other machines join it there.</source>
        <translation>The shop lies on the server %1. Tills on other machines join it there.</translation>
    </message>
    <message>
        <source>The shop lies in the file %1, and serves the tills of this machine.</source>
        <translation>The shop lies in the file %1, and serves the tills of this machine.</translation>
    </message>
    <message>
        <source>Look at the server first, then move the shop there or join the one that is there.</source>
        <translation>Look at the server first, then move the shop there or join the one that is there.</translation>
    </message>
    <message>
        <source>The server is there and has no shop of this name yet: this one can move there.</source>
        <translation>The server is there and has no shop of this name yet: this one can move there.</translation>
    </message>
    <message>
        <source>A shop is there, which has sold nothing yet. Its products: %1.</source>
        <translation>A shop is there, which has sold nothing yet. Its products: %1.</translation>
    </message>
    <message>
        <source>A shop is there, and sold last on %1. Its invoices: %2, its products: %3.</source>
        <translation>A shop is there, and sold last on %1. Its invoices: %2, its products: %3.</translation>
    </message>
    <message>
        <source>Fill in the server, the database, the user and the name of the shop.</source>
        <translation>Fill in the server, the database, the user and the name of the shop.</translation>
    </message>
    <message>
        <source>The server is being asked.</source>
        <translation>The server is being asked.</translation>
    </message>
    <message>
        <source>Close the tills of this shop. Is it to move to %1? Its other registers then join it there.</source>
        <translation>Close the tills of this shop. Is it to move to %1? Its other registers then join it there.</translation>
    </message>
    <message>
        <source>The shop is moving.</source>
        <translation>The shop is moving.</translation>
    </message>
    <message>
        <source>Close the till of this register. Is it to work on the shop on %1 from now on, and no longer on its own?</source>
        <translation>Close the till of this register. Is it to work on the shop on %1 from now on, and no longer on its own?</translation>
    </message>
    <message>
        <source>The register is joining the shop.</source>
        <translation>The register is joining the shop.</translation>
    </message>
    <message>
        <source>Close all tills of this shop. Is it to come back into the folder of this register? The tills on other machines have no shop then.</source>
        <translation>Close all tills of this shop. Is it to come back into the folder of this register? The tills on other machines have no shop then.</translation>
    </message>
    <message>
        <source>Nothing was changed. %1</source>
        <translation>Nothing was changed. %1</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick with its pictures</source>
        <translation>The folder of another register, or a stick with its pictures</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick</source>
        <translation>The folder of another register, or a stick</translation>
    </message>
    <message>
        <source>The pictures are being compared.</source>
        <translation>The pictures are being compared.</translation>
    </message>
    <message>
        <source>There is no picture to be copied.</source>
        <translation>There is no picture to be copied.</translation>
    </message>
    <message>
        <source>The pictures are being copied.</source>
        <translation>The pictures are being copied.</translation>
    </message>
    <message>
        <source>Pictures that were copied: %1.</source>
        <translation>Pictures that were copied: %1.</translation>
    </message>
    <message>
        <source>The shop lies on the server now: %1 rows of %2 tables, compared with those here.</source>
        <translation>The shop lies on the server now: %1 rows of %2 tables, compared with those here.</translation>
    </message>
    <message>
        <source>This register works on the shop on the server now.</source>
        <translation>This register works on the shop on the server now.</translation>
    </message>
    <message>
        <source>The shop lies in the folder of this register now: %1 rows of %2 tables, compared with those on the server.</source>
        <translation>The shop lies in the folder of this register now: %1 rows of %2 tables, compared with those on the server.</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>The old store could not be put aside, and no till may work on it any more. %1</translation>
    </message>
    <message>
        <source>Some pictures would replace others of the same name: %1. Replace them?</source>
        <translation>Some pictures would replace others of the same name: %1. Replace them?</translation>
    </message>
    <message>
        <source>There is no shop at %1 any more. Join it where it lies now.</source>
        <translation>There is no shop at %1 any more. Join it where it lies now.</translation>
    </message>
</context>
<context>
    <name>manager::UnitsStep</name>
    <message>
        <source>Short name</source>
        <translation>Short name</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>The unit needs a short name, such as kg.</source>
        <translation>The unit needs a short name, such as kg.</translation>
    </message>
    <message>
        <source>The unit needs a name, such as kilogram.</source>
        <translation>The unit needs a name, such as kilogram.</translation>
    </message>
    <message>
        <source>There is a unit with this short name already.</source>
        <translation>There is a unit with this short name already.</translation>
    </message>
    <message>
        <source>Remove the unit &quot;%1&quot;?</source>
        <translation>Remove the unit &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>A short name has no apostrophe.</source>
        <translation>A short name has no apostrophe.</translation>
    </message>
    <message>
        <source>A short name has at most %1 letters; paper has no more room.</source>
        <translation>A short name has at most %1 letters; paper has no more room.</translation>
    </message>
    <message>
        <source>The till sells by the piece what has this unit, so it stays.</source>
        <translation>The till sells by the piece what has this unit, so it stays.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) have this unit.</source>
        <translation>
            <numerusform>%n product has this unit.</numerusform>
            <numerusform>%n products have this unit.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::UsersStep</name>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>There is a user with this number or this name already.</source>
        <translation>There is a user with this number or this name already.</translation>
    </message>
    <message>
        <source>This user can&apos;t be removed, but name, level and password can be changed.</source>
        <translation>This user can&apos;t be removed, but name, level and password can be changed.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>Remove the user &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The user needs a number.</source>
        <translation>The user needs a number.</translation>
    </message>
    <message>
        <source>The user needs a name to log in with.</source>
        <translation>The user needs a name to log in with.</translation>
    </message>
    <message>
        <source>Choose a level from 1 to 3.</source>
        <translation>Choose a level from 1 to 3.</translation>
    </message>
    <message>
        <source>Somebody has to keep level 3, or nobody can set up the shop any more.</source>
        <translation>Somebody has to keep level 3, or nobody can set up the shop any more.</translation>
    </message>
    <message>
        <source>This is the user who has logged in here.</source>
        <translation>This is the user who has logged in here.</translation>
    </message>
</context>
<context>
    <name>mdiORVA</name>
    <message>
        <source>&amp;Products</source>
        <translation>&amp;Products</translation>
    </message>
    <message>
        <source>New Product</source>
        <translation>New product</translation>
    </message>
    <message>
        <source>View - Edit - Delete Products</source>
        <translation>View - edit - delete products</translation>
    </message>
    <message>
        <source>Items in stock</source>
        <translation>Items in stock</translation>
    </message>
    <message>
        <source>Products list</source>
        <translation>Stock list</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>&amp;Invoices</translation>
    </message>
    <message>
        <source>Search Invoice</source>
        <translation>Search invoice</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>&amp;End Report</source>
        <translation>&amp;End Report</translation>
    </message>
    <message>
        <source>End Report ...</source>
        <translation>End Report ...</translation>
    </message>
    <message>
        <source>Preview End Reports</source>
        <translation>Review of End Reports</translation>
    </message>
    <message>
        <source>Preview End Reports </source>
        <translation>Review of End Reports </translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Invoice</translation>
    </message>
    <message>
        <source>Invoice deatails</source>
        <translation>Invoice details</translation>
    </message>
    <message>
        <source>Click Table</source>
        <translation>Touch table</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Users</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>My Firm</source>
        <translation>My company</translation>
    </message>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Customers - Suppliers</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Reports</translation>
    </message>
    <message>
        <source>Sale by Invoices</source>
        <translation>Sales by invoice</translation>
    </message>
    <message>
        <source>Sale by Cashiers</source>
        <translation>Sales by cashier</translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <translation>Sales by product</translation>
    </message>
    <message>
        <source>Invoices for tax report</source>
        <translation>Tax book of invoices</translation>
    </message>
    <message>
        <source>Tax Report by Invoices</source>
        <translation>Tax report by invoices</translation>
    </message>
    <message>
        <source>TAX Report</source>
        <translation>Tax report</translation>
    </message>
    <message>
        <source>Printed Invoices Ribbon</source>
        <translation>Ribbon of printed invoices</translation>
    </message>
    <message>
        <source>Working Time </source>
        <translation>Business hours </translation>
    </message>
    <message>
        <source>&amp;Fiscal printer</source>
        <translation>&amp;Fiscal printer</translation>
    </message>
    <message>
        <source>Deposit - payment </source>
        <translation>Deposit - pay in </translation>
    </message>
    <message>
        <source>Deposit - payout</source>
        <translation>Deposit - pay out</translation>
    </message>
    <message>
        <source>X report - Overview</source>
        <translation>X report - overview</translation>
    </message>
    <message>
        <source>Z report - Daily report</source>
        <translation>Z report - daily report</translation>
    </message>
    <message>
        <source>Fiscal Periodic Report</source>
        <translation>Fiscal periodic report</translation>
    </message>
    <message>
        <source>Invoice Reclamation</source>
        <translation>Invoice withdrawal</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>About program</source>
        <translation>About the program</translation>
    </message>
    <message>
        <source>Total: &gt;&gt;</source>
        <translation>Total: &gt;&gt;</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Time: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Date: %1</translation>
    </message>
    <message>
        <source>The main window has no entry %1.</source>
        <translation>The main window has no entry %1.</translation>
    </message>
</context>
<context>
    <name>output</name>
    <message>
        <source>Channel 1 is already open.</source>
        <translation>Channel 1 is already open.</translation>
    </message>
    <message>
        <source>Channel 1 is not open.</source>
        <translation>Channel 1 is not open.</translation>
    </message>
    <message>
        <source>This system lacks the code page %1.</source>
        <translation>This system lacks the code page %1.</translation>
    </message>
    <message>
        <source>Cannot take back half of what was written to %1: %2.</source>
        <translation>Cannot take back half of what was written to %1: %2.</translation>
    </message>
    <message>
        <source>Cannot write to %1: %2.</source>
        <translation>Cannot write to %1: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>Cannot save %1: %2.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Cannot open %1: %2.</translation>
    </message>
    <message>
        <source>Waiting for %1, which takes nothing now.</source>
        <translation>Waiting for %1, which takes nothing now.</translation>
    </message>
    <message>
        <source>Cannot open the printer %1: %2.</source>
        <translation>Cannot open the printer %1: %2.</translation>
    </message>
    <message>
        <source>Cannot write to the printer %1: %2.</source>
        <translation>Cannot write to the printer %1: %2.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Cannot make the folder %1.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
    <message>
        <source>The page printer cannot be used.</source>
        <translation>The page printer cannot be used.</translation>
    </message>
    <message>
        <source>The page printer takes no further page.</source>
        <translation>The page printer takes no further page.</translation>
    </message>
    <message>
        <source>The page printer failed.</source>
        <translation>The page printer failed.</translation>
    </message>
    <message>
        <source>Waiting for the printer on %1 (%2).
Is it switched on, with paper in and its cover closed?</source>
        <translation>Waiting for the printer on %1 (%2).
Is it switched on, with paper in and its cover closed?</translation>
    </message>
    <message>
        <source>%1
Leaving ends the program; what is stored stays stored.</source>
        <translation>%1
Leaving ends the program; what is stored stays stored.</translation>
    </message>
    <message>
        <source>the wait for it was left</source>
        <extracomment>stands behind &quot;Cannot write to x: &quot;</extracomment>
        <translation>the wait for it was left</translation>
    </message>
    <message>
        <source>ports.ini has no printer behind &quot;%1&quot;.</source>
        <translation>ports.ini has no printer behind &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>ports.ini has &quot;%1&quot; at %2, which is yes or no.</source>
        <translation>ports.ini has &quot;%1&quot; at %2, which is yes or no.</translation>
    </message>
    <message>
        <source>%1
ports.ini has no other printer for %2.</source>
        <translation>%1
ports.ini has no other printer for %2.</translation>
    </message>
    <message>
        <source>There is no printer port &quot;%1&quot;.</source>
        <translation>There is no printer port &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Cannot reach the printer %1: %2.</source>
        <translation>Cannot reach the printer %1: %2.</translation>
    </message>
    <message>
        <source>The printer %1 has no known address.</source>
        <translation>The printer %1 has no known address.</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>No valid date.</source>
        <translation>No valid date.</translation>
    </message>
    <message>
        <source>No valid time.</source>
        <translation>No valid time.</translation>
    </message>
    <message>
        <source>The value does not fit the type of the field.</source>
        <translation>The value does not fit the type of the field.</translation>
    </message>
    <message>
        <source>An action query gives no rows.</source>
        <translation>An action query gives no rows.</translation>
    </message>
    <message>
        <source>A SELECT cannot be executed.</source>
        <translation>A SELECT cannot be executed.</translation>
    </message>
    <message>
        <source>The query has too many columns.</source>
        <translation>The query has too many columns.</translation>
    </message>
    <message>
        <source>The query is too complex.</source>
        <translation>The query is too complex.</translation>
    </message>
    <message>
        <source>Expected a field, found a constant.</source>
        <translation>Expected a field, found a constant.</translation>
    </message>
    <message>
        <source>The field %1 is neither grouped nor inside an aggregate.</source>
        <translation>The field %1 is neither grouped nor inside an aggregate.</translation>
    </message>
    <message>
        <source>The field %1 is set twice.</source>
        <translation>The field %1 is set twice.</translation>
    </message>
    <message>
        <source>The expression is too complex.</source>
        <translation>The expression is too complex.</translation>
    </message>
    <message>
        <source>%1 takes one argument.</source>
        <translation>%1 takes one argument.</translation>
    </message>
    <message>
        <source>There is no function %1.</source>
        <translation>There is no function %1.</translation>
    </message>
    <message>
        <source>%1 is not possible in %2.</source>
        <translation>%1 is not possible in %2.</translation>
    </message>
    <message>
        <source>%1 cannot be taken over another aggregate.</source>
        <translation>%1 cannot be taken over another aggregate.</translation>
    </message>
    <message>
        <source>an expression</source>
        <translation>an expression</translation>
    </message>
    <message>
        <source>a field name</source>
        <translation>a field name</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation>The expression is nested too deeply.</translation>
    </message>
    <message>
        <source>LIKE, BETWEEN or IN</source>
        <translation>LIKE, BETWEEN or IN</translation>
    </message>
    <message>
        <source>The query text is too long.</source>
        <translation>The query text is too long.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>&quot;%1&quot; is not a number.</translation>
    </message>
    <message>
        <source>A text is not closed by a quote.</source>
        <translation>A text is not closed by a quote.</translation>
    </message>
    <message>
        <source>A name is not closed by a bracket.</source>
        <translation>A name is not closed by a bracket.</translation>
    </message>
    <message>
        <source>A name is missing between the brackets.</source>
        <translation>A name is missing between the brackets.</translation>
    </message>
    <message>
        <source>A date is not closed by #.</source>
        <translation>A date is not closed by #.</translation>
    </message>
    <message>
        <source>A sign that the query language does not know.</source>
        <translation>A sign that the query language does not know.</translation>
    </message>
    <message>
        <source>%1 is not a date.</source>
        <translation>%1 is not a date.</translation>
    </message>
    <message>
        <source>%1 is not a time.</source>
        <translation>%1 is not a time.</translation>
    </message>
    <message>
        <source>%1 is not yes or no.</source>
        <translation>%1 is not yes or no.</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 is not a number.</translation>
    </message>
    <message>
        <source>%1 is not a date; a date is written #mm-dd-yyyy#.</source>
        <translation>%1 is not a date; a date is written #mm-dd-yyyy#.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 is too large.</translation>
    </message>
    <message>
        <source>The query text is nested too deeply.</source>
        <translation>The query text is nested too deeply.</translation>
    </message>
    <message>
        <source>an alias</source>
        <translation>an alias</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>the end of the text</translation>
    </message>
    <message>
        <source>SELECT, UPDATE or DELETE</source>
        <translation>SELECT, UPDATE or DELETE</translation>
    </message>
    <message>
        <source>a table name</source>
        <translation>a table name</translation>
    </message>
    <message>
        <source>A query joins too many tables.</source>
        <translation>A query joins too many tables.</translation>
    </message>
    <message>
        <source>There is no table %1.</source>
        <translation>There is no table %1.</translation>
    </message>
    <message>
        <source>Two tables are called %1; one needs an alias.</source>
        <translation>Two tables are called %1; one needs an alias.</translation>
    </message>
    <message>
        <source>The query has no table %1.</source>
        <translation>The query has no table %1.</translation>
    </message>
    <message>
        <source>The field %1 is in more than one table: %2.</source>
        <translation>The field %1 is in more than one table: %2.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>There is no field %1.</translation>
    </message>
    <message>
        <source>Two columns have the alias %1.</source>
        <translation>Two columns have the alias %1.</translation>
    </message>
    <message>
        <source>Expected %1, found the keyword %2, which is a name only in square brackets.</source>
        <translation>Expected %1, found the keyword %2, which is a name only in square brackets.</translation>
    </message>
    <message>
        <source>A query text is one statement; nothing may follow the semicolon.</source>
        <translation>A query text is one statement; nothing may follow the semicolon.</translation>
    </message>
    <message>
        <source>Expected %1, found the end of the text.</source>
        <translation>Expected %1, found the end of the text.</translation>
    </message>
    <message>
        <source>Expected %1, found %2.</source>
        <translation>Expected %1, found %2.</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>a text</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>a date</translation>
    </message>
    <message>
        <source>a time</source>
        <translation>a time</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>an empty field, as query texts have it</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>yes or no</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>a number</translation>
    </message>
    <message>
        <source>%1 cannot be calculated with %2.</source>
        <translation>%1 cannot be calculated with %2.</translation>
    </message>
    <message>
        <source>A minus cannot stand before %1.</source>
        <translation>A minus cannot stand before %1.</translation>
    </message>
    <message>
        <source>A query cannot turn %1 into a text.</source>
        <translation>A query cannot turn %1 into a text.</translation>
    </message>
    <message>
        <source>%1 cannot be compared with %2.</source>
        <translation>%1 cannot be compared with %2.</translation>
    </message>
    <message>
        <source>LIKE compares texts, and this is %1.</source>
        <translation>LIKE compares texts, and this is %1.</translation>
    </message>
    <message>
        <source>Val reads a text, and this is %1.</source>
        <translation>Val reads a text, and this is %1.</translation>
    </message>
    <message>
        <source>Sum adds numbers, and this is %1.</source>
        <translation>Sum adds numbers, and this is %1.</translation>
    </message>
    <message>
        <source>Expected a condition; this is %1.</source>
        <translation>Expected a condition; this is %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written to a field that holds %2.</source>
        <translation>%1 cannot be written to a field that holds %2.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>The work was left.</translation>
    </message>
    <message>
        <source>This list has no field %1.</source>
        <translation>This list has no field %1.</translation>
    </message>
    <message>
        <source>The store is of version %1, which this program does not know.</source>
        <translation>The store is of version %1, which this program does not know.</translation>
    </message>
    <message>
        <source>The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME.</source>
        <translation>The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME.</translation>
    </message>
    <message>
        <source>A password does not belong into the address of the server; its place is ~/.pgpass.</source>
        <translation>A password does not belong into the address of the server; its place is ~/.pgpass.</translation>
    </message>
    <message>
        <source>A text with a zero character cannot lie on a server.</source>
        <translation>A text with a zero character cannot lie on a server.</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>it does not answer</translation>
    </message>
    <message>
        <source>it asks for a password, and ~/.pgpass has none for it</source>
        <translation>it asks for a password, and ~/.pgpass has none for it</translation>
    </message>
    <message>
        <source>The address of the server %1 cannot be read.</source>
        <translation>The address of the server %1 cannot be read.</translation>
    </message>
    <message>
        <source>The server of the store %1 cannot be reached: %2.</source>
        <translation>The server of the store %1 cannot be reached: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 has not heard from its standby.</source>
        <translation>The server of the store %1 has not heard from its standby.</translation>
    </message>
    <message>
        <source>The server of the store %1 does not answer.</source>
        <translation>The server of the store %1 does not answer.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost: %2.</source>
        <translation>The server of the store %1 was lost: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while many changes were being stored; none of them is.</source>
        <translation>The server of the store %1 was lost while many changes were being stored; none of them is.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while a sale was being stored; how much of it is, is not known.</source>
        <translation>The server of the store %1 was lost while a sale was being stored; how much of it is, is not known.</translation>
    </message>
    <message>
        <source>The store is locked by another user, and the wait for it was left.</source>
        <translation>The store is locked by another user, and the wait for it was left.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while the last change was being stored; whether it is, is not known.</source>
        <translation>The server of the store %1 was lost while the last change was being stored; whether it is, is not known.</translation>
    </message>
    <message>
        <source>%1 Whether the last change is stored is not known.</source>
        <translation>%1 Whether the last change is stored is not known.</translation>
    </message>
    <message>
        <source>No batch is open.</source>
        <translation>No batch is open.</translation>
    </message>
    <message>
        <source>A batch is open already.</source>
        <translation>A batch is open already.</translation>
    </message>
    <message>
        <source>The server of %1 is older than version 15.</source>
        <translation>The server of %1 is older than version 15.</translation>
    </message>
    <message>
        <source>The database of %1 holds texts in %2, not in UTF8.</source>
        <translation>The database of %1 holds texts in %2, not in UTF8.</translation>
    </message>
    <message>
        <source>The server of %1 is a standby and takes no changes.</source>
        <translation>The server of %1 is a standby and takes no changes.</translation>
    </message>
    <message>
        <source>The role has no right to use the schema of the store %1.</source>
        <translation>The role has no right to use the schema of the store %1.</translation>
    </message>
    <message>
        <source>%1 is no store of this kind (%2).</source>
        <translation>%1 is no store of this kind (%2).</translation>
    </message>
    <message>
        <source>The store %1 is of version %2; this program knows versions up to %3.</source>
        <translation>The store %1 is of version %2; this program knows versions up to %3.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to: the role has no right to %2.</source>
        <translation>The store %1 cannot be written to: the role has no right to %2.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks %2.</source>
        <translation>The store %1 is damaged: it lacks %2.</translation>
    </message>
    <message>
        <source>The store %1 is held exclusively by another user.</source>
        <translation>The store %1 is held exclusively by another user.</translation>
    </message>
    <message>
        <source>There is no store at %1.</source>
        <translation>There is no store at %1.</translation>
    </message>
    <message>
        <source>There is a store at %1 already.</source>
        <translation>There is a store at %1 already.</translation>
    </message>
    <message>
        <source>%1.%2, rows from %3 on: %4</source>
        <translation>%1.%2, rows from %3 on: %4</translation>
    </message>
    <message>
        <source>%1, rows from %2 on: %3</source>
        <translation>%1, rows from %2 on: %3</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>schema %1</translation>
    </message>
    <message>
        <source>%1: the next number is taken already</source>
        <translation>%1: the next number is taken already</translation>
    </message>
    <message>
        <source>No copy can be made while a batch is open.</source>
        <translation>No copy can be made while a batch is open.</translation>
    </message>
    <message>
        <source>The copy is damaged: %1</source>
        <translation>The copy is damaged: %1</translation>
    </message>
    <message>
        <source>There is no room left on the server&apos;s disk</source>
        <translation>There is no room left on the server&apos;s disk</translation>
    </message>
    <message>
        <source>The server refused the access</source>
        <translation>The server refused the access</translation>
    </message>
    <message>
        <source>The store was moved away on the server, with all that was stored until then (%1).</source>
        <translation>The store was moved away on the server, with all that was stored until then (%1).</translation>
    </message>
    <message>
        <source>This cursor has not changed any row.</source>
        <translation>This cursor has not changed any row.</translation>
    </message>
    <message>
        <source>The rows of this cursor cannot be changed.</source>
        <translation>The rows of this cursor cannot be changed.</translation>
    </message>
    <message>
        <source>Update without AddNew or Edit.</source>
        <translation>Update without AddNew or Edit.</translation>
    </message>
    <message>
        <source>The row was changed by another user.</source>
        <translation>The row was changed by another user.</translation>
    </message>
    <message>
        <source>This cursor has no field %1.</source>
        <translation>This cursor has no field %1.</translation>
    </message>
    <message>
        <source>This cursor has no field at position %1.</source>
        <translation>This cursor has no field at position %1.</translation>
    </message>
    <message>
        <source>A field was written without AddNew or Edit.</source>
        <translation>A field was written without AddNew or Edit.</translation>
    </message>
    <message>
        <source>The field %1 is computed.</source>
        <translation>The field %1 is computed.</translation>
    </message>
    <message>
        <source>%1 numbers itself.</source>
        <translation>%1 numbers itself.</translation>
    </message>
    <message>
        <source>%1 counts from 1.</source>
        <translation>%1 counts from 1.</translation>
    </message>
    <message>
        <source>The cursor is closed.</source>
        <translation>The cursor is closed.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>No current row.</translation>
    </message>
    <message>
        <source>The row was deleted.</source>
        <translation>The row was deleted.</translation>
    </message>
    <message>
        <source>The marked row is not in this cursor.</source>
        <translation>The marked row is not in this cursor.</translation>
    </message>
    <message>
        <source>This cursor cannot be searched.</source>
        <translation>This cursor cannot be searched.</translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation>opening %1</translation>
    </message>
    <message>
        <source>copying a store</source>
        <translation>copying a store</translation>
    </message>
    <message>
        <source>The store is locked by another user and could not be copied.</source>
        <translation>The store is locked by another user and could not be copied.</translation>
    </message>
    <message>
        <source>The file %1 exists already.</source>
        <translation>The file %1 exists already.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no file.</source>
        <translation>&apos;%1&apos; names no file.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a store, because of its ending %2.</source>
        <translation>&apos;%1&apos; cannot be the name of a store, because of its ending %2.</translation>
    </message>
    <message>
        <source>The folder %1 was not found.</source>
        <translation>The folder %1 was not found.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder %1: %2.</source>
        <translation>Nothing can be written in the folder %1: %2.</translation>
    </message>
    <message>
        <source>%1 could not be brought to the disk: %2.</source>
        <translation>%1 could not be brought to the disk: %2.</translation>
    </message>
    <message>
        <source>%1 could not be made: %2.</source>
        <translation>%1 could not be made: %2.</translation>
    </message>
    <message>
        <source>Another program is just making %1.</source>
        <translation>Another program is just making %1.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; what was stored until then is saved in %2.</source>
        <translation>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; what was stored until then is saved in %2.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; no copy of what was stored until then could be made: %2</source>
        <translation>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; no copy of what was stored until then could be made: %2</translation>
    </message>
    <message>
        <source>The store %1 was not found.</source>
        <translation>The store %1 was not found.</translation>
    </message>
    <message>
        <source>%1 is empty and no store.</source>
        <translation>%1 is empty and no store.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to.</source>
        <translation>The store %1 cannot be written to.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks the column %2 of %3.</source>
        <translation>The store %1 is damaged: it lacks the column %2 of %3.</translation>
    </message>
    <message>
        <source>No write-ahead log can be kept beside %1.</source>
        <translation>No write-ahead log can be kept beside %1.</translation>
    </message>
    <message>
        <source>%1 is damaged or no store (%2).</source>
        <translation>%1 is damaged or no store (%2).</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened for writing (%2).</source>
        <translation>The store %1 cannot be opened for writing (%2).</translation>
    </message>
    <message>
        <source>making %1</source>
        <translation>making %1</translation>
    </message>
    <message>
        <source>Another program has the store %1 open.</source>
        <translation>Another program has the store %1 open.</translation>
    </message>
    <message>
        <source>The store %1 cannot be renamed.</source>
        <translation>The store %1 cannot be renamed.</translation>
    </message>
    <message>
        <source>bringing a burst of changes to the disk</source>
        <translation>bringing a burst of changes to the disk</translation>
    </message>
    <message>
        <source>%1, %2 (%3).</source>
        <extracomment>what was refused, what was being done, and the engine&apos;s own words: &quot;The store is damaged, opening x (y).&quot;</extracomment>
        <translation>%1, %2 (%3).</translation>
    </message>
    <message>
        <source>copying to %1</source>
        <translation>copying to %1</translation>
    </message>
    <message>
        <source>preparing %1</source>
        <translation>preparing %1</translation>
    </message>
    <message>
        <source>running a query</source>
        <translation>running a query</translation>
    </message>
    <message>
        <source>The file %1 went away while the store was being opened.</source>
        <translation>The file %1 went away while the store was being opened.</translation>
    </message>
    <message>
        <source>setting up the text rules</source>
        <translation>setting up the text rules</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Overflow</translation>
    </message>
    <message>
        <source>The store is locked by another user</source>
        <translation>The store is locked by another user</translation>
    </message>
    <message>
        <source>The work was left</source>
        <translation>The work was left</translation>
    </message>
    <message>
        <source>A row with this key exists already</source>
        <translation>A row with this key exists already</translation>
    </message>
    <message>
        <source>Other rows of the store refer to this one</source>
        <translation>Other rows of the store refer to this one</translation>
    </message>
    <message>
        <source>A value does not fit the type of its column</source>
        <translation>A value does not fit the type of its column</translation>
    </message>
    <message>
        <source>There is no room left on the disk</source>
        <translation>There is no room left on the disk</translation>
    </message>
    <message>
        <source>The store is damaged</source>
        <translation>The store is damaged</translation>
    </message>
    <message>
        <source>The store cannot be written to</source>
        <translation>The store cannot be written to</translation>
    </message>
    <message>
        <source>The disk or the network refused the access</source>
        <translation>The disk or the network refused the access</translation>
    </message>
    <message>
        <source>The store refused the operation</source>
        <translation>The store refused the operation</translation>
    </message>
    <message>
        <source>Did you mean: %1</source>
        <translation>Did you mean: %1</translation>
    </message>
    <message>
        <source>Cannot use %1: it names a path and a url, but only one store.</source>
        <translation>Cannot use %1: it names a path and a url, but only one store.</translation>
    </message>
    <message>
        <source>Cannot read %1: it has no line path=... or url=... in a section [main].</source>
        <translation>Cannot read %1: it has no line path=... or url=... in a section [main].</translation>
    </message>
</context>
<context>
    <name>upkeep</name>
    <message>
        <source>The folder for backups, %1, went away while the backup was being made. Was the stick drawn?</source>
        <translation>The folder for backups, %1, went away while the backup was being made. Was the stick drawn?</translation>
    </message>
    <message>
        <source>Looking at the folder for backups</source>
        <translation>Looking at the folder for backups</translation>
    </message>
    <message>
        <source>Copying the shop</source>
        <translation>Copying the shop</translation>
    </message>
    <message>
        <source>The days in the copy are not those of the shop.</source>
        <translation>The days in the copy are not those of the shop.</translation>
    </message>
    <message>
        <source>Copying the settings</source>
        <translation>Copying the settings</translation>
    </message>
    <message>
        <source>Comparing the days</source>
        <translation>Comparing the days</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copying %1</translation>
    </message>
    <message>
        <source>Looking at %1</source>
        <translation>Looking at %1</translation>
    </message>
    <message>
        <source>Reading %1 back</source>
        <translation>Reading %1 back</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read back as it was written: the disk or stick is worn out.</source>
        <translation>%1 can&apos;t be read back as it was written: the disk or stick is worn out.</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>No folder for backups has been chosen yet.</source>
        <translation>No folder for backups has been chosen yet.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now.</source>
        <translation>A backup of this register is being made just now.</translation>
    </message>
    <message>
        <source>It does not say when it was made.</source>
        <translation>It does not say when it was made.</translation>
    </message>
    <message>
        <source>%1 is missing in it.</source>
        <translation>%1 is missing in it.</translation>
    </message>
    <message>
        <source>%1 in it is not whole.</source>
        <translation>%1 in it is not whole.</translation>
    </message>
    <message>
        <source>Its list of files can&apos;t be read.</source>
        <translation>Its list of files can&apos;t be read.</translation>
    </message>
    <message>
        <source>%1 is no backup of a register.</source>
        <translation>%1 is no backup of a register.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there. Is the stick or the disk plugged in?</source>
        <translation>The folder for backups, %1, is not there. Is the stick or the disk plugged in?</translation>
    </message>
    <message>
        <source>%1 is no folder for backups.</source>
        <translation>%1 is no folder for backups.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can only be read.</source>
        <translation>The folder for backups, %1, can only be read.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can&apos;t be written to.</source>
        <translation>The folder for backups, %1, can&apos;t be written to.</translation>
    </message>
    <message>
        <source>The backups need a folder outside of the register&apos;s own.</source>
        <translation>The backups need a folder outside of the register&apos;s own.</translation>
    </message>
    <message>
        <source>The folder %1 is not the one that was chosen for backups. Is the right stick or disk plugged in? If it is, choose the folder anew.</source>
        <translation>The folder %1 is not the one that was chosen for backups. Is the right stick or disk plugged in? If it is, choose the folder anew.</translation>
    </message>
    <message>
        <source>The last good backup is of %1.</source>
        <translation>The last good backup is of %1.</translation>
    </message>
    <message>
        <source>There is no good backup yet.</source>
        <translation>There is no good backup yet.</translation>
    </message>
    <message>
        <source>The backup of %1 could not be made: %2
%3</source>
        <translation>The backup of %1 could not be made: %2
%3</translation>
    </message>
    <message>
        <source>No backup was made for more than three days, although the shop was selling.
%1</source>
        <translation>No backup was made for more than three days, although the shop was selling.
%1</translation>
    </message>
    <message>
        <source>The stores are looked at.</source>
        <translation>The stores are looked at.</translation>
    </message>
    <message>
        <source>The sales are read.</source>
        <translation>The sales are read.</translation>
    </message>
    <message>
        <source>The invoices are looked at.</source>
        <translation>The invoices are looked at.</translation>
    </message>
    <message>
        <source>The goods are looked at.</source>
        <translation>The goods are looked at.</translation>
    </message>
    <message>
        <source>The receipts are looked at.</source>
        <translation>The receipts are looked at.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 can&apos;t be read: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written</source>
        <translation>%1 can&apos;t be written</translation>
    </message>
    <message>
        <source>%1 can&apos;t be brought to the disk</source>
        <translation>%1 can&apos;t be brought to the disk</translation>
    </message>
    <message>
        <source>%1 can&apos;t be renamed to %2</source>
        <translation>%1 can&apos;t be renamed to %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made</source>
        <translation>The folder %1 can&apos;t be made</translation>
    </message>
    <message>
        <source>There is too little room in %1: %2 are needed, and %3 are free.</source>
        <translation>There is too little room in %1: %2 are needed, and %3 are free.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a formula. Copy the cell in the spreadsheet and paste it as a value.</source>
        <translation>&apos;%1&apos; is a formula. Copy the cell in the spreadsheet and paste it as a value.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an error that the spreadsheet shows instead of a value.</source>
        <translation>&apos;%1&apos; is an error that the spreadsheet shows instead of a value.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>new</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unchanged</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>left out</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>%1 %2 → %3</source>
        <translation>%1 %2 → %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Tax</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Tax rate</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Customers</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Identification number</source>
        <translation>Identification number</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telephone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Owner</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Discount</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no number.</source>
        <translation>%1: &apos;%2&apos; is no number.</translation>
    </message>
    <message>
        <source>%1: nothing in the file says whether &apos;%2&apos; has decimals or thousands. Say which sign divides the decimals.</source>
        <translation>%1: nothing in the file says whether &apos;%2&apos; has decimals or thousands. Say which sign divides the decimals.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not fit the other amounts, which have &apos;%3&apos; before the decimals.</source>
        <translation>%1: &apos;%2&apos; does not fit the other amounts, which have &apos;%3&apos; before the decimals.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; has more than four decimals.</source>
        <translation>%1: &apos;%2&apos; has more than four decimals.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is too large.</source>
        <translation>%1: &apos;%2&apos; is too large.</translation>
    </message>
    <message>
        <source>The look at the table was left.</source>
        <translation>The look at the table was left.</translation>
    </message>
    <message>
        <source>The click table has no such groups, so their goods keep their place: %1.</source>
        <translation>The click table has no such groups, so their goods keep their place: %1.</translation>
    </message>
    <message>
        <source>No column is known to be the code of the goods. Say which one it is: %1.</source>
        <translation>No column is known to be the code of the goods. Say which one it is: %1.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos;.</source>
        <translation>The shop has no tax &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;.</source>
        <translation>The shop has no unit &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The goods are new, and only those that are there are changed.</source>
        <translation>The goods are new, and only those that are there are changed.</translation>
    </message>
    <message>
        <source>The goods are there already, and only new ones are added.</source>
        <translation>The goods are there already, and only new ones are added.</translation>
    </message>
    <message>
        <source>The row has %1 cells, and the table has %2 columns.</source>
        <translation>The row has %1 cells, and the table has %2 columns.</translation>
    </message>
    <message>
        <source>The row has no code.</source>
        <translation>The row has no code.</translation>
    </message>
    <message>
        <source>The code stands more than once in the file, in the lines %1.</source>
        <translation>The code stands more than once in the file, in the lines %1.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: &apos;%1&apos; is a number that it shortened. Give the column the format Text there and enter the code anew.</source>
        <translation>The spreadsheet has spoilt the code: &apos;%1&apos; is a number that it shortened. Give the column the format Text there and enter the code anew.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give the column the format Text there and enter the code anew.</source>
        <translation>The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give the column the format Text there and enter the code anew.</translation>
    </message>
    <message>
        <source>The code has %1 characters, more than the %2 that the till takes.</source>
        <translation>The code has %1 characters, more than the %2 that the till takes.</translation>
    </message>
    <message>
        <source>The code has an apostrophe, by which the till could not find it.</source>
        <translation>The code has an apostrophe, by which the till could not find it.</translation>
    </message>
    <message>
        <source>The code has a line break or another control character in it.</source>
        <translation>The code has a line break or another control character in it.</translation>
    </message>
    <message>
        <source>New goods need a name.</source>
        <translation>New goods need a name.</translation>
    </message>
    <message>
        <source>%1: the text has %2 characters, more than the %3 that there is room for.</source>
        <translation>%1: the text has %2 characters, more than the %3 that there is room for.</translation>
    </message>
    <message>
        <source>%1: the text has a line break or another control character in it.</source>
        <translation>%1: the text has a line break or another control character in it.</translation>
    </message>
    <message>
        <source>New goods need a price.</source>
        <translation>New goods need a price.</translation>
    </message>
    <message>
        <source>%1: the spreadsheet has shortened the number &apos;%2&apos;.</source>
        <translation>%1: the spreadsheet has shortened the number &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The price &apos;%1&apos; is below zero.</source>
        <translation>The price &apos;%1&apos; is below zero.</translation>
    </message>
    <message>
        <source>New goods need a unit, and none is said for those without one.</source>
        <translation>New goods need a unit, and none is said for those without one.</translation>
    </message>
    <message>
        <source>New goods need a tax, and none is said for those without one.</source>
        <translation>New goods need a tax, and none is said for those without one.</translation>
    </message>
    <message>
        <source>The tax &apos;%1&apos; has no rate.</source>
        <translation>The tax &apos;%1&apos; has no rate.</translation>
    </message>
    <message>
        <source>The shop has several taxes of %1; the code of one has to stand here.</source>
        <translation>The shop has several taxes of %1; the code of one has to stand here.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; of the click table has no free button.</source>
        <translation>The group &apos;%1&apos; of the click table has no free button.</translation>
    </message>
    <message>
        <source>The table has no column &apos;%1&apos;. Its columns are: %2.</source>
        <translation>The table has no column &apos;%1&apos;. Its columns are: %2.</translation>
    </message>
    <message>
        <source>It was removed since.</source>
        <translation>It was removed since.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>It stays, since it has been sold.</source>
        <translation>It stays, since it has been sold.</translation>
    </message>
    <message>
        <source>It stays, since it is part of a composition.</source>
        <translation>It stays, since it is part of a composition.</translation>
    </message>
    <message>
        <source>It stays, since its %1 was changed.</source>
        <translation>It stays, since its %1 was changed.</translation>
    </message>
    <message>
        <source>Its %1 stays, since it was changed.</source>
        <translation>Its %1 stays, since it was changed.</translation>
    </message>
    <message>
        <source>It stays on its button, since its old one is another&apos;s.</source>
        <translation>It stays on its button, since its old one is another&apos;s.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>There is nothing to take back.</translation>
    </message>
    <message>
        <source>The look at the goods was left.</source>
        <translation>The look at the goods was left.</translation>
    </message>
    <message>
        <source>The goods have no price.</source>
        <translation>The goods have no price.</translation>
    </message>
    <message>
        <source>The price is below zero.</source>
        <translation>The price is below zero.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos; with a rate.</source>
        <translation>The shop has no tax &apos;%1&apos; with a rate.</translation>
    </message>
    <message>
        <source>A column can&apos;t be &apos;%1&apos;. It can be %2 or none.</source>
        <translation>A column can&apos;t be &apos;%1&apos;. It can be %2 or none.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;. %2</source>
        <translation>Cannot write &apos;%1&apos;. %2</translation>
    </message>
    <message>
        <source>Save it in the spreadsheet as CSV and choose that file.</source>
        <translation>Save it in the spreadsheet as CSV and choose that file.</translation>
    </message>
    <message>
        <source>This is a workbook under a password. Open it with the password. %1</source>
        <translation>This is a workbook under a password. Open it with the password. %1</translation>
    </message>
    <message>
        <source>This is a workbook, not a text. %1</source>
        <translation>This is a workbook, not a text. %1</translation>
    </message>
    <message>
        <source>This is a packed file (zip). Unpack it; a table in it has to be a CSV file.</source>
        <translation>This is a packed file (zip). Unpack it; a table in it has to be a CSV file.</translation>
    </message>
    <message>
        <source>This is a PDF. Ask for the table itself, as CSV.</source>
        <translation>This is a PDF. Ask for the table itself, as CSV.</translation>
    </message>
    <message>
        <source>This is a picture, not a table.</source>
        <translation>This is a picture, not a table.</translation>
    </message>
    <message>
        <source>This is a document of another kind, not a table of text. %1</source>
        <translation>This is a document of another kind, not a table of text. %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation>&apos;%1&apos; is no file.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MB, which is more than a table of goods has. Divide it.</source>
        <translation>The file is larger than %1 MB, which is more than a table of goods has. Divide it.</translation>
    </message>
    <message>
        <source>No encoding is called &apos;%1&apos;. Known are: %2.</source>
        <translation>No encoding is called &apos;%1&apos;. Known are: %2.</translation>
    </message>
    <message>
        <source>The file is not in the encoding %1: some of its bytes stand for no letter.</source>
        <translation>The file is not in the encoding %1: some of its bytes stand for no letter.</translation>
    </message>
    <message>
        <source>The row in line %1 makes the table larger than %2 columns or %3 cells.</source>
        <translation>The row in line %1 makes the table larger than %2 columns or %3 cells.</translation>
    </message>
    <message>
        <source>The table has more than %1 rows. Divide it.</source>
        <translation>The table has more than %1 rows. Divide it.</translation>
    </message>
    <message>
        <source>In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.</source>
        <translation>In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.</translation>
    </message>
    <message>
        <source>The quotation mark in line %1 is never closed.</source>
        <translation>The quotation mark in line %1 is never closed.</translation>
    </message>
    <message>
        <source>The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV.</source>
        <translation>The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is damaged, so what it tells of can&apos;t be taken back.</source>
        <translation>&apos;%1&apos; is damaged, so what it tells of can&apos;t be taken back.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; can&apos;t be made.</source>
        <translation>The folder &apos;%1&apos; can&apos;t be made.</translation>
    </message>
    <message>
        <source>was added</source>
        <translation>was added</translation>
    </message>
    <message>
        <source>was removed</source>
        <translation>was removed</translation>
    </message>
    <message>
        <source>The shop has changed since it was looked at, and nothing was written: %1. Look again.</source>
        <translation>The shop has changed since it was looked at, and nothing was written: %1. Look again.</translation>
    </message>
    <message>
        <source>(%1)</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>(the rate of its tax)</source>
        <translation>(the rate of its tax)</translation>
    </message>
    <message>
        <source>(its unit is gone)</source>
        <translation>(its unit is gone)</translation>
    </message>
    <message>
        <source>(its button is another&apos;s)</source>
        <translation>(its button is another&apos;s)</translation>
    </message>
    <message>
        <source>%1 was removed, and nothing was written.</source>
        <translation>%1 was removed, and nothing was written.</translation>
    </message>
    <message>
        <source>The writing was left; nothing was written.</source>
        <translation>The writing was left; nothing was written.</translation>
    </message>
    <message>
        <source>A file of the shop is not there.</source>
        <translation>A file of the shop is not there.</translation>
    </message>
    <message>
        <source>Don&apos;t sell on this till. Look whether the disk or the network drive is connected. If the file is gone, restore the last good backup, on the page Backup.</source>
        <translation>Don&apos;t sell on this till. Look whether the disk or the network drive is connected. If the file is gone, restore the last good backup, on the page Backup.</translation>
    </message>
    <message>
        <source>Another program holds the shop&apos;s data for itself.</source>
        <translation>Another program holds the shop&apos;s data for itself.</translation>
    </message>
    <message>
        <source>Close other programs that work with the shop, such as a backup, and look again.</source>
        <translation>Close other programs that work with the shop, such as a backup, and look again.</translation>
    </message>
    <message>
        <source>The computer with the shop&apos;s data does not answer.</source>
        <translation>The computer with the shop&apos;s data does not answer.</translation>
    </message>
    <message>
        <source>Look whether that computer and the network are switched on, then look again. Nothing is lost.</source>
        <translation>Look whether that computer and the network are switched on, then look again. Nothing is lost.</translation>
    </message>
    <message>
        <source>The shop&apos;s data can be read but not changed.</source>
        <translation>The shop&apos;s data can be read but not changed.</translation>
    </message>
    <message>
        <source>The files belong to another user of the computer, or the disk is write-protected. Whoever set up the computer can put that right.</source>
        <translation>The files belong to another user of the computer, or the disk is write-protected. Whoever set up the computer can put that right.</translation>
    </message>
    <message>
        <source>A file of the shop is damaged.</source>
        <translation>A file of the shop is damaged.</translation>
    </message>
    <message>
        <source>Stop selling on this till. Copy the whole folder of the register before anything else, then restore the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the disk looked at.</source>
        <translation>Stop selling on this till. Copy the whole folder of the register before anything else, then restore the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the disk looked at.</translation>
    </message>
    <message>
        <source>There are printed receipts that the shop&apos;s data lacks.</source>
        <translation>There are printed receipts that the shop&apos;s data lacks.</translation>
    </message>
    <message>
        <source>Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in invoices.txt in the register&apos;s folder: tell the book-keeper their numbers.</source>
        <translation>Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in invoices.txt in the register&apos;s folder: tell the book-keeper their numbers.</translation>
    </message>
    <message>
        <source>The settings of this till are damaged.</source>
        <translation>The settings of this till are damaged.</translation>
    </message>
    <message>
        <source>Restore the last good backup, on the page Backup.</source>
        <translation>Restore the last good backup, on the page Backup.</translation>
    </message>
    <message numerus="yes">
        <source>Numbers in the sales that are no numbers: %n.</source>
        <translation>
            <numerusform>Numbers in the sales that are no numbers: %n.</numerusform>
            <numerusform>Numbers in the sales that are no numbers: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such rows out.</source>
        <translation>Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such rows out.</translation>
    </message>
    <message numerus="yes">
        <source>Invoice numbers that stand twice: %n.</source>
        <translation>
            <numerusform>Invoice numbers that stand twice: %n.</numerusform>
            <numerusform>Invoice numbers that stand twice: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills sold under the same number; both invoices are there. Look that each till has a number of its own, and tell the book-keeper the invoices.</source>
        <translation>Two tills sold under the same number; both invoices are there. Look that each till has a number of its own, and tell the book-keeper the invoices.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices without lines: %n.</source>
        <translation>
            <numerusform>Invoices without lines: %n.</numerusform>
            <numerusform>Invoices without lines: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that don&apos;t agree with the sum of their lines: %n.</source>
        <translation>
            <numerusform>Invoices that don&apos;t agree with the sum of their lines: %n.</numerusform>
            <numerusform>Invoices that don&apos;t agree with the sum of their lines: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: what is printed there counts. Tell the book-keeper.</source>
        <translation>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: what is printed there counts. Tell the book-keeper.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices whose tax is not that of their lines: %n.</source>
        <translation>
            <numerusform>Invoices whose tax is not that of their lines: %n.</numerusform>
            <numerusform>Invoices whose tax is not that of their lines: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</translation>
    </message>
    <message numerus="yes">
        <source>Periods between two End Reports that stand twice: %n.</source>
        <translation>
            <numerusform>Periods between two End Reports that stand twice: %n.</numerusform>
            <numerusform>Periods between two End Reports that stand twice: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills worked under the same number. Look that each till has a number of its own.</source>
        <translation>Two tills worked under the same number. Look that each till has a number of its own.</translation>
    </message>
    <message numerus="yes">
        <source>Periods whose takings are not the sum of their invoices: %n.</source>
        <translation>
            <numerusform>Periods whose takings are not the sum of their invoices: %n.</numerusform>
            <numerusform>Periods whose takings are not the sum of their invoices: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax book by the invoices: tell the book-keeper of the difference.</source>
        <translation>A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax book by the invoices: tell the book-keeper of the difference.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that are gone while their lines are there: %n.</source>
        <translation>
            <numerusform>Invoices that are gone while their lines are there: %n.</numerusform>
            <numerusform>Invoices that are gone while their lines are there: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Periods that are gone while their invoices are there: %n.</source>
        <translation>
            <numerusform>Periods that are gone while their invoices are there: %n.</numerusform>
            <numerusform>Periods that are gone while their invoices are there: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book but in no End Report: tell the book-keeper.</source>
        <translation>Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book but in no End Report: tell the book-keeper.</translation>
    </message>
    <message numerus="yes">
        <source>Products that were sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Products that were sold and have been deleted since: %n.</numerusform>
            <numerusform>Products that were sold and have been deleted since: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them as they were sold.</source>
        <translation>Nothing has to be done: reports show them as they were sold.</translation>
    </message>
    <message numerus="yes">
        <source>Cashiers who sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Cashiers who sold and have been deleted since: %n.</numerusform>
            <numerusform>Cashiers who sold and have been deleted since: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them by their number.</source>
        <translation>Nothing has to be done: reports show them by their number.</translation>
    </message>
    <message numerus="yes">
        <source>Taxes that goods were sold under and that are gone: %n.</source>
        <translation>
            <numerusform>Taxes that goods were sold under and that are gone: %n.</numerusform>
            <numerusform>Taxes that goods were sold under and that are gone: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done for what is sold; see under Set-up that today&apos;s taxes are complete.</source>
        <translation>Nothing has to be done for what is sold; see under Set-up that today&apos;s taxes are complete.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that were never printed on this till: %n.</source>
        <translation>
            <numerusform>Invoices that were never printed on this till: %n.</numerusform>
            <numerusform>Invoices that were never printed on this till: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another till sold them, or the printer failed. Print them once more from the list of invoices where the customer or the tax office needs the paper.</source>
        <translation>Another till sold them, or the printer failed. Print them once more from the list of invoices where the customer or the tax office needs the paper.</translation>
    </message>
    <message numerus="yes">
        <source>Products with a tax that is not there: %n.</source>
        <translation>
            <numerusform>Products with a tax that is not there: %n.</numerusform>
            <numerusform>Products with a tax that is not there: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with another rate than that of their tax: %n.</source>
        <translation>
            <numerusform>Products with another rate than that of their tax: %n.</numerusform>
            <numerusform>Products with another rate than that of their tax: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rate was changed after they were saved. Give them the rate of their tax on the page Prices.</source>
        <translation>The rate was changed after they were saved. Give them the rate of their tax on the page Prices.</translation>
    </message>
    <message numerus="yes">
        <source>Products without a tax rate, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Products without a tax rate, which can&apos;t be sold: %n.</numerusform>
            <numerusform>Products without a tax rate, which can&apos;t be sold: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products without a price, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Products without a price, which can&apos;t be sold: %n.</numerusform>
            <numerusform>Products without a price, which can&apos;t be sold: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</source>
        <translation>
            <numerusform>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</numerusform>
            <numerusform>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make the product anew under a code without it, and delete this one.</source>
        <translation>Make the product anew under a code without it, and delete this one.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code begins or ends with a blank: %n.</source>
        <translation>
            <numerusform>Products whose code begins or ends with a blank: %n.</numerusform>
            <numerusform>Products whose code begins or ends with a blank: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A scanner doesn&apos;t find them. Make the product anew without the blank, and delete this one.</source>
        <translation>A scanner doesn&apos;t find them. Make the product anew without the blank, and delete this one.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Products whose code is longer than the till&apos;s box takes: %n.</numerusform>
            <numerusform>Products whose code is longer than the till&apos;s box takes: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.</source>
        <translation>They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose name is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Products whose name is longer than the till&apos;s box takes: %n.</numerusform>
            <numerusform>Products whose name is longer than the till&apos;s box takes: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a unit that the till does not know: %n.</source>
        <translation>
            <numerusform>Products with a unit that the till does not know: %n.</numerusform>
            <numerusform>Products with a unit that the till does not know: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a stock below zero: %n.</source>
        <translation>
            <numerusform>Products with a stock below zero: %n.</numerusform>
            <numerusform>Products with a stock below zero: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products on a touch button that is not there: %n.</source>
        <translation>
            <numerusform>Products on a touch button that is not there: %n.</numerusform>
            <numerusform>Products on a touch button that is not there: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Touch buttons with more than one product: %n.</source>
        <translation>
            <numerusform>Touch buttons with more than one product: %n.</numerusform>
            <numerusform>Touch buttons with more than one product: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products that compositions name and that are gone: %n.</source>
        <translation>
            <numerusform>Products that compositions name and that are gone: %n.</numerusform>
            <numerusform>Products that compositions name and that are gone: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Small tables with more or fewer rows than in a new shop: %n.</source>
        <translation>
            <numerusform>Small tables with more or fewer rows than in a new shop: %n.</numerusform>
            <numerusform>Small tables with more or fewer rows than in a new shop: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the row.</source>
        <translation>Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the row.</translation>
    </message>
    <message numerus="yes">
        <source>Missing indexes, so that the till gets slow: %n.</source>
        <translation>
            <numerusform>Missing indexes, so that the till gets slow: %n.</numerusform>
            <numerusform>Missing indexes, so that the till gets slow: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever looks after the till can make them anew: a backup that is restored has them again.</source>
        <translation>Whoever looks after the till can make them anew: a backup that is restored has them again.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of this till without a value, at which it stops when it starts: %n.</source>
        <translation>
            <numerusform>Settings of this till without a value, at which it stops when it starts: %n.</numerusform>
            <numerusform>Settings of this till without a value, at which it stops when it starts: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Set them under Settings on the till, or on the page Set-up here.</source>
        <translation>Set them under Settings on the till, or on the page Set-up here.</translation>
    </message>
    <message>
        <source>Something was found.</source>
        <translation>Something was found.</translation>
    </message>
    <message>
        <source>Show it to whoever looks after the till.</source>
        <translation>Show it to whoever looks after the till.</translation>
    </message>
    <message>
        <source>The files of the shop and of this till are whole.</source>
        <translation>The files of the shop and of this till are whole.</translation>
    </message>
    <message numerus="yes">
        <source>Every invoice agrees with its lines and taxes. Looked at: %n.</source>
        <translation>
            <numerusform>Every invoice agrees with its lines and taxes. Looked at: %n.</numerusform>
            <numerusform>Every invoice agrees with its lines and taxes. Looked at: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The takings of each End Report are the sum of its invoices.</source>
        <translation>The takings of each End Report are the sum of its invoices.</translation>
    </message>
    <message>
        <source>The numbers of the invoices run on without a gap.</source>
        <translation>The numbers of the invoices run on without a gap.</translation>
    </message>
    <message numerus="yes">
        <source>Every printed receipt is in the shop&apos;s data. Looked at: %n.</source>
        <translation>
            <numerusform>Every printed receipt is in the shop&apos;s data. Looked at: %n.</numerusform>
            <numerusform>Every printed receipt is in the shop&apos;s data. Looked at: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every product can be sold, and is taxed as its tax says. Looked at: %n.</source>
        <translation>
            <numerusform>Every product can be sold, and is taxed as its tax says. Looked at: %n.</numerusform>
            <numerusform>Every product can be sold, and is taxed as its tax says. Looked at: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Since the last End Report</translation>
    </message>
    <message>
        <source>Closed without an End Report</source>
        <translation>Closed without an End Report</translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation>End Report %1 of %2</translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation>End Report %1</translation>
    </message>
    <message>
        <source>The lines add up to something else.</source>
        <translation>The lines add up to something else.</translation>
    </message>
    <message>
        <source>The tax of the lines is another.</source>
        <translation>The tax of the lines is another.</translation>
    </message>
    <message>
        <source>The takings are not the sum of the invoices.</source>
        <translation>The takings are not the sum of the invoices.</translation>
    </message>
    <message>
        <source>Numbers left out: %1.</source>
        <translation>Numbers left out: %1.</translation>
    </message>
    <message>
        <source>Numbers twice: %1.</source>
        <translation>Numbers twice: %1.</translation>
    </message>
    <message>
        <source>%1: no invoices.</source>
        <translation>%1: no invoices.</translation>
    </message>
    <message numerus="yes">
        <source>%1: invoices %n, total %2, tax %3.</source>
        <translation>
            <numerusform>%1: invoices %n, total %2, tax %3.</numerusform>
            <numerusform>%1: invoices %n, total %2, tax %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell the book-keeper of the difference; the receipts count as they are printed.</source>
        <translation>Tell the book-keeper of the difference; the receipts count as they are printed.</translation>
    </message>
    <message>
        <source>%1 It differs.</source>
        <translation>%1 It differs.</translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation>Invoice %1</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>Cashier: %1</source>
        <translation>Cashier: %1</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Tax in it</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>A label is at least %1 mm wide and %2 mm high.</source>
        <translation>A label is at least %1 mm wide and %2 mm high.</translation>
    </message>
    <message>
        <source>A label is at most %1 mm wide and high.</source>
        <translation>A label is at most %1 mm wide and high.</translation>
    </message>
    <message>
        <source>A sheet has at least one label.</source>
        <translation>A sheet has at least one label.</translation>
    </message>
    <message>
        <source>The labels side by side are %1 mm wide; the sheet has %2 mm.</source>
        <translation>The labels side by side are %1 mm wide; the sheet has %2 mm.</translation>
    </message>
    <message>
        <source>The labels one below the other are %1 mm high; the sheet has %2 mm.</source>
        <translation>The labels one below the other are %1 mm high; the sheet has %2 mm.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no amount above zero.</source>
        <translation>&apos;%1&apos; is no amount above zero.</translation>
    </message>
    <message>
        <source>There is no amount. Type some, with a blank between two.</source>
        <translation>There is no amount. Type some, with a blank between two.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>The work was left.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Without tax</source>
        <translation>Without tax</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Cashier</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation>Sales by cashier</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>Sales by product</source>
        <translation>Sales by product</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxes</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percent</translation>
    </message>
    <message>
        <source>Tax book by day</source>
        <translation>Tax book by day</translation>
    </message>
    <message>
        <source>First invoice</source>
        <translation>First invoice</translation>
    </message>
    <message>
        <source>Last invoice</source>
        <translation>Last invoice</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>End Reports</source>
        <translation>End Reports</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Business hours</source>
        <translation>Business hours</translation>
    </message>
    <message>
        <source>Goods in stock</source>
        <translation>Goods in stock</translation>
    </message>
    <message>
        <source>Worth</source>
        <translation>Worth</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged: %2</source>
        <translation>%1 in the backup is damaged: %2</translation>
    </message>
    <message>
        <source>Putting the shop in its place</source>
        <translation>Putting the shop in its place</translation>
    </message>
    <message>
        <source>%1 is missing in the backup.</source>
        <translation>%1 is missing in the backup.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Reading %1</translation>
    </message>
    <message>
        <source>The list of files of the backup is damaged.</source>
        <translation>The list of files of the backup is damaged.</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged.</source>
        <translation>%1 in the backup is damaged.</translation>
    </message>
    <message>
        <source>Checking the backup</source>
        <translation>Checking the backup</translation>
    </message>
    <message>
        <source>The days in the backup&apos;s shop are not those that it was made with.</source>
        <translation>The days in the backup&apos;s shop are not those that it was made with.</translation>
    </message>
    <message>
        <source>The days on the server are not those of the backup.</source>
        <translation>The days on the server are not those of the backup.</translation>
    </message>
    <message>
        <source>There is no backup %1.</source>
        <translation>There is no backup %1.</translation>
    </message>
    <message>
        <source>The till of this register is open. Close it first.</source>
        <translation>The till of this register is open. Close it first.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now. Try again in a minute.</source>
        <translation>A backup of this register is being made just now. Try again in a minute.</translation>
    </message>
    <message>
        <source>A restore was not ended. Start the till once.</source>
        <translation>A restore was not ended. Start the till once.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only a number from %4 to %5.</source>
        <translation>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only a number from %4 to %5.</translation>
    </message>
    <message>
        <source>products with a stock below zero</source>
        <translation>products with a stock below zero</translation>
    </message>
    <message>
        <source>products on a button that is not there</source>
        <translation>products on a button that is not there</translation>
    </message>
    <message>
        <source>buttons of the click table with more than one product</source>
        <translation>buttons of the touch table with more than one product</translation>
    </message>
    <message>
        <source>tables with more or fewer rows than delivered</source>
        <translation>tables with more or fewer rows than delivered</translation>
    </message>
    <message>
        <source>indexes that are missing, so that lookups are slow or keys not unique</source>
        <translation>indexes that are missing, so that lookups are slow or keys not unique</translation>
    </message>
    <message>
        <source>Open period</source>
        <translation>Open period</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>lines %1</translation>
    </message>
    <message>
        <source>tax of the lines %1</source>
        <translation>tax of the lines %1</translation>
    </message>
    <message>
        <source>takings %1</source>
        <translation>takings %1</translation>
    </message>
    <message>
        <source>numbers left out %1</source>
        <translation>numbers left out %1</translation>
    </message>
    <message>
        <source>numbers twice %1</source>
        <translation>numbers twice %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1: no invoices</source>
        <translation>%1: no invoices</translation>
    </message>
    <message>
        <source>%1: 1 invoice, total %2, tax %3</source>
        <translation>%1: 1 invoice, total %2, tax %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n invoices, total %2, tax %3</source>
        <translation>
            <numerusform>%1: %n invoice, total %2, tax %3</numerusform>
            <numerusform>%1: %n invoices, total %2, tax %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, numbers %2</source>
        <translation>%1, numbers %2</translation>
    </message>
    <message>
        <source>%1; all agrees</source>
        <translation>%1; all agrees</translation>
    </message>
    <message>
        <source>%1; differs: %2</source>
        <translation>%1; differs: %2</translation>
    </message>
    <message>
        <source>Main store</source>
        <translation>Main store</translation>
    </message>
    <message>
        <source>Options store</source>
        <translation>Options store</translation>
    </message>
    <message>
        <source>The ribbon of printed invoices has receipts that the store lacks: %1</source>
        <translation>The ribbon of printed invoices has receipts that the store lacks: %1</translation>
    </message>
    <message>
        <source>invoices that are not on the ribbon (never printed, or by another register)</source>
        <translation>invoices that are not on the ribbon (never printed, or by another register)</translation>
    </message>
    <message>
        <source>%1 that stands more than once</source>
        <translation>%1 that is there more than once</translation>
    </message>
    <message>
        <source>%1 (%2, not %3)</source>
        <translation>%1 (%2, not %3)</translation>
    </message>
    <message>
        <source>%1 that is no number</source>
        <translation>%1 that is not a number</translation>
    </message>
    <message>
        <source>invoices whose total is not the sum of their lines</source>
        <translation>invoices whose total is not the sum of their lines</translation>
    </message>
    <message>
        <source>invoices whose tax is not the sum of their lines&apos; tax</source>
        <translation>invoices whose tax is not the sum of their lines&apos; tax</translation>
    </message>
    <message>
        <source>periods whose total is not the sum of their invoices</source>
        <translation>periods whose total is not the sum of their invoices</translation>
    </message>
    <message>
        <source>settings without a value, which start-up stops at</source>
        <translation>settings without a value, which start-up stops at</translation>
    </message>
    <message>
        <source>Options store: Options has %1 rows instead of one.</source>
        <translation>Options store: Options has %1 rows instead of one.</translation>
    </message>
    <message>
        <source>The totals of the days can&apos;t be read.</source>
        <translation>The totals of the days can&apos;t be read.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>goods with a tax that is not there</source>
        <translation>goods with a tax that is not there</translation>
    </message>
    <message>
        <source>goods with another rate than that of their tax</source>
        <translation>goods with another rate than that of their tax</translation>
    </message>
    <message>
        <source>goods without a tax rate, which can&apos;t be sold</source>
        <translation>goods without a tax rate, which can&apos;t be sold</translation>
    </message>
    <message>
        <source>goods without a price, which can&apos;t be sold</source>
        <translation>goods without a price, which can&apos;t be sold</translation>
    </message>
    <message>
        <source>goods with an apostrophe in the code, which can&apos;t be looked up</source>
        <translation>goods with an apostrophe in the code, which can&apos;t be looked up</translation>
    </message>
    <message>
        <source>goods with blanks at an end of the code</source>
        <translation>goods whose code begins or ends with a blank</translation>
    </message>
    <message>
        <source>goods with a code longer than its box</source>
        <translation>goods with a code longer than its box</translation>
    </message>
    <message>
        <source>goods with a name longer than its box</source>
        <translation>goods with a name longer than its box</translation>
    </message>
    <message>
        <source>goods with a unit that is not there</source>
        <translation>goods with a unit that is not there</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <source>%1 that has no %2</source>
        <translation>%1 that has no %2</translation>
    </message>
    <message>
        <source>The copy of the store is not the same; nothing was changed.</source>
        <translation>The copy of the store is not the same; nothing was changed.</translation>
    </message>
    <message>
        <source>There is no line of field names.</source>
        <translation>The line of field names is missing.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>A control character inside a text is written \r or \0.</source>
        <translation>A control character inside a text is written \r or \0.</translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation>The field &apos;%1&apos; is there twice.</translation>
    </message>
    <message>
        <source>%1 cells for %2 fields.</source>
        <translation>%1 cells for %2 fields.</translation>
    </message>
    <message>
        <source>The store has no table &apos;%1&apos;.</source>
        <translation>The store has no table &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The table %1 has no field &apos;%2&apos;.</source>
        <translation>The table %1 has no field &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Field %1: %2</source>
        <translation>Field %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number.</source>
        <translation>&apos;%1&apos; is not a whole number.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number with up to four decimals.</source>
        <translation>&apos;%1&apos; is not a number with up to four decimals.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number within the range of a column.</source>
        <translation>&apos;%1&apos; is not a number within the range of the column.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation>&apos;%1&apos; is not a number.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date (yyyy-mm-dd).</source>
        <translation>&apos;%1&apos; is not a date (yyyy-mm-dd).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no time (hh:mm:ss).</source>
        <translation>&apos;%1&apos; is not a time (hh:mm:ss).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no yes/no (True, False).</source>
        <translation>&apos;%1&apos; is not yes/no (True, False).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text: a backslash is written \\ (known are \t \n \r \0 \\).</source>
        <translation>&apos;%1&apos; is not a text: a backslash is written \\ (known are \t \n \r \0 \\).</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>The text is not valid UTF-8.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;. It has: %2.</source>
        <translation>The shop has no unit &apos;%1&apos;. It has: %2.</translation>
    </message>
    <message>
        <source>This is a store, not a table.</source>
        <translation>This is a store, not a table.</translation>
    </message>
    <message>
        <source>Choose one of today&apos;s taxes for them at the till under Products, View - Edit - Delete Products, or add the tax on the page Set-up.</source>
        <translation>Choose one of today&apos;s taxes for them at the till under Products, View - edit - delete products, or add the tax on the page Set-up.</translation>
    </message>
    <message>
        <source>Choose their tax at the till under Products, View - Edit - Delete Products, and save.</source>
        <translation>Choose their tax at the till under Products, View - edit - delete products, and save.</translation>
    </message>
    <message>
        <source>Give them a price at the till under Products, View - Edit - Delete Products, or take them in anew on the page Goods.</source>
        <translation>Give them a price at the till under Products, View - edit - delete products, or take them in anew on the page Goods.</translation>
    </message>
    <message>
        <source>Receipts cut it. Shorten it to 40 characters at the till under Products, View - Edit - Delete Products.</source>
        <translation>Receipts cut it. Shorten it to 40 characters at the till under Products, View - edit - delete products.</translation>
    </message>
    <message>
        <source>Choose one of the units for them at the till under Products, View - Edit - Delete Products, or add the unit on the page Set-up.</source>
        <translation>Choose one of the units for them at the till under Products, View - edit - delete products, or add the unit on the page Set-up.</translation>
    </message>
    <message>
        <source>More was sold than was entered. Enter the delivery, or count them and correct the stock at the till under Products, View - Edit - Delete Products.</source>
        <translation>More was sold than was entered. Enter the delivery, or count them and correct the stock at the till under Products, View - edit - delete products.</translation>
    </message>
    <message>
        <source>Give them another button at the till under Settings, Click Table.</source>
        <translation>Give them another button at the till under Settings, Touch table.</translation>
    </message>
    <message>
        <source>The button sells one of them alone. Give the others another button at the till under Settings, Click Table.</source>
        <translation>The button sells one of them alone. Give the others another button at the till under Settings, Touch table.</translation>
    </message>
    <message>
        <source>Selling such a composition takes nothing from the stock of what is gone. Open the composition at the till under Products, View - Edit - Delete Products, and mend it.</source>
        <translation>Selling such a composition takes nothing from the stock of what is gone. Open the composition at the till under Products, View - edit - delete products, and mend it.</translation>
    </message>
    <message>
        <source>Comparing the copy</source>
        <translation>Comparing the copy</translation>
    </message>
    <message>
        <source>There are no pictures in %1: it has no folder %2.</source>
        <translation>There are no pictures in %1: it has no folder %2.</translation>
    </message>
</context>
<context>
    <name>values</name>
    <message>
        <source>The number is too large.</source>
        <translation>The number is too large.</translation>
    </message>
    <message>
        <source>The value is not of the kind that is needed here.</source>
        <translation>The value is not of the kind that is needed here.</translation>
    </message>
    <message>
        <source>A value is needed here, but the field is empty.</source>
        <translation>A value is needed here, but the field is empty.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>Cannot read &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>Cannot write &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Cannot copy &apos;%1&apos;: %2</source>
        <translation>Cannot copy &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be opened.</source>
        <translation>The folder %1 can&apos;t be opened.</translation>
    </message>
    <message>
        <source>Cannot open &apos;%1&apos;: %2</source>
        <translation>Cannot open &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in UTF-8 and can&apos;t be changed.</source>
        <translation>&apos;%1&apos; is not in UTF-8 and can&apos;t be changed.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is no file.</source>
        <translation>Cannot read %1: it is no file.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Cannot read %1: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is too long.</source>
        <translation>Cannot read %1: it is too long.</translation>
    </message>
    <message>
        <source>Division by zero.</source>
        <translation>Division by zero.</translation>
    </message>
</context>
</TS>
