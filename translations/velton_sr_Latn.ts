<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sr_RS" sourcelanguage="en">
<context>
    <name>BackupPage</name>
    <message>
        <source>Backup</source>
        <translation>Rezervna kopija</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Rezervne kopije</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>&amp;Napravi kopiju sada</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Izaberi…</translation>
    </message>
    <message>
        <source>The till makes one at each End Report and when it is first started on a day. Kept are the newest of each of the last</source>
        <translation>Kasa pravi kopiju pri svakom zaključku dana i pri prvom pokretanju u danu. Čuva se najnovija za svaki od poslednjih</translation>
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
        <translation>Nedelje za koje se čuva po jedna kopija</translation>
    </message>
    <message>
        <source> weeks</source>
        <translation> ned.</translation>
    </message>
    <message>
        <source>Months of which one is kept</source>
        <translation>Meseci za koje se čuva po jedna kopija</translation>
    </message>
    <message>
        <source> months</source>
        <translation> mes.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sačuvaj</translation>
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
        <translation>Tabla tastera nema karticu %1.</translation>
    </message>
    <message>
        <source>The click table has no button %1.</source>
        <translation>Tabla tastera nema taster %1.</translation>
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
        <translation>Čeka se server baze ili druga kasa koja upravo upisuje.</translation>
    </message>
    <message>
        <source>Waiting for another register, which is writing to the store.</source>
        <translation>Čeka se druga kasa koja upravo upisuje u bazu.</translation>
    </message>
    <message>
        <source>A text does not fit its line.</source>
        <translation>Tekst ne staje u svoj red.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only %4.</source>
        <extracomment>%4: the words that it may be, &quot;yes or no&quot;</extracomment>
        <translation>velton.ini, red %1: %2 ne može biti &quot;%3&quot;, već samo %4.</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between two words that a setting may be, with its blanks</extracomment>
        <translation> ili </translation>
    </message>
    <message>
        <source>velton.ini, line %1: there is no %2 in [%3].</source>
        <translation>velton.ini, red %1: ne postoji %2 u [%3].</translation>
    </message>
    <message>
        <source>The setting %1 can&apos;t be used. %2</source>
        <translation>Podešavanje %1 ne može da se koristi. %2</translation>
    </message>
    <message>
        <source>The program that makes it can&apos;t be started.</source>
        <translation>Program koji je pravi ne može da se pokrene.</translation>
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
        <translation>ID broj:</translation>
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
        <translation>Tekući računi:</translation>
    </message>
    <message>
        <source>The rate approved rebates or rate margins for suppliers:</source>
        <translation>Odobreni rabat, odnosno marža za dobavljača:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Kupac sa ovom šifrom već postoji. Promenite šifru.</translation>
    </message>
</context>
<context>
    <name>DrawerPage</name>
    <message>
        <source>Drawer</source>
        <translation>Fioka</translation>
    </message>
    <message>
        <source>Count of the drawer</source>
        <translation>Brojanje fioke</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Brojanje</translation>
    </message>
    <message>
        <source>&amp;Keep the count</source>
        <translation>&amp;Sačuvaj brojanje</translation>
    </message>
    <message>
        <source>&amp;Empty</source>
        <translation>Ispra&amp;zni</translation>
    </message>
    <message>
        <source>Begins anew</source>
        <translation>Počinje iznova</translation>
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
        <translation>Po&amp;log:</translation>
    </message>
    <message>
        <source>Taken &amp;out:</source>
        <translation>&amp;Isplata:</translation>
    </message>
    <message>
        <source>Should be there:</source>
        <translation>Treba da bude:</translation>
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
        <translation>Štampa&amp;j</translation>
    </message>
    <message>
        <source>Prints the chosen count</source>
        <translation>Štampa izabrano brojanje</translation>
    </message>
    <message>
        <source>Per&amp;iod:</source>
        <translation>&amp;Period:</translation>
    </message>
    <message>
        <source>Whose sales the drawer is counted for</source>
        <translation>Period čija se prodaja poredi sa fiokom</translation>
    </message>
    <message>
        <source>Sold in cash:</source>
        <translation>Prodato za gotovinu:</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>Fill in all required fields.</source>
        <translation>Popunite sva obavezna polja.</translation>
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
        <translation>&amp;Traži:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupa:</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>Pore&amp;z:</translation>
    </message>
    <message>
        <source>Goods found</source>
        <translation>Nađena roba</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>Add all sho&amp;wn</source>
        <translation>Dodaj &amp;sve prikazano</translation>
    </message>
    <message>
        <source>Goods chosen</source>
        <translation>Izabrana roba</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopija:</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Ukloni</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Uklo&amp;ni sve</translation>
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
        <translation>Izaberi d&amp;atoteku…</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Datoteka nije izabrana.</translation>
    </message>
    <message>
        <source>Export g&amp;oods…</source>
        <translation>Izvezi ro&amp;bu…</translation>
    </message>
    <message>
        <source>Export cus&amp;tomers…</source>
        <translation>Izvezi kupc&amp;e…</translation>
    </message>
    <message>
        <source>What the file would do</source>
        <translation>Šta bi datoteka uradila</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Upiši</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>&amp;Vrati staro…</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>P&amp;rikaži:</translation>
    </message>
    <message>
        <source>How it is rea&amp;d</source>
        <translation>Kako se č&amp;ita</translation>
    </message>
</context>
<context>
    <name>HeadingStep</name>
    <message>
        <source>These lines head each receipt.</source>
        <translation>Ovi redovi stoje na vrhu svakog računa.</translation>
    </message>
    <message>
        <source>Na&amp;me of the shop:</source>
        <translation>Na&amp;ziv radnje:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresa:</translation>
    </message>
    <message>
        <source>&amp;Identification:</source>
        <translation>&amp;Identifikacioni broj:</translation>
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
        <translation>&amp;Prikaz za širinu:</translation>
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
        <translation>Provera</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Šta je nađeno</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Proveri ponovo</translation>
    </message>
    <message>
        <source>Report for whoever &amp;helps…</source>
        <translation>&amp;Izveštaj za podršku…</translation>
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
        <translation>&amp;Kodni raspored:</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>Ra&amp;zdelnik:</translation>
    </message>
    <message>
        <source>Dec&amp;imals:</source>
        <translation>&amp;Decimale:</translation>
    </message>
    <message>
        <source>Which column is what</source>
        <translation>Koja je kolona šta</translation>
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
        <translation>&amp;Cena:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>K&amp;oličina:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Jedinica mere:</translation>
    </message>
    <message>
        <source>Ta&amp;x:</source>
        <translation>&amp;Porez:</translation>
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
        <translation>Šta treba uraditi</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Redovi:</translation>
    </message>
    <message>
        <source>Leave prices as they are</source>
        <translation>Ne menjaj cene</translation>
    </message>
    <message>
        <source>Leave quantities as they are</source>
        <translation>Ne menjaj količine</translation>
    </message>
    <message>
        <source>New goods whose row says none</source>
        <translation>Za novu robu bez podatka u redu</translation>
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
        <translation>Pri&amp;kaži račun</translation>
    </message>
    <message>
        <source>&amp;Back to the list</source>
        <translation>&amp;Nazad na spisak</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Z&amp;atvori</translation>
    </message>
</context>
<context>
    <name>LabelChoice</name>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;List:</translation>
    </message>
    <message>
        <source>Start at la&amp;bel:</source>
        <translation>Počni od &amp;etikete:</translation>
    </message>
    <message>
        <source>Printer&apos;s d&amp;ots:</source>
        <translation>&amp;Rezolucija štampača:</translation>
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
        <translation>Leva ivica:</translation>
    </message>
    <message>
        <source>From the top:</source>
        <translation>Gornja ivica:</translation>
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
        <translation>List koji je već načet: pritisnite na slici prvu slobodnu etiketu.</translation>
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
        <translation>Sledeća stranica</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>Kako će biti odštampano</translation>
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
        <translation>Delovi</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>Šta&amp;mpaj etikete</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF...</source>
        <translation>Sačuvaj kao PD&amp;F...</translation>
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
        <translation>Ekrani kase i ono što ona štampa mogu imati svaki svoj jezik. Nazivi robe i zaglavlje računa ostaju onako kako ste ih upisali.</translation>
    </message>
    <message>
        <source>On the &amp;screens</source>
        <translation>Na &amp;ekranima</translation>
    </message>
    <message>
        <source>On &amp;paper: receipts, reports and their previews</source>
        <translation>Na &amp;papiru: računi, izveštaji i njihov pregled</translation>
    </message>
    <message>
        <source>A receipt in the language of paper</source>
        <translation>Račun na jeziku papira</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Sačuvaj</translation>
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
        <translation>PERIOD</translation>
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
        <translation>Prikaži period</translation>
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
        <translation>F5-Štampaj</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Sačuvaj</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Izveštaj (*.txt)</translation>
    </message>
    <message>
        <source>List does not contain any item.Change date.</source>
        <translation>Spisak je prazan. Promenite datum.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Sačuvaj kao</translation>
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
        <translation>Ime i lozinka korisnika sa nivoom 3:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Korisnik:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Lo&amp;zinka:</translation>
    </message>
    <message>
        <source>&amp;Log in</source>
        <translation>&amp;Prijava</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Z&amp;atvori</translation>
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
        <translation>Red je obrisan pošto je ovaj spisak učitan.</translation>
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
        <translation>&amp;Sačuvaj</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Z&amp;atvori</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Pregled</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>D&amp;anas</translation>
    </message>
    <message>
        <source>&amp;7 days</source>
        <translation>&amp;7 dana</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Poslednjih sedam dana</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mesec</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Ovaj mesec</translation>
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
        <translation>Svi dani radnje</translation>
    </message>
    <message>
        <source>&amp;Own days</source>
        <translation>&amp;Izbor dana</translation>
    </message>
    <message>
        <source>From one day to another</source>
        <translation>Od jednog do drugog dana</translation>
    </message>
    <message>
        <source>As ta&amp;bles</source>
        <translation>Kao ta&amp;bele</translation>
    </message>
    <message>
        <source>The figures of the charts as tables</source>
        <translation>Brojke sa grafikona kao tabele</translation>
    </message>
    <message>
        <source>P&amp;DF</source>
        <translation>PD&amp;F</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Sačuvaj kao PDF</translation>
    </message>
    <message>
        <source>&amp;CSV</source>
        <translation>&amp;CSV</translation>
    </message>
    <message>
        <source>Save the figures for a spreadsheet</source>
        <translation>Sačuvaj brojke za program za tabele</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Štampa&amp;j</translation>
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
        <translation>P&amp;rikaži</translation>
    </message>
    <message>
        <source>Takings</source>
        <translation>Promet</translation>
    </message>
    <message>
        <source>By hour and weekday</source>
        <translation>Po satu i danu u nedelji</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>By ta&amp;kings</source>
        <translation>Po &amp;prometu</translation>
    </message>
    <message>
        <source>By pi&amp;eces</source>
        <translation>Po &amp;količini</translation>
    </message>
    <message>
        <source>Sold best</source>
        <translation>Najprodavanije</translation>
    </message>
    <message>
        <source>In stock and sold least</source>
        <translation>Na zalihi, a najmanje prodato</translation>
    </message>
    <message>
        <source>Runs out at the present pace</source>
        <translation>Ponestaje uz sadašnju prodaju</translation>
    </message>
    <message>
        <source>Groups of the touch table</source>
        <translation>Grupe table tastera</translation>
    </message>
    <message>
        <source>Cashiers</source>
        <translation>Kasiri</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>How far it has read</source>
        <translation>Dokle je učitano</translation>
    </message>
    <message>
        <source>Esc - Stop</source>
        <translation>Esc - Prekini</translation>
    </message>
    <message>
        <source>Shows what was read until now</source>
        <translation>Prikazuje ono što je do sada učitano</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>INVOICE No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>RAČUN br:%1</translation>
    </message>
    <message>
        <source>   Price Quantit TaxRat     TAX   Amount</source>
        <extracomment>40 columns, all to the right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>    Cena  Količ.  Stopa     PDV    Iznos</translation>
    </message>
    <message>
        <source>ProductID  Product description          </source>
        <extracomment>40 columns: code and description, one blank between them</extracomment>
        <translation>Šifra Naziv artikla                     </translation>
    </message>
    <message>
        <source>Product              Price Quant  Amount</source>
        <extracomment>40 columns: product 18, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Artikal               Cena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>No Product description                  </source>
        <extracomment>40 columns: number and description, one blank between them</extracomment>
        <translation>Rb Naziv artikla                        </translation>
    </message>
    <message>
        <source>No Product           Price Quant  Amount</source>
        <extracomment>40 columns: number 3, product 15, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Rb Artikal            Cena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>No Product name                    Unit Quantit Price    Amount     Tax   Amount</source>
        <extracomment>80 columns: number and name 35, and to the right unit 4, quantity 8, price 8, amount 8, tax 8, amount 9</extracomment>
        <translation>Rb Naziv artikla                     JM  Količ.    Cena   Iznos     PDV    Iznos</translation>
    </message>
    <message>
        <source>                                                 outTax   outTax         withTax</source>
        <extracomment>80 columns, below the line before: price and first amount &quot;without tax&quot;, last amount &quot;with tax&quot;</extracomment>
        <translation>                                                bez PDV bez PDV           sa PDV</translation>
    </message>
    <message>
        <source>No Product description          </source>
        <extracomment>32 columns: number and description, one blank between them</extracomment>
        <translation>Rb Naziv artikla                </translation>
    </message>
    <message>
        <source>     Price  Quantity      Amount</source>
        <extracomment>32 columns, all to the right: price 9, quantity 10, amount 13</extracomment>
        <translation>     Cena  Količina        Iznos</translation>
    </message>
    <message>
        <source>Product      Price Quant  Amount</source>
        <extracomment>32 columns: product 10, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Artikal       Cena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>Date of issue:%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Datum izdavanja:%1</translation>
    </message>
    <message>
        <source>Delivery date :%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Datum prometa  :%1</translation>
    </message>
    <message>
        <source>Custumer:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s name</extracomment>
        <translation>Kupac:%1</translation>
    </message>
    <message>
        <source>ID:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s identification number</extracomment>
        <translation>ID broj:%1</translation>
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
        <translation>PDV...........%1: </translation>
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
        <translation>UKUPNO:%1</translation>
    </message>
    <message>
        <source>Cashier:%1</source>
        <extracomment>at most 12 columns without %1, the cashier&apos;s name</extracomment>
        <translation>Kasir:%1</translation>
    </message>
    <message>
        <source>Invoice No%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Račun br.%1</translation>
    </message>
    <message>
        <source>Invoice No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Račun br:%1</translation>
    </message>
    <message>
        <source>Milk 1 l</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Mleko 1 l</translation>
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
        <translation>Radno vreme kase</translation>
    </message>
    <message>
        <source>CR  DateFrom  DateTo  TimeFrom    TimeTo</source>
        <extracomment>40 columns: register 4, the days of login and log-off 8 each, their times 10 and 9</extracomment>
        <translation>Ks.  Dat. od Dat. do  Vreme od  Vreme do</translation>
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
        <translation>IZVEŠTAJ O RAČUNIMA</translation>
    </message>
    <message>
        <source>Invoices report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Računi po danima za period</translation>
    </message>
    <message>
        <source> DATE      InvoiceFrom InvoiceTo        </source>
        <extracomment>40 columns: day 11, first invoice 12, last invoice 17</extracomment>
        <translation> DATUM     Od računa   Do računa        </translation>
    </message>
    <message>
        <source>Total wout Tax       TAX   Total withTAX</source>
        <extracomment>40 columns, to the right: amount without tax 14, tax 10, amount with tax 16</extracomment>
        <translation>Ukupno bez PDV       PDV   Ukupno sa PDV</translation>
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
        <translation>Rb   Naziv artikla                 Šifra-barkod  JM    Cena  Količ.      Iznos</translation>
    </message>
    <message>
        <source>TOTAL with Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>UKUPNO sa PDV: %1</translation>
    </message>
    <message>
        <source>TAX: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>PDV: %1</translation>
    </message>
    <message>
        <source>TOTAL without Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>UKUPNO bez PDV: %1</translation>
    </message>
    <message>
        <source>Invoices </source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Računi </translation>
    </message>
    <message>
        <source>InNo Cashie    Date       Time    Amount</source>
        <extracomment>40 columns: number 5, cashier 8, date 9, time 9, amount 9</extracomment>
        <translation>Br.  Kasir       Datum    Vreme    Iznos</translation>
    </message>
    <message>
        <source>TOTAL: </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>UKUPNO: </translation>
    </message>
    <message>
        <source>Sale by Cashier</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Prodaja po kasirima</translation>
    </message>
    <message>
        <source>CId Cashier           Date         Total</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, date 9, total 11</extracomment>
        <translation>Br. Kasir               Datum     Ukupno</translation>
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
        <translation>Rb Naziv artikla           JM Kol  Iznos</translation>
    </message>
    <message>
        <source>Taxes report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>PDV izveštaj za period</translation>
    </message>
    <message>
        <source>Id and type TAX       Rate[%]    Date   </source>
        <extracomment>40 columns: ID and name of the tax 22, rate 7, date 11</extracomment>
        <translation>Šifra i vrsta poreza   Stopa%    Datum  </translation>
    </message>
    <message>
        <source>             Base          TAX     Total</source>
        <extracomment>40 columns, to the right: base 20, tax 10, total 10</extracomment>
        <translation>            Osnovica       PDV    Ukupno</translation>
    </message>
    <message>
        <source>TOTAL :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>UKUPNO :  </translation>
    </message>
    <message>
        <source>Quantity of items in stock</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Zaliha artikala</translation>
    </message>
    <message>
        <source>No Product Name      Unit Quanti  Amount</source>
        <extracomment>40 columns: code 3, name 20, unit 3, quantity 6, amount 8</extracomment>
        <translation>Rb Naziv artikla       JM Količ.   Iznos</translation>
    </message>
    <message>
        <source>Tax report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>PDV izveštaj za period</translation>
    </message>
    <message>
        <source>Date           Amount      TAX     Total</source>
        <extracomment>40 columns: date 10, amount without tax 10, tax 10, total 10</extracomment>
        <translation>Datum       Osnovica       PDV    Ukupno</translation>
    </message>
    <message>
        <source>Tax report by invoices for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>PDV po računima za period</translation>
    </message>
    <message>
        <source>InvNo    Date          Time             </source>
        <extracomment>40 columns: number 8, date 12, time 20</extracomment>
        <translation>Br.rač.  Datum         Vreme            </translation>
    </message>
    <message>
        <source>               Amount      TAX     Total</source>
        <extracomment>40 columns, to the right: amount without tax 20, tax 10, total 10</extracomment>
        <translation>            Osnovica       PDV    Ukupno</translation>
    </message>
    <message>
        <source>End Report No: %1</source>
        <extracomment>at most 34 columns without %1, the number</extracomment>
        <translation>Zaključak dana br: %1</translation>
    </message>
    <message>
        <source>Currently</source>
        <extracomment>at most 39 columns</extracomment>
        <translation>Trenutno stanje</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>KASE</translation>
    </message>
    <message>
        <source>CRNo   Date   TimeFrom            Amount</source>
        <extracomment>40 columns: register 6, date 9, the period&apos;s begin 9, its end 8, amount 7</extracomment>
        <translation>Kasa    Datum Vreme od             Iznos</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>KASIRI</translation>
    </message>
    <message>
        <source>CId Cashier                       Amount</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, amount 20</extracomment>
        <translation>Br. Kasir                          Iznos</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>ARTIKLI</translation>
    </message>
    <message>
        <source>Id  ProductName          Unit Qua Amount</source>
        <extracomment>40 columns: code 4, name 23, unit 3, quantity 3, amount 7</extracomment>
        <translation>Šif Naziv artikla          JM Kol  Iznos</translation>
    </message>
    <message>
        <source>End Reports</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Zaključci dana</translation>
    </message>
    <message>
        <source>CR End  Date    TimeFr   TimeTo   Amount</source>
        <extracomment>40 columns: register 3, period 4, date 9, its begin 9, its end 8, amount 7</extracomment>
        <translation>Ks Zak  Datum Vreme od Vreme do    Iznos</translation>
    </message>
    <message>
        <source>EndNo Date and time of end        Amount</source>
        <extracomment>40 columns: number 6, date 9, time 9, amount 16</extracomment>
        <translation>Br.   Datum i vreme                Iznos</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Printed:%1 %2</source>
        <extracomment>at most 15 columns without %1 and %2, date and time</extracomment>
        <translation>Štampano:%1 %2</translation>
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
        <translation>&amp;Korisnik:</translation>
    </message>
    <message>
        <source>New &amp;password:</source>
        <translation>N&amp;ova lozinka:</translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation>&amp;Ponovo ista:</translation>
    </message>
    <message>
        <source>Show the pass&amp;words</source>
        <translation>Pr&amp;ikaži lozinke</translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Choose a day in the calendar, or two days and &quot;%1&quot;.</source>
        <translation>Izaberite dan u kalendaru, ili dva dana i &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>Za ove dane nema ničega.</translation>
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
        <translation>Uređaj, tcp: sa adresom i portom, ili file: sa imenom; prazno je uobičajeni uređaj</translation>
    </message>
    <message>
        <source>Ask it for paper, cover and errors before it prints</source>
        <translation>Pre štampanja proveri papir, poklopac i greške</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Probna stranica</translation>
    </message>
    <message>
        <source>Open the drawer</source>
        <translation>Otvori fioku</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Iseci</translation>
    </message>
    <message>
        <source>How is it?</source>
        <translation>Stanje?</translation>
    </message>
</context>
<context>
    <name>PriceListChoice</name>
    <message>
        <source>All goods i&amp;n the shop</source>
        <translation>Sv&amp;a roba u radnji</translation>
    </message>
    <message>
        <source>The goods chosen onl&amp;y</source>
        <translation>Samo &amp;izabrana roba</translation>
    </message>
    <message>
        <source>The list follows the groups of the touch table; what has no button comes last.</source>
        <translation>Cenovnik prati grupe table tastera; roba bez tastera je na kraju.</translation>
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
        <translation>Sledeća stranica</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>Kako će biti odštampano</translation>
    </message>
</context>
<context>
    <name>PricesPage</name>
    <message>
        <source>Prices</source>
        <translation>Cene</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Šta bi se promenilo</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>Št&amp;a:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Procenat:</translation>
    </message>
    <message>
        <source>&amp;Ending:</source>
        <translation>&amp;Završetak:</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>Po&amp;gledaj</translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation>Up&amp;iši</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>&amp;Vrati staro…</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>Po&amp;rez:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>Gr&amp;upa:</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <source>Printers</source>
        <translation>Štampači</translation>
    </message>
    <message>
        <source>What is tried here goes to the printer as it is chosen here; the till takes it once it is saved, from the next receipt on.</source>
        <translation>Ono što se ovde proba ide na štampač kako je ovde izabran; kasa ga preuzima kada se sačuva, od sledećeg računa.</translation>
    </message>
    <message>
        <source>&amp;Receipts go to:</source>
        <translation>&amp;Računi idu na:</translation>
    </message>
    <message>
        <source>Re&amp;ports go to:</source>
        <translation>&amp;Izveštaji idu na:</translation>
    </message>
    <message>
        <source>&amp;Commands:</source>
        <translation>&amp;Komande:</translation>
    </message>
    <message>
        <source>C&amp;ut the paper behind a receipt</source>
        <translation>Ise&amp;ci papir posle računa</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sačuvaj</translation>
    </message>
    <message>
        <source>&amp;Look for printers again</source>
        <translation>P&amp;otraži štampače ponovo</translation>
    </message>
    <message>
        <source>&amp;Test the page printer</source>
        <translation>&amp;Probaj sistemski štampač</translation>
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
        <translation>Cena</translation>
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
        <translation>Stopa PDV</translation>
    </message>
    <message>
        <source>Tax percent</source>
        <translation>Procenat poreza</translation>
    </message>
    <message>
        <source>Thumbnail (icon)</source>
        <translation>Sličica (ikona)</translation>
    </message>
    <message>
        <source>Insert icon</source>
        <translation>Dodaj ikonu</translation>
    </message>
    <message>
        <source>Izaberi ikonu za artikl</source>
        <translation>Izaberi ikonu za artikal</translation>
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
        <translation>F5-Sačuvaj</translation>
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
        <translation>Cena bez PDV</translation>
    </message>
    <message>
        <source>Second price with Tax</source>
        <translation>Druga cena sa PDV</translation>
    </message>
    <message>
        <source>Second price without Tax</source>
        <translation>Druga cena bez PDV</translation>
    </message>
    <message>
        <source>Bitmaps</source>
        <translation>Bitmape</translation>
    </message>
    <message>
        <source>GIF Images</source>
        <translation>GIF slike</translation>
    </message>
    <message>
        <source>JPEG Images</source>
        <translation>JPEG slike</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Datoteka nije nađena</translation>
    </message>
    <message>
        <source>Price must be numeric.</source>
        <translation>Cena mora biti broj.</translation>
    </message>
    <message>
        <source>Product with this code-barcode already exists.Change ProductID!</source>
        <translation>Artikal sa ovom šifrom već postoji. Promenite šifru.</translation>
    </message>
    <message>
        <source>The file %1 holds no picture that can be shown.</source>
        <translation>U datoteci %1 nema slike koja može da se prikaže.</translation>
    </message>
</context>
<context>
    <name>ReceiptWords</name>
    <message>
        <source>X report is done.</source>
        <translation>X izveštaj je urađen.</translation>
    </message>
    <message>
        <source>Z report - daily report is done.</source>
        <translation>Z izveštaj - dnevni izveštaj je urađen.</translation>
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
        <translation>Cena</translation>
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
        <translation>PDV %</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>JM</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Šifra PDV</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Stopa</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has no paper.</source>
        <translation>Štampač na LPT%1 nema papira.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has its cover open.</source>
        <translation>Štampaču na LPT%1 je otvoren poklopac.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 is offline or has an error.</source>
        <translation>Štampač na LPT%1 nije na vezi ili je u grešci.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 does not answer.</source>
        <translation>Štampač na LPT%1 ne odgovara.</translation>
    </message>
    <message>
        <source>Nothing is printed yet.

Yes: look at it again. No: print all the same.</source>
        <translation>Još ništa nije odštampano.

Da: proveri ponovo. Ne: ipak štampaj.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Čitanje nije uspelo, %1: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>Čuvanje nije uspelo, %1: %2.</translation>
    </message>
    <message>
        <source>Cannot delete %1: %2.</source>
        <translation>Brisanje nije uspelo, %1: %2.</translation>
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
        <translation>Ono što se prodaje na komad ide na račun čim se skenira. Bez toga kursor čeka kod količine.</translation>
    </message>
    <message>
        <source>&amp;Customer line</source>
        <translation>Red za k&amp;upca</translation>
    </message>
    <message>
        <source>The sales screen has two boxes for the customer, and the receipt shows what was written there.</source>
        <translation>Ekran prodaje ima dva polja za kupca, a račun prikazuje ono što je u njih upisano.</translation>
    </message>
    <message>
        <source>Next &amp;invoice by itself</source>
        <translation>&amp;Automatski sledeći račun</translation>
    </message>
    <message>
        <source>When an invoice is posted or given up, the next one opens at once.</source>
        <translation>Kada se račun izda ili se od njega odustane, odmah se otvara sledeći.</translation>
    </message>
    <message>
        <source>&amp;Offer the End Report</source>
        <translation>&amp;Ponudi zaključak dana</translation>
    </message>
    <message>
        <source>Whoever ends the till is asked whether to make the End Report.</source>
        <translation>Pri izlasku iz kase pita se da li treba uraditi zaključak dana.</translation>
    </message>
    <message>
        <source>&amp;Blank lines after a receipt:</source>
        <translation>Prazni&amp;h redova posle računa:</translation>
    </message>
    <message>
        <source>So that the paper tears below the last line</source>
        <translation>Da se papir otkine ispod poslednjeg reda</translation>
    </message>
    <message>
        <source>Fisc&amp;al file:</source>
        <translation>&amp;Fiskalna datoteka:</translation>
    </message>
    <message>
        <source>The till takes these settings when it starts.</source>
        <translation>Kasa preuzima ova podešavanja pri pokretanju.</translation>
    </message>
</context>
<context>
    <name>ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation>Izveštaji</translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation>&amp;Izveštaj</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>O&amp;d</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>D&amp;o</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>P&amp;rikaži</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Izveštaj</translation>
    </message>
    <message>
        <source>Sa&amp;ve as table…</source>
        <translation>Sačuvaj kao &amp;tabelu…</translation>
    </message>
</context>
<context>
    <name>RestoreForm</name>
    <message>
        <source>Restore a backup</source>
        <translation>Vraćanje rezervne kopije</translation>
    </message>
    <message>
        <source>The days of the shop and of the backup</source>
        <translation>Dani radnje i rezervne kopije</translation>
    </message>
    <message>
        <source>Close the till, and all others of this shop, before you go on.</source>
        <translation>Pre nastavka zatvorite ovu i sve druge kase ove radnje.</translation>
    </message>
    <message>
        <source>&amp;Replace the shop by the backup</source>
        <translation>&amp;Zameni podatke kopijom</translation>
    </message>
    <message>
        <source>&amp;Leave it as it is</source>
        <translation>&amp;Ostavi kako jeste</translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message>
        <source>End Report is done?</source>
        <translation>Da li je urađen zaključak dana?</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <translation>Zaključak dana %1 %2</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Želite li da uradite zaključak dana?</translation>
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
        <translation>bilo &amp;gde u tekstu</translation>
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
        <translation>Ništa nije nađeno.</translation>
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
        <translation>&amp;Sačuvaj</translation>
    </message>
    <message>
        <source>&amp;Next step</source>
        <translation>S&amp;ledeći korak</translation>
    </message>
    <message>
        <source>Each step can be left out, and done again at any time. To sell, close this window and start VELTON.</source>
        <translation>Svaki se korak može preskočiti i ponoviti u svakom trenutku. Za prodaju zatvorite ovaj prozor i pokrenite VELTON.</translation>
    </message>
</context>
<context>
    <name>SupportForm</name>
    <message>
        <source>Report for whoever helps</source>
        <translation>Izveštaj za podršku</translation>
    </message>
    <message>
        <source>This is all that the file holds: no names, no sales, no passwords. Read it through, then save it and send it to whoever helps you.</source>
        <translation>To je sve što je u datoteci: bez imena, bez prodaje, bez lozinki. Pročitajte, pa je sačuvajte i pošaljite onome ko vam pomaže.</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Izveštaj</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Sačuvaj…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Z&amp;atvori</translation>
    </message>
</context>
<context>
    <name>SupportWords</name>
    <message>
        <source>This is not a text in RTF.</source>
        <translation>Ovo nije tekst u formatu RTF.</translation>
    </message>
    <message>
        <source>The groups of the text are nested too deeply.</source>
        <translation>Grupe u tekstu su preduboko ugnežđene.</translation>
    </message>
    <message>
        <source>The text closes more groups than it opens.</source>
        <translation>Tekst zatvara više grupa nego što otvara.</translation>
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
        <translation>Dvoklik za izmenu.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Izmeni</translation>
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
        <translation>Šifra:</translation>
    </message>
    <message>
        <source>Type of tax:</source>
        <translation>Vrsta poreza:</translation>
    </message>
    <message>
        <source>Tax rate:</source>
        <translation>Stopa PDV:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Stopa PDV mora biti broj.</translation>
    </message>
</context>
<context>
    <name>TaxesStep</name>
    <message>
        <source>Each product belongs to one tax. Products keep the rate that they were saved with.</source>
        <translation>Svaki artikal pripada jednom porezu. Artikli zadržavaju stopu sa kojom su sačuvani.</translation>
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
        <translation>S&amp;topa u procentima:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>No&amp;vo</translation>
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
        <translation>F5-Štampaj</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Sačuvaj</translation>
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
        <translation>Sačuvaj kao</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Izveštaj (*.txt)</translation>
    </message>
</context>
<context>
    <name>TillsPage</name>
    <message>
        <source>Several tills</source>
        <translation>Više kasa</translation>
    </message>
    <message>
        <source>Tills on several machines share one shop when it lies on a PostgreSQL server. Whoever looks after the server tells you what belongs into the boxes.</source>
        <translation>Kase na više računara dele jednu radnju kada ona leži na serveru PostgreSQL. Šta se upisuje u polja, reći će Vam ko održava server.</translation>
    </message>
    <message>
        <source>&amp;Server</source>
        <translation>&amp;Server</translation>
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
        <translation>kao što je sačuvana</translation>
    </message>
    <message>
        <source>&amp;Name of the shop there</source>
        <translation>&amp;Naziv radnje tamo</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>Š&amp;ifrovanje</translation>
    </message>
    <message>
        <source>&amp;Look at the server</source>
        <translation>P&amp;ogledaj server</translation>
    </message>
    <message>
        <source>&amp;Move this shop there</source>
        <translation>Pr&amp;eseli radnju tamo</translation>
    </message>
    <message>
        <source>&amp;Join the shop there</source>
        <translation>Pri&amp;druži se radnji tamo</translation>
    </message>
    <message>
        <source>&amp;Back into this folder…</source>
        <translation>&amp;Vrati u ovu fasciklu…</translation>
    </message>
    <message>
        <source>The pictures on touch buttons lie in the folder of each register. Carry them from one to the other by a stick or a share.</source>
        <translation>Slike na tasterima leže u fascikli svake kase. Prenesite ih sa jedne na drugu USB memorijom ili preko mreže.</translation>
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
        <translation>Kopija se upisuje u datoteku, a ne na standardni izlaz.</translation>
    </message>
    <message>
        <source>Both stores are sound.</source>
        <translation>Obe baze su ispravne.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no day; write 2026-11-30.</source>
        <translation>&apos;%1&apos; nije datum; pišite ga ovako: 2026-11-30.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; divides nothing that could be read.</source>
        <translation>Sa razdvajačem &apos;%1&apos; ništa ne može da se pročita.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form COLUMN=FIELD.</source>
        <translation>&apos;%1&apos; nema oblik COLUMN=FIELD.</translation>
    </message>
    <message>
        <source>%1, separator %2, decimals behind %3; %4</source>
        <translation>%1, razdvajač %2, decimale iza znaka %3; %4</translation>
    </message>
    <message>
        <source>an unknown sign</source>
        <translation>nepoznat znak</translation>
    </message>
    <message>
        <source>1 row is refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>1 red je odbijen, pa ništa nije upisano; uz --skip-refused upisuju se ostali.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows are refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>
            <numerusform>%n red je odbijen, pa ništa nije upisano; uz --skip-refused upisuju se ostali.</numerusform>
            <numerusform>%n reda su odbijena, pa ništa nije upisano; uz --skip-refused upisuju se ostali.</numerusform>
            <numerusform>%n redova je odbijeno, pa ništa nije upisano; uz --skip-refused upisuju se ostali.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Upisano: %1 novih, %2 izmenjenih.</translation>
    </message>
    <message>
        <source>Sold meanwhile, and taken off: %1</source>
        <translation>U međuvremenu prodato i skinuto: %1</translation>
    </message>
    <message>
        <source>%1 is taken back: %2 restored, %3 removed, %4 notes.</source>
        <translation>%1 je vraćeno na staro: vraćeno %2, uklonjeno %3, napomena %4.</translation>
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
        <translation>red %1</translation>
    </message>
    <message>
        <source>%1 (velton-store --help tells more)</source>
        <translation>%1 (više o tome: velton-store --help)</translation>
    </message>
    <message>
        <source>Moved %1 rows of %2 tables and compared %3 days of sales.</source>
        <translation>Premešteno redova: %1, iz tabela: %2; upoređeno dana prodaje: %3.</translation>
    </message>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>Stara baza je sačuvana kao %1.</translation>
    </message>
    <message>
        <source>Cannot write the output: %1</source>
        <translation>Izlaz ne može da se upiše: %1</translation>
    </message>
    <message>
        <source>No folder for backups is named here, nor by velton.ini in its section [backup].</source>
        <translation>Fascikla za rezervne kopije nije navedena ni ovde ni u velton.ini, odeljak [backup].</translation>
    </message>
    <message>
        <source>Made %1: %2 invoices, %3 bytes.</source>
        <translation>Napravljeno %1: računa %2, bajtova %3.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there.</source>
        <translation>Nema fascikle za rezervne kopije, %1.</translation>
    </message>
    <message>
        <source>Restored %1 invoices of %2 days.</source>
        <translation>Vraćeno: računa %1, dana %2.</translation>
    </message>
    <message>
        <source>What was replaced is kept in %1.</source>
        <translation>Ono što je zamenjeno čuva se u %1.</translation>
    </message>
    <message>
        <source>%1: %2 invoices, %3 become %4, %5</source>
        <translation>%1: računa %2, promet %3; posle računa %4, promet %5</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>Stara baza nije mogla da se skloni, a nijedna kasa više ne sme da radi na njoj. %1</translation>
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
        <translation>Kod pcs kasa pri svakom očitavanju broji jedan komad, kod svih drugih jedinica pita za količinu. Skraćenica se može menjati dok je nema nijedan artikal.</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Jedinice mere</translation>
    </message>
    <message>
        <source>S&amp;hort name:</source>
        <translation>S&amp;kraćenica:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Naziv:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>No&amp;vo</translation>
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
        <translation>Šifra:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Korisnik:</translation>
    </message>
    <message>
        <source>Access Level:</source>
        <translation>Nivo pristupa:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lozinka:</translation>
    </message>
    <message>
        <source>Confirm Pass:</source>
        <translation>Ponovi lozinku:</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Prikaži lozinku</translation>
    </message>
    <message>
        <source>Workplace:</source>
        <translation>Radno mesto:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Korisnik sa ovom šifrom ili imenom već postoji. Promenite ime.</translation>
    </message>
</context>
<context>
    <name>UsersStep</name>
    <message>
        <source>Level 1 sells, level 2 also makes the End Report, level 3 does everything.</source>
        <translation>Nivo 1 prodaje, nivo 2 radi i zaključak dana, nivo 3 može sve.</translation>
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
        <translation>I&amp;me:</translation>
    </message>
    <message>
        <source>&amp;Level:</source>
        <translation>N&amp;ivo:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Lo&amp;zinka:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>No&amp;vo</translation>
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
        <translation>Zatvoren je ekran koji prikazuje %1.</translation>
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
        <translation>Nije izabran nijedan red spiska.</translation>
    </message>
</context>
<context>
    <name>forms::LongWork</name>
    <message>
        <source>This takes a while ...</source>
        <translation>Ovo će malo potrajati ...</translation>
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
        <translation>Datoteka ne može da se upiše: %1</translation>
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
        <translation>Kasa za jednu malu radnju: računi, zalihe i izveštaji.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verzija %1</translation>
    </message>
</context>
<context>
    <name>frmActivity</name>
    <message>
        <source>Business hours of cash register</source>
        <translation>Radno vreme kase</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>DateFrom</source>
        <translation>Od datuma</translation>
    </message>
    <message>
        <source>DateTo</source>
        <translation>Do datuma</translation>
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
        <translation>Spisak je prazan. Promenite datum.</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>Delete all list</source>
        <translation>Obriši ceo spisak</translation>
    </message>
    <message>
        <source>Log can&apos;t be deleted.</source>
        <translation>Evidencija ne može da se obriše.</translation>
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
        <translation>Dvoklik za izmenu.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>Add new product</source>
        <translation>Dodaj novi artikal</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Izmeni</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Stopa PDV</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Cena bez PDV</translation>
    </message>
    <message>
        <source>Second Price</source>
        <translation>Druga cena</translation>
    </message>
    <message>
        <source>Second Price without Tax</source>
        <translation>Druga cena bez PDV</translation>
    </message>
    <message>
        <source>ProductID - Barcode: %1
Product name: %2
Do you want to delete this item?</source>
        <translation>Šifra - barkod: %1
Naziv artikla: %2
Želite li da obrišete ovaj artikal?</translation>
    </message>
    <message>
        <source>Product deleted.</source>
        <translation>Artikal je obrisan.</translation>
    </message>
</context>
<context>
    <name>frmChangePassword</name>
    <message>
        <source>Izmjena lozinke</source>
        <translation>Izmena lozinke</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Promeni lozinku</translation>
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
        <translation>Ponovi lozinku</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Prikaži lozinku</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Lozinka je promenjena.</translation>
    </message>
    <message>
        <source>User with this code or a name already exists.Change name!</source>
        <translation>Korisnik sa ovom šifrom ili imenom već postoji. Promenite ime.</translation>
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
        <translation>Lo&amp;zinka:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Nonexistent user.</source>
        <translation>Korisnik ne postoji.</translation>
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
        <translation>Uplata pologa - samo za fiskalne štampače</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>samo za fiskalne štampače</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Iznos:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Upiši polog - F12</translation>
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
        <translation>Polog - isplata</translation>
    </message>
    <message>
        <source>Deposit payout - only for fiscal printers</source>
        <translation>Isplata pologa - samo za fiskalne štampače</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>samo za fiskalne štampače</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Iznos:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Upiši polog - F12</translation>
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
        <translation>Izmena kupca - dobavljača</translation>
    </message>
    <message>
        <source>Identification:</source>
        <translation>Identifikacioni broj:</translation>
    </message>
</context>
<context>
    <name>frmEditProduct</name>
    <message>
        <source>Edit product</source>
        <translation>Izmena artikla</translation>
    </message>
    <message>
        <source>F4-Structure</source>
        <extracomment>shows the composition</extracomment>
        <translation>F4-Normativ</translation>
    </message>
    <message>
        <source>Select a thumbnail - icon</source>
        <translation>Izaberi sličicu - ikonu</translation>
    </message>
    <message>
        <source>All images</source>
        <translation>Sve slike</translation>
    </message>
    <message>
        <source>File with such name does not exist!</source>
        <translation>Datoteka sa tim imenom ne postoji!</translation>
    </message>
</context>
<context>
    <name>frmEditTax</name>
    <message>
        <source>Edit Tax</source>
        <translation>Izmena poreza</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!</source>
        <translation>Porez sa ovom šifrom ili nazivom već postoji. Promenite šifru ili vrstu.</translation>
    </message>
</context>
<context>
    <name>frmEditUser</name>
    <message>
        <source>Edit User</source>
        <translation>Izmena korisnika</translation>
    </message>
</context>
<context>
    <name>frmFirma</name>
    <message>
        <source>My details - My firm</source>
        <translation>Moji podaci - Moja firma</translation>
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
        <translation>ID broj</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Tekući račun</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Adresa ne sme biti prazna.</translation>
    </message>
    <message>
        <source>Data modified.</source>
        <translation>Podaci su izmenjeni.</translation>
    </message>
</context>
<context>
    <name>frmFiskalniPeriodicniIzvjestaj</name>
    <message>
        <source>Periodic report for fiscal printer</source>
        <translation>Periodični izveštaj fiskalnog štampača</translation>
    </message>
    <message>
        <source>Choose time period</source>
        <translation>Izaberite period</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>Periodic report is done.</source>
        <translation>Periodični izveštaj je urađen.</translation>
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
        <translation>Nema teksta pomoći.

Trebalo bi da bude u ovoj datoteci:
%1</translation>
    </message>
    <message>
        <source>The help text cannot be read: %1

It is in this file:
%2</source>
        <translation>Tekst pomoći ne može da se pročita: %1

Nalazi se u ovoj datoteci:
%2</translation>
    </message>
    <message>
        <source>The help text cannot be read: it is too long.

It is in this file:
%1</source>
        <translation>Tekst pomoći ne može da se pročita: predugačak je.

Nalazi se u ovoj datoteci:
%1</translation>
    </message>
</context>
<context>
    <name>frmIzvjestajKIF</name>
    <message>
        <source>Invoices for tax report</source>
        <translation>Knjiga izdatih računa</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>računi</translation>
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
        <translation>Od računa</translation>
    </message>
    <message>
        <source>InvoiceTo</source>
        <translation>Do računa</translation>
    </message>
    <message>
        <source>Total without Tax</source>
        <translation>Ukupno bez PDV</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
    </message>
    <message>
        <source>Total with Tax</source>
        <translation>Ukupno sa PDV</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Osnovica:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>PDV:</translation>
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
        <translation>TABLA TASTERA - izmena</translation>
    </message>
    <message>
        <source>input new card name</source>
        <extracomment>card: a tab of the touch table</extracomment>
        <translation>naziv kartice</translation>
    </message>
    <message>
        <source>F5-Change name of category</source>
        <translation>F5-Promeni naziv kartice</translation>
    </message>
    <message>
        <source>F4-Automatic</source>
        <translation>F4-Automatski</translation>
    </message>
    <message>
        <source>F3-Refresh</source>
        <translation>F3-Osveži</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>search in:</source>
        <translation>traži u:</translation>
    </message>
    <message>
        <source>Search product:</source>
        <translation>Traži artikal:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>bilo gde u tekstu</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>od početka</translation>
    </message>
    <message>
        <source>Tab name can&apos;t be empty.</source>
        <translation>Naziv kartice ne sme biti prazan.</translation>
    </message>
    <message>
        <source>Old settings will be lost,
Klick Table will be set automatic</source>
        <translation>Postojeći raspored će biti izgubljen,
a tabla tastera popunjena automatski.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>Nema tekućeg reda.</translation>
    </message>
</context>
<context>
    <name>frmKupci</name>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Kupci - Dobavljači</translation>
    </message>
    <message>
        <source>&amp;Custumer - supplier</source>
        <translation>&amp;Kupac - dobavljač</translation>
    </message>
    <message>
        <source>Dvoklik izaberi kupca</source>
        <translation>Dvoklik bira kupca</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Novo</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Izmeni</translation>
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
        <translation>bilo gde u tekstu</translation>
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
        <translation>ID broj</translation>
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
Želite li da obrišete kupca?</translation>
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
        <translation>Korisnik:</translation>
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
        <translation>Proverite datum i vreme</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Vreme:</translation>
    </message>
    <message>
        <source>Provjerite datum i vrijeme ako nisu ispravni prekinite pokretanje programa i popravite datum i vrijeme</source>
        <translation>Proverite datum i vreme. Ako nisu ispravni, prekinite pokretanje programa i podesite sat.</translation>
    </message>
    <message>
        <source>60 secunds for login</source>
        <translation>60 sekundi za prijavu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>choose user</source>
        <translation>izaberite korisnika</translation>
    </message>
    <message>
        <source>Program VELTON already run.</source>
        <translation>Program VELTON je već pokrenut.</translation>
    </message>
    <message>
        <source>VELTON already works.</source>
        <translation>VELTON je već pokrenut.</translation>
    </message>
    <message>
        <source>Wrong password.Login not allowed.</source>
        <translation>Pogrešna lozinka. Prijava nije dozvoljena.</translation>
    </message>
</context>
<context>
    <name>frmMSGinvoice</name>
    <message>
        <source>CHANGE</source>
        <translation>POVRAĆAJ</translation>
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
        <translation>OK </translation>
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
        <translation>VELTON - Podešavanje mreže - više računara na istoj bazi</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1.Putanja servera</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>upišite punu putanju do servera na kojem je baza</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2.Broj kase</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Upišite broj kase (1-19)</translation>
    </message>
    <message>
        <source>For server a number greater than 20</source>
        <translation>Za server broj veći od 20</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>ID broj:</translation>
    </message>
</context>
<context>
    <name>frmNewProduct</name>
    <message>
        <source>New product</source>
        <translation>Novi artikal</translation>
    </message>
    <message>
        <source>ESC-Delete</source>
        <translation>ESC-Obriši</translation>
    </message>
    <message>
        <source>Choose image - icon</source>
        <translation>Izaberi sliku - ikonu</translation>
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
        <translation>Novi artikal je dodat.</translation>
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
        <translation>Porez sa ovom šifrom ili nazivom već postoji. Promenite šifru ili vrstu.</translation>
    </message>
    <message>
        <source>A new type of tax is added.</source>
        <translation>Nova vrsta poreza je dodata.</translation>
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
        <translation>Novi korisnik je dodat.</translation>
    </message>
</context>
<context>
    <name>frmORVAtouch</name>
    <message>
        <source>INVOICE No:</source>
        <translation>RAČUN br:</translation>
    </message>
    <message>
        <source>ili broj:</source>
        <translation>ili broj:</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
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
        <translation>Cena</translation>
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
        <translation>Naziv, adresa kupca...</translation>
    </message>
    <message>
        <source>Custumer Ident</source>
        <translation>ID broj kupca</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Klik briše, desni klik menja količinu</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>UKUPNO</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Poslednji red</translation>
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
        <translation>F6-Kasir</translation>
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
        <translation>F9-Osveži</translation>
    </message>
    <message>
        <source>REFRESH CLICK TABLE</source>
        <translation>OSVEŽI TABLU TASTERA</translation>
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
        <translation>Izaberite kasira.</translation>
    </message>
    <message>
        <source>You did not enter a single item on the invoice.</source>
        <translation>Na računu nema nijedne stavke.</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Novi račun</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Štampaj</translation>
    </message>
    <message>
        <source>Do you want cancel the invoice?</source>
        <translation>Želite li da poništite račun?</translation>
    </message>
    <message>
        <source>Product has meanwhile been deleted or does not exist.</source>
        <translation>Artikal je u međuvremenu obrisan ili ne postoji.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist.</source>
        <translation>Artikal sa ovom šifrom ili barkodom ne postoji.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist</source>
        <translation>Artikal sa ovom šifrom ili barkodom ne postoji</translation>
    </message>
    <message>
        <source>Illogical quantity. </source>
        <translation>Nelogična količina. </translation>
    </message>
    <message>
        <source>CHANGE QUANTITY</source>
        <translation>IZMENA KOLIČINE</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation>Redova: %1   Komada: %2</translation>
    </message>
    <message>
        <source>Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.</source>
        <translation>Račun %1 je upisan sa %2 od %3 stavke. One ostaju, kao i zaliha koja je skinuta.</translation>
    </message>
    <message>
        <source>Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.</source>
        <translation>Račun %1 je možda upisan ceo, delimično ili nikako: potražite ga pre nego što ga ponovo izdate.</translation>
    </message>
    <message>
        <source>The stock of %1 can&apos;t be written yet. %2</source>
        <translation>Zaliha za %1 još ne može da se upiše. %2</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Settings</source>
        <translation>Podešavanja</translation>
    </message>
    <message>
        <source>1.Program</source>
        <translation>1.Program</translation>
    </message>
    <message>
        <source>1.Printer for invoices</source>
        <translation>1.Štampač za račune</translation>
    </message>
    <message>
        <source>POS printer LPT1</source>
        <translation>POS štampač LPT1</translation>
    </message>
    <message>
        <source>POS printer LPT2</source>
        <translation>POS štampač LPT2</translation>
    </message>
    <message>
        <source>windows printer</source>
        <translation>sistemski štampač</translation>
    </message>
    <message>
        <source>Set win printer</source>
        <translation>Podesi sist. štampač</translation>
    </message>
    <message>
        <source>2. POS Printer emulalation</source>
        <translation>2.Emulacija POS štampača</translation>
    </message>
    <message>
        <source>Epson emulation</source>
        <translation>Epson emulacija</translation>
    </message>
    <message>
        <source>Star emulation</source>
        <translation>Star emulacija</translation>
    </message>
    <message>
        <source>cutter POS printer</source>
        <translation>sekač POS štampača</translation>
    </message>
    <message>
        <source>3.Printer for reports</source>
        <translation>3.Štampač za izveštaje</translation>
    </message>
    <message>
        <source>POS printer na LPT1</source>
        <translation>POS štampač na LPT1</translation>
    </message>
    <message>
        <source>POS printer na LPT2</source>
        <translation>POS štampač na LPT2</translation>
    </message>
    <message>
        <source>POS Monitor</source>
        <translation>POS monitor</translation>
    </message>
    <message>
        <source>standard monitor</source>
        <translation>običan monitor</translation>
    </message>
    <message>
        <source>touch monitor</source>
        <translation>monitor na dodir</translation>
    </message>
    <message>
        <source>4.Currency</source>
        <translation>4.Valuta</translation>
    </message>
    <message>
        <source>currency sign max 3 char</source>
        <translation>oznaka valute, najviše 3 znaka</translation>
    </message>
    <message>
        <source>5.Show amount in cash register on main form</source>
        <translation>5.Prikaži promet kase na glavnom ekranu</translation>
    </message>
    <message>
        <source>show amount in cash register on main form</source>
        <translation>prikaži promet kase na glavnom ekranu</translation>
    </message>
    <message>
        <source>6.Ask password when change cashier</source>
        <translation>6.Traži lozinku pri promeni kasira</translation>
    </message>
    <message>
        <source>ask for password </source>
        <translation>traži lozinku </translation>
    </message>
    <message>
        <source>7.Change</source>
        <extracomment>the money that the customer gets back</extracomment>
        <translation>7.Povraćaj</translation>
    </message>
    <message>
        <source>request to input and display paid cash and change</source>
        <translation>traži uplaćeni iznos i prikaži povraćaj</translation>
    </message>
    <message>
        <source>8.Show all products in Search</source>
        <translation>8.Prikaži sve artikle u pretrazi</translation>
    </message>
    <message>
        <source>show all products in search when open form</source>
        <translation>prikaži sve artikle pri otvaranju pretrage</translation>
    </message>
    <message>
        <source>9.Make printed invoices ribbon on HDD</source>
        <translation>9.Kontrolna traka štampanih računa na disku</translation>
    </message>
    <message>
        <source>printed invoices ribbon on HDD</source>
        <translation>kontrolna traka štampanih računa na disku</translation>
    </message>
    <message>
        <source>filename</source>
        <translation>datoteka</translation>
    </message>
    <message>
        <source>10.Print only on fiscal printer</source>
        <translation>10.Štampaj samo na fiskalni štampač</translation>
    </message>
    <message>
        <source>print only on fiscal printer</source>
        <translation>štampaj samo na fiskalni štampač</translation>
    </message>
    <message>
        <source>filename fiscal printer</source>
        <translation>datoteka fiskalnog štampača</translation>
    </message>
    <message>
        <source>New invoice automatic</source>
        <translation>Automatski novi račun</translation>
    </message>
    <message>
        <source>new invoice automatic</source>
        <translation>automatski novi račun</translation>
    </message>
    <message>
        <source>default option 1-Yes</source>
        <translation>uobičajeno 1-Da</translation>
    </message>
    <message>
        <source>Show window with display for custumer</source>
        <translation>Prikaži prozor za kupčev ekran</translation>
    </message>
    <message>
        <source>show window with display for custumer</source>
        <translation>prikaži prozor za kupčev ekran</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>ne koristi se</translation>
    </message>
    <message>
        <source>2.Invoice</source>
        <translation>2.Račun</translation>
    </message>
    <message>
        <source>1.Invoice heading</source>
        <translation>1.Zaglavlje računa</translation>
    </message>
    <message>
        <source>My Firm Name</source>
        <translation>Naziv moje firme</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Firm Ident</source>
        <translation>ID broj firme</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Store Place</source>
        <translation>Prodajno mesto</translation>
    </message>
    <message>
        <source>2.Change invoice No.</source>
        <translation>2.Promeni broj računa</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>enter a new invoice no and click go</source>
        <translation>upišite novi broj računa i pritisnite OK</translation>
    </message>
    <message>
        <source>5.Cashier</source>
        <translation>5.Kasir</translation>
    </message>
    <message>
        <source>print cashier on invoice</source>
        <translation>štampaj kasira na računu</translation>
    </message>
    <message>
        <source>6.Footer text on invoice</source>
        <translation>6.Tekst na dnu računa</translation>
    </message>
    <message>
        <source>3.Invoice details</source>
        <translation>3.Stavke računa</translation>
    </message>
    <message>
        <source>1.Printing items on the invoice</source>
        <translation>1.Štampanje stavki na računu</translation>
    </message>
    <message>
        <source>ProductID and ProductName                     Price Quantit  TRate     Tax  Amount</source>
        <extracomment>82 columns, all but the product aligned right: product 43, price 8, quantity 8, tax rate 7, tax 8, amount 8</extracomment>
        <translation>Šifra i naziv artikla                          Cena  Količ.  Stopa     PDV   Iznos</translation>
    </message>
    <message>
        <source>40 char</source>
        <translation>40 znakova</translation>
    </message>
    <message>
        <source>Product Name         Price Quanti Amount</source>
        <extracomment>40 columns, all but the product aligned right: product 18, price 8, quantity 7, amount 7</extracomment>
        <translation>Naziv artikla         Cena Količ.  Iznos</translation>
    </message>
    <message>
        <source>   Price Quantit  TRate     Tax   Amount</source>
        <extracomment>40 columns, all aligned right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>    Cena  Količ.  Stopa     PDV    Iznos</translation>
    </message>
    <message>
        <source>No Product Name      Price Quant  Amount</source>
        <extracomment>40 columns, figures aligned right: number 3, product 15, price 8, quantity 6, amount 8</extracomment>
        <translation>Rb Naziv artikla      Cena  Kol.   Iznos</translation>
    </message>
    <message>
        <source>A4 print</source>
        <translation>štampa A4</translation>
    </message>
    <message>
        <source>80 char</source>
        <translation>80 znakova</translation>
    </message>
    <message>
        <source>   Price Quantity      Amount</source>
        <extracomment>29 columns, all aligned right: price 8, quantity 9, amount 12</extracomment>
        <translation>    Cena Količina       Iznos</translation>
    </message>
    <message>
        <source>32 char</source>
        <translation>32 znaka</translation>
    </message>
    <message>
        <source>ProductName Price Quant Amount</source>
        <extracomment>30 columns, all but the product aligned right: product 11, price 6, quantity 6, amount 7</extracomment>
        <translation>Artikal      Cena  Kol.  Iznos</translation>
    </message>
    <message>
        <source>2.Recapitulation taxes </source>
        <translation>2.Rekapitulacija poreza </translation>
    </message>
    <message>
        <source>recapitulation by Tax Rates           Rate    Amount</source>
        <extracomment>52 columns, figures aligned right: what it is 33, rate 9, amount 10</extracomment>
        <translation>rekapitulacija po stopama PDV        Stopa     Iznos</translation>
    </message>
    <message>
        <source>without recapitulation print only Tax Total</source>
        <translation>bez rekapitulacije, štampaj samo ukupan PDV</translation>
    </message>
    <message>
        <source>4.Network</source>
        <translation>4.Mreža</translation>
    </message>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Podešavanje mreže - više računara na istoj bazi</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1.Putanja servera</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>upišite punu putanju do servera na kojem je baza</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2.Broj kase</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Upišite broj kase (1-19)</translation>
    </message>
    <message>
        <source>za samo kontrolne funkcije broj veći od 20</source>
        <translation>samo za kontrolne funkcije broj veći od 20</translation>
    </message>
    <message>
        <source>F5-Sacuvaj</source>
        <translation>F5-Sačuvaj</translation>
    </message>
    <message>
        <source>Sacuvaj promjene</source>
        <translation>Sačuvaj promene</translation>
    </message>
    <message>
        <source>F1-Upute</source>
        <translation>F1-Pomoć</translation>
    </message>
    <message>
        <source>Upute za rad</source>
        <translation>Uputstvo za rad</translation>
    </message>
    <message>
        <source>F12-Zatvori</source>
        <translation>F12-Zatvori</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sačuvaj</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Broj računa je promenjen.</translation>
    </message>
    <message>
        <source>The main window does not show the sales screen.</source>
        <translation>Glavni prozor ne prikazuje ekran prodaje.</translation>
    </message>
    <message>
        <source>Changes are saved.</source>
        <translation>Promene su sačuvane.</translation>
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
        <translation>Šifra-barkod</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>Vrijednost</source>
        <translation>Vrednost</translation>
    </message>
    <message>
        <source>TOTAL with Tax:</source>
        <translation>UKUPNO sa PDV:</translation>
    </message>
    <message>
        <source>TOTAL without Tax:</source>
        <translation>UKUPNO bez PDV:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>PDV:</translation>
    </message>
    <message>
        <source>Sacuvaj kao</source>
        <translation>Sačuvaj kao</translation>
    </message>
</context>
<context>
    <name>frmRacPRG</name>
    <message>
        <source>Invoices - print, view, save</source>
        <translation>Računi - štampa, pregled, čuvanje</translation>
    </message>
    <message>
        <source>INVOICE No:</source>
        <translation>RAČUN br:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vreme</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>UKUPNO</translation>
    </message>
    <message>
        <source>Tax :</source>
        <translation>PDV :</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Štampaj</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Sačuvaj</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Sačuvaj na USB, disk...</translation>
    </message>
    <message>
        <source>F7-Print all</source>
        <translation>F7-Štampaj sve</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Obriši</translation>
    </message>
    <message>
        <source>Brise arhivirano radno vrijeme</source>
        <translation>Briše arhivirano radno vreme</translation>
    </message>
    <message>
        <source>Prethodni</source>
        <translation>Prethodni</translation>
    </message>
    <message>
        <source>Sljedeci</source>
        <translation>Sledeći</translation>
    </message>
    <message>
        <source>Zadnji</source>
        <translation>Poslednji</translation>
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
        <translation>Trenutno nema nijednog računa</translation>
    </message>
</context>
<context>
    <name>frmRacunPregled</name>
    <message>
        <source>Print preview</source>
        <translation>Pregled pre štampe</translation>
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
        <translation>Br. računa</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vreme</translation>
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
        <translation>F4-Štampaj spisak računa</translation>
    </message>
    <message>
        <source>F6 -Print selected invoice</source>
        <translation>F6-Štampaj izabrani račun</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Štampaj</translation>
    </message>
</context>
<context>
    <name>frmReklamiranjeRacuna</name>
    <message>
        <source>Withdrawal invoice - only fiscal printer</source>
        <translation>Storno računa - samo fiskalni štampač</translation>
    </message>
    <message>
        <source>NOTE: There must be registered sales with enough money in the fiscal device to be able to execute this command</source>
        <translation>NAPOMENA: U fiskalnom uređaju mora biti evidentirano dovoljno prodaje i novca da bi se ova komanda izvršila</translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation>Račun br:</translation>
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
        <translation>Prodaja po kasirima</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>cashier</source>
        <translation>kasir</translation>
    </message>
    <message>
        <source>CashierID</source>
        <translation>Šifra kasira</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
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
        <translation>PDV izveštaj</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>tax rate</source>
        <translation>stopa PDV</translation>
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
        <translation>PDV</translation>
    </message>
    <message>
        <source>Iznos sa porezom-PDVom</source>
        <translation>Sa PDV</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Osnovica:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>PDV:</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Stopa PDV</translation>
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
        <translation>[F2] - Izaberi artikal</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Klik briše, desni klik menja količinu</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Sačuvaj</translation>
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
        <translation>Normativ se otvara sa ekrana njegovog artikla.</translation>
    </message>
    <message>
        <source>Product with this code-barcode does not exist.</source>
        <translation>Artikal sa ovom šifrom ili barkodom ne postoji.</translation>
    </message>
    <message>
        <source>You did not enter a single item in the composition.</source>
        <translation>U normativu nema nijednog sastojka.</translation>
    </message>
</context>
<context>
    <name>frmStanjeArtikala</name>
    <message>
        <source>Quantity of items in stock</source>
        <translation>Zaliha artikala</translation>
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
        <translation>Spisak je prazan.</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Osveži</translation>
    </message>
</context>
<context>
    <name>frmTax</name>
    <message>
        <source>Tax protected from deletion, but you can modify the data.</source>
        <translation>Porez je zaštićen od brisanja, ali podatke možete izmeniti.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>Tax rate [%]</source>
        <translation>Stopa [%]</translation>
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
Želite li da obrišete ovu vrstu poreza?</translation>
    </message>
</context>
<context>
    <name>frmTaxbyInvoice</name>
    <message>
        <source>TAX Report by Invoices</source>
        <translation>PDV po računima</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>računi</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Br. računa</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vreme</translation>
    </message>
    <message>
        <source>Amount without Tax</source>
        <translation>Iznos bez PDV</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
    </message>
    <message>
        <source>Amount with Tax</source>
        <translation>Iznos sa PDV</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Osnovica:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>PDV:</translation>
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
        <translation>Štampani računi</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Sačuvaj na USB, disk...</translation>
    </message>
</context>
<context>
    <name>frmTrenutnoStanjeKasa</name>
    <message>
        <source>Currently - End Report</source>
        <translation>Trenutno stanje - Zaključak dana</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Trenutno stanje</translation>
    </message>
    <message>
        <source>Lists shows currently balance from last done End Report</source>
        <translation>Spiskovi prikazuju stanje od poslednjeg zaključka dana</translation>
    </message>
    <message>
        <source>Date and time last End Report</source>
        <translation>Datum i vreme poslednjeg zaključka</translation>
    </message>
    <message>
        <source>Register state</source>
        <translation>Stanje kase</translation>
    </message>
    <message>
        <source>1 - CASH REGISTERS</source>
        <translation>1 - KASE</translation>
    </message>
    <message>
        <source>2 - CASHIERS</source>
        <translation>2 - KASIRI</translation>
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
        <translation>KASE</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>PDV:</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CRs:</source>
        <translation>UKUPNO SVE KASE:</translation>
    </message>
    <message>
        <source>END REPORT do</source>
        <translation>ZAKLJUČAK DANA</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Osveži</translation>
    </message>
    <message>
        <source>F5-Print all</source>
        <translation>F5-Štampaj sve</translation>
    </message>
    <message>
        <source>F4-Print </source>
        <translation>F4-Štampaj </translation>
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
        <translation>KASA br.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vreme</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IZNOS</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <translation>KASIRI</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CASHIERS:</source>
        <translation>UKUPNO SVI KASIRI:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
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
        <translation>Kasa br.</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>Račun br.</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
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
        <translation>Zaključak dana br:</translation>
    </message>
    <message>
        <source>Lists show balance for selected End Report.</source>
        <translation>Spiskovi prikazuju stanje za izabrani zaključak dana.</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Želite li da uradite zaključak dana?</translation>
    </message>
    <message>
        <source>End Report is done.</source>
        <translation>Zaključak dana je urađen.</translation>
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
        <translation>Korisnici - kasiri</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>Šifra</translation>
    </message>
    <message>
        <source>UserName</source>
        <translation>Korisnik</translation>
    </message>
    <message>
        <source>Access Level</source>
        <translation>Nivo pristupa</translation>
    </message>
    <message>
        <source>Cashier protected from deletion, but you can modify the data.</source>
        <translation>Kasir je zaštićen od brisanja, ali podatke možete izmeniti.</translation>
    </message>
    <message>
        <source>User deleted.</source>
        <translation>Korisnik je obrisan.</translation>
    </message>
    <message>
        <source>User Cashier: %1
Password: %2
Are you sure you want to delete this user?</source>
        <translation>Korisnik - kasir: %1
Lozinka: %2
Želite li da obrišete ovog korisnika?</translation>
    </message>
</context>
<context>
    <name>frmViewer</name>
    <message>
        <source>Search Product</source>
        <translation>Pretraga artikala</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Stopa PDV</translation>
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
        <translation>Upišite šta tražite, ili pritisnite F11 za sve.</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Ništa nije nađeno.</translation>
    </message>
</context>
<context>
    <name>frmWinPrinter</name>
    <message>
        <source>Windows printer</source>
        <translation>Sistemski štampač</translation>
    </message>
    <message>
        <source>Font list</source>
        <translation>Spisak fontova</translation>
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
        <translation>Podesite širinu i dužinu umetnutog papira</translation>
    </message>
    <message>
        <source>currently selected font</source>
        <translation>trenutno izabrani font</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Sačuvaj</translation>
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
        <translation>Pregled zaključaka dana</translation>
    </message>
    <message>
        <source>end report</source>
        <translation>zaključak dana</translation>
    </message>
    <message>
        <source>cash register</source>
        <translation>kasa</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>Zaklj. br. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Time to</source>
        <translation>Do</translation>
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
        <translation>Zaklj. br. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vreme</translation>
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
        <translation>F5-Pregled štampe</translation>
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
        <translation>Poslednji dan</translation>
    </message>
    <message>
        <source>Its takings</source>
        <translation>Njegov promet</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>No folder has been chosen yet, and the till makes no backups. Choose one on a second disk, on a stick or in the network.</source>
        <translation>Fascikla još nije izabrana i kasa ne pravi rezervne kopije. Izaberite fasciklu na drugom disku, na USB memoriji ili na mreži.</translation>
    </message>
    <message>
        <source>Backups go to %1, on the same disk as the shop: if it breaks, both are lost.</source>
        <translation>Rezervne kopije idu u %1, na isti disk kao i podaci radnje: ako se pokvari, gubi se oboje.</translation>
    </message>
    <message>
        <source>Backups go to %1.</source>
        <translation>Rezervne kopije idu u %1.</translation>
    </message>
    <message>
        <source>%1.
The try of %2 failed: %3</source>
        <translation>%1.
Pokušaj od %2 nije uspeo: %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Provereno</translation>
    </message>
    <message>
        <source>Checked, of %1</source>
        <translation>Provereno, od %1</translation>
    </message>
    <message>
        <source>The folder for backups</source>
        <translation>Fascikla za rezervne kopije</translation>
    </message>
    <message>
        <source>This backup can&apos;t be restored: %1</source>
        <translation>Ova rezervna kopija ne može da se vrati: %1</translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation>Ništa nije vraćeno. %1</translation>
    </message>
    <message>
        <source>The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.</source>
        <translation>Podaci radnje su kao u rezervnoj kopiji od %1, računa: %2. Ono što je zamenjeno čuva se u %3.</translation>
    </message>
    <message>
        <source>There are no backups yet.</source>
        <translation>Još nema rezervnih kopija.</translation>
    </message>
    <message>
        <source>The register is being backed up.</source>
        <translation>Pravi se rezervna kopija kase.</translation>
    </message>
    <message>
        <source>The shop and the backup are being compared.</source>
        <translation>Porede se podaci radnje i rezervna kopija.</translation>
    </message>
    <message>
        <source>The backup is being brought back.</source>
        <translation>Rezervna kopija se vraća.</translation>
    </message>
    <message>
        <source>The folder of the backups is being read.</source>
        <translation>Čita se fascikla za rezervne kopije.</translation>
    </message>
    <message>
        <source>The folder was not read to its end.</source>
        <translation>Fascikla nije pročitana do kraja.</translation>
    </message>
</context>
<context>
    <name>manager::BackupWords</name>
    <message>
        <source>No backup yet</source>
        <translation>Još nema rezervne kopije</translation>
    </message>
    <message>
        <source>Last good backup: %1, %2, in %3</source>
        <translation>Poslednja ispravna rezervna kopija: %1, %2, u %3</translation>
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
        <translation>%1: %2, ranije %3</translation>
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
        <translation>Treba da bude</translation>
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
        <translation>Još ništa nije brojano. Izbrojte fioku na kartici Brojanje i sačuvajte brojanje.</translation>
    </message>
    <message>
        <source>Counts can&apos;t be kept or shown. %1</source>
        <translation>Brojanja ne mogu da se sačuvaju ni prikažu. %1</translation>
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
        <translation>Višak u fioci</translation>
    </message>
    <message>
        <source>Missing in the drawer</source>
        <translation>Manjak u fioci</translation>
    </message>
    <message>
        <source>This is no number of pieces and no amount.</source>
        <translation>To nije ni broj komada ni iznos.</translation>
    </message>
    <message>
        <source>Something was sold, or an End Report was made, since this page came up. The count is not kept: look at the difference again.</source>
        <translation>Otkako je ova stranica otvorena nešto je prodato ili je urađen zaključak dana. Brojanje nije sačuvano: pogledajte razliku ponovo.</translation>
    </message>
    <message>
        <source>Count %1 is kept.</source>
        <translation>Brojanje %1 je sačuvano.</translation>
    </message>
    <message>
        <source>Count %1 is printed.</source>
        <translation>Brojanje %1 je odštampano.</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Od poslednjeg zaključka dana</translation>
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
        <translation>Brojanje fioke %1, u %2</translation>
    </message>
    <message>
        <source>Counted by %1</source>
        <translation>Brojao %1</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Izbrojano</translation>
    </message>
    <message>
        <source>Sold in cash</source>
        <translation>Prodato za gotovinu</translation>
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
        <translation>Treba da bude</translation>
    </message>
    <message>
        <source>DIFFERENCE</source>
        <translation>RAZLIKA</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Od poslednjeg zaključka dana</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>There are no such goods.</source>
        <translation>Nema takve robe.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopija</translation>
    </message>
    <message>
        <source>Add goods from the left.</source>
        <translation>Dodajte robu sa leve strane.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Sve</translation>
    </message>
    <message>
        <source>Without a button</source>
        <translation>Bez tastera</translation>
    </message>
    <message numerus="yes">
        <source>Found: %n</source>
        <translation>
            <numerusform>Nađeno: %n</numerusform>
            <numerusform>Nađeno: %n</numerusform>
            <numerusform>Nađeno: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::GoodsPage</name>
    <message>
        <source>Line</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Šta</translation>
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
        <translation>Promene</translation>
    </message>
    <message>
        <source>Choose a table of goods that a spreadsheet saved as CSV.</source>
        <translation>Izaberite tabelu robe koju je program za tabele sačuvao kao CSV.</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>svi redovi</translation>
    </message>
    <message>
        <source>Choose a table of goods</source>
        <translation>Izaberite tabelu robe</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.txt *.tsv)</source>
        <translation>Tabele kao tekst (*.csv *.txt *.tsv)</translation>
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
        <translation>Navedite koja je kolona šifra robe.</translation>
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
        <translation>Radna sveska (*.xlsx);;Tabela kao tekst (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Upisano: %1</translation>
    </message>
    <message>
        <source>all but unchanged</source>
        <translation>sve osim nepromenjenog</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Ništa se ne bi promenilo.</translation>
    </message>
    <message>
        <source>There are no such rows.</source>
        <translation>Takvih redova nema.</translation>
    </message>
</context>
<context>
    <name>manager::GoodsWriting</name>
    <message>
        <source>Write %1 new and %2 changed goods?</source>
        <translation>Upisati robu? Novih: %1, izmenjenih: %2.</translation>
    </message>
    <message>
        <source>Refused rows stay out of it: %1.</source>
        <translation>Odbijeni redovi se ne upisuju: %1.</translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Upisano: %1 novih, %2 izmenjenih.</translation>
    </message>
    <message>
        <source>Sold since the look, and taken off the new quantity too: %1.</source>
        <translation>Prodato od pregleda, pa skinuto i sa nove količine: %1.</translation>
    </message>
    <message>
        <source>Taken back: %1 restored, %2 removed.</source>
        <translation>Staro stanje: vraćeno %1, uklonjeno %2.</translation>
    </message>
    <message>
        <source>So it is with %1 more.</source>
        <translation>Isto važi za još %1.</translation>
    </message>
    <message>
        <source>Write %1 changed goods?</source>
        <translation>Upisati robu: promenjeno %1?</translation>
    </message>
    <message>
        <source>Written: %1 changed.</source>
        <translation>Upisano: promenjeno %1.</translation>
    </message>
    <message>
        <source>Take back &apos;%1&apos; of %2? Goods that were new go, and others get their old values back. What was sold since stays sold.</source>
        <translation>Vratiti na staro &apos;%1&apos; od %2? Nova roba nestaje, a ostala dobija stare vrednosti. Što je u međuvremenu prodato, ostaje prodato.</translation>
    </message>
</context>
<context>
    <name>manager::HeadingStep</name>
    <message>
        <source>%1, %2 columns</source>
        <translation>%1, kolona: %2</translation>
    </message>
    <message>
        <source>The shop needs a name.</source>
        <translation>Upišite naziv radnje.</translation>
    </message>
    <message>
        <source>The longest line has %1 columns; paper has 32, 40 or 80.</source>
        <translation>Najduži red ima kolona: %1; papir ima 32, 40 ili 80.</translation>
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
        <translation>✖  Oštećeno</translation>
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
        <translation>Šta je nađeno</translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation>Još ništa nije provereno.</translation>
    </message>
    <message>
        <source>The shop is looked over.</source>
        <translation>Radnja je proverena.</translation>
    </message>
    <message>
        <source>The look was left before its end.</source>
        <translation>Provera je prekinuta pre kraja.</translation>
    </message>
    <message>
        <source>The look can&apos;t be ended. %1</source>
        <translation>Provera ne može da se završi. %1</translation>
    </message>
    <message>
        <source>The shop is being looked at ...</source>
        <translation>Provera radnje je u toku ...</translation>
    </message>
    <message>
        <source>Something is damaged. Read what to do before you go on selling.</source>
        <translation>Nešto je oštećeno. Pročitajte šta da uradite pre nego što nastavite prodaju.</translation>
    </message>
    <message numerus="yes">
        <source>Nothing is damaged. Notes of what does not fit together: %n.</source>
        <translation>
            <numerusform>Ništa nije oštećeno. Napomena o onome što se ne slaže: %n.</numerusform>
            <numerusform>Ništa nije oštećeno. Napomene o onome što se ne slaže: %n.</numerusform>
            <numerusform>Ništa nije oštećeno. Napomena o onome što se ne slaže: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Sve je u redu.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>Ne treba ništa uraditi.</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Šta uraditi: %1</translation>
    </message>
    <message>
        <source>The report is made.</source>
        <translation>Izveštaj je napravljen.</translation>
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
        <translation>Tačka-zarez ;</translation>
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
        <translation>nepoznato</translation>
    </message>
    <message>
        <source>Point .</source>
        <translation>Tačka .</translation>
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
        <translation>Kolona %1</translation>
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
        <translation>Vreme</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
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
        <translation>po %1</translation>
    </message>
</context>
<context>
    <name>manager::LabelChoice</name>
    <message>
        <source>Nothing to print yet</source>
        <translation>Još nema šta da se štampa</translation>
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
        <translation>Sopstvena veličina na A4</translation>
    </message>
    <message>
        <source>Own size, one at a time</source>
        <translation>Sopstvena veličina, jedna po jedna</translation>
    </message>
    <message>
        <source>600 an inch, office printer</source>
        <translation>600 po inču, kancelarijski štampač</translation>
    </message>
    <message>
        <source>300 an inch, label printer</source>
        <translation>300 po inču, štampač etiketa</translation>
    </message>
    <message>
        <source>203 an inch, label printer</source>
        <translation>203 po inču, štampač etiketa</translation>
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
        <translation>Cenovnik</translation>
    </message>
    <message>
        <source>&amp;Print price list</source>
        <translation>Šta&amp;mpaj cenovnik</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>Šta&amp;mpaj etikete</translation>
    </message>
    <message numerus="yes">
        <source>Pages: %n</source>
        <translation>
            <numerusform>Stranica: %n</numerusform>
            <numerusform>Stranice: %n</numerusform>
            <numerusform>Stranica: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels: %n</source>
        <translation>
            <numerusform>Etiketa: %n</numerusform>
            <numerusform>Etikete: %n</numerusform>
            <numerusform>Etiketa: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</source>
        <translation>
            <numerusform>Etikete bez barkoda: %n. Preuske su za šifru, ili barkod ne podržava njena slova.</numerusform>
            <numerusform>Etikete bez barkoda: %n. Preuske su za šifru, ili barkod ne podržava njena slova.</numerusform>
            <numerusform>Etikete bez barkoda: %n. Preuske su za šifru, ili barkod ne podržava njena slova.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</source>
        <translation>
            <numerusform>Bez cene za kilogram ili litar: %n. Iz naziva se ne vidi koliko je u pakovanju.</numerusform>
            <numerusform>Bez cene za kilogram ili litar: %n. Iz naziva se ne vidi koliko je u pakovanju.</numerusform>
            <numerusform>Bez cene za kilogram ili litar: %n. Iz naziva se ne vidi koliko je u pakovanju.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Chosen goods that are no longer there: %n</source>
        <translation>
            <numerusform>Izabrana roba koje više nema: %n</numerusform>
            <numerusform>Izabrana roba koje više nema: %n</numerusform>
            <numerusform>Izabrana roba koje više nema: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose some goods first.</source>
        <translation>Prvo izaberite robu.</translation>
    </message>
    <message numerus="yes">
        <source>Printed. Pages: %n.</source>
        <translation>
            <numerusform>Odštampano. Stranica: %n.</numerusform>
            <numerusform>Odštampano. Stranice: %n.</numerusform>
            <numerusform>Odštampano. Stranica: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saved as %1. Pages: %n.</source>
        <translation>
            <numerusform>Sačuvano kao %1. Stranica: %n.</numerusform>
            <numerusform>Sačuvano kao %1. Stranice: %n.</numerusform>
            <numerusform>Sačuvano kao %1. Stranica: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Sačuvaj kao PDF</translation>
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
        <translation>Kao pri isporuci</translation>
    </message>
    <message>
        <source>It is kept. The till and this program have it from their next start.</source>
        <translation>Sačuvano je. Kasa i ovaj program ga koriste od sledećeg pokretanja.</translation>
    </message>
</context>
<context>
    <name>manager::ManagerLogin</name>
    <message>
        <source>This name and password are not those of a user of level 3.</source>
        <translation>Ovo ime i lozinka ne pripadaju korisniku sa nivoom 3.</translation>
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
        <translation>Koliko vrede novčanice i kovanice valute %1, sa razmakom između:</translation>
    </message>
</context>
<context>
    <name>manager::OverviewCharts</name>
    <message>
        <source>7 days before</source>
        <translation>Prethodnih 7 dana</translation>
    </message>
    <message>
        <source>Month before</source>
        <translation>Prethodni mesec</translation>
    </message>
    <message>
        <source>Year before</source>
        <translation>Prethodna godina</translation>
    </message>
    <message>
        <source>Days before</source>
        <translation>Prethodni dani</translation>
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
        <translation>Dan u nedelji</translation>
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
        <translation>Komada</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Računi</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
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
        <translation>Sa PDV</translation>
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
        <translation>Prodaje se dnevno</translation>
    </message>
    <message>
        <source>Lasts days</source>
        <translation>Traje dana</translation>
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
        <translation>Ovih dana ništa nije prodato.</translation>
    </message>
    <message>
        <source>No goods are in stock. Enter what you have on the page of the goods.</source>
        <translation>Nema robe na zalihi. Upišite šta imate na stranici Roba.</translation>
    </message>
    <message>
        <source>Nothing was sold in the last four weeks, so nothing runs out.</source>
        <translation>U poslednje četiri nedelje ništa nije prodato, pa ništa i ne ponestaje.</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Prvi dan je posle poslednjeg.</translation>
    </message>
    <message>
        <source>Not on the touch table</source>
        <translation>Nije na tabli tastera</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Učitavanje ...</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
    </message>
    <message>
        <source>Reading back from %1 ...</source>
        <translation>Učitavanje unazad od %1 ...</translation>
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
        <translation>Pre nedelju dana</translation>
    </message>
    <message>
        <source>Mean of the last %1</source>
        <translation>Prosek poslednjih %1</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Do %1</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Izabrano: %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 račun</translation>
    </message>
    <message>
        <source>%1 invoices, %2 each</source>
        <translation>Računa: %1, prosečno %2</translation>
    </message>
    <message>
        <source>Read back to %1; what is older was left out.</source>
        <translation>Učitano unazad do %1; starije je izostavljeno.</translation>
    </message>
    <message>
        <source>The reading was left.</source>
        <translation>Učitavanje je prekinuto.</translation>
    </message>
    <message>
        <source>Overview of %1, printed on %2, amounts in %3</source>
        <translation>Pregled za %1, odštampan %2, iznosi u %3</translation>
    </message>
    <message>
        <source>The overview is printed.</source>
        <translation>Pregled je odštampan.</translation>
    </message>
    <message>
        <source>Save the overview</source>
        <translation>Čuvanje pregleda</translation>
    </message>
    <message>
        <source>Document (*.pdf)</source>
        <translation>Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Sačuvano kao %1.</translation>
    </message>
    <message>
        <source>Save the figures</source>
        <translation>Čuvanje brojki</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabela (*.csv)</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Pregled</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Promet</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Od toga PDV</translation>
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
        <translation>Sačuvati izmene?</translation>
    </message>
</context>
<context>
    <name>manager::Pages</name>
    <message>
        <source>Overview</source>
        <translation>Pregled</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Izveštaji</translation>
    </message>
    <message>
        <source>Drawer</source>
        <translation>Fioka</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Roba</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Cene</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etikete</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Štampači</translation>
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
        <translation>Rezervna kopija</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Provera</translation>
    </message>
    <message>
        <source>Several tills</source>
        <translation>Više kasa</translation>
    </message>
</context>
<context>
    <name>manager::PasswordStep</name>
    <message>
        <source>Choose a password that not everybody knows.</source>
        <translation>Izaberite lozinku koju ne zna svako.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Dve lozinke nisu iste.</translation>
    </message>
    <message>
        <source>This user is gone.</source>
        <translation>Ovog korisnika više nema.</translation>
    </message>
    <message>
        <source>%1 still has the password that every shop is delivered with: %2.</source>
        <translation>%1 još ima lozinku sa kojom se isporučuje svaka radnja: %2.</translation>
    </message>
</context>
<context>
    <name>manager::PortPanel</name>
    <message>
        <source>It is ready, as far as it tells.</source>
        <translation>Spreman je, prema onome što javlja.</translation>
    </message>
    <message>
        <source>It has no paper.</source>
        <translation>Nema papira.</translation>
    </message>
    <message>
        <source>Its cover is open.</source>
        <translation>Poklopac je otvoren.</translation>
    </message>
    <message>
        <source>It is offline or has an error.</source>
        <translation>Nije na vezi ili je u grešci.</translation>
    </message>
    <message>
        <source>It does not answer. Many printers never do; then leave the box above empty.</source>
        <translation>Ne odgovara. Mnogi štampači nikada ne odgovaraju; tada ne uključujte proveru iznad.</translation>
    </message>
    <message>
        <source>Port &amp;%1:</source>
        <translation>Port &amp;%1:</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>Radi se…</translation>
    </message>
    <message>
        <source>VELTON Manager, port %1</source>
        <translation>VELTON Manager, port %1</translation>
    </message>
    <message>
        <source>This line is bold, if the printer can.</source>
        <translation>Ovaj red je podebljan ako štampač to može.</translation>
    </message>
    <message>
        <source>A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are wrong want another code page in the printer.</source>
        <translation>Probna stranica je poslata. Ako je papir dovoljno širok, svaki lenjir stoji u jednom redu; pogrešna slova znače da štampaču treba druga kodna strana.</translation>
    </message>
    <message>
        <source>The drawer was told to open.</source>
        <translation>Poslata je komanda za otvaranje fioke.</translation>
    </message>
    <message>
        <source>The printer was told to cut.</source>
        <translation>Poslata je komanda za sečenje papira.</translation>
    </message>
    <message>
        <source>File %1</source>
        <translation>Datoteka %1</translation>
    </message>
    <message>
        <source>File %1 in the folder of the register</source>
        <translation>Datoteka %1 u fascikli kase</translation>
    </message>
    <message>
        <source>Printer on the network at %1</source>
        <translation>Štampač u mreži na %1</translation>
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
        <translation>Cenovnik</translation>
    </message>
    <message>
        <source>%1, prices in %2</source>
        <translation>%1, cene u %2</translation>
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
        <translation>Cena</translation>
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
        <translation>Navedite šta se menja, pa pritisnite Pogledaj.</translation>
    </message>
    <message>
        <source>Prices by percent</source>
        <translation>Cene za procenat</translation>
    </message>
    <message>
        <source>Tax rates</source>
        <translation>Stope PDV</translation>
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
        <translation>Pre</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Posle</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Zašto ne</translation>
    </message>
    <message>
        <source>to the cent</source>
        <translation>na paru</translation>
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
        <translation>Roba zadržava stopu koju je njen porez imao pri unosu. Ona sa drugom stopom dobija sadašnju. Cene sadrže porez i ostaju iste.</translation>
    </message>
    <message>
        <source>Below zero the goods get cheaper. Of two prices as near the higher one is taken.</source>
        <translation>Uz procenat manji od nule roba pojeftinjuje. Od dve jednako bliske cene uzima se viša.</translation>
    </message>
    <message>
        <source>Prices by %1 %</source>
        <translation>Cene za %1 %</translation>
    </message>
    <message>
        <source>The percent has to be a number above -100, up to 1000, with at most two decimals.</source>
        <translation>Procenat mora biti broj veći od -100, do 1000, sa najviše dve decimale.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Ništa se ne bi promenilo.</translation>
    </message>
    <message>
        <source>%1 changed, %2 unchanged, %3 refused</source>
        <translation>Promenjeno: %1, nepromenjeno: %2, odbijeno: %3</translation>
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
        <translation>Port 1</translation>
    </message>
    <message>
        <source>Port 2</source>
        <translation>Port 2</translation>
    </message>
    <message>
        <source>The page printer</source>
        <translation>Sistemski štampač</translation>
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
        <translation>Nema sistemskog štampača: svaka stranica postaje PDF u fascikli printouts.</translation>
    </message>
    <message>
        <source>Page printer: %1</source>
        <translation>Sistemski štampač: %1</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Sačuvano.</translation>
    </message>
    <message>
        <source>A test page was sent.</source>
        <translation>Probna stranica je poslata.</translation>
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
        <translation>Roba po broju (oblik 1)</translation>
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
        <translation>Izaberite izveštaj i dane, pa &quot;Prikaži&quot;.</translation>
    </message>
    <message>
        <source>The first day lies behind the last.</source>
        <translation>Prvi dan je posle poslednjeg.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>Za ove dane nema ničega.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n red</numerusform>
            <numerusform>%n reda</numerusform>
            <numerusform>%n redova</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Table as text (*.csv);;Workbook (*.xlsx)</source>
        <translation>Tabela kao tekst (*.csv);;Radna sveska (*.xlsx)</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) are saved as %1.</source>
        <translation>
            <numerusform>%n red je sačuvan kao %1.</numerusform>
            <numerusform>%n reda su sačuvana kao %1.</numerusform>
            <numerusform>%n redova je sačuvano kao %1.</numerusform>
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
        <translation>Ni radnja ni rezervna kopija još nemaju nikakvu prodaju.</translation>
    </message>
    <message>
        <source>The backup of %1, with %2 invoices. Takings are in %3.</source>
        <translation>Rezervna kopija od %1, računa: %2. Promet je u %3.</translation>
    </message>
    <message>
        <source>The shop can&apos;t be read: %1</source>
        <translation>Podaci radnje ne mogu da se pročitaju: %1</translation>
    </message>
    <message>
        <source>All days are the same in the shop and in the backup.</source>
        <translation>Svi dani su isti u radnji i u rezervnoj kopiji.</translation>
    </message>
    <message>
        <source>Days that differ: %1. They stand first. What the shop has now and the backup has not will be gone from it; all that is replaced is kept in a folder beside it.</source>
        <translation>Dana koji se razlikuju: %1. Stoje na početku. Ono što radnja sada ima, a rezervna kopija nema, nestaće iz radnje; sve što se zameni čuva se u fascikli pored nje.</translation>
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
        <translation>%1 već postoji. Zameniti?</translation>
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
        <translation>Sačuvano.</translation>
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
        <translation>6 Kasa</translation>
    </message>
</context>
<context>
    <name>manager::SupportForm</name>
    <message>
        <source>Save the report</source>
        <translation>Čuvanje izveštaja</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Tekst (*.txt)</translation>
    </message>
    <message>
        <source>The report is saved as %1.</source>
        <translation>Izveštaj je sačuvan kao %1.</translation>
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
        <translation>Stopa u procentima</translation>
    </message>
    <message>
        <source>There is a tax with this code or this name already.</source>
        <translation>Porez sa ovom šifrom ili nazivom već postoji.</translation>
    </message>
    <message>
        <source>This tax can&apos;t be removed, but its name and rate can be changed.</source>
        <translation>Ovaj porez ne može da se ukloni, ali naziv i stopa mogu da se promene.</translation>
    </message>
    <message>
        <source>Remove the tax &quot;%1&quot;?</source>
        <translation>Ukloniti porez &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The tax needs a code, such as P.</source>
        <translation>Porezu treba šifra, na primer P.</translation>
    </message>
    <message>
        <source>The tax needs a name.</source>
        <translation>Porezu treba naziv.</translation>
    </message>
    <message>
        <source>The rate is a number of percent, from 0 to less than 100.</source>
        <translation>Stopa je broj procenata, od 0 do manje od 100.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) belong to this tax.</source>
        <translation>
            <numerusform>%n artikal pripada ovom porezu.</numerusform>
            <numerusform>%n artikla pripadaju ovom porezu.</numerusform>
            <numerusform>%n artikala pripada ovom porezu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::TillsPage</name>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>Stara baza je sačuvana kao %1.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Uvek</translation>
    </message>
    <message>
        <source>Always, and the certificate is checked</source>
        <translation>Uvek, uz proveru sertifikata</translation>
    </message>
    <message>
        <source>Where the server offers it</source>
        <translation>Ako ga server nudi</translation>
    </message>
    <message>
        <source>The shop lies on the server %1. Tills on other machines join it there.</source>
        <translation>Radnja leži na serveru %1. Kase na drugim računarima pridružuju joj se tamo.</translation>
    </message>
    <message>
        <source>The shop lies in the file %1, and serves the tills of this machine.</source>
        <translation>Radnja leži u datoteci %1 i služi kasama na ovom računaru.</translation>
    </message>
    <message>
        <source>Look at the server first, then move the shop there or join the one that is there.</source>
        <translation>Prvo pogledajte server, zatim preselite radnju na njega ili se pridružite onoj koja je tamo.</translation>
    </message>
    <message>
        <source>The server is there and has no shop of this name yet: this one can move there.</source>
        <translation>Server je tu i još nema radnju tog naziva: ova može da se preseli na njega.</translation>
    </message>
    <message>
        <source>A shop is there, which has sold nothing yet. Its products: %1.</source>
        <translation>Tamo je radnja koja još ništa nije prodala. Njeni artikli: %1.</translation>
    </message>
    <message>
        <source>A shop is there, and sold last on %1. Its invoices: %2, its products: %3.</source>
        <translation>Tamo je radnja koja je poslednji put prodavala %1. Njeni računi: %2, njeni artikli: %3.</translation>
    </message>
    <message>
        <source>Fill in the server, the database, the user and the name of the shop.</source>
        <translation>Upišite server, bazu podataka, korisnika i naziv radnje.</translation>
    </message>
    <message>
        <source>The server is being asked.</source>
        <translation>Čeka se odgovor servera.</translation>
    </message>
    <message>
        <source>Close the tills of this shop. Is it to move to %1? Its other registers then join it there.</source>
        <translation>Zatvorite kase ove radnje. Da li da se preseli na %1? Njene druge kase joj se zatim tamo pridružuju.</translation>
    </message>
    <message>
        <source>The shop is moving.</source>
        <translation>Radnja se seli.</translation>
    </message>
    <message>
        <source>Close the till of this register. Is it to work on the shop on %1 from now on, and no longer on its own?</source>
        <translation>Zatvorite program ove kase. Da li da ona od sada radi u radnji na %1, a ne više u svojoj?</translation>
    </message>
    <message>
        <source>The register is joining the shop.</source>
        <translation>Kasa se pridružuje radnji.</translation>
    </message>
    <message>
        <source>Close all tills of this shop. Is it to come back into the folder of this register? The tills on other machines have no shop then.</source>
        <translation>Zatvorite sve kase ove radnje. Da li da se vrati u fasciklu ove kase? Kase na drugim računarima tada nemaju radnju.</translation>
    </message>
    <message>
        <source>Nothing was changed. %1</source>
        <translation>Ništa nije promenjeno. %1</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick with its pictures</source>
        <translation>Fascikla druge kase ili USB memorija sa njenim slikama</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick</source>
        <translation>Fascikla druge kase ili USB memorija</translation>
    </message>
    <message>
        <source>The pictures are being compared.</source>
        <translation>Slike se upoređuju.</translation>
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
        <translation>Radnja je sada na serveru: redova %1 u tabelama %2, upoređeno sa ovdašnjim.</translation>
    </message>
    <message>
        <source>This register works on the shop on the server now.</source>
        <translation>Ova kasa sada radi u radnji na serveru.</translation>
    </message>
    <message>
        <source>The shop lies in the folder of this register now: %1 rows of %2 tables, compared with those on the server.</source>
        <translation>Radnja je sada u fascikli ove kase: redova %1 u tabelama %2, upoređeno sa onima na serveru.</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>Stara baza nije mogla da se skloni, a nijedna kasa više ne sme da radi na njoj. %1</translation>
    </message>
    <message>
        <source>Some pictures would replace others of the same name: %1. Replace them?</source>
        <translation>Neke slike bi zamenile druge istog imena: %1. Da li da se zamene?</translation>
    </message>
    <message>
        <source>There is no shop at %1 any more. Join it where it lies now.</source>
        <translation>Radnje na %1 više nema. Pridružite joj se tamo gde je sada.</translation>
    </message>
</context>
<context>
    <name>manager::UnitsStep</name>
    <message>
        <source>Short name</source>
        <translation>Skraćenica</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>The unit needs a short name, such as kg.</source>
        <translation>Jedinici treba skraćenica, na primer kg.</translation>
    </message>
    <message>
        <source>The unit needs a name, such as kilogram.</source>
        <translation>Jedinici treba naziv, na primer kilogram.</translation>
    </message>
    <message>
        <source>There is a unit with this short name already.</source>
        <translation>Jedinica sa tom skraćenicom već postoji.</translation>
    </message>
    <message>
        <source>Remove the unit &quot;%1&quot;?</source>
        <translation>Ukloniti jedinicu &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>A short name has no apostrophe.</source>
        <translation>U skraćenici ne sme biti apostrofa.</translation>
    </message>
    <message>
        <source>A short name has at most %1 letters; paper has no more room.</source>
        <translation>Najveća dužina skraćenice: %1; na papiru nema više mesta.</translation>
    </message>
    <message>
        <source>The till sells by the piece what has this unit, so it stays.</source>
        <translation>Kasa robu sa ovom jedinicom prodaje na komade, zato jedinica ostaje.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) have this unit.</source>
        <translation>
            <numerusform>%n artikal ima ovu jedinicu.</numerusform>
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
        <translation>Nivo</translation>
    </message>
    <message>
        <source>There is a user with this number or this name already.</source>
        <translation>Korisnik sa ovim brojem ili imenom već postoji.</translation>
    </message>
    <message>
        <source>This user can&apos;t be removed, but name, level and password can be changed.</source>
        <translation>Ovaj korisnik ne može da se ukloni, ali ime, nivo i lozinka mogu da se promene.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>Ukloniti korisnika &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>The user needs a number.</source>
        <translation>Korisniku treba broj.</translation>
    </message>
    <message>
        <source>The user needs a name to log in with.</source>
        <translation>Korisniku treba ime za prijavu.</translation>
    </message>
    <message>
        <source>Choose a level from 1 to 3.</source>
        <translation>Izaberite nivo od 1 do 3.</translation>
    </message>
    <message>
        <source>Somebody has to keep level 3, or nobody can set up the shop any more.</source>
        <translation>Neko mora da zadrži nivo 3, inače niko više ne može da podešava radnju.</translation>
    </message>
    <message>
        <source>This is the user who has logged in here.</source>
        <translation>Ovo je korisnik koji je ovde prijavljen.</translation>
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
        <translation>Novi artikal</translation>
    </message>
    <message>
        <source>View - Edit - Delete Products</source>
        <translation>Pregled - izmena - brisanje artikala</translation>
    </message>
    <message>
        <source>Items in stock</source>
        <translation>Zaliha artikala</translation>
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
        <translation>Pregled zaključaka dana </translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Podešavanja</translation>
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
        <translation>Tabla tastera</translation>
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
        <translation>Moja firma</translation>
    </message>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Kupci - Dobavljači</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Izveštaji</translation>
    </message>
    <message>
        <source>Sale by Invoices</source>
        <translation>Prodaja po računima</translation>
    </message>
    <message>
        <source>Sale by Cashiers</source>
        <translation>Prodaja po kasirima</translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <translation>Prodaja po artiklima</translation>
    </message>
    <message>
        <source>Invoices for tax report</source>
        <translation>Knjiga izdatih računa</translation>
    </message>
    <message>
        <source>Tax Report by Invoices</source>
        <translation>PDV po računima</translation>
    </message>
    <message>
        <source>TAX Report</source>
        <translation>PDV izveštaj</translation>
    </message>
    <message>
        <source>Printed Invoices Ribbon</source>
        <translation>Kontrolna traka računa</translation>
    </message>
    <message>
        <source>Working Time </source>
        <translation>Radno vreme </translation>
    </message>
    <message>
        <source>&amp;Fiscal printer</source>
        <translation>&amp;Fiskalni štampač</translation>
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
        <translation>X izveštaj - presek stanja</translation>
    </message>
    <message>
        <source>Z report - Daily report</source>
        <translation>Z izveštaj - dnevni izveštaj</translation>
    </message>
    <message>
        <source>Fiscal Periodic Report</source>
        <translation>Fiskalni periodični izveštaj</translation>
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
        <translation>Vreme: %1</translation>
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
        <translation>Kanal 1 je već otvoren.</translation>
    </message>
    <message>
        <source>Channel 1 is not open.</source>
        <translation>Kanal 1 nije otvoren.</translation>
    </message>
    <message>
        <source>This system lacks the code page %1.</source>
        <translation>Ovaj sistem nema kodnu stranu %1.</translation>
    </message>
    <message>
        <source>Cannot take back half of what was written to %1: %2.</source>
        <translation>Polovičan upis u %1 ne može da se povuče: %2.</translation>
    </message>
    <message>
        <source>Cannot write to %1: %2.</source>
        <translation>Upis u %1 nije uspeo: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>Čuvanje nije uspelo, %1: %2.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Otvaranje nije uspelo, %1: %2.</translation>
    </message>
    <message>
        <source>Waiting for %1, which takes nothing now.</source>
        <translation>Čeka se %1, koji sada ništa ne prima.</translation>
    </message>
    <message>
        <source>Cannot open the printer %1: %2.</source>
        <translation>Štampač %1 ne može da se otvori: %2.</translation>
    </message>
    <message>
        <source>Cannot write to the printer %1: %2.</source>
        <translation>Slanje na štampač %1 nije uspelo: %2.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Fascikla %1 ne može da se napravi.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Upis nije uspeo, %1: %2</translation>
    </message>
    <message>
        <source>The page printer cannot be used.</source>
        <translation>Sistemski štampač ne može da se koristi.</translation>
    </message>
    <message>
        <source>The page printer takes no further page.</source>
        <translation>Sistemski štampač ne prima više stranica.</translation>
    </message>
    <message>
        <source>The page printer failed.</source>
        <translation>Sistemski štampač je otkazao.</translation>
    </message>
    <message>
        <source>Waiting for the printer on %1 (%2).
Is it switched on, with paper in and its cover closed?</source>
        <translation>Čeka se štampač na %1 (%2).
Da li je uključen, sa papirom i zatvorenim poklopcem?</translation>
    </message>
    <message>
        <source>%1
Leaving ends the program; what is stored stays stored.</source>
        <translation>%1
Prekid zatvara program; ono što je sačuvano ostaje sačuvano.</translation>
    </message>
    <message>
        <source>the wait for it was left</source>
        <extracomment>stands behind &quot;Cannot write to x: &quot;</extracomment>
        <translation>čekanje je prekinuto</translation>
    </message>
    <message>
        <source>ports.ini has no printer behind &quot;%1&quot;.</source>
        <translation>ports.ini nema štampač za &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>ports.ini has &quot;%1&quot; at %2, which is yes or no.</source>
        <translation>ports.ini ima &quot;%1&quot; kod %2, a to je da ili ne.</translation>
    </message>
    <message>
        <source>%1
ports.ini has no other printer for %2.</source>
        <translation>%1
ports.ini nema drugi štampač za %2.</translation>
    </message>
    <message>
        <source>There is no printer port &quot;%1&quot;.</source>
        <translation>Nema porta za štampač &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Cannot reach the printer %1: %2.</source>
        <translation>Štampač %1 nije dostupan: %2.</translation>
    </message>
    <message>
        <source>The printer %1 has no known address.</source>
        <translation>Štampač %1 nema poznatu adresu.</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>No valid date.</source>
        <translation>Neispravan datum.</translation>
    </message>
    <message>
        <source>No valid time.</source>
        <translation>Neispravno vreme.</translation>
    </message>
    <message>
        <source>The value does not fit the type of the field.</source>
        <translation>Vrednost ne odgovara vrsti polja.</translation>
    </message>
    <message>
        <source>An action query gives no rows.</source>
        <translation>Izvršni upit ne daje redove.</translation>
    </message>
    <message>
        <source>A SELECT cannot be executed.</source>
        <translation>SELECT ne može da se izvrši.</translation>
    </message>
    <message>
        <source>The query has too many columns.</source>
        <translation>Upit ima previše kolona.</translation>
    </message>
    <message>
        <source>The query is too complex.</source>
        <translation>Upit je presložen.</translation>
    </message>
    <message>
        <source>Expected a field, found a constant.</source>
        <translation>Očekuje se polje, a nađena je konstanta.</translation>
    </message>
    <message>
        <source>The field %1 is neither grouped nor inside an aggregate.</source>
        <translation>Polje %1 nije ni u grupisanju ni u agregatnoj funkciji.</translation>
    </message>
    <message>
        <source>The field %1 is set twice.</source>
        <translation>Polje %1 se postavlja dvaput.</translation>
    </message>
    <message>
        <source>The expression is too complex.</source>
        <translation>Izraz je presložen.</translation>
    </message>
    <message>
        <source>%1 takes one argument.</source>
        <translation>%1 prima jedan argument.</translation>
    </message>
    <message>
        <source>There is no function %1.</source>
        <translation>Funkcija %1 ne postoji.</translation>
    </message>
    <message>
        <source>%1 is not possible in %2.</source>
        <translation>%1 nije moguće u %2.</translation>
    </message>
    <message>
        <source>%1 cannot be taken over another aggregate.</source>
        <translation>%1 se ne može primeniti na drugi agregat.</translation>
    </message>
    <message>
        <source>an expression</source>
        <translation>izraz</translation>
    </message>
    <message>
        <source>a field name</source>
        <translation>ime polja</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation>Izraz je preduboko ugnežđen.</translation>
    </message>
    <message>
        <source>LIKE, BETWEEN or IN</source>
        <translation>LIKE, BETWEEN ili IN</translation>
    </message>
    <message>
        <source>The query text is too long.</source>
        <translation>Tekst upita je predugačak.</translation>
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
        <translation>Ime nije zatvoreno zagradom.</translation>
    </message>
    <message>
        <source>A name is missing between the brackets.</source>
        <translation>Između zagrada nedostaje ime.</translation>
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
        <translation>%1 nije vreme.</translation>
    </message>
    <message>
        <source>%1 is not yes or no.</source>
        <translation>%1 nije da ili ne.</translation>
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
        <translation>%1 je preveliko.</translation>
    </message>
    <message>
        <source>The query text is nested too deeply.</source>
        <translation>Tekst upita je preduboko ugnežđen.</translation>
    </message>
    <message>
        <source>an alias</source>
        <translation>alijas</translation>
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
        <translation>ime tabele</translation>
    </message>
    <message>
        <source>A query joins too many tables.</source>
        <translation>Upit spaja previše tabela.</translation>
    </message>
    <message>
        <source>There is no table %1.</source>
        <translation>Tabela %1 ne postoji.</translation>
    </message>
    <message>
        <source>Two tables are called %1; one needs an alias.</source>
        <translation>Dve tabele se zovu %1; jednoj treba alijas.</translation>
    </message>
    <message>
        <source>The query has no table %1.</source>
        <translation>Upit nema tabelu %1.</translation>
    </message>
    <message>
        <source>The field %1 is in more than one table: %2.</source>
        <translation>Polje %1 je u više tabela: %2.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>Polje %1 ne postoji.</translation>
    </message>
    <message>
        <source>Two columns have the alias %1.</source>
        <translation>Dve kolone imaju alijas %1.</translation>
    </message>
    <message>
        <source>Expected %1, found the keyword %2, which is a name only in square brackets.</source>
        <translation>Očekuje se %1, a nađena je ključna reč %2, koja je ime samo u uglastim zagradama.</translation>
    </message>
    <message>
        <source>A query text is one statement; nothing may follow the semicolon.</source>
        <translation>Tekst upita je jedna naredba; iza tačke-zareza ne sme biti ništa.</translation>
    </message>
    <message>
        <source>Expected %1, found the end of the text.</source>
        <translation>Očekuje se %1, a nađen je kraj teksta.</translation>
    </message>
    <message>
        <source>Expected %1, found %2.</source>
        <translation>Očekuje se %1, a nađeno je %2.</translation>
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
        <translation>vreme</translation>
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
        <translation>Nije moguće računati: %1 i %2.</translation>
    </message>
    <message>
        <source>A minus cannot stand before %1.</source>
        <translation>Minus ne može da stoji ispred: %1.</translation>
    </message>
    <message>
        <source>A query cannot turn %1 into a text.</source>
        <translation>Upit ne može da pretvori u tekst: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be compared with %2.</source>
        <translation>Nije moguće porediti: %1 i %2.</translation>
    </message>
    <message>
        <source>LIKE compares texts, and this is %1.</source>
        <translation>LIKE poredi tekstove, a ovo je %1.</translation>
    </message>
    <message>
        <source>Val reads a text, and this is %1.</source>
        <translation>Val čita tekst, a ovo je %1.</translation>
    </message>
    <message>
        <source>Sum adds numbers, and this is %1.</source>
        <translation>Sum sabira brojeve, a ovo je %1.</translation>
    </message>
    <message>
        <source>Expected a condition; this is %1.</source>
        <translation>Očekuje se uslov; ovo je %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written to a field that holds %2.</source>
        <translation>Ne može se upisati %1 u polje koje sadrži %2.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>Rad je prekinut.</translation>
    </message>
    <message>
        <source>This list has no field %1.</source>
        <translation>Ovaj spisak nema polje %1.</translation>
    </message>
    <message>
        <source>The store is of version %1, which this program does not know.</source>
        <translation>Baza je verzije %1, koju ovaj program ne poznaje.</translation>
    </message>
    <message>
        <source>The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME.</source>
        <translation>Adresa servera nije u obliku postgresql://USER@HOST/DATABASE?schema=NAME.</translation>
    </message>
    <message>
        <source>A password does not belong into the address of the server; its place is ~/.pgpass.</source>
        <translation>Lozinka ne spada u adresu servera; mesto joj je u ~/.pgpass.</translation>
    </message>
    <message>
        <source>A text with a zero character cannot lie on a server.</source>
        <translation>Tekst sa nultim znakom ne može stajati na serveru.</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>ne odgovara</translation>
    </message>
    <message>
        <source>it asks for a password, and ~/.pgpass has none for it</source>
        <translation>traži lozinku, a ~/.pgpass je nema</translation>
    </message>
    <message>
        <source>The address of the server %1 cannot be read.</source>
        <translation>Adresa servera %1 ne može da se pročita.</translation>
    </message>
    <message>
        <source>The server of the store %1 cannot be reached: %2.</source>
        <translation>Server baze %1 nije dostupan: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 has not heard from its standby.</source>
        <translation>Server baze %1 nije dobio odgovor od rezervnog servera.</translation>
    </message>
    <message>
        <source>The server of the store %1 does not answer.</source>
        <translation>Server baze %1 ne odgovara.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost: %2.</source>
        <translation>Veza sa serverom baze %1 je izgubljena: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while many changes were being stored; none of them is.</source>
        <translation>Veza sa serverom baze %1 je izgubljena dok se upisivalo više izmena; nijedna nije upisana.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while a sale was being stored; how much of it is, is not known.</source>
        <translation>Veza sa serverom baze %1 je izgubljena dok se upisivala prodaja; ne zna se koliko je upisano.</translation>
    </message>
    <message>
        <source>The store is locked by another user, and the wait for it was left.</source>
        <translation>Bazu je zaključao drugi korisnik, a čekanje je prekinuto.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while the last change was being stored; whether it is, is not known.</source>
        <translation>Veza sa serverom baze %1 je izgubljena dok se upisivala poslednja izmena; ne zna se da li je upisana.</translation>
    </message>
    <message>
        <source>%1 Whether the last change is stored is not known.</source>
        <translation>%1 Ne zna se da li je poslednja izmena upisana.</translation>
    </message>
    <message>
        <source>No batch is open.</source>
        <translation>Nijedna grupa izmena nije otvorena.</translation>
    </message>
    <message>
        <source>A batch is open already.</source>
        <translation>Grupa izmena je već otvorena.</translation>
    </message>
    <message>
        <source>The server of %1 is older than version 15.</source>
        <translation>Server %1 je stariji od verzije 15.</translation>
    </message>
    <message>
        <source>The database of %1 holds texts in %2, not in UTF8.</source>
        <translation>Baza %1 ima tekstove u %2, a ne u UTF8.</translation>
    </message>
    <message>
        <source>The server of %1 is a standby and takes no changes.</source>
        <translation>Server %1 je rezervni i ne prima izmene.</translation>
    </message>
    <message>
        <source>The role has no right to use the schema of the store %1.</source>
        <translation>Uloga nema pravo da koristi šemu baze %1.</translation>
    </message>
    <message>
        <source>%1 is no store of this kind (%2).</source>
        <translation>%1 nije baza ove vrste (%2).</translation>
    </message>
    <message>
        <source>The store %1 is of version %2; this program knows versions up to %3.</source>
        <translation>Baza %1 je verzije %2; ovaj program poznaje verzije do %3.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to: the role has no right to %2.</source>
        <translation>U bazu %1 ne može da se upisuje: uloga nema pravo na %2.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks %2.</source>
        <translation>Baza %1 je oštećena: nedostaje %2.</translation>
    </message>
    <message>
        <source>The store %1 is held exclusively by another user.</source>
        <translation>Bazu %1 drži isključivo drugi korisnik.</translation>
    </message>
    <message>
        <source>There is no store at %1.</source>
        <translation>Na %1 nema baze.</translation>
    </message>
    <message>
        <source>There is a store at %1 already.</source>
        <translation>Na %1 već postoji baza.</translation>
    </message>
    <message>
        <source>%1.%2, rows from %3 on: %4</source>
        <translation>%1.%2, redovi od %3: %4</translation>
    </message>
    <message>
        <source>%1, rows from %2 on: %3</source>
        <translation>%1, redovi od %2: %3</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>šema %1</translation>
    </message>
    <message>
        <source>%1: the next number is taken already</source>
        <translation>%1: sledeći broj je već zauzet</translation>
    </message>
    <message>
        <source>No copy can be made while a batch is open.</source>
        <translation>Kopija ne može da se napravi dok je grupa izmena otvorena.</translation>
    </message>
    <message>
        <source>The copy is damaged: %1</source>
        <translation>Kopija je oštećena: %1</translation>
    </message>
    <message>
        <source>There is no room left on the server&apos;s disk</source>
        <translation>Na disku servera više nema mesta</translation>
    </message>
    <message>
        <source>The server refused the access</source>
        <translation>Server je odbio pristup</translation>
    </message>
    <message>
        <source>The store was moved away on the server, with all that was stored until then (%1).</source>
        <translation>Baza je na serveru premeštena, sa svim što je do tada upisano (%1).</translation>
    </message>
    <message>
        <source>This cursor has not changed any row.</source>
        <translation>Ovaj kursor nije izmenio nijedan red.</translation>
    </message>
    <message>
        <source>The rows of this cursor cannot be changed.</source>
        <translation>Redovi ovog kursora ne mogu da se menjaju.</translation>
    </message>
    <message>
        <source>Update without AddNew or Edit.</source>
        <translation>Update bez AddNew ili Edit.</translation>
    </message>
    <message>
        <source>The row was changed by another user.</source>
        <translation>Red je izmenio drugi korisnik.</translation>
    </message>
    <message>
        <source>This cursor has no field %1.</source>
        <translation>Ovaj kursor nema polje %1.</translation>
    </message>
    <message>
        <source>This cursor has no field at position %1.</source>
        <translation>Ovaj kursor nema polje na mestu %1.</translation>
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
        <translation>%1 se samo numeriše.</translation>
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
        <translation>Nema tekućeg reda.</translation>
    </message>
    <message>
        <source>The row was deleted.</source>
        <translation>Red je obrisan.</translation>
    </message>
    <message>
        <source>The marked row is not in this cursor.</source>
        <translation>Obeleženi red nije u ovom kursoru.</translation>
    </message>
    <message>
        <source>This cursor cannot be searched.</source>
        <translation>Ovaj kursor ne može da se pretražuje.</translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation>otvaranje %1</translation>
    </message>
    <message>
        <source>copying a store</source>
        <translation>kopiranje baze</translation>
    </message>
    <message>
        <source>The store is locked by another user and could not be copied.</source>
        <translation>Bazu je zaključao drugi korisnik, pa nije mogla da se kopira.</translation>
    </message>
    <message>
        <source>The file %1 exists already.</source>
        <translation>Datoteka %1 već postoji.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no file.</source>
        <translation>&apos;%1&apos; nije ime datoteke.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a store, because of its ending %2.</source>
        <translation>&apos;%1&apos; ne može biti ime baze zbog završetka %2.</translation>
    </message>
    <message>
        <source>The folder %1 was not found.</source>
        <translation>Fascikla %1 nije nađena.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder %1: %2.</source>
        <translation>U fasciklu %1 ništa ne može da se upiše: %2.</translation>
    </message>
    <message>
        <source>%1 could not be brought to the disk: %2.</source>
        <translation>%1 nije moglo da se upiše na disk: %2.</translation>
    </message>
    <message>
        <source>%1 could not be made: %2.</source>
        <translation>%1 nije moglo da se napravi: %2.</translation>
    </message>
    <message>
        <source>Another program is just making %1.</source>
        <translation>Drugi program upravo pravi %1.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; what was stored until then is saved in %2.</source>
        <translation>Baza %1 je obrisana, premeštena ili zamenjena (ili njen dnevnik) dok ju je program držao otvorenu, pa se u nju više ništa ne upisuje; ono što je do tada upisano sačuvano je u %2.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; no copy of what was stored until then could be made: %2</source>
        <translation>Baza %1 je obrisana, premeštena ili zamenjena (ili njen dnevnik) dok ju je program držao otvorenu, pa se u nju više ništa ne upisuje; kopija onoga što je do tada upisano nije mogla da se napravi: %2</translation>
    </message>
    <message>
        <source>The store %1 was not found.</source>
        <translation>Baza %1 nije nađena.</translation>
    </message>
    <message>
        <source>%1 is empty and no store.</source>
        <translation>%1 je prazno i nije baza.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to.</source>
        <translation>U bazu %1 ne može da se upisuje.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks the column %2 of %3.</source>
        <translation>Baza %1 je oštećena: nedostaje kolona %2 u %3.</translation>
    </message>
    <message>
        <source>No write-ahead log can be kept beside %1.</source>
        <translation>Pored %1 ne može da se vodi dnevnik upisa.</translation>
    </message>
    <message>
        <source>%1 is damaged or no store (%2).</source>
        <translation>%1 je oštećeno ili nije baza (%2).</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened for writing (%2).</source>
        <translation>Baza %1 ne može da se otvori za upis (%2).</translation>
    </message>
    <message>
        <source>making %1</source>
        <translation>pravljenje %1</translation>
    </message>
    <message>
        <source>Another program has the store %1 open.</source>
        <translation>Drugi program drži bazu %1 otvorenu.</translation>
    </message>
    <message>
        <source>The store %1 cannot be renamed.</source>
        <translation>Baza %1 ne može da se preimenuje.</translation>
    </message>
    <message>
        <source>bringing a burst of changes to the disk</source>
        <translation>upis niza izmena na disk</translation>
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
        <translation>Datoteka %1 je nestala dok se baza otvarala.</translation>
    </message>
    <message>
        <source>setting up the text rules</source>
        <translation>podešavanje pravila za tekst</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Prekoračenje</translation>
    </message>
    <message>
        <source>The store is locked by another user</source>
        <translation>Bazu je zaključao drugi korisnik</translation>
    </message>
    <message>
        <source>The work was left</source>
        <translation>Rad je prekinut</translation>
    </message>
    <message>
        <source>A row with this key exists already</source>
        <translation>Red sa ovim ključem već postoji</translation>
    </message>
    <message>
        <source>Other rows of the store refer to this one</source>
        <translation>Drugi redovi baze upućuju na ovaj</translation>
    </message>
    <message>
        <source>A value does not fit the type of its column</source>
        <translation>Vrednost ne odgovara vrsti svoje kolone</translation>
    </message>
    <message>
        <source>There is no room left on the disk</source>
        <translation>Na disku više nema mesta</translation>
    </message>
    <message>
        <source>The store is damaged</source>
        <translation>Baza je oštećena</translation>
    </message>
    <message>
        <source>The store cannot be written to</source>
        <translation>U bazu ne može da se upisuje</translation>
    </message>
    <message>
        <source>The disk or the network refused the access</source>
        <translation>Disk ili mreža je odbila pristup</translation>
    </message>
    <message>
        <source>The store refused the operation</source>
        <translation>Baza je odbila radnju</translation>
    </message>
    <message>
        <source>Did you mean: %1</source>
        <translation>Da li ste mislili: %1</translation>
    </message>
    <message>
        <source>Cannot use %1: it names a path and a url, but only one store.</source>
        <translation>%1 ne može da se koristi: navodi i path i url, a baza je samo jedna.</translation>
    </message>
    <message>
        <source>Cannot read %1: it has no line path=... or url=... in a section [main].</source>
        <translation>%1 ne može da se pročita: nema red path=... ili url=... u odeljku [main].</translation>
    </message>
</context>
<context>
    <name>upkeep</name>
    <message>
        <source>The folder for backups, %1, went away while the backup was being made. Was the stick drawn?</source>
        <translation>Fascikla za rezervne kopije, %1, nestala je dok se kopija pravila. Da li je USB memorija izvučena?</translation>
    </message>
    <message>
        <source>Looking at the folder for backups</source>
        <translation>Provera fascikle za rezervne kopije</translation>
    </message>
    <message>
        <source>Copying the shop</source>
        <translation>Kopiranje podataka radnje</translation>
    </message>
    <message>
        <source>The days in the copy are not those of the shop.</source>
        <translation>Dani u kopiji nisu isti kao u radnji.</translation>
    </message>
    <message>
        <source>Copying the settings</source>
        <translation>Kopiranje podešavanja</translation>
    </message>
    <message>
        <source>Comparing the days</source>
        <translation>Poređenje dana</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Kopiranje: %1</translation>
    </message>
    <message>
        <source>Looking at %1</source>
        <translation>Provera: %1</translation>
    </message>
    <message>
        <source>Reading %1 back</source>
        <translation>Čitanje iz kopije: %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read back as it was written: the disk or stick is worn out.</source>
        <translation>%1 ne može da se pročita onako kako je upisano: disk ili USB memorija je dotrajala.</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Završavanje</translation>
    </message>
    <message>
        <source>No folder for backups has been chosen yet.</source>
        <translation>Još nije izabrana fascikla za rezervne kopije.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now.</source>
        <translation>Upravo se pravi rezervna kopija ove kase.</translation>
    </message>
    <message>
        <source>It does not say when it was made.</source>
        <translation>Ne navodi kada je napravljena.</translation>
    </message>
    <message>
        <source>%1 is missing in it.</source>
        <translation>U njoj nedostaje %1.</translation>
    </message>
    <message>
        <source>%1 in it is not whole.</source>
        <translation>%1 u njoj nije celo.</translation>
    </message>
    <message>
        <source>Its list of files can&apos;t be read.</source>
        <translation>Njen spisak datoteka ne može da se pročita.</translation>
    </message>
    <message>
        <source>%1 is no backup of a register.</source>
        <translation>%1 nije rezervna kopija kase.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there. Is the stick or the disk plugged in?</source>
        <translation>Nema fascikle za rezervne kopije, %1. Da li je USB memorija ili disk priključen?</translation>
    </message>
    <message>
        <source>%1 is no folder for backups.</source>
        <translation>%1 nije fascikla za rezervne kopije.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can only be read.</source>
        <translation>Fascikla za rezervne kopije, %1, može samo da se čita.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can&apos;t be written to.</source>
        <translation>U fasciklu za rezervne kopije, %1, ne može da se upisuje.</translation>
    </message>
    <message>
        <source>The backups need a folder outside of the register&apos;s own.</source>
        <translation>Rezervnim kopijama treba fascikla izvan fascikle same kase.</translation>
    </message>
    <message>
        <source>The folder %1 is not the one that was chosen for backups. Is the right stick or disk plugged in? If it is, choose the folder anew.</source>
        <translation>Fascikla %1 nije ona koja je izabrana za rezervne kopije. Da li je priključena prava USB memorija ili pravi disk? Ako jeste, izaberite fasciklu ponovo.</translation>
    </message>
    <message>
        <source>The last good backup is of %1.</source>
        <translation>Poslednja ispravna rezervna kopija je od %1.</translation>
    </message>
    <message>
        <source>There is no good backup yet.</source>
        <translation>Još nema ispravne rezervne kopije.</translation>
    </message>
    <message>
        <source>The backup of %1 could not be made: %2
%3</source>
        <translation>Rezervna kopija od %1 nije mogla da se napravi: %2
%3</translation>
    </message>
    <message>
        <source>No backup was made for more than three days, although the shop was selling.
%1</source>
        <translation>Rezervna kopija nije napravljena više od tri dana, a radnja je prodavala.
%1</translation>
    </message>
    <message>
        <source>The stores are looked at.</source>
        <translation>Provera baza.</translation>
    </message>
    <message>
        <source>The sales are read.</source>
        <translation>Čitanje prodaje.</translation>
    </message>
    <message>
        <source>The invoices are looked at.</source>
        <translation>Provera računa.</translation>
    </message>
    <message>
        <source>The goods are looked at.</source>
        <translation>Provera robe.</translation>
    </message>
    <message>
        <source>The receipts are looked at.</source>
        <translation>Provera štampanih računa.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 ne može da se pročita: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written</source>
        <translation>%1 ne može da se upiše</translation>
    </message>
    <message>
        <source>%1 can&apos;t be brought to the disk</source>
        <translation>%1 ne može da se upiše na disk</translation>
    </message>
    <message>
        <source>%1 can&apos;t be renamed to %2</source>
        <translation>%1 ne može da se preimenuje u %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made</source>
        <translation>Fascikla %1 ne može da se napravi</translation>
    </message>
    <message>
        <source>There is too little room in %1: %2 are needed, and %3 are free.</source>
        <translation>Na %1 ima premalo mesta: potrebno je %2, a slobodno %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a formula. Copy the cell in the spreadsheet and paste it as a value.</source>
        <translation>&apos;%1&apos; je formula. Kopirajte ćeliju u programu za tabele i nalepite je kao vrednost.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an error that the spreadsheet shows instead of a value.</source>
        <translation>&apos;%1&apos; je greška koju program za tabele prikazuje umesto vrednosti.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>novo</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>izmenjeno</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>nepromenjeno</translation>
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
        <translation>Cena</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>PDV</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Stopa PDV</translation>
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
        <translation>Identifikacioni broj</translation>
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
        <translation>Tekući račun</translation>
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
        <translation>%1: ništa u datoteci ne pokazuje da li &apos;%2&apos; ima decimale ili hiljade. Navedite koji znak odvaja decimale.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not fit the other amounts, which have &apos;%3&apos; before the decimals.</source>
        <translation>%1: &apos;%2&apos; se ne slaže sa ostalim iznosima, koji imaju &apos;%3&apos; ispred decimala.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; has more than four decimals.</source>
        <translation>%1: &apos;%2&apos; ima više od četiri decimale.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is too large.</source>
        <translation>%1: &apos;%2&apos; je preveliko.</translation>
    </message>
    <message>
        <source>The look at the table was left.</source>
        <translation>Pregled tabele je prekinut.</translation>
    </message>
    <message>
        <source>The click table has no such groups, so their goods keep their place: %1.</source>
        <translation>Tabla tastera nema takve grupe, pa njihova roba ostaje gde jeste: %1.</translation>
    </message>
    <message>
        <source>No column is known to be the code of the goods. Say which one it is: %1.</source>
        <translation>Ne zna se koja je kolona šifra robe. Navedite je: %1.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos;.</source>
        <translation>Radnja nema porez &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;.</source>
        <translation>Radnja nema jedinicu mere &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The goods are new, and only those that are there are changed.</source>
        <translation>Roba je nova, a menja se samo postojeća.</translation>
    </message>
    <message>
        <source>The goods are there already, and only new ones are added.</source>
        <translation>Roba već postoji, a dodaje se samo nova.</translation>
    </message>
    <message>
        <source>The row has %1 cells, and the table has %2 columns.</source>
        <translation>Red ima %1 ćelija, a tabela %2 kolona.</translation>
    </message>
    <message>
        <source>The row has no code.</source>
        <translation>Red nema šifru.</translation>
    </message>
    <message>
        <source>The code stands more than once in the file, in the lines %1.</source>
        <translation>Šifra se u datoteci pojavljuje više puta, u redovima %1.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: &apos;%1&apos; is a number that it shortened. Give the column the format Text there and enter the code anew.</source>
        <translation>Program za tabele je pokvario šifru: &apos;%1&apos; je broj koji je skratio. Tamo koloni dajte format Tekst i upišite šifru ponovo.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give the column the format Text there and enter the code anew.</source>
        <translation>Program za tabele je pokvario šifru: radnja ima %1, a nule ispred su nestale. Tamo koloni dajte format Tekst i upišite šifru ponovo.</translation>
    </message>
    <message>
        <source>The code has %1 characters, more than the %2 that the till takes.</source>
        <translation>Broj znakova u šifri je %1, a kasa prima najviše %2.</translation>
    </message>
    <message>
        <source>The code has an apostrophe, by which the till could not find it.</source>
        <translation>Šifra sadrži apostrof, pa je kasa ne bi mogla naći.</translation>
    </message>
    <message>
        <source>The code has a line break or another control character in it.</source>
        <translation>U šifri je prelom reda ili drugi kontrolni znak.</translation>
    </message>
    <message>
        <source>New goods need a name.</source>
        <translation>Novoj robi treba naziv.</translation>
    </message>
    <message>
        <source>%1: the text has %2 characters, more than the %3 that there is room for.</source>
        <translation>%1: tekst ima znakova: %2, a mesta je za %3.</translation>
    </message>
    <message>
        <source>%1: the text has a line break or another control character in it.</source>
        <translation>%1: u tekstu je prelom reda ili drugi kontrolni znak.</translation>
    </message>
    <message>
        <source>New goods need a price.</source>
        <translation>Novoj robi treba cena.</translation>
    </message>
    <message>
        <source>%1: the spreadsheet has shortened the number &apos;%2&apos;.</source>
        <translation>%1: program za tabele je skratio broj &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The price &apos;%1&apos; is below zero.</source>
        <translation>Cena &apos;%1&apos; je manja od nule.</translation>
    </message>
    <message>
        <source>New goods need a unit, and none is said for those without one.</source>
        <translation>Novoj robi treba jedinica mere, a nije navedena ni za robu bez nje.</translation>
    </message>
    <message>
        <source>New goods need a tax, and none is said for those without one.</source>
        <translation>Novoj robi treba porez, a nije naveden ni za robu bez njega.</translation>
    </message>
    <message>
        <source>The tax &apos;%1&apos; has no rate.</source>
        <translation>Porez &apos;%1&apos; nema stopu.</translation>
    </message>
    <message>
        <source>The shop has several taxes of %1; the code of one has to stand here.</source>
        <translation>Radnja ima više poreza od %1; ovde mora stajati šifra jednog od njih.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; of the click table has no free button.</source>
        <translation>Grupa &apos;%1&apos; na tabli tastera nema slobodan taster.</translation>
    </message>
    <message>
        <source>The table has no column &apos;%1&apos;. Its columns are: %2.</source>
        <translation>Tabela nema kolonu &apos;%1&apos;. Njene kolone su: %2.</translation>
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
        <translation>Ostaje, jer je prodavano.</translation>
    </message>
    <message>
        <source>It stays, since it is part of a composition.</source>
        <translation>Ostaje, jer je deo normativa.</translation>
    </message>
    <message>
        <source>It stays, since its %1 was changed.</source>
        <translation>Ostaje, jer je promenjeno: %1.</translation>
    </message>
    <message>
        <source>Its %1 stays, since it was changed.</source>
        <translation>Ostaje kako jeste, jer je promenjeno: %1.</translation>
    </message>
    <message>
        <source>It stays on its button, since its old one is another&apos;s.</source>
        <translation>Ostaje na svom tasteru, jer je stari sada zauzet.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Nema šta da se vrati na staro.</translation>
    </message>
    <message>
        <source>The look at the goods was left.</source>
        <translation>Pregled robe je prekinut.</translation>
    </message>
    <message>
        <source>The goods have no price.</source>
        <translation>Roba nema cenu.</translation>
    </message>
    <message>
        <source>The price is below zero.</source>
        <translation>Cena je manja od nule.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos; with a rate.</source>
        <translation>Radnja nema porez &apos;%1&apos; sa stopom.</translation>
    </message>
    <message>
        <source>A column can&apos;t be &apos;%1&apos;. It can be %2 or none.</source>
        <translation>Kolona ne može biti &apos;%1&apos;. Može biti %2 ili ništa.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;. %2</source>
        <translation>Nije moguće upisati &apos;%1&apos;. %2</translation>
    </message>
    <message>
        <source>Save it in the spreadsheet as CSV and choose that file.</source>
        <translation>Sačuvajte je u programu za tabele kao CSV i izaberite tu datoteku.</translation>
    </message>
    <message>
        <source>This is a workbook under a password. Open it with the password. %1</source>
        <translation>Ovo je radna sveska sa lozinkom. Otvorite je lozinkom. %1</translation>
    </message>
    <message>
        <source>This is a workbook, not a text. %1</source>
        <translation>Ovo je radna sveska, a ne tekst. %1</translation>
    </message>
    <message>
        <source>This is a packed file (zip). Unpack it; a table in it has to be a CSV file.</source>
        <translation>Ovo je arhiva (zip). Raspakujte je; tabela u njoj mora biti datoteka CSV.</translation>
    </message>
    <message>
        <source>This is a PDF. Ask for the table itself, as CSV.</source>
        <translation>Ovo je PDF. Zatražite samu tabelu, kao CSV.</translation>
    </message>
    <message>
        <source>This is a picture, not a table.</source>
        <translation>Ovo je slika, a ne tabela.</translation>
    </message>
    <message>
        <source>This is a document of another kind, not a table of text. %1</source>
        <translation>Ovo je dokument druge vrste, a ne tabela u tekstu. %1</translation>
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
        <translation>Datoteka je veća od %1 MB, više nego što ima tabela robe. Podelite je.</translation>
    </message>
    <message>
        <source>No encoding is called &apos;%1&apos;. Known are: %2.</source>
        <translation>Kodni raspored &apos;%1&apos; ne postoji. Poznati su: %2.</translation>
    </message>
    <message>
        <source>The file is not in the encoding %1: some of its bytes stand for no letter.</source>
        <translation>Datoteka nije u kodnom rasporedu %1: neki njeni bajtovi nisu nijedno slovo.</translation>
    </message>
    <message>
        <source>The row in line %1 makes the table larger than %2 columns or %3 cells.</source>
        <translation>Zbog reda %1 tabela je veća od %2 kolona ili %3 ćelija.</translation>
    </message>
    <message>
        <source>The table has more than %1 rows. Divide it.</source>
        <translation>Tabela ima više od %1 redova. Podelite je.</translation>
    </message>
    <message>
        <source>In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.</source>
        <translation>U redu %1 ima teksta iza završnog navodnika. Navodnik unutar navodnika mora biti udvojen.</translation>
    </message>
    <message>
        <source>The quotation mark in line %1 is never closed.</source>
        <translation>Navodnik u redu %1 nije zatvoren.</translation>
    </message>
    <message>
        <source>The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV.</source>
        <translation>Datoteka nije tekst: sadrži znakove kakve tabela nema. Sačuvajte je u programu za tabele kao CSV.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is damaged, so what it tells of can&apos;t be taken back.</source>
        <translation>&apos;%1&apos; je oštećeno, pa ono o čemu govori ne može da se vrati na staro.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; can&apos;t be made.</source>
        <translation>Fascikla &apos;%1&apos; ne može da se napravi.</translation>
    </message>
    <message>
        <source>was added</source>
        <translation>u međuvremenu dodato</translation>
    </message>
    <message>
        <source>was removed</source>
        <translation>u međuvremenu uklonjeno</translation>
    </message>
    <message>
        <source>The shop has changed since it was looked at, and nothing was written: %1. Look again.</source>
        <translation>Radnja se promenila od pregleda i ništa nije upisano: %1. Pogledajte ponovo.</translation>
    </message>
    <message>
        <source>(%1)</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>(the rate of its tax)</source>
        <translation>(stopa njenog poreza)</translation>
    </message>
    <message>
        <source>(its unit is gone)</source>
        <translation>(njene jedinice mere više nema)</translation>
    </message>
    <message>
        <source>(its button is another&apos;s)</source>
        <translation>(njen taster je zauzet)</translation>
    </message>
    <message>
        <source>%1 was removed, and nothing was written.</source>
        <translation>%1 je uklonjeno i ništa nije upisano.</translation>
    </message>
    <message>
        <source>The writing was left; nothing was written.</source>
        <translation>Upis je prekinut; ništa nije upisano.</translation>
    </message>
    <message>
        <source>A file of the shop is not there.</source>
        <translation>Nema jedne datoteke radnje.</translation>
    </message>
    <message>
        <source>Don&apos;t sell on this till. Look whether the disk or the network drive is connected. If the file is gone, restore the last good backup, on the page Backup.</source>
        <translation>Ne prodajte na ovoj kasi. Pogledajte da li je disk ili mrežni disk povezan. Ako datoteke više nema, vratite poslednju ispravnu kopiju na stranici Rezervna kopija.</translation>
    </message>
    <message>
        <source>Another program holds the shop&apos;s data for itself.</source>
        <translation>Drugi program drži podatke radnje samo za sebe.</translation>
    </message>
    <message>
        <source>Close other programs that work with the shop, such as a backup, and look again.</source>
        <translation>Zatvorite druge programe koji rade sa podacima radnje, na primer pravljenje rezervne kopije, i proverite ponovo.</translation>
    </message>
    <message>
        <source>The computer with the shop&apos;s data does not answer.</source>
        <translation>Računar sa podacima radnje ne odgovara.</translation>
    </message>
    <message>
        <source>Look whether that computer and the network are switched on, then look again. Nothing is lost.</source>
        <translation>Pogledajte da li su taj računar i mreža uključeni, pa proverite ponovo. Ništa nije izgubljeno.</translation>
    </message>
    <message>
        <source>The shop&apos;s data can be read but not changed.</source>
        <translation>Podaci radnje mogu da se čitaju, ali ne i da se menjaju.</translation>
    </message>
    <message>
        <source>The files belong to another user of the computer, or the disk is write-protected. Whoever set up the computer can put that right.</source>
        <translation>Datoteke pripadaju drugom korisniku računara, ili je disk zaštićen od upisa. To može da popravi onaj ko je podesio računar.</translation>
    </message>
    <message>
        <source>A file of the shop is damaged.</source>
        <translation>Jedna datoteka radnje je oštećena.</translation>
    </message>
    <message>
        <source>Stop selling on this till. Copy the whole folder of the register before anything else, then restore the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the disk looked at.</source>
        <translation>Prestanite da prodajete na ovoj kasi. Pre svega kopirajte celu fasciklu kase, a zatim vratite poslednju ispravnu kopiju na stranici Rezervna kopija. Oštećenje nastaje zbog diska koji otkazuje ili nestanka struje: dajte disk na proveru.</translation>
    </message>
    <message>
        <source>There are printed receipts that the shop&apos;s data lacks.</source>
        <translation>Ima štampanih računa kojih nema u podacima radnje.</translation>
    </message>
    <message>
        <source>Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in invoices.txt in the register&apos;s folder: tell the book-keeper their numbers.</source>
        <translation>Izgubljena je prodaja, posle nestanka struje ili vraćanja starije rezervne kopije. Računi se mogu pročitati u invoices.txt u fascikli kase: javite njihove brojeve knjigovođi.</translation>
    </message>
    <message>
        <source>The settings of this till are damaged.</source>
        <translation>Podešavanja ove kase su oštećena.</translation>
    </message>
    <message>
        <source>Restore the last good backup, on the page Backup.</source>
        <translation>Vratite poslednju ispravnu kopiju na stranici Rezervna kopija.</translation>
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
        <translation>Tabele su prenete sa drugog mesta ili menjane ručno. Kasa radi dalje; izveštaji mogu izostaviti takve redove.</translation>
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
        <translation>Dve kase su prodavale pod istim brojem; oba računa postoje. Pobrinite se da svaka kasa ima svoj broj, i javite račune knjigovođi.</translation>
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
        <translation>Upis računa je prekinut, na primer nestankom struje. Potražite račun na papiru ili u invoices.txt i javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that don&apos;t agree with the sum of their lines: %n.</source>
        <translation>
            <numerusform>Računi koji se ne slažu sa zbirom svojih stavki: %n.</numerusform>
            <numerusform>Računi koji se ne slažu sa zbirom svojih stavki: %n.</numerusform>
            <numerusform>Računi koji se ne slažu sa zbirom svojih stavki: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: what is printed there counts. Tell the book-keeper.</source>
        <translation>Upis računa je prekinut, na primer nestankom struje. Potražite račun na papiru ili u invoices.txt: važi ono što je tamo odštampano. Javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices whose tax is not that of their lines: %n.</source>
        <translation>
            <numerusform>Računi čiji porez nije porez njihovih stavki: %n.</numerusform>
            <numerusform>Računi čiji porez nije porez njihovih stavki: %n.</numerusform>
            <numerusform>Računi čiji porez nije porez njihovih stavki: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>Upis računa je prekinut. Potražite račun na papiru ili u invoices.txt i javite knjigovođi.</translation>
    </message>
    <message numerus="yes">
        <source>Periods between two End Reports that stand twice: %n.</source>
        <translation>
            <numerusform>Periodi između dva zaključka dana koji se ponavljaju: %n.</numerusform>
            <numerusform>Periodi između dva zaključka dana koji se ponavljaju: %n.</numerusform>
            <numerusform>Periodi između dva zaključka dana koji se ponavljaju: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills worked under the same number. Look that each till has a number of its own.</source>
        <translation>Dve kase su radile pod istim brojem. Pobrinite se da svaka kasa ima svoj broj.</translation>
    </message>
    <message numerus="yes">
        <source>Periods whose takings are not the sum of their invoices: %n.</source>
        <translation>
            <numerusform>Periodi čiji promet nije zbir njihovih računa: %n.</numerusform>
            <numerusform>Periodi čiji promet nije zbir njihovih računa: %n.</numerusform>
            <numerusform>Periodi čiji promet nije zbir njihovih računa: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax book by the invoices: tell the book-keeper of the difference.</source>
        <translation>Upis računa je prekinut, ili je više kasa prodavalo istovremeno. Zaključak dana ide po prometu, a knjiga izdatih računa po računima: javite razliku knjigovođi.</translation>
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
            <numerusform>Periodi kojih nema, a njihovi računi postoje: %n.</numerusform>
            <numerusform>Periodi kojih nema, a njihovi računi postoje: %n.</numerusform>
            <numerusform>Periodi kojih nema, a njihovi računi postoje: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book but in no End Report: tell the book-keeper.</source>
        <translation>Redovi su obrisani ručno, ili je rezervna kopija pomešana sa novijim podacima. Računi su u knjizi izdatih računa, ali ni u jednom zaključku dana: javite knjigovođi.</translation>
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
        <translation>Ne treba ništa uraditi: izveštaji ih prikazuju kako su prodati.</translation>
    </message>
    <message numerus="yes">
        <source>Cashiers who sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Kasiri koji su prodavali, a zatim su obrisani: %n.</numerusform>
            <numerusform>Kasiri koji su prodavali, a zatim su obrisani: %n.</numerusform>
            <numerusform>Kasiri koji su prodavali, a zatim su obrisani: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them by their number.</source>
        <translation>Ne treba ništa uraditi: izveštaji ih prikazuju po broju.</translation>
    </message>
    <message numerus="yes">
        <source>Taxes that goods were sold under and that are gone: %n.</source>
        <translation>
            <numerusform>Porezi po kojima je roba prodata, a više ih nema: %n.</numerusform>
            <numerusform>Porezi po kojima je roba prodata, a više ih nema: %n.</numerusform>
            <numerusform>Porezi po kojima je roba prodata, a više ih nema: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done for what is sold; see under Set-up that today&apos;s taxes are complete.</source>
        <translation>Za ono što je prodato ne treba ništa uraditi; pogledajte na stranici Priprema da li su današnji porezi potpuni.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that were never printed on this till: %n.</source>
        <translation>
            <numerusform>Računi koji na ovoj kasi nikada nisu štampani: %n.</numerusform>
            <numerusform>Računi koji na ovoj kasi nikada nisu štampani: %n.</numerusform>
            <numerusform>Računi koji na ovoj kasi nikada nisu štampani: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another till sold them, or the printer failed. Print them once more from the list of invoices where the customer or the tax office needs the paper.</source>
        <translation>Prodala ih je druga kasa, ili je štampač otkazao. Odštampajte ih ponovo iz spiska računa ako kupcu ili poreskoj upravi treba papir.</translation>
    </message>
    <message numerus="yes">
        <source>Products with a tax that is not there: %n.</source>
        <translation>
            <numerusform>Artikli sa porezom koji ne postoji: %n.</numerusform>
            <numerusform>Artikli sa porezom koji ne postoji: %n.</numerusform>
            <numerusform>Artikli sa porezom koji ne postoji: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with another rate than that of their tax: %n.</source>
        <translation>
            <numerusform>Artikli sa drugom stopom od stope svog poreza: %n.</numerusform>
            <numerusform>Artikli sa drugom stopom od stope svog poreza: %n.</numerusform>
            <numerusform>Artikli sa drugom stopom od stope svog poreza: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rate was changed after they were saved. Give them the rate of their tax on the page Prices.</source>
        <translation>Stopa je promenjena pošto su sačuvani. Dajte im stopu njihovog poreza na stranici Cene.</translation>
    </message>
    <message numerus="yes">
        <source>Products without a tax rate, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Artikli bez stope PDV, koji ne mogu da se prodaju: %n.</numerusform>
            <numerusform>Artikli bez stope PDV, koji ne mogu da se prodaju: %n.</numerusform>
            <numerusform>Artikli bez stope PDV, koji ne mogu da se prodaju: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products without a price, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Artikli bez cene, koji ne mogu da se prodaju: %n.</numerusform>
            <numerusform>Artikli bez cene, koji ne mogu da se prodaju: %n.</numerusform>
            <numerusform>Artikli bez cene, koji ne mogu da se prodaju: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</source>
        <translation>
            <numerusform>Artikli sa apostrofom u šifri, koje kasa ne može da nađe: %n.</numerusform>
            <numerusform>Artikli sa apostrofom u šifri, koje kasa ne može da nađe: %n.</numerusform>
            <numerusform>Artikli sa apostrofom u šifri, koje kasa ne može da nađe: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make the product anew under a code without it, and delete this one.</source>
        <translation>Napravite artikal ponovo pod šifrom bez apostrofa, a ovaj obrišite.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code begins or ends with a blank: %n.</source>
        <translation>
            <numerusform>Artikli čija šifra počinje ili se završava razmakom: %n.</numerusform>
            <numerusform>Artikli čija šifra počinje ili se završava razmakom: %n.</numerusform>
            <numerusform>Artikli čija šifra počinje ili se završava razmakom: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A scanner doesn&apos;t find them. Make the product anew without the blank, and delete this one.</source>
        <translation>Skener ih ne nalazi. Napravite artikal ponovo bez razmaka, a ovaj obrišite.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Artikli čija je šifra duža nego što prima polje na kasi: %n.</numerusform>
            <numerusform>Artikli čija je šifra duža nego što prima polje na kasi: %n.</numerusform>
            <numerusform>Artikli čija je šifra duža nego što prima polje na kasi: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.</source>
        <translation>Mogu da se prodaju samo sa table tastera ili iz spiska. Dajte im šifru od najviše 13 znakova.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose name is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Artikli čiji je naziv duži nego što prima polje na kasi: %n.</numerusform>
            <numerusform>Artikli čiji je naziv duži nego što prima polje na kasi: %n.</numerusform>
            <numerusform>Artikli čiji je naziv duži nego što prima polje na kasi: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a unit that the till does not know: %n.</source>
        <translation>
            <numerusform>Artikli sa jedinicom mere koju kasa ne poznaje: %n.</numerusform>
            <numerusform>Artikli sa jedinicom mere koju kasa ne poznaje: %n.</numerusform>
            <numerusform>Artikli sa jedinicom mere koju kasa ne poznaje: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a stock below zero: %n.</source>
        <translation>
            <numerusform>Artikli sa zalihom manjom od nule: %n.</numerusform>
            <numerusform>Artikli sa zalihom manjom od nule: %n.</numerusform>
            <numerusform>Artikli sa zalihom manjom od nule: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products on a touch button that is not there: %n.</source>
        <translation>
            <numerusform>Artikli na tasteru koji ne postoji: %n.</numerusform>
            <numerusform>Artikli na tasteru koji ne postoji: %n.</numerusform>
            <numerusform>Artikli na tasteru koji ne postoji: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Touch buttons with more than one product: %n.</source>
        <translation>
            <numerusform>Tasteri sa više od jednog artikla: %n.</numerusform>
            <numerusform>Tasteri sa više od jednog artikla: %n.</numerusform>
            <numerusform>Tasteri sa više od jednog artikla: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products that compositions name and that are gone: %n.</source>
        <translation>
            <numerusform>Artikli koje normativi navode, a više ih nema: %n.</numerusform>
            <numerusform>Artikli koje normativi navode, a više ih nema: %n.</numerusform>
            <numerusform>Artikli koje normativi navode, a više ih nema: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Small tables with more or fewer rows than in a new shop: %n.</source>
        <translation>
            <numerusform>Male tabele sa više ili manje redova nego u novoj radnji: %n.</numerusform>
            <numerusform>Male tabele sa više ili manje redova nego u novoj radnji: %n.</numerusform>
            <numerusform>Male tabele sa više ili manje redova nego u novoj radnji: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the row.</source>
        <translation>Tabele su menjane ručno. Tabli tastera možda nedostaje kartica; red može da doda onaj ko održava kasu.</translation>
    </message>
    <message numerus="yes">
        <source>Missing indexes, so that the till gets slow: %n.</source>
        <translation>
            <numerusform>Indeksi koji nedostaju, pa je kasa spora: %n.</numerusform>
            <numerusform>Indeksi koji nedostaju, pa je kasa spora: %n.</numerusform>
            <numerusform>Indeksi koji nedostaju, pa je kasa spora: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever looks after the till can make them anew: a backup that is restored has them again.</source>
        <translation>Može ih ponovo napraviti onaj ko održava kasu: vraćena rezervna kopija ih opet ima.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of this till without a value, at which it stops when it starts: %n.</source>
        <translation>
            <numerusform>Podešavanja ove kase bez vrednosti, zbog kojih staje pri pokretanju: %n.</numerusform>
            <numerusform>Podešavanja ove kase bez vrednosti, zbog kojih staje pri pokretanju: %n.</numerusform>
            <numerusform>Podešavanja ove kase bez vrednosti, zbog kojih staje pri pokretanju: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Set them under Settings on the till, or on the page Set-up here.</source>
        <translation>Podesite ih u Podešavanja na kasi, ili ovde na stranici Priprema.</translation>
    </message>
    <message>
        <source>Something was found.</source>
        <translation>Nešto je nađeno.</translation>
    </message>
    <message>
        <source>Show it to whoever looks after the till.</source>
        <translation>Pokažite to onome ko održava kasu.</translation>
    </message>
    <message>
        <source>The files of the shop and of this till are whole.</source>
        <translation>Datoteke radnje i ove kase su cele.</translation>
    </message>
    <message numerus="yes">
        <source>Every invoice agrees with its lines and taxes. Looked at: %n.</source>
        <translation>
            <numerusform>Svaki račun se slaže sa svojim stavkama i porezima. Provereno: %n.</numerusform>
            <numerusform>Svaki račun se slaže sa svojim stavkama i porezima. Provereno: %n.</numerusform>
            <numerusform>Svaki račun se slaže sa svojim stavkama i porezima. Provereno: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The takings of each End Report are the sum of its invoices.</source>
        <translation>Promet svakog zaključka dana je zbir njegovih računa.</translation>
    </message>
    <message>
        <source>The numbers of the invoices run on without a gap.</source>
        <translation>Brojevi računa idu redom, bez praznina.</translation>
    </message>
    <message numerus="yes">
        <source>Every printed receipt is in the shop&apos;s data. Looked at: %n.</source>
        <translation>
            <numerusform>Svaki štampani račun je u podacima radnje. Provereno: %n.</numerusform>
            <numerusform>Svaki štampani račun je u podacima radnje. Provereno: %n.</numerusform>
            <numerusform>Svaki štampani račun je u podacima radnje. Provereno: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every product can be sold, and is taxed as its tax says. Looked at: %n.</source>
        <translation>
            <numerusform>Svaki artikal može da se proda i oporezuje se kako kaže njegov porez. Provereno: %n.</numerusform>
            <numerusform>Svaki artikal može da se proda i oporezuje se kako kaže njegov porez. Provereno: %n.</numerusform>
            <numerusform>Svaki artikal može da se proda i oporezuje se kako kaže njegov porez. Provereno: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Od poslednjeg zaključka dana</translation>
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
        <translation>Zbir stavki je drugačiji.</translation>
    </message>
    <message>
        <source>The tax of the lines is another.</source>
        <translation>Porez stavki je drugačiji.</translation>
    </message>
    <message>
        <source>The takings are not the sum of the invoices.</source>
        <translation>Promet nije zbir računa.</translation>
    </message>
    <message>
        <source>Numbers left out: %1.</source>
        <translation>Izostavljeni brojevi: %1.</translation>
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
            <numerusform>%1: %n račun, ukupno %2, porez %3.</numerusform>
            <numerusform>%1: %n računa, ukupno %2, porez %3.</numerusform>
            <numerusform>%1: %n računa, ukupno %2, porez %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell the book-keeper of the difference; the receipts count as they are printed.</source>
        <translation>Javite razliku knjigovođi; računi važe onako kako su odštampani.</translation>
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
        <translation>Kasir: %1</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Od toga PDV</translation>
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
        <translation>List ima bar jednu etiketu.</translation>
    </message>
    <message>
        <source>The labels side by side are %1 mm wide; the sheet has %2 mm.</source>
        <translation>Etikete jedna do druge široke su %1 mm; list ima %2 mm.</translation>
    </message>
    <message>
        <source>The labels one below the other are %1 mm high; the sheet has %2 mm.</source>
        <translation>Etikete jedna ispod druge visoke su %1 mm; list ima %2 mm.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no amount above zero.</source>
        <translation>&apos;%1&apos; nije iznos veći od nule.</translation>
    </message>
    <message>
        <source>There is no amount. Type some, with a blank between two.</source>
        <translation>Nema nijednog iznosa. Upišite ih, sa razmakom između.</translation>
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
        <translation>Bez PDV</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Iznos</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation>Prodaja po kasirima</translation>
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
        <translation>Procenat</translation>
    </message>
    <message>
        <source>Tax book by day</source>
        <translation>Knjiga izdatih računa po danima</translation>
    </message>
    <message>
        <source>First invoice</source>
        <translation>Prvi račun</translation>
    </message>
    <message>
        <source>Last invoice</source>
        <translation>Poslednji račun</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vreme</translation>
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
        <translation>Radno vreme</translation>
    </message>
    <message>
        <source>Goods in stock</source>
        <translation>Zaliha robe</translation>
    </message>
    <message>
        <source>Worth</source>
        <translation>Vrednost</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged: %2</source>
        <translation>%1 u rezervnoj kopiji je oštećeno: %2</translation>
    </message>
    <message>
        <source>Putting the shop in its place</source>
        <translation>Postavljanje podataka radnje</translation>
    </message>
    <message>
        <source>%1 is missing in the backup.</source>
        <translation>U rezervnoj kopiji nedostaje %1.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Čitanje: %1</translation>
    </message>
    <message>
        <source>The list of files of the backup is damaged.</source>
        <translation>Spisak datoteka rezervne kopije je oštećen.</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged.</source>
        <translation>%1 u rezervnoj kopiji je oštećeno.</translation>
    </message>
    <message>
        <source>Checking the backup</source>
        <translation>Provera rezervne kopije</translation>
    </message>
    <message>
        <source>The days in the backup&apos;s shop are not those that it was made with.</source>
        <translation>Dani u radnji iz rezervne kopije nisu oni sa kojima je napravljena.</translation>
    </message>
    <message>
        <source>The days on the server are not those of the backup.</source>
        <translation>Dani na serveru nisu oni iz rezervne kopije.</translation>
    </message>
    <message>
        <source>There is no backup %1.</source>
        <translation>Rezervna kopija %1 ne postoji.</translation>
    </message>
    <message>
        <source>The till of this register is open. Close it first.</source>
        <translation>Program na ovoj kasi je otvoren. Prvo ga zatvorite.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now. Try again in a minute.</source>
        <translation>Upravo se pravi rezervna kopija ove kase. Pokušajte ponovo za minut.</translation>
    </message>
    <message>
        <source>A restore was not ended. Start the till once.</source>
        <translation>Vraćanje nije završeno. Pokrenite kasu jednom.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only a number from %4 to %5.</source>
        <translation>velton.ini, red %1: %2 ne može biti &quot;%3&quot;, nego samo broj od %4 do %5.</translation>
    </message>
    <message>
        <source>products with a stock below zero</source>
        <translation>artikli sa zalihom ispod nule</translation>
    </message>
    <message>
        <source>products on a button that is not there</source>
        <translation>artikli na tasteru koji ne postoji</translation>
    </message>
    <message>
        <source>buttons of the click table with more than one product</source>
        <translation>tasteri table tastera sa više artikala</translation>
    </message>
    <message>
        <source>tables with more or fewer rows than delivered</source>
        <translation>tabele sa više ili manje redova nego pri isporuci</translation>
    </message>
    <message>
        <source>indexes that are missing, so that lookups are slow or keys not unique</source>
        <translation>indeksi koji nedostaju, pa je traženje sporo ili ključevi mogu da se ponavljaju</translation>
    </message>
    <message>
        <source>Open period</source>
        <translation>Otvoren period</translation>
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
        <translation>izostavljeni brojevi %1</translation>
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
        <translation>Glavna baza</translation>
    </message>
    <message>
        <source>Options store</source>
        <translation>Baza podešavanja</translation>
    </message>
    <message>
        <source>The ribbon of printed invoices has receipts that the store lacks: %1</source>
        <translation>Na kontrolnoj traci ima računa kojih nema u bazi: %1</translation>
    </message>
    <message>
        <source>invoices that are not on the ribbon (never printed, or by another register)</source>
        <translation>računi kojih nema na kontrolnoj traci (nisu odštampani ili ih je odštampala druga kasa)</translation>
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
        <translation>računi čiji ukupan iznos nije zbir stavki</translation>
    </message>
    <message>
        <source>invoices whose tax is not the sum of their lines&apos; tax</source>
        <translation>računi čiji porez nije zbir poreza stavki</translation>
    </message>
    <message>
        <source>periods whose total is not the sum of their invoices</source>
        <translation>periodi čiji ukupan iznos nije zbir njihovih računa</translation>
    </message>
    <message>
        <source>settings without a value, which start-up stops at</source>
        <translation>podešavanja bez vrednosti, zbog kojih se kasa ne pokreće</translation>
    </message>
    <message>
        <source>Options store: Options has %1 rows instead of one.</source>
        <translation>Baza podešavanja: Options ima redova: %1, a treba jedan.</translation>
    </message>
    <message>
        <source>The totals of the days can&apos;t be read.</source>
        <translation>Zbirovi po danima ne mogu da se pročitaju.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 i još %2</translation>
    </message>
    <message>
        <source>goods with a tax that is not there</source>
        <translation>roba sa porezom koji ne postoji</translation>
    </message>
    <message>
        <source>goods with another rate than that of their tax</source>
        <translation>roba sa stopom drugačijom od stope svog poreza</translation>
    </message>
    <message>
        <source>goods without a tax rate, which can&apos;t be sold</source>
        <translation>roba bez stope poreza, koja ne može da se prodaje</translation>
    </message>
    <message>
        <source>goods without a price, which can&apos;t be sold</source>
        <translation>roba bez cene, koja ne može da se prodaje</translation>
    </message>
    <message>
        <source>goods with an apostrophe in the code, which can&apos;t be looked up</source>
        <translation>roba sa apostrofom u šifri, koja ne može da se nađe</translation>
    </message>
    <message>
        <source>goods with blanks at an end of the code</source>
        <translation>roba sa razmakom na početku ili kraju šifre</translation>
    </message>
    <message>
        <source>goods with a code longer than its box</source>
        <translation>roba čija je šifra duža od polja</translation>
    </message>
    <message>
        <source>goods with a name longer than its box</source>
        <translation>roba čiji je naziv duži od polja</translation>
    </message>
    <message>
        <source>goods with a unit that is not there</source>
        <translation>roba sa jedinicom mere koja ne postoji</translation>
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
        <translation>Kopija baze nije ista; ništa nije promenjeno.</translation>
    </message>
    <message>
        <source>There is no line of field names.</source>
        <translation>Nedostaje red sa nazivima polja.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Red %1: %2</translation>
    </message>
    <message>
        <source>A control character inside a text is written \r or \0.</source>
        <translation>Kontrolni znak u tekstu piše se \r ili \0.</translation>
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
        <translation>Baza nema tabelu &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The table %1 has no field &apos;%2&apos;.</source>
        <translation>Tabela %1 nema polje &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Field %1: %2</source>
        <translation>Polje %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number.</source>
        <translation>&apos;%1&apos; nije ceo broj.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number with up to four decimals.</source>
        <translation>&apos;%1&apos; nije broj sa najviše četiri decimale.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number within the range of a column.</source>
        <translation>&apos;%1&apos; nije broj koji stane u kolonu.</translation>
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
        <translation>&apos;%1&apos; nije vreme (hh:mm:ss).</translation>
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
        <translation>U radnji nema jedinice mere &apos;%1&apos;. Postoje: %2.</translation>
    </message>
    <message>
        <source>This is a store, not a table.</source>
        <translation>Ovo je baza, a ne tabela.</translation>
    </message>
    <message>
        <source>Choose one of today&apos;s taxes for them at the till under Products, View - Edit - Delete Products, or add the tax on the page Set-up.</source>
        <translation>Izaberite im na kasi pod Artikli, Pregled - izmena - brisanje artikala jedan od današnjih poreza ili dodajte porez na stranici Priprema.</translation>
    </message>
    <message>
        <source>Choose their tax at the till under Products, View - Edit - Delete Products, and save.</source>
        <translation>Izaberite im porez na kasi pod Artikli, Pregled - izmena - brisanje artikala i sačuvajte.</translation>
    </message>
    <message>
        <source>Give them a price at the till under Products, View - Edit - Delete Products, or take them in anew on the page Goods.</source>
        <translation>Upišite im cenu na kasi pod Artikli, Pregled - izmena - brisanje artikala ili ih ponovo uvezite na stranici Roba.</translation>
    </message>
    <message>
        <source>Receipts cut it. Shorten it to 40 characters at the till under Products, View - Edit - Delete Products.</source>
        <translation>Na računu se skraćuje. Skratite ga na 40 znakova na kasi pod Artikli, Pregled - izmena - brisanje artikala.</translation>
    </message>
    <message>
        <source>Choose one of the units for them at the till under Products, View - Edit - Delete Products, or add the unit on the page Set-up.</source>
        <translation>Izaberite im na kasi pod Artikli, Pregled - izmena - brisanje artikala jednu od jedinica mere ili dodajte jedinicu na stranici Priprema.</translation>
    </message>
    <message>
        <source>More was sold than was entered. Enter the delivery, or count them and correct the stock at the till under Products, View - Edit - Delete Products.</source>
        <translation>Prodato je više nego što je upisano. Upišite isporuku ili ih prebrojte i ispravite zalihu na kasi pod Artikli, Pregled - izmena - brisanje artikala.</translation>
    </message>
    <message>
        <source>Give them another button at the till under Settings, Click Table.</source>
        <translation>Dajte im drugi taster na kasi pod Podešavanja, Tabla tastera.</translation>
    </message>
    <message>
        <source>The button sells one of them alone. Give the others another button at the till under Settings, Click Table.</source>
        <translation>Taster prodaje samo jedan od njih. Ostalima dajte drugi taster na kasi pod Podešavanja, Tabla tastera.</translation>
    </message>
    <message>
        <source>Selling such a composition takes nothing from the stock of what is gone. Open the composition at the till under Products, View - Edit - Delete Products, and mend it.</source>
        <translation>Prodaja po takvom normativu ne skida zalihu onoga čega nema. Otvorite normativ na kasi pod Artikli, Pregled - izmena - brisanje artikala i ispravite ga.</translation>
    </message>
    <message>
        <source>Comparing the copy</source>
        <translation>Upoređuje se kopija</translation>
    </message>
    <message>
        <source>There are no pictures in %1: it has no folder %2.</source>
        <translation>U %1 nema slika: nema fascikle %2.</translation>
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
        <translation>Vrednost nije vrste koja je ovde potrebna.</translation>
    </message>
    <message>
        <source>A value is needed here, but the field is empty.</source>
        <translation>Ovde je potrebna vrednost, a polje je prazno.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>Nije moguće pročitati &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>Nije moguće upisati &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Cannot copy &apos;%1&apos;: %2</source>
        <translation>Nije moguće kopirati &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be opened.</source>
        <translation>Fascikla %1 ne može da se otvori.</translation>
    </message>
    <message>
        <source>Cannot open &apos;%1&apos;: %2</source>
        <translation>Nije moguće otvoriti &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in UTF-8 and can&apos;t be changed.</source>
        <translation>&apos;%1&apos; nije u UTF-8 i ne može da se menja.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is no file.</source>
        <translation>%1 ne može da se pročita: nije datoteka.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Čitanje nije uspelo, %1: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is too long.</source>
        <translation>%1 ne može da se pročita: predugačko je.</translation>
    </message>
    <message>
        <source>Division by zero.</source>
        <translation>Deljenje nulom.</translation>
    </message>
</context>
</TS>
