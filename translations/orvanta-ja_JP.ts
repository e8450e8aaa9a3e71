<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>プログラムの起動</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>ウィンドウの配置を復元する</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>ウィンドウの位置を復元する</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>スプラッシュ画面を表示しない</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>新しいバージョンの確認</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>新しいバージョンを自動的に確認する </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>設定を有効にするには、アプリケーションを再起動してください。</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>更新を自動的に確認する</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>ご信頼いただきありがとうございます。本ソフトウェアをお楽しみください。</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>その他の製品はこちら:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>ネイティブの翻訳者を募集しています。</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>お問い合わせはこちら: </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>チェックサムの計算</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>アルゴリズム:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>利用できるハッシュアルゴリズム</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>パス:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>対象ファイルの選択</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>チェックサム:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>計算されたハッシュ値</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>公開されているチェックサム</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>照合するハッシュ値を貼り付けてください</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>照合には 2 つのチェックサムが必要です..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>一致 - チェックサムは一致しています</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>不一致 - チェックサムが一致しません</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>常に手前に表示</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Okay</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No updates are available.</source>
        <translation>利用できる更新はありません。</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>新しいバージョンがあります:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>最新バージョンをウェブサイトからダウンロードしますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>バージョンの確認に失敗しました</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>サーバーに接続できませんでした。</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>インターネットとファイアウォールの設定を確認するか、%1 で新しいバージョンの有無をご確認ください。</translation>
    </message>
</context>
</TS>
