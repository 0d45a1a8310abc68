<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>orda_batchCfg::AudioParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Audio Enable</source>
        <translation>启用音频</translation>
    </message>
    <message>
        <source>Encoding Format</source>
        <translation>编码格式</translation>
    </message>
    <message>
        <source>Audio In Volume</source>
        <translation>音频输入音量</translation>
    </message>
    <message>
        <source>Alarm Out Volume</source>
        <translation>报警输出音量</translation>
    </message>
    <message>
        <source>Sampling Rate/Bit Wide</source>
        <translation>采样率/位宽</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Sampling Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Bit Wide</source>
        <translation>位宽</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Audio In Volume, number</source>
        <translation>音频输入音量，数值</translation>
    </message>
    <message>
        <source>Alarm Out Volume, number</source>
        <translation>报警输出音量，数值</translation>
    </message>
    <message>
        <source>AudioParamsCfgPage</source>
        <translation>AudioParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::AudioParamsCfgTask</name>
    <message>
        <source>Failed to get audio in parameters(%1)</source>
        <translation>获取音频输入参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set audio in parameters(%1)</source>
        <translation>设置音频输入参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to get audio out parameters(%1)</source>
        <translation>获取音频输出参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set audio out parameters(%1)</source>
        <translation>设置音频输出参数失败（%1）</translation>
    </message>
    <message>
        <source>set audio parameters time out</source>
        <translation>设置音频参数超时</translation>
    </message>
    <message>
        <source>Audio Parameters Configuration Result</source>
        <translation>音频参数配置结果</translation>
    </message>
    <message>
        <source>G711U</source>
        <translation>G711U</translation>
    </message>
    <message>
        <source>G711A</source>
        <translation>G711A</translation>
    </message>
    <message>
        <source>16bit</source>
        <translation>16bit</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::BatchCfgForm</name>
    <message>
        <source>Online Device List</source>
        <translation>在线设备列表</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Dev Name</source>
        <translation>设备名称</translation>
    </message>
    <message>
        <source>Dev Sn</source>
        <translation>设备序列号</translation>
    </message>
    <message>
        <source>Ip</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Remote Set</source>
        <translation>远程设置</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>Press Space to sort the devices by this column</source>
        <translation>按空格键按此列对设备排序</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>BatchCfgForm</source>
        <translation>BatchCfgForm</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::CfgResultsRecorder</name>
    <message>
        <source>the temporary directory &quot;%1&quot; is not an absolute path</source>
        <translation>临时目录“%1”不是绝对路径</translation>
    </message>
    <message>
        <source>the temporary directory &quot;%1&quot; is missing</source>
        <translation>临时目录“%1”不存在</translation>
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
        <source>another process</source>
        <translation>另一个进程</translation>
    </message>
    <message>
        <source>process %1</source>
        <translation>进程 %1</translation>
    </message>
    <message>
        <source>process %1 (%2)</source>
        <translation>进程 %1（%2）</translation>
    </message>
    <message>
        <source>cannot open the record file %1: %2</source>
        <translation>无法打开记录文件 %1：%2</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>它是符号链接</translation>
    </message>
    <message>
        <source>it is in use by %1</source>
        <translation>它正由 %1 使用</translation>
    </message>
    <message>
        <source>cannot write the record file %1: %2</source>
        <translation>无法写入记录文件 %1：%2</translation>
    </message>
    <message>
        <source>the record file %1 was removed or replaced during the run</source>
        <translation>记录文件 %1 在运行期间被删除或替换</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::DevEligibility</name>
    <message>
        <source>no such device</source>
        <translation>没有此设备</translation>
    </message>
    <message>
        <source>not reached directly</source>
        <translation>无法直接访问</translation>
    </message>
    <message>
        <source>neither a camera nor a recorder</source>
        <translation>既非摄像机也非录像机</translation>
    </message>
    <message>
        <source>not online</source>
        <translation>不在线</translation>
    </message>
    <message>
        <source>no IP address, and still with its factory password</source>
        <translation>无 IP 地址，且仍为出厂密码</translation>
    </message>
    <message>
        <source>no IP address, and locked</source>
        <translation>无 IP 地址，且已锁定</translation>
    </message>
    <message>
        <source>no IP address, and no password</source>
        <translation>无 IP 地址，且无密码</translation>
    </message>
    <message>
        <source>no IP address, and a weak password</source>
        <translation>无 IP 地址，且密码弱</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::EmptyListHint</name>
    <message>
        <source>No device in the list matches the search.</source>
        <translation>列表中没有与搜索匹配的设备。</translation>
    </message>
    <message>
        <source>There are no devices yet.</source>
        <translation>还没有设备。</translation>
    </message>
    <message>
        <source>No device is online. Devices appear here as soon as they are.</source>
        <translation>没有设备在线。设备上线后会立即显示在此处。</translation>
    </message>
    <message>
        <source>None of the devices online can be configured from here: it takes a camera or a recorder that is reached directly, with an IP address, a password that is not weak, or the right to it at the cloud service.</source>
        <translation>在线设备均无法在此配置：需要可直接访问的摄像机或录像机，并具有 IP 地址、非弱密码或云服务上的操作权限。</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::Families</name>
    <message>
        <source>Audio-Video Parameters</source>
        <translation>音视频参数</translation>
    </message>
    <message>
        <source>Platform Parameters</source>
        <translation>平台参数</translation>
    </message>
    <message>
        <source>Audio Parameters</source>
        <translation>音频参数</translation>
    </message>
    <message>
        <source>Video Parameters</source>
        <translation>视频参数</translation>
    </message>
    <message>
        <source>Image Parameters</source>
        <translation>图像参数</translation>
    </message>
    <message>
        <source>Cloud Service Parameters</source>
        <translation>云服务参数</translation>
    </message>
    <message>
        <source>Platform 9100 Parameters</source>
        <translation>9100 平台参数</translation>
    </message>
    <message>
        <source>Network Parameters</source>
        <translation>网络参数</translation>
    </message>
    <message>
        <source>OSD Parameters</source>
        <translation>OSD 参数</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ImageParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>图像翻转</translation>
    </message>
    <message>
        <source>Expert Mode</source>
        <translation>专家模式</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>补光模式</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>ImageParamsCfgPage</source>
        <translation>ImageParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ImageParamsCfgTask</name>
    <message>
        <source>Failed to get image adjust parameters(%1)</source>
        <translation>获取图像调节参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set image adjust parameters(%1)</source>
        <translation>设置图像调节参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to get image day-night parameters(%1)</source>
        <translation>获取图像日夜转换参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set image day-night parameters(%1)</source>
        <translation>设置图像日夜转换参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to get image expert parameters(%1)</source>
        <translation>获取图像专家模式参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set image expert parameters(%1)</source>
        <translation>设置图像专家模式参数失败（%1）</translation>
    </message>
    <message>
        <source>set image parameters time out</source>
        <translation>设置图像参数超时</translation>
    </message>
    <message>
        <source>Image Parameters Configuration Result</source>
        <translation>图像参数配置结果</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Rotate 180</source>
        <translation>旋转 180 度</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Indoor</source>
        <translation>室内</translation>
    </message>
    <message>
        <source>Outdoor</source>
        <translation>室外</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>逆光</translation>
    </message>
    <message>
        <source>Infrared</source>
        <translation>红外</translation>
    </message>
    <message>
        <source>White Light</source>
        <translation>白光</translation>
    </message>
    <message>
        <source>Smart Dual Light</source>
        <translation>智能双光</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::NetworkParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Compatible with 1.0 NVR devices</source>
        <translation>兼容 1.0 NVR 设备</translation>
    </message>
    <message>
        <source>Lock IP</source>
        <translation>锁定 IP</translation>
    </message>
    <message>
        <source>Smart Online</source>
        <translation>智能上线</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>NetworkParamsCfgPage</source>
        <translation>NetworkParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::NetworkParamsCfgTask</name>
    <message>
        <source>Failed to get onvif discovery parameters(%1)</source>
        <translation>获取 ONVIF 发现参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set onvif discovery parameters(%1)</source>
        <translation>设置 ONVIF 发现参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to get ip parameters(%1)</source>
        <translation>获取 IP 参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set ip parameters(%1)</source>
        <translation>设置 IP 参数失败（%1）</translation>
    </message>
    <message>
        <source>set network parameters time out</source>
        <translation>设置网络参数超时</translation>
    </message>
    <message>
        <source>Network Parameters Configuration Result</source>
        <translation>网络参数配置结果</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OSDParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>OSD Visible</source>
        <translation>显示 OSD</translation>
    </message>
    <message>
        <source>Time Format</source>
        <translation>时间格式</translation>
    </message>
    <message>
        <source>Time Position</source>
        <translation>时间位置</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name Position</source>
        <translation>名称位置</translation>
    </message>
    <message>
        <source>Large Font</source>
        <translation>大字体</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>HD IPC</source>
        <translation>高清 IPC</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>OSDParamsCfgPage</source>
        <translation>OSDParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OSDParamsCfgTask</name>
    <message>
        <source>Failed to get osd parameters(%1)</source>
        <translation>获取 OSD 参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set osd parameters(%1)</source>
        <translation>设置 OSD 参数失败（%1）</translation>
    </message>
    <message>
        <source>set osd parameters time out</source>
        <translation>设置 OSD 参数超时</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>OSD Parameters Configuration Result</source>
        <translation>OSD 参数配置结果</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OnvifParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Compatible with 1.0 NVR devices</source>
        <translation>兼容 1.0 NVR 设备</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>OnvifParamsCfgPage</source>
        <translation>OnvifParamsCfgPage</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::OnvifParamsCfgTask</name>
    <message>
        <source>Failed to get onvif discovery parameters(%1)</source>
        <translation>获取 ONVIF 发现参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set onvif discovery parameters(%1)</source>
        <translation>设置 ONVIF 发现参数失败（%1）</translation>
    </message>
    <message>
        <source>set onvif discovery parameters time out</source>
        <translation>设置 ONVIF 发现参数超时</translation>
    </message>
    <message>
        <source>Onvif Parameters Configuration Result</source>
        <translation>Onvif 参数配置结果</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>Please select the devices to be configured</source>
        <translation>请选择要配置的设备</translation>
    </message>
    <message>
        <source>Configuring...</source>
        <translation>正在配置……</translation>
    </message>
    <message>
        <source>Configuring(%1/%2)...</source>
        <translation>正在配置（%1/%2）……</translation>
    </message>
    <message>
        <source>A total of %1 devices have been configured, success:%2, failure:%3</source>
        <translation>共配置 %1 台设备，成功：%2，失败：%3</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>All parameters</source>
        <translation>所有参数</translation>
    </message>
    <message>
        <source>Configure %1</source>
        <translation>配置 %1</translation>
    </message>
    <message>
        <source>Nothing was configured: the record file %1 is in use by %2. Wait until its run has ended.</source>
        <translation>未进行任何配置：记录文件 %1 正由 %2 使用。请等待其运行结束。</translation>
    </message>
    <message>
        <source>A configuration is under way. Please wait until it has ended.</source>
        <translation>正在进行配置。请等待其结束。</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::ParamsCfgTask</name>
    <message>
        <source>Failed to parse json data</source>
        <translation>解析 JSON 数据失败</translation>
    </message>
    <message>
        <source>success</source>
        <translation>成功</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::Platform9100ParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>9100 Service Enable</source>
        <translation>启用 9100 服务</translation>
    </message>
    <message>
        <source>9100 Service Address</source>
        <translation>9100 服务地址</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Online Service Url</source>
        <translation>在线服务地址</translation>
    </message>
    <message>
        <source>Online Service Port</source>
        <translation>在线服务端口</translation>
    </message>
    <message>
        <source>Bussiness Service Url</source>
        <translation>业务服务地址</translation>
    </message>
    <message>
        <source>Bussiness Service Port</source>
        <translation>业务服务端口</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Platform9100ParamsCfgPage</source>
        <translation>Platform9100ParamsCfgPage</translation>
    </message>
    <message>
        <source>15030</source>
        <translation>15030</translation>
    </message>
    <message>
        <source>8081</source>
        <translation>8081</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::Platform9100ParamsCfgTask</name>
    <message>
        <source>Failed to get platform 9100 parameters(%1)</source>
        <translation>获取 9100 平台参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set platform 9100 parameters(%1)</source>
        <translation>设置 9100 平台参数失败（%1）</translation>
    </message>
    <message>
        <source>set platform 9100 parameters time out</source>
        <translation>设置 9100 平台参数超时</translation>
    </message>
    <message>
        <source>Platform 9100 Parameters Configuration Result</source>
        <translation>9100 平台参数配置结果</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::PlatformParamsCfgPage</name>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Service Enable</source>
        <translation>启用服务</translation>
    </message>
    <message>
        <source>Service Address</source>
        <translation>服务地址</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Service Type</source>
        <translation>服务类型</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>PlatformParamsCfgPage</source>
        <translation>PlatformParamsCfgPage</translation>
    </message>
    <message>
        <source>https://device.cloud.example.com:8443</source>
        <translation>https://device.cloud.example.com:8443</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::PlatformParamsCfgTask</name>
    <message>
        <source>Failed to get platform parameters(%1)</source>
        <translation>获取平台参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set platform parameters(%1)</source>
        <translation>设置平台参数失败（%1）</translation>
    </message>
    <message>
        <source>set platform parameters time out</source>
        <translation>设置平台参数超时</translation>
    </message>
    <message>
        <source>Platform Parameters Configuration Result</source>
        <translation>平台参数配置结果</translation>
    </message>
    <message>
        <source>Public Cloud</source>
        <translation>公有云</translation>
    </message>
    <message>
        <source>Private Cloud</source>
        <translation>私有云</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::VideoParamsCfgPage</name>
    <message>
        <source>Please select the streams to be configured</source>
        <translation>请选择要配置的码流</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>HD Stream</source>
        <translation>高清码流</translation>
    </message>
    <message>
        <source>SD Stream</source>
        <translation>标清码流</translation>
    </message>
    <message>
        <source>Please select the parameters to be configured</source>
        <translation>请选择要配置的参数</translation>
    </message>
    <message>
        <source>Smart Encoding</source>
        <translation>智能编码</translation>
    </message>
    <message>
        <source>Encoding Format</source>
        <translation>编码格式</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>码率</translation>
    </message>
    <message>
        <source>The selected parameters to be configured</source>
        <translation>所选的待配置参数</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>All streams</source>
        <translation>所有码流</translation>
    </message>
    <message>
        <source>VideoParamsCfgPage</source>
        <translation>VideoParamsCfgPage</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>stream, parameter</comment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::VideoParamsCfgTask</name>
    <message>
        <source>Failed to get stream parameters(%1)</source>
        <translation>获取码流参数失败（%1）</translation>
    </message>
    <message>
        <source>Failed to set stream parameters(%1)</source>
        <translation>设置码流参数失败（%1）</translation>
    </message>
    <message>
        <source>set stream parameters time out</source>
        <translation>设置码流参数超时</translation>
    </message>
    <message>
        <source>Video Parameters Configuration Result</source>
        <translation>视频参数配置结果</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>H264</source>
        <translation>H264</translation>
    </message>
    <message>
        <source>H265</source>
        <translation>H265</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>可变码率</translation>
    </message>
    <message>
        <source>Fixed Bitrate</source>
        <translation>固定码率</translation>
    </message>
    <message>
        <source>Best Image Quality</source>
        <translation>最佳画质</translation>
    </message>
    <message>
        <source>Image Quality Priority</source>
        <translation>画质优先</translation>
    </message>
    <message>
        <source>Balance Mode</source>
        <translation>均衡模式</translation>
    </message>
    <message>
        <source>Storage Priority</source>
        <translation>存储优先</translation>
    </message>
    <message>
        <source>Optimal Storage</source>
        <translation>最优存储</translation>
    </message>
</context>
<context>
    <name>orda_batchCfg::VideoParamsPanel</name>
    <message>
        <source>HD Stream</source>
        <translation>高清码流</translation>
    </message>
    <message>
        <source>Encoding Format</source>
        <translation>编码格式</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Bit Rate Mode</source>
        <translation>码率模式</translation>
    </message>
    <message>
        <source>Bit Rate Strategy</source>
        <translation>码率策略</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>视频质量</translation>
    </message>
    <message>
        <source>SD Stream</source>
        <translation>标清码流</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>stream, parameter</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
</context>
</TS>
