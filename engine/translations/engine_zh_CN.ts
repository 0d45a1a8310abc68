<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>orda_engine::ChangeTexts</name>
    <message>
        <source>%1: %2 instead of %3</source>
        <translation>%1：%2（应为 %3）</translation>
    </message>
    <message>
        <source>changed since and left as it is: %1</source>
        <translation>之后被更改，保持不变：%1</translation>
    </message>
    <message>
        <source>not there before and cannot be taken out: %1</source>
        <translation>之前不存在且无法移除：%1</translation>
    </message>
</context>
<context>
    <name>orda_engine::Reach</name>
    <message>
        <source>refused: user name or password</source>
        <translation>被拒绝：用户名或密码</translation>
    </message>
    <message>
        <source>refused: the serial number is another one</source>
        <translation>被拒绝：序列号不一致</translation>
    </message>
    <message>
        <source>does not sign on as it should</source>
        <translation>登录过程不符合规定</translation>
    </message>
    <message>
        <source>certificate not accepted</source>
        <translation>证书不被接受</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>无法建立安全连接</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>没有应答</translation>
    </message>
    <message>
        <source>no address, or its name is not known</source>
        <translation>没有地址，或地址名称未知</translation>
    </message>
    <message>
        <source>cut off: it went beyond a limit</source>
        <translation>已断开：超出限制</translation>
    </message>
    <message>
        <source>off line since %1</source>
        <translation>自 %1 起离线</translation>
    </message>
    <message>
        <source>%1, off line since %2</source>
        <translation>%1，自 %2 起离线</translation>
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
        <source>off line</source>
        <translation>离线</translation>
    </message>
</context>
<context>
    <name>orda_engine::ReadBatch</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>orda_engine::ReadJob</name>
    <message>
        <source>There is no connection to devices.</source>
        <translation>没有与设备的连接。</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
</context>
<context>
    <name>orda_engine::RecordedRun</name>
    <message>
        <source>The run is of &quot;%1&quot;, of which this program knows nothing.</source>
        <translation>该运行属于“%1”，本程序不认识它。</translation>
    </message>
    <message>
        <source>The run has written to no device.</source>
        <translation>该运行没有写入任何设备。</translation>
    </message>
    <message>
        <source>The run is still under way.</source>
        <translation>该运行仍在进行中。</translation>
    </message>
</context>
<context>
    <name>orda_engine::Waves</name>
    <message>
        <source>&quot;%1&quot; is no size of a wave: a number of devices from 1 on, or 1% to 100%</source>
        <translation>“%1”不是有效的批次大小：应为不小于 1 的设备数，或 1% 到 100%</translation>
    </message>
</context>
<context>
    <name>orda_engine::WriteJob</name>
    <message>
        <source>There is no connection to devices.</source>
        <translation>没有与设备的连接。</translation>
    </message>
    <message>
        <source>%1; not verified: %2</source>
        <translation>%1；未核实：%2</translation>
    </message>
    <message>
        <source>read again, it is not as it was written: %1</source>
        <translation>重新读取后与写入的不一致：%1</translation>
    </message>
    <message>
        <source>more than %1 % of the devices failed</source>
        <translation>超过 %1 % 的设备失败</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>not begun: %1</source>
        <translation>未开始：%1</translation>
    </message>
    <message>
        <source>the connection has ended</source>
        <translation>连接已结束</translation>
    </message>
</context>
</TS>
