<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>orda_batch::CommandInput</name>
    <message numerus="yes">
        <source>%n row(s) of %1 give no value and are left out</source>
        <translation>
            <numerusform>%n row of %1 gives no value and is left out</numerusform>
            <numerusform>%n rows of %1 give no value and are left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have nothing of the run</source>
        <translation>
            <numerusform>%n selected device has nothing of the run</numerusform>
            <numerusform>%n selected devices have nothing of the run</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have no values in %1</source>
        <translation>
            <numerusform>%n selected device has no values in %1</numerusform>
            <numerusform>%n selected devices have no values in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) of %1 are not selected</source>
        <translation>
            <numerusform>%n device of %1 is not selected</numerusform>
            <numerusform>%n devices of %1 are not selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceCommand</name>
    <message numerus="yes">
        <source>%n device(s) speak ONVIF, which does not know this: %1</source>
        <translation>
            <numerusform>%n device speaks ONVIF, which does not know this: %1</numerusform>
            <numerusform>%n devices speak ONVIF, which does not know this: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceSelection</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::ProgressDisplay</name>
    <message numerus="yes">
        <source>  and %n other message(s)</source>
        <translation>
            <numerusform>  and %n other message</numerusform>
            <numerusform>  and %n other messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultWriter</name>
    <message numerus="yes">
        <source>  and %n other message(s)</source>
        <translation>
            <numerusform>  and %n other message</numerusform>
            <numerusform>  and %n other messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::WritingCommand</name>
    <message numerus="yes">
        <source>%1: %n device(s) would change</source>
        <translation>
            <numerusform>%1: %n device would change</numerusform>
            <numerusform>%1: %n devices would change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, in %n value(s)</source>
        <translation>
            <numerusform>, in %n value</numerusform>
            <numerusform>, in %n values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) with nothing to take back</source>
        <translation>
            <numerusform>%n device with nothing to take back</numerusform>
            <numerusform>%n devices with nothing to take back</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) have these values already</source>
        <translation>
            <numerusform>%n device has these values already</numerusform>
            <numerusform>%n devices have these values already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) keep something that was changed since, or that they did not have before</source>
        <translation>
            <numerusform>%n device keeps something that was changed since, or that it did not have before</numerusform>
            <numerusform>%n devices keep something that was changed since, or that they did not have before</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) could not be read</source>
        <translation>
            <numerusform>%n device could not be read</numerusform>
            <numerusform>%n devices could not be read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) are not reached</source>
        <translation>
            <numerusform>%n device is not reached</numerusform>
            <numerusform>%n devices are not reached</numerusform>
        </translation>
    </message>
</context>
</TS>
