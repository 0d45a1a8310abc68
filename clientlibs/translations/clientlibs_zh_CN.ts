<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CheckedJson</name>
    <message>
        <source>must be a text in quotes</source>
        <translation>必须是带引号的文本</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>必须是 %1 到 %2 之间的整数</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>必须是以下之一：%1</translation>
    </message>
    <message>
        <source>field &quot;%1&quot;: %2</source>
        <translation>字段“%1”：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>is not JSON: %1 at byte %2</source>
        <translation>不是 JSON：第 %2 字节处 %1</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot; is not used</source>
        <translation>未知键“%1”未被使用</translation>
    </message>
    <message>
        <source>must be a list of objects</source>
        <translation>必须是对象列表</translation>
    </message>
    <message>
        <source>%1: must be an object</source>
        <translation>%1：必须是对象</translation>
    </message>
    <message>
        <source>%1: unknown key &quot;%2&quot; is not used</source>
        <translation>%1：未知键“%2”未被使用</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>Inventory</name>
    <message>
        <source>must not hold line breaks, tabs or control characters</source>
        <translation>不得包含换行符、制表符或控制字符</translation>
    </message>
    <message>
        <source>must be an IPv4 address such as 192.168.1.20, or empty where &quot;url&quot; is given</source>
        <translation>必须是 IPv4 地址（如 192.168.1.20），给出“url”时可为空</translation>
    </message>
    <message>
        <source>must be a SHA-256: 64 hexadecimal digits, with or without colons</source>
        <translation>必须是 SHA-256：64 位十六进制数字，可带或不带冒号</translation>
    </message>
    <message>
        <source>must be there and not be empty</source>
        <translation>必须存在且不能为空</translation>
    </message>
    <message>
        <source>must be an IPv4 address where no &quot;url&quot; is given</source>
        <translation>未给出“url”时必须是 IPv4 地址</translation>
    </message>
    <message>
        <source>must be a whole number from 1 to 65535 where no &quot;url&quot; is given</source>
        <translation>未给出“url”时必须是 1 到 65535 之间的整数</translation>
    </message>
    <message>
        <source>must be the path of an address and begin with &quot;/&quot;</source>
        <translation>必须是地址的路径并以“/”开头</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
    <message>
        <source>must not hold line breaks, tabs, control characters or characters that cannot be seen</source>
        <translation>不得包含换行符、制表符、控制字符或不可见字符</translation>
    </message>
    <message>
        <source>holds passwords and may be read or changed by others; set its mode to 0600 (chmod 600)</source>
        <translation>包含密码且其他用户可读取或修改；请将其权限设为 0600（chmod 600）</translation>
    </message>
    <message>
        <source>must not be the same as in %1</source>
        <translation>不得与 %1 相同</translation>
    </message>
    <message>
        <source>%1 (id &quot;%2&quot;)</source>
        <translation>%1（id“%2”）</translation>
    </message>
    <message>
        <source>must be an address such as %1</source>
        <translation>必须是类似 %1 的地址</translation>
    </message>
    <message>
        <source>must not be true beside a &quot;url&quot; that begins with %1:</source>
        <translation>“url”以 %1: 开头时不得为 true</translation>
    </message>
    <message>
        <source>has no use without TLS: set tls to true or give a %1: url</source>
        <translation>没有 TLS 时无用：请将 tls 设为 true 或给出 %1: 地址</translation>
    </message>
</context>
<context>
    <name>OnvifCode</name>
    <message>
        <source>The device does not allow this value</source>
        <translation>设备不允许此值</translation>
    </message>
    <message>
        <source>The device has no counterpart for this in ONVIF</source>
        <translation>设备在 ONVIF 中没有与此对应的内容</translation>
    </message>
    <message>
        <source>The device refused it</source>
        <translation>设备拒绝了此操作</translation>
    </message>
    <message>
        <source>The connection to the device failed, or its answer was of no use</source>
        <translation>与设备的连接失败，或其应答无法使用</translation>
    </message>
</context>
<context>
    <name>SystemAssistant</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>orda_base::NavigationWidget</name>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
</context>
<context>
    <name>orda_base::SearchBox</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Start search</source>
        <translation>开始搜索</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>orda_base::TableOperWtStyle</name>
    <message>
        <source>Space ticks and unticks the selected rows</source>
        <translation>按空格键勾选或取消勾选所选行</translation>
    </message>
</context>
<context>
    <name>vms_sdk::OnvifDiscovery</name>
    <message>
        <source>There is no network to search: no interface is up that has an IPv4 address and multicast.</source>
        <translation>没有可查找的网络：没有已启用、有 IPv4 地址且支持多播的接口。</translation>
    </message>
    <message>
        <source>There is no network interface &quot;%1&quot;, nor another that can be searched.</source>
        <translation>没有网络接口“%1”，也没有其他可供查找的接口。</translation>
    </message>
    <message>
        <source>There is no network interface &quot;%1&quot;; these can be searched: %2.</source>
        <translation>没有网络接口“%1”；可供查找的接口有：%2。</translation>
    </message>
    <message>
        <source>The network interface &quot;%1&quot; cannot be searched: it is not up, or has no IPv4 address or no multicast.</source>
        <translation>网络接口“%1”无法用于查找：它未启用，或没有 IPv4 地址，或不支持多播。</translation>
    </message>
    <message>
        <source>The search cannot be sent: %1</source>
        <translation>无法发出查找请求：%1</translation>
    </message>
</context>
</TS>
