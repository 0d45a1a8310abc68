<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CheckedJson</name>
    <message>
        <source>must be a text in quotes</source>
        <translation>muss ein Text in Anführungszeichen sein</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>muss true oder false sein</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>muss einer dieser Werte sein: %1</translation>
    </message>
    <message>
        <source>field &quot;%1&quot;: %2</source>
        <translation>Feld „%1“: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>is not JSON: %1 at byte %2</source>
        <translation>ist kein JSON: %1 bei Byte %2</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot; is not used</source>
        <translation>unbekannter Schlüssel „%1“ wird nicht verwendet</translation>
    </message>
    <message>
        <source>must be a list of objects</source>
        <translation>muss eine Liste von Objekten sein</translation>
    </message>
    <message>
        <source>%1: must be an object</source>
        <translation>%1: muss ein Objekt sein</translation>
    </message>
    <message>
        <source>%1: unknown key &quot;%2&quot; is not used</source>
        <translation>%1: unbekannter Schlüssel „%2“ wird nicht verwendet</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>Inventory</name>
    <message>
        <source>must not hold line breaks, tabs or control characters</source>
        <translation>darf keine Zeilenumbrüche, Tabulatoren oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>must be an IPv4 address such as 192.168.1.20, or empty where &quot;url&quot; is given</source>
        <translation>muss eine IPv4-Adresse wie 192.168.1.20 sein oder leer, wo „url“ angegeben ist</translation>
    </message>
    <message>
        <source>must be a SHA-256: 64 hexadecimal digits, with or without colons</source>
        <translation>muss ein SHA-256 sein: 64 Hexadezimalziffern, mit oder ohne Doppelpunkte</translation>
    </message>
    <message>
        <source>must be there and not be empty</source>
        <translation>muss vorhanden und darf nicht leer sein</translation>
    </message>
    <message>
        <source>must be an IPv4 address where no &quot;url&quot; is given</source>
        <translation>muss eine IPv4-Adresse sein, wo keine „url“ angegeben ist</translation>
    </message>
    <message>
        <source>must be a whole number from 1 to 65535 where no &quot;url&quot; is given</source>
        <translation>muss eine ganze Zahl von 1 bis 65535 sein, wo keine „url“ angegeben ist</translation>
    </message>
    <message>
        <source>must be the path of an address and begin with &quot;/&quot;</source>
        <translation>muss der Pfad einer Adresse sein und mit „/“ beginnen</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>must not hold line breaks, tabs, control characters or characters that cannot be seen</source>
        <translation>darf keine Zeilenumbrüche, Tabulatoren, Steuerzeichen oder unsichtbaren Zeichen enthalten</translation>
    </message>
    <message>
        <source>holds passwords and may be read or changed by others; set its mode to 0600 (chmod 600)</source>
        <translation>enthält Passwörter und ist für andere lesbar oder veränderbar; bitte den Modus auf 0600 setzen (chmod 600)</translation>
    </message>
    <message>
        <source>must not be the same as in %1</source>
        <translation>darf nicht dasselbe sein wie in %1</translation>
    </message>
    <message>
        <source>%1 (id &quot;%2&quot;)</source>
        <translation>%1 (id „%2“)</translation>
    </message>
    <message>
        <source>must be an address such as %1</source>
        <translation>muss eine Adresse wie %1 sein</translation>
    </message>
    <message>
        <source>must not be true beside a &quot;url&quot; that begins with %1:</source>
        <translation>darf neben einer „url“, die mit %1: beginnt, nicht true sein</translation>
    </message>
    <message>
        <source>has no use without TLS: set tls to true or give a %1: url</source>
        <translation>ist ohne TLS nutzlos: tls auf true setzen oder eine %1:-Adresse angeben</translation>
    </message>
</context>
<context>
    <name>OnvifCode</name>
    <message>
        <source>The device does not allow this value</source>
        <translation>Das Gerät lässt diesen Wert nicht zu</translation>
    </message>
    <message>
        <source>The device has no counterpart for this in ONVIF</source>
        <translation>Das Gerät hat dafür in ONVIF keine Entsprechung</translation>
    </message>
    <message>
        <source>The device refused it</source>
        <translation>Das Gerät hat es abgelehnt</translation>
    </message>
    <message>
        <source>The connection to the device failed, or its answer was of no use</source>
        <translation>Die Verbindung zum Gerät ist fehlgeschlagen, oder seine Antwort war unbrauchbar</translation>
    </message>
</context>
<context>
    <name>SystemAssistant</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>orda_base::NavigationWidget</name>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
</context>
<context>
    <name>orda_base::SearchBox</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Start search</source>
        <translation>Suche starten</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>orda_base::TableOperWtStyle</name>
    <message>
        <source>Space ticks and unticks the selected rows</source>
        <translation>Die Leertaste hakt die ausgewählten Zeilen an oder ab</translation>
    </message>
</context>
<context>
    <name>vms_sdk::OnvifDiscovery</name>
    <message>
        <source>There is no network to search: no interface is up that has an IPv4 address and multicast.</source>
        <translation>Es gibt kein Netz, in dem gesucht werden kann: Keine Schnittstelle ist aktiv, die eine IPv4-Adresse und Multicast hat.</translation>
    </message>
    <message>
        <source>There is no network interface &quot;%1&quot;, nor another that can be searched.</source>
        <translation>Es gibt keine Netzwerkschnittstelle „%1“ und auch keine andere, über die gesucht werden kann.</translation>
    </message>
    <message>
        <source>There is no network interface &quot;%1&quot;; these can be searched: %2.</source>
        <translation>Es gibt keine Netzwerkschnittstelle „%1“; gesucht werden kann über: %2.</translation>
    </message>
    <message>
        <source>The network interface &quot;%1&quot; cannot be searched: it is not up, or has no IPv4 address or no multicast.</source>
        <translation>Über die Netzwerkschnittstelle „%1“ kann nicht gesucht werden: Sie ist nicht aktiv oder hat keine IPv4-Adresse oder kein Multicast.</translation>
    </message>
    <message>
        <source>The search cannot be sent: %1</source>
        <translation>Die Suche lässt sich nicht senden: %1</translation>
    </message>
</context>
</TS>
