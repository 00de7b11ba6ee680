<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hr_HR" sourcelanguage="en">
<context>
    <name>BackupPage</name>
    <message>
        <source>Backup</source>
        <translation>Sigurnosna kopija</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sigurnosne kopije</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>&amp;Kopiraj odmah</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Odaberi…</translation>
    </message>
    <message>
        <source>The till makes one at each End Report and when it is first started on a day. Kept are the newest of each of the last</source>
        <translation>Blagajna radi kopiju kod svakog zaključka dana i kod prvog pokretanja u danu. Čuva se najnovija za svaki od zadnjih</translation>
    </message>
    <message>
        <source>Days of which one is kept</source>
        <translation>Dani za koje se čuva po jedna kopija</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dana</translation>
    </message>
    <message>
        <source>Weeks of which one is kept</source>
        <translation>Tjedni za koje se čuva po jedna kopija</translation>
    </message>
    <message>
        <source> weeks</source>
        <translation> tj.</translation>
    </message>
    <message>
        <source>Months of which one is kept</source>
        <translation>Mjeseci za koje se čuva po jedna kopija</translation>
    </message>
    <message>
        <source> months</source>
        <translation> mj.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spremi</translation>
    </message>
    <message>
        <source>&amp;Restore…</source>
        <translation>&amp;Vrati…</translation>
    </message>
</context>
<context>
    <name>ClickTable</name>
    <message>
        <source>The click table has no tab %1.</source>
        <translation>Tablica tipki nema karticu %1.</translation>
    </message>
    <message>
        <source>The click table has no button %1.</source>
        <translation>Tablica tipki nema tipku %1.</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>The store is not open.</source>
        <translation>Baza podataka nije otvorena.</translation>
    </message>
    <message>
        <source>Waiting for the server of the store, or for another register that is writing there.</source>
        <translation>Čeka se poslužitelj baze podataka ili druga blagajna koja u nju upisuje.</translation>
    </message>
    <message>
        <source>Waiting for another register, which is writing to the store.</source>
        <translation>Čeka se druga blagajna koja upisuje u bazu podataka.</translation>
    </message>
    <message>
        <source>A text does not fit its line.</source>
        <translation>Tekst ne stane u svoj redak.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only %4.</source>
        <extracomment>%4: the words that it may be, &quot;yes or no&quot;</extracomment>
        <translation>velton.ini, redak %1: %2 ne može biti &quot;%3&quot;, nego samo %4.</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between two words that a setting may be, with its blanks</extracomment>
        <translation> ili </translation>
    </message>
    <message>
        <source>velton.ini, line %1: there is no %2 in [%3].</source>
        <translation>velton.ini, redak %1: u [%3] ne postoji %2.</translation>
    </message>
    <message>
        <source>The setting %1 can&apos;t be used. %2</source>
        <translation>Postavka %1 ne može se upotrijebiti. %2</translation>
    </message>
    <message>
        <source>The program that makes it can&apos;t be started.</source>
        <translation>Program koji je izrađuje ne može se pokrenuti.</translation>
    </message>
</context>
<context>
    <name>CustomerEntry</name>
    <message>
        <source>ID:</source>
        <translation>Šifra:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naziv:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresa:</translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation>Ident. broj:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Faks:</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Vlasnik:</translation>
    </message>
    <message>
        <source>Bank accounts:</source>
        <translation>Bankovni računi:</translation>
    </message>
    <message>
        <source>The rate approved rebates or rate margins for suppliers:</source>
        <translation>Odobreni rabat ili marža dobavljača:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Change password!</source>
        <extracomment>the customer&apos;s ID is taken</extracomment>
        <translation>Kupac s tom šifrom već postoji. Promijenite šifru.</translation>
    </message>
</context>
<context>
    <name>DrawerPage</name>
    <message>
        <source>Drawer</source>
        <translation>Ladica</translation>
    </message>
    <message>
        <source>Count of the drawer</source>
        <translation>Brojanje ladice</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Brojanje</translation>
    </message>
    <message>
        <source>&amp;Keep the count</source>
        <translation>&amp;Spremi brojanje</translation>
    </message>
    <message>
        <source>&amp;Empty</source>
        <translation>Is&amp;prazni</translation>
    </message>
    <message>
        <source>Begins anew</source>
        <translation>Počinje ispočetka</translation>
    </message>
    <message>
        <source>&amp;Notes and coins</source>
        <translation>&amp;Novčanice i kovanice</translation>
    </message>
    <message>
        <source>Which there are of this currency</source>
        <translation>Koje postoje u ovoj valuti</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Razlika</translation>
    </message>
    <message>
        <source>P&amp;ut in:</source>
        <translation>Pol&amp;og:</translation>
    </message>
    <message>
        <source>Taken &amp;out:</source>
        <translation>Isp&amp;lata:</translation>
    </message>
    <message>
        <source>Should be there:</source>
        <translation>Treba biti:</translation>
    </message>
    <message>
        <source>Counted:</source>
        <translation>Izbrojano:</translation>
    </message>
    <message>
        <source>&amp;Remark:</source>
        <translation>Napo&amp;mena:</translation>
    </message>
    <message>
        <source>Earlier counts</source>
        <translation>Ranija brojanja</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Ispis</translation>
    </message>
    <message>
        <source>Prints the chosen count</source>
        <translation>Ispisuje odabrano brojanje</translation>
    </message>
    <message>
        <source>Per&amp;iod:</source>
        <translation>&amp;Razdoblje:</translation>
    </message>
    <message>
        <source>Whose sales the drawer is counted for</source>
        <translation>Razdoblje čija se prodaja uspoređuje s ladicom</translation>
    </message>
    <message>
        <source>Sold in cash:</source>
        <translation>Prodano za gotovinu:</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>Fill in all required fields.</source>
        <translation>Ispunite sva obavezna polja.</translation>
    </message>
</context>
<context>
    <name>FiscalEntry</name>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
</context>
<context>
    <name>GoodsChoice</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Traži:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupa:</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>&amp;Porez:</translation>
    </message>
    <message>
        <source>Goods found</source>
        <translation>Pronađena roba</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>Add all sho&amp;wn</source>
        <translation>Dodaj s&amp;ve prikazano</translation>
    </message>
    <message>
        <source>Goods chosen</source>
        <translation>Odabrana roba</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopije:</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Ukloni</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Ukloni sv&amp;e</translation>
    </message>
</context>
<context>
    <name>GoodsPage</name>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>Choose a &amp;file…</source>
        <translation>Odaberi &amp;datoteku…</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Nije odabrana nijedna datoteka.</translation>
    </message>
    <message>
        <source>Export g&amp;oods…</source>
        <translation>&amp;Izvezi robu…</translation>
    </message>
    <message>
        <source>Export cus&amp;tomers…</source>
        <translation>Izvezi &amp;kupce…</translation>
    </message>
    <message>
        <source>What the file would do</source>
        <translation>Što bi datoteka promijenila</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Zapiši</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>&amp;Poništi…</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>P&amp;rikaži:</translation>
    </message>
    <message>
        <source>How it is rea&amp;d</source>
        <translation>Kako se či&amp;ta</translation>
    </message>
</context>
<context>
    <name>HeadingStep</name>
    <message>
        <source>These lines head each receipt.</source>
        <translation>Ovi reci stoje na vrhu svakog računa.</translation>
    </message>
    <message>
        <source>Na&amp;me of the shop:</source>
        <translation>&amp;Naziv trgovine:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresa:</translation>
    </message>
    <message>
        <source>&amp;Identification:</source>
        <translation>&amp;Identifikacijski broj:</translation>
    </message>
    <message>
        <source>&amp;Telephone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Valuta:</translation>
    </message>
    <message>
        <source>Sho&amp;wn as layout:</source>
        <translation>&amp;Pregled u obliku:</translation>
    </message>
    <message>
        <source>How a receipt looks</source>
        <translation>Kako izgleda račun</translation>
    </message>
</context>
<context>
    <name>HealthPage</name>
    <message>
        <source>Health</source>
        <translation>Stanje podataka</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Što je pronađeno</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Pregledaj ponovno</translation>
    </message>
    <message>
        <source>Report for whoever &amp;helps…</source>
        <translation>Iz&amp;vještaj za podršku…</translation>
    </message>
</context>
<context>
    <name>ImportChoices</name>
    <message>
        <source>How the file is written</source>
        <translation>Kako je datoteka zapisana</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>Kodiranj&amp;e:</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>R&amp;azdjelnik:</translation>
    </message>
    <message>
        <source>Dec&amp;imals:</source>
        <translation>Deci&amp;male:</translation>
    </message>
    <message>
        <source>Which column is what</source>
        <translation>Koji je stupac što</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>Ši&amp;fra:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>P&amp;rice:</source>
        <translation>&amp;Cijena:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>Ko&amp;ličina:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;JM:</translation>
    </message>
    <message>
        <source>Ta&amp;x:</source>
        <translation>P&amp;orez:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupa:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Slika:</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>Što treba učiniti</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Reci:</translation>
    </message>
    <message>
        <source>Leave prices as they are</source>
        <translation>Ne mijenjaj cijene</translation>
    </message>
    <message>
        <source>Leave quantities as they are</source>
        <translation>Ne mijenjaj količine</translation>
    </message>
    <message>
        <source>New goods whose row says none</source>
        <translation>Nova roba kojoj u retku nije navedeno</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>JM:</translation>
    </message>
    <message>
        <source>Tax:</source>
        <translation>Porez:</translation>
    </message>
</context>
<context>
    <name>InvoicesView</name>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Račun</translation>
    </message>
    <message>
        <source>Show &amp;receipt</source>
        <translation>Prikaži &amp;račun</translation>
    </message>
    <message>
        <source>&amp;Back to the list</source>
        <translation>&amp;Natrag na popis</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zatvori</translation>
    </message>
</context>
<context>
    <name>LabelChoice</name>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;Arak:</translation>
    </message>
    <message>
        <source>Start at la&amp;bel:</source>
        <translation>Počni &amp;od etikete:</translation>
    </message>
    <message>
        <source>Printer&apos;s d&amp;ots:</source>
        <translation>Točke p&amp;isača:</translation>
    </message>
    <message>
        <source>Width, mm:</source>
        <translation>Širina, mm:</translation>
    </message>
    <message>
        <source>Height, mm:</source>
        <translation>Visina, mm:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>U širinu:</translation>
    </message>
    <message>
        <source>One below other:</source>
        <translation>U visinu:</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>Lijevi rub:</translation>
    </message>
    <message>
        <source>From the top:</source>
        <translation>Gornji rub:</translation>
    </message>
    <message>
        <source>Gap beside:</source>
        <translation>Razmak desno:</translation>
    </message>
    <message>
        <source>Gap below:</source>
        <translation>Razmak ispod:</translation>
    </message>
    <message>
        <source>A sheet that is used already: press its first free label in the picture.</source>
        <translation>Ako je arak već načet: pritisnite na slici njegovu prvu slobodnu etiketu.</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Page before</source>
        <translation>Prethodna stranica</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Sljedeća stranica</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>Kako će biti ispisano</translation>
    </message>
</context>
<context>
    <name>LabelsPage</name>
    <message>
        <source>Labels</source>
        <translation>Etikete</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Dijelovi</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>I&amp;spis etiketa</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF...</source>
        <translation>Spre&amp;mi kao PDF...</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Jezik</translation>
    </message>
    <message>
        <source>The screens of the till and what it prints can each have a language of their own. Names of goods, and what stands at the head of the receipt, stay as you wrote them.</source>
        <translation>Zasloni blagajne i ono što ona ispisuje mogu imati svaki svoj jezik. Nazivi robe i zaglavlje računa ostaju kako ste ih upisali.</translation>
    </message>
    <message>
        <source>On the &amp;screens</source>
        <translation>Na &amp;zaslonima</translation>
    </message>
    <message>
        <source>On &amp;paper: receipts, reports and their previews</source>
        <translation>Na &amp;papiru: računi, izvještaji i njihovi pregledi</translation>
    </message>
    <message>
        <source>A receipt in the language of paper</source>
        <translation>Račun na jeziku papira</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Spremi</translation>
    </message>
</context>
<context>
    <name>ListReport</name>
    <message>
        <source>D A T E</source>
        <translation>D A T U M</translation>
    </message>
    <message>
        <source>TIME PERIOD</source>
        <translation>RAZDOBLJE</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
    <message>
        <source>Show period</source>
        <translation>Prikaži razdoblje</translation>
    </message>
    <message>
        <source>Total by</source>
        <translation>Ukupno po</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Ispis</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Spremi</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Izvještaj (*.txt)</translation>
    </message>
    <message>
        <source>List does not contain any item.Change date.</source>
        <translation>Popis je prazan. Odaberite druge dane.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Spremi kao</translation>
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
        <translation>Ime i lozinka korisnika razine 3:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Korisnik:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Lozinka:</translation>
    </message>
    <message>
        <source>&amp;Log in</source>
        <translation>&amp;Prijava</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zatvori</translation>
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
        <translation>Stranice</translation>
    </message>
</context>
<context>
    <name>MasterdataWords</name>
    <message>
        <source>The row was deleted after this list was read.</source>
        <translation>Redak je obrisan nakon što je ovaj popis pročitan.</translation>
    </message>
</context>
<context>
    <name>NotesAndCoins</name>
    <message>
        <source>Notes and coins</source>
        <translation>Novčanice i kovanice</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spremi</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zatvori</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Pregled prometa</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>Da&amp;nas</translation>
    </message>
    <message>
        <source>&amp;7 days</source>
        <translation>&amp;7 dana</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Zadnjih sedam dana</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mjesec</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Ovaj mjesec</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Godina</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Ova godina</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Sve</translation>
    </message>
    <message>
        <source>All days of the shop</source>
        <translation>Svi dani trgovine</translation>
    </message>
    <message>
        <source>&amp;Own days</source>
        <translation>Po izbo&amp;ru</translation>
    </message>
    <message>
        <source>From one day to another</source>
        <translation>Od jednog dana do drugog</translation>
    </message>
    <message>
        <source>As ta&amp;bles</source>
        <translation>Kao &amp;tablice</translation>
    </message>
    <message>
        <source>The figures of the charts as tables</source>
        <translation>Brojke iz grafikona kao tablice</translation>
    </message>
    <message>
        <source>P&amp;DF</source>
        <translation>PD&amp;F</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Spremi kao PDF</translation>
    </message>
    <message>
        <source>&amp;CSV</source>
        <translation>&amp;CSV</translation>
    </message>
    <message>
        <source>Save the figures for a spreadsheet</source>
        <translation>Sprema brojke za tablični kalkulator</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Ispis</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>O&amp;d:</translation>
    </message>
    <message>
        <source>&amp;Until:</source>
        <translation>D&amp;o:</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Prikaži</translation>
    </message>
    <message>
        <source>Takings</source>
        <translation>Promet</translation>
    </message>
    <message>
        <source>By hour and weekday</source>
        <translation>Po satu i danu u tjednu</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>By ta&amp;kings</source>
        <translation>Po prom&amp;etu</translation>
    </message>
    <message>
        <source>By pi&amp;eces</source>
        <translation>Po &amp;komadima</translation>
    </message>
    <message>
        <source>Sold best</source>
        <translation>Najprodavanije</translation>
    </message>
    <message>
        <source>In stock and sold least</source>
        <translation>Na zalihi, a najmanje prodavano</translation>
    </message>
    <message>
        <source>Runs out at the present pace</source>
        <translation>Nestaje uz sadašnju prodaju</translation>
    </message>
    <message>
        <source>Groups of the touch table</source>
        <translation>Grupe tablice tipki</translation>
    </message>
    <message>
        <source>Cashiers</source>
        <translation>Blagajnici</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>How far it has read</source>
        <translation>Dokle je pročitano</translation>
    </message>
    <message>
        <source>Esc - Stop</source>
        <translation>Esc - Prekini</translation>
    </message>
    <message>
        <source>Shows what was read until now</source>
        <translation>Prikazuje ono što je dosad pročitano</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>INVOICE No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>RAČUN br.:%1</translation>
    </message>
    <message>
        <source>   Price Quantit TaxRat     TAX   Amount</source>
        <extracomment>40 columns, all to the right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>  Cijena    Kol.  Stopa   Porez    Iznos</translation>
    </message>
    <message>
        <source>ProductID  Product description          </source>
        <extracomment>40 columns: code and description, one blank between them</extracomment>
        <translation>Šifra  Naziv artikla                    </translation>
    </message>
    <message>
        <source>Product              Price Quant  Amount</source>
        <extracomment>40 columns: product 18, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Artikl              Cijena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>No Product description                  </source>
        <extracomment>40 columns: number and description, one blank between them</extracomment>
        <translation>Rb Naziv artikla                        </translation>
    </message>
    <message>
        <source>No Product           Price Quant  Amount</source>
        <extracomment>40 columns: number 3, product 15, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Rb Artikl           Cijena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>No Product name                    Unit Quantit Price    Amount     Tax   Amount</source>
        <extracomment>80 columns: number and name 35, and to the right unit 4, quantity 8, price 8, amount 8, tax 8, amount 9</extracomment>
        <translation>Rb Naziv artikla                     JM    Kol.  Cijena   Iznos   Porez    Iznos</translation>
    </message>
    <message>
        <source>                                                 outTax   outTax         withTax</source>
        <extracomment>80 columns, below the line before: price and first amount &quot;without tax&quot;, last amount &quot;with tax&quot;</extracomment>
        <translation>                                                bez PDV bez PDV            s PDV</translation>
    </message>
    <message>
        <source>No Product description          </source>
        <extracomment>32 columns: number and description, one blank between them</extracomment>
        <translation>Rb Naziv artikla                </translation>
    </message>
    <message>
        <source>     Price  Quantity      Amount</source>
        <extracomment>32 columns, all to the right: price 9, quantity 10, amount 13</extracomment>
        <translation>   Cijena  Količina        Iznos</translation>
    </message>
    <message>
        <source>Product      Price Quant  Amount</source>
        <extracomment>32 columns: product 10, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Artikl      Cijena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>Date of issue:%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Datum izdavanja:%1</translation>
    </message>
    <message>
        <source>Delivery date :%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Datum isporuke :%1</translation>
    </message>
    <message>
        <source>Custumer:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s name</extracomment>
        <translation>Kupac:%1</translation>
    </message>
    <message>
        <source>ID:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s identification number</extracomment>
        <translation>Id. broj:%1</translation>
    </message>
    <message>
        <source>Date:%1</source>
        <extracomment>at most 12 columns without %1, date and time</extracomment>
        <translation>Datum:%1</translation>
    </message>
    <message>
        <source>Subtotal......%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>Osnovica......%1: </translation>
    </message>
    <message>
        <source>Tax...........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>Porez.........%1: </translation>
    </message>
    <message>
        <source>TOTAL.........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>UKUPNO........%1: </translation>
    </message>
    <message>
        <source>Taxes          </source>
        <extracomment>15 columns</extracomment>
        <translation>Porezi         </translation>
    </message>
    <message>
        <source>Rate     Amount</source>
        <extracomment>15 columns: rate 6, and to the right amount 9</extracomment>
        <translation>Stopa     Iznos</translation>
    </message>
    <message>
        <source> TOTAL:%1</source>
        <extracomment>at most 7 columns without %1, the sum of the taxes</extracomment>
        <translation> UKUP.:%1</translation>
    </message>
    <message>
        <source>Cashier:%1</source>
        <extracomment>at most 12 columns without %1, the cashier&apos;s name</extracomment>
        <translation>Blagajnik:%1</translation>
    </message>
    <message>
        <source>Invoice No%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Račun br.%1</translation>
    </message>
    <message>
        <source>Invoice No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Račun br.:%1</translation>
    </message>
    <message>
        <source>Milk 1 l</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Mlijeko 1 l</translation>
    </message>
    <message>
        <source>pcs</source>
        <extracomment>at most 3 columns, its unit: pieces</extracomment>
        <translation>kom</translation>
    </message>
    <message>
        <source>Apples, red</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Jabuke, crvene</translation>
    </message>
    <message>
        <source>Business hours of cash register</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Radno vrijeme blagajne</translation>
    </message>
    <message>
        <source>CR  DateFrom  DateTo  TimeFrom    TimeTo</source>
        <extracomment>40 columns: register 4, the days of login and log-off 8 each, their times 10 and 9</extracomment>
        <translation>Bl. Od dana Do dana    Od sata  Do sata </translation>
    </message>
    <message>
        <source>to </source>
        <extracomment>at most 3 columns, between the numbers of a day&apos;s first and last invoice</extracomment>
        <translation>do </translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>INVOICES REPORT</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>KNJIGA IZLAZNIH RAČUNA</translation>
    </message>
    <message>
        <source>Invoices report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Računi po danima za razdoblje</translation>
    </message>
    <message>
        <source> DATE      InvoiceFrom InvoiceTo        </source>
        <extracomment>40 columns: day 11, first invoice 12, last invoice 17</extracomment>
        <translation> DATUM     Prvi račun  Zadnji račun     </translation>
    </message>
    <message>
        <source>Total wout Tax       TAX   Total withTAX</source>
        <extracomment>40 columns, to the right: amount without tax 14, tax 10, amount with tax 16</extracomment>
        <translation>  Bez poreza       Porez       S porezom</translation>
    </message>
    <message>
        <source>TOTAL  :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>UKUPNO :  </translation>
    </message>
    <message>
        <source>                         Product list - List of goods           date:</source>
        <extracomment>at most 80 columns</extracomment>
        <translation>                         Popis robe                             datum:</translation>
    </message>
    <message>
        <source>No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount</source>
        <extracomment>78 columns: number 5, name 30, code 14, unit 3, price 7, quantity 8, amount 11</extracomment>
        <translation>Rb   Naziv artikla                 Šifra-barkod  JM  CIJENA    Kol.      Iznos</translation>
    </message>
    <message>
        <source>TOTAL with Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>UKUPNO s porezom: %1</translation>
    </message>
    <message>
        <source>TAX: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>POREZ: %1</translation>
    </message>
    <message>
        <source>TOTAL without Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>UKUPNO bez poreza: %1</translation>
    </message>
    <message>
        <source>Invoices </source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Računi </translation>
    </message>
    <message>
        <source>InNo Cashie    Date       Time    Amount</source>
        <extracomment>40 columns: number 5, cashier 8, date 9, time 9, amount 9</extracomment>
        <translation>Br.  Blagajn.    Datum  Vrijeme    Iznos</translation>
    </message>
    <message>
        <source>TOTAL: </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>UKUPNO: </translation>
    </message>
    <message>
        <source>Sale by Cashier</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Prodaja po blagajnicima</translation>
    </message>
    <message>
        <source>CId Cashier           Date         Total</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, date 9, total 11</extracomment>
        <translation>Šif Blagajnik           Datum     Ukupno</translation>
    </message>
    <message>
        <source>TOTAL : </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>UKUPNO : </translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Prodaja po artiklima</translation>
    </message>
    <message>
        <source>Rb Product Name          Unit Qua Amount</source>
        <extracomment>40 columns: code 3, name 24, unit 3, quantity 3, amount 7</extracomment>
        <translation>Id Naziv artikla          JM  Kol  Iznos</translation>
    </message>
    <message>
        <source>Taxes report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Izvještaj o porezu za razdoblje</translation>
    </message>
    <message>
        <source>Id and type TAX       Rate[%]    Date   </source>
        <extracomment>40 columns: ID and name of the tax 22, rate 7, date 11</extracomment>
        <translation>Id i vrsta poreza     Stopa %   Datum   </translation>
    </message>
    <message>
        <source>             Base          TAX     Total</source>
        <extracomment>40 columns, to the right: base 20, tax 10, total 10</extracomment>
        <translation>            Osnovica     Porez    Ukupno</translation>
    </message>
    <message>
        <source>TOTAL :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>UKUPNO :  </translation>
    </message>
    <message>
        <source>Quantity of items in stock</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Zaliha robe</translation>
    </message>
    <message>
        <source>No Product Name      Unit Quanti  Amount</source>
        <extracomment>40 columns: code 3, name 20, unit 3, quantity 6, amount 8</extracomment>
        <translation>Id Naziv artikla        JM  Kol.   Iznos</translation>
    </message>
    <message>
        <source>Tax report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Izvještaj o porezu za razdoblje</translation>
    </message>
    <message>
        <source>Date           Amount      TAX     Total</source>
        <extracomment>40 columns: date 10, amount without tax 10, tax 10, total 10</extracomment>
        <translation>Datum       Osnovica     Porez    Ukupno</translation>
    </message>
    <message>
        <source>Tax report by invoices for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Porez po računima za razdoblje</translation>
    </message>
    <message>
        <source>InvNo    Date          Time             </source>
        <extracomment>40 columns: number 8, date 12, time 20</extracomment>
        <translation>Račun   Datum       Vrijeme             </translation>
    </message>
    <message>
        <source>               Amount      TAX     Total</source>
        <extracomment>40 columns, to the right: amount without tax 20, tax 10, total 10</extracomment>
        <translation>            Osnovica     Porez    Ukupno</translation>
    </message>
    <message>
        <source>End Report No: %1</source>
        <extracomment>at most 34 columns without %1, the number</extracomment>
        <translation>Zaključak dana br.: %1</translation>
    </message>
    <message>
        <source>Currently</source>
        <extracomment>at most 39 columns</extracomment>
        <translation>Trenutno stanje</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>BLAGAJNE</translation>
    </message>
    <message>
        <source>CRNo   Date   TimeFrom            Amount</source>
        <extracomment>40 columns: register 6, date 9, the period&apos;s begin 9, its end 8, amount 7</extracomment>
        <translation>Bl.br Datum    Od sata  Do sata   Iznos </translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>BLAGAJNICI</translation>
    </message>
    <message>
        <source>CId Cashier                       Amount</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, amount 20</extracomment>
        <translation>Šif Blagajnik                      Iznos</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>ARTIKLI</translation>
    </message>
    <message>
        <source>Id  ProductName          Unit Qua Amount</source>
        <extracomment>40 columns: code 4, name 23, unit 3, quantity 3, amount 7</extracomment>
        <translation>Šif Naziv artikla         JM  Kol  Iznos</translation>
    </message>
    <message>
        <source>End Reports</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Zaključci dana</translation>
    </message>
    <message>
        <source>CR End  Date    TimeFr   TimeTo   Amount</source>
        <extracomment>40 columns: register 3, period 4, date 9, its begin 9, its end 8, amount 7</extracomment>
        <translation>Bl Zak Datum    Od sata  Do sata   Iznos</translation>
    </message>
    <message>
        <source>EndNo Date and time of end        Amount</source>
        <extracomment>40 columns: number 6, date 9, time 9, amount 16</extracomment>
        <translation>Broj  Datum i vrijeme zaključka    Iznos</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Printed:%1 %2</source>
        <extracomment>at most 15 columns without %1 and %2, date and time</extracomment>
        <translation>Ispisano:%1 %2</translation>
    </message>
</context>
<context>
    <name>PasswordEntry</name>
    <message>
        <source>Different passwords!</source>
        <translation>Lozinke se razlikuju!</translation>
    </message>
    <message>
        <source>Different passwords</source>
        <translation>Lozinke se razlikuju</translation>
    </message>
</context>
<context>
    <name>PasswordStep</name>
    <message>
        <source>&amp;User:</source>
        <translation>Ko&amp;risnik:</translation>
    </message>
    <message>
        <source>New &amp;password:</source>
        <translation>No&amp;va lozinka:</translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation>&amp;Ponovite lozinku:</translation>
    </message>
    <message>
        <source>Show the pass&amp;words</source>
        <translation>Prikaži &amp;lozinke</translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Choose a day in the calendar, or two days and &quot;%1&quot;.</source>
        <translation>Odaberite dan u kalendaru ili dva dana i &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>Za te dane nema ničega.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
</context>
<context>
    <name>PortPanel</name>
    <message>
        <source>A device, tcp: with address and port, or file: with a name; empty is the usual device</source>
        <translation>Uređaj, tcp: s adresom i portom ili file: s nazivom; prazno znači uobičajeni uređaj</translation>
    </message>
    <message>
        <source>Ask it for paper, cover and errors before it prints</source>
        <translation>Prije ispisa provjeri papir, poklopac i pogreške</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Probna stranica</translation>
    </message>
    <message>
        <source>Open the drawer</source>
        <translation>Otvori ladicu</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Odreži</translation>
    </message>
    <message>
        <source>How is it?</source>
        <translation>Provjeri stanje</translation>
    </message>
</context>
<context>
    <name>PriceListChoice</name>
    <message>
        <source>All goods i&amp;n the shop</source>
        <translation>Sva &amp;roba u trgovini</translation>
    </message>
    <message>
        <source>The goods chosen onl&amp;y</source>
        <translation>Samo odabrana ro&amp;ba</translation>
    </message>
    <message>
        <source>The list follows the groups of the touch table; what has no button comes last.</source>
        <translation>Cjenik slijedi grupe tablice tipki; roba bez tipke dolazi na kraju.</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Page before</source>
        <translation>Prethodna stranica</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Sljedeća stranica</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>Kako će biti ispisano</translation>
    </message>
</context>
<context>
    <name>PricesPage</name>
    <message>
        <source>Prices</source>
        <translation>Cijene</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Što bi se promijenilo</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>Š&amp;to:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>Po&amp;stotak:</translation>
    </message>
    <message>
        <source>&amp;Ending:</source>
        <translation>Zao&amp;kruži:</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>P&amp;regled</translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation>&amp;Zapiši</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>Pon&amp;išti…</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>&amp;Porez:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupa:</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <source>Printers</source>
        <translation>Pisači</translation>
    </message>
    <message>
        <source>What is tried here goes to the printer as it is chosen here; the till takes it once it is saved, from the next receipt on.</source>
        <translation>Proba ide na pisač kako je ovdje odabran; blagajna ga preuzima tek kad spremite, od sljedećeg računa.</translation>
    </message>
    <message>
        <source>&amp;Receipts go to:</source>
        <translation>&amp;Računi idu na:</translation>
    </message>
    <message>
        <source>Re&amp;ports go to:</source>
        <translation>&amp;Izvještaji idu na:</translation>
    </message>
    <message>
        <source>&amp;Commands:</source>
        <translation>&amp;Naredbe:</translation>
    </message>
    <message>
        <source>C&amp;ut the paper behind a receipt</source>
        <translation>&amp;Odreži papir iza računa</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spremi</translation>
    </message>
    <message>
        <source>&amp;Look for printers again</source>
        <translation>Ponovno &amp;traži pisače</translation>
    </message>
    <message>
        <source>&amp;Test the page printer</source>
        <translation>Isprobaj pisač s&amp;ustava</translation>
    </message>
</context>
<context>
    <name>ProductEntry</name>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Šifra - barkod</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>JM:</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Stopa poreza</translation>
    </message>
    <message>
        <source>Tax percent</source>
        <translation>Postotak poreza</translation>
    </message>
    <message>
        <source>Thumbnail (icon)</source>
        <translation>Sličica (ikona)</translation>
    </message>
    <message>
        <source>Insert icon</source>
        <translation>Umetni ikonu</translation>
    </message>
    <message>
        <source>Izaberi ikonu za artikl</source>
        <translation>Odaberi ikonu za artikl</translation>
    </message>
    <message>
        <source>Delete icon</source>
        <translation>Obriši ikonu</translation>
    </message>
    <message>
        <source>Obrisi ikonu za artikl</source>
        <translation>Obriši ikonu artikla</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Cijena bez poreza</translation>
    </message>
    <message>
        <source>Second price with Tax</source>
        <translation>Druga cijena s porezom</translation>
    </message>
    <message>
        <source>Second price without Tax</source>
        <translation>Druga cijena bez poreza</translation>
    </message>
    <message>
        <source>Bitmaps</source>
        <translation>Bitmape</translation>
    </message>
    <message>
        <source>GIF Images</source>
        <translation>Slike GIF</translation>
    </message>
    <message>
        <source>JPEG Images</source>
        <translation>Slike JPEG</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Datoteka nije pronađena</translation>
    </message>
    <message>
        <source>Price must be numeric.</source>
        <translation>Cijena mora biti broj.</translation>
    </message>
    <message>
        <source>Product with this code-barcode already exists.Change ProductID!</source>
        <translation>Artikl s tom šifrom već postoji. Promijenite šifru.</translation>
    </message>
    <message>
        <source>The file %1 holds no picture that can be shown.</source>
        <translation>U datoteci %1 nema slike koja se može prikazati.</translation>
    </message>
</context>
<context>
    <name>ReceiptWords</name>
    <message>
        <source>X report is done.</source>
        <translation>X izvještaj je napravljen.</translation>
    </message>
    <message>
        <source>Z report - daily report is done.</source>
        <translation>Z izvještaj (dnevni) je napravljen.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Kol.</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>Tax %</source>
        <translation>Porez %</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Šif. poreza</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Stopa</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has no paper.</source>
        <translation>Pisač na LPT%1 nema papira.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has its cover open.</source>
        <translation>Pisaču na LPT%1 otvoren je poklopac.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 is offline or has an error.</source>
        <translation>Pisač na LPT%1 nije spreman ili javlja pogrešku.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 does not answer.</source>
        <translation>Pisač na LPT%1 ne odgovara.</translation>
    </message>
    <message>
        <source>Nothing is printed yet.

Yes: look at it again. No: print all the same.</source>
        <translation>Još ništa nije ispisano.

Da: provjeri ponovno. Ne: svejedno ispiši.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 se ne može pročitati: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>%1 se ne može spremiti: %2.</translation>
    </message>
    <message>
        <source>Cannot delete %1: %2.</source>
        <translation>%1 se ne može obrisati: %2.</translation>
    </message>
</context>
<context>
    <name>RegisterStep</name>
    <message>
        <source>Scanner &amp;first</source>
        <translation>Prvo sk&amp;ener</translation>
    </message>
    <message>
        <source>What is sold by the piece goes on the invoice as soon as it is scanned. Without it the cursor waits at the quantity.</source>
        <translation>Što se prodaje na komad dolazi na račun čim se očita. Bez toga pokazivač čeka na količini.</translation>
    </message>
    <message>
        <source>&amp;Customer line</source>
        <translation>&amp;Redak za kupca</translation>
    </message>
    <message>
        <source>The sales screen has two boxes for the customer, and the receipt shows what was written there.</source>
        <translation>Prodajni zaslon ima dva polja za kupca, a račun pokazuje što je u njih upisano.</translation>
    </message>
    <message>
        <source>Next &amp;invoice by itself</source>
        <translation>&amp;Novi račun automatski</translation>
    </message>
    <message>
        <source>When an invoice is posted or given up, the next one opens at once.</source>
        <translation>Kad se račun zaključi ili odbaci, odmah se otvara sljedeći.</translation>
    </message>
    <message>
        <source>&amp;Offer the End Report</source>
        <translation>Ponudi &amp;zaključak dana</translation>
    </message>
    <message>
        <source>Whoever ends the till is asked whether to make the End Report.</source>
        <translation>Tko zatvara blagajnu, bit će upitan želi li napraviti zaključak dana.</translation>
    </message>
    <message>
        <source>&amp;Blank lines after a receipt:</source>
        <translation>&amp;Prazni reci iza računa:</translation>
    </message>
    <message>
        <source>So that the paper tears below the last line</source>
        <translation>Da se papir otkine ispod zadnjeg retka</translation>
    </message>
    <message>
        <source>Fisc&amp;al file:</source>
        <translation>&amp;Fiskalna datoteka:</translation>
    </message>
    <message>
        <source>The till takes these settings when it starts.</source>
        <translation>Blagajna preuzima ove postavke kad se pokrene.</translation>
    </message>
</context>
<context>
    <name>ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation>Izvještaji</translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation>&amp;Izvještaj</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Od</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Do</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Prikaži</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Izvještaj</translation>
    </message>
    <message>
        <source>Sa&amp;ve as table…</source>
        <translation>Spremi kao &amp;tablicu…</translation>
    </message>
</context>
<context>
    <name>RestoreForm</name>
    <message>
        <source>Restore a backup</source>
        <translation>Vraćanje sigurnosne kopije</translation>
    </message>
    <message>
        <source>The days of the shop and of the backup</source>
        <translation>Dani trgovine i sigurnosne kopije</translation>
    </message>
    <message>
        <source>Close the till, and all others of this shop, before you go on.</source>
        <translation>Prije nastavka zatvorite blagajnu i sve ostale blagajne ove trgovine.</translation>
    </message>
    <message>
        <source>&amp;Replace the shop by the backup</source>
        <translation>&amp;Zamijeni podatke kopijom</translation>
    </message>
    <message>
        <source>&amp;Leave it as it is</source>
        <translation>&amp;Ostavi kako jest</translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message>
        <source>End Report is done?</source>
        <translation>Je li zaključak dana napravljen?</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <translation>Zaključak dana %1 %2</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Želite li napraviti zaključak dana?</translation>
    </message>
    <message>
        <source>End Report? YES or NO</source>
        <translation>Zaključak dana? DA ili NE</translation>
    </message>
    <message>
        <source>Close the program?</source>
        <translation>Zatvoriti program?</translation>
    </message>
    <message>
        <source>END OF WORK</source>
        <translation>KRAJ RADA</translation>
    </message>
</context>
<context>
    <name>SearchBlock</name>
    <message>
        <source>F11-All</source>
        <translation>F11-Sve</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Prikaži sve</translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation>Traži u:</translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation>Upišite tekst koji tražite:</translation>
    </message>
    <message>
        <source>any &amp;where in the text</source>
        <translation>&amp;bilo gdje u tekstu</translation>
    </message>
    <message>
        <source>from the &amp;beginning</source>
        <translation>od &amp;početka</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Nothing is found.</source>
        <translation>Ništa nije pronađeno.</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>Priprema</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Koraci</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spremi</translation>
    </message>
    <message>
        <source>&amp;Next step</source>
        <translation>&amp;Dalje</translation>
    </message>
    <message>
        <source>Each step can be left out, and done again at any time. To sell, close this window and start VELTON.</source>
        <translation>Svaki se korak može preskočiti i bilo kada ponoviti. Za prodaju zatvorite ovaj prozor i pokrenite VELTON.</translation>
    </message>
</context>
<context>
    <name>SupportForm</name>
    <message>
        <source>Report for whoever helps</source>
        <translation>Izvještaj za podršku</translation>
    </message>
    <message>
        <source>This is all that the file holds: no names, no sales, no passwords. Read it through, then save it and send it to whoever helps you.</source>
        <translation>Ovo je sve što datoteka sadrži: nema imena, prodaje ni lozinki. Pročitajte je, zatim je spremite i pošaljite onome tko vam pomaže.</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Izvještaj</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Spremi…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zatvori</translation>
    </message>
</context>
<context>
    <name>SupportWords</name>
    <message>
        <source>This is not a text in RTF.</source>
        <translation>Ovo nije tekst u obliku RTF.</translation>
    </message>
    <message>
        <source>The groups of the text are nested too deeply.</source>
        <translation>Grupe u tekstu preduboko su ugniježđene.</translation>
    </message>
    <message>
        <source>The text closes more groups than it opens.</source>
        <translation>Tekst zatvara više grupa nego što ih otvara.</translation>
    </message>
    <message>
        <source>The end of the text is missing.</source>
        <translation>Nedostaje kraj teksta.</translation>
    </message>
</context>
<context>
    <name>TableList</name>
    <message>
        <source>Double click for edit.</source>
        <translation>Dvoklik za uređivanje.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Uredi</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
</context>
<context>
    <name>TaxEntry</name>
    <message>
        <source>TaxID:</source>
        <translation>Šifra poreza:</translation>
    </message>
    <message>
        <source>Type of tax:</source>
        <translation>Vrsta poreza:</translation>
    </message>
    <message>
        <source>Tax rate:</source>
        <translation>Stopa poreza:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Tax rate must be numeric.</source>
        <translation>Stopa poreza mora biti broj.</translation>
    </message>
</context>
<context>
    <name>TaxesStep</name>
    <message>
        <source>Each product belongs to one tax. Products keep the rate that they were saved with.</source>
        <translation>Svaki artikl pripada jednom porezu. Artikli zadržavaju stopu s kojom su spremljeni.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>Ši&amp;fra:</translation>
    </message>
    <message>
        <source>&amp;Rate in percent:</source>
        <translation>S&amp;topa u postocima:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>N&amp;ovi</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Ukloni</translation>
    </message>
</context>
<context>
    <name>TextPreview</name>
    <message>
        <source>F5-Print</source>
        <translation>F5-Ispis</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Spremi</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Spremi kao</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Izvještaj (*.txt)</translation>
    </message>
</context>
<context>
    <name>TillsPage</name>
    <message>
        <source>Several tills</source>
        <translation>Više blagajni</translation>
    </message>
    <message>
        <source>Tills on several machines share one shop when it lies on a PostgreSQL server. Whoever looks after the server tells you what belongs into the boxes.</source>
        <translation>Blagajne na više računala dijele jednu trgovinu kad ona leži na poslužitelju PostgreSQL. Što se upisuje u polja, reći će Vam tko održava poslužitelj.</translation>
    </message>
    <message>
        <source>&amp;Server</source>
        <translation>&amp;Poslužitelj</translation>
    </message>
    <message>
        <source>such as 192.168.1.10</source>
        <translation>npr. 192.168.1.10</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;Baza podataka</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Korisnik</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Lozinka</translation>
    </message>
    <message>
        <source>as kept before</source>
        <translation>kao što je spremljena</translation>
    </message>
    <message>
        <source>&amp;Name of the shop there</source>
        <translation>&amp;Naziv trgovine tamo</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>Š&amp;ifriranje</translation>
    </message>
    <message>
        <source>&amp;Look at the server</source>
        <translation>P&amp;ogledaj poslužitelj</translation>
    </message>
    <message>
        <source>&amp;Move this shop there</source>
        <translation>Pr&amp;eseli trgovinu tamo</translation>
    </message>
    <message>
        <source>&amp;Join the shop there</source>
        <translation>Pri&amp;druži se trgovini tamo</translation>
    </message>
    <message>
        <source>&amp;Back into this folder…</source>
        <translation>&amp;Vrati u ovu mapu…</translation>
    </message>
    <message>
        <source>The pictures on touch buttons lie in the folder of each register. Carry them from one to the other by a stick or a share.</source>
        <translation>Slike na tipkama leže u mapi svake blagajne. Prenesite ih s jedne na drugu USB memorijom ili preko mreže.</translation>
    </message>
    <message>
        <source>&amp;Take pictures from…</source>
        <translation>Preuz&amp;mi slike iz…</translation>
    </message>
    <message>
        <source>&amp;Copy pictures to…</source>
        <translation>Kopira&amp;j slike u…</translation>
    </message>
</context>
<context>
    <name>ToolWords</name>
    <message>
        <source>A copy goes into a file, not to the standard output.</source>
        <translation>Kopija se zapisuje u datoteku, a ne na standardni izlaz.</translation>
    </message>
    <message>
        <source>Both stores are sound.</source>
        <translation>Obje su baze podataka ispravne.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no day; write 2026-11-30.</source>
        <translation>&apos;%1&apos; nije datum; pišite ga ovako: 2026-11-30.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; divides nothing that could be read.</source>
        <translation>S razdjelnikom &apos;%1&apos; ništa se ne može pročitati.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form COLUMN=FIELD.</source>
        <translation>&apos;%1&apos; nema oblik COLUMN=FIELD.</translation>
    </message>
    <message>
        <source>%1, separator %2, decimals behind %3; %4</source>
        <translation>%1, razdjelnik %2, decimale iza znaka %3; %4</translation>
    </message>
    <message>
        <source>an unknown sign</source>
        <translation>nepoznat znak</translation>
    </message>
    <message>
        <source>1 row is refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>1 redak je odbijen, pa ništa nije zapisano; uz --skip-refused zapisuju se ostali.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows are refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>
            <numerusform>%n redak je odbijen, pa ništa nije zapisano; uz --skip-refused zapisuju se ostali.</numerusform>
            <numerusform>%n retka su odbijena, pa ništa nije zapisano; uz --skip-refused zapisuju se ostali.</numerusform>
            <numerusform>%n redaka je odbijeno, pa ništa nije zapisano; uz --skip-refused zapisuju se ostali.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Zapisano: novo %1, promijenjeno %2.</translation>
    </message>
    <message>
        <source>Sold meanwhile, and taken off: %1</source>
        <translation>U međuvremenu prodano i skinuto: %1</translation>
    </message>
    <message>
        <source>%1 is taken back: %2 restored, %3 removed, %4 notes.</source>
        <translation>%1 je poništeno: vraćeno %2, uklonjeno %3, napomena %4.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE.</source>
        <translation>&apos;%1&apos; nema oblik FIELD=VALUE.</translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation>Polje &apos;%1&apos; navedeno je dvaput.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>redak %1</translation>
    </message>
    <message>
        <source>%1 (velton-store --help tells more)</source>
        <translation>%1 (više o tome: velton-store --help)</translation>
    </message>
    <message>
        <source>Moved %1 rows of %2 tables and compared %3 days of sales.</source>
        <translation>Premješteno redaka: %1, iz tablica: %2; uspoređeno dana prodaje: %3.</translation>
    </message>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>Stara baza podataka sačuvana je kao %1.</translation>
    </message>
    <message>
        <source>Cannot write the output: %1</source>
        <translation>Izlaz se ne može zapisati: %1</translation>
    </message>
    <message>
        <source>No folder for backups is named here, nor by velton.ini in its section [backup].</source>
        <translation>Mapa za sigurnosne kopije nije navedena ni ovdje ni u datoteci velton.ini, u odjeljku [backup].</translation>
    </message>
    <message>
        <source>Made %1: %2 invoices, %3 bytes.</source>
        <translation>Napravljeno %1: računa %2, bajtova %3.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there.</source>
        <translation>Mape za sigurnosne kopije, %1, nema.</translation>
    </message>
    <message>
        <source>Restored %1 invoices of %2 days.</source>
        <translation>Vraćeno: računa %1, dana %2.</translation>
    </message>
    <message>
        <source>What was replaced is kept in %1.</source>
        <translation>Ono što je zamijenjeno čuva se u %1.</translation>
    </message>
    <message>
        <source>%1: %2 invoices, %3 become %4, %5</source>
        <translation>%1: računa %2, promet %3; poslije računa %4, promet %5</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>Stara baza podataka nije se mogla skloniti, a nijedna blagajna više ne smije raditi na njoj. %1</translation>
    </message>
</context>
<context>
    <name>TouchButton</name>
    <message>
        <source>Free</source>
        <extracomment>a button without a product</extracomment>
        <translation>Slobodno</translation>
    </message>
</context>
<context>
    <name>UnitsStep</name>
    <message>
        <source>The till counts one piece of pcs at each scan, and asks for the quantity of every other unit. A short name can be changed until a product has it.</source>
        <translation>Roba s jedinicom pcs prodaje se po jedan komad pri svakom očitanju, a za svaku drugu jedinicu blagajna pita za količinu. Kratica se može mijenjati dok je nema nijedan artikl.</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Jedinice mjere</translation>
    </message>
    <message>
        <source>S&amp;hort name:</source>
        <translation>Kr&amp;atica:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>N&amp;ovi</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Ukloni</translation>
    </message>
</context>
<context>
    <name>UserEntry</name>
    <message>
        <source>UserID:</source>
        <translation>Šif. korisnika:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Korisničko ime:</translation>
    </message>
    <message>
        <source>Access Level:</source>
        <translation>Razina pristupa:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lozinka:</translation>
    </message>
    <message>
        <source>Confirm Pass:</source>
        <translation>Ponovite lozinku:</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Prikaži lozinku</translation>
    </message>
    <message>
        <source>Workplace:</source>
        <translation>Radno mjesto:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>User with this UserID or a UserName already exists.Change Username!</source>
        <translation>Korisnik s tom šifrom ili imenom već postoji. Promijenite korisničko ime.</translation>
    </message>
</context>
<context>
    <name>UsersStep</name>
    <message>
        <source>Level 1 sells, level 2 also makes the End Report, level 3 does everything.</source>
        <translation>Razina 1 prodaje, razina 2 radi i zaključak dana, razina 3 smije sve.</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Korisnici</translation>
    </message>
    <message>
        <source>N&amp;umber:</source>
        <translation>&amp;Broj:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Ime:</translation>
    </message>
    <message>
        <source>&amp;Level:</source>
        <translation>&amp;Razina:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Lozinka:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>N&amp;ovi</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Ukloni</translation>
    </message>
</context>
<context>
    <name>forms</name>
    <message>
        <source>The screen that shows %1 is closed.</source>
        <translation>Zaslon koji prikazuje %1 je zatvoren.</translation>
    </message>
    <message>
        <source>%1 has no control %2.</source>
        <translation>%1 nema kontrolu %2.</translation>
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
        <translation>Na popisu nije odabran nijedan redak.</translation>
    </message>
</context>
<context>
    <name>forms::LongWork</name>
    <message>
        <source>This takes a while ...</source>
        <translation>Ovo će potrajati ...</translation>
    </message>
    <message>
        <source>ESC-Leave</source>
        <translation>ESC-Prekini</translation>
    </message>
</context>
<context>
    <name>forms::ScanGuard</name>
    <message>
        <source>Not taken: %1</source>
        <translation>Nije preuzeto: %1</translation>
    </message>
</context>
<context>
    <name>forms::TextView</name>
    <message>
        <source>Cannot write a file: %1</source>
        <translation>Datoteka se ne može zapisati: %1</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About program</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>The till of one small shop: invoices, stock, receipts and reports.</source>
        <translation>Blagajna za jednu malu trgovinu: računi, zaliha, ispis i izvještaji.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencije</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Inačica %1</translation>
    </message>
</context>
<context>
    <name>frmActivity</name>
    <message>
        <source>Business hours of cash register</source>
        <translation>Radno vrijeme blagajne</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Bl.</translation>
    </message>
    <message>
        <source>DateFrom</source>
        <translation>Od dana</translation>
    </message>
    <message>
        <source>DateTo</source>
        <translation>Do dana</translation>
    </message>
    <message>
        <source>Time login</source>
        <translation>Prijava</translation>
    </message>
    <message>
        <source>Time logoff</source>
        <translation>Odjava</translation>
    </message>
    <message>
        <source>List haven&apos;t any item.Change date.</source>
        <translation>Popis je prazan. Odaberite druge dane.</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>Delete all list</source>
        <translation>Obriši cijeli popis</translation>
    </message>
    <message>
        <source>Log can&apos;t be deleted.</source>
        <translation>Radno vrijeme ne može se obrisati.</translation>
    </message>
</context>
<context>
    <name>frmArtikli</name>
    <message>
        <source>Products</source>
        <translation>Artikli</translation>
    </message>
    <message>
        <source>Double click for edit.</source>
        <translation>Dvoklik za uređivanje.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>Add new product</source>
        <translation>Dodaj novi artikl</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Uredi</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Šifra - barkod</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Stopa poreza</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Cijena bez poreza</translation>
    </message>
    <message>
        <source>Second Price</source>
        <translation>Druga cijena</translation>
    </message>
    <message>
        <source>Second Price without Tax</source>
        <translation>Druga cijena bez poreza</translation>
    </message>
    <message>
        <source>ProductID - Barcode: %1
Product name: %2
Do you want to delete this item?</source>
        <translation>Šifra - barkod: %1
Naziv artikla: %2
Želite li obrisati ovaj artikl?</translation>
    </message>
    <message>
        <source>Product deleted.</source>
        <translation>Artikl je obrisan.</translation>
    </message>
</context>
<context>
    <name>frmChangePassword</name>
    <message>
        <source>Izmjena lozinke</source>
        <translation>Promjena lozinke</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Promijeni lozinku</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Korisnik:</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nova lozinka</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Ponovite lozinku</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Prikaži lozinku</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation>Lozinka je promijenjena.</translation>
    </message>
    <message>
        <source>User with this code or a name already exists.Change name!</source>
        <translation>Korisnik s tom šifrom ili imenom već postoji. Promijenite ime.</translation>
    </message>
</context>
<context>
    <name>frmChangeUser</name>
    <message>
        <source>Login</source>
        <translation>Prijava</translation>
    </message>
    <message>
        <source>LOGIN</source>
        <translation>PRIJAVA</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Korisnik:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Lozinka:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Nonexistent user.</source>
        <translation>Taj korisnik ne postoji.</translation>
    </message>
    <message>
        <source>Wrong password.</source>
        <translation>Pogrešna lozinka.</translation>
    </message>
</context>
<context>
    <name>frmDepozit</name>
    <message>
        <source>Deposit - payment </source>
        <translation>Polog - uplata </translation>
    </message>
    <message>
        <source>Deposit payment - only for fiscal printers</source>
        <translation>Uplata pologa - samo za fiskalne pisače</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>samo za fiskalne pisače</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Iznos:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Upiši iznos pologa - F12</translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation>Polog mora biti broj.</translation>
    </message>
    <message>
        <source>Paid deposit.</source>
        <translation>Polog je uplaćen.</translation>
    </message>
</context>
<context>
    <name>frmDepozitIsplata</name>
    <message>
        <source>Deposit payout</source>
        <translation>Isplata pologa</translation>
    </message>
    <message>
        <source>Deposit payout - only for fiscal printers</source>
        <translation>Isplata pologa - samo za fiskalne pisače</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>samo za fiskalne pisače</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Iznos:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Upiši iznos pologa - F12</translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation>Polog mora biti broj.</translation>
    </message>
    <message>
        <source>Deposit payout.</source>
        <translation>Polog je isplaćen.</translation>
    </message>
</context>
<context>
    <name>frmEditKupac</name>
    <message>
        <source>Edit custumer - supplier</source>
        <translation>Uređivanje kupca - dobavljača</translation>
    </message>
    <message>
        <source>Identification:</source>
        <translation>Identifikacijski broj:</translation>
    </message>
</context>
<context>
    <name>frmEditProduct</name>
    <message>
        <source>Edit product</source>
        <translation>Uređivanje artikla</translation>
    </message>
    <message>
        <source>F4-Structure</source>
        <extracomment>shows the composition</extracomment>
        <translation>F4-Normativ</translation>
    </message>
    <message>
        <source>Select a thumbnail - icon</source>
        <translation>Odaberite sličicu - ikonu</translation>
    </message>
    <message>
        <source>All images</source>
        <translation>Sve slike</translation>
    </message>
    <message>
        <source>File with such name does not exist!</source>
        <translation>Datoteka s tim nazivom ne postoji!</translation>
    </message>
</context>
<context>
    <name>frmEditTax</name>
    <message>
        <source>Edit Tax</source>
        <translation>Uređivanje poreza</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!</source>
        <translation>Porez s tom šifrom ili nazivom već postoji. Promijenite šifru ili naziv.</translation>
    </message>
</context>
<context>
    <name>frmEditUser</name>
    <message>
        <source>Edit User</source>
        <translation>Uređivanje korisnika</translation>
    </message>
</context>
<context>
    <name>frmFirma</name>
    <message>
        <source>My details - My firm</source>
        <translation>Podaci o mojoj tvrtki</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Ident</source>
        <translation>Ident. broj</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Bankovni račun</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Address can&apos;t be empty.</source>
        <translation>Adresa ne može biti prazna.</translation>
    </message>
    <message>
        <source>Data modified.</source>
        <translation>Podaci su promijenjeni.</translation>
    </message>
</context>
<context>
    <name>frmFiskalniPeriodicniIzvjestaj</name>
    <message>
        <source>Periodic report for fiscal printer</source>
        <translation>Periodični izvještaj fiskalnog pisača</translation>
    </message>
    <message>
        <source>Choose time period</source>
        <translation>Odaberite razdoblje</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>Periodic report is done.</source>
        <translation>Periodični izvještaj je napravljen.</translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>The help text is damaged: %1</source>
        <translation>Tekst pomoći je oštećen: %1</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sadržaj</translation>
    </message>
    <message>
        <source>The help text is not there.

It should be in this file:
%1</source>
        <translation>Tekst pomoći nije pronađen.

Treba biti u ovoj datoteci:
%1</translation>
    </message>
    <message>
        <source>The help text cannot be read: %1

It is in this file:
%2</source>
        <translation>Tekst pomoći ne može se pročitati: %1

Nalazi se u ovoj datoteci:
%2</translation>
    </message>
    <message>
        <source>The help text cannot be read: it is too long.

It is in this file:
%1</source>
        <translation>Tekst pomoći ne može se pročitati: predug je.

Nalazi se u ovoj datoteci:
%1</translation>
    </message>
</context>
<context>
    <name>frmIzvjestajKIF</name>
    <message>
        <source>Invoices for tax report</source>
        <translation>Knjiga izlaznih računa</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datumu</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>računima</translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>InvoiceFrom</source>
        <translation>Prvi račun</translation>
    </message>
    <message>
        <source>InvoiceTo</source>
        <translation>Zadnji račun</translation>
    </message>
    <message>
        <source>Total without Tax</source>
        <translation>Ukupno bez poreza</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Total with Tax</source>
        <translation>Ukupno s porezom</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Osnovica:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>POREZ:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
</context>
<context>
    <name>frmKlikTabla</name>
    <message>
        <source>CLICK TABLE edit</source>
        <translation>TABLICA TIPKI</translation>
    </message>
    <message>
        <source>input new card name</source>
        <extracomment>card: a tab of the touch table</extracomment>
        <translation>upišite novi naziv kartice</translation>
    </message>
    <message>
        <source>F5-Change name of category</source>
        <translation>F5-Promijeni naziv kartice</translation>
    </message>
    <message>
        <source>F4-Automatic</source>
        <translation>F4-Automatski</translation>
    </message>
    <message>
        <source>F3-Refresh</source>
        <translation>F3-Osvježi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>search in:</source>
        <translation>traži u:</translation>
    </message>
    <message>
        <source>Search product:</source>
        <translation>Traži artikl:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>bilo gdje u tekstu</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>od početka</translation>
    </message>
    <message>
        <source>Tab name can&apos;t be empty.</source>
        <translation>Naziv kartice ne može biti prazan.</translation>
    </message>
    <message>
        <source>Old settings will be lost,
Klick Table will be set automatic</source>
        <translation>Sadašnji raspored će se izgubiti,
a tablica tipki popunit će se automatski.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>Nema tekućeg retka.</translation>
    </message>
</context>
<context>
    <name>frmKupci</name>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Kupci - dobavljači</translation>
    </message>
    <message>
        <source>&amp;Custumer - supplier</source>
        <translation>&amp;Kupac - dobavljač</translation>
    </message>
    <message>
        <source>Dvoklik izaberi kupca</source>
        <translation>Dvoklik odabire kupca</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Uredi</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation>Traži u:</translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation>Upišite tekst koji tražite:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>bilo gdje u tekstu</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>od početka</translation>
    </message>
    <message>
        <source>CustumerID</source>
        <translation>Šifra kupca</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Ident</source>
        <translation>Ident. broj</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Faks</translation>
    </message>
    <message>
        <source>Rate rebate/margin</source>
        <translation>Rabat/marža</translation>
    </message>
    <message>
        <source>Custumer: %1
Do you want to delete the customer?</source>
        <translation>Kupac: %1
Želite li obrisati kupca?</translation>
    </message>
    <message>
        <source>Custumer deleted.</source>
        <translation>Kupac je obrisan.</translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>VELTON - LOGIN</source>
        <translation>VELTON - PRIJAVA</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Korisničko ime:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lozinka:</translation>
    </message>
    <message>
        <source>Broj prijava:</source>
        <translation>Broj prijava:</translation>
    </message>
    <message>
        <source>Check date and time</source>
        <translation>Provjerite datum i vrijeme</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Vrijeme:</translation>
    </message>
    <message>
        <source>Provjerite datum i vrijeme ako nisu ispravni prekinite pokretanje programa i popravite datum i vrijeme</source>
        <translation>Provjerite datum i vrijeme. Ako nisu ispravni, prekinite pokretanje programa i namjestite sat.</translation>
    </message>
    <message>
        <source>60 secunds for login</source>
        <translation>60 sekundi za prijavu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>choose user</source>
        <translation>odaberite korisnika</translation>
    </message>
    <message>
        <source>Program VELTON already run.</source>
        <translation>Program VELTON već je pokrenut.</translation>
    </message>
    <message>
        <source>VELTON already works.</source>
        <translation>VELTON već radi.</translation>
    </message>
    <message>
        <source>Wrong password.Login not allowed.</source>
        <translation>Pogrešna lozinka. Prijava nije dopuštena.</translation>
    </message>
</context>
<context>
    <name>frmMSGinvoice</name>
    <message>
        <source>CHANGE</source>
        <translation>ZA VRATITI</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>UKUPNO</translation>
    </message>
    <message>
        <source>CASH</source>
        <translation>GOTOVINA</translation>
    </message>
    <message>
        <source>Thank you!!!</source>
        <translation>Hvala!!!</translation>
    </message>
    <message>
        <source>OK </source>
        <translation>U redu </translation>
    </message>
    <message>
        <source>The amount is less than the invoice amount.</source>
        <translation>Iznos je manji od iznosa računa.</translation>
    </message>
</context>
<context>
    <name>frmMreza</name>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Mreža - više računala na istoj bazi podataka</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1. Put do poslužitelja</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>upišite puni put do poslužitelja na kojem je baza podataka</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2. Broj blagajne</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Upišite broj blagajne (1-19)</translation>
    </message>
    <message>
        <source>For server a number greater than 20</source>
        <translation>Za poslužitelj broj veći od 20</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Zatvori</translation>
    </message>
</context>
<context>
    <name>frmNewKupac</name>
    <message>
        <source>New custumer - supplier</source>
        <translation>Novi kupac - dobavljač</translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation>Ident. broj:</translation>
    </message>
</context>
<context>
    <name>frmNewProduct</name>
    <message>
        <source>New product</source>
        <translation>Novi artikl</translation>
    </message>
    <message>
        <source>ESC-Delete</source>
        <translation>ESC-Obriši</translation>
    </message>
    <message>
        <source>Choose image - icon</source>
        <translation>Odaberi sliku - ikonu</translation>
    </message>
    <message>
        <source>Sve slike</source>
        <translation>Sve slike</translation>
    </message>
    <message>
        <source>File not exist!</source>
        <translation>Datoteka ne postoji!</translation>
    </message>
    <message>
        <source>The new product is added.</source>
        <translation>Novi artikl je dodan.</translation>
    </message>
</context>
<context>
    <name>frmNewTax</name>
    <message>
        <source>New Tax</source>
        <translation>Novi porez</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!!</source>
        <translation>Porez s tom šifrom ili nazivom već postoji. Promijenite šifru ili naziv.</translation>
    </message>
    <message>
        <source>A new type of tax is added.</source>
        <translation>Nova vrsta poreza je dodana.</translation>
    </message>
</context>
<context>
    <name>frmNewUser</name>
    <message>
        <source>New User</source>
        <translation>Novi korisnik</translation>
    </message>
    <message>
        <source>New user added.</source>
        <translation>Novi korisnik je dodan.</translation>
    </message>
</context>
<context>
    <name>frmORVAtouch</name>
    <message>
        <source>INVOICE No:</source>
        <translation>RAČUN br.:</translation>
    </message>
    <message>
        <source>ili broj:</source>
        <translation>ili broj:</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>ProductID-BarCode:</source>
        <translation>Šifra - barkod:</translation>
    </message>
    <message>
        <source>Product name:</source>
        <translation>Naziv artikla:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Količina:</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>ADD on INVOICE</source>
        <translation>DODAJ NA RAČUN</translation>
    </message>
    <message>
        <source>Custumer:</source>
        <translation>Kupac:</translation>
    </message>
    <message>
        <source>Custumer name,address...</source>
        <translation>Naziv i adresa kupca...</translation>
    </message>
    <message>
        <source>Custumer Ident</source>
        <translation>Ident. broj kupca</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Klik briše, desni klik mijenja količinu</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>UKUPNO</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Zadnji redak</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>Esc-Delete</source>
        <translation>Esc-Obriši</translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation>F2-Traži</translation>
    </message>
    <message>
        <source>F6-Cashier</source>
        <translation>F6-Blagajnik</translation>
    </message>
    <message>
        <source>F7-Sign off</source>
        <translation>F7-Odjava</translation>
    </message>
    <message>
        <source>F8-Ribbon</source>
        <translation>F8-Traka</translation>
    </message>
    <message>
        <source>F9-Refresh</source>
        <translation>F9-Osvježi</translation>
    </message>
    <message>
        <source>REFRESH CLICK TABLE</source>
        <translation>OSVJEŽI TABLICU TIPKI</translation>
    </message>
    <message>
        <source>F10-Invoices</source>
        <translation>F10-Računi</translation>
    </message>
    <message>
        <source>F12-End</source>
        <translation>F12-Kraj</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>Choose cashier.</source>
        <translation>Odaberite blagajnika.</translation>
    </message>
    <message>
        <source>You did not enter a single item on the invoice.</source>
        <translation>Na računu još nema nijedne stavke.</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Novi račun</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Ispis</translation>
    </message>
    <message>
        <source>Do you want cancel the invoice?</source>
        <translation>Želite li odbaciti račun?</translation>
    </message>
    <message>
        <source>Product has meanwhile been deleted or does not exist.</source>
        <translation>Artikl je u međuvremenu obrisan ili ne postoji.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist.</source>
        <translation>Artikl s tom šifrom ne postoji.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist</source>
        <translation>Artikl s tom šifrom ne postoji</translation>
    </message>
    <message>
        <source>Illogical quantity. </source>
        <translation>Nelogična količina. </translation>
    </message>
    <message>
        <source>CHANGE QUANTITY</source>
        <translation>PROMJENA KOLIČINE</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation>Stavke: %1   Komadi: %2</translation>
    </message>
    <message>
        <source>Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.</source>
        <translation>Račun %1 spremljen je s %2 od %3 stavki. One ostaju, a ostaje i zaliha skinuta za njih.</translation>
    </message>
    <message>
        <source>Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.</source>
        <translation>Račun %1 možda je spremljen cijeli, djelomično ili uopće nije: potražite ga prije nego ga ponovno zaključite.</translation>
    </message>
    <message>
        <source>The stock of %1 can&apos;t be written yet. %2</source>
        <translation>Zaliha za %1 još se ne može upisati. %2</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
    <message>
        <source>1.Program</source>
        <translation>1. Program</translation>
    </message>
    <message>
        <source>1.Printer for invoices</source>
        <translation>1. Pisač za račune</translation>
    </message>
    <message>
        <source>POS printer LPT1</source>
        <translation>POS pisač LPT1</translation>
    </message>
    <message>
        <source>POS printer LPT2</source>
        <translation>POS pisač LPT2</translation>
    </message>
    <message>
        <source>windows printer</source>
        <translation>pisač sustava</translation>
    </message>
    <message>
        <source>Set win printer</source>
        <translation>Namjesti pisač sustava</translation>
    </message>
    <message>
        <source>2. POS Printer emulalation</source>
        <translation>2. Emulacija POS pisača</translation>
    </message>
    <message>
        <source>Epson emulation</source>
        <translation>emulacija Epson</translation>
    </message>
    <message>
        <source>Star emulation</source>
        <translation>emulacija Star</translation>
    </message>
    <message>
        <source>cutter POS printer</source>
        <translation>POS pisač s rezačem</translation>
    </message>
    <message>
        <source>3.Printer for reports</source>
        <translation>3. Pisač za izvještaje</translation>
    </message>
    <message>
        <source>POS printer na LPT1</source>
        <translation>POS pisač na LPT1</translation>
    </message>
    <message>
        <source>POS printer na LPT2</source>
        <translation>POS pisač na LPT2</translation>
    </message>
    <message>
        <source>POS Monitor</source>
        <translation>POS zaslon</translation>
    </message>
    <message>
        <source>standard monitor</source>
        <translation>običan zaslon</translation>
    </message>
    <message>
        <source>touch monitor</source>
        <translation>zaslon na dodir</translation>
    </message>
    <message>
        <source>4.Currency</source>
        <translation>4. Valuta</translation>
    </message>
    <message>
        <source>currency sign max 3 char</source>
        <translation>oznaka valute, najviše 3 znaka</translation>
    </message>
    <message>
        <source>5.Show amount in cash register on main form</source>
        <translation>5. Prikaži promet blagajne u glavnom prozoru</translation>
    </message>
    <message>
        <source>show amount in cash register on main form</source>
        <translation>prikaži promet blagajne u glavnom prozoru</translation>
    </message>
    <message>
        <source>6.Ask password when change cashier</source>
        <translation>6. Traži lozinku kod promjene blagajnika</translation>
    </message>
    <message>
        <source>ask for password </source>
        <translation>traži lozinku </translation>
    </message>
    <message>
        <source>7.Change</source>
        <extracomment>the money that the customer gets back</extracomment>
        <translation>7. Za vratiti</translation>
    </message>
    <message>
        <source>request to input and display paid cash and change</source>
        <translation>traži upis primljene gotovine i prikaži iznos za vratiti</translation>
    </message>
    <message>
        <source>8.Show all products in Search</source>
        <translation>8. Prikaži sve artikle u pretraživanju</translation>
    </message>
    <message>
        <source>show all products in search when open form</source>
        <translation>prikaži sve artikle kad se otvori pretraživanje</translation>
    </message>
    <message>
        <source>9.Make printed invoices ribbon on HDD</source>
        <translation>9. Kontrolna traka računa na disku</translation>
    </message>
    <message>
        <source>printed invoices ribbon on HDD</source>
        <translation>kontrolna traka računa na disku</translation>
    </message>
    <message>
        <source>filename</source>
        <translation>naziv datoteke</translation>
    </message>
    <message>
        <source>10.Print only on fiscal printer</source>
        <translation>10. Ispis samo na fiskalni pisač</translation>
    </message>
    <message>
        <source>print only on fiscal printer</source>
        <translation>ispis samo na fiskalni pisač</translation>
    </message>
    <message>
        <source>filename fiscal printer</source>
        <translation>datoteka fiskalnog pisača</translation>
    </message>
    <message>
        <source>New invoice automatic</source>
        <translation>Novi račun automatski</translation>
    </message>
    <message>
        <source>new invoice automatic</source>
        <translation>novi račun automatski</translation>
    </message>
    <message>
        <source>default option 1-Yes</source>
        <translation>uobičajeno 1-Da</translation>
    </message>
    <message>
        <source>Show window with display for custumer</source>
        <translation>Prikaži prozor za kupca</translation>
    </message>
    <message>
        <source>show window with display for custumer</source>
        <translation>prikaži prozor za kupca</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>ne koristi se</translation>
    </message>
    <message>
        <source>2.Invoice</source>
        <translation>2. Račun</translation>
    </message>
    <message>
        <source>1.Invoice heading</source>
        <translation>1. Zaglavlje računa</translation>
    </message>
    <message>
        <source>My Firm Name</source>
        <translation>Naziv moje tvrtke</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Firm Ident</source>
        <translation>Ident. broj tvrtke</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Store Place</source>
        <translation>Prodajno mjesto</translation>
    </message>
    <message>
        <source>2.Change invoice No.</source>
        <translation>2. Promjena broja računa</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Kreni</translation>
    </message>
    <message>
        <source>enter a new invoice no and click go</source>
        <translation>upišite novi broj računa i pritisnite Kreni</translation>
    </message>
    <message>
        <source>5.Cashier</source>
        <translation>5. Blagajnik</translation>
    </message>
    <message>
        <source>print cashier on invoice</source>
        <translation>ispiši blagajnika na računu</translation>
    </message>
    <message>
        <source>6.Footer text on invoice</source>
        <translation>6. Tekst na dnu računa</translation>
    </message>
    <message>
        <source>3.Invoice details</source>
        <translation>3. Stavke računa</translation>
    </message>
    <message>
        <source>1.Printing items on the invoice</source>
        <translation>1. Ispis stavki na računu</translation>
    </message>
    <message>
        <source>ProductID and ProductName                     Price Quantit  TRate     Tax  Amount</source>
        <extracomment>82 columns, all but the product aligned right: product 43, price 8, quantity 8, tax rate 7, tax 8, amount 8</extracomment>
        <translation>Šifra i naziv artikla                        Cijena    Kol.  Stopa   Porez   Iznos</translation>
    </message>
    <message>
        <source>40 char</source>
        <translation>40 znakova</translation>
    </message>
    <message>
        <source>Product Name         Price Quanti Amount</source>
        <extracomment>40 columns, all but the product aligned right: product 18, price 8, quantity 7, amount 7</extracomment>
        <translation>Naziv artikla       Cijena   Kol.  Iznos</translation>
    </message>
    <message>
        <source>   Price Quantit  TRate     Tax   Amount</source>
        <extracomment>40 columns, all aligned right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>  Cijena    Kol.  Stopa   Porez    Iznos</translation>
    </message>
    <message>
        <source>No Product Name      Price Quant  Amount</source>
        <extracomment>40 columns, figures aligned right: number 3, product 15, price 8, quantity 6, amount 8</extracomment>
        <translation>Rb Naziv artikla    Cijena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>A4 print</source>
        <translation>A4 ispis</translation>
    </message>
    <message>
        <source>80 char</source>
        <translation>80 znakova</translation>
    </message>
    <message>
        <source>   Price Quantity      Amount</source>
        <extracomment>29 columns, all aligned right: price 8, quantity 9, amount 12</extracomment>
        <translation>  Cijena Količina       Iznos</translation>
    </message>
    <message>
        <source>32 char</source>
        <translation>32 znaka</translation>
    </message>
    <message>
        <source>ProductName Price Quant Amount</source>
        <extracomment>30 columns, all but the product aligned right: product 11, price 6, quantity 6, amount 7</extracomment>
        <translation>Artikl     Cijena  Kol.  Iznos</translation>
    </message>
    <message>
        <source>2.Recapitulation taxes </source>
        <translation>2. Rekapitulacija poreza </translation>
    </message>
    <message>
        <source>recapitulation by Tax Rates           Rate    Amount</source>
        <extracomment>52 columns, figures aligned right: what it is 33, rate 9, amount 10</extracomment>
        <translation>rekapitulacija po stopama poreza     Stopa     Iznos</translation>
    </message>
    <message>
        <source>without recapitulation print only Tax Total</source>
        <translation>bez rekapitulacije, samo ukupan porez</translation>
    </message>
    <message>
        <source>4.Network</source>
        <translation>4. Mreža</translation>
    </message>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Mreža - više računala na istoj bazi podataka</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1. Put do poslužitelja</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>upišite puni put do poslužitelja na kojem je baza podataka</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2. Broj blagajne</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Upišite broj blagajne (1-19)</translation>
    </message>
    <message>
        <source>za samo kontrolne funkcije broj veći od 20</source>
        <translation>samo za kontrolne funkcije broj veći od 20</translation>
    </message>
    <message>
        <source>F5-Sacuvaj</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>Sacuvaj promjene</source>
        <translation>Spremi promjene</translation>
    </message>
    <message>
        <source>F1-Upute</source>
        <translation>F1-Upute</translation>
    </message>
    <message>
        <source>Upute za rad</source>
        <translation>Upute za rad</translation>
    </message>
    <message>
        <source>F12-Zatvori</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spremi</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation>Broj računa mora biti broj.</translation>
    </message>
    <message>
        <source>Invoice No changed.</source>
        <translation>Broj računa je promijenjen.</translation>
    </message>
    <message>
        <source>The main window does not show the sales screen.</source>
        <translation>Glavni prozor ne prikazuje prodajni zaslon.</translation>
    </message>
    <message>
        <source>Changes are saved.</source>
        <translation>Promjene su spremljene.</translation>
    </message>
</context>
<context>
    <name>frmPopisRobe</name>
    <message>
        <source>Product list - List of goods</source>
        <translation>Popis robe</translation>
    </message>
    <message>
        <source>Sifra-BarKod</source>
        <translation>Šifra - barkod</translation>
    </message>
    <message>
        <source>Naziv</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>JM</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Kolicina</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Cijena</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Vrijednost</source>
        <translation>Vrijednost</translation>
    </message>
    <message>
        <source>TOTAL with Tax:</source>
        <translation>S porezom:</translation>
    </message>
    <message>
        <source>TOTAL without Tax:</source>
        <translation>Bez poreza:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>POREZ:</translation>
    </message>
    <message>
        <source>Sacuvaj kao</source>
        <translation>Spremi kao</translation>
    </message>
</context>
<context>
    <name>frmRacPRG</name>
    <message>
        <source>Invoices - print, view, save</source>
        <translation>Računi - ispis, pregled, spremanje</translation>
    </message>
    <message>
        <source>INVOICE No:</source>
        <translation>RAČUN br.:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>UKUPNO</translation>
    </message>
    <message>
        <source>Tax :</source>
        <translation>Porez :</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Ispis</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Spremi</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Spremi na USB, disk...</translation>
    </message>
    <message>
        <source>F7-Print all</source>
        <translation>F7-Ispiši sve</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>Brise arhivirano radno vrijeme</source>
        <translation>Briše arhivirano radno vrijeme</translation>
    </message>
    <message>
        <source>Prethodni</source>
        <translation>Prethodni</translation>
    </message>
    <message>
        <source>Sljedeci</source>
        <translation>Sljedeći</translation>
    </message>
    <message>
        <source>Zadnji</source>
        <translation>Zadnji</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Zatvori prozor</source>
        <translation>Zatvori prozor</translation>
    </message>
    <message>
        <source>Review Invoice</source>
        <translation>Pregled računa</translation>
    </message>
    <message>
        <source>Currently there is no single invoice</source>
        <translation>Još nema nijednog računa</translation>
    </message>
</context>
<context>
    <name>frmRacunPregled</name>
    <message>
        <source>Print preview</source>
        <translation>Pregled ispisa</translation>
    </message>
</context>
<context>
    <name>frmRacuni</name>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Broj računa</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>InvoiceID</source>
        <translation>Šifra računa</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
    <message>
        <source>F4-Print list invoices</source>
        <translation>F4-Ispis popisa računa</translation>
    </message>
    <message>
        <source>F6 -Print selected invoice</source>
        <translation>F6 -Ispis odabranog računa</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Ispis</translation>
    </message>
</context>
<context>
    <name>frmReklamiranjeRacuna</name>
    <message>
        <source>Withdrawal invoice - only fiscal printer</source>
        <translation>Storno računa - samo fiskalni pisač</translation>
    </message>
    <message>
        <source>NOTE: There must be registered sales with enough money in the fiscal device to be able to execute this command</source>
        <translation>NAPOMENA: za ovu naredbu u fiskalnom uređaju mora biti evidentiran promet s dovoljno novca</translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation>Račun br.:</translation>
    </message>
    <message>
        <source>Withdraw invoice - F12</source>
        <translation>Storniraj račun - F12</translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation>Broj računa mora biti broj.</translation>
    </message>
    <message>
        <source>Invoice withdraw.</source>
        <translation>Račun je storniran.</translation>
    </message>
</context>
<context>
    <name>frmSales</name>
    <message>
        <source>Sale by Cashier</source>
        <translation>Prodaja po blagajnicima</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datumu</translation>
    </message>
    <message>
        <source>cashier</source>
        <translation>blagajniku</translation>
    </message>
    <message>
        <source>CashierID</source>
        <translation>Šif. blagajnika</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation>UKUPNO :</translation>
    </message>
</context>
<context>
    <name>frmSalesProducts</name>
    <message>
        <source>Sale by Products</source>
        <translation>Prodaja po artiklima</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation>UKUPNO :</translation>
    </message>
</context>
<context>
    <name>frmSalesTax</name>
    <message>
        <source>TAX Report</source>
        <translation>Izvještaj o porezu</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datumu</translation>
    </message>
    <message>
        <source>tax rate</source>
        <translation>stopi poreza</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Tax type</source>
        <translation>Vrsta poreza</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Stopa</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Osnovica</source>
        <translation>Osnovica</translation>
    </message>
    <message>
        <source>Iznos poreza</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Iznos sa porezom-PDVom</source>
        <translation>S porezom</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Osnovica:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>POREZ:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
</context>
<context>
    <name>frmSastav</name>
    <message>
        <source>Product composition</source>
        <translation>Normativ artikla</translation>
    </message>
    <message>
        <source>Product composition for:</source>
        <translation>Normativ artikla:</translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Šifra - barkod</translation>
    </message>
    <message>
        <source>Product Name:</source>
        <translation>Naziv artikla:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Količina:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>JM:</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Stopa poreza</translation>
    </message>
    <message>
        <source>AMOUNT :</source>
        <translation>IZNOS :</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation>F2-Traži</translation>
    </message>
    <message>
        <source>[F2] - Choose product</source>
        <translation>[F2] - Odaberi artikl</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Klik briše, desni klik mijenja količinu</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Spremi</translation>
    </message>
    <message>
        <source>F5-Delete</source>
        <translation>F5-Obriši</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>A composition is opened from the screen of its product.</source>
        <translation>Normativ se otvara sa zaslona njegova artikla.</translation>
    </message>
    <message>
        <source>Product with this code-barcode does not exist.</source>
        <translation>Artikl s tom šifrom ne postoji.</translation>
    </message>
    <message>
        <source>You did not enter a single item in the composition.</source>
        <translation>U normativu još nema nijednog sastojka.</translation>
    </message>
</context>
<context>
    <name>frmStanjeArtikala</name>
    <message>
        <source>Quantity of items in stock</source>
        <translation>Zaliha robe</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
    <message>
        <source>List does not contain any item.</source>
        <translation>Popis je prazan.</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Osvježi</translation>
    </message>
</context>
<context>
    <name>frmTax</name>
    <message>
        <source>Tax protected from deletion, but you can modify the data.</source>
        <translation>Porez je zaštićen od brisanja, ali se njegovi podaci mogu mijenjati.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Šif. poreza</translation>
    </message>
    <message>
        <source>Tax rate [%]</source>
        <translation>Stopa poreza [%]</translation>
    </message>
    <message>
        <source>Tax name</source>
        <translation>Naziv poreza</translation>
    </message>
    <message>
        <source>Tax deleted.</source>
        <translation>Porez je obrisan.</translation>
    </message>
    <message>
        <source>TaxID: %1
Tax name: %2
Are you sure you want to delete this type of tax?</source>
        <translation>Šifra poreza: %1
Naziv poreza: %2
Želite li obrisati ovu vrstu poreza?</translation>
    </message>
</context>
<context>
    <name>frmTaxbyInvoice</name>
    <message>
        <source>TAX Report by Invoices</source>
        <translation>Izvještaj o porezu po računima</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datumu</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>računima</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Broj računa</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Amount without Tax</source>
        <translation>Iznos bez poreza</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Amount with Tax</source>
        <translation>Iznos s porezom</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Osnovica:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>POREZ:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
</context>
<context>
    <name>frmTrakaRacuna</name>
    <message>
        <source>Printed Invoices</source>
        <translation>Kontrolna traka računa</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Spremi na USB, disk...</translation>
    </message>
</context>
<context>
    <name>frmTrenutnoStanjeKasa</name>
    <message>
        <source>Currently - End Report</source>
        <translation>Trenutno stanje - zaključak dana</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Trenutno stanje</translation>
    </message>
    <message>
        <source>Lists shows currently balance from last done End Report</source>
        <translation>Popisi prikazuju stanje od zadnjeg zaključka dana</translation>
    </message>
    <message>
        <source>Date and time last End Report</source>
        <translation>Datum i vrijeme zadnjeg zaključka dana</translation>
    </message>
    <message>
        <source>Register state</source>
        <translation>Stanje blagajne</translation>
    </message>
    <message>
        <source>1 - CASH REGISTERS</source>
        <translation>1 - BLAGAJNE</translation>
    </message>
    <message>
        <source>2 - CASHIERS</source>
        <translation>2 - BLAGAJNICI</translation>
    </message>
    <message>
        <source>3 - INVOICES</source>
        <translation>3 - RAČUNI</translation>
    </message>
    <message>
        <source>4 - PRODUCTS</source>
        <translation>4 - ARTIKLI</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <translation>BLAGAJNE</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>POREZ:</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CRs:</source>
        <translation>UKUPNO SVE BLAGAJNE:</translation>
    </message>
    <message>
        <source>END REPORT do</source>
        <translation>ZAKLJUČI DAN</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Osvježi</translation>
    </message>
    <message>
        <source>F5-Print all</source>
        <translation>F5-Ispiši sve</translation>
    </message>
    <message>
        <source>F4-Print </source>
        <translation>F4-Ispis </translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>CASH REGISTER No.</source>
        <translation>BLAGAJNA br.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IZNOS</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <translation>BLAGAJNICI</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CASHIERS:</source>
        <translation>UKUPNO SVI BLAGAJNICI:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>INVOICES</source>
        <translation>RAČUNI</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL INVOICES:</source>
        <translation>UKUPNO SVI RAČUNI:</translation>
    </message>
    <message>
        <source>CR No.</source>
        <translation>Bl. br.</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>Račun br.</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>ARTIKLI</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL PRODUCTS:</source>
        <translation>UKUPNO SVI ARTIKLI:</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>End Report</source>
        <translation>Zaključak dana</translation>
    </message>
    <message>
        <source>End Report No:</source>
        <translation>Zaključak dana br.:</translation>
    </message>
    <message>
        <source>Lists show balance for selected End Report.</source>
        <translation>Popisi prikazuju stanje za odabrani zaključak dana.</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Želite li napraviti zaključak dana?</translation>
    </message>
    <message>
        <source>End Report is done.</source>
        <translation>Zaključak dana je napravljen.</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <extracomment>%1 and %2 are date and time</extracomment>
        <translation>Zaključak dana %1 %2</translation>
    </message>
</context>
<context>
    <name>frmUsers</name>
    <message>
        <source>User - Cashier</source>
        <translation>Korisnik - blagajnik</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>Šif. korisnika</translation>
    </message>
    <message>
        <source>UserName</source>
        <translation>Korisničko ime</translation>
    </message>
    <message>
        <source>Access Level</source>
        <translation>Razina pristupa</translation>
    </message>
    <message>
        <source>Cashier protected from deletion, but you can modify the data.</source>
        <translation>Blagajnik je zaštićen od brisanja, ali se njegovi podaci mogu mijenjati.</translation>
    </message>
    <message>
        <source>User deleted.</source>
        <translation>Korisnik je obrisan.</translation>
    </message>
    <message>
        <source>User Cashier: %1
Password: %2
Are you sure you want to delete this user?</source>
        <translation>Korisnik - blagajnik: %1
Lozinka: %2
Želite li obrisati ovog korisnika?</translation>
    </message>
</context>
<context>
    <name>frmViewer</name>
    <message>
        <source>Search Product</source>
        <translation>Traži artikl</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>ProductID-BarCode</source>
        <translation>Šifra - barkod</translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation>Naziv artikla</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Stopa poreza</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Type what you look for, or press F11 for all.</source>
        <translation>Upišite što tražite ili pritisnite F11 za sve.</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Ništa nije pronađeno.</translation>
    </message>
</context>
<context>
    <name>frmWinPrinter</name>
    <message>
        <source>Windows printer</source>
        <translation>Pisač sustava</translation>
    </message>
    <message>
        <source>Font list</source>
        <translation>Popis fontova</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Veličina fonta</translation>
    </message>
    <message>
        <source>9 - default</source>
        <translation>9 - uobičajeno</translation>
    </message>
    <message>
        <source>Dimensions of paper</source>
        <translation>Dimenzije papira</translation>
    </message>
    <message>
        <source>Podesi sirinu i duzinu umetnutog papira</source>
        <translation>Namjesti širinu i duljinu umetnutog papira</translation>
    </message>
    <message>
        <source>currently selected font</source>
        <translation>trenutno odabrani font</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Spremi</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Zatvori</translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled</name>
    <message>
        <source>End Reports review</source>
        <translation>Pojedina razdoblja</translation>
    </message>
    <message>
        <source>end report</source>
        <translation>zaključku dana</translation>
    </message>
    <message>
        <source>cash register</source>
        <translation>blagajni</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datumu</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Bl.</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>Br. zaklj. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time From</source>
        <translation>Od sata</translation>
    </message>
    <message>
        <source>Time to</source>
        <translation>Do sata</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled1</name>
    <message>
        <source>End Reports review</source>
        <translation>Pregled zaključaka dana</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>Br. zaklj. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>UKUPNO:</translation>
    </message>
    <message>
        <source>F5-Print review</source>
        <translation>F5-Ispis pregleda</translation>
    </message>
</context>
<context>
    <name>manager::BackupPage</name>
    <message>
        <source>Made</source>
        <translation>Napravljena</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veličina</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Zadnji dan</translation>
    </message>
    <message>
        <source>Its takings</source>
        <translation>Promet tog dana</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>No folder has been chosen yet, and the till makes no backups. Choose one on a second disk, on a stick or in the network.</source>
        <translation>Mapa još nije odabrana i blagajna ne radi sigurnosne kopije. Odaberite mapu na drugom disku, na USB memoriji ili na mreži.</translation>
    </message>
    <message>
        <source>Backups go to %1, on the same disk as the shop: if it breaks, both are lost.</source>
        <translation>Sigurnosne kopije idu u %1, na isti disk kao i podaci trgovine: ako se on pokvari, izgubljeno je oboje.</translation>
    </message>
    <message>
        <source>Backups go to %1.</source>
        <translation>Sigurnosne kopije idu u %1.</translation>
    </message>
    <message>
        <source>%1.
The try of %2 failed: %3</source>
        <translation>%1.
Pokušaj od %2 nije uspio: %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Provjerena</translation>
    </message>
    <message>
        <source>Checked, of %1</source>
        <translation>Provjerena, blagajna %1</translation>
    </message>
    <message>
        <source>The folder for backups</source>
        <translation>Mapa za sigurnosne kopije</translation>
    </message>
    <message>
        <source>This backup can&apos;t be restored: %1</source>
        <translation>Ova sigurnosna kopija ne može se vratiti: %1</translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation>Ništa nije vraćeno. %1</translation>
    </message>
    <message>
        <source>The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.</source>
        <translation>Podaci trgovine su kakvi su bili u sigurnosnoj kopiji od %1, broj računa: %2. Ono što je zamijenjeno čuva se u %3.</translation>
    </message>
    <message>
        <source>There are no backups yet.</source>
        <translation>Još nema sigurnosnih kopija.</translation>
    </message>
    <message>
        <source>The register is being backed up.</source>
        <translation>Radi se sigurnosna kopija blagajne.</translation>
    </message>
    <message>
        <source>The shop and the backup are being compared.</source>
        <translation>Uspoređuju se podaci trgovine i sigurnosna kopija.</translation>
    </message>
    <message>
        <source>The backup is being brought back.</source>
        <translation>Sigurnosna kopija se vraća.</translation>
    </message>
    <message>
        <source>The folder of the backups is being read.</source>
        <translation>Čita se mapa za sigurnosne kopije.</translation>
    </message>
    <message>
        <source>The folder was not read to its end.</source>
        <translation>Mapa nije pročitana do kraja.</translation>
    </message>
</context>
<context>
    <name>manager::BackupWords</name>
    <message>
        <source>No backup yet</source>
        <translation>Još nema sigurnosne kopije</translation>
    </message>
    <message>
        <source>Last good backup: %1, %2, in %3</source>
        <translation>Zadnja ispravna sigurnosna kopija: %1, %2, u %3</translation>
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
        <translation>%1: %2, prije %3</translation>
    </message>
</context>
<context>
    <name>manager::DrawerPage</name>
    <message>
        <source>Count</source>
        <translation>Brojanje</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Treba biti</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Izbrojano</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Razlika</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Napomena</translation>
    </message>
    <message>
        <source>Nothing was counted yet. Count the drawer on the page before and keep the count.</source>
        <translation>Još ništa nije izbrojano. Izbrojite ladicu na kartici Brojanje i spremite brojanje.</translation>
    </message>
    <message>
        <source>Counts can&apos;t be kept or shown. %1</source>
        <translation>Brojanja se ne mogu spremiti ni prikazati. %1</translation>
    </message>
    <message>
        <source>Which notes and coins %1 has is not known yet. Press &quot;Notes and coins&quot; and type them.</source>
        <translation>Još se ne zna koje novčanice i kovanice ima %1. Pritisnite &quot;Novčanice i kovanice&quot; i upišite ih.</translation>
    </message>
    <message>
        <source>Pieces of %1</source>
        <translation>Komada od %1</translation>
    </message>
    <message>
        <source>Too much in the drawer</source>
        <translation>Višak u ladici</translation>
    </message>
    <message>
        <source>Missing in the drawer</source>
        <translation>Manjak u ladici</translation>
    </message>
    <message>
        <source>This is no number of pieces and no amount.</source>
        <translation>Ovo nije ni broj komada ni iznos.</translation>
    </message>
    <message>
        <source>Something was sold, or an End Report was made, since this page came up. The count is not kept: look at the difference again.</source>
        <translation>Otkako je ova stranica otvorena, nešto je prodano ili je napravljen zaključak dana. Brojanje nije spremljeno: ponovno pogledajte razliku.</translation>
    </message>
    <message>
        <source>Count %1 is kept.</source>
        <translation>Brojanje %1 je spremljeno.</translation>
    </message>
    <message>
        <source>Count %1 is printed.</source>
        <translation>Brojanje %1 je ispisano.</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Od zadnjeg zaključka dana</translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation>Zaključak dana %1 od %2</translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation>Zaključak dana %1</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Brojao</translation>
    </message>
    <message>
        <source>End Report</source>
        <translation>Zaključak dana</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Nađeno</translation>
    </message>
</context>
<context>
    <name>manager::DrawerText</name>
    <message>
        <source>Count %1 of the drawer, in %2</source>
        <translation>Brojanje ladice %1, u %2</translation>
    </message>
    <message>
        <source>Counted by %1</source>
        <translation>Izbrojao: %1</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Izbrojano</translation>
    </message>
    <message>
        <source>Sold in cash</source>
        <translation>Prodano za gotovinu</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Polog</translation>
    </message>
    <message>
        <source>Taken out</source>
        <translation>Isplata</translation>
    </message>
    <message>
        <source>Should be there</source>
        <translation>Treba biti</translation>
    </message>
    <message>
        <source>DIFFERENCE</source>
        <translation>RAZLIKA</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Od zadnjeg zaključka dana</translation>
    </message>
    <message>
        <source>For End Report %1</source>
        <translation>Za zaključak dana %1</translation>
    </message>
</context>
<context>
    <name>manager::GoodsChoice</name>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>There are no such goods.</source>
        <translation>Takve robe nema.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopije</translation>
    </message>
    <message>
        <source>Add goods from the left.</source>
        <translation>Dodajte robu s lijeve strane.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Sve</translation>
    </message>
    <message>
        <source>Without a button</source>
        <translation>Bez tipke</translation>
    </message>
    <message numerus="yes">
        <source>Found: %n</source>
        <translation>
            <numerusform>Pronađeno: %n</numerusform>
            <numerusform>Pronađeno: %n</numerusform>
            <numerusform>Pronađeno: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::GoodsPage</name>
    <message>
        <source>Line</source>
        <translation>Redak</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Što</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Promjene</translation>
    </message>
    <message>
        <source>Choose a table of goods that a spreadsheet saved as CSV.</source>
        <translation>Odaberite tablicu robe koju je tablični kalkulator spremio kao CSV.</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>svi reci</translation>
    </message>
    <message>
        <source>Choose a table of goods</source>
        <translation>Odaberite tablicu robe</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.txt *.tsv)</source>
        <translation>Tablice kao tekst (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Sve datoteke (*)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Say which column is the code of the goods.</source>
        <translation>Navedite u kojem je stupcu šifra robe.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Export goods</source>
        <translation>Izvoz robe</translation>
    </message>
    <message>
        <source>Export customers</source>
        <translation>Izvoz kupaca</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx);;Table as text (*.csv)</source>
        <translation>Radna knjiga (*.xlsx);;Tablica kao tekst (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Zapisano: %1</translation>
    </message>
    <message>
        <source>all but unchanged</source>
        <translation>sve osim nepromijenjenog</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Ništa se ne bi promijenilo.</translation>
    </message>
    <message>
        <source>There are no such rows.</source>
        <translation>Takvih redaka nema.</translation>
    </message>
</context>
<context>
    <name>manager::GoodsWriting</name>
    <message>
        <source>Write %1 new and %2 changed goods?</source>
        <translation>Zapisati robu: novo %1, promijenjeno %2?</translation>
    </message>
    <message>
        <source>Refused rows stay out of it: %1.</source>
        <translation>Odbijeni reci ostaju izvan toga: %1.</translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Zapisano: novo %1, promijenjeno %2.</translation>
    </message>
    <message>
        <source>Sold since the look, and taken off the new quantity too: %1.</source>
        <translation>Prodano nakon pregleda i skinuto i s nove količine: %1.</translation>
    </message>
    <message>
        <source>Taken back: %1 restored, %2 removed.</source>
        <translation>Poništeno: vraćeno %1, uklonjeno %2.</translation>
    </message>
    <message>
        <source>So it is with %1 more.</source>
        <translation>Isto vrijedi još za %1.</translation>
    </message>
    <message>
        <source>Write %1 changed goods?</source>
        <translation>Zapisati robu: promijenjeno %1?</translation>
    </message>
    <message>
        <source>Written: %1 changed.</source>
        <translation>Zapisano: promijenjeno %1.</translation>
    </message>
    <message>
        <source>Take back &apos;%1&apos; of %2? Goods that were new go, and others get their old values back. What was sold since stays sold.</source>
        <translation>Poništiti &apos;%1&apos; od %2? Roba koja je bila nova nestaje, a ostala dobiva svoje stare podatke. Što je u međuvremenu prodano, ostaje prodano.</translation>
    </message>
</context>
<context>
    <name>manager::HeadingStep</name>
    <message>
        <source>%1, %2 columns</source>
        <translation>%1, znakova u retku: %2</translation>
    </message>
    <message>
        <source>The shop needs a name.</source>
        <translation>Trgovina mora imati naziv.</translation>
    </message>
    <message>
        <source>The longest line has %1 columns; paper has 32, 40 or 80.</source>
        <translation>Najdulji redak: %1 zn.; papir: 32, 40 ili 80.</translation>
    </message>
</context>
<context>
    <name>manager::HealthPage</name>
    <message>
        <source>✓  Good</source>
        <translation>✓  U redu</translation>
    </message>
    <message>
        <source>✖  Damage</source>
        <translation>✖  Oštećenje</translation>
    </message>
    <message>
        <source>!  Note</source>
        <translation>!  Napomena</translation>
    </message>
    <message>
        <source>–  Fact</source>
        <translation>–  Podatak</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Vrsta</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Što je pronađeno</translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation>Još ništa nije pregledano.</translation>
    </message>
    <message>
        <source>The shop is looked over.</source>
        <translation>Podaci trgovine su pregledani.</translation>
    </message>
    <message>
        <source>The look was left before its end.</source>
        <translation>Pregled je prekinut prije kraja.</translation>
    </message>
    <message>
        <source>The look can&apos;t be ended. %1</source>
        <translation>Pregled se ne može završiti. %1</translation>
    </message>
    <message>
        <source>The shop is being looked at ...</source>
        <translation>Podaci trgovine se pregledavaju ...</translation>
    </message>
    <message>
        <source>Something is damaged. Read what to do before you go on selling.</source>
        <translation>Nešto je oštećeno. Prije nastavka prodaje pročitajte što treba učiniti.</translation>
    </message>
    <message numerus="yes">
        <source>Nothing is damaged. Notes of what does not fit together: %n.</source>
        <translation>
            <numerusform>Ništa nije oštećeno. Napomene o onome što se ne slaže: %n.</numerusform>
            <numerusform>Ništa nije oštećeno. Napomene o onome što se ne slaže: %n.</numerusform>
            <numerusform>Ništa nije oštećeno. Napomene o onome što se ne slaže: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Sve je u redu.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>Ništa ne treba učiniti.</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Što učiniti: %1</translation>
    </message>
    <message>
        <source>The report is made.</source>
        <translation>Izvještaj je napravljen.</translation>
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
        <translation>(nema)</translation>
    </message>
    <message>
        <source>Semicolon ;</source>
        <translation>Točka-zarez ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Zarez ,</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nije poznato</translation>
    </message>
    <message>
        <source>Point .</source>
        <translation>Točka .</translation>
    </message>
    <message>
        <source>New and known goods</source>
        <translation>Nova i postojeća roba</translation>
    </message>
    <message>
        <source>Only new goods</source>
        <translation>Samo nova roba</translation>
    </message>
    <message>
        <source>Only known goods</source>
        <translation>Samo postojeća roba</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Stupac %1</translation>
    </message>
</context>
<context>
    <name>manager::InvoicesView</name>
    <message>
        <source>Number</source>
        <translation>Broj</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Ukupno</translation>
    </message>
    <message>
        <source>There are no invoices behind this figure.</source>
        <translation>Iza ove brojke nema računa.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Ukupno %1</translation>
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
        <translation>za %1</translation>
    </message>
</context>
<context>
    <name>manager::LabelChoice</name>
    <message>
        <source>Nothing to print yet</source>
        <translation>Još nema ničega za ispis</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Stranica %1 od %2</translation>
    </message>
    <message>
        <source>%1 x %2 mm, one at a time</source>
        <translation>%1 x %2 mm, jedna po jedna</translation>
    </message>
    <message>
        <source>%1 x %2 mm, %3 on A4</source>
        <translation>%1 x %2 mm, %3 na A4</translation>
    </message>
    <message>
        <source>Own size on A4</source>
        <translation>Vlastita veličina na A4</translation>
    </message>
    <message>
        <source>Own size, one at a time</source>
        <translation>Vlastita veličina, jedna po jedna</translation>
    </message>
    <message>
        <source>600 an inch, office printer</source>
        <translation>600 po inču, uredski pisač</translation>
    </message>
    <message>
        <source>300 an inch, label printer</source>
        <translation>300 po inču, pisač etiketa</translation>
    </message>
    <message>
        <source>203 an inch, label printer</source>
        <translation>203 po inču, pisač etiketa</translation>
    </message>
</context>
<context>
    <name>manager::LabelsPage</name>
    <message>
        <source>1 Goods</source>
        <translation>1 Roba</translation>
    </message>
    <message>
        <source>2 Labels</source>
        <translation>2 Etikete</translation>
    </message>
    <message>
        <source>Price list</source>
        <translation>Cjenik</translation>
    </message>
    <message>
        <source>&amp;Print price list</source>
        <translation>I&amp;spis cjenika</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>I&amp;spis etiketa</translation>
    </message>
    <message numerus="yes">
        <source>Pages: %n</source>
        <translation>
            <numerusform>Stranice: %n</numerusform>
            <numerusform>Stranice: %n</numerusform>
            <numerusform>Stranice: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels: %n</source>
        <translation>
            <numerusform>Etikete: %n</numerusform>
            <numerusform>Etikete: %n</numerusform>
            <numerusform>Etikete: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</source>
        <translation>
            <numerusform>Etikete bez barkoda: %n. Preuske su za šifru ili barkod ne može prikazati njezine znakove.</numerusform>
            <numerusform>Etikete bez barkoda: %n. Preuske su za šifru ili barkod ne može prikazati njezine znakove.</numerusform>
            <numerusform>Etikete bez barkoda: %n. Preuske su za šifru ili barkod ne može prikazati njezine znakove.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</source>
        <translation>
            <numerusform>Bez cijene za kilogram ili litru: %n. Iz naziva se ne vidi količina.</numerusform>
            <numerusform>Bez cijene za kilogram ili litru: %n. Iz naziva se ne vidi količina.</numerusform>
            <numerusform>Bez cijene za kilogram ili litru: %n. Iz naziva se ne vidi količina.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Chosen goods that are no longer there: %n</source>
        <translation>
            <numerusform>Odabrana roba koje više nema: %n</numerusform>
            <numerusform>Odabrana roba koje više nema: %n</numerusform>
            <numerusform>Odabrana roba koje više nema: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose some goods first.</source>
        <translation>Najprije odaberite robu.</translation>
    </message>
    <message numerus="yes">
        <source>Printed. Pages: %n.</source>
        <translation>
            <numerusform>Ispisano. Stranice: %n.</numerusform>
            <numerusform>Ispisano. Stranice: %n.</numerusform>
            <numerusform>Ispisano. Stranice: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saved as %1. Pages: %n.</source>
        <translation>
            <numerusform>Spremljeno kao %1. Stranice: %n.</numerusform>
            <numerusform>Spremljeno kao %1. Stranice: %n.</numerusform>
            <numerusform>Spremljeno kao %1. Stranice: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Spremi kao PDF</translation>
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
        <translation>Kako je isporučeno</translation>
    </message>
    <message>
        <source>It is kept. The till and this program have it from their next start.</source>
        <translation>Spremljeno. Vrijedi od sljedećeg pokretanja blagajne i ovog programa.</translation>
    </message>
</context>
<context>
    <name>manager::ManagerLogin</name>
    <message>
        <source>This name and password are not those of a user of level 3.</source>
        <translation>Ovo ime i lozinka ne pripadaju korisniku razine 3.</translation>
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
        <translation>Vrijednosti novčanica i kovanica u valuti %1, s razmakom između:</translation>
    </message>
</context>
<context>
    <name>manager::OverviewCharts</name>
    <message>
        <source>7 days before</source>
        <translation>7 dana prije</translation>
    </message>
    <message>
        <source>Month before</source>
        <translation>Mjesec prije</translation>
    </message>
    <message>
        <source>Year before</source>
        <translation>Godina prije</translation>
    </message>
    <message>
        <source>Days before</source>
        <translation>Dani prije</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>nestalo</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 dan</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dana</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Sat</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dani</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Promet</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Dan u tjednu</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Komadi</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Stopa</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Osnovica</translation>
    </message>
    <message>
        <source>Tax amount</source>
        <translation>Iznos poreza</translation>
    </message>
    <message>
        <source>With tax</source>
        <translation>S porezom</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, u %2</translation>
    </message>
    <message>
        <source>In stock</source>
        <translation>Na zalihi</translation>
    </message>
    <message>
        <source>Goes a day</source>
        <translation>Prodaja dnevno</translation>
    </message>
    <message>
        <source>Lasts days</source>
        <translation>Traje (dana)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 do %2</translation>
    </message>
</context>
<context>
    <name>manager::OverviewPage</name>
    <message>
        <source>Nothing was sold on these days.</source>
        <translation>U tim danima ništa nije prodano.</translation>
    </message>
    <message>
        <source>No goods are in stock. Enter what you have on the page of the goods.</source>
        <translation>Na zalihi nema robe. Upišite što imate na stranici Roba.</translation>
    </message>
    <message>
        <source>Nothing was sold in the last four weeks, so nothing runs out.</source>
        <translation>U zadnja četiri tjedna ništa nije prodano, pa ništa neće nestati.</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Prvi dan je nakon zadnjeg.</translation>
    </message>
    <message>
        <source>Not on the touch table</source>
        <translation>Nije na tablici tipki</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Čita se ...</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>Reading back from %1 ...</source>
        <translation>Čita se unatrag od %1 ...</translation>
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
        <translation>Danas, %1 %2</translation>
    </message>
    <message>
        <source>A week ago</source>
        <translation>Prije tjedan dana</translation>
    </message>
    <message>
        <source>Mean of the last %1</source>
        <translation>Prosjek zadnjih %1</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Do %1</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Odabrano: %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 račun</translation>
    </message>
    <message>
        <source>%1 invoices, %2 each</source>
        <translation>Računi: %1, prosječno %2</translation>
    </message>
    <message>
        <source>Read back to %1; what is older was left out.</source>
        <translation>Pročitano unatrag do %1; starije je izostavljeno.</translation>
    </message>
    <message>
        <source>The reading was left.</source>
        <translation>Čitanje je prekinuto.</translation>
    </message>
    <message>
        <source>Overview of %1, printed on %2, amounts in %3</source>
        <translation>Pregled prometa: %1, ispisano %2, iznosi u %3</translation>
    </message>
    <message>
        <source>The overview is printed.</source>
        <translation>Pregled prometa je ispisan.</translation>
    </message>
    <message>
        <source>Save the overview</source>
        <translation>Spremi pregled prometa</translation>
    </message>
    <message>
        <source>Document (*.pdf)</source>
        <translation>Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Spremljeno kao %1.</translation>
    </message>
    <message>
        <source>Save the figures</source>
        <translation>Spremi brojke</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tablica (*.csv)</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Pregled prometa</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Promet</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Od toga porez</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
</context>
<context>
    <name>manager::PageOfBoxes</name>
    <message>
        <source>Save what was changed?</source>
        <translation>Spremiti promjene?</translation>
    </message>
</context>
<context>
    <name>manager::Pages</name>
    <message>
        <source>Overview</source>
        <translation>Pregled prometa</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Izvještaji</translation>
    </message>
    <message>
        <source>Drawer</source>
        <translation>Ladica</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Cijene</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etikete</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Pisači</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jezik</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Priprema</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sigurnosna kopija</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Stanje podataka</translation>
    </message>
    <message>
        <source>Several tills</source>
        <translation>Više blagajni</translation>
    </message>
</context>
<context>
    <name>manager::PasswordStep</name>
    <message>
        <source>Choose a password that not everybody knows.</source>
        <translation>Odaberite lozinku koju ne znaju svi.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Lozinke nisu jednake.</translation>
    </message>
    <message>
        <source>This user is gone.</source>
        <translation>Ovog korisnika više nema.</translation>
    </message>
    <message>
        <source>%1 still has the password that every shop is delivered with: %2.</source>
        <translation>%1 još ima lozinku s kojom se isporučuje svaka trgovina: %2.</translation>
    </message>
</context>
<context>
    <name>manager::PortPanel</name>
    <message>
        <source>It is ready, as far as it tells.</source>
        <translation>Spreman je, koliko sam javlja.</translation>
    </message>
    <message>
        <source>It has no paper.</source>
        <translation>Nema papira.</translation>
    </message>
    <message>
        <source>Its cover is open.</source>
        <translation>Otvoren mu je poklopac.</translation>
    </message>
    <message>
        <source>It is offline or has an error.</source>
        <translation>Nije spreman ili javlja pogrešku.</translation>
    </message>
    <message>
        <source>It does not answer. Many printers never do; then leave the box above empty.</source>
        <translation>Ne odgovara. Mnogi pisači nikad ne odgovaraju; tada isključite provjeru iznad.</translation>
    </message>
    <message>
        <source>Port &amp;%1:</source>
        <translation>Priključak &amp;%1:</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>Radi se…</translation>
    </message>
    <message>
        <source>VELTON Manager, port %1</source>
        <translation>VELTON Manager, priključak %1</translation>
    </message>
    <message>
        <source>This line is bold, if the printer can.</source>
        <translation>Ovaj je redak podebljan, ako pisač to može.</translation>
    </message>
    <message>
        <source>A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are wrong want another code page in the printer.</source>
        <translation>Probna stranica je poslana. Svako ravnalo treba stati u jedan redak ako je papir toliko širok; pogrešna slova znače da pisač treba drugu kodnu stranicu.</translation>
    </message>
    <message>
        <source>The drawer was told to open.</source>
        <translation>Ladici je poslana naredba za otvaranje.</translation>
    </message>
    <message>
        <source>The printer was told to cut.</source>
        <translation>Pisaču je poslana naredba za rezanje.</translation>
    </message>
    <message>
        <source>File %1</source>
        <translation>Datoteka %1</translation>
    </message>
    <message>
        <source>File %1 in the folder of the register</source>
        <translation>Datoteka %1 u mapi blagajne</translation>
    </message>
    <message>
        <source>Printer on the network at %1</source>
        <translation>Mrežni pisač na %1</translation>
    </message>
    <message>
        <source>The usual device</source>
        <translation>Uobičajeni uređaj</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Uređaj %1</translation>
    </message>
</context>
<context>
    <name>manager::PriceList</name>
    <message>
        <source>Other goods</source>
        <translation>Ostala roba</translation>
    </message>
    <message>
        <source>Price list</source>
        <translation>Cjenik</translation>
    </message>
    <message>
        <source>%1, prices in %2</source>
        <translation>%1, cijene u %2</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (nastavak)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Stranica %1 od %2</translation>
    </message>
</context>
<context>
    <name>manager::PricesPage</name>
    <message>
        <source>Say what is to change, and press Look.</source>
        <translation>Odredite što se mijenja i pritisnite Pregled.</translation>
    </message>
    <message>
        <source>Prices by percent</source>
        <translation>Cijene za postotak</translation>
    </message>
    <message>
        <source>Tax rates</source>
        <translation>Stope poreza</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Prije</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Poslije</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Zašto ne</translation>
    </message>
    <message>
        <source>to the cent</source>
        <translation>na cent</translation>
    </message>
    <message>
        <source>by 0.05</source>
        <translation>na 0,05</translation>
    </message>
    <message>
        <source>by 0.10</source>
        <translation>na 0,10</translation>
    </message>
    <message>
        <source>at .99</source>
        <translation>na ,99</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Goods keep the rate that their tax had when they were entered. Those with another rate get that of now. Prices hold the tax and stay.</source>
        <translation>Roba zadržava stopu koju je njezin porez imao kad je upisana. Ona s drugom stopom dobiva sadašnju. Cijene sadrže porez i ostaju.</translation>
    </message>
    <message>
        <source>Below zero the goods get cheaper. Of two prices as near the higher one is taken.</source>
        <translation>Ispod nule roba pojeftinjuje. Od dviju jednako bliskih cijena uzima se viša.</translation>
    </message>
    <message>
        <source>Prices by %1 %</source>
        <translation>Cijene za %1 %</translation>
    </message>
    <message>
        <source>The percent has to be a number above -100, up to 1000, with at most two decimals.</source>
        <translation>Postotak mora biti broj veći od -100, a najviše 1000, s najviše dvije decimale.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Ništa se ne bi promijenilo.</translation>
    </message>
    <message>
        <source>%1 changed, %2 unchanged, %3 refused</source>
        <translation>promijenjeno %1, nepromijenjeno %2, odbijeno %3</translation>
    </message>
    <message>
        <source>all</source>
        <translation>sve</translation>
    </message>
</context>
<context>
    <name>manager::PrintersPage</name>
    <message>
        <source>Port 1</source>
        <translation>Priključak 1</translation>
    </message>
    <message>
        <source>Port 2</source>
        <translation>Priključak 2</translation>
    </message>
    <message>
        <source>The page printer</source>
        <translation>Pisač sustava</translation>
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
        <translation>Nema pisača sustava: svaka stranica postaje PDF u mapi printouts.</translation>
    </message>
    <message>
        <source>Page printer: %1</source>
        <translation>Pisač sustava: %1</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Spremljeno.</translation>
    </message>
    <message>
        <source>A test page was sent.</source>
        <translation>Probna stranica je poslana.</translation>
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
        <translation>Nema</translation>
    </message>
    <message>
        <source>Goods by their number (form 1)</source>
        <translation>Roba po rednom broju (oblik 1)</translation>
    </message>
    <message>
        <source>Goods by their code (form 2)</source>
        <translation>Roba po šifri (oblik 2)</translation>
    </message>
</context>
<context>
    <name>manager::ReportsPage</name>
    <message>
        <source>Choose a report and its days, then &quot;Show&quot;.</source>
        <translation>Odaberite izvještaj i dane, zatim &quot;Prikaži&quot;.</translation>
    </message>
    <message>
        <source>The first day lies behind the last.</source>
        <translation>Prvi dan je nakon zadnjeg.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>Za te dane nema ničega.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n redak</numerusform>
            <numerusform>%n retka</numerusform>
            <numerusform>%n redaka</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Table as text (*.csv);;Workbook (*.xlsx)</source>
        <translation>Tablica kao tekst (*.csv);;Radna knjiga (*.xlsx)</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) are saved as %1.</source>
        <translation>
            <numerusform>%n redak spremljen je kao %1.</numerusform>
            <numerusform>%n retka spremljena su kao %1.</numerusform>
            <numerusform>%n redaka spremljeno je kao %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::RestoreForm</name>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Invoices now</source>
        <translation>Računa sada</translation>
    </message>
    <message>
        <source>Takings now</source>
        <translation>Promet sada</translation>
    </message>
    <message>
        <source>Invoices there</source>
        <translation>Računa u kopiji</translation>
    </message>
    <message>
        <source>Takings there</source>
        <translation>Promet u kopiji</translation>
    </message>
    <message>
        <source>Neither the shop nor the backup has sold anything yet.</source>
        <translation>Ni u trgovini ni u sigurnosnoj kopiji još ništa nije prodano.</translation>
    </message>
    <message>
        <source>The backup of %1, with %2 invoices. Takings are in %3.</source>
        <translation>Sigurnosna kopija od %1, broj računa: %2. Promet je u %3.</translation>
    </message>
    <message>
        <source>The shop can&apos;t be read: %1</source>
        <translation>Podaci trgovine ne mogu se pročitati: %1</translation>
    </message>
    <message>
        <source>All days are the same in the shop and in the backup.</source>
        <translation>Svi su dani jednaki u trgovini i u sigurnosnoj kopiji.</translation>
    </message>
    <message>
        <source>Days that differ: %1. They stand first. What the shop has now and the backup has not will be gone from it; all that is replaced is kept in a folder beside it.</source>
        <translation>Dani koji se razlikuju: %1. Oni stoje prvi. Što trgovina sada ima, a kopija nema, nestat će iz nje; sve što se zamijeni čuva se u mapi pokraj nje.</translation>
    </message>
    <message>
        <source>without a day</source>
        <translation>bez dana</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>razlikuje se</translation>
    </message>
</context>
<context>
    <name>manager::SaveAs</name>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 već postoji. Zamijeniti?</translation>
    </message>
</context>
<context>
    <name>manager::SetupPage</name>
    <message>
        <source>1 Receipt</source>
        <translation>1 Račun</translation>
    </message>
    <message>
        <source>2 Taxes</source>
        <translation>2 Porezi</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Spremljeno.</translation>
    </message>
    <message>
        <source>3 Units</source>
        <translation>3 Jedinice</translation>
    </message>
    <message>
        <source>4 Password</source>
        <translation>4 Lozinka</translation>
    </message>
    <message>
        <source>5 Users</source>
        <translation>5 Korisnici</translation>
    </message>
    <message>
        <source>6 Register</source>
        <translation>6 Blagajna</translation>
    </message>
</context>
<context>
    <name>manager::SupportForm</name>
    <message>
        <source>Save the report</source>
        <translation>Spremi izvještaj</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Tekst (*.txt)</translation>
    </message>
    <message>
        <source>The report is saved as %1.</source>
        <translation>Izvještaj je spremljen kao %1.</translation>
    </message>
</context>
<context>
    <name>manager::TaxesStep</name>
    <message>
        <source>Code</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Rate in percent</source>
        <translation>Stopa u postocima</translation>
    </message>
    <message>
        <source>There is a tax with this code or this name already.</source>
        <translation>Porez s tom šifrom ili nazivom već postoji.</translation>
    </message>
    <message>
        <source>This tax can&apos;t be removed, but its name and rate can be changed.</source>
        <translation>Ovaj se porez ne može ukloniti, ali mu se naziv i stopa mogu promijeniti.</translation>
    </message>
    <message>
        <source>Remove the tax &quot;%1&quot;?</source>
        <translation>Ukloniti porez &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The tax needs a code, such as P.</source>
        <translation>Porez mora imati šifru, npr. P.</translation>
    </message>
    <message>
        <source>The tax needs a name.</source>
        <translation>Porez mora imati naziv.</translation>
    </message>
    <message>
        <source>The rate is a number of percent, from 0 to less than 100.</source>
        <translation>Stopa je broj u postocima, od 0 do manje od 100.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) belong to this tax.</source>
        <translation>
            <numerusform>%n artikl pripada ovom porezu.</numerusform>
            <numerusform>%n artikla pripadaju ovom porezu.</numerusform>
            <numerusform>%n artikala pripada ovom porezu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::TillsPage</name>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>Stara baza podataka sačuvana je kao %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Uvijek</translation>
    </message>
    <message>
        <source>Always, and the certificate is checked</source>
        <translation>Uvijek, uz provjeru certifikata</translation>
    </message>
    <message>
        <source>Where the server offers it</source>
        <translation>Ako ga poslužitelj nudi</translation>
    </message>
    <message>
        <source>The shop lies on the server %1. Tills on other machines join it there.</source>
        <translation>Trgovina leži na poslužitelju %1. Blagajne na drugim računalima pridružuju joj se tamo.</translation>
    </message>
    <message>
        <source>The shop lies in the file %1, and serves the tills of this machine.</source>
        <translation>Trgovina leži u datoteci %1 i služi blagajnama na ovom računalu.</translation>
    </message>
    <message>
        <source>Look at the server first, then move the shop there or join the one that is there.</source>
        <translation>Najprije pogledajte poslužitelj, zatim preselite trgovinu na njega ili se pridružite onoj koja je tamo.</translation>
    </message>
    <message>
        <source>The server is there and has no shop of this name yet: this one can move there.</source>
        <translation>Poslužitelj je tu i još nema trgovinu tog naziva: ova se može preseliti na njega.</translation>
    </message>
    <message>
        <source>A shop is there, which has sold nothing yet. Its products: %1.</source>
        <translation>Tamo je trgovina koja još ništa nije prodala. Njezini artikli: %1.</translation>
    </message>
    <message>
        <source>A shop is there, and sold last on %1. Its invoices: %2, its products: %3.</source>
        <translation>Tamo je trgovina koja je zadnji put prodavala %1. Njezini računi: %2, njezini artikli: %3.</translation>
    </message>
    <message>
        <source>Fill in the server, the database, the user and the name of the shop.</source>
        <translation>Upišite poslužitelj, bazu podataka, korisnika i naziv trgovine.</translation>
    </message>
    <message>
        <source>The server is being asked.</source>
        <translation>Čeka se odgovor poslužitelja.</translation>
    </message>
    <message>
        <source>Close the tills of this shop. Is it to move to %1? Its other registers then join it there.</source>
        <translation>Zatvorite blagajne ove trgovine. Treba li je preseliti na %1? Njezine druge blagajne zatim joj se tamo pridružuju.</translation>
    </message>
    <message>
        <source>The shop is moving.</source>
        <translation>Trgovina se seli.</translation>
    </message>
    <message>
        <source>Close the till of this register. Is it to work on the shop on %1 from now on, and no longer on its own?</source>
        <translation>Zatvorite program ove blagajne. Treba li ona od sada raditi u trgovini na %1, a ne više u svojoj?</translation>
    </message>
    <message>
        <source>The register is joining the shop.</source>
        <translation>Blagajna se pridružuje trgovini.</translation>
    </message>
    <message>
        <source>Close all tills of this shop. Is it to come back into the folder of this register? The tills on other machines have no shop then.</source>
        <translation>Zatvorite sve blagajne ove trgovine. Treba li je vratiti u mapu ove blagajne? Blagajne na drugim računalima tada nemaju trgovinu.</translation>
    </message>
    <message>
        <source>Nothing was changed. %1</source>
        <translation>Ništa nije promijenjeno. %1</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick with its pictures</source>
        <translation>Mapa druge blagajne ili USB memorija s njezinim slikama</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick</source>
        <translation>Mapa druge blagajne ili USB memorija</translation>
    </message>
    <message>
        <source>The pictures are being compared.</source>
        <translation>Slike se uspoređuju.</translation>
    </message>
    <message>
        <source>There is no picture to be copied.</source>
        <translation>Nema slika za kopiranje.</translation>
    </message>
    <message>
        <source>The pictures are being copied.</source>
        <translation>Slike se kopiraju.</translation>
    </message>
    <message>
        <source>Pictures that were copied: %1.</source>
        <translation>Kopirane slike: %1.</translation>
    </message>
    <message>
        <source>The shop lies on the server now: %1 rows of %2 tables, compared with those here.</source>
        <translation>Trgovina je sada na poslužitelju: redaka %1 u tablicama %2, uspoređeno s ovdašnjima.</translation>
    </message>
    <message>
        <source>This register works on the shop on the server now.</source>
        <translation>Ova blagajna sada radi u trgovini na poslužitelju.</translation>
    </message>
    <message>
        <source>The shop lies in the folder of this register now: %1 rows of %2 tables, compared with those on the server.</source>
        <translation>Trgovina je sada u mapi ove blagajne: redaka %1 u tablicama %2, uspoređeno s onima na poslužitelju.</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>Stara baza podataka nije se mogla skloniti, a nijedna blagajna više ne smije raditi na njoj. %1</translation>
    </message>
    <message>
        <source>Some pictures would replace others of the same name: %1. Replace them?</source>
        <translation>Neke bi slike zamijenile druge istog imena: %1. Treba li ih zamijeniti?</translation>
    </message>
    <message>
        <source>There is no shop at %1 any more. Join it where it lies now.</source>
        <translation>Trgovine na %1 više nema. Pridružite joj se tamo gdje je sada.</translation>
    </message>
</context>
<context>
    <name>manager::UnitsStep</name>
    <message>
        <source>Short name</source>
        <translation>Kratica</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>The unit needs a short name, such as kg.</source>
        <translation>Jedinica mora imati kraticu, npr. kg.</translation>
    </message>
    <message>
        <source>The unit needs a name, such as kilogram.</source>
        <translation>Jedinica mora imati naziv, npr. kilogram.</translation>
    </message>
    <message>
        <source>There is a unit with this short name already.</source>
        <translation>Jedinica s tom kraticom već postoji.</translation>
    </message>
    <message>
        <source>Remove the unit &quot;%1&quot;?</source>
        <translation>Ukloniti jedinicu &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>A short name has no apostrophe.</source>
        <translation>U kratici ne smije biti apostrofa.</translation>
    </message>
    <message>
        <source>A short name has at most %1 letters; paper has no more room.</source>
        <translation>Najveća duljina kratice: %1; na papiru nema više mjesta.</translation>
    </message>
    <message>
        <source>The till sells by the piece what has this unit, so it stays.</source>
        <translation>Blagajna robu s ovom jedinicom prodaje na komade, zato jedinica ostaje.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) have this unit.</source>
        <translation>
            <numerusform>%n artikl ima ovu jedinicu.</numerusform>
            <numerusform>%n artikla imaju ovu jedinicu.</numerusform>
            <numerusform>%n artikala ima ovu jedinicu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::UsersStep</name>
    <message>
        <source>Number</source>
        <translation>Broj</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
    <message>
        <source>There is a user with this number or this name already.</source>
        <translation>Korisnik s tim brojem ili imenom već postoji.</translation>
    </message>
    <message>
        <source>This user can&apos;t be removed, but name, level and password can be changed.</source>
        <translation>Ovaj se korisnik ne može ukloniti, ali mu se ime, razina i lozinka mogu promijeniti.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>Ukloniti korisnika &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The user needs a number.</source>
        <translation>Korisnik mora imati broj.</translation>
    </message>
    <message>
        <source>The user needs a name to log in with.</source>
        <translation>Korisnik mora imati ime za prijavu.</translation>
    </message>
    <message>
        <source>Choose a level from 1 to 3.</source>
        <translation>Odaberite razinu od 1 do 3.</translation>
    </message>
    <message>
        <source>Somebody has to keep level 3, or nobody can set up the shop any more.</source>
        <translation>Netko mora zadržati razinu 3, inače više nitko neće moći mijenjati postavke trgovine.</translation>
    </message>
    <message>
        <source>This is the user who has logged in here.</source>
        <translation>Ovo je korisnik koji je ovdje prijavljen.</translation>
    </message>
</context>
<context>
    <name>mdiORVA</name>
    <message>
        <source>&amp;Products</source>
        <translation>&amp;Artikli</translation>
    </message>
    <message>
        <source>New Product</source>
        <translation>Novi artikl</translation>
    </message>
    <message>
        <source>View - Edit - Delete Products</source>
        <translation>Pregled - uređivanje - brisanje artikala</translation>
    </message>
    <message>
        <source>Items in stock</source>
        <translation>Zaliha robe</translation>
    </message>
    <message>
        <source>Products list</source>
        <translation>Popis robe</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>&amp;Računi</translation>
    </message>
    <message>
        <source>Search Invoice</source>
        <translation>Traži račun</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>&amp;End Report</source>
        <translation>&amp;Zaključak dana</translation>
    </message>
    <message>
        <source>End Report ...</source>
        <translation>Zaključak dana ...</translation>
    </message>
    <message>
        <source>Preview End Reports</source>
        <translation>Pregled zaključaka dana</translation>
    </message>
    <message>
        <source>Preview End Reports </source>
        <translation>Pojedina razdoblja </translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Postavke</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Račun</translation>
    </message>
    <message>
        <source>Invoice deatails</source>
        <translation>Stavke računa</translation>
    </message>
    <message>
        <source>Click Table</source>
        <translation>Tablica tipki</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Korisnici</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lozinka</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>My Firm</source>
        <translation>Moja tvrtka</translation>
    </message>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Kupci - dobavljači</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Izvještaji</translation>
    </message>
    <message>
        <source>Sale by Invoices</source>
        <translation>Prodaja po računima</translation>
    </message>
    <message>
        <source>Sale by Cashiers</source>
        <translation>Prodaja po blagajnicima</translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <translation>Prodaja po artiklima</translation>
    </message>
    <message>
        <source>Invoices for tax report</source>
        <translation>Knjiga izlaznih računa</translation>
    </message>
    <message>
        <source>Tax Report by Invoices</source>
        <translation>Izvještaj o porezu po računima</translation>
    </message>
    <message>
        <source>TAX Report</source>
        <translation>Izvještaj o porezu</translation>
    </message>
    <message>
        <source>Printed Invoices Ribbon</source>
        <translation>Kontrolna traka računa</translation>
    </message>
    <message>
        <source>Working Time </source>
        <translation>Radno vrijeme </translation>
    </message>
    <message>
        <source>&amp;Fiscal printer</source>
        <translation>&amp;Fiskalni pisač</translation>
    </message>
    <message>
        <source>Deposit - payment </source>
        <translation>Polog - uplata </translation>
    </message>
    <message>
        <source>Deposit - payout</source>
        <translation>Polog - isplata</translation>
    </message>
    <message>
        <source>X report - Overview</source>
        <translation>X izvještaj - presjek stanja</translation>
    </message>
    <message>
        <source>Z report - Daily report</source>
        <translation>Z izvještaj - dnevni</translation>
    </message>
    <message>
        <source>Fiscal Periodic Report</source>
        <translation>Periodični fiskalni izvještaj</translation>
    </message>
    <message>
        <source>Invoice Reclamation</source>
        <translation>Storno računa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>P&amp;omoć</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
    <message>
        <source>About program</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Total: &gt;&gt;</source>
        <translation>Ukupno: &gt;&gt;</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Vrijeme: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Datum: %1</translation>
    </message>
    <message>
        <source>The main window has no entry %1.</source>
        <translation>Glavni prozor nema stavku %1.</translation>
    </message>
</context>
<context>
    <name>output</name>
    <message>
        <source>Channel 1 is already open.</source>
        <translation>Kanal 1 već je otvoren.</translation>
    </message>
    <message>
        <source>Channel 1 is not open.</source>
        <translation>Kanal 1 nije otvoren.</translation>
    </message>
    <message>
        <source>This system lacks the code page %1.</source>
        <translation>Ovom sustavu nedostaje kodna stranica %1.</translation>
    </message>
    <message>
        <source>Cannot take back half of what was written to %1: %2.</source>
        <translation>Nedovršeni zapis u %1 ne može se poništiti: %2.</translation>
    </message>
    <message>
        <source>Cannot write to %1: %2.</source>
        <translation>Ne može se pisati u %1: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>%1 se ne može spremiti: %2.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 se ne može otvoriti: %2.</translation>
    </message>
    <message>
        <source>Waiting for %1, which takes nothing now.</source>
        <translation>Čeka se %1, koji trenutno ništa ne prima.</translation>
    </message>
    <message>
        <source>Cannot open the printer %1: %2.</source>
        <translation>Pisač %1 ne može se otvoriti: %2.</translation>
    </message>
    <message>
        <source>Cannot write to the printer %1: %2.</source>
        <translation>Ne može se pisati na pisač %1: %2.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Mapa %1 ne može se napraviti.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 se ne može zapisati: %2</translation>
    </message>
    <message>
        <source>The page printer cannot be used.</source>
        <translation>Pisač sustava ne može se upotrijebiti.</translation>
    </message>
    <message>
        <source>The page printer takes no further page.</source>
        <translation>Pisač sustava ne prima sljedeću stranicu.</translation>
    </message>
    <message>
        <source>The page printer failed.</source>
        <translation>Pisač sustava je zatajio.</translation>
    </message>
    <message>
        <source>Waiting for the printer on %1 (%2).
Is it switched on, with paper in and its cover closed?</source>
        <translation>Čeka se pisač na %1 (%2).
Je li uključen, ima li papira i je li mu poklopac zatvoren?</translation>
    </message>
    <message>
        <source>%1
Leaving ends the program; what is stored stays stored.</source>
        <translation>%1
Prekid završava program; što je spremljeno, ostaje spremljeno.</translation>
    </message>
    <message>
        <source>the wait for it was left</source>
        <extracomment>stands behind &quot;Cannot write to x: &quot;</extracomment>
        <translation>čekanje je prekinuto</translation>
    </message>
    <message>
        <source>ports.ini has no printer behind &quot;%1&quot;.</source>
        <translation>U datoteci ports.ini nema pisača za &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>ports.ini has &quot;%1&quot; at %2, which is yes or no.</source>
        <translation>U datoteci ports.ini stoji &quot;%1&quot; kod %2, a može biti samo da ili ne (yes, no).</translation>
    </message>
    <message>
        <source>%1
ports.ini has no other printer for %2.</source>
        <translation>%1
U datoteci ports.ini nema drugog pisača za %2.</translation>
    </message>
    <message>
        <source>There is no printer port &quot;%1&quot;.</source>
        <translation>Ne postoji priključak pisača &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Cannot reach the printer %1: %2.</source>
        <translation>Pisač %1 nije dostupan: %2.</translation>
    </message>
    <message>
        <source>The printer %1 has no known address.</source>
        <translation>Pisač %1 nema poznatu adresu.</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>No valid date.</source>
        <translation>Datum nije ispravan.</translation>
    </message>
    <message>
        <source>No valid time.</source>
        <translation>Vrijeme nije ispravno.</translation>
    </message>
    <message>
        <source>The value does not fit the type of the field.</source>
        <translation>Vrijednost ne odgovara vrsti polja.</translation>
    </message>
    <message>
        <source>An action query gives no rows.</source>
        <translation>Akcijski upit ne daje retke.</translation>
    </message>
    <message>
        <source>A SELECT cannot be executed.</source>
        <translation>SELECT se ne može izvršiti.</translation>
    </message>
    <message>
        <source>The query has too many columns.</source>
        <translation>Upit ima previše stupaca.</translation>
    </message>
    <message>
        <source>The query is too complex.</source>
        <translation>Upit je previše složen.</translation>
    </message>
    <message>
        <source>Expected a field, found a constant.</source>
        <translation>Očekivano je polje, a nađena je konstanta.</translation>
    </message>
    <message>
        <source>The field %1 is neither grouped nor inside an aggregate.</source>
        <translation>Polje %1 nije ni grupirano ni unutar agregatne funkcije.</translation>
    </message>
    <message>
        <source>The field %1 is set twice.</source>
        <translation>Polje %1 postavlja se dvaput.</translation>
    </message>
    <message>
        <source>The expression is too complex.</source>
        <translation>Izraz je previše složen.</translation>
    </message>
    <message>
        <source>%1 takes one argument.</source>
        <translation>%1 prima jedan argument.</translation>
    </message>
    <message>
        <source>There is no function %1.</source>
        <translation>Ne postoji funkcija %1.</translation>
    </message>
    <message>
        <source>%1 is not possible in %2.</source>
        <translation>%1 nije dopušteno u %2.</translation>
    </message>
    <message>
        <source>%1 cannot be taken over another aggregate.</source>
        <translation>%1 se ne može računati nad drugom agregatnom funkcijom.</translation>
    </message>
    <message>
        <source>an expression</source>
        <translation>izraz</translation>
    </message>
    <message>
        <source>a field name</source>
        <translation>naziv polja</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation>Izraz je preduboko ugniježđen.</translation>
    </message>
    <message>
        <source>LIKE, BETWEEN or IN</source>
        <translation>LIKE, BETWEEN ili IN</translation>
    </message>
    <message>
        <source>The query text is too long.</source>
        <translation>Tekst upita je predug.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>&quot;%1&quot; nije broj.</translation>
    </message>
    <message>
        <source>A text is not closed by a quote.</source>
        <translation>Tekst nije zatvoren navodnikom.</translation>
    </message>
    <message>
        <source>A name is not closed by a bracket.</source>
        <translation>Naziv nije zatvoren zagradom.</translation>
    </message>
    <message>
        <source>A name is missing between the brackets.</source>
        <translation>Između zagrada nedostaje naziv.</translation>
    </message>
    <message>
        <source>A date is not closed by #.</source>
        <translation>Datum nije zatvoren znakom #.</translation>
    </message>
    <message>
        <source>A sign that the query language does not know.</source>
        <translation>Znak koji jezik upita ne poznaje.</translation>
    </message>
    <message>
        <source>%1 is not a date.</source>
        <translation>%1 nije datum.</translation>
    </message>
    <message>
        <source>%1 is not a time.</source>
        <translation>%1 nije vrijeme.</translation>
    </message>
    <message>
        <source>%1 is not yes or no.</source>
        <translation>%1 nije ni da ni ne.</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 nije broj.</translation>
    </message>
    <message>
        <source>%1 is not a date; a date is written #mm-dd-yyyy#.</source>
        <translation>%1 nije datum; datum se piše #mm-dd-gggg#.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 je prevelik broj.</translation>
    </message>
    <message>
        <source>The query text is nested too deeply.</source>
        <translation>Tekst upita preduboko je ugniježđen.</translation>
    </message>
    <message>
        <source>an alias</source>
        <translation>zamjenski naziv</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>kraj teksta</translation>
    </message>
    <message>
        <source>SELECT, UPDATE or DELETE</source>
        <translation>SELECT, UPDATE ili DELETE</translation>
    </message>
    <message>
        <source>a table name</source>
        <translation>naziv tablice</translation>
    </message>
    <message>
        <source>A query joins too many tables.</source>
        <translation>Upit spaja previše tablica.</translation>
    </message>
    <message>
        <source>There is no table %1.</source>
        <translation>Ne postoji tablica %1.</translation>
    </message>
    <message>
        <source>Two tables are called %1; one needs an alias.</source>
        <translation>Dvije se tablice zovu %1; jedna mora imati zamjenski naziv.</translation>
    </message>
    <message>
        <source>The query has no table %1.</source>
        <translation>Upit nema tablicu %1.</translation>
    </message>
    <message>
        <source>The field %1 is in more than one table: %2.</source>
        <translation>Polje %1 nalazi se u više tablica: %2.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>Ne postoji polje %1.</translation>
    </message>
    <message>
        <source>Two columns have the alias %1.</source>
        <translation>Dva stupca imaju zamjenski naziv %1.</translation>
    </message>
    <message>
        <source>Expected %1, found the keyword %2, which is a name only in square brackets.</source>
        <translation>Očekivano: %1; nađena je ključna riječ %2, koja je naziv samo u uglatim zagradama.</translation>
    </message>
    <message>
        <source>A query text is one statement; nothing may follow the semicolon.</source>
        <translation>Tekst upita je jedna naredba; iza točke-zareza ne smije biti ničega.</translation>
    </message>
    <message>
        <source>Expected %1, found the end of the text.</source>
        <translation>Očekivano: %1; nađen je kraj teksta.</translation>
    </message>
    <message>
        <source>Expected %1, found %2.</source>
        <translation>Očekivano: %1; nađeno: %2.</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>a time</source>
        <translation>vrijeme</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>an empty field, as query texts have it</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>da ili ne</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>broj</translation>
    </message>
    <message>
        <source>%1 cannot be calculated with %2.</source>
        <translation>Ne može se računati: %1 i %2.</translation>
    </message>
    <message>
        <source>A minus cannot stand before %1.</source>
        <translation>Ispred vrijednosti vrste %1 ne može stajati minus.</translation>
    </message>
    <message>
        <source>A query cannot turn %1 into a text.</source>
        <translation>Upit ne može vrijednost vrste %1 pretvoriti u tekst.</translation>
    </message>
    <message>
        <source>%1 cannot be compared with %2.</source>
        <translation>Ne može se uspoređivati: %1 i %2.</translation>
    </message>
    <message>
        <source>LIKE compares texts, and this is %1.</source>
        <translation>LIKE uspoređuje tekstove, a ovo je %1.</translation>
    </message>
    <message>
        <source>Val reads a text, and this is %1.</source>
        <translation>Val čita tekst, a ovo je %1.</translation>
    </message>
    <message>
        <source>Sum adds numbers, and this is %1.</source>
        <translation>Sum zbraja brojeve, a ovo je %1.</translation>
    </message>
    <message>
        <source>Expected a condition; this is %1.</source>
        <translation>Očekivan je uvjet, a ovo je %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written to a field that holds %2.</source>
        <translation>Vrijednost vrste %1 ne može se upisati u polje vrste %2.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>Rad je prekinut.</translation>
    </message>
    <message>
        <source>This list has no field %1.</source>
        <translation>Ovaj popis nema polje %1.</translation>
    </message>
    <message>
        <source>The store is of version %1, which this program does not know.</source>
        <translation>Baza podataka ima inačicu %1, koju ovaj program ne poznaje.</translation>
    </message>
    <message>
        <source>The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME.</source>
        <translation>Adresa poslužitelja nema oblik postgresql://KORISNIK@RAČUNALO/BAZA?schema=NAZIV.</translation>
    </message>
    <message>
        <source>A password does not belong into the address of the server; its place is ~/.pgpass.</source>
        <translation>Lozinka ne pripada u adresu poslužitelja; njezino je mjesto u ~/.pgpass.</translation>
    </message>
    <message>
        <source>A text with a zero character cannot lie on a server.</source>
        <translation>Tekst s nultim znakom ne može biti na poslužitelju.</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>ne odgovara</translation>
    </message>
    <message>
        <source>it asks for a password, and ~/.pgpass has none for it</source>
        <translation>traži lozinku, a u ~/.pgpass je nema</translation>
    </message>
    <message>
        <source>The address of the server %1 cannot be read.</source>
        <translation>Adresa poslužitelja %1 ne može se pročitati.</translation>
    </message>
    <message>
        <source>The server of the store %1 cannot be reached: %2.</source>
        <translation>Poslužitelj baze podataka %1 nije dostupan: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 has not heard from its standby.</source>
        <translation>Poslužitelj baze podataka %1 nema odgovora od svog pričuvnog poslužitelja.</translation>
    </message>
    <message>
        <source>The server of the store %1 does not answer.</source>
        <translation>Poslužitelj baze podataka %1 ne odgovara.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost: %2.</source>
        <translation>Veza s poslužiteljem baze podataka %1 je prekinuta: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while many changes were being stored; none of them is.</source>
        <translation>Veza s poslužiteljem baze podataka %1 prekinuta je dok se spremalo više promjena; nijedna nije spremljena.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while a sale was being stored; how much of it is, is not known.</source>
        <translation>Veza s poslužiteljem baze podataka %1 prekinuta je dok se spremala prodaja; ne zna se koliko je od nje spremljeno.</translation>
    </message>
    <message>
        <source>The store is locked by another user, and the wait for it was left.</source>
        <translation>Bazu podataka zaključao je drugi korisnik, a čekanje je prekinuto.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while the last change was being stored; whether it is, is not known.</source>
        <translation>Veza s poslužiteljem baze podataka %1 prekinuta je dok se spremala zadnja promjena; ne zna se je li spremljena.</translation>
    </message>
    <message>
        <source>%1 Whether the last change is stored is not known.</source>
        <translation>%1 Ne zna se je li zadnja promjena spremljena.</translation>
    </message>
    <message>
        <source>No batch is open.</source>
        <translation>Nije otvorena nijedna skupina promjena.</translation>
    </message>
    <message>
        <source>A batch is open already.</source>
        <translation>Skupina promjena već je otvorena.</translation>
    </message>
    <message>
        <source>The server of %1 is older than version 15.</source>
        <translation>Poslužitelj za %1 stariji je od inačice 15.</translation>
    </message>
    <message>
        <source>The database of %1 holds texts in %2, not in UTF8.</source>
        <translation>Baza podataka %1 drži tekstove u %2, a ne u UTF8.</translation>
    </message>
    <message>
        <source>The server of %1 is a standby and takes no changes.</source>
        <translation>Poslužitelj za %1 je pričuvni i ne prima promjene.</translation>
    </message>
    <message>
        <source>The role has no right to use the schema of the store %1.</source>
        <translation>Uloga nema pravo upotrebe sheme baze podataka %1.</translation>
    </message>
    <message>
        <source>%1 is no store of this kind (%2).</source>
        <translation>%1 nije baza podataka ove vrste (%2).</translation>
    </message>
    <message>
        <source>The store %1 is of version %2; this program knows versions up to %3.</source>
        <translation>Baza podataka %1 ima inačicu %2; ovaj program poznaje inačice do %3.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to: the role has no right to %2.</source>
        <translation>U bazu podataka %1 ne može se pisati: uloga nema pravo %2.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks %2.</source>
        <translation>Baza podataka %1 je oštećena: nedostaje %2.</translation>
    </message>
    <message>
        <source>The store %1 is held exclusively by another user.</source>
        <translation>Bazu podataka %1 drži samo za sebe drugi korisnik.</translation>
    </message>
    <message>
        <source>There is no store at %1.</source>
        <translation>Na mjestu %1 nema baze podataka.</translation>
    </message>
    <message>
        <source>There is a store at %1 already.</source>
        <translation>Na mjestu %1 već postoji baza podataka.</translation>
    </message>
    <message>
        <source>%1.%2, rows from %3 on: %4</source>
        <translation>%1.%2, reci od %3 nadalje: %4</translation>
    </message>
    <message>
        <source>%1, rows from %2 on: %3</source>
        <translation>%1, reci od %2 nadalje: %3</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>shema %1</translation>
    </message>
    <message>
        <source>%1: the next number is taken already</source>
        <translation>%1: sljedeći broj već je zauzet</translation>
    </message>
    <message>
        <source>No copy can be made while a batch is open.</source>
        <translation>Kopija se ne može napraviti dok je otvorena skupina promjena.</translation>
    </message>
    <message>
        <source>The copy is damaged: %1</source>
        <translation>Kopija je oštećena: %1</translation>
    </message>
    <message>
        <source>There is no room left on the server&apos;s disk</source>
        <translation>Na disku poslužitelja više nema mjesta</translation>
    </message>
    <message>
        <source>The server refused the access</source>
        <translation>Poslužitelj je odbio pristup</translation>
    </message>
    <message>
        <source>The store was moved away on the server, with all that was stored until then (%1).</source>
        <translation>Baza podataka premještena je na poslužitelju, sa svime što je dotad spremljeno (%1).</translation>
    </message>
    <message>
        <source>This cursor has not changed any row.</source>
        <translation>Ovaj kursor nije promijenio nijedan redak.</translation>
    </message>
    <message>
        <source>The rows of this cursor cannot be changed.</source>
        <translation>Reci ovog kursora ne mogu se mijenjati.</translation>
    </message>
    <message>
        <source>Update without AddNew or Edit.</source>
        <translation>Update bez AddNew ili Edit.</translation>
    </message>
    <message>
        <source>The row was changed by another user.</source>
        <translation>Redak je promijenio drugi korisnik.</translation>
    </message>
    <message>
        <source>This cursor has no field %1.</source>
        <translation>Ovaj kursor nema polje %1.</translation>
    </message>
    <message>
        <source>This cursor has no field at position %1.</source>
        <translation>Ovaj kursor nema polje na mjestu %1.</translation>
    </message>
    <message>
        <source>A field was written without AddNew or Edit.</source>
        <translation>Polje je upisano bez AddNew ili Edit.</translation>
    </message>
    <message>
        <source>The field %1 is computed.</source>
        <translation>Polje %1 se izračunava.</translation>
    </message>
    <message>
        <source>%1 numbers itself.</source>
        <translation>%1 se samo numerira.</translation>
    </message>
    <message>
        <source>%1 counts from 1.</source>
        <translation>%1 broji od 1.</translation>
    </message>
    <message>
        <source>The cursor is closed.</source>
        <translation>Kursor je zatvoren.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>Nema tekućeg retka.</translation>
    </message>
    <message>
        <source>The row was deleted.</source>
        <translation>Redak je obrisan.</translation>
    </message>
    <message>
        <source>The marked row is not in this cursor.</source>
        <translation>Označeni redak nije u ovom kursoru.</translation>
    </message>
    <message>
        <source>This cursor cannot be searched.</source>
        <translation>Ovaj se kursor ne može pretraživati.</translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation>otvaranje %1</translation>
    </message>
    <message>
        <source>copying a store</source>
        <translation>kopiranje baze podataka</translation>
    </message>
    <message>
        <source>The store is locked by another user and could not be copied.</source>
        <translation>Bazu podataka zaključao je drugi korisnik i nije se mogla kopirati.</translation>
    </message>
    <message>
        <source>The file %1 exists already.</source>
        <translation>Datoteka %1 već postoji.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no file.</source>
        <translation>&apos;%1&apos; nije naziv datoteke.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a store, because of its ending %2.</source>
        <translation>&apos;%1&apos; ne može biti naziv baze podataka zbog nastavka %2.</translation>
    </message>
    <message>
        <source>The folder %1 was not found.</source>
        <translation>Mapa %1 nije pronađena.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder %1: %2.</source>
        <translation>U mapu %1 ne može se ništa zapisati: %2.</translation>
    </message>
    <message>
        <source>%1 could not be brought to the disk: %2.</source>
        <translation>%1 se nije moglo zapisati na disk: %2.</translation>
    </message>
    <message>
        <source>%1 could not be made: %2.</source>
        <translation>%1 se nije moglo napraviti: %2.</translation>
    </message>
    <message>
        <source>Another program is just making %1.</source>
        <translation>Drugi program upravo izrađuje %1.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; what was stored until then is saved in %2.</source>
        <translation>Baza podataka %1 (ili njezin dnevnik) obrisana je, premještena ili zamijenjena dok ju je program držao otvorenu, pa se u nju više ništa ne zapisuje; što je dotad spremljeno nalazi se u %2.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; no copy of what was stored until then could be made: %2</source>
        <translation>Baza podataka %1 (ili njezin dnevnik) obrisana je, premještena ili zamijenjena dok ju je program držao otvorenu, pa se u nju više ništa ne zapisuje; kopija onoga što je dotad spremljeno nije se mogla napraviti: %2</translation>
    </message>
    <message>
        <source>The store %1 was not found.</source>
        <translation>Baza podataka %1 nije pronađena.</translation>
    </message>
    <message>
        <source>%1 is empty and no store.</source>
        <translation>%1 je prazno i nije baza podataka.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to.</source>
        <translation>U bazu podataka %1 ne može se pisati.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks the column %2 of %3.</source>
        <translation>Baza podataka %1 je oštećena: nedostaje stupac %2 u %3.</translation>
    </message>
    <message>
        <source>No write-ahead log can be kept beside %1.</source>
        <translation>Uz %1 ne može se voditi dnevnik promjena.</translation>
    </message>
    <message>
        <source>%1 is damaged or no store (%2).</source>
        <translation>%1 je oštećeno ili nije baza podataka (%2).</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened for writing (%2).</source>
        <translation>Baza podataka %1 ne može se otvoriti za pisanje (%2).</translation>
    </message>
    <message>
        <source>making %1</source>
        <translation>izrada %1</translation>
    </message>
    <message>
        <source>Another program has the store %1 open.</source>
        <translation>Baza podataka %1 otvorena je u drugom programu.</translation>
    </message>
    <message>
        <source>The store %1 cannot be renamed.</source>
        <translation>Baza podataka %1 ne može se preimenovati.</translation>
    </message>
    <message>
        <source>bringing a burst of changes to the disk</source>
        <translation>zapisivanje niza promjena na disk</translation>
    </message>
    <message>
        <source>%1, %2 (%3).</source>
        <extracomment>what was refused, what was being done, and the engine&apos;s own words: &quot;The store is damaged, opening x (y).&quot;</extracomment>
        <translation>%1, %2 (%3).</translation>
    </message>
    <message>
        <source>copying to %1</source>
        <translation>kopiranje u %1</translation>
    </message>
    <message>
        <source>preparing %1</source>
        <translation>priprema %1</translation>
    </message>
    <message>
        <source>running a query</source>
        <translation>izvršavanje upita</translation>
    </message>
    <message>
        <source>The file %1 went away while the store was being opened.</source>
        <translation>Datoteka %1 nestala je dok se baza podataka otvarala.</translation>
    </message>
    <message>
        <source>setting up the text rules</source>
        <translation>postavljanje pravila za tekst</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Preljev</translation>
    </message>
    <message>
        <source>The store is locked by another user</source>
        <translation>Bazu podataka zaključao je drugi korisnik</translation>
    </message>
    <message>
        <source>The work was left</source>
        <translation>Rad je prekinut</translation>
    </message>
    <message>
        <source>A row with this key exists already</source>
        <translation>Redak s tim ključem već postoji</translation>
    </message>
    <message>
        <source>Other rows of the store refer to this one</source>
        <translation>Drugi reci baze podataka upućuju na ovaj</translation>
    </message>
    <message>
        <source>A value does not fit the type of its column</source>
        <translation>Vrijednost ne odgovara vrsti svog stupca</translation>
    </message>
    <message>
        <source>There is no room left on the disk</source>
        <translation>Na disku više nema mjesta</translation>
    </message>
    <message>
        <source>The store is damaged</source>
        <translation>Baza podataka je oštećena</translation>
    </message>
    <message>
        <source>The store cannot be written to</source>
        <translation>U bazu podataka ne može se pisati</translation>
    </message>
    <message>
        <source>The disk or the network refused the access</source>
        <translation>Disk ili mreža odbili su pristup</translation>
    </message>
    <message>
        <source>The store refused the operation</source>
        <translation>Baza podataka odbila je radnju</translation>
    </message>
    <message>
        <source>Did you mean: %1</source>
        <translation>Možda ste mislili: %1</translation>
    </message>
    <message>
        <source>Cannot use %1: it names a path and a url, but only one store.</source>
        <translation>%1 se ne može upotrijebiti: navodi i put (path) i url, a baza podataka je samo jedna.</translation>
    </message>
    <message>
        <source>Cannot read %1: it has no line path=... or url=... in a section [main].</source>
        <translation>%1 se ne može pročitati: u odjeljku [main] nema retka path=... ni url=...</translation>
    </message>
</context>
<context>
    <name>upkeep</name>
    <message>
        <source>The folder for backups, %1, went away while the backup was being made. Was the stick drawn?</source>
        <translation>Mapa za sigurnosne kopije, %1, nestala je dok se kopija radila. Je li USB memorija izvučena?</translation>
    </message>
    <message>
        <source>Looking at the folder for backups</source>
        <translation>Pregledava se mapa za sigurnosne kopije</translation>
    </message>
    <message>
        <source>Copying the shop</source>
        <translation>Kopiraju se podaci trgovine</translation>
    </message>
    <message>
        <source>The days in the copy are not those of the shop.</source>
        <translation>Dani u kopiji nisu isti kao u trgovini.</translation>
    </message>
    <message>
        <source>Copying the settings</source>
        <translation>Kopiraju se postavke</translation>
    </message>
    <message>
        <source>Comparing the days</source>
        <translation>Uspoređuju se dani</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Kopira se %1</translation>
    </message>
    <message>
        <source>Looking at %1</source>
        <translation>Pregledava se %1</translation>
    </message>
    <message>
        <source>Reading %1 back</source>
        <translation>Provjerava se zapisano: %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read back as it was written: the disk or stick is worn out.</source>
        <translation>%1 se ne može pročitati onako kako je zapisano: disk ili USB memorija je dotrajala.</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Završava se</translation>
    </message>
    <message>
        <source>No folder for backups has been chosen yet.</source>
        <translation>Mapa za sigurnosne kopije još nije odabrana.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now.</source>
        <translation>Upravo se radi sigurnosna kopija ove blagajne.</translation>
    </message>
    <message>
        <source>It does not say when it was made.</source>
        <translation>Ne piše kad je napravljena.</translation>
    </message>
    <message>
        <source>%1 is missing in it.</source>
        <translation>U njoj nedostaje %1.</translation>
    </message>
    <message>
        <source>%1 in it is not whole.</source>
        <translation>U njoj %1 nije cijelo.</translation>
    </message>
    <message>
        <source>Its list of files can&apos;t be read.</source>
        <translation>Njezin popis datoteka ne može se pročitati.</translation>
    </message>
    <message>
        <source>%1 is no backup of a register.</source>
        <translation>%1 nije sigurnosna kopija blagajne.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there. Is the stick or the disk plugged in?</source>
        <translation>Mape za sigurnosne kopije, %1, nema. Je li USB memorija ili disk priključen?</translation>
    </message>
    <message>
        <source>%1 is no folder for backups.</source>
        <translation>%1 nije mapa za sigurnosne kopije.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can only be read.</source>
        <translation>Mapa za sigurnosne kopije, %1, može se samo čitati.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can&apos;t be written to.</source>
        <translation>U mapu za sigurnosne kopije, %1, ne može se pisati.</translation>
    </message>
    <message>
        <source>The backups need a folder outside of the register&apos;s own.</source>
        <translation>Sigurnosne kopije trebaju mapu izvan mape same blagajne.</translation>
    </message>
    <message>
        <source>The folder %1 is not the one that was chosen for backups. Is the right stick or disk plugged in? If it is, choose the folder anew.</source>
        <translation>Mapa %1 nije ona koja je odabrana za sigurnosne kopije. Je li priključena prava USB memorija ili pravi disk? Ako jest, ponovno odaberite mapu.</translation>
    </message>
    <message>
        <source>The last good backup is of %1.</source>
        <translation>Zadnja ispravna sigurnosna kopija je od %1.</translation>
    </message>
    <message>
        <source>There is no good backup yet.</source>
        <translation>Još nema ispravne sigurnosne kopije.</translation>
    </message>
    <message>
        <source>The backup of %1 could not be made: %2
%3</source>
        <translation>Sigurnosna kopija za %1 nije se mogla napraviti: %2
%3</translation>
    </message>
    <message>
        <source>No backup was made for more than three days, although the shop was selling.
%1</source>
        <translation>Više od tri dana nije napravljena sigurnosna kopija, a trgovina je prodavala.
%1</translation>
    </message>
    <message>
        <source>The stores are looked at.</source>
        <translation>Pregledavaju se baze podataka.</translation>
    </message>
    <message>
        <source>The sales are read.</source>
        <translation>Čita se prodaja.</translation>
    </message>
    <message>
        <source>The invoices are looked at.</source>
        <translation>Pregledavaju se računi.</translation>
    </message>
    <message>
        <source>The goods are looked at.</source>
        <translation>Pregledava se roba.</translation>
    </message>
    <message>
        <source>The receipts are looked at.</source>
        <translation>Pregledavaju se ispisani računi.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 se ne može pročitati: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written</source>
        <translation>%1 se ne može zapisati</translation>
    </message>
    <message>
        <source>%1 can&apos;t be brought to the disk</source>
        <translation>%1 se ne može zapisati na disk</translation>
    </message>
    <message>
        <source>%1 can&apos;t be renamed to %2</source>
        <translation>%1 se ne može preimenovati u %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made</source>
        <translation>Mapa %1 ne može se napraviti</translation>
    </message>
    <message>
        <source>There is too little room in %1: %2 are needed, and %3 are free.</source>
        <translation>U %1 nema dovoljno mjesta: treba %2, a slobodno je %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a formula. Copy the cell in the spreadsheet and paste it as a value.</source>
        <translation>&apos;%1&apos; je formula. Kopirajte ćeliju u tabličnom kalkulatoru i zalijepite je kao vrijednost.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an error that the spreadsheet shows instead of a value.</source>
        <translation>&apos;%1&apos; je pogreška koju tablični kalkulator prikazuje umjesto vrijednosti.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>novo</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>promijenjeno</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>nepromijenjeno</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>izostavljeno</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odbijeno</translation>
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
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Količina</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cijena</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Porez</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Stopa poreza</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Slika</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kupci</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Identification number</source>
        <translation>Identifikacijski broj</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Faks</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Vlasnik</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Bankovni račun</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Popust</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no number.</source>
        <translation>%1: &apos;%2&apos; nije broj.</translation>
    </message>
    <message>
        <source>%1: nothing in the file says whether &apos;%2&apos; has decimals or thousands. Say which sign divides the decimals.</source>
        <translation>%1: u datoteci ništa ne govori ima li &apos;%2&apos; decimale ili tisuće. Odredite koji znak odvaja decimale.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not fit the other amounts, which have &apos;%3&apos; before the decimals.</source>
        <translation>%1: &apos;%2&apos; ne odgovara ostalim iznosima, koji pred decimalama imaju &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; has more than four decimals.</source>
        <translation>%1: &apos;%2&apos; ima više od četiri decimale.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is too large.</source>
        <translation>%1: &apos;%2&apos; je prevelik broj.</translation>
    </message>
    <message>
        <source>The look at the table was left.</source>
        <translation>Pregled tablice je prekinut.</translation>
    </message>
    <message>
        <source>The click table has no such groups, so their goods keep their place: %1.</source>
        <translation>Tablica tipki nema takvih grupa, pa njihova roba ostaje na svom mjestu: %1.</translation>
    </message>
    <message>
        <source>No column is known to be the code of the goods. Say which one it is: %1.</source>
        <translation>Ni za jedan stupac nije poznato da je šifra robe. Odredite koji je: %1.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos;.</source>
        <translation>U trgovini nema poreza &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;.</source>
        <translation>U trgovini nema jedinice mjere &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The goods are new, and only those that are there are changed.</source>
        <translation>Roba je nova, a mijenja se samo postojeća.</translation>
    </message>
    <message>
        <source>The goods are there already, and only new ones are added.</source>
        <translation>Roba već postoji, a dodaje se samo nova.</translation>
    </message>
    <message>
        <source>The row has %1 cells, and the table has %2 columns.</source>
        <translation>Broj ćelija u retku je %1, a tablica ima stupaca: %2.</translation>
    </message>
    <message>
        <source>The row has no code.</source>
        <translation>Redak nema šifru.</translation>
    </message>
    <message>
        <source>The code stands more than once in the file, in the lines %1.</source>
        <translation>Šifra stoji u datoteci više puta, u recima %1.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: &apos;%1&apos; is a number that it shortened. Give the column the format Text there and enter the code anew.</source>
        <translation>Tablični kalkulator pokvario je šifru: &apos;%1&apos; je broj koji je skratio. Ondje stupcu zadajte oblik Tekst i ponovno upišite šifru.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give the column the format Text there and enter the code anew.</source>
        <translation>Tablični kalkulator pokvario je šifru: u trgovini je %1, a nule ispred su nestale. Ondje stupcu zadajte oblik Tekst i ponovno upišite šifru.</translation>
    </message>
    <message>
        <source>The code has %1 characters, more than the %2 that the till takes.</source>
        <translation>Broj znakova u šifri je %1, a blagajna ih prima najviše %2.</translation>
    </message>
    <message>
        <source>The code has an apostrophe, by which the till could not find it.</source>
        <translation>U šifri je apostrof, zbog kojeg je blagajna ne bi mogla naći.</translation>
    </message>
    <message>
        <source>The code has a line break or another control character in it.</source>
        <translation>U šifri je prijelom retka ili drugi upravljački znak.</translation>
    </message>
    <message>
        <source>New goods need a name.</source>
        <translation>Nova roba mora imati naziv.</translation>
    </message>
    <message>
        <source>%1: the text has %2 characters, more than the %3 that there is room for.</source>
        <translation>%1: broj znakova u tekstu je %2, a mjesta ima za %3.</translation>
    </message>
    <message>
        <source>%1: the text has a line break or another control character in it.</source>
        <translation>%1: u tekstu je prijelom retka ili drugi upravljački znak.</translation>
    </message>
    <message>
        <source>New goods need a price.</source>
        <translation>Nova roba mora imati cijenu.</translation>
    </message>
    <message>
        <source>%1: the spreadsheet has shortened the number &apos;%2&apos;.</source>
        <translation>%1: tablični kalkulator skratio je broj &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The price &apos;%1&apos; is below zero.</source>
        <translation>Cijena &apos;%1&apos; je ispod nule.</translation>
    </message>
    <message>
        <source>New goods need a unit, and none is said for those without one.</source>
        <translation>Nova roba mora imati jedinicu mjere, a za onu bez nje nije odabrana nijedna.</translation>
    </message>
    <message>
        <source>New goods need a tax, and none is said for those without one.</source>
        <translation>Nova roba mora imati porez, a za onu bez njega nije odabran nijedan.</translation>
    </message>
    <message>
        <source>The tax &apos;%1&apos; has no rate.</source>
        <translation>Porez &apos;%1&apos; nema stopu.</translation>
    </message>
    <message>
        <source>The shop has several taxes of %1; the code of one has to stand here.</source>
        <translation>Trgovina ima više poreza od %1; ovdje mora stajati šifra jednog od njih.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; of the click table has no free button.</source>
        <translation>Grupa &apos;%1&apos; tablice tipki nema slobodne tipke.</translation>
    </message>
    <message>
        <source>The table has no column &apos;%1&apos;. Its columns are: %2.</source>
        <translation>Tablica nema stupac &apos;%1&apos;. Njezini su stupci: %2.</translation>
    </message>
    <message>
        <source>It was removed since.</source>
        <translation>U međuvremenu je uklonjeno.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>It stays, since it has been sold.</source>
        <translation>Ostaje jer je prodavano.</translation>
    </message>
    <message>
        <source>It stays, since it is part of a composition.</source>
        <translation>Ostaje jer je dio normativa.</translation>
    </message>
    <message>
        <source>It stays, since its %1 was changed.</source>
        <translation>Ostaje jer je promijenjen podatak: %1.</translation>
    </message>
    <message>
        <source>Its %1 stays, since it was changed.</source>
        <translation>Podatak ostaje jer je promijenjen: %1.</translation>
    </message>
    <message>
        <source>It stays on its button, since its old one is another&apos;s.</source>
        <translation>Ostaje na svojoj tipki jer staru ima drugi artikl.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Nema ničega za poništiti.</translation>
    </message>
    <message>
        <source>The look at the goods was left.</source>
        <translation>Pregled robe je prekinut.</translation>
    </message>
    <message>
        <source>The goods have no price.</source>
        <translation>Roba nema cijenu.</translation>
    </message>
    <message>
        <source>The price is below zero.</source>
        <translation>Cijena je ispod nule.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos; with a rate.</source>
        <translation>U trgovini nema poreza &apos;%1&apos; sa stopom.</translation>
    </message>
    <message>
        <source>A column can&apos;t be &apos;%1&apos;. It can be %2 or none.</source>
        <translation>Stupac ne može biti &apos;%1&apos;. Može biti %2 ili nijedan.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;. %2</source>
        <translation>&apos;%1&apos; se ne može zapisati. %2</translation>
    </message>
    <message>
        <source>Save it in the spreadsheet as CSV and choose that file.</source>
        <translation>Spremite je u tabličnom kalkulatoru kao CSV i odaberite tu datoteku.</translation>
    </message>
    <message>
        <source>This is a workbook under a password. Open it with the password. %1</source>
        <translation>Ovo je radna knjiga zaštićena lozinkom. Otvorite je s lozinkom. %1</translation>
    </message>
    <message>
        <source>This is a workbook, not a text. %1</source>
        <translation>Ovo je radna knjiga, a ne tekst. %1</translation>
    </message>
    <message>
        <source>This is a packed file (zip). Unpack it; a table in it has to be a CSV file.</source>
        <translation>Ovo je zapakirana datoteka (zip). Raspakirajte je; tablica u njoj mora biti CSV datoteka.</translation>
    </message>
    <message>
        <source>This is a PDF. Ask for the table itself, as CSV.</source>
        <translation>Ovo je PDF. Zatražite samu tablicu, kao CSV.</translation>
    </message>
    <message>
        <source>This is a picture, not a table.</source>
        <translation>Ovo je slika, a ne tablica.</translation>
    </message>
    <message>
        <source>This is a document of another kind, not a table of text. %1</source>
        <translation>Ovo je dokument druge vrste, a ne tablica s tekstom. %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation>&apos;%1&apos; nije datoteka.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Datoteka je prazna.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MB, which is more than a table of goods has. Divide it.</source>
        <translation>Datoteka je veća od %1 MB, više nego što ima tablica robe. Podijelite je.</translation>
    </message>
    <message>
        <source>No encoding is called &apos;%1&apos;. Known are: %2.</source>
        <translation>Nijedno se kodiranje ne zove &apos;%1&apos;. Poznata su: %2.</translation>
    </message>
    <message>
        <source>The file is not in the encoding %1: some of its bytes stand for no letter.</source>
        <translation>Datoteka nije u kodiranju %1: neki njezini bajtovi nisu nijedno slovo.</translation>
    </message>
    <message>
        <source>The row in line %1 makes the table larger than %2 columns or %3 cells.</source>
        <translation>S retkom %1 tablica postaje veća od dopuštenog: stupaca %2, ćelija %3.</translation>
    </message>
    <message>
        <source>The table has more than %1 rows. Divide it.</source>
        <translation>Tablica ima previše redaka, dopušteno je %1. Podijelite je.</translation>
    </message>
    <message>
        <source>In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.</source>
        <translation>U retku %1 ima teksta iza završnog navodnika. Navodnik unutar navodnika mora se udvostručiti.</translation>
    </message>
    <message>
        <source>The quotation mark in line %1 is never closed.</source>
        <translation>Navodnik u retku %1 nigdje nije zatvoren.</translation>
    </message>
    <message>
        <source>The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV.</source>
        <translation>Datoteka nije tekst: sadrži znakove kakvih u tablici nema. Spremite je u tabličnom kalkulatoru kao CSV.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is damaged, so what it tells of can&apos;t be taken back.</source>
        <translation>&apos;%1&apos; je oštećeno, pa se ne može poništiti ono što je ondje zapisano.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; can&apos;t be made.</source>
        <translation>Mapa &apos;%1&apos; ne može se napraviti.</translation>
    </message>
    <message>
        <source>was added</source>
        <translation>je dodano</translation>
    </message>
    <message>
        <source>was removed</source>
        <translation>je uklonjeno</translation>
    </message>
    <message>
        <source>The shop has changed since it was looked at, and nothing was written: %1. Look again.</source>
        <translation>Trgovina se promijenila nakon pregleda i ništa nije zapisano: %1. Pregledajte ponovno.</translation>
    </message>
    <message>
        <source>(%1)</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>(the rate of its tax)</source>
        <translation>(stopa njezina poreza)</translation>
    </message>
    <message>
        <source>(its unit is gone)</source>
        <translation>(njezine jedinice mjere više nema)</translation>
    </message>
    <message>
        <source>(its button is another&apos;s)</source>
        <translation>(njezinu tipku ima drugi artikl)</translation>
    </message>
    <message>
        <source>%1 was removed, and nothing was written.</source>
        <translation>%1 je uklonjeno i ništa nije zapisano.</translation>
    </message>
    <message>
        <source>The writing was left; nothing was written.</source>
        <translation>Zapisivanje je prekinuto; ništa nije zapisano.</translation>
    </message>
    <message>
        <source>A file of the shop is not there.</source>
        <translation>Nedostaje datoteka trgovine.</translation>
    </message>
    <message>
        <source>Don&apos;t sell on this till. Look whether the disk or the network drive is connected. If the file is gone, restore the last good backup, on the page Backup.</source>
        <translation>Ne prodajte na ovoj blagajni. Provjerite je li disk ili mrežni pogon spojen. Ako datoteke nema, vratite zadnju ispravnu sigurnosnu kopiju na stranici Sigurnosna kopija.</translation>
    </message>
    <message>
        <source>Another program holds the shop&apos;s data for itself.</source>
        <translation>Drugi program drži podatke trgovine samo za sebe.</translation>
    </message>
    <message>
        <source>Close other programs that work with the shop, such as a backup, and look again.</source>
        <translation>Zatvorite druge programe koji rade s trgovinom, npr. izradu sigurnosne kopije, i pregledajte ponovno.</translation>
    </message>
    <message>
        <source>The computer with the shop&apos;s data does not answer.</source>
        <translation>Računalo s podacima trgovine ne odgovara.</translation>
    </message>
    <message>
        <source>Look whether that computer and the network are switched on, then look again. Nothing is lost.</source>
        <translation>Provjerite jesu li to računalo i mreža uključeni i pregledajte ponovno. Ništa nije izgubljeno.</translation>
    </message>
    <message>
        <source>The shop&apos;s data can be read but not changed.</source>
        <translation>Podaci trgovine mogu se čitati, ali ne i mijenjati.</translation>
    </message>
    <message>
        <source>The files belong to another user of the computer, or the disk is write-protected. Whoever set up the computer can put that right.</source>
        <translation>Datoteke pripadaju drugom korisniku računala ili je disk zaštićen od pisanja. To može ispraviti onaj tko je računalo namjestio.</translation>
    </message>
    <message>
        <source>A file of the shop is damaged.</source>
        <translation>Datoteka trgovine je oštećena.</translation>
    </message>
    <message>
        <source>Stop selling on this till. Copy the whole folder of the register before anything else, then restore the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the disk looked at.</source>
        <translation>Prestanite prodavati na ovoj blagajni. Prije svega kopirajte cijelu mapu blagajne, zatim vratite zadnju ispravnu sigurnosnu kopiju na stranici Sigurnosna kopija. Uzrok je neispravan disk ili nestanak struje: dajte disk na pregled.</translation>
    </message>
    <message>
        <source>There are printed receipts that the shop&apos;s data lacks.</source>
        <translation>Ima ispisanih računa kojih nema u podacima trgovine.</translation>
    </message>
    <message>
        <source>Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in invoices.txt in the register&apos;s folder: tell the book-keeper their numbers.</source>
        <translation>Dio prodaje je izgubljen, zbog nestanka struje ili vraćanja starije sigurnosne kopije. Računi se mogu pročitati u datoteci invoices.txt u mapi blagajne: javite njihove brojeve knjigovođi.</translation>
    </message>
    <message>
        <source>The settings of this till are damaged.</source>
        <translation>Postavke ove blagajne su oštećene.</translation>
    </message>
    <message>
        <source>Restore the last good backup, on the page Backup.</source>
        <translation>Vratite zadnju ispravnu sigurnosnu kopiju na stranici Sigurnosna kopija.</translation>
    </message>
    <message numerus="yes">
        <source>Numbers in the sales that are no numbers: %n.</source>
        <translation>
            <numerusform>Brojevi u prodaji koji nisu brojevi: %n.</numerusform>
            <numerusform>Brojevi u prodaji koji nisu brojevi: %n.</numerusform>
            <numerusform>Brojevi u prodaji koji nisu brojevi: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such rows out.</source>
        <translation>Tablice su unesene izvana ili mijenjane ručno. Blagajna radi dalje; izvještaji mogu izostaviti takve retke.</translation>
    </message>
    <message numerus="yes">
        <source>Invoice numbers that stand twice: %n.</source>
        <translation>
            <numerusform>Brojevi računa koji se ponavljaju: %n.</numerusform>
            <numerusform>Brojevi računa koji se ponavljaju: %n.</numerusform>
            <numerusform>Brojevi računa koji se ponavljaju: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills sold under the same number; both invoices are there. Look that each till has a number of its own, and tell the book-keeper the invoices.</source>
        <translation>Dvije su blagajne prodavale pod istim brojem; postoje oba računa. Provjerite ima li svaka blagajna svoj broj i javite te račune knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices without lines: %n.</source>
        <translation>
            <numerusform>Računi bez stavki: %n.</numerusform>
            <numerusform>Računi bez stavki: %n.</numerusform>
            <numerusform>Računi bez stavki: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>Spremanje računa je prekinuto, npr. zbog nestanka struje. Potražite račun na papiru ili u invoices.txt i javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that don&apos;t agree with the sum of their lines: %n.</source>
        <translation>
            <numerusform>Računi koji se ne slažu sa zbrojem svojih stavki: %n.</numerusform>
            <numerusform>Računi koji se ne slažu sa zbrojem svojih stavki: %n.</numerusform>
            <numerusform>Računi koji se ne slažu sa zbrojem svojih stavki: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: what is printed there counts. Tell the book-keeper.</source>
        <translation>Spremanje računa je prekinuto, npr. zbog nestanka struje. Potražite račun na papiru ili u invoices.txt: vrijedi ono što je ondje ispisano. Javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices whose tax is not that of their lines: %n.</source>
        <translation>
            <numerusform>Računi kojima porez nije jednak porezu stavki: %n.</numerusform>
            <numerusform>Računi kojima porez nije jednak porezu stavki: %n.</numerusform>
            <numerusform>Računi kojima porez nije jednak porezu stavki: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>Spremanje računa je prekinuto. Potražite račun na papiru ili u invoices.txt i javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Periods between two End Reports that stand twice: %n.</source>
        <translation>
            <numerusform>Razdoblja između dva zaključka dana koja se ponavljaju: %n.</numerusform>
            <numerusform>Razdoblja između dva zaključka dana koja se ponavljaju: %n.</numerusform>
            <numerusform>Razdoblja između dva zaključka dana koja se ponavljaju: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills worked under the same number. Look that each till has a number of its own.</source>
        <translation>Dvije su blagajne radile pod istim brojem. Provjerite ima li svaka blagajna svoj broj.</translation>
    </message>
    <message numerus="yes">
        <source>Periods whose takings are not the sum of their invoices: %n.</source>
        <translation>
            <numerusform>Razdoblja kojima promet nije zbroj njihovih računa: %n.</numerusform>
            <numerusform>Razdoblja kojima promet nije zbroj njihovih računa: %n.</numerusform>
            <numerusform>Razdoblja kojima promet nije zbroj njihovih računa: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax book by the invoices: tell the book-keeper of the difference.</source>
        <translation>Spremanje računa je prekinuto ili je više blagajni prodavalo istodobno. Zaključak dana ide po prometu, a knjiga izlaznih računa po računima: javite razliku knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that are gone while their lines are there: %n.</source>
        <translation>
            <numerusform>Računi kojih nema, a njihove stavke postoje: %n.</numerusform>
            <numerusform>Računi kojih nema, a njihove stavke postoje: %n.</numerusform>
            <numerusform>Računi kojih nema, a njihove stavke postoje: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Periods that are gone while their invoices are there: %n.</source>
        <translation>
            <numerusform>Razdoblja kojih nema, a njihovi računi postoje: %n.</numerusform>
            <numerusform>Razdoblja kojih nema, a njihovi računi postoje: %n.</numerusform>
            <numerusform>Razdoblja kojih nema, a njihovi računi postoje: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book but in no End Report: tell the book-keeper.</source>
        <translation>Reci su obrisani ručno ili je sigurnosna kopija pomiješana s novijim podacima. Računi su u knjizi izlaznih računa, ali ni u jednom zaključku dana: javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Products that were sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Artikli koji su prodavani, a zatim obrisani: %n.</numerusform>
            <numerusform>Artikli koji su prodavani, a zatim obrisani: %n.</numerusform>
            <numerusform>Artikli koji su prodavani, a zatim obrisani: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them as they were sold.</source>
        <translation>Ništa ne treba učiniti: izvještaji ih prikazuju kako su prodani.</translation>
    </message>
    <message numerus="yes">
        <source>Cashiers who sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Blagajnici koji su prodavali, a zatim su obrisani: %n.</numerusform>
            <numerusform>Blagajnici koji su prodavali, a zatim su obrisani: %n.</numerusform>
            <numerusform>Blagajnici koji su prodavali, a zatim su obrisani: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them by their number.</source>
        <translation>Ništa ne treba učiniti: izvještaji ih prikazuju pod njihovim brojem.</translation>
    </message>
    <message numerus="yes">
        <source>Taxes that goods were sold under and that are gone: %n.</source>
        <translation>
            <numerusform>Porezi po kojima se prodavalo, a više ih nema: %n.</numerusform>
            <numerusform>Porezi po kojima se prodavalo, a više ih nema: %n.</numerusform>
            <numerusform>Porezi po kojima se prodavalo, a više ih nema: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done for what is sold; see under Set-up that today&apos;s taxes are complete.</source>
        <translation>Za prodano ništa ne treba učiniti; na stranici Priprema provjerite jesu li današnji porezi potpuni.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that were never printed on this till: %n.</source>
        <translation>
            <numerusform>Računi koji na ovoj blagajni nisu ispisani: %n.</numerusform>
            <numerusform>Računi koji na ovoj blagajni nisu ispisani: %n.</numerusform>
            <numerusform>Računi koji na ovoj blagajni nisu ispisani: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another till sold them, or the printer failed. Print them once more from the list of invoices where the customer or the tax office needs the paper.</source>
        <translation>Prodala ih je druga blagajna ili je zatajio pisač. Gdje kupac ili porezna uprava treba papir, ispišite ih ponovno iz popisa računa.</translation>
    </message>
    <message numerus="yes">
        <source>Products with a tax that is not there: %n.</source>
        <translation>
            <numerusform>Artikli s porezom kojeg nema: %n.</numerusform>
            <numerusform>Artikli s porezom kojeg nema: %n.</numerusform>
            <numerusform>Artikli s porezom kojeg nema: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with another rate than that of their tax: %n.</source>
        <translation>
            <numerusform>Artikli sa stopom drukčijom od stope njihova poreza: %n.</numerusform>
            <numerusform>Artikli sa stopom drukčijom od stope njihova poreza: %n.</numerusform>
            <numerusform>Artikli sa stopom drukčijom od stope njihova poreza: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rate was changed after they were saved. Give them the rate of their tax on the page Prices.</source>
        <translation>Stopa je promijenjena nakon što su spremljeni. Dajte im stopu njihova poreza na stranici Cijene.</translation>
    </message>
    <message numerus="yes">
        <source>Products without a tax rate, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Artikli bez stope poreza, koji se ne mogu prodavati: %n.</numerusform>
            <numerusform>Artikli bez stope poreza, koji se ne mogu prodavati: %n.</numerusform>
            <numerusform>Artikli bez stope poreza, koji se ne mogu prodavati: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products without a price, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Artikli bez cijene, koji se ne mogu prodavati: %n.</numerusform>
            <numerusform>Artikli bez cijene, koji se ne mogu prodavati: %n.</numerusform>
            <numerusform>Artikli bez cijene, koji se ne mogu prodavati: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</source>
        <translation>
            <numerusform>Artikli s apostrofom u šifri, koje blagajna ne može naći: %n.</numerusform>
            <numerusform>Artikli s apostrofom u šifri, koje blagajna ne može naći: %n.</numerusform>
            <numerusform>Artikli s apostrofom u šifri, koje blagajna ne može naći: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make the product anew under a code without it, and delete this one.</source>
        <translation>Napravite artikl ponovno sa šifrom bez apostrofa, a ovaj obrišite.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code begins or ends with a blank: %n.</source>
        <translation>
            <numerusform>Artikli kojima šifra počinje ili završava razmakom: %n.</numerusform>
            <numerusform>Artikli kojima šifra počinje ili završava razmakom: %n.</numerusform>
            <numerusform>Artikli kojima šifra počinje ili završava razmakom: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A scanner doesn&apos;t find them. Make the product anew without the blank, and delete this one.</source>
        <translation>Skener ih ne nalazi. Napravite artikl ponovno bez razmaka, a ovaj obrišite.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Artikli kojima je šifra dulja nego što stane u polje blagajne: %n.</numerusform>
            <numerusform>Artikli kojima je šifra dulja nego što stane u polje blagajne: %n.</numerusform>
            <numerusform>Artikli kojima je šifra dulja nego što stane u polje blagajne: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.</source>
        <translation>Mogu se prodavati samo s tablice tipki ili iz popisa. Dajte im šifru od najviše 13 znakova.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose name is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Artikli kojima je naziv dulji nego što stane u polje blagajne: %n.</numerusform>
            <numerusform>Artikli kojima je naziv dulji nego što stane u polje blagajne: %n.</numerusform>
            <numerusform>Artikli kojima je naziv dulji nego što stane u polje blagajne: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a unit that the till does not know: %n.</source>
        <translation>
            <numerusform>Artikli s jedinicom mjere koju blagajna ne poznaje: %n.</numerusform>
            <numerusform>Artikli s jedinicom mjere koju blagajna ne poznaje: %n.</numerusform>
            <numerusform>Artikli s jedinicom mjere koju blagajna ne poznaje: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a stock below zero: %n.</source>
        <translation>
            <numerusform>Artikli sa zalihom ispod nule: %n.</numerusform>
            <numerusform>Artikli sa zalihom ispod nule: %n.</numerusform>
            <numerusform>Artikli sa zalihom ispod nule: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products on a touch button that is not there: %n.</source>
        <translation>
            <numerusform>Artikli na tipki koje nema: %n.</numerusform>
            <numerusform>Artikli na tipki koje nema: %n.</numerusform>
            <numerusform>Artikli na tipki koje nema: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Touch buttons with more than one product: %n.</source>
        <translation>
            <numerusform>Tipke s više artikala: %n.</numerusform>
            <numerusform>Tipke s više artikala: %n.</numerusform>
            <numerusform>Tipke s više artikala: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products that compositions name and that are gone: %n.</source>
        <translation>
            <numerusform>Artikli koji su u normativima, a više ih nema: %n.</numerusform>
            <numerusform>Artikli koji su u normativima, a više ih nema: %n.</numerusform>
            <numerusform>Artikli koji su u normativima, a više ih nema: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Small tables with more or fewer rows than in a new shop: %n.</source>
        <translation>
            <numerusform>Male tablice s više ili manje redaka nego u novoj trgovini: %n.</numerusform>
            <numerusform>Male tablice s više ili manje redaka nego u novoj trgovini: %n.</numerusform>
            <numerusform>Male tablice s više ili manje redaka nego u novoj trgovini: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the row.</source>
        <translation>Tablice su mijenjane ručno. Tablici tipki možda nedostaje kartica; redak može dodati onaj tko održava blagajnu.</translation>
    </message>
    <message numerus="yes">
        <source>Missing indexes, so that the till gets slow: %n.</source>
        <translation>
            <numerusform>Indeksi koji nedostaju, pa je blagajna sporija: %n.</numerusform>
            <numerusform>Indeksi koji nedostaju, pa je blagajna sporija: %n.</numerusform>
            <numerusform>Indeksi koji nedostaju, pa je blagajna sporija: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever looks after the till can make them anew: a backup that is restored has them again.</source>
        <translation>Onaj tko održava blagajnu može ih ponovno napraviti: kad se vrati sigurnosna kopija, opet su tu.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of this till without a value, at which it stops when it starts: %n.</source>
        <translation>
            <numerusform>Postavke ove blagajne bez vrijednosti, zbog kojih se ne može pokrenuti: %n.</numerusform>
            <numerusform>Postavke ove blagajne bez vrijednosti, zbog kojih se ne može pokrenuti: %n.</numerusform>
            <numerusform>Postavke ove blagajne bez vrijednosti, zbog kojih se ne može pokrenuti: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Set them under Settings on the till, or on the page Set-up here.</source>
        <translation>Namjestite ih na blagajni u izborniku Postavke ili ovdje na stranici Priprema.</translation>
    </message>
    <message>
        <source>Something was found.</source>
        <translation>Nešto je pronađeno.</translation>
    </message>
    <message>
        <source>Show it to whoever looks after the till.</source>
        <translation>Pokažite to onome tko održava blagajnu.</translation>
    </message>
    <message>
        <source>The files of the shop and of this till are whole.</source>
        <translation>Datoteke trgovine i ove blagajne su cijele.</translation>
    </message>
    <message numerus="yes">
        <source>Every invoice agrees with its lines and taxes. Looked at: %n.</source>
        <translation>
            <numerusform>Svaki se račun slaže sa svojim stavkama i porezima. Pregledano: %n.</numerusform>
            <numerusform>Svaki se račun slaže sa svojim stavkama i porezima. Pregledano: %n.</numerusform>
            <numerusform>Svaki se račun slaže sa svojim stavkama i porezima. Pregledano: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The takings of each End Report are the sum of its invoices.</source>
        <translation>Promet svakog zaključka dana jednak je zbroju njegovih računa.</translation>
    </message>
    <message>
        <source>The numbers of the invoices run on without a gap.</source>
        <translation>Brojevi računa teku bez praznina.</translation>
    </message>
    <message numerus="yes">
        <source>Every printed receipt is in the shop&apos;s data. Looked at: %n.</source>
        <translation>
            <numerusform>Svaki ispisani račun nalazi se u podacima trgovine. Pregledano: %n.</numerusform>
            <numerusform>Svaki ispisani račun nalazi se u podacima trgovine. Pregledano: %n.</numerusform>
            <numerusform>Svaki ispisani račun nalazi se u podacima trgovine. Pregledano: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every product can be sold, and is taxed as its tax says. Looked at: %n.</source>
        <translation>
            <numerusform>Svaki se artikl može prodavati i ima stopu svog poreza. Pregledano: %n.</numerusform>
            <numerusform>Svaki se artikl može prodavati i ima stopu svog poreza. Pregledano: %n.</numerusform>
            <numerusform>Svaki se artikl može prodavati i ima stopu svog poreza. Pregledano: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Od zadnjeg zaključka dana</translation>
    </message>
    <message>
        <source>Closed without an End Report</source>
        <translation>Zatvoreno bez zaključka dana</translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation>Zaključak dana %1 od %2</translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation>Zaključak dana %1</translation>
    </message>
    <message>
        <source>The lines add up to something else.</source>
        <translation>Zbroj stavki je drukčiji.</translation>
    </message>
    <message>
        <source>The tax of the lines is another.</source>
        <translation>Porez stavki je drukčiji.</translation>
    </message>
    <message>
        <source>The takings are not the sum of the invoices.</source>
        <translation>Promet nije zbroj računa.</translation>
    </message>
    <message>
        <source>Numbers left out: %1.</source>
        <translation>Preskočeni brojevi: %1.</translation>
    </message>
    <message>
        <source>Numbers twice: %1.</source>
        <translation>Dvostruki brojevi: %1.</translation>
    </message>
    <message>
        <source>%1: no invoices.</source>
        <translation>%1: nema računa.</translation>
    </message>
    <message numerus="yes">
        <source>%1: invoices %n, total %2, tax %3.</source>
        <translation>
            <numerusform>%1: računi %n, ukupno %2, porez %3.</numerusform>
            <numerusform>%1: računi %n, ukupno %2, porez %3.</numerusform>
            <numerusform>%1: računi %n, ukupno %2, porez %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell the book-keeper of the difference; the receipts count as they are printed.</source>
        <translation>Javite razliku knjigovođi; računi vrijede kako su ispisani.</translation>
    </message>
    <message>
        <source>%1 It differs.</source>
        <translation>%1 Razlikuje se.</translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation>Račun %1</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>Cashier: %1</source>
        <translation>Blagajnik: %1</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Od toga porez</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>UKUPNO</translation>
    </message>
    <message>
        <source>A label is at least %1 mm wide and %2 mm high.</source>
        <translation>Etiketa je široka najmanje %1 mm i visoka najmanje %2 mm.</translation>
    </message>
    <message>
        <source>A label is at most %1 mm wide and high.</source>
        <translation>Etiketa je široka i visoka najviše %1 mm.</translation>
    </message>
    <message>
        <source>A sheet has at least one label.</source>
        <translation>Na arku je najmanje jedna etiketa.</translation>
    </message>
    <message>
        <source>The labels side by side are %1 mm wide; the sheet has %2 mm.</source>
        <translation>Etikete jedna do druge široke su %1 mm; arak ima %2 mm.</translation>
    </message>
    <message>
        <source>The labels one below the other are %1 mm high; the sheet has %2 mm.</source>
        <translation>Etikete jedna ispod druge visoke su %1 mm; arak ima %2 mm.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no amount above zero.</source>
        <translation>&apos;%1&apos; nije iznos veći od nule.</translation>
    </message>
    <message>
        <source>There is no amount. Type some, with a blank between two.</source>
        <translation>Nema nijednog iznosa. Upišite ih, s razmakom između.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>Rad je prekinut.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Without tax</source>
        <translation>Bez poreza</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Blagajnik</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Blagajna</translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation>Prodaja po blagajnicima</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Broj</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>Sales by product</source>
        <translation>Prodaja po artiklima</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Postotak</translation>
    </message>
    <message>
        <source>Tax book by day</source>
        <translation>Knjiga izlaznih računa po danima</translation>
    </message>
    <message>
        <source>First invoice</source>
        <translation>Prvi račun</translation>
    </message>
    <message>
        <source>Last invoice</source>
        <translation>Zadnji račun</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>End Reports</source>
        <translation>Zaključci dana</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Business hours</source>
        <translation>Radno vrijeme</translation>
    </message>
    <message>
        <source>Goods in stock</source>
        <translation>Zaliha robe</translation>
    </message>
    <message>
        <source>Worth</source>
        <translation>Vrijednost</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged: %2</source>
        <translation>%1 u sigurnosnoj kopiji je oštećeno: %2</translation>
    </message>
    <message>
        <source>Putting the shop in its place</source>
        <translation>Podaci trgovine stavljaju se na svoje mjesto</translation>
    </message>
    <message>
        <source>%1 is missing in the backup.</source>
        <translation>U sigurnosnoj kopiji nedostaje %1.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Čita se %1</translation>
    </message>
    <message>
        <source>The list of files of the backup is damaged.</source>
        <translation>Popis datoteka sigurnosne kopije je oštećen.</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged.</source>
        <translation>%1 u sigurnosnoj kopiji je oštećeno.</translation>
    </message>
    <message>
        <source>Checking the backup</source>
        <translation>Provjerava se sigurnosna kopija</translation>
    </message>
    <message>
        <source>The days in the backup&apos;s shop are not those that it was made with.</source>
        <translation>Dani u trgovini iz sigurnosne kopije nisu oni s kojima je napravljena.</translation>
    </message>
    <message>
        <source>The days on the server are not those of the backup.</source>
        <translation>Dani na poslužitelju nisu isti kao u sigurnosnoj kopiji.</translation>
    </message>
    <message>
        <source>There is no backup %1.</source>
        <translation>Nema sigurnosne kopije %1.</translation>
    </message>
    <message>
        <source>The till of this register is open. Close it first.</source>
        <translation>Ova je blagajna otvorena. Najprije je zatvorite.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now. Try again in a minute.</source>
        <translation>Upravo se radi sigurnosna kopija ove blagajne. Pokušajte ponovno za minutu.</translation>
    </message>
    <message>
        <source>A restore was not ended. Start the till once.</source>
        <translation>Vraćanje nije dovršeno. Pokrenite jednom blagajnu.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only a number from %4 to %5.</source>
        <translation>velton.ini, redak %1: %2 ne može biti &quot;%3&quot;, nego samo broj od %4 do %5.</translation>
    </message>
    <message>
        <source>products with a stock below zero</source>
        <translation>artikli sa zalihom ispod nule</translation>
    </message>
    <message>
        <source>products on a button that is not there</source>
        <translation>artikli na tipki koje nema</translation>
    </message>
    <message>
        <source>buttons of the click table with more than one product</source>
        <translation>tipke tablice tipki s više artikala</translation>
    </message>
    <message>
        <source>tables with more or fewer rows than delivered</source>
        <translation>tablice s više ili manje redaka nego pri isporuci</translation>
    </message>
    <message>
        <source>indexes that are missing, so that lookups are slow or keys not unique</source>
        <translation>indeksi koji nedostaju, pa je traženje sporo ili se ključevi mogu ponavljati</translation>
    </message>
    <message>
        <source>Open period</source>
        <translation>Otvoreno razdoblje</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>stavke %1</translation>
    </message>
    <message>
        <source>tax of the lines %1</source>
        <translation>porez stavki %1</translation>
    </message>
    <message>
        <source>takings %1</source>
        <translation>promet %1</translation>
    </message>
    <message>
        <source>numbers left out %1</source>
        <translation>preskočeni brojevi %1</translation>
    </message>
    <message>
        <source>numbers twice %1</source>
        <translation>dvostruki brojevi %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 od %2</translation>
    </message>
    <message>
        <source>%1: no invoices</source>
        <translation>%1: nema računa</translation>
    </message>
    <message>
        <source>%1: 1 invoice, total %2, tax %3</source>
        <translation>%1: 1 račun, ukupno %2, porez %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n invoices, total %2, tax %3</source>
        <translation>
            <numerusform>%1: %n račun, ukupno %2, porez %3</numerusform>
            <numerusform>%1: %n računa, ukupno %2, porez %3</numerusform>
            <numerusform>%1: %n računa, ukupno %2, porez %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, numbers %2</source>
        <translation>%1, brojevi %2</translation>
    </message>
    <message>
        <source>%1; all agrees</source>
        <translation>%1; sve se slaže</translation>
    </message>
    <message>
        <source>%1; differs: %2</source>
        <translation>%1; razlikuje se: %2</translation>
    </message>
    <message>
        <source>Main store</source>
        <translation>Glavna baza podataka</translation>
    </message>
    <message>
        <source>Options store</source>
        <translation>Baza postavki</translation>
    </message>
    <message>
        <source>The ribbon of printed invoices has receipts that the store lacks: %1</source>
        <translation>Na kontrolnoj traci ima računa kojih nema u bazi podataka: %1</translation>
    </message>
    <message>
        <source>invoices that are not on the ribbon (never printed, or by another register)</source>
        <translation>računi kojih nema na kontrolnoj traci (nisu ispisani ili ih je ispisala druga blagajna)</translation>
    </message>
    <message>
        <source>%1 that stands more than once</source>
        <translation>%1 koji se ponavlja</translation>
    </message>
    <message>
        <source>%1 (%2, not %3)</source>
        <translation>%1 (%2, a ne %3)</translation>
    </message>
    <message>
        <source>%1 that is no number</source>
        <translation>%1 koji nije broj</translation>
    </message>
    <message>
        <source>invoices whose total is not the sum of their lines</source>
        <translation>računi kojima ukupni iznos nije zbroj stavki</translation>
    </message>
    <message>
        <source>invoices whose tax is not the sum of their lines&apos; tax</source>
        <translation>računi kojima porez nije zbroj poreza stavki</translation>
    </message>
    <message>
        <source>periods whose total is not the sum of their invoices</source>
        <translation>razdoblja kojima ukupni iznos nije zbroj računa</translation>
    </message>
    <message>
        <source>settings without a value, which start-up stops at</source>
        <translation>postavke bez vrijednosti, zbog kojih se blagajna ne pokreće</translation>
    </message>
    <message>
        <source>Options store: Options has %1 rows instead of one.</source>
        <translation>Baza postavki: Options ima redaka: %1, a treba jedan.</translation>
    </message>
    <message>
        <source>The totals of the days can&apos;t be read.</source>
        <translation>Zbrojevi po danima ne mogu se pročitati.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 i još %2</translation>
    </message>
    <message>
        <source>goods with a tax that is not there</source>
        <translation>roba s porezom kojeg nema</translation>
    </message>
    <message>
        <source>goods with another rate than that of their tax</source>
        <translation>roba sa stopom drukčijom od stope svog poreza</translation>
    </message>
    <message>
        <source>goods without a tax rate, which can&apos;t be sold</source>
        <translation>roba bez stope poreza, koja se ne može prodavati</translation>
    </message>
    <message>
        <source>goods without a price, which can&apos;t be sold</source>
        <translation>roba bez cijene, koja se ne može prodavati</translation>
    </message>
    <message>
        <source>goods with an apostrophe in the code, which can&apos;t be looked up</source>
        <translation>roba s apostrofom u šifri, koja se ne može naći</translation>
    </message>
    <message>
        <source>goods with blanks at an end of the code</source>
        <translation>roba s razmakom na početku ili kraju šifre</translation>
    </message>
    <message>
        <source>goods with a code longer than its box</source>
        <translation>roba kojoj je šifra dulja od polja</translation>
    </message>
    <message>
        <source>goods with a name longer than its box</source>
        <translation>roba kojoj je naziv dulji od polja</translation>
    </message>
    <message>
        <source>goods with a unit that is not there</source>
        <translation>roba s jedinicom mjere koje nema</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(prazno)</translation>
    </message>
    <message>
        <source>%1 that has no %2</source>
        <translation>%1 kojem ne odgovara nijedan %2</translation>
    </message>
    <message>
        <source>The copy of the store is not the same; nothing was changed.</source>
        <translation>Kopija baze podataka nije jednaka; ništa nije promijenjeno.</translation>
    </message>
    <message>
        <source>There is no line of field names.</source>
        <translation>Nedostaje redak s nazivima polja.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Redak %1: %2</translation>
    </message>
    <message>
        <source>A control character inside a text is written \r or \0.</source>
        <translation>Upravljački znak u tekstu piše se \r ili \0.</translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation>Polje &apos;%1&apos; navedeno je dvaput.</translation>
    </message>
    <message>
        <source>%1 cells for %2 fields.</source>
        <translation>Broj ćelija je %1, a polja %2.</translation>
    </message>
    <message>
        <source>The store has no table &apos;%1&apos;.</source>
        <translation>Baza podataka nema tablicu &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The table %1 has no field &apos;%2&apos;.</source>
        <translation>Tablica %1 nema polje &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Field %1: %2</source>
        <translation>Polje %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number.</source>
        <translation>&apos;%1&apos; nije cijeli broj.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number with up to four decimals.</source>
        <translation>&apos;%1&apos; nije broj s najviše četiri decimale.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number within the range of a column.</source>
        <translation>&apos;%1&apos; nije broj koji stane u stupac.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation>&apos;%1&apos; nije broj.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date (yyyy-mm-dd).</source>
        <translation>&apos;%1&apos; nije datum (gggg-mm-dd).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no time (hh:mm:ss).</source>
        <translation>&apos;%1&apos; nije vrijeme (hh:mm:ss).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no yes/no (True, False).</source>
        <translation>&apos;%1&apos; nije ni da ni ne (True, False).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text: a backslash is written \\ (known are \t \n \r \0 \\).</source>
        <translation>&apos;%1&apos; nije tekst: obrnuta kosa crta piše se \\ (poznati su \t \n \r \0 \\).</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>Tekst nije ispravan UTF-8.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;. It has: %2.</source>
        <translation>U trgovini nema jedinice mjere &apos;%1&apos;. Postoje: %2.</translation>
    </message>
    <message>
        <source>This is a store, not a table.</source>
        <translation>Ovo je baza podataka, a ne tablica.</translation>
    </message>
    <message>
        <source>Choose one of today&apos;s taxes for them at the till under Products, View - Edit - Delete Products, or add the tax on the page Set-up.</source>
        <translation>Odaberite im na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala jedan od današnjih poreza ili dodajte porez na stranici Priprema.</translation>
    </message>
    <message>
        <source>Choose their tax at the till under Products, View - Edit - Delete Products, and save.</source>
        <translation>Odaberite im porez na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala i spremite.</translation>
    </message>
    <message>
        <source>Give them a price at the till under Products, View - Edit - Delete Products, or take them in anew on the page Goods.</source>
        <translation>Upišite im cijenu na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala ili ih ponovno preuzmite na stranici Roba.</translation>
    </message>
    <message>
        <source>Receipts cut it. Shorten it to 40 characters at the till under Products, View - Edit - Delete Products.</source>
        <translation>Na računima se skraćuje. Skratite ga na 40 znakova na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala.</translation>
    </message>
    <message>
        <source>Choose one of the units for them at the till under Products, View - Edit - Delete Products, or add the unit on the page Set-up.</source>
        <translation>Odaberite im na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala jednu od jedinica mjere ili dodajte jedinicu na stranici Priprema.</translation>
    </message>
    <message>
        <source>More was sold than was entered. Enter the delivery, or count them and correct the stock at the till under Products, View - Edit - Delete Products.</source>
        <translation>Prodano je više nego što je upisano. Upišite isporuku ili ih prebrojite i ispravite zalihu na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala.</translation>
    </message>
    <message>
        <source>Give them another button at the till under Settings, Click Table.</source>
        <translation>Dajte im drugu tipku na blagajni pod Postavke, Tablica tipki.</translation>
    </message>
    <message>
        <source>The button sells one of them alone. Give the others another button at the till under Settings, Click Table.</source>
        <translation>Tipka prodaje samo jedan od njih. Ostalima dajte drugu tipku na blagajni pod Postavke, Tablica tipki.</translation>
    </message>
    <message>
        <source>Selling such a composition takes nothing from the stock of what is gone. Open the composition at the till under Products, View - Edit - Delete Products, and mend it.</source>
        <translation>Prodaja po takvom normativu ne skida sa zalihe ono čega nema. Otvorite normativ na blagajni pod Artikli, Pregled - uređivanje - brisanje artikala i ispravite ga.</translation>
    </message>
    <message>
        <source>Comparing the copy</source>
        <translation>Uspoređuje se kopija</translation>
    </message>
    <message>
        <source>There are no pictures in %1: it has no folder %2.</source>
        <translation>U %1 nema slika: nema mape %2.</translation>
    </message>
</context>
<context>
    <name>values</name>
    <message>
        <source>The number is too large.</source>
        <translation>Broj je prevelik.</translation>
    </message>
    <message>
        <source>The value is not of the kind that is needed here.</source>
        <translation>Vrijednost nije one vrste koja je ovdje potrebna.</translation>
    </message>
    <message>
        <source>A value is needed here, but the field is empty.</source>
        <translation>Ovdje je potrebna vrijednost, a polje je prazno.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>&apos;%1&apos; se ne može pročitati: %2</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>&apos;%1&apos; se ne može zapisati: %2</translation>
    </message>
    <message>
        <source>Cannot copy &apos;%1&apos;: %2</source>
        <translation>&apos;%1&apos; se ne može kopirati: %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be opened.</source>
        <translation>Mapa %1 ne može se otvoriti.</translation>
    </message>
    <message>
        <source>Cannot open &apos;%1&apos;: %2</source>
        <translation>&apos;%1&apos; se ne može otvoriti: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in UTF-8 and can&apos;t be changed.</source>
        <translation>&apos;%1&apos; nije zapisano u UTF-8 i ne može se mijenjati.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is no file.</source>
        <translation>%1 se ne može pročitati: nije datoteka.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 se ne može pročitati: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is too long.</source>
        <translation>%1 se ne može pročitati: predugo je.</translation>
    </message>
    <message>
        <source>Division by zero.</source>
        <translation>Dijeljenje s nulom.</translation>
    </message>
</context>
</TS>
