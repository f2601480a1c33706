<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays version information.</source>
        <translation>显示版本信息。</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>显示命令行选项的帮助。</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>显示包括 Qt 特有选项的帮助。</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项“%1”。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知选项：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>“%1”之后缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>“%1”之后有意外的值。</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[选项]</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>取消停靠或重新停靠窗口</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>关闭停靠窗口</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>目录：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级目录</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级目录</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细视图</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>我的电脑</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近的位置</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>查找目录</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
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
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到目录。
请检查目录名是否正确。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”有写保护。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除目录。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
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
    <message>
        <source>My Computer</source>
        <translation>我的电脑</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有该文件或目录</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>要打开的文件是一个目录</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
<context>
    <name>QImageReader</name>
    <message>
        <source>Invalid device</source>
        <translation>设备无效</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>Unsupported image format</source>
        <translation>不支持的图像格式</translation>
    </message>
    <message>
        <source>Unable to read image data</source>
        <translation>无法读取图像数据</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
<context>
    <name>QImageWriter</name>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>Device is not set</source>
        <translation>未设置设备</translation>
    </message>
    <message>
        <source>Cannot open device for writing: %1</source>
        <translation>无法打开设备进行写入：%1</translation>
    </message>
    <message>
        <source>Device not writable</source>
        <translation>设备不可写</translation>
    </message>
    <message>
        <source>Unsupported image format</source>
        <translation>不支持的图像格式</translation>
    </message>
    <message>
        <source>Image is empty</source>
        <translation>图像为空</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>The shared library was not found.</source>
        <translation>找不到共享库。</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>文件“%1”不是有效的 Qt 插件。</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>无法加载库 %1：%2</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>全部是(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>全部否(&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
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
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>恢复默认值</translation>
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
        <translation>左一页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>右一页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>下一页</translation>
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
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>退格</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
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
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
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
</TS>
