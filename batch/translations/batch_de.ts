<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>main</name>
    <message>
        <source>the results cannot be written: %1</source>
        <translation>die Ergebnisse lassen sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>--language takes one of %1, not &quot;%2&quot;</source>
        <translation>--language nimmt eine von %1, nicht „%2“</translation>
    </message>
    <message>
        <source>--yes is needed where nobody can be asked</source>
        <translation>--yes ist nötig, wo niemand gefragt werden kann</translation>
    </message>
    <message>
        <source>%1 (see orda_batch --help)</source>
        <translation>%1 (siehe orda_batch --help)</translation>
    </message>
</context>
<context>
    <name>orda_batch::BatchOptions</name>
    <message>
        <source>Sets a parameter; once for each.</source>
        <translation>Setzt einen Parameter; für jeden einmal anzugeben.</translation>
    </message>
    <message>
        <source>Values from a file: JSON for all devices, CSV or JSON lines for each.</source>
        <translation>Werte aus einer Datei: JSON für alle Geräte, CSV oder JSON-Zeilen für jedes einzeln.</translation>
    </message>
    <message>
        <source>Lets keys and values pass that the family does not name; reads all members.</source>
        <translation>Lässt Schlüssel und Werte zu, die die Familie nicht nennt; liest alle Felder.</translation>
    </message>
    <message>
        <source>The devices of this inventory file.</source>
        <translation>Die Geräte dieser Bestandsdatei.</translation>
    </message>
    <message>
        <source>N simulated devices, to try something on.</source>
        <translation>N simulierte Geräte zum Ausprobieren.</translation>
    </message>
    <message>
        <source>Faults of the simulated devices (with --demo).</source>
        <translation>Fehler der simulierten Geräte (mit --demo).</translation>
    </message>
    <message>
        <source>Which of the devices; all when not given.</source>
        <translation>Welche der Geräte; ohne Angabe alle.</translation>
    </message>
    <message>
        <source>Only the K-th of N shares of them.</source>
        <translation>Davon nur den K-ten von N Teilen.</translation>
    </message>
    <message>
        <source>&quot;table&quot; (default), &quot;csv&quot; or &quot;json&quot; (an object a line).</source>
        <translation>„table“ (Vorgabe), „csv“ oder „json“ (ein Objekt je Zeile).</translation>
    </message>
    <message>
        <source>Language of messages, such as &quot;en&quot;; the system&apos;s when not given.</source>
        <translation>Sprache der Meldungen, etwa „en“; ohne Angabe die des Systems.</translation>
    </message>
    <message>
        <source>How long to wait for connections, in seconds (default 60).</source>
        <translation>Wie lange auf Verbindungen gewartet wird, in Sekunden (Vorgabe 60).</translation>
    </message>
    <message>
        <source>Keeps no history of the run: it cannot be taken back.</source>
        <translation>Zeichnet den Lauf nicht im Verlauf auf: Er lässt sich nicht zurücknehmen.</translation>
    </message>
    <message>
        <source>In waves of so many devices, such as 1,10,25%; the last size goes on.</source>
        <translation>In Wellen von so vielen Geräten, etwa 1,10,25%; die letzte Größe gilt weiter.</translation>
    </message>
    <message>
        <source>Reads each wave again and compares.</source>
        <translation>Liest jede Welle erneut und vergleicht.</translation>
    </message>
    <message>
        <source>Writes nothing unless all selected devices are reached.</source>
        <translation>Schreibt nur, wenn alle ausgewählten Geräte erreicht sind.</translation>
    </message>
    <message>
        <source>Takes back what somebody has changed since, too.</source>
        <translation>Nimmt auch zurück, was seither jemand geändert hat.</translation>
    </message>
    <message>
        <source>Asks nobody.</source>
        <translation>Fragt nicht nach.</translation>
    </message>
    <message>
        <source>One of the commands above.</source>
        <translation>Einer der obigen Befehle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a text in UTF-8</source>
        <translation>„%1“ ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>--%1 has no meaning for this command</source>
        <translation>--%1 hat bei diesem Befehl keine Bedeutung</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>es fehlt ein Befehl</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>%1 needs a run: an id, its beginning, or &quot;last&quot;</source>
        <translation>%1 braucht einen Lauf: eine Kennung, ihren Anfang oder „last“</translation>
    </message>
    <message>
        <source>%1 needs a family: %2</source>
        <translation>%1 braucht eine Familie: %2</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>history export needs a run: an id, its beginning, or &quot;last&quot;</source>
        <translation>history export braucht einen Lauf: eine Kennung, ihren Anfang oder „last“</translation>
    </message>
    <message>
        <source>history import needs a file, or several</source>
        <translation>history import braucht eine Datei oder mehrere</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;; there are %2</source>
        <translation>es gibt keine Familie „%1“; vorhanden sind %2</translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 nimmt eine ganze Zahl von %2 bis %3, nicht „%4“</translation>
    </message>
    <message>
        <source>--format takes table, csv or json, not &quot;%1&quot;</source>
        <translation>--format nimmt table, csv oder json, nicht „%1“</translation>
    </message>
    <message>
        <source>--shard takes K/N, with K from 1 to N, not &quot;%1&quot;</source>
        <translation>--shard nimmt K/N mit K von 1 bis N, nicht „%1“</translation>
    </message>
    <message>
        <source>--serial: %1</source>
        <translation>--serial: %1</translation>
    </message>
    <message>
        <source>values are missing: --set KEY=VALUE or --values FILE</source>
        <translation>es fehlen Werte: --set KEY=VALUE oder --values FILE</translation>
    </message>
    <message>
        <source>--set and --values exclude each other</source>
        <translation>--set und --values schließen einander aus</translation>
    </message>
    <message>
        <source>devices are missing: --inventory FILE or --demo N</source>
        <translation>es fehlen Geräte: --inventory FILE oder --demo N</translation>
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
        <source>--%1 takes a file</source>
        <translation>--%1 nimmt eine Datei</translation>
    </message>
    <message>
        <source>--devices takes a selection, such as all</source>
        <translation>--devices nimmt eine Auswahl, etwa all</translation>
    </message>
    <message>
        <source>Tries failed devices again, up to N times.</source>
        <translation>Versucht es bei fehlgeschlagenen Geräten erneut, bis zu N-mal.</translation>
    </message>
    <message>
        <source>Stops when more than P per cent of a wave&apos;s devices fail.</source>
        <translation>Stoppt, wenn mehr als P Prozent der Geräte einer Welle fehlschlagen.</translation>
    </message>
    <message>
        <source>--%1 is given twice</source>
        <translation>--%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>Reads, plans, sets, verifies and takes back parameters of many cameras and recorders.

Commands:
  families [FAMILY]           the families of parameters; keys, types, ranges and choices of one
  read FAMILY                 what the devices hold
  plan FAMILY VALUES          what &quot;apply&quot; would change; changes nothing
  apply FAMILY VALUES         sets the values, after a question on the terminal or with --yes
  verify RUN | FAMILY VALUES  whether the devices hold what the run wrote, or these values
  undo RUN                    takes back what a run has written and nobody has changed since
  history [RUN]               the recorded runs; what one of them did
  history prune               removes old runs, as the history&apos;s settings say
  history export RUN          writes a run to standard output; &quot;import FILE…&quot; takes it in elsewhere
  discover                    ONVIF cameras that answer a search of the local network

VALUES: --set KEY=VALUE …, or --values FILE. RUN: an id, its beginning, or &quot;last&quot;.
SELECTION, with commas: all, offered, an id, a serial number, name=GLOB, ip=10.1.0.0/16, kind=camera, kind=recorder, group=NAME, @FILE, failed:RUN, and not: before any of them.

Exit codes: 0 done on all selected devices, 1 failed on some, 2 wrong usage, 3 wrong input, 4 no device, 5 some not reached, 6 stopped, 7 verification found differences, 8 the history cannot be written or read; plan: 10 something would change.</source>
        <translation>Liest, plant, setzt und überprüft Parameter vieler Kameras und Rekorder und nimmt Änderungen zurück.

Befehle:
  families [FAMILY]           die Familien der Parameter; Schlüssel, Typen, Bereiche und Werte einer Familie
  read FAMILY                 was die Geräte enthalten
  plan FAMILY VALUES          was „apply“ ändern würde; ändert nichts
  apply FAMILY VALUES         setzt die Werte, nach einer Frage am Terminal oder mit --yes
  verify RUN | FAMILY VALUES  ob die Geräte enthalten, was der Lauf geschrieben hat, oder diese Werte
  undo RUN                    nimmt zurück, was ein Lauf geschrieben und seither niemand geändert hat
  history [RUN]               die aufgezeichneten Läufe; was einer davon getan hat
  history prune               entfernt alte Läufe nach den Einstellungen des Verlaufs
  history export RUN          schreibt einen Lauf auf die Standardausgabe; „import FILE…“ nimmt ihn anderswo auf
  discover                    ONVIF-Kameras, die auf eine Suche im lokalen Netz antworten

VALUES: --set KEY=VALUE … oder --values FILE. RUN: eine Kennung, ihr Anfang oder „last“.
SELECTION, mit Kommas: all, offered, eine Kennung, eine Seriennummer, name=GLOB, ip=10.1.0.0/16, kind=camera, kind=recorder, group=NAME, @FILE, failed:RUN, und vor jedem davon not:.

Rückgabewerte: 0 auf allen ausgewählten Geräten erledigt, 1 auf einigen fehlgeschlagen, 2 falscher Aufruf, 3 falsche Eingabe, 4 kein Gerät, 5 einige nicht erreicht, 6 gestoppt, 7 die Überprüfung fand Abweichungen, 8 der Verlauf lässt sich nicht schreiben oder lesen; plan: 10 etwas würde sich ändern.</translation>
    </message>
    <message>
        <source>M simulated ONVIF cameras beside them (with --demo).</source>
        <translation>Daneben M simulierte ONVIF-Kameras (mit --demo).</translation>
    </message>
    <message>
        <source>How long a device may take for an answer, in seconds (default 15); of discover: how long to search (default 5).</source>
        <translation>Wie lange ein Gerät für eine Antwort brauchen darf, in Sekunden (Vorgabe 15); bei discover: wie lange gesucht wird (Vorgabe 5).</translation>
    </message>
    <message>
        <source>Searches by this network interface; all when not given.</source>
        <translation>Sucht über diese Netzwerkschnittstelle; ohne Angabe über alle.</translation>
    </message>
    <message>
        <source>--interface takes the name of a network interface</source>
        <translation>--interface nimmt den Namen einer Netzwerkschnittstelle</translation>
    </message>
    <message>
        <source>--onvif needs --demo: it brings simulated cameras along</source>
        <translation>--onvif braucht --demo: es bringt simulierte Kameras mit</translation>
    </message>
</context>
<context>
    <name>orda_batch::CommandInput</name>
    <message>
        <source>--devices: %1</source>
        <translation>--devices: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of %1 give no value and are left out</source>
        <translation>
            <numerusform>%n Zeile von %1 gibt keinen Wert an und wird ausgelassen</numerusform>
            <numerusform>%n Zeilen von %1 geben keinen Wert an und werden ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have nothing of the run</source>
        <translation>
            <numerusform>auf %n ausgewähltes Gerät hat der Lauf nichts geschrieben</numerusform>
            <numerusform>auf %n ausgewählte Geräte hat der Lauf nichts geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have no values in %1</source>
        <translation>
            <numerusform>%n ausgewähltes Gerät hat keine Werte in %1</numerusform>
            <numerusform>%n ausgewählte Geräte haben keine Werte in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) of %1 are not selected</source>
        <translation>
            <numerusform>%n Gerät von %1 ist nicht ausgewählt</numerusform>
            <numerusform>%n Geräte von %1 sind nicht ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>no device is selected</source>
        <translation>kein Gerät ist ausgewählt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; had the serial number %2 in the run %3 and has %4 in the inventory: it is another device, which not:%1 leaves out</source>
        <translation>„%1“ hatte im Lauf %3 die Seriennummer %2 und hat im Bestand %4: Das ist ein anderes Gerät; not:%1 lässt es aus</translation>
    </message>
</context>
<context>
    <name>orda_batch::CsvValues</name>
    <message>
        <source>wrong quotation marks: they stand around a whole cell, and one within it is written twice</source>
        <translation>falsche Anführungszeichen: sie stehen um eine ganze Zelle, und eines darin wird doppelt geschrieben</translation>
    </message>
    <message>
        <source>is empty; a line with &quot;device&quot; and keys is expected</source>
        <translation>ist leer; erwartet wird eine Zeile mit „device“ und Schlüsseln</translation>
    </message>
    <message>
        <source>ends after its head; a line for each device is expected</source>
        <translation>endet nach dem Kopf; erwartet wird eine Zeile für jedes Gerät</translation>
    </message>
    <message>
        <source>is not UTF-8; save the file as CSV in UTF-8</source>
        <translation>ist kein UTF-8; die Datei als CSV in UTF-8 speichern</translation>
    </message>
    <message>
        <source>the column has no name; a key is expected</source>
        <translation>die Spalte hat keinen Namen; erwartet wird ein Schlüssel</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is there already, as number %2</source>
        <translation>die Spalte „%1“ ist schon vorhanden, als Nummer %2</translation>
    </message>
    <message>
        <source>no column &quot;device&quot;, with the id or serial number of each row (columns stand between &quot;,&quot; or &quot;;&quot;)</source>
        <translation>keine Spalte „device“ mit Kennung oder Seriennummer jeder Zeile (Spalten trennt „,“ oder „;“)</translation>
    </message>
    <message>
        <source>the number of cells is %1; it must be %2, as in the head</source>
        <translation>die Zahl der Zellen ist %1; sie muss %2 sein wie im Kopf</translation>
    </message>
    <message>
        <source>names no device; its id or serial number is expected</source>
        <translation>nennt kein Gerät; erwartet wird dessen Kennung oder Seriennummer</translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceCommand</name>
    <message>
        <source>Connecting</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>nothing more is sent; what has left is awaited (once more ends at once)</source>
        <translation>es wird nichts mehr gesendet; auf Antworten wird noch gewartet (noch einmal beendet sofort)</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) speak ONVIF, which does not know this: %1</source>
        <translation>
            <numerusform>%n Gerät spricht ONVIF, das Folgendes nicht kennt: %1</numerusform>
            <numerusform>%n Geräte sprechen ONVIF, das Folgendes nicht kennt: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceResults</name>
    <message>
        <source>nothing to change</source>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>as it should be</source>
        <translation>wie es sein soll</translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceSelection</name>
    <message>
        <source>&quot;%1&quot;: &quot;not:&quot; stands before its file already</source>
        <translation>„%1“: „not:“ steht schon vor der Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: a file must not name another one</source>
        <translation>„%1“: eine Datei darf keine andere nennen</translation>
    </message>
    <message>
        <source>a term of a selection must not be empty</source>
        <translation>kein Teil einer Auswahl darf leer sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: something must follow</source>
        <translation>„%1“: danach muss etwas folgen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: is no pattern; &quot;*&quot;, &quot;?&quot; and &quot;[a-z]&quot; may stand for characters</source>
        <translation>„%1“: ist kein Muster; „*“, „?“ und „[a-z]“ können für Zeichen stehen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be an address such as 10.1.2.3, or several such as 10.1.0.0/16</source>
        <translation>„%1“: muss eine Adresse wie 10.1.2.3 sein oder mehrere wie 10.1.0.0/16</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be camera or recorder</source>
        <translation>„%1“: muss camera oder recorder sein</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: names no device</source>
        <translation>%1: nennt kein Gerät</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the id of one device and the serial number of another one, &quot;%2&quot;</source>
        <translation>„%1“ ist die Kennung eines Geräts und die Seriennummer eines anderen, „%2“</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the inventory does not have %2</source>
        <translation>„%1“: nicht im Bestand: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;: no device has this id or serial number</source>
        <translation>„%1“: kein Gerät hat diese Kennung oder Seriennummer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; matches no device</source>
        <translation>„%1“ trifft auf kein Gerät zu</translation>
    </message>
    <message>
        <source>the selection has no camera or recorder that is reached directly</source>
        <translation>die Auswahl enthält keine Kamera und keinen Rekorder, die direkt erreichbar sind</translation>
    </message>
    <message>
        <source>the selection has no device</source>
        <translation>die Auswahl enthält kein Gerät</translation>
    </message>
</context>
<context>
    <name>orda_batch::DiscoverCommand</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>%1 says that it is at %2</source>
        <translation>%1 nennt als Adresse %2</translation>
    </message>
    <message>
        <source>no camera has answered on %1</source>
        <translation>über %1 hat keine Kamera geantwortet</translation>
    </message>
</context>
<context>
    <name>orda_batch::FamiliesCommand</name>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Only with</source>
        <translation>Nur mit</translation>
    </message>
</context>
<context>
    <name>orda_batch::HistoryCommand</name>
    <message>
        <source>There are no runs in the history.</source>
        <translation>Im Verlauf gibt es keine Läufe.</translation>
    </message>
    <message>
        <source>The run is of &quot;%1&quot;, of which this program knows nothing: what it changed is not shown.</source>
        <translation>Der Lauf betrifft „%1“, was dieses Programm nicht kennt: Seine Änderungen werden nicht angezeigt.</translation>
    </message>
    <message>
        <source>Runs removed: %1</source>
        <translation>Entfernte Läufe: %1</translation>
    </message>
    <message>
        <source>The run %1 is still under way.</source>
        <translation>Der Lauf %1 ist noch nicht beendet.</translation>
    </message>
    <message>
        <source>The run %1 ended with its program. What came of its devices is noted when the next run begins, or with &quot;history prune&quot;.</source>
        <translation>Der Lauf %1 endete mit seinem Programm. Was aus seinen Geräten wurde, wird vermerkt, wenn der nächste Lauf beginnt, oder mit „history prune“.</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1:%2:%3: is not JSON: %4</source>
        <translation>%1:%2:%3: ist kein JSON: %4</translation>
    </message>
    <message>
        <source>%1: the run %2 is there already</source>
        <translation>%1: der Lauf %2 ist schon vorhanden</translation>
    </message>
    <message>
        <source>%1: the run %2 is there now</source>
        <translation>%1: der Lauf %2 ist jetzt vorhanden</translation>
    </message>
</context>
<context>
    <name>orda_batch::HistoryTexts</name>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Outcomes</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Undoes</source>
        <translation>Nimmt zurück</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>im Gange</translation>
    </message>
    <message>
        <source>ended with its program</source>
        <translation>endete mit seinem Programm</translation>
    </message>
</context>
<context>
    <name>orda_batch::InputFile</name>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation>kann nicht gelesen werden: es ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>is larger than %1 MiB</source>
        <translation>ist größer als %1 MiB</translation>
    </message>
</context>
<context>
    <name>orda_batch::JsonValues</name>
    <message>
        <source>&quot;%1&quot;: is nested too deeply, is too large, or names a key twice</source>
        <translation>„%1“: ist zu tief verschachtelt, zu groß oder nennt einen Schlüssel zweimal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already in this object</source>
        <translation>„%1“ ist in diesem Objekt schon vorhanden</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be an id or a serial number, a text in quotes</source>
        <translation>„%1“: muss eine Kennung oder Seriennummer sein, ein Text in Anführungszeichen</translation>
    </message>
    <message>
        <source>is no object; expected is {…}, or several of them one after the other, without &quot;[&quot; and &quot;,&quot;</source>
        <translation>ist kein Objekt; erwartet wird {…}, auch mehrere nacheinander, ohne „[“ und „,“</translation>
    </message>
    <message>
        <source>is not JSON: a key in quotes is expected</source>
        <translation>ist kein JSON: erwartet wird ein Schlüssel in Anführungszeichen</translation>
    </message>
    <message>
        <source>is not JSON: a colon is expected after a key</source>
        <translation>ist kein JSON: nach einem Schlüssel wird ein Doppelpunkt erwartet</translation>
    </message>
    <message>
        <source>is not JSON: &quot;,&quot; or &quot;}&quot; is expected</source>
        <translation>ist kein JSON: erwartet wird „,“ oder „}“</translation>
    </message>
    <message>
        <source>is not JSON: &quot;,&quot; or &quot;]&quot; is expected</source>
        <translation>ist kein JSON: erwartet wird „,“ oder „]“</translation>
    </message>
    <message>
        <source>is not UTF-8; save the file in UTF-8</source>
        <translation>ist kein UTF-8; die Datei in UTF-8 speichern</translation>
    </message>
    <message>
        <source>is not JSON: the closing quotation mark of a text is missing</source>
        <translation>ist kein JSON: das schließende Anführungszeichen eines Textes fehlt</translation>
    </message>
    <message>
        <source>is not JSON: a value is expected: a text in quotes, a number, true or false</source>
        <translation>ist kein JSON: erwartet wird ein Wert: ein Text in Anführungszeichen, eine Zahl, true oder false</translation>
    </message>
    <message>
        <source>is empty; an object with keys and values is expected</source>
        <translation>ist leer; erwartet wird ein Objekt mit Schlüsseln und Werten</translation>
    </message>
    <message>
        <source>no member &quot;device&quot;, with an id or serial number, which each of several objects needs</source>
        <translation>es fehlt „device“ mit einer Kennung oder Seriennummer, das jedes von mehreren Objekten braucht</translation>
    </message>
</context>
<context>
    <name>orda_batch::KeyTable</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>up to %1 characters</source>
        <translation>bis zu %1 Zeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be set by itself; &quot;%2&quot; sets it for all channels</source>
        <translation>„%1“ lässt sich nicht einzeln setzen; „%2“ setzt es für alle Kanäle</translation>
    </message>
    <message>
        <source>a key must not be empty or hold line breaks, tabs or control characters</source>
        <translation>ein Schlüssel darf nicht leer sein und keine Zeilenumbrüche, Tabulatoren oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting</source>
        <translation>„%1“ ist keine Einstellung</translation>
    </message>
    <message>
        <source>keys of %1: %2</source>
        <translation>Schlüssel von %1: %2</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; %2</source>
        <translation>unbekannter Schlüssel „%1“; %2</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;, perhaps &quot;%2&quot;; %3</source>
        <translation>unbekannter Schlüssel „%1“, vielleicht „%2“; %3</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>muss einer dieser Werte sein: %1</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>muss true oder false sein</translation>
    </message>
    <message>
        <source>must be 1 or 0</source>
        <translation>muss 1 oder 0 sein</translation>
    </message>
    <message>
        <source>must be a text in quotes</source>
        <translation>muss ein Text in Anführungszeichen sein</translation>
    </message>
    <message>
        <source>must not hold line breaks, tabs or control characters</source>
        <translation>darf keine Zeilenumbrüche, Tabulatoren oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>must not be longer than %1 characters</source>
        <translation>darf nicht länger als %1 Zeichen sein</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein</translation>
    </message>
    <message>
        <source>%1×%2 is no resolution of &quot;%3&quot;, which has %4</source>
        <translation>%1×%2 ist keine Auflösung von „%3“; möglich sind %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs &quot;%2&quot; beside it</source>
        <translation>„%1“ braucht auch „%2“</translation>
    </message>
</context>
<context>
    <name>orda_batch::ProgressDisplay</name>
    <message>
        <source>%1 done</source>
        <translation>%1 erledigt</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 not reached</source>
        <translation>%1 nicht erreicht</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 übrig</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>devices a second</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>  and %n other message(s)</source>
        <translation>
            <numerusform>  und %n andere Meldung</numerusform>
            <numerusform>  und %n andere Meldungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::Question</name>
    <message>
        <source>[y/N]</source>
        <translation>[j/N]</translation>
    </message>
    <message>
        <source>y</source>
        <comment>short for yes, as in [y/N]</comment>
        <translation>j</translation>
    </message>
    <message>
        <source>yes</source>
        <comment>an answer</comment>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>orda_batch::ReadingCommand</name>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>orda_batch::RecordedRuns</name>
    <message>
        <source>Several runs begin with &quot;%1&quot;, among them %2.</source>
        <translation>Mehrere Läufe beginnen mit „%1“, darunter %2.</translation>
    </message>
    <message>
        <source>There are no runs in the history.</source>
        <translation>Im Verlauf gibt es keine Läufe.</translation>
    </message>
    <message>
        <source>There is no run &quot;%1&quot; in the history.</source>
        <translation>Im Verlauf gibt es keinen Lauf „%1“.</translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultTexts</name>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestoppt</translation>
    </message>
    <message>
        <source>partly written</source>
        <translation>teilweise geschrieben</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>nicht erreicht</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>abweichend</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a number of devices and their outcome, as in &quot;3 failed&quot;</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultWriter</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>does not have %1</source>
        <translation>hat nicht: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 Gerät</translation>
    </message>
    <message>
        <source>%1 devices</source>
        <translation>%1 Geräte</translation>
    </message>
    <message>
        <source>1 other left out</source>
        <translation>1 weiteres ausgelassen</translation>
    </message>
    <message>
        <source>%1 others left out</source>
        <translation>%1 weitere ausgelassen</translation>
    </message>
    <message>
        <source>run %1… (orda_batch undo %1 takes it back)</source>
        <translation>Lauf %1… (orda_batch undo %1 nimmt ihn zurück)</translation>
    </message>
    <message>
        <source>stopped: %1</source>
        <translation>gestoppt: %1</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message numerus="yes">
        <source>  and %n other message(s)</source>
        <translation>
            <numerusform>  und %n andere Meldung</numerusform>
            <numerusform>  und %n andere Meldungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::StandardOutput</name>
    <message>
        <source>The standard output cannot be written: %1</source>
        <translation>Die Standardausgabe lässt sich nicht schreiben: %1</translation>
    </message>
</context>
<context>
    <name>orda_batch::WantedValues</name>
    <message>
        <source>KEY=VALUE is expected</source>
        <translation>erwartet wird KEY=VALUE</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice</source>
        <translation>„%1“ ist zweimal angegeben</translation>
    </message>
    <message>
        <source>no row gives a value</source>
        <translation>keine Zeile gibt einen Wert an</translation>
    </message>
    <message>
        <source>no value is given</source>
        <translation>es ist kein Wert angegeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: no device has this id or serial number</source>
        <translation>„%1“: kein Gerät hat diese Kennung oder Seriennummer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the id of one device and the serial number of &quot;%2&quot;</source>
        <translation>„%1“ ist die Kennung eines Geräts und die Seriennummer von „%2“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is named already at %2</source>
        <translation>„%1“ ist schon bei %2 genannt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2): %3</source>
        <translation>„%1“ (%2): %3</translation>
    </message>
</context>
<context>
    <name>orda_batch::WritingCommand</name>
    <message>
        <source>not begun: not all devices are reached</source>
        <translation>nicht begonnen: nicht alle Geräte sind erreicht</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n device(s) would change</source>
        <translation>
            <numerusform>%1: %n Gerät würde sich ändern</numerusform>
            <numerusform>%1: %n Geräte würden sich ändern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, in %n value(s)</source>
        <translation>
            <numerusform>, in %n Wert</numerusform>
            <numerusform>, in %n Werten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) with nothing to take back</source>
        <translation>
            <numerusform>%n Gerät, bei dem nichts zurückzunehmen ist</numerusform>
            <numerusform>%n Geräte, bei denen nichts zurückzunehmen ist</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) have these values already</source>
        <translation>
            <numerusform>%n Gerät hat diese Werte schon</numerusform>
            <numerusform>%n Geräte haben diese Werte schon</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) keep something that was changed since, or that they did not have before</source>
        <translation>
            <numerusform>%n Gerät behält etwas, das seither geändert wurde oder das es vorher nicht hatte</numerusform>
            <numerusform>%n Geräte behalten etwas, das seither geändert wurde oder das sie vorher nicht hatten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) could not be read</source>
        <translation>
            <numerusform>%n Gerät konnte nicht gelesen werden</numerusform>
            <numerusform>%n Geräte konnten nicht gelesen werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) are not reached</source>
        <translation>
            <numerusform>%n Gerät ist nicht erreicht</numerusform>
            <numerusform>%n Geräte sind nicht erreicht</numerusform>
        </translation>
    </message>
    <message>
        <source>no history is kept: this run cannot be taken back</source>
        <translation>es wird kein Verlauf geführt: dieser Lauf lässt sich nicht zurücknehmen</translation>
    </message>
    <message>
        <source>Take it back?</source>
        <translation>Zurücknehmen?</translation>
    </message>
    <message>
        <source>Configure?</source>
        <translation>Konfigurieren?</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>nicht bestätigt</translation>
    </message>
    <message>
        <source>Taking back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Configuring</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>The disk did not take the history in time.</source>
        <translation>Der Datenträger hat den Verlauf nicht rechtzeitig aufgenommen.</translation>
    </message>
</context>
</TS>
