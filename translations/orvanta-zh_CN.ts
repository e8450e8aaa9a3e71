<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>程序启动</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>恢复窗口布局</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>恢复窗口位置</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>不显示启动画面</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>检查新版本</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>自动检查新版本 </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>请重新启动应用程序以使设置生效。</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>感谢您的信任，希望您喜欢我们的软件。</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>了解我们的更多产品：</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>我们正在寻找以母语翻译的译者。</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>请通过以下方式联系我们： </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>计算校验和</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>算法：</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>可用的哈希算法</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>路径：</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>选择目标文件</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>校验和：</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>计算出的哈希值</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>已公布的校验和</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>粘贴用于验证的哈希值</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>验证需要两个校验和..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>有效 - 校验和一致</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>无效 - 校验和不一致</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>始终置顶</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Okay</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>No updates are available.</source>
        <translation>没有可用的更新。</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>有新版本可用：</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>是否从我们的网站下载最新版本？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>版本检查失败</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>无法连接到服务器。</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>请检查您的网络/防火墙设置，或自行访问 %1 查看是否有新版本。</translation>
    </message>
</context>
</TS>
