<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BackupPage</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>Jetzt &amp;sichern</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>The till makes one at each End Report and when it is first started on a day. Kept are the newest of each of the last</source>
        <translation>Die Kasse sichert bei jedem Tagesabschluss und beim ersten Start am Tag. Behalten wird jeweils die neueste Sicherung der letzten</translation>
    </message>
    <message>
        <source>Days of which one is kept</source>
        <translation>Tage, von denen eine Sicherung bleibt</translation>
    </message>
    <message>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source>Weeks of which one is kept</source>
        <translation>Wochen, von denen eine Sicherung bleibt</translation>
    </message>
    <message>
        <source> weeks</source>
        <translation> Wochen</translation>
    </message>
    <message>
        <source>Months of which one is kept</source>
        <translation>Monate, von denen eine Sicherung bleibt</translation>
    </message>
    <message>
        <source> months</source>
        <translation> Monate</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>&amp;Restore…</source>
        <translation>&amp;Zurückspielen…</translation>
    </message>
</context>
<context>
    <name>ClickTable</name>
    <message>
        <source>The click table has no tab %1.</source>
        <translation>Das Tastenfeld hat keinen Reiter %1.</translation>
    </message>
    <message>
        <source>The click table has no button %1.</source>
        <translation>Das Tastenfeld hat keine Taste %1.</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>The store is not open.</source>
        <translation>Die Datenbank ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>Waiting for the server of the store, or for another register that is writing there.</source>
        <translation>Warten auf den Server der Datenbank oder auf eine andere Kasse, die dort schreibt.</translation>
    </message>
    <message>
        <source>Waiting for another register, which is writing to the store.</source>
        <translation>Warten auf eine andere Kasse, die in die Datenbank schreibt.</translation>
    </message>
    <message>
        <source>A text does not fit its line.</source>
        <translation>Ein Text passt nicht in seine Zeile.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only %4.</source>
        <extracomment>%4: the words that it may be, &quot;yes or no&quot;</extracomment>
        <translation>velton.ini, Zeile %1: %2 kann nicht „%3“ sein, nur %4.</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between two words that a setting may be, with its blanks</extracomment>
        <translation> oder </translation>
    </message>
    <message>
        <source>velton.ini, line %1: there is no %2 in [%3].</source>
        <translation>velton.ini, Zeile %1: %2 gibt es in [%3] nicht.</translation>
    </message>
    <message>
        <source>The setting %1 can&apos;t be used. %2</source>
        <translation>Die Einstellung %1 ist unbrauchbar. %2</translation>
    </message>
    <message>
        <source>The program that makes it can&apos;t be started.</source>
        <translation>Das Programm, das sie anlegt, kann nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>CustomerEntry</name>
    <message>
        <source>ID:</source>
        <translation>Nr.:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation>Steuernr.:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Inhaber:</translation>
    </message>
    <message>
        <source>Bank accounts:</source>
        <translation>Bankkonten:</translation>
    </message>
    <message>
        <source>The rate approved rebates or rate margins for suppliers:</source>
        <translation>Gewährter Rabatt oder Spanne des Lieferanten:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Change password!</source>
        <extracomment>the customer&apos;s ID is taken</extracomment>
        <translation>Diese Kundennummer gibt es schon. Bitte eine andere wählen.</translation>
    </message>
</context>
<context>
    <name>DrawerPage</name>
    <message>
        <source>Drawer</source>
        <translation>Kassenlade</translation>
    </message>
    <message>
        <source>Count of the drawer</source>
        <translation>Zählung der Kassenlade</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Zählung</translation>
    </message>
    <message>
        <source>&amp;Keep the count</source>
        <translation>Zählung &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Empty</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Begins anew</source>
        <translation>Beginnt von vorn</translation>
    </message>
    <message>
        <source>&amp;Notes and coins</source>
        <translation>Scheine und &amp;Münzen</translation>
    </message>
    <message>
        <source>Which there are of this currency</source>
        <translation>Welche es in dieser Währung gibt</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>P&amp;ut in:</source>
        <translation>&amp;Einlage:</translation>
    </message>
    <message>
        <source>Taken &amp;out:</source>
        <translation>E&amp;ntnahme:</translation>
    </message>
    <message>
        <source>Should be there:</source>
        <translation>Sollbestand:</translation>
    </message>
    <message>
        <source>Counted:</source>
        <translation>Gezählt:</translation>
    </message>
    <message>
        <source>&amp;Remark:</source>
        <translation>Noti&amp;z:</translation>
    </message>
    <message>
        <source>Earlier counts</source>
        <translation>Frühere Zählungen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Prints the chosen count</source>
        <translation>Druckt die gewählte Zählung</translation>
    </message>
    <message>
        <source>Per&amp;iod:</source>
        <translation>Zeit&amp;raum:</translation>
    </message>
    <message>
        <source>Whose sales the drawer is counted for</source>
        <translation>Für welche Verkäufe die Lade gezählt wird</translation>
    </message>
    <message>
        <source>Sold in cash:</source>
        <translation>Barverkäufe:</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>Fill in all required fields.</source>
        <translation>Bitte alle Pflichtfelder ausfüllen.</translation>
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
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>S&amp;teuer:</translation>
    </message>
    <message>
        <source>Goods found</source>
        <translation>Gefundene Artikel</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Add all sho&amp;wn</source>
        <translation>&amp;Alle hinzufügen</translation>
    </message>
    <message>
        <source>Goods chosen</source>
        <translation>Gewählte Artikel</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>An&amp;zahl:</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Al&amp;le entfernen</translation>
    </message>
</context>
<context>
    <name>GoodsPage</name>
    <message>
        <source>Goods</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Choose a &amp;file…</source>
        <translation>Datei &amp;wählen…</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Keine Datei gewählt.</translation>
    </message>
    <message>
        <source>Export g&amp;oods…</source>
        <translation>Artikel e&amp;xportieren…</translation>
    </message>
    <message>
        <source>Export cus&amp;tomers…</source>
        <translation>Kunden exp&amp;ortieren…</translation>
    </message>
    <message>
        <source>What the file would do</source>
        <translation>Was die Datei bewirken würde</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>&amp;Zurücknehmen…</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>Anze&amp;igen:</translation>
    </message>
    <message>
        <source>How it is rea&amp;d</source>
        <translation>Wie ge&amp;lesen wird</translation>
    </message>
</context>
<context>
    <name>HeadingStep</name>
    <message>
        <source>These lines head each receipt.</source>
        <translation>Diese Zeilen stehen oben auf jedem Kassenbon.</translation>
    </message>
    <message>
        <source>Na&amp;me of the shop:</source>
        <translation>Na&amp;me des Geschäfts:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;Identification:</source>
        <translation>Steuern&amp;ummer:</translation>
    </message>
    <message>
        <source>&amp;Telephone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>Sho&amp;wn as layout:</source>
        <translation>Vorschau im &amp;Layout:</translation>
    </message>
    <message>
        <source>How a receipt looks</source>
        <translation>So sieht ein Kassenbon aus</translation>
    </message>
</context>
<context>
    <name>HealthPage</name>
    <message>
        <source>Health</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Neu prüfen</translation>
    </message>
    <message>
        <source>Report for whoever &amp;helps…</source>
        <translation>&amp;Bericht für den Betreuer…</translation>
    </message>
</context>
<context>
    <name>ImportChoices</name>
    <message>
        <source>How the file is written</source>
        <translation>So ist die Datei geschrieben</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>Dec&amp;imals:</source>
        <translation>&amp;Dezimalzeichen:</translation>
    </message>
    <message>
        <source>Which column is what</source>
        <translation>Zuordnung der Spalten</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Art.-Nr.:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>P&amp;rice:</source>
        <translation>&amp;Preis:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>&amp;Menge:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Ta&amp;x:</source>
        <translation>&amp;Steuer:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Bild:</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>Was getan werden soll</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>Leave prices as they are</source>
        <translation>Preise unverändert lassen</translation>
    </message>
    <message>
        <source>Leave quantities as they are</source>
        <translation>Mengen unverändert lassen</translation>
    </message>
    <message>
        <source>New goods whose row says none</source>
        <translation>Neue Artikel ohne Angabe in der Zeile</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Tax:</source>
        <translation>Steuer:</translation>
    </message>
</context>
<context>
    <name>InvoicesView</name>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Kassenbon</translation>
    </message>
    <message>
        <source>Show &amp;receipt</source>
        <translation>Kassen&amp;bon zeigen</translation>
    </message>
    <message>
        <source>&amp;Back to the list</source>
        <translation>Zurück zur &amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>LabelChoice</name>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;Bogen:</translation>
    </message>
    <message>
        <source>Start at la&amp;bel:</source>
        <translation>Ab Et&amp;ikett:</translation>
    </message>
    <message>
        <source>Printer&apos;s d&amp;ots:</source>
        <translation>Druckp&amp;unkte:</translation>
    </message>
    <message>
        <source>Width, mm:</source>
        <translation>Breite, mm:</translation>
    </message>
    <message>
        <source>Height, mm:</source>
        <translation>Höhe, mm:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>One below other:</source>
        <translation>Reihen:</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>Rand links:</translation>
    </message>
    <message>
        <source>From the top:</source>
        <translation>Rand oben:</translation>
    </message>
    <message>
        <source>Gap beside:</source>
        <translation>Lücke rechts:</translation>
    </message>
    <message>
        <source>Gap below:</source>
        <translation>Lücke unten:</translation>
    </message>
    <message>
        <source>A sheet that is used already: press its first free label in the picture.</source>
        <translation>Angebrochener Bogen: im Bild das erste freie Etikett antippen.</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Page before</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>So wird gedruckt</translation>
    </message>
</context>
<context>
    <name>LabelsPage</name>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>Etiketten &amp;drucken</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The screens of the till and what it prints can each have a language of their own. Names of goods, and what stands at the head of the receipt, stay as you wrote them.</source>
        <translation>Die Bildschirme der Kasse und ihre Ausdrucke können jeweils eine eigene Sprache haben. Artikelnamen und die Kopfzeilen des Kassenbons bleiben, wie sie eingegeben wurden.</translation>
    </message>
    <message>
        <source>On the &amp;screens</source>
        <translation>Auf dem &amp;Bildschirm</translation>
    </message>
    <message>
        <source>On &amp;paper: receipts, reports and their previews</source>
        <translation>Auf &amp;Papier: Kassenbons, Berichte und ihre Vorschau</translation>
    </message>
    <message>
        <source>A receipt in the language of paper</source>
        <translation>Ein Kassenbon in der Sprache der Ausdrucke</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Speichern</translation>
    </message>
</context>
<context>
    <name>ListReport</name>
    <message>
        <source>D A T E</source>
        <translation>DATUM</translation>
    </message>
    <message>
        <source>TIME PERIOD</source>
        <translation>ZEITRAUM</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>Show period</source>
        <translation>Zeitraum zeigen</translation>
    </message>
    <message>
        <source>Total by</source>
        <translation>Summen nach</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Drucken</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Speichern</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Bericht (*.txt)</translation>
    </message>
    <message>
        <source>List does not contain any item.Change date.</source>
        <translation>Die Liste ist leer. Bitte andere Tage wählen.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
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
        <translation>Name und Passwort eines Benutzers der Stufe 3:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>&amp;Log in</source>
        <translation>&amp;Anmelden</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
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
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>MasterdataWords</name>
    <message>
        <source>The row was deleted after this list was read.</source>
        <translation>Die Zeile wurde gelöscht, nachdem diese Liste gelesen war.</translation>
    </message>
</context>
<context>
    <name>NotesAndCoins</name>
    <message>
        <source>Notes and coins</source>
        <translation>Scheine und Münzen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>&amp;7 days</source>
        <translation>&amp;7 Tage</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Die letzten sieben Tage</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Monat</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Jahr</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Dieses Jahr</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>All days of the shop</source>
        <translation>Alle Tage des Geschäfts</translation>
    </message>
    <message>
        <source>&amp;Own days</source>
        <translation>&amp;Eigene Tage</translation>
    </message>
    <message>
        <source>From one day to another</source>
        <translation>Von einem Tag bis zu einem anderen</translation>
    </message>
    <message>
        <source>As ta&amp;bles</source>
        <translation>Als &amp;Tabellen</translation>
    </message>
    <message>
        <source>The figures of the charts as tables</source>
        <translation>Die Zahlen der Diagramme als Tabellen</translation>
    </message>
    <message>
        <source>P&amp;DF</source>
        <translation>&amp;PDF</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>&amp;CSV</source>
        <translation>&amp;CSV</translation>
    </message>
    <message>
        <source>Save the figures for a spreadsheet</source>
        <translation>Die Zahlen für eine Tabellenkalkulation speichern</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;Until:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>An&amp;zeigen</translation>
    </message>
    <message>
        <source>Takings</source>
        <translation>Umsatz</translation>
    </message>
    <message>
        <source>By hour and weekday</source>
        <translation>Nach Stunde und Wochentag</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>By ta&amp;kings</source>
        <translation>Nach &amp;Umsatz</translation>
    </message>
    <message>
        <source>By pi&amp;eces</source>
        <translation>Nach &amp;Stück</translation>
    </message>
    <message>
        <source>Sold best</source>
        <translation>Meistverkauft</translation>
    </message>
    <message>
        <source>In stock and sold least</source>
        <translation>Ladenhüter</translation>
    </message>
    <message>
        <source>Runs out at the present pace</source>
        <translation>Geht beim jetzigen Absatz zur Neige</translation>
    </message>
    <message>
        <source>Groups of the touch table</source>
        <translation>Gruppen des Tastenfelds</translation>
    </message>
    <message>
        <source>Cashiers</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>How far it has read</source>
        <translation>Wie weit gelesen ist</translation>
    </message>
    <message>
        <source>Esc - Stop</source>
        <translation>Esc - Stopp</translation>
    </message>
    <message>
        <source>Shows what was read until now</source>
        <translation>Zeigt, was bisher gelesen wurde</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>INVOICE No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>RECHN.-NR.:%1</translation>
    </message>
    <message>
        <source>   Price Quantit TaxRat     TAX   Amount</source>
        <extracomment>40 columns, all to the right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>   Preis   Menge MwSt.%   MwSt.   Betrag</translation>
    </message>
    <message>
        <source>ProductID  Product description          </source>
        <extracomment>40 columns: code and description, one blank between them</extracomment>
        <translation>Art.-Nr.   Artikelbezeichnung           </translation>
    </message>
    <message>
        <source>Product              Price Quant  Amount</source>
        <extracomment>40 columns: product 18, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Artikel              Preis Menge  Betrag</translation>
    </message>
    <message>
        <source>No Product description                  </source>
        <extracomment>40 columns: number and description, one blank between them</extracomment>
        <translation>Nr Artikelbezeichnung                   </translation>
    </message>
    <message>
        <source>No Product           Price Quant  Amount</source>
        <extracomment>40 columns: number 3, product 15, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Nr Artikel           Preis Menge  Betrag</translation>
    </message>
    <message>
        <source>No Product name                    Unit Quantit Price    Amount     Tax   Amount</source>
        <extracomment>80 columns: number and name 35, and to the right unit 4, quantity 8, price 8, amount 8, tax 8, amount 9</extracomment>
        <translation>Nr Artikelname                     Einh   Menge   Preis  Betrag   MwSt.   Betrag</translation>
    </message>
    <message>
        <source>                                                 outTax   outTax         withTax</source>
        <extracomment>80 columns, below the line before: price and first amount &quot;without tax&quot;, last amount &quot;with tax&quot;</extracomment>
        <translation>                                                  netto   netto           brutto</translation>
    </message>
    <message>
        <source>No Product description          </source>
        <extracomment>32 columns: number and description, one blank between them</extracomment>
        <translation>Nr Artikelbezeichnung           </translation>
    </message>
    <message>
        <source>     Price  Quantity      Amount</source>
        <extracomment>32 columns, all to the right: price 9, quantity 10, amount 13</extracomment>
        <translation>    Preis     Menge       Betrag</translation>
    </message>
    <message>
        <source>Product      Price Quant  Amount</source>
        <extracomment>32 columns: product 10, and to the right price 8, quantity 6, amount 8</extracomment>
        <translation>Artikel      Preis Menge  Betrag</translation>
    </message>
    <message>
        <source>Date of issue:%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Rechnungsdatum:%1</translation>
    </message>
    <message>
        <source>Delivery date :%1</source>
        <extracomment>at most 40 columns without %1, the date</extracomment>
        <translation>Lieferdatum   :%1</translation>
    </message>
    <message>
        <source>Custumer:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s name</extracomment>
        <translation>Kunde:%1</translation>
    </message>
    <message>
        <source>ID:%1</source>
        <extracomment>at most 12 columns without %1, the customer&apos;s identification number</extracomment>
        <translation>Steuernr.:%1</translation>
    </message>
    <message>
        <source>Date:%1</source>
        <extracomment>at most 12 columns without %1, date and time</extracomment>
        <translation>Datum:%1</translation>
    </message>
    <message>
        <source>Subtotal......%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>Netto.........%1: </translation>
    </message>
    <message>
        <source>Tax...........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>MwSt..........%1: </translation>
    </message>
    <message>
        <source>TOTAL.........%1: </source>
        <extracomment>16 columns without %1, the currency; dots fill them, so that the three lines are alike</extracomment>
        <translation>GESAMT........%1: </translation>
    </message>
    <message>
        <source>Taxes          </source>
        <extracomment>15 columns</extracomment>
        <translation>Steuern        </translation>
    </message>
    <message>
        <source>Rate     Amount</source>
        <extracomment>15 columns: rate 6, and to the right amount 9</extracomment>
        <translation>Satz     Betrag</translation>
    </message>
    <message>
        <source> TOTAL:%1</source>
        <extracomment>at most 7 columns without %1, the sum of the taxes</extracomment>
        <translation> SUMME:%1</translation>
    </message>
    <message>
        <source>Cashier:%1</source>
        <extracomment>at most 12 columns without %1, the cashier&apos;s name</extracomment>
        <translation>Kassierer:%1</translation>
    </message>
    <message>
        <source>Invoice No%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Rechn.-Nr.%1</translation>
    </message>
    <message>
        <source>Invoice No:%1</source>
        <extracomment>at most 11 columns without %1, the number</extracomment>
        <translation>Rechn.-Nr.:%1</translation>
    </message>
    <message>
        <source>Milk 1 l</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Milch 1 l</translation>
    </message>
    <message>
        <source>pcs</source>
        <extracomment>at most 3 columns, its unit: pieces</extracomment>
        <translation>Stk</translation>
    </message>
    <message>
        <source>Apples, red</source>
        <extracomment>at most 15 columns, a product as an example</extracomment>
        <translation>Äpfel, rot</translation>
    </message>
    <message>
        <source>Business hours of cash register</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Kassenzeiten</translation>
    </message>
    <message>
        <source>CR  DateFrom  DateTo  TimeFrom    TimeTo</source>
        <extracomment>40 columns: register 4, the days of login and log-off 8 each, their times 10 and 9</extracomment>
        <translation>Ka.  Von Tag Bis Tag   Von Uhr   Bis Uhr</translation>
    </message>
    <message>
        <source>to </source>
        <extracomment>at most 3 columns, between the numbers of a day&apos;s first and last invoice</extracomment>
        <translation>- </translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>INVOICES REPORT</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>RECHNUNGSBERICHT</translation>
    </message>
    <message>
        <source>Invoices report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Rechnungen nach Tagen im Zeitraum</translation>
    </message>
    <message>
        <source> DATE      InvoiceFrom InvoiceTo        </source>
        <extracomment>40 columns: day 11, first invoice 12, last invoice 17</extracomment>
        <translation> DATUM     Von Rechn.  Bis Rechn.       </translation>
    </message>
    <message>
        <source>Total wout Tax       TAX   Total withTAX</source>
        <extracomment>40 columns, to the right: amount without tax 14, tax 10, amount with tax 16</extracomment>
        <translation>  Gesamt netto     MwSt.   Gesamt brutto</translation>
    </message>
    <message>
        <source>TOTAL  :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>GESAMT :  </translation>
    </message>
    <message>
        <source>                         Product list - List of goods           date:</source>
        <extracomment>at most 80 columns</extracomment>
        <translation>                         Inventurliste                          Datum:</translation>
    </message>
    <message>
        <source>No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount</source>
        <extracomment>78 columns: number 5, name 30, code 14, unit 3, price 7, quantity 8, amount 11</extracomment>
        <translation>Nr   Artikelname                   Art.-Nr.     Einh  Preis   Menge     Betrag</translation>
    </message>
    <message>
        <source>TOTAL with Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>GESAMT brutto: %1</translation>
    </message>
    <message>
        <source>TAX: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>MwSt.: %1</translation>
    </message>
    <message>
        <source>TOTAL without Tax: %1</source>
        <extracomment>at most 60 columns without %1, the amount</extracomment>
        <translation>GESAMT netto: %1</translation>
    </message>
    <message>
        <source>Invoices </source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Rechnungen </translation>
    </message>
    <message>
        <source>InNo Cashie    Date       Time    Amount</source>
        <extracomment>40 columns: number 5, cashier 8, date 9, time 9, amount 9</extracomment>
        <translation>Nr.  Kassier.    Datum     Zeit   Betrag</translation>
    </message>
    <message>
        <source>TOTAL: </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>GESAMT: </translation>
    </message>
    <message>
        <source>Sale by Cashier</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Umsatz nach Kassierern</translation>
    </message>
    <message>
        <source>CId Cashier           Date         Total</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, date 9, total 11</extracomment>
        <translation>Nr. Kassierer           Datum     Gesamt</translation>
    </message>
    <message>
        <source>TOTAL : </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>GESAMT : </translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Umsatz nach Artikeln</translation>
    </message>
    <message>
        <source>Rb Product Name          Unit Qua Amount</source>
        <extracomment>40 columns: code 3, name 24, unit 3, quantity 3, amount 7</extracomment>
        <translation>Nr Artikelname           Einh Mge Betrag</translation>
    </message>
    <message>
        <source>Taxes report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Steuerbericht für den Zeitraum</translation>
    </message>
    <message>
        <source>Id and type TAX       Rate[%]    Date   </source>
        <extracomment>40 columns: ID and name of the tax 22, rate 7, date 11</extracomment>
        <translation>Kürzel und Steuerart  Satz[%]    Datum  </translation>
    </message>
    <message>
        <source>             Base          TAX     Total</source>
        <extracomment>40 columns, to the right: base 20, tax 10, total 10</extracomment>
        <translation>               Netto     MwSt.    Gesamt</translation>
    </message>
    <message>
        <source>TOTAL :  </source>
        <extracomment>at most 10 columns, amounts stand behind it</extracomment>
        <translation>GESAMT :  </translation>
    </message>
    <message>
        <source>Quantity of items in stock</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>No Product Name      Unit Quanti  Amount</source>
        <extracomment>40 columns: code 3, name 20, unit 3, quantity 6, amount 8</extracomment>
        <translation>Nr Artikelname       Einh  Menge  Betrag</translation>
    </message>
    <message>
        <source>Tax report for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Steuerbericht für den Zeitraum</translation>
    </message>
    <message>
        <source>Date           Amount      TAX     Total</source>
        <extracomment>40 columns: date 10, amount without tax 10, tax 10, total 10</extracomment>
        <translation>Datum          Netto     MwSt.    Gesamt</translation>
    </message>
    <message>
        <source>Tax report by invoices for period</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Steuer nach Rechnungen im Zeitraum</translation>
    </message>
    <message>
        <source>InvNo    Date          Time             </source>
        <extracomment>40 columns: number 8, date 12, time 20</extracomment>
        <translation>Rechn.   Datum         Zeit             </translation>
    </message>
    <message>
        <source>               Amount      TAX     Total</source>
        <extracomment>40 columns, to the right: amount without tax 20, tax 10, total 10</extracomment>
        <translation>               Netto     MwSt.    Gesamt</translation>
    </message>
    <message>
        <source>End Report No: %1</source>
        <extracomment>at most 34 columns without %1, the number</extracomment>
        <translation>Tagesabschluss Nr.: %1</translation>
    </message>
    <message>
        <source>Currently</source>
        <extracomment>at most 39 columns</extracomment>
        <translation>Aktueller Stand</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>KASSEN</translation>
    </message>
    <message>
        <source>CRNo   Date   TimeFrom            Amount</source>
        <extracomment>40 columns: register 6, date 9, the period&apos;s begin 9, its end 8, amount 7</extracomment>
        <translation>Kasse   Datum  Von Uhr            Betrag</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>KASSIERER</translation>
    </message>
    <message>
        <source>CId Cashier                       Amount</source>
        <extracomment>40 columns: cashier&apos;s ID 4, cashier 16, amount 20</extracomment>
        <translation>Nr. Kassierer                     Betrag</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>ARTIKEL</translation>
    </message>
    <message>
        <source>Id  ProductName          Unit Qua Amount</source>
        <extracomment>40 columns: code 4, name 23, unit 3, quantity 3, amount 7</extracomment>
        <translation>Nr  Artikelname          Einh Mge Betrag</translation>
    </message>
    <message>
        <source>End Reports</source>
        <extracomment>at most 40 columns</extracomment>
        <translation>Tagesabschlüsse</translation>
    </message>
    <message>
        <source>CR End  Date    TimeFr   TimeTo   Amount</source>
        <extracomment>40 columns: register 3, period 4, date 9, its begin 9, its end 8, amount 7</extracomment>
        <translation>Ka Abs   Datum  Von Uhr  Bis Uhr  Betrag</translation>
    </message>
    <message>
        <source>EndNo Date and time of end        Amount</source>
        <extracomment>40 columns: number 6, date 9, time 9, amount 16</extracomment>
        <translation>Nr.   Datum und Uhrzeit           Betrag</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>at most 20 columns without %1 and %2, the days</extracomment>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>Printed:%1 %2</source>
        <extracomment>at most 15 columns without %1 and %2, date and time</extracomment>
        <translation>Gedruckt:%1 %2</translation>
    </message>
</context>
<context>
    <name>PasswordEntry</name>
    <message>
        <source>Different passwords!</source>
        <translation>Die Passwörter sind verschieden.</translation>
    </message>
    <message>
        <source>Different passwords</source>
        <translation>Passwörter verschieden</translation>
    </message>
</context>
<context>
    <name>PasswordStep</name>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>New &amp;password:</source>
        <translation>Neues &amp;Passwort:</translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation>&amp;Wiederholung:</translation>
    </message>
    <message>
        <source>Show the pass&amp;words</source>
        <translation>Passwörter &amp;zeigen</translation>
    </message>
</context>
<context>
    <name>PeriodReport</name>
    <message>
        <source>Choose a day in the calendar, or two days and &quot;%1&quot;.</source>
        <translation>Bitte im Kalender einen Tag wählen, oder zwei Tage und „%1“.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>An diesen Tagen gibt es nichts.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
</context>
<context>
    <name>PortPanel</name>
    <message>
        <source>A device, tcp: with address and port, or file: with a name; empty is the usual device</source>
        <translation>Ein Gerät, tcp: mit Adresse und Port oder file: mit einem Namen; leer ist das übliche Gerät</translation>
    </message>
    <message>
        <source>Ask it for paper, cover and errors before it prints</source>
        <translation>Vor dem Druck nach Papier, Deckel und Fehlern fragen</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Testseite</translation>
    </message>
    <message>
        <source>Open the drawer</source>
        <translation>Lade öffnen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Abschneiden</translation>
    </message>
    <message>
        <source>How is it?</source>
        <translation>Zustand?</translation>
    </message>
</context>
<context>
    <name>PriceListChoice</name>
    <message>
        <source>All goods i&amp;n the shop</source>
        <translation>Alle A&amp;rtikel des Geschäfts</translation>
    </message>
    <message>
        <source>The goods chosen onl&amp;y</source>
        <translation>&amp;Nur die gewählten Artikel</translation>
    </message>
    <message>
        <source>The list follows the groups of the touch table; what has no button comes last.</source>
        <translation>Die Liste folgt den Gruppen des Tastenfelds; Artikel ohne Taste stehen am Ende.</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Page before</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>How it will be printed</source>
        <translation>So wird gedruckt</translation>
    </message>
</context>
<context>
    <name>PricesPage</name>
    <message>
        <source>Prices</source>
        <translation>Preise</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Was sich ändern würde</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>&amp;Was:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Prozent:</translation>
    </message>
    <message>
        <source>&amp;Ending:</source>
        <translation>&amp;Runden:</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>W&amp;rite</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Take &amp;back…</source>
        <translation>&amp;Zurücknehmen…</translation>
    </message>
    <message>
        <source>&amp;Tax:</source>
        <translation>S&amp;teuer:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>What is tried here goes to the printer as it is chosen here; the till takes it once it is saved, from the next receipt on.</source>
        <translation>Was hier probiert wird, geht so an den Drucker, wie es hier gewählt ist; die Kasse übernimmt es nach dem Speichern, ab dem nächsten Kassenbon.</translation>
    </message>
    <message>
        <source>&amp;Receipts go to:</source>
        <translation>&amp;Kassenbons auf:</translation>
    </message>
    <message>
        <source>Re&amp;ports go to:</source>
        <translation>&amp;Berichte auf:</translation>
    </message>
    <message>
        <source>&amp;Commands:</source>
        <translation>Be&amp;fehlssatz:</translation>
    </message>
    <message>
        <source>C&amp;ut the paper behind a receipt</source>
        <translation>Papier nach dem Bon &amp;abschneiden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Look for printers again</source>
        <translation>Drucker &amp;neu suchen</translation>
    </message>
    <message>
        <source>&amp;Test the page printer</source>
        <translation>Seitendrucker &amp;testen</translation>
    </message>
</context>
<context>
    <name>ProductEntry</name>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Art.-Nr./Strichcode</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Tax percent</source>
        <translation>Steuer in %</translation>
    </message>
    <message>
        <source>Thumbnail (icon)</source>
        <translation>Kleines Bild</translation>
    </message>
    <message>
        <source>Insert icon</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Izaberi ikonu za artikl</source>
        <translation>Bild für den Artikel wählen</translation>
    </message>
    <message>
        <source>Delete icon</source>
        <translation>Bild löschen</translation>
    </message>
    <message>
        <source>Obrisi ikonu za artikl</source>
        <translation>Bild des Artikels löschen</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Nettopreis</translation>
    </message>
    <message>
        <source>Second price with Tax</source>
        <translation>Zweiter Preis brutto</translation>
    </message>
    <message>
        <source>Second price without Tax</source>
        <translation>Zweiter Preis netto</translation>
    </message>
    <message>
        <source>Bitmaps</source>
        <translation>Bitmaps</translation>
    </message>
    <message>
        <source>GIF Images</source>
        <translation>GIF-Bilder</translation>
    </message>
    <message>
        <source>JPEG Images</source>
        <translation>JPEG-Bilder</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Price must be numeric.</source>
        <translation>Der Preis muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Product with this code-barcode already exists.Change ProductID!</source>
        <translation>Einen Artikel mit dieser Artikelnummer gibt es schon. Bitte die Artikelnummer ändern.</translation>
    </message>
    <message>
        <source>The file %1 holds no picture that can be shown.</source>
        <translation>Die Datei %1 enthält kein Bild, das sich anzeigen lässt.</translation>
    </message>
</context>
<context>
    <name>ReceiptWords</name>
    <message>
        <source>X report is done.</source>
        <translation>Der X-Bericht ist fertig.</translation>
    </message>
    <message>
        <source>Z report - daily report is done.</source>
        <translation>Der Z-Bericht (Tagesbericht) ist fertig.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Tax %</source>
        <translation>MwSt. %</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>MwSt.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has no paper.</source>
        <translation>Der Drucker an LPT%1 hat kein Papier.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 has its cover open.</source>
        <translation>Der Deckel des Druckers an LPT%1 ist offen.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 is offline or has an error.</source>
        <translation>Der Drucker an LPT%1 ist offline oder meldet einen Fehler.</translation>
    </message>
    <message>
        <source>The printer on LPT%1 does not answer.</source>
        <translation>Der Drucker an LPT%1 antwortet nicht.</translation>
    </message>
    <message>
        <source>Nothing is printed yet.

Yes: look at it again. No: print all the same.</source>
        <translation>Es wurde noch nichts gedruckt.

Ja: noch einmal prüfen. Nein: trotzdem drucken.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>%1 lässt sich nicht speichern: %2.</translation>
    </message>
    <message>
        <source>Cannot delete %1: %2.</source>
        <translation>%1 lässt sich nicht löschen: %2.</translation>
    </message>
</context>
<context>
    <name>RegisterStep</name>
    <message>
        <source>Scanner &amp;first</source>
        <translation>S&amp;canner zuerst</translation>
    </message>
    <message>
        <source>What is sold by the piece goes on the invoice as soon as it is scanned. Without it the cursor waits at the quantity.</source>
        <translation>Stückware steht auf der Rechnung, sobald sie gescannt ist. Sonst wartet der Cursor bei der Menge.</translation>
    </message>
    <message>
        <source>&amp;Customer line</source>
        <translation>&amp;Kundenzeile</translation>
    </message>
    <message>
        <source>The sales screen has two boxes for the customer, and the receipt shows what was written there.</source>
        <translation>Die Verkaufsmaske hat zwei Felder für den Kunden, und der Kassenbon zeigt, was dort steht.</translation>
    </message>
    <message>
        <source>Next &amp;invoice by itself</source>
        <translation>Nächste &amp;Rechnung von selbst</translation>
    </message>
    <message>
        <source>When an invoice is posted or given up, the next one opens at once.</source>
        <translation>Ist eine Rechnung gebucht oder abgebrochen, öffnet sich sofort die nächste.</translation>
    </message>
    <message>
        <source>&amp;Offer the End Report</source>
        <translation>&amp;Tagesabschluss anbieten</translation>
    </message>
    <message>
        <source>Whoever ends the till is asked whether to make the End Report.</source>
        <translation>Beim Beenden der Kasse wird gefragt, ob der Tagesabschluss gemacht werden soll.</translation>
    </message>
    <message>
        <source>&amp;Blank lines after a receipt:</source>
        <translation>&amp;Leerzeilen nach dem Kassenbon:</translation>
    </message>
    <message>
        <source>So that the paper tears below the last line</source>
        <translation>Damit das Papier unter der letzten Zeile abreißt</translation>
    </message>
    <message>
        <source>Fisc&amp;al file:</source>
        <translation>&amp;Fiskaldatei:</translation>
    </message>
    <message>
        <source>The till takes these settings when it starts.</source>
        <translation>Die Kasse übernimmt diese Einstellungen beim Start.</translation>
    </message>
</context>
<context>
    <name>ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation>Be&amp;richt</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Bis</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>An&amp;zeigen</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Der Bericht</translation>
    </message>
    <message>
        <source>Sa&amp;ve as table…</source>
        <translation>Als &amp;Tabelle speichern…</translation>
    </message>
</context>
<context>
    <name>RestoreForm</name>
    <message>
        <source>Restore a backup</source>
        <translation>Sicherung zurückspielen</translation>
    </message>
    <message>
        <source>The days of the shop and of the backup</source>
        <translation>Die Tage des Geschäfts und der Sicherung</translation>
    </message>
    <message>
        <source>Close the till, and all others of this shop, before you go on.</source>
        <translation>Vorher die Kasse und alle anderen Kassen dieses Geschäfts schließen.</translation>
    </message>
    <message>
        <source>&amp;Replace the shop by the backup</source>
        <translation>&amp;Geschäftsdaten durch Sicherung ersetzen</translation>
    </message>
    <message>
        <source>&amp;Leave it as it is</source>
        <translation>&amp;Alles so lassen</translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message>
        <source>End Report is done?</source>
        <translation>Der Tagesabschluss ist gemacht.</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <translation>Tagesabschluss %1 %2</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Den Tagesabschluss jetzt machen?</translation>
    </message>
    <message>
        <source>End Report? YES or NO</source>
        <translation>Tagesabschluss? JA oder NEIN</translation>
    </message>
    <message>
        <source>Close the program?</source>
        <translation>Programm beenden?</translation>
    </message>
    <message>
        <source>END OF WORK</source>
        <translation>ARBEITSENDE</translation>
    </message>
</context>
<context>
    <name>SearchBlock</name>
    <message>
        <source>F11-All</source>
        <translation>F11-Alle</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation>Gesuchter Text:</translation>
    </message>
    <message>
        <source>any &amp;where in the text</source>
        <translation>&amp;irgendwo im Text</translation>
    </message>
    <message>
        <source>from the &amp;beginning</source>
        <translation>am &amp;Anfang</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Nothing is found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Next step</source>
        <translation>&amp;Nächster Schritt</translation>
    </message>
    <message>
        <source>Each step can be left out, and done again at any time. To sell, close this window and start VELTON.</source>
        <translation>Jeder Schritt kann ausgelassen und jederzeit wiederholt werden. Zum Verkaufen dieses Fenster schließen und VELTON starten.</translation>
    </message>
</context>
<context>
    <name>SupportForm</name>
    <message>
        <source>Report for whoever helps</source>
        <translation>Bericht für den Betreuer</translation>
    </message>
    <message>
        <source>This is all that the file holds: no names, no sales, no passwords. Read it through, then save it and send it to whoever helps you.</source>
        <translation>Das ist alles, was die Datei enthält: keine Namen, keine Verkäufe, keine Passwörter. Bitte durchlesen, dann speichern und an den Betreuer schicken.</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Der Bericht</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>SupportWords</name>
    <message>
        <source>This is not a text in RTF.</source>
        <translation>Das ist kein RTF-Text.</translation>
    </message>
    <message>
        <source>The groups of the text are nested too deeply.</source>
        <translation>Die Gruppen des Textes sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The text closes more groups than it opens.</source>
        <translation>Der Text schließt mehr Gruppen, als er öffnet.</translation>
    </message>
    <message>
        <source>The end of the text is missing.</source>
        <translation>Das Ende des Textes fehlt.</translation>
    </message>
</context>
<context>
    <name>TableList</name>
    <message>
        <source>Double click for edit.</source>
        <translation>Doppelklick zum Ändern.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Neu</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Ändern</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Löschen</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
</context>
<context>
    <name>TaxEntry</name>
    <message>
        <source>TaxID:</source>
        <translation>Kürzel:</translation>
    </message>
    <message>
        <source>Type of tax:</source>
        <translation>Steuerart:</translation>
    </message>
    <message>
        <source>Tax rate:</source>
        <translation>Steuersatz:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Tax rate must be numeric.</source>
        <translation>Der Steuersatz muss eine Zahl sein.</translation>
    </message>
</context>
<context>
    <name>TaxesStep</name>
    <message>
        <source>Each product belongs to one tax. Products keep the rate that they were saved with.</source>
        <translation>Jeder Artikel gehört zu einer Steuer. Artikel behalten den Satz, mit dem sie gespeichert wurden.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Kürzel:</translation>
    </message>
    <message>
        <source>&amp;Rate in percent:</source>
        <translation>Satz in &amp;Prozent:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>Ne&amp;u</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
</context>
<context>
    <name>TextPreview</name>
    <message>
        <source>F5-Print</source>
        <translation>F5-Drucken</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Speichern</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Löschen</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Report (*.txt)</source>
        <translation>Bericht (*.txt)</translation>
    </message>
</context>
<context>
    <name>TillsPage</name>
    <message>
        <source>Several tills</source>
        <translation>Mehrere Kassen</translation>
    </message>
    <message>
        <source>Tills on several machines share one shop when it lies on a PostgreSQL server. Whoever looks after the server tells you what belongs into the boxes.</source>
        <translation>Kassen auf mehreren Rechnern teilen sich ein Geschäft, wenn es auf einem PostgreSQL-Server liegt. Was in die Felder gehört, weiß, wer den Server betreut.</translation>
    </message>
    <message>
        <source>&amp;Server</source>
        <translation>&amp;Server</translation>
    </message>
    <message>
        <source>such as 192.168.1.10</source>
        <translation>etwa 192.168.1.10</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;Datenbank</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>as kept before</source>
        <translation>wie bisher gemerkt</translation>
    </message>
    <message>
        <source>&amp;Name of the shop there</source>
        <translation>&amp;Name des Geschäfts dort</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>V&amp;erschlüsselung</translation>
    </message>
    <message>
        <source>&amp;Look at the server</source>
        <translation>Server &amp;ansehen</translation>
    </message>
    <message>
        <source>&amp;Move this shop there</source>
        <translation>Geschäft dorthin ver&amp;legen</translation>
    </message>
    <message>
        <source>&amp;Join the shop there</source>
        <translation>Dem Geschäft dort beitre&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Back into this folder…</source>
        <translation>&amp;Zurück in diesen Ordner…</translation>
    </message>
    <message>
        <source>The pictures on touch buttons lie in the folder of each register. Carry them from one to the other by a stick or a share.</source>
        <translation>Die Bilder der Tasten liegen im Ordner jeder Kasse. Von einer zur anderen kommen sie auf einem Stick oder über eine Freigabe.</translation>
    </message>
    <message>
        <source>&amp;Take pictures from…</source>
        <translation>Bilder &amp;holen von…</translation>
    </message>
    <message>
        <source>&amp;Copy pictures to…</source>
        <translation>Bilder &amp;kopieren nach…</translation>
    </message>
</context>
<context>
    <name>ToolWords</name>
    <message>
        <source>A copy goes into a file, not to the standard output.</source>
        <translation>Eine Kopie kommt in eine Datei, nicht in die Standardausgabe.</translation>
    </message>
    <message>
        <source>Both stores are sound.</source>
        <translation>Beide Datenbanken sind in Ordnung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no day; write 2026-11-30.</source>
        <translation>„%1“ ist kein Tag; ein Tag wird 2026-11-30 geschrieben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; divides nothing that could be read.</source>
        <translation>Mit „%1“ als Trennzeichen lässt sich nichts lesen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form COLUMN=FIELD.</source>
        <translation>„%1“ hat nicht die Form COLUMN=FIELD.</translation>
    </message>
    <message>
        <source>%1, separator %2, decimals behind %3; %4</source>
        <translation>%1, Trennzeichen %2, Dezimalzeichen %3; %4</translation>
    </message>
    <message>
        <source>an unknown sign</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>1 row is refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>1 Zeile ist abgelehnt, daher wird nichts übernommen; --skip-refused übernimmt die anderen.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows are refused, so nothing is written; --skip-refused writes the others.</source>
        <translation>
            <numerusform>%n Zeile ist abgelehnt, daher wird nichts übernommen; --skip-refused übernimmt die anderen.</numerusform>
            <numerusform>%n Zeilen sind abgelehnt, daher wird nichts übernommen; --skip-refused übernimmt die anderen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Übernommen: %1 neu, %2 geändert.</translation>
    </message>
    <message>
        <source>Sold meanwhile, and taken off: %1</source>
        <translation>Inzwischen verkauft und abgezogen: %1</translation>
    </message>
    <message>
        <source>%1 is taken back: %2 restored, %3 removed, %4 notes.</source>
        <translation>%1 ist zurückgenommen: %2 wiederhergestellt, %3 entfernt, %4 Hinweise.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form FIELD=VALUE.</source>
        <translation>„%1“ hat nicht die Form FIELD=VALUE.</translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation>Das Feld „%1“ kommt zweimal vor.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1 (velton-store --help tells more)</source>
        <translation>%1 (mehr mit velton-store --help)</translation>
    </message>
    <message>
        <source>Moved %1 rows of %2 tables and compared %3 days of sales.</source>
        <translation>%1 Zeilen aus %2 Tabellen übertragen und %3 Verkaufstage verglichen.</translation>
    </message>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>Die alte Datenbank bleibt als %1 erhalten.</translation>
    </message>
    <message>
        <source>Cannot write the output: %1</source>
        <translation>Die Ausgabe kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>No folder for backups is named here, nor by velton.ini in its section [backup].</source>
        <translation>Es ist kein Ordner für Sicherungen angegeben, weder hier noch in velton.ini im Abschnitt [backup].</translation>
    </message>
    <message>
        <source>Made %1: %2 invoices, %3 bytes.</source>
        <translation>%1 erstellt: %2 Rechnungen, %3 Bytes.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there.</source>
        <translation>Der Ordner für Sicherungen, %1, ist nicht da.</translation>
    </message>
    <message>
        <source>Restored %1 invoices of %2 days.</source>
        <translation>%1 Rechnungen von %2 Tagen zurückgespielt.</translation>
    </message>
    <message>
        <source>What was replaced is kept in %1.</source>
        <translation>Was ersetzt wurde, liegt in %1.</translation>
    </message>
    <message>
        <source>%1: %2 invoices, %3 become %4, %5</source>
        <translation>%1: aus %2 Rechnungen, %3 werden %4, %5</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>Die alte Datenbank konnte nicht beiseitegelegt werden; keine Kasse darf noch mit ihr arbeiten. %1</translation>
    </message>
</context>
<context>
    <name>TouchButton</name>
    <message>
        <source>Free</source>
        <extracomment>a button without a product</extracomment>
        <translation>Frei</translation>
    </message>
</context>
<context>
    <name>UnitsStep</name>
    <message>
        <source>The till counts one piece of pcs at each scan, and asks for the quantity of every other unit. A short name can be changed until a product has it.</source>
        <translation>Von pcs zählt die Kasse bei jedem Scannen ein Stück, bei jeder anderen Einheit fragt sie nach der Menge. Ein Kurzname kann geändert werden, solange kein Artikel ihn hat.</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>S&amp;hort name:</source>
        <translation>&amp;Kurzname:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>Ne&amp;u</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
</context>
<context>
    <name>UserEntry</name>
    <message>
        <source>UserID:</source>
        <translation>Benutzernr.:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Access Level:</source>
        <translation>Zugriffsstufe:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Confirm Pass:</source>
        <translation>Wiederholung:</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort zeigen</translation>
    </message>
    <message>
        <source>Workplace:</source>
        <translation>Funktion:</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>User with this UserID or a UserName already exists.Change Username!</source>
        <translation>Einen Benutzer mit dieser Nummer oder diesem Namen gibt es schon. Bitte den Namen ändern.</translation>
    </message>
</context>
<context>
    <name>UsersStep</name>
    <message>
        <source>Level 1 sells, level 2 also makes the End Report, level 3 does everything.</source>
        <translation>Stufe 1 verkauft, Stufe 2 macht auch den Tagesabschluss, Stufe 3 darf alles.</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>N&amp;umber:</source>
        <translation>Numme&amp;r:</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>&amp;Level:</source>
        <translation>S&amp;tufe:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <translation>Ne&amp;u</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
</context>
<context>
    <name>forms</name>
    <message>
        <source>The screen that shows %1 is closed.</source>
        <translation>Die Maske, die %1 zeigt, ist geschlossen.</translation>
    </message>
    <message>
        <source>%1 has no control %2.</source>
        <translation>%1 hat kein Bedienelement %2.</translation>
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
        <translation>In der Liste ist keine Zeile gewählt.</translation>
    </message>
</context>
<context>
    <name>forms::LongWork</name>
    <message>
        <source>This takes a while ...</source>
        <translation>Das dauert etwas ...</translation>
    </message>
    <message>
        <source>ESC-Leave</source>
        <translation>Esc-Abbrechen</translation>
    </message>
</context>
<context>
    <name>forms::ScanGuard</name>
    <message>
        <source>Not taken: %1</source>
        <translation>Nicht angenommen: %1</translation>
    </message>
</context>
<context>
    <name>forms::TextView</name>
    <message>
        <source>Cannot write a file: %1</source>
        <translation>Eine Datei lässt sich nicht schreiben: %1</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About program</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>The till of one small shop: invoices, stock, receipts and reports.</source>
        <translation>Die Kasse für ein kleines Geschäft: Rechnungen, Bestand, Kassenbons und Berichte.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
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
        <translation>Kassenzeiten</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Kasse</translation>
    </message>
    <message>
        <source>DateFrom</source>
        <translation>Von Tag</translation>
    </message>
    <message>
        <source>DateTo</source>
        <translation>Bis Tag</translation>
    </message>
    <message>
        <source>Time login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Time logoff</source>
        <translation>Abmeldung</translation>
    </message>
    <message>
        <source>List haven&apos;t any item.Change date.</source>
        <translation>Die Liste ist leer. Bitte andere Tage wählen.</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Löschen</translation>
    </message>
    <message>
        <source>Delete all list</source>
        <translation>Ganze Liste löschen</translation>
    </message>
    <message>
        <source>Log can&apos;t be deleted.</source>
        <translation>Das Protokoll kann nicht gelöscht werden.</translation>
    </message>
</context>
<context>
    <name>frmArtikli</name>
    <message>
        <source>Products</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Double click for edit.</source>
        <translation>Doppelklick zum Ändern.</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Neu</translation>
    </message>
    <message>
        <source>Add new product</source>
        <translation>Neuen Artikel anlegen</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Ändern</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Löschen</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Art.-Nr./Strichcode</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Price without Tax</source>
        <translation>Nettopreis</translation>
    </message>
    <message>
        <source>Second Price</source>
        <translation>2. Preis brutto</translation>
    </message>
    <message>
        <source>Second Price without Tax</source>
        <translation>2. Preis netto</translation>
    </message>
    <message>
        <source>ProductID - Barcode: %1
Product name: %2
Do you want to delete this item?</source>
        <translation>Art.-Nr./Strichcode: %1
Artikelname: %2
Diesen Artikel löschen?</translation>
    </message>
    <message>
        <source>Product deleted.</source>
        <translation>Der Artikel ist gelöscht.</translation>
    </message>
</context>
<context>
    <name>frmChangePassword</name>
    <message>
        <source>Izmjena lozinke</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Benutzer:</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort zeigen</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Password changed.</source>
        <translation>Das Passwort ist geändert.</translation>
    </message>
    <message>
        <source>User with this code or a name already exists.Change name!</source>
        <translation>Einen Benutzer mit dieser Nummer oder diesem Namen gibt es schon. Bitte den Namen ändern.</translation>
    </message>
</context>
<context>
    <name>frmChangeUser</name>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>LOGIN</source>
        <translation>ANMELDUNG</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nonexistent user.</source>
        <translation>Diesen Benutzer gibt es nicht.</translation>
    </message>
    <message>
        <source>Wrong password.</source>
        <translation>Falsches Passwort.</translation>
    </message>
</context>
<context>
    <name>frmDepozit</name>
    <message>
        <source>Deposit - payment </source>
        <translation>Einlage </translation>
    </message>
    <message>
        <source>Deposit payment - only for fiscal printers</source>
        <translation>Einlage - nur für Fiskaldrucker</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>nur für Fiskaldrucker</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Betrag buchen - F12</translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation>Der Betrag muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Paid deposit.</source>
        <translation>Die Einlage ist gebucht.</translation>
    </message>
</context>
<context>
    <name>frmDepozitIsplata</name>
    <message>
        <source>Deposit payout</source>
        <translation>Entnahme</translation>
    </message>
    <message>
        <source>Deposit payout - only for fiscal printers</source>
        <translation>Entnahme - nur für Fiskaldrucker</translation>
    </message>
    <message>
        <source>only for fiscal printers</source>
        <translation>nur für Fiskaldrucker</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>Register amount of deposit - F12</source>
        <translation>Betrag buchen - F12</translation>
    </message>
    <message>
        <source>Deposit must be numeric.</source>
        <translation>Der Betrag muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Deposit payout.</source>
        <translation>Die Entnahme ist gebucht.</translation>
    </message>
</context>
<context>
    <name>frmEditKupac</name>
    <message>
        <source>Edit custumer - supplier</source>
        <translation>Kunde - Lieferant ändern</translation>
    </message>
    <message>
        <source>Identification:</source>
        <translation>Steuernummer:</translation>
    </message>
</context>
<context>
    <name>frmEditProduct</name>
    <message>
        <source>Edit product</source>
        <translation>Artikel ändern</translation>
    </message>
    <message>
        <source>F4-Structure</source>
        <extracomment>shows the composition</extracomment>
        <translation>F4-Rezeptur</translation>
    </message>
    <message>
        <source>Select a thumbnail - icon</source>
        <translation>Kleines Bild wählen</translation>
    </message>
    <message>
        <source>All images</source>
        <translation>Alle Bilder</translation>
    </message>
    <message>
        <source>File with such name does not exist!</source>
        <translation>Eine Datei dieses Namens gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>frmEditTax</name>
    <message>
        <source>Edit Tax</source>
        <translation>Steuer ändern</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!</source>
        <translation>Eine Steuer mit diesem Kürzel oder Namen gibt es schon. Bitte Kürzel oder Namen ändern.</translation>
    </message>
</context>
<context>
    <name>frmEditUser</name>
    <message>
        <source>Edit User</source>
        <translation>Benutzer ändern</translation>
    </message>
</context>
<context>
    <name>frmFirma</name>
    <message>
        <source>My details - My firm</source>
        <translation>Meine Firma</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Ident</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Bankkonto</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Address can&apos;t be empty.</source>
        <translation>Die Adresse darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Data modified.</source>
        <translation>Die Daten sind geändert.</translation>
    </message>
</context>
<context>
    <name>frmFiskalniPeriodicniIzvjestaj</name>
    <message>
        <source>Periodic report for fiscal printer</source>
        <translation>Zeitraumbericht des Fiskaldruckers</translation>
    </message>
    <message>
        <source>Choose time period</source>
        <translation>Zeitraum wählen</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Periodic report is done.</source>
        <translation>Der Zeitraumbericht ist fertig.</translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>The help text is damaged: %1</source>
        <translation>Der Hilfetext ist beschädigt: %1</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The help text is not there.

It should be in this file:
%1</source>
        <translation>Der Hilfetext fehlt.

Er müsste in dieser Datei stehen:
%1</translation>
    </message>
    <message>
        <source>The help text cannot be read: %1

It is in this file:
%2</source>
        <translation>Der Hilfetext ist nicht lesbar: %1

Er steht in dieser Datei:
%2</translation>
    </message>
    <message>
        <source>The help text cannot be read: it is too long.

It is in this file:
%1</source>
        <translation>Der Hilfetext ist nicht lesbar: Er ist zu lang.

Er steht in dieser Datei:
%1</translation>
    </message>
</context>
<context>
    <name>frmIzvjestajKIF</name>
    <message>
        <source>Invoices for tax report</source>
        <translation>Rechnungsausgangsbuch</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>od %1 do %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>InvoiceFrom</source>
        <translation>Erste Rechn.</translation>
    </message>
    <message>
        <source>InvoiceTo</source>
        <translation>Letzte Rechn.</translation>
    </message>
    <message>
        <source>Total without Tax</source>
        <translation>Gesamt netto</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>MwSt.</translation>
    </message>
    <message>
        <source>Total with Tax</source>
        <translation>Gesamt brutto</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Netto:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>MwSt.:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
</context>
<context>
    <name>frmKlikTabla</name>
    <message>
        <source>CLICK TABLE edit</source>
        <translation>TASTENFELD ändern</translation>
    </message>
    <message>
        <source>input new card name</source>
        <extracomment>card: a tab of the touch table</extracomment>
        <translation>Name des Reiters</translation>
    </message>
    <message>
        <source>F5-Change name of category</source>
        <translation>F5-Reiter umbenennen</translation>
    </message>
    <message>
        <source>F4-Automatic</source>
        <translation>F4-Automatisch</translation>
    </message>
    <message>
        <source>F3-Refresh</source>
        <translation>F3-Aktualisieren</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>search in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Search product:</source>
        <translation>Artikel suchen:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>irgendwo im Text</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>am Anfang</translation>
    </message>
    <message>
        <source>Tab name can&apos;t be empty.</source>
        <translation>Der Name des Reiters darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Old settings will be lost,
Klick Table will be set automatic</source>
        <translation>Das bisherige Tastenfeld geht verloren,
und es wird automatisch neu belegt.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>Keine aktuelle Zeile.</translation>
    </message>
</context>
<context>
    <name>frmKupci</name>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Kunden - Lieferanten</translation>
    </message>
    <message>
        <source>&amp;Custumer - supplier</source>
        <translation>&amp;Kunde - Lieferant</translation>
    </message>
    <message>
        <source>Dvoklik izaberi kupca</source>
        <translation>Doppelklick wählt den Kunden</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Neu</translation>
    </message>
    <message>
        <source>F4-Edit</source>
        <translation>F4-Ändern</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Löschen</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Search in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Enter the text you&apos;re looking for:</source>
        <translation>Gesuchter Text:</translation>
    </message>
    <message>
        <source>everywhere in text</source>
        <translation>irgendwo im Text</translation>
    </message>
    <message>
        <source>from begining</source>
        <translation>am Anfang</translation>
    </message>
    <message>
        <source>CustumerID</source>
        <translation>Kundennr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Ident</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Rate rebate/margin</source>
        <translation>Rabatt/Spanne</translation>
    </message>
    <message>
        <source>Custumer: %1
Do you want to delete the customer?</source>
        <translation>Kunde: %1
Diesen Kunden löschen?</translation>
    </message>
    <message>
        <source>Custumer deleted.</source>
        <translation>Der Kunde ist gelöscht.</translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>VELTON - LOGIN</source>
        <translation>VELTON - ANMELDUNG</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Broj prijava:</source>
        <translation>Anmeldung Nr.:</translation>
    </message>
    <message>
        <source>Check date and time</source>
        <translation>Datum und Uhrzeit prüfen</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Zeit:</translation>
    </message>
    <message>
        <source>Provjerite datum i vrijeme ako nisu ispravni prekinite pokretanje programa i popravite datum i vrijeme</source>
        <translation>Datum und Uhrzeit prüfen. Sind sie falsch, den Start abbrechen und die Uhr richtig stellen.</translation>
    </message>
    <message>
        <source>60 secunds for login</source>
        <translation>60 Sekunden zum Anmelden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>choose user</source>
        <translation>Benutzer wählen</translation>
    </message>
    <message>
        <source>Program VELTON already run.</source>
        <translation>VELTON läuft bereits: Die Datenbank ist belegt.</translation>
    </message>
    <message>
        <source>VELTON already works.</source>
        <translation>VELTON läuft bereits.</translation>
    </message>
    <message>
        <source>Wrong password.Login not allowed.</source>
        <translation>Falsches Passwort. Anmeldung abgelehnt.</translation>
    </message>
</context>
<context>
    <name>frmMSGinvoice</name>
    <message>
        <source>CHANGE</source>
        <translation>RÜCKGELD</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>GESAMT</translation>
    </message>
    <message>
        <source>CASH</source>
        <translation>BAR</translation>
    </message>
    <message>
        <source>Thank you!!!</source>
        <translation>Vielen Dank!</translation>
    </message>
    <message>
        <source>OK </source>
        <translation>OK </translation>
    </message>
    <message>
        <source>The amount is less than the invoice amount.</source>
        <translation>Der Betrag ist kleiner als der Rechnungsbetrag.</translation>
    </message>
</context>
<context>
    <name>frmMreza</name>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Netzwerk - mehrere PCs an einer Datenbank</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1. Pfad zum Server</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>Vollständiger Pfad zum Server, auf dem die Datenbank liegt</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2. Kassennummer</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Nummer der Kasse eingeben (1-19)</translation>
    </message>
    <message>
        <source>For server a number greater than 20</source>
        <translation>Für den Server eine Nummer über 20</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Schließen</translation>
    </message>
</context>
<context>
    <name>frmNewKupac</name>
    <message>
        <source>New custumer - supplier</source>
        <translation>Neuer Kunde - Lieferant</translation>
    </message>
    <message>
        <source>Ident:</source>
        <translation>Steuernr.:</translation>
    </message>
</context>
<context>
    <name>frmNewProduct</name>
    <message>
        <source>New product</source>
        <translation>Neuer Artikel</translation>
    </message>
    <message>
        <source>ESC-Delete</source>
        <translation>Esc-Leeren</translation>
    </message>
    <message>
        <source>Choose image - icon</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Sve slike</source>
        <translation>Alle Bilder</translation>
    </message>
    <message>
        <source>File not exist!</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>The new product is added.</source>
        <translation>Der neue Artikel ist angelegt.</translation>
    </message>
</context>
<context>
    <name>frmNewTax</name>
    <message>
        <source>New Tax</source>
        <translation>Neue Steuer</translation>
    </message>
    <message>
        <source>Tax with same code or a name already exists.Change TaxID or type!!</source>
        <translation>Eine Steuer mit diesem Kürzel oder Namen gibt es schon. Bitte Kürzel oder Namen ändern.</translation>
    </message>
    <message>
        <source>A new type of tax is added.</source>
        <translation>Die neue Steuer ist angelegt.</translation>
    </message>
</context>
<context>
    <name>frmNewUser</name>
    <message>
        <source>New User</source>
        <translation>Neuer Benutzer</translation>
    </message>
    <message>
        <source>New user added.</source>
        <translation>Der neue Benutzer ist angelegt.</translation>
    </message>
</context>
<context>
    <name>frmORVAtouch</name>
    <message>
        <source>INVOICE No:</source>
        <translation>RECHN.-NR.:</translation>
    </message>
    <message>
        <source>ili broj:</source>
        <translation>oder Nummer:</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>ProductID-BarCode:</source>
        <translation>Art.-Nr./Strichcode:</translation>
    </message>
    <message>
        <source>Product name:</source>
        <translation>Artikelname:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Menge:</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>ADD on INVOICE</source>
        <translation>AUF RECHNUNG</translation>
    </message>
    <message>
        <source>Custumer:</source>
        <translation>Kunde:</translation>
    </message>
    <message>
        <source>Custumer name,address...</source>
        <translation>Kunde: Name, Adresse...</translation>
    </message>
    <message>
        <source>Custumer Ident</source>
        <translation>Steuernr. Kunde</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Klick löscht, Rechtsklick ändert die Menge</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>GESAMT</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>MwSt.</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Letzte Zeile</translation>
    </message>
    <message>
        <source>F5-New</source>
        <translation>F5-Neu</translation>
    </message>
    <message>
        <source>Esc-Delete</source>
        <translation>Esc-Abbruch</translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation>F2-Suchen</translation>
    </message>
    <message>
        <source>F6-Cashier</source>
        <translation>F6-Kassierer</translation>
    </message>
    <message>
        <source>F7-Sign off</source>
        <translation>F7-Abmelden</translation>
    </message>
    <message>
        <source>F8-Ribbon</source>
        <translation>F8-Journal</translation>
    </message>
    <message>
        <source>F9-Refresh</source>
        <translation>F9-Aktual.</translation>
    </message>
    <message>
        <source>REFRESH CLICK TABLE</source>
        <translation>TASTENFELD AKTUALISIEREN</translation>
    </message>
    <message>
        <source>F10-Invoices</source>
        <translation>F10-Rechnungen</translation>
    </message>
    <message>
        <source>F12-End</source>
        <translation>F12-Ende</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>Choose cashier.</source>
        <translation>Bitte den Kassierer wählen.</translation>
    </message>
    <message>
        <source>You did not enter a single item on the invoice.</source>
        <translation>Auf der Rechnung steht noch kein Artikel.</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Neue Rechnung</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Drucken</translation>
    </message>
    <message>
        <source>Do you want cancel the invoice?</source>
        <translation>Die Rechnung abbrechen?</translation>
    </message>
    <message>
        <source>Product has meanwhile been deleted or does not exist.</source>
        <translation>Den Artikel gibt es nicht, oder er wurde inzwischen gelöscht.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist.</source>
        <translation>Einen Artikel mit dieser Artikelnummer gibt es nicht.</translation>
    </message>
    <message>
        <source>Product with this ID-barcode does not exist</source>
        <translation>Einen Artikel mit dieser Artikelnummer gibt es nicht</translation>
    </message>
    <message>
        <source>Illogical quantity. </source>
        <translation>Diese Menge ist nicht möglich. </translation>
    </message>
    <message>
        <source>CHANGE QUANTITY</source>
        <translation>MENGE ÄNDERN</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation>Zeilen: %1   Stück: %2</translation>
    </message>
    <message>
        <source>Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.</source>
        <translation>Von Rechnung %1 sind %2 der %3 Zeilen gespeichert. Sie bleiben, ebenso die Abgänge vom Bestand.</translation>
    </message>
    <message>
        <source>Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.</source>
        <translation>Rechnung %1 ist vielleicht ganz, teilweise oder gar nicht gespeichert: bitte nachsehen, bevor sie noch einmal gebucht wird.</translation>
    </message>
    <message>
        <source>The stock of %1 can&apos;t be written yet. %2</source>
        <translation>Der Bestand von %1 kann noch nicht geschrieben werden. %2</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>1.Program</source>
        <translation>1. Programm</translation>
    </message>
    <message>
        <source>1.Printer for invoices</source>
        <translation>1. Drucker für Rechnungen</translation>
    </message>
    <message>
        <source>POS printer LPT1</source>
        <translation>Bondrucker LPT1</translation>
    </message>
    <message>
        <source>POS printer LPT2</source>
        <translation>Bondrucker LPT2</translation>
    </message>
    <message>
        <source>windows printer</source>
        <translation>Seitendrucker</translation>
    </message>
    <message>
        <source>Set win printer</source>
        <translation>Seitendrucker einstellen</translation>
    </message>
    <message>
        <source>2. POS Printer emulalation</source>
        <translation>2. Befehlssatz des Bondruckers</translation>
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
        <translation>Drucker schneidet ab</translation>
    </message>
    <message>
        <source>3.Printer for reports</source>
        <translation>3. Drucker für Berichte</translation>
    </message>
    <message>
        <source>POS printer na LPT1</source>
        <translation>Bondrucker an LPT1</translation>
    </message>
    <message>
        <source>POS printer na LPT2</source>
        <translation>Bondrucker an LPT2</translation>
    </message>
    <message>
        <source>POS Monitor</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>standard monitor</source>
        <translation>normaler Bildschirm</translation>
    </message>
    <message>
        <source>touch monitor</source>
        <translation>Touchscreen</translation>
    </message>
    <message>
        <source>4.Currency</source>
        <translation>4. Währung</translation>
    </message>
    <message>
        <source>currency sign max 3 char</source>
        <translation>Währungszeichen, höchstens 3 Zeichen</translation>
    </message>
    <message>
        <source>5.Show amount in cash register on main form</source>
        <translation>5. Kassenstand im Hauptfenster zeigen</translation>
    </message>
    <message>
        <source>show amount in cash register on main form</source>
        <translation>Kassenstand im Hauptfenster zeigen</translation>
    </message>
    <message>
        <source>6.Ask password when change cashier</source>
        <translation>6. Passwort beim Kassiererwechsel</translation>
    </message>
    <message>
        <source>ask for password </source>
        <translation>nach dem Passwort fragen </translation>
    </message>
    <message>
        <source>7.Change</source>
        <extracomment>the money that the customer gets back</extracomment>
        <translation>7. Rückgeld</translation>
    </message>
    <message>
        <source>request to input and display paid cash and change</source>
        <translation>nach dem gegebenen Betrag fragen und Rückgeld zeigen</translation>
    </message>
    <message>
        <source>8.Show all products in Search</source>
        <translation>8. In der Suche alle Artikel zeigen</translation>
    </message>
    <message>
        <source>show all products in search when open form</source>
        <translation>beim Öffnen der Suche alle Artikel zeigen</translation>
    </message>
    <message>
        <source>9.Make printed invoices ribbon on HDD</source>
        <translation>9. Journal der Kassenbons auf der Platte</translation>
    </message>
    <message>
        <source>printed invoices ribbon on HDD</source>
        <translation>Journal der Kassenbons auf der Platte</translation>
    </message>
    <message>
        <source>filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>10.Print only on fiscal printer</source>
        <translation>10. Nur auf dem Fiskaldrucker drucken</translation>
    </message>
    <message>
        <source>print only on fiscal printer</source>
        <translation>nur auf dem Fiskaldrucker drucken</translation>
    </message>
    <message>
        <source>filename fiscal printer</source>
        <translation>Datei des Fiskaldruckers</translation>
    </message>
    <message>
        <source>New invoice automatic</source>
        <translation>Neue Rechnung von selbst</translation>
    </message>
    <message>
        <source>new invoice automatic</source>
        <translation>neue Rechnung von selbst</translation>
    </message>
    <message>
        <source>default option 1-Yes</source>
        <translation>üblich: 1 - Ja</translation>
    </message>
    <message>
        <source>Show window with display for custumer</source>
        <translation>Fenster der Kundenanzeige zeigen</translation>
    </message>
    <message>
        <source>show window with display for custumer</source>
        <translation>Fenster der Kundenanzeige zeigen</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>unbenutzt</translation>
    </message>
    <message>
        <source>2.Invoice</source>
        <translation>2. Rechnung</translation>
    </message>
    <message>
        <source>1.Invoice heading</source>
        <translation>1. Kopfzeilen der Rechnung</translation>
    </message>
    <message>
        <source>My Firm Name</source>
        <translation>Name meiner Firma</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Firm Ident</source>
        <translation>Steuernr. der Firma</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Store Place</source>
        <translation>Verkaufsort</translation>
    </message>
    <message>
        <source>2.Change invoice No.</source>
        <translation>2. Rechnungsnummer ändern</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>enter a new invoice no and click go</source>
        <translation>neue Nummer eingeben und OK drücken</translation>
    </message>
    <message>
        <source>5.Cashier</source>
        <translation>5. Kassierer</translation>
    </message>
    <message>
        <source>print cashier on invoice</source>
        <translation>Kassierer auf die Rechnung drucken</translation>
    </message>
    <message>
        <source>6.Footer text on invoice</source>
        <translation>6. Text am Fuß der Rechnung</translation>
    </message>
    <message>
        <source>3.Invoice details</source>
        <translation>3. Rechnungszeilen</translation>
    </message>
    <message>
        <source>1.Printing items on the invoice</source>
        <translation>1. Druck der Artikel auf der Rechnung</translation>
    </message>
    <message>
        <source>ProductID and ProductName                     Price Quantit  TRate     Tax  Amount</source>
        <extracomment>82 columns, all but the product aligned right: product 43, price 8, quantity 8, tax rate 7, tax 8, amount 8</extracomment>
        <translation>Artikelnummer und Artikelname                 Preis   Menge MwSt.%   MwSt.  Betrag</translation>
    </message>
    <message>
        <source>40 char</source>
        <translation>40 Spalten</translation>
    </message>
    <message>
        <source>Product Name         Price Quanti Amount</source>
        <extracomment>40 columns, all but the product aligned right: product 18, price 8, quantity 7, amount 7</extracomment>
        <translation>Artikelname          Preis  Menge Betrag</translation>
    </message>
    <message>
        <source>   Price Quantit  TRate     Tax   Amount</source>
        <extracomment>40 columns, all aligned right: price 8, quantity 8, tax rate 7, tax 8, amount 9</extracomment>
        <translation>   Preis   Menge MwSt.%   MwSt.   Betrag</translation>
    </message>
    <message>
        <source>No Product Name      Price Quant  Amount</source>
        <extracomment>40 columns, figures aligned right: number 3, product 15, price 8, quantity 6, amount 8</extracomment>
        <translation>Nr Artikelname       Preis Menge  Betrag</translation>
    </message>
    <message>
        <source>A4 print</source>
        <translation>A4-Seite</translation>
    </message>
    <message>
        <source>80 char</source>
        <translation>80 Spalten</translation>
    </message>
    <message>
        <source>   Price Quantity      Amount</source>
        <extracomment>29 columns, all aligned right: price 8, quantity 9, amount 12</extracomment>
        <translation>   Preis    Menge      Betrag</translation>
    </message>
    <message>
        <source>32 char</source>
        <translation>32 Spalten</translation>
    </message>
    <message>
        <source>ProductName Price Quant Amount</source>
        <extracomment>30 columns, all but the product aligned right: product 11, price 6, quantity 6, amount 7</extracomment>
        <translation>Artikel     Preis Menge Betrag</translation>
    </message>
    <message>
        <source>2.Recapitulation taxes </source>
        <translation>2. Steueraufstellung </translation>
    </message>
    <message>
        <source>recapitulation by Tax Rates           Rate    Amount</source>
        <extracomment>52 columns, figures aligned right: what it is 33, rate 9, amount 10</extracomment>
        <translation>Steueraufstellung nach Sätzen         Satz    Betrag</translation>
    </message>
    <message>
        <source>without recapitulation print only Tax Total</source>
        <translation>keine Steueraufstellung, nur die Steuersumme</translation>
    </message>
    <message>
        <source>4.Network</source>
        <translation>4. Netzwerk</translation>
    </message>
    <message>
        <source>VELTON - Set network - more PC on same database</source>
        <translation>VELTON - Netzwerk - mehrere PCs an einer Datenbank</translation>
    </message>
    <message>
        <source>1.Server path</source>
        <translation>1. Pfad zum Server</translation>
    </message>
    <message>
        <source>enter the full path to the server where the database is located</source>
        <translation>Vollständiger Pfad zum Server, auf dem die Datenbank liegt</translation>
    </message>
    <message>
        <source>2.Cash register No</source>
        <translation>2. Kassennummer</translation>
    </message>
    <message>
        <source>Enter the number of the cash register (1-19)</source>
        <translation>Nummer der Kasse eingeben (1-19)</translation>
    </message>
    <message>
        <source>za samo kontrolne funkcije broj veći od 20</source>
        <translation>nur zur Kontrolle: eine Nummer über 20</translation>
    </message>
    <message>
        <source>F5-Sacuvaj</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>Sacuvaj promjene</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>F1-Upute</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>Upute za rad</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>F12-Zatvori</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>F-12 Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation>Die Rechnungsnummer muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Invoice No changed.</source>
        <translation>Die Rechnungsnummer ist geändert.</translation>
    </message>
    <message>
        <source>The main window does not show the sales screen.</source>
        <translation>Das Hauptfenster zeigt die Verkaufsmaske nicht.</translation>
    </message>
    <message>
        <source>Changes are saved.</source>
        <translation>Die Änderungen sind gespeichert.</translation>
    </message>
</context>
<context>
    <name>frmPopisRobe</name>
    <message>
        <source>Product list - List of goods</source>
        <translation>Inventurliste</translation>
    </message>
    <message>
        <source>Sifra-BarKod</source>
        <translation>Art.-Nr./Strichcode</translation>
    </message>
    <message>
        <source>Naziv</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>JM</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Kolicina</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Cijena</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Vrijednost</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>TOTAL with Tax:</source>
        <translation>GESAMT brutto:</translation>
    </message>
    <message>
        <source>TOTAL without Tax:</source>
        <translation>GESAMT netto:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>MwSt.:</translation>
    </message>
    <message>
        <source>Sacuvaj kao</source>
        <translation>Speichern unter</translation>
    </message>
</context>
<context>
    <name>frmRacPRG</name>
    <message>
        <source>Invoices - print, view, save</source>
        <translation>Rechnungen - drucken, ansehen, speichern</translation>
    </message>
    <message>
        <source>INVOICE No:</source>
        <translation>RECHN.-NR.:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>GESAMT</translation>
    </message>
    <message>
        <source>Tax :</source>
        <translation>MwSt. :</translation>
    </message>
    <message>
        <source>F5-Print</source>
        <translation>F5-Drucken</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Speichern</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Speichern auf Stick, Platte...</translation>
    </message>
    <message>
        <source>F7-Print all</source>
        <translation>F7-Alle drucken</translation>
    </message>
    <message>
        <source>F6-Delete</source>
        <translation>F6-Löschen</translation>
    </message>
    <message>
        <source>Brise arhivirano radno vrijeme</source>
        <translation>Löscht die archivierten Kassenzeiten</translation>
    </message>
    <message>
        <source>Prethodni</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Sljedeci</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Zadnji</source>
        <translation>Letzte</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>Zatvori prozor</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Review Invoice</source>
        <translation>Rechnung ansehen</translation>
    </message>
    <message>
        <source>Currently there is no single invoice</source>
        <translation>Es gibt noch keine Rechnung</translation>
    </message>
</context>
<context>
    <name>frmRacunPregled</name>
    <message>
        <source>Print preview</source>
        <translation>Druckvorschau</translation>
    </message>
</context>
<context>
    <name>frmRacuni</name>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Rechn.-Nr.</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>InvoiceID</source>
        <translation>Rechnungs-ID</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
    <message>
        <source>F4-Print list invoices</source>
        <translation>F4-Rechnungsliste drucken</translation>
    </message>
    <message>
        <source>F6 -Print selected invoice</source>
        <translation>F6-Gewählte Rechnung drucken</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>frmReklamiranjeRacuna</name>
    <message>
        <source>Withdrawal invoice - only fiscal printer</source>
        <translation>Rechnungsstorno - nur Fiskaldrucker</translation>
    </message>
    <message>
        <source>NOTE: There must be registered sales with enough money in the fiscal device to be able to execute this command</source>
        <translation>HINWEIS: Im Fiskalgerät müssen Verkäufe mit ausreichendem Betrag gebucht sein, damit dieser Befehl ausgeführt werden kann</translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation>Rechn.-Nr.:</translation>
    </message>
    <message>
        <source>Withdraw invoice - F12</source>
        <translation>Rechnung stornieren - F12</translation>
    </message>
    <message>
        <source>Invoice No must be numeric.</source>
        <translation>Die Rechnungsnummer muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Invoice withdraw.</source>
        <translation>Die Rechnung ist storniert.</translation>
    </message>
</context>
<context>
    <name>frmSales</name>
    <message>
        <source>Sale by Cashier</source>
        <translation>Umsatz nach Kassierern</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>CashierID</source>
        <translation>Kassierernr.</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation>GESAMT :</translation>
    </message>
</context>
<context>
    <name>frmSalesProducts</name>
    <message>
        <source>Sale by Products</source>
        <translation>Umsatz nach Artikeln</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>TOTAL :</source>
        <translation>GESAMT :</translation>
    </message>
</context>
<context>
    <name>frmSalesTax</name>
    <message>
        <source>TAX Report</source>
        <translation>Steuerbericht</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>tax rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Tax type</source>
        <translation>Steuerart</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Osnovica</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Iznos poreza</source>
        <translation>Steuerbetrag</translation>
    </message>
    <message>
        <source>Iznos sa porezom-PDVom</source>
        <translation>Brutto</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Netto:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>MwSt.:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
</context>
<context>
    <name>frmSastav</name>
    <message>
        <source>Product composition</source>
        <translation>Rezeptur des Artikels</translation>
    </message>
    <message>
        <source>Product composition for:</source>
        <translation>Rezeptur für:</translation>
    </message>
    <message>
        <source>ProductID - BarCode</source>
        <translation>Art.-Nr./Strichcode</translation>
    </message>
    <message>
        <source>Product Name:</source>
        <translation>Artikelname:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Menge:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>AMOUNT :</source>
        <translation>BETRAG :</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>F2-Search</source>
        <translation>F2-Suchen</translation>
    </message>
    <message>
        <source>[F2] - Choose product</source>
        <translation>[F2] - Artikel wählen</translation>
    </message>
    <message>
        <source>Click delete,right click change quantity</source>
        <translation>Klick löscht, Rechtsklick ändert die Menge</translation>
    </message>
    <message>
        <source>F4-Save</source>
        <translation>F4-Speichern</translation>
    </message>
    <message>
        <source>F5-Delete</source>
        <translation>F5-Leeren</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>A composition is opened from the screen of its product.</source>
        <translation>Eine Rezeptur wird aus der Maske ihres Artikels geöffnet.</translation>
    </message>
    <message>
        <source>Product with this code-barcode does not exist.</source>
        <translation>Einen Artikel mit dieser Artikelnummer gibt es nicht.</translation>
    </message>
    <message>
        <source>You did not enter a single item in the composition.</source>
        <translation>In der Rezeptur steht noch kein Bestandteil.</translation>
    </message>
</context>
<context>
    <name>frmStanjeArtikala</name>
    <message>
        <source>Quantity of items in stock</source>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>ProductName</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
    <message>
        <source>List does not contain any item.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Aktualisieren</translation>
    </message>
</context>
<context>
    <name>frmTax</name>
    <message>
        <source>Tax protected from deletion, but you can modify the data.</source>
        <translation>Die Steuer kann nicht gelöscht, aber geändert werden.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>TaxID</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Tax rate [%]</source>
        <translation>Steuersatz [%]</translation>
    </message>
    <message>
        <source>Tax name</source>
        <translation>Steuername</translation>
    </message>
    <message>
        <source>Tax deleted.</source>
        <translation>Die Steuer ist gelöscht.</translation>
    </message>
    <message>
        <source>TaxID: %1
Tax name: %2
Are you sure you want to delete this type of tax?</source>
        <translation>Kürzel: %1
Steuername: %2
Diese Steuer löschen?</translation>
    </message>
</context>
<context>
    <name>frmTaxbyInvoice</name>
    <message>
        <source>TAX Report by Invoices</source>
        <translation>Steuerbericht nach Rechnungen</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>InvoiceNo</source>
        <translation>Rechn.-Nr.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Amount without Tax</source>
        <translation>Betrag netto</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>MwSt.</translation>
    </message>
    <message>
        <source>Amount with Tax</source>
        <translation>Betrag brutto</translation>
    </message>
    <message>
        <source>Base:</source>
        <translation>Netto:</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>MwSt.:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
</context>
<context>
    <name>frmTrakaRacuna</name>
    <message>
        <source>Printed Invoices</source>
        <translation>Gedruckte Kassenbons</translation>
    </message>
    <message>
        <source>Snimi na flopi,USBdisk,disk...</source>
        <translation>Speichern auf Stick, Platte...</translation>
    </message>
</context>
<context>
    <name>frmTrenutnoStanjeKasa</name>
    <message>
        <source>Currently - End Report</source>
        <translation>Aktueller Stand - Tagesabschluss</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Aktueller Stand</translation>
    </message>
    <message>
        <source>Lists shows currently balance from last done End Report</source>
        <translation>Die Listen zeigen den Stand seit dem letzten Tagesabschluss</translation>
    </message>
    <message>
        <source>Date and time last End Report</source>
        <translation>Datum und Uhrzeit des letzten Tagesabschlusses</translation>
    </message>
    <message>
        <source>Register state</source>
        <translation>Kassenstand</translation>
    </message>
    <message>
        <source>1 - CASH REGISTERS</source>
        <translation>1 - KASSEN</translation>
    </message>
    <message>
        <source>2 - CASHIERS</source>
        <translation>2 - KASSIERER</translation>
    </message>
    <message>
        <source>3 - INVOICES</source>
        <translation>3 - RECHNUNGEN</translation>
    </message>
    <message>
        <source>4 - PRODUCTS</source>
        <translation>4 - ARTIKEL</translation>
    </message>
    <message>
        <source>CASH REGISTERS</source>
        <translation>KASSEN</translation>
    </message>
    <message>
        <source>TAX:</source>
        <translation>MwSt.:</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CRs:</source>
        <translation>GESAMT ALLE KASSEN:</translation>
    </message>
    <message>
        <source>END REPORT do</source>
        <translation>TAGESABSCHLUSS</translation>
    </message>
    <message>
        <source>F6-Refresh</source>
        <translation>F6-Aktualisieren</translation>
    </message>
    <message>
        <source>F5-Print all</source>
        <translation>F5-Alles drucken</translation>
    </message>
    <message>
        <source>F4-Print </source>
        <translation>F4-Drucken </translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>CASH REGISTER No.</source>
        <translation>KASSE NR.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>BETRAG</translation>
    </message>
    <message>
        <source>CASHIERS</source>
        <translation>KASSIERER</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL CASHIERS:</source>
        <translation>GESAMT ALLE KASSIERER:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>INVOICES</source>
        <translation>RECHNUNGEN</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL INVOICES:</source>
        <translation>GESAMT ALLE RECHNUNGEN:</translation>
    </message>
    <message>
        <source>CR No.</source>
        <translation>Kasse Nr.</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>Rechn.-Nr.</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>MwSt.</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>ARTIKEL</translation>
    </message>
    <message>
        <source>TOTAL FOR ALL PRODUCTS:</source>
        <translation>GESAMT ALLE ARTIKEL:</translation>
    </message>
    <message>
        <source>ProductID</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>End Report</source>
        <translation>Tagesabschluss</translation>
    </message>
    <message>
        <source>End Report No:</source>
        <translation>Tagesabschluss Nr.:</translation>
    </message>
    <message>
        <source>Lists show balance for selected End Report.</source>
        <translation>Die Listen zeigen den gewählten Tagesabschluss.</translation>
    </message>
    <message>
        <source>Do you want to make End Report?</source>
        <translation>Den Tagesabschluss jetzt machen?</translation>
    </message>
    <message>
        <source>End Report is done.</source>
        <translation>Der Tagesabschluss ist gemacht.</translation>
    </message>
    <message>
        <source>End Report %1 %2</source>
        <extracomment>%1 and %2 are date and time</extracomment>
        <translation>Tagesabschluss %1 %2</translation>
    </message>
</context>
<context>
    <name>frmUsers</name>
    <message>
        <source>User - Cashier</source>
        <translation>Benutzer - Kassierer</translation>
    </message>
    <message>
        <source>UserID</source>
        <translation>Benutzernr.</translation>
    </message>
    <message>
        <source>UserName</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Access Level</source>
        <translation>Zugriffsstufe</translation>
    </message>
    <message>
        <source>Cashier protected from deletion, but you can modify the data.</source>
        <translation>Der Kassierer kann nicht gelöscht, aber geändert werden.</translation>
    </message>
    <message>
        <source>User deleted.</source>
        <translation>Der Benutzer ist gelöscht.</translation>
    </message>
    <message>
        <source>User Cashier: %1
Password: %2
Are you sure you want to delete this user?</source>
        <translation>Benutzer: %1
Passwort: %2
Diesen Benutzer löschen?</translation>
    </message>
</context>
<context>
    <name>frmViewer</name>
    <message>
        <source>Search Product</source>
        <translation>Artikelsuche</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
    <message>
        <source>ProductID-BarCode</source>
        <translation>Art.-Nr./Strichcode</translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Type what you look for, or press F11 for all.</source>
        <translation>Suchtext eingeben, oder F11 für alle.</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
</context>
<context>
    <name>frmWinPrinter</name>
    <message>
        <source>Windows printer</source>
        <translation>Seitendrucker</translation>
    </message>
    <message>
        <source>Font list</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>9 - default</source>
        <translation>9 - üblich</translation>
    </message>
    <message>
        <source>Dimensions of paper</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Podesi sirinu i duzinu umetnutog papira</source>
        <translation>Breite und Länge des eingelegten Papiers einstellen</translation>
    </message>
    <message>
        <source>currently selected font</source>
        <translation>gewählte Schrift</translation>
    </message>
    <message>
        <source>F5-Save</source>
        <translation>F5-Speichern</translation>
    </message>
    <message>
        <source>F1-Help</source>
        <translation>F1-Hilfe</translation>
    </message>
    <message>
        <source>F12-Close</source>
        <translation>F12-Schließen</translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled</name>
    <message>
        <source>End Reports review</source>
        <translation>Einzelne Zeiträume</translation>
    </message>
    <message>
        <source>end report</source>
        <translation>Tagesabschluss</translation>
    </message>
    <message>
        <source>cash register</source>
        <translation>Kasse</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>CR</source>
        <translation>Kasse</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>Nr. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Time to</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
</context>
<context>
    <name>frmZakljucakPregled1</name>
    <message>
        <source>End Reports review</source>
        <translation>Frühere Tagesabschlüsse</translation>
    </message>
    <message>
        <source>EndNo </source>
        <translation>Nr. </translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>GESAMT:</translation>
    </message>
    <message>
        <source>F5-Print review</source>
        <translation>F5-Druckvorschau</translation>
    </message>
</context>
<context>
    <name>manager::BackupPage</name>
    <message>
        <source>Made</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Its takings</source>
        <translation>Tagesumsatz</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>No folder has been chosen yet, and the till makes no backups. Choose one on a second disk, on a stick or in the network.</source>
        <translation>Es ist noch kein Ordner gewählt, und die Kasse sichert nicht. Bitte einen auf einer zweiten Platte, einem Stick oder im Netzwerk wählen.</translation>
    </message>
    <message>
        <source>Backups go to %1, on the same disk as the shop: if it breaks, both are lost.</source>
        <translation>Gesichert wird nach %1, auf dieselbe Platte, auf der die Geschäftsdaten liegen: Geht sie kaputt, ist beides verloren.</translation>
    </message>
    <message>
        <source>Backups go to %1.</source>
        <translation>Gesichert wird nach %1.</translation>
    </message>
    <message>
        <source>%1.
The try of %2 failed: %3</source>
        <translation>%1.
Der Versuch vom %2 ist misslungen: %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Geprüft</translation>
    </message>
    <message>
        <source>Checked, of %1</source>
        <translation>Geprüft, von %1</translation>
    </message>
    <message>
        <source>The folder for backups</source>
        <translation>Der Ordner für Sicherungen</translation>
    </message>
    <message>
        <source>This backup can&apos;t be restored: %1</source>
        <translation>Diese Sicherung lässt sich nicht zurückspielen: %1</translation>
    </message>
    <message>
        <source>Nothing was restored. %1</source>
        <translation>Es wurde nichts zurückgespielt. %1</translation>
    </message>
    <message>
        <source>The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.</source>
        <translation>Das Geschäft ist wieder auf dem Stand der Sicherung vom %1, mit %2 Rechnungen. Was ersetzt wurde, liegt in %3.</translation>
    </message>
    <message>
        <source>There are no backups yet.</source>
        <translation>Es gibt noch keine Sicherungen.</translation>
    </message>
    <message>
        <source>The register is being backed up.</source>
        <translation>Die Kasse wird gesichert.</translation>
    </message>
    <message>
        <source>The shop and the backup are being compared.</source>
        <translation>Das Geschäft und die Sicherung werden verglichen.</translation>
    </message>
    <message>
        <source>The backup is being brought back.</source>
        <translation>Die Sicherung wird zurückgespielt.</translation>
    </message>
    <message>
        <source>The folder of the backups is being read.</source>
        <translation>Der Ordner der Sicherungen wird gelesen.</translation>
    </message>
    <message>
        <source>The folder was not read to its end.</source>
        <translation>Der Ordner wurde nicht zu Ende gelesen.</translation>
    </message>
</context>
<context>
    <name>manager::BackupWords</name>
    <message>
        <source>No backup yet</source>
        <translation>Noch keine Sicherung</translation>
    </message>
    <message>
        <source>Last good backup: %1, %2, in %3</source>
        <translation>Letzte gute Sicherung: %1, %2, in %3</translation>
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
        <translation>%1: %2, davor %3</translation>
    </message>
</context>
<context>
    <name>manager::DrawerPage</name>
    <message>
        <source>Count</source>
        <translation>Zählung</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Sollbestand</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Gezählt</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Nothing was counted yet. Count the drawer on the page before and keep the count.</source>
        <translation>Es wurde noch nichts gezählt. Die Kassenlade auf der Seite davor zählen und die Zählung speichern.</translation>
    </message>
    <message>
        <source>Counts can&apos;t be kept or shown. %1</source>
        <translation>Zählungen können nicht gespeichert oder gezeigt werden. %1</translation>
    </message>
    <message>
        <source>Which notes and coins %1 has is not known yet. Press &quot;Notes and coins&quot; and type them.</source>
        <translation>Welche Scheine und Münzen es in %1 gibt, ist noch nicht bekannt. Bitte unter „Scheine und Münzen“ eingeben.</translation>
    </message>
    <message>
        <source>Pieces of %1</source>
        <translation>Stück zu %1</translation>
    </message>
    <message>
        <source>Too much in the drawer</source>
        <translation>Zu viel in der Lade</translation>
    </message>
    <message>
        <source>Missing in the drawer</source>
        <translation>Fehlt in der Lade</translation>
    </message>
    <message>
        <source>This is no number of pieces and no amount.</source>
        <translation>Das ist weder eine Stückzahl noch ein Betrag.</translation>
    </message>
    <message>
        <source>Something was sold, or an End Report was made, since this page came up. The count is not kept: look at the difference again.</source>
        <translation>Seit diese Seite geöffnet ist, wurde etwas verkauft oder ein Tagesabschluss gemacht. Die Zählung ist nicht gespeichert: bitte die Differenz noch einmal ansehen.</translation>
    </message>
    <message>
        <source>Count %1 is kept.</source>
        <translation>Zählung %1 ist gespeichert.</translation>
    </message>
    <message>
        <source>Count %1 is printed.</source>
        <translation>Zählung %1 ist gedruckt.</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Seit dem letzten Tagesabschluss</translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation>Tagesabschluss %1 vom %2</translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation>Tagesabschluss %1</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>End Report</source>
        <translation>Tagesabschluss</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Istbestand</translation>
    </message>
</context>
<context>
    <name>manager::DrawerText</name>
    <message>
        <source>Count %1 of the drawer, in %2</source>
        <translation>Zählung %1 der Kassenlade, in %2</translation>
    </message>
    <message>
        <source>Counted by %1</source>
        <translation>Gezählt von %1</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Gezählt</translation>
    </message>
    <message>
        <source>Sold in cash</source>
        <translation>Barverkäufe</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Einlage</translation>
    </message>
    <message>
        <source>Taken out</source>
        <translation>Entnahme</translation>
    </message>
    <message>
        <source>Should be there</source>
        <translation>Sollbestand</translation>
    </message>
    <message>
        <source>DIFFERENCE</source>
        <translation>DIFFERENZ</translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Seit dem letzten Tagesabschluss</translation>
    </message>
    <message>
        <source>For End Report %1</source>
        <translation>Zum Tagesabschluss %1</translation>
    </message>
</context>
<context>
    <name>manager::GoodsChoice</name>
    <message>
        <source>Code</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>There are no such goods.</source>
        <translation>Solche Artikel gibt es nicht.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Add goods from the left.</source>
        <translation>Artikel von links hinzufügen.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Without a button</source>
        <translation>Ohne Taste</translation>
    </message>
    <message numerus="yes">
        <source>Found: %n</source>
        <translation>
            <numerusform>Gefunden: %n</numerusform>
            <numerusform>Gefunden: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::GoodsPage</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Choose a table of goods that a spreadsheet saved as CSV.</source>
        <translation>Bitte eine Artikeltabelle wählen, die eine Tabellenkalkulation als CSV gespeichert hat.</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>alle Zeilen</translation>
    </message>
    <message>
        <source>Choose a table of goods</source>
        <translation>Artikeltabelle wählen</translation>
    </message>
    <message>
        <source>Tables as text (*.csv *.txt *.tsv)</source>
        <translation>Tabellen als Text (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Say which column is the code of the goods.</source>
        <translation>Bitte angeben, welche Spalte die Artikelnummer ist.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Export goods</source>
        <translation>Artikel exportieren</translation>
    </message>
    <message>
        <source>Export customers</source>
        <translation>Kunden exportieren</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx);;Table as text (*.csv)</source>
        <translation>Arbeitsmappe (*.xlsx);;Tabelle als Text (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>all but unchanged</source>
        <translation>ohne unveränderte</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Es würde sich nichts ändern.</translation>
    </message>
    <message>
        <source>There are no such rows.</source>
        <translation>Solche Zeilen gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>manager::GoodsWriting</name>
    <message>
        <source>Write %1 new and %2 changed goods?</source>
        <translation>%1 neue und %2 geänderte Artikel übernehmen?</translation>
    </message>
    <message>
        <source>Refused rows stay out of it: %1.</source>
        <translation>Abgelehnte Zeilen bleiben draußen: %1.</translation>
    </message>
    <message>
        <source>Written: %1 new, %2 changed.</source>
        <translation>Übernommen: %1 neu, %2 geändert.</translation>
    </message>
    <message>
        <source>Sold since the look, and taken off the new quantity too: %1.</source>
        <translation>Seit der Vorschau verkauft und auch von der neuen Menge abgezogen: %1.</translation>
    </message>
    <message>
        <source>Taken back: %1 restored, %2 removed.</source>
        <translation>Zurückgenommen: %1 wiederhergestellt, %2 entfernt.</translation>
    </message>
    <message>
        <source>So it is with %1 more.</source>
        <translation>Ebenso bei %1 weiteren.</translation>
    </message>
    <message>
        <source>Write %1 changed goods?</source>
        <translation>%1 geänderte Artikel übernehmen?</translation>
    </message>
    <message>
        <source>Written: %1 changed.</source>
        <translation>Übernommen: %1 geändert.</translation>
    </message>
    <message>
        <source>Take back &apos;%1&apos; of %2? Goods that were new go, and others get their old values back. What was sold since stays sold.</source>
        <translation>„%1“ vom %2 zurücknehmen? Neue Artikel verschwinden wieder, andere bekommen ihre alten Werte. Was seither verkauft wurde, bleibt verkauft.</translation>
    </message>
</context>
<context>
    <name>manager::HeadingStep</name>
    <message>
        <source>%1, %2 columns</source>
        <translation>%1, %2 Spalten</translation>
    </message>
    <message>
        <source>The shop needs a name.</source>
        <translation>Das Geschäft braucht einen Namen.</translation>
    </message>
    <message>
        <source>The longest line has %1 columns; paper has 32, 40 or 80.</source>
        <translation>Längste Zeile: %1 Spalten; Papier: 32, 40, 80.</translation>
    </message>
</context>
<context>
    <name>manager::HealthPage</name>
    <message>
        <source>✓  Good</source>
        <translation>✓  Gut</translation>
    </message>
    <message>
        <source>✖  Damage</source>
        <translation>✖  Schaden</translation>
    </message>
    <message>
        <source>!  Note</source>
        <translation>!  Hinweis</translation>
    </message>
    <message>
        <source>–  Fact</source>
        <translation>–  Angabe</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation>Es wurde noch nichts geprüft.</translation>
    </message>
    <message>
        <source>The shop is looked over.</source>
        <translation>Das Geschäft wird geprüft.</translation>
    </message>
    <message>
        <source>The look was left before its end.</source>
        <translation>Die Prüfung wurde vorzeitig abgebrochen.</translation>
    </message>
    <message>
        <source>The look can&apos;t be ended. %1</source>
        <translation>Die Prüfung kann nicht zu Ende geführt werden. %1</translation>
    </message>
    <message>
        <source>The shop is being looked at ...</source>
        <translation>Das Geschäft wird geprüft ...</translation>
    </message>
    <message>
        <source>Something is damaged. Read what to do before you go on selling.</source>
        <translation>Etwas ist beschädigt. Vor dem Weiterverkaufen bitte lesen, was zu tun ist.</translation>
    </message>
    <message numerus="yes">
        <source>Nothing is damaged. Notes of what does not fit together: %n.</source>
        <translation>
            <numerusform>Nichts ist beschädigt. %n Hinweis auf etwas, das nicht zusammenpasst.</numerusform>
            <numerusform>Nichts ist beschädigt. %n Hinweise auf etwas, das nicht zusammenpasst.</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Alles in Ordnung.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>Es ist nichts zu tun.</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Was zu tun ist: %1</translation>
    </message>
    <message>
        <source>The report is made.</source>
        <translation>Der Bericht wird erstellt.</translation>
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
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Semicolon ;</source>
        <translation>Semikolon ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Komma ,</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Point .</source>
        <translation>Punkt .</translation>
    </message>
    <message>
        <source>New and known goods</source>
        <translation>Neue und bekannte Artikel</translation>
    </message>
    <message>
        <source>Only new goods</source>
        <translation>Nur neue Artikel</translation>
    </message>
    <message>
        <source>Only known goods</source>
        <translation>Nur bekannte Artikel</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
</context>
<context>
    <name>manager::InvoicesView</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>There are no invoices behind this figure.</source>
        <translation>Zu dieser Zahl gibt es keine Rechnungen.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Gesamt %1</translation>
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
        <translation>je %1</translation>
    </message>
</context>
<context>
    <name>manager::LabelChoice</name>
    <message>
        <source>Nothing to print yet</source>
        <translation>Noch nichts zu drucken</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>%1 x %2 mm, one at a time</source>
        <translation>%1 x %2 mm, einzeln</translation>
    </message>
    <message>
        <source>%1 x %2 mm, %3 on A4</source>
        <translation>%1 x %2 mm, %3 auf A4</translation>
    </message>
    <message>
        <source>Own size on A4</source>
        <translation>Eigene Größe auf A4</translation>
    </message>
    <message>
        <source>Own size, one at a time</source>
        <translation>Eigene Größe, einzeln</translation>
    </message>
    <message>
        <source>600 an inch, office printer</source>
        <translation>600 dpi, Bürodrucker</translation>
    </message>
    <message>
        <source>300 an inch, label printer</source>
        <translation>300 dpi, Etikettendrucker</translation>
    </message>
    <message>
        <source>203 an inch, label printer</source>
        <translation>203 dpi, Etikettendrucker</translation>
    </message>
</context>
<context>
    <name>manager::LabelsPage</name>
    <message>
        <source>1 Goods</source>
        <translation>1 Artikel</translation>
    </message>
    <message>
        <source>2 Labels</source>
        <translation>2 Etiketten</translation>
    </message>
    <message>
        <source>Price list</source>
        <translation>Preisliste</translation>
    </message>
    <message>
        <source>&amp;Print price list</source>
        <translation>Preisliste &amp;drucken</translation>
    </message>
    <message>
        <source>&amp;Print labels</source>
        <translation>Etiketten &amp;drucken</translation>
    </message>
    <message numerus="yes">
        <source>Pages: %n</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels: %n</source>
        <translation>
            <numerusform>%n Etikett</numerusform>
            <numerusform>%n Etiketten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Labels without bars: %n. They are too narrow for the code, or bars can&apos;t carry its letters.</source>
        <translation>
            <numerusform>%n Etikett ohne Striche: Es ist zu schmal für die Artikelnummer, oder ihre Zeichen lassen sich nicht als Striche drucken.</numerusform>
            <numerusform>%n Etiketten ohne Striche: Sie sind zu schmal für die Artikelnummer, oder ihre Zeichen lassen sich nicht als Striche drucken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Without the price of a kilogram or litre: %n. The name doesn&apos;t tell how much is in it.</source>
        <translation>
            <numerusform>%n Etikett ohne Grundpreis: Der Name sagt nicht, wie viel enthalten ist.</numerusform>
            <numerusform>%n Etiketten ohne Grundpreis: Der Name sagt nicht, wie viel enthalten ist.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Chosen goods that are no longer there: %n</source>
        <translation>
            <numerusform>%n gewählter Artikel ist nicht mehr da</numerusform>
            <numerusform>%n gewählte Artikel sind nicht mehr da</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose some goods first.</source>
        <translation>Bitte zuerst Artikel wählen.</translation>
    </message>
    <message numerus="yes">
        <source>Printed. Pages: %n.</source>
        <translation>
            <numerusform>%n Seite gedruckt.</numerusform>
            <numerusform>%n Seiten gedruckt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saved as %1. Pages: %n.</source>
        <translation>
            <numerusform>Gespeichert als %1, %n Seite.</numerusform>
            <numerusform>Gespeichert als %1, %n Seiten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
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
        <translation>Wie ausgeliefert</translation>
    </message>
    <message>
        <source>It is kept. The till and this program have it from their next start.</source>
        <translation>Gespeichert. Die Kasse und dieses Programm übernehmen es beim nächsten Start.</translation>
    </message>
</context>
<context>
    <name>manager::ManagerLogin</name>
    <message>
        <source>This name and password are not those of a user of level 3.</source>
        <translation>Name und Passwort gehören zu keinem Benutzer der Stufe 3.</translation>
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
        <translation>Die Werte der Scheine und Münzen in %1, durch Leerzeichen getrennt:</translation>
    </message>
</context>
<context>
    <name>manager::OverviewCharts</name>
    <message>
        <source>7 days before</source>
        <translation>7 Tage davor</translation>
    </message>
    <message>
        <source>Month before</source>
        <translation>Vormonat</translation>
    </message>
    <message>
        <source>Year before</source>
        <translation>Vorjahr</translation>
    </message>
    <message>
        <source>Days before</source>
        <translation>Tage davor</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Umsatz</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stück</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Tax amount</source>
        <translation>Steuerbetrag</translation>
    </message>
    <message>
        <source>With tax</source>
        <translation>Brutto</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>In stock</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Goes a day</source>
        <translation>Pro Tag</translation>
    </message>
    <message>
        <source>Lasts days</source>
        <translation>Reicht (Tage)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>manager::OverviewPage</name>
    <message>
        <source>Nothing was sold on these days.</source>
        <translation>An diesen Tagen wurde nichts verkauft.</translation>
    </message>
    <message>
        <source>No goods are in stock. Enter what you have on the page of the goods.</source>
        <translation>Es sind keine Artikel auf Lager. Der Bestand wird auf der Seite „Artikel“ eingegeben.</translation>
    </message>
    <message>
        <source>Nothing was sold in the last four weeks, so nothing runs out.</source>
        <translation>In den letzten vier Wochen wurde nichts verkauft, also geht auch nichts zur Neige.</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Der erste Tag liegt nach dem letzten.</translation>
    </message>
    <message>
        <source>Not on the touch table</source>
        <translation>Nicht auf dem Tastenfeld</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Wird gelesen ...</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Reading back from %1 ...</source>
        <translation>Wird gelesen, zurück ab %1 ...</translation>
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
        <translation>Heute, %1 %2</translation>
    </message>
    <message>
        <source>A week ago</source>
        <translation>Vor einer Woche</translation>
    </message>
    <message>
        <source>Mean of the last %1</source>
        <translation>Schnitt der letzten %1</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Bis %1</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Gewählt: %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 Rechnung</translation>
    </message>
    <message>
        <source>%1 invoices, %2 each</source>
        <translation>%1 Rechnungen, im Schnitt %2</translation>
    </message>
    <message>
        <source>Read back to %1; what is older was left out.</source>
        <translation>Gelesen zurück bis %1; Älteres wurde ausgelassen.</translation>
    </message>
    <message>
        <source>The reading was left.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Overview of %1, printed on %2, amounts in %3</source>
        <translation>Übersicht: %1, gedruckt am %2, Beträge in %3</translation>
    </message>
    <message>
        <source>The overview is printed.</source>
        <translation>Die Übersicht ist gedruckt.</translation>
    </message>
    <message>
        <source>Save the overview</source>
        <translation>Übersicht speichern</translation>
    </message>
    <message>
        <source>Document (*.pdf)</source>
        <translation>Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>Save the figures</source>
        <translation>Zahlen speichern</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Umsatz</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Enthaltene MwSt.</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
</context>
<context>
    <name>manager::PageOfBoxes</name>
    <message>
        <source>Save what was changed?</source>
        <translation>Änderungen speichern?</translation>
    </message>
</context>
<context>
    <name>manager::Pages</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Drawer</source>
        <translation>Kassenlade</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Preise</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Several tills</source>
        <translation>Mehrere Kassen</translation>
    </message>
</context>
<context>
    <name>manager::PasswordStep</name>
    <message>
        <source>Choose a password that not everybody knows.</source>
        <translation>Bitte ein Passwort wählen, das nicht jeder kennt.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Die beiden Passwörter sind verschieden.</translation>
    </message>
    <message>
        <source>This user is gone.</source>
        <translation>Diesen Benutzer gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>%1 still has the password that every shop is delivered with: %2.</source>
        <translation>%1 hat noch das Passwort, mit dem jede Kasse ausgeliefert wird: %2.</translation>
    </message>
</context>
<context>
    <name>manager::PortPanel</name>
    <message>
        <source>It is ready, as far as it tells.</source>
        <translation>Er ist bereit, soweit er es meldet.</translation>
    </message>
    <message>
        <source>It has no paper.</source>
        <translation>Er hat kein Papier.</translation>
    </message>
    <message>
        <source>Its cover is open.</source>
        <translation>Sein Deckel ist offen.</translation>
    </message>
    <message>
        <source>It is offline or has an error.</source>
        <translation>Er ist offline oder meldet einen Fehler.</translation>
    </message>
    <message>
        <source>It does not answer. Many printers never do; then leave the box above empty.</source>
        <translation>Er antwortet nicht. Viele Drucker tun das nie; dann das Kästchen oben leer lassen.</translation>
    </message>
    <message>
        <source>Port &amp;%1:</source>
        <translation>Anschluss &amp;%1:</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>In Arbeit…</translation>
    </message>
    <message>
        <source>VELTON Manager, port %1</source>
        <translation>VELTON Manager, Anschluss %1</translation>
    </message>
    <message>
        <source>This line is bold, if the printer can.</source>
        <translation>Diese Zeile ist fett, wenn der Drucker es kann.</translation>
    </message>
    <message>
        <source>A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are wrong want another code page in the printer.</source>
        <translation>Eine Testseite wurde gesendet. Jedes Lineal sollte in einer Zeile stehen, wenn das Papier so breit ist; falsche Buchstaben verlangen eine andere Codeseite im Drucker.</translation>
    </message>
    <message>
        <source>The drawer was told to open.</source>
        <translation>Der Befehl zum Öffnen der Lade wurde gesendet.</translation>
    </message>
    <message>
        <source>The printer was told to cut.</source>
        <translation>Der Befehl zum Abschneiden wurde gesendet.</translation>
    </message>
    <message>
        <source>File %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>File %1 in the folder of the register</source>
        <translation>Datei %1 im Ordner der Kasse</translation>
    </message>
    <message>
        <source>Printer on the network at %1</source>
        <translation>Drucker im Netz unter %1</translation>
    </message>
    <message>
        <source>The usual device</source>
        <translation>Das übliche Gerät</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Gerät %1</translation>
    </message>
</context>
<context>
    <name>manager::PriceList</name>
    <message>
        <source>Other goods</source>
        <translation>Weitere Artikel</translation>
    </message>
    <message>
        <source>Price list</source>
        <translation>Preisliste</translation>
    </message>
    <message>
        <source>%1, prices in %2</source>
        <translation>%1, Preise in %2</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>manager::PricesPage</name>
    <message>
        <source>Say what is to change, and press Look.</source>
        <translation>Bitte angeben, was sich ändern soll, dann „Vorschau“.</translation>
    </message>
    <message>
        <source>Prices by percent</source>
        <translation>Preise prozentual</translation>
    </message>
    <message>
        <source>Tax rates</source>
        <translation>Steuersätze</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Warum nicht</translation>
    </message>
    <message>
        <source>to the cent</source>
        <translation>auf den Cent</translation>
    </message>
    <message>
        <source>by 0.05</source>
        <translation>auf 0,05</translation>
    </message>
    <message>
        <source>by 0.10</source>
        <translation>auf 0,10</translation>
    </message>
    <message>
        <source>at .99</source>
        <translation>auf ,99</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Goods keep the rate that their tax had when they were entered. Those with another rate get that of now. Prices hold the tax and stay.</source>
        <translation>Artikel behalten den Satz, den ihre Steuer beim Anlegen hatte. Artikel mit einem anderen Satz bekommen den jetzigen. Die Preise enthalten die Steuer und bleiben gleich.</translation>
    </message>
    <message>
        <source>Below zero the goods get cheaper. Of two prices as near the higher one is taken.</source>
        <translation>Unter null werden die Artikel billiger. Von zwei gleich nahen Preisen gilt der höhere.</translation>
    </message>
    <message>
        <source>Prices by %1 %</source>
        <translation>Preise um %1 %</translation>
    </message>
    <message>
        <source>The percent has to be a number above -100, up to 1000, with at most two decimals.</source>
        <translation>Der Prozentwert muss eine Zahl über -100 und bis 1000 sein, mit höchstens zwei Nachkommastellen.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Es würde sich nichts ändern.</translation>
    </message>
    <message>
        <source>%1 changed, %2 unchanged, %3 refused</source>
        <translation>%1 geändert, %2 unverändert, %3 abgelehnt</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
</context>
<context>
    <name>manager::PrintersPage</name>
    <message>
        <source>Port 1</source>
        <translation>Anschluss 1</translation>
    </message>
    <message>
        <source>Port 2</source>
        <translation>Anschluss 2</translation>
    </message>
    <message>
        <source>The page printer</source>
        <translation>Der Seitendrucker</translation>
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
        <translation>Kein Seitendrucker: Jede Seite wird ein PDF in printouts.</translation>
    </message>
    <message>
        <source>Page printer: %1</source>
        <translation>Seitendrucker: %1</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>A test page was sent.</source>
        <translation>Eine Testseite wurde gesendet.</translation>
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
        <translation>Keine</translation>
    </message>
    <message>
        <source>Goods by their number (form 1)</source>
        <translation>Artikel nach interner Nummer (Form 1)</translation>
    </message>
    <message>
        <source>Goods by their code (form 2)</source>
        <translation>Artikel nach Artikelnummer (Form 2)</translation>
    </message>
</context>
<context>
    <name>manager::ReportsPage</name>
    <message>
        <source>Choose a report and its days, then &quot;Show&quot;.</source>
        <translation>Bericht und Tage wählen, dann „Anzeigen“.</translation>
    </message>
    <message>
        <source>The first day lies behind the last.</source>
        <translation>Der erste Tag liegt nach dem letzten.</translation>
    </message>
    <message>
        <source>There is nothing on these days.</source>
        <translation>An diesen Tagen gibt es nichts.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Table as text (*.csv);;Workbook (*.xlsx)</source>
        <translation>Tabelle als Text (*.csv);;Arbeitsmappe (*.xlsx)</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) are saved as %1.</source>
        <translation>
            <numerusform>%n Zeile ist als %1 gespeichert.</numerusform>
            <numerusform>%n Zeilen sind als %1 gespeichert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::RestoreForm</name>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Invoices now</source>
        <translation>Rechnungen jetzt</translation>
    </message>
    <message>
        <source>Takings now</source>
        <translation>Umsatz jetzt</translation>
    </message>
    <message>
        <source>Invoices there</source>
        <translation>Rechnungen dort</translation>
    </message>
    <message>
        <source>Takings there</source>
        <translation>Umsatz dort</translation>
    </message>
    <message>
        <source>Neither the shop nor the backup has sold anything yet.</source>
        <translation>Weder das Geschäft noch die Sicherung hat bisher etwas verkauft.</translation>
    </message>
    <message>
        <source>The backup of %1, with %2 invoices. Takings are in %3.</source>
        <translation>Die Sicherung vom %1, mit %2 Rechnungen. Umsätze in %3.</translation>
    </message>
    <message>
        <source>The shop can&apos;t be read: %1</source>
        <translation>Die Geschäftsdaten sind nicht lesbar: %1</translation>
    </message>
    <message>
        <source>All days are the same in the shop and in the backup.</source>
        <translation>Alle Tage sind im Geschäft und in der Sicherung gleich.</translation>
    </message>
    <message>
        <source>Days that differ: %1. They stand first. What the shop has now and the backup has not will be gone from it; all that is replaced is kept in a folder beside it.</source>
        <translation>Abweichende Tage: %1. Sie stehen zuerst. Was das Geschäft jetzt hat, die Sicherung aber nicht, ist danach nicht mehr im Geschäft; alles, was ersetzt wird, bleibt in einem Ordner daneben.</translation>
    </message>
    <message>
        <source>without a day</source>
        <translation>ohne Tag</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>weicht ab</translation>
    </message>
</context>
<context>
    <name>manager::SaveAs</name>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>manager::SetupPage</name>
    <message>
        <source>1 Receipt</source>
        <translation>1 Kassenbon</translation>
    </message>
    <message>
        <source>2 Taxes</source>
        <translation>2 Steuern</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>3 Units</source>
        <translation>3 Einheiten</translation>
    </message>
    <message>
        <source>4 Password</source>
        <translation>4 Passwort</translation>
    </message>
    <message>
        <source>5 Users</source>
        <translation>5 Benutzer</translation>
    </message>
    <message>
        <source>6 Register</source>
        <translation>6 Kasse</translation>
    </message>
</context>
<context>
    <name>manager::SupportForm</name>
    <message>
        <source>Save the report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>The report is saved as %1.</source>
        <translation>Der Bericht ist als %1 gespeichert.</translation>
    </message>
</context>
<context>
    <name>manager::TaxesStep</name>
    <message>
        <source>Code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Rate in percent</source>
        <translation>Satz in Prozent</translation>
    </message>
    <message>
        <source>There is a tax with this code or this name already.</source>
        <translation>Eine Steuer mit diesem Kürzel oder Namen gibt es schon.</translation>
    </message>
    <message>
        <source>This tax can&apos;t be removed, but its name and rate can be changed.</source>
        <translation>Diese Steuer kann nicht entfernt werden; Name und Satz lassen sich ändern.</translation>
    </message>
    <message>
        <source>Remove the tax &quot;%1&quot;?</source>
        <translation>Die Steuer „%1“ entfernen?</translation>
    </message>
    <message>
        <source>The tax needs a code, such as P.</source>
        <translation>Die Steuer braucht ein Kürzel, etwa P.</translation>
    </message>
    <message>
        <source>The tax needs a name.</source>
        <translation>Die Steuer braucht einen Namen.</translation>
    </message>
    <message>
        <source>The rate is a number of percent, from 0 to less than 100.</source>
        <translation>Der Satz ist eine Prozentzahl von 0 bis unter 100.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) belong to this tax.</source>
        <translation>
            <numerusform>%n Artikel gehört zu dieser Steuer.</numerusform>
            <numerusform>%n Artikel gehören zu dieser Steuer.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::TillsPage</name>
    <message>
        <source>The old store is kept as %1.</source>
        <translation>Die alte Datenbank bleibt als %1 erhalten.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Always, and the certificate is checked</source>
        <translation>Immer, mit Prüfung des Zertifikats</translation>
    </message>
    <message>
        <source>Where the server offers it</source>
        <translation>Wenn der Server sie anbietet</translation>
    </message>
    <message>
        <source>The shop lies on the server %1. Tills on other machines join it there.</source>
        <translation>Das Geschäft liegt auf dem Server %1. Kassen auf anderen Rechnern treten ihm dort bei.</translation>
    </message>
    <message>
        <source>The shop lies in the file %1, and serves the tills of this machine.</source>
        <translation>Das Geschäft liegt in der Datei %1 und dient den Kassen auf diesem Rechner.</translation>
    </message>
    <message>
        <source>Look at the server first, then move the shop there or join the one that is there.</source>
        <translation>Zuerst den Server ansehen, dann das Geschäft dorthin verlegen oder dem beitreten, das dort liegt.</translation>
    </message>
    <message>
        <source>The server is there and has no shop of this name yet: this one can move there.</source>
        <translation>Der Server ist da und hat noch kein Geschäft dieses Namens: Dieses kann dorthin umziehen.</translation>
    </message>
    <message>
        <source>A shop is there, which has sold nothing yet. Its products: %1.</source>
        <translation>Dort liegt ein Geschäft, das noch nichts verkauft hat. Seine Artikel: %1.</translation>
    </message>
    <message>
        <source>A shop is there, and sold last on %1. Its invoices: %2, its products: %3.</source>
        <translation>Dort liegt ein Geschäft, das zuletzt am %1 verkauft hat. Seine Rechnungen: %2, seine Artikel: %3.</translation>
    </message>
    <message>
        <source>Fill in the server, the database, the user and the name of the shop.</source>
        <translation>Bitte Server, Datenbank, Benutzer und Namen des Geschäfts ausfüllen.</translation>
    </message>
    <message>
        <source>The server is being asked.</source>
        <translation>Der Server wird gefragt.</translation>
    </message>
    <message>
        <source>Close the tills of this shop. Is it to move to %1? Its other registers then join it there.</source>
        <translation>Bitte die Kassen dieses Geschäfts schließen. Soll es nach %1 umziehen? Seine anderen Kassen treten ihm danach dort bei.</translation>
    </message>
    <message>
        <source>The shop is moving.</source>
        <translation>Das Geschäft zieht um.</translation>
    </message>
    <message>
        <source>Close the till of this register. Is it to work on the shop on %1 from now on, and no longer on its own?</source>
        <translation>Bitte das Programm dieser Kasse schließen. Soll sie ab jetzt im Geschäft auf %1 arbeiten und nicht mehr in ihrem eigenen?</translation>
    </message>
    <message>
        <source>The register is joining the shop.</source>
        <translation>Die Kasse tritt dem Geschäft bei.</translation>
    </message>
    <message>
        <source>Close all tills of this shop. Is it to come back into the folder of this register? The tills on other machines have no shop then.</source>
        <translation>Bitte alle Kassen dieses Geschäfts schließen. Soll es in den Ordner dieser Kasse zurückkommen? Die Kassen auf anderen Rechnern haben dann kein Geschäft.</translation>
    </message>
    <message>
        <source>Nothing was changed. %1</source>
        <translation>Es wurde nichts geändert. %1</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick with its pictures</source>
        <translation>Der Ordner einer anderen Kasse oder ein Stick mit ihren Bildern</translation>
    </message>
    <message>
        <source>The folder of another register, or a stick</source>
        <translation>Der Ordner einer anderen Kasse oder ein Stick</translation>
    </message>
    <message>
        <source>The pictures are being compared.</source>
        <translation>Die Bilder werden verglichen.</translation>
    </message>
    <message>
        <source>There is no picture to be copied.</source>
        <translation>Es gibt kein Bild zu kopieren.</translation>
    </message>
    <message>
        <source>The pictures are being copied.</source>
        <translation>Die Bilder werden kopiert.</translation>
    </message>
    <message>
        <source>Pictures that were copied: %1.</source>
        <translation>Kopierte Bilder: %1.</translation>
    </message>
    <message>
        <source>The shop lies on the server now: %1 rows of %2 tables, compared with those here.</source>
        <translation>Das Geschäft liegt jetzt auf dem Server: %1 Zeilen aus %2 Tabellen, mit denen hier verglichen.</translation>
    </message>
    <message>
        <source>This register works on the shop on the server now.</source>
        <translation>Diese Kasse arbeitet jetzt im Geschäft auf dem Server.</translation>
    </message>
    <message>
        <source>The shop lies in the folder of this register now: %1 rows of %2 tables, compared with those on the server.</source>
        <translation>Das Geschäft liegt jetzt im Ordner dieser Kasse: %1 Zeilen aus %2 Tabellen, mit denen auf dem Server verglichen.</translation>
    </message>
    <message>
        <source>The old store could not be put aside, and no till may work on it any more. %1</source>
        <translation>Die alte Datenbank konnte nicht beiseitegelegt werden; keine Kasse darf noch mit ihr arbeiten. %1</translation>
    </message>
    <message>
        <source>Some pictures would replace others of the same name: %1. Replace them?</source>
        <translation>Einige Bilder würden andere gleichen Namens ersetzen: %1. Sollen sie ersetzt werden?</translation>
    </message>
    <message>
        <source>There is no shop at %1 any more. Join it where it lies now.</source>
        <translation>In %1 liegt kein Geschäft mehr. Treten Sie ihm dort bei, wo es jetzt liegt.</translation>
    </message>
</context>
<context>
    <name>manager::UnitsStep</name>
    <message>
        <source>Short name</source>
        <translation>Kurzname</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>The unit needs a short name, such as kg.</source>
        <translation>Die Einheit braucht einen Kurznamen, zum Beispiel kg.</translation>
    </message>
    <message>
        <source>The unit needs a name, such as kilogram.</source>
        <translation>Die Einheit braucht einen Namen, zum Beispiel Kilogramm.</translation>
    </message>
    <message>
        <source>There is a unit with this short name already.</source>
        <translation>Eine Einheit mit diesem Kurznamen gibt es schon.</translation>
    </message>
    <message>
        <source>Remove the unit &quot;%1&quot;?</source>
        <translation>Die Einheit „%1“ löschen?</translation>
    </message>
    <message>
        <source>A short name has no apostrophe.</source>
        <translation>Ein Kurzname hat keinen Apostroph.</translation>
    </message>
    <message>
        <source>A short name has at most %1 letters; paper has no more room.</source>
        <translation>Ein Kurzname hat höchstens %1 Zeichen; mehr Platz ist auf dem Papier nicht.</translation>
    </message>
    <message>
        <source>The till sells by the piece what has this unit, so it stays.</source>
        <translation>Was diese Einheit hat, verkauft die Kasse nach Stück, daher bleibt sie.</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s) have this unit.</source>
        <translation>
            <numerusform>%n Artikel hat diese Einheit.</numerusform>
            <numerusform>%n Artikel haben diese Einheit.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>manager::UsersStep</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>There is a user with this number or this name already.</source>
        <translation>Einen Benutzer mit dieser Nummer oder diesem Namen gibt es schon.</translation>
    </message>
    <message>
        <source>This user can&apos;t be removed, but name, level and password can be changed.</source>
        <translation>Dieser Benutzer kann nicht entfernt werden; Name, Stufe und Passwort lassen sich ändern.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>Den Benutzer „%1“ entfernen?</translation>
    </message>
    <message>
        <source>The user needs a number.</source>
        <translation>Der Benutzer braucht eine Nummer.</translation>
    </message>
    <message>
        <source>The user needs a name to log in with.</source>
        <translation>Der Benutzer braucht einen Namen zum Anmelden.</translation>
    </message>
    <message>
        <source>Choose a level from 1 to 3.</source>
        <translation>Bitte eine Stufe von 1 bis 3 wählen.</translation>
    </message>
    <message>
        <source>Somebody has to keep level 3, or nobody can set up the shop any more.</source>
        <translation>Jemand muss die Stufe 3 behalten, sonst kann niemand mehr das Geschäft einrichten.</translation>
    </message>
    <message>
        <source>This is the user who has logged in here.</source>
        <translation>Das ist der Benutzer, der hier angemeldet ist.</translation>
    </message>
</context>
<context>
    <name>mdiORVA</name>
    <message>
        <source>&amp;Products</source>
        <translation>&amp;Artikel</translation>
    </message>
    <message>
        <source>New Product</source>
        <translation>Neuer Artikel</translation>
    </message>
    <message>
        <source>View - Edit - Delete Products</source>
        <translation>Artikel ansehen - ändern - löschen</translation>
    </message>
    <message>
        <source>Items in stock</source>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>Products list</source>
        <translation>Inventurliste</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>&amp;Rechnungen</translation>
    </message>
    <message>
        <source>Search Invoice</source>
        <translation>Rechnung suchen</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>&amp;End Report</source>
        <translation>&amp;Tagesabschluss</translation>
    </message>
    <message>
        <source>End Report ...</source>
        <translation>Tagesabschluss ...</translation>
    </message>
    <message>
        <source>Preview End Reports</source>
        <translation>Frühere Tagesabschlüsse</translation>
    </message>
    <message>
        <source>Preview End Reports </source>
        <translation>Einzelne Zeiträume </translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Invoice deatails</source>
        <translation>Rechnungszeilen</translation>
    </message>
    <message>
        <source>Click Table</source>
        <translation>Tastenfeld</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>My Firm</source>
        <translation>Meine Firma</translation>
    </message>
    <message>
        <source>Customers - Suppliers</source>
        <translation>Kunden - Lieferanten</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Berichte</translation>
    </message>
    <message>
        <source>Sale by Invoices</source>
        <translation>Umsatz nach Rechnungen</translation>
    </message>
    <message>
        <source>Sale by Cashiers</source>
        <translation>Umsatz nach Kassierern</translation>
    </message>
    <message>
        <source>Sale by Products</source>
        <translation>Umsatz nach Artikeln</translation>
    </message>
    <message>
        <source>Invoices for tax report</source>
        <translation>Rechnungsausgangsbuch</translation>
    </message>
    <message>
        <source>Tax Report by Invoices</source>
        <translation>Steuerbericht nach Rechnungen</translation>
    </message>
    <message>
        <source>TAX Report</source>
        <translation>Steuerbericht</translation>
    </message>
    <message>
        <source>Printed Invoices Ribbon</source>
        <translation>Journal der Kassenbons</translation>
    </message>
    <message>
        <source>Working Time </source>
        <translation>Kassenzeiten </translation>
    </message>
    <message>
        <source>&amp;Fiscal printer</source>
        <translation>&amp;Fiskaldrucker</translation>
    </message>
    <message>
        <source>Deposit - payment </source>
        <translation>Einlage </translation>
    </message>
    <message>
        <source>Deposit - payout</source>
        <translation>Entnahme</translation>
    </message>
    <message>
        <source>X report - Overview</source>
        <translation>X-Bericht - Übersicht</translation>
    </message>
    <message>
        <source>Z report - Daily report</source>
        <translation>Z-Bericht - Tagesbericht</translation>
    </message>
    <message>
        <source>Fiscal Periodic Report</source>
        <translation>Zeitraumbericht</translation>
    </message>
    <message>
        <source>Invoice Reclamation</source>
        <translation>Rechnung stornieren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About program</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>Total: &gt;&gt;</source>
        <translation>Gesamt: &gt;&gt;</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Zeit: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Datum: %1</translation>
    </message>
    <message>
        <source>The main window has no entry %1.</source>
        <translation>Das Hauptfenster hat keinen Eintrag %1.</translation>
    </message>
</context>
<context>
    <name>output</name>
    <message>
        <source>Channel 1 is already open.</source>
        <translation>Kanal 1 ist schon offen.</translation>
    </message>
    <message>
        <source>Channel 1 is not open.</source>
        <translation>Kanal 1 ist nicht offen.</translation>
    </message>
    <message>
        <source>This system lacks the code page %1.</source>
        <translation>Diesem System fehlt die Codeseite %1.</translation>
    </message>
    <message>
        <source>Cannot take back half of what was written to %1: %2.</source>
        <translation>Halb Geschriebenes in %1 lässt sich nicht zurücknehmen: %2.</translation>
    </message>
    <message>
        <source>Cannot write to %1: %2.</source>
        <translation>In %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: %2.</source>
        <translation>%1 lässt sich nicht speichern: %2.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>Waiting for %1, which takes nothing now.</source>
        <translation>Warten auf %1, das im Moment nichts annimmt.</translation>
    </message>
    <message>
        <source>Cannot open the printer %1: %2.</source>
        <translation>Der Drucker %1 lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>Cannot write to the printer %1: %2.</source>
        <translation>An den Drucker %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The page printer cannot be used.</source>
        <translation>Der Seitendrucker ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>The page printer takes no further page.</source>
        <translation>Der Seitendrucker nimmt keine weitere Seite an.</translation>
    </message>
    <message>
        <source>The page printer failed.</source>
        <translation>Der Seitendrucker hat versagt.</translation>
    </message>
    <message>
        <source>Waiting for the printer on %1 (%2).
Is it switched on, with paper in and its cover closed?</source>
        <translation>Warten auf den Drucker an %1 (%2).
Ist er eingeschaltet, mit Papier und geschlossenem Deckel?</translation>
    </message>
    <message>
        <source>%1
Leaving ends the program; what is stored stays stored.</source>
        <translation>%1
Abbrechen beendet das Programm; was gespeichert ist, bleibt gespeichert.</translation>
    </message>
    <message>
        <source>the wait for it was left</source>
        <extracomment>stands behind &quot;Cannot write to x: &quot;</extracomment>
        <translation>das Warten wurde abgebrochen</translation>
    </message>
    <message>
        <source>ports.ini has no printer behind &quot;%1&quot;.</source>
        <translation>In ports.ini gibt es hinter „%1“ keinen Drucker.</translation>
    </message>
    <message>
        <source>ports.ini has &quot;%1&quot; at %2, which is yes or no.</source>
        <translation>In ports.ini steht bei %2 „%1“; möglich sind yes und no.</translation>
    </message>
    <message>
        <source>%1
ports.ini has no other printer for %2.</source>
        <translation>%1
In ports.ini gibt es keinen anderen Drucker für %2.</translation>
    </message>
    <message>
        <source>There is no printer port &quot;%1&quot;.</source>
        <translation>Einen Druckeranschluss „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Cannot reach the printer %1: %2.</source>
        <translation>Der Drucker %1 ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The printer %1 has no known address.</source>
        <translation>Der Drucker %1 hat keine bekannte Adresse.</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>No valid date.</source>
        <translation>Kein gültiges Datum.</translation>
    </message>
    <message>
        <source>No valid time.</source>
        <translation>Keine gültige Uhrzeit.</translation>
    </message>
    <message>
        <source>The value does not fit the type of the field.</source>
        <translation>Der Wert passt nicht zum Typ des Feldes.</translation>
    </message>
    <message>
        <source>An action query gives no rows.</source>
        <translation>Eine Aktionsabfrage liefert keine Zeilen.</translation>
    </message>
    <message>
        <source>A SELECT cannot be executed.</source>
        <translation>Ein SELECT kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>The query has too many columns.</source>
        <translation>Die Abfrage hat zu viele Spalten.</translation>
    </message>
    <message>
        <source>The query is too complex.</source>
        <translation>Die Abfrage ist zu komplex.</translation>
    </message>
    <message>
        <source>Expected a field, found a constant.</source>
        <translation>Feld erwartet, Konstante gefunden.</translation>
    </message>
    <message>
        <source>The field %1 is neither grouped nor inside an aggregate.</source>
        <translation>Das Feld %1 ist weder gruppiert noch in einer Aggregatfunktion.</translation>
    </message>
    <message>
        <source>The field %1 is set twice.</source>
        <translation>Das Feld %1 wird zweimal gesetzt.</translation>
    </message>
    <message>
        <source>The expression is too complex.</source>
        <translation>Der Ausdruck ist zu komplex.</translation>
    </message>
    <message>
        <source>%1 takes one argument.</source>
        <translation>%1 hat ein Argument.</translation>
    </message>
    <message>
        <source>There is no function %1.</source>
        <translation>Eine Funktion %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is not possible in %2.</source>
        <translation>%1 ist in %2 nicht möglich.</translation>
    </message>
    <message>
        <source>%1 cannot be taken over another aggregate.</source>
        <translation>%1 lässt sich nicht über eine andere Aggregatfunktion bilden.</translation>
    </message>
    <message>
        <source>an expression</source>
        <translation>ein Ausdruck</translation>
    </message>
    <message>
        <source>a field name</source>
        <translation>ein Feldname</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation>Der Ausdruck ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>LIKE, BETWEEN or IN</source>
        <translation>LIKE, BETWEEN oder IN</translation>
    </message>
    <message>
        <source>The query text is too long.</source>
        <translation>Der Abfragetext ist zu lang.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>A text is not closed by a quote.</source>
        <translation>Ein Text ist nicht durch ein Anführungszeichen abgeschlossen.</translation>
    </message>
    <message>
        <source>A name is not closed by a bracket.</source>
        <translation>Ein Name ist nicht durch eine Klammer abgeschlossen.</translation>
    </message>
    <message>
        <source>A name is missing between the brackets.</source>
        <translation>Zwischen den Klammern fehlt ein Name.</translation>
    </message>
    <message>
        <source>A date is not closed by #.</source>
        <translation>Ein Datum ist nicht durch # abgeschlossen.</translation>
    </message>
    <message>
        <source>A sign that the query language does not know.</source>
        <translation>Ein Zeichen, das die Abfragesprache nicht kennt.</translation>
    </message>
    <message>
        <source>%1 is not a date.</source>
        <translation>%1 ist kein Datum.</translation>
    </message>
    <message>
        <source>%1 is not a time.</source>
        <translation>%1 ist keine Uhrzeit.</translation>
    </message>
    <message>
        <source>%1 is not yes or no.</source>
        <translation>%1 ist nicht Ja oder Nein.</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 ist keine Zahl.</translation>
    </message>
    <message>
        <source>%1 is not a date; a date is written #mm-dd-yyyy#.</source>
        <translation>%1 ist kein Datum; ein Datum schreibt man #mm-dd-yyyy#.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 ist zu groß.</translation>
    </message>
    <message>
        <source>The query text is nested too deeply.</source>
        <translation>Der Abfragetext ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>an alias</source>
        <translation>ein Alias</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>das Ende des Textes</translation>
    </message>
    <message>
        <source>SELECT, UPDATE or DELETE</source>
        <translation>SELECT, UPDATE oder DELETE</translation>
    </message>
    <message>
        <source>a table name</source>
        <translation>ein Tabellenname</translation>
    </message>
    <message>
        <source>A query joins too many tables.</source>
        <translation>Eine Abfrage verknüpft zu viele Tabellen.</translation>
    </message>
    <message>
        <source>There is no table %1.</source>
        <translation>Eine Tabelle %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Two tables are called %1; one needs an alias.</source>
        <translation>Zwei Tabellen heißen %1; eine braucht einen Alias.</translation>
    </message>
    <message>
        <source>The query has no table %1.</source>
        <translation>Die Abfrage hat keine Tabelle %1.</translation>
    </message>
    <message>
        <source>The field %1 is in more than one table: %2.</source>
        <translation>Das Feld %1 gibt es in mehreren Tabellen: %2.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>Ein Feld %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Two columns have the alias %1.</source>
        <translation>Zwei Spalten haben den Alias %1.</translation>
    </message>
    <message>
        <source>Expected %1, found the keyword %2, which is a name only in square brackets.</source>
        <translation>Erwartet: %1, gefunden: das Schlüsselwort %2, das nur in eckigen Klammern ein Name ist.</translation>
    </message>
    <message>
        <source>A query text is one statement; nothing may follow the semicolon.</source>
        <translation>Ein Abfragetext ist eine einzige Anweisung; nach dem Semikolon darf nichts folgen.</translation>
    </message>
    <message>
        <source>Expected %1, found the end of the text.</source>
        <translation>Erwartet: %1, gefunden: das Ende des Textes.</translation>
    </message>
    <message>
        <source>Expected %1, found %2.</source>
        <translation>Erwartet: %1, gefunden: %2.</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>ein Datum</translation>
    </message>
    <message>
        <source>a time</source>
        <translation>eine Uhrzeit</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>an empty field, as query texts have it</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>Ja oder Nein</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>%1 cannot be calculated with %2.</source>
        <translation>Nicht miteinander verrechenbar: %1, %2.</translation>
    </message>
    <message>
        <source>A minus cannot stand before %1.</source>
        <translation>Ein Minus ist hier nicht möglich; dahinter steht %1.</translation>
    </message>
    <message>
        <source>A query cannot turn %1 into a text.</source>
        <translation>Eine Abfrage kann hieraus keinen Text machen: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be compared with %2.</source>
        <translation>Nicht miteinander vergleichbar: %1, %2.</translation>
    </message>
    <message>
        <source>LIKE compares texts, and this is %1.</source>
        <translation>LIKE vergleicht Texte, und das ist %1.</translation>
    </message>
    <message>
        <source>Val reads a text, and this is %1.</source>
        <translation>Val liest einen Text, und das ist %1.</translation>
    </message>
    <message>
        <source>Sum adds numbers, and this is %1.</source>
        <translation>Sum addiert Zahlen, und das ist %1.</translation>
    </message>
    <message>
        <source>Expected a condition; this is %1.</source>
        <translation>Bedingung erwartet; das ist %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written to a field that holds %2.</source>
        <translation>Zu schreiben ist %1, das Feld enthält aber %2.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>Die Arbeit wurde abgebrochen.</translation>
    </message>
    <message>
        <source>This list has no field %1.</source>
        <translation>Diese Liste hat kein Feld %1.</translation>
    </message>
    <message>
        <source>The store is of version %1, which this program does not know.</source>
        <translation>Die Datenbank hat die Version %1, die dieses Programm nicht kennt.</translation>
    </message>
    <message>
        <source>The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME.</source>
        <translation>Die Adresse des Servers hat nicht die Form postgresql://USER@HOST/DATABASE?schema=NAME.</translation>
    </message>
    <message>
        <source>A password does not belong into the address of the server; its place is ~/.pgpass.</source>
        <translation>Ein Passwort gehört nicht in die Adresse des Servers; sein Platz ist ~/.pgpass.</translation>
    </message>
    <message>
        <source>A text with a zero character cannot lie on a server.</source>
        <translation>Ein Text mit einem Nullzeichen kann nicht auf einem Server liegen.</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>er antwortet nicht</translation>
    </message>
    <message>
        <source>it asks for a password, and ~/.pgpass has none for it</source>
        <translation>er verlangt ein Passwort, und in ~/.pgpass steht keines für ihn</translation>
    </message>
    <message>
        <source>The address of the server %1 cannot be read.</source>
        <translation>Die Adresse des Servers %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The server of the store %1 cannot be reached: %2.</source>
        <translation>Der Server der Datenbank %1 ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 has not heard from its standby.</source>
        <translation>Der Server der Datenbank %1 hat von seinem Ersatzserver nichts gehört.</translation>
    </message>
    <message>
        <source>The server of the store %1 does not answer.</source>
        <translation>Der Server der Datenbank %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost: %2.</source>
        <translation>Die Verbindung zum Server der Datenbank %1 ist abgerissen: %2.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while many changes were being stored; none of them is.</source>
        <translation>Die Verbindung zum Server der Datenbank %1 ist abgerissen, während viele Änderungen gespeichert wurden; keine davon ist gespeichert.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while a sale was being stored; how much of it is, is not known.</source>
        <translation>Die Verbindung zum Server der Datenbank %1 ist abgerissen, während ein Verkauf gespeichert wurde; wie viel davon gespeichert ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The store is locked by another user, and the wait for it was left.</source>
        <translation>Die Datenbank ist durch einen anderen Benutzer gesperrt, und das Warten wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The server of the store %1 was lost while the last change was being stored; whether it is, is not known.</source>
        <translation>Die Verbindung zum Server der Datenbank %1 ist abgerissen, während die letzte Änderung gespeichert wurde; ob sie gespeichert ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>%1 Whether the last change is stored is not known.</source>
        <translation>%1 Ob die letzte Änderung gespeichert ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>No batch is open.</source>
        <translation>Es ist kein Stapel offen.</translation>
    </message>
    <message>
        <source>A batch is open already.</source>
        <translation>Ein Stapel ist schon offen.</translation>
    </message>
    <message>
        <source>The server of %1 is older than version 15.</source>
        <translation>Der Server von %1 ist älter als Version 15.</translation>
    </message>
    <message>
        <source>The database of %1 holds texts in %2, not in UTF8.</source>
        <translation>Die Datenbank von %1 enthält Texte in %2, nicht in UTF8.</translation>
    </message>
    <message>
        <source>The server of %1 is a standby and takes no changes.</source>
        <translation>Der Server von %1 ist ein Ersatzserver und nimmt keine Änderungen an.</translation>
    </message>
    <message>
        <source>The role has no right to use the schema of the store %1.</source>
        <translation>Die Rolle darf das Schema der Datenbank %1 nicht benutzen.</translation>
    </message>
    <message>
        <source>%1 is no store of this kind (%2).</source>
        <translation>%1 ist keine Datenbank dieser Art (%2).</translation>
    </message>
    <message>
        <source>The store %1 is of version %2; this program knows versions up to %3.</source>
        <translation>Die Datenbank %1 hat die Version %2; dieses Programm kennt Versionen bis %3.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to: the role has no right to %2.</source>
        <translation>In die Datenbank %1 kann nicht geschrieben werden: Der Rolle fehlt das Recht %2.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks %2.</source>
        <translation>Die Datenbank %1 ist beschädigt: %2 fehlt.</translation>
    </message>
    <message>
        <source>The store %1 is held exclusively by another user.</source>
        <translation>Die Datenbank %1 wird von einem anderen Benutzer exklusiv benutzt.</translation>
    </message>
    <message>
        <source>There is no store at %1.</source>
        <translation>Bei %1 gibt es keine Datenbank.</translation>
    </message>
    <message>
        <source>There is a store at %1 already.</source>
        <translation>Bei %1 gibt es schon eine Datenbank.</translation>
    </message>
    <message>
        <source>%1.%2, rows from %3 on: %4</source>
        <translation>%1.%2, Zeilen ab %3: %4</translation>
    </message>
    <message>
        <source>%1, rows from %2 on: %3</source>
        <translation>%1, Zeilen ab %2: %3</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>Schema %1</translation>
    </message>
    <message>
        <source>%1: the next number is taken already</source>
        <translation>%1: Die nächste Nummer ist schon vergeben</translation>
    </message>
    <message>
        <source>No copy can be made while a batch is open.</source>
        <translation>Solange ein Stapel offen ist, lässt sich keine Kopie erstellen.</translation>
    </message>
    <message>
        <source>The copy is damaged: %1</source>
        <translation>Die Kopie ist beschädigt: %1</translation>
    </message>
    <message>
        <source>There is no room left on the server&apos;s disk</source>
        <translation>Auf der Platte des Servers ist kein Platz mehr</translation>
    </message>
    <message>
        <source>The server refused the access</source>
        <translation>Der Server hat den Zugriff verweigert</translation>
    </message>
    <message>
        <source>The store was moved away on the server, with all that was stored until then (%1).</source>
        <translation>Die Datenbank wurde auf dem Server verschoben, mit allem, was bis dahin gespeichert war (%1).</translation>
    </message>
    <message>
        <source>This cursor has not changed any row.</source>
        <translation>Dieser Cursor hat keine Zeile geändert.</translation>
    </message>
    <message>
        <source>The rows of this cursor cannot be changed.</source>
        <translation>Die Zeilen dieses Cursors lassen sich nicht ändern.</translation>
    </message>
    <message>
        <source>Update without AddNew or Edit.</source>
        <translation>Update ohne AddNew oder Edit.</translation>
    </message>
    <message>
        <source>The row was changed by another user.</source>
        <translation>Die Zeile wurde von einem anderen Benutzer geändert.</translation>
    </message>
    <message>
        <source>This cursor has no field %1.</source>
        <translation>Dieser Cursor hat kein Feld %1.</translation>
    </message>
    <message>
        <source>This cursor has no field at position %1.</source>
        <translation>Dieser Cursor hat kein Feld an Stelle %1.</translation>
    </message>
    <message>
        <source>A field was written without AddNew or Edit.</source>
        <translation>Ein Feld wurde ohne AddNew oder Edit geschrieben.</translation>
    </message>
    <message>
        <source>The field %1 is computed.</source>
        <translation>Das Feld %1 ist berechnet.</translation>
    </message>
    <message>
        <source>%1 numbers itself.</source>
        <translation>%1 zählt selbst hoch.</translation>
    </message>
    <message>
        <source>%1 counts from 1.</source>
        <translation>%1 zählt ab 1.</translation>
    </message>
    <message>
        <source>The cursor is closed.</source>
        <translation>Der Cursor ist geschlossen.</translation>
    </message>
    <message>
        <source>No current row.</source>
        <translation>Keine aktuelle Zeile.</translation>
    </message>
    <message>
        <source>The row was deleted.</source>
        <translation>Die Zeile wurde gelöscht.</translation>
    </message>
    <message>
        <source>The marked row is not in this cursor.</source>
        <translation>Die gemerkte Zeile ist nicht in diesem Cursor.</translation>
    </message>
    <message>
        <source>This cursor cannot be searched.</source>
        <translation>In diesem Cursor kann nicht gesucht werden.</translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation>beim Öffnen von %1</translation>
    </message>
    <message>
        <source>copying a store</source>
        <translation>beim Kopieren einer Datenbank</translation>
    </message>
    <message>
        <source>The store is locked by another user and could not be copied.</source>
        <translation>Die Datenbank ist durch einen anderen Benutzer gesperrt und konnte nicht kopiert werden.</translation>
    </message>
    <message>
        <source>The file %1 exists already.</source>
        <translation>Die Datei %1 gibt es schon.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no file.</source>
        <translation>„%1“ bezeichnet keine Datei.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a store, because of its ending %2.</source>
        <translation>„%1“ kann wegen der Endung %2 nicht der Name einer Datenbank sein.</translation>
    </message>
    <message>
        <source>The folder %1 was not found.</source>
        <translation>Der Ordner %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder %1: %2.</source>
        <translation>Im Ordner %1 kann nichts geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be brought to the disk: %2.</source>
        <translation>%1 konnte nicht auf die Platte gebracht werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be made: %2.</source>
        <translation>%1 konnte nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Another program is just making %1.</source>
        <translation>Ein anderes Programm legt %1 gerade an.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; what was stored until then is saved in %2.</source>
        <translation>Die Datenbank %1 (oder ihr Protokoll) wurde gelöscht, verschoben oder ersetzt, während das Programm sie offen hatte; daher wird nichts mehr hineingeschrieben. Was bis dahin gespeichert war, liegt in %2.</translation>
    </message>
    <message>
        <source>The store %1 was deleted, moved away or replaced (or its log was) while the program had it open, so nothing more is written to it; no copy of what was stored until then could be made: %2</source>
        <translation>Die Datenbank %1 (oder ihr Protokoll) wurde gelöscht, verschoben oder ersetzt, während das Programm sie offen hatte; daher wird nichts mehr hineingeschrieben. Was bis dahin gespeichert war, ließ sich nicht kopieren: %2</translation>
    </message>
    <message>
        <source>The store %1 was not found.</source>
        <translation>Die Datenbank %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1 is empty and no store.</source>
        <translation>%1 ist leer und keine Datenbank.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written to.</source>
        <translation>In die Datenbank %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The store %1 is damaged: it lacks the column %2 of %3.</source>
        <translation>Die Datenbank %1 ist beschädigt: Ihr fehlt die Spalte %2 von %3.</translation>
    </message>
    <message>
        <source>No write-ahead log can be kept beside %1.</source>
        <translation>Neben %1 lässt sich kein Write-Ahead-Log führen.</translation>
    </message>
    <message>
        <source>%1 is damaged or no store (%2).</source>
        <translation>%1 ist beschädigt oder keine Datenbank (%2).</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened for writing (%2).</source>
        <translation>Die Datenbank %1 lässt sich nicht zum Schreiben öffnen (%2).</translation>
    </message>
    <message>
        <source>making %1</source>
        <translation>beim Anlegen von %1</translation>
    </message>
    <message>
        <source>Another program has the store %1 open.</source>
        <translation>Ein anderes Programm hat die Datenbank %1 offen.</translation>
    </message>
    <message>
        <source>The store %1 cannot be renamed.</source>
        <translation>Die Datenbank %1 lässt sich nicht umbenennen.</translation>
    </message>
    <message>
        <source>bringing a burst of changes to the disk</source>
        <translation>beim Schreiben vieler Änderungen auf die Platte</translation>
    </message>
    <message>
        <source>%1, %2 (%3).</source>
        <extracomment>what was refused, what was being done, and the engine&apos;s own words: &quot;The store is damaged, opening x (y).&quot;</extracomment>
        <translation>%1, %2 (%3).</translation>
    </message>
    <message>
        <source>copying to %1</source>
        <translation>beim Kopieren nach %1</translation>
    </message>
    <message>
        <source>preparing %1</source>
        <translation>beim Vorbereiten von %1</translation>
    </message>
    <message>
        <source>running a query</source>
        <translation>bei einer Abfrage</translation>
    </message>
    <message>
        <source>The file %1 went away while the store was being opened.</source>
        <translation>Die Datei %1 ist beim Öffnen der Datenbank verschwunden.</translation>
    </message>
    <message>
        <source>setting up the text rules</source>
        <translation>beim Einrichten der Textregeln</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>The store is locked by another user</source>
        <translation>Die Datenbank ist durch einen anderen Benutzer gesperrt</translation>
    </message>
    <message>
        <source>The work was left</source>
        <translation>Die Arbeit wurde abgebrochen</translation>
    </message>
    <message>
        <source>A row with this key exists already</source>
        <translation>Eine Zeile mit diesem Schlüssel gibt es schon</translation>
    </message>
    <message>
        <source>Other rows of the store refer to this one</source>
        <translation>Andere Zeilen der Datenbank verweisen auf diese</translation>
    </message>
    <message>
        <source>A value does not fit the type of its column</source>
        <translation>Ein Wert passt nicht zum Typ seiner Spalte</translation>
    </message>
    <message>
        <source>There is no room left on the disk</source>
        <translation>Auf der Platte ist kein Platz mehr</translation>
    </message>
    <message>
        <source>The store is damaged</source>
        <translation>Die Datenbank ist beschädigt</translation>
    </message>
    <message>
        <source>The store cannot be written to</source>
        <translation>In die Datenbank kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The disk or the network refused the access</source>
        <translation>Die Platte oder das Netzwerk hat den Zugriff verweigert</translation>
    </message>
    <message>
        <source>The store refused the operation</source>
        <translation>Die Datenbank hat den Vorgang abgelehnt</translation>
    </message>
    <message>
        <source>Did you mean: %1</source>
        <translation>War gemeint: %1</translation>
    </message>
    <message>
        <source>Cannot use %1: it names a path and a url, but only one store.</source>
        <translation>%1 ist unbrauchbar: Es nennt path und url, aber es gibt nur eine Datenbank.</translation>
    </message>
    <message>
        <source>Cannot read %1: it has no line path=... or url=... in a section [main].</source>
        <translation>%1 ist unbrauchbar: Im Abschnitt [main] fehlt eine Zeile path=... oder url=...</translation>
    </message>
</context>
<context>
    <name>upkeep</name>
    <message>
        <source>The folder for backups, %1, went away while the backup was being made. Was the stick drawn?</source>
        <translation>Der Ordner für Sicherungen, %1, ist während der Sicherung verschwunden. Wurde der Stick abgezogen?</translation>
    </message>
    <message>
        <source>Looking at the folder for backups</source>
        <translation>Der Ordner für Sicherungen wird geprüft</translation>
    </message>
    <message>
        <source>Copying the shop</source>
        <translation>Die Geschäftsdaten werden kopiert</translation>
    </message>
    <message>
        <source>The days in the copy are not those of the shop.</source>
        <translation>Die Tage in der Kopie sind nicht die des Geschäfts.</translation>
    </message>
    <message>
        <source>Copying the settings</source>
        <translation>Die Einstellungen werden kopiert</translation>
    </message>
    <message>
        <source>Comparing the days</source>
        <translation>Die Tage werden verglichen</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>%1 wird kopiert</translation>
    </message>
    <message>
        <source>Looking at %1</source>
        <translation>%1 wird geprüft</translation>
    </message>
    <message>
        <source>Reading %1 back</source>
        <translation>%1 wird zurückgelesen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read back as it was written: the disk or stick is worn out.</source>
        <translation>%1 lässt sich nicht so zurücklesen, wie es geschrieben wurde: Die Platte oder der Stick ist verschlissen.</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Abschluss</translation>
    </message>
    <message>
        <source>No folder for backups has been chosen yet.</source>
        <translation>Es ist noch kein Ordner für Sicherungen gewählt.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now.</source>
        <translation>Diese Kasse wird gerade gesichert.</translation>
    </message>
    <message>
        <source>It does not say when it was made.</source>
        <translation>Es ist nicht vermerkt, wann sie erstellt wurde.</translation>
    </message>
    <message>
        <source>%1 is missing in it.</source>
        <translation>Darin fehlt %1.</translation>
    </message>
    <message>
        <source>%1 in it is not whole.</source>
        <translation>Darin ist %1 unvollständig.</translation>
    </message>
    <message>
        <source>Its list of files can&apos;t be read.</source>
        <translation>Die Dateiliste der Sicherung ist nicht lesbar.</translation>
    </message>
    <message>
        <source>%1 is no backup of a register.</source>
        <translation>%1 ist keine Sicherung einer Kasse.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, is not there. Is the stick or the disk plugged in?</source>
        <translation>Der Ordner für Sicherungen, %1, ist nicht da. Ist der Stick oder die Platte angesteckt?</translation>
    </message>
    <message>
        <source>%1 is no folder for backups.</source>
        <translation>%1 ist kein Ordner für Sicherungen.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can only be read.</source>
        <translation>Der Ordner für Sicherungen, %1, lässt sich nur lesen.</translation>
    </message>
    <message>
        <source>The folder for backups, %1, can&apos;t be written to.</source>
        <translation>In den Ordner für Sicherungen, %1, kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The backups need a folder outside of the register&apos;s own.</source>
        <translation>Die Sicherungen brauchen einen Ordner außerhalb des Ordners der Kasse.</translation>
    </message>
    <message>
        <source>The folder %1 is not the one that was chosen for backups. Is the right stick or disk plugged in? If it is, choose the folder anew.</source>
        <translation>Der Ordner %1 ist nicht der, der für Sicherungen gewählt wurde. Ist der richtige Stick oder die richtige Platte angesteckt? Wenn ja, den Ordner neu wählen.</translation>
    </message>
    <message>
        <source>The last good backup is of %1.</source>
        <translation>Die letzte gute Sicherung ist vom %1.</translation>
    </message>
    <message>
        <source>There is no good backup yet.</source>
        <translation>Es gibt noch keine gute Sicherung.</translation>
    </message>
    <message>
        <source>The backup of %1 could not be made: %2
%3</source>
        <translation>Die Sicherung vom %1 ist misslungen: %2
%3</translation>
    </message>
    <message>
        <source>No backup was made for more than three days, although the shop was selling.
%1</source>
        <translation>Seit mehr als drei Tagen wurde nicht gesichert, obwohl verkauft wurde.
%1</translation>
    </message>
    <message>
        <source>The stores are looked at.</source>
        <translation>Die Datenbanken werden geprüft.</translation>
    </message>
    <message>
        <source>The sales are read.</source>
        <translation>Die Verkäufe werden gelesen.</translation>
    </message>
    <message>
        <source>The invoices are looked at.</source>
        <translation>Die Rechnungen werden geprüft.</translation>
    </message>
    <message>
        <source>The goods are looked at.</source>
        <translation>Die Artikel werden geprüft.</translation>
    </message>
    <message>
        <source>The receipts are looked at.</source>
        <translation>Die Kassenbons werden geprüft.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 can&apos;t be brought to the disk</source>
        <translation>%1 kann nicht auf die Platte gebracht werden</translation>
    </message>
    <message>
        <source>%1 can&apos;t be renamed to %2</source>
        <translation>%1 lässt sich nicht in %2 umbenennen</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>There is too little room in %1: %2 are needed, and %3 are free.</source>
        <translation>In %1 ist zu wenig Platz: %2 werden gebraucht, %3 sind frei.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a formula. Copy the cell in the spreadsheet and paste it as a value.</source>
        <translation>„%1“ ist eine Formel. Die Zelle in der Tabellenkalkulation kopieren und als Wert einfügen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is an error that the spreadsheet shows instead of a value.</source>
        <translation>„%1“ ist ein Fehler, den die Tabellenkalkulation statt eines Wertes zeigt.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
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
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>Tax rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Identification number</source>
        <translation>Steuernummer</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Inhaber</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no number.</source>
        <translation>%1: „%2“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>%1: nothing in the file says whether &apos;%2&apos; has decimals or thousands. Say which sign divides the decimals.</source>
        <translation>%1: Nichts in der Datei zeigt, ob „%2“ Dezimalstellen oder Tausender hat. Bitte angeben, welches Zeichen die Dezimalstellen abtrennt.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not fit the other amounts, which have &apos;%3&apos; before the decimals.</source>
        <translation>%1: „%2“ passt nicht zu den anderen Beträgen, die „%3“ vor den Dezimalstellen haben.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; has more than four decimals.</source>
        <translation>%1: „%2“ hat mehr als vier Dezimalstellen.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is too large.</source>
        <translation>%1: „%2“ ist zu groß.</translation>
    </message>
    <message>
        <source>The look at the table was left.</source>
        <translation>Die Vorschau der Tabelle wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The click table has no such groups, so their goods keep their place: %1.</source>
        <translation>Diese Gruppen hat das Tastenfeld nicht, daher behalten ihre Artikel ihren Platz: %1.</translation>
    </message>
    <message>
        <source>No column is known to be the code of the goods. Say which one it is: %1.</source>
        <translation>Keine Spalte ist als Artikelnummer erkannt. Bitte angeben, welche es ist: %1.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos;.</source>
        <translation>Die Steuer „%1“ gibt es im Geschäft nicht.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;.</source>
        <translation>Die Einheit „%1“ gibt es im Geschäft nicht.</translation>
    </message>
    <message>
        <source>The goods are new, and only those that are there are changed.</source>
        <translation>Der Artikel ist neu, und nur vorhandene werden geändert.</translation>
    </message>
    <message>
        <source>The goods are there already, and only new ones are added.</source>
        <translation>Den Artikel gibt es schon, und nur neue werden angelegt.</translation>
    </message>
    <message>
        <source>The row has %1 cells, and the table has %2 columns.</source>
        <translation>Die Zeile hat %1 Zellen, die Tabelle %2 Spalten.</translation>
    </message>
    <message>
        <source>The row has no code.</source>
        <translation>Die Zeile hat keine Artikelnummer.</translation>
    </message>
    <message>
        <source>The code stands more than once in the file, in the lines %1.</source>
        <translation>Die Artikelnummer steht mehrmals in der Datei, in den Zeilen %1.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: &apos;%1&apos; is a number that it shortened. Give the column the format Text there and enter the code anew.</source>
        <translation>Die Tabellenkalkulation hat die Artikelnummer verdorben: „%1“ ist eine Zahl, die sie gekürzt hat. Der Spalte dort das Format Text geben und die Artikelnummer neu eingeben.</translation>
    </message>
    <message>
        <source>The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give the column the format Text there and enter the code anew.</source>
        <translation>Die Tabellenkalkulation hat die Artikelnummer verdorben: Im Geschäft gibt es %1, und die Nullen davor sind weg. Der Spalte dort das Format Text geben und die Artikelnummer neu eingeben.</translation>
    </message>
    <message>
        <source>The code has %1 characters, more than the %2 that the till takes.</source>
        <translation>Die Artikelnummer hat %1 Zeichen, mehr als die %2, die die Kasse annimmt.</translation>
    </message>
    <message>
        <source>The code has an apostrophe, by which the till could not find it.</source>
        <translation>Die Artikelnummer enthält ein Hochkomma; damit könnte die Kasse sie nicht finden.</translation>
    </message>
    <message>
        <source>The code has a line break or another control character in it.</source>
        <translation>Die Artikelnummer enthält einen Zeilenumbruch oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <source>New goods need a name.</source>
        <translation>Neue Artikel brauchen einen Namen.</translation>
    </message>
    <message>
        <source>%1: the text has %2 characters, more than the %3 that there is room for.</source>
        <translation>%1: Der Text hat %2 Zeichen, mehr als die %3, für die Platz ist.</translation>
    </message>
    <message>
        <source>%1: the text has a line break or another control character in it.</source>
        <translation>%1: Der Text enthält einen Zeilenumbruch oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <source>New goods need a price.</source>
        <translation>Neue Artikel brauchen einen Preis.</translation>
    </message>
    <message>
        <source>%1: the spreadsheet has shortened the number &apos;%2&apos;.</source>
        <translation>%1: Die Tabellenkalkulation hat die Zahl „%2“ gekürzt.</translation>
    </message>
    <message>
        <source>The price &apos;%1&apos; is below zero.</source>
        <translation>Der Preis „%1“ liegt unter null.</translation>
    </message>
    <message>
        <source>New goods need a unit, and none is said for those without one.</source>
        <translation>Neue Artikel brauchen eine Einheit, und für Artikel ohne Angabe ist keine gewählt.</translation>
    </message>
    <message>
        <source>New goods need a tax, and none is said for those without one.</source>
        <translation>Neue Artikel brauchen eine Steuer, und für Artikel ohne Angabe ist keine gewählt.</translation>
    </message>
    <message>
        <source>The tax &apos;%1&apos; has no rate.</source>
        <translation>Die Steuer „%1“ hat keinen Satz.</translation>
    </message>
    <message>
        <source>The shop has several taxes of %1; the code of one has to stand here.</source>
        <translation>Das Geschäft hat mehrere Steuern mit %1; hier muss das Kürzel einer davon stehen.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; of the click table has no free button.</source>
        <translation>Die Gruppe „%1“ des Tastenfelds hat keine freie Taste.</translation>
    </message>
    <message>
        <source>The table has no column &apos;%1&apos;. Its columns are: %2.</source>
        <translation>Die Tabelle hat keine Spalte „%1“. Ihre Spalten sind: %2.</translation>
    </message>
    <message>
        <source>It was removed since.</source>
        <translation>Wurde seither entfernt.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>It stays, since it has been sold.</source>
        <translation>Bleibt, da schon verkauft.</translation>
    </message>
    <message>
        <source>It stays, since it is part of a composition.</source>
        <translation>Bleibt, da Bestandteil einer Rezeptur.</translation>
    </message>
    <message>
        <source>It stays, since its %1 was changed.</source>
        <translation>Bleibt, da inzwischen geändert: %1.</translation>
    </message>
    <message>
        <source>Its %1 stays, since it was changed.</source>
        <translation>%1 bleibt, da inzwischen geändert.</translation>
    </message>
    <message>
        <source>It stays on its button, since its old one is another&apos;s.</source>
        <translation>Bleibt auf seiner Taste, da die alte anders belegt ist.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Es gibt nichts zurückzunehmen.</translation>
    </message>
    <message>
        <source>The look at the goods was left.</source>
        <translation>Die Vorschau der Artikel wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The goods have no price.</source>
        <translation>Der Artikel hat keinen Preis.</translation>
    </message>
    <message>
        <source>The price is below zero.</source>
        <translation>Der Preis liegt unter null.</translation>
    </message>
    <message>
        <source>The shop has no tax &apos;%1&apos; with a rate.</source>
        <translation>Eine Steuer „%1“ mit einem Satz gibt es im Geschäft nicht.</translation>
    </message>
    <message>
        <source>A column can&apos;t be &apos;%1&apos;. It can be %2 or none.</source>
        <translation>Eine Spalte kann nicht „%1“ sein, nur %2 oder keine.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;. %2</source>
        <translation>„%1“ kann nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>Save it in the spreadsheet as CSV and choose that file.</source>
        <translation>In der Tabellenkalkulation als CSV speichern und diese Datei wählen.</translation>
    </message>
    <message>
        <source>This is a workbook under a password. Open it with the password. %1</source>
        <translation>Das ist eine Arbeitsmappe mit Passwort. Bitte mit dem Passwort öffnen. %1</translation>
    </message>
    <message>
        <source>This is a workbook, not a text. %1</source>
        <translation>Das ist eine Arbeitsmappe, kein Text. %1</translation>
    </message>
    <message>
        <source>This is a packed file (zip). Unpack it; a table in it has to be a CSV file.</source>
        <translation>Das ist eine gepackte Datei (zip). Bitte entpacken; eine Tabelle darin muss eine CSV-Datei sein.</translation>
    </message>
    <message>
        <source>This is a PDF. Ask for the table itself, as CSV.</source>
        <translation>Das ist ein PDF. Bitte nach der Tabelle selbst fragen, als CSV.</translation>
    </message>
    <message>
        <source>This is a picture, not a table.</source>
        <translation>Das ist ein Bild, keine Tabelle.</translation>
    </message>
    <message>
        <source>This is a document of another kind, not a table of text. %1</source>
        <translation>Das ist ein Dokument anderer Art, keine Texttabelle. %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MB, which is more than a table of goods has. Divide it.</source>
        <translation>Die Datei ist größer als %1 MB, mehr als eine Artikeltabelle hat. Bitte aufteilen.</translation>
    </message>
    <message>
        <source>No encoding is called &apos;%1&apos;. Known are: %2.</source>
        <translation>Eine Kodierung „%1“ gibt es nicht. Bekannt sind: %2.</translation>
    </message>
    <message>
        <source>The file is not in the encoding %1: some of its bytes stand for no letter.</source>
        <translation>Die Datei ist nicht in der Kodierung %1: Einige ihrer Bytes stehen für keinen Buchstaben.</translation>
    </message>
    <message>
        <source>The row in line %1 makes the table larger than %2 columns or %3 cells.</source>
        <translation>Mit Zeile %1 wird die Tabelle größer als %2 Spalten oder %3 Zellen.</translation>
    </message>
    <message>
        <source>The table has more than %1 rows. Divide it.</source>
        <translation>Die Tabelle hat mehr als %1 Zeilen. Bitte aufteilen.</translation>
    </message>
    <message>
        <source>In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.</source>
        <translation>In Zeile %1 steht Text hinter einem schließenden Anführungszeichen. Innerhalb von Anführungszeichen muss ein solches verdoppelt sein.</translation>
    </message>
    <message>
        <source>The quotation mark in line %1 is never closed.</source>
        <translation>Das Anführungszeichen in Zeile %1 wird nie geschlossen.</translation>
    </message>
    <message>
        <source>The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV.</source>
        <translation>Die Datei ist kein Text: Sie enthält Zeichen, die keine Tabelle hat. In der Tabellenkalkulation als CSV speichern.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is damaged, so what it tells of can&apos;t be taken back.</source>
        <translation>„%1“ ist beschädigt; was darin steht, lässt sich nicht zurücknehmen.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; can&apos;t be made.</source>
        <translation>Der Ordner „%1“ lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>was added</source>
        <translation>wurde angelegt</translation>
    </message>
    <message>
        <source>was removed</source>
        <translation>wurde entfernt</translation>
    </message>
    <message>
        <source>The shop has changed since it was looked at, and nothing was written: %1. Look again.</source>
        <translation>Das Geschäft hat sich seit der Vorschau geändert, und nichts wurde übernommen: %1. Bitte noch einmal ansehen.</translation>
    </message>
    <message>
        <source>(%1)</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>(the rate of its tax)</source>
        <translation>(Satz der Steuer)</translation>
    </message>
    <message>
        <source>(its unit is gone)</source>
        <translation>(Einheit gibt es nicht mehr)</translation>
    </message>
    <message>
        <source>(its button is another&apos;s)</source>
        <translation>(Taste ist anders belegt)</translation>
    </message>
    <message>
        <source>%1 was removed, and nothing was written.</source>
        <translation>%1 wurde entfernt, und nichts wurde übernommen.</translation>
    </message>
    <message>
        <source>The writing was left; nothing was written.</source>
        <translation>Das Schreiben wurde abgebrochen; nichts wurde übernommen.</translation>
    </message>
    <message>
        <source>A file of the shop is not there.</source>
        <translation>Eine Datei des Geschäfts ist nicht da.</translation>
    </message>
    <message>
        <source>Don&apos;t sell on this till. Look whether the disk or the network drive is connected. If the file is gone, restore the last good backup, on the page Backup.</source>
        <translation>An dieser Kasse nicht verkaufen. Nachsehen, ob die Platte oder das Netzlaufwerk verbunden ist. Ist die Datei weg, die letzte gute Sicherung zurückspielen, auf der Seite „Sicherung“.</translation>
    </message>
    <message>
        <source>Another program holds the shop&apos;s data for itself.</source>
        <translation>Ein anderes Programm hält die Geschäftsdaten für sich allein.</translation>
    </message>
    <message>
        <source>Close other programs that work with the shop, such as a backup, and look again.</source>
        <translation>Andere Programme schließen, die mit dem Geschäft arbeiten, etwa eine Sicherung, und neu prüfen.</translation>
    </message>
    <message>
        <source>The computer with the shop&apos;s data does not answer.</source>
        <translation>Der Computer mit den Geschäftsdaten antwortet nicht.</translation>
    </message>
    <message>
        <source>Look whether that computer and the network are switched on, then look again. Nothing is lost.</source>
        <translation>Nachsehen, ob dieser Computer und das Netzwerk eingeschaltet sind, dann neu prüfen. Es ist nichts verloren.</translation>
    </message>
    <message>
        <source>The shop&apos;s data can be read but not changed.</source>
        <translation>Die Geschäftsdaten sind lesbar, aber nicht änderbar.</translation>
    </message>
    <message>
        <source>The files belong to another user of the computer, or the disk is write-protected. Whoever set up the computer can put that right.</source>
        <translation>Die Dateien gehören einem anderen Benutzer des Computers, oder die Platte ist schreibgeschützt. Wer den Computer eingerichtet hat, kann das beheben.</translation>
    </message>
    <message>
        <source>A file of the shop is damaged.</source>
        <translation>Eine Datei des Geschäfts ist beschädigt.</translation>
    </message>
    <message>
        <source>Stop selling on this till. Copy the whole folder of the register before anything else, then restore the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the disk looked at.</source>
        <translation>An dieser Kasse nicht weiter verkaufen. Vor allem anderen den ganzen Ordner der Kasse kopieren, dann die letzte gute Sicherung zurückspielen, auf der Seite „Sicherung“. Solche Schäden kommen von einer defekten Platte oder einem Stromausfall: die Platte prüfen lassen.</translation>
    </message>
    <message>
        <source>There are printed receipts that the shop&apos;s data lacks.</source>
        <translation>Es gibt gedruckte Kassenbons, die in den Geschäftsdaten fehlen.</translation>
    </message>
    <message>
        <source>Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in invoices.txt in the register&apos;s folder: tell the book-keeper their numbers.</source>
        <translation>Verkäufe gingen verloren, nach einem Stromausfall oder durch das Zurückspielen einer älteren Sicherung. Die Kassenbons stehen in invoices.txt im Ordner der Kasse: der Buchhaltung ihre Nummern nennen.</translation>
    </message>
    <message>
        <source>The settings of this till are damaged.</source>
        <translation>Die Einstellungen dieser Kasse sind beschädigt.</translation>
    </message>
    <message>
        <source>Restore the last good backup, on the page Backup.</source>
        <translation>Die letzte gute Sicherung zurückspielen, auf der Seite „Sicherung“.</translation>
    </message>
    <message numerus="yes">
        <source>Numbers in the sales that are no numbers: %n.</source>
        <translation>
            <numerusform>%n Zahl in den Verkäufen ist keine Zahl.</numerusform>
            <numerusform>%n Zahlen in den Verkäufen sind keine Zahlen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such rows out.</source>
        <translation>Tabellen wurden von anderswo übernommen oder von Hand geändert. Die Kasse arbeitet weiter; Berichte lassen solche Zeilen vielleicht aus.</translation>
    </message>
    <message numerus="yes">
        <source>Invoice numbers that stand twice: %n.</source>
        <translation>
            <numerusform>Doppelte Rechnungsnummern: %n.</numerusform>
            <numerusform>Doppelte Rechnungsnummern: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills sold under the same number; both invoices are there. Look that each till has a number of its own, and tell the book-keeper the invoices.</source>
        <translation>Zwei Kassen haben unter derselben Nummer verkauft; beide Rechnungen sind da. Jede Kasse braucht eine eigene Nummer; der Buchhaltung die Rechnungen nennen.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices without lines: %n.</source>
        <translation>
            <numerusform>Rechnungen ohne Zeilen: %n.</numerusform>
            <numerusform>Rechnungen ohne Zeilen: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>Eine Buchung wurde unterbrochen, etwa durch einen Stromausfall. Den Kassenbon auf Papier oder in invoices.txt suchen und der Buchhaltung melden.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that don&apos;t agree with the sum of their lines: %n.</source>
        <translation>
            <numerusform>Rechnungen, die nicht mit der Summe ihrer Zeilen übereinstimmen: %n.</numerusform>
            <numerusform>Rechnungen, die nicht mit der Summe ihrer Zeilen übereinstimmen: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: what is printed there counts. Tell the book-keeper.</source>
        <translation>Eine Buchung wurde unterbrochen, etwa durch einen Stromausfall. Den Kassenbon auf Papier oder in invoices.txt suchen: Was dort gedruckt ist, gilt. Der Buchhaltung melden.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices whose tax is not that of their lines: %n.</source>
        <translation>
            <numerusform>Rechnungen, deren Steuer nicht die ihrer Zeilen ist: %n.</numerusform>
            <numerusform>Rechnungen, deren Steuer nicht die ihrer Zeilen ist: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.</source>
        <translation>Eine Buchung wurde unterbrochen. Den Kassenbon auf Papier oder in invoices.txt suchen und der Buchhaltung melden.</translation>
    </message>
    <message numerus="yes">
        <source>Periods between two End Reports that stand twice: %n.</source>
        <translation>
            <numerusform>Doppelte Zeiträume zwischen zwei Tagesabschlüssen: %n.</numerusform>
            <numerusform>Doppelte Zeiträume zwischen zwei Tagesabschlüssen: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Two tills worked under the same number. Look that each till has a number of its own.</source>
        <translation>Zwei Kassen haben unter derselben Nummer gearbeitet. Jede Kasse braucht eine eigene Nummer.</translation>
    </message>
    <message numerus="yes">
        <source>Periods whose takings are not the sum of their invoices: %n.</source>
        <translation>
            <numerusform>Zeiträume, deren Umsatz nicht die Summe ihrer Rechnungen ist: %n.</numerusform>
            <numerusform>Zeiträume, deren Umsatz nicht die Summe ihrer Rechnungen ist: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax book by the invoices: tell the book-keeper of the difference.</source>
        <translation>Eine Buchung wurde unterbrochen, oder mehrere Kassen haben gleichzeitig verkauft. Der Tagesabschluss folgt dem Umsatz, das Rechnungsausgangsbuch den Rechnungen: der Buchhaltung die Differenz melden.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that are gone while their lines are there: %n.</source>
        <translation>
            <numerusform>Rechnungen, die fehlen, während ihre Zeilen da sind: %n.</numerusform>
            <numerusform>Rechnungen, die fehlen, während ihre Zeilen da sind: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Periods that are gone while their invoices are there: %n.</source>
        <translation>
            <numerusform>Zeiträume, die fehlen, während ihre Rechnungen da sind: %n.</numerusform>
            <numerusform>Zeiträume, die fehlen, während ihre Rechnungen da sind: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book but in no End Report: tell the book-keeper.</source>
        <translation>Zeilen wurden von Hand gelöscht, oder eine Sicherung wurde mit neueren Daten vermischt. Die Rechnungen stehen im Rechnungsausgangsbuch, aber in keinem Tagesabschluss: der Buchhaltung melden.</translation>
    </message>
    <message numerus="yes">
        <source>Products that were sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Verkaufte Artikel, die seither gelöscht wurden: %n.</numerusform>
            <numerusform>Verkaufte Artikel, die seither gelöscht wurden: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them as they were sold.</source>
        <translation>Es ist nichts zu tun: Berichte zeigen sie, wie sie verkauft wurden.</translation>
    </message>
    <message numerus="yes">
        <source>Cashiers who sold and have been deleted since: %n.</source>
        <translation>
            <numerusform>Kassierer, die verkauft haben und seither gelöscht wurden: %n.</numerusform>
            <numerusform>Kassierer, die verkauft haben und seither gelöscht wurden: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done: reports show them by their number.</source>
        <translation>Es ist nichts zu tun: Berichte zeigen sie mit ihrer Nummer.</translation>
    </message>
    <message numerus="yes">
        <source>Taxes that goods were sold under and that are gone: %n.</source>
        <translation>
            <numerusform>Steuern, unter denen verkauft wurde und die es nicht mehr gibt: %n.</numerusform>
            <numerusform>Steuern, unter denen verkauft wurde und die es nicht mehr gibt: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing has to be done for what is sold; see under Set-up that today&apos;s taxes are complete.</source>
        <translation>Für das Verkaufte ist nichts zu tun; unter „Einrichtung“ prüfen, ob die heutigen Steuern vollständig sind.</translation>
    </message>
    <message numerus="yes">
        <source>Invoices that were never printed on this till: %n.</source>
        <translation>
            <numerusform>Rechnungen, die an dieser Kasse nie gedruckt wurden: %n.</numerusform>
            <numerusform>Rechnungen, die an dieser Kasse nie gedruckt wurden: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another till sold them, or the printer failed. Print them once more from the list of invoices where the customer or the tax office needs the paper.</source>
        <translation>Eine andere Kasse hat sie verkauft, oder der Drucker hat versagt. Braucht der Kunde oder das Finanzamt das Papier, aus der Rechnungsliste noch einmal drucken.</translation>
    </message>
    <message numerus="yes">
        <source>Products with a tax that is not there: %n.</source>
        <translation>
            <numerusform>Artikel mit einer Steuer, die es nicht gibt: %n.</numerusform>
            <numerusform>Artikel mit einer Steuer, die es nicht gibt: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with another rate than that of their tax: %n.</source>
        <translation>
            <numerusform>Artikel mit einem anderen Satz als dem ihrer Steuer: %n.</numerusform>
            <numerusform>Artikel mit einem anderen Satz als dem ihrer Steuer: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rate was changed after they were saved. Give them the rate of their tax on the page Prices.</source>
        <translation>Der Satz wurde nach dem Speichern der Artikel geändert. Den Satz ihrer Steuer bekommen sie auf der Seite „Preise“.</translation>
    </message>
    <message numerus="yes">
        <source>Products without a tax rate, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Artikel ohne Steuersatz, die nicht verkauft werden können: %n.</numerusform>
            <numerusform>Artikel ohne Steuersatz, die nicht verkauft werden können: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products without a price, which can&apos;t be sold: %n.</source>
        <translation>
            <numerusform>Artikel ohne Preis, die nicht verkauft werden können: %n.</numerusform>
            <numerusform>Artikel ohne Preis, die nicht verkauft werden können: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with an apostrophe in the code, which the till can&apos;t look up: %n.</source>
        <translation>
            <numerusform>Artikel mit einem Hochkomma in der Artikelnummer, die die Kasse nicht findet: %n.</numerusform>
            <numerusform>Artikel mit einem Hochkomma in der Artikelnummer, die die Kasse nicht findet: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make the product anew under a code without it, and delete this one.</source>
        <translation>Den Artikel unter einer Artikelnummer ohne Hochkomma neu anlegen und diesen löschen.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code begins or ends with a blank: %n.</source>
        <translation>
            <numerusform>Artikel, deren Artikelnummer mit einem Leerzeichen beginnt oder endet: %n.</numerusform>
            <numerusform>Artikel, deren Artikelnummer mit einem Leerzeichen beginnt oder endet: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>A scanner doesn&apos;t find them. Make the product anew without the blank, and delete this one.</source>
        <translation>Ein Scanner findet sie nicht. Den Artikel ohne das Leerzeichen neu anlegen und diesen löschen.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose code is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Artikel, deren Artikelnummer länger ist als das Feld der Kasse: %n.</numerusform>
            <numerusform>Artikel, deren Artikelnummer länger ist als das Feld der Kasse: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.</source>
        <translation>Sie lassen sich nur über das Tastenfeld oder die Liste verkaufen. Eine Artikelnummer mit höchstens 13 Zeichen vergeben.</translation>
    </message>
    <message numerus="yes">
        <source>Products whose name is longer than the till&apos;s box takes: %n.</source>
        <translation>
            <numerusform>Artikel, deren Name länger ist als das Feld der Kasse: %n.</numerusform>
            <numerusform>Artikel, deren Name länger ist als das Feld der Kasse: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a unit that the till does not know: %n.</source>
        <translation>
            <numerusform>Artikel mit einer Einheit, die die Kasse nicht kennt: %n.</numerusform>
            <numerusform>Artikel mit einer Einheit, die die Kasse nicht kennt: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products with a stock below zero: %n.</source>
        <translation>
            <numerusform>Artikel mit einem Bestand unter null: %n.</numerusform>
            <numerusform>Artikel mit einem Bestand unter null: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products on a touch button that is not there: %n.</source>
        <translation>
            <numerusform>Artikel auf einer Taste, die es nicht gibt: %n.</numerusform>
            <numerusform>Artikel auf einer Taste, die es nicht gibt: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Touch buttons with more than one product: %n.</source>
        <translation>
            <numerusform>Tasten mit mehr als einem Artikel: %n.</numerusform>
            <numerusform>Tasten mit mehr als einem Artikel: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Products that compositions name and that are gone: %n.</source>
        <translation>
            <numerusform>Artikel, die in Rezepturen stehen und die es nicht mehr gibt: %n.</numerusform>
            <numerusform>Artikel, die in Rezepturen stehen und die es nicht mehr gibt: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Small tables with more or fewer rows than in a new shop: %n.</source>
        <translation>
            <numerusform>Kleine Tabellen mit mehr oder weniger Zeilen als in einem neuen Geschäft: %n.</numerusform>
            <numerusform>Kleine Tabellen mit mehr oder weniger Zeilen als in einem neuen Geschäft: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the row.</source>
        <translation>Tabellen wurden von Hand geändert. Dem Tastenfeld fehlt vielleicht ein Reiter; wer die Kasse betreut, kann die Zeile anlegen.</translation>
    </message>
    <message numerus="yes">
        <source>Missing indexes, so that the till gets slow: %n.</source>
        <translation>
            <numerusform>Fehlende Indizes, durch die die Kasse langsam wird: %n.</numerusform>
            <numerusform>Fehlende Indizes, durch die die Kasse langsam wird: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever looks after the till can make them anew: a backup that is restored has them again.</source>
        <translation>Wer die Kasse betreut, kann sie neu anlegen; eine zurückgespielte Sicherung hat sie wieder.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of this till without a value, at which it stops when it starts: %n.</source>
        <translation>
            <numerusform>Einstellungen dieser Kasse ohne Wert, an denen sie beim Start stehen bleibt: %n.</numerusform>
            <numerusform>Einstellungen dieser Kasse ohne Wert, an denen sie beim Start stehen bleibt: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Set them under Settings on the till, or on the page Set-up here.</source>
        <translation>In der Kasse unter Einstellungen setzen oder hier auf der Seite „Einrichtung“.</translation>
    </message>
    <message>
        <source>Something was found.</source>
        <translation>Etwas wurde gefunden.</translation>
    </message>
    <message>
        <source>Show it to whoever looks after the till.</source>
        <translation>Bitte dem zeigen, der die Kasse betreut.</translation>
    </message>
    <message>
        <source>The files of the shop and of this till are whole.</source>
        <translation>Die Dateien des Geschäfts und dieser Kasse sind unbeschädigt.</translation>
    </message>
    <message numerus="yes">
        <source>Every invoice agrees with its lines and taxes. Looked at: %n.</source>
        <translation>
            <numerusform>Jede Rechnung stimmt mit ihren Zeilen und Steuern überein. Geprüft: %n.</numerusform>
            <numerusform>Jede Rechnung stimmt mit ihren Zeilen und Steuern überein. Geprüft: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The takings of each End Report are the sum of its invoices.</source>
        <translation>Der Umsatz jedes Tagesabschlusses ist die Summe seiner Rechnungen.</translation>
    </message>
    <message>
        <source>The numbers of the invoices run on without a gap.</source>
        <translation>Die Rechnungsnummern laufen lückenlos.</translation>
    </message>
    <message numerus="yes">
        <source>Every printed receipt is in the shop&apos;s data. Looked at: %n.</source>
        <translation>
            <numerusform>Jeder gedruckte Kassenbon ist in den Geschäftsdaten. Geprüft: %n.</numerusform>
            <numerusform>Jeder gedruckte Kassenbon ist in den Geschäftsdaten. Geprüft: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every product can be sold, and is taxed as its tax says. Looked at: %n.</source>
        <translation>
            <numerusform>Jeder Artikel kann verkauft werden und wird nach seiner Steuer besteuert. Geprüft: %n.</numerusform>
            <numerusform>Jeder Artikel kann verkauft werden und wird nach seiner Steuer besteuert. Geprüft: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Since the last End Report</source>
        <translation>Seit dem letzten Tagesabschluss</translation>
    </message>
    <message>
        <source>Closed without an End Report</source>
        <translation>Ohne Tagesabschluss beendet</translation>
    </message>
    <message>
        <source>End Report %1 of %2</source>
        <translation>Tagesabschluss %1 vom %2</translation>
    </message>
    <message>
        <source>End Report %1</source>
        <translation>Tagesabschluss %1</translation>
    </message>
    <message>
        <source>The lines add up to something else.</source>
        <translation>Die Zeilen ergeben eine andere Summe.</translation>
    </message>
    <message>
        <source>The tax of the lines is another.</source>
        <translation>Die Steuer der Zeilen ist eine andere.</translation>
    </message>
    <message>
        <source>The takings are not the sum of the invoices.</source>
        <translation>Der Umsatz ist nicht die Summe der Rechnungen.</translation>
    </message>
    <message>
        <source>Numbers left out: %1.</source>
        <translation>Ausgelassene Nummern: %1.</translation>
    </message>
    <message>
        <source>Numbers twice: %1.</source>
        <translation>Doppelte Nummern: %1.</translation>
    </message>
    <message>
        <source>%1: no invoices.</source>
        <translation>%1: keine Rechnungen.</translation>
    </message>
    <message numerus="yes">
        <source>%1: invoices %n, total %2, tax %3.</source>
        <translation>
            <numerusform>%1: %n Rechnung, gesamt %2, Steuer %3.</numerusform>
            <numerusform>%1: %n Rechnungen, gesamt %2, Steuer %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell the book-keeper of the difference; the receipts count as they are printed.</source>
        <translation>Der Buchhaltung die Differenz melden; es gelten die Kassenbons, wie sie gedruckt sind.</translation>
    </message>
    <message>
        <source>%1 It differs.</source>
        <translation>%1 Abweichung.</translation>
    </message>
    <message>
        <source>Invoice %1</source>
        <translation>Rechnung %1</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>Cashier: %1</source>
        <translation>Kassierer: %1</translation>
    </message>
    <message>
        <source>Tax in it</source>
        <translation>Enthaltene MwSt.</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>GESAMT</translation>
    </message>
    <message>
        <source>A label is at least %1 mm wide and %2 mm high.</source>
        <translation>Ein Etikett ist mindestens %1 mm breit und %2 mm hoch.</translation>
    </message>
    <message>
        <source>A label is at most %1 mm wide and high.</source>
        <translation>Ein Etikett ist höchstens %1 mm breit und hoch.</translation>
    </message>
    <message>
        <source>A sheet has at least one label.</source>
        <translation>Ein Bogen hat mindestens ein Etikett.</translation>
    </message>
    <message>
        <source>The labels side by side are %1 mm wide; the sheet has %2 mm.</source>
        <translation>Die Etiketten nebeneinander sind %1 mm breit; der Bogen hat %2 mm.</translation>
    </message>
    <message>
        <source>The labels one below the other are %1 mm high; the sheet has %2 mm.</source>
        <translation>Die Etiketten untereinander sind %1 mm hoch; der Bogen hat %2 mm.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no amount above zero.</source>
        <translation>„%1“ ist kein Betrag über null.</translation>
    </message>
    <message>
        <source>There is no amount. Type some, with a blank between two.</source>
        <translation>Es ist kein Betrag da. Bitte Beträge eingeben, durch Leerzeichen getrennt.</translation>
    </message>
    <message>
        <source>The work was left.</source>
        <translation>Die Arbeit wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Without tax</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kassierer</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Kasse</translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation>Umsatz nach Kassierern</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Sales by product</source>
        <translation>Umsatz nach Artikeln</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Tax book by day</source>
        <translation>Rechnungsausgangsbuch nach Tagen</translation>
    </message>
    <message>
        <source>First invoice</source>
        <translation>Erste Rechnung</translation>
    </message>
    <message>
        <source>Last invoice</source>
        <translation>Letzte Rechnung</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>End Reports</source>
        <translation>Tagesabschlüsse</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Business hours</source>
        <translation>Kassenzeiten</translation>
    </message>
    <message>
        <source>Goods in stock</source>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>Worth</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged: %2</source>
        <translation>%1 in der Sicherung ist beschädigt: %2</translation>
    </message>
    <message>
        <source>Putting the shop in its place</source>
        <translation>Die Geschäftsdaten werden eingesetzt</translation>
    </message>
    <message>
        <source>%1 is missing in the backup.</source>
        <translation>In der Sicherung fehlt %1.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>The list of files of the backup is damaged.</source>
        <translation>Die Dateiliste der Sicherung ist beschädigt.</translation>
    </message>
    <message>
        <source>%1 in the backup is damaged.</source>
        <translation>%1 in der Sicherung ist beschädigt.</translation>
    </message>
    <message>
        <source>Checking the backup</source>
        <translation>Die Sicherung wird geprüft</translation>
    </message>
    <message>
        <source>The days in the backup&apos;s shop are not those that it was made with.</source>
        <translation>Die Tage in den gesicherten Geschäftsdaten sind nicht die, mit denen die Sicherung erstellt wurde.</translation>
    </message>
    <message>
        <source>The days on the server are not those of the backup.</source>
        <translation>Die Tage auf dem Server sind nicht die der Sicherung.</translation>
    </message>
    <message>
        <source>There is no backup %1.</source>
        <translation>Eine Sicherung %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The till of this register is open. Close it first.</source>
        <translation>Das Kassenprogramm dieser Kasse ist offen. Bitte zuerst schließen.</translation>
    </message>
    <message>
        <source>A backup of this register is being made just now. Try again in a minute.</source>
        <translation>Diese Kasse wird gerade gesichert. In einer Minute noch einmal versuchen.</translation>
    </message>
    <message>
        <source>A restore was not ended. Start the till once.</source>
        <translation>Ein Zurückspielen wurde nicht beendet. Die Kasse einmal starten.</translation>
    </message>
    <message>
        <source>velton.ini, line %1: %2 can&apos;t be &quot;%3&quot;, only a number from %4 to %5.</source>
        <translation>velton.ini, Zeile %1: %2 kann nicht „%3“ sein, nur eine Zahl von %4 bis %5.</translation>
    </message>
    <message>
        <source>products with a stock below zero</source>
        <translation>Artikel mit einem Bestand unter null</translation>
    </message>
    <message>
        <source>products on a button that is not there</source>
        <translation>Artikel auf einer Taste, die es nicht gibt</translation>
    </message>
    <message>
        <source>buttons of the click table with more than one product</source>
        <translation>Tasten des Tastenfelds mit mehr als einem Artikel</translation>
    </message>
    <message>
        <source>tables with more or fewer rows than delivered</source>
        <translation>Tabellen mit mehr oder weniger Zeilen als bei der Auslieferung</translation>
    </message>
    <message>
        <source>indexes that are missing, so that lookups are slow or keys not unique</source>
        <translation>fehlende Indizes, durch die die Suche langsam wird oder Schlüssel mehrfach vorkommen können</translation>
    </message>
    <message>
        <source>Open period</source>
        <translation>Offener Zeitraum</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>Zeilen %1</translation>
    </message>
    <message>
        <source>tax of the lines %1</source>
        <translation>Steuer der Zeilen %1</translation>
    </message>
    <message>
        <source>takings %1</source>
        <translation>Umsatz %1</translation>
    </message>
    <message>
        <source>numbers left out %1</source>
        <translation>ausgelassene Nummern %1</translation>
    </message>
    <message>
        <source>numbers twice %1</source>
        <translation>doppelte Nummern %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 vom %2</translation>
    </message>
    <message>
        <source>%1: no invoices</source>
        <translation>%1: keine Rechnungen</translation>
    </message>
    <message>
        <source>%1: 1 invoice, total %2, tax %3</source>
        <translation>%1: 1 Rechnung, gesamt %2, Steuer %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n invoices, total %2, tax %3</source>
        <translation>
            <numerusform>%1: %n Rechnung, gesamt %2, Steuer %3</numerusform>
            <numerusform>%1: %n Rechnungen, gesamt %2, Steuer %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, numbers %2</source>
        <translation>%1, Nummern %2</translation>
    </message>
    <message>
        <source>%1; all agrees</source>
        <translation>%1; alles stimmt überein</translation>
    </message>
    <message>
        <source>%1; differs: %2</source>
        <translation>%1; Abweichung: %2</translation>
    </message>
    <message>
        <source>Main store</source>
        <translation>Hauptdatenbank</translation>
    </message>
    <message>
        <source>Options store</source>
        <translation>Datenbank der Einstellungen</translation>
    </message>
    <message>
        <source>The ribbon of printed invoices has receipts that the store lacks: %1</source>
        <translation>Das Journal enthält Kassenbons, die in der Datenbank fehlen: %1</translation>
    </message>
    <message>
        <source>invoices that are not on the ribbon (never printed, or by another register)</source>
        <translation>Rechnungen, die nicht im Journal stehen (nie gedruckt oder von einer anderen Kasse)</translation>
    </message>
    <message>
        <source>%1 that stands more than once</source>
        <translation>%1 mehrfach vorhanden</translation>
    </message>
    <message>
        <source>%1 (%2, not %3)</source>
        <translation>%1 (%2, nicht %3)</translation>
    </message>
    <message>
        <source>%1 that is no number</source>
        <translation>%1 ohne Zahl als Wert</translation>
    </message>
    <message>
        <source>invoices whose total is not the sum of their lines</source>
        <translation>Rechnungen, deren Gesamtbetrag nicht die Summe ihrer Zeilen ist</translation>
    </message>
    <message>
        <source>invoices whose tax is not the sum of their lines&apos; tax</source>
        <translation>Rechnungen, deren Steuer nicht die Summe der Steuern ihrer Zeilen ist</translation>
    </message>
    <message>
        <source>periods whose total is not the sum of their invoices</source>
        <translation>Zeiträume, deren Umsatz nicht die Summe ihrer Rechnungen ist</translation>
    </message>
    <message>
        <source>settings without a value, which start-up stops at</source>
        <translation>Einstellungen ohne Wert, an denen der Start stehen bleibt</translation>
    </message>
    <message>
        <source>Options store: Options has %1 rows instead of one.</source>
        <translation>Datenbank der Einstellungen: Options hat %1 Zeilen statt einer.</translation>
    </message>
    <message>
        <source>The totals of the days can&apos;t be read.</source>
        <translation>Die Tagessummen sind nicht lesbar.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>goods with a tax that is not there</source>
        <translation>Artikel mit einer Steuer, die es nicht gibt</translation>
    </message>
    <message>
        <source>goods with another rate than that of their tax</source>
        <translation>Artikel mit einem anderen Satz als dem ihrer Steuer</translation>
    </message>
    <message>
        <source>goods without a tax rate, which can&apos;t be sold</source>
        <translation>Artikel ohne Steuersatz, die nicht verkauft werden können</translation>
    </message>
    <message>
        <source>goods without a price, which can&apos;t be sold</source>
        <translation>Artikel ohne Preis, die nicht verkauft werden können</translation>
    </message>
    <message>
        <source>goods with an apostrophe in the code, which can&apos;t be looked up</source>
        <translation>Artikel mit einem Hochkomma in der Artikelnummer, die nicht gefunden werden</translation>
    </message>
    <message>
        <source>goods with blanks at an end of the code</source>
        <translation>Artikel mit Leerzeichen am Anfang oder Ende der Artikelnummer</translation>
    </message>
    <message>
        <source>goods with a code longer than its box</source>
        <translation>Artikel, deren Artikelnummer länger ist als ihr Feld</translation>
    </message>
    <message>
        <source>goods with a name longer than its box</source>
        <translation>Artikel, deren Name länger ist als sein Feld</translation>
    </message>
    <message>
        <source>goods with a unit that is not there</source>
        <translation>Artikel mit einer Einheit, die es nicht gibt</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1 that has no %2</source>
        <translation>%1 ohne %2</translation>
    </message>
    <message>
        <source>The copy of the store is not the same; nothing was changed.</source>
        <translation>Die Kopie der Datenbank stimmt nicht überein; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>There is no line of field names.</source>
        <translation>Es fehlt die Zeile mit den Feldnamen.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>A control character inside a text is written \r or \0.</source>
        <translation>Ein Steuerzeichen in einem Text wird \r oder \0 geschrieben.</translation>
    </message>
    <message>
        <source>The field &apos;%1&apos; stands there twice.</source>
        <translation>Das Feld „%1“ kommt zweimal vor.</translation>
    </message>
    <message>
        <source>%1 cells for %2 fields.</source>
        <translation>%1 Zellen für %2 Felder.</translation>
    </message>
    <message>
        <source>The store has no table &apos;%1&apos;.</source>
        <translation>Die Datenbank hat keine Tabelle „%1“.</translation>
    </message>
    <message>
        <source>The table %1 has no field &apos;%2&apos;.</source>
        <translation>Die Tabelle %1 hat kein Feld „%2“.</translation>
    </message>
    <message>
        <source>Field %1: %2</source>
        <translation>Feld %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number with up to four decimals.</source>
        <translation>„%1“ ist keine Zahl mit höchstens vier Dezimalstellen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number within the range of a column.</source>
        <translation>„%1“ ist keine Zahl im Wertebereich der Spalte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date (yyyy-mm-dd).</source>
        <translation>„%1“ ist kein Datum (jjjj-mm-tt).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no time (hh:mm:ss).</source>
        <translation>„%1“ ist keine Uhrzeit (hh:mm:ss).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no yes/no (True, False).</source>
        <translation>„%1“ ist weder Ja noch Nein (True, False).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text: a backslash is written \\ (known are \t \n \r \0 \\).</source>
        <translation>„%1“ ist kein Text: Ein Backslash wird \\ geschrieben (bekannt sind \t \n \r \0 \\).</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>Der Text ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>The shop has no unit &apos;%1&apos;. It has: %2.</source>
        <translation>Die Einheit „%1“ gibt es im Geschäft nicht. Es hat: %2.</translation>
    </message>
    <message>
        <source>This is a store, not a table.</source>
        <translation>Das ist eine Datenbank, keine Tabelle.</translation>
    </message>
    <message>
        <source>Choose one of today&apos;s taxes for them at the till under Products, View - Edit - Delete Products, or add the tax on the page Set-up.</source>
        <translation>An der Kasse unter Artikel, Artikel ansehen - ändern - löschen eine der heutigen Steuern wählen oder die Steuer auf der Seite „Einrichtung“ anlegen.</translation>
    </message>
    <message>
        <source>Choose their tax at the till under Products, View - Edit - Delete Products, and save.</source>
        <translation>An der Kasse unter Artikel, Artikel ansehen - ändern - löschen ihre Steuer wählen und speichern.</translation>
    </message>
    <message>
        <source>Give them a price at the till under Products, View - Edit - Delete Products, or take them in anew on the page Goods.</source>
        <translation>An der Kasse unter Artikel, Artikel ansehen - ändern - löschen einen Preis eingeben oder sie auf der Seite „Artikel“ neu einlesen.</translation>
    </message>
    <message>
        <source>Receipts cut it. Shorten it to 40 characters at the till under Products, View - Edit - Delete Products.</source>
        <translation>Kassenbons schneiden ihn ab. An der Kasse unter Artikel, Artikel ansehen - ändern - löschen auf 40 Zeichen kürzen.</translation>
    </message>
    <message>
        <source>Choose one of the units for them at the till under Products, View - Edit - Delete Products, or add the unit on the page Set-up.</source>
        <translation>An der Kasse unter Artikel, Artikel ansehen - ändern - löschen eine der Einheiten wählen oder die Einheit auf der Seite „Einrichtung“ anlegen.</translation>
    </message>
    <message>
        <source>More was sold than was entered. Enter the delivery, or count them and correct the stock at the till under Products, View - Edit - Delete Products.</source>
        <translation>Es wurde mehr verkauft als eingegeben. Die Lieferung eingeben, oder zählen und den Bestand an der Kasse unter Artikel, Artikel ansehen - ändern - löschen berichtigen.</translation>
    </message>
    <message>
        <source>Give them another button at the till under Settings, Click Table.</source>
        <translation>An der Kasse unter Einstellungen, Tastenfeld eine andere Taste vergeben.</translation>
    </message>
    <message>
        <source>The button sells one of them alone. Give the others another button at the till under Settings, Click Table.</source>
        <translation>Die Taste verkauft nur einen davon. Den anderen an der Kasse unter Einstellungen, Tastenfeld eine andere Taste geben.</translation>
    </message>
    <message>
        <source>Selling such a composition takes nothing from the stock of what is gone. Open the composition at the till under Products, View - Edit - Delete Products, and mend it.</source>
        <translation>Beim Verkauf nach einer solchen Rezeptur wird vom Fehlenden kein Bestand abgezogen. Die Rezeptur an der Kasse unter Artikel, Artikel ansehen - ändern - löschen öffnen und berichtigen.</translation>
    </message>
    <message>
        <source>Comparing the copy</source>
        <translation>Die Kopie wird verglichen</translation>
    </message>
    <message>
        <source>There are no pictures in %1: it has no folder %2.</source>
        <translation>In %1 sind keine Bilder: Der Ordner %2 fehlt.</translation>
    </message>
</context>
<context>
    <name>values</name>
    <message>
        <source>The number is too large.</source>
        <translation>Die Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>The value is not of the kind that is needed here.</source>
        <translation>Der Wert ist nicht von der Art, die hier gebraucht wird.</translation>
    </message>
    <message>
        <source>A value is needed here, but the field is empty.</source>
        <translation>Hier wird ein Wert gebraucht, aber das Feld ist leer.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>„%1“ ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Cannot copy &apos;%1&apos;: %2</source>
        <translation>„%1“ lässt sich nicht kopieren: %2</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be opened.</source>
        <translation>Der Ordner %1 lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Cannot open &apos;%1&apos;: %2</source>
        <translation>„%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in UTF-8 and can&apos;t be changed.</source>
        <translation>„%1“ ist nicht in UTF-8 und lässt sich nicht ändern.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is no file.</source>
        <translation>%1 ist nicht lesbar: Es ist keine Datei.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is too long.</source>
        <translation>%1 ist nicht lesbar: Es ist zu lang.</translation>
    </message>
    <message>
        <source>Division by zero.</source>
        <translation>Division durch null.</translation>
    </message>
</context>
</TS>
