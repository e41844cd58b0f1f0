<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message>
        <source>&quot;%@&quot; keeps its tags.</source>
        <translation>“%@”的标签保持不变。</translation>
    </message>
    <message>
        <source>%@ (not there)</source>
        <translation>%@（不存在）</translation>
    </message>
    <message>
        <source>A copy needs another name or another folder</source>
        <translation>副本需要另一个名称或另一个文件夹</translation>
    </message>
    <message>
        <source>All tags of &quot;%@&quot; are deleted.</source>
        <translation>“%@”的所有标签已删除。</translation>
    </message>
    <message>
        <source>Choose another place, and save the file there with the changes</source>
        <translation>选择另一个位置，将带有更改的文件保存到那里</translation>
    </message>
    <message>
        <source>Delete All Tags</source>
        <translation>删除所有标签</translation>
    </message>
    <message>
        <source>Deleted all tags of &quot;%@&quot;</source>
        <translation>已删除“%@”的所有标签</translation>
    </message>
    <message>
        <source>Do you want to delete all tags from &quot;%@&quot;?</source>
        <translation>要删除“%@”的所有标签吗？</translation>
    </message>
    <message>
        <source>Files found: %@</source>
        <translation>找到的文件：%@</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>It consists of several RIFF chunks, which a save in place can&#x27;t change</source>
        <translation>它由多个 RIFF 块组成，就地保存无法更改</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>文件是空的</translation>
    </message>
    <message>
        <source>It is not there any more</source>
        <translation>文件已不存在</translation>
    </message>
    <message>
        <source>You have no permission for that</source>
        <translation>您没有此操作的权限</translation>
    </message>
    <message>
        <source>You have no permission to put a new file into its folder</source>
        <translation>您没有写入其所在文件夹的权限</translation>
    </message>
    <message>
        <source>Another program is using it</source>
        <translation>另一个程序正在使用它</translation>
    </message>
    <message>
        <source>Its disk reports a fault</source>
        <translation>其磁盘报告错误</translation>
    </message>
    <message>
        <source>Its name is too long</source>
        <translation>其名称过长</translation>
    </message>
    <message>
        <source>What was to be copied is not there any more</source>
        <translation>要复制的文件已不存在</translation>
    </message>
    <message>
        <source>Its folder is not there</source>
        <translation>其文件夹不存在</translation>
    </message>
    <message>
        <source>It lies on a disk that can only be read</source>
        <translation>它位于只读磁盘上</translation>
    </message>
    <message>
        <source>It would become too large</source>
        <translation>它会变得过大</translation>
    </message>
    <message>
        <source>Its header can&#x27;t be read</source>
        <translation>无法读取其文件头</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be written</source>
        <translation>无法写入其标签</translation>
    </message>
    <message>
        <source>Looked in:</source>
        <translation>搜索过的位置：</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>没有打开的文件</translation>
    </message>
    <message>
        <source>No file is open: what is typed here goes nowhere</source>
        <translation>没有打开的文件：在此输入的内容不会保存</translation>
    </message>
    <message>
        <source>No space is left on its disk</source>
        <translation>其磁盘空间不足</translation>
    </message>
    <message>
        <source>Not stored in files of this kind</source>
        <translation>这类文件不保存此项</translation>
    </message>
    <message>
        <source>Save as a Copy</source>
        <translation>另存为副本</translation>
    </message>
    <message>
        <source>Save as a Copy…</source>
        <translation>另存为副本…</translation>
    </message>
    <message>
        <source>Saved &quot;%@&quot;</source>
        <translation>已保存“%@”</translation>
    </message>
    <message>
        <source>Store Cover</source>
        <translation>采用封面</translation>
    </message>
    <message>
        <source>Store Filled Fields</source>
        <translation>采用填入的字段</translation>
    </message>
    <message>
        <source>Take all filled fields for changes, which a save writes</source>
        <translation>将所有填入的字段视为更改，保存时写入</translation>
    </message>
    <message>
        <source>Take the cover for a change, which a save writes</source>
        <translation>将封面视为更改，保存时写入</translation>
    </message>
    <message>
        <source>The cover is cut from the form only, and stays in the file.</source>
        <translation>封面只是从表单中剪切，仍保留在文件中。</translation>
    </message>
    <message>
        <source>The cover is deleted here. A save in place leaves it in the file.</source>
        <translation>封面已在此处删除。就地保存会将其留在文件中。</translation>
    </message>
    <message>
        <source>The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.</source>
        <translation>封面取自 folder.jpg，这算作更改：保存时会写入文件。</translation>
    </message>
    <message>
        <source>The filled fields count as changes now: a save writes them.</source>
        <translation>填入的字段现在算作更改：保存时会写入。</translation>
    </message>
    <message>
        <source>The pasted cover is shown only: a save does not write it.</source>
        <translation>粘贴的封面仅供显示：保存时不会写入。</translation>
    </message>
    <message>
        <source>There is no file for its tag yet, and a save in place makes none</source>
        <translation>尚无存放其标签的文件，就地保存也不会创建</translation>
    </message>
    <message>
        <source>This is no number, and is stored as no year</source>
        <translation>这不是数字，将不保存年份</translation>
    </message>
    <message>
        <source>Too little media lies behind its header for the header to grow or shrink</source>
        <translation>文件头之后的媒体数据太少，文件头无法改变大小</translation>
    </message>
    <message>
        <source>What other programs read goes, too, and so do the changes that you have made here. This can&#x27;t be undone.</source>
        <translation>其他程序读取的内容以及您在此所做的更改也会消失。此操作无法撤销。</translation>
    </message>
    <message>
        <source>What the last save did</source>
        <translation>上次保存的结果</translation>
    </message>
    <message>
        <source>What the last search found</source>
        <translation>上次搜索的结果</translation>
    </message>
    <message>
        <source>What was filled in from the web is not stored yet: a save writes only the fields that were typed in.</source>
        <translation>从网上填入的内容尚未采用：保存时只写入手动输入过的字段。</translation>
    </message>
    <message>
        <source>You have no permission to write to it</source>
        <translation>您没有写入权限</translation>
    </message>
    <message>
        <source>folders that could not be read: %@</source>
        <translation>无法读取的文件夹：%@</translation>
    </message>
    <message>
        <source>open in the form</source>
        <translation>已在表单中打开</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%@&quot;.</source>
        <translation>无法打开文件“%@”。</translation>
    </message>
    <message>
        <source>KORVANE Velmora</source>
        <translation>KORVANE Velmora</translation>
    </message>
    <message>
        <source>Velmora can only open local files.</source>
        <translation>Velmora 只能打开本地文件。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>该文件不存在。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not added.</source>
        <translation>“%@”未添加。</translation>
    </message>
    <message>
        <source>Files that could not be added: %@</source>
        <translation>无法添加的文件：%@</translation>
    </message>
    <message>
        <source>Please ensure the file is readable and is a valid media file.</source>
        <translation>请确认该文件可读，并且是有效的媒体文件。</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made?</source>
        <translation>要保存所做的更改吗？</translation>
    </message>
    <message>
        <source>Your changes to &quot;%@&quot; will be lost if you don&#x27;t save them.</source>
        <translation>如果不保存，对“%@”的更改将会丢失。</translation>
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
        <translation>取消</translation>
    </message>
    <message>
        <source>Don&#x27;t Save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Load Cover Art</source>
        <translation>载入封面</translation>
    </message>
    <message>
        <source>Search Done.</source>
        <translation>搜索完成。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>动作</translation>
    </message>
    <message>
        <source>Adults Only</source>
        <translation>仅限成人</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>艺术</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>汽车</translation>
    </message>
    <message>
        <source>Business / Financial</source>
        <translation>商业 / 财经</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>儿童</translation>
    </message>
    <message>
        <source>Comedy</source>
        <translation>喜剧</translation>
    </message>
    <message>
        <source>Consumer</source>
        <translation>消费</translation>
    </message>
    <message>
        <source>Cooking</source>
        <translation>烹饪</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>犯罪</translation>
    </message>
    <message>
        <source>Documentary</source>
        <translation>纪录片</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>剧情</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>教育</translation>
    </message>
    <message>
        <source>Game Show</source>
        <translation>游戏节目</translation>
    </message>
    <message>
        <source>Gay / Lesbian</source>
        <translation>男同性恋 / 女同性恋</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>节日</translation>
    </message>
    <message>
        <source>House / Garden</source>
        <translation>家居 / 园艺</translation>
    </message>
    <message>
        <source>Mystery</source>
        <translation>悬疑</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>自然</translation>
    </message>
    <message>
        <source>News</source>
        <translation>新闻</translation>
    </message>
    <message>
        <source>Performing Arts</source>
        <translation>表演艺术</translation>
    </message>
    <message>
        <source>Reality</source>
        <translation>真人秀</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>爱情</translation>
    </message>
    <message>
        <source>Science Fiction</source>
        <translation>科幻</translation>
    </message>
    <message>
        <source>Self Improvement</source>
        <translation>自我提升</translation>
    </message>
    <message>
        <source>Soap</source>
        <translation>肥皂剧</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>特别节目</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>体育</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>访谈</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>旅行</translation>
    </message>
    <message>
        <source>Western</source>
        <translation>西部片</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>艺术家：</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>专辑：</translation>
    </message>
    <message>
        <source>Cast:</source>
        <translation>演员：</translation>
    </message>
    <message>
        <source>Director:</source>
        <translation>导演：</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Cover art: drop an image here to store it</source>
        <translation>封面：将图片拖放到此处即可采用</translation>
    </message>
    <message>
        <source>too large to show</source>
        <translation>过大，无法显示</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>将图片拖放到此处</translation>
    </message>
    <message>
        <source>Unable to write tags to file &quot;%@&quot;.</source>
        <translation>无法将标签写入文件“%@”。</translation>
    </message>
    <message>
        <source>Be sure you have permissions to write to the file, and that it is a valid media file.</source>
        <translation>请确认您有写入该文件的权限，并且它是有效的媒体文件。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>预览画面</translation>
    </message>
    <message>
        <source>Preview of the selected file</source>
        <translation>所选文件的预览</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>播放或暂停预览</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>预览中的位置</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Search a site to see its pages here</source>
        <translation>搜索网站后，网页会显示在此处</translation>
    </message>
    <message>
        <source>The web browser component is not installed.</source>
        <translation>未安装网页浏览器组件。</translation>
    </message>
    <message>
        <source>Waiting for the cover …</source>
        <translation>正在等待封面……</translation>
    </message>
    <message>
        <source>Waiting for the cover from %1 …</source>
        <translation>正在等待来自 %1 的封面……</translation>
    </message>
    <message>
        <source>Web pages are not shown when the program is run by the system administrator.</source>
        <translation>由系统管理员运行程序时不显示网页。</translation>
    </message>
    <message>
        <source>Looking for films and music…</source>
        <translation>正在查找影片和音乐……</translation>
    </message>
    <message>
        <source>No media files yet. Add files, or a folder to search, with the buttons above.</source>
        <translation>尚无媒体文件。请用上方的按钮添加文件或要搜索的文件夹。</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>清除该栏</translation>
    </message>
    <message>
        <source>Parts of the window</source>
        <translation>窗口的各部分</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>分隔条</translation>
    </message>
    <message>
        <source>Gives the parts of the window more or less room</source>
        <translation>调整窗口各部分的大小</translation>
    </message>
    <message>
        <source>No cover art; drop an image here</source>
        <translation>没有封面；请将图片拖放到此处</translation>
    </message>
    <message>
        <source>An image of %@ pixels</source>
        <translation>%@ 像素的图片</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>歌曲</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation>其他文件</translation>
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
        <translation>用法：velmora [文件|文件夹]...</translation>
    </message>
    <message>
        <source>Edits titles, artists, covers and more of films and music.</source>
        <translation>编辑影片和音乐的标题、艺术家、封面等信息。</translation>
    </message>
    <message>
        <source>  FILE       is listed; a single one is opened</source>
        <translation>  文件       加入列表；只有一个时将其打开</translation>
    </message>
    <message>
        <source>  FOLDER     is searched for films and music</source>
        <translation>  文件夹     在其中查找影片和音乐</translation>
    </message>
    <message>
        <source>  --help     prints this and ends</source>
        <translation>  --help     显示此说明并退出</translation>
    </message>
    <message>
        <source>  --version  prints the version and ends</source>
        <translation>  --version  显示版本并退出</translation>
    </message>
    <message>
        <source>velmora: unknown option %@; --help tells the others</source>
        <translation>velmora：未知选项 %@；--help 列出可用选项</translation>
    </message>
    <message>
        <source>Files of this kind carry no tag</source>
        <translation>此类文件不含标签</translation>
    </message>
    <message>
        <source>Files of this kind have no such field</source>
        <translation>此类文件没有该字段</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>The file is of a sort that can&#x27;t be saved safely</source>
        <translation>这种文件无法安全保存</translation>
    </message>
    <message>
        <source>Something is too large for this kind of file</source>
        <translation>有内容对此类文件而言过大</translation>
    </message>
    <message>
        <source>It is no ordinary file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>文件被写保护</translation>
    </message>
    <message>
        <source>The file has further hard links, which would keep the old contents</source>
        <translation>该文件还有其他硬链接，它们会保留旧内容</translation>
    </message>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>其间另一个程序更改了该文件</translation>
    </message>
    <message>
        <source>No space is left for the new file</source>
        <translation>没有空间存放新文件</translation>
    </message>
    <message>
        <source>The new file would have lost something</source>
        <translation>新文件会丢失某些内容</translation>
    </message>
    <message>
        <source>The system could not confirm that the folder is on the disk</source>
        <translation>系统无法确认文件夹已写入磁盘</translation>
    </message>
    <message>
        <source>The save was cancelled</source>
        <translation>保存已取消</translation>
    </message>
    <message>
        <source>The file&#x27;s old contents can&#x27;t be kept for an undo: %@</source>
        <translation>无法保留文件的原有内容以供撤销：%@</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be changed in place</source>
        <translation>无法就地更改其标签</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>关闭此通知</translation>
    </message>
    <message>
        <source>Saving &quot;%@&quot;…</source>
        <translation>正在保存“%@”……</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Leave the file as it was</source>
        <translation>让文件保持原样</translation>
    </message>
    <message>
        <source>The portable tags of &quot;%@&quot; can&#x27;t be read.</source>
        <translation>无法读取“%@”的可移植标签。</translation>
    </message>
    <message>
        <source>Other programs see more in this file</source>
        <translation>其他程序能看到此文件中的更多信息</translation>
    </message>
    <message>
        <source>Show It</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Switch to the tags that other programs read</source>
        <translation>切换到其他程序读取的标签</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>总是</translation>
    </message>
    <message>
        <source>Switch to these tags, now and at each start</source>
        <translation>现在及每次启动时都切换到这些标签</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved.</source>
        <translation>“%@”未保存。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was saved, but not all of it can be read back.</source>
        <translation>“%@”已保存，但并非全部内容都能读回。</translation>
    </message>
    <message>
        <source>Save With Portable Tags</source>
        <translation>用可移植标签保存</translation>
    </message>
    <message>
        <source>Write the changes into the tags that other programs read, and replace the file in one step</source>
        <translation>将更改写入其他程序读取的标签，并一步替换文件</translation>
    </message>
    <message>
        <source>Save so, and do so from now on, also after the next start</source>
        <translation>以此方式保存，今后及下次启动后均如此</translation>
    </message>
    <message>
        <source>Saved. Other programs see it: %@</source>
        <translation>已保存。其他程序可以看到：%@</translation>
    </message>
    <message>
        <source>Saved. Other programs read no tag in files of this kind: %@</source>
        <translation>已保存。其他程序不读取此类文件中的标签：%@</translation>
    </message>
    <message>
        <source>Replace Anyway</source>
        <translation>仍然替换</translation>
    </message>
    <message>
        <source>The other links keep the old contents</source>
        <translation>其他链接保留旧内容</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved; its edits are kept.</source>
        <translation>“%@”未保存；其编辑内容已保留。</translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>恢复未保存的编辑</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>重新打开未能保存编辑的文件，并恢复这些编辑</translation>
    </message>
    <message>
        <source>The edits of &quot;%@&quot; are back, and not saved yet.</source>
        <translation>“%@”的编辑已恢复，尚未保存。</translation>
    </message>
    <message>
        <source>A percent sign stands alone. Write %% for a percent sign.</source>
        <translation>有单独的百分号。要表示百分号，请写作 %%。</translation>
    </message>
    <message>
        <source>There is no field &quot;%@&quot;.</source>
        <translation>没有字段“%@”。</translation>
    </message>
    <message>
        <source>The name does not fit the pattern</source>
        <translation>名称不符合模式</translation>
    </message>
    <message>
        <source>Files of this kind have no such field: %@</source>
        <translation>此类文件没有该字段：%@</translation>
    </message>
    <message>
        <source>It says so already</source>
        <translation>已是该值</translation>
    </message>
    <message>
        <source>It has that name already</source>
        <translation>它已是该名称</translation>
    </message>
    <message>
        <source>The name is cut: it would be too long</source>
        <translation>名称已截短：否则会过长</translation>
    </message>
    <message>
        <source>No value: %@</source>
        <translation>没有值：%@</translation>
    </message>
    <message>
        <source>No name is left of the values</source>
        <translation>这些值无法组成名称</translation>
    </message>
    <message>
        <source>The file keeps its name: its tag lies in another file that goes by it</source>
        <translation>文件保留其名称：其标签位于另一个依其命名的文件中</translation>
    </message>
    <message>
        <source>Another row has that name or is to get it</source>
        <translation>另一行已有或将使用该名称</translation>
    </message>
    <message>
        <source>There is a file of that name</source>
        <translation>已有同名文件</translation>
    </message>
    <message>
        <source>Its tags have not been read yet</source>
        <translation>尚未读取其标签</translation>
    </message>
    <message>
        <source>Its tags can&#x27;t be read</source>
        <translation>无法读取其标签</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Tags from Names</source>
        <translation>由名称生成标签</translation>
    </message>
    <message>
        <source>Names from Tags</source>
        <translation>由标签生成名称</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>模式(&amp;P)：</translation>
    </message>
    <message>
        <source>Fields between percent signs, and the text between them</source>
        <translation>百分号之间的字段，以及它们之间的文字</translation>
    </message>
    <message>
        <source>&amp;Insert Field</source>
        <translation>插入字段(&amp;I)</translation>
    </message>
    <message>
        <source>Put a field into the pattern</source>
        <translation>在模式中插入字段</translation>
    </message>
    <message>
        <source>%skip% stands for text that is left out, a slash for a folder.</source>
        <translation>%skip% 代表略去的文字，斜杠代表文件夹。</translation>
    </message>
    <message>
        <source>%folder% stands for the name of the file&#x27;s folder.</source>
        <translation>%folder% 代表文件所在文件夹的名称。</translation>
    </message>
    <message>
        <source>What becomes of every file</source>
        <translation>每个文件的结果</translation>
    </message>
    <message>
        <source>Show only files that something is &amp;wrong with</source>
        <translation>仅显示有问题的文件(&amp;W)</translation>
    </message>
    <message>
        <source>Hide the files that the pattern fits</source>
        <translation>隐藏符合模式的文件</translation>
    </message>
    <message>
        <source>&amp;Set Tags</source>
        <translation>设置标签(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Set Names</source>
        <translation>设置名称(&amp;S)</translation>
    </message>
    <message>
        <source>Make these edits of the table; no file changes before they are applied</source>
        <translation>将其作为表格的编辑；应用之前不会更改任何文件</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>一切保持原样</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>新名称</translation>
    </message>
    <message>
        <source>The preview is being made.</source>
        <translation>正在生成预览。</translation>
    </message>
    <message>
        <source>Files that change: %@.</source>
        <translation>将更改的文件：%@。</translation>
    </message>
    <message>
        <source>Files that something is wrong with: %@; they are left alone.</source>
        <translation>有问题的文件：%@；将保持不变。</translation>
    </message>
    <message>
        <source>&amp;Tags from Names…</source>
        <translation>由名称生成标签(&amp;T)…</translation>
    </message>
    <message>
        <source>Take the tags of the selected files from their names, by a pattern</source>
        <translation>按模式从名称提取所选文件的标签</translation>
    </message>
    <message>
        <source>&amp;Names from Tags…</source>
        <translation>由标签生成名称(&amp;N)…</translation>
    </message>
    <message>
        <source>Give the selected files names made of their tags, by a pattern</source>
        <translation>按模式用标签为所选文件命名</translation>
    </message>
    <message>
        <source>The pattern is empty.</source>
        <translation>模式为空。</translation>
    </message>
    <message>
        <source>There is nothing beside a slash.</source>
        <translation>斜杠旁没有内容。</translation>
    </message>
    <message>
        <source>Nothing divides one field from the next.</source>
        <translation>字段之间没有分隔内容。</translation>
    </message>
    <message>
        <source>A field comes twice.</source>
        <translation>有字段出现了两次。</translation>
    </message>
    <message>
        <source>%skip% has no place in a new name.</source>
        <translation>新名称中不能使用 %skip%。</translation>
    </message>
    <message>
        <source>A name has no slash: files stay in their folders.</source>
        <translation>名称中不能有斜杠：文件留在各自的文件夹中。</translation>
    </message>
    <message>
        <source>There is no field in the pattern.</source>
        <translation>模式中没有字段。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ not applied</source>
        <translation>未应用：%@</translation>
    </message>
    <message>
        <source>%@ selected</source>
        <translation>已选：%@</translation>
    </message>
    <message>
        <source>%@ shown</source>
        <translation>显示：%@</translation>
    </message>
    <message>
        <source>%@ to be read</source>
        <translation>待读取：%@</translation>
    </message>
    <message>
        <source>%@, not applied</source>
        <translation>%@，未应用</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Album / Director</source>
        <translation>专辑 / 导演</translation>
    </message>
    <message>
        <source>Artist / Cast</source>
        <translation>艺术家 / 演员</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>媒体库</translation>
    </message>
    <message>
        <source>Library Table</source>
        <translation>媒体库表格</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>分级</translation>
    </message>
    <message>
        <source>Synopsis / Comment</source>
        <translation>简介 / 注释</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>The guide&#x27;s text</source>
        <translation>指南正文</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>转到(&amp;G)：</translation>
    </message>
    <message>
        <source>Go to a heading of the guide</source>
        <translation>转到指南中的某个标题</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>查找(&amp;F)：</translation>
    </message>
    <message>
        <source>Find words in the guide; Return goes to the next place</source>
        <translation>在指南中查找文字；按回车转到下一处</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>未安装用户指南。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>作用</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>所有按键及其作用</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>关闭此窗口</translation>
    </message>
    <message>
        <source>%@ menu</source>
        <translation>“%@”菜单</translation>
    </message>
    <message>
        <source>Letters, in the list</source>
        <translation>列表中的字母</translation>
    </message>
    <message>
        <source>The next name that begins with them</source>
        <translation>下一个以其开头的名称</translation>
    </message>
    <message>
        <source>In the list: the file above, below</source>
        <translation>列表中：上一个、下一个文件</translation>
    </message>
    <message>
        <source>On the cover: cut it</source>
        <translation>在封面上：剪切</translation>
    </message>
    <message>
        <source>On the cover: copy it</source>
        <translation>在封面上：复制</translation>
    </message>
    <message>
        <source>On the cover: paste one</source>
        <translation>在封面上：粘贴</translation>
    </message>
    <message>
        <source>The next control</source>
        <translation>下一个控件</translation>
    </message>
    <message>
        <source>The control before</source>
        <translation>上一个控件</translation>
    </message>
    <message>
        <source>The menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>The buttons of the line above the form</source>
        <translation>表单上方一行中的按钮</translation>
    </message>
    <message>
        <source>Ends the wait for a page or a cover; closes the line above the form</source>
        <translation>停止等待网页或封面；关闭表单上方的一行</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>关于 Velmora</translation>
    </message>
    <message>
        <source>MIT licence: free to use, to change and to pass on, without any warranty.</source>
        <translation>MIT 许可证：可自由使用、修改和再分发，不提供任何担保。</translation>
    </message>
    <message>
        <source>Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, libjpeg and libpng, each under its own licence.</source>
        <translation>基于 Qt %@（含其网页引擎和多媒体模块）、TagLib、GStreamer、libjpeg 和 libpng，各自遵循其许可证。</translation>
    </message>
    <message>
        <source>What Velmora is and what it is built on</source>
        <translation>Velmora 是什么，以及它基于什么</translation>
    </message>
    <message>
        <source>The window will look like this at each start.</source>
        <translation>每次启动时窗口都将是这个样子。</translation>
    </message>
    <message>
        <source>The layout can&#x27;t be remembered: the settings file can&#x27;t be written.</source>
        <translation>无法记住布局：设置文件无法写入。</translation>
    </message>
    <message>
        <source>Nothing is remembered any more: there is no settings file.</source>
        <translation>不再记住任何内容：没有设置文件。</translation>
    </message>
    <message>
        <source>The settings file can&#x27;t be removed.</source>
        <translation>无法删除设置文件。</translation>
    </message>
    <message>
        <source>The next start will not know of it: the settings file can&#x27;t be written.</source>
        <translation>下次启动时不会记得：设置文件无法写入。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; can&#x27;t be written.</source>
        <translation>无法写入“%@”。</translation>
    </message>
    <message>
        <source>%@ a second</source>
        <translation>每秒 %@</translation>
    </message>
    <message>
        <source>%@ changed since and left alone</source>
        <translation>%@ 个其间有改动，保持原样</translation>
    </message>
    <message>
        <source>%@ done</source>
        <translation>%@ 个完成</translation>
    </message>
    <message>
        <source>%@ failed</source>
        <translation>%@ 个失败</translation>
    </message>
    <message>
        <source>%@ files</source>
        <translation>%@ 个文件</translation>
    </message>
    <message>
        <source>%@ left</source>
        <translation>剩余 %@</translation>
    </message>
    <message>
        <source>%@ not reached</source>
        <translation>%@ 个未处理</translation>
    </message>
    <message>
        <source>%@ unchanged</source>
        <translation>%@ 个未变</translation>
    </message>
    <message>
        <source>&amp;Artist or cast:</source>
        <translation>艺术家或演员(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>类型(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>年份(&amp;Y)：</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>应用(&amp;P)</translation>
    </message>
    <message>
        <source>Al&amp;bum or director:</source>
        <translation>专辑或导演(&amp;B)：</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>C&amp;over:</source>
        <translation>封面(&amp;O)：</translation>
    </message>
    <message>
        <source>Cancelled before its turn</source>
        <translation>轮到之前已取消</translation>
    </message>
    <message>
        <source>Changed since, left alone</source>
        <translation>其间有改动，保持原样</translation>
    </message>
    <message>
        <source>Choose a Cover</source>
        <translation>选择封面</translation>
    </message>
    <message>
        <source>Choose a picture as the cover of the selected files</source>
        <translation>为所选文件选择一张图片作为封面</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>关闭摘要</translation>
    </message>
    <message>
        <source>Copy the current column of the selected rows</source>
        <translation>复制所选行的当前列</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>复制所选文件的路径</translation>
    </message>
    <message>
        <source>Copy the selected rows with the columns that are shown, for a spreadsheet</source>
        <translation>复制所选行及显示的列，供电子表格使用</translation>
    </message>
    <message>
        <source>Do you want to remove files with edits that are not applied?</source>
        <translation>要移除含有未应用编辑的文件吗？</translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>%Ln 个文件的编辑将会丢失。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>A file is still being saved in the main window. Try again when that is done.</source>
        <translation>主窗口仍在保存文件。请在完成后重试。</translation>
    </message>
    <message>
        <source>Drop Them</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Drop what was edited in the selected files and not applied</source>
        <translation>放弃所选文件中尚未应用的编辑</translation>
    </message>
    <message>
        <source>Edit the text of the current cell</source>
        <translation>编辑当前单元格的文字</translation>
    </message>
    <message>
        <source>Edits in the library table are not applied yet.</source>
        <translation>媒体库表格中的编辑尚未应用。</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Files that were not changed</source>
        <translation>未更改的文件</translation>
    </message>
    <message>
        <source>Give the files of the last apply their old values and names back</source>
        <translation>将上次应用的文件恢复为原来的值和名称</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>左移列</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>右移列</translation>
    </message>
    <message>
        <source>Open the file in the program&#x27;s main window</source>
        <translation>在程序的主窗口中打开文件</translation>
    </message>
    <message>
        <source>Open the folder in which the file is</source>
        <translation>打开文件所在的文件夹</translation>
    </message>
    <message>
        <source>Put the cells of the clipboard into the table from the current cell on</source>
        <translation>从当前单元格起，将剪贴板中的单元格粘贴到表格中</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>分级(&amp;I)：</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Remove the cover from the selected files</source>
        <translation>移除所选文件的封面</translation>
    </message>
    <message>
        <source>Show only the files that have these words in any column; artist:, year:1990-1999, missing:cover and the like look closer</source>
        <translation>只显示任一列含有这些词的文件；可用 artist:、year:1990-1999、missing:cover 等细查</translation>
    </message>
    <message>
        <source>Stop; each file is as it was or as it was to be</source>
        <translation>停止；每个文件要么原样，要么已改好</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis or comment:</source>
        <translation>简介或注释(&amp;N)：</translation>
    </message>
    <message>
        <source>Take the selected files off the list; they stay where they are</source>
        <translation>将所选文件移出列表；文件仍在原处</translation>
    </message>
    <message>
        <source>The album of the selected songs, the director of the selected films</source>
        <translation>所选歌曲的专辑、所选影片的导演</translation>
    </message>
    <message>
        <source>The artist of the selected songs, the cast of the selected films</source>
        <translation>所选歌曲的艺术家、所选影片的演员</translation>
    </message>
    <message>
        <source>The cover of the selected files: drop a picture here, or paste one</source>
        <translation>所选文件的封面：将图片拖放或粘贴到此处</translation>
    </message>
    <message>
        <source>The files that were not changed, and why</source>
        <translation>未更改的文件及原因</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>类型：选择一个或自行输入</translation>
    </message>
    <message>
        <source>The parental rating of the selected films</source>
        <translation>所选影片的年龄分级</translation>
    </message>
    <message>
        <source>The table could not be exported.</source>
        <translation>无法导出表格。</translation>
    </message>
    <message>
        <source>The tags are right, the name is the old one: %@</source>
        <translation>标签正确，名称仍是旧的：%@</translation>
    </message>
    <message>
        <source>The title of the selected files</source>
        <translation>所选文件的标题</translation>
    </message>
    <message>
        <source>The year of release, of up to four digits</source>
        <translation>发行年份，最多四位数字</translation>
    </message>
    <message>
        <source>They are lost when the program ends.</source>
        <translation>程序结束时它们会丢失。</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Try the files again that were not changed</source>
        <translation>重试未更改的文件</translation>
    </message>
    <message>
        <source>Type what is to be shown</source>
        <translation>输入要显示的内容</translation>
    </message>
    <message>
        <source>Undo Apply</source>
        <translation>撤销应用</translation>
    </message>
    <message>
        <source>What the selected films are about, or a comment on the songs</source>
        <translation>所选影片讲述的内容，或对歌曲的注释</translation>
    </message>
    <message>
        <source>Words, artist:name, year:1990-1999, missing:cover</source>
        <translation>词语、artist:名字、year:1990-1999、missing:cover</translation>
    </message>
    <message>
        <source>Write the rows and columns that are shown into a file, as CSV or JSON</source>
        <translation>将显示的行和列以 CSV 或 JSON 写入文件</translation>
    </message>
    <message>
        <source>Write what was edited into the files</source>
        <translation>将编辑内容写入文件</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>正在写入……</translation>
    </message>
    <message>
        <source>several covers</source>
        <translation>多个封面</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>名称(&amp;S)</translation>
    </message>
    <message>
        <source>Ro&amp;w</source>
        <translation>行(&amp;W)</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>筛选(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Undo Apply</source>
        <translation>撤销应用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>编辑单元格(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>复制行(&amp;C)</translation>
    </message>
    <message>
        <source>Copy Co&amp;lumn</source>
        <translation>复制列(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>粘贴单元格(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>筛选(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>排序方式(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>然后按(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open in Editor</source>
        <translation>在编辑器中打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>在文件夹中显示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>复制路径(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>从列表中移除(&amp;R)</translation>
    </message>
    <message>
        <source>The listed files and what their tags say</source>
        <translation>列表中的文件及其标签内容</translation>
    </message>
    <message>
        <source>Locate File…</source>
        <translation>查找文件…</translation>
    </message>
    <message>
        <source>Show where the file is now: it is opened there with your edits, which are not saved yet</source>
        <translation>指出文件现在的位置：将在那里打开它并保留您的编辑，编辑尚未保存</translation>
    </message>
    <message>
        <source>Locate &quot;%@&quot;</source>
        <translation>查找“%@”</translation>
    </message>
    <message>
        <source>Cells that can't take what was pasted: %@</source>
        <translation>无法接受所粘贴内容的单元格：%@</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Paste and Store Cover</source>
        <translation>粘贴并采用封面(&amp;P)</translation>
    </message>
    <message>
        <source>Make the image that was copied the cover, which a save writes</source>
        <translation>将复制的图片作为封面，保存时写入</translation>
    </message>
    <message>
        <source>&amp;Trim Border</source>
        <translation>裁剪边框(&amp;T)</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>裁去封面的单色边框</translation>
    </message>
    <message>
        <source>&amp;Delete Cover</source>
        <translation>删除封面(&amp;D)</translation>
    </message>
    <message>
        <source>Take the cover away, which a save with portable tags writes</source>
        <translation>移除封面，用可移植标签保存时写入</translation>
    </message>
    <message>
        <source>Delete &amp;All Tags from File…</source>
        <translation>从文件中删除所有标签(&amp;A)…</translation>
    </message>
    <message>
        <source>Delete every tag of the file, for all programs</source>
        <translation>删除文件的所有标签，对所有程序都有效</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>添加文件夹(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Find in List</source>
        <translation>在列表中查找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Load Cover Art…</source>
        <translation>载入封面(&amp;L)…</translation>
    </message>
    <message>
        <source>Look &amp;Up on the Web</source>
        <translation>在网上查找(&amp;U)</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>按名称排序(&amp;N)</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>按大小排序(&amp;S)</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>按日期排序(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Portable Tags</source>
        <translation>可移植标签(&amp;P)</translation>
    </message>
    <message>
        <source>Open and save with the tags that other programs read</source>
        <translation>用其他程序读取的标签打开和保存</translation>
    </message>
    <message>
        <source>Restore Unsaved &amp;Edits</source>
        <translation>恢复未保存的编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>重新打开未能保存编辑的文件，并恢复这些编辑</translation>
    </message>
    <message>
        <source>&amp;Library Table</source>
        <translation>媒体库表格(&amp;L)</translation>
    </message>
    <message>
        <source>Show all files of the list with their tags, and edit many at once</source>
        <translation>显示列表中的所有文件及其标签，并可一次编辑多个</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>用户指南(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation>关于 Velmora(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remember This Layout</source>
        <translation>记住此布局(&amp;R)</translation>
    </message>
    <message>
        <source>Start with this size, division, column widths and sorting from now on</source>
        <translation>今后以此大小、分栏、列宽和排序启动</translation>
    </message>
    <message>
        <source>&amp;Forget Everything</source>
        <translation>忘记全部(&amp;F)</translation>
    </message>
    <message>
        <source>Remove the settings file, with the layout and the choice of portable tags</source>
        <translation>删除设置文件，包括布局和可移植标签的选择</translation>
    </message>
</context>
<context>
    <name>MediaList</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>将文件添加到列表</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>添加文件夹(&amp;O)…</translation>
    </message>
    <message>
        <source>Search a folder for media files</source>
        <translation>在文件夹中搜索媒体文件</translation>
    </message>
    <message>
        <source>Turns while folders are searched</source>
        <translation>搜索文件夹时转动</translation>
    </message>
    <message>
        <source>Search in progress</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>The folder that is being searched</source>
        <translation>正在搜索的文件夹</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>停止(&amp;P)</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>停止搜索</translation>
    </message>
    <message>
        <source>The media files found; type a name to find one</source>
        <translation>找到的媒体文件；键入名称即可查找</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>媒体文件</translation>
    </message>
</context>
<context>
    <name>TagForm</name>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>The title of the film or song</source>
        <translation>影片或歌曲的标题</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>年份(&amp;Y)：</translation>
    </message>
    <message>
        <source>The year of release</source>
        <translation>发行年份</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>艺术家：</translation>
    </message>
    <message>
        <source>The artist of a song, the cast of a film</source>
        <translation>歌曲的艺术家，影片的演员</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>类型(&amp;G)：</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>类型：选择一个或自行输入</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>专辑：</translation>
    </message>
    <message>
        <source>The album of a song, the director of a film</source>
        <translation>歌曲的专辑，影片的导演</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>分级(&amp;I)：</translation>
    </message>
    <message>
        <source>The parental rating of a film</source>
        <translation>影片的年龄分级</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis:</source>
        <translation>简介(&amp;N)：</translation>
    </message>
    <message>
        <source>What the film is about</source>
        <translation>影片讲述的内容</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>日期(&amp;D)：</translation>
    </message>
    <message>
        <source>The date, for information: it is not written into the file</source>
        <translation>日期，仅供参考：不会写入文件</translation>
    </message>
    <message>
        <source>&amp;Cover Art:</source>
        <translation>封面(&amp;C)：</translation>
    </message>
    <message>
        <source>The cover art; drop an image here</source>
        <translation>封面；可将图片拖放到此处</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>载入(&amp;L)…</translation>
    </message>
    <message>
        <source>Load cover art from an image file</source>
        <translation>从图片文件载入封面</translation>
    </message>
    <message>
        <source>Tri&amp;m</source>
        <translation>裁边(&amp;M)</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>裁去封面的单色边框</translation>
    </message>
    <message>
        <source>Remo&amp;ve Tag</source>
        <translation>移除标签(&amp;V)</translation>
    </message>
    <message>
        <source>Forget the changes without writing them</source>
        <translation>放弃更改而不写入</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>Read the file again and drop the changes</source>
        <translation>重新读取文件并放弃更改</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Write the changes into the file (Ctrl+S)</source>
        <translation>将更改写入文件（Ctrl+S）</translation>
    </message>
    <message>
        <source>for information only</source>
        <translation>仅供参考</translation>
    </message>
</context>
<context>
    <name>MoviePreview</name>
    <message>
        <source>Preview:</source>
        <translation>预览：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>A preview of the file</source>
        <translation>文件的预览</translation>
    </message>
    <message>
        <source>This file can’t be previewed.</source>
        <translation>此文件无法预览。</translation>
    </message>
    <message>
        <source>Ta&amp;ke Frame</source>
        <translation>截取画面(&amp;K)</translation>
    </message>
    <message>
        <source>Take the frame shown as cover art</source>
        <translation>将显示的画面用作封面</translation>
    </message>
</context>
<context>
    <name>TagWebBrowser</name>
    <message>
        <source>Look &amp;up:</source>
        <translation>查找(&amp;U)：</translation>
    </message>
    <message>
        <source>The site to search</source>
        <translation>要搜索的网站</translation>
    </message>
    <message>
        <source>The text to search for</source>
        <translation>要搜索的文字</translation>
    </message>
    <message>
        <source>Searc&amp;h</source>
        <translation>搜索(&amp;H)</translation>
    </message>
    <message>
        <source>Search the site for the text</source>
        <translation>在网站上搜索文字</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>后退(&amp;B)</translation>
    </message>
    <message>
        <source>Go back to the page before</source>
        <translation>返回上一页</translation>
    </message>
    <message>
        <source>Turns while a page loads</source>
        <translation>加载网页时转动</translation>
    </message>
    <message>
        <source>Page loading</source>
        <translation>正在加载网页</translation>
    </message>
    <message>
        <source>Fill Form</source>
        <translation>填写表单</translation>
    </message>
    <message>
        <source>Fill the form from the page shown</source>
        <translation>根据显示的网页填写表单</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>The address of the page shown</source>
        <translation>所显示网页的地址</translation>
    </message>
    <message>
        <source>Address of the page</source>
        <translation>网页地址</translation>
    </message>
    <message>
        <source>What the form fill waits for</source>
        <translation>填写表单正在等待的内容</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Fill the form without the cover (Esc)</source>
        <translation>不带封面填写表单（Esc）</translation>
    </message>
    <message>
        <source>The page</source>
        <translation>网页</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>网页</translation>
    </message>
    <message>
        <source>The page could not be loaded.</source>
        <translation>无法加载网页。</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>网站：</translation>
    </message>
</context>
</TS>
