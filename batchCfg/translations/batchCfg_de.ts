<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>orda_batchCfg::AudioParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Audio Enable</source>
        <translation>Audio aktivieren</translation>
    </message>
    <message>
        <source>Encoding Format</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Audio In Volume</source>
        <translation>Lautstärke Audioeingang</translation>
    </message>
    <message>
        <source>Alarm Out Volume</source>
        <translation>Lautstärke Alarmausgang</translation>
    </message>
    <message>
        <source>Sampling Rate/Bit Wide</source>
        <translation>Abtastrate/Bittiefe</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Sampling Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Bit Wide</source>
        <translation>Bittiefe</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Audio In Volume, number</source>
        <translation>Lautstärke Audioeingang, Zahl</translation>
    </message>
    <message>
        <source>Alarm Out Volume, number</source>
        <translation>Lautstärke Alarmausgang, Zahl</translation>
    </message>
    <message>
        <source>AudioParamsCfgPage</source>
        <translation>AudioParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::AudioParamsCfgTask</name>
    <message>
        <source>Failed to get audio in parameters(%1)</source>
        <translation>Parameter des Audioeingangs konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set audio in parameters(%1)</source>
        <translation>Parameter des Audioeingangs konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>Failed to get audio out parameters(%1)</source>
        <translation>Parameter des Audioausgangs konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set audio out parameters(%1)</source>
        <translation>Parameter des Audioausgangs konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set audio parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der Audioparameter</translation>
    </message>
    <message>
        <source>Audio Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Audio-Parameter</translation>
    </message>
    <message>
        <source>G711U</source>
        <translation>G711U</translation>
    </message>
    <message>
        <source>G711A</source>
        <translation>G711A</translation>
    </message>
    <message>
        <source>16bit</source>
        <translation>16bit</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::BatchCfgForm</name>
    <message>
        <source>Online Device List</source>
        <translation>Geräte online</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Dev Name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>Dev Sn</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Ip</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Remote Set</source>
        <translation>Gerät einrichten</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Press Space to sort the devices by this column</source>
        <translation>Die Leertaste sortiert die Geräte nach dieser Spalte</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>BatchCfgForm</source>
        <translation>BatchCfgForm</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::CfgResultsRecorder</name>
    <message>
        <source>the temporary directory &quot;%1&quot; is not an absolute path</source>
        <translation>das temporäre Verzeichnis „%1“ ist kein absoluter Pfad</translation>
    </message>
    <message>
        <source>the temporary directory &quot;%1&quot; is missing</source>
        <translation>das temporäre Verzeichnis „%1“ fehlt</translation>
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
        <source>another process</source>
        <translation>einem anderen Prozess</translation>
    </message>
    <message>
        <source>process %1</source>
        <translation>Prozess %1</translation>
    </message>
    <message>
        <source>process %1 (%2)</source>
        <translation>Prozess %1 (%2)</translation>
    </message>
    <message>
        <source>cannot open the record file %1: %2</source>
        <translation>Protokolldatei %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>es ist ein symbolischer Link</translation>
    </message>
    <message>
        <source>it is in use by %1</source>
        <translation>es wird von %1 benutzt</translation>
    </message>
    <message>
        <source>cannot write the record file %1: %2</source>
        <translation>Protokolldatei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the record file %1 was removed or replaced during the run</source>
        <translation>die Protokolldatei %1 wurde während des Laufs entfernt oder ersetzt</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::DevEligibility</name>
    <message>
        <source>no such device</source>
        <translation>kein solches Gerät</translation>
    </message>
    <message>
        <source>not reached directly</source>
        <translation>nicht direkt erreichbar</translation>
    </message>
    <message>
        <source>neither a camera nor a recorder</source>
        <translation>weder Kamera noch Rekorder</translation>
    </message>
    <message>
        <source>not online</source>
        <translation>nicht online</translation>
    </message>
    <message>
        <source>no IP address, and still with its factory password</source>
        <translation>keine IP-Adresse und noch mit Werkspasswort</translation>
    </message>
    <message>
        <source>no IP address, and locked</source>
        <translation>keine IP-Adresse und gesperrt</translation>
    </message>
    <message>
        <source>no IP address, and no password</source>
        <translation>keine IP-Adresse und kein Passwort</translation>
    </message>
    <message>
        <source>no IP address, and a weak password</source>
        <translation>keine IP-Adresse und ein schwaches Passwort</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::EmptyListHint</name>
    <message>
        <source>No device in the list matches the search.</source>
        <translation>Kein Gerät der Liste passt zur Suche.</translation>
    </message>
    <message>
        <source>There are no devices yet.</source>
        <translation>Es gibt noch keine Geräte.</translation>
    </message>
    <message>
        <source>No device is online. Devices appear here as soon as they are.</source>
        <translation>Kein Gerät ist online. Sobald Geräte online sind, erscheinen sie hier.</translation>
    </message>
    <message>
        <source>None of the devices online can be configured from here: it takes a camera or a recorder that is reached directly, with an IP address, a password that is not weak, or the right to it at the cloud service.</source>
        <translation>Keines der Geräte, die online sind, kann von hier aus konfiguriert werden: Es muss eine Kamera oder ein Rekorder sein, direkt erreichbar, mit einer IP-Adresse, einem nicht schwachen Passwort oder dem Recht daran beim Cloud-Dienst.</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::Families</name>
    <message>
        <source>Audio-Video Parameters</source>
        <translation>Audio- und Videoparameter</translation>
    </message>
    <message>
        <source>Platform Parameters</source>
        <translation>Plattform-Parameter</translation>
    </message>
    <message>
        <source>Audio Parameters</source>
        <translation>Audio-Parameter</translation>
    </message>
    <message>
        <source>Video Parameters</source>
        <translation>Video-Parameter</translation>
    </message>
    <message>
        <source>Image Parameters</source>
        <translation>Bild-Parameter</translation>
    </message>
    <message>
        <source>Cloud Service Parameters</source>
        <translation>Cloud-Dienst-Parameter</translation>
    </message>
    <message>
        <source>Platform 9100 Parameters</source>
        <translation>Plattform-9100-Parameter</translation>
    </message>
    <message>
        <source>Network Parameters</source>
        <translation>Netzwerk-Parameter</translation>
    </message>
    <message>
        <source>OSD Parameters</source>
        <translation>OSD-Parameter</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ImageParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>Bild spiegeln</translation>
    </message>
    <message>
        <source>Expert Mode</source>
        <translation>Expertenmodus</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Lichtmodus</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>ImageParamsCfgPage</source>
        <translation>ImageParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ImageParamsCfgTask</name>
    <message>
        <source>Failed to get image adjust parameters(%1)</source>
        <translation>Parameter der Bildanpassung konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set image adjust parameters(%1)</source>
        <translation>Parameter der Bildanpassung konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>Failed to get image day-night parameters(%1)</source>
        <translation>Parameter der Tag-Nacht-Umschaltung konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set image day-night parameters(%1)</source>
        <translation>Parameter der Tag-Nacht-Umschaltung konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>Failed to get image expert parameters(%1)</source>
        <translation>Parameter des Expertenmodus konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set image expert parameters(%1)</source>
        <translation>Parameter des Expertenmodus konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set image parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der Bildparameter</translation>
    </message>
    <message>
        <source>Image Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Bild-Parameter</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Rotate 180</source>
        <translation>180° drehen</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Indoor</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Outdoor</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Gegenlicht</translation>
    </message>
    <message>
        <source>Infrared</source>
        <translation>Infrarot</translation>
    </message>
    <message>
        <source>White Light</source>
        <translation>Weißlicht</translation>
    </message>
    <message>
        <source>Smart Dual Light</source>
        <translation>Intelligentes Doppellicht</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::NetworkParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Compatible with 1.0 NVR devices</source>
        <translation>Kompatibel mit NVR-Geräten 1.0</translation>
    </message>
    <message>
        <source>Lock IP</source>
        <translation>IP-Adresse festschreiben</translation>
    </message>
    <message>
        <source>Smart Online</source>
        <translation>Smart online</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>NetworkParamsCfgPage</source>
        <translation>NetworkParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::NetworkParamsCfgTask</name>
    <message>
        <source>Failed to get onvif discovery parameters(%1)</source>
        <translation>Parameter der ONVIF-Erkennung konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set onvif discovery parameters(%1)</source>
        <translation>Parameter der ONVIF-Erkennung konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>Failed to get ip parameters(%1)</source>
        <translation>Parameter der IP-Schnittstelle konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set ip parameters(%1)</source>
        <translation>Parameter der IP-Schnittstelle konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set network parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der Netzwerkparameter</translation>
    </message>
    <message>
        <source>Network Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Netzwerk-Parameter</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OSDParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>OSD Visible</source>
        <translation>OSD sichtbar</translation>
    </message>
    <message>
        <source>Time Format</source>
        <translation>Zeitformat</translation>
    </message>
    <message>
        <source>Time Position</source>
        <translation>Position der Zeit</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name Position</source>
        <translation>Position des Namens</translation>
    </message>
    <message>
        <source>Large Font</source>
        <translation>Große Schrift</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>HD IPC</source>
        <translation>HD IPC</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>OSDParamsCfgPage</source>
        <translation>OSDParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OSDParamsCfgTask</name>
    <message>
        <source>Failed to get osd parameters(%1)</source>
        <translation>Parameter des OSD konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set osd parameters(%1)</source>
        <translation>Parameter des OSD konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set osd parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der OSD-Parameter</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>OSD Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: OSD-Parameter</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OnvifParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Compatible with 1.0 NVR devices</source>
        <translation>Kompatibel mit NVR-Geräten 1.0</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>OnvifParamsCfgPage</source>
        <translation>OnvifParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OnvifParamsCfgTask</name>
    <message>
        <source>Failed to get onvif discovery parameters(%1)</source>
        <translation>Parameter der ONVIF-Erkennung konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set onvif discovery parameters(%1)</source>
        <translation>Parameter der ONVIF-Erkennung konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set onvif discovery parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der ONVIF-Erkennung</translation>
    </message>
    <message>
        <source>Onvif Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Onvif-Parameter</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>Please select the devices to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Geräte</translation>
    </message>
    <message>
        <source>Configuring...</source>
        <translation>Wird konfiguriert …</translation>
    </message>
    <message>
        <source>Configuring(%1/%2)...</source>
        <translation>Wird konfiguriert (%1/%2) …</translation>
    </message>
    <message>
        <source>A total of %1 devices have been configured, success:%2, failure:%3</source>
        <translation>Insgesamt %1 Geräte konfiguriert, erfolgreich:&#xa0;%2, fehlgeschlagen:&#xa0;%3</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All parameters</source>
        <translation>Alle Parameter</translation>
    </message>
    <message>
        <source>Configure %1</source>
        <translation>%1 konfigurieren</translation>
    </message>
    <message>
        <source>Nothing was configured: the record file %1 is in use by %2. Wait until its run has ended.</source>
        <translation>Es wurde nichts konfiguriert: Die Protokolldatei %1 wird von %2 benutzt. Warten Sie, bis dessen Lauf beendet ist.</translation>
    </message>
    <message>
        <source>A configuration is under way. Please wait until it has ended.</source>
        <translation>Es läuft bereits eine Konfiguration. Bitte warten Sie, bis sie beendet ist.</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ParamsCfgTask</name>
    <message>
        <source>Failed to parse json data</source>
        <translation>JSON-Daten nicht lesbar</translation>
    </message>
    <message>
        <source>success</source>
        <translation>erfolgreich</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::Platform9100ParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>9100 Service Enable</source>
        <translation>9100-Dienst aktivieren</translation>
    </message>
    <message>
        <source>9100 Service Address</source>
        <translation>Adresse des 9100-Dienstes</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Online Service Url</source>
        <translation>URL des Online-Dienstes</translation>
    </message>
    <message>
        <source>Online Service Port</source>
        <translation>Port des Online-Dienstes</translation>
    </message>
    <message>
        <source>Bussiness Service Url</source>
        <translation>URL des Geschäftsdienstes</translation>
    </message>
    <message>
        <source>Bussiness Service Port</source>
        <translation>Port des Geschäftsdienstes</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Platform9100ParamsCfgPage</source>
        <translation>Platform9100ParamsCfgPage</translation>
    </message>
    <message>
        <source>15030</source>
        <translation>15030</translation>
    </message>
    <message>
        <source>8081</source>
        <translation>8081</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::Platform9100ParamsCfgTask</name>
    <message>
        <source>Failed to get platform 9100 parameters(%1)</source>
        <translation>Parameter der Plattform 9100 konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set platform 9100 parameters(%1)</source>
        <translation>Parameter der Plattform 9100 konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set platform 9100 parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der Parameter der Plattform 9100</translation>
    </message>
    <message>
        <source>Platform 9100 Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Plattform-9100-Parameter</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::PlatformParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Service Enable</source>
        <translation>Dienst aktivieren</translation>
    </message>
    <message>
        <source>Service Address</source>
        <translation>Dienstadresse</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Service Type</source>
        <translation>Diensttyp</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>PlatformParamsCfgPage</source>
        <translation>PlatformParamsCfgPage</translation>
    </message>
    <message>
        <source>https://device.cloud.example.com:8443</source>
        <translation>https://device.cloud.example.com:8443</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::PlatformParamsCfgTask</name>
    <message>
        <source>Failed to get platform parameters(%1)</source>
        <translation>Parameter der Plattform konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set platform parameters(%1)</source>
        <translation>Parameter der Plattform konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set platform parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der Plattformparameter</translation>
    </message>
    <message>
        <source>Platform Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Plattform-Parameter</translation>
    </message>
    <message>
        <source>Public Cloud</source>
        <translation>Öffentliche Cloud</translation>
    </message>
    <message>
        <source>Private Cloud</source>
        <translation>Private Cloud</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::VideoParamsCfgPage</name>
    <message>
        <source>Please select the streams to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Streams</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>HD Stream</source>
        <translation>HD-Stream</translation>
    </message>
    <message>
        <source>SD Stream</source>
        <translation>SD-Stream</translation>
    </message>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>Bitte wählen Sie die zu konfigurierenden Parameter</translation>
    </message>
    <message>
        <source>Smart Encoding</source>
        <translation>Smart-Kodierung</translation>
    </message>
    <message>
        <source>Encoding Format</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>Die ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>All streams</source>
        <translation>Alle Streams</translation>
    </message>
    <message>
        <source>VideoParamsCfgPage</source>
        <translation>VideoParamsCfgPage</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>stream, parameter</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::VideoParamsCfgTask</name>
    <message>
        <source>Failed to get stream parameters(%1)</source>
        <translation>Parameter der Streams konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Failed to set stream parameters(%1)</source>
        <translation>Parameter der Streams konnten nicht gesetzt werden (%1)</translation>
    </message>
    <message>
        <source>set stream parameters time out</source>
        <translation>Zeitüberschreitung beim Setzen der Streamparameter</translation>
    </message>
    <message>
        <source>Video Parameters Configuration Result</source>
        <translation>Ergebnis der Konfiguration: Video-Parameter</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>H264</source>
        <translation>H264</translation>
    </message>
    <message>
        <source>H265</source>
        <translation>H265</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Fixed Bitrate</source>
        <translation>Feste Bitrate</translation>
    </message>
    <message>
        <source>Best Image Quality</source>
        <translation>Beste Bildqualität</translation>
    </message>
    <message>
        <source>Image Quality Priority</source>
        <translation>Bildqualität bevorzugt</translation>
    </message>
    <message>
        <source>Balance Mode</source>
        <translation>Ausgewogen</translation>
    </message>
    <message>
        <source>Storage Priority</source>
        <translation>Speicher bevorzugt</translation>
    </message>
    <message>
        <source>Optimal Storage</source>
        <translation>Geringster Speicherbedarf</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::VideoParamsPanel</name>
    <message>
        <source>HD Stream</source>
        <translation>HD-Stream</translation>
    </message>
    <message>
        <source>Encoding Format</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Bit Rate Mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>Bit Rate Strategy</source>
        <translation>Bitratenstrategie</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Videoqualität</translation>
    </message>
    <message>
        <source>SD Stream</source>
        <translation>SD-Stream</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>stream, parameter</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
</context>
</TS>
