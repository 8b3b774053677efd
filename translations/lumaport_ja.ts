<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>HEIC または HEIF の写真をここにドロップ</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 が届きました</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>完了: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>%1 を変換できませんでした</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>スマートフォンからの次の写真を待っています</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>HEIC 写真を選択</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>写真を変換</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>履歴を消去しました</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>%1 を監視できませんでした</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>スマートフォンの写真が保存されるフォルダーを選択</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>このフォルダーを監視</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>%1 を監視しています</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>%1 に HEIC 写真はありません</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>フォルダーを使用できません</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>監視フォルダーを確認して、再試行してください。</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>自動変換: オン</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>%1 に届く HEIC 写真を監視しています。</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>自動変換: 一時停止中</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>再開するまで、新しい写真は変換されません。</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>外観: %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>やり直す</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>最近届いた写真</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n 枚完了</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>履歴だけを消去します。写真はそのまま残ります。</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>次の写真はここに表示されます。</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>スマートフォンから %1 に送るか、上で HEIC 写真を選択してください。</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>変換できませんでした。写真を選び直してください。</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>%1 をファイルマネージャーで表示</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Lumaport を終了</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>変換(&amp;C)</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>クイックパネルを表示</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>ウェルカムをもう一度再生</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>監視フォルダーの HEIC 写真を変換</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>推奨のウィンドウサイズにする</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>ログイン時に起動</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>このファイルは HEIC/HEIF 画像ではありません。</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>画像を開けませんでした。まだ転送中かもしれません。</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>変換後のファイルを作成できませんでした。</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>変換後の画像を書き込めませんでした。</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>画像は変換されましたが、元の写真を移動できませんでした。</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>このシステムでは写真を安全に開けないため、変換しませんでした。</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>変換待ち</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>このコンピューターで変換中</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>使用できます</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>虹色に輝く「vo」とスラッシュのサイン</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>手間はもっと少なく。流れはもっと軽やかに。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>始める</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>監視フォルダーを開く: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>写真を変換中</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>変換形式</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>%1 に変換</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>写真を選択するか、フォルダーにドロップ</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>HEIC 写真を選択</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>写真を手動で選択</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>HEIC 写真をここにドロップしても OK。元の写真はそのままです。</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>プライバシー重視の設計。変換はこのコンピューターの中だけで。</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>ここで離して。あとはおまかせ。</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>写真が届きました。</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>ちょっとした変換の魔法。</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>新しい形式で、同じ瞬間を。</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>この写真を確認してください。</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>フォルダーを再接続しましょう。</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>送るだけで、もう使える。</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>いつでもどうぞ。</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>変換オプションを開いて、使えるフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>自動変換を再開するか、写真を手動で選択してください。</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>監視フォルダーの新しい HEIC 写真が、自動で %1 になります。</translation>
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
        <translation>写真のよき相棒</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>このコンピューターで写真を変換中</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>いつものようにスマートフォンから送るだけ。PNG または JPEG のコピーが自動で現れます。</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>変換形式</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Lumaport を開く</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Lumaport を終了</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>確認が必要です</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1。写真を変換中です。</translation>
    </message>
    <message>
        <source>Lumaport: %1</source>
        <translation>Lumaport: %1</translation>
    </message>
    <message>
        <source>Lumaport, %1</source>
        <translation>Lumaport、%1</translation>
    </message>
</context>
<context>
    <name>MonitoringControlController</name>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>写真が届いて準備できました</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>ローカルで変換しました。クリックするとファイルマネージャーで表示します。</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport は監視を続けています</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>新しい写真は引き続き変換されます。ウインドウを開くには、Lumaport をもう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>HEIC/HEIF 写真</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>元の写真と同じ場所</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Lumaport フォルダー</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>元の写真を残す</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>Originals に移動</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>画質 %1%</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>自分好みに</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>オプションを閉じる</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>監視フォルダー</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>変更…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>既存の HEIC 写真を変換</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG の画質</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>変換した写真の保存先</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>元の写真</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>完了時に通知</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>専用の到着チャイムが鳴ります。通知をクリックすると、完成した写真をファイルマネージャーで表示します。</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>写真はこのコンピューターから出ません。</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>変換形式</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>PNG に変換</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>JPEG に変換</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>クイックパネルを表示</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Lumaport を開く</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Lumaport を終了</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>監視を一時停止</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>監視を再開</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>監視フォルダーの HEIC 写真を変換</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>ウェルカムをもう一度再生</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>ログイン時に起動</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>変換オプション</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Lumaport へようこそ</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>ワークスペース</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>最近の写真</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n 枚完了</numerusform>
        </translation>
    </message>
</context>
</TS>
