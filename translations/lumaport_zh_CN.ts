<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>将 HEIC 或 HEIF 照片拖放到此处</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 已到达</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>已就绪：%1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>无法转换 %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>正在等待手机传来下一张照片</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>选择 HEIC 照片</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>转换照片</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>历史记录已清除</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>无法监视 %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>选择保存手机照片的文件夹</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>监视此文件夹</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>正在监视 %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>在 %1 中未找到 HEIC 照片</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>文件夹不可用</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>请检查监视的文件夹，然后重试。</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>自动转换：开</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>正在监视 %1 中的新 HEIC 照片。</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>自动转换：已暂停</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>恢复之前，新到的照片不会转换。</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>外观：%1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>最近到达</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n 张已就绪</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>仅清除历史记录，照片会保留。</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>下一张照片会出现在这里。</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>从手机发送到 %1，或在上方选择 HEIC 照片。</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>无法转换。请重新选择这张照片。</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>在文件管理器中显示 %1</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>退出 Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>转换(&amp;C)</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>显示快捷面板</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>重播欢迎动画</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>转换监视文件夹中的 HEIC 照片</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>使用推荐的窗口大小</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>登录时启动</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>此文件不是 HEIC 或 HEIF 图像。</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>无法打开图像，它可能仍在传输中。</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>Lumaport 无法创建转换后的文件。</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>无法写入转换后的图像。</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>图像已转换，但无法归档原图。</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>此系统无法安全打开照片，因此未进行转换。</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>等待转换</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>正在您的电脑上转换</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>可以使用</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>带斜线的虹彩“vo”签名</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>少一点操作，多一份流畅。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>开始使用</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>打开监视的文件夹：%1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>正在转换照片</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>转换为</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>转换为 %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>选择照片，或将其拖放到文件夹中</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>选择 HEIC 照片</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>手动选择照片</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>也可将 HEIC 照片拖放到此处。原图始终属于您。</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>隐私至上。全程在您的电脑上转换。</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>松手吧，交给我们。</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>您的照片刚刚到达。</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>施一点格式魔法。</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>全新格式，同一瞬间。</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>这张照片需要留意。</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>重新连接您的文件夹吧。</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>发送过来，即刻就绪。</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>随时待命。</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>打开转换选项，选择一个可用的文件夹。</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>恢复自动转换，或手动选择照片。</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>监视文件夹中的新 HEIC 照片会自动变为 %1。</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>Lumaport</source>
        <translation>Lumaport</translation>
    </message>
    <message>
        <source>Your photo companion</source>
        <translation>您的照片伴侣</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>正在此电脑上转换照片</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>照常从手机发送，PNG 或 JPEG 副本会自动出现。</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>转换为</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>打开 Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>退出 Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>需要留意</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport：%1。正在转换照片。</translation>
    </message>
    <message>
        <source>Lumaport: %1</source>
        <translation>Lumaport：%1</translation>
    </message>
    <message>
        <source>Lumaport, %1</source>
        <translation>Lumaport，%1</translation>
    </message>
</context>
<context>
    <name>MonitoringControlController</name>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>照片已到达并就绪</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>已在本地转换。点击可在文件管理器中显示。</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport 会继续监视</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>新照片仍会转换。再次启动 Lumaport 即可打开窗口。</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>HEIC 和 HEIF 照片</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>原图旁边</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Lumaport 文件夹</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>保留原图</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>移到 Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>质量 %1%</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>随心定制</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>关闭选项</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>监视文件夹</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>更改…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>转换现有的 HEIC 照片</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG 质量</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>转换后照片的保存位置</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>原始照片</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>就绪时通知</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>专属到达提示音。点击通知即可在文件管理器中显示完成的照片。</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>您的照片始终留在您的电脑上。</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>转换为</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>转换为 PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>转换为 JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>显示快捷面板</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>打开 Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>退出 Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>暂停监视</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>恢复监视</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>转换监视文件夹中的 HEIC 照片</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>重播欢迎动画</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>登录时启动</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>转换选项</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>欢迎使用 Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>工作区</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>接收</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>最近的照片</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n 张已就绪</numerusform>
        </translation>
    </message>
</context>
</TS>
