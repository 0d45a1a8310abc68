<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ClientOptions</name>
    <message>
        <source>Configures many online cameras and recorders at once.

Exit codes: 0 every device was configured, 1 some were not, 2 wrong usage, 3 a file is wrong, 4 no device.</source>
        <translation>Konfiguriert viele Kameras und Rekorder, die online sind, auf einmal.

Rückgabewerte: 0 alle Geräte konfiguriert, 1 einige nicht, 2 falscher Aufruf, 3 eine Datei ist falsch, 4 kein Gerät.</translation>
    </message>
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
        <source>Drive the form without a person: one run of FAMILY (%1), then exit.</source>
        <translation>Das Formular ohne Bediener fahren: ein Lauf von FAMILY (%1), dann Ende.</translation>
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
        <source>--devices and --screenshots need --run</source>
        <translation>--devices und --screenshots brauchen --run</translation>
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
</context>
<context>
    <name>ClientWindow</name>
    <message>
        <source>off line</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>on line</source>
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
        <source>on line with the factory password</source>
        <translation>online mit Werkskennwort</translation>
    </message>
    <message>
        <source>on line, locked</source>
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
        <source>%1 of %2 devices on line</source>
        <translation>%1 von %2 Geräten online</translation>
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
</context>
<context>
    <name>RunDriver</name>
    <message>
        <source>--devices: there is no device &quot;%1&quot;</source>
        <translation>--devices: Es gibt kein Gerät „%1“</translation>
    </message>
    <message>
        <source>window shown</source>
        <translation>Fenster angezeigt</translation>
    </message>
    <message>
        <source>%1 of %2 devices on line</source>
        <translation>%1 von %2 Geräten online</translation>
    </message>
    <message>
        <source>%1 devices ticked</source>
        <translation>%1 Geräte ausgewählt</translation>
    </message>
    <message>
        <source>%1 of the given devices are off line or may not be configured</source>
        <translation>%1 der angegebenen Geräte sind offline oder dürfen nicht konfiguriert werden</translation>
    </message>
    <message>
        <source>cannot read the record file %1: %2</source>
        <translation>Protokolldatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>Bild %1 kann nicht geschrieben werden</translation>
    </message>
</context>
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
</TS>
