<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Causes</name>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot edit %1: %2</source>
        <translation>%1 を編集できません: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>%1 の名前を変更できません: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>%1 の名前を %2 に変更できません: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>フォルダーに書き込めません。%1 のアクセス権を変更してください</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>フォルダーを変更できるのは所有者だけです。%1 の所有者またはアクセス権を変更してください</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>ディスクに新しい版を書き込む空きがありません (必要 %1 バイト、空き %2 バイト)。空きを増やしてください</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>書き込みが禁止されています。書き込みを許可するか、--force を付けてください</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>サイドカー %1 は書き込みが禁止されています。書き込みを許可するか、--force を付けてください</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>サイドカーもあわせて編集する必要があります。%1。サイドカーを修復するか移動してください</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>サイドカー %1 もあわせて編集する必要がありますが、%2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>ずらす日付がありません</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>年が1から9999の範囲を外れます</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>メタデータを失わずに変更できません (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>変更後のメタデータが誤ったものになります</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>テキストとして保存されたEXIFデータが破損しています</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>EXIFデータが破損しています</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>XMPデータが破損しています</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>TIFFのディレクトリが破損しています</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>画像の形式が不明です</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>この形式は編集できません</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>%1 形式の写真は編集できません</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>画像そのものが変わってしまいます</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空のファイルです</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>破損しています: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>2 GiBを超えています</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>4 MiBを超えています</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>読み取り中に変更されました</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>編集に必要なメモリが足りません</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>JPEGデータが破損しています</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>JPEGデータが画像の前で終わっています</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>JPEGデータが画像の前で途切れています</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>EXIFブロックに空きがありません</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>PNGデータが途切れています</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>PNGデータが画像で始まっていません</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>EXIFブロックが2つあります</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>WebPデータが途切れています</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>WebPデータに画像がありません</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 をその場で変更できません</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>%1データの中の日付を変更できません</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%2データの中の %1 を変更できません</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>終わりの前で途切れています</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>テキストが破損しています</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>プロパティが多すぎます</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 は変更していません: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 を編集しましたが、カタログを更新できませんでした (%2)。次に lumidex を実行すると更新されます</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 を書き込んだとおりに読み戻せません</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 は %2 に付属するため、そのままにします</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 は今のところありませんが、各版は保管されています (%2)。ディスクの空きを増やして、「lumidex undo」をもう一度実行してください</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 はそのままにします: もう一方の版を保管していた %2 をほかのプログラムが変更しました</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 はそのままにします: ディスクにもう一方の版 (%2 バイト) を置く空きがありません。空きを増やして、もう一度試してください</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 はそのままにします: もう一方の版はもう保管されていません</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 は後から変更されたため、そのままにします</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 はもうありません</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 にアクセスできません: ディスクが接続されていない可能性があります</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>元に戻すための記録 %1 を使えません: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>ほかのプログラムがこれを使って写真の名前を変更または編集しています。終わってからもう一度試してください</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>完了と取り消しのための空き %1 MiBがないと、操作を始められません (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>元に戻すための空きがありません (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>リンク %1 の参照先を変更できません: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>%1 をごみ箱に移動できません: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>ごみ箱に空いている名前がありません</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>同じ名前の別のファイルがあります</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>元の名前の別のファイルがあります</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>別のボリュームにあります</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>もうファイルではありません</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 は、写真を残したため、残しました</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 は、代わりに残した写真 %2 がもうないため、残しました</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 はごみ箱に %2 としてありますが、アクセスできません: ディスクが接続されていない可能性があります</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 はごみ箱に %2 としてあるかもしれませんが、読み取れません: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 はもうごみ箱にありません。同じ名前の別のファイルがあります</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 はもうごみ箱になく、元に戻せません</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 はごみ箱に %2 として残っています: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>アルバム「%1」は、後から写真が追加されたため、残します</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>アルバム「%1」はもうありません</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>別のアルバムの名前が「%1」になっています</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 は残します: %2。</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>すでにごみ箱にあります</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>別のファイルへのリンクです</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>もうありません</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>分析の後に変更されました</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>比較の後に変更されました</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>残すファイルの別名です</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>残す %1 と同じ撮影のものです</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>グループのほかの写真には似ていますが、残す写真 %1 には似ていません</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>残す写真 %1 にないタグまたはアルバムがあります</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>RAWファイルで、グループに残すRAWファイルがありません</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>設定 %1 が失われます: 残す写真 %2 にはこの設定がありません</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>リンク %1 がこれを指しています</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>付属元の %1 を残します</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>%1 の設定が変更されました</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>残す写真 %1 はもうありません</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>残す写真 %1 は分析の後に変更されました</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>残す写真 %1 はもうファイルではありません</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>残す写真 %1 を読み取れません (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>残す写真 %1 はごみ箱にあります</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>残す写真 %1 は別のファイルへのリンクです</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>残す写真 %1 は画像の終わりの前で途切れています</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>残す写真 %1 は破損しています: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>中断していた「%1」の取り消しが完了しました。</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>中断していた「%1」のやり直しが完了しました。</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>中断していた「%1」の取り消しが、次を除いて完了しました:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>中断していた「%1」のやり直しが、次を除いて完了しました:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>中断していた操作「%1」が完了しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>「%1」は中断しました。%2 にアクセスできるようになったら完了します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>「%1」は中断し、完了できません (%2)。ファイルは元の名前です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>「%1」は中断し、完了することも (%2)、元に戻すこともできません (%3)。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>「%1」は中断しました。編集した写真: %2。残りは変更していません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>「%1」は中断しました。作成したコピー: %2。残りをコピーするには同じ取り込みを実行してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>「%1」は中断しました。移動したファイル: %2。残りは元の場所にあります。</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>このカタログにない元のファイルを %1 に移動しました。</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 とサイドカーの内容が一致しません。片方だけが編集されたためです (%2)。</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>パイプまたはデバイスです</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>空のファイルです</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>破損しています: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>画像の形式が不明です</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>名前が正しいテキストではありません</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>名前は管理用ファイルですが、画像または動画の可能性があります</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>リンク先のファイルがありません</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>リンク先のファイルを読み取れません</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>リンクが自分自身に戻っています</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>リンク先のフォルダーを読み取れません</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>リンクが上のフォルダーに戻っています</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>リンク先のフォルダーはすでに調べています</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 は隠しファイルです</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 は写真の名前ではありません</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 は存在しないファイルへのリンクです</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>コピー中に変更されました</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>コピーが元のファイルと異なります</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>コピーを書き込めません: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>コピーを読み戻せません: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>コピーを記録できません</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>その間に別のファイルの名前が %1 になりました</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>コピーできなかった %1 と同じ内容です</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>取り込みを中断しました</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>見つからない写真%1枚のどれかの可能性があります</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>見つかりません。候補のファイルが%1個あります</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>変更または置き換えられていて、以前の内容のファイルがあります</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>同一のファイル</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>画素が同じ</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>同じ画像、縮小</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>同じ画像、拡大</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>同じ画像、再圧縮または別の形式</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>同じ画像、左右反転</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>同じ画像、明るい</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>同じ画像、暗い</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>同じ画像、コントラストが強い</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>同じ画像、コントラストが弱い</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>同じ画像、シャープ化</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>同じ画像、全体に変更あり</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>同じ画像、大きくて詳細</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>同じ画像に枠または文字を追加</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>同じ画像、色なし</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>同じ画像、色あり</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>プレビューで見るかぎり同じ画像</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>少ない画素で見るかぎり同じ画像</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>縮小して見るかぎり同じ画像</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>同じ画像、ただし%1に小さな違い</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>ほぼ同じ眺め</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>同じ眺め、少し回転</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>同じ眺め、切り抜き</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>同じ眺め、周囲が広い</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>同じ眺め、明るい</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>同じ眺め、暗い</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>別の単色</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>別のものが写っている</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>ところどころ異なる</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>%1が異なる</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>比較できません: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>残す写真を比較できません: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>画素が少なすぎます</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>一部が透明です</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>画像の終わりの前で途切れています</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>画像の後ろに別のデータがあります</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>1つのファイルに複数の画像がある場合、比較できるのは最初の画像だけです</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>比較に必要なメモリが足りません</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>画像をまったくデコードできません</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>画像の先頭が破損しています</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>画像の一部が破損しています</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>内容が既知の形式の画像ではありません</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>システムがだれにも移動を許していません。属性「immutable」を外してください</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>同じ名前のリンクがそばにあり、その名前は変更されません: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>日付がありません</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>読み取れる日付がありません: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>2回指定されています</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 は別の場所へのリンクです。取り込みではリンクを通して書き込みません。リンクを削除してから、もう一度取り込んでください。</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 はファイルではありません。取り込みではここにファイルを置きます。削除してから、もう一度取り込んでください。</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 は別のファイルの別名 (ハードリンク) です。取り込みではそのようなファイルに書き込みません。コピーに置き換えるか削除してから、もう一度取り込んでください。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>%1 に十分な空きがありません: 必要 %2 バイト、空き %3 バイト。</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>は写真2枚の名前になってしまいます: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>はファイル2個の名前になってしまいます: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>は別のファイルの名前です: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>は別の写真またはそのサイドカーの名前です: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>は名前を変更できない写真の名前です: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>にはフォルダーの区切り文字 %1 が含まれています</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>には読み取れない文字を表す記号が含まれています</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>には制御文字が含まれています</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>には文字 %1 が含まれています</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>はピリオドで始まるため、ファイルが隠れます</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>は%1バイトを超えています</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>はWindowsのデバイスの名前です</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>の末尾のピリオドはWindowsで取り除かれます</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>の末尾の空白はWindowsで取り除かれます</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>は正しいUTF-8ではありません</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>フォルダーの選択</translation>
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
        <source>Yes to &amp;All</source>
        <translation>すべてはい(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>すべていいえ(&amp;O)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
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
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>アルバムの候補</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>似ている写真</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>年ごとのグループ</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>似ている写真はありません</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>似ている写真がカタログに入ると、ここにグループが表示されます。</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>年ごとのアルバム</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>アルバムはまだありません</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>祝日や、ある月の週末の写真が十分に集まると、ここにアルバムが表示されます。ほかのフォルダーを読み込んで、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>名前のないアルバム</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>日付なし</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>採用済み</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>画像なし</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>ほか%1枚</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Lumidexで作成しました。このページにはすべての画像が含まれており、ほかのファイルは必要ありません。</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>描画中</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>枚の画像</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>カタログにはまだ写真がありません。次を実行してください: lumidex scan フォルダー</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>前回の読み込みで、カタログの写真%1枚がすべて見つかりませんでした。接続されていないディスクはありませんか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>中断しました。</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>採用したアルバムはありません。</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>ページ %1 は書き込み済みです。選んだアルバムはすべて採用済みとして表示されます。</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>はい、現在さらに%1枚</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>最初の日</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>最後の日</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>採用</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (写真%2枚)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>%1 を採用しました: 写真%2枚。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>採用済みの %2 に写真%1枚を追加しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 は採用済みで、追加する写真はありません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>写真%1枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1 (うち%2枚は日付なし)</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>採用したアルバムはまだありません。「lumidex albums」で候補が表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>採用済みのアルバム%1件。</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>%1から提案できるアルバムはありません。アルバムには、同じ祝日、
または同じ月の週末の写真が20枚以上必要です。</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>アルバム%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%2から%1、採用済み%3件。</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>カレンダー: %1 (サーバーから)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>カレンダー: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>カレンダーに %1 の祝日はありません。</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>祝日</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>日数</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(名前なし)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%2 の祝日%1件。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: 誤りは見つかりませんでした。</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>イベント%1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>一覧</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: 誤りが%2件見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>カレンダーは更新されませんでした: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>カレンダーがありません。</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>これまでどおり使用中: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>カレンダーを更新しました: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>カレンダーは最新です: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>祝日カレンダーを完全には読めなかったため、一部の祝日がありません。次を実行してください: lumidex calendar check または lumidex calendar update</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>祝日カレンダー %1 を完全には読めなかったため、一部の祝日がありません。次を実行してください: lumidex calendar check または lumidex calendar update</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>読み取り不可</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル数</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>必要</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>空き</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>不明</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>ファイル%1個を確認</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>問題は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>中断しました。何も変更していません。</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>指定したフォルダーに写真はありません。</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>試行中</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>枚の写真</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>編集中</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>正立</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>上下逆</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>上下逆、左右反転</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>左回転、左右反転</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>右回転</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>右回転、左右反転</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>左回転</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>日付なし</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>写真%1枚を編集することになります。これは試行です。何も変更していません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>何も変更していません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>写真%1枚を編集しました。「lumidex undo」で元に戻せます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>編集できません</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>編集しませんでした</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>比較中</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>個のファイル</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>コピー中</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>中断しました。それまでのコピーは完全で、検証も済んでいます。残りをコピーするには同じコマンドを実行してください。</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>%1 へコピーするもの:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>コピーせずにカタログに追加するもの:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>同じ撮影のコピーが別々の名前になるもの:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>コピーしなかったもの:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>カタログに取り込まなかったもの:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>省いたもの:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>ほか%1件 (--json ですべて表示)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>写真%1枚はすでにカタログにあります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>ファイル%1個は以前にコピー済みです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>写真%1枚が取り込み元に重複しています。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>何も取り込みませんでした。</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>何も取り込まれません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>ファイル%1個 (%2) をコピーし</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>写真%1枚をコピーせずに追加することになります。</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>これは試行です。
何も変更していません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>ファイル%1個 (%2) を %3 へコピーし、検証しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>写真%1枚をカタログに追加しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>ファイル%1個をコピーできませんでした。もう一度試すには同じコマンドを実行してください。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>a heading</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 is not supported; %2 is used.</source>
        <comment>languages</comment>
        <translation>%1 には対応していません。%2 を使います。</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%2%3のうち%1</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>これまでに見つかった%2%3のうち%1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>h はい</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>中断しました。何も名前を変更していません。</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>読み取り中</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>名前を変更中</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>名前を変更できないもの:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>写真%1枚には日付がないため、ファイルの時刻を使います。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>ファイル%1個はすでに新しい名前です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>何も名前を変更しません: 写真%2枚のうち%1枚は新しい名前にできません。
--skip-problems を付けると、残りの名前を変更します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>何も名前を変更していません: 写真%2枚のうち%1枚は新しい名前にできません。
--skip-problems を付けると、残りの名前を変更します。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>名前を変更するものはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1の名前を変更することになります。これは試行です。何も変更していません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>何も名前を変更していません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>ファイル%1個は元の名前に戻せませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1の名前を変更しました。「lumidex undo」で元に戻せます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1の名前を変更しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>レポート: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>画像%1枚を読み取れなかったため、代わりの枠を表示しています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>写真%1枚を %2 に作成しました</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>画像ではない</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>取り込まなかったもの:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>撮影日時%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>デジタル化日時%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>ファイルの時刻%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>なし%1件</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>読み取った日付: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>個のファイルを発見</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>個が新規</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>個を再読み取り</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>個が変更</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>個は変更なし</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>個が見つからず、消失と記録</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>これは試行です。何も保存していません。</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>カタログ: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>中断しました。それまでに読み取ったものはカタログにあります。続けるには同じコマンドを実行してください。</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>分析中</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>グループ分け中</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>測定中</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>中断しました。移動したものはごみ箱にあります。</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>中断しました。続けるには同じコマンドを実行してください。</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>中断しました。何も移動していません。</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>%1をごみ箱に移動しますか? [h/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>移動中</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>残すもの: %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>残すもの: %1 (%2)</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1、%2、類似度 %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>最大</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>最も鮮明</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>カメラ情報あり</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>最も古い</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>名前順で先頭</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>比較しなかったもの:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>写真%1枚の中に似ている写真はありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>似ている写真のグループ%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>写真%1枚の中に</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>残すもの以外の写真%1枚 (%2)。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2; %3</source>
        <comment>groups of similar photos; among how many; others</comment>
        <translation>%2%1、%3</translation>
    </message>
    <message>
        <source>keep</source>
        <comment>a photo</comment>
        <translation>残す</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>ごみ箱</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>そのまま</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>グループ%1、写真%2枚:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>中心との類似度</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>自分の中心との類似度</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>相手の中心との類似度</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>2枚の写真の類似度は %1 で、同じグループに入っています。</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>2枚の写真の類似度は %1 で、別々のグループに入っています。</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>写真は、中心との類似度が %1 を超える最初のグループに入ります。中心とは、その時点で
グループにある写真の平均です。その後の写真は中心を動かします。</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>すべての写真を比較し直しても、同じグループになります。</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>「lumidex similar --anew」ですべてのグループを作り直します。</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>写真%1枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (ファイル%2個)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>%1の名前を変更</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>日付を %1 ずらす</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>日付を %1 に設定</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>180度回転</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>似ている写真をごみ箱に移動</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>すべてはい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>すべていいえ</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
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
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>ごみ箱に移動するものはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1をごみ箱に移動することになります。これは試行です。何も変更していません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>何も移動していません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1をごみ箱に移動しました。「lumidex undo」で、まだそこにあるものを元に戻せます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1をごみ箱に移動しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>ファイル%1個</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>移動しなかったもの:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>元の場所に残したもの</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>やり直し中</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>元に戻し中</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>中断しました。それまでに行ったことはそのままです。</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>ご指定の%2件のうち%1件だけです。</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>設定 %1 の値が正しくありません (%2)。既定値を使います。</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>取り消し済み</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>元に戻すものはありません。</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ファイル数</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>保管</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>そのまま残したもの</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>「%1」は何もやり直していません。</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>「%1」は何も元に戻していません。</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>やり直しました: %1。</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>元に戻しました: %1。</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>やり直しました: %1 (ファイル%2個を除く)。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>元に戻しました: %1 (ファイル%2個を除く)。</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>それより前の操作は、これを元に戻すまで元に戻せません。「lumidex undo --skip」で、これを今後ずっと飛ばします。</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>飛ばすものはありません。</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>飛ばしました: %1。</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>元のファイル (%1) は、「undo」の上限を超えるまで保管されます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>以前の操作%1件は、もう元に戻せません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>操作は使用日数%1日以内、元のファイルは%2まで、元に戻せます。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>やり直すものはありません。</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>コピーが別の撮影のファイルと同じ名前になるもの:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>ファイルの時刻</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1コマ</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>出典</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>疑わしい位置:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>読み取らなかったもの</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>撮影日時</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>写真%2枚のうち%1枚。</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>統計はオンです。</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>統計はオフです。</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>日</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>詳細</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>統計はオン、%1行です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>統計はオフ、%1行です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>統計の%1行を読み取れません。</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>統計を削除しました。</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>タグ: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>タグ「%1」の付いた写真はありません。</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>システム</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>自動</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>独自</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>タグの付いた写真はまだありません。次を実行してください: lumidex tag ファイル +タグ</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>一覧にないもの</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>タグを付けなかったもの</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>写真%1枚を変更しました。「lumidex undo」で元に戻せます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>写真%1枚を変更しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>「lumidex undo」で元に戻せます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>写真%1枚を除外しました。ファイルの時刻のほかに日付がないためです。含めるには、次を実行してください: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>拒否されるもの (%1)</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>これらの写真をすべて一度に編集する場合:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>付属のサイドカー</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>サイドカー%1個もあわせて編集することになります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>サイドカー%1個もあわせて編集しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>写真%1枚を編集しました。元に戻すことはできません。</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>指定したフォルダーに写真も動画もありません。</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>隠しファイルです</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>写真でも動画でも、それに付属するファイルでもありません</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>「lumidex undo」で、今回のコピーをごみ箱に移動できます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>ご指定のとおり、ファイル%1個はコピーしません。元の場所に残ります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>ファイル%1個はリムーバブルストレージにないため、コピーしません。「--to フォルダー」でコピーできます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>うち%1個は動画で、カタログには入りません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>カメラやシステムの管理用ファイル%1個はコピーしません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>%1 にまだコピーしていないものがあります。フォーマットしたり空にしたりしないでください。</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>コピーが %1 自体の中にあります。フォーマットしたり空にしたりしないでください。</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>操作%1件は、使用日数が%2日を超えたため、もう元に戻せません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>新しい名前を指すリンク:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>シンボリックリンク%1個が新しい名前を指しています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>シンボリックリンク%1個の名前はそのままです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1、ほか%2個</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>移動された写真かもしれませんが、候補のファイルまたは写真が複数あります。
写真のタグとアルバムはそのままで、ファイルは新規として扱います:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>XMP%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>IPTC%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>個を移動または名前変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>これを残す</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>同じ画像</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>似ている</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>異なる</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>比較できませんでした</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>グループ%1: %3 に似た写真%2枚</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>破損なし</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>カメラ自身のファイル</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>メーカーノートあり</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>ほかのプログラムによる書き込みなし</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>圧縮が弱い</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>1画素あたりのバイト数が多い</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>カメラが付けた名前</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>写真%1枚は、以前と同じく比較できません。「lumidex similar --not-compared」で一覧を表示します。</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>同じ画像です。</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>似ていますが、同じ画像ではありません。</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>異なる画像です。</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>画像を比較できませんでした。</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>同じ</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>似ている</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>異なる</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>判定</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>編集を元に戻せるようにするには、元のファイルを %1 保管する必要がありますが、上限は %2 です。</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>「lumidex undo --keep-size %1」で上限を上げられます。--no-undo を付けると何も保管せず、編集を元に戻せません。</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>元のファイル %1 を上限 %2 の範囲で保管するには、以前の操作%3件を忘れる必要があります:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>元のファイル %1 を上限 %2 の範囲で保管するため、以前の操作%3件を忘れます:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>「lumidex undo --keep-size %1」ですべてを保管できるようになります。</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older を付けると許可します。</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>忘れて続行しますか? [h/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>元のファイルは保管されず、編集を元に戻せなくなります。</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>編集は拒否されます。</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>ファイル%1個を %2 に取り込む</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>アルバム %1 を採用</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>アルバム%1件を採用</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>%1 に似ている</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>写真%1枚は似ているだけで、同じ画像ではありません。--alike を付けないかぎりそのままです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1をごみ箱に移動しますか (うち%2枚は似ているだけ)? [h/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>やり直しに必要なものを保管せずに元に戻しますか? [h/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>コピー%1個は現在ごみ箱にあります。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>やり直しに必要なものを保管する空きがありません。「lumidex undo --no-redo」なら保管せずに元に戻します。</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>「%1」(%2) を元に戻しても、ファイル%3個はそのまま残ります。この操作がその後に変更したためです:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>不明</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>ファイルまたはフォルダー%1個は拒否されます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>取り込みでは、ほかのファイル%1個が省かれます (--json ですべて表示)。</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>%1 のどのファイルも、別の場所に検証済みのコピーがあります。</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>%1 のファイルは、管理用ファイルを除き、どれも別の場所に検証済みのコピーがあります。</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>安全にフォーマットできます。</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>このフォルダーに限れば安全にフォーマットできます。フォルダーの外にあるものは調べていません。</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>拡大なし</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>%1 があるディスクの空きは %2 ですが、すべての写真を編集するには %3 必要です。最後のほうの写真は編集されません。</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>うち%1個はコピー元がなくなったか、変更されています。別のコピーを用意するまでごみ箱を空にしないでください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>中断しました。それまでに編集した写真は編集済みのままです。</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>中断しました。それまでに作成した写真は残っています。もう一度試す前にフォルダーを削除してください。</translation>
    </message>
    <message>
        <source>,</source>
        <comment>between thousands</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <comment>before decimals</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <translation>%1 GiB</translation>
    </message>
    <message>
        <source>%1 TiB</source>
        <translation>%1 TiB</translation>
    </message>
    <message>
        <source>%1 PiB</source>
        <translation>%1 PiB</translation>
    </message>
    <message>
        <source>%1 EiB</source>
        <translation>%1 EiB</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>写真%2枚のうち%1枚、撮影日 %3。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>写真%2枚のうち%1枚、撮影日 %3 から %4 まで。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>写真%2枚のうち%1枚、撮影日 %3 以降。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>写真%2枚のうち%1枚、撮影日 %3 以前。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>うち%1枚 (%2) は残す写真と同じ画像です。「lumidex similar --trash」でごみ箱に移動できます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>残す写真と同じ画像ではなく、似ているだけのもの:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>元に戻せません</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>進行中</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>日時</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>files checked; outcome</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <comment>copies; photos added; dry run</comment>
        <translation>%1、%2%3</translation>
    </message>
    <message numerus="yes">
        <source>would be the name of %1 photos: %2</source>
        <translation>
            <numerusform>写真%1枚の名前になってしまいます: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>この上限の範囲では、以前の操作%1件を忘れる必要があります:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>写真をごみ箱に移動するかどうかは、そのグループで残す写真や、タグ、アルバム、設定、ファイルの別名によっても変わります。「lumidex similar --trash --dry-run」で確認できます。</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>選択したファイルはいずれも読み取り権限がないため、追加されません。</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>選択したファイルの一部は読み取り権限がないため、追加されません。</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>選択した写真の一部はリムーバブルストレージにあります。ハードディスクにコピーしますか?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>選択したフォルダーは一時的なものです。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>選択した写真の一部は読み取り専用の形式です (例: %1)。ツールを適用すると、JPGまたはPNGに変換されます。</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>選択した写真は読み取り専用の形式です (%1)。ツールを適用すると、JPGまたはPNGに変換されます。</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>ディスク %1 の空き容量が足りません</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>このフォルダー内のファイルを編集する権限がありません: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>このファイルを編集する権限がありません: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>期限切れ</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>件のアルバム</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>件のアルバム</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>件のアルバム</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>件のアルバム</translation>
    </message>
    <message>
        <source>album</source>
        <translation>件のアルバム</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>件のアルバム</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>件のグループ</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>件のグループ</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>件のグループ</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>件のグループ</translation>
    </message>
    <message>
        <source>group</source>
        <translation>件のグループ</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>件のグループ</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>枚の写真</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>枚の写真</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>枚の写真</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>枚の写真</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>枚の写真</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>枚の写真</translation>
    </message>
</context>
</TS>
