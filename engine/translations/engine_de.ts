<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>orda_engine::ChangeTexts</name>
    <message>
        <source>%1: %2 instead of %3</source>
        <translation>%1: %2 statt %3</translation>
    </message>
    <message>
        <source>changed since and left as it is: %1</source>
        <translation>seither geändert und so belassen: %1</translation>
    </message>
    <message>
        <source>not there before and cannot be taken out: %1</source>
        <translation>vorher nicht vorhanden und nicht entfernbar: %1</translation>
    </message>
</context>
<context>
    <name>orda_engine::Reach</name>
    <message>
        <source>refused: user name or password</source>
        <translation>abgelehnt: Benutzername oder Passwort</translation>
    </message>
    <message>
        <source>refused: the serial number is another one</source>
        <translation>abgelehnt: die Seriennummer ist eine andere</translation>
    </message>
    <message>
        <source>does not sign on as it should</source>
        <translation>meldet sich nicht an, wie es soll</translation>
    </message>
    <message>
        <source>certificate not accepted</source>
        <translation>Zertifikat nicht akzeptiert</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>keine sichere Verbindung</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>Verbindung abgewiesen</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>no address, or its name is not known</source>
        <translation>keine Adresse, oder ihr Name ist unbekannt</translation>
    </message>
    <message>
        <source>cut off: it went beyond a limit</source>
        <translation>getrennt: es hat eine Grenze überschritten</translation>
    </message>
    <message>
        <source>off line since %1</source>
        <translation>offline seit %1</translation>
    </message>
    <message>
        <source>%1, off line since %2</source>
        <translation>%1, offline seit %2</translation>
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
        <source>off line</source>
        <translation>offline</translation>
    </message>
</context>
<context>
    <name>orda_engine::ReadBatch</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>orda_engine::ReadJob</name>
    <message>
        <source>There is no connection to devices.</source>
        <translation>Es besteht keine Verbindung zu Geräten.</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestoppt</translation>
    </message>
</context>
<context>
    <name>orda_engine::RecordedRun</name>
    <message>
        <source>The run is of &quot;%1&quot;, of which this program knows nothing.</source>
        <translation>Der Lauf betrifft „%1“, was dieses Programm nicht kennt.</translation>
    </message>
    <message>
        <source>The run has written to no device.</source>
        <translation>Der Lauf hat auf kein Gerät geschrieben.</translation>
    </message>
    <message>
        <source>The run is still under way.</source>
        <translation>Der Lauf ist noch nicht beendet.</translation>
    </message>
</context>
<context>
    <name>orda_engine::Waves</name>
    <message>
        <source>&quot;%1&quot; is no size of a wave: a number of devices from 1 on, or 1% to 100%</source>
        <translation>„%1“ ist keine Größe einer Welle: eine Anzahl Geräte ab 1 oder 1% bis 100%</translation>
    </message>
</context>
<context>
    <name>orda_engine::WriteJob</name>
    <message>
        <source>There is no connection to devices.</source>
        <translation>Es besteht keine Verbindung zu Geräten.</translation>
    </message>
    <message>
        <source>%1; not verified: %2</source>
        <translation>%1; nicht überprüft: %2</translation>
    </message>
    <message>
        <source>read again, it is not as it was written: %1</source>
        <translation>erneut gelesen, ist es nicht wie geschrieben: %1</translation>
    </message>
    <message>
        <source>more than %1 % of the devices failed</source>
        <translation>mehr als %1 % der Geräte sind fehlgeschlagen</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestoppt</translation>
    </message>
    <message>
        <source>not begun: %1</source>
        <translation>nicht begonnen: %1</translation>
    </message>
    <message>
        <source>the connection has ended</source>
        <translation>die Verbindung ist beendet</translation>
    </message>
</context>
</TS>
