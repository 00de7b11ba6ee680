<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bs_BA" sourcelanguage="en">
<context>
    <name>BackupPage</name>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The till makes one at each End Report and when it is first started on a day. Kept are the newest of each of the last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days of which one is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weeks of which one is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Months of which one is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClickTable</name>
    <message>
        <source>The click table has no tab %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The click table has no button %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>The store is not open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the server of the store, or for another register that is writing there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for another register, which is writing to the store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text does not fit its line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only %4.</source>
        <extracomment>%4: the words that it may be, &quot;yes or no&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between two words that a setting may be, with its blanks</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>velton.ini, line %1: there is no %2 in [%3].</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setting %1 can&apos;t be used. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomerEntry</name>
    <message>
        <source>ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank accounts:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rate approved rebates or rate margins for suppliers:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change password!</source>
        <extracomment>the customer&apos;s ID is taken</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DrawerPage</name>
    <message>
        <source>Drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count of the drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begins anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes and coins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which there are of this currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ut in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken &amp;out:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be there:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counted:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remark:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the chosen count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per&amp;iod:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whose sales the drawer is counted for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold in cash:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>Fill in all required fields.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FiscalEntry</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GoodsChoice</name>
    <message>
        <source>&amp;Search:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add all sho&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GoodsPage</name>
    <message>
        <source>Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a &amp;file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export g&amp;oods…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export cus&amp;tomers…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the file would do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How it is rea&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HeadingStep</name>
    <message>
        <source>These lines head each receipt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Na&amp;me of the shop:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Identification:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Telephone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;wn as layout:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How a receipt looks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthPage</name>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report for whoever &amp;helps…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportChoices</name>
    <message>
        <source>How the file is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dec&amp;imals:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which column is what</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rice:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ta&amp;x:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave prices as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave quantities as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New goods whose row says none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InvoicesView</name>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back to the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LabelChoice</name>
    <message>
        <source>S&amp;heet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at la&amp;bel:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer&apos;s d&amp;ots:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width, mm:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height, mm:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One below other:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap beside:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap below:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sheet that is used already: press its first free label in the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>‹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>›</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LabelsPage</name>
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screens of the till and what it prints can each have a language of their own. Names of goods, and what stands at the head of the receipt, stay as you wrote them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the &amp;screens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On &amp;paper: receipts, reports and their previews</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A receipt in the language of paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListReport</name>
    <message>
        <source>D A T E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIME PERIOD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List does not contain any item.Change date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManagerLogin</name>
    <message>
        <source>VELTON Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name and password of a user of level 3:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManagerWindow</name>
    <message>
        <source>VELTON Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MasterdataWords</name>
    <message>
        <source>The row was deleted after this list was read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotesAndCoins</name>
    <message>
        <source>Notes and coins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;7 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All days of the shop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Own days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From one day to another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As ta&amp;bles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The figures of the charts as tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;DF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the figures for a spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Until:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By hour and weekday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By ta&amp;kings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By pi&amp;eces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold best</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In stock and sold least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs out at the present pace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups of the touch table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far it has read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc - Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what was read until now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>INVOICE No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   Price Quantit TaxRat     TAX   Amount</source>
        <extracomment>40 columns, all to the right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID  Product description          </source>
        <extracomment>40 columns: code and description, one blank between them</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product              Price Quant  Amount</source>
        <extracomment>40 columns: product 18, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product description                  </source>
        <extracomment>40 columns: number and description, one blank between them</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product           Price Quant  Amount</source>
        <extracomment>40 columns: number 3, product 15, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product name                    Unit Quantit Price    Amount     Tax   Amount</source>
        <extracomment>80 columns: number and name 35, and to the right unit 4, quantity 8, price 8, amount 8, tax 8, amount 9</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>                                                 outTax   outTax         withTax</source>
        <extracomment>80 columns, below the line before: price and first amount &quot;without tax&quot;, last amount &quot;with tax&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product description          </source>
        <extracomment>32 columns: number and description, one blank between them</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>     Price  Quantity      Amount</source>
        <extracomment>32 columns, all to the right: price 9, quantity 10, amount 13</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product      Price Quant  Amount</source>
        <extracomment>32 columns: product 10, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of issue:%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delivery date :%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custumer:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s name</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s identification number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date:%1</source>
        <extracomment>at most 12 columns without %1, date and time</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtotal......%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax...........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL.........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes          </source>
        <extracomment>15 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate     Amount</source>
        <extracomment>15 columns: rate 6, and to the right amount 9</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> TOTAL:%1</source>
        <extracomment>at most 7 columns without %1, the sum of the taxes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier:%1</source>
        <extracomment>at most 12 columns without %1, the cashier&apos;s name</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milk 1 l</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pcs</source>
        <extracomment>at most 3 columns, its unit: pieces</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apples, red</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Business hours of cash register</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CR  DateFrom  DateTo  TimeFrom    TimeTo</source>
        <extracomment>40 columns: register 4, the days of login and log-off 8 each, their times 10 and 9</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to </source>
        <extracomment>at most 3 columns, between the numbers of a day&apos;s first and last invoice</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INVOICES REPORT</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> DATE      InvoiceFrom InvoiceTo        </source>
        <extracomment>40 columns: day 11, first invoice 12, last invoice 17</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total wout Tax       TAX   Total withTAX</source>
        <extracomment>40 columns, to the right: amount without tax 14, tax 10, amount with tax 16</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL  :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>                         Product list - List of goods           date:</source>
        <extracomment>at most 80 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount</source>
        <extracomment>78 columns: number 5, name 30, code 14, unit 3, price 7, quantity 8, amount 11</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL with Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL without Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices </source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InNo Cashie    Date       Time    Amount</source>
        <extracomment>40 columns: number 5, cashier 8, date 9, time 9, amount 9</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL: </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale by Cashier</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CId Cashier           Date         Total</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, date 9, total 11</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL : </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rb Product Name          Unit Qua Amount</source>
        <extracomment>40 columns: code 3, name 24, unit 3, quantity 3, amount 7</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id and type TAX       Rate[%]    Date   </source>
        <extracomment>40 columns: ID and name of the tax 22, rate 7, date 11</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>             Base          TAX     Total</source>
        <extracomment>40 columns, to the right: base 20, tax 10, total 10</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity of items in stock</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product Name      Unit Quanti  Amount</source>
        <extracomment>40 columns: code 3, name 20, unit 3, quantity 6, amount 8</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date           Amount      TAX     Total</source>
        <extracomment>40 columns: date 10, amount without tax 10, tax 10, total 10</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax report by invoices for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InvNo    Date          Time             </source>
        <extracomment>40 columns: number 8, date 12, time 20</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>               Amount      TAX     Total</source>
        <extracomment>40 columns, to the right: amount without tax 20, tax 10, total 10</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report No: %1</source>
        <extracomment>at most 34 columns without %1, the number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currently</source>
        <extracomment>at most 39 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRNo   Date   TimeFrom            Amount</source>
        <extracomment>40 columns: register 6, date 9, the period&apos;s begin 9, its end 8, amount 7</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CId Cashier                       Amount</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, amount 20</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id  ProductName          Unit Qua Amount</source>
        <extracomment>40 columns: code 4, name 23, unit 3, quantity 3, amount 7</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Reports</source>
        <extracomment>at most 40 columns</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CR End  Date    TimeFr   TimeTo   Amount</source>
        <extracomment>40 columns: register 3, period 4, date 9, its begin 9, its end 8, amount 7</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EndNo Date and time of end        Amount</source>
        <extracomment>40 columns: number 6, date 9, time 9, amount 16</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed:%1 %2</source>
        <extracomment>at most 15 columns without %1 and %2, date and time</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordEntry</name>
    <message>
        <source>Different passwords!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different passwords</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordStep</name>
    <message>
        <source>&amp;User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the pass&amp;words</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Choose a day in the calendar, or two days and &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PortPanel</name>
    <message>
        <source>A device, tcp: with address and port, or file: with a name; empty is the usual device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask it for paper, cover and errors before it prints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How is it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PriceListChoice</name>
    <message>
        <source>All goods i&amp;n the shop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The goods chosen onl&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list follows the groups of the touch table; what has no button comes last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>‹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>›</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PricesPage</name>
    <message>
        <source>Prices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What would change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ending:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <source>Printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is tried here goes to the printer as it is chosen here; the till takes it once it is saved, from the next receipt on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Receipts go to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;ports go to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Commands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ut the paper behind a receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look for printers again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test the page printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProductEntry</name>
    <message>
        <source>ProductID - BarCode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail (icon)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Izaberi ikonu za artikl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obrisi ikonu za artikl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second price with Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second price without Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitmaps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product with this code-barcode already exists.Change ProductID!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 holds no picture that can be shown.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReceiptWords</name>
    <message>
        <source>X report is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z report - daily report is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer on LPT%1 has no paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer on LPT%1 has its cover open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer on LPT%1 is offline or has an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer on LPT%1 does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is printed yet.

Yes: look at it again. No: print all the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RegisterStep</name>
    <message>
        <source>Scanner &amp;first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is sold by the piece goes on the invoice as soon as it is scanned. Without it the cursor waits at the quantity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Customer line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sales screen has two boxes for the customer, and the receipt shows what was written there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next &amp;invoice by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When an invoice is posted or given up, the next one opens at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Offer the End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whoever ends the till is asked whether to make the End Report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blank lines after a receipt:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So that the paper tears below the last line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fisc&amp;al file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The till takes these settings when it starts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve as table…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RestoreForm</name>
    <message>
        <source>Restore a backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The days of the shop and of the backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the till, and all others of this shop, before you go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace the shop by the backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave it as it is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message>
        <source>End Report is done?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report? YES or NO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the program?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>END OF WORK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchBlock</name>
    <message>
        <source>F11-All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any &amp;where in the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from the &amp;beginning</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Nothing is found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each step can be left out, and done again at any time. To sell, close this window and start VELTON.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SupportForm</name>
    <message>
        <source>Report for whoever helps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is all that the file holds: no names, no sales, no passwords. Read it through, then save it and send it to whoever helps you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SupportWords</name>
    <message>
        <source>This is not a text in RTF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The groups of the text are nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text closes more groups than it opens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The end of the text is missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableList</name>
    <message>
        <source>Double click for edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TaxEntry</name>
    <message>
        <source>TaxID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of tax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TaxesStep</name>
    <message>
        <source>Each product belongs to one tax. Products keep the rate that they were saved with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rate in percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextPreview</name>
    <message>
        <source>F5-Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolWords</name>
    <message>
        <source>A copy goes into a file, not to the standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both stores are sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no day; write 2026-11-30.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; divides nothing that could be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form COLUMN=FIELD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, separator %2, decimals behind %3; %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unknown sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row is refused, so nothing is written; --skip-refused writes the others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n rows are refused, so nothing is written; --skip-refused writes the others.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold meanwhile, and taken off: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is taken back: %2 restored, %3 removed, %4 notes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (velton-store --help tells more)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved %1 rows of %2 tables and compared %3 days of sales.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The old store is kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the output: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder for backups is named here, nor by velton.ini in its section [backup].</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made %1: %2 invoices, %3 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restored %1 invoices of %2 days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was replaced is kept in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 invoices, %3 become %4, %5</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TouchButton</name>
    <message>
        <source>Free</source>
        <extracomment>a button without a product</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnitsStep</name>
    <message>
        <source>The till counts one piece of pcs at each scan, and asks for the quantity of every other unit. A short name can be changed until a product has it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hort name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserEntry</name>
    <message>
        <source>UserID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access Level:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Pass:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workplace:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User with this UserID or a UserName already exists.Change Username!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UsersStep</name>
    <message>
        <source>Level 1 sells, level 2 also makes the End Report, level 3 does everything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;umber:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Level:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>forms</name>
    <message>
        <source>The screen that shows %1 is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no control %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>forms::KeypadPanel</name>
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>forms::ListView</name>
    <message>
        <source>No row of the list is selected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>forms::LongWork</name>
    <message>
        <source>This takes a while ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ESC-Leave</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>forms::ScanGuard</name>
    <message>
        <source>Not taken: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>forms::TextView</name>
    <message>
        <source>Cannot write a file: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The till of one small shop: invoices, stock, receipts and reports.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmActivity</name>
    <message>
        <source>Business hours of cash register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DateFrom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DateTo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time logoff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List haven&apos;t any item.Change date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log can&apos;t be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmArtikli</name>
    <message>
        <source>Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double click for edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add new product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second Price without Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID - Barcode: %1
Product name: %2
Do you want to delete this item?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmChangePassword</name>
    <message>
        <source>Izmjena lozinke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User with this code or a name already exists.Change name!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmChangeUser</name>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LOGIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nonexistent user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDepozit</name>
    <message>
        <source>Deposit - payment </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit payment - only for fiscal printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid deposit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDepozitIsplata</name>
    <message>
        <source>Deposit payout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit payout - only for fiscal printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit payout.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditKupac</name>
    <message>
        <source>Edit custumer - supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identification:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditProduct</name>
    <message>
        <source>Edit product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Structure</source>
        <extracomment>shows the composition</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a thumbnail - icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File with such name does not exist!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditTax</name>
    <message>
        <source>Edit Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditUser</name>
    <message>
        <source>Edit User</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmFirma</name>
    <message>
        <source>My details - My firm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ident</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address can&apos;t be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data modified.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmFiskalniPeriodicniIzvjestaj</name>
    <message>
        <source>Periodic report for fiscal printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose time period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Periodic report is done.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help text is damaged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help text is not there.

It should be in this file:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help text cannot be read: %1

It is in this file:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help text cannot be read: it is too long.

It is in this file:
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmIzvjestajKIF</name>
    <message>
        <source>Invoices for tax report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InvoiceFrom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InvoiceTo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total without Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total with Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmKlikTabla</name>
    <message>
        <source>CLICK TABLE edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input new card name</source>
        <extracomment>card: a tab of the touch table</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Change name of category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F3-Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search product:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from begining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab name can&apos;t be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old settings will be lost,
Klick Table will be set automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmKupci</name>
    <message>
        <source>Customers - Suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Custumer - supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dvoklik izaberi kupca</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from begining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CustumerID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ident</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate rebate/margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custumer: %1
Do you want to delete the customer?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custumer deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>VELTON - LOGIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broj prijava:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check date and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Provjerite datum i vrijeme ako nisu ispravni prekinite pokretanje programa i popravite datum i vrijeme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60 secunds for login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program VELTON already run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VELTON already works.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password.Login not allowed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMSGinvoice</name>
    <message>
        <source>CHANGE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CASH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thank you!!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount is less than the invoice amount.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMreza</name>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For server a number greater than 20</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmNewKupac</name>
    <message>
        <source>New custumer - supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmNewProduct</name>
    <message>
        <source>New product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ESC-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose image - icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sve slike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not exist!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new product is added.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmNewTax</name>
    <message>
        <source>New Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new type of tax is added.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmNewUser</name>
    <message>
        <source>New User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New user added.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmORVAtouch</name>
    <message>
        <source>INVOICE No:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ili broj:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID-BarCode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ADD on INVOICE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custumer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custumer name,address...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custumer Ident</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F7-Sign off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F8-Ribbon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F9-Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REFRESH CLICK TABLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F10-Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose cashier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You did not enter a single item on the invoice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want cancel the invoice?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product has meanwhile been deleted or does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illogical quantity. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHANGE QUANTITY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stock of %1 can&apos;t be written yet. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Printer for invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POS printer LPT1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POS printer LPT2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>windows printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set win printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. POS Printer emulalation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Epson emulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Star emulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cutter POS printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3.Printer for reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POS printer na LPT1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POS printer na LPT2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POS Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>touch monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4.Currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>currency sign max 3 char</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5.Show amount in cash register on main form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show amount in cash register on main form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6.Ask password when change cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ask for password </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7.Change</source>
        <extracomment>the money that the customer gets back</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>request to input and display paid cash and change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8.Show all products in Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show all products in search when open form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9.Make printed invoices ribbon on HDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printed invoices ribbon on HDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10.Print only on fiscal printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print only on fiscal printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>filename fiscal printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New invoice automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new invoice automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default option 1-Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show window with display for custumer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show window with display for custumer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Invoice heading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Firm Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firm Ident</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.Change invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter a new invoice no and click go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5.Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print cashier on invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6.Footer text on invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3.Invoice details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Printing items on the invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID and ProductName                     Price Quantit  TRate     Tax  Amount</source>
        <extracomment>82 columns, all but the product aligned right: product 43, price 8, quantity 8, tax rate 7, tax 8, amount 8</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>40 char</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Name         Price Quanti Amount</source>
        <extracomment>40 columns, all but the product aligned right: product 18, price 8, quantity 7, amount 7</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   Price Quantit  TRate     Tax   Amount</source>
        <extracomment>40 columns, all aligned right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product Name      Price Quant  Amount</source>
        <extracomment>40 columns, figures aligned right: number 3, product 15, price 8, quantity 6, amount 8</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4 print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>80 char</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   Price Quantity      Amount</source>
        <extracomment>29 columns, all aligned right: price 8, quantity 9, amount 12</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32 char</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductName Price Quant Amount</source>
        <extracomment>30 columns, all but the product aligned right: product 11, price 6, quantity 6, amount 7</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.Recapitulation taxes </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>recapitulation by Tax Rates           Rate    Amount</source>
        <extracomment>52 columns, figures aligned right: what it is 33, rate 9, amount 10</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without recapitulation print only Tax Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4.Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>za samo kontrolne funkcije broj veći od 20</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Sacuvaj</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sacuvaj promjene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Upute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upute za rad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Zatvori</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The main window does not show the sales screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes are saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPopisRobe</name>
    <message>
        <source>Product list - List of goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sifra-BarKod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Naziv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kolicina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cijena</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vrijednost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL with Tax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL without Tax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sacuvaj kao</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRacPRG</name>
    <message>
        <source>Invoices - print, view, save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INVOICE No:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F7-Print all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brise arhivirano radno vrijeme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prethodni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sljedeci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zadnji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zatvori prozor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currently there is no single invoice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRacunPregled</name>
    <message>
        <source>Print preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRacuni</name>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InvoiceID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Print list invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6 -Print selected invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmReklamiranjeRacuna</name>
    <message>
        <source>Withdrawal invoice - only fiscal printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOTE: There must be registered sales with enough money in the fiscal device to be able to execute this command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Withdraw invoice - F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice withdraw.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSales</name>
    <message>
        <source>Sale by Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CashierID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSalesProducts</name>
    <message>
        <source>Sale by Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSalesTax</name>
    <message>
        <source>TAX Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tax rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Osnovica</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iznos poreza</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iznos sa porezom-PDVom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSastav</name>
    <message>
        <source>Product composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product composition for:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AMOUNT :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F2] - Choose product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A composition is opened from the screen of its product.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product with this code-barcode does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You did not enter a single item in the composition.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmStanjeArtikala</name>
    <message>
        <source>Quantity of items in stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List does not contain any item.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTax</name>
    <message>
        <source>Tax protected from deletion, but you can modify the data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate [%]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TaxID: %1
Tax name: %2
Are you sure you want to delete this type of tax?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTaxbyInvoice</name>
    <message>
        <source>TAX Report by Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount without Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount with Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTrakaRacuna</name>
    <message>
        <source>Printed Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTrenutnoStanjeKasa</name>
    <message>
        <source>Currently - End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currently</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists shows currently balance from last done End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and time last End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 - CASH REGISTERS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 - CASHIERS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 - INVOICES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 - PRODUCTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CRs:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>END REPORT do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Print all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F4-Print </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CASH REGISTER No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CASHIERS:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INVOICES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL FOR ALL INVOICES:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CR No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL FOR ALL PRODUCTS:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report No:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists show balance for selected End Report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <extracomment>%1 and %2 are date and time</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmUsers</name>
    <message>
        <source>User - Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UserID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UserName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier protected from deletion, but you can modify the data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Cashier: %1
Password: %2
Are you sure you want to delete this user?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmViewer</name>
    <message>
        <source>Search Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProductID-BarCode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type what you look for, or press F11 for all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmWinPrinter</name>
    <message>
        <source>Windows printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9 - default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimensions of paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Podesi sirinu i duzinu umetnutog papira</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>currently selected font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled</name>
    <message>
        <source>End Reports review</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cash register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled1</name>
    <message>
        <source>End Reports review</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5-Print review</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::BackupPage</name>
    <message>
        <source>Made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its takings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder has been chosen yet, and the till makes no backups. Choose one on a second disk, on a stick or in the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups go to %1, on the same disk as the shop: if it breaks, both are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups go to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.
The try of %2 failed: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked, of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This backup can&apos;t be restored: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no backups yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The register is being backed up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop and the backup are being compared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup is being brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder of the backups is being read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder was not read to its end.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::BackupWords</name>
    <message>
        <source>No backup yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last good backup: %1, %2, in %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::ColumnChart</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2, before %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::DrawerPage</name>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was counted yet. Count the drawer on the page before and keep the count.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counts can&apos;t be kept or shown. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which notes and coins %1 has is not known yet. Press &quot;Notes and coins&quot; and type them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too much in the drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing in the drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no number of pieces and no amount.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something was sold, or an End Report was made, since this page came up. The count is not kept: look at the difference again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count %1 is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count %1 is printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::DrawerText</name>
    <message>
        <source>Count %1 of the drawer, in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counted by %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold in cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DIFFERENCE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For End Report %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::GoodsChoice</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no such goods.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add goods from the left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a button</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Found: %n</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::GoodsPage</name>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a table of goods that a spreadsheet saved as CSV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a table of goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.txt *.tsv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say which column is the code of the goods.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workbook (*.xlsx);;Table as text (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all but unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no such rows.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::GoodsWriting</name>
    <message>
        <source>Write %1 new and %2 changed goods?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused rows stay out of it: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold since the look, and taken off the new quantity too: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken back: %1 restored, %2 removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So it is with %1 more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write %1 changed goods?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1 changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back &apos;%1&apos; of %2? Goods that were new go, and others get their old values back. What was sold since stays sold.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::HeadingStep</name>
    <message>
        <source>%1, %2 columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The longest line has %1 columns; paper has 32, 40 or 80.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::HealthPage</name>
    <message>
        <source>✓  Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✖  Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>!  Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>–  Fact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop is looked over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The look was left before its end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The look can&apos;t be ended. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop is being looked at ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something is damaged. Read what to do before you go on selling.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Nothing is damaged. Notes of what does not fit together: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::HeatMap</name>
    <message>
        <source>%1, %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::ImportChoices</name>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semicolon ;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point .</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New and known goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only new goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only known goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::InvoicesView</name>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no invoices behind this figure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::Label</name>
    <message>
        <source>1 l = %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 kg = %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>per %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::LabelChoice</name>
    <message>
        <source>Nothing to print yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 mm, one at a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 mm, %3 on A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own size on A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own size, one at a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>600 an inch, office printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>300 an inch, label printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>203 an inch, label printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::LabelsPage</name>
    <message>
        <source>1 Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print price list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Pages: %n</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels: %n</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Chosen goods that are no longer there: %n</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Choose some goods first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Printed. Pages: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saved as %1. Pages: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::LanguagePage</name>
    <message>
        <source>As delivered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is kept. The till and this program have it from their next start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::ManagerLogin</name>
    <message>
        <source>This name and password are not those of a user of level 3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::ManagerWindow</name>
    <message>
        <source>%1   –   %2   –   %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::NotesAndCoins</name>
    <message>
        <source>What the notes and coins of %1 are worth, with a blank between two:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::OverviewCharts</name>
    <message>
        <source>7 days before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lasts days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::OverviewPage</name>
    <message>
        <source>Nothing was sold on these days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No goods are in stock. Enter what you have on the page of the goods.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sold in the last four weeks, so nothing runs out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not on the touch table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading back from %1 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2  (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today, %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A week ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean of the last %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 invoices, %2 each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read back to %1; what is older was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reading was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overview of %1, printed on %2, amounts in %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The overview is printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::Pages</name>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::PasswordStep</name>
    <message>
        <source>Choose a password that not everybody knows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This user is gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 still has the password that every shop is delivered with: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::PortPanel</name>
    <message>
        <source>It is ready, as far as it tells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its cover is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is offline or has an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not answer. Many printers never do; then leave the box above empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port &amp;%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VELTON Manager, port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This line is bold, if the printer can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are wrong want another code page in the printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drawer was told to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer was told to cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File %1 in the folder of the register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer on the network at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The usual device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::PriceList</name>
    <message>
        <source>Other goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, prices in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::PricesPage</name>
    <message>
        <source>Say what is to change, and press Look.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prices by percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to the cent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by 0.05</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by 0.10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at .99</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods keep the rate that their tax had when they were entered. Those with another rate get that of now. Prices hold the tax and stay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below zero the goods get cheaper. Of two prices as near the higher one is taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prices by %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The percent has to be a number above -100, up to 1000, with at most two decimals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed, %2 unchanged, %3 refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::PrintersPage</name>
    <message>
        <source>Port 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Epson (ESC/POS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Star</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No page printer: each page becomes a PDF in printouts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page printer: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test page was sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::RankList</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::RegisterStep</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods by their number (form 1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods by their code (form 2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::ReportsPage</name>
    <message>
        <source>Choose a report and its days, then &quot;Show&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day lies behind the last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table as text (*.csv);;Workbook (*.xlsx)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) are saved as %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::RestoreForm</name>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takings now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takings there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither the shop nor the backup has sold anything yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup of %1, with %2 invoices. Takings are in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop can&apos;t be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All days are the same in the shop and in the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days that differ: %1. They stand first. What the shop has now and the backup has not will be gone from it; all that is replaced is kept in a folder beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>differs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::SaveAs</name>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::SetupPage</name>
    <message>
        <source>1 Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 Taxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save what was changed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 Register</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::SupportForm</name>
    <message>
        <source>Save the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is saved as %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>manager::TaxesStep</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a tax with this code or this name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This tax can&apos;t be removed, but its name and rate can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the tax &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tax needs a code, such as P.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tax needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rate is a number of percent, from 0 to less than 100.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) belong to this tax.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::UnitsStep</name>
    <message>
        <source>Short name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit needs a short name, such as kg.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit needs a name, such as kilogram.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a unit with this short name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the unit &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name has no apostrophe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name has at most %1 letters; paper has no more room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The till sells by the piece what has this unit, so it stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) have this unit.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::UsersStep</name>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a user with this number or this name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This user can&apos;t be removed, but name, level and password can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user needs a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user needs a name to log in with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a level from 1 to 3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Somebody has to keep level 3, or nobody can set up the shop any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the user who has logged in here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mdiORVA</name>
    <message>
        <source>&amp;Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View - Edit - Delete Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items in stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview End Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview End Reports </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice deatails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Firm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers - Suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale by Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale by Cashiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices for tax report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax Report by Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed Invoices Ribbon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working Time </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fiscal printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit - payment </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit - payout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X report - Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z report - Daily report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fiscal Periodic Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Reclamation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total: &gt;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The main window has no entry %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>output</name>
    <message>
        <source>Channel 1 is already open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel 1 is not open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This system lacks the code page %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot take back half of what was written to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for %1, which takes nothing now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open the printer %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write to the printer %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page printer cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page printer takes no further page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page printer failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the printer on %1 (%2).
Is it switched on, with paper in and its cover closed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Leaving ends the program; what is stored stays stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the wait for it was left</source>
        <extracomment>stands behind &quot;Cannot write to x: &quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ports.ini has no printer behind &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ports.ini has &quot;%1&quot; at %2, which is yes or no.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
ports.ini has no other printer for %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no printer port &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot reach the printer %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 has no known address.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>No valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No valid time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value does not fit the type of the field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An action query gives no rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A SELECT cannot be executed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The query has too many columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The query is too complex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected a field, found a constant.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field %1 is neither grouped nor inside an aggregate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field %1 is set twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The expression is too complex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes one argument.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no function %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not possible in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be taken over another aggregate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a field name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LIKE, BETWEEN or IN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The query text is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text is not closed by a quote.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name is not closed by a bracket.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name is missing between the brackets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A date is not closed by #.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sign that the query language does not know.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not yes or no.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a date; a date is written #mm-dd-yyyy#.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The query text is nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SELECT, UPDATE or DELETE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a table name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A query joins too many tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no table %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two tables are called %1; one needs an alias.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The query has no table %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field %1 is in more than one table: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two columns have the alias %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected %1, found the keyword %2, which is a name only in square brackets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A query text is one statement; nothing may follow the semicolon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected %1, found the end of the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected %1, found %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>an empty field, as query texts have it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be calculated with %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A minus cannot stand before %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A query cannot turn %1 into a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be compared with %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LIKE compares texts, and this is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Val reads a text, and this is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum adds numbers, and this is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected a condition; this is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written to a field that holds %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This list has no field %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store is of version %1, which this program does not know.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A password does not belong into the address of the server; its place is ~/.pgpass.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text with a zero character cannot lie on a server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it asks for a password, and ~/.pgpass has none for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of the server %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 cannot be reached: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 has not heard from its standby.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 was lost: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while many changes were being stored; none of them is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while a sale was being stored; how much of it is, is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store is locked by another user, and the wait for it was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while the last change was being stored; whether it is, is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Whether the last change is stored is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No batch is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A batch is open already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of %1 is older than version 15.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database of %1 holds texts in %2, not in UTF8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server of %1 is a standby and takes no changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The role has no right to use the schema of the store %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no store of this kind (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is of version %2; this program knows versions up to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be written to: the role has no right to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is held exclusively by another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no store at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a store at %1 already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.%2, rows from %3 on: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, rows from %2 on: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the next number is taken already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy can be made while a batch is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy is damaged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no room left on the server&apos;s disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refused the access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store was moved away on the server, with all that was stored until then (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cursor has not changed any row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rows of this cursor cannot be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update without AddNew or Edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row was changed by another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cursor has no field %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cursor has no field at position %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field was written without AddNew or Edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field %1 is computed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 numbers itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 counts from 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cursor is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The marked row is not in this cursor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cursor cannot be searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copying a store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store is locked by another user and could not be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 exists already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a store, because of its ending %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be written in the folder %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be brought to the disk: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be made: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is just making %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; what was stored until then is saved in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; no copy of what was stored until then could be made: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty and no store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks the column %2 of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No write-ahead log can be kept beside %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is damaged or no store (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be opened for writing (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>making %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has the store %1 open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be renamed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bringing a burst of changes to the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 (%3).</source>
        <extracomment>what was refused, what was being done, and the engine&apos;s own words: &quot;The store is damaged, opening x (y).&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copying to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>preparing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>running a query</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 went away while the store was being opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>setting up the text rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store is locked by another user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The work was left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A row with this key exists already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other rows of the store refer to this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value does not fit the type of its column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no room left on the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk or the network refused the access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store refused the operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did you mean: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot use %1: it names a path and a url, but only one store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: it has no line path=... or url=... in a section [main].</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>upkeep</name>
    <message>
        <source>The folder for backups, %1, went away while the backup was being made. Was the stick drawn?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking at the folder for backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying the shop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The days in the copy are not those of the shop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparing the days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1 back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be read back as it was written: the disk or stick is worn out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder for backups has been chosen yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A backup of this register is being made just now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not say when it was made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in it is not whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its list of files can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no backup of a register.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there. Is the stick or the disk plugged in?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no folder for backups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for backups, %1, can only be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for backups, %1, can&apos;t be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backups need a folder outside of the register&apos;s own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 is not the one that was chosen for backups. Is the right stick or disk plugged in? If it is, choose the folder anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last good backup is of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no good backup yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup of %1 could not be made: %2
%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No backup was made for more than three days, although the shop was selling.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stores are looked at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sales are read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The invoices are looked at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The goods are looked at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The receipts are looked at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be brought to the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be renamed to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is too little room in %1: %2 are needed, and %3 are free.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a formula. Copy the cell in the spreadsheet and paste it as a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an error that the spreadsheet shows instead of a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 → %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identification number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: nothing in the file says whether &apos;%2&apos; has decimals or thousands. Say which sign divides the decimals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not fit the other amounts, which have &apos;%3&apos; before the decimals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; has more than four decimals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The look at the table was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The click table has no such groups, so their goods keep their place: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No column is known to be the code of the goods. Say which one it is: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The goods are new, and only those that are there are changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The goods are there already, and only new ones are added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row has %1 cells, and the table has %2 columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row has no code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code stands more than once in the file, in the lines %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: &apos;%1&apos; is a number that it shortened. Give the column the format Text there and enter the code anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give the column the format Text there and enter the code anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code has %1 characters, more than the %2 that the till takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code has an apostrophe, by which the till could not find it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code has a line break or another control character in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New goods need a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the text has %2 characters, more than the %3 that there is room for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the text has a line break or another control character in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New goods need a price.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the spreadsheet has shortened the number &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The price &apos;%1&apos; is below zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New goods need a unit, and none is said for those without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New goods need a tax, and none is said for those without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tax &apos;%1&apos; has no rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop has several taxes of %1; the code of one has to stand here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; of the click table has no free button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has no column &apos;%1&apos;. Its columns are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was removed since.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays, since it has been sold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays, since it is part of a composition.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays, since its %1 was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its %1 stays, since it was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays on its button, since its old one is another&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The look at the goods was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The goods have no price.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The price is below zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos; with a rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column can&apos;t be &apos;%1&apos;. It can be %2 or none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save it in the spreadsheet as CSV and choose that file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a workbook under a password. Open it with the password. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a workbook, not a text. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a packed file (zip). Unpack it; a table in it has to be a CSV file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a PDF. Ask for the table itself, as CSV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a picture, not a table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a document of another kind, not a table of text. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is larger than %1 MB, which is more than a table of goods has. Divide it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No encoding is called &apos;%1&apos;. Known are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not in the encoding %1: some of its bytes stand for no letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The row in line %1 makes the table larger than %2 columns or %3 cells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has more than %1 rows. Divide it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quotation mark in line %1 is never closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is damaged, so what it tells of can&apos;t be taken back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; can&apos;t be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop has changed since it was looked at, and nothing was written: %1. Look again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(the rate of its tax)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(its unit is gone)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(its button is another&apos;s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was removed, and nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The writing was left; nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file of the shop is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t sell on this till. Look whether the disk or the network drive is connected. If the file is gone, restore the last good backup, on the page Backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program holds the shop&apos;s data for itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close other programs that work with the shop, such as a backup, and look again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer with the shop&apos;s data does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look whether that computer and the network are switched on, then look again. Nothing is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop&apos;s data can be read but not changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files belong to another user of the computer, or the disk is write-protected. Whoever set up the computer can put that right.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file of the shop is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop selling on this till. Copy the whole folder of the register before anything else, then restore the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the disk looked at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are printed receipts that the shop&apos;s data lacks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in invoices.txt in the register&apos;s folder: tell the book-keeper their numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings of this till are damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the last good backup, on the page Backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Numbers in the sales that are no numbers: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such rows out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Invoice numbers that stand twice: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills sold under the same number; both invoices are there. Look that each till has a number of its own, and tell the book-keeper the invoices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Invoices without lines: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Invoices that don&apos;t agree with the sum of their lines: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: what is printed there counts. Tell the book-keeper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Invoices whose tax is not that of their lines: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Periods between two End Reports that stand twice: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills worked under the same number. Look that each till has a number of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Periods whose takings are not the sum of their invoices: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax book by the invoices: tell the book-keeper of the difference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Invoices that are gone while their lines are there: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Periods that are gone while their invoices are there: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book but in no End Report: tell the book-keeper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Products that were sold and have been deleted since: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them as they were sold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Cashiers who sold and have been deleted since: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them by their number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Taxes that goods were sold under and that are gone: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done for what is sold; see under Set-up that today&apos;s taxes are complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Invoices that were never printed on this till: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Another till sold them, or the printer failed. Print them once more from the list of invoices where the customer or the tax office needs the paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Products with a tax that is not there: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with another rate than that of their tax: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The rate was changed after they were saved. Give them the rate of their tax on the page Prices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Products without a tax rate, which can&apos;t be sold: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products without a price, which can&apos;t be sold: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Make the product anew under a code without it, and delete this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Products whose code begins or ends with a blank: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A scanner doesn&apos;t find them. Make the product anew without the blank, and delete this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Products whose code is longer than the till&apos;s box takes: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Products whose name is longer than the till&apos;s box takes: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a unit that the till does not know: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a stock below zero: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products on a touch button that is not there: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Touch buttons with more than one product: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products that compositions name and that are gone: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Small tables with more or fewer rows than in a new shop: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Missing indexes, so that the till gets slow: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever looks after the till can make them anew: a backup that is restored has them again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Settings of this till without a value, at which it stops when it starts: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Set them under Settings on the till, or on the page Set-up here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show it to whoever looks after the till.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files of the shop and of this till are whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Every invoice agrees with its lines and taxes. Looked at: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The takings of each End Report are the sum of its invoices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The numbers of the invoices run on without a gap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Every printed receipt is in the shop&apos;s data. Looked at: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every product can be sold, and is taxed as its tax says. Looked at: %n.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed without an End Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lines add up to something else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tax of the lines is another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The takings are not the sum of the invoices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers left out: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers twice: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no invoices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: invoices %n, total %2, tax %3.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Tell the book-keeper of the difference; the receipts count as they are printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 It differs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label is at least %1 mm wide and %2 mm high.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label is at most %1 mm wide and high.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sheet has at least one label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The labels side by side are %1 mm wide; the sheet has %2 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The labels one below the other are %1 mm high; the sheet has %2 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no amount above zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no amount. Type some, with a blank between two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax book by day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Business hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goods in stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in the backup is damaged: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting the shop in its place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing in the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of files of the backup is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in the backup is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The days in the backup&apos;s shop are not those that it was made with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The days on the server are not those of the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no backup %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The till of this register is open. Close it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A backup of this register is being made just now. Try again in a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A restore was not ended. Start the till once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only a number from %4 to %5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>products with a stock below zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>products on a button that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>buttons of the click table with more than one product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tables with more or fewer rows than delivered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>indexes that are missing, so that lookups are slow or keys not unique</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tax of the lines %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takings %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>numbers left out %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>numbers twice %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: 1 invoice, total %2, tax %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n invoices, total %2, tax %3</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1, numbers %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; all agrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; differs: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ribbon of printed invoices has receipts that the store lacks: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>invoices that are not on the ribbon (never printed, or by another register)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 that stands more than once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2, not %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 that is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>invoices whose total is not the sum of their lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>invoices whose tax is not the sum of their lines&apos; tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>periods whose total is not the sum of their invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings without a value, which start-up stops at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options store: Options has %1 rows instead of one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The totals of the days can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with a tax that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with another rate than that of their tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods without a tax rate, which can&apos;t be sold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods without a price, which can&apos;t be sold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with an apostrophe in the code, which can&apos;t be looked up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with blanks at an end of the code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with a code longer than its box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with a name longer than its box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goods with a unit that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 that has no %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy of the store is not the same; nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no line of field names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A control character inside a text is written \r or \0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cells for %2 fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store has no table &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table %1 has no field &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number with up to four decimals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number within the range of a column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date (yyyy-mm-dd).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no time (hh:mm:ss).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no yes/no (True, False).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text: a backslash is written \\ (known are \t \n \r \0 \\).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;. It has: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a store, not a table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one of today&apos;s taxes for them at the till under Products, View - Edit - Delete Products, or add the tax on the page Set-up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose their tax at the till under Products, View - Edit - Delete Products, and save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give them a price at the till under Products, View - Edit - Delete Products, or take them in anew on the page Goods.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipts cut it. Shorten it to 40 characters at the till under Products, View - Edit - Delete Products.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one of the units for them at the till under Products, View - Edit - Delete Products, or add the unit on the page Set-up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More was sold than was entered. Enter the delivery, or count them and correct the stock at the till under Products, View - Edit - Delete Products.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give them another button at the till under Settings, Click Table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The button sells one of them alone. Give the others another button at the till under Settings, Click Table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selling such a composition takes nothing from the stock of what is gone. Open the composition at the till under Products, View - Edit - Delete Products, and mend it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>values</name>
    <message>
        <source>The number is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value is not of the kind that is needed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value is needed here, but the field is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot copy &apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open &apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in UTF-8 and can&apos;t be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: it is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: it is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Division by zero.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
