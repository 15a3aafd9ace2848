<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>クリップボードにファイルがありません</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>フォルダーを追加…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>すべて変更するか、何もしない</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>すべて変更するか、何もしない：一覧のすべてのファイルの名前を変更するか、1 つも変更しません</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1：%2 個を変更できないため、何も変更されません</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>これまでに変更した名前：%1 / %2。すべて元に戻しますか、変更した分を残しますか？</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>すべて元に戻す</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>変更した分を残す</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>維持</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>変更できるものだけ変更</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>変更できないファイルがあるため、何も変更しませんでした。</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>何も変更しませんでした：1 個のファイルで失敗し、ほかのファイルは元の名前に戻りました。</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>何も変更しませんでした：実行はキャンセルされました。</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>実行の全体を元に戻せませんでした。元の名前でないファイル：%1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>何も変更しませんでした：実行の記録を書き込めません。</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>実行はまだ終わっていません。</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>ファイル &apos;%1&apos; を元に戻せませんでした：今の名前は &apos;%2&apos; です</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>ヒント</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>グローバル設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>アドオン</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>寄付</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>レジストリへの登録が必要です</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>システムの起動時に自動的に起動する</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>起動時に最小化する</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>スプラッシュ画面を無効にする</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>ウィンドウのレイアウトを復元する</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>ウィンドウのサイズと位置を復元する</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>トレイアイコンに最小化する</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>新しいバージョンを自動的に確認する</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>プラグイン</translation>
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
        <translation>国/地域</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>翻訳: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>このプロジェクトを支援する</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>このアプリケーションはフリーウェアであり、今後もずっと無料です。 </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>少額のご寄付で、製品の開発、改良、保守をご支援いただけます。</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>アプリケーションフォルダー</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>アプリケーションデータフォルダー</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Web サイトを開く</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>フィードバックを送る</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;制作: Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>コマンドは正常に完了しました。</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>コマンドを実行できませんでした。</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>管理者権限があることを確認してください。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
        <translation>国/地域</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>新しいバージョンを自動的に確認する</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>このソフトウェアをお選びいただきありがとうございます。お気に召していただければ幸いです。</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>その他の製品はこちら:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>翻訳先の言語を母語とする翻訳者を募集しています。</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>お問い合わせ先: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>写真に番号を付ける</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>アンダースコアを空白に</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>大文字と小文字を整える</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>カメラの接頭辞を取り除く</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>日付を 2024-01-31 の形に</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>トラック番号を2桁に</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>「アーティスト - タイトル」を「タイトル - アーティスト」に</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>新しい名前が空か、ドットだけです</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>そのフォルダーはありません</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>ファイルシステムが新しい名前を受け付けません</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>新しい名前が長すぎます</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>このフォルダーでは名前を変更できません</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>新しい名前に文字の半分だけが含まれています</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>システムに拒否されました</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>その名前はすでに使われています</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>%1 行目が名前 %2 を使います</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>%1 行目がまだ名前 %2 を使っています</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 個のファイル</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 個は元の名前のまま</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 個は元の名前のまま</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>問題のある次の行へ移動 (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1、%2 個を選択中</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1：%2 個を変更、%3、%4 個は変更不可</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1：%2 個を変更、%3、%4 個は変更不可、%5 個は不明</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>元の名前のままです。</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>実行するまでわかりません。</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>変更できません：%1。</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>フォルダー %1 に移動します。</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>新しい名前はフォルダー %1 を指しています。</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>変更できませんでした：%1。</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>詳細を表示…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>変更されなかったファイル</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新しい名前</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>別のファイルがその名前を使っています</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>有効なルール</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>一覧をクリア</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>ファイル一覧</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>名前フィルター</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>フルパスを表示</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>アプリケーションログ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>ログを保存</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>デバッグメッセージを含める</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>デバッグ</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>ログフォルダーを開く</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>グローバル設定</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>エクスプローラー</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>お待ちください</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>ファイルを取得中</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>ファイル名の変更を開始しました</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>ファイル名を変更できませんでした</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>処理済み</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>このソフトウェアを気に入っていただき、サービスの継続をお望みの場合は、ぜひご支援ください。</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>ありがとうございます！</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>アプリケーションを最小化しました。</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>表示するにはトレイアイコンをクリックしてください。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>常に最前面に表示</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>最後の実行を元に戻す</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>元に戻す、やり直し、以前の実行</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>ファイルやフォルダーを追加</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>ファイルを並べ替え</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>ここにファイルやフォルダーをドロップするか、Ctrl+O を押してください</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>上でルールの種類を選び、項目を入力して「%1」を押してください</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>ピクチャ</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>ミュージック</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>ダウンロード</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ファイル</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>ソケット操作がタイムアウトしました</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>増やす(&amp;I)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>減らす(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>フロート</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>ドックパネルの切り離しと再ドッキングを行います</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>ドックパネルを閉じます</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>詳細表示に切り替え</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>一覧表示に切り替え</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細表示</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N):</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ファイルの種類:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>前に戻る</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>次に進む</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>親フォルダーへ移動</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>一覧表示</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>場所とブックマークの一覧</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>親フォルダー</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>隠しファイルを表示(&amp;H)</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 はすでにあります。
置き換えますか？</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
ファイルが見つかりません。
ファイル名を確認してください。</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>表示 </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選択(&amp;C)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
フォルダーが見つかりません。
名前が正しいか確認してください。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>接続が切断されました</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>ホスト %1 が見つかりません</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>ホストに到達できません</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここまでスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上端</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下端</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1 ページ左へ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1 ページ上へ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1 ページ右へ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1 ページ下へ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンクのアドレスをコピー(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>ルールをこの設定に置き換える</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>ルールを変更せずに戻る</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>ルールセット</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>インポート…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>ルールセット</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>有効なルールに名前を付けて保存し、再び使う</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>その後ルールが変更されました。</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>前回使ったルール</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>管理…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>ファイルを開く…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>例</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>ルールセット</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>有効なルールは保存されていません。置き換えますか？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>ルールセット「%1」はすでにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>ルールセット「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>ルールセットを保存</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>ルールセットの名前</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>ルールセットを開く</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>%1 からルールを読み込めませんでした:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>ルールセットを保存できませんでした:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>ルールセットを削除できませんでした:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>ルールセットの名前を変更できませんでした:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>ルール %1、%2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>オブジェクトでなければなりません</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>%1 行目は JSON ではありません</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>%1 文字以内のテキストでなければなりません</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>前後に空白のない名前でなければなりません</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数でなければなりません</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>true または false でなければなりません</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>%1 でなければなりません</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>次のいずれかでなければなりません: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>%1 個以内のルールのリストでなければなりません</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>このファイルは新しいバージョンのプログラムで作成されました</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>このようなフィールドはありません</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>このフィールドがありません</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>この名前のルールセットがすでにあります</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>古い名前のファイルを削除できませんでした</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>先頭から</translation>
    </message>
    <message>
        <source>End</source>
        <translation>末尾から</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>大文字/小文字の変更</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>各単語の先頭文字を大文字にする</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>拡張子を無視する</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>連番</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>開始番号</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>先行ゼロ</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>テキストの挿入</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>検索する文字列</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>置換後の文字列</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>正規表現</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>文字の削除</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>パターンが正しくないため、何も変更されません</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>このパターンは時間がかかりすぎるため、何も変更されません</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>大文字と小文字は区別され、できるだけ長い部分が見つかります。</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>任意の 1 文字</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>ピリオドそのもの</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>これらの文字のどれか</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>それ以外の文字</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>文字、数字または _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>a の 0 回以上の繰り返し</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>a の 1 回以上の繰り返し</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>a が 1 つ、またはなし</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>a の 2 ～ 4 回の繰り返し</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>ab または cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>名前の先頭</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>名前の末尾</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>グループ: 新しい文字列の \1 は見つかった部分</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>元に戻す操作が中断されました。残りはまだ元に戻せます</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>%1 の実行は中断されました。変更された名前は元に戻せます</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>この実行は元に戻せません</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>この実行の最後の名前変更は元に戻せません：%1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 個のフォルダー</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>%1 に %2 で行った 1 件の名前変更を元に戻す</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>%2 に %3 で行った %1 件の名前変更を元に戻す</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>プログラムの別のウィンドウがこの実行を処理中です。</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>この実行は別のコンピューターまたは新しいバージョンのプログラムのものです。</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>後の実行でこれらのファイルの一部の名前が変更されています。先にその実行を元に戻してください。</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>この実行には元に戻すものが残っていません。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>元に戻す処理を開始しました</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>ファイル &apos;%1&apos; を元に戻せませんでした：%2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>%2 に %3 個のフォルダーで行った %1 件の名前変更を元に戻す</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>実行の一覧</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>変更数</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>一部を元に戻しました</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>元に戻しました</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>別のコンピューターのもの</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>新しいバージョンのもの</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>読み取り不可</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1（後の実行で再変更）</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>%1 の実行でこれらのファイルの一部の名前が変更されています。先にその実行を元に戻してください。</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>ファイルを表示</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>記録を消す</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>すべての記録を消す</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>すべての実行の記録を消しますか？ファイルはそのまま残り、どの実行も元に戻せなくなります。</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>%1 の実行のファイル</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>元の名前</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新しい名前</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>新しい名前です</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>元の名前です</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>別のファイルがあります</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>実行の一覧…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>この実行は中断されました。「実行の一覧…」で続きを行うこともできます</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>この実行は、すべてのファイルの名前を変更するか何もしないはずでしたが、中断されました。続きを行うか、すべて元に戻すか、ファイルをそのままにするかを選んでください。</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>すべて元に戻す</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>続きを行う</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>そのままにする</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>中断された実行の続きを開始しました</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>%1 の実行は中断されました。「実行の一覧…」で続きを行うことも、すべて元に戻すこともできます</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>拡張子</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>追加した順</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1 (昇順)</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1 (降順)</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>データ転送エラー</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>バージョンを確認できませんでした</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>サーバーへの接続中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>次のアドレスから手動で確認してください:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>新しいバージョンがあります！</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>今すぐダウンロードしますか？</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>新機能は？</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>最新バージョンを使用しています。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
