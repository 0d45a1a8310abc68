<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>main</name>
    <message>
        <source>there is no display to show the window on; --run needs none</source>
        <translation>没有可显示窗口的显示器；--run 不需要显示器</translation>
    </message>
    <message>
        <source>--language takes one of %1, not &quot;%2&quot;</source>
        <translation>--language 只接受 %1 之一，而不是“%2”</translation>
    </message>
    <message>
        <source>%1 (see orda_client --help)</source>
        <translation>%1（参见 orda_client --help）</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientOptions</name>
    <message>
        <source>Bring N simulated devices along.</source>
        <translation>附带 N 台模拟设备。</translation>
    </message>
    <message>
        <source>Connect to the devices of this inventory file.</source>
        <translation>连接此清单文件中的设备。</translation>
    </message>
    <message>
        <source>Faults of the simulated devices (with --demo).</source>
        <translation>模拟设备的故障（与 --demo 一起使用）。</translation>
    </message>
    <message>
        <source>Language of the window, such as &quot;en&quot;; the system&apos;s when not given.</source>
        <translation>窗口语言，例如“en”；未给出时使用系统语言。</translation>
    </message>
    <message>
        <source>Devices to configure with --run: &quot;all&quot; (default) or ids with commas.</source>
        <translation>--run 要配置的设备：“all”（默认）或以逗号分隔的 id。</translation>
    </message>
    <message>
        <source>Save pictures of the pages, the run and its summary here (with --run).</source>
        <translation>在此保存页面、运行和摘要的图片（与 --run 一起使用）。</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>--demo takes a number of devices from 1 to %1, not &quot;%2&quot;</source>
        <translation>--demo 接受 1 到 %1 的设备数，而不是“%2”</translation>
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
        <source>--run takes one of %1, not &quot;%2&quot;</source>
        <translation>--run 只接受 %1 之一，而不是“%2”</translation>
    </message>
    <message>
        <source>--run needs devices: --demo N or --inventory FILE</source>
        <translation>--run 需要设备：--demo N 或 --inventory FILE</translation>
    </message>
    <message>
        <source>--devices takes &quot;all&quot; or device ids with commas between them</source>
        <translation>--devices 接受“all”或以逗号分隔的设备 id</translation>
    </message>
    <message>
        <source>--screenshots: cannot make the directory &quot;%1&quot;</source>
        <translation>--screenshots：无法创建目录“%1”</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;; as the desktop is when not given.</source>
        <translation>“light”（浅色）或“dark”（深色）；未给出时跟随桌面。</translation>
    </message>
    <message>
        <source>--theme takes light or dark, not &quot;%1&quot;</source>
        <translation>--theme 只接受 light 或 dark，而不是“%1”</translation>
    </message>
    <message>
        <source>--inventory takes a file</source>
        <translation>--inventory 需要一个文件</translation>
    </message>
    <message>
        <source>Configures many online cameras and recorders at once.

Exit codes: 0 every device was configured, 1 some were not, 2 wrong usage, 3 a file is wrong, 4 no device, 5 nothing configured because the record is in use, 6 the record of the run is missing or not whole.</source>
        <translation>一次配置许多在线摄像机和录像机。

退出码：0 全部设备已配置，1 部分未配置，2 用法错误，3 文件有误，4 没有设备，5 因记录正在使用而未配置，6 本次运行的记录缺失或不完整。</translation>
    </message>
    <message>
        <source>Let --run write to the devices of an inventory.</source>
        <translation>允许 --run 写入清单中的设备。</translation>
    </message>
    <message>
        <source>--devices, --screenshots and --yes need --run</source>
        <translation>--devices、--screenshots 和 --yes 需要 --run</translation>
    </message>
    <message>
        <source>Drive the form without a person: one run of FAMILY (%1) with the form&apos;s default values, then exit. For demos and pictures; orda_batch(1) sets values of your own.</source>
        <translation>无人操作表单：以表单的默认值执行一次 FAMILY（%1）后退出。用于演示和截图；要设置自己的值，请使用 orda_batch(1)。</translation>
    </message>
    <message>
        <source>--run with --inventory writes the form&apos;s default values to real devices: add --yes if that is meant, or set values of your own with orda_batch(1)</source>
        <translation>--run 与 --inventory 一起使用会把表单的默认值写入真实设备：如确有此意请加 --yes，否则用 orda_batch(1) 设置自己的值</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientSession</name>
    <message>
        <source>%1. Nothing was written to devices after that.</source>
        <translation>%1。此后未再向设备写入任何内容。</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientWindow</name>
    <message>
        <source>offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>sign-on refused</source>
        <translation>登录被拒绝</translation>
    </message>
    <message>
        <source>online with the factory password</source>
        <translation>在线（使用出厂密码）</translation>
    </message>
    <message>
        <source>online, locked</source>
        <translation>在线，已锁定</translation>
    </message>
    <message>
        <source>Batch Configuration</source>
        <translation>批量配置</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open inventory…</source>
        <translation>打开清单(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Connect again</source>
        <translation>重新连接(&amp;C)</translation>
    </message>
    <message>
        <source>Tries the devices again that refused the sign-on</source>
        <translation>重试拒绝登录的设备</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Open inventory</source>
        <translation>打开清单</translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>清单 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Remote configuration of %1</source>
        <translation>%1 的远程设置</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>&amp;Last run</source>
        <translation>上次运行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>Lists the outcome of each device, and ticks the failed ones again</source>
        <translation>列出每台设备的结果，并可重新勾选失败的设备</translation>
    </message>
    <message>
        <source>Last run</source>
        <translation>上次运行</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%n 台设备中 %1 台在线</numerusform>
        </translation>
    </message>
    <message>
        <source>A run is going on over the devices of this inventory. Open another when it has ended.</source>
        <translation>正在对此清单中的设备运行配置。请在运行结束后再打开其他清单。</translation>
    </message>
</context>
<context>
    <name>orda_client::CloseQuestion</name>
    <message>
        <source>A run is going on</source>
        <translation>运行正在进行</translation>
    </message>
    <message>
        <source>Closing ends the run. Devices that have not answered may have been configured all the same.</source>
        <translation>关闭将中止运行。尚未应答的设备可能已被配置。</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>仍然关闭</translation>
    </message>
    <message>
        <source>Keep waiting</source>
        <translation>继续等待</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) have not answered</source>
        <translation>
            <numerusform>%n 台设备中有 %1 台尚未应答</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::CsvFile</name>
    <message>
        <source>cannot write the file %1: %2</source>
        <translation>无法写入文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>orda_client::FailedDevices</name>
    <message>
        <source>its entry in the record cannot be read</source>
        <translation>无法读取其在记录中的条目</translation>
    </message>
    <message>
        <source>it has no serial number</source>
        <translation>它没有序列号</translation>
    </message>
    <message>
        <source>several devices of the run have its serial number</source>
        <translation>本次运行中有多台设备使用其序列号</translation>
    </message>
    <message>
        <source>it is not in the list now: offline, or not to be configured</source>
        <translation>它现在不在列表中：离线或不可配置</translation>
    </message>
    <message>
        <source>several devices in the list have its serial number</source>
        <translation>列表中有多台设备使用其序列号</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>a device without a name</source>
        <translation>无名称的设备</translation>
    </message>
</context>
<context>
    <name>orda_client::FailureGroupList</name>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>Unreadable entries</source>
        <translation>无法读取的条目</translation>
    </message>
</context>
<context>
    <name>orda_client::LastRunWindow</name>
    <message>
        <source>Last run</source>
        <translation>上次运行</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Failed only</source>
        <translation>仅失败</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses and messages (%1)</source>
        <translation>搜索名称、序列号、地址和消息 (%1)</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>参数(&amp;P)：</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>显示(&amp;H)：</translation>
    </message>
    <message>
        <source>Failures by message</source>
        <translation>按消息分组的失败</translation>
    </message>
    <message>
        <source>Failures by &amp;message</source>
        <translation>按消息分组的失败(&amp;M)</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>本次运行的设备</translation>
    </message>
    <message>
        <source>&amp;Tick failed again</source>
        <translation>重新勾选失败的设备(&amp;T)</translation>
    </message>
    <message>
        <source>Ticks exactly the failed devices of this run in the device list, and opens the page</source>
        <translation>在设备列表中只勾选本次运行失败的设备，并打开相应页面</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>导出 CSV(&amp;E)…</translation>
    </message>
    <message>
        <source>Saves the rows that are shown, in their order, for a spreadsheet</source>
        <translation>按当前顺序保存显示的行，供电子表格使用</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>No run yet. Tick devices and parameters in the form and press Configure; the outcome of each device is then listed here.</source>
        <translation>尚无运行。请在表单中勾选设备和参数并按“配置”；随后此处将列出每台设备的结果。</translation>
    </message>
    <message>
        <source>The record %1 is gone. The next run writes it again.</source>
        <translation>记录 %1 已不存在。下次运行会重新写入。</translation>
    </message>
    <message>
        <source>The record %1 is not read: %2. Move it away; the next run writes a new one.</source>
        <translation>未读取记录 %1：%2。请将其移走；下次运行会写入新的记录。</translation>
    </message>
    <message>
        <source>The run has no result yet.</source>
        <translation>本次运行尚无结果。</translation>
    </message>
    <message>
        <source>No device failed.</source>
        <translation>没有失败的设备。</translation>
    </message>
    <message>
        <source>No device of this run fits the search and the choice beside it.</source>
        <translation>本次运行中没有符合搜索和筛选条件的设备。</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>导出 CSV</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>逗号分隔值 (*.csv);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>orda_client::PageRecord</name>
    <message>
        <source>The last run left no record: %1.</source>
        <translation>上次运行没有留下记录：%1。</translation>
    </message>
    <message numerus="yes">
        <source>The record has only %n result(s) of the last run: %1.</source>
        <translation>
            <numerusform>记录中只有上次运行的 %n 个结果：%1。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RecordFile</name>
    <message>
        <source>it is a symbolic link</source>
        <translation>它是符号链接</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>它属于其他用户</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>它有多个名称</translation>
    </message>
    <message>
        <source>it is too large for a record</source>
        <translation>它过大，不像是记录</translation>
    </message>
    <message>
        <source>there is no temporary directory</source>
        <translation>没有临时目录</translation>
    </message>
</context>
<context>
    <name>orda_client::RunDriver</name>
    <message>
        <source>--devices: there is no device &quot;%1&quot;</source>
        <translation>--devices：没有设备“%1”</translation>
    </message>
    <message>
        <source>window shown</source>
        <translation>窗口已显示</translation>
    </message>
    <message>
        <source>cannot read the record file %1: %2</source>
        <translation>无法读取记录文件 %1：%2</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>无法写入图片 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%n 台设备中 %1 台在线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) ticked</source>
        <translation>
            <numerusform>已勾选 %n 台设备</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of the given devices is offline or may not be configured</source>
        <translation>
            <numerusform>指定的设备中有 %n 台离线或不允许配置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) not reached</source>
        <translation>
            <numerusform>%n 台设备未连上</numerusform>
        </translation>
    </message>
    <message>
        <source>--run is for demos and pictures: it writes the form&apos;s default values. orda_batch(1) sets values of your own.</source>
        <translation>--run 用于演示和截图：它写入表单的默认值。要设置自己的值，请使用 orda_batch(1)。</translation>
    </message>
</context>
<context>
    <name>orda_client::RunRecordModel</name>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>orda_client::RunSummary</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Devices: %1</source>
        <translation>设备：%1</translation>
    </message>
    <message>
        <source>Succeeded: %1</source>
        <translation>成功：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Unreadable: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>The run is still going on.</source>
        <translation>运行仍在进行。</translation>
    </message>
</context>
<context>
    <name>orda_client::TickReport</name>
    <message>
        <source>Failed devices that are not ticked</source>
        <translation>未勾选的失败设备</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln failed device(s) in the device list.</source>
        <translation>
            <numerusform>已在设备列表中勾选 %Ln 台失败设备中的 %1 台。</numerusform>
        </translation>
    </message>
    <message>
        <source>The list&apos;s search was cleared: it hid some of them.</source>
        <translation>已清除列表的搜索：它隐藏了其中一些设备。</translation>
    </message>
    <message>
        <source>Not ticked:</source>
        <translation>未勾选：</translation>
    </message>
</context>
</TS>
