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
</context>
<context>
    <name>orda_client::ClientSession</name>
    <message>
        <source>%1. Nothing was written to devices after that.</source>
        <translation>%1. Danach wurde auf Geräte nichts mehr geschrieben.</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientWindow</name>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
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
        <translation>online mit Werkskennwort</translation>
    </message>
    <message>
        <source>online, locked</source>
        <translation>online, gesperrt</translation>
    </message>
    <message>
        <source>Batch Configuration</source>
        <translation>Sammelkonfiguration</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Geräte</translation>
    </message>
    <message>
        <source>&amp;Open inventory…</source>
        <translation>Bestand &amp;öffnen …</translation>
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
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Open inventory</source>
        <translation>Bestand öffnen</translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>Bestände (*.json);;Alle Dateien (*)</translation>
    </message>
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
    <message>
        <source>&amp;Last run</source>
        <translation>&amp;Letzter Lauf</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Lauf</translation>
    </message>
    <message>
        <source>Lists the outcome of each device, and ticks the failed ones again</source>
        <translation>Zeigt das Ergebnis jedes Geräts und wählt die fehlgeschlagenen wieder aus</translation>
    </message>
    <message>
        <source>Last run</source>
        <translation>Letzter Lauf</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%1 von %n Gerät online</numerusform>
            <numerusform>%1 von %n Geräten online</numerusform>
        </translation>
    </message>
    <message>
        <source>A run is going on over the devices of this inventory. Open another when it has ended.</source>
        <translation>Ein Lauf über die Geräte dieses Bestands ist im Gange. Öffnen Sie einen anderen, wenn er zu Ende ist.</translation>
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
    <name>orda_client::CsvFile</name>
    <message>
        <source>cannot write the file %1: %2</source>
        <translation>Datei %1 kann nicht geschrieben werden: %2</translation>
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
        <source>it is not in the list now: offline, or not to be configured</source>
        <translation>es steht jetzt nicht in der Liste: offline oder nicht konfigurierbar</translation>
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
</context>
<context>
    <name>orda_client::FailureGroupList</name>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Unreadable entries</source>
        <translation>Unlesbare Einträge</translation>
    </message>
</context>
<context>
    <name>orda_client::LastRunWindow</name>
    <message>
        <source>Last run</source>
        <translation>Letzter Lauf</translation>
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
        <source>Searches names, serial numbers, addresses and messages (%1)</source>
        <translation>Sucht in Namen, Seriennummern, Adressen und Meldungen (%1)</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>&amp;Parameter:</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message>
        <source>Failures by message</source>
        <translation>Fehler nach Meldung</translation>
    </message>
    <message>
        <source>Failures by &amp;message</source>
        <translation>Fehler nach &amp;Meldung</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>Geräte des Laufs</translation>
    </message>
    <message>
        <source>&amp;Tick failed again</source>
        <translation>&amp;Fehlgeschlagene wieder auswählen</translation>
    </message>
    <message>
        <source>Ticks exactly the failed devices of this run in the device list, and opens the page</source>
        <translation>Wählt genau die fehlgeschlagenen Geräte dieses Laufs in der Geräteliste aus und öffnet die Seite</translation>
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
        <source>No run yet. Tick devices and parameters in the form and press Configure; the outcome of each device is then listed here.</source>
        <translation>Noch kein Lauf. Wählen Sie im Formular Geräte und Parameter und drücken Sie Konfigurieren; das Ergebnis jedes Geräts steht dann hier.</translation>
    </message>
    <message>
        <source>The record %1 is gone. The next run writes it again.</source>
        <translation>Das Protokoll %1 ist nicht mehr da. Der nächste Lauf schreibt es neu.</translation>
    </message>
    <message>
        <source>The record %1 is not read: %2. Move it away; the next run writes a new one.</source>
        <translation>Das Protokoll %1 wird nicht gelesen: %2. Verschieben Sie es; der nächste Lauf schreibt ein neues.</translation>
    </message>
    <message>
        <source>The run has no result yet.</source>
        <translation>Der Lauf hat noch kein Ergebnis.</translation>
    </message>
    <message>
        <source>No device failed.</source>
        <translation>Kein Gerät ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>No device of this run fits the search and the choice beside it.</source>
        <translation>Kein Gerät dieses Laufs passt zur Suche und zur Auswahl daneben.</translation>
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
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of the given devices is offline or may not be configured</source>
        <translation>
            <numerusform>%n der angegebenen Geräte ist offline oder darf nicht konfiguriert werden</numerusform>
            <numerusform>%n der angegebenen Geräte sind offline oder dürfen nicht konfiguriert werden</numerusform>
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
    <message>
        <source>The run is still going on.</source>
        <translation>Der Lauf ist noch im Gange.</translation>
    </message>
</context>
<context>
    <name>orda_client::TickReport</name>
    <message>
        <source>Failed devices that are not ticked</source>
        <translation>Fehlgeschlagene Geräte, die nicht ausgewählt sind</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln failed device(s) in the device list.</source>
        <translation>
            <numerusform>%1 von %Ln fehlgeschlagenen Gerät in der Geräteliste ausgewählt.</numerusform>
            <numerusform>%1 von %Ln fehlgeschlagenen Geräten in der Geräteliste ausgewählt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list&apos;s search was cleared: it hid some of them.</source>
        <translation>Die Suche der Liste wurde geleert: Sie verbarg einige davon.</translation>
    </message>
    <message>
        <source>Not ticked:</source>
        <translation>Nicht ausgewählt:</translation>
    </message>
</context>
</TS>
