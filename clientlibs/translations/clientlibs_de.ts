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
        <source>must be an address such as wss://relay.example:443/camera-1</source>
        <translation>muss eine Adresse wie wss://relay.example:443/camera-1 sein</translation>
    </message>
    <message>
        <source>must not be true beside a &quot;url&quot; that begins with ws:</source>
        <translation>darf neben einer „url“, die mit ws: beginnt, nicht true sein</translation>
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
        <source>has no use without TLS: set tls to true or give a wss: url</source>
        <translation>ist ohne TLS nutzlos: tls auf true setzen oder eine wss:-Adresse angeben</translation>
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
</TS>
