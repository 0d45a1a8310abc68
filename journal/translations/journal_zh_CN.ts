<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>orda_journal::HistoryArchive</name>
    <message>
        <source>must not be empty</source>
        <translation>不能为空</translation>
    </message>
    <message>
        <source>must be a UUID such as 6f9c1c9e-8a4b-4f6e-9d57-0c1d2e3f4a5b</source>
        <translation>必须是 UUID，例如 6f9c1c9e-8a4b-4f6e-9d57-0c1d2e3f4a5b</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>must be a time in UTC such as 2026-02-28T13:45:00.000Z</source>
        <translation>必须是 UTC 时间，例如 2026-02-28T13:45:00.000Z</translation>
    </message>
    <message>
        <source>must be a list of objects</source>
        <translation>必须是对象列表</translation>
    </message>
    <message>
        <source>is not known and would be lost</source>
        <translation>未知，导入会丢失</translation>
    </message>
    <message>
        <source>must be there</source>
        <translation>缺少该字段</translation>
    </message>
    <message>
        <source>must not be there twice for one device</source>
        <translation>同一设备不能出现两次</translation>
    </message>
    <message>
        <source>must be null, for the run is no undo</source>
        <translation>必须为 null，因为该运行不是撤销</translation>
    </message>
    <message>
        <source>must be a time: a run that has not ended cannot be taken in</source>
        <translation>必须是时间：未结束的运行不能导入</translation>
    </message>
    <message>
        <source>must not be before &quot;began&quot;</source>
        <translation>不能早于“began”</translation>
    </message>
    <message>
        <source>must be &quot;%1&quot;, as in a run that was written out</source>
        <translation>必须是“%1”，与导出的运行一致</translation>
    </message>
    <message>
        <source>must not be there twice</source>
        <translation>不能出现两次</translation>
    </message>
    <message>
        <source>The run has not ended.</source>
        <translation>该运行尚未结束。</translation>
    </message>
</context>
<context>
    <name>orda_journal::HistoryFile</name>
    <message>
        <source>%1: it was written by another version of this program</source>
        <translation>%1：该文件由本程序的其他版本写入</translation>
    </message>
    <message>
        <source>%1: Qt&apos;s plug-in for SQLite is not installed</source>
        <translation>%1：未安装 Qt 的 SQLite 插件</translation>
    </message>
    <message>
        <source>%1: it cannot be opened</source>
        <translation>%1：无法打开</translation>
    </message>
    <message>
        <source>%1: it was written by a newer version of this program</source>
        <translation>%1：该文件由本程序的更新版本写入</translation>
    </message>
    <message>
        <source>%1: it cannot be shared by several processes there</source>
        <translation>%1：该位置不允许多个进程共享此文件</translation>
    </message>
    <message>
        <source>%1: it is damaged and cannot be renamed</source>
        <translation>%1：文件已损坏且无法重命名</translation>
    </message>
    <message>
        <source>The history %1 is damaged. It was renamed to %2, and a new one was begun.</source>
        <translation>历史记录 %1 已损坏，已重命名为 %2，并新建了一份。</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation>无法读写磁盘</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>文件为只读</translation>
    </message>
    <message>
        <source>another process has it locked</source>
        <translation>已被另一个进程锁定</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>The history cannot be read. %1</source>
        <translation>无法读取历史记录。%1</translation>
    </message>
</context>
<context>
    <name>orda_journal::HistoryOptions</name>
    <message>
        <source>%1: %2 must be a whole number from 1 on, not &quot;%3&quot;; it is %4</source>
        <translation>%1：%2 必须是不小于 1 的整数，而不是“%3”；当前使用 %4</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>无法读取 %1</translation>
    </message>
</context>
<context>
    <name>orda_journal::HistoryUpkeep</name>
    <message>
        <source>no outcome was recorded: the program ended, or could not write the history on</source>
        <translation>没有记录结果：程序已结束，或无法继续写入历史记录</translation>
    </message>
</context>
<context>
    <name>orda_journal::JournalTransport</name>
    <message>
        <source>A configuration is under way. Please wait until it has ended.</source>
        <translation>配置正在进行，请等待其结束。</translation>
    </message>
    <message>
        <source>There are no parameters called &quot;%1&quot;.</source>
        <translation>没有名为“%1”的参数。</translation>
    </message>
    <message>
        <source>the run ended before this device had its result</source>
        <translation>运行在此设备得到结果之前已结束</translation>
    </message>
    <message>
        <source>Devices are being read. Please wait until that has ended, or stop it.</source>
        <translation>正在读取设备。请等待其结束，或将其停止。</translation>
    </message>
</context>
<context>
    <name>orda_journal::PrivateFile</name>
    <message>
        <source>it is a symbolic link</source>
        <translation>它是符号链接</translation>
    </message>
    <message>
        <source>it is not a directory</source>
        <translation>它不是目录</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>它属于其他用户</translation>
    </message>
    <message>
        <source>other users may write to it</source>
        <translation>其他用户可以写入</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>它有多个名称</translation>
    </message>
    <message>
        <source>another process has it locked</source>
        <translation>已被另一个进程锁定</translation>
    </message>
</context>
<context>
    <name>orda_journal::RunRecorder</name>
    <message>
        <source>%1: it was renamed or removed during the run</source>
        <translation>%1：文件在运行期间被重命名或删除</translation>
    </message>
    <message>
        <source>The history cannot be written. %1</source>
        <translation>无法写入历史记录。%1</translation>
    </message>
</context>
<context>
    <name>orda_journal::TrackedRun</name>
    <message>
        <source>%1; written before: %2</source>
        <translation>%1；之前已写入：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>failure, reason</comment>
        <translation>%1：%2</translation>
    </message>
</context>
</TS>
