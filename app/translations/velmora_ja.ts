<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message>
        <source>&quot;%@&quot; keeps its tags.</source>
        <translation>「%@」のタグはそのままです。</translation>
    </message>
    <message>
        <source>%@ (not there)</source>
        <translation>%@（存在しません）</translation>
    </message>
    <message>
        <source>A copy needs another name or another folder</source>
        <translation>コピーには別の名前か別のフォルダーが必要です</translation>
    </message>
    <message>
        <source>All tags of &quot;%@&quot; are deleted.</source>
        <translation>「%@」のタグをすべて削除しました。</translation>
    </message>
    <message>
        <source>Choose another place, and save the file there with the changes</source>
        <translation>別の場所を選び、変更を加えたファイルをそこに保存します</translation>
    </message>
    <message>
        <source>Delete All Tags</source>
        <translation>タグをすべて削除</translation>
    </message>
    <message>
        <source>Deleted all tags of &quot;%@&quot;</source>
        <translation>「%@」のタグをすべて削除しました</translation>
    </message>
    <message>
        <source>Do you want to delete all tags from &quot;%@&quot;?</source>
        <translation>「%@」のタグをすべて削除しますか？</translation>
    </message>
    <message>
        <source>Files found: %@</source>
        <translation>見つかったファイル: %@</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>It consists of several RIFF chunks, which a save in place can&#x27;t change</source>
        <translation>複数の RIFF チャンクからなり、その場での保存では変更できません</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>It is not there any more</source>
        <translation>ファイルはもうありません</translation>
    </message>
    <message>
        <source>You have no permission for that</source>
        <translation>その操作をする権限がありません</translation>
    </message>
    <message>
        <source>You have no permission to put a new file into its folder</source>
        <translation>ファイルのあるフォルダーに書き込む権限がありません</translation>
    </message>
    <message>
        <source>Another program is using it</source>
        <translation>別のプログラムが使用しています</translation>
    </message>
    <message>
        <source>Its disk reports a fault</source>
        <translation>ディスクでエラーが発生しました</translation>
    </message>
    <message>
        <source>Its name is too long</source>
        <translation>名前が長すぎます</translation>
    </message>
    <message>
        <source>What was to be copied is not there any more</source>
        <translation>コピー元のファイルはもうありません</translation>
    </message>
    <message>
        <source>Its folder is not there</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <source>It lies on a disk that can only be read</source>
        <translation>読み取り専用のディスクにあります</translation>
    </message>
    <message>
        <source>It would become too large</source>
        <translation>大きくなりすぎます</translation>
    </message>
    <message>
        <source>Its header can&#x27;t be read</source>
        <translation>ヘッダーを読み取れません</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be written</source>
        <translation>タグを書き込めません</translation>
    </message>
    <message>
        <source>Looked in:</source>
        <translation>検索した場所:</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>ファイルが開かれていません</translation>
    </message>
    <message>
        <source>No file is open: what is typed here goes nowhere</source>
        <translation>ファイルが開かれていないため、ここに入力しても保存されません</translation>
    </message>
    <message>
        <source>No space is left on its disk</source>
        <translation>ディスクに空きがありません</translation>
    </message>
    <message>
        <source>Not stored in files of this kind</source>
        <translation>この種類のファイルには保存されません</translation>
    </message>
    <message>
        <source>Save as a Copy</source>
        <translation>コピーとして保存</translation>
    </message>
    <message>
        <source>Save as a Copy…</source>
        <translation>コピーとして保存…</translation>
    </message>
    <message>
        <source>Saved &quot;%@&quot;</source>
        <translation>「%@」を保存しました</translation>
    </message>
    <message>
        <source>Store Cover</source>
        <translation>カバーアートを保存対象にする</translation>
    </message>
    <message>
        <source>Store Filled Fields</source>
        <translation>入力された項目を保存対象にする</translation>
    </message>
    <message>
        <source>Take all filled fields for changes, which a save writes</source>
        <translation>入力された項目をすべて変更として扱い、保存時に書き込みます</translation>
    </message>
    <message>
        <source>Take the cover for a change, which a save writes</source>
        <translation>カバーアートを変更として扱い、保存時に書き込みます</translation>
    </message>
    <message>
        <source>The cover is cut from the form only, and stays in the file.</source>
        <translation>カバーアートはフォームから切り取られただけで、ファイルには残っています。</translation>
    </message>
    <message>
        <source>The cover is deleted here. A save in place leaves it in the file.</source>
        <translation>カバーアートはここでは削除されました。その場で保存するとファイルに残ります。</translation>
    </message>
    <message>
        <source>The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.</source>
        <translation>カバーアートは folder.jpg から取り込まれ、変更として扱われます。保存するとファイルに書き込まれます。</translation>
    </message>
    <message>
        <source>The filled fields count as changes now: a save writes them.</source>
        <translation>入力された項目は変更として扱われ、保存すると書き込まれます。</translation>
    </message>
    <message>
        <source>The pasted cover is shown only: a save does not write it.</source>
        <translation>貼り付けたカバーアートは表示されるだけで、保存しても書き込まれません。</translation>
    </message>
    <message>
        <source>There is no file for its tag yet, and a save in place makes none</source>
        <translation>タグ用のファイルがまだなく、その場での保存では作られません</translation>
    </message>
    <message>
        <source>This is no number, and is stored as no year</source>
        <translation>数字ではないため、年なしとして保存されます</translation>
    </message>
    <message>
        <source>Too little media lies behind its header for the header to grow or shrink</source>
        <translation>ヘッダーの後ろのメディアデータが少なすぎるため、ヘッダーの大きさを変えられません</translation>
    </message>
    <message>
        <source>What other programs read goes, too, and so do the changes that you have made here. This can&#x27;t be undone.</source>
        <translation>他のプログラムが読む内容も、ここでの変更も失われます。元に戻せません。</translation>
    </message>
    <message>
        <source>What the last save did</source>
        <translation>最後の保存の結果</translation>
    </message>
    <message>
        <source>What the last search found</source>
        <translation>最後の検索の結果</translation>
    </message>
    <message>
        <source>What was filled in from the web is not stored yet: a save writes only the fields that were typed in.</source>
        <translation>ウェブから入力された内容はまだ保存対象ではありません。保存されるのは手で入力した項目だけです。</translation>
    </message>
    <message>
        <source>You have no permission to write to it</source>
        <translation>書き込む権限がありません</translation>
    </message>
    <message>
        <source>folders that could not be read: %@</source>
        <translation>読み取れなかったフォルダー: %@</translation>
    </message>
    <message>
        <source>open in the form</source>
        <translation>フォームで開いています</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%@&quot;.</source>
        <translation>ファイル「%@」を開けません。</translation>
    </message>
    <message>
        <source>KORVANE Velmora</source>
        <translation>KORVANE Velmora</translation>
    </message>
    <message>
        <source>Velmora can only open local files.</source>
        <translation>Velmora で開けるのはローカルのファイルだけです。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not added.</source>
        <translation>「%@」は追加されませんでした。</translation>
    </message>
    <message>
        <source>Files that could not be added: %@</source>
        <translation>追加できなかったファイル: %@</translation>
    </message>
    <message>
        <source>Please ensure the file is readable and is a valid media file.</source>
        <translation>ファイルが読み取り可能で、正しいメディアファイルであることを確認してください。</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made?</source>
        <translation>変更を保存しますか？</translation>
    </message>
    <message>
        <source>Your changes to &quot;%@&quot; will be lost if you don&#x27;t save them.</source>
        <translation>保存しないと、「%@」への変更は失われます。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>%@.</source>
        <translation>%@。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Don&#x27;t Save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Load Cover Art</source>
        <translation>カバーアートを読み込む</translation>
    </message>
    <message>
        <source>Search Done.</source>
        <translation>検索が完了しました。</translation>
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
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Adults Only</source>
        <translation>成人向け</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>アニメ</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>芸術</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動車</translation>
    </message>
    <message>
        <source>Business / Financial</source>
        <translation>ビジネス / 金融</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>子供向け</translation>
    </message>
    <message>
        <source>Comedy</source>
        <translation>コメディ</translation>
    </message>
    <message>
        <source>Consumer</source>
        <translation>消費生活</translation>
    </message>
    <message>
        <source>Cooking</source>
        <translation>料理</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>犯罪</translation>
    </message>
    <message>
        <source>Documentary</source>
        <translation>ドキュメンタリー</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>ドラマ</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>教育</translation>
    </message>
    <message>
        <source>Game Show</source>
        <translation>クイズ番組</translation>
    </message>
    <message>
        <source>Gay / Lesbian</source>
        <translation>ゲイ / レズビアン</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>祝祭日</translation>
    </message>
    <message>
        <source>House / Garden</source>
        <translation>住まい / 園芸</translation>
    </message>
    <message>
        <source>Mystery</source>
        <translation>ミステリー</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>自然</translation>
    </message>
    <message>
        <source>News</source>
        <translation>ニュース</translation>
    </message>
    <message>
        <source>Performing Arts</source>
        <translation>舞台芸術</translation>
    </message>
    <message>
        <source>Reality</source>
        <translation>リアリティ番組</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>恋愛</translation>
    </message>
    <message>
        <source>Science Fiction</source>
        <translation>SF</translation>
    </message>
    <message>
        <source>Self Improvement</source>
        <translation>自己啓発</translation>
    </message>
    <message>
        <source>Soap</source>
        <translation>連続メロドラマ</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>特別番組</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>スポーツ</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>トーク</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>旅行</translation>
    </message>
    <message>
        <source>Western</source>
        <translation>西部劇</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>アーティスト:</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>アルバム:</translation>
    </message>
    <message>
        <source>Cast:</source>
        <translation>出演者:</translation>
    </message>
    <message>
        <source>Director:</source>
        <translation>監督:</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>カバーアート</translation>
    </message>
    <message>
        <source>Cover art: drop an image here to store it</source>
        <translation>カバーアート: 画像をここにドロップすると保存対象になります</translation>
    </message>
    <message>
        <source>too large to show</source>
        <translation>大きすぎて表示できません</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>画像をここにドロップ</translation>
    </message>
    <message>
        <source>Unable to write tags to file &quot;%@&quot;.</source>
        <translation>ファイル「%@」にタグを書き込めません。</translation>
    </message>
    <message>
        <source>Be sure you have permissions to write to the file, and that it is a valid media file.</source>
        <translation>ファイルへの書き込み権限があり、正しいメディアファイルであることを確認してください。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>プレビュー画像</translation>
    </message>
    <message>
        <source>Preview of the selected file</source>
        <translation>選択したファイルのプレビュー</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>プレビューを再生または一時停止</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>プレビューの再生位置</translation>
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
        <source>Search a site to see its pages here</source>
        <translation>サイトを検索すると、ここにページが表示されます</translation>
    </message>
    <message>
        <source>The web browser component is not installed.</source>
        <translation>ウェブブラウザーのコンポーネントがインストールされていません。</translation>
    </message>
    <message>
        <source>Waiting for the cover …</source>
        <translation>カバーアートを待っています…</translation>
    </message>
    <message>
        <source>Waiting for the cover from %1 …</source>
        <translation>%1 からのカバーアートを待っています…</translation>
    </message>
    <message>
        <source>Web pages are not shown when the program is run by the system administrator.</source>
        <translation>システム管理者がプログラムを実行している場合、ウェブページは表示されません。</translation>
    </message>
    <message>
        <source>Looking for films and music…</source>
        <translation>映画と音楽を探しています…</translation>
    </message>
    <message>
        <source>No media files yet. Add files, or a folder to search, with the buttons above.</source>
        <translation>メディアファイルはまだありません。上のボタンでファイルや検索するフォルダーを追加してください。</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>入力欄を消去</translation>
    </message>
    <message>
        <source>Parts of the window</source>
        <translation>ウィンドウの区画</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>区切り</translation>
    </message>
    <message>
        <source>Gives the parts of the window more or less room</source>
        <translation>ウィンドウの各区画の広さを変えます</translation>
    </message>
    <message>
        <source>No cover art; drop an image here</source>
        <translation>カバーアートはありません。画像をここにドロップしてください</translation>
    </message>
    <message>
        <source>An image of %@ pixels</source>
        <translation>%@ ピクセルの画像</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>映画</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation>その他のファイル</translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation>Alt+J</translation>
    </message>
    <message>
        <source>Alt+Q</source>
        <translation>Alt+Q</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation>Alt+X</translation>
    </message>
    <message>
        <source>Alt+Z</source>
        <translation>Alt+Z</translation>
    </message>
    <message>
        <source>Alt+W</source>
        <translation>Alt+W</translation>
    </message>
    <message>
        <source>Usage: velmora [FILE|FOLDER]...</source>
        <translation>使い方: velmora [ファイル|フォルダー]...</translation>
    </message>
    <message>
        <source>Edits titles, artists, covers and more of films and music.</source>
        <translation>映画や音楽のタイトル、アーティスト、カバーアートなどを編集します。</translation>
    </message>
    <message>
        <source>  FILE       is listed; a single one is opened</source>
        <translation>  ファイル   一覧に加えます。ひとつだけなら開きます</translation>
    </message>
    <message>
        <source>  FOLDER     is searched for films and music</source>
        <translation>  フォルダー 映画と音楽を検索します</translation>
    </message>
    <message>
        <source>  --help     prints this and ends</source>
        <translation>  --help     この説明を表示して終了します</translation>
    </message>
    <message>
        <source>  --version  prints the version and ends</source>
        <translation>  --version  バージョンを表示して終了します</translation>
    </message>
    <message>
        <source>velmora: unknown option %@; --help tells the others</source>
        <translation>velmora: 不明なオプション %@。使えるオプションは --help で表示されます</translation>
    </message>
    <message>
        <source>Files of this kind carry no tag</source>
        <translation>この種類のファイルはタグを持ちません</translation>
    </message>
    <message>
        <source>Files of this kind have no such field</source>
        <translation>この種類のファイルにはこの項目がありません</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>ファイルが壊れています</translation>
    </message>
    <message>
        <source>The file is of a sort that can&#x27;t be saved safely</source>
        <translation>この種のファイルは安全に保存できません</translation>
    </message>
    <message>
        <source>Something is too large for this kind of file</source>
        <translation>この種類のファイルには大きすぎるものがあります</translation>
    </message>
    <message>
        <source>It is no ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>ファイルは書き込み保護されています</translation>
    </message>
    <message>
        <source>The file has further hard links, which would keep the old contents</source>
        <translation>ファイルには他のハードリンクがあり、そちらには古い内容が残ります</translation>
    </message>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>その間に別のプログラムがファイルを変更しました</translation>
    </message>
    <message>
        <source>No space is left for the new file</source>
        <translation>新しいファイルを置く空き容量がありません</translation>
    </message>
    <message>
        <source>The new file would have lost something</source>
        <translation>新しいファイルでは一部の情報が失われるところでした</translation>
    </message>
    <message>
        <source>The system could not confirm that the folder is on the disk</source>
        <translation>フォルダーがディスクに書き込まれたことを、システムが確認できませんでした</translation>
    </message>
    <message>
        <source>The save was cancelled</source>
        <translation>保存はキャンセルされました</translation>
    </message>
    <message>
        <source>The file&#x27;s old contents can&#x27;t be kept for an undo: %@</source>
        <translation>元に戻すためにファイルの以前の内容を残しておくことができません: %@</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be changed in place</source>
        <translation>タグをその場で書き換えられません</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>この通知を閉じる</translation>
    </message>
    <message>
        <source>Saving &quot;%@&quot;…</source>
        <translation>「%@」を保存しています…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Leave the file as it was</source>
        <translation>ファイルを元のままにする</translation>
    </message>
    <message>
        <source>The portable tags of &quot;%@&quot; can&#x27;t be read.</source>
        <translation>「%@」のポータブルタグを読み取れません。</translation>
    </message>
    <message>
        <source>Other programs see more in this file</source>
        <translation>他のプログラムでは、このファイルにより多くの情報が表示されます</translation>
    </message>
    <message>
        <source>Show It</source>
        <translation>表示する</translation>
    </message>
    <message>
        <source>Switch to the tags that other programs read</source>
        <translation>他のプログラムが読むタグに切り替えます</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>Switch to these tags, now and at each start</source>
        <translation>今すぐ、そして起動するたびに、このタグに切り替えます</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved.</source>
        <translation>「%@」は保存されませんでした。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was saved, but not all of it can be read back.</source>
        <translation>「%@」は保存されましたが、一部は読み戻せません。</translation>
    </message>
    <message>
        <source>Save With Portable Tags</source>
        <translation>ポータブルタグで保存</translation>
    </message>
    <message>
        <source>Write the changes into the tags that other programs read, and replace the file in one step</source>
        <translation>他のプログラムが読むタグに変更を書き込み、ファイルを一度に置き換えます</translation>
    </message>
    <message>
        <source>Save so, and do so from now on, also after the next start</source>
        <translation>この方法で保存します。今後も、次の起動後も同様です</translation>
    </message>
    <message>
        <source>Saved. Other programs see it: %@</source>
        <translation>保存しました。他のプログラムからも読み取れます: %@</translation>
    </message>
    <message>
        <source>Saved. Other programs read no tag in files of this kind: %@</source>
        <translation>保存しました。他のプログラムはこの種類のファイルのタグを読み取りません: %@</translation>
    </message>
    <message>
        <source>Replace Anyway</source>
        <translation>それでも置き換える</translation>
    </message>
    <message>
        <source>The other links keep the old contents</source>
        <translation>他のリンクには古い内容が残ります</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved; its edits are kept.</source>
        <translation>「%@」は保存されませんでした。編集内容は保持されています。</translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>保存されなかった編集を復元</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>編集を保存できなかったファイルを開き直し、編集内容を元どおりに入れます</translation>
    </message>
    <message>
        <source>The edits of &quot;%@&quot; are back, and not saved yet.</source>
        <translation>「%@」の編集内容を戻しました。まだ保存されていません。</translation>
    </message>
    <message>
        <source>A percent sign stands alone. Write %% for a percent sign.</source>
        <translation>パーセント記号が単独で使われています。パーセント記号そのものは %% と書いてください。</translation>
    </message>
    <message>
        <source>There is no field &quot;%@&quot;.</source>
        <translation>「%@」という項目はありません。</translation>
    </message>
    <message>
        <source>The name does not fit the pattern</source>
        <translation>名前がパターンに合いません</translation>
    </message>
    <message>
        <source>Files of this kind have no such field: %@</source>
        <translation>この種類のファイルにはこの項目がありません: %@</translation>
    </message>
    <message>
        <source>It says so already</source>
        <translation>すでにその値です</translation>
    </message>
    <message>
        <source>It has that name already</source>
        <translation>すでにその名前です</translation>
    </message>
    <message>
        <source>The name is cut: it would be too long</source>
        <translation>名前が長すぎるため短縮されます</translation>
    </message>
    <message>
        <source>No value: %@</source>
        <translation>値がありません: %@</translation>
    </message>
    <message>
        <source>No name is left of the values</source>
        <translation>値から名前を作れません</translation>
    </message>
    <message>
        <source>The file keeps its name: its tag lies in another file that goes by it</source>
        <translation>ファイルの名前は変わりません。タグは、その名前に対応する別のファイルにあります</translation>
    </message>
    <message>
        <source>Another row has that name or is to get it</source>
        <translation>別の行がその名前であるか、その名前になる予定です</translation>
    </message>
    <message>
        <source>There is a file of that name</source>
        <translation>その名前のファイルがすでにあります</translation>
    </message>
    <message>
        <source>Its tags have not been read yet</source>
        <translation>タグはまだ読み取られていません</translation>
    </message>
    <message>
        <source>Its tags can&#x27;t be read</source>
        <translation>タグを読み取れません</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>Tags from Names</source>
        <translation>名前からタグを作成</translation>
    </message>
    <message>
        <source>Names from Tags</source>
        <translation>タグから名前を作成</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>パターン(&amp;P):</translation>
    </message>
    <message>
        <source>Fields between percent signs, and the text between them</source>
        <translation>パーセント記号で囲んだ項目と、その間の文字</translation>
    </message>
    <message>
        <source>&amp;Insert Field</source>
        <translation>項目を挿入(&amp;I)</translation>
    </message>
    <message>
        <source>Put a field into the pattern</source>
        <translation>パターンに項目を挿入します</translation>
    </message>
    <message>
        <source>%skip% stands for text that is left out, a slash for a folder.</source>
        <translation>%skip% は読み飛ばす文字、スラッシュはフォルダーを表します。</translation>
    </message>
    <message>
        <source>%folder% stands for the name of the file&#x27;s folder.</source>
        <translation>%folder% はファイルのあるフォルダーの名前を表します。</translation>
    </message>
    <message>
        <source>What becomes of every file</source>
        <translation>各ファイルの変更結果</translation>
    </message>
    <message>
        <source>Show only files that something is &amp;wrong with</source>
        <translation>問題のあるファイルだけを表示(&amp;W)</translation>
    </message>
    <message>
        <source>Hide the files that the pattern fits</source>
        <translation>パターンに合うファイルを隠します</translation>
    </message>
    <message>
        <source>&amp;Set Tags</source>
        <translation>タグを設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Set Names</source>
        <translation>名前を設定(&amp;S)</translation>
    </message>
    <message>
        <source>Make these edits of the table; no file changes before they are applied</source>
        <translation>表の編集として取り込みます。適用するまでファイルは変わりません</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>すべてそのままにします</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>新しい名前</translation>
    </message>
    <message>
        <source>The preview is being made.</source>
        <translation>プレビューを作成しています。</translation>
    </message>
    <message>
        <source>Files that change: %@.</source>
        <translation>変わるファイル: %@。</translation>
    </message>
    <message>
        <source>Files that something is wrong with: %@; they are left alone.</source>
        <translation>問題のあるファイル: %@。これらはそのままにします。</translation>
    </message>
    <message>
        <source>&amp;Tags from Names…</source>
        <translation>名前からタグを作成(&amp;T)…</translation>
    </message>
    <message>
        <source>Take the tags of the selected files from their names, by a pattern</source>
        <translation>選択したファイルのタグを、パターンに従って名前から作ります</translation>
    </message>
    <message>
        <source>&amp;Names from Tags…</source>
        <translation>タグから名前を作成(&amp;N)…</translation>
    </message>
    <message>
        <source>Give the selected files names made of their tags, by a pattern</source>
        <translation>選択したファイルに、パターンに従ってタグから作った名前を付けます</translation>
    </message>
    <message>
        <source>The pattern is empty.</source>
        <translation>パターンが空です。</translation>
    </message>
    <message>
        <source>There is nothing beside a slash.</source>
        <translation>スラッシュの隣に何もありません。</translation>
    </message>
    <message>
        <source>Nothing divides one field from the next.</source>
        <translation>項目と項目の間に区切りがありません。</translation>
    </message>
    <message>
        <source>A field comes twice.</source>
        <translation>同じ項目が二度使われています。</translation>
    </message>
    <message>
        <source>%skip% has no place in a new name.</source>
        <translation>%skip% は新しい名前には使えません。</translation>
    </message>
    <message>
        <source>A name has no slash: files stay in their folders.</source>
        <translation>名前にスラッシュは使えません。ファイルは元のフォルダーに残ります。</translation>
    </message>
    <message>
        <source>There is no field in the pattern.</source>
        <translation>パターンに項目がありません。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ not applied</source>
        <translation>未適用: %@</translation>
    </message>
    <message>
        <source>%@ selected</source>
        <translation>選択: %@</translation>
    </message>
    <message>
        <source>%@ shown</source>
        <translation>表示: %@</translation>
    </message>
    <message>
        <source>%@ to be read</source>
        <translation>未読み取り: %@</translation>
    </message>
    <message>
        <source>%@, not applied</source>
        <translation>%@、未適用</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Album / Director</source>
        <translation>アルバム / 監督</translation>
    </message>
    <message>
        <source>Artist / Cast</source>
        <translation>アーティスト / 出演者</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>カバーアート</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Library Table</source>
        <translation>ライブラリの表</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>レーティング</translation>
    </message>
    <message>
        <source>Synopsis / Comment</source>
        <translation>あらすじ / コメント</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>The guide&#x27;s text</source>
        <translation>ガイドの本文</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>移動先(&amp;G):</translation>
    </message>
    <message>
        <source>Go to a heading of the guide</source>
        <translation>ガイドの見出しへ移動します</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Find words in the guide; Return goes to the next place</source>
        <translation>ガイドの中の言葉を探します。Enter キーで次の箇所へ移ります</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>ユーザーガイドがインストールされていません。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>すべてのキーとその働き</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>このウィンドウを閉じる</translation>
    </message>
    <message>
        <source>%@ menu</source>
        <translation>%@メニュー</translation>
    </message>
    <message>
        <source>Letters, in the list</source>
        <translation>文字（一覧で）</translation>
    </message>
    <message>
        <source>The next name that begins with them</source>
        <translation>その文字で始まる次の名前へ</translation>
    </message>
    <message>
        <source>In the list: the file above, below</source>
        <translation>一覧で: 上のファイル、下のファイル</translation>
    </message>
    <message>
        <source>On the cover: cut it</source>
        <translation>カバーアートで: 切り取る</translation>
    </message>
    <message>
        <source>On the cover: copy it</source>
        <translation>カバーアートで: コピーする</translation>
    </message>
    <message>
        <source>On the cover: paste one</source>
        <translation>カバーアートで: 貼り付ける</translation>
    </message>
    <message>
        <source>The next control</source>
        <translation>次のコントロールへ</translation>
    </message>
    <message>
        <source>The control before</source>
        <translation>前のコントロールへ</translation>
    </message>
    <message>
        <source>The menus</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>The buttons of the line above the form</source>
        <translation>フォームの上の行のボタン</translation>
    </message>
    <message>
        <source>Ends the wait for a page or a cover; closes the line above the form</source>
        <translation>ページやカバーアートを待つのをやめます。フォームの上の行を閉じます</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Velmora について</translation>
    </message>
    <message>
        <source>MIT licence: free to use, to change and to pass on, without any warranty.</source>
        <translation>MIT ライセンス: 自由に使用、変更、再配布できます。保証はありません。</translation>
    </message>
    <message>
        <source>Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, libjpeg and libpng, each under its own licence.</source>
        <translation>Qt %@（ウェブエンジンとマルチメディアを含む）、TagLib、GStreamer、libjpeg、libpng を使用しています。それぞれのライセンスに従います。</translation>
    </message>
    <message>
        <source>What Velmora is and what it is built on</source>
        <translation>Velmora の概要と使用しているソフトウェア</translation>
    </message>
    <message>
        <source>The window will look like this at each start.</source>
        <translation>起動するたびに、ウィンドウはこの配置になります。</translation>
    </message>
    <message>
        <source>The layout can&#x27;t be remembered: the settings file can&#x27;t be written.</source>
        <translation>配置を記憶できません。設定ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>Nothing is remembered any more: there is no settings file.</source>
        <translation>何も記憶していません。設定ファイルはありません。</translation>
    </message>
    <message>
        <source>The settings file can&#x27;t be removed.</source>
        <translation>設定ファイルを削除できません。</translation>
    </message>
    <message>
        <source>The next start will not know of it: the settings file can&#x27;t be written.</source>
        <translation>次回の起動時には引き継がれません。設定ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; can&#x27;t be written.</source>
        <translation>「%@」に書き込めません。</translation>
    </message>
    <message>
        <source>%@ a second</source>
        <translation>毎秒 %@</translation>
    </message>
    <message>
        <source>%@ changed since and left alone</source>
        <translation>%@ 件はその後変更されたためそのまま</translation>
    </message>
    <message>
        <source>%@ done</source>
        <translation>%@ 件完了</translation>
    </message>
    <message>
        <source>%@ failed</source>
        <translation>%@ 件失敗</translation>
    </message>
    <message>
        <source>%@ files</source>
        <translation>%@ ファイル</translation>
    </message>
    <message>
        <source>%@ left</source>
        <translation>残り %@</translation>
    </message>
    <message>
        <source>%@ not reached</source>
        <translation>%@ 件未処理</translation>
    </message>
    <message>
        <source>%@ unchanged</source>
        <translation>%@ 件変更なし</translation>
    </message>
    <message>
        <source>&amp;Artist or cast:</source>
        <translation>アーティストまたは出演者(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>ジャンル(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>変更を破棄(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>年(&amp;Y):</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>適用(&amp;P)</translation>
    </message>
    <message>
        <source>Al&amp;bum or director:</source>
        <translation>アルバムまたは監督(&amp;B):</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>C&amp;over:</source>
        <translation>カバーアート(&amp;O):</translation>
    </message>
    <message>
        <source>Cancelled before its turn</source>
        <translation>順番が来る前にキャンセルされました</translation>
    </message>
    <message>
        <source>Changed since, left alone</source>
        <translation>その後変更されたためそのまま</translation>
    </message>
    <message>
        <source>Choose a Cover</source>
        <translation>カバーアートを選択</translation>
    </message>
    <message>
        <source>Choose a picture as the cover of the selected files</source>
        <translation>選択したファイルのカバーアートにする画像を選びます</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>結果のまとめを閉じます</translation>
    </message>
    <message>
        <source>Copy the current column of the selected rows</source>
        <translation>選択した行の現在の列をコピーします</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>選択したファイルのパスをコピーします</translation>
    </message>
    <message>
        <source>Copy the selected rows with the columns that are shown, for a spreadsheet</source>
        <translation>選択した行を表示中の列とともに表計算用にコピーします</translation>
    </message>
    <message>
        <source>Do you want to remove files with edits that are not applied?</source>
        <translation>適用していない編集があるファイルを一覧から外しますか？</translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>%Ln 個のファイルの編集が失われます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>A file is still being saved in the main window. Try again when that is done.</source>
        <translation>メインウィンドウでファイルを保存しています。終わってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Drop Them</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Drop what was edited in the selected files and not applied</source>
        <translation>選択したファイルの未適用の編集を破棄します</translation>
    </message>
    <message>
        <source>Edit the text of the current cell</source>
        <translation>現在のセルの文字を編集します</translation>
    </message>
    <message>
        <source>Edits in the library table are not applied yet.</source>
        <translation>ライブラリの表の編集はまだ適用されていません。</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files that were not changed</source>
        <translation>変更されなかったファイル</translation>
    </message>
    <message>
        <source>Give the files of the last apply their old values and names back</source>
        <translation>最後に適用したファイルの値と名前を元に戻します</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>列を左へ移動</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>列を右へ移動</translation>
    </message>
    <message>
        <source>Open the file in the program&#x27;s main window</source>
        <translation>ファイルをプログラムのメインウィンドウで開きます</translation>
    </message>
    <message>
        <source>Open the folder in which the file is</source>
        <translation>ファイルのあるフォルダーを開きます</translation>
    </message>
    <message>
        <source>Put the cells of the clipboard into the table from the current cell on</source>
        <translation>クリップボードのセルを、現在のセルから順に表へ貼り付けます</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>レーティング(&amp;I):</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Remove the cover from the selected files</source>
        <translation>選択したファイルからカバーアートを削除します</translation>
    </message>
    <message>
        <source>Show only the files that have these words in any column; artist:, year:1990-1999, missing:cover and the like look closer</source>
        <translation>いずれかの列にこれらの語があるファイルだけを表示します。artist:、year:1990-1999、missing:cover などで絞り込めます</translation>
    </message>
    <message>
        <source>Stop; each file is as it was or as it was to be</source>
        <translation>停止します。どのファイルも元のままか、変更後の状態です</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis or comment:</source>
        <translation>あらすじまたはコメント(&amp;N):</translation>
    </message>
    <message>
        <source>Take the selected files off the list; they stay where they are</source>
        <translation>選択したファイルを一覧から外します。ファイルそのものは元の場所に残ります</translation>
    </message>
    <message>
        <source>The album of the selected songs, the director of the selected films</source>
        <translation>選択した曲のアルバム、選択した映画の監督</translation>
    </message>
    <message>
        <source>The artist of the selected songs, the cast of the selected films</source>
        <translation>選択した曲のアーティスト、選択した映画の出演者</translation>
    </message>
    <message>
        <source>The cover of the selected files: drop a picture here, or paste one</source>
        <translation>選択したファイルのカバーアート。画像をドロップするか貼り付けます</translation>
    </message>
    <message>
        <source>The files that were not changed, and why</source>
        <translation>変更されなかったファイルとその理由</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>ジャンル。選ぶか、自由に入力します</translation>
    </message>
    <message>
        <source>The parental rating of the selected films</source>
        <translation>選択した映画の年齢区分</translation>
    </message>
    <message>
        <source>The table could not be exported.</source>
        <translation>表をエクスポートできませんでした。</translation>
    </message>
    <message>
        <source>The tags are right, the name is the old one: %@</source>
        <translation>タグは正しく書き込まれましたが、名前は元のままです: %@</translation>
    </message>
    <message>
        <source>The title of the selected files</source>
        <translation>選択したファイルのタイトル</translation>
    </message>
    <message>
        <source>The year of release, of up to four digits</source>
        <translation>公開・発売された年（4 桁まで）</translation>
    </message>
    <message>
        <source>They are lost when the program ends.</source>
        <translation>プログラムを終了すると失われます。</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Try the files again that were not changed</source>
        <translation>変更されなかったファイルを再試行します</translation>
    </message>
    <message>
        <source>Type what is to be shown</source>
        <translation>表示するものを入力します</translation>
    </message>
    <message>
        <source>Undo Apply</source>
        <translation>適用を元に戻す</translation>
    </message>
    <message>
        <source>What the selected films are about, or a comment on the songs</source>
        <translation>選択した映画のあらすじ、または曲へのコメント</translation>
    </message>
    <message>
        <source>Words, artist:name, year:1990-1999, missing:cover</source>
        <translation>語句、artist:名前、year:1990-1999、missing:cover</translation>
    </message>
    <message>
        <source>Write the rows and columns that are shown into a file, as CSV or JSON</source>
        <translation>表示中の行と列を CSV または JSON としてファイルに書き出します</translation>
    </message>
    <message>
        <source>Write what was edited into the files</source>
        <translation>編集内容をファイルに書き込みます</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>書き込み中…</translation>
    </message>
    <message>
        <source>several covers</source>
        <translation>複数のカバーアート</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>複数の値</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>名前(&amp;S)</translation>
    </message>
    <message>
        <source>Ro&amp;w</source>
        <translation>行(&amp;W)</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>フィルター(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>エクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Undo Apply</source>
        <translation>適用を元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>セルを編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>行をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy Co&amp;lumn</source>
        <translation>列をコピー(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>セルを貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>フィルター(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>並べ替え(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>次の並べ替え(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open in Editor</source>
        <translation>エディターで開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>フォルダーで表示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>パスをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>一覧から外す(&amp;R)</translation>
    </message>
    <message>
        <source>The listed files and what their tags say</source>
        <translation>一覧にあるファイルと、そのタグの内容</translation>
    </message>
    <message>
        <source>Locate File…</source>
        <translation>ファイルを探す…</translation>
    </message>
    <message>
        <source>Show where the file is now: it is opened there with your edits, which are not saved yet</source>
        <translation>ファイルの今の場所を指定します。編集内容はそのままに、未保存の状態でそこで開きます</translation>
    </message>
    <message>
        <source>Locate &quot;%@&quot;</source>
        <translation>「%@」を探す</translation>
    </message>
    <message>
        <source>Cells that can't take what was pasted: %@</source>
        <translation>貼り付けた内容を入れられないセル: %@</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Paste and Store Cover</source>
        <translation>カバーアートを貼り付けて保存対象にする(&amp;P)</translation>
    </message>
    <message>
        <source>Make the image that was copied the cover, which a save writes</source>
        <translation>コピーした画像をカバーアートにし、保存時に書き込みます</translation>
    </message>
    <message>
        <source>&amp;Trim Border</source>
        <translation>縁を切り取る(&amp;T)</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>カバーアートから単色の縁を切り取ります</translation>
    </message>
    <message>
        <source>&amp;Delete Cover</source>
        <translation>カバーアートを削除(&amp;D)</translation>
    </message>
    <message>
        <source>Take the cover away, which a save with portable tags writes</source>
        <translation>カバーアートを取り除きます。ポータブルタグで保存すると書き込まれます</translation>
    </message>
    <message>
        <source>Delete &amp;All Tags from File…</source>
        <translation>ファイルのタグをすべて削除(&amp;A)…</translation>
    </message>
    <message>
        <source>Delete every tag of the file, for all programs</source>
        <translation>すべてのプログラム向けのタグをファイルから削除します</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>ファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>フォルダーを追加(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>変更を破棄(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Find in List</source>
        <translation>一覧で検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Load Cover Art…</source>
        <translation>カバーアートを読み込む(&amp;L)…</translation>
    </message>
    <message>
        <source>Look &amp;Up on the Web</source>
        <translation>ウェブで調べる(&amp;U)</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>名前で並べ替え(&amp;N)</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>サイズで並べ替え(&amp;S)</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>日付で並べ替え(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Portable Tags</source>
        <translation>ポータブルタグ(&amp;P)</translation>
    </message>
    <message>
        <source>Open and save with the tags that other programs read</source>
        <translation>他のプログラムが読むタグで開き、保存します</translation>
    </message>
    <message>
        <source>Restore Unsaved &amp;Edits</source>
        <translation>保存されなかった編集を復元(&amp;E)</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>編集を保存できなかったファイルを開き直し、編集内容を元どおりに入れます</translation>
    </message>
    <message>
        <source>&amp;Library Table</source>
        <translation>ライブラリの表(&amp;L)</translation>
    </message>
    <message>
        <source>Show all files of the list with their tags, and edit many at once</source>
        <translation>一覧のすべてのファイルをタグとともに表示し、まとめて編集します</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>ユーザーガイド(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation>Velmora について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remember This Layout</source>
        <translation>この配置を記憶(&amp;R)</translation>
    </message>
    <message>
        <source>Start with this size, division, column widths and sorting from now on</source>
        <translation>今後はこのサイズ、分割、列の幅、並べ替えで起動します</translation>
    </message>
    <message>
        <source>&amp;Forget Everything</source>
        <translation>記憶をすべて消去(&amp;F)</translation>
    </message>
    <message>
        <source>Remove the settings file, with the layout and the choice of portable tags</source>
        <translation>配置とポータブルタグの選択を含む設定ファイルを削除します</translation>
    </message>
</context>
<context>
    <name>MediaList</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>ファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>一覧にファイルを追加します</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>フォルダーを追加(&amp;O)…</translation>
    </message>
    <message>
        <source>Search a folder for media files</source>
        <translation>フォルダー内のメディアファイルを検索します</translation>
    </message>
    <message>
        <source>Turns while folders are searched</source>
        <translation>フォルダーを検索している間、回ります</translation>
    </message>
    <message>
        <source>Search in progress</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>The folder that is being searched</source>
        <translation>検索中のフォルダー</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>停止(&amp;P)</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>検索を停止します</translation>
    </message>
    <message>
        <source>The media files found; type a name to find one</source>
        <translation>見つかったメディアファイル。名前を入力すると探せます</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>メディアファイル</translation>
    </message>
</context>
<context>
    <name>TagForm</name>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>The title of the film or song</source>
        <translation>映画または曲のタイトル</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>年(&amp;Y):</translation>
    </message>
    <message>
        <source>The year of release</source>
        <translation>公開・発売された年</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>アーティスト:</translation>
    </message>
    <message>
        <source>The artist of a song, the cast of a film</source>
        <translation>曲のアーティスト、映画の出演者</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>ジャンル(&amp;G):</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>ジャンル。選ぶか、自由に入力します</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>アルバム:</translation>
    </message>
    <message>
        <source>The album of a song, the director of a film</source>
        <translation>曲のアルバム、映画の監督</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>レーティング(&amp;I):</translation>
    </message>
    <message>
        <source>The parental rating of a film</source>
        <translation>映画の年齢区分</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis:</source>
        <translation>あらすじ(&amp;N):</translation>
    </message>
    <message>
        <source>What the film is about</source>
        <translation>映画の内容</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>日付(&amp;D):</translation>
    </message>
    <message>
        <source>The date, for information: it is not written into the file</source>
        <translation>日付（参考）。ファイルには書き込まれません</translation>
    </message>
    <message>
        <source>&amp;Cover Art:</source>
        <translation>カバーアート(&amp;C):</translation>
    </message>
    <message>
        <source>The cover art; drop an image here</source>
        <translation>カバーアート。画像をここにドロップできます</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>読み込む(&amp;L)…</translation>
    </message>
    <message>
        <source>Load cover art from an image file</source>
        <translation>画像ファイルからカバーアートを読み込みます</translation>
    </message>
    <message>
        <source>Tri&amp;m</source>
        <translation>トリミング(&amp;M)</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>カバーアートから単色の縁を切り取ります</translation>
    </message>
    <message>
        <source>Remo&amp;ve Tag</source>
        <translation>タグを外す(&amp;V)</translation>
    </message>
    <message>
        <source>Forget the changes without writing them</source>
        <translation>変更を書き込まずに破棄します</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>変更を破棄(&amp;R)</translation>
    </message>
    <message>
        <source>Read the file again and drop the changes</source>
        <translation>ファイルを読み直し、変更を破棄します</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Write the changes into the file (Ctrl+S)</source>
        <translation>変更をファイルに書き込みます（Ctrl+S）</translation>
    </message>
    <message>
        <source>for information only</source>
        <translation>参考のみ</translation>
    </message>
</context>
<context>
    <name>MoviePreview</name>
    <message>
        <source>Preview:</source>
        <translation>プレビュー:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>A preview of the file</source>
        <translation>ファイルのプレビュー</translation>
    </message>
    <message>
        <source>This file can’t be previewed.</source>
        <translation>このファイルはプレビューできません。</translation>
    </message>
    <message>
        <source>Ta&amp;ke Frame</source>
        <translation>フレームを使用(&amp;K)</translation>
    </message>
    <message>
        <source>Take the frame shown as cover art</source>
        <translation>表示中のフレームをカバーアートにします</translation>
    </message>
</context>
<context>
    <name>TagWebBrowser</name>
    <message>
        <source>Look &amp;up:</source>
        <translation>調べる(&amp;U):</translation>
    </message>
    <message>
        <source>The site to search</source>
        <translation>検索するサイト</translation>
    </message>
    <message>
        <source>The text to search for</source>
        <translation>検索する文字</translation>
    </message>
    <message>
        <source>Searc&amp;h</source>
        <translation>検索(&amp;H)</translation>
    </message>
    <message>
        <source>Search the site for the text</source>
        <translation>サイトで文字を検索します</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Go back to the page before</source>
        <translation>前のページに戻ります</translation>
    </message>
    <message>
        <source>Turns while a page loads</source>
        <translation>ページを読み込んでいる間、回ります</translation>
    </message>
    <message>
        <source>Page loading</source>
        <translation>ページを読み込み中</translation>
    </message>
    <message>
        <source>Fill Form</source>
        <translation>フォームに入力</translation>
    </message>
    <message>
        <source>Fill the form from the page shown</source>
        <translation>表示中のページからフォームに入力します</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>The address of the page shown</source>
        <translation>表示中のページのアドレス</translation>
    </message>
    <message>
        <source>Address of the page</source>
        <translation>ページのアドレス</translation>
    </message>
    <message>
        <source>What the form fill waits for</source>
        <translation>フォームの入力が待っているもの</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Fill the form without the cover (Esc)</source>
        <translation>カバーアートなしでフォームに入力します（Esc）</translation>
    </message>
    <message>
        <source>The page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>ウェブページ</translation>
    </message>
    <message>
        <source>The page could not be loaded.</source>
        <translation>ページを読み込めませんでした。</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>サイト:</translation>
    </message>
</context>
</TS>
