<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>main</name>
    <message>
        <source>the results cannot be written: %1</source>
        <translation>无法写入结果：%1</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>--language takes one of %1, not &quot;%2&quot;</source>
        <translation>--language 只接受 %1 之一，而不是“%2”</translation>
    </message>
    <message>
        <source>--yes is needed where nobody can be asked</source>
        <translation>无法询问任何人时需要 --yes</translation>
    </message>
    <message>
        <source>%1 (see orda_batch --help)</source>
        <translation>%1（参见 orda_batch --help）</translation>
    </message>
</context>
<context>
    <name>orda_batch::BatchOptions</name>
    <message>
        <source>Sets a parameter; once for each.</source>
        <translation>设置一个参数；每个参数给出一次。</translation>
    </message>
    <message>
        <source>Values from a file: JSON for all devices, CSV or JSON lines for each.</source>
        <translation>从文件取值：JSON 用于所有设备，CSV 或 JSON 行用于各台设备。</translation>
    </message>
    <message>
        <source>Lets keys and values pass that the family does not name; reads all members.</source>
        <translation>允许该类别未列出的键和值；读取所有字段。</translation>
    </message>
    <message>
        <source>The devices of this inventory file.</source>
        <translation>此清单文件中的设备。</translation>
    </message>
    <message>
        <source>N simulated devices, to try something on.</source>
        <translation>N 台模拟设备，供试用。</translation>
    </message>
    <message>
        <source>Faults of the simulated devices (with --demo).</source>
        <translation>模拟设备的故障（与 --demo 一起使用）。</translation>
    </message>
    <message>
        <source>Which of the devices; all when not given.</source>
        <translation>选择哪些设备；未给出时为全部。</translation>
    </message>
    <message>
        <source>Only the K-th of N shares of them.</source>
        <translation>仅取分成 N 份中的第 K 份。</translation>
    </message>
    <message>
        <source>&quot;table&quot; (default), &quot;csv&quot; or &quot;json&quot; (an object a line).</source>
        <translation>“table”（默认）、“csv”或“json”（每行一个对象）。</translation>
    </message>
    <message>
        <source>Language of messages, such as &quot;en&quot;; the system&apos;s when not given.</source>
        <translation>消息语言，例如“en”；未给出时使用系统语言。</translation>
    </message>
    <message>
        <source>How long to wait for connections, in seconds (default 60).</source>
        <translation>等待连接的时限，以秒为单位（默认 60）。</translation>
    </message>
    <message>
        <source>Keeps no history of the run: it cannot be taken back.</source>
        <translation>不把该运行写入历史记录：无法撤销。</translation>
    </message>
    <message>
        <source>In waves of so many devices, such as 1,10,25%; the last size goes on.</source>
        <translation>按这样的设备数分批进行，例如 1,10,25%；最后的大小沿用到底。</translation>
    </message>
    <message>
        <source>Reads each wave again and compares.</source>
        <translation>重新读取每一批并比较。</translation>
    </message>
    <message>
        <source>Writes nothing unless all selected devices are reached.</source>
        <translation>除非所选设备全部连上，否则不写入任何内容。</translation>
    </message>
    <message>
        <source>Takes back what somebody has changed since, too.</source>
        <translation>之后被人更改的也一并撤销。</translation>
    </message>
    <message>
        <source>Asks nobody.</source>
        <translation>不询问。</translation>
    </message>
    <message>
        <source>One of the commands above.</source>
        <translation>上述命令之一。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a text in UTF-8</source>
        <translation>“%1”不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>--%1 has no meaning for this command</source>
        <translation>--%1 对此命令没有意义</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>缺少命令</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>没有命令“%1”</translation>
    </message>
    <message>
        <source>%1 needs a run: an id, its beginning, or &quot;last&quot;</source>
        <translation>%1 需要一次运行：id、id 的开头或“last”</translation>
    </message>
    <message>
        <source>%1 needs a family: %2</source>
        <translation>%1 需要一个参数类别：%2</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>history export needs a run: an id, its beginning, or &quot;last&quot;</source>
        <translation>history export 需要一次运行：id、id 的开头或“last”</translation>
    </message>
    <message>
        <source>history import needs a file, or several</source>
        <translation>history import 需要一个或多个文件</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;; there are %2</source>
        <translation>没有参数类别“%1”；现有 %2</translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 接受 %2 到 %3 之间的整数，而不是“%4”</translation>
    </message>
    <message>
        <source>--format takes table, csv or json, not &quot;%1&quot;</source>
        <translation>--format 只接受 table、csv 或 json，而不是“%1”</translation>
    </message>
    <message>
        <source>--shard takes K/N, with K from 1 to N, not &quot;%1&quot;</source>
        <translation>--shard 接受 K/N，其中 K 为 1 到 N，而不是“%1”</translation>
    </message>
    <message>
        <source>--serial: %1</source>
        <translation>--serial：%1</translation>
    </message>
    <message>
        <source>values are missing: --set KEY=VALUE or --values FILE</source>
        <translation>缺少值：--set KEY=VALUE 或 --values FILE</translation>
    </message>
    <message>
        <source>--set and --values exclude each other</source>
        <translation>--set 与 --values 互斥</translation>
    </message>
    <message>
        <source>devices are missing: --inventory FILE or --demo N</source>
        <translation>缺少设备：--inventory FILE 或 --demo N</translation>
    </message>
    <message>
        <source>--demo and --inventory exclude each other</source>
        <translation>--demo 与 --inventory 互斥</translation>
    </message>
    <message>
        <source>--faults needs --demo: only simulated devices have faults to order</source>
        <translation>--faults 需要 --demo：只有模拟设备才能设定故障</translation>
    </message>
    <message>
        <source>--%1 takes a file</source>
        <translation>--%1 需要一个文件</translation>
    </message>
    <message>
        <source>--devices takes a selection, such as all</source>
        <translation>--devices 需要一个选择，例如 all</translation>
    </message>
    <message>
        <source>Tries failed devices again, up to N times.</source>
        <translation>对失败的设备重试，最多 N 次。</translation>
    </message>
    <message>
        <source>Stops when more than P per cent of a wave&apos;s devices fail.</source>
        <translation>一批中超过百分之 P 的设备失败时停止。</translation>
    </message>
    <message>
        <source>--%1 is given twice</source>
        <translation>--%1 给出了两次</translation>
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
        <translation>读取、计划、设置、核实并撤销许多摄像机和录像机的参数。

命令：
  families [FAMILY]           参数类别；某一类别的键、类型、范围和可选值
  read FAMILY                 设备的当前值
  plan FAMILY VALUES          “apply”将更改什么；不作任何更改
  apply FAMILY VALUES         设置这些值，须先在终端确认或给出 --yes
  verify RUN | FAMILY VALUES  设备是否仍为该运行写入的值，或这些值
  undo RUN                    撤销某次运行写入且之后无人更改的值
  history [RUN]               已记录的运行；某次运行所做的事
  history prune               按历史记录的设置删除旧的运行
  history export RUN          将一次运行写到标准输出；“import FILE…”可在别处导入
  discover                    在本地网络中查找时应答的 ONVIF 摄像机

VALUES：--set KEY=VALUE …，或 --values FILE。RUN：id、id 的开头或“last”。
SELECTION（以逗号分隔）：all、offered、id、序列号、name=GLOB、ip=10.1.0.0/16、kind=camera、kind=recorder、group=NAME、@FILE、failed:RUN，每一项之前都可加 not:。

退出码：0 所选设备全部完成，1 部分失败，2 用法错误，3 输入有误，4 没有设备，5 部分未连上，6 已停止，7 核实发现差异，8 无法写入或读取历史记录；plan：10 会有更改。</translation>
    </message>
    <message>
        <source>M simulated ONVIF cameras beside them (with --demo).</source>
        <translation>另加 M 台模拟 ONVIF 摄像机（与 --demo 一起使用）。</translation>
    </message>
    <message>
        <source>How long a device may take for an answer, in seconds (default 15); of discover: how long to search (default 5).</source>
        <translation>设备应答的时限，以秒为单位（默认 15）；对于 discover：查找的时长（默认 5）。</translation>
    </message>
    <message>
        <source>Searches by this network interface; all when not given.</source>
        <translation>通过此网络接口查找；未给出时为全部。</translation>
    </message>
    <message>
        <source>--interface takes the name of a network interface</source>
        <translation>--interface 需要网络接口的名称</translation>
    </message>
    <message>
        <source>--onvif needs --demo: it brings simulated cameras along</source>
        <translation>--onvif 需要 --demo：它附带模拟摄像机</translation>
    </message>
</context>
<context>
    <name>orda_batch::CommandInput</name>
    <message>
        <source>--devices: %1</source>
        <translation>--devices：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of %1 give no value and are left out</source>
        <translation>
            <numerusform>%1 中有 %n 行未给出值，已略过</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have nothing of the run</source>
        <translation>
            <numerusform>该运行没有写入所选设备中的 %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected device(s) have no values in %1</source>
        <translation>
            <numerusform>所选设备中有 %n 台在 %1 中没有值</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) of %1 are not selected</source>
        <translation>
            <numerusform>%1 中有 %n 台设备未被选择</numerusform>
        </translation>
    </message>
    <message>
        <source>no device is selected</source>
        <translation>未选择任何设备</translation>
    </message>
    <message>
        <source>&quot;%1&quot; had the serial number %2 in the run %3 and has %4 in the inventory: it is another device, which not:%1 leaves out</source>
        <translation>“%1”在运行 %3 中的序列号是 %2，而清单中是 %4：这是另一台设备，可用 not:%1 排除</translation>
    </message>
</context>
<context>
    <name>orda_batch::CsvValues</name>
    <message>
        <source>wrong quotation marks: they stand around a whole cell, and one within it is written twice</source>
        <translation>引号有误：引号应括住整个单元格，其中的引号须写两次</translation>
    </message>
    <message>
        <source>is empty; a line with &quot;device&quot; and keys is expected</source>
        <translation>为空；应有一行“device”和各键</translation>
    </message>
    <message>
        <source>ends after its head; a line for each device is expected</source>
        <translation>在表头之后结束；应为每台设备给出一行</translation>
    </message>
    <message>
        <source>is not UTF-8; save the file as CSV in UTF-8</source>
        <translation>不是 UTF-8；请将文件另存为 UTF-8 编码的 CSV</translation>
    </message>
    <message>
        <source>the column has no name; a key is expected</source>
        <translation>该列没有名称；应为一个键</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is there already, as number %2</source>
        <translation>列“%1”已存在，为第 %2 列</translation>
    </message>
    <message>
        <source>no column &quot;device&quot;, with the id or serial number of each row (columns stand between &quot;,&quot; or &quot;;&quot;)</source>
        <translation>没有“device”列，其中应有每行的 id 或序列号（各列以“,”或“;”分隔）</translation>
    </message>
    <message>
        <source>the number of cells is %1; it must be %2, as in the head</source>
        <translation>单元格数为 %1；应与表头一致，为 %2</translation>
    </message>
    <message>
        <source>names no device; its id or serial number is expected</source>
        <translation>未指明设备；应为其 id 或序列号</translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceCommand</name>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>nothing more is sent; what has left is awaited (once more ends at once)</source>
        <translation>不再发送；正在等待已发出请求的应答（再次中断则立即结束）</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) speak ONVIF, which does not know this: %1</source>
        <translation>
            <numerusform>%n 台设备使用 ONVIF，它没有以下内容：%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceResults</name>
    <message>
        <source>nothing to change</source>
        <translation>无需更改</translation>
    </message>
    <message>
        <source>as it should be</source>
        <translation>符合要求</translation>
    </message>
</context>
<context>
    <name>orda_batch::DeviceSelection</name>
    <message>
        <source>&quot;%1&quot;: &quot;not:&quot; stands before its file already</source>
        <translation>“%1”：其文件之前已有“not:”</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: a file must not name another one</source>
        <translation>“%1”：文件中不得再指定另一个文件</translation>
    </message>
    <message>
        <source>a term of a selection must not be empty</source>
        <translation>选择中的项不能为空</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: something must follow</source>
        <translation>“%1”：其后必须有内容</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: is no pattern; &quot;*&quot;, &quot;?&quot; and &quot;[a-z]&quot; may stand for characters</source>
        <translation>“%1”：不是有效的模式；可用“*”、“?”和“[a-z]”代表字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be an address such as 10.1.2.3, or several such as 10.1.0.0/16</source>
        <translation>“%1”：必须是地址（如 10.1.2.3）或一段地址（如 10.1.0.0/16）</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be camera or recorder</source>
        <translation>“%1”：必须是 camera 或 recorder</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: names no device</source>
        <translation>%1：未指明任何设备</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the id of one device and the serial number of another one, &quot;%2&quot;</source>
        <translation>“%1”是一台设备的 id，又是另一台设备“%2”的序列号</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the inventory does not have %2</source>
        <translation>“%1”：清单中没有 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 以及另外 %n 台</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;: no device has this id or serial number</source>
        <translation>“%1”：没有设备具有此 id 或序列号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; matches no device</source>
        <translation>“%1”与任何设备都不匹配</translation>
    </message>
    <message>
        <source>the selection has no camera or recorder that is reached directly</source>
        <translation>所选设备中没有可直接访问的摄像机或录像机</translation>
    </message>
    <message>
        <source>the selection has no device</source>
        <translation>所选范围中没有设备</translation>
    </message>
</context>
<context>
    <name>orda_batch::DiscoverCommand</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>硬件</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>%1 says that it is at %2</source>
        <translation>%1 自称地址为 %2</translation>
    </message>
    <message>
        <source>no camera has answered on %1</source>
        <translation>%1 上没有摄像机应答</translation>
    </message>
</context>
<context>
    <name>orda_batch::FamiliesCommand</name>
    <message>
        <source>Family</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>键数</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Only with</source>
        <translation>须同时给出</translation>
    </message>
</context>
<context>
    <name>orda_batch::HistoryCommand</name>
    <message>
        <source>There are no runs in the history.</source>
        <translation>历史记录中没有运行。</translation>
    </message>
    <message>
        <source>The run is of &quot;%1&quot;, of which this program knows nothing: what it changed is not shown.</source>
        <translation>该运行属于“%1”，本程序不认识它：不显示其更改。</translation>
    </message>
    <message>
        <source>Runs removed: %1</source>
        <translation>已删除的运行：%1</translation>
    </message>
    <message>
        <source>The run %1 is still under way.</source>
        <translation>运行 %1 仍在进行中。</translation>
    </message>
    <message>
        <source>The run %1 ended with its program. What came of its devices is noted when the next run begins, or with &quot;history prune&quot;.</source>
        <translation>运行 %1 随其程序一同终止。其设备的结果将在下次运行开始时或用“history prune”补记。</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1：无法读取：%2</translation>
    </message>
    <message>
        <source>%1:%2:%3: is not JSON: %4</source>
        <translation>%1:%2:%3：不是 JSON：%4</translation>
    </message>
    <message>
        <source>%1: the run %2 is there already</source>
        <translation>%1：运行 %2 已存在</translation>
    </message>
    <message>
        <source>%1: the run %2 is there now</source>
        <translation>%1：运行 %2 已导入</translation>
    </message>
</context>
<context>
    <name>orda_batch::HistoryTexts</name>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Outcomes</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Undoes</source>
        <translation>撤销的运行</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>ended with its program</source>
        <translation>随程序一同终止</translation>
    </message>
</context>
<context>
    <name>orda_batch::InputFile</name>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation>无法读取：它是目录</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>is larger than %1 MiB</source>
        <translation>大于 %1 MiB</translation>
    </message>
</context>
<context>
    <name>orda_batch::JsonValues</name>
    <message>
        <source>&quot;%1&quot;: is nested too deeply, is too large, or names a key twice</source>
        <translation>“%1”：嵌套过深、过大，或同一键出现两次</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already in this object</source>
        <translation>“%1”在此对象中已存在</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: must be an id or a serial number, a text in quotes</source>
        <translation>“%1”：必须是 id 或序列号，为带引号的文本</translation>
    </message>
    <message>
        <source>is no object; expected is {…}, or several of them one after the other, without &quot;[&quot; and &quot;,&quot;</source>
        <translation>不是对象；应为 {…}，可有多个依次排列，不带“[”和“,”</translation>
    </message>
    <message>
        <source>is not JSON: a key in quotes is expected</source>
        <translation>不是 JSON：应为带引号的键</translation>
    </message>
    <message>
        <source>is not JSON: a colon is expected after a key</source>
        <translation>不是 JSON：键之后应有冒号</translation>
    </message>
    <message>
        <source>is not JSON: &quot;,&quot; or &quot;}&quot; is expected</source>
        <translation>不是 JSON：应为“,”或“}”</translation>
    </message>
    <message>
        <source>is not JSON: &quot;,&quot; or &quot;]&quot; is expected</source>
        <translation>不是 JSON：应为“,”或“]”</translation>
    </message>
    <message>
        <source>is not UTF-8; save the file in UTF-8</source>
        <translation>不是 UTF-8；请将文件保存为 UTF-8</translation>
    </message>
    <message>
        <source>is not JSON: the closing quotation mark of a text is missing</source>
        <translation>不是 JSON：文本缺少结束引号</translation>
    </message>
    <message>
        <source>is not JSON: a value is expected: a text in quotes, a number, true or false</source>
        <translation>不是 JSON：应为一个值：带引号的文本、数字、true 或 false</translation>
    </message>
    <message>
        <source>is empty; an object with keys and values is expected</source>
        <translation>为空；应为含有键和值的对象</translation>
    </message>
    <message>
        <source>no member &quot;device&quot;, with an id or serial number, which each of several objects needs</source>
        <translation>缺少“device”及其 id 或序列号；有多个对象时每个都需要</translation>
    </message>
</context>
<context>
    <name>orda_batch::KeyTable</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>up to %1 characters</source>
        <translation>最多 %1 个字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be set by itself; &quot;%2&quot; sets it for all channels</source>
        <translation>“%1”不能单独设置；“%2”对所有通道一并设置</translation>
    </message>
    <message>
        <source>a key must not be empty or hold line breaks, tabs or control characters</source>
        <translation>键不能为空，也不得包含换行符、制表符或控制字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting</source>
        <translation>“%1”不是设置项</translation>
    </message>
    <message>
        <source>keys of %1: %2</source>
        <translation>%1 的键：%2</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; %2</source>
        <translation>未知键“%1”；%2</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;, perhaps &quot;%2&quot;; %3</source>
        <translation>未知键“%1”，也许是“%2”；%3</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>必须是以下之一：%1</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message>
        <source>must be 1 or 0</source>
        <translation>必须是 1 或 0</translation>
    </message>
    <message>
        <source>must be a text in quotes</source>
        <translation>必须是带引号的文本</translation>
    </message>
    <message>
        <source>must not hold line breaks, tabs or control characters</source>
        <translation>不得包含换行符、制表符或控制字符</translation>
    </message>
    <message>
        <source>must not be longer than %1 characters</source>
        <translation>不得超过 %1 个字符</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>必须是 %1 到 %2 之间的整数</translation>
    </message>
    <message>
        <source>%1×%2 is no resolution of &quot;%3&quot;, which has %4</source>
        <translation>%1×%2 不是“%3”的分辨率；可用的有 %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs &quot;%2&quot; beside it</source>
        <translation>“%1”需要同时给出“%2”</translation>
    </message>
</context>
<context>
    <name>orda_batch::ProgressDisplay</name>
    <message>
        <source>%1 done</source>
        <translation>已完成 %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>失败 %1</translation>
    </message>
    <message>
        <source>%1 not reached</source>
        <translation>未连上 %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>devices a second</comment>
        <translation>%1 台/秒</translation>
    </message>
    <message numerus="yes">
        <source>  and %n other message(s)</source>
        <translation>
            <numerusform>  以及另外 %n 种消息</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::Question</name>
    <message>
        <source>[y/N]</source>
        <translation>[y/N]</translation>
    </message>
    <message>
        <source>y</source>
        <comment>short for yes, as in [y/N]</comment>
        <translation>y</translation>
    </message>
    <message>
        <source>yes</source>
        <comment>an answer</comment>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>orda_batch::ReadingCommand</name>
    <message>
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
</context>
<context>
    <name>orda_batch::RecordedRuns</name>
    <message>
        <source>Several runs begin with &quot;%1&quot;, among them %2.</source>
        <translation>有多次运行以“%1”开头，其中有 %2。</translation>
    </message>
    <message>
        <source>There are no runs in the history.</source>
        <translation>历史记录中没有运行。</translation>
    </message>
    <message>
        <source>There is no run &quot;%1&quot; in the history.</source>
        <translation>历史记录中没有运行“%1”。</translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultTexts</name>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>未更改</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>partly written</source>
        <translation>部分写入</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>未连上</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>有差异</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a number of devices and their outcome, as in &quot;3 failed&quot;</comment>
        <translation>%2 %1</translation>
    </message>
</context>
<context>
    <name>orda_batch::ResultWriter</name>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>does not have %1</source>
        <translation>没有 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>1 device</source>
        <translation>1 台设备</translation>
    </message>
    <message>
        <source>%1 devices</source>
        <translation>%1 台设备</translation>
    </message>
    <message>
        <source>1 other left out</source>
        <translation>另有 1 台未纳入</translation>
    </message>
    <message>
        <source>%1 others left out</source>
        <translation>另有 %1 台未纳入</translation>
    </message>
    <message>
        <source>run %1… (orda_batch undo %1 takes it back)</source>
        <translation>运行 %1…（可用 orda_batch undo %1 撤销）</translation>
    </message>
    <message>
        <source>stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>错误：%1</translation>
    </message>
    <message numerus="yes">
        <source>  and %n other message(s)</source>
        <translation>
            <numerusform>  以及另外 %n 种消息</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_batch::StandardOutput</name>
    <message>
        <source>The standard output cannot be written: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
</context>
<context>
    <name>orda_batch::WantedValues</name>
    <message>
        <source>KEY=VALUE is expected</source>
        <translation>应为 KEY=VALUE</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice</source>
        <translation>“%1”给出了两次</translation>
    </message>
    <message>
        <source>no row gives a value</source>
        <translation>没有任何一行给出值</translation>
    </message>
    <message>
        <source>no value is given</source>
        <translation>未给出值</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: no device has this id or serial number</source>
        <translation>“%1”：没有设备具有此 id 或序列号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the id of one device and the serial number of &quot;%2&quot;</source>
        <translation>“%1”是一台设备的 id，又是“%2”的序列号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is named already at %2</source>
        <translation>“%1”已在 %2 处出现</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2): %3</source>
        <translation>“%1”（%2）：%3</translation>
    </message>
</context>
<context>
    <name>orda_batch::WritingCommand</name>
    <message>
        <source>not begun: not all devices are reached</source>
        <translation>未开始：并非所有设备都已连上</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n device(s) would change</source>
        <translation>
            <numerusform>%1：将更改 %n 台设备</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, in %n value(s)</source>
        <translation>
            <numerusform>，共 %n 个值</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) with nothing to take back</source>
        <translation>
            <numerusform>%n 台设备无需撤销</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) have these values already</source>
        <translation>
            <numerusform>%n 台设备已是这些值</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) keep something that was changed since, or that they did not have before</source>
        <translation>
            <numerusform>%n 台设备会保留之后被更改的或之前没有的内容</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) could not be read</source>
        <translation>
            <numerusform>%n 台设备无法读取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) are not reached</source>
        <translation>
            <numerusform>%n 台设备未连上</numerusform>
        </translation>
    </message>
    <message>
        <source>no history is kept: this run cannot be taken back</source>
        <translation>不保留历史记录：此运行无法撤销</translation>
    </message>
    <message>
        <source>Take it back?</source>
        <translation>要撤销吗？</translation>
    </message>
    <message>
        <source>Configure?</source>
        <translation>要配置吗？</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>未确认</translation>
    </message>
    <message>
        <source>Taking back</source>
        <translation>正在撤销</translation>
    </message>
    <message>
        <source>Configuring</source>
        <translation>正在配置</translation>
    </message>
    <message>
        <source>The disk did not take the history in time.</source>
        <translation>磁盘未能及时写入历史记录。</translation>
    </message>
</context>
</TS>
