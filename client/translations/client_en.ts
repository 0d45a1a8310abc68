<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>orda_client::ClientWindow</name>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%1 of %n device online</numerusform>
            <numerusform>%1 of %n devices online</numerusform>
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
        <source>%n of the given devices is offline or may not be configured</source>
        <translation>
            <numerusform>%n of the given devices is offline or may not be configured</numerusform>
            <numerusform>%n of the given devices are offline or may not be configured</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) not reached</source>
        <translation>
            <numerusform>%n device not reached</numerusform>
            <numerusform>%n devices not reached</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::TickReport</name>
    <message numerus="yes">
        <source>Ticked %1 of %Ln failed device(s) in the device list.</source>
        <translation>
            <numerusform>Ticked %1 of %Ln failed device in the device list.</numerusform>
            <numerusform>Ticked %1 of %Ln failed devices in the device list.</numerusform>
        </translation>
    </message>
</context>
</TS>
