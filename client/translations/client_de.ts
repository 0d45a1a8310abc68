<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>main</name>
    <message>
        <source>there is no display to show the window on; --run needs none</source>
        <translation>Es gibt keine Anzeige für das Fenster; --run braucht keine</translation>
    </message>
    <message>
        <source>--language takes one of %1, not &quot;%2&quot;</source>
        <translation>--language nimmt eine von %1, nicht „%2“</translation>
    </message>
    <message>
        <source>%1 (see orda_client --help)</source>
        <translation>%1 (siehe orda_client --help)</translation>
    </message>
</context>
<context>
    <name>orda_client::AboutDialog</name>
    <message>
        <source>About Batch Configuration</source>
        <translation>Über Sammelkonfiguration</translation>
    </message>
    <message>
        <source>Batch Configuration %1</source>
        <translation>Sammelkonfiguration %1</translation>
    </message>
    <message>
        <source>Configures many cameras and recorders at once.</source>
        <translation>Konfiguriert viele Kameras und Rekorder auf einmal.</translation>
    </message>
    <message>
        <source>Free under the MIT licence.</source>
        <translation>Frei unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Made with Qt %1, wslay, RapidJSON, libcsv and SQLite, which have licences of their own.</source>
        <translation>Mit Qt %1, wslay, RapidJSON, libcsv und SQLite gemacht, die eigene Lizenzen haben.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>orda_client::ChosenRunPane</name>
    <message>
        <source>Failures by message</source>
        <translation>Fehler nach Meldung</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>Geräte des Laufs</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses, messages and values</source>
        <translation>Sucht in Namen, Seriennummern, Adressen, Meldungen und Werten</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Nicht erledigt</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message>
        <source>Choose a run above.</source>
        <translation>Wählen Sie oben einen Lauf.</translation>
    </message>
    <message>
        <source>Failures by &amp;message</source>
        <translation>Fehler nach &amp;Meldung</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open inventory…</source>
        <translation>Bestand &amp;öffnen …</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Import devices from CSV…</source>
        <translation>Geräte aus CSV &amp;importieren …</translation>
    </message>
    <message>
        <source>Makes an inventory of a table of devices</source>
        <translation>Macht aus einer Gerätetabelle einen Bestand</translation>
    </message>
    <message>
        <source>&amp;Export devices as CSV…</source>
        <translation>Geräte als CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Saves the devices of the inventory as a table for spreadsheets</source>
        <translation>Speichert die Geräte des Bestands als Tabelle für Tabellenkalkulationen</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>Ein&amp;stellungen …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Geräte</translation>
    </message>
    <message>
        <source>Lists all devices of the inventory, their states and the reasons</source>
        <translation>Listet alle Geräte des Bestands mit Zustand und Grund auf</translation>
    </message>
    <message>
        <source>&amp;Connect again</source>
        <translation>Erneut &amp;verbinden</translation>
    </message>
    <message>
        <source>Tries the devices again that refused the sign-on</source>
        <translation>Versucht es erneut bei den Geräten, die die Anmeldung abgelehnt haben</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Lauf</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>What Configure would change on each ticked device; nothing is written</source>
        <translation>Was Konfigurieren auf jedem angehakten Gerät ändern würde; es wird nichts geschrieben</translation>
    </message>
    <message>
        <source>&amp;Compare with a standard</source>
        <translation>Mit einem &amp;Standard vergleichen</translation>
    </message>
    <message>
        <source>The present settings of the ticked devices beside a standard; nothing is written</source>
        <translation>Die jetzigen Einstellungen der angehakten Geräte neben einem Standard; es wird nichts geschrieben</translation>
    </message>
    <message>
        <source>&amp;Runs</source>
        <translation>&amp;Läufe</translation>
    </message>
    <message>
        <source>What runs did to the devices; tries again, verifies, takes back, compares</source>
        <translation>Was Läufe mit den Geräten gemacht haben; erneut versuchen, überprüfen, zurücknehmen, vergleichen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>Hand&amp;buch</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>No inventory has been opened yet</source>
        <translation>Es wurde noch kein Bestand geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Find cameras…</source>
        <translation>&amp;Kameras finden …</translation>
    </message>
    <message>
        <source>Searches the local network for ONVIF cameras when told to, and puts them into the inventory</source>
        <translation>Sucht auf Befehl im lokalen Netz nach ONVIF-Kameras und nimmt sie in den Bestand auf</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientOptions</name>
    <message>
        <source>Bring N simulated devices along.</source>
        <translation>N simulierte Geräte mitbringen.</translation>
    </message>
    <message>
        <source>Connect to the devices of this inventory file.</source>
        <translation>Mit den Geräten dieser Bestandsdatei verbinden.</translation>
    </message>
    <message>
        <source>Faults of the simulated devices (with --demo).</source>
        <translation>Fehler der simulierten Geräte (mit --demo).</translation>
    </message>
    <message>
        <source>Language of the window, such as &quot;en&quot;; the system&apos;s when not given.</source>
        <translation>Sprache des Fensters, etwa „en“; ohne Angabe die des Systems.</translation>
    </message>
    <message>
        <source>Devices to configure with --run: &quot;all&quot; (default) or ids with commas.</source>
        <translation>Mit --run zu konfigurierende Geräte: „all“ (Vorgabe) oder Kennungen mit Kommas.</translation>
    </message>
    <message>
        <source>Save pictures of the pages, the run and its summary here (with --run).</source>
        <translation>Bilder der Seiten, des Laufs und seiner Zusammenfassung hier ablegen (mit --run).</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>--demo takes a number of devices from 1 to %1, not &quot;%2&quot;</source>
        <translation>--demo nimmt eine Anzahl von Geräten von 1 bis %1, nicht „%2“</translation>
    </message>
    <message>
        <source>--demo and --inventory exclude each other</source>
        <translation>--demo und --inventory schließen einander aus</translation>
    </message>
    <message>
        <source>--faults needs --demo: only simulated devices have faults to order</source>
        <translation>--faults braucht --demo: nur simulierte Geräte haben Fehler auf Bestellung</translation>
    </message>
    <message>
        <source>--run takes one of %1, not &quot;%2&quot;</source>
        <translation>--run nimmt eine von %1, nicht „%2“</translation>
    </message>
    <message>
        <source>--run needs devices: --demo N or --inventory FILE</source>
        <translation>--run braucht Geräte: --demo N oder --inventory DATEI</translation>
    </message>
    <message>
        <source>--devices takes &quot;all&quot; or device ids with commas between them</source>
        <translation>--devices nimmt „all“ oder Gerätekennungen mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>--screenshots: cannot make the directory &quot;%1&quot;</source>
        <translation>--screenshots: Verzeichnis „%1“ kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;; as the desktop is when not given.</source>
        <translation>„light“ (hell) oder „dark“ (dunkel); ohne Angabe wie der Desktop.</translation>
    </message>
    <message>
        <source>--theme takes light or dark, not &quot;%1&quot;</source>
        <translation>--theme nimmt light oder dark, nicht „%1“</translation>
    </message>
    <message>
        <source>--inventory takes a file</source>
        <translation>--inventory nimmt eine Datei</translation>
    </message>
    <message>
        <source>Configures many online cameras and recorders at once.

Exit codes: 0 every device was configured, 1 some were not, 2 wrong usage, 3 a file is wrong, 4 no device, 5 nothing configured because the record is in use, 6 the record of the run is missing or not whole.</source>
        <translation>Konfiguriert viele Kameras und Rekorder, die online sind, auf einmal.

Rückgabewerte: 0 alle Geräte konfiguriert, 1 einige nicht, 2 falscher Aufruf, 3 eine Datei ist falsch, 4 kein Gerät, 5 nichts konfiguriert, weil das Protokoll benutzt wird, 6 das Protokoll des Laufs fehlt oder ist unvollständig.</translation>
    </message>
    <message>
        <source>Let --run write to the devices of an inventory.</source>
        <translation>--run darf auf die Geräte eines Bestands schreiben.</translation>
    </message>
    <message>
        <source>--devices, --screenshots and --yes need --run</source>
        <translation>--devices, --screenshots und --yes brauchen --run</translation>
    </message>
    <message>
        <source>Drive the form without a person: one run of FAMILY (%1) with the form&apos;s default values, then exit. For demos and pictures; orda_batch(1) sets values of your own.</source>
        <translation>Das Formular ohne Bediener fahren: ein Lauf von FAMILY (%1) mit den Vorgabewerten des Formulars, dann Ende. Für Vorführungen und Bilder; eigene Werte setzt orda_batch(1).</translation>
    </message>
    <message>
        <source>--run with --inventory writes the form&apos;s default values to real devices: add --yes if that is meant, or set values of your own with orda_batch(1)</source>
        <translation>--run mit --inventory schreibt die Vorgabewerte des Formulars auf echte Geräte: mit --yes, wenn das gemeint ist; eigene Werte setzt orda_batch(1)</translation>
    </message>
    <message>
        <source>M simulated ONVIF cameras beside them (with --demo).</source>
        <translation>Daneben M simulierte ONVIF-Kameras (mit --demo).</translation>
    </message>
    <message>
        <source>--onvif takes a number of cameras from 1 to %1, not &quot;%2&quot;</source>
        <translation>--onvif nimmt eine Anzahl von Kameras von 1 bis %1, nicht „%2“</translation>
    </message>
    <message>
        <source>--onvif needs --demo: it brings simulated cameras along</source>
        <translation>--onvif braucht --demo: es bringt simulierte Kameras mit</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientSession</name>
    <message>
        <source>%1. Nothing was written to devices after that.</source>
        <translation>%1. Danach wurde auf Geräte nichts mehr geschrieben.</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientSettings</name>
    <message>
        <source>It is kept until the client ends, and no longer: the file of the settings cannot be written.</source>
        <translation>Das gilt nur, bis das Programm endet: Die Datei der Einstellungen kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientStatusBar</name>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%1 von %n Gerät online</numerusform>
            <numerusform>%1 von %n Geräten online</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ClientWindow</name>
    <message>
        <source>Batch Configuration</source>
        <translation>Sammelkonfiguration</translation>
    </message>
    <message>
        <source>%1 – Batch Configuration</source>
        <translation>%1 – Sammelkonfiguration</translation>
    </message>
    <message numerus="yes">
        <source>Demo with %n device(s) – Batch Configuration</source>
        <translation>
            <numerusform>Demo mit %n Gerät – Sammelkonfiguration</numerusform>
            <numerusform>Demo mit %n Geräten – Sammelkonfiguration</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was configured: %n device(s) of the preview cannot be configured any more. Preview again.</source>
        <translation>
            <numerusform>Es wurde nichts konfiguriert: %n Gerät der Vorschau lässt sich nicht mehr konfigurieren. Erneuern Sie die Vorschau.</numerusform>
            <numerusform>Es wurde nichts konfiguriert: %n Geräte der Vorschau lassen sich nicht mehr konfigurieren. Erneuern Sie die Vorschau.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::CloseQuestion</name>
    <message>
        <source>A run is going on</source>
        <translation>Ein Lauf ist im Gange</translation>
    </message>
    <message>
        <source>Closing ends the run. Devices that have not answered may have been configured all the same.</source>
        <translation>Das Schließen bricht den Lauf ab. Geräte, die noch nicht geantwortet haben, können trotzdem schon konfiguriert sein.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>Keep waiting</source>
        <translation>Weiter warten</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) have not answered</source>
        <translation>
            <numerusform>%1 von %n Gerät hat nicht geantwortet</numerusform>
            <numerusform>%1 von %n Geräten haben nicht geantwortet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::CompareModel</name>
    <message>
        <source>not read yet</source>
        <translation>noch nicht gelesen</translation>
    </message>
    <message>
        <source>not reached: %1</source>
        <comment>reason</comment>
        <translation>nicht erreicht: %1</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>could not be read: %1</source>
        <comment>message of the device</comment>
        <translation>Lesen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Differs in</source>
        <translation>Abweichungen</translation>
    </message>
    <message>
        <source>%1, and the standard: %2</source>
        <comment>value of the device, value of the standard</comment>
        <translation>%1, Standard: %2</translation>
    </message>
</context>
<context>
    <name>orda_client::CompareWindow</name>
    <message>
        <source>Devices and settings that this is about</source>
        <translation>Betroffene Geräte und Einstellungen</translation>
    </message>
    <message>
        <source>Compare with a standard</source>
        <translation>Mit einem Standard vergleichen</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; was saved.</source>
        <translation>Das Profil „%1“ wurde gespeichert.</translation>
    </message>
    <message>
        <source>No device was read yet.</source>
        <translation>Es wurde noch kein Gerät gelesen.</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>Pa&amp;rameter:</translation>
    </message>
    <message>
        <source>&amp;Only those that differ</source>
        <translation>&amp;Nur abweichende</translation>
    </message>
    <message>
        <source>&amp;All settings of the devices</source>
        <translation>&amp;Alle Einstellungen der Geräte</translation>
    </message>
    <message>
        <source>Shows and compares also what Configure cannot set</source>
        <translation>Zeigt und vergleicht auch, was Konfigurieren nicht setzen kann</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>Sucht in allen Spalten (%1)</translation>
    </message>
    <message>
        <source>Devices and their settings</source>
        <translation>Geräte und ihre Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Tick the ones that differ</source>
        <translation>Ab&amp;weichende anhaken</translation>
    </message>
    <message>
        <source>Ticks exactly the devices that differ from the standard in the device list</source>
        <translation>Hakt in der Geräteliste genau die Geräte an, die vom Standard abweichen</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Erneu&amp;t lesen</translation>
    </message>
    <message>
        <source>Reads the devices that are ticked now</source>
        <translation>Liest die jetzt angehakten Geräte</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>Speichert die angezeigten Zeilen in ihrer Reihenfolge für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The form is closed.</source>
        <translation>Das Formular ist geschlossen.</translation>
    </message>
    <message>
        <source>No device is ticked in the list, or the list&apos;s search hides all that are. Tick the devices that are to be compared, then press &quot;Read again&quot;.</source>
        <translation>In der Liste ist kein Gerät angehakt, oder die Suche der Liste blendet alle angehakten aus. Haken Sie die zu vergleichenden Geräte an, und drücken Sie dann „Erneut lesen“.</translation>
    </message>
    <message>
        <source>The devices were not read: %1 Press &quot;Read again&quot; afterwards.</source>
        <translation>Die Geräte wurden nicht gelesen: %1 Drücken Sie danach „Erneut lesen“.</translation>
    </message>
    <message>
        <source>No device fits the search and the choice beside it.</source>
        <translation>Kein Gerät passt zur Suche und zur Wahl daneben.</translation>
    </message>
    <message>
        <source>Nothing is compared: the page would send nothing. Tick parameters on it, or choose another standard.</source>
        <translation>Es wird nichts verglichen: Die Seite würde nichts senden. Haken Sie dort Parameter an, oder wählen Sie einen anderen Standard.</translation>
    </message>
    <message>
        <source>Nothing is compared: the standard has no value.</source>
        <translation>Es wird nichts verglichen: Der Standard hat keinen Wert.</translation>
    </message>
    <message>
        <source>As of %1: %2 differ from the standard, %3 do not, %4 were not read.</source>
        <comment>time, three numbers of devices</comment>
        <translation>Stand %1: vom Standard abweichend %2, nicht abweichend %3, nicht gelesen %4.</translation>
    </message>
    <message>
        <source>The inventory has changed since. Press &quot;Read again&quot;.</source>
        <translation>Der Bestand hat sich seither geändert. Drücken Sie „Erneut lesen“.</translation>
    </message>
</context>
<context>
    <name>orda_client::CsvFile</name>
    <message>
        <source>cannot write the file %1: %2</source>
        <translation>Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Kommagetrennte Werte (*.csv);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceCells</name>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceLookup</name>
    <message>
        <source>A quotation mark at the beginning of a text has no other at its end: %1</source>
        <translation>Einem Anführungszeichen am Anfang eines Textes fehlt das am Ende: %1</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceState</name>
    <message>
        <source>Can be configured</source>
        <translation>Konfigurierbar</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Nicht angeboten</translation>
    </message>
    <message>
        <source>Off line: no connection</source>
        <translation>Offline: keine Verbindung</translation>
    </message>
    <message>
        <source>Off line: %1</source>
        <translation>Offline: %1</translation>
    </message>
    <message>
        <source>Not offered: %1</source>
        <translation>Nicht angeboten: %1</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceTexts</name>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>wird verbunden</translation>
    </message>
    <message>
        <source>sign-on refused</source>
        <translation>Anmeldung abgelehnt</translation>
    </message>
    <message>
        <source>online with the factory password</source>
        <translation>online mit Werkspasswort</translation>
    </message>
    <message>
        <source>online, locked</source>
        <translation>online, gesperrt</translation>
    </message>
    <message>
        <source>off line</source>
        <translation>offline</translation>
    </message>
</context>
<context>
    <name>orda_client::DevicesModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Since</source>
        <comment>a time, from which on a device has had its state</comment>
        <translation>Seit</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Last outcome</source>
        <translation>Letztes Ergebnis</translation>
    </message>
    <message>
        <source>Last run</source>
        <translation>Letzter Lauf</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Rekorder</translation>
    </message>
    <message>
        <source>Other</source>
        <comment>a kind of device</comment>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>orda_client::DevicesWindow</name>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Zustände</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>Sucht in allen Spalten (%1)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Aktua&amp;lisieren</translation>
    </message>
    <message>
        <source>Searches, chooses and sorts anew, by the present states (F5)</source>
        <translation>Sucht, wählt und sortiert neu, nach den jetzigen Zuständen (F5)</translation>
    </message>
    <message>
        <source>&amp;Tick selected</source>
        <translation>Ausgewählte an&amp;haken</translation>
    </message>
    <message>
        <source>Ticks exactly the selected devices in the form&apos;s list</source>
        <translation>Hakt in der Liste des Formulars genau die ausgewählten Geräte an</translation>
    </message>
    <message>
        <source>T&amp;ick these…</source>
        <translation>&amp;Diese anhaken …</translation>
    </message>
    <message>
        <source>Takes a list of serial numbers, names or addresses, and ticks exactly these devices</source>
        <translation>Nimmt eine Liste von Seriennummern, Namen oder Adressen und hakt genau diese Geräte an</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>Ticks the devices of a group or of a saved selection, and saves selections</source>
        <translation>Hakt die Geräte einer Gruppe oder einer gespeicherten Auswahl an und speichert Auswahlen</translation>
    </message>
    <message>
        <source>C&amp;onnect again</source>
        <translation>Erneut &amp;verbinden</translation>
    </message>
    <message>
        <source>Tries the selected devices that are off line again at once, those too that have refused the sign-on</source>
        <translation>Versucht es sofort erneut bei den ausgewählten Geräten, die offline sind, auch bei denen, die die Anmeldung abgelehnt haben</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>Speichert die angezeigten Zeilen in ihrer Reihenfolge für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln device(s) shown</source>
        <translation>
            <numerusform>%1 von %Ln Gerät angezeigt</numerusform>
            <numerusform>%1 von %Ln Geräten angezeigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed since and would be shown or left out now</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln seither geändert, was jetzt angezeigt oder weggelassen würde</numerusform>
            <numerusform>%Ln seither geändert, die jetzt angezeigt oder weggelassen würden</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no devices. Open an inventory in the client&apos;s window.</source>
        <translation>Es gibt keine Geräte. Öffnen Sie im Hauptfenster einen Bestand.</translation>
    </message>
    <message>
        <source>No device fits the search and the choice beside it.</source>
        <translation>Kein Gerät passt zur Suche und zur Wahl daneben.</translation>
    </message>
    <message>
        <source>None of the selected devices is off line.</source>
        <translation>Keines der ausgewählten Geräte ist offline.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s) are tried again now.</source>
        <translation>
            <numerusform>%Ln Gerät wird jetzt erneut versucht.</numerusform>
            <numerusform>%Ln Geräte werden jetzt erneut versucht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ExportDialog</name>
    <message>
        <source>With &amp;passwords</source>
        <translation>Mit &amp;Passwörtern</translation>
    </message>
    <message>
        <source>Export devices</source>
        <translation>Geräte exportieren</translation>
    </message>
    <message>
        <source>Saves a table with the titles of all columns and no device, to be filled in and imported.</source>
        <translation>Speichert eine Tabelle mit den Titeln aller Spalten und ohne Geräte, zum Ausfüllen und Importieren.</translation>
    </message>
    <message numerus="yes">
        <source>Saves %n device(s) as a table, which can be changed and imported again.</source>
        <translation>
            <numerusform>Speichert %n Gerät als Tabelle, die sich ändern und wieder importieren lässt.</numerusform>
            <numerusform>Speichert %n Geräte als Tabelle, die sich ändern und wieder importieren lässt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The passwords can be read in the file as they are. It is saved so that nobody but you can open it.</source>
        <translation>Die Passwörter stehen lesbar in der Datei. Sie wird so gespeichert, dass nur Sie sie öffnen können.</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Speichern unter …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Kommagetrennte Werte (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Cannot write the file %1: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>orda_client::FailedDevices</name>
    <message>
        <source>its entry in the record cannot be read</source>
        <translation>sein Eintrag im Protokoll ist nicht lesbar</translation>
    </message>
    <message>
        <source>it has no serial number</source>
        <translation>es hat keine Seriennummer</translation>
    </message>
    <message>
        <source>several devices of the run have its serial number</source>
        <translation>mehrere Geräte des Laufs haben seine Seriennummer</translation>
    </message>
    <message>
        <source>several devices in the list have its serial number</source>
        <translation>mehrere Geräte der Liste haben seine Seriennummer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>a device without a name</source>
        <translation>ein Gerät ohne Namen</translation>
    </message>
    <message>
        <source>it is not in the list now: off line, or not to be configured</source>
        <translation>es steht jetzt nicht in der Liste: offline oder nicht konfigurierbar</translation>
    </message>
</context>
<context>
    <name>orda_client::FindWindow</name>
    <message>
        <source>Cameras that this is about</source>
        <translation>Betroffene Kameras</translation>
    </message>
    <message>
        <source>Find cameras</source>
        <translation>Kameras finden</translation>
    </message>
    <message>
        <source>An https camera whose certificate no authority has signed is refused at first (&quot;certificate not accepted&quot;), until its fingerprint stands in the inventory.</source>
        <translation>Eine https-Kamera, deren Zertifikat keine Zertifizierungsstelle signiert hat, wird zunächst abgelehnt („Zertifikat nicht akzeptiert“), bis ihr Fingerabdruck im Bestand steht.</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>Sucht in allen Spalten (%1)</translation>
    </message>
    <message>
        <source>All</source>
        <comment>network interfaces</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>&amp;Network interface</source>
        <translation>&amp;Netzwerkschnittstelle</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Finden</translation>
    </message>
    <message>
        <source>Asks all ONVIF cameras of the local network to answer; nothing is sent before</source>
        <translation>Bittet alle ONVIF-Kameras des lokalen Netzes um Antwort; vorher wird nichts gesendet</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Benutzername</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>Goes into the inventory file, which only you can read, and nowhere else</source>
        <translation>Kommt in die Bestandsdatei, die nur Sie lesen können, und sonst nirgendwohin</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
    <message>
        <source>To choose devices by, such as a building; may be empty</source>
        <translation>Um Geräte danach auszuwählen, etwa ein Gebäude; darf leer sein</translation>
    </message>
    <message>
        <source>&amp;Add to inventory</source>
        <translation>In den Bestand &amp;aufnehmen</translation>
    </message>
    <message>
        <source>Puts the ticked cameras that are shown into the inventory, with this account</source>
        <translation>Nimmt die angezeigten angehakten Kameras mit diesem Konto in den Bestand auf</translation>
    </message>
    <message>
        <source>&amp;Tick new ones</source>
        <translation>Neue an&amp;haken</translation>
    </message>
    <message>
        <source>Ticks what is shown and not in the inventory yet, but for cameras that say they are elsewhere than where their answer came from</source>
        <translation>Hakt an, was angezeigt wird und noch nicht im Bestand steht, außer Kameras, die eine andere Adresse nennen als die, von der ihre Antwort kam</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;toppen</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>No camera has answered. Cameras answer only within the same network, and only while their discovery (WS-Discovery) is switched on.</source>
        <translation>Keine Kamera hat geantwortet. Kameras antworten nur innerhalb desselben Netzes und nur, solange ihre Auffindbarkeit (WS-Discovery) eingeschaltet ist.</translation>
    </message>
    <message>
        <source>&quot;Find&quot; asks all ONVIF cameras of the local network to answer.</source>
        <translation>„Finden“ bittet alle ONVIF-Kameras des lokalen Netzes um Antwort.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s) found</source>
        <translation>
            <numerusform>%Ln Kamera gefunden</numerusform>
            <numerusform>%Ln Kameras gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>%Ln angehakt</numerusform>
            <numerusform>%Ln angehakt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked but hidden by the search, and left out</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>%Ln angehakte von der Suche ausgeblendet und ausgelassen</numerusform>
            <numerusform>%Ln angehakte von der Suche ausgeblendet und ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and an address</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 answered and says that it is at %2</source>
        <translation>%1 hat geantwortet und nennt als Adresse %2</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever is at these addresses will be signed on to:</source>
        <translation>Das Programm meldet sich bei jedem an, der unter diesen Adressen antwortet:</translation>
    </message>
    <message>
        <source>Without a user name hardly any camera lets itself be configured.</source>
        <translation>Ohne Benutzernamen lässt sich kaum eine Kamera konfigurieren.</translation>
    </message>
    <message>
        <source>You will be asked where to save a new inventory.</source>
        <translation>Sie werden gefragt, wo ein neuer Bestand gespeichert werden soll.</translation>
    </message>
    <message>
        <source>They are added to %1.</source>
        <translation>Sie werden in %1 aufgenommen.</translation>
    </message>
    <message>
        <source>Nothing was added: these say that they are at the same address. Tick one of them only.</source>
        <translation>Es wurde nichts aufgenommen: Diese nennen dieselbe Adresse. Haken Sie nur eine davon an.</translation>
    </message>
    <message>
        <source>Add to inventory</source>
        <translation>In den Bestand aufnehmen</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln camera(s) to the inventory?</source>
        <translation>
            <numerusform>%Ln Kamera in den Bestand aufnehmen?</numerusform>
            <numerusform>%Ln Kameras in den Bestand aufnehmen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aufnehmen</translation>
    </message>
</context>
<context>
    <name>orda_client::FirstSteps</name>
    <message>
        <source>&amp;Open inventory…</source>
        <translation>Bestand &amp;öffnen …</translation>
    </message>
    <message>
        <source>Opened last:</source>
        <translation>Zuletzt geöffnet:</translation>
    </message>
    <message>
        <source>Which devices are to be configured?</source>
        <translation>Welche Geräte sollen konfiguriert werden?</translation>
    </message>
    <message>
        <source>Open an inventory</source>
        <translation>Einen Bestand öffnen</translation>
    </message>
    <message>
        <source>An inventory is a file that lists the devices of a site and how they are reached.</source>
        <translation>Ein Bestand ist eine Datei, in der die Geräte eines Standorts stehen und wie sie zu erreichen sind.</translation>
    </message>
    <message>
        <source>Bring cameras in</source>
        <translation>Kameras aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Import devices from CSV…</source>
        <translation>Geräte aus CSV &amp;importieren …</translation>
    </message>
    <message>
        <source>Try it out</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>The demo brings simulated devices along, which end with it. No real device is written to.</source>
        <translation>Die Demo bringt simulierte Geräte mit, die mit ihr enden. Auf echte Geräte wird nicht geschrieben.</translation>
    </message>
    <message>
        <source>&amp;Number of devices</source>
        <translation>A&amp;nzahl der Geräte</translation>
    </message>
    <message>
        <source>&amp;Start the demo</source>
        <translation>De&amp;mo starten</translation>
    </message>
    <message>
        <source>ONVIF cameras of the local network can be searched for and put into an inventory. Others are listed in a spreadsheet, each on a line of its own, with the columns id, ip and port, and where they are needed name, serialNumber, userName, password and others, which the manual names. Saved as CSV and imported here, the table becomes an inventory.</source>
        <translation>ONVIF-Kameras des lokalen Netzes lassen sich suchen und in einen Bestand aufnehmen. Andere schreiben Sie in eine Tabelle, jede in eine eigene Zeile, mit den Spalten id, ip und port und, wo nötig, name, serialNumber, userName, password und weiteren, die das Handbuch nennt. Als CSV gespeichert und hier importiert, wird die Tabelle zu einem Bestand.</translation>
    </message>
    <message>
        <source>Find &amp;cameras…</source>
        <translation>&amp;Kameras finden …</translation>
    </message>
</context>
<context>
    <name>orda_client::FormChanges</name>
    <message>
        <source>The page cannot send this value, and leaves it out: %1</source>
        <comment>parameter</comment>
        <translation>Die Seite kann diesen Wert nicht senden und lässt ihn aus: %1</translation>
    </message>
    <message>
        <source>The page would send this besides: %1</source>
        <comment>parameter</comment>
        <translation>Die Seite würde außerdem senden: %1</translation>
    </message>
    <message>
        <source>The values were loaded into the page. Nothing was sent to devices.</source>
        <translation>Die Werte wurden in die Seite geladen. An Geräte wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The page does not have all of the values as they should be. Look at it before you press Configure:</source>
        <translation>Auf der Seite stehen nicht alle Werte so, wie sie sollen. Sehen Sie nach, bevor Sie Konfigurieren drücken:</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln device(s) that differ in the device list, and no others.</source>
        <translation>
            <numerusform>%1 von %Ln abweichenden Gerät in der Geräteliste angehakt und keine anderen.</numerusform>
            <numerusform>%1 von %Ln abweichenden Geräten in der Geräteliste angehakt und keine anderen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list&apos;s search was cleared: it hid some of them.</source>
        <translation>Die Suche der Liste wurde geleert: Sie verbarg einige davon.</translation>
    </message>
    <message>
        <source>These are not in the list now:</source>
        <translation>Diese stehen jetzt nicht in der Liste:</translation>
    </message>
</context>
<context>
    <name>orda_client::FoundModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Answered from</source>
        <translation>Antwort von</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>says that it is at %1</source>
        <translation>nennt als Adresse %1</translation>
    </message>
    <message>
        <source>in the inventory already</source>
        <translation>schon im Bestand</translation>
    </message>
    <message>
        <source>new</source>
        <comment>a camera</comment>
        <translation>neu</translation>
    </message>
</context>
<context>
    <name>orda_client::GroupsMenu</name>
    <message>
        <source>Save the &amp;ticks of the list as…</source>
        <translation>&amp;Haken der Liste speichern als …</translation>
    </message>
    <message>
        <source>Save the selected &amp;rows as…</source>
        <translation>Ausgewählte &amp;Zeilen speichern als …</translation>
    </message>
    <message>
        <source>Tick a group of the inventory:</source>
        <translation>Eine Gruppe des Bestands anhaken:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a group, how many devices it has</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The inventory has no groups.</source>
        <translation>Der Bestand hat keine Gruppen.</translation>
    </message>
    <message>
        <source>Tick a saved selection:</source>
        <translation>Eine gespeicherte Auswahl anhaken:</translation>
    </message>
    <message>
        <source>Nothing is saved yet.</source>
        <translation>Es ist noch nichts gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Forget a saved selection</source>
        <translation>Gespeicherte Auswahl &amp;löschen</translation>
    </message>
    <message>
        <source>There is nothing to save: no device is ticked or selected.</source>
        <translation>Es gibt nichts zu speichern: Kein Gerät ist angehakt oder ausgewählt.</translation>
    </message>
    <message>
        <source>Save selection</source>
        <translation>Auswahl speichern</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Name for these %Ln device(s):</source>
        <translation>
            <numerusform>&amp;Name für %Ln Gerät:</numerusform>
            <numerusform>&amp;Name für diese %Ln Geräte:</numerusform>
        </translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Not saved: there is a selection &quot;%1&quot; already. Forget it first, or take another name.</source>
        <translation>Nicht gespeichert: Es gibt schon eine Auswahl „%1“. Löschen Sie sie zuerst, oder nehmen Sie einen anderen Namen.</translation>
    </message>
    <message numerus="yes">
        <source>Saved as &quot;%1&quot;: %Ln device(s).</source>
        <translation>
            <numerusform>Als „%1“ gespeichert: %Ln Gerät.</numerusform>
            <numerusform>Als „%1“ gespeichert: %Ln Geräte.</numerusform>
        </translation>
    </message>
    <message>
        <source>Forget selection</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>Forget the saved selection &quot;%1&quot;? Its devices stay as they are.</source>
        <translation>Die gespeicherte Auswahl „%1“ löschen? Ihre Geräte bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Forgot &quot;%1&quot;.</source>
        <translation>„%1“ gelöscht.</translation>
    </message>
</context>
<context>
    <name>orda_client::ImportFaultsDialog</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <comment>of a table, its number</comment>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was falsch ist</translation>
    </message>
    <message>
        <source>Import devices</source>
        <translation>Geräte importieren</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s) in %1. Nothing has been imported.</source>
        <translation>
            <numerusform>%n Fehler in %1. Es wurde nichts importiert.</numerusform>
            <numerusform>%n Fehler in %1. Es wurde nichts importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is wrong, line by line</source>
        <translation>Was falsch ist, Zeile für Zeile</translation>
    </message>
    <message>
        <source>Export &amp;CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryAddition</name>
    <message>
        <source>Add to inventory</source>
        <translation>In den Bestand aufnehmen</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; %3</source>
        <translation>%1: „%2“ %3</translation>
    </message>
    <message numerus="yes">
        <source>Save the inventory of %n device(s)</source>
        <translation>
            <numerusform>Den Bestand mit %n Gerät speichern</numerusform>
            <numerusform>Den Bestand mit %n Geräten speichern</numerusform>
        </translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>Bestände (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Nothing was added to %1: %2.</source>
        <translation>In %1 wurde nichts aufgenommen: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryCsv</name>
    <message>
        <source>is not UTF-8; save the file as CSV in UTF-8</source>
        <translation>ist kein UTF-8; die Datei als CSV in UTF-8 speichern</translation>
    </message>
    <message>
        <source>wrong quotation marks: they stand around a whole cell, and one within it is written twice</source>
        <translation>falsche Anführungszeichen: sie stehen um eine ganze Zelle, und eines darin wird doppelt geschrieben</translation>
    </message>
    <message>
        <source>is empty; a line with the names of the columns is expected, such as id, ip and port</source>
        <translation>ist leer; erwartet wird eine Zeile mit den Namen der Spalten, etwa id, ip und port</translation>
    </message>
    <message>
        <source>ends after its head; a line for each device is expected</source>
        <translation>endet nach dem Kopf; erwartet wird eine Zeile für jedes Gerät</translation>
    </message>
    <message>
        <source>the column is there already, as number %1</source>
        <translation>die Spalte ist schon vorhanden, als Nummer %1</translation>
    </message>
    <message>
        <source>the column is missing; the first line names the columns, with &quot;,&quot; or &quot;;&quot; between them</source>
        <translation>die Spalte fehlt; die erste Zeile nennt die Spalten, mit „,“ oder „;“ dazwischen</translation>
    </message>
    <message>
        <source>the number of cells is %1; it must be %2, as in the head</source>
        <translation>die Zahl der Zellen ist %1; sie muss %2 sein wie im Kopf</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryImport</name>
    <message>
        <source>Import devices</source>
        <translation>Geräte importieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Kommagetrennte Werte (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 ist größer als %2 MiB.</translation>
    </message>
    <message numerus="yes">
        <source>Save the inventory of %n device(s)</source>
        <translation>
            <numerusform>Den Bestand mit %n Gerät speichern</numerusform>
            <numerusform>Den Bestand mit %n Geräten speichern</numerusform>
        </translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>Bestände (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>These columns are no fields of an inventory and were left out: %1.</source>
        <translation>Diese Spalten sind keine Felder eines Bestands und wurden ausgelassen: %1.</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryOpener</name>
    <message>
        <source>Open inventory</source>
        <translation>Bestand öffnen</translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>Bestände (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 is no longer there. It has been taken off the list of the last inventories.</source>
        <translation>%1 ist nicht mehr da. Die Datei wurde aus der Liste der zuletzt geöffneten genommen.</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>A run is going on over the devices of this inventory. Open another when it has ended.</source>
        <translation>Ein Lauf über die Geräte dieses Bestands ist im Gange. Öffnen Sie einen anderen, wenn er zu Ende ist.</translation>
    </message>
    <message>
        <source>The devices of this inventory are being read or configured. Open another when that has ended.</source>
        <translation>Die Geräte dieses Bestands werden gerade gelesen oder konfiguriert. Öffnen Sie einen anderen, wenn das zu Ende ist.</translation>
    </message>
</context>
<context>
    <name>orda_client::LastOutcomes</name>
    <message>
        <source>%1: %2</source>
        <comment>parameters, outcome</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>orda_client::ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
</context>
<context>
    <name>orda_client::PageLoader</name>
    <message>
        <source>A run is going on. Load the values when it has ended.</source>
        <translation>Ein Lauf ist im Gange. Laden Sie die Werte, wenn er zu Ende ist.</translation>
    </message>
    <message>
        <source>The form has no page for these values.</source>
        <translation>Das Formular hat keine Seite für diese Werte.</translation>
    </message>
</context>
<context>
    <name>orda_client::PageRecord</name>
    <message>
        <source>The last run left no record: %1.</source>
        <translation>Der letzte Lauf hat kein Protokoll hinterlassen: %1.</translation>
    </message>
    <message numerus="yes">
        <source>The record has only %n result(s) of the last run: %1.</source>
        <translation>
            <numerusform>Das Protokoll hat nur %n Ergebnis des letzten Laufs: %1.</numerusform>
            <numerusform>Das Protokoll hat nur %n Ergebnisse des letzten Laufs: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ParameterTexts</name>
    <message>
        <source>on</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <comment>parameter, before, after</comment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>parameter, value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>online service set by hand</source>
        <translation>Online-Dienst von Hand eingestellt</translation>
    </message>
    <message>
        <source>business service set by hand</source>
        <translation>Geschäftsdienst von Hand eingestellt</translation>
    </message>
</context>
<context>
    <name>orda_client::PlanGroupList</name>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>All devices of the preview</source>
        <translation>Alle Geräte der Vorschau</translation>
    </message>
    <message>
        <source>Would change</source>
        <translation>Würden sich ändern</translation>
    </message>
    <message>
        <source>Devices on which Configure would change something</source>
        <translation>Geräte, auf denen Konfigurieren etwas ändern würde</translation>
    </message>
    <message>
        <source>Have it already</source>
        <translation>Haben es schon</translation>
    </message>
    <message>
        <source>Devices that hold these values already</source>
        <translation>Geräte, die diese Werte schon haben</translation>
    </message>
    <message>
        <source>Lack a parameter</source>
        <translation>Ein Parameter fehlt</translation>
    </message>
    <message>
        <source>Devices that do not have all of these parameters. What they have may change all the same</source>
        <translation>Geräte, die nicht alle diese Parameter haben. Was sie haben, kann sich trotzdem ändern</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>Nicht erreicht</translation>
    </message>
    <message>
        <source>Devices that cannot be written to now</source>
        <translation>Geräte, auf die jetzt nicht geschrieben werden kann</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Lesen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Devices that refused to be read, or did not answer</source>
        <translation>Geräte, die das Lesen abgelehnt oder nicht geantwortet haben</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>Devices that have not answered yet, or were not waited for</source>
        <translation>Geräte, die noch nicht geantwortet haben oder auf die nicht gewartet wurde</translation>
    </message>
</context>
<context>
    <name>orda_client::PressGuard</name>
    <message>
        <source>Configure asks first whether this is meant.</source>
        <translation>Konfigurieren fragt zuerst, ob das so gemeint ist.</translation>
    </message>
</context>
<context>
    <name>orda_client::PressLine</name>
    <message>
        <source>Pre&amp;view…</source>
        <translation>&amp;Vorschau …</translation>
    </message>
    <message>
        <source>Shows what Configure would change on each ticked device. Nothing is written.</source>
        <translation>Zeigt, was Konfigurieren auf jedem angehakten Gerät ändern würde. Es wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Looks wrong: %1</source>
        <translation>Sieht falsch aus: %1</translation>
    </message>
</context>
<context>
    <name>orda_client::PressQuestion</name>
    <message>
        <source>Configure devices</source>
        <translation>Geräte konfigurieren</translation>
    </message>
    <message numerus="yes">
        <source>Configure %Ln device(s)?</source>
        <translation>
            <numerusform>%Ln Gerät konfigurieren?</numerusform>
            <numerusform>%Ln Geräte konfigurieren?</numerusform>
        </translation>
    </message>
    <message>
        <source>What would be written is no longer what you were asked about.</source>
        <translation>Was geschrieben würde, ist nicht mehr das, wonach Sie gefragt wurden.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>devices, remark</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Looks wrong:</source>
        <translation>Sieht falsch aus:</translation>
    </message>
    <message>
        <source>No parameter: devices would be written what they hold.</source>
        <translation>Kein Parameter: Den Geräten würde geschrieben, was sie schon haben.</translation>
    </message>
    <message>
        <source>&amp;Values that would be written:</source>
        <translation>&amp;Werte, die geschrieben würden:</translation>
    </message>
    <message>
        <source>&amp;Preview…</source>
        <translation>&amp;Vorschau …</translation>
    </message>
    <message>
        <source>C&amp;onfigure</source>
        <translation>&amp;Konfigurieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>orda_client::PressTexts</name>
    <message>
        <source>No stream is ticked on this page</source>
        <translation>Auf dieser Seite ist kein Stream angehakt</translation>
    </message>
    <message>
        <source>Nothing is ticked on this page</source>
        <translation>Auf dieser Seite ist nichts angehakt</translation>
    </message>
    <message>
        <source>No device is ticked</source>
        <translation>Kein Gerät ist angehakt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>sentence, remark</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No device is left to configure</source>
        <translation>Es bleibt kein Gerät zu konfigurieren</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>to which something is written</comment>
        <translation>
            <numerusform>%Ln Gerät</numerusform>
            <numerusform>%Ln Geräte</numerusform>
        </translation>
    </message>
    <message>
        <source>No ticked parameter applies, but this would be written to: %1</source>
        <translation>Kein angehakter Parameter wirkt, dennoch würde geschrieben auf: %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>parameters, devices</comment>
        <translation>%1 auf %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parameter(s)</source>
        <translation>
            <numerusform>%Ln Parameter</numerusform>
            <numerusform>%Ln Parameter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked device(s) hidden by the search and left out</source>
        <translation>
            <numerusform>%Ln angehaktes Gerät von der Suche ausgeblendet und ausgelassen</numerusform>
            <numerusform>%Ln angehakte Geräte von der Suche ausgeblendet und ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>%Ln Kamera</numerusform>
            <numerusform>%Ln Kameras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln recorder(s)</source>
        <translation>
            <numerusform>%Ln Rekorder</numerusform>
            <numerusform>%Ln Rekorder</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>cameras, recorders</comment>
        <translation>%1 und %2</translation>
    </message>
</context>
<context>
    <name>orda_client::PreviewModel</name>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Was sich ändern würde</translation>
    </message>
    <message>
        <source>added, as the device does not have it: %1</source>
        <comment>parameter: nothing → value</comment>
        <translation>kommt hinzu, da das Gerät es nicht hat: %1</translation>
    </message>
    <message>
        <source>the device lacks %1</source>
        <comment>parameter</comment>
        <translation>dem Gerät fehlt: %1</translation>
    </message>
    <message>
        <source>Would change</source>
        <translation>Würde sich ändern</translation>
    </message>
    <message>
        <source>Has it already</source>
        <translation>Hat es schon</translation>
    </message>
    <message>
        <source>Cannot be set</source>
        <comment>the device lacks the parameters</comment>
        <translation>Nicht setzbar</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>Nicht erreicht</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Lesen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
</context>
<context>
    <name>orda_client::PreviewWindow</name>
    <message>
        <source>About the preview</source>
        <translation>Zur Vorschau</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation>Es wurde noch nichts angesehen.</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>Sucht in allen Spalten (%1)</translation>
    </message>
    <message>
        <source>Devices by outcome</source>
        <translation>Geräte nach Ergebnis</translation>
    </message>
    <message>
        <source>Devices and what would change on them</source>
        <translation>Geräte und was sich auf ihnen ändern würde</translation>
    </message>
    <message>
        <source>Configure the ones that &amp;change</source>
        <translation>Konfigurieren, was sich &amp;ändert</translation>
    </message>
    <message>
        <source>Ticks exactly the devices that would change, and presses Configure</source>
        <translation>Hakt genau die Geräte an, die sich ändern würden, und drückt Konfigurieren</translation>
    </message>
    <message>
        <source>Preview &amp;again</source>
        <translation>Vorschau er&amp;neuern</translation>
    </message>
    <message>
        <source>Plans anew, with the page that is shown and the devices that are ticked now</source>
        <translation>Plant neu, mit der gezeigten Seite und den jetzt angehakten Geräten</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>Speichert die angezeigten Zeilen in ihrer Reihenfolge für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The form is closed.</source>
        <translation>Das Formular ist geschlossen.</translation>
    </message>
    <message>
        <source>The form shows no page that can be configured.</source>
        <translation>Das Formular zeigt keine Seite, die sich konfigurieren lässt.</translation>
    </message>
    <message>
        <source>Configure would send nothing: no parameter is ticked on the page, or no stream. Tick what is to be set, then press &quot;Preview again&quot;.</source>
        <translation>Konfigurieren würde nichts senden: Auf der Seite ist kein Parameter oder kein Stream angehakt. Haken Sie an, was gesetzt werden soll, und drücken Sie dann „Vorschau erneuern“.</translation>
    </message>
    <message>
        <source>All ticked devices are hidden by the search of the list, and Configure leaves hidden devices out. Clear the search, then press &quot;Preview again&quot;.</source>
        <translation>Alle angehakten Geräte sind von der Suche der Liste ausgeblendet, und Konfigurieren lässt ausgeblendete Geräte aus. Leeren Sie die Suche, und drücken Sie dann „Vorschau erneuern“.</translation>
    </message>
    <message>
        <source>No device is ticked in the list. Tick the devices, then press &quot;Preview again&quot;.</source>
        <translation>In der Liste ist kein Gerät angehakt. Haken Sie die Geräte an, und drücken Sie dann „Vorschau erneuern“.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parameter(s)</source>
        <translation>
            <numerusform>%Ln Parameter</numerusform>
            <numerusform>%Ln Parameter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>to which parameters are sent</comment>
        <translation>
            <numerusform>%Ln Gerät</numerusform>
            <numerusform>%Ln Geräte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked device(s) are hidden by the search of the list and left out.</source>
        <translation>
            <numerusform>%Ln angehaktes Gerät ist von der Suche der Liste ausgeblendet und wird ausgelassen.</numerusform>
            <numerusform>%Ln angehakte Geräte sind von der Suche der Liste ausgeblendet und werden ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The devices were not read: %1 Press &quot;Preview again&quot; afterwards.</source>
        <translation>Die Geräte wurden nicht gelesen: %1 Drücken Sie danach „Vorschau erneuern“.</translation>
    </message>
    <message>
        <source>No device of the preview fits the search and the choice beside it.</source>
        <translation>Kein Gerät der Vorschau passt zur Suche und zur Wahl daneben.</translation>
    </message>
    <message>
        <source>There is no preview yet.</source>
        <translation>Es gibt noch keine Vorschau.</translation>
    </message>
    <message>
        <source>A run has begun since, and devices may have changed. Press &quot;Preview again&quot;.</source>
        <translation>Seither hat ein Lauf begonnen, und Geräte können sich geändert haben. Drücken Sie „Vorschau erneuern“.</translation>
    </message>
    <message>
        <source>The page has changed since: it would send something else. Press &quot;Preview again&quot;.</source>
        <translation>Die Seite hat sich seither geändert: Sie würde etwas anderes senden. Drücken Sie „Vorschau erneuern“.</translation>
    </message>
    <message numerus="yes">
        <source>The preview was stopped, and %Ln device(s) were not read. Press &quot;Preview again&quot; to read all.</source>
        <translation>
            <numerusform>Die Vorschau wurde gestoppt, und %Ln Gerät wurde nicht gelesen. „Vorschau erneuern“ liest alle.</numerusform>
            <numerusform>Die Vorschau wurde gestoppt, und %Ln Geräte wurden nicht gelesen. „Vorschau erneuern“ liest alle.</numerusform>
        </translation>
    </message>
    <message>
        <source>A run is going on.</source>
        <translation>Ein Lauf ist im Gange.</translation>
    </message>
    <message>
        <source>No device would change: there is nothing to configure.</source>
        <translation>Kein Gerät würde sich ändern: Es gibt nichts zu konfigurieren.</translation>
    </message>
    <message>
        <source>The inventory has changed since. Press &quot;Preview again&quot;.</source>
        <translation>Der Bestand hat sich seither geändert. Drücken Sie „Vorschau erneuern“.</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>%1: %2 to %3, as of %4. A preview writes nothing.</source>
        <comment>page, parameters, devices, time</comment>
        <translation>%1: %2 auf %3, Stand %4. Eine Vorschau schreibt nichts.</translation>
    </message>
    <message>
        <source>The search is on. All devices that change would be configured, and not only those that are shown: clear the search first.</source>
        <translation>Die Suche ist an. Alle Geräte, die sich ändern, würden konfiguriert, nicht nur die angezeigten: Leeren Sie zuerst die Suche.</translation>
    </message>
</context>
<context>
    <name>orda_client::Question</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>orda_client::ReadingBar</name>
    <message>
        <source>&amp;Stop</source>
        <comment>reading</comment>
        <translation>St&amp;oppen</translation>
    </message>
    <message>
        <source>Devices that were read</source>
        <translation>Gelesene Geräte</translation>
    </message>
    <message>
        <source>Does not wait for the devices that have not answered yet. Nothing was written to any.</source>
        <translation>Wartet nicht auf Geräte, die noch nicht geantwortet haben. Es wurde auf keines geschrieben.</translation>
    </message>
    <message>
        <source>Reading devices: %1 of %2</source>
        <translation>Geräte werden gelesen: %1 von %2</translation>
    </message>
</context>
<context>
    <name>orda_client::RecordFile</name>
    <message>
        <source>it is a symbolic link</source>
        <translation>es ist ein symbolischer Link</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>es gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>es hat mehr als einen Namen</translation>
    </message>
    <message>
        <source>it is too large for a record</source>
        <translation>es ist zu groß für ein Protokoll</translation>
    </message>
    <message>
        <source>there is no temporary directory</source>
        <translation>es gibt kein temporäres Verzeichnis</translation>
    </message>
</context>
<context>
    <name>orda_client::RecordWindow</name>
    <message>
        <source>Unreadable entries</source>
        <translation>Unlesbare Einträge</translation>
    </message>
    <message>
        <source>Open record file</source>
        <translation>Protokolldatei öffnen</translation>
    </message>
    <message>
        <source>Record files (*_record.txt);;All files (*)</source>
        <translation>Protokolldateien (*_record.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Failures by message</source>
        <translation>Fehler nach Meldung</translation>
    </message>
    <message>
        <source>Record: %1</source>
        <comment>file name</comment>
        <translation>Protokoll: %1</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>Geräte des Laufs</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses and messages</source>
        <translation>Sucht in Namen, Seriennummern, Adressen und Meldungen</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Failed only</source>
        <translation>Nur fehlgeschlagene</translation>
    </message>
    <message>
        <source>Failures by &amp;message</source>
        <translation>Fehler nach &amp;Meldung</translation>
    </message>
    <message>
        <source>&amp;Tick failed again</source>
        <translation>&amp;Fehlgeschlagene wieder anhaken</translation>
    </message>
    <message>
        <source>Ticks exactly the failed devices of this run in the device list, and opens the page</source>
        <translation>Hakt in der Geräteliste genau die fehlgeschlagenen Geräte dieses Laufs an und öffnet die Seite</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>Speichert die angezeigten Zeilen in ihrer Reihenfolge für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The record %1 is not read: %2.</source>
        <translation>Das Protokoll %1 wird nicht gelesen: %2.</translation>
    </message>
    <message>
        <source>The record %1 has no result.</source>
        <translation>Das Protokoll %1 hat kein Ergebnis.</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Tick failed again</source>
        <translation>Fehlgeschlagene wieder anhaken</translation>
    </message>
    <message>
        <source>A run is going on over the ticked devices. Tick others when it has ended.</source>
        <translation>Ein Lauf über die angehakten Geräte ist im Gange. Haken Sie andere an, wenn er zu Ende ist.</translation>
    </message>
    <message>
        <source>Failed devices that are not ticked</source>
        <translation>Fehlgeschlagene Geräte, die nicht angehakt sind</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln failed device(s) in the device list.</source>
        <translation>
            <numerusform>%1 von %Ln fehlgeschlagenen Gerät in der Geräteliste angehakt.</numerusform>
            <numerusform>%1 von %Ln fehlgeschlagenen Geräten in der Geräteliste angehakt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list&apos;s search was cleared: it hid some of them.</source>
        <translation>Die Suche der Liste wurde geleert: Sie verbarg einige davon.</translation>
    </message>
    <message>
        <source>Not ticked:</source>
        <translation>Nicht angehakt:</translation>
    </message>
</context>
<context>
    <name>orda_client::RemoteConfigDialog</name>
    <message>
        <source>Remote configuration of %1</source>
        <translation>Gerät %1 einrichten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>orda_client::RunCheck</name>
    <message>
        <source>Differs</source>
        <translation>Abweichend</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>Geht zurück</translation>
    </message>
    <message>
        <source>Goes back in part</source>
        <translation>Geht teils zurück</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>Bleibt, wie es ist</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>Nicht erreicht</translation>
    </message>
    <message>
        <source>Another device</source>
        <translation>Anderes Gerät</translation>
    </message>
    <message>
        <source>Already back</source>
        <translation>Schon zurück</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Wie geschrieben</translation>
    </message>
    <message>
        <source>its serial number is another one by now: it is left out</source>
        <translation>seine Seriennummer ist inzwischen eine andere: es wird ausgelassen</translation>
    </message>
    <message>
        <source>changed since and written over: %1</source>
        <translation>seither geändert und überschrieben: %1</translation>
    </message>
    <message>
        <source>changed since and left: %1</source>
        <translation>seither geändert und so belassen: %1</translation>
    </message>
    <message>
        <source>not there before and cannot be taken out: %1</source>
        <translation>vorher nicht vorhanden und nicht entfernbar: %1</translation>
    </message>
    <message>
        <source>Is written over</source>
        <translation>Wird überschrieben</translation>
    </message>
</context>
<context>
    <name>orda_client::RunCheckModel</name>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Written → now</source>
        <translation>Geschrieben → jetzt</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Now → after the undo</source>
        <translation>Jetzt → danach</translation>
    </message>
</context>
<context>
    <name>orda_client::RunCheckWindow</name>
    <message>
        <source>Verify: %1, %2</source>
        <comment>parameters, time</comment>
        <translation>Überprüfen: %1, %2</translation>
    </message>
    <message>
        <source>Undo: %1, %2</source>
        <comment>parameters, time</comment>
        <translation>Zurücknehmen: %1, %2</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>Geräte des Laufs</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses, changes and notes</source>
        <translation>Sucht in Namen, Seriennummern, Adressen, Änderungen und Anmerkungen</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message>
        <source>Not as written</source>
        <translation>Nicht wie geschrieben</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Wie geschrieben</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>Geht zurück</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>Seither geändert</translation>
    </message>
    <message>
        <source>Nothing goes back</source>
        <translation>Nichts geht zurück</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>St&amp;oppen</translation>
    </message>
    <message>
        <source>Ends the reading; nothing is written</source>
        <translation>Beendet das Lesen; es wird nichts geschrieben</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>Speichert die angezeigten Zeilen in ihrer Reihenfolge für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message numerus="yes">
        <source>Reading: %1 of %Ln device(s).</source>
        <translation>
            <numerusform>Lesen: %1 von %Ln Gerät.</numerusform>
            <numerusform>Lesen: %1 von %Ln Geräten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Devices: %1</source>
        <translation>Geräte: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state, number of devices</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>What the devices hold is being read.</source>
        <translation>Es wird gelesen, was die Geräte haben.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Write over what was changed since the run on %Ln device(s), too</source>
        <translation>
            <numerusform>Auch ü&amp;berschreiben, was seit dem Lauf auf %Ln Gerät geändert wurde</numerusform>
            <numerusform>Auch ü&amp;berschreiben, was seit dem Lauf auf %Ln Geräten geändert wurde</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo…</source>
        <translation>&amp;Zurücknehmen …</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo on %Ln device(s)…</source>
        <translation>
            <numerusform>Auf %Ln Gerät &amp;zurücknehmen …</numerusform>
            <numerusform>Auf %Ln Geräten &amp;zurücknehmen …</numerusform>
        </translation>
    </message>
    <message>
        <source>Parameters: %1</source>
        <translation>Parameter: %1</translation>
    </message>
    <message>
        <source>Run of %1</source>
        <comment>time</comment>
        <translation>Lauf vom %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln other device(s) of the run are left out: they are not selected, nothing goes back on them, or they were not read.</source>
        <translation>
            <numerusform>%Ln anderes Gerät des Laufs wird ausgelassen: Es ist nicht ausgewählt, nichts geht auf ihm zurück, oder es wurde nicht gelesen.</numerusform>
            <numerusform>%Ln andere Geräte des Laufs werden ausgelassen: Sie sind nicht ausgewählt, nichts geht auf ihnen zurück, oder sie wurden nicht gelesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>What was changed since the run is written over, too.</source>
        <translation>Auch was seit dem Lauf geändert wurde, wird überschrieben.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>A run has begun since, and devices may have changed. Press &quot;Read again&quot;.</source>
        <translation>Seither hat ein Lauf begonnen, und Geräte können sich geändert haben. Drücken Sie „Erneut lesen“.</translation>
    </message>
    <message>
        <source>The inventory has changed since. Press &quot;Read again&quot;.</source>
        <translation>Der Bestand hat sich seither geändert. Drücken Sie „Erneut lesen“.</translation>
    </message>
    <message>
        <source>Takes the run back on the selected devices, or on all that are shown, where something goes back</source>
        <translation>Nimmt den Lauf auf den ausgewählten oder auf allen angezeigten Geräten zurück, wo etwas zurückgeht</translation>
    </message>
    <message numerus="yes">
        <source>Undo the run on %Ln device(s)?</source>
        <translation>
            <numerusform>Den Lauf auf %Ln Gerät zurücknehmen?</numerusform>
            <numerusform>Den Lauf auf %Ln Geräten zurücknehmen?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunComparisonModel</name>
    <message>
        <source>Other outcome</source>
        <translation>Anderes Ergebnis</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>Andere Werte</translation>
    </message>
    <message>
        <source>Only in the first</source>
        <translation>Nur im ersten</translation>
    </message>
    <message>
        <source>Only in the second</source>
        <translation>Nur im zweiten</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>First outcome</source>
        <translation>Erstes Ergebnis</translation>
    </message>
    <message>
        <source>Second outcome</source>
        <translation>Zweites Ergebnis</translation>
    </message>
    <message>
        <source>Read before</source>
        <translation>Vorher gelesen</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
</context>
<context>
    <name>orda_client::RunComparisonWindow</name>
    <message>
        <source>Devices of both runs</source>
        <translation>Geräte beider Läufe</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses, outcomes and values</source>
        <translation>Sucht in Namen, Seriennummern, Adressen, Ergebnissen und Werten</translation>
    </message>
    <message>
        <source>Compare runs: %1</source>
        <translation>Läufe vergleichen: %1</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message>
        <source>The runs are being read.</source>
        <translation>Die Läufe werden gelesen.</translation>
    </message>
    <message>
        <source>First: %1</source>
        <translation>Erster: %1</translation>
    </message>
    <message>
        <source>Second: %1</source>
        <translation>Zweiter: %1</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The history does not have both runs any more.</source>
        <translation>Der Verlauf hat nicht mehr beide Läufe.</translation>
    </message>
</context>
<context>
    <name>orda_client::RunDeviceModel</name>
    <message>
        <source>%1: %2</source>
        <comment>outcome, message</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Before → after</source>
        <translation>Vorher → nachher</translation>
    </message>
    <message>
        <source>%1 (it answered later)</source>
        <comment>message</comment>
        <translation>%1 (es hat später geantwortet)</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <comment>parameters with before → after</comment>
        <translation>nicht geschrieben: %1</translation>
    </message>
    <message>
        <source>perhaps written: %1</source>
        <comment>parameters with before → after</comment>
        <translation>vielleicht geschrieben: %1</translation>
    </message>
    <message>
        <source>partly written: %1</source>
        <comment>parameters with before → after</comment>
        <translation>teilweise geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>orda_client::RunDriver</name>
    <message>
        <source>--devices: there is no device &quot;%1&quot;</source>
        <translation>--devices: Es gibt kein Gerät „%1“</translation>
    </message>
    <message>
        <source>window shown</source>
        <translation>Fenster angezeigt</translation>
    </message>
    <message>
        <source>cannot read the record file %1: %2</source>
        <translation>Protokolldatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>Bild %1 kann nicht geschrieben werden</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%1 von %n Gerät online</numerusform>
            <numerusform>%1 von %n Geräten online</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) ticked</source>
        <translation>
            <numerusform>%n Gerät angehakt</numerusform>
            <numerusform>%n Geräte angehakt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) not reached</source>
        <translation>
            <numerusform>%n Gerät nicht erreicht</numerusform>
            <numerusform>%n Geräte nicht erreicht</numerusform>
        </translation>
    </message>
    <message>
        <source>--run is for demos and pictures: it writes the form&apos;s default values. orda_batch(1) sets values of your own.</source>
        <translation>--run ist für Vorführungen und Bilder: Es schreibt die Vorgabewerte des Formulars. Eigene Werte setzt orda_batch(1).</translation>
    </message>
    <message numerus="yes">
        <source>%n of the given devices is off line or may not be configured</source>
        <translation>
            <numerusform>%n der angegebenen Geräte ist offline oder darf nicht konfiguriert werden</numerusform>
            <numerusform>%n der angegebenen Geräte sind offline oder dürfen nicht konfiguriert werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunJobs</name>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurücknehmen</translation>
    </message>
</context>
<context>
    <name>orda_client::RunListModel</name>
    <message>
        <source>Began</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
</context>
<context>
    <name>orda_client::RunProgress</name>
    <message>
        <source>Known to be off line: %1</source>
        <translation>Bekanntlich offline: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <comment>names of devices</comment>
        <translation>
            <numerusform>%1 und %Ln weiteres</numerusform>
            <numerusform>%1 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>device, why it failed</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Latest failures: %1</source>
        <translation>Letzte Fehler: %1</translation>
    </message>
    <message>
        <source>Devices of the run that have their result</source>
        <translation>Geräte des Laufs, die ihr Ergebnis haben</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;toppen</translation>
    </message>
    <message>
        <source>What has not left yet is not sent (%1)</source>
        <translation>Was noch nicht unterwegs ist, wird nicht gesendet (%1)</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>Halted, because more than %1 % of the devices have failed</source>
        <translation>Von selbst gestoppt, weil mehr als %1 % der Geräte fehlgeschlagen sind</translation>
    </message>
    <message>
        <source>%1. What has not left yet is not sent; what has been written stays written: %2</source>
        <comment>why, devices</comment>
        <translation>%1. Was noch nicht unterwegs ist, wird nicht gesendet; was geschrieben ist, bleibt: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>that were written to</comment>
        <translation>
            <numerusform>%Ln Gerät</numerusform>
            <numerusform>%Ln Geräte</numerusform>
        </translation>
    </message>
    <message>
        <source>waiting for answers</source>
        <translation>warten auf Antworten</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>noch etwa %Ln Minute</numerusform>
            <numerusform>noch etwa %Ln Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln done</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln erledigt</numerusform>
            <numerusform>%Ln erledigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln nicht erreicht</numerusform>
            <numerusform>%Ln nicht erreicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln stopped</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln gestoppt</numerusform>
            <numerusform>%Ln gestoppt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln übrig</numerusform>
            <numerusform>%Ln übrig</numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1</source>
        <comment>devices</comment>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>partly written: %1</source>
        <comment>devices</comment>
        <translation>teilweise geschrieben: %1</translation>
    </message>
    <message>
        <source>perhaps written: %1</source>
        <comment>devices</comment>
        <translation>vielleicht geschrieben: %1</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <comment>devices</comment>
        <translation>nicht geschrieben: %1</translation>
    </message>
    <message>
        <source>of these not reached: %1</source>
        <comment>devices</comment>
        <translation>davon nicht erreicht: %1</translation>
    </message>
    <message>
        <source>Sho&amp;w run</source>
        <translation>Lauf &amp;anzeigen</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>why it has stopped, counts</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>unchanged: %1</source>
        <comment>devices</comment>
        <translation>unverändert: %1</translation>
    </message>
</context>
<context>
    <name>orda_client::RunRecordModel</name>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Unlesbar</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>orda_client::RunSummary</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Devices: %1</source>
        <translation>Geräte: %1</translation>
    </message>
    <message>
        <source>Succeeded: %1</source>
        <translation>Erfolgreich: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Unreadable: %1</source>
        <translation>Unlesbar: %1</translation>
    </message>
</context>
<context>
    <name>orda_client::RunTargets</name>
    <message>
        <source>%1: now it is another device, with the serial number %2</source>
        <translation>%1: ist jetzt ein anderes Gerät, mit der Seriennummer %2</translation>
    </message>
    <message>
        <source>This program does not know the parameters of the run.</source>
        <translation>Dieses Programm kennt die Parameter des Laufs nicht.</translation>
    </message>
    <message>
        <source>The run is still under way.</source>
        <translation>Der Lauf ist noch nicht beendet.</translation>
    </message>
    <message>
        <source>This run has taken another one back. To try that again, undo the other run again.</source>
        <translation>Dieser Lauf hat einen anderen zurückgenommen. Um das erneut zu versuchen, nehmen Sie den anderen Lauf noch einmal zurück.</translation>
    </message>
    <message>
        <source>%1: the run has no values for it</source>
        <translation>%1: der Lauf hat keine Werte dafür</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <comment>devices</comment>
        <translation>
            <numerusform>… und %n weiteres</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunTexts</name>
    <message>
        <source>Configured</source>
        <translation>Konfiguriert</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurücknahme</translation>
    </message>
    <message>
        <source>Undo of %1</source>
        <comment>time</comment>
        <translation>Zurücknahme von %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>Partly written</source>
        <translation>Teilweise geschrieben</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>Nicht erreicht</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Abweichend</translation>
    </message>
    <message>
        <source>Under way</source>
        <translation>Im Gange</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>im Gange</translation>
    </message>
    <message>
        <source>ended with its program</source>
        <translation>endete mit seinem Programm</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>outcome, number of devices</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>orda_client::RunsWindow</name>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Runs, latest first</source>
        <translation>Läufe, neuester zuerst</translation>
    </message>
    <message>
        <source>Searches times, parameters, outcomes, programs and values</source>
        <translation>Sucht in Zeiten, Parametern, Ergebnissen, Programmen und Werten</translation>
    </message>
    <message>
        <source>&amp;Runs:</source>
        <translation>&amp;Läufe:</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Alle Läufe</translation>
    </message>
    <message>
        <source>With devices that are not done</source>
        <translation>Mit nicht erledigten Geräten</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>Konfiguriert</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurücknahme</translation>
    </message>
    <message>
        <source>The history is being read.</source>
        <translation>Der Verlauf wird gelesen.</translation>
    </message>
    <message>
        <source>Com&amp;pare two runs</source>
        <translation>Z&amp;wei Läufe vergleichen</translation>
    </message>
    <message>
        <source>Select two runs of the same parameters, the second one with Ctrl</source>
        <translation>Wählen Sie zwei Läufe derselben Parameter aus, den zweiten mit Strg</translation>
    </message>
    <message>
        <source>Open record &amp;file…</source>
        <translation>&amp;Protokolldatei öffnen …</translation>
    </message>
    <message>
        <source>Shows the record file of a run, as older versions wrote it too</source>
        <translation>Zeigt die Protokolldatei eines Laufs, auch eine von älteren Versionen</translation>
    </message>
    <message>
        <source>Configures the selected devices, or those of the chosen group of failures, with the values of this run</source>
        <translation>Konfiguriert die ausgewählten Geräte oder die der gewählten Gruppe von Fehlern mit den Werten dieses Laufs</translation>
    </message>
    <message>
        <source>&amp;Verify</source>
        <translation>Ü&amp;berprüfen</translation>
    </message>
    <message>
        <source>Reads the selected devices, or all, and shows what is not as the run has left it</source>
        <translation>Liest die ausgewählten oder alle Geräte und zeigt, was nicht so ist, wie der Lauf es hinterlassen hat</translation>
    </message>
    <message>
        <source>&amp;Undo…</source>
        <translation>&amp;Zurücknehmen …</translation>
    </message>
    <message>
        <source>Shows what taking the run back would write, on the selected devices or on all</source>
        <translation>Zeigt, was das Zurücknehmen des Laufs auf die ausgewählten oder alle Geräte schreiben würde</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV e&amp;xportieren …</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>Speichert die angezeigten Zeilen in ihrer Reihenfolge für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>No run yet. Tick devices and parameters in the form and press Configure; what came of each device is then listed here.</source>
        <translation>Noch kein Lauf. Haken Sie im Formular Geräte und Parameter an, und drücken Sie Konfigurieren; was aus jedem Gerät wurde, steht dann hier.</translation>
    </message>
    <message numerus="yes">
        <source>A run is going on: %1 of %Ln device(s) have their outcome.</source>
        <translation>
            <numerusform>Ein Lauf ist im Gange: %1 von %Ln Gerät hat sein Ergebnis.</numerusform>
            <numerusform>Ein Lauf ist im Gange: %1 von %Ln Geräten haben ihr Ergebnis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Try again on %Ln device(s)…</source>
        <translation>
            <numerusform>Auf %Ln Gerät &amp;erneut versuchen …</numerusform>
            <numerusform>Auf %Ln Geräten &amp;erneut versuchen …</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again…</source>
        <translation>&amp;Erneut versuchen …</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s) get values of their own, as in this run.</source>
        <translation>
            <numerusform>%Ln Gerät bekommt eigene Werte wie in diesem Lauf.</numerusform>
            <numerusform>%Ln Geräte bekommen eigene Werte wie in diesem Lauf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them cannot be written to now and will end as not reached.</source>
        <translation>
            <numerusform>Auf %Ln davon kann jetzt nicht geschrieben werden; das Ergebnis wird „nicht erreicht“ sein.</numerusform>
            <numerusform>Auf %Ln davon kann jetzt nicht geschrieben werden; das Ergebnis wird „nicht erreicht“ sein.</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Ausgelassen:</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message numerus="yes">
        <source>%1: configure %Ln device(s) again with the values of this run?</source>
        <comment>parameters</comment>
        <translation>
            <numerusform>%1: %Ln Gerät erneut mit den Werten dieses Laufs konfigurieren?</numerusform>
            <numerusform>%1: %Ln Geräte erneut mit den Werten dieses Laufs konfigurieren?</numerusform>
        </translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>A run is going on.</source>
        <translation>Ein Lauf ist im Gange.</translation>
    </message>
    <message>
        <source>&amp;Stop the run</source>
        <translation>Lau&amp;f stoppen</translation>
    </message>
    <message>
        <source>What has not left yet is not sent; what has been written stays written</source>
        <translation>Was noch nicht unterwegs ist, wird nicht gesendet; was geschrieben ist, bleibt</translation>
    </message>
</context>
<context>
    <name>orda_client::SearchedTable</name>
    <message>
        <source>Nothing here fits the search and the choice above.</source>
        <translation>Hier passt nichts zur Suche und zur Wahl darüber.</translation>
    </message>
</context>
<context>
    <name>orda_client::SettingsDialog</name>
    <message>
        <source>Sto&amp;p a run by itself when more of its devices have failed than</source>
        <translation>Einen Lauf von selbst sto&amp;ppen, wenn mehr Geräte fehlschlagen als</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>As the system</source>
        <comment>the language</comment>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <comment>the theme</comment>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>the theme</comment>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>the theme</comment>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>Another language and another theme are there when the client is started next.</source>
        <translation>Eine andere Sprache und ein anderes Farbschema gelten ab dem nächsten Start.</translation>
    </message>
    <message>
        <source> %</source>
        <comment>per cent</comment>
        <translation> %</translation>
    </message>
    <message>
        <source>Share of failed devices that stops a run</source>
        <translation>Anteil fehlgeschlagener Geräte, der einen Lauf stoppt</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>&amp;Ask before a run over more devices than</source>
        <translation>Vor einem Lauf &amp;nachfragen bei mehr Geräten als</translation>
    </message>
    <message>
        <source>With 0 devices the client asks before every run.</source>
        <translation>Bei 0 Geräten wird vor jedem Lauf gefragt.</translation>
    </message>
    <message>
        <source>File of the history</source>
        <translation>Datei des Verlaufs</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>What runs have done to devices is kept in this file:</source>
        <translation>Was Läufe mit Geräten gemacht haben, steht in dieser Datei:</translation>
    </message>
    <message numerus="yes">
        <source>Runs are removed after %n day(s), and the oldest ones earlier when the file grows beyond %1 MiB.</source>
        <translation>
            <numerusform>Läufe werden nach %n Tag entfernt, die ältesten früher, wenn die Datei größer als %1 MiB wird.</numerusform>
            <numerusform>Läufe werden nach %n Tagen entfernt, die ältesten früher, wenn die Datei größer als %1 MiB wird.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The latest %n run(s) always stay.</source>
        <translation>
            <numerusform>Der letzte Lauf (%n) bleibt immer.</numerusform>
            <numerusform>Die letzten %n Läufe bleiben immer.</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>orda_client::StandardBar</name>
    <message>
        <source>Stan&amp;dard:</source>
        <translation>Stan&amp;dard:</translation>
    </message>
    <message>
        <source>Take as &amp;model</source>
        <translation>Als &amp;Vorbild nehmen</translation>
    </message>
    <message>
        <source>Compares the others with the device that is chosen below</source>
        <translation>Vergleicht die anderen mit dem unten ausgewählten Gerät</translation>
    </message>
    <message>
        <source>&amp;Load into the page</source>
        <translation>In die Seite &amp;laden</translation>
    </message>
    <message>
        <source>Ticks the parameters of the standard on the page, and no others, and gives them its values</source>
        <translation>Hakt auf der Seite genau die Parameter des Standards an und gibt ihnen dessen Werte</translation>
    </message>
    <message>
        <source>Sa&amp;ve as profile…</source>
        <translation>Als &amp;Profil speichern …</translation>
    </message>
    <message>
        <source>Keeps the values of the standard under a name</source>
        <translation>Behält die Werte des Standards unter einem Namen</translation>
    </message>
    <message>
        <source>&amp;Forget profile</source>
        <translation>Profil lös&amp;chen</translation>
    </message>
    <message>
        <source>Removes the profile that is chosen as the standard</source>
        <translation>Löscht das Profil, das als Standard gewählt ist</translation>
    </message>
    <message>
        <source>The values of the page as they are now</source>
        <translation>Die Werte der Seite, wie sie jetzt sind</translation>
    </message>
    <message>
        <source>The value that most devices have, for each setting</source>
        <translation>Je Einstellung der Wert, den die meisten Geräte haben</translation>
    </message>
    <message>
        <source>The device %1</source>
        <translation>Das Gerät %1</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot;</source>
        <translation>Das Profil „%1“</translation>
    </message>
    <message>
        <source>Save as profile</source>
        <translation>Als Profil speichern</translation>
    </message>
    <message>
        <source>Name of the profile. One that has this name already is replaced.</source>
        <translation>Name des Profils. Eines, das schon so heißt, wird ersetzt.</translation>
    </message>
    <message>
        <source>Forget profile</source>
        <translation>Profil löschen</translation>
    </message>
    <message>
        <source>Forget the profile &quot;%1&quot;?</source>
        <translation>Das Profil „%1“ löschen?</translation>
    </message>
    <message>
        <source>Forget</source>
        <comment>a profile</comment>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>orda_client::TickNote</name>
    <message>
        <source>Devices that are not ticked</source>
        <translation>Nicht angehakte Geräte</translation>
    </message>
    <message>
        <source>The form is closed. Nothing was ticked.</source>
        <translation>Das Formular ist geschlossen. Es wurde nichts angehakt.</translation>
    </message>
    <message>
        <source>A run is going on. Until it has ended nothing is ticked.</source>
        <translation>Ein Lauf ist im Gange. Bis er zu Ende ist, wird nichts angehakt.</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln device(s) in the device list, and no others.</source>
        <translation>
            <numerusform>%1 von %Ln Gerät in der Geräteliste angehakt und keine anderen.</numerusform>
            <numerusform>%1 von %Ln Geräten in der Geräteliste angehakt und keine anderen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list&apos;s search was cleared: it hid some of them.</source>
        <translation>Die Suche der Liste wurde geleert: Sie verbarg einige davon.</translation>
    </message>
    <message>
        <source>Not ticked:</source>
        <translation>Nicht angehakt:</translation>
    </message>
    <message>
        <source>%1: not in the inventory</source>
        <comment>id of a device</comment>
        <translation>%1: nicht im Bestand</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>device, why it is not ticked</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: it is another device than was saved</source>
        <comment>device</comment>
        <translation>%1: ist ein anderes Gerät als das gespeicherte</translation>
    </message>
    <message>
        <source>came online just now, and is not in the list yet</source>
        <translation>kam gerade erst online und steht noch nicht in der Liste</translation>
    </message>
</context>
<context>
    <name>orda_client::TickTheseDialog</name>
    <message>
        <source>Tick these devices</source>
        <translation>Diese Geräte anhaken</translation>
    </message>
    <message>
        <source>&amp;Serial numbers, names or addresses, one on a line or with commas, semicolons or tabs between them:</source>
        <translation>&amp;Seriennummern, Namen oder Adressen, je eine pro Zeile oder mit Kommas, Semikolons oder Tabulatoren dazwischen:</translation>
    </message>
    <message>
        <source>&amp;Load a file…</source>
        <translation>Datei &amp;laden …</translation>
    </message>
    <message>
        <source>What of the list is not ticked</source>
        <translation>Was von der Liste nicht angehakt wird</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Load a list of devices</source>
        <translation>Geräteliste laden</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listen (*.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file %1 is too large for a list of devices.</source>
        <translation>Die Datei %1 ist für eine Geräteliste zu groß.</translation>
    </message>
    <message>
        <source>The file %1 is no text in UTF-8. Save it as CSV or text in UTF-8.</source>
        <translation>Die Datei %1 ist kein Text in UTF-8. Speichern Sie sie als CSV oder Text in UTF-8.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Tick %Ln device(s)</source>
        <translation>
            <numerusform>%Ln Gerät an&amp;haken</numerusform>
            <numerusform>%Ln Geräte an&amp;haken</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a text, the devices that it fits</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Fits no device:</source>
        <translation>Passt zu keinem Gerät:</translation>
    </message>
    <message>
        <source>Fits several devices, of which none is ticked:</source>
        <translation>Passt zu mehreren Geräten, von denen keines angehakt wird:</translation>
    </message>
    <message>
        <source>Not in the form&apos;s list now:</source>
        <translation>Jetzt nicht in der Liste des Formulars:</translation>
    </message>
    <message>
        <source>Given more than once:</source>
        <translation>Mehr als einmal angegeben:</translation>
    </message>
    <message>
        <source>Paste a list, or load one. Nothing is ticked before you have seen what was found.</source>
        <translation>Fügen Sie eine Liste ein, oder laden Sie eine. Es wird nichts angehakt, bevor Sie gesehen haben, was gefunden wurde.</translation>
    </message>
    <message>
        <source>All devices of the list were found.</source>
        <translation>Alle Geräte der Liste wurden gefunden.</translation>
    </message>
    <message>
        <source>This of the list is not ticked, or was given more than once:</source>
        <translation>Dies von der Liste wird nicht angehakt oder war mehr als einmal angegeben:</translation>
    </message>
    <message>
        <source>It is a t&amp;able: only the first column names devices</source>
        <translation>Es ist eine &amp;Tabelle: nur die erste Spalte nennt Geräte</translation>
    </message>
</context>
<context>
    <name>orda_client::ValueChecks</name>
    <message>
        <source>empty</source>
        <comment>of a value that looks wrong</comment>
        <translation>leer</translation>
    </message>
    <message>
        <source>0 is no port</source>
        <translation>0 ist kein Port</translation>
    </message>
    <message>
        <source>there is a blank in &quot;%1&quot;</source>
        <translation>„%1“ enthält ein Leerzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no web address (http:// or https://)</source>
        <translation>„%1“ ist keine Webadresse (http:// oder https://)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor the name of a server</source>
        <translation>„%1“ ist weder eine IP-Adresse noch der Name eines Servers</translation>
    </message>
    <message>
        <source>not ticked, but sent all the same: %1</source>
        <translation>nicht angehakt, aber trotzdem gesendet: %1</translation>
    </message>
    <message>
        <source>%1: nothing that is ticked applies to it</source>
        <translation>%1: nichts Angehaktes betrifft das</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>parameter, what looks wrong</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: no address is given</source>
        <translation>%1: es ist keine Adresse angegeben</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of the devices speak(s) ONVIF, which does not know this: %1</source>
        <translation>
            <numerusform>%Ln der Geräte spricht ONVIF, das Folgendes nicht kennt: %1</numerusform>
            <numerusform>%Ln der Geräte sprechen ONVIF, das Folgendes nicht kennt: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
