<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sr_RS" sourcelanguage="en">
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sačuvaj</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Sačuvaj sve</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvori</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Da</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>D&amp;a za sve</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;e za sve</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Prekini</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Pokušaj ponovo</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Zanemari</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Odbaci</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Primeni</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Poništi</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Vrati početne vrednosti</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sačuvaj</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Odus&amp;tani</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zatvori</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Prikaži detalje...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Sakrij detalje...</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Pogledaj u:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Nazad</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Idi nazad</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Napred</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Idi napred</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Nadređena fascikla</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Idi u nadređenu fasciklu</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Napravi novu fasciklu</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Napravi novu fasciklu</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nova fascikla</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nova fascikla</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Prikaz liste</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Prikaži kao listu</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detaljan prikaz</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Prikaži sa detaljima</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Bočna traka</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Spisak mesta i oznaka</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Datoteke</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Vrsta datoteka:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Ime datoteke:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Fascikla:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Fascikle</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Izaberi fasciklu</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Izaberi</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvori</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otvori</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sačuvaj</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Sačuvaj kao</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>P&amp;reimenuj</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>O&amp;briši</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Obriši</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ukloni</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Prikaži </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Prikaži &amp;skrivene datoteke</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Nedavna mesta</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Sve datoteke (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Sve datoteke (*)</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Fascikla nije nađena.
Proverite da li je ime fascikle ispravno.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Datoteka nije nađena.
Proverite da li je ime datoteke ispravno.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 već postoji.
Želite li da je zamenite?</translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>'%1' je zaštićeno od upisa.
Obrisati ipak?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>Zaista obrisati '%1'?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Fascikla ne može da se obriše.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Ime</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veličina</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Vrsta</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Izmenjeno</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Računar</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Disk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datoteka</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Fascikla</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Fascikla</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Prečica</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nepoznato</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Opozovi</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Po&amp;novi</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Iseci</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiraj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Na&amp;lepi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Obriši</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Označi sve</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Opozovi</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Po&amp;novi</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Iseci</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiraj</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiraj &amp;adresu veze</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Na&amp;lepi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Obriši</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Označi sve</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Umetni kontrolni znak Unicode</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Označi sve</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Po&amp;većaj</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Smanji</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Pomeri ovde</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Na vrh</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Na dno</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Leva ivica</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Desna ivica</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Strana gore</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Strana dole</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Strana levo</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Strana desno</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Pomeri gore</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Pomeri dole</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Pomeri levo</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Pomeri desno</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Pomeri levo</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Pomeri desno</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Pristup nije dozvoljen</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Otvoreno je previše datoteka</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Nema takve datoteke ni fascikle</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Na uređaju nema više mesta</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>to je fascikla, a ne datoteka</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Nepoznata greška</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>U postojeću datoteku %1 ne može da se upisuje</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Ime pripada fascikli</translation>
    </message>
    <message>
        <source>QSaveFile cannot open '%1' without direct write fallback enabled.</source>
        <translation>U fascikli datoteke '%1' ne može da se upisuje.</translation>
    </message>
</context>
</TS>
