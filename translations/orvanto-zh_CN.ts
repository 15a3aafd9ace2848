<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>剪贴板中没有文件</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>添加文件…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>添加文件夹…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>全部或全不</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>全部或全不：一次运行重命名列表中的所有文件，或一个也不改</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1：%2 个无法重命名，因此全部不改</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>目前的新名称：%1 / %2。全部恢复，还是保留已完成的？</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>全部恢复</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>保留已完成的</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>保持原名</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>仅重命名可改名的文件</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>未重命名任何文件，因为并非每个文件都能重命名。</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>未重命名任何文件：一个文件失败，其他文件已恢复原名。</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>未重命名任何文件：运行已取消。</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>未能全部恢复；未恢复原名的文件：%1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>未重命名任何文件：无法写入运行记录。</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>运行尚未完成。</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>无法恢复文件 &apos;%1&apos; 的原名：它现在名为 &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>不再显示此消息。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>全局设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>附加组件</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>本地化</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>捐赠</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>需要写入注册表项</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>系统启动时运行</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>启动时最小化</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>禁用启动画面</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>恢复窗口布局</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>恢复窗口大小和位置</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>最小化到托盘图标</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>自动检查新版本</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
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
        <source>Translation: Kavrondel</source>
        <translation>翻译：Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>支持此项目</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>本程序是免费软件，并将永远免费。 </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>您的小额捐助可以帮助我们开发、升级和维护我们的产品。</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>应用程序文件夹</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>应用程序数据文件夹</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>访问我们的网站</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>向我们发送反馈</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;由 Kavrondel 制作&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>命令已成功完成。</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>命令执行失败。</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>请确保您具有管理员权限。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
        <source>Automatically check for new versions</source>
        <translation>自动检查新版本</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>感谢您的信任，希望您喜欢本软件。</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>了解我们的更多产品：</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>我们正在寻找以目标语言为母语的译者。</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>请联系我们： </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>为照片编号</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>将下划线替换为空格</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>整理大小写</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>去掉相机前缀</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>日期写成 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>两位数的曲目编号</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>将“艺术家 - 标题”改为“标题 - 艺术家”</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>新名称为空或只有点</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有这个文件夹</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>文件系统不接受新名称</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>新名称太长</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>此文件夹中无法重命名</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>新名称包含半个字符</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>系统拒绝了操作</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>该名称已被占用</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>第 %1 行占用名称 %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>第 %1 行仍在使用名称 %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 个文件</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 个保持原名</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 个保持原名</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>转到下一个有问题的行 (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1，已选 %2 个</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1：%2 个将重命名，%3，%4 个无法重命名</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1：%2 个将重命名，%3，%4 个无法重命名，%5 个未知</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>保持原名。</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>运行前无法判断。</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>保持不变：%1。</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>将移动到文件夹 %1。</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>新名称指向文件夹 %1。</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>未重命名：%1。</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>显示详情…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>未重命名的文件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新名称</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>另一个文件占用了它的名称</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>已启用的规则</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>文件列表</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>名称过滤器</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>显示完整路径</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>应用程序日志</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>包含调试消息</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>打开日志文件夹</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>全局设置</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>文件资源管理器</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>请稍候</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>正在获取文件</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>已开始重命名文件</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>无法重命名文件</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>已处理</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>如果您喜欢本软件并希望我们的服务持续下去，请支持我们。</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>谢谢！</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>应用程序已最小化。</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>单击托盘图标可显示窗口。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>始终置顶</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>撤销上一次运行</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>撤销、重做和以前的运行</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>添加文件和文件夹</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>对文件排序</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>将文件或文件夹拖放到此处，或按 Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>请在上方选择规则类型，填写各项，然后按“%1”</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>主目录</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>下载</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 文件</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>套接字操作超时</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>增大(&amp;I)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>减小(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>取消停靠或重新停靠面板</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>关闭停靠面板</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建一个文件夹</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细视图</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进一步</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗？</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请检查文件名是否正确。</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到文件夹。
请检查名称是否正确。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
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
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>连接已关闭</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>找不到主机 %1</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
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
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>无法访问主机</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>无法访问网络</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左边缘</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右边缘</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上翻页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下翻页</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
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
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>用这些值取代该规则</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>保持规则不变</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>规则集</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>规则集</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>为已启用的规则命名并保存，以便再次使用</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>此后规则已更改。</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>管理…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>打开文件…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>示例</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>规则集</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>已启用的规则尚未保存。要替换它们吗？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>规则集“%1”已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>要删除规则集“%1”吗？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>保存规则集</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>规则集名称</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>打开规则集</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>未能从 %1 载入规则：</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>无法保存规则集：</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>无法删除规则集：</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>无法重命名规则集：</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>规则 %1，%2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>太大</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>第 %1 行不是 JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>必须是不超过 %1 个字符的文本</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>必须是首尾没有空格的名称</translation>
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
        <source>must be %1</source>
        <translation>必须是 %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>必须是以下之一：%1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>必须是不超过 %1 条规则的列表</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>此文件由更新版本的程序写入</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>没有这样的字段</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>另一个规则集已使用此名称</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>无法删除使用旧名称的文件</translation>
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
        <translation>从开头</translation>
    </message>
    <message>
        <source>End</source>
        <translation>从末尾</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>更改大小写</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>大写字母</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>小写字母</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>每个单词首字母大写</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>忽略文件扩展名</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>起始编号</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>前导零</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>插入文本</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>查找内容</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>替换为</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>正则表达式</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>删除字符</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>模式无效：不会更改任何内容。</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>此模式耗时过长：不会更改任何内容。</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>区分大小写；尽可能多地匹配。</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>任意一个字符</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>点号本身</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>这些字符之一</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>其他任意字符</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>一个数字</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>字母、数字或 _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>一个空白</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>任意多个 a，也可没有</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>一个或多个 a</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>一个 a 或没有</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>两到四个 a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>ab 或 cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>名称的开头</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>名称的结尾</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>分组：新文本中的 \1 就是它找到的内容</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>一次撤销被中断；其余部分仍可继续撤销</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>%1 的运行被中断；已重命名的文件可以恢复原名</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>此次运行无法撤销</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>此次运行的最后几次重命名无法撤销：%1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 个文件夹</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>撤销 %1 在 %2 中的 1 次重命名</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>撤销 %2 在 %3 中的 %1 次重命名</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>程序的另一个窗口正在处理此次运行。</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>此次运行来自另一台计算机或更新版本的程序。</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>之后的运行重命名了其中一些文件。请先撤销那一次。</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>此次运行已没有可撤销的内容。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>已开始撤销</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>无法恢复文件 &apos;%1&apos; 的原名：%2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>撤销 %2 在 %3 个文件夹中的 %1 次重命名</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>运行记录</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>已部分撤销</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>来自另一台计算机</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>来自更新的版本</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1，之后又被其他运行更改</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>%1 的运行重命名了其中一些文件。请先撤销那一次。</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>显示文件</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>删除记录</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>删除所有记录</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>删除所有运行记录？文件保持原样，之后将无法撤销任何运行。</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>%1 运行的文件</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>旧名称</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新名称</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现状</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>使用新名称</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>使用旧名称</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>该处是另一个文件</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>运行记录…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>此次运行被中断；也可通过“运行记录…”继续完成</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>此次运行本应重命名所有文件或一个也不改，但被中断。请继续完成、全部恢复，或让文件保持现状。</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>全部恢复</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>继续完成</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>保持现状</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>已开始继续完成被中断的运行</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>%1 的运行被中断；可通过“运行记录…”继续完成或全部恢复</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>扩展名</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>添加顺序</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1，升序</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1，降序</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>数据传输失败</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>版本检查失败</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>连接服务器时出错。</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>请在此处手动检查：</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>有新版本可用！</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>是否立即下载？</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>有哪些更新？</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>您使用的是最新版本。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
