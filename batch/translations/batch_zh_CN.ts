<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>main</name>
    <message>
        <source>the results cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--language takes one of %1, not &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--yes is needed where nobody can be asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (see orda_batch --help)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::BatchOptions</name>
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

VALUES: --set KEY=VALUE …, or --values FILE. RUN: an id, its beginning, or &quot;last&quot;.
SELECTION, with commas: all, offered, an id, a serial number, name=GLOB, ip=10.1.0.0/16, kind=camera, kind=recorder, group=NAME, @FILE, failed:RUN, and not: before any of them.

Exit codes: 0 done on all selected devices, 1 failed on some, 2 wrong usage, 3 wrong input, 4 no device, 5 some not reached, 6 stopped, 7 verification found differences, 8 the history cannot be written or read; plan: 10 something would change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets a parameter; once for each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values from a file: JSON for all devices, CSV or JSON lines for each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets keys and values pass that the family does not name; reads all members.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The devices of this inventory file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N simulated devices, to try something on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults of the simulated devices (with --demo).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which of the devices; all when not given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the K-th of N shares of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;table&quot; (default), &quot;csv&quot; or &quot;json&quot; (an object a line).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language of messages, such as &quot;en&quot;; the system&apos;s when not given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long a device may take for an answer, in seconds (default 15).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long to wait for connections, in seconds (default 60).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps no history of the run: it cannot be taken back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In waves of so many devices, such as 1,10,25%; the last size goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops when more of a wave&apos;s devices fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tries devices that failed so often again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads each wave again and compares.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes nothing unless all selected devices are reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes back what somebody has changed since, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks nobody.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of the commands above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a text in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 has no meaning for this command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a run: an id, its beginning, or &quot;last&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a family: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>history export needs a run: an id, its beginning, or &quot;last&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>history import needs a file, or several</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;; there are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format takes table, csv or json, not &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--shard takes K/N, with K from 1 to N, not &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--serial: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values are missing: --set KEY=VALUE or --values FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set and --values exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>devices are missing: --inventory FILE or --demo N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--demo and --inventory exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--faults needs --demo: only simulated devices have faults to order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 takes a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--devices takes a selection, such as all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::CommandInput</name>
    <message>
        <source>--devices: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of %1 give no value and are left out</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have nothing of the run</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have no values in %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) of %1 are not selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no device is selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::CsvValues</name>
    <message>
        <source>wrong quotation marks: they stand around a whole cell, and one within it is written twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is empty; a line with &quot;device&quot; and keys is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ends after its head; a line for each device is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not UTF-8; save the file as CSV in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column has no name; a key is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is there already, as number %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no column &quot;device&quot;, with the id or serial number of each row (columns stand between &quot;,&quot; or &quot;;&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of cells is %1; it must be %2, as in the head</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>names no device; its id or serial number is expected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceCommand</name>
    <message>
        <source>Connecting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceResults</name>
    <message>
        <source>nothing to change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as it should be</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceSelection</name>
    <message>
        <source>&quot;%1&quot;: &quot;not:&quot; stands before its file already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: a file must not name another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a term of a selection must not be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: something must follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: is no pattern; &quot;*&quot;, &quot;?&quot; and &quot;[a-z]&quot; may stand for characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be an address such as 10.1.2.3, or several such as 10.1.0.0/16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be camera or recorder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: names no device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the id of one device and the serial number of another one, &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the inventory does not have %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;: no device has this id or serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; matches no device</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1; and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>the selection has no camera or recorder that is reached directly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the selection has no device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::FamiliesCommand</name>
    <message>
        <source>Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only with</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::HistoryCommand</name>
    <message>
        <source>There are no runs in the history.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The run is of &quot;%1&quot;, of which this program knows nothing: what it changed is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs removed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The run %1 is still under way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The run %1 ended with its program. What came of its devices is noted when the next run begins, or with &quot;history prune&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:%2:%3: is not JSON: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the run %2 is there already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the run %2 is there now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::HistoryTexts</name>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Began</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcomes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undoes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ended with its program</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::InputFile</name>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is larger than %1 MiB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::JsonValues</name>
    <message>
        <source>&quot;%1&quot;: is nested too deeply, is too large, or names a key twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already in this object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be an id or a serial number, a text in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no object; expected is {…}, or several of them one after the other, without &quot;[&quot; and &quot;,&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not JSON: a key in quotes is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not JSON: a colon is expected after a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not JSON: &quot;,&quot; or &quot;}&quot; is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not JSON: &quot;,&quot; or &quot;]&quot; is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not UTF-8; save the file in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not JSON: the closing quotation mark of a text is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not JSON: a value is expected: a text in quotes, a number, true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is empty; an object with keys and values is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no member &quot;device&quot;, with an id or serial number, which each of several objects needs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::KeyTable</name>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up to %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be set by itself; &quot;%2&quot; sets it for all channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a key must not be empty or hold line breaks, tabs or control characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keys of %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;, perhaps &quot;%2&quot;; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be 1 or 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a text in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must not hold line breaks, tabs or control characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must not be longer than %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1×%2 is no resolution of &quot;%3&quot;, which has %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs &quot;%2&quot; beside it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::ProgressDisplay</name>
    <message>
        <source>%1 done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 not reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>devices a second</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  and %1 other messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::Question</name>
    <message>
        <source>[y/N]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y</source>
        <comment>short for yes, as in [y/N]</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <comment>an answer</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::ReadingCommand</name>
    <message>
        <source>Reading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::RecordedRuns</name>
    <message>
        <source>Several runs begin with &quot;%1&quot;, among them %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no runs in the history.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no run &quot;%1&quot; in the history.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultTexts</name>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>partly written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>differs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultWriter</name>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not have %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 other left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 others left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>run %1… (orda_batch undo %1 takes it back)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  and %1 other messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::StandardOutput</name>
    <message>
        <source>The standard output cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orda_batch::WantedValues</name>
    <message>
        <source>KEY=VALUE is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no row gives a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no value is given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: no device has this id or serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the id of one device and the serial number of &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is named already at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::WritingCommand</name>
    <message>
        <source>not begun: not all devices are reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n device(s) would change</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, in %n value(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) with nothing to take back</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) have these values already</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) keep something that was changed since, or that they did not have before</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) could not be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) are not reached</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no history is kept: this run cannot be taken back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take it back?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taking back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk did not take the history in time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
