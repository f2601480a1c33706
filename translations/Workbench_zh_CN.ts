<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Autosave</name>
    <message>
        <source>What you do is not kept from a crash: %1</source>
        <translation>您的操作在崩溃后无法保留：%1</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly (%1). What was not saved yet of channel &quot;%2&quot;, %3, can be restored.</source>
        <translation>工作台意外退出（%1）。通道“%2”（%3）尚未保存的内容可以恢复。</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly (%1). What was not saved yet can be restored.</source>
        <translation>工作台意外退出（%1）。尚未保存的内容可以恢复。</translation>
    </message>
    <message>
        <source>template or configuration are not what they were when the work began.</source>
        <translation>模板或配置与开始工作时不同。</translation>
    </message>
    <message>
        <source>What was done in this window since is lost then. Restore?</source>
        <translation>此后在该窗口中所做的操作将丢失。要恢复吗？</translation>
    </message>
    <message>
        <source>Not all could be restored: %1</source>
        <translation>未能全部恢复：%1</translation>
    </message>
    <message>
        <source>What was restored could not be written to a file again.</source>
        <translation>恢复的内容无法再写入文件。</translation>
    </message>
</context>
<context>
    <name>AutosaveFile</name>
    <message>
        <source>%1: nothing can be written there</source>
        <translation>%1：无法在此写入</translation>
    </message>
</context>
<context>
    <name>BusyReading</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>What was edited since the last save is lost otherwise. Save it?</source>
        <translation>否则上次保存后的编辑将丢失。要保存吗？</translation>
    </message>
    <message>
        <source>What was saved is in no file, and is lost otherwise. Save it?</source>
        <translation>已保存的内容不在任何文件中，否则将丢失。要保存吗？</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Template document to load.</source>
        <translation>要加载的模板文档。</translation>
    </message>
    <message>
        <source>Configuration document to load, or a result with one; none is an empty one.</source>
        <translation>要加载的配置文档，或含有配置的结果；不给出则为空配置。</translation>
    </message>
    <message>
        <source>Address or file that gives the channel&apos;s picture, in place of the sample camera: an RTSP address, a video, a still picture.</source>
        <translation>代替示例摄像机提供通道画面的地址或文件：RTSP 地址、视频或静态图片。</translation>
    </message>
    <message>
        <source>The same as --source.</source>
        <translation>与 --source 相同。</translation>
    </message>
    <message>
        <source>Channel id.</source>
        <translation>通道 ID。</translation>
    </message>
    <message>
        <source>Channel name.</source>
        <translation>通道名称。</translation>
    </message>
    <message>
        <source>Algorithm id.</source>
        <translation>算法 ID。</translation>
    </message>
    <message>
        <source>Algorithm code.</source>
        <translation>算法代码。</translation>
    </message>
    <message>
        <source>Plug-in to load in place of the one that comes with the program.</source>
        <translation>代替程序自带的插件而加载的插件。</translation>
    </message>
    <message>
        <source>Write the object of the last result message here; leaving keeps what was saved.</source>
        <translation>将最后一条结果消息的对象写入此处；离开时保留已保存的内容。</translation>
    </message>
    <message>
        <source>Save a picture of the window here before it closes.</source>
        <translation>窗口关闭前将其画面保存到此处。</translation>
    </message>
    <message>
        <source>Do what this session says, then close.</source>
        <translation>执行此会话，然后关闭。</translation>
    </message>
    <message>
        <source>Write what the operator does to this session.</source>
        <translation>将操作员的操作写入此会话。</translation>
    </message>
    <message>
        <source>Stand-alone host of the rules window.
Exit status: 0 saved or closed, 1 left without saving what was changed since, 2 unusable arguments or files, 3 a replayed session failed, or did not come to its end.</source>
        <translation>规则窗口的独立宿主程序。
退出状态：0 已保存或已关闭，1 离开时有未保存的更改，2 参数或文件不可用，3 重放的会话失败或未到达结尾。</translation>
    </message>
    <message>
        <source>Address or file that gives this channel&apos;s picture; may be repeated.</source>
        <translation>提供该通道画面的地址或文件；可重复。</translation>
    </message>
    <message>
        <source>Algorithm type, a number.</source>
        <translation>算法类型，数字。</translation>
    </message>
    <message>
        <source>Language of all texts, in place of the desktop&apos;s: de, zh_CN or en.</source>
        <translation>代替桌面语言的界面语言：de、zh_CN 或 en。</translation>
    </message>
    <message>
        <source>Let the operator select rules, not edit them.</source>
        <translation>让操作员选择规则，而不编辑。</translation>
    </message>
    <message>
        <source>Pass the member &quot;editable&quot;. Its presence locks the window, whatever its value, unless selection mode is on.</source>
        <translation>传递成员“editable”。只要存在，无论取值如何都会锁定窗口，除非处于选择模式。</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>意外的参数：%1</translation>
    </message>
    <message>
        <source>--%1 takes the name of a file</source>
        <translation>--%1 需要文件名</translation>
    </message>
    <message>
        <source>--%1 takes ID=ADDRESS, not &quot;%2&quot;</source>
        <translation>--%1 需要 ID=ADDRESS，而不是“%2”</translation>
    </message>
    <message>
        <source>--%1 takes a language as &quot;de&quot;, not &quot;%2&quot;</source>
        <translation>--%1 需要“de”这样的语言，而不是“%2”</translation>
    </message>
    <message>
        <source>--%1 takes a number, not &quot;%2&quot;</source>
        <translation>--%1 需要数字，而不是“%2”</translation>
    </message>
    <message>
        <source>--%1 takes true or false, not &quot;%2&quot;</source>
        <translation>--%1 需要 true 或 false，而不是“%2”</translation>
    </message>
    <message>
        <source>--%1 would replace a file that is used already: %2</source>
        <translation>--%1 会替换正在使用的文件：%2</translation>
    </message>
    <message>
        <source>Colours of the windows, light or dark, in place of the desktop&apos;s.</source>
        <translation>代替桌面的窗口颜色：light 或 dark。</translation>
    </message>
    <message>
        <source>--%1 takes light or dark, not &quot;%2&quot;</source>
        <translation>--%1 需要 light 或 dark，而不是“%2”</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1: it is no file</source>
        <translation>%1：不是文件</translation>
    </message>
    <message>
        <source>%1: it is longer than 128 MB</source>
        <translation>%1：超过 128 MB</translation>
    </message>
</context>
<context>
    <name>DocumentOpener</name>
    <message>
        <source>Open &amp;template...</source>
        <translation>打开模板(&amp;T)...</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Open &amp;configuration...</source>
        <translation>打开配置(&amp;C)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Open an e&amp;xample</source>
        <translation>打开示例(&amp;X)</translation>
    </message>
    <message>
        <source>Recent &amp;documents</source>
        <translation>最近的文档(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Load again</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>Open template</source>
        <translation>打开模板</translation>
    </message>
    <message>
        <source>Open configuration</source>
        <translation>打开配置</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>正在读取……</translation>
    </message>
    <message>
        <source>Open a template first</source>
        <translation>请先打开模板</translation>
    </message>
    <message>
        <source>Nothing can be opened before all is done again</source>
        <translation>全部重做完成之前无法打开其他文档</translation>
    </message>
</context>
<context>
    <name>DropTarget</name>
    <message>
        <source>Nothing was opened: drop a template, a configuration and a picture at once, but one of each at most.</source>
        <translation>未打开任何内容：可以同时拖放一个模板、一个配置和一个画面，但每种最多一个。</translation>
    </message>
</context>
<context>
    <name>Examples</name>
    <message>
        <source>Perimeter</source>
        <translation>周界</translation>
    </message>
    <message>
        <source>Trip wire</source>
        <translation>绊线</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>交通</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Lane calibration</source>
        <translation>车道标定</translation>
    </message>
    <message>
        <source>Scene calibration</source>
        <translation>场景标定</translation>
    </message>
    <message>
        <source>Fight calibration</source>
        <translation>斗殴检测标定</translation>
    </message>
</context>
<context>
    <name>FirstPage</name>
    <message>
        <source>Open a template...</source>
        <translation>打开模板...</translation>
    </message>
    <message>
        <source>Open an example</source>
        <translation>打开示例</translation>
    </message>
    <message>
        <source>This cannot be used:
%1</source>
        <translation>无法使用：
%1</translation>
    </message>
</context>
<context>
    <name>MenuHand</name>
    <message>
        <source>there is no &quot;%1&quot; in the menu</source>
        <translation>菜单中没有“%1”</translation>
    </message>
    <message>
        <source>it is disabled: %1</source>
        <translation>它已禁用：%1</translation>
    </message>
    <message>
        <source>it has no menu now</source>
        <translation>它现在没有菜单</translation>
    </message>
</context>
<context>
    <name>MessageDock</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Addressed by</source>
        <translation>寻址方式</translation>
    </message>
    <message>
        <source>Select a message to read its JSON</source>
        <translation>选择一条消息以查看其 JSON</translation>
    </message>
    <message>
        <source>host → module</source>
        <translation>宿主 → 模块</translation>
    </message>
    <message>
        <source>module → host</source>
        <translation>模块 → 宿主</translation>
    </message>
</context>
<context>
    <name>ModuleHost</name>
    <message>
        <source>%1: not a rules plug-in</source>
        <translation>%1：不是规则插件</translation>
    </message>
</context>
<context>
    <name>OperatorHand</name>
    <message>
        <source>there is no such widget</source>
        <translation>没有这样的控件</translation>
    </message>
    <message>
        <source>it is hidden</source>
        <translation>它已隐藏</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>它已禁用</translation>
    </message>
    <message>
        <source>it is covered; select its section first</source>
        <translation>它被遮住；请先选择其分区</translation>
    </message>
    <message>
        <source>it cannot be edited</source>
        <translation>它不能编辑</translation>
    </message>
</context>
<context>
    <name>ParameterBlock</name>
    <message>
        <source>%1:1:1: the template has no &quot;configDescription&quot;</source>
        <translation>%1:1:1：模板中没有“configDescription”</translation>
    </message>
    <message>
        <source>%1:1:1: nothing was saved, so there is no configuration</source>
        <translation>%1:1:1：未保存任何内容，因此没有配置</translation>
    </message>
    <message>
        <source>%1: it is too long</source>
        <translation>%1：内容过长</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
</context>
<context>
    <name>RowHand</name>
    <message>
        <source>it has no option &quot;%1&quot;</source>
        <translation>它没有选项“%1”</translation>
    </message>
    <message>
        <source>it is no attribute row</source>
        <translation>它不是属性行</translation>
    </message>
</context>
<context>
    <name>SessionExpectation</name>
    <message>
        <source>%1 is %2, not %3</source>
        <translation>%1是 %2，而不是 %3</translation>
    </message>
    <message>
        <source>the last box</source>
        <translation>最后的对话框</translation>
    </message>
    <message>
        <source>a message was posted</source>
        <translation>发出了一条消息</translation>
    </message>
    <message>
        <source>no message was posted; the last box said: %1</source>
        <translation>未发出消息；最后的对话框提示：%1</translation>
    </message>
    <message>
        <source>no message was posted</source>
        <translation>未发出消息</translation>
    </message>
    <message>
        <source>the notices are %1, not %2</source>
        <translation>提示是 %1，而不是 %2</translation>
    </message>
    <message>
        <source>the focus</source>
        <translation>焦点</translation>
    </message>
    <message>
        <source>there is no such section</source>
        <translation>没有这样的分区</translation>
    </message>
    <message>
        <source>the hint</source>
        <translation>操作提示</translation>
    </message>
    <message>
        <source>the number of entries</source>
        <translation>条目数</translation>
    </message>
    <message>
        <source>the current entry</source>
        <translation>当前条目</translation>
    </message>
    <message>
        <source>there is no such row</source>
        <translation>没有这样的行</translation>
    </message>
    <message>
        <source>the row&apos;s value</source>
        <translation>行的值</translation>
    </message>
    <message>
        <source>the row&apos;s visibility</source>
        <translation>行的可见性</translation>
    </message>
    <message>
        <source>the row&apos;s enabled state</source>
        <translation>行的可用状态</translation>
    </message>
    <message>
        <source>the row&apos;s mark</source>
        <translation>行的标记</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>%1: another recording is being written there</source>
        <translation>%1：正在写入另一个录制</translation>
    </message>
    <message>
        <source>%1: %2; nothing more is recorded</source>
        <translation>%1：%2；不再录制</translation>
    </message>
</context>
<context>
    <name>SessionPlayer</name>
    <message>
        <source>there is no section &quot;%1&quot;</source>
        <translation>没有分区“%1”</translation>
    </message>
    <message>
        <source>there is no row &quot;%1&quot;</source>
        <translation>没有行“%1”</translation>
    </message>
    <message>
        <source>the position is not on the picture</source>
        <translation>位置不在画面上</translation>
    </message>
    <message>
        <source>line %1: %2: %3</source>
        <translation>第 %1 行：%2：%3</translation>
    </message>
    <message>
        <source>there is no step &quot;%1&quot;</source>
        <translation>没有步骤“%1”</translation>
    </message>
    <message>
        <source>a question came up that the step does not answer: %1</source>
        <translation>出现了该步骤未回答的问题：%1</translation>
    </message>
    <message>
        <source>the window does not tell what it would refuse</source>
        <translation>窗口未说明会拒绝什么</translation>
    </message>
    <message>
        <source>no picture came: %1</source>
        <translation>没有画面：%1</translation>
    </message>
</context>
<context>
    <name>SessionRecorder</name>
    <message>
        <source>What was changed in &quot;%1&quot; cannot be recorded, nor restored after a crash.</source>
        <translation>“%1”中的更改无法录制，崩溃后也无法恢复。</translation>
    </message>
</context>
<context>
    <name>SessionScript</name>
    <message>
        <source>no text member &quot;do&quot;</source>
        <translation>缺少文本成员“do”</translation>
    </message>
    <message>
        <source>%1: there is no step in it</source>
        <translation>%1：其中没有步骤</translation>
    </message>
</context>
<context>
    <name>SourcesDialog</name>
    <message>
        <source>Re&amp;member user names and passwords</source>
        <translation>记住用户名和密码(&amp;M)</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>视频源</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Address or file</source>
        <translation>地址或文件</translation>
    </message>
    <message>
        <source>They are written into a file that only you can read. Otherwise they have to be typed again after the workbench was closed.</source>
        <translation>它们会写入只有您能读取的文件。否则关闭工作台后需要重新输入。</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit address</source>
        <translation>编辑地址(&amp;E)</translation>
    </message>
    <message>
        <source>Choose &amp;file...</source>
        <translation>选择文件(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Picture or video</source>
        <translation>图片或视频</translation>
    </message>
    <message>
        <source>Row %1 needs a channel and an address.</source>
        <translation>第 %1 行需要通道和地址。</translation>
    </message>
    <message>
        <source>Row %1 has the channel of another row.</source>
        <translation>第 %1 行与另一行的通道相同。</translation>
    </message>
</context>
<context>
    <name>SourcesFile</name>
    <message>
        <source>%1: cannot be read as a whole; it has to be mended or removed before sources are kept again</source>
        <translation>%1：无法完整读取；必须修复或删除后才能再次保存视频源</translation>
    </message>
</context>
<context>
    <name>StepCheck</name>
    <message>
        <source>a position, [x, y]</source>
        <translation>位置 [x, y]</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>a width and a height of 1 to 8192</source>
        <translation>1 到 8192 的宽度和高度</translation>
    </message>
    <message>
        <source>&quot;left&quot; or &quot;right&quot;</source>
        <translation>&quot;left&quot; 或 &quot;right&quot;</translation>
    </message>
    <message>
        <source>&quot;Ctrl&quot; or &quot;Shift&quot;</source>
        <translation>&quot;Ctrl&quot; 或 &quot;Shift&quot;</translation>
    </message>
    <message>
        <source>one key with its modifiers</source>
        <translation>一个按键及其修饰键</translation>
    </message>
    <message>
        <source>a number from 1 to 1000</source>
        <translation>1 到 1000 的数字</translation>
    </message>
    <message>
        <source>&quot;picture&quot;</source>
        <translation>&quot;picture&quot;</translation>
    </message>
    <message>
        <source>an entry</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>members, or null</source>
        <translation>成员或 null</translation>
    </message>
    <message>
        <source>a row&apos;s key, &quot;picture&quot; or null</source>
        <translation>行的键、&quot;picture&quot; 或 null</translation>
    </message>
    <message>
        <source>a text that is not empty, or null</source>
        <translation>非空文本或 null</translation>
    </message>
    <message>
        <source>there is no expectation &quot;%1&quot;</source>
        <translation>没有期望“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is expected of a &quot;row&quot; only</source>
        <translation>“%1”只能对“row”期望</translation>
    </message>
    <message>
        <source>there is nothing to expect</source>
        <translation>没有可期望的内容</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes %2</source>
        <translation>“%1”需要%2</translation>
    </message>
    <message>
        <source>there is no &quot;value&quot; to set</source>
        <translation>没有要设置的“value”</translation>
    </message>
    <message>
        <source>&quot;hover&quot; takes &quot;at&quot;, a position, or an &quot;entry&quot;</source>
        <translation>“hover”需要“at”（位置）或“entry”</translation>
    </message>
    <message>
        <source>&quot;wait&quot; takes &quot;picture&quot;: true, or &quot;ms&quot; of 0 to 600000</source>
        <translation>“wait”需要“picture”: true，或 0 到 600000 的“ms”</translation>
    </message>
</context>
<context>
    <name>SupportFile</name>
    <message>
        <source>It cannot be packed: %1</source>
        <translation>无法打包：%1</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1：无法创建文件夹</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>there is no display; only --replay works without one</source>
        <translation>没有显示器；只有 --replay 可以在没有显示器时工作</translation>
    </message>
    <message>
        <source>the window was closed before the session&apos;s end</source>
        <translation>窗口在会话结束前被关闭</translation>
    </message>
    <message>
        <source>%1: nothing was saved</source>
        <translation>%1：未保存任何内容</translation>
    </message>
    <message>
        <source>Save a support file</source>
        <translation>保存支持文件</translation>
    </message>
    <message>
        <source>Archives (*.tar.gz)</source>
        <translation>归档文件 (*.tar.gz)</translation>
    </message>
    <message>
        <source>Saving ...</source>
        <translation>正在保存……</translation>
    </message>
</context>
<context>
    <name>WorkbenchWindow</name>
    <message>
        <source>JSON documents (*.json);;All files (*)</source>
        <translation>JSON 文档 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Rules workbench</source>
        <translation>规则工作台</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;picture or video...</source>
        <translation>打开图片或视频(&amp;P)...</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>&amp;Sources...</source>
        <translation>视频源(&amp;S)...</translation>
    </message>
    <message>
        <source>R&amp;ecent sources</source>
        <translation>最近的视频源(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;result as...</source>
        <translation>结果另存为(&amp;R)...</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Open a template to begin</source>
        <translation>请打开模板以开始</translation>
    </message>
    <message>
        <source>Open picture or video</source>
        <translation>打开图片或视频</translation>
    </message>
    <message>
        <source>Pictures and videos (*.%1);;All files (*)</source>
        <translation>图片和视频 (*.%1);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Sample camera</source>
        <translation>示例摄像机</translation>
    </message>
    <message>
        <source>Nothing has been saved in the rules window yet</source>
        <translation>规则窗口中尚未保存任何内容</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>保存结果</translation>
    </message>
    <message>
        <source>The result would replace a file that is used: %1</source>
        <translation>结果会替换正在使用的文件：%1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Left without saving what was changed since</source>
        <translation>已离开，此后的更改未保存</translation>
    </message>
    <message>
        <source>Left without saving</source>
        <translation>已离开，未保存</translation>
    </message>
    <message>
        <source>%1, %2 px   %3, %4 of %5</source>
        <translation>%1, %2 px   %3, %4 / %5</translation>
    </message>
    <message>
        <source>The screenshot would replace a file that is used: %1</source>
        <translation>屏幕截图会替换正在使用的文件：%1</translation>
    </message>
    <message>
        <source>St&amp;op the picture</source>
        <translation>停止画面(&amp;O)</translation>
    </message>
    <message>
        <source>S&amp;ave</source>
        <translation>保存(&amp;A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Save a &amp;support file...</source>
        <translation>保存支持文件(&amp;S)...</translation>
    </message>
    <message>
        <source>%1[*] - %2</source>
        <translation>%1[*] - %2</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>正在加载……</translation>
    </message>
    <message>
        <source>Saved, but in no file yet: File, Save result as</source>
        <translation>已保存，但尚未写入文件：文件，结果另存为</translation>
    </message>
    <message>
        <source>it cannot be loaded</source>
        <translation>无法加载</translation>
    </message>
</context>
</TS>
