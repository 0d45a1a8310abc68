<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>orda_journal::HistoryArchive</name>
    <message>
        <source>must not be empty</source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message>
        <source>must be a UUID such as 6f9c1c9e-8a4b-4f6e-9d57-0c1d2e3f4a5b</source>
        <translation>muss eine UUID sein wie 6f9c1c9e-8a4b-4f6e-9d57-0c1d2e3f4a5b</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message>
        <source>must be a time in UTC such as 2026-02-28T13:45:00.000Z</source>
        <translation>muss eine Zeit in UTC sein wie 2026-02-28T13:45:00.000Z</translation>
    </message>
    <message>
        <source>must be a list of objects</source>
        <translation>muss eine Liste von Objekten sein</translation>
    </message>
    <message>
        <source>is not known and would be lost</source>
        <translation>ist nicht bekannt und ginge verloren</translation>
    </message>
    <message>
        <source>must be there</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>must not be there twice for one device</source>
        <translation>darf bei einem Gerät nicht zweimal vorkommen</translation>
    </message>
    <message>
        <source>must be null, for the run is no undo</source>
        <translation>muss null sein, denn der Lauf nimmt keinen anderen zurück</translation>
    </message>
    <message>
        <source>must be a time: a run that has not ended cannot be taken in</source>
        <translation>muss eine Zeit sein: Ein Lauf, der nicht beendet ist, kann nicht aufgenommen werden</translation>
    </message>
    <message>
        <source>must not be before &quot;began&quot;</source>
        <translation>darf nicht vor „began“ liegen</translation>
    </message>
    <message>
        <source>must be &quot;%1&quot;, as in a run that was written out</source>
        <translation>muss „%1“ sein wie bei einem ausgegebenen Lauf</translation>
    </message>
    <message>
        <source>must not be there twice</source>
        <translation>darf nicht zweimal vorkommen</translation>
    </message>
    <message>
        <source>The run has not ended.</source>
        <translation>Der Lauf ist nicht beendet.</translation>
    </message>
</context>
<context>
    <name>orda_journal::HistoryFile</name>
    <message>
        <source>%1: it was written by another version of this program</source>
        <translation>%1: die Datei stammt von einer anderen Version dieses Programms</translation>
    </message>
    <message>
        <source>%1: Qt&apos;s plug-in for SQLite is not installed</source>
        <translation>%1: das SQLite-Plug-in von Qt ist nicht installiert</translation>
    </message>
    <message>
        <source>%1: it cannot be opened</source>
        <translation>%1: die Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>%1: it was written by a newer version of this program</source>
        <translation>%1: die Datei stammt von einer neueren Version dieses Programms</translation>
    </message>
    <message>
        <source>%1: it cannot be shared by several processes there</source>
        <translation>%1: dort können sie nicht mehrere Prozesse gemeinsam benutzen</translation>
    </message>
    <message>
        <source>%1: it is damaged and cannot be renamed</source>
        <translation>%1: die Datei ist beschädigt und lässt sich nicht umbenennen</translation>
    </message>
    <message>
        <source>The history %1 is damaged. It was renamed to %2, and a new one was begun.</source>
        <translation>Der Verlauf %1 ist beschädigt. Er wurde in %2 umbenannt und ein neuer begonnen.</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation>der Datenträger ließ sich nicht lesen oder beschreiben</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>another process has it locked</source>
        <translation>ein anderer Prozess hat sie gesperrt</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>sie lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>The history cannot be read. %1</source>
        <translation>Der Verlauf lässt sich nicht lesen. %1</translation>
    </message>
</context>
<context>
    <name>orda_journal::HistoryOptions</name>
    <message>
        <source>%1: %2 must be a whole number from 1 on, not &quot;%3&quot;; it is %4</source>
        <translation>%1: %2 muss eine ganze Zahl ab 1 sein, nicht „%3“; es gilt %4</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 lässt sich nicht lesen</translation>
    </message>
</context>
<context>
    <name>orda_journal::HistoryUpkeep</name>
    <message>
        <source>no outcome was recorded: the program ended, or could not write the history on</source>
        <translation>kein Ergebnis aufgezeichnet: das Programm wurde beendet oder konnte den Verlauf nicht weiterschreiben</translation>
    </message>
</context>
<context>
    <name>orda_journal::JournalTransport</name>
    <message>
        <source>A configuration is under way. Please wait until it has ended.</source>
        <translation>Eine Konfiguration läuft. Bitte warten Sie, bis sie beendet ist.</translation>
    </message>
    <message>
        <source>There are no parameters called &quot;%1&quot;.</source>
        <translation>Parameter namens „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>the run ended before this device had its result</source>
        <translation>der Lauf endete, bevor dieses Gerät ein Ergebnis hatte</translation>
    </message>
    <message>
        <source>Devices are being read. Please wait until that has ended, or stop it.</source>
        <translation>Geräte werden gelesen. Bitte warten Sie, bis das beendet ist, oder stoppen Sie es.</translation>
    </message>
</context>
<context>
    <name>orda_journal::PrivateFile</name>
    <message>
        <source>it is a symbolic link</source>
        <translation>sie ist ein symbolischer Link</translation>
    </message>
    <message>
        <source>it is not a directory</source>
        <translation>das ist kein Verzeichnis</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>sie gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>other users may write to it</source>
        <translation>andere Benutzer dürfen hineinschreiben</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>sie hat mehr als einen Namen</translation>
    </message>
    <message>
        <source>another process has it locked</source>
        <translation>ein anderer Prozess hat sie gesperrt</translation>
    </message>
</context>
<context>
    <name>orda_journal::RunRecorder</name>
    <message>
        <source>%1: it was renamed or removed during the run</source>
        <translation>%1: die Datei wurde während des Laufs umbenannt oder entfernt</translation>
    </message>
    <message>
        <source>The history cannot be written. %1</source>
        <translation>Der Verlauf lässt sich nicht schreiben. %1</translation>
    </message>
</context>
<context>
    <name>orda_journal::TrackedRun</name>
    <message>
        <source>%1; written before: %2</source>
        <translation>%1; zuvor geschrieben: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>failure, reason</comment>
        <translation>%1: %2</translation>
    </message>
</context>
</TS>
