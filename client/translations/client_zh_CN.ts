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
    <name>orda_client::AboutDialog</name>
    <message>
        <source>About Batch Configuration</source>
        <translation>关于批量配置</translation>
    </message>
    <message>
        <source>Batch Configuration %1</source>
        <translation>批量配置 %1</translation>
    </message>
    <message>
        <source>Configures many cameras and recorders at once.</source>
        <translation>一次配置许多摄像机和录像机。</translation>
    </message>
    <message>
        <source>Free under the MIT licence.</source>
        <translation>根据 MIT 许可证自由使用。</translation>
    </message>
    <message>
        <source>Made with Qt %1, wslay, RapidJSON, libcsv and SQLite, which have licences of their own.</source>
        <translation>使用 Qt %1、wslay、RapidJSON、libcsv 和 SQLite 制作，它们各有自己的许可证。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>orda_client::ChosenRunPane</name>
    <message>
        <source>Failures by message</source>
        <translation>按消息分组的失败</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>本次运行的设备</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses, messages and values</source>
        <translation>搜索名称、序列号、地址、消息和值</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>显示(&amp;H)：</translation>
    </message>
    <message>
        <source>Choose a run above.</source>
        <translation>请在上方选择一次运行。</translation>
    </message>
    <message>
        <source>Failures by &amp;message</source>
        <translation>按消息分组的失败(&amp;M)</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open inventory…</source>
        <translation>打开清单(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Import devices from CSV…</source>
        <translation>从 CSV 导入设备(&amp;I)…</translation>
    </message>
    <message>
        <source>Makes an inventory of a table of devices</source>
        <translation>由设备表格生成清单</translation>
    </message>
    <message>
        <source>&amp;Export devices as CSV…</source>
        <translation>将设备导出为 CSV(&amp;E)…</translation>
    </message>
    <message>
        <source>Saves the devices of the inventory as a table for spreadsheets</source>
        <translation>将清单中的设备保存为电子表格可用的表格</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>Lists all devices of the inventory, their states and the reasons</source>
        <translation>列出清单中的所有设备及其状态和原因</translation>
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
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>What Configure would change on each ticked device; nothing is written</source>
        <translation>“配置”会在每台勾选的设备上更改什么；不写入任何内容</translation>
    </message>
    <message>
        <source>&amp;Compare with a standard</source>
        <translation>与标准比较(&amp;C)</translation>
    </message>
    <message>
        <source>The present settings of the ticked devices beside a standard; nothing is written</source>
        <translation>将勾选设备的当前设置与标准对照；不写入任何内容</translation>
    </message>
    <message>
        <source>&amp;Runs</source>
        <translation>运行记录(&amp;R)</translation>
    </message>
    <message>
        <source>What runs did to the devices; tries again, verifies, takes back, compares</source>
        <translation>各次运行对设备做了什么；可重试、核实、撤销和比较</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>No inventory has been opened yet</source>
        <translation>尚未打开过清单</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Find cameras…</source>
        <translation>查找摄像机(&amp;F)…</translation>
    </message>
    <message>
        <source>Searches the local network for ONVIF cameras when told to, and puts them into the inventory</source>
        <translation>按指令在本地网络中查找 ONVIF 摄像机，并将其添加到清单</translation>
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
    <message>
        <source>M simulated ONVIF cameras beside them (with --demo).</source>
        <translation>另加 M 台模拟 ONVIF 摄像机（与 --demo 一起使用）。</translation>
    </message>
    <message>
        <source>--onvif takes a number of cameras from 1 to %1, not &quot;%2&quot;</source>
        <translation>--onvif 接受 1 到 %1 的摄像机数，而不是“%2”</translation>
    </message>
    <message>
        <source>--onvif needs --demo: it brings simulated cameras along</source>
        <translation>--onvif 需要 --demo：它附带模拟摄像机</translation>
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
    <name>orda_client::ClientSettings</name>
    <message>
        <source>It is kept until the client ends, and no longer: the file of the settings cannot be written.</source>
        <translation>仅在程序结束前有效：无法写入设置文件。</translation>
    </message>
</context>
<context>
    <name>orda_client::ClientStatusBar</name>
    <message>
        <source>Runs</source>
        <translation>运行记录</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n device(s) online</source>
        <translation>
            <numerusform>%n 台设备中 %1 台在线</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ClientWindow</name>
    <message>
        <source>Batch Configuration</source>
        <translation>批量配置</translation>
    </message>
    <message>
        <source>%1 – Batch Configuration</source>
        <translation>%1 – 批量配置</translation>
    </message>
    <message numerus="yes">
        <source>Demo with %n device(s) – Batch Configuration</source>
        <translation>
            <numerusform>演示（%n 台设备）– 批量配置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was configured: %n device(s) of the preview cannot be configured any more. Preview again.</source>
        <translation>
            <numerusform>未配置任何设备：预览中有 %n 台设备已无法配置。请重新预览。</numerusform>
        </translation>
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
    <name>orda_client::CompareModel</name>
    <message>
        <source>not read yet</source>
        <translation>尚未读取</translation>
    </message>
    <message>
        <source>not reached: %1</source>
        <comment>reason</comment>
        <translation>未连上：%1</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>could not be read: %1</source>
        <comment>message of the device</comment>
        <translation>读取失败：%1</translation>
    </message>
    <message>
        <source>Differs in</source>
        <translation>差异数</translation>
    </message>
    <message>
        <source>%1, and the standard: %2</source>
        <comment>value of the device, value of the standard</comment>
        <translation>%1，标准：%2</translation>
    </message>
</context>
<context>
    <name>orda_client::CompareWindow</name>
    <message>
        <source>Devices and settings that this is about</source>
        <translation>相关的设备和设置</translation>
    </message>
    <message>
        <source>Compare with a standard</source>
        <translation>与标准比较</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; was saved.</source>
        <translation>方案“%1”已保存。</translation>
    </message>
    <message>
        <source>No device was read yet.</source>
        <translation>尚未读取任何设备。</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>参数(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Only those that differ</source>
        <translation>仅显示有差异的(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;All settings of the devices</source>
        <translation>设备的所有设置(&amp;A)</translation>
    </message>
    <message>
        <source>Shows and compares also what Configure cannot set</source>
        <translation>也显示并比较“配置”无法设置的内容</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>搜索所有列 (%1)</translation>
    </message>
    <message>
        <source>Devices and their settings</source>
        <translation>设备及其设置</translation>
    </message>
    <message>
        <source>&amp;Tick the ones that differ</source>
        <translation>勾选有差异的(&amp;T)</translation>
    </message>
    <message>
        <source>Ticks exactly the devices that differ from the standard in the device list</source>
        <translation>在设备列表中只勾选与标准有差异的设备</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message>
        <source>Reads the devices that are ticked now</source>
        <translation>读取当前勾选的设备</translation>
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
        <source>The form is closed.</source>
        <translation>表单已关闭。</translation>
    </message>
    <message>
        <source>No device is ticked in the list, or the list&apos;s search hides all that are. Tick the devices that are to be compared, then press &quot;Read again&quot;.</source>
        <translation>列表中没有勾选设备，或勾选的设备都被列表的搜索隐藏。请勾选要比较的设备，然后按“重新读取”。</translation>
    </message>
    <message>
        <source>The devices were not read: %1 Press &quot;Read again&quot; afterwards.</source>
        <translation>未读取设备：%1 之后请按“重新读取”。</translation>
    </message>
    <message>
        <source>No device fits the search and the choice beside it.</source>
        <translation>没有设备符合搜索和旁边的筛选条件。</translation>
    </message>
    <message>
        <source>Nothing is compared: the page would send nothing. Tick parameters on it, or choose another standard.</source>
        <translation>未进行比较：该页面不会发送任何内容。请在页面上勾选参数，或选择其他标准。</translation>
    </message>
    <message>
        <source>Nothing is compared: the standard has no value.</source>
        <translation>未进行比较：标准中没有值。</translation>
    </message>
    <message>
        <source>As of %1: %2 differ from the standard, %3 do not, %4 were not read.</source>
        <comment>time, three numbers of devices</comment>
        <translation>截至 %1：与标准有差异 %2 台，无差异 %3 台，未读取 %4 台。</translation>
    </message>
    <message>
        <source>The inventory has changed since. Press &quot;Read again&quot;.</source>
        <translation>清单之后有变化。请按“重新读取”。</translation>
    </message>
</context>
<context>
    <name>orda_client::CsvFile</name>
    <message>
        <source>cannot write the file %1: %2</source>
        <translation>无法写入文件 %1：%2</translation>
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
    <name>orda_client::DeviceCells</name>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceLookup</name>
    <message>
        <source>A quotation mark at the beginning of a text has no other at its end: %1</source>
        <translation>文本开头的引号在结尾处没有对应的引号：%1</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceState</name>
    <message>
        <source>Can be configured</source>
        <translation>可配置</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>不可选</translation>
    </message>
    <message>
        <source>Off line: no connection</source>
        <translation>离线：没有连接</translation>
    </message>
    <message>
        <source>Off line: %1</source>
        <translation>离线：%1</translation>
    </message>
    <message>
        <source>Not offered: %1</source>
        <translation>不可选：%1</translation>
    </message>
</context>
<context>
    <name>orda_client::DeviceTexts</name>
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
        <source>off line</source>
        <translation>离线</translation>
    </message>
</context>
<context>
    <name>orda_client::DevicesModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Since</source>
        <comment>a time, from which on a device has had its state</comment>
        <translation>起始时间</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Last outcome</source>
        <translation>上次结果</translation>
    </message>
    <message>
        <source>Last run</source>
        <translation>上次运行</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>录像机</translation>
    </message>
    <message>
        <source>Other</source>
        <comment>a kind of device</comment>
        <translation>其他</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>协议</translation>
    </message>
</context>
<context>
    <name>orda_client::DevicesWindow</name>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>States</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>搜索所有列 (%1)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>Searches, chooses and sorts anew, by the present states (F5)</source>
        <translation>按当前状态重新搜索、筛选和排序 (F5)</translation>
    </message>
    <message>
        <source>&amp;Tick selected</source>
        <translation>勾选所选设备(&amp;T)</translation>
    </message>
    <message>
        <source>Ticks exactly the selected devices in the form&apos;s list</source>
        <translation>在表单的列表中只勾选所选的设备</translation>
    </message>
    <message>
        <source>T&amp;ick these…</source>
        <translation>按名单勾选(&amp;I)…</translation>
    </message>
    <message>
        <source>Takes a list of serial numbers, names or addresses, and ticks exactly these devices</source>
        <translation>读取序列号、名称或地址的名单，并只勾选这些设备</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>组(&amp;G)</translation>
    </message>
    <message>
        <source>Ticks the devices of a group or of a saved selection, and saves selections</source>
        <translation>勾选某个组或已保存选择中的设备，并可保存选择</translation>
    </message>
    <message>
        <source>C&amp;onnect again</source>
        <translation>重新连接(&amp;O)</translation>
    </message>
    <message>
        <source>Tries the selected devices that are off line again at once, those too that have refused the sign-on</source>
        <translation>立即重试所选的离线设备，包括拒绝登录的设备</translation>
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
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln device(s) shown</source>
        <translation>
            <numerusform>%Ln 台设备中显示 %1 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <comment>devices</comment>
        <translation>
            <numerusform>已选 %Ln 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed since and would be shown or left out now</source>
        <comment>devices</comment>
        <translation>
            <numerusform>%Ln 台之后有变化，现在会显示或隐去</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no devices. Open an inventory in the client&apos;s window.</source>
        <translation>没有设备。请在主窗口中打开清单。</translation>
    </message>
    <message>
        <source>No device fits the search and the choice beside it.</source>
        <translation>没有设备符合搜索和旁边的筛选条件。</translation>
    </message>
    <message>
        <source>None of the selected devices is off line.</source>
        <translation>所选设备中没有离线的。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s) are tried again now.</source>
        <translation>
            <numerusform>正在重试 %Ln 台设备。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::ExportDialog</name>
    <message>
        <source>With &amp;passwords</source>
        <translation>包含密码(&amp;P)</translation>
    </message>
    <message>
        <source>Export devices</source>
        <translation>导出设备</translation>
    </message>
    <message>
        <source>Saves a table with the titles of all columns and no device, to be filled in and imported.</source>
        <translation>保存一个只有各列标题、没有设备的表格，供填写后导入。</translation>
    </message>
    <message numerus="yes">
        <source>Saves %n device(s) as a table, which can be changed and imported again.</source>
        <translation>
            <numerusform>将 %n 台设备保存为表格，可修改后重新导入。</numerusform>
        </translation>
    </message>
    <message>
        <source>The passwords can be read in the file as they are. It is saved so that nobody but you can open it.</source>
        <translation>密码在文件中以明文保存。该文件只有您能打开。</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>逗号分隔值 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Cannot write the file %1: %2</source>
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
    <message>
        <source>it is not in the list now: off line, or not to be configured</source>
        <translation>它现在不在列表中：离线或不可配置</translation>
    </message>
</context>
<context>
    <name>orda_client::FindWindow</name>
    <message>
        <source>Cameras that this is about</source>
        <translation>相关的摄像机</translation>
    </message>
    <message>
        <source>Find cameras</source>
        <translation>查找摄像机</translation>
    </message>
    <message>
        <source>An https camera whose certificate no authority has signed is refused at first (&quot;certificate not accepted&quot;), until its fingerprint stands in the inventory.</source>
        <translation>证书未经机构签发的 https 摄像机起初会被拒绝（“证书不被接受”），直到清单中有其指纹为止。</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>搜索所有列 (%1)</translation>
    </message>
    <message>
        <source>All</source>
        <comment>network interfaces</comment>
        <translation>全部</translation>
    </message>
    <message>
        <source>&amp;Network interface</source>
        <translation>网络接口(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>Asks all ONVIF cameras of the local network to answer; nothing is sent before</source>
        <translation>请求本地网络中的所有 ONVIF 摄像机应答；在此之前不发送任何内容</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>用户名(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
    <message>
        <source>Goes into the inventory file, which only you can read, and nowhere else</source>
        <translation>只写入清单文件，该文件只有您能读取</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>组(&amp;G)</translation>
    </message>
    <message>
        <source>To choose devices by, such as a building; may be empty</source>
        <translation>供选择设备时使用，例如一栋楼；可以为空</translation>
    </message>
    <message>
        <source>&amp;Add to inventory</source>
        <translation>添加到清单(&amp;A)</translation>
    </message>
    <message>
        <source>Puts the ticked cameras that are shown into the inventory, with this account</source>
        <translation>将显示且已勾选的摄像机连同此账户添加到清单</translation>
    </message>
    <message>
        <source>&amp;Tick new ones</source>
        <translation>勾选新的(&amp;T)</translation>
    </message>
    <message>
        <source>Ticks what is shown and not in the inventory yet, but for cameras that say they are elsewhere than where their answer came from</source>
        <translation>勾选显示且尚未在清单中的摄像机，但自称地址与应答来源不同的除外</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在查找…</translation>
    </message>
    <message>
        <source>No camera has answered. Cameras answer only within the same network, and only while their discovery (WS-Discovery) is switched on.</source>
        <translation>没有摄像机应答。摄像机只在同一网络内应答，而且须开启其发现功能 (WS-Discovery)。</translation>
    </message>
    <message>
        <source>&quot;Find&quot; asks all ONVIF cameras of the local network to answer.</source>
        <translation>按“查找”会请求本地网络中的所有 ONVIF 摄像机应答。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s) found</source>
        <translation>
            <numerusform>找到 %Ln 台摄像机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>已勾选 %Ln 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked but hidden by the search, and left out</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>%Ln 台勾选的摄像机被搜索隐藏，不会添加</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from %2: %3</source>
        <translation>%1（来自 %2）：%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and an address</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 answered and says that it is at %2</source>
        <translation>%1 应答，自称地址为 %2</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <comment>cameras</comment>
        <translation>
            <numerusform>以及另外 %Ln 台</numerusform>
        </translation>
    </message>
    <message>
        <source>Whoever is at these addresses will be signed on to:</source>
        <translation>程序将登录到这些地址上的任何设备：</translation>
    </message>
    <message>
        <source>Without a user name hardly any camera lets itself be configured.</source>
        <translation>没有用户名，几乎所有摄像机都无法配置。</translation>
    </message>
    <message>
        <source>You will be asked where to save a new inventory.</source>
        <translation>程序会询问新清单的保存位置。</translation>
    </message>
    <message>
        <source>They are added to %1.</source>
        <translation>它们将添加到 %1。</translation>
    </message>
    <message>
        <source>Nothing was added: these say that they are at the same address. Tick one of them only.</source>
        <translation>未添加任何内容：以下摄像机自称在同一地址。请只勾选其中一台。</translation>
    </message>
    <message>
        <source>Add to inventory</source>
        <translation>添加到清单</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln camera(s) to the inventory?</source>
        <translation>
            <numerusform>将 %Ln 台摄像机添加到清单？</numerusform>
        </translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
</context>
<context>
    <name>orda_client::FirstSteps</name>
    <message>
        <source>&amp;Open inventory…</source>
        <translation>打开清单(&amp;O)…</translation>
    </message>
    <message>
        <source>Opened last:</source>
        <translation>最近打开：</translation>
    </message>
    <message>
        <source>Which devices are to be configured?</source>
        <translation>要配置哪些设备？</translation>
    </message>
    <message>
        <source>Open an inventory</source>
        <translation>打开清单</translation>
    </message>
    <message>
        <source>An inventory is a file that lists the devices of a site and how they are reached.</source>
        <translation>清单是一个文件，列出某个站点的设备以及如何访问它们。</translation>
    </message>
    <message>
        <source>Bring cameras in</source>
        <translation>添加摄像机</translation>
    </message>
    <message>
        <source>&amp;Import devices from CSV…</source>
        <translation>从 CSV 导入设备(&amp;I)…</translation>
    </message>
    <message>
        <source>Try it out</source>
        <translation>试用</translation>
    </message>
    <message>
        <source>The demo brings simulated devices along, which end with it. No real device is written to.</source>
        <translation>演示附带模拟设备，演示结束后它们也随之消失。不会写入任何真实设备。</translation>
    </message>
    <message>
        <source>&amp;Number of devices</source>
        <translation>设备数量(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Start the demo</source>
        <translation>开始演示(&amp;S)</translation>
    </message>
    <message>
        <source>ONVIF cameras of the local network can be searched for and put into an inventory. Others are listed in a spreadsheet, each on a line of its own, with the columns id, ip and port, and where they are needed name, serialNumber, userName, password and others, which the manual names. Saved as CSV and imported here, the table becomes an inventory.</source>
        <translation>本地网络中的 ONVIF 摄像机可以查找并添加到清单。其他摄像机请列在电子表格中，每台一行，包含 id、ip 和 port 列，必要时还有 name、serialNumber、userName、password 以及手册中列出的其他列。将表格保存为 CSV 并在此导入，即成为清单。</translation>
    </message>
    <message>
        <source>Find &amp;cameras…</source>
        <translation>查找摄像机(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>orda_client::FormChanges</name>
    <message>
        <source>The page cannot send this value, and leaves it out: %1</source>
        <comment>parameter</comment>
        <translation>该页面无法发送此值，已略去：%1</translation>
    </message>
    <message>
        <source>The page would send this besides: %1</source>
        <comment>parameter</comment>
        <translation>该页面还会发送：%1</translation>
    </message>
    <message>
        <source>The values were loaded into the page. Nothing was sent to devices.</source>
        <translation>值已载入页面。未向设备发送任何内容。</translation>
    </message>
    <message>
        <source>The page does not have all of the values as they should be. Look at it before you press Configure:</source>
        <translation>页面上并非所有值都符合要求。请在按“配置”之前检查：</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln device(s) that differ in the device list, and no others.</source>
        <translation>
            <numerusform>已在设备列表中勾选 %Ln 台有差异设备中的 %1 台，未勾选其他设备。</numerusform>
        </translation>
    </message>
    <message>
        <source>The list&apos;s search was cleared: it hid some of them.</source>
        <translation>已清除列表的搜索：它隐藏了其中一些设备。</translation>
    </message>
    <message>
        <source>These are not in the list now:</source>
        <translation>以下设备当前不在列表中：</translation>
    </message>
</context>
<context>
    <name>orda_client::FoundModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Answered from</source>
        <translation>应答来源</translation>
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
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>says that it is at %1</source>
        <translation>自称地址为 %1</translation>
    </message>
    <message>
        <source>in the inventory already</source>
        <translation>已在清单中</translation>
    </message>
    <message>
        <source>new</source>
        <comment>a camera</comment>
        <translation>新</translation>
    </message>
</context>
<context>
    <name>orda_client::GroupsMenu</name>
    <message>
        <source>Save the &amp;ticks of the list as…</source>
        <translation>将列表中勾选的保存为(&amp;T)…</translation>
    </message>
    <message>
        <source>Save the selected &amp;rows as…</source>
        <translation>将所选的行保存为(&amp;R)…</translation>
    </message>
    <message>
        <source>Tick a group of the inventory:</source>
        <translation>勾选清单中的一个组：</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a group, how many devices it has</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>The inventory has no groups.</source>
        <translation>清单中没有组。</translation>
    </message>
    <message>
        <source>Tick a saved selection:</source>
        <translation>勾选一个已保存的选择：</translation>
    </message>
    <message>
        <source>Nothing is saved yet.</source>
        <translation>尚未保存任何选择。</translation>
    </message>
    <message>
        <source>&amp;Forget a saved selection</source>
        <translation>删除已保存的选择(&amp;F)</translation>
    </message>
    <message>
        <source>There is nothing to save: no device is ticked or selected.</source>
        <translation>没有可保存的内容：没有勾选或选中设备。</translation>
    </message>
    <message>
        <source>Save selection</source>
        <translation>保存选择</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Name for these %Ln device(s):</source>
        <translation>
            <numerusform>这 %Ln 台设备的名称(&amp;N)：</numerusform>
        </translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Not saved: there is a selection &quot;%1&quot; already. Forget it first, or take another name.</source>
        <translation>未保存：已有名为“%1”的选择。请先将其删除，或换一个名称。</translation>
    </message>
    <message numerus="yes">
        <source>Saved as &quot;%1&quot;: %Ln device(s).</source>
        <translation>
            <numerusform>已保存为“%1”：%Ln 台设备。</numerusform>
        </translation>
    </message>
    <message>
        <source>Forget selection</source>
        <translation>删除选择</translation>
    </message>
    <message>
        <source>Forget the saved selection &quot;%1&quot;? Its devices stay as they are.</source>
        <translation>要删除已保存的选择“%1”吗？其中的设备不受影响。</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>删除(&amp;F)</translation>
    </message>
    <message>
        <source>Forgot &quot;%1&quot;.</source>
        <translation>已删除“%1”。</translation>
    </message>
</context>
<context>
    <name>orda_client::ImportFaultsDialog</name>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <comment>of a table, its number</comment>
        <translation>列</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Import devices</source>
        <translation>导入设备</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s) in %1. Nothing has been imported.</source>
        <translation>
            <numerusform>%1 中有 %n 处错误。未导入任何内容。</numerusform>
        </translation>
    </message>
    <message>
        <source>What is wrong, line by line</source>
        <translation>逐行列出的问题</translation>
    </message>
    <message>
        <source>Export &amp;CSV…</source>
        <translation>导出 CSV(&amp;C)…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryAddition</name>
    <message>
        <source>Add to inventory</source>
        <translation>添加到清单</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; %3</source>
        <translation>%1：“%2”%3</translation>
    </message>
    <message numerus="yes">
        <source>Save the inventory of %n device(s)</source>
        <translation>
            <numerusform>保存含 %n 台设备的清单</numerusform>
        </translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>清单 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>Nothing was added to %1: %2.</source>
        <translation>未向 %1 添加任何内容：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryCsv</name>
    <message>
        <source>is not UTF-8; save the file as CSV in UTF-8</source>
        <translation>不是 UTF-8；请将文件另存为 UTF-8 编码的 CSV</translation>
    </message>
    <message>
        <source>wrong quotation marks: they stand around a whole cell, and one within it is written twice</source>
        <translation>引号有误：引号应括住整个单元格，其中的引号须写两次</translation>
    </message>
    <message>
        <source>is empty; a line with the names of the columns is expected, such as id, ip and port</source>
        <translation>为空；应有一行列名，例如 id、ip 和 port</translation>
    </message>
    <message>
        <source>ends after its head; a line for each device is expected</source>
        <translation>在表头之后结束；应为每台设备给出一行</translation>
    </message>
    <message>
        <source>the column is there already, as number %1</source>
        <translation>该列已存在，为第 %1 列</translation>
    </message>
    <message>
        <source>the column is missing; the first line names the columns, with &quot;,&quot; or &quot;;&quot; between them</source>
        <translation>缺少该列；第一行应列出列名，以“,”或“;”分隔</translation>
    </message>
    <message>
        <source>the number of cells is %1; it must be %2, as in the head</source>
        <translation>单元格数为 %1；应与表头一致，为 %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryImport</name>
    <message>
        <source>Import devices</source>
        <translation>导入设备</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>逗号分隔值 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 大于 %2 MiB。</translation>
    </message>
    <message numerus="yes">
        <source>Save the inventory of %n device(s)</source>
        <translation>
            <numerusform>保存含 %n 台设备的清单</numerusform>
        </translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>清单 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>These columns are no fields of an inventory and were left out: %1.</source>
        <translation>以下列不是清单的字段，已略去：%1。</translation>
    </message>
</context>
<context>
    <name>orda_client::InventoryOpener</name>
    <message>
        <source>Open inventory</source>
        <translation>打开清单</translation>
    </message>
    <message>
        <source>Inventories (*.json);;All files (*)</source>
        <translation>清单 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 is no longer there. It has been taken off the list of the last inventories.</source>
        <translation>%1 已不存在，已将其从最近打开的列表中移除。</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>演示</translation>
    </message>
    <message>
        <source>A run is going on over the devices of this inventory. Open another when it has ended.</source>
        <translation>正在对此清单中的设备运行配置。请在运行结束后再打开其他清单。</translation>
    </message>
    <message>
        <source>The devices of this inventory are being read or configured. Open another when that has ended.</source>
        <translation>正在读取或配置此清单中的设备。请在结束后再打开其他清单。</translation>
    </message>
</context>
<context>
    <name>orda_client::LastOutcomes</name>
    <message>
        <source>%1: %2</source>
        <comment>parameters, outcome</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>orda_client::ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
</context>
<context>
    <name>orda_client::PageLoader</name>
    <message>
        <source>A run is going on. Load the values when it has ended.</source>
        <translation>运行正在进行。请在运行结束后再载入值。</translation>
    </message>
    <message>
        <source>The form has no page for these values.</source>
        <translation>表单中没有适用于这些值的页面。</translation>
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
    <name>orda_client::ParameterTexts</name>
    <message>
        <source>on</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <comment>parameter, before, after</comment>
        <translation>%1：%2 → %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>parameter, value</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>online service set by hand</source>
        <translation>手动设置在线服务</translation>
    </message>
    <message>
        <source>business service set by hand</source>
        <translation>手动设置业务服务</translation>
    </message>
</context>
<context>
    <name>orda_client::PlanGroupList</name>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>All devices of the preview</source>
        <translation>预览中的所有设备</translation>
    </message>
    <message>
        <source>Would change</source>
        <translation>将更改</translation>
    </message>
    <message>
        <source>Devices on which Configure would change something</source>
        <translation>“配置”会更改的设备</translation>
    </message>
    <message>
        <source>Have it already</source>
        <translation>无需更改</translation>
    </message>
    <message>
        <source>Devices that hold these values already</source>
        <translation>已是这些值的设备</translation>
    </message>
    <message>
        <source>Lack a parameter</source>
        <translation>缺少参数</translation>
    </message>
    <message>
        <source>Devices that do not have all of these parameters. What they have may change all the same</source>
        <translation>不具备全部这些参数的设备，其已有的参数仍可能更改</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>未连上</translation>
    </message>
    <message>
        <source>Devices that cannot be written to now</source>
        <translation>目前无法写入的设备</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>读取失败</translation>
    </message>
    <message>
        <source>Devices that refused to be read, or did not answer</source>
        <translation>拒绝读取或没有应答的设备</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>Devices that have not answered yet, or were not waited for</source>
        <translation>尚未应答或未等待其应答的设备</translation>
    </message>
</context>
<context>
    <name>orda_client::PressGuard</name>
    <message>
        <source>Configure asks first whether this is meant.</source>
        <translation>“配置”会先询问是否确实如此。</translation>
    </message>
</context>
<context>
    <name>orda_client::PressLine</name>
    <message>
        <source>Pre&amp;view…</source>
        <translation>预览(&amp;V)…</translation>
    </message>
    <message>
        <source>Shows what Configure would change on each ticked device. Nothing is written.</source>
        <translation>显示“配置”会在每台勾选的设备上更改什么。不写入任何内容。</translation>
    </message>
    <message>
        <source>Looks wrong: %1</source>
        <translation>可能有误：%1</translation>
    </message>
</context>
<context>
    <name>orda_client::PressQuestion</name>
    <message>
        <source>Configure devices</source>
        <translation>配置设备</translation>
    </message>
    <message numerus="yes">
        <source>Configure %Ln device(s)?</source>
        <translation>
            <numerusform>要配置 %Ln 台设备吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>What would be written is no longer what you were asked about.</source>
        <translation>将要写入的内容已与先前询问的不同。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>devices, remark</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Looks wrong:</source>
        <translation>可能有误：</translation>
    </message>
    <message>
        <source>No parameter: devices would be written what they hold.</source>
        <translation>没有参数：只会向设备写入其已有的内容。</translation>
    </message>
    <message>
        <source>&amp;Values that would be written:</source>
        <translation>将要写入的值(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Preview…</source>
        <translation>预览(&amp;P)…</translation>
    </message>
    <message>
        <source>C&amp;onfigure</source>
        <translation>配置(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>orda_client::PressTexts</name>
    <message>
        <source>No stream is ticked on this page</source>
        <translation>此页面上没有勾选码流</translation>
    </message>
    <message>
        <source>Nothing is ticked on this page</source>
        <translation>此页面上没有勾选任何内容</translation>
    </message>
    <message>
        <source>No device is ticked</source>
        <translation>没有勾选设备</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>sentence, remark</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>No device is left to configure</source>
        <translation>没有可配置的设备</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>to which something is written</comment>
        <translation>
            <numerusform>%Ln 台设备</numerusform>
        </translation>
    </message>
    <message>
        <source>No ticked parameter applies, but this would be written to: %1</source>
        <translation>勾选的参数均不适用，但仍会写入：%1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>parameters, devices</comment>
        <translation>写入 %2：%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parameter(s)</source>
        <translation>
            <numerusform>%Ln 个参数</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked device(s) hidden by the search and left out</source>
        <translation>
            <numerusform>%Ln 台勾选的设备被搜索隐藏，不会配置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>%Ln 台摄像机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln recorder(s)</source>
        <translation>
            <numerusform>%Ln 台录像机</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>cameras, recorders</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>orda_client::PreviewModel</name>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>将更改的内容</translation>
    </message>
    <message>
        <source>added, as the device does not have it: %1</source>
        <comment>parameter: nothing → value</comment>
        <translation>新增（设备原来没有）：%1</translation>
    </message>
    <message>
        <source>the device lacks %1</source>
        <comment>parameter</comment>
        <translation>设备缺少：%1</translation>
    </message>
    <message>
        <source>Would change</source>
        <translation>将更改</translation>
    </message>
    <message>
        <source>Has it already</source>
        <translation>无需更改</translation>
    </message>
    <message>
        <source>Cannot be set</source>
        <comment>the device lacks the parameters</comment>
        <translation>无法设置</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>未连上</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>读取失败</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>未读取</translation>
    </message>
</context>
<context>
    <name>orda_client::PreviewWindow</name>
    <message>
        <source>About the preview</source>
        <translation>关于此预览</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Nothing was looked at yet.</source>
        <translation>尚未预览。</translation>
    </message>
    <message>
        <source>Searches all columns (%1)</source>
        <translation>搜索所有列 (%1)</translation>
    </message>
    <message>
        <source>Devices by outcome</source>
        <translation>按结果分组的设备</translation>
    </message>
    <message>
        <source>Devices and what would change on them</source>
        <translation>设备及其将更改的内容</translation>
    </message>
    <message>
        <source>Configure the ones that &amp;change</source>
        <translation>配置将更改的设备(&amp;C)</translation>
    </message>
    <message>
        <source>Ticks exactly the devices that would change, and presses Configure</source>
        <translation>只勾选将更改的设备，并按“配置”</translation>
    </message>
    <message>
        <source>Preview &amp;again</source>
        <translation>重新预览(&amp;A)</translation>
    </message>
    <message>
        <source>Plans anew, with the page that is shown and the devices that are ticked now</source>
        <translation>按当前显示的页面和勾选的设备重新预览</translation>
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
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>The form is closed.</source>
        <translation>表单已关闭。</translation>
    </message>
    <message>
        <source>The form shows no page that can be configured.</source>
        <translation>表单当前显示的页面无法配置。</translation>
    </message>
    <message>
        <source>Configure would send nothing: no parameter is ticked on the page, or no stream. Tick what is to be set, then press &quot;Preview again&quot;.</source>
        <translation>“配置”不会发送任何内容：页面上没有勾选参数或码流。请勾选要设置的内容，然后按“重新预览”。</translation>
    </message>
    <message>
        <source>All ticked devices are hidden by the search of the list, and Configure leaves hidden devices out. Clear the search, then press &quot;Preview again&quot;.</source>
        <translation>勾选的设备都被列表的搜索隐藏，“配置”会略过隐藏的设备。请清除搜索，然后按“重新预览”。</translation>
    </message>
    <message>
        <source>No device is ticked in the list. Tick the devices, then press &quot;Preview again&quot;.</source>
        <translation>列表中没有勾选设备。请勾选设备，然后按“重新预览”。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parameter(s)</source>
        <translation>
            <numerusform>%Ln 个参数</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>to which parameters are sent</comment>
        <translation>
            <numerusform>%Ln 台设备</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln ticked device(s) are hidden by the search of the list and left out.</source>
        <translation>
            <numerusform>%Ln 台勾选的设备被列表的搜索隐藏，不会配置。</numerusform>
        </translation>
    </message>
    <message>
        <source>The devices were not read: %1 Press &quot;Preview again&quot; afterwards.</source>
        <translation>未读取设备：%1 之后请按“重新预览”。</translation>
    </message>
    <message>
        <source>No device of the preview fits the search and the choice beside it.</source>
        <translation>预览中没有设备符合搜索和旁边的筛选条件。</translation>
    </message>
    <message>
        <source>There is no preview yet.</source>
        <translation>尚无预览。</translation>
    </message>
    <message>
        <source>A run has begun since, and devices may have changed. Press &quot;Preview again&quot;.</source>
        <translation>之后已开始一次运行，设备可能已更改。请按“重新预览”。</translation>
    </message>
    <message>
        <source>The page has changed since: it would send something else. Press &quot;Preview again&quot;.</source>
        <translation>页面之后有变化，将发送不同的内容。请按“重新预览”。</translation>
    </message>
    <message numerus="yes">
        <source>The preview was stopped, and %Ln device(s) were not read. Press &quot;Preview again&quot; to read all.</source>
        <translation>
            <numerusform>预览已停止，有 %Ln 台设备未读取。按“重新预览”可读取全部。</numerusform>
        </translation>
    </message>
    <message>
        <source>A run is going on.</source>
        <translation>运行正在进行。</translation>
    </message>
    <message>
        <source>No device would change: there is nothing to configure.</source>
        <translation>没有设备会更改：无需配置。</translation>
    </message>
    <message>
        <source>The inventory has changed since. Press &quot;Preview again&quot;.</source>
        <translation>清单之后有变化。请按“重新预览”。</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>%1: %2 to %3, as of %4. A preview writes nothing.</source>
        <comment>page, parameters, devices, time</comment>
        <translation>%1：%2，%3，截至 %4。预览不写入任何内容。</translation>
    </message>
    <message>
        <source>The search is on. All devices that change would be configured, and not only those that are shown: clear the search first.</source>
        <translation>搜索正在使用中。将配置所有会更改的设备，而不只是显示的设备：请先清除搜索。</translation>
    </message>
</context>
<context>
    <name>orda_client::Question</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>orda_client::ReadingBar</name>
    <message>
        <source>&amp;Stop</source>
        <comment>reading</comment>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Devices that were read</source>
        <translation>已读取的设备</translation>
    </message>
    <message>
        <source>Does not wait for the devices that have not answered yet. Nothing was written to any.</source>
        <translation>不再等待尚未应答的设备。未写入任何设备。</translation>
    </message>
    <message>
        <source>Reading devices: %1 of %2</source>
        <translation>正在读取设备：%1 / %2</translation>
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
    <name>orda_client::RecordWindow</name>
    <message>
        <source>Unreadable entries</source>
        <translation>无法读取的条目</translation>
    </message>
    <message>
        <source>Open record file</source>
        <translation>打开记录文件</translation>
    </message>
    <message>
        <source>Record files (*_record.txt);;All files (*)</source>
        <translation>记录文件 (*_record.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Failures by message</source>
        <translation>按消息分组的失败</translation>
    </message>
    <message>
        <source>Record: %1</source>
        <comment>file name</comment>
        <translation>记录：%1</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>本次运行的设备</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses and messages</source>
        <translation>搜索名称、序列号、地址和消息</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>显示(&amp;H)：</translation>
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
        <source>Failures by &amp;message</source>
        <translation>按消息分组的失败(&amp;M)</translation>
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
        <source>The record %1 is not read: %2.</source>
        <translation>未读取记录 %1：%2。</translation>
    </message>
    <message>
        <source>The record %1 has no result.</source>
        <translation>记录 %1 中没有结果。</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>Tick failed again</source>
        <translation>重新勾选失败的设备</translation>
    </message>
    <message>
        <source>A run is going on over the ticked devices. Tick others when it has ended.</source>
        <translation>正在对勾选的设备运行配置。请在运行结束后再勾选其他设备。</translation>
    </message>
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
<context>
    <name>orda_client::RemoteConfigDialog</name>
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
</context>
<context>
    <name>orda_client::RunCheck</name>
    <message>
        <source>Differs</source>
        <translation>有差异</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>将撤销</translation>
    </message>
    <message>
        <source>Goes back in part</source>
        <translation>将部分撤销</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>保持不变</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>未连上</translation>
    </message>
    <message>
        <source>Another device</source>
        <translation>不是原来的设备</translation>
    </message>
    <message>
        <source>Already back</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>与写入的一致</translation>
    </message>
    <message>
        <source>its serial number is another one by now: it is left out</source>
        <translation>其序列号现已不同：不予处理</translation>
    </message>
    <message>
        <source>changed since and written over: %1</source>
        <translation>之后被更改，将被覆盖：%1</translation>
    </message>
    <message>
        <source>changed since and left: %1</source>
        <translation>之后被更改，保持不变：%1</translation>
    </message>
    <message>
        <source>not there before and cannot be taken out: %1</source>
        <translation>之前不存在且无法移除：%1</translation>
    </message>
    <message>
        <source>Is written over</source>
        <translation>将被覆盖</translation>
    </message>
</context>
<context>
    <name>orda_client::RunCheckModel</name>
    <message>
        <source>State</source>
        <translation>状态</translation>
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
        <source>Written → now</source>
        <translation>写入 → 现在</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Now → after the undo</source>
        <translation>现在 → 撤销后</translation>
    </message>
</context>
<context>
    <name>orda_client::RunCheckWindow</name>
    <message>
        <source>Verify: %1, %2</source>
        <comment>parameters, time</comment>
        <translation>核实：%1，%2</translation>
    </message>
    <message>
        <source>Undo: %1, %2</source>
        <comment>parameters, time</comment>
        <translation>撤销：%1，%2</translation>
    </message>
    <message>
        <source>Devices of the run</source>
        <translation>本次运行的设备</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses, changes and notes</source>
        <translation>搜索名称、序列号、地址、更改和备注</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>显示(&amp;H)：</translation>
    </message>
    <message>
        <source>Not as written</source>
        <translation>与写入的不一致</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>与写入的一致</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>将撤销</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>之后被更改</translation>
    </message>
    <message>
        <source>Nothing goes back</source>
        <translation>无需撤销</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Ends the reading; nothing is written</source>
        <translation>结束读取；不写入任何内容</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>重新读取(&amp;R)</translation>
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
    <message numerus="yes">
        <source>Reading: %1 of %Ln device(s).</source>
        <translation>
            <numerusform>正在读取：%1 / %Ln 台设备。</numerusform>
        </translation>
    </message>
    <message>
        <source>Devices: %1</source>
        <translation>设备：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state, number of devices</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>What the devices hold is being read.</source>
        <translation>正在读取设备的当前内容。</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Write over what was changed since the run on %Ln device(s), too</source>
        <translation>
            <numerusform>同时覆盖运行之后在 %Ln 台设备上更改的内容(&amp;W)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo…</source>
        <translation>撤销(&amp;U)…</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo on %Ln device(s)…</source>
        <translation>
            <numerusform>在 %Ln 台设备上撤销(&amp;U)…</numerusform>
        </translation>
    </message>
    <message>
        <source>Parameters: %1</source>
        <translation>参数：%1</translation>
    </message>
    <message>
        <source>Run of %1</source>
        <comment>time</comment>
        <translation>运行时间：%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln other device(s) of the run are left out: they are not selected, nothing goes back on them, or they were not read.</source>
        <translation>
            <numerusform>此运行的另外 %Ln 台设备不予处理：未选中、没有可撤销的内容，或未读取。</numerusform>
        </translation>
    </message>
    <message>
        <source>What was changed since the run is written over, too.</source>
        <translation>运行之后更改的内容也会被覆盖。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>A run has begun since, and devices may have changed. Press &quot;Read again&quot;.</source>
        <translation>之后已开始一次运行，设备可能已更改。请按“重新读取”。</translation>
    </message>
    <message>
        <source>The inventory has changed since. Press &quot;Read again&quot;.</source>
        <translation>清单之后有变化。请按“重新读取”。</translation>
    </message>
    <message>
        <source>Takes the run back on the selected devices, or on all that are shown, where something goes back</source>
        <translation>在所选设备（或显示的、有内容可撤销的所有设备）上撤销此运行</translation>
    </message>
    <message numerus="yes">
        <source>Undo the run on %Ln device(s)?</source>
        <translation>
            <numerusform>要在 %Ln 台设备上撤销此运行吗？</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunComparisonModel</name>
    <message>
        <source>Other outcome</source>
        <translation>结果不同</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>值不同</translation>
    </message>
    <message>
        <source>Only in the first</source>
        <translation>仅在第一次</translation>
    </message>
    <message>
        <source>Only in the second</source>
        <translation>仅在第二次</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比较</translation>
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
        <source>First outcome</source>
        <translation>第一次结果</translation>
    </message>
    <message>
        <source>Second outcome</source>
        <translation>第二次结果</translation>
    </message>
    <message>
        <source>Read before</source>
        <translation>之前读取</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>写入</translation>
    </message>
</context>
<context>
    <name>orda_client::RunComparisonWindow</name>
    <message>
        <source>Devices of both runs</source>
        <translation>两次运行的设备</translation>
    </message>
    <message>
        <source>Searches names, serial numbers, addresses, outcomes and values</source>
        <translation>搜索名称、序列号、地址、结果和值</translation>
    </message>
    <message>
        <source>Compare runs: %1</source>
        <translation>比较运行：%1</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>显示(&amp;H)：</translation>
    </message>
    <message>
        <source>The runs are being read.</source>
        <translation>正在读取运行。</translation>
    </message>
    <message>
        <source>First: %1</source>
        <translation>第一次：%1</translation>
    </message>
    <message>
        <source>Second: %1</source>
        <translation>第二次：%1</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>导出 CSV(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>The history does not have both runs any more.</source>
        <translation>历史记录中已不再有这两次运行。</translation>
    </message>
</context>
<context>
    <name>orda_client::RunDeviceModel</name>
    <message>
        <source>%1: %2</source>
        <comment>outcome, message</comment>
        <translation>%1：%2</translation>
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
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Before → after</source>
        <translation>之前 → 之后</translation>
    </message>
    <message>
        <source>%1 (it answered later)</source>
        <comment>message</comment>
        <translation>%1（之后有应答）</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <comment>parameters with before → after</comment>
        <translation>未写入：%1</translation>
    </message>
    <message>
        <source>perhaps written: %1</source>
        <comment>parameters with before → after</comment>
        <translation>可能已写入：%1</translation>
    </message>
    <message>
        <source>partly written: %1</source>
        <comment>parameters with before → after</comment>
        <translation>部分写入：%1</translation>
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
        <source>%n device(s) not reached</source>
        <translation>
            <numerusform>%n 台设备未连上</numerusform>
        </translation>
    </message>
    <message>
        <source>--run is for demos and pictures: it writes the form&apos;s default values. orda_batch(1) sets values of your own.</source>
        <translation>--run 用于演示和截图：它写入表单的默认值。要设置自己的值，请使用 orda_batch(1)。</translation>
    </message>
    <message numerus="yes">
        <source>%n of the given devices is off line or may not be configured</source>
        <translation>
            <numerusform>指定的设备中有 %n 台离线或不允许配置</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunJobs</name>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
</context>
<context>
    <name>orda_client::RunListModel</name>
    <message>
        <source>Began</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>用时</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>orda_client::RunProgress</name>
    <message>
        <source>Known to be off line: %1</source>
        <translation>已知离线：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <comment>names of devices</comment>
        <translation>
            <numerusform>%1 以及另外 %Ln 台</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>device, why it failed</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Latest failures: %1</source>
        <translation>最近失败：%1</translation>
    </message>
    <message>
        <source>Devices of the run that have their result</source>
        <translation>本次运行中已有结果的设备</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>What has not left yet is not sent (%1)</source>
        <translation>尚未发出的不再发送 (%1)</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Halted, because more than %1 % of the devices have failed</source>
        <translation>已自动停止，因为超过 %1 % 的设备失败</translation>
    </message>
    <message>
        <source>%1. What has not left yet is not sent; what has been written stays written: %2</source>
        <comment>why, devices</comment>
        <translation>%1。尚未发出的不再发送；已写入的保持不变：%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s)</source>
        <comment>that were written to</comment>
        <translation>
            <numerusform>%Ln 台设备</numerusform>
        </translation>
    </message>
    <message>
        <source>waiting for answers</source>
        <translation>正在等待应答</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>剩余不到一分钟</translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>剩余约 %Ln 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln done</source>
        <comment>devices</comment>
        <translation>
            <numerusform>完成 %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>devices</comment>
        <translation>
            <numerusform>失败 %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <comment>devices</comment>
        <translation>
            <numerusform>未连上 %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln stopped</source>
        <comment>devices</comment>
        <translation>
            <numerusform>已停止 %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left</source>
        <comment>devices</comment>
        <translation>
            <numerusform>剩余 %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Written: %1</source>
        <comment>devices</comment>
        <translation>已写入：%1</translation>
    </message>
    <message>
        <source>partly written: %1</source>
        <comment>devices</comment>
        <translation>部分写入：%1</translation>
    </message>
    <message>
        <source>perhaps written: %1</source>
        <comment>devices</comment>
        <translation>可能已写入：%1</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <comment>devices</comment>
        <translation>未写入：%1</translation>
    </message>
    <message>
        <source>of these not reached: %1</source>
        <comment>devices</comment>
        <translation>其中未连上：%1</translation>
    </message>
    <message>
        <source>Sho&amp;w run</source>
        <translation>显示运行(&amp;W)</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>why it has stopped, counts</comment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>unchanged: %1</source>
        <comment>devices</comment>
        <translation>未更改：%1</translation>
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
</context>
<context>
    <name>orda_client::RunTargets</name>
    <message>
        <source>%1: now it is another device, with the serial number %2</source>
        <translation>%1：现在是另一台设备，序列号为 %2</translation>
    </message>
    <message>
        <source>This program does not know the parameters of the run.</source>
        <translation>本程序不认识此运行的参数。</translation>
    </message>
    <message>
        <source>The run is still under way.</source>
        <translation>该运行仍在进行中。</translation>
    </message>
    <message>
        <source>This run has taken another one back. To try that again, undo the other run again.</source>
        <translation>此运行撤销了另一次运行。要重试，请再次撤销那次运行。</translation>
    </message>
    <message>
        <source>%1: the run has no values for it</source>
        <translation>%1：此运行中没有它的值</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <comment>devices</comment>
        <translation>
            <numerusform>……以及另外 %n 台</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orda_client::RunTexts</name>
    <message>
        <source>Configured</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo of %1</source>
        <comment>time</comment>
        <translation>撤销 %1 的运行</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>未更改</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Partly written</source>
        <translation>部分写入</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>未连上</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>有差异</translation>
    </message>
    <message>
        <source>Under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不详</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>ended with its program</source>
        <translation>随程序一同终止</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>outcome, number of devices</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>orda_client::RunsWindow</name>
    <message>
        <source>Runs</source>
        <translation>运行记录</translation>
    </message>
    <message>
        <source>Runs, latest first</source>
        <translation>运行记录，最新的在前</translation>
    </message>
    <message>
        <source>Searches times, parameters, outcomes, programs and values</source>
        <translation>搜索时间、参数、结果、程序和值</translation>
    </message>
    <message>
        <source>&amp;Runs:</source>
        <translation>运行(&amp;R)：</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>所有运行</translation>
    </message>
    <message>
        <source>With devices that are not done</source>
        <translation>有设备未完成</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>The history is being read.</source>
        <translation>正在读取历史记录。</translation>
    </message>
    <message>
        <source>Com&amp;pare two runs</source>
        <translation>比较两次运行(&amp;P)</translation>
    </message>
    <message>
        <source>Select two runs of the same parameters, the second one with Ctrl</source>
        <translation>选中参数相同的两次运行，选第二次时按住 Ctrl</translation>
    </message>
    <message>
        <source>Open record &amp;file…</source>
        <translation>打开记录文件(&amp;F)…</translation>
    </message>
    <message>
        <source>Shows the record file of a run, as older versions wrote it too</source>
        <translation>显示一次运行的记录文件，包括旧版本写入的</translation>
    </message>
    <message>
        <source>Configures the selected devices, or those of the chosen group of failures, with the values of this run</source>
        <translation>用此运行的值配置所选的设备，或所选失败分组中的设备</translation>
    </message>
    <message>
        <source>&amp;Verify</source>
        <translation>核实(&amp;V)</translation>
    </message>
    <message>
        <source>Reads the selected devices, or all, and shows what is not as the run has left it</source>
        <translation>读取所选或所有设备，显示与此运行结束时不一致的内容</translation>
    </message>
    <message>
        <source>&amp;Undo…</source>
        <translation>撤销(&amp;U)…</translation>
    </message>
    <message>
        <source>Shows what taking the run back would write, on the selected devices or on all</source>
        <translation>显示撤销此运行会向所选或所有设备写入什么</translation>
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
        <source>No run yet. Tick devices and parameters in the form and press Configure; what came of each device is then listed here.</source>
        <translation>尚无运行。请在表单中勾选设备和参数并按“配置”；随后此处将列出每台设备的结果。</translation>
    </message>
    <message numerus="yes">
        <source>A run is going on: %1 of %Ln device(s) have their outcome.</source>
        <translation>
            <numerusform>运行正在进行：%Ln 台设备中 %1 台已有结果。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Try again on %Ln device(s)…</source>
        <translation>
            <numerusform>在 %Ln 台设备上重试(&amp;T)…</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again…</source>
        <translation>重试(&amp;T)…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln device(s) get values of their own, as in this run.</source>
        <translation>
            <numerusform>%Ln 台设备使用各自的值，与此运行相同。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them cannot be written to now and will end as not reached.</source>
        <translation>
            <numerusform>其中 %Ln 台目前无法写入，结果将为“未连上”。</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>未纳入：</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message numerus="yes">
        <source>%1: configure %Ln device(s) again with the values of this run?</source>
        <comment>parameters</comment>
        <translation>
            <numerusform>%1：要用此运行的值重新配置 %Ln 台设备吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>A run is going on.</source>
        <translation>运行正在进行。</translation>
    </message>
    <message>
        <source>&amp;Stop the run</source>
        <translation>停止运行(&amp;B)</translation>
    </message>
    <message>
        <source>What has not left yet is not sent; what has been written stays written</source>
        <translation>尚未发出的不再发送；已写入的保持不变</translation>
    </message>
</context>
<context>
    <name>orda_client::SearchedTable</name>
    <message>
        <source>Nothing here fits the search and the choice above.</source>
        <translation>没有内容符合上方的搜索和筛选条件。</translation>
    </message>
</context>
<context>
    <name>orda_client::SettingsDialog</name>
    <message>
        <source>Sto&amp;p a run by itself when more of its devices have failed than</source>
        <translation>失败设备超过此比例时自动停止运行(&amp;P)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>As the system</source>
        <comment>the language</comment>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <comment>the theme</comment>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>the theme</comment>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>the theme</comment>
        <translation>深色</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>Another language and another theme are there when the client is started next.</source>
        <translation>更改的语言和主题将在下次启动时生效。</translation>
    </message>
    <message>
        <source> %</source>
        <comment>per cent</comment>
        <translation> %</translation>
    </message>
    <message>
        <source>Share of failed devices that stops a run</source>
        <translation>使运行停止的失败设备比例</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>&amp;Ask before a run over more devices than</source>
        <translation>运行的设备超过此数时先询问(&amp;A)</translation>
    </message>
    <message>
        <source>With 0 devices the client asks before every run.</source>
        <translation>设为 0 台时，每次运行前都会询问。</translation>
    </message>
    <message>
        <source>File of the history</source>
        <translation>历史记录文件</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>What runs have done to devices is kept in this file:</source>
        <translation>各次运行对设备所做的更改保存在此文件中：</translation>
    </message>
    <message numerus="yes">
        <source>Runs are removed after %n day(s), and the oldest ones earlier when the file grows beyond %1 MiB.</source>
        <translation>
            <numerusform>运行在 %n 天后删除；文件超过 %1 MiB 时，最早的会提前删除。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The latest %n run(s) always stay.</source>
        <translation>
            <numerusform>最近的 %n 次运行始终保留。</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>orda_client::StandardBar</name>
    <message>
        <source>Stan&amp;dard:</source>
        <translation>标准(&amp;D)：</translation>
    </message>
    <message>
        <source>Take as &amp;model</source>
        <translation>以此为样板(&amp;M)</translation>
    </message>
    <message>
        <source>Compares the others with the device that is chosen below</source>
        <translation>将其他设备与下方选中的设备比较</translation>
    </message>
    <message>
        <source>&amp;Load into the page</source>
        <translation>载入页面(&amp;L)</translation>
    </message>
    <message>
        <source>Ticks the parameters of the standard on the page, and no others, and gives them its values</source>
        <translation>在页面上只勾选标准中的参数，并填入标准的值</translation>
    </message>
    <message>
        <source>Sa&amp;ve as profile…</source>
        <translation>保存为方案(&amp;V)…</translation>
    </message>
    <message>
        <source>Keeps the values of the standard under a name</source>
        <translation>以一个名称保存标准的值</translation>
    </message>
    <message>
        <source>&amp;Forget profile</source>
        <translation>删除方案(&amp;F)</translation>
    </message>
    <message>
        <source>Removes the profile that is chosen as the standard</source>
        <translation>删除当前选作标准的方案</translation>
    </message>
    <message>
        <source>The values of the page as they are now</source>
        <translation>页面当前的值</translation>
    </message>
    <message>
        <source>The value that most devices have, for each setting</source>
        <translation>各项设置中多数设备的值</translation>
    </message>
    <message>
        <source>The device %1</source>
        <translation>设备 %1</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot;</source>
        <translation>方案“%1”</translation>
    </message>
    <message>
        <source>Save as profile</source>
        <translation>保存为方案</translation>
    </message>
    <message>
        <source>Name of the profile. One that has this name already is replaced.</source>
        <translation>方案名称。已有的同名方案将被替换。</translation>
    </message>
    <message>
        <source>Forget profile</source>
        <translation>删除方案</translation>
    </message>
    <message>
        <source>Forget the profile &quot;%1&quot;?</source>
        <translation>要删除方案“%1”吗？</translation>
    </message>
    <message>
        <source>Forget</source>
        <comment>a profile</comment>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>orda_client::TickNote</name>
    <message>
        <source>Devices that are not ticked</source>
        <translation>未勾选的设备</translation>
    </message>
    <message>
        <source>The form is closed. Nothing was ticked.</source>
        <translation>表单已关闭。未勾选任何设备。</translation>
    </message>
    <message>
        <source>A run is going on. Until it has ended nothing is ticked.</source>
        <translation>运行正在进行。结束之前不会勾选任何设备。</translation>
    </message>
    <message numerus="yes">
        <source>Ticked %1 of %Ln device(s) in the device list, and no others.</source>
        <translation>
            <numerusform>已在设备列表中勾选 %Ln 台设备中的 %1 台，未勾选其他设备。</numerusform>
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
    <message>
        <source>%1: not in the inventory</source>
        <comment>id of a device</comment>
        <translation>%1：不在清单中</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>device, why it is not ticked</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: it is another device than was saved</source>
        <comment>device</comment>
        <translation>%1：与保存时不是同一台设备</translation>
    </message>
    <message>
        <source>came online just now, and is not in the list yet</source>
        <translation>刚刚上线，尚未出现在列表中</translation>
    </message>
</context>
<context>
    <name>orda_client::TickTheseDialog</name>
    <message>
        <source>Tick these devices</source>
        <translation>按名单勾选设备</translation>
    </message>
    <message>
        <source>&amp;Serial numbers, names or addresses, one on a line or with commas, semicolons or tabs between them:</source>
        <translation>序列号、名称或地址，每行一个，或以逗号、分号或制表符分隔(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Load a file…</source>
        <translation>载入文件(&amp;L)…</translation>
    </message>
    <message>
        <source>What of the list is not ticked</source>
        <translation>名单中不勾选的项</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Load a list of devices</source>
        <translation>载入设备名单</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>名单 (*.csv *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>无法读取文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 is too large for a list of devices.</source>
        <translation>文件 %1 过大，不像是设备名单。</translation>
    </message>
    <message>
        <source>The file %1 is no text in UTF-8. Save it as CSV or text in UTF-8.</source>
        <translation>文件 %1 不是 UTF-8 文本。请将其保存为 UTF-8 编码的 CSV 或文本。</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Tick %Ln device(s)</source>
        <translation>
            <numerusform>勾选 %Ln 台设备(&amp;T)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a text, the devices that it fits</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Fits no device:</source>
        <translation>没有匹配的设备：</translation>
    </message>
    <message>
        <source>Fits several devices, of which none is ticked:</source>
        <translation>匹配多台设备，均不勾选：</translation>
    </message>
    <message>
        <source>Not in the form&apos;s list now:</source>
        <translation>当前不在表单的列表中：</translation>
    </message>
    <message>
        <source>Given more than once:</source>
        <translation>重复给出：</translation>
    </message>
    <message>
        <source>Paste a list, or load one. Nothing is ticked before you have seen what was found.</source>
        <translation>请粘贴或载入名单。在您看到匹配结果之前不会勾选任何设备。</translation>
    </message>
    <message>
        <source>All devices of the list were found.</source>
        <translation>名单中的所有设备均已找到。</translation>
    </message>
    <message>
        <source>This of the list is not ticked, or was given more than once:</source>
        <translation>名单中以下各项不勾选或重复给出：</translation>
    </message>
    <message>
        <source>It is a t&amp;able: only the first column names devices</source>
        <translation>这是表格，只有第一列是设备(&amp;A)</translation>
    </message>
</context>
<context>
    <name>orda_client::ValueChecks</name>
    <message>
        <source>empty</source>
        <comment>of a value that looks wrong</comment>
        <translation>为空</translation>
    </message>
    <message>
        <source>0 is no port</source>
        <translation>0 不是端口</translation>
    </message>
    <message>
        <source>there is a blank in &quot;%1&quot;</source>
        <translation>“%1”中有空格</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no web address (http:// or https://)</source>
        <translation>“%1”不是网址（http:// 或 https://）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor the name of a server</source>
        <translation>“%1”既不是 IP 地址也不是服务器名称</translation>
    </message>
    <message>
        <source>not ticked, but sent all the same: %1</source>
        <translation>未勾选但仍会发送：%1</translation>
    </message>
    <message>
        <source>%1: nothing that is ticked applies to it</source>
        <translation>%1：勾选的内容均不适用于它</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>parameter, what looks wrong</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: no address is given</source>
        <translation>%1：未给出地址</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of the devices speak(s) ONVIF, which does not know this: %1</source>
        <translation>
            <numerusform>其中 %Ln 台设备使用 ONVIF，它没有以下内容：%1</numerusform>
        </translation>
    </message>
</context>
</TS>
