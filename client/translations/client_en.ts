<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>orda_client::ClientStatusBar</name>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%1 of %n device online</numerusform>
            <numerusform>%1 of %n devices online</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ClientWindow</name>
    <message numerus="yes">
        <source>Demo with %n device(s) – Batch Configuration</source>
        <translation>
            <numerusform>Demo with %n device – Batch Configuration</numerusform>
            <numerusform>Demo with %n devices – Batch Configuration</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was configured: %n device(s) of the preview cannot be configured any more. Preview again.</source>
        <translation>
            <numerusform>Nothing was configured: %n device of the preview cannot be configured any more. Preview again.</numerusform>
            <numerusform>Nothing was configured: %n devices of the preview cannot be configured any more. Preview again.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::CloseQuestion</name>
    <message numerus="yes">
        <source>%1 of %n device(s) have not answered</source>
        <translation>
            <numerusform>%1 of %n device has not answered</numerusform>
            <numerusform>%1 of %n devices have not answered</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::DevicesWindow</name>
    <message numerus="yes">
        <source>%1 of %Ln device(s) shown</source>
        <translation>
            <numerusform>%1 of %Ln device shown</numerusform>
            <numerusform>%1 of %Ln devices shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed since and would be shown or left out now</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln changed since and would be shown or left out now</numerusform>
            <numerusform>%Ln changed since and would be shown or left out now</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s) are tried again now.</source>
        <translation>
            <numerusform>%Ln device is tried again now.</numerusform>
            <numerusform>%Ln devices are tried again now.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ExportDialog</name>
    <message numerus="yes">
        <source>Saves %n device(s) as a table, which can be changed and imported again.</source>
        <translation>
            <numerusform>Saves %n device as a table, which can be changed and imported again.</numerusform>
            <numerusform>Saves %n devices as a table, which can be changed and imported again.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::FindWindow</name>
    <message numerus="yes">
        <source>%Ln camera(s) found</source>
        <translation>
            <numerusform>%Ln camera found</numerusform>
            <numerusform>%Ln cameras found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>%Ln ticked</numerusform>
            <numerusform>%Ln ticked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked but hidden by the search, and left out</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>%Ln ticked but hidden by the search, and left out</numerusform>
            <numerusform>%Ln ticked but hidden by the search, and left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln camera(s) to the inventory?</source>
        <translation>
            <numerusform>Add %Ln camera to the inventory?</numerusform>
            <numerusform>Add %Ln cameras to the inventory?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::FormChanges</name>
    <message numerus="yes">
        <source>Ticked %1 of %Ln device(s) that differ in the device list, and no others.</source>
        <translation>
            <numerusform>Ticked %1 of %Ln device that differs in the device list, and no others.</numerusform>
            <numerusform>Ticked %1 of %Ln devices that differ in the device list, and no others.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::GroupsMenu</name>
    <message numerus="yes">
        <source>&amp;Name for these %Ln device(s):</source>
        <translation>
            <numerusform>&amp;Name for this %Ln device:</numerusform>
            <numerusform>&amp;Name for these %Ln devices:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saved as &quot;%1&quot;: %Ln device(s).</source>
        <translation>
            <numerusform>Saved as &quot;%1&quot;: %Ln device.</numerusform>
            <numerusform>Saved as &quot;%1&quot;: %Ln devices.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ImportFaultsDialog</name>
    <message numerus="yes">
        <source>%n error(s) in %1. Nothing has been imported.</source>
        <translation>
            <numerusform>%n error in %1. Nothing has been imported.</numerusform>
            <numerusform>%n errors in %1. Nothing has been imported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryAddition</name>
    <message numerus="yes">
        <source>Save the inventory of %n device(s)</source>
        <translation>
            <numerusform>Save the inventory of %n device</numerusform>
            <numerusform>Save the inventory of %n devices</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryImport</name>
    <message numerus="yes">
        <source>Save the inventory of %n device(s)</source>
        <translation>
            <numerusform>Save the inventory of %n device</numerusform>
            <numerusform>Save the inventory of %n devices</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::PageRecord</name>
    <message numerus="yes">
        <source>The record has only %n result(s) of the last run: %1.</source>
        <translation>
            <numerusform>The record has only %n result of the last run: %1.</numerusform>
            <numerusform>The record has only %n results of the last run: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::PressQuestion</name>
    <message numerus="yes">
        <source>Configure %Ln device(s)?</source>
        <translation>
            <numerusform>Configure %Ln device?</numerusform>
            <numerusform>Configure %Ln devices?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::PressTexts</name>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>to which something is written</comment>
        <translation>
            <numerusform>%Ln device</numerusform>
            <numerusform>%Ln devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln parameter(s)</source>
        <translation>
            <numerusform>%Ln parameter</numerusform>
            <numerusform>%Ln parameters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked device(s) hidden by the search and left out</source>
        <translation>
            <numerusform>%Ln ticked device hidden by the search and left out</numerusform>
            <numerusform>%Ln ticked devices hidden by the search and left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>%Ln camera</numerusform>
            <numerusform>%Ln cameras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln recorder(s)</source>
        <translation>
            <numerusform>%Ln recorder</numerusform>
            <numerusform>%Ln recorders</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::PreviewWindow</name>
    <message numerus="yes">
        <source>%Ln parameter(s)</source>
        <translation>
            <numerusform>%Ln parameter</numerusform>
            <numerusform>%Ln parameters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>to which parameters are sent</comment>
        <translation>
            <numerusform>%Ln device</numerusform>
            <numerusform>%Ln devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked device(s) are hidden by the search of the list and left out.</source>
        <translation>
            <numerusform>%Ln ticked device is hidden by the search of the list and left out.</numerusform>
            <numerusform>%Ln ticked devices are hidden by the search of the list and left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The preview was stopped, and %Ln device(s) were not read. Press &quot;Preview again&quot; to read all.</source>
        <translation>
            <numerusform>The preview was stopped, and %Ln device was not read. Press &quot;Preview again&quot; to read all.</numerusform>
            <numerusform>The preview was stopped, and %Ln devices were not read. Press &quot;Preview again&quot; to read all.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RecordWindow</name>
    <message numerus="yes">
        <source>Ticked %1 of %Ln failed device(s) in the device list.</source>
        <translation>
            <numerusform>Ticked %1 of %Ln failed device in the device list.</numerusform>
            <numerusform>Ticked %1 of %Ln failed devices in the device list.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunCheckWindow</name>
    <message numerus="yes">
        <source>Reading: %1 of %Ln device(s).</source>
        <translation>
            <numerusform>Reading: %1 of %Ln device.</numerusform>
            <numerusform>Reading: %1 of %Ln devices.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Write over what was changed since the run on %Ln device(s), too</source>
        <translation>
            <numerusform>&amp;Write over what was changed since the run on %Ln device, too</numerusform>
            <numerusform>&amp;Write over what was changed since the run on %Ln devices, too</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo on %Ln device(s)…</source>
        <translation>
            <numerusform>&amp;Undo on %Ln device…</numerusform>
            <numerusform>&amp;Undo on %Ln devices…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln other device(s) of the run are left out: they are not selected, nothing goes back on them, or they were not read.</source>
        <translation>
            <numerusform>%Ln other device of the run is left out: it is not selected, nothing goes back on it, or it was not read.</numerusform>
            <numerusform>%Ln other devices of the run are left out: they are not selected, nothing goes back on them, or they were not read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo the run on %Ln device(s)?</source>
        <translation>
            <numerusform>Undo the run on %Ln device?</numerusform>
            <numerusform>Undo the run on %Ln devices?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunDriver</name>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%1 of %n device online</numerusform>
            <numerusform>%1 of %n devices online</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) ticked</source>
        <translation>
            <numerusform>%n device ticked</numerusform>
            <numerusform>%n devices ticked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) not reached</source>
        <translation>
            <numerusform>%n device not reached</numerusform>
            <numerusform>%n devices not reached</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of the given devices is off line or may not be configured</source>
        <translation>
            <numerusform>%n of the given devices is off line or may not be configured</numerusform>
            <numerusform>%n of the given devices are off line or may not be configured</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunProgress</name>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <comment>names of devices</comment>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>that were written to</comment>
        <translation>
            <numerusform>%Ln device</numerusform>
            <numerusform>%Ln devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>about %Ln minute left</numerusform>
            <numerusform>about %Ln minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln done</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln done</numerusform>
            <numerusform>%Ln done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln not reached</numerusform>
            <numerusform>%Ln not reached</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln stopped</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln stopped</numerusform>
            <numerusform>%Ln stopped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln left</numerusform>
            <numerusform>%Ln left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunTargets</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <comment>devices</comment>
        <translation>
            <numerusform>… and %n more</numerusform>
            <numerusform>… and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunsWindow</name>
    <message numerus="yes">
        <source>A run is going on: %1 of %Ln device(s) have their outcome.</source>
        <translation>
            <numerusform>A run is going on: %1 of %Ln device has its outcome.</numerusform>
            <numerusform>A run is going on: %1 of %Ln devices have their outcome.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Try again on %Ln device(s)…</source>
        <translation>
            <numerusform>&amp;Try again on %Ln device…</numerusform>
            <numerusform>&amp;Try again on %Ln devices…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s) get values of their own, as in this run.</source>
        <translation>
            <numerusform>%Ln device gets values of its own, as in this run.</numerusform>
            <numerusform>%Ln devices get values of their own, as in this run.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them cannot be written to now and will end as not reached.</source>
        <translation>
            <numerusform>%Ln of them cannot be written to now and will end as not reached.</numerusform>
            <numerusform>%Ln of them cannot be written to now and will end as not reached.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: configure %Ln device(s) again with the values of this run?</source>
        <comment>parameters</comment>
        <translation>
            <numerusform>%1: configure %Ln device again with the values of this run?</numerusform>
            <numerusform>%1: configure %Ln devices again with the values of this run?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::SettingsDialog</name>
    <message numerus="yes">
        <source>Runs are removed after %n day(s), and the oldest ones earlier when the file grows beyond %1 MiB.</source>
        <translation>
            <numerusform>Runs are removed after %n day, and the oldest ones earlier when the file grows beyond %1 MiB.</numerusform>
            <numerusform>Runs are removed after %n days, and the oldest ones earlier when the file grows beyond %1 MiB.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The latest %n run(s) always stay.</source>
        <translation>
            <numerusform>The latest %n run always stays.</numerusform>
            <numerusform>The latest %n runs always stay.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::TickNote</name>
    <message numerus="yes">
        <source>Ticked %1 of %Ln device(s) in the device list, and no others.</source>
        <translation>
            <numerusform>Ticked %1 of %Ln device in the device list, and no others.</numerusform>
            <numerusform>Ticked %1 of %Ln devices in the device list, and no others.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::TickTheseDialog</name>
    <message numerus="yes">
        <source>&amp;Tick %Ln device(s)</source>
        <translation>
            <numerusform>&amp;Tick %Ln device</numerusform>
            <numerusform>&amp;Tick %Ln devices</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ValueChecks</name>
    <message numerus="yes">
        <source>%Ln of the devices speak(s) ONVIF, which does not know this: %1</source>
        <translation>
            <numerusform>%Ln of the devices speaks ONVIF, which does not know this: %1</numerusform>
            <numerusform>%Ln of the devices speak ONVIF, which does not know this: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
